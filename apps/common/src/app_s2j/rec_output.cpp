// rec_output.cpp - records of video outputs and display, sources and
// playlists, audio outputs and decoders, screenshots, output OSD and
// watermarks: their field tables, emitters, readers and keyword readers.
#include "s2j_internal.h"

static constexpr s2j::Field VideoOutputCapabilitySet_fields[] = {
    S2J_FIELD(VideoOutputCapabilitySet, SupportedVideoInputChannelList, "list held as text; not interpreted"),
    S2J_FIELD(VideoOutputCapabilitySet, SupportedInputStreamingIndexList, "list held as text; not interpreted"),
    S2J_FIELD(VideoOutputCapabilitySet, SupportedPlaylistIndexList, "list held as text; not interpreted"),
};
S2J_RECORD(VideoOutputCapabilitySet)

static constexpr s2j::Field VideoOutputInterface_fields[] = {
    S2J_FIELD(VideoOutputInterface, Name, "interface name; other records name an interface by InterfaceName"),
    S2J_FIELD(VideoOutputInterface, Type, "interface type, as text"),
    S2J_FIELD(VideoOutputInterface, Alias, "display name"),
    S2J_FIELD(VideoOutputInterface, HardwareRelated, "flag"),
    S2J_FIELD(VideoOutputInterface, Removeable, "flag; this spelling is the key, in both directions, and differs on purpose from \"Removable\" of the storage records"),
    S2J_FIELD(VideoOutputInterface, SupportTimingManualConfig, "flag"),
    S2J_FIELD(VideoOutputInterface, SupportEmbeddedAudio, "flag"),
    S2J_FIELD(VideoOutputInterface, SupportedTimingList, "list held as text; not interpreted"),
    S2J_FIELD(VideoOutputInterface, SupportedMasterInterfaceName, "text"),
    S2J_FIELD(VideoOutputInterface, ScreenCanvasWidth, ""),
    S2J_FIELD(VideoOutputInterface, ScreenCanvasHeight, ""),
    S2J_FIELD(VideoOutputInterface, MaxVideoOutputLayerNumber, ""),
    S2J_FIELD(VideoOutputInterface, MaxVideoOutputWindowNumber, ""),
    S2J_FIELD(VideoOutputInterface, UserDefinedScreenSplitModeNumber, "how many user-defined split modes the interface holds"),
    S2J_FIELD(VideoOutputInterface, SupportedScreenSplitModeList, "list held as text; not interpreted"),
    S2J_FIELD(VideoOutputInterface, MaxGraphicLayerNumber, ""),
    S2J_FIELD(VideoOutputInterface, SupportWatermark, "flag"),
    S2J_FIELD(VideoOutputInterface, SupportOSDInWindow, "flag"),
    S2J_FIELD(VideoOutputInterface, OSDNumberPerWindow, ""),
};
S2J_RECORD(VideoOutputInterface)

static constexpr s2j::Field VideoOutputInterfaceParameter_fields[] = {
    S2J_FIELD(VideoOutputInterfaceParameter, InterfaceName, "key field"),
    S2J_FIELD(VideoOutputInterfaceParameter, Timing, "one of SupportedTimingList; not checked"),
    S2J_FIELD(VideoOutputInterfaceParameter, ManualConfigTiming, "flag: the fields below describe the timing by hand"),
    S2J_FIELD(VideoOutputInterfaceParameter, Width, ""),
    S2J_FIELD(VideoOutputInterfaceParameter, Height, ""),
    S2J_FIELD(VideoOutputInterfaceParameter, ScanningFrequencyInteger, "integer part of the refresh rate"),
    S2J_FIELD(VideoOutputInterfaceParameter, ScanningFrequencyDecimal, "fractional part of the refresh rate"),
    S2J_FIELD(VideoOutputInterfaceParameter, ScanningMode, "value not interpreted"),
    S2J_FIELD(VideoOutputInterfaceParameter, TimingType, "value not interpreted"),
    S2J_FIELD(VideoOutputInterfaceParameter, Brightness, ""),
    S2J_FIELD(VideoOutputInterfaceParameter, Hue, ""),
    S2J_FIELD(VideoOutputInterfaceParameter, Contrast, ""),
    S2J_FIELD(VideoOutputInterfaceParameter, Saturation, ""),
    S2J_FIELD(VideoOutputInterfaceParameter, MasterInterfaceName, "text"),
    S2J_FIELD(VideoOutputInterfaceParameter, ScreenSplitMode, "one of SupportedScreenSplitModeList; not checked"),
    S2J_FIELD(VideoOutputInterfaceParameter, UserDefinedScreenSplitModeIndex, "selects a VideoOutputScreenSplitParameter element; signed here"),
    S2J_FIELD(VideoOutputInterfaceParameter, AutoConfigOptimumTiming, "flag"),
};
static constexpr s2j::Key VideoOutputInterfaceParameter_keys[] = {
    S2J_KEY(VideoOutputInterfaceParameter, InterfaceName),
};
S2J_RECORD_KEYWORD_GET(VideoOutputInterfaceParameter, InterfaceName)

