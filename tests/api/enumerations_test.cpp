// Every enumeration text against the public constant it stands for, both
// ways: the text read from a device answer stores the header's value, and
// that value packs back as the text. A round trip cannot see two names
// swapped or a table shifted by one; this table can.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <string>
#include <vector>

#include "kova/kova.h"
#include "kova/records/alarm.h"
#include "kova/records/network.h"
#include "kova/records/storage.h"

namespace {

struct EnumText {
  const char* name;   // configuration
  const char* table;  // the answer's table, with %s where the member goes
  size_t recordSize;  // bytes of the record
  size_t offset;      // of the member in the record
  const char* key;    // JSON key of the member
  const char* text;   // the device's text
  int32_t value;      // the public constant
};

constexpr size_t kSenseMethod = offsetof(AlarmInRecord, senseMethod);
constexpr size_t kEnableControl = offsetof(AlarmInRecord, enableControl);
constexpr size_t kDefenceArea = offsetof(AlarmInRecord, defenceAreaType);
constexpr size_t kSensorType = offsetof(AlarmInRecord, sensorType);
constexpr size_t kNetMode = offsetof(NetworkConfig, interfaces[0].netMode);
constexpr size_t kInterfaceType = offsetof(NetworkConfig, interfaces[0].type);
constexpr size_t kNasProtocol = offsetof(NasConfig, servers[0].protocol);
constexpr size_t kNasEncoding = offsetof(NasConfig, servers[0].characterEncoding);
constexpr size_t kNasCloud = offsetof(NasConfig, servers[0].cloudProtocol);

const char kAlarm[] = "{%s}";
const char kNetwork[] = R"({"DefaultInterface":"eth0","eth0":{%s}})";
const char kNas[] = R"([{"Enable":true,%s}])";

// clang-format off
const EnumText kTexts[] = {
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kSensorType, "SensorType", "NC", KOVA_SENSOR_NC},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kSensorType, "SensorType", "NO", KOVA_SENSOR_NO},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kSenseMethod, "SenseMethod", "DoorMagnetism", KOVA_SENSE_DOOR_MAGNETISM},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kSenseMethod, "SenseMethod", "PassiveInfrared", KOVA_SENSE_PASSIVE_INFRARED},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kSenseMethod, "SenseMethod", "GasSensor", KOVA_SENSE_GAS},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kSenseMethod, "SenseMethod", "SmokingSensor", KOVA_SENSE_SMOKING},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kSenseMethod, "SenseMethod", "WaterSensor", KOVA_SENSE_WATER},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kSenseMethod, "SenseMethod", "ActiveInfrared", KOVA_SENSE_ACTIVE_INFRARED},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kSenseMethod, "SenseMethod", "GlassSensor", KOVA_SENSE_GLASS},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kSenseMethod, "SenseMethod", "EmergencySwitch", KOVA_SENSE_EMERGENCY_SWITCH},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kSenseMethod, "SenseMethod", "ShockSensor", KOVA_SENSE_SHOCK},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kSenseMethod, "SenseMethod", "DoubleMethod", KOVA_SENSE_DOUBLE_METHOD},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kSenseMethod, "SenseMethod", "ThreeMethod", KOVA_SENSE_THREE_METHOD},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kSenseMethod, "SenseMethod", "TempSensor", KOVA_SENSE_TEMPERATURE},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kSenseMethod, "SenseMethod", "HumiditySensor", KOVA_SENSE_HUMIDITY},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kSenseMethod, "SenseMethod", "WindSensor", KOVA_SENSE_WIND},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kSenseMethod, "SenseMethod", "CallButton", KOVA_SENSE_CALL_BUTTON},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kSenseMethod, "SenseMethod", "GasPressure", KOVA_SENSE_GAS_PRESSURE},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kSenseMethod, "SenseMethod", "GasConcentration", KOVA_SENSE_GAS_CONCENTRATION},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kSenseMethod, "SenseMethod", "GasFlow", KOVA_SENSE_GAS_FLOW},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kSenseMethod, "SenseMethod", "Oil", KOVA_SENSE_OIL},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kSenseMethod, "SenseMethod", "MileageSensor", KOVA_SENSE_MILEAGE},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kSenseMethod, "SenseMethod", "OtherSensor", KOVA_SENSE_OTHER},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kEnableControl, "EnableControl", "Normal", KOVA_ENABLE_CONTROL_NORMAL},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kEnableControl, "EnableControl", "EnableAlways", KOVA_ENABLE_CONTROL_ENABLE_ALWAYS},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kEnableControl, "EnableControl", "DisableOnce", KOVA_ENABLE_CONTROL_DISABLE_ONCE},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kEnableControl, "EnableControl", "DisableAlways", KOVA_ENABLE_CONTROL_DISABLE_ALWAYS},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kDefenceArea, "DefenceAreaType", "Intime", KOVA_DEFENCE_AREA_INTIME},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kDefenceArea, "DefenceAreaType", "Delay", KOVA_DEFENCE_AREA_DELAY},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kDefenceArea, "DefenceAreaType", "Fullday", KOVA_DEFENCE_AREA_FULLDAY},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kDefenceArea, "DefenceAreaType", "Follow", KOVA_DEFENCE_AREA_FOLLOW},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kDefenceArea, "DefenceAreaType", "Medical", KOVA_DEFENCE_AREA_MEDICAL},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kDefenceArea, "DefenceAreaType", "Panic", KOVA_DEFENCE_AREA_PANIC},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kDefenceArea, "DefenceAreaType", "Fire", KOVA_DEFENCE_AREA_FIRE},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kDefenceArea, "DefenceAreaType", "FulldaySound", KOVA_DEFENCE_AREA_FULLDAY_SOUND},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kDefenceArea, "DefenceAreaType", "FulldaySlient", KOVA_DEFENCE_AREA_FULLDAY_SILENT},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kDefenceArea, "DefenceAreaType", "Entrance1", KOVA_DEFENCE_AREA_ENTRANCE1},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kDefenceArea, "DefenceAreaType", "Entrance2", KOVA_DEFENCE_AREA_ENTRANCE2},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kDefenceArea, "DefenceAreaType", "Inside", KOVA_DEFENCE_AREA_INSIDE},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kDefenceArea, "DefenceAreaType", "Outside", KOVA_DEFENCE_AREA_OUTSIDE},
    {"Alarm", kAlarm, sizeof(AlarmInRecord), kDefenceArea, "DefenceAreaType", "PeopleDetect", KOVA_DEFENCE_AREA_PEOPLE_DETECT},
    {"Network", kNetwork, sizeof(NetworkConfig), kNetMode, "NetMode", "half10M", KOVA_NETWORK_LINK_HALF_10M},
    {"Network", kNetwork, sizeof(NetworkConfig), kNetMode, "NetMode", "full10M", KOVA_NETWORK_LINK_FULL_10M},
    {"Network", kNetwork, sizeof(NetworkConfig), kNetMode, "NetMode", "half100M", KOVA_NETWORK_LINK_HALF_100M},
    {"Network", kNetwork, sizeof(NetworkConfig), kNetMode, "NetMode", "full100M", KOVA_NETWORK_LINK_FULL_100M},
    {"Network", kNetwork, sizeof(NetworkConfig), kInterfaceType, "Type", "Standard", KOVA_NETWORK_INTERFACE_STANDARD},
    {"Network", kNetwork, sizeof(NetworkConfig), kInterfaceType, "Type", "Manager", KOVA_NETWORK_INTERFACE_MANAGER},
    {"Network", kNetwork, sizeof(NetworkConfig), kInterfaceType, "Type", "Extend", KOVA_NETWORK_INTERFACE_EXTEND},
    {"NAS", kNas, sizeof(NasConfig), kNasProtocol, "Protocol", "FTP", KOVA_NAS_FTP},
    {"NAS", kNas, sizeof(NasConfig), kNasProtocol, "Protocol", "SMB", KOVA_NAS_SMB},
    {"NAS", kNas, sizeof(NasConfig), kNasProtocol, "Protocol", "ISCSI", KOVA_NAS_ISCSI},
    {"NAS", kNas, sizeof(NasConfig), kNasProtocol, "Protocol", "NFS", KOVA_NAS_NFS},
    {"NAS", kNas, sizeof(NasConfig), kNasEncoding, "CharacterEncoding", "UTF-8", KOVA_NAS_UTF8},
    {"NAS", kNas, sizeof(NasConfig), kNasEncoding, "CharacterEncoding", "GB2312", KOVA_NAS_GB2312},
    {"NAS", kNas, sizeof(NasConfig), kNasCloud, "CloudProtocol", "BaiduCloud", KOVA_NAS_BAIDU_CLOUD},
    {"NAS", kNas, sizeof(NasConfig), kNasCloud, "CloudProtocol", "GoogleDrive", KOVA_NAS_GOOGLE_DRIVE},
    {"NAS", kNas, sizeof(NasConfig), kNasCloud, "CloudProtocol", "Dropbox", KOVA_NAS_DROPBOX},
};
// clang-format on

