// "Network": host name, domain, default interface and the per-interface
// addresses, DNS servers, link mode and interface type of a device.
#include "kova/records/network.h"

#include <cstddef>
#include <cstdint>
#include <string>

#include "common/fields/field_table.h"
#include "common/fields/field_text.h"
#include "common/fields/fields.h"
#include "common/json/json.h"
#include "drivers/described_record.h"
#include "drivers/response_frame.h"

namespace kova {

namespace {

// Index 0 has no name in either table on purpose: "adapt" (and "" for the
// type) reads as 0 like any unknown text, and 0 packs as "".
constexpr const char* kLinkModeNames[] = {nullptr, "half10M", "full10M", "half100M", "full100M"};
constexpr EnumNames kLinkModes = EnumNames::Of(kLinkModeNames).Exact().UnknownAs(0);
constexpr const char* kTypeNames[] = {nullptr, "Standard", "Manager", "Extend"};
constexpr EnumNames kTypes = EnumNames::Of(kTypeNames).Exact().UnknownAs(0);

constexpr Field kDnsServer = KOVA_ITEM(char[256], kText);

constexpr Field kInterfaceFields[] = {
    KOVA_F(NetworkInterface, ipAddress, "IPAddress", kText),
    KOVA_F(NetworkInterface, subnetMask, "SubnetMask", kText),
    KOVA_F(NetworkInterface, defaultGateway, "DefaultGateway", kText),
    KOVA_F(NetworkInterface, dhcpEnable, "DhcpEnable", kBool),
    KOVA_F(NetworkInterface, dnsAutoGet, "DnsAutoGet", kBool),
    // Entry i to slot i (a null entry leaves its slot empty); pack writes both slots.
    KOVA_LIST(NetworkInterface, dnsServers, "DnsServers", kDnsServer).KeepSlots(),
    KOVA_F(NetworkInterface, mtu, "MTU", kInt),
    KOVA_F(NetworkInterface, physicalAddress, "PhysicalAddress", kText),
    KOVA_F(NetworkInterface, enable, "Enable", kInt),
    KOVA_F(NetworkInterface, enableDhcpReservedIp, "EnableDhcpReservedIP", kInt),
    KOVA_ENUM(NetworkInterface, netMode, "NetMode", kLinkModes),
    KOVA_ENUM(NetworkInterface, type, "Type", kTypes),
};

constexpr FieldTable kInterfaceTable = KOVA_TABLE(kInterfaceFields);

// Interfaces are the table's members that hold a non-empty object, named by
// the member; the three text members and anything else take no slot.
void ParseInterfaces(const Json::Value& table, unsigned char* record, const Field&) {
  NetworkConfig* config = reinterpret_cast<NetworkConfig*>(record);
  int32_t n = 0;
  ForEachMember(table, [config, &n](const std::string& name, const Json::Value& value) {
    if (!value.isObject() || Count(value) == 0) return true;
    NetworkInterface& nif = config->interfaces[n++];
    GetJsonString(Json::Value(name), nif.name, sizeof nif.name, 1);
    ParseFields(value, &nif, kInterfaceFields);
    return n < KOVA_NETWORK_MAX_INTERFACES;
  });
  config->interfaceCount = n;
}

void PackInterfaces(const unsigned char* record, Json::Value& table, const Field&) {
  const NetworkConfig* config = reinterpret_cast<const NetworkConfig*>(record);
  const uint32_t n = CutCount(config->interfaceCount, KOVA_NETWORK_MAX_INTERFACES);
  for (uint32_t i = 0; i < n; ++i) {
    const NetworkInterface& nif = config->interfaces[i];
    Json::Value& obj = SetMember(table, NameOfField(nif.name, sizeof nif.name).c_str());
    obj = Json::Value(Json::objectValue);
    PackFields(&nif, obj, kInterfaceFields);
  }
}

void PackInterfacesText(const unsigned char* record, const Field&, ObjectText* table) {
  const NetworkConfig* config = reinterpret_cast<const NetworkConfig*>(record);
  const uint32_t n = CutCount(config->interfaceCount, KOVA_NETWORK_MAX_INTERFACES);
  for (uint32_t i = 0; i < n; ++i) {
    const NetworkInterface& nif = config->interfaces[i];
    table->OwnMember(NameOfField(nif.name, sizeof nif.name), &nif, kInterfaceTable);
  }
}

constexpr Field kNetworkFields[] = {
    KOVA_F(NetworkConfig, hostName, "Hostname", kText),
    KOVA_F(NetworkConfig, domain, "Domain", kText),
    KOVA_F(NetworkConfig, defaultInterface, "DefaultInterface", kText),
    KOVA_CUSTOM(NetworkConfig, interfaces, nullptr, ParseInterfaces, PackInterfaces)
        .PackText(PackInterfacesText),
};

}  // namespace

KOVA_DESCRIBE(NetworkConfig, kNetworkFields)
namespace {

constexpr const Field& kWhole = DescribedObject<NetworkConfig>::kWhole;

}  // namespace

extern const ResponseFrame kNetworkFrame =
    DeviceObjectFrame<NetworkConfig>(ParseDescribed<kWhole>, DescribedPack<kWhole>())
        .Describe(kWhole);

}  // namespace kova
