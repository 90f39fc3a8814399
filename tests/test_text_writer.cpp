// The text families write records straight to text.  For every type of the
// registry, on generated records, s2j, s2j_array, s2f and s2f_array must give
// exactly the bytes that cJSON prints for the trees of the type's emitter
// (struct_to_json_<T>, and for arrays a cJSON array of its objects): compact
// and indented; integers at every boundary and every decimal length; strings
// empty, of every byte value from 1 to 255, and filling their field without
// a NUL; arrays of one and of many records.
#include <gtest/gtest.h>

#include <climits>
#include <cstdlib>
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

// A small deterministic generator (xorshift64*).
struct Rng {
    uint64_t s;
    uint32_t next() {
        s ^= s >> 12;
        s ^= s << 25;
        s ^= s >> 27;
        return static_cast<uint32_t>((s * 2685821657736338717ULL) >> 32);
    }
};

// Integers where the decimal text changes length or sign, and the extremes.
std::vector<uint32_t> boundary_u32() {
    std::vector<uint32_t> v = {0, 1, UINT32_MAX, UINT32_MAX - 1, 0x7FFFFFFFu, 0x80000000u, 65535, 65536};
    for (uint64_t p = 10; p <= UINT32_MAX; p *= 10) {
        v.push_back(static_cast<uint32_t>(p - 1));
        v.push_back(static_cast<uint32_t>(p));
    }
    return v;
}

// How the strings of a generated record are made.
enum class Strings { Random, Empty, Unterminated, EveryByte };

// Fills a record: integers from the boundaries (pick) or random; strings as
// `how` says.  For EveryByte, string field k of record r holds, without a
// NUL, the bytes 1 + (r * size + j) % 255 for j < size, so that a few
// records hold every byte value from 1 to 255.
void fill_generated(const TypeInfo *t, char *rec, Rng &rng, uint32_t pick, Strings how, uint32_t r) {
    static const std::vector<uint32_t> bounds = boundary_u32();
    for (uint32_t i = 0; i < t->desc->field_count; ++i) {
        const Field &f = t->desc->fields[i];
        char *at = rec + f.offset;
        const uint32_t b = bounds[(pick + i) % bounds.size()];
        const uint32_t v = pick == UINT32_MAX ? rng.next() : b;
        switch (f.kind) {
            case Kind::I32:
            case Kind::U32: {
                // For int32 the same bits give INT32_MIN, -1, -10^k, ...
                uint32_t w = (f.kind == Kind::I32 && (pick + i) % 2 == 1) ? 0u - v : v;
                std::memcpy(at, &w, 4);
                break;
            }
            case Kind::U16: {
                uint16_t w = static_cast<uint16_t>(pick == UINT32_MAX ? v : (pick + i) % 3 == 0 ? 65535 : v % 100000);
                std::memcpy(at, &w, 2);
                break;
            }
            case Kind::Str:
                switch (how) {
                    case Strings::Empty:
                        std::memset(at, 0, f.size);
                        break;
                    case Strings::Unterminated:
                        for (uint32_t j = 0; j < f.size; ++j) at[j] = static_cast<char>(1 + rng.next() % 255);
                        break;
                    case Strings::EveryByte:
                        for (uint32_t j = 0; j < f.size; ++j)
                            at[j] = static_cast<char>(1 + (static_cast<uint64_t>(r) * f.size + j) % 255);
                        break;
                    case Strings::Random: {
                        uint32_t len = rng.next() % (f.size + 1);  // f.size: no NUL
                        for (uint32_t j = 0; j < f.size; ++j) at[j] = static_cast<char>(rng.next() % 256);
                        if (len < f.size) at[len] = '\0';
                        break;
                    }
                }
                break;
            case Kind::U32List:
                for (uint32_t k = 0; k < f.size / 4; ++k) {
                    uint32_t w = pick == UINT32_MAX ? rng.next() : bounds[(pick + i + k) % bounds.size()];
                    std::memcpy(at + 4 * k, &w, 4);
                }
                break;
        }
    }
}

// s2j of the first record and s2j_array of all n, in both formats, against
// the reference; false after the first difference (reported).
bool writers_agree(const TypeInfo *t, const std::vector<char> &recs, uint32_t n, const std::string &what) {
    for (int formatted = 0; formatted < 2; ++formatted) {
        SCOPED_TRACE(what + (formatted ? ", indented" : ", compact"));
        if (t->fam.s2j != nullptr) {
            Text got(t->fam.s2j(recs.data(), formatted));
            EXPECT_EQ(got.str(), s2j::emitter_text(t, recs.data(), 1, false, formatted));
            if (::testing::Test::HasFailure()) return false;
        }
        if (t->fam.s2j_array != nullptr) {
            Text got(t->fam.s2j_array(recs.data(), n, formatted));
            EXPECT_EQ(got.str(), s2j::emitter_text(t, recs.data(), n, true, formatted));
            if (::testing::Test::HasFailure()) return false;
        }
    }
    return true;
}

