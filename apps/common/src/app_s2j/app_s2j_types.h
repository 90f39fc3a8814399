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

typedef struct {
    int32_t SupportIPv6;
    int32_t SupportBond;
    int32_t SupportPPPoE;
    int32_t SupportDDNS;
    int32_t SupportNTP;
    int32_t SupportFirewall;
    int32_t SupportUPnP;
    int32_t SupportIoTCloud;
} NetworkCapabilitySet;

/* "Removeable" is the key's own spelling (SerialPortInterface and the
 * storage records write "Removable"). */
typedef struct {
    char Name[64];
    char Type[64];
    char Alias[64];
    char DeviceNodeName[64];
    char SupportStandardList[256];
    int32_t SupportWakeOnLAN;
    int32_t Removeable;
    int32_t SupportHotPlug;
    int32_t SupportPowerOverEthernet;
    uint32_t MaxReceptionRate;
    uint32_t MaxTransmissionRate;
} NetworkInterface;

typedef struct {
    char InterfaceName[64];
    int32_t IsPlugged;
    int32_t NetworkIsConnected;
    uint32_t ReceptionRate;
    uint32_t TransmissionRate;
    int32_t InternetIsConnected;
} NetworkInterfaceStatus;

/* MTUSize is 16 bits wide here, 32 bits in NetworkWIFIParameter. */
typedef struct {
    char InterfaceName[64];
    int32_t IPv4DHCPEnable;
    char IPv4Address[16];
    char IPv4Gateway[16];
    char IPv4Netmask[16];
    char IPv4PrimaryDNS[16];
    char IPv4SecondaryDNS[16];
    int32_t IPv6Enable;
    int32_t IPv6DHCPEnable;
    char IPv6Address[48];
    char IPv6Gateway[48];
    uint32_t IPv6SubnetPrefixLength;
    char IPv6PrimaryDNS[48];
    char IPv6SecondaryDNS[48];
    char MACAddress[18];
    uint16_t MTUSize;
} NetworkLANParameter;

typedef struct {
    char InterfaceName[64];
} NetworkLANParameterKeyword;

typedef struct {
    char PrimaryNetworkInterface[64];
} NetworkRouteParameter;

typedef struct {
    char InterfaceName[64];
    uint32_t WorkMode;
    char SSID[64];
    uint32_t SecurityType;
    uint32_t EncryptionType;
    char SecurityKey[64];
    int32_t IPv4DHCPEnable;
    char IPv4Address[16];
    char IPv4Gateway[16];
    char IPv4Netmask[16];
    char IPv4PrimaryDNS[16];
    char IPv4SecondaryDNS[16];
    int32_t IPv6Enable;
    int32_t IPv6DHCPEnable;
    char IPv6Address[48];
    char IPv6Gateway[48];
    uint32_t IPv6SubnetPrefixLength;
    char IPv6PrimaryDNS[48];
    char IPv6SecondaryDNS[48];
    char MACAddress[18];
    uint32_t MTUSize;
    char AccessPointSSID[64];
    uint32_t AccessPointSecurityType;
    uint32_t AccessPointEncryptionType;
    char AccessPointSecurityKey[64];
} NetworkWIFIParameter;

typedef struct {
    char InterfaceName[64];
} NetworkWIFIParameterKeyword;

typedef struct {
    char InterfaceName[64];
    int32_t Rescan;
} ScanWIFIHotspotParameter;

/* "MacAddress" is this record's own spelling of the key. */
typedef struct {
    char InterfaceName[64];
    char SSID[64];
    char MacAddress[18];
    char SupportFrequencyBands[256];
    char SupportSecurityTypeList[256];
    int32_t SignalStrength;
} WIFIHotspot;

typedef struct {
    char Name[64];
    char Type[64];
    char Alias[64];
    char Level[64];
    char DeviceNodeName[64];
    int32_t Removable;
    char SupportedBaudrateList[256];
    char SupportedDatabitsList[256];
    char SupportedStopbitsList[256];
    char SupportedParityTypeList[256];
    char SupportedFlowControlList[256];
} SerialPortInterface;

typedef struct {
    char InterfaceName[64];
    int32_t Enable;
    uint32_t Baudrate;
    uint32_t Databits;
    uint32_t Stopbits;
    char ParityType[64];
    char FlowControl[64];
} SerialPortParameter;

typedef struct {
    char InterfaceName[64];
} SerialPortParameterKeyword;

