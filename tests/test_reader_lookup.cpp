// The record reader walks an object's members once; these tests hold it to
// the lookup that defines it: for every field, the first member whose name
// equals the key without regard to letter case (cJSON_GetObjectItem), with
// members in any order, in any case, repeated, unknown or nameless.  The
// reference below reads field by field through cJSON_GetObjectItem over the
// registry's field table.
#include <gtest/gtest.h>

#include <cctype>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "registry.h"

using s2j::Field;
using s2j::Kind;
using s2j::TypeInfo;

namespace {

// One lookup per field, in table order; stops at the first wrong type.
int reference_read(const TypeInfo *t, char *rec, const cJSON *json) {
    for (uint32_t i = 0; i < t->desc->field_count; ++i) {
        const Field &f = t->desc->fields[i];
        const cJSON *m = cJSON_GetObjectItem(json, f.key);
        if (m == nullptr) continue;
        char *at = rec + f.offset;
        if (f.kind == Kind::Str) {
            if (!cJSON_IsString(m)) return 0;
            std::snprintf(at, f.size, "%s", m->valuestring);
        } else {
            if (!cJSON_IsInt(m)) return 0;
            uint32_t v = static_cast<uint32_t>(static_cast<int64_t>(m->valuedouble));
            if (f.kind == Kind::U16) {
                uint16_t w = static_cast<uint16_t>(v);
                std::memcpy(at, &w, 2);
            } else {
                std::memcpy(at, &v, 4);
            }
        }
    }
    return 1;
}

std::string recase(const char *key, std::mt19937 &rng) {
    std::string s = key;
    for (char &c : s)
        if (rng() % 2)
            c = static_cast<char>(std::isupper(static_cast<unsigned char>(c)) ? std::tolower(c) : std::toupper(c));
    return s;
}

// An object with the type's members shuffled, renamed in random case, some
// left out, some repeated with other values, some of the wrong type, and
// members that are no field at all.
cJSON *scrambled_object(const TypeInfo *t, std::mt19937 &rng, bool wrong_types) {
    struct Member {
        std::string name;
        cJSON *item;
    };
    std::vector<Member> members;
    for (uint32_t i = 0; i < t->desc->field_count; ++i) {
        const Field &f = t->desc->fields[i];
        if (f.kind == Kind::U32List) continue;
        int copies = static_cast<int>(rng() % 4);  // 0: absent; 2, 3: repeated
        for (int c = 0; c < copies; ++c) {
            bool as_string = f.kind == Kind::Str;
            if (wrong_types && rng() % 16 == 0) as_string = !as_string;
            cJSON *item = as_string ? cJSON_CreateString(("v" + std::to_string(rng() % 1000)).c_str())
                                    : cJSON_CreateNumber(static_cast<double>(rng() % 100000));
            members.push_back({recase(f.key, rng), item});
        }
    }
    for (int u = 0; u < 3; ++u) members.push_back({"Unknown" + std::to_string(u), cJSON_CreateNumber(u)});
    std::shuffle(members.begin(), members.end(), rng);
    cJSON *obj = cJSON_CreateObject();
    for (Member &m : members) cJSON_AddItemToObject(obj, m.name.c_str(), m.item);
    if (rng() % 4 == 0) cJSON_AddItemToArray(obj, cJSON_CreateNumber(7));  // a member without a name
    return obj;
}

class ReaderLookup : public ::testing::TestWithParam<const TypeInfo *> {};

TEST_P(ReaderLookup, EveryFieldTakesTheFirstMemberMatchingItsKeyWithoutRegardToCase) {
    const TypeInfo *t = GetParam();
    std::mt19937 rng(20241122u + t->desc->size);
    for (int round = 0; round < 40; ++round) {
        bool wrong_types = round % 2 == 1;
        cJSON *obj = scrambled_object(t, rng, wrong_types);
        std::vector<char> want(t->desc->size, 'k'), got(t->desc->size, 'k');
        int want_rc = reference_read(t, want.data(), obj);
        int got_rc = t->hooks->read(got.data(), obj);
        EXPECT_EQ(got_rc, want_rc) << t->name << " round " << round;
        EXPECT_EQ(std::memcmp(got.data(), want.data(), want.size()), 0) << t->name << " round " << round;
        cJSON_Delete(obj);
    }
}

std::vector<const TypeInfo *> types_without_lists() {
    size_t n = 0;
    const TypeInfo *all = s2j::registry(&n);
    std::vector<const TypeInfo *> v;
    for (size_t i = 0; i < n; ++i) {
        bool lists = false;
        for (uint32_t k = 0; k < all[i].desc->field_count; ++k) lists |= all[i].desc->fields[k].kind == Kind::U32List;
        if (!lists) v.push_back(&all[i]);
    }
    return v;
}

INSTANTIATE_TEST_SUITE_P(Registry, ReaderLookup, ::testing::ValuesIn(types_without_lists()),
                         [](const ::testing::TestParamInfo<const TypeInfo *> &i) {
                             return std::string(i.param->name);
                         });

}  // namespace
