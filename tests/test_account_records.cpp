// Users and passwords: the layout of the six account records, their
// deliberately irregular family sets, the emitters and readers that exist
// although no family calls them, and the behaviour of the requests.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <string>

#include "app_s2j.h"
#include "registry.h"
#include "support.h"

using namespace testing_support;

// ---- Layout ----------------------------------------------------------------

static_assert(sizeof(VerifyPasswordParameter) == 132);
static_assert(offsetof(VerifyPasswordParameter, UserName) == 0);
static_assert(offsetof(VerifyPasswordParameter, Password) == 64);
static_assert(offsetof(VerifyPasswordParameter, MD5Password) == 128);
static_assert(sizeof(((VerifyPasswordParameter *)0)->UserName) == 64);
static_assert(sizeof(((VerifyPasswordParameter *)0)->Password) == 64);
static_assert(sizeof(((VerifyPasswordParameter *)0)->MD5Password) == 4);

static_assert(sizeof(VerifyPasswordResult) == 4);
static_assert(offsetof(VerifyPasswordResult, PassValidation) == 0);

static_assert(sizeof(CreateUserParameter) == 132);
static_assert(offsetof(CreateUserParameter, Password) == 64);
static_assert(offsetof(CreateUserParameter, MD5Password) == 128);
static_assert(sizeof(((CreateUserParameter *)0)->UserName) == 64);
static_assert(sizeof(((CreateUserParameter *)0)->Password) == 64);

static_assert(sizeof(DeleteUserParameter) == 64);
static_assert(sizeof(((DeleteUserParameter *)0)->UserName) == 64);

static_assert(sizeof(ModifyPasswordParameter) == 196);
static_assert(offsetof(ModifyPasswordParameter, OldPassword) == 64);
static_assert(offsetof(ModifyPasswordParameter, NewPassword) == 128);
static_assert(offsetof(ModifyPasswordParameter, MD5Password) == 192);
static_assert(sizeof(((ModifyPasswordParameter *)0)->OldPassword) == 64);
static_assert(sizeof(((ModifyPasswordParameter *)0)->NewPassword) == 64);

static_assert(sizeof(UserList) == 64);
static_assert(sizeof(((UserList *)0)->UserName) == 64);

