// fuzz_writers.cpp - arbitrary bytes as records through the text writers:
// s2j and s2j_array of the chosen type, compact and indented, must give
// exactly what cJSON prints for the trees of the type's emitter (its
// object, or an array of its objects).  Any difference aborts with a
// message, which libFuzzer reports as a crash and keeps as an input.
//
// An input is a three-byte header followed by the records' bytes:
//   bytes 0-1  little-endian index into the types that have s2j or
//              s2j_array, in registry order, taken modulo their number;
//   byte  2    bit 0: indented text;
//   the rest   the records, as many whole ones as it holds (at least one:
//              a short tail is padded with zero bytes), at most 64.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "fuzz_input.h"

namespace {

std::vector<const s2j::TypeInfo *> writer_types() {
    size_t n = 0;
    const s2j::TypeInfo *t = s2j::registry(&n);
    std::vector<const s2j::TypeInfo *> v;
    for (size_t i = 0; i < n; ++i)
        if (t[i].fam.s2j != nullptr || t[i].fam.s2j_array != nullptr) v.push_back(&t[i]);
    return v;
}

void compare(const char *what, const s2j::TypeInfo *t, char *got, const std::string &want, uint32_t count) {
    if (got != nullptr && want == got) {
        std::free(got);
        return;
    }
    std::fprintf(stderr, "%s_%s of %u records differs from the printed tree\nwriter: %s\ntree:   %s\n", what, t->name,
                 count, got != nullptr ? got : "<null>", want.c_str());
    std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    static const std::vector<const s2j::TypeInfo *> types = writer_types();
    if (size < fuzz::kHeaderSize) return 0;
    const s2j::TypeInfo *t = types[(data[0] | (data[1] << 8)) % types.size()];
    const bool formatted = (data[2] & 1) != 0;
    const size_t rec_size = t->desc->size, body = size - fuzz::kHeaderSize;
    uint32_t count = static_cast<uint32_t>(body / rec_size);
    if (count == 0) count = 1;
    if (count > 64) count = 64;
    // The records in a block of exactly their size.
    const size_t bytes = rec_size * count;
    char *recs = static_cast<char *>(std::malloc(bytes));
    std::memset(recs, 0, bytes);
    std::memcpy(recs, data + fuzz::kHeaderSize, body < bytes ? body : bytes);

    if (t->fam.s2j != nullptr)
        compare("s2j", t, t->fam.s2j(recs, formatted), s2j::emitter_text(t, recs, 1, false, formatted), 1);
    if (t->fam.s2j_array != nullptr)
        compare("s2j_array", t, t->fam.s2j_array(recs, count, formatted),
                s2j::emitter_text(t, recs, count, true, formatted), count);
    std::free(recs);
    return 0;
}
