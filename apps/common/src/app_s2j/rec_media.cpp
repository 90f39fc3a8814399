// rec_media.cpp - records of video and audio inputs, their status, video and
// audio encoders and encoder on-screen text: their field tables, emitters,
// readers and keyword readers.
#include "s2j_internal.h"

// ---- Video input ----

static constexpr s2j::Field VideoInputCapabilitySet_fields[] = {
    S2J_FIELD(VideoInputCapabilitySet, SupportedVideoInputInterfaceList, "list of interface names held as text; not interpreted"),
    S2J_FIELD(VideoInputCapabilitySet, SupportImageColorAdjust, "flag"),
    S2J_FIELD(VideoInputCapabilitySet, MaxImageBrightness, ""),
    S2J_FIELD(VideoInputCapabilitySet, MaxImageContrast, ""),
    S2J_FIELD(VideoInputCapabilitySet, MaxImageSaturation, ""),
    S2J_FIELD(VideoInputCapabilitySet, MaxImageHue, ""),
};
S2J_RECORD(VideoInputCapabilitySet)

static constexpr s2j::Field VideoInputInterface_fields[] = {
    S2J_FIELD(VideoInputInterface, Name, ""),
    S2J_FIELD(VideoInputInterface, Type, ""),
    S2J_FIELD(VideoInputInterface, Alias, ""),
    S2J_FIELD(VideoInputInterface, HardwareRelated, "flag"),
    S2J_FIELD(VideoInputInterface, Removeable, "flag; the key is spelled \"Removeable\" on purpose, and only that spelling is written and read"),
    S2J_FIELD(VideoInputInterface, SupportTimingManualConfig, "flag"),
    S2J_FIELD(VideoInputInterface, SupportEmbeddedAudio, "flag"),
    S2J_FIELD(VideoInputInterface, MaxInputTiming, ""),
    S2J_FIELD(VideoInputInterface, SupportedManualTimingList, "list held as text; not interpreted"),
};
S2J_RECORD(VideoInputInterface)

// The two scanning-frequency parts are uint16_t members, so their rows get
// the 16-bit kind: emitted zero-extended, read as the low 16 bits of the
// integer without a range check.  The record is stepped through arrays by
// its own size, both halves in the room of one 32-bit field.
static constexpr s2j::Field VideoInputParameter_fields[] = {
    S2J_FIELD(VideoInputParameter, Channel, "key field"),
    S2J_FIELD(VideoInputParameter, InterfaceName, "the input interface that feeds the channel"),
    S2J_FIELD(VideoInputParameter, ManualConfigTiming, "flag"),
    S2J_FIELD(VideoInputParameter, TimingType, ""),
    S2J_FIELD(VideoInputParameter, Width, ""),
    S2J_FIELD(VideoInputParameter, Height, ""),
    S2J_FIELD(VideoInputParameter, ScanningFrequencyInteger, "integer part of the scanning frequency"),
    S2J_FIELD(VideoInputParameter, ScanningFrequencyDecimal, "fractional part, directly after \"ScanningFrequencyInteger\""),
    S2J_FIELD(VideoInputParameter, ScanningMode, ""),
    S2J_FIELD(VideoInputParameter, Brightness, ""),
    S2J_FIELD(VideoInputParameter, Hue, ""),
    S2J_FIELD(VideoInputParameter, Contrast, ""),
    S2J_FIELD(VideoInputParameter, Saturation, ""),
    S2J_FIELD(VideoInputParameter, VideoLostContinueFrames, ""),
    S2J_FIELD(VideoInputParameter, VideoResumeContinueFrames, ""),
    S2J_FIELD(VideoInputParameter, VideoLostAction, ""),
};
static constexpr s2j::Key VideoInputParameter_keys[] = {
    S2J_KEY(VideoInputParameter, Channel),
};
S2J_RECORD_KEYWORD_GET(VideoInputParameter, Channel)

