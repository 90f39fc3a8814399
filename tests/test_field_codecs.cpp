// How each field kind is written into a JSON object and read back.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "app_s2j.h"
#include "support.h"

using testing_support::print_compact;
using testing_support::record_from_text;
using testing_support::Text;
using testing_support::Tree;

namespace {

TEST(FieldCodecs, StringFieldOf64BytesWithoutNulIsEmittedWholeAndReadBackAs63) {
    DeviceInfo info = {};
    std::memset(info.ProductModel, 'M', sizeof info.ProductModel);
    Tree tree(struct_to_json_DeviceInfo(&info));
    const cJSON *m = cJSON_GetObjectItem(tree.p, "ProductModel");
    ASSERT_TRUE(cJSON_IsString(m));
    EXPECT_EQ(std::string(m->valuestring), std::string(64, 'M'));
    // The field after it is still emitted as itself.
    EXPECT_STREQ(cJSON_GetObjectItem(tree.p, "SerialNumber")->valuestring, "");
    DeviceInfo back;
    std::memset(&back, 'z', sizeof back);
    ASSERT_EQ(json_to_struct_DeviceInfo(&back, tree.p), 1);
    EXPECT_EQ(std::string(back.ProductModel), std::string(63, 'M'));
}

TEST(FieldCodecs, StringFieldStartingWithNulIsEmittedAsEmptyString) {
    DeviceInfo info = {};
    std::strcpy(info.ProductName + 1, "hidden");
    Tree tree(struct_to_json_DeviceInfo(&info));
    const cJSON *m = cJSON_GetObjectItem(tree.p, "ProductName");
    ASSERT_TRUE(cJSON_IsString(m));
    EXPECT_STREQ(m->valuestring, "");
}

TEST(FieldCodecs, SignedFieldEmitsMinusFiveAndUnsignedFieldTheSameBitsAs4294967291) {
    DeviceTime t = {};
    t.UTCTime = -5;
    t.Month = static_cast<uint32_t>(-5);
    Tree tree(struct_to_json_DeviceTime(&t));
    EXPECT_EQ(print_compact(tree.p),
              "{\"UTCTime\":-5,\"Year\":0,\"Month\":4294967291,\"Day\":0,\"Hour\":0,\"Minute\":0,\"Second\":0,"
              "\"Millisecond\":0}");
    DeviceTime back = {};
    ASSERT_EQ(json_to_struct_DeviceTime(&back, tree.p), 1);
    EXPECT_EQ(back.UTCTime, -5);
    EXPECT_EQ(back.Month, 4294967291u);
}

TEST(FieldCodecs, IntegerFieldsStoreTheLow32BitsOfTheValue) {
    const DeviceTime t = record_from_text(j2s_DeviceTime, "{\"UTCTime\": 6000000000, \"Month\": 6000000000, "
                                                          "\"Day\": 4294967296, \"Year\": 4294967295, \"Hour\": -1}");
    EXPECT_EQ(t.UTCTime, 1705032704);
    EXPECT_EQ(t.Month, 1705032704u);
    EXPECT_EQ(t.Day, 0u);
    EXPECT_EQ(t.Year, -1);
    EXPECT_EQ(t.Hour, 4294967295u);
}

TEST(FieldCodecs, ValuesBeyondTwoToThe53AreReadExactly) {
    // 2^53 + 1 and 2^63 - 1: a double would lose the low bits.
    const DeviceTime t = record_from_text(j2s_DeviceTime, "{\"Day\": 9007199254740993, \"Hour\": 9223372036854775807, "
                                                          "\"Minute\": -9223372036854775808}");
    EXPECT_EQ(t.Day, 1u);
    EXPECT_EQ(t.Hour, 0xFFFFFFFFu);
    EXPECT_EQ(t.Minute, 0u);
}

TEST(FieldCodecs, Reading70000IntoA16BitFieldStores4464AndEmits4464) {
    NetworkLANParameter lan = {};
    Tree in(cJSON_Parse("{\"MTUSize\": 70000}"));
    ASSERT_EQ(json_to_struct_NetworkLANParameter(&lan, in.p), 1);
    EXPECT_EQ(lan.MTUSize, 4464);
    Tree out(struct_to_json_NetworkLANParameter(&lan));
    const cJSON *m = cJSON_GetObjectItem(out.p, "MTUSize");
    ASSERT_TRUE(cJSON_IsInt(m));
    EXPECT_EQ(Text(cJSON_PrintUnformatted(m)).str(), "4464");
    Tree minus(cJSON_Parse("{\"MTUSize\": -1}"));
    ASSERT_EQ(json_to_struct_NetworkLANParameter(&lan, minus.p), 1);
    EXPECT_EQ(lan.MTUSize, 65535);
    Tree back(struct_to_json_NetworkLANParameter(&lan));
    EXPECT_EQ(Text(cJSON_PrintUnformatted(cJSON_GetObjectItem(back.p, "MTUSize"))).str(), "65535");
}

TEST(FieldCodecs, ThirdFieldOfWrongTypeLeavesFirstTwoWrittenAndLaterOnesUntouched) {
    DeviceTime t = {};
    t.Month = 77;
    t.Day = 88;
    Tree tree(cJSON_Parse("{\"UTCTime\": 1, \"Year\": 2, \"Month\": \"3\", \"Day\": 4}"));
    EXPECT_EQ(json_to_struct_DeviceTime(&t, tree.p), 0);
    EXPECT_EQ(t.UTCTime, 1);
    EXPECT_EQ(t.Year, 2);
    EXPECT_EQ(t.Month, 77u);
    EXPECT_EQ(t.Day, 88u);
}

TEST(FieldCodecs, EveryNonIntegerFailsAnIntegerFieldAndEveryNonStringAStringField) {
    for (const char *v : {"\"1\"", "1.5", "1.0", "1e2", "true", "false", "null", "[]", "{}"}) {
        DeviceTime t = {};
        std::string text = std::string("{\"Hour\": ") + v + "}";
        Tree tree(cJSON_Parse(text.c_str()));
        // A plain cJSON tree: integral doubles such as 1.0 count as integers.
        bool integral = std::string(v) == "1.0" || std::string(v) == "1e2";
        EXPECT_EQ(json_to_struct_DeviceTime(&t, tree.p), integral ? 1 : 0) << v;
        // Text read by the library: only integer literals are integers.
        testing_support::StderrCapture err;
        EXPECT_EQ(j2s_DeviceTime(text.c_str(), &t), -1) << v;
    }
    for (const char *v : {"1", "1.5", "true", "false", "null", "[]", "{}"}) {
        DeviceInfo info = {};
        std::string text = std::string("{\"SDKVersion\": ") + v + "}";
        Tree tree(cJSON_Parse(text.c_str()));
        EXPECT_EQ(json_to_struct_DeviceInfo(&info, tree.p), 0) << v;
    }
}

TEST(FieldCodecs, EmptyObjectIsReadAsSuccessAndChangesNothing) {
    NTPParameter p;
    std::memset(&p, 0x5A, sizeof p);
    NTPParameter before = p;
    Tree tree(cJSON_CreateObject());
    EXPECT_EQ(json_to_struct_NTPParameter(&p, tree.p), 1);
    EXPECT_EQ(std::memcmp(&p, &before, sizeof p), 0);
}

TEST(FieldCodecs, NullObjectIsReadAsAllKeysAbsent) {
    NTPParameter p;
    std::memset(&p, 0x5A, sizeof p);
    NTPParameter before = p;
    EXPECT_EQ(json_to_struct_NTPParameter(&p, nullptr), 1);
    EXPECT_EQ(std::memcmp(&p, &before, sizeof p), 0);
}

TEST(FieldCodecs, KeyInOtherLetterCaseIsFound) {
    CrontabParameter c = {};
    Tree tree(cJSON_Parse("{\"index\": 9, \"COMMAND\": \"reboot\"}"));
    ASSERT_EQ(json_to_struct_CrontabParameter(&c, tree.p), 1);
    EXPECT_EQ(c.Index, 9u);
    EXPECT_STREQ(c.Command, "reboot");
}

TEST(FieldCodecs, FirstOfTwoMembersMatchingWithoutCaseWins) {
    CrontabParameter c = {};
    Tree tree(cJSON_Parse("{\"enable\": 1, \"Enable\": 2}"));
    ASSERT_EQ(json_to_struct_CrontabParameter(&c, tree.p), 1);
    EXPECT_EQ(c.Enable, 1);
}

TEST(FieldCodecs, MembersThatAreNotFieldsAreIgnored) {
    AdvancedParameter a = {};
    Tree tree(cJSON_Parse("{\"Other\": \"x\", \"EncodeWorkMode\": 3, \"Nested\": {\"EncodeWorkMode\": 4}}"));
    ASSERT_EQ(json_to_struct_AdvancedParameter(&a, tree.p), 1);
    EXPECT_EQ(a.EncodeWorkMode, 3u);
}

TEST(FieldCodecs, LongStringIsCutToCapacityLessOneAndTerminated) {
    CrontabParameter c;
    std::memset(&c, 'q', sizeof c);
    std::string hour(100, 'h');
    Tree tree(cJSON_CreateObject());
    cJSON_AddStringToObject(tree.p, "Hour", hour.c_str());
    ASSERT_EQ(json_to_struct_CrontabParameter(&c, tree.p), 1);
    EXPECT_EQ(std::string(c.Hour), std::string(63, 'h'));
    EXPECT_EQ(c.Day[0], 'q');  // the next field is untouched
}

TEST(FieldCodecs, EmitterOwnsNoPointerIntoTheRecord) {
    DeviceInfo info = {};
    std::strcpy(info.ProductModel, "AV-200");
    Tree tree(struct_to_json_DeviceInfo(&info));
    std::strcpy(info.ProductModel, "changed");
    EXPECT_STREQ(cJSON_GetObjectItem(tree.p, "ProductModel")->valuestring, "AV-200");
}

}  // namespace
