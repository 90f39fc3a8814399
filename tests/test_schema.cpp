// test_schema.cpp - the JSON Schemas of `app_s2j schema`, checked against the
// registry's field tables for every type, and the command's usage errors.
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "schema.h"
#include "support.h"
#include "tool.h"

using app_s2j_tool::kSchemaCommand;
using testing_support::all_types;
using testing_support::StderrCapture;
using testing_support::Text;
using testing_support::Tree;

namespace {

std::string str(const cJSON *o, const char *key) {
    const cJSON *m = cJSON_GetObjectItemCaseSensitive(o, key);
    return cJSON_IsString(m) ? m->valuestring : "<missing>";
}

double num(const cJSON *o, const char *key) {
    const cJSON *m = cJSON_GetObjectItemCaseSensitive(o, key);
    return cJSON_IsNumber(m) ? m->valuedouble : -1e300;
}

const cJSON *at(const cJSON *o, const char *key) { return cJSON_GetObjectItemCaseSensitive(o, key); }

std::vector<std::string> names_of(const cJSON *o) {
    std::vector<std::string> v;
    for (const cJSON *m = o == nullptr ? nullptr : o->child; m != nullptr; m = m->next)
        v.push_back(m->string != nullptr ? m->string : m->valuestring);
    return v;
}

void expect_integer(const cJSON *s, double min, double max, const std::string &where) {
    EXPECT_EQ(str(s, "type"), "integer") << where;
    EXPECT_EQ(num(s, "minimum"), min) << where;
    EXPECT_EQ(num(s, "maximum"), max) << where;
}

int run(const std::vector<std::string> &args, std::string *err) {
    StderrCapture cap;
    int rc = kSchemaCommand.run(args);
    *err = cap.text();
    return rc;
}

const char *const kSynopsis =
    "usage: app_s2j schema TYPE [--update] | schema --all\n(app_s2j schema --help tells more)\n";

}  // namespace

TEST(Schema, EveryRecordHasExactlyItsFieldsInTableOrderWithTheBoundsOfTheirKinds) {
    for (const s2j::TypeInfo *t : all_types()) {
        Tree doc(app_s2j_tool::schema_of(*t, false));
        ASSERT_NE(doc.p, nullptr) << t->name;
        const cJSON *record = at(at(doc.p, "$defs"), "record");
        ASSERT_NE(record, nullptr) << t->name;
        EXPECT_EQ(str(record, "type"), "object") << t->name;
        EXPECT_TRUE(cJSON_IsFalse(at(record, "additionalProperties"))) << t->name;
        EXPECT_EQ(at(record, "required"), nullptr) << t->name << ": a record requires no field";
        const cJSON *props = at(record, "properties");
        std::vector<std::string> want;
        for (uint32_t i = 0; i < t->desc->field_count; ++i) want.push_back(t->desc->fields[i].key);
        ASSERT_EQ(names_of(props), want) << t->name;
        for (uint32_t i = 0; i < t->desc->field_count; ++i) {
            const s2j::Field &f = t->desc->fields[i];
            const cJSON *p = at(props, f.key);
            const std::string where = std::string(t->name) + "." + f.key;
            switch (f.kind) {
                case s2j::Kind::I32: expect_integer(p, -2147483648.0, 2147483647.0, where); break;
                case s2j::Kind::U32: expect_integer(p, 0, 4294967295.0, where); break;
                case s2j::Kind::U16: expect_integer(p, 0, 65535, where); break;
                case s2j::Kind::Str:
                    EXPECT_EQ(str(p, "type"), "string") << where;
                    EXPECT_EQ(num(p, "maxLength"), f.size - 1) << where;
                    break;
                case s2j::Kind::U32List:
                    EXPECT_EQ(str(p, "type"), "array") << where;
                    EXPECT_EQ(num(p, "minItems"), 1) << where;
                    EXPECT_EQ(num(p, "maxItems"), f.size / 4) << where;
                    expect_integer(at(p, "items"), 0, 4294967295.0, where + "[]");
                    break;
            }
            const std::string note = f.note;
            const std::string c_type = app_s2j_tool::c_type_of(f);
            EXPECT_EQ(str(p, "description"), note.empty() ? c_type : c_type + "; " + note) << where;
        }
    }
}

