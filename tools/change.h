// change.h - what the update and diff commands share: the records of a whole
// document kept in memory, their names (by key or by position), the fields
// in which two records differ as the library writes them, and replacing a
// file so that a power cut leaves the old or the new file whole.
#ifndef APP_S2J_CHANGE_H
#define APP_S2J_CHANGE_H

#include <cstdint>
#include <string>
#include <vector>

#include "tool.h"

namespace app_s2j_tool {

// Every record of a document, contiguous as the library's arrays hold them.
struct RecordSet {
    bool is_array = false;
    uint32_t count = 0;
    std::vector<char> bytes;  // count records of the type's size

    const char *at(const s2j::TypeInfo &t, uint32_t i) const {
        return bytes.data() + static_cast<size_t>(i) * t.desc->size;
    }
};

// Loads text as load does and keeps every record.  Returns the library's
// status (0 on success).
int load_all(const s2j::TypeInfo &t, const std::string &text, RecordSet *out);

// The name of record rec of a document: its key fields as the library
// writes them ("Index=3", "InterfaceName=\"HDMI1\" Index=2") for a record
// array of a keyed type, else "record N" (counting from 1) in an array, or
// "the record".
std::string record_name(const s2j::TypeInfo &t, const char *rec, bool is_array, uint32_t index);
// True when records are matched by their key fields.
bool matched_by_key(const s2j::TypeInfo &t, bool is_array);
// The key fields of rec as one string, equal for records whose key fields
// hold the same values.
std::string key_of(const s2j::TypeInfo &t, const char *rec);

// One line "  FIELD: OLD -> NEW" for each field whose value differs between
// the records a and b as the library writes them (strings as JSON strings),
// in the order of the type's fields; "" when they are written the same.
std::string field_changes(const s2j::TypeInfo &t, const char *a, const char *b);

// Replaces the file at path (a symbolic link is followed) with text: a new
// file in the same directory with the old file's permission bits, written,
// synced and renamed over the old one, then the directory synced, so that
// the file holds the old text or the new one whole.  False with *why when
// it could not be done; before the rename the old file is left as it was
// and the new one removed.
bool replace_file(const std::string &path, const std::string &text, std::string *why);

}  // namespace app_s2j_tool

#endif  // APP_S2J_CHANGE_H
