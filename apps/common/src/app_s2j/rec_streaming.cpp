// rec_streaming.cpp - records of streaming output and its transports, the
// streaming and web servers, and streaming inputs: their field tables,
// emitters, readers and keyword readers.
#include "s2j_record_defs.h"

static constexpr s2j::Field StreamingOutputCapabilitySet_fields[] = {
    S2J_FIELD(StreamingOutputCapabilitySet, SupportRtspStreaming,
              "1 when the device can stream out over RTSP, 0 when not"),
    S2J_FIELD(StreamingOutputCapabilitySet, SupportRtmpStreaming,
              "1 when the device can stream out over RTMP, 0 when not"),
    S2J_FIELD(StreamingOutputCapabilitySet, SupportUdpStreaming,
              "1 when the device can stream out over UDP, 0 when not"),
    S2J_FIELD(StreamingOutputCapabilitySet, SupportHttpStreaming,
              "1 when the device can stream out over HTTP, 0 when not"),
    S2J_FIELD(StreamingOutputCapabilitySet, SupportSrtStreaming,
              "1 when the device can stream out over SRT, 0 when not"),
    S2J_FIELD(StreamingOutputCapabilitySet, MaxStreamingNumber, "greatest number of output streams in all"),
    S2J_FIELD(StreamingOutputCapabilitySet, MaxStreamingBandwidth, "greatest total output bandwidth"),
    S2J_FIELD(StreamingOutputCapabilitySet, SupportStreamingProtocolNumber, "number of transports offered"),
};
S2J_RECORD(StreamingOutputCapabilitySet)

static constexpr s2j::Field RtspCapabilitySet_fields[] = {
    S2J_FIELD(RtspCapabilitySet, SupportRtspOverHttp, "1 when RTSP can be tunnelled in HTTP, 0 when not"),
    S2J_FIELD(RtspCapabilitySet, SupportAuthentication, "1 when RTSP clients can be made to authenticate, 0 when not"),
    S2J_FIELD(RtspCapabilitySet, StreamingNumberPerChannel, "RTSP streams allowed per channel"),
    S2J_FIELD(RtspCapabilitySet, SupportedStreamTypeList, "list held as text; not interpreted"),
};
S2J_RECORD(RtspCapabilitySet)

static constexpr s2j::Field RtmpCapabilitySet_fields[] = {
    S2J_FIELD(RtmpCapabilitySet, SupportEncryptedData, "1 when RTMP data can be encrypted, 0 when not"),
    S2J_FIELD(RtmpCapabilitySet, SupportTunneledTraffic, "1 when RTMP can be tunnelled, 0 when not"),
    S2J_FIELD(RtmpCapabilitySet, SupportRtmpOverSSL, "1 when RTMP can run over SSL/TLS, 0 when not"),
    S2J_FIELD(RtmpCapabilitySet, SupportH265Codec, "1 when RTMP can carry H.265 video, 0 when not"),
    S2J_FIELD(RtmpCapabilitySet, SupportRtmpServer, "1 when the device can act as an RTMP server, 0 when not"),
    S2J_FIELD(RtmpCapabilitySet, StreamingNumberPerChannel, "RTMP streams allowed per channel"),
};
S2J_RECORD(RtmpCapabilitySet)

static constexpr s2j::Field UdpCapabilitySet_fields[] = {
    S2J_FIELD(UdpCapabilitySet, SupportedStreamTypeList, "list held as text; not interpreted"),
    S2J_FIELD(UdpCapabilitySet, SupportRtpPacket, "1 when UDP streams can be sent as RTP packets, 0 when not"),
    S2J_FIELD(UdpCapabilitySet, StreamingNumberPerChannel, "UDP streams allowed per channel"),
    S2J_FIELD(UdpCapabilitySet, SupportBandwidthControl,
              "1 when the bandwidth of UDP streams can be limited, 0 when not"),
};
S2J_RECORD(UdpCapabilitySet)

