// fuzz_seeds.cpp - makes the seed corpus of the fuzz targets from examples/,
// and prints the dictionary of JSON keys.
//   fuzz_seeds corpus <examples dir> <out dir>
//       one seed per (type, text reader) pair whose example fits the reader:
//       the example object for j2s and j2s_with_len, the example array for
//       the array readers; plus a few texts for every pair's neighbourhood.
//   fuzz_seeds writer-corpus <examples dir> <out dir>
//       for fuzz_writers: per type with a text writer, the records of its
//       example (read with j2s or j2s_array) as bytes, compact and indented.
//   fuzz_seeds dict
//       every JSON key of every record type, in libFuzzer's dictionary form,
//       with the JSON punctuation around it.
#include <cstdio>
#include <cstring>
#include <fstream>
#include <set>
#include <sstream>
#include <string>

#include "fuzz_input.h"

namespace {

std::string read_file(const std::string &path) {
    std::ifstream in(path, std::ios::binary);
    std::stringstream ss;
    ss << in.rdbuf();
    return ss.str();
}

bool write_seed(const std::string &dir, const std::string &name, size_t index, uint8_t capacity,
                const std::string &text) {
    std::string bytes;
    bytes += static_cast<char>(index & 0xFF);
    bytes += static_cast<char>((index >> 8) & 0xFF);
    bytes += static_cast<char>(capacity);
    bytes += text;
    std::ofstream out(dir + "/" + name, std::ios::binary);
    out << bytes;
    return static_cast<bool>(out);
}

int corpus(const std::string &examples, const std::string &out) {
    size_t n = 0;
    const fuzz::Target *t = fuzz::targets(&n);
    size_t written = 0;
    for (size_t i = 0; i < n; ++i) {
        std::string text = read_file(examples + "/" + t[i].type->name + ".json");
        if (text.empty()) continue;
        size_t first = text.find_first_not_of(" \t\r\n");
        bool is_array = first != std::string::npos && text[first] == '[';
        bool wants_array = t[i].reader != fuzz::kJ2s && t[i].reader != fuzz::kJ2sWithLen;
        if (is_array != wants_array) continue;
        std::string name = std::string(t[i].type->name) + "." + fuzz::reader_name(t[i].reader);
        if (!write_seed(out, name, i, 4, text)) return 1;
        ++written;
        if (wants_array && !write_seed(out, name + ".query", i, 0x80, text)) return 1;
    }
    // Small texts for the first pairs, which mutation carries to the others.
    const char *small[] = {"{}", "[]", "[{}]", "{\"a\":1}", "[1,2]", "null", "", "{"};
    for (size_t k = 0; k < sizeof small / sizeof small[0]; ++k)
        if (!write_seed(out, "small." + std::to_string(k), k % n, 2, small[k])) return 1;
    std::printf("fuzz_seeds: %zu seeds of %zu pairs in %s\n", written, n, out.c_str());
    return written > 0 ? 0 : 1;
}

// The writer types in fuzz_writers' order: those with s2j or s2j_array.
int writer_corpus(const std::string &examples, const std::string &out) {
    size_t n = 0;
    const s2j::TypeInfo *types = s2j::registry(&n);
    size_t index = 0, written = 0;
    for (size_t i = 0; i < n; ++i) {
        const s2j::TypeInfo *t = &types[i];
        if (t->fam.s2j == nullptr && t->fam.s2j_array == nullptr) continue;
        const size_t at = index++;
        std::string text = read_file(examples + "/" + t->name + ".json");
        uint32_t count = 8;
        std::string recs(static_cast<size_t>(t->desc->size) * count, '\0');
        bool read = false;
        if (t->fam.j2s_array != nullptr && t->fam.j2s_array(text.c_str(), &recs[0], &count) == 0 && count > 0) {
            recs.resize(static_cast<size_t>(t->desc->size) * count);
            read = true;
        } else if (t->fam.j2s != nullptr && t->fam.j2s(text.c_str(), &recs[0]) == 0) {
            recs.resize(t->desc->size);
            read = true;
        }
        if (!read) continue;
        for (uint8_t formatted = 0; formatted < 2; ++formatted)
            if (!write_seed(out, std::string(t->name) + (formatted ? ".indented" : ".compact"), at, formatted, recs))
                return 1;
        ++written;
    }
    std::printf("fuzz_seeds: records of %zu of %zu writer types in %s\n", written, index, out.c_str());
    return written > 0 ? 0 : 1;
}

int dict() {
    size_t n = 0;
    const s2j::TypeInfo *types = s2j::registry(&n);
    std::set<std::string> keys;
    for (size_t i = 0; i < n; ++i)
        for (uint32_t k = 0; k < types[i].desc->field_count; ++k) keys.insert(types[i].desc->fields[k].key);
    std::printf("# Every JSON key of every record type, quoted as in a text.\n");
    for (const std::string &k : keys) std::printf("\"\\\"%s\\\":\"\n", k.c_str());
    return 0;
}

}  // namespace

int main(int argc, char **argv) {
    if (argc == 4 && std::strcmp(argv[1], "corpus") == 0) return corpus(argv[2], argv[3]);
    if (argc == 4 && std::strcmp(argv[1], "writer-corpus") == 0) return writer_corpus(argv[2], argv[3]);
    if (argc == 2 && std::strcmp(argv[1], "dict") == 0) return dict();
    std::fprintf(stderr, "usage: fuzz_seeds corpus|writer-corpus <examples dir> <out dir> | fuzz_seeds dict\n");
    return 2;
}
