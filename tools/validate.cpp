// validate.cpp - the validate command: reads a document the way the
// library's readers do and names every member they would reject, cut,
// truncate, ignore or read under another spelling.
//
// The rules below follow the record reader member for member: a key matches
// a field when the two are equal after ASCII tolower(), the first matching
// member is the one read, a missing field is left as it was, an integer
// field takes an integer literal only (stored modulo its width), a string
// field keeps at most its capacity less one bytes, and a list takes its
// entries by position, skipping entries that are not integers.
#include "validate.h"

#include <algorithm>
#include <cctype>
#include <cinttypes>
#include <cstdarg>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <unordered_map>

#include "registry.h"

namespace app_s2j_tool {

bool Validation::accepted() const {
    return std::none_of(findings.begin(), findings.end(), [](const Finding &f) { return f.level == Finding::kError; });
}

int Validation::exit_status() const {
    if (!accepted()) return kExitRejected;
    for (const Finding &f : findings)
        if (f.level == Finding::kWarning) return kExitAltered;
    return kExitOk;
}

namespace {

using s2j::Field;
using s2j::Kind;

std::string printf_string(const char *fmt, ...) __attribute__((format(printf, 1, 2)));
std::string printf_string(const char *fmt, ...) {
    char buf[512];
    va_list ap;
    va_start(ap, fmt);
    std::vsnprintf(buf, sizeof buf, fmt, ap);
    va_end(ap);
    return buf;
}

// Edit distance between a and b without regard to case, counting an
// exchange of two neighbouring letters as one edit; more than limit when
// it exceeds limit (the lengths alone may tell, for keys of any length).
size_t distance(const std::string &a, const std::string &b, size_t limit) {
    const size_t n = a.size(), m = b.size();
    if ((n > m ? n - m : m - n) > limit) return limit + 1;
    auto low = [](char c) { return std::tolower(static_cast<unsigned char>(c)); };
    // Three rows of the table: i-2, i-1 and i.
    std::vector<size_t> prev2(m + 1), prev(m + 1), row(m + 1);
    for (size_t j = 0; j <= m; ++j) prev[j] = j;
    for (size_t i = 1; i <= n; ++i) {
        row[0] = i;
        for (size_t j = 1; j <= m; ++j) {
            size_t cost = low(a[i - 1]) == low(b[j - 1]) ? 0 : 1;
            row[j] = std::min({prev[j] + 1, row[j - 1] + 1, prev[j - 1] + cost});
            if (i > 1 && j > 1 && low(a[i - 1]) == low(b[j - 2]) && low(a[i - 2]) == low(b[j - 1]))
                row[j] = std::min(row[j], prev2[j - 2] + 1);
        }
        std::swap(prev2, prev);
        std::swap(prev, row);
    }
    return prev[m];
}

// Text of a string value for a message: at most max bytes, quoted.
std::string quoted(const char *s, size_t max = 40) {
    std::string out = "\"";
    size_t n = std::strlen(s);
    for (size_t i = 0; i < n && i < max; ++i) {
        char c = s[i];
        if (c == '"' || c == '\\') out += '\\';
        if (static_cast<unsigned char>(c) < 0x20)
            out += printf_string("\\u%04x", static_cast<unsigned>(c));
        else
            out += c;
    }
    if (n > max) out += "...";
    return out + "\"";
}

// The shortest of %.15g, %.16g and %.17g that reads back as d.
std::string shortest(double d) {
    std::string s;
    for (int digits = 15; digits <= 17; ++digits) {
        s = printf_string("%.*g", digits, d);
        if (std::strtod(s.c_str(), nullptr) == d) break;
    }
    return s;
}

// What a JSON value is, for "found ..." in a message.
std::string describe(const cJSON *m) {
    switch (s2j::type_of(m)) {
        case cJSON_String: return "a string (" + quoted(m->valuestring != nullptr ? m->valuestring : "") + ")";
        case cJSON_True: return "true";
        case cJSON_False: return "false";
        case cJSON_NULL: return "null";
        case cJSON_Object: return m->child == nullptr ? "an empty object" : "an object";
        case cJSON_Array: return m->child == nullptr ? "an empty array" : "an array";
        case cJSON_Number:
        case cJSON_Raw:
            if (s2j::is_int(m)) return printf_string("the integer %" PRId64, s2j::int_value(m));
            return "the number " + shortest(m->valuedouble);
        default: return "a value of unknown kind";
    }
}

// Why a number is not an integer to the library.
std::string not_integer_why(const cJSON *m) {
    if (s2j::type_of(m) != cJSON_Number) return "";
    if (!(std::fabs(m->valuedouble) < s2j::kTwo63)) return ", beyond the 64-bit integer range";
    return ", written with a fraction or an exponent (integer fields take digits only)";
}

class Checker {
public:
    Checker(const s2j::TypeInfo &t, Validation *out) : t_(t), d_(*t.desc), out_(out) {}

