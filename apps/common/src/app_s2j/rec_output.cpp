// rec_output.cpp - records of video outputs and display, sources and
// playlists, audio outputs and decoders, screenshots, output OSD and
// watermarks: their field tables, emitters, readers and keyword readers.
#include "s2j_record_defs.h"

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
    S2J_FIELD(VideoOutputInterface, HardwareRelated,
              "1 when the interface is a physical connector of the device, 0 when not"),
    S2J_FIELD(VideoOutputInterface, Removeable,
              "1 when the interface can be removed, 0 when not; this spelling is the key, in both directions, unlike "
              "\"Removable\" of the storage records"),
    S2J_FIELD(VideoOutputInterface, SupportTimingManualConfig,
              "1 when the output timing can be set by hand, 0 when not"),
    S2J_FIELD(VideoOutputInterface, SupportEmbeddedAudio,
              "1 when the interface can carry audio embedded in the video signal, 0 when not"),
    S2J_FIELD(VideoOutputInterface, SupportedTimingList, "list held as text; not interpreted"),
    S2J_FIELD(VideoOutputInterface, SupportedMasterInterfaceName,
              "names of the interfaces this one can follow as its master, as text"),
    S2J_FIELD(VideoOutputInterface, ScreenCanvasWidth, "width of the output's drawing area"),
    S2J_FIELD(VideoOutputInterface, ScreenCanvasHeight, "height of the output's drawing area"),
    S2J_FIELD(VideoOutputInterface, MaxVideoOutputLayerNumber, "greatest number of video layers on the output"),
    S2J_FIELD(VideoOutputInterface, MaxVideoOutputWindowNumber, "greatest number of video windows on the output"),
    S2J_FIELD(VideoOutputInterface, UserDefinedScreenSplitModeNumber,
              "how many user-defined split modes the interface holds"),
    S2J_FIELD(VideoOutputInterface, SupportedScreenSplitModeList, "list held as text; not interpreted"),
    S2J_FIELD(VideoOutputInterface, MaxGraphicLayerNumber, "greatest number of graphic layers on the output"),
    S2J_FIELD(VideoOutputInterface, SupportWatermark, "1 when the output can show watermarks, 0 when not"),
    S2J_FIELD(VideoOutputInterface, SupportOSDInWindow, "1 when OSD items can be shown in output windows, 0 when not"),
    S2J_FIELD(VideoOutputInterface, OSDNumberPerWindow, "greatest number of OSD items in one window"),
};
S2J_RECORD(VideoOutputInterface)

static constexpr s2j::Field VideoOutputInterfaceParameter_fields[] = {
    S2J_FIELD(VideoOutputInterfaceParameter, InterfaceName, "name of the interface the record is for; key field"),
    S2J_FIELD(VideoOutputInterfaceParameter, Timing, "one of SupportedTimingList; not checked"),
    S2J_FIELD(VideoOutputInterfaceParameter, ManualConfigTiming,
              "1 when the fields below describe the timing by hand, 0 when it is chosen automatically"),
    S2J_FIELD(VideoOutputInterfaceParameter, Width, "width of the output picture"),
    S2J_FIELD(VideoOutputInterfaceParameter, Height, "height of the output picture"),
    S2J_FIELD(VideoOutputInterfaceParameter, ScanningFrequencyInteger, "integer part of the refresh rate"),
    S2J_FIELD(VideoOutputInterfaceParameter, ScanningFrequencyDecimal, "fractional part of the refresh rate"),
    S2J_FIELD(VideoOutputInterfaceParameter, ScanningMode, "scanning mode as a code; its values are not interpreted"),
    S2J_FIELD(VideoOutputInterfaceParameter, TimingType, "timing type as a code; its values are not interpreted"),
    S2J_FIELD(VideoOutputInterfaceParameter, Brightness, "picture brightness; scale not fixed by the library"),
    S2J_FIELD(VideoOutputInterfaceParameter, Hue, "picture hue; scale not fixed by the library"),
    S2J_FIELD(VideoOutputInterfaceParameter, Contrast, "picture contrast; scale not fixed by the library"),
    S2J_FIELD(VideoOutputInterfaceParameter, Saturation, "picture saturation; scale not fixed by the library"),
    S2J_FIELD(VideoOutputInterfaceParameter, MasterInterfaceName,
              "name of the interface this one follows as its master"),
    S2J_FIELD(VideoOutputInterfaceParameter, ScreenSplitMode, "one of SupportedScreenSplitModeList; not checked"),
    S2J_FIELD(VideoOutputInterfaceParameter, UserDefinedScreenSplitModeIndex,
              "selects a VideoOutputScreenSplitParameter element; signed here"),
    S2J_FIELD(VideoOutputInterfaceParameter, AutoConfigOptimumTiming,
              "1 lets the device pick the best timing for the connected display, 0 uses the timing set here"),
};
static constexpr s2j::Key VideoOutputInterfaceParameter_keys[] = {
    S2J_KEY(VideoOutputInterfaceParameter, InterfaceName),
};
S2J_RECORD_KEYWORD_GET(VideoOutputInterfaceParameter, InterfaceName)

