// Every enumeration text against the public constant it stands for, both
// ways: the text read from a device answer stores the header's value, and
// that value packs back as the text. A round trip cannot see two names
// swapped or a table shifted by one; this table can.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "kova/kova.h"
#include "kova/records/access.h"
#include "kova/records/alarm.h"
#include "kova/records/analyse_setup.h"
#include "kova/records/media.h"
#include "kova/records/network.h"
#include "kova/records/ptz_motion.h"
#include "kova/records/storage.h"
#include "kova/records/thermal.h"

namespace {

struct EnumMember {
  const char* name;   // configuration
  const char* table;  // the answer's table, with %s where the member goes
  size_t recordSize;  // bytes of the record
  size_t offset;      // of the member in the record
  const char* key;    // JSON key of the member
  std::vector<std::pair<const char*, int32_t>> texts;  // the device's text, the public constant
};

const char kAlarm[] = "{%s}";
const char kNetwork[] = R"({"DefaultInterface":"eth0","eth0":{%s}})";
const char kNas[] = R"([{"Enable":true,%s}])";
const char kAlarmDoor[] = R"({"EventHandler":{"AccessControls":[{%s}]}})";
const char kObject[] = "{%s}";
const char kChannels[] = "[{%s}]";
const char kMainVideo[] = R"({"MainFormat":[{"Video":{%s}}]})";
const char kMainAudio[] = R"({"MainFormat":[{"Audio":{%s}}]})";
const char kScene[] = R"({"Scene":{%s}})";

// The record's size and the member's offset in it.
#define AT(Rec, member) sizeof(Rec), offsetof(Rec, member)

// clang-format off
const EnumMember kMembers[] = {
    {"Alarm", kAlarm, AT(AlarmInRecord, sensorType), "SensorType", {
        {"NC", KOVA_SENSOR_NC}, {"NO", KOVA_SENSOR_NO}}},
    {"Alarm", kAlarm, AT(AlarmInRecord, senseMethod), "SenseMethod", {
        {"DoorMagnetism", KOVA_SENSE_DOOR_MAGNETISM},
        {"PassiveInfrared", KOVA_SENSE_PASSIVE_INFRARED}, {"GasSensor", KOVA_SENSE_GAS},
        {"SmokingSensor", KOVA_SENSE_SMOKING}, {"WaterSensor", KOVA_SENSE_WATER},
        {"ActiveInfrared", KOVA_SENSE_ACTIVE_INFRARED}, {"GlassSensor", KOVA_SENSE_GLASS},
        {"EmergencySwitch", KOVA_SENSE_EMERGENCY_SWITCH}, {"ShockSensor", KOVA_SENSE_SHOCK},
        {"DoubleMethod", KOVA_SENSE_DOUBLE_METHOD}, {"ThreeMethod", KOVA_SENSE_THREE_METHOD},
        {"TempSensor", KOVA_SENSE_TEMPERATURE}, {"HumiditySensor", KOVA_SENSE_HUMIDITY},
        {"WindSensor", KOVA_SENSE_WIND}, {"CallButton", KOVA_SENSE_CALL_BUTTON},
        {"GasPressure", KOVA_SENSE_GAS_PRESSURE},
        {"GasConcentration", KOVA_SENSE_GAS_CONCENTRATION}, {"GasFlow", KOVA_SENSE_GAS_FLOW},
        {"Oil", KOVA_SENSE_OIL}, {"MileageSensor", KOVA_SENSE_MILEAGE},
        {"OtherSensor", KOVA_SENSE_OTHER}}},
    {"Alarm", kAlarm, AT(AlarmInRecord, enableControl), "EnableControl", {
        {"Normal", KOVA_ENABLE_CONTROL_NORMAL}, {"EnableAlways", KOVA_ENABLE_CONTROL_ENABLE_ALWAYS},
        {"DisableOnce", KOVA_ENABLE_CONTROL_DISABLE_ONCE},
        {"DisableAlways", KOVA_ENABLE_CONTROL_DISABLE_ALWAYS}}},
    {"Alarm", kAlarm, AT(AlarmInRecord, defenceAreaType), "DefenceAreaType", {
        {"Intime", KOVA_DEFENCE_AREA_INTIME}, {"Delay", KOVA_DEFENCE_AREA_DELAY},
        {"Fullday", KOVA_DEFENCE_AREA_FULLDAY}, {"Follow", KOVA_DEFENCE_AREA_FOLLOW},
        {"Medical", KOVA_DEFENCE_AREA_MEDICAL}, {"Panic", KOVA_DEFENCE_AREA_PANIC},
        {"Fire", KOVA_DEFENCE_AREA_FIRE}, {"FulldaySound", KOVA_DEFENCE_AREA_FULLDAY_SOUND},
        {"FulldaySlient", KOVA_DEFENCE_AREA_FULLDAY_SILENT},
        {"Entrance1", KOVA_DEFENCE_AREA_ENTRANCE1}, {"Entrance2", KOVA_DEFENCE_AREA_ENTRANCE2},
        {"Inside", KOVA_DEFENCE_AREA_INSIDE}, {"Outside", KOVA_DEFENCE_AREA_OUTSIDE},
        {"PeopleDetect", KOVA_DEFENCE_AREA_PEOPLE_DETECT}}},
    {"Alarm", kAlarmDoor, AT(AlarmInRecord, eventHandler.accessControlOperations[0]), "Operation", {
        {"Auto", KOVA_DOOR_AUTO}, {"Open", KOVA_DOOR_OPEN}, {"Close", KOVA_DOOR_CLOSE},
        {"OpenAlways", KOVA_DOOR_OPEN_ALWAYS}, {"CloseAlways", KOVA_DOOR_CLOSE_ALWAYS}}},
    {"Network", kNetwork, AT(NetworkConfig, interfaces[0].netMode), "NetMode", {
        {"half10M", KOVA_NETWORK_LINK_HALF_10M}, {"full10M", KOVA_NETWORK_LINK_FULL_10M},
        {"half100M", KOVA_NETWORK_LINK_HALF_100M}, {"full100M", KOVA_NETWORK_LINK_FULL_100M}}},
    {"Network", kNetwork, AT(NetworkConfig, interfaces[0].type), "Type", {
        {"Standard", KOVA_NETWORK_INTERFACE_STANDARD}, {"Manager", KOVA_NETWORK_INTERFACE_MANAGER},
        {"Extend", KOVA_NETWORK_INTERFACE_EXTEND}}},
    {"NAS", kNas, AT(NasConfig, servers[0].protocol), "Protocol", {
        {"FTP", KOVA_NAS_FTP}, {"SMB", KOVA_NAS_SMB}, {"ISCSI", KOVA_NAS_ISCSI},
        {"NFS", KOVA_NAS_NFS}}},
    {"NAS", kNas, AT(NasConfig, servers[0].characterEncoding), "CharacterEncoding", {
        {"UTF-8", KOVA_NAS_UTF8}, {"GB2312", KOVA_NAS_GB2312}}},
    {"NAS", kNas, AT(NasConfig, servers[0].cloudProtocol), "CloudProtocol", {
        {"BaiduCloud", KOVA_NAS_BAIDU_CLOUD}, {"GoogleDrive", KOVA_NAS_GOOGLE_DRIVE},
        {"Dropbox", KOVA_NAS_DROPBOX}}},
    {"VideoAnalyseGlobal", kScene, AT(VideoAnalyseGlobalConfig, scene.depth), "Depth", {
        {"Normal", KOVA_DEPTH_NORMAL}, {"Far", KOVA_DEPTH_FAR}, {"Middle", KOVA_DEPTH_MIDDLE},
        {"Near", KOVA_DEPTH_NEAR}}},
    // The tables below number their texts in the record's own comments.
    {"Encode", kMainVideo, AT(EncodeConfig, mainFormat[0].video.compression), "Compression", {
        {"MPEG4", 0}, {"MS-MPEG4", 1}, {"MPEG2", 2}, {"MPEG1", 3}, {"H.263", 4}, {"MJPG", 5},
        {"FCC-MPEG4", 6}, {"H.264", 7}, {"H.265", 8}, {"SVAC", 9}}},
    {"Encode", kMainVideo, AT(EncodeConfig, mainFormat[0].video.profile), "Profile", {
        {"Baseline", 1}, {"Main", 2}, {"Extended", 3}, {"High", 4}}},
    {"Encode", kMainAudio, AT(EncodeConfig, mainFormat[0].audio.compression), "Compression", {
        {"G.711A", 0}, {"PCM", 1}, {"G.711Mu", 2}, {"AMR", 3}, {"AAC", 4}}},
    {"EncodeAdapt", kChannels, AT(EncodeAdaptConfig, fluencyMode), "FluencyMode", {
        {"Fast", 1}, {"Slow", 2}, {"Sync", 3}, {"Slowsync", 4}}},
    {"AccessControlGeneral", kObject, AT(AccessGeneralRecord, accessProperty), "AccessProperty", {
        {"bidirect", 1}, {"unidirect", 2}}},
    {"PowerUp", kObject, AT(PowerUpConfig, function), "Function", {
        {"Auto", 0}, {"Preset", 1}, {"Tour", 2}, {"ScanTour", 3}, {"Scan", 4}, {"Pattern", 5}}},
    {"HeatImagingThermometry", kObject, AT(HeatImagingThermometryConfig, temperatureUnit),
        "TemperatureUnit", {{"Centigrade", 0}, {"Fahrenheit", 1}}},
};
// clang-format on

#undef AT

TEST(Enumerations, EveryTextStoresItsConstantAndPacksBack) {
  for (const EnumMember& e : kMembers) {
    for (const auto& t : e.texts) {
      const std::string what = std::string(e.name) + " " + e.key + " " + t.first;
      std::string table = e.table;
      table.replace(table.find("%s"), 2, "\"" + std::string(e.key) + "\":\"" + t.first + "\"");
      const std::string json = R"({"result":true,"params":{"channel":0,"table":)" + table + "}}";
      std::vector<unsigned char> record(e.recordSize);
      ASSERT_EQ(1, KOVA_ParseData(e.name, json.c_str(), record.data(),
                                  static_cast<uint32_t>(record.size()), nullptr))
          << what;
      int32_t stored = 0;
      std::memcpy(&stored, record.data() + e.offset, sizeof stored);
      EXPECT_EQ(t.second, stored) << what;

      std::vector<char> text(1 << 20);
      ASSERT_EQ(1, KOVA_PacketData(e.name, record.data(), static_cast<uint32_t>(record.size()),
                                   text.data(), static_cast<uint32_t>(text.size())));
      const std::string packed = "\"" + std::string(e.key) + "\" : \"" + t.first + "\"";
      EXPECT_NE(std::string::npos, std::string(text.data()).find(packed)) << what;
    }
  }
}

}  // namespace
