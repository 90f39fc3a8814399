// The reference of records (`app_s2j reference`, docs/records.md): one
// section per registry type, its field table complete and in order with
// C types, JSON, key marks and notes, and exactly the functions the shared
// library exports for the type.
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "reference.h"
#include "support.h"
#include "tool.h"

using testing_support::exported;
using testing_support::all_types;
using testing_support::StderrCapture;

namespace {

std::vector<std::string> lines_of_text(const std::string &text) {
    std::vector<std::string> lines;
    size_t at = 0;
    while (at < text.size()) {
        size_t nl = text.find('\n', at);
        if (nl == std::string::npos) nl = text.size();
        lines.push_back(text.substr(at, nl - at));
        at = nl + 1;
    }
    return lines;
}

// The lines of each "### T" section, by type name; a name seen twice is
// recorded in `repeated`.
struct Sections {
    std::map<std::string, std::vector<std::string>> by_type;
    std::vector<std::string> repeated;
};

Sections sections_of(const std::string &md) {
    Sections s;
    std::vector<std::string> *cur = nullptr;
    for (const std::string &line : lines_of_text(md)) {
        if (line.rfind("### ", 0) == 0) {
            std::string name = line.substr(4);
            if (s.by_type.count(name)) s.repeated.push_back(name);
            cur = &s.by_type[name];
        } else if (line.rfind("## ", 0) == 0 || line.rfind("# ", 0) == 0) {
            cur = nullptr;
        } else if (cur != nullptr) {
            cur->push_back(line);
        }
    }
    return s;
}

// The cells of a table row "| a | b \| c | d |", trimmed, with escapes kept.
std::vector<std::string> cells_of(const std::string &row) {
    std::vector<std::string> cells;
    std::string cell;
    for (size_t i = 1; i < row.size(); ++i) {
        if (row[i] == '\\' && i + 1 < row.size()) {
            cell += row[i];
            cell += row[++i];
        } else if (row[i] == '|') {
            size_t b = cell.find_first_not_of(' '), e = cell.find_last_not_of(' ');
            cells.push_back(b == std::string::npos ? "" : cell.substr(b, e - b + 1));
            cell.clear();
        } else {
            cell += row[i];
        }
    }
    return cells;
}

// The rows of the section's field table, after its header and rule.
std::vector<std::vector<std::string>> table_of(const std::vector<std::string> &section) {
    std::vector<std::vector<std::string>> rows;
    bool in_table = false;
    for (const std::string &line : section) {
        if (line == "|---:|---|---|---|---|---|") {
            in_table = true;
        } else if (in_table && line.rfind("| ", 0) == 0) {
            rows.push_back(cells_of(line));
        } else if (in_table) {
            break;
        }
    }
    return rows;
}

// The text after "- Label: " in the section, or "<none>".
std::string item_of(const std::vector<std::string> &section, const std::string &label) {
    const std::string lead = "- " + label + ": ";
    for (const std::string &line : section)
        if (line.rfind(lead, 0) == 0) return line.substr(lead.size());
    return "<none>";
}

// Every `code span` of a text, in order.
std::vector<std::string> code_spans(const std::string &text) {
    std::vector<std::string> spans;
    size_t at = 0;
    while ((at = text.find('`', at)) != std::string::npos) {
        size_t end = text.find('`', at + 1);
        if (end == std::string::npos) break;
        spans.push_back(text.substr(at + 1, end - at - 1));
        at = end + 1;
    }
    return spans;
}

std::string expected_json(const s2j::Field &f) {
    switch (f.kind) {
        case s2j::Kind::I32: return "integer, -2147483648..2147483647";
        case s2j::Kind::U32: return "integer, 0..4294967295";
        case s2j::Kind::U16: return "integer, 0..65535";
        case s2j::Kind::Str: return "string of at most " + std::to_string(f.size - 1) + " bytes";
        case s2j::Kind::U32List:
            return "array of at most " + std::to_string(f.size / 4) + " integers, each 0..4294967295";
    }
    return "unknown kind";
}

// The committed export list, without its comment lines.
std::vector<std::string> committed_symbols() {
    std::ifstream in(std::string(APP_S2J_SOURCE_DIR) + "/apps/common/src/app_s2j/app_s2j.symbols");
    std::vector<std::string> out;
    std::string line;
    while (std::getline(in, line))
        if (!line.empty() && line[0] != '#') out.push_back(line);
    return out;
}

// Every name the library's naming rules could give a function of type T.
std::set<std::string> possible_names(const std::string &t) {
    std::set<std::string> names = {"struct_to_json_" + t, "json_to_struct_" + t,
                                   "json_to_struct_" + t + "Keyword", "json_to_struct_Get" + t + "Keyword"};
    for (const char *family : {"s2j_", "c2s_", "j2s_", "s2j_array_", "c2s_array_", "j2s_array_", "c2s_array_update_",
                               "j2s_array_update_", "f2s_", "s2f_", "f2s_array_", "s2f_array_"}) {
        names.insert(family + t);
        names.insert(family + t + "_with_len");
    }
    return names;
}

const std::string &reference() {
    static const std::string md = app_s2j_tool::reference_markdown();
    return md;
}

TEST(Reference, HasOneSectionForEveryRegistryTypeAndNoOther) {
    Sections s = sections_of(reference());
    EXPECT_TRUE(s.repeated.empty()) << "repeated sections, first: " << s.repeated.front();
    std::vector<const s2j::TypeInfo *> types = all_types();
    ASSERT_FALSE(types.empty());
    EXPECT_EQ(s.by_type.size(), types.size());
    for (const s2j::TypeInfo *t : types) {
        auto it = s.by_type.find(t->name);
        ASSERT_NE(it, s.by_type.end()) << t->name << " has no section";
        EXPECT_EQ(item_of(it->second, "Subsystem"), t->subsystem) << t->name;
        EXPECT_EQ(item_of(it->second, "C struct"),
                  "`" + std::string(t->name) + "`, " + std::to_string(t->desc->size) + " bytes, " +
                      std::to_string(t->desc->field_count) + (t->desc->field_count == 1 ? " field" : " fields"))
            << t->name;
    }
}

TEST(Reference, IndexLinksEveryTypeOnceUnderItsSubsystem) {
    std::vector<std::string> lines = lines_of_text(reference());
    for (const s2j::TypeInfo *t : all_types()) {
        std::string anchor;
        for (const char *c = t->name; *c; ++c) anchor += static_cast<char>(std::tolower(*c));
        const std::string link = "[" + std::string(t->name) + "](#" + anchor + ")";
        int found = 0;
        for (const std::string &line : lines) {
            if (line.find(link) == std::string::npos) continue;
            ++found;
            EXPECT_EQ(line.rfind("- " + std::string(t->subsystem) + ":", 0), 0u) << link << " in: " << line;
        }
        EXPECT_EQ(found, 1) << link;
    }
}

TEST(Reference, EveryFieldAppearsInOrderWithItsCTypeJsonAndNote) {
    Sections s = sections_of(reference());
    for (const s2j::TypeInfo *t : all_types()) {
        const s2j::TypeDesc &d = *t->desc;
        std::vector<std::vector<std::string>> rows = table_of(s.by_type[t->name]);
        ASSERT_EQ(rows.size(), d.field_count) << t->name;
        for (uint32_t i = 0; i < d.field_count; ++i) {
            const s2j::Field &f = d.fields[i];
            ASSERT_EQ(rows[i].size(), 6u) << t->name << " row " << i + 1;
            EXPECT_EQ(rows[i][0], std::to_string(i + 1)) << t->name;
            EXPECT_EQ(rows[i][1], "`" + std::string(f.key) + "`") << t->name;
            EXPECT_EQ(rows[i][2], app_s2j_tool::c_type_of(f)) << t->name << "." << f.key;
            EXPECT_EQ(rows[i][3], expected_json(f)) << t->name << "." << f.key;
            EXPECT_EQ(rows[i][5], app_s2j_tool::markdown_cell(f.note)) << t->name << "." << f.key;
        }
    }
}

TEST(Reference, KeyFieldsAreMarkedWithTheirPositionAndListedInKeyOrder) {
    Sections s = sections_of(reference());
    int marked = 0;
    for (const s2j::TypeInfo *t : all_types()) {
        const s2j::TypeDesc &d = *t->desc;
        const std::vector<std::string> &section = s.by_type[t->name];
        std::vector<std::vector<std::string>> rows = table_of(section);
        ASSERT_EQ(rows.size(), d.field_count) << t->name;
        std::vector<std::string> listed;
        for (uint32_t k = 0; k < d.key_count; ++k) listed.push_back(d.keys[k].field.key);
        for (uint32_t i = 0; i < d.field_count; ++i) {
            std::string want;
            for (uint32_t k = 0; k < d.key_count; ++k)
                if (std::string(d.keys[k].field.key) == d.fields[i].key) want = "key " + std::to_string(k + 1);
            EXPECT_EQ(rows[i][4], want) << t->name << "." << d.fields[i].key;
            marked += !want.empty();
        }
        // The key fields lead the "Key fields" item; the reader names follow.
        std::string keys = item_of(section, "Key fields");
        std::vector<std::string> spans = code_spans(keys.substr(0, keys.find(';')));
        if (d.key_count == 0) {
            EXPECT_EQ(keys.substr(0, 4), "none") << t->name;
        } else {
            EXPECT_EQ(spans, listed) << t->name;
        }
        const bool names_keyword = keys.find("`json_to_struct_" + std::string(t->name) + "Keyword` reads") !=
                                   std::string::npos;
        const bool names_get = keys.find("`json_to_struct_Get" + std::string(t->name) + "Keyword` reads") !=
                               std::string::npos;
        EXPECT_EQ(names_keyword, t->hooks->keyword != nullptr) << t->name << ": " << keys;
        EXPECT_EQ(names_get, t->hooks->get_keyword != nullptr) << t->name << ": " << keys;
    }
    EXPECT_GT(marked, 0);
}

TEST(Reference, EveryListedFunctionIsExportedByTheLibrary) {
    Sections s = sections_of(reference());
    for (const s2j::TypeInfo *t : all_types()) {
        std::vector<std::string> names = code_spans(item_of(s.by_type[t->name], "Functions"));
        ASSERT_GE(names.size(), 2u) << t->name;
        for (const std::string &name : names) EXPECT_TRUE(exported(name)) << t->name << ": " << name;
    }
}

TEST(Reference, EveryExportedFunctionOfATypeIsListedInItsSection) {
    Sections s = sections_of(reference());
    std::vector<std::string> symbols = committed_symbols();
    ASSERT_FALSE(symbols.empty());
    std::map<std::string, std::set<std::string>> of_type;
    std::set<std::string> claimed;
    for (const s2j::TypeInfo *t : all_types()) {
        std::set<std::string> possible = possible_names(t->name);
        for (const std::string &sym : symbols)
            if (possible.count(sym)) {
                of_type[t->name].insert(sym);
                EXPECT_TRUE(claimed.insert(sym).second) << sym << " fits two types";
            }
    }
    for (const std::string &sym : symbols) {
        if (sym.rfind("cJSON_", 0) == 0) continue;
        EXPECT_TRUE(claimed.count(sym)) << sym << " belongs to no type";
    }
    for (const s2j::TypeInfo *t : all_types()) {
        std::vector<std::string> listed = code_spans(item_of(s.by_type[t->name], "Functions"));
        EXPECT_EQ(std::set<std::string>(listed.begin(), listed.end()), of_type[t->name]) << t->name;
        EXPECT_EQ(std::set<std::string>(listed.begin(), listed.end()).size(), listed.size()) << t->name;
    }
}

TEST(Reference, RecordArrayShapeGoesWithExportedArrayFunctions) {
    Sections s = sections_of(reference());
    for (const s2j::TypeInfo *t : all_types()) {
        const std::string n = t->name;
        bool arrays = false;
        for (const char *family : {"s2j_array_", "c2s_array_", "j2s_array_", "f2s_array_", "s2f_array_"})
            arrays = arrays || exported(family + n);
        std::string shape = item_of(s.by_type[n], "JSON");
        EXPECT_EQ(shape.rfind("a record array", 0) == 0, arrays) << n << ": " << shape;
        EXPECT_EQ(app_s2j_tool::holds_arrays(*t), arrays) << n;
    }
}

TEST(Reference, TableCellsEscapeBarsBackslashesAndLineBreaks) {
    EXPECT_EQ(app_s2j_tool::markdown_cell("a|b"), "a\\|b");
    EXPECT_EQ(app_s2j_tool::markdown_cell("a\\b"), "a\\\\b");
    EXPECT_EQ(app_s2j_tool::markdown_cell("one\ntwo\r\nthree"), "one two  three");
    EXPECT_EQ(app_s2j_tool::markdown_cell("plain \"text\""), "plain \"text\"");
    // A cell with an escaped bar stays one cell.
    EXPECT_EQ(cells_of("| 1 | " + app_s2j_tool::markdown_cell("x|y") + " |"),
              (std::vector<std::string>{"1", "x\\|y"}));
}

TEST(Reference, SaysItIsGeneratedAndHowToWriteItAgainWithoutBuildPaths) {
    const std::string &md = reference();
    EXPECT_EQ(md.rfind("# Reference of records\n", 0), 0u);
    EXPECT_NE(md.find("`cmake --build BUILD --target records-doc`"), std::string::npos);
    EXPECT_NE(md.find("Do not edit it by hand"), std::string::npos);
    EXPECT_EQ(md.find(APP_S2J_SOURCE_DIR), std::string::npos);
    ASSERT_GE(md.size(), 2u);
    EXPECT_EQ(md.back(), '\n');
    EXPECT_NE(md[md.size() - 2], '\n');
}

TEST(ReferenceCommand, PrintsTheReferenceOnStdout) {
    testing::internal::CaptureStdout();
    int rc = app_s2j_tool::kReferenceCommand.run({});
    std::string out = testing::internal::GetCapturedStdout();
    EXPECT_EQ(rc, app_s2j_tool::kExitOk);
    EXPECT_EQ(out, reference());
}

TEST(ReferenceCommand, ArgumentsAreUsageErrors) {
    {
        StderrCapture err;
        EXPECT_EQ(app_s2j_tool::kReferenceCommand.run({"DeviceInfo"}), app_s2j_tool::kExitUsage);
        EXPECT_EQ(err.text(),
                  "app_s2j: 'reference' takes no arguments\nusage: app_s2j reference\n"
                  "(app_s2j reference --help tells more)\n");
    }
    {
        StderrCapture err;
        EXPECT_EQ(app_s2j_tool::kReferenceCommand.run({"--all"}), app_s2j_tool::kExitUsage);
        EXPECT_EQ(err.text(),
                  "app_s2j: unknown option '--all'\nusage: app_s2j reference\n"
                  "(app_s2j reference --help tells more)\n");
    }
}

}  // namespace
