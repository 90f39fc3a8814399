// s2j_text_reader.h - the direct text reader: JSON text straight into records,
// with no tree and no allocation.
//
// It reads exactly what cJSON's parser followed by the tree readers would
// read, and decides every outcome the tree path would reach on well-formed
// text: success, a document of the wrong shape, a record reader that rejects
// a member, an update element without its key.  Text that cJSON would refuse,
// or that the direct reader does not take on (see docs/performance.md), is
// left untouched and answered kUseTree: the caller then takes the tree path,
// which stays the reference for every input.
#ifndef APP_S2J_TEXT_READER_H
#define APP_S2J_TEXT_READER_H

#include <cstddef>
#include <cstdint>

#include "s2j_model.h"

namespace s2j {

enum class Direct : uint8_t {
    Done,            // read; for arrays and updates the count is stored
    UseTree,         // nothing touched: the tree path must read this text
    NotObject,       // the document is not an object (single records)
    NotArray,        // the document is not an array (arrays, updates)
    ReaderFailed,    // a member of the wrong JSON type; records partly filled
    KeywordMissing,  // an update element without its key fields
};

// The text is len bytes; len counts the terminating NUL of a NUL-terminated
// text, as cJSON_Parse counts it.
Direct direct_record(const TypeDesc *d, const char *text, size_t len, void *rec);
// arr may be null (query mode: *count receives the number of elements).
Direct direct_array(const TypeDesc *d, const char *text, size_t len, void *arr, uint32_t *count);
Direct direct_update(const TypeDesc *d, const char *text, size_t len, void *arr, uint32_t *count);

}  // namespace s2j

#endif  // APP_S2J_TEXT_READER_H
