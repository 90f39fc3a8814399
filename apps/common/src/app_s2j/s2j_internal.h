// s2j_internal.h - field tables and the table-driven record engines.
//
// A record type is described once, by a table of Field rows derived from its
// struct (key = member name, offset, size, kind from the member's C type), and
// checked against the struct at compile time.  The emitter, the reader and the
// keyword readers of every type are thin wrappers over the engines below.
#ifndef APP_S2J_INTERNAL_H
#define APP_S2J_INTERNAL_H

#include <cctype>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <utility>

#include "app_s2j.h"
#include "s2j_int.h"

namespace s2j {

enum class Kind : uint8_t {
    I32,      // int32_t: emitted sign-extended
    U32,      // uint32_t: emitted zero-extended
    U16,      // uint16_t: emitted zero-extended, read as the low 16 bits
    Str,      // char[N]: bounded string
    U32List,  // uint32_t[N]: a JSON array of integers
};

struct Field {
    const char *key;  // JSON key, the member's own name
    uint32_t offset;
    uint32_t size;  // bytes
    Kind kind;
    uint8_t key_len;  // strlen(key): for writing keys and comparing them in place
#ifdef S2J_TABLES_ONLY
    // What the field holds, in words for people (schemas, the reference of
    // records).  Only the internal library's tables carry it: the shared
    // library never prints it and does not pay for the text.
    const char *note;
#endif
};

// A key field of a keyed record type: where the record holds it and where its
// keyword record holds it (a string key is char[64] in the keyword record).
struct Key {
    Field field;
    uint32_t keyword_offset;
};

inline constexpr uint32_t kKeyStringSize = 64;
inline constexpr uint32_t kMaxKeywordSize = 256;  // bytes of the largest keyword record

struct TypeDesc {
    const char *name;
    uint32_t size;
    const Field *fields;
    uint32_t field_count;
    const Key *keys;  // in key order; null for types without keys
    uint32_t key_count;
    uint32_t int_text_bytes;  // room for the decimal text of every integer of a record
    // The longest text of one record with its strings empty, compact and
    // indented as the only object of a text: what the text writer reserves
    // before it adds the strings' escaped lengths (s2j_write.cpp).
    uint32_t text_bytes;
    uint32_t text_bytes_formatted;
    uint64_t string_fields;  // bit i set: row i is a char[N] field (rows < kMaxFields = 64)
};

// The most fields a record may have (the reader keeps one slot per field).
inline constexpr uint32_t kMaxFields = 64;

// ---- Kinds from C types ------------------------------------------------

template <class M>
struct KindOf;
template <> struct KindOf<int32_t> { static constexpr Kind value = Kind::I32; };
template <> struct KindOf<uint32_t> { static constexpr Kind value = Kind::U32; };
template <> struct KindOf<uint16_t> { static constexpr Kind value = Kind::U16; };
template <size_t N> struct KindOf<char[N]> { static constexpr Kind value = Kind::Str; };
template <size_t N> struct KindOf<uint32_t[N]> { static constexpr Kind value = Kind::U32List; };

constexpr uint32_t align_of(Kind k) {
    return k == Kind::Str ? 1 : k == Kind::U16 ? 2 : 4;
}

// Replays the natural C layout of the table's kinds and sizes: true when each
// row sits exactly where the previous one ends (after alignment) and the last
// one ends where the struct does.  A row repeated or out of order breaks this,
// and so does a member left out, unless it would sit where padding would
// otherwise be (the member count below catches that one).
constexpr bool covers(const Field *f, size_t n, size_t struct_size) {
    size_t end = 0, max_align = 1;
    for (size_t i = 0; i < n; ++i) {
        size_t a = align_of(f[i].kind);
        end = (end + a - 1) / a * a;
        if (f[i].offset != end) return false;
        end += f[i].size;
        if (a > max_align) max_align = a;
    }
    return (end + max_align - 1) / max_align * max_align == struct_size;
}

// Bytes of one record's text with every integer at its longest and every
// string empty, as cJSON prints the record's object at depth 1: braces,
// "key": and a comma per member; indented, a newline after the brace, per
// member a tab before it, a tab after the colon and a newline, and ", "
// between list entries.
constexpr uint32_t text_bytes(const Field *f, size_t n, bool formatted) {
    const uint32_t members = static_cast<uint32_t>(n);
    uint32_t bytes = 2 + (members > 0 ? members - 1 : 0) + (formatted ? 1 + 3 * members : 0);
    for (size_t i = 0; i < n; ++i) {
        bytes += f[i].key_len + 3u;  // "key":
        switch (f[i].kind) {
            case Kind::I32: bytes += 11; break;
            case Kind::U32: bytes += 10; break;
            case Kind::U16: bytes += 5; break;
            case Kind::Str: bytes += 2; break;
            case Kind::U32List: {
                uint32_t m = f[i].size / 4;
                bytes += 2 + 10 * m + (m > 0 ? (m - 1) * (formatted ? 2 : 1) : 0);
                break;
            }
        }
    }
    return bytes;
}

constexpr uint64_t string_fields(const Field *f, size_t n) {
    uint64_t bits = 0;
    for (size_t i = 0; i < n && i < 64; ++i)
        if (f[i].kind == Kind::Str) bits |= uint64_t{1} << i;
    return bits;
}

// Each row's key_len is the length of its key, and its key is text that
// cJSON prints as it is (no byte to escape): the text writer copies keys.
constexpr bool keys_as_written(const Field *f, size_t n) {
    for (size_t i = 0; i < n; ++i) {
        size_t len = 0;
        for (; f[i].key[len] != '\0'; ++len)
            if (f[i].key[len] < 0x20 || f[i].key[len] == '"' || f[i].key[len] == '\\') return false;
        if (len != f[i].key_len) return false;
    }
    return true;
}

// Member count: the struct's own count of scalar elements, every element of
// an array member counted (char[64] counts 64), is the largest number of
// initializers that aggregate initialization of the struct accepts (brace
// elision spreads them over the arrays).  The table's rows give the same
// count; a member left out makes the table's count smaller even where the
// member would sit in padding, which the layout replay above cannot see.

// Converts to any scalar type, never to an array: an initializer of it
// starts the next scalar element of the struct.
struct AnyScalar {
    template <class U>
    constexpr operator U() const noexcept { return U{}; }
};

template <class T, class Indices, class = void>
struct TakesInitializers : std::false_type {};
template <class T, size_t... I>
struct TakesInitializers<T, std::index_sequence<I...>,
                         std::void_t<decltype(T{(static_cast<void>(I), AnyScalar{})...})>> : std::true_type {};

// True when aggregate initialization of T takes n initializers but not n + 1.
template <class T, size_t n>
constexpr bool has_scalar_elements() {
    return std::is_aggregate_v<T> && TakesInitializers<T, std::make_index_sequence<n>>::value &&
           !TakesInitializers<T, std::make_index_sequence<n + 1>>::value;
}

constexpr size_t scalar_elements(const Field *f, size_t n) {
    size_t count = 0;
    for (size_t i = 0; i < n; ++i)
        count += f[i].kind == Kind::Str ? f[i].size : f[i].kind == Kind::U32List ? f[i].size / 4 : 1;
    return count;
}

constexpr uint32_t int_text_bytes(const Field *f, size_t n) {
    uint32_t bytes = 0;
    for (size_t i = 0; i < n; ++i) {
        if (f[i].kind == Kind::Str) continue;
        bytes += (f[i].kind == Kind::U32List ? f[i].size / 4 : 1) * kIntTextSize;
    }
    return bytes;
}

// cJSON's rule for keys, which the record reader follows: equal when every
// byte is equal after tolower(), up to and including the NUL.  Bytes that
// are equal need no tolower().
inline bool same_key(const char *a, const char *b) {
    if (std::strcmp(a, b) == 0) return true;  // the usual case, and the quickest test
    for (;; ++a, ++b) {
        unsigned char x = static_cast<unsigned char>(*a), y = static_cast<unsigned char>(*b);
        if (x != y && std::tolower(x) != std::tolower(y)) return false;
        if (x == '\0') return true;
    }
}

constexpr char ascii_lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

constexpr bool same_but_case(const char *a, const char *b) {
    for (;; ++a, ++b) {
        if (ascii_lower(*a) != ascii_lower(*b)) return false;
        if (*a == '\0') return true;
    }
}

constexpr bool has_keys_equal_but_for_case(const Field *f, size_t n) {
    for (size_t i = 0; i < n; ++i)
        for (size_t j = i + 1; j < n; ++j)
            if (same_but_case(f[i].key, f[j].key)) return true;
    return false;
}

// The key fields as the keyword record holds them: a string key as char[64].
template <size_t N>
struct KeywordFields {
    Field f[N];
};
template <size_t N>
constexpr KeywordFields<N> keyword_fields(const Key (&k)[N]) {
    KeywordFields<N> kw = {};
    for (size_t i = 0; i < N; ++i) {
        kw.f[i] = k[i].field;
        kw.f[i].offset = k[i].keyword_offset;
        if (kw.f[i].kind == Kind::Str) kw.f[i].size = kKeyStringSize;
    }
    return kw;
}

template <size_t N>
constexpr bool keyword_record_covers(const Key (&k)[N], size_t struct_size) {
    return covers(keyword_fields(k).f, N, struct_size);
}

template <size_t N>
constexpr size_t keyword_scalar_elements(const Key (&k)[N]) {
    return scalar_elements(keyword_fields(k).f, N);
}

// ---- Engines (s2j_codec.cpp) ------------------------------------------

// Emits a record as a new object.  With ints null the tree is the caller's:
// keys copied, integers as integer items.  Otherwise the tree is only to be
// printed and freed while the record is alive: keys are the table's
// constants, strings refer to the record's fields and integers are raw items
// whose decimal text is written at *ints (advanced past it; the caller
// provides d->int_text_bytes per record and frees that memory after the
// tree).  Both trees print the same text.
cJSON *emit_record(const TypeDesc *d, const void *rec, char **ints);
// strict: every field must be present (the whole-record keyword reader).
int read_record(const TypeDesc *d, void *rec, const cJSON *json, bool strict);
// Reads count records of an array from the elements starting at first;
// returns the index of the element whose reader failed, or -1.
int read_records(const TypeDesc *d, void *arr, uint32_t count, const cJSON *first);
// Reads the key fields into a keyword record; all required.
int read_keys(const TypeDesc *d, void *keyword, const cJSON *json);
// Reads the first key field into *out (a 32-bit integer or char[64]).
int read_first_key(const TypeDesc *d, void *out, const cJSON *json);
// True when the record's key fields equal the keyword record's.
bool keys_match(const TypeDesc *d, const void *rec, const void *keyword);

}  // namespace s2j

