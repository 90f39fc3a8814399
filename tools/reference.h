// reference.h - the reference of records (docs/records.md) and the pieces of
// it the template command and the tests share.  Everything here is derived
// from the internal type registry only.
#ifndef APP_S2J_TOOL_REFERENCE_H
#define APP_S2J_TOOL_REFERENCE_H

#include <string>
#include <vector>

#include "registry.h"

namespace app_s2j_tool {

// True when the library reads and writes the type as a record array (it has
// at least one array family): the files of such a type hold arrays.
bool holds_arrays(const s2j::TypeInfo &t);

// The names of every function the library exports for the type: emitter,
// reader, keyword readers, then the families in a fixed order.
std::vector<std::string> function_names(const s2j::TypeInfo &t);

// What JSON the field takes, in words.
std::string json_of(const s2j::Field &f);

// Text made safe for one cell of a Markdown table: '|' and '\' escaped,
// line breaks turned into spaces.
std::string markdown_cell(const std::string &text);

// The whole reference, as `app_s2j reference` prints it.
std::string reference_markdown();

}  // namespace app_s2j_tool

#endif  // APP_S2J_TOOL_REFERENCE_H
