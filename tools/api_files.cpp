// api_files.cpp - writes the files that state the library's functions, from
// the registry (which reads the instantiation lists and the keyword readers
// of the field tables) and the table of families:
//   app_s2j_api_files header TEMPLATE         the public header app_s2j.h
//   app_s2j_api_files symbols                 app_s2j.symbols, the export list
//   app_s2j_api_files debian-symbols DEBIAN   debian/libapp-s2j1.symbols
// Each is printed on standard output.  The target api-files writes all three
// into the tree; the tests *_is_up_to_date compare the committed files with
// this output.
#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "app_s2j.h"
#include "registry.h"

namespace {

using s2j::FamilyInfo;
using s2j::TypeInfo;

// The integer functions of the header's first section, exported beside the families.
const char *const kIntegerFunctions[] = {"cJSON_CreateInt", "cJSON_AddIntToObject", "cJSON_IsInt"};

// The banner of each subsystem's section, by the registry's subsystem name.
const std::map<std::string, std::string> kSubsystemTitles = {
    {"system", "System, time and account records"},
    {"media", "Media input and encoding records"},
    {"streaming", "Streaming records"},
    {"network", "Network and serial records"},
    {"storage", "Storage, recording and snapshot records"},
    {"output", "Output and display records"},
};

// Notes on a group of types, printed before the first type of the group.
const std::map<std::string, std::string> kGroupNotes = {
    {"VerifyPasswordParameter",
     "/* Users and passwords.  The family sets follow the use of each record: a\n"
     " * request is only read from a tree, a result only written; the emitters and\n"
     " * readers of all six exist all the same. */"},
    {"VideoInputCapabilitySet", "/* Video input: all five are arrays. */"},
    {"VideoEncodeCapabilitySet",
     "/* Video encoding.  The keyword reader of VideoEncodeParameter reads Channel\n"
     " * and StreamIndex; its single-key reader Channel alone. */"},
    {"VideoEncodeOSDCapabilitySet",
     "/* Encoder OSD.  The keyword reader of VideoEncodeOSDParameter reads Channel\n"
     " * and Index; its single-key reader Channel alone. */"},
    {"AudioInputCapabilitySet", "/* Audio input and encoding. */"},
    {"StreamingOutputCapabilitySet", "/* Capability sets are loaded from files and never saved. */"},
    {"RtspStreamingParameter", "/* Protocol streams exist only as array elements, keyed by Channel and Index. */"},
    {"StreamingInputStatus", "/* A status: no keyed update and no file. */"},
    {"StreamingInputUseCount",
     "/* json_to_struct_StreamingInputUseCountKeyword reads the whole record as\n"
     " * json_to_struct_StreamingInputUseCount does, but with every key required:\n"
     " * an absent key fails like one of the wrong JSON type.  No family calls it. */"},
    {"ScanWIFIHotspotParameter", "/* A scan request arrives as a tree only. */"},
    {"StorageInterface", "/* Emitter and reader only. */"},
    {"FormatDiskParameter", "/* Requests: read from a tree or text, never made into text. */"},
    {"SnapshotInputParameter",
     "/* The single-picture request is read from a tree only; its answer is only\n"
     " * made into text. */"},
};

constexpr size_t kWidth = 100;  // prototypes are wrapped at this column

std::string replace_t(const std::string &text, const std::string &type) {
    std::string out;
    for (size_t i = 0; i < text.size(); ++i) {
        const bool word = text[i] == 'T' && (i == 0 || !std::isalnum(static_cast<unsigned char>(text[i - 1]))) &&
                          (i + 1 == text.size() || !std::isalnum(static_cast<unsigned char>(text[i + 1])));
        out += word ? type : std::string(1, text[i]);
    }
    return out;
}

// One prototype: "ret name(params);", the parameters wrapped under the first
// one when the line would pass kWidth.
std::string prototype(const std::string &ret, const std::string &name, const std::string &params) {
    std::vector<std::string> parts;
    std::istringstream in(params);
    for (std::string p; std::getline(in, p, ',');) parts.push_back(p[0] == ' ' ? p.substr(1) : p);
    std::string line = ret + name + "(", out;
    const size_t indent = line.size();
    for (size_t i = 0; i < parts.size(); ++i) {
        const std::string piece = parts[i] + (i + 1 < parts.size() ? "," : ");");
        if (i > 0 && line.size() + 1 + piece.size() > kWidth) {
            out += line + "\n";
            line = std::string(indent, ' ') + piece;
        } else {
            line += (i > 0 ? " " : "") + piece;
        }
    }
    return out + line + "\n";
}

const char *c_type(s2j::Kind k) {
    switch (k) {
        case s2j::Kind::I32: return "int32_t";
        case s2j::Kind::U32: return "uint32_t";
        case s2j::Kind::U16: return "uint16_t";
        default: return nullptr;
    }
}

// A family's return type as a prototype starts with it: "int ", "char *".
std::string return_part(const FamilyInfo &f) {
    const std::string r = f.c_return;
    return r.back() == '*' ? r : r + " ";
}

// Every exported function of t, in the header's order, as (name, prototype).
std::vector<std::pair<std::string, std::string>> functions(const TypeInfo &t) {
    const std::string n = t.name;
    std::vector<std::pair<std::string, std::string>> out;
    auto add = [&out](const std::string &ret, const std::string &name, const std::string &params) {
        out.emplace_back(name, prototype(ret, name, params));
    };
    // A prototype of kRecordPrototypes, for this type: what stands before the
    // name, the name, and the parameters.
    auto add_record_function = [&add, &n](const char *text) {
        std::string p = text;
        const std::string placeholder = s2j::kRecordPlaceholder;
        for (size_t at = p.find(placeholder); at != std::string::npos; at = p.find(placeholder, at + n.size()))
            p.replace(at, placeholder.size(), n);
        const size_t open = p.find('('), name = p.find_last_of(" *", open) + 1;
        add(p.substr(0, name), p.substr(name, open - name), p.substr(open + 1, p.size() - open - 2));
    };
    const s2j::RecordPrototypes &proto = s2j::kRecordPrototypes;
    add_record_function(proto.emitter);
    add_record_function(proto.reader);
    // The families of the text list, the keyword readers, then the file families.
    for (int pass = 0; pass < 3; ++pass) {
        if (pass == 1) {
            if (t.hooks->keyword != nullptr)  // without keys: a record read whole with every field required
                add_record_function(t.desc->key_count > 0 ? proto.keyword_reader : proto.all_fields_reader);
            if (t.hooks->get_keyword != nullptr) {
                const s2j::Field &key = t.desc->keys[0].field;
                const char *type = c_type(key.kind);
                add("int ", "json_to_struct_Get" + n + "Keyword",
                    type != nullptr ? std::string(type) + " *" + key.key + ", const cJSON *json"
                                    : std::string("char ") + key.key + "[64], const cJSON *json");
            }
            continue;
        }
        const s2j::List list = pass == 0 ? s2j::List::kTextList : s2j::List::kFileList;
        for (const FamilyInfo &f : s2j::kFamilies)
            if (f.list == list && s2j::has_family(t.fam, f.id))
                add(return_part(f), f.prefix + n + f.suffix, replace_t(f.c_params, n));
    }
    return out;
}

bool read_file(const char *path, std::string *text) {
    std::ifstream in(path, std::ios::binary);
    if (!in) return false;
    std::ostringstream s;
    s << in.rdbuf();
    *text = s.str();
    return true;
}

int header(const char *template_path) {
    std::string text;
    if (!read_file(template_path, &text)) {
        std::fprintf(stderr, "app_s2j_api_files: cannot read %s\n", template_path);
        return 1;
    }
    // The template documents every family once, as the member of T.
    for (const FamilyInfo &f : s2j::kFamilies) {
        const std::string doc = return_part(f) + f.prefix + "T" + f.suffix + "(";
        if (text.find(doc) == std::string::npos) {
            std::fprintf(stderr, "app_s2j_api_files: %s does not document %sT%s\n", template_path, f.prefix, f.suffix);
            return 1;
        }
    }
    size_t count = 0;
    const TypeInfo *types = s2j::registry(&count);
    std::string decls, subsystem;
    size_t notes_used = 0;
    for (size_t i = 0; i < count; ++i) {
        const TypeInfo &t = types[i];
        if (t.subsystem != subsystem) {
            subsystem = t.subsystem;
            auto title = kSubsystemTitles.find(subsystem);
            if (title == kSubsystemTitles.end()) {
                std::fprintf(stderr, "app_s2j_api_files: no title for the subsystem %s\n", subsystem.c_str());
                return 1;
            }
            decls += "/* ======================================================================\n * " + title->second +
                     "\n * ====================================================================== */\n\n";
        }
        auto note = kGroupNotes.find(t.name);
        if (note != kGroupNotes.end()) {
            decls += note->second + "\n";
            ++notes_used;
        }
        for (const auto &f : functions(t)) decls += f.second;
        decls += "\n";
    }
    if (notes_used != kGroupNotes.size()) {
        std::fprintf(stderr, "app_s2j_api_files: a group note names a type the registry does not have\n");
        return 1;
    }
    const std::string marker = "@DECLARATIONS@\n";
    const size_t at = text.find(marker);
    if (at == std::string::npos) {
        std::fprintf(stderr, "app_s2j_api_files: %s has no line %s", template_path, marker.c_str());
        return 1;
    }
    text.replace(at, marker.size(), decls);
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
        if (line.size() > 120) {
            std::fprintf(stderr, "app_s2j_api_files: a line of the header is over 120 characters: %s\n", line.c_str());
            return 1;
        }
    std::fputs(text.c_str(), stdout);
    return 0;
}

std::vector<std::string> exported_names() {
    std::vector<std::string> names(std::begin(kIntegerFunctions), std::end(kIntegerFunctions));
    size_t count = 0;
    const TypeInfo *types = s2j::registry(&count);
    for (size_t i = 0; i < count; ++i)
        for (const auto &f : functions(types[i])) names.push_back(f.first);
    std::sort(names.begin(), names.end());  // byte order, as LC_ALL=C sort
    return names;
}

int symbols() {
    std::printf("# Every symbol libapp_s2j.so.1 exports, one a line, sorted (checked by tests/abi_test.sh).\n");
    for (const std::string &n : exported_names()) std::printf("%s\n", n.c_str());
    return 0;
}

// The Debian symbols file: each symbol with the version that first had it,
// as the committed file states it; a symbol it does not have yet gets this
// version.
int debian_symbols(const char *committed_path) {
    std::string text;
    if (!read_file(committed_path, &text)) {
        std::fprintf(stderr, "app_s2j_api_files: cannot read %s\n", committed_path);
        return 1;
    }
    std::map<std::string, std::string> since;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
        const size_t at = line.find("@Base ");
        if (line.size() > 1 && line[0] == ' ' && at != std::string::npos)
            since[line.substr(1, at - 1)] = line.substr(at + 6);
    }
    std::printf("libapp_s2j.so.1 libapp-s2j1 #MINVER#\n* Build-Depends-Package: libapp-s2j-dev\n");
    for (const std::string &n : exported_names()) {
        auto v = since.find(n);
        std::printf(" %s@Base %s\n", n.c_str(), v != since.end() ? v->second.c_str() : APP_S2J_VERSION_STRING);
    }
    return 0;
}

}  // namespace

int main(int argc, char **argv) {
    if (argc == 3 && std::strcmp(argv[1], "header") == 0) return header(argv[2]);
    if (argc == 2 && std::strcmp(argv[1], "symbols") == 0) return symbols();
    if (argc == 3 && std::strcmp(argv[1], "debian-symbols") == 0) return debian_symbols(argv[2]);
    std::fprintf(stderr,
                 "usage: app_s2j_api_files header TEMPLATE | symbols | debian-symbols COMMITTED_DEBIAN_SYMBOLS\n");
    return 2;
}
