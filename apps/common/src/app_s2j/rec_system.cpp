// rec_system.cpp - device identity, time, time zone, NTP and scheduled-task
// records: their field tables, emitters, readers and keyword readers.
#include "s2j_record_defs.h"

static constexpr s2j::Field DeviceInfo_fields[] = {
    S2J_FIELD(DeviceInfo, ProductModel, "model designation"),
    S2J_FIELD(DeviceInfo, SerialNumber, "serial number of this device"),
    S2J_FIELD(DeviceInfo, ProductName, "product name"),
    S2J_FIELD(DeviceInfo, FirmwareVersion, "version of the firmware"),
    S2J_FIELD(DeviceInfo, ReleaseDate, "held as text; not interpreted"),
    S2J_FIELD(DeviceInfo, SDKVersion, "version of the SDK the firmware is built with"),
    S2J_FIELD(DeviceInfo, ManufacturerName, "name of the maker"),
};
S2J_RECORD(DeviceInfo)

static constexpr s2j::Field DeviceCapabilitySet_fields[] = {
    S2J_FIELD(DeviceCapabilitySet, VideoInputChannelNumber, "number of video input channels"),
    S2J_FIELD(DeviceCapabilitySet, VideoEncodeChannelNumber, "number of video encode channels"),
    S2J_FIELD(DeviceCapabilitySet, VideoEncodeStreamNumberPerChannel,
              "number of encoded video streams per encode channel"),
    S2J_FIELD(DeviceCapabilitySet, AudioInputChannelNumber, "number of audio input channels"),
    S2J_FIELD(DeviceCapabilitySet, AudioEncodeChannelNumber, "number of audio encode channels"),
    S2J_FIELD(DeviceCapabilitySet, AudioEncodeStreamNumberPerChannel,
              "number of encoded audio streams per encode channel"),
    S2J_FIELD(DeviceCapabilitySet, VideoOutputChannelNumber, "number of video output channels"),
    S2J_FIELD(DeviceCapabilitySet, VideoDecodeChannelNumber, "number of video decode channels"),
    S2J_FIELD(DeviceCapabilitySet, AudioDecodeChannelNumber, "number of audio decode channels"),
    S2J_FIELD(DeviceCapabilitySet, AudioOutputChannelNumber, "number of audio output channels"),
    S2J_FIELD(DeviceCapabilitySet, NetworkInterfaceNumber, "number of network interfaces"),
    S2J_FIELD(DeviceCapabilitySet, LocalStorageNumber, "number of local storage devices"),
    S2J_FIELD(DeviceCapabilitySet, BatteryNumber, "number of batteries"),
    S2J_FIELD(DeviceCapabilitySet, SerialPortNumber, "number of serial ports"),
    S2J_FIELD(DeviceCapabilitySet, SupportEncodeModeSetting,
              "1 when the encoding mode can be set (\"EncodeWorkMode\" of AdvancedParameter), 0 when not; unsigned"),
    S2J_FIELD(DeviceCapabilitySet, TotalVideoEncodeCapability,
              "total video encoding capacity of the device; not interpreted"),
};
S2J_RECORD(DeviceCapabilitySet)

static constexpr s2j::Field DeviceTime_fields[] = {
    S2J_FIELD(DeviceTime, UTCTime, "signed, unlike the broken-down fields"),
    S2J_FIELD(DeviceTime, Year, "year; signed"),
    S2J_FIELD(DeviceTime, Month, "month of the year; unsigned, not range-checked"),
    S2J_FIELD(DeviceTime, Day, "day of the month; unsigned, not range-checked"),
    S2J_FIELD(DeviceTime, Hour, "hour of the day; unsigned, not range-checked"),
    S2J_FIELD(DeviceTime, Minute, "minute of the hour; unsigned, not range-checked"),
    S2J_FIELD(DeviceTime, Second, "second of the minute; unsigned, not range-checked"),
    S2J_FIELD(DeviceTime, Millisecond, "millisecond of the second; unsigned, not range-checked"),
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
    S2J_FIELD(AdvancedParameter, EncodeWorkMode, "encoding work mode as a code; not interpreted"),
    S2J_FIELD(AdvancedParameter, EncodeChannelBitmap0, "bit set of encode channels; the trailing 0 is part of the key"),
};
S2J_RECORD(AdvancedParameter)

static constexpr s2j::Field TimeZone_fields[] = {
    S2J_FIELD(TimeZone, Name, "name of the time zone"),
    S2J_FIELD(TimeZone, CityList, "list held as text; not interpreted"),
    S2J_FIELD(TimeZone, UTCOffset, "offset of the zone from UTC; signed; unit not fixed by the library"),
    S2J_FIELD(TimeZone, SupportDaylightSavingTime, "1 when the zone has daylight saving time, 0 when not"),
};
S2J_RECORD(TimeZone)

