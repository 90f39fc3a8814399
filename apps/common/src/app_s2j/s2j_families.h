// s2j_families.h - the generic conversion families and the macros that expand
// them per record type in the instantiation lists (app_s2j.cpp,
// file2struct_def.cpp).  Each expansion is one exported function (two for the
// j2s forms) that captures its site - file, line, name - and hands the type's
// descriptor to the shared engine.
#ifndef APP_S2J_FAMILIES_H
#define APP_S2J_FAMILIES_H

#include "s2j_internal.h"
#include "s2j_typelist.h"

namespace s2j {

// Where a family member is defined: what its diagnostics print.
struct Site {
    const char *file;
    int line;
    const char *func;
};

// The three writes of a diagnostic: header, message (the format itself),
// reset.
void diag(const Site *site, const char *fmt, ...) __attribute__((format(printf, 2, 3)));

using C2sFn = int (*)(const cJSON *, void *);
using C2sArrayFn = int (*)(const cJSON *, void *, uint32_t *);

char *fam_s2j(const Site *s, const TypeDesc *d, const void *rec, int formatted);
int fam_c2s(const Site *s, const TypeDesc *d, const cJSON *json, void *rec);
int fam_j2s(const Site *s, const char *json_str, void *rec, C2sFn c2s);
int fam_j2s_with_len(const Site *s, const char *json_str, size_t len, void *rec, C2sFn c2s);

char *fam_s2j_array(const Site *s, const TypeDesc *d, const void *arr, uint32_t count, int formatted);
int fam_c2s_array(const Site *s, const TypeDesc *d, const cJSON *json, void *arr, uint32_t *count);
int fam_j2s_array(const Site *s, const char *json_str, void *arr, uint32_t *count, C2sArrayFn c2s);
int fam_j2s_array_with_len(const Site *s, const char *json_str, size_t len, void *arr, uint32_t *count,
                           C2sArrayFn c2s);

int fam_c2s_array_update(const Site *s, const TypeDesc *d, const cJSON *json, void *arr, uint32_t *count);
int fam_j2s_array_update(const Site *s, const char *json_str, void *arr, uint32_t *count, C2sArrayFn c2s);
int fam_j2s_array_update_with_len(const Site *s, const char *json_str, size_t len, void *arr,
                                  uint32_t *count, C2sArrayFn c2s);

}  // namespace s2j

#define S2J_SITE(name) static constexpr ::s2j::Site site{__FILE__, __LINE__, name}

// The registry reads the same lists with these macros defined its own way.
#ifndef S2J_REGISTRY_PASS

#define S2J_DEF_S2J(T)                                                                       \
    S2J_API char *s2j_##T(const T *struct_ptr, int formatted) {                              \
        S2J_SITE("s2j_" #T);                                                                 \
        return ::s2j::fam_s2j(&site, &::s2j::desc_##T, struct_ptr, formatted);               \
    }

#define S2J_DEF_C2S(T)                                                                       \
    S2J_API int c2s_##T(const cJSON *json, T *struct_ptr) {                                  \
        S2J_SITE("c2s_" #T);                                                                 \
        return ::s2j::fam_c2s(&site, &::s2j::desc_##T, json, struct_ptr);                    \
    }

#define S2J_C2S_OF(T) +[](const cJSON *j, void *p) { return c2s_##T(j, static_cast<T *>(p)); }
#define S2J_DEF_J2S(T)                                                                       \
    S2J_API int j2s_##T(const char *json_str, T *struct_ptr) {                               \
        S2J_SITE("j2s_" #T);                                                                 \
        return ::s2j::fam_j2s(&site, json_str, struct_ptr, S2J_C2S_OF(T));                   \
    }                                                                                        \
    S2J_API int j2s_##T##_with_len(const char *json_str, size_t json_str_len, T *struct_ptr) { \
        S2J_SITE("j2s_" #T "_with_len");                                                     \
        return ::s2j::fam_j2s_with_len(&site, json_str, json_str_len, struct_ptr, S2J_C2S_OF(T)); \
    }

#define S2J_DEF_S2J_ARRAY(T)                                                                 \
    S2J_API char *s2j_array_##T(const T *struct_array, uint32_t struct_array_size, int formatted) { \
        S2J_SITE("s2j_array_" #T);                                                           \
        return ::s2j::fam_s2j_array(&site, &::s2j::desc_##T, struct_array, struct_array_size, formatted); \
    }

#define S2J_DEF_C2S_ARRAY(T)                                                                 \
    S2J_API int c2s_array_##T(const cJSON *json, T *struct_array, uint32_t *struct_array_size) { \
        S2J_SITE("c2s_array_" #T);                                                           \
        return ::s2j::fam_c2s_array(&site, &::s2j::desc_##T, json, struct_array, struct_array_size); \
    }

#define S2J_DEF_C2S_ARRAY_UPDATE(T)                                                          \
    S2J_API int c2s_array_update_##T(const cJSON *json, T *struct_array, uint32_t *struct_array_size) { \
        S2J_SITE("c2s_array_update_" #T);                                                    \
        return ::s2j::fam_c2s_array_update(&site, &::s2j::desc_##T, json, struct_array, struct_array_size); \
    }

#define S2J_C2S_ARRAY_OF(fn, T) \
    +[](const cJSON *j, void *p, uint32_t *n) { return fn##T(j, static_cast<T *>(p), n); }
#define S2J_DEF_J2S_ARRAY(T)                                                                 \
    S2J_API int j2s_array_##T(const char *json_str, T *struct_array, uint32_t *struct_array_size) { \
        S2J_SITE("j2s_array_" #T);                                                           \
        return ::s2j::fam_j2s_array(&site, json_str, struct_array, struct_array_size,        \
                                    S2J_C2S_ARRAY_OF(c2s_array_, T));                        \
    }                                                                                        \
    S2J_API int j2s_array_##T##_with_len(const char *json_str, size_t json_str_len, T *struct_array, \
                                         uint32_t *struct_array_size) {                      \
        S2J_SITE("j2s_array_" #T "_with_len");                                               \
        return ::s2j::fam_j2s_array_with_len(&site, json_str, json_str_len, struct_array,    \
                                             struct_array_size, S2J_C2S_ARRAY_OF(c2s_array_, T)); \
    }

#define S2J_DEF_J2S_ARRAY_UPDATE(T)                                                          \
    S2J_API int j2s_array_update_##T(const char *json_str, T *struct_array, uint32_t *struct_array_size) { \
        S2J_SITE("j2s_array_update_" #T);                                                    \
        return ::s2j::fam_j2s_array_update(&site, json_str, struct_array, struct_array_size, \
                                           S2J_C2S_ARRAY_OF(c2s_array_update_, T));          \
    }                                                                                        \
    S2J_API int j2s_array_update_##T##_with_len(const char *json_str, size_t json_str_len,   \
                                                T *struct_array, uint32_t *struct_array_size) { \
        S2J_SITE("j2s_array_update_" #T "_with_len");                                        \
        return ::s2j::fam_j2s_array_update_with_len(&site, json_str, json_str_len, struct_array, \
                                                    struct_array_size,                       \
                                                    S2J_C2S_ARRAY_OF(c2s_array_update_, T)); \
    }

#endif  // S2J_REGISTRY_PASS

#endif  // APP_S2J_FAMILIES_H
