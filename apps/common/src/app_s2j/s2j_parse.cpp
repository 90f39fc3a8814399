// s2j_parse.cpp - decimal text of integer items, and parsing that marks every
// number of a text as an integer item or not (see s2j_int.cpp for the
// representation).
#include <cstring>

#include "s2j_internal.h"

namespace s2j {

// Decimal text of v into buf (at least 21 bytes); returns buf.
char *format_int(int64_t v, char *buf) {
    char tmp[24];
    int n = 0;
    uint64_t u = v < 0 ? 0 - static_cast<uint64_t>(v) : static_cast<uint64_t>(v);
    do {
        tmp[n++] = static_cast<char>('0' + u % 10);
        u /= 10;
    } while (u != 0);
    char *p = buf;
    if (v < 0) *p++ = '-';
    while (n > 0) *p++ = tmp[--n];
    *p = '\0';
    return buf;
}

namespace {

// Parses an optional '-' and 1..n digits, exactly, into *out.  False when the
// text is not of that form or the value is outside the int64_t range.
bool parse_int(const char *s, size_t n, int64_t *out) {
    size_t i = 0;
    bool neg = false;
    if (i < n && s[i] == '-') {
        neg = true;
        ++i;
    }
    if (i == n) return false;
    const uint64_t limit = neg ? (uint64_t{1} << 63) : (uint64_t{1} << 63) - 1;
    uint64_t u = 0;
    for (; i < n; ++i) {
        unsigned d = static_cast<unsigned char>(s[i]) - '0';
        if (d > 9) return false;
        if (u > (limit - d) / 10) return false;
        u = u * 10 + d;
    }
    *out = neg ? static_cast<int64_t>(0 - u) : static_cast<int64_t>(u);
    return true;
}

}  // namespace

int saturate_int(int64_t v) {
    return v > INT32_MAX ? INT32_MAX : v < INT32_MIN ? INT32_MIN : static_cast<int>(v);
}

namespace {

// Turns a number item into a raw integer item holding v.  False when the
// text cannot be allocated (the item is then unchanged).
bool make_raw(cJSON *item, int64_t v) {
    char buf[24];
    format_int(v, buf);
    size_t len = std::strlen(buf) + 1;
    char *text = static_cast<char *>(cJSON_malloc(len));
    if (text == nullptr) return false;
    std::memcpy(text, buf, len);
    item->type = (item->type & ~0xFF) | cJSON_Raw | kIntMark;
    item->valuestring = text;
    item->valuedouble = static_cast<double>(v);
    item->valueint = saturate_int(v);
    return true;
}

}  // namespace

int64_t raw_int_value(const cJSON *item) {
    int64_t v = 0;
    const char *s = item->valuestring;
    if (s != nullptr && parse_int(s, std::strlen(s), &v)) return v;
    return 0;
}

// ---- Marking parsed text -----------------------------------------------
namespace {

bool is_number_char(char c) {
    return (c >= '0' && c <= '9') || c == '+' || c == '-' || c == 'e' || c == 'E' || c == '.';
}

// Byte classes between values: what ends a run of bytes to pass over.
enum : uint8_t { kPass = 0, kQuote = 1, kNumber = 2 };

struct Classes {
    uint8_t of[256];
};

constexpr Classes make_classes() {
    Classes c{};
    c.of[static_cast<uint8_t>('"')] = kQuote;
    c.of[static_cast<uint8_t>('-')] = kNumber;
    for (char d = '0'; d <= '9'; ++d) c.of[static_cast<uint8_t>(d)] = kNumber;
    return c;
}

constexpr Classes kClasses = make_classes();

// Finds the next number literal at or after p, skipping strings (and so keys)
// as cJSON does.  The text up to the literal is JSON that cJSON has just
// parsed and the caller knows that one more number is there, so strings are
// closed and the scan needs no bound before the literal; the literal itself
// may end the text.  The literal is the whole run of number characters: the
// packaged cJSON reads a number of any length, and where a parser reads fewer
// characters the rest fails the parse inside a container and ends the text at
// the top level, so taking the whole run never moves a later literal onto the
// wrong item (a cap at 63 did, for a longer number before it).
void next_number(const char *&p, const char *end, const char **start, size_t *len) {
    for (;;) {
        uint8_t c;
        while ((c = kClasses.of[static_cast<uint8_t>(*p)]) == kPass) ++p;
        if (c == kNumber) break;
        // A string: its closing quote is the first quote not escaped, that
        // is, not preceded by an odd run of backslashes.
        ++p;
        for (;;) {
            const char *q = static_cast<const char *>(std::memchr(p, '"', static_cast<size_t>(end - p)));
            const char *b = q;
            while (b > p && b[-1] == '\\') --b;
            p = q + 1;
            if (((q - b) & 1) == 0) break;
        }
    }
    *start = p;
    size_t n = 0;
    while (p < end && is_number_char(*p)) {
        ++p;
        ++n;
    }
    *len = n;
}

// Whether the literal that cJSON's strtod() reads from s is an integer: an
// optional '-' and digits, not followed by a fraction or an exponent.
bool integer_literal(const char *s, size_t n, int64_t *value) {
    size_t i = (n > 0 && s[0] == '-') ? 1 : 0;
    size_t digits_start = i;
    while (i < n && s[i] >= '0' && s[i] <= '9') ++i;
    if (i == digits_start) return false;
    if (i < n) {
        char c = s[i];
        if (c == '.') return false;
        if (c == 'e' || c == 'E') {
            size_t j = i + 1;
            if (j < n && (s[j] == '+' || s[j] == '-')) ++j;
            if (j < n && s[j] >= '0' && s[j] <= '9') return false;  // a real exponent
        }
    }
    return parse_int(s, i, value);
}

}  // namespace

cJSON *parse_marked(const char *text, size_t len, bool with_len) {
    cJSON *root = with_len ? cJSON_ParseWithLength(text, len) : cJSON_Parse(text);
    if (root == nullptr) return nullptr;
    const char *p = text;
    const char *end = with_len ? text + len : text + std::strlen(text);

    // Pre-order walk: cJSON builds children in text order, so the n-th
    // number item of the walk is the n-th number literal of the text.
    cJSON *stack[CJSON_NESTING_LIMIT + 2];
    size_t depth = 0;
    stack[depth++] = root;
    while (depth > 0) {
        cJSON *item = stack[--depth];
        if (item->next != nullptr && item != root) stack[depth++] = item->next;
        if (item->child != nullptr) stack[depth++] = item->child;
        if (type_of(item) != cJSON_Number) continue;
        const char *lit = nullptr;
        size_t lit_len = 0;
        int64_t v = 0;
        next_number(p, end, &lit, &lit_len);
        if (!integer_literal(lit, lit_len, &v)) {
            item->type |= kNotIntMark;
            continue;
        }
        if (v >= kRawThreshold || v <= -kRawThreshold) {
            if (!make_raw(item, v)) {
                cJSON_Delete(root);
                return nullptr;
            }
        } else {
            // The exact value, also for "-0", which must print as 0.
            item->type |= kIntMark;
            item->valuedouble = static_cast<double>(v);
            item->valueint = saturate_int(v);
        }
    }
    return root;
}


}  // namespace s2j