// Every field's note says what the field holds: none is empty or only a word
// for the field's kind ("flag", "count", ...).
TEST(FieldNotes, EveryFieldHasANoteBeyondItsKind) {
    const std::vector<std::string> bare = {"flag", "count", "text", "signed", "key", "key field", "path", "port"};
    for (const s2j::TypeInfo *t : all_types()) {
        for (uint32_t i = 0; i < t->desc->field_count; ++i) {
            const std::string note = t->desc->fields[i].note;
            const std::string where = std::string(t->name) + "." + t->desc->fields[i].key;
            EXPECT_FALSE(note.empty()) << where;
            for (const std::string &word : bare) EXPECT_NE(note, word) << where;
            EXPECT_NE(note.rfind("flag", 0), 0u) << where << ": a flag's note says what 1 and 0 mean: [" << note << "]";
        }
    }
}

TEST(Schema, CTypesInDescriptionsAreTheStructMembersTypes) {
    Tree info(app_s2j_tool::schema_of(*s2j::find_type("DeviceInfo"), false));
    const cJSON *props = at(at(at(info.p, "$defs"), "record"), "properties");
    EXPECT_EQ(str(at(props, "ProductModel"), "description"), "char[64]; model designation");
    EXPECT_EQ(str(at(props, "ReleaseDate"), "description"), "char[64]; held as text; not interpreted");
    Tree time(app_s2j_tool::schema_of(*s2j::find_type("DeviceTime"), false));
    props = at(at(at(time.p, "$defs"), "record"), "properties");
    EXPECT_EQ(str(at(props, "UTCTime"), "description"), "int32; signed, unlike the broken-down fields");
    EXPECT_EQ(str(at(props, "Month"), "description"), "uint32; month of the year; unsigned, not range-checked");
    Tree use(app_s2j_tool::schema_of(*s2j::find_type("StreamingInputUseCount"), false));
    props = at(at(at(use.p, "$defs"), "record"), "properties");
    EXPECT_EQ(str(at(props, "IndexList"), "description"), "uint32[256]; JSON array of integers");
}

TEST(Schema, DocumentHasTheShapeTheTypesFamiliesReadUnderItsOwnId) {
    int both = 0, arrays = 0, records = 0;
    for (const s2j::TypeInfo *t : all_types()) {
        Tree doc(app_s2j_tool::schema_of(*t, false));
        EXPECT_EQ(str(doc.p, "$schema"), "https://json-schema.org/draft/2020-12/schema") << t->name;
        EXPECT_EQ(str(doc.p, "$id"), std::string("urn:app-s2j:") + t->name);
        EXPECT_EQ(str(doc.p, "title"), t->name);
        const bool reads_records = app_s2j_tool::reads_records(*t), reads_arrays = app_s2j_tool::reads_arrays(*t);
        const char *record = R"({"$ref": "#/$defs/record"})";
        const char *array = R"({"type": "array", "items": {"$ref": "#/$defs/record"}})";
        const std::string one_of = reads_records && reads_arrays ? "anyOf" : "allOf";
        const std::string want_text = reads_records && reads_arrays ? std::string("[") + record + "," + array + "]"
                                      : reads_arrays                ? std::string("[") + array + "]"
                                                                    : std::string("[") + record + "]";
        both += reads_records && reads_arrays;
        arrays += reads_arrays && !reads_records;
        records += reads_records && !reads_arrays;
        Tree want(cJSON_Parse(want_text.c_str()));
        EXPECT_TRUE(cJSON_Compare(at(doc.p, one_of.c_str()), want.p, 1)) << t->name;
        EXPECT_EQ(at(doc.p, one_of == "anyOf" ? "allOf" : "anyOf"), nullptr) << t->name;
        EXPECT_EQ(names_of(at(doc.p, "$defs")), std::vector<std::string>{"record"}) << t->name;
    }
    EXPECT_GT(both, 0);
    EXPECT_GT(arrays, 0);
    EXPECT_GT(records, 0);
    // One type of each shape, named.
    Tree cron(app_s2j_tool::schema_of(*s2j::find_type("CrontabParameter"), false));
    EXPECT_EQ(str(cJSON_GetArrayItem(at(cron.p, "allOf"), 0), "type"), "array");
    Tree info(app_s2j_tool::schema_of(*s2j::find_type("DeviceInfo"), false));
    EXPECT_EQ(str(cJSON_GetArrayItem(at(info.p, "allOf"), 0), "$ref"), "#/$defs/record");
    Tree user(app_s2j_tool::schema_of(*s2j::find_type("CreateUserParameter"), false));
    EXPECT_EQ(cJSON_GetArraySize(at(user.p, "anyOf")), 2);
}

