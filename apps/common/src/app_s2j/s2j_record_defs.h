// s2j_record_defs.h - the macros that define a record type from its table:
// the table's rows (S2J_FIELD, S2J_KEY), the checks of the table against the
// struct, the type's descriptor, and its exported emitter, reader and
// keyword readers.  The same lines build two ways: in the shared library
// they define the exported functions; built with S2J_TABLES_ONLY (the
// internal library) they define the descriptor and the registry's hooks,
// which call the shared library's functions.
#ifndef APP_S2J_RECORD_DEFS_H
#define APP_S2J_RECORD_DEFS_H

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "app_s2j.h"
#include "s2j_codec.h"
#include "s2j_export.h"
#include "s2j_family_table.h"
#include "s2j_keys.h"
#include "s2j_layout.h"
#include "s2j_model.h"

// ---- Table rows --------------------------------------------------------

// A row of T's table: member m, and a note on what it holds.
#ifdef S2J_TABLES_ONLY
#define S2J_FIELD_NOTE(note) , note
#else
#define S2J_FIELD_NOTE(note)
#endif
#define S2J_FIELD(T, m, note)                                                                      \
    ::s2j::Field {                                                                                 \
        #m, static_cast<uint32_t>(offsetof(T, m)), static_cast<uint32_t>(sizeof(T::m)),            \
            ::s2j::KindOf<std::remove_cv_t<decltype(T::m)>>::value,                                \
            static_cast<uint8_t>(sizeof(#m) - 1) S2J_FIELD_NOTE(note)                              \
    }
// A key field of T that its keyword record T##Keyword holds too.
#define S2J_KEY(T, m)                                                                              \
    ::s2j::Key { S2J_FIELD(T, m, "key field"), static_cast<uint32_t>(offsetof(T##Keyword, m)) }
// The key field of a type that has only the single-key reader.
#define S2J_GET_KEY(T, m)                                                                          \
    ::s2j::Key { S2J_FIELD(T, m, "key field"), 0 }

// ---- Per-type definitions ----------------------------------------------
//
// Each record type is defined by its table T##_fields (and T##_keys) followed
// by one of these, which checks the table against the struct and defines the
// type's descriptor, its emitter and reader and the keyword readers it has.
// Built with S2J_TABLES_ONLY (the internal library), the same lines define
// the descriptors and registry hooks only; the functions then come from the
// shared library.

#define S2J_CHECK_TABLE(T)                                                                         \
    static_assert(::s2j::covers(T##_fields, sizeof(T##_fields) / sizeof(T##_fields[0]), sizeof(T)), \
                  #T ": field table does not match the struct member for member");                 \
    static_assert(::s2j::has_scalar_elements<T, ::s2j::scalar_elements(                            \
                      T##_fields, sizeof(T##_fields) / sizeof(T##_fields[0]))>(),                  \
                  #T ": field table does not list every member once");                             \
    static_assert(sizeof(T##_fields) / sizeof(T##_fields[0]) <= ::s2j::kMaxFields, #T ": too many fields"); \
    static_assert(sizeof(T##_fields) / sizeof(T##_fields[0]) > 0, #T ": no fields");               \
    static_assert(::s2j::keys_as_written(T##_fields, sizeof(T##_fields) / sizeof(T##_fields[0])),  \
                  #T ": a key is too long or needs escapes");                                      \
    static_assert(!::s2j::has_keys_equal_but_for_case(T##_fields,                                  \
                                                      sizeof(T##_fields) / sizeof(T##_fields[0])), \
                  #T ": two keys are equal but for letter case")

#define S2J_DESC(T, keys, nkeys)                                                                   \
    namespace s2j {                                                                                \
    extern const TypeDesc desc_##T;                                                                \
    constexpr TypeDesc desc_##T = {                                                                \
        #T, sizeof(T), T##_fields, sizeof(T##_fields) / sizeof(T##_fields[0]), keys, nkeys,        \
        int_text_bytes(T##_fields, sizeof(T##_fields) / sizeof(T##_fields[0])),                    \
        text_bytes(T##_fields, sizeof(T##_fields) / sizeof(T##_fields[0]), false),                 \
        text_bytes(T##_fields, sizeof(T##_fields) / sizeof(T##_fields[0]), true),                  \
        string_fields(T##_fields, sizeof(T##_fields) / sizeof(T##_fields[0]))};                    \
    }

// The heads of a type's emitter, reader and keyword readers: the shared
// library defines them with these, the internal library declares them with
// them before its hooks refer to them.
#define S2J_SIG_EMIT(T) S2J_API S2J_EMITTER_PROTOTYPE(T)
#define S2J_SIG_READ(T) S2J_API S2J_READER_PROTOTYPE(T)
#define S2J_SIG_KEYWORD(T) S2J_API S2J_KEYWORD_READER_PROTOTYPE(T)
#define S2J_SIG_KEYWORD_ALL_FIELDS(T) S2J_API S2J_ALL_FIELDS_READER_PROTOTYPE(T)
#define S2J_SIG_FIRST_KEY(T, m)                                                                    \
    S2J_API int json_to_struct_Get##T##Keyword(::s2j::GetArg<decltype(T::m)> m, const cJSON *json)

// Built with S2J_TABLES_ONLY, the S2J_DEFINE_* macros of the functions only
// declare them, for the hooks that call them.
#ifdef S2J_TABLES_ONLY
#define S2J_DEFINE_HOOKS(T, keyword, get, kwsize)                                                  \
    namespace s2j {                                                                                \
    extern const TypeHooks hooks_##T;                                                              \
    constexpr TypeHooks hooks_##T = {                                                              \
        +[](const void *p) { return struct_to_json_##T(static_cast<const T *>(p)); },              \
        +[](void *p, const cJSON *j) { return json_to_struct_##T(static_cast<T *>(p), j); },       \
        keyword, get, kwsize};                                                                     \
    }
#define S2J_DEFINE_EMITTER_AND_READER(T)                                                           \
    S2J_SIG_EMIT(T);                                                                               \
    S2J_SIG_READ(T);
#define S2J_KEYWORD_READER_HOOK(T)                                                                 \
    +[](void *k, const cJSON *j) { return json_to_struct_##T##Keyword(static_cast<T##Keyword *>(k), j); }
#define S2J_ALL_FIELDS_READER_HOOK(T)                                                              \
    +[](void *k, const cJSON *j) { return json_to_struct_##T##Keyword(static_cast<T *>(k), j); }
#define S2J_FIRST_KEY_READER_HOOK(T, m)                                                            \
    +[](void *k, const cJSON *j) {                                                                 \
        return json_to_struct_Get##T##Keyword(static_cast<::s2j::GetArg<decltype(T::m)>>(k), j);   \
    }
#define S2J_DEFINE_KEYWORD_READER(T) S2J_SIG_KEYWORD(T);
#define S2J_DEFINE_ALL_FIELDS_READER(T) S2J_SIG_KEYWORD_ALL_FIELDS(T);
#define S2J_DEFINE_FIRST_KEY_READER(T, m) S2J_SIG_FIRST_KEY(T, m);
#else
#define S2J_DEFINE_HOOKS(T, keyword, get, kwsize)
#define S2J_DEFINE_EMITTER_AND_READER(T)                                                           \
    S2J_SIG_EMIT(T) {                                                                              \
        return ::s2j::emit_record(&::s2j::desc_##T, struct_ptr);                                   \
    }                                                                                              \
    S2J_SIG_READ(T) {                                                                              \
        return ::s2j::read_record(&::s2j::desc_##T, struct_ptr, json, false);                      \
    }
#define S2J_KEYWORD_READER_HOOK(T) nullptr
#define S2J_ALL_FIELDS_READER_HOOK(T) nullptr
#define S2J_FIRST_KEY_READER_HOOK(T, m) nullptr
#define S2J_DEFINE_KEYWORD_READER(T)                                                               \
    static_assert(::s2j::keyword_record_covers(T##_keys, sizeof(T##Keyword)),                      \
                  #T "Keyword: keyword record does not hold the keys in key order");               \
    static_assert(::s2j::has_scalar_elements<T##Keyword, ::s2j::keyword_scalar_elements(T##_keys)>(), \
                  #T "Keyword: keyword record holds other members than the keys");                 \
    static_assert(sizeof(T##Keyword) <= ::s2j::kMaxKeywordSize, #T "Keyword: too large");          \
    S2J_SIG_KEYWORD(T) {                                                                           \
        return ::s2j::read_keys(&::s2j::desc_##T, keyword, json);                                  \
    }
#define S2J_DEFINE_ALL_FIELDS_READER(T)                                                            \
    S2J_SIG_KEYWORD_ALL_FIELDS(T) {                                                                \
        return ::s2j::read_record(&::s2j::desc_##T, struct_ptr, json, true);                       \
    }
#define S2J_DEFINE_FIRST_KEY_READER(T, m)                                                          \
    static_assert(T##_keys[0].field.offset == offsetof(T, m), #T ": " #m " is not its first key"); \
    S2J_SIG_FIRST_KEY(T, m) {                                                                      \
        return ::s2j::read_first_key(&::s2j::desc_##T, m, json);                                   \
    }
#endif

// A record with no keys.
#define S2J_RECORD(T)                                                                              \
    S2J_CHECK_TABLE(T);                                                                            \
    S2J_DESC(T, nullptr, 0)                                                                        \
    S2J_DEFINE_EMITTER_AND_READER(T)                                                               \
    S2J_DEFINE_HOOKS(T, nullptr, nullptr, 0)

#define S2J_KEYED_DESC(T)                                                                          \
    S2J_CHECK_TABLE(T);                                                                            \
    S2J_DESC(T, T##_keys, sizeof(T##_keys) / sizeof(T##_keys[0]))                                  \
    S2J_DEFINE_EMITTER_AND_READER(T)

// Keyed array element: json_to_struct_TKeyword and json_to_struct_GetTKeyword
// (first key m).
#define S2J_RECORD_KEYWORD_GET(T, m)                                                               \
    S2J_KEYED_DESC(T)                                                                              \
    S2J_DEFINE_KEYWORD_READER(T)                                                                   \
    S2J_DEFINE_FIRST_KEY_READER(T, m)                                                              \
    S2J_DEFINE_HOOKS(T, S2J_KEYWORD_READER_HOOK(T), S2J_FIRST_KEY_READER_HOOK(T, m), sizeof(T##Keyword))

// Keyword reader only (no single-key reader).
#define S2J_RECORD_KEYWORD(T)                                                                      \
    S2J_KEYED_DESC(T)                                                                              \
    S2J_DEFINE_KEYWORD_READER(T)                                                                   \
    S2J_DEFINE_HOOKS(T, S2J_KEYWORD_READER_HOOK(T), nullptr, sizeof(T##Keyword))

// Single-key reader only (status records); T##_keys holds S2J_GET_KEY(T, m).
#define S2J_RECORD_GET(T, m)                                                                       \
    S2J_KEYED_DESC(T)                                                                              \
    S2J_DEFINE_FIRST_KEY_READER(T, m)                                                              \
    S2J_DEFINE_HOOKS(T, nullptr, S2J_FIRST_KEY_READER_HOOK(T, m), 0)

// A record whose "keyword" reader is its reader with every field required.
#define S2J_RECORD_KEYWORD_ALL_FIELDS(T)                                                           \
    S2J_CHECK_TABLE(T);                                                                            \
    S2J_DESC(T, nullptr, 0)                                                                        \
    S2J_DEFINE_EMITTER_AND_READER(T)                                                               \
    S2J_DEFINE_ALL_FIELDS_READER(T)                                                                \
    S2J_DEFINE_HOOKS(T, S2J_ALL_FIELDS_READER_HOOK(T), nullptr, sizeof(T))

#endif  // APP_S2J_RECORD_DEFS_H
