// I/O faults of the file families: a full device, a directory or a missing
// directory as the file name, empty, truncated and large files, and a file
// replaced between two calls.  Each test states what the call returns, what
// it prints and what remains on disk.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "support.h"

using namespace testing_support;

namespace {

DeviceInfo sample_info() {
    DeviceInfo d;
    std::memset(&d, 0, sizeof d);
    std::snprintf(d.ProductModel, sizeof d.ProductModel, "ENC-4K");
    std::snprintf(d.SerialNumber, sizeof d.SerialNumber, "SN0001");
    std::snprintf(d.FirmwareVersion, sizeof d.FirmwareVersion, "2.4.1");
    return d;
}

std::vector<CrontabParameter> sample_tasks(size_t n) {
    std::vector<CrontabParameter> v(n);
    for (size_t i = 0; i < n; ++i) {
        std::memset(&v[i], 0, sizeof v[i]);
        v[i].Index = static_cast<int32_t>(i);
        v[i].Enable = 1;
        std::snprintf(v[i].Minute, sizeof v[i].Minute, "%zu", i % 60);
        std::snprintf(v[i].Command, sizeof v[i].Command, "/usr/bin/task --number %zu", i);
    }
    return v;
}

bool full_device_available() { return access("/dev/full", W_OK) == 0; }

TEST(FullDevice, a_text_smaller_than_the_stream_buffer_returns_0_as_only_fclose_sees_the_error) {
    ASSERT_TRUE(full_device_available()) << "/dev/full is needed for this test";
    DeviceInfo d = sample_info();
    Text t(s2j_DeviceInfo(&d, 1));
    ASSERT_LT(std::strlen(t.p), static_cast<size_t>(BUFSIZ));  // stays in the stream's buffer
    StderrCapture err;
    EXPECT_EQ(s2f_DeviceInfo("/dev/full", &d), 0);
    EXPECT_EQ(err.text(), "");  // the failed flush at fclose is not tested
}

TEST(FullDevice, a_text_larger_than_the_stream_buffer_returns_minus_7_after_perror_fwrite) {
    ASSERT_TRUE(full_device_available()) << "/dev/full is needed for this test";
    std::vector<CrontabParameter> tasks = sample_tasks(400);
    Text t(s2j_array_CrontabParameter(tasks.data(), 400, 1));
    ASSERT_GT(std::strlen(t.p), static_cast<size_t>(4 * BUFSIZ));
    StderrCapture err;
    EXPECT_EQ(s2f_array_CrontabParameter("/dev/full", tasks.data(), 400), -7);
    EXPECT_EQ(err.text(), "fwrite: No space left on device\n");
}

TEST(FileName, a_directory_is_not_written_minus_7_and_not_read_minus_15) {
    const std::string dir = temp_dir();
    DeviceInfo d = sample_info();
    {
        StderrCapture err;
        EXPECT_EQ(s2f_DeviceInfo(dir.c_str(), &d), -7);
        EXPECT_EQ(err.text(), "fopen: Is a directory\n");
    }
    DeviceInfo r = sample_info();
    StderrCapture err;
    EXPECT_EQ(f2s_DeviceInfo(dir.c_str(), &r), -15);
    uint32_t n = 4;
    EXPECT_EQ(f2s_array_CrontabParameter(dir.c_str(), nullptr, &n), -15);
    EXPECT_EQ(n, 4u);
    EXPECT_EQ(err.text(), "");
    EXPECT_EQ(std::memcmp(&r, &d, sizeof r), 0);
}

TEST(FileName, in_a_missing_directory_gives_minus_7_with_perror_and_minus_15_silently) {
    const std::string path = temp_dir() + "/no/such/dir/info.json";
    DeviceInfo d = sample_info();
    {
        StderrCapture err;
        EXPECT_EQ(s2f_DeviceInfo(path.c_str(), &d), -7);
        EXPECT_EQ(err.text(), "fopen: No such file or directory\n");
    }
    StderrCapture err;
    EXPECT_EQ(f2s_DeviceInfo(path.c_str(), &d), -15);
    EXPECT_EQ(err.text(), "");
    EXPECT_FALSE(file_exists(path));
}

TEST(FileContent, an_empty_file_gives_minus_2_and_leaves_the_record) {
    const std::string path = temp_dir() + "/empty.json";
    write_file(path, "");
    DeviceInfo d = sample_info(), before = d;
    EXPECT_EQ(f2s_DeviceInfo(path.c_str(), &d), -2);
    EXPECT_EQ(std::memcmp(&d, &before, sizeof d), 0);
    uint32_t n = 3;
    std::vector<CrontabParameter> tasks = sample_tasks(3);
    EXPECT_EQ(f2s_array_CrontabParameter(path.c_str(), tasks.data(), &n), -2);
    EXPECT_EQ(n, 3u);
}

TEST(FileContent, a_file_truncated_anywhere_gives_minus_2_and_leaves_record_and_count) {
    const std::string dir = temp_dir();
    const std::string path = dir + "/tasks.json";
    std::vector<CrontabParameter> tasks = sample_tasks(4);
    ASSERT_EQ(s2f_array_CrontabParameter(path.c_str(), tasks.data(), 4), 0);
    const std::string whole = read_file(path);
    // Every cut inside the text (the last byte is the closing bracket).
    for (size_t cut = 0; cut < whole.size(); ++cut) {
        write_file(path, whole.substr(0, cut));
        std::vector<CrontabParameter> got = sample_tasks(4);
        std::vector<CrontabParameter> before = got;
        uint32_t n = 4;
        StderrCapture err;
        int rc = f2s_array_CrontabParameter(path.c_str(), got.data(), &n);
        (void)err.text();
        ASSERT_EQ(rc, -2) << "cut at " << cut;
        EXPECT_EQ(n, 4u);
        EXPECT_EQ(std::memcmp(got.data(), before.data(), 4 * sizeof(CrontabParameter)), 0);
    }
}

TEST(FileContent, a_file_of_several_megabytes_is_read_whole) {
    const std::string path = temp_dir() + "/many.json";
    const uint32_t count = 40000;
    std::vector<CrontabParameter> tasks = sample_tasks(count);
    ASSERT_EQ(s2f_array_CrontabParameter(path.c_str(), tasks.data(), count), 0);
    struct stat st;
    ASSERT_EQ(stat(path.c_str(), &st), 0);
    EXPECT_GT(st.st_size, 4 * 1024 * 1024);
    uint32_t n = 0;
    ASSERT_EQ(f2s_array_CrontabParameter(path.c_str(), nullptr, &n), 0);
    EXPECT_EQ(n, count);
    std::vector<CrontabParameter> got(count);
    std::memset(got.data(), 0, count * sizeof(CrontabParameter));
    ASSERT_EQ(f2s_array_CrontabParameter(path.c_str(), got.data(), &n), 0);
    EXPECT_EQ(n, count);
    EXPECT_EQ(std::memcmp(got.data(), tasks.data(), count * sizeof(CrontabParameter)), 0);
}

TEST(FileContent, a_file_replaced_between_two_calls_is_read_as_it_is_at_each_call) {
    const std::string dir = temp_dir();
    const std::string path = dir + "/info.json", other = dir + "/other.json";
    DeviceInfo a = sample_info(), b = sample_info();
    std::snprintf(b.SerialNumber, sizeof b.SerialNumber, "SN0002");
    ASSERT_EQ(s2f_DeviceInfo(path.c_str(), &a), 0);
    DeviceInfo got;
    std::memset(&got, 0, sizeof got);
    ASSERT_EQ(f2s_DeviceInfo(path.c_str(), &got), 0);
    EXPECT_STREQ(got.SerialNumber, "SN0001");
    // Replaced by rename (a new inode) ...
    ASSERT_EQ(s2f_DeviceInfo(other.c_str(), &b), 0);
    ASSERT_EQ(std::rename(other.c_str(), path.c_str()), 0);
    ASSERT_EQ(f2s_DeviceInfo(path.c_str(), &got), 0);
    EXPECT_STREQ(got.SerialNumber, "SN0002");
    // ... and rewritten in place, shorter than before: nothing of the longer
    // text remains after the new one.
    write_file(path, "{\"SerialNumber\":\"S3\"}");
    ASSERT_EQ(f2s_DeviceInfo(path.c_str(), &got), 0);
    EXPECT_STREQ(got.SerialNumber, "S3");
    ASSERT_EQ(s2f_DeviceInfo(path.c_str(), &a), 0);
    Text want(s2j_DeviceInfo(&a, 1));
    EXPECT_EQ(read_file(path), want.str());
}

TEST(FileContent, a_write_refused_by_fopen_leaves_the_old_file) {
    if (geteuid() == 0) {
        // root opens a read-only file all the same: use a read-only directory
        // entry that cannot be replaced instead, a path under a file.
        const std::string dir = temp_dir();
        const std::string file = dir + "/plain";
        write_file(file, "old");
        DeviceInfo d = sample_info();
        StderrCapture err;
        EXPECT_EQ(s2f_DeviceInfo((file + "/info.json").c_str(), &d), -7);
        EXPECT_EQ(err.text(), "fopen: Not a directory\n");
        EXPECT_EQ(read_file(file), "old");
        return;
    }
    const std::string path = temp_dir() + "/ro.json";
    write_file(path, "old");
    ASSERT_EQ(chmod(path.c_str(), 0444), 0);
    DeviceInfo d = sample_info();
    StderrCapture err;
    EXPECT_EQ(s2f_DeviceInfo(path.c_str(), &d), -7);
    EXPECT_EQ(err.text(), "fopen: Permission denied\n");
    EXPECT_EQ(read_file(path), "old");
}

}  // namespace