static constexpr s2j::Field HttpStreamingCapabilitySet_fields[] = {
    S2J_FIELD(HttpStreamingCapabilitySet, StreamingNumberPerChannel, "HTTP streams allowed per channel"),
    S2J_FIELD(HttpStreamingCapabilitySet, SupportTSOverHttp, "1 when MPEG-TS can be streamed over HTTP, 0 when not"),
    S2J_FIELD(HttpStreamingCapabilitySet, SupportFLVOverHttp, "1 when FLV can be streamed over HTTP, 0 when not"),
    S2J_FIELD(HttpStreamingCapabilitySet, SupportHLS, "1 when the device can stream HLS, 0 when not"),
    S2J_FIELD(HttpStreamingCapabilitySet, MaxHLSCacheFileNumber,
              "upper bound of \"HLSCacheFileNumber\" of the HTTP stream records"),
    S2J_FIELD(HttpStreamingCapabilitySet, MaxHLSCacheFileDuration, "upper bound of \"HLSCacheFileDuration\""),
    S2J_FIELD(HttpStreamingCapabilitySet, MaxHLSTotalCacheDuration, "upper bound of \"HLSTotalCacheDuration\""),
};
S2J_RECORD(HttpStreamingCapabilitySet)

static constexpr s2j::Field SrtStreamingCapabilitySet_fields[] = {
    S2J_FIELD(SrtStreamingCapabilitySet, StreamingNumberPerChannel, "SRT streams allowed per channel"),
    S2J_FIELD(SrtStreamingCapabilitySet, SupportedModeList,
              "list of the connection modes, held as text; not interpreted"),
};
S2J_RECORD(SrtStreamingCapabilitySet)

static constexpr s2j::Field StreamingOutputParameter_fields[] = {
    S2J_FIELD(StreamingOutputParameter, RtspStreamingEnable, "1 enables streaming out over RTSP, 0 disables it"),
    S2J_FIELD(StreamingOutputParameter, RtmpStreamingEnable, "1 enables streaming out over RTMP, 0 disables it"),
    S2J_FIELD(StreamingOutputParameter, UdpStreamingEnable, "1 enables streaming out over UDP, 0 disables it"),
    S2J_FIELD(StreamingOutputParameter, HttpStreamingEnable, "1 enables streaming out over HTTP, 0 disables it"),
    S2J_FIELD(StreamingOutputParameter, SrtStreamingEnable, "1 enables streaming out over SRT, 0 disables it"),
};
S2J_RECORD(StreamingOutputParameter)

static constexpr s2j::Field RtspStreamingParameter_fields[] = {
    S2J_FIELD(RtspStreamingParameter, Channel, "channel the record is for; key field"),
    S2J_FIELD(RtspStreamingParameter, Index, "key field: the stream's place among the channel's RTSP streams"),
    S2J_FIELD(RtspStreamingParameter, Enable, "1 enables this RTSP stream, 0 disables it"),
    S2J_FIELD(RtspStreamingParameter, StreamIndex, "which encoder stream of the channel is sent"),
    S2J_FIELD(RtspStreamingParameter, StreamType, "value not interpreted by the library"),
    S2J_FIELD(RtspStreamingParameter, StreamPath, "path under which the stream is served"),
};
// Elements are identified by the pair Channel, Index; the single-key reader
// takes Channel alone.
static constexpr s2j::Key RtspStreamingParameter_keys[] = {
    S2J_KEY(RtspStreamingParameter, Channel),
    S2J_KEY(RtspStreamingParameter, Index),
};
S2J_RECORD_KEYWORD_GET(RtspStreamingParameter, Channel)

static constexpr s2j::Field RtmpStreamingParameter_fields[] = {
    S2J_FIELD(RtmpStreamingParameter, Channel, "channel the record is for; key field"),
    S2J_FIELD(RtmpStreamingParameter, Index, "key field: the stream's place among the channel's RTMP streams"),
    S2J_FIELD(RtmpStreamingParameter, Enable, "1 enables this RTMP stream, 0 disables it"),
    S2J_FIELD(RtmpStreamingParameter, StreamIndex, "which encoder stream of the channel is sent"),
    S2J_FIELD(RtmpStreamingParameter, StreamType, "value not interpreted by the library"),
    S2J_FIELD(RtmpStreamingParameter, StreamPath, "path under which the stream is served"),
};
static constexpr s2j::Key RtmpStreamingParameter_keys[] = {
    S2J_KEY(RtmpStreamingParameter, Channel),
    S2J_KEY(RtmpStreamingParameter, Index),
};
S2J_RECORD_KEYWORD_GET(RtmpStreamingParameter, Channel)

