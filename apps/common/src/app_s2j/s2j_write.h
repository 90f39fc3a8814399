// s2j_write.h - the text writer: records straight to the text that cJSON
// prints for their trees, in one buffer.
#ifndef APP_S2J_WRITE_H
#define APP_S2J_WRITE_H

#include <cstdint>

#include "s2j_model.h"

namespace s2j {

// The text of one record (as_array false, count 1) or of a JSON array of
// count records (count > 0), byte for byte what cJSON_Print (formatted) or
// cJSON_PrintUnformatted prints for the tree of emit_record, or for an array
// of such trees.  The buffer is sized from the field table and the strings'
// escaped lengths and allocated once with cJSON_malloc, as cJSON's printer
// allocates its texts; null when it cannot be had (its size does not fit in
// size_t, or the allocator refuses it).
char *write_text(const TypeDesc *d, const void *recs, uint32_t count, bool as_array, bool formatted);

}  // namespace s2j

#endif  // APP_S2J_WRITE_H
