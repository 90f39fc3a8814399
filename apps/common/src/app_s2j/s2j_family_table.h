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

// One row per exported function of a family, each its own macro so that a
// member's prototype can be taken by the family's name (S2J_PROTOTYPE):
//   X(Id, member, prefix, suffix, Maker, list, ret, params, T)
//   Id        the Family enumerator
//   member    the registry's name of it (Families::member, Families::Lines::member)
//   prefix, suffix  around the type's name: the exported function's name
//   Maker     the Family whose instantiation macro S2J_DEF_<Maker> defines it:
//             a _with_len variant comes with its family's member, on its line
//   list      which instantiation list states it: kTextList (app_s2j.cpp) or
//             kFileList (file2struct_def.cpp)
//   ret, params  its C prototype for the record type T: the definitions and
//             declarations of the members are made of them (T the type), the
//             registry's type-erased pointers too (T void), and the public
//             header's text (T itself, stringified).
#define S2J_FAMILY_S2J(X, T) X(S2J, s2j, s2j_, , S2J, kTextList, char *, (const T *struct_ptr, int formatted), T)
#define S2J_FAMILY_C2S(X, T) X(C2S, c2s, c2s_, , C2S, kTextList, int, (const cJSON *json, T *struct_ptr), T)
#define S2J_FAMILY_J2S(X, T) X(J2S, j2s, j2s_, , J2S, kTextList, int, (const char *json_str, T *struct_ptr), T)
#define S2J_FAMILY_J2S_LEN(X, T)                                        \
    X(J2S_LEN, j2s_with_len, j2s_, _with_len, J2S, kTextList, int,      \
      (const char *json_str, size_t json_str_len, T *struct_ptr), T)
#define S2J_FAMILY_S2J_ARRAY(X, T)                                      \
    X(S2J_ARRAY, s2j_array, s2j_array_, , S2J_ARRAY, kTextList, char *, \
      (const T *struct_array, uint32_t struct_array_size, int formatted), T)
#define S2J_FAMILY_C2S_ARRAY(X, T)                                      \
    X(C2S_ARRAY, c2s_array, c2s_array_, , C2S_ARRAY, kTextList, int,    \
      (const cJSON *json, T *struct_array, uint32_t *struct_array_size), T)
#define S2J_FAMILY_J2S_ARRAY(X, T)                                      \
    X(J2S_ARRAY, j2s_array, j2s_array_, , J2S_ARRAY, kTextList, int,    \
      (const char *json_str, T *struct_array, uint32_t *struct_array_size), T)
#define S2J_FAMILY_J2S_ARRAY_LEN(X, T)                                                      \
    X(J2S_ARRAY_LEN, j2s_array_with_len, j2s_array_, _with_len, J2S_ARRAY, kTextList, int,  \
      (const char *json_str, size_t json_str_len, T *struct_array, uint32_t *struct_array_size), T)
// An update member takes what the member of its array family takes.
#define S2J_FAMILY_C2S_ARRAY_UPDATE(X, T)                                                         \
    X(C2S_ARRAY_UPDATE, c2s_array_update, c2s_array_update_, , C2S_ARRAY_UPDATE, kTextList, int, \
      S2J_PARAMS(C2S_ARRAY, T), T)
#define S2J_FAMILY_J2S_ARRAY_UPDATE(X, T)                                                         \
    X(J2S_ARRAY_UPDATE, j2s_array_update, j2s_array_update_, , J2S_ARRAY_UPDATE, kTextList, int, \
      S2J_PARAMS(J2S_ARRAY, T), T)
#define S2J_FAMILY_J2S_ARRAY_UPDATE_LEN(X, T)                                                          \
    X(J2S_ARRAY_UPDATE_LEN, j2s_array_update_with_len, j2s_array_update_, _with_len, J2S_ARRAY_UPDATE, \
      kTextList, int, S2J_PARAMS(J2S_ARRAY_LEN, T), T)
#define S2J_FAMILY_F2S(X, T) X(F2S, f2s, f2s_, , F2S, kFileList, int, (const char *fine_name, T *struct_ptr), T)
#define S2J_FAMILY_S2F(X, T) \
    X(S2F, s2f, s2f_, , S2F, kFileList, int, (const char *fine_name, const T *struct_ptr), T)
#define S2J_FAMILY_F2S_ARRAY(X, T)                                    \
    X(F2S_ARRAY, f2s_array, f2s_array_, , F2S_ARRAY, kFileList, int,  \
      (const char *fine_name, T *struct_array, uint32_t *struct_array_size), T)
#define S2J_FAMILY_S2F_ARRAY(X, T)                                    \
    X(S2F_ARRAY, s2f_array, s2f_array_, , S2F_ARRAY, kFileList, int,  \
      (const char *fine_name, const T *struct_array, uint32_t struct_array_size), T)