static constexpr s2j::Field VideoOutputDisplayParameter_fields[] = {
    S2J_FIELD(VideoOutputDisplayParameter, VideoDisplayMode,
              "video display mode as a code; its values are not interpreted"),
    S2J_FIELD(VideoOutputDisplayParameter, VideoDisplayStopAction,
              "video display stop action as a code; its values are not interpreted"),
    S2J_FIELD(VideoOutputDisplayParameter, BackgroundColor, "colour held as text"),
    S2J_FIELD(VideoOutputDisplayParameter, WindowBorderColor, "colour held as text"),
    S2J_FIELD(VideoOutputDisplayParameter, WindowBorderLineWidth, "width of the line drawn around each window"),
    S2J_FIELD(VideoOutputDisplayParameter, AudioOutputWindowBorderColor, "colour held as text"),
    S2J_FIELD(VideoOutputDisplayParameter, CacheTime,
              "how long decoded video is buffered before display; signed; unit not fixed by the library"),
    S2J_FIELD(VideoOutputDisplayParameter, VideoPlayMode, "video play mode as a code; its values are not interpreted"),
};
S2J_RECORD(VideoOutputDisplayParameter)

static constexpr s2j::Field VideoOutputScreenSplitParameter_fields[] = {
    S2J_FIELD(VideoOutputScreenSplitParameter, InterfaceName, "name of the interface the record is for; key field"),
    S2J_FIELD(VideoOutputScreenSplitParameter, UserDefinedScreenSplitModeIndex,
              "key field; unsigned here, signed in VideoOutputInterfaceParameter"),
    S2J_FIELD(VideoOutputScreenSplitParameter, SplitWindowNumber, "number of windows in the layout"),
    S2J_FIELD(VideoOutputScreenSplitParameter, UserDefinedScreenSplitModeDetails,
              "layout held as text; not interpreted"),
};
// A layout is named by its interface and its index, the string matched first.
static constexpr s2j::Key VideoOutputScreenSplitParameter_keys[] = {
    S2J_KEY(VideoOutputScreenSplitParameter, InterfaceName),
    S2J_KEY(VideoOutputScreenSplitParameter, UserDefinedScreenSplitModeIndex),
};
S2J_RECORD_KEYWORD_GET(VideoOutputScreenSplitParameter, InterfaceName)

static constexpr s2j::Field VideoOutputSourceParameter_fields[] = {
    S2J_FIELD(VideoOutputSourceParameter, Channel, "channel the record is for; key field"),
    S2J_FIELD(VideoOutputSourceParameter, SourceIndex, "index of the source within its type; signed"),
    S2J_FIELD(VideoOutputSourceParameter, SourceType, "kind of source; value not interpreted"),
    S2J_FIELD(VideoOutputSourceParameter, CacheTime,
              "how long the source's video is buffered before display; signed; unit not fixed by the library"),
};
static constexpr s2j::Key VideoOutputSourceParameter_keys[] = {
    S2J_KEY(VideoOutputSourceParameter, Channel),
};
S2J_RECORD_KEYWORD_GET(VideoOutputSourceParameter, Channel)