static constexpr s2j::Field VideoOutputDisplayParameter_fields[] = {
    S2J_FIELD(VideoOutputDisplayParameter, VideoDisplayMode, "value not interpreted"),
    S2J_FIELD(VideoOutputDisplayParameter, VideoDisplayStopAction, "value not interpreted"),
    S2J_FIELD(VideoOutputDisplayParameter, BackgroundColor, "colour held as text"),
    S2J_FIELD(VideoOutputDisplayParameter, WindowBorderColor, "colour held as text"),
    S2J_FIELD(VideoOutputDisplayParameter, WindowBorderLineWidth, ""),
    S2J_FIELD(VideoOutputDisplayParameter, AudioOutputWindowBorderColor, "colour held as text"),
    S2J_FIELD(VideoOutputDisplayParameter, CacheTime, ""),
    S2J_FIELD(VideoOutputDisplayParameter, VideoPlayMode, "value not interpreted"),
};
S2J_RECORD(VideoOutputDisplayParameter)

static constexpr s2j::Field VideoOutputScreenSplitParameter_fields[] = {
    S2J_FIELD(VideoOutputScreenSplitParameter, InterfaceName, "key field"),
    S2J_FIELD(VideoOutputScreenSplitParameter, UserDefinedScreenSplitModeIndex, "key field; unsigned here, signed in VideoOutputInterfaceParameter"),
    S2J_FIELD(VideoOutputScreenSplitParameter, SplitWindowNumber, "number of windows in the layout"),
    S2J_FIELD(VideoOutputScreenSplitParameter, UserDefinedScreenSplitModeDetails, "layout held as text; not interpreted"),
};
// A layout is named by its interface and its index, the string matched first.
static constexpr s2j::Key VideoOutputScreenSplitParameter_keys[] = {
    S2J_KEY(VideoOutputScreenSplitParameter, InterfaceName),
    S2J_KEY(VideoOutputScreenSplitParameter, UserDefinedScreenSplitModeIndex),
};
S2J_RECORD_KEYWORD_GET(VideoOutputScreenSplitParameter, InterfaceName)

static constexpr s2j::Field VideoOutputSourceParameter_fields[] = {
    S2J_FIELD(VideoOutputSourceParameter, Channel, "key field"),
    S2J_FIELD(VideoOutputSourceParameter, SourceIndex, "index of the source within its type; signed"),
    S2J_FIELD(VideoOutputSourceParameter, SourceType, "kind of source; value not interpreted"),
    S2J_FIELD(VideoOutputSourceParameter, CacheTime, ""),
};
static constexpr s2j::Key VideoOutputSourceParameter_keys[] = {
    S2J_KEY(VideoOutputSourceParameter, Channel),
};
S2J_RECORD_KEYWORD_GET(VideoOutputSourceParameter, Channel)

static constexpr s2j::Field VideoOutputPlaylistParameter_fields[] = {
    S2J_FIELD(VideoOutputPlaylistParameter, Index, "key field"),
    S2J_FIELD(VideoOutputPlaylistParameter, Name, "display name"),
    S2J_FIELD(VideoOutputPlaylistParameter, SourceIndexList, "list held as text; not interpreted"),
    S2J_FIELD(VideoOutputPlaylistParameter, SourceTypeList, "list held as text; not interpreted"),
    S2J_FIELD(VideoOutputPlaylistParameter, SourceDwellTimeList, "list held as text; not interpreted"),
};
static constexpr s2j::Key VideoOutputPlaylistParameter_keys[] = {
    S2J_KEY(VideoOutputPlaylistParameter, Index),
};
S2J_RECORD_KEYWORD_GET(VideoOutputPlaylistParameter, Index)