class TextWriter : public ::testing::TestWithParam<const TypeInfo *> {};
class TextWriterStrings : public ::testing::TestWithParam<const TypeInfo *> {};
class FileWriter : public ::testing::TestWithParam<const TypeInfo *> {};
class ArrayWriter : public ::testing::TestWithParam<const TypeInfo *> {};

TEST_P(TextWriter, writes_cjsons_bytes_for_boundary_integers_and_random_records) {
    const TypeInfo *t = GetParam();
    const uint32_t size = t->desc->size;
    Rng rng{0x9E3779B97F4A7C15ULL ^ size};
    const uint32_t n_bounds = static_cast<uint32_t>(boundary_u32().size());
    // Every boundary at every field, one record each, then random records;
    // arrays of 1, 2 and 40 records.
    for (uint32_t n : {1u, 2u, 40u}) {
        std::vector<char> recs(static_cast<size_t>(size) * n);
        for (uint32_t round = 0; round < (n == 40 ? 3 : n_bounds); ++round) {
            for (uint32_t r = 0; r < n; ++r)
                fill_generated(t, recs.data() + static_cast<size_t>(r) * size, rng, n == 40 ? UINT32_MAX : round + r,
                     r % 2 ? Strings::Random : Strings::Empty, r);
            if (!writers_agree(t, recs, n, std::to_string(n) + " records, round " + std::to_string(round))) return;
        }
    }
}

TEST_P(TextWriterStrings, writes_every_byte_value_of_strings_and_unterminated_fields_as_cjson_escapes_them) {
    const TypeInfo *t = GetParam();
    const uint32_t size = t->desc->size;
    uint32_t smallest = 0;  // the smallest string field
    for (uint32_t i = 0; i < t->desc->field_count; ++i)
        if (t->desc->fields[i].kind == Kind::Str && (smallest == 0 || t->desc->fields[i].size < smallest))
            smallest = t->desc->fields[i].size;
    ASSERT_GT(smallest, 0u);
    // Enough records for the smallest field to pass through every byte value.
    const uint32_t n = 255 / smallest + 1;
    std::vector<char> recs(static_cast<size_t>(size) * n);
    Rng rng{12345};
    bool seen[256] = {};
    for (uint32_t r = 0; r < n; ++r) {
        char *rec = recs.data() + static_cast<size_t>(r) * size;
        fill_generated(t, rec, rng, r, Strings::EveryByte, r);
        for (uint32_t i = 0; i < t->desc->field_count; ++i)
            if (t->desc->fields[i].kind == Kind::Str && t->desc->fields[i].size == smallest)
                for (uint32_t j = 0; j < smallest; ++j)
                    seen[static_cast<unsigned char>(rec[t->desc->fields[i].offset + j])] = true;
    }
    for (int c = 1; c < 256; ++c) ASSERT_TRUE(seen[c]) << "byte " << c << " not generated";
    // Each record alone (single-record writers see each), then all at once.
    for (uint32_t r = 0; r < n; ++r) {
        const char *rec = recs.data() + static_cast<size_t>(r) * size;
        std::vector<char> one(rec, rec + size);
        if (!writers_agree(t, one, 1, "every byte, record " + std::to_string(r))) return;
    }
    if (!writers_agree(t, recs, n, "every byte, all records")) return;
    // Unterminated fields of random bytes.
    for (uint32_t r = 0; r < n; ++r)
        fill_generated(t, recs.data() + static_cast<size_t>(r) * size, rng, UINT32_MAX, Strings::Unterminated, r);
    writers_agree(t, recs, n, "unterminated strings");
}

TEST_P(FileWriter, s2f_and_s2f_array_write_cjsons_indented_bytes_to_the_file) {
    const TypeInfo *t = GetParam();
    const uint32_t size = t->desc->size, n = 9;
    std::vector<char> recs(static_cast<size_t>(size) * n);
    Rng rng{777};
    for (uint32_t r = 0; r < n; ++r)
        fill_generated(t, recs.data() + static_cast<size_t>(r) * size, rng, r == 0 ? 0 : UINT32_MAX,
             r % 3 == 0 ? Strings::EveryByte : r % 3 == 1 ? Strings::Unterminated : Strings::Random, r);
    const std::string path = temp_dir() + "/written.json";
    if (t->fam.s2f != nullptr) {
        ASSERT_EQ(t->fam.s2f(path.c_str(), recs.data()), 0);
        EXPECT_EQ(read_file(path), s2j::emitter_text(t, recs.data(), 1, false, true));
    }
    if (t->fam.s2f_array != nullptr) {
        for (uint32_t count : {1u, n}) {
            ASSERT_EQ(t->fam.s2f_array(path.c_str(), recs.data(), count), 0);
            EXPECT_EQ(read_file(path), s2j::emitter_text(t, recs.data(), count, true, true)) << count << " records";
        }
    }
}

