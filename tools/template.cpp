// template.cpp - `app_s2j template TYPE`: a starting point for a new
// configuration file.  The text is a zero-filled record written by the
// library itself, so it holds every key in the library's order with 0, ""
// or a list of zeros, exactly as the library would write such a record, and
// it loads back unchanged.
#include "template.h"

#include <cstdio>
#include <cstdlib>
#include <vector>

#include "reference.h"
#include "tool.h"

namespace app_s2j_tool {

bool template_json(const s2j::TypeInfo &t, bool as_array, std::string *text) {
    std::vector<char> zero(t.desc->size, 0);
    char *out = emit_text(t, zero.data(), 1, as_array, 1);
    if (out == nullptr) return false;
    *text = out;
    std::free(out);
    return true;
}

namespace {

int run_template(const std::vector<std::string> &args) {
    bool record = false, array = false;
    std::vector<std::string> rest;
    const std::initializer_list<Flag> flags = {{"--record", nullptr, &record}, {"--array", nullptr, &array}};
    if (int usage = split_options(kTemplateCommand, args, flags, &rest)) return usage;
    if (record && array) return usage_error(kTemplateCommand, "--record and --array exclude each other");
    if (rest.size() != 1) return usage_error(kTemplateCommand, "'template' takes one TYPE");
    const s2j::TypeInfo *t = find_type_or_report(rest[0]);
    if (t == nullptr) return kExitUsage;
    if (array && !reads_arrays(*t))
        return usage_error(kTemplateCommand,
                           std::string(t->name) + " is read as one record, never as an array; --array does not apply");
    if (record && !reads_records(*t))
        return usage_error(kTemplateCommand, std::string(t->name) +
                                                 " is read as a record array only; --record does not apply");
    std::string text;
    if (!template_json(*t, array || (!record && reads_arrays(*t)), &text))
        return rejected("%s could not be written as text", t->name);
    std::printf("%s\n", text.c_str());
    return kExitOk;
}

}  // namespace

const Command kTemplateCommand = {
    "template", "template TYPE [--record|--array]",
    "print a JSON document of TYPE with every key and zero or empty values",
    "Prints a complete JSON document for TYPE to start a new file from: a\n"
    "record with every field zero or empty, written by the library itself, so\n"
    "every key is there, in the library's order, with 0, \"\" or a list of\n"
    "zeros.  The document is an array holding one record for the types the\n"
    "library reads and writes as record arrays, one object otherwise;\n"
    "for a type the library reads in both shapes, --record gives an object\n"
    "and --array an array holding one record.  A shape the type's families\n"
    "do not read is wrong usage.\n"
    "\n"
    "Exit status: 0 printed, 1 the library could not write it, 2 wrong usage.\n",
    run_template};

}  // namespace app_s2j_tool
