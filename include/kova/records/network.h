// Records of the network configuration family: "Network", "RTSP", "DVRIP",
// "Multicast" and "G3G4AutoChange".
//
// Text fields hold text in the local code page, converted from and to the
// device's UTF-8, always NUL-terminated after a parse (cut to the capacity
// less one byte). On pack a field filled to its capacity without a
// terminator is read up to its capacity.
#ifndef KOVA_RECORDS_NETWORK_H_
#define KOVA_RECORDS_NETWORK_H_

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

// "G3G4AutoChange": automatic switching between 3G and 4G mobile networks
// (parse clears the whole buffer first and adds 4 to `retLen`: returned
// length added to).
// "Enable" as 0 or 1 (absent reads as 0); packed as a JSON boolean, true for
// any non-zero value.
typedef struct G3G4AutoChangeRecord {
  uint32_t enable;
} G3G4AutoChangeRecord;

// ---------------------------------------------------------------------------
// "Network": host name, domain, default interface and the interfaces.

#define KOVA_NETWORK_MAX_INTERFACES 32

// Link mode of "NetMode" (compared exactly). "adapt" reads as 0, and 0
// packs as "" (the device takes an empty mode as self-adapting); an unknown
// text reads as 0; a value outside 1..4 packs as "".
typedef enum NetworkLinkMode {
  KOVA_NETWORK_LINK_ADAPT = 0,
  KOVA_NETWORK_LINK_HALF_10M = 1,
  KOVA_NETWORK_LINK_FULL_10M = 2,
  KOVA_NETWORK_LINK_HALF_100M = 3,
  KOVA_NETWORK_LINK_FULL_100M = 4,
} NetworkLinkMode;

// Interface type of "Type" (compared exactly). "" and unknown texts read as
// 0; 0 and a value outside 1..3 pack as "".
typedef enum NetworkInterfaceType {
  KOVA_NETWORK_INTERFACE_UNNAMED = 0,
  KOVA_NETWORK_INTERFACE_STANDARD = 1,
  KOVA_NETWORK_INTERFACE_MANAGER = 2,
  KOVA_NETWORK_INTERFACE_EXTEND = 3,
} NetworkInterfaceType;

// One interface: a member of the table whose value is a non-empty object,
// named by the member's name. A key the device leaves out reads as 0 / "".
typedef struct NetworkInterface {
  char name[128];                // the member's name ("eth0"), at most 127 bytes kept
  char ipAddress[256];           // "IPAddress", dotted text
  char subnetMask[256];          // "SubnetMask"
  char defaultGateway[256];      // "DefaultGateway"
  int32_t dhcpEnable;            // "DhcpEnable" (boolean), 0 or 1
  int32_t dnsAutoGet;            // "DnsAutoGet" (boolean), 0 or 1: DNS servers from DHCP
  char dnsServers[2][256];       // "DnsServers": entries 0 and 1; later ones are not kept,
                                 // a null entry leaves its slot empty; pack writes both
  int32_t mtu;                   // "MTU", bytes
  char physicalAddress[256];     // "PhysicalAddress": MAC address text
  int32_t enable;                // "Enable", the device's integer, written back as one
  int32_t enableDhcpReservedIp;  // "EnableDhcpReservedIP", integer both ways
  int32_t netMode;               // "NetMode": NetworkLinkMode
  int32_t type;                  // "Type": NetworkInterfaceType
} NetworkInterface;

// Parse clears the whole buffer, needs "result" true and a capacity of at
// least one record, and reports one record whenever it succeeds (a missing
// table gives an empty record). Interfaces are taken in the JSON library's
// member order, ascending by the bytes of the name; members that are null,
// not objects or empty objects take no slot; at most 32 are kept. Pack
// writes the three texts and one member per interface of the first
// `interfaceCount` (cut to 32), every key of the interface included.
typedef struct NetworkConfig {
  char hostName[128];          // "Hostname"
  char domain[128];            // "Domain"
  char defaultInterface[128];  // "DefaultInterface": name of the default interface
  int32_t interfaceCount;      // interfaces filled, 0 to 32
  NetworkInterface interfaces[KOVA_NETWORK_MAX_INTERFACES];
} NetworkConfig;

