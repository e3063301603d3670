// The configurations served by the table drivers, with the settings each
// passes to them. Same order as the last names of both name lists.
#include "api/dispatch.h"
#include "api/translators.h"

namespace kova {

// clang-format off
const DriverBinding kDriverBindings[] = {
    // name                      parse routine          pack routine          record  depth-1 array zero  pack array
    {"ThermographyOptions",      nullptr,               nullptr,                21444, 1, 1, 1, 1},
    {"ThermometryRule",          nullptr,               nullptr,              1267716, 1, 1, 1, 1},
    {"TemperatureStatistics",    nullptr,               nullptr,                 8964, 1, 1, 1, 1},
    {"HeatImagingThermometry",   nullptr,               nullptr,                  104, 0, 0, 1, 0},
    {"TrafficSnapMosaic",        nullptr,               nullptr,                   12, 0, 1, 1, 1},
    {"SceneSnapShotWithRule",    nullptr,               nullptr,                41220, 0, 0, 1, 0},
    {"TSPoint",                  nullptr,               nullptr,                   48, 0, 0, 1, 0},
    {"VTHNumberInfo",            nullptr,               nullptr,                  232, 0, 0, 1, 0},
    {"GPS",                      nullptr,               nullptr,                 2116, 0, 0, 1, 0},
    {"VTOBasicInfo",             nullptr,               nullptr,                  112, 0, 0, 1, 0},
    {"ShortcutCall",             nullptr,               nullptr,                   24, 0, 0, 0, 0},
    {"GPSLocationVersion",       nullptr,               nullptr,                    4, 0, 0, 1, 0},
    {"ParkingSpaceAccessFilter", nullptr,               nullptr,                98312, 0, 0, 1, 0},
    {"WorkTime",                 nullptr,               nullptr,                   36, 0, 0, 1, 0},
    {"ParkingSpaceLightGroup",   nullptr,               nullptr,                 2148, 0, 0, 1, 0},
    {"CustomAudio",              nullptr,               nullptr,                  260, 0, 0, 0, 0},
    {"SheenRadar",               nullptr,               nullptr,                  324, 0, 1, 1, 1},
    {"LightingSchedule",         nullptr,               nullptr,                 1348, 0, 1, 1, 1},
    {"AroudWifiSearch",          nullptr,               nullptr,                    8, 0, 0, 1, 0},
    {"G3G4AutoChange",           ParseG3G4AutoChangeRecord, PackG3G4AutoChangeRecord,       4, 0, 0, 1, 0},
    {"CheckCode",                nullptr,               nullptr,                  328, 0, 0, 1, 0},
    {"VSP_SCYDKD",               nullptr,               nullptr,                  200, 0, 0, 1, 0},
    {"PowerUp",                  nullptr,               nullptr,                   24, 0, 1, 1, 1},
    {"VideoInDayNight",          ParseVideoInDayNightRecord, PackVideoInDayNightRecord,  48, 1, 1, 1, 1},
    {"AudioMixChannel",          nullptr,               nullptr,                 2116, 0, 0, 1, 0},
    {"AudioTouch",               nullptr,               nullptr,                  264, 0, 0, 1, 0},
    {"VideoMosaic",              nullptr,               nullptr,                   76, 0, 1, 1, 1},
    {"VTHRemoteIPCInfo",         nullptr,               nullptr,                14852, 0, 0, 1, 0},
    {"WLan",                     nullptr,               nullptr,                13316, 0, 0, 1, 0},
    {"PSTNPersonServer",         nullptr,               nullptr,                 1288, 0, 0, 1, 0},
    {"ArmLink",                  nullptr,               nullptr,                   24, 0, 0, 1, 0},
    {"CabinLedTimeSchedule",     nullptr,               nullptr,                    4, 0, 0, 1, 0},
    {"PSTNTestPlan",             nullptr,               nullptr,                   44, 0, 0, 1, 0},
    {"DefenceArmMode",           ParseDefenceArmModeRecord, PackDefenceArmModeRecord,       4, 0, 0, 1, 0},
    {"SensorMode",               nullptr,               nullptr,                    4, 0, 0, 1, 0},
    {"MasterSlaveGroup",         nullptr,               nullptr,                 1420, 0, 1, 1, 1},
    {"MasterSlaveGlobal",        nullptr,               nullptr,                  152, 0, 1, 1, 1},
    {"AlarmLamp",                ParseAlarmLampRecord,  PackAlarmLampRecord,        4, 0, 0, 1, 0},
    {"RadarSpeedMeasure",        nullptr,               nullptr,                    8, 0, 0, 1, 0},
    {"LaserDistMeasure",         nullptr,               nullptr,                   36, 0, 0, 1, 0},
};
// clang-format on

const size_t kDriverNameCount = sizeof(kDriverBindings) / sizeof(kDriverBindings[0]);

}  // namespace kova
