// s2j_typelist.h - every record type of the library, by subsystem.  The
// registry has one entry per name here; each name needs its struct in
// app_s2j_types.h and its table in its subsystem's source file.
#ifndef APP_S2J_TYPELIST_H
#define APP_S2J_TYPELIST_H


// Device identity, time, time zone, NTP and scheduled tasks.
#define S2J_TYPES_SYSTEM(X) \
    X(DeviceInfo)           \
    X(DeviceCapabilitySet)  \
    X(DeviceTime)           \
    X(AdvancedParameter)    \
    X(TimeZone)             \
    X(TimeZoneParameter)    \
    X(NTPServer)            \
    X(NTPParameter)         \
    X(CrontabCapabilitySet) \
    X(CrontabParameter)

// Users and passwords.
#define S2J_TYPES_ACCOUNT(X)   \
    X(VerifyPasswordParameter) \
    X(VerifyPasswordResult)    \
    X(CreateUserParameter)     \
    X(DeleteUserParameter)     \
    X(ModifyPasswordParameter) \
    X(UserList)

// Media input and encoding.
#define S2J_TYPES_MEDIA(X)          \
    X(VideoInputCapabilitySet)      \
    X(VideoInputInterface)          \
    X(VideoInputParameter)          \
    X(VideoInputStatus)             \
    X(VideoInputVGAParameter)       \
    X(VideoEncodeCapabilitySet)     \
    X(VideoEncodeParameter)         \
    X(RequestIDRParameter)          \
    X(VideoEncodeOSDCapabilitySet)  \
    X(VideoEncodeOSDParameter)      \
    X(AudioInputCapabilitySet)      \
    X(AudioInputInterface)          \
    X(AudioInputInterfaceParameter) \
    X(AudioInputParameter)          \
    X(AudioInputStatus)             \
    X(AudioEncodeCapabilitySet)     \
    X(AudioEncodeParameter)

// Streaming output, protocol streams, servers and streaming inputs.
#define S2J_TYPES_STREAMING(X)      \
    X(StreamingOutputCapabilitySet) \
    X(RtspCapabilitySet)            \
    X(RtmpCapabilitySet)            \
    X(UdpCapabilitySet)             \
    X(HttpStreamingCapabilitySet)   \
    X(SrtStreamingCapabilitySet)    \
    X(StreamingOutputParameter)     \
    X(RtspStreamingParameter)       \
    X(RtmpStreamingParameter)       \
    X(UdpStreamingParameter)        \
    X(HttpStreamingParameter)       \
    X(SrtStreamingParameter)        \
    X(RtspServerParameter)          \
    X(HttpStreamingServerParameter) \
    X(OnvifServerParameter)         \
    X(WebServerParameter)           \
    X(StreamingInputCapabilitySet)  \
    X(StreamingInputParameter)      \
    X(StreamingInputStatus)         \
    X(StreamingInputStatusChange)   \
    X(StreamingInputUseCount)

// Network, wireless and serial.
#define S2J_TYPES_NETWORK(X)             \
    X(NetworkCapabilitySet)              \
    X(NetworkInterface)                  \
    X(NetworkInterfaceStatus)            \
    X(NetworkLANParameter)               \
    X(NetworkRouteParameter)             \
    X(NetworkWIFIParameter)              \
    X(ScanWIFIHotspotParameter)          \
    X(WIFIHotspot)                       \
    X(SerialPortInterface)               \
    X(SerialPortParameter)               \
    X(SerialPortNetworkTransferParameter)

// Storage, recording and snapshots.
#define S2J_TYPES_STORAGE(X)        \
    X(StorageInterface)             \
    X(StorageDevice)                \
    X(StorageDeviceStatus)          \
    X(DiskGroupCapabilitySet)       \
    X(DiskGroupParameter)           \
    X(FormatDiskParameter)          \
    X(FormatDiskProgress)           \
    X(RemoveStorageDeviceParameter) \
    X(RecordCapabilitySet)          \
    X(RecordParameter)              \
    X(RecordStatus)                 \
    X(SnapshotCapabilitySet)        \
    X(SnapshotParameter)            \
    X(SnapshotStatus)               \
    X(SnapshotInputParameter)       \
    X(SnapshotResult)

// Output, display, sources, audio output, screenshots, OSD and watermarks.
#define S2J_TYPES_OUTPUT(X)             \
    X(VideoOutputCapabilitySet)         \
    X(VideoOutputInterface)             \
    X(VideoOutputInterfaceParameter)    \
    X(VideoOutputDisplayParameter)      \
    X(VideoOutputScreenSplitParameter)  \
    X(VideoOutputSourceParameter)       \
    X(VideoOutputPlaylistParameter)     \
    X(VideoOutSourceChange)             \
    X(AudioOutSourceChange)             \
    X(AudioOutputCapabilitySet)         \
    X(AudioOutputInterface)             \
    X(AudioOutputInterfaceParameter)    \
    X(AudioOutputParameter)             \
    X(VideoDecodeCapabilitySet)         \
    X(AudioDecodeCapabilitySet)         \
    X(ScreenshotCapabilitySet)          \
    X(ScreenshotParameter)              \
    X(ScreenshotListParameter)          \
    X(VideoOutputScreenshotParameter)   \
    X(VideoOutputOSDParameter)          \
    X(WatermarkOSDParameter)            \
    X(WatermarkPictureParameter)        \
    X(WatermarkDotmatrixParameter)      \
    X(UploadWatermarkPictureParameter)

#define S2J_TYPES(X)       \
    S2J_TYPES_SYSTEM(X)    \
    S2J_TYPES_ACCOUNT(X)   \
    S2J_TYPES_MEDIA(X)     \
    S2J_TYPES_STREAMING(X) \
    S2J_TYPES_NETWORK(X)   \
    S2J_TYPES_STORAGE(X)   \
    S2J_TYPES_OUTPUT(X)

namespace s2j {
#define S2J_DECLARE_DESC(T) extern const TypeDesc desc_##T;
S2J_TYPES(S2J_DECLARE_DESC)
#undef S2J_DECLARE_DESC
}  // namespace s2j

#endif  // APP_S2J_TYPELIST_H
