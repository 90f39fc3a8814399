// Allocation failures.  This executable replaces malloc, calloc, realloc and
// free for the whole process (the library's own allocations, cJSON's and the
// C library's), so that while a fault is armed the n-th allocation fails.
// For every family, for n = 1, 2, ... until a call makes fewer than n
// allocations, each call must: not crash, leave nothing allocated that it
// does not hand to the caller, and give the outcome documented for the
// allocation that failed.  The text writers make one allocation, the text's
// buffer, and make the text as a printed tree when it is refused: they are
// checked with that first allocation refused and then the n-th, from 2 on,
// failing, so that every allocation of the tree is reached.  The outcomes:
//   - an unterminated string field whose copy fails: that member is missing,
//     the rest of the text is complete;
//   - any other failure while building a tree or printing: s2j gives null,
//     or a text that lacks what could not be added (never a wrong value);
//   - a failure while parsing (the text readers parse into a tree only the
//     texts that the direct reader leaves to cJSON, and the reference
//     library parses every text so): -2, the record, array and count
//     untouched; the direct reader reads well-formed text without allocating;
//   - the file reader's text buffer, its only allocation: -15; the writer's
//     fopen: -7; a text that cannot be made: -15 and the file left alone.
// c2s, c2s_array and c2s_array_update allocate nothing, which is checked.
// The replacement cannot coexist with a sanitizer's allocator: it runs in
// the plain build only (and under valgrind, which is told to leave it in
// place and to watch the C library's allocator beneath it).
#include <dlfcn.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "libc_alloc.h"
#include "registry.h"
#include "support.h"

namespace {

// ---- The replacement allocator -------------------------------------------

struct FaultState {
    bool armed = false;
    bool refuse_first = false;  // the first allocation fails too (not counted as the fault)
    long fail_at = 0;  // 1-based index of the allocation to fail; 0: none
    long count = 0;    // allocations attempted while armed
    bool fired = false;
    const void *failed_caller = nullptr;
    size_t failed_size = 0;
    const void *callers[4096] = {};  // who asked, by allocation, for the first ones
};
FaultState g;

// Blocks allocated while armed and not yet freed (open addressing).
constexpr size_t kSlots = 1 << 16;
void *g_live[kSlots];
long g_live_count = 0;
bool g_live_overflow = false;

size_t slot_of(void *p) { return (reinterpret_cast<uintptr_t>(p) >> 4) * 2654435761u % kSlots; }

void track(void *p) {
    for (size_t i = slot_of(p), k = 0; k < kSlots; ++k, i = (i + 1) % kSlots)
        if (g_live[i] == nullptr || g_live[i] == reinterpret_cast<void *>(1)) {
            g_live[i] = p;
            ++g_live_count;
            return;
        }
    g_live_overflow = true;
}

void untrack(void *p) {
    for (size_t i = slot_of(p), k = 0; k < kSlots && g_live[i] != nullptr; ++k, i = (i + 1) % kSlots)
        if (g_live[i] == p) {
            g_live[i] = reinterpret_cast<void *>(1);  // a tombstone
            --g_live_count;
            return;
        }
}

// True when this allocation is the one to fail.
bool should_fail(const void *caller, size_t size) {
    if (!g.armed) return false;
    ++g.count;
    if (g.count <= 4096) g.callers[g.count - 1] = caller;
    if (g.refuse_first && g.count == 1) return true;
    if (g.count != g.fail_at) return false;
    g.fired = true;
    g.failed_caller = caller;
    g.failed_size = size;
    return true;
}

}  // namespace

extern "C" void *malloc(size_t n) {
    if (should_fail(__builtin_return_address(0), n)) return nullptr;
    void *p = __libc_malloc(n);
    if (g.armed && p != nullptr) track(p);
    return p;
}

extern "C" void *calloc(size_t a, size_t b) {
    if (should_fail(__builtin_return_address(0), a * b)) return nullptr;
    void *p = __libc_calloc(a, b);
    if (g.armed && p != nullptr) track(p);
    return p;
}

