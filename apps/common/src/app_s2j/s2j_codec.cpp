// s2j_codec.cpp - the table-driven record engines: emitter, reader, keyword
// readers and key matching over a type's field table.
#include <cctype>
#include <cstdlib>
#include <cstring>

#include "s2j_codec.h"
#include "s2j_int.h"
#include "s2j_keys.h"

namespace s2j {

// ---- Record engines -----------------------------------------------------

namespace {

// What an emitted tree is for (see emit_record() and emit_record_for_print()).
enum class TreeUse : uint8_t { Caller, PrintOnly };

// A string member whose text is terminated within the field.
void add_string(cJSON *obj, const char *key, const char *text, TreeUse use) {
    if (use == TreeUse::Caller) {
        cJSON_AddStringToObject(obj, key, text);
        return;
    }
    cJSON *item = cJSON_CreateStringReference(text);
    if (item != nullptr) cJSON_AddItemToObjectCS(obj, key, item);
}

// An integer member (ints: where a print-only tree's texts go).
void add_integer(cJSON *obj, const char *key, int64_t v, TreeUse use, char **ints) {
    if (use == TreeUse::Caller)
        add_int_item(obj, key, v);
    else
        add_int_text(obj, key, v, ints);
}

cJSON *emit(const TypeDesc *d, const void *rec, TreeUse use, char **ints) {
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
                add_integer(obj, f.key, v, use, ints);
                break;
            }
            case Kind::U32: {
                uint32_t v;
                std::memcpy(&v, at, sizeof v);
                add_integer(obj, f.key, v, use, ints);
                break;
            }
            case Kind::U16: {
                uint16_t v;
                std::memcpy(&v, at, sizeof v);
                add_integer(obj, f.key, v, use, ints);
                break;
            }
            case Kind::Str:
                if (std::memchr(at, '\0', f.size) != nullptr) {
                    add_string(obj, f.key, at, use);
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

}  // namespace

cJSON *emit_record(const TypeDesc *d, const void *rec) { return emit(d, rec, TreeUse::Caller, nullptr); }

cJSON *emit_record_for_print(const TypeDesc *d, const void *rec, char **ints) {
    return emit(d, rec, TreeUse::PrintOnly, ints);
}

namespace {

void store_u32(char *at, int64_t value) {
    uint32_t v = static_cast<uint32_t>(static_cast<uint64_t>(value));
    std::memcpy(at, &v, sizeof v);
}

// snprintf(at, size, "%s", text) without the formatting machinery.
void store_string(char *at, uint32_t size, const cJSON *m) {
    const char *s = m->valuestring != nullptr ? m->valuestring : "";
    // The whole length, then cut: the text is cJSON's own, NUL-terminated,
    // and already read once by its parser.
    size_t n = std::strlen(s);
    if (n > size - 1) n = size - 1;
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
        int64_t v;
        if (!int_of_item(c, &v)) continue;
        store_u32(at + 4 * i, v);
        stored = true;
    }
    return stored;
}

// m is not null.
bool read_field(const Field &f, char *at, const cJSON *m) {
    switch (f.kind) {
        case Kind::I32:
        case Kind::U32: {
            int64_t v;
            if (!int_of_item(m, &v)) return false;
            store_u32(at, v);
            return true;
        }
        case Kind::U16: {
            int64_t v;
            if (!int_of_item(m, &v)) return false;
            uint16_t low = static_cast<uint16_t>(static_cast<uint64_t>(v));
            std::memcpy(at, &low, sizeof low);
            return true;
        }
        case Kind::Str:
            if (!cJSON_IsString(m)) return false;
            store_string(at, f.size, m);
            return true;
        case Kind::U32List:  // read below
            break;
    }
    return read_list(at, f.size, m);
}

// Reads the member of json that a key field names into at, as the keyword
// record holds the field (keyword_field()).
bool read_key(const Key &k, char *at, const cJSON *json) {
    const Field f = keyword_field(k);
    const cJSON *m = cJSON_GetObjectItem(json, f.key);
    return m != nullptr && read_field(f, at, m);
}

}  // namespace

namespace {

uint32_t key_hash(const char *s) {
    uint32_t h = 2166136261u;
    for (; *s != '\0'; ++s) h = (h ^ static_cast<uint32_t>(std::tolower(static_cast<unsigned char>(*s)))) * 16777619u;
    return h;
}

// Which field a member name belongs to, for the members that do not come in
// field order: an open-addressed table of the keys, hashed after tolower()
// like the comparison, built on the first such member and kept for the rest
// of the call.
class KeyIndex {
public:
    explicit KeyIndex(const TypeDesc *d) : d_(d) {}

