// The binary layout of every record type, against the committed data file
// tests/record-layouts.txt: each struct's size, each member's key, offset,
// size and C type, each type's keys, and each keyword record's size and key
// offsets.  The text is made from the registry, whose tables the library
// derives from the structs (offsetof, sizeof, the member's C type), so a
// change to any struct shows here as the lines it changes.  The records have
// the natural layout of 4-byte aligned members on every target, so the same
// file holds on 32-bit and big-endian targets.
//
// Run with `--write PATH` (or build the target record-layouts), the program
// writes the text to PATH instead of running the tests.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "registry.h"
#include "support.h"

using namespace testing_support;
using s2j::Field;
using s2j::Kind;
using s2j::TypeInfo;

namespace {

const char kLayoutsFile[] = APP_S2J_SOURCE_DIR "/tests/record-layouts.txt";

const char kHeading[] =
    "# The layout of every record type: what tests/test_record_layouts.cpp makes\n"
    "# from the library's field tables and compares with this file, line by line.\n"
    "# Written again, after a deliberate change of a struct, by\n"
    "#   cmake --build --preset default --target record-layouts\n"
    "# (build/tests/test_record_layouts --write tests/record-layouts.txt).\n"
    "#\n"
    "#   <T> size <bytes>                                   the struct\n"
    "#   <T>.<key> offset <o> size <bytes> <C type>         each member, in order\n"
    "#   <T> keys <key>...                                  a keyed type's keys, in key order\n"
    "#   <T> keyword-record <K>                             the record its keyword reader fills\n"
    "#   <T>Keyword size <bytes>                            a keyword record, and each key in it:\n"
    "#   <T>Keyword.<key> offset <o> size <bytes> <C type>  (a string key is char[64] there)\n"
    "# Each data line that differs is reported with its type and member; the notes\n"
    "# above some lines are written by the test program too (edit them there).\n";

// Why a few layouts are as they are, written above the line they explain.
const std::map<std::string, const char *> &notes() {
    static const std::map<std::string, const char *> n = {
        {"NetworkCapabilitySet size", "eight int32 flags"},
        {"VideoInputParameter.ScanningFrequencyInteger offset",
         "the two 16-bit scanning-frequency parts take the room of one 32-bit field"},
        {"VideoEncodeParameter.FramerateInteger offset",
         "the two 16-bit frame-rate parts take the room of one 32-bit field"},
        {"NetworkLANParameter.MTUSize offset",
         "the LAN MTU is 16 bits wide, directly after MACAddress: it fills the last two bytes without padding"},
        {"NetworkWIFIParameter.MTUSize offset", "the wireless MTU is 32 bits wide, aligned after MACAddress"},
        {"WIFIHotspot.SignalStrength offset", "signal levels are signed"},
        {"SerialPortNetworkTransferParameter.InterfaceName offset", "the key is the second field"},
        {"SerialPortNetworkTransferParameterKeyword size", "the keyword record is the name alone"},
        {"DiskGroupParameter.GroupID offset", "GroupID is signed"},
        {"FormatDiskProgress.FormatDiskProgressPercent offset", "the percentage is signed"},
        {"RecordStatus size", "three uint32 words"},
    };
    return n;
}

// The C type of a member of that kind and size.
std::string c_type(Kind kind, uint32_t size) {
    switch (kind) {
        case Kind::I32: return "int32_t";
        case Kind::U32: return "uint32_t";
        case Kind::U16: return "uint16_t";
        case Kind::Str: return "char[" + std::to_string(size) + "]";
        case Kind::U32List: return "uint32_t[" + std::to_string(size / 4) + "]";
    }
    return "?";
}

std::string member_line(const std::string &owner, const Field &f) {
    return owner + "." + f.key + " offset " + std::to_string(f.offset) + " size " + std::to_string(f.size) + " " +
           c_type(f.kind, f.size);
}

// The name of the record that a type's keyword reader fills ("" for none).
std::string keyword_record(const TypeInfo &t) {
    if (t.hooks->keyword == nullptr) return "";
    return t.desc->keys != nullptr ? std::string(t.name) + "Keyword" : std::string(t.name);
}

// The layout text of every registry type; with `notes_too` the heading,
// a comment per subsystem and the notes.
std::string layouts(bool notes_too) {
    std::ostringstream out;
    if (notes_too) out << kHeading;
    const char *subsystem = "";
    auto line = [&](const std::string &text) {
        std::istringstream words(text);
        std::string owner, what;
        words >> owner >> what;
        auto note = notes().find(owner + " " + what);
        if (notes_too && note != notes().end()) out << "# " << note->second << "\n";
        out << text << "\n";
    };
    for (const TypeInfo *t : all_types()) {
        if (notes_too && std::strcmp(subsystem, t->subsystem) != 0)
            out << "\n# ---- " << (subsystem = t->subsystem) << " ----\n";
        line(std::string(t->name) + " size " + std::to_string(t->desc->size));
        for (uint32_t i = 0; i < t->desc->field_count; ++i) line(member_line(t->name, t->desc->fields[i]));
        if (t->desc->key_count > 0) {
            std::string keys = std::string(t->name) + " keys";
            for (uint32_t i = 0; i < t->desc->key_count; ++i) keys += std::string(" ") + t->desc->keys[i].field.key;
            line(keys);
        }
        const std::string kw = keyword_record(*t);
        if (!kw.empty()) line(std::string(t->name) + " keyword-record " + kw);
        if (kw.empty() || t->desc->keys == nullptr) continue;
        line(kw + " size " + std::to_string(t->hooks->keyword_size));
        for (uint32_t i = 0; i < t->desc->key_count; ++i) line(member_line(kw, s2j::keyword_field(t->desc->keys[i])));
    }
    return out.str();
}

std::vector<std::string> all_lines(const std::string &text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string l; std::getline(in, l);) lines.push_back(l);
    return lines;
}