static constexpr s2j::Field VideoOutSourceChange_fields[] = {
    S2J_FIELD(VideoOutSourceChange, Channel, "output channel"),
    S2J_FIELD(VideoOutSourceChange, InterfaceName, "output interface"),
    S2J_FIELD(VideoOutSourceChange, SourceIndex, "new source's index; signed"),
    S2J_FIELD(VideoOutSourceChange, SourceType, "new source's kind; value not interpreted"),
};
S2J_RECORD(VideoOutSourceChange)

static constexpr s2j::Field AudioOutSourceChange_fields[] = {
    S2J_FIELD(AudioOutSourceChange, Channel, "output channel"),
    S2J_FIELD(AudioOutSourceChange, InterfaceName, "output interface"),
    S2J_FIELD(AudioOutSourceChange, SourceIndex, "new source's index; signed"),
    S2J_FIELD(AudioOutSourceChange, SourceType, "new source's kind; value not interpreted"),
};
S2J_RECORD(AudioOutSourceChange)

static constexpr s2j::Field AudioOutputCapabilitySet_fields[] = {
    S2J_FIELD(AudioOutputCapabilitySet, SupportedAudioInputChannelList, "list held as text; not interpreted"),
    S2J_FIELD(AudioOutputCapabilitySet, SupportedAudioOutputInterfaces, "list held as text; the key ends in \"Interfaces\", without \"List\", on purpose"),
    S2J_FIELD(AudioOutputCapabilitySet, SupportedInputStreamingIndexList, "list held as text; not interpreted"),
    S2J_FIELD(AudioOutputCapabilitySet, SupportedVideoOutputChannelList, "list held as text; not interpreted"),
};
S2J_RECORD(AudioOutputCapabilitySet)

static constexpr s2j::Field AudioOutputInterface_fields[] = {
    S2J_FIELD(AudioOutputInterface, Name, ""),
    S2J_FIELD(AudioOutputInterface, Type, ""),
    S2J_FIELD(AudioOutputInterface, Alias, ""),
    S2J_FIELD(AudioOutputInterface, IsAnalogAudio, "flag"),
    S2J_FIELD(AudioOutputInterface, IsEmbeddedAudio, "flag"),
    S2J_FIELD(AudioOutputInterface, SupportVolumeControl, "flag"),
    S2J_FIELD(AudioOutputInterface, MinVolume, ""),
    S2J_FIELD(AudioOutputInterface, MaxVolume, ""),
    S2J_FIELD(AudioOutputInterface, SupportGainControl, "flag"),
    S2J_FIELD(AudioOutputInterface, MinGain, ""),
    S2J_FIELD(AudioOutputInterface, MaxGain, ""),
};
S2J_RECORD(AudioOutputInterface)

static constexpr s2j::Field AudioOutputInterfaceParameter_fields[] = {
    S2J_FIELD(AudioOutputInterfaceParameter, InterfaceName, "key field"),
    S2J_FIELD(AudioOutputInterfaceParameter, Volume, ""),
    S2J_FIELD(AudioOutputInterfaceParameter, Gain, ""),
};
static constexpr s2j::Key AudioOutputInterfaceParameter_keys[] = {
    S2J_KEY(AudioOutputInterfaceParameter, InterfaceName),
};
S2J_RECORD_KEYWORD_GET(AudioOutputInterfaceParameter, InterfaceName)

static constexpr s2j::Field AudioOutputParameter_fields[] = {
    S2J_FIELD(AudioOutputParameter, Channel, "key field"),
    S2J_FIELD(AudioOutputParameter, InterfaceName, "the audio output interface that the channel drives"),
    S2J_FIELD(AudioOutputParameter, SourceIndex, "signed"),
    S2J_FIELD(AudioOutputParameter, SourceType, "signed"),
};
static constexpr s2j::Key AudioOutputParameter_keys[] = {
    S2J_KEY(AudioOutputParameter, Channel),
};
S2J_RECORD_KEYWORD_GET(AudioOutputParameter, Channel)

