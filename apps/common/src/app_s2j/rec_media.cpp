// rec_media.cpp - records of video and audio inputs, their status, video and
// audio encoders and encoder on-screen text: their field tables, emitters,
// readers and keyword readers.
#include "s2j_internal.h"

// ---- Video input ----

static constexpr s2j::Field VideoInputCapabilitySet_fields[] = {
    S2J_FIELD(VideoInputCapabilitySet, SupportedVideoInputInterfaceList),
    S2J_FIELD(VideoInputCapabilitySet, SupportImageColorAdjust),
    S2J_FIELD(VideoInputCapabilitySet, MaxImageBrightness),
    S2J_FIELD(VideoInputCapabilitySet, MaxImageContrast),
    S2J_FIELD(VideoInputCapabilitySet, MaxImageSaturation),
    S2J_FIELD(VideoInputCapabilitySet, MaxImageHue),
};
S2J_RECORD(VideoInputCapabilitySet)

static constexpr s2j::Field VideoInputInterface_fields[] = {
    S2J_FIELD(VideoInputInterface, Name),
    S2J_FIELD(VideoInputInterface, Type),
    S2J_FIELD(VideoInputInterface, Alias),
    S2J_FIELD(VideoInputInterface, HardwareRelated),
    S2J_FIELD(VideoInputInterface, Removeable),
    S2J_FIELD(VideoInputInterface, SupportTimingManualConfig),
    S2J_FIELD(VideoInputInterface, SupportEmbeddedAudio),
    S2J_FIELD(VideoInputInterface, MaxInputTiming),
    S2J_FIELD(VideoInputInterface, SupportedManualTimingList),
};
S2J_RECORD(VideoInputInterface)

// The two scanning-frequency parts are uint16_t members, so their rows get
// the 16-bit kind: emitted zero-extended, read as the low 16 bits of the
// integer without a range check.  The record is stepped through arrays by
// its own size, both halves in the room of one 32-bit field.
static constexpr s2j::Field VideoInputParameter_fields[] = {
    S2J_FIELD(VideoInputParameter, Channel),
    S2J_FIELD(VideoInputParameter, InterfaceName),
    S2J_FIELD(VideoInputParameter, ManualConfigTiming),
    S2J_FIELD(VideoInputParameter, TimingType),
    S2J_FIELD(VideoInputParameter, Width),
    S2J_FIELD(VideoInputParameter, Height),
    S2J_FIELD(VideoInputParameter, ScanningFrequencyInteger),
    S2J_FIELD(VideoInputParameter, ScanningFrequencyDecimal),
    S2J_FIELD(VideoInputParameter, ScanningMode),
    S2J_FIELD(VideoInputParameter, Brightness),
    S2J_FIELD(VideoInputParameter, Hue),
    S2J_FIELD(VideoInputParameter, Contrast),
    S2J_FIELD(VideoInputParameter, Saturation),
    S2J_FIELD(VideoInputParameter, VideoLostContinueFrames),
    S2J_FIELD(VideoInputParameter, VideoResumeContinueFrames),
    S2J_FIELD(VideoInputParameter, VideoLostAction),
};
static constexpr s2j::Key VideoInputParameter_keys[] = {
    S2J_KEY(VideoInputParameter, Channel),
};
S2J_RECORD_KEYWORD_GET(VideoInputParameter, Channel)

static constexpr s2j::Field VideoInputStatus_fields[] = {
    S2J_FIELD(VideoInputStatus, InterfaceName),
    S2J_FIELD(VideoInputStatus, CableIsPlugged),
    S2J_FIELD(VideoInputStatus, SignalIsValid),
    S2J_FIELD(VideoInputStatus, VideoInputTiming),
    S2J_FIELD(VideoInputStatus, HasEmbeddedAudio),
    S2J_FIELD(VideoInputStatus, EmbeddedAudioSamplerate),
    S2J_FIELD(VideoInputStatus, InputTimingDetails),
};
// A live status has no keyed update: only the single-key reader picks an
// interface out of a JSON array by name.
static constexpr s2j::Key VideoInputStatus_keys[] = {
    S2J_GET_KEY(VideoInputStatus, InterfaceName),
};
S2J_RECORD_GET(VideoInputStatus, InterfaceName)

