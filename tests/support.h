// support.h - helpers shared by the tests: capture of the standard error
// stream, temporary files, and the expected bytes of a diagnostic.
#ifndef APP_S2J_TEST_SUPPORT_H
#define APP_S2J_TEST_SUPPORT_H

#include <gtest/gtest.h>

#include <cstring>
#include <initializer_list>
#include <map>
#include <string>
#include <type_traits>
#include <vector>

#include "app_s2j.h"
#include "registry.h"

namespace testing_support {

// Redirects file descriptor 2 to a temporary file until text() is called.
class StderrCapture {
public:
    StderrCapture();
    ~StderrCapture();
    // Stops capturing (once) and returns everything written meanwhile.
    std::string text();

private:
    int saved_ = -1;
    int fd_ = -1;
    std::string text_;
    bool done_ = false;
};

// Paths of the instantiation lists as their diagnostics print them.
std::string text_list_file();
std::string file_list_file();

// Every registry type, in registry order.
std::vector<const s2j::TypeInfo *> all_types();

// A member of a struct as the public types header declares it: its C type
// ("uint32_t", "char[64]", "uint32_t[256]") and its name.
struct DeclaredMember {
    std::string type;
    std::string name;
};
// Every struct of the public types header (app_s2j_types.h) by name, its
// members in order.
const std::map<std::string, std::vector<DeclaredMember>> &declared_structs();

// Whether the library exports a function of that name.
bool exported(const std::string &name);

// The instantiation lines of a registry type's family members (all 0, and a
// test failure, for a name the registry does not know).
const s2j::Families::Lines &lines_of(const char *type);

// The three writes of one diagnostic.
std::string diag(const std::string &file, int line, const std::string &func, const std::string &msg);
// The same of a diagnostic at a line of the text list.
std::string text_diag(int line, const std::string &func, const std::string &msg);

// What a keyed update of the type writes as it refuses an element without
// its keys.
std::string keyword_diag(const char *type);

// What cJSON itself reports, after failing to parse text, as the place
// where parsing stopped (the rest of the text from there).
std::string parse_reason(const char *text);
std::string parse_reason_with_len(const char *text, size_t len);

// The example file of a record type (examples/<type>.json), and its text as
// the library writes it: the file without its final newline.
std::string example_path(const std::string &type);
std::string example_text(const std::string &type);

// A type's example file, read record by record with the type's reader of a
// tree, is the emitter's own text and its text writers' (an array example
// holds 2 to 4 records); the type's tree, text and file readers give the
// same records.
void expect_example_round_trip(const s2j::TypeInfo *t);

// The compact text of a tree ("<null>" for none), the tree left as it is.
std::string print_compact(const cJSON *tree);
// The same of a tree made for the call (an emitter's), which it deletes.
std::string compact(cJSON *tree);

// A scheduled task: enabled, run at `minute` and `hour` on `weekday`, on
// every day and month.
CrontabParameter crontab_task(uint32_t index, const char *minute, const char *hour, const char *weekday,
                              const std::string &command);

// Records of a registry type filled field by field (integers, strings and
// lists alike), with keys distinct per seed so that the elements of an array
// can be told apart.
// Boundary and varied values: seed 0 gives the extremes (INT32_MIN,
// UINT32_MAX, UINT16_MAX, strings of N-1 characters), other seeds others;
// keys "key<seed>", or seed + 100 * k for the k-th integer key.
void fill_boundary(const s2j::TypeInfo *t, char *rec, uint32_t seed);
// Strings that fill all N bytes (no NUL), so that an emitter copies each of
// them; keys "k<seed>" or seed.
void fill_unterminated(const s2j::TypeInfo *t, char *rec, uint32_t seed);
// Values that differ from seed to seed and field to field, strings
// "t<seed>-<field>"; the record is zeroed first.
void fill_distinct(const s2j::TypeInfo *t, char *rec, uint32_t seed);

// A fresh empty directory for the test, removed with its files at exit.
std::string temp_dir();
std::string read_file(const std::string &path);
void write_file(const std::string &path, const std::string &text);
bool file_exists(const std::string &path);

// Owns a malloc'ed text.
struct Text {
    explicit Text(char *p) : p(p) {}
    ~Text();
    Text(const Text &) = delete;
    Text &operator=(const Text &) = delete;
    std::string str() const { return p ? std::string(p) : std::string("<null>"); }
    char *p;
};

// Owns a cJSON tree.
struct Tree {
    explicit Tree(cJSON *p) : p(p) {}
    ~Tree() { cJSON_Delete(p); }
    Tree(const Tree &) = delete;
    Tree &operator=(const Tree &) = delete;
    cJSON *p;
};

// While alive, cJSON's allocations fail from the n-th on (counted from 0),
// or only the n-th with `once`; with `refuse_first` the first one (the
// buffer of a text writer, which then prints a tree) fails too.
// Allocations made so far are counted.
class CjsonFaults {
public:
    explicit CjsonFaults(long fail_at, bool once = false, bool refuse_first = false);
    ~CjsonFaults();
    static long allocations();

private:
    CjsonFaults(const CjsonFaults &) = delete;
    CjsonFaults &operator=(const CjsonFaults &) = delete;
};

// An integer literal and the 16 bits a uint16_t field keeps of it.
struct Low16Case {
    const char *literal;
    uint16_t stored;
};

// A text of n characters c.
inline std::string chars(size_t n, char c = 'a') { return std::string(n, c); }

// Compact text of one emitted record.
template <class T>
std::string emitted(cJSON *(*emit)(const T *), const T &r) {
    return compact(emit(&r));
}

// A record whose every byte is `fill`, so that untouched bytes show.
template <class T>
T pattern(unsigned char fill = 0xA5) {
    T r;
    std::memset(static_cast<void *>(&r), fill, sizeof r);
    return r;
}

// The string member `key` of an object, with a test failure where it is
// absent or not a string.
std::string string_member(const cJSON *object, const char *key);

// A text of `len` characters c (len >= N) for the string member `key` is
// stored as its first N - 1, through the type's reader of a tree, or its
// text reader (`j2s`), from a record of 0xA5 bytes.
template <class T, size_t N>
void expect_read_as_prefix(int (*read)(T *, const cJSON *), char (T::*member)[N], const char *key, size_t len,
                           char c) {
    T r = pattern<T>();
    const std::string doc = std::string("{\"") + key + "\": \"" + std::string(len, c) + "\"}";
    Tree tree(cJSON_Parse(doc.c_str()));
    ASSERT_EQ(read(&r, tree.p), 1) << key << " " << len;
    EXPECT_EQ(std::string(r.*member), std::string(N - 1, c)) << key << " " << len;
}
template <class T, size_t N>
void expect_read_as_prefix(int (*j2s)(const char *, T *), char (T::*member)[N], const char *key, size_t len, char c) {
    T r = pattern<T>();
    const std::string doc = std::string("{\"") + key + "\": \"" + std::string(len, c) + "\"}";
    ASSERT_EQ(j2s(doc.c_str(), &r), 0) << key << " " << len;
    EXPECT_EQ(std::string(r.*member), std::string(N - 1, c)) << key << " " << len;
}

// The same for each of the lengths `lens`.
template <class Reader, class T, size_t N>
void expect_read_as_prefix(Reader read, char (T::*member)[N], const char *key, std::initializer_list<size_t> lens,
                           char c) {
    for (size_t len : lens) expect_read_as_prefix(read, member, key, len, c);
}

// The string member `key` filled with c, without a NUL, is emitted as all
// N characters.
template <class T, size_t N>
void expect_emitted_whole(cJSON *(*emit)(const T *), char (T::*member)[N], const char *key, char c) {
    T r = pattern<T>(0);
    std::memset(r.*member, c, N);
    Tree tree(emit(&r));
    EXPECT_EQ(string_member(tree.p, key), std::string(N, c)) << key;
}

// The single-key reader `get` of an integer first key reads `want` out of
// the object `doc` (status 1), and refuses each of `refused` (status 0),
// leaving the key as it was.
void expect_integer_key_reader(int (*get)(uint32_t *, const cJSON *), const char *doc, uint32_t want,
                               std::initializer_list<const char *> refused);

// Both keyword readers of a type keyed by an integer Channel: `doc` gives
// `want` (status 1), and each of `refused` is refused (status 0).
template <class K>
void expect_channel_keyword_readers(int (*keyword)(K *, const cJSON *), int (*get)(uint32_t *, const cJSON *),
                                    const char *doc, uint32_t want, std::initializer_list<const char *> refused) {
    K k = {};
    Tree tree(cJSON_Parse(doc));
    EXPECT_EQ(keyword(&k, tree.p), 1) << doc;
    EXPECT_EQ(k.Channel, want) << doc;
    for (const char *other : refused) {
        Tree no(cJSON_Parse(other));
        EXPECT_EQ(keyword(&k, no.p), 0) << other;
    }
    expect_integer_key_reader(get, doc, want, refused);
}

// Both keyword readers of a type with an integer first key refuse the
// object `doc` (status 0), the single-key reader leaving its key as it was.
template <class K>
void expect_keyword_readers_refuse(int (*keyword)(K *, const cJSON *), int (*get)(uint32_t *, const cJSON *),
                                   const char *doc) {
    Tree tree(cJSON_Parse(doc));
    K k = {};
    EXPECT_EQ(keyword(&k, tree.p), 0) << doc;
    uint32_t key = 77;
    EXPECT_EQ(get(&key, tree.p), 0) << doc;
    EXPECT_EQ(key, 77u) << doc;
}

// Both keyword readers of a type keyed by a string InterfaceName refuse the
// object `refused` (status 0), and the keyword reader reads `doc` (status 1)
// as the name `want`.
template <class K>
void expect_name_keyword_readers(int (*keyword)(K *, const cJSON *), int (*get)(char *, const cJSON *),
                                 const char *refused, const char *doc, const char *want) {
    K k = {};
    Tree no(cJSON_Parse(refused));
    EXPECT_EQ(keyword(&k, no.p), 0) << refused;
    char name[64] = {};
    EXPECT_EQ(get(name, no.p), 0) << refused;
    Tree yes(cJSON_Parse(doc));
    EXPECT_EQ(keyword(&k, yes.p), 1) << doc;
    EXPECT_STREQ(k.InterfaceName, want) << doc;
}

// Both keyword readers of a type keyed by a string read the key `member`
// out of `object` (status 1) as `want`.
template <class K>
void expect_name_keyword_readers_read(int (*keyword)(K *, const cJSON *), int (*get)(char *, const cJSON *),
                                      char (K::*member)[64], const cJSON *object, const std::string &want) {
    K kw;
    ASSERT_EQ(keyword(&kw, object), 1);
    EXPECT_EQ(std::string(kw.*member), want);
    char name[64];
    ASSERT_EQ(get(name, object), 1);
    EXPECT_EQ(std::string(name), want);
}

// The single-key reader `get` of a string first key refuses each of `docs`
// (status 0), leaving the key as it was.
void expect_string_key_reader_refuses(int (*get)(char *, const cJSON *), std::initializer_list<const char *> docs);

// A flag whose key has one spelling: the reader of a tree reads `key` and
// leaves the member as it was (`kept`) for `other`, the other spelling.
template <class T>
void expect_reads_only_spelling(int (*read)(T *, const cJSON *), int32_t T::*member, const char *key,
                                const char *other, int32_t kept) {
    T r = {};
    r.*member = kept;
    Tree wrong(cJSON_CreateObject());
    cJSON_AddNumberToObject(wrong.p, other, 1);
    ASSERT_EQ(read(&r, wrong.p), 1) << other;
    EXPECT_EQ(r.*member, kept) << other;
    Tree right(cJSON_CreateObject());
    cJSON_AddNumberToObject(right.p, key, 1);
    ASSERT_EQ(read(&r, right.p), 1) << key;
    EXPECT_EQ(r.*member, 1) << key;
}
// The emitter writes `key` (exactly so) and no `other` in any letter case.
template <class T>
void expect_emits_only_spelling(cJSON *(*emit)(const T *), int32_t T::*member, const char *key, const char *other) {
    T r = {};
    r.*member = 1;
    Tree tree(emit(&r));
    EXPECT_NE(cJSON_GetObjectItemCaseSensitive(tree.p, key), nullptr) << key;
    EXPECT_EQ(cJSON_GetObjectItem(tree.p, other), nullptr) << other;
}

// The N records saved with s2f_array and loaded with f2s_array into room for
// `capacity` (at least N) come back as they were, N of them.
template <class T, size_t N>
void expect_array_file_round_trip(int (*s2f_array)(const char *, const T *, uint32_t),
                                  int (*f2s_array)(const char *, T *, uint32_t *), const T (&arr)[N],
                                  uint32_t capacity) {
    const std::string path = temp_dir() + "/records.json";
    ASSERT_EQ(s2f_array(path.c_str(), arr, N), 0);
    std::vector<T> back(capacity);
    std::memset(static_cast<void *>(back.data()), 0, capacity * sizeof(T));
    uint32_t n = capacity;
    ASSERT_EQ(f2s_array(path.c_str(), back.data(), &n), 0);
    EXPECT_EQ(n, N);
    EXPECT_EQ(std::memcmp(back.data(), arr, sizeof arr), 0);
}

// The record that the text reader `j2s` reads from `doc` (status 0) over a
// zeroed record.
template <class T>
T record_from_text(int (*j2s)(const char *, T *), const std::string &doc) {
    T r = {};
    EXPECT_EQ(j2s(doc.c_str(), &r), 0) << doc;
    return r;
}

// The status of the tree member `c2s` on the tree parsed from `doc`, into *r.
template <class T>
int c2s_of_text(int (*c2s)(const cJSON *, T *), const char *doc, T *r) {
    Tree tree(cJSON_Parse(doc));
    return c2s(tree.p, r);
}

// The status of the reader of a tree `read` on the tree parsed from `doc`,
// into *r.
template <class T>
int read_of_text(int (*read)(T *, const cJSON *), const char *doc, T *r) {
    Tree tree(cJSON_Parse(doc));
    return read(r, tree.p);
}

// What the text reader `j2s` writes to the standard error stream as it reads
// `text` into *r, returning `status`.
template <class T>
std::string j2s_stderr(int (*j2s)(const char *, T *), const char *text, T *r, int status) {
    StderrCapture err;
    EXPECT_EQ(j2s(text, r), status) << text;
    return err.text();
}

// The record that the reader of a tree `read` reads from the object `doc`
// (status 1) over a zeroed record.
template <class T>
T record_from_tree(int (*read)(T *, const cJSON *), const std::string &doc) {
    T r = {};
    Tree tree(cJSON_Parse(doc.c_str()));
    EXPECT_EQ(read(&r, tree.p), 1) << doc;
    return r;
}

// Records whose Channel is their index and whose `member` is `value`.
template <class T, class M, size_t N>
void channels_with(T (&arr)[N], M T::*member, M value) {
    for (uint32_t i = 0; i < N; ++i) {
        arr[i].Channel = i;
        arr[i].*member = value;
    }
}

// The value of `member` in each record of the array, in order.
template <class T, class M, size_t N>
std::vector<M> member_values(const T (&arr)[N], M T::*member) {
    std::vector<M> values;
    for (const T &r : arr) values.push_back(r.*member);
    return values;
}

// The keyed update `request` applied by j2s_array_update to the `room`
// records at `arr`: status 0 and `count` updates applied.
template <class T>
void expect_update_applies(int (*update)(const char *, T *, uint32_t *), const char *request, T *arr, uint32_t room,
                           uint32_t count) {
    uint32_t n = room;
    EXPECT_EQ(update(request, arr, &n), 0) << request;
    EXPECT_EQ(n, count) << request;
}

// The keyed update `request` of the `room` records at `arr` refused (status
// -2) with the keyword diagnostic of `type`, as for an element without its
// keys.  Returns the count the update gives back.
template <class T>
uint32_t refused_update_count(int (*update)(const char *, T *, uint32_t *), const char *type, const char *request,
                              T *arr, uint32_t room) {
    uint32_t n = room;
    StderrCapture err;
    EXPECT_EQ(update(request, arr, &n), -2) << request;
    EXPECT_EQ(err.text(), keyword_diag(type)) << request;
    return n;
}

// j2s_array reads the one record of `text` over *r (status 0, count 1).
template <class T>
void read_one_over(int (*j2s_array)(const char *, T *, uint32_t *), const char *text, T *r) {
    uint32_t n = 1;
    ASSERT_EQ(j2s_array(text, r, &n), 0) << text;
    EXPECT_EQ(n, 1u) << text;
}

// A record array read by j2s_array from its text, or by f2s_array from the
// file of that path, into room for `room` records (zeroed first): status 0
// and `count` records.  Returns the whole room.
template <class T>
std::vector<T> read_array_back(int (*read_array)(const char *, T *, uint32_t *), const char *text_or_path,
                               uint32_t room, uint32_t count) {
    std::vector<T> back(room);
    std::memset(static_cast<void *>(back.data()), 0, room * sizeof(T));
    uint32_t n = room;
    EXPECT_EQ(read_array(text_or_path, back.data(), &n), 0) << text_or_path;
    EXPECT_EQ(n, count) << text_or_path;
    return back;
}

}  // namespace testing_support

#endif
