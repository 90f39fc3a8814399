// What the shared library does on the way through cJSON's tree, reached
// through its exports: integer literals of 15 digits and more in a text
// that the direct reader leaves to cJSON, texts nested deeper than the
// walk's local stack, the allocation failures of that walk, of
// cJSON_CreateInt and of cJSON_AddIntToObject; and upper-case hex digits in
// \u escapes, which the direct reader reads as cJSON does.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "app_s2j.h"
#include "support.h"

using namespace testing_support;

namespace {

// A number literal of 63 characters: the direct reader leaves a text that
// holds one to cJSON (cJSON reads no more than 63), and the record does not
// have the member.
const std::string kLongLiteral = ", \"Pad\": 0." + std::string(60, '0') + "1";

// AdvancedParameter's members: 2^53 + 1 (its double is 2^53, whose low 32
// bits are 0) and -(10^15 + 1).
const char kLarge[] = "{\"EncodeWorkMode\": 9007199254740993, \"EncodeChannelBitmap0\": -1000000000000001";
// Their low 32 bits, what a uint32_t member keeps of them.
constexpr uint32_t kLow32Of2To53Plus1 = 1u, kLow32OfMinus10To15Minus1 = 1530494975u;

// An object member "Deep" of `levels` nested arrays, each but the innermost
// followed by a sibling, so that the walk over the tree holds one pending
// item per level; 1.5 innermost and 7 beside each level.
std::string deep_member(int levels) {
    std::string inner = "[1.5]";
    for (int i = 1; i < levels; ++i) inner = "[" + inner + ",7]";
    return "\"Deep\": " + inner;
}

// The allocations that j2s_AdvancedParameter makes through cJSON's allocator
// for text, and its status.
long allocations_of(const std::string &text, AdvancedParameter *rec, int *rc) {
    CjsonFaults count_only(-1);
    *rc = j2s_AdvancedParameter(text.c_str(), rec);
    return CjsonFaults::allocations();
}

TEST(TreePath, ReadsIntegerLiteralsOf15DigitsAndMoreByTheirExactValue) {
    const std::string direct = std::string(kLarge) + "}";
    const std::string tree = std::string(kLarge) + kLongLiteral + "}";
    AdvancedParameter by_tree = pattern<AdvancedParameter>(), by_direct = pattern<AdvancedParameter>();
    int rc = -99;
    EXPECT_GT(allocations_of(tree, &by_tree, &rc), 0) << "the text did not go through cJSON's tree";
    ASSERT_EQ(rc, 0);
    EXPECT_EQ(by_tree.EncodeWorkMode, kLow32Of2To53Plus1);
    EXPECT_EQ(by_tree.EncodeChannelBitmap0, kLow32OfMinus10To15Minus1);
    EXPECT_EQ(allocations_of(direct, &by_direct, &rc), 0) << "the direct reader did not read the text";
    ASSERT_EQ(rc, 0);
    EXPECT_EQ(std::memcmp(&by_tree, &by_direct, sizeof by_tree), 0);
}

TEST(TreePath, ReadsTheMembersAfterAValueNestedDeeperThanThirtyTwoLevels) {
    for (int levels : {31, 32, 33, 40, 200}) {
        const std::string members = "{" + deep_member(levels) + ", " + std::string(kLarge + 1);
        const std::string tree = members + kLongLiteral + "}";
        AdvancedParameter by_tree = pattern<AdvancedParameter>(), by_direct = pattern<AdvancedParameter>();
        int rc = -99;
        EXPECT_GT(allocations_of(tree, &by_tree, &rc), 0) << levels;
        ASSERT_EQ(rc, 0) << levels;
        // Each literal marks its own item: 2^53 + 1 is read exactly only when
        // the walk pairs it with its item after the nested arrays.
        EXPECT_EQ(by_tree.EncodeWorkMode, kLow32Of2To53Plus1) << levels;
        EXPECT_EQ(by_tree.EncodeChannelBitmap0, kLow32OfMinus10To15Minus1) << levels;
        EXPECT_EQ(allocations_of(members + "}", &by_direct, &rc), 0) << levels;
        ASSERT_EQ(rc, 0) << levels;
        EXPECT_EQ(std::memcmp(&by_tree, &by_direct, sizeof by_tree), 0) << levels;
    }
}

TEST(TreePath, PairsEachNumberLiteralWithItsOwnItemAtEveryDepth) {
    // Numbers at every depth, integers and not, before and after the deep
    // part: the walk must pair each literal with its own item.
    std::string inner = "[1000000000000000]";
    for (int i = 0; i < 60; ++i) inner = "[-0, " + inner + ", 2.5e0, " + std::to_string(i) + "]";
    const std::string members = "{\"EncodeWorkMode\": 4294967295, \"Deep\": " + inner +
                                ", \"EncodeChannelBitmap0\": -9223372036854775808";
    AdvancedParameter by_tree = pattern<AdvancedParameter>(), by_direct = pattern<AdvancedParameter>();
    int rc = -99;
    EXPECT_GT(allocations_of(members + kLongLiteral + "}", &by_tree, &rc), 0);
    ASSERT_EQ(rc, 0);
    EXPECT_EQ(by_tree.EncodeWorkMode, 4294967295u);
    EXPECT_EQ(by_tree.EncodeChannelBitmap0, 0u);  // the low 32 bits of -2^63
    EXPECT_EQ(allocations_of(members + "}", &by_direct, &rc), 0);
    ASSERT_EQ(rc, 0);
    EXPECT_EQ(std::memcmp(&by_tree, &by_direct, sizeof by_tree), 0);
}

TEST(TreePath, GivesMinus2AndTheParseDiagnosticWhenALargeIntegersTextCannotBeAllocated) {
    const std::string text = std::string(kLarge) + kLongLiteral + "}";
    // The same text with small integers: the large ones cost one allocation
    // each, their decimal text, made after cJSON's parse.
    const std::string small = "{\"EncodeWorkMode\": 9007, \"EncodeChannelBitmap0\": -1" + kLongLiteral + "}";
    AdvancedParameter rec = pattern<AdvancedParameter>();
    int rc = -99;
    const long with_large = allocations_of(text, &rec, &rc);
    ASSERT_EQ(rc, 0);
    const long with_small = allocations_of(small, &rec, &rc);
    ASSERT_EQ(rc, 0);
    ASSERT_EQ(with_large, with_small + 2);
    for (long failing : {with_large - 2, with_large - 1}) {
        rec = pattern<AdvancedParameter>();
        StderrCapture err;
        {
            CjsonFaults faults(failing, true);
            rc = j2s_AdvancedParameter(text.c_str(), &rec);
        }
        EXPECT_EQ(rc, -2) << failing;
        const AdvancedParameter untouched = pattern<AdvancedParameter>();
        EXPECT_EQ(std::memcmp(&rec, &untouched, sizeof rec), 0) << failing;
        // cJSON's parse succeeded, so it gives no position.
        EXPECT_EQ(err.text(), text_diag(lines_of("AdvancedParameter").j2s, "j2s_AdvancedParameter",
                                        "cJSON_Parse(" + text + ") failed! reason: \n"))
            << failing;
    }
}

TEST(AddIntToObject, GivesNullAndAddsNothingWhenTheKeyCannotBeCopied) {
    // The item (and a raw item's text), then the copy of the key.
    const struct {
        int64_t value;
        long allocations;
    } cases[] = {{-5, 2}, {1000000000000000LL, 3}};
    for (const auto &c : cases) {
        Tree obj(cJSON_CreateObject());
        {
            CjsonFaults count_only(-1);
            cJSON *item = cJSON_AddIntToObject(obj.p, "k", c.value);
            ASSERT_NE(item, nullptr) << c.value;
            EXPECT_EQ(CjsonFaults::allocations(), c.allocations) << c.value;
        }
        cJSON_DeleteItemFromObject(obj.p, "k");
        ASSERT_EQ(obj.p->child, nullptr);
        {
            CjsonFaults faults(c.allocations - 1, true);
            EXPECT_EQ(cJSON_AddIntToObject(obj.p, "k", c.value), nullptr) << c.value;
        }
        EXPECT_EQ(obj.p->child, nullptr) << c.value;
        EXPECT_EQ(print_compact(obj.p), "{}") << c.value;
    }
}

TEST(CreateInt, GivesNullAndAddIntToObjectAddsNothingWhenTheItemCannotBeAllocated) {
    // A number item is one allocation; a raw item two, the item and its text.
    const struct {
        int64_t value;
        long allocations;
    } cases[] = {{-5, 1}, {-1000000000000000LL, 2}};
    for (const auto &c : cases) {
        {
            CjsonFaults count_only(-1);
            Tree item(cJSON_CreateInt(c.value));
            ASSERT_NE(item.p, nullptr) << c.value;
            EXPECT_EQ(CjsonFaults::allocations(), c.allocations) << c.value;
        }
        for (long failing = 0; failing < c.allocations; ++failing) {
            Tree obj(cJSON_CreateObject());
            {
                CjsonFaults faults(failing, true);
                EXPECT_EQ(cJSON_CreateInt(c.value), nullptr) << c.value << " " << failing;
            }
            {
                CjsonFaults faults(failing, true);
                EXPECT_EQ(cJSON_AddIntToObject(obj.p, "k", c.value), nullptr) << c.value << " " << failing;
            }
            EXPECT_EQ(obj.p->child, nullptr) << c.value << " " << failing;
        }
    }
}

TEST(DirectReader, ReadsUpperCaseHexDigitsOfAUnicodeEscapeAsLowerCaseOnesAndAsTheTree) {
    const char upper[] = "{\"ProductModel\": \"\\u00C9\\uABCD\\uD83D\\uDE00\\u004A\"}";
    const char lower[] = "{\"ProductModel\": \"\\u00c9\\uabcd\\ud83d\\ude00\\u004a\"}";
    DeviceInfo by_upper = pattern<DeviceInfo>(), by_lower = pattern<DeviceInfo>(), by_tree = pattern<DeviceInfo>();
    {
        CjsonFaults count_only(-1);
        ASSERT_EQ(j2s_DeviceInfo(upper, &by_upper), 0);
        ASSERT_EQ(j2s_DeviceInfo_with_len(lower, sizeof lower - 1, &by_lower), 0);
        EXPECT_EQ(CjsonFaults::allocations(), 0) << "the direct reader did not read the texts";
    }
    EXPECT_STREQ(by_upper.ProductModel, "\xC3\x89\xEA\xAF\x8D\xF0\x9F\x98\x80J");
    EXPECT_EQ(std::memcmp(&by_upper, &by_lower, sizeof by_upper), 0);
    Tree tree(cJSON_Parse(upper));
    ASSERT_EQ(c2s_DeviceInfo(tree.p, &by_tree), 0);
    EXPECT_EQ(std::memcmp(&by_upper, &by_tree, sizeof by_upper), 0);
}

TEST(DirectReader, ReadsObjectsNestedAsDeepAsCJSONAllowsAndLeavesDeeperOnesToItsRefusal) {
    bool read = false, refused = false;
    for (int levels : {998, 999, 1000}) {
        // The record's object holds `levels` more, one in the other.
        std::string nested = "{}";
        for (int i = 1; i < levels; ++i) nested = "{\"Zz\":" + nested + "}";
        const std::string text = "{\"EncodeWorkMode\": 7, \"Zz\": " + nested + "}";
        Tree tree(cJSON_Parse(text.c_str()));
        const std::string reason = parse_reason(text.c_str());
        AdvancedParameter rec = pattern<AdvancedParameter>();
        StderrCapture err;
        const int rc = j2s_AdvancedParameter(text.c_str(), &rec);
        const std::string printed = err.text();
        if (tree.p != nullptr) {
            read = true;
            EXPECT_EQ(rc, 0) << levels;
            EXPECT_EQ(rec.EncodeWorkMode, 7u) << levels;
            EXPECT_EQ(printed, "") << levels;
        } else {
            refused = true;
            EXPECT_EQ(rc, -2) << levels;
            const AdvancedParameter untouched = pattern<AdvancedParameter>();
            EXPECT_EQ(std::memcmp(&rec, &untouched, sizeof rec), 0) << levels;
            EXPECT_EQ(printed, text_diag(lines_of("AdvancedParameter").j2s, "j2s_AdvancedParameter",
                                         "cJSON_Parse(" + text + ") failed! reason: " + reason + "\n"))
                << levels;
        }
    }
    EXPECT_TRUE(read);
    EXPECT_TRUE(refused);
}

}  // namespace
