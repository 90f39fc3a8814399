// rec_storage.cpp - records of storage interfaces and devices, disk groups,
// recording and snapshots: their field tables, emitters, readers and keyword
// readers.
#include "s2j_internal.h"

// Emitter and reader only: no family is built on this record.
static constexpr s2j::Field StorageInterface_fields[] = {
    S2J_FIELD(StorageInterface, Name),
    S2J_FIELD(StorageInterface, Type),
    S2J_FIELD(StorageInterface, Alias),
    S2J_FIELD(StorageInterface, Removable),
    S2J_FIELD(StorageInterface, Expansible),
    S2J_FIELD(StorageInterface, BusStandard),
    S2J_FIELD(StorageInterface, ProtocolType),
    S2J_FIELD(StorageInterface, BusBandwidth),
    S2J_FIELD(StorageInterface, MaxExpansionPort),
    S2J_FIELD(StorageInterface, BusID),
};
S2J_RECORD(StorageInterface)

static constexpr s2j::Field StorageDevice_fields[] = {
    S2J_FIELD(StorageDevice, Name),
    S2J_FIELD(StorageDevice, Type),
    S2J_FIELD(StorageDevice, Alias),
    S2J_FIELD(StorageDevice, Removable),
    S2J_FIELD(StorageDevice, SupportedFileSystemTypeList),
    S2J_FIELD(StorageDevice, SupportQuickFormat),
};
S2J_RECORD(StorageDevice)

// A live state: the single-key reader is offered to callers; there is no
// keyed update.
static constexpr s2j::Field StorageDeviceStatus_fields[] = {
    S2J_FIELD(StorageDeviceStatus, StorageDeviceName),
    S2J_FIELD(StorageDeviceStatus, IsPlugged),
    S2J_FIELD(StorageDeviceStatus, Formatted),
    S2J_FIELD(StorageDeviceStatus, FileSystemType),
    S2J_FIELD(StorageDeviceStatus, Mounted),
    S2J_FIELD(StorageDeviceStatus, MountPoint),
    S2J_FIELD(StorageDeviceStatus, TotalCapacity),
    S2J_FIELD(StorageDeviceStatus, FreeCapacity),
    S2J_FIELD(StorageDeviceStatus, State),
    S2J_FIELD(StorageDeviceStatus, PrimaryPartition),
    S2J_FIELD(StorageDeviceStatus, DeviceNodeName),
    S2J_FIELD(StorageDeviceStatus, UUID),
};
static constexpr s2j::Key StorageDeviceStatus_keys[] = {
    S2J_GET_KEY(StorageDeviceStatus, StorageDeviceName),
};
S2J_RECORD_GET(StorageDeviceStatus, StorageDeviceName)

static constexpr s2j::Field DiskGroupCapabilitySet_fields[] = {
    S2J_FIELD(DiskGroupCapabilitySet, MaxDiskGroupNumber),
};
S2J_RECORD(DiskGroupCapabilitySet)

static constexpr s2j::Field DiskGroupParameter_fields[] = {
    S2J_FIELD(DiskGroupParameter, StorageDeviceName),
    S2J_FIELD(DiskGroupParameter, GroupID),
};
static constexpr s2j::Key DiskGroupParameter_keys[] = {
    S2J_KEY(DiskGroupParameter, StorageDeviceName),
};
S2J_RECORD_KEYWORD_GET(DiskGroupParameter, StorageDeviceName)

static constexpr s2j::Field FormatDiskParameter_fields[] = {
    S2J_FIELD(FormatDiskParameter, StorageDeviceName),
    S2J_FIELD(FormatDiskParameter, FileSystemType),
    S2J_FIELD(FormatDiskParameter, PartitionName),
    S2J_FIELD(FormatDiskParameter, QuickFormat),
    S2J_FIELD(FormatDiskParameter, AllocationUnitSize),
};
S2J_RECORD(FormatDiskParameter)

// A single record that still has the single-key reader, for callers that
// pick the device out of a progress report.
static constexpr s2j::Field FormatDiskProgress_fields[] = {
    S2J_FIELD(FormatDiskProgress, StorageDeviceName),
    S2J_FIELD(FormatDiskProgress, FormatDiskProgressPercent),
    S2J_FIELD(FormatDiskProgress, PartitionName),
};
static constexpr s2j::Key FormatDiskProgress_keys[] = {
    S2J_GET_KEY(FormatDiskProgress, StorageDeviceName),
};
S2J_RECORD_GET(FormatDiskProgress, StorageDeviceName)

static constexpr s2j::Field RemoveStorageDeviceParameter_fields[] = {
    S2J_FIELD(RemoveStorageDeviceParameter, StorageDeviceName),
};
S2J_RECORD(RemoveStorageDeviceParameter)