static constexpr s2j::Field VideoOutputPlaylistParameter_fields[] = {
    S2J_FIELD(VideoOutputPlaylistParameter, Index, "index that identifies the element; key field"),
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
    S2J_FIELD(AudioOutputCapabilitySet, SupportedAudioOutputInterfaces,
              "list of audio output interfaces, held as text; the key ends in \"Interfaces\", without \"List\""),
    S2J_FIELD(AudioOutputCapabilitySet, SupportedInputStreamingIndexList, "list held as text; not interpreted"),
    S2J_FIELD(AudioOutputCapabilitySet, SupportedVideoOutputChannelList, "list held as text; not interpreted"),
};
S2J_RECORD(AudioOutputCapabilitySet)

static constexpr s2j::Field AudioOutputInterface_fields[] = {
    S2J_FIELD(AudioOutputInterface, Name,
              "name of the interface, as \"InterfaceName\" of the output's other records gives it"),
    S2J_FIELD(AudioOutputInterface, Type, "kind of interface, as text; its vocabulary is not fixed by the library"),
    S2J_FIELD(AudioOutputInterface, Alias, "name shown to users"),
    S2J_FIELD(AudioOutputInterface, IsAnalogAudio, "1 when the interface gives analogue audio, 0 when not"),
    S2J_FIELD(AudioOutputInterface, IsEmbeddedAudio,
              "1 when the interface gives audio embedded in a video signal, 0 when not"),
    S2J_FIELD(AudioOutputInterface, SupportVolumeControl, "1 when the interface's volume can be set, 0 when not"),
    S2J_FIELD(AudioOutputInterface, MinVolume, "least value of the interface's \"Volume\""),
    S2J_FIELD(AudioOutputInterface, MaxVolume, "greatest value of the interface's \"Volume\""),
    S2J_FIELD(AudioOutputInterface, SupportGainControl, "1 when the interface's gain can be set, 0 when not"),
    S2J_FIELD(AudioOutputInterface, MinGain, "least value of the interface's \"Gain\"; signed"),
    S2J_FIELD(AudioOutputInterface, MaxGain, "greatest value of the interface's \"Gain\"; signed"),
};
S2J_RECORD(AudioOutputInterface)

static constexpr s2j::Field AudioOutputInterfaceParameter_fields[] = {
    S2J_FIELD(AudioOutputInterfaceParameter, InterfaceName, "name of the interface the record is for; key field"),
    S2J_FIELD(AudioOutputInterfaceParameter, Volume,
              "volume of the interface, from \"MinVolume\" to \"MaxVolume\" of AudioOutputInterface"),
    S2J_FIELD(AudioOutputInterfaceParameter, Gain,
              "gain of the interface, from \"MinGain\" to \"MaxGain\" of AudioOutputInterface; signed"),
};
static constexpr s2j::Key AudioOutputInterfaceParameter_keys[] = {
    S2J_KEY(AudioOutputInterfaceParameter, InterfaceName),
};
S2J_RECORD_KEYWORD_GET(AudioOutputInterfaceParameter, InterfaceName)

static constexpr s2j::Field AudioOutputParameter_fields[] = {
    S2J_FIELD(AudioOutputParameter, Channel, "channel the record is for; key field"),
    S2J_FIELD(AudioOutputParameter, InterfaceName, "the audio output interface that the channel drives"),
    S2J_FIELD(AudioOutputParameter, SourceIndex, "index of the source the channel plays; signed"),
    S2J_FIELD(AudioOutputParameter, SourceType, "kind of source the channel plays, as a code; signed; not interpreted"),
};
static constexpr s2j::Key AudioOutputParameter_keys[] = {
    S2J_KEY(AudioOutputParameter, Channel),
};
S2J_RECORD_KEYWORD_GET(AudioOutputParameter, Channel)

