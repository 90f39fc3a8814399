// Malformed and hostile JSON at scale: a corpus generated into a temporary
// directory (deep nesting, huge strings, huge numbers, invalid UTF-8, NUL
// bytes inside the length of the _with_len readers, keys repeated in other
// letter case, wrong JSON types, every truncation of the example files),
// every file of which is read back from disk and given to every text reader
// and file reader of DeviceInfo and CrontabParameter.
//
// The expected status: -2 whenever cJSON itself rejects the text (cJSON_Parse,
// or cJSON_ParseWithLength over the same bytes for the _with_len readers) or
// gives the wrong JSON type; otherwise the status that the case's fields call
// for (0, or -1 for a member of the wrong type).
#include <dirent.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "s2j_int.h"
#include "support.h"

using namespace testing_support;

namespace {

// One element's text and the status its fields call for once it parses.
struct Element {
    std::string text;
    int status;
};

struct Case {
    std::string name;
    std::string bytes;
    int status;       // for the readers whose shape the text has
    bool is_array;    // an array of CrontabParameter elements, or an object
};

std::string repeat(const std::string &s, size_t n) {
    std::string out;
    out.reserve(s.size() * n);
    for (size_t i = 0; i < n; ++i) out += s;
    return out;
}

// Elements of CrontabParameter; every one carries the key Index 1 first.
std::vector<std::pair<std::string, Element>> elements() {
    std::vector<std::pair<std::string, Element>> v;
    auto add = [&](const std::string &name, const std::string &members, int status) {
        v.push_back({name, {"{\"Index\":1" + (members.empty() ? "" : "," + members) + "}", status}});
    };
    for (size_t d : {1, 100, 997, 998, 999, 1000, 5000, 100000}) {
        add("nest_arrays_" + std::to_string(d), "\"Zz\":" + repeat("[", d) + repeat("]", d), 0);
        add("nest_objects_" + std::to_string(d), "\"Zz\":" + repeat("{\"a\":", d) + "1" + repeat("}", d), 0);
        add("nest_unclosed_" + std::to_string(d), "\"Zz\":" + repeat("[", d), 0);
    }
    for (size_t n : {63, 64, 65, 255, 256, 257, 4096, 1 << 20, 8 << 20}) {
        add("string_" + std::to_string(n), "\"Command\":\"" + std::string(n, 'c') + "\"", 0);
        add("unknown_string_" + std::to_string(n), "\"Zz\":\"" + std::string(n, 'z') + "\"", 0);
    }
    const char *integers[] = {"0", "-0", "1", "-1", "2147483647", "2147483648", "-2147483649", "4294967295",
                              "4294967296", "999999999999999", "1000000000000000", "9007199254740993",
                              "9223372036854775807", "-9223372036854775808", "00", "01"};
    for (const char *n : integers) add(std::string("integer_") + n, std::string("\"Enable\":") + n, 0);
    const char *not_integers[] = {"1.0", "1e2", "1E+400", "-1e-400", "1.5", "0.0000001", "9223372036854775808",
                                  "-9223372036854775809", "123456789012345678901234567890", "1."};
    for (const char *n : not_integers) add(std::string("not_integer_") + n, std::string("\"Enable\":") + n, -1);
    add("digits_400", "\"Enable\":" + std::string(400, '9'), -1);
    add("digits_400_unknown", "\"Zz\":" + std::string(400, '9'), 0);
    const char *bad_numbers[] = {"+1", ".5", "-", "0x10", "NaN", "Infinity", "1e", "--1"};
    for (const char *n : bad_numbers) add(std::string("bad_number_") + n, std::string("\"Enable\":") + n, 0);
    const char *utf8[] = {"\xff", "\xc0\x80", "\xed\xa0\x80", "\xe2\x82", "\xf4\x90\x80\x80", "\x80\x80",
                          "\xef\xbb\xbf", "caf\xc3\xa9"};
    int u = 0;
    for (const char *s : utf8) {
        add("utf8_in_string_" + std::to_string(u), std::string("\"Command\":\"") + s + "\"", 0);
        add("utf8_outside_" + std::to_string(u), std::string("\"Command\":\"x\"") + s, 0);
        ++u;
    }
    const char *escapes[] = {"\\ud800", "\\udc00x", "\\ud800\\udc00", "\\u0000", "\\u12", "\\x41", "\\", "\\u00e9"};
    int e = 0;
    for (const char *s : escapes) add("escape_" + std::to_string(e++), std::string("\"Command\":\"") + s + "\"", 0);
    add("control_char", "\"Command\":\"a\tb\x01\"", 0);
    add("duplicate_other_case_first_wins", "\"command\":\"first\",\"COMMAND\":\"second\",\"Command\":\"third\"", 0);
    add("duplicate_first_wrong_type", "\"enable\":\"x\",\"Enable\":1", -1);
    add("duplicate_first_right_type", "\"ENABLE\":1,\"enable\":\"x\"", 0);
    add("wrong_type_string_for_int", "\"Enable\":\"1\"", -1);
    add("wrong_type_int_for_string", "\"Command\":1", -1);
    add("wrong_type_null", "\"Command\":null", -1);
    add("wrong_type_true", "\"Enable\":true", -1);
    add("wrong_type_object", "\"Command\":{}", -1);
    add("wrong_type_array", "\"Enable\":[1]", -1);
    add("trailing_comma", "\"Enable\":1,", 0);
    add("missing_colon", "\"Enable\" 1", 0);
    add("single_quotes", "'Enable':1", 0);
    add("comment", "/* c */\"Enable\":1", 0);
    return v;
}

std::vector<Case> corpus() {
    std::vector<Case> cases;
    for (const auto &[name, el] : elements()) {
        cases.push_back({"object_" + name, el.text, el.status, false});
        cases.push_back({"array_" + name, "[" + el.text + "," + el.text + "]", el.status, true});
        cases.push_back({"trailing_" + name, el.text + " trailing", el.status, false});
        // A NUL inside the text: the _with_len readers see what follows it.
        cases.push_back({"nul_before_" + name, std::string("[") + '\0' + el.text + "]", el.status, true});
    }
    cases.push_back({"empty", "", 0, false});
    cases.push_back({"whitespace", " \n\t ", 0, false});
    cases.push_back({"bom_object", "\xef\xbb\xbf{}", 0, false});
    cases.push_back({"nul_only", std::string(1, '\0'), 0, false});
    cases.push_back({"nul_inside_string", std::string("{\"Index\":1,\"Command\":\"ab") + '\0' + "cd\"}", 0, false});
    cases.push_back({"nul_inside_array", std::string("[{\"Index\":1,\"Command\":\"ab") + '\0' + "cd\"}]", 0, true});
    cases.push_back({"array_of_numbers", "[1,2,3]", 0, true});
    cases.push_back({"empty_array", "[]", 0, true});
    cases.push_back({"many_elements", "[" + repeat("{\"Index\":1,\"Enable\":2},", 20000) + "{\"Index\":1}]", 0, true});
    cases.push_back({"many_members", "{\"Index\":1" + repeat(",\"Zz\":1", 100000) + "}", 0, false});
    // Every truncation of the example files.
    for (const char *type : {"DeviceInfo", "CrontabParameter"}) {
        const std::string whole = read_file(example_path(type));
        for (size_t cut = 0; cut < whole.size(); cut += 3)
            cases.push_back({std::string("cut_") + type + "_" + std::to_string(cut), whole.substr(0, cut), 0,
                             whole[0] == '['});
    }
    return cases;
}

// What cJSON makes of the bytes, read as the reader reads them.
enum class Shape { Rejected, Object, Array, Other };
Shape shape(const std::string &bytes, bool with_len) {
    cJSON *t = with_len ? (bytes.empty() ? nullptr : cJSON_ParseWithLength(bytes.data(), bytes.size()))
                        : cJSON_Parse(bytes.c_str());
    Shape s = t == nullptr        ? Shape::Rejected
              : cJSON_IsObject(t) ? Shape::Object
              : cJSON_IsArray(t)  ? Shape::Array
                                  : Shape::Other;
    cJSON_Delete(t);
    return s;
}

// The status a reader of the given shape must return for the case.
int expected(const Case &c, bool with_len, Shape wants) {
    Shape s = shape(c.bytes, with_len);
    return s == wants ? c.status : -2;
}

class HostileCorpus : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        dir_ = new std::string(temp_dir());
        cases_ = new std::map<std::string, Case>();
        for (Case &c : corpus()) {
            write_file(*dir_ + "/" + c.name, c.bytes);
            (*cases_)[c.name] = c;
        }
    }
    static void TearDownTestSuite() {
        delete dir_;
        delete cases_;
    }
    static std::string *dir_;
    static std::map<std::string, Case> *cases_;
};
std::string *HostileCorpus::dir_ = nullptr;
std::map<std::string, Case> *HostileCorpus::cases_ = nullptr;

