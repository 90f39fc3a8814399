// The 64-bit integer items that the library adds to cJSON.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <string>

#include "app_s2j.h"
#include "registry.h"
#include "s2j_int.h"
#include "support.h"

using testing_support::Text;
using testing_support::Tree;

namespace {

std::string print(const cJSON *item) { return Text(cJSON_PrintUnformatted(item)).str(); }

// Parses text the way every j2s family does.
cJSON *parse(const char *text) { return s2j::parse_marked(text, 0, false); }

TEST(CreateInt, HoldsAndPrintsTheWholeSignedRangeExactly) {
    const int64_t values[] = {INT64_MIN, INT64_MIN + 1, -1000000000000000LL, -999999999999999LL, -4294967296LL,
                              -1, 0, 1, 2147483647, 2147483648LL, 4294967295LL, 9007199254740993LL,
                              999999999999999LL, 1000000000000000LL, INT64_MAX};
    for (int64_t v : values) {
        Tree item(cJSON_CreateInt(v));
        ASSERT_NE(item.p, nullptr);
        EXPECT_TRUE(cJSON_IsInt(item.p)) << v;
        EXPECT_EQ(s2j::int_value(item.p), v);
        EXPECT_EQ(print(item.p), std::to_string(v));
    }
}

TEST(CreateInt, SmallValuesAreNumberItemsAndLargeOnesRawItemsWithDecimalText) {
    Tree small(cJSON_CreateInt(999999999999999LL));
    EXPECT_TRUE(cJSON_IsNumber(small.p));
    EXPECT_EQ(small.p->valuedouble, 999999999999999.0);
    Tree large(cJSON_CreateInt(1000000000000000LL));
    EXPECT_TRUE(cJSON_IsRaw(large.p));
    EXPECT_STREQ(large.p->valuestring, "1000000000000000");
    Tree min(cJSON_CreateInt(INT64_MIN));
    EXPECT_STREQ(min.p->valuestring, "-9223372036854775808");
}

TEST(CreateInt, ValueTwoToThe53PlusOneKeepsItsLastDigit) {
    Tree item(cJSON_CreateInt(9007199254740993LL));
    EXPECT_EQ(print(item.p), "9007199254740993");
    EXPECT_EQ(s2j::int_value(item.p), 9007199254740993LL);
}

TEST(CreateInt, IndentedPrinterWritesPlainDigitsToo) {
    Tree obj(cJSON_CreateObject());
    cJSON_AddIntToObject(obj.p, "a", INT64_MAX);
    cJSON_AddIntToObject(obj.p, "b", -1);
    cJSON_AddIntToObject(obj.p, "c", 4294967295LL);
    EXPECT_EQ(Text(cJSON_Print(obj.p)).str(),
              "{\n\t\"a\":\t9223372036854775807,\n\t\"b\":\t-1,\n\t\"c\":\t4294967295\n}");
}

TEST(AddIntToObject, AddsTheItemUnderTheNameAndReturnsIt) {
    Tree obj(cJSON_CreateObject());
    cJSON *item = cJSON_AddIntToObject(obj.p, "Index", -5);
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(cJSON_GetObjectItem(obj.p, "Index"), item);
    EXPECT_TRUE(cJSON_IsInt(item));
    EXPECT_EQ(print(obj.p), "{\"Index\":-5}");
}

TEST(AddIntToObject, NullObjectOrNameAddsNothingAndReturnsNull) {
    EXPECT_EQ(cJSON_AddIntToObject(nullptr, "a", 1), nullptr);
    Tree obj(cJSON_CreateObject());
    EXPECT_EQ(cJSON_AddIntToObject(obj.p, nullptr, 1), nullptr);
    EXPECT_EQ(obj.p->child, nullptr);
}

TEST(IsInt, IsFalseForNullStringsBooleansNullArraysAndObjects) {
    EXPECT_FALSE(cJSON_IsInt(nullptr));
    Tree s(cJSON_CreateString("1")), t(cJSON_CreateTrue()), f(cJSON_CreateFalse()), n(cJSON_CreateNull()),
        a(cJSON_CreateArray()), o(cJSON_CreateObject()), r(cJSON_CreateRaw("1"));
    for (const cJSON *item : {s.p, t.p, f.p, n.p, a.p, o.p, r.p}) EXPECT_FALSE(cJSON_IsInt(item));
}

TEST(IsInt, ParsedIntegerLiteralsAreIntegerItemsWithExactValues) {
    struct Case {
        const char *text;
        int64_t value;
    } cases[] = {{"[-9223372036854775808]", INT64_MIN}, {"[9223372036854775807]", INT64_MAX},
                 {"[9007199254740993]", 9007199254740993LL}, {"[-1]", -1}, {"[4294967295]", 4294967295LL},
                 {"[-0]", 0}, {"[0]", 0}, {"[1000000000000000]", 1000000000000000LL}};
    for (const Case &c : cases) {
        Tree tree(parse(c.text));
        ASSERT_NE(tree.p, nullptr) << c.text;
        EXPECT_TRUE(cJSON_IsInt(tree.p->child)) << c.text;
        EXPECT_EQ(s2j::int_value(tree.p->child), c.value) << c.text;
        EXPECT_EQ(print(tree.p->child), std::to_string(c.value)) << c.text;
    }
}

TEST(IsInt, ParsedNumbersWithFractionOrExponentAreNotIntegers) {
    for (const char *text : {"[1.0]", "[1e2]", "[1E2]", "[1e+2]", "[-1.5]", "[0.0]", "[1.]", "[2e-0]"}) {
        Tree tree(parse(text));
        ASSERT_NE(tree.p, nullptr) << text;
        EXPECT_TRUE(cJSON_IsNumber(tree.p->child)) << text;
        EXPECT_FALSE(cJSON_IsInt(tree.p->child)) << text;
    }
}

TEST(IsInt, ParsedIntegerLiteralsOutsideTheSignedRangeAreNotIntegers) {
    for (const char *text : {"[9223372036854775808]", "[-9223372036854775809]", "[99999999999999999999]"}) {
        Tree tree(parse(text));
        ASSERT_NE(tree.p, nullptr) << text;
        EXPECT_FALSE(cJSON_IsInt(tree.p->child)) << text;
    }
}

TEST(IsInt, LeadingZerosThatTheParserAcceptsGiveTheDecimalValue) {
    Tree tree(parse("[007, -012]"));
    ASSERT_NE(tree.p, nullptr);
    EXPECT_TRUE(cJSON_IsInt(tree.p->child));
    EXPECT_EQ(s2j::int_value(tree.p->child), 7);
    EXPECT_EQ(s2j::int_value(tree.p->child->next), -12);
}

TEST(IsInt, LiteralsOfMoreThan19DigitsAreSummedWithoutWrapping) {
    Tree small(parse("[0000000000000000000000007, -0000000000000000000009223372036854775808]"));
    ASSERT_NE(small.p, nullptr);
    EXPECT_TRUE(cJSON_IsInt(small.p->child));
    EXPECT_EQ(s2j::int_value(small.p->child), 7);
    EXPECT_EQ(s2j::int_value(small.p->child->next), INT64_MIN);
    // 2^64 and 2^64 + 7 would wrap to 0 and 7 in 64 bits.
    Tree wrap(parse("[18446744073709551616, 18446744073709551623, 184467440737095516160]"));
    ASSERT_NE(wrap.p, nullptr);
    for (const cJSON *c = wrap.p->child; c != nullptr; c = c->next) EXPECT_FALSE(cJSON_IsInt(c));
}

TEST(IsInt, DeeplyNestedDocumentsAreMarkedAtEveryLevel) {
    for (int levels : {31, 32, 33, 200, 999}) {
        std::string text;
        for (int i = 0; i < levels; ++i) text += "[" + std::to_string(i) + ", 1.5, ";
        text += "7";
        for (int i = levels - 1; i >= 0; --i) text += ", " + std::to_string(i) + "]";
        Tree tree(parse(text.c_str()));
        ASSERT_NE(tree.p, nullptr) << levels;
        const cJSON *a = tree.p;
        for (int i = 0; i < levels - 1; ++i) {
            ASSERT_EQ(s2j::int_value(a->child), i);
            EXPECT_FALSE(cJSON_IsInt(a->child->next));
            EXPECT_EQ(s2j::int_value(cJSON_GetArrayItem(a, 3)), i);
            a = a->child->next->next;
        }
        EXPECT_EQ(s2j::int_value(a->child->next->next), 7) << levels;
    }
}

TEST(IsInt, NumbersInsideStringsAndKeysDoNotShiftTheMarking) {
    Tree tree(parse("{\"1.5\": \"2.5 \\\"3e4\", \"k9\": 12, \"x\": [1.5, 9223372036854775807, {\"7\": -3}]}"));
    ASSERT_NE(tree.p, nullptr);
    EXPECT_EQ(s2j::int_value(cJSON_GetObjectItem(tree.p, "k9")), 12);
    const cJSON *x = cJSON_GetObjectItem(tree.p, "x");
    EXPECT_FALSE(cJSON_IsInt(cJSON_GetArrayItem(x, 0)));
    EXPECT_EQ(s2j::int_value(cJSON_GetArrayItem(x, 1)), INT64_MAX);
    EXPECT_EQ(s2j::int_value(cJSON_GetObjectItem(cJSON_GetArrayItem(x, 2), "7")), -3);
}

TEST(IsInt, LengthBoundedParseMarksOnlyWhatItRead) {
    const char text[] = "[12, 3.5] trailing 4";
    Tree tree(s2j::parse_marked(text, 9, true));
    ASSERT_NE(tree.p, nullptr);
    EXPECT_TRUE(cJSON_IsInt(tree.p->child));
    EXPECT_FALSE(cJSON_IsInt(tree.p->child->next));
}

TEST(IsInt, TreesBuiltByPlainCjsonCountIntegralNumbersInRange) {
    Tree whole(cJSON_CreateNumber(42.0)), neg(cJSON_CreateNumber(-7.0)), frac(cJSON_CreateNumber(1.5)),
        big(cJSON_CreateNumber(9223372036854775808.0)), min(cJSON_CreateNumber(-9223372036854775808.0)),
        nan(cJSON_CreateNumber(NAN)), negzero(cJSON_CreateNumber(-0.0));
    EXPECT_TRUE(cJSON_IsInt(whole.p));
    EXPECT_TRUE(cJSON_IsInt(neg.p));
    EXPECT_FALSE(cJSON_IsInt(frac.p));
    EXPECT_FALSE(cJSON_IsInt(big.p));
    EXPECT_TRUE(cJSON_IsInt(min.p));
    EXPECT_FALSE(cJSON_IsInt(nan.p));
    EXPECT_TRUE(cJSON_IsInt(negzero.p));
    // A document parsed by plain cJSON carries no marks: 1.0 is integral.
    Tree plain(cJSON_Parse("[1.0, 1e2, 3]"));
    EXPECT_TRUE(cJSON_IsInt(plain.p->child));
    EXPECT_TRUE(cJSON_IsInt(plain.p->child->next));
    EXPECT_EQ(s2j::int_value(plain.p->child->next), 100);
}

TEST(IsInt, ReadersAcceptPlainCjsonIntegersThroughC2s) {
    Tree tree(cJSON_Parse("{\"Index\": 3, \"Enable\": -1}"));
    CrontabParameter p[1] = {};
    p[0].Index = 3;
    uint32_t n = 1;
    Tree list(cJSON_CreateArray());
    cJSON_AddItemReferenceToArray(list.p, tree.p);
    EXPECT_EQ(c2s_array_CrontabParameter(list.p, p, &n), 0);
    EXPECT_EQ(p[0].Enable, -1);
}

TEST(IsInt, DuplicatedTreeKeepsTheMarks) {
    Tree item(cJSON_CreateInt(INT64_MAX));
    Tree copy(cJSON_Duplicate(item.p, 1));
    EXPECT_TRUE(cJSON_IsInt(copy.p));
    EXPECT_EQ(print(copy.p), "9223372036854775807");
}

// What c2s_DeviceTime makes of a tree: its status, the record it leaves and
// its diagnostics.
struct Reading {
    int status;
    DeviceTime record;
    std::string diagnostics;
};

Reading read_device_time(const cJSON *tree) {
    Reading r{};
    std::memset(&r.record, 0x5A, sizeof r.record);
    testing_support::StderrCapture err;
    r.status = c2s_DeviceTime(tree, &r.record);
    r.diagnostics = err.text();
    return r;
}

// A DeviceTime tree whose "Month" member is item (taking it over).
cJSON *device_time_with_month(cJSON *item) {
    cJSON *tree = cJSON_CreateObject();
    cJSON_AddIntToObject(tree, "Hour", 7);
    cJSON_AddItemToObject(tree, "Month", item);
    return tree;
}

void expect_same_reading(const cJSON *tree, const cJSON *unmarked_tree) {
    Reading got = read_device_time(tree), want = read_device_time(unmarked_tree);
    EXPECT_EQ(got.status, want.status);
    EXPECT_EQ(std::memcmp(&got.record, &want.record, sizeof got.record), 0);
    EXPECT_EQ(got.diagnostics, want.diagnostics);
}

TEST(SetNumberValue, FractionOnAnEmittedIntegerItemMakesItNotAnInteger) {
    DeviceTime t{};
    t.Month = 3;
    Tree tree(struct_to_json_DeviceTime(&t));
    cJSON *month = cJSON_GetObjectItem(tree.p, "Month");
    ASSERT_TRUE(cJSON_IsInt(month));
    cJSON_SetNumberValue(month, 2.5);
    EXPECT_FALSE(cJSON_IsInt(month));
    DeviceTime r{};
    r.Month = 9;
    testing_support::StderrCapture err;
    EXPECT_EQ(c2s_DeviceTime(tree.p, &r), -1);
    EXPECT_EQ(r.Month, 9u);
    EXPECT_EQ(j2s_DeviceTime("{\"Month\": 2.5}", &r), -1);
    EXPECT_EQ(r.Month, 9u);
    err.text();
    Tree unmarked(device_time_with_month(cJSON_CreateNumber(2.5)));
    Tree changed(device_time_with_month(cJSON_CreateInt(3)));
    cJSON_SetNumberValue(cJSON_GetObjectItem(changed.p, "Month"), 2.5);
    expect_same_reading(changed.p, unmarked.p);
}

TEST(SetNumberValue, WholeValueOnAnIntegerItemIsThatInteger) {
    Tree item(cJSON_CreateInt(3));
    cJSON_SetNumberValue(item.p, 70000);
    EXPECT_TRUE(cJSON_IsInt(item.p));
    EXPECT_EQ(s2j::int_value(item.p), 70000);
    EXPECT_EQ(print(item.p), "70000");
}

TEST(SetNumberValue, SmallValueOnARawIntegerItemGivesThatValue) {
    Tree item(cJSON_CreateInt(1000000000000000LL));
    cJSON_SetNumberValue(item.p, 5);
    EXPECT_TRUE(cJSON_IsInt(item.p));
    EXPECT_EQ(s2j::int_value(item.p), 5);
    Tree changed(device_time_with_month(cJSON_CreateInt(1000000000000000LL)));
    cJSON_SetNumberValue(cJSON_GetObjectItem(changed.p, "Month"), 5);
    Tree unmarked(device_time_with_month(cJSON_CreateNumber(5)));
    expect_same_reading(changed.p, unmarked.p);
    EXPECT_EQ(read_device_time(changed.p).record.Month, 5u);
}

TEST(SetNumberValue, FractionOnARawIntegerItemMakesItNotAnInteger) {
    Tree item(cJSON_CreateInt(-1000000000000000LL));
    cJSON_SetNumberValue(item.p, -0.5);
    EXPECT_FALSE(cJSON_IsInt(item.p));
    Tree changed(device_time_with_month(cJSON_CreateInt(INT64_MAX)));
    cJSON_SetNumberValue(cJSON_GetObjectItem(changed.p, "Month"), 0.25);
    Tree unmarked(device_time_with_month(cJSON_CreateNumber(0.25)));
    expect_same_reading(changed.p, unmarked.p);
}

TEST(SetNumberValue, RawIntegerItemsKeepTheirExactValueUntilSet) {
    // The text is exact; valuedouble holds its nearest double.
    Tree item(cJSON_CreateInt(9007199254740993LL * 1000));
    EXPECT_EQ(s2j::int_value(item.p), 9007199254740993000LL);
    cJSON_SetNumberValue(item.p, 2e18);
    EXPECT_TRUE(cJSON_IsInt(item.p));
    EXPECT_EQ(s2j::int_value(item.p), 2000000000000000000LL);
}

TEST(SetNumberValue, NewValueOnAParsedNonIntegerMakesItWhatItsValueIs) {
    Tree tree(parse("[1.0, 2.5, 1e2, 3]"));
    cJSON *one = tree.p->child, *frac = one->next, *hundred = frac->next, *three = hundred->next;
    ASSERT_FALSE(cJSON_IsInt(one));
    ASSERT_FALSE(cJSON_IsInt(frac));
    ASSERT_FALSE(cJSON_IsInt(hundred));
    cJSON_SetNumberValue(one, 5);
    cJSON_SetNumberValue(frac, 2);
    cJSON_SetNumberValue(three, 3.5);
    EXPECT_TRUE(cJSON_IsInt(one));
    EXPECT_EQ(s2j::int_value(one), 5);
    EXPECT_TRUE(cJSON_IsInt(frac));
    EXPECT_EQ(s2j::int_value(frac), 2);
    EXPECT_FALSE(cJSON_IsInt(three));
    // The same value set again is no change: 1e2 stays not an integer.
    cJSON_SetNumberValue(hundred, 100);
    EXPECT_FALSE(cJSON_IsInt(hundred));
}

TEST(SetNumberValue, ParsedNonIntegerSetToAWholeValueReadsAsThatValue) {
    Tree changed(parse("{\"Hour\": 7, \"Month\": 4.0}"));
    cJSON_SetNumberValue(cJSON_GetObjectItem(changed.p, "Month"), 6);
    Tree unmarked(device_time_with_month(cJSON_CreateNumber(6)));
    expect_same_reading(changed.p, unmarked.p);
    EXPECT_EQ(read_device_time(changed.p).status, 0);
}

}  // namespace
