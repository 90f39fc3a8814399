// Templates (`app_s2j template`): for every type and both shapes, the text
// holds exactly the keys of the type's field table, in order, each zero,
// empty or a list of zeros, and it reads back into a zero-filled record.
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "reference.h"
#include "support.h"
#include "template.h"
#include "tool.h"

using testing_support::all_types;
using testing_support::StderrCapture;
using testing_support::Tree;

namespace {

// Checks one record object of the template against the type's table.
void expect_zero_record(const s2j::TypeInfo &t, const cJSON *obj, const char *shape) {
    ASSERT_TRUE(cJSON_IsObject(obj)) << t.name << " " << shape;
    const s2j::TypeDesc &d = *t.desc;
    uint32_t i = 0;
    for (const cJSON *m = obj->child; m != nullptr; m = m->next, ++i) {
        ASSERT_LT(i, d.field_count) << t.name << " " << shape << ": more members than fields, at " << m->string;
        const s2j::Field &f = d.fields[i];
        EXPECT_STREQ(m->string, f.key) << t.name << " " << shape << " member " << i + 1;
        switch (f.kind) {
            case s2j::Kind::I32:
            case s2j::Kind::U32:
            case s2j::Kind::U16:
                EXPECT_TRUE(cJSON_IsNumber(m) && m->valuedouble == 0) << t.name << "." << f.key;
                break;
            case s2j::Kind::Str:
                EXPECT_TRUE(cJSON_IsString(m) && std::strcmp(m->valuestring, "") == 0) << t.name << "." << f.key;
                break;
            case s2j::Kind::U32List: {
                ASSERT_TRUE(cJSON_IsArray(m)) << t.name << "." << f.key;
                EXPECT_EQ(cJSON_GetArraySize(m), static_cast<int>(f.size / 4)) << t.name << "." << f.key;
                for (const cJSON *e = m->child; e != nullptr; e = e->next)
                    EXPECT_TRUE(cJSON_IsNumber(e) && e->valuedouble == 0) << t.name << "." << f.key;
                break;
            }
        }
    }
    EXPECT_EQ(i, d.field_count) << t.name << " " << shape << ": fields missing";
}

TEST(Template, AnObjectHoldsExactlyTheTableKeysInOrderWithZeroValues) {
    for (const s2j::TypeInfo *t : all_types()) {
        std::string text;
        ASSERT_TRUE(app_s2j_tool::template_json(*t, false, &text)) << t->name;
        Tree tree(cJSON_Parse(text.c_str()));
        ASSERT_NE(tree.p, nullptr) << t->name << ":\n" << text;
        expect_zero_record(*t, tree.p, "object");
    }
}

TEST(Template, AnArrayHoldsOneRecordWithExactlyTheTableKeysInOrder) {
    for (const s2j::TypeInfo *t : all_types()) {
        std::string text;
        ASSERT_TRUE(app_s2j_tool::template_json(*t, true, &text)) << t->name;
        Tree tree(cJSON_Parse(text.c_str()));
        ASSERT_TRUE(cJSON_IsArray(tree.p)) << t->name << ":\n" << text;
        ASSERT_EQ(cJSON_GetArraySize(tree.p), 1) << t->name;
        expect_zero_record(*t, tree.p->child, "array");
    }
}

TEST(Template, ReadsBackThroughTheLibraryAsZeroAndEmptyFields) {
    for (const s2j::TypeInfo *t : all_types()) {
        std::string text;
        ASSERT_TRUE(app_s2j_tool::template_json(*t, false, &text)) << t->name;
        Tree tree(cJSON_Parse(text.c_str()));
        // Every field is overwritten: a string by "" (its first byte), the
        // others by zero bytes.
        std::vector<char> rec(t->desc->size, 0x5a);
        ASSERT_EQ(t->hooks->read(rec.data(), tree.p), 1) << t->name;
        for (uint32_t i = 0; i < t->desc->field_count; ++i) {
            const s2j::Field &f = t->desc->fields[i];
            const uint32_t bytes = f.kind == s2j::Kind::Str ? 1 : f.size;
            EXPECT_EQ(std::vector<char>(rec.begin() + f.offset, rec.begin() + f.offset + bytes),
                      std::vector<char>(bytes, 0))
                << t->name << "." << f.key;
        }
    }
}

TEST(Template, IsIndentedAsTheLibraryWritesFiles) {
    const s2j::TypeInfo *t = s2j::find_type("CrontabParameter");
    ASSERT_NE(t, nullptr);
    std::string text;
    ASSERT_TRUE(app_s2j_tool::template_json(*t, true, &text));
    EXPECT_EQ(text,
              "[{\n\t\t\"Index\":\t0,\n\t\t\"Enable\":\t0,\n\t\t\"Minute\":\t\"\",\n\t\t\"Hour\":\t\"\",\n"
              "\t\t\"Day\":\t\"\",\n\t\t\"Month\":\t\"\",\n\t\t\"Weekday\":\t\"\",\n\t\t\"Command\":\t\"\"\n\t}]");
}

// The tool writes records through the library's text families, or through
// the emitter's tree where a type has no text family of that shape.  When
// memory runs out at any one allocation, the text is either absent or holds
// every record: a record is never left out of an array.  (The library's
// emitter may lose a member of a record under no memory; that is its own
// contract, and the text is then still a whole array.)
TEST(ToolText, HoldsEveryRecordOrNoneWhenAnyOneAllocationFails) {
    for (const s2j::TypeInfo *t : all_types()) {
        const std::vector<char> recs(3 * static_cast<size_t>(t->desc->size), 0);
        bool written = false;
        for (long n = 0; !written; ++n) {
            std::string text;
            {
                testing_support::CjsonFaults faults(n, true);
                char *out = app_s2j_tool::emit_text(*t, recs.data(), 3, true, 1);
                // Past the last allocation nothing failed, and the text must be there.
                written = n >= testing_support::CjsonFaults::allocations();
                if (out == nullptr) {
                    EXPECT_FALSE(written) << t->name;
                    continue;
                }
                text = out;
                std::free(out);
            }
            Tree tree(cJSON_Parse(text.c_str()));
            EXPECT_EQ(cJSON_GetArraySize(tree.p), 3) << t->name << ", fault " << n << ":\n" << text;
        }
    }
}

TEST(TemplateCommand, GivesAnArrayForArrayTypesAndAnObjectOtherwise) {
    for (const s2j::TypeInfo *t : all_types()) {
        testing::internal::CaptureStdout();
        int rc = app_s2j_tool::kTemplateCommand.run({t->name});
        std::string out = testing::internal::GetCapturedStdout();
        ASSERT_EQ(rc, app_s2j_tool::kExitOk) << t->name;
        std::string want;
        ASSERT_TRUE(app_s2j_tool::template_json(*t, app_s2j_tool::holds_arrays(*t), &want));
        EXPECT_EQ(out, want + "\n") << t->name;
    }
}

TEST(TemplateCommand, WrongUsageExitsTwoWithTheReason) {
    const std::string tail =
        "\nusage: app_s2j template TYPE [--record|--array]\n(app_s2j template --help tells more)\n";
    struct Case {
        std::vector<std::string> args;
        std::string err;
    } cases[] = {
        {{}, "app_s2j: 'template' takes one TYPE" + tail},
        {{"DeviceInfo", "TimeZone"}, "app_s2j: 'template' takes one TYPE" + tail},
        {{"DeviceInfo", "--compact"}, "app_s2j: unknown option '--compact'" + tail},
        {{"--array", "DeviceInfo", "--record"}, "app_s2j: --record and --array exclude each other" + tail},
        {{"NoSuchType"}, "app_s2j: unknown record type 'NoSuchType' (app_s2j types lists them)\n"},
    };
    for (const Case &c : cases) {
        testing::internal::CaptureStdout();
        StderrCapture err;
        int rc = app_s2j_tool::kTemplateCommand.run(c.args);
        std::string text = err.text();
        std::string out = testing::internal::GetCapturedStdout();
        EXPECT_EQ(rc, app_s2j_tool::kExitUsage) << c.err;
        EXPECT_EQ(text, c.err);
        EXPECT_EQ(out, "") << c.err;
    }
}

}  // namespace