TEST_P(ArrayWriter, s2j_array_of_no_records_stays_null_with_its_diagnostic) {
    const TypeInfo *t = GetParam();
    std::vector<char> rec(t->desc->size, 0);
    for (int formatted = 0; formatted < 2; ++formatted) {
        StderrCapture err;
        EXPECT_EQ(t->fam.s2j_array(rec.data(), 0, formatted), nullptr);
        EXPECT_EQ(err.text(), diag(text_list_file(), lines_of(t->name).s2j_array, "s2j_array_" + std::string(t->name),
                                   "struct_array or struct_array_size is empty!\n"));
    }
}

std::string type_name(const ::testing::TestParamInfo<const TypeInfo *> &info) { return info.param->name; }

template <class Pred>
std::vector<const TypeInfo *> types_where(Pred has) {
    std::vector<const TypeInfo *> v;
    for (const TypeInfo *t : all_types())
        if (has(t)) v.push_back(t);
    return v;
}
bool has_writer(const TypeInfo *t) { return t->fam.s2j != nullptr || t->fam.s2j_array != nullptr; }
bool has_string(const TypeInfo *t) {
    for (uint32_t i = 0; i < t->desc->field_count; ++i)
        if (t->desc->fields[i].kind == Kind::Str) return true;
    return false;
}

INSTANTIATE_TEST_SUITE_P(EveryType, TextWriter, ::testing::ValuesIn(types_where(has_writer)), type_name);
bool has_writer_and_string(const TypeInfo *t) { return has_writer(t) && has_string(t); }
bool has_array_writer(const TypeInfo *t) { return t->fam.s2j_array != nullptr; }
bool has_file_writer(const TypeInfo *t) { return t->fam.s2f != nullptr || t->fam.s2f_array != nullptr; }

INSTANTIATE_TEST_SUITE_P(EveryType, TextWriterStrings, ::testing::ValuesIn(types_where(has_writer_and_string)),
                         type_name);
INSTANTIATE_TEST_SUITE_P(EveryType, FileWriter, ::testing::ValuesIn(types_where(has_file_writer)), type_name);
INSTANTIATE_TEST_SUITE_P(EveryType, ArrayWriter, ::testing::ValuesIn(types_where(has_array_writer)), type_name);

// A text is allocated with cJSON's allocator, as cJSON's printer allocates
// it: an application that gives cJSON its own allocator frees it there.
// One allocation per text, for one record and for 64.
TEST(TextWriterAllocation, one_allocation_through_cjsons_allocator_per_text) {
    const TypeInfo *one = s2j::find_type("DeviceInfo"), *many = s2j::find_type("VideoEncodeParameter");
    ASSERT_NE(one, nullptr);
    ASSERT_NE(many, nullptr);
    ASSERT_NE(one->fam.s2j, nullptr);
    ASSERT_NE(many->fam.s2j_array, nullptr);
    std::vector<char> rec(one->desc->size), recs(static_cast<size_t>(many->desc->size) * 64);
    Rng rng{5};
    fill_generated(one, rec.data(), rng, UINT32_MAX, Strings::Random, 0);
    for (uint32_t r = 0; r < 64; ++r)
        fill_generated(many, recs.data() + static_cast<size_t>(r) * many->desc->size, rng, UINT32_MAX, Strings::Random,
                       r);
    for (int formatted = 0; formatted < 2; ++formatted) {
        char *a, *b;
        long after_one, after_many;
        {
            CjsonFaults count_only(-1);
            a = one->fam.s2j(rec.data(), formatted);
            after_one = CjsonFaults::allocations();
            b = many->fam.s2j_array(recs.data(), 64, formatted);
            after_many = CjsonFaults::allocations();
        }
        Text ta(a), tb(b);
        EXPECT_EQ(after_one, 1);
        EXPECT_EQ(after_many, 2);
        EXPECT_EQ(ta.str(), s2j::emitter_text(one, rec.data(), 1, false, formatted));
        EXPECT_EQ(tb.str(), s2j::emitter_text(many, recs.data(), 64, true, formatted));
    }
}

}  // namespace
