// The direct text reader against the tree path: every text family member of
// every type, on a generated corpus, must give what the reference library
// (the same library reading every text through cJSON's tree) gives: the
// status, every byte of the records, the count and the standard error stream.
#include <gtest/gtest.h>

#include <cctype>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "reader_diff.h"
#include "registry.h"
#include "support.h"

namespace {

using reader_diff::Call;
using reader_diff::Member;
using s2j::Field;
using s2j::Kind;
using s2j::TypeInfo;

struct Pair {
    std::string key, value;
};
using Object = std::vector<Pair>;

std::string render(const Object &o) {
    std::string s = "{";
    for (size_t i = 0; i < o.size(); ++i) {
        if (i != 0) s += ',';
        s += '"' + o[i].key + "\":" + o[i].value;
    }
    return s + "}";
}

std::string render_array(const std::vector<Object> &list) {
    std::string s = "[";
    for (size_t i = 0; i < list.size(); ++i) s += (i != 0 ? "," : "") + render(list[i]);
    return s + "]";
}

// A distinct, well-typed value of field f for record r.
std::string value_of(const Field &f, uint32_t index, uint32_t r) {
    switch (f.kind) {
        case Kind::Str:
            return "\"v" + std::to_string(index) + "_" + std::to_string(r) + "\"";
        case Kind::U32List:
            return "[" + std::to_string(r + 1) + ",7,9]";
        default:
            return std::to_string(100 * r + index + 1);
    }
}

Object record(const TypeInfo *t, uint32_t r) {
    Object o;
    for (uint32_t i = 0; i < t->desc->field_count; ++i)
        o.push_back({t->desc->fields[i].key, value_of(t->desc->fields[i], i, r)});
    return o;
}

// Values put in place of a member's value: every JSON type, integer edges,
// the literals strtod() reads in its own way, escapes, surrogates, bytes
// that are not UTF-8 and control bytes, malformed ones among them.
const std::vector<std::string> &values() {
    static const std::vector<std::string> v = {
        "0",
        "-1",
        "1",
        "4294967295",
        "4294967296",
        "-2147483648",
        "-2147483649",
        "65535",
        "65536",
        "70000",
        "9223372036854775807",
        "9223372036854775808",
        "-9223372036854775808",
        "-9223372036854775809",
        "999999999999999",
        "1000000000000000",
        "-1000000000000000",
        "0123",
        "-01",
        "00",
        "1.",
        "2.e3",
        "1e999",
        "1.5",
        "-0",
        "-0.0",
        "1E2",
        "1e+2",
        "1e",
        "-",
        "-.5",
        "+1",
        ".5",
        "0x10",
        "1e-2",
        "123456789012345678901234567890",
        std::string(62, '0') + "7",
        std::string(63, '0') + "7",
        "-" + std::string(61, '0') + "1",
        "\"\"",
        "\"text\"",
        "\"a\\u0000b\"",
        "\"\\ud83d\\ude00\"",
        "\"\\udc00\"",
        "\"\\ud800\"",
        "\"\\ud800x\"",
        "\"\\ud800\\u0041\"",
        "\"\\uZZZZ\"",
        "\"\\u12\\\"x\"",
        "\"\\u00e9\\u4e2d\\u0041\"",
        "\"\\\"\\\\\\/\\b\\f\\n\\r\\t\"",
        "\"x#\\\"y]\\\\z##\\\"\"",
        "\"\\x\"",
        "\"raw\ttab\nline\"",
        "\"\xff\xfe\xc3\"",
        "\"\x01\x1f\"",
        "\"" + std::string(100, 'y') + "\"",
        "\"" + std::string(300, 'z') + "\"",
        "\"unterminated",
        std::string("\"ends at a NUL") + '\0',
        "\"ends at a backslash\\",
        "\"ends at an escaped quote\\\"",
        "true",
        "false",
        "null",
        "nul",
        "tru",
        "{}",
        "[]",
        "[1,2,3]",
        "[1,\"x\",2]",
        "[\"x\"]",
        "[1.5]",
        "{\"a\":1,\"b\":\"c\"}",
        "[[1]]",
        "[1,]",
        "{\"a\":}",
        "[1 2]",
    };
    return v;
}

std::string lower(std::string s) {
    for (char &c : s) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return s;
}
std::string upper(std::string s) {
    for (char &c : s) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return s;
}

// Documents of one record, made from record r of the type.
std::vector<std::string> record_texts(const TypeInfo *t, uint32_t r) {
    const Object base = record(t, r);
    std::vector<std::string> out = {render(base)};
    for (size_t i = 0; i < base.size(); ++i)
        for (const std::string &v : values()) {
            Object o = base;
            o[i].value = v;
            out.push_back(render(o));
        }
    Object o = base;
    for (Pair &p : o) p.key = lower(p.key);
    out.push_back(render(o));
    o = base;
    for (Pair &p : o) p.key = upper(p.key);
    out.push_back(render(o));
    for (size_t i = 0; i < base.size(); ++i) {
        o = base;  // a repeated key: a wrong value first, then the right one
        o.insert(o.begin() + static_cast<long>(i), Pair{lower(base[i].key), base[i].value == "\"x\"" ? "1" : "[]"});
        out.push_back(render(o));
        o = base;  // the right one first, then a wrong one
        o.insert(o.begin() + static_cast<long>(i) + 1, Pair{upper(base[i].key), "null"});
        out.push_back(render(o));
        o = base;  // the key escaped, or cut by an escaped NUL
        o[i].key = "\\u00" + std::string(1, "0123456789abcdef"[(base[i].key[0] >> 4) & 15]) +
                   std::string(1, "0123456789abcdef"[base[i].key[0] & 15]) + base[i].key.substr(1);
        out.push_back(render(o));
        o = base;
        o[i].key += "\\u0000junk";
        out.push_back(render(o));
        o = base;  // left out
        o.erase(o.begin() + static_cast<long>(i));
        out.push_back(render(o));
    }
    o = std::vector<Pair>(base.rbegin(), base.rend());
    out.push_back(render(o));
    o = base;
    o.insert(o.begin(), Pair{"Zz", "{\"a\":[1,{\"b\":null,\"c\":\"}]\"}],\"d\":-1.5e3}"});
    o.push_back(Pair{"", "1"});
    out.push_back(render(o));
    const std::string doc = render(base);
    // Whitespace of every kind cJSON skips, a byte order mark, text after the
    // value, shapes, nesting at and beyond cJSON's limit.
    std::string spaced;
    for (char c : doc) {
        spaced += c;
        if (c == ',' || c == ':' || c == '{') spaced += "\x01\x1f \t\r\n\x0b\x0c";
    }
    out.push_back(spaced);
    out.push_back("\xEF\xBB\xBF" + doc);
    out.push_back("\xEF\xBB\xBF");
    out.push_back(" \xEF\xBB\xBF" + doc);
    out.push_back(doc + "xyz");
    out.push_back(doc + " {} ]");
    out.push_back(doc.substr(0, doc.size() - 1) + ",}");
    for (const char *s : {"", " ", "[]", "[{}]", "{}", "1", "\"s\"", "null", "[", "{", "{\"a\"", "{\"a\":", "]"})
        out.push_back(s);
    out.push_back("[" + doc + "]");
    for (int depth : {999, 1000, 1001}) {
        std::string deep = std::string(static_cast<size_t>(depth), '[') + std::string(static_cast<size_t>(depth), ']');
        out.push_back("{\"Zz\":" + deep + "," + doc.substr(1));
        out.push_back(deep);
    }
    return out;
}

// Documents of record arrays: three records, the middle one mutated.
std::vector<std::string> array_texts(const TypeInfo *t) {
    std::vector<Object> list = {record(t, 0), record(t, 1), record(t, 2)};
    std::vector<std::string> out = {render_array(list)};
    const std::vector<std::string> one = record_texts(t, 1);
    for (const std::string &doc : one) {
        out.push_back("[" + render(list[0]) + "," + doc + "," + render(list[2]) + "]");
    }
    // The first record is checked and read in one walk: mutated too, by a few
    // values of every kind.
    for (size_t i = 0; i < list[0].size(); ++i)
        for (const char *v : {"-1", "1.5", "99999999999999999999", "\"text\"", "\"a\\u0000b\"", "null", "[1,2]",
                              "\"ends at a backslash\\", "\"ends at an escaped quote\\\""}) {
            std::vector<Object> changed = list;
            changed[0][i].value = v;
            out.push_back(render_array(changed));
        }
    for (size_t i = 0; i < list[0].size(); ++i) {
        std::vector<Object> changed = list;
        changed[0][i].value = std::string("\"ends at a NUL") + '\0';
        out.push_back(render_array(changed));
    }
    out.push_back("[1,\"x\",null,[],{}]");
    out.push_back("[" + render(list[0]) + ",5,[" + render(list[1]) + "]]");
    out.push_back("[]");
    out.push_back(" [ ] ");
    out.push_back(render(list[0]));
    out.push_back("[" + render(list[0]) + "," + render(list[0]) + "]");  // one key twice
    return out;
}

// Records before a call: a pattern that no read writes, and for updates the
// key fields of records 0..2 in the first three elements.
std::vector<char> before(const TypeInfo *t, uint32_t elements, bool keyed) {
    std::vector<char> recs(t->desc->size * elements);
    for (size_t i = 0; i < recs.size(); ++i) recs[i] = static_cast<char>((i * 13 + 7) & 0xff);
    if (!keyed) return recs;
    for (uint32_t r = 0; r < 3 && r < elements; ++r)
        for (uint32_t k = 0; k < t->desc->key_count; ++k) {
            const Field &kf = t->desc->keys[k].field;
            uint32_t index = 0;
            while (t->desc->fields[index].offset != kf.offset) ++index;
            char *at = recs.data() + r * t->desc->size + kf.offset;
            if (kf.kind == Kind::Str) {
                std::string v = value_of(kf, index, r);
                v = v.substr(1, v.size() - 2);
                std::memset(at, 0, kf.size);
                std::memcpy(at, v.data(), std::min<size_t>(v.size(), kf.size - 1));
            } else {
                uint32_t v = 100 * r + index + 1;
                std::memcpy(at, &v, kf.kind == Kind::U16 ? 2 : 4);
            }
        }
    return recs;
}

class DirectReader : public ::testing::TestWithParam<const TypeInfo *> {
protected:
    void check(const Call &c) {
        ++calls_;
        std::string d = reader_diff::compare(GetParam(), ref_, c);
        if (!d.empty() && failures_++ < 10) ADD_FAILURE() << d << "\ntext: " << c.text.substr(0, 400);
    }
    // Each document through a member and its _with_len form; caps(i) gives
    // the capacities of the i-th document's two calls.
    template <class Caps>
    void check_both_forms(Member plain, Member with_len, const std::vector<std::string> &docs, Caps caps,
                          const std::vector<char> &before) {
        for (size_t i = 0; i < docs.size(); ++i) {
            const std::pair<uint32_t, uint32_t> cap = caps(i);
            check(Call{plain, docs[i], 0, false, cap.first, before});
            check(Call{with_len, docs[i], docs[i].size(), false, cap.second, before});
        }
    }
    void SetUp() override { ref_ = reader_diff::reference_of(GetParam()); }
    const TypeInfo *ref_ = nullptr;
    int failures_ = 0;
    long calls_ = 0;
};

TEST_P(DirectReader, reads_every_generated_text_as_the_tree_path_does) {
    const TypeInfo *t = GetParam();
    ASSERT_NE(ref_, nullptr);
    if (reader_diff::has(t, Member::J2s)) {
        const std::vector<char> one = before(t, 1, false);
        check_both_forms(Member::J2s, Member::J2sLen, record_texts(t, 0), [](size_t) { return std::make_pair(0u, 0u); },
                         one);
        // Every prefix, NUL-terminated and by length (the text ends where its
        // length does: see reader_diff's guard page), of the record and of
        // the record with its integers negative; a NUL within the length.
        const std::string doc = render(record(t, 0));
        Object negative = record(t, 0);
        for (Pair &p : negative)
            if (std::isdigit(static_cast<unsigned char>(p.value[0]))) p.value = "-" + p.value;
        for (const std::string &text : {doc, render(negative)})
            for (size_t k = 0; k <= text.size(); ++k) {
                check(Call{Member::J2s, text.substr(0, k), 0, false, 0, one});
                if (k > 0) check(Call{Member::J2sLen, text, k, false, 0, one});
            }
        const std::string nul = doc + std::string(1, '\0') + " \x01" + std::string(1, '\0');
        check(Call{Member::J2sLen, nul, nul.size(), false, 0, one});
        const std::string inner =
            "{\"" + std::string(t->desc->fields[0].key) + "\":\"a" + std::string(1, '\0') + "b\"}";
        check(Call{Member::J2sLen, inner, inner.size(), false, 0, one});
        if (reader_diff::has(t, Member::F2s))
            for (const std::string &file :
                 {doc, record_texts(t, 0)[3], std::string(), std::string("\xEF\xBB\xBF") + doc})
                check(Call{Member::F2s, file, 0, false, 0, one});
    }
    if (reader_diff::has(t, Member::J2sArray)) {
        const std::vector<char> five = before(t, 5, false);
        const std::vector<std::string> docs = array_texts(t);
        check_both_forms(Member::J2sArray, Member::J2sArrayLen, docs,
                         [](size_t i) { return i % 2 ? std::make_pair(3u, 2u) : std::make_pair(5u, 3u); }, five);
        for (uint32_t cap : {0u, 1u, 2u, 3u, 5u}) {
            check(Call{Member::J2sArray, docs[0], 0, false, cap, five});
            check(Call{Member::J2sArrayLen, docs[0], docs[0].size(), true, cap, five});
            check(Call{Member::J2sArray, docs[0], 0, true, cap, five});
        }
        for (size_t k = 0; k <= docs[0].size(); k += 3) {
            check(Call{Member::J2sArray, docs[0].substr(0, k), 0, false, 5, five});
            if (k > 0) check(Call{Member::J2sArrayLen, docs[0], k, k % 2 == 0, 5, five});
        }
        if (reader_diff::has(t, Member::F2sArray))
            for (size_t i : {size_t{0}, size_t{1}, size_t{5}, docs.size() - 1})
                check(Call{Member::F2sArray, docs[i], 0, i == 5, 5, five});
    }
    if (reader_diff::has(t, Member::J2sArrayUpdate)) {
        const std::vector<char> keyed = before(t, 5, true);
        check_both_forms(Member::J2sArrayUpdate, Member::J2sArrayUpdateLen, array_texts(t),
                         [](size_t i) { return std::make_pair(i % 2 ? 3u : 5u, static_cast<uint32_t>(i % 3)); }, keyed);
        // Elements without their keys, with keys of the wrong type, with keys
        // that match nothing, and one element naming the same record twice.
        const Object r1 = record(t, 1);
        std::vector<std::string> docs2 = {"[{}]", "[1]", "[[]]", "[" + render(r1) + ",{}]",
                                          "[" + render(r1) + "," + render(r1) + "]"};
        for (uint32_t k = 0; k < t->desc->key_count; ++k) {
            Object o = r1;
            for (Pair &p : o)
                if (p.key == t->desc->keys[k].field.key) p.value = p.value[0] == '"' ? "7" : "\"7\"";
            docs2.push_back("[" + render(record(t, 0)) + "," + render(o) + "]");
            for (Pair &p : o)
                if (p.key == t->desc->keys[k].field.key) p.value = p.value[0] == '"' ? "\"none\"" : "424242";
            docs2.push_back("[" + render(o) + "," + render(record(t, 2)) + "]");
        }
        for (const std::string &doc : docs2)
            for (uint32_t cap : {0u, 3u, 5u}) {
                check(Call{Member::J2sArrayUpdate, doc, 0, false, cap, keyed});
                check(Call{Member::J2sArrayUpdateLen, doc, doc.size(), false, cap, keyed});
            }
    }
    EXPECT_GT(calls_, 0);
}

// The file that a file member reads exists for the comparison only: a
// process that stops without running static destructors leaves none behind.
TEST(DirectReaderScratchFile, file_comparison_removes_its_file_before_it_returns) {
    for (const TypeInfo *t : testing_support::all_types()) {
        for (Member m : {Member::F2s, Member::F2sArray}) {
            if (!reader_diff::has(t, m)) continue;
            const bool array = m == Member::F2sArray;
            const std::string text = array ? "[" + render(record(t, 0)) + "]" : render(record(t, 0));
            const std::string before = reader_diff::last_file();
            const Call call{m, text, 0, false, array ? 1u : 0u, std::vector<char>(t->desc->size, 0)};
            EXPECT_EQ(reader_diff::compare(t, reader_diff::reference_of(t), call), "") << t->name;
            EXPECT_NE(reader_diff::last_file(), before) << t->name << " " << reader_diff::member_name(m);
            EXPECT_EQ(reader_diff::last_file().rfind("/tmp/app_s2j_diff_file_", 0), 0u) << reader_diff::last_file();
            EXPECT_FALSE(testing_support::file_exists(reader_diff::last_file())) << reader_diff::last_file();
        }
    }
}

std::vector<const TypeInfo *> readable_types() {
    std::vector<const TypeInfo *> out;
    for (const TypeInfo *t : testing_support::all_types())
        if (t->fam.j2s != nullptr || t->fam.j2s_array != nullptr || t->fam.j2s_array_update != nullptr)
            out.push_back(t);
    return out;
}

INSTANTIATE_TEST_SUITE_P(EveryTextType, DirectReader, ::testing::ValuesIn(readable_types()),
                         [](const ::testing::TestParamInfo<const TypeInfo *> &i) {
                             return std::string(i.param->name);
                         });

}  // namespace
