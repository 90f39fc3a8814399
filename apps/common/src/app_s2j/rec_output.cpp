// rec_output.cpp - records of video outputs and display, sources and
// playlists, audio outputs and decoders, screenshots, output OSD and
// watermarks: their field tables, emitters, readers and keyword readers.
#include "s2j_internal.h"

static constexpr s2j::Field VideoOutputCapabilitySet_fields[] = {
    S2J_FIELD(VideoOutputCapabilitySet, SupportedVideoInputChannelList),
    S2J_FIELD(VideoOutputCapabilitySet, SupportedInputStreamingIndexList),
    S2J_FIELD(VideoOutputCapabilitySet, SupportedPlaylistIndexList),
};
S2J_RECORD(VideoOutputCapabilitySet)

static constexpr s2j::Field VideoOutputInterface_fields[] = {
    S2J_FIELD(VideoOutputInterface, Name),
    S2J_FIELD(VideoOutputInterface, Type),
    S2J_FIELD(VideoOutputInterface, Alias),
    S2J_FIELD(VideoOutputInterface, HardwareRelated),
    S2J_FIELD(VideoOutputInterface, Removeable),
    S2J_FIELD(VideoOutputInterface, SupportTimingManualConfig),
    S2J_FIELD(VideoOutputInterface, SupportEmbeddedAudio),
    S2J_FIELD(VideoOutputInterface, SupportedTimingList),
    S2J_FIELD(VideoOutputInterface, SupportedMasterInterfaceName),
    S2J_FIELD(VideoOutputInterface, ScreenCanvasWidth),
    S2J_FIELD(VideoOutputInterface, ScreenCanvasHeight),
    S2J_FIELD(VideoOutputInterface, MaxVideoOutputLayerNumber),
    S2J_FIELD(VideoOutputInterface, MaxVideoOutputWindowNumber),
    S2J_FIELD(VideoOutputInterface, UserDefinedScreenSplitModeNumber),
    S2J_FIELD(VideoOutputInterface, SupportedScreenSplitModeList),
    S2J_FIELD(VideoOutputInterface, MaxGraphicLayerNumber),
    S2J_FIELD(VideoOutputInterface, SupportWatermark),
    S2J_FIELD(VideoOutputInterface, SupportOSDInWindow),
    S2J_FIELD(VideoOutputInterface, OSDNumberPerWindow),
};
S2J_RECORD(VideoOutputInterface)

static constexpr s2j::Field VideoOutputInterfaceParameter_fields[] = {
    S2J_FIELD(VideoOutputInterfaceParameter, InterfaceName),
    S2J_FIELD(VideoOutputInterfaceParameter, Timing),
    S2J_FIELD(VideoOutputInterfaceParameter, ManualConfigTiming),
    S2J_FIELD(VideoOutputInterfaceParameter, Width),
    S2J_FIELD(VideoOutputInterfaceParameter, Height),
    S2J_FIELD(VideoOutputInterfaceParameter, ScanningFrequencyInteger),
    S2J_FIELD(VideoOutputInterfaceParameter, ScanningFrequencyDecimal),
    S2J_FIELD(VideoOutputInterfaceParameter, ScanningMode),
    S2J_FIELD(VideoOutputInterfaceParameter, TimingType),
    S2J_FIELD(VideoOutputInterfaceParameter, Brightness),
    S2J_FIELD(VideoOutputInterfaceParameter, Hue),
    S2J_FIELD(VideoOutputInterfaceParameter, Contrast),
    S2J_FIELD(VideoOutputInterfaceParameter, Saturation),
    S2J_FIELD(VideoOutputInterfaceParameter, MasterInterfaceName),
    S2J_FIELD(VideoOutputInterfaceParameter, ScreenSplitMode),
    S2J_FIELD(VideoOutputInterfaceParameter, UserDefinedScreenSplitModeIndex),
    S2J_FIELD(VideoOutputInterfaceParameter, AutoConfigOptimumTiming),
};
static constexpr s2j::Key VideoOutputInterfaceParameter_keys[] = {
    S2J_KEY(VideoOutputInterfaceParameter, InterfaceName),
};
S2J_RECORD_KEYWORD_GET(VideoOutputInterfaceParameter, InterfaceName)

