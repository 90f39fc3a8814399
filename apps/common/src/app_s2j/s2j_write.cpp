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
#if defined(__SSE2__)
#include <emmintrin.h>
#endif

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

// Strings are scanned sixteen bytes at a time where the machine has SSE2
// (below), and otherwise, as for the rest of a field shorter than sixteen
// bytes, eight bytes at a time.  For a word of eight bytes, the
// result is non-zero when a byte ends the string or needs an escape (below
// 0x20, the NUL included, '"' and '\\'), and the first such byte in memory
// order has its high bit set.  On a little-endian machine the usual tests
// (a borrow only runs towards bytes later in memory, from a byte that is
// marked itself) give that; on a big-endian one the borrow runs towards
// earlier bytes, so a test without any carry between bytes is used.
constexpr uint64_t kOnes = 0x0101010101010101ULL;
inline uint64_t special_bytes(uint64_t x) {
    constexpr uint64_t high = 0x80 * kOnes;
    const uint64_t q = x ^ ('"' * kOnes), b = x ^ ('\\' * kOnes);
#if __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__
    return (((x - 0x20 * kOnes) & ~x) | ((q - kOnes) & ~q) | ((b - kOnes) & ~b)) & high;
#else
    constexpr uint64_t low7 = 0x7F * kOnes;
    const uint64_t below_space = ~(((x & low7) + 0x60 * kOnes) | x);
    const uint64_t quote = ~(((q & low7) + low7) | q), backslash = ~(((b & low7) + low7) | b);
    return (below_space | quote | backslash) & high;
#endif
}
// The index, in memory order, of the first byte marked in a non-zero mask.
inline uint32_t first_marked(uint64_t mask) {
#if __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__
    return static_cast<uint32_t>(__builtin_ctzll(mask)) / 8;
#else
    return static_cast<uint32_t>(__builtin_clzll(mask)) / 8;
#endif
}

// A block of W bytes of a string, loaded at once: special() marks the bytes
// that end the string or need an escape (0 when there is none), first() is
// the index of the first byte a non-zero mask marks, store() writes the
// whole block.
template <uint32_t W>
struct Block;

template <>
struct Block<8> {
    uint64_t x;
    explicit Block(const unsigned char *p) { std::memcpy(&x, p, 8); }
    void store(char *o) const { std::memcpy(o, &x, 8); }
    uint64_t special() const { return special_bytes(x); }
    static uint32_t first(uint64_t mask) { return first_marked(mask); }
};

#if defined(__SSE2__)
// Sixteen bytes at once where the machine has SSE2: bit i of the mask is set
// when byte i ends the string or needs an escape.
template <>
struct Block<16> {
    __m128i x;
    explicit Block(const unsigned char *p) : x(_mm_loadu_si128(reinterpret_cast<const __m128i *>(p))) {}
    void store(char *o) const { _mm_storeu_si128(reinterpret_cast<__m128i *>(o), x); }
    uint32_t special() const {
        const __m128i below_space = _mm_cmpeq_epi8(_mm_min_epu8(x, _mm_set1_epi8(0x1F)), x);
        const __m128i quote = _mm_cmpeq_epi8(x, _mm_set1_epi8('"'));
        const __m128i backslash = _mm_cmpeq_epi8(x, _mm_set1_epi8('\\'));
        return static_cast<uint32_t>(_mm_movemask_epi8(_mm_or_si128(below_space, _mm_or_si128(quote, backslash))));
    }
    static uint32_t first(uint32_t mask) { return static_cast<uint32_t>(__builtin_ctz(mask)); }
};
#endif

// The walk of a char[N] field's text, shared by its measure and its writing.
// The text is read in blocks of W bytes while a whole block lies inside the
// field: each block goes to out.block() (the writer copies it whole and
// resumes at its first special byte: the buffer has kSlack bytes beyond the
// text for it), its plain bytes to out.plain(), a byte that needs an escape
// to out.escape().  True when the text ended at its NUL.
template <uint32_t W, class Out>
__attribute__((always_inline)) inline bool walk_blocks(const unsigned char *p, uint32_t size, uint32_t &i, Out &out) {
    while (i + W <= size) {
        const Block<W> b(p + i);
        out.block(b);
        const auto m = b.special();
        if (m == 0) {
            i += W;
            out.plain(W);
            continue;
        }
        const uint32_t k = Block<W>::first(m);
        i += k;
        out.plain(k);
        if (p[i] == '\0') return true;
        out.escape(p[i++]);
    }
    return false;
}

// The whole text: sixteen bytes at a time where the machine has SSE2, then
// eight, then the bytes of a rest shorter than eight one by one (out.byte()).
template <class Out>
__attribute__((always_inline)) inline void walk_string(const char *s, uint32_t size, Out &out) {
    const unsigned char *p = reinterpret_cast<const unsigned char *>(s);
    uint32_t i = 0;
#if defined(__SSE2__)
    if (walk_blocks<16>(p, size, i, out)) return;
#endif
    if (walk_blocks<8>(p, size, i, out)) return;
    for (; i < size && p[i] != '\0'; ++i) out.byte(p[i]);
}

