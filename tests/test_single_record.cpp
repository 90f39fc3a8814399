// Single-record families: s2j, c2s, j2s, j2s_with_len; their statuses and
// diagnostics, byte for byte.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "app_s2j.h"
#include "support.h"

using namespace testing_support;

namespace {

// DeviceInfo's lines in the instantiation list.
constexpr int kS2jLine = 24, kC2sLine = 25, kJ2sLine = 26;

DeviceInfo sample() {
    DeviceInfo info = {};
    std::strcpy(info.ProductModel, "AVX-4K-E200");
    std::strcpy(info.SerialNumber, "SN2024110700123");
    std::strcpy(info.ProductName, "4K Encoder");
    std::strcpy(info.FirmwareVersion, "V2.3.1");
    std::strcpy(info.ReleaseDate, "2024-11-07");
    std::strcpy(info.SDKVersion, "1.8.0");
    std::strcpy(info.ManufacturerName, "Example Devices");
    return info;
}

TEST(SingleRecord, S2jWithFlagGivesIndentedTextAndWithoutCompactTextBothReadingBack) {
    DeviceInfo info = sample();
    Text indented(s2j_DeviceInfo(&info, 1)), compact(s2j_DeviceInfo(&info, 0));
    EXPECT_EQ(compact.str(),
              "{\"ProductModel\":\"AVX-4K-E200\",\"SerialNumber\":\"SN2024110700123\",\"ProductName\":\"4K "
              "Encoder\",\"FirmwareVersion\":\"V2.3.1\",\"ReleaseDate\":\"2024-11-07\",\"SDKVersion\":\"1.8.0\","
              "\"ManufacturerName\":\"Example Devices\"}");
    EXPECT_EQ(indented.str().substr(0, 34), "{\n\t\"ProductModel\":\t\"AVX-4K-E200\",\n");
    for (const Text *t : {&indented, &compact}) {
        DeviceInfo back = {};
        EXPECT_EQ(j2s_DeviceInfo(t->p, &back), 0);
        EXPECT_EQ(std::memcmp(&back, &info, sizeof info), 0);
    }
}

TEST(SingleRecord, NothingIsPrintedOnSuccess) {
    StderrCapture err;
    DeviceInfo info = sample();
    Text t(s2j_DeviceInfo(&info, 0));
    DeviceInfo back = {};
    EXPECT_EQ(j2s_DeviceInfo(t.p, &back), 0);
    EXPECT_EQ(j2s_DeviceInfo_with_len(t.p, std::strlen(t.p), &back), 0);
    Tree tree(cJSON_Parse(t.p));
    EXPECT_EQ(c2s_DeviceInfo(tree.p, &back), 0);
    EXPECT_EQ(err.text(), "");
}

TEST(SingleRecord, S2jOfNullRecordReturnsNullWithDiagnostic) {
    StderrCapture err;
    EXPECT_EQ(s2j_DeviceInfo(nullptr, 1), nullptr);
    EXPECT_EQ(err.text(), text_diag(kS2jLine, "s2j_DeviceInfo", "struct_ptr is empty!\n"));
}

TEST(SingleRecord, S2jReportsEmitterFailureWithoutNewlineWhenObjectCannotBeMade) {
    DeviceInfo info = sample();
    StderrCapture err;
    {
        CjsonFaults faults(0);
        EXPECT_EQ(s2j_DeviceInfo(&info, 1), nullptr);
    }
    EXPECT_EQ(err.text(), text_diag(kS2jLine, "s2j_DeviceInfo", "struct_to_json_DeviceInfo failed!"));
}

TEST(SingleRecord, S2jWithoutRoomForItsTextMakesTheSameTextThroughATree) {
    DeviceInfo info = sample();
    Text full(s2j_DeviceInfo(&info, 0));
    StderrCapture err;
    char *text;
    {
        CjsonFaults faults(0, true);
        text = s2j_DeviceInfo(&info, 0);
        EXPECT_GT(CjsonFaults::allocations(), 1);
    }
    Text t(text);
    EXPECT_EQ(t.str(), full.str());
    EXPECT_EQ(err.text(), "");
}

// The text's buffer refused, fails cJSON's n-th allocation for n = 1, 2, ...
// until the call succeeds: the object itself (diagnostic, null), a member
// (left out, text made), or the printer (null, no diagnostic).  Every path
// frees what it made.
TEST(SingleRecord, S2jUnderFailingAllocationsLosesMembersOrReturnsNullNeverLeaks) {
    DeviceInfo info = sample();
    Text full(s2j_DeviceInfo(&info, 0));
    for (long n = 1;; ++n) {
        StderrCapture err;
        char *text;
        {
            CjsonFaults faults(n, true, true);
            text = s2j_DeviceInfo(&info, 0);
        }
        Text t(text);
        std::string e = err.text();
        if (n == 1) {
            EXPECT_EQ(text, nullptr);
            EXPECT_EQ(e, text_diag(kS2jLine, "s2j_DeviceInfo", "struct_to_json_DeviceInfo failed!"));
            continue;
        }
        EXPECT_EQ(e, "") << n;
        if (text != nullptr && std::string(text) == full.str()) break;
        ASSERT_LT(n, 100) << "no success after 100 failed allocations";
    }
}

TEST(SingleRecord, C2sReportsNonObjectTreeBeforeNullRecord) {
    StderrCapture err;
    EXPECT_EQ(c2s_DeviceInfo(nullptr, nullptr), -2);
    EXPECT_EQ(err.text(), text_diag(kC2sLine, "c2s_DeviceInfo", "the cJSON pointer is not an object!\n"));
}

TEST(SingleRecord, C2sOfArrayTreeIsRefused) {
    Tree tree(cJSON_CreateArray());
    DeviceInfo info = {};
    StderrCapture err;
    EXPECT_EQ(c2s_DeviceInfo(tree.p, &info), -2);
    EXPECT_EQ(err.text(), text_diag(kC2sLine, "c2s_DeviceInfo", "the cJSON pointer is not an object!\n"));
}

TEST(SingleRecord, C2sWithNullRecordIsRefused) {
    Tree tree(cJSON_CreateObject());
    StderrCapture err;
    EXPECT_EQ(c2s_DeviceInfo(tree.p, nullptr), -2);
    EXPECT_EQ(err.text(), text_diag(kC2sLine, "c2s_DeviceInfo", "struct_ptr is empty!\n"));
}

TEST(SingleRecord, C2sReportsReaderFailureWithNewlineAndKeepsThePartialFill) {
    Tree tree(cJSON_Parse("{\"ProductModel\": \"A\", \"SerialNumber\": 5, \"ProductName\": \"C\"}"));
    DeviceInfo info = sample();
    StderrCapture err;
    EXPECT_EQ(c2s_DeviceInfo(tree.p, &info), -1);
    EXPECT_EQ(err.text(), text_diag(kC2sLine, "c2s_DeviceInfo", "json_to_struct_DeviceInfo failed!\n"));
    EXPECT_STREQ(info.ProductModel, "A");
    EXPECT_STREQ(info.SerialNumber, "SN2024110700123");
    EXPECT_STREQ(info.ProductName, "4K Encoder");
}

// What j2s_DeviceInfo writes to the standard error stream as it refuses
// `text` (status -2).
std::string j2s_refusal(const char *text) {
    DeviceInfo info = {};
    return j2s_stderr(j2s_DeviceInfo, text, &info, -2);
}

// The same of j2s_DeviceInfo_with_len refusing `len` bytes of `text`.
std::string j2s_with_len_refusal(const char *text, size_t len) {
    DeviceInfo info = {};
    StderrCapture err;
    EXPECT_EQ(j2s_DeviceInfo_with_len(text, len, &info), -2) << text;
    return err.text();
}

TEST(SingleRecord, J2sOfEmptyArrayIsRefusedByC2sUnderItsOwnName) {
    EXPECT_EQ(j2s_refusal("[]"), text_diag(kC2sLine, "c2s_DeviceInfo", "the cJSON pointer is not an object!\n"));
}

TEST(SingleRecord, J2sOfEmptyObjectSucceedsAndLeavesRecordUntouched) {
    DeviceInfo info = sample(), before = sample();
    EXPECT_EQ(j2s_DeviceInfo("{}", &info), 0);
    EXPECT_EQ(std::memcmp(&info, &before, sizeof info), 0);
}

TEST(SingleRecord, J2sOfTruncatedTextPrintsWholeTextAndReasonEndingInNewline) {
    EXPECT_EQ(j2s_refusal("{"), text_diag(kJ2sLine, "j2s_DeviceInfo", "cJSON_Parse({) failed! reason: \n"));
}

TEST(SingleRecord, J2sQuotesTheRestOfTheTextFromWhereParsingStopped) {
    EXPECT_EQ(j2s_refusal("{\"ProductModel\": nope}"),
              text_diag(kJ2sLine, "j2s_DeviceInfo", "cJSON_Parse({\"ProductModel\": nope}) failed! reason: nope}\n"));
}

TEST(SingleRecord, J2sWithLenOfTruncatedTextPrintsNoNewlineBeforeTheReset) {
    EXPECT_EQ(j2s_with_len_refusal("{", 1),
              text_diag(kJ2sLine, "j2s_DeviceInfo_with_len", "cJSON_ParseWithLength({, 1) failed! reason: {"));
}

TEST(SingleRecord, J2sWithLenPrintsTheWholeNulTerminatedTextWhateverTheLength) {
    const std::string e = j2s_with_len_refusal("{\"ProductModel\": \"x\"}", 3);
    EXPECT_EQ(e.find(text_diag(kJ2sLine, "j2s_DeviceInfo_with_len", "").substr(0, 20)), 0u);
    EXPECT_NE(e.find("cJSON_ParseWithLength({\"ProductModel\": \"x\"}, 3) failed! reason: "), std::string::npos);
}

TEST(SingleRecord, J2sWithLenReadsOnlyTheGivenBytes) {
    DeviceInfo info = {};
    const char text[] = "{\"ProductModel\": \"abc\"} garbage";
    EXPECT_EQ(j2s_DeviceInfo_with_len(text, 23, &info), 0);
    EXPECT_STREQ(info.ProductModel, "abc");
}

TEST(SingleRecord, J2sWithLenOfLengthZeroIsRefusedWithoutParsing) {
    EXPECT_EQ(j2s_with_len_refusal("{}", 0),
              text_diag(kJ2sLine, "j2s_DeviceInfo_with_len", "json_str or json_str_len or struct_ptr is empty!\n"));
}

TEST(SingleRecord, J2sWithNullArgumentsIsRefused) {
    DeviceInfo info = {};
    for (int which = 0; which < 2; ++which) {
        StderrCapture err;
        EXPECT_EQ(which == 0 ? j2s_DeviceInfo(nullptr, &info) : j2s_DeviceInfo("{}", nullptr), -2);
        EXPECT_EQ(err.text(), text_diag(kJ2sLine, "j2s_DeviceInfo", "json_str or struct_ptr is empty!\n"));
    }
    for (int which = 0; which < 2; ++which) {
        StderrCapture err;
        EXPECT_EQ(which == 0 ? j2s_DeviceInfo_with_len(nullptr, 2, &info) : j2s_DeviceInfo_with_len("{}", 2, nullptr),
                  -2);
        EXPECT_EQ(err.text(),
                  text_diag(kJ2sLine, "j2s_DeviceInfo_with_len", "json_str or json_str_len or struct_ptr is empty!\n"));
    }
}

TEST(SingleRecord, J2sReportsReaderFailureUnderC2sAndReturnsMinusOne) {
    DeviceInfo info = {};
    for (int with_len = 0; with_len < 2; ++with_len) {
        StderrCapture err;
        const char *text = "{\"ProductModel\": 1}";
        EXPECT_EQ(with_len ? j2s_DeviceInfo_with_len(text, std::strlen(text), &info) : j2s_DeviceInfo(text, &info), -1);
        EXPECT_EQ(err.text(), text_diag(kC2sLine, "c2s_DeviceInfo", "json_to_struct_DeviceInfo failed!\n"));
    }
}

TEST(SingleRecord, J2sUnderFailingParserAllocationsReportsParseFailureNeverLeaks) {
    const char *text = "{\"ProductModel\": \"AVX\", \"SerialNumber\": \"SN1\"}";
    for (long n = 0;; ++n) {
        DeviceInfo info = {};
        int rc;
        StderrCapture err;
        {
            CjsonFaults faults(n, true);
            rc = j2s_DeviceInfo(text, &info);
        }
        std::string e = err.text();
        if (rc == 0) {
            EXPECT_STREQ(info.SerialNumber, "SN1");
            break;
        }
        EXPECT_EQ(rc, -2);
        EXPECT_EQ(e.rfind("\033[1;31m<ERROR! " + text_list_file() + ":26, j2s_DeviceInfo>: cJSON_Parse(", 0), 0u) << e;
        ASSERT_LT(n, 100);
    }
}

std::vector<std::string> *g_writes;
ssize_t record_write(void *, const char *buf, size_t n) {
    g_writes->emplace_back(buf, n);
    return static_cast<ssize_t>(n);
}

TEST(SingleRecord, DiagnosticIsWrittenAsHeaderMessageAndResetInThreeWrites) {
    std::vector<std::string> writes;
    g_writes = &writes;
    cookie_io_functions_t io = {nullptr, record_write, nullptr, nullptr};
    FILE *counting = fopencookie(nullptr, "w", io);
    ASSERT_NE(counting, nullptr);
    setvbuf(counting, nullptr, _IONBF, 0);
    FILE *saved = stderr;
    stderr = counting;
    char *text = s2j_DeviceInfo(nullptr, 0);
    int rc = j2s_DeviceInfo_with_len("{", 1, nullptr);
    stderr = saved;
    fclose(counting);
    EXPECT_EQ(text, nullptr);
    EXPECT_EQ(rc, -2);
    std::string header = "\033[1;31m<ERROR! " + text_list_file() + ":";
    ASSERT_EQ(writes.size(), 6u);
    EXPECT_EQ(writes[0], header + "24, s2j_DeviceInfo>: ");
    EXPECT_EQ(writes[1], "struct_ptr is empty!\n");
    EXPECT_EQ(writes[2], "\033[0m");
    EXPECT_EQ(writes[3], header + "26, j2s_DeviceInfo_with_len>: ");
    EXPECT_EQ(writes[4], "json_str or json_str_len or struct_ptr is empty!\n");
    EXPECT_EQ(writes[5], "\033[0m");
}

}  // namespace
