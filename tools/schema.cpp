// schema.cpp - `app_s2j schema`: JSON Schema (draft 2020-12) documents of the
// record types, made from the field tables: what a record text may hold for
// the library to accept it.
#include "schema.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "tool.h"

namespace app_s2j_tool {

namespace {

// An integer within the range of a kind.  cJSON prints the bounds exactly
// (all are below 2^53 and printed with up to 17 significant digits).
cJSON *integer_schema(s2j::Kind k) {
    const IntRange r = range_of(k);
    cJSON *s = cJSON_CreateObject();
    cJSON_AddStringToObject(s, "type", "integer");
    cJSON_AddNumberToObject(s, "minimum", static_cast<double>(r.lo));
    cJSON_AddNumberToObject(s, "maximum", static_cast<double>(r.hi));
    return s;
}

std::string key_list(const s2j::TypeInfo &t) {
    std::string s;
    for (uint32_t i = 0; i < t.desc->key_count; ++i) s += std::string(i == 0 ? "" : ", ") + t.desc->keys[i].field.key;
    return s;
}

cJSON *document_head(const std::string &id, const std::string &title, const std::string &description) {
    cJSON *doc = cJSON_CreateObject();
    cJSON_AddStringToObject(doc, "$schema", kSchemaDialect);
    cJSON_AddStringToObject(doc, "$id", id.c_str());
    cJSON_AddStringToObject(doc, "title", title.c_str());
    cJSON_AddStringToObject(doc, "description", description.c_str());
    return doc;
}

cJSON *ref_record() {
    cJSON *r = cJSON_CreateObject();
    cJSON_AddStringToObject(r, "$ref", "#/$defs/record");
    return r;
}

cJSON *array_of_records() {
    cJSON *a = cJSON_CreateObject();
    cJSON_AddStringToObject(a, "type", "array");
    cJSON_AddItemToObject(a, "items", ref_record());
    return a;
}

}  // namespace

bool has_keyed_update(const s2j::TypeInfo &t) { return t.fam.c2s_array_update != nullptr; }

cJSON *field_schema(const s2j::Field &f) {
    cJSON *s = nullptr;
    switch (f.kind) {
        case s2j::Kind::I32:
        case s2j::Kind::U32:
        case s2j::Kind::U16: s = integer_schema(f.kind); break;
        case s2j::Kind::Str:
            // The library keeps size-1 bytes and cuts the rest: longer text
            // loads, but not as written.
            s = cJSON_CreateObject();
            cJSON_AddStringToObject(s, "type", "string");
            cJSON_AddNumberToObject(s, "maxLength", f.size - 1);
            break;
        case s2j::Kind::U32List:
            // The library needs at least one integer among the first size/4
            // entries and ignores entries past them.
            s = cJSON_CreateObject();
            cJSON_AddStringToObject(s, "type", "array");
            cJSON_AddNumberToObject(s, "minItems", 1);
            cJSON_AddNumberToObject(s, "maxItems", f.size / 4);
            cJSON_AddItemToObject(s, "items", integer_schema(s2j::Kind::U32));
            break;
    }
    std::string description = c_type_of(f);
    if (f.note != nullptr && f.note[0] != '\0') description += std::string("; ") + f.note;
    cJSON_AddStringToObject(s, "description", description.c_str());
    return s;
}

cJSON *record_schema(const s2j::TypeInfo &t, bool keys_required) {
    cJSON *r = cJSON_CreateObject();
    cJSON_AddStringToObject(r, "type", "object");
    cJSON *props = cJSON_AddObjectToObject(r, "properties");
    for (uint32_t i = 0; i < t.desc->field_count; ++i)
        cJSON_AddItemToObject(props, t.desc->fields[i].key, field_schema(t.desc->fields[i]));
    // No "required" for a record: a member left out leaves its field as it
    // was.  An update element must name its record by every key field.
    if (keys_required) {
        cJSON *req = cJSON_AddArrayToObject(r, "required");
        for (uint32_t i = 0; i < t.desc->key_count; ++i)
            cJSON_AddItemToArray(req, cJSON_CreateString(t.desc->keys[i].field.key));
    }
    cJSON_AddFalseToObject(r, "additionalProperties");
    return r;
}

cJSON *schema_of(const s2j::TypeInfo &t, bool update) {
    const std::string name = t.name;
    if (update) {
        if (!has_keyed_update(t)) return nullptr;
        cJSON *doc = document_head(
            "urn:app-s2j:" + name + ":update", name + " keyed update",
            "A keyed update request of " + name + " records: an array of records, each naming the record it "
            "changes by its key fields (" + key_list(t) + "), as c2s_array_update and j2s_array_update read it. "
            "Members left out leave the record's fields as they are.");
        cJSON *defs = cJSON_AddObjectToObject(doc, "$defs");
        cJSON_AddItemToObject(defs, "record", record_schema(t, true));
        cJSON_AddStringToObject(doc, "type", "array");
        cJSON_AddItemToObject(doc, "items", ref_record());
        return doc;
    }
    std::string fams = families_of(t, ", ");
    const bool records = reads_records(t), arrays = reads_arrays(t);
    const std::string shape = records && arrays ? "One " + name + " record (a JSON object) or an array of them (a "
                                                                   "record array)."
                              : arrays          ? "An array of " + name + " records (a record array)."
                                                : "One " + name + " record (a JSON object).";
    cJSON *doc = document_head(
        "urn:app-s2j:" + name, name,
        shape + " Members left out leave the record's fields as they are. Families of the library for " + name +
            ": " + (fams.empty() ? "none (emitter and reader only)" : fams) + ".");
    cJSON *defs = cJSON_AddObjectToObject(doc, "$defs");
    cJSON_AddItemToObject(defs, "record", record_schema(t, false));
    if (records && arrays) {
        cJSON *any = cJSON_AddArrayToObject(doc, "anyOf");
        cJSON_AddItemToArray(any, ref_record());
        cJSON_AddItemToArray(any, array_of_records());
    } else if (arrays) {
        cJSON *all = cJSON_AddArrayToObject(doc, "allOf");
        cJSON_AddItemToArray(all, array_of_records());
    } else {
        cJSON *all = cJSON_AddArrayToObject(doc, "allOf");
        cJSON_AddItemToArray(all, ref_record());
    }
    return doc;
}

cJSON *schema_bundle() {
    cJSON *doc = document_head("urn:app-s2j:all", "app_s2j records",
                               "Every record type's schema (TYPE) and every keyed update request's schema "
                               "(TYPE.update), each an embedded resource with its own $id: urn:app-s2j:TYPE and "
                               "urn:app-s2j:TYPE:update.");
    cJSON *defs = cJSON_AddObjectToObject(doc, "$defs");
    size_t n = 0;
    const s2j::TypeInfo *types = s2j::registry(&n);
    for (size_t i = 0; i < n; ++i) {
        cJSON_AddItemToObject(defs, types[i].name, schema_of(types[i], false));
        if (has_keyed_update(types[i]))
            cJSON_AddItemToObject(defs, (std::string(types[i].name) + ".update").c_str(), schema_of(types[i], true));
    }
    return doc;
}

namespace {

int print_document(cJSON *doc) {
    char *text = doc == nullptr ? nullptr : cJSON_Print(doc);
    cJSON_Delete(doc);
    if (text == nullptr) return rejected("out of memory writing the schema");
    std::printf("%s\n", text);
    std::free(text);
    return kExitOk;
}

int run_schema(const std::vector<std::string> &args) {
    bool all = false, update = false;
    std::vector<std::string> names;
    const std::initializer_list<Flag> flags = {{"--all", nullptr, &all}, {"--update", nullptr, &update}};
    if (int usage = split_options(kSchemaCommand, args, flags, &names)) return usage;
    if (all) {
        if (!names.empty()) return usage_error(kSchemaCommand, "--all takes no TYPE");
        if (update) return usage_error(kSchemaCommand, "--all already holds every update schema; drop --update");
        return print_document(schema_bundle());
    }
    if (names.empty()) return usage_error(kSchemaCommand, "'schema' takes a TYPE, or --all");
    if (names.size() > 1) return usage_error(kSchemaCommand, "'schema' takes one TYPE");
    const s2j::TypeInfo *t = find_type_or_report(names[0]);
    if (t == nullptr) return kExitUsage;
    if (update && !has_keyed_update(*t))
        return usage_error(kSchemaCommand, std::string(t->name) +
                                               " has no keyed update (c2s_array_update); --update applies only to "
                                               "the types whose families in 'app_s2j types' include it");
    return print_document(schema_of(*t, update));
}

}  // namespace

const Command kSchemaCommand = {
    "schema", "schema TYPE [--update] | schema --all",
    "print the JSON Schema (draft 2020-12) of a record type, or of all of them",
    "Prints a JSON Schema (draft 2020-12) made from TYPE's field table:\n"
    "\n"
    "  schema TYPE           the shape TYPE's families read: a record array,\n"
    "                        one record (an object), or either for a type\n"
    "                        with both; \"$id\" urn:app-s2j:TYPE; the record is\n"
    "                        \"$defs\"/\"record\": one property per field, in the\n"
    "                        order the library writes them, and no others\n"
    "  schema TYPE --update  a keyed update request (types with\n"
    "                        c2s_array_update only): an array of records, each\n"
    "                        with every key field; \"$id\" urn:app-s2j:TYPE:update\n"
    "  schema --all          one compound document, \"$id\" urn:app-s2j:all, that\n"
    "                        embeds every TYPE's schema and every update\n"
    "                        schema (\"$defs\" TYPE and TYPE.update)\n"
    "\n"
    "Fields: int32 -2147483648..2147483647, uint32 0..4294967295, uint16\n"
    "0..65535, char[N] a string of at most N-1 characters, uint32[N] an array\n"
    "of 1 to N integers 0..4294967295.  No field is required in a record: a\n"
    "member left out leaves the field as it was.  Each property's\n"
    "description gives the field's C type and what it holds.\n"
    "\n"
    "A file the schema accepts is one the library reads exactly as written\n"
    "(app_s2j validate exits 0), and such a file is one the schema accepts:\n"
    "keys in their exact case, no unknown keys, text within its field and\n"
    "integers within their range, where the library would match keys without\n"
    "regard to case, skip unknown ones, and cut or wrap what does not fit.\n"
    "What JSON Schema cannot say:\n"
    "  - duplicate keys: a JSON Schema validator usually sees the last of\n"
    "    them, the library reads the first;\n"
    "  - 1.0 and 1e2 count as integers in JSON Schema; the library wants an\n"
    "    integer literal and rejects them;\n"
    "  - maxLength counts characters, the library counts bytes: non-ASCII\n"
    "    text within maxLength may still be cut;\n"
    "  - in JavaScript validators, numbers beyond 2^53 lose precision;\n"
    "  - a \\u escape of a lone UTF-16 surrogate is a string to JSON Schema;\n"
    "    the library does not parse the text;\n"
    "  - a string holding \\u0000 is whole to JSON Schema; the library keeps\n"
    "    it only up to the NUL.\n"
    "\n"
    "Exit status: 0 printed, 2 wrong usage (no TYPE, unknown type or option,\n"
    "more than one TYPE, --all with a TYPE or --update, --update on a type\n"
    "without keyed update).\n",
    run_schema};

}  // namespace app_s2j_tool
