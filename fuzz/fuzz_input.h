// fuzz_input.h - how a fuzz input names what it exercises.
//
// An input is a three-byte header followed by the JSON text:
//   bytes 0-1  little-endian index into the list of (record type, text reader)
//              pairs that the library instantiates, taken modulo its length;
//   byte  2    capacity of the record array handed to the array readers
//              (modulo 9, so 0 and small arrays are both common);
//   the rest   the text, given to the reader as it is.
// The seed generator and both targets share this list, so a seed keeps its
// meaning as long as the instantiation lists do not change.
#ifndef APP_S2J_FUZZ_INPUT_H
#define APP_S2J_FUZZ_INPUT_H

#include <cstddef>
#include <cstdint>

#include "registry.h"

namespace fuzz {

// The six text-reading family members.
enum Reader { kJ2s, kJ2sWithLen, kJ2sArray, kJ2sArrayWithLen, kJ2sArrayUpdate, kJ2sArrayUpdateWithLen, kReaderCount };

struct Target {
    const s2j::TypeInfo *type;
    Reader reader;
};

// Every pair that exists, in registry order and then reader order.
const Target *targets(size_t *count);
// True when the type has that reader.
bool has_reader(const s2j::TypeInfo *t, Reader r);
const char *reader_name(Reader r);

inline constexpr size_t kHeaderSize = 3;
inline constexpr uint32_t kMaxCapacity = 8;

struct Input {
    Target target;
    uint32_t capacity;
    const uint8_t *text;  // not terminated
    size_t len;
};

// Decodes a fuzz input; false when it is too short to hold the header.
bool decode(const uint8_t *data, size_t size, Input *out);

// Fills an array of `capacity` records so that element i carries the key i
// (integer keys) or the text of i (string keys): keyed updates then find
// matches for small keys.  Other bytes are `pattern`.
void prepare_array(const s2j::TypeInfo *t, char *arr, uint32_t capacity, uint8_t pattern);

}  // namespace fuzz

#endif
