// s2j_layout.h - what is computed from a field table at compile time: the
// checks of a table against its struct (layout replay, member count, keys
// that need no escapes, keyword records) and the sizes the engines reserve.
#ifndef APP_S2J_LAYOUT_H
#define APP_S2J_LAYOUT_H

#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

#include "s2j_int.h"
#include "s2j_model.h"

namespace s2j {

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

// The key fields as the keyword record holds them: a string key as char[64].
template <size_t N>
struct KeywordFields {
    Field f[N];
};
template <size_t N>
constexpr KeywordFields<N> keyword_fields(const Key (&k)[N]) {
    KeywordFields<N> kw = {};
    for (size_t i = 0; i < N; ++i) kw.f[i] = keyword_field(k[i]);
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

}  // namespace s2j

#endif  // APP_S2J_LAYOUT_H