    void add(Finding::Level level, const std::string &place, const std::string &text) {
        out_->findings.push_back(Finding{level, place, text});
    }

    // One record; prefix is the place of the record ("" or "[3]").
    void record(const cJSON *obj, const std::string &prefix) {
        const uint32_t n = d_.field_count;
        std::vector<const cJSON *> match(n, nullptr);
        for (uint32_t i = 0; i < n; ++i)
            for (const cJSON *m = obj->child; m != nullptr && match[i] == nullptr; m = m->next)
                if (m->string != nullptr && s2j::same_key(m->string, d_.fields[i].key)) match[i] = m;
        // Members in document order: unknown, repeated, or spelt otherwise.
        for (const cJSON *m = obj->child; m != nullptr; m = m->next) {
            if (m->string == nullptr) continue;
            const std::string place = member_place(prefix, m->string);
            const Field *read_as = nullptr;
            const Field *also = nullptr;
            for (uint32_t i = 0; i < n; ++i) {
                if (match[i] != m) continue;
                if (read_as == nullptr) read_as = &d_.fields[i]; else also = &d_.fields[i];
            }
            if (read_as == nullptr) {
                const Field *same = field_matching(m->string);
                if (same != nullptr)
                    add(Finding::kWarning, place,
                        printf_string("\"%s\" appears again; the library reads only the first and ignores this one",
                                      same->key));
                else
                    unknown_key(m->string, place);
                continue;
            }
            if (std::strcmp(m->string, read_as->key) != 0)
                add(Finding::kWarning, place,
                    printf_string("the key differs from \"%s\" only in letter case; the library reads it as \"%s\"",
                                  read_as->key, read_as->key));
            field(*read_as, m, place);
            if (also != nullptr) {
                add(Finding::kWarning, place,
                    printf_string("the library reads this member into both \"%s\" and \"%s\"", read_as->key,
                                  also->key));
                field(*also, m, place);
            }
        }
    }

    // The key fields an update element must have.
    void update_keys(const cJSON *elem, const std::string &prefix, Finding::Level level) {
        for (uint32_t k = 0; k < d_.key_count; ++k) {
            const char *key = d_.keys[k].field.key;
            if (cJSON_GetObjectItem(elem, key) != nullptr) continue;
            add(level, prefix,
                level == Finding::kError
                    ? printf_string("no \"%s\": every element of an update names its record by its key field%s",
                                    key, d_.key_count > 1 ? "s" : "")
                    : printf_string("no \"%s\": fine in a record array, but an update (j2s_array_update_%s) "
                                    "rejects an element without its key field%s",
                                    key, t_.name, d_.key_count > 1 ? "s" : ""));
        }
    }

    // The record an element names by its key fields, as the update compares
    // them (integers by their 32 bits, strings by their first 63 bytes):
    // "Channel 0, StreamIndex 1"; empty when a key is missing or unreadable.
    std::string key_signature(const cJSON *elem) const {
        std::string sig;
        for (uint32_t k = 0; k < d_.key_count; ++k) {
            const Field &f = d_.keys[k].field;
            const cJSON *m = cJSON_GetObjectItem(elem, f.key);
            if (m == nullptr) return "";
            sig += sig.empty() ? "" : ", ";
            if (f.kind == Kind::Str && cJSON_IsString(m) && m->valuestring != nullptr) {
                size_t keep = std::min<size_t>(s2j::kKeyStringSize, f.size) - 1;
                sig += std::string(f.key) + " " +
                       quoted(std::string(m->valuestring, strnlen(m->valuestring, keep)).c_str(), keep);
            } else if (f.kind != Kind::Str && s2j::is_int(m)) {
                sig += std::string(f.key) + " " + std::to_string(static_cast<uint32_t>(s2j::int_value(m)));
            } else {
                return "";
            }
        }
        return sig;
    }

private:
    // A key as a place: as it is when it is a plain name of a usual length,
    // else quoted (and cut short).
    static std::string member_place(const std::string &prefix, const char *name) {
        bool plain = *name != '\0' && std::strlen(name) <= 64;
        for (const char *c = name; *c != '\0'; ++c)
            plain = plain && (std::isalnum(static_cast<unsigned char>(*c)) || *c == '_');
        std::string key = plain ? std::string(name) : quoted(name);
        return prefix.empty() ? key : prefix + "." + key;
    }

    const Field *field_matching(const char *name) const {
        for (uint32_t i = 0; i < d_.field_count; ++i)
            if (s2j::same_key(name, d_.fields[i].key)) return &d_.fields[i];
        return nullptr;
    }

