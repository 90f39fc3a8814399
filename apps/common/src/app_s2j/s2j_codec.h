// s2j_codec.h - the record engines (s2j_codec.cpp): one record, or the key
// fields of one, between a field table's struct and a cJSON tree.
#ifndef APP_S2J_CODEC_H
#define APP_S2J_CODEC_H

#include <cjson/cJSON.h>

#include <cstdint>

#include "s2j_model.h"

namespace s2j {

// Emits a record as a new object for the caller: keys copied, integers as
// integer items.
cJSON *emit_record(const TypeDesc *d, const void *rec);
// Emits a record as a new object that is only to be printed and freed while
// the record is alive: keys are the table's constants, strings refer to the
// record's fields and integers are raw items whose decimal text is written at
// *ints (advanced past it; the caller provides d->int_text_bytes per record
// and frees that memory after the tree).  It prints as emit_record()'s tree.
cJSON *emit_record_for_print(const TypeDesc *d, const void *rec, char **ints);
// strict: every field must be present (the whole-record keyword reader).
int read_record(const TypeDesc *d, void *rec, const cJSON *json, bool strict);
// Reads count records of an array from the elements starting at first;
// returns the index of the element whose reader failed, or -1.
int read_records(const TypeDesc *d, void *arr, uint32_t count, const cJSON *first);
// Reads the key fields into a keyword record; all required.
int read_keys(const TypeDesc *d, void *keyword, const cJSON *json);
// Reads the first key field into *out (a 32-bit integer or char[64]).
int read_first_key(const TypeDesc *d, void *out, const cJSON *json);
// True when the record's key fields equal the keyword record's.
bool keys_match(const TypeDesc *d, const void *rec, const void *keyword);

}  // namespace s2j

#endif  // APP_S2J_CODEC_H
