// Eight threads run every family member of every record type at once, each
// on its own records, arrays and files, and check every result.  In the
// ThreadSanitizer build (preset tsan) this must give no report; in the other
// builds it checks that results do not depend on other threads.  Failing
// parses are part of the mix: their diagnostics read cJSON's process-wide
// parse-error position, the one item the threads share.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <atomic>
#include <cstring>
#include <string>
#include <thread>
#include <vector>

#include "registry.h"
#include "support.h"

using namespace testing_support;
using s2j::Field;
using s2j::Kind;
using s2j::TypeInfo;

namespace {

constexpr int kThreads = 8;
constexpr int kPasses = 2;
constexpr uint32_t kElements = 3;

// Everything one thread does; returns the number of failed checks.
int run_all_families(int id, const std::string &dir, std::atomic<long> *calls) {
    size_t n = 0;
    const TypeInfo *types = s2j::registry(&n);
    int failures = 0;
    auto check = [&](bool ok) { failures += ok ? 0 : 1; ++*calls; };
    for (int pass = 0; pass < kPasses; ++pass) {
        for (size_t ti = 0; ti < n; ++ti) {
            const TypeInfo *t = &types[ti];
            const s2j::Families &f = t->fam;
            const size_t sz = t->desc->size;
            std::vector<char> src(sz * kElements), dst(sz * kElements);
            for (uint32_t i = 0; i < kElements; ++i) fill_distinct(t, src.data() + i * sz, id * 100 + i);
            const std::string path = dir + "/" + t->name + ".json";
            if (f.s2j && f.j2s) {
                char *text = f.s2j(src.data(), pass);
                std::fill(dst.begin(), dst.end(), 0);
                check(text != nullptr && f.j2s(text, dst.data()) == 0 && std::memcmp(src.data(), dst.data(), sz) == 0);
                std::fill(dst.begin(), dst.end(), 0);
                check(text != nullptr && f.j2s_with_len(text, std::strlen(text), dst.data()) == 0 &&
                      std::memcmp(src.data(), dst.data(), sz) == 0);
                std::free(text);
            }
            if (f.j2s) {
                check(f.j2s("{\"unterminated\": ", dst.data()) == -2);
                check(f.j2s_with_len("[1, 2", 5, dst.data()) == -2);
            }
            if (f.c2s) {
                Tree tree(t->hooks->emit(src.data()));
                std::fill(dst.begin(), dst.end(), 0);
                check(f.c2s(tree.p, dst.data()) == 0 && std::memcmp(src.data(), dst.data(), sz) == 0);
            }
            if (f.s2j_array && f.j2s_array) {
                char *text = f.s2j_array(src.data(), kElements, pass);
                uint32_t count = kElements;
                std::fill(dst.begin(), dst.end(), 0);
                check(text != nullptr && f.j2s_array(text, dst.data(), &count) == 0 && count == kElements &&
                      dst == src);
                count = 0;
                check(text != nullptr && f.j2s_array_with_len(text, std::strlen(text), nullptr, &count) == 0 &&
                      count == kElements);
                if (f.j2s_array_update && text != nullptr) {
                    // The same keys, other values: every element is updated.
                    std::vector<char> keyed = src;
                    uint32_t cap = kElements;
                    check(f.j2s_array_update(text, keyed.data(), &cap) == 0 && cap == kElements && keyed == src);
                    cap = kElements;
                    check(f.j2s_array_update_with_len(text, std::strlen(text), keyed.data(), &cap) == 0);
                }
                std::free(text);
            }
            if (f.j2s_array) {
                uint32_t count = kElements;
                check(f.j2s_array("[{", dst.data(), &count) == -2 && count == kElements);
            }
            if (f.c2s_array) {
                Tree tree(cJSON_CreateArray());
                for (uint32_t i = 0; i < kElements; ++i)
                    cJSON_AddItemToArray(tree.p, t->hooks->emit(src.data() + i * sz));
                uint32_t count = kElements;
                std::fill(dst.begin(), dst.end(), 0);
                check(f.c2s_array(tree.p, dst.data(), &count) == 0 && dst == src);
                if (f.c2s_array_update) {
                    count = kElements;
                    check(f.c2s_array_update(tree.p, dst.data(), &count) == 0 && count == kElements);
                }
            }
            if (f.s2f && f.f2s) {
                std::fill(dst.begin(), dst.end(), 0);
                check(f.s2f(path.c_str(), src.data()) == 0 && f.f2s(path.c_str(), dst.data()) == 0 &&
                      std::memcmp(src.data(), dst.data(), sz) == 0);
            } else if (f.f2s) {
                check(f.f2s((dir + "/missing.json").c_str(), dst.data()) == -15);
            }
            if (f.s2f_array && f.f2s_array) {
                uint32_t count = kElements;
                std::fill(dst.begin(), dst.end(), 0);
                check(f.s2f_array(path.c_str(), src.data(), kElements) == 0 &&
                      f.f2s_array(path.c_str(), dst.data(), &count) == 0 && count == kElements && dst == src);
            } else if (f.f2s_array) {
                uint32_t count = 0;
                check(f.f2s_array((dir + "/missing.json").c_str(), nullptr, &count) == -15);
            }
        }
    }
    return failures;
}

TEST(Threads, eight_threads_run_every_family_of_every_type_on_their_own_data) {
    std::vector<std::string> dirs;
    for (int i = 0; i < kThreads; ++i) dirs.push_back(temp_dir());
    // The failing parses print diagnostics; keep them off the test's output.
    int saved = dup(2), null_fd = open("/dev/null", O_WRONLY);
    dup2(null_fd, 2);
    std::atomic<long> calls{0};
    std::vector<int> failures(kThreads, 0);
    std::vector<std::thread> threads;
    for (int i = 0; i < kThreads; ++i)
        threads.emplace_back([&, i] { failures[i] = run_all_families(i, dirs[i], &calls); });
    for (std::thread &th : threads) th.join();
    dup2(saved, 2);
    close(saved);
    close(null_fd);
    for (int i = 0; i < kThreads; ++i) EXPECT_EQ(failures[i], 0) << "thread " << i;
    EXPECT_GT(calls.load(), kThreads * 1000L);
}

}  // namespace
