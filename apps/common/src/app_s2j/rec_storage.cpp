// rec_storage.cpp - records of storage interfaces and devices, disk groups,
// recording and snapshots: their field tables, emitters, readers and keyword
// readers.
#include "s2j_record_defs.h"

// Emitter and reader only: no family is built on this record.
static constexpr s2j::Field StorageInterface_fields[] = {
    S2J_FIELD(StorageInterface, Name, "interface name"),
    S2J_FIELD(StorageInterface, Type, "interface type, as text"),
    S2J_FIELD(StorageInterface, Alias, "display name"),
    S2J_FIELD(StorageInterface, Removable, "1 when devices on the interface can be removed, 0 when not"),
    S2J_FIELD(StorageInterface, Expansible,
              "1 when the interface can take more devices through expansion ports, 0 when not"),
    S2J_FIELD(StorageInterface, BusStandard, "text, not interpreted"),
    S2J_FIELD(StorageInterface, ProtocolType, "text, not interpreted"),
    S2J_FIELD(StorageInterface, BusBandwidth, "bandwidth of the interface's bus; unit not fixed by the library"),
    S2J_FIELD(StorageInterface, MaxExpansionPort, "greatest number of expansion ports"),
    S2J_FIELD(StorageInterface, BusID, "number of the interface's bus"),
};
S2J_RECORD(StorageInterface)

static constexpr s2j::Field StorageDevice_fields[] = {
    S2J_FIELD(StorageDevice, Name, "device name; the other storage records name a device by StorageDeviceName"),
    S2J_FIELD(StorageDevice, Type, "device type, as text"),
    S2J_FIELD(StorageDevice, Alias, "display name"),
    S2J_FIELD(StorageDevice, Removable, "1 when the device can be removed, 0 when not"),
    S2J_FIELD(StorageDevice, SupportedFileSystemTypeList, "list held as text; not interpreted"),
    S2J_FIELD(StorageDevice, SupportQuickFormat,
              "1 when the device can be formatted quickly (\"QuickFormat\"), 0 when not"),
};
S2J_RECORD(StorageDevice)

// A live state: the single-key reader is offered to callers; there is no
// keyed update.
static constexpr s2j::Field StorageDeviceStatus_fields[] = {
    S2J_FIELD(StorageDeviceStatus, StorageDeviceName, "name of the storage device the record is for; key field"),
    S2J_FIELD(StorageDeviceStatus, IsPlugged, "1 when the device is present, 0 when not"),
    S2J_FIELD(StorageDeviceStatus, Formatted, "1 when the device holds a file system, 0 when not"),
    S2J_FIELD(StorageDeviceStatus, FileSystemType, "kind of file system on the device, as text"),
    S2J_FIELD(StorageDeviceStatus, Mounted, "1 when the device's file system is mounted, 0 when not"),
    S2J_FIELD(StorageDeviceStatus, MountPoint, "path where the device's file system is mounted"),
    S2J_FIELD(StorageDeviceStatus, TotalCapacity, "capacity; unit not fixed by the library"),
    S2J_FIELD(StorageDeviceStatus, FreeCapacity, "same unit as TotalCapacity"),
    S2J_FIELD(StorageDeviceStatus, State, "state of the device as a code; its values are not interpreted"),
    S2J_FIELD(StorageDeviceStatus, PrimaryPartition, "name of the device's first partition, as text"),
    S2J_FIELD(StorageDeviceStatus, DeviceNodeName, "the operating system's device node of the device, as text"),
    S2J_FIELD(StorageDeviceStatus, UUID, "identifier of the file system, as text"),
};
static constexpr s2j::Key StorageDeviceStatus_keys[] = {
    S2J_GET_KEY(StorageDeviceStatus, StorageDeviceName),
};
S2J_RECORD_GET(StorageDeviceStatus, StorageDeviceName)

static constexpr s2j::Field DiskGroupCapabilitySet_fields[] = {
    S2J_FIELD(DiskGroupCapabilitySet, MaxDiskGroupNumber, "how many disk groups the device allows"),
};
S2J_RECORD(DiskGroupCapabilitySet)

static constexpr s2j::Field DiskGroupParameter_fields[] = {
    S2J_FIELD(DiskGroupParameter, StorageDeviceName, "name of the storage device the record is for; key field"),
    S2J_FIELD(DiskGroupParameter, GroupID,
              "disk group the device belongs to; matched by DiskGroupID of the recording and snapshot records"),
};
static constexpr s2j::Key DiskGroupParameter_keys[] = {
    S2J_KEY(DiskGroupParameter, StorageDeviceName),
};
S2J_RECORD_KEYWORD_GET(DiskGroupParameter, StorageDeviceName)