static constexpr s2j::Field UdpStreamingParameter_fields[] = {
    S2J_FIELD(UdpStreamingParameter, Channel, "channel the record is for; key field"),
    S2J_FIELD(UdpStreamingParameter, Index, "index that identifies the element; key field"),
    S2J_FIELD(UdpStreamingParameter, Enable, "1 enables this UDP stream, 0 disables it"),
    S2J_FIELD(UdpStreamingParameter, StreamIndex, "encoder stream sent"),
    S2J_FIELD(UdpStreamingParameter, StreamType, "stream type as a code; its values are not interpreted"),
    S2J_FIELD(UdpStreamingParameter, RtpPacket, "1 sends the stream in RTP packets, 0 as plain UDP"),
    S2J_FIELD(UdpStreamingParameter, DestinationIP, "destination address as text"),
    S2J_FIELD(UdpStreamingParameter, DestinationPort, "destination port"),
    S2J_FIELD(UdpStreamingParameter, BandwidthControlEnable,
              "1 limits the stream's bandwidth by the fields that follow, 0 does not"),
    S2J_FIELD(UdpStreamingParameter, BandwidthControlLimit,
              "greatest bandwidth of the stream; unit not fixed by the library"),
    S2J_FIELD(UdpStreamingParameter, BandwidthControlWindowSize,
              "size of the window over which the bandwidth is measured"),
    S2J_FIELD(UdpStreamingParameter, BandwidthControlPriority, "priority of the stream when bandwidth is shared"),
    S2J_FIELD(UdpStreamingParameter, BandwidthControlSmoothTime,
              "time over which sending is smoothed; unit not fixed by the library"),
    S2J_FIELD(UdpStreamingParameter, BandwidthControlSmoothSize, "amount of data over which sending is smoothed"),
};
static constexpr s2j::Key UdpStreamingParameter_keys[] = {
    S2J_KEY(UdpStreamingParameter, Channel),
    S2J_KEY(UdpStreamingParameter, Index),
};
S2J_RECORD_KEYWORD_GET(UdpStreamingParameter, Channel)

static constexpr s2j::Field HttpStreamingParameter_fields[] = {
    S2J_FIELD(HttpStreamingParameter, Channel, "channel the record is for; key field"),
    S2J_FIELD(HttpStreamingParameter, Index, "index that identifies the element; key field"),
    S2J_FIELD(HttpStreamingParameter, FLVEnable, "1 offers the stream as FLV over HTTP, 0 does not"),
    S2J_FIELD(HttpStreamingParameter, TSEnable, "1 offers the stream as MPEG-TS over HTTP, 0 does not"),
    S2J_FIELD(HttpStreamingParameter, HLSEnable, "1 offers the stream as HLS, 0 does not"),
    S2J_FIELD(HttpStreamingParameter, StreamIndex, "encoder stream sent"),
    S2J_FIELD(HttpStreamingParameter, HLSCacheFileNumber, "number of HLS segment files kept"),
    S2J_FIELD(HttpStreamingParameter, HLSCacheFileDuration, "duration of one HLS segment file"),
    S2J_FIELD(HttpStreamingParameter, HLSTotalCacheDuration, "total duration held in the HLS cache"),
    S2J_FIELD(HttpStreamingParameter, SessionName, "name under which the stream is served"),
};
static constexpr s2j::Key HttpStreamingParameter_keys[] = {
    S2J_KEY(HttpStreamingParameter, Channel),
    S2J_KEY(HttpStreamingParameter, Index),
};
S2J_RECORD_KEYWORD_GET(HttpStreamingParameter, Channel)

