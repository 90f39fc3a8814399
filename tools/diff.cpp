// diff.cpp - `app_s2j diff TYPE A B`: the records and fields in which two
// documents of a type differ, as the library reads and writes them.
#include <cstdio>
#include <string>
#include <unordered_map>
#include <vector>

#include "change.h"

namespace app_s2j_tool {
namespace {

const char *shape_name(const RecordSet &r) { return r.is_array ? "a record array" : "one record"; }

bool load_side(const s2j::TypeInfo &t, const std::string &path, RecordSet *out) {
    std::string text;
    if (!read_input(path, &text)) return false;
    if (int rc = load_all(t, text, out)) {
        std::fprintf(stderr, "app_s2j: %s: not a valid %s%s: status %d (%s)\n", path.c_str(), t.name,
                     out->is_array ? " array" : "", rc, status_text(rc));
        return false;
    }
    return true;
}

// The listing of differences, "" when there are none.
std::string differences(const s2j::TypeInfo &t, const RecordSet &a, const RecordSet &b, const std::string &name_a,
                        const std::string &name_b) {
    if (a.is_array != b.is_array)
        return name_a + " holds " + shape_name(a) + ", " + name_b + " " + shape_name(b) + "\n";
    std::string out, only_b;
    // For each record of A, its partner in B (or none).
    std::vector<bool> b_matched(b.count, false);
    if (matched_by_key(t, a.is_array)) {
        // Records of B by key, in order: records of equal keys pair in turn.
        std::unordered_map<std::string, std::vector<uint32_t>> by_key;
        for (uint32_t j = 0; j < b.count; ++j) by_key[key_of(t, b.at(t, j))].push_back(j);
        std::unordered_map<std::string, size_t> taken;
        for (uint32_t i = 0; i < a.count; ++i) {
            const char *ra = a.at(t, i);
            const std::string key = key_of(t, ra);
            auto it = by_key.find(key);
            size_t &next = taken[key];
            if (it == by_key.end() || next >= it->second.size()) {
                out += "only in " + name_a + ": " + record_name(t, ra, true, i) + "\n";
                continue;
            }
            uint32_t j = it->second[next++];
            b_matched[j] = true;
            std::string fields = field_changes(t, ra, b.at(t, j));
            if (!fields.empty()) out += record_name(t, ra, true, i) + ":\n" + fields;
        }
    } else {
        for (uint32_t i = 0; i < a.count; ++i) {
            const char *ra = a.at(t, i);
            if (i >= b.count) {
                out += "only in " + name_a + ": " + record_name(t, ra, a.is_array, i) + "\n";
                continue;
            }
            b_matched[i] = true;
            std::string fields = field_changes(t, ra, b.at(t, i));
            if (!fields.empty()) out += record_name(t, ra, a.is_array, i) + ":\n" + fields;
        }
    }
    for (uint32_t j = 0; j < b.count; ++j)
        if (!b_matched[j]) out += "only in " + name_b + ": " + record_name(t, b.at(t, j), b.is_array, j) + "\n";
    return out;
}

int run_diff(const std::vector<std::string> &args) {
    for (const std::string &a : args)
        if (a.size() > 1 && a[0] == '-') return usage_error(kDiffCommand, "unknown option '" + a + "'");
    if (args.size() != 3) return usage_error(kDiffCommand, "'diff' takes TYPE, A and B");
    if (args[1] == "-" && args[2] == "-") return usage_error(kDiffCommand, "only one of A and B can be -");
    const s2j::TypeInfo *t = find_type_or_report(args[0]);
    if (t == nullptr) return kExitUsage;
    RecordSet a, b;
    if (!load_side(*t, args[1], &a) || !load_side(*t, args[2], &b)) return kExitRejected;
    std::string out = differences(*t, a, b, args[1], args[2]);
    std::fputs(out.c_str(), stdout);
    return out.empty() ? kExitOk : kExitRejected;
}

}  // namespace

const Command kDiffCommand = {
    "diff", "diff TYPE A B", "name the records and fields that differ between two files of a type",
    "Loads A and B as check does (either may be - for standard input) and\n"
    "compares the records as the library reads and writes them.  In record\n"
    "arrays of a type with key fields, records are matched by their keys\n"
    "(records of equal keys in turn); otherwise by position.  For each\n"
    "matched pair that differs, prints the record's name (its key fields, or\n"
    "\"record N\" counting from 1, or \"the record\") and each differing field,\n"
    "A -> B; then \"only in A: NAME\" and \"only in B: NAME\" for records\n"
    "without a partner.  Prints nothing when they hold the same records.\n"
    "\n"
    "Exit status: 0 the same, 1 they differ or one cannot be read or does\n"
    "not load, 2 wrong usage.\n",
    run_diff};

}  // namespace app_s2j_tool
