// rec_network.cpp - records of network interfaces, LAN and routes, wireless,
// and serial ports: their field tables, emitters, readers and keyword readers.
#include "s2j_record_defs.h"

static constexpr s2j::Field NetworkCapabilitySet_fields[] = {
    S2J_FIELD(NetworkCapabilitySet, SupportIPv6, "1 when the device supports IPv6, 0 when not"),
    S2J_FIELD(NetworkCapabilitySet, SupportBond, "1 when interfaces can be bonded into one, 0 when not"),
    S2J_FIELD(NetworkCapabilitySet, SupportPPPoE, "1 when the device supports PPPoE, 0 when not"),
    S2J_FIELD(NetworkCapabilitySet, SupportDDNS, "1 when the device supports dynamic DNS, 0 when not"),
    S2J_FIELD(NetworkCapabilitySet, SupportNTP, "1 when the device can set its clock by NTP, 0 when not"),
    S2J_FIELD(NetworkCapabilitySet, SupportFirewall, "1 when the device has a firewall, 0 when not"),
    S2J_FIELD(NetworkCapabilitySet, SupportUPnP, "1 when the device supports UPnP, 0 when not"),
    S2J_FIELD(NetworkCapabilitySet, SupportIoTCloud,
              "1 when the device can connect to an IoT cloud service, 0 when not"),
};
S2J_RECORD(NetworkCapabilitySet)

static constexpr s2j::Field NetworkInterface_fields[] = {
    S2J_FIELD(NetworkInterface, Name, "interface name"),
    S2J_FIELD(NetworkInterface, Type, "interface kind, as text"),
    S2J_FIELD(NetworkInterface, Alias, "display name"),
    S2J_FIELD(NetworkInterface, DeviceNodeName, "the operating system's name of the interface"),
    S2J_FIELD(NetworkInterface, SupportStandardList, "list held as text; not interpreted"),
    S2J_FIELD(NetworkInterface, SupportWakeOnLAN, "1 when the interface can wake the device, 0 when not"),
    S2J_FIELD(NetworkInterface, Removeable,
              "1 when the interface can be removed, 0 when not; the key is spelled \"Removeable\", the only spelling "
              "written and read"),
    S2J_FIELD(NetworkInterface, SupportHotPlug,
              "1 when the interface can be plugged in while the device runs, 0 when not"),
    S2J_FIELD(NetworkInterface, SupportPowerOverEthernet,
              "1 when the interface supports power over Ethernet, 0 when not"),
    S2J_FIELD(NetworkInterface, MaxReceptionRate, "greatest receiving rate of the interface"),
    S2J_FIELD(NetworkInterface, MaxTransmissionRate, "greatest sending rate of the interface"),
};
S2J_RECORD(NetworkInterface)

// A live state: elements are picked out by name with the single-key reader
// only; there is no keyed update.
static constexpr s2j::Field NetworkInterfaceStatus_fields[] = {
    S2J_FIELD(NetworkInterfaceStatus, InterfaceName, "name of the interface the record is for; key field"),
    S2J_FIELD(NetworkInterfaceStatus, IsPlugged, "1 when a cable is plugged into the interface, 0 when not"),
    S2J_FIELD(NetworkInterfaceStatus, NetworkIsConnected, "1 when the interface has a link to the network, 0 when not"),
    S2J_FIELD(NetworkInterfaceStatus, ReceptionRate, "receiving rate now, in the unit of \"MaxReceptionRate\""),
    S2J_FIELD(NetworkInterfaceStatus, TransmissionRate, "sending rate now, in the unit of \"MaxTransmissionRate\""),
    S2J_FIELD(NetworkInterfaceStatus, InternetIsConnected,
              "1 when the Internet can be reached through the interface, 0 when not"),
};
static constexpr s2j::Key NetworkInterfaceStatus_keys[] = {
    S2J_GET_KEY(NetworkInterfaceStatus, InterfaceName),
};
S2J_RECORD_GET(NetworkInterfaceStatus, InterfaceName)

