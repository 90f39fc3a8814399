// File families: f2s, s2f, f2s_array, s2f_array.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstring>
#include <string>
#include <vector>

#include "app_s2j.h"
#include "registry.h"
#include "support.h"

using namespace testing_support;

namespace {

constexpr int kF2sCapabilityLine = 115, kF2sArrayLine = 117, kS2fArrayLine = 118;
constexpr int kS2jArrayLine = 10;

CrontabParameter task(uint32_t index) {
    return crontab_task(index, "0", "3", "*", "/usr/bin/cleanup --slot " + std::to_string(index));
}

DeviceInfo info() {
    DeviceInfo d = {};
    std::strcpy(d.ProductModel, "AVX-4K-E200");
    std::strcpy(d.SerialNumber, "SN2024110700123");
    std::strcpy(d.FirmwareVersion, "V2.3.1");
    return d;
}

TEST(Files, RecordWrittenByS2fIsIndentedTextWithoutTrailingNewlineAndReadsBack) {
    std::string path = temp_dir() + "/device.json";
    DeviceInfo d = info();
    StderrCapture err;
    ASSERT_EQ(s2f_DeviceInfo(path.c_str(), &d), 0);
    Text want(s2j_DeviceInfo(&d, 1));
    EXPECT_EQ(read_file(path), want.str());
    EXPECT_NE(read_file(path).back(), '\n');
    DeviceInfo back = {};
    EXPECT_EQ(f2s_DeviceInfo(path.c_str(), &back), 0);
    EXPECT_EQ(std::memcmp(&back, &d, sizeof d), 0);
    EXPECT_EQ(err.text(), "");
}

TEST(Files, S2fOverwritesAnExistingFileInPlace) {
    std::string path = temp_dir() + "/device.json";
    write_file(path, std::string(10000, 'x'));
    DeviceInfo d = info();
    ASSERT_EQ(s2f_DeviceInfo(path.c_str(), &d), 0);
    Text want(s2j_DeviceInfo(&d, 1));
    EXPECT_EQ(read_file(path), want.str());
}

TEST(Files, RecordArrayWrittenByS2fArrayReadsBackAndAnswersAQuery) {
    std::string path = temp_dir() + "/crontab.json";
    CrontabParameter tasks[3] = {task(1), task(2), task(3)};
    ASSERT_EQ(s2f_array_CrontabParameter(path.c_str(), tasks, 3), 0);
    Text want(s2j_array_CrontabParameter(tasks, 3, 1));
    EXPECT_EQ(read_file(path), want.str());
    uint32_t n = 0;
    EXPECT_EQ(f2s_array_CrontabParameter(path.c_str(), nullptr, &n), 0);
    EXPECT_EQ(n, 3u);
    CrontabParameter back[3] = {};
    EXPECT_EQ(f2s_array_CrontabParameter(path.c_str(), back, &n), 0);
    EXPECT_EQ(std::memcmp(back, tasks, sizeof tasks), 0);
}

// What f2s_CrontabCapabilitySet writes to the standard error stream as it
// reads a file that holds `text`, returning `status`.
std::string f2s_caps_diagnostic(const std::string &text, int status) {
    const std::string path = temp_dir() + "/caps.json";
    write_file(path, text);
    CrontabCapabilitySet c = {};
    StderrCapture err;
    EXPECT_EQ(f2s_CrontabCapabilitySet(path.c_str(), &c), status) << text;
    return err.text();
}

TEST(Files, EmptyFileIsAParseFailureReportedByJ2s) {
    EXPECT_EQ(f2s_caps_diagnostic("", -2), diag(text_list_file(), 8, "j2s_CrontabCapabilitySet",
                                                "cJSON_Parse() failed! reason: " + parse_reason("") + "\n"));
}

TEST(Files, MissingFileGivesMinus15AndPrintsNothing) {
    std::string path = temp_dir() + "/absent.json";
    CrontabCapabilitySet c = {};
    uint32_t n = 4;
    StderrCapture err;
    EXPECT_EQ(f2s_CrontabCapabilitySet(path.c_str(), &c), -15);
    EXPECT_EQ(f2s_array_CrontabParameter(path.c_str(), nullptr, &n), -15);
    EXPECT_EQ(err.text(), "");
    EXPECT_EQ(n, 4u);
}

TEST(Files, S2fArrayWithCountZeroGivesMinus15AndNeitherCreatesNorTruncatesTheFile) {
    std::string dir = temp_dir();
    CrontabParameter tasks[1] = {task(1)};
    {
        StderrCapture err;
        EXPECT_EQ(s2f_array_CrontabParameter((dir + "/new.json").c_str(), tasks, 0), -15);
        EXPECT_EQ(err.text(), diag(text_list_file(), kS2jArrayLine, "s2j_array_CrontabParameter",
                                   "struct_array or struct_array_size is empty!\n"));
    }
    EXPECT_FALSE(file_exists(dir + "/new.json"));
    write_file(dir + "/old.json", "[1]");
    {
        StderrCapture err;
        EXPECT_EQ(s2f_array_CrontabParameter((dir + "/old.json").c_str(), tasks, 0), -15);
    }
    EXPECT_EQ(read_file(dir + "/old.json"), "[1]");
}

TEST(Files, S2fOfNullRecordGivesMinus15WithTheDiagnosticOfS2j) {
    std::string dir = temp_dir();
    StderrCapture err;
    EXPECT_EQ(s2f_DeviceInfo((dir + "/x.json").c_str(), nullptr), -15);
    EXPECT_EQ(err.text(), diag(text_list_file(), s2j::find_type("DeviceInfo")->fam.line.s2j, "s2j_DeviceInfo",
                               "struct_ptr is empty!\n"));
    EXPECT_FALSE(file_exists(dir + "/x.json"));
}

TEST(Files, DirectoryAsFileNameOfS2fGivesMinus7AfterPerrorFopen) {
    std::string dir = temp_dir();
    DeviceInfo d = info();
    StderrCapture err;
    EXPECT_EQ(s2f_DeviceInfo(dir.c_str(), &d), -7);
    EXPECT_EQ(err.text(), std::string("fopen: ") + std::strerror(EISDIR) + "\n");
}

TEST(Files, UnwritableDirectoryGivesMinus7AfterPerrorFopen) {
    CrontabParameter tasks[1] = {task(1)};
    StderrCapture err;
    EXPECT_EQ(s2f_array_CrontabParameter("/nonexistent-dir/x.json", tasks, 1), -7);
    EXPECT_EQ(err.text(), std::string("fopen: ") + std::strerror(ENOENT) + "\n");
}

TEST(Files, ShortWriteGivesMinus7AfterPerrorFwrite) {
    if (!file_exists("/dev/full")) GTEST_SKIP() << "no /dev/full";
    // Larger than the stream's buffer, so that fwrite itself meets the full device.
    CrontabParameter tasks[40];
    for (uint32_t i = 0; i < 40; ++i) {
        tasks[i] = task(i);
        std::memset(tasks[i].Command, 'c', sizeof tasks[i].Command - 1);
    }
    StderrCapture err;
    EXPECT_EQ(s2f_array_CrontabParameter("/dev/full", tasks, 40), -7);
    EXPECT_EQ(err.text(), std::string("fwrite: ") + std::strerror(ENOSPC) + "\n");
}

TEST(Files, NullFileNameIsRefusedUnderTheFileFamilysOwnLine) {
    CrontabParameter tasks[1] = {task(1)};
    uint32_t n = 1;
    CrontabCapabilitySet c = {};
    {
        StderrCapture err;
        EXPECT_EQ(f2s_CrontabCapabilitySet(nullptr, &c), -2);
        EXPECT_EQ(err.text(),
                  diag(file_list_file(), kF2sCapabilityLine, "f2s_CrontabCapabilitySet", "fine_name is empty!\n"));
    }
    {
        StderrCapture err;
        EXPECT_EQ(f2s_array_CrontabParameter(nullptr, tasks, &n), -2);
        EXPECT_EQ(err.text(),
                  diag(file_list_file(), kF2sArrayLine, "f2s_array_CrontabParameter", "fine_name is empty!\n"));
    }
    {
        StderrCapture err;
        EXPECT_EQ(s2f_array_CrontabParameter(nullptr, tasks, 1), -2);
        EXPECT_EQ(err.text(),
                  diag(file_list_file(), kS2fArrayLine, "s2f_array_CrontabParameter", "fine_name is empty!\n"));
    }
}

TEST(Files, ReaderFailureInAFileIsReportedByC2sAndReturnsMinusOne) {
    EXPECT_EQ(f2s_caps_diagnostic("{\"MaxTaskNumber\": \"many\"}", -1),
              diag(text_list_file(), 7, "c2s_CrontabCapabilitySet", "json_to_struct_CrontabCapabilitySet failed!\n"));
}

TEST(Files, ArrayFileReadWithSmallerCapacityFillsOnlyThat) {
    std::string path = temp_dir() + "/crontab.json";
    CrontabParameter tasks[3] = {task(1), task(2), task(3)};
    ASSERT_EQ(s2f_array_CrontabParameter(path.c_str(), tasks, 3), 0);
    EXPECT_EQ(read_array_back(f2s_array_CrontabParameter, path.c_str(), 2, 2)[1].Index, 2u);
}

TEST(Files, DirectoryAsFileNameOfF2sGivesMinus15AndPrintsNothing) {
    std::string dir = temp_dir();
    DeviceInfo d = {};
    uint32_t n = 3;
    StderrCapture err;
    EXPECT_EQ(f2s_DeviceInfo(dir.c_str(), &d), -15);
    EXPECT_EQ(f2s_array_CrontabParameter(dir.c_str(), nullptr, &n), -15);
    EXPECT_EQ(n, 3u);
    EXPECT_EQ(err.text(), "");
}

}  // namespace
