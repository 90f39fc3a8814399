// The validator against the library: over documents made from every type's
// example by changing one member at a time (its value, its key's spelling,
// a repetition) and over documents of every shape, the validator accepts
// exactly what the library accepts, and what it calls valid the library
// reads back exactly as written.
#include <gtest/gtest.h>

#include <dirent.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <initializer_list>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "registry.h"
#include "support.h"
#include "validate.h"

namespace {

using app_s2j_tool::Finding;
using app_s2j_tool::Validation;
using app_s2j_tool::validate_text;
using s2j::Kind;
using namespace testing_support;

std::string printed(const cJSON *item) {
    char *p = cJSON_PrintUnformatted(item);
    std::string s = p != nullptr ? p : "";
    cJSON_free(p);
    return s;
}

// A record as (key text, value text) pairs, which keeps number literals as
// written when the document is put back together.
using Members = std::vector<std::pair<std::string, std::string>>;

std::string object_text(const Members &m) {
    std::string s = "{";
    for (size_t i = 0; i < m.size(); ++i) s += (i ? "," : "") + m[i].first + ":" + m[i].second;
    return s + "}";
}

std::string json_string(const std::string &s) {
    cJSON *item = cJSON_CreateString(s.c_str());
    std::string out = printed(item);
    cJSON_Delete(item);
    return out;
}

// The first record of a type's example, member by member.
Members example_record(const s2j::TypeInfo &t) {
    std::string text = read_file(std::string(APP_S2J_SOURCE_DIR) + "/examples/" + t.name + ".json");
    cJSON *tree = s2j::parse_marked(text.c_str(), 0, false);
    Members m;
    if (tree == nullptr) return m;
    const cJSON *rec = cJSON_IsArray(tree) ? tree->child : tree;
    for (const cJSON *c = rec != nullptr ? rec->child : nullptr; c != nullptr; c = c->next)
        m.emplace_back(json_string(c->string), printed(c));
    cJSON_Delete(tree);
    return m;
}

// Every registry type with the first record of its example.
std::vector<std::pair<const s2j::TypeInfo *, Members>> example_records() {
    std::vector<std::pair<const s2j::TypeInfo *, Members>> v;
    for (const s2j::TypeInfo *t : all_types()) v.emplace_back(t, example_record(*t));
    return v;
}

bool has_array_reader(const s2j::TypeInfo &t) { return app_s2j_tool::reads_arrays(t); }

// The library's verdict through the tool's loader (file families included).
struct Library {
    std::string dir = temp_dir();
    std::string path = dir + "/doc.json";

    std::vector<char> bytes;    // the records of the last load
    bool against_files = false;  // compare each load with the file family

    // The tool's load of the text; against_files, it must give the status
    // the type's file family gives for a file holding that text.
    int load(const s2j::TypeInfo &t, const std::string &text, app_s2j_tool::Loaded *l) {
        bytes.clear();
        StderrCapture quiet;
        int rc = app_s2j_tool::load(t, text, l, [&](const char *recs, uint32_t n) {
            bytes.insert(bytes.end(), recs, recs + static_cast<size_t>(n) * t.desc->size);
            return true;
        });
        int file_rc = rc;
        if (against_files) write_file(path, text);
        if (!against_files) {
        } else if (l->is_array && t.fam.f2s_array != nullptr) {
            uint32_t n = 0;
            file_rc = t.fam.f2s_array(path.c_str(), nullptr, &n);
            std::vector<char> arr(t.desc->size * (n + 1), 0);
            if (file_rc == 0) file_rc = t.fam.f2s_array(path.c_str(), arr.data(), &n);
        } else if (!l->is_array && t.fam.f2s != nullptr) {
            std::vector<char> rec(t.desc->size, 0);
            file_rc = t.fam.f2s(path.c_str(), rec.data());
        }
        quiet.text();
        EXPECT_EQ(rc, file_rc) << t.name << ": the tool and the file family differ on\n" << text;
        return rc;
    }

