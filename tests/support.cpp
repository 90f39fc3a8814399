#include "support.h"

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <regex>
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

std::string text_diag(int line, const std::string &func, const std::string &msg) {
    return diag(text_list_file(), line, func, msg);
}

std::string keyword_diag(const char *type) {
    return text_diag(lines_of(type).c2s_array_update, std::string("c2s_array_update_") + type,
                     "The keyword is not contained in an object of the json array!\n");
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

const std::map<std::string, std::vector<DeclaredMember>> &declared_structs() {
    static const std::map<std::string, std::vector<DeclaredMember>> structs = [] {
        std::string text = read_file(std::string(APP_S2J_SOURCE_DIR) + "/apps/common/src/app_s2j/app_s2j_types.h");
        text = std::regex_replace(text, std::regex(R"(/\*[^*]*\*+(?:[^/*][^*]*\*+)*/)"), " ");
        std::map<std::string, std::vector<DeclaredMember>> found;
        const std::regex type(R"(typedef\s+struct\s*\w*\s*\{([^}]*)\}\s*(\w+)\s*;)");
        const std::regex member(R"((\w+)\s+(\w+)\s*(\[[^\]]*\])?\s*;)");
        for (std::sregex_iterator t(text.begin(), text.end(), type), end; t != end; ++t) {
            const std::string body = (*t)[1];
            std::vector<DeclaredMember> members;
            for (std::sregex_iterator m(body.begin(), body.end(), member); m != end; ++m)
                members.push_back({(*m)[1].str() + (*m)[3].str(), (*m)[2]});
            found[(*t)[2]] = members;
        }
        return found;
    }();
    return structs;
}

std::string example_path(const std::string &type) {
    return std::string(APP_S2J_SOURCE_DIR) + "/examples/" + type + ".json";
}

std::string example_text(const std::string &type) {
    std::string text = read_file(example_path(type));
    if (!text.empty() && text.back() == '\n') text.pop_back();
    return text;
}

void expect_example_round_trip(const s2j::TypeInfo *t) {
    const std::string text = example_text(t->name), path = example_path(t->name);
    Tree tree(cJSON_Parse(text.c_str()));
    ASSERT_NE(tree.p, nullptr) << t->name;
    const bool array = cJSON_IsArray(tree.p);
    if (array) {
        EXPECT_TRUE(cJSON_GetArraySize(tree.p) >= 2 && cJSON_GetArraySize(tree.p) <= 4) << t->name;
    } else {
        ASSERT_TRUE(cJSON_IsObject(tree.p)) << t->name;
    }
    const uint32_t n = array ? static_cast<uint32_t>(cJSON_GetArraySize(tree.p)) : 1;
    const size_t size = t->desc->size;
    std::vector<char> recs(size * n, 0);
    for (uint32_t i = 0; i < n; ++i) {
        const cJSON *item = array ? cJSON_GetArrayItem(tree.p, static_cast<int>(i)) : tree.p;
        EXPECT_EQ(t->hooks->read(recs.data() + i * size, item), 1) << t->name << " " << i;
    }
    Tree again(array ? cJSON_CreateArray() : t->hooks->emit(recs.data()));
    for (uint32_t i = 0; array && i < n; ++i) cJSON_AddItemToArray(again.p, t->hooks->emit(recs.data() + i * size));
    Text printed(cJSON_Print(again.p));
    EXPECT_EQ(printed.str(), text) << t->name;
    // The text writers give the same text.
    if (array && t->fam.s2j_array != nullptr) {
        EXPECT_EQ(Text(t->fam.s2j_array(recs.data(), n, 1)).str(), text) << t->name << " s2j_array";
    }
    if (!array && t->fam.s2j != nullptr) {
        EXPECT_EQ(Text(t->fam.s2j(recs.data(), 1)).str(), text) << t->name << " s2j";
    }
    // The same records through the text and file readers, over zeroes (with
    // room for one record more).
    std::vector<char> got(recs.size() + size, 0);
    const auto same = [&](const char *how) {
        EXPECT_EQ(std::memcmp(got.data(), recs.data(), recs.size()), 0) << t->name << " " << how;
        std::fill(got.begin(), got.end(), 0);
    };
    uint32_t count = n + 1;
    if (array && t->fam.c2s_array != nullptr) {
        EXPECT_EQ(t->fam.c2s_array(tree.p, got.data(), &count), 0) << t->name;
        EXPECT_EQ(count, n) << t->name;
        same("c2s_array");
    }
    count = n + 1;
    if (array && t->fam.j2s_array != nullptr) {
        EXPECT_EQ(t->fam.j2s_array(text.c_str(), got.data(), &count), 0) << t->name;
        EXPECT_EQ(count, n) << t->name;
        same("j2s_array");
    }
    if (array && t->fam.f2s_array != nullptr) {
        count = 0;
        EXPECT_EQ(t->fam.f2s_array(path.c_str(), nullptr, &count), 0) << t->name;
        EXPECT_EQ(count, n) << t->name;
        EXPECT_EQ(t->fam.f2s_array(path.c_str(), got.data(), &count), 0) << t->name;
        same("f2s_array");
    }
    if (!array && t->fam.c2s != nullptr) {
        EXPECT_EQ(t->fam.c2s(tree.p, got.data()), 0) << t->name;
        same("c2s");
    }
    if (!array && t->fam.j2s != nullptr) {
        EXPECT_EQ(t->fam.j2s(text.c_str(), got.data()), 0) << t->name;
        same("j2s");
    }
    if (!array && t->fam.f2s != nullptr) {
        EXPECT_EQ(t->fam.f2s(path.c_str(), got.data()), 0) << t->name;
        same("f2s");
    }
}

std::string string_member(const cJSON *object, const char *key) {
    const cJSON *m = cJSON_GetObjectItemCaseSensitive(object, key);
    EXPECT_TRUE(cJSON_IsString(m)) << key;
    return m != nullptr && m->valuestring != nullptr ? m->valuestring : "<absent>";
}

void expect_string_key_reader_refuses(int (*get)(char *, const cJSON *), std::initializer_list<const char *> docs) {
    char name[64] = "kept";
    for (const char *doc : docs) {
        Tree tree(cJSON_Parse(doc));
        EXPECT_EQ(get(name, tree.p), 0) << doc;
        EXPECT_STREQ(name, "kept") << doc;
    }
}

void expect_integer_key_reader(int (*get)(uint32_t *, const cJSON *), const char *doc, uint32_t want,
                               std::initializer_list<const char *> refused) {
    uint32_t key = 0;
    Tree tree(cJSON_Parse(doc));
    EXPECT_EQ(get(&key, tree.p), 1) << doc;
    EXPECT_EQ(key, want) << doc;
    for (const char *other : refused) {
        Tree no(cJSON_Parse(other));
        EXPECT_EQ(get(&key, no.p), 0) << other;
        EXPECT_EQ(key, want) << other;
    }
}

std::string print_compact(const cJSON *tree) { return Text(cJSON_PrintUnformatted(tree)).str(); }

std::string compact(cJSON *tree) {
    const Tree owned(tree);
    return print_compact(tree);
}

CrontabParameter crontab_task(uint32_t index, const char *minute, const char *hour, const char *weekday,
                              const std::string &command) {
    CrontabParameter c = {};
    c.Index = index;
    c.Enable = 1;
    std::snprintf(c.Minute, sizeof c.Minute, "%s", minute);
    std::snprintf(c.Hour, sizeof c.Hour, "%s", hour);
    std::snprintf(c.Day, sizeof c.Day, "*");
    std::snprintf(c.Month, sizeof c.Month, "*");
    std::snprintf(c.Weekday, sizeof c.Weekday, "%s", weekday);
    std::snprintf(c.Command, sizeof c.Command, "%s", command.c_str());
    return c;
}

using s2j::Field;
using s2j::Kind;
using s2j::TypeInfo;

void fill_boundary(const TypeInfo *t, char *rec, uint32_t seed) {
    for (uint32_t i = 0; i < t->desc->field_count; ++i) {
        const Field &f = t->desc->fields[i];
        char *at = rec + f.offset;
        switch (f.kind) {
            case Kind::I32: {
                int32_t v = seed == 0 ? INT32_MIN : seed == 1 ? INT32_MAX : -static_cast<int32_t>(seed * 7 + i);
                std::memcpy(at, &v, 4);
                break;
            }
            case Kind::U32: {
                uint32_t v = seed == 0 ? UINT32_MAX : seed * 1000003u + i;
                std::memcpy(at, &v, 4);
                break;
            }
            case Kind::U16: {
                uint16_t v = seed == 0 ? UINT16_MAX : static_cast<uint16_t>(seed * 31 + i);
                std::memcpy(at, &v, 2);
                break;
            }
            case Kind::Str: {
                uint32_t len = seed == 0 ? f.size - 1 : (seed * 5 + i) % f.size;
                for (uint32_t k = 0; k < len; ++k) at[k] = static_cast<char>('A' + (k + seed + i) % 26);
                std::memset(at + len, 0, f.size - len);
                break;
            }
            case Kind::U32List:
                for (uint32_t k = 0; k < f.size / 4; ++k) {
                    uint32_t v = seed == 0 ? UINT32_MAX - k : seed * k;
                    std::memcpy(at + 4 * k, &v, 4);
                }
                break;
        }
    }
    for (uint32_t k = 0; k < t->desc->key_count; ++k) {
        const Field &f = t->desc->keys[k].field;
        if (f.kind == Kind::Str) {
            std::memset(rec + f.offset, 0, f.size);
            std::snprintf(rec + f.offset, f.size, "key%u", seed);
        } else {
            uint32_t v = seed + 100 * k;
            std::memcpy(rec + f.offset, &v, 4);
        }
    }
}

void fill_unterminated(const TypeInfo *t, char *rec, uint32_t seed) {
    const s2j::TypeDesc *d = t->desc;
    for (uint32_t k = 0; k < d->field_count; ++k) {
        const Field &f = d->fields[k];
        char *at = rec + f.offset;
        switch (f.kind) {
            case Kind::I32: {
                int32_t v = -static_cast<int32_t>(1000 * seed + k + 1);
                std::memcpy(at, &v, 4);
                break;
            }
            case Kind::U32: {
                uint32_t v = 4000000000u + 1000 * seed + k;
                std::memcpy(at, &v, 4);
                break;
            }
            case Kind::U16: {
                uint16_t v = static_cast<uint16_t>(60000 + 100 * seed + k);
                std::memcpy(at, &v, 2);
                break;
            }
            case Kind::Str:
                for (uint32_t b = 0; b < f.size; ++b) at[b] = static_cast<char>('a' + (b + k + seed) % 26);
                break;
            case Kind::U32List:
                for (uint32_t b = 0; b < f.size / 4; ++b) {
                    uint32_t v = b * 7 + seed;
                    std::memcpy(at + 4 * b, &v, 4);
                }
                break;
        }
    }
    for (uint32_t k = 0; k < d->key_count; ++k) {
        const Field &f = d->keys[k].field;
        if (f.kind == Kind::Str) {
            std::memset(rec + f.offset, 0, f.size);
            std::snprintf(rec + f.offset, f.size, "k%u", seed);
        } else {
            std::memcpy(rec + f.offset, &seed, 4);
        }
    }
}

void fill_distinct(const TypeInfo *t, char *rec, uint32_t seed) {
    const s2j::TypeDesc *d = t->desc;
    std::memset(rec, 0, d->size);
    for (uint32_t k = 0; k < d->field_count; ++k) {
        const Field &f = d->fields[k];
        char *at = rec + f.offset;
        uint32_t v = seed * 7919u + k;
        switch (f.kind) {
            case Kind::I32:
            case Kind::U32: std::memcpy(at, &v, 4); break;
            case Kind::U16: {
                uint16_t h = static_cast<uint16_t>(v);
                std::memcpy(at, &h, 2);
                break;
            }
            case Kind::Str: std::snprintf(at, f.size, "t%u-%u", seed, k); break;
            case Kind::U32List:
                for (uint32_t b = 0; b < f.size / 4; ++b) {
                    uint32_t w = v + b;
                    std::memcpy(at + 4 * b, &w, 4);
                }
                break;
        }
    }
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
