// rec_system.cpp - device identity, time, time zone, NTP and scheduled-task
// records: their field tables, emitters, readers and keyword readers.
#include "s2j_internal.h"

static constexpr s2j::Field DeviceInfo_fields[] = {
    S2J_FIELD(DeviceInfo, ProductModel),
    S2J_FIELD(DeviceInfo, SerialNumber),
    S2J_FIELD(DeviceInfo, ProductName),
    S2J_FIELD(DeviceInfo, FirmwareVersion),
    S2J_FIELD(DeviceInfo, ReleaseDate),
    S2J_FIELD(DeviceInfo, SDKVersion),
    S2J_FIELD(DeviceInfo, ManufacturerName),
};
S2J_RECORD(DeviceInfo)

static constexpr s2j::Field DeviceCapabilitySet_fields[] = {
    S2J_FIELD(DeviceCapabilitySet, VideoInputChannelNumber),
    S2J_FIELD(DeviceCapabilitySet, VideoEncodeChannelNumber),
    S2J_FIELD(DeviceCapabilitySet, VideoEncodeStreamNumberPerChannel),
    S2J_FIELD(DeviceCapabilitySet, AudioInputChannelNumber),
    S2J_FIELD(DeviceCapabilitySet, AudioEncodeChannelNumber),
    S2J_FIELD(DeviceCapabilitySet, AudioEncodeStreamNumberPerChannel),
    S2J_FIELD(DeviceCapabilitySet, VideoOutputChannelNumber),
    S2J_FIELD(DeviceCapabilitySet, VideoDecodeChannelNumber),
    S2J_FIELD(DeviceCapabilitySet, AudioDecodeChannelNumber),
    S2J_FIELD(DeviceCapabilitySet, AudioOutputChannelNumber),
    S2J_FIELD(DeviceCapabilitySet, NetworkInterfaceNumber),
    S2J_FIELD(DeviceCapabilitySet, LocalStorageNumber),
    S2J_FIELD(DeviceCapabilitySet, BatteryNumber),
    S2J_FIELD(DeviceCapabilitySet, SerialPortNumber),
    S2J_FIELD(DeviceCapabilitySet, SupportEncodeModeSetting),
    S2J_FIELD(DeviceCapabilitySet, TotalVideoEncodeCapability),
};
S2J_RECORD(DeviceCapabilitySet)

static constexpr s2j::Field DeviceTime_fields[] = {
    S2J_FIELD(DeviceTime, UTCTime),
    S2J_FIELD(DeviceTime, Year),
    S2J_FIELD(DeviceTime, Month),
    S2J_FIELD(DeviceTime, Day),
    S2J_FIELD(DeviceTime, Hour),
    S2J_FIELD(DeviceTime, Minute),
    S2J_FIELD(DeviceTime, Second),
    S2J_FIELD(DeviceTime, Millisecond),
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
    S2J_FIELD(AdvancedParameter, EncodeWorkMode),
    S2J_FIELD(AdvancedParameter, EncodeChannelBitmap0),
};
S2J_RECORD(AdvancedParameter)

static constexpr s2j::Field TimeZone_fields[] = {
    S2J_FIELD(TimeZone, Name),
    S2J_FIELD(TimeZone, CityList),
    S2J_FIELD(TimeZone, UTCOffset),
    S2J_FIELD(TimeZone, SupportDaylightSavingTime),
};
S2J_RECORD(TimeZone)

