// Video input, video encoding, encoder OSD and audio input/encoding records:
// keys as written, the 16-bit frame-rate and scanning-frequency fields, the
// two-key updates, signed and unsigned fields sharing a key, capacities, and
// the example files.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <string>
#include <vector>

#include "app_s2j.h"
#include "registry.h"
#include "support.h"

using namespace testing_support;

namespace {

std::string reader_diag_c2s_array(const char *type) {
    return diag(text_list_file(), lines_of(type).c2s_array, std::string("c2s_array_") + type,
                std::string("json_to_struct_") + type + " failed!\n");
}

// The member names of an object, in order; the tree is freed.
std::vector<std::string> keys_of(cJSON *obj) {
    std::vector<std::string> k;
    for (const cJSON *m = obj ? obj->child : nullptr; m != nullptr; m = m->next) k.push_back(m->string);
    cJSON_Delete(obj);
    return k;
}

bool contains(const std::string &hay, const std::string &needle) { return hay.find(needle) != std::string::npos; }

// The one record that j2s_array reads from `doc` (status 0, count 1), and
// its emitter's compact text.
template <class T>
std::pair<T, std::string> read_one_and_emit(int (*j2s_array)(const char *, T *, uint32_t *), cJSON *(*emit)(const T *),
                                            const char *doc) {
    const T r = read_array_back(j2s_array, doc, 1, 1)[0];
    return {r, compact(emit(&r))};
}

// A JSON array of one object holding key: text.
cJSON *one_string(const char *key, const std::string &text) {
    cJSON *list = cJSON_CreateArray();
    cJSON *obj = cJSON_CreateObject();
    cJSON_AddStringToObject(obj, key, text.c_str());
    cJSON_AddItemToArray(list, obj);
    return list;
}

const std::string k2100(2100, 'q');

// =============================================================================
// Key names and order, as written
// =============================================================================

TEST(MediaKeys, VideoInputCapabilitySetKeysInOrder) {
    VideoInputCapabilitySet r{};
    EXPECT_EQ(
        keys_of(struct_to_json_VideoInputCapabilitySet(&r)),
        (std::vector<std::string>{"SupportedVideoInputInterfaceList", "SupportImageColorAdjust", "MaxImageBrightness",
                                  "MaxImageContrast", "MaxImageSaturation", "MaxImageHue"}));
}

TEST(MediaKeys, VideoInputInterfaceKeysInOrderWithRemoveableSpelledSo) {
    VideoInputInterface r{};
    EXPECT_EQ(
        keys_of(struct_to_json_VideoInputInterface(&r)),
        (std::vector<std::string>{"Name", "Type", "Alias", "HardwareRelated", "Removeable", "SupportTimingManualConfig",
                                  "SupportEmbeddedAudio", "MaxInputTiming", "SupportedManualTimingList"}));
}

TEST(MediaKeys, VideoInputParameterKeysInOrderWithHueBeforeContrast) {
    VideoInputParameter r{};
    EXPECT_EQ(keys_of(struct_to_json_VideoInputParameter(&r)),
              (std::vector<std::string>{"Channel", "InterfaceName", "ManualConfigTiming", "TimingType", "Width",
                                        "Height", "ScanningFrequencyInteger", "ScanningFrequencyDecimal",
                                        "ScanningMode", "Brightness", "Hue", "Contrast", "Saturation",
                                        "VideoLostContinueFrames", "VideoResumeContinueFrames", "VideoLostAction"}));
}

TEST(MediaKeys, VideoInputStatusKeysInOrder) {
    VideoInputStatus r{};
    EXPECT_EQ(keys_of(struct_to_json_VideoInputStatus(&r)),
              (std::vector<std::string>{"InterfaceName", "CableIsPlugged", "SignalIsValid", "VideoInputTiming",
                                        "HasEmbeddedAudio", "EmbeddedAudioSamplerate", "InputTimingDetails"}));
}

TEST(MediaKeys, VideoInputVGAParameterKeysInOrder) {
    VideoInputVGAParameter r{};
    EXPECT_EQ(keys_of(struct_to_json_VideoInputVGAParameter(&r)),
              (std::vector<std::string>{"InterfaceName", "BlackEdgeIsSelfCorrection", "CorrectedPhaseValue",
                                        "CorrectedOffsetX", "CorrectedOffsetY"}));
}

TEST(MediaKeys, VideoEncodeCapabilitySetKeysInOrder) {
    VideoEncodeCapabilitySet r{};
    EXPECT_EQ(keys_of(struct_to_json_VideoEncodeCapabilitySet(&r)),
              (std::vector<std::string>{"SupportedVideoEncodeSizeList", "MaxVideoEncodeWidth", "MaxVideoEncodeHeight",
                                        "MaxVideoEncodeFramerate", "SupportedVideoCodecList",
                                        "SupportedH264CodecProfileList", "SupportedH265CodecProfileList",
                                        "SupportedBitrateControlAlgorithmList", "MaxVideoEncodeBitrate",
                                        "MaxVideoEncodeGOP", "MinVideoEncodeWidth", "MinVideoEncodeHeight",
                                        "MinVideoEncodeBitrate", "MaxVideoEncodeCapability",
                                        "SelfAdaptiveVideoEncodeSizeCapability", "Rotate", "Mirror", "Flip", "Crop"}));
}

TEST(MediaKeys, VideoEncodeParameterKeysInOrder) {
    VideoEncodeParameter r{};
    EXPECT_EQ(keys_of(struct_to_json_VideoEncodeParameter(&r)),
              (std::vector<std::string>{"Channel", "StreamIndex", "Enable", "SelfAdaptiveVideoEncodeSize", "Width",
                                        "Height", "FramerateInteger", "FramerateDecimal", "Codec", "Profile",
                                        "BitrateControl", "GOP", "Bitrate", "ImageQuality", "Rotate", "Mirror", "Flip",
                                        "Crop", "CropLeftOffset", "CropTopOffset", "CropRightOffset",
                                        "CropBottomOffset", "CropOffsetBase"}));
}

TEST(MediaKeys, RequestIDRParameterKeysInOrder) {
    RequestIDRParameter r{3, 1};
    Text t(s2j_RequestIDRParameter(&r, 0));
    EXPECT_EQ(t.str(), "{\"Channel\":3,\"StreamIndex\":1}");
}

TEST(MediaKeys, VideoEncodeOSDCapabilitySetKeysInOrder) {
    VideoEncodeOSDCapabilitySet r{8, 1, 0};
    Text t(s2j_VideoEncodeOSDCapabilitySet(&r, 0));
    EXPECT_EQ(t.str(), "{\"OSDNumberPerChannel\":8,\"SupportDynamicText\":1,\"SupportPicture\":0}");
}

TEST(MediaKeys, VideoEncodeOSDParameterKeysInOrder) {
    VideoEncodeOSDParameter r{};
    EXPECT_EQ(
        keys_of(struct_to_json_VideoEncodeOSDParameter(&r)),
        (std::vector<std::string>{"Channel", "Index", "Type", "Visible", "AutoFontSize", "FixedFontSize", "Bold",
                                  "Stroke", "ForeColor", "ForeAlpha", "BackColor", "BackAlpha", "CoordinateOrigin",
                                  "XCoordinate", "YCoordinate", "CoordinateBase", "Content"}));
}

TEST(MediaKeys, AudioInputCapabilitySetKeysInOrder) {
    AudioInputCapabilitySet r{};
    EXPECT_EQ(keys_of(struct_to_json_AudioInputCapabilitySet(&r)),
              (std::vector<std::string>{"SupportedAudioInputInterfaceList", "SupportVolumeControl", "MinVolume",
                                        "MaxVolume", "SupportGainControl", "MinGain", "MaxGain"}));
}

TEST(MediaKeys, AudioInputInterfaceKeysInOrder) {
    AudioInputInterface r{};
    EXPECT_EQ(keys_of(struct_to_json_AudioInputInterface(&r)),
              (std::vector<std::string>{"Name", "Type", "Alias", "MinAudioSamplerate", "MaxAudioSamplerate",
                                        "MaxSamplingBitWidth", "MaxAudioChannels", "IsAnalogAudio", "IsEmbeddedAudio",
                                        "SupportedSampleRateList", "SupportVolumeControl", "MinVolume", "MaxVolume",
                                        "SupportGainControl", "MinGain", "MaxGain"}));
}

TEST(MediaKeys, AudioInputInterfaceParameterAndAudioInputParameterKeysInOrder) {
    AudioInputInterfaceParameter a{};
    EXPECT_EQ(keys_of(struct_to_json_AudioInputInterfaceParameter(&a)),
              (std::vector<std::string>{"InterfaceName", "Volume", "Gain"}));
    AudioInputParameter b{};
    EXPECT_EQ(keys_of(struct_to_json_AudioInputParameter(&b)),
              (std::vector<std::string>{"Channel", "InterfaceName", "Volume", "Gain"}));
}

TEST(MediaKeys, AudioInputStatusKeysInOrder) {
    AudioInputStatus r{};
    EXPECT_EQ(keys_of(struct_to_json_AudioInputStatus(&r)),
              (std::vector<std::string>{"InterfaceName", "CableIsPlugged", "SignalIsValid", "AudioSamplerate",
                                        "SamplingBitWidth", "AudioChannels", "InputTimingDetails", "Volume", "Gain"}));
}

TEST(MediaKeys, AudioEncodeCapabilitySetKeysInOrder) {
    AudioEncodeCapabilitySet r{};
    EXPECT_EQ(keys_of(struct_to_json_AudioEncodeCapabilitySet(&r)),
              (std::vector<std::string>{"SupportedAudioCodecList", "AacLcSupportedSamplerateList",
                                        "HeAacSupportedSamplerateList", "HeAacV2SupportedSamplerateList",
                                        "G711SupportedSamplerateList", "AacLcSupportedBitrateList",
                                        "HeAacSupportedBitrateList", "HeAacV2SupportedBitrateList",
                                        "G711SupportedBitrateList", "SupportResample"}));
}

TEST(MediaKeys, AudioEncodeParameterKeysInOrder) {
    AudioEncodeParameter r{};
    EXPECT_EQ(keys_of(struct_to_json_AudioEncodeParameter(&r)),
              (std::vector<std::string>{"Channel", "Enable", "Codec", "Samplerate", "SameWithAudioInputSamplerate",
                                        "Bitrate"}));
}

// =============================================================================
// Video input
// =============================================================================

TEST(VideoInputParameter, ArrayOfTwoWrittenAndReadBackKeepsSecondElementInPlace) {
    VideoInputParameter a[2] = {};
    a[0].Channel = 4;
    a[0].ScanningFrequencyInteger = 50;
    a[0].VideoLostAction = 9;
    a[1].Channel = 7;
    a[1].ScanningFrequencyInteger = 59;
    a[1].ScanningFrequencyDecimal = 94;
    a[1].VideoLostAction = 3;
    const std::string path = temp_dir() + "/vip.json";
    ASSERT_EQ(s2f_array_VideoInputParameter(path.c_str(), a, 2), 0);
    const std::vector<VideoInputParameter> b = read_array_back(f2s_array_VideoInputParameter, path.c_str(), 2, 2);
    EXPECT_EQ(b[1].Channel, 7u);
    EXPECT_EQ(b[1].VideoLostAction, 3u);
    EXPECT_EQ(b[1].ScanningFrequencyDecimal, 94);
    EXPECT_EQ(b[0].VideoLostAction, 9u);
    EXPECT_EQ(std::memcmp(a, b.data(), sizeof a), 0);
}

// 65596 is read back as 60; both halves keep the low 16 bits and are
// written back as such.
TEST(VideoInputParameter, ScanningFrequencyFieldsStoreTheLow16BitsWithoutFailing) {
    const struct {
        const char *doc;
        uint16_t integer, decimal;
        const char *emitted;
    } cases[] = {
        {"[{\"ScanningFrequencyInteger\":65596}]", 60, 0,
         "\"ScanningFrequencyInteger\":60,\"ScanningFrequencyDecimal\":0,"},
        {"[{\"ScanningFrequencyInteger\":65536,\"ScanningFrequencyDecimal\":-1}]", 0, 65535,
         "\"ScanningFrequencyInteger\":0,\"ScanningFrequencyDecimal\":65535,"},
    };
    for (const auto &c : cases) {
        const std::vector<VideoInputParameter> r = read_array_back(j2s_array_VideoInputParameter, c.doc, 1, 1);
        EXPECT_EQ(r[0].ScanningFrequencyInteger, c.integer) << c.doc;
        EXPECT_EQ(r[0].ScanningFrequencyDecimal, c.decimal) << c.doc;
        Text t(s2j_array_VideoInputParameter(r.data(), 1, 0));
        EXPECT_TRUE(contains(t.str(), c.emitted)) << t.str();
    }
}

TEST(VideoInputParameter, ScanningFrequencyOf65535IsEmittedUnsignedBetweenHeightAndScanningMode) {
    VideoInputParameter r{};
    r.Height = 1080;
    r.ScanningFrequencyInteger = 65535;
    r.ScanningFrequencyDecimal = 65535;
    r.ScanningMode = 2;
    EXPECT_TRUE(contains(compact(struct_to_json_VideoInputParameter(&r)),
                         "\"Height\":1080,\"ScanningFrequencyInteger\":65535,\"ScanningFrequencyDecimal\":65535,"
                         "\"ScanningMode\":2,"));
}

TEST(VideoInputParameter, ScanningFrequencyGivenAsStringFailsTheReader) {
    VideoInputParameter r[1] = {};
    r[0].ScanningFrequencyInteger = 25;
    uint32_t n = 1;
    StderrCapture err;
    EXPECT_EQ(j2s_array_VideoInputParameter("[{\"Width\":1280,\"ScanningFrequencyInteger\":\"60\"}]", r, &n), -1);
    EXPECT_EQ(err.text(), reader_diag_c2s_array("VideoInputParameter"));
    EXPECT_EQ(n, 1u);
    EXPECT_EQ(r[0].Width, 1280u);
    EXPECT_EQ(r[0].ScanningFrequencyInteger, 25);
}

TEST(VideoInputInterface, KeyRemovableWithoutSecondELeavesTheFlagUntouched) {
    VideoInputInterface r[1] = {};
    r[0].Removeable = 5;
    uint32_t n = 1;
    ASSERT_EQ(j2s_array_VideoInputInterface("[{\"Name\":\"VGA1\",\"Removable\":1}]", r, &n), 0);
    EXPECT_STREQ(r[0].Name, "VGA1");
    EXPECT_EQ(r[0].Removeable, 5);
    n = 1;
    ASSERT_EQ(j2s_array_VideoInputInterface("[{\"Removeable\":1}]", r, &n), 0);
    EXPECT_EQ(r[0].Removeable, 1);
    EXPECT_TRUE(contains(compact(struct_to_json_VideoInputInterface(&r[0])), "\"Removeable\":1,"));
    EXPECT_FALSE(contains(compact(struct_to_json_VideoInputInterface(&r[0])), "\"Removable\""));
}

TEST(VideoInputInterface, SupportedManualTimingListOf2048OrMoreIsStoredAsFirst2047) {
    for (size_t len : {size_t(2048), k2100.size()}) {
        VideoInputInterface r[1] = {};
        uint32_t n = 1;
        Tree list(one_string("SupportedManualTimingList", std::string(len, 't')));
        ASSERT_EQ(c2s_array_VideoInputInterface(list.p, r, &n), 0);
        EXPECT_EQ(std::string(r[0].SupportedManualTimingList), std::string(2047, 't'));
    }
}

TEST(VideoInputInterface, MaxInputTimingKeepsAtMost63) {
    VideoInputInterface r[1] = {};
    uint32_t n = 1;
    Tree list(one_string("MaxInputTiming", std::string(64, 'm')));
    ASSERT_EQ(c2s_array_VideoInputInterface(list.p, r, &n), 0);
    EXPECT_EQ(std::string(r[0].MaxInputTiming), std::string(63, 'm'));
}

TEST(VideoInputStatus, InputTimingDetailsOf2048OrMoreIsStoredAsFirst2047AndVideoInputTimingAs63) {
    VideoInputStatus r[1] = {};
    uint32_t n = 1;
    Tree list(one_string("InputTimingDetails", k2100));
    cJSON_AddStringToObject(cJSON_GetArrayItem(list.p, 0), "VideoInputTiming", std::string(100, 'v').c_str());
    ASSERT_EQ(c2s_array_VideoInputStatus(list.p, r, &n), 0);
    EXPECT_EQ(std::string(r[0].InputTimingDetails), k2100.substr(0, 2047));
    EXPECT_EQ(std::string(r[0].VideoInputTiming), std::string(63, 'v'));
}

TEST(VideoInputVGAParameter, KeyedUpdateElementWithoutInterfaceNameFailsWithKeywordMessage) {
    VideoInputVGAParameter a[2] = {};
    std::strcpy(a[0].InterfaceName, "VGA1");
    std::strcpy(a[1].InterfaceName, "VGA2");
    a[0].CorrectedPhaseValue = 4;
    const char *request = "[{\"InterfaceName\":\"VGA1\",\"CorrectedPhaseValue\":9},{\"CorrectedPhaseValue\":1}]";
    const uint32_t n =
        refused_update_count(j2s_array_update_VideoInputVGAParameter, "VideoInputVGAParameter", request, a, 2);
    EXPECT_EQ(n, 2u);
    EXPECT_EQ(a[0].CorrectedPhaseValue, 9);  // the earlier element's update stays
    EXPECT_EQ(a[1].CorrectedPhaseValue, 0);
}

TEST(VideoInputVGAParameter, KeyedUpdateElementWithNumericInterfaceNameFailsWithKeywordMessage) {
    VideoInputVGAParameter a[1] = {};
    std::strcpy(a[0].InterfaceName, "1");
    uint32_t n = 1;
    Tree list(cJSON_Parse("[{\"InterfaceName\":1,\"CorrectedOffsetX\":5}]"));
    StderrCapture err;
    EXPECT_EQ(c2s_array_update_VideoInputVGAParameter(list.p, a, &n), -2);
    EXPECT_EQ(err.text(), keyword_diag("VideoInputVGAParameter"));
    EXPECT_EQ(n, 1u);
    EXPECT_EQ(a[0].CorrectedOffsetX, 0);
}

TEST(VideoInputVGAParameter, NegativeCorrectionValuesAreEmittedSigned) {
    VideoInputVGAParameter r{};
    std::strcpy(r.InterfaceName, "VGA1");
    r.CorrectedPhaseValue = -1;
    r.CorrectedOffsetX = -3;
    r.CorrectedOffsetY = -2147483647 - 1;
    EXPECT_EQ(compact(struct_to_json_VideoInputVGAParameter(&r)),
              "{\"InterfaceName\":\"VGA1\",\"BlackEdgeIsSelfCorrection\":0,\"CorrectedPhaseValue\":-1,"
              "\"CorrectedOffsetX\":-3,\"CorrectedOffsetY\":-2147483648}");
}

TEST(VideoInputVGAParameter, KeyedUpdateComparesInterfaceNameOverAtMost64Characters) {
    const std::string name70(70, 'n');
    VideoInputVGAParameter a[2] = {};
    std::memcpy(a[0].InterfaceName, std::string(62, 'n').c_str(), 63);  // 62 characters: no match
    std::memcpy(a[1].InterfaceName, name70.c_str(), 63);                 // the first 63
    uint32_t n = 2;
    Tree list(one_string("InterfaceName", name70));
    cJSON_AddIntToObject(cJSON_GetArrayItem(list.p, 0), "CorrectedOffsetY", 11);
    ASSERT_EQ(c2s_array_update_VideoInputVGAParameter(list.p, a, &n), 0);
    EXPECT_EQ(n, 1u);
    EXPECT_EQ(a[0].CorrectedOffsetY, 0);
    EXPECT_EQ(a[1].CorrectedOffsetY, 11);
    EXPECT_EQ(std::string(a[1].InterfaceName), name70.substr(0, 63));
}

TEST(VideoInputVGAParameter, KeywordReadersCopyInterfaceNameWithCapacity64) {
    VideoInputVGAParameterKeyword kw;
    std::memset(&kw, 'x', sizeof kw);
    Tree obj(cJSON_CreateObject());
    cJSON_AddStringToObject(obj.p, "InterfaceName", std::string(80, 'i').c_str());
    EXPECT_EQ(json_to_struct_VideoInputVGAParameterKeyword(&kw, obj.p), 1);
    EXPECT_EQ(std::string(kw.InterfaceName), std::string(63, 'i'));
    char name[64];
    EXPECT_EQ(json_to_struct_GetVideoInputVGAParameterKeyword(name, obj.p), 1);
    EXPECT_EQ(std::string(name), std::string(63, 'i'));
}

TEST(VideoInputStatus, GetKeywordReaderPicksInterfaceNameAndRequiresAString) {
    char name[64] = "unchanged";
    Tree ok(cJSON_Parse("{\"CableIsPlugged\":1,\"InterfaceName\":\"HDMI2\"}"));
    EXPECT_EQ(json_to_struct_GetVideoInputStatusKeyword(name, ok.p), 1);
    EXPECT_STREQ(name, "HDMI2");
    expect_string_key_reader_refuses(json_to_struct_GetVideoInputStatusKeyword,
                                     {"{\"InterfaceName\":2}", "{\"SignalIsValid\":1}"});
}

TEST(VideoInputParameter, KeywordReadersRequireChannelAsAnInteger) {
    expect_channel_keyword_readers(json_to_struct_VideoInputParameterKeyword,
                                   json_to_struct_GetVideoInputParameterKeyword, "{\"Channel\":3}", 3,
                                   {"{\"Channel\":\"3\"}"});
}

TEST(VideoInputParameter, KeyedUpdateByChannelChangesOnlyThatChannel) {
    VideoInputParameter a[3] = {};
    channels_with(a, &VideoInputParameter::Brightness, 50u);
    expect_update_applies(j2s_array_update_VideoInputParameter,
                          "[{\"Channel\":2,\"Brightness\":70,\"ScanningFrequencyInteger\":30}]", a, 3, 1);
    EXPECT_EQ(member_values(a, &VideoInputParameter::Brightness), (std::vector<uint32_t>{50, 50, 70}));
    EXPECT_EQ(a[2].ScanningFrequencyInteger, 30);
}

TEST(VideoInputCapabilitySet, PictureAdjustmentMaximaAreUnsignedAndTheFlagSigned) {
    VideoInputCapabilitySet r{};
    r.SupportImageColorAdjust = -1;
    r.MaxImageHue = 0xFFFFFFFFu;
    const std::string text = compact(struct_to_json_VideoInputCapabilitySet(&r));
    EXPECT_TRUE(contains(text, "\"SupportImageColorAdjust\":-1,"));
    EXPECT_TRUE(contains(text, "\"MaxImageHue\":4294967295}"));
}

// =============================================================================
// Video encoding
// =============================================================================

TEST(VideoEncodeParameter, FrameRate25Over0IsEmittedBetweenHeightAndCodec) {
    VideoEncodeParameter r{};
    r.Height = 1080;
    r.FramerateInteger = 25;
    r.FramerateDecimal = 0;
    std::strcpy(r.Codec, "H.264");
    EXPECT_TRUE(contains(compact(struct_to_json_VideoEncodeParameter(&r)),
                         "\"Height\":1080,\"FramerateInteger\":25,\"FramerateDecimal\":0,\"Codec\":\"H.264\","));
}

TEST(VideoEncodeParameter, FrameRateOf65535IsEmittedUnsigned) {
    VideoEncodeParameter r{};
    r.FramerateInteger = 65535;
    r.FramerateDecimal = 65535;
    const std::string text = compact(struct_to_json_VideoEncodeParameter(&r));
    EXPECT_TRUE(contains(text, "\"FramerateInteger\":65535,\"FramerateDecimal\":65535,"));
}

// Each half keeps the low 16 bits of what it is given (FramerateDecimal
// 65537 stores 1); the other half is not touched.
TEST(VideoEncodeParameter, FrameRateStoresLow16BitsOf30And65536And70000AndMinusOne) {
    const struct {
        const char *json;
        uint16_t integer, decimal;
    } cases[] = {{"[{\"FramerateInteger\":30}]", 30, 7},    {"[{\"FramerateInteger\":65536}]", 0, 7},
                 {"[{\"FramerateInteger\":70000}]", 4464, 7}, {"[{\"FramerateInteger\":-1}]", 65535, 7},
                 {"[{\"FramerateDecimal\":65537}]", 0, 1}};
    for (const auto &c : cases) {
        VideoEncodeParameter r[1] = {};
        r[0].FramerateDecimal = 7;
        uint32_t n = 1;
        ASSERT_EQ(j2s_array_VideoEncodeParameter(c.json, r, &n), 0) << c.json;
        EXPECT_EQ(r[0].FramerateInteger, c.integer) << c.json;
        EXPECT_EQ(r[0].FramerateDecimal, c.decimal) << c.json;
    }
}

TEST(VideoEncodeParameter, FrameRateOfAnotherJsonTypeFailsTheReader) {
    for (const char *json :
         {"[{\"FramerateInteger\":\"25\"}]", "[{\"FramerateInteger\":25.5}]", "[{\"FramerateDecimal\":true}]"}) {
        VideoEncodeParameter r[1] = {};
        uint32_t n = 1;
        StderrCapture err;
        EXPECT_EQ(j2s_array_VideoEncodeParameter(json, r, &n), -1) << json;
        EXPECT_EQ(err.text(), reader_diag_c2s_array("VideoEncodeParameter")) << json;
    }
}

TEST(VideoEncodeParameter, ArrayOfThreeWrittenAndReadBackKeepsKeysAndCropOffsetBaseInPlace) {
    VideoEncodeParameter a[3] = {};
    for (uint32_t i = 0; i < 3; ++i) {
        a[i].Channel = 10 + i;
        a[i].StreamIndex = 20 + i;
        a[i].FramerateInteger = static_cast<uint16_t>(24 + i);
        a[i].FramerateDecimal = static_cast<uint16_t>(i);
        a[i].CropOffsetBase = 1000 * (i + 1);
    }
    Text text(s2j_array_VideoEncodeParameter(a, 3, 1));
    ASSERT_NE(text.p, nullptr);
    const std::vector<VideoEncodeParameter> b = read_array_back(j2s_array_VideoEncodeParameter, text.p, 3, 3);
    for (uint32_t i = 0; i < 3; ++i) {
        EXPECT_EQ(b[i].Channel, 10 + i);
        EXPECT_EQ(b[i].StreamIndex, 20 + i);
        EXPECT_EQ(b[i].CropOffsetBase, 1000 * (i + 1));
        EXPECT_EQ(b[i].FramerateInteger, 24 + i);
    }
    EXPECT_EQ(std::memcmp(a, b.data(), sizeof a), 0);
}

TEST(VideoEncodeParameter, CodecProfileAndBitrateControlOf64OrMoreAreStoredAsFirst63) {
    for (const char *key : {"Codec", "Profile", "BitrateControl"}) {
        VideoEncodeParameter r[1] = {};
        uint32_t n = 1;
        Tree list(one_string(key, std::string(64, 'c')));
        ASSERT_EQ(c2s_array_VideoEncodeParameter(list.p, r, &n), 0);
        const char *field = std::strcmp(key, "Codec") == 0     ? r[0].Codec
                            : std::strcmp(key, "Profile") == 0 ? r[0].Profile
                                                               : r[0].BitrateControl;
        EXPECT_EQ(std::string(field), std::string(63, 'c')) << key;
    }
}

TEST(VideoEncodeCapabilitySet, SizeListOf2048OrMoreKeeps2047AndOtherListsKeep255) {
    VideoEncodeCapabilitySet r[1] = {};
    uint32_t n = 1;
    Tree list(one_string("SupportedVideoEncodeSizeList", k2100));
    cJSON *obj = cJSON_GetArrayItem(list.p, 0);
    const char *lists[] = {"SupportedVideoCodecList", "SupportedH264CodecProfileList", "SupportedH265CodecProfileList",
                           "SupportedBitrateControlAlgorithmList"};
    for (const char *k : lists) cJSON_AddStringToObject(obj, k, std::string(256, 'L').c_str());
    ASSERT_EQ(c2s_array_VideoEncodeCapabilitySet(list.p, r, &n), 0);
    EXPECT_EQ(std::string(r[0].SupportedVideoEncodeSizeList), k2100.substr(0, 2047));
    EXPECT_EQ(std::string(r[0].SupportedVideoCodecList), std::string(255, 'L'));
    EXPECT_EQ(std::string(r[0].SupportedH264CodecProfileList), std::string(255, 'L'));
    EXPECT_EQ(std::string(r[0].SupportedH265CodecProfileList), std::string(255, 'L'));
    EXPECT_EQ(std::string(r[0].SupportedBitrateControlAlgorithmList), std::string(255, 'L'));
}

TEST(VideoEncodeParameter, KeyedUpdateWithChannelButNoStreamIndexFailsThoughGetKeywordAcceptsIt) {
    VideoEncodeParameter a[2] = {};
    a[0].Channel = 1;
    a[1].Channel = 1;
    a[1].StreamIndex = 1;
    const char *json = "[{\"Channel\":1,\"Bitrate\":4000}]";
    const uint32_t n = refused_update_count(j2s_array_update_VideoEncodeParameter, "VideoEncodeParameter", json, a, 2);
    EXPECT_EQ(n, 2u);
    EXPECT_EQ(a[0].Bitrate, 0u);
    EXPECT_EQ(a[1].Bitrate, 0u);
    Tree list(cJSON_Parse(json));
    uint32_t channel = 0;
    EXPECT_EQ(json_to_struct_GetVideoEncodeParameterKeyword(&channel, cJSON_GetArrayItem(list.p, 0)), 1);
    EXPECT_EQ(channel, 1u);
    VideoEncodeParameterKeyword kw{};
    EXPECT_EQ(json_to_struct_VideoEncodeParameterKeyword(&kw, cJSON_GetArrayItem(list.p, 0)), 0);
}

TEST(VideoEncodeParameter, SameChannelWithDifferentStreamIndexAreDistinctForKeyedUpdate) {
    VideoEncodeParameter a[4] = {};
    for (uint32_t i = 0; i < 4; ++i) {
        a[i].Channel = i / 2;  // channels 0, 0, 1, 1
        a[i].StreamIndex = i % 2;
        a[i].Bitrate = 100;
    }
    uint32_t n = 4;
    ASSERT_EQ(
        j2s_array_update_VideoEncodeParameter(
            "[{\"Channel\":0,\"StreamIndex\":1,\"Bitrate\":512},{\"Channel\":1,\"StreamIndex\":0,\"Bitrate\":6000}]", a,
            &n),
        0);
    EXPECT_EQ(n, 2u);
    EXPECT_EQ(member_values(a, &VideoEncodeParameter::Bitrate), (std::vector<uint32_t>{100, 512, 6000, 100}));
}

TEST(VideoEncodeParameter, KeyedUpdateSkipsElementWhoseStreamIndexMatchesNoRecord) {
    VideoEncodeParameter a[2] = {};
    a[0].Channel = 0;
    a[1].Channel = 0;
    a[1].StreamIndex = 1;
    expect_update_applies(j2s_array_update_VideoEncodeParameter, "[{\"Channel\":0,\"StreamIndex\":2,\"GOP\":50}]",
                          a, 2, 0);
    EXPECT_EQ(a[0].GOP, 0u);
    EXPECT_EQ(a[1].GOP, 0u);
}

TEST(VideoEncodeParameter, KeywordReaderRequiresChannelThenStreamIndexAsIntegers) {
    VideoEncodeParameterKeyword kw{77, 77};
    Tree both(cJSON_Parse("{\"StreamIndex\":2,\"Channel\":5}"));
    EXPECT_EQ(json_to_struct_VideoEncodeParameterKeyword(&kw, both.p), 1);
    EXPECT_EQ(kw.Channel, 5u);
    EXPECT_EQ(kw.StreamIndex, 2u);
    VideoEncodeParameterKeyword partial{77, 77};
    Tree bad_second(cJSON_Parse("{\"Channel\":6,\"StreamIndex\":\"1\"}"));
    EXPECT_EQ(json_to_struct_VideoEncodeParameterKeyword(&partial, bad_second.p), 0);
    EXPECT_EQ(partial.Channel, 6u);  // keys read before the failing one stay written
    EXPECT_EQ(partial.StreamIndex, 77u);
    Tree no_channel(cJSON_Parse("{\"StreamIndex\":1}"));
    EXPECT_EQ(json_to_struct_VideoEncodeParameterKeyword(&partial, no_channel.p), 0);
    uint32_t channel = 0;
    EXPECT_EQ(json_to_struct_GetVideoEncodeParameterKeyword(&channel, no_channel.p), 0);
}

TEST(VideoEncodeParameter, RotateOfMinus90IsStoredAsItsBitsAndEmittedUnsigned) {
    const auto [r, text] =
        read_one_and_emit(j2s_array_VideoEncodeParameter, struct_to_json_VideoEncodeParameter, "[{\"Rotate\":-90}]");
    EXPECT_EQ(r.Rotate, 4294967206u);
    EXPECT_TRUE(contains(text, "\"Rotate\":4294967206,"));
}

TEST(VideoEncodeCapabilitySet, RotateOfMinus90IsEmittedSigned) {
    const auto [r, text] = read_one_and_emit(j2s_array_VideoEncodeCapabilitySet,
                                             struct_to_json_VideoEncodeCapabilitySet, "[{\"Rotate\":-90}]");
    EXPECT_EQ(r.Rotate, -90);
    EXPECT_TRUE(contains(text, "\"Rotate\":-90,"));
}

TEST(RequestIDRParameter, TextRoundTripAndNoFileOrArrayFamily) {
    RequestIDRParameter r{2, 1}, back{};
    Text t(s2j_RequestIDRParameter(&r, 1));
    ASSERT_EQ(j2s_RequestIDRParameter(t.p, &back), 0);
    EXPECT_EQ(back.Channel, 2u);
    EXPECT_EQ(back.StreamIndex, 1u);
    StderrCapture err;
    EXPECT_EQ(j2s_RequestIDRParameter_with_len("{", 1, &back), -2);
    EXPECT_EQ(err.text(), diag(text_list_file(), lines_of("RequestIDRParameter").j2s,
                               "j2s_RequestIDRParameter_with_len", "cJSON_ParseWithLength({, 1) failed! reason: {"));
}

// =============================================================================
// Encoder OSD
// =============================================================================

// Items (channel, index): (0,0) (0,1) (1,0) (1,1).
void osd_items(VideoEncodeOSDParameter (&a)[4]) {
    std::memset(a, 0, sizeof a);
    for (uint32_t i = 0; i < 4; ++i) {
        a[i].Channel = i / 2;
        a[i].Index = i % 2;
        a[i].Visible = 1;
    }
}

TEST(VideoEncodeOSDParameter, KeyedUpdateWithChannelAndIndexUpdatesOnlyTheItemWithBoth) {
    VideoEncodeOSDParameter a[4];
    osd_items(a);
    expect_update_applies(j2s_array_update_VideoEncodeOSDParameter,
                          "[{\"Channel\":1,\"Index\":0,\"Visible\":0,\"Content\":\"LIVE\"}]", a, 4, 1);
    for (uint32_t i = 0; i < 4; ++i) EXPECT_EQ(a[i].Visible, i == 2 ? 0 : 1) << i;
    EXPECT_STREQ(a[2].Content, "LIVE");
}

TEST(VideoEncodeOSDParameter, KeyedUpdateWithChannelAloneFailsWithKeywordMessage) {
    VideoEncodeOSDParameter a[4];
    osd_items(a);
    const uint32_t n = refused_update_count(j2s_array_update_VideoEncodeOSDParameter, "VideoEncodeOSDParameter",
                                            "[{\"Channel\":0,\"Visible\":0}]", a, 4);
    EXPECT_EQ(n, 4u);
    for (uint32_t i = 0; i < 4; ++i) EXPECT_EQ(a[i].Visible, 1);
}

TEST(VideoEncodeOSDParameter, IndexZeroAndOneOfOneChannelAndSameIndexOnTwoChannelsAreDistinct) {
    VideoEncodeOSDParameter a[4];
    osd_items(a);
    expect_update_applies(j2s_array_update_VideoEncodeOSDParameter,
                          "[{\"Channel\":0,\"Index\":1,\"XCoordinate\":11},{\"Channel\":1,\"Index\":1,"
                          "\"XCoordinate\":22}]", a, 4, 2);
    EXPECT_EQ(member_values(a, &VideoEncodeOSDParameter::XCoordinate), (std::vector<uint32_t>{0, 11, 0, 22}));
}

TEST(VideoEncodeOSDParameter, ContentOf256OrMoreKeeps255AndColoursOf64OrMoreKeep63) {
    VideoEncodeOSDParameter r[1] = {};
    uint32_t n = 1;
    Tree list(one_string("Content", std::string(256, 'c')));
    cJSON *obj = cJSON_GetArrayItem(list.p, 0);
    cJSON_AddStringToObject(obj, "ForeColor", std::string(64, 'f').c_str());
    cJSON_AddStringToObject(obj, "BackColor", std::string(90, 'b').c_str());
    ASSERT_EQ(c2s_array_VideoEncodeOSDParameter(list.p, r, &n), 0);
    EXPECT_EQ(std::string(r[0].Content), std::string(255, 'c'));
    EXPECT_EQ(std::string(r[0].ForeColor), std::string(63, 'f'));
    EXPECT_EQ(std::string(r[0].BackColor), std::string(63, 'b'));
}

TEST(VideoEncodeOSDParameter, XCoordinateOfMinusOneIsStoredAsItsBitsAndEmittedUnsigned) {
    const auto [r, text] = read_one_and_emit(j2s_array_VideoEncodeOSDParameter, struct_to_json_VideoEncodeOSDParameter,
                                             "[{\"XCoordinate\":-1}]");
    EXPECT_EQ(r.XCoordinate, 0xFFFFFFFFu);
    EXPECT_TRUE(contains(text, "\"XCoordinate\":4294967295,"));
}

TEST(VideoEncodeOSDParameter, KeywordReaderReadsChannelThenIndexAndGetReadsChannelAlone) {
    Tree item(cJSON_Parse("{\"Index\":3,\"Channel\":2}"));
    VideoEncodeOSDParameterKeyword kw{};
    EXPECT_EQ(json_to_struct_VideoEncodeOSDParameterKeyword(&kw, item.p), 1);
    EXPECT_EQ(kw.Channel, 2u);
    EXPECT_EQ(kw.Index, 3u);
    Tree channel_only(cJSON_Parse("{\"Channel\":4}"));
    VideoEncodeOSDParameterKeyword partial{0, 9};
    EXPECT_EQ(json_to_struct_VideoEncodeOSDParameterKeyword(&partial, channel_only.p), 0);
    EXPECT_EQ(partial.Channel, 4u);
    EXPECT_EQ(partial.Index, 9u);
    uint32_t channel = 0;
    EXPECT_EQ(json_to_struct_GetVideoEncodeOSDParameterKeyword(&channel, channel_only.p), 1);
    EXPECT_EQ(channel, 4u);
}

TEST(VideoEncodeOSDCapabilitySet, LoadsFromAFileAndRoundTripsAsText) {
    const std::string path = temp_dir() + "/osdcap.json";
    write_file(path, "{\"OSDNumberPerChannel\":8,\"SupportDynamicText\":-1,\"SupportPicture\":1}");
    VideoEncodeOSDCapabilitySet r{};
    ASSERT_EQ(f2s_VideoEncodeOSDCapabilitySet(path.c_str(), &r), 0);
    EXPECT_EQ(r.OSDNumberPerChannel, 8u);
    EXPECT_EQ(r.SupportDynamicText, -1);
    EXPECT_EQ(r.SupportPicture, 1);
    Text t(s2j_VideoEncodeOSDCapabilitySet(&r, 0));
    EXPECT_EQ(t.str(), "{\"OSDNumberPerChannel\":8,\"SupportDynamicText\":-1,\"SupportPicture\":1}");
}

// =============================================================================
// Audio input and encoding
// =============================================================================

TEST(AudioGain, GainOfMinus12IsEmittedAsMinus12InEveryRecordThatHasIt) {
    AudioInputInterfaceParameter a{};
    a.Gain = -12;
    AudioInputParameter b{};
    b.Gain = -12;
    AudioInputStatus c{};
    c.Gain = -12;
    EXPECT_TRUE(contains(compact(struct_to_json_AudioInputInterfaceParameter(&a)), "\"Gain\":-12}"));
    EXPECT_TRUE(contains(compact(struct_to_json_AudioInputParameter(&b)), "\"Gain\":-12}"));
    EXPECT_TRUE(contains(compact(struct_to_json_AudioInputStatus(&c)), "\"Gain\":-12}"));
}

// One record of T read by j2s_array from a Volume of -1 and a Gain of -12
// holds the Volume's bits, and its emitter writes them unsigned.
template <class T>
T expect_volume_of_minus_one_read_as_its_bits(int (*j2s_array)(const char *, T *, uint32_t *),
                                              cJSON *(*emit)(const T *)) {
    const auto [r, text] = read_one_and_emit(j2s_array, emit, "[{\"Volume\":-1,\"Gain\":-12}]");
    EXPECT_EQ(r.Volume, 0xFFFFFFFFu);
    EXPECT_TRUE(contains(text, "\"Volume\":4294967295,\"Gain\":-12"));
    return r;
}

TEST(AudioVolume, VolumeOfMinusOneIsStoredAsItsBitsAndEmittedAs4294967295) {
    EXPECT_EQ(expect_volume_of_minus_one_read_as_its_bits(j2s_array_AudioInputInterfaceParameter,
                                                          struct_to_json_AudioInputInterfaceParameter)
                  .Gain,
              -12);
    expect_volume_of_minus_one_read_as_its_bits(j2s_array_AudioInputParameter, struct_to_json_AudioInputParameter);
    expect_volume_of_minus_one_read_as_its_bits(j2s_array_AudioInputStatus, struct_to_json_AudioInputStatus);
}

// The extremes of a capability's volumes are written unsigned, of its gains
// signed.
template <class T>
void expect_gains_signed_and_volumes_unsigned(cJSON *(*emit)(const T *)) {
    T r{};
    r.MinVolume = 0xFFFFFFFFu;
    r.MaxVolume = 0xFFFFFFFEu;
    r.MinGain = -40;
    r.MaxGain = -1;
    const std::string text = compact(emit(&r));
    EXPECT_TRUE(contains(text, "\"MinVolume\":4294967295,\"MaxVolume\":4294967294,"));
    EXPECT_TRUE(contains(text, "\"MinGain\":-40,\"MaxGain\":-1}"));
}

TEST(AudioInputCapabilitySet, GainsAreSignedAndVolumesUnsigned) {
    expect_gains_signed_and_volumes_unsigned(struct_to_json_AudioInputCapabilitySet);
}

TEST(AudioInputInterface, GainsAreSignedAndVolumesUnsigned) {
    expect_gains_signed_and_volumes_unsigned(struct_to_json_AudioInputInterface);
}

TEST(AudioInputStatus, InputTimingDetailsOf2048OrMoreIsStoredAsFirst2047) {
    AudioInputStatus r[1] = {};
    uint32_t n = 1;
    Tree list(one_string("InputTimingDetails", k2100));
    ASSERT_EQ(c2s_array_AudioInputStatus(list.p, r, &n), 0);
    EXPECT_EQ(std::string(r[0].InputTimingDetails), k2100.substr(0, 2047));
}

TEST(AudioEncodeCapabilitySet, EachOfTheNineListsKeepsAtMost255) {
    const char *lists[] = {
        "SupportedAudioCodecList",        "AacLcSupportedSamplerateList", "HeAacSupportedSamplerateList",
        "HeAacV2SupportedSamplerateList", "G711SupportedSamplerateList",  "AacLcSupportedBitrateList",
        "HeAacSupportedBitrateList",      "HeAacV2SupportedBitrateList",  "G711SupportedBitrateList"};
    Tree obj(cJSON_CreateObject());
    for (int i = 0; i < 9; ++i)
        cJSON_AddStringToObject(obj.p, lists[i], std::string(256 + i, static_cast<char>('a' + i)).c_str());
    AudioEncodeCapabilitySet r{};
    ASSERT_EQ(c2s_AudioEncodeCapabilitySet(obj.p, &r), 0);
    const char *fields[] = {
        r.SupportedAudioCodecList,        r.AacLcSupportedSamplerateList, r.HeAacSupportedSamplerateList,
        r.HeAacV2SupportedSamplerateList, r.G711SupportedSamplerateList,  r.AacLcSupportedBitrateList,
        r.HeAacSupportedBitrateList,      r.HeAacV2SupportedBitrateList,  r.G711SupportedBitrateList};
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(std::string(fields[i]), std::string(255, static_cast<char>('a' + i))) << lists[i];
}

TEST(AudioInputInterfaceParameter, KeyedUpdateWithNumericInterfaceNameFailsWithKeywordMessage) {
    AudioInputInterfaceParameter a[1] = {};
    std::strcpy(a[0].InterfaceName, "1");
    a[0].Volume = 50;
    const char *type = "AudioInputInterfaceParameter", *request = "[{\"InterfaceName\":1,\"Volume\":90}]";
    const uint32_t n = refused_update_count(j2s_array_update_AudioInputInterfaceParameter, type, request, a, 1);
    EXPECT_EQ(n, 1u);
    EXPECT_EQ(a[0].Volume, 50u);
}

TEST(AudioEncodeCapabilitySet, BooleanSupportResampleFailsTheReaderAfterTheNineListsAreStored) {
    AudioEncodeCapabilitySet r{};
    r.SupportResample = 5;
    const char *json =
        "{\"SupportedAudioCodecList\":\"AAC-LC,G.711A\",\"AacLcSupportedSamplerateList\":\"48000\","
        "\"HeAacSupportedSamplerateList\":\"44100\",\"HeAacV2SupportedSamplerateList\":\"32000\","
        "\"G711SupportedSamplerateList\":\"8000\",\"AacLcSupportedBitrateList\":\"128000\","
        "\"HeAacSupportedBitrateList\":\"64000\",\"HeAacV2SupportedBitrateList\":\"32000\","
        "\"G711SupportedBitrateList\":\"64000\",\"SupportResample\":true}";
    StderrCapture err;
    EXPECT_EQ(j2s_AudioEncodeCapabilitySet(json, &r), -1);
    EXPECT_EQ(err.text(), diag(text_list_file(), lines_of("AudioEncodeCapabilitySet").c2s,
                               "c2s_AudioEncodeCapabilitySet", "json_to_struct_AudioEncodeCapabilitySet failed!\n"));
    EXPECT_STREQ(r.SupportedAudioCodecList, "AAC-LC,G.711A");
    EXPECT_STREQ(r.AacLcSupportedSamplerateList, "48000");
    EXPECT_STREQ(r.HeAacSupportedSamplerateList, "44100");
    EXPECT_STREQ(r.HeAacV2SupportedSamplerateList, "32000");
    EXPECT_STREQ(r.G711SupportedSamplerateList, "8000");
    EXPECT_STREQ(r.AacLcSupportedBitrateList, "128000");
    EXPECT_STREQ(r.HeAacSupportedBitrateList, "64000");
    EXPECT_STREQ(r.HeAacV2SupportedBitrateList, "32000");
    EXPECT_STREQ(r.G711SupportedBitrateList, "64000");
    EXPECT_EQ(r.SupportResample, 5);
}

TEST(AudioInputInterfaceParameter, KeywordReadersRequireAStringAndCopyAtMost63) {
    Tree obj(cJSON_CreateObject());
    cJSON_AddStringToObject(obj.p, "InterfaceName", std::string(70, 'k').c_str());
    AudioInputInterfaceParameterKeyword kw{};
    EXPECT_EQ(json_to_struct_AudioInputInterfaceParameterKeyword(&kw, obj.p), 1);
    EXPECT_EQ(std::string(kw.InterfaceName), std::string(63, 'k'));
    char name[64] = {};
    EXPECT_EQ(json_to_struct_GetAudioInputInterfaceParameterKeyword(name, obj.p), 1);
    EXPECT_EQ(std::string(name), std::string(63, 'k'));
    Tree number(cJSON_Parse("{\"InterfaceName\":3}"));
    EXPECT_EQ(json_to_struct_AudioInputInterfaceParameterKeyword(&kw, number.p), 0);
    EXPECT_EQ(json_to_struct_GetAudioInputInterfaceParameterKeyword(name, number.p), 0);
}

TEST(AudioInputStatus, GetKeywordReaderPicksAnInterfaceOutOfAJsonArrayByName) {
    Tree list(cJSON_Parse("[{\"InterfaceName\":\"LINE-IN1\",\"Gain\":-3},{\"InterfaceName\":\"MIC1\"}]"));
    char name[64] = {};
    EXPECT_EQ(json_to_struct_GetAudioInputStatusKeyword(name, cJSON_GetArrayItem(list.p, 1)), 1);
    EXPECT_STREQ(name, "MIC1");
    expect_string_key_reader_refuses(json_to_struct_GetAudioInputStatusKeyword, {"{\"InterfaceName\":1}"});
}

TEST(AudioChannelKeys, AudioInputParameterAndAudioEncodeParameterKeywordReadersRequireIntegerChannel) {
    expect_channel_keyword_readers(json_to_struct_AudioInputParameterKeyword,
                                   json_to_struct_GetAudioInputParameterKeyword, "{\"Channel\":2}", 2,
                                   {"{\"Channel\":\"2\"}"});
    expect_channel_keyword_readers(json_to_struct_AudioEncodeParameterKeyword,
                                   json_to_struct_GetAudioEncodeParameterKeyword, "{\"Channel\":2}", 2,
                                   {"{\"Channel\":\"2\"}"});
}

TEST(AudioEncodeParameter, KeyedUpdateByChannelChangesCodecOfThatChannelOnly) {
    AudioEncodeParameter a[2] = {};
    a[0].Channel = 0;
    a[1].Channel = 1;
    std::strcpy(a[0].Codec, "AAC-LC");
    std::strcpy(a[1].Codec, "AAC-LC");
    expect_update_applies(j2s_array_update_AudioEncodeParameter,
                          "[{\"Channel\":1,\"Codec\":\"G.711A\",\"Samplerate\":8000}]", a, 2, 1);
    EXPECT_STREQ(a[0].Codec, "AAC-LC");
    EXPECT_STREQ(a[1].Codec, "G.711A");
    EXPECT_EQ(a[1].Samplerate, 8000u);
}

TEST(AudioInputParameter, KeyedUpdateByChannelLeavesOtherChannels) {
    AudioInputParameter a[2] = {};
    a[0].Channel = 5;
    a[1].Channel = 6;
    expect_update_applies(j2s_array_update_AudioInputParameter,
                          "[{\"Channel\":5,\"InterfaceName\":\"MIC1\",\"Gain\":-6}]", a, 2, 1);
    EXPECT_STREQ(a[0].InterfaceName, "MIC1");
    EXPECT_EQ(a[0].Gain, -6);
    EXPECT_STREQ(a[1].InterfaceName, "");
    EXPECT_EQ(a[1].Gain, 0);
}

// =============================================================================
// Example files
// =============================================================================

// Loads an array example with the type's array reader (through its file
// reader where it has one), checks 2 to 4 elements and that the library
// writes the same text back.
void expect_array_example(const char *type) {
    const s2j::TypeInfo *t = s2j::find_type(type);
    ASSERT_NE(t, nullptr) << type;
    std::vector<char> recs(4 * t->desc->size, 0);
    uint32_t n = 4;
    const std::string text = example_text(type);
    if (t->fam.f2s_array)
        ASSERT_EQ(t->fam.f2s_array(example_path(type).c_str(), recs.data(), &n), 0) << type;
    else
        ASSERT_EQ(t->fam.j2s_array(text.c_str(), recs.data(), &n), 0) << type;
    uint32_t total = 0;
    ASSERT_EQ(t->fam.j2s_array(text.c_str(), nullptr, &total), 0) << type;
    EXPECT_GE(total, 2u) << type;
    EXPECT_LE(total, 4u) << type;
    EXPECT_EQ(n, total) << type;
    Text again(t->fam.s2j_array(recs.data(), n, 1));
    EXPECT_EQ(again.str(), text) << type;
}

TEST(MediaExamples, EveryArrayExampleLoadsWithItsTypesReader) {
    for (const char *type :
         {"VideoInputCapabilitySet", "VideoInputInterface", "VideoInputParameter", "VideoInputStatus",
          "VideoInputVGAParameter", "VideoEncodeCapabilitySet", "VideoEncodeParameter", "VideoEncodeOSDParameter",
          "AudioInputCapabilitySet", "AudioInputInterface", "AudioInputInterfaceParameter", "AudioInputParameter",
          "AudioInputStatus", "AudioEncodeParameter"})
        expect_array_example(type);
}

TEST(MediaExamples, EverySingleRecordExampleLoadsWithItsTypesReader) {
    {
        RequestIDRParameter r{};
        ASSERT_EQ(j2s_RequestIDRParameter(example_text("RequestIDRParameter").c_str(), &r), 0);
        Text again(s2j_RequestIDRParameter(&r, 1));
        EXPECT_EQ(again.str(), example_text("RequestIDRParameter"));
    }
    {
        VideoEncodeOSDCapabilitySet r{};
        ASSERT_EQ(f2s_VideoEncodeOSDCapabilitySet(example_path("VideoEncodeOSDCapabilitySet").c_str(), &r), 0);
        EXPECT_GT(r.OSDNumberPerChannel, 0u);
        Text again(s2j_VideoEncodeOSDCapabilitySet(&r, 1));
        EXPECT_EQ(again.str(), example_text("VideoEncodeOSDCapabilitySet"));
    }
    {
        AudioEncodeCapabilitySet r{};
        ASSERT_EQ(f2s_AudioEncodeCapabilitySet(example_path("AudioEncodeCapabilitySet").c_str(), &r), 0);
        EXPECT_STRNE(r.SupportedAudioCodecList, "");
        Text again(s2j_AudioEncodeCapabilitySet(&r, 1));
        EXPECT_EQ(again.str(), example_text("AudioEncodeCapabilitySet"));
    }
}

}  // namespace