static constexpr s2j::Field VideoInputVGAParameter_fields[] = {
    S2J_FIELD(VideoInputVGAParameter, InterfaceName),
    S2J_FIELD(VideoInputVGAParameter, BlackEdgeIsSelfCorrection),
    S2J_FIELD(VideoInputVGAParameter, CorrectedPhaseValue),
    S2J_FIELD(VideoInputVGAParameter, CorrectedOffsetX),
    S2J_FIELD(VideoInputVGAParameter, CorrectedOffsetY),
};
static constexpr s2j::Key VideoInputVGAParameter_keys[] = {
    S2J_KEY(VideoInputVGAParameter, InterfaceName),
};
S2J_RECORD_KEYWORD_GET(VideoInputVGAParameter, InterfaceName)

// ---- Video encoding ----

static constexpr s2j::Field VideoEncodeCapabilitySet_fields[] = {
    S2J_FIELD(VideoEncodeCapabilitySet, SupportedVideoEncodeSizeList),
    S2J_FIELD(VideoEncodeCapabilitySet, MaxVideoEncodeWidth),
    S2J_FIELD(VideoEncodeCapabilitySet, MaxVideoEncodeHeight),
    S2J_FIELD(VideoEncodeCapabilitySet, MaxVideoEncodeFramerate),
    S2J_FIELD(VideoEncodeCapabilitySet, SupportedVideoCodecList),
    S2J_FIELD(VideoEncodeCapabilitySet, SupportedH264CodecProfileList),
    S2J_FIELD(VideoEncodeCapabilitySet, SupportedH265CodecProfileList),
    S2J_FIELD(VideoEncodeCapabilitySet, SupportedBitrateControlAlgorithmList),
    S2J_FIELD(VideoEncodeCapabilitySet, MaxVideoEncodeBitrate),
    S2J_FIELD(VideoEncodeCapabilitySet, MaxVideoEncodeGOP),
    S2J_FIELD(VideoEncodeCapabilitySet, MinVideoEncodeWidth),
    S2J_FIELD(VideoEncodeCapabilitySet, MinVideoEncodeHeight),
    S2J_FIELD(VideoEncodeCapabilitySet, MinVideoEncodeBitrate),
    S2J_FIELD(VideoEncodeCapabilitySet, MaxVideoEncodeCapability),
    S2J_FIELD(VideoEncodeCapabilitySet, SelfAdaptiveVideoEncodeSizeCapability),
    S2J_FIELD(VideoEncodeCapabilitySet, Rotate),
    S2J_FIELD(VideoEncodeCapabilitySet, Mirror),
    S2J_FIELD(VideoEncodeCapabilitySet, Flip),
    S2J_FIELD(VideoEncodeCapabilitySet, Crop),
};
S2J_RECORD(VideoEncodeCapabilitySet)

// One stream of one channel.  The frame-rate parts are 16-bit like the
// scanning frequency above; "Rotate" is an unsigned value here, while the
// capability set's "Rotate" is a signed flag.
static constexpr s2j::Field VideoEncodeParameter_fields[] = {
    S2J_FIELD(VideoEncodeParameter, Channel),
    S2J_FIELD(VideoEncodeParameter, StreamIndex),
    S2J_FIELD(VideoEncodeParameter, Enable),
    S2J_FIELD(VideoEncodeParameter, SelfAdaptiveVideoEncodeSize),
    S2J_FIELD(VideoEncodeParameter, Width),
    S2J_FIELD(VideoEncodeParameter, Height),
    S2J_FIELD(VideoEncodeParameter, FramerateInteger),
    S2J_FIELD(VideoEncodeParameter, FramerateDecimal),
    S2J_FIELD(VideoEncodeParameter, Codec),
    S2J_FIELD(VideoEncodeParameter, Profile),
    S2J_FIELD(VideoEncodeParameter, BitrateControl),
    S2J_FIELD(VideoEncodeParameter, GOP),
    S2J_FIELD(VideoEncodeParameter, Bitrate),
    S2J_FIELD(VideoEncodeParameter, ImageQuality),
    S2J_FIELD(VideoEncodeParameter, Rotate),
    S2J_FIELD(VideoEncodeParameter, Mirror),
    S2J_FIELD(VideoEncodeParameter, Flip),
    S2J_FIELD(VideoEncodeParameter, Crop),
    S2J_FIELD(VideoEncodeParameter, CropLeftOffset),
    S2J_FIELD(VideoEncodeParameter, CropTopOffset),
    S2J_FIELD(VideoEncodeParameter, CropRightOffset),
    S2J_FIELD(VideoEncodeParameter, CropBottomOffset),
    S2J_FIELD(VideoEncodeParameter, CropOffsetBase),
};
// Streams are told apart by channel and stream together; the single-key
// reader returns the channel alone.
static constexpr s2j::Key VideoEncodeParameter_keys[] = {
    S2J_KEY(VideoEncodeParameter, Channel),
    S2J_KEY(VideoEncodeParameter, StreamIndex),
};
S2J_RECORD_KEYWORD_GET(VideoEncodeParameter, Channel)

