// "WLan": the wireless interfaces, one object whose members are named by
// the interface. A fixed 13316-byte record served by the table drivers.
#include <string>

#include "common/fields/field_table.h"
#include "common/fields/field_text.h"
#include "common/fields/fields.h"
#include "common/json/json.h"
#include "drivers/response_frame.h"
#include "kova/records/network.h"

namespace kova {

constexpr Field kWLanEapFields[] = {
    KOVA_F(WLanEap, method, "Method", kText).Flag(KOVA_AT(WLanEap, methodPresent)),
    KOVA_F(WLanEap, authType, "AuthType", kText).Flag(KOVA_AT(WLanEap, authTypePresent)),
    KOVA_F(WLanEap, identity, "Identity", kText).Flag(KOVA_AT(WLanEap, identityPresent)),
    KOVA_F(WLanEap, anonymousId, "AnonymousID", kText).Flag(KOVA_AT(WLanEap, anonymousIdPresent)),
    KOVA_F(WLanEap, password, "Password", kText).Flag(KOVA_AT(WLanEap, passwordPresent)),
};
KOVA_DESCRIBE(WLanEap, kWLanEapFields)

constexpr Field kWLanDnsServer = KOVA_ITEM(char[KOVA_WLAN_ADDRESS_LEN], kTextRaw);

constexpr Field kWLanNetworkFields[] = {
    KOVA_F(WLanNetwork, dhcpEnable, "DhcpEnable", kBool)
        .Flag(KOVA_AT(WLanNetwork, dhcpEnablePresent)),
    KOVA_F(WLanNetwork, ipAddress, "IPAddress", kTextRaw)
        .Flag(KOVA_AT(WLanNetwork, ipAddressPresent)),
    KOVA_F(WLanNetwork, subnetMask, "SubnetMask", kTextRaw)
        .Flag(KOVA_AT(WLanNetwork, subnetMaskPresent)),
    KOVA_F(WLanNetwork, defaultGateway, "DefaultGateway", kTextRaw)
        .Flag(KOVA_AT(WLanNetwork, defaultGatewayPresent)),
    // Both slots are written back: [preferred, alternate].
    KOVA_LIST(WLanNetwork, dnsServers, "DnsServers", kWLanDnsServer)
        .KeepSlots()
        .Flag(KOVA_AT(WLanNetwork, dnsServersPresent)),
};
KOVA_DESCRIBE(WLanNetwork, kWLanNetworkFields)

namespace {

constexpr Field kWLanInterfaceFields[] = {
    KOVA_F(WLanInterface, ssid, "SSID", kText).Flag(KOVA_AT(WLanInterface, ssidPresent)),
    KOVA_F(WLanInterface, encryption, "Encryption", kText)
        .Flag(KOVA_AT(WLanInterface, encryptionPresent)),
    KOVA_NESTED(WLanInterface, eap, "EAP").Flag(KOVA_AT(WLanInterface, eapPresent)),
    KOVA_NESTED(WLanInterface, network, "Network").Flag(KOVA_AT(WLanInterface, networkPresent)),
};
constexpr FieldTable kWLanInterfaceTable = KOVA_TABLE(kWLanInterfaceFields);

// Interfaces are the table's members that hold an object, named by the
// member, in the order of their names.
void ParseWLan(const Json::Value& table, WLanConfig* config) {
  uint32_t n = 0;
  ForEachMember(table, [config, &n](const std::string& name, const Json::Value& value) {
    if (!value.isObject()) return true;
    WLanInterface& wif = config->interfaces[n++];
    GetJsonString(Json::Value(name), wif.name, sizeof wif.name, 1);
    ParseFields(value, &wif, kWLanInterfaceFields);
    return n < KOVA_WLAN_MAX_INTERFACES;
  });
  config->interfaceCount = static_cast<int32_t>(n);
}

bool ParseWLanStep(const Json::Value& table, const StepContext& /*ctx*/, unsigned char* record) {
  ParseWLan(table, reinterpret_cast<WLanConfig*>(record));
  return true;
}

bool PackWLanStep(const unsigned char* record, Json::Value& out) {
  const WLanConfig* config = reinterpret_cast<const WLanConfig*>(record);
  out = Json::Value(Json::objectValue);
  const uint32_t n = CutCount(config->interfaceCount, KOVA_WLAN_MAX_INTERFACES);
  for (uint32_t i = 0; i < n; ++i) {
    const WLanInterface& wif = config->interfaces[i];
    Json::Value& obj = SetMember(out, NameOfField(wif.name, sizeof wif.name).c_str());
    obj = Json::Value(Json::objectValue);
    PackFields(&wif, obj, kWLanInterfaceFields);
  }
  return true;
}

bool PackWLanText(const unsigned char* record, TextSink* out) {
  const WLanConfig* config = reinterpret_cast<const WLanConfig*>(record);
  ObjectText interfaces;
  const uint32_t n = CutCount(config->interfaceCount, KOVA_WLAN_MAX_INTERFACES);
  for (uint32_t i = 0; i < n; ++i) {
    const WLanInterface& wif = config->interfaces[i];
    interfaces.OwnMember(NameOfField(wif.name, sizeof wif.name), &wif, kWLanInterfaceTable);
  }
  interfaces.Write(out);
  return true;
}

}  // namespace

extern const ResponseFrame kWLanFrame = DriverFrame<WLanConfig>(
    ParseWLanStep, Packing(PackWLanStep, PackWLanText), {0, false, true, false});

}  // namespace kova