static constexpr s2j::Field VideoOutputDisplayParameter_fields[] = {
    S2J_FIELD(VideoOutputDisplayParameter, VideoDisplayMode),
    S2J_FIELD(VideoOutputDisplayParameter, VideoDisplayStopAction),
    S2J_FIELD(VideoOutputDisplayParameter, BackgroundColor),
    S2J_FIELD(VideoOutputDisplayParameter, WindowBorderColor),
    S2J_FIELD(VideoOutputDisplayParameter, WindowBorderLineWidth),
    S2J_FIELD(VideoOutputDisplayParameter, AudioOutputWindowBorderColor),
    S2J_FIELD(VideoOutputDisplayParameter, CacheTime),
    S2J_FIELD(VideoOutputDisplayParameter, VideoPlayMode),
};
S2J_RECORD(VideoOutputDisplayParameter)

static constexpr s2j::Field VideoOutputScreenSplitParameter_fields[] = {
    S2J_FIELD(VideoOutputScreenSplitParameter, InterfaceName),
    S2J_FIELD(VideoOutputScreenSplitParameter, UserDefinedScreenSplitModeIndex),
    S2J_FIELD(VideoOutputScreenSplitParameter, SplitWindowNumber),
    S2J_FIELD(VideoOutputScreenSplitParameter, UserDefinedScreenSplitModeDetails),
};
// A layout is named by its interface and its index, the string matched first.
static constexpr s2j::Key VideoOutputScreenSplitParameter_keys[] = {
    S2J_KEY(VideoOutputScreenSplitParameter, InterfaceName),
    S2J_KEY(VideoOutputScreenSplitParameter, UserDefinedScreenSplitModeIndex),
};
S2J_RECORD_KEYWORD_GET(VideoOutputScreenSplitParameter, InterfaceName)

static constexpr s2j::Field VideoOutputSourceParameter_fields[] = {
    S2J_FIELD(VideoOutputSourceParameter, Channel),
    S2J_FIELD(VideoOutputSourceParameter, SourceIndex),
    S2J_FIELD(VideoOutputSourceParameter, SourceType),
    S2J_FIELD(VideoOutputSourceParameter, CacheTime),
};
static constexpr s2j::Key VideoOutputSourceParameter_keys[] = {
    S2J_KEY(VideoOutputSourceParameter, Channel),
};
S2J_RECORD_KEYWORD_GET(VideoOutputSourceParameter, Channel)

static constexpr s2j::Field VideoOutputPlaylistParameter_fields[] = {
    S2J_FIELD(VideoOutputPlaylistParameter, Index),
    S2J_FIELD(VideoOutputPlaylistParameter, Name),
    S2J_FIELD(VideoOutputPlaylistParameter, SourceIndexList),
    S2J_FIELD(VideoOutputPlaylistParameter, SourceTypeList),
    S2J_FIELD(VideoOutputPlaylistParameter, SourceDwellTimeList),
};
static constexpr s2j::Key VideoOutputPlaylistParameter_keys[] = {
    S2J_KEY(VideoOutputPlaylistParameter, Index),
};
S2J_RECORD_KEYWORD_GET(VideoOutputPlaylistParameter, Index)

static constexpr s2j::Field VideoOutSourceChange_fields[] = {
    S2J_FIELD(VideoOutSourceChange, Channel),
    S2J_FIELD(VideoOutSourceChange, InterfaceName),
    S2J_FIELD(VideoOutSourceChange, SourceIndex),
    S2J_FIELD(VideoOutSourceChange, SourceType),
};
S2J_RECORD(VideoOutSourceChange)

static constexpr s2j::Field AudioOutSourceChange_fields[] = {
    S2J_FIELD(AudioOutSourceChange, Channel),
    S2J_FIELD(AudioOutSourceChange, InterfaceName),
    S2J_FIELD(AudioOutSourceChange, SourceIndex),
    S2J_FIELD(AudioOutSourceChange, SourceType),
};
S2J_RECORD(AudioOutSourceChange)

static constexpr s2j::Field AudioOutputCapabilitySet_fields[] = {
    S2J_FIELD(AudioOutputCapabilitySet, SupportedAudioInputChannelList),
    S2J_FIELD(AudioOutputCapabilitySet, SupportedAudioOutputInterfaces),
    S2J_FIELD(AudioOutputCapabilitySet, SupportedInputStreamingIndexList),
    S2J_FIELD(AudioOutputCapabilitySet, SupportedVideoOutputChannelList),
};
S2J_RECORD(AudioOutputCapabilitySet)

