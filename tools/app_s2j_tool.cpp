// app_s2j - command-line front end of libapp_s2j: lists the record types,
// checks and validates JSON files against a type, prints them back as the
// library writes them, updates them and compares them, and describes the records (schemas, templates, the
// reference).  Loading always goes through the library's own families.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>
#include <string>
#include <vector>

#include "app_s2j.h"
#include "tool.h"

namespace app_s2j_tool {
namespace {

// ---- types -----------------------------------------------------------------

int run_types(const std::vector<std::string> &args) {
    if (!args.empty()) return usage_error(kTypesCommand, "'types' takes no arguments");
    size_t n = 0;
    const s2j::TypeInfo *types = s2j::registry(&n);
    for (size_t i = 0; i < n; ++i) {
        std::string fams = families_of(types[i], " ");
        std::printf("%-36s %-10s %s\n", types[i].name, types[i].subsystem,
                    fams.empty() ? "(emitter and reader only)" : fams.c_str());
    }
    return kExitOk;
}

// ---- check, print ------------------------------------------------------------

int load_or_report(const s2j::TypeInfo &t, const std::string &path, const std::string &text, Loaded *out,
                   const RecordSink &sink = nullptr) {
    int rc = load(t, text, out, sink);
    if (rc != 0)
        return rejected("%s: not a valid %s%s: status %d (%s)", path.c_str(), t.name, out->is_array ? " array" : "", rc,
                        status_text(rc));
    return kExitOk;
}

// TYPE and FILE, with the flags the command allows (each sets *flag).
bool type_and_file(const Command &cmd, const std::vector<std::string> &args, const char *flag_name, bool *flag,
                   std::vector<std::string> *rest, int *status) {
    *status = flag_name != nullptr ? split_options(cmd, args, {{flag_name, nullptr, flag}}, rest)
                                   : split_options(cmd, args, {}, rest);
    if (*status != kExitOk) return false;
    if (rest->size() != 2) {
        *status = usage_error(cmd, std::string("'") + cmd.name + "' takes TYPE and FILE");
        return false;
    }
    return true;
}

int run_check(const std::vector<std::string> &args) {
    std::vector<std::string> rest;
    int status = 0;
    if (!type_and_file(kCheckCommand, args, nullptr, nullptr, &rest, &status)) return status;
    const s2j::TypeInfo *t = find_type_or_report(rest[0]);
    if (t == nullptr) return kExitUsage;
    std::string text;
    if (!read_input(rest[1], &text)) return kExitRejected;
    Loaded l;
    if (int rc = load_or_report(*t, rest[1], text, &l)) return rc;
    if (l.is_array)
        std::printf("%s: valid %s array, %u record%s\n", rest[1].c_str(), t->name, l.count, l.count == 1 ? "" : "s");
    else
        std::printf("%s: valid %s\n", rest[1].c_str(), t->name);
    return kExitOk;
}

int run_print(const std::vector<std::string> &args) {
    std::vector<std::string> rest;
    bool compact = false;
    int status = 0;
    if (!type_and_file(kPrintCommand, args, "--compact", &compact, &rest, &status)) return status;
    const s2j::TypeInfo *t = find_type_or_report(rest[0]);
    if (t == nullptr) return kExitUsage;
    const std::string &path = rest[1];
    std::string text;
    if (!read_input(path, &text)) return kExitRejected;
    // A first pass decides; nothing is printed of a document the library
    // rejects.
    Loaded l;
    if (int rc = load_or_report(*t, path, text, &l)) return rc;
    if (l.is_array && l.count == 0)
        return rejected("%s: the array is empty; the library writes no empty arrays", path.c_str());
    // The second pass prints a few records at a time.
    if (write_document(*t, text, compact, [](const std::string &part) { std::fputs(part.c_str(), stdout); }) != 0)
        return rejected("%s could not be written as text", t->name);
    std::fputs("\n", stdout);
    return kExitOk;
}

}  // namespace

const Command kTypesCommand = {
    "types", "types", "list every record type with its subsystem and the families it has",
    "Prints one line per record type: its name, its subsystem and the\n"
    "families the library has for it (keyword and get_keyword are its\n"
    "keyword readers).\n",
    run_types};

const Command kCheckCommand = {
    "check", "check TYPE FILE", "load FILE as TYPE through the library and report the result",
    "Reads FILE once (- for standard input; a pipe or a FIFO will do) and\n"
    "loads its text as TYPE with the library's own families, in the shape\n"
    "they read: a record array for a type kept in record arrays, one record\n"
    "(an object) for a type of single records, either for a type that has\n"
    "both.  For a file, the verdict is the one of the type's file family\n"
    "(f2s or f2s_array).  Prints what was loaded, or the library's diagnostic\n"
    "(each line cut to 200 bytes) and status.\n"
    "\n"
    "Exit status: 0 loaded, 1 the library rejects the file, 2 wrong usage.\n",
    run_check};

const Command kPrintCommand = {
    "print", "print TYPE FILE [--compact]", "load FILE as TYPE and print it as the library writes it",
    "Loads FILE as check does and prints the records as the library writes\n"
    "them: indented as in its files, or on one line with --compact.\n"
    "\n"
    "Exit status: 0 printed, 1 the library rejects the file (or the array is\n"
    "empty), 2 wrong usage.\n",
    run_print};

}  // namespace app_s2j_tool

