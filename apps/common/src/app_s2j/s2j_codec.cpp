// s2j_codec.cpp - the cJSON integer layer and the table-driven record engines.
#include <cstdlib>
#include <cstring>

#include "s2j_internal.h"

// ---- Integer items on top of cJSON ----------------------------------------
//
// Representation.  cJSON keeps every number as a double (and a saturated int),
// which is exact only up to 2^53 and which cJSON_Print writes with "%1.15g"
// (10^15 comes out as "1e+15").  The library therefore marks integer items
// with a bit of `type` above cJSON's own flags (cJSON's type tests and
// printers look at the low byte only) and holds them in one of two forms:
//   |value| <  10^15   cJSON_Number | kIntMark; valuedouble is exact and
//                      cJSON prints it as plain digits;
//   |value| >= 10^15   cJSON_Raw | kIntMark; valuestring is the decimal text,
//                      which cJSON prints verbatim; valuedouble and valueint
//                      carry the nearest double and the saturated int for
//                      callers that read them.
// A number parsed by the library that is not an integer literal gets
// kNotIntMark, so that 1.0 or 1e2 in text is not an integer even though its
// value is integral.  Unmarked items come from plain cJSON; for them an
// integral value within the int64_t range counts as an integer.
namespace {

constexpr int kIntMark = 1 << 12;
constexpr int kNotIntMark = 1 << 13;
constexpr int64_t kRawThreshold = 1000000000000000LL;  // 10^15
constexpr double kTwo63 = 9223372036854775808.0;

int type_of(const cJSON *item) { return item->type & 0xFF; }

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

int saturate_int(int64_t v) {
    return v > INT32_MAX ? INT32_MAX : v < INT32_MIN ? INT32_MIN : static_cast<int>(v);
}

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

S2J_API cJSON *cJSON_CreateInt(int64_t num) {
    if (num >= kRawThreshold || num <= -kRawThreshold) {
        char buf[24];
        cJSON *item = cJSON_CreateRaw(format_int(num, buf));
        if (item == nullptr) return nullptr;
        item->type |= kIntMark;
        item->valuedouble = static_cast<double>(num);
        item->valueint = saturate_int(num);
        return item;
    }
    cJSON *item = cJSON_CreateNumber(static_cast<double>(num));
    if (item != nullptr) item->type |= kIntMark;
    return item;
}

S2J_API cJSON *cJSON_AddIntToObject(cJSON *object, const char *name,
                                                                              int64_t num) {
    if (object == nullptr || name == nullptr) return nullptr;
    cJSON *item = cJSON_CreateInt(num);
    if (item == nullptr) return nullptr;
    if (!cJSON_AddItemToObject(object, name, item)) {
        cJSON_Delete(item);
        return nullptr;
    }
    return item;
}

S2J_API cJSON_bool cJSON_IsInt(const cJSON *item) {
    if (item == nullptr) return 0;
    if (item->type & kNotIntMark) return 0;
    if (item->type & kIntMark) return type_of(item) == cJSON_Number || type_of(item) == cJSON_Raw;
    if (type_of(item) != cJSON_Number) return 0;
    double d = item->valuedouble;
    if (!(d >= -kTwo63 && d < kTwo63)) return 0;  // NaN fails too
    return static_cast<double>(static_cast<int64_t>(d)) == d;
}

namespace s2j {

int64_t int_value(const cJSON *item) {
    if (type_of(item) == cJSON_Raw) {
        int64_t v = 0;
        const char *s = item->valuestring;
        if (s != nullptr && parse_int(s, std::strlen(s), &v)) return v;
        return 0;
    }
    return static_cast<int64_t>(item->valuedouble);
}

// ---- Marking parsed text -----------------------------------------------
namespace {

bool is_number_char(char c) {
    return (c >= '0' && c <= '9') || c == '+' || c == '-' || c == 'e' || c == 'E' || c == '.';
}

// Finds the next number literal at or after p, skipping strings (and so keys)
// as cJSON does.  cJSON reads at most 63 characters of a number; so does this.
bool next_number(const char *&p, const char *end, const char **start, size_t *len) {
    while (p < end) {
        char c = *p;
        if (c == '"') {
            ++p;
            while (p < end && *p != '"') p += (*p == '\\' && p + 1 < end) ? 2 : 1;
            if (p < end) ++p;
            continue;
        }
        if (c == '-' || (c >= '0' && c <= '9')) {
            *start = p;
            size_t n = 0;
            while (p < end && n < 63 && is_number_char(*p)) {
                ++p;
                ++n;
            }
            *len = n;
            return true;
        }
        ++p;
    }
    return false;
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
        if (!next_number(p, end, &lit, &lit_len) || !integer_literal(lit, lit_len, &v)) {
            item->type |= kNotIntMark;
            continue;
        }
        if (v >= kRawThreshold || v <= -kRawThreshold) {
            if (!make_raw(item, v)) {
                cJSON_Delete(root);
                return nullptr;
            }
        } else {
            item->type |= kIntMark;
        }
    }
    return root;
}

// ---- Record engines -----------------------------------------------------

cJSON *emit_record(const TypeDesc *d, const void *rec) {
    cJSON *obj = cJSON_CreateObject();
    if (obj == nullptr) return nullptr;
    const char *base = static_cast<const char *>(rec);
    for (uint32_t i = 0; i < d->field_count; ++i) {
        const Field &f = d->fields[i];
        const char *at = base + f.offset;
        switch (f.kind) {
            case Kind::I32: {
                int32_t v;
                std::memcpy(&v, at, sizeof v);
                cJSON_AddIntToObject(obj, f.key, v);
                break;
            }
            case Kind::U32: {
                uint32_t v;
                std::memcpy(&v, at, sizeof v);
                cJSON_AddIntToObject(obj, f.key, v);
                break;
            }
            case Kind::U16: {
                uint16_t v;
                std::memcpy(&v, at, sizeof v);
                cJSON_AddIntToObject(obj, f.key, v);
                break;
            }
            case Kind::Str:
                if (std::memchr(at, '\0', f.size) != nullptr) {
                    cJSON_AddStringToObject(obj, f.key, at);
                } else {
                    // All N bytes are text: emit them whole through a terminated
                    // copy.  Without memory the member is left out (a null
                    // string adds nothing) and the record is still emitted.
                    char *copy = static_cast<char *>(std::malloc(f.size + 1));
                    if (copy != nullptr) {
                        std::memcpy(copy, at, f.size);
                        copy[f.size] = '\0';
                    }
                    cJSON_AddStringToObject(obj, f.key, copy);
                    std::free(copy);
                }
                break;
            case Kind::U32List: {
                cJSON *list = cJSON_CreateArray();
                if (list == nullptr) break;  // the key is left out
                for (uint32_t k = 0; k < f.size / 4; ++k) {
                    uint32_t v;
                    std::memcpy(&v, at + 4 * k, sizeof v);
                    cJSON_AddItemToArray(list, cJSON_CreateInt(v));  // a null item is not appended
                }
                if (!cJSON_AddItemToObject(obj, f.key, list)) cJSON_Delete(list);
                break;
            }
        }
    }
    return obj;
}

namespace {

void store_u32(char *at, const cJSON *m) {
    uint32_t v = static_cast<uint32_t>(static_cast<uint64_t>(int_value(m)));
    std::memcpy(at, &v, sizeof v);
}

// snprintf(at, size, "%s", text) without the formatting machinery.
void store_string(char *at, uint32_t size, const cJSON *m) {
    const char *s = m->valuestring != nullptr ? m->valuestring : "";
    size_t n = strnlen(s, size - 1);
    std::memcpy(at, s, n);
    at[n] = '\0';
}

// One integer list: entries stored by position, non-integers skipped; fails
// when the item has no children or none of them is an integer.
bool read_list(char *at, uint32_t size, const cJSON *m) {
    bool stored = false;
    uint32_t capacity = size / 4;
    uint32_t i = 0;
    for (const cJSON *c = m->child; c != nullptr && i < capacity; c = c->next, ++i) {
        if (!cJSON_IsInt(c)) continue;
        store_u32(at + 4 * i, c);
        stored = true;
    }
    return stored;
}

bool read_field(const Field &f, char *at, const cJSON *m) {
    switch (f.kind) {
        case Kind::I32:
        case Kind::U32:
            if (!cJSON_IsInt(m)) return false;
            store_u32(at, m);
            return true;
        case Kind::U16: {
            if (!cJSON_IsInt(m)) return false;
            uint16_t v = static_cast<uint16_t>(static_cast<uint64_t>(int_value(m)));
            std::memcpy(at, &v, sizeof v);
            return true;
        }
        case Kind::Str:
            if (!cJSON_IsString(m)) return false;
            store_string(at, f.size, m);
            return true;
        case Kind::U32List:
            return read_list(at, f.size, m);
    }
    return false;
}

// A key field as its keyword record holds it: a string key is char[64].
Field keyword_field(const Key &k, uint32_t offset) {
    Field f = k.field;
    f.offset = offset;
    if (f.kind == Kind::Str) f.size = kKeyStringSize;
    return f;
}

bool read_key(const Key &k, char *keyword, uint32_t offset, const cJSON *json) {
    Field f = keyword_field(k, offset);
    return read_field(f, keyword + f.offset, cJSON_GetObjectItem(json, f.key));
}

}  // namespace

int read_record(const TypeDesc *d, void *rec, const cJSON *json, bool strict) {
    char *base = static_cast<char *>(rec);
    for (uint32_t i = 0; i < d->field_count; ++i) {
        const Field &f = d->fields[i];
        // One lookup stands for cJSON_HasObjectItem + cJSON_GetObjectItem:
        // both find the first member whose key matches without regard to case.
        const cJSON *m = cJSON_GetObjectItem(json, f.key);
        if (m == nullptr) {
            if (strict) return 0;
            continue;
        }
        if (!read_field(f, base + f.offset, m)) return 0;
    }
    return 1;
}

int read_keys(const TypeDesc *d, void *keyword, const cJSON *json) {
    for (uint32_t i = 0; i < d->key_count; ++i)
        if (!read_key(d->keys[i], static_cast<char *>(keyword), d->keys[i].keyword_offset, json)) return 0;
    return 1;
}

int read_first_key(const TypeDesc *d, void *out, const cJSON *json) {
    return read_key(d->keys[0], static_cast<char *>(out), 0, json) ? 1 : 0;
}

bool keys_match(const TypeDesc *d, const void *rec, const void *keyword) {
    const char *r = static_cast<const char *>(rec);
    const char *kw = static_cast<const char *>(keyword);
    for (uint32_t i = 0; i < d->key_count; ++i) {
        const Key &k = d->keys[i];
        const char *a = r + k.field.offset;
        const char *b = kw + k.keyword_offset;
        if (k.field.kind != Kind::Str) {
            if (std::memcmp(a, b, 4) != 0) return false;
            continue;
        }
        // strncmp(a, b, 64) == 0, reading no further than the record's field:
        // a field without a NUL ends where its storage ends.
        uint32_t n = k.field.size < kKeyStringSize ? k.field.size : kKeyStringSize;
        uint32_t j = 0;
        for (; j < n; ++j) {
            if (a[j] != b[j]) return false;
            if (a[j] == '\0') break;
        }
        if (j == n && n < kKeyStringSize && b[n] != '\0') return false;
    }
    return true;
}

}  // namespace s2j