static constexpr s2j::Field VideoInputStatus_fields[] = {
    S2J_FIELD(VideoInputStatus, InterfaceName, ""),
    S2J_FIELD(VideoInputStatus, CableIsPlugged, "flag"),
    S2J_FIELD(VideoInputStatus, SignalIsValid, "flag"),
    S2J_FIELD(VideoInputStatus, VideoInputTiming, "the detected timing as text"),
    S2J_FIELD(VideoInputStatus, HasEmbeddedAudio, "flag"),
    S2J_FIELD(VideoInputStatus, EmbeddedAudioSamplerate, ""),
    S2J_FIELD(VideoInputStatus, InputTimingDetails, "held as text; not interpreted"),
};
// A live status has no keyed update: only the single-key reader picks an
// interface out of a JSON array by name.
static constexpr s2j::Key VideoInputStatus_keys[] = {
    S2J_GET_KEY(VideoInputStatus, InterfaceName),
};
S2J_RECORD_GET(VideoInputStatus, InterfaceName)

static constexpr s2j::Field VideoInputVGAParameter_fields[] = {
    S2J_FIELD(VideoInputVGAParameter, InterfaceName, "key field"),
    S2J_FIELD(VideoInputVGAParameter, BlackEdgeIsSelfCorrection, "flag"),
    S2J_FIELD(VideoInputVGAParameter, CorrectedPhaseValue, ""),
    S2J_FIELD(VideoInputVGAParameter, CorrectedOffsetX, ""),
    S2J_FIELD(VideoInputVGAParameter, CorrectedOffsetY, ""),
};
static constexpr s2j::Key VideoInputVGAParameter_keys[] = {
    S2J_KEY(VideoInputVGAParameter, InterfaceName),
};
S2J_RECORD_KEYWORD_GET(VideoInputVGAParameter, InterfaceName)

// ---- Video encoding ----

static constexpr s2j::Field VideoEncodeCapabilitySet_fields[] = {
    S2J_FIELD(VideoEncodeCapabilitySet, SupportedVideoEncodeSizeList, "list of encoding sizes held as text; not interpreted"),
    S2J_FIELD(VideoEncodeCapabilitySet, MaxVideoEncodeWidth, ""),
    S2J_FIELD(VideoEncodeCapabilitySet, MaxVideoEncodeHeight, ""),
    S2J_FIELD(VideoEncodeCapabilitySet, MaxVideoEncodeFramerate, ""),
    S2J_FIELD(VideoEncodeCapabilitySet, SupportedVideoCodecList, "list held as text; not interpreted"),
    S2J_FIELD(VideoEncodeCapabilitySet, SupportedH264CodecProfileList, "list held as text; not interpreted"),
    S2J_FIELD(VideoEncodeCapabilitySet, SupportedH265CodecProfileList, "list held as text; not interpreted"),
    S2J_FIELD(VideoEncodeCapabilitySet, SupportedBitrateControlAlgorithmList, "list held as text; not interpreted"),
    S2J_FIELD(VideoEncodeCapabilitySet, MaxVideoEncodeBitrate, ""),
    S2J_FIELD(VideoEncodeCapabilitySet, MaxVideoEncodeGOP, ""),
    S2J_FIELD(VideoEncodeCapabilitySet, MinVideoEncodeWidth, ""),
    S2J_FIELD(VideoEncodeCapabilitySet, MinVideoEncodeHeight, ""),
    S2J_FIELD(VideoEncodeCapabilitySet, MinVideoEncodeBitrate, ""),
    S2J_FIELD(VideoEncodeCapabilitySet, MaxVideoEncodeCapability, ""),
    S2J_FIELD(VideoEncodeCapabilitySet, SelfAdaptiveVideoEncodeSizeCapability, "flag"),
    S2J_FIELD(VideoEncodeCapabilitySet, Rotate, "flag: rotation offered"),
    S2J_FIELD(VideoEncodeCapabilitySet, Mirror, "flag"),
    S2J_FIELD(VideoEncodeCapabilitySet, Flip, "flag"),
    S2J_FIELD(VideoEncodeCapabilitySet, Crop, "flag"),
};
S2J_RECORD(VideoEncodeCapabilitySet)

