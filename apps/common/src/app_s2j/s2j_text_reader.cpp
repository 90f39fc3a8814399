// s2j_text_reader.cpp - the direct text reader (see s2j_text_reader.h).
//
// Two passes over the text, neither of which allocates or recurses:
//  1. check that cJSON would parse the text, and to the same document: the
//     same grammar, the same whitespace (every byte up to 0x20, NUL
//     included), the byte order mark, the nesting limit, strtod()'s reading
//     of number literals, the escapes of strings.  Anything cJSON refuses,
//     and the few things this reader leaves to cJSON (a number literal of 63
//     or more characters, a fraction under a locale whose decimal point is
//     not one byte, a type with two keys equal but for case), ends the read
//     here with UseTree, before any record is touched;
//  2. read the records from the text known to be well formed, exactly as the
//     tree readers read the tree cJSON would have built: for each record the
//     first member whose key equals a field's key without regard to case
//     (under tolower(), as cJSON compares), then the fields in table order up
//     to the first of the wrong JSON type.
#include "s2j_text_reader.h"

#include <cctype>
#include <clocale>
#include <cstring>

#include <cjson/cJSON.h>

#include "s2j_codec.h"
#include "s2j_int.h"

namespace s2j {

namespace {

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
unsigned unicode_escape(const u8 *p, const u8 *end, u8 out[4], unsigned *n) {
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

// The first quote or backslash at or after i, looking no further than len
// (len when there is none): eight bytes at a time, then byte by byte.
inline size_t next_quote_or_backslash(const u8 *s, size_t i, size_t len) {
    for (; i + 8 <= len; i += 8) {
        uint64_t w;
        std::memcpy(&w, s + i, 8);
        if (uint64_t marks = quotes_or_backslashes(w)) return i + first_marked(marks);
    }
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
bool escapes_valid(const u8 *p, const u8 *end) {
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
inline size_t string_end(const Text &t, size_t i) {
    i = next_quote_or_backslash(t.s, i + 1, t.len);
    while (t.s[i] != '"') i = next_quote_or_backslash(t.s, i + 2, t.len);  // past a backslash and its byte
    return i;
}

// Copies the text of the string opening at s[i] into a field of size bytes as
// snprintf(field, size, "%s", text) would copy cJSON's value: at most size-1
// bytes, up to the first NUL of the decoded text, then a NUL.
void copy_string(const Text &t, size_t i, char *field, size_t size) {
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

// A member's key as cJSON holds it: the decoded text up to its first NUL.
// Keys without escapes or NULs are read in place; others are decoded into
// buf, and a key longer than buf can hold equals no field's key.
struct KeyText {
    const u8 *p;
    size_t n;
};

constexpr size_t kKeyRoom = 128;  // longer than every field's key

bool decode_key(const Text &t, size_t i, u8 (&buf)[kKeyRoom], KeyText *key) {
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
size_t number_length(const Text &t, size_t i, bool *fraction) {
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
int find_field(const TypeDesc *d, const KeyText &key, uint32_t next) {
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
int match_key(const TypeDesc *d, const Text &t, size_t quote, size_t end, uint32_t next) {
    const size_t n = end - quote - 1;
    const u8 *p = t.s + quote + 1;
    if (next < d->field_count) {
        const Field &f = d->fields[next];
        if (f.key_len == n && std::memcmp(p, f.key, n) == 0) return static_cast<int>(next);
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
};

// Checks the whole text as cJSON parses it.  With members, the members of a
// top-level object are found on the way.  Written for speed over pointers:
// blanks are tested before they are skipped, plain integers and strings
// without escapes take one loop each.
bool check_document(const Text &t, Document *doc, Members *members) {
    const u8 *const s = t.s, *const end = t.s + t.len;
    const u8 *p = s;
    if (4 < t.len && s[0] == 0xEF && s[1] == 0xBB && s[2] == 0xBF) p += 3;  // a UTF-8 byte order mark
    while (p < end && *p <= 32) ++p;
    doc->root = static_cast<size_t>(p - s);
    doc->elements = 0;
    // One bit per open container (set for an object), as deep as cJSON nests.
    uint64_t objects[(CJSON_NESTING_LIMIT + 63) / 64];
    unsigned depth = 0;
    bool object = false;  // whether the innermost open container is an object
    bool fraction = false;
    const u8 *key = nullptr, *key_end = nullptr;  // the quotes of a top-level member's key

#define S2J_SKIP_BLANKS() \
    if (p < end && *p <= 32) \
        do ++p; while (p < end && *p <= 32)

value:
    if (p >= end) return false;
    if (key != nullptr) {
        members->add(t, static_cast<size_t>(key - s), static_cast<size_t>(key_end - s), static_cast<size_t>(p - s));
        key = nullptr;
    }
    switch (*p) {
        case '{':
        case '[': {
            if (depth >= CJSON_NESTING_LIMIT) return false;
            object = *p == '{';
            const uint64_t bit = uint64_t{1} << (depth % 64);
            if (object)
                objects[depth / 64] |= bit;
            else
                objects[depth / 64] &= ~bit;
            ++depth;
            ++p;
            S2J_SKIP_BLANKS();
            if (p < end && *p == (object ? '}' : ']')) {
                ++p;
                goto close;
            }
            if (object) goto member;
            if (depth == 1) doc->elements = 1;
            goto value;
        }
        case '"': {
            bool escaped = false;
            const size_t q = scan_string(t, static_cast<size_t>(p - s), &escaped);
            if (q == 0 || (escaped && !escapes_valid(p + 1, s + q))) return false;
            p = s + q + 1;
            goto after_value;
        }
        case 'n':
            if (end - p < 4 || std::memcmp(p, "null", 4) != 0) return false;
            p += 4;
            goto after_value;
        case 't':
            if (end - p < 4 || std::memcmp(p, "true", 4) != 0) return false;
            p += 4;
            goto after_value;
        case 'f':
            if (end - p < 5 || std::memcmp(p, "false", 5) != 0) return false;
            p += 5;
            goto after_value;
        default: {
            const u8 *q = p + (*p == '-');
            const u8 *digits = q;
            while (q < end && is_digit(*q)) ++q;
            if (q > digits && q - p <= 63 && (q == end || !is_number_char(*q))) {
                p = q;  // a plain integer
                goto after_value;
            }
            if (*p != '-' && !is_digit(*p)) return false;
            const size_t n = number_length(t, static_cast<size_t>(p - s), &fraction);
            if (n == 0) return false;
            p += n;
            goto after_value;
        }
    }

member:  // p at the key of a member
    if (p >= end || *p != '"') return false;
    {
        bool escaped = false;
        const size_t q = scan_string(t, static_cast<size_t>(p - s), &escaped);
        if (q == 0 || (escaped && !escapes_valid(p + 1, s + q))) return false;
        if (depth == 1 && members != nullptr) key = p, key_end = s + q;
        p = s + q + 1;
    }
    S2J_SKIP_BLANKS();
    if (p >= end || *p != ':') return false;
    ++p;
    S2J_SKIP_BLANKS();
    goto value;

after_value:
    if (depth == 0) return !fraction || decimal_point_is_one_byte();  // what follows is not read
    S2J_SKIP_BLANKS();
    if (p >= end) return false;
    if (*p == ',') {
        ++p;
        S2J_SKIP_BLANKS();
        if (object) goto member;
        if (depth == 1 && doc->elements++ == UINT32_MAX) return false;
        goto value;
    }
    if (*p != (object ? '}' : ']')) return false;
    ++p;

close:  // p just past the container that closed
    --depth;
    if (depth > 0) object = objects[(depth - 1) / 64] & (uint64_t{1} << ((depth - 1) % 64));
    goto after_value;
#undef S2J_SKIP_BLANKS
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
size_t skip_value(const Text &t, size_t i) {
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
size_t find_members(const Text &t, size_t i, Members *m) {
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
            if (at < t.len && s[at] == '"' && std::memcmp(s + i + 1, f.key, f.key_len) == 0) end = at;
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

// Calls f(offset) for the elements of the array opening at t.s[i] while f
// returns the offset just past the element, and stops when it returns 0.
template <class F>
void each_element(const Text &t, size_t i, F f) {
    const u8 *s = t.s;
    i = skip_ws(s, i + 1);
    if (s[i] == ']') return;
    for (;;) {
        i = f(i);
        if (i == 0) return;
        i = skip_ws(s, i);
        if (s[i] != ',') return;
        i = skip_ws(s, i + 1);
    }
}

// Whether the value at t.s[i] is an integer item (an integer literal within
// the int64_t range, as the marking parser classifies it), and its value.
// Up to 18 digits are read here; longer literals by the marking parser's
// own reader.
inline bool integer_at(const Text &t, size_t i, int64_t *v) {
    const u8 *s = t.s;
    const bool neg = s[i] == '-';
    size_t j = i + neg;
    const size_t digits = j;
    uint64_t u = 0;
    for (; is_digit(s[j]) && j - digits < 18; ++j) u = u * 10 + (s[j] - '0');
    if (j > digits && !is_number_char(s[j])) {
        *v = neg ? static_cast<int64_t>(0 - u) : static_cast<int64_t>(u);
        return true;
    }
    if (!neg && !is_digit(s[i])) return false;
    const char *p = reinterpret_cast<const char *>(s + i);
    return read_literal(p, reinterpret_cast<const char *>(s + t.len), v);
}

// One integer list: entries stored by position, non-integers skipped; false
// when the value has no children or none of them is an integer.
bool read_list(const Text &t, size_t i, char *at, uint32_t size) {
    if (t.s[i] != '[' && t.s[i] != '{') return false;
    const uint32_t capacity = size / 4;
    uint32_t k = 0;
    bool stored = false;
    each_child(t, i, [&](size_t value, size_t, size_t) {
        if (k == capacity) return false;
        int64_t v;
        if (integer_at(t, value, &v)) {
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
// the item: false when it is not of the field's JSON type.
bool read_field(const Text &t, const Field &f, size_t i, char *at) {
    switch (f.kind) {
        case Kind::I32:
        case Kind::U32:
        case Kind::U16: {
            int64_t v;
            if (!integer_at(t, i, &v)) return false;
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
            copy_string(t, i, at, f.size);
            return true;
        case Kind::U32List:
            return read_list(t, i, at, f.size);
    }
    return false;
}

// Fills the record's fields in table order from the members found, up to the
// first of the wrong JSON type; absent members leave their fields alone.
bool fill_record(const Text &t, const Members &m, void *rec) {
    const TypeDesc *d = m.d;
    char *base = static_cast<char *>(rec);
    for (uint32_t f = 0; f < d->field_count; ++f)
        if (m.at[f] != 0 && !read_field(t, d->fields[f], m.at[f], base + d->fields[f].offset)) return false;
    return true;
}

// The table index of a key field.
uint32_t field_of_key(const TypeDesc *d, const Key &k) {
    uint32_t f = 0;
    while (d->fields[f].offset != k.field.offset) ++f;
    return f;
}

bool start(const TypeDesc *d, const Text &t, Document *doc, Members *members) {
    return !d->key_twins && check_document(t, doc, members);
}

}  // namespace

Direct direct_record(const TypeDesc *d, const char *text, size_t len, void *rec) {
    const Text t{reinterpret_cast<const u8 *>(text), len};
    Document doc;
    Members m;
    m.d = d;
    m.clear();
    if (!start(d, t, &doc, &m)) return Direct::UseTree;
    if (t.s[doc.root] != '{') return Direct::NotObject;
    return fill_record(t, m, rec) ? Direct::Done : Direct::ReaderFailed;
}

Direct direct_array(const TypeDesc *d, const char *text, size_t len, void *arr, uint32_t *count) {
    const Text t{reinterpret_cast<const u8 *>(text), len};
    Document doc;
    if (!start(d, t, &doc, nullptr)) return Direct::UseTree;
    if (t.s[doc.root] != '[') return Direct::NotArray;
    if (arr == nullptr) {  // query mode: how many elements to provide
        *count = doc.elements;
        return Direct::Done;
    }
    const uint32_t filled = doc.elements < *count ? doc.elements : *count;
    char *base = static_cast<char *>(arr);
    uint32_t k = 0;
    bool ok = true;
    Members m;
    m.d = d;
    each_element(t, doc.root, [&](size_t value) -> size_t {
        if (k == filled) return 0;
        const size_t end = find_members(t, value, &m);
        ok = fill_record(t, m, base + static_cast<size_t>(k) * d->size);
        ++k;
        return ok ? end : 0;
    });
    if (!ok) return Direct::ReaderFailed;
    *count = filled;
    return Direct::Done;
}

Direct direct_update(const TypeDesc *d, const char *text, size_t len, void *arr, uint32_t *count) {
    const Text t{reinterpret_cast<const u8 *>(text), len};
    Document doc;
    if (!start(d, t, &doc, nullptr)) return Direct::UseTree;
    if (t.s[doc.root] != '[') return Direct::NotArray;
    char *base = static_cast<char *>(arr);
    const uint32_t capacity = *count;  // not changed during the loop
    uint32_t updated = 0;
    Direct outcome = Direct::Done;
    Members m;
    m.d = d;
    each_element(t, doc.root, [&](size_t value) -> size_t {
        const size_t end = find_members(t, value, &m);
        // The keyword record of this element, read as the keyword reader
        // reads it: every key present and of its JSON type.
        alignas(8) char keyword[kMaxKeywordSize];
        for (uint32_t k = 0; k < d->key_count; ++k) {
            const Key &key = d->keys[k];
            Field f = key.field;
            if (f.kind == Kind::Str) f.size = kKeyStringSize;
            const size_t member = m.at[field_of_key(d, key)];
            if (member == 0 || !read_field(t, f, member, keyword + key.keyword_offset)) {
                outcome = Direct::KeywordMissing;
                return size_t{0};
            }
        }
        for (uint32_t i = 0; i < capacity; ++i) {
            char *rec = base + static_cast<size_t>(i) * d->size;
            if (!keys_match(d, rec, keyword)) continue;
            if (!fill_record(t, m, rec)) {
                outcome = Direct::ReaderFailed;
                return size_t{0};
            }
            ++updated;
            break;
        }
        return end;
    });
    if (outcome == Direct::Done) *count = updated;  // an empty list sets the count to 0
    return outcome;
}

}  // namespace s2j