// ---------------------------------------------------------------------------
// "RTSP": the RTSP service ports.
//
// Parse needs a capacity of one record, does not look at "result", writes
// `size` and fills the first record only when the text parses (otherwise
// the buffer is left as it was); each key is read only when present and not
// null, so a missing key (or a missing table) leaves 0. Reports one record.
// Pack writes every key; `size` is not looked at.
typedef struct RtspConfig {
  uint32_t size;             // the record's own size, written by parse
  int32_t enable;            // "Enable" (boolean), 0 or 1: RTSP service on
  int32_t port;              // "Port": RTSP port
  int32_t rtpStartPort;      // "RTP"."StartPort": first RTP port
  int32_t rtpEndPort;        // "RTP"."EndPort": last RTP port
  int32_t httpTunnelEnable;  // "RtspOverHttp"."Enable" (boolean), 0 or 1
  int32_t httpTunnelPort;    // "RtspOverHttp"."Port"
} RtspConfig;

// ---------------------------------------------------------------------------
// "DVRIP": the device's own service ports, its multicast and its
// registration with a platform.

#define KOVA_DVRIP_MAX_SERVERS 8

// One platform address of a registration block.
typedef struct DvripServerAddress {
  char address[128];  // "Address": IP address or host name
  int32_t port;       // "Port"
} DvripServerAddress;

// A registration block: "RegisterServer" and its extended form
// "RegisterServerEx" carry the same members.
typedef struct DvripRegisterServer {
  int32_t enable;       // "Enable" (boolean), 0 or 1: register at start-up
  char deviceId[64];    // "DeviceID": the name the device registers under
  int32_t serverCount;  // entries of "Servers" kept (objects only), 0 to 8
  DvripServerAddress servers[KOVA_DVRIP_MAX_SERVERS];  // "Servers", the first 8 objects
} DvripRegisterServer;

// Parse clears the whole buffer, needs "result" true and a capacity of one
// record, and reports one record whenever it succeeds (a missing table gives
// an empty record). A key the device leaves out reads as 0 / "". Pack
// writes every scalar key, and each registration block only when its
// presence flag is set, so a device's answer goes back in the form it came.
typedef struct DvripConfig {
  int32_t tcpPort;                       // "TCPPort": the device protocol's TCP port
  int32_t sslPort;                       // "SSLPort"
  int32_t udpPort;                       // "UDPPort"
  int32_t maxConnections;                // "MaxConnections": clients served at once
  int32_t mcastEnable;                   // "MCASTEnable" (boolean), 0 or 1
  int32_t mcastPort;                     // "MCASTPort"
  char mcastAddress[64];                 // "MCASTAddress": multicast group, dotted text
  char streamPolicy[32];                 // "StreamPolicy": transmission policy as the device
                                         // names it ("None", "Quality", "Fluency", ...)
  int32_t registerServerPresent;         // 1 when "RegisterServer" was an object
  DvripRegisterServer registerServer;    // "RegisterServer"
  int32_t registerServerExPresent;       // 1 when "RegisterServerEx" was an object
  DvripRegisterServer registerServerEx;  // "RegisterServerEx"
} DvripConfig;

// ---------------------------------------------------------------------------
// "Multicast": the multicast streams, by transport.

#define KOVA_MULTICAST_MAX_STREAMS 128

// One multicast stream. A key the device leaves out reads as 0 / "".
typedef struct MulticastStream {
  int32_t enable;          // "Enable" (boolean), 0 or 1
  int32_t channel;         // "Channel": video channel, from 0
  char streamType[32];     // "StreamType": "Main", "Extra1", ... as the device names it
  char multicastAddr[64];  // "MulticastAddr": multicast group, dotted text
  int32_t port;            // "Port"
  char localAddr[64];      // "LocalAddr": address of the interface the stream leaves from
} MulticastStream;