std::string Fill(const char* format, const std::string& member) {
  std::string out = format;
  out.replace(out.find("%s"), 2, member);
  return out;
}

TEST(Enumerations, EveryTextStoresItsConstantAndPacksBack) {
  for (const EnumText& e : kTexts) {
    const std::string member = "\"" + std::string(e.key) + "\":\"" + e.text + "\"";
    const std::string json =
        R"({"result":true,"params":{"channel":0,"table":)" + Fill(e.table, member) + "}}";
    std::vector<unsigned char> record(e.recordSize);
    uint32_t ret = 0;
    ASSERT_EQ(1, KOVA_ParseData(e.name, json.c_str(), record.data(),
                                static_cast<uint32_t>(record.size()), &ret))
        << e.text;
    int32_t stored = 0;
    std::memcpy(&stored, record.data() + e.offset, sizeof stored);
    EXPECT_EQ(e.value, stored) << e.name << " " << e.key << " " << e.text;

    std::vector<char> text(1 << 20);
    ASSERT_EQ(1, KOVA_PacketData(e.name, record.data(), static_cast<uint32_t>(record.size()),
                                 text.data(), static_cast<uint32_t>(text.size())));
    const std::string packed = "\"" + std::string(e.key) + "\" : \"" + e.text + "\"";
    EXPECT_NE(std::string::npos, std::string(text.data()).find(packed))
        << e.name << " " << e.key << " " << e.text;
  }
}

}  // namespace