// One stream of one channel.  The frame-rate parts are 16-bit like the
// scanning frequency above; "Rotate" is an unsigned value here, while the
// capability set's "Rotate" is a signed flag.
static constexpr s2j::Field VideoEncodeParameter_fields[] = {
    S2J_FIELD(VideoEncodeParameter, Channel, "key field"),
    S2J_FIELD(VideoEncodeParameter, StreamIndex, "key field"),
    S2J_FIELD(VideoEncodeParameter, Enable, "flag"),
    S2J_FIELD(VideoEncodeParameter, SelfAdaptiveVideoEncodeSize, "flag"),
    S2J_FIELD(VideoEncodeParameter, Width, ""),
    S2J_FIELD(VideoEncodeParameter, Height, ""),
    S2J_FIELD(VideoEncodeParameter, FramerateInteger, "integer part of the frame rate"),
    S2J_FIELD(VideoEncodeParameter, FramerateDecimal, "fractional part of the frame rate, directly after \"FramerateInteger\""),
    S2J_FIELD(VideoEncodeParameter, Codec, ""),
    S2J_FIELD(VideoEncodeParameter, Profile, ""),
    S2J_FIELD(VideoEncodeParameter, BitrateControl, ""),
    S2J_FIELD(VideoEncodeParameter, GOP, ""),
    S2J_FIELD(VideoEncodeParameter, Bitrate, ""),
    S2J_FIELD(VideoEncodeParameter, ImageQuality, ""),
    S2J_FIELD(VideoEncodeParameter, Rotate, "a value, not a flag: unsigned here, unlike the int32 flag \"Rotate\" of the capability set"),
    S2J_FIELD(VideoEncodeParameter, Mirror, "flag"),
    S2J_FIELD(VideoEncodeParameter, Flip, "flag"),
    S2J_FIELD(VideoEncodeParameter, Crop, "flag"),
    S2J_FIELD(VideoEncodeParameter, CropLeftOffset, ""),
    S2J_FIELD(VideoEncodeParameter, CropTopOffset, ""),
    S2J_FIELD(VideoEncodeParameter, CropRightOffset, ""),
    S2J_FIELD(VideoEncodeParameter, CropBottomOffset, ""),
    S2J_FIELD(VideoEncodeParameter, CropOffsetBase, "the base to which the four crop offsets refer"),
};
// Streams are told apart by channel and stream together; the single-key
// reader returns the channel alone.
static constexpr s2j::Key VideoEncodeParameter_keys[] = {
    S2J_KEY(VideoEncodeParameter, Channel),
    S2J_KEY(VideoEncodeParameter, StreamIndex),
};
S2J_RECORD_KEYWORD_GET(VideoEncodeParameter, Channel)

static constexpr s2j::Field RequestIDRParameter_fields[] = {
    S2J_FIELD(RequestIDRParameter, Channel, ""),
    S2J_FIELD(RequestIDRParameter, StreamIndex, ""),
};
S2J_RECORD(RequestIDRParameter)

// ---- Encoder OSD ----

static constexpr s2j::Field VideoEncodeOSDCapabilitySet_fields[] = {
    S2J_FIELD(VideoEncodeOSDCapabilitySet, OSDNumberPerChannel, "number of OSD items a channel may carry"),
    S2J_FIELD(VideoEncodeOSDCapabilitySet, SupportDynamicText, "flag"),
    S2J_FIELD(VideoEncodeOSDCapabilitySet, SupportPicture, "flag"),
};
S2J_RECORD(VideoEncodeOSDCapabilitySet)

