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

/* ---- Users and passwords ---- */

typedef struct {
    char UserName[64];
    char Password[64];
    int32_t MD5Password;
} VerifyPasswordParameter;

typedef struct {
    int32_t PassValidation;
} VerifyPasswordResult;

/* A request, and also an element of the user table kept in a file. */
typedef struct {
    char UserName[64];
    char Password[64];
    int32_t MD5Password;
} CreateUserParameter;

typedef struct {
    char UserName[64];
} DeleteUserParameter;

typedef struct {
    char UserName[64];
    char OldPassword[64];
    char NewPassword[64];
    int32_t MD5Password;
} ModifyPasswordParameter;

typedef struct {
    char UserName[64];
} UserList;


/* ======================================================================
 * Media input and encoding records
 * ====================================================================== */

/* ---- Video input ---- */

typedef struct {
    char SupportedVideoInputInterfaceList[256];
    int32_t SupportImageColorAdjust;
    uint32_t MaxImageBrightness;
    uint32_t MaxImageContrast;
    uint32_t MaxImageSaturation;
    uint32_t MaxImageHue;
} VideoInputCapabilitySet;

/* "Removeable" is the key's own spelling. */
typedef struct {
    char Name[64];
    char Type[64];
    char Alias[64];
    int32_t HardwareRelated;
    int32_t Removeable;
    int32_t SupportTimingManualConfig;
    int32_t SupportEmbeddedAudio;
    char MaxInputTiming[64];
    char SupportedManualTimingList[2048];
} VideoInputInterface;

/* The two 16-bit scanning-frequency parts share the room of one 32-bit
 * field; the picture adjustments stand in the order brightness, hue,
 * contrast, saturation (the capability set has its own order). */
typedef struct {
    uint32_t Channel;
    char InterfaceName[64];
    int32_t ManualConfigTiming;
    uint32_t TimingType;
    uint32_t Width;
    uint32_t Height;
    uint16_t ScanningFrequencyInteger;
    uint16_t ScanningFrequencyDecimal;
    uint32_t ScanningMode;
    uint32_t Brightness;
    uint32_t Hue;
    uint32_t Contrast;
    uint32_t Saturation;
    uint32_t VideoLostContinueFrames;
    uint32_t VideoResumeContinueFrames;
    uint32_t VideoLostAction;
} VideoInputParameter;

typedef struct {
    uint32_t Channel;
} VideoInputParameterKeyword;

typedef struct {
    char InterfaceName[64];
    int32_t CableIsPlugged;
    int32_t SignalIsValid;
    char VideoInputTiming[64];
    int32_t HasEmbeddedAudio;
    uint32_t EmbeddedAudioSamplerate;
    char InputTimingDetails[2048];
} VideoInputStatus;

typedef struct {
    char InterfaceName[64];
    int32_t BlackEdgeIsSelfCorrection;
    int32_t CorrectedPhaseValue;
    int32_t CorrectedOffsetX;
    int32_t CorrectedOffsetY;
} VideoInputVGAParameter;

typedef struct {
    char InterfaceName[64];
} VideoInputVGAParameterKeyword;

/* ---- Video encoding ---- */

/* "Rotate" here is a signed flag (rotation offered). */
typedef struct {
    char SupportedVideoEncodeSizeList[2048];
    uint32_t MaxVideoEncodeWidth;
    uint32_t MaxVideoEncodeHeight;
    uint32_t MaxVideoEncodeFramerate;
    char SupportedVideoCodecList[256];
    char SupportedH264CodecProfileList[256];
    char SupportedH265CodecProfileList[256];
    char SupportedBitrateControlAlgorithmList[256];
    uint32_t MaxVideoEncodeBitrate;
    uint32_t MaxVideoEncodeGOP;
    uint32_t MinVideoEncodeWidth;
    uint32_t MinVideoEncodeHeight;
    uint32_t MinVideoEncodeBitrate;
    uint32_t MaxVideoEncodeCapability;
    int32_t SelfAdaptiveVideoEncodeSizeCapability;
    int32_t Rotate;
    int32_t Mirror;
    int32_t Flip;
    int32_t Crop;
} VideoEncodeCapabilitySet;

