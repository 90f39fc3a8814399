// load.cpp - reading a JSON file as a record type through the library, and
// the helpers and field facts every command shares.
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <strings.h>

#include "registry.h"
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
    for (const s2j::FamilyInfo &fi : s2j::kFamilies)
        if (s2j::has_own_line(fi.id)) add(s2j::has_family(f, fi.id), fi.name);
    add(t.hooks->keyword, "keyword");
    add(t.hooks->get_keyword, "get_keyword");
    return s;
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

int usage_error(const Command &cmd, const std::string &why) {
    std::fprintf(stderr, "app_s2j: %s\nusage: app_s2j %s\n(app_s2j %s --help tells more)\n", why.c_str(),
                 cmd.synopsis, cmd.name);
    return kExitUsage;
}

int rejected(const char *fmt, ...) {
    va_list ap, again;
    va_start(ap, fmt);
    va_copy(again, ap);
    const int n = std::vsnprintf(nullptr, 0, fmt, ap);
    va_end(ap);
    std::string why(n > 0 ? static_cast<size_t>(n) : 0, '\0');
    std::vsnprintf(&why[0], why.size() + 1, fmt, again);
    va_end(again);
    std::fprintf(stderr, "app_s2j: %s\n", why.c_str());
    return kExitRejected;
}