static constexpr s2j::Field VideoDecodeCapabilitySet_fields[] = {
    S2J_FIELD(VideoDecodeCapabilitySet, MaxVideoWidth, "greatest width of a video that can be decoded"),
    S2J_FIELD(VideoDecodeCapabilitySet, MaxVideoHeight, "greatest height of a video that can be decoded"),
    S2J_FIELD(VideoDecodeCapabilitySet, MaxVideoFramerate, "greatest frame rate of a video that can be decoded"),
    S2J_FIELD(VideoDecodeCapabilitySet, SupportedVideoCodecList, "list held as text; not interpreted"),
    S2J_FIELD(VideoDecodeCapabilitySet, MaxVideoDecodeCapabilityByChannel,
              "signed, unlike the unsigned \"MaxVideoEncodeCapability\" of the encode capability set"),
    S2J_FIELD(VideoDecodeCapabilitySet, TotalVideoDecodeCapability,
              "total video decoding capacity of the device; signed; not interpreted"),
    S2J_FIELD(VideoDecodeCapabilitySet, MaxCacheTime, "greatest \"CacheTime\" of the output records"),
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
    S2J_FIELD(ScreenshotParameter, Index, "index that identifies the element; key field"),
    S2J_FIELD(ScreenshotParameter, Name, "display name"),
    S2J_FIELD(ScreenshotParameter, ScreenSplitMode, "split mode, as of the video output records"),
    S2J_FIELD(ScreenshotParameter, UserDefinedScreenSplitModeIndex,
              "user-defined layout, as of the video output records; signed"),
    S2J_FIELD(ScreenshotParameter, BoundVideoInputChannels, "list held as text; not interpreted"),
    S2J_FIELD(ScreenshotParameter, AttachedInputStreamingIndexs,
              "list of streaming input indexes held as text; not interpreted. The key ends in \"Indexs\""),
};
static constexpr s2j::Key ScreenshotParameter_keys[] = {
    S2J_KEY(ScreenshotParameter, Index),
};
S2J_RECORD_KEYWORD_GET(ScreenshotParameter, Index)

static constexpr s2j::Field ScreenshotListParameter_fields[] = {
    S2J_FIELD(ScreenshotListParameter, Index, "index that identifies the element; key field"),
    S2J_FIELD(ScreenshotListParameter, Name, "display name"),
    S2J_FIELD(ScreenshotListParameter, ScreenshotIndexs,
              "list of screenshot Index values held as text; not interpreted. The key ends in \"Indexs\""),
    S2J_FIELD(ScreenshotListParameter, ScreenshotDwellTimes, "list of dwell times held as text; not interpreted"),
};
static constexpr s2j::Key ScreenshotListParameter_keys[] = {
    S2J_KEY(ScreenshotListParameter, Index),
};
S2J_RECORD_KEYWORD_GET(ScreenshotListParameter, Index)

static constexpr s2j::Field VideoOutputScreenshotParameter_fields[] = {
    S2J_FIELD(VideoOutputScreenshotParameter, InterfaceName, "name of the interface the record is for; key field"),
    S2J_FIELD(VideoOutputScreenshotParameter, ScreenshotIndex, "Index of a ScreenshotParameter; signed"),
    S2J_FIELD(VideoOutputScreenshotParameter, ScreenshotListIndex, "Index of a ScreenshotListParameter; signed"),
};
static constexpr s2j::Key VideoOutputScreenshotParameter_keys[] = {
    S2J_KEY(VideoOutputScreenshotParameter, InterfaceName),
};
S2J_RECORD_KEYWORD_GET(VideoOutputScreenshotParameter, InterfaceName)

