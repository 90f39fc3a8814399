// fuzz_input.cpp - the list of (record type, text reader) pairs and the
// decoding of fuzz inputs; see fuzz_input.h.
#include "fuzz_input.h"

#include <cstdio>
#include <cstring>
#include <vector>

namespace fuzz {

bool has_reader(const s2j::TypeInfo *t, Reader r) {
    const s2j::Families &f = t->fam;
    switch (r) {
        case kJ2s: return f.j2s != nullptr;
        case kJ2sWithLen: return f.j2s_with_len != nullptr;
        case kJ2sArray: return f.j2s_array != nullptr;
        case kJ2sArrayWithLen: return f.j2s_array_with_len != nullptr;
        case kJ2sArrayUpdate: return f.j2s_array_update != nullptr;
        case kJ2sArrayUpdateWithLen: return f.j2s_array_update_with_len != nullptr;
        case kReaderCount: break;
    }
    return false;
}

const char *reader_name(Reader r) {
    static const char *const names[] = {"j2s", "j2s_with_len", "j2s_array", "j2s_array_with_len",
                                        "j2s_array_update", "j2s_array_update_with_len"};
    return r < kReaderCount ? names[r] : "?";
}

const Target *targets(size_t *count) {
    static const std::vector<Target> list = [] {
        std::vector<Target> v;
        size_t n = 0;
        const s2j::TypeInfo *types = s2j::registry(&n);
        for (size_t i = 0; i < n; ++i)
            for (int r = 0; r < kReaderCount; ++r)
                if (has_reader(&types[i], static_cast<Reader>(r))) v.push_back({&types[i], static_cast<Reader>(r)});
        return v;
    }();
    *count = list.size();
    return list.data();
}

bool decode(const uint8_t *data, size_t size, Input *out) {
    if (size < kHeaderSize) return false;
    size_t n = 0;
    const Target *t = targets(&n);
    size_t index = static_cast<size_t>(data[0] | (data[1] << 8)) % n;
    out->target = t[index];
    out->capacity = data[2] % (kMaxCapacity + 1);
    out->text = data + kHeaderSize;
    out->len = size - kHeaderSize;
    return true;
}

void prepare_array(const s2j::TypeInfo *t, char *arr, uint32_t capacity, uint8_t pattern) {
    const s2j::TypeDesc *d = t->desc;
    std::memset(arr, pattern, static_cast<size_t>(capacity) * d->size);
    for (uint32_t i = 0; i < capacity; ++i) {
        char *rec = arr + static_cast<size_t>(i) * d->size;
        for (uint32_t k = 0; k < d->key_count; ++k) {
            const s2j::Field &f = d->keys[k].field;
            if (f.kind == s2j::Kind::Str) {
                std::memset(rec + f.offset, 0, f.size);
                std::snprintf(rec + f.offset, f.size, "%u", i);
            } else {
                uint32_t v = i;
                std::memcpy(rec + f.offset, &v, 4);
            }
        }
    }
}

}  // namespace fuzz
