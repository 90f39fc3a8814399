// rec_media.cpp - records of video and audio inputs, their status, video and
// audio encoders and encoder on-screen text: their field tables, emitters,
// readers and keyword readers.
#include "s2j_record_defs.h"

// ---- Video input ----

static constexpr s2j::Field VideoInputCapabilitySet_fields[] = {
    S2J_FIELD(VideoInputCapabilitySet, SupportedVideoInputInterfaceList,
              "list of interface names held as text; not interpreted"),
    S2J_FIELD(VideoInputCapabilitySet, SupportImageColorAdjust,
              "1 when the inputs' brightness, contrast, saturation and hue can be adjusted, 0 when not"),
    S2J_FIELD(VideoInputCapabilitySet, MaxImageBrightness, "greatest value of \"Brightness\" in VideoInputParameter"),
    S2J_FIELD(VideoInputCapabilitySet, MaxImageContrast, "greatest value of \"Contrast\" in VideoInputParameter"),
    S2J_FIELD(VideoInputCapabilitySet, MaxImageSaturation, "greatest value of \"Saturation\" in VideoInputParameter"),
    S2J_FIELD(VideoInputCapabilitySet, MaxImageHue, "greatest value of \"Hue\" in VideoInputParameter"),
};
S2J_RECORD(VideoInputCapabilitySet)

static constexpr s2j::Field VideoInputInterface_fields[] = {
    S2J_FIELD(VideoInputInterface, Name,
              "name of the interface, as \"InterfaceName\" of the input's other records gives it"),
    S2J_FIELD(VideoInputInterface, Type, "kind of interface, as text; its vocabulary is not fixed by the library"),
    S2J_FIELD(VideoInputInterface, Alias, "name shown to users"),
    S2J_FIELD(VideoInputInterface, HardwareRelated,
              "1 when the interface is a physical connector of the device, 0 when not"),
    S2J_FIELD(VideoInputInterface, Removeable,
              "1 when the interface can be removed, 0 when not; the key is spelled \"Removeable\", the only spelling "
              "written and read"),
    S2J_FIELD(VideoInputInterface, SupportTimingManualConfig,
              "1 when the input timing can be set by hand (\"ManualConfigTiming\"), 0 when not"),
    S2J_FIELD(VideoInputInterface, SupportEmbeddedAudio,
              "1 when the interface can carry audio embedded in the video signal, 0 when not"),
    S2J_FIELD(VideoInputInterface, MaxInputTiming, "greatest input timing, as text; not interpreted"),
    S2J_FIELD(VideoInputInterface, SupportedManualTimingList, "list held as text; not interpreted"),
};
S2J_RECORD(VideoInputInterface)

// The two scanning-frequency parts are uint16_t members, so their rows get
// the 16-bit kind: emitted zero-extended, read as the low 16 bits of the
// integer without a range check.  The record is stepped through arrays by
// its own size, both halves in the room of one 32-bit field.
static constexpr s2j::Field VideoInputParameter_fields[] = {
    S2J_FIELD(VideoInputParameter, Channel, "channel the record is for; key field"),
    S2J_FIELD(VideoInputParameter, InterfaceName, "the input interface that feeds the channel"),
    S2J_FIELD(VideoInputParameter, ManualConfigTiming,
              "1 when the timing is set by hand (the fields that follow), 0 when it is detected"),
    S2J_FIELD(VideoInputParameter, TimingType, "timing as a code; its values are not fixed by the library"),
    S2J_FIELD(VideoInputParameter, Width, "width of the input picture, in pixels as the device counts them"),
    S2J_FIELD(VideoInputParameter, Height, "height of the input picture, in pixels as the device counts them"),
    S2J_FIELD(VideoInputParameter, ScanningFrequencyInteger, "integer part of the scanning frequency"),
    S2J_FIELD(VideoInputParameter, ScanningFrequencyDecimal,
              "fractional part, directly after \"ScanningFrequencyInteger\""),
    S2J_FIELD(VideoInputParameter, ScanningMode,
              "scanning mode (progressive or interlaced) as a code; its values are not fixed by the library"),
    S2J_FIELD(VideoInputParameter, Brightness,
              "picture brightness, from 0 to \"MaxImageBrightness\" of the capability set"),
    S2J_FIELD(VideoInputParameter, Hue, "picture hue, from 0 to \"MaxImageHue\" of the capability set"),
    S2J_FIELD(VideoInputParameter, Contrast, "picture contrast, from 0 to \"MaxImageContrast\" of the capability set"),
    S2J_FIELD(VideoInputParameter, Saturation,
              "picture saturation, from 0 to \"MaxImageSaturation\" of the capability set"),
    S2J_FIELD(VideoInputParameter, VideoLostContinueFrames,
              "number of frames without a signal after which the input counts as lost"),
    S2J_FIELD(VideoInputParameter, VideoResumeContinueFrames,
              "number of frames with a signal after which a lost input counts as back"),
    S2J_FIELD(VideoInputParameter, VideoLostAction,
              "what the device does while the input is lost, as a code; its values are not fixed by the library"),
};
static constexpr s2j::Key VideoInputParameter_keys[] = {
    S2J_KEY(VideoInputParameter, Channel),
};
S2J_RECORD_KEYWORD_GET(VideoInputParameter, Channel)