/* One encoded stream of one channel, keyed by Channel and StreamIndex.  The
 * two 16-bit frame-rate parts share the room of one 32-bit field; "Rotate"
 * here is an unsigned value, unlike the capability set's flag. */
typedef struct {
    uint32_t Channel;
    uint32_t StreamIndex;
    int32_t Enable;
    int32_t SelfAdaptiveVideoEncodeSize;
    uint32_t Width;
    uint32_t Height;
    uint16_t FramerateInteger;
    uint16_t FramerateDecimal;
    char Codec[64];
    char Profile[64];
    char BitrateControl[64];
    uint32_t GOP;
    uint32_t Bitrate;
    uint32_t ImageQuality;
    uint32_t Rotate;
    int32_t Mirror;
    int32_t Flip;
    int32_t Crop;
    uint32_t CropLeftOffset;
    uint32_t CropTopOffset;
    uint32_t CropRightOffset;
    uint32_t CropBottomOffset;
    uint32_t CropOffsetBase;
} VideoEncodeParameter;

typedef struct {
    uint32_t Channel;
    uint32_t StreamIndex;
} VideoEncodeParameterKeyword;

typedef struct {
    uint32_t Channel;
    uint32_t StreamIndex;
} RequestIDRParameter;

/* ---- Encoder OSD ---- */

typedef struct {
    uint32_t OSDNumberPerChannel;
    int32_t SupportDynamicText;
    int32_t SupportPicture;
} VideoEncodeOSDCapabilitySet;

/* One OSD item of one channel, keyed by Channel and Index. */
typedef struct {
    uint32_t Channel;
    uint32_t Index;
    uint32_t Type;
    int32_t Visible;
    uint32_t AutoFontSize;
    uint32_t FixedFontSize;
    int32_t Bold;
    int32_t Stroke;
    char ForeColor[64];
    uint32_t ForeAlpha;
    char BackColor[64];
    uint32_t BackAlpha;
    uint32_t CoordinateOrigin;
    uint32_t XCoordinate;
    uint32_t YCoordinate;
    uint32_t CoordinateBase;
    char Content[256];
} VideoEncodeOSDParameter;

typedef struct {
    uint32_t Channel;
    uint32_t Index;
} VideoEncodeOSDParameterKeyword;

/* ---- Audio input and encoding (volumes unsigned, gains signed) ---- */

typedef struct {
    char SupportedAudioInputInterfaceList[256];
    int32_t SupportVolumeControl;
    uint32_t MinVolume;
    uint32_t MaxVolume;
    int32_t SupportGainControl;
    int32_t MinGain;
    int32_t MaxGain;
} AudioInputCapabilitySet;

typedef struct {
    char Name[64];
    char Type[64];
    char Alias[64];
    uint32_t MinAudioSamplerate;
    uint32_t MaxAudioSamplerate;
    uint32_t MaxSamplingBitWidth;
    uint32_t MaxAudioChannels;
    int32_t IsAnalogAudio;
    int32_t IsEmbeddedAudio;
    char SupportedSampleRateList[256];
    int32_t SupportVolumeControl;
    uint32_t MinVolume;
    uint32_t MaxVolume;
    int32_t SupportGainControl;
    int32_t MinGain;
    int32_t MaxGain;
} AudioInputInterface;

typedef struct {
    char InterfaceName[64];
    uint32_t Volume;
    int32_t Gain;
} AudioInputInterfaceParameter;

typedef struct {
    char InterfaceName[64];
} AudioInputInterfaceParameterKeyword;

typedef struct {
    uint32_t Channel;
    char InterfaceName[64];
    uint32_t Volume;
    int32_t Gain;
} AudioInputParameter;

