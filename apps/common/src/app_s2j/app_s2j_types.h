/*
 * app_s2j_types.h - the record types of libapp_s2j.
 *
 * Every record is a plain struct whose members are named exactly as the JSON
 * keys of its object, in the order in which they are emitted.  Member kinds:
 *   int32_t / uint32_t / uint16_t   a JSON integer
 *   char Key[N]                     a JSON string of at most N-1 characters on
 *                                   input; N characters (no NUL) are emitted whole
 * A keyword record (<T>Keyword) holds the key fields that identify an element
 * of a record array in a keyed update; a string key is always char[64].
 *
 * The layout is the natural C layout of these members: no padding members,
 * no packing.  The library checks each struct against its field table when it
 * is built.
 */
#ifndef APP_S2J_TYPES_H
#define APP_S2J_TYPES_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* ======================================================================
 * System, time and account records
 * ====================================================================== */

typedef struct {
    char ProductModel[64];
    char SerialNumber[64];
    char ProductName[64];
    char FirmwareVersion[64];
    char ReleaseDate[64];
    char SDKVersion[64];
    char ManufacturerName[64];
} DeviceInfo;

typedef struct {
    uint32_t VideoInputChannelNumber;
    uint32_t VideoEncodeChannelNumber;
    uint32_t VideoEncodeStreamNumberPerChannel;
    uint32_t AudioInputChannelNumber;
    uint32_t AudioEncodeChannelNumber;
    uint32_t AudioEncodeStreamNumberPerChannel;
    uint32_t VideoOutputChannelNumber;
    uint32_t VideoDecodeChannelNumber;
    uint32_t AudioDecodeChannelNumber;
    uint32_t AudioOutputChannelNumber;
    uint32_t NetworkInterfaceNumber;
    uint32_t LocalStorageNumber;
    uint32_t BatteryNumber;
    uint32_t SerialPortNumber;
    uint32_t SupportEncodeModeSetting;
    uint32_t TotalVideoEncodeCapability;
} DeviceCapabilitySet;

typedef struct {
    int32_t UTCTime;
    int32_t Year;
    uint32_t Month;
    uint32_t Day;
    uint32_t Hour;
    uint32_t Minute;
    uint32_t Second;
    uint32_t Millisecond;
} DeviceTime;

/* All eight fields of DeviceTime are its keys. */
typedef struct {
    int32_t UTCTime;
    int32_t Year;
    uint32_t Month;
    uint32_t Day;
    uint32_t Hour;
    uint32_t Minute;
    uint32_t Second;
    uint32_t Millisecond;
} DeviceTimeKeyword;

typedef struct {
    uint32_t EncodeWorkMode;
    uint32_t EncodeChannelBitmap0;
} AdvancedParameter;

typedef struct {
    char Name[64];
    char CityList[256];
    int32_t UTCOffset;
    int32_t SupportDaylightSavingTime;
} TimeZone;

typedef struct {
    char TimeZone[64];
    int32_t DSTEnable;
    uint32_t SavingTime;
    uint32_t TimePointType;
    uint32_t EnterMonth;
    uint32_t EnterWeekOfMonth;
    uint32_t EnterDayOfWeek;
    uint32_t EnterHour;
    uint32_t EnterMinute;
    uint32_t LeaveMonth;
    uint32_t LeaveWeekOfMonth;
    uint32_t LeaveDayOfWeek;
    uint32_t LeaveHour;
    uint32_t LeaveMinute;
} TimeZoneParameter;

typedef struct {
    char Zone[64];
    char Domain[256];
    char Pool[2048];
} NTPServer;

typedef struct {
    int32_t Enable;
    char ServerDomain[256];
    uint32_t ServerPort;
    int32_t MinPollInterval;
    int32_t MaxPollInterval;
} NTPParameter;

typedef struct {
    uint32_t MaxTaskNumber;
} CrontabCapabilitySet;

typedef struct {
    uint32_t Index;
    int32_t Enable;
    char Minute[256];
    char Hour[64];
    char Day[256];
    char Month[64];
    char Weekday[64];
    char Command[256];
} CrontabParameter;

typedef struct {
    uint32_t Index;
} CrontabParameterKeyword;


/* ======================================================================
 * Media input and encoding records
 * ====================================================================== */


/* ======================================================================
 * Streaming records
 * ====================================================================== */


/* ======================================================================
 * Network and serial records
 * ====================================================================== */


/* ======================================================================
 * Storage, recording and snapshot records
 * ====================================================================== */


/* ======================================================================
 * Output and display records
 * ====================================================================== */


#ifdef __cplusplus
}
#endif

#endif /* APP_S2J_TYPES_H */
