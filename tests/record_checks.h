// record_checks.h - helpers of the per-subsystem record tests: the exact set
// of functions a type exports, its diagnostic lines, and its example file.
#ifndef APP_S2J_RECORD_CHECKS_H
#define APP_S2J_RECORD_CHECKS_H

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstring>
#include <set>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "app_s2j.h"
#include "registry.h"
#include "support.h"

// Capacity of a member, and whether a member has a given C type.
#define CAPACITY(T, m) sizeof(((T *)0)->m)
#define MEMBER_IS(T, m, C) std::is_same<decltype(T::m), C>::value

namespace record_checks {

using testing_support::read_file;
using testing_support::Text;
using testing_support::Tree;

inline const s2j::Families &fam(const char *type) {
    const s2j::TypeInfo *t = s2j::find_type(type);
    EXPECT_NE(t, nullptr) << type;
    return t->fam;
}

inline std::string d(int line, const std::string &func, const std::string &msg) {
    return testing_support::diag(testing_support::text_list_file(), line, func, msg);
}

using testing_support::exported;

// Every exported name a type could have, against the families it should
// have: "s2j", "c2s", "j2s" (with its _with_len), "s2j_array", "c2s_array",
// "j2s_array" (with its _with_len), "update" (the three), "keyword", "get",
// "f2s", "s2f", "f2s_array", "s2f_array".
inline void expect_exactly(const std::string &T, const std::set<std::string> &fams) {
    const std::vector<std::pair<std::string, std::vector<std::string>>> all = {
        {"s2j", {"s2j_" + T}},
        {"c2s", {"c2s_" + T}},
        {"j2s", {"j2s_" + T, "j2s_" + T + "_with_len"}},
        {"s2j_array", {"s2j_array_" + T}},
        {"c2s_array", {"c2s_array_" + T}},
        {"j2s_array", {"j2s_array_" + T, "j2s_array_" + T + "_with_len"}},
        {"update", {"c2s_array_update_" + T, "j2s_array_update_" + T, "j2s_array_update_" + T + "_with_len"}},
        {"keyword", {"json_to_struct_" + T + "Keyword"}},
        {"get", {"json_to_struct_Get" + T + "Keyword"}},
        {"f2s", {"f2s_" + T}},
        {"s2f", {"s2f_" + T}},
        {"f2s_array", {"f2s_array_" + T}},
        {"s2f_array", {"s2f_array_" + T}},
    };
    EXPECT_TRUE(exported("struct_to_json_" + T));
    EXPECT_TRUE(exported("json_to_struct_" + T));
    for (const auto &fam : all)
        for (const std::string &name : fam.second) EXPECT_EQ(exported(name), fams.count(fam.first) == 1) << name;
}

inline std::string chars(size_t n, char c = 'a') { return std::string(n, c); }

// Compact text of one emitted record.
template <class T>
std::string emitted(cJSON *(*emit)(const T *), const T &r) {
    Tree tree(emit(&r));
    Text text(cJSON_PrintUnformatted(tree.p));
    return text.str();
}

inline std::string example(const char *type) {
    return std::string(APP_S2J_SOURCE_DIR) + "/examples/" + type + ".json";
}

// The example loads with the type's reader (each element of an array file),
// and the type's emitter gives back the file's very text (an example file
// ends in a newline after the library's text).
template <class T>
void expect_example_reads(const char *type, bool array, cJSON *(*emit)(const T *),
                          int (*read)(T *, const cJSON *), std::vector<T> *out = nullptr) {
    std::string text = read_file(example(type));
    if (!text.empty() && text.back() == '\n') text.pop_back();
    Tree tree(cJSON_Parse(text.c_str()));
    ASSERT_NE(tree.p, nullptr) << type;
    std::vector<T> recs;
    if (array) {
        ASSERT_TRUE(cJSON_IsArray(tree.p)) << type;
        int n = cJSON_GetArraySize(tree.p);
        EXPECT_TRUE(n >= 2 && n <= 4) << type;
        recs.resize(static_cast<size_t>(n));
        for (int i = 0; i < n; ++i) EXPECT_EQ(read(&recs[i], cJSON_GetArrayItem(tree.p, i)), 1) << type << " " << i;
    } else {
        ASSERT_TRUE(cJSON_IsObject(tree.p)) << type;
        recs.resize(1);
        EXPECT_EQ(read(&recs[0], tree.p), 1) << type;
    }
    cJSON *again = array ? cJSON_CreateArray() : emit(&recs[0]);
    if (array)
        for (const T &r : recs) cJSON_AddItemToArray(again, emit(&r));
    Tree back(again);
    Text printed(cJSON_Print(again));
    EXPECT_EQ(printed.str(), text) << type;
    if (out) *out = recs;
}

// The same file through the type's file reader gives the same records.
template <class T>
void expect_f2s_array(const char *type, int (*f2s_array)(const char *, T *, uint32_t *), const std::vector<T> &want) {
    uint32_t n = 0;
    ASSERT_EQ(f2s_array(example(type).c_str(), nullptr, &n), 0) << type;
    ASSERT_EQ(n, want.size()) << type;
    std::vector<T> got(n);
    ASSERT_EQ(f2s_array(example(type).c_str(), got.data(), &n), 0) << type;
    EXPECT_EQ(std::memcmp(got.data(), want.data(), n * sizeof(T)), 0) << type;
}

}  // namespace record_checks

#endif  // APP_S2J_RECORD_CHECKS_H