static constexpr s2j::Field VideoDecodeCapabilitySet_fields[] = {
    S2J_FIELD(VideoDecodeCapabilitySet, MaxVideoWidth, ""),
    S2J_FIELD(VideoDecodeCapabilitySet, MaxVideoHeight, ""),
    S2J_FIELD(VideoDecodeCapabilitySet, MaxVideoFramerate, ""),
    S2J_FIELD(VideoDecodeCapabilitySet, SupportedVideoCodecList, "list held as text; not interpreted"),
    S2J_FIELD(VideoDecodeCapabilitySet, MaxVideoDecodeCapabilityByChannel, "signed, unlike the unsigned \"MaxVideoEncodeCapability\" of the encode capability set"),
    S2J_FIELD(VideoDecodeCapabilitySet, TotalVideoDecodeCapability, "signed"),
    S2J_FIELD(VideoDecodeCapabilitySet, MaxCacheTime, ""),
};
S2J_RECORD(VideoDecodeCapabilitySet)

static constexpr s2j::Field AudioDecodeCapabilitySet_fields[] = {
    S2J_FIELD(AudioDecodeCapabilitySet, SupportedAudioCodecList, "list held as text; not interpreted"),
};
S2J_RECORD(AudioDecodeCapabilitySet)

static constexpr s2j::Field ScreenshotCapabilitySet_fields[] = {
    S2J_FIELD(ScreenshotCapabilitySet, MaxScreenshotNumber, "upper bound on ScreenshotParameter elements"),
    S2J_FIELD(ScreenshotCapabilitySet, MaxScreenshotListNumber, "upper bound on ScreenshotListParameter elements"),
    S2J_FIELD(ScreenshotCapabilitySet, MaxScreenshotNumberInList, "upper bound on the entries of one list"),
};
S2J_RECORD(ScreenshotCapabilitySet)

static constexpr s2j::Field ScreenshotParameter_fields[] = {
    S2J_FIELD(ScreenshotParameter, Index, "key field"),
    S2J_FIELD(ScreenshotParameter, Name, "display name"),
    S2J_FIELD(ScreenshotParameter, ScreenSplitMode, "split mode, as of the video output records"),
    S2J_FIELD(ScreenshotParameter, UserDefinedScreenSplitModeIndex, "user-defined layout, as of the video output records; signed"),
    S2J_FIELD(ScreenshotParameter, BoundVideoInputChannels, "list held as text; not interpreted"),
    S2J_FIELD(ScreenshotParameter, AttachedInputStreamingIndexs, "list held as text; not interpreted. The key ends in \"Indexs\" on purpose"),
};
static constexpr s2j::Key ScreenshotParameter_keys[] = {
    S2J_KEY(ScreenshotParameter, Index),
};
S2J_RECORD_KEYWORD_GET(ScreenshotParameter, Index)

static constexpr s2j::Field ScreenshotListParameter_fields[] = {
    S2J_FIELD(ScreenshotListParameter, Index, "key field"),
    S2J_FIELD(ScreenshotListParameter, Name, "display name"),
    S2J_FIELD(ScreenshotListParameter, ScreenshotIndexs, "list of screenshot Index values held as text; not interpreted. The key ends in \"Indexs\" on purpose"),
    S2J_FIELD(ScreenshotListParameter, ScreenshotDwellTimes, "list of dwell times held as text; not interpreted"),
};
static constexpr s2j::Key ScreenshotListParameter_keys[] = {
    S2J_KEY(ScreenshotListParameter, Index),
};
S2J_RECORD_KEYWORD_GET(ScreenshotListParameter, Index)

static constexpr s2j::Field VideoOutputScreenshotParameter_fields[] = {
    S2J_FIELD(VideoOutputScreenshotParameter, InterfaceName, "key field"),
    S2J_FIELD(VideoOutputScreenshotParameter, ScreenshotIndex, "Index of a ScreenshotParameter; signed"),
    S2J_FIELD(VideoOutputScreenshotParameter, ScreenshotListIndex, "Index of a ScreenshotListParameter; signed"),
};
static constexpr s2j::Key VideoOutputScreenshotParameter_keys[] = {
    S2J_KEY(VideoOutputScreenshotParameter, InterfaceName),
};
S2J_RECORD_KEYWORD_GET(VideoOutputScreenshotParameter, InterfaceName)