// The lines that state facts: neither blank nor comments.
std::vector<std::string> data_lines(const std::string &text) {
    std::vector<std::string> lines;
    for (const std::string &l : all_lines(text))
        if (!l.empty() && l[0] != '#') lines.push_back(l);
    return lines;
}

// What a line states a fact of: "<T or T.key> <attribute>".
std::string label(const std::string &line) {
    std::istringstream words(line);
    std::string owner, what;
    words >> owner >> what;
    return owner + " " + what;
}

// Each line of `file` that the `library` text does not have, or has
// otherwise, named by its type and member; then lines out of order.
std::vector<std::string> layout_differences(const std::string &file, const std::string &library) {
    const std::vector<std::string> want = data_lines(file), got = data_lines(library);
    std::map<std::string, std::string> in_file, in_library;
    for (const std::string &l : want) in_file[label(l)] = l;
    for (const std::string &l : got) in_library[label(l)] = l;
    std::vector<std::string> diffs;
    for (const std::string &l : got) {
        auto f = in_file.find(label(l));
        if (f == in_file.end())
            diffs.push_back(label(l) + ": not in the file; the library gives \"" + l + "\"");
        else if (f->second != l)
            diffs.push_back(label(l) + ": the file says \"" + f->second + "\", the library gives \"" + l + "\"");
    }
    for (const std::string &l : want)
        if (in_library.count(label(l)) == 0)
            diffs.push_back(label(l) + ": not in the library; the file says \"" + l + "\"");
    if (diffs.empty() && want.size() != got.size())
        diffs.push_back("the file has " + std::to_string(want.size()) + " lines, the library " +
                        std::to_string(got.size()));
    for (size_t i = 0; diffs.empty() && i < want.size(); ++i)
        if (want[i] != got[i])
            diffs.push_back("line " + std::to_string(i + 1) + " out of order: the file has \"" + want[i] +
                            "\", the library \"" + got[i] + "\"");
    return diffs;
}

TEST(RecordLayouts, EveryTypesSizeMembersKeysAndKeywordRecordAreTheCommittedOnes) {
    ASSERT_TRUE(file_exists(kLayoutsFile)) << kLayoutsFile;
    for (const std::string &d : layout_differences(read_file(kLayoutsFile), layouts(false))) ADD_FAILURE() << d;
}

// Comments and notes included, the file is what --write gives; the first
// line that is not is reported.
TEST(RecordLayouts, CommittedFileIsTheWrittenTextWithItsNotes) {
    const std::vector<std::string> file = all_lines(read_file(kLayoutsFile)), written = all_lines(layouts(true));
    for (size_t i = 0; i < file.size() || i < written.size(); ++i) {
        const std::string a = i < file.size() ? file[i] : "<end of file>";
        const std::string b = i < written.size() ? written[i] : "<end of text>";
        if (a == b) continue;
        ADD_FAILURE() << kLayoutsFile << ":" << i + 1 << " is \"" << a << "\", --write gives \"" << b << "\"";
        break;
    }
}