typedef struct {
    uint32_t Channel;
} AudioInputParameterKeyword;

typedef struct {
    char InterfaceName[64];
    int32_t CableIsPlugged;
    int32_t SignalIsValid;
    uint32_t AudioSamplerate;
    uint32_t SamplingBitWidth;
    uint32_t AudioChannels;
    char InputTimingDetails[2048];
    uint32_t Volume;
    int32_t Gain;
} AudioInputStatus;

typedef struct {
    char SupportedAudioCodecList[256];
    char AacLcSupportedSamplerateList[256];
    char HeAacSupportedSamplerateList[256];
    char HeAacV2SupportedSamplerateList[256];
    char G711SupportedSamplerateList[256];
    char AacLcSupportedBitrateList[256];
    char HeAacSupportedBitrateList[256];
    char HeAacV2SupportedBitrateList[256];
    char G711SupportedBitrateList[256];
    int32_t SupportResample;
} AudioEncodeCapabilitySet;

typedef struct {
    uint32_t Channel;
    int32_t Enable;
    char Codec[64];
    uint32_t Samplerate;
    int32_t SameWithAudioInputSamplerate;
    uint32_t Bitrate;
} AudioEncodeParameter;

typedef struct {
    uint32_t Channel;
} AudioEncodeParameterKeyword;


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

/* ---- Video output interfaces and display ---- */

typedef struct {
    char SupportedVideoInputChannelList[256];
    char SupportedInputStreamingIndexList[256];
    char SupportedPlaylistIndexList[256];
} VideoOutputCapabilitySet;

/* "Removeable" is the key of this record, spelt so in both directions. */
typedef struct {
    char Name[64];
    char Type[64];
    char Alias[64];
    int32_t HardwareRelated;
    int32_t Removeable;
    int32_t SupportTimingManualConfig;
    int32_t SupportEmbeddedAudio;
    char SupportedTimingList[2048];
    char SupportedMasterInterfaceName[64];
    uint32_t ScreenCanvasWidth;
    uint32_t ScreenCanvasHeight;
    uint32_t MaxVideoOutputLayerNumber;
    uint32_t MaxVideoOutputWindowNumber;
    uint32_t UserDefinedScreenSplitModeNumber;
    char SupportedScreenSplitModeList[256];
    uint32_t MaxGraphicLayerNumber;
    int32_t SupportWatermark;
    int32_t SupportOSDInWindow;
    uint32_t OSDNumberPerWindow;
} VideoOutputInterface;

/* UserDefinedScreenSplitModeIndex is signed here, unsigned in
 * VideoOutputScreenSplitParameter. */
typedef struct {
    char InterfaceName[64];
    char Timing[256];
    int32_t ManualConfigTiming;
    uint32_t Width;
    uint32_t Height;
    uint32_t ScanningFrequencyInteger;
    uint32_t ScanningFrequencyDecimal;
    uint32_t ScanningMode;
    uint32_t TimingType;
    uint32_t Brightness;
    uint32_t Hue;
    uint32_t Contrast;
    uint32_t Saturation;
    char MasterInterfaceName[64];
    char ScreenSplitMode[64];
    int32_t UserDefinedScreenSplitModeIndex;
    int32_t AutoConfigOptimumTiming;
} VideoOutputInterfaceParameter;

typedef struct {
    char InterfaceName[64];
} VideoOutputInterfaceParameterKeyword;

typedef struct {
    uint32_t VideoDisplayMode;
    uint32_t VideoDisplayStopAction;
    char BackgroundColor[64];
    char WindowBorderColor[64];
    uint32_t WindowBorderLineWidth;
    char AudioOutputWindowBorderColor[64];
    int32_t CacheTime;
    uint32_t VideoPlayMode;
} VideoOutputDisplayParameter;