static constexpr s2j::Field VideoEncodeOSDParameter_fields[] = {
    S2J_FIELD(VideoEncodeOSDParameter, Channel, "key field"),
    S2J_FIELD(VideoEncodeOSDParameter, Index, "key field: the item's number within the channel"),
    S2J_FIELD(VideoEncodeOSDParameter, Type, "kind of item"),
    S2J_FIELD(VideoEncodeOSDParameter, Visible, "flag"),
    S2J_FIELD(VideoEncodeOSDParameter, AutoFontSize, ""),
    S2J_FIELD(VideoEncodeOSDParameter, FixedFontSize, ""),
    S2J_FIELD(VideoEncodeOSDParameter, Bold, "flag"),
    S2J_FIELD(VideoEncodeOSDParameter, Stroke, "flag"),
    S2J_FIELD(VideoEncodeOSDParameter, ForeColor, "colour held as text; not interpreted"),
    S2J_FIELD(VideoEncodeOSDParameter, ForeAlpha, ""),
    S2J_FIELD(VideoEncodeOSDParameter, BackColor, "colour held as text; not interpreted"),
    S2J_FIELD(VideoEncodeOSDParameter, BackAlpha, ""),
    S2J_FIELD(VideoEncodeOSDParameter, CoordinateOrigin, ""),
    S2J_FIELD(VideoEncodeOSDParameter, XCoordinate, ""),
    S2J_FIELD(VideoEncodeOSDParameter, YCoordinate, ""),
    S2J_FIELD(VideoEncodeOSDParameter, CoordinateBase, "the base to which the coordinates refer"),
    S2J_FIELD(VideoEncodeOSDParameter, Content, "the text or other content of the item"),
};
// OSD items are told apart by channel and item number together.
static constexpr s2j::Key VideoEncodeOSDParameter_keys[] = {
    S2J_KEY(VideoEncodeOSDParameter, Channel),
    S2J_KEY(VideoEncodeOSDParameter, Index),
};
S2J_RECORD_KEYWORD_GET(VideoEncodeOSDParameter, Channel)

// ---- Audio input and encoding ----

static constexpr s2j::Field AudioInputCapabilitySet_fields[] = {
    S2J_FIELD(AudioInputCapabilitySet, SupportedAudioInputInterfaceList, "list of interface names held as text; not interpreted"),
    S2J_FIELD(AudioInputCapabilitySet, SupportVolumeControl, "flag"),
    S2J_FIELD(AudioInputCapabilitySet, MinVolume, ""),
    S2J_FIELD(AudioInputCapabilitySet, MaxVolume, ""),
    S2J_FIELD(AudioInputCapabilitySet, SupportGainControl, "flag"),
    S2J_FIELD(AudioInputCapabilitySet, MinGain, ""),
    S2J_FIELD(AudioInputCapabilitySet, MaxGain, ""),
};
S2J_RECORD(AudioInputCapabilitySet)

static constexpr s2j::Field AudioInputInterface_fields[] = {
    S2J_FIELD(AudioInputInterface, Name, ""),
    S2J_FIELD(AudioInputInterface, Type, ""),
    S2J_FIELD(AudioInputInterface, Alias, ""),
    S2J_FIELD(AudioInputInterface, MinAudioSamplerate, ""),
    S2J_FIELD(AudioInputInterface, MaxAudioSamplerate, ""),
    S2J_FIELD(AudioInputInterface, MaxSamplingBitWidth, ""),
    S2J_FIELD(AudioInputInterface, MaxAudioChannels, ""),
    S2J_FIELD(AudioInputInterface, IsAnalogAudio, "flag"),
    S2J_FIELD(AudioInputInterface, IsEmbeddedAudio, "flag"),
    S2J_FIELD(AudioInputInterface, SupportedSampleRateList, "list held as text; not interpreted"),
    S2J_FIELD(AudioInputInterface, SupportVolumeControl, "flag"),
    S2J_FIELD(AudioInputInterface, MinVolume, ""),
    S2J_FIELD(AudioInputInterface, MaxVolume, ""),
    S2J_FIELD(AudioInputInterface, SupportGainControl, "flag"),
    S2J_FIELD(AudioInputInterface, MinGain, ""),
    S2J_FIELD(AudioInputInterface, MaxGain, ""),
};
S2J_RECORD(AudioInputInterface)

static constexpr s2j::Field AudioInputInterfaceParameter_fields[] = {
    S2J_FIELD(AudioInputInterfaceParameter, InterfaceName, "key field"),
    S2J_FIELD(AudioInputInterfaceParameter, Volume, ""),
    S2J_FIELD(AudioInputInterfaceParameter, Gain, ""),
};
static constexpr s2j::Key AudioInputInterfaceParameter_keys[] = {
    S2J_KEY(AudioInputInterfaceParameter, InterfaceName),
};
S2J_RECORD_KEYWORD_GET(AudioInputInterfaceParameter, InterfaceName)

