// Behaviour that every record type shares, checked for each type of the
// registry with boundary values: emitter and reader, every family member the
// type has (and no other), their diagnostics and instantiation lines.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "registry.h"
#include "support.h"

using namespace testing_support;
using s2j::Field;
using s2j::Kind;
using s2j::TypeInfo;

namespace {

// The registry's types, or those for which has() holds.
std::vector<const TypeInfo *> types_where(bool (*has)(const TypeInfo &)) {
    size_t n = 0;
    const TypeInfo *t = s2j::registry(&n);
    std::vector<const TypeInfo *> v;
    for (size_t i = 0; i < n; ++i)
        if (has == nullptr || has(t[i])) v.push_back(&t[i]);
    return v;
}

bool has_single(const TypeInfo &t) { return t.fam.s2j || t.fam.c2s || t.fam.j2s; }
bool has_array(const TypeInfo &t) { return t.fam.s2j_array || t.fam.c2s_array || t.fam.j2s_array; }
bool has_update(const TypeInfo &t) { return t.fam.c2s_array_update != nullptr; }
bool has_keyword(const TypeInfo &t) { return t.hooks->keyword || t.hooks->get_keyword; }
bool has_file(const TypeInfo &t) { return t.fam.f2s || t.fam.s2f || t.fam.f2s_array || t.fam.s2f_array; }

// A record as raw bytes, zeroed.
struct Rec {
    explicit Rec(const TypeInfo *t, size_t count = 1) : bytes(t->desc->size * count, 0) {}
    void *p() { return bytes.data(); }
    char *at(size_t i, const TypeInfo *t) { return bytes.data() + i * t->desc->size; }
    std::vector<char> bytes;
};

bool same(const TypeInfo *t, const void *a, const void *b) { return std::memcmp(a, b, t->desc->size) == 0; }
bool same_values(const TypeInfo *t, const char *a, const char *b) {
    for (uint32_t i = 0; i < t->desc->field_count; ++i) {
        const Field &f = t->desc->fields[i];
        int d = f.kind == Kind::Str ? std::strncmp(a + f.offset, b + f.offset, f.size)
                                    : std::memcmp(a + f.offset, b + f.offset, f.size);
        if (d != 0) return false;
    }
    return true;
}

class EveryType : public ::testing::TestWithParam<const TypeInfo *> {};
class SingleRecordType : public EveryType {};
class ArrayType : public EveryType {};
class KeyedArrayType : public EveryType {};
class KeywordType : public EveryType {};
class FileType : public EveryType {};

std::string name_of(const ::testing::TestParamInfo<const TypeInfo *> &info) { return info.param->name; }

TEST_P(EveryType, FieldTableCoversTheStructInOrder) {
    const TypeInfo *t = GetParam();
    EXPECT_TRUE(s2j::covers(t->desc->fields, t->desc->field_count, t->desc->size));
    EXPECT_GT(t->desc->field_count, 0u);
}

// Beside the compile-time checks of each table: the table's keys are the
// struct's members by name, in order, and a mismatch names both.
TEST_P(EveryType, FieldTableListsTheStructsMembersByNameInOrder) {
    const TypeInfo *t = GetParam();
    auto it = declared_structs().find(t->name);
    ASSERT_NE(it, declared_structs().end()) << t->name << " is not declared in app_s2j_types.h";
    const std::vector<DeclaredMember> &members = it->second;
    for (size_t i = 0; i < members.size() || i < t->desc->field_count; ++i) {
        const std::string member = i < members.size() ? members[i].name : "(none)";
        const std::string key = i < t->desc->field_count ? t->desc->fields[i].key : "(none)";
        ASSERT_EQ(key, member) << t->name << ": row " << i + 1 << " of the field table against member "
                               << i + 1 << " of the struct";
    }
}

TEST_P(EveryType, EmitterWritesEveryFieldInTableOrderWithItsJsonType) {
    const TypeInfo *t = GetParam();
    Rec r(t);
    fill_boundary(t, r.at(0, t), 0);
    Tree tree(t->hooks->emit(r.p()));
    ASSERT_TRUE(cJSON_IsObject(tree.p));
    const cJSON *m = tree.p->child;
    for (uint32_t i = 0; i < t->desc->field_count; ++i, m = m->next) {
        const Field &f = t->desc->fields[i];
        ASSERT_NE(m, nullptr) << f.key;
        EXPECT_STREQ(m->string, f.key);
        if (f.kind == Kind::Str)
            EXPECT_TRUE(cJSON_IsString(m)) << f.key;
        else if (f.kind == Kind::U32List)
            EXPECT_EQ(cJSON_GetArraySize(m), static_cast<int>(f.size / 4)) << f.key;
        else
            EXPECT_TRUE(cJSON_IsInt(m)) << f.key;
    }
    EXPECT_EQ(m, nullptr);
}

TEST_P(EveryType, ReaderReadsBackBoundaryValuesExactly) {
    const TypeInfo *t = GetParam();
    for (uint32_t seed = 0; seed < 3; ++seed) {
        Rec a(t), b(t);
        fill_boundary(t, a.at(0, t), seed);
        Tree tree(t->hooks->emit(a.p()));
        EXPECT_EQ(t->hooks->read(b.p(), tree.p), 1);
        EXPECT_TRUE(same(t, a.p(), b.p())) << "seed " << seed;
    }
}

TEST_P(EveryType, StringFieldOfNBytesWithoutNulIsEmittedWholeAndReadBackAsNMinusOne) {
    const TypeInfo *t = GetParam();
    for (uint32_t i = 0; i < t->desc->field_count; ++i) {
        const Field &f = t->desc->fields[i];
        if (f.kind != Kind::Str) continue;
        Rec a(t), b(t);
        std::memset(a.at(0, t) + f.offset, 'x', f.size);
        Tree tree(t->hooks->emit(a.p()));
        const cJSON *m = cJSON_GetObjectItem(tree.p, f.key);
        ASSERT_TRUE(cJSON_IsString(m));
        EXPECT_EQ(std::strlen(m->valuestring), f.size) << f.key;
        ASSERT_EQ(t->hooks->read(b.p(), tree.p), 1);
        EXPECT_EQ(std::string(b.at(0, t) + f.offset), std::string(f.size - 1, 'x')) << f.key;
    }
}

TEST_P(EveryType, MemberOfWrongTypeStopsReaderThereLeavingEarlierFieldsWritten) {
    const TypeInfo *t = GetParam();
    for (uint32_t bad = 0; bad < t->desc->field_count; ++bad) {
        Rec src(t), dst(t), before(t);
        fill_boundary(t, src.at(0, t), 2);
        fill_boundary(t, dst.at(0, t), 1);
        before.bytes = dst.bytes;
        Tree tree(t->hooks->emit(src.p()));
        const Field &bf = t->desc->fields[bad];
        // A string where an integer belongs, an integer where a string does.
        cJSON *wrong = bf.kind == Kind::Str ? cJSON_CreateInt(1) : cJSON_CreateString("1");
        cJSON_ReplaceItemInObjectCaseSensitive(tree.p, bf.key, wrong);
        EXPECT_EQ(t->hooks->read(dst.p(), tree.p), 0) << bf.key;
        for (uint32_t i = 0; i < t->desc->field_count; ++i) {
            const Field &f = t->desc->fields[i];
            const char *want = (i < bad ? src : before).at(0, t) + f.offset;
            EXPECT_EQ(f.kind == Kind::Str ? std::strncmp(dst.at(0, t) + f.offset, want, f.size)
                                          : std::memcmp(dst.at(0, t) + f.offset, want, f.size),
                      0)
                << "bad " << bf.key << ", field " << f.key;
        }
    }
}

TEST_P(EveryType, EmptyObjectChangesNothing) {
    const TypeInfo *t = GetParam();
    Rec a(t), b(t);
    fill_boundary(t, a.at(0, t), 1);
    b.bytes = a.bytes;
    Tree tree(cJSON_Parse("{}"));
    EXPECT_EQ(t->hooks->read(a.p(), tree.p), 1);
    EXPECT_TRUE(same(t, a.p(), b.p()));
}

TEST_P(SingleRecordType, SingleRecordFamiliesRoundTripIndentedAndCompact) {
    const TypeInfo *t = GetParam();
    const s2j::Families &f = t->fam;
    Rec a(t);
    fill_boundary(t, a.at(0, t), 0);
    Tree tree(t->hooks->emit(a.p()));
    Text indented(cJSON_Print(tree.p)), compact(cJSON_PrintUnformatted(tree.p));
    if (f.s2j) {
        Text s1(f.s2j(a.p(), 1)), s0(f.s2j(a.p(), 0));
        EXPECT_EQ(s1.str(), indented.str());
        EXPECT_EQ(s0.str(), compact.str());
        EXPECT_NE(std::string(s1.p).find('\n'), std::string::npos);
        EXPECT_EQ(std::string(s0.p).find('\n'), std::string::npos);
    }
    if (f.c2s) {
        Rec b(t);
        EXPECT_EQ(f.c2s(tree.p, b.p()), 0);
        EXPECT_TRUE(same(t, a.p(), b.p()));
    }
    if (f.j2s) {
        for (const Text *text : {&indented, &compact}) {
            Rec b(t), c(t);
            EXPECT_EQ(f.j2s(text->p, b.p()), 0);
            EXPECT_TRUE(same(t, a.p(), b.p()));
            EXPECT_EQ(f.j2s_with_len(text->p, std::strlen(text->p), c.p()), 0);
            EXPECT_TRUE(same(t, a.p(), c.p()));
        }
    }
}

TEST_P(ArrayType, ArrayFamiliesRoundTripWithQueryAndCapacity) {
    const TypeInfo *t = GetParam();
    const s2j::Families &f = t->fam;
    Rec a(t, 3);
    for (uint32_t i = 0; i < 3; ++i) fill_boundary(t, a.at(i, t), i);
    cJSON *list = cJSON_CreateArray();
    for (uint32_t i = 0; i < 3; ++i) cJSON_AddItemToArray(list, t->hooks->emit(a.at(i, t)));
    Tree tree(list);
    Text text(cJSON_Print(list));
    if (f.s2j_array) {
        Text s(f.s2j_array(a.p(), 3, 1));
        EXPECT_EQ(s.str(), text.str());
        Text c(f.s2j_array(a.p(), 3, 0));
        Text want(cJSON_PrintUnformatted(list));
        EXPECT_EQ(c.str(), want.str());
    }
    if (f.c2s_array) {
        uint32_t n = 99;
        EXPECT_EQ(f.c2s_array(list, nullptr, &n), 0);
        EXPECT_EQ(n, 3u);
        Rec b(t, 3);
        n = 2;
        EXPECT_EQ(f.c2s_array(list, b.p(), &n), 0);
        EXPECT_EQ(n, 2u);
        EXPECT_EQ(std::memcmp(a.p(), b.p(), 2 * t->desc->size), 0);
        EXPECT_TRUE(std::all_of(b.at(2, t), b.at(2, t) + t->desc->size, [](char c) { return c == 0; }));
    }
    if (f.j2s_array) {
        Rec b(t, 3), c(t, 3);
        uint32_t n = 3, m = 3, q = 0;
        EXPECT_EQ(f.j2s_array(text.p, b.p(), &n), 0);
        EXPECT_EQ(n, 3u);
        EXPECT_EQ(b.bytes, a.bytes);
        EXPECT_EQ(f.j2s_array_with_len(text.p, std::strlen(text.p), c.p(), &m), 0);
        EXPECT_EQ(m, 3u);
        EXPECT_EQ(c.bytes, a.bytes);
        EXPECT_EQ(f.j2s_array(text.p, nullptr, &q), 0);
        EXPECT_EQ(q, 3u);
        q = 0;
        EXPECT_EQ(f.j2s_array_with_len(text.p, std::strlen(text.p), nullptr, &q), 0);
        EXPECT_EQ(q, 3u);
    }
}

TEST_P(KeyedArrayType, KeyedUpdateAppliesElementToTheRecordWithItsKeys) {
    const TypeInfo *t = GetParam();
    const s2j::Families &f = t->fam;
    Rec a(t, 3), want(t, 3);
    for (uint32_t i = 0; i < 3; ++i) fill_boundary(t, a.at(i, t), i + 1);
    want.bytes = a.bytes;
    // The update carries element 1's keys and seed 7's other values.
    Rec src(t);
    fill_boundary(t, src.at(0, t), 7);
    for (uint32_t k = 0; k < t->desc->key_count; ++k) {
        const Field &kf = t->desc->keys[k].field;
        std::memcpy(src.at(0, t) + kf.offset, a.at(1, t) + kf.offset, kf.size);
    }
    std::memcpy(want.at(1, t), src.at(0, t), t->desc->size);
    cJSON *list = cJSON_CreateArray();
    cJSON_AddItemToArray(list, t->hooks->emit(src.p()));
    Tree tree(list);
    Text text(cJSON_PrintUnformatted(list));
    {
        Rec b(t, 3);
        b.bytes = a.bytes;
        uint32_t n = 3;
        EXPECT_EQ(f.c2s_array_update(list, b.p(), &n), 0);
        EXPECT_EQ(n, 1u);
        for (uint32_t i = 0; i < 3; ++i) EXPECT_TRUE(same_values(t, b.at(i, t), want.at(i, t)));
    }
    {
        Rec b(t, 3);
        b.bytes = a.bytes;
        uint32_t n = 3;
        EXPECT_EQ(f.j2s_array_update(text.p, b.p(), &n), 0);
        EXPECT_EQ(n, 1u);
        for (uint32_t i = 0; i < 3; ++i) EXPECT_TRUE(same_values(t, b.at(i, t), want.at(i, t)));
    }
    {
        Rec b(t, 3);
        b.bytes = a.bytes;
        uint32_t n = 3;
        EXPECT_EQ(f.j2s_array_update_with_len(text.p, std::strlen(text.p), b.p(), &n), 0);
        EXPECT_EQ(n, 1u);
        for (uint32_t i = 0; i < 3; ++i) EXPECT_TRUE(same_values(t, b.at(i, t), want.at(i, t)));
    }
    {  // an element without its keys is refused before anything changes
        StderrCapture err;
        Rec b(t, 3);
        b.bytes = a.bytes;
        uint32_t n = 3;
        EXPECT_EQ(f.j2s_array_update("[{}]", b.p(), &n), -2);
        EXPECT_EQ(n, 3u);
        EXPECT_EQ(b.bytes, a.bytes);
        EXPECT_EQ(err.text(),
                  diag(text_list_file(), f.line.c2s_array_update, std::string("c2s_array_update_") + t->name,
                       "The keyword is not contained in an object of the json array!\n"));
    }
}

TEST_P(KeywordType, KeywordReadersReadTheKeysOfAnEmittedRecord) {
    const TypeInfo *t = GetParam();
    const s2j::TypeHooks *h = t->hooks;
    Rec a(t);
    fill_boundary(t, a.at(0, t), 5);
    Tree tree(t->hooks->emit(a.p()));
    Tree empty(cJSON_CreateObject());
    if (h->keyword && t->desc->key_count > 0) {
        std::vector<char> kw(h->keyword_size, 0);
        EXPECT_EQ(h->keyword(kw.data(), tree.p), 1);
        for (uint32_t k = 0; k < t->desc->key_count; ++k) {
            const s2j::Key &key = t->desc->keys[k];
            size_t n = key.field.kind == Kind::Str ? std::strlen(a.at(0, t) + key.field.offset) + 1 : 4;
            EXPECT_EQ(std::memcmp(kw.data() + key.keyword_offset, a.at(0, t) + key.field.offset, n), 0)
                << key.field.key;
        }
        EXPECT_EQ(h->keyword(kw.data(), empty.p), 0);
    }
    if (h->get_keyword) {
        char key[64] = {0};
        const s2j::Key &k0 = t->desc->keys[0];
        EXPECT_EQ(h->get_keyword(key, tree.p), 1);
        size_t n = k0.field.kind == Kind::Str ? std::strlen(a.at(0, t) + k0.field.offset) + 1 : 4;
        EXPECT_EQ(std::memcmp(key, a.at(0, t) + k0.field.offset, n), 0);
        EXPECT_EQ(h->get_keyword(key, empty.p), 0);
    }
}

TEST_P(FileType, FileFamiliesSaveAndLoadTheSameRecords) {
    const TypeInfo *t = GetParam();
    const s2j::Families &f = t->fam;
    std::string dir = temp_dir();
    Rec a(t, 2);
    fill_boundary(t, a.at(0, t), 0);
    fill_boundary(t, a.at(1, t), 3);
    if (f.f2s) {
        std::string path = dir + "/one.json";
        if (f.s2f) {
            ASSERT_EQ(f.s2f(path.c_str(), a.p()), 0);
            Text want(f.s2j ? f.s2j(a.p(), 1) : cJSON_Print(Tree(t->hooks->emit(a.p())).p));
            EXPECT_EQ(read_file(path), want.str());
        } else {
            Tree tree(t->hooks->emit(a.p()));
            Text text(cJSON_Print(tree.p));
            write_file(path, text.p);
        }
        Rec b(t);
        EXPECT_EQ(f.f2s(path.c_str(), b.p()), 0);
        EXPECT_TRUE(same(t, a.p(), b.p()));
    }
    if (f.f2s_array) {
        std::string path = dir + "/many.json";
        if (f.s2f_array) {
            ASSERT_EQ(f.s2f_array(path.c_str(), a.p(), 2), 0);
        } else {
            cJSON *list = cJSON_CreateArray();
            for (uint32_t i = 0; i < 2; ++i) cJSON_AddItemToArray(list, t->hooks->emit(a.at(i, t)));
            Tree tree(list);
            Text text(cJSON_Print(list));
            write_file(path, text.p);
        }
        uint32_t n = 0;
        EXPECT_EQ(f.f2s_array(path.c_str(), nullptr, &n), 0);
        EXPECT_EQ(n, 2u);
        Rec b(t, 2);
        EXPECT_EQ(f.f2s_array(path.c_str(), b.p(), &n), 0);
        EXPECT_EQ(b.bytes, a.bytes);
    }
}

// Each member reports a null argument under its own name and line.
TEST_P(EveryType, EveryFamilyMemberReportsNullArgumentsUnderItsOwnNameAndLine) {
    const TypeInfo *t = GetParam();
    const s2j::Families &f = t->fam;
    const std::string T = t->name, L = text_list_file(), F = file_list_file();
    auto check = [&](auto call, const std::string &want) {
        StderrCapture err;
        call();
        EXPECT_EQ(err.text(), want);
    };
    if (f.s2j)
        check([&] { EXPECT_EQ(f.s2j(nullptr, 1), nullptr); },
              diag(L, f.line.s2j, "s2j_" + T, "struct_ptr is empty!\n"));
    if (f.c2s)
        check([&] { EXPECT_EQ(f.c2s(nullptr, nullptr), -2); },
              diag(L, f.line.c2s, "c2s_" + T, "the cJSON pointer is not an object!\n"));
    if (f.j2s) {
        check([&] { EXPECT_EQ(f.j2s(nullptr, nullptr), -2); },
              diag(L, f.line.j2s, "j2s_" + T, "json_str or struct_ptr is empty!\n"));
        check([&] { EXPECT_EQ(f.j2s_with_len("{}", 0, nullptr), -2); },
              diag(L, f.line.j2s, "j2s_" + T + "_with_len", "json_str or json_str_len or struct_ptr is empty!\n"));
    }
    if (f.s2j_array)
        check([&] { EXPECT_EQ(f.s2j_array(nullptr, 1, 0), nullptr); },
              diag(L, f.line.s2j_array, "s2j_array_" + T, "struct_array or struct_array_size is empty!\n"));
    if (f.c2s_array)
        check([&] { EXPECT_EQ(f.c2s_array(nullptr, nullptr, nullptr), -2); },
              diag(L, f.line.c2s_array, "c2s_array_" + T, "struct_array_size is empty!\n"));
    if (f.j2s_array) {
        check([&] { EXPECT_EQ(f.j2s_array(nullptr, nullptr, nullptr), -2); },
              diag(L, f.line.j2s_array, "j2s_array_" + T, "json_str or struct_array_size is empty!\n"));
        check([&] { EXPECT_EQ(f.j2s_array_with_len("[]", 0, nullptr, nullptr), -2); },
              diag(L, f.line.j2s_array, "j2s_array_" + T + "_with_len",
                   "json_str or json_str_len or struct_array_size is empty!\n"));
    }
    if (f.c2s_array_update)
        check(
            [&] { EXPECT_EQ(f.c2s_array_update(nullptr, nullptr, nullptr), -2); },
            diag(L, f.line.c2s_array_update, "c2s_array_update_" + T, "struct_array or struct_array_size is empty!\n"));
    if (f.j2s_array_update) {
        check([&] { EXPECT_EQ(f.j2s_array_update(nullptr, nullptr, nullptr), -2); },
              diag(L, f.line.j2s_array_update, "j2s_array_update_" + T,
                   "json_str or struct_array or struct_array_size is empty!\n"));
        check([&] { EXPECT_EQ(f.j2s_array_update_with_len("[]", 0, nullptr, nullptr), -2); },
              diag(L, f.line.j2s_array_update, "j2s_array_update_" + T + "_with_len",
                   "json_str or json_str_len or struct_array or struct_array_size is empty!\n"));
    }
    if (f.f2s)
        check([&] { EXPECT_EQ(f.f2s(nullptr, nullptr), -2); },
              diag(F, f.line.f2s, "f2s_" + T, "fine_name is empty!\n"));
    if (f.s2f)
        check([&] { EXPECT_EQ(f.s2f(nullptr, nullptr), -2); },
              diag(F, f.line.s2f, "s2f_" + T, "fine_name is empty!\n"));
    if (f.f2s_array)
        check([&] { EXPECT_EQ(f.f2s_array(nullptr, nullptr, nullptr), -2); },
              diag(F, f.line.f2s_array, "f2s_array_" + T, "fine_name is empty!\n"));
    if (f.s2f_array)
        check([&] { EXPECT_EQ(f.s2f_array(nullptr, nullptr, 0), -2); },
              diag(F, f.line.s2f_array, "s2f_array_" + T, "fine_name is empty!\n"));
}

// The library exports a family member exactly when the lists instantiate it:
// the one check of every type's exported names (no other test repeats it).
TEST_P(EveryType, ExportsExactlyTheFamilyMembersTheRegistryLists) {
    const TypeInfo *t = GetParam();
    const s2j::Families &f = t->fam;
    const std::string T = t->name;
    // Each exported name, and whether the registry has that member: a
    // family member exists where the member of the family that makes it does
    // (a _with_len member comes with its family's).
    std::vector<std::pair<std::string, bool>> names = {
        {"struct_to_json_" + T, true},
        {"json_to_struct_" + T, true},
        {"json_to_struct_" + T + "Keyword", t->hooks->keyword != nullptr},
        {"json_to_struct_Get" + T + "Keyword", t->hooks->get_keyword != nullptr},
    };
    for (const s2j::FamilyInfo &fi : s2j::kFamilies)
        names.emplace_back(fi.prefix + T + fi.suffix, s2j::has_family(f, fi.maker));
    for (const auto &[name, has] : names) EXPECT_EQ(exported(name), has) << name;
    // Where a text family and a file family both exist they stand together:
    // a file reader needs the text reader it calls.
    EXPECT_TRUE(!f.f2s || f.j2s);
    EXPECT_TRUE(!f.s2f || f.s2j);
    EXPECT_TRUE(!f.f2s_array || f.j2s_array);
    EXPECT_TRUE(!f.s2f_array || f.s2j_array);
}

// Every example file is the emitter's own text of what the type's readers
// read from it.
TEST_P(EveryType, ExampleFileLoadsWithItsReadersAndIsTheEmittersOwnText) { expect_example_round_trip(GetParam()); }

INSTANTIATE_TEST_SUITE_P(Registry, EveryType, ::testing::ValuesIn(types_where(nullptr)), name_of);
INSTANTIATE_TEST_SUITE_P(Registry, SingleRecordType, ::testing::ValuesIn(types_where(has_single)), name_of);
INSTANTIATE_TEST_SUITE_P(Registry, ArrayType, ::testing::ValuesIn(types_where(has_array)), name_of);
INSTANTIATE_TEST_SUITE_P(Registry, KeyedArrayType, ::testing::ValuesIn(types_where(has_update)), name_of);
INSTANTIATE_TEST_SUITE_P(Registry, KeywordType, ::testing::ValuesIn(types_where(has_keyword)), name_of);
INSTANTIATE_TEST_SUITE_P(Registry, FileType, ::testing::ValuesIn(types_where(has_file)), name_of);

// The registry's keyword hook of a type read whole and strictly (a type
// without keys): the whole record, as the type's reader gives it, and
// nothing once a member is missing.
TEST(KeywordHooks, WholeRecordReaderReadsEveryFieldAndRefusesAMissingMember) {
    int checked = 0;
    for (const TypeInfo *t : all_types()) {
        const s2j::TypeHooks *h = t->hooks;
        if (h->keyword == nullptr || t->desc->key_count != 0) continue;
        ASSERT_EQ(h->keyword_size, t->desc->size) << t->name;
        std::vector<char> rec(t->desc->size, 0), by_hook(t->desc->size, 0), by_reader(t->desc->size, 0);
        fill_boundary(t, rec.data(), 5);
        Tree tree(h->emit(rec.data()));
        EXPECT_EQ(h->keyword(by_hook.data(), tree.p), 1) << t->name;
        EXPECT_EQ(h->read(by_reader.data(), tree.p), 1) << t->name;
        EXPECT_EQ(by_hook, by_reader) << t->name;
        EXPECT_TRUE(same_values(t, by_hook.data(), rec.data())) << t->name;
        const s2j::Field &last = t->desc->fields[t->desc->field_count - 1];
        cJSON_DeleteItemFromObjectCaseSensitive(tree.p, last.key);
        std::vector<char> partial(t->desc->size, 0);
        EXPECT_EQ(h->keyword(partial.data(), tree.p), 0) << t->name;
        ++checked;
    }
    EXPECT_GT(checked, 0);
}

}  // namespace
