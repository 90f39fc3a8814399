// rec_system.cpp - device identity, time, time zone, NTP and scheduled-task
// records: their field tables, emitters, readers and keyword readers.
#include "s2j_internal.h"

static constexpr s2j::Field DeviceInfo_fields[] = {
    S2J_FIELD(DeviceInfo, ProductModel, ""),
    S2J_FIELD(DeviceInfo, SerialNumber, ""),
    S2J_FIELD(DeviceInfo, ProductName, ""),
    S2J_FIELD(DeviceInfo, FirmwareVersion, ""),
    S2J_FIELD(DeviceInfo, ReleaseDate, "held as text; not interpreted"),
    S2J_FIELD(DeviceInfo, SDKVersion, ""),
    S2J_FIELD(DeviceInfo, ManufacturerName, ""),
};
S2J_RECORD(DeviceInfo)

static constexpr s2j::Field DeviceCapabilitySet_fields[] = {
    S2J_FIELD(DeviceCapabilitySet, VideoInputChannelNumber, "count"),
    S2J_FIELD(DeviceCapabilitySet, VideoEncodeChannelNumber, "count"),
    S2J_FIELD(DeviceCapabilitySet, VideoEncodeStreamNumberPerChannel, "count per channel"),
    S2J_FIELD(DeviceCapabilitySet, AudioInputChannelNumber, "count"),
    S2J_FIELD(DeviceCapabilitySet, AudioEncodeChannelNumber, "count"),
    S2J_FIELD(DeviceCapabilitySet, AudioEncodeStreamNumberPerChannel, "count per channel"),
    S2J_FIELD(DeviceCapabilitySet, VideoOutputChannelNumber, "count"),
    S2J_FIELD(DeviceCapabilitySet, VideoDecodeChannelNumber, "count"),
    S2J_FIELD(DeviceCapabilitySet, AudioDecodeChannelNumber, "count"),
    S2J_FIELD(DeviceCapabilitySet, AudioOutputChannelNumber, "count"),
    S2J_FIELD(DeviceCapabilitySet, NetworkInterfaceNumber, "count"),
    S2J_FIELD(DeviceCapabilitySet, LocalStorageNumber, "count"),
    S2J_FIELD(DeviceCapabilitySet, BatteryNumber, "count"),
    S2J_FIELD(DeviceCapabilitySet, SerialPortNumber, "count"),
    S2J_FIELD(DeviceCapabilitySet, SupportEncodeModeSetting, "flag"),
    S2J_FIELD(DeviceCapabilitySet, TotalVideoEncodeCapability, "not interpreted"),
};
S2J_RECORD(DeviceCapabilitySet)

static constexpr s2j::Field DeviceTime_fields[] = {
    S2J_FIELD(DeviceTime, UTCTime, "signed, unlike the broken-down fields"),
    S2J_FIELD(DeviceTime, Year, "signed"),
    S2J_FIELD(DeviceTime, Month, ""),
    S2J_FIELD(DeviceTime, Day, ""),
    S2J_FIELD(DeviceTime, Hour, ""),
    S2J_FIELD(DeviceTime, Minute, ""),
    S2J_FIELD(DeviceTime, Second, ""),
    S2J_FIELD(DeviceTime, Millisecond, ""),
};
// Every field is a key: the keyword reader requires all eight.
static constexpr s2j::Key DeviceTime_keys[] = {
    S2J_KEY(DeviceTime, UTCTime),
    S2J_KEY(DeviceTime, Year),
    S2J_KEY(DeviceTime, Month),
    S2J_KEY(DeviceTime, Day),
    S2J_KEY(DeviceTime, Hour),
    S2J_KEY(DeviceTime, Minute),
    S2J_KEY(DeviceTime, Second),
    S2J_KEY(DeviceTime, Millisecond),
};
S2J_RECORD_KEYWORD(DeviceTime)

static constexpr s2j::Field AdvancedParameter_fields[] = {
    S2J_FIELD(AdvancedParameter, EncodeWorkMode, "not interpreted"),
    S2J_FIELD(AdvancedParameter, EncodeChannelBitmap0, "bit set of encode channels; the trailing 0 is part of the key"),
};
S2J_RECORD(AdvancedParameter)

static constexpr s2j::Field TimeZone_fields[] = {
    S2J_FIELD(TimeZone, Name, ""),
    S2J_FIELD(TimeZone, CityList, "list held as text; not interpreted"),
    S2J_FIELD(TimeZone, UTCOffset, "signed offset"),
    S2J_FIELD(TimeZone, SupportDaylightSavingTime, "flag"),
};
S2J_RECORD(TimeZone)