static constexpr s2j::Field VideoInputStatus_fields[] = {
    S2J_FIELD(VideoInputStatus, InterfaceName, "name of the interface whose state this is"),
    S2J_FIELD(VideoInputStatus, CableIsPlugged, "1 when a cable is plugged into the interface, 0 when not"),
    S2J_FIELD(VideoInputStatus, SignalIsValid, "1 when the interface receives a usable signal, 0 when not"),
    S2J_FIELD(VideoInputStatus, VideoInputTiming, "the detected timing as text"),
    S2J_FIELD(VideoInputStatus, HasEmbeddedAudio, "1 when the signal carries embedded audio, 0 when not"),
    S2J_FIELD(VideoInputStatus, EmbeddedAudioSamplerate,
              "sample rate of the embedded audio; meaningful when \"HasEmbeddedAudio\" is 1"),
    S2J_FIELD(VideoInputStatus, InputTimingDetails, "held as text; not interpreted"),
};
// A live status has no keyed update: only the single-key reader picks an
// interface out of a JSON array by name.
static constexpr s2j::Key VideoInputStatus_keys[] = {
    S2J_GET_KEY(VideoInputStatus, InterfaceName),
};
S2J_RECORD_GET(VideoInputStatus, InterfaceName)

static constexpr s2j::Field VideoInputVGAParameter_fields[] = {
    S2J_FIELD(VideoInputVGAParameter, InterfaceName, "name of the interface the record is for; key field"),
    S2J_FIELD(VideoInputVGAParameter, BlackEdgeIsSelfCorrection,
              "1 when the device corrects black edges of the picture itself, 0 when the values below apply"),
    S2J_FIELD(VideoInputVGAParameter, CorrectedPhaseValue, "phase correction; signed"),
    S2J_FIELD(VideoInputVGAParameter, CorrectedOffsetX,
              "horizontal offset of the picture; signed, negative moves it left"),
    S2J_FIELD(VideoInputVGAParameter, CorrectedOffsetY, "vertical offset of the picture; signed, negative moves it up"),
};
static constexpr s2j::Key VideoInputVGAParameter_keys[] = {
    S2J_KEY(VideoInputVGAParameter, InterfaceName),
};
S2J_RECORD_KEYWORD_GET(VideoInputVGAParameter, InterfaceName)

// ---- Video encoding ----

