// s2j_text_reader.cpp - the direct text reader (see s2j_text_reader.h).
//
// Two passes over the text, neither of which allocates or recurses:
//  1. check that cJSON would parse the text, and to the same document: the
//     same grammar, the same whitespace (every byte up to 0x20, NUL
//     included), the byte order mark, the nesting limit, strtod()'s reading
//     of number literals, the escapes of strings.  Anything cJSON refuses,
//     and the few things this reader leaves to cJSON (a number literal of 63
//     or more characters, a fraction under a locale whose decimal point is
//     not one byte), ends the read here with UseTree, before any record is
//     touched.  On the way:
//     - the leading records whose members are the fields' keys as the table
//       writes them, in table order, each once, each holding a plain value
//       (an integer of at most 18 digits, a string without escapes or NUL),
//       have their values noted in a scratch of the caller's stack, as many
//       records as it holds (take_record());
//     - it counts the records, from the first, whose members are the fields'
//       keys in table order, each once, each holding a value of its field's
//       JSON type (an integer of at most 18 digits for an integer field), and
//       notes whether blanks stand between their tokens;
//  2. store the noted values, and read the other records from the text known
//     to be well formed, exactly as the tree readers read the tree cJSON
//     would have built: for each record the first member whose key equals a
//     field's key without regard to case (under tolower(), as cJSON
//     compares), then the fields in table order up to the first of the wrong
//     JSON type.  The records counted in pass 1 are read in one walk, each
//     member's value where the walk meets it (no key comparison), which is
//     the same: each field's first match is its one member, met in table
//     order.  The noted records are the same again, with no wrong type.
#include "s2j_text_reader.h"

#include <cctype>
#include <clocale>
#include <cstring>

#include <cjson/cJSON.h>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

#include "s2j_codec.h"
#include "s2j_int.h"

