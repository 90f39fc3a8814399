// s2j_families.h - the generic conversion families and the macros that expand
// them per record type in the instantiation lists (app_s2j.cpp,
// file2struct_def.cpp).  Each expansion is one exported function (two for the
// j2s forms) that captures its site - file, line, name - and hands the type's
// descriptor to the shared engine.
#ifndef APP_S2J_FAMILIES_H
#define APP_S2J_FAMILIES_H

#include "s2j_family_table.h"
#include "s2j_record_defs.h"
#include "s2j_typelist.h"

namespace s2j {

// Where a family member is defined: what its diagnostics print.  Passed by
// value in two registers (three on 32-bit targets), so that a member needs no data of its own (no
// record, no relocation, no copy of its name): the name is made from the
// family and the type when a diagnostic is printed.
struct Site {
    const char *file;
    uint32_t line;
    Family fam;
};
static_assert(sizeof(Site) == (sizeof(void *) == 8 ? 16 : 12),
              "a site travels in two registers (three on 32-bit targets)");

// The three writes of a diagnostic: header (file, line and the member's
// name, made of the family's prefix, the type and the family's suffix),
// message (the format itself), reset.
void diag(Site site, const char *type, const char *fmt, ...) __attribute__((format(printf, 3, 4)));

char *fam_s2j(Site s, const TypeDesc *d, const void *rec, int formatted);
int fam_c2s(Site s, const TypeDesc *d, const cJSON *json, void *rec);
char *fam_s2j_array(Site s, const TypeDesc *d, const void *arr, uint32_t count, int formatted);
int fam_c2s_array(Site s, const TypeDesc *d, const cJSON *json, void *arr, uint32_t *count);
int fam_c2s_array_update(Site s, const TypeDesc *d, const cJSON *json, void *arr, uint32_t *count);

// The text members.  tree_line is the line of the type's member that reads
// the same shape from a tree (c2s, c2s_array, c2s_array_update): a text that
// parses is read exactly as that member reads its tree, and what it reports
// is reported under its name and line.
int fam_j2s(Site s, uint32_t tree_line, const TypeDesc *d, const char *json_str, void *rec);
int fam_j2s_with_len(Site s, uint32_t tree_line, const TypeDesc *d, const char *json_str, size_t len, void *rec);
int fam_j2s_array(Site s, uint32_t tree_line, const TypeDesc *d, const char *json_str, void *arr, uint32_t *count);
int fam_j2s_array_with_len(Site s, uint32_t tree_line, const TypeDesc *d, const char *json_str, size_t len,
                           void *arr, uint32_t *count);
int fam_j2s_array_update(Site s, uint32_t tree_line, const TypeDesc *d, const char *json_str, void *arr,
                         uint32_t *count);
int fam_j2s_array_update_with_len(Site s, uint32_t tree_line, const TypeDesc *d, const char *json_str, size_t len,
                                  void *arr, uint32_t *count);

}  // namespace s2j

// The exported members: a member of family Id for the type T is defined with
// the prototype of its family's row (S2J_PROTOTYPE), and every member of
// every type is declared with it first.  The declarations let the file
// members and the registry name a member of any type whether or not the
// public header declares it yet (it is written from the registry); a
// definition or a header prototype that differs from them conflicts with
// them and fails the build.  A declaration that no line defines is never
// referred to.
#define S2J_SIG(Id, T) S2J_API S2J_PROTOTYPE(Id, T)
#define S2J_DECLARE_MEMBER(Id, member, prefix, suffix, Maker, list, ret, params, T) \
    S2J_API ret prefix##T##suffix params;
#define S2J_DECLARE_MEMBERS(T) S2J_FAMILIES(S2J_DECLARE_MEMBER, T)
S2J_TYPES(S2J_DECLARE_MEMBERS)

#define S2J_SITE(fam) const ::s2j::Site site{__FILE__, __LINE__, ::s2j::Family::fam}
// A tree member records its line, for the text member of its type below it.
#define S2J_MARK_LINE(fam, T) \
    namespace s2j::lines {    \
    inline constexpr uint32_t fam##_##T = __LINE__; \
    }
#define S2J_LINE_OF(fam, T) ::s2j::lines::fam##_##T

// The registry reads the same lists with these macros defined its own way.
#ifndef S2J_REGISTRY_PASS

