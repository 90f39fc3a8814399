// tool.h - what the subcommands of the app_s2j tool share: the command table
// entry, exit statuses, argument helpers and loading a file through the
// library's families.
#ifndef APP_S2J_TOOL_H
#define APP_S2J_TOOL_H

#include <cstdint>
#include <cstdio>
#include <functional>
#include <initializer_list>
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
extern const Command kUpdateCommand;
extern const Command kDiffCommand;
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

// What a status of the library means, in a few words.
const char *status_text(int rc);

// Prints "app_s2j: WHY" and the command's synopsis to stderr; returns 2.
int usage_error(const Command &cmd, const std::string &why);
// Reports on standard error why a command cannot do its work ("app_s2j: "
// and the formatted text, on one line) and gives kExitRejected.
int rejected(const char *fmt, ...) __attribute__((format(printf, 1, 2)));
// An option of a command: the spellings that set it (alias may be null).
struct Flag {
    const char *name;
    const char *alias;
    bool *set;
};
// Sets the flags that args name and puts every other argument in *rest, in
// order; kExitOk.  At the first argument A longer than "-" that starts with
// '-' and is no flag: the usage error "unknown option 'A'" and its status.
int split_options(const Command &cmd, const std::vector<std::string> &args, std::initializer_list<Flag> flags,
                  std::vector<std::string> *rest);
// The type of that name, or null after printing the unknown-type message.
const s2j::TypeInfo *find_type_or_report(const std::string &name);
// The whole file into *text; false after printing why it cannot be read
// ("cannot read 'PATH': REASON"), or keeping that text in *why.
bool read_whole(const std::string &path, std::string *text, std::string *why = nullptr);
// The rest of an open stream into *text; false after printing that name
// cannot be read, and why.
bool read_stream(FILE *f, const char *name, std::string *text);
// The input named by path, read once: a file, a pipe or a FIFO, or standard
// input for "-".  False after printing why it cannot be read, or keeping
// that text in *why.
bool read_input(const std::string &path, std::string *text, std::string *why = nullptr);

// The shapes of a type's documents, as its families read them: a record
// array for a type with array families, one record (an object) for a type
// with single-record families or with neither (its reader reads one
// record); both only for a type that has both.
bool reads_arrays(const s2j::TypeInfo &t);
bool reads_records(const s2j::TypeInfo &t);
// True when the library's parser reads text as a JSON array.
bool document_is_array(const char *text);
// True when text is read as a record array of t: always for a type of
// arrays only, never for a type of records only, else when it is an array.
bool shape_is_array(const s2j::TypeInfo &t, const char *text);

// Lines of the library's diagnostics are cut to this many bytes.
constexpr size_t kDiagnosticWidth = 200;
// Each line of text cut to max_line bytes (the cut is named), every line
// ending with a newline.
std::string cut_diagnostic(const std::string &text, size_t max_line);
// Runs call with what it writes to standard error caught, then writes that
// there again through cut_diagnostic; returns call's result.
int quoted_call(const std::function<int()> &call);

// The records loaded from a document: whether it is an array, and how many.
struct Loaded {
    bool is_array = false;
    uint32_t count = 0;
};

// Receives the records loaded, a few at a time (count records of the
// type's size at recs); false stops the load.
using RecordSink = std::function<bool(const char *recs, uint32_t count)>;

// Records of an array are read and handed to the sink this many at a time.
constexpr uint32_t kChunkRecords = 64;

// Loads text (the whole input, read once) as type t through the library, in
// the shape the type's families read (shape_is_array): a record with the
// type's text reader (the text up to its first NUL byte, as the file family
// reads a file), or its tree reader, or its reader; a record array with its
// tree reader a few elements at a time, or element by element with its
// reader.  The library's diagnostics are shown through quoted_call.
// Returns the library's status (0 on success).
int load(const s2j::TypeInfo &t, const std::string &text, Loaded *out, const RecordSink &sink = nullptr);

// Text of count records at recs (a JSON array when array) as the library
// writes them: with the type's s2j or s2j_array, or else its emitter's tree
// printed as those print; formatted as the file families write.  Null when
// no text could be made; the caller frees it.
char *emit_text(const s2j::TypeInfo &t, const char *recs, uint32_t count, bool array, int formatted);

// Loads text as load does and hands put the records' text as the library
// writes them (indented, or on one line when compact), a part at a time:
// an array's text is the library's text of each chunk of records, joined
// where one ends and the next begins, so the records of a whole array are
// never held at once.  put may have been called before a failure.  Returns
// the library's status.
int write_document(const s2j::TypeInfo &t, const std::string &text, bool compact,
                   const std::function<void(const std::string &)> &put);

}  // namespace app_s2j_tool

#endif  // APP_S2J_TOOL_H