int split_options(const Command &cmd, const std::vector<std::string> &args, std::initializer_list<Flag> flags,
                  std::vector<std::string> *rest) {
    for (const std::string &a : args) {
        const Flag *named = nullptr;
        for (const Flag &f : flags)
            if (a == f.name || (f.alias != nullptr && a == f.alias)) named = &f;
        if (named != nullptr) {
            *named->set = true;
        } else if (a.size() > 1 && a[0] == '-') {
            return usage_error(cmd, "unknown option '" + a + "'");
        } else {
            rest->push_back(a);
        }
    }
    return kExitOk;
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

namespace {

// Prints "app_s2j: cannot read NAME: REASON", or keeps it in *why.
bool cannot_read(const std::string &name, int err, std::string *why) {
    std::string text = "cannot read " + name + ": " + std::strerror(err);
    if (why != nullptr)
        *why = text;
    else
        std::fprintf(stderr, "app_s2j: %s\n", text.c_str());
    return false;
}

bool read_stream_as(FILE *f, const std::string &name, std::string *text, std::string *why) {
    char buf[65536];
    size_t got;
    while ((got = std::fread(buf, 1, sizeof buf, f)) > 0) text->append(buf, got);
    if (!std::ferror(f)) return true;
    return cannot_read(name, errno, why);
}

}  // namespace

bool read_stream(FILE *f, const char *name, std::string *text) { return read_stream_as(f, name, text, nullptr); }

bool read_whole(const std::string &path, std::string *text, std::string *why) {
    const std::string name = "'" + path + "'";
    FILE *f = std::fopen(path.c_str(), "rb");
    if (f == nullptr) return cannot_read(name, errno, why);
    struct stat st;
    if (fstat(fileno(f), &st) == 0 && S_ISDIR(st.st_mode)) {
        std::fclose(f);
        return cannot_read(name, EISDIR, why);
    }
    bool ok = read_stream_as(f, name, text, why);
    std::fclose(f);
    return ok;
}

bool read_input(const std::string &path, std::string *text, std::string *why) {
    return path == "-" ? read_stream_as(stdin, "standard input", text, why) : read_whole(path, text, why);
}

bool reads_arrays(const s2j::TypeInfo &t) {
    for (const s2j::FamilyInfo &fi : s2j::kFamilies)
        if (s2j::converts_arrays(fi.id) && s2j::has_family(t.fam, fi.id)) return true;
    return false;
}

bool reads_records(const s2j::TypeInfo &t) {
    for (const s2j::FamilyInfo &fi : s2j::kFamilies)
        if (!s2j::converts_arrays(fi.id) && s2j::has_family(t.fam, fi.id)) return true;
    return !reads_arrays(t);
}

bool document_is_array(const char *text) {
    cJSON *tree = s2j::parse_marked(text, 0, false);
    bool array = cJSON_IsArray(tree);
    cJSON_Delete(tree);
    return array;
}

bool shape_is_array(const s2j::TypeInfo &t, const char *text) {
    if (!reads_arrays(t)) return false;
    if (!reads_records(t)) return true;
    return document_is_array(text);
}

std::string cut_diagnostic(const std::string &text, size_t max_line) {
    std::string out;
    size_t at = 0;
    while (at < text.size()) {
        size_t nl = text.find('\n', at);
        size_t end = nl == std::string::npos ? text.size() : nl;
        std::string line = text.substr(at, end - at);
        if (line.size() > max_line) {
            const bool coloured = line.find("\033[") != std::string::npos;
            size_t cut = max_line;
            // Never split a multi-byte character.
            while (cut > 0 && (static_cast<unsigned char>(line[cut]) & 0xC0) == 0x80) --cut;
            const size_t left = line.size() - cut;
            line = line.substr(0, cut) + "... (" + std::to_string(left) + " more bytes)";
            if (coloured) line += "\033[0m";
        }
        out += line + "\n";
        at = end + 1;
    }
    return out;
}

int quoted_call(const std::function<int()> &call) {
    std::fflush(stderr);
    // In memory: a file in a file system would cost a create and an unlink
    // per call.
    int fd = memfd_create("app_s2j-diagnostic", MFD_CLOEXEC);
    FILE *capture = fd >= 0 ? fdopen(fd, "w+b") : std::tmpfile();
    if (capture == nullptr && fd >= 0) close(fd);
    int saved = capture != nullptr ? dup(2) : -1;
    if (saved < 0 || dup2(fileno(capture), 2) < 0) {
        if (saved >= 0) close(saved);
        if (capture != nullptr) std::fclose(capture);
        return call();
    }
    int rc = call();
    std::fflush(stderr);
    dup2(saved, 2);
    close(saved);
    std::string said;
    std::rewind(capture);
    char buf[4096];
    size_t got;
    while ((got = std::fread(buf, 1, sizeof buf, capture)) > 0) said.append(buf, got);
    std::fclose(capture);
    std::fputs(cut_diagnostic(said, kDiagnosticWidth).c_str(), stderr);
    return rc;
}

namespace {

// The text does not parse: the library's own diagnostic and status where the
// type has a text reader of that shape, else the tool's.
int parse_failure(const s2j::TypeInfo &t, const std::string &text, bool array) {
    const s2j::Families &f = t.fam;
    if (array && f.j2s_array) {
        uint32_t n = 0;
        int rc = quoted_call([&] { return f.j2s_array(text.c_str(), nullptr, &n); });
        if (rc != 0) return rc;
    }
    if (!array && f.j2s) {
        std::vector<char> rec(t.desc->size, 0);
        int rc = quoted_call([&] { return f.j2s(text.c_str(), rec.data()); });
        if (rc != 0) return rc;
    }
    const char *e = cJSON_GetErrorPtr();
    std::fprintf(stderr, "app_s2j: the text does not parse near: %.40s\n", e != nullptr ? e : "");
    return -2;
}

int load_array(const s2j::TypeInfo &t, const std::string &text, Loaded *out, const RecordSink &sink) {
    const s2j::Families &f = t.fam;
    const size_t size = t.desc->size;
    cJSON *tree = s2j::parse_marked(text.c_str(), 0, false);
    if (tree == nullptr) return parse_failure(t, text, true);
    int rc = 0;
    if (f.c2s_array) {
        uint32_t n = 0;
        rc = quoted_call([&] { return f.c2s_array(tree, nullptr, &n); });
    } else if (!cJSON_IsArray(tree)) {
        std::fprintf(stderr, "app_s2j: %s is read as a record array; the document is not an array\n", t.name);
        rc = -2;
    }
    // Element by element, a chunk at a time: the records of the whole array
    // are never held at once, only the tree the text makes.
    std::vector<char> chunk;
    cJSON *e = rc == 0 ? tree->child : nullptr;
    while (rc == 0 && e != nullptr) {
        cJSON *first = e, *last = e;
        uint32_t k = 1;
        while (k < kChunkRecords && last->next != nullptr) {
            last = last->next;
            ++k;
        }
        cJSON *after = last->next;
        cJSON *before = first->prev;
        last->next = nullptr;
        first->prev = last;
        chunk.assign(size * k, 0);
        if (f.c2s_array) {
            cJSON part;
            std::memset(&part, 0, sizeof part);
            part.type = cJSON_Array;
            part.child = first;
            rc = quoted_call([&] { return f.c2s_array(&part, chunk.data(), &k); });
        } else {
            uint32_t i = 0;
            for (const cJSON *r = first; r != nullptr && rc == 0; r = r->next, ++i)
                rc = cJSON_IsObject(r) && t.hooks->read(chunk.data() + i * size, r) ? 0 : -1;
        }
        last->next = after;
        first->prev = before;
        if (rc == 0) {
            out->count += k;
            if (sink && !sink(chunk.data(), k)) rc = -2;
        }
        e = after;
    }
    cJSON_Delete(tree);
    return rc;
}

int load_record(const s2j::TypeInfo &t, const std::string &text, Loaded *out, const RecordSink &sink) {
    const s2j::Families &f = t.fam;
    std::vector<char> rec(t.desc->size, 0);
    int rc;
    if (f.j2s) {
        // The file family's reading: the text up to its first NUL byte.
        rc = quoted_call([&] { return f.j2s(text.c_str(), rec.data()); });
    } else {
        cJSON *tree = s2j::parse_marked(text.c_str(), 0, false);
        if (tree == nullptr) return parse_failure(t, text, false);
        if (f.c2s)
            rc = quoted_call([&] { return f.c2s(tree, rec.data()); });
        else
            rc = cJSON_IsObject(tree) && t.hooks->read(rec.data(), tree) ? 0 : -1;
        cJSON_Delete(tree);
    }
    if (rc != 0) return rc;
    out->count = 1;
    if (sink && !sink(rec.data(), 1)) return -2;
    return 0;
}

}  // namespace

int load(const s2j::TypeInfo &t, const std::string &text, Loaded *out, const RecordSink &sink) {
    out->is_array = shape_is_array(t, text.c_str());
    out->count = 0;
    return out->is_array ? load_array(t, text, out, sink) : load_record(t, text, out, sink);
}

char *emit_text(const s2j::TypeInfo &t, const char *recs, uint32_t count, bool array, int formatted) {
    const s2j::Families &f = t.fam;
    if (!array && f.s2j) return f.s2j(recs, formatted);
    if (array && f.s2j_array) return f.s2j_array(recs, count, formatted);
    // No text family: the emitter's tree, printed as the families print.
    // A record that cannot be emitted (no memory) fails the whole text
    // rather than leave the record out of it.
    cJSON *tree = array ? cJSON_CreateArray() : t.hooks->emit(recs);
    for (uint32_t i = 0; array && tree != nullptr && i < count; ++i) {
        cJSON *record = t.hooks->emit(recs + static_cast<size_t>(i) * t.desc->size);
        if (!cJSON_AddItemToArray(tree, record)) {
            cJSON_Delete(record);
            cJSON_Delete(tree);
            tree = nullptr;
        }
    }
    char *text = tree == nullptr ? nullptr : formatted ? cJSON_Print(tree) : cJSON_PrintUnformatted(tree);
    cJSON_Delete(tree);
    return text;
}

int write_document(const s2j::TypeInfo &t, const std::string &text, bool compact,
                   const std::function<void(const std::string &)> &put) {
    const int formatted = compact ? 0 : 1;
    bool first = true, array = false;
    auto write = [&](const char *recs, uint32_t count) {
        char *out = emit_text(t, recs, count, array, formatted);
        if (out == nullptr) return false;
        std::string chunk = out;
        std::free(out);
        if (array) {
            // The library's text of each chunk, joined where one ends and
            // the next begins.
            if (chunk.size() < 2 || chunk.front() != '[' || chunk.back() != ']') return false;
            chunk = first ? chunk.substr(0, chunk.size() - 1)
                          : (compact ? "," : ", ") + chunk.substr(1, chunk.size() - 2);
        }
        first = false;
        put(chunk);
        return true;
    };
    Loaded l;
    array = shape_is_array(t, text.c_str());
    int rc = load(t, text, &l, write);
    if (rc == 0 && array && l.count > 0) put("]");
    return rc;
}

}  // namespace app_s2j_tool