TEST(Schema, DescriptionNamesTheFamiliesOfTheType) {
    Tree doc(app_s2j_tool::schema_of(*s2j::find_type("CrontabParameter"), false));
    const std::string d = str(doc.p, "description");
    EXPECT_NE(d.find("An array of CrontabParameter records (a record array)."), std::string::npos) << d;
    EXPECT_NE(d.find("c2s_array_update"), std::string::npos) << d;
    EXPECT_NE(d.find("get_keyword"), std::string::npos) << d;
    Tree info(app_s2j_tool::schema_of(*s2j::find_type("DeviceInfo"), false));
    const std::string di = str(info.p, "description");
    EXPECT_EQ(di.find("array_update"), std::string::npos) << di;
    EXPECT_NE(di.find("One DeviceInfo record (a JSON object)."), std::string::npos) << di;
    Tree user(app_s2j_tool::schema_of(*s2j::find_type("CreateUserParameter"), false));
    const std::string du = str(user.p, "description");
    EXPECT_NE(du.find("One CreateUserParameter record (a JSON object) or an array of them"), std::string::npos) << du;
}

TEST(Schema, UpdateRequestRequiresExactlyTheKeyFieldsInKeyOrder) {
    int updates = 0;
    for (const s2j::TypeInfo *t : all_types()) {
        Tree doc(app_s2j_tool::schema_of(*t, true));
        if (t->fam.c2s_array_update == nullptr) {
            EXPECT_EQ(doc.p, nullptr) << t->name << " has no keyed update";
            continue;
        }
        ++updates;
        ASSERT_NE(doc.p, nullptr) << t->name;
        EXPECT_EQ(str(doc.p, "$id"), std::string("urn:app-s2j:") + t->name + ":update");
        EXPECT_EQ(str(doc.p, "type"), "array") << t->name;
        EXPECT_EQ(str(at(doc.p, "items"), "$ref"), "#/$defs/record") << t->name;
        const cJSON *record = at(at(doc.p, "$defs"), "record");
        std::vector<std::string> keys;
        for (uint32_t i = 0; i < t->desc->key_count; ++i) keys.push_back(t->desc->keys[i].field.key);
        ASSERT_FALSE(keys.empty()) << t->name;
        EXPECT_EQ(names_of(at(record, "required")), keys) << t->name;
        // Apart from "required" the element is the plain record.
        Tree plain(app_s2j_tool::record_schema(*t, false));
        cJSON *copy = cJSON_Duplicate(record, 1);
        cJSON_DeleteItemFromObjectCaseSensitive(copy, "required");
        EXPECT_TRUE(cJSON_Compare(copy, plain.p, 1)) << t->name;
        cJSON_Delete(copy);
    }
    EXPECT_GT(updates, 0);
    Tree video(app_s2j_tool::schema_of(*s2j::find_type("VideoEncodeParameter"), true));
    EXPECT_EQ(names_of(at(at(at(video.p, "$defs"), "record"), "required")),
              (std::vector<std::string>{"Channel", "StreamIndex"}));
}

TEST(Schema, BundleEmbedsEveryTypeAndEveryUpdateRequest) {
    Tree bundle(app_s2j_tool::schema_bundle());
    EXPECT_EQ(str(bundle.p, "$schema"), "https://json-schema.org/draft/2020-12/schema");
    EXPECT_EQ(str(bundle.p, "$id"), "urn:app-s2j:all");
    const cJSON *defs = at(bundle.p, "$defs");
    std::vector<std::string> want;
    for (const s2j::TypeInfo *t : all_types()) {
        want.push_back(t->name);
        Tree one(app_s2j_tool::schema_of(*t, false));
        EXPECT_TRUE(cJSON_Compare(at(defs, t->name), one.p, 1)) << t->name;
        if (t->fam.c2s_array_update == nullptr) continue;
        want.push_back(std::string(t->name) + ".update");
        Tree update(app_s2j_tool::schema_of(*t, true));
        EXPECT_TRUE(cJSON_Compare(at(defs, want.back().c_str()), update.p, 1)) << want.back();
    }
    EXPECT_EQ(names_of(defs), want);
}

TEST(Schema, BoundsArePrintedAsExactIntegers) {
    Tree doc(app_s2j_tool::schema_of(*s2j::find_type("DeviceTime"), false));
    Text text(cJSON_PrintUnformatted(at(at(at(doc.p, "$defs"), "record"), "properties")));
    const std::string s = text.str();
    EXPECT_NE(s.find(R"("UTCTime":{"type":"integer","minimum":-2147483648,"maximum":2147483647,)"), std::string::npos)
        << s;
    EXPECT_NE(s.find(R"("Month":{"type":"integer","minimum":0,"maximum":4294967295,)"), std::string::npos) << s;
    Tree info(app_s2j_tool::schema_of(*s2j::find_type("DeviceInfo"), false));
    Text t2(cJSON_PrintUnformatted(at(at(at(info.p, "$defs"), "record"), "properties")));
    EXPECT_NE(t2.str().find(R"("ProductModel":{"type":"string","maxLength":63,)"), std::string::npos) << t2.str();
}

