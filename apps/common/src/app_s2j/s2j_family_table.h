// s2j_family_table.h - the conversion families, listed once.  Everything that
// depends on the set of families is made from S2J_FAMILIES: the Family
// enumeration and the names that diagnostics print (s2j_families.h,
// s2j_families.cpp), the registry's function pointers and lines (registry.h,
// registry.cpp), the tool's names of families, and the public header's
// prototypes and the export list (tools/api_files.cpp).
#ifndef APP_S2J_FAMILY_TABLE_H
#define APP_S2J_FAMILY_TABLE_H

#include <cjson/cJSON.h>

#include <cstddef>
#include <cstdint>

// One row per exported function of a family, in the order the registry, the
// tool and the public header list them:
//   X(Id, member, prefix, suffix, Shape, Maker, list, c_return, c_params)
//   Id        the Family enumerator
//   member    the registry's name of it (Families::member, Families::Lines::member)
//   prefix, suffix  around the type's name: the exported function's name
//   Shape     the type-erased signature the registry holds (s2j::shape::Shape)
//   Maker     the Family whose instantiation macro S2J_DEF_<Maker> defines it:
//             a _with_len variant comes with its family's member, on its line
//   list      which instantiation list states it: kTextList (app_s2j.cpp) or
//             kFileList (file2struct_def.cpp)
//   c_return, c_params  its C prototype, T standing for the record type
#define S2J_FAMILIES(X)                                                                                  \
    X(S2J, s2j, "s2j_", "", EmitText, S2J, kTextList, "char *", "const T *struct_ptr, int formatted")    \
    X(C2S, c2s, "c2s_", "", ReadTree, C2S, kTextList, "int ", "const cJSON *json, T *struct_ptr")         \
    X(J2S, j2s, "j2s_", "", ReadText, J2S, kTextList, "int ", "const char *json_str, T *struct_ptr")      \
    X(J2S_LEN, j2s_with_len, "j2s_", "_with_len", ReadTextLen, J2S, kTextList, "int ",                   \
      "const char *json_str, size_t json_str_len, T *struct_ptr")                                         \
    X(S2J_ARRAY, s2j_array, "s2j_array_", "", EmitTextArray, S2J_ARRAY, kTextList, "char *",             \
      "const T *struct_array, uint32_t struct_array_size, int formatted")                                 \
    X(C2S_ARRAY, c2s_array, "c2s_array_", "", ReadTreeArray, C2S_ARRAY, kTextList, "int ",               \
      "const cJSON *json, T *struct_array, uint32_t *struct_array_size")                                  \
    X(J2S_ARRAY, j2s_array, "j2s_array_", "", ReadTextArray, J2S_ARRAY, kTextList, "int ",               \
      "const char *json_str, T *struct_array, uint32_t *struct_array_size")                               \
    X(J2S_ARRAY_LEN, j2s_array_with_len, "j2s_array_", "_with_len", ReadTextArrayLen, J2S_ARRAY,         \
      kTextList, "int ", "const char *json_str, size_t json_str_len, T *struct_array, uint32_t *struct_array_size") \
    X(C2S_ARRAY_UPDATE, c2s_array_update, "c2s_array_update_", "", ReadTreeArray, C2S_ARRAY_UPDATE,     \
      kTextList, "int ", "const cJSON *json, T *struct_array, uint32_t *struct_array_size")               \
    X(J2S_ARRAY_UPDATE, j2s_array_update, "j2s_array_update_", "", ReadTextArray, J2S_ARRAY_UPDATE,     \
      kTextList, "int ", "const char *json_str, T *struct_array, uint32_t *struct_array_size")            \
    X(J2S_ARRAY_UPDATE_LEN, j2s_array_update_with_len, "j2s_array_update_", "_with_len", ReadTextArrayLen, \
      J2S_ARRAY_UPDATE, kTextList, "int ",                                                                \
      "const char *json_str, size_t json_str_len, T *struct_array, uint32_t *struct_array_size")          \
    X(F2S, f2s, "f2s_", "", ReadFile, F2S, kFileList, "int ", "const char *fine_name, T *struct_ptr")     \
    X(S2F, s2f, "s2f_", "", WriteFile, S2F, kFileList, "int ", "const char *fine_name, const T *struct_ptr") \
    X(F2S_ARRAY, f2s_array, "f2s_array_", "", ReadFileArray, F2S_ARRAY, kFileList, "int ",               \
      "const char *fine_name, T *struct_array, uint32_t *struct_array_size")                              \
    X(S2F_ARRAY, s2f_array, "s2f_array_", "", WriteFileArray, S2F_ARRAY, kFileList, "int ",              \
      "const char *fine_name, const T *struct_array, uint32_t struct_array_size")