    void unknown_key(const char *name, const std::string &place) {
        // A likely misspelling: a few edits, fewer for short keys.
        const size_t len = std::strlen(name);
        const size_t limit = len <= 4 ? 1 : len <= 12 ? 2 : 3;
        const Field *best = nullptr;
        size_t best_distance = limit + 1;
        for (uint32_t i = 0; i < d_.field_count; ++i) {
            size_t dist = distance(name, d_.fields[i].key, limit);
            if (dist < best_distance) {
                best = &d_.fields[i];
                best_distance = dist;
            }
        }
        if (best != nullptr)
            add(Finding::kWarning, place,
                printf_string("unknown key, ignored by the library; did you mean \"%s\"?", best->key));
        else
            add(Finding::kWarning, place, printf_string("unknown key, ignored by the library (%s has no such field)",
                                                        t_.name));
    }

    void field(const Field &f, const cJSON *m, const std::string &place) {
        const std::string type = c_type_of(f);
        const char *ctype = type.c_str();
        switch (f.kind) {
            case Kind::I32:
            case Kind::U32:
            case Kind::U16:
                if (!s2j::is_int(m)) {
                    add(Finding::kError, place, "expected an integer, found " + describe(m) + not_integer_why(m));
                    return;
                }
                integer(f.kind, s2j::int_value(m), place, ctype);
                return;
            case Kind::Str: {
                if (!cJSON_IsString(m)) {
                    add(Finding::kError, place, "expected a string, found " + describe(m));
                    return;
                }
                const char *s = m->valuestring != nullptr ? m->valuestring : "";
                size_t len = std::strlen(s);
                if (len >= f.size) {
                    bool mid_char = (static_cast<unsigned char>(s[f.size - 1]) & 0xC0) == 0x80;
                    add(Finding::kWarning, place,
                        printf_string("a string of %zu bytes; %s keeps at most %u, the library cuts the rest%s", len,
                                      ctype, f.size - 1, mid_char ? " (inside a multi-byte character)" : ""));
                }
                return;
            }
            case Kind::U32List:
                list(f, m, place, ctype);
                return;
        }
    }

    void integer(Kind kind, int64_t v, const std::string &place, const char *ctype) {
        const IntRange r = range_of(kind);
        const int64_t lo = r.lo, hi = r.hi;
        if (v >= lo && v <= hi) return;
        uint64_t bits = static_cast<uint64_t>(v);
        int64_t stored = kind == Kind::I32   ? static_cast<int32_t>(static_cast<uint32_t>(bits))
                         : kind == Kind::U32 ? static_cast<int64_t>(static_cast<uint32_t>(bits))
                                             : static_cast<int64_t>(static_cast<uint16_t>(bits));
        add(Finding::kWarning, place,
            printf_string("%" PRId64 " does not fit %s (%" PRId64 "..%" PRId64 "); the library stores %" PRId64, v,
                          ctype, lo, hi, stored));
    }

    void list(const Field &f, const cJSON *m, const std::string &place, const char *ctype) {
        const uint32_t capacity = f.size / 4;
        if (m->child == nullptr) {
            add(Finding::kError, place,
                printf_string("expected an array of 1 to %u integers, found %s", capacity, describe(m).c_str()));
            return;
        }
        bool any = false;
        uint32_t entries = 0, i = 0;
        for (const cJSON *c = m->child; c != nullptr; c = c->next, ++entries)
            if (entries < capacity && s2j::is_int(c)) any = true;
        if (!any) {
            add(Finding::kError, place,
                printf_string("expected an array of 1 to %u integers, found no integer among its first %u entries",
                              capacity, std::min(entries, capacity)));
            return;
        }
        if (s2j::type_of(m) == cJSON_Object)
            add(Finding::kWarning, place,
                "expected an array, found an object; the library takes the values of its members as the entries");
        for (const cJSON *c = m->child; c != nullptr && i < capacity; c = c->next, ++i) {
            const std::string at = place + printf_string("[%u]", i);
            if (!s2j::is_int(c))
                add(Finding::kWarning, at,
                    "expected an integer, found " + describe(c) + not_integer_why(c) +
                        "; the library skips it and leaves the entry as it was");
            else
                integer(Kind::U32, s2j::int_value(c), at, "uint32");
        }
        if (entries < capacity)
            add(Finding::kNote, place,
                printf_string("%u entr%s for %s; the library sets %s and leaves the other %u as they were", entries,
                              entries == 1 ? "y" : "ies", ctype, entries == 1 ? "it" : "these", capacity - entries));
        if (entries > capacity)
            add(Finding::kWarning, place,
                printf_string("%u entries; %s keeps the first %u and the library ignores the rest", entries, ctype,
                              capacity));
    }

