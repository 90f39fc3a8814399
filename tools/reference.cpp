// reference.cpp - `app_s2j reference`: a Markdown reference of every record
// type, generated from the internal registry (names, sizes, family members,
// key tables and field tables with their notes).  docs/records.md is its
// output, committed; the records-doc build target writes it again and a test
// fails when the two differ.  The text depends on nothing but the registry:
// no dates, no paths, the registry's order throughout.
#include "reference.h"

#include <cstdio>
#include <string>
#include <vector>

#include "tool.h"

namespace app_s2j_tool {

bool holds_arrays(const s2j::TypeInfo &t) { return reads_arrays(t); }

namespace {

bool holds_single(const s2j::TypeInfo &t) {
    for (const s2j::FamilyInfo &fi : s2j::kFamilies)
        if (!s2j::converts_arrays(fi.id) && s2j::has_family(t.fam, fi.id)) return true;
    return false;
}

std::string code(const std::string &s) { return "`" + s + "`"; }

}  // namespace

std::vector<std::string> function_names(const s2j::TypeInfo &t) {
    const s2j::Families &f = t.fam;
    const std::string n = t.name;
    std::vector<std::string> out = {"struct_to_json_" + n, "json_to_struct_" + n};
    auto add = [&out](bool has, const std::string &name) {
        if (has) out.push_back(name);
    };
    add(t.hooks->keyword, "json_to_struct_" + n + "Keyword");
    add(t.hooks->get_keyword, "json_to_struct_Get" + n + "Keyword");
    for (const s2j::FamilyInfo &fi : s2j::kFamilies)
        add(s2j::has_family(f, fi.id), fi.prefix + n + fi.suffix);
    return out;
}

std::string json_of(const s2j::Field &f) {
    const IntRange r = range_of(f.kind);
    const std::string range = std::to_string(r.lo) + ".." + std::to_string(r.hi);
    switch (f.kind) {
        case s2j::Kind::Str: return "string of at most " + std::to_string(f.size - 1) + " bytes";
        case s2j::Kind::U32List:
            return "array of at most " + std::to_string(f.size / 4) + " integers, each " + range;
        default: return "integer, " + range;
    }
}

std::string markdown_cell(const std::string &text) {
    std::string out;
    for (char c : text) {
        if (c == '|' || c == '\\')
            out += std::string("\\") + c;
        else if (c == '\n' || c == '\r')
            out += ' ';
        else
            out += c;
    }
    return out;
}

namespace {

// GitHub's anchor of a heading that is a type name (letters and digits only).
std::string anchor(const std::string &name) {
    std::string a;
    for (char c : name) a += s2j::ascii_lower(c);
    return a;
}

std::string shape_of(const s2j::TypeInfo &t) {
    bool arrays = holds_arrays(t), single = holds_single(t);
    if (arrays && single) return "a record array (a JSON array of objects); also a single record (an object)";
    if (arrays) return "a record array (a JSON array of objects)";
    if (single) return "a single record (a JSON object)";
    return "a single record (a JSON object), through the emitter and reader only";
}

std::string keys_of(const s2j::TypeInfo &t) {
    const s2j::TypeDesc &d = *t.desc;
    const std::string n = t.name;
    std::string s;
    if (d.key_count == 0) {
        s = "none";
        if (t.hooks->keyword)
            s += "; " + code("json_to_struct_" + n + "Keyword") + " reads the whole record into a " + code(n) +
                 " and requires every field";
        return s;
    }
    for (uint32_t i = 0; i < d.key_count; ++i) s += (i ? ", " : "") + code(d.keys[i].field.key);
    std::vector<std::string> readers;
    const bool one = d.key_count == 1;
    if (t.hooks->keyword)
        readers.push_back(code("json_to_struct_" + n + "Keyword") + " reads " +
                          (one                 ? std::string("it")
                           : d.key_count == 2 ? std::string("both")
                                              : "all " + std::to_string(d.key_count)) +
                          " into a " +
                          code(n + "Keyword") + (one ? " (required)" : ", each required"));
    if (t.hooks->get_keyword) {
        const s2j::Field &first = d.keys[0].field;
        const std::string into = first.kind == s2j::Kind::Str ? "a char[64]"
                                 : first.kind == s2j::Kind::I32 ? "an int32"
                                                                : "a " + c_type_of(first);
        readers.push_back(code("json_to_struct_Get" + n + "Keyword") + " reads " +
                          (one ? std::string("it") : "the first, " + code(first.key) + ",") + " into " + into);
    }
    for (const std::string &r : readers) s += "; " + r;
    if (t.fam.c2s_array_update || t.fam.j2s_array_update)
        s += std::string("; the keyed updates find the element to change by ") + (one ? "it" : "them");
    return s;
}

int key_position(const s2j::TypeDesc &d, const s2j::Field &f) {
    for (uint32_t i = 0; i < d.key_count; ++i)
        if (d.keys[i].field.offset == f.offset) return static_cast<int>(i) + 1;
    return 0;
}

void type_section(const s2j::TypeInfo &t, std::string *out) {
    const s2j::TypeDesc &d = *t.desc;
    std::string &o = *out;
    o += "### " + std::string(t.name) + "\n\n";
    o += "- Subsystem: " + std::string(t.subsystem) + "\n";
    o += "- C struct: " + code(t.name) + ", " + std::to_string(d.size) + " bytes, " +
         std::to_string(d.field_count) + (d.field_count == 1 ? " field" : " fields") + "\n";
    o += "- JSON: " + shape_of(t) + "\n";
    o += "- Functions:";
    const char *sep = " ";
    for (const std::string &fn : function_names(t)) {
        o += sep + code(fn);
        sep = ", ";
    }
    o += "\n";
    o += "- Key fields: " + keys_of(t) + "\n\n";
    o += "| # | JSON key | C type | JSON | key | note |\n";
    o += "|---:|---|---|---|---|---|\n";
    for (uint32_t i = 0; i < d.field_count; ++i) {
        const s2j::Field &f = d.fields[i];
        int k = key_position(d, f);
        o += "| " + std::to_string(i + 1) + " | " + code(f.key) + " | " + c_type_of(f) + " | " + json_of(f) + " | " +
             (k ? "key " + std::to_string(k) : std::string()) + " | " + markdown_cell(f.note) + " |\n";
    }
    o += "\n";
}

}  // namespace

std::string reference_markdown() {
    size_t n = 0;
    const s2j::TypeInfo *types = s2j::registry(&n);
    // Subsystems in the order the registry first names them.
    std::vector<std::string> subsystems;
    for (size_t i = 0; i < n; ++i) {
        bool seen = false;
        for (const std::string &s : subsystems) seen = seen || s == types[i].subsystem;
        if (!seen) subsystems.push_back(types[i].subsystem);
    }

    std::string o;
    o += "# Reference of records\n\n";
    o += "Every record type of libapp_s2j (" + std::to_string(n) +
         " types): its C struct, the shape of its JSON, the functions the library exports for it, its key "
         "fields and its fields in JSON key order.\n\n";
    o += "Generated from the library's type registry by `app_s2j reference`; `cmake --build BUILD --target "
         "records-doc` writes this file again. Do not edit it by hand: a test fails when it differs from what "
         "the tool prints.\n\n";
    o += "Reading, for every type: keys match without regard to letter case, absent keys are skipped, an "
         "integer is stored as its low 32 (or 16) bits, and a longer string is cut to the bytes it may hold. "
         "Writing gives every field, in the order of the table. `app_s2j template TYPE` prints a record of the "
         "type with every field zero or empty.\n\n";
    o += "## Index\n\n";
    for (const std::string &s : subsystems) {
        o += "- " + s + ":";
        const char *sep = " ";
        for (size_t i = 0; i < n; ++i) {
            if (s != types[i].subsystem) continue;
            o += sep + std::string("[") + types[i].name + "](#" + anchor(types[i].name) + ")";
            sep = ", ";
        }
        o += "\n";
    }
    o += "\n";
    for (const std::string &s : subsystems) {
        o += "## Subsystem " + s + "\n\n";
        for (size_t i = 0; i < n; ++i)
            if (s == types[i].subsystem) type_section(types[i], &o);
    }
    // One trailing newline, as a text file ends.
    while (o.size() > 1 && o[o.size() - 1] == '\n' && o[o.size() - 2] == '\n') o.pop_back();
    return o;
}

namespace {

int run_reference(const std::vector<std::string> &args) {
    if (!args.empty()) {
        const std::string &a = args[0];
        return usage_error(kReferenceCommand, a.size() > 1 && a[0] == '-' ? "unknown option '" + a + "'"
                                                                          : "'reference' takes no arguments");
    }
    std::string text = reference_markdown();
    std::fwrite(text.data(), 1, text.size(), stdout);
    return std::fflush(stdout) == 0 ? kExitOk : kExitRejected;
}

}  // namespace

const Command kReferenceCommand = {
    "reference", "reference", "print the Markdown reference of every record type (docs/records.md)",
    "Prints a Markdown reference of every record type, generated from the\n"
    "library's registry: per type its subsystem, struct size, JSON shape,\n"
    "exported functions, key fields and a table of its fields in JSON key\n"
    "order with C type, accepted JSON and a note.  docs/records.md is this\n"
    "output; `cmake --build BUILD --target records-doc` writes it again.\n"
    "\n"
    "Exit status: 0 printed, 1 the output could not be written, 2 wrong usage.\n",
    run_reference};

}  // namespace app_s2j_tool