std::vector<std::string> files_of(const std::string &dir) {
    std::vector<std::string> v;
    DIR *d = opendir(dir.c_str());
    for (dirent *e = readdir(d); e != nullptr; e = readdir(d))
        if (e->d_name[0] != '.') v.push_back(e->d_name);
    closedir(d);
    return v;
}

TEST_F(HostileCorpus, every_file_through_every_reader_gives_the_status_its_text_calls_for) {
    const std::vector<std::string> files = files_of(*dir_);
    ASSERT_EQ(files.size(), cases_->size());
    ASSERT_GT(files.size(), 500u);
    StderrCapture err;  // thousands of diagnostics
    long checked = 0;
    for (const std::string &name : files) {
        const Case &c = cases_->at(name);
        const std::string path = *dir_ + "/" + name;
        const std::string bytes = read_file(path);
        ASSERT_EQ(bytes, c.bytes) << name;
        const char *text = bytes.c_str();
        const size_t len = bytes.size();
        SCOPED_TRACE(name);

        // DeviceInfo: only strings; a Crontab element is an object whose
        // Command and Enable it does not have, so it reads nothing of it and
        // succeeds unless cJSON rejects the text or its shape.
        DeviceInfo info;
        std::memset(&info, 0, sizeof info);
        auto dev = [&](bool with_len) { return shape(bytes, with_len) == Shape::Object ? 0 : -2; };
        EXPECT_EQ(j2s_DeviceInfo(text, &info), dev(false));
        EXPECT_EQ(len == 0 ? -2 : j2s_DeviceInfo_with_len(text, len, &info), dev(true));
        EXPECT_EQ(f2s_DeviceInfo(path.c_str(), &info), dev(false));
        EXPECT_EQ(info.ProductModel[sizeof info.ProductModel - 1], '\0');

        // CrontabParameter: single reader through the array element's rules.
        const int arr_want = expected(c, false, Shape::Array);
        const int arr_want_len = len == 0 ? -2 : expected(c, true, Shape::Array);
        std::vector<CrontabParameter> tasks(2);
        std::memset(tasks.data(), 0, 2 * sizeof(CrontabParameter));
        tasks[0].Index = 1;
        tasks[1].Index = 2;
        uint32_t n = 2;
        int rc = j2s_array_CrontabParameter(text, tasks.data(), &n);
        EXPECT_EQ(rc, arr_want);
        if (rc == 0) {
            EXPECT_LE(n, 2u);
        }
        n = 2;
        rc = j2s_array_CrontabParameter_with_len(text, len, tasks.data(), &n);
        EXPECT_EQ(rc, arr_want_len);
        if (rc == 0) {
            EXPECT_LE(n, 2u);
        }
        n = 2;
        rc = f2s_array_CrontabParameter(path.c_str(), tasks.data(), &n);
        EXPECT_EQ(rc, arr_want);
        for (int k = 0; k < 2; ++k) {
            EXPECT_EQ(tasks[k].Command[sizeof tasks[k].Command - 1], '\0');
            EXPECT_EQ(tasks[k].Minute[sizeof tasks[k].Minute - 1], '\0');
        }
        // Keyed update: every element of the generated arrays carries Index 1
        // first; elements of other texts may lack it (-2).
        std::memset(tasks.data(), 0, 2 * sizeof(CrontabParameter));
        tasks[0].Index = 1;
        tasks[1].Index = 2;
        n = 2;
        rc = j2s_array_update_CrontabParameter(text, tasks.data(), &n);
        if (name.rfind("cut_", 0) != 0 && c.bytes != "[1,2,3]") {
            EXPECT_EQ(rc, arr_want);
        } else {
            EXPECT_TRUE(rc == arr_want || rc == -2);
        }
        n = 2;
        int rc_len = j2s_array_update_CrontabParameter_with_len(text, len, tasks.data(), &n);
        if (name.rfind("cut_", 0) != 0 && c.bytes != "[1,2,3]") {
            EXPECT_EQ(rc_len, arr_want_len);
        } else {
            EXPECT_TRUE(rc_len == arr_want_len || rc_len == -2);
        }
        // An object of the corpus read as one CrontabParameter element.
        if (!c.is_array && shape(bytes, false) == Shape::Object) {
            cJSON *tree = s2j::parse_marked(text, 0, false);  // as the readers parse
            CrontabParameter one;
            std::memset(&one, 0, sizeof one);
            int ok = json_to_struct_CrontabParameter(&one, tree);
            cJSON_Delete(tree);
            if (c.status == -1) {
                EXPECT_EQ(ok, 0);
            }
            if (name.find("duplicate_other_case_first_wins") != std::string::npos) {
                EXPECT_STREQ(one.Command, "first");
            }
            if (name.rfind("object_string_", 0) == 0) {
                size_t given = std::stoul(name.substr(std::strlen("object_string_")));
                EXPECT_EQ(std::strlen(one.Command), std::min<size_t>(255, given));
            }
        }
        ++checked;
    }
    (void)err.text();
    EXPECT_EQ(checked, static_cast<long>(files.size()));
}

