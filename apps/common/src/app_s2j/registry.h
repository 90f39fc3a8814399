// registry.h - the internal type registry: for every record type its name,
// size, field table, emitter and reader, keyword readers and the family
// members it has, each with the line of its instantiation.  Built into the
// internal static library for the tests and the command-line tool; the
// shared library does not export it.  Every function pointer here calls the
// exported function of the shared library through a type-erased trampoline.
#ifndef APP_S2J_REGISTRY_H
#define APP_S2J_REGISTRY_H

#include <cstddef>
#include <cstdint>

#include "s2j_internal.h"

namespace s2j {

// What the record's subsystem file defines beside its table.
struct TypeHooks {
    cJSON *(*emit)(const void *rec);
    int (*read)(void *rec, const cJSON *json);
    // json_to_struct_<T>Keyword: into a <T>Keyword record, or (for a record
    // read whole and strictly) into a T; null when the type has none.
    int (*keyword)(void *keyword, const cJSON *json);
    // json_to_struct_Get<T>Keyword: into a 32-bit integer or 64 bytes.
    int (*get_keyword)(void *key, const cJSON *json);
    uint32_t keyword_size;  // bytes of the record that keyword fills
};

// The family members a type has (null where it has none), and the line of
// each member's instantiation.
struct Families {
    char *(*s2j)(const void *rec, int formatted);
    int (*c2s)(const cJSON *json, void *rec);
    int (*j2s)(const char *json_str, void *rec);
    int (*j2s_with_len)(const char *json_str, size_t len, void *rec);
    char *(*s2j_array)(const void *arr, uint32_t count, int formatted);
    int (*c2s_array)(const cJSON *json, void *arr, uint32_t *count);
    int (*j2s_array)(const char *json_str, void *arr, uint32_t *count);
    int (*j2s_array_with_len)(const char *json_str, size_t len, void *arr, uint32_t *count);
    int (*c2s_array_update)(const cJSON *json, void *arr, uint32_t *count);
    int (*j2s_array_update)(const char *json_str, void *arr, uint32_t *count);
    int (*j2s_array_update_with_len)(const char *json_str, size_t len, void *arr, uint32_t *count);
    int (*f2s)(const char *fine_name, void *rec);
    int (*s2f)(const char *fine_name, const void *rec);
    int (*f2s_array)(const char *fine_name, void *arr, uint32_t *count);
    int (*s2f_array)(const char *fine_name, const void *arr, uint32_t count);
    struct Lines {
        int s2j, c2s, j2s, s2j_array, c2s_array, c2s_array_update, j2s_array, j2s_array_update;
        int f2s, s2f, f2s_array, s2f_array;
    } line;
};

struct TypeInfo {
    const char *name;
    const TypeDesc *desc;
    const TypeHooks *hooks;
    Families fam;
    const char *subsystem;
};

// Every record type, in subsystem order; *count receives their number.
const TypeInfo *registry(size_t *count);
// The type of that exact name, or null.
const TypeInfo *find_type(const char *name);

// The same registry over the reference library, libapp_s2j_tree: the library
// built to read every text through cJSON's tree (the static library
// app_s2j_tree_registry, for tests and fuzz targets).
const TypeInfo *tree_registry(size_t *count);
const TypeInfo *find_tree_type(const char *name);


}  // namespace s2j

#endif  // APP_S2J_REGISTRY_H