extern "C" void *realloc(void *old, size_t n) {
    if (should_fail(__builtin_return_address(0), n)) return nullptr;  // old stays valid
    void *p = __libc_realloc(old, n);
    if (g.armed) {
        if (old != nullptr && (p != nullptr || n == 0)) untrack(old);
        if (p != nullptr) track(p);
    }
    return p;
}

extern "C" void free(void *p) {
    if (g.armed && p != nullptr) untrack(p);
    __libc_free(p);
}

namespace {

using namespace testing_support;
using s2j::Field;
using s2j::Kind;
using s2j::TypeInfo;

// Where the failed allocation was made.
enum class Owner { Libc, Cjson, Library, Other };

Owner owner_of(const void *caller) {
    Dl_info info;
    if (dladdr(caller, &info) == 0 || info.dli_fname == nullptr) return Owner::Other;
    std::string f = info.dli_fname;
    if (f.find("libapp_s2j") != std::string::npos) return Owner::Library;
    if (f.find("libcjson") != std::string::npos) return Owner::Cjson;
    if (f.find("libc.so") != std::string::npos) return Owner::Libc;
    return Owner::Other;
}

struct FaultRun {
    long allocations;
    bool fired;
    Owner owner;
    size_t failed_size;
    long live;  // blocks allocated during the call and still held
    bool first_of_library;  // the failed one was the library's first allocation of the call
};

// Runs f with the fail_at-th allocation failing (0: none fails), and with
// refuse_first the first one too.  f must not allocate beyond the call under
// test; diagnostics go to /dev/null.
template <class F>
FaultRun under_fault(long fail_at, F f, bool refuse_first = false) {
    int saved = dup(2);
    int null_fd = open("/dev/null", O_WRONLY);
    dup2(null_fd, 2);
    std::memset(g_live, 0, sizeof g_live);
    g_live_count = 0;
    g_live_overflow = false;
    g = FaultState{};
    g.fail_at = fail_at;
    g.refuse_first = refuse_first;
    g.armed = true;
    f();
    g.armed = false;
    dup2(saved, 2);
    close(saved);
    close(null_fd);
    EXPECT_FALSE(g_live_overflow);
    bool first_of_library = g.fired && g.fail_at <= 4096 && owner_of(g.failed_caller) == Owner::Library;
    for (long i = refuse_first ? 1 : 0; first_of_library && i + 1 < g.fail_at; ++i)
        if (owner_of(g.callers[i]) == Owner::Library) first_of_library = false;
    return FaultRun{g.count,       g.fired, g.fired ? owner_of(g.failed_caller) : Owner::Other, g.failed_size,
                    g_live_count, first_of_library};
}

// ---- Records and texts ---------------------------------------------------

std::string print_plain(cJSON *tree) {
    char *p = cJSON_PrintUnformatted(tree);
    std::string s = p != nullptr ? p : "";
    std::free(p);
    return s;
}

// The text of `rec` (or of `n` records) through the emitter alone.
std::string emit(const TypeInfo *t, const char *rec, uint32_t n, bool as_array) {
    cJSON *tree = as_array ? cJSON_CreateArray() : t->hooks->emit(rec);
    if (as_array)
        for (uint32_t i = 0; i < n; ++i) cJSON_AddItemToArray(tree, t->hooks->emit(rec + i * t->desc->size));
    std::string s = print_plain(tree);
    cJSON_Delete(tree);
    return s;
}

// Adds to every object of the text a member of no field holding an integer
// beyond 10^15, which the parser keeps in an allocated raw form.
std::string with_large_numbers(const std::string &text) {
    std::string out;
    for (char c : text) {
        out += c;
        if (c == '{') out += "\"NoSuchField\":1000000000000001,";
    }
    return out;
}

// Whether `got` is `want` with some members or elements left out (in the
// same order), every value that is present being equal.
bool is_part_of(const cJSON *got, const cJSON *want) {
    if ((got->type & 0xFF) != (want->type & 0xFF)) return false;
    if (cJSON_IsObject(got) || cJSON_IsArray(got)) {
        const cJSON *w = want->child;
        for (const cJSON *g2 = got->child; g2 != nullptr; g2 = g2->next) {
            while (w != nullptr && !(cJSON_IsObject(got) ? std::strcmp(w->string, g2->string) == 0 : is_part_of(g2, w)))
                w = w->next;
            if (w == nullptr || !is_part_of(g2, w)) return false;
            w = w->next;
        }
        return true;
    }
    return print_plain(const_cast<cJSON *>(got)) == print_plain(const_cast<cJSON *>(want));
}

int members(const cJSON *tree) {
    int n = 0;
    for (const cJSON *c = tree->child; c != nullptr; c = c->next) n += 1 + (cJSON_IsObject(c) ? members(c) : 0);
    return n;
}

// A text made under a fault: null, or the reference with what failed left
// out.  A failed copy of an unterminated string costs exactly one member.
// The one allocation whose loss costs nothing is the library's first of the
// call for a type with integers: the buffer of their decimal texts for a
// tree that is only printed, without which the record is emitted in the
// caller's tree form, giving the same text.
void expect_partial_text(const FaultRun &r, const TypeInfo *t, const char *text, const std::string &reference,
                         const std::string &what) {
    SCOPED_TRACE(what + ", allocation " + std::to_string(r.allocations));
    if (r.owner == Owner::Library && r.first_of_library && t->desc->int_text_bytes > 0 && text != nullptr) {
        Tree whole(cJSON_Parse(text));
        if (whole.p != nullptr && print_plain(whole.p) == reference) return;
    }
    if (r.owner == Owner::Library) {
        ASSERT_NE(text, nullptr) << "a failed string copy must not lose the record";
    }
    if (text == nullptr) return;
    Tree got(cJSON_Parse(text)), want(cJSON_Parse(reference.c_str()));
    ASSERT_NE(got.p, nullptr) << text;
    EXPECT_TRUE(is_part_of(got.p, want.p)) << text;
    EXPECT_NE(print_plain(got.p), reference) << "an allocation failed, yet nothing is missing";
    if (r.owner == Owner::Library) {
        EXPECT_EQ(members(got.p) + 1, members(want.p)) << text;
    }
}

// The types exercised: every type (all_types()) for the text and tree
// families, and for the file families enough types to cover every field
// kind and every family.

// The types that have at least one of the given family members.
template <class Pred>
std::vector<const TypeInfo *> types_with(Pred has) {
    std::vector<const TypeInfo *> v;
    for (const TypeInfo *t : all_types())
        if (has(t->fam)) v.push_back(t);
    return v;
}

std::vector<const TypeInfo *> file_types() {
    std::vector<const TypeInfo *> v;
    bool kind_seen[5] = {}, fam_seen[4] = {};
    for (const TypeInfo *t : all_types()) {
        bool adds = false;
        for (uint32_t k = 0; k < t->desc->field_count; ++k)
            if (!kind_seen[static_cast<int>(t->desc->fields[k].kind)]) adds = true;
        const void *fams[4] = {reinterpret_cast<const void *>(t->fam.f2s), reinterpret_cast<const void *>(t->fam.s2f),
                               reinterpret_cast<const void *>(t->fam.f2s_array),
                               reinterpret_cast<const void *>(t->fam.s2f_array)};
        bool has_file = false;
        for (int f = 0; f < 4; ++f) {
            if (fams[f] != nullptr) has_file = true;
            if (fams[f] != nullptr && !fam_seen[f]) adds = true;
        }
        if (!has_file || !adds) continue;
        for (uint32_t k = 0; k < t->desc->field_count; ++k) kind_seen[static_cast<int>(t->desc->fields[k].kind)] = true;
        for (int f = 0; f < 4; ++f) fam_seen[f] = fam_seen[f] || fams[f] != nullptr;
        v.push_back(t);
    }
    return v;
}

std::string type_name(const ::testing::TestParamInfo<const TypeInfo *> &info) { return info.param->name; }

constexpr uint32_t kElements = 3;
static char g_text_copy[1 << 20];  // texts copied out of the call, no allocation

// Copies a returned text into g_text_copy and frees it, inside the run.
const char *keep(char *text) {
    if (text == nullptr) return nullptr;
    size_t n = std::strlen(text);
    if (n >= sizeof g_text_copy) n = sizeof g_text_copy - 1;
    std::memcpy(g_text_copy, text, n);
    g_text_copy[n] = '\0';
    std::free(text);
    return g_text_copy;
}

// kElements records of the type whose strings fill their fields.
std::vector<char> records_of(const TypeInfo *t) {
    std::vector<char> recs(t->desc->size * kElements);
    for (uint32_t i = 0; i < kElements; ++i) fill_unterminated(t, recs.data() + i * t->desc->size, i);
    return recs;
}

class TextWriters : public ::testing::TestWithParam<const TypeInfo *> {};
class TextReaders : public ::testing::TestWithParam<const TypeInfo *> {};
class TreeReaders : public ::testing::TestWithParam<const TypeInfo *> {};

// The text of a writer: one allocation, and with that one refused, the
// whole text all the same.
template <class Call>
void expect_one_allocation_or_the_whole_text(Call call, const std::string &ref, const char *what) {
    SCOPED_TRACE(what);
    const char *text = nullptr;
    FaultRun r = under_fault(0, [&] { text = keep(call()); });
    EXPECT_EQ(r.allocations, 1);
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(std::string(text), ref);
    r = under_fault(0, [&] { text = keep(call()); }, true);
    EXPECT_EQ(r.live, 0);
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(std::string(text), ref);
}

// A text writer (`call`) whose first allocation is refused and then its
// n-th fails, for n = 2, 3, ... until it makes fewer than n: no leak, and a
// partial text or null, until the whole text `ref`.  Returns the number of
// faults that fired.
template <class Call>
int text_writer_faults(const TypeInfo *t, Call call, const std::string &ref, const char *what) {
    expect_one_allocation_or_the_whole_text(call, ref, what);
    int checked = 0;
    for (long n = 2;; ++n) {
        const char *text = nullptr;
        FaultRun r = under_fault(n, [&] { text = keep(call()); }, true);
        EXPECT_EQ(r.live, 0) << what << " leaked at allocation " << n;
        if (r.live != 0) return checked;
        if (!r.fired) {
            EXPECT_NE(text, nullptr) << what;
            if (text != nullptr) {
                EXPECT_EQ(std::string(text), ref) << what;
            }
            return checked;
        }
        expect_partial_text(r, t, text, ref, what);
        ++checked;
    }
}

TEST_P(TextWriters, s2j_and_s2j_array_lose_members_or_return_null_and_leak_nothing) {
    const TypeInfo *t = GetParam();
    std::vector<char> recs = records_of(t);
    int checked = 0;
    if (t->fam.s2j != nullptr)
        checked += text_writer_faults(t, [&] { return t->fam.s2j(recs.data(), 0); },
                                      emit(t, recs.data(), 1, false), "s2j");
    if (t->fam.s2j_array != nullptr)
        checked += text_writer_faults(t, [&] { return t->fam.s2j_array(recs.data(), kElements, 0); },
                                      emit(t, recs.data(), kElements, true), "s2j_array");
    EXPECT_GT(checked, 0);
}

// Runs a reader over `text` under every fault: -2 with the record, array and
// count untouched, no leak; and the reference outcome once nothing fails.
template <class Call>
void reader_faults(const char *what, std::vector<char> &buf, uint32_t &count, Call call, int want_rc) {
    const std::vector<char> before = buf;
    const uint32_t count_before = count;
    int checked = 0;
    for (long n = 1;; ++n) {
        buf = before;
        count = count_before;
        int rc = 0;
        FaultRun r = under_fault(n, [&] { rc = call(); });
        SCOPED_TRACE(std::string(what) + ", allocation " + std::to_string(n));
        ASSERT_EQ(r.live, 0) << "leaked";
        if (!r.fired) {
            EXPECT_EQ(rc, want_rc);
            EXPECT_GT(checked, 0);
            return;
        }
        EXPECT_EQ(rc, -2);
        EXPECT_TRUE(buf == before) << "written although the text did not parse";
        EXPECT_EQ(count, count_before);
        ++checked;
    }
}

// Reads a text that the direct reader takes on: no allocation at all, so no
// fault can fire, and the reference outcome.
template <class Call>
void reader_allocates_nothing(const char *what, std::vector<char> &buf, uint32_t &count, Call call, int want_rc) {
    int rc = -99;
    FaultRun r = under_fault(1, [&] { rc = call(); });
    SCOPED_TRACE(what);
    EXPECT_EQ(r.allocations, 0);
    EXPECT_FALSE(r.fired);
    EXPECT_EQ(rc, want_rc);
    (void)buf;
    (void)count;
}

// Every text reader of the type, with `check` as the fault loop.
template <class Check>
void text_readers(const TypeInfo *t, const s2j::Families &f, Check reader_faults) {
    std::vector<char> recs = records_of(t);
    const std::string one = with_large_numbers(emit(t, recs.data(), 1, false));
    const std::string many = with_large_numbers(emit(t, recs.data(), kElements, true));
    std::vector<char> buf;
    uint32_t count = 0;
    if (f.j2s != nullptr) {
        buf.assign(t->desc->size, 0);
        reader_faults("j2s", buf, count, [&] { return f.j2s(one.c_str(), buf.data()); }, 0);
        reader_faults(
            "j2s_with_len", buf, count, [&] { return f.j2s_with_len(one.c_str(), one.size(), buf.data()); }, 0);
    }
    if (f.j2s_array != nullptr) {
        buf.assign(t->desc->size * kElements, 0);
        count = kElements;
        reader_faults("j2s_array", buf, count, [&] { return f.j2s_array(many.c_str(), buf.data(), &count); }, 0);
        reader_faults("j2s_array_with_len", buf, count,
                      [&] { return f.j2s_array_with_len(many.c_str(), many.size(), buf.data(), &count); }, 0);
        reader_faults("j2s_array query", buf, count, [&] { return f.j2s_array(many.c_str(), nullptr, &count); }, 0);
    }
    if (f.j2s_array_update != nullptr) {
        // The caller's array holds the same keys and nothing else.
        std::vector<char> keyed(t->desc->size * kElements, 0);
        for (uint32_t i = 0; i < kElements; ++i) {
            std::vector<char> full(t->desc->size);
            fill_unterminated(t, full.data(), i);
            for (uint32_t k = 0; k < t->desc->key_count; ++k) {
                const Field &kf = t->desc->keys[k].field;
                std::memcpy(keyed.data() + i * t->desc->size + kf.offset, full.data() + kf.offset, kf.size);
            }
        }
        buf = keyed;
        count = kElements;
        reader_faults(
            "j2s_array_update", buf, count, [&] { return f.j2s_array_update(many.c_str(), buf.data(), &count); }, 0);
        buf = keyed;
        count = kElements;
        reader_faults("j2s_array_update_with_len", buf, count,
                      [&] { return f.j2s_array_update_with_len(many.c_str(), many.size(), buf.data(), &count); }, 0);
    }
}

// The library reads well-formed text straight into the records: a call that
// would fail only because cJSON could not build its tree needs no memory.
TEST_P(TextReaders, read_well_formed_text_without_allocating) {
    const TypeInfo *t = GetParam();
    text_readers(t, t->fam, [](const char *what, std::vector<char> &buf, uint32_t &count, auto call, int want) {
        reader_allocates_nothing(what, buf, count, call, want);
    });
}

// Through cJSON's tree (the reference library), every allocation that fails
// gives -2 with the records and the count untouched, and leaks nothing.
TEST_P(TextReaders, through_the_tree_give_minus_2_untouched_and_leak_nothing) {
    const TypeInfo *t = s2j::find_tree_type(GetParam()->name);
    ASSERT_NE(t, nullptr);
    text_readers(t, t->fam, [](const char *what, std::vector<char> &buf, uint32_t &count, auto call, int want) {
        reader_faults(what, buf, count, call, want);
    });
}

TEST_P(TreeReaders, allocate_nothing) {
    const TypeInfo *t = GetParam();
    const s2j::Families &f = t->fam;
    std::vector<char> recs = records_of(t);
    Tree one(s2j::parse_marked(with_large_numbers(emit(t, recs.data(), 1, false)).c_str(), 0, false));
    Tree many(s2j::parse_marked(with_large_numbers(emit(t, recs.data(), kElements, true)).c_str(), 0, false));
    ASSERT_NE(one.p, nullptr);
    ASSERT_NE(many.p, nullptr);
    std::vector<char> buf(t->desc->size * kElements, 0);
    uint32_t count = kElements;
    int rc = -99;
    if (f.c2s != nullptr) {
        FaultRun r = under_fault(1, [&] { rc = f.c2s(one.p, buf.data()); });
        EXPECT_EQ(r.allocations, 0);
        EXPECT_EQ(rc, 0);
    }
    if (f.c2s_array != nullptr) {
        FaultRun r = under_fault(1, [&] { rc = f.c2s_array(many.p, buf.data(), &count); });
        EXPECT_EQ(r.allocations, 0);
        EXPECT_EQ(rc, 0);
    }
    if (f.c2s_array_update != nullptr) {
        count = kElements;
        FaultRun r = under_fault(1, [&] { rc = f.c2s_array_update(many.p, recs.data(), &count); });
        EXPECT_EQ(r.allocations, 0);
        EXPECT_EQ(rc, 0);
    }
}

INSTANTIATE_TEST_SUITE_P(EveryTypeWithOne, TextWriters,
                         ::testing::ValuesIn(types_with([](const s2j::Families &f) { return f.s2j || f.s2j_array; })),
                         type_name);
INSTANTIATE_TEST_SUITE_P(EveryTypeWithOne, TextReaders,
                         ::testing::ValuesIn(types_with([](const s2j::Families &f) {
                             return f.j2s || f.j2s_array || f.j2s_array_update;
                         })),
                         type_name);
INSTANTIATE_TEST_SUITE_P(EveryTypeWithOne, TreeReaders,
                         ::testing::ValuesIn(types_with([](const s2j::Families &f) {
                             return f.c2s || f.c2s_array || f.c2s_array_update;
                         })),
                         type_name);

// ---- Files ------------------------------------------------------------------

class FileReaders : public ::testing::TestWithParam<const TypeInfo *> {};
class FileWriters : public ::testing::TestWithParam<const TypeInfo *> {};

TEST_P(FileReaders, give_minus_15_when_the_text_buffer_fails_and_allocate_nothing_else) {
    const TypeInfo *t = GetParam();
    const s2j::Families &f = t->fam;
    std::vector<char> recs = records_of(t);
    const std::string dir = temp_dir();
    struct Case {
        const char *what;
        std::string text;
        bool array;
    };
    std::vector<Case> cases;
    if (f.f2s != nullptr) cases.push_back({"f2s", with_large_numbers(emit(t, recs.data(), 1, false)), false});
    if (f.f2s_array != nullptr)
        cases.push_back({"f2s_array", with_large_numbers(emit(t, recs.data(), kElements, true)), true});
    for (const Case &c : cases) {
        const std::string path = dir + "/" + c.what + ".json";
        write_file(path, c.text);
        std::vector<char> buf(t->desc->size * kElements, 0);
        const std::vector<char> before = buf;
        uint32_t count = kElements;
        std::vector<int> seen;
        for (long n = 1;; ++n) {
            buf = before;
            count = kElements;
            int rc = 0;
            FaultRun r = under_fault(n, [&] {
                rc = c.array ? f.f2s_array(path.c_str(), buf.data(), &count) : f.f2s(path.c_str(), buf.data());
            });
            SCOPED_TRACE(std::string(c.what) + ", allocation " + std::to_string(n));
            ASSERT_EQ(r.live, 0) << "leaked";
            if (!r.fired) {
                EXPECT_EQ(rc, 0);
                EXPECT_EQ(r.allocations, 1);
                break;
            }
            // The first allocation is the text's buffer, and there is no other.
            EXPECT_EQ(n, 1);
            EXPECT_EQ(r.owner, Owner::Library);
            EXPECT_EQ(r.failed_size, c.text.size() + 1);
            EXPECT_EQ(rc, -15);
            EXPECT_TRUE(buf == before);
            EXPECT_EQ(count, static_cast<uint32_t>(kElements));
            seen.push_back(rc);
        }
        EXPECT_NE(std::find(seen.begin(), seen.end(), -15), seen.end()) << "no fault reached the buffer";
    }
}

TEST_P(FileWriters, give_minus_15_without_text_and_minus_7_when_fopen_fails) {
    const TypeInfo *t = GetParam();
    const s2j::Families &f = t->fam;
    std::vector<char> recs = records_of(t);
    const std::string dir = temp_dir();
    for (int which = 0; which < 2; ++which) {
        const bool array = which == 1;
        if ((array ? reinterpret_cast<const void *>(f.s2f_array) : reinterpret_cast<const void *>(f.s2f)) == nullptr)
            continue;
        const char *what = array ? "s2f_array" : "s2f";
        const std::string path = dir + "/" + what + ".json";
        // The reference: the text that the writer makes without faults.
        ASSERT_EQ(array ? f.s2f_array(path.c_str(), recs.data(), kElements) : f.s2f(path.c_str(), recs.data()), 0);
        Tree ref_tree(cJSON_Parse(read_file(path).c_str()));
        const std::string ref = print_plain(ref_tree.p);
        bool saw15 = false, saw7 = false;
        // The text's buffer refused: the same file, from the tree.
        FaultRun first = under_fault(0, [&] {
            EXPECT_EQ(array ? f.s2f_array(path.c_str(), recs.data(), kElements) : f.s2f(path.c_str(), recs.data()), 0);
        }, true);
        EXPECT_EQ(first.live, 0);
        {
            Tree got(cJSON_Parse(read_file(path).c_str()));
            EXPECT_EQ(print_plain(got.p), ref);
        }
        for (long n = 2;; ++n) {
            write_file(path, "previous content");
            int rc = 0;
            FaultRun r = under_fault(n, [&] {
                rc = array ? f.s2f_array(path.c_str(), recs.data(), kElements) : f.s2f(path.c_str(), recs.data());
            }, true);
            SCOPED_TRACE(std::string(what) + ", allocation " + std::to_string(n));
            ASSERT_EQ(r.live, 0) << "leaked";
            const std::string on_disk = read_file(path);
            if (!r.fired) {
                EXPECT_EQ(rc, 0);
                Tree got(cJSON_Parse(on_disk.c_str()));
                EXPECT_EQ(print_plain(got.p), ref);
                break;
            }
            if (rc == -15) {
                saw15 = true;
                EXPECT_NE(r.owner, Owner::Library) << "a failed string copy must cost one member, not the text";
                EXPECT_EQ(on_disk, "previous content") << "the file was touched without a text";
            } else if (rc == -7) {
                saw7 = true;
                EXPECT_EQ(r.owner, Owner::Libc) << "-7 from something other than the stream";
                EXPECT_EQ(on_disk, "previous content");
            } else {
                ASSERT_EQ(rc, 0);
                if (r.owner == Owner::Libc) {
                    // The stream's buffer: the C library writes unbuffered.
                    Tree got(cJSON_Parse(on_disk.c_str()));
                    EXPECT_EQ(print_plain(got.p), ref);
                } else {
                    expect_partial_text(r, t, on_disk.c_str(), ref, what);
                }
            }
        }
        EXPECT_TRUE(saw15) << "no fault made the text fail";
        EXPECT_TRUE(saw7) << "no fault made fopen fail";
    }
}

std::vector<const TypeInfo *> file_types_with(bool writers) {
    std::vector<const TypeInfo *> v;
    for (const TypeInfo *t : file_types())
        if (writers ? (t->fam.s2f || t->fam.s2f_array) : (t->fam.f2s || t->fam.f2s_array)) v.push_back(t);
    return v;
}
INSTANTIATE_TEST_SUITE_P(EveryKind, FileReaders, ::testing::ValuesIn(file_types_with(false)), type_name);
INSTANTIATE_TEST_SUITE_P(EveryKind, FileWriters, ::testing::ValuesIn(file_types_with(true)), type_name);

TEST(FileFamilies, cover_every_field_kind_that_a_file_type_has_and_every_file_family) {
    // The integer lists of StreamingInputUseCount have no file family; the
    // text families above cover them.
    bool kinds[5] = {}, in_files[5] = {}, fams[4] = {};
    for (const TypeInfo *t : all_types())
        if (t->fam.f2s || t->fam.s2f || t->fam.f2s_array || t->fam.s2f_array)
            for (uint32_t k = 0; k < t->desc->field_count; ++k)
                in_files[static_cast<int>(t->desc->fields[k].kind)] = true;
    for (const TypeInfo *t : file_types()) {
        for (uint32_t k = 0; k < t->desc->field_count; ++k) kinds[static_cast<int>(t->desc->fields[k].kind)] = true;
        fams[0] |= t->fam.f2s != nullptr;
        fams[1] |= t->fam.s2f != nullptr;
        fams[2] |= t->fam.f2s_array != nullptr;
        fams[3] |= t->fam.s2f_array != nullptr;
    }
    for (int k = 0; k < 5; ++k) EXPECT_EQ(kinds[k], in_files[k]) << "kind " << k;
    EXPECT_TRUE(in_files[static_cast<int>(Kind::U16)]);
    for (bool f : fams) EXPECT_TRUE(f);
}

TEST(AllocationFaults, the_replacement_sees_the_library_cjson_and_the_c_library) {
    // Without this, every loop above would stop at n = 1 having tested nothing.
    const TypeInfo *t = s2j::find_type("DeviceInfo");
    ASSERT_NE(t, nullptr);
    std::vector<char> rec(t->desc->size);
    fill_unterminated(t, rec.data(), 0);
    bool library = false, cjson = false;
    for (long n = 2;; ++n) {
        FaultRun r = under_fault(n, [&] { keep(t->fam.s2j(rec.data(), 1)); }, true);
        if (!r.fired) break;
        library |= r.owner == Owner::Library;
        cjson |= r.owner == Owner::Cjson;
    }
    EXPECT_TRUE(library);
    EXPECT_TRUE(cjson);
    const std::string path = temp_dir() + "/x.json";
    FaultRun r = under_fault(1, [&] { t->fam.s2f(path.c_str(), rec.data()); });
    EXPECT_TRUE(r.fired);
}

// The shared library's own tree path (the loops above reach the tree path of
// the reference library): a text that the direct reader leaves to cJSON (a
// literal of 63 characters), nested deeper than the local stack of the walk
// that marks integer items, with an integer past 10^15.  Every allocation
// that fails, cJSON's, the walk's stack moved to the heap and the integer's
// decimal text, gives -2 with the record untouched and leaks nothing.
TEST(AllocationFaults, the_librarys_own_tree_path_gives_minus_2_untouched_at_every_fault) {
    std::string deep = "[0]";
    for (int i = 0; i < 40; ++i) deep = "[" + deep + ",1]";
    const std::string text = "{\"Deep\": " + deep + ", \"EncodeWorkMode\": 9007199254740993, \"Pad\": 0." +
                             std::string(60, '0') + "1}";
    const AdvancedParameter before = pattern<AdvancedParameter>();
    bool stack = false, integer = false;
    long n = 1;
    for (;; ++n) {
        AdvancedParameter rec = before;
        int rc = -99;
        FaultRun r = under_fault(n, [&] { rc = j2s_AdvancedParameter(text.c_str(), &rec); });
        SCOPED_TRACE("allocation " + std::to_string(n));
        ASSERT_EQ(r.live, 0) << "leaked";
        if (!r.fired) {
            EXPECT_EQ(rc, 0);
            EXPECT_EQ(rec.EncodeWorkMode, 1u);  // the low 32 bits of 2^53 + 1
            break;
        }
        EXPECT_EQ(rc, -2);
        EXPECT_EQ(std::memcmp(&rec, &before, sizeof rec), 0);
        stack |= r.owner == Owner::Library && r.failed_size == (CJSON_NESTING_LIMIT + 8) * sizeof(cJSON *);
        integer |= r.failed_size == sizeof "9007199254740993";
    }
    EXPECT_GT(n, 40);
    EXPECT_TRUE(stack) << "the walk's stack was not moved to the heap";
    EXPECT_TRUE(integer) << "no decimal text of an integer item was allocated";
}

}  // namespace