static constexpr s2j::Field AudioOutputInterface_fields[] = {
    S2J_FIELD(AudioOutputInterface, Name),
    S2J_FIELD(AudioOutputInterface, Type),
    S2J_FIELD(AudioOutputInterface, Alias),
    S2J_FIELD(AudioOutputInterface, IsAnalogAudio),
    S2J_FIELD(AudioOutputInterface, IsEmbeddedAudio),
    S2J_FIELD(AudioOutputInterface, SupportVolumeControl),
    S2J_FIELD(AudioOutputInterface, MinVolume),
    S2J_FIELD(AudioOutputInterface, MaxVolume),
    S2J_FIELD(AudioOutputInterface, SupportGainControl),
    S2J_FIELD(AudioOutputInterface, MinGain),
    S2J_FIELD(AudioOutputInterface, MaxGain),
};
S2J_RECORD(AudioOutputInterface)

static constexpr s2j::Field AudioOutputInterfaceParameter_fields[] = {
    S2J_FIELD(AudioOutputInterfaceParameter, InterfaceName),
    S2J_FIELD(AudioOutputInterfaceParameter, Volume),
    S2J_FIELD(AudioOutputInterfaceParameter, Gain),
};
static constexpr s2j::Key AudioOutputInterfaceParameter_keys[] = {
    S2J_KEY(AudioOutputInterfaceParameter, InterfaceName),
};
S2J_RECORD_KEYWORD_GET(AudioOutputInterfaceParameter, InterfaceName)

static constexpr s2j::Field AudioOutputParameter_fields[] = {
    S2J_FIELD(AudioOutputParameter, Channel),
    S2J_FIELD(AudioOutputParameter, InterfaceName),
    S2J_FIELD(AudioOutputParameter, SourceIndex),
    S2J_FIELD(AudioOutputParameter, SourceType),
};
static constexpr s2j::Key AudioOutputParameter_keys[] = {
    S2J_KEY(AudioOutputParameter, Channel),
};
S2J_RECORD_KEYWORD_GET(AudioOutputParameter, Channel)

static constexpr s2j::Field VideoDecodeCapabilitySet_fields[] = {
    S2J_FIELD(VideoDecodeCapabilitySet, MaxVideoWidth),
    S2J_FIELD(VideoDecodeCapabilitySet, MaxVideoHeight),
    S2J_FIELD(VideoDecodeCapabilitySet, MaxVideoFramerate),
    S2J_FIELD(VideoDecodeCapabilitySet, SupportedVideoCodecList),
    S2J_FIELD(VideoDecodeCapabilitySet, MaxVideoDecodeCapabilityByChannel),
    S2J_FIELD(VideoDecodeCapabilitySet, TotalVideoDecodeCapability),
    S2J_FIELD(VideoDecodeCapabilitySet, MaxCacheTime),
};
S2J_RECORD(VideoDecodeCapabilitySet)

static constexpr s2j::Field AudioDecodeCapabilitySet_fields[] = {
    S2J_FIELD(AudioDecodeCapabilitySet, SupportedAudioCodecList),
};
S2J_RECORD(AudioDecodeCapabilitySet)

static constexpr s2j::Field ScreenshotCapabilitySet_fields[] = {
    S2J_FIELD(ScreenshotCapabilitySet, MaxScreenshotNumber),
    S2J_FIELD(ScreenshotCapabilitySet, MaxScreenshotListNumber),
    S2J_FIELD(ScreenshotCapabilitySet, MaxScreenshotNumberInList),
};
S2J_RECORD(ScreenshotCapabilitySet)

static constexpr s2j::Field ScreenshotParameter_fields[] = {
    S2J_FIELD(ScreenshotParameter, Index),
    S2J_FIELD(ScreenshotParameter, Name),
    S2J_FIELD(ScreenshotParameter, ScreenSplitMode),
    S2J_FIELD(ScreenshotParameter, UserDefinedScreenSplitModeIndex),
    S2J_FIELD(ScreenshotParameter, BoundVideoInputChannels),
    S2J_FIELD(ScreenshotParameter, AttachedInputStreamingIndexs),
};
static constexpr s2j::Key ScreenshotParameter_keys[] = {
    S2J_KEY(ScreenshotParameter, Index),
};
S2J_RECORD_KEYWORD_GET(ScreenshotParameter, Index)