namespace s2j {

namespace {

// Paths that usual records do not take: compiled for size.
#define S2J_COLD __attribute__((cold))

using u8 = unsigned char;

// ---- Byte classes -----------------------------------------------------------

enum : uint8_t { kSpace = 1, kDigit = 2, kNumber = 4 };  // kNumber: digits, + - . e E

struct ByteClasses {
    uint8_t of[256];
};

constexpr ByteClasses make_classes() {
    ByteClasses c{};
    for (int b = 0; b <= 32; ++b) c.of[b] = kSpace;
    for (int b = '0'; b <= '9'; ++b) c.of[b] = kDigit | kNumber;
    const char *signs = "+-.eE";
    for (const char *p = signs; *p != '\0'; ++p) c.of[static_cast<u8>(*p)] = kNumber;
    return c;
}

constexpr ByteClasses kBytes = make_classes();

inline bool is_space(u8 c) { return kBytes.of[c] & kSpace; }
inline bool is_digit(u8 c) { return kBytes.of[c] & kDigit; }
inline bool is_number_char(u8 c) { return kBytes.of[c] & kNumber; }

// The text and its length in bytes (for a NUL-terminated text, the NUL
// counted, as cJSON_Parse counts it).
struct Text {
    const u8 *s;
    size_t len;
};


// ---- Strings ----------------------------------------------------------------

// The value of four hex digits as cJSON reads them: 0 when any is not one.
unsigned hex4(const u8 *p) {
    unsigned h = 0;
    for (int i = 0; i < 4; ++i) {
        u8 c = p[i];
        unsigned d;
        if (c >= '0' && c <= '9')
            d = c - '0';
        else if (c >= 'A' && c <= 'F')
            d = c - 'A' + 10;
        else if (c >= 'a' && c <= 'f')
            d = c - 'a' + 10;
        else
            return 0;
        h = (h << 4) | d;
    }
    return h;
}

// The \u escape at p (before end, the closing quote) as cJSON decodes it: the
// number of text bytes it takes (6, or 12 for a surrogate pair), or 0 when
// cJSON refuses it; its UTF-8 bytes go to out, their number to *n.  Four hex
// digits that are not all hex read as 0, which ends the string's text.
S2J_COLD unsigned unicode_escape(const u8 *p, const u8 *end, u8 out[4], unsigned *n) {
    if (end - p < 6) return 0;
    unsigned code = hex4(p + 2);
    if (code >= 0xDC00 && code <= 0xDFFF) return 0;  // a low surrogate first
    unsigned length = 6;
    if (code >= 0xD800 && code <= 0xDBFF) {
        const u8 *second = p + 6;
        if (end - second < 6 || second[0] != '\\' || second[1] != 'u') return 0;
        unsigned low = hex4(second + 2);
        if (low < 0xDC00 || low > 0xDFFF) return 0;
        code = 0x10000 + (((code & 0x3FF) << 10) | (low & 0x3FF));
        length = 12;
    }
    if (code < 0x80) {
        out[0] = static_cast<u8>(code);
        *n = 1;
    } else if (code < 0x800) {
        out[0] = static_cast<u8>(0xC0 | (code >> 6));
        out[1] = static_cast<u8>(0x80 | (code & 0x3F));
        *n = 2;
    } else if (code < 0x10000) {
        out[0] = static_cast<u8>(0xE0 | (code >> 12));
        out[1] = static_cast<u8>(0x80 | ((code >> 6) & 0x3F));
        out[2] = static_cast<u8>(0x80 | (code & 0x3F));
        *n = 3;
    } else {
        out[0] = static_cast<u8>(0xF0 | (code >> 18));
        out[1] = static_cast<u8>(0x80 | ((code >> 12) & 0x3F));
        out[2] = static_cast<u8>(0x80 | ((code >> 6) & 0x3F));
        out[3] = static_cast<u8>(0x80 | (code & 0x3F));
        *n = 4;
    }
    return length;
}

#ifndef __SSE2__
// Strings are scanned a word at a time on targets without 128-bit vectors.

// The bytes of w that are a quote or a backslash, as the high bit of each
// such byte and of no other (exact, so that the first mark is the first such
// byte in either byte order).
inline uint64_t quotes_or_backslashes(uint64_t w) {
    constexpr uint64_t ones = 0x0101010101010101ull, lows = 0x7F7F7F7F7F7F7F7Full;
    const uint64_t q = w ^ (ones * '"'), b = w ^ (ones * '\\');
    const uint64_t q_zero = ~(((q & lows) + lows) | q | lows), b_zero = ~(((b & lows) + lows) | b | lows);
    return q_zero | b_zero;
}

// The byte in memory order of the first mark of quotes_or_backslashes().
inline size_t first_marked(uint64_t marks) {
#if defined(__BYTE_ORDER__) && __BYTE_ORDER__ == __ORDER_BIG_ENDIAN__
    return static_cast<size_t>(__builtin_clzll(marks)) / 8;
#else
    return static_cast<size_t>(__builtin_ctzll(marks)) / 8;
#endif
}
#endif

// The first quote or backslash at or after i, looking no further than len
// (len when there is none): sixteen bytes at a time where the target has
// 128-bit vectors, else eight at a time, then byte by byte.
inline size_t next_quote_or_backslash(const u8 *s, size_t i, size_t len) {
#ifdef __SSE2__
    const __m128i quote = _mm_set1_epi8('"'), backslash = _mm_set1_epi8('\\');
    for (; i + 16 <= len; i += 16) {
        const __m128i w = _mm_loadu_si128(reinterpret_cast<const __m128i *>(s + i));
        const unsigned marks = static_cast<unsigned>(
            _mm_movemask_epi8(_mm_or_si128(_mm_cmpeq_epi8(w, quote), _mm_cmpeq_epi8(w, backslash))));
        if (marks != 0) return i + static_cast<size_t>(__builtin_ctz(marks));
    }
#else
    for (; i + 8 <= len; i += 8) {
        uint64_t w;
        std::memcpy(&w, s + i, 8);
        if (uint64_t marks = quotes_or_backslashes(w)) return i + first_marked(marks);
    }
#endif
    while (i < len && s[i] != '"' && s[i] != '\\') ++i;
    return i;
}

// The closing quote of the string opening at t.s[i], as cJSON finds it (a
// backslash hides the byte after it), or 0 when the text ends first.
// *escaped tells whether the string holds a backslash.
inline size_t scan_string(const Text &t, size_t i, bool *escaped) {
    for (i = next_quote_or_backslash(t.s, i + 1, t.len); i < t.len; i = next_quote_or_backslash(t.s, i, t.len)) {
        if (t.s[i] == '"') return i;
        if (i + 1 >= t.len) return 0;  // a backslash ends the text
        *escaped = true;
        i += 2;
    }
    return 0;
}

// Whether cJSON accepts every escape of the string text [p, end).
S2J_COLD bool escapes_valid(const u8 *p, const u8 *end) {
    while (p < end) {
        if (*p != '\\') {
            ++p;
            continue;
        }
        switch (p[1]) {
            case 'b': case 'f': case 'n': case 'r': case 't': case '"': case '\\': case '/':
                p += 2;
                break;
            case 'u': {
                u8 out[4];
                unsigned n;
                unsigned length = unicode_escape(p, end, out, &n);
                if (length == 0) return false;
                p += length;
                break;
            }
            default:
                return false;
        }
    }
    return true;
}

// In a text known to be well formed: the closing quote of the string opening
// at t.s[i].
S2J_COLD size_t string_end(const Text &t, size_t i) {
    i = next_quote_or_backslash(t.s, i + 1, t.len);
    while (t.s[i] != '"') i = next_quote_or_backslash(t.s, i + 2, t.len);  // past a backslash and its byte
    return i;
}

// Copies the text of the string opening at s[i] into a field of size bytes as
// snprintf(field, size, "%s", text) would copy cJSON's value: at most size-1
// bytes, up to the first NUL of the decoded text, then a NUL.
S2J_COLD void copy_string(const Text &t, size_t i, char *field, size_t size) {
    const size_t room = size - 1;
    const u8 *p = t.s + i + 1, *end = t.s + string_end(t, i);
    size_t n = 0;
    while (p < end && n < room) {
        u8 c = *p;
        if (c != '\\') {
            if (c == '\0') break;
            field[n++] = static_cast<char>(c);
            ++p;
            continue;
        }
        u8 out[4];
        unsigned count = 1;
        switch (p[1]) {
            case 'b': out[0] = '\b'; break;
            case 'f': out[0] = '\f'; break;
            case 'n': out[0] = '\n'; break;
            case 'r': out[0] = '\r'; break;
            case 't': out[0] = '\t'; break;
            case 'u': p += unicode_escape(p, end, out, &count) - 2; break;
            default: out[0] = p[1]; break;  // " \ /
        }
        p += 2;
        unsigned k = 0;
        while (k < count && n < room && out[k] != '\0') field[n++] = static_cast<char>(out[k++]);
        if (k < count && out[k] == '\0') break;
    }
    field[n] = '\0';
}

// The first quote, backslash or NUL at or after i, before len (len when
// there is none).
inline size_t next_quote_backslash_or_nul(const u8 *s, size_t i, size_t len) {
#ifdef __SSE2__
    const __m128i quote = _mm_set1_epi8('"'), backslash = _mm_set1_epi8('\\'), nul = _mm_setzero_si128();
    for (; i + 16 <= len; i += 16) {
        const __m128i w = _mm_loadu_si128(reinterpret_cast<const __m128i *>(s + i));
        const __m128i hits = _mm_or_si128(_mm_or_si128(_mm_cmpeq_epi8(w, quote), _mm_cmpeq_epi8(w, backslash)),
                                          _mm_cmpeq_epi8(w, nul));
        const unsigned marks = static_cast<unsigned>(_mm_movemask_epi8(hits));
        if (marks != 0) return i + static_cast<size_t>(__builtin_ctz(marks));
    }
#else
    constexpr uint64_t lows = 0x7F7F7F7F7F7F7F7Full;
    for (; i + 8 <= len; i += 8) {
        uint64_t w;
        std::memcpy(&w, s + i, 8);
        if (uint64_t marks = quotes_or_backslashes(w) | ~(((w & lows) + lows) | w | lows))
            return i + first_marked(marks);
    }
#endif
    while (i < len && s[i] != '"' && s[i] != '\\' && s[i] != '\0') ++i;
    return i;
}

// Copies the first and the last `width` bytes of n (n from one width to
// two): the n bytes, in two overlapping words.
template <size_t width>
inline void copy_ends(char *to, const u8 *from, size_t n) {
    char head[width], tail[width];
    std::memcpy(head, from, width);
    std::memcpy(tail, from + n - width, width);
    std::memcpy(to, head, width);
    std::memcpy(to + n - width, tail, width);
}

// Copies n bytes, runs of up to 32 in two overlapping words, shortest first
// (no byte past n is written).
inline void copy_bytes(char *to, const u8 *from, size_t n) {
    if (n < 4) {
        if (n != 0) {  // bytes 0, n/2 and n-1 cover 1 to 3 bytes
            to[0] = static_cast<char>(from[0]);
            to[n / 2] = static_cast<char>(from[n / 2]);
            to[n - 1] = static_cast<char>(from[n - 1]);
        }
    } else if (n < 8) {
        copy_ends<4>(to, from, n);
    } else if (n < 16) {
        copy_ends<8>(to, from, n);
    } else if (n <= 32) {
        copy_ends<16>(to, from, n);
    } else {
        std::memcpy(to, from, n);
    }
}

// Stores the n bytes at from in a char[size] field, cut to size - 1 bytes
// and ended with a NUL.
inline void put_text(char *field, size_t size, const u8 *from, size_t n) {
    if (n > size - 1) n = size - 1;
    copy_bytes(field, from, n);
    field[n] = '\0';
}

// Copies the string opening at t.s[i] into a field as copy_string() does,
// and returns the offset of its closing quote.  A string without escapes is
// copied in one piece up to its end or its first NUL.
inline size_t read_string(const Text &t, size_t i, char *field, size_t size) {
    const size_t from = i + 1, stop = next_quote_backslash_or_nul(t.s, from, t.len);
    if (t.s[stop] == '\\') {
        copy_string(t, i, field, size);
        return string_end(t, i);
    }
    put_text(field, size, t.s + from, stop - from);
    return t.s[stop] == '"' ? stop : string_end(t, i);
}

// Whether the first and the last word of the n bytes at a (n from one word
// to two) are those at b: whether the n bytes are.
template <class Word>
inline bool same_ends(const u8 *a, const char *b, size_t n) {
    Word x0, y0, x1, y1;
    std::memcpy(&x0, a, sizeof x0);
    std::memcpy(&y0, b, sizeof y0);
    std::memcpy(&x1, a + n - sizeof x1, sizeof x1);
    std::memcpy(&y1, b + n - sizeof y1, sizeof y1);
    return x0 == y0 && x1 == y1;
}

// Whether the n bytes at a are the n bytes at b, compared a word at a time
// (the last word overlapping the one before it).
inline bool same_bytes(const u8 *a, const char *b, size_t n) {
    if (n >= 8) {
        uint64_t x, y;
        for (size_t k = 0; k + 8 < n; k += 8) {
            std::memcpy(&x, a + k, 8);
            std::memcpy(&y, b + k, 8);
            if (x != y) return false;
        }
        std::memcpy(&x, a + n - 8, 8);
        std::memcpy(&y, b + n - 8, 8);
        return x == y;
    }
    if (n >= 4) return same_ends<uint32_t>(a, b, n);
    return n >= 2 ? same_ends<uint16_t>(a, b, n) : n == 0 || *a == static_cast<u8>(*b);  // no table has a 1-byte key
}

// Whether the field's key, its quotes and a ':' fit between p and end with a
// byte to spare.
inline bool room_for_key(const u8 *p, const u8 *end, const Field &f) {
    return end - p > static_cast<ptrdiff_t>(f.key_len) + 3;
}

// Whether the text at p (with room_for_key()) opens with the field's key as
// the table writes it, in its quotes and followed at once by a ':' (the key's
// closing quote and the ':' compared as one 16-bit word).
inline bool key_at(const u8 *p, const Field &f) {
    const size_t n = f.key_len;
    uint16_t close, want;
    std::memcpy(&close, p + n + 1, 2);
    std::memcpy(&want, "\":", 2);
    return close == want && *p == '"' && same_bytes(p + 1, f.key, n);
}

inline bool key_here(const u8 *p, const u8 *end, const Field &f) { return room_for_key(p, end, f) && key_at(p, f); }

// A member's key as cJSON holds it: the decoded text up to its first NUL.
// Keys without escapes or NULs are read in place; others are decoded into
// buf, and a key longer than buf can hold equals no field's key.
struct KeyText {
    const u8 *p;
    size_t n;
};

constexpr size_t kKeyRoom = 128;  // longer than every field's key

S2J_COLD bool decode_key(const Text &t, size_t i, u8 (&buf)[kKeyRoom], KeyText *key) {
    char *out = reinterpret_cast<char *>(buf);
    copy_string(t, i, out, kKeyRoom);
    key->p = buf;
    key->n = std::strlen(out);
    return key->n < kKeyRoom - 1;  // a key filling the buffer may be longer
}

// cJSON's comparison of keys: equal when every byte is equal after tolower(),
// up to and including the NUL.  Bytes that are equal need no tolower().
bool same_key_text(const char *field_key, const KeyText &k) {
    for (size_t j = 0; j < k.n; ++j) {
        u8 y = static_cast<u8>(field_key[j]), x = k.p[j];
        if (y == '\0') return false;
        if (x != y && std::tolower(x) != std::tolower(y)) return false;
    }
    return field_key[k.n] == '\0';
}

// ---- Numbers ----------------------------------------------------------------

// The length of the number literal at t.s[i] (a '-' or a digit) when
// strtod() reads the whole run of number characters as cJSON hands it over,
// else 0: a run that strtod() reads only in part (cJSON refuses it inside a
// document and ignores the rest after a top-level value), none of, or that
// cJSON cuts at 63 characters.  *fraction tells whether it holds a '.'.
S2J_COLD size_t number_length(const Text &t, size_t i, bool *fraction) {
    size_t run = i;
    while (run < t.len && is_number_char(t.s[run])) ++run;
    if (run - i >= 63) return 0;
    size_t p = i, digits = 0;
    if (t.s[p] == '-') ++p;
    for (; p < run && is_digit(t.s[p]); ++p) ++digits;
    if (p < run && t.s[p] == '.') {
        *fraction = true;
        for (++p; p < run && is_digit(t.s[p]); ++p) ++digits;
    }
    if (digits == 0) return 0;
    if (p < run && (t.s[p] == 'e' || t.s[p] == 'E')) {
        size_t q = p + 1;
        if (q < run && (t.s[q] == '+' || t.s[q] == '-')) ++q;
        if (q < run && is_digit(t.s[q])) {
            while (q < run && is_digit(t.s[q])) ++q;
            p = q;
        }
    }
    return p == run ? run - i : 0;
}

// cJSON hands strtod() the literal with '.' replaced by the first byte of the
// locale's decimal point; the literal reads the same only when that point is
// one byte long.
bool decimal_point_is_one_byte() {
    const char *point = std::localeconv()->decimal_point;
    return point != nullptr && point[0] != '\0' && point[1] == '\0';
}

// ---- Keys -------------------------------------------------------------------

// The field whose key equals the member's key, or -1; the field after the
// last one matched is tried first, as members usually come in table order.
S2J_COLD int find_field(const TypeDesc *d, const KeyText &key, uint32_t next) {
    if (next < d->field_count && same_key_text(d->fields[next].key, key)) return static_cast<int>(next);
    for (uint32_t f = 0; f < d->field_count; ++f)
        if (f != next && same_key_text(d->fields[f].key, key)) return static_cast<int>(f);
    return -1;
}

// The field whose key equals the key of the member whose quotes are at
// t.s[quote] and t.s[end], or -1.  A key written exactly as the expected
// field's is compared in place; others are decoded as cJSON decodes them
// (escapes, and the text up to an escaped or raw NUL) and compared under
// tolower() with every field's.
S2J_COLD int match_key(const TypeDesc *d, const Text &t, size_t quote, size_t end, uint32_t next) {
    const size_t n = end - quote - 1;
    const u8 *p = t.s + quote + 1;
    if (next < d->field_count) {
        const Field &f = d->fields[next];
        if (f.key_len == n && same_bytes(p, f.key, n)) return static_cast<int>(next);
    }
    KeyText key{p, n};
    u8 buf[kKeyRoom];
    if (std::memchr(p, '\\', n) != nullptr || std::memchr(p, '\0', n) != nullptr) {
        if (!decode_key(t, quote, buf, &key)) return -1;  // longer than any field's key
    }
    return find_field(d, key, next);
}

// Where the members of one object go: for every field, the offset of the
// value of the first member whose key equals the field's (0 where none
// does), the member cJSON_GetObjectItem() would return.
struct Members {
    const TypeDesc *d;
    size_t at[kMaxFields];
    uint32_t next;  // the field after the last one matched

