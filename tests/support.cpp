#include "support.h"

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>
#include <sstream>
#include <vector>

namespace testing_support {

StderrCapture::StderrCapture() {
    std::fflush(stderr);
    char path[] = "/tmp/app_s2j_stderr_XXXXXX";
    fd_ = mkstemp(path);
    unlink(path);
    saved_ = dup(2);
    dup2(fd_, 2);
}

std::string StderrCapture::text() {
    if (done_) return text_;
    done_ = true;
    std::fflush(stderr);
    dup2(saved_, 2);
    close(saved_);
    lseek(fd_, 0, SEEK_SET);
    char buf[4096];
    ssize_t n;
    while ((n = read(fd_, buf, sizeof buf)) > 0) text_.append(buf, static_cast<size_t>(n));
    close(fd_);
    return text_;
}

StderrCapture::~StderrCapture() { text(); }

// The library's diagnostics name their source file as the compiler gives it
// (__FILE__).  This file is compiled with the same flags, so its own __FILE__,
// <root>/tests/support.cpp, shows the same form of <root>: the absolute source
// directory, or what -ffile-prefix-map makes of it (the Debian package build
// gives "./").
static std::string source_root_as_compiled() {
    const std::string self = __FILE__;
    const std::string tail = "tests/support.cpp";
    if (self.size() < tail.size() || self.compare(self.size() - tail.size(), tail.size(), tail) != 0)
        return std::string(APP_S2J_SOURCE_DIR) + "/";
    return self.substr(0, self.size() - tail.size());
}

std::string text_list_file() { return source_root_as_compiled() + "apps/common/src/app_s2j/app_s2j.cpp"; }
std::string file_list_file() { return source_root_as_compiled() + "apps/common/src/app_s2j/file2struct_def.cpp"; }

bool exported(const std::string &name) { return dlsym(RTLD_DEFAULT, name.c_str()) != nullptr; }

std::vector<const s2j::TypeInfo *> all_types() {
    size_t n = 0;
    const s2j::TypeInfo *types = s2j::registry(&n);
    std::vector<const s2j::TypeInfo *> out;
    for (size_t i = 0; i < n; ++i) out.push_back(&types[i]);
    return out;
}

const s2j::Families::Lines &lines_of(const char *type) {
    const s2j::TypeInfo *t = s2j::find_type(type);
    EXPECT_NE(t, nullptr) << type << " is not in the registry";
    static const s2j::Families::Lines none{};
    return t != nullptr ? t->fam.line : none;
}

std::string diag(const std::string &file, int line, const std::string &func, const std::string &msg) {
    return "\033[1;31m<ERROR! " + file + ":" + std::to_string(line) + ", " + func + ">: " + msg + "\033[0m";
}

std::string parse_reason(const char *text) {
    cJSON *tree = cJSON_Parse(text);
    cJSON_Delete(tree);
    return tree == nullptr && cJSON_GetErrorPtr() != nullptr ? cJSON_GetErrorPtr() : "<parsed>";
}

std::string parse_reason_with_len(const char *text, size_t len) {
    cJSON *tree = cJSON_ParseWithLength(text, len);
    cJSON_Delete(tree);
    return tree == nullptr && cJSON_GetErrorPtr() != nullptr ? cJSON_GetErrorPtr() : "<parsed>";
}

namespace {
std::vector<std::string> &dirs() {
    static std::vector<std::string> d;
    return d;
}
void remove_dirs() {
    for (const std::string &d : dirs()) {
        std::string cmd = "rm -rf '" + d + "'";
        if (std::system(cmd.c_str()) != 0) std::fprintf(stderr, "could not remove %s\n", d.c_str());
    }
}
}  // namespace

std::string temp_dir() {
    char path[] = "/tmp/app_s2j_test_XXXXXX";
    if (mkdtemp(path) == nullptr) std::abort();
    if (dirs().empty()) std::atexit(remove_dirs);
    dirs().push_back(path);
    return path;
}

std::string read_file(const std::string &path) {
    std::ifstream in(path, std::ios::binary);
    std::stringstream ss;
    ss << in.rdbuf();
    return ss.str();
}

void write_file(const std::string &path, const std::string &text) {
    std::ofstream out(path, std::ios::binary);
    out << text;
}

bool file_exists(const std::string &path) {
    struct stat st;
    return stat(path.c_str(), &st) == 0;
}

Text::~Text() { std::free(p); }

namespace {
long g_fail_at = -1;
bool g_once = false;
bool g_refuse_first = false;
long g_count = 0;
void *faulty_malloc(size_t n) {
    long i = g_count++;
    if (g_refuse_first && i == 0) return nullptr;
    if (g_fail_at >= 0 && (g_once ? i == g_fail_at : i >= g_fail_at)) return nullptr;
    return std::malloc(n);
}
void plain_free(void *p) { std::free(p); }
}  // namespace

CjsonFaults::CjsonFaults(long fail_at, bool once, bool refuse_first) {
    g_fail_at = fail_at;
    g_once = once;
    g_refuse_first = refuse_first;
    g_count = 0;
    cJSON_Hooks hooks = {faulty_malloc, plain_free};
    cJSON_InitHooks(&hooks);
}

CjsonFaults::~CjsonFaults() {
    cJSON_InitHooks(nullptr);
    g_fail_at = -1;
    g_refuse_first = false;
}

long CjsonFaults::allocations() { return g_count; }

}  // namespace testing_support
