// rec_network.cpp - records of network interfaces, LAN and routes, wireless,
// and serial ports: their field tables, emitters, readers and keyword readers.
#include "s2j_internal.h"

static constexpr s2j::Field NetworkCapabilitySet_fields[] = {
    S2J_FIELD(NetworkCapabilitySet, SupportIPv6),
    S2J_FIELD(NetworkCapabilitySet, SupportBond),
    S2J_FIELD(NetworkCapabilitySet, SupportPPPoE),
    S2J_FIELD(NetworkCapabilitySet, SupportDDNS),
    S2J_FIELD(NetworkCapabilitySet, SupportNTP),
    S2J_FIELD(NetworkCapabilitySet, SupportFirewall),
    S2J_FIELD(NetworkCapabilitySet, SupportUPnP),
    S2J_FIELD(NetworkCapabilitySet, SupportIoTCloud),
};
S2J_RECORD(NetworkCapabilitySet)

static constexpr s2j::Field NetworkInterface_fields[] = {
    S2J_FIELD(NetworkInterface, Name),
    S2J_FIELD(NetworkInterface, Type),
    S2J_FIELD(NetworkInterface, Alias),
    S2J_FIELD(NetworkInterface, DeviceNodeName),
    S2J_FIELD(NetworkInterface, SupportStandardList),
    S2J_FIELD(NetworkInterface, SupportWakeOnLAN),
    S2J_FIELD(NetworkInterface, Removeable),
    S2J_FIELD(NetworkInterface, SupportHotPlug),
    S2J_FIELD(NetworkInterface, SupportPowerOverEthernet),
    S2J_FIELD(NetworkInterface, MaxReceptionRate),
    S2J_FIELD(NetworkInterface, MaxTransmissionRate),
};
S2J_RECORD(NetworkInterface)

// A live state: elements are picked out by name with the single-key reader
// only; there is no keyed update.
static constexpr s2j::Field NetworkInterfaceStatus_fields[] = {
    S2J_FIELD(NetworkInterfaceStatus, InterfaceName),
    S2J_FIELD(NetworkInterfaceStatus, IsPlugged),
    S2J_FIELD(NetworkInterfaceStatus, NetworkIsConnected),
    S2J_FIELD(NetworkInterfaceStatus, ReceptionRate),
    S2J_FIELD(NetworkInterfaceStatus, TransmissionRate),
    S2J_FIELD(NetworkInterfaceStatus, InternetIsConnected),
};
static constexpr s2j::Key NetworkInterfaceStatus_keys[] = {
    S2J_GET_KEY(NetworkInterfaceStatus, InterfaceName),
};
S2J_RECORD_GET(NetworkInterfaceStatus, InterfaceName)

// MTUSize is the one 16-bit field of the network records: emitted
// zero-extended, read as the low 16 bits of the item.
static constexpr s2j::Field NetworkLANParameter_fields[] = {
    S2J_FIELD(NetworkLANParameter, InterfaceName),
    S2J_FIELD(NetworkLANParameter, IPv4DHCPEnable),
    S2J_FIELD(NetworkLANParameter, IPv4Address),
    S2J_FIELD(NetworkLANParameter, IPv4Gateway),
    S2J_FIELD(NetworkLANParameter, IPv4Netmask),
    S2J_FIELD(NetworkLANParameter, IPv4PrimaryDNS),
    S2J_FIELD(NetworkLANParameter, IPv4SecondaryDNS),
    S2J_FIELD(NetworkLANParameter, IPv6Enable),
    S2J_FIELD(NetworkLANParameter, IPv6DHCPEnable),
    S2J_FIELD(NetworkLANParameter, IPv6Address),
    S2J_FIELD(NetworkLANParameter, IPv6Gateway),
    S2J_FIELD(NetworkLANParameter, IPv6SubnetPrefixLength),
    S2J_FIELD(NetworkLANParameter, IPv6PrimaryDNS),
    S2J_FIELD(NetworkLANParameter, IPv6SecondaryDNS),
    S2J_FIELD(NetworkLANParameter, MACAddress),
    S2J_FIELD(NetworkLANParameter, MTUSize),
};
static constexpr s2j::Key NetworkLANParameter_keys[] = {
    S2J_KEY(NetworkLANParameter, InterfaceName),
};
S2J_RECORD_KEYWORD_GET(NetworkLANParameter, InterfaceName)

static constexpr s2j::Field NetworkRouteParameter_fields[] = {
    S2J_FIELD(NetworkRouteParameter, PrimaryNetworkInterface),
};
S2J_RECORD(NetworkRouteParameter)