static constexpr s2j::Field FormatDiskParameter_fields[] = {
    S2J_FIELD(FormatDiskParameter, StorageDeviceName, "device to format"),
    S2J_FIELD(FormatDiskParameter, FileSystemType,
              "one of the device's SupportedFileSystemTypeList entries; not checked by the library"),
    S2J_FIELD(FormatDiskParameter, PartitionName, "partition to format"),
    S2J_FIELD(FormatDiskParameter, QuickFormat, "1 formats quickly (file system only), 0 formats in full"),
    S2J_FIELD(FormatDiskParameter, AllocationUnitSize,
              "allocation unit (cluster) size of the new file system; unit not fixed by the library"),
};
S2J_RECORD(FormatDiskParameter)

// A single record that still has the single-key reader, for callers that
// pick the device out of a progress report.
static constexpr s2j::Field FormatDiskProgress_fields[] = {
    S2J_FIELD(FormatDiskProgress, StorageDeviceName, "name of the storage device the record is for; key field"),
    S2J_FIELD(FormatDiskProgress, FormatDiskProgressPercent, "percentage; signed"),
    S2J_FIELD(FormatDiskProgress, PartitionName, "partition being formatted"),
};
static constexpr s2j::Key FormatDiskProgress_keys[] = {
    S2J_GET_KEY(FormatDiskProgress, StorageDeviceName),
};
S2J_RECORD_GET(FormatDiskProgress, StorageDeviceName)

static constexpr s2j::Field RemoveStorageDeviceParameter_fields[] = {
    S2J_FIELD(RemoveStorageDeviceParameter, StorageDeviceName, "device to remove"),
};
S2J_RECORD(RemoveStorageDeviceParameter)

static constexpr s2j::Field RecordCapabilitySet_fields[] = {
    S2J_FIELD(RecordCapabilitySet, SupportedFileFormatList, "list held as text; not interpreted"),
    S2J_FIELD(RecordCapabilitySet, MaxFileDuration, "upper bound for FileDuration"),
    S2J_FIELD(RecordCapabilitySet, MinFileDuration, "lower bound for FileDuration"),
    S2J_FIELD(RecordCapabilitySet, SupportedRecordTypeList, "list held as text; not interpreted"),
    S2J_FIELD(RecordCapabilitySet, SupportRecord, "1 when the device can record, 0 when not"),
};
S2J_RECORD(RecordCapabilitySet)

static constexpr s2j::Field RecordParameter_fields[] = {
    S2J_FIELD(RecordParameter, Channel, "channel the record is for; key field"),
    S2J_FIELD(RecordParameter, StreamIndex, "which encoder stream of the channel is recorded"),
    S2J_FIELD(RecordParameter, StoreAudio, "1 records audio with the video, 0 video only"),
    S2J_FIELD(RecordParameter, FileDuration, "length of one file; same unit as the capability bounds"),
    S2J_FIELD(RecordParameter, FileFormat, "one of SupportedFileFormatList; not checked by the library"),
    S2J_FIELD(RecordParameter, Mode, "recording mode as a code; its values are not interpreted"),
    S2J_FIELD(RecordParameter, FilePath, "directory or path where recordings are written"),
    S2J_FIELD(RecordParameter, ScheduleTable, "schedule held as text; not interpreted"),
    S2J_FIELD(RecordParameter, DiskGroupID, "target disk group (GroupID of DiskGroupParameter)"),
    S2J_FIELD(RecordParameter, DiskFullAction,
              "what recording does when the disk is full, as a code; its values are not interpreted"),
};
static constexpr s2j::Key RecordParameter_keys[] = {
    S2J_KEY(RecordParameter, Channel),
};
S2J_RECORD_KEYWORD_GET(RecordParameter, Channel)

// RecordStatus and SnapshotStatus are three uint32 words under the same keys;
// the table engine gives both emitters one behaviour.
static constexpr s2j::Field RecordStatus_fields[] = {
    S2J_FIELD(RecordStatus, Channel, "channel the record is for; key field"),
    S2J_FIELD(RecordStatus, State, "state of recording on the channel as a code; its values are not interpreted"),
    S2J_FIELD(RecordStatus, FreeCapacity, "free room left for recording"),
};
static constexpr s2j::Key RecordStatus_keys[] = {
    S2J_GET_KEY(RecordStatus, Channel),
};
S2J_RECORD_GET(RecordStatus, Channel)

