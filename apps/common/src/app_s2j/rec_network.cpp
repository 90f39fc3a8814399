// rec_network.cpp - records of network interfaces, LAN and routes, wireless,
// and serial ports: their field tables, emitters, readers and keyword readers.
#include "s2j_internal.h"

static constexpr s2j::Field NetworkCapabilitySet_fields[] = {
    S2J_FIELD(NetworkCapabilitySet, SupportIPv6, "flag"),
    S2J_FIELD(NetworkCapabilitySet, SupportBond, "flag"),
    S2J_FIELD(NetworkCapabilitySet, SupportPPPoE, "flag"),
    S2J_FIELD(NetworkCapabilitySet, SupportDDNS, "flag"),
    S2J_FIELD(NetworkCapabilitySet, SupportNTP, "flag"),
    S2J_FIELD(NetworkCapabilitySet, SupportFirewall, "flag"),
    S2J_FIELD(NetworkCapabilitySet, SupportUPnP, "flag"),
    S2J_FIELD(NetworkCapabilitySet, SupportIoTCloud, "flag"),
};
S2J_RECORD(NetworkCapabilitySet)

static constexpr s2j::Field NetworkInterface_fields[] = {
    S2J_FIELD(NetworkInterface, Name, "interface name"),
    S2J_FIELD(NetworkInterface, Type, "interface kind, as text"),
    S2J_FIELD(NetworkInterface, Alias, "display name"),
    S2J_FIELD(NetworkInterface, DeviceNodeName, "the operating system's name of the interface"),
    S2J_FIELD(NetworkInterface, SupportStandardList, "list held as text; not interpreted"),
    S2J_FIELD(NetworkInterface, SupportWakeOnLAN, "flag"),
    S2J_FIELD(NetworkInterface, Removeable, "flag; the key is spelled \"Removeable\" on purpose and must stay so"),
    S2J_FIELD(NetworkInterface, SupportHotPlug, "flag"),
    S2J_FIELD(NetworkInterface, SupportPowerOverEthernet, "flag"),
    S2J_FIELD(NetworkInterface, MaxReceptionRate, ""),
    S2J_FIELD(NetworkInterface, MaxTransmissionRate, ""),
};
S2J_RECORD(NetworkInterface)

// A live state: elements are picked out by name with the single-key reader
// only; there is no keyed update.
static constexpr s2j::Field NetworkInterfaceStatus_fields[] = {
    S2J_FIELD(NetworkInterfaceStatus, InterfaceName, "key field"),
    S2J_FIELD(NetworkInterfaceStatus, IsPlugged, "flag: cable present"),
    S2J_FIELD(NetworkInterfaceStatus, NetworkIsConnected, "flag"),
    S2J_FIELD(NetworkInterfaceStatus, ReceptionRate, ""),
    S2J_FIELD(NetworkInterfaceStatus, TransmissionRate, ""),
    S2J_FIELD(NetworkInterfaceStatus, InternetIsConnected, "flag"),
};
static constexpr s2j::Key NetworkInterfaceStatus_keys[] = {
    S2J_GET_KEY(NetworkInterfaceStatus, InterfaceName),
};
S2J_RECORD_GET(NetworkInterfaceStatus, InterfaceName)

// MTUSize is the one 16-bit field of the network records: emitted
// zero-extended, read as the low 16 bits of the item.
static constexpr s2j::Field NetworkLANParameter_fields[] = {
    S2J_FIELD(NetworkLANParameter, InterfaceName, "key field"),
    S2J_FIELD(NetworkLANParameter, IPv4DHCPEnable, "flag"),
    S2J_FIELD(NetworkLANParameter, IPv4Address, "dotted quad as text"),
    S2J_FIELD(NetworkLANParameter, IPv4Gateway, ""),
    S2J_FIELD(NetworkLANParameter, IPv4Netmask, ""),
    S2J_FIELD(NetworkLANParameter, IPv4PrimaryDNS, ""),
    S2J_FIELD(NetworkLANParameter, IPv4SecondaryDNS, ""),
    S2J_FIELD(NetworkLANParameter, IPv6Enable, "flag"),
    S2J_FIELD(NetworkLANParameter, IPv6DHCPEnable, "flag"),
    S2J_FIELD(NetworkLANParameter, IPv6Address, ""),
    S2J_FIELD(NetworkLANParameter, IPv6Gateway, ""),
    S2J_FIELD(NetworkLANParameter, IPv6SubnetPrefixLength, ""),
    S2J_FIELD(NetworkLANParameter, IPv6PrimaryDNS, ""),
    S2J_FIELD(NetworkLANParameter, IPv6SecondaryDNS, ""),
    S2J_FIELD(NetworkLANParameter, MACAddress, "MAC address as text"),
    S2J_FIELD(NetworkLANParameter, MTUSize, "a 16-bit unsigned field, directly after \"MACAddress\""),
};
static constexpr s2j::Key NetworkLANParameter_keys[] = {
    S2J_KEY(NetworkLANParameter, InterfaceName),
};
S2J_RECORD_KEYWORD_GET(NetworkLANParameter, InterfaceName)

