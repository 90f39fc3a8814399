// s2j_families.cpp - the generic single-record, record-array and keyed-update
// families.  Every exported family member is a one-line call into these.
#include <cstdarg>
#include <cstdio>
#include <cstring>

#include "s2j_families.h"
#include "s2j_messages.h"

namespace s2j {

void diag(const Site *site, const char *fmt, ...) {
    std::fprintf(stderr, S2J_DIAG_HEADER, site->file, site->line, site->func);
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
cJSON *parse(const Site *s, const char *json_str, size_t len, bool with_len, const char *msg) {
    cJSON *tree = parse_marked(json_str, len, with_len);
    if (tree != nullptr) return tree;
    if (with_len)
        diag(s, S2J_MSG_PARSE_LEN_FAILED, json_str, len, parse_error(json_str, len));
    else
        diag(s, msg, json_str, parse_error(json_str, std::strlen(json_str)));
    return nullptr;
}

}  // namespace

// ---- Single records ---------------------------------------------------------

char *fam_s2j(const Site *s, const TypeDesc *d, const void *rec, int formatted) {
    if (rec == nullptr) {
        diag(s, S2J_MSG_STRUCT_PTR_EMPTY);
        return nullptr;
    }
    cJSON *tree = emit_record(d, rec);
    if (tree == nullptr) {
        diag(s, S2J_MSG_EMITTER_FAILED, d->name);
        return nullptr;
    }
    char *text = print(tree, formatted);
    cJSON_Delete(tree);
    return text;
}

int fam_c2s(const Site *s, const TypeDesc *d, const cJSON *json, void *rec) {
    if (!cJSON_IsObject(json)) {
        diag(s, S2J_MSG_NOT_OBJECT);
        return -2;
    }
    if (rec == nullptr) {
        diag(s, S2J_MSG_STRUCT_PTR_EMPTY);
        return -2;
    }
    if (!read_record(d, rec, json, false)) {
        diag(s, S2J_MSG_READER_FAILED, d->name);
        return -1;
    }
    return 0;
}

int fam_j2s(const Site *s, const char *json_str, void *rec, C2sFn c2s) {
    if (json_str == nullptr || rec == nullptr) {
        diag(s, S2J_MSG_J2S_ARGS);
        return -2;
    }
    cJSON *tree = parse(s, json_str, 0, false, S2J_MSG_PARSE_FAILED);
    if (tree == nullptr) return -2;
    int rc = c2s(tree, rec);
    cJSON_Delete(tree);
    return rc;
}

int fam_j2s_with_len(const Site *s, const char *json_str, size_t len, void *rec, C2sFn c2s) {
    if (json_str == nullptr || len == 0 || rec == nullptr) {
        diag(s, S2J_MSG_J2S_LEN_ARGS);
        return -2;
    }
    cJSON *tree = parse(s, json_str, len, true, nullptr);
    if (tree == nullptr) return -2;
    int rc = c2s(tree, rec);
    cJSON_Delete(tree);
    return rc;
}

// ---- Record arrays ----------------------------------------------------------

char *fam_s2j_array(const Site *s, const TypeDesc *d, const void *arr, uint32_t count, int formatted) {
    if (arr == nullptr || count == 0) {
        diag(s, S2J_MSG_ARRAY_ARGS);
        return nullptr;
    }
    cJSON *list = cJSON_CreateArray();
    if (list == nullptr) {
        diag(s, S2J_MSG_CREATE_ARRAY_FAILED);
        return nullptr;
    }
    const char *base = static_cast<const char *>(arr);
    for (uint32_t i = 0; i < count; ++i) {
        cJSON *obj = emit_record(d, base + static_cast<size_t>(i) * d->size);
        if (obj == nullptr) {
            diag(s, S2J_MSG_EMITTER_FAILED, d->name);
            cJSON_Delete(list);
            return nullptr;
        }
        cJSON_AddItemToArray(list, obj);
    }
    char *text = print(list, formatted);
    cJSON_Delete(list);
    return text;
}

int fam_c2s_array(const Site *s, const TypeDesc *d, const cJSON *json, void *arr, uint32_t *count) {
    if (count == nullptr) {
        diag(s, S2J_MSG_SIZE_EMPTY);
        return -2;
    }
    if (!cJSON_IsArray(json)) {
        diag(s, S2J_MSG_NOT_ARRAY);
        return -2;
    }
    uint32_t n = static_cast<uint32_t>(cJSON_GetArraySize(json));
    if (arr == nullptr) {  // query mode: how many elements to provide
        *count = n;
        return 0;
    }
    uint32_t filled = n < *count ? n : *count;
    char *base = static_cast<char *>(arr);
    // Walk the children directly: the same elements as cJSON_GetArrayItem(i)
    // in index order, without rescanning the list for each index.
    const cJSON *item = json->child;
    for (uint32_t i = 0; i < filled; ++i, item = item->next) {
        if (!read_record(d, base + static_cast<size_t>(i) * d->size, item, false)) {
            diag(s, S2J_MSG_READER_FAILED, d->name);
            return -1;
        }
    }
    *count = filled;
    return 0;
}

int fam_j2s_array(const Site *s, const char *json_str, void *arr, uint32_t *count, C2sArrayFn c2s) {
    if (json_str == nullptr || count == nullptr) {
        diag(s, S2J_MSG_J2S_ARRAY_ARGS);
        return -2;
    }
    cJSON *tree = parse(s, json_str, 0, false, S2J_MSG_PARSE_FAILED_NO_NL);
    if (tree == nullptr) return -2;
    int rc = c2s(tree, arr, count);
    cJSON_Delete(tree);
    return rc;
}

int fam_j2s_array_with_len(const Site *s, const char *json_str, size_t len, void *arr, uint32_t *count,
                           C2sArrayFn c2s) {
    if (json_str == nullptr || len == 0 || count == nullptr) {
        diag(s, S2J_MSG_J2S_ARRAY_LEN_ARGS);
        return -2;
    }
    cJSON *tree = parse(s, json_str, len, true, nullptr);
    if (tree == nullptr) return -2;
    int rc = c2s(tree, arr, count);
    cJSON_Delete(tree);
    return rc;
}

// ---- Keyed update -----------------------------------------------------------

int fam_c2s_array_update(const Site *s, const TypeDesc *d, const cJSON *json, void *arr, uint32_t *count) {
    if (arr == nullptr || count == nullptr) {
        diag(s, S2J_MSG_ARRAY_ARGS);
        return -2;
    }
    if (!cJSON_IsArray(json)) {
        diag(s, S2J_MSG_NOT_ARRAY);
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
            diag(s, S2J_MSG_KEYWORD_MISSING);
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
            diag(s, S2J_MSG_READER_FAILED, d->name);
            return -1;
        }
        ++updated;
    }
    *count = updated;  // an empty list sets the count to 0
    return 0;
}

int fam_j2s_array_update(const Site *s, const char *json_str, void *arr, uint32_t *count, C2sArrayFn c2s) {
    if (json_str == nullptr || arr == nullptr || count == nullptr) {
        diag(s, S2J_MSG_UPDATE_ARGS);
        return -2;
    }
    cJSON *tree = parse(s, json_str, 0, false, S2J_MSG_PARSE_FAILED_NO_NL);
    if (tree == nullptr) return -2;
    int rc = c2s(tree, arr, count);
    cJSON_Delete(tree);
    return rc;
}

int fam_j2s_array_update_with_len(const Site *s, const char *json_str, size_t len, void *arr,
                                  uint32_t *count, C2sArrayFn c2s) {
    if (json_str == nullptr || len == 0 || arr == nullptr || count == nullptr) {
        diag(s, S2J_MSG_UPDATE_LEN_ARGS);
        return -2;
    }
    cJSON *tree = parse(s, json_str, len, true, nullptr);
    if (tree == nullptr) return -2;
    int rc = c2s(tree, arr, count);
    cJSON_Delete(tree);
    return rc;
}

}  // namespace s2j