static constexpr s2j::Field VideoEncodeCapabilitySet_fields[] = {
    S2J_FIELD(VideoEncodeCapabilitySet, SupportedVideoEncodeSizeList,
              "list of encoding sizes held as text; not interpreted"),
    S2J_FIELD(VideoEncodeCapabilitySet, MaxVideoEncodeWidth, "greatest encoded picture width"),
    S2J_FIELD(VideoEncodeCapabilitySet, MaxVideoEncodeHeight, "greatest encoded picture height"),
    S2J_FIELD(VideoEncodeCapabilitySet, MaxVideoEncodeFramerate, "greatest encoded frame rate"),
    S2J_FIELD(VideoEncodeCapabilitySet, SupportedVideoCodecList, "list held as text; not interpreted"),
    S2J_FIELD(VideoEncodeCapabilitySet, SupportedH264CodecProfileList, "list held as text; not interpreted"),
    S2J_FIELD(VideoEncodeCapabilitySet, SupportedH265CodecProfileList, "list held as text; not interpreted"),
    S2J_FIELD(VideoEncodeCapabilitySet, SupportedBitrateControlAlgorithmList, "list held as text; not interpreted"),
    S2J_FIELD(VideoEncodeCapabilitySet, MaxVideoEncodeBitrate,
              "greatest encoded bit rate, in the unit of \"Bitrate\" of VideoEncodeParameter"),
    S2J_FIELD(VideoEncodeCapabilitySet, MaxVideoEncodeGOP,
              "greatest group-of-pictures length (\"GOP\" of VideoEncodeParameter)"),
    S2J_FIELD(VideoEncodeCapabilitySet, MinVideoEncodeWidth, "least encoded picture width"),
    S2J_FIELD(VideoEncodeCapabilitySet, MinVideoEncodeHeight, "least encoded picture height"),
    S2J_FIELD(VideoEncodeCapabilitySet, MinVideoEncodeBitrate,
              "least encoded bit rate, in the unit of \"Bitrate\" of VideoEncodeParameter"),
    S2J_FIELD(VideoEncodeCapabilitySet, MaxVideoEncodeCapability,
              "total encoding capacity of the device; unsigned; not interpreted"),
    S2J_FIELD(VideoEncodeCapabilitySet, SelfAdaptiveVideoEncodeSizeCapability,
              "1 when the encoded size can follow the input size (\"SelfAdaptiveVideoEncodeSize\"), 0 when not"),
    S2J_FIELD(VideoEncodeCapabilitySet, Rotate, "1 when the encoder can rotate the picture, 0 when not"),
    S2J_FIELD(VideoEncodeCapabilitySet, Mirror, "1 when the encoder can mirror the picture left to right, 0 when not"),
    S2J_FIELD(VideoEncodeCapabilitySet, Flip, "1 when the encoder can flip the picture upside down, 0 when not"),
    S2J_FIELD(VideoEncodeCapabilitySet, Crop, "1 when the encoder can crop the picture, 0 when not"),
};
S2J_RECORD(VideoEncodeCapabilitySet)

// One stream of one channel.  The frame-rate parts are 16-bit like the
// scanning frequency above; "Rotate" is an unsigned value here, while the
// capability set's "Rotate" is a signed flag.
static constexpr s2j::Field VideoEncodeParameter_fields[] = {
    S2J_FIELD(VideoEncodeParameter, Channel, "channel the record is for; key field"),
    S2J_FIELD(VideoEncodeParameter, StreamIndex, "stream of the channel the record is for; key field"),
    S2J_FIELD(VideoEncodeParameter, Enable, "1 enables this stream of the channel, 0 disables it"),
    S2J_FIELD(VideoEncodeParameter, SelfAdaptiveVideoEncodeSize,
              "1 makes the encoded size follow the input size, 0 uses \"Width\" and \"Height\""),
    S2J_FIELD(VideoEncodeParameter, Width, "encoded picture width, within the capability set's minimum and maximum"),
    S2J_FIELD(VideoEncodeParameter, Height, "encoded picture height, within the capability set's minimum and maximum"),
    S2J_FIELD(VideoEncodeParameter, FramerateInteger, "integer part of the frame rate"),
    S2J_FIELD(VideoEncodeParameter, FramerateDecimal,
              "fractional part of the frame rate, directly after \"FramerateInteger\""),
    S2J_FIELD(VideoEncodeParameter, Codec, "codec name; its vocabulary is not fixed by the library"),
    S2J_FIELD(VideoEncodeParameter, Profile, "codec profile name; not interpreted"),
    S2J_FIELD(VideoEncodeParameter, BitrateControl, "bit rate control mode, as text; not interpreted"),
    S2J_FIELD(VideoEncodeParameter, GOP,
              "group-of-pictures length: frames from one key frame to the next; unit not fixed by the library"),
    S2J_FIELD(VideoEncodeParameter, Bitrate, "target bit rate; unit not fixed by the library"),
    S2J_FIELD(VideoEncodeParameter, ImageQuality, "picture quality level; its scale is not fixed by the library"),
    S2J_FIELD(VideoEncodeParameter, Rotate,
              "a value, not a flag: unsigned here, unlike the int32 flag \"Rotate\" of the capability set"),
    S2J_FIELD(VideoEncodeParameter, Mirror, "1 mirrors the picture left to right, 0 leaves it"),
    S2J_FIELD(VideoEncodeParameter, Flip, "1 flips the picture upside down, 0 leaves it"),
    S2J_FIELD(VideoEncodeParameter, Crop, "1 crops the picture by the four offsets that follow, 0 encodes it whole"),
    S2J_FIELD(VideoEncodeParameter, CropLeftOffset, "width cut off at the left edge, when \"Crop\" is 1"),
    S2J_FIELD(VideoEncodeParameter, CropTopOffset, "height cut off at the top edge, when \"Crop\" is 1"),
    S2J_FIELD(VideoEncodeParameter, CropRightOffset, "width cut off at the right edge, when \"Crop\" is 1"),
    S2J_FIELD(VideoEncodeParameter, CropBottomOffset, "height cut off at the bottom edge, when \"Crop\" is 1"),
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
    S2J_FIELD(RequestIDRParameter, Channel, "encode channel that is to send a key frame (IDR) at once"),
    S2J_FIELD(RequestIDRParameter, StreamIndex, "stream of that channel that is to send the key frame"),
};
S2J_RECORD(RequestIDRParameter)