// Parse needs "result" true and a capacity of one whole record (this is a
// large record: about 43 KiB), clears that record, writes `size` and
// reports one record whenever it succeeds (a missing table gives an empty
// record). Elements of the lists that are not objects take no slot; at
// most 128 per transport are kept. Pack writes both lists with the first
// `tsCount` / `rtpCount` streams (cut to 128); `size` is not looked at.
typedef struct MulticastConfig {
  uint32_t size;                                    // the record's own size, written by parse
  int32_t tsCount;                                  // streams in `ts`, 0 to 128
  MulticastStream ts[KOVA_MULTICAST_MAX_STREAMS];   // "TS": MPEG transport stream multicast
  int32_t rtpCount;                                 // streams in `rtp`, 0 to 128
  MulticastStream rtp[KOVA_MULTICAST_MAX_STREAMS];  // "RTP": RTP multicast
} MulticastConfig;

// "AlarmServer": the alarm centre the device reports its alarms to, one
// object for the device. The buffer is cleared first; a key left out reads
// 0 or empty text.
typedef struct AlarmServerConfig {
  int32_t enable;     // "Enable" (boolean), 0 or 1
  char address[256];  // "Address": host name or address, at most 255 bytes kept
  int32_t port;       // "Port"
  char protocol[32];  // "Protocol": the centre's protocol name, kept as given (at most 31 bytes)
} AlarmServerConfig;

enum {
  KOVA_WLAN_MAX_INTERFACES = 20,
  KOVA_WLAN_ADDRESS_LEN = 40,  // an IPv4 or IPv6 address in text
};

// "EAP" of a wireless interface: the 802.1X login of an enterprise network.
typedef struct WLanEap {
  char method[32];       // "Method": "PEAP", "TLS", "TTLS", ... kept as given
  char authType[32];     // "AuthType": the inner authentication, e.g. "MSCHAPV2"
  char identity[64];     // "Identity"
  char anonymousId[64];  // "AnonymousID"
  char password[64];     // "Password"
  // 1 when the key was given (pack writes it only then).
  uint8_t methodPresent;
  uint8_t authTypePresent;
  uint8_t identityPresent;
  uint8_t anonymousIdPresent;
  uint8_t passwordPresent;
  uint8_t reserved[3];
} WLanEap;

// "Network" of a wireless interface: its addressing.
typedef struct WLanNetwork {
  int32_t dhcpEnable;                          // "DhcpEnable" (boolean), 0 or 1
  char ipAddress[KOVA_WLAN_ADDRESS_LEN];       // "IPAddress"
  char subnetMask[KOVA_WLAN_ADDRESS_LEN];      // "SubnetMask"
  char defaultGateway[KOVA_WLAN_ADDRESS_LEN];  // "DefaultGateway"
  char dnsServers[2][KOVA_WLAN_ADDRESS_LEN];   // "DnsServers": [preferred, alternate]
  // 1 when the key was given (pack writes it only then).
  uint8_t dhcpEnablePresent;
  uint8_t ipAddressPresent;
  uint8_t subnetMaskPresent;
  uint8_t defaultGatewayPresent;
  uint8_t dnsServersPresent;
  uint8_t reserved[3];
} WLanNetwork;

// One wireless interface, a member of the "WLan" object named by the
// interface ("wlan0", ...).
typedef struct WLanInterface {
  char name[32];        // the member's name, at most 31 bytes kept
  char ssid[64];        // "SSID": the network joined, at most 63 bytes kept
  char encryption[32];  // "Encryption": "On", "Off", "WEP", ... kept as given
  WLanEap eap;          // "EAP"
  WLanNetwork network;  // "Network"
  // 1 when the key was given (pack writes it only then): a device sends
  // only the members it has, and they stay absent when packed back.
  uint8_t ssidPresent;
  uint8_t encryptionPresent;
  uint8_t eapPresent;
  uint8_t networkPresent;
} WLanInterface;

