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
#endif

#endif  // KOVA_RECORDS_NETWORK_H_