static constexpr s2j::Field SrtStreamingParameter_fields[] = {
    S2J_FIELD(SrtStreamingParameter, Channel, "channel the record is for; key field"),
    S2J_FIELD(SrtStreamingParameter, Index, "index that identifies the element; key field"),
    S2J_FIELD(SrtStreamingParameter, Enable, "1 enables this SRT stream, 0 disables it"),
    S2J_FIELD(SrtStreamingParameter, StreamIndex, "encoder stream sent"),
    S2J_FIELD(SrtStreamingParameter, Mode, "connection mode; value not interpreted"),
    S2J_FIELD(SrtStreamingParameter, Port, "port of the SRT peer or listener"),
    S2J_FIELD(SrtStreamingParameter, TargetIP, "peer address as text"),
    S2J_FIELD(SrtStreamingParameter, BandwidthOverheadPercent,
              "bandwidth overhead allowed above the stream's own, in percent"),
    S2J_FIELD(SrtStreamingParameter, StreamKeyName, "stream identifier text"),
    S2J_FIELD(SrtStreamingParameter, Passphrase, "encryption pass phrase; carried like any other text field"),
    S2J_FIELD(SrtStreamingParameter, AESKeySize, "key length selector; value not interpreted"),
    S2J_FIELD(SrtStreamingParameter, TargetURL, "the largest text field of the streaming records"),
};
static constexpr s2j::Key SrtStreamingParameter_keys[] = {
    S2J_KEY(SrtStreamingParameter, Channel),
    S2J_KEY(SrtStreamingParameter, Index),
};
S2J_RECORD_KEYWORD_GET(SrtStreamingParameter, Channel)

// Port and RtspOverHttpPort are uint16_t: emitted as 0..65535 and read as the
// low 16 bits of the JSON integer, without a range check.
static constexpr s2j::Field RtspServerParameter_fields[] = {
    S2J_FIELD(RtspServerParameter, Enable, "1 runs the RTSP server, 0 stops it"),
    S2J_FIELD(RtspServerParameter, Port, "listening port; a 16-bit unsigned field"),
    S2J_FIELD(RtspServerParameter, RtspOverHttpPort, "port for RTSP tunnelled in HTTP; a 16-bit unsigned field"),
    S2J_FIELD(RtspServerParameter, AuthenticationEnable, "1 makes RTSP clients authenticate, 0 does not"),
    S2J_FIELD(RtspServerParameter, AuthUseSystemDatabase,
              "1 checks clients against the device's own user accounts, 0 against \"AuthUsername\" and "
              "\"AuthPassword\""),
    S2J_FIELD(RtspServerParameter, AuthUsername, "user name that clients authenticate with"),
    S2J_FIELD(RtspServerParameter, AuthPassword, "carried like any other text field"),
    S2J_FIELD(RtspServerParameter, AuthRealmName, "authentication realm"),
    S2J_FIELD(RtspServerParameter, ClientLivenessTimeout,
              "time after which a silent client is dropped; unit not fixed by the library"),
};
S2J_RECORD(RtspServerParameter)

static constexpr s2j::Field HttpStreamingServerParameter_fields[] = {
    S2J_FIELD(HttpStreamingServerParameter, Enable, "1 runs the HTTP streaming server, 0 stops it"),
    S2J_FIELD(HttpStreamingServerParameter, Port, "listening port"),
};
S2J_RECORD(HttpStreamingServerParameter)

// Port is int32_t: a stored value with the top bit set is emitted negative.
static constexpr s2j::Field OnvifServerParameter_fields[] = {
    S2J_FIELD(OnvifServerParameter, Enable, "1 runs the ONVIF server, 0 stops it"),
    S2J_FIELD(OnvifServerParameter, UserList, "list of the service's users, held as text; not interpreted"),
    S2J_FIELD(OnvifServerParameter, Port,
              "listening port; signed here, unlike every other \"Port\" of the device's records, and kept so"),
    S2J_FIELD(OnvifServerParameter, ScopeName, "discovery scope: name"),
    S2J_FIELD(OnvifServerParameter, ScopeLocationCountry, "discovery scope: country"),
    S2J_FIELD(OnvifServerParameter, ScopeLocationCity, "discovery scope: city"),
};
S2J_RECORD(OnvifServerParameter)

static constexpr s2j::Field WebServerParameter_fields[] = {
    S2J_FIELD(WebServerParameter, Port, "listening port"),
};
S2J_RECORD(WebServerParameter)

