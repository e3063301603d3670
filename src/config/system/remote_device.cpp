// "RemoteDevice": the cameras and encoders attached to a recorder. "table"
// is an object keyed by the devices' identifiers; each member is one
// record, the identifier kept in the record.
#include <cstring>

#include "common/fields/field_table.h"
#include "common/fields/fields.h"
#include "common/json/json.h"
#include "drivers/described_record.h"
#include "drivers/response_frame.h"
#include "kova/records/system.h"

namespace {

using kova::Field;

constexpr Field kVideoInputFields[] = {
    KOVA_F(RemoteVideoInput, extraStreamUrl, "ExtraStreamUrl", kText),
    KOVA_F(RemoteVideoInput, mainStreamUrl, "MainStreamUrl", kText),
    KOVA_F(RemoteVideoInput, name, "Name", kText),
    KOVA_F(RemoteVideoInput, serviceType, "ServiceType", kText),
};

}  // namespace

namespace kova {
KOVA_DESCRIBE(RemoteVideoInput, kVideoInputFields)
}  // namespace kova

namespace {

using kova::Field;

constexpr Field kVideoInput = KOVA_ITEM_NESTED(RemoteVideoInput);

constexpr Field kRemoteDeviceFields[] = {
    KOVA_F(RemoteDeviceConfig, address, "Address", kText),
    KOVA_F(RemoteDeviceConfig, alarmInChannels, "AlarmInChannels", kInt),
    KOVA_F(RemoteDeviceConfig, audioInputChannels, "AudioInputChannels", kInt),
    KOVA_F(RemoteDeviceConfig, deviceType, "DeviceType", kText),
    KOVA_F(RemoteDeviceConfig, enable, "Enable", kBool),
    KOVA_F(RemoteDeviceConfig, encryption, "Encryption", kInt),
    KOVA_F(RemoteDeviceConfig, httpPort, "HttpPort", kInt),
    KOVA_F(RemoteDeviceConfig, httpsPort, "HttpsPort", kInt),
    KOVA_F(RemoteDeviceConfig, mac, "Mac", kText),
    KOVA_F(RemoteDeviceConfig, name, "Name", kText),
    KOVA_F(RemoteDeviceConfig, password, "Password", kText),
    KOVA_F(RemoteDeviceConfig, port, "Port", kInt),
    KOVA_F(RemoteDeviceConfig, protocolType, "ProtocolType", kText),
    KOVA_F(RemoteDeviceConfig, rtspPort, "RtspPort", kInt),
    KOVA_F(RemoteDeviceConfig, serialNo, "SerialNo", kText),
    KOVA_F(RemoteDeviceConfig, userName, "UserName", kText),
    KOVA_F(RemoteDeviceConfig, vendor, "Vendor", kText),
    KOVA_F(RemoteDeviceConfig, version, "Version", kText),
    KOVA_LIST(RemoteDeviceConfig, videoInputs, "VideoInputs", kVideoInput)
        .Count(KOVA_AT(RemoteDeviceConfig, videoInputCount), kova::CountRule::kTaken),
    KOVA_F(RemoteDeviceConfig, videoInputChannels, "VideoInputChannels", kInt),
};

}  // namespace

namespace kova {
KOVA_DESCRIBE(RemoteDeviceConfig, kRemoteDeviceFields)

namespace {

bool ParseDevice(const Json::Value& device, const StepContext& ctx, unsigned char* record) {
  RemoteDeviceConfig* r = reinterpret_cast<RemoteDeviceConfig*>(record);
  const Json::Value id(ctx.memberName != nullptr ? ctx.memberName : "");
  GetJsonString(id, r->id, sizeof r->id, 1);
  ParseFields(device, record, Description<RemoteDeviceConfig>::table);
  return true;
}

// Adds the device to the one "table" object under its identifier.
bool PackDevice(const unsigned char* record, Json::Value& table) {
  const RemoteDeviceConfig* r = reinterpret_cast<const RemoteDeviceConfig*>(record);
  Json::Value& device = SetMember(table, NameOfField(r->id, sizeof r->id).c_str());
  device = Json::Value(Json::objectValue);
  PackFields(record, device, Description<RemoteDeviceConfig>::table);
  return true;
}

void PackDeviceMembers(const unsigned char* record, ObjectText* table) {
  const RemoteDeviceConfig* r = reinterpret_cast<const RemoteDeviceConfig*>(record);
  table->OwnMember(NameOfField(r->id, sizeof r->id), record,
                   Description<RemoteDeviceConfig>::table);
}

}  // namespace

extern const ResponseFrame kRemoteDeviceFrame =
    ResponseFrame::For<RemoteDeviceConfig>(ParseDevice, Packing(PackDevice, PackDeviceMembers))
        .Walk(RecordWalk::kObjectMembers)
        .Describe(DescribedObject<RemoteDeviceConfig>::kWhole);

}  // namespace kova
