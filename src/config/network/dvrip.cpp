// "DVRIP": the device's own service ports, its multicast group and its
// registration with a platform.
#include "common/fields/field_table.h"
#include "common/json/json.h"
#include "drivers/described_record.h"
#include "drivers/response_frame.h"
#include "kova/records/network.h"

namespace kova {
namespace {

constexpr Field kServerFields[] = {
    KOVA_F(DvripServerAddress, address, "Address", kText),
    KOVA_F(DvripServerAddress, port, "Port", kInt),
};

}  // namespace

KOVA_DESCRIBE(DvripServerAddress, kServerFields)
namespace {

constexpr Field kServer = KOVA_ITEM_NESTED(DvripServerAddress);

constexpr Field kRegisterFields[] = {
    KOVA_F(DvripRegisterServer, enable, "Enable", kBool),
    KOVA_F(DvripRegisterServer, deviceId, "DeviceID", kText),
    KOVA_LIST(DvripRegisterServer, servers, "Servers", kServer)
        .Count(KOVA_AT(DvripRegisterServer, serverCount), CountRule::kTaken),
};

}  // namespace

KOVA_DESCRIBE(DvripRegisterServer, kRegisterFields)
namespace {

constexpr Field kDvripFields[] = {
    KOVA_F(DvripConfig, tcpPort, "TCPPort", kInt),
    KOVA_F(DvripConfig, sslPort, "SSLPort", kInt),
    KOVA_F(DvripConfig, udpPort, "UDPPort", kInt),
    KOVA_F(DvripConfig, maxConnections, "MaxConnections", kInt),
    KOVA_F(DvripConfig, mcastEnable, "MCASTEnable", kBool),
    KOVA_F(DvripConfig, mcastPort, "MCASTPort", kInt),
    KOVA_F(DvripConfig, mcastAddress, "MCASTAddress", kText),
    KOVA_F(DvripConfig, streamPolicy, "StreamPolicy", kText),
    // Each registration form goes back only when the device sent it.
    KOVA_NESTED(DvripConfig, registerServer, "RegisterServer")
        .Flag(KOVA_AT(DvripConfig, registerServerPresent)),
    KOVA_NESTED(DvripConfig, registerServerEx, "RegisterServerEx")
        .Flag(KOVA_AT(DvripConfig, registerServerExPresent)),
};

}  // namespace

KOVA_DESCRIBE(DvripConfig, kDvripFields)
namespace {

constexpr const Field& kWhole = DescribedObject<DvripConfig>::kWhole;

}  // namespace

extern const ResponseFrame kDvripFrame =
    DeviceObjectFrame<DvripConfig>(ParseDescribed<kWhole>, DescribedPack<kWhole>())
        .Describe(kWhole);

}  // namespace kova
