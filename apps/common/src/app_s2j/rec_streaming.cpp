// rec_streaming.cpp - records of streaming output and its transports, the
// streaming and web servers, and streaming inputs: their field tables,
// emitters, readers and keyword readers.
#include "s2j_internal.h"

static constexpr s2j::Field StreamingOutputCapabilitySet_fields[] = {
    S2J_FIELD(StreamingOutputCapabilitySet, SupportRtspStreaming),
    S2J_FIELD(StreamingOutputCapabilitySet, SupportRtmpStreaming),
    S2J_FIELD(StreamingOutputCapabilitySet, SupportUdpStreaming),
    S2J_FIELD(StreamingOutputCapabilitySet, SupportHttpStreaming),
    S2J_FIELD(StreamingOutputCapabilitySet, SupportSrtStreaming),
    S2J_FIELD(StreamingOutputCapabilitySet, MaxStreamingNumber),
    S2J_FIELD(StreamingOutputCapabilitySet, MaxStreamingBandwidth),
    S2J_FIELD(StreamingOutputCapabilitySet, SupportStreamingProtocolNumber),
};
S2J_RECORD(StreamingOutputCapabilitySet)

static constexpr s2j::Field RtspCapabilitySet_fields[] = {
    S2J_FIELD(RtspCapabilitySet, SupportRtspOverHttp),
    S2J_FIELD(RtspCapabilitySet, SupportAuthentication),
    S2J_FIELD(RtspCapabilitySet, StreamingNumberPerChannel),
    S2J_FIELD(RtspCapabilitySet, SupportedStreamTypeList),
};
S2J_RECORD(RtspCapabilitySet)

static constexpr s2j::Field RtmpCapabilitySet_fields[] = {
    S2J_FIELD(RtmpCapabilitySet, SupportEncryptedData),
    S2J_FIELD(RtmpCapabilitySet, SupportTunneledTraffic),
    S2J_FIELD(RtmpCapabilitySet, SupportRtmpOverSSL),
    S2J_FIELD(RtmpCapabilitySet, SupportH265Codec),
    S2J_FIELD(RtmpCapabilitySet, SupportRtmpServer),
    S2J_FIELD(RtmpCapabilitySet, StreamingNumberPerChannel),
};
S2J_RECORD(RtmpCapabilitySet)

static constexpr s2j::Field UdpCapabilitySet_fields[] = {
    S2J_FIELD(UdpCapabilitySet, SupportedStreamTypeList),
    S2J_FIELD(UdpCapabilitySet, SupportRtpPacket),
    S2J_FIELD(UdpCapabilitySet, StreamingNumberPerChannel),
    S2J_FIELD(UdpCapabilitySet, SupportBandwidthControl),
};
S2J_RECORD(UdpCapabilitySet)

static constexpr s2j::Field HttpStreamingCapabilitySet_fields[] = {
    S2J_FIELD(HttpStreamingCapabilitySet, StreamingNumberPerChannel),
    S2J_FIELD(HttpStreamingCapabilitySet, SupportTSOverHttp),
    S2J_FIELD(HttpStreamingCapabilitySet, SupportFLVOverHttp),
    S2J_FIELD(HttpStreamingCapabilitySet, SupportHLS),
    S2J_FIELD(HttpStreamingCapabilitySet, MaxHLSCacheFileNumber),
    S2J_FIELD(HttpStreamingCapabilitySet, MaxHLSCacheFileDuration),
    S2J_FIELD(HttpStreamingCapabilitySet, MaxHLSTotalCacheDuration),
};
S2J_RECORD(HttpStreamingCapabilitySet)

static constexpr s2j::Field SrtStreamingCapabilitySet_fields[] = {
    S2J_FIELD(SrtStreamingCapabilitySet, StreamingNumberPerChannel),
    S2J_FIELD(SrtStreamingCapabilitySet, SupportedModeList),
};
S2J_RECORD(SrtStreamingCapabilitySet)

static constexpr s2j::Field StreamingOutputParameter_fields[] = {
    S2J_FIELD(StreamingOutputParameter, RtspStreamingEnable),
    S2J_FIELD(StreamingOutputParameter, RtmpStreamingEnable),
    S2J_FIELD(StreamingOutputParameter, UdpStreamingEnable),
    S2J_FIELD(StreamingOutputParameter, HttpStreamingEnable),
    S2J_FIELD(StreamingOutputParameter, SrtStreamingEnable),
};
S2J_RECORD(StreamingOutputParameter)

static constexpr s2j::Field RtspStreamingParameter_fields[] = {
    S2J_FIELD(RtspStreamingParameter, Channel),
    S2J_FIELD(RtspStreamingParameter, Index),
    S2J_FIELD(RtspStreamingParameter, Enable),
    S2J_FIELD(RtspStreamingParameter, StreamIndex),
    S2J_FIELD(RtspStreamingParameter, StreamType),
    S2J_FIELD(RtspStreamingParameter, StreamPath),
};
// Elements are identified by the pair Channel, Index; the single-key reader
// takes Channel alone.
static constexpr s2j::Key RtspStreamingParameter_keys[] = {
    S2J_KEY(RtspStreamingParameter, Channel),
    S2J_KEY(RtspStreamingParameter, Index),
};
S2J_RECORD_KEYWORD_GET(RtspStreamingParameter, Channel)