// The addressing fields are those of NetworkLANParameter, but MTUSize is a
// full 32-bit field here.
static constexpr s2j::Field NetworkWIFIParameter_fields[] = {
    S2J_FIELD(NetworkWIFIParameter, InterfaceName),
    S2J_FIELD(NetworkWIFIParameter, WorkMode),
    S2J_FIELD(NetworkWIFIParameter, SSID),
    S2J_FIELD(NetworkWIFIParameter, SecurityType),
    S2J_FIELD(NetworkWIFIParameter, EncryptionType),
    S2J_FIELD(NetworkWIFIParameter, SecurityKey),
    S2J_FIELD(NetworkWIFIParameter, IPv4DHCPEnable),
    S2J_FIELD(NetworkWIFIParameter, IPv4Address),
    S2J_FIELD(NetworkWIFIParameter, IPv4Gateway),
    S2J_FIELD(NetworkWIFIParameter, IPv4Netmask),
    S2J_FIELD(NetworkWIFIParameter, IPv4PrimaryDNS),
    S2J_FIELD(NetworkWIFIParameter, IPv4SecondaryDNS),
    S2J_FIELD(NetworkWIFIParameter, IPv6Enable),
    S2J_FIELD(NetworkWIFIParameter, IPv6DHCPEnable),
    S2J_FIELD(NetworkWIFIParameter, IPv6Address),
    S2J_FIELD(NetworkWIFIParameter, IPv6Gateway),
    S2J_FIELD(NetworkWIFIParameter, IPv6SubnetPrefixLength),
    S2J_FIELD(NetworkWIFIParameter, IPv6PrimaryDNS),
    S2J_FIELD(NetworkWIFIParameter, IPv6SecondaryDNS),
    S2J_FIELD(NetworkWIFIParameter, MACAddress),
    S2J_FIELD(NetworkWIFIParameter, MTUSize),
    S2J_FIELD(NetworkWIFIParameter, AccessPointSSID),
    S2J_FIELD(NetworkWIFIParameter, AccessPointSecurityType),
    S2J_FIELD(NetworkWIFIParameter, AccessPointEncryptionType),
    S2J_FIELD(NetworkWIFIParameter, AccessPointSecurityKey),
};
static constexpr s2j::Key NetworkWIFIParameter_keys[] = {
    S2J_KEY(NetworkWIFIParameter, InterfaceName),
};
S2J_RECORD_KEYWORD_GET(NetworkWIFIParameter, InterfaceName)

static constexpr s2j::Field ScanWIFIHotspotParameter_fields[] = {
    S2J_FIELD(ScanWIFIHotspotParameter, InterfaceName),
    S2J_FIELD(ScanWIFIHotspotParameter, Rescan),
};
S2J_RECORD(ScanWIFIHotspotParameter)

static constexpr s2j::Field WIFIHotspot_fields[] = {
    S2J_FIELD(WIFIHotspot, InterfaceName),
    S2J_FIELD(WIFIHotspot, SSID),
    S2J_FIELD(WIFIHotspot, MacAddress),
    S2J_FIELD(WIFIHotspot, SupportFrequencyBands),
    S2J_FIELD(WIFIHotspot, SupportSecurityTypeList),
    S2J_FIELD(WIFIHotspot, SignalStrength),
};
S2J_RECORD(WIFIHotspot)

static constexpr s2j::Field SerialPortInterface_fields[] = {
    S2J_FIELD(SerialPortInterface, Name),
    S2J_FIELD(SerialPortInterface, Type),
    S2J_FIELD(SerialPortInterface, Alias),
    S2J_FIELD(SerialPortInterface, Level),
    S2J_FIELD(SerialPortInterface, DeviceNodeName),
    S2J_FIELD(SerialPortInterface, Removable),
    S2J_FIELD(SerialPortInterface, SupportedBaudrateList),
    S2J_FIELD(SerialPortInterface, SupportedDatabitsList),
    S2J_FIELD(SerialPortInterface, SupportedStopbitsList),
    S2J_FIELD(SerialPortInterface, SupportedParityTypeList),
    S2J_FIELD(SerialPortInterface, SupportedFlowControlList),
};
S2J_RECORD(SerialPortInterface)

static constexpr s2j::Field SerialPortParameter_fields[] = {
    S2J_FIELD(SerialPortParameter, InterfaceName),
    S2J_FIELD(SerialPortParameter, Enable),
    S2J_FIELD(SerialPortParameter, Baudrate),
    S2J_FIELD(SerialPortParameter, Databits),
    S2J_FIELD(SerialPortParameter, Stopbits),
    S2J_FIELD(SerialPortParameter, ParityType),
    S2J_FIELD(SerialPortParameter, FlowControl),
};
static constexpr s2j::Key SerialPortParameter_keys[] = {
    S2J_KEY(SerialPortParameter, InterfaceName),
};
S2J_RECORD_KEYWORD_GET(SerialPortParameter, InterfaceName)

// The key is the second field: updates match the record's InterfaceName
// wherever it lies, and the keyword record holds the name alone.
static constexpr s2j::Field SerialPortNetworkTransferParameter_fields[] = {
    S2J_FIELD(SerialPortNetworkTransferParameter, Enable),
    S2J_FIELD(SerialPortNetworkTransferParameter, InterfaceName),
    S2J_FIELD(SerialPortNetworkTransferParameter, TransferMode),
    S2J_FIELD(SerialPortNetworkTransferParameter, TransferDirection),
    S2J_FIELD(SerialPortNetworkTransferParameter, LocalPort),
    S2J_FIELD(SerialPortNetworkTransferParameter, PeerAddress),
    S2J_FIELD(SerialPortNetworkTransferParameter, PeerPort),
    S2J_FIELD(SerialPortNetworkTransferParameter, UDPPairToSource),
    S2J_FIELD(SerialPortNetworkTransferParameter, TCPServerSupportMultiAccess),
};
static constexpr s2j::Key SerialPortNetworkTransferParameter_keys[] = {
    S2J_KEY(SerialPortNetworkTransferParameter, InterfaceName),
};
S2J_RECORD_KEYWORD_GET(SerialPortNetworkTransferParameter, InterfaceName)