static constexpr s2j::Field AudioInputParameter_fields[] = {
    S2J_FIELD(AudioInputParameter, Channel, "key field"),
    S2J_FIELD(AudioInputParameter, InterfaceName, "the audio input interface that feeds the channel"),
    S2J_FIELD(AudioInputParameter, Volume, ""),
    S2J_FIELD(AudioInputParameter, Gain, ""),
};
static constexpr s2j::Key AudioInputParameter_keys[] = {
    S2J_KEY(AudioInputParameter, Channel),
};
S2J_RECORD_KEYWORD_GET(AudioInputParameter, Channel)

static constexpr s2j::Field AudioInputStatus_fields[] = {
    S2J_FIELD(AudioInputStatus, InterfaceName, ""),
    S2J_FIELD(AudioInputStatus, CableIsPlugged, "flag"),
    S2J_FIELD(AudioInputStatus, SignalIsValid, "flag"),
    S2J_FIELD(AudioInputStatus, AudioSamplerate, ""),
    S2J_FIELD(AudioInputStatus, SamplingBitWidth, ""),
    S2J_FIELD(AudioInputStatus, AudioChannels, ""),
    S2J_FIELD(AudioInputStatus, InputTimingDetails, "held as text; not interpreted"),
    S2J_FIELD(AudioInputStatus, Volume, ""),
    S2J_FIELD(AudioInputStatus, Gain, ""),
};
static constexpr s2j::Key AudioInputStatus_keys[] = {
    S2J_GET_KEY(AudioInputStatus, InterfaceName),
};
S2J_RECORD_GET(AudioInputStatus, InterfaceName)

static constexpr s2j::Field AudioEncodeCapabilitySet_fields[] = {
    S2J_FIELD(AudioEncodeCapabilitySet, SupportedAudioCodecList, "list held as text; not interpreted"),
    S2J_FIELD(AudioEncodeCapabilitySet, AacLcSupportedSamplerateList, "sample rates offered with AAC-LC; list held as text"),
    S2J_FIELD(AudioEncodeCapabilitySet, HeAacSupportedSamplerateList, "with HE-AAC"),
    S2J_FIELD(AudioEncodeCapabilitySet, HeAacV2SupportedSamplerateList, "with HE-AAC version 2"),
    S2J_FIELD(AudioEncodeCapabilitySet, G711SupportedSamplerateList, "with G.711"),
    S2J_FIELD(AudioEncodeCapabilitySet, AacLcSupportedBitrateList, "bit rates offered with AAC-LC; list held as text"),
    S2J_FIELD(AudioEncodeCapabilitySet, HeAacSupportedBitrateList, "with HE-AAC"),
    S2J_FIELD(AudioEncodeCapabilitySet, HeAacV2SupportedBitrateList, "with HE-AAC version 2"),
    S2J_FIELD(AudioEncodeCapabilitySet, G711SupportedBitrateList, "with G.711"),
    S2J_FIELD(AudioEncodeCapabilitySet, SupportResample, "flag"),
};
S2J_RECORD(AudioEncodeCapabilitySet)

static constexpr s2j::Field AudioEncodeParameter_fields[] = {
    S2J_FIELD(AudioEncodeParameter, Channel, "key field"),
    S2J_FIELD(AudioEncodeParameter, Enable, "flag"),
    S2J_FIELD(AudioEncodeParameter, Codec, ""),
    S2J_FIELD(AudioEncodeParameter, Samplerate, ""),
    S2J_FIELD(AudioEncodeParameter, SameWithAudioInputSamplerate, "flag: encode at the input's own sample rate"),
    S2J_FIELD(AudioEncodeParameter, Bitrate, ""),
};
static constexpr s2j::Key AudioEncodeParameter_keys[] = {
    S2J_KEY(AudioEncodeParameter, Channel),
};
S2J_RECORD_KEYWORD_GET(AudioEncodeParameter, Channel)