static constexpr s2j::Field RequestIDRParameter_fields[] = {
    S2J_FIELD(RequestIDRParameter, Channel),
    S2J_FIELD(RequestIDRParameter, StreamIndex),
};
S2J_RECORD(RequestIDRParameter)

// ---- Encoder OSD ----

static constexpr s2j::Field VideoEncodeOSDCapabilitySet_fields[] = {
    S2J_FIELD(VideoEncodeOSDCapabilitySet, OSDNumberPerChannel),
    S2J_FIELD(VideoEncodeOSDCapabilitySet, SupportDynamicText),
    S2J_FIELD(VideoEncodeOSDCapabilitySet, SupportPicture),
};
S2J_RECORD(VideoEncodeOSDCapabilitySet)

static constexpr s2j::Field VideoEncodeOSDParameter_fields[] = {
    S2J_FIELD(VideoEncodeOSDParameter, Channel),
    S2J_FIELD(VideoEncodeOSDParameter, Index),
    S2J_FIELD(VideoEncodeOSDParameter, Type),
    S2J_FIELD(VideoEncodeOSDParameter, Visible),
    S2J_FIELD(VideoEncodeOSDParameter, AutoFontSize),
    S2J_FIELD(VideoEncodeOSDParameter, FixedFontSize),
    S2J_FIELD(VideoEncodeOSDParameter, Bold),
    S2J_FIELD(VideoEncodeOSDParameter, Stroke),
    S2J_FIELD(VideoEncodeOSDParameter, ForeColor),
    S2J_FIELD(VideoEncodeOSDParameter, ForeAlpha),
    S2J_FIELD(VideoEncodeOSDParameter, BackColor),
    S2J_FIELD(VideoEncodeOSDParameter, BackAlpha),
    S2J_FIELD(VideoEncodeOSDParameter, CoordinateOrigin),
    S2J_FIELD(VideoEncodeOSDParameter, XCoordinate),
    S2J_FIELD(VideoEncodeOSDParameter, YCoordinate),
    S2J_FIELD(VideoEncodeOSDParameter, CoordinateBase),
    S2J_FIELD(VideoEncodeOSDParameter, Content),
};
// OSD items are told apart by channel and item number together.
static constexpr s2j::Key VideoEncodeOSDParameter_keys[] = {
    S2J_KEY(VideoEncodeOSDParameter, Channel),
    S2J_KEY(VideoEncodeOSDParameter, Index),
};
S2J_RECORD_KEYWORD_GET(VideoEncodeOSDParameter, Channel)

// ---- Audio input and encoding ----

static constexpr s2j::Field AudioInputCapabilitySet_fields[] = {
    S2J_FIELD(AudioInputCapabilitySet, SupportedAudioInputInterfaceList),
    S2J_FIELD(AudioInputCapabilitySet, SupportVolumeControl),
    S2J_FIELD(AudioInputCapabilitySet, MinVolume),
    S2J_FIELD(AudioInputCapabilitySet, MaxVolume),
    S2J_FIELD(AudioInputCapabilitySet, SupportGainControl),
    S2J_FIELD(AudioInputCapabilitySet, MinGain),
    S2J_FIELD(AudioInputCapabilitySet, MaxGain),
};
S2J_RECORD(AudioInputCapabilitySet)

static constexpr s2j::Field AudioInputInterface_fields[] = {
    S2J_FIELD(AudioInputInterface, Name),
    S2J_FIELD(AudioInputInterface, Type),
    S2J_FIELD(AudioInputInterface, Alias),
    S2J_FIELD(AudioInputInterface, MinAudioSamplerate),
    S2J_FIELD(AudioInputInterface, MaxAudioSamplerate),
    S2J_FIELD(AudioInputInterface, MaxSamplingBitWidth),
    S2J_FIELD(AudioInputInterface, MaxAudioChannels),
    S2J_FIELD(AudioInputInterface, IsAnalogAudio),
    S2J_FIELD(AudioInputInterface, IsEmbeddedAudio),
    S2J_FIELD(AudioInputInterface, SupportedSampleRateList),
    S2J_FIELD(AudioInputInterface, SupportVolumeControl),
    S2J_FIELD(AudioInputInterface, MinVolume),
    S2J_FIELD(AudioInputInterface, MaxVolume),
    S2J_FIELD(AudioInputInterface, SupportGainControl),
    S2J_FIELD(AudioInputInterface, MinGain),
    S2J_FIELD(AudioInputInterface, MaxGain),
};
S2J_RECORD(AudioInputInterface)