static constexpr s2j::Field StreamingInputCapabilitySet_fields[] = {
    S2J_FIELD(StreamingInputCapabilitySet, SupportRtspStreaming,
              "1 when the device can take streams in over RTSP, 0 when not"),
    S2J_FIELD(StreamingInputCapabilitySet, SupportRtmpStreaming,
              "1 when the device can take streams in over RTMP, 0 when not"),
    S2J_FIELD(StreamingInputCapabilitySet, SupportUdpStreaming,
              "1 when the device can take streams in over UDP, 0 when not"),
    S2J_FIELD(StreamingInputCapabilitySet, SupportHttpStreaming,
              "1 when the device can take streams in over HTTP, 0 when not"),
    S2J_FIELD(StreamingInputCapabilitySet, SupportSrtStreaming,
              "1 when the device can take streams in over SRT, 0 when not"),
    S2J_FIELD(StreamingInputCapabilitySet, MaxStreamingNumber, "greatest number of inputs"),
    S2J_FIELD(StreamingInputCapabilitySet, MaxStreamingBandwidth, "greatest total input bandwidth"),
};
S2J_RECORD(StreamingInputCapabilitySet)

static constexpr s2j::Field StreamingInputParameter_fields[] = {
    S2J_FIELD(StreamingInputParameter, Index, "index that identifies the element; key field"),
    S2J_FIELD(StreamingInputParameter, URL, "source URL"),
    S2J_FIELD(StreamingInputParameter, Alias, "display name"),
    S2J_FIELD(StreamingInputParameter, AuthUsername, "user name for the source, when it asks for one"),
    S2J_FIELD(StreamingInputParameter, AuthPassword, "carried like any other text field"),
};
static constexpr s2j::Key StreamingInputParameter_keys[] = {
    S2J_KEY(StreamingInputParameter, Index),
};
S2J_RECORD_KEYWORD_GET(StreamingInputParameter, Index)

static constexpr s2j::Field StreamingInputStatus_fields[] = {
    S2J_FIELD(StreamingInputStatus, Index, "index that identifies the element; key field"),
    S2J_FIELD(StreamingInputStatus, IsEnabled, "1 when the input is enabled, 0 when not"),
    S2J_FIELD(StreamingInputStatus, IsConnected, "1 when the input is connected to its source, 0 when not"),
    S2J_FIELD(StreamingInputStatus, RealtimeBandwidth, "bandwidth of the input now; unit not fixed by the library"),
    S2J_FIELD(StreamingInputStatus, AverageBandwidth,
              "average bandwidth of the input, in the unit of \"RealtimeBandwidth\""),
    S2J_FIELD(StreamingInputStatus, ErrorMessage, "last error of the input, as text"),
};
// A status has the single-key reader only.
static constexpr s2j::Key StreamingInputStatus_keys[] = {
    S2J_GET_KEY(StreamingInputStatus, Index),
};
S2J_RECORD_GET(StreamingInputStatus, Index)

static constexpr s2j::Field StreamingInputStatusChange_fields[] = {
    S2J_FIELD(StreamingInputStatusChange, Index, "input concerned"),
    S2J_FIELD(StreamingInputStatusChange, URL, "address of the input's source"),
    S2J_FIELD(StreamingInputStatusChange, Alias, "name of the input shown to users"),
    S2J_FIELD(StreamingInputStatusChange, IsEnabled, "1 when the input is enabled, 0 when not"),
    S2J_FIELD(StreamingInputStatusChange, IsConnected, "1 when the input is connected to its source, 0 when not"),
};
S2J_RECORD(StreamingInputStatusChange)

// IndexList and UseCountList are uint32_t[256]: always emitted as 256 integers;
// read by position, skipping items that are not integers, and refused when a
// list present yields no integer at all.  The keyword reader is this record's
// reader with every key required.
static constexpr s2j::Field StreamingInputUseCount_fields[] = {
    S2J_FIELD(StreamingInputUseCount, OperationType,
              "kind of operation on the use counts, as a code; its values are not interpreted"),
    S2J_FIELD(StreamingInputUseCount, StreamingNumber,
              "number of entries that the caller means; the library does not use it to bound the lists"),
    S2J_FIELD(StreamingInputUseCount, IndexList, "JSON array of integers"),
    S2J_FIELD(StreamingInputUseCount, UseCountList, "JSON array of integers, parallel to \"IndexList\""),
};
S2J_RECORD_KEYWORD_ALL_FIELDS(StreamingInputUseCount)
