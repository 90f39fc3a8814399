// load.cpp - reading a JSON file as a record type through the library, and
// the helpers and field facts every command shares.
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <strings.h>

#include "s2j_internal.h"
#include "tool.h"

namespace app_s2j_tool {

std::string c_type_of(const s2j::Field &f) {
    switch (f.kind) {
        case s2j::Kind::I32: return "int32";
        case s2j::Kind::U32: return "uint32";
        case s2j::Kind::U16: return "uint16";
        case s2j::Kind::Str: return "char[" + std::to_string(f.size) + "]";
        case s2j::Kind::U32List: return "uint32[" + std::to_string(f.size / 4) + "]";
    }
    return "?";
}

IntRange range_of(s2j::Kind k) {
    switch (k) {
        case s2j::Kind::I32: return {INT32_MIN, INT32_MAX};
        case s2j::Kind::U16: return {0, UINT16_MAX};
        default: return {0, UINT32_MAX};
    }
}

std::string families_of(const s2j::TypeInfo &t, const char *sep) {
    const s2j::Families &f = t.fam;
    std::string s;
    auto add = [&s, sep](bool has, const char *name) {
        if (has) s += std::string(s.empty() ? "" : sep) + name;
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
    return s;
}

int usage_error(const Command &cmd, const std::string &why) {
    std::fprintf(stderr, "app_s2j: %s\nusage: app_s2j %s\n(app_s2j %s --help tells more)\n", why.c_str(),
                 cmd.synopsis, cmd.name);
    return kExitUsage;
}

const s2j::TypeInfo *find_type_or_report(const std::string &name) {
    const s2j::TypeInfo *t = s2j::find_type(name.c_str());
    if (t != nullptr) return t;
    // A name that differs only in letter case is named as the likely one.
    size_t n = 0;
    const s2j::TypeInfo *types = s2j::registry(&n);
    const char *like = nullptr;
    for (size_t i = 0; i < n && like == nullptr; ++i)
        if (strcasecmp(types[i].name, name.c_str()) == 0) like = types[i].name;
    if (like != nullptr)
        std::fprintf(stderr, "app_s2j: unknown record type '%s'; did you mean '%s'?\n", name.c_str(), like);
    else
        std::fprintf(stderr, "app_s2j: unknown record type '%s' (app_s2j types lists them)\n", name.c_str());
    return nullptr;
}

bool read_stream(FILE *f, const char *name, std::string *text) {
    char buf[65536];
    size_t got;
    while ((got = std::fread(buf, 1, sizeof buf, f)) > 0) text->append(buf, got);
    if (!std::ferror(f)) return true;
    std::fprintf(stderr, "app_s2j: cannot read %s\n", name);
    return false;
}

bool read_whole(const std::string &path, std::string *text) {
    FILE *f = std::fopen(path.c_str(), "rb");
    if (f == nullptr) {
        std::fprintf(stderr, "app_s2j: cannot read '%s': %s\n", path.c_str(), std::strerror(errno));
        return false;
    }
    bool ok = read_stream(f, ("'" + path + "'").c_str(), text);
    std::fclose(f);
    return ok;
}

namespace {

// For a type without a text reader of this shape: the tree, parsed as the
// library's text readers parse (numbers marked as integer literals or not),
// read with c2s / c2s_array, or element by element with the type's reader.
int read_tree(const s2j::TypeInfo &t, const std::string &text, Loaded *out) {
    const s2j::Families &f = t.fam;
    cJSON *tree = s2j::parse_marked(text.c_str(), 0, false);
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

}  // namespace

bool is_array_text(const char *text, size_t len) {
    size_t i = len >= 3 && std::memcmp(text, "\xEF\xBB\xBF", 3) == 0 ? 3 : 0;
    while (i < len && std::strchr(" \t\r\n", text[i]) != nullptr && text[i] != '\0') ++i;
    return i < len && text[i] == '[';
}

int load(const s2j::TypeInfo &t, const std::string &path, const std::string &text, Loaded *out) {
    const s2j::Families &f = t.fam;
    out->is_array = is_array_text(text.data(), text.size());
    const size_t size = t.desc->size;
    if (out->is_array) {
        uint32_t n = 0;
        int rc;
        if (f.f2s_array)
            rc = f.f2s_array(path.c_str(), nullptr, &n);
        else if (f.j2s_array)
            rc = f.j2s_array(text.c_str(), nullptr, &n);
        else
            return read_tree(t, text, out);
        if (rc != 0) return rc;
        out->bytes.assign(size * (n == 0 ? 1 : n), 0);
        out->count = n;
        return f.f2s_array ? f.f2s_array(path.c_str(), out->bytes.data(), &out->count)
                           : f.j2s_array(text.c_str(), out->bytes.data(), &out->count);
    }
    out->bytes.assign(size, 0);
    out->count = 1;
    if (f.f2s) return f.f2s(path.c_str(), out->bytes.data());
    if (f.j2s) return f.j2s(text.c_str(), out->bytes.data());
    return read_tree(t, text, out);
}

}  // namespace app_s2j_tool