namespace {



// The whole list of family member names a type could have.
struct FamilySet {
    bool s2j, c2s, j2s, s2j_array, c2s_array, j2s_array, update, f2s, s2f, f2s_array, s2f_array;
};

void expect_families(const std::string &T, const FamilySet &want) {
    EXPECT_TRUE(exported("struct_to_json_" + T)) << T;
    EXPECT_TRUE(exported("json_to_struct_" + T)) << T;
    EXPECT_EQ(exported("s2j_" + T), want.s2j) << T;
    EXPECT_EQ(exported("c2s_" + T), want.c2s) << T;
    EXPECT_EQ(exported("j2s_" + T), want.j2s) << T;
    EXPECT_EQ(exported("j2s_" + T + "_with_len"), want.j2s) << T;
    EXPECT_EQ(exported("s2j_array_" + T), want.s2j_array) << T;
    EXPECT_EQ(exported("c2s_array_" + T), want.c2s_array) << T;
    EXPECT_EQ(exported("j2s_array_" + T), want.j2s_array) << T;
    EXPECT_EQ(exported("j2s_array_" + T + "_with_len"), want.j2s_array) << T;
    EXPECT_EQ(exported("c2s_array_update_" + T), want.update) << T;
    EXPECT_EQ(exported("j2s_array_update_" + T), want.update) << T;
    EXPECT_EQ(exported("j2s_array_update_" + T + "_with_len"), want.update) << T;
    EXPECT_EQ(exported("f2s_" + T), want.f2s) << T;
    EXPECT_EQ(exported("s2f_" + T), want.s2f) << T;
    EXPECT_EQ(exported("f2s_array_" + T), want.f2s_array) << T;
    EXPECT_EQ(exported("s2f_array_" + T), want.s2f_array) << T;
    // No account record has keyword readers.
    EXPECT_FALSE(exported("json_to_struct_" + T + "Keyword")) << T;
    EXPECT_FALSE(exported("json_to_struct_Get" + T + "Keyword")) << T;
}

std::string compact(cJSON *tree) {
    Text t(cJSON_PrintUnformatted(tree));
    cJSON_Delete(tree);
    return t.str();
}

// An example file holds the text as the library writes it, and a final newline.
std::string example(const std::string &type) {
    std::string text = read_file(std::string(APP_S2J_SOURCE_DIR) + "/examples/" + type + ".json");
    if (!text.empty() && text.back() == '\n') text.pop_back();
    return text;
}

// ---- Family sets -------------------------------------------------------------

TEST(AccountFamilies, VerifyPasswordParameterHasOnlyS2jAndC2s) {
    expect_families("VerifyPasswordParameter", {true, true, false, false, false, false, false, false, false, false, false});
}

TEST(AccountFamilies, VerifyPasswordResultHasOnlyS2jAndC2s) {
    expect_families("VerifyPasswordResult", {true, true, false, false, false, false, false, false, false, false, false});
}

TEST(AccountFamilies, CreateUserParameterHasC2sArraysAndArrayFilesButNoS2jOrJ2s) {
    expect_families("CreateUserParameter", {false, true, false, true, true, true, false, false, false, true, true});
}

TEST(AccountFamilies, DeleteUserParameterHasOnlyC2s) {
    expect_families("DeleteUserParameter", {false, true, false, false, false, false, false, false, false, false, false});
}

TEST(AccountFamilies, ModifyPasswordParameterHasOnlyC2s) {
    expect_families("ModifyPasswordParameter", {false, true, false, false, false, false, false, false, false, false, false});
}

TEST(AccountFamilies, UserListHasOnlyS2jArray) {
    expect_families("UserList", {false, false, false, true, false, false, false, false, false, false, false});
}

// ---- Emitters and readers, also where no family calls them -------------------

TEST(DeleteUserParameter, EmitterExistsAndWritesUserName) {
    DeleteUserParameter r{};
    std::strcpy(r.UserName, "operator");
    EXPECT_EQ(compact(struct_to_json_DeleteUserParameter(&r)), "{\"UserName\":\"operator\"}");
}

TEST(ModifyPasswordParameter, EmitterExistsAndWritesTheFourKeysInOrder) {
    ModifyPasswordParameter r{};
    std::strcpy(r.UserName, "viewer");
    std::strcpy(r.OldPassword, "old-pw");
    std::strcpy(r.NewPassword, "new-pw");
    r.MD5Password = -1;
    EXPECT_EQ(compact(struct_to_json_ModifyPasswordParameter(&r)),
              "{\"UserName\":\"viewer\",\"OldPassword\":\"old-pw\",\"NewPassword\":\"new-pw\",\"MD5Password\":-1}");
}

TEST(UserList, ReaderExistsAndReadsUserName) {
    UserList r{};
    Tree tree(cJSON_Parse("{\"UserName\":\"admin\",\"Other\":3}"));
    EXPECT_EQ(json_to_struct_UserList(&r, tree.p), 1);
    EXPECT_STREQ(r.UserName, "admin");
    Tree bad(cJSON_Parse("{\"UserName\":7}"));
    EXPECT_EQ(json_to_struct_UserList(&r, bad.p), 0);
    EXPECT_STREQ(r.UserName, "admin");
}

TEST(VerifyPasswordParameter, S2jWritesUserNamePasswordAndSignedFlagInOrder) {
    VerifyPasswordParameter r{};
    std::strcpy(r.UserName, "admin");
    std::strcpy(r.Password, "secret");
    r.MD5Password = -1;
    Text t(s2j_VerifyPasswordParameter(&r, 0));
    EXPECT_EQ(t.str(), "{\"UserName\":\"admin\",\"Password\":\"secret\",\"MD5Password\":-1}");
}

TEST(CreateUserParameter, S2jArrayWritesUserNamePasswordAndFlagInOrder) {
    CreateUserParameter r{};
    std::strcpy(r.UserName, "operator");
    std::strcpy(r.Password, "pw");
    r.MD5Password = 1;
    Text t(s2j_array_CreateUserParameter(&r, 1, 0));
    EXPECT_EQ(t.str(), "[{\"UserName\":\"operator\",\"Password\":\"pw\",\"MD5Password\":1}]");
}

TEST(VerifyPasswordResult, S2jWritesPassValidationSigned) {
    VerifyPasswordResult r{-1};
    Text t(s2j_VerifyPasswordResult(&r, 0));
    EXPECT_EQ(t.str(), "{\"PassValidation\":-1}");
    VerifyPasswordResult back{};
    Tree tree(cJSON_Parse(t.p));
    EXPECT_EQ(c2s_VerifyPasswordResult(tree.p, &back), 0);
    EXPECT_EQ(back.PassValidation, -1);
}

// ---- Requests arrive as trees --------------------------------------------------

TEST(VerifyPasswordParameter, C2sWithOnlyUserNameLeavesPasswordAndMd5PasswordAsTheyWere) {
    VerifyPasswordParameter r{};
    std::strcpy(r.UserName, "old");
    std::strcpy(r.Password, "keep-me");
    r.MD5Password = 1;
    Tree tree(cJSON_Parse("{\"UserName\":\"admin\"}"));
    EXPECT_EQ(c2s_VerifyPasswordParameter(tree.p, &r), 0);
    EXPECT_STREQ(r.UserName, "admin");
    EXPECT_STREQ(r.Password, "keep-me");
    EXPECT_EQ(r.MD5Password, 1);
}

TEST(CreateUserParameter, C2sWithMd5PasswordAsStringFailsWithUserNameAndPasswordWritten) {
    CreateUserParameter r{};
    std::strcpy(r.UserName, "before");
    std::strcpy(r.Password, "before");
    r.MD5Password = 7;
    Tree tree(cJSON_Parse("{\"UserName\":\"newuser\",\"Password\":\"pw1\",\"MD5Password\":\"1\"}"));
    StderrCapture err;
    EXPECT_EQ(c2s_CreateUserParameter(tree.p, &r), -1);
    EXPECT_EQ(err.text(), diag(text_list_file(), lines_of("CreateUserParameter").c2s, "c2s_CreateUserParameter",
                               "json_to_struct_CreateUserParameter failed!\n"));
    EXPECT_STREQ(r.UserName, "newuser");
    EXPECT_STREQ(r.Password, "pw1");
    EXPECT_EQ(r.MD5Password, 7);
}

TEST(UserList, S2jArrayWithCountZeroReturnsNullWithDiagnostic) {
    UserList list[1] = {};
    std::strcpy(list[0].UserName, "admin");
    StderrCapture err;
    EXPECT_EQ(s2j_array_UserList(list, 0, 1), nullptr);
    EXPECT_EQ(err.text(), diag(text_list_file(), lines_of("UserList").s2j_array, "s2j_array_UserList",
                               "struct_array or struct_array_size is empty!\n"));
}

TEST(UserList, S2jArrayWritesOneObjectPerUserInOrder) {
    UserList list[2] = {};
    std::strcpy(list[0].UserName, "admin");
    std::strcpy(list[1].UserName, "viewer");
    Text t(s2j_array_UserList(list, 2, 0));
    EXPECT_EQ(t.str(), "[{\"UserName\":\"admin\"},{\"UserName\":\"viewer\"}]");
}

TEST(VerifyPasswordParameter, PasswordLongerThan63CharactersIsCutTo63) {
    VerifyPasswordParameter r{};
    const std::string pw(80, 'p');
    Tree tree(cJSON_CreateObject());
    cJSON_AddStringToObject(tree.p, "Password", pw.c_str());
    EXPECT_EQ(c2s_VerifyPasswordParameter(tree.p, &r), 0);
    EXPECT_EQ(std::string(r.Password), pw.substr(0, 63));
}

TEST(ModifyPasswordParameter, BothPasswordsAreCarriedUnchangedAndCutTo63) {
    ModifyPasswordParameter r{};
    const std::string old_pw = "  spaces & \"quotes\" \\ kept ";
    const std::string new_pw(64, 'n');
    Tree tree(cJSON_CreateObject());
    cJSON_AddStringToObject(tree.p, "UserName", "viewer");
    cJSON_AddStringToObject(tree.p, "OldPassword", old_pw.c_str());
    cJSON_AddStringToObject(tree.p, "NewPassword", new_pw.c_str());
    cJSON_AddIntToObject(tree.p, "MD5Password", 1);
    EXPECT_EQ(c2s_ModifyPasswordParameter(tree.p, &r), 0);
    EXPECT_STREQ(r.UserName, "viewer");
    EXPECT_EQ(std::string(r.OldPassword), old_pw);
    EXPECT_EQ(std::string(r.NewPassword), new_pw.substr(0, 63));
    EXPECT_EQ(r.MD5Password, 1);
}

TEST(ModifyPasswordParameter, C2sReadsATreeParsedByPlainCjson) {
    ModifyPasswordParameter r{};
    Tree tree(cJSON_Parse("{\"username\":\"viewer\",\"OldPassword\":\"a\",\"NewPassword\":\"b\",\"MD5Password\":0}"));
    EXPECT_EQ(c2s_ModifyPasswordParameter(tree.p, &r), 0);
    EXPECT_STREQ(r.UserName, "viewer");  // keys match without regard to case
    EXPECT_STREQ(r.OldPassword, "a");
    EXPECT_STREQ(r.NewPassword, "b");
    EXPECT_EQ(r.MD5Password, 0);
}

TEST(DeleteUserParameter, C2sRefusesATreeThatIsNotAnObject) {
    DeleteUserParameter r{};
    std::strcpy(r.UserName, "kept");
    Tree tree(cJSON_Parse("[\"operator\"]"));
    StderrCapture err;
    EXPECT_EQ(c2s_DeleteUserParameter(tree.p, &r), -2);
    EXPECT_EQ(err.text(), diag(text_list_file(), lines_of("DeleteUserParameter").c2s, "c2s_DeleteUserParameter",
                               "the cJSON pointer is not an object!\n"));
    EXPECT_STREQ(r.UserName, "kept");
}

// ---- The user table in a file ----------------------------------------------------

TEST(CreateUserParameter, UserTableIsSavedAndLoadedAsAnArrayFile) {
    CreateUserParameter users[2] = {};
    std::strcpy(users[0].UserName, "admin");
    std::strcpy(users[0].Password, "21232f297a57a5a743894a0e4a801fc3");
    users[0].MD5Password = 1;
    std::strcpy(users[1].UserName, "viewer");
    std::strcpy(users[1].Password, "plain");
    const std::string path = temp_dir() + "/users.json";
    ASSERT_EQ(s2f_array_CreateUserParameter(path.c_str(), users, 2), 0);
    Text want(s2j_array_CreateUserParameter(users, 2, 1));
    EXPECT_EQ(read_file(path), want.str());
    CreateUserParameter back[3] = {};
    uint32_t n = 3;
    ASSERT_EQ(f2s_array_CreateUserParameter(path.c_str(), back, &n), 0);
    EXPECT_EQ(n, 2u);
    EXPECT_EQ(std::memcmp(back, users, sizeof users), 0);
}

// ---- Example files -------------------------------------------------------------

TEST(AccountExamples, EveryExampleLoadsWithItsTypesReader) {
    {
        VerifyPasswordParameter r{};
        Tree tree(cJSON_Parse(example("VerifyPasswordParameter").c_str()));
        ASSERT_EQ(c2s_VerifyPasswordParameter(tree.p, &r), 0);
        EXPECT_STREQ(r.UserName, "admin");
        Text again(s2j_VerifyPasswordParameter(&r, 1));
        EXPECT_EQ(again.str(), example("VerifyPasswordParameter"));
    }
    {
        VerifyPasswordResult r{};
        Tree tree(cJSON_Parse(example("VerifyPasswordResult").c_str()));
        ASSERT_EQ(c2s_VerifyPasswordResult(tree.p, &r), 0);
        Text again(s2j_VerifyPasswordResult(&r, 1));
        EXPECT_EQ(again.str(), example("VerifyPasswordResult"));
    }
    {
        CreateUserParameter r[4] = {};
        uint32_t n = 4;
        const std::string path = std::string(APP_S2J_SOURCE_DIR) + "/examples/CreateUserParameter.json";
        ASSERT_EQ(f2s_array_CreateUserParameter(path.c_str(), r, &n), 0);
        EXPECT_GE(n, 2u);
        Text again(s2j_array_CreateUserParameter(r, n, 1));
        EXPECT_EQ(again.str(), example("CreateUserParameter"));
    }
    {
        DeleteUserParameter r{};
        Tree tree(cJSON_Parse(example("DeleteUserParameter").c_str()));
        ASSERT_EQ(c2s_DeleteUserParameter(tree.p, &r), 0);
        Tree again(struct_to_json_DeleteUserParameter(&r));
        Text text(cJSON_Print(again.p));
        EXPECT_EQ(text.str(), example("DeleteUserParameter"));
    }
    {
        ModifyPasswordParameter r{};
        Tree tree(cJSON_Parse(example("ModifyPasswordParameter").c_str()));
        ASSERT_EQ(c2s_ModifyPasswordParameter(tree.p, &r), 0);
        Tree again(struct_to_json_ModifyPasswordParameter(&r));
        Text text(cJSON_Print(again.p));
        EXPECT_EQ(text.str(), example("ModifyPasswordParameter"));
    }
    {
        Tree tree(cJSON_Parse(example("UserList").c_str()));
        ASSERT_TRUE(cJSON_IsArray(tree.p));
        const int n = cJSON_GetArraySize(tree.p);
        ASSERT_GE(n, 2);
        ASSERT_LE(n, 4);
        UserList r[4] = {};
        for (int i = 0; i < n; ++i) EXPECT_EQ(json_to_struct_UserList(&r[i], cJSON_GetArrayItem(tree.p, i)), 1);
        Text again(s2j_array_UserList(r, static_cast<uint32_t>(n), 1));
        EXPECT_EQ(again.str(), example("UserList"));
    }
}

}  // namespace