// ---- Encoder OSD ----

static constexpr s2j::Field VideoEncodeOSDCapabilitySet_fields[] = {
    S2J_FIELD(VideoEncodeOSDCapabilitySet, OSDNumberPerChannel, "number of OSD items a channel may carry"),
    S2J_FIELD(VideoEncodeOSDCapabilitySet, SupportDynamicText,
              "1 when OSD items can show text that changes (such as the time), 0 when not"),
    S2J_FIELD(VideoEncodeOSDCapabilitySet, SupportPicture, "1 when OSD items can show a picture, 0 when not"),
};
S2J_RECORD(VideoEncodeOSDCapabilitySet)

static constexpr s2j::Field VideoEncodeOSDParameter_fields[] = {
    S2J_FIELD(VideoEncodeOSDParameter, Channel, "channel the record is for; key field"),
    S2J_FIELD(VideoEncodeOSDParameter, Index, "key field: the item's number within the channel"),
    S2J_FIELD(VideoEncodeOSDParameter, Type, "kind of item"),
    S2J_FIELD(VideoEncodeOSDParameter, Visible, "1 shows the item in the encoded picture, 0 hides it"),
    S2J_FIELD(VideoEncodeOSDParameter, AutoFontSize, "font size chosen by the device; unit not fixed by the library"),
    S2J_FIELD(VideoEncodeOSDParameter, FixedFontSize, "font size set by hand; unit not fixed by the library"),
    S2J_FIELD(VideoEncodeOSDParameter, Bold, "1 draws the text bold, 0 regular"),
    S2J_FIELD(VideoEncodeOSDParameter, Stroke, "1 outlines the text, 0 draws it without outline"),
    S2J_FIELD(VideoEncodeOSDParameter, ForeColor, "colour held as text; not interpreted"),
    S2J_FIELD(VideoEncodeOSDParameter, ForeAlpha, "opacity of the text; scale not fixed by the library"),
    S2J_FIELD(VideoEncodeOSDParameter, BackColor, "colour held as text; not interpreted"),
    S2J_FIELD(VideoEncodeOSDParameter, BackAlpha,
              "opacity of the background behind the text; scale not fixed by the library"),
    S2J_FIELD(VideoEncodeOSDParameter, CoordinateOrigin,
              "the point that \"XCoordinate\" and \"YCoordinate\" are measured from, as a code; not interpreted"),
    S2J_FIELD(VideoEncodeOSDParameter, XCoordinate, "horizontal position of the item from the origin"),
    S2J_FIELD(VideoEncodeOSDParameter, YCoordinate, "vertical position of the item from the origin"),
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
    S2J_FIELD(AudioInputCapabilitySet, SupportedAudioInputInterfaceList,
              "list of interface names held as text; not interpreted"),
    S2J_FIELD(AudioInputCapabilitySet, SupportVolumeControl, "1 when the inputs' volume can be set, 0 when not"),
    S2J_FIELD(AudioInputCapabilitySet, MinVolume, "least value of \"Volume\""),
    S2J_FIELD(AudioInputCapabilitySet, MaxVolume, "greatest value of \"Volume\""),
    S2J_FIELD(AudioInputCapabilitySet, SupportGainControl, "1 when the inputs' gain can be set, 0 when not"),
    S2J_FIELD(AudioInputCapabilitySet, MinGain, "least value of \"Gain\"; signed"),
    S2J_FIELD(AudioInputCapabilitySet, MaxGain, "greatest value of \"Gain\"; signed"),
};
S2J_RECORD(AudioInputCapabilitySet)