/* Identified by the pair InterfaceName, UserDefinedScreenSplitModeIndex. */
typedef struct {
    char InterfaceName[64];
    uint32_t UserDefinedScreenSplitModeIndex;
    uint32_t SplitWindowNumber;
    char UserDefinedScreenSplitModeDetails[2048];
} VideoOutputScreenSplitParameter;

typedef struct {
    char InterfaceName[64];
    uint32_t UserDefinedScreenSplitModeIndex;
} VideoOutputScreenSplitParameterKeyword;

/* ---- Output sources and playlists ---- */

typedef struct {
    uint32_t Channel;
    int32_t SourceIndex;
    int32_t SourceType;
    int32_t CacheTime;
} VideoOutputSourceParameter;

typedef struct {
    uint32_t Channel;
} VideoOutputSourceParameterKeyword;

typedef struct {
    uint32_t Index;
    char Name[64];
    char SourceIndexList[2048];
    char SourceTypeList[2048];
    char SourceDwellTimeList[2048];
} VideoOutputPlaylistParameter;

typedef struct {
    uint32_t Index;
} VideoOutputPlaylistParameterKeyword;

typedef struct {
    uint32_t Channel;
    char InterfaceName[64];
    int32_t SourceIndex;
    int32_t SourceType;
} VideoOutSourceChange;

/* The same fields as VideoOutSourceChange, as a type of its own. */
typedef struct {
    uint32_t Channel;
    char InterfaceName[64];
    int32_t SourceIndex;
    int32_t SourceType;
} AudioOutSourceChange;

/* ---- Audio output and decoding ---- */

/* "SupportedAudioOutputInterfaces" has no "List" ending, unlike its siblings. */
typedef struct {
    char SupportedAudioInputChannelList[256];
    char SupportedAudioOutputInterfaces[256];
    char SupportedInputStreamingIndexList[256];
    char SupportedVideoOutputChannelList[256];
} AudioOutputCapabilitySet;

typedef struct {
    char Name[64];
    char Type[64];
    char Alias[64];
    int32_t IsAnalogAudio;
    int32_t IsEmbeddedAudio;
    int32_t SupportVolumeControl;
    uint32_t MinVolume;
    uint32_t MaxVolume;
    int32_t SupportGainControl;
    int32_t MinGain;
    int32_t MaxGain;
} AudioOutputInterface;

typedef struct {
    char InterfaceName[64];
    uint32_t Volume;
    int32_t Gain;
} AudioOutputInterfaceParameter;

typedef struct {
    char InterfaceName[64];
} AudioOutputInterfaceParameterKeyword;

typedef struct {
    uint32_t Channel;
    char InterfaceName[64];
    int32_t SourceIndex;
    int32_t SourceType;
} AudioOutputParameter;

typedef struct {
    uint32_t Channel;
} AudioOutputParameterKeyword;

typedef struct {
    uint32_t MaxVideoWidth;
    uint32_t MaxVideoHeight;
    uint32_t MaxVideoFramerate;
    char SupportedVideoCodecList[256];
    int32_t MaxVideoDecodeCapabilityByChannel;
    int32_t TotalVideoDecodeCapability;
    uint32_t MaxCacheTime;
} VideoDecodeCapabilitySet;

typedef struct {
    char SupportedAudioCodecList[256];
} AudioDecodeCapabilitySet;

/* ---- Screenshots ---- */

typedef struct {
    uint32_t MaxScreenshotNumber;
    uint32_t MaxScreenshotListNumber;
    uint32_t MaxScreenshotNumberInList;
} ScreenshotCapabilitySet;

/* "AttachedInputStreamingIndexs" is the key, spelt so. */
typedef struct {
    uint32_t Index;
    char Name[64];
    char ScreenSplitMode[64];
    int32_t UserDefinedScreenSplitModeIndex;
    char BoundVideoInputChannels[256];
    char AttachedInputStreamingIndexs[256];
} ScreenshotParameter;

