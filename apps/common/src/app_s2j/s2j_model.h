// s2j_model.h - the data model of record types: a type is described by a
// table of Field rows derived from its struct (key = member name, offset,
// size, kind from the member's C type), its key fields, and a TypeDesc that
// the engines read.  The lowest internal header: it includes only cJSON.
#ifndef APP_S2J_MODEL_H
#define APP_S2J_MODEL_H

#include <cjson/cJSON.h>

#include <cstddef>
#include <cstdint>
#include <type_traits>

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

// A key field as its keyword record holds it: at its keyword offset, a string
// key as char[64].
constexpr Field keyword_field(const Key &k) {
    Field f = k.field;
    f.offset = k.keyword_offset;
    if (f.kind == Kind::Str) f.size = kKeyStringSize;
    return f;
}

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

// The argument of a single-key reader: a pointer to an integer key, or the
// 64-byte buffer of a string key.
template <class M> struct GetArgOf { using type = M *; };
template <size_t N> struct GetArgOf<char[N]> { using type = char *; };
template <class M> using GetArg = typename GetArgOf<std::remove_cv_t<M>>::type;

// What a record's table file defines for the registry beside its table, in
// the internal library (S2J_TABLES_ONLY): the type's emitter, reader and
// keyword readers, each calling the shared library's exported function.
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

}  // namespace s2j

#endif  // APP_S2J_MODEL_H