static constexpr s2j::Field AudioInputInterface_fields[] = {
    S2J_FIELD(AudioInputInterface, Name,
              "name of the interface, as \"InterfaceName\" of the input's other records gives it"),
    S2J_FIELD(AudioInputInterface, Type, "kind of interface, as text; its vocabulary is not fixed by the library"),
    S2J_FIELD(AudioInputInterface, Alias, "name shown to users"),
    S2J_FIELD(AudioInputInterface, MinAudioSamplerate, "least sample rate the interface takes"),
    S2J_FIELD(AudioInputInterface, MaxAudioSamplerate, "greatest sample rate the interface takes"),
    S2J_FIELD(AudioInputInterface, MaxSamplingBitWidth, "greatest number of bits per sample"),
    S2J_FIELD(AudioInputInterface, MaxAudioChannels, "greatest number of audio channels (1 mono, 2 stereo, ...)"),
    S2J_FIELD(AudioInputInterface, IsAnalogAudio, "1 when the interface takes analogue audio, 0 when not"),
    S2J_FIELD(AudioInputInterface, IsEmbeddedAudio,
              "1 when the interface takes audio embedded in a video signal, 0 when not"),
    S2J_FIELD(AudioInputInterface, SupportedSampleRateList, "list held as text; not interpreted"),
    S2J_FIELD(AudioInputInterface, SupportVolumeControl, "1 when the interface's volume can be set, 0 when not"),
    S2J_FIELD(AudioInputInterface, MinVolume, "least value of the interface's \"Volume\""),
    S2J_FIELD(AudioInputInterface, MaxVolume, "greatest value of the interface's \"Volume\""),
    S2J_FIELD(AudioInputInterface, SupportGainControl, "1 when the interface's gain can be set, 0 when not"),
    S2J_FIELD(AudioInputInterface, MinGain, "least value of the interface's \"Gain\"; signed"),
    S2J_FIELD(AudioInputInterface, MaxGain, "greatest value of the interface's \"Gain\"; signed"),
};
S2J_RECORD(AudioInputInterface)

static constexpr s2j::Field AudioInputInterfaceParameter_fields[] = {
    S2J_FIELD(AudioInputInterfaceParameter, InterfaceName, "name of the interface the record is for; key field"),
    S2J_FIELD(AudioInputInterfaceParameter, Volume,
              "volume of the interface, from \"MinVolume\" to \"MaxVolume\" of AudioInputInterface"),
    S2J_FIELD(AudioInputInterfaceParameter, Gain,
              "gain of the interface, from \"MinGain\" to \"MaxGain\" of AudioInputInterface; signed"),
};
static constexpr s2j::Key AudioInputInterfaceParameter_keys[] = {
    S2J_KEY(AudioInputInterfaceParameter, InterfaceName),
};
S2J_RECORD_KEYWORD_GET(AudioInputInterfaceParameter, InterfaceName)

static constexpr s2j::Field AudioInputParameter_fields[] = {
    S2J_FIELD(AudioInputParameter, Channel, "channel the record is for; key field"),
    S2J_FIELD(AudioInputParameter, InterfaceName, "the audio input interface that feeds the channel"),
    S2J_FIELD(AudioInputParameter, Volume,
              "volume of the channel, from \"MinVolume\" to \"MaxVolume\" of the capability set"),
    S2J_FIELD(AudioInputParameter, Gain,
              "gain of the channel, from \"MinGain\" to \"MaxGain\" of the capability set; signed"),
};
static constexpr s2j::Key AudioInputParameter_keys[] = {
    S2J_KEY(AudioInputParameter, Channel),
};
S2J_RECORD_KEYWORD_GET(AudioInputParameter, Channel)