    const s2j::TypeInfo &t_;
    const s2j::TypeDesc &d_;
    Validation *out_;
};

// The deepest nesting cJSON parses (its CJSON_NESTING_LIMIT).
constexpr size_t kNestingLimit = CJSON_NESTING_LIMIT;

bool has_array_reader(const s2j::Families &f) { return f.c2s_array || f.j2s_array || f.f2s_array; }

// Line and column (from 1) of byte offset at of text.
std::string position(const char *text, size_t at) {
    size_t line = 1, col = 1;
    for (size_t i = 0; i < at; ++i) {
        if (text[i] == '\n') {
            ++line;
            col = 1;
        } else {
            ++col;
        }
    }
    return printf_string("line %zu, column %zu", line, col);
}

// ---- Standard JSON ------------------------------------------------------------

// Where the text departs from standard JSON (RFC 8259), read up to the end
// of its first value: the first departure, how many there are, whether one
// of them makes it no JSON to any parser (hard), and how deep it nests.
struct JsonScan {
    size_t departures = 0;
    size_t at = 0;  // of the first departure
    std::string why;
    bool hard = false;
    size_t hard_at = 0;
    std::string hard_why;
    size_t depth = 0;
};

class JsonScanner {
public:
    JsonScanner(const char *text, size_t len) : s_(reinterpret_cast<const unsigned char *>(text)), n_(len) {}

    JsonScan run() {
        if (n_ >= 3 && std::memcmp(s_, "\xEF\xBB\xBF", 3) == 0) {
            depart(0, "a byte order mark (JSON texts carry none)");
            i_ = 3;
        }
        std::vector<unsigned char> open;  // '{' or '[' per level
        for (;;) {
            // A value.
            blanks();
            if (i_ >= n_) return stop(i_, "the text ends where a value should begin");
            const unsigned char c = s_[i_];
            if (c == '{' || c == '[') {
                open.push_back(c);
                r_.depth = std::max(r_.depth, open.size());
                ++i_;
                blanks();
                if (i_ < n_ && s_[i_] == (c == '{' ? '}' : ']')) {
                    ++i_;
                    open.pop_back();
                } else {
                    if (c == '{' && !member_name()) return r_;
                    continue;
                }
            } else if (!scalar()) {
                return r_;
            }
            // After a value: a comma, the end of its container, or the end.
            for (;;) {
                if (open.empty()) return r_;
                blanks();
                const unsigned char close = open.back() == '{' ? '}' : ']';
                if (i_ < n_ && s_[i_] == close) {
                    ++i_;
                    open.pop_back();
                    continue;
                }
                if (i_ < n_ && s_[i_] == ',') {
                    const size_t comma = i_++;
                    blanks();
                    if (i_ < n_ && s_[i_] == close)
                        return stop(comma, printf_string("a comma before '%c' (JSON allows no trailing comma)", close));
                    if (open.back() == '{' && !member_name()) return r_;
                    break;
                }
                return stop(i_, printf_string("expected ',' or '%c'", close));
            }
        }
    }

private:
    void depart(size_t at, const std::string &why) {
        if (r_.departures++ == 0) {
            r_.at = at;
            r_.why = why;
        }
    }

    JsonScan stop(size_t at, const std::string &why) {
        depart(at, why);
        r_.hard = true;
        r_.hard_at = at;
        r_.hard_why = why;
        return r_;
    }

    void blanks() {
        for (; i_ < n_ && s_[i_] <= 0x20; ++i_)
            if (s_[i_] != ' ' && s_[i_] != '\t' && s_[i_] != '\n' && s_[i_] != '\r')
                depart(i_, printf_string("the control byte 0x%02x as a blank (JSON allows space, tab, CR and LF)",
                                         s_[i_]));
    }

    // A member's name and its colon.
    bool member_name() {
        blanks();
        if (i_ >= n_ || s_[i_] != '"') {
            stop(i_, "expected a member name (a string)");
            return false;
        }
        if (!string()) return false;
        blanks();
        if (i_ >= n_ || s_[i_] != ':') {
            stop(i_, "expected ':' after the member name");
            return false;
        }
        ++i_;
        return true;
    }

    bool scalar() {
        const unsigned char c = s_[i_];
        if (c == '"') return string();
        if (c == '-' || (c >= '0' && c <= '9')) return number();
        for (const char *word : {"true", "false", "null"}) {
            const size_t len = std::strlen(word);
            if (n_ - i_ >= len && std::memcmp(s_ + i_, word, len) == 0) {
                i_ += len;
                return true;
            }
        }
        stop(i_, "not a JSON value");
        return false;
    }