static constexpr s2j::Field TimeZoneParameter_fields[] = {
    S2J_FIELD(TimeZoneParameter, TimeZone),
    S2J_FIELD(TimeZoneParameter, DSTEnable),
    S2J_FIELD(TimeZoneParameter, SavingTime),
    S2J_FIELD(TimeZoneParameter, TimePointType),
    S2J_FIELD(TimeZoneParameter, EnterMonth),
    S2J_FIELD(TimeZoneParameter, EnterWeekOfMonth),
    S2J_FIELD(TimeZoneParameter, EnterDayOfWeek),
    S2J_FIELD(TimeZoneParameter, EnterHour),
    S2J_FIELD(TimeZoneParameter, EnterMinute),
    S2J_FIELD(TimeZoneParameter, LeaveMonth),
    S2J_FIELD(TimeZoneParameter, LeaveWeekOfMonth),
    S2J_FIELD(TimeZoneParameter, LeaveDayOfWeek),
    S2J_FIELD(TimeZoneParameter, LeaveHour),
    S2J_FIELD(TimeZoneParameter, LeaveMinute),
};
S2J_RECORD(TimeZoneParameter)

static constexpr s2j::Field NTPServer_fields[] = {
    S2J_FIELD(NTPServer, Zone),
    S2J_FIELD(NTPServer, Domain),
    S2J_FIELD(NTPServer, Pool),
};
S2J_RECORD(NTPServer)

static constexpr s2j::Field NTPParameter_fields[] = {
    S2J_FIELD(NTPParameter, Enable),
    S2J_FIELD(NTPParameter, ServerDomain),
    S2J_FIELD(NTPParameter, ServerPort),
    S2J_FIELD(NTPParameter, MinPollInterval),
    S2J_FIELD(NTPParameter, MaxPollInterval),
};
S2J_RECORD(NTPParameter)

static constexpr s2j::Field CrontabCapabilitySet_fields[] = {
    S2J_FIELD(CrontabCapabilitySet, MaxTaskNumber),
};
S2J_RECORD(CrontabCapabilitySet)

static constexpr s2j::Field CrontabParameter_fields[] = {
    S2J_FIELD(CrontabParameter, Index),
    S2J_FIELD(CrontabParameter, Enable),
    S2J_FIELD(CrontabParameter, Minute),
    S2J_FIELD(CrontabParameter, Hour),
    S2J_FIELD(CrontabParameter, Day),
    S2J_FIELD(CrontabParameter, Month),
    S2J_FIELD(CrontabParameter, Weekday),
    S2J_FIELD(CrontabParameter, Command),
};
static constexpr s2j::Key CrontabParameter_keys[] = {
    S2J_KEY(CrontabParameter, Index),
};
S2J_RECORD_KEYWORD_GET(CrontabParameter, Index)

// ---- Users and passwords ----

static constexpr s2j::Field VerifyPasswordParameter_fields[] = {
    S2J_FIELD(VerifyPasswordParameter, UserName),
    S2J_FIELD(VerifyPasswordParameter, Password),
    S2J_FIELD(VerifyPasswordParameter, MD5Password),
};
S2J_RECORD(VerifyPasswordParameter)

static constexpr s2j::Field VerifyPasswordResult_fields[] = {
    S2J_FIELD(VerifyPasswordResult, PassValidation),
};
S2J_RECORD(VerifyPasswordResult)

static constexpr s2j::Field CreateUserParameter_fields[] = {
    S2J_FIELD(CreateUserParameter, UserName),
    S2J_FIELD(CreateUserParameter, Password),
    S2J_FIELD(CreateUserParameter, MD5Password),
};
S2J_RECORD(CreateUserParameter)

static constexpr s2j::Field DeleteUserParameter_fields[] = {
    S2J_FIELD(DeleteUserParameter, UserName),
};
S2J_RECORD(DeleteUserParameter)

static constexpr s2j::Field ModifyPasswordParameter_fields[] = {
    S2J_FIELD(ModifyPasswordParameter, UserName),
    S2J_FIELD(ModifyPasswordParameter, OldPassword),
    S2J_FIELD(ModifyPasswordParameter, NewPassword),
    S2J_FIELD(ModifyPasswordParameter, MD5Password),
};
S2J_RECORD(ModifyPasswordParameter)

static constexpr s2j::Field UserList_fields[] = {
    S2J_FIELD(UserList, UserName),
};
S2J_RECORD(UserList)
