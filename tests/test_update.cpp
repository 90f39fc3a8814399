// The update and diff commands against the library: over every keyed type's
// example, `app_s2j update` leaves in the file exactly the records that
// j2s_array_update_<T> makes of them, as s2f_array_<T> writes them, with the
// count of updates the library gives; --dry-run writes nothing; and diff
// finds nothing between a file and itself and every record the update
// changed.
#include <gtest/gtest.h>

#include <sys/stat.h>

#include <cstring>
#include <string>
#include <vector>

#include "change.h"
#include "registry.h"
#include "support.h"

namespace {

using app_s2j_tool::kDiffCommand;
using app_s2j_tool::kUpdateCommand;
using s2j::Kind;
using namespace testing_support;

std::vector<const s2j::TypeInfo *> keyed_types() {
    std::vector<const s2j::TypeInfo *> out;
    for (const s2j::TypeInfo *t : all_types())
        if (t->fam.j2s_array_update != nullptr) out.push_back(t);
    return out;
}

bool is_key(const s2j::TypeInfo &t, const s2j::Field &f) {
    for (uint32_t i = 0; i < t.desc->key_count; ++i)
        if (t.desc->keys[i].field.offset == f.offset) return true;
    return false;
}

// Changes the value of field f of the record at rec so that the library
// writes it differently.
void change_field(const s2j::Field &f, char *rec) {
    char *p = rec + f.offset;
    switch (f.kind) {
        case Kind::I32:
        case Kind::U32:
        case Kind::U32List: {
            uint32_t v;
            std::memcpy(&v, p, 4);
            v += 1;
            std::memcpy(p, &v, 4);
            break;
        }
        case Kind::U16: {
            uint16_t v;
            std::memcpy(&v, p, 2);
            v = static_cast<uint16_t>(v + 1);
            std::memcpy(p, &v, 2);
            break;
        }
        case Kind::Str: {
            const char *text = std::strcmp(p, "changed") == 0 ? "other" : "changed";
            std::memset(p, 0, f.size);
            std::strncpy(p, text, f.size - 1);
            break;
        }
    }
}

// Gives the record key values no record of the example has.
void change_keys(const s2j::TypeInfo &t, char *rec) {
    for (uint32_t i = 0; i < t.desc->key_count; ++i) {
        const s2j::Field &f = t.desc->keys[i].field;
        char *p = rec + f.offset;
        if (f.kind == Kind::Str) {
            std::memset(p, 0, f.size);
            std::strncpy(p, "no-such-key", f.size - 1);
        } else {
            const uint32_t v = 0x7ffffff0u;
            std::memcpy(p, &v, 4);
        }
    }
}

// The records of a text as j2s_array_<T> reads them.
std::vector<char> records_of(const s2j::TypeInfo &t, const std::string &text) {
    uint32_t n = 0;
    EXPECT_EQ(t.fam.j2s_array(text.c_str(), nullptr, &n), 0);
    std::vector<char> recs(static_cast<size_t>(n) * t.desc->size, 0);
    uint32_t got = n;
    if (n > 0) {
        EXPECT_EQ(t.fam.j2s_array(text.c_str(), recs.data(), &got), 0);
    }
    EXPECT_EQ(got, n);
    return recs;
}

// A request that changes one field (not a key) of every record of recs, and
// one element whose keys no record has.
std::string request_for(const s2j::TypeInfo &t, const std::vector<char> &recs) {
    const size_t size = t.desc->size;
    const uint32_t n = static_cast<uint32_t>(recs.size() / size);
    const s2j::Field *field = nullptr;
    for (uint32_t i = 0; i < t.desc->field_count && field == nullptr; ++i)
        if (!is_key(t, t.desc->fields[i])) field = &t.desc->fields[i];
    EXPECT_NE(field, nullptr) << t.name << " has only key fields";
    std::vector<char> req(recs);
    req.insert(req.end(), recs.begin(), recs.begin() + size);
    for (uint32_t i = 0; field != nullptr && i <= n; ++i) change_field(*field, req.data() + i * size);
    change_keys(t, req.data() + static_cast<size_t>(n) * size);
    Text text(t.fam.s2j_array(req.data(), n + 1, 0));
    EXPECT_NE(text.p, nullptr);
    return text.str();
}

struct Outcome {
    int status;
    std::string out, err;
};

Outcome run(const app_s2j_tool::Command &cmd, const std::vector<std::string> &args) {
    StderrCapture err;
    testing::internal::CaptureStdout();
    Outcome r;
    r.status = cmd.run(args);
    r.out = testing::internal::GetCapturedStdout();
    r.err = err.text();
    return r;
}

ino_t inode_of(const std::string &path) {
    struct stat st;
    EXPECT_EQ(stat(path.c_str(), &st), 0) << path;
    return st.st_ino;
}

TEST(UpdateCommand, EveryKeyedTypeHasAnExampleOfSeveralRecords) {
    ASSERT_GE(keyed_types().size(), 30u);
    for (const s2j::TypeInfo *t : keyed_types()) {
        SCOPED_TRACE(t->name);
        EXPECT_GE(records_of(*t, read_file(example_path(t->name))).size(), 2u * t->desc->size);
    }
}

TEST(UpdateCommand, LeavesWhatTheLibrarysKeyedUpdateMakesOfEveryKeyedTypesExample) {
    const std::string dir = temp_dir();
    for (const s2j::TypeInfo *t : keyed_types()) {
        SCOPED_TRACE(t->name);
        const size_t size = t->desc->size;
        const std::string example = read_file(example_path(t->name));
        const std::vector<char> before = records_of(*t, example);
        const uint32_t n = static_cast<uint32_t>(before.size() / size);
        ASSERT_GT(n, 0u);
        const std::string request = request_for(*t, before);

        // What the library makes of the records, with the caller's length.
        std::vector<char> want(before);
        uint32_t updates = n;
        {
            StderrCapture quiet;
            ASSERT_EQ(t->fam.j2s_array_update(request.c_str(), want.data(), &updates), 0) << quiet.text();
        }
        EXPECT_EQ(updates, n) << "every record is updated once; the element of unknown keys by none";
        uint32_t changed = 0;
        for (uint32_t i = 0; i < n; ++i) changed += std::memcmp(&before[i * size], &want[i * size], size) != 0;

        const std::string path = dir + "/" + t->name + ".json", req_path = dir + "/" + t->name + ".request.json";
        write_file(path, example);
        write_file(req_path, request);
        Outcome r = run(kUpdateCommand, {t->name, path, req_path});
        ASSERT_EQ(r.status, 0) << r.err;
        EXPECT_EQ(r.err, "");
        const std::string summary = path + ": " + std::to_string(updates) + " updates applied, " +
                                    std::to_string(changed) + " of " + std::to_string(n) +
                                    " records changed; written\n";
        ASSERT_GE(r.out.size(), summary.size());
        EXPECT_EQ(r.out.substr(r.out.size() - summary.size()), summary);

        // The file holds the library's text of those records, as s2f_array
        // writes it.
        Text text(t->fam.s2j_array(want.data(), n, 1));
        ASSERT_NE(text.p, nullptr);
        const std::string written = read_file(path);
        EXPECT_EQ(written, text.str());
        if (t->fam.s2f_array != nullptr) {
            const std::string s2f_path = dir + "/" + t->name + ".s2f.json";
            ASSERT_EQ(t->fam.s2f_array(s2f_path.c_str(), want.data(), n), 0);
            EXPECT_EQ(written, read_file(s2f_path));
        }
        const std::vector<char> after = records_of(*t, written);
        ASSERT_EQ(after.size(), want.size());
        for (uint32_t i = 0; i < n; ++i) {
            const std::string differ = app_s2j_tool::field_changes(*t, &want[i * size], &after[i * size]);
            EXPECT_EQ(differ, "") << "record " << i;
        }

        // diff names every record the update changed, and nothing else.
        const std::string old_path = dir + "/" + t->name + ".old.json";
        write_file(old_path, example);
        Outcome d = run(kDiffCommand, {t->name, old_path, path});
        EXPECT_EQ(d.status, 1);
        size_t named = 0;
        for (size_t at = d.out.find(":\n"); at != std::string::npos; at = d.out.find(":\n", at + 1)) ++named;
        EXPECT_EQ(named, changed) << d.out;
        EXPECT_EQ(d.out.find("only in"), std::string::npos) << d.out;
    }
}

TEST(UpdateCommand, DryRunWritesNothingForEveryKeyedType) {
    const std::string dir = temp_dir();
    for (const s2j::TypeInfo *t : keyed_types()) {
        SCOPED_TRACE(t->name);
        const std::string example = read_file(example_path(t->name));
        const std::string path = dir + "/" + t->name + ".json", req_path = dir + "/" + t->name + ".request.json";
        write_file(path, example);
        write_file(req_path, request_for(*t, records_of(*t, example)));
        const ino_t inode = inode_of(path);
        Outcome r = run(kUpdateCommand, {t->name, path, req_path, "--dry-run"});
        ASSERT_EQ(r.status, 0) << r.err;
        EXPECT_NE(r.out.find("would change; nothing written (--dry-run)\n"), std::string::npos) << r.out;
        EXPECT_NE(r.out.find(" -> "), std::string::npos) << r.out;
        EXPECT_EQ(read_file(path), example);
        EXPECT_EQ(inode_of(path), inode);
    }
}

TEST(DiffCommand, FindsNothingBetweenEveryExampleAndItself) {
    for (const s2j::TypeInfo *t : all_types()) {
        SCOPED_TRACE(t->name);
        Outcome r = run(kDiffCommand, {t->name, example_path(t->name), example_path(t->name)});
        EXPECT_EQ(r.status, 0) << r.err;
        EXPECT_EQ(r.out, "");
        EXPECT_EQ(r.err, "");
    }
}

TEST(DiffCommand, NamesOneChangedFieldOfARecordArrayByItsKey) {
    const s2j::TypeInfo *t = s2j::find_type("VideoInputParameter");
    ASSERT_NE(t, nullptr);
    ASSERT_EQ(t->desc->key_count, 1u);
    const std::string dir = temp_dir();
    std::vector<char> recs = records_of(*t, read_file(example_path(t->name)));
    ASSERT_GE(recs.size(), 2u * t->desc->size);
    const s2j::Field *field = nullptr;
    for (uint32_t i = 0; i < t->desc->field_count && field == nullptr; ++i)
        if (!is_key(*t, t->desc->fields[i]) && t->desc->fields[i].kind == Kind::Str) field = &t->desc->fields[i];
    ASSERT_NE(field, nullptr);
    char *second = recs.data() + t->desc->size;
    const std::string old_value = second + field->offset;
    change_field(*field, second);
    const std::string path = dir + "/b.json";
    Text text(t->fam.s2j_array(recs.data(), static_cast<uint32_t>(recs.size() / t->desc->size), 1));
    write_file(path, text.str());
    Outcome r = run(kDiffCommand, {t->name, example_path(t->name), path});
    EXPECT_EQ(r.status, 1);
    const std::string key = t->desc->keys[0].field.key;
    uint32_t channel;
    std::memcpy(&channel, second + t->desc->keys[0].field.offset, 4);
    EXPECT_EQ(r.out, key + "=" + std::to_string(channel) + ":\n  " + field->key + ": \"" + old_value +
                         "\" -> \"changed\"\n");
}

}  // namespace
