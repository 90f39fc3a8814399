// fuzz_properties.cpp - properties that must hold for every input, checked on
// the (record type, text reader) pair that the input's header chooses:
//   - the status is -2 exactly when cJSON itself rejects the text or gives a
//     tree of the wrong JSON type (for keyed updates also when an element
//     lacks its key), and otherwise 0 or -1;
//   - a record read successfully, written with the type's emitter and read
//     again into a zeroed record, gives the same bytes, and the second text
//     equals the first (a record that a keyed update matched more than once
//     gives the same text);
//   - a record array's count never exceeds its capacity, and query mode
//     reports the JSON array's size;
//   - nothing is written outside the caller's array: guard elements after
//     it, and on success the elements beyond the count, keep their bytes.
// A violated property aborts with a message, which libFuzzer reports as a
// crash and keeps as an input.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "fuzz_input.h"

namespace {

[[noreturn]] void violated(const fuzz::Input &in, const char *what) {
    std::fprintf(stderr, "property violated: %s (%s of %s, capacity %u)\n", what,
                 fuzz::reader_name(in.target.reader), in.target.type->name, in.capacity);
    std::abort();
}

#define PROPERTY(cond, what) \
    do {                     \
        if (!(cond)) violated(in, what); \
    } while (0)

bool with_len(fuzz::Reader r) {
    return r == fuzz::kJ2sWithLen || r == fuzz::kJ2sArrayWithLen || r == fuzz::kJ2sArrayUpdateWithLen;
}

// What plain cJSON makes of the text, as the reader would parse it.
cJSON *plain_parse(const char *text, size_t len, bool bounded) {
    return bounded ? cJSON_ParseWithLength(text, len) : cJSON_Parse(text);
}

std::string emit_text(const s2j::TypeInfo *t, const void *rec) {
    cJSON *tree = t->hooks->emit(rec);
    if (tree == nullptr) return "<no tree>";
    char *p = cJSON_PrintUnformatted(tree);
    cJSON_Delete(tree);
    std::string s = p != nullptr ? p : "<no text>";
    std::free(p);
    return s;
}

// A record read successfully: its text read again into a zeroed record
// gives the same bytes (when the record was read once, from zero) and the
// same text.  A record that a keyed update wrote twice may keep, after the
// NUL of a string, bytes of the longer first string: only its text counts.
void check_round_trip(const fuzz::Input &in, const char *rec, bool read_once = true) {
    const s2j::TypeInfo *t = in.target.type;
    std::string first = emit_text(t, rec);
    cJSON *tree = s2j::parse_marked(first.c_str(), 0, false);
    PROPERTY(tree != nullptr, "the emitter's text does not parse");
    std::vector<char> again(t->desc->size, 0);
    int ok = t->hooks->read(again.data(), tree);
    cJSON_Delete(tree);
    PROPERTY(ok == 1, "the emitter's text is not read back");
    if (read_once)
        PROPERTY(std::memcmp(again.data(), rec, t->desc->size) == 0, "a record read back differs from the one written");
    PROPERTY(emit_text(t, again.data()) == first, "a record written twice gives two texts");
}

// Whether the keyed update's keyword reader accepts every element.
bool every_element_has_keys(const s2j::TypeInfo *t, const char *text, size_t len, bool bounded) {
    cJSON *tree = s2j::parse_marked(text, len, bounded);
    if (tree == nullptr) return false;
    bool all = true;
    std::vector<char> keyword(t->hooks->keyword_size);
    for (const cJSON *e = tree->child; e != nullptr; e = e->next)
        if (!t->hooks->keyword(keyword.data(), e)) all = false;
    cJSON_Delete(tree);
    return all;
}

constexpr uint32_t kGuard = 2;  // guard elements after the caller's array

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    fuzz::Input in;
    if (!fuzz::decode(data, size, &in)) return 0;
    const s2j::TypeInfo *t = in.target.type;
    const s2j::Families &f = t->fam;
    const fuzz::Reader r = in.target.reader;
    const bool bounded = with_len(r);
    const size_t rsize = t->desc->size;

