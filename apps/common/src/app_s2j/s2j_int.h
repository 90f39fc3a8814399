// s2j_int.h - 64-bit integer items on cJSON: their representation, and the
// operations on it that the rest of the library uses (s2j_int.cpp holds the
// out-of-line ones, the marking parser and the three exported functions).
//
// cJSON keeps every number as a double (and a saturated int), which is exact
// only up to 2^53 and which cJSON_Print writes with "%1.15g" (10^15 comes out
// as "1e+15").  The library marks integer items with bits of `type` above
// cJSON's own flags (cJSON's type tests and printers look at the low byte
// only) and holds them in one of two forms:
//   |value| <  10^15   cJSON_Number | kIntMark; valuedouble is exact and
//                      cJSON prints it as plain digits;
//   |value| >= 10^15   cJSON_Raw | kIntMark; valuestring is the decimal text,
//                      which cJSON prints verbatim; valuedouble and valueint
//                      carry the nearest double and the saturated int for
//                      callers that read them.
// A number parsed from text that is not an integer literal (1.0, 1e2, a
// literal beyond the int64_t range) gets kNotIntMark, so that it is not an
// integer even though its value may be integral; the mark carries a
// fingerprint of the value it was made for (kFingerprintBits bits of `type`).
//
// An item is an integer when its current value is one.  A caller may change a
// number with cJSON's setters (cJSON_SetNumberValue writes valuedouble and
// valueint, never `type` or valuestring); the item then counts as an unmarked
// number with its new value would:
//   - a Number item is an integer when its value is integral and within the
//     int64_t range, unless it holds kNotIntMark and its value still has the
//     mark's fingerprint (kIntMark on a Number item records only how it was
//     made: its value decides);
//   - a raw integer item whose valuedouble is still the double of its text
//     has the text's exact value; once valuedouble is set to anything else,
//     valuedouble decides, as for a Number item.
// cJSON itself still prints a raw item's text and gives NaN for its number
// (cJSON_GetNumberValue tests the type byte), which the library cannot change.
// A value set that happens to share the mark's fingerprint (one in 2^17)
// keeps a not-integer mark.
#ifndef APP_S2J_INT_H
#define APP_S2J_INT_H

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "app_s2j.h"

namespace s2j {

inline constexpr int kIntMark = 1 << 12;     // an integer item
inline constexpr int kNotIntMark = 1 << 13;  // a parsed number that is not one
inline constexpr int kFingerprintShift = 14;  // the not-integer mark's fingerprint: bits 14 to 30
inline constexpr int kFingerprintBits = 17;
inline constexpr int kFingerprintMask = ((1 << kFingerprintBits) - 1) << kFingerprintShift;
inline constexpr int64_t kRawThreshold = 1000000000000000LL;  // 10^15: raw form from here
inline constexpr double kTwo63 = 9223372036854775808.0;

// Room for the decimal text of one 32-bit integer and its NUL.
inline constexpr uint32_t kIntTextSize = 12;

inline int type_of(const cJSON *item) { return item->type & 0xFF; }

// Decimal text of v into buf (at least 21 bytes); returns buf.
char *format_int(int64_t v, char *buf);
// The int nearest to v, as cJSON keeps in valueint.
int saturate_int(int64_t v);
// cJSON_IsInt() of a raw integer item, and its value when that holds: its
// text's exact value, or, once a setter has changed valuedouble, valuedouble.
bool raw_int(const cJSON *item, int64_t *value);

// The not-integer mark's fingerprint of a value, in place in `type`.
inline int fingerprint(double d) {
    uint64_t bits;
    std::memcpy(&bits, &d, sizeof bits);
    return static_cast<int>((bits * 0x9E3779B97F4A7C15u) >> (64 - kFingerprintBits)) << kFingerprintShift;
}

inline bool is_integral(double d) {
    if (!(d >= -kTwo63 && d < kTwo63)) return false;  // NaN fails too
    return static_cast<double>(static_cast<int64_t>(d)) == d;
}

// cJSON_IsInt() and, when it holds, the value in *value, of an item that is
// not null: what the readers ask, in one test.
inline bool int_of_item(const cJSON *item, int64_t *value) {
    const int t = item->type;
    const double d = item->valuedouble;
    // The usual case: a number without the not-integer mark whose value is a
    // whole number within int's range, and so its valueint (cJSON and its
    // setters keep valueint so).
    if ((t & (0xFF | kNotIntMark)) == cJSON_Number && static_cast<double>(item->valueint) == d) {
        *value = item->valueint;
        return true;
    }
    if ((t & 0xFF) == cJSON_Number) {
        if (!is_integral(d)) return false;
        *value = static_cast<int64_t>(d);
        return !(t & kNotIntMark) || (t & kFingerprintMask) != fingerprint(d);
    }
    return (t & 0xFF) == cJSON_Raw && (t & kIntMark) && raw_int(item, value);
}

// The same for any item; false for null.
inline bool int_of(const cJSON *item, int64_t *value) { return item != nullptr && int_of_item(item, value); }

// cJSON_IsInt(), for the library's own readers.
inline bool is_int(const cJSON *item) {
    int64_t v;
    return int_of(item, &v);
}

// Integer value of an item for which cJSON_IsInt() holds.
inline int64_t int_value(const cJSON *item) {
    int64_t v = 0;
    int_of(item, &v);
    return v;
}

// Parses text as cJSON_Parse (nul-terminated text) or cJSON_ParseWithLength
// (with_len, len bytes) does, then marks every number item as an integer
// item or not from its literal in the text.  Null when the text does not
// parse, or when memory for a raw integer's text runs out.  With parse_end,
// *parse_end receives where the document ends in the text.
cJSON *parse_marked(const char *text, size_t len, bool with_len, const char **parse_end = nullptr);
// Reads the number literal at p (a '-' or a digit), moving p past its run of
// number characters: true when it is an integer literal (no fraction, no
// exponent) within the int64_t range, with its value in *value.  The direct
// text reader classifies literals with it too.
bool read_literal(const char *&p, const char *end, int64_t *value);

// An integer member of an object in the caller's tree: an integer item under
// a copy of the key.  A member whose item cannot be made is left out.
inline void add_int_item(cJSON *obj, const char *key, int64_t v) { cJSON_AddIntToObject(obj, key, v); }

// An integer member of an object in a tree that is only printed and freed
// while the key and *ints live: a raw item under the constant key holding the
// decimal text, written at *ints and not owned by the item (*ints moves past
// the text; cJSON copies a raw item's text to the output instead of
// formatting a double through sprintf and checking it with sscanf).  A
// member whose item cannot be made is left out.
inline void add_int_text(cJSON *obj, const char *key, int64_t v, char **ints) {
    cJSON *item = cJSON_CreateNull();
    if (item == nullptr) return;
    char *text = *ints;
    *ints = format_int(v, text) + std::strlen(text) + 1;
    item->type = cJSON_Raw | cJSON_IsReference;  // the text is not the item's to free
    item->valuestring = text;
    cJSON_AddItemToObjectCS(obj, key, item);  // cannot fail: obj, key and item are non-null
}

}  // namespace s2j

#endif  // APP_S2J_INT_H