static constexpr s2j::Field ScreenshotListParameter_fields[] = {
    S2J_FIELD(ScreenshotListParameter, Index),
    S2J_FIELD(ScreenshotListParameter, Name),
    S2J_FIELD(ScreenshotListParameter, ScreenshotIndexs),
    S2J_FIELD(ScreenshotListParameter, ScreenshotDwellTimes),
};
static constexpr s2j::Key ScreenshotListParameter_keys[] = {
    S2J_KEY(ScreenshotListParameter, Index),
};
S2J_RECORD_KEYWORD_GET(ScreenshotListParameter, Index)

static constexpr s2j::Field VideoOutputScreenshotParameter_fields[] = {
    S2J_FIELD(VideoOutputScreenshotParameter, InterfaceName),
    S2J_FIELD(VideoOutputScreenshotParameter, ScreenshotIndex),
    S2J_FIELD(VideoOutputScreenshotParameter, ScreenshotListIndex),
};
static constexpr s2j::Key VideoOutputScreenshotParameter_keys[] = {
    S2J_KEY(VideoOutputScreenshotParameter, InterfaceName),
};
S2J_RECORD_KEYWORD_GET(VideoOutputScreenshotParameter, InterfaceName)

static constexpr s2j::Field VideoOutputOSDParameter_fields[] = {
    S2J_FIELD(VideoOutputOSDParameter, Channel),
    S2J_FIELD(VideoOutputOSDParameter, Index),
    S2J_FIELD(VideoOutputOSDParameter, Type),
    S2J_FIELD(VideoOutputOSDParameter, Visible),
    S2J_FIELD(VideoOutputOSDParameter, AutoFontSize),
    S2J_FIELD(VideoOutputOSDParameter, FixedFontSize),
    S2J_FIELD(VideoOutputOSDParameter, Bold),
    S2J_FIELD(VideoOutputOSDParameter, Stroke),
    S2J_FIELD(VideoOutputOSDParameter, ForeColor),
    S2J_FIELD(VideoOutputOSDParameter, ForeAlpha),
    S2J_FIELD(VideoOutputOSDParameter, BackColor),
    S2J_FIELD(VideoOutputOSDParameter, BackAlpha),
    S2J_FIELD(VideoOutputOSDParameter, CoordinateOrigin),
    S2J_FIELD(VideoOutputOSDParameter, XCoordinate),
    S2J_FIELD(VideoOutputOSDParameter, YCoordinate),
    S2J_FIELD(VideoOutputOSDParameter, CoordinateBase),
    S2J_FIELD(VideoOutputOSDParameter, Content),
    S2J_FIELD(VideoOutputOSDParameter, Prefix),
    S2J_FIELD(VideoOutputOSDParameter, Postfix),
};
// An OSD item is named by its channel and its place among the channel's items.
static constexpr s2j::Key VideoOutputOSDParameter_keys[] = {
    S2J_KEY(VideoOutputOSDParameter, Channel),
    S2J_KEY(VideoOutputOSDParameter, Index),
};
S2J_RECORD_KEYWORD_GET(VideoOutputOSDParameter, Channel)