    // The field whose key equals name, or -1.
    int find(const char *name) {
        if (!built_) build();
        for (uint32_t h = key_hash(name) & kMask;; h = (h + 1) & kMask) {
            int f = slot_[h] - 1;
            if (f < 0 || same_key(name, d_->fields[f].key)) return f;
        }
    }

private:
    static constexpr uint32_t kSlots = 2 * kMaxFields;  // at most half full
    static constexpr uint32_t kMask = kSlots - 1;

    void build() {
        std::memset(slot_, 0, sizeof slot_);
        for (uint32_t f = 0; f < d_->field_count; ++f) {
            uint32_t h = key_hash(d_->fields[f].key) & kMask;
            while (slot_[h] != 0) h = (h + 1) & kMask;
            slot_[h] = static_cast<uint8_t>(f + 1);
        }
        built_ = true;
    }

    const TypeDesc *d_;
    bool built_ = false;
    uint8_t slot_[kSlots];
};

static_assert(kMaxFields < 255, "field numbers are kept in bytes");

int read_record_with(const TypeDesc *d, KeyIndex &index, void *rec, const cJSON *json, bool strict) {
    char *base = static_cast<char *>(rec);
    // One walk over the members finds, for every field, the first member
    // whose name equals its key without regard to case - the member that
    // cJSON_GetObjectItem would return (no two keys of a table are equal but
    // for case, so a member is the match of one field at most).  Members usually come in field order,
    // so the field after the last one matched is tried first.
    const cJSON *match[kMaxFields];
    const uint32_t n = d->field_count;
    std::memset(match, 0, n * sizeof match[0]);
    if (json != nullptr) {
        uint32_t next = 0;
        for (const cJSON *m = json->child; m != nullptr; m = m->next) {
            if (m->string == nullptr) continue;  // array elements have no name
            int f;
            if (next < n && same_key(m->string, d->fields[next].key))
                f = static_cast<int>(next);
            else if ((f = index.find(m->string)) < 0)
                continue;
            if (match[f] == nullptr) match[f] = m;
            next = static_cast<uint32_t>(f) + 1;
        }
    }
    // Then the fields in table order, exactly as one lookup per field would.
    for (uint32_t i = 0; i < n; ++i) {
        const Field &f = d->fields[i];
        if (match[i] == nullptr) {
            if (strict) return 0;
            continue;
        }
        if (!read_field(f, base + f.offset, match[i])) return 0;
    }
    return 1;
}

}  // namespace

int read_record(const TypeDesc *d, void *rec, const cJSON *json, bool strict) {
    KeyIndex index(d);
    return read_record_with(d, index, rec, json, strict);
}

int read_records(const TypeDesc *d, void *arr, uint32_t count, const cJSON *first) {
    KeyIndex index(d);
    char *base = static_cast<char *>(arr);
    const cJSON *item = first;
    for (uint32_t i = 0; i < count; ++i, item = item->next)
        if (!read_record_with(d, index, base + static_cast<size_t>(i) * d->size, item, false))
            return static_cast<int>(i);
    return -1;
}

int read_keys(const TypeDesc *d, void *keyword, const cJSON *json) {
    for (uint32_t i = 0; i < d->key_count; ++i)
        if (!read_key(d->keys[i], static_cast<char *>(keyword) + d->keys[i].keyword_offset, json)) return 0;
    return 1;
}

int read_first_key(const TypeDesc *d, void *out, const cJSON *json) {
    return read_key(d->keys[0], static_cast<char *>(out), json) ? 1 : 0;
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