static constexpr s2j::Field RtmpStreamingParameter_fields[] = {
    S2J_FIELD(RtmpStreamingParameter, Channel),
    S2J_FIELD(RtmpStreamingParameter, Index),
    S2J_FIELD(RtmpStreamingParameter, Enable),
    S2J_FIELD(RtmpStreamingParameter, StreamIndex),
    S2J_FIELD(RtmpStreamingParameter, StreamType),
    S2J_FIELD(RtmpStreamingParameter, StreamPath),
};
static constexpr s2j::Key RtmpStreamingParameter_keys[] = {
    S2J_KEY(RtmpStreamingParameter, Channel),
    S2J_KEY(RtmpStreamingParameter, Index),
};
S2J_RECORD_KEYWORD_GET(RtmpStreamingParameter, Channel)

static constexpr s2j::Field UdpStreamingParameter_fields[] = {
    S2J_FIELD(UdpStreamingParameter, Channel),
    S2J_FIELD(UdpStreamingParameter, Index),
    S2J_FIELD(UdpStreamingParameter, Enable),
    S2J_FIELD(UdpStreamingParameter, StreamIndex),
    S2J_FIELD(UdpStreamingParameter, StreamType),
    S2J_FIELD(UdpStreamingParameter, RtpPacket),
    S2J_FIELD(UdpStreamingParameter, DestinationIP),
    S2J_FIELD(UdpStreamingParameter, DestinationPort),
    S2J_FIELD(UdpStreamingParameter, BandwidthControlEnable),
    S2J_FIELD(UdpStreamingParameter, BandwidthControlLimit),
    S2J_FIELD(UdpStreamingParameter, BandwidthControlWindowSize),
    S2J_FIELD(UdpStreamingParameter, BandwidthControlPriority),
    S2J_FIELD(UdpStreamingParameter, BandwidthControlSmoothTime),
    S2J_FIELD(UdpStreamingParameter, BandwidthControlSmoothSize),
};
static constexpr s2j::Key UdpStreamingParameter_keys[] = {
    S2J_KEY(UdpStreamingParameter, Channel),
    S2J_KEY(UdpStreamingParameter, Index),
};
S2J_RECORD_KEYWORD_GET(UdpStreamingParameter, Channel)

static constexpr s2j::Field HttpStreamingParameter_fields[] = {
    S2J_FIELD(HttpStreamingParameter, Channel),
    S2J_FIELD(HttpStreamingParameter, Index),
    S2J_FIELD(HttpStreamingParameter, FLVEnable),
    S2J_FIELD(HttpStreamingParameter, TSEnable),
    S2J_FIELD(HttpStreamingParameter, HLSEnable),
    S2J_FIELD(HttpStreamingParameter, StreamIndex),
    S2J_FIELD(HttpStreamingParameter, HLSCacheFileNumber),
    S2J_FIELD(HttpStreamingParameter, HLSCacheFileDuration),
    S2J_FIELD(HttpStreamingParameter, HLSTotalCacheDuration),
    S2J_FIELD(HttpStreamingParameter, SessionName),
};
static constexpr s2j::Key HttpStreamingParameter_keys[] = {
    S2J_KEY(HttpStreamingParameter, Channel),
    S2J_KEY(HttpStreamingParameter, Index),
};
S2J_RECORD_KEYWORD_GET(HttpStreamingParameter, Channel)

static constexpr s2j::Field SrtStreamingParameter_fields[] = {
    S2J_FIELD(SrtStreamingParameter, Channel),
    S2J_FIELD(SrtStreamingParameter, Index),
    S2J_FIELD(SrtStreamingParameter, Enable),
    S2J_FIELD(SrtStreamingParameter, StreamIndex),
    S2J_FIELD(SrtStreamingParameter, Mode),
    S2J_FIELD(SrtStreamingParameter, Port),
    S2J_FIELD(SrtStreamingParameter, TargetIP),
    S2J_FIELD(SrtStreamingParameter, BandwidthOverheadPercent),
    S2J_FIELD(SrtStreamingParameter, StreamKeyName),
    S2J_FIELD(SrtStreamingParameter, Passphrase),
    S2J_FIELD(SrtStreamingParameter, AESKeySize),
    S2J_FIELD(SrtStreamingParameter, TargetURL),
};
static constexpr s2j::Key SrtStreamingParameter_keys[] = {
    S2J_KEY(SrtStreamingParameter, Channel),
    S2J_KEY(SrtStreamingParameter, Index),
};
S2J_RECORD_KEYWORD_GET(SrtStreamingParameter, Channel)