static constexpr s2j::Field NetworkRouteParameter_fields[] = {
    S2J_FIELD(NetworkRouteParameter, PrimaryNetworkInterface, "name of the interface that carries the default route"),
};
S2J_RECORD(NetworkRouteParameter)

// The addressing fields are those of NetworkLANParameter, but MTUSize is a
// full 32-bit field here.
static constexpr s2j::Field NetworkWIFIParameter_fields[] = {
    S2J_FIELD(NetworkWIFIParameter, InterfaceName, "key field"),
    S2J_FIELD(NetworkWIFIParameter, WorkMode, "client or access point; value not interpreted"),
    S2J_FIELD(NetworkWIFIParameter, SSID, "network joined as a client"),
    S2J_FIELD(NetworkWIFIParameter, SecurityType, "value not interpreted"),
    S2J_FIELD(NetworkWIFIParameter, EncryptionType, "value not interpreted"),
    S2J_FIELD(NetworkWIFIParameter, SecurityKey, "network key; carried like any other text field"),
    S2J_FIELD(NetworkWIFIParameter, IPv4DHCPEnable, "flag"),
    S2J_FIELD(NetworkWIFIParameter, IPv4Address, ""),
    S2J_FIELD(NetworkWIFIParameter, IPv4Gateway, ""),
    S2J_FIELD(NetworkWIFIParameter, IPv4Netmask, ""),
    S2J_FIELD(NetworkWIFIParameter, IPv4PrimaryDNS, ""),
    S2J_FIELD(NetworkWIFIParameter, IPv4SecondaryDNS, ""),
    S2J_FIELD(NetworkWIFIParameter, IPv6Enable, "flag"),
    S2J_FIELD(NetworkWIFIParameter, IPv6DHCPEnable, "flag"),
    S2J_FIELD(NetworkWIFIParameter, IPv6Address, ""),
    S2J_FIELD(NetworkWIFIParameter, IPv6Gateway, ""),
    S2J_FIELD(NetworkWIFIParameter, IPv6SubnetPrefixLength, ""),
    S2J_FIELD(NetworkWIFIParameter, IPv6PrimaryDNS, ""),
    S2J_FIELD(NetworkWIFIParameter, IPv6SecondaryDNS, ""),
    S2J_FIELD(NetworkWIFIParameter, MACAddress, ""),
    S2J_FIELD(NetworkWIFIParameter, MTUSize, "a full 32-bit field here, unlike \"MTUSize\" of NetworkLANParameter, which is 16 bits wide; the difference is intended"),
    S2J_FIELD(NetworkWIFIParameter, AccessPointSSID, "network offered when the interface works as access point"),
    S2J_FIELD(NetworkWIFIParameter, AccessPointSecurityType, "value not interpreted"),
    S2J_FIELD(NetworkWIFIParameter, AccessPointEncryptionType, "value not interpreted"),
    S2J_FIELD(NetworkWIFIParameter, AccessPointSecurityKey, "key of the offered network"),
};
static constexpr s2j::Key NetworkWIFIParameter_keys[] = {
    S2J_KEY(NetworkWIFIParameter, InterfaceName),
};
S2J_RECORD_KEYWORD_GET(NetworkWIFIParameter, InterfaceName)

static constexpr s2j::Field ScanWIFIHotspotParameter_fields[] = {
    S2J_FIELD(ScanWIFIHotspotParameter, InterfaceName, "interface that scans"),
    S2J_FIELD(ScanWIFIHotspotParameter, Rescan, "flag: scan anew rather than report the last result"),
};
S2J_RECORD(ScanWIFIHotspotParameter)