static constexpr s2j::Field TimeZoneParameter_fields[] = {
    S2J_FIELD(TimeZoneParameter, TimeZone, ""),
    S2J_FIELD(TimeZoneParameter, DSTEnable, "flag"),
    S2J_FIELD(TimeZoneParameter, SavingTime, ""),
    S2J_FIELD(TimeZoneParameter, TimePointType, ""),
    S2J_FIELD(TimeZoneParameter, EnterMonth, ""),
    S2J_FIELD(TimeZoneParameter, EnterWeekOfMonth, ""),
    S2J_FIELD(TimeZoneParameter, EnterDayOfWeek, ""),
    S2J_FIELD(TimeZoneParameter, EnterHour, ""),
    S2J_FIELD(TimeZoneParameter, EnterMinute, ""),
    S2J_FIELD(TimeZoneParameter, LeaveMonth, ""),
    S2J_FIELD(TimeZoneParameter, LeaveWeekOfMonth, ""),
    S2J_FIELD(TimeZoneParameter, LeaveDayOfWeek, ""),
    S2J_FIELD(TimeZoneParameter, LeaveHour, ""),
    S2J_FIELD(TimeZoneParameter, LeaveMinute, ""),
};
S2J_RECORD(TimeZoneParameter)

static constexpr s2j::Field NTPServer_fields[] = {
    S2J_FIELD(NTPServer, Zone, ""),
    S2J_FIELD(NTPServer, Domain, ""),
    S2J_FIELD(NTPServer, Pool, "list held as text; not interpreted; the largest bounded string of this subsystem"),
};
S2J_RECORD(NTPServer)

static constexpr s2j::Field NTPParameter_fields[] = {
    S2J_FIELD(NTPParameter, Enable, "flag"),
    S2J_FIELD(NTPParameter, ServerDomain, ""),
    S2J_FIELD(NTPParameter, ServerPort, ""),
    S2J_FIELD(NTPParameter, MinPollInterval, "signed"),
    S2J_FIELD(NTPParameter, MaxPollInterval, "signed"),
};
S2J_RECORD(NTPParameter)

static constexpr s2j::Field CrontabCapabilitySet_fields[] = {
    S2J_FIELD(CrontabCapabilitySet, MaxTaskNumber, "count"),
};
S2J_RECORD(CrontabCapabilitySet)

static constexpr s2j::Field CrontabParameter_fields[] = {
    S2J_FIELD(CrontabParameter, Index, "key"),
    S2J_FIELD(CrontabParameter, Enable, "flag"),
    S2J_FIELD(CrontabParameter, Minute, "time field held as text; not interpreted"),
    S2J_FIELD(CrontabParameter, Hour, "time field held as text; not interpreted"),
    S2J_FIELD(CrontabParameter, Day, "time field held as text; not interpreted"),
    S2J_FIELD(CrontabParameter, Month, "time field held as text; not interpreted"),
    S2J_FIELD(CrontabParameter, Weekday, "time field held as text; not interpreted"),
    S2J_FIELD(CrontabParameter, Command, "command line held as text; not run by the library"),
};
static constexpr s2j::Key CrontabParameter_keys[] = {
    S2J_KEY(CrontabParameter, Index),
};
S2J_RECORD_KEYWORD_GET(CrontabParameter, Index)

// ---- Users and passwords ----

static constexpr s2j::Field VerifyPasswordParameter_fields[] = {
    S2J_FIELD(VerifyPasswordParameter, UserName, ""),
    S2J_FIELD(VerifyPasswordParameter, Password, "carried unchanged; not interpreted"),
    S2J_FIELD(VerifyPasswordParameter, MD5Password, "flag; not interpreted"),
};
S2J_RECORD(VerifyPasswordParameter)

static constexpr s2j::Field VerifyPasswordResult_fields[] = {
    S2J_FIELD(VerifyPasswordResult, PassValidation, "result of the check"),
};
S2J_RECORD(VerifyPasswordResult)

static constexpr s2j::Field CreateUserParameter_fields[] = {
    S2J_FIELD(CreateUserParameter, UserName, ""),
    S2J_FIELD(CreateUserParameter, Password, "carried unchanged"),
    S2J_FIELD(CreateUserParameter, MD5Password, "flag"),
};
S2J_RECORD(CreateUserParameter)

static constexpr s2j::Field DeleteUserParameter_fields[] = {
    S2J_FIELD(DeleteUserParameter, UserName, ""),
};
S2J_RECORD(DeleteUserParameter)

static constexpr s2j::Field ModifyPasswordParameter_fields[] = {
    S2J_FIELD(ModifyPasswordParameter, UserName, ""),
    S2J_FIELD(ModifyPasswordParameter, OldPassword, "carried unchanged"),
    S2J_FIELD(ModifyPasswordParameter, NewPassword, "carried unchanged"),
    S2J_FIELD(ModifyPasswordParameter, MD5Password, "flag"),
};
S2J_RECORD(ModifyPasswordParameter)

static constexpr s2j::Field UserList_fields[] = {
    S2J_FIELD(UserList, UserName, ""),
};
S2J_RECORD(UserList)