static constexpr s2j::Field AudioInputStatus_fields[] = {
    S2J_FIELD(AudioInputStatus, InterfaceName, "name of the interface whose state this is"),
    S2J_FIELD(AudioInputStatus, CableIsPlugged, "1 when a cable is plugged into the interface, 0 when not"),
    S2J_FIELD(AudioInputStatus, SignalIsValid, "1 when the interface receives a usable signal, 0 when not"),
    S2J_FIELD(AudioInputStatus, AudioSamplerate, "sample rate of the audio received"),
    S2J_FIELD(AudioInputStatus, SamplingBitWidth, "bits per sample of the audio received"),
    S2J_FIELD(AudioInputStatus, AudioChannels, "number of audio channels received"),
    S2J_FIELD(AudioInputStatus, InputTimingDetails, "held as text; not interpreted"),
    S2J_FIELD(AudioInputStatus, Volume, "volume now in effect"),
    S2J_FIELD(AudioInputStatus, Gain, "gain now in effect; signed"),
};
static constexpr s2j::Key AudioInputStatus_keys[] = {
    S2J_GET_KEY(AudioInputStatus, InterfaceName),
};
S2J_RECORD_GET(AudioInputStatus, InterfaceName)

static constexpr s2j::Field AudioEncodeCapabilitySet_fields[] = {
    S2J_FIELD(AudioEncodeCapabilitySet, SupportedAudioCodecList, "list held as text; not interpreted"),
    S2J_FIELD(AudioEncodeCapabilitySet, AacLcSupportedSamplerateList,
              "sample rates offered with AAC-LC; list held as text"),
    S2J_FIELD(AudioEncodeCapabilitySet, HeAacSupportedSamplerateList,
              "list of sample rates offered with HE-AAC, held as text"),
    S2J_FIELD(AudioEncodeCapabilitySet, HeAacV2SupportedSamplerateList,
              "list of sample rates offered with HE-AAC version 2, held as text"),
    S2J_FIELD(AudioEncodeCapabilitySet, G711SupportedSamplerateList,
              "list of sample rates offered with G.711, held as text"),
    S2J_FIELD(AudioEncodeCapabilitySet, AacLcSupportedBitrateList, "bit rates offered with AAC-LC; list held as text"),
    S2J_FIELD(AudioEncodeCapabilitySet, HeAacSupportedBitrateList,
              "list of bit rates offered with HE-AAC, held as text"),
    S2J_FIELD(AudioEncodeCapabilitySet, HeAacV2SupportedBitrateList,
              "list of bit rates offered with HE-AAC version 2, held as text"),
    S2J_FIELD(AudioEncodeCapabilitySet, G711SupportedBitrateList, "list of bit rates offered with G.711, held as text"),
    S2J_FIELD(AudioEncodeCapabilitySet, SupportResample,
              "1 when the encoder can change the sample rate of its input, 0 when not"),
};
S2J_RECORD(AudioEncodeCapabilitySet)

static constexpr s2j::Field AudioEncodeParameter_fields[] = {
    S2J_FIELD(AudioEncodeParameter, Channel, "channel the record is for; key field"),
    S2J_FIELD(AudioEncodeParameter, Enable, "1 enables audio encoding on the channel, 0 disables it"),
    S2J_FIELD(AudioEncodeParameter, Codec, "codec name; its vocabulary is not fixed by the library"),
    S2J_FIELD(AudioEncodeParameter, Samplerate, "sample rate of the encoded audio"),
    S2J_FIELD(AudioEncodeParameter, SameWithAudioInputSamplerate,
              "1 encodes at the input's own sample rate, 0 at \"Samplerate\""),
    S2J_FIELD(AudioEncodeParameter, Bitrate, "bit rate of the encoded audio; unit not fixed by the library"),
};
static constexpr s2j::Key AudioEncodeParameter_keys[] = {
    S2J_KEY(AudioEncodeParameter, Channel),
};
S2J_RECORD_KEYWORD_GET(AudioEncodeParameter, Channel)