    bool string() {
        const size_t start = i_++;
        while (i_ < n_) {
            const unsigned char c = s_[i_];
            if (c == '"') {
                ++i_;
                return true;
            }
            if (c == '\\') {
                if (i_ + 1 < n_ && std::strchr("\"\\/bfnrt", s_[i_ + 1]) != nullptr && s_[i_ + 1] != '\0') {
                    i_ += 2;
                    continue;
                }
                if (i_ + 1 < n_ && s_[i_ + 1] == 'u') {
                    size_t k = 0;
                    while (k < 4 && i_ + 2 + k < n_ && std::isxdigit(s_[i_ + 2 + k])) ++k;
                    if (k == 4) {
                        i_ += 6;
                        continue;
                    }
                }
                stop(i_, "an escape that JSON does not have");
                return false;
            }
            if (c < 0x20) {
                depart(i_, printf_string("the control byte 0x%02x unescaped inside a string (JSON wants \\u%04x)", c,
                                         c));
                ++i_;
            } else if (c < 0x80) {
                ++i_;
            } else {
                const size_t len = utf8_length(i_);
                if (len == 0) {
                    depart(i_, printf_string("the byte 0x%02x, which is not UTF-8", c));
                    ++i_;
                } else {
                    i_ += len;
                }
            }
        }
        stop(start, "a string that does not end");
        return false;
    }

    // Bytes of the well-formed UTF-8 sequence at i, or 0.
    size_t utf8_length(size_t i) const {
        const unsigned char c = s_[i];
        size_t len;
        uint32_t cp;
        if (c >= 0xC2 && c <= 0xDF) {
            len = 2;
            cp = c & 0x1F;
        } else if (c >= 0xE0 && c <= 0xEF) {
            len = 3;
            cp = c & 0x0F;
        } else if (c >= 0xF0 && c <= 0xF4) {
            len = 4;
            cp = c & 0x07;
        } else {
            return 0;
        }
        if (n_ - i < len) return 0;
        for (size_t k = 1; k < len; ++k) {
            if ((s_[i + k] & 0xC0) != 0x80) return 0;
            cp = (cp << 6) | (s_[i + k] & 0x3F);
        }
        if ((len == 3 && cp < 0x800) || (len == 4 && (cp < 0x10000 || cp > 0x10FFFF))) return 0;
        if (cp >= 0xD800 && cp <= 0xDFFF) return 0;
        return len;
    }

    bool digits() {
        const size_t from = i_;
        while (i_ < n_ && s_[i_] >= '0' && s_[i_] <= '9') ++i_;
        return i_ > from;
    }

    bool number() {
        const size_t start = i_;
        if (s_[i_] == '-') ++i_;
        if (i_ < n_ && s_[i_] == '0' && i_ + 1 < n_ && s_[i_ + 1] >= '0' && s_[i_ + 1] <= '9')
            depart(start, "a number with a leading zero (JSON allows none)");
        if (!digits()) {
            if (i_ < n_ && s_[i_] == '.') {
                depart(start, "a number without digits before its '.'");
            } else {
                stop(start, "a '-' without digits");
                return false;
            }
        }
        if (i_ < n_ && s_[i_] == '.') {
            ++i_;
            if (!digits()) depart(start, "a number without digits after its '.'");
        }
        if (i_ < n_ && (s_[i_] == 'e' || s_[i_] == 'E')) {
            ++i_;
            if (i_ < n_ && (s_[i_] == '+' || s_[i_] == '-')) ++i_;
            if (!digits()) {
                stop(start, "a number without digits in its exponent");
                return false;
            }
        }
        return true;
    }

