// reader_diff.h - runs a text family member of the library and of the
// reference library (libapp_s2j_tree, which reads every text through cJSON's
// tree) on the same text and the same records, and compares everything a
// caller can observe: the status, every byte of the records, the count, the
// standard error stream and cJSON's error position.  Shared by the
// differential test and the differential fuzz target.
#ifndef APP_S2J_READER_DIFF_H
#define APP_S2J_READER_DIFF_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "registry.h"

namespace reader_diff {

enum class Member : uint8_t {
    J2s, J2sLen, J2sArray, J2sArrayLen, J2sArrayUpdate, J2sArrayUpdateLen, F2s, F2sArray,
};
constexpr int kMembers = 8;
const char *member_name(Member m);
// Whether the type has that member.
bool has(const s2j::TypeInfo *t, Member m);

struct Call {
    Member member;
    std::string text;      // the bytes; NUL-terminated members read up to the first NUL
    size_t len;            // for the _with_len members
    bool query;            // arrays: a null struct_array
    uint32_t capacity;     // arrays and updates: the count on entry
    std::vector<char> records;  // the records before the call (capacity or one record, at least)
};

// Runs the call on both libraries; empty when every observable result is
// the same, else what differs.
std::string compare(const s2j::TypeInfo *lib, const s2j::TypeInfo *ref, const Call &call);

// The name of the file that the last comparison of a file member read; the
// comparison removes it before it returns.
const std::string &last_file();

// The reference library's entry of a library type.
const s2j::TypeInfo *reference_of(const s2j::TypeInfo *t);

}  // namespace reader_diff

#endif  // APP_S2J_READER_DIFF_H