// "Pictrue" is the key's own spelling, in both directions.
static constexpr s2j::Field SnapshotCapabilitySet_fields[] = {
    S2J_FIELD(SnapshotCapabilitySet, SupportPictrueFormatList,
              "list of picture formats held as text; not interpreted. The key is spelled \"Pictrue\", in both "
              "directions"),
    S2J_FIELD(SnapshotCapabilitySet, MaxWidth, "greatest snapshot width"),
    S2J_FIELD(SnapshotCapabilitySet, MaxHeight, "greatest snapshot height"),
    S2J_FIELD(SnapshotCapabilitySet, MinWidth, "least snapshot width"),
    S2J_FIELD(SnapshotCapabilitySet, MinHeight, "least snapshot height"),
    S2J_FIELD(SnapshotCapabilitySet, MaxFramerate, "greatest number of snapshots per unit of time; signed"),
    S2J_FIELD(SnapshotCapabilitySet, MinFramerate, "least number of snapshots per unit of time; signed"),
    S2J_FIELD(SnapshotCapabilitySet, SupportSnapshot, "1 when the device can take snapshots, 0 when not"),
};
S2J_RECORD(SnapshotCapabilitySet)

static constexpr s2j::Field SnapshotParameter_fields[] = {
    S2J_FIELD(SnapshotParameter, Channel, "channel the record is for; key field"),
    S2J_FIELD(SnapshotParameter, PictureFormat, "picture format as a code; its values are not interpreted"),
    S2J_FIELD(SnapshotParameter, PictureWidth,
              "width of the snapshot, within the capability set's minimum and maximum"),
    S2J_FIELD(SnapshotParameter, PictureHeight,
              "height of the snapshot, within the capability set's minimum and maximum"),
    S2J_FIELD(SnapshotParameter, Framerate, "snapshot rate; signed"),
    S2J_FIELD(SnapshotParameter, Mode, "snapshot mode as a code; its values are not interpreted"),
    S2J_FIELD(SnapshotParameter, FilePath, "directory or path where snapshots are written"),
    S2J_FIELD(SnapshotParameter, ScheduleTable, "schedule held as text; not interpreted"),
    S2J_FIELD(SnapshotParameter, DiskGroupID, "target disk group (GroupID of DiskGroupParameter)"),
    S2J_FIELD(SnapshotParameter, DiskFullAction,
              "what snapshots do when the disk is full, as a code; its values are not interpreted"),
    S2J_FIELD(SnapshotParameter, ImageQuality, "picture quality level; its scale is not fixed by the library"),
};
static constexpr s2j::Key SnapshotParameter_keys[] = {
    S2J_KEY(SnapshotParameter, Channel),
};
S2J_RECORD_KEYWORD_GET(SnapshotParameter, Channel)

static constexpr s2j::Field SnapshotStatus_fields[] = {
    S2J_FIELD(SnapshotStatus, Channel, "channel the record is for; key field"),
    S2J_FIELD(SnapshotStatus, State, "state of snapshots on the channel as a code; its values are not interpreted"),
    S2J_FIELD(SnapshotStatus, FreeCapacity, "free room left for snapshots"),
};
static constexpr s2j::Key SnapshotStatus_keys[] = {
    S2J_GET_KEY(SnapshotStatus, Channel),
};
S2J_RECORD_GET(SnapshotStatus, Channel)

static constexpr s2j::Field SnapshotInputParameter_fields[] = {
    S2J_FIELD(SnapshotInputParameter, Channel, "channel to take the picture from"),
    S2J_FIELD(SnapshotInputParameter, PictureFormat, "picture format as a code; its values are not interpreted"),
    S2J_FIELD(SnapshotInputParameter, PictureWidth, "width of the snapshot of the input"),
    S2J_FIELD(SnapshotInputParameter, PictureHeight, "height of the snapshot of the input"),
};
S2J_RECORD(SnapshotInputParameter)

static constexpr s2j::Field SnapshotResult_fields[] = {
    S2J_FIELD(SnapshotResult, Channel, "channel the picture was taken from"),
    S2J_FIELD(SnapshotResult, ImageURL, "where the picture can be fetched"),
    S2J_FIELD(SnapshotResult, ImageRetentionTime, "how long the picture is kept; signed"),
};
S2J_RECORD(SnapshotResult)