TEST(RecordLayouts, CommittedFileStatesEveryTypeAndEveryKeywordRecord) {
    size_t types = 0, keyword_records = 0;
    for (const std::string &l : data_lines(read_file(kLayoutsFile))) {
        const std::string what = label(l);
        const bool size_line = what.size() > 5 && what.compare(what.size() - 5, 5, " size") == 0;
        if (size_line && what.find('.') == std::string::npos)
            ++(what.find("Keyword ") != std::string::npos ? keyword_records : types);
    }
    EXPECT_EQ(types, 105u);
    size_t with_keyword_record = 0;
    for (const TypeInfo *t : all_types())
        with_keyword_record += t->hooks->keyword != nullptr && t->desc->keys != nullptr;
    EXPECT_EQ(keyword_records, with_keyword_record);
    EXPECT_GT(keyword_records, 0u);
}

TEST(RecordLayouts, EveryNoteExplainsALineOfTheText) {
    const std::vector<std::string> lines = data_lines(layouts(false));
    for (const auto &note : notes()) {
        bool found = false;
        for (const std::string &l : lines) found = found || label(l) == note.first;
        EXPECT_TRUE(found) << note.first;
    }
}

TEST(RecordLayouts, DifferenceNamesTheTypeAndMemberOfEachChangedMissingOrExtraLine) {
    const std::string library = "A size 8\nA.x offset 0 size 4 int32_t\nA.y offset 4 size 4 uint32_t\n";
    const struct {
        const char *what;
        std::string file;
        std::vector<std::string> differences;
    } cases[] = {
        {"comments and blank lines", "# a comment\n\n" + library, {}},
        {"a changed line",
         "A size 8\nA.x offset 0 size 4 int32_t\nA.y offset 4 size 4 int32_t\n",
         {"A.y offset: the file says \"A.y offset 4 size 4 int32_t\", the library gives "
          "\"A.y offset 4 size 4 uint32_t\""}},
        {"a missing line",
         "A size 8\nA.x offset 0 size 4 int32_t\n",
         {"A.y offset: not in the file; the library gives \"A.y offset 4 size 4 uint32_t\""}},
        {"an extra line",
         library + "A.z offset 8 size 2 uint16_t\n",
         {"A.z offset: not in the library; the file says \"A.z offset 8 size 2 uint16_t\""}},
        {"two lines swapped",
         "A size 8\nA.y offset 4 size 4 uint32_t\nA.x offset 0 size 4 int32_t\n",
         {"line 2 out of order: the file has \"A.y offset 4 size 4 uint32_t\", the library "
          "\"A.x offset 0 size 4 int32_t\""}},
        {"a line twice", library + "A size 8\n", {"the file has 4 lines, the library 3"}},
    };
    for (const auto &c : cases) EXPECT_EQ(layout_differences(c.file, library), c.differences) << c.what;
}

// The C types come from the compiled tables, except for keyword records,
// whose integer keys the tables see only by size: the public types header
// declares every member of every record and keyword record with the C type
// of its layout line, and declares no other struct.
TEST(RecordLayouts, PublicHeaderDeclaresEveryMemberWithItsLayoutsCType) {
    std::map<std::string, std::vector<std::string>> from_layouts;
    for (const std::string &l : data_lines(layouts(false))) {
        std::istringstream words(l);
        std::string owner, offset_word, offset, size_word, size, type;
        words >> owner >> offset_word >> offset >> size_word >> size >> type;
        const size_t dot = owner.find('.');
        if (dot == std::string::npos) {
            if (offset_word == "size") from_layouts[owner];
            continue;
        }
        from_layouts[owner.substr(0, dot)].push_back(type + " " + owner.substr(dot + 1));
    }
    std::map<std::string, std::vector<std::string>> declared;
    for (const auto &s : declared_structs())
        for (const DeclaredMember &m : s.second) declared[s.first].push_back(m.type + " " + m.name);
    for (const auto &s : declared_structs()) EXPECT_EQ(from_layouts.count(s.first), 1u) << s.first;
    for (const auto &s : from_layouts) EXPECT_EQ(declared[s.first], s.second) << s.first;
}

}  // namespace

int main(int argc, char **argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (argc == 3 && std::strcmp(argv[1], "--write") == 0) {
        const std::string text = layouts(true);
        std::FILE *f = std::fopen(argv[2], "wb");
        if (f == nullptr || std::fwrite(text.data(), 1, text.size(), f) != text.size() || std::fclose(f) != 0) {
            std::perror(argv[2]);
            return 1;
        }
        return 0;
    }
    if (argc != 1) {
        std::fprintf(stderr, "usage: %s [gtest options] [--write PATH]\n", argv[0]);
        return 2;
    }
    return RUN_ALL_TESTS();
}