static constexpr s2j::Field TimeZoneParameter_fields[] = {
    S2J_FIELD(TimeZoneParameter, TimeZone, "name of the zone in effect, as \"Name\" of a TimeZone"),
    S2J_FIELD(TimeZoneParameter, DSTEnable, "1 applies daylight saving time, 0 does not"),
    S2J_FIELD(TimeZoneParameter, SavingTime,
              "how far clocks move for daylight saving time; unit not fixed by the library"),
    S2J_FIELD(TimeZoneParameter, TimePointType, "how the Enter and Leave points are given, as a code; not interpreted"),
    S2J_FIELD(TimeZoneParameter, EnterMonth, "month in which daylight saving time begins"),
    S2J_FIELD(TimeZoneParameter, EnterWeekOfMonth, "week of that month in which it begins"),
    S2J_FIELD(TimeZoneParameter, EnterDayOfWeek, "day of that week on which it begins"),
    S2J_FIELD(TimeZoneParameter, EnterHour, "hour at which it begins"),
    S2J_FIELD(TimeZoneParameter, EnterMinute, "minute at which it begins"),
    S2J_FIELD(TimeZoneParameter, LeaveMonth, "month in which daylight saving time ends"),
    S2J_FIELD(TimeZoneParameter, LeaveWeekOfMonth, "week of that month in which it ends"),
    S2J_FIELD(TimeZoneParameter, LeaveDayOfWeek, "day of that week on which it ends"),
    S2J_FIELD(TimeZoneParameter, LeaveHour, "hour at which it ends"),
    S2J_FIELD(TimeZoneParameter, LeaveMinute, "minute at which it ends"),
};
S2J_RECORD(TimeZoneParameter)

static constexpr s2j::Field NTPServer_fields[] = {
    S2J_FIELD(NTPServer, Zone, "region the servers serve, as text"),
    S2J_FIELD(NTPServer, Domain, "domain name of the server"),
    S2J_FIELD(NTPServer, Pool, "list held as text; not interpreted; the largest bounded string of this subsystem"),
};
S2J_RECORD(NTPServer)

static constexpr s2j::Field NTPParameter_fields[] = {
    S2J_FIELD(NTPParameter, Enable, "1 sets the clock by NTP, 0 does not"),
    S2J_FIELD(NTPParameter, ServerDomain, "domain name or address of the NTP server"),
    S2J_FIELD(NTPParameter, ServerPort, "UDP port of the NTP server"),
    S2J_FIELD(NTPParameter, MinPollInterval,
              "shortest interval between polls of the server; signed; unit not fixed by the library"),
    S2J_FIELD(NTPParameter, MaxPollInterval,
              "longest interval between polls of the server; signed; unit not fixed by the library"),
};
S2J_RECORD(NTPParameter)

static constexpr s2j::Field CrontabCapabilitySet_fields[] = {
    S2J_FIELD(CrontabCapabilitySet, MaxTaskNumber, "greatest number of scheduled tasks"),
};
S2J_RECORD(CrontabCapabilitySet)

static constexpr s2j::Field CrontabParameter_fields[] = {
    S2J_FIELD(CrontabParameter, Index, "number of the task; key field"),
    S2J_FIELD(CrontabParameter, Enable, "1 runs the task at its times, 0 keeps it without running it"),
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
    S2J_FIELD(VerifyPasswordParameter, UserName, "name of the user whose password is checked"),
    S2J_FIELD(VerifyPasswordParameter, Password, "carried unchanged; not interpreted"),
    S2J_FIELD(VerifyPasswordParameter, MD5Password,
              "whether \"Password\" is an MD5 digest; the values' meaning is the caller's, carried unchanged"),
};
S2J_RECORD(VerifyPasswordParameter)

static constexpr s2j::Field VerifyPasswordResult_fields[] = {
    S2J_FIELD(VerifyPasswordResult, PassValidation, "result of the check"),
};
S2J_RECORD(VerifyPasswordResult)

static constexpr s2j::Field CreateUserParameter_fields[] = {
    S2J_FIELD(CreateUserParameter, UserName, "name of the new user"),
    S2J_FIELD(CreateUserParameter, Password, "password of the new user (or its digest), carried unchanged"),
    S2J_FIELD(CreateUserParameter, MD5Password,
              "whether \"Password\" is an MD5 digest; the values' meaning is the caller's, carried unchanged"),
};
S2J_RECORD(CreateUserParameter)

static constexpr s2j::Field DeleteUserParameter_fields[] = {
    S2J_FIELD(DeleteUserParameter, UserName, "name of the user to delete"),
};
S2J_RECORD(DeleteUserParameter)

static constexpr s2j::Field ModifyPasswordParameter_fields[] = {
    S2J_FIELD(ModifyPasswordParameter, UserName, "name of the user whose password changes"),
    S2J_FIELD(ModifyPasswordParameter, OldPassword, "password now in force (or its digest), carried unchanged"),
    S2J_FIELD(ModifyPasswordParameter, NewPassword, "password to set (or its digest), carried unchanged"),
    S2J_FIELD(ModifyPasswordParameter, MD5Password,
              "whether the passwords are MD5 digests; the values' meaning is the caller's, carried unchanged"),
};
S2J_RECORD(ModifyPasswordParameter)

static constexpr s2j::Field UserList_fields[] = {
    S2J_FIELD(UserList, UserName, "name of one user"),
};
S2J_RECORD(UserList)
