// s2j_write.cpp - the text writer.  It produces the bytes of cJSON 1.7.15's
// printer for the trees that emit_record makes, without making them:
//   - an object is "{" then its members then "}"; a member is the key in
//     quotes, ":" and the value, members separated by ",".  Indented, a
//     newline follows "{", each member starts with one tab per level of
//     depth (1 for the only object of a text, 2 for an element of an array)
//     and ends with a newline, the colon is followed by a tab, and "}" is
//     preceded by one tab less than the members;
//   - an array is "[" then its elements then "]", separated by "," and,
//     indented, by ", " (no newlines);
//   - an integer is its decimal digits (cJSON's "%1.15g" of a 32-bit value);
//   - a string is in quotes, with '"', '\\', '\b', '\f', '\n', '\r' and '\t'
//     escaped by a backslash and their letter, every other byte below 0x20
//     as "\u00xx" in lowercase hexadecimal, every other byte (bytes from
//     0x80 included) as it is; a char[N] field ends at its first NUL, or
//     after its N bytes when it holds none;
//   - keys are C identifiers, which need no escapes.
#include <cstring>

#include "s2j_write.h"

namespace s2j {

namespace {

// The text of each byte inside a string: 1 for itself, 2 for a backslash and
// a letter, 6 for "\u00xx".
struct EscapeTable {
    uint8_t bytes[256];
    char letter[256];  // the letter after the backslash; 'u' for "\u00xx"
    constexpr EscapeTable() : bytes(), letter() {
        for (int c = 0; c < 256; ++c) {
            bytes[c] = c < 0x20 ? 6 : 1;
            letter[c] = c < 0x20 ? 'u' : '\0';
        }
        const char plain[] = {'"', '\\', '\b', '\f', '\n', '\r', '\t'};
        const char escaped[] = {'"', '\\', 'b', 'f', 'n', 'r', 't'};
        for (int i = 0; i < 7; ++i) {
            bytes[static_cast<unsigned char>(plain[i])] = 2;
            letter[static_cast<unsigned char>(plain[i])] = escaped[i];
        }
    }
};
constexpr EscapeTable kEscape;

// Bytes of a char[N] field's text inside its quotes.
size_t string_bytes(const char *s, uint32_t size) {
    size_t bytes = 0;
    const unsigned char *p = reinterpret_cast<const unsigned char *>(s);
    for (uint32_t i = 0; i < size && p[i] != '\0'; ++i) bytes += kEscape.bytes[p[i]];
    return bytes;
}

// Bytes of the strings of one record beyond their quotes.
size_t record_string_bytes(const TypeDesc *d, const char *rec) {
    size_t bytes = 0;
    for (uint32_t i = 0; i < d->field_count; ++i) {
        const Field &f = d->fields[i];
        if (f.kind == Kind::Str) bytes += string_bytes(rec + f.offset, f.size);
    }
    return bytes;
}

char *put_string(char *o, const char *s, uint32_t size) {
    static const char kHex[] = "0123456789abcdef";
    *o++ = '"';
    const unsigned char *p = reinterpret_cast<const unsigned char *>(s);
    for (uint32_t i = 0; i < size && p[i] != '\0'; ++i) {
        const unsigned char c = p[i];
        if (kEscape.bytes[c] == 1) {
            *o++ = static_cast<char>(c);
            continue;
        }
        *o++ = '\\';
        *o++ = kEscape.letter[c];
        if (kEscape.letter[c] == 'u') {
            *o++ = '0';
            *o++ = '0';
            *o++ = kHex[c >> 4];
            *o++ = kHex[c & 15];
        }
    }
    *o++ = '"';
    return o;
}

// Two decimal digits of every number below 100.
struct DigitPairs {
    char d[200];
    constexpr DigitPairs() : d() {
        for (int i = 0; i < 100; ++i) {
            d[2 * i] = static_cast<char>('0' + i / 10);
            d[2 * i + 1] = static_cast<char>('0' + i % 10);
        }
    }
};
constexpr DigitPairs kDigits;

char *put_u32(char *o, uint32_t v) {
    uint32_t n = 1;
    for (uint32_t t = v; t >= 10; t /= 10) ++n;
    char *end = o + n;
    char *p = end;
    while (v >= 100) {
        const uint32_t r = v % 100;
        v /= 100;
        p -= 2;
        std::memcpy(p, kDigits.d + 2 * r, 2);
    }
    if (v >= 10) {
        p -= 2;
        std::memcpy(p, kDigits.d + 2 * v, 2);
    } else {
        *--p = static_cast<char>('0' + v);
    }
    return end;
}

char *put_i32(char *o, int32_t v) {
    if (v >= 0) return put_u32(o, static_cast<uint32_t>(v));
    *o++ = '-';
    return put_u32(o, 0u - static_cast<uint32_t>(v));
}

char *put_tabs(char *o, uint32_t n) {
    for (uint32_t i = 0; i < n; ++i) *o++ = '\t';
    return o;
}

// One record's object; depth is that of its members (1 or 2).
char *put_record(char *o, const TypeDesc *d, const char *rec, bool formatted, uint32_t depth) {
    *o++ = '{';
    if (formatted) *o++ = '\n';
    for (uint32_t i = 0; i < d->field_count; ++i) {
        const Field &f = d->fields[i];
        const char *at = rec + f.offset;
        if (formatted) o = put_tabs(o, depth);
        *o++ = '"';
        for (const char *k = f.key; *k != '\0'; ++k) *o++ = *k;
        *o++ = '"';
        *o++ = ':';
        if (formatted) *o++ = '\t';
        switch (f.kind) {
            case Kind::I32: {
                int32_t v;
                std::memcpy(&v, at, sizeof v);
                o = put_i32(o, v);
                break;
            }
            case Kind::U32: {
                uint32_t v;
                std::memcpy(&v, at, sizeof v);
                o = put_u32(o, v);
                break;
            }
            case Kind::U16: {
                uint16_t v;
                std::memcpy(&v, at, sizeof v);
                o = put_u32(o, v);
                break;
            }
            case Kind::Str:
                o = put_string(o, at, f.size);
                break;
            case Kind::U32List: {
                *o++ = '[';
                for (uint32_t k = 0; k < f.size / 4; ++k) {
                    if (k > 0) {
                        *o++ = ',';
                        if (formatted) *o++ = ' ';
                    }
                    uint32_t v;
                    std::memcpy(&v, at + 4 * k, sizeof v);
                    o = put_u32(o, v);
                }
                *o++ = ']';
                break;
            }
        }
        if (i + 1 < d->field_count) *o++ = ',';
        if (formatted) *o++ = '\n';
    }
    if (formatted) o = put_tabs(o, depth - 1);
    *o++ = '}';
    return o;
}

}  // namespace

char *write_text(const TypeDesc *d, const void *recs, uint32_t count, bool as_array, bool formatted) {
    const char *base = static_cast<const char *>(recs);
    // Room: each record's longest text with empty strings (an element of an
    // array is one level deeper: a tab more per member and before "}"), its
    // strings' escaped bytes, the array's brackets and separators, the NUL.
    size_t per_record = formatted ? d->text_bytes_formatted : d->text_bytes;
    if (as_array && formatted) per_record += d->field_count + 1;
    size_t size = 1;
    if (as_array) size += 2 + static_cast<size_t>(count - 1) * (formatted ? 2 : 1);
    size_t fixed;
    if (__builtin_mul_overflow(per_record, static_cast<size_t>(count), &fixed) ||
        __builtin_add_overflow(size, fixed, &size))
        return nullptr;
    for (uint32_t i = 0; i < count; ++i)
        if (__builtin_add_overflow(size, record_string_bytes(d, base + static_cast<size_t>(i) * d->size), &size))
            return nullptr;
    char *text = static_cast<char *>(cJSON_malloc(size));
    if (text == nullptr) return nullptr;
    char *o = text;
    if (!as_array) {
        o = put_record(o, d, base, formatted, 1);
    } else {
        *o++ = '[';
        for (uint32_t i = 0; i < count; ++i) {
            if (i > 0) {
                *o++ = ',';
                if (formatted) *o++ = ' ';
            }
            o = put_record(o, d, base + static_cast<size_t>(i) * d->size, formatted, 2);
        }
        *o++ = ']';
    }
    *o = '\0';
    return text;
}

}  // namespace s2j