TEST_F(HostileCorpus, keys_in_other_letter_case_resolve_to_the_first_member_and_strings_are_cut) {
    const std::string &dup = cases_->at("array_duplicate_other_case_first_wins").bytes;
    CrontabParameter t[2];
    std::memset(t, 0, sizeof t);
    uint32_t n = 2;
    StderrCapture err;
    ASSERT_EQ(j2s_array_CrontabParameter(dup.c_str(), t, &n), 0);
    EXPECT_STREQ(t[0].Command, "first");
    const std::string &huge = cases_->at("object_string_8388608").bytes;
    CrontabParameter one;
    std::memset(&one, 0, sizeof one);
    uint32_t one_n = 1;
    std::string as_array = "[" + huge + "]";
    ASSERT_EQ(j2s_array_CrontabParameter(as_array.c_str(), &one, &one_n), 0);
    EXPECT_EQ(std::string(one.Command), std::string(255, 'c'));
    const std::string &nul = cases_->at("nul_inside_string").bytes;
    DeviceInfo info;
    std::memset(&info, 0, sizeof info);
    CrontabParameter c1;
    std::memset(&c1, 0, sizeof c1);
    uint32_t c1n = 1;
    std::string nul_array = "[" + nul + "]";
    ASSERT_EQ(j2s_array_CrontabParameter_with_len(nul_array.data(), nul_array.size(), &c1, &c1n), 0);
    EXPECT_STREQ(c1.Command, "ab");
    (void)err.text();
}

