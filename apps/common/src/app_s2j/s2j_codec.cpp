// s2j_codec.cpp - the table-driven record engines: emitter, reader, keyword
// readers and key matching over a type's field table.
#include <cstdlib>
#include <cstring>

#include "s2j_internal.h"

namespace s2j {

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