static constexpr s2j::Field RecordCapabilitySet_fields[] = {
    S2J_FIELD(RecordCapabilitySet, SupportedFileFormatList),
    S2J_FIELD(RecordCapabilitySet, MaxFileDuration),
    S2J_FIELD(RecordCapabilitySet, MinFileDuration),
    S2J_FIELD(RecordCapabilitySet, SupportedRecordTypeList),
    S2J_FIELD(RecordCapabilitySet, SupportRecord),
};
S2J_RECORD(RecordCapabilitySet)

static constexpr s2j::Field RecordParameter_fields[] = {
    S2J_FIELD(RecordParameter, Channel),
    S2J_FIELD(RecordParameter, StreamIndex),
    S2J_FIELD(RecordParameter, StoreAudio),
    S2J_FIELD(RecordParameter, FileDuration),
    S2J_FIELD(RecordParameter, FileFormat),
    S2J_FIELD(RecordParameter, Mode),
    S2J_FIELD(RecordParameter, FilePath),
    S2J_FIELD(RecordParameter, ScheduleTable),
    S2J_FIELD(RecordParameter, DiskGroupID),
    S2J_FIELD(RecordParameter, DiskFullAction),
};
static constexpr s2j::Key RecordParameter_keys[] = {
    S2J_KEY(RecordParameter, Channel),
};
S2J_RECORD_KEYWORD_GET(RecordParameter, Channel)

// RecordStatus and SnapshotStatus are three uint32 words under the same keys;
// the table engine gives both emitters one behaviour.
static constexpr s2j::Field RecordStatus_fields[] = {
    S2J_FIELD(RecordStatus, Channel),
    S2J_FIELD(RecordStatus, State),
    S2J_FIELD(RecordStatus, FreeCapacity),
};
static constexpr s2j::Key RecordStatus_keys[] = {
    S2J_GET_KEY(RecordStatus, Channel),
};
S2J_RECORD_GET(RecordStatus, Channel)

// "Pictrue" is the key's own spelling, in both directions.
static constexpr s2j::Field SnapshotCapabilitySet_fields[] = {
    S2J_FIELD(SnapshotCapabilitySet, SupportPictrueFormatList),
    S2J_FIELD(SnapshotCapabilitySet, MaxWidth),
    S2J_FIELD(SnapshotCapabilitySet, MaxHeight),
    S2J_FIELD(SnapshotCapabilitySet, MinWidth),
    S2J_FIELD(SnapshotCapabilitySet, MinHeight),
    S2J_FIELD(SnapshotCapabilitySet, MaxFramerate),
    S2J_FIELD(SnapshotCapabilitySet, MinFramerate),
    S2J_FIELD(SnapshotCapabilitySet, SupportSnapshot),
};
S2J_RECORD(SnapshotCapabilitySet)

static constexpr s2j::Field SnapshotParameter_fields[] = {
    S2J_FIELD(SnapshotParameter, Channel),
    S2J_FIELD(SnapshotParameter, PictureFormat),
    S2J_FIELD(SnapshotParameter, PictureWidth),
    S2J_FIELD(SnapshotParameter, PictureHeight),
    S2J_FIELD(SnapshotParameter, Framerate),
    S2J_FIELD(SnapshotParameter, Mode),
    S2J_FIELD(SnapshotParameter, FilePath),
    S2J_FIELD(SnapshotParameter, ScheduleTable),
    S2J_FIELD(SnapshotParameter, DiskGroupID),
    S2J_FIELD(SnapshotParameter, DiskFullAction),
    S2J_FIELD(SnapshotParameter, ImageQuality),
};
static constexpr s2j::Key SnapshotParameter_keys[] = {
    S2J_KEY(SnapshotParameter, Channel),
};
S2J_RECORD_KEYWORD_GET(SnapshotParameter, Channel)

static constexpr s2j::Field SnapshotStatus_fields[] = {
    S2J_FIELD(SnapshotStatus, Channel),
    S2J_FIELD(SnapshotStatus, State),
    S2J_FIELD(SnapshotStatus, FreeCapacity),
};
static constexpr s2j::Key SnapshotStatus_keys[] = {
    S2J_GET_KEY(SnapshotStatus, Channel),
};
S2J_RECORD_GET(SnapshotStatus, Channel)

static constexpr s2j::Field SnapshotInputParameter_fields[] = {
    S2J_FIELD(SnapshotInputParameter, Channel),
    S2J_FIELD(SnapshotInputParameter, PictureFormat),
    S2J_FIELD(SnapshotInputParameter, PictureWidth),
    S2J_FIELD(SnapshotInputParameter, PictureHeight),
};
S2J_RECORD(SnapshotInputParameter)

static constexpr s2j::Field SnapshotResult_fields[] = {
    S2J_FIELD(SnapshotResult, Channel),
    S2J_FIELD(SnapshotResult, ImageURL),
    S2J_FIELD(SnapshotResult, ImageRetentionTime),
};
S2J_RECORD(SnapshotResult)