// A number literal longer than 63 characters once made the marking of
// integer items take the rest of its digits for the next number of the
// text, so that a later integer field was read as not an integer (-1).
TEST(LongNumbers, a_number_of_400_digits_does_not_shift_the_integers_after_it) {
    const std::string digits(400, '9');
    const std::string text = "[{\"Index\":1,\"Zz\":" + digits + "},{\"Index\":2,\"Enable\":7}]";
    CrontabParameter t[2];
    std::memset(t, 0, sizeof t);
    uint32_t n = 2;
    ASSERT_EQ(j2s_array_CrontabParameter(text.c_str(), t, &n), 0);
    EXPECT_EQ(n, 2u);
    EXPECT_EQ(t[1].Index, 2u);
    EXPECT_EQ(t[1].Enable, 7);
    n = 2;
    ASSERT_EQ(j2s_array_CrontabParameter_with_len(text.data(), text.size(), t, &n), 0);
    EXPECT_EQ(t[1].Enable, 7);
    const std::string obj = "{\"Zz\":-" + digits + ".5e3,\"Enable\":-3}";
    ASSERT_EQ(j2s_array_CrontabParameter(("[" + obj + "]").c_str(), t, &n), 0);
    EXPECT_EQ(t[0].Enable, -3);
}

}  // namespace
