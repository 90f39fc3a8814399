// Users and passwords: the emitters and readers of the six account records
// that exist although no family calls them, and the behaviour of the
// requests.  Their layouts are in record-layouts.txt (test_record_layouts).
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <string>

#include "app_s2j.h"
#include "registry.h"
#include "support.h"

using namespace testing_support;

namespace {

// A password check or new user: a name, a password and the MD5 flag.
template <class T>
T credentials(const char *user_name, const char *password, int32_t md5_password) {
    T r{};
    std::strcpy(r.UserName, user_name);
    std::strcpy(r.Password, password);
    r.MD5Password = md5_password;
    return r;
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
    const VerifyPasswordParameter r = credentials<VerifyPasswordParameter>("admin", "secret", -1);
    Text t(s2j_VerifyPasswordParameter(&r, 0));
    EXPECT_EQ(t.str(), "{\"UserName\":\"admin\",\"Password\":\"secret\",\"MD5Password\":-1}");
}

TEST(CreateUserParameter, S2jArrayWritesUserNamePasswordAndFlagInOrder) {
    const CreateUserParameter r = credentials<CreateUserParameter>("operator", "pw", 1);
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
    VerifyPasswordParameter r = credentials<VerifyPasswordParameter>("old", "keep-me", 1);
    EXPECT_EQ(c2s_of_text(c2s_VerifyPasswordParameter, "{\"UserName\":\"admin\"}", &r), 0);
    EXPECT_STREQ(r.UserName, "admin");
    EXPECT_STREQ(r.Password, "keep-me");
    EXPECT_EQ(r.MD5Password, 1);
}

TEST(CreateUserParameter, C2sWithMd5PasswordAsStringFailsWithUserNameAndPasswordWritten) {
    CreateUserParameter r = credentials<CreateUserParameter>("before", "before", 7);
    StderrCapture err;
    const char *doc = "{\"UserName\":\"newuser\",\"Password\":\"pw1\",\"MD5Password\":\"1\"}";
    EXPECT_EQ(c2s_of_text(c2s_CreateUserParameter, doc, &r), -1);
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
    const char *doc = "{\"username\":\"viewer\",\"OldPassword\":\"a\",\"NewPassword\":\"b\",\"MD5Password\":0}";
    EXPECT_EQ(c2s_of_text(c2s_ModifyPasswordParameter, doc, &r), 0);
    EXPECT_STREQ(r.UserName, "viewer");  // keys match without regard to case
    EXPECT_STREQ(r.OldPassword, "a");
    EXPECT_STREQ(r.NewPassword, "b");
    EXPECT_EQ(r.MD5Password, 0);
}

TEST(DeleteUserParameter, C2sRefusesATreeThatIsNotAnObject) {
    DeleteUserParameter r{};
    std::strcpy(r.UserName, "kept");
    StderrCapture err;
    EXPECT_EQ(c2s_of_text(c2s_DeleteUserParameter, "[\"operator\"]", &r), -2);
    EXPECT_EQ(err.text(), diag(text_list_file(), lines_of("DeleteUserParameter").c2s, "c2s_DeleteUserParameter",
                               "the cJSON pointer is not an object!\n"));
    EXPECT_STREQ(r.UserName, "kept");
}

// ---- The user table in a file ----------------------------------------------------

TEST(CreateUserParameter, UserTableIsSavedAndLoadedAsAnArrayFile) {
    CreateUserParameter users[2] = {{"admin", "21232f297a57a5a743894a0e4a801fc3", 1}, {"viewer", "plain", 0}};
    const std::string path = temp_dir() + "/users.json";
    ASSERT_EQ(s2f_array_CreateUserParameter(path.c_str(), users, 2), 0);
    Text want(s2j_array_CreateUserParameter(users, 2, 1));
    EXPECT_EQ(read_file(path), want.str());
    expect_array_file_round_trip(s2f_array_CreateUserParameter, f2s_array_CreateUserParameter, users, 3);
}

// ---- Example files -------------------------------------------------------------

// Every example loads and is the emitter's own text (EveryType); here, what
// the password check's example holds.
TEST(AccountExamples, PasswordCheckNamesItsUser) {
    Tree tree(cJSON_Parse(example_text("VerifyPasswordParameter").c_str()));
    VerifyPasswordParameter r{};
    ASSERT_EQ(c2s_VerifyPasswordParameter(tree.p, &r), 0);
    EXPECT_STREQ(r.UserName, "admin");
}

}  // namespace
