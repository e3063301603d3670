#include "events/event_code_dictionary.h"

namespace kova {

namespace {

struct EventCodeRow {
  const char* name;
  uint32_t code;
};

// In insertion order: where two names share a code, the first one is the
// name the code gives back. Names are the devices' own words, misspellings
// included ("FinaceScheme", "AroudWifiSearch", "DCSSwtich").
constexpr EventCodeRow kEventCodeRows[] = {
    {"TrafficFlowInfo", 0x3009},
    {"CQDTAlarm", 0x2142},
    {"CQDTInfo", 0x2141},
    {"EnclosureEvent", 0x2126},
    {"OverspeedEvent", 0x2120},
    {"DriverCheckEvent", 0x2121},
    {"GPSStatus", 0x2143},
    {"GPS", 0x2143},
    {"GuardDetect", 0x319c},
    {"GuardInfoUpdate", 0x319d},
    {"StorageLowSpace", 0x2145},
    {"StorageFailure", 0x2163},
    {"HotPlug", 0x2191},
    {"StorageNotExist", 0x3167},
    {"RecordFailure", 0x2164},
    {"TemperatureAlarm", 0x2135},
    {"FanSpeedAlarm", 0x2162},
    {"StorageBreakdown", 0x2165},
    {"VideoInInvalid", 0x2166},
    {"VehicleTurnover", 0x2167},
    {"VehicleCollision", 0x2168},
    {"VehicleConfirmInfo", 0x2169},
    {"VehicleLargeAngle", 0x2170},
    {"Invite", 0x2171},
    {"IgnoreInvite", 0x31ab},
    {"AlarmLocal", 0x2175},
    {"VideoTiming", 0x2176},
    {"UPSInfoReport", 0x2177},
    {"AudioAnomaly", 0x2178},
    {"AudioMutation", 0x2179},
    {"TyreInfoEvent", 0x2180},
    {"RegisterOff", 0x2182},
    {"AlarmFalling", 0x2184},
    {"PowerFault", 0x3172},
    {"ChassisIntruded", 0x3173},
    {"AlarmExtended", 0x3174},
    {"BatteryLowPower", 0x2134},
    {"ArmModeChange", 0x3175},
    {"BypassModeChange", 0x3176},
    {"AccessControl", 0x3181},
    {"Emergency", 0x3182},
    {"AlarmInputSourceSignal", 0x3183},
    {"AnalogAlarm", 0x3184},
    {"CoilFault", 0x2119},
    {"Hangup", 0x3189},
    {"BankCardInsert", 0x318a},
    {"SubSystemStatusChange", 0x318f},
    {"TicketStatistic", 0x3193},
    {"LoginFailure", 0x3194},
    {"ModuleLost", 0x3195},
    {"PSTNBreakLine", 0x3196},
    {"MissionConfirm", 0x3198},
    {"AnalogPulse", 0x3197},
    {"DeviceMsgNotify", 0x3199},
    {"VehicleStandingOverTime", 0x319a},
    {"EnclosureAlarm", 0x319b},
    {"RCEmergencyCall", 0x318b},
    {"AuxiliaryDevState", 0x31a3},
    {"ParkingCard", 0x31a4},
    {"NodeActive", 0x319e},
    {"VideoStatic", 0x319f},
    {"RegisterReOnline", 0x31a0},
    {"ISCSIStatus", 0x31a1},
    {"SCADADevAlarm", 0x31a2},
    {"DefenceStatusChange", 0x3192},
    {"BellStatus", 0x3191},
    {"BatteryPower", 0x3190},
    {"Fingerprint", 0x318d},
    {"OpenDoorGroup", 0x318c},
    {"CIDEvent", 0x3188},
    {"AccessSnap", 0x3186},
    {"DoorStatus", 0x3185},
    {"Duress", 0x3180},
    {"RepeatEnter", 0x3179},
    {"BreakIn", 0x3178},
    {"DoorNotClosed", 0x3177},
    {"ProfileAlarmTransmit", 0x31a5},
    {"VehicleACC", 0x31a6},
    {"HeatImagingTemper", 0x31aa},
    {"TrafficSuspiciousCar", 0x31a7},
    {"LockStatus", 0x31a8},
    {"FinaceScheme", 0x31a9},
    {"BusSharpTurn", 0x31ac},
    {"BusScram", 0x31ad},
    {"BusSharpAccelerate", 0x31ae},
    {"BusSharpDecelerate", 0x31af},
    {"AccessControlCardOperate", 0x31b0},
    {"CrossLineDetection", 0x2188},
    {"CrossRegionDetection", 0x2189},
    {"LeftDetection", 0x218a},
    {"FaceDetection", 0x218b},
    {"AlarmIPC", 0x218c},
    {"TakenAwayDetection", 0x218d},
    {"VideoAbnormalDetection", 0x218e},
    {"AudioAbnormalDetection", 0x2178},
    {"VideoMotion", 0x218f},
    {"PoliceCheck", 0x31b1},
    {"NewFile", 0x31b3},
    {"PtzDiagnoses", 0x31c9},
    {"AlarmClear", 0x3187},
    {"FireWarning", 0x31b5},
    {"RecordLoss", 0x31b6},
    {"VideoFrameLoss", 0x31b7},
    {"RecordVolumeFailure", 0x31b8},
    {"SnapUpload", 0x31b9},
    {"AudioDetect", 0x31ba},
    {"UploadPic", 0x31bb},
    {"POSManage", 0x31bc},
    {"LockBreak", 0x31c0},
    {"RemoteControlStatus", 0x31bd},
    {"PassengerCardCheck", 0x31be},
    {"SoundAlarm", 0x31bf},
    {"UploadPicFail", 0x31c5},
    {"FlowMeterInfo", 0x31c6},
    {"AroudWifiSearch", 0x31c7},
    {"WireLessDevLowPower", 0x31c8},
    {"FlashLightFault", 0x31ca},
    {"StroboscopicLightFault", 0x31cb},
    {"NumberStat", 0x31cc},
    {"VideoUnFocus", 0x31ce},
    {"BufDropFrame", 0x31cd},
    {"DCSSwtich", 0x31d0},
    {"DoubleDevVersionAbnormal", 0x31cf},
    {"RadarConnectState", 0x31d1},
    {"DefenceArmModeChange", 0x31d2},
    {"AlarmSubSystemStatus", 0x31d3},
    {"RFIDInfo", 0x31d4},
    {"SmokeDetection", 0x31d5},
    {"MoveDetection", 0x2193},
    {"BetweenRulesTemperDiffAlarm", 0x31d6},
    {"TrafficPictureAnalyse", 0x31d7},
    {"HotSpotWarning", 0x31d8},
    {"ColdSpotWarning", 0x31d9},
    {"FireWarningInfo", 0x31da},
    {"TemperStatisticsInfo", 0x3300},
    {"Oil4GFlowRate", 0x2192},
    {"WanderDetection", 0x2194},
    {"CrossFenceDetection", 0x2195},
    {"ParkingDetection", 0x2196},
    {"RioterDetection", 0x2197},
    {"FaceOverHeating", 0x31db},
    {"SensorAbnormal", 0x31dc},
    {"PatientDetection", 0x31de},
    {"RadarHighSpeed", 0x31df},
    {"PollingAlarm", 0x31e0},
    {"ShootingScoreRecognition", 0x31e5},
    {"TrafficStrobeState", 0x31e2},
    {"TelephoneCheck", 0x31e3},
    {"PasteDetection", 0x31e4},
    {"SwipeOverTime", 0x31e6},
    {"DrivingWithoutCard", 0x31e7},
};

}  // namespace

const EventCodeDictionary& EventCodeDictionary::Instance() {
  // Made once under the language's guarantee for local statics (safe when
  // several threads arrive first at once); never destroyed, so that it
  // serves until the process ends.
  static const EventCodeDictionary* const instance = new EventCodeDictionary();
  return *instance;
}

EventCodeDictionary::EventCodeDictionary() {
  for (const EventCodeRow& r : kEventCodeRows) {
    codeOfName_.emplace(r.name, r.code);
    nameOfCode_.emplace(r.code, r.name);  // keeps the first name of a code
  }
}

uint32_t EventCodeDictionary::CodeOf(const char* name) const {
  if (name == nullptr) return 0;
  const auto it = codeOfName_.find(name);
  return it == codeOfName_.end() ? 0 : it->second;
}

const char* EventCodeDictionary::NameOf(uint32_t code) const {
  const auto it = nameOfCode_.find(code);
  return it == nameOfCode_.end() ? nullptr : it->second;
}

}  // namespace kova
