// rec_storage.cpp - records of storage interfaces and devices, disk groups,
// recording and snapshots: their field tables, emitters, readers and keyword
// readers.
#include "s2j_internal.h"

// Emitter and reader only: no family is built on this record.
static constexpr s2j::Field StorageInterface_fields[] = {
    S2J_FIELD(StorageInterface, Name, "interface name"),
    S2J_FIELD(StorageInterface, Type, "interface type, as text"),
    S2J_FIELD(StorageInterface, Alias, "display name"),
    S2J_FIELD(StorageInterface, Removable, "flag"),
    S2J_FIELD(StorageInterface, Expansible, "flag"),
    S2J_FIELD(StorageInterface, BusStandard, "text, not interpreted"),
    S2J_FIELD(StorageInterface, ProtocolType, "text, not interpreted"),
    S2J_FIELD(StorageInterface, BusBandwidth, ""),
    S2J_FIELD(StorageInterface, MaxExpansionPort, ""),
    S2J_FIELD(StorageInterface, BusID, ""),
};
S2J_RECORD(StorageInterface)

static constexpr s2j::Field StorageDevice_fields[] = {
    S2J_FIELD(StorageDevice, Name, "device name; the other storage records name a device by StorageDeviceName"),
    S2J_FIELD(StorageDevice, Type, "device type, as text"),
    S2J_FIELD(StorageDevice, Alias, "display name"),
    S2J_FIELD(StorageDevice, Removable, "flag"),
    S2J_FIELD(StorageDevice, SupportedFileSystemTypeList, "list held as text; not interpreted"),
    S2J_FIELD(StorageDevice, SupportQuickFormat, "flag"),
};
S2J_RECORD(StorageDevice)

// A live state: the single-key reader is offered to callers; there is no
// keyed update.
static constexpr s2j::Field StorageDeviceStatus_fields[] = {
    S2J_FIELD(StorageDeviceStatus, StorageDeviceName, "key field"),
    S2J_FIELD(StorageDeviceStatus, IsPlugged, "flag"),
    S2J_FIELD(StorageDeviceStatus, Formatted, "flag"),
    S2J_FIELD(StorageDeviceStatus, FileSystemType, "text"),
    S2J_FIELD(StorageDeviceStatus, Mounted, "flag"),
    S2J_FIELD(StorageDeviceStatus, MountPoint, "path"),
    S2J_FIELD(StorageDeviceStatus, TotalCapacity, "capacity; unit not fixed by the library"),
    S2J_FIELD(StorageDeviceStatus, FreeCapacity, "same unit as TotalCapacity"),
    S2J_FIELD(StorageDeviceStatus, State, "value not interpreted"),
    S2J_FIELD(StorageDeviceStatus, PrimaryPartition, "text"),
    S2J_FIELD(StorageDeviceStatus, DeviceNodeName, "text"),
    S2J_FIELD(StorageDeviceStatus, UUID, "text"),
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
    S2J_FIELD(DiskGroupParameter, StorageDeviceName, "key field"),
    S2J_FIELD(DiskGroupParameter, GroupID, "disk group the device belongs to; matched by DiskGroupID of the recording and snapshot records"),
};
static constexpr s2j::Key DiskGroupParameter_keys[] = {
    S2J_KEY(DiskGroupParameter, StorageDeviceName),
};
S2J_RECORD_KEYWORD_GET(DiskGroupParameter, StorageDeviceName)

static constexpr s2j::Field FormatDiskParameter_fields[] = {
    S2J_FIELD(FormatDiskParameter, StorageDeviceName, "device to format"),
    S2J_FIELD(FormatDiskParameter, FileSystemType, "one of the device's SupportedFileSystemTypeList entries; not checked by the library"),
    S2J_FIELD(FormatDiskParameter, PartitionName, "partition to format"),
    S2J_FIELD(FormatDiskParameter, QuickFormat, "flag"),
    S2J_FIELD(FormatDiskParameter, AllocationUnitSize, ""),
};
S2J_RECORD(FormatDiskParameter)

// A single record that still has the single-key reader, for callers that
// pick the device out of a progress report.
static constexpr s2j::Field FormatDiskProgress_fields[] = {
    S2J_FIELD(FormatDiskProgress, StorageDeviceName, "key field"),
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
    S2J_FIELD(RecordCapabilitySet, SupportRecord, "flag"),
};
S2J_RECORD(RecordCapabilitySet)