// Port and RtspOverHttpPort are uint16_t: emitted as 0..65535 and read as the
// low 16 bits of the JSON integer, without a range check.
static constexpr s2j::Field RtspServerParameter_fields[] = {
    S2J_FIELD(RtspServerParameter, Enable),
    S2J_FIELD(RtspServerParameter, Port),
    S2J_FIELD(RtspServerParameter, RtspOverHttpPort),
    S2J_FIELD(RtspServerParameter, AuthenticationEnable),
    S2J_FIELD(RtspServerParameter, AuthUseSystemDatabase),
    S2J_FIELD(RtspServerParameter, AuthUsername),
    S2J_FIELD(RtspServerParameter, AuthPassword),
    S2J_FIELD(RtspServerParameter, AuthRealmName),
    S2J_FIELD(RtspServerParameter, ClientLivenessTimeout),
};
S2J_RECORD(RtspServerParameter)

static constexpr s2j::Field HttpStreamingServerParameter_fields[] = {
    S2J_FIELD(HttpStreamingServerParameter, Enable),
    S2J_FIELD(HttpStreamingServerParameter, Port),
};
S2J_RECORD(HttpStreamingServerParameter)

// Port is int32_t: a stored value with the top bit set is emitted negative.
static constexpr s2j::Field OnvifServerParameter_fields[] = {
    S2J_FIELD(OnvifServerParameter, Enable),
    S2J_FIELD(OnvifServerParameter, UserList),
    S2J_FIELD(OnvifServerParameter, Port),
    S2J_FIELD(OnvifServerParameter, ScopeName),
    S2J_FIELD(OnvifServerParameter, ScopeLocationCountry),
    S2J_FIELD(OnvifServerParameter, ScopeLocationCity),
};
S2J_RECORD(OnvifServerParameter)

static constexpr s2j::Field WebServerParameter_fields[] = {
    S2J_FIELD(WebServerParameter, Port),
};
S2J_RECORD(WebServerParameter)

static constexpr s2j::Field StreamingInputCapabilitySet_fields[] = {
    S2J_FIELD(StreamingInputCapabilitySet, SupportRtspStreaming),
    S2J_FIELD(StreamingInputCapabilitySet, SupportRtmpStreaming),
    S2J_FIELD(StreamingInputCapabilitySet, SupportUdpStreaming),
    S2J_FIELD(StreamingInputCapabilitySet, SupportHttpStreaming),
    S2J_FIELD(StreamingInputCapabilitySet, SupportSrtStreaming),
    S2J_FIELD(StreamingInputCapabilitySet, MaxStreamingNumber),
    S2J_FIELD(StreamingInputCapabilitySet, MaxStreamingBandwidth),
};
S2J_RECORD(StreamingInputCapabilitySet)

static constexpr s2j::Field StreamingInputParameter_fields[] = {
    S2J_FIELD(StreamingInputParameter, Index),
    S2J_FIELD(StreamingInputParameter, URL),
    S2J_FIELD(StreamingInputParameter, Alias),
    S2J_FIELD(StreamingInputParameter, AuthUsername),
    S2J_FIELD(StreamingInputParameter, AuthPassword),
};
static constexpr s2j::Key StreamingInputParameter_keys[] = {
    S2J_KEY(StreamingInputParameter, Index),
};
S2J_RECORD_KEYWORD_GET(StreamingInputParameter, Index)

static constexpr s2j::Field StreamingInputStatus_fields[] = {
    S2J_FIELD(StreamingInputStatus, Index),
    S2J_FIELD(StreamingInputStatus, IsEnabled),
    S2J_FIELD(StreamingInputStatus, IsConnected),
    S2J_FIELD(StreamingInputStatus, RealtimeBandwidth),
    S2J_FIELD(StreamingInputStatus, AverageBandwidth),
    S2J_FIELD(StreamingInputStatus, ErrorMessage),
};
// A status has the single-key reader only.
static constexpr s2j::Key StreamingInputStatus_keys[] = {
    S2J_GET_KEY(StreamingInputStatus, Index),
};
S2J_RECORD_GET(StreamingInputStatus, Index)

static constexpr s2j::Field StreamingInputStatusChange_fields[] = {
    S2J_FIELD(StreamingInputStatusChange, Index),
    S2J_FIELD(StreamingInputStatusChange, URL),
    S2J_FIELD(StreamingInputStatusChange, Alias),
    S2J_FIELD(StreamingInputStatusChange, IsEnabled),
    S2J_FIELD(StreamingInputStatusChange, IsConnected),
};
S2J_RECORD(StreamingInputStatusChange)

// IndexList and UseCountList are uint32_t[256]: always emitted as 256 integers;
// read by position, skipping items that are not integers, and refused when a
// list present yields no integer at all.  The keyword reader is this record's
// reader with every key required.
static constexpr s2j::Field StreamingInputUseCount_fields[] = {
    S2J_FIELD(StreamingInputUseCount, OperationType),
    S2J_FIELD(StreamingInputUseCount, StreamingNumber),
    S2J_FIELD(StreamingInputUseCount, IndexList),
    S2J_FIELD(StreamingInputUseCount, UseCountList),
};
S2J_RECORD_STRICT(StreamingInputUseCount)