#define S2J_DEF_S2J(T)                                                                             \
    S2J_SIG(S2J, T) {                                                                               \
        S2J_SITE(S2J);                                                                             \
        return ::s2j::fam_s2j(site, &::s2j::desc_##T, struct_ptr, formatted);                      \
    }

#define S2J_DEF_C2S(T)                                                                             \
    S2J_MARK_LINE(C2S, T)                                                                          \
    S2J_SIG(C2S, T) {                                                                               \
        S2J_SITE(C2S);                                                                             \
        return ::s2j::fam_c2s(site, &::s2j::desc_##T, json, struct_ptr);                           \
    }

#define S2J_DEF_J2S(T)                                                                             \
    S2J_SIG(J2S, T) {                                                                               \
        S2J_SITE(J2S);                                                                             \
        return ::s2j::fam_j2s(site, S2J_LINE_OF(C2S, T), &::s2j::desc_##T, json_str, struct_ptr);  \
    }                                                                                              \
    S2J_SIG(J2S_LEN, T) {                                                                           \
        S2J_SITE(J2S_LEN);                                                                         \
        return ::s2j::fam_j2s_with_len(site, S2J_LINE_OF(C2S, T), &::s2j::desc_##T, json_str,      \
                                       json_str_len, struct_ptr);                                  \
    }

#define S2J_DEF_S2J_ARRAY(T)                                                                       \
    S2J_SIG(S2J_ARRAY, T) {                                                                         \
        S2J_SITE(S2J_ARRAY);                                                                       \
        return ::s2j::fam_s2j_array(site, &::s2j::desc_##T, struct_array, struct_array_size, formatted); \
    }

#define S2J_DEF_C2S_ARRAY(T)                                                                       \
    S2J_MARK_LINE(C2S_ARRAY, T)                                                                    \
    S2J_SIG(C2S_ARRAY, T) {                                                                         \
        S2J_SITE(C2S_ARRAY);                                                                       \
        return ::s2j::fam_c2s_array(site, &::s2j::desc_##T, json, struct_array, struct_array_size); \
    }

#define S2J_DEF_C2S_ARRAY_UPDATE(T)                                                                \
    S2J_MARK_LINE(C2S_ARRAY_UPDATE, T)                                                             \
    S2J_SIG(C2S_ARRAY_UPDATE, T) {                                                                  \
        S2J_SITE(C2S_ARRAY_UPDATE);                                                                \
        return ::s2j::fam_c2s_array_update(site, &::s2j::desc_##T, json, struct_array, struct_array_size); \
    }

#define S2J_DEF_J2S_ARRAY(T)                                                                       \
    S2J_SIG(J2S_ARRAY, T) {                                                                         \
        S2J_SITE(J2S_ARRAY);                                                                       \
        return ::s2j::fam_j2s_array(site, S2J_LINE_OF(C2S_ARRAY, T), &::s2j::desc_##T, json_str, struct_array, \
                                    struct_array_size);                                            \
    }                                                                                              \
    S2J_SIG(J2S_ARRAY_LEN, T) {                                                                     \
        S2J_SITE(J2S_ARRAY_LEN);                                                                   \
        return ::s2j::fam_j2s_array_with_len(site, S2J_LINE_OF(C2S_ARRAY, T), &::s2j::desc_##T, json_str, \
                                             json_str_len, struct_array, struct_array_size);       \
    }

#define S2J_DEF_J2S_ARRAY_UPDATE(T)                                                                \
    S2J_SIG(J2S_ARRAY_UPDATE, T) {                                                                  \
        S2J_SITE(J2S_ARRAY_UPDATE);                                                                \
        return ::s2j::fam_j2s_array_update(site, S2J_LINE_OF(C2S_ARRAY_UPDATE, T), &::s2j::desc_##T, json_str, \
                                           struct_array, struct_array_size);                       \
    }                                                                                              \
    S2J_SIG(J2S_ARRAY_UPDATE_LEN, T) {                                                              \
        S2J_SITE(J2S_ARRAY_UPDATE_LEN);                                                            \
        return ::s2j::fam_j2s_array_update_with_len(site, S2J_LINE_OF(C2S_ARRAY_UPDATE, T), &::s2j::desc_##T, \
                                                    json_str, json_str_len, struct_array, struct_array_size); \
    }

#endif  // S2J_REGISTRY_PASS

#endif  // APP_S2J_FAMILIES_H