// "WLan": the wireless interfaces of the device, one object whose members
// are the interfaces. A fixed 13316-byte record served by the table
// drivers: the buffer is cleared, "table" is one object (never an array),
// the returned length is added to, pack writes one object. Members that
// hold no object take no slot; interfaces beyond KOVA_WLAN_MAX_INTERFACES
// (in the order of their names) are dropped.
typedef struct WLanConfig {
  int32_t interfaceCount;  // interfaces read, 0 to KOVA_WLAN_MAX_INTERFACES; pack writes that many
  WLanInterface interfaces[KOVA_WLAN_MAX_INTERFACES];
  uint8_t reserved[13316 - 4 - KOVA_WLAN_MAX_INTERFACES * 608];  // always 0
} WLanConfig;

#ifdef __cplusplus
}
static_assert(sizeof(G3G4AutoChangeRecord) == 4, "G3G4AutoChangeRecord layout");
static_assert(offsetof(NetworkInterface, ipAddress) == 128, "NetworkInterface layout");
static_assert(offsetof(NetworkInterface, subnetMask) == 384, "NetworkInterface layout");
static_assert(offsetof(NetworkInterface, defaultGateway) == 640, "NetworkInterface layout");
static_assert(offsetof(NetworkInterface, dhcpEnable) == 896, "NetworkInterface layout");
static_assert(offsetof(NetworkInterface, dnsAutoGet) == 900, "NetworkInterface layout");
static_assert(offsetof(NetworkInterface, dnsServers) == 904, "NetworkInterface layout");
static_assert(offsetof(NetworkInterface, mtu) == 1416, "NetworkInterface layout");
static_assert(offsetof(NetworkInterface, physicalAddress) == 1420, "NetworkInterface layout");
static_assert(offsetof(NetworkInterface, enable) == 1676, "NetworkInterface layout");
static_assert(offsetof(NetworkInterface, enableDhcpReservedIp) == 1680, "NetworkInterface layout");
static_assert(offsetof(NetworkInterface, netMode) == 1684, "NetworkInterface layout");
static_assert(offsetof(NetworkInterface, type) == 1688, "NetworkInterface layout");
static_assert(sizeof(NetworkInterface) == 1692, "NetworkInterface layout");
static_assert(offsetof(NetworkConfig, domain) == 128, "NetworkConfig layout");
static_assert(offsetof(NetworkConfig, defaultInterface) == 256, "NetworkConfig layout");
static_assert(offsetof(NetworkConfig, interfaceCount) == 384, "NetworkConfig layout");
static_assert(offsetof(NetworkConfig, interfaces) == 388, "NetworkConfig layout");
static_assert(sizeof(NetworkConfig) == 388 + 32 * 1692, "NetworkConfig layout");
static_assert(offsetof(RtspConfig, enable) == 4, "RtspConfig layout");
static_assert(offsetof(RtspConfig, port) == 8, "RtspConfig layout");
static_assert(offsetof(RtspConfig, rtpStartPort) == 12, "RtspConfig layout");
static_assert(offsetof(RtspConfig, rtpEndPort) == 16, "RtspConfig layout");
static_assert(offsetof(RtspConfig, httpTunnelEnable) == 20, "RtspConfig layout");
static_assert(offsetof(RtspConfig, httpTunnelPort) == 24, "RtspConfig layout");
static_assert(sizeof(RtspConfig) == 28, "RtspConfig layout");
static_assert(sizeof(AlarmServerConfig) == 296, "AlarmServerConfig layout");
static_assert(sizeof(WLanEap) == 264, "WLanEap layout");
static_assert(sizeof(WLanNetwork) == 212, "WLanNetwork layout");
static_assert(offsetof(WLanInterface, eap) == 128, "WLanInterface layout");
static_assert(offsetof(WLanInterface, network) == 392, "WLanInterface layout");
static_assert(sizeof(WLanInterface) == 608, "WLanInterface layout");
static_assert(sizeof(WLanConfig) == 13316, "WLanConfig layout");
#endif

#endif  // KOVA_RECORDS_NETWORK_H_