static constexpr s2j::Field WIFIHotspot_fields[] = {
    S2J_FIELD(WIFIHotspot, InterfaceName, "interface that saw the network"),
    S2J_FIELD(WIFIHotspot, SSID, ""),
    S2J_FIELD(WIFIHotspot, MacAddress, "the access point's MAC address; the key is written \"MacAddress\" here, not \"MACAddress\" as in the other network records, and each record keeps its own form"),
    S2J_FIELD(WIFIHotspot, SupportFrequencyBands, "list held as text; not interpreted"),
    S2J_FIELD(WIFIHotspot, SupportSecurityTypeList, "list held as text; not interpreted"),
    S2J_FIELD(WIFIHotspot, SignalStrength, "signed, so that negative signal levels are carried"),
};
S2J_RECORD(WIFIHotspot)

static constexpr s2j::Field SerialPortInterface_fields[] = {
    S2J_FIELD(SerialPortInterface, Name, "port name"),
    S2J_FIELD(SerialPortInterface, Type, "port kind, as text"),
    S2J_FIELD(SerialPortInterface, Alias, "display name"),
    S2J_FIELD(SerialPortInterface, Level, "electrical level, as text"),
    S2J_FIELD(SerialPortInterface, DeviceNodeName, "the operating system's device name of the port"),
    S2J_FIELD(SerialPortInterface, Removable, "flag; spelled \"Removable\" here, while NetworkInterface uses \"Removeable\"; each record keeps its own key"),
    S2J_FIELD(SerialPortInterface, SupportedBaudrateList, "list held as text; not interpreted"),
    S2J_FIELD(SerialPortInterface, SupportedDatabitsList, "list held as text"),
    S2J_FIELD(SerialPortInterface, SupportedStopbitsList, "list held as text"),
    S2J_FIELD(SerialPortInterface, SupportedParityTypeList, "list held as text"),
    S2J_FIELD(SerialPortInterface, SupportedFlowControlList, "list held as text"),
};
S2J_RECORD(SerialPortInterface)

static constexpr s2j::Field SerialPortParameter_fields[] = {
    S2J_FIELD(SerialPortParameter, InterfaceName, "key field"),
    S2J_FIELD(SerialPortParameter, Enable, "flag"),
    S2J_FIELD(SerialPortParameter, Baudrate, ""),
    S2J_FIELD(SerialPortParameter, Databits, ""),
    S2J_FIELD(SerialPortParameter, Stopbits, ""),
    S2J_FIELD(SerialPortParameter, ParityType, "parity, as text"),
    S2J_FIELD(SerialPortParameter, FlowControl, "flow control, as text"),
};
static constexpr s2j::Key SerialPortParameter_keys[] = {
    S2J_KEY(SerialPortParameter, InterfaceName),
};
S2J_RECORD_KEYWORD_GET(SerialPortParameter, InterfaceName)

// The key is the second field: updates match the record's InterfaceName
// wherever it lies, and the keyword record holds the name alone.
static constexpr s2j::Field SerialPortNetworkTransferParameter_fields[] = {
    S2J_FIELD(SerialPortNetworkTransferParameter, Enable, "flag"),
    S2J_FIELD(SerialPortNetworkTransferParameter, InterfaceName, "key field"),
    S2J_FIELD(SerialPortNetworkTransferParameter, TransferMode, "value not interpreted"),
    S2J_FIELD(SerialPortNetworkTransferParameter, TransferDirection, "value not interpreted"),
    S2J_FIELD(SerialPortNetworkTransferParameter, LocalPort, ""),
    S2J_FIELD(SerialPortNetworkTransferParameter, PeerAddress, "peer host or address as text"),
    S2J_FIELD(SerialPortNetworkTransferParameter, PeerPort, ""),
    S2J_FIELD(SerialPortNetworkTransferParameter, UDPPairToSource, "flag"),
    S2J_FIELD(SerialPortNetworkTransferParameter, TCPServerSupportMultiAccess, "flag"),
};
static constexpr s2j::Key SerialPortNetworkTransferParameter_keys[] = {
    S2J_KEY(SerialPortNetworkTransferParameter, InterfaceName),
};
S2J_RECORD_KEYWORD_GET(SerialPortNetworkTransferParameter, InterfaceName)
