// update.cpp - `app_s2j update TYPE FILE REQUEST [--dry-run]`: applies a
// keyed update request to a file of records with the library's
// j2s_array_update_<T> and writes the result back as s2f_array_<T> writes
// it, replacing the file whole.
#include <sys/stat.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "change.h"

namespace app_s2j_tool {
namespace {

const char *plural(uint32_t n) { return n == 1 ? "" : "s"; }

int run_update(const std::vector<std::string> &args) {
    bool dry_run = false;
    std::vector<std::string> rest;
    if (int usage = split_options(kUpdateCommand, args, {{"--dry-run", nullptr, &dry_run}}, &rest)) return usage;
    if (rest.size() != 3) return usage_error(kUpdateCommand, "'update' takes TYPE, FILE and REQUEST");
    const std::string &path = rest[1], &request_path = rest[2];
    if (path == "-") return usage_error(kUpdateCommand, "FILE is written back, so it must name a file, not -");
    const s2j::TypeInfo *t = find_type_or_report(rest[0]);
    if (t == nullptr) return kExitUsage;
    if (t->fam.j2s_array_update == nullptr) {
        std::fprintf(stderr,
                     "app_s2j: %s has no keyed update (j2s_array_update_%s); "
                     "app_s2j types lists the types that have j2s_array_update\n",
                     t->name, t->name);
        return kExitUsage;
    }

    struct stat st;
    if (stat(path.c_str(), &st) == 0 && !S_ISREG(st.st_mode) && !S_ISDIR(st.st_mode))
        return rejected("'%s' is not a regular file; update writes its file back", path.c_str());
    std::string text;
    if (!read_whole(path, &text)) return kExitRejected;
    RecordSet before;
    if (int rc = load_all(*t, text, &before))
        return rejected("%s: not a valid %s array: status %d (%s)", path.c_str(), t->name, rc, status_text(rc));
    if (!before.is_array) return rejected("%s: not a record array; the update applies to a record array", path.c_str());
    if (before.count == 0) return rejected("%s: the array is empty; there is no record to update", path.c_str());
    std::string request;
    if (!read_input(request_path, &request)) return kExitRejected;

    // The library's own update, on a copy, with the caller's full length; on
    // success the count says how many request elements were applied.
    std::vector<char> after = before.bytes;
    uint32_t updates = before.count;
    int rc = quoted_call([&] { return t->fam.j2s_array_update(request.c_str(), after.data(), &updates); });
    if (rc != 0)
        return rejected("%s: j2s_array_update_%s refuses the request: status %d; %s is left as it was",
                        request_path == "-" ? "standard input" : request_path.c_str(), t->name, rc, path.c_str());

    const size_t size = t->desc->size;
    uint32_t changed = 0;
    for (uint32_t i = 0; i < before.count; ++i) {
        const char *old_rec = before.at(*t, i), *new_rec = after.data() + i * size;
        std::string fields = field_changes(*t, old_rec, new_rec);
        if (fields.empty()) continue;
        ++changed;
        std::printf("%s:\n%s", record_name(*t, old_rec, true, i).c_str(), fields.c_str());
    }
    std::string summary = path + ": " + std::to_string(updates) + " update" + plural(updates) + " applied, ";
    if (changed == 0) {
        std::printf("%sno record changed; the file is left as it was\n", summary.c_str());
        return kExitOk;
    }
    summary += std::to_string(changed) + " of " + std::to_string(before.count) + " record" + plural(before.count);
    if (dry_run) {
        std::printf("%s would change; nothing written (--dry-run)\n", summary.c_str());
        return kExitOk;
    }
    char *out = emit_text(*t, after.data(), before.count, true, 1);
    if (out == nullptr) return rejected("%s could not be written as text; %s is left as it was", t->name, path.c_str());
    std::string new_text = out;
    std::free(out);
    std::string why;
    std::fflush(stdout);
    if (!replace_file(path, new_text, &why)) return rejected("%s", why.c_str());
    std::printf("%s changed; written\n", summary.c_str());
    return kExitOk;
}

}  // namespace

const Command kUpdateCommand = {
    "update", "update TYPE FILE REQUEST [--dry-run]",
    "apply a keyed update request to a file of records, as j2s_array_update does",
    "Loads the record array in FILE as check does, applies the update request\n"
    "in REQUEST (a JSON array whose elements carry the type's key fields; - for\n"
    "standard input) with the library's j2s_array_update_TYPE, and writes the\n"
    "records back as s2f_array_TYPE writes them.  Every record whose key fields\n"
    "equal an element's is updated by it, the first of equal keys only; the\n"
    "file keeps all its records.  Prints each changed record by its key with\n"
    "its fields, OLD -> NEW, then how many updates were applied.\n"
    "\n"
    "The file is replaced whole: the new text goes to a new file in the same\n"
    "directory, which is synced and renamed over the old one, and the\n"
    "directory is synced, so a power cut leaves the old or the new file.\n"
    "When no record changes, or the library refuses the request, the file is\n"
    "left as it was.  Only types with j2s_array_update have this command.\n"
    "\n"
    "  --dry-run  print what would change and write nothing\n"
    "\n"
    "Exit status: 0 applied (or nothing to change), 1 FILE or REQUEST cannot\n"
    "be read, FILE does not load, the library refuses the request, or the\n"
    "file cannot be replaced, 2 wrong usage (a type without the update).\n",
    run_update};

}  // namespace app_s2j_tool
