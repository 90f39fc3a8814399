// tool.h - what the subcommands of the app_s2j tool share: the command table
// entry, exit statuses, argument helpers and loading a file through the
// library's families.
#ifndef APP_S2J_TOOL_H
#define APP_S2J_TOOL_H

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "registry.h"

namespace app_s2j_tool {

// Exit statuses of every command.
enum Exit : int {
    kExitOk = 0,        // done; for validate: accepted exactly as written
    kExitRejected = 1,  // the file does not load (the library rejects it)
    kExitUsage = 2,     // wrong usage: unknown command, type or option
    kExitAltered = 3,   // validate: accepted, but not exactly as written
};

struct Command {
    const char *name;
    const char *synopsis;  // "validate TYPE FILE [--update]", without "app_s2j "
    const char *summary;   // one line for the command list
    const char *help;      // the text of `app_s2j NAME --help`, after the synopsis
    // Runs the command on the arguments after its name (never "--help").
    int (*run)(const std::vector<std::string> &args);
};

// The commands, each defined in its own file.
extern const Command kTypesCommand;
extern const Command kCheckCommand;
extern const Command kPrintCommand;
extern const Command kValidateCommand;
extern const Command kSchemaCommand;
extern const Command kTemplateCommand;
extern const Command kReferenceCommand;

// The C type of a field as the struct declares it: "int32", "uint32",
// "uint16", "char[64]", "uint32[8]".
std::string c_type_of(const s2j::Field &f);

// The values an integer of that kind holds (a list's entries are uint32).
struct IntRange {
    int64_t lo, hi;
};
IntRange range_of(s2j::Kind k);

// The families a type has ("s2j", "c2s", ... "s2f_array", then "keyword"
// and "get_keyword" for its keyword readers), joined by sep; "" for none.
std::string families_of(const s2j::TypeInfo &t, const char *sep);

// Prints "app_s2j: WHY" and the command's synopsis to stderr; returns 2.
int usage_error(const Command &cmd, const std::string &why);
// The type of that name, or null after printing the unknown-type message.
const s2j::TypeInfo *find_type_or_report(const std::string &name);
// The whole file into *text; false after printing why it cannot be read.
bool read_whole(const std::string &path, std::string *text);
// The rest of an open stream into *text; false after printing that name
// cannot be read.
bool read_stream(FILE *f, const char *name, std::string *text);

// The records loaded from a file: one, or count of an array.
struct Loaded {
    bool is_array = false;
    uint32_t count = 0;
    std::vector<char> bytes;
};

// True when the document is a record array: its first character after
// blanks (and a UTF-8 byte order mark, which the parser skips) is '['.
bool is_array_text(const char *text, size_t len);

// Loads path (whose whole text is text) as type t through the library:
// through the file families where the type has them, else the text or tree
// families, else element by element with the type's reader.  A text whose
// first non-blank character is '[' is a record array.  Returns the library's
// status (0 on success); the library prints its own diagnostics.
int load(const s2j::TypeInfo &t, const std::string &path, const std::string &text, Loaded *out);

}  // namespace app_s2j_tool

#endif  // APP_S2J_TOOL_H