static constexpr s2j::Field VideoOutputOSDParameter_fields[] = {
    S2J_FIELD(VideoOutputOSDParameter, Channel, "channel the record is for; key field"),
    S2J_FIELD(VideoOutputOSDParameter, Index, "key field: the item's place among the channel's OSD items"),
    S2J_FIELD(VideoOutputOSDParameter, Type, "kind of OSD item as a code; its values are not interpreted"),
    S2J_FIELD(VideoOutputOSDParameter, Visible, "1 shows the item in its window, 0 hides it"),
    S2J_FIELD(VideoOutputOSDParameter, AutoFontSize, "font size chosen by the device; unit not fixed by the library"),
    S2J_FIELD(VideoOutputOSDParameter, FixedFontSize, "font size set by hand; unit not fixed by the library"),
    S2J_FIELD(VideoOutputOSDParameter, Bold, "1 draws the text bold, 0 regular"),
    S2J_FIELD(VideoOutputOSDParameter, Stroke, "1 outlines the text, 0 draws it without outline"),
    S2J_FIELD(VideoOutputOSDParameter, ForeColor, "colour held as text"),
    S2J_FIELD(VideoOutputOSDParameter, ForeAlpha, "opacity of the text; scale not fixed by the library"),
    S2J_FIELD(VideoOutputOSDParameter, BackColor, "colour held as text"),
    S2J_FIELD(VideoOutputOSDParameter, BackAlpha,
              "opacity of the background behind the text; scale not fixed by the library"),
    S2J_FIELD(VideoOutputOSDParameter, CoordinateOrigin, "coordinate origin as a code; its values are not interpreted"),
    S2J_FIELD(VideoOutputOSDParameter, XCoordinate, "horizontal position of the item, relative to \"CoordinateBase\""),
    S2J_FIELD(VideoOutputOSDParameter, YCoordinate, "vertical position of the item, relative to \"CoordinateBase\""),
    S2J_FIELD(VideoOutputOSDParameter, CoordinateBase,
              "the base to which the coordinates refer, as a code; not interpreted"),
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
    S2J_FIELD(WatermarkOSDParameter, InterfaceName, "name of the interface the record is for; key field"),
    S2J_FIELD(WatermarkOSDParameter, Visible, "1 shows the text watermark, 0 hides it"),
    S2J_FIELD(WatermarkOSDParameter, AutoFontSize, "font size chosen by the device; unit not fixed by the library"),
    S2J_FIELD(WatermarkOSDParameter, FixedFontSize, "font size set by hand; unit not fixed by the library"),
    S2J_FIELD(WatermarkOSDParameter, Bold, "1 draws the text bold, 0 regular"),
    S2J_FIELD(WatermarkOSDParameter, Stroke, "1 outlines the text, 0 draws it without outline"),
    S2J_FIELD(WatermarkOSDParameter, ForeColor, "colour held as text"),
    S2J_FIELD(WatermarkOSDParameter, ForeAlpha, "opacity of the text; scale not fixed by the library"),
    S2J_FIELD(WatermarkOSDParameter, BackColor, "colour held as text"),
    S2J_FIELD(WatermarkOSDParameter, BackAlpha,
              "opacity of the background behind the text; scale not fixed by the library"),
    S2J_FIELD(WatermarkOSDParameter, CoordinateOrigin, "coordinate origin as a code; its values are not interpreted"),
    S2J_FIELD(WatermarkOSDParameter, XCoordinate,
              "horizontal position of the watermark, relative to \"CoordinateBase\""),
    S2J_FIELD(WatermarkOSDParameter, YCoordinate, "vertical position of the watermark, relative to \"CoordinateBase\""),
    S2J_FIELD(WatermarkOSDParameter, CoordinateBase,
              "the base to which the coordinates refer, as a code; not interpreted"),
    S2J_FIELD(WatermarkOSDParameter, Content, "text shown"),
    S2J_FIELD(WatermarkOSDParameter, PrefixType, "prefix type as a code; its values are not interpreted"),
    S2J_FIELD(WatermarkOSDParameter, PrefixContent, "text put before the content"),
    S2J_FIELD(WatermarkOSDParameter, PostfixType, "postfix type as a code; its values are not interpreted"),
    S2J_FIELD(WatermarkOSDParameter, PostfixContent, "text put after the content"),
    S2J_FIELD(WatermarkOSDParameter, RotationAngle, "angle by which the watermark is turned; signed"),
    S2J_FIELD(WatermarkOSDParameter, ArrangementMode, "arrangement mode as a code; its values are not interpreted"),
    S2J_FIELD(WatermarkOSDParameter, Movable, "1 moves the watermark across the picture, 0 keeps it in place"),
    S2J_FIELD(WatermarkOSDParameter, MovingStepSize, "distance moved per step, when \"Movable\" is 1"),
    S2J_FIELD(WatermarkOSDParameter, MovingSpeed,
              "how fast the watermark moves, when \"Movable\" is 1; unit not fixed by the library"),
    S2J_FIELD(WatermarkOSDParameter, MovingDirection, "moving direction as a code; its values are not interpreted"),
};
static constexpr s2j::Key WatermarkOSDParameter_keys[] = {
    S2J_KEY(WatermarkOSDParameter, InterfaceName),
};
S2J_RECORD_KEYWORD_GET(WatermarkOSDParameter, InterfaceName)