// MTUSize is the one 16-bit field of the network records: emitted
// zero-extended, read as the low 16 bits of the item.
static constexpr s2j::Field NetworkLANParameter_fields[] = {
    S2J_FIELD(NetworkLANParameter, InterfaceName, "name of the interface the record is for; key field"),
    S2J_FIELD(NetworkLANParameter, IPv4DHCPEnable,
              "1 takes the IPv4 settings from DHCP, 0 uses the fields that follow"),
    S2J_FIELD(NetworkLANParameter, IPv4Address, "dotted quad as text"),
    S2J_FIELD(NetworkLANParameter, IPv4Gateway, "IPv4 gateway address in dotted decimal"),
    S2J_FIELD(NetworkLANParameter, IPv4Netmask, "IPv4 network mask in dotted decimal"),
    S2J_FIELD(NetworkLANParameter, IPv4PrimaryDNS, "first IPv4 DNS server address"),
    S2J_FIELD(NetworkLANParameter, IPv4SecondaryDNS, "second IPv4 DNS server address"),
    S2J_FIELD(NetworkLANParameter, IPv6Enable, "1 enables IPv6 on the interface, 0 disables it"),
    S2J_FIELD(NetworkLANParameter, IPv6DHCPEnable,
              "1 takes the IPv6 settings from DHCPv6, 0 uses the fields that follow"),
    S2J_FIELD(NetworkLANParameter, IPv6Address, "IPv6 address as text"),
    S2J_FIELD(NetworkLANParameter, IPv6Gateway, "IPv6 gateway address as text"),
    S2J_FIELD(NetworkLANParameter, IPv6SubnetPrefixLength, "length of the IPv6 subnet prefix, in bits"),
    S2J_FIELD(NetworkLANParameter, IPv6PrimaryDNS, "first IPv6 DNS server address"),
    S2J_FIELD(NetworkLANParameter, IPv6SecondaryDNS, "second IPv6 DNS server address"),
    S2J_FIELD(NetworkLANParameter, MACAddress, "MAC address as text"),
    S2J_FIELD(NetworkLANParameter, MTUSize,
              "largest packet the interface sends (MTU), in bytes; a 16-bit unsigned field, directly after "
              "\"MACAddress\""),
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
    S2J_FIELD(NetworkWIFIParameter, InterfaceName, "name of the interface the record is for; key field"),
    S2J_FIELD(NetworkWIFIParameter, WorkMode, "client or access point; value not interpreted"),
    S2J_FIELD(NetworkWIFIParameter, SSID, "network joined as a client"),
    S2J_FIELD(NetworkWIFIParameter, SecurityType, "security type as a code; its values are not interpreted"),
    S2J_FIELD(NetworkWIFIParameter, EncryptionType, "encryption type as a code; its values are not interpreted"),
    S2J_FIELD(NetworkWIFIParameter, SecurityKey, "network key; carried like any other text field"),
    S2J_FIELD(NetworkWIFIParameter, IPv4DHCPEnable,
              "1 takes the IPv4 settings from DHCP, 0 uses the fields that follow"),
    S2J_FIELD(NetworkWIFIParameter, IPv4Address, "IPv4 address in dotted decimal"),
    S2J_FIELD(NetworkWIFIParameter, IPv4Gateway, "IPv4 gateway address in dotted decimal"),
    S2J_FIELD(NetworkWIFIParameter, IPv4Netmask, "IPv4 network mask in dotted decimal"),
    S2J_FIELD(NetworkWIFIParameter, IPv4PrimaryDNS, "first IPv4 DNS server address"),
    S2J_FIELD(NetworkWIFIParameter, IPv4SecondaryDNS, "second IPv4 DNS server address"),
    S2J_FIELD(NetworkWIFIParameter, IPv6Enable, "1 enables IPv6 on the interface, 0 disables it"),
    S2J_FIELD(NetworkWIFIParameter, IPv6DHCPEnable,
              "1 takes the IPv6 settings from DHCPv6, 0 uses the fields that follow"),
    S2J_FIELD(NetworkWIFIParameter, IPv6Address, "IPv6 address as text"),
    S2J_FIELD(NetworkWIFIParameter, IPv6Gateway, "IPv6 gateway address as text"),
    S2J_FIELD(NetworkWIFIParameter, IPv6SubnetPrefixLength, "length of the IPv6 subnet prefix, in bits"),
    S2J_FIELD(NetworkWIFIParameter, IPv6PrimaryDNS, "first IPv6 DNS server address"),
    S2J_FIELD(NetworkWIFIParameter, IPv6SecondaryDNS, "second IPv6 DNS server address"),
    S2J_FIELD(NetworkWIFIParameter, MACAddress, "hardware address of the wireless interface as text"),
    S2J_FIELD(NetworkWIFIParameter, MTUSize,
              "largest packet the interface sends, in bytes; a full 32-bit field here, while \"MTUSize\" of "
              "NetworkLANParameter is 16 bits wide"),
    S2J_FIELD(NetworkWIFIParameter, AccessPointSSID, "network offered when the interface works as access point"),
    S2J_FIELD(NetworkWIFIParameter, AccessPointSecurityType,
              "access point security type as a code; its values are not interpreted"),
    S2J_FIELD(NetworkWIFIParameter, AccessPointEncryptionType,
              "access point encryption type as a code; its values are not interpreted"),
    S2J_FIELD(NetworkWIFIParameter, AccessPointSecurityKey, "key of the offered network"),
};
static constexpr s2j::Key NetworkWIFIParameter_keys[] = {
    S2J_KEY(NetworkWIFIParameter, InterfaceName),
};
S2J_RECORD_KEYWORD_GET(NetworkWIFIParameter, InterfaceName)