TEST(SchemaCommand, UsageErrorsExitTwoWithTheirReason) {
    struct Case {
        std::vector<std::string> args;
        std::string first_line;
    } cases[] = {
        {{}, "app_s2j: 'schema' takes a TYPE, or --all\n"},
        {{"--frob"}, "app_s2j: unknown option '--frob'\n"},
        {{"DeviceInfo", "DeviceTime"}, "app_s2j: 'schema' takes one TYPE\n"},
        {{"--all", "DeviceInfo"}, "app_s2j: --all takes no TYPE\n"},
        {{"--all", "--update"}, "app_s2j: --all already holds every update schema; drop --update\n"},
        {{"DeviceInfo", "--update"},
         "app_s2j: DeviceInfo has no keyed update (c2s_array_update); --update applies only to the types whose "
         "families in 'app_s2j types' include it\n"},
    };
    for (const Case &c : cases) {
        std::string err;
        EXPECT_EQ(run(c.args, &err), app_s2j_tool::kExitUsage) << c.first_line;
        EXPECT_EQ(err, c.first_line + kSynopsis);
    }
}

TEST(SchemaCommand, UnknownTypeExitsTwoNamingIt) {
    std::string err;
    EXPECT_EQ(run({"NoSuchType"}, &err), app_s2j_tool::kExitUsage);
    EXPECT_EQ(err, "app_s2j: unknown record type 'NoSuchType' (app_s2j types lists them)\n");
    EXPECT_EQ(run({"NoSuchType", "--update"}, &err), app_s2j_tool::kExitUsage);
    EXPECT_EQ(err, "app_s2j: unknown record type 'NoSuchType' (app_s2j types lists them)\n");
}

TEST(SchemaCommand, HelpNamesTheFormsAndTheKnownLimits) {
    const std::string help = kSchemaCommand.help;
    for (const char *words : {"schema TYPE --update", "schema --all", "urn:app-s2j:TYPE:update", "duplicate keys",
                              "1.0 and 1e2", "maxLength counts characters", "beyond 2^53", "lone UTF-16 surrogate"})
        EXPECT_NE(help.find(words), std::string::npos) << words;
}

// The field facts every command shows, for one field of each kind.
TEST(ToolFieldFacts, EachKindNamesItsCTypeAndRange) {
    auto field = [](const char *type, const char *key) -> const s2j::Field & {
        const s2j::TypeDesc *d = s2j::find_type(type)->desc;
        for (uint32_t i = 0; i < d->field_count; ++i)
            if (std::string(d->fields[i].key) == key) return d->fields[i];
        ADD_FAILURE() << type << "." << key;
        return d->fields[0];
    };
    EXPECT_EQ(app_s2j_tool::c_type_of(field("DeviceTime", "UTCTime")), "int32");
    EXPECT_EQ(app_s2j_tool::c_type_of(field("DeviceTime", "Month")), "uint32");
    EXPECT_EQ(app_s2j_tool::c_type_of(field("NetworkLANParameter", "MTUSize")), "uint16");
    EXPECT_EQ(app_s2j_tool::c_type_of(field("DeviceInfo", "ProductModel")), "char[64]");
    EXPECT_EQ(app_s2j_tool::c_type_of(field("StreamingInputUseCount", "IndexList")), "uint32[256]");
    EXPECT_EQ(app_s2j_tool::range_of(s2j::Kind::I32).lo, INT32_MIN);
    EXPECT_EQ(app_s2j_tool::range_of(s2j::Kind::I32).hi, INT32_MAX);
    EXPECT_EQ(app_s2j_tool::range_of(s2j::Kind::U32).lo, 0);
    EXPECT_EQ(app_s2j_tool::range_of(s2j::Kind::U32).hi, int64_t{UINT32_MAX});
    EXPECT_EQ(app_s2j_tool::range_of(s2j::Kind::U16).hi, 65535);
    EXPECT_EQ(app_s2j_tool::range_of(s2j::Kind::U32List).hi, int64_t{UINT32_MAX});
    EXPECT_EQ(app_s2j_tool::families_of(*s2j::find_type("DeviceTime"), " "), "s2j c2s j2s keyword");
    EXPECT_EQ(app_s2j_tool::families_of(*s2j::find_type("DeviceInfo"), ", "), "s2j, c2s, j2s, f2s, s2f");
}