static constexpr s2j::Field WatermarkOSDParameter_fields[] = {
    S2J_FIELD(WatermarkOSDParameter, InterfaceName),
    S2J_FIELD(WatermarkOSDParameter, Visible),
    S2J_FIELD(WatermarkOSDParameter, AutoFontSize),
    S2J_FIELD(WatermarkOSDParameter, FixedFontSize),
    S2J_FIELD(WatermarkOSDParameter, Bold),
    S2J_FIELD(WatermarkOSDParameter, Stroke),
    S2J_FIELD(WatermarkOSDParameter, ForeColor),
    S2J_FIELD(WatermarkOSDParameter, ForeAlpha),
    S2J_FIELD(WatermarkOSDParameter, BackColor),
    S2J_FIELD(WatermarkOSDParameter, BackAlpha),
    S2J_FIELD(WatermarkOSDParameter, CoordinateOrigin),
    S2J_FIELD(WatermarkOSDParameter, XCoordinate),
    S2J_FIELD(WatermarkOSDParameter, YCoordinate),
    S2J_FIELD(WatermarkOSDParameter, CoordinateBase),
    S2J_FIELD(WatermarkOSDParameter, Content),
    S2J_FIELD(WatermarkOSDParameter, PrefixType),
    S2J_FIELD(WatermarkOSDParameter, PrefixContent),
    S2J_FIELD(WatermarkOSDParameter, PostfixType),
    S2J_FIELD(WatermarkOSDParameter, PostfixContent),
    S2J_FIELD(WatermarkOSDParameter, RotationAngle),
    S2J_FIELD(WatermarkOSDParameter, ArrangementMode),
    S2J_FIELD(WatermarkOSDParameter, Movable),
    S2J_FIELD(WatermarkOSDParameter, MovingStepSize),
    S2J_FIELD(WatermarkOSDParameter, MovingSpeed),
    S2J_FIELD(WatermarkOSDParameter, MovingDirection),
};
static constexpr s2j::Key WatermarkOSDParameter_keys[] = {
    S2J_KEY(WatermarkOSDParameter, InterfaceName),
};
S2J_RECORD_KEYWORD_GET(WatermarkOSDParameter, InterfaceName)

static constexpr s2j::Field WatermarkPictureParameter_fields[] = {
    S2J_FIELD(WatermarkPictureParameter, InterfaceName),
    S2J_FIELD(WatermarkPictureParameter, Visible),
    S2J_FIELD(WatermarkPictureParameter, CoordinateOrigin),
    S2J_FIELD(WatermarkPictureParameter, XCoordinate),
    S2J_FIELD(WatermarkPictureParameter, YCoordinate),
    S2J_FIELD(WatermarkPictureParameter, CoordinateBase),
    S2J_FIELD(WatermarkPictureParameter, ImageWidth),
    S2J_FIELD(WatermarkPictureParameter, ImageHeight),
    S2J_FIELD(WatermarkPictureParameter, ImageFilePath),
    S2J_FIELD(WatermarkPictureParameter, Transparency),
    S2J_FIELD(WatermarkPictureParameter, DisplayMode),
    S2J_FIELD(WatermarkPictureParameter, RotationAngle),
    S2J_FIELD(WatermarkPictureParameter, ArrangementMode),
    S2J_FIELD(WatermarkPictureParameter, Movable),
    S2J_FIELD(WatermarkPictureParameter, MovingStepSize),
    S2J_FIELD(WatermarkPictureParameter, MovingSpeed),
    S2J_FIELD(WatermarkPictureParameter, MovingDirection),
};
static constexpr s2j::Key WatermarkPictureParameter_keys[] = {
    S2J_KEY(WatermarkPictureParameter, InterfaceName),
};
S2J_RECORD_KEYWORD_GET(WatermarkPictureParameter, InterfaceName)

static constexpr s2j::Field WatermarkDotmatrixParameter_fields[] = {
    S2J_FIELD(WatermarkDotmatrixParameter, InterfaceName),
    S2J_FIELD(WatermarkDotmatrixParameter, Visible),
    S2J_FIELD(WatermarkDotmatrixParameter, Color),
    S2J_FIELD(WatermarkDotmatrixParameter, Transparency),
    S2J_FIELD(WatermarkDotmatrixParameter, Movable),
    S2J_FIELD(WatermarkDotmatrixParameter, MovingStepSize),
    S2J_FIELD(WatermarkDotmatrixParameter, MovingSpeed),
    S2J_FIELD(WatermarkDotmatrixParameter, MovingDirection),
    S2J_FIELD(WatermarkDotmatrixParameter, Content),
};
static constexpr s2j::Key WatermarkDotmatrixParameter_keys[] = {
    S2J_KEY(WatermarkDotmatrixParameter, InterfaceName),
};
S2J_RECORD_KEYWORD_GET(WatermarkDotmatrixParameter, InterfaceName)

static constexpr s2j::Field UploadWatermarkPictureParameter_fields[] = {
    S2J_FIELD(UploadWatermarkPictureParameter, InterfaceName),
    S2J_FIELD(UploadWatermarkPictureParameter, ImageFilePath),
    S2J_FIELD(UploadWatermarkPictureParameter, ImageFileSize),
};
S2J_RECORD(UploadWatermarkPictureParameter)
