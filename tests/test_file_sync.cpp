// The writers sync the file's descriptor before they close the stream, on
// success and after a short write alike; the readers close the descriptor
// they read on every path.  fsync, fclose and close are interposed here to
// record the order of the calls the library makes.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "app_s2j.h"
#include "support.h"

namespace {
std::vector<std::string> g_calls;
bool g_recording = false;
}  // namespace

extern "C" int fsync(int fd) {
    using Fn = int (*)(int);
    static Fn real = reinterpret_cast<Fn>(dlsym(RTLD_NEXT, "fsync"));
    if (g_recording) g_calls.push_back("fsync");
    return real(fd);
}

extern "C" int fclose(FILE *f) {
    using Fn = int (*)(FILE *);
    static Fn real = reinterpret_cast<Fn>(dlsym(RTLD_NEXT, "fclose"));
    if (g_recording) g_calls.push_back("fclose");
    return real(f);
}

extern "C" int close(int fd) {
    using Fn = int (*)(int);
    static Fn real = reinterpret_cast<Fn>(dlsym(RTLD_NEXT, "close"));
    if (g_recording) g_calls.push_back("close");
    return real(fd);
}

namespace {

TEST(FileSync, S2fSyncsTheDescriptorAndThenClosesTheStream) {
    std::string path = testing_support::temp_dir() + "/t.json";
    DeviceTime t = {};
    NTPParameter p = {};
    std::strcpy(p.ServerDomain, "pool.ntp.example");
    g_calls.clear();
    g_recording = true;
    int rc = s2f_NTPParameter(path.c_str(), &p);
    g_recording = false;
    EXPECT_EQ(rc, 0);
    EXPECT_EQ(g_calls, (std::vector<std::string>{"fsync", "fclose"}));
    (void)t;
}

TEST(FileSync, ShortWriteIsStillSyncedAndClosed) {
    if (access("/dev/full", W_OK) != 0) GTEST_SKIP() << "no /dev/full";
    CrontabParameter tasks[40] = {};
    for (auto &c : tasks) std::memset(c.Command, 'c', sizeof c.Command - 1);
    g_calls.clear();
    testing_support::StderrCapture err;
    g_recording = true;
    int rc = s2f_array_CrontabParameter("/dev/full", tasks, 40);
    g_recording = false;
    EXPECT_EQ(rc, -7);
    EXPECT_EQ(g_calls, (std::vector<std::string>{"fsync", "fclose"}));
}

TEST(FileSync, ReadersCloseTheFileOnEveryPath) {
    std::string dir = testing_support::temp_dir();
    testing_support::write_file(dir + "/bad.json", "{");
    NTPParameter p = {};
    testing_support::StderrCapture err;
    g_calls.clear();
    g_recording = true;
    int bad = f2s_NTPParameter((dir + "/bad.json").c_str(), &p);
    int missing = f2s_NTPParameter((dir + "/none.json").c_str(), &p);
    int directory = f2s_NTPParameter(dir.c_str(), &p);
    g_recording = false;
    EXPECT_EQ(bad, -2);
    EXPECT_EQ(missing, -15);
    EXPECT_EQ(directory, -15);
    EXPECT_EQ(g_calls, (std::vector<std::string>{"close", "close"}));
}

}  // namespace
