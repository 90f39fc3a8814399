// schema.h - JSON Schema (draft 2020-12) documents of the record types, as
// `app_s2j schema` prints them.  Exposed for the tests.
#ifndef APP_S2J_SCHEMA_H
#define APP_S2J_SCHEMA_H

#include <string>

#include <cjson/cJSON.h>

#include "registry.h"

namespace app_s2j_tool {

inline constexpr const char *kSchemaDialect = "https://json-schema.org/draft/2020-12/schema";

// The schema of one field's value (bounds of its kind, and a description:
// its C type, then its note when it has one).
cJSON *field_schema(const s2j::Field &f);

// The schema of one record: an object with one property per field, in
// table order, and no others.  With keys_required, the type's key fields
// are required, in key order.
cJSON *record_schema(const s2j::TypeInfo &t, bool keys_required);

// The whole document of a type: one record or a record array, "$id"
// urn:app-s2j:TYPE.  With update (only for a type with keyed update: null
// otherwise), the keyed update request: an array of records each holding
// every key field, "$id" urn:app-s2j:TYPE:update.  The caller frees it.
cJSON *schema_of(const s2j::TypeInfo &t, bool update);

// Every type's document, and every update request's, embedded in one
// compound document ("$id" urn:app-s2j:all) under "$defs": TYPE and
// TYPE.update.  The caller frees it.
cJSON *schema_bundle();

// True when the type has a keyed update (c2s_array_update).
bool has_keyed_update(const s2j::TypeInfo &t);

}  // namespace app_s2j_tool

#endif  // APP_S2J_SCHEMA_H