    const unsigned char *s_;
    size_t n_;
    size_t i_ = 0;
    JsonScan r_;
};

}  // namespace

Validation validate_text(const s2j::TypeInfo &t, const std::string &whole, bool update) {
    Validation v;
    Checker check(t, &v);
    const char *text = whole.c_str();
    const size_t len = std::strlen(text);
    if (len < whole.size()) {
        // NUL bytes to the end (a preallocated file, a flash image) lose
        // nothing; anything else after the first NUL is lost.
        const bool padding = whole.find_first_not_of('\0', len) == std::string::npos;
        check.add(padding ? Finding::kNote : Finding::kWarning, "",
                  padding ? printf_string("NUL bytes from offset %zu (%s) to the end of the file; the library reads "
                                          "the text before them",
                                          len, position(text, len).c_str())
                          : printf_string("a NUL byte at offset %zu (%s) ends the text; the library reads no further",
                                          len, position(text, len).c_str()));
    }
    // An escaped NUL in a string: cJSON keeps the string only up to it.
    // The first is named with its place, the others counted.
    size_t escaped_nuls = 0;
    const char *first_nul = nullptr;
    for (const char *u = std::strstr(text, "u0000"); u != nullptr; u = std::strstr(u + 1, "u0000")) {
        size_t slashes = 0;
        while (u - slashes > text && u[-1 - static_cast<ptrdiff_t>(slashes)] == '\\') ++slashes;
        if (slashes % 2 == 1 && escaped_nuls++ == 0) first_nul = u - 1;
    }
    if (escaped_nuls > 0)
        check.add(Finding::kWarning, "",
                  "a string holds \\u0000 at " + position(text, static_cast<size_t>(first_nul - text)) +
                      (escaped_nuls > 1 ? printf_string(" (and %zu more)", escaped_nuls - 1) : std::string()) +
                      "; the library keeps a string only up to it");
    v.is_array = update || shape_is_array(t, text);
    const char *end = nullptr;
    cJSON *tree = s2j::parse_marked(text, 0, false, &end);
    const JsonScan scan = JsonScanner(text, len).run();
    if (tree == nullptr && !scan.hard && scan.depth > kNestingLimit) {
        check.add(Finding::kError, "",
                  printf_string("the text is JSON, but nested %zu levels deep; the library reads no deeper than %zu "
                                "levels",
                                scan.depth, kNestingLimit));
        return v;
    }
    if (tree == nullptr && scan.hard && scan.hard_at < len) {
        const size_t at = scan.hard_at;
        size_t line_end = std::min({len, at + 20, static_cast<size_t>(std::strcspn(text + at, "\r\n")) + at});
        check.add(Finding::kError, "",
                  "the text is not JSON: " + scan.hard_why + ", at " + position(text, at) + ", near " +
                      quoted(std::string(text + at, line_end - at).c_str()));
        return v;
    }
    if (tree == nullptr) {
        const char *e = cJSON_GetErrorPtr();
        size_t at = e != nullptr && e >= text && e <= text + len ? static_cast<size_t>(e - text) : len;
        size_t line_end = std::min({len, at + 20, static_cast<size_t>(std::strcspn(text + at, "\r\n")) + at});
        check.add(Finding::kError, "",
                  at >= len ? "the text is not JSON: it ends before the document does"
                            : "the text is not JSON: it stops parsing at " + position(text, at) + ", near " +
                                  quoted(std::string(text + at, line_end - at).c_str()));
        return v;
    }
    // Text the library reads that other JSON parsers may read otherwise.
    if (scan.departures > 0)
        check.add(Finding::kWarning, "",
                  "not standard JSON: " + scan.why + ", at " + position(text, scan.at) +
                      (scan.departures > 1 ? printf_string(" (and %zu more)", scan.departures - 1) : std::string()) +
                      "; the library reads it, other JSON parsers may not");
    // Text after the document: the library's parser stops at the document's end.
    if (end != nullptr) {
        size_t at = static_cast<size_t>(end - text);
        while (at < len && std::strchr(" \t\r\n", text[at]) != nullptr) ++at;
        if (at < len)
            check.add(Finding::kWarning, "",
                      "text after the document, from " + position(text, at) + ", is ignored by the library");
    }
    if (update) {
        if (!cJSON_IsArray(tree)) {
            check.add(Finding::kError, "", "expected an array: an update request is an array of records, found " +
                                               describe(tree));
            cJSON_Delete(tree);
            return v;
        }
    }
    if (!v.is_array) {
        v.records = 1;
        if (!cJSON_IsObject(tree))
            check.add(Finding::kError, "",
                      "expected an object (one " + std::string(t.name) + " record" +
                          (reads_arrays(t) ? ") or an array of records" : "; the library reads no arrays of them)") +
                          ", found " + describe(tree));
        else
            check.record(tree, "");
        cJSON_Delete(tree);
        return v;
    }
    if (!cJSON_IsArray(tree)) {
        check.add(Finding::kError, "",
                  "expected an array of " + std::string(t.name) + " records (the library reads " + t.name +
                      " as a record array only), found " + describe(tree));
        cJSON_Delete(tree);
        return v;
    }
    const bool array_reader = has_array_reader(t.fam);
    const bool keyed = t.fam.c2s_array_update != nullptr;
    std::unordered_map<std::string, size_t> first_with;  // key signature -> first element holding it
    size_t i = 0;
    for (const cJSON *e = tree->child; e != nullptr; e = e->next, ++i) {
        const std::string place = printf_string("[%zu]", i);
        std::string sig = keyed ? check.key_signature(e) : "";
        auto same = sig.empty() ? first_with.end() : first_with.find(sig);
        if (same == first_with.end()) {
            if (!sig.empty()) first_with.emplace(sig, i);
        } else {
            size_t j = same->second;
            if (update)
                check.add(Finding::kWarning, place,
                          printf_string("names the same record as [%zu] (%s): both change it, and where both set a "
                                        "field the later one stays",
                                        j, sig.c_str()));
            else
                check.add(Finding::kNote, place,
                          printf_string("the same key as [%zu] (%s): an update reaches only the first of them", j,
                                        sig.c_str()));
        }
        if (update) {
            check.update_keys(e, place, Finding::kError);
        } else if (t.fam.c2s_array_update != nullptr && cJSON_IsObject(e)) {
            check.update_keys(e, place, Finding::kNote);
        }
        if (cJSON_IsObject(e)) {
            check.record(e, place);
        } else if (update) {
            // Its keys are missing, which is already an error.
        } else if (array_reader) {
            check.add(Finding::kWarning, place,
                      "expected an object, found " + describe(e) +
                      "; the library reads it as a record with no members");
        } else {
            check.add(Finding::kError, place,
                      "expected an object, found " + describe(e) + "; " + t.name +
                          " has no array reader, so its reader reads each element as one record");
        }
    }
    v.records = i;
    if (i == 0)
        check.add(Finding::kNote, "", update ? "the update request is empty: it changes nothing"
                                             : "the array is empty: it holds no records");
    cJSON_Delete(tree);
    return v;
}

namespace {
const char *const kLevel[] = {"error", "warning", "note"};
}  // namespace

std::string format_findings(const std::string &file, const Validation &v, bool notes) {
    std::string out;
    for (const Finding &f : v.findings) {
        if (f.level == Finding::kNote && !notes) continue;
        out += file + ": " + kLevel[f.level] + ": ";
        if (!f.place.empty()) out += f.place + ": ";
        out += f.text + "\n";
    }
    return out;
}

std::string format_json(const std::string &file, const s2j::TypeInfo &t, const Validation &v, bool update,
                        bool notes) {
    static const char *const kVerdict[] = {"valid", "rejected", "", "altered"};
    cJSON *doc = cJSON_CreateObject();
    cJSON_AddStringToObject(doc, "file", file.c_str());
    cJSON_AddStringToObject(doc, "type", t.name);
    cJSON_AddStringToObject(doc, "shape", update ? "update" : v.is_array ? "array" : "record");
    cJSON_AddNumberToObject(doc, "records", static_cast<double>(v.records));
    cJSON_AddStringToObject(doc, "verdict", kVerdict[v.exit_status()]);
    cJSON *list = cJSON_AddArrayToObject(doc, "findings");
    for (const Finding &f : v.findings) {
        if (f.level == Finding::kNote && !notes) continue;
        cJSON *item = cJSON_CreateObject();
        cJSON_AddStringToObject(item, "level", kLevel[f.level]);
        cJSON_AddStringToObject(item, "place", f.place.c_str());
        cJSON_AddStringToObject(item, "text", f.text.c_str());
        cJSON_AddItemToArray(list, item);
    }
    char *text = cJSON_Print(doc);
    cJSON_Delete(doc);
    std::string out = text != nullptr ? std::string(text) + "\n" : "";
    cJSON_free(text);
    return out;
}

namespace {

// The worse of two exit statuses: rejected, then altered, then valid.
int worse(int a, int b) {
    auto rank = [](int s) { return s == kExitRejected ? 2 : s == kExitAltered ? 1 : 0; };
    return rank(b) > rank(a) ? b : a;
}

// Validates one file and prints its report; returns its exit status.
int validate_file(const s2j::TypeInfo &t, const std::string &path, bool update, bool quiet, bool json) {
    std::string text, why;
    if (!read_input(path, &text, json ? &why : nullptr)) {
        if (!json) return kExitRejected;
        // Always one JSON object: the reason is its one error.
        std::fprintf(stderr, "app_s2j: %s\n", why.c_str());
        Validation unread;
        unread.is_array = update || !reads_records(t);
        unread.findings.push_back(Finding{Finding::kError, "", why});
        std::fputs(format_json(path, t, unread, update, !quiet).c_str(), stdout);
        return kExitRejected;
    }
    Validation v = validate_text(t, text, update);
    if (json) {
        std::fputs(format_json(path, t, v, update, !quiet).c_str(), stdout);
        return v.exit_status();
    }
    std::fputs(format_findings(path, v, !quiet).c_str(), stdout);
    size_t errors = 0, warnings = 0;
    for (const Finding &f : v.findings) {
        errors += f.level == Finding::kError;
        warnings += f.level == Finding::kWarning;
    }
    const std::string what = std::string(t.name) + (update ? " update" : v.is_array ? " array" : "");
    const std::string records = v.is_array ? printf_string(", %zu record%s", v.records, v.records == 1 ? "" : "s") : "";
    switch (v.exit_status()) {
        case kExitRejected:
            std::printf("%s: rejected: the library does not accept this as a %s (%zu error%s)\n", path.c_str(),
                        what.c_str(), errors, errors == 1 ? "" : "s");
            break;
        case kExitAltered:
            std::printf("%s: accepted as a %s%s, but not as written (%zu warning%s)\n", path.c_str(), what.c_str(),
                        records.c_str(), warnings, warnings == 1 ? "" : "s");
            break;
        default:
            std::printf("%s: valid %s%s\n", path.c_str(), what.c_str(), records.c_str());
            break;
    }
    return v.exit_status();
}

int run_validate(const std::vector<std::string> &args) {
    bool update = false, quiet = false, json = false;
    std::vector<std::string> rest;
    const std::initializer_list<Flag> flags = {
        {"--update", nullptr, &update}, {"--quiet", "-q", &quiet}, {"--json", nullptr, &json}};
    if (int usage = split_options(kValidateCommand, args, flags, &rest)) return usage;
    if (rest.size() < 2) return usage_error(kValidateCommand, "'validate' takes TYPE and FILE");
    const s2j::TypeInfo *t = find_type_or_report(rest[0]);
    if (t == nullptr) return kExitUsage;
    if (update && t->fam.c2s_array_update == nullptr)
        return usage_error(kValidateCommand, std::string(t->name) + " has no keyed update; --update does not apply");
    const std::vector<std::string> files(rest.begin() + 1, rest.end());
    if (std::count(files.begin(), files.end(), "-") > 1)
        return usage_error(kValidateCommand, "standard input (-) can be read only once");
    int status = kExitOk;
    size_t tally[4] = {0, 0, 0, 0};
    for (const std::string &path : files) {
        const int one = validate_file(*t, path, update, quiet, json);
        ++tally[one];
        status = worse(status, one);
    }
    // Several files: one summary after their reports.
    if (files.size() > 1 && !json)
        std::printf("%zu files: %zu valid, %zu accepted but not as written, %zu rejected\n", files.size(),
                    tally[kExitOk], tally[kExitAltered], tally[kExitRejected]);
    return status;
}

}  // namespace

const Command kValidateCommand = {
    "validate", "validate TYPE FILE... [--update] [--quiet] [--json]",
    "explain, member by member, how the library reads FILE as TYPE",
    "Reads FILE as the library reads it as TYPE (a JSON array as a record\n"
    "array, an object as one record) and names every problem with its place,\n"
    "e.g. \"[3].Width\" for the member Width of the fourth element:\n"
    "\n"
    "  error    the library rejects the file: text that is not JSON, a document\n"
    "           that is neither an object nor an array, a member of the wrong\n"
    "           JSON type (integer fields take integer literals only: 1.0 and\n"
    "           1e2 are not integers), a list without an integer entry\n"
    "  warning  the library accepts the file but keeps something other than\n"
    "           what it says: a string longer than its field (cut), an integer\n"
    "           outside its field's range (truncated to the field's width), an\n"
    "           unknown key (ignored; a likely misspelling is named), a key\n"
    "           that differs from the field's only in letter case, a repeated\n"
    "           key (only the first is read), list entries that are skipped or\n"
    "           beyond the list's length, text after the document\n"
    "  note     worth knowing, read as written: an empty array; in an array of\n"
    "           a type with keyed update, an element without its key fields\n"
    "\n"
    "With --update FILE is read as a keyed update request (j2s_array_update):\n"
    "an array whose every element has the type's key fields; each element is\n"
    "checked as if a record with its keys exists.  --quiet leaves out notes.\n"
    "The findings go to standard output, one line each (FILE: LEVEL: PLACE:\n"
    "TEXT), followed by one line with the verdict; with --json as one JSON\n"
    "object instead: {\"file\", \"type\", \"shape\" (record, array or update),\n"
    "\"records\", \"verdict\" (valid, altered or rejected), \"findings\": [{\"level\",\n"
    "\"place\", \"text\"}]}, also when FILE cannot be read (its one error says\n"
    "why).  FILE - reads standard input.  Text that the library reads but that\n"
    "is not standard JSON (a byte order mark, a control byte as a blank or\n"
    "unescaped inside a string, bytes that are not UTF-8, a leading zero) is a\n"
    "warning naming the place and the reason; NUL bytes that fill the file\n"
    "after the document are a note.\n"
    "\n"
    "Several files are each reported as one is, then summed up in one line\n"
    "(\"N files: V valid, A accepted but not as written, R rejected\"); with\n"
    "--json each file is one JSON object, one after the other.\n"
    "\n"
    "Exit status: 0 the library reads the file exactly as written and any\n"
    "JSON parser reads the same values, 1 it rejects the file (or the file\n"
    "cannot be read), 2 wrong usage, 3 it accepts the file but not exactly as\n"
    "written (see the warnings); for several files the worst of theirs\n"
    "(1, then 3, then 0).\n",
    run_validate};

}  // namespace app_s2j_tool