    // A keyed update of records that carry the keys of every element (as the
    // record reader stores them), so that every element finds its record.
    int update(const s2j::TypeInfo &t, const std::string &text) {
        cJSON *tree = s2j::parse_marked(text.c_str(), 0, false);
        uint32_t n = tree != nullptr && cJSON_IsArray(tree) ? static_cast<uint32_t>(cJSON_GetArraySize(tree)) : 0;
        std::vector<char> arr(t.desc->size * (n + 1), 0);
        uint32_t i = 0;
        for (const cJSON *e = n ? tree->child : nullptr; e != nullptr; e = e->next, ++i) {
            cJSON *keys = cJSON_CreateObject();
            for (uint32_t k = 0; k < t.desc->key_count; ++k) {
                const cJSON *m = cJSON_GetObjectItem(e, t.desc->keys[k].field.key);
                if (m != nullptr) cJSON_AddItemReferenceToObject(keys, m->string, const_cast<cJSON *>(m));
            }
            {
                StderrCapture quiet;
                t.hooks->read(arr.data() + static_cast<size_t>(i) * t.desc->size, keys);
            }
            cJSON_Delete(keys);
        }
        cJSON_Delete(tree);
        uint32_t count = n + 1;
        StderrCapture quiet;
        int rc = t.fam.j2s_array_update(text.c_str(), arr.data(), &count);
        quiet.text();
        return rc;
    }
};

// Every member of every object of the document reads back as written: the
// records the library loaded, emitted again, hold the same value texts.
void expect_read_as_written(const s2j::TypeInfo &t, const std::string &text, Library &lib, const std::string &what) {
    app_s2j_tool::Loaded l;
    ASSERT_EQ(lib.load(t, text, &l), 0) << what;
    cJSON *doc = s2j::parse_marked(text.c_str(), 0, false);
    ASSERT_NE(doc, nullptr);
    const cJSON *rec = cJSON_IsArray(doc) ? doc->child : doc;
    for (uint32_t i = 0; i < l.count && rec != nullptr; ++i, rec = rec->next) {
        cJSON *back = t.hooks->emit(lib.bytes.data() + static_cast<size_t>(i) * t.desc->size);
        for (const cJSON *m = rec->child; m != nullptr; m = m->next) {
            const cJSON *b = cJSON_GetObjectItemCaseSensitive(back, m->string);
            if (cJSON_IsArray(m) && cJSON_IsArray(b)) {
                // A shorter list sets its entries only: compare those.
                const cJSON *x = m->child, *y = b->child;
                for (; x != nullptr; x = x->next, y = y != nullptr ? y->next : nullptr)
                    EXPECT_EQ(printed(y), printed(x)) << what << ": list " << m->string << " of record " << i;
                continue;
            }
            EXPECT_EQ(printed(b), printed(m)) << what << ": member " << m->string << " of record " << i;
        }
        cJSON_Delete(back);
    }
    cJSON_Delete(doc);
}

struct Tally {
    size_t accepted = 0, altered = 0, rejected = 0;
};

// Validates text both ways it can be read and compares with the library.
void compare(const s2j::TypeInfo &t, const std::string &text, Library &lib, Tally *tally, const std::string &what) {
    Validation v = validate_text(t, text, false);
    app_s2j_tool::Loaded l;
    int rc = lib.load(t, text, &l);
    EXPECT_EQ(v.accepted(), rc == 0) << t.name << " " << what << ": library status " << rc << "\n"
                                     << text << "\n"
                                     << app_s2j_tool::format_findings("doc", v);
    int status = v.exit_status();
    (status == 0 ? tally->accepted : status == 1 ? tally->rejected : tally->altered)++;
    if (status == 0 && rc == 0) expect_read_as_written(t, text, lib, std::string(t.name) + " " + what);
    if (t.fam.j2s_array_update != nullptr && text.find_first_not_of(" \t\r\n") != std::string::npos &&
        text[text.find_first_not_of(" \t\r\n")] == '[') {
        Validation u = validate_text(t, text, true);
        int urc = lib.update(t, text);
        EXPECT_EQ(u.accepted(), urc == 0) << t.name << " " << what << " as an update: library status " << urc
                                          << "\n"
                                          << text << "\n"
                                          << app_s2j_tool::format_findings("doc", u);
    }
}

std::vector<std::string> values_for(const s2j::Field &f) {
    std::vector<std::string> v = {"null", "true", "false", "{}", "[]", "\"\"", "\"1\"", "0", "1.5", "1.0",
                                  "1e2", "-0", "[1]", "{\"a\":1}"};
    switch (f.kind) {
        case Kind::I32:
        case Kind::U32:
        case Kind::U16:
            for (const char *n : {"2147483647", "2147483648", "-2147483648", "-2147483649", "4294967295",
                                  "4294967296", "-1", "65535", "65536", "9223372036854775807",
                                  "-9223372036854775808", "9223372036854775808", "123456789012345678901234", "1E400",
                                  "00", "-"})
                v.push_back(n);
            break;
        case Kind::Str: {
            std::string fits(f.size - 1, 'a'), over(f.size, 'a'), far(f.size + 9, 'b');
            std::string split = std::string(f.size - 2, 'c') + "\xc3\xa9";  // é across the cut
            for (const std::string &s : {fits, over, far, split}) v.push_back(json_string(s));
            v.push_back("\"a\\u0000b\"");
            break;
        }
        case Kind::U32List: {
            uint32_t n = f.size / 4;
            std::string ints = "[", strs = "[", more = "[";
            for (uint32_t i = 0; i < n; ++i) {
                ints += (i ? "," : "") + std::to_string(i);
                strs += std::string(i ? "," : "") + "\"x\"";
            }
            for (uint32_t i = 0; i <= n; ++i) more += (i ? "," : "") + std::to_string(i);
            for (const std::string &s :
                 std::vector<std::string>{ints + "]", strs + "]", more + "]", strs + ",7]", "[\"a\",1]", "[[1]]",
                                          std::string("[-1]"), std::string("[4294967296]"), std::string("[1.5]"),
                                          std::string("[1.5,2]"), std::string("{}"), std::string("5")})
                v.push_back(s);
            break;
        }
    }
    return v;
}

// The document for a record: an array of it where the type reads arrays.
std::string document(const s2j::TypeInfo &t, const Members &m) {
    return has_array_reader(t) ? "[" + object_text(m) + "]" : object_text(m);
}

TEST(Validator, AgreesWithTheLibraryOnEveryValueOfEveryFieldOfEveryType) {
    Library lib;
    Tally tally;
    for (const auto &[type, base] : example_records()) {
        const s2j::TypeInfo &t = *type;
        ASSERT_EQ(base.size(), t.desc->field_count) << t.name;
        compare(t, document(t, base), lib, &tally, "example record");
        for (uint32_t fi = 0; fi < t.desc->field_count; ++fi) {
            for (const std::string &value : values_for(t.desc->fields[fi])) {
                Members m = base;
                m[fi].second = value;
                compare(t, document(t, m), lib, &tally, std::string(t.desc->fields[fi].key) + " = " + value);
            }
        }
    }
    // The generated documents reach every verdict.
    EXPECT_GT(tally.accepted, 0u);
    EXPECT_GT(tally.altered, 0u);
    EXPECT_GT(tally.rejected, 0u);
}

TEST(Validator, AgreesWithTheLibraryOnKeySpellingsRepetitionsAndUnknownKeys) {
    Library lib;
    Tally tally;
    for (const auto &[type, base] : example_records()) {
        const s2j::TypeInfo &t = *type;
        for (uint32_t fi = 0; fi < t.desc->field_count; ++fi) {
            std::string key = t.desc->fields[fi].key, lower, upper;
            for (char c : key) {
                lower += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
                upper += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
            }
            Members m = base;
            m[fi].first = json_string(lower);
            compare(t, document(t, m), lib, &tally, "lower-case " + key);
            m[fi].first = json_string(upper);
            m[fi].second = "{}";
            compare(t, document(t, m), lib, &tally, "upper-case " + key + " of the wrong type");
            m = base;
            m.emplace_back(json_string(key), "{}");
            compare(t, document(t, m), lib, &tally, "repeated " + key + ", the second of the wrong type");
            m = base;
            m.insert(m.begin(), {json_string(lower), "{}"});
            compare(t, document(t, m), lib, &tally, "repeated " + key + ", the first of the wrong type");
            m = base;
            m[fi].first = json_string(key.substr(1));
            m[fi].second = "{}";
            compare(t, document(t, m), lib, &tally, "misspelt " + key + " of the wrong type");
            m = base;
            m.erase(m.begin() + fi);
            compare(t, document(t, m), lib, &tally, "without " + key);
        }
    }
    EXPECT_GT(tally.altered, 0u);
    EXPECT_GT(tally.rejected, 0u);
}

TEST(Validator, AgreesWithTheLibraryOnDocumentsOfEveryShape) {
    Library lib;
    lib.against_files = true;
    Tally tally;
    for (const auto &[type, example] : example_records()) {
        const s2j::TypeInfo &t = *type;
        const std::string rec = object_text(example);
        const std::string bad = "{\"" + std::string(t.desc->fields[0].key) + "\":{}}";
        for (const std::string &doc : std::vector<std::string>{
                 rec, "[" + rec + "]", "[" + rec + "," + rec + "]", "[" + rec + ",5]", "[[" + rec + "]]", "[5]",
              "[null]", "[\"x\"]", "[[]]", "[{}]", "[]", "{}", "5", "\"x\"", "null", "true", "", "   ", "[" + rec,
              rec + " trailing", rec + "\n}", "[" + rec + "] ]", bad, "[" + bad + "]", "[" + rec + "," + bad + "]",
              "[" + bad + ",5]", "  \n" + rec, std::string("{\"a\":1}\0{\"b\":", 14), "[" + rec + "]\n",
                 "\xEF\xBB\xBF[" + rec + "]", "\xEF\xBB\xBF" + rec, "\xEF\xBB\xBF", "\xEF\xBB[" + rec + "]"}) {
            compare(t, doc, lib, &tally, "document <" + doc.substr(0, 30) + ">");
        }
        // A NUL byte ends the text for the library.
        std::string cut = rec + std::string(1, '\0') + "garbage";
        compare(t, cut, lib, &tally, "text with a NUL byte");
    }
    EXPECT_GT(tally.accepted, 0u);
    EXPECT_GT(tally.altered, 0u);
    EXPECT_GT(tally.rejected, 0u);
}

// ---- Findings, word for word -------------------------------------------------

std::string report(const char *type, const std::string &text, bool update = false) {
    const s2j::TypeInfo *t = s2j::find_type(type);
    EXPECT_NE(t, nullptr) << type;
    return t == nullptr ? "" : app_s2j_tool::format_findings("f.json", validate_text(*t, text, update));
}

// Each document of a type gives its report.
struct Reported {
    const char *type;
    std::string text;
    std::string report;
};
void expect_reports(std::initializer_list<Reported> cases) {
    for (const Reported &c : cases) EXPECT_EQ(report(c.type, c.text), c.report) << c.type << " " << c.text;
}

int status(const char *type, const std::string &text, bool update = false) {
    return validate_text(*s2j::find_type(type), text, update).exit_status();
}

TEST(ValidatorFindings, AWrongTypeNamesElementKeyExpectedAndFound) {
    std::string doc = "[{\"Channel\":0},{\"Channel\":1},{\"Channel\":2},{\"Channel\":3,\"Width\":\"1920\"}]";
    EXPECT_EQ(report("VideoInputParameter", doc),
              "f.json: error: [3].Width: expected an integer, found a string (\"1920\")\n");
    EXPECT_EQ(status("VideoInputParameter", doc), 1);
}

TEST(ValidatorFindings, AStringTooLongForItsFieldIsCut) {
    std::string doc = "{\"ProductModel\":\"" + std::string(70, 'x') + "\"}";
    EXPECT_EQ(report("DeviceInfo", doc),
              "f.json: warning: ProductModel: a string of 70 bytes; char[64] keeps at most 63, the library cuts the "
              "rest\n");
    EXPECT_EQ(status("DeviceInfo", doc), 3);
    doc = "{\"ProductModel\":\"" + std::string(62, 'x') + "\xc3\xa9\"}";
    EXPECT_EQ(report("DeviceInfo", doc),
              "f.json: warning: ProductModel: a string of 64 bytes; char[64] keeps at most 63, the library cuts the "
              "rest (inside a multi-byte character)\n");
    EXPECT_EQ(status("DeviceInfo", "{\"ProductModel\":\"" + std::string(63, 'x') + "\"}"), 0);
}

TEST(ValidatorFindings, AnIntegerOutsideItsFieldIsTruncated) {
    expect_reports({
        {"DeviceTime", "{\"Month\":-1}",
         "f.json: warning: Month: -1 does not fit uint32 (0..4294967295); the library stores 4294967295\n"},
        {"DeviceTime", "{\"UTCTime\":2147483648}",
         "f.json: warning: UTCTime: 2147483648 does not fit int32 (-2147483648..2147483647); the library "
         "stores -2147483648\n"},
    });
    EXPECT_EQ(status("DeviceTime", "{\"UTCTime\":-2147483648,\"Month\":4294967295}"), 0);
}

TEST(ValidatorFindings, NumbersThatAreNotIntegerLiteralsAreRejected) {
    expect_reports({
        {"DeviceTime", "{\"Hour\":1.0}",
         "f.json: error: Hour: expected an integer, found the number 1, written with a fraction or an "
         "exponent (integer fields take digits only)\n"},
        {"DeviceTime", "{\"Hour\":123456789012345678901234}",
         "f.json: error: Hour: expected an integer, found the number 1.2345678901234569e+23, beyond the "
         "64-bit integer range\n"},
    });
}

TEST(ValidatorFindings, AKeyDifferingInLetterCaseIsReadUnderTheFieldsName) {
    EXPECT_EQ(report("DeviceTime", "{\"hour\":3}"),
              "f.json: warning: hour: the key differs from \"Hour\" only in letter case; the library reads it as "
              "\"Hour\"\n");
    EXPECT_EQ(status("DeviceTime", "{\"hour\":3}"), 3);
}

TEST(ValidatorFindings, AnUnknownKeySuggestsTheLikelyField) {
    expect_reports({
        {"NetworkInterface", "[{\"Name\":\"eth0\",\"Removable\":1}]",
         "f.json: warning: [0].Removable: unknown key, ignored by the library; did you mean \"Removeable\"?\n"},
        {"SerialPortInterface", "[{\"Removeable\":1}]",
         "f.json: warning: [0].Removeable: unknown key, ignored by the library; did you mean \"Removable\"?\n"},
        {"DeviceTime", "{\"Colour\":1}",
         "f.json: warning: Colour: unknown key, ignored by the library (DeviceTime has no such field)\n"},
    });
}

TEST(ValidatorFindings, ARepeatedKeyIsIgnoredAfterTheFirst) {
    EXPECT_EQ(report("DeviceTime", "{\"Hour\":1,\"HOUR\":\"x\"}"),
              "f.json: warning: HOUR: \"Hour\" appears again; the library reads only the first and ignores this "
              "one\n");
}

TEST(ValidatorFindings, AnUpdateElementWithoutItsKeyIsReported) {
    std::string doc = "[{\"Index\":1,\"Enable\":1},{\"Enable\":0}]";
    EXPECT_EQ(report("CrontabParameter", doc),
              "f.json: note: [1]: no \"Index\": fine in a record array, but an update "
              "(j2s_array_update_CrontabParameter) rejects an element without its key field\n");
    EXPECT_EQ(status("CrontabParameter", doc), 0);
    EXPECT_EQ(report("CrontabParameter", doc, true),
              "f.json: error: [1]: no \"Index\": every element of an update names its record by its key field\n");
    EXPECT_EQ(status("CrontabParameter", doc, true), 1);
    EXPECT_EQ(report("CrontabParameter", "{\"Index\":1}", true),
              "f.json: error: expected an array: an update request is an array of records, found an object\n");
}

TEST(ValidatorFindings, ListsReportSkippedAndSurplusEntries) {
    const s2j::TypeInfo *t = nullptr;
    const s2j::Field *list = nullptr;
    size_t n = 0;
    const s2j::TypeInfo *types = s2j::registry(&n);
    for (size_t i = 0; i < n && list == nullptr; ++i)
        for (uint32_t f = 0; f < types[i].desc->field_count; ++f)
            if (types[i].desc->fields[f].kind == Kind::U32List) {
                t = &types[i];
                list = &types[i].desc->fields[f];
                break;
            }
    ASSERT_NE(list, nullptr);
    const std::string key = list->key;
    const uint32_t cap = list->size / 4;
    std::string more = "[";
    for (uint32_t i = 0; i <= cap; ++i) more += (i ? "," : "") + std::to_string(i);
    std::string text = std::string(has_array_reader(*t) ? "[" : "") + "{\"" + key + "\":" + more + "]}" +
                       (has_array_reader(*t) ? "]" : "");
    std::string at = has_array_reader(*t) ? "[0]." + key : key;
    EXPECT_EQ(report(t->name, text), "f.json: warning: " + at + ": " + std::to_string(cap + 1) + " entries; uint32[" +
                                         std::to_string(cap) + "] keeps the first " + std::to_string(cap) +
                                         " and the library ignores the rest\n");
    text = std::string(has_array_reader(*t) ? "[" : "") + "{\"" + key + "\":[\"a\",7]}" +
           (has_array_reader(*t) ? "]" : "");
    EXPECT_EQ(report(t->name, text), "f.json: warning: " + at +
                                         "[0]: expected an integer, found a string (\"a\"); the library skips it and "
                                         "leaves the entry as it was\n"
                                         "f.json: note: " + at + ": 2 entries for uint32[" + std::to_string(cap) +
                                         "]; the library sets these and leaves the other " + std::to_string(cap - 2) +
                                         " as they were\n");
    text = std::string(has_array_reader(*t) ? "[" : "") + "{\"" + key + "\":[]}" + (has_array_reader(*t) ? "]" : "");
    EXPECT_EQ(report(t->name, text), "f.json: error: " + at + ": expected an array of 1 to " + std::to_string(cap) +
                                         " integers, found an empty array\n");
}

TEST(ValidatorFindings, TextThatIsNotJsonSaysWhereItStops) {
    expect_reports({
        {"DeviceInfo", "{\"ProductModel\": \"x\",\n \"Serial",
         "f.json: error: the text is not JSON: a string that does not end, at line 2, column 2, near "
         "\"\\\"Serial\"\n"},
        // A trailing comma is named at the comma, inside the object.
        {"DeviceInfo", "{\"ProductModel\": \"x\",\n}",
         "f.json: error: the text is not JSON: a comma before '}' (JSON allows no trailing comma), at line 1, "
         "column 21, near \",\"\n"},
        {"CrontabParameter", "[{\"Index\": 1},]",
         "f.json: error: the text is not JSON: a comma before ']' (JSON allows no trailing comma), at line 1, "
         "column 14, near \",]\"\n"},
        {"DeviceInfo", "", "f.json: error: the text is not JSON: it ends before the document does\n"},
        {"DeviceInfo", "{} x",
         "f.json: warning: text after the document, from line 1, column 4, is ignored by the library\n"},
        {"DeviceInfo", std::string("{}\0x", 4),
         "f.json: warning: a NUL byte at offset 2 (line 1, column 3) ends the text; the library reads no "
         "further\n"},
    });
}

TEST(ValidatorFindings, JsonNestedDeeperThanTheLibraryReadsIsNamedSo) {
    const std::string deep = "{\"ProductModel\":" + std::string(1000, '[') + std::string(1000, ']') + "}";
    EXPECT_EQ(report("DeviceInfo", deep),
              "f.json: error: the text is JSON, but nested 1001 levels deep; the library reads no deeper than 1000 "
              "levels\n");
    const std::string fits = "{\"ProductModel\":" + std::string(999, '[') + std::string(999, ']') + "}";
    EXPECT_EQ(report("DeviceInfo", fits), "f.json: error: ProductModel: expected a string, found an array\n");
}

TEST(ValidatorFindings, TextOnlyTheLibrarysParserReadsIsAWarningWithItsPlace) {
    const char *tail = "; the library reads it, other JSON parsers may not\n";
    expect_reports({
        {"DeviceInfo", "{\"ProductModel\": \"a\tb\"}",
         std::string("f.json: warning: not standard JSON: the control byte 0x09 unescaped inside a string (JSON "
                     "wants \\u0009), at line 1, column 20") + tail},
        {"DeviceInfo", "{\"ProductModel\": \"a\nb\"}",
         std::string("f.json: warning: not standard JSON: the control byte 0x0a unescaped inside a string (JSON "
                     "wants \\u000a), at line 1, column 20") + tail},
        {"DeviceInfo", "{\"ProductModel\": \"a\xff\xfe\"}",
         std::string("f.json: warning: not standard JSON: the byte 0xff, which is not UTF-8, at line 1, column "
                     "20 (and 1 more)") + tail},
        {"DeviceInfo", "\xEF\xBB\xBF{}",
         std::string("f.json: warning: not standard JSON: a byte order mark (JSON texts carry none), at line 1, "
                     "column 1") + tail},
        {"CrontabParameter", "[{\"Index\": 00}]",
         std::string("f.json: warning: not standard JSON: a number with a leading zero (JSON allows none), at "
                     "line 1, column 12") + tail},
        {"CrontabParameter", "\f[]",
         std::string("f.json: warning: not standard JSON: the control byte 0x0c as a blank (JSON allows space, "
                     "tab, CR and LF), at line 1, column 1") + tail +
         "f.json: note: the array is empty: it holds no records\n"},
    });
    EXPECT_EQ(status("DeviceInfo", "{\"ProductModel\": \"a\tb\"}"), 3);
    // Well-formed UTF-8 and every escape are standard.
    EXPECT_EQ(status("DeviceInfo", "{\"ProductModel\": \"\xc3\xa9\xe2\x82\xac\xf0\x9f\x98\x80 \\t\\u00e9\\/\"}"), 0);
}

TEST(ValidatorFindings, NulBytesFillingTheFileAfterTheDocumentAreANote) {
    EXPECT_EQ(report("DeviceInfo", std::string("{}\n\0\0\0", 6)),
              "f.json: note: NUL bytes from offset 3 (line 2, column 1) to the end of the file; the library reads "
              "the text before them\n");
    EXPECT_EQ(status("DeviceInfo", std::string("{}\n\0\0\0", 6)), 0);
    EXPECT_EQ(status("DeviceInfo", std::string("{}\n\0\0x", 6)), 3);
}

TEST(ValidatorFindings, AnEscapedNulEndsItsString) {
    expect_reports({
        {"DeviceInfo", "{\"ProductModel\": \"a\\u0000b\"}",
         "f.json: warning: a string holds \\u0000 at line 1, column 20; the library keeps a string only up to "
         "it\n"},
        {"DeviceInfo", "{\"ProductModel\": \"a\\u0000b\",\n\"SerialNumber\": \"\\u0000\\u0000\"}",
         "f.json: warning: a string holds \\u0000 at line 1, column 20 (and 2 more); the library keeps a string "
         "only up to it\n"},
    });
    // An escaped backslash followed by the letters u0000 is no NUL.
    EXPECT_EQ(status("DeviceInfo", "{\"ProductModel\": \"a\\\\u0000b\"}"), 0);
}

TEST(ValidatorFindings, KeysThatDifferAfterFortyBytesNameDifferentRecords) {
    const std::string a(50, 'a'), b = std::string(49, 'a') + "b";
    std::string doc = "[{\"InterfaceName\":\"" + a + "\"},{\"InterfaceName\":\"" + b + "\"},{\"InterfaceName\":\"" + a +
                      "\"}]";
    EXPECT_EQ(report("NetworkLANParameter", doc),
              "f.json: note: [2]: the same key as [0] (InterfaceName \"" + a +
                  "\"): an update reaches only the first of them\n");
}

TEST(ValidatorFindings, AVeryLongUnknownKeyIsReportedWithoutASuggestion) {
    std::string key(1 << 20, 'k');
    EXPECT_EQ(report("DeviceTime", "{\"" + key + "\":1}").size(), std::string("f.json: warning: \"").size() + 40 + 3 +
                  std::string("\": unknown key, ignored by the library (DeviceTime has no such field)\n").size());
}

TEST(ValidatorFindings, JsonReportHoldsVerdictShapeAndEveryFinding) {
    const s2j::TypeInfo &t = *s2j::find_type("CrontabParameter");
    Validation v = validate_text(t, "[{\"Index\":1,\"Enable\":\"x\"},{\"Enabel\":1}]", false);
    cJSON *doc = cJSON_Parse(app_s2j_tool::format_json("f.json", t, v, false).c_str());
    ASSERT_NE(doc, nullptr);
    EXPECT_STREQ(cJSON_GetObjectItem(doc, "file")->valuestring, "f.json");
    EXPECT_STREQ(cJSON_GetObjectItem(doc, "type")->valuestring, "CrontabParameter");
    EXPECT_STREQ(cJSON_GetObjectItem(doc, "shape")->valuestring, "array");
    EXPECT_EQ(cJSON_GetObjectItem(doc, "records")->valueint, 2);
    EXPECT_STREQ(cJSON_GetObjectItem(doc, "verdict")->valuestring, "rejected");
    const cJSON *findings = cJSON_GetObjectItem(doc, "findings");
    ASSERT_EQ(cJSON_GetArraySize(findings), 3);
    const cJSON *first = cJSON_GetArrayItem(findings, 0);
    EXPECT_STREQ(cJSON_GetObjectItem(first, "level")->valuestring, "error");
    EXPECT_STREQ(cJSON_GetObjectItem(first, "place")->valuestring, "[0].Enable");
    EXPECT_STREQ(cJSON_GetObjectItem(first, "text")->valuestring, "expected an integer, found a string (\"x\")");
    EXPECT_STREQ(cJSON_GetObjectItem(cJSON_GetArrayItem(findings, 1), "level")->valuestring, "note");
    EXPECT_STREQ(cJSON_GetObjectItem(cJSON_GetArrayItem(findings, 2), "text")->valuestring,
                 "unknown key, ignored by the library; did you mean \"Enable\"?");
    cJSON_Delete(doc);
    // Without notes, and as an update.
    doc = cJSON_Parse(app_s2j_tool::format_json("f.json", t, validate_text(t, "[{\"Index\":1}]", true), true,
                                                false).c_str());
    ASSERT_NE(doc, nullptr);
    EXPECT_STREQ(cJSON_GetObjectItem(doc, "shape")->valuestring, "update");
    EXPECT_STREQ(cJSON_GetObjectItem(doc, "verdict")->valuestring, "valid");
    EXPECT_EQ(cJSON_GetArraySize(cJSON_GetObjectItem(doc, "findings")), 0);
    cJSON_Delete(doc);
}

TEST(ValidatorFindings, ShapesTheLibraryDoesNotRead) {
    expect_reports({
        {"DeviceInfo", "5",
         "f.json: error: expected an object (one DeviceInfo record; the library reads no arrays of them), "
         "found the integer 5\n"},
        {"DeviceInfo", "[{\"ProductModel\":\"A\"}]",
         "f.json: error: expected an object (one DeviceInfo record; the library reads no arrays of them), "
         "found an array\n"},
        {"CrontabParameter", "{\"Index\":1,\"Enable\":1}",
         "f.json: error: expected an array of CrontabParameter records (the library reads CrontabParameter as "
         "a record array only), found an object\n"},
        {"UserList", "[5]",
         "f.json: error: [0]: expected an object, found the integer 5; UserList has no array reader, so its "
         "reader reads each element as one record\n"},
        {"CrontabParameter", "[5]",
         "f.json: warning: [0]: expected an object, found the integer 5; the library reads it as a record with "
         "no members\n"},
        {"CrontabParameter", "[]", "f.json: note: the array is empty: it holds no records\n"},
    });
    EXPECT_EQ(status("CrontabParameter", "[]"), 0);
    // A type of both shapes takes either.
    EXPECT_EQ(status("CreateUserParameter", "{}"), 0);
    EXPECT_EQ(status("CreateUserParameter", "[{}]"), 0);
}

// ---- The tool's loader against the file families ------------------------------

// The files of dir whose names begin with prefix and end with suffix, sorted.
std::vector<std::string> files_in(const std::string &dir, const std::string &prefix, const std::string &suffix) {
    std::vector<std::string> out;
    DIR *d = opendir(dir.c_str());
    if (d == nullptr) return out;
    for (const dirent *e = readdir(d); e != nullptr; e = readdir(d)) {
        std::string name = e->d_name;
        if (name.size() >= prefix.size() + suffix.size() && name.compare(0, prefix.size(), prefix) == 0 &&
            name.compare(name.size() - suffix.size(), suffix.size(), suffix) == 0)
            out.push_back(dir + "/" + name);
    }
    closedir(d);
    std::sort(out.begin(), out.end());
    return out;
}

// The verdict of the type's file family (f2s or f2s_array) on path; 1 when
// the type has no file family of that shape.
int file_family_status(const s2j::TypeInfo &t, bool array, const std::string &path) {
    StderrCapture quiet;
    if (array && t.fam.f2s_array != nullptr) {
        uint32_t n = 0;
        int rc = t.fam.f2s_array(path.c_str(), nullptr, &n);
        std::vector<char> arr(t.desc->size * (n + 1), 0);
        return rc != 0 ? rc : t.fam.f2s_array(path.c_str(), arr.data(), &n);
    }
    if (!array && t.fam.f2s != nullptr) {
        std::vector<char> rec(t.desc->size, 0);
        return t.fam.f2s(path.c_str(), rec.data());
    }
    return 1;
}

TEST(ToolLoader, GivesTheFileFamilysVerdictOnEveryExampleAndCorpusFile) {
    size_t compared = 0;
    for (const std::string &dir : {std::string(APP_S2J_SOURCE_DIR) + "/examples",
                                   std::string(APP_S2J_SOURCE_DIR) + "/tests/validate-corpus"}) {
        for (const s2j::TypeInfo *type : all_types()) {
            const s2j::TypeInfo &t = *type;
            for (const std::string &path : files_in(dir, std::string(t.name) + ".", ".json")) {
                if (path.find(".update.") != std::string::npos) continue;
                const std::string text = read_file(path);
                app_s2j_tool::Loaded l;
                int rc;
                {
                    StderrCapture quiet;
                    rc = app_s2j_tool::load(t, text, &l);
                }
                int file_rc = file_family_status(t, l.is_array, path);
                if (file_rc == 1) continue;
                EXPECT_EQ(rc, file_rc) << path;
                ++compared;
            }
        }
    }
    EXPECT_GE(compared, 30u);
}

TEST(ToolLoader, ReadsTheShapeTheTypesFamiliesRead) {
    const s2j::TypeInfo &cron = *s2j::find_type("CrontabParameter");
    const s2j::TypeInfo &info = *s2j::find_type("DeviceInfo");
    app_s2j_tool::Loaded l;
    StderrCapture quiet;
    // Any byte up to 0x20 is a blank to the parser: a form feed included.
    EXPECT_EQ(app_s2j_tool::load(cron, "\f[{\"Index\":1}]", &l), 0);
    EXPECT_TRUE(l.is_array);
    EXPECT_EQ(l.count, 1u);
    EXPECT_EQ(app_s2j_tool::load(cron, "{\"Index\":1,\"Enable\":1}", &l), -2);
    EXPECT_EQ(app_s2j_tool::load(info, "[{\"ProductModel\":\"A\"}]", &l), -2);
    EXPECT_FALSE(l.is_array);
}

TEST(ToolLoader, WritesAnArrayOfManyChunksAsTheLibraryWritesItWhole) {
    const s2j::TypeInfo &t = *s2j::find_type("CrontabParameter");
    const uint32_t n = 3 * app_s2j_tool::kChunkRecords + 5;
    std::string doc = "[";
    for (uint32_t i = 0; i < n; ++i) doc += (i ? "," : "") + std::string("{\"Index\":") + std::to_string(i) + "}";
    doc += "]";
    std::vector<char> arr(t.desc->size * n, 0);
    uint32_t count = n;
    ASSERT_EQ(t.fam.j2s_array(doc.c_str(), arr.data(), &count), 0);
    ASSERT_EQ(count, n);
    for (int formatted : {0, 1}) {
        char *whole = t.fam.s2j_array(arr.data(), n, formatted);
        ASSERT_NE(whole, nullptr);
        std::string parts;
        size_t calls = 0;
        EXPECT_EQ(app_s2j_tool::write_document(t, doc, formatted == 0,
                                               [&](const std::string &p) {
                                                   parts += p;
                                                   ++calls;
                                               }),
                  0);
        EXPECT_EQ(parts, whole);
        EXPECT_GT(calls, 3u);
        std::free(whole);
    }
}

TEST(ToolLoader, CutsLongDiagnosticLinesAndEndsEveryLine) {
    EXPECT_EQ(app_s2j_tool::cut_diagnostic("abc", 10), "abc\n");
    EXPECT_EQ(app_s2j_tool::cut_diagnostic("0123456789abc\nx", 10), "0123456789... (3 more bytes)\nx\n");
    EXPECT_EQ(app_s2j_tool::cut_diagnostic("\033[1;31m0123456789", 8), "\033[1;31m0... (9 more bytes)\033[0m\n");
    // A cut never splits a multi-byte character.
    EXPECT_EQ(app_s2j_tool::cut_diagnostic("abcd\xc3\xa9z", 5), "abcd... (3 more bytes)\n");
}

}  // namespace
