// app_s2j - command-line front end of libapp_s2j: lists the record types,
// checks JSON files against a type and prints them back as the library
// writes them.  Everything goes through the library's own families.
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "registry.h"

namespace {

const char kUsage[] =
    "usage: app_s2j types\n"
    "       app_s2j check TYPE FILE\n"
    "       app_s2j print TYPE FILE [--compact]\n"
    "\n"
    "  types   list every record type with the families it has\n"
    "  check   load FILE as TYPE (a JSON array as a record array, an object as\n"
    "          one record) and report success or the library's status\n"
    "  print   load FILE as TYPE and print it as the library writes it,\n"
    "          indented, or compact with --compact\n"
    "\n"
    "Exit status: 0 on success, 1 when the file does not load, 2 on wrong usage.\n";

int usage_error(const char *why) {
    std::fprintf(stderr, "app_s2j: %s\n\n%s", why, kUsage);
    return 2;
}

std::string families_of(const s2j::TypeInfo &t) {
    const s2j::Families &f = t.fam;
    std::string s;
    auto add = [&s](bool has, const char *name) {
        if (has) s += std::string(s.empty() ? "" : " ") + name;
    };
    add(f.s2j, "s2j");
    add(f.c2s, "c2s");
    add(f.j2s, "j2s");
    add(f.s2j_array, "s2j_array");
    add(f.c2s_array, "c2s_array");
    add(f.j2s_array, "j2s_array");
    add(f.c2s_array_update, "c2s_array_update");
    add(f.j2s_array_update, "j2s_array_update");
    add(f.f2s, "f2s");
    add(f.s2f, "s2f");
    add(f.f2s_array, "f2s_array");
    add(f.s2f_array, "s2f_array");
    add(t.hooks->keyword, "keyword");
    add(t.hooks->get_keyword, "get_keyword");
    return s.empty() ? "(emitter and reader only)" : s;
}

int list_types() {
    size_t n = 0;
    const s2j::TypeInfo *types = s2j::registry(&n);
    for (size_t i = 0; i < n; ++i)
        std::printf("%-36s %-10s %s\n", types[i].name, types[i].subsystem, families_of(types[i]).c_str());
    return 0;
}

bool read_whole(const char *path, std::string *text) {
    FILE *f = std::fopen(path, "rb");
    if (f == nullptr) {
        std::fprintf(stderr, "app_s2j: cannot read '%s': %s\n", path, std::strerror(errno));
        return false;
    }
    char buf[65536];
    size_t got;
    while ((got = std::fread(buf, 1, sizeof buf, f)) > 0) text->append(buf, got);
    bool ok = !std::ferror(f);
    std::fclose(f);
    if (!ok) std::fprintf(stderr, "app_s2j: cannot read '%s'\n", path);
    return ok;
}

// The records loaded from a file: one, or count of an array.
struct Loaded {
    bool is_array = false;
    uint32_t count = 0;
    std::vector<char> bytes;
};

// For a type without a text reader of this shape: the tree, parsed by cJSON,
// read with c2s / c2s_array, or element by element with the type's reader.
int read_tree(const s2j::TypeInfo &t, const std::string &text, Loaded *out) {
    const s2j::Families &f = t.fam;
    cJSON *tree = cJSON_Parse(text.c_str());
    if (tree == nullptr) {
        std::fprintf(stderr, "app_s2j: the text does not parse near: %.40s\n", cJSON_GetErrorPtr());
        return -2;
    }
    int rc = 0;
    if (out->is_array) {
        out->count = static_cast<uint32_t>(cJSON_GetArraySize(tree));
        out->bytes.assign(t.desc->size * (out->count == 0 ? 1 : out->count), 0);
        if (f.c2s_array) {
            rc = f.c2s_array(tree, out->bytes.data(), &out->count);
        } else {
            uint32_t i = 0;
            for (const cJSON *e = tree->child; e != nullptr && rc == 0; e = e->next, ++i)
                rc = cJSON_IsObject(e) && t.hooks->read(out->bytes.data() + i * t.desc->size, e) ? 0 : -1;
        }
    } else if (f.c2s) {
        rc = f.c2s(tree, out->bytes.data());
    } else {
        rc = cJSON_IsObject(tree) && t.hooks->read(out->bytes.data(), tree) ? 0 : -1;
    }
    cJSON_Delete(tree);
    return rc;
}

// Loads path as type t through the library: files through the file
// families where the type has them, else the text or tree families.
// Returns the library's status (0 on success).
int load(const s2j::TypeInfo &t, const char *path, const std::string &text, Loaded *out) {
    const s2j::Families &f = t.fam;
    size_t i = text.find_first_not_of(" \t\r\n");
    out->is_array = i != std::string::npos && text[i] == '[';
    const size_t size = t.desc->size;
    if (out->is_array) {
        uint32_t n = 0;
        int rc;
        if (f.f2s_array)
            rc = f.f2s_array(path, nullptr, &n);
        else if (f.j2s_array)
            rc = f.j2s_array(text.c_str(), nullptr, &n);
        else
            return read_tree(t, text, out);
        if (rc != 0) return rc;
        out->bytes.assign(size * (n == 0 ? 1 : n), 0);
        out->count = n;
        return f.f2s_array ? f.f2s_array(path, out->bytes.data(), &out->count)
                           : f.j2s_array(text.c_str(), out->bytes.data(), &out->count);
    }
    out->bytes.assign(size, 0);
    out->count = 1;
    if (f.f2s) return f.f2s(path, out->bytes.data());
    if (f.j2s) return f.j2s(text.c_str(), out->bytes.data());
    return read_tree(t, text, out);
}

const char *status_text(int rc) {
    switch (rc) {
        case -1: return "a member has the wrong JSON type";
        case -2: return "bad argument, wrong JSON type, or text that does not parse";
        case -7: return "file not written";
        case -15: return "file not read";
        default: return "failure";
    }
}

int load_or_report(const s2j::TypeInfo &t, const char *path, Loaded *out) {
    std::string text;
    if (!read_whole(path, &text)) return 1;
    int rc = load(t, path, text, out);
    if (rc != 0) {
        std::fprintf(stderr, "app_s2j: %s: not a valid %s%s: status %d (%s)\n", path, t.name,
                     out->is_array ? " array" : "", rc, status_text(rc));
        return 1;
    }
    return 0;
}

int check(const s2j::TypeInfo &t, const char *path) {
    Loaded l;
    if (int rc = load_or_report(t, path, &l)) return rc;
    if (l.is_array)
        std::printf("%s: valid %s array, %u record%s\n", path, t.name, l.count, l.count == 1 ? "" : "s");
    else
        std::printf("%s: valid %s\n", path, t.name);
    return 0;
}

char *emit_text(const s2j::TypeInfo &t, const Loaded &l, int formatted) {
    const s2j::Families &f = t.fam;
    if (!l.is_array && f.s2j) return f.s2j(l.bytes.data(), formatted);
    if (l.is_array && f.s2j_array) return f.s2j_array(l.bytes.data(), l.count, formatted);
    // No text family: the emitter's tree, printed as the families print.
    cJSON *tree = l.is_array ? cJSON_CreateArray() : t.hooks->emit(l.bytes.data());
    for (uint32_t i = 0; l.is_array && tree != nullptr && i < l.count; ++i)
        cJSON_AddItemToArray(tree, t.hooks->emit(l.bytes.data() + i * t.desc->size));
    char *text = tree == nullptr ? nullptr : formatted ? cJSON_Print(tree) : cJSON_PrintUnformatted(tree);
    cJSON_Delete(tree);
    return text;
}

int print(const s2j::TypeInfo &t, const char *path, bool compact) {
    Loaded l;
    if (int rc = load_or_report(t, path, &l)) return rc;
    if (l.is_array && l.count == 0) {
        std::fprintf(stderr, "app_s2j: %s: the array is empty; the library writes no empty arrays\n", path);
        return 1;
    }
    char *text = emit_text(t, l, compact ? 0 : 1);
    if (text == nullptr) {
        std::fprintf(stderr, "app_s2j: %s could not be written as text\n", t.name);
        return 1;
    }
    std::printf("%s\n", text);
    std::free(text);
    return 0;
}

}  // namespace

int main(int argc, char **argv) {
    if (argc < 2) return usage_error("no command given");
    std::string cmd = argv[1];
    if (cmd == "-h" || cmd == "--help" || cmd == "help") {
        std::fputs(kUsage, stdout);
        return 0;
    }
    if (cmd == "types") return argc == 2 ? list_types() : usage_error("'types' takes no arguments");
    if (cmd != "check" && cmd != "print") return usage_error(("unknown command '" + cmd + "'").c_str());
    bool compact = false;
    std::vector<const char *> args;
    for (int i = 2; i < argc; ++i) {
        if (cmd == "print" && std::strcmp(argv[i], "--compact") == 0)
            compact = true;
        else
            args.push_back(argv[i]);
    }
    if (args.size() != 2) return usage_error(("'" + cmd + "' takes TYPE and FILE").c_str());
    const s2j::TypeInfo *t = s2j::find_type(args[0]);
    if (t == nullptr) {
        std::fprintf(stderr, "app_s2j: unknown record type '%s' (app_s2j types lists them)\n", args[0]);
        return 2;
    }
    return cmd == "check" ? check(*t, args[1]) : print(*t, args[1], compact);
}