static constexpr s2j::Field RecordParameter_fields[] = {
    S2J_FIELD(RecordParameter, Channel, "key field"),
    S2J_FIELD(RecordParameter, StreamIndex, "which encoder stream of the channel is recorded"),
    S2J_FIELD(RecordParameter, StoreAudio, "flag"),
    S2J_FIELD(RecordParameter, FileDuration, "length of one file; same unit as the capability bounds"),
    S2J_FIELD(RecordParameter, FileFormat, "one of SupportedFileFormatList; not checked by the library"),
    S2J_FIELD(RecordParameter, Mode, "value not interpreted"),
    S2J_FIELD(RecordParameter, FilePath, "path"),
    S2J_FIELD(RecordParameter, ScheduleTable, "schedule held as text; not interpreted"),
    S2J_FIELD(RecordParameter, DiskGroupID, "target disk group (GroupID of DiskGroupParameter)"),
    S2J_FIELD(RecordParameter, DiskFullAction, "value not interpreted"),
};
static constexpr s2j::Key RecordParameter_keys[] = {
    S2J_KEY(RecordParameter, Channel),
};
S2J_RECORD_KEYWORD_GET(RecordParameter, Channel)

// RecordStatus and SnapshotStatus are three uint32 words under the same keys;
// the table engine gives both emitters one behaviour.
static constexpr s2j::Field RecordStatus_fields[] = {
    S2J_FIELD(RecordStatus, Channel, "key field"),
    S2J_FIELD(RecordStatus, State, "value not interpreted"),
    S2J_FIELD(RecordStatus, FreeCapacity, "free room left for recording"),
};
static constexpr s2j::Key RecordStatus_keys[] = {
    S2J_GET_KEY(RecordStatus, Channel),
};
S2J_RECORD_GET(RecordStatus, Channel)

// "Pictrue" is the key's own spelling, in both directions.
static constexpr s2j::Field SnapshotCapabilitySet_fields[] = {
    S2J_FIELD(SnapshotCapabilitySet, SupportPictrueFormatList, "list held as text; not interpreted. The key is spelled \"Pictrue\" on purpose, in both directions"),
    S2J_FIELD(SnapshotCapabilitySet, MaxWidth, ""),
    S2J_FIELD(SnapshotCapabilitySet, MaxHeight, ""),
    S2J_FIELD(SnapshotCapabilitySet, MinWidth, ""),
    S2J_FIELD(SnapshotCapabilitySet, MinHeight, ""),
    S2J_FIELD(SnapshotCapabilitySet, MaxFramerate, ""),
    S2J_FIELD(SnapshotCapabilitySet, MinFramerate, ""),
    S2J_FIELD(SnapshotCapabilitySet, SupportSnapshot, "flag"),
};
S2J_RECORD(SnapshotCapabilitySet)

static constexpr s2j::Field SnapshotParameter_fields[] = {
    S2J_FIELD(SnapshotParameter, Channel, "key field"),
    S2J_FIELD(SnapshotParameter, PictureFormat, "value not interpreted"),
    S2J_FIELD(SnapshotParameter, PictureWidth, ""),
    S2J_FIELD(SnapshotParameter, PictureHeight, ""),
    S2J_FIELD(SnapshotParameter, Framerate, "snapshot rate; signed"),
    S2J_FIELD(SnapshotParameter, Mode, "value not interpreted"),
    S2J_FIELD(SnapshotParameter, FilePath, "path"),
    S2J_FIELD(SnapshotParameter, ScheduleTable, "schedule held as text; not interpreted"),
    S2J_FIELD(SnapshotParameter, DiskGroupID, "target disk group (GroupID of DiskGroupParameter)"),
    S2J_FIELD(SnapshotParameter, DiskFullAction, "value not interpreted"),
    S2J_FIELD(SnapshotParameter, ImageQuality, ""),
};
static constexpr s2j::Key SnapshotParameter_keys[] = {
    S2J_KEY(SnapshotParameter, Channel),
};
S2J_RECORD_KEYWORD_GET(SnapshotParameter, Channel)

static constexpr s2j::Field SnapshotStatus_fields[] = {
    S2J_FIELD(SnapshotStatus, Channel, "key field"),
    S2J_FIELD(SnapshotStatus, State, "value not interpreted"),
    S2J_FIELD(SnapshotStatus, FreeCapacity, "free room left for snapshots"),
};
static constexpr s2j::Key SnapshotStatus_keys[] = {
    S2J_GET_KEY(SnapshotStatus, Channel),
};
S2J_RECORD_GET(SnapshotStatus, Channel)

static constexpr s2j::Field SnapshotInputParameter_fields[] = {
    S2J_FIELD(SnapshotInputParameter, Channel, "channel to take the picture from"),
    S2J_FIELD(SnapshotInputParameter, PictureFormat, "value not interpreted"),
    S2J_FIELD(SnapshotInputParameter, PictureWidth, ""),
    S2J_FIELD(SnapshotInputParameter, PictureHeight, ""),
};
S2J_RECORD(SnapshotInputParameter)

static constexpr s2j::Field SnapshotResult_fields[] = {
    S2J_FIELD(SnapshotResult, Channel, "channel the picture was taken from"),
    S2J_FIELD(SnapshotResult, ImageURL, "where the picture can be fetched"),
    S2J_FIELD(SnapshotResult, ImageRetentionTime, "how long the picture is kept; signed"),
};
S2J_RECORD(SnapshotResult)