// Counts the bytes of a text inside its quotes.
struct Measure {
    size_t bytes = 0;
    template <class B>
    void block(const B &) {}
    void plain(uint32_t k) { bytes += k; }
    void escape(unsigned char c) { bytes += kEscape.bytes[c]; }
    void byte(unsigned char c) { bytes += kEscape.bytes[c]; }
};

// Bytes of a char[N] field's text inside its quotes.
__attribute__((always_inline)) inline size_t string_bytes(const char *s, uint32_t size) {
    Measure m;
    walk_string(s, size, m);
    return m.bytes;
}

// Bytes of the strings of one record beyond their quotes.
size_t record_string_bytes(const TypeDesc *d, const char *rec) {
    size_t bytes = 0;
    for (uint64_t rows = d->string_fields; rows != 0; rows &= rows - 1) {
        const Field &f = d->fields[__builtin_ctzll(rows)];
        bytes += string_bytes(rec + f.offset, f.size);
    }
    return bytes;
}

inline char *put_escape(char *o, unsigned char c) {
    static const char kHex[] = "0123456789abcdef";
    *o++ = '\\';
    *o++ = kEscape.letter[c];
    if (kEscape.letter[c] == 'u') {
        *o++ = '0';
        *o++ = '0';
        *o++ = kHex[c >> 4];
        *o++ = kHex[c & 15];
    }
    return o;
}

// Writes a text inside its quotes.
struct Copy {
    char *o;
    template <class B>
    void block(const B &b) { b.store(o); }
    void plain(uint32_t k) { o += k; }
    void escape(unsigned char c) { o = put_escape(o, c); }
    void byte(unsigned char c) {
        if (kEscape.bytes[c] == 1) *o++ = static_cast<char>(c);
        else o = put_escape(o, c);
    }
};

// A char[N] field's text in quotes.
__attribute__((always_inline)) inline char *put_string(char *o, const char *s, uint32_t size) {
    *o++ = '"';
    Copy c{o};
    walk_string(s, size, c);
    *c.o++ = '"';
    return c.o;
}

// Room left beyond the text for the whole-word copies of put_string.
constexpr size_t kSlack = 16;

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
constexpr uint32_t kPow10[10] = {0, 10, 100, 1000, 10000, 100000, 1000000, 10000000, 100000000, 1000000000};

inline char *put_u32(char *o, uint32_t v) {
    if (v < 10) {
        *o = static_cast<char>('0' + v);
        return o + 1;
    }
    if (v < 100) {
        std::memcpy(o, kDigits.d + 2 * v, 2);
        return o + 2;
    }
    // Decimal digits: log10 from the bit length, corrected by one compare.
    const uint32_t t = ((32 - static_cast<uint32_t>(__builtin_clz(v | 1))) * 1233) >> 12;
    const uint32_t n = t + 1 - (v < kPow10[t] ? 1 : 0);
    char *end = o + n;
    char *p = end;
    while (v >= 100) {
        const uint32_t q = v / 100;
        p -= 2;
        std::memcpy(p, kDigits.d + 2 * (v - 100 * q), 2);
        v = q;
    }
    if (v >= 10) std::memcpy(p - 2, kDigits.d + 2 * v, 2);
    else p[-1] = static_cast<char>('0' + v);
    return end;
}

inline char *put_i32(char *o, int32_t v) {
    if (v >= 0) return put_u32(o, static_cast<uint32_t>(v));
    *o++ = '-';
    return put_u32(o, 0u - static_cast<uint32_t>(v));
}

// A key of n bytes (0 < n < 256: a member's name; keys are short): whole
// words, the last one overlapping the one before; below four bytes the
// first, middle and last byte, which cover one to three bytes.
inline char *put_key(char *o, const char *k, uint32_t n) {
    if (n > 16) {
        uint32_t i = 0;
        for (; i + 16 < n; i += 16) std::memcpy(o + i, k + i, 16);
        std::memcpy(o + n - 16, k + n - 16, 16);
    } else if (n >= 8) {
        std::memcpy(o, k, 8);
        std::memcpy(o + n - 8, k + n - 8, 8);
    } else if (n >= 4) {
        std::memcpy(o, k, 4);
        std::memcpy(o + n - 4, k + n - 4, 4);
    } else {
        o[0] = k[0];
        o[n / 2] = k[n / 2];
        o[n - 1] = k[n - 1];
    }
    return o + n;
}

