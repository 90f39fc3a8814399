// s2j_families.cpp - the generic single-record, record-array and keyed-update
// families.  Every exported family member is a one-line call into these.
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "s2j_families.h"
#include "s2j_messages.h"
#include "s2j_text_reader.h"
#include "s2j_write.h"

namespace s2j {

namespace {

struct Affixes {
    const char *prefix, *suffix;
};
#define S2J_AFFIXES(Id, member, prefix, suffix, ...) {#prefix, #suffix},
constexpr Affixes kAffixes[] = {S2J_FAMILIES(S2J_AFFIXES, T)};
#undef S2J_AFFIXES
static_assert(sizeof kAffixes / sizeof kAffixes[0] == kFamilyCount,
              "one prefix and suffix per family");

}  // namespace

void diag(Site site, const char *type, const char *fmt, ...) {
    const Affixes &a = kAffixes[static_cast<size_t>(site.fam)];
    char func[160];
    std::snprintf(func, sizeof func, "%s%s%s", a.prefix, type, a.suffix);
    std::fprintf(stderr, S2J_DIAG_HEADER, site.file, static_cast<int>(site.line), func);
    va_list ap;
    va_start(ap, fmt);
    std::vfprintf(stderr, fmt, ap);
    va_end(ap);
    std::fprintf(stderr, S2J_DIAG_RESET);
}

namespace {

char *print(const cJSON *tree, int formatted) {
    return formatted ? cJSON_Print(tree) : cJSON_PrintUnformatted(tree);
}

// The decimal texts of the integers of count records, for a tree that is
// only printed; null when there is no room (the records are then emitted as
// the caller's tree is, which prints the same text).
char *int_texts(const TypeDesc *d, uint32_t count) {
    size_t n = static_cast<size_t>(d->int_text_bytes) * count;
    if (n == 0 || n / count != d->int_text_bytes) return nullptr;
    return static_cast<char *>(std::malloc(n));
}

// cJSON's parse-error position is process-wide: read it right after the
// failed parse.  It is never null after a failed parse of non-null text, but
// a null is printed as "" rather than handed to printf.  Another thread's
// failed parse may have replaced it in between; a position outside this
// call's own text would then point into that thread's buffer, perhaps freed
// already, so it is printed as "" too.  In one thread it always lies within
// the text (at most at its end).
const char *parse_error(const char *text, size_t len) {
    const char *e = cJSON_GetErrorPtr();
    const uintptr_t at = reinterpret_cast<uintptr_t>(e), begin = reinterpret_cast<uintptr_t>(text);
    if (e == nullptr || at < begin || at - begin > len) return "";
    return e;
}

// Parses json_str (nul-terminated, or len bytes with_len) into a marked tree;
// on failure prints the parse diagnostic (msg for cJSON_Parse) and returns
// null.
cJSON *parse(Site s, const char *type, const char *json_str, size_t len, bool with_len, const char *msg) {
    cJSON *tree = parse_marked(json_str, len, with_len);
    if (tree != nullptr) return tree;
    if (with_len)
        diag(s, type, S2J_MSG_PARSE_LEN_FAILED, json_str, len, parse_error(json_str, len));
    else
        diag(s, type, msg, json_str, parse_error(json_str, std::strlen(json_str)));
    return nullptr;
}

}  // namespace

// ---- Single records ---------------------------------------------------------

namespace {

// The text of a record through its printed tree: what s2j makes when the
// text writer's buffer cannot be had (it then fails or succeeds allocation
// by allocation as a printed tree does).
__attribute__((noinline)) char *s2j_tree(Site s, const TypeDesc *d, const void *rec, int formatted) {
    char *ints = int_texts(d, 1);
    char *cursor = ints;
    cJSON *tree = ints != nullptr ? emit_record_for_print(d, rec, &cursor) : emit_record(d, rec);
    if (tree == nullptr) {
        std::free(ints);
        diag(s, d->name, S2J_MSG_EMITTER_FAILED, d->name);
        return nullptr;
    }
    char *text = print(tree, formatted);
    cJSON_Delete(tree);
    std::free(ints);
    return text;
}

}  // namespace

char *fam_s2j(Site s, const TypeDesc *d, const void *rec, int formatted) {
    if (rec == nullptr) {
        diag(s, d->name, S2J_MSG_STRUCT_PTR_EMPTY);
        return nullptr;
    }
    if (char *text = write_text(d, rec, 1, false, formatted != 0)) return text;
    return s2j_tree(s, d, rec, formatted);
}

int fam_c2s(Site s, const TypeDesc *d, const cJSON *json, void *rec) {
    if (!cJSON_IsObject(json)) {
        diag(s, d->name, S2J_MSG_NOT_OBJECT);
        return -2;
    }
    if (rec == nullptr) {
        diag(s, d->name, S2J_MSG_STRUCT_PTR_EMPTY);
        return -2;
    }
    if (!read_record(d, rec, json, false)) {
        diag(s, d->name, S2J_MSG_READER_FAILED, d->name);
        return -1;
    }
    return 0;
}

// ---- Record arrays ----------------------------------------------------------

namespace {

// The text of records through their printed tree, as for one record.
__attribute__((noinline)) char *s2j_array_tree(Site s, const TypeDesc *d, const void *arr, uint32_t count,
                                               int formatted) {
    cJSON *list = cJSON_CreateArray();
    if (list == nullptr) {
        diag(s, d->name, S2J_MSG_CREATE_ARRAY_FAILED);
        return nullptr;
    }
    char *ints = int_texts(d, count);
    char *cursor = ints;
    const char *base = static_cast<const char *>(arr);
    for (uint32_t i = 0; i < count; ++i) {
        const char *rec = base + static_cast<size_t>(i) * d->size;
        cJSON *obj = ints != nullptr ? emit_record_for_print(d, rec, &cursor) : emit_record(d, rec);
        if (obj == nullptr) {
            diag(s, d->name, S2J_MSG_EMITTER_FAILED, d->name);
            cJSON_Delete(list);
            std::free(ints);
            return nullptr;
        }
        cJSON_AddItemToArray(list, obj);
    }
    char *text = print(list, formatted);
    cJSON_Delete(list);
    std::free(ints);
    return text;
}

}  // namespace

char *fam_s2j_array(Site s, const TypeDesc *d, const void *arr, uint32_t count, int formatted) {
    if (arr == nullptr || count == 0) {
        diag(s, d->name, S2J_MSG_ARRAY_ARGS);
        return nullptr;
    }
    if (char *text = write_text(d, arr, count, true, formatted != 0)) return text;
    return s2j_array_tree(s, d, arr, count, formatted);
}

int fam_c2s_array(Site s, const TypeDesc *d, const cJSON *json, void *arr, uint32_t *count) {
    if (count == nullptr) {
        diag(s, d->name, S2J_MSG_SIZE_EMPTY);
        return -2;
    }
    if (!cJSON_IsArray(json)) {
        diag(s, d->name, S2J_MSG_NOT_ARRAY);
        return -2;
    }
    uint32_t n = static_cast<uint32_t>(cJSON_GetArraySize(json));
    if (arr == nullptr) {  // query mode: how many elements to provide
        *count = n;
        return 0;
    }
    uint32_t filled = n < *count ? n : *count;
    // The children in order: the same elements as cJSON_GetArrayItem(i) for
    // each index, without rescanning the list for each.
    if (read_records(d, arr, filled, json->child) >= 0) {
        diag(s, d->name, S2J_MSG_READER_FAILED, d->name);
        return -1;
    }
    *count = filled;
    return 0;
}

// ---- Keyed update -----------------------------------------------------------

int fam_c2s_array_update(Site s, const TypeDesc *d, const cJSON *json, void *arr, uint32_t *count) {
    if (arr == nullptr || count == nullptr) {
        diag(s, d->name, S2J_MSG_ARRAY_ARGS);
        return -2;
    }
    if (!cJSON_IsArray(json)) {
        diag(s, d->name, S2J_MSG_NOT_ARRAY);
        return -2;
    }
    char *base = static_cast<char *>(arr);
    const uint32_t capacity = *count;  // not changed during the loop
    uint32_t updated = 0;
    // The keyword record of one element (its size is checked against this
    // bound where each keyword record is defined).
    alignas(8) char keyword[kMaxKeywordSize];
    for (const cJSON *item = json->child; item != nullptr; item = item->next) {
        if (!read_keys(d, keyword, item)) {
            diag(s, d->name, S2J_MSG_KEYWORD_MISSING);
            return -2;
        }
        char *match = nullptr;
        for (uint32_t i = 0; i < capacity; ++i) {
            char *rec = base + static_cast<size_t>(i) * d->size;
            if (keys_match(d, rec, keyword)) {
                match = rec;
                break;
            }
        }
        if (match == nullptr) continue;
        if (!read_record(d, match, item, false)) {
            diag(s, d->name, S2J_MSG_READER_FAILED, d->name);
            return -1;
        }
        ++updated;
    }
    *count = updated;  // an empty list sets the count to 0
    return 0;
}

// ---- Text members -------------------------------------------------------------

namespace {

enum class Shape : uint8_t { Record, Array, Update };

#ifndef S2J_TREE_ONLY
// What cJSON's parser leaves behind after a successful parse: no error
// position.  The direct reader parses nothing, so it leaves the same (a call
// that parses nothing resets the position; none is needed when it is unset).
void as_after_a_parse() {
    if (cJSON_GetErrorPtr() != nullptr) cJSON_ParseWithLengthOpts(nullptr, 0, nullptr, 0);
}

// The status and diagnostic of a text the direct reader has read.
int answer(Site tree, const TypeDesc *d, Direct outcome) {
    as_after_a_parse();
    switch (outcome) {
        case Direct::Done:
            return 0;
        case Direct::NotObject:
            diag(tree, d->name, S2J_MSG_NOT_OBJECT);
            return -2;
        case Direct::NotArray:
            diag(tree, d->name, S2J_MSG_NOT_ARRAY);
            return -2;
        case Direct::ReaderFailed:
            diag(tree, d->name, S2J_MSG_READER_FAILED, d->name);
            return -1;
        case Direct::KeywordMissing:
        case Direct::UseTree:
            break;
    }
    diag(tree, d->name, S2J_MSG_KEYWORD_MISSING);
    return -2;
}
#endif

// One body for every text member: its arguments refused with the member's
// own diagnostic (args_msg) unless args_ok, then json_str (NUL-terminated,
// or len bytes with_len) read into a record, an array or an update of an
// array.  The direct reader reads it when it can; otherwise the text is
// parsed into a tree and read by the tree member, which is the reference for
// every input.  msg is the parse diagnostic of a NUL-terminated text.
int read_text(Site s, Site tree, Shape shape, const TypeDesc *d, bool args_ok, const char *args_msg,
              const char *json_str, size_t len, bool with_len, const char *msg, void *dst, uint32_t *count) {
    if (!args_ok) {
        diag(s, d->name, "%s", args_msg);
        return -2;
    }
#ifndef S2J_TREE_ONLY
    const size_t bytes = with_len ? len : std::strlen(json_str) + 1;  // cJSON_Parse counts the NUL
    Direct outcome = shape == Shape::Record  ? direct_record(d, json_str, bytes, dst)
                     : shape == Shape::Array ? direct_array(d, json_str, bytes, dst, count)
                                             : direct_update(d, json_str, bytes, dst, count);
    if (outcome != Direct::UseTree) return answer(tree, d, outcome);
#endif
    cJSON *parsed = parse(s, d->name, json_str, len, with_len, msg);
    if (parsed == nullptr) return -2;
    int rc = shape == Shape::Record  ? fam_c2s(tree, d, parsed, dst)
             : shape == Shape::Array ? fam_c2s_array(tree, d, parsed, dst, count)
                                     : fam_c2s_array_update(tree, d, parsed, dst, count);
    cJSON_Delete(parsed);
    return rc;
}

Site tree_site(Site s, uint32_t line, Family fam) { return Site{s.file, line, fam}; }

}  // namespace

int fam_j2s(Site s, uint32_t tree_line, const TypeDesc *d, const char *json_str, void *rec) {
    return read_text(s, tree_site(s, tree_line, Family::C2S), Shape::Record, d, json_str != nullptr && rec != nullptr,
                     S2J_MSG_J2S_ARGS, json_str, 0, false, S2J_MSG_PARSE_FAILED, rec, nullptr);
}

int fam_j2s_with_len(Site s, uint32_t tree_line, const TypeDesc *d, const char *json_str, size_t len, void *rec) {
    return read_text(s, tree_site(s, tree_line, Family::C2S), Shape::Record, d,
                     json_str != nullptr && len != 0 && rec != nullptr, S2J_MSG_J2S_LEN_ARGS, json_str, len, true,
                     nullptr, rec, nullptr);
}

int fam_j2s_array(Site s, uint32_t tree_line, const TypeDesc *d, const char *json_str, void *arr, uint32_t *count) {
    return read_text(s, tree_site(s, tree_line, Family::C2S_ARRAY), Shape::Array, d,
                     json_str != nullptr && count != nullptr, S2J_MSG_J2S_ARRAY_ARGS, json_str, 0, false,
                     S2J_MSG_PARSE_FAILED_NO_NL, arr, count);
}

int fam_j2s_array_with_len(Site s, uint32_t tree_line, const TypeDesc *d, const char *json_str, size_t len,
                           void *arr, uint32_t *count) {
    return read_text(s, tree_site(s, tree_line, Family::C2S_ARRAY), Shape::Array, d,
                     json_str != nullptr && len != 0 && count != nullptr, S2J_MSG_J2S_ARRAY_LEN_ARGS, json_str, len,
                     true, nullptr, arr, count);
}

int fam_j2s_array_update(Site s, uint32_t tree_line, const TypeDesc *d, const char *json_str, void *arr,
                         uint32_t *count) {
    return read_text(s, tree_site(s, tree_line, Family::C2S_ARRAY_UPDATE), Shape::Update, d,
                     json_str != nullptr && arr != nullptr && count != nullptr, S2J_MSG_UPDATE_ARGS, json_str, 0,
                     false, S2J_MSG_PARSE_FAILED_NO_NL, arr, count);
}

int fam_j2s_array_update_with_len(Site s, uint32_t tree_line, const TypeDesc *d, const char *json_str, size_t len,
                                  void *arr, uint32_t *count) {
    return read_text(s, tree_site(s, tree_line, Family::C2S_ARRAY_UPDATE), Shape::Update, d,
                     json_str != nullptr && len != 0 && arr != nullptr && count != nullptr, S2J_MSG_UPDATE_LEN_ARGS,
                     json_str, len, true, nullptr, arr, count);
}

}  // namespace s2j