static constexpr s2j::Field ScanWIFIHotspotParameter_fields[] = {
    S2J_FIELD(ScanWIFIHotspotParameter, InterfaceName, "interface that scans"),
    S2J_FIELD(ScanWIFIHotspotParameter, Rescan, "1 scans anew, 0 reports the last result"),
};
S2J_RECORD(ScanWIFIHotspotParameter)

static constexpr s2j::Field WIFIHotspot_fields[] = {
    S2J_FIELD(WIFIHotspot, InterfaceName, "interface that saw the network"),
    S2J_FIELD(WIFIHotspot, SSID, "network name of the hotspot"),
    S2J_FIELD(WIFIHotspot, MacAddress,
              "the access point's MAC address; the key is written \"MacAddress\" here, not \"MACAddress\" as in the "
              "other network records, and each record keeps its own form"),
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
    S2J_FIELD(SerialPortInterface, Removable,
              "1 when the port can be removed, 0 when not; spelled \"Removable\" here, while NetworkInterface uses "
              "\"Removeable\"; each record keeps its own key"),
    S2J_FIELD(SerialPortInterface, SupportedBaudrateList, "list held as text; not interpreted"),
    S2J_FIELD(SerialPortInterface, SupportedDatabitsList, "list held as text"),
    S2J_FIELD(SerialPortInterface, SupportedStopbitsList, "list held as text"),
    S2J_FIELD(SerialPortInterface, SupportedParityTypeList, "list held as text"),
    S2J_FIELD(SerialPortInterface, SupportedFlowControlList, "list held as text"),
};
S2J_RECORD(SerialPortInterface)

static constexpr s2j::Field SerialPortParameter_fields[] = {
    S2J_FIELD(SerialPortParameter, InterfaceName, "name of the interface the record is for; key field"),
    S2J_FIELD(SerialPortParameter, Enable, "1 enables the port, 0 disables it"),
    S2J_FIELD(SerialPortParameter, Baudrate, "line speed in bits per second"),
    S2J_FIELD(SerialPortParameter, Databits, "data bits per character"),
    S2J_FIELD(SerialPortParameter, Stopbits, "stop bits per character"),
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
    S2J_FIELD(SerialPortNetworkTransferParameter, Enable,
              "1 enables carrying the port's data over the network, 0 disables it"),
    S2J_FIELD(SerialPortNetworkTransferParameter, InterfaceName, "name of the interface the record is for; key field"),
    S2J_FIELD(SerialPortNetworkTransferParameter, TransferMode,
              "transfer mode as a code; its values are not interpreted"),
    S2J_FIELD(SerialPortNetworkTransferParameter, TransferDirection,
              "transfer direction as a code; its values are not interpreted"),
    S2J_FIELD(SerialPortNetworkTransferParameter, LocalPort, "network port of the device for the link"),
    S2J_FIELD(SerialPortNetworkTransferParameter, PeerAddress, "peer host or address as text"),
    S2J_FIELD(SerialPortNetworkTransferParameter, PeerPort, "network port of the peer for the link"),
    S2J_FIELD(SerialPortNetworkTransferParameter, UDPPairToSource,
              "1 pairs the UDP link with the source of the data received, 0 does not"),
    S2J_FIELD(SerialPortNetworkTransferParameter, TCPServerSupportMultiAccess,
              "1 lets several TCP clients connect at once, 0 only one"),
};
static constexpr s2j::Key SerialPortNetworkTransferParameter_keys[] = {
    S2J_KEY(SerialPortNetworkTransferParameter, InterfaceName),
};
S2J_RECORD_KEYWORD_GET(SerialPortNetworkTransferParameter, InterfaceName)