// One record's object; kDepth is that of its members (1 or 2).  Each member
// is written as its key, '":' (and a tab), its value and the separator that
// leads to the next key: ',"', or indented ',\n', the tabs and '"'.  After
// the last member that separator is taken back and the object closed.
template <bool kFormatted, int kDepth>
char *put_record(char *o, const TypeDesc *d, const char *rec) {
    // Separators and the colon are stored as whole words of 2, 4 or 8 bytes
    // of which the first kSepLen (or 2 or 3) count: what lies beyond is
    // written over by what follows, or falls into the buffer's slack.
    constexpr char kSep[2][8] = {{',', '\n', '\t', '"', 0, 0, 0, 0}, {',', '\n', '\t', '\t', '"', 0, 0, 0}};
    constexpr size_t kSepLen = kFormatted ? 3 + kDepth : 2;
    // Every record has a field (a C struct has a member; the tables are
    // checked against the structs).
    if (kFormatted) {
        // "{" and the separator without its comma.
        *o++ = '{';
        std::memcpy(o, kSep[kDepth - 1] + 1, 7);
        o += kSepLen - 1;
    } else {
        std::memcpy(o, "{\"", 2);
        o += 2;
    }
    const Field *f = d->fields, *end = d->fields + d->field_count;
    for (; f != end; ++f) {
        const char *at = rec + f->offset;
        o = put_key(o, f->key, f->key_len);
        if (kFormatted) {
            std::memcpy(o, "\":\t", 4);  // the NUL is written over by the value
            o += 3;
        } else {
            std::memcpy(o, "\":", 2);
            o += 2;
        }
        // The integer kinds first, and the common ones before the others.
        const Kind kind = f->kind;
        if (kind == Kind::U32) {
            uint32_t v;
            std::memcpy(&v, at, sizeof v);
            o = put_u32(o, v);
        } else if (kind == Kind::I32) {
            int32_t v;
            std::memcpy(&v, at, sizeof v);
            o = put_i32(o, v);
        } else if (kind == Kind::Str) {
            o = put_string(o, at, f->size);
        } else if (kind == Kind::U16) {
            uint16_t v;
            std::memcpy(&v, at, sizeof v);
            o = put_u32(o, v);
        } else {  // Kind::U32List
            *o++ = '[';
            for (uint32_t k = 0; k < f->size / 4; ++k) {
                if (k > 0) {
                    *o++ = ',';
                    if (kFormatted) *o++ = ' ';
                }
                uint32_t v;
                std::memcpy(&v, at + 4 * k, sizeof v);
                o = put_u32(o, v);
            }
            *o++ = ']';
        }
        if (kFormatted) std::memcpy(o, kSep[kDepth - 1], 8);
        else std::memcpy(o, ",\"", 2);
        o += kSepLen;
    }
    o -= kSepLen;
    if (kFormatted) {
        *o++ = '\n';
        if (kDepth == 2) *o++ = '\t';
    }
    *o++ = '}';
    return o;
}

template <bool kFormatted>
char *put_records(char *o, const TypeDesc *d, const char *base, uint32_t count) {
    *o++ = '[';
    for (uint32_t i = 0; i < count; ++i) {
        if (i > 0) {
            *o++ = ',';
            if (kFormatted) *o++ = ' ';
        }
        o = put_record<kFormatted, 2>(o, d, base + static_cast<size_t>(i) * d->size);
    }
    *o++ = ']';
    return o;
}

}  // namespace

char *write_text(const TypeDesc *d, const void *recs, uint32_t count, bool as_array, bool formatted) {
    const char *base = static_cast<const char *>(recs);
    if (!as_array) {
        // One record: its text is bounded by its table (below 2^32 bytes
        // with every string escaped whole), no overflow to check.
        size_t size = 1 + kSlack + (formatted ? d->text_bytes_formatted : d->text_bytes);
        if (d->string_fields != 0) size += record_string_bytes(d, base);
        char *text = static_cast<char *>(cJSON_malloc(size));
        if (text == nullptr) return nullptr;
        char *end = formatted ? put_record<true, 1>(text, d, base) : put_record<false, 1>(text, d, base);
        *end = '\0';
        return text;
    }
    // Room: each record's longest text with empty strings (an element of an
    // array is one level deeper: a tab more per member and before "}"), its
    // strings' escaped bytes, the array's brackets and separators, the NUL
    // and the slack of the string copies.
    size_t per_record = formatted ? d->text_bytes_formatted + d->field_count + 1 : d->text_bytes;
    size_t size = 1 + kSlack + 2 + static_cast<size_t>(count - 1) * (formatted ? 2 : 1);
    // A size past size_t (on a 32-bit target) is refused as memory is.
    size_t fixed;
    bool overflow = __builtin_mul_overflow(per_record, static_cast<size_t>(count), &fixed) ||
                    __builtin_add_overflow(size, fixed, &size);
    if (d->string_fields != 0)
        for (uint32_t i = 0; i < count && !overflow; ++i)
            overflow = __builtin_add_overflow(size, record_string_bytes(d, base + static_cast<size_t>(i) * d->size),
                                              &size);
    char *text = overflow ? nullptr : static_cast<char *>(cJSON_malloc(size));
    if (text == nullptr) return nullptr;
    char *end = formatted ? put_records<true>(text, d, base, count) : put_records<false>(text, d, base, count);
    *end = '\0';
    return text;
}

}  // namespace s2j
