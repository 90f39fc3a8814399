// Record-array families: s2j_array, c2s_array, j2s_array and _with_len.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "app_s2j.h"
#include "support.h"

using namespace testing_support;

namespace {

// CrontabParameter's lines in the instantiation list.
constexpr int kS2jArrayLine = 10, kC2sArrayLine = 11, kJ2sArrayLine = 13;

CrontabParameter task(uint32_t index, const char *command) { return crontab_task(index, "*/5", "*", "1-5", command); }

const char *kFive = "[{\"Index\":1},{\"Index\":2},{\"Index\":3},{\"Index\":4},{\"Index\":5}]";

// c2s_array of the tree of `doc` into `tasks`, with room for `room` of them:
// status 0 and `count` records read.
void expect_c2s_array_reads(const char *doc, CrontabParameter *tasks, uint32_t room, uint32_t count) {
    Tree tree(cJSON_Parse(doc));
    uint32_t n = room;
    EXPECT_EQ(c2s_array_CrontabParameter(tree.p, tasks, &n), 0) << doc;
    EXPECT_EQ(n, count) << doc;
}

TEST(RecordArrays, S2jArrayEmitsElementsInOrderIndentedOrCompact) {
    CrontabParameter tasks[2] = {task(1, "sync"), task(2, "reboot")};
    Text compact(s2j_array_CrontabParameter(tasks, 2, 0));
    EXPECT_EQ(compact.str(),
              "[{\"Index\":1,\"Enable\":1,\"Minute\":\"*/5\",\"Hour\":\"*\",\"Day\":\"*\",\"Month\":\"*\","
              "\"Weekday\":\"1-5\",\"Command\":\"sync\"},{\"Index\":2,\"Enable\":1,\"Minute\":\"*/5\",\"Hour\":\"*\","
              "\"Day\":\"*\",\"Month\":\"*\",\"Weekday\":\"1-5\",\"Command\":\"reboot\"}]");
    Text indented(s2j_array_CrontabParameter(tasks, 2, 1));
    EXPECT_EQ(indented.str().substr(0, 16), "[{\n\t\t\"Index\":\t1,");
}

TEST(RecordArrays, S2jArrayWithCountZeroReturnsNullWithDiagnostic) {
    CrontabParameter tasks[1] = {task(1, "x")};
    StderrCapture err;
    EXPECT_EQ(s2j_array_CrontabParameter(tasks, 0, 1), nullptr);
    EXPECT_EQ(err.text(),
              text_diag(kS2jArrayLine, "s2j_array_CrontabParameter", "struct_array or struct_array_size is empty!\n"));
}

TEST(RecordArrays, S2jArrayWithNullArrayReturnsNullWithDiagnostic) {
    StderrCapture err;
    EXPECT_EQ(s2j_array_CrontabParameter(nullptr, 3, 0), nullptr);
    EXPECT_EQ(err.text(),
              text_diag(kS2jArrayLine, "s2j_array_CrontabParameter", "struct_array or struct_array_size is empty!\n"));
}

TEST(RecordArrays, S2jArrayReportsFailureToCreateTheArray) {
    CrontabParameter tasks[1] = {task(1, "x")};
    StderrCapture err;
    {
        CjsonFaults faults(0);
        EXPECT_EQ(s2j_array_CrontabParameter(tasks, 1, 0), nullptr);
    }
    EXPECT_EQ(err.text(), text_diag(kS2jArrayLine, "s2j_array_CrontabParameter", "cJSON_CreateArray failed!\n"));
}

TEST(RecordArrays, S2jArrayReportsEmitterFailureWithoutNewlineAndFreesWhatItBuilt) {
    CrontabParameter tasks[2] = {task(1, "x"), task(2, "y")};
    StderrCapture err;
    {
        CjsonFaults faults(2, false, true);  // no room for the text; the array is made, the first object is not
        EXPECT_EQ(s2j_array_CrontabParameter(tasks, 2, 0), nullptr);
    }
    EXPECT_EQ(err.text(),
              text_diag(kS2jArrayLine, "s2j_array_CrontabParameter", "struct_to_json_CrontabParameter failed!"));
}

TEST(RecordArrays, S2jArrayUnderEveryFailingAllocationNeverLeaksAndPrintsOnlyItsOwnDiagnostics) {
    CrontabParameter tasks[2] = {task(1, "x"), task(2, "y")};
    Text full(s2j_array_CrontabParameter(tasks, 2, 1));
    for (long n = 1;; ++n) {  // the text's buffer refused, then the n-th allocation of the tree
        StderrCapture err;
        char *text;
        {
            CjsonFaults faults(n, true, true);
            text = s2j_array_CrontabParameter(tasks, 2, 1);
        }
        Text t(text);
        std::string e = err.text();
        EXPECT_TRUE(
            e.empty() || e == text_diag(kS2jArrayLine, "s2j_array_CrontabParameter", "cJSON_CreateArray failed!\n") ||
            e == text_diag(kS2jArrayLine, "s2j_array_CrontabParameter", "struct_to_json_CrontabParameter failed!"))
            << e;
        if (text != nullptr && t.str() == full.str()) break;
        ASSERT_LT(n, 200);
    }
}

TEST(RecordArrays, C2sArrayWithNullArrayStoresTheElementCountWhateverItHeld) {
    Tree tree(cJSON_Parse(kFive));
    uint32_t n = 1234;
    StderrCapture err;
    EXPECT_EQ(c2s_array_CrontabParameter(tree.p, nullptr, &n), 0);
    EXPECT_EQ(n, 5u);
    EXPECT_EQ(err.text(), "");
}

TEST(RecordArrays, CapacityTwoReadsTwoOfFiveElements) {
    CrontabParameter tasks[3] = {task(9, "a"), task(9, "b"), task(9, "c")};
    expect_c2s_array_reads(kFive, tasks, 2, 2);
    EXPECT_EQ(tasks[0].Index, 1u);
    EXPECT_EQ(tasks[1].Index, 2u);
    EXPECT_EQ(tasks[2].Index, 9u);  // beyond the capacity: untouched
    EXPECT_STREQ(tasks[0].Command, "a");  // absent keys are skipped
}

TEST(RecordArrays, CapacityZeroReadsNothing) {
    CrontabParameter tasks[1] = {task(9, "a")};
    expect_c2s_array_reads(kFive, tasks, 0, 0);
    EXPECT_EQ(tasks[0].Index, 9u);
}

TEST(RecordArrays, EmptyJsonArrayWithCapacityFourGivesCountZero) {
    CrontabParameter tasks[4] = {};
    expect_c2s_array_reads("[]", tasks, 4, 0);
}

TEST(RecordArrays, ElementsThatAreNumbersAreReadAsEmptyObjects) {
    CrontabParameter tasks[3] = {task(7, "a"), task(8, "b"), task(9, "c")};
    expect_c2s_array_reads("[1, 2, 3]", tasks, 3, 3);
    EXPECT_EQ(tasks[0].Index, 7u);
    EXPECT_EQ(tasks[2].Index, 9u);
}

TEST(RecordArrays, WrongTypeInSecondElementFailsWithCountUnchangedAndFirstElementRead) {
    Tree tree(cJSON_Parse(
        "[{\"Index\": 1, \"Command\": \"one\"}, {\"Index\": 2, \"Enable\": \"yes\", \"Command\": \"two\"}]"));
    CrontabParameter tasks[2] = {task(7, "a"), task(8, "b")};
    uint32_t n = 2;
    StderrCapture err;
    EXPECT_EQ(c2s_array_CrontabParameter(tree.p, tasks, &n), -1);
    EXPECT_EQ(err.text(),
              text_diag(kC2sArrayLine, "c2s_array_CrontabParameter", "json_to_struct_CrontabParameter failed!\n"));
    EXPECT_EQ(n, 2u);
    EXPECT_EQ(tasks[0].Index, 1u);
    EXPECT_STREQ(tasks[0].Command, "one");
    EXPECT_EQ(tasks[1].Index, 2u);  // partly filled up to the bad member
    EXPECT_STREQ(tasks[1].Command, "b");
}

TEST(RecordArrays, C2sArrayChecksTheCountBeforeTheTree) {
    StderrCapture err;
    EXPECT_EQ(c2s_array_CrontabParameter(nullptr, nullptr, nullptr), -2);
    EXPECT_EQ(err.text(), text_diag(kC2sArrayLine, "c2s_array_CrontabParameter", "struct_array_size is empty!\n"));
}

TEST(RecordArrays, C2sArrayRefusesAnObjectTreeAndLeavesTheCount) {
    Tree tree(cJSON_Parse("{}"));
    uint32_t n = 4;
    StderrCapture err;
    EXPECT_EQ(c2s_array_CrontabParameter(tree.p, nullptr, &n), -2);
    EXPECT_EQ(n, 4u);
    EXPECT_EQ(err.text(),
              text_diag(kC2sArrayLine, "c2s_array_CrontabParameter", "the cJSON pointer is not an array!\n"));
}

TEST(RecordArrays, J2sArrayWithNullArrayIsAQuery) {
    uint32_t n = 0;
    EXPECT_EQ(j2s_array_CrontabParameter(kFive, nullptr, &n), 0);
    EXPECT_EQ(n, 5u);
    n = 0;
    EXPECT_EQ(j2s_array_CrontabParameter_with_len(kFive, std::strlen(kFive), nullptr, &n), 0);
    EXPECT_EQ(n, 5u);
}

TEST(RecordArrays, J2sArrayRefusesNullTextOrCount) {
    uint32_t n = 1;
    for (int which = 0; which < 2; ++which) {
        StderrCapture err;
        EXPECT_EQ(which ? j2s_array_CrontabParameter("[]", nullptr, nullptr)
                        : j2s_array_CrontabParameter(nullptr, nullptr, &n),
                  -2);
        EXPECT_EQ(err.text(),
                  text_diag(kJ2sArrayLine, "j2s_array_CrontabParameter", "json_str or struct_array_size is empty!\n"));
    }
    for (int which = 0; which < 3; ++which) {
        StderrCapture err;
        int rc = which == 0   ? j2s_array_CrontabParameter_with_len(nullptr, 2, nullptr, &n)
                 : which == 1 ? j2s_array_CrontabParameter_with_len("[]", 0, nullptr, &n)
                              : j2s_array_CrontabParameter_with_len("[]", 2, nullptr, nullptr);
        EXPECT_EQ(rc, -2);
        EXPECT_EQ(err.text(), text_diag(kJ2sArrayLine, "j2s_array_CrontabParameter_with_len",
                                "json_str or json_str_len or struct_array_size is empty!\n"));
    }
}

TEST(RecordArrays, J2sArrayParseFailureMessageHasNoNewline) {
    uint32_t n = 1;
    StderrCapture err;
    EXPECT_EQ(j2s_array_CrontabParameter("[{", nullptr, &n), -2);
    EXPECT_EQ(err.text(), text_diag(kJ2sArrayLine, "j2s_array_CrontabParameter",
                                    "cJSON_Parse([{) failed! reason: " + parse_reason("[{")));
    EXPECT_EQ(n, 1u);
}

TEST(RecordArrays, J2sArrayWithLenParseFailureMessageHasNoNewline) {
    uint32_t n = 1;
    StderrCapture err;
    EXPECT_EQ(j2s_array_CrontabParameter_with_len("[1,2]", 3, nullptr, &n), -2);
    EXPECT_EQ(err.text(), text_diag(kJ2sArrayLine, "j2s_array_CrontabParameter_with_len",
                            "cJSON_ParseWithLength([1,2], 3) failed! reason: " + parse_reason_with_len("[1,2]", 3)));
}

TEST(RecordArrays, J2sArrayOfAnObjectIsRefusedByC2sArray) {
    uint32_t n = 1;
    StderrCapture err;
    EXPECT_EQ(j2s_array_CrontabParameter("{}", nullptr, &n), -2);
    EXPECT_EQ(err.text(),
              text_diag(kC2sArrayLine, "c2s_array_CrontabParameter", "the cJSON pointer is not an array!\n"));
}

TEST(RecordArrays, J2sArrayReadsTheWholeListAndReturnsTheCount) {
    CrontabParameter tasks[2] = {task(1, "sync"), task(2, "reboot")};
    Text text(s2j_array_CrontabParameter(tasks, 2, 1));
    std::vector<CrontabParameter> back = read_array_back(j2s_array_CrontabParameter, text.p, 4, 2);
    EXPECT_EQ(std::memcmp(back.data(), tasks, sizeof tasks), 0);
    CrontabParameter empty = {};
    EXPECT_EQ(std::memcmp(&back[2], &empty, sizeof empty), 0);
}

TEST(RecordArrays, ArrayTypeWithoutUpdateRoundTrips) {
    TimeZone zones[2] = {{"UTC+08:00", "Beijing,Shanghai,Hong Kong,Singapore", 480, 0},
                         {"UTC-05:00", "New York,Toronto", -300, 1}};
    Text text(s2j_array_TimeZone(zones, 2, 0));
    TimeZone back[2] = {};
    uint32_t n = 2;
    EXPECT_EQ(j2s_array_TimeZone_with_len(text.p, std::strlen(text.p), back, &n), 0);
    EXPECT_EQ(std::memcmp(back, zones, sizeof zones), 0);
}

}  // namespace