namespace s2j {

// The family a member belongs to; with the type's name it makes the
// member's exported name.
#define S2J_FAMILY_ENUMERATOR(Id, ...) Id,
enum class Family : uint8_t { S2J_FAMILIES(S2J_FAMILY_ENUMERATOR) };
#undef S2J_FAMILY_ENUMERATOR

#define S2J_FAMILY_COUNT(...) +1
inline constexpr size_t kFamilyCount = 0 S2J_FAMILIES(S2J_FAMILY_COUNT);
#undef S2J_FAMILY_COUNT

// The instantiation list that states a family's members.
enum class List : uint8_t { kTextList, kFileList };

// The signatures of the family members, with the record type erased.
namespace shape {
using EmitText = char *(*)(const void *rec, int formatted);
using ReadTree = int (*)(const cJSON *json, void *rec);
using ReadText = int (*)(const char *json_str, void *rec);
using ReadTextLen = int (*)(const char *json_str, size_t len, void *rec);
using EmitTextArray = char *(*)(const void *arr, uint32_t count, int formatted);
using ReadTreeArray = int (*)(const cJSON *json, void *arr, uint32_t *count);
using ReadTextArray = int (*)(const char *json_str, void *arr, uint32_t *count);
using ReadTextArrayLen = int (*)(const char *json_str, size_t len, void *arr, uint32_t *count);
using ReadFile = int (*)(const char *fine_name, void *rec);
using WriteFile = int (*)(const char *fine_name, const void *rec);
using ReadFileArray = int (*)(const char *fine_name, void *arr, uint32_t *count);
using WriteFileArray = int (*)(const char *fine_name, const void *arr, uint32_t count);
}  // namespace shape

// A family as the registry, the tool and the generators read it.  The shared
// library keeps only the affixes (s2j_families.cpp), so that it carries none
// of the rest.
struct FamilyInfo {
    Family id;
    const char *name;  // the registry's member name: "s2j_array", "j2s_with_len"
    const char *prefix, *suffix;
    Family maker;  // the family whose instantiation line defines this member
    List list;
    const char *c_return;  // "int " or "char *": the prototype's start
    const char *c_params;  // the prototype's parameters, T for the record type
};

#define S2J_FAMILY_INFO(Id, member, prefix, suffix, Shape, Maker, list, c_return, c_params) \
    {Family::Id, #member, prefix, suffix, Family::Maker, List::list, c_return, c_params},
inline constexpr FamilyInfo kFamilies[] = {S2J_FAMILIES(S2J_FAMILY_INFO)};
#undef S2J_FAMILY_INFO

constexpr bool families_in_enum_order() {
    for (size_t i = 0; i < kFamilyCount; ++i)
        if (static_cast<size_t>(kFamilies[i].id) != i) return false;
    return true;
}
static_assert(families_in_enum_order(), "kFamilies is indexed by Family");

// True when the family has an instantiation macro of its own (S2J_DEF_<Id>),
// false for the _with_len variants that another family's macro defines.
constexpr bool has_own_line(Family f) { return kFamilies[static_cast<size_t>(f)].maker == f; }

// True when the family's members convert record arrays: their parameters
// take struct_array.
constexpr bool converts_arrays(Family f) {
    constexpr char word[] = "struct_array";
    for (const char *p = kFamilies[static_cast<size_t>(f)].c_params; *p != '\0'; ++p) {
        size_t i = 0;
        while (word[i] != '\0' && p[i] == word[i]) ++i;
        if (word[i] == '\0') return true;
    }
    return false;
}
static_assert(!converts_arrays(Family::J2S_LEN) && converts_arrays(Family::J2S_ARRAY_UPDATE_LEN) &&
              converts_arrays(Family::S2F_ARRAY) && !converts_arrays(Family::S2F));

}  // namespace s2j

#endif  // APP_S2J_FAMILY_TABLE_H
