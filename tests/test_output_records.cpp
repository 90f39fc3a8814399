// Output and display records: video outputs and display, sources and
// playlists, audio outputs and decoders, screenshots, output OSD and
// watermarks.  What every type shares is checked from the registry in
// test_every_type.cpp; here are the rules particular to these types: irregular
// keys, signed and unsigned fields, two-key updates and their example files.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdio>
#include <cstring>
#include <string>
#include <type_traits>

#include "app_s2j.h"
#include "registry.h"
#include "support.h"

using namespace testing_support;

namespace {

// ---- Helpers -------------------------------------------------------------

template <size_t N>
void set(char (&dst)[N], const std::string &s) {
    std::snprintf(dst, N, "%s", s.c_str());
}

std::string long_text(char c, size_t n) { return std::string(n, c); }

// ---- Registry ---------------------------------------------------------------

TEST(OutputLayouts, RegistryTablesCoverTheStructsOfEveryOutputType) {
    size_t n = 0;
    const s2j::TypeInfo *all = s2j::registry(&n);
    size_t output = 0;
    for (size_t i = 0; i < n; ++i)
        if (std::strcmp(all[i].subsystem, "output") == 0) ++output;
    EXPECT_EQ(output, 24u);
    EXPECT_EQ(s2j::find_type("VideoOutputOSDParameter")->desc->size, sizeof(VideoOutputOSDParameter));
    EXPECT_EQ(s2j::find_type("VideoOutputOSDParameter")->desc->key_count, 2u);
    EXPECT_EQ(s2j::find_type("VideoOutputScreenSplitParameter")->desc->key_count, 2u);
}

// ---- Video output interfaces and display ---------------------------------

TEST(VideoOutputInterface, RemovableSpellingLeavesTheFlagUnchanged) {
    VideoOutputInterface v[1] = {};
    v[0].Removeable = 7;
    uint32_t n = 1;
    ASSERT_EQ(j2s_array_VideoOutputInterface("[{\"Removable\":1,\"HardwareRelated\":1}]", v, &n), 0);
    EXPECT_EQ(n, 1u);
    EXPECT_EQ(v[0].Removeable, 7);
    EXPECT_EQ(v[0].HardwareRelated, 1);
    ASSERT_EQ(j2s_array_VideoOutputInterface("[{\"Removeable\":0}]", v, &n), 0);
    EXPECT_EQ(v[0].Removeable, 0);
}

TEST(VideoOutputInterface, EmitterWritesRemoveableAndNeverRemovable) {
    VideoOutputInterface v = {};
    v.Removeable = 1;
    std::string text = compact(struct_to_json_VideoOutputInterface(&v));
    EXPECT_NE(text.find("\"Removeable\":1"), std::string::npos) << text;
    EXPECT_EQ(text.find("Removable"), std::string::npos) << text;
    Text arr(s2j_array_VideoOutputInterface(&v, 1, 1));
    EXPECT_EQ(arr.str().find("Removable"), std::string::npos);
}

TEST(VideoOutputInterface, SupportedTimingListOf2048OrMoreCharactersIsReadAsItsFirst2047) {
    for (size_t len : {2048u, 2049u, 3000u}) {
        VideoOutputInterface v[1] = {};
        uint32_t n = 1;
        std::string json = "[{\"SupportedTimingList\":\"" + long_text('t', len) + "\"}]";
        ASSERT_EQ(j2s_array_VideoOutputInterface(json.c_str(), v, &n), 0);
        EXPECT_EQ(std::strlen(v[0].SupportedTimingList), 2047u);
        EXPECT_EQ(std::string(v[0].SupportedTimingList), long_text('t', 2047));
    }
}

TEST(VideoOutputDisplayParameter, CacheTimeIsSignedAndTheModesUnsigned) {
    VideoOutputDisplayParameter d = {};
    d.CacheTime = -1;
    d.VideoPlayMode = 0xFFFFFFFFu;
    std::string text = compact(struct_to_json_VideoOutputDisplayParameter(&d));
    EXPECT_NE(text.find("\"CacheTime\":-1,"), std::string::npos) << text;
    EXPECT_NE(text.find("\"VideoPlayMode\":4294967295}"), std::string::npos) << text;
}

TEST(VideoOutputInterfaceParameter, UserDefinedScreenSplitModeIndexMinusOneIsEmittedSigned) {
    VideoOutputInterfaceParameter p = {};
    p.UserDefinedScreenSplitModeIndex = -1;
    std::string text = compact(struct_to_json_VideoOutputInterfaceParameter(&p));
    EXPECT_NE(text.find("\"UserDefinedScreenSplitModeIndex\":-1,"), std::string::npos) << text;
}

TEST(VideoOutputScreenSplitParameter, UserDefinedScreenSplitModeIndexMinusOneIsEmittedUnsigned) {
    VideoOutputScreenSplitParameter p = {};
    p.UserDefinedScreenSplitModeIndex = static_cast<uint32_t>(-1);
    std::string text = compact(struct_to_json_VideoOutputScreenSplitParameter(&p));
    EXPECT_EQ(text,
              "{\"InterfaceName\":\"\",\"UserDefinedScreenSplitModeIndex\":4294967295,\"SplitWindowNumber\":0,"
              "\"UserDefinedScreenSplitModeDetails\":\"\"}");
}

TEST(VideoOutputScreenSplitParameter, SameMinusOneTextReadsToTheSameBitsInBothRecords) {
    VideoOutputInterfaceParameter a[1] = {};
    VideoOutputScreenSplitParameter b[1] = {};
    uint32_t n = 1, m = 1;
    ASSERT_EQ(j2s_array_VideoOutputInterfaceParameter("[{\"UserDefinedScreenSplitModeIndex\":-1}]", a, &n), 0);
    ASSERT_EQ(j2s_array_VideoOutputScreenSplitParameter("[{\"UserDefinedScreenSplitModeIndex\":-1}]", b, &m), 0);
    EXPECT_EQ(a[0].UserDefinedScreenSplitModeIndex, -1);
    EXPECT_EQ(b[0].UserDefinedScreenSplitModeIndex, 4294967295u);
}

TEST(VideoOutputScreenSplitParameter, DetailsOf2048OrMoreCharactersAreReadAsTheirFirst2047) {
    for (size_t len : {2048u, 2500u}) {
        std::string json = "[{\"UserDefinedScreenSplitModeDetails\":\"" + long_text('d', len) + "\"}]";
        const VideoOutputScreenSplitParameter v =
            read_array_back(j2s_array_VideoOutputScreenSplitParameter, json.c_str(), 1, 1)[0];
        EXPECT_EQ(std::string(v.UserDefinedScreenSplitModeDetails), long_text('d', 2047));
    }
}

TEST(VideoOutputScreenSplitParameter, KeywordWithIndexAsStringFailsEvenWithAGoodInterfaceName) {
    VideoOutputScreenSplitParameterKeyword k = {};
    k.UserDefinedScreenSplitModeIndex = 77;
    EXPECT_EQ(read_of_text(json_to_struct_VideoOutputScreenSplitParameterKeyword,
                           "{\"InterfaceName\":\"HDMI-OUT-0\",\"UserDefinedScreenSplitModeIndex\":\"1\"}", &k),
              0);
    // The name comes first and stays read; the index is left as it was.
    EXPECT_STREQ(k.InterfaceName, "HDMI-OUT-0");
    EXPECT_EQ(k.UserDefinedScreenSplitModeIndex, 77u);
}

TEST(VideoOutputScreenSplitParameter, KeywordReadsNameThenIndexAndFailsWhenEitherIsMissing) {
    VideoOutputScreenSplitParameterKeyword k = {};
    Tree both(cJSON_Parse("{\"UserDefinedScreenSplitModeIndex\":4294967295,\"InterfaceName\":\"SDI-OUT-1\"}"));
    EXPECT_EQ(json_to_struct_VideoOutputScreenSplitParameterKeyword(&k, both.p), 1);
    EXPECT_STREQ(k.InterfaceName, "SDI-OUT-1");
    EXPECT_EQ(k.UserDefinedScreenSplitModeIndex, 4294967295u);
    Tree no_name(cJSON_Parse("{\"UserDefinedScreenSplitModeIndex\":3}"));
    VideoOutputScreenSplitParameterKeyword k2 = {};
    EXPECT_EQ(json_to_struct_VideoOutputScreenSplitParameterKeyword(&k2, no_name.p), 0);
    EXPECT_EQ(k2.UserDefinedScreenSplitModeIndex, 0u);  // never reached
    Tree no_index(cJSON_Parse("{\"InterfaceName\":\"X\"}"));
    EXPECT_EQ(json_to_struct_VideoOutputScreenSplitParameterKeyword(&k2, no_index.p), 0);
}

TEST(VideoOutputScreenSplitParameter, GetKeywordReadsTheInterfaceNameAlone) {
    Tree j(cJSON_Parse("{\"InterfaceName\":\"HDMI-OUT-0\",\"UserDefinedScreenSplitModeIndex\":\"bad\"}"));
    char name[64] = {};
    EXPECT_EQ(json_to_struct_GetVideoOutputScreenSplitParameterKeyword(name, j.p), 1);
    EXPECT_STREQ(name, "HDMI-OUT-0");
    Tree no_name(cJSON_Parse("{\"UserDefinedScreenSplitModeIndex\":1}"));
    EXPECT_EQ(json_to_struct_GetVideoOutputScreenSplitParameterKeyword(name, no_name.p), 0);
}

VideoOutputScreenSplitParameter layout(const char *iface, uint32_t index, uint32_t windows) {
    VideoOutputScreenSplitParameter p = {};
    set(p.InterfaceName, iface);
    p.UserDefinedScreenSplitModeIndex = index;
    p.SplitWindowNumber = windows;
    set(p.UserDefinedScreenSplitModeDetails, "orig");
    return p;
}

TEST(VideoOutputScreenSplitParameter, UpdateMatchesNameAndIndexTogether) {
    VideoOutputScreenSplitParameter a[3] = {layout("HDMI-OUT-0", 0, 1), layout("HDMI-OUT-0", 1, 2),
                                            layout("SDI-OUT-0", 0, 3)};
    const char *json =
        "[{\"InterfaceName\":\"HDMI-OUT-0\",\"UserDefinedScreenSplitModeIndex\":1,\"SplitWindowNumber\":9},"
        " {\"InterfaceName\":\"SDI-OUT-0\",\"UserDefinedScreenSplitModeIndex\":1,\"SplitWindowNumber\":8},"
        " {\"InterfaceName\":\"HDMI-OUT-1\",\"UserDefinedScreenSplitModeIndex\":0,\"SplitWindowNumber\":7}]";
    // Only the first element finds its pair.
    expect_update_applies(j2s_array_update_VideoOutputScreenSplitParameter, json, a, 3, 1);
    EXPECT_EQ(member_values(a, &VideoOutputScreenSplitParameter::SplitWindowNumber), (std::vector<uint32_t>{1, 9, 3}));
    EXPECT_STREQ(a[1].InterfaceName, "HDMI-OUT-0");
    EXPECT_EQ(a[1].UserDefinedScreenSplitModeIndex, 1u);
}

TEST(VideoOutputScreenSplitParameter, UpdateWithoutTheIndexKeyReportsTheKeywordMessage) {
    VideoOutputScreenSplitParameter a[2] = {layout("HDMI-OUT-0", 0, 1), layout("HDMI-OUT-0", 1, 2)};
    uint32_t n = 2;
    const char *json =
        "[{\"InterfaceName\":\"HDMI-OUT-0\",\"UserDefinedScreenSplitModeIndex\":0,\"SplitWindowNumber\":5},"
        " {\"InterfaceName\":\"HDMI-OUT-0\",\"SplitWindowNumber\":6}]";
    StderrCapture err;
    EXPECT_EQ(j2s_array_update_VideoOutputScreenSplitParameter(json, a, &n), -2);
    EXPECT_EQ(err.text(), keyword_diag("VideoOutputScreenSplitParameter"));
    EXPECT_EQ(n, 2u);
    EXPECT_EQ(a[0].SplitWindowNumber, 5u);  // the earlier element's update remains
    EXPECT_EQ(a[1].SplitWindowNumber, 2u);
}

TEST(VideoOutputScreenSplitParameter, UpdateComparesTheNameCaseSensitively) {
    VideoOutputScreenSplitParameter a[1] = {layout("HDMI-OUT-0", 0, 1)};
    expect_update_applies(j2s_array_update_VideoOutputScreenSplitParameter,
                          "[{\"InterfaceName\":\"hdmi-out-0\",\"UserDefinedScreenSplitModeIndex\":0,"
                          "\"SplitWindowNumber\":4}]", a, 1, 0);
    EXPECT_EQ(a[0].SplitWindowNumber, 1u);
}

TEST(VideoOutputInterfaceParameter, UpdateFindsTheInterfaceByName) {
    VideoOutputInterfaceParameter a[2] = {};
    set(a[0].InterfaceName, "HDMI-OUT-0");
    set(a[1].InterfaceName, "SDI-OUT-0");
    a[0].Brightness = a[1].Brightness = 50;
    expect_update_applies(j2s_array_update_VideoOutputInterfaceParameter,
                          "[{\"InterfaceName\":\"SDI-OUT-0\",\"Brightness\":70,\"Timing\":\"1920x1080P50\"}]", a, 2, 1);
    EXPECT_EQ(a[0].Brightness, 50u);
    EXPECT_EQ(a[1].Brightness, 70u);
    EXPECT_STREQ(a[1].Timing, "1920x1080P50");
}

TEST(VideoOutputInterfaceParameter, KeywordRequiresTheNameAsAString) {
    expect_name_keyword_readers(json_to_struct_VideoOutputInterfaceParameterKeyword,
                                json_to_struct_GetVideoOutputInterfaceParameterKeyword, "{\"InterfaceName\":3}",
                                "{\"interfacename\":\"HDMI-OUT-0\"}", "HDMI-OUT-0");
}

// ---- Output sources and playlists ----------------------------------------

TEST(VideoOutputSourceParameter, SourceIndexAndTypeOfMinusOneAreEmittedAsMinusOne) {
    VideoOutputSourceParameter p = {4294967295u, -1, -1, -1};
    EXPECT_EQ(compact(struct_to_json_VideoOutputSourceParameter(&p)),
              "{\"Channel\":4294967295,\"SourceIndex\":-1,\"SourceType\":-1,\"CacheTime\":-1}");
}

// A video or audio source-change notice, or an audio output's source: a
// channel, an interface, a source index and type.
template <class T>
T source_change(uint32_t channel, const char *interface_name, int32_t source_index, int32_t source_type) {
    T c = {};
    c.Channel = channel;
    set(c.InterfaceName, interface_name);
    c.SourceIndex = source_index;
    c.SourceType = source_type;
    return c;
}

TEST(VideoOutSourceChange, SourceIndexAndTypeOfMinusOneAreEmittedAsMinusOne) {
    const VideoOutSourceChange c = source_change<VideoOutSourceChange>(4294967295u, "HDMI-OUT-0", -1, -1);
    Text t(s2j_VideoOutSourceChange(&c, 0));
    EXPECT_EQ(t.str(),
              "{\"Channel\":4294967295,\"InterfaceName\":\"HDMI-OUT-0\",\"SourceIndex\":-1,\"SourceType\":-1}");
}

TEST(AudioOutSourceChange, SourceIndexAndTypeOfMinusOneAreEmittedAsMinusOne) {
    const AudioOutSourceChange c = source_change<AudioOutSourceChange>(4294967295u, "LINE-OUT-0", -1, -1);
    Text t(s2j_AudioOutSourceChange(&c, 0));
    EXPECT_EQ(t.str(),
              "{\"Channel\":4294967295,\"InterfaceName\":\"LINE-OUT-0\",\"SourceIndex\":-1,\"SourceType\":-1}");
}

TEST(OutSourceChange, VideoAndAudioNoticesWithEqualValuesGiveIdenticalText) {
    const VideoOutSourceChange v = source_change<VideoOutSourceChange>(3, "HDMI-OUT-1", -7, 2);
    const AudioOutSourceChange a = source_change<AudioOutSourceChange>(3, "HDMI-OUT-1", -7, 2);
    for (int formatted : {0, 1}) {
        Text tv(s2j_VideoOutSourceChange(&v, formatted));
        Text ta(s2j_AudioOutSourceChange(&a, formatted));
        ASSERT_NE(tv.p, nullptr);
        EXPECT_EQ(tv.str(), ta.str());
    }
}

TEST(OutSourceChange, NoticesHaveSeparateReaders) {
    // One text read by both: the two readers are distinct functions.
    EXPECT_NE(dlsym(RTLD_DEFAULT, "json_to_struct_VideoOutSourceChange"),
              dlsym(RTLD_DEFAULT, "json_to_struct_AudioOutSourceChange"));
    AudioOutSourceChange a = {};
    ASSERT_EQ(j2s_AudioOutSourceChange("{\"Channel\":2,\"InterfaceName\":\"LINE-OUT-0\",\"SourceIndex\":-2}", &a), 0);
    EXPECT_EQ(a.Channel, 2u);
    EXPECT_STREQ(a.InterfaceName, "LINE-OUT-0");
    EXPECT_EQ(a.SourceIndex, -2);
}

TEST(VideoOutSourceChange, WrongTypeIsReportedUnderItsOwnNameAndLine) {
    VideoOutSourceChange c = {};
    EXPECT_EQ(j2s_stderr(j2s_VideoOutSourceChange, "{\"Channel\":1,\"InterfaceName\":5}", &c, -1),
              diag(text_list_file(), lines_of("VideoOutSourceChange").c2s, "c2s_VideoOutSourceChange",
                   "json_to_struct_VideoOutSourceChange failed!\n"));
    EXPECT_EQ(c.Channel, 1u);
}

TEST(VideoOutputPlaylistParameter, ListOf2048OrMoreCharactersIsReadAsItsFirst2047) {
    VideoOutputPlaylistParameter p[1] = {};
    uint32_t n = 1;
    std::string json = "[{\"SourceIndexList\":\"" + long_text('1', 2048) + "\",\"SourceTypeList\":\"" +
                       long_text('2', 4000) + "\",\"SourceDwellTimeList\":\"" + long_text('3', 2047) + "\"}]";
    ASSERT_EQ(j2s_array_VideoOutputPlaylistParameter(json.c_str(), p, &n), 0);
    EXPECT_EQ(std::string(p[0].SourceIndexList), long_text('1', 2047));
    EXPECT_EQ(std::string(p[0].SourceTypeList), long_text('2', 2047));
    EXPECT_EQ(std::string(p[0].SourceDwellTimeList), long_text('3', 2047));
}

TEST(VideoOutputPlaylistParameter, ListFillingAll2048BytesWithoutNulIsEmittedAs2048Characters) {
    VideoOutputPlaylistParameter p = {};
    std::memset(p.SourceTypeList, 'x', sizeof p.SourceTypeList);
    set(p.SourceDwellTimeList, "10,20");
    Tree t(struct_to_json_VideoOutputPlaylistParameter(&p));
    cJSON *m = cJSON_GetObjectItem(t.p, "SourceTypeList");
    ASSERT_TRUE(cJSON_IsString(m));
    EXPECT_EQ(std::string(m->valuestring), long_text('x', 2048));
    EXPECT_STREQ(cJSON_GetObjectItem(t.p, "SourceDwellTimeList")->valuestring, "10,20");
}

TEST(VideoOutputPlaylistParameter, UpdateFindsThePlaylistByIndex) {
    VideoOutputPlaylistParameter a[3] = {};
    for (uint32_t i = 0; i < 3; ++i) {
        a[i].Index = i + 1;
        set(a[i].Name, "list");
    }
    expect_update_applies(j2s_array_update_VideoOutputPlaylistParameter,
                          "[{\"Index\":3,\"Name\":\"Lobby\"},{\"Index\":7,\"Name\":\"none\"}]", a, 3, 1);
    EXPECT_STREQ(a[2].Name, "Lobby");
    EXPECT_STREQ(a[0].Name, "list");
    uint32_t key = 0;
    Tree j(cJSON_Parse("{\"Index\":4294967295}"));
    EXPECT_EQ(json_to_struct_GetVideoOutputPlaylistParameterKeyword(&key, j.p), 1);
    EXPECT_EQ(key, 4294967295u);
}

TEST(VideoOutputSourceParameter, UpdateFindsTheChannelAndKeywordNeedsAnInteger) {
    VideoOutputSourceParameter a[2] = {{0, 0, 0, 100}, {1, 0, 0, 100}};
    expect_update_applies(j2s_array_update_VideoOutputSourceParameter,
                          "[{\"Channel\":1,\"SourceIndex\":-1,\"CacheTime\":250}]", a, 2, 1);
    EXPECT_EQ(a[1].SourceIndex, -1);
    EXPECT_EQ(a[1].CacheTime, 250);
    EXPECT_EQ(a[0].CacheTime, 100);
    expect_keyword_readers_refuse(json_to_struct_VideoOutputSourceParameterKeyword,
                                  json_to_struct_GetVideoOutputSourceParameterKeyword, "{\"Channel\":\"1\"}");
}

// ---- Audio output and decoding -------------------------------------------

TEST(AudioOutputParameter, SourceIndexAndTypeOfMinusOneAreEmittedAsMinusOne) {
    const AudioOutputParameter p = source_change<AudioOutputParameter>(1, "LINE-OUT-0", -1, -1);
    EXPECT_EQ(compact(struct_to_json_AudioOutputParameter(&p)),
              "{\"Channel\":1,\"InterfaceName\":\"LINE-OUT-0\",\"SourceIndex\":-1,\"SourceType\":-1}");
}

TEST(VideoDecodeCapabilitySet, MaxCacheTimeOfMinusOneIsStoredAsItsBitsAndEmittedUnsigned) {
    VideoDecodeCapabilitySet c = {};
    ASSERT_EQ(j2s_VideoDecodeCapabilitySet("{\"MaxCacheTime\":-1,\"MaxVideoDecodeCapabilityByChannel\":-1}", &c), 0);
    EXPECT_EQ(c.MaxCacheTime, 0xFFFFFFFFu);
    EXPECT_EQ(c.MaxVideoDecodeCapabilityByChannel, -1);
    Text t(s2j_VideoDecodeCapabilitySet(&c, 0));
    EXPECT_EQ(t.str(),
              "{\"MaxVideoWidth\":0,\"MaxVideoHeight\":0,\"MaxVideoFramerate\":0,\"SupportedVideoCodecList\":\"\","
              "\"MaxVideoDecodeCapabilityByChannel\":-1,\"TotalVideoDecodeCapability\":0,\"MaxCacheTime\":4294967295}");
}

TEST(AudioOutputCapabilitySet, InterfaceListSpeltWithTrailingListIsIgnored) {
    AudioOutputCapabilitySet c[1] = {};
    set(c[0].SupportedAudioOutputInterfaces, "LINE-OUT-0");
    const char *doc =
        "[{\"SupportedAudioOutputInterfacesList\":\"HDMI-OUT-0\",\"SupportedAudioInputChannelList\":\"0,1\"}]";
    read_one_over(j2s_array_AudioOutputCapabilitySet, doc, c);
    EXPECT_STREQ(c[0].SupportedAudioOutputInterfaces, "LINE-OUT-0");
    EXPECT_STREQ(c[0].SupportedAudioInputChannelList, "0,1");
    Text t(s2j_array_AudioOutputCapabilitySet(c, 1, 0));
    EXPECT_NE(t.str().find("\"SupportedAudioOutputInterfaces\":\"LINE-OUT-0\""), std::string::npos);
    EXPECT_EQ(t.str().find("InterfacesList"), std::string::npos);
}

TEST(AudioOutputCapabilitySet, EachListKeepsAtMost255Characters) {
    AudioOutputCapabilitySet c[1] = {};
    uint32_t n = 1;
    std::string v = long_text('L', 400);
    std::string json = "[{\"SupportedAudioInputChannelList\":\"" + v + "\",\"SupportedAudioOutputInterfaces\":\"" + v +
                       "\",\"SupportedInputStreamingIndexList\":\"" + v + "\",\"SupportedVideoOutputChannelList\":\"" +
                       v + "\"}]";
    ASSERT_EQ(j2s_array_AudioOutputCapabilitySet(json.c_str(), c, &n), 0);
    EXPECT_EQ(std::strlen(c[0].SupportedAudioInputChannelList), 255u);
    EXPECT_EQ(std::strlen(c[0].SupportedAudioOutputInterfaces), 255u);
    EXPECT_EQ(std::strlen(c[0].SupportedInputStreamingIndexList), 255u);
    EXPECT_EQ(std::strlen(c[0].SupportedVideoOutputChannelList), 255u);
}

TEST(DecodeCapabilitySets, CodecListsKeepAtMost255Characters) {
    std::string v = long_text('C', 256);
    VideoDecodeCapabilitySet vd = {};
    AudioDecodeCapabilitySet ad = {};
    ASSERT_EQ(j2s_VideoDecodeCapabilitySet(("{\"SupportedVideoCodecList\":\"" + v + "\"}").c_str(), &vd), 0);
    ASSERT_EQ(j2s_AudioDecodeCapabilitySet(("{\"SupportedAudioCodecList\":\"" + v + "\"}").c_str(), &ad), 0);
    EXPECT_EQ(std::string(vd.SupportedVideoCodecList), long_text('C', 255));
    EXPECT_EQ(std::string(ad.SupportedAudioCodecList), long_text('C', 255));
}

TEST(AudioDecodeCapabilitySet, EmptyObjectSucceedsAndLeavesTheRecordUnchanged) {
    AudioDecodeCapabilitySet c = {};
    set(c.SupportedAudioCodecList, "AAC,G.711A");
    EXPECT_EQ(j2s_AudioDecodeCapabilitySet("{}", &c), 0);
    EXPECT_STREQ(c.SupportedAudioCodecList, "AAC,G.711A");
    Tree empty(cJSON_CreateObject());
    EXPECT_EQ(json_to_struct_AudioDecodeCapabilitySet(&c, empty.p), 1);
    EXPECT_STREQ(c.SupportedAudioCodecList, "AAC,G.711A");
}

TEST(AudioOutputParameter, UpdateElementWithoutChannelFailsWithTheKeywordMessage) {
    AudioOutputParameter a[2] = {};
    a[0].Channel = 0;
    a[1].Channel = 1;
    const uint32_t n = refused_update_count(j2s_array_update_AudioOutputParameter, "AudioOutputParameter",
                                            "[{\"Channel\":1,\"SourceIndex\":4},{\"SourceIndex\":5}]", a, 2);
    EXPECT_EQ(n, 2u);
    EXPECT_EQ(a[1].SourceIndex, 4);
    EXPECT_EQ(a[0].SourceIndex, 0);
}

TEST(AudioOutputParameter, KeywordReadersRequireAnIntegerChannel) {
    expect_channel_keyword_readers(json_to_struct_AudioOutputParameterKeyword,
                                   json_to_struct_GetAudioOutputParameterKeyword,
                                   "{\"Channel\":2,\"InterfaceName\":\"LINE-OUT-0\"}", 2, {"{\"Channel\":\"2\"}"});
}

TEST(AudioOutputInterfaceParameter, KeywordReadersRequireAStringAndKeepAtMost63Characters) {
    AudioOutputInterfaceParameterKeyword k = {};
    char name[64];
    std::memset(name, '#', sizeof name);
    Tree num(cJSON_Parse("{\"InterfaceName\":1}"));
    EXPECT_EQ(json_to_struct_AudioOutputInterfaceParameterKeyword(&k, num.p), 0);
    EXPECT_EQ(json_to_struct_GetAudioOutputInterfaceParameterKeyword(name, num.p), 0);
    std::string json = "{\"InterfaceName\":\"" + long_text('n', 70) + "\"}";
    Tree longname(cJSON_Parse(json.c_str()));
    EXPECT_EQ(json_to_struct_AudioOutputInterfaceParameterKeyword(&k, longname.p), 1);
    EXPECT_EQ(std::string(k.InterfaceName), long_text('n', 63));
    EXPECT_EQ(json_to_struct_GetAudioOutputInterfaceParameterKeyword(name, longname.p), 1);
    EXPECT_EQ(std::string(name), long_text('n', 63));
}

TEST(AudioOutputInterfaceParameter, VolumeIsUnsignedAndGainSigned) {
    AudioOutputInterfaceParameter p = {};
    set(p.InterfaceName, "LINE-OUT-0");
    p.Volume = 0xFFFFFFFFu;
    p.Gain = -12;
    EXPECT_EQ(compact(struct_to_json_AudioOutputInterfaceParameter(&p)),
              "{\"InterfaceName\":\"LINE-OUT-0\",\"Volume\":4294967295,\"Gain\":-12}");
    AudioOutputInterface i = {};
    i.MinVolume = 0xFFFFFFFFu;
    i.MinGain = -20;
    i.MaxGain = 20;
    std::string text = compact(struct_to_json_AudioOutputInterface(&i));
    EXPECT_NE(text.find("\"MinVolume\":4294967295,"), std::string::npos) << text;
    EXPECT_NE(text.find("\"MinGain\":-20,\"MaxGain\":20}"), std::string::npos) << text;
}

TEST(AudioOutputInterfaceParameter, UpdateFindsTheInterfaceByName) {
    AudioOutputInterfaceParameter a[2] = {};
    set(a[0].InterfaceName, "LINE-OUT-0");
    set(a[1].InterfaceName, "HDMI-OUT-0");
    expect_update_applies(j2s_array_update_AudioOutputInterfaceParameter,
                          "[{\"InterfaceName\":\"HDMI-OUT-0\",\"Gain\":-3}]", a, 2, 1);
    EXPECT_EQ(a[1].Gain, -3);
    EXPECT_EQ(a[0].Gain, 0);
}

// ---- Screenshots ------------------------------------------------------------

TEST(ScreenshotParameter, ListsUnderAnyKeyButAttachedInputStreamingIndexsAreIgnored) {
    ScreenshotParameter s[1] = {};
    set(s[0].AttachedInputStreamingIndexs, "1,2");
    uint32_t n = 1;
    ASSERT_EQ(j2s_array_ScreenshotParameter(
                  "[{\"AttachedInputStreamingIndexes\":\"5\",\"AttachedInputStreamingIndices\":\"6\","
                  "\"AttachedInputStreamingIndex\":\"7\",\"Name\":\"Four cameras\"}]",
                  s, &n),
              0);
    EXPECT_STREQ(s[0].AttachedInputStreamingIndexs, "1,2");
    EXPECT_STREQ(s[0].Name, "Four cameras");
    Text t(s2j_array_ScreenshotParameter(s, 1, 0));
    EXPECT_NE(t.str().find("\"AttachedInputStreamingIndexs\":\"1,2\""), std::string::npos) << t.str();
    EXPECT_EQ(t.str().find("Indexes"), std::string::npos);
}

TEST(ScreenshotListParameter, ListsUnderAnyKeyButScreenshotIndexsAreIgnored) {
    ScreenshotListParameter s[1] = {};
    set(s[0].ScreenshotIndexs, "0,1");
    read_one_over(j2s_array_ScreenshotListParameter,
                  "[{\"ScreenshotIndexes\":\"3\",\"ScreenshotIndices\":\"4\",\"ScreenshotDwellTimes\":\"30,60\"}]", s);
    EXPECT_STREQ(s[0].ScreenshotIndexs, "0,1");
    EXPECT_STREQ(s[0].ScreenshotDwellTimes, "30,60");
    Text t(s2j_array_ScreenshotListParameter(s, 1, 0));
    EXPECT_EQ(t.str(),
              "[{\"Index\":0,\"Name\":\"\",\"ScreenshotIndexs\":\"0,1\",\"ScreenshotDwellTimes\":\"30,60\"}]");
    read_one_over(j2s_array_ScreenshotListParameter, "[{\"ScreenshotIndexs\":\"2,3\"}]", s);
    EXPECT_STREQ(s[0].ScreenshotIndexs, "2,3");
}

TEST(VideoOutputScreenshotParameter, IndexesOfMinusOneAreEmittedAsMinusOne) {
    VideoOutputScreenshotParameter p = {};
    set(p.InterfaceName, "HDMI-OUT-0");
    p.ScreenshotIndex = -1;
    p.ScreenshotListIndex = -1;
    EXPECT_EQ(compact(struct_to_json_VideoOutputScreenshotParameter(&p)),
              "{\"InterfaceName\":\"HDMI-OUT-0\",\"ScreenshotIndex\":-1,\"ScreenshotListIndex\":-1}");
}

TEST(ScreenshotParameter, IndexOf4294967295IsEmittedUnsignedAndSplitIndexSigned) {
    ScreenshotParameter s = {};
    s.Index = 4294967295u;
    s.UserDefinedScreenSplitModeIndex = -1;
    std::string text = compact(struct_to_json_ScreenshotParameter(&s));
    EXPECT_EQ(text.rfind("{\"Index\":4294967295,", 0), 0u) << text;
    EXPECT_NE(text.find("\"UserDefinedScreenSplitModeIndex\":-1,"), std::string::npos) << text;
    ScreenshotListParameter l = {};
    l.Index = 4294967295u;
    EXPECT_EQ(compact(struct_to_json_ScreenshotListParameter(&l)).rfind("{\"Index\":4294967295,", 0), 0u);
}

TEST(VideoOutputScreenshotParameter, KeywordWithNumericInterfaceNameFails) {
    expect_name_keyword_readers(json_to_struct_VideoOutputScreenshotParameterKeyword,
                                json_to_struct_GetVideoOutputScreenshotParameterKeyword,
                                "{\"InterfaceName\":0,\"ScreenshotIndex\":1}", "{\"InterfaceName\":\"SDI-OUT-0\"}",
                                "SDI-OUT-0");
}

TEST(VideoOutputScreenshotParameter, UpdateWithNumericInterfaceNameReportsTheKeywordMessage) {
    VideoOutputScreenshotParameter a[1] = {};
    set(a[0].InterfaceName, "HDMI-OUT-0");
    uint32_t n = 1;
    std::string json = "[{\"InterfaceName\":0,\"ScreenshotIndex\":3}]";
    StderrCapture err;
    EXPECT_EQ(j2s_array_update_VideoOutputScreenshotParameter_with_len(json.c_str(), json.size(), a, &n), -2);
    EXPECT_EQ(err.text(), keyword_diag("VideoOutputScreenshotParameter"));
    EXPECT_EQ(a[0].ScreenshotIndex, 0);
}

TEST(ScreenshotCapabilitySet, EmitterTextReadsBackThroughEveryReader) {
    ScreenshotCapabilitySet c = {16, 4, 8};
    Tree tree(struct_to_json_ScreenshotCapabilitySet(&c));
    ASSERT_NE(tree.p, nullptr);
    Text text(cJSON_Print(tree.p));
    ScreenshotCapabilitySet a = {}, b = {}, f = {}, t = {};
    EXPECT_EQ(j2s_ScreenshotCapabilitySet(text.p, &a), 0);
    EXPECT_EQ(j2s_ScreenshotCapabilitySet_with_len(text.p, std::strlen(text.p), &b), 0);
    EXPECT_EQ(c2s_ScreenshotCapabilitySet(tree.p, &t), 0);
    std::string path = temp_dir() + "/screenshot_caps.json";
    write_file(path, text.str());
    EXPECT_EQ(f2s_ScreenshotCapabilitySet(path.c_str(), &f), 0);
    for (const ScreenshotCapabilitySet *r : {&a, &b, &f, &t}) EXPECT_EQ(std::memcmp(r, &c, sizeof c), 0);
}

TEST(ScreenshotCapabilitySet, NotAnObjectIsReportedByC2sUnderItsLine) {
    ScreenshotCapabilitySet c = {};
    EXPECT_EQ(j2s_stderr(j2s_ScreenshotCapabilitySet, "[]", &c, -2),
              diag(text_list_file(), lines_of("ScreenshotCapabilitySet").c2s, "c2s_ScreenshotCapabilitySet",
                   "the cJSON pointer is not an object!\n"));
}

// ---- Output OSD and watermarks -------------------------------------------

TEST(Watermarks, RotationAngleOfMinus90IsEmittedSignedInBothRecords) {
    WatermarkOSDParameter o = {};
    WatermarkPictureParameter p = {};
    o.RotationAngle = p.RotationAngle = -90;
    o.MovingDirection = p.MovingDirection = 0xFFFFFFFFu;
    p.Transparency = 0xFFFFFFFFu;
    std::string to = compact(struct_to_json_WatermarkOSDParameter(&o));
    std::string tp = compact(struct_to_json_WatermarkPictureParameter(&p));
    EXPECT_NE(to.find("\"RotationAngle\":-90,"), std::string::npos) << to;
    EXPECT_NE(tp.find("\"RotationAngle\":-90,"), std::string::npos) << tp;
    EXPECT_NE(to.find("\"MovingDirection\":4294967295}"), std::string::npos) << to;
    EXPECT_NE(tp.find("\"MovingDirection\":4294967295}"), std::string::npos) << tp;
    EXPECT_NE(tp.find("\"Transparency\":4294967295,"), std::string::npos) << tp;
}

TEST(WatermarkDotmatrixParameter, TransparencyAndMovingDirectionOfAllOnesAreEmittedUnsigned) {
    WatermarkDotmatrixParameter d = {};
    set(d.InterfaceName, "HDMI-OUT-0");
    d.Visible = -1;
    d.Transparency = 0xFFFFFFFFu;
    d.MovingDirection = 0xFFFFFFFFu;
    EXPECT_EQ(compact(struct_to_json_WatermarkDotmatrixParameter(&d)),
              "{\"InterfaceName\":\"HDMI-OUT-0\",\"Visible\":-1,\"Color\":\"\",\"Transparency\":4294967295,"
              "\"Movable\":0,\"MovingStepSize\":0,\"MovingSpeed\":0,\"MovingDirection\":4294967295,\"Content\":\"\"}");
}

TEST(VideoOutputOSDParameter, PrefixAndPostfixHoldAtMost63Characters) {
    VideoOutputOSDParameter o[1] = {};
    uint32_t n = 1;
    std::string v = long_text('p', 200);
    std::string json = "[{\"Prefix\":\"" + v + "\",\"Postfix\":\"" + v + "\",\"Content\":\"" + v + "\"}]";
    ASSERT_EQ(j2s_array_VideoOutputOSDParameter(json.c_str(), o, &n), 0);
    EXPECT_EQ(std::string(o[0].Prefix), long_text('p', 63));
    EXPECT_EQ(std::string(o[0].Postfix), long_text('p', 63));
    EXPECT_EQ(std::string(o[0].Content), v);
}

TEST(WatermarkOSDParameter, PrefixAndPostfixContentHoldAtMost255Characters) {
    std::string v = long_text('q', 300);
    std::string json = "[{\"PrefixContent\":\"" + v + "\",\"PostfixContent\":\"" + long_text('r', 200) + "\"}]";
    const WatermarkOSDParameter o = read_array_back(j2s_array_WatermarkOSDParameter, json.c_str(), 1, 1)[0];
    EXPECT_EQ(std::string(o.PrefixContent), long_text('q', 255));
    EXPECT_EQ(std::string(o.PostfixContent), long_text('r', 200));
}

TEST(VideoOutputOSDParameter, KeywordWithChannelButNoIndexFailsWhileGetSucceeds) {
    Tree j(cJSON_Parse("{\"Channel\":2,\"Content\":\"Lobby\"}"));
    VideoOutputOSDParameterKeyword k = {};
    k.Index = 55;
    EXPECT_EQ(json_to_struct_VideoOutputOSDParameterKeyword(&k, j.p), 0);
    EXPECT_EQ(k.Channel, 2u);  // read before the missing Index stopped it
    EXPECT_EQ(k.Index, 55u);
    uint32_t ch = 0;
    EXPECT_EQ(json_to_struct_GetVideoOutputOSDParameterKeyword(&ch, j.p), 1);
    EXPECT_EQ(ch, 2u);
}

TEST(VideoOutputOSDParameter, KeywordReadsChannelBeforeIndex) {
    VideoOutputOSDParameterKeyword k = {};
    k.Index = 55;
    EXPECT_EQ(read_of_text(json_to_struct_VideoOutputOSDParameterKeyword, "{\"Index\":4,\"Channel\":\"2\"}", &k), 0);
    EXPECT_EQ(k.Index, 55u);  // never reached
    EXPECT_EQ(read_of_text(json_to_struct_VideoOutputOSDParameterKeyword, "{\"Index\":4,\"Channel\":2}", &k), 1);
    EXPECT_EQ(k.Channel, 2u);
    EXPECT_EQ(k.Index, 4u);
}

VideoOutputOSDParameter osd(uint32_t channel, uint32_t index) {
    VideoOutputOSDParameter o = {};
    o.Channel = channel;
    o.Index = index;
    set(o.Content, "orig");
    return o;
}

TEST(VideoOutputOSDParameter, UpdateReplacesOnlyTheItemWithBothChannelAndIndex) {
    VideoOutputOSDParameter a[4] = {osd(0, 0), osd(0, 1), osd(1, 0), osd(1, 1)};
    const char *json =
        "[{\"Channel\":1,\"Index\":0,\"Content\":\"Gate\",\"XCoordinate\":16},"
        " {\"Channel\":0,\"Index\":5,\"Content\":\"skipped\"},"
        " {\"Channel\":3,\"Index\":1,\"Content\":\"skipped\"}]";
    expect_update_applies(j2s_array_update_VideoOutputOSDParameter, json, a, 4, 1);
    EXPECT_STREQ(a[2].Content, "Gate");
    EXPECT_EQ(a[2].XCoordinate, 16u);
    for (int i : {0, 1, 3}) EXPECT_STREQ(a[i].Content, "orig") << i;
}

TEST(VideoOutputOSDParameter, UpdateElementWithoutIndexReportsTheKeywordMessage) {
    VideoOutputOSDParameter a[1] = {osd(0, 0)};
    refused_update_count(j2s_array_update_VideoOutputOSDParameter, "VideoOutputOSDParameter",
                         "[{\"Channel\":0,\"Content\":\"x\"}]", a, 1);
    EXPECT_STREQ(a[0].Content, "orig");
}

TEST(Watermarks, UpdatesFindTheInterfaceByName) {
    WatermarkPictureParameter p[2] = {};
    set(p[0].InterfaceName, "HDMI-OUT-0");
    set(p[1].InterfaceName, "SDI-OUT-0");
    expect_update_applies(j2s_array_update_WatermarkPictureParameter,
                          "[{\"InterfaceName\":\"SDI-OUT-0\",\"ImageFilePath\":\"/data/wm/logo.png\","
                          "\"RotationAngle\":-90}]", p, 2, 1);
    EXPECT_STREQ(p[1].ImageFilePath, "/data/wm/logo.png");
    EXPECT_EQ(p[1].RotationAngle, -90);
    EXPECT_STREQ(p[0].ImageFilePath, "");

    WatermarkDotmatrixParameter d[1] = {};
    set(d[0].InterfaceName, "HDMI-OUT-0");
    expect_update_applies(j2s_array_update_WatermarkDotmatrixParameter,
                          "[{\"InterfaceName\":\"HDMI-OUT-0\",\"Color\":\"#808080\"}]", d, 1, 1);
    EXPECT_STREQ(d[0].Color, "#808080");

    WatermarkOSDParameter o[1] = {};
    set(o[0].InterfaceName, "HDMI-OUT-0");
    expect_update_applies(j2s_array_update_WatermarkOSDParameter,
                          "[{\"InterfaceName\":\"HDMI-OUT-1\",\"Content\":\"x\"}]", o, 1, 0);
    EXPECT_STREQ(o[0].Content, "");
}

TEST(UploadWatermarkPictureParameter, RequestReadsAndWritesTheLargestFileSize) {
    const UploadWatermarkPictureParameter u =
        record_from_text(j2s_UploadWatermarkPictureParameter, "{\"InterfaceName\":\"HDMI-OUT-0\",\"ImageFilePath\":"
                                                              "\"/tmp/upload/logo.png\",\"ImageFileSize\":4294967295}");
    EXPECT_EQ(u.ImageFileSize, 4294967295u);
    Text t(s2j_UploadWatermarkPictureParameter(&u, 0));
    EXPECT_EQ(
        t.str(),
        "{\"InterfaceName\":\"HDMI-OUT-0\",\"ImageFilePath\":\"/tmp/upload/logo.png\",\"ImageFileSize\":4294967295}");
}

// ---- Example files -----------------------------------------------------------

// Loads an array example with its file reader, after asking for its length.
#define EXPECT_ARRAY_EXAMPLE_LOADS(T)                                                    \
    do {                                                                                 \
        uint32_t n = 0;                                                                  \
        ASSERT_EQ(f2s_array_##T(example_path(#T).c_str(), nullptr, &n), 0) << #T;            \
        EXPECT_GE(n, 2u) << #T;                                                          \
        EXPECT_LE(n, 4u) << #T;                                                          \
        T a[4];                                                                          \
        std::memset(a, 0, sizeof a);                                                     \
        uint32_t cap = 4;                                                                \
        EXPECT_EQ(f2s_array_##T(example_path(#T).c_str(), a, &cap), 0) << #T;                 \
        EXPECT_EQ(cap, n) << #T;                                                         \
        Text again(s2j_array_##T(a, cap, 1));                                            \
        EXPECT_EQ(again.str(), read_file(example_path(#T)).substr(0, again.str().size())) << #T; \
    } while (0)

TEST(OutputExamples, ArrayExamplesLoadWithTheirReadersAndPrintBackTheSame) {
    EXPECT_ARRAY_EXAMPLE_LOADS(VideoOutputCapabilitySet);
    EXPECT_ARRAY_EXAMPLE_LOADS(VideoOutputInterface);
    EXPECT_ARRAY_EXAMPLE_LOADS(VideoOutputInterfaceParameter);
    EXPECT_ARRAY_EXAMPLE_LOADS(VideoOutputScreenSplitParameter);
    EXPECT_ARRAY_EXAMPLE_LOADS(VideoOutputSourceParameter);
    EXPECT_ARRAY_EXAMPLE_LOADS(VideoOutputPlaylistParameter);
    EXPECT_ARRAY_EXAMPLE_LOADS(AudioOutputCapabilitySet);
    EXPECT_ARRAY_EXAMPLE_LOADS(AudioOutputInterface);
    EXPECT_ARRAY_EXAMPLE_LOADS(AudioOutputInterfaceParameter);
    EXPECT_ARRAY_EXAMPLE_LOADS(AudioOutputParameter);
    EXPECT_ARRAY_EXAMPLE_LOADS(ScreenshotParameter);
    EXPECT_ARRAY_EXAMPLE_LOADS(ScreenshotListParameter);
    EXPECT_ARRAY_EXAMPLE_LOADS(VideoOutputScreenshotParameter);
    EXPECT_ARRAY_EXAMPLE_LOADS(VideoOutputOSDParameter);
    EXPECT_ARRAY_EXAMPLE_LOADS(WatermarkOSDParameter);
    EXPECT_ARRAY_EXAMPLE_LOADS(WatermarkPictureParameter);
    EXPECT_ARRAY_EXAMPLE_LOADS(WatermarkDotmatrixParameter);
}

TEST(OutputExamples, SingleRecordExamplesLoadWithTheirReaders) {
    VideoOutputDisplayParameter d = {};
    EXPECT_EQ(f2s_VideoOutputDisplayParameter(example_path("VideoOutputDisplayParameter").c_str(), &d), 0);
    EXPECT_STREQ(d.BackgroundColor, "#000000");
    VideoDecodeCapabilitySet vd = {};
    EXPECT_EQ(f2s_VideoDecodeCapabilitySet(example_path("VideoDecodeCapabilitySet").c_str(), &vd), 0);
    EXPECT_EQ(vd.MaxVideoWidth, 3840u);
    AudioDecodeCapabilitySet ad = {};
    EXPECT_EQ(f2s_AudioDecodeCapabilitySet(example_path("AudioDecodeCapabilitySet").c_str(), &ad), 0);
    EXPECT_NE(std::string(ad.SupportedAudioCodecList).find("AAC"), std::string::npos);
    ScreenshotCapabilitySet sc = {};
    EXPECT_EQ(f2s_ScreenshotCapabilitySet(example_path("ScreenshotCapabilitySet").c_str(), &sc), 0);
    EXPECT_GT(sc.MaxScreenshotNumber, 0u);
    // Types without a file family: the text readers take the file's text.
    VideoOutSourceChange v = {};
    EXPECT_EQ(j2s_VideoOutSourceChange(read_file(example_path("VideoOutSourceChange")).c_str(), &v), 0);
    EXPECT_STREQ(v.InterfaceName, "HDMI-OUT-0");
    AudioOutSourceChange a = {};
    EXPECT_EQ(j2s_AudioOutSourceChange(read_file(example_path("AudioOutSourceChange")).c_str(), &a), 0);
    EXPECT_STREQ(a.InterfaceName, "LINE-OUT-0");
    UploadWatermarkPictureParameter u = {};
    EXPECT_EQ(
        j2s_UploadWatermarkPictureParameter(read_file(example_path("UploadWatermarkPictureParameter")).c_str(), &u), 0);
    EXPECT_GT(u.ImageFileSize, 0u);
}

}  // namespace
