// Storage devices and disk groups, recording, snapshots: the functions each
// type has (and those it has not: a record with
// an emitter and a reader only, requests read only, an answer written only,
// capability sets loaded but never saved, states without files), and the
// rules particular to these records: the signed and unsigned fields, the
// string key StorageDeviceName, the integer key Channel, the single-key
// readers of the status records, the spelling "SupportPictrueFormatList" and
// the one behaviour of the RecordStatus and SnapshotStatus emitters.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <string>
#include <vector>

#include "support.h"

using namespace testing_support;

namespace {

// ---- Example files --------------------------------------------------------

// Every example loads and is the emitter's own text (EveryType); here, what
// the format request's example holds.
TEST(StorageExamples, FormatDiskRequestNamesItsDevice) {
    const FormatDiskParameter fmt =
        record_from_text(j2s_FormatDiskParameter, read_file(example_path("FormatDiskParameter")));
    EXPECT_STREQ(fmt.StorageDeviceName, "mmcblk1");
}

// ---- Storage devices and disk groups ------------------------------------------

TEST(StorageDeviceStatus, NameOf64OrMoreCharactersIsReadAsItsFirst63) {
    StorageDeviceStatus arr[1] = {};
    std::string json = "[{\"StorageDeviceName\":\"" + chars(70, 'd') + "\",\"Mounted\":1}]";
    uint32_t n = 1;
    ASSERT_EQ(j2s_array_StorageDeviceStatus(json.c_str(), arr, &n), 0);
    EXPECT_EQ(std::string(arr[0].StorageDeviceName), chars(63, 'd'));
    EXPECT_EQ(arr[0].Mounted, 1);
}

TEST(StorageDeviceStatus, SingleKeyReaderTruncatesTheNameTheSameWay) {
    Tree tree(cJSON_CreateObject());
    cJSON_AddStringToObject(tree.p, "StorageDeviceName", chars(64, 'd').c_str());
    char name[64];
    ASSERT_EQ(json_to_struct_GetStorageDeviceStatusKeyword(name, tree.p), 1);
    EXPECT_EQ(std::string(name), chars(63, 'd'));
}

TEST(StorageDeviceStatus, SingleKeyReaderRefusesAMissingOrNumericName) {
    expect_string_key_reader_refuses(json_to_struct_GetStorageDeviceStatusKeyword,
                                     {"{\"Mounted\":1}", "{\"StorageDeviceName\":1}"});
}

TEST(StorageDeviceStatus, NameFillingAll64BytesIsEmittedAsExactly64Characters) {
    StorageDeviceStatus s = {};
    std::memset(s.StorageDeviceName, 'd', sizeof s.StorageDeviceName);
    Text text(s2j_array_StorageDeviceStatus(&s, 1, 0));
    std::string want = "[{\"StorageDeviceName\":\"" + chars(64, 'd') + "\",\"IsPlugged\":0,";
    EXPECT_EQ(text.str().substr(0, want.size()), want);
}

TEST(DiskGroupParameter, NameOf64OrMoreCharactersIsReadAsItsFirst63AndItsKeywordLikewise) {
    std::string json = "{\"StorageDeviceName\":\"" + chars(64, 'g') + "\",\"GroupID\":2}";
    Tree tree(cJSON_Parse(json.c_str()));
    DiskGroupParameter r = {};
    ASSERT_EQ(json_to_struct_DiskGroupParameter(&r, tree.p), 1);
    EXPECT_EQ(std::string(r.StorageDeviceName), chars(63, 'g'));
    expect_name_keyword_readers_read(json_to_struct_DiskGroupParameterKeyword,
                                     json_to_struct_GetDiskGroupParameterKeyword,
                                     &DiskGroupParameterKeyword::StorageDeviceName, tree.p, chars(63, 'g'));
}

TEST(DiskGroupParameter, NameFillingAll64BytesIsEmittedAsExactly64Characters) {
    DiskGroupParameter r = {};
    std::memset(r.StorageDeviceName, 'g', sizeof r.StorageDeviceName);
    r.GroupID = 3;
    Text text(s2j_array_DiskGroupParameter(&r, 1, 0));
    EXPECT_EQ(text.str(), "[{\"StorageDeviceName\":\"" + chars(64, 'g') + "\",\"GroupID\":3}]");
}

TEST(DiskGroupParameter, KeyedUpdateWithA70CharacterNameMatchesTheDeviceHoldingItsFirst63) {
    DiskGroupParameter arr[2] = {};
    std::strcpy(arr[0].StorageDeviceName, "sda");
    arr[0].GroupID = 1;
    std::memcpy(arr[1].StorageDeviceName, chars(63, 'g').c_str(), 64);
    arr[1].GroupID = 1;
    std::string json = "[{\"StorageDeviceName\":\"" + chars(70, 'g') + "\",\"GroupID\":4}]";
    expect_update_applies(j2s_array_update_DiskGroupParameter, json.c_str(), arr, 2, 1);
    EXPECT_EQ(arr[1].GroupID, 4);
    EXPECT_EQ(arr[0].GroupID, 1);
}

TEST(DiskGroupParameter, KeyedUpdateMovesTheNamedDeviceToAnotherGroupAndArrayFilesKeepIt) {
    DiskGroupParameter arr[3] = {};
    const char *names[] = {"sda", "sdb", "mmcblk1"};
    for (int i = 0; i < 3; ++i) {
        std::strcpy(arr[i].StorageDeviceName, names[i]);
        arr[i].GroupID = 1;
    }
    expect_update_applies(j2s_array_update_DiskGroupParameter, "[{\"StorageDeviceName\":\"sdb\",\"GroupID\":-1}]",
                          arr, 3, 1);
    EXPECT_EQ(arr[1].GroupID, -1);
    expect_array_file_round_trip(s2f_array_DiskGroupParameter, f2s_array_DiskGroupParameter, arr, 3);
}

TEST(DiskGroupParameter, KeyedUpdateOfAnElementWithoutStorageDeviceNameIsRefused) {
    DiskGroupParameter arr[1] = {};
    std::strcpy(arr[0].StorageDeviceName, "sda");
    const uint32_t n = refused_update_count(j2s_array_update_DiskGroupParameter, "DiskGroupParameter",
                                            "[{\"GroupID\":2}]", arr, 1);
    EXPECT_EQ(arr[0].GroupID, 0);
    EXPECT_EQ(n, 1u);
}

TEST(StorageDeviceStatus, CapacitiesAbove2147483647AreEmittedAsPositiveNumbers) {
    StorageDeviceStatus s = {};
    std::strcpy(s.StorageDeviceName, "sda");
    s.TotalCapacity = 4294967295u;
    s.FreeCapacity = 2147483648u;
    Text text(s2j_array_StorageDeviceStatus(&s, 1, 0));
    EXPECT_NE(text.str().find("\"TotalCapacity\":4294967295,\"FreeCapacity\":2147483648,"), std::string::npos)
        << text.str();
    const StorageDeviceStatus back = read_array_back(j2s_array_StorageDeviceStatus, text.p, 1, 1)[0];
    EXPECT_EQ(back.TotalCapacity, 4294967295u);
    EXPECT_EQ(back.FreeCapacity, 2147483648u);
}

TEST(FormatDiskProgress, NegativePercentKeepsItsSign) {
    FormatDiskProgress p = {};
    std::strcpy(p.StorageDeviceName, "sdb");
    p.FormatDiskProgressPercent = -1;
    std::strcpy(p.PartitionName, "sdb1");
    Text text(s2j_FormatDiskProgress(&p, 0));
    EXPECT_EQ(text.str(),
              "{\"StorageDeviceName\":\"sdb\",\"FormatDiskProgressPercent\":-1,\"PartitionName\":\"sdb1\"}");
    FormatDiskProgress back = {};
    ASSERT_EQ(j2s_FormatDiskProgress(text.p, &back), 0);
    EXPECT_EQ(back.FormatDiskProgressPercent, -1);
}

TEST(DiskGroupParameter, GroupIDOfMinusOneIsEmittedAsMinusOne) {
    DiskGroupParameter r = {};
    std::strcpy(r.StorageDeviceName, "sda");
    r.GroupID = -1;
    Text text(s2j_array_DiskGroupParameter(&r, 1, 0));
    EXPECT_EQ(text.str(), "[{\"StorageDeviceName\":\"sda\",\"GroupID\":-1}]");
}

TEST(FormatDiskProgress, SingleKeyReaderReadsTheDeviceNameOfAProgressReport) {
    Tree tree(cJSON_Parse("{\"FormatDiskProgressPercent\":40,\"StorageDeviceName\":\"mmcblk1\"}"));
    char name[64];
    ASSERT_EQ(json_to_struct_GetFormatDiskProgressKeyword(name, tree.p), 1);
    EXPECT_STREQ(name, "mmcblk1");
    Tree none(cJSON_Parse("{\"FormatDiskProgressPercent\":40}"));
    EXPECT_EQ(json_to_struct_GetFormatDiskProgressKeyword(name, none.p), 0);
}

TEST(StorageInterface, KeyIsRemovable) {
    StorageInterface r = {};
    r.Removable = 1;
    Tree tree(struct_to_json_StorageInterface(&r));
    EXPECT_NE(cJSON_GetObjectItemCaseSensitive(tree.p, "Removable"), nullptr);
    EXPECT_EQ(cJSON_GetObjectItem(tree.p, "Removeable"), nullptr);
    StorageInterface back = {};
    Tree in(cJSON_Parse("{\"Removable\":1,\"Expansible\":1}"));
    ASSERT_EQ(json_to_struct_StorageInterface(&back, in.p), 1);
    EXPECT_EQ(back.Removable, 1);
    EXPECT_EQ(back.Expansible, 1);
    Tree other(cJSON_Parse("{\"Removeable\":0}"));
    ASSERT_EQ(json_to_struct_StorageInterface(&back, other.p), 1);
    EXPECT_EQ(back.Removable, 1);
}

TEST(StorageDevice, KeyIsRemovable) {
    StorageDevice r = {};
    r.Removable = 1;
    Text text(s2j_array_StorageDevice(&r, 1, 0));
    EXPECT_NE(text.str().find("\"Removable\":1"), std::string::npos);
    EXPECT_EQ(text.str().find("Removeable"), std::string::npos);
    StorageDevice back = {};
    uint32_t n = 1;
    ASSERT_EQ(j2s_array_StorageDevice("[{\"Removeable\":1}]", &back, &n), 0);
    EXPECT_EQ(back.Removable, 0);
    ASSERT_EQ(j2s_array_StorageDevice("[{\"Removable\":1}]", &back, &n), 0);
    EXPECT_EQ(back.Removable, 1);
}

TEST(StorageInterface, EmitterAndReaderRoundTripWithoutAnyFamily) {
    StorageInterface r = {};
    std::strcpy(r.Name, "USB1");
    std::strcpy(r.Type, "USB");
    r.Removable = 1;
    r.BusBandwidth = 4294967295u;
    r.BusID = 3;
    Tree tree(struct_to_json_StorageInterface(&r));
    StorageInterface back = {};
    ASSERT_EQ(json_to_struct_StorageInterface(&back, tree.p), 1);
    EXPECT_EQ(std::memcmp(&back, &r, sizeof r), 0);
    EXPECT_EQ(cJSON_GetObjectItem(tree.p, "BusBandwidth")->valuedouble, 4294967295.0);
}

TEST(FormatDiskParameter, ObjectWithOnlyStorageDeviceNameSucceedsAndLeavesTheOtherFieldsAsTheyWere) {
    FormatDiskParameter r = {};
    std::strcpy(r.StorageDeviceName, "sda");
    std::strcpy(r.FileSystemType, "ext4");
    std::strcpy(r.PartitionName, "sda1");
    r.QuickFormat = 1;
    r.AllocationUnitSize = 4096;
    FormatDiskParameter want = r;
    std::strcpy(want.StorageDeviceName, "mmcblk1");
    EXPECT_EQ(j2s_FormatDiskParameter("{\"StorageDeviceName\":\"mmcblk1\"}", &r), 0);
    EXPECT_EQ(std::memcmp(&r, &want, sizeof r), 0);
}

TEST(FormatDiskParameter, RequestIsReadFromTreeTextAndTextOfKnownLength) {
    const char *json = "{\"StorageDeviceName\":\"sdb\",\"FileSystemType\":\"exFAT\",\"PartitionName\":\"sdb1\","
                       "\"QuickFormat\":0,\"AllocationUnitSize\":131072}";
    FormatDiskParameter a = {}, b = {}, c = {};
    Tree tree(cJSON_Parse(json));
    EXPECT_EQ(c2s_FormatDiskParameter(tree.p, &a), 0);
    EXPECT_EQ(j2s_FormatDiskParameter(json, &b), 0);
    EXPECT_EQ(j2s_FormatDiskParameter_with_len(json, std::strlen(json), &c), 0);
    EXPECT_STREQ(a.FileSystemType, "exFAT");
    EXPECT_EQ(a.AllocationUnitSize, 131072u);
    EXPECT_EQ(std::memcmp(&a, &b, sizeof a), 0);
    EXPECT_EQ(std::memcmp(&a, &c, sizeof a), 0);
}

TEST(RemoveStorageDeviceParameter, RequestIsReadAndAWrongTypeIsReportedOnTheC2sLine) {
    RemoveStorageDeviceParameter r = {};
    EXPECT_EQ(j2s_RemoveStorageDeviceParameter("{\"StorageDeviceName\":\"mmcblk1\"}", &r), 0);
    EXPECT_STREQ(r.StorageDeviceName, "mmcblk1");
    StderrCapture err;
    EXPECT_EQ(j2s_RemoveStorageDeviceParameter("{\"StorageDeviceName\":7}", &r), -1);
    EXPECT_EQ(err.text(), text_diag(lines_of("RemoveStorageDeviceParameter").c2s, "c2s_RemoveStorageDeviceParameter",
                            "json_to_struct_RemoveStorageDeviceParameter failed!\n"));
    EXPECT_STREQ(r.StorageDeviceName, "mmcblk1");
}

// ---- Recording ---------------------------------------------------------------

TEST(RecordParameter, ScheduleTableOf2048OrMoreCharactersIsReadAsItsFirst2047) {
    expect_read_as_prefix(json_to_struct_RecordParameter, &RecordParameter::ScheduleTable,
                          "ScheduleTable", {2048u, 5000u}, 's');
}

TEST(RecordParameter, ScheduleTableFillingAll2048BytesIsEmittedAsExactly2048Characters) {
    RecordParameter r = {};
    std::memset(r.ScheduleTable, 's', sizeof r.ScheduleTable);
    Text text(s2j_array_RecordParameter(&r, 1, 0));
    Tree tree(cJSON_Parse(text.p));
    const cJSON *table = cJSON_GetObjectItem(cJSON_GetArrayItem(tree.p, 0), "ScheduleTable");
    ASSERT_TRUE(cJSON_IsString(table));
    EXPECT_EQ(std::string(table->valuestring), chars(2048, 's'));
    EXPECT_EQ(cJSON_GetObjectItem(cJSON_GetArrayItem(tree.p, 0), "DiskGroupID")->valuedouble, 0.0);
}

TEST(RecordParameter, DiskGroupIDOfMinusOneIsEmittedAsMinusOne) {
    RecordParameter r = {};
    r.DiskGroupID = -1;
    Text text(s2j_array_RecordParameter(&r, 1, 0));
    EXPECT_NE(text.str().find("\"DiskGroupID\":-1,"), std::string::npos) << text.str();
}

TEST(RecordParameter, DiskFullActionAndModeOfAllOnesAreEmittedAs4294967295) {
    RecordParameter r = {};
    r.Mode = 4294967295u;
    r.DiskFullAction = 4294967295u;
    Text text(s2j_array_RecordParameter(&r, 1, 0));
    EXPECT_NE(text.str().find("\"Mode\":4294967295,"), std::string::npos) << text.str();
    EXPECT_NE(text.str().find("\"DiskFullAction\":4294967295}"), std::string::npos) << text.str();
    const RecordParameter back = read_array_back(j2s_array_RecordParameter, text.p, 1, 1)[0];
    EXPECT_EQ(back.Mode, 4294967295u);
    EXPECT_EQ(back.DiskFullAction, 4294967295u);
}

TEST(RecordParameter, ElementWithoutChannelIsReadButItsKeywordReadersFail) {
    Tree tree(cJSON_Parse("{\"StreamIndex\":1,\"FileFormat\":\"mp4\"}"));
    RecordParameter r = {};
    r.Channel = 5;
    EXPECT_EQ(json_to_struct_RecordParameter(&r, tree.p), 1);
    EXPECT_EQ(r.Channel, 5u);
    EXPECT_EQ(r.StreamIndex, 1u);
    EXPECT_STREQ(r.FileFormat, "mp4");
    expect_keyword_readers_refuse(json_to_struct_RecordParameterKeyword, json_to_struct_GetRecordParameterKeyword,
                                  "{\"StreamIndex\":1,\"FileFormat\":\"mp4\"}");
}

TEST(RecordParameter, KeywordReadersRequireAnIntegerChannel) {
    expect_channel_keyword_readers(json_to_struct_RecordParameterKeyword, json_to_struct_GetRecordParameterKeyword,
                                   "{\"Channel\":3}", 3, {"{\"Channel\":\"1\"}", "{\"Channel\":1.5}"});
}

TEST(RecordParameter, KeyedUpdateWithoutChannelIsRefusedOnTheUpdateLine) {
    RecordParameter arr[1] = {};
    refused_update_count(j2s_array_update_RecordParameter, "RecordParameter", "[{\"StreamIndex\":1}]", arr, 1);
    EXPECT_EQ(arr[0].StreamIndex, 0u);
}

TEST(RecordParameter, KeyedUpdateChangesTheChannelNamedAndCountsIt) {
    RecordParameter arr[3] = {};
    channels_with(arr, &RecordParameter::FileDuration, 600u);
    expect_update_applies(j2s_array_update_RecordParameter,
                          "[{\"Channel\":2,\"FileDuration\":1800,\"DiskGroupID\":-1},{\"Channel\":9,"
                          "\"FileDuration\":1}]", arr, 3, 1);
    EXPECT_EQ(member_values(arr, &RecordParameter::FileDuration), (std::vector<uint32_t>{600, 600, 1800}));
    EXPECT_EQ(arr[2].DiskGroupID, -1);
}

TEST(RecordStatus, TextIsIdenticalToThatOfASnapshotStatusWithEqualValues) {
    const uint32_t values[][3] = {{0, 1, 702114}, {4294967295u, 2147483648u, 4294967295u}, {0, 0, 0}};
    RecordStatus r[3];
    SnapshotStatus s[3];
    for (int i = 0; i < 3; ++i) {
        r[i] = {values[i][0], values[i][1], values[i][2]};
        s[i] = {values[i][0], values[i][1], values[i][2]};
    }
    for (int formatted : {0, 1}) {
        Text rt(s2j_array_RecordStatus(r, 3, formatted)), st(s2j_array_SnapshotStatus(s, 3, formatted));
        EXPECT_EQ(rt.str(), st.str());
    }
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(emitted(struct_to_json_RecordStatus, r[i]), emitted(struct_to_json_SnapshotStatus, s[i]));
    Text compact(s2j_array_RecordStatus(r + 1, 1, 0));
    EXPECT_EQ(compact.str(), "[{\"Channel\":4294967295,\"State\":2147483648,\"FreeCapacity\":4294967295}]");
}

TEST(RecordStatus, SurvivesARoundTripUnchanged) {
    RecordStatus a[2] = {{0, 1, 702114}, {4294967295u, 4294967295u, 4294967295u}};
    Text text(s2j_array_RecordStatus(a, 2, 1));
    EXPECT_EQ(std::memcmp(a, read_array_back(j2s_array_RecordStatus, text.p, 2, 2).data(), sizeof a), 0);
}

TEST(RecordStatus, SingleKeyReaderReadsTheChannel) {
    expect_integer_key_reader(json_to_struct_GetRecordStatusKeyword, "{\"State\":1,\"Channel\":4294967295}",
                              4294967295u, {"{\"State\":1}", "{\"Channel\":\"0\"}"});
}

TEST(RecordCapabilitySet, TextRoundTripAndLoadingFromAFile) {
    RecordCapabilitySet c = {};
    std::strcpy(c.SupportedFileFormatList, "mp4,ts");
    c.MaxFileDuration = 3600;
    c.MinFileDuration = 60;
    c.SupportRecord = -1;
    Text text(s2j_RecordCapabilitySet(&c, 1));
    std::string path = temp_dir() + "/record_caps.json";
    write_file(path, text.p);
    RecordCapabilitySet back = {};
    ASSERT_EQ(f2s_RecordCapabilitySet(path.c_str(), &back), 0);
    EXPECT_EQ(std::memcmp(&back, &c, sizeof c), 0);
}

// ---- Snapshots ---------------------------------------------------------------

TEST(SnapshotCapabilitySet, ListUnderAnyOtherKeyThanSupportPictrueFormatListIsIgnored) {
    SnapshotCapabilitySet c = {};
    std::strcpy(c.SupportPictrueFormatList, "JPEG");
    uint32_t n = 1;
    ASSERT_EQ(
        j2s_array_SnapshotCapabilitySet(
            "[{\"SupportPictureFormatList\":\"PNG\",\"SupportPictrueFormat\":\"BMP\",\"MaxWidth\":1920}]", &c, &n),
        0);
    EXPECT_STREQ(c.SupportPictrueFormatList, "JPEG");
    EXPECT_EQ(c.MaxWidth, 1920u);
    ASSERT_EQ(j2s_array_SnapshotCapabilitySet("[{\"SupportPictrueFormatList\":\"PNG\"}]", &c, &n), 0);
    EXPECT_STREQ(c.SupportPictrueFormatList, "PNG");
}

TEST(SnapshotCapabilitySet, EmitterWritesOnlySupportPictrueFormatList) {
    SnapshotCapabilitySet c = {};
    std::strcpy(c.SupportPictrueFormatList, "JPEG,PNG");
    Text text(s2j_array_SnapshotCapabilitySet(&c, 1, 0));
    EXPECT_EQ(text.str().substr(0, 40), "[{\"SupportPictrueFormatList\":\"JPEG,PNG\",");
    EXPECT_EQ(text.str().find("Picture"), std::string::npos);
}

TEST(SnapshotCapabilitySet, FrameratesOfMinusOneAreEmittedAsMinusOne) {
    SnapshotCapabilitySet c = {};
    c.MaxFramerate = -1;
    c.MinFramerate = -1;
    c.MaxWidth = 4294967295u;
    Text text(s2j_array_SnapshotCapabilitySet(&c, 1, 0));
    EXPECT_EQ(text.str(), "[{\"SupportPictrueFormatList\":\"\",\"MaxWidth\":4294967295,\"MaxHeight\":0,\"MinWidth\":0,"
                          "\"MinHeight\":0,\"MaxFramerate\":-1,\"MinFramerate\":-1,\"SupportSnapshot\":0}]");
}

TEST(SnapshotParameter, FramerateOfMinusOneAndQualityAndFormatOfAllOnesKeepTheirSigns) {
    SnapshotParameter p = {};
    p.Channel = 1;
    p.Framerate = -1;
    p.DiskGroupID = -1;
    p.ImageQuality = 4294967295u;
    p.PictureFormat = 4294967295u;
    Text text(s2j_array_SnapshotParameter(&p, 1, 0));
    EXPECT_NE(text.str().find("\"PictureFormat\":4294967295,"), std::string::npos) << text.str();
    EXPECT_NE(text.str().find("\"Framerate\":-1,"), std::string::npos) << text.str();
    EXPECT_NE(text.str().find("\"DiskGroupID\":-1,"), std::string::npos) << text.str();
    EXPECT_NE(text.str().find("\"ImageQuality\":4294967295}"), std::string::npos) << text.str();
    EXPECT_EQ(std::memcmp(read_array_back(j2s_array_SnapshotParameter, text.p, 1, 1).data(), &p, sizeof p), 0);
}

TEST(SnapshotResult, RetentionTimeOfMinusOneIsEmittedAsMinusOne) {
    SnapshotResult r = {};
    r.Channel = 0;
    std::strcpy(r.ImageURL, "http://192.168.1.120/snap.jpg");
    r.ImageRetentionTime = -1;
    Text text(s2j_SnapshotResult(&r, 0));
    EXPECT_EQ(text.str(), "{\"Channel\":0,\"ImageURL\":\"http://192.168.1.120/snap.jpg\",\"ImageRetentionTime\":-1}");
}

TEST(SnapshotResult, ImageURLOf256CharactersWithoutNulIsEmittedWholeAndReadBackAsItsFirst255) {
    SnapshotResult r = {};
    std::memset(r.ImageURL, 'u', sizeof r.ImageURL);
    r.ImageRetentionTime = 60;
    Text text(s2j_SnapshotResult(&r, 0));
    EXPECT_EQ(text.str(), "{\"Channel\":0,\"ImageURL\":\"" + chars(256, 'u') + "\",\"ImageRetentionTime\":60}");
    Tree tree(cJSON_Parse(text.p));
    SnapshotResult back = {};
    ASSERT_EQ(json_to_struct_SnapshotResult(&back, tree.p), 1);
    EXPECT_EQ(std::string(back.ImageURL), chars(255, 'u'));
    EXPECT_EQ(back.ImageRetentionTime, 60);
}

TEST(SnapshotResult, S2jReportsANullRecordOnItsLine) {
    StderrCapture err;
    EXPECT_EQ(s2j_SnapshotResult(nullptr, 1), nullptr);
    EXPECT_EQ(err.text(), text_diag(lines_of("SnapshotResult").s2j, "s2j_SnapshotResult", "struct_ptr is empty!\n"));
}

TEST(SnapshotInputParameter, RequestIsReadFromATree) {
    Tree tree(cJSON_Parse("{\"Channel\":1,\"PictureFormat\":0,\"PictureWidth\":1920,\"PictureHeight\":1080}"));
    SnapshotInputParameter r = {9, 9, 9, 9};
    ASSERT_EQ(c2s_SnapshotInputParameter(tree.p, &r), 0);
    EXPECT_EQ(r.Channel, 1u);
    EXPECT_EQ(r.PictureFormat, 0u);
    EXPECT_EQ(r.PictureWidth, 1920u);
    EXPECT_EQ(r.PictureHeight, 1080u);
}

TEST(SnapshotInputParameter, C2sReportsANullRecordAfterCheckingTheTree) {
    Tree tree(cJSON_Parse("{\"Channel\":1}"));
    StderrCapture err;
    EXPECT_EQ(c2s_SnapshotInputParameter(tree.p, nullptr), -2);
    EXPECT_EQ(err.text(), text_diag(lines_of("SnapshotInputParameter").c2s, "c2s_SnapshotInputParameter",
                                    "struct_ptr is empty!\n"));
}

TEST(SnapshotParameter, KeyedUpdateMatchesTheChannelAndArrayFilesKeepTheSettings) {
    SnapshotParameter arr[2] = {};
    channels_with(arr, &SnapshotParameter::ImageQuality, 80u);
    expect_update_applies(j2s_array_update_SnapshotParameter,
                          "[{\"Channel\":1,\"ImageQuality\":95,\"FilePath\":\"/mnt/disk0/snap\"}]", arr, 2, 1);
    EXPECT_EQ(member_values(arr, &SnapshotParameter::ImageQuality), (std::vector<uint32_t>{80, 95}));
    expect_array_file_round_trip(s2f_array_SnapshotParameter, f2s_array_SnapshotParameter, arr, 2);
}

TEST(SnapshotStatus, SingleKeyReaderReadsTheChannel) {
    expect_integer_key_reader(json_to_struct_GetSnapshotStatusKeyword, "{\"Channel\":2,\"State\":0}", 2u,
                              {"{\"State\":0}"});
}

TEST(SnapshotParameter, KeywordReadersReadTheChannelAndRefuseAnElementWithoutIt) {
    Tree tree(cJSON_Parse("{\"ImageQuality\":90,\"Channel\":7}"));
    SnapshotParameterKeyword kw = {};
    ASSERT_EQ(json_to_struct_SnapshotParameterKeyword(&kw, tree.p), 1);
    EXPECT_EQ(kw.Channel, 7u);
    uint32_t channel = 0;
    ASSERT_EQ(json_to_struct_GetSnapshotParameterKeyword(&channel, tree.p), 1);
    EXPECT_EQ(channel, 7u);
    Tree none(cJSON_Parse("{\"ImageQuality\":90}"));
    EXPECT_EQ(json_to_struct_SnapshotParameterKeyword(&kw, none.p), 0);
    EXPECT_EQ(json_to_struct_GetSnapshotParameterKeyword(&channel, none.p), 0);
}

}  // namespace