static constexpr s2j::Field VideoOutputOSDParameter_fields[] = {
    S2J_FIELD(VideoOutputOSDParameter, Channel, "key field"),
    S2J_FIELD(VideoOutputOSDParameter, Index, "key field: the item's place among the channel's OSD items"),
    S2J_FIELD(VideoOutputOSDParameter, Type, "value not interpreted"),
    S2J_FIELD(VideoOutputOSDParameter, Visible, "flag"),
    S2J_FIELD(VideoOutputOSDParameter, AutoFontSize, ""),
    S2J_FIELD(VideoOutputOSDParameter, FixedFontSize, ""),
    S2J_FIELD(VideoOutputOSDParameter, Bold, "flag"),
    S2J_FIELD(VideoOutputOSDParameter, Stroke, "flag"),
    S2J_FIELD(VideoOutputOSDParameter, ForeColor, "colour held as text"),
    S2J_FIELD(VideoOutputOSDParameter, ForeAlpha, ""),
    S2J_FIELD(VideoOutputOSDParameter, BackColor, "colour held as text"),
    S2J_FIELD(VideoOutputOSDParameter, BackAlpha, ""),
    S2J_FIELD(VideoOutputOSDParameter, CoordinateOrigin, "value not interpreted"),
    S2J_FIELD(VideoOutputOSDParameter, XCoordinate, ""),
    S2J_FIELD(VideoOutputOSDParameter, YCoordinate, ""),
    S2J_FIELD(VideoOutputOSDParameter, CoordinateBase, ""),
    S2J_FIELD(VideoOutputOSDParameter, Content, "text shown"),
    S2J_FIELD(VideoOutputOSDParameter, Prefix, "text put before the content"),
    S2J_FIELD(VideoOutputOSDParameter, Postfix, "text put after the content"),
};
// An OSD item is named by its channel and its place among the channel's items.
static constexpr s2j::Key VideoOutputOSDParameter_keys[] = {
    S2J_KEY(VideoOutputOSDParameter, Channel),
    S2J_KEY(VideoOutputOSDParameter, Index),
};
S2J_RECORD_KEYWORD_GET(VideoOutputOSDParameter, Channel)

static constexpr s2j::Field WatermarkOSDParameter_fields[] = {
    S2J_FIELD(WatermarkOSDParameter, InterfaceName, "key field"),
    S2J_FIELD(WatermarkOSDParameter, Visible, "flag"),
    S2J_FIELD(WatermarkOSDParameter, AutoFontSize, ""),
    S2J_FIELD(WatermarkOSDParameter, FixedFontSize, ""),
    S2J_FIELD(WatermarkOSDParameter, Bold, "flag"),
    S2J_FIELD(WatermarkOSDParameter, Stroke, "flag"),
    S2J_FIELD(WatermarkOSDParameter, ForeColor, "colour held as text"),
    S2J_FIELD(WatermarkOSDParameter, ForeAlpha, ""),
    S2J_FIELD(WatermarkOSDParameter, BackColor, "colour held as text"),
    S2J_FIELD(WatermarkOSDParameter, BackAlpha, ""),
    S2J_FIELD(WatermarkOSDParameter, CoordinateOrigin, "value not interpreted"),
    S2J_FIELD(WatermarkOSDParameter, XCoordinate, ""),
    S2J_FIELD(WatermarkOSDParameter, YCoordinate, ""),
    S2J_FIELD(WatermarkOSDParameter, CoordinateBase, ""),
    S2J_FIELD(WatermarkOSDParameter, Content, "text shown"),
    S2J_FIELD(WatermarkOSDParameter, PrefixType, "value not interpreted"),
    S2J_FIELD(WatermarkOSDParameter, PrefixContent, "text"),
    S2J_FIELD(WatermarkOSDParameter, PostfixType, "value not interpreted"),
    S2J_FIELD(WatermarkOSDParameter, PostfixContent, "text"),
    S2J_FIELD(WatermarkOSDParameter, RotationAngle, "signed angle"),
    S2J_FIELD(WatermarkOSDParameter, ArrangementMode, "value not interpreted"),
    S2J_FIELD(WatermarkOSDParameter, Movable, "flag"),
    S2J_FIELD(WatermarkOSDParameter, MovingStepSize, ""),
    S2J_FIELD(WatermarkOSDParameter, MovingSpeed, ""),
    S2J_FIELD(WatermarkOSDParameter, MovingDirection, "value not interpreted"),
};
static constexpr s2j::Key WatermarkOSDParameter_keys[] = {
    S2J_KEY(WatermarkOSDParameter, InterfaceName),
};
S2J_RECORD_KEYWORD_GET(WatermarkOSDParameter, InterfaceName)

