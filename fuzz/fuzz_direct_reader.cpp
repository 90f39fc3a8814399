// fuzz_direct_reader.cpp - arbitrary bytes through a text reader of a record
// type (chosen by the input's header, fuzz_input.h) in the library and in the
// reference library that reads every text through cJSON's tree: the status,
// every byte of the records, the count and the standard error stream must be
// the same.  Any difference stops the run with the input kept.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "fuzz_input.h"
#include "reader_diff.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    fuzz::Input in;
    if (!fuzz::decode(data, size, &in)) return 0;
    const s2j::TypeInfo *t = in.target.type;
    static const reader_diff::Member members[fuzz::kReaderCount] = {
        reader_diff::Member::J2s,         reader_diff::Member::J2sLen,
        reader_diff::Member::J2sArray,    reader_diff::Member::J2sArrayLen,
        reader_diff::Member::J2sArrayUpdate, reader_diff::Member::J2sArrayUpdateLen,
    };
    reader_diff::Call call;
    call.member = members[in.target.reader];
    call.text.assign(reinterpret_cast<const char *>(in.text), in.len);
    call.len = in.len;
    call.query = (in.target.reader == fuzz::kJ2sArray || in.target.reader == fuzz::kJ2sArrayWithLen) &&
                 (data[2] & 0x80) != 0;
    call.capacity = in.capacity;
    const uint32_t records = in.capacity > 0 ? in.capacity : 1;
    call.records.resize(static_cast<size_t>(records) * t->desc->size);
    fuzz::prepare_array(t, call.records.data(), records, 0xA5);
    const std::string difference = reader_diff::compare(t, reader_diff::reference_of(t), call);
    if (!difference.empty()) {
        std::fprintf(stderr, "the direct reader and the tree path differ: %s\n", difference.c_str());
        std::abort();
    }
    return 0;
}
