// template.h - the template of a record type: a zero-filled record (or an
// array holding one) as the library itself writes it.
#ifndef APP_S2J_TOOL_TEMPLATE_H
#define APP_S2J_TOOL_TEMPLATE_H

#include <string>

#include "registry.h"

namespace app_s2j_tool {

// The indented JSON text of a zero-filled record of type t, or of an array
// holding one (as_array), written by the library: through s2j / s2j_array
// where the type has it, else the type's emitter printed with cJSON_Print.
// False (nothing in *text) when the library could not write it.
bool template_json(const s2j::TypeInfo &t, bool as_array, std::string *text);

}  // namespace app_s2j_tool

#endif  // APP_S2J_TOOL_TEMPLATE_H