    void clear() {
        std::memset(at, 0, d->field_count * sizeof at[0]);
        next = 0;
    }
    // The member whose key's quotes are at quote and end has its value at
    // value.
    void add(const Text &t, size_t quote, size_t end, size_t value) {
        int f = match_key(d, t, quote, end, next);
        if (f < 0) return;
        if (at[f] == 0) at[f] = value;
        next = static_cast<uint32_t>(f) + 1;
    }
};

// ---- Pass 1: does cJSON parse this text, and to what -------------------------

struct Document {
    size_t root;        // offset of the top-level value
    uint32_t elements;  // its number of elements, when it is an array
    // How many records, from the first, have their fields' keys written as
    // the table writes them, in table order, each once, and no other member,
    // each holding what read_in_order() takes for its field.
    uint32_t in_order;
    bool blanks;  // whether those records have blanks between their tokens
    uint32_t taken;    // how many records, from the first, had their values noted (see take_record())
    size_t taken_end;  // the offset just past the last of them
};

// What the check of one text knows and finds.
struct Checker {
    const u8 *end;      // just past the text
    // Every run of digits, and every '-' with the digits after it, that
    // starts before it ends before it: the text's trailing digits and the
    // sign before them lie at or after it.
    const u8 *bounded;
    const Field *fields;
    uint32_t field_count;
    bool fraction;      // whether a number literal holds a '.'
    bool in_order;      // whether the record checked last had its members in table order
    bool blanks;        // whether a record read in table order had blanks between its tokens
    uint32_t taken;         // how many records take_record() noted the values of
    uint64_t *next_values;  // where it notes the next record's, or null when no more are taken
    const uint64_t *values_end;
};

inline const u8 *skip_blanks(const u8 *p, const u8 *end) {
    while (p < end && *p <= 32) ++p;
    return p;
}

// The first byte after the blank at p inside an object that the text has not
// closed yet, or null when the text ends first.
S2J_COLD const u8 *blanks_in_object(const u8 *p, const u8 *end) {
    do {
        if (++p == end) return nullptr;
    } while (*p <= 32);
    return p;
}

// The end of the number literal at p (a '-' or a digit) as cJSON reads it
// inside a document, or null when cJSON refuses it.  Plain integers take one
// loop.
inline const u8 *check_number(Checker &c, const Text &t, const u8 *p) {
    const u8 *q = p + (*p == '-');
    const u8 *const digits = q;
    if (q < c.bounded)
        while (static_cast<unsigned>(*q - '0') <= 9) ++q;
    else
        while (q < c.end && static_cast<unsigned>(*q - '0') <= 9) ++q;
    if (q > digits && q - p <= 63 && (q == c.end || !is_number_char(*q))) return q;  // a plain integer
    if (*p != '-' && !is_digit(*p)) return nullptr;
    const size_t n = number_length(t, static_cast<size_t>(p - t.s), &c.fraction);
    return n == 0 ? nullptr : p + n;
}

// The end of the string opening at p, or null when cJSON refuses it.
S2J_COLD const u8 *check_string(const Text &t, const u8 *p) {
    bool escaped = false;
    const size_t q = scan_string(t, static_cast<size_t>(p - t.s), &escaped);
    if (q == 0 || (escaped && !escapes_valid(p + 1, t.s + q))) return nullptr;
    return t.s + q + 1;
}

// The end of the value at p (blanks before it allowed) inside `depth` open
// containers, or null when cJSON refuses it.  A state machine over pointers
// that neither recurses nor allocates: one bit per open container (set for
// an object), as deep as cJSON nests.
S2J_COLD const u8 *check_value(Checker &c, const Text &t, const u8 *p, const unsigned base) {
    const u8 *const end = c.end;
    uint64_t objects[(CJSON_NESTING_LIMIT + 63) / 64];
    unsigned depth = base;
    bool object = false;  // whether the innermost open container is an object

value:
    if (p >= end) return nullptr;
    switch (*p) {
        case '{':
        case '[': {
            if (depth >= CJSON_NESTING_LIMIT) return nullptr;
            object = *p == '{';
            const uint64_t bit = uint64_t{1} << (depth % 64);
            if (object)
                objects[depth / 64] |= bit;
            else
                objects[depth / 64] &= ~bit;
            ++depth;
            p = skip_blanks(p + 1, end);
            if (p < end && *p == (object ? '}' : ']')) {
                ++p;
                goto close;
            }
            if (object) goto member;
            goto value;
        }
        case '"':
            p = check_string(t, p);
            if (p == nullptr) return nullptr;
            goto after_value;
        case 'n':
            if (end - p < 4 || std::memcmp(p, "null", 4) != 0) return nullptr;
            p += 4;
            goto after_value;
        case 't':
            if (end - p < 4 || std::memcmp(p, "true", 4) != 0) return nullptr;
            p += 4;
            goto after_value;
        case 'f':
            if (end - p < 5 || std::memcmp(p, "false", 5) != 0) return nullptr;
            p += 5;
            goto after_value;
        default:
            if (*p <= 32) {  // a blank before the value
                ++p;
                goto value;
            }
            p = check_number(c, t, p);
            if (p == nullptr) return nullptr;
            goto after_value;
    }

member:  // p at the key of a member
    if (p >= end || *p != '"') return nullptr;
    p = check_string(t, p);
    if (p == nullptr) return nullptr;
    p = skip_blanks(p, end);
    if (p >= end || *p != ':') return nullptr;
    ++p;
    goto value;

after_value:
    if (depth == base) return p;
    p = skip_blanks(p, end);
    if (p >= end) return nullptr;
    if (*p == ',') {
        p = skip_blanks(p + 1, end);
        if (object) goto member;
        goto value;
    }
    if (*p != (object ? '}' : ']')) return nullptr;
    ++p;

close:  // p just past the container that closed
    --depth;
    if (depth > base) object = objects[(depth - 1) / 64] & (uint64_t{1} << ((depth - 1) % 64));
    goto after_value;
}

// The end of the value of a record's member at p (not a blank) inside
// `depth` open containers, or null when cJSON refuses it or the text ends
// after it (the record is not closed).  Integers followed at once by a ',' or
// a '}' take one loop; containers go to check_value().
__attribute__((always_inline)) inline const u8 *check_member_value(Checker &c, const Text &t, const u8 *p,
                                                                   unsigned depth) {
    switch (*p) {
        case '"':
            p = check_string(t, p);
            break;
        case 'n':
        case 't':
        case 'f':
        case '{':
        case '[':
            p = check_value(c, t, p, depth + 1);
            break;
        default: {
            const u8 *q = p + (*p == '-');
            if (q < c.bounded) {
                const u8 *const digits = q;
                while (static_cast<unsigned>(*q - '0') <= 9) ++q;
                if (q != digits && q - p <= 63 && (*q == ',' || *q == '}')) return q;
            }
            p = check_number(c, t, p);
            break;
        }
    }
    return p == c.end ? nullptr : p;
}

// Whether the number literal that ends at end, its digits from `digits`, is
// what read_in_order() takes for the field f: for an integer field, at most
// 18 digits and nothing else; for a list, any value.
inline bool lean_number(const Field &f, const u8 *digits, const u8 *end) {
    if (f.kind == Kind::U32List) return true;
    if (f.kind > Kind::U16 || end == digits || end - digits > 18) return false;
    for (const u8 *q = digits; q != end; ++q)
        if (!is_digit(*q)) return false;
    return true;
}

// Blanks inside an object, which the text must close: p stays before end.
#define S2J_BLANKS()                           \
    if (*p <= 32) do {                         \
            if (++p == end) return nullptr;    \
        } while (*p <= 32)
#define S2J_STEP() \
    if (++p == end) return nullptr
#define S2J_MARKED_BLANKS() \
    if (*p <= 32) {         \
        c.blanks = true;    \
        S2J_BLANKS();       \
    }

// The end of the record object whose members from the one at p on (p at its
// key, before the end) are checked the general way, inside `depth` open
// containers, or null when cJSON refuses it.
S2J_COLD const u8 *check_other_members(Checker &c, const Text &t, const u8 *p, const unsigned depth) {
    const u8 *const end = c.end;
    for (;;) {
        if (*p != '"') return nullptr;
        p = check_string(t, p);
        if (p == nullptr || p == end) return nullptr;
        S2J_BLANKS();
        if (*p != ':') return nullptr;
        S2J_STEP();
        S2J_BLANKS();
        p = check_member_value(c, t, p, depth);
        if (p == nullptr) return nullptr;
        S2J_BLANKS();
        if (*p != ',') return *p == '}' ? p + 1 : nullptr;
        S2J_STEP();
        S2J_BLANKS();
    }
}

// The end of the record object opening at p inside `depth` open containers,
// or null when cJSON refuses it: the generic check in tight loops for the
// members of a record.  While the keys are the fields' keys in table order,
// each followed at once by its ':' (compared in place: strings known to need
// no scan), the first loop runs; at the first other key the second loop
// checks the rest.  Inside the object the text must go on, so p stays before
// the end, and the end is tested only where p moves.  c.in_order tells
// whether the first loop read every member and each held what
// read_in_order() takes for its field; c.blanks is set when a blank stood
// between two tokens of the first loop.
const u8 *check_record(Checker &c, const Text &t, const u8 *p, const unsigned depth) {
    const u8 *const end = c.end;
    if (depth >= CJSON_NESTING_LIMIT) return nullptr;
    S2J_STEP();
    S2J_MARKED_BLANKS();
    c.in_order = false;
    if (*p == '}') return p + 1;
    bool lean = true;  // whether every member so far holds what read_in_order() takes for its field
    for (const Field *f = c.fields, *const last = f + c.field_count;; ++f) {
        if (f == last) goto other_member;
        if (!key_here(p, end, *f)) goto other_member;
        p += f->key_len + 3;
        S2J_MARKED_BLANKS();
        if (f->kind <= Kind::U16 && static_cast<unsigned>(*p - '0') <= 9 && p < c.bounded) {
            // The usual integer member: up to 18 digits, then a ',' or the '}'.
            const u8 *q = p + 1;
            while (static_cast<unsigned>(*q - '0') <= 9) ++q;
            if (q - p <= 18) {
                if (*q == ',') {
                    p = q;
                    goto comma;
                }
                if (*q == '}') {
                    p = q;
                    goto close;
                }
            }
        }
        if (*p == '"') {
            lean = lean && f->kind >= Kind::Str;
            const size_t q = next_quote_or_backslash(t.s, static_cast<size_t>(p - t.s) + 1, t.len);
            p = q < t.len && t.s[q] == '"' ? t.s + q + 1 : check_string(t, p);
        } else if (*p == '-' || static_cast<unsigned>(*p - '0') <= 9) {
            const u8 *const digits = p + (*p == '-');
            p = check_number(c, t, p);
            lean = lean && p != nullptr && lean_number(*f, digits, p);
        } else {
            lean = lean && f->kind == Kind::U32List;
            p = check_value(c, t, p, depth + 1);
        }
        if (p == nullptr || p == end) return nullptr;
        S2J_MARKED_BLANKS();
        if (*p == ',') goto comma;
        if (*p != '}') return nullptr;
    close:
        c.in_order = f + 1 == last && lean;
        return p + 1;
    comma:
        S2J_STEP();
        S2J_MARKED_BLANKS();
    }
other_member:  // p at a key that is not the one expected; no more guesses in this object
    return check_other_members(c, t, p, depth);
}

#undef S2J_MARKED_BLANKS
#undef S2J_STEP
#undef S2J_BLANKS

// The end of the run of 1 to 18 digits at p, whose value goes to *value, or
// null when p holds no such run.
inline const u8 *plain_digits(const u8 *p, uint64_t *value) {
    const u8 *q = p;
    uint64_t u = uint64_t{*q} - '0';
    if (u > 9) return nullptr;
    for (uint64_t d; (d = uint64_t{*++q} - '0') <= 9;) u = u * 10 + d;
    *value = u;
    return q - p <= 18 ? q : nullptr;
}

// A record whose members are the fields' keys as the table writes them, in
// table order, each once, each holding a plain value of its field's kind (an
// integer literal of at most 18 digits, a string without escapes or NUL), is
// checked and its values noted in one walk; put_record() stores them once
// the whole text is checked.  values[f] holds an integer field's value, or a
// string's offset in the text (low 32 bits) and length (high 32 bits).
// take_record() returns the end of the record object opening at open, as
// check_record() does, and counts the record in c.taken; any other record
// goes to check_record() from its start, and stops the taking.
const u8 *take_record(Checker &c, const Text &t, const u8 *const open, const unsigned depth) {
    const u8 *const end = c.end;
    const u8 *p = open + 1;
    const u8 *const s = t.s;
    const size_t len = t.len;
    uint64_t *value = c.next_values;
    for (const Field *f = c.fields, *const last = f + c.field_count; f != last; ++f, ++value) {
        if (!room_for_key(p, end, *f)) break;  // which also keeps p before the end
        if (*p <= 32) {
            if ((p = blanks_in_object(p, end)) == nullptr) return nullptr;
            if (!room_for_key(p, end, *f)) break;
        }
        if (!key_at(p, *f)) break;
        p += f->key_len + 3;
        if (*p <= 32 && (p = blanks_in_object(p, end)) == nullptr) return nullptr;
        if (f->kind <= Kind::U16) {
            // A literal that starts before c.bounded ends before it, so p stays before the end.
            if (p >= c.bounded) break;
            if (*p != '-') {
                p = plain_digits(p, value);
                if (p == nullptr) break;
            } else {
                p = plain_digits(p + 1, value);
                if (p == nullptr) break;
                *value = 0 - *value;
            }
        } else if (f->kind == Kind::Str && *p == '"') {
            const size_t from = static_cast<size_t>(p - s) + 1, stop = next_quote_backslash_or_nul(s, from, len);
            if (stop + 1 >= len || s[stop] != '"') break;
            *value = from | uint64_t{stop - from} << 32;
            p = s + stop + 1;
        } else {
            break;
        }
        if (*p != ',' && *p <= 32 && (p = blanks_in_object(p, end)) == nullptr) return nullptr;
        if (*p == ',') {  // after the last field, another member: the loop ends
            ++p;
            continue;
        }
        if (*p != '}' || f + 1 != last) break;
        c.in_order = true;
        ++c.taken;
        uint64_t *const next = value + 1;  // where the next record's values would go
        c.next_values = static_cast<size_t>(c.values_end - next) >= c.field_count ? next : nullptr;
        return p + 1;
    }
    c.next_values = nullptr;
    return check_record(c, t, open, depth);
}

// Stores a string take_record() noted into the string field f at `at`.
inline void put_string(const Field &f, const Text &t, uint64_t value, char *at) {
    put_text(at, f.size, t.s + static_cast<uint32_t>(value), static_cast<size_t>(value >> 32));
}

// Stores a value take_record() noted into the field f at `at`, as
// read_value() reads it.
inline void put_field(const Field &f, const Text &t, uint64_t value, char *at) {
    if (f.kind == Kind::Str) {
        put_string(f, t, value, at);
    } else if (f.kind == Kind::U16) {
        const uint16_t v = static_cast<uint16_t>(value);
        std::memcpy(at, &v, sizeof v);
    } else {
        const uint32_t v = static_cast<uint32_t>(value);
        std::memcpy(at, &v, sizeof v);
    }
}

// Stores the values take_record() noted for one record into rec.
void put_record(const TypeDesc *d, const Text &t, const uint64_t *value, char *rec) {
    for (const Field *f = d->fields, *const last = f + d->field_count; f != last; ++f, ++value)
        put_field(*f, t, *value, rec + f->offset);
}

// The end of the array of records opening at p at the top level, or null
// when cJSON refuses it; its number of elements goes to *elements.
const u8 *check_record_array(Checker &c, const Text &t, const u8 *p, Document *doc) {
    const u8 *const end = c.end;
    uint32_t *const elements = &doc->elements;
    p = skip_blanks(p + 1, end);
    if (p < end && *p == ']') return p + 1;
    *elements = 1;
    bool in_order = true;  // whether every record so far had its members in table order
    for (;;) {
        if (p >= end) return nullptr;
        if (*p == '{') {
            if (c.next_values != nullptr) {
                p = take_record(c, t, p, 1);
                if (p != nullptr && c.taken == *elements) doc->taken_end = static_cast<size_t>(p - t.s);
            } else {
                p = check_record(c, t, p, 1);
            }
            in_order = in_order && c.in_order;
        } else {
            p = check_value(c, t, p, 1);
            in_order = false;
            c.next_values = nullptr;
        }
        if (p == nullptr) return nullptr;
        if (in_order) doc->in_order = *elements;
        p = skip_blanks(p, end);
        if (p >= end) return nullptr;
        if (*p == ',') {
            if ((*elements)++ == UINT32_MAX) return nullptr;
            p = skip_blanks(p + 1, end);
            continue;
        }
        return *p == ']' ? p + 1 : nullptr;
    }
}

// Checks the whole text as cJSON parses it, records at record_depth (1: the
// document is a record, 2: an array of records).  What follows the
// top-level value is not read.  With values, the first record may be taken
// (see take_record()).
bool check_document(const TypeDesc *d, unsigned record_depth, const Text &t, Document *doc, uint64_t *values) {
    const u8 *const s = t.s, *const end = t.s + t.len;
    const u8 *p = s;
    if (4 < t.len && s[0] == 0xEF && s[1] == 0xBB && s[2] == 0xBF) p += 3;  // a UTF-8 byte order mark
    p = skip_blanks(p, end);
    doc->root = static_cast<size_t>(p - s);
    doc->elements = 0;
    doc->in_order = 0;
    // Offsets of strings are noted in 32 bits.
    if (t.len > UINT32_MAX) values = nullptr;
    Checker c{end, end, d->fields, d->field_count, false, false, false, 0, values,
              values == nullptr ? nullptr : values + kMaxFields};
    while (c.bounded > p && static_cast<unsigned>(c.bounded[-1] - '0') <= 9) --c.bounded;
    if (c.bounded > p && c.bounded[-1] == '-') --c.bounded;
    if (p >= end) return false;
    if (*p == '{' && record_depth == 1) {
        p = values != nullptr ? take_record(c, t, p, 0) : check_record(c, t, p, 0);
        doc->in_order = c.in_order;
    }
    else if (*p == '[' && record_depth == 2)
        p = check_record_array(c, t, p, doc);
    else
        p = check_value(c, t, p, 0);
    doc->blanks = c.blanks;
    doc->taken = c.taken;
    return p != nullptr && (!c.fraction || decimal_point_is_one_byte());
}

// ---- Pass 2: reading from a well-formed text ---------------------------------
//
// Offsets below point into a text that pass 1 has checked: every container
// is closed within it, so scanning needs no bounds but the strings'.

inline size_t skip_ws(const u8 *s, size_t i) {
    while (is_space(s[i])) ++i;
    return i;
}

// Just past the value starting at t.s[i].
S2J_COLD size_t skip_value(const Text &t, size_t i) {
    const u8 *s = t.s;
    switch (s[i]) {
        case '"':
            return string_end(t, i) + 1;
        case '{':
        case '[': {
            unsigned depth = 0;
            for (;; ++i) {
                u8 c = s[i];
                if (c == '"') {
                    i = string_end(t, i);
                } else if (c == '{' || c == '[') {
                    ++depth;
                } else if (c == '}' || c == ']') {
                    if (--depth == 0) return i + 1;
                }
            }
        }
        case 'n':
        case 't':
            return i + 4;
        case 'f':
            return i + 5;
        default:
            while (is_number_char(s[i])) ++i;
            return i;
    }
}

// Walks the elements of an array, or the member values of an object, opening
// at t.s[i]: calls f(offset of the value, offsets of the key's quotes, or 0)
// for each until f returns false.
template <class F>
void each_child(const Text &t, size_t i, F f) {
    const u8 *s = t.s;
    const bool object = s[i] == '{';
    i = skip_ws(s, i + 1);
    if (s[i] == '}' || s[i] == ']') return;
    for (;;) {
        size_t key = 0, key_end = 0;
        if (object) {
            key = i;
            key_end = string_end(t, i);
            i = skip_ws(s, key_end + 1);  // at ':'
            i = skip_ws(s, i + 1);
        }
        if (!f(i, key, key_end)) return;
        i = skip_ws(s, skip_value(t, i));
        if (s[i] != ',') return;
        i = skip_ws(s, i + 1);
    }
}

// The members of the value at t.s[i] (a value that is not an object has
// none); returns the offset just past the value.  The key expected next is
// compared in place before its end is looked for.
S2J_COLD size_t find_members(const Text &t, size_t i, Members *m) {
    m->clear();
    const u8 *s = t.s;
    if (s[i] != '{') return skip_value(t, i);
    i = skip_ws(s, i + 1);
    if (s[i] == '}') return i + 1;
    const TypeDesc *d = m->d;
    for (;;) {
        size_t end = 0;
        if (m->next < d->field_count) {
            const Field &f = d->fields[m->next];
            const size_t at = i + 1 + f.key_len;
            if (at < t.len && s[at] == '"' && same_bytes(s + i + 1, f.key, f.key_len)) end = at;
        }
        if (end != 0) {
            const uint32_t f = m->next++;
            i = skip_ws(s, skip_ws(s, end + 1) + 1);
            if (m->at[f] == 0) m->at[f] = i;
        } else {
            end = string_end(t, i);
            const size_t value = skip_ws(s, skip_ws(s, end + 1) + 1);
            m->add(t, i, end, value);
            i = value;
        }
        i = skip_ws(s, skip_value(t, i));
        if (s[i] != ',') return i + 1;  // past the '}'
        i = skip_ws(s, i + 1);
    }
}

// Calls f(offset) for the elements that follow the element ending just
// before t.s[i], while f returns the offset just past the element, and stops
// when it returns 0.
template <class F>
void each_element_after(const Text &t, size_t i, F f) {
    const u8 *s = t.s;
    for (;;) {
        i = skip_ws(s, i);
        if (s[i] != ',') return;
        i = f(skip_ws(s, i + 1));
        if (i == 0) return;
    }
}

// Calls f(offset) for the elements of the array opening at t.s[i], as
// each_element_after() does.
template <class F>
void each_element(const Text &t, size_t i, F f) {
    i = skip_ws(t.s, i + 1);
    if (t.s[i] == ']') return;
    i = f(i);
    if (i != 0) each_element_after(t, i, f);
}

// Whether the value at t.s[i] is an integer item (an integer literal within
// the int64_t range, as the marking parser classifies it), and its value;
// *after is set just past the literal.  Up to 18 digits are read here; longer
// literals by the marking parser's own reader.  The literal lies inside a
// container of a checked text, so a byte that is no digit follows it.
inline bool integer_at(const Text &t, size_t i, int64_t *v, size_t *after) {
    const u8 *s = t.s;
    const bool neg = s[i] == '-';
    size_t j = i + neg;
    const size_t digits = j;
    uint64_t u = 0;  // wraps past 19 digits: such literals go to the marking parser's reader
    for (unsigned c; (c = static_cast<unsigned>(s[j] - '0')) <= 9; ++j) u = u * 10 + c;
    if (j > digits && j - digits <= 18 && !is_number_char(s[j])) {
        *v = neg ? static_cast<int64_t>(0 - u) : static_cast<int64_t>(u);
        *after = j;
        return true;
    }
    if (!neg && !is_digit(s[i])) return false;
    const char *p = reinterpret_cast<const char *>(s + i);
    const bool integer = read_literal(p, reinterpret_cast<const char *>(s + t.len), v);
    *after = static_cast<size_t>(reinterpret_cast<const u8 *>(p) - s);
    return integer;
}

// One integer list: entries stored by position, non-integers skipped; false
// when the value has no children or none of them is an integer.
S2J_COLD bool read_list(const Text &t, size_t i, char *at, uint32_t size) {
    if (t.s[i] != '[' && t.s[i] != '{') return false;
    const uint32_t capacity = size / 4;
    uint32_t k = 0;
    bool stored = false;
    each_child(t, i, [&](size_t value, size_t, size_t) {
        if (k == capacity) return false;
        int64_t v;
        size_t after;
        if (integer_at(t, value, &v, &after)) {
            uint32_t u = static_cast<uint32_t>(static_cast<uint64_t>(v));
            std::memcpy(at + 4 * k, &u, sizeof u);
            stored = true;
        }
        ++k;
        return true;
    });
    return stored;
}

// Reads the value at t.s[i] into a field at `at`, as the tree reader reads
// the item, and sets *after just past the value: false when it is not of the
// field's JSON type.
S2J_COLD bool read_value(const Text &t, const Field &f, size_t i, char *at, size_t *after) {
    switch (f.kind) {
        case Kind::I32:
        case Kind::U32:
        case Kind::U16: {
            int64_t v;
            if (!integer_at(t, i, &v, after)) return false;
            const uint64_t bits = static_cast<uint64_t>(v);
            if (f.kind == Kind::U16) {
                uint16_t u = static_cast<uint16_t>(bits);
                std::memcpy(at, &u, sizeof u);
            } else {
                uint32_t u = static_cast<uint32_t>(bits);
                std::memcpy(at, &u, sizeof u);
            }
            return true;
        }
        case Kind::Str:
            if (t.s[i] != '"') return false;
            *after = read_string(t, i, at, f.size) + 1;
            return true;
        case Kind::U32List:  // read below
            break;
    }
    if (!read_list(t, i, at, f.size)) return false;
    *after = skip_value(t, i);
    return true;
}

S2J_COLD bool read_field(const Text &t, const Field &f, size_t i, char *at) {
    size_t after;
    return read_value(t, f, i, at, &after);
}

// Fills the record's fields in table order from the members found, up to the
// first of the wrong JSON type; absent members leave their fields alone.
S2J_COLD bool fill_record(const Text &t, const Members &m, void *rec) {
    const TypeDesc *d = m.d;
    char *base = static_cast<char *>(rec);
    for (uint32_t f = 0; f < d->field_count; ++f)
        if (m.at[f] != 0 && !read_field(t, d->fields[f], m.at[f], base + d->fields[f].offset)) return false;
    return true;
}

// Reads the value at p into the field f of rec, and returns the position
// just past it, or null when the value is not of the field's JSON type.  The
// check saw to it that an integer field holds an integer literal of at most
// 18 digits and a string field a string.
inline const u8 *read_member_value(const Text &t, const Field &f, const u8 *p, char *rec) {
    char *const at = rec + f.offset;
    if (f.kind <= Kind::U16) {
        const bool neg = *p == '-';
        p += neg;
        uint64_t u = 0;
        for (uint64_t c; (c = uint64_t{*p} - '0') <= 9; ++p) u = u * 10 + c;
        if (neg) u = 0 - u;
        if (f.kind == Kind::U16) {
            const uint16_t v = static_cast<uint16_t>(u);
            std::memcpy(at, &v, sizeof v);
        } else {
            const uint32_t v = static_cast<uint32_t>(u);
            std::memcpy(at, &v, sizeof v);
        }
        return p;
    }
    if (f.kind == Kind::Str) {
        const size_t from = static_cast<size_t>(p - t.s) + 1, stop = next_quote_backslash_or_nul(t.s, from, t.len);
        if (t.s[stop] == '"') {
            put_text(at, f.size, t.s + from, stop - from);
            return t.s + stop + 1;
        }
    }
    size_t after;
    if (!read_value(t, f, static_cast<size_t>(p - t.s), at, &after)) return nullptr;
    return t.s + after;
}

// Reads the element at t.s[i] into rec: fill_record() over the members
// find_members() finds.  Returns the offset just past the element, or 0 when
// a member is of the wrong JSON type.
S2J_COLD size_t read_element(const Text &t, size_t i, Members *m, char *rec) {
    const size_t end = find_members(t, i, m);
    return fill_record(t, *m, rec) ? end : 0;
}

// Reads the record object at t.s[i] whose members the check found to be the
// fields' keys as the table writes them, in table order, each once, each
// followed at once by its ':' and holding what read_member_value() takes
// for its field, as read_element() reads it, and returns the offset just
// past it (0 when a list member is of the wrong JSON type).  Blanks
// tells whether blanks may stand between the other tokens.
template <bool Blanks>
__attribute__((always_inline)) inline size_t read_in_order_as(const Text &t, size_t i, const TypeDesc *d, char *rec) {
    const u8 *p = t.s + i + 1;
    for (const Field *f = d->fields, *const last = f + d->field_count; f != last; ++f) {
        if (Blanks) while (*p <= 32) ++p;
        p += f->key_len + 3;  // the key, its quotes and the ':'
        if (Blanks) while (*p <= 32) ++p;
        p = read_member_value(t, *f, p, rec);
        if (p == nullptr) return 0;
        if (Blanks) while (*p <= 32) ++p;
        ++p;  // the ',' or the '}'
    }
    return static_cast<size_t>(p - t.s);
}

// Indented text: compiled for size.
S2J_COLD size_t read_in_order_with_blanks(const Text &t, size_t i, const TypeDesc *d, char *rec) {
    return read_in_order_as<true>(t, i, d, rec);
}

size_t read_in_order(const Text &t, size_t i, const TypeDesc *d, char *rec, bool blanks) {
    return blanks ? read_in_order_with_blanks(t, i, d, rec) : read_in_order_as<false>(t, i, d, rec);
}

// The index of the first of the capacity records at base whose keys equal
// the keyword's (as keys_match() compares them), or capacity.  An integer
// first key is compared in place before keys_match() is asked.
uint32_t find_keyed(const TypeDesc *d, const char *base, uint32_t capacity, const char *keyword) {
    const Field &first = d->keys[0].field;
    if (first.kind == Kind::Str) {
        for (uint32_t i = 0; i < capacity; ++i)
            if (keys_match(d, base + static_cast<size_t>(i) * d->size, keyword)) return i;
        return capacity;
    }
    uint32_t want;
    std::memcpy(&want, keyword + d->keys[0].keyword_offset, sizeof want);
    const size_t size = d->size;
    const auto first_key_is = [&](const char *key) {
        uint32_t have;
        std::memcpy(&have, key, sizeof have);
        return have == want;
    };
    const char *key = base + first.offset;
    uint32_t i = 0;
    // Four records a step until one has the first key; from there one by one.
    while (i + 4 <= capacity && !first_key_is(key) && !first_key_is(key + size) && !first_key_is(key + 2 * size) &&
           !first_key_is(key + 3 * size)) {
        i += 4;
        key += 4 * size;
    }
    for (; i < capacity; ++i, key += size)
        if (first_key_is(key) && (d->key_count == 1 || keys_match(d, key - first.offset, keyword))) return i;
    return capacity;
}

// The table index of a key field.
uint32_t field_of_key(const TypeDesc *d, const Key &k) {
    uint32_t f = 0;
    while (d->fields[f].offset != k.field.offset) ++f;
    return f;
}

bool start(const TypeDesc *d, unsigned record_depth, const Text &t, Document *doc, uint64_t *values = nullptr) {
    return check_document(d, record_depth, t, doc, values);
}

// What reading a record needs beside the text: where its members are, or
// the values take_record() noted; never both at once.
union Scratch {
    Members m;
    uint64_t values[kMaxFields];
};

}  // namespace

Direct direct_record(const TypeDesc *d, const char *text, size_t len, void *rec) {
    const Text t{reinterpret_cast<const u8 *>(text), len};
    Document doc;
    Scratch scratch;
    if (!start(d, 1, t, &doc, scratch.values)) return Direct::UseTree;
    if (t.s[doc.root] != '{') return Direct::NotObject;
    char *const r = static_cast<char *>(rec);
    if (doc.taken != 0) {
        put_record(d, t, scratch.values, r);
        return Direct::Done;
    }
    size_t end;
    if (doc.in_order != 0) {
        end = read_in_order(t, doc.root, d, r, doc.blanks);
    } else {
        scratch.m.d = d;
        end = read_element(t, doc.root, &scratch.m, r);
    }
    return end != 0 ? Direct::Done : Direct::ReaderFailed;
}

Direct direct_array(const TypeDesc *d, const char *text, size_t len, void *arr, uint32_t *count) {
    const Text t{reinterpret_cast<const u8 *>(text), len};
    Document doc;
    Scratch scratch;
    if (!start(d, 2, t, &doc, scratch.values)) return Direct::UseTree;
    if (t.s[doc.root] != '[') return Direct::NotArray;
    if (arr == nullptr) {  // query mode: how many elements to provide
        *count = doc.elements;
        return Direct::Done;
    }
    const uint32_t filled = doc.elements < *count ? doc.elements : *count;
    char *base = static_cast<char *>(arr);
    uint32_t k = doc.taken < filled ? doc.taken : filled;  // the next record to fill
    for (size_t j = 0; j < k; ++j) put_record(d, t, scratch.values + j * d->field_count, base + j * d->size);
    bool ok = true;
    Members &m = scratch.m;
    m.d = d;
    const auto read = [&](size_t value) -> size_t {
        if (k == filled) return 0;
        char *const rec = base + static_cast<size_t>(k) * d->size;
        const size_t end =
            k < doc.in_order ? read_in_order(t, value, d, rec, doc.blanks) : read_element(t, value, &m, rec);
        ok = end != 0;
        ++k;
        return end;
    };
    if (doc.taken == 0)
        each_element(t, doc.root, read);
    else
        each_element_after(t, doc.taken_end, read);
    if (!ok) return Direct::ReaderFailed;
    *count = filled;
    return Direct::Done;
}

namespace {

// Applies the update element at t.s[value], whose members are found the
// general way, to the first of the capacity records at base with its keys
// (counted in *updated); returns the offset just past the element, or 0 with
// *outcome set when it has no keys or a member of the wrong JSON type.
S2J_COLD __attribute__((noinline)) size_t update_element(const Text &t, const TypeDesc *d, size_t value, char *base,
                                                uint32_t capacity, uint32_t *updated, Direct *outcome) {
    Members m;
    m.d = d;
    const size_t end = find_members(t, value, &m);
    alignas(8) char keyword[kMaxKeywordSize];
    for (uint32_t j = 0; j < d->key_count; ++j) {
        const Key &key = d->keys[j];
        const size_t member = m.at[field_of_key(d, key)];
        if (member == 0 || !read_field(t, keyword_field(key), member, keyword + key.keyword_offset)) {
            *outcome = Direct::KeywordMissing;
            return 0;
        }
    }
    const uint32_t i = find_keyed(d, base, capacity, keyword);
    if (i < capacity) {
        if (!fill_record(t, m, base + static_cast<size_t>(i) * d->size)) {
            *outcome = Direct::ReaderFailed;
            return 0;
        }
        ++*updated;
    }
    return end;
}

// Applies the taken update elements (see take_record()), whose values start
// at values, each to the first of the capacity records at base with its keys
// (counted in *updated).
__attribute__((noinline)) void update_taken(const Text &t, const TypeDesc *d, const uint64_t *values, uint32_t taken,
                                            char *base, uint32_t capacity, uint32_t *updated) {
    alignas(8) char keyword[kMaxKeywordSize];
    for (uint32_t k = 0; k < taken; ++k, values += d->field_count) {
        for (uint32_t j = 0; j < d->key_count; ++j) {
            const Key &key = d->keys[j];
            put_field(keyword_field(key), t, values[field_of_key(d, key)], keyword + key.keyword_offset);
        }
        const uint32_t i = find_keyed(d, base, capacity, keyword);
        if (i == capacity) continue;
        put_record(d, t, values, base + static_cast<size_t>(i) * d->size);
        ++*updated;
    }
}

}  // namespace

Direct direct_update(const TypeDesc *d, const char *text, size_t len, void *arr, uint32_t *count) {
    const Text t{reinterpret_cast<const u8 *>(text), len};
    Document doc;
    uint64_t values[kMaxFields];
    if (!start(d, 2, t, &doc, values)) return Direct::UseTree;
    if (t.s[doc.root] != '[') return Direct::NotArray;
    char *base = static_cast<char *>(arr);
    const uint32_t capacity = *count;  // not changed during the loop
    uint32_t updated = 0;
    update_taken(t, d, values, doc.taken, base, capacity, &updated);
    // The elements after the taken ones: their members are found the general way.
    Direct outcome = Direct::Done;
    const auto apply = [&](size_t value) { return update_element(t, d, value, base, capacity, &updated, &outcome); };
    if (doc.taken == 0)
        each_element(t, doc.root, apply);
    else
        each_element_after(t, doc.taken_end, apply);
    if (outcome == Direct::Done) *count = updated;  // an empty list sets the count to 0
    return outcome;
}

}  // namespace s2j
