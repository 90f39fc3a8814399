// Device identity and time, time zone, NTP and scheduled-task records.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <string>

#include "app_s2j.h"
#include "support.h"

using namespace testing_support;

namespace {

TEST(DeviceTime, UtcTimeMinusOneIsEmittedSignedAndMonthWithTheSameBitsUnsigned) {
    DeviceTime t = {};
    t.UTCTime = -1;
    t.Month = 0xFFFFFFFFu;
    Tree tree(struct_to_json_DeviceTime(&t));
    EXPECT_EQ(Text(cJSON_PrintUnformatted(tree.p)).str(),
              "{\"UTCTime\":-1,\"Year\":0,\"Month\":4294967295,\"Day\":0,\"Hour\":0,\"Minute\":0,\"Second\":0,"
              "\"Millisecond\":0}");
}

TEST(DeviceTime, YearIsSignedAndTheOtherBrokenDownFieldsUnsigned) {
    DeviceTime t;
    std::memset(&t, 0xFF, sizeof t);
    Text text(s2j_DeviceTime(&t, 0));
    EXPECT_EQ(text.str(),
              "{\"UTCTime\":-1,\"Year\":-1,\"Month\":4294967295,\"Day\":4294967295,\"Hour\":4294967295,"
              "\"Minute\":4294967295,\"Second\":4294967295,\"Millisecond\":4294967295}");
}

TEST(DeviceTime, ObjectWithOnlyHourChangesOnlyHourButFailsTheKeywordReader) {
    DeviceTime t = {1700000000, 2026, 11, 22, 3, 4, 5, 6};
    EXPECT_EQ(j2s_DeviceTime("{\"Hour\": 17}", &t), 0);
    DeviceTime want = {1700000000, 2026, 11, 22, 17, 4, 5, 6};
    EXPECT_EQ(std::memcmp(&t, &want, sizeof t), 0);
    Tree tree(cJSON_Parse("{\"Hour\": 17}"));
    DeviceTimeKeyword kw = {};
    EXPECT_EQ(json_to_struct_DeviceTimeKeyword(&kw, tree.p), 0);
}

TEST(DeviceInfo, SerialNumberOf64BytesIsEmittedWholeAndReadBackAs63) {
    DeviceInfo d = {};
    std::memset(d.SerialNumber, '7', 64);
    Text text(s2j_DeviceInfo(&d, 0));
    EXPECT_NE(std::string(text.p).find("\"SerialNumber\":\"" + std::string(64, '7') + "\""), std::string::npos);
    DeviceInfo back = {};
    EXPECT_EQ(j2s_DeviceInfo(text.p, &back), 0);
    EXPECT_EQ(std::string(back.SerialNumber), std::string(63, '7'));
}

TEST(AdvancedParameter, KeyKeepsItsTrailingZero) {
    AdvancedParameter a = {1, 0x0000000Fu};
    Text text(s2j_AdvancedParameter(&a, 0));
    EXPECT_EQ(text.str(), "{\"EncodeWorkMode\":1,\"EncodeChannelBitmap0\":15}");
    AdvancedParameter back = {};
    EXPECT_EQ(j2s_AdvancedParameter("{\"EncodeChannelBitmap\": 3}", &back), 0);
    EXPECT_EQ(back.EncodeChannelBitmap0, 0u);
}

TEST(NTPServer, PoolOf3000CharactersIsReadAsItsFirst2047) {
    std::string pool(3000, 'p');
    std::string text = "[{\"Zone\": \"Asia\", \"Pool\": \"" + pool + "\"}]";
    NTPServer s[1] = {};
    uint32_t n = 1;
    EXPECT_EQ(j2s_array_NTPServer(text.c_str(), s, &n), 0);
    EXPECT_EQ(std::string(s[0].Pool), std::string(2047, 'p'));
    EXPECT_STREQ(s[0].Zone, "Asia");
}

TEST(NTPServer, PoolHolding2048BytesWithoutNulIsEmittedWhole) {
    NTPServer s[1] = {};
    std::memset(s[0].Pool, 'q', sizeof s[0].Pool);
    Text text(s2j_array_NTPServer(s, 1, 0));
    EXPECT_NE(std::string(text.p).find("\"Pool\":\"" + std::string(2048, 'q') + "\"}]"), std::string::npos);
}

TEST(CrontabParameter, UpdateWhoseElementsLackIndexIsRefusedBeforeAnyTaskChanges) {
    CrontabParameter tasks[2] = {};
    tasks[0].Index = 1;
    tasks[1].Index = 2;
    CrontabParameter before[2];
    std::memcpy(before, tasks, sizeof tasks);
    uint32_t n = 2;
    StderrCapture err;
    EXPECT_EQ(j2s_array_update_CrontabParameter("[{\"Enable\": 1}, {\"Enable\": 1, \"Command\": \"x\"}]", tasks, &n),
              -2);
    EXPECT_EQ(err.text(), diag(text_list_file(), 12, "c2s_array_update_CrontabParameter",
                               "The keyword is not contained in an object of the json array!\n"));
    EXPECT_EQ(std::memcmp(tasks, before, sizeof tasks), 0);
    EXPECT_EQ(n, 2u);
}

TEST(CrontabParameter, TimeFieldsKeepTheirOwnCapacities) {
    std::string long_text(300, 't');
    std::string text = "[{\"Minute\": \"" + long_text + "\", \"Hour\": \"" + long_text + "\", \"Day\": \"" + long_text +
                       "\", \"Month\": \"" + long_text + "\", \"Weekday\": \"" + long_text + "\"}]";
    CrontabParameter c[1] = {};
    uint32_t n = 1;
    EXPECT_EQ(j2s_array_CrontabParameter(text.c_str(), c, &n), 0);
    EXPECT_EQ(std::strlen(c[0].Minute), 255u);
    EXPECT_EQ(std::strlen(c[0].Hour), 63u);
    EXPECT_EQ(std::strlen(c[0].Day), 255u);
    EXPECT_EQ(std::strlen(c[0].Month), 63u);
    EXPECT_EQ(std::strlen(c[0].Weekday), 63u);
}

TEST(TimeZoneParameter, DstEnableMinusOneIsEmittedSignedAndSavingTimeWithTheSameBitsUnsigned) {
    TimeZoneParameter p = {};
    p.DSTEnable = -1;
    p.SavingTime = 0xFFFFFFFFu;
    Text text(s2j_TimeZoneParameter(&p, 0));
    EXPECT_NE(std::string(text.p).find("\"DSTEnable\":-1,\"SavingTime\":4294967295,"), std::string::npos);
}

TEST(TimeZone, OffsetIsSigned) {
    TimeZone z[1] = {};
    z[0].UTCOffset = -330;
    Text text(s2j_array_TimeZone(z, 1, 0));
    EXPECT_NE(std::string(text.p).find("\"UTCOffset\":-330"), std::string::npos);
}

TEST(NTPParameter, PollIntervalsAreSignedAndPortUnsigned) {
    NTPParameter p = {};
    p.MinPollInterval = -6;
    p.MaxPollInterval = 17;
    p.ServerPort = 123;
    Text text(s2j_NTPParameter(&p, 0));
    EXPECT_EQ(text.str(),
              "{\"Enable\":0,\"ServerDomain\":\"\",\"ServerPort\":123,\"MinPollInterval\":-6,\"MaxPollInterval\":17}");
}

}  // namespace