/* The key, InterfaceName, is the second field. */
typedef struct {
    int32_t Enable;
    char InterfaceName[64];
    uint32_t TransferMode;
    uint32_t TransferDirection;
    uint32_t LocalPort;
    char PeerAddress[256];
    uint32_t PeerPort;
    int32_t UDPPairToSource;
    int32_t TCPServerSupportMultiAccess;
} SerialPortNetworkTransferParameter;

typedef struct {
    char InterfaceName[64];
} SerialPortNetworkTransferParameterKeyword;


/* ======================================================================
 * Storage, recording and snapshot records
 * ====================================================================== */

typedef struct {
    char Name[64];
    char Type[64];
    char Alias[64];
    int32_t Removable;
    int32_t Expansible;
    char BusStandard[64];
    char ProtocolType[64];
    uint32_t BusBandwidth;
    uint32_t MaxExpansionPort;
    uint32_t BusID;
} StorageInterface;

typedef struct {
    char Name[64];
    char Type[64];
    char Alias[64];
    int32_t Removable;
    char SupportedFileSystemTypeList[256];
    int32_t SupportQuickFormat;
} StorageDevice;

typedef struct {
    char StorageDeviceName[64];
    int32_t IsPlugged;
    int32_t Formatted;
    char FileSystemType[64];
    int32_t Mounted;
    char MountPoint[256];
    uint32_t TotalCapacity;
    uint32_t FreeCapacity;
    uint32_t State;
    char PrimaryPartition[64];
    char DeviceNodeName[64];
    char UUID[64];
} StorageDeviceStatus;

typedef struct {
    uint32_t MaxDiskGroupNumber;
} DiskGroupCapabilitySet;

typedef struct {
    char StorageDeviceName[64];
    int32_t GroupID;
} DiskGroupParameter;

typedef struct {
    char StorageDeviceName[64];
} DiskGroupParameterKeyword;

typedef struct {
    char StorageDeviceName[64];
    char FileSystemType[64];
    char PartitionName[64];
    int32_t QuickFormat;
    uint32_t AllocationUnitSize;
} FormatDiskParameter;

typedef struct {
    char StorageDeviceName[64];
    int32_t FormatDiskProgressPercent;
    char PartitionName[64];
} FormatDiskProgress;

typedef struct {
    char StorageDeviceName[64];
} RemoveStorageDeviceParameter;

typedef struct {
    char SupportedFileFormatList[256];
    uint32_t MaxFileDuration;
    uint32_t MinFileDuration;
    char SupportedRecordTypeList[256];
    int32_t SupportRecord;
} RecordCapabilitySet;

typedef struct {
    uint32_t Channel;
    uint32_t StreamIndex;
    int32_t StoreAudio;
    uint32_t FileDuration;
    char FileFormat[64];
    uint32_t Mode;
    char FilePath[256];
    char ScheduleTable[2048];
    int32_t DiskGroupID;
    uint32_t DiskFullAction;
} RecordParameter;

typedef struct {
    uint32_t Channel;
} RecordParameterKeyword;

/* RecordStatus and SnapshotStatus have the same layout and keys. */
typedef struct {
    uint32_t Channel;
    uint32_t State;
    uint32_t FreeCapacity;
} RecordStatus;

/* "Pictrue" is the key's own spelling. */
typedef struct {
    char SupportPictrueFormatList[256];
    uint32_t MaxWidth;
    uint32_t MaxHeight;
    uint32_t MinWidth;
    uint32_t MinHeight;
    int32_t MaxFramerate;
    int32_t MinFramerate;
    int32_t SupportSnapshot;
} SnapshotCapabilitySet;

typedef struct {
    uint32_t Channel;
    uint32_t PictureFormat;
    uint32_t PictureWidth;
    uint32_t PictureHeight;
    int32_t Framerate;
    uint32_t Mode;
    char FilePath[256];
    char ScheduleTable[2048];
    int32_t DiskGroupID;
    uint32_t DiskFullAction;
    uint32_t ImageQuality;
} SnapshotParameter;

typedef struct {
    uint32_t Channel;
} SnapshotParameterKeyword;

typedef struct {
    uint32_t Channel;
    uint32_t State;
    uint32_t FreeCapacity;
} SnapshotStatus;

typedef struct {
    uint32_t Channel;
    uint32_t PictureFormat;
    uint32_t PictureWidth;
    uint32_t PictureHeight;
} SnapshotInputParameter;

typedef struct {
    uint32_t Channel;
    char ImageURL[256];
    int32_t ImageRetentionTime;
} SnapshotResult;


/* ======================================================================
 * Output and display records
 * ====================================================================== */


#ifdef __cplusplus
}
#endif

#endif /* APP_S2J_TYPES_H */