typedef struct {
    uint32_t Index;
} ScreenshotParameterKeyword;

/* "ScreenshotIndexs" is the key, spelt so. */
typedef struct {
    uint32_t Index;
    char Name[64];
    char ScreenshotIndexs[256];
    char ScreenshotDwellTimes[256];
} ScreenshotListParameter;

typedef struct {
    uint32_t Index;
} ScreenshotListParameterKeyword;

typedef struct {
    char InterfaceName[64];
    int32_t ScreenshotIndex;
    int32_t ScreenshotListIndex;
} VideoOutputScreenshotParameter;

typedef struct {
    char InterfaceName[64];
} VideoOutputScreenshotParameterKeyword;

/* ---- Output OSD and watermarks ---- */

/* Identified by the pair Channel, Index. */
typedef struct {
    uint32_t Channel;
    uint32_t Index;
    uint32_t Type;
    int32_t Visible;
    uint32_t AutoFontSize;
    uint32_t FixedFontSize;
    int32_t Bold;
    int32_t Stroke;
    char ForeColor[64];
    uint32_t ForeAlpha;
    char BackColor[64];
    uint32_t BackAlpha;
    uint32_t CoordinateOrigin;
    uint32_t XCoordinate;
    uint32_t YCoordinate;
    uint32_t CoordinateBase;
    char Content[256];
    char Prefix[64];
    char Postfix[64];
} VideoOutputOSDParameter;

typedef struct {
    uint32_t Channel;
    uint32_t Index;
} VideoOutputOSDParameterKeyword;

typedef struct {
    char InterfaceName[64];
    int32_t Visible;
    uint32_t AutoFontSize;
    uint32_t FixedFontSize;
    int32_t Bold;
    int32_t Stroke;
    char ForeColor[64];
    uint32_t ForeAlpha;
    char BackColor[64];
    uint32_t BackAlpha;
    uint32_t CoordinateOrigin;
    uint32_t XCoordinate;
    uint32_t YCoordinate;
    uint32_t CoordinateBase;
    char Content[256];
    uint32_t PrefixType;
    char PrefixContent[256];
    uint32_t PostfixType;
    char PostfixContent[256];
    int32_t RotationAngle;
    uint32_t ArrangementMode;
    int32_t Movable;
    uint32_t MovingStepSize;
    uint32_t MovingSpeed;
    uint32_t MovingDirection;
} WatermarkOSDParameter;

typedef struct {
    char InterfaceName[64];
} WatermarkOSDParameterKeyword;

typedef struct {
    char InterfaceName[64];
    int32_t Visible;
    uint32_t CoordinateOrigin;
    uint32_t XCoordinate;
    uint32_t YCoordinate;
    uint32_t CoordinateBase;
    uint32_t ImageWidth;
    uint32_t ImageHeight;
    char ImageFilePath[256];
    uint32_t Transparency;
    uint32_t DisplayMode;
    int32_t RotationAngle;
    uint32_t ArrangementMode;
    int32_t Movable;
    uint32_t MovingStepSize;
    uint32_t MovingSpeed;
    uint32_t MovingDirection;
} WatermarkPictureParameter;

typedef struct {
    char InterfaceName[64];
} WatermarkPictureParameterKeyword;

typedef struct {
    char InterfaceName[64];
    int32_t Visible;
    char Color[64];
    uint32_t Transparency;
    int32_t Movable;
    uint32_t MovingStepSize;
    uint32_t MovingSpeed;
    uint32_t MovingDirection;
    char Content[256];
} WatermarkDotmatrixParameter;

typedef struct {
    char InterfaceName[64];
} WatermarkDotmatrixParameterKeyword;

typedef struct {
    char InterfaceName[64];
    char ImageFilePath[256];
    uint32_t ImageFileSize;
} UploadWatermarkPictureParameter;


#ifdef __cplusplus
}
#endif

#endif /* APP_S2J_TYPES_H */