// Definition of an exported function of the C API.
#define S2J_API extern "C" __attribute__((visibility("default")))

// ---- Table rows --------------------------------------------------------

// A row of T's table: member m, and a note on what it holds.
#ifdef S2J_TABLES_ONLY
#define S2J_FIELD_NOTE(note) , note
#else
#define S2J_FIELD_NOTE(note)
#endif
#define S2J_FIELD(T, m, note)                                                                  \
    ::s2j::Field {                                                                             \
        #m, static_cast<uint32_t>(offsetof(T, m)), static_cast<uint32_t>(sizeof(T::m)),        \
            ::s2j::KindOf<std::remove_cv_t<decltype(T::m)>>::value,                            \
            static_cast<uint8_t>(sizeof(#m) - 1) S2J_FIELD_NOTE(note)                          \
    }
// A key field of T that its keyword record T##Keyword holds too.
#define S2J_KEY(T, m) \
    ::s2j::Key { S2J_FIELD(T, m, "key field"), static_cast<uint32_t>(offsetof(T##Keyword, m)) }
// The key field of a type that has only the single-key reader.
#define S2J_GET_KEY(T, m) \
    ::s2j::Key { S2J_FIELD(T, m, "key field"), 0 }

// ---- Per-type definitions ----------------------------------------------
//
// Each record type is defined by its table T##_fields (and T##_keys) followed
// by one of these, which checks the table against the struct and defines the
// type's descriptor, its emitter and reader and the keyword readers it has.
// Built with S2J_TABLES_ONLY (the internal library), the same lines define
// the descriptors and registry hooks only; the functions then come from the
// shared library.

#define S2J_CHECK_TABLE(T)                                                                    \
    static_assert(::s2j::covers(T##_fields, sizeof(T##_fields) / sizeof(T##_fields[0]), sizeof(T)), \
                  #T ": field table does not match the struct member for member");             \
    static_assert(::s2j::has_scalar_elements<T, ::s2j::scalar_elements(                       \
                      T##_fields, sizeof(T##_fields) / sizeof(T##_fields[0]))>(),               \
                  #T ": field table does not list every member once");                         \
    static_assert(sizeof(T##_fields) / sizeof(T##_fields[0]) <= ::s2j::kMaxFields, #T ": too many fields"); \
    static_assert(sizeof(T##_fields) / sizeof(T##_fields[0]) > 0, #T ": no fields");                  \
    static_assert(::s2j::keys_as_written(T##_fields, sizeof(T##_fields) / sizeof(T##_fields[0])),      \
                  #T ": a key is too long or needs escapes");                                    \
    static_assert(!::s2j::has_keys_equal_but_for_case(T##_fields, sizeof(T##_fields) / sizeof(T##_fields[0])),      \
                  #T ": two keys are equal but for letter case")

#define S2J_DESC(T, keys, nkeys)                                                               \
    namespace s2j {                                                                            \
    extern const TypeDesc desc_##T;                                                            \
    constexpr TypeDesc desc_##T = {                                                            \
        #T, sizeof(T), T##_fields, sizeof(T##_fields) / sizeof(T##_fields[0]), keys, nkeys,    \
        int_text_bytes(T##_fields, sizeof(T##_fields) / sizeof(T##_fields[0])),                \
        text_bytes(T##_fields, sizeof(T##_fields) / sizeof(T##_fields[0]), false),             \
        text_bytes(T##_fields, sizeof(T##_fields) / sizeof(T##_fields[0]), true),              \
        string_fields(T##_fields, sizeof(T##_fields) / sizeof(T##_fields[0]))};                \
    }

#ifdef S2J_TABLES_ONLY
#include "registry.h"
#define S2J_HOOKS(T, keyword, get, kwsize)                                                     \
    namespace s2j {                                                                            \
    extern const TypeHooks hooks_##T;                                                          \
    constexpr TypeHooks hooks_##T = {                                                          \
        +[](const void *p) { return struct_to_json_##T(static_cast<const T *>(p)); },          \
        +[](void *p, const cJSON *j) { return json_to_struct_##T(static_cast<T *>(p), j); },   \
        keyword, get, kwsize};                                                                 \
    }
#define S2J_FUNCS(T)
#define S2J_KW_FN(T) \
    +[](void *k, const cJSON *j) { return json_to_struct_##T##Keyword(static_cast<T##Keyword *>(k), j); }
#define S2J_STRICT_FN(T) +[](void *k, const cJSON *j) { return json_to_struct_##T##Keyword(static_cast<T *>(k), j); }
#define S2J_GET_FN(T, m)                                                                          \
    +[](void *k, const cJSON *j) {                                                                \
        return json_to_struct_Get##T##Keyword(static_cast<::s2j::GetArg<decltype(T::m)>>(k), j); \
    }
#define S2J_KW_FUNC(T)
#define S2J_STRICT_FUNC(T)
#define S2J_GET_FUNC(T, m)
#else
#define S2J_HOOKS(T, keyword, get, kwsize)
#define S2J_FUNCS(T)                                                                           \
    S2J_API cJSON *struct_to_json_##T(const T *struct_ptr) {                                \
        return ::s2j::emit_record(&::s2j::desc_##T, struct_ptr, nullptr);                      \
    }                                                                                          \
    S2J_API int json_to_struct_##T(T *struct_ptr, const cJSON *json) {                      \
        return ::s2j::read_record(&::s2j::desc_##T, struct_ptr, json, false);                  \
    }
#define S2J_KW_FN(T) nullptr
#define S2J_STRICT_FN(T) nullptr
#define S2J_GET_FN(T, m) nullptr
#define S2J_KW_FUNC(T)                                                                         \
    static_assert(::s2j::keyword_record_covers(T##_keys, sizeof(T##Keyword)),                  \
                  #T "Keyword: keyword record does not hold the keys in key order");           \
    static_assert(::s2j::has_scalar_elements<T##Keyword, ::s2j::keyword_scalar_elements(T##_keys)>(), \
                  #T "Keyword: keyword record holds other members than the keys");              \
    static_assert(sizeof(T##Keyword) <= ::s2j::kMaxKeywordSize, #T "Keyword: too large");      \
    S2J_API int json_to_struct_##T##Keyword(T##Keyword *keyword, const cJSON *json) {       \
        return ::s2j::read_keys(&::s2j::desc_##T, keyword, json);                              \
    }
#define S2J_STRICT_FUNC(T)                                                                     \
    S2J_API int json_to_struct_##T##Keyword(T *struct_ptr, const cJSON *json) {             \
        return ::s2j::read_record(&::s2j::desc_##T, struct_ptr, json, true);                   \
    }
#define S2J_GET_FUNC(T, m)                                                                     \
    static_assert(T##_keys[0].field.offset == offsetof(T, m), #T ": " #m " is not its first key"); \
    S2J_API int json_to_struct_Get##T##Keyword(::s2j::GetArg<decltype(T::m)> m, const cJSON *json) { \
        return ::s2j::read_first_key(&::s2j::desc_##T, m, json);                               \
    }
#endif

namespace s2j {
// The argument of a single-key reader: a pointer to an integer key, or the
// 64-byte buffer of a string key.
template <class M> struct GetArgOf { using type = M *; };
template <size_t N> struct GetArgOf<char[N]> { using type = char *; };
template <class M> using GetArg = typename GetArgOf<std::remove_cv_t<M>>::type;
}  // namespace s2j

// A record with no keys.
#define S2J_RECORD(T)                                                                          \
    S2J_CHECK_TABLE(T);                                                                        \
    S2J_DESC(T, nullptr, 0)                                                                    \
    S2J_FUNCS(T)                                                                               \
    S2J_HOOKS(T, nullptr, nullptr, 0)

#define S2J_KEYED_DESC(T)                                                                      \
    S2J_CHECK_TABLE(T);                                                                        \
    S2J_DESC(T, T##_keys, sizeof(T##_keys) / sizeof(T##_keys[0]))                              \
    S2J_FUNCS(T)

// Keyed array element: json_to_struct_TKeyword and json_to_struct_GetTKeyword
// (first key m).
#define S2J_RECORD_KEYWORD_GET(T, m)                                                           \
    S2J_KEYED_DESC(T)                                                                          \
    S2J_KW_FUNC(T)                                                                             \
    S2J_GET_FUNC(T, m)                                                                         \
    S2J_HOOKS(T, S2J_KW_FN(T), S2J_GET_FN(T, m), sizeof(T##Keyword))

// Keyword reader only (no single-key reader).
#define S2J_RECORD_KEYWORD(T)                                                                  \
    S2J_KEYED_DESC(T)                                                                          \
    S2J_KW_FUNC(T)                                                                             \
    S2J_HOOKS(T, S2J_KW_FN(T), nullptr, sizeof(T##Keyword))

// Single-key reader only (status records); T##_keys holds S2J_GET_KEY(T, m).
#define S2J_RECORD_GET(T, m)                                                                   \
    S2J_KEYED_DESC(T)                                                                          \
    S2J_GET_FUNC(T, m)                                                                         \
    S2J_HOOKS(T, nullptr, S2J_GET_FN(T, m), 0)

// A record whose "keyword" reader is its reader with every field required.
#define S2J_RECORD_STRICT(T)                                                                   \
    S2J_CHECK_TABLE(T);                                                                        \
    S2J_DESC(T, nullptr, 0)                                                                    \
    S2J_FUNCS(T)                                                                               \
    S2J_STRICT_FUNC(T)                                                                         \
    S2J_HOOKS(T, S2J_STRICT_FN(T), nullptr, sizeof(T))

#endif  // APP_S2J_INTERNAL_H