static constexpr s2j::Field WatermarkPictureParameter_fields[] = {
    S2J_FIELD(WatermarkPictureParameter, InterfaceName, "name of the interface the record is for; key field"),
    S2J_FIELD(WatermarkPictureParameter, Visible, "1 shows the picture watermark, 0 hides it"),
    S2J_FIELD(WatermarkPictureParameter, CoordinateOrigin,
              "coordinate origin as a code; its values are not interpreted"),
    S2J_FIELD(WatermarkPictureParameter, XCoordinate,
              "horizontal position of the watermark, relative to \"CoordinateBase\""),
    S2J_FIELD(WatermarkPictureParameter, YCoordinate,
              "vertical position of the watermark, relative to \"CoordinateBase\""),
    S2J_FIELD(WatermarkPictureParameter, CoordinateBase,
              "the base to which the coordinates refer, as a code; not interpreted"),
    S2J_FIELD(WatermarkPictureParameter, ImageWidth, "width at which the picture is shown"),
    S2J_FIELD(WatermarkPictureParameter, ImageHeight, "height at which the picture is shown"),
    S2J_FIELD(WatermarkPictureParameter, ImageFilePath, "path of the picture file"),
    S2J_FIELD(WatermarkPictureParameter, Transparency, "transparency of the picture; scale not fixed by the library"),
    S2J_FIELD(WatermarkPictureParameter, DisplayMode, "display mode as a code; its values are not interpreted"),
    S2J_FIELD(WatermarkPictureParameter, RotationAngle, "angle by which the watermark is turned; signed"),
    S2J_FIELD(WatermarkPictureParameter, ArrangementMode, "arrangement mode as a code; its values are not interpreted"),
    S2J_FIELD(WatermarkPictureParameter, Movable, "1 moves the watermark across the picture, 0 keeps it in place"),
    S2J_FIELD(WatermarkPictureParameter, MovingStepSize, "distance moved per step, when \"Movable\" is 1"),
    S2J_FIELD(WatermarkPictureParameter, MovingSpeed,
              "how fast the watermark moves, when \"Movable\" is 1; unit not fixed by the library"),
    S2J_FIELD(WatermarkPictureParameter, MovingDirection, "moving direction as a code; its values are not interpreted"),
};
static constexpr s2j::Key WatermarkPictureParameter_keys[] = {
    S2J_KEY(WatermarkPictureParameter, InterfaceName),
};
S2J_RECORD_KEYWORD_GET(WatermarkPictureParameter, InterfaceName)

static constexpr s2j::Field WatermarkDotmatrixParameter_fields[] = {
    S2J_FIELD(WatermarkDotmatrixParameter, InterfaceName, "name of the interface the record is for; key field"),
    S2J_FIELD(WatermarkDotmatrixParameter, Visible, "1 shows the dot-matrix watermark, 0 hides it"),
    S2J_FIELD(WatermarkDotmatrixParameter, Color, "colour held as text"),
    S2J_FIELD(WatermarkDotmatrixParameter, Transparency, "transparency of the dots; scale not fixed by the library"),
    S2J_FIELD(WatermarkDotmatrixParameter, Movable, "1 moves the watermark across the picture, 0 keeps it in place"),
    S2J_FIELD(WatermarkDotmatrixParameter, MovingStepSize, "distance moved per step, when \"Movable\" is 1"),
    S2J_FIELD(WatermarkDotmatrixParameter, MovingSpeed,
              "how fast the watermark moves, when \"Movable\" is 1; unit not fixed by the library"),
    S2J_FIELD(WatermarkDotmatrixParameter, MovingDirection,
              "moving direction as a code; its values are not interpreted"),
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