static constexpr s2j::Field WatermarkPictureParameter_fields[] = {
    S2J_FIELD(WatermarkPictureParameter, InterfaceName, "key field"),
    S2J_FIELD(WatermarkPictureParameter, Visible, "flag"),
    S2J_FIELD(WatermarkPictureParameter, CoordinateOrigin, "value not interpreted"),
    S2J_FIELD(WatermarkPictureParameter, XCoordinate, ""),
    S2J_FIELD(WatermarkPictureParameter, YCoordinate, ""),
    S2J_FIELD(WatermarkPictureParameter, CoordinateBase, ""),
    S2J_FIELD(WatermarkPictureParameter, ImageWidth, ""),
    S2J_FIELD(WatermarkPictureParameter, ImageHeight, ""),
    S2J_FIELD(WatermarkPictureParameter, ImageFilePath, "path of the picture file"),
    S2J_FIELD(WatermarkPictureParameter, Transparency, ""),
    S2J_FIELD(WatermarkPictureParameter, DisplayMode, "value not interpreted"),
    S2J_FIELD(WatermarkPictureParameter, RotationAngle, "signed angle"),
    S2J_FIELD(WatermarkPictureParameter, ArrangementMode, "value not interpreted"),
    S2J_FIELD(WatermarkPictureParameter, Movable, "flag"),
    S2J_FIELD(WatermarkPictureParameter, MovingStepSize, ""),
    S2J_FIELD(WatermarkPictureParameter, MovingSpeed, ""),
    S2J_FIELD(WatermarkPictureParameter, MovingDirection, "value not interpreted"),
};
static constexpr s2j::Key WatermarkPictureParameter_keys[] = {
    S2J_KEY(WatermarkPictureParameter, InterfaceName),
};
S2J_RECORD_KEYWORD_GET(WatermarkPictureParameter, InterfaceName)

static constexpr s2j::Field WatermarkDotmatrixParameter_fields[] = {
    S2J_FIELD(WatermarkDotmatrixParameter, InterfaceName, "key field"),
    S2J_FIELD(WatermarkDotmatrixParameter, Visible, "flag"),
    S2J_FIELD(WatermarkDotmatrixParameter, Color, "colour held as text"),
    S2J_FIELD(WatermarkDotmatrixParameter, Transparency, ""),
    S2J_FIELD(WatermarkDotmatrixParameter, Movable, "flag"),
    S2J_FIELD(WatermarkDotmatrixParameter, MovingStepSize, ""),
    S2J_FIELD(WatermarkDotmatrixParameter, MovingSpeed, ""),
    S2J_FIELD(WatermarkDotmatrixParameter, MovingDirection, "value not interpreted"),
    S2J_FIELD(WatermarkDotmatrixParameter, Content, "text rendered as dots"),
};
static constexpr s2j::Key WatermarkDotmatrixParameter_keys[] = {
    S2J_KEY(WatermarkDotmatrixParameter, InterfaceName),
};
S2J_RECORD_KEYWORD_GET(WatermarkDotmatrixParameter, InterfaceName)

static constexpr s2j::Field UploadWatermarkPictureParameter_fields[] = {
    S2J_FIELD(UploadWatermarkPictureParameter, InterfaceName, "interface the picture is for"),
    S2J_FIELD(UploadWatermarkPictureParameter, ImageFilePath, "where the uploaded file lies"),
    S2J_FIELD(UploadWatermarkPictureParameter, ImageFileSize, "size of the file"),
};
S2J_RECORD(UploadWatermarkPictureParameter)
