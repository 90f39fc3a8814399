// Network interfaces and LAN, wireless, serial ports: the functions each
// type has (and those it has not), and the rules that are particular to these
// records: the 16-bit MTUSize of the LAN record
// beside the 32-bit one of the wireless record, the key spellings
// "Removeable", "MacAddress" and "MACAddress", string keys (one of them not
// the record's first field) and the single-key reader of the interface
// status.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <string>
#include <vector>

#include "support.h"

using namespace testing_support;

namespace {

// A LAN record with every field set.
NetworkLANParameter lan(const char *name, uint16_t mtu) {
    NetworkLANParameter r = {};
    std::snprintf(r.InterfaceName, sizeof r.InterfaceName, "%s", name);
    r.IPv4DHCPEnable = 1;
    std::strcpy(r.IPv4Address, "192.168.1.120");
    std::strcpy(r.IPv4Gateway, "192.168.1.1");
    std::strcpy(r.IPv4Netmask, "255.255.255.0");
    std::strcpy(r.IPv4PrimaryDNS, "192.168.1.1");
    std::strcpy(r.IPv4SecondaryDNS, "8.8.4.4");
    r.IPv6Enable = 1;
    r.IPv6DHCPEnable = 0;
    std::strcpy(r.IPv6Address, "fd00:1:2::120");
    std::strcpy(r.IPv6Gateway, "fd00:1:2::1");
    r.IPv6SubnetPrefixLength = 64;
    std::strcpy(r.IPv6PrimaryDNS, "fd00:1:2::1");
    std::strcpy(r.IPv6SecondaryDNS, "2001:4860:4860::8888");
    std::strcpy(r.MACAddress, "00:1A:2B:3C:4D:5E");
    r.MTUSize = mtu;
    return r;
}

// Every example loads and is the emitter's own text (EveryType); here, what
// the hotspot scan request's example holds.
TEST(NetworkExamples, HotspotScanRequestNamesItsInterface) {
    Tree scan(cJSON_Parse(read_file(example_path("ScanWIFIHotspotParameter")).c_str()));
    ScanWIFIHotspotParameter req = {};
    EXPECT_EQ(c2s_ScanWIFIHotspotParameter(scan.p, &req), 0);
    EXPECT_STREQ(req.InterfaceName, "wlan0");
}

// ---- Network interfaces and LAN ---------------------------------------------

TEST(NetworkLANParameter, MACAddressOf17CharactersIsKeptWhole) {
    NetworkLANParameter r =
        record_from_tree(json_to_struct_NetworkLANParameter, "{\"MACAddress\":\"00:1A:2B:3C:4D:5E\"}");
    EXPECT_STREQ(r.MACAddress, "00:1A:2B:3C:4D:5E");
}

TEST(NetworkLANParameter, MACAddressOf18OrMoreCharactersIsStoredAsItsFirst17) {
    for (const char *mac : {"00:1A:2B:3C:4D:5EF", "00:1A:2B:3C:4D:5E:6F:70"}) {
        NetworkLANParameter r = {};
        std::memset(r.MACAddress, '#', sizeof r.MACAddress);
        Tree tree(cJSON_CreateObject());
        cJSON_AddStringToObject(tree.p, "MACAddress", mac);
        ASSERT_EQ(json_to_struct_NetworkLANParameter(&r, tree.p), 1);
        EXPECT_EQ(std::string(r.MACAddress), "00:1A:2B:3C:4D:5E") << mac;
    }
}

TEST(NetworkLANParameter, IPv4AddressOf16OrMoreCharactersIsStoredAsItsFirst15) {
    expect_read_as_prefix(json_to_struct_NetworkLANParameter, &NetworkLANParameter::IPv4Address,
                          "IPv4Address", {16u, 40u}, '1');
    NetworkLANParameter r =  // 15 characters fit
        record_from_tree(json_to_struct_NetworkLANParameter, "{\"IPv4Address\":\"255.255.255.255\"}");
    EXPECT_STREQ(r.IPv4Address, "255.255.255.255");
}

TEST(NetworkLANParameter, IPv6AddressOf48OrMoreCharactersIsStoredAsItsFirst47) {
    expect_read_as_prefix(json_to_struct_NetworkLANParameter, &NetworkLANParameter::IPv6Address,
                          "IPv6Address", {48u, 100u}, 'f');
}

TEST(NetworkLANParameter, MTUSizeOf70000IsReadBackAs4464) {
    NetworkLANParameter r = lan("eth0", 1500);
    Tree tree(cJSON_Parse("{\"MTUSize\":70000}"));
    ASSERT_EQ(json_to_struct_NetworkLANParameter(&r, tree.p), 1);
    EXPECT_EQ(r.MTUSize, 4464);
    Tree back(struct_to_json_NetworkLANParameter(&r));
    EXPECT_EQ(cJSON_GetObjectItem(back.p, "MTUSize")->valuedouble, 4464.0);
}

TEST(NetworkLANParameter, MTUSizeKeepsOnlyTheLow16BitsWithoutRangeCheck) {
    for (const Low16Case &c : {Low16Case{"1500", 1500}, {"65535", 65535}, {"65536", 0}, {"70000", 4464}, {"-1", 65535},
                               {"4294967297", 1}}) {
        NetworkLANParameter r = {};
        std::string json = std::string("[{\"InterfaceName\":\"eth0\",\"MTUSize\":") + c.literal + "}]";
        uint32_t n = 1;
        ASSERT_EQ(j2s_array_NetworkLANParameter(json.c_str(), &r, &n), 0) << c.literal;
        EXPECT_EQ(r.MTUSize, c.stored) << c.literal;
    }
}

TEST(NetworkLANParameter, MTUSizeOf65535IsEmittedUnsigned) {
    NetworkLANParameter r = lan("eth0", 65535);
    Text text(s2j_array_NetworkLANParameter(&r, 1, 0));
    EXPECT_NE(text.str().find("\"MACAddress\":\"00:1A:2B:3C:4D:5E\",\"MTUSize\":65535}"), std::string::npos)
        << text.str();
}

TEST(NetworkLANParameter, MTUSizeGivenAsTextFailsAfterEveryEarlierFieldIsWritten) {
    NetworkLANParameter src = lan("eth1", 9000), dst = lan("old", 1400);
    std::strcpy(dst.IPv4Address, "10.1.1.1");
    std::strcpy(dst.MACAddress, "AA:BB:CC:DD:EE:FF");
    Tree tree(struct_to_json_NetworkLANParameter(&src));
    cJSON_ReplaceItemInObjectCaseSensitive(tree.p, "MTUSize", cJSON_CreateString("9000"));
    EXPECT_EQ(json_to_struct_NetworkLANParameter(&dst, tree.p), 0);
    EXPECT_EQ(std::memcmp(&dst, &src, offsetof(NetworkLANParameter, MTUSize)), 0);
    EXPECT_EQ(dst.MTUSize, 1400);
}

TEST(NetworkLANParameter, MTUSizeGivenAsTextFailsTheArrayReaderWithItsDiagnostic) {
    NetworkLANParameter arr[2] = {lan("eth0", 1500), lan("eth1", 1500)};
    uint32_t n = 2;
    StderrCapture err;
    EXPECT_EQ(j2s_array_NetworkLANParameter("[{\"InterfaceName\":\"wan\",\"MTUSize\":\"1500\"}]", arr, &n), -1);
    EXPECT_EQ(err.text(), text_diag(lines_of("NetworkLANParameter").c2s_array, "c2s_array_NetworkLANParameter",
                            "json_to_struct_NetworkLANParameter failed!\n"));
    EXPECT_EQ(n, 2u);
    EXPECT_STREQ(arr[0].InterfaceName, "wan");
}

// The array families step through the records by their size, 16-bit field
// included: every element keeps its own MTU.
TEST(NetworkLANParameter, ArraysOfRecordsWithThe16BitFieldRoundTripElementByElement) {
    NetworkLANParameter arr[3] = {lan("eth0", 1500), lan("eth1", 9000), lan("eth2", 65535)};
    Text text(s2j_array_NetworkLANParameter(arr, 3, 1));
    NetworkLANParameter back[3];
    std::memset(back, 0x5A, sizeof back);
    uint32_t n = 3;
    ASSERT_EQ(j2s_array_NetworkLANParameter(text.p, back, &n), 0);
    ASSERT_EQ(n, 3u);
    for (int i = 0; i < 3; ++i) {
        EXPECT_STREQ(back[i].InterfaceName, arr[i].InterfaceName);
        EXPECT_EQ(back[i].MTUSize, arr[i].MTUSize);
        EXPECT_STREQ(back[i].MACAddress, arr[i].MACAddress);
    }
}

TEST(NetworkLANParameter, KeyedUpdateMatchesTheInterfaceByName) {
    NetworkLANParameter arr[3] = {lan("eth0", 1500), lan("eth1", 1500), lan("wlan0", 1500)};
    expect_update_applies(j2s_array_update_NetworkLANParameter,
                          "[{\"InterfaceName\":\"eth1\",\"IPv4Address\":\"10.0.0.7\",\"MTUSize\":9000},"
                          "{\"InterfaceName\":\"eth9\",\"MTUSize\":1280}]", arr, 3, 1);
    EXPECT_STREQ(arr[1].IPv4Address, "10.0.0.7");
    EXPECT_EQ(arr[1].MTUSize, 9000);
    EXPECT_EQ(arr[0].MTUSize, 1500);
    EXPECT_EQ(arr[2].MTUSize, 1500);
    EXPECT_STREQ(arr[0].IPv4Address, "192.168.1.120");
}

TEST(NetworkLANParameter, KeyedUpdateWithNameOf64OrMoreCharactersMatchesOnTheFirst63) {
    std::string name70 = chars(60, 'n') + "0123456789";  // 70 characters
    NetworkLANParameter arr[2] = {lan("eth0", 1500), lan(name70.c_str(), 1500)};
    ASSERT_EQ(std::strlen(arr[1].InterfaceName), 63u);
    std::string json = "[{\"InterfaceName\":\"" + name70 + "\",\"MTUSize\":1400}]";
    expect_update_applies(j2s_array_update_NetworkLANParameter, json.c_str(), arr, 2, 1);
    EXPECT_EQ(arr[1].MTUSize, 1400);
    EXPECT_EQ(arr[0].MTUSize, 1500);

    std::string name64 = chars(64, 'm');
    Tree tree(cJSON_CreateObject());
    cJSON_AddStringToObject(tree.p, "InterfaceName", name64.c_str());
    expect_name_keyword_readers_read(json_to_struct_NetworkLANParameterKeyword,
                                     json_to_struct_GetNetworkLANParameterKeyword,
                                     &NetworkLANParameterKeyword::InterfaceName, tree.p, chars(63, 'm'));
}

TEST(NetworkLANParameter, KeyedUpdateDoesNotMatchANameThatOnlyBeginsLikeTheKey) {
    NetworkLANParameter arr[1] = {lan("eth10", 1500)};
    expect_update_applies(j2s_array_update_NetworkLANParameter, "[{\"InterfaceName\":\"eth1\",\"MTUSize\":576}]",
                          arr, 1, 0);
    EXPECT_EQ(arr[0].MTUSize, 1500);
}

TEST(NetworkInterfaceStatus, SingleKeyReaderReadsTheInterfaceName) {
    Tree tree(cJSON_Parse("{\"IsPlugged\":1,\"InterfaceName\":\"eth0\"}"));
    char name[64];
    std::memset(name, '#', sizeof name);
    EXPECT_EQ(json_to_struct_GetNetworkInterfaceStatusKeyword(name, tree.p), 1);
    EXPECT_STREQ(name, "eth0");
}

TEST(NetworkInterfaceStatus, SingleKeyReaderRefusesAnElementWithoutInterfaceName) {
    expect_string_key_reader_refuses(json_to_struct_GetNetworkInterfaceStatusKeyword,
                                     {"{\"IsPlugged\":1,\"ReceptionRate\":100}"});
}

TEST(NetworkInterfaceStatus, SingleKeyReaderRefusesANumericInterfaceName) {
    expect_string_key_reader_refuses(json_to_struct_GetNetworkInterfaceStatusKeyword, {"{\"InterfaceName\":0}"});
}

TEST(NetworkInterfaceStatus, RatesAreUnsignedAndFlagsSigned) {
    NetworkInterfaceStatus s = {};
    std::strcpy(s.InterfaceName, "eth0");
    s.IsPlugged = -1;
    s.ReceptionRate = 4294967295u;
    s.TransmissionRate = 2147483648u;
    Text text(s2j_array_NetworkInterfaceStatus(&s, 1, 0));
    EXPECT_EQ(text.str(),
              "[{\"InterfaceName\":\"eth0\",\"IsPlugged\":-1,\"NetworkIsConnected\":0,\"ReceptionRate\":4294967295,"
              "\"TransmissionRate\":2147483648,\"InternetIsConnected\":0}]");
}

TEST(NetworkInterface, RemoveableIsTheOnlySpellingAccepted) {
    expect_reads_only_spelling(json_to_struct_NetworkInterface, &NetworkInterface::Removeable, "Removeable",
                               "Removable", 7);
}

TEST(NetworkInterface, EmitterWritesRemoveable) {
    expect_emits_only_spelling(struct_to_json_NetworkInterface, &NetworkInterface::Removeable, "Removeable",
                               "Removable");
}

TEST(NetworkRouteParameter, TextAndFileRoundTrip) {
    NetworkRouteParameter r = {};
    std::strcpy(r.PrimaryNetworkInterface, "eth1");
    Text text(s2j_NetworkRouteParameter(&r, 0));
    EXPECT_EQ(text.str(), "{\"PrimaryNetworkInterface\":\"eth1\"}");
    std::string path = temp_dir() + "/route.json";
    ASSERT_EQ(s2f_NetworkRouteParameter(path.c_str(), &r), 0);
    EXPECT_EQ(read_file(path), "{\n\t\"PrimaryNetworkInterface\":\t\"eth1\"\n}");
    NetworkRouteParameter back = {};
    ASSERT_EQ(f2s_NetworkRouteParameter(path.c_str(), &back), 0);
    EXPECT_STREQ(back.PrimaryNetworkInterface, "eth1");
}

// ---- Wireless ----------------------------------------------------------------

// A hotspot's MacAddress is filled from "MACAddress", a wireless record's
// MACAddress from "MacAddress".
TEST(WirelessMacKey, EachSpellingFillsTheOtherSpellingsMemberByCaseInsensitiveLookup) {
    EXPECT_STREQ(record_from_tree(json_to_struct_WIFIHotspot, "{\"MACAddress\":\"F4:92:BF:A1:22:10\"}").MacAddress,
                 "F4:92:BF:A1:22:10");
    EXPECT_STREQ(
        record_from_tree(json_to_struct_NetworkWIFIParameter, "{\"MacAddress\":\"70:B3:D5:12:34:56\"}").MACAddress,
        "70:B3:D5:12:34:56");
}

TEST(WIFIHotspot, EachEmitterWritesOnlyItsOwnSpellingOfTheMacKey) {
    WIFIHotspot h = {};
    std::strcpy(h.MacAddress, "F4:92:BF:A1:22:10");
    Tree ht(struct_to_json_WIFIHotspot(&h));
    EXPECT_NE(cJSON_GetObjectItemCaseSensitive(ht.p, "MacAddress"), nullptr);
    EXPECT_EQ(cJSON_GetObjectItemCaseSensitive(ht.p, "MACAddress"), nullptr);
    NetworkWIFIParameter w = {};
    std::strcpy(w.MACAddress, "70:B3:D5:12:34:56");
    Tree wt(struct_to_json_NetworkWIFIParameter(&w));
    EXPECT_NE(cJSON_GetObjectItemCaseSensitive(wt.p, "MACAddress"), nullptr);
    EXPECT_EQ(cJSON_GetObjectItemCaseSensitive(wt.p, "MacAddress"), nullptr);
    NetworkLANParameter l = {};
    Tree lt(struct_to_json_NetworkLANParameter(&l));
    EXPECT_NE(cJSON_GetObjectItemCaseSensitive(lt.p, "MACAddress"), nullptr);
    EXPECT_EQ(cJSON_GetObjectItemCaseSensitive(lt.p, "MacAddress"), nullptr);
}

TEST(NetworkWIFIParameter, MTUSizeOf70000IsKeptAs70000) {
    NetworkWIFIParameter r = record_from_tree(json_to_struct_NetworkWIFIParameter, "{\"MTUSize\":70000}");
    EXPECT_EQ(r.MTUSize, 70000u);
    Text text(s2j_array_NetworkWIFIParameter(&r, 1, 0));
    EXPECT_NE(text.str().find("\"MTUSize\":70000,"), std::string::npos);
}

TEST(NetworkWIFIParameter, TheSameMTUSizeDocumentIsCutTo16BitsOnlyByTheLANRecord) {
    const char *json = "[{\"InterfaceName\":\"x\",\"MTUSize\":4294967295}]";
    NetworkWIFIParameter w = {};
    NetworkLANParameter l = {};
    uint32_t n = 1, m = 1;
    ASSERT_EQ(j2s_array_NetworkWIFIParameter(json, &w, &n), 0);
    ASSERT_EQ(j2s_array_NetworkLANParameter(json, &l, &m), 0);
    EXPECT_EQ(w.MTUSize, 4294967295u);
    EXPECT_EQ(l.MTUSize, 65535);
}

TEST(NetworkWIFIParameter, SSIDOf64OrMoreCharactersIsStoredAsItsFirst63) {
    expect_read_as_prefix(json_to_struct_NetworkWIFIParameter, &NetworkWIFIParameter::SSID, "SSID", 64, 's');
}

TEST(NetworkWIFIParameter, SecurityKeysOf64OrMoreCharactersAreStoredAsTheirFirst63) {
    NetworkWIFIParameter r = {};
    Tree tree(cJSON_CreateObject());
    cJSON_AddStringToObject(tree.p, "SecurityKey", chars(64, 'k').c_str());
    cJSON_AddStringToObject(tree.p, "AccessPointSecurityKey", chars(200, 'p').c_str());
    cJSON_AddStringToObject(tree.p, "AccessPointSSID", chars(63, 'a').c_str());
    ASSERT_EQ(json_to_struct_NetworkWIFIParameter(&r, tree.p), 1);
    EXPECT_EQ(std::string(r.SecurityKey), chars(63, 'k'));
    EXPECT_EQ(std::string(r.AccessPointSecurityKey), chars(63, 'p'));
    EXPECT_EQ(std::string(r.AccessPointSSID), chars(63, 'a'));
}

TEST(WIFIHotspot, NegativeSignalStrengthIsStoredAndEmittedWithItsSign) {
    WIFIHotspot r = {};
    uint32_t n = 1;
    ASSERT_EQ(j2s_array_WIFIHotspot("[{\"SSID\":\"Guest\",\"SignalStrength\":-70}]", &r, &n), 0);
    EXPECT_EQ(r.SignalStrength, -70);
    Text text(s2j_array_WIFIHotspot(&r, 1, 0));
    EXPECT_NE(text.str().find("\"SignalStrength\":-70}"), std::string::npos) << text.str();
}

TEST(NetworkWIFIParameter, KeyedUpdateOfAnElementWithoutInterfaceNameIsRefused) {
    NetworkWIFIParameter arr[2] = {};
    std::strcpy(arr[0].InterfaceName, "wlan0");
    std::strcpy(arr[1].InterfaceName, "wlan1");
    const uint32_t n = refused_update_count(j2s_array_update_NetworkWIFIParameter, "NetworkWIFIParameter",
                                            "[{\"InterfaceName\":\"wlan1\",\"SSID\":\"Studio\"},{\"SSID\":\"Lobby\"}]",
                                            arr, 2);
    EXPECT_EQ(n, 2u);
    EXPECT_STREQ(arr[1].SSID, "Studio");  // the element before the refused one stays applied
    EXPECT_STREQ(arr[0].SSID, "");
}

TEST(NetworkWIFIParameter, KeyedUpdateOfAnElementWithNumericInterfaceNameIsRefused) {
    NetworkWIFIParameter arr[1] = {};
    std::strcpy(arr[0].InterfaceName, "0");
    refused_update_count(j2s_array_update_NetworkWIFIParameter, "NetworkWIFIParameter",
                         "[{\"InterfaceName\":0,\"SSID\":\"x\"}]", arr, 1);
    EXPECT_STREQ(arr[0].SSID, "");
    Tree tree(cJSON_Parse("{\"InterfaceName\":0}"));
    NetworkWIFIParameterKeyword kw = {};
    char get[64] = {};
    EXPECT_EQ(json_to_struct_NetworkWIFIParameterKeyword(&kw, tree.p), 0);
    EXPECT_EQ(json_to_struct_GetNetworkWIFIParameterKeyword(get, tree.p), 0);
}

TEST(NetworkWIFIParameter, KeyedUpdateChangesClientAndAccessPointSettingsOfTheNamedInterface) {
    NetworkWIFIParameter arr[2] = {};
    std::strcpy(arr[0].InterfaceName, "wlan0");
    std::strcpy(arr[1].InterfaceName, "wlan1");
    uint32_t n = 2;
    const char *json =
        "[{\"InterfaceName\":\"wlan1\",\"WorkMode\":1,\"AccessPointSSID\":\"Field-AP\",\"MTUSize\":100000}]";
    ASSERT_EQ(j2s_array_update_NetworkWIFIParameter_with_len(json, std::strlen(json), arr, &n), 0);
    EXPECT_EQ(n, 1u);
    EXPECT_EQ(arr[1].WorkMode, 1u);
    EXPECT_STREQ(arr[1].AccessPointSSID, "Field-AP");
    EXPECT_EQ(arr[1].MTUSize, 100000u);
    EXPECT_EQ(arr[0].WorkMode, 0u);
}

TEST(ScanWIFIHotspotParameter, RequestIsReadFromATree) {
    Tree tree(cJSON_Parse("{\"InterfaceName\":\"wlan0\",\"Rescan\":1}"));
    ScanWIFIHotspotParameter r = {};
    EXPECT_EQ(c2s_ScanWIFIHotspotParameter(tree.p, &r), 0);
    EXPECT_STREQ(r.InterfaceName, "wlan0");
    EXPECT_EQ(r.Rescan, 1);
}

// A tree that is not an object, and a mistyped field (a reader failure after
// the fields before it are written), reported on the c2s line.
TEST(ScanWIFIHotspotParameter, C2sReportsARefusedTreeOnItsLine) {
    const struct {
        const char *doc;
        int status;
        const char *message;
        const char *name_after;
    } cases[] = {
        {"[]", -2, "the cJSON pointer is not an object!\n", ""},
        {"{\"InterfaceName\":\"wlan0\",\"Rescan\":true}", -1, "json_to_struct_ScanWIFIHotspotParameter failed!\n",
         "wlan0"},
    };
    for (const auto &c : cases) {
        ScanWIFIHotspotParameter r = {};
        StderrCapture err;
        EXPECT_EQ(c2s_of_text(c2s_ScanWIFIHotspotParameter, c.doc, &r), c.status) << c.doc;
        EXPECT_EQ(err.text(), text_diag(lines_of("ScanWIFIHotspotParameter").c2s, "c2s_ScanWIFIHotspotParameter",
                                        c.message))
            << c.doc;
        EXPECT_STREQ(r.InterfaceName, c.name_after) << c.doc;
    }
}

TEST(ScanWIFIHotspotParameter, EmitterExistsThoughNoTextFamilyDoes) {
    ScanWIFIHotspotParameter r = {};
    std::strcpy(r.InterfaceName, "wlan0");
    r.Rescan = 1;
    EXPECT_EQ(emitted(struct_to_json_ScanWIFIHotspotParameter, r), "{\"InterfaceName\":\"wlan0\",\"Rescan\":1}");
}

// ---- Serial ports --------------------------------------------------------------

TEST(SerialPortNetworkTransferParameter, PeerAddressOf256OrMoreCharactersIsStoredAsItsFirst255) {
    expect_read_as_prefix(json_to_struct_SerialPortNetworkTransferParameter,
                          &SerialPortNetworkTransferParameter::PeerAddress, "PeerAddress", {256u, 300u}, 'h');
}

TEST(SerialPortParameter, BaudrateGivenAsTextFailsAfterInterfaceNameAndEnableAreWritten) {
    SerialPortParameter r = {};
    std::strcpy(r.InterfaceName, "COM9");
    r.Enable = 0;
    r.Baudrate = 9600;
    r.Databits = 7;
    std::strcpy(r.ParityType, "Odd");
    Tree tree(cJSON_Parse("{\"InterfaceName\":\"COM1\",\"Enable\":1,\"Baudrate\":\"115200\",\"Databits\":8,"
                          "\"ParityType\":\"None\"}"));
    EXPECT_EQ(json_to_struct_SerialPortParameter(&r, tree.p), 0);
    EXPECT_STREQ(r.InterfaceName, "COM1");
    EXPECT_EQ(r.Enable, 1);
    EXPECT_EQ(r.Baudrate, 9600u);
    EXPECT_EQ(r.Databits, 7u);
    EXPECT_STREQ(r.ParityType, "Odd");
}

TEST(SerialPortParameter, BaudrateGivenAsTextFailsTheArrayReaderWithItsDiagnostic) {
    SerialPortParameter arr[1] = {};
    uint32_t n = 1;
    StderrCapture err;
    const char *json = "[{\"Baudrate\":\"9600\"}]";
    EXPECT_EQ(j2s_array_SerialPortParameter_with_len(json, std::strlen(json), arr, &n), -1);
    EXPECT_EQ(err.text(), text_diag(lines_of("SerialPortParameter").c2s_array, "c2s_array_SerialPortParameter",
                            "json_to_struct_SerialPortParameter failed!\n"));
}

TEST(SerialPortInterface, DocumentWithRemoveableLeavesRemovableUnchanged) {
    expect_reads_only_spelling(json_to_struct_SerialPortInterface, &SerialPortInterface::Removable, "Removable",
                               "Removeable", 3);
}

TEST(NetworkInterface, DocumentWithRemovableLeavesRemoveableUnchanged) {
    NetworkInterface r = {};
    r.Removeable = 3;
    Tree tree(cJSON_Parse("[{\"Name\":\"eth0\",\"Removable\":1}]"));
    uint32_t n = 1;
    ASSERT_EQ(c2s_array_NetworkInterface(tree.p, &r, &n), 0);
    EXPECT_STREQ(r.Name, "eth0");
    EXPECT_EQ(r.Removeable, 3);
}

TEST(SerialPortInterface, EmitterWritesRemovable) {
    expect_emits_only_spelling(struct_to_json_SerialPortInterface, &SerialPortInterface::Removable, "Removable",
                               "Removeable");
}

TEST(SerialPortNetworkTransferParameter, KeyedUpdateOfAnElementWithEnableButNoInterfaceNameIsRefused) {
    SerialPortNetworkTransferParameter arr[1] = {};
    arr[0].Enable = 0;
    std::strcpy(arr[0].InterfaceName, "COM1");
    const uint32_t n =
        refused_update_count(j2s_array_update_SerialPortNetworkTransferParameter, "SerialPortNetworkTransferParameter",
                             "[{\"Enable\":1,\"LocalPort\":4001}]", arr, 1);
    EXPECT_EQ(arr[0].Enable, 0);
    EXPECT_EQ(arr[0].LocalPort, 0u);
    EXPECT_EQ(n, 1u);
    SerialPortNetworkTransferParameterKeyword kw;
    Tree tree(cJSON_Parse("{\"Enable\":1}"));
    EXPECT_EQ(json_to_struct_SerialPortNetworkTransferParameterKeyword(&kw, tree.p), 0);
}

TEST(SerialPortNetworkTransferParameter, KeyedUpdateMatchesTheSecondFieldNotTheFirst) {
    SerialPortNetworkTransferParameter arr[2] = {};
    arr[0].Enable = 1;
    std::strcpy(arr[0].InterfaceName, "COM1");
    arr[1].Enable = 1;
    std::strcpy(arr[1].InterfaceName, "COM2");
    expect_update_applies(j2s_array_update_SerialPortNetworkTransferParameter,
                          "[{\"InterfaceName\":\"COM2\",\"Enable\":0,\"PeerAddress\":\"10.1.2.3\",\"PeerPort\":5002}]",
                          arr, 2, 1);
    EXPECT_EQ(arr[1].Enable, 0);
    EXPECT_STREQ(arr[1].PeerAddress, "10.1.2.3");
    EXPECT_EQ(arr[1].PeerPort, 5002u);
    EXPECT_EQ(arr[0].Enable, 1);
    EXPECT_STREQ(arr[0].PeerAddress, "");
}

TEST(SerialPortNetworkTransferParameter, KeywordReadersReadTheNameWhereverItStandsInTheObject) {
    Tree tree(cJSON_Parse("{\"Enable\":1,\"InterfaceName\":\"COM2\",\"LocalPort\":4002}"));
    SerialPortNetworkTransferParameterKeyword kw;
    std::memset(&kw, '#', sizeof kw);
    ASSERT_EQ(json_to_struct_SerialPortNetworkTransferParameterKeyword(&kw, tree.p), 1);
    EXPECT_STREQ(kw.InterfaceName, "COM2");
    char name[64];
    ASSERT_EQ(json_to_struct_GetSerialPortNetworkTransferParameterKeyword(name, tree.p), 1);
    EXPECT_STREQ(name, "COM2");
}

TEST(SerialPortParameter, KeyedUpdateAndArrayFilesKeepThePortSettings) {
    SerialPortParameter arr[2] = {};
    std::strcpy(arr[0].InterfaceName, "COM1");
    arr[0].Baudrate = 9600;
    std::strcpy(arr[1].InterfaceName, "COM2");
    arr[1].Baudrate = 2400;
    expect_update_applies(j2s_array_update_SerialPortParameter,
                          "[{\"InterfaceName\":\"COM1\",\"Baudrate\":115200,\"FlowControl\":\"Hardware\"}]", arr, 2, 1);
    std::string path = temp_dir() + "/serial.json";
    ASSERT_EQ(s2f_array_SerialPortParameter(path.c_str(), arr, 2), 0);
    const std::vector<SerialPortParameter> back = read_array_back(f2s_array_SerialPortParameter, path.c_str(), 2, 2);
    EXPECT_EQ(back[0].Baudrate, 115200u);
    EXPECT_STREQ(back[0].FlowControl, "Hardware");
    EXPECT_EQ(back[1].Baudrate, 2400u);
}

}  // namespace
