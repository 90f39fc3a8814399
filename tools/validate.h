// validate.h - explains how the library would read a JSON file as a record
// type: every member it rejects, cuts, truncates, ignores or reads under
// another spelling, each with its place in the document.
#ifndef APP_S2J_VALIDATE_H
#define APP_S2J_VALIDATE_H

#include <string>
#include <vector>

#include "tool.h"

namespace app_s2j_tool {

struct Finding {
    enum Level {
        kError,    // the library rejects the document
        kWarning,  // the library accepts it, but does not keep it as written
        kNote,     // worth knowing; the document is read as written
    };
    Level level;
    std::string place;  // "[3].Width", "Ports[2]", "" for the document
    std::string text;
};

struct Validation {
    bool is_array = false;  // read as a record array
    size_t records = 0;     // records the document holds
    std::vector<Finding> findings;

    // True unless a finding is an error.
    bool accepted() const;
    // kExitOk, kExitAltered or kExitRejected.
    int exit_status() const;
};

// How the library reads text (a whole file) as type t: as the tool's check
// loads it (an array as a record array, an object as one record), or with
// update as a keyed update request (t must have c2s_array_update).  The
// text ends at its first NUL byte, as the library's file readers see it.
Validation validate_text(const s2j::TypeInfo &t, const std::string &text, bool update);

// The findings as the validate command prints them, one line each:
// "FILE: error: PLACE: TEXT"; notes only with notes.
std::string format_findings(const std::string &file, const Validation &v, bool notes = true);

// The same as one JSON object, for programs:
// {"file":..., "type":..., "shape":"record"|"array"|"update", "records":N,
//  "verdict":"valid"|"altered"|"rejected", "findings":[{"level":...,
//  "place":..., "text":...}, ...]}; notes only with notes.
std::string format_json(const std::string &file, const s2j::TypeInfo &t, const Validation &v, bool update,
                        bool notes = true);

}  // namespace app_s2j_tool

#endif  // APP_S2J_VALIDATE_H