static constexpr s2j::Field AudioInputInterfaceParameter_fields[] = {
    S2J_FIELD(AudioInputInterfaceParameter, InterfaceName),
    S2J_FIELD(AudioInputInterfaceParameter, Volume),
    S2J_FIELD(AudioInputInterfaceParameter, Gain),
};
static constexpr s2j::Key AudioInputInterfaceParameter_keys[] = {
    S2J_KEY(AudioInputInterfaceParameter, InterfaceName),
};
S2J_RECORD_KEYWORD_GET(AudioInputInterfaceParameter, InterfaceName)

static constexpr s2j::Field AudioInputParameter_fields[] = {
    S2J_FIELD(AudioInputParameter, Channel),
    S2J_FIELD(AudioInputParameter, InterfaceName),
    S2J_FIELD(AudioInputParameter, Volume),
    S2J_FIELD(AudioInputParameter, Gain),
};
static constexpr s2j::Key AudioInputParameter_keys[] = {
    S2J_KEY(AudioInputParameter, Channel),
};
S2J_RECORD_KEYWORD_GET(AudioInputParameter, Channel)

static constexpr s2j::Field AudioInputStatus_fields[] = {
    S2J_FIELD(AudioInputStatus, InterfaceName),
    S2J_FIELD(AudioInputStatus, CableIsPlugged),
    S2J_FIELD(AudioInputStatus, SignalIsValid),
    S2J_FIELD(AudioInputStatus, AudioSamplerate),
    S2J_FIELD(AudioInputStatus, SamplingBitWidth),
    S2J_FIELD(AudioInputStatus, AudioChannels),
    S2J_FIELD(AudioInputStatus, InputTimingDetails),
    S2J_FIELD(AudioInputStatus, Volume),
    S2J_FIELD(AudioInputStatus, Gain),
};
static constexpr s2j::Key AudioInputStatus_keys[] = {
    S2J_GET_KEY(AudioInputStatus, InterfaceName),
};
S2J_RECORD_GET(AudioInputStatus, InterfaceName)

static constexpr s2j::Field AudioEncodeCapabilitySet_fields[] = {
    S2J_FIELD(AudioEncodeCapabilitySet, SupportedAudioCodecList),
    S2J_FIELD(AudioEncodeCapabilitySet, AacLcSupportedSamplerateList),
    S2J_FIELD(AudioEncodeCapabilitySet, HeAacSupportedSamplerateList),
    S2J_FIELD(AudioEncodeCapabilitySet, HeAacV2SupportedSamplerateList),
    S2J_FIELD(AudioEncodeCapabilitySet, G711SupportedSamplerateList),
    S2J_FIELD(AudioEncodeCapabilitySet, AacLcSupportedBitrateList),
    S2J_FIELD(AudioEncodeCapabilitySet, HeAacSupportedBitrateList),
    S2J_FIELD(AudioEncodeCapabilitySet, HeAacV2SupportedBitrateList),
    S2J_FIELD(AudioEncodeCapabilitySet, G711SupportedBitrateList),
    S2J_FIELD(AudioEncodeCapabilitySet, SupportResample),
};
S2J_RECORD(AudioEncodeCapabilitySet)

static constexpr s2j::Field AudioEncodeParameter_fields[] = {
    S2J_FIELD(AudioEncodeParameter, Channel),
    S2J_FIELD(AudioEncodeParameter, Enable),
    S2J_FIELD(AudioEncodeParameter, Codec),
    S2J_FIELD(AudioEncodeParameter, Samplerate),
    S2J_FIELD(AudioEncodeParameter, SameWithAudioInputSamplerate),
    S2J_FIELD(AudioEncodeParameter, Bitrate),
};
static constexpr s2j::Key AudioEncodeParameter_keys[] = {
    S2J_KEY(AudioEncodeParameter, Channel),
};
S2J_RECORD_KEYWORD_GET(AudioEncodeParameter, Channel)