// Every row, in the order the registry, the tool and the public header list
// them; T is the record type the prototypes are made for (T itself where
// they are not used).
#define S2J_FAMILIES(X, T)                                                                        \
    S2J_FAMILY_S2J(X, T) S2J_FAMILY_C2S(X, T) S2J_FAMILY_J2S(X, T) S2J_FAMILY_J2S_LEN(X, T)      \
    S2J_FAMILY_S2J_ARRAY(X, T) S2J_FAMILY_C2S_ARRAY(X, T) S2J_FAMILY_J2S_ARRAY(X, T)             \
    S2J_FAMILY_J2S_ARRAY_LEN(X, T) S2J_FAMILY_C2S_ARRAY_UPDATE(X, T)                              \
    S2J_FAMILY_J2S_ARRAY_UPDATE(X, T) S2J_FAMILY_J2S_ARRAY_UPDATE_LEN(X, T)                       \
    S2J_FAMILY_F2S(X, T) S2J_FAMILY_S2F(X, T) S2J_FAMILY_F2S_ARRAY(X, T) S2J_FAMILY_S2F_ARRAY(X, T)

// The prototype of T's member of family Id (without its linkage), its
// parameters, and the text of either.
#define S2J_PROTOTYPE_OF(Id, member, prefix, suffix, Maker, list, ret, params, T) ret prefix##T##suffix params
#define S2J_PROTOTYPE(Id, T) S2J_FAMILY_##Id(S2J_PROTOTYPE_OF, T)
#define S2J_PARAMS_OF(Id, member, prefix, suffix, Maker, list, ret, params, T) params
#define S2J_PARAMS(Id, T) S2J_FAMILY_##Id(S2J_PARAMS_OF, T)
#define S2J_TEXT_OF(...) #__VA_ARGS__
#define S2J_TEXT(...) S2J_TEXT_OF(__VA_ARGS__)
#define S2J_NO_PARENS(...) __VA_ARGS__

// The prototypes of the functions every type has beside its families, T the
// record type: its emitter and reader, and the keyword reader of a keyed type
// (into its keyword record) or of a type read whole and strictly (into the
// record).  The shared library defines them with these heads and the
// internal library declares them (s2j_record_defs.h); the public header's
// text is them stringified (kRecordPrototypes).
#define S2J_EMITTER_PROTOTYPE(T) cJSON *struct_to_json_##T(const T *struct_ptr)
#define S2J_READER_PROTOTYPE(T) int json_to_struct_##T(T *struct_ptr, const cJSON *json)
#define S2J_KEYWORD_READER_PROTOTYPE(T) int json_to_struct_##T##Keyword(T##Keyword *keyword, const cJSON *json)
#define S2J_ALL_FIELDS_READER_PROTOTYPE(T) int json_to_struct_##T##Keyword(T *struct_ptr, const cJSON *json)

namespace s2j {

// The record type in kRecordPrototypes: each "RECORD_T" stands for its name.
inline constexpr char kRecordPlaceholder[] = "RECORD_T";
struct RecordPrototypes {
    const char *emitter, *reader, *keyword_reader, *all_fields_reader;
};
inline constexpr RecordPrototypes kRecordPrototypes = {
    S2J_TEXT(S2J_EMITTER_PROTOTYPE(RECORD_T)), S2J_TEXT(S2J_READER_PROTOTYPE(RECORD_T)),
    S2J_TEXT(S2J_KEYWORD_READER_PROTOTYPE(RECORD_T)), S2J_TEXT(S2J_ALL_FIELDS_READER_PROTOTYPE(RECORD_T))};

// The family a member belongs to; with the type's name it makes the
// member's exported name.
#define S2J_FAMILY_ENUMERATOR(Id, ...) Id,
enum class Family : uint8_t { S2J_FAMILIES(S2J_FAMILY_ENUMERATOR, T) };
#undef S2J_FAMILY_ENUMERATOR

#define S2J_FAMILY_COUNT(...) +1
inline constexpr size_t kFamilyCount = 0 S2J_FAMILIES(S2J_FAMILY_COUNT, T);
#undef S2J_FAMILY_COUNT

// The instantiation list that states a family's members.
enum class List : uint8_t { kTextList, kFileList };

// A family as the registry, the tool and the generators read it.  The shared
// library keeps only the affixes (s2j_families.cpp), so that it carries none
// of the rest.
struct FamilyInfo {
    Family id;
    const char *name;  // the registry's member name: "s2j_array", "j2s_with_len"
    const char *prefix, *suffix;
    Family maker;  // the family whose instantiation line defines this member
    List list;
    const char *c_return;  // "int" or "char *": the prototype's start
    const char *c_params;  // the prototype's parameters, T for the record type
};

#define S2J_FAMILY_INFO(Id, member, prefix, suffix, Maker, list, ret, params, T)                              \
    {Family::Id, #member, #prefix, #suffix, Family::Maker, List::list, #ret, S2J_TEXT(S2J_NO_PARENS params)},
inline constexpr FamilyInfo kFamilies[] = {S2J_FAMILIES(S2J_FAMILY_INFO, T)};
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
