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

/* Streaming output and what each transport can do. */

typedef struct {
    int32_t SupportRtspStreaming;
    int32_t SupportRtmpStreaming;
    int32_t SupportUdpStreaming;
    int32_t SupportHttpStreaming;
    int32_t SupportSrtStreaming;
    uint32_t MaxStreamingNumber;
    uint32_t MaxStreamingBandwidth;
    uint32_t SupportStreamingProtocolNumber;
} StreamingOutputCapabilitySet;

typedef struct {
    int32_t SupportRtspOverHttp;
    int32_t SupportAuthentication;
    uint32_t StreamingNumberPerChannel;
    char SupportedStreamTypeList[256];
} RtspCapabilitySet;

typedef struct {
    int32_t SupportEncryptedData;
    int32_t SupportTunneledTraffic;
    int32_t SupportRtmpOverSSL;
    int32_t SupportH265Codec;
    int32_t SupportRtmpServer;
    uint32_t StreamingNumberPerChannel;
} RtmpCapabilitySet;

/* The list comes first here, unlike in the other capability sets. */
typedef struct {
    char SupportedStreamTypeList[256];
    int32_t SupportRtpPacket;
    uint32_t StreamingNumberPerChannel;
    int32_t SupportBandwidthControl;
} UdpCapabilitySet;

typedef struct {
    uint32_t StreamingNumberPerChannel;
    int32_t SupportTSOverHttp;
    int32_t SupportFLVOverHttp;
    int32_t SupportHLS;
    uint32_t MaxHLSCacheFileNumber;
    uint32_t MaxHLSCacheFileDuration;
    uint32_t MaxHLSTotalCacheDuration;
} HttpStreamingCapabilitySet;

typedef struct {
    uint32_t StreamingNumberPerChannel;
    char SupportedModeList[256];
} SrtStreamingCapabilitySet;

typedef struct {
    int32_t RtspStreamingEnable;
    int32_t RtmpStreamingEnable;
    int32_t UdpStreamingEnable;
    int32_t HttpStreamingEnable;
    int32_t SrtStreamingEnable;
} StreamingOutputParameter;

/* Protocol streams: array elements keyed by Channel and Index. */

typedef struct {
    uint32_t Channel;
    uint32_t Index;
    int32_t Enable;
    uint32_t StreamIndex;
    uint32_t StreamType;
    char StreamPath[256];
} RtspStreamingParameter;

typedef struct {
    uint32_t Channel;
    uint32_t Index;
} RtspStreamingParameterKeyword;

typedef struct {
    uint32_t Channel;
    uint32_t Index;
    int32_t Enable;
    uint32_t StreamIndex;
    uint32_t StreamType;
    char StreamPath[256];
} RtmpStreamingParameter;

typedef struct {
    uint32_t Channel;
    uint32_t Index;
} RtmpStreamingParameterKeyword;

typedef struct {
    uint32_t Channel;
    uint32_t Index;
    int32_t Enable;
    uint32_t StreamIndex;
    uint32_t StreamType;
    int32_t RtpPacket;
    char DestinationIP[48];
    uint32_t DestinationPort;
    int32_t BandwidthControlEnable;
    uint32_t BandwidthControlLimit;
    uint32_t BandwidthControlWindowSize;
    uint32_t BandwidthControlPriority;
    uint32_t BandwidthControlSmoothTime;
    uint32_t BandwidthControlSmoothSize;
} UdpStreamingParameter;

typedef struct {
    uint32_t Channel;
    uint32_t Index;
} UdpStreamingParameterKeyword;

/* No Enable and no StreamType: three delivery enables instead. */
typedef struct {
    uint32_t Channel;
    uint32_t Index;
    int32_t FLVEnable;
    int32_t TSEnable;
    int32_t HLSEnable;
    uint32_t StreamIndex;
    uint32_t HLSCacheFileNumber;
    uint32_t HLSCacheFileDuration;
    uint32_t HLSTotalCacheDuration;
    char SessionName[256];
} HttpStreamingParameter;

typedef struct {
    uint32_t Channel;
    uint32_t Index;
} HttpStreamingParameterKeyword;

typedef struct {
    uint32_t Channel;
    uint32_t Index;
    int32_t Enable;
    uint32_t StreamIndex;
    uint32_t Mode;
    uint32_t Port;
    char TargetIP[48];
    uint32_t BandwidthOverheadPercent;
    char StreamKeyName[256];
    char Passphrase[64];
    uint32_t AESKeySize;
    char TargetURL[2048];
} SrtStreamingParameter;

typedef struct {
    uint32_t Channel;
    uint32_t Index;
} SrtStreamingParameterKeyword;

/* Servers. */

/* The two ports are 16-bit: a JSON value is stored as its low 16 bits. */
typedef struct {
    int32_t Enable;
    uint16_t Port;
    uint16_t RtspOverHttpPort;
    int32_t AuthenticationEnable;
    int32_t AuthUseSystemDatabase;
    char AuthUsername[16];
    char AuthPassword[16];
    char AuthRealmName[64];
    uint32_t ClientLivenessTimeout;
} RtspServerParameter;

typedef struct {
    int32_t Enable;
    uint32_t Port;
} HttpStreamingServerParameter;

/* Port is signed here, unlike every other Port. */
typedef struct {
    int32_t Enable;
    char UserList[2048];
    int32_t Port;
    char ScopeName[64];
    char ScopeLocationCountry[64];
    char ScopeLocationCity[64];
} OnvifServerParameter;

typedef struct {
    uint32_t Port;
} WebServerParameter;

/* Streaming inputs. */

typedef struct {
    int32_t SupportRtspStreaming;
    int32_t SupportRtmpStreaming;
    int32_t SupportUdpStreaming;
    int32_t SupportHttpStreaming;
    int32_t SupportSrtStreaming;
    uint32_t MaxStreamingNumber;
    uint32_t MaxStreamingBandwidth;
} StreamingInputCapabilitySet;

typedef struct {
    uint32_t Index;
    char URL[256];
    char Alias[64];
    char AuthUsername[16];
    char AuthPassword[16];
} StreamingInputParameter;

typedef struct {
    uint32_t Index;
} StreamingInputParameterKeyword;

typedef struct {
    uint32_t Index;
    int32_t IsEnabled;
    int32_t IsConnected;
    uint32_t RealtimeBandwidth;
    uint32_t AverageBandwidth;
    char ErrorMessage[256];
} StreamingInputStatus;

typedef struct {
    uint32_t Index;
    char URL[256];
    char Alias[64];
    int32_t IsEnabled;
    int32_t IsConnected;
} StreamingInputStatusChange;

/* Two parallel lists of 256 entries each, carried as JSON arrays of
 * integers; StreamingNumber is the caller's and bounds nothing. */
typedef struct {
    uint32_t OperationType;
    uint32_t StreamingNumber;
    uint32_t IndexList[256];
    uint32_t UseCountList[256];
} StreamingInputUseCount;


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
