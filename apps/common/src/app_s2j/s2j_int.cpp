// s2j_int.cpp - 64-bit integer items (see s2j_int.h for their representation):
// decimal text, the parser that marks every number of a text as an integer
// item or not, and the three integer operations that the library adds to
// cJSON.
#include <cstdlib>
#include <cstring>

#include "app_s2j.h"
#include "s2j_export.h"
#include "s2j_int.h"

namespace s2j {

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

bool raw_int(const cJSON *item, int64_t *value) {
    int64_t v = 0;
    const char *s = item->valuestring;
    if (s != nullptr) parse_int(s, std::strlen(s), &v);
    const double d = item->valuedouble;
    if (d == static_cast<double>(v)) {
        *value = v;  // valuedouble is still the double of the text
        return true;
    }
    if (!is_integral(d)) return false;
    *value = static_cast<int64_t>(d);
    return true;
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

// Moves p to the next number literal, skipping strings (and so keys) as cJSON
// does.  The text up to the literal is JSON that cJSON has just parsed and
// the caller knows that one more number is there, so strings are closed and
// the scan needs no bound before the literal.
void skip_to_number(const char *&p, const char *end) {
    for (;;) {
        uint8_t c;
        while ((c = kClasses.of[static_cast<uint8_t>(*p)]) == kPass) ++p;
        if (c == kNumber) return;
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
}

}  // namespace

// Reads the number literal at p, moving p past it, in one pass: whether it is
// an integer as cJSON's strtod() reads it (an optional '-' and digits, not
// followed by a fraction or an exponent, within the int64_t range) and then
// its exact value.  The literal is the whole run of number characters: the
// packaged cJSON reads a number of any length, and where a parser reads fewer
// characters the rest fails the parse inside a container and ends the text
// at the top level, so taking the whole run never moves a later literal onto
// the wrong item, however long the number before it.  The literal may end
// the text.
bool read_literal(const char *&p, const char *end, int64_t *value) {
    const bool neg = *p == '-';
    if (neg) ++p;
    const char *digits = p;
    uint64_t u = 0;
    for (unsigned d; p < end && (d = static_cast<unsigned char>(*p) - '0') <= 9; ++p) u = u * 10 + d;
    // Up to 19 digits cannot wrap 64 bits; a longer run (leading zeros, or
    // a value out of range) is summed again with overflow checks.
    bool overflow = false;
    if (p - digits > 19) {
        u = 0;
        for (const char *q = digits; q < p && !overflow; ++q)
            overflow = __builtin_mul_overflow(u, 10u, &u) ||
                       __builtin_add_overflow(u, static_cast<unsigned>(*q - '0'), &u);
    }
    bool integer = p != digits;
    if (p < end && integer) {
        if (*p == '.') {
            integer = false;
        } else if (*p == 'e' || *p == 'E') {
            const char *x = p + 1;
            if (x < end && (*x == '+' || *x == '-')) ++x;
            if (x < end && static_cast<unsigned>(static_cast<unsigned char>(*x) - '0') <= 9) integer = false;
        }
    }
    while (p < end && is_number_char(*p)) ++p;
    const uint64_t limit = neg ? (uint64_t{1} << 63) : (uint64_t{1} << 63) - 1;
    if (!integer || overflow || u > limit) return false;
    *value = neg ? static_cast<int64_t>(0 - u) : static_cast<int64_t>(u);
    return true;
}

// Marks a parsed number that is not an integer literal, with the fingerprint
// of its value; out of line, as such numbers are rare.
__attribute__((noinline)) void mark_not_int(cJSON *item) {
    item->type |= kNotIntMark | fingerprint(item->valuedouble);
}

namespace {

// Moves the walk's stack to the heap, with room for cJSON's deepest tree.
bool grow(cJSON ***stack, size_t *capacity, cJSON **local, size_t depth) {
    const size_t room = CJSON_NESTING_LIMIT + 8;
    if (*stack != local) return depth < *capacity;  // never short: cJSON nests no deeper
    cJSON **heap = static_cast<cJSON **>(std::malloc(room * sizeof *heap));
    if (heap == nullptr) return false;
    std::memcpy(heap, local, depth * sizeof *heap);
    *stack = heap;
    *capacity = room;
    return true;
}

}  // namespace

cJSON *parse_marked(const char *text, size_t len, bool with_len, const char **parse_end) {
    // cJSON_Parse and cJSON_ParseWithLength are these calls without the end
    // pointer; the end bounds the scan below without measuring the text.
    const char *end = nullptr;
    cJSON *root = with_len ? cJSON_ParseWithLengthOpts(text, len, &end, 0) : cJSON_ParseWithOpts(text, &end, 0);
    if (root == nullptr) return nullptr;
    if (parse_end != nullptr) *parse_end = end;
    const char *p = text;

    // Pre-order walk: cJSON builds children in text order, so the n-th
    // number item of the walk is the n-th number literal of the text.
    // The stack holds one pending sibling per level: a few dozen levels fit
    // on the stack of a small thread; a deeper document (cJSON allows 1000)
    // moves it to the heap once.
    cJSON *local[32];
    cJSON **stack = local;
    size_t capacity = sizeof local / sizeof local[0];
    size_t depth = 0;
    stack[depth++] = root;
    while (depth > 0) {
        cJSON *item = stack[--depth];
        // The sibling takes the place just freed; only a child deepens it.
        if (item->next != nullptr && item != root) stack[depth++] = item->next;
        if (item->child != nullptr) {
            if (depth == capacity && !grow(&stack, &capacity, local, depth)) {
                cJSON_Delete(root);
                return nullptr;
            }
            stack[depth++] = item->child;
        }
        if (type_of(item) != cJSON_Number) continue;
        int64_t v = 0;
        skip_to_number(p, end);
        if (!read_literal(p, end, &v)) {
            mark_not_int(item);
            continue;
        }
        if (v >= kRawThreshold || v <= -kRawThreshold) {
            if (!make_raw(item, v)) {
                if (stack != local) std::free(stack);
                cJSON_Delete(root);
                return nullptr;
            }
        } else {
            // cJSON's strtod() already holds the exact value below 10^15
            // (< 2^53), and its int; only "-0" must become 0, to print as 0.
            item->type |= kIntMark;
            if (v == 0) item->valuedouble = 0.0;
        }
    }
    if (stack != local) std::free(stack);
    return root;
}
}  // namespace s2j

// ---- The exported integer operations -------------------------------------
// The internal library takes the functions above from this file and these
// from the shared library, so that its users call the real exports.
#ifndef S2J_TABLES_ONLY

using s2j::kIntMark;
using s2j::kRawThreshold;

S2J_API cJSON *cJSON_CreateInt(int64_t num) {
    if (num >= kRawThreshold || num <= -kRawThreshold) {
        char buf[24];
        cJSON *item = cJSON_CreateRaw(s2j::format_int(num, buf));
        if (item == nullptr) return nullptr;
        item->type |= kIntMark;
        item->valuedouble = static_cast<double>(num);
        item->valueint = s2j::saturate_int(num);
        return item;
    }
    cJSON *item = cJSON_CreateNumber(static_cast<double>(num));
    if (item != nullptr) item->type |= kIntMark;
    return item;
}

S2J_API cJSON *cJSON_AddIntToObject(cJSON *object, const char *name, int64_t num) {
    if (object == nullptr || name == nullptr) return nullptr;
    cJSON *item = cJSON_CreateInt(num);
    if (item == nullptr) return nullptr;
    if (!cJSON_AddItemToObject(object, name, item)) {
        cJSON_Delete(item);
        return nullptr;
    }
    return item;
}

S2J_API cJSON_bool cJSON_IsInt(const cJSON *item) { return s2j::is_int(item) ? 1 : 0; }

#endif  // S2J_TABLES_ONLY
