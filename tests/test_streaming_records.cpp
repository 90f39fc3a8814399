// Streaming records: what is particular to each type (capacities, signed
// and unsigned fields of the same key, the 16-bit RTSP server ports, the
// two-key updates of the protocol streams) and the integer lists of
// StreamingInputUseCount with its lenient and strict readers.  What every
// type shares is covered by test_every_type.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <string>

#include "app_s2j.h"
#include "registry.h"
#include "support.h"

using namespace testing_support;

namespace {

template <class T>
bool same_bytes(const T &a, const T &b) {
    return std::memcmp(&a, &b, sizeof(T)) == 0;
}

template <size_t N>
bool untouched(const char (&field)[N], unsigned char fill = 0xA5) {
    for (size_t i = 0; i < N; ++i)
        if (static_cast<unsigned char>(field[i]) != fill) return false;
    return true;
}

int line_of(const char *type, int s2j::Families::Lines::*member) {
    const s2j::TypeInfo *t = s2j::find_type(type);
    return t != nullptr ? t->fam.line.*member : -1;
}

// The member `key` of an emitted object.
const cJSON *member(const Tree &t, const char *key) { return cJSON_GetObjectItemCaseSensitive(t.p, key); }
int64_t int_member(const Tree &t, const char *key) {
    const cJSON *m = member(t, key);
    EXPECT_TRUE(cJSON_IsInt(m)) << key;
    return m != nullptr ? static_cast<int64_t>(m->valuedouble) : 0;
}

std::string json_string_doc(const char *key, const std::string &value) {
    return std::string("{\"") + key + "\": \"" + value + "\"}";
}

// ======================================================================
// Streaming output and protocol capabilities
// ======================================================================

TEST(RtspCapabilitySet, StreamTypeListOf256CharactersIsStoredAsItsFirst255) {
    for (const auto &[len, c] : {std::pair<size_t, char>{256, 'h'}, {400, 'k'}})
        expect_read_as_prefix(j2s_RtspCapabilitySet, &RtspCapabilitySet::SupportedStreamTypeList,
                              "SupportedStreamTypeList", len, c);
}

TEST(RtspCapabilitySet, StreamTypeListOf256BytesWithoutNulIsEmittedAs256Characters) {
    expect_emitted_whole(struct_to_json_RtspCapabilitySet, &RtspCapabilitySet::SupportedStreamTypeList,
                         "SupportedStreamTypeList", 'H');
}

TEST(UdpCapabilitySet, NumericStreamTypeListFailsBeforeAnyFieldIsWritten) {
    UdpCapabilitySet r = pattern<UdpCapabilitySet>();
    const UdpCapabilitySet before = r;
    const char *doc =
        "{\"SupportedStreamTypeList\": 5, \"SupportRtpPacket\": 1, \"StreamingNumberPerChannel\": 4, "
        "\"SupportBandwidthControl\": 1}";
    StderrCapture err;
    EXPECT_EQ(j2s_UdpCapabilitySet(doc, &r), -1);
    EXPECT_EQ(err.text(), diag(text_list_file(), line_of("UdpCapabilitySet", &s2j::Families::Lines::c2s),
                               "c2s_UdpCapabilitySet", "json_to_struct_UdpCapabilitySet failed!\n"));
    EXPECT_TRUE(same_bytes(r, before));
}

TEST(UdpCapabilitySet, ListIsEmittedFirst) {
    UdpCapabilitySet r = {"TS,ES", 1, 4, 0};
    Tree t(struct_to_json_UdpCapabilitySet(&r));
    ASSERT_NE(t.p->child, nullptr);
    EXPECT_STREQ(t.p->child->string, "SupportedStreamTypeList");
    EXPECT_STREQ(t.p->child->next->string, "SupportRtpPacket");
}

TEST(HttpStreamingCapabilitySet, TextTotalCacheDurationFailsAfterTheSixFieldsBeforeIt) {
    HttpStreamingCapabilitySet r = pattern<HttpStreamingCapabilitySet>();
    const char *doc =
        "{\"StreamingNumberPerChannel\": 2, \"SupportTSOverHttp\": 1, \"SupportFLVOverHttp\": 0, \"SupportHLS\": 1, "
        "\"MaxHLSCacheFileNumber\": 10, \"MaxHLSCacheFileDuration\": 6, \"MaxHLSTotalCacheDuration\": \"60\"}";
    StderrCapture err;
    EXPECT_EQ(j2s_HttpStreamingCapabilitySet_with_len(doc, std::strlen(doc), &r), -1);
    EXPECT_EQ(err.text(),
              diag(text_list_file(), line_of("HttpStreamingCapabilitySet", &s2j::Families::Lines::c2s),
                   "c2s_HttpStreamingCapabilitySet", "json_to_struct_HttpStreamingCapabilitySet failed!\n"));
    EXPECT_EQ(r.StreamingNumberPerChannel, 2u);
    EXPECT_EQ(r.SupportTSOverHttp, 1);
    EXPECT_EQ(r.SupportFLVOverHttp, 0);
    EXPECT_EQ(r.SupportHLS, 1);
    EXPECT_EQ(r.MaxHLSCacheFileNumber, 10u);
    EXPECT_EQ(r.MaxHLSCacheFileDuration, 6u);
    EXPECT_EQ(r.MaxHLSTotalCacheDuration, 0xA5A5A5A5u);
}

TEST(StreamingOutputCapabilitySet, FlagsAreEmittedSignedAndLimitsUnsigned) {
    StreamingOutputCapabilitySet r = {-1, 0, 1, -1, 0, 0xFFFFFFFFu, 0xFFFFFFFFu, 0xFFFFFFFFu};
    Tree t(struct_to_json_StreamingOutputCapabilitySet(&r));
    EXPECT_EQ(int_member(t, "SupportRtspStreaming"), -1);
    EXPECT_EQ(int_member(t, "SupportHttpStreaming"), -1);
    EXPECT_EQ(int_member(t, "MaxStreamingNumber"), 4294967295LL);
    EXPECT_EQ(int_member(t, "MaxStreamingBandwidth"), 4294967295LL);
    EXPECT_EQ(int_member(t, "SupportStreamingProtocolNumber"), 4294967295LL);
    Text text(s2j_StreamingOutputCapabilitySet(&r, 0));
    EXPECT_NE(text.str().find("\"SupportRtspStreaming\":-1,"), std::string::npos);
    EXPECT_NE(text.str().find("\"MaxStreamingNumber\":4294967295,"), std::string::npos);
}

TEST(StreamingInputCapabilitySet, ReadsTheOutputCapabilityDocumentAndIgnoresItsEighthKey) {
    StreamingOutputCapabilitySet out = {1, 0, 1, 0, 1, 12, 65536, 3};
    Text text(s2j_StreamingOutputCapabilitySet(&out, 1));
    StreamingInputCapabilitySet in = pattern<StreamingInputCapabilitySet>();
    ASSERT_EQ(j2s_StreamingInputCapabilitySet(text.p, &in), 0);
    StreamingInputCapabilitySet want = {1, 0, 1, 0, 1, 12, 65536};
    EXPECT_TRUE(same_bytes(in, want));
    Tree t(struct_to_json_StreamingInputCapabilitySet(&in));
    EXPECT_EQ(cJSON_GetArraySize(t.p), 7);
    EXPECT_EQ(member(t, "SupportStreamingProtocolNumber"), nullptr);
}

TEST(StreamingOutputParameter, SwitchesSurviveASaveAndLoadThroughItsFile) {
    std::string path = temp_dir() + "/streaming_output.json";
    StreamingOutputParameter a = {1, 0, -1, 1, 0};
    ASSERT_EQ(s2f_StreamingOutputParameter(path.c_str(), &a), 0);
    Text want(s2j_StreamingOutputParameter(&a, 1));
    EXPECT_EQ(read_file(path), want.str());
    StreamingOutputParameter b = pattern<StreamingOutputParameter>();
    ASSERT_EQ(f2s_StreamingOutputParameter(path.c_str(), &b), 0);
    EXPECT_TRUE(same_bytes(a, b));
}

// ======================================================================
// Protocol streams
// ======================================================================

// The functions of one protocol stream type, for the tests shared by all five.
template <class T>
struct Stream;
#define STREAM_TRAITS(T)                                                                           \
    template <>                                                                                    \
    struct Stream<T> {                                                                             \
        using Keyword = T##Keyword;                                                                \
        static constexpr const char *name = #T;                                                    \
        static cJSON *emit(const T *r) { return struct_to_json_##T(r); }                          \
        static int read(T *r, const cJSON *j) { return json_to_struct_##T(r, j); }                 \
        static int keyword(Keyword *k, const cJSON *j) { return json_to_struct_##T##Keyword(k, j); } \
        static int get(uint32_t *c, const cJSON *j) { return json_to_struct_Get##T##Keyword(c, j); } \
        static int c2s_update(const cJSON *j, T *a, uint32_t *n) { return c2s_array_update_##T(j, a, n); } \
        static int j2s_update(const char *s, T *a, uint32_t *n) { return j2s_array_update_##T(s, a, n); } \
        static int j2s_update_len(const char *s, size_t l, T *a, uint32_t *n) {                    \
            return j2s_array_update_##T##_with_len(s, l, a, n);                                    \
        }                                                                                          \
        static char *s2j_array(const T *a, uint32_t n, int f) { return s2j_array_##T(a, n, f); }   \
        static int j2s_array(const char *s, T *a, uint32_t *n) { return j2s_array_##T(s, a, n); }  \
        static int f2s_array(const char *f, T *a, uint32_t *n) { return f2s_array_##T(f, a, n); }  \
        static int s2f_array(const char *f, const T *a, uint32_t n) { return s2f_array_##T(f, a, n); } \
    };
STREAM_TRAITS(RtspStreamingParameter)
STREAM_TRAITS(RtmpStreamingParameter)
STREAM_TRAITS(UdpStreamingParameter)
STREAM_TRAITS(HttpStreamingParameter)
STREAM_TRAITS(SrtStreamingParameter)

// Three streams: channel 0 index 0, channel 0 index 1, channel 1 index 0;
// `before` keeps them as they were, `n` is the room of the array.
template <class T>
class ProtocolStream : public ::testing::Test {
protected:
    ProtocolStream() {
        std::memset(static_cast<void *>(a), 0, sizeof a);
        const uint32_t keys[3][2] = {{0, 0}, {0, 1}, {1, 0}};
        for (int i = 0; i < 3; ++i) {
            a[i].Channel = keys[i][0];
            a[i].Index = keys[i][1];
            a[i].StreamIndex = 10 + i;
        }
        std::memcpy(static_cast<void *>(before), a, sizeof a);
    }
    T a[3];
    T before[3];
    uint32_t n = 3;
};
using StreamTypes = ::testing::Types<RtspStreamingParameter, RtmpStreamingParameter, UdpStreamingParameter,
                                     HttpStreamingParameter, SrtStreamingParameter>;
class StreamNames {
public:
    template <class T>
    static std::string GetName(int) { return Stream<T>::name; }
};
TYPED_TEST_SUITE(ProtocolStream, StreamTypes, StreamNames);

TYPED_TEST(ProtocolStream, UpdateAppliesAnElementOnlyToTheStreamWithBothChannelAndIndex) {
    using T = TypeParam;
    T(&want)[3] = this->before;
    want[1].StreamIndex = 7;
    const char *doc = "[{\"Channel\": 0, \"Index\": 1, \"StreamIndex\": 7}]";
    ASSERT_EQ(Stream<T>::j2s_update(doc, this->a, &this->n), 0);
    EXPECT_EQ(this->n, 1u);
    EXPECT_EQ(std::memcmp(this->a, want, sizeof want), 0);
}

TYPED_TEST(ProtocolStream, UpdateSkipsAnElementWhoseChannelMatchesButWhoseIndexDoesNot) {
    using T = TypeParam;
    StderrCapture err;
    const char *doc =
        "[{\"Channel\": 1, \"Index\": 1, \"StreamIndex\": 7}, {\"Channel\": 2, \"Index\": 0, \"StreamIndex\": 8}]";
    ASSERT_EQ(Stream<T>::j2s_update_len(doc, std::strlen(doc), this->a, &this->n), 0);
    EXPECT_EQ(err.text(), "");
    EXPECT_EQ(this->n, 0u);
    EXPECT_EQ(std::memcmp(this->a, this->before, sizeof this->a), 0);
}

TYPED_TEST(ProtocolStream, UpdateElementWithoutIndexIsRefusedAsLackingItsKey) {
    using T = TypeParam;
    StderrCapture err;
    EXPECT_EQ(Stream<T>::j2s_update("[{\"Channel\": 0, \"StreamIndex\": 7}]", this->a, &this->n), -2);
    EXPECT_EQ(err.text(), diag(text_list_file(), line_of(Stream<T>::name, &s2j::Families::Lines::c2s_array_update),
                               std::string("c2s_array_update_") + Stream<T>::name,
                               "The keyword is not contained in an object of the json array!\n"));
    EXPECT_EQ(this->n, 3u);
    EXPECT_EQ(std::memcmp(this->a, this->before, sizeof this->a), 0);
}

TYPED_TEST(ProtocolStream, KeywordReaderNeedsBothKeysWhileGetReaderNeedsChannelOnly) {
    using T = TypeParam;
    typename Stream<T>::Keyword kw = {};
    uint32_t channel = 0;
    Tree no_index(cJSON_Parse("{\"Channel\": 3, \"StreamIndex\": 1}"));
    EXPECT_EQ(Stream<T>::keyword(&kw, no_index.p), 0);
    EXPECT_EQ(kw.Channel, 3u);  // keys read before the missing one stay written
    EXPECT_EQ(Stream<T>::get(&channel, no_index.p), 1);
    EXPECT_EQ(channel, 3u);

    Tree text_channel(cJSON_Parse("{\"Channel\": \"3\", \"Index\": 2}"));
    kw = {};
    EXPECT_EQ(Stream<T>::keyword(&kw, text_channel.p), 0);
    EXPECT_EQ(Stream<T>::get(&channel, text_channel.p), 0);

    Tree both(cJSON_Parse("{\"Index\": 2, \"Channel\": 4294967295}"));
    EXPECT_EQ(Stream<T>::keyword(&kw, both.p), 1);
    EXPECT_EQ(kw.Channel, 4294967295u);
    EXPECT_EQ(kw.Index, 2u);
    EXPECT_EQ(Stream<T>::get(&channel, both.p), 1);
    EXPECT_EQ(channel, 4294967295u);
}

TYPED_TEST(ProtocolStream, ChannelOfAllOnesIsEmittedUnsigned) {
    using T = TypeParam;
    T r;
    std::memset(static_cast<void *>(&r), 0, sizeof r);
    r.Channel = 0xFFFFFFFFu;
    r.Index = 0xFFFFFFFFu;
    Tree t(Stream<T>::emit(&r));
    EXPECT_EQ(int_member(t, "Channel"), 4294967295LL);
    EXPECT_EQ(int_member(t, "Index"), 4294967295LL);
    T back = pattern<T>();
    ASSERT_EQ(Stream<T>::read(&back, t.p), 1);
    EXPECT_EQ(back.Channel, 0xFFFFFFFFu);
}

TYPED_TEST(ProtocolStream, ExampleFileLoadsAndIsWhatTheArrayEmitterWrites) {
    using T = TypeParam;
    const std::string name = Stream<T>::name;
    uint32_t n = 0;
    ASSERT_EQ(Stream<T>::f2s_array(example_path(name).c_str(), nullptr, &n), 0);
    ASSERT_GE(n, 2u);
    ASSERT_LE(n, 4u);
    T a[4];
    std::memset(static_cast<void *>(a), 0, sizeof a);
    ASSERT_EQ(Stream<T>::f2s_array(example_path(name).c_str(), a, &n), 0);
    Text text(Stream<T>::s2j_array(a, n, 1));
    EXPECT_EQ(read_file(example_path(name)), text.str() + "\n");
    // Saved again and reloaded, the streams are the same.
    std::string path = temp_dir() + "/" + name + ".json";
    ASSERT_EQ(Stream<T>::s2f_array(path.c_str(), a, n), 0);
    T b[4];
    std::memset(static_cast<void *>(b), 0, sizeof b);
    uint32_t m = 4;
    ASSERT_EQ(Stream<T>::f2s_array(path.c_str(), b, &m), 0);
    EXPECT_EQ(m, n);
    EXPECT_EQ(std::memcmp(a, b, sizeof(T) * n), 0);
}

TEST(RtspStreamingParameter, EnableOfMinusOneIsStoredAndEmittedAsMinusOne) {
    RtspStreamingParameter r = pattern<RtspStreamingParameter>();
    uint32_t n = 1;
    ASSERT_EQ(j2s_array_RtspStreamingParameter("[{\"Channel\": 4294967295, \"Enable\": -1}]", &r, &n), 0);
    EXPECT_EQ(r.Enable, -1);
    EXPECT_EQ(r.Channel, 4294967295u);
    Text text(s2j_array_RtspStreamingParameter(&r, 1, 0));
    EXPECT_NE(text.str().find("\"Channel\":4294967295,"), std::string::npos) << text.str();
    EXPECT_NE(text.str().find("\"Enable\":-1,"), std::string::npos) << text.str();
}

TEST(UdpStreamingParameter, FlagsAreSignedAndPortAndLimitsUnsigned) {
    UdpStreamingParameter r = {};
    r.Enable = -1;
    r.RtpPacket = -1;
    r.BandwidthControlEnable = -1;
    r.DestinationPort = 0xFFFFFFFFu;
    r.BandwidthControlLimit = 0xFFFFFFFFu;
    r.BandwidthControlSmoothSize = 0xFFFFFFFFu;
    Tree t(struct_to_json_UdpStreamingParameter(&r));
    EXPECT_EQ(int_member(t, "Enable"), -1);
    EXPECT_EQ(int_member(t, "RtpPacket"), -1);
    EXPECT_EQ(int_member(t, "BandwidthControlEnable"), -1);
    EXPECT_EQ(int_member(t, "DestinationPort"), 4294967295LL);
    EXPECT_EQ(int_member(t, "BandwidthControlLimit"), 4294967295LL);
    EXPECT_EQ(int_member(t, "BandwidthControlSmoothSize"), 4294967295LL);
}

TEST(UdpStreamingParameter, TextDestinationPortFailsAfterDestinationIpIsWritten) {
    UdpStreamingParameter a[1] = {pattern<UdpStreamingParameter>()};
    uint32_t n = 1;
    StderrCapture err;
    EXPECT_EQ(j2s_array_UdpStreamingParameter(
                  "[{\"Channel\": 1, \"DestinationIP\": \"239.192.10.1\", \"DestinationPort\": \"5004\", "
                  "\"BandwidthControlEnable\": 1}]",
                  a, &n),
              -1);
    EXPECT_EQ(err.text(), diag(text_list_file(), line_of("UdpStreamingParameter", &s2j::Families::Lines::c2s_array),
                               "c2s_array_UdpStreamingParameter", "json_to_struct_UdpStreamingParameter failed!\n"));
    EXPECT_EQ(n, 1u);
    EXPECT_EQ(a[0].Channel, 1u);
    EXPECT_STREQ(a[0].DestinationIP, "239.192.10.1");
    EXPECT_EQ(a[0].DestinationPort, 0xA5A5A5A5u);
    EXPECT_EQ(a[0].BandwidthControlEnable, static_cast<int32_t>(0xA5A5A5A5u));
}

TEST(UdpStreamingParameter, DestinationIpOf48CharactersIsStoredAsItsFirst47) {
    expect_read_as_prefix(json_to_struct_UdpStreamingParameter, &UdpStreamingParameter::DestinationIP, "DestinationIP",
                          48, '1');
}

// A string field of N bytes, through the registry: `len` characters c are
// read as the first N - 1 (by the text reader j2s, or by the reader of a
// tree), and N characters `whole` without a NUL are emitted whole.
TEST(StreamingStrings, StringOfNBytesIsStoredAsItsFirstNMinusOneAndUnterminatedEmittedWhole) {
    const struct {
        const char *type, *key;
        bool text_reader;
        size_t len;
        char c, whole;
    } cases[] = {
        {"UdpCapabilitySet", "SupportedStreamTypeList", true, 300, 'u', 'U'},
        {"SrtStreamingCapabilitySet", "SupportedModeList", true, 256, 'm', 'M'},
        {"RtspStreamingParameter", "StreamPath", false, 256, 'p', 'P'},
        {"RtmpStreamingParameter", "StreamPath", false, 300, 'r', 'R'},
        {"HttpStreamingParameter", "SessionName", false, 256, 's', 'S'},
        {"SrtStreamingParameter", "StreamKeyName", false, 256, 'k', 'K'},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(std::string(c.type) + "." + c.key);
        const s2j::TypeInfo *t = s2j::find_type(c.type);
        ASSERT_NE(t, nullptr);
        const s2j::Field *f = nullptr;
        for (uint32_t i = 0; i < t->desc->field_count; ++i)
            if (std::strcmp(t->desc->fields[i].key, c.key) == 0) f = &t->desc->fields[i];
        ASSERT_NE(f, nullptr);
        ASSERT_EQ(f->kind, s2j::Kind::Str);
        std::vector<char> r(t->desc->size, static_cast<char>(0xA5));
        const std::string doc = std::string("{\"") + c.key + "\": \"" + std::string(c.len, c.c) + "\"}";
        if (c.text_reader) {
            ASSERT_EQ(t->fam.j2s(doc.c_str(), r.data()), 0);
        } else {
            Tree tree(cJSON_Parse(doc.c_str()));
            ASSERT_EQ(t->hooks->read(r.data(), tree.p), 1);
        }
        EXPECT_EQ(std::string(r.data() + f->offset), std::string(f->size - 1, c.c));
        std::vector<char> w(t->desc->size, 0);
        std::memset(w.data() + f->offset, c.whole, f->size);
        Tree emitted(t->hooks->emit(w.data()));
        EXPECT_EQ(string_member(emitted.p, c.key), std::string(f->size, c.whole));
    }
}

TEST(HttpStreamingParameter, HasNoEnableNorStreamTypeAndIgnoresThemOnInput) {
    HttpStreamingParameter r = pattern<HttpStreamingParameter>();
    const HttpStreamingParameter before = r;
    Tree t(cJSON_Parse("{\"Enable\": \"on\", \"StreamType\": \"x\"}"));
    EXPECT_EQ(json_to_struct_HttpStreamingParameter(&r, t.p), 1);
    EXPECT_TRUE(same_bytes(r, before));
    HttpStreamingParameter z = {};
    Tree e(struct_to_json_HttpStreamingParameter(&z));
    EXPECT_EQ(member(e, "Enable"), nullptr);
    EXPECT_EQ(member(e, "StreamType"), nullptr);
    // The three enables sit between the keys and StreamIndex.
    const char *order[] = {"Channel", "Index", "FLVEnable", "TSEnable", "HLSEnable", "StreamIndex"};
    const cJSON *m = e.p->child;
    for (const char *key : order) {
        ASSERT_NE(m, nullptr);
        EXPECT_STREQ(m->string, key);
        m = m->next;
    }
}

TEST(SrtStreamingParameter, TargetUrlOf2048CharactersOrMoreIsStoredAsItsFirst2047) {
    expect_read_as_prefix(json_to_struct_SrtStreamingParameter, &SrtStreamingParameter::TargetURL,
                          "TargetURL", {2048u, 3000u}, 'u');
    expect_emitted_whole(struct_to_json_SrtStreamingParameter, &SrtStreamingParameter::TargetURL, "TargetURL", 'U');
}

TEST(SrtStreamingParameter, PassphraseOf64CharactersIsStoredAs63) {
    expect_read_as_prefix(json_to_struct_SrtStreamingParameter, &SrtStreamingParameter::Passphrase, "Passphrase", 64,
                          'w');
}

TEST(SrtStreamingParameter, PortIsUnsignedLikeModeAndAesKeySize) {
    SrtStreamingParameter r = pattern<SrtStreamingParameter>();
    Tree t(cJSON_Parse("{\"Port\": -1, \"Mode\": -2, \"AESKeySize\": 4294967296}"));
    ASSERT_EQ(json_to_struct_SrtStreamingParameter(&r, t.p), 1);
    EXPECT_EQ(r.Port, 4294967295u);
    EXPECT_EQ(r.Mode, 4294967294u);
    EXPECT_EQ(r.AESKeySize, 0u);
    Tree e(struct_to_json_SrtStreamingParameter(&r));
    EXPECT_EQ(int_member(e, "Port"), 4294967295LL);
    EXPECT_EQ(int_member(e, "Mode"), 4294967294LL);
}

// ======================================================================
// Streaming and web servers
// ======================================================================

// A server record read by j2s from a Port of 70000 over pattern<T>(), and
// its compact text.
template <class T>
std::pair<T, std::string> port_of_70000(int (*j2s)(const char *, T *), char *(*s2j)(const T *, int)) {
    T r = pattern<T>();
    EXPECT_EQ(j2s("{\"Port\": 70000}", &r), 0);
    Text text(s2j(&r, 0));
    return {r, text.str()};
}

TEST(RtspServerParameter, PortOf70000IsReadAs4464AndEmittedBackAs4464) {
    const auto [r, text] = port_of_70000(j2s_RtspServerParameter, s2j_RtspServerParameter);
    EXPECT_EQ(r.Port, 4464);
    EXPECT_EQ(r.RtspOverHttpPort, 0xA5A5);
    EXPECT_NE(text.find("\"Port\":4464,"), std::string::npos) << text;
}

TEST(HttpStreamingServerParameter, PortOf70000IsKept) {
    const auto [r, text] = port_of_70000(j2s_HttpStreamingServerParameter, s2j_HttpStreamingServerParameter);
    EXPECT_EQ(r.Port, 70000u);
    EXPECT_NE(text.find("\"Port\":70000}"), std::string::npos) << text;
}

TEST(WebServerParameter, PortOf70000IsKept) {
    const auto [r, text] = port_of_70000(j2s_WebServerParameter, s2j_WebServerParameter);
    EXPECT_EQ(r.Port, 70000u);
    EXPECT_EQ(text, "{\"Port\":70000}");
}

TEST(RtspServerParameter, BothPortsKeepTheLow16BitsWithoutRangeCheck) {
    for (const Low16Case &c : {Low16Case{"554", 554}, {"65535", 65535}, {"65536", 0}, {"65537", 1}, {"-1", 65535},
                               {"4294967850", 554}}) {
        RtspServerParameter r = pattern<RtspServerParameter>();
        std::string doc = std::string("{\"Port\": ") + c.literal + ", \"RtspOverHttpPort\": " + c.literal + "}";
        StderrCapture err;
        ASSERT_EQ(j2s_RtspServerParameter(doc.c_str(), &r), 0) << c.literal;
        EXPECT_EQ(err.text(), "");
        EXPECT_EQ(r.Port, c.stored) << c.literal;
        EXPECT_EQ(r.RtspOverHttpPort, c.stored) << c.literal;
        EXPECT_EQ(r.Enable, static_cast<int32_t>(0xA5A5A5A5u));
        EXPECT_EQ(r.AuthenticationEnable, static_cast<int32_t>(0xA5A5A5A5u));
    }
}

TEST(RtspServerParameter, PortsAreEmittedUnsignedUpTo65535) {
    RtspServerParameter r = {};
    r.Port = 65535;
    r.RtspOverHttpPort = 32768;
    Tree t(struct_to_json_RtspServerParameter(&r));
    EXPECT_EQ(int_member(t, "Port"), 65535);
    EXPECT_EQ(int_member(t, "RtspOverHttpPort"), 32768);
    const cJSON *m = t.p->child;
    const char *order[] = {"Enable", "Port", "RtspOverHttpPort", "AuthenticationEnable"};
    for (const char *key : order) {
        ASSERT_NE(m, nullptr);
        EXPECT_STREQ(m->string, key);
        m = m->next;
    }
}

TEST(RtspServerParameter, PortThatIsNotAnIntegerFailsAfterEnableIsWritten) {
    for (const char *value : {"\"554\"", "554.5", "true", "null"}) {
        RtspServerParameter r = pattern<RtspServerParameter>();
        std::string doc = std::string("{\"Enable\": 1, \"Port\": ") + value + ", \"AuthenticationEnable\": 1}";
        StderrCapture err;
        EXPECT_EQ(j2s_RtspServerParameter(doc.c_str(), &r), -1) << value;
        EXPECT_EQ(err.text(), diag(text_list_file(), line_of("RtspServerParameter", &s2j::Families::Lines::c2s),
                                   "c2s_RtspServerParameter", "json_to_struct_RtspServerParameter failed!\n"));
        EXPECT_EQ(r.Enable, 1);
        EXPECT_EQ(r.Port, 0xA5A5);
        EXPECT_EQ(r.AuthenticationEnable, static_cast<int32_t>(0xA5A5A5A5u));
    }
}

TEST(RtspServerParameter, AuthNamesAndPasswordOf16CharactersAreStoredAs15AndRealmOf64As63) {
    RtspServerParameter r = pattern<RtspServerParameter>();
    std::string doc = "{\"AuthUsername\": \"" + std::string(16, 'n') + "\", \"AuthPassword\": \"" +
                      std::string(40, 'p') + "\", \"AuthRealmName\": \"" + std::string(64, 'r') + "\"}";
    ASSERT_EQ(j2s_RtspServerParameter(doc.c_str(), &r), 0);
    EXPECT_EQ(std::string(r.AuthUsername), std::string(15, 'n'));
    EXPECT_EQ(std::string(r.AuthPassword), std::string(15, 'p'));
    EXPECT_EQ(std::string(r.AuthRealmName), std::string(63, 'r'));
    doc = "{\"AuthRealmName\": \"" + std::string(100, 'q') + "\"}";
    ASSERT_EQ(j2s_RtspServerParameter(doc.c_str(), &r), 0);
    EXPECT_EQ(std::string(r.AuthRealmName), std::string(63, 'q'));
}

TEST(OnvifServerParameter, PortHoldingAllOnesIsEmittedAsMinusOne) {
    OnvifServerParameter r = {};
    const uint32_t bits = 4294967295u;
    std::memcpy(&r.Port, &bits, sizeof bits);
    Tree t(struct_to_json_OnvifServerParameter(&r));
    EXPECT_EQ(int_member(t, "Port"), -1);
    Text text(s2j_OnvifServerParameter(&r, 0));
    EXPECT_NE(text.str().find("\"Port\":-1,"), std::string::npos) << text.str();
}

TEST(OnvifServerParameter, PortOf4294967295IsReadAsMinusOne) {
    OnvifServerParameter r = pattern<OnvifServerParameter>();
    ASSERT_EQ(j2s_OnvifServerParameter("{\"Port\": 4294967295}", &r), 0);
    EXPECT_EQ(r.Port, -1);
}

TEST(ServerPorts, SameKeyIsSignedOnlyForOnvifAndSixteenBitOnlyForRtsp) {
    const char *doc = "{\"Port\": -1}";
    RtspServerParameter rtsp = {};
    HttpStreamingServerParameter http = {};
    OnvifServerParameter onvif = {};
    WebServerParameter web = {};
    ASSERT_EQ(j2s_RtspServerParameter(doc, &rtsp), 0);
    ASSERT_EQ(j2s_HttpStreamingServerParameter(doc, &http), 0);
    ASSERT_EQ(j2s_OnvifServerParameter(doc, &onvif), 0);
    ASSERT_EQ(j2s_WebServerParameter(doc, &web), 0);
    Tree a(struct_to_json_RtspServerParameter(&rtsp)), b(struct_to_json_HttpStreamingServerParameter(&http)),
        c(struct_to_json_OnvifServerParameter(&onvif)), d(struct_to_json_WebServerParameter(&web));
    EXPECT_EQ(int_member(a, "Port"), 65535);
    EXPECT_EQ(int_member(b, "Port"), 4294967295LL);
    EXPECT_EQ(int_member(c, "Port"), -1);
    EXPECT_EQ(int_member(d, "Port"), 4294967295LL);
}

TEST(OnvifServerParameter, UserListOf2048CharactersOrMoreIsStoredAsItsFirst2047) {
    for (size_t len : {2048u, 5000u}) {
        OnvifServerParameter r = pattern<OnvifServerParameter>();
        std::string doc = json_string_doc("UserList", std::string(len, 'l'));
        ASSERT_EQ(j2s_OnvifServerParameter(doc.c_str(), &r), 0);
        EXPECT_EQ(std::string(r.UserList), std::string(2047, 'l')) << len;
        EXPECT_EQ(r.Enable, static_cast<int32_t>(0xA5A5A5A5u));
    }
}

TEST(OnvifServerParameter, ScopesOf64CharactersAreStoredAs63) {
    OnvifServerParameter r = pattern<OnvifServerParameter>();
    std::string s64(64, 'c');
    std::string doc = "{\"ScopeName\": \"" + s64 + "\", \"ScopeLocationCountry\": \"" + s64 +
                      "\", \"ScopeLocationCity\": \"" + s64 + "\"}";
    ASSERT_EQ(j2s_OnvifServerParameter(doc.c_str(), &r), 0);
    EXPECT_EQ(std::string(r.ScopeName), std::string(63, 'c'));
    EXPECT_EQ(std::string(r.ScopeLocationCountry), std::string(63, 'c'));
    EXPECT_EQ(std::string(r.ScopeLocationCity), std::string(63, 'c'));
}

TEST(WebServerParameter, DocumentWithoutPortIsAcceptedAndChangesNothing) {
    WebServerParameter r = {8080};
    StderrCapture err;
    EXPECT_EQ(j2s_WebServerParameter("{\"Enable\": 1}", &r), 0);
    EXPECT_EQ(err.text(), "");
    EXPECT_EQ(r.Port, 8080u);
}

TEST(WebServerParameter, TextPortFails) {
    WebServerParameter r = {8080};
    StderrCapture err;
    EXPECT_EQ(j2s_WebServerParameter("{\"Port\": \"80\"}", &r), -1);
    EXPECT_EQ(err.text(), diag(text_list_file(), line_of("WebServerParameter", &s2j::Families::Lines::c2s),
                               "c2s_WebServerParameter", "json_to_struct_WebServerParameter failed!\n"));
    EXPECT_EQ(r.Port, 8080u);
}

TEST(ServerFiles, EachServerRecordSurvivesASaveAndLoad) {
    std::string dir = temp_dir();
    RtspServerParameter rtsp = {1, 554, 8554, 1, 0, "viewer", "secret", "Encoder", 60};
    ASSERT_EQ(s2f_RtspServerParameter((dir + "/rtsp.json").c_str(), &rtsp), 0);
    RtspServerParameter rtsp2 = pattern<RtspServerParameter>();
    ASSERT_EQ(f2s_RtspServerParameter((dir + "/rtsp.json").c_str(), &rtsp2), 0);
    EXPECT_EQ(rtsp2.Port, 554);
    EXPECT_EQ(rtsp2.RtspOverHttpPort, 8554);
    EXPECT_STREQ(rtsp2.AuthRealmName, "Encoder");
    OnvifServerParameter onvif = {};
    onvif.Enable = 1;
    onvif.Port = -8000;
    std::snprintf(onvif.ScopeLocationCity, sizeof onvif.ScopeLocationCity, "%s", "Hamburg");
    ASSERT_EQ(s2f_OnvifServerParameter((dir + "/onvif.json").c_str(), &onvif), 0);
    OnvifServerParameter onvif2 = {};
    ASSERT_EQ(f2s_OnvifServerParameter((dir + "/onvif.json").c_str(), &onvif2), 0);
    EXPECT_TRUE(same_bytes(onvif, onvif2));
    HttpStreamingServerParameter http = {1, 8080}, http2 = {};
    ASSERT_EQ(s2f_HttpStreamingServerParameter((dir + "/http.json").c_str(), &http), 0);
    ASSERT_EQ(f2s_HttpStreamingServerParameter((dir + "/http.json").c_str(), &http2), 0);
    EXPECT_TRUE(same_bytes(http, http2));
    WebServerParameter web = {443}, web2 = {};
    ASSERT_EQ(s2f_WebServerParameter((dir + "/web.json").c_str(), &web), 0);
    ASSERT_EQ(f2s_WebServerParameter((dir + "/web.json").c_str(), &web2), 0);
    EXPECT_EQ(web2.Port, 443u);
}

// ======================================================================
// Streaming inputs
// ======================================================================

TEST(StreamingInputParameter, UrlOf256CharactersIsStoredAsItsFirst255) {
    StreamingInputParameter r = pattern<StreamingInputParameter>();
    uint32_t n = 1;
    std::string doc = "[{\"Index\": 0, \"URL\": \"" + std::string(256, 'x') + "\"}]";
    ASSERT_EQ(j2s_array_StreamingInputParameter(doc.c_str(), &r, &n), 0);
    EXPECT_EQ(std::string(r.URL), std::string(255, 'x'));
    doc = "[{\"URL\": \"" + std::string(1000, 'y') + "\"}]";
    ASSERT_EQ(j2s_array_StreamingInputParameter(doc.c_str(), &r, &n), 0);
    EXPECT_EQ(std::string(r.URL), std::string(255, 'y'));
}

TEST(StreamingInputParameter, AuthUsernameAndPasswordOf16CharactersAreStoredAs15) {
    StreamingInputParameter r = pattern<StreamingInputParameter>();
    uint32_t n = 1;
    std::string doc = "[{\"AuthUsername\": \"" + std::string(16, 'a') + "\", \"AuthPassword\": \"" +
                      std::string(20, 'b') + "\"}]";
    ASSERT_EQ(j2s_array_StreamingInputParameter(doc.c_str(), &r, &n), 0);
    EXPECT_EQ(std::string(r.AuthUsername), std::string(15, 'a'));
    EXPECT_EQ(std::string(r.AuthPassword), std::string(15, 'b'));
    EXPECT_TRUE(untouched(r.Alias));
}

TEST(StreamingInputParameter, UpdateElementWithoutIndexOrWithTextIndexIsRefusedByTheKeywordReader) {
    StreamingInputParameterKeyword kw = {77};
    Tree no_index(cJSON_Parse("{\"URL\": \"rtsp://192.0.2.1/a\"}"));
    Tree text_index(cJSON_Parse("{\"Index\": \"1\", \"URL\": \"rtsp://192.0.2.1/a\"}"));
    EXPECT_EQ(json_to_struct_StreamingInputParameterKeyword(&kw, no_index.p), 0);
    EXPECT_EQ(json_to_struct_StreamingInputParameterKeyword(&kw, text_index.p), 0);
    uint32_t index = 77;
    EXPECT_EQ(json_to_struct_GetStreamingInputParameterKeyword(&index, text_index.p), 0);
    EXPECT_EQ(index, 77u);

    StreamingInputParameter a[2] = {{0, "rtsp://192.0.2.101/a", "A", "", ""}, {1, "rtsp://192.0.2.102/b", "B", "", ""}};
    for (const char *doc : {"[{\"Index\": 1, \"Alias\": \"Lobby\"}, {\"URL\": \"rtsp://x\"}]",
                            "[{\"Index\": 1, \"Alias\": \"Lobby\"}, {\"Index\": \"0\", \"URL\": \"rtsp://x\"}]"}) {
        std::snprintf(a[1].Alias, sizeof a[1].Alias, "%s", "B");
        uint32_t n = 2;
        StderrCapture err;
        EXPECT_EQ(j2s_array_update_StreamingInputParameter(doc, a, &n), -2) << doc;
        EXPECT_EQ(err.text(),
                  diag(text_list_file(), line_of("StreamingInputParameter", &s2j::Families::Lines::c2s_array_update),
                       "c2s_array_update_StreamingInputParameter",
                       "The keyword is not contained in an object of the json array!\n"));
        EXPECT_EQ(n, 2u);
        EXPECT_STREQ(a[1].Alias, "Lobby");  // the element before the refused one stays applied
        EXPECT_STREQ(a[0].URL, "rtsp://192.0.2.101/a");
    }
}

TEST(StreamingInputParameter, UpdateAppliesAnElementToTheInputWithItsIndex) {
    StreamingInputParameter a[3] = {{0, "rtsp://192.0.2.101/a", "A", "", ""},
                                    {1, "rtsp://192.0.2.102/b", "B", "", ""},
                                    {2, "rtsp://192.0.2.103/c", "C", "", ""}};
    uint32_t n = 3;
    Tree doc(
        cJSON_Parse("[{\"Index\": 2, \"URL\": \"srt://198.51.100.17:9002\"}, {\"Index\": 9, \"Alias\": \"none\"}]"));
    ASSERT_EQ(c2s_array_update_StreamingInputParameter(doc.p, a, &n), 0);
    EXPECT_EQ(n, 1u);
    EXPECT_STREQ(a[2].URL, "srt://198.51.100.17:9002");
    EXPECT_STREQ(a[2].Alias, "C");
    EXPECT_STREQ(a[0].Alias, "A");
    EXPECT_STREQ(a[1].Alias, "B");
}

TEST(StreamingInputStatus, SingleKeyReaderReadsIndex) {
    expect_integer_key_reader(json_to_struct_GetStreamingInputStatusKeyword,
                              "{\"IsConnected\": 1, \"Index\": 4294967295}", 4294967295u,
                              {"{\"Index\": \"3\"}", "{\"IsConnected\": 1}"});
}

TEST(StreamingInputStatus, FlagsAreSignedAndBandwidthsUnsigned) {
    StreamingInputStatus s = {};
    s.IsEnabled = -1;
    s.IsConnected = -1;
    s.RealtimeBandwidth = 0xFFFFFFFFu;
    s.AverageBandwidth = 0xFFFFFFFFu;
    Tree t(struct_to_json_StreamingInputStatus(&s));
    EXPECT_EQ(int_member(t, "IsEnabled"), -1);
    EXPECT_EQ(int_member(t, "IsConnected"), -1);
    EXPECT_EQ(int_member(t, "RealtimeBandwidth"), 4294967295LL);
    EXPECT_EQ(int_member(t, "AverageBandwidth"), 4294967295LL);
}

TEST(StreamingInputStatusChange, ReadsAndEmitsItsFieldsInOrder) {
    StreamingInputStatusChange c = pattern<StreamingInputStatusChange>();
    ASSERT_EQ(j2s_StreamingInputStatusChange(
                  "{\"Index\": 3, \"URL\": \"rtsp://192.0.2.9/live\", \"Alias\": \"Gate\", \"IsEnabled\": 1, "
                  "\"IsConnected\": -1}",
                  &c),
              0);
    EXPECT_EQ(c.Index, 3u);
    EXPECT_STREQ(c.URL, "rtsp://192.0.2.9/live");
    EXPECT_STREQ(c.Alias, "Gate");
    EXPECT_EQ(c.IsConnected, -1);
    Text text(s2j_StreamingInputStatusChange(&c, 0));
    EXPECT_EQ(text.str(),
              "{\"Index\":3,\"URL\":\"rtsp://192.0.2.9/live\",\"Alias\":\"Gate\",\"IsEnabled\":1,\"IsConnected\":-1}");
}

// ---- StreamingInputUseCount -----------------------------------------------

std::string int_list(size_t n, uint32_t first) {
    std::string s = "[";
    for (size_t i = 0; i < n; ++i) s += (i ? "," : "") + std::to_string(first + i);
    return s + "]";
}

// What the reader of a tree, or the strict reader (json_to_struct_
// StreamingInputUseCountKeyword), returns for the tree of `doc`, into *r.
int read_use_count(StreamingInputUseCount *r, const std::string &doc) {
    return read_of_text(json_to_struct_StreamingInputUseCount, doc.c_str(), r);
}
int read_use_count_strictly(StreamingInputUseCount *r, const std::string &doc) {
    return read_of_text(json_to_struct_StreamingInputUseCountKeyword, doc.c_str(), r);
}

// The bytes of pattern<T>(): an entry or count that no reader wrote.
constexpr uint32_t kUntouched = 0xA5A5A5A5u;

// Entries {position, value} of a list.
void expect_entries(const uint32_t (&list)[256], std::initializer_list<std::pair<int, uint32_t>> want) {
    for (const auto &[i, value] : want) EXPECT_EQ(list[i], value) << "entry " << i;
}

TEST(StreamingInputUseCount, EmittedRecordReadsBackUnchangedWith256ItemsInEachList) {
    StreamingInputUseCount a = {};
    a.OperationType = 2;
    a.StreamingNumber = 3;
    for (uint32_t i = 0; i < 256; ++i) {
        a.IndexList[i] = 0xFFFFFFFFu - i;
        a.UseCountList[i] = i * 1000003u;
    }
    Text text(s2j_StreamingInputUseCount(&a, 1));
    Tree t(cJSON_Parse(text.p));
    EXPECT_EQ(cJSON_GetArraySize(cJSON_GetObjectItem(t.p, "IndexList")), 256);
    EXPECT_EQ(cJSON_GetArraySize(cJSON_GetObjectItem(t.p, "UseCountList")), 256);
    StreamingInputUseCount b = pattern<StreamingInputUseCount>();
    ASSERT_EQ(j2s_StreamingInputUseCount(text.p, &b), 0);
    EXPECT_TRUE(same_bytes(a, b));
    StreamingInputUseCount c = pattern<StreamingInputUseCount>();
    ASSERT_EQ(json_to_struct_StreamingInputUseCountKeyword(&c, t.p), 1);
    EXPECT_TRUE(same_bytes(a, c));
}

TEST(StreamingInputUseCount, EmitterWritesBothCountsUnsignedAndAll256EntriesWhateverStreamingNumberSays) {
    StreamingInputUseCount a = {};
    a.OperationType = 0xFFFFFFFFu;
    a.StreamingNumber = 2;
    a.IndexList[0] = 5;
    a.IndexList[1] = 6;
    a.IndexList[255] = 0x80000000u;  // beyond StreamingNumber: emitted as it stands
    a.UseCountList[200] = 9;
    Tree t(struct_to_json_StreamingInputUseCount(&a));
    const char *order[] = {"OperationType", "StreamingNumber", "IndexList", "UseCountList"};
    const cJSON *m = t.p->child;
    for (const char *key : order) {
        ASSERT_NE(m, nullptr);
        EXPECT_STREQ(m->string, key);
        m = m->next;
    }
    EXPECT_EQ(m, nullptr);
    EXPECT_EQ(int_member(t, "OperationType"), 4294967295LL);
    EXPECT_EQ(int_member(t, "StreamingNumber"), 2);
    const cJSON *index = member(t, "IndexList");
    const cJSON *use = member(t, "UseCountList");
    ASSERT_TRUE(cJSON_IsArray(index));
    ASSERT_TRUE(cJSON_IsArray(use));
    ASSERT_EQ(cJSON_GetArraySize(index), 256);
    ASSERT_EQ(cJSON_GetArraySize(use), 256);
    for (int i = 0; i < 256; ++i) {
        ASSERT_TRUE(cJSON_IsInt(cJSON_GetArrayItem(index, i))) << i;
        ASSERT_TRUE(cJSON_IsInt(cJSON_GetArrayItem(use, i))) << i;
    }
    EXPECT_EQ(cJSON_GetArrayItem(index, 1)->valuedouble, 6.0);
    EXPECT_EQ(cJSON_GetArrayItem(index, 255)->valuedouble, 2147483648.0);
    EXPECT_EQ(cJSON_GetArrayItem(use, 200)->valuedouble, 9.0);
    EXPECT_EQ(cJSON_GetArrayItem(use, 0)->valuedouble, 0.0);
    Text compact(s2j_StreamingInputUseCount(&a, 0));
    EXPECT_EQ(compact.str().rfind("{\"OperationType\":4294967295,\"StreamingNumber\":2,\"IndexList\":[5,6,0,", 0), 0u);
    EXPECT_NE(compact.str().find(",2147483648],\"UseCountList\":[0,"), std::string::npos);
}

TEST(StreamingInputUseCount, EmptyIndexListFailsAfterOperationTypeAndStreamingNumberAreStored) {
    StreamingInputUseCount r = pattern<StreamingInputUseCount>();
    StderrCapture err;
    EXPECT_EQ(j2s_StreamingInputUseCount(
                  "{\"OperationType\": 1, \"StreamingNumber\": 2, \"IndexList\": [], \"UseCountList\": [4]}", &r),
              -1);
    EXPECT_EQ(err.text(), diag(text_list_file(), line_of("StreamingInputUseCount", &s2j::Families::Lines::c2s),
                               "c2s_StreamingInputUseCount", "json_to_struct_StreamingInputUseCount failed!\n"));
    EXPECT_EQ(r.OperationType, 1u);
    EXPECT_EQ(r.StreamingNumber, 2u);
    EXPECT_EQ(r.IndexList[0], 0xA5A5A5A5u);
    EXPECT_EQ(r.UseCountList[0], 0xA5A5A5A5u);
}

TEST(StreamingInputUseCount, IndexListOf300IntegersStoresTheFirst256AndSucceeds) {
    StreamingInputUseCount r = pattern<StreamingInputUseCount>();
    std::string doc = "{\"IndexList\": " + int_list(300, 1) + "}";
    ASSERT_EQ(read_use_count(&r, doc), 1);
    for (uint32_t i = 0; i < 256; ++i) ASSERT_EQ(r.IndexList[i], i + 1) << i;
    expect_entries(r.UseCountList, {{0, kUntouched}, {255, kUntouched}});  // the next list is untouched
}

TEST(StreamingInputUseCount, NonIntegerItemIsSkippedAndItsEntryLeftAsItWas) {
    StreamingInputUseCount r = pattern<StreamingInputUseCount>();
    ASSERT_EQ(read_use_count(&r, "{\"IndexList\": [1, \"x\", 3]}"), 1);
    // A shorter list leaves the entries behind it.
    expect_entries(r.IndexList, {{0, 1}, {1, kUntouched}, {2, 3}, {3, kUntouched}, {255, kUntouched}});
}

TEST(StreamingInputUseCount, EveryKindOfNonIntegerItemIsSkippedByPosition) {
    StreamingInputUseCount r = pattern<StreamingInputUseCount>();
    ASSERT_EQ(j2s_StreamingInputUseCount("{\"UseCountList\": [1.5, true, null, {}, [], \"7\", 8, 1e2]}", &r), 0);
    for (int i = 0; i < 6; ++i) EXPECT_EQ(r.UseCountList[i], 0xA5A5A5A5u) << i;
    EXPECT_EQ(r.UseCountList[6], 8u);
    EXPECT_EQ(r.UseCountList[7], 0xA5A5A5A5u);
}

TEST(StreamingInputUseCount, ListOfOnlyNonIntegersFails) {
    StreamingInputUseCount r = pattern<StreamingInputUseCount>();
    EXPECT_EQ(read_use_count(&r, "{\"IndexList\": [\"a\"]}"), 0);
    EXPECT_EQ(r.IndexList[0], 0xA5A5A5A5u);
    EXPECT_EQ(read_use_count(&r, "{\"IndexList\": [1], \"UseCountList\": [\"a\", 2.5, false]}"), 0);
    EXPECT_EQ(r.IndexList[0], 1u);
    EXPECT_EQ(r.UseCountList[0], 0xA5A5A5A5u);
}

TEST(StreamingInputUseCount, NumberOrTextInPlaceOfAListFailsAsAnEmptyList) {
    for (const char *doc : {"{\"IndexList\": 5}", "{\"IndexList\": \"1,2,3\"}", "{\"IndexList\": null}",
                            "{\"IndexList\": [1], \"UseCountList\": 5}"}) {
        StreamingInputUseCount r = pattern<StreamingInputUseCount>();
        EXPECT_EQ(read_use_count(&r, doc), 0) << doc;
    }
}

TEST(StreamingInputUseCount, EmptyUseCountListFails) {
    StreamingInputUseCount r = pattern<StreamingInputUseCount>();
    EXPECT_EQ(read_use_count(&r, "{\"IndexList\": [4], \"UseCountList\": []}"), 0);
    EXPECT_EQ(r.IndexList[0], 4u);
}

TEST(StreamingInputUseCount, ObjectInPlaceOfAListHasItsMembersReadAsEntries) {
    StreamingInputUseCount r = pattern<StreamingInputUseCount>();
    ASSERT_EQ(read_use_count(&r, "{\"IndexList\": {\"a\": 7, \"b\": \"x\", \"c\": 9}}"), 1);
    expect_entries(r.IndexList, {{0, 7}, {1, kUntouched}, {2, 9}});
    EXPECT_EQ(read_use_count(&r, "{\"IndexList\": {}}"), 0);
}

TEST(StreamingInputUseCount, EntriesKeepTheLow32BitsOfEachItem) {
    StreamingInputUseCount r = pattern<StreamingInputUseCount>();
    ASSERT_EQ(j2s_StreamingInputUseCount(
                  "{\"IndexList\": [-1, 4294967296, 4294967295, 6000000000], \"UseCountList\": [-2]}", &r),
              0);
    expect_entries(r.IndexList, {{0, 4294967295u}, {1, 0}, {2, 4294967295u}, {3, 1705032704u}});
    expect_entries(r.UseCountList, {{0, 4294967294u}});
}

TEST(StreamingInputUseCount, StreamingNumberDoesNotBoundTheLists) {
    StreamingInputUseCount r = pattern<StreamingInputUseCount>();
    ASSERT_EQ(j2s_StreamingInputUseCount(
                  "{\"StreamingNumber\": 1, \"IndexList\": [10, 11, 12, 13, 14], \"UseCountList\": [1, 2, 3]}", &r),
              0);
    EXPECT_EQ(r.StreamingNumber, 1u);
    EXPECT_EQ(r.IndexList[4], 14u);
    EXPECT_EQ(r.UseCountList[2], 3u);
}

TEST(StreamingInputUseCount, CountOfTheWrongTypeFailsBeforeTheLists) {
    StreamingInputUseCount r = pattern<StreamingInputUseCount>();
    EXPECT_EQ(read_use_count(&r, "{\"OperationType\": \"1\", \"StreamingNumber\": 2, \"IndexList\": [1]}"), 0);
    EXPECT_EQ(r.StreamingNumber, 0xA5A5A5A5u);
    EXPECT_EQ(r.IndexList[0], 0xA5A5A5A5u);
    EXPECT_EQ(read_use_count(&r, "{\"OperationType\": 1, \"StreamingNumber\": 2.5, \"IndexList\": [1]}"), 0);
    EXPECT_EQ(r.OperationType, 1u);
    EXPECT_EQ(r.IndexList[0], 0xA5A5A5A5u);
}

TEST(StreamingInputUseCount, AbsentKeysAreSkippedByTheReader) {
    StreamingInputUseCount r = pattern<StreamingInputUseCount>();
    const StreamingInputUseCount before = r;
    EXPECT_EQ(read_use_count(&r, "{}"), 1);
    EXPECT_TRUE(same_bytes(r, before));
    EXPECT_EQ(read_use_count(&r, "{\"UseCountList\": [3]}"), 1);
    EXPECT_EQ(r.UseCountList[0], 3u);
    EXPECT_EQ(r.IndexList[0], 0xA5A5A5A5u);
}

TEST(StreamingInputUseCount, DocumentWithoutUseCountListIsAcceptedByTheReaderAndRefusedByTheStrictReader) {
    const char *doc = "{\"OperationType\": 1, \"StreamingNumber\": 2, \"IndexList\": [4, 5]}";
    Tree t(cJSON_Parse(doc));
    StreamingInputUseCount a = pattern<StreamingInputUseCount>();
    EXPECT_EQ(json_to_struct_StreamingInputUseCount(&a, t.p), 1);
    StreamingInputUseCount b = pattern<StreamingInputUseCount>();
    EXPECT_EQ(json_to_struct_StreamingInputUseCountKeyword(&b, t.p), 0);
    // The strict reader wrote the same places before it failed.
    EXPECT_TRUE(same_bytes(a, b));
    // The text families use the lenient reader.
    StreamingInputUseCount c = pattern<StreamingInputUseCount>();
    EXPECT_EQ(j2s_StreamingInputUseCount(doc, &c), 0);
    EXPECT_TRUE(same_bytes(a, c));
}

TEST(StreamingInputUseCount, StrictReaderRequiresEveryKey) {
    const std::string lists = "\"IndexList\": [1], \"UseCountList\": [2]";
    struct Case {
        std::string doc;
        bool op_written, number_written, index_written;
    } cases[] = {
        {"{\"StreamingNumber\": 2, " + lists + "}", false, false, false},
        {"{\"OperationType\": 1, " + lists + "}", true, false, false},
        {"{\"OperationType\": 1, \"StreamingNumber\": 2, \"UseCountList\": [2]}", true, true, false},
        {"{\"OperationType\": 1, \"StreamingNumber\": 2, \"IndexList\": [1]}", true, true, true},
    };
    for (const Case &c : cases) {
        StreamingInputUseCount r = pattern<StreamingInputUseCount>();
        EXPECT_EQ(read_use_count_strictly(&r, c.doc), 0) << c.doc;
        EXPECT_EQ(r.OperationType, c.op_written ? 1u : 0xA5A5A5A5u) << c.doc;
        EXPECT_EQ(r.StreamingNumber, c.number_written ? 2u : 0xA5A5A5A5u) << c.doc;
        EXPECT_EQ(r.IndexList[0], c.index_written ? 1u : 0xA5A5A5A5u) << c.doc;
        EXPECT_EQ(r.UseCountList[0], 0xA5A5A5A5u) << c.doc;
    }
}

TEST(StreamingInputUseCount, StrictReaderRefusesEmptyOrNonIntegerListsAndWrongTypes) {
    for (const char *doc : {
             "{\"OperationType\": 1, \"StreamingNumber\": 2, \"IndexList\": [], \"UseCountList\": [2]}",
             "{\"OperationType\": 1, \"StreamingNumber\": 2, \"IndexList\": [\"a\"], \"UseCountList\": [2]}",
             "{\"OperationType\": 1, \"StreamingNumber\": 2, \"IndexList\": [1], \"UseCountList\": []}",
             "{\"OperationType\": 1, \"StreamingNumber\": 2, \"IndexList\": [1], \"UseCountList\": [\"b\"]}",
             "{\"OperationType\": 1, \"StreamingNumber\": 2, \"IndexList\": 5, \"UseCountList\": [2]}",
             "{\"OperationType\": \"1\", \"StreamingNumber\": 2, \"IndexList\": [1], \"UseCountList\": [2]}",
         }) {
        StreamingInputUseCount r = pattern<StreamingInputUseCount>();
        EXPECT_EQ(read_use_count_strictly(&r, doc), 0) << doc;
    }
}

TEST(StreamingInputUseCount, StrictReaderAcceptsAWholeRecordWithSkippedItems) {
    StreamingInputUseCount r = pattern<StreamingInputUseCount>();
    const char *doc =
        "{\"operationtype\": 7, \"StreamingNumber\": 2, \"IndexList\": [1, \"x\", 3], \"UseCountList\": [null, 4]}";
    ASSERT_EQ(read_use_count_strictly(&r, doc), 1);
    EXPECT_EQ(r.OperationType, 7u);  // keys match without regard to case
    expect_entries(r.IndexList, {{0, 1}, {1, kUntouched}, {2, 3}});
    expect_entries(r.UseCountList, {{0, kUntouched}, {1, 4}});
}

// ======================================================================
// Example files
// ======================================================================

// Loads examples/<T>.json with the type's file or text reader and checks
// that it is exactly what the type's text emitter writes for what was read.
#define EXPECT_SINGLE_EXAMPLE(T, load)                                     \
    do {                                                                   \
        T r;                                                               \
        std::memset(static_cast<void *>(&r), 0, sizeof r);                 \
        ASSERT_EQ(load, 0) << #T;                                          \
        Text text(s2j_##T(&r, 1));                                         \
        EXPECT_EQ(read_file(example_path(#T)), text.str() + "\n") << #T;                   \
    } while (0)

// Loads examples/<type>.json with the type's file reader, through the
// registry, and checks that it is exactly what the type's text emitter
// writes for what was read.
void expect_file_example(const char *type) {
    const s2j::TypeInfo *t = s2j::find_type(type);
    ASSERT_NE(t, nullptr) << type;
    ASSERT_NE(t->fam.f2s, nullptr) << type;
    std::vector<char> r(t->desc->size, 0);
    ASSERT_EQ(t->fam.f2s(example_path(type).c_str(), r.data()), 0) << type;
    Text text(t->fam.s2j(r.data(), 1));
    EXPECT_EQ(read_file(example_path(type)), text.str() + "\n") << type;
}

TEST(StreamingExamples, CapabilitySetsLoadFromTheirExampleFiles) {
    for (const char *type : {"StreamingOutputCapabilitySet", "RtspCapabilitySet", "RtmpCapabilitySet",
                             "UdpCapabilitySet", "HttpStreamingCapabilitySet", "SrtStreamingCapabilitySet",
                             "StreamingInputCapabilitySet"})
        expect_file_example(type);
}

TEST(StreamingExamples, SettingsLoadFromTheirExampleFiles) {
    for (const char *type : {"StreamingOutputParameter", "RtspServerParameter", "HttpStreamingServerParameter",
                             "OnvifServerParameter", "WebServerParameter"})
        expect_file_example(type);
}

TEST(StreamingExamples, NoticesAndUseCountsLoadFromTheirExampleTexts) {
    std::string change = read_file(example_path("StreamingInputStatusChange"));
    EXPECT_SINGLE_EXAMPLE(StreamingInputStatusChange, j2s_StreamingInputStatusChange(change.c_str(), &r));
    std::string use = read_file(example_path("StreamingInputUseCount"));
    EXPECT_SINGLE_EXAMPLE(StreamingInputUseCount, j2s_StreamingInputUseCount_with_len(use.c_str(), use.size(), &r));
    StreamingInputUseCount strict = {};
    Tree t(cJSON_Parse(use.c_str()));
    EXPECT_EQ(json_to_struct_StreamingInputUseCountKeyword(&strict, t.p), 1);
}

TEST(StreamingExamples, InputArraysLoadFromTheirExampleFiles) {
    StreamingInputParameter in[4] = {};
    uint32_t n = 4;
    ASSERT_EQ(f2s_array_StreamingInputParameter(example_path("StreamingInputParameter").c_str(), in, &n), 0);
    EXPECT_GE(n, 2u);
    Text a(s2j_array_StreamingInputParameter(in, n, 1));
    EXPECT_EQ(read_file(example_path("StreamingInputParameter")), a.str() + "\n");

    StreamingInputStatus st[4] = {};
    uint32_t m = 4;
    std::string text = read_file(example_path("StreamingInputStatus"));
    ASSERT_EQ(j2s_array_StreamingInputStatus(text.c_str(), st, &m), 0);
    EXPECT_GE(m, 2u);
    Text b(s2j_array_StreamingInputStatus(st, m, 1));
    EXPECT_EQ(text, b.str() + "\n");
}

}  // namespace
