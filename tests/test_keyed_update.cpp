// Keyed update of record arrays, and the keyword readers.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "app_s2j.h"
#include "registry.h"
#include "support.h"

using namespace testing_support;

namespace {

// CrontabParameter's lines in the instantiation list.
constexpr int kUpdateLine = 12, kJ2sUpdateLine = 14;

struct Tasks {
    CrontabParameter t[3] = {};
    Tasks() {
        for (uint32_t i = 0; i < 3; ++i) {
            t[i].Index = i + 1;
            std::snprintf(t[i].Command, sizeof t[i].Command, "task%u", i + 1);
        }
    }
};

TEST(KeyedUpdate, ElementWithKnownKeyUpdatesItsRecordAndUnknownKeyIsIgnored) {
    Tasks a;
    uint32_t n = 3;
    StderrCapture err;
    EXPECT_EQ(
        j2s_array_update_CrontabParameter("[{\"Index\": 3, \"Enable\": 1}, {\"Index\": 7, \"Enable\": 1}]", a.t, &n),
        0);
    EXPECT_EQ(err.text(), "");
    EXPECT_EQ(n, 1u);
    EXPECT_EQ(a.t[2].Enable, 1);
    EXPECT_STREQ(a.t[2].Command, "task3");  // fields not named stay
    EXPECT_EQ(a.t[0].Enable, 0);
    EXPECT_EQ(a.t[1].Enable, 0);
}

TEST(KeyedUpdate, EmptyJsonArraySucceedsLeavesRecordsAndSetsCountZero) {
    Tasks a, before;
    uint32_t n = 3;
    EXPECT_EQ(j2s_array_update_CrontabParameter("[]", a.t, &n), 0);
    EXPECT_EQ(n, 0u);
    EXPECT_EQ(std::memcmp(a.t, before.t, sizeof a.t), 0);
}

TEST(KeyedUpdate, ElementWithoutItsKeyIsRefusedAfterEarlierElementsWereApplied) {
    Tasks a;
    uint32_t n = 3;
    StderrCapture err;
    EXPECT_EQ(j2s_array_update_CrontabParameter(
                  "[{\"Index\": 1, \"Enable\": 5}, {\"Enable\": 6}, {\"Index\": 2, \"Enable\": 7}]", a.t, &n),
              -2);
    EXPECT_EQ(err.text(), text_diag(kUpdateLine, "c2s_array_update_CrontabParameter",
                            "The keyword is not contained in an object of the json array!\n"));
    EXPECT_EQ(n, 3u);
    EXPECT_EQ(a.t[0].Enable, 5);
    EXPECT_EQ(a.t[1].Enable, 0);
}

TEST(KeyedUpdate, KeyOfTheWrongJsonTypeCountsAsMissing) {
    for (const char *text : {"[{\"Index\": \"1\"}]", "[{\"Index\": 1.0}]", "[{\"Index\": null}]", "[5]"}) {
        Tasks a;
        uint32_t n = 3;
        StderrCapture err;
        EXPECT_EQ(j2s_array_update_CrontabParameter(text, a.t, &n), -2) << text;
        EXPECT_EQ(err.text(), text_diag(kUpdateLine, "c2s_array_update_CrontabParameter",
                                "The keyword is not contained in an object of the json array!\n"));
    }
}

TEST(KeyedUpdate, CapacityZeroUpdatesNothingAndCountStaysZero) {
    Tasks a, before;
    uint32_t n = 0;
    EXPECT_EQ(
        j2s_array_update_CrontabParameter("[{\"Index\": 1, \"Enable\": 1}, {\"Index\": 2, \"Enable\": 1}]", a.t, &n),
        0);
    EXPECT_EQ(n, 0u);
    EXPECT_EQ(std::memcmp(a.t, before.t, sizeof a.t), 0);
}

TEST(KeyedUpdate, OnlyTheLowestIndexOfTwoRecordsWithTheSameKeyIsUpdated) {
    Tasks a;
    a.t[2].Index = 2;
    uint32_t n = 3;
    EXPECT_EQ(j2s_array_update_CrontabParameter("[{\"Index\": 2, \"Enable\": 9}]", a.t, &n), 0);
    EXPECT_EQ(n, 1u);
    EXPECT_EQ(a.t[1].Enable, 9);
    EXPECT_EQ(a.t[2].Enable, 0);
}

TEST(KeyedUpdate, TwoElementsWithTheSameKeyUpdateOneRecordTwiceAndCountTwice) {
    Tasks a;
    uint32_t n = 3;
    EXPECT_EQ(j2s_array_update_CrontabParameter("[{\"Index\": 1, \"Enable\": 4}, {\"Index\": 1, \"Command\": \"x\"}]",
                                                a.t, &n),
              0);
    EXPECT_EQ(n, 2u);
    EXPECT_EQ(a.t[0].Enable, 4);
    EXPECT_STREQ(a.t[0].Command, "x");
}

TEST(KeyedUpdate, SearchStaysWithinTheCapacity) {
    Tasks a;
    uint32_t n = 2;  // record 3 lies beyond
    EXPECT_EQ(j2s_array_update_CrontabParameter("[{\"Index\": 3, \"Enable\": 1}]", a.t, &n), 0);
    EXPECT_EQ(n, 0u);
    EXPECT_EQ(a.t[2].Enable, 0);
}

TEST(KeyedUpdate, ReaderFailureOfAMatchedElementReturnsMinusOneWithCountUnchanged) {
    Tasks a;
    uint32_t n = 3;
    StderrCapture err;
    EXPECT_EQ(j2s_array_update_CrontabParameter("[{\"Index\": 1, \"Enable\": 3}, {\"Index\": 2, \"Enable\": \"on\"}]",
                                                a.t, &n),
              -1);
    EXPECT_EQ(err.text(),
              text_diag(kUpdateLine, "c2s_array_update_CrontabParameter", "json_to_struct_CrontabParameter failed!\n"));
    EXPECT_EQ(n, 3u);
    EXPECT_EQ(a.t[0].Enable, 3);
}

TEST(KeyedUpdate, KeyMembersAreReadIntoTheRecordLikeAnyField) {
    Tasks a;
    uint32_t n = 3;
    // "index" in lower case still matches and is written back as it is.
    EXPECT_EQ(j2s_array_update_CrontabParameter("[{\"index\": 2, \"Command\": \"new\"}]", a.t, &n), 0);
    EXPECT_EQ(a.t[1].Index, 2u);
    EXPECT_STREQ(a.t[1].Command, "new");
}

TEST(KeyedUpdate, C2sArrayUpdateChecksArgumentsInOrder) {
    Tasks a;
    uint32_t n = 3;
    Tree obj(cJSON_CreateObject());
    struct Case {
        const cJSON *json;
        CrontabParameter *arr;
        uint32_t *count;
        const char *msg;
    } cases[] = {{nullptr, nullptr, &n, "struct_array or struct_array_size is empty!\n"},
                 {nullptr, a.t, nullptr, "struct_array or struct_array_size is empty!\n"},
                 {nullptr, a.t, &n, "the cJSON pointer is not an array!\n"},
                 {obj.p, a.t, &n, "the cJSON pointer is not an array!\n"}};
    for (const Case &c : cases) {
        StderrCapture err;
        EXPECT_EQ(c2s_array_update_CrontabParameter(c.json, c.arr, c.count), -2);
        EXPECT_EQ(err.text(), text_diag(kUpdateLine, "c2s_array_update_CrontabParameter", c.msg));
        EXPECT_EQ(n, 3u);
    }
}

TEST(KeyedUpdate, J2sArrayUpdateRefusesNullArgumentsAndUnparsableText) {
    Tasks a;
    uint32_t n = 3;
    const std::string f = "j2s_array_update_CrontabParameter";
    struct Case {
        const char *text;
        CrontabParameter *arr;
        uint32_t *count;
    } cases[] = {{nullptr, a.t, &n}, {"[]", nullptr, &n}, {"[]", a.t, nullptr}};
    for (const Case &c : cases) {
        StderrCapture err;
        EXPECT_EQ(j2s_array_update_CrontabParameter(c.text, c.arr, c.count), -2);
        EXPECT_EQ(err.text(),
                  text_diag(kJ2sUpdateLine, f, "json_str or struct_array or struct_array_size is empty!\n"));
    }
    for (const Case &c : cases) {
        StderrCapture err;
        EXPECT_EQ(j2s_array_update_CrontabParameter_with_len(c.text, 2, c.arr, c.count), -2);
        EXPECT_EQ(err.text(), text_diag(kJ2sUpdateLine, f + "_with_len",
                                "json_str or json_str_len or struct_array or struct_array_size is empty!\n"));
    }
    {
        StderrCapture err;
        EXPECT_EQ(j2s_array_update_CrontabParameter_with_len("[]", 0, a.t, &n), -2);
        EXPECT_EQ(err.text(), text_diag(kJ2sUpdateLine, f + "_with_len",
                                "json_str or json_str_len or struct_array or struct_array_size is empty!\n"));
    }
    {
        StderrCapture err;
        EXPECT_EQ(j2s_array_update_CrontabParameter("[{]", a.t, &n), -2);
        EXPECT_EQ(err.text(), text_diag(kJ2sUpdateLine, f, "cJSON_Parse([{]) failed! reason: " + parse_reason("[{]")));
    }
    {
        StderrCapture err;
        EXPECT_EQ(j2s_array_update_CrontabParameter_with_len("[{]", 3, a.t, &n), -2);
        EXPECT_EQ(err.text(), text_diag(kJ2sUpdateLine, f + "_with_len",
                                "cJSON_ParseWithLength([{], 3) failed! reason: " + parse_reason_with_len("[{]", 3)));
    }
    EXPECT_EQ(n, 3u);
}

TEST(KeyedUpdate, WithLenReadsOnlyTheGivenBytes) {
    Tasks a;
    uint32_t n = 3;
    const char text[] = "[{\"Index\": 2, \"Enable\": 8}][{\"Index\": 3, \"Enable\": 8}]";
    EXPECT_EQ(j2s_array_update_CrontabParameter_with_len(text, 27, a.t, &n), 0);
    EXPECT_EQ(n, 1u);
    EXPECT_EQ(a.t[1].Enable, 8);
    EXPECT_EQ(a.t[2].Enable, 0);
}

TEST(KeyedUpdate, StringKeyOf70CharactersMatchesTheRecordHoldingItsFirst63) {
    NetworkLANParameter lan[2] = {};
    std::strcpy(lan[0].InterfaceName, "eth0");
    std::memset(lan[1].InterfaceName, 'n', 63);
    uint32_t n = 2;
    std::string text = "[{\"InterfaceName\": \"" + std::string(70, 'n') + "\", \"MTUSize\": 1400}]";
    EXPECT_EQ(j2s_array_update_NetworkLANParameter(text.c_str(), lan, &n), 0);
    EXPECT_EQ(n, 1u);
    EXPECT_EQ(lan[1].MTUSize, 1400);
    EXPECT_EQ(std::string(lan[1].InterfaceName), std::string(63, 'n'));
    EXPECT_EQ(lan[0].MTUSize, 0);
}

TEST(KeyedUpdate, StringKeysAreComparedWithLetterCase) {
    NetworkLANParameter lan[1] = {};
    std::strcpy(lan[0].InterfaceName, "eth0");
    expect_update_applies(j2s_array_update_NetworkLANParameter, "[{\"InterfaceName\": \"ETH0\", \"MTUSize\": 1400}]",
                          lan, 1, 0);
    EXPECT_EQ(lan[0].MTUSize, 0);
}

TEST(KeyedUpdate, TwoFieldKeyWithMatchingChannelButOtherStreamIndexIsSkipped) {
    VideoEncodeParameter enc[2] = {};
    for (uint32_t i = 0; i < 2; ++i) {
        enc[i].Channel = 1;
        enc[i].StreamIndex = i;
    }
    expect_update_applies(j2s_array_update_VideoEncodeParameter,
                          "[{\"Channel\": 1, \"StreamIndex\": 2, \"GOP\": 50}, {\"Channel\": 1,"
                          " \"StreamIndex\": 1, \"GOP\": 25}]", enc, 2, 1);
    EXPECT_EQ(enc[0].GOP, 0u);
    EXPECT_EQ(enc[1].GOP, 25u);
}

TEST(KeyedUpdate, TwoFieldKeyNeedsBothKeysInEveryElement) {
    VideoEncodeParameter enc[1] = {};
    uint32_t n = 1;
    StderrCapture err;
    EXPECT_EQ(j2s_array_update_VideoEncodeParameter("[{\"Channel\": 0, \"GOP\": 50}]", enc, &n), -2);
    EXPECT_EQ(err.text(), diag(text_list_file(), s2j::find_type("VideoEncodeParameter")->fam.line.c2s_array_update,
                               "c2s_array_update_VideoEncodeParameter",
                               "The keyword is not contained in an object of the json array!\n"));
    EXPECT_EQ(n, 1u);
}

TEST(KeyedUpdate, StringThenIntegerKeyMatchesOnlyWhenBoth) {
    VideoOutputScreenSplitParameter split[2] = {};
    for (uint32_t i = 0; i < 2; ++i) {
        std::strcpy(split[i].InterfaceName, "HDMI-OUT1");
        split[i].UserDefinedScreenSplitModeIndex = i + 1;
    }
    uint32_t n = 2;
    Text text(s2j_array_VideoOutputScreenSplitParameter(&split[1], 1, 0));
    EXPECT_EQ(j2s_array_update_VideoOutputScreenSplitParameter(text.p, split, &n), 0);
    EXPECT_EQ(n, 1u);
    std::string other = std::string(text.p);
    other.replace(other.find("HDMI-OUT1"), 9, "HDMI-OUT2");
    n = 2;
    EXPECT_EQ(j2s_array_update_VideoOutputScreenSplitParameter(other.c_str(), split, &n), 0);
    EXPECT_EQ(n, 0u);
}

TEST(KeywordReaders, KeywordReaderReadsTheKeyAndFailsWithoutIt) {
    CrontabParameterKeyword kw = {};
    Tree ok(cJSON_Parse("{\"Index\": 4294967295, \"Enable\": 1}"));
    EXPECT_EQ(json_to_struct_CrontabParameterKeyword(&kw, ok.p), 1);
    EXPECT_EQ(kw.Index, 4294967295u);
    Tree missing(cJSON_Parse("{\"Enable\": 1}"));
    EXPECT_EQ(json_to_struct_CrontabParameterKeyword(&kw, missing.p), 0);
    Tree wrong(cJSON_Parse("{\"Index\": \"4\"}"));
    EXPECT_EQ(json_to_struct_CrontabParameterKeyword(&kw, wrong.p), 0);
    EXPECT_EQ(json_to_struct_CrontabParameterKeyword(&kw, nullptr), 0);
}

TEST(KeywordReaders, GetKeywordReadsTheFirstKeyOnly) {
    expect_integer_key_reader(json_to_struct_GetCrontabParameterKeyword, "{\"INDEX\": 12}", 12u, {"{}"});
}

TEST(KeywordReaders, DeviceTimeKeywordRequiresAllEightKeysAndKeepsThoseReadBeforeAFailure) {
    Tree all(cJSON_Parse("{\"UTCTime\": -1, \"Year\": 2026, \"Month\": 11, \"Day\": 22, \"Hour\": 3, \"Minute\": 4, "
                         "\"Second\": 5, \"Millisecond\": 6}"));
    DeviceTimeKeyword kw = {};
    EXPECT_EQ(json_to_struct_DeviceTimeKeyword(&kw, all.p), 1);
    EXPECT_EQ(kw.UTCTime, -1);
    EXPECT_EQ(kw.Millisecond, 6u);
    Tree partial(cJSON_Parse("{\"UTCTime\": 7, \"Year\": 2000, \"Month\": \"x\", \"Day\": 1}"));
    DeviceTimeKeyword kw2 = {};
    kw2.Day = 99;
    EXPECT_EQ(json_to_struct_DeviceTimeKeyword(&kw2, partial.p), 0);
    EXPECT_EQ(kw2.UTCTime, 7);
    EXPECT_EQ(kw2.Year, 2000);
    EXPECT_EQ(kw2.Day, 99u);
}

}  // namespace