namespace {

using app_s2j_tool::Command;

// One line per command.
const Command *const kCommands[] = {
    &app_s2j_tool::kTypesCommand,
    &app_s2j_tool::kCheckCommand,
    &app_s2j_tool::kPrintCommand,
    &app_s2j_tool::kValidateCommand,
    &app_s2j_tool::kUpdateCommand,
    &app_s2j_tool::kDiffCommand,
    &app_s2j_tool::kSchemaCommand,
    &app_s2j_tool::kTemplateCommand,
    &app_s2j_tool::kReferenceCommand,
};

void print_usage(FILE *out) {
    const char *lead = "usage:";
    for (const Command *c : kCommands) {
        std::fprintf(out, "%-6s app_s2j %s\n", lead, c->synopsis);
        lead = "";
    }
    std::fprintf(out, "%-6s app_s2j COMMAND --help\n", lead);
    std::fprintf(out, "%-6s app_s2j --version\n\n", "");
    for (const Command *c : kCommands) std::fprintf(out, "  %-10s %s\n", c->name, c->summary);
    std::fputs("\n"
               "Exit status: 0 success, 1 the file is rejected (diff: the files differ),\n"
               "2 wrong usage, 3 (validate) the file is accepted but not exactly as written.\n",
               out);
}

int usage(const char *why) {
    std::fprintf(stderr, "app_s2j: %s\n\n", why);
    print_usage(stderr);
    return app_s2j_tool::kExitUsage;
}

}  // namespace

static int run(int argc, char **argv) {
    if (argc < 2) return usage("no command given");
    std::string name = argv[1];
    if (name == "--version" || name == "-V") {
        std::printf("app_s2j %s (libapp_s2j %d.%d.%d)\n", APP_S2J_VERSION_STRING, APP_S2J_VERSION_MAJOR,
                    APP_S2J_VERSION_MINOR, APP_S2J_VERSION_PATCH);
        return app_s2j_tool::kExitOk;
    }
    if (name == "-h" || name == "--help" || name == "help") {
        print_usage(stdout);
        return app_s2j_tool::kExitOk;
    }
    for (const Command *c : kCommands) {
        if (name != c->name) continue;
        std::vector<std::string> args(argv + 2, argv + argc);
        for (const std::string &a : args) {
            if (a == "--help" || a == "-h") {
                std::printf("usage: app_s2j %s\n\n%s", c->synopsis, c->help);
                return app_s2j_tool::kExitOk;
            }
        }
        return c->run(args);
    }
    return usage(("unknown command '" + name + "'").c_str());
}

int main(int argc, char **argv) {
    try {
        return run(argc, argv);
    } catch (const std::bad_alloc &) {
        std::fflush(stdout);
        std::fputs("app_s2j: out of memory\n", stderr);
        return app_s2j_tool::kExitRejected;
    }
}
