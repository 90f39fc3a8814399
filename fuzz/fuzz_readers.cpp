// fuzz_readers.cpp - arbitrary bytes through every text reader of every
// record type: j2s, j2s_with_len, j2s_array, j2s_array_with_len,
// j2s_array_update and j2s_array_update_with_len, the pair chosen by the
// input's header (fuzz_input.h).  The sanitizers and the exact-size heap
// blocks catch any read or write out of bounds, leak or undefined behaviour.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "fuzz_input.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    fuzz::Input in;
    if (!fuzz::decode(data, size, &in)) return 0;
    const s2j::TypeInfo *t = in.target.type;
    const s2j::Families &f = t->fam;

    // The text in a block of exactly its length plus the terminating NUL
    // that the j2s readers (and the _with_len diagnostics) rely on.
    char *text = static_cast<char *>(std::malloc(in.len + 1));
    if (in.len > 0) std::memcpy(text, in.text, in.len);
    text[in.len] = '\0';

    // The records in a block of exactly their size (at least one byte, so
    // that a zero capacity still passes a non-null array).
    size_t rec_bytes = static_cast<size_t>(in.capacity) * t->desc->size;
    char *arr = static_cast<char *>(std::malloc(rec_bytes > 0 ? rec_bytes : 1));
    fuzz::prepare_array(t, arr, in.capacity, 0xA5);
    uint32_t count = in.capacity;

    switch (in.target.reader) {
        case fuzz::kJ2s: {
            std::vector<char> rec(t->desc->size);
            f.j2s(text, rec.data());
            break;
        }
        case fuzz::kJ2sWithLen: {
            std::vector<char> rec(t->desc->size);
            f.j2s_with_len(text, in.len, rec.data());
            break;
        }
        case fuzz::kJ2sArray:
            // An odd capacity byte asks for query mode instead.
            f.j2s_array(text, (data[2] & 0x80) ? nullptr : arr, &count);
            break;
        case fuzz::kJ2sArrayWithLen:
            f.j2s_array_with_len(text, in.len, (data[2] & 0x80) ? nullptr : arr, &count);
            break;
        case fuzz::kJ2sArrayUpdate:
            f.j2s_array_update(text, arr, &count);
            break;
        case fuzz::kJ2sArrayUpdateWithLen:
            f.j2s_array_update_with_len(text, in.len, arr, &count);
            break;
        case fuzz::kReaderCount:
            break;
    }
    std::free(arr);
    std::free(text);
    return 0;
}