    std::string text(reinterpret_cast<const char *>(in.text), in.len);  // NUL after len bytes
    cJSON *plain = plain_parse(text.c_str(), in.len, bounded);
    const bool parses = plain != nullptr && !(bounded && in.len == 0);
    const bool object = parses && cJSON_IsObject(plain);
    const bool array = parses && cJSON_IsArray(plain);
    const uint32_t json_size = array ? static_cast<uint32_t>(cJSON_GetArraySize(plain)) : 0;
    cJSON_Delete(plain);

    if (r == fuzz::kJ2s || r == fuzz::kJ2sWithLen) {
        std::vector<char> rec(rsize, 0);
        int rc = r == fuzz::kJ2s ? f.j2s(text.c_str(), rec.data()) : f.j2s_with_len(text.c_str(), in.len, rec.data());
        PROPERTY((rc == -2) == !object, "-2 and not an object of cJSON do not coincide");
        PROPERTY(rc == 0 || rc == -1 || rc == -2, "a status outside 0, -1, -2");
        if (rc == 0) check_round_trip(in, rec.data());
        return 0;
    }

    // Capacity elements followed by guard elements, all prepared.
    const uint32_t total = in.capacity + kGuard;
    std::vector<char> arr(static_cast<size_t>(total) * rsize);
    fuzz::prepare_array(t, arr.data(), total, 0);
    const std::vector<char> before = arr;
    uint32_t count = in.capacity;
    const bool query = (r == fuzz::kJ2sArray || r == fuzz::kJ2sArrayWithLen) && (data[2] & 0x80);
    char *p = query ? nullptr : arr.data();
    int rc = 0;
    switch (r) {
        case fuzz::kJ2sArray: rc = f.j2s_array(text.c_str(), p, &count); break;
        case fuzz::kJ2sArrayWithLen: rc = f.j2s_array_with_len(text.c_str(), in.len, p, &count); break;
        case fuzz::kJ2sArrayUpdate: rc = f.j2s_array_update(text.c_str(), p, &count); break;
        case fuzz::kJ2sArrayUpdateWithLen: rc = f.j2s_array_update_with_len(text.c_str(), in.len, p, &count); break;
        default: break;
    }
    PROPERTY(rc == 0 || rc == -1 || rc == -2, "a status outside 0, -1, -2");
    PROPERTY(std::memcmp(arr.data() + static_cast<size_t>(in.capacity) * rsize,
                         before.data() + static_cast<size_t>(in.capacity) * rsize, kGuard * rsize) == 0,
             "bytes written after the caller's array");
    if (rc != 0) PROPERTY(count == in.capacity, "a failed call changed the count");

    const bool update = r == fuzz::kJ2sArrayUpdate || r == fuzz::kJ2sArrayUpdateWithLen;
    if (!update) {
        PROPERTY((rc == -2) == !array, "-2 and not an array of cJSON do not coincide");
        if (query) {
            PROPERTY(arr == before, "query mode wrote into the array");
            if (rc == 0) PROPERTY(count == json_size, "query mode does not give the JSON array's size");
            return 0;
        }
        if (rc != 0) return 0;
        PROPERTY(count <= in.capacity, "the count exceeds the capacity");
        PROPERTY(count == (json_size < in.capacity ? json_size : in.capacity), "the count is not min(size, capacity)");
        PROPERTY(std::memcmp(arr.data() + static_cast<size_t>(count) * rsize,
                             before.data() + static_cast<size_t>(count) * rsize,
                             static_cast<size_t>(in.capacity - count) * rsize) == 0,
                 "elements beyond the count were written");
        for (uint32_t i = 0; i < count; ++i) check_round_trip(in, arr.data() + static_cast<size_t>(i) * rsize);
        return 0;
    }

    if (!array) PROPERTY(rc == -2, "text that cJSON rejects, or not an array, is not -2");
    if (rc == -2 && array)
        PROPERTY(!every_element_has_keys(t, text.c_str(), in.len, bounded), "-2 although every element has its keys");
    if (rc == 0) {
        PROPERTY(count <= json_size, "more updates counted than elements given");
        for (uint32_t i = 0; i < in.capacity; ++i) {
            const char *e = arr.data() + static_cast<size_t>(i) * rsize;
            if (std::memcmp(e, before.data() + static_cast<size_t>(i) * rsize, rsize) != 0) check_round_trip(in, e, false);
        }
    }
    return 0;
}
