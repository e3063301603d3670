// The 40 configurations served by the table drivers, listed once: the last
// names of both dispatch lists and the driver bindings are all made from
// this list, in this order (which is the order of both lists and must not
// change).
//
// X(name, parse routine, pack routine, record size, expected depth minus
//   one, parse array allowed, parse zero-fill, pack array allowed)
// A null routine means the configuration's record is not laid out yet.
#ifndef KOVA_API_DRIVER_NAMES_H_
#define KOVA_API_DRIVER_NAMES_H_

// clang-format off
#define KOVA_DRIVER_NAMES(X) \
  X("ThermographyOptions",       nullptr,                    nullptr,                      21444, 1, 1, 1, 1) \
  X("ThermometryRule",           nullptr,                    nullptr,                    1267716, 1, 1, 1, 1) \
  X("TemperatureStatistics",     nullptr,                    nullptr,                       8964, 1, 1, 1, 1) \
  X("HeatImagingThermometry",    nullptr,                    nullptr,                        104, 0, 0, 1, 0) \
  X("TrafficSnapMosaic",         nullptr,                    nullptr,                         12, 0, 1, 1, 1) \
  X("SceneSnapShotWithRule",     nullptr,                    nullptr,                      41220, 0, 0, 1, 0) \
  X("TSPoint",                   nullptr,                    nullptr,                         48, 0, 0, 1, 0) \
  X("VTHNumberInfo",             nullptr,                    nullptr,                        232, 0, 0, 1, 0) \
  X("GPS",                       nullptr,                    nullptr,                       2116, 0, 0, 1, 0) \
  X("VTOBasicInfo",              nullptr,                    nullptr,                        112, 0, 0, 1, 0) \
  X("ShortcutCall",              nullptr,                    nullptr,                         24, 0, 0, 0, 0) \
  X("GPSLocationVersion",        nullptr,                    nullptr,                          4, 0, 0, 1, 0) \
  X("ParkingSpaceAccessFilter",  nullptr,                    nullptr,                      98312, 0, 0, 1, 0) \
  X("WorkTime",                  nullptr,                    nullptr,                         36, 0, 0, 1, 0) \
  X("ParkingSpaceLightGroup",    nullptr,                    nullptr,                       2148, 0, 0, 1, 0) \
  X("CustomAudio",               nullptr,                    nullptr,                        260, 0, 0, 0, 0) \
  X("SheenRadar",                nullptr,                    nullptr,                        324, 0, 1, 1, 1) \
  X("LightingSchedule",          nullptr,                    nullptr,                       1348, 0, 1, 1, 1) \
  X("AroudWifiSearch",           nullptr,                    nullptr,                          8, 0, 0, 1, 0) \
  X("G3G4AutoChange",            ParseG3G4AutoChangeRecord,  PackG3G4AutoChangeRecord,         4, 0, 0, 1, 0) \
  X("CheckCode",                 nullptr,                    nullptr,                        328, 0, 0, 1, 0) \
  X("VSP_SCYDKD",                nullptr,                    nullptr,                        200, 0, 0, 1, 0) \
  X("PowerUp",                   nullptr,                    nullptr,                         24, 0, 1, 1, 1) \
  X("VideoInDayNight",           ParseVideoInDayNightRecord, PackVideoInDayNightRecord,       48, 1, 1, 1, 1) \
  X("AudioMixChannel",           nullptr,                    nullptr,                       2116, 0, 0, 1, 0) \
  X("AudioTouch",                nullptr,                    nullptr,                        264, 0, 0, 1, 0) \
  X("VideoMosaic",               nullptr,                    nullptr,                         76, 0, 1, 1, 1) \
  X("VTHRemoteIPCInfo",          nullptr,                    nullptr,                      14852, 0, 0, 1, 0) \
  X("WLan",                      nullptr,                    nullptr,                      13316, 0, 0, 1, 0) \
  X("PSTNPersonServer",          nullptr,                    nullptr,                       1288, 0, 0, 1, 0) \
  X("ArmLink",                   nullptr,                    nullptr,                         24, 0, 0, 1, 0) \
  X("CabinLedTimeSchedule",      nullptr,                    nullptr,                          4, 0, 0, 1, 0) \
  X("PSTNTestPlan",              nullptr,                    nullptr,                         44, 0, 0, 1, 0) \
  X("DefenceArmMode",            ParseDefenceArmModeRecord,  PackDefenceArmModeRecord,         4, 0, 0, 1, 0) \
  X("SensorMode",                nullptr,                    nullptr,                          4, 0, 0, 1, 0) \
  X("MasterSlaveGroup",          nullptr,                    nullptr,                       1420, 0, 1, 1, 1) \
  X("MasterSlaveGlobal",         nullptr,                    nullptr,                        152, 0, 1, 1, 1) \
  X("AlarmLamp",                 ParseAlarmLampRecord,       PackAlarmLampRecord,              4, 0, 0, 1, 0) \
  X("RadarSpeedMeasure",         nullptr,                    nullptr,                          8, 0, 0, 1, 0) \
  X("LaserDistMeasure",          nullptr,                    nullptr,                         36, 0, 0, 1, 0)
// clang-format on

#endif  // KOVA_API_DRIVER_NAMES_H_
