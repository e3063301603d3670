// The parse names of the exported function KOVA_ParseData, in dispatch order.
// An entry binds the translator and the size of one record (0 where the
// name has no translator yet). Every name with both directions is also in the pack list.
#include "api/dispatch.h"
#include "api/driver_names.h"
#include "api/translators.h"

namespace kova {

// A driver name's entry: bound through its driver binding, not here.
#define KOVA_DRIVER_NAME_ENTRY(name, ...) {name, nullptr, 0},

const ParseName kParseNames[] = {
    {"Encode", ParseEncode, sizeof(EncodeConfig)},
    {"Record", nullptr, 0},
    {"Alarm", ParseAlarm, sizeof(AlarmInRecord)},
    {"NetAlarm", ParseNetAlarm, sizeof(NetAlarmRecord)},
    {"MotionDetect", ParseMotionDetect, sizeof(MotionDetectRecord)},
    {"LossDetect", ParseLossDetect, sizeof(LossDetectRecord)},
    {"BlindDetect", ParseBlindDetect, sizeof(BlindDetectRecord)},
    {"StorageNotExist", ParseSystemEvent, sizeof(SystemEventRecord)},
    {"StorageFailure", ParseSystemEvent, sizeof(SystemEventRecord)},
    {"StorageLowSpace", ParseStorageLowSpace, sizeof(StorageLowSpaceRecord)},
    {"NetAbort", ParseSystemEvent, sizeof(SystemEventRecord)},
    {"IPConflict", ParseSystemEvent, sizeof(SystemEventRecord)},
    {"SnapInfo", nullptr, 0},
    {"Ptz", nullptr, 0},
    {"PtzAutoMovement", nullptr, 0},
    {"WaterMark", nullptr, 0},
    {"VideoAnalyseGlobal", nullptr, 0},
    {"VideoAnalyseModule", nullptr, 0},
    {"VideoAnalyseRule", nullptr, 0},
    {"devVideoAnalyse.getCaps", nullptr, 0}, // parse only
    {"VideoAnalyseSource", nullptr, 0},
    {"RainBrush", nullptr, 0},
    {"TrafficSnapshot", nullptr, 0},
    {"TrafficGlobal", nullptr, 0},
    {"General", nullptr, 0},
    {"FetchMoneyOverTime", nullptr, 0},
    {"DeviceStatus", nullptr, 0}, // parse only
    {"HardDiskTank", nullptr, 0},
    {"RaidGroup", nullptr, 0},
    {"StoragePoolGroup", nullptr, 0}, // parse only
    {"StoragePositionGroup", nullptr, 0}, // parse only
    {"VideoInDevGroup", nullptr, 0}, // parse only
    {"DevRecordGroup", nullptr, 0}, // parse only
    {"IpsServer", nullptr, 0}, // parse only
    {"SnapSource", nullptr, 0},
    {"netApp.getRemoteDeviceStatus", nullptr, 0}, // parse only
    {"intelli.getVideoAnalyseDeviceChannels", nullptr, 0}, // parse only
    {"devVideoAnalyse.factory.getCollect", nullptr, 0}, // parse only
    {"SplitTour", nullptr, 0},
    {"SpotMatrix", nullptr, 0},
    {"DspEncodeCap", ParseDspEncodeCap, sizeof(DspEncodeCapRecord)},
    {"VideoEncodeROI", ParseVideoEncodeRoi, sizeof(EncodeRoiConfig)},
    {"VideoInMetering", nullptr, 0},
    {"devVideoInput.getCaps", nullptr, 0}, // parse only
    {"TrafficFlowStat", nullptr, 0},
    {"VideoInOptions", nullptr, 0},
    {"RTSP", nullptr, 0},
    {"Multicast", nullptr, 0},
    {"userManager.getActiveUserInfoAll", nullptr, 0}, // parse only
    {"videoStatServer.getSummary", nullptr, 0}, // parse only
    {"TrafficSnapshotNew", nullptr, 0},
    {"ChannelTitle", nullptr, 0},
    {"RecordMode", nullptr, 0},
    {"VideoOut", nullptr, 0},
    {"RemoteDevice", nullptr, 0},
    {"RemoteChannel", nullptr, 0},
    {"MonitorTour", nullptr, 0},
    {"MonitorCollection", nullptr, 0},
    {"DisplaySource", nullptr, 0},
    {"Raid", nullptr, 0},
    {"RecordSource", nullptr, 0},
    {"VideoColor", nullptr, 0},
    {"VideoWidget", nullptr, 0},
    {"StorageGroup", nullptr, 0},
    {"Locales", nullptr, 0},
    {"Language", nullptr, 0},
    {"AccessFilter", nullptr, 0},
    {"AutoMaintain", nullptr, 0},
    {"RemoteEvent", nullptr, 0},
    {"videoDiagnosisServer.getCaps", nullptr, 0},
    {"VideoDiagnosisProfile", nullptr, 0},
    {"VideoDiagnosisTask", nullptr, 0},
    {"VideoDiagnosisTask.x", nullptr, 0},
    {"VideoDiagnosisProject", nullptr, 0},
    {"VideoDiagnosisGlobal", nullptr, 0},
    {"videoDiagnosisServer.factory.getCollect", nullptr, 0}, // parse only
    {"videoDiagnosisServer.getState", nullptr, 0}, // parse only
    {"MonitorWall", nullptr, 0},
    {"VideoOutputComposite", nullptr, 0},
    {"RecordBackupRestore", nullptr, 0},
    {"TemperatureAlarm", ParseTemperatureAlarm, sizeof(TemperatureAlarmRecord)},
    {"FanSpeedAlarm", ParseFanSpeedAlarm, sizeof(FanSpeedAlarmRecord)},
    {"WorkState", nullptr, 0},
    {"StorageDevGroup", nullptr, 0},
    {"RemoteStorageLimit", nullptr, 0},
    {"RecordToGroup", nullptr, 0},
    {"IVSFramRule", nullptr, 0}, // parse only
    {"Comm", nullptr, 0},
    {"Network", nullptr, 0},
    {"NAS", nullptr, 0},
    {"RecordStoragePoint", nullptr, 0},
    {"IntelliTrackScene", nullptr, 0},
    {"MetaDataServer", nullptr, 0},
    {"trafficSnap.getDeviceStatus", nullptr, 0}, // parse only
    {"system.listService", nullptr, 0}, // parse only
    {"capsManager.get&EventManagerEventHandler", nullptr, 0}, // parse only
    {"alarm.getAlarmCaps", nullptr, 0}, // parse only
    {"FlashLight", nullptr, 0},
    {"AudioAnalyseRule", nullptr, 0},
    {"devAudioAnalyse.getCaps", nullptr, 0}, // parse only
    {"Judicature", nullptr, 0},
    {"CQDTSet", nullptr, 0},
    {"VideoIn", nullptr, 0},
    {"EncodePlan", ParseEncodePlan, sizeof(EncodePlanEntry)},
    {"PicInPic", nullptr, 0},
    {"masterSlaveTracker.factory.getCollect", nullptr, 0}, // parse only
    {"MasterSlaveTrackerGlobal", nullptr, 0},
    {"capsManager.get&MasterSlaveTracker", nullptr, 0}, // parse only
    {"VideoAnalyseWhole", nullptr, 0},
    {"AnalogMatrix", nullptr, 0},
    {"MonitorWallCollection", nullptr, 0},
    {"VideoInBoundary", nullptr, 0},
    {"AnalogMatrixProtocol", nullptr, 0},
    {"VideoOutputTitle", nullptr, 0},
    {"netApp.getCaps", nullptr, 0}, // parse only
    {"BurnFull", nullptr, 0},
    {"devVideoInput.getFocusStatus", nullptr, 0}, // parse only
    {"ptz.factory.instance", nullptr, 0}, // parse only
    {"DiskFluxAlarm", nullptr, 0},
    {"NetFluxAlarm", nullptr, 0},
    {"HolidaySchedule", nullptr, 0},
    {"DVRIP", nullptr, 0},
    {"ParkingSpaceScreen", nullptr, 0},
    {"ParkingSpaceCellStatus", nullptr, 0},
    {"ClientCustomData", nullptr, 0},
    {"recordManager.getCaps", nullptr, 0}, // parse only
    {"BurnRecordFormat", nullptr, 0},
    {"MultiBurn", nullptr, 0},
    {"BurnManager.getCaps", nullptr, 0}, // parse only
    {"EncodeEncrypt", nullptr, 0},
    {"VideoInZoom", nullptr, 0},
    {"Snap", nullptr, 0},
    {"ptz.getCurrentProtocolCaps", nullptr, 0}, // parse only
    {"encode.getCaps", nullptr, 0}, // parse only
    {"SpecialDirectoryDefine", nullptr, 0},
    {"AutoStartupDelay", nullptr, 0},
    {"devVideoInput.getCapsEx", nullptr, 0}, // parse only
    {"CANFilter", nullptr, 0},
    {"VideoInFocus", nullptr, 0},
    {"intelli.getCaps.AnalyseMode", nullptr, 0}, // parse only
    {"EncodeAdapt", ParseEncodeAdapt, sizeof(EncodeAdaptConfig)},
    {"VideoAnalyseCalibrate", nullptr, 0},
    {"PtzPreset", nullptr, 0},
    {"AudioSpirit", nullptr, 0},
    {"AudioMatrixConfig", nullptr, 0},
    {"AudioMatrixSilence", nullptr, 0},
    {"ComposeChannel", nullptr, 0},
    {"ComposeLinkage", nullptr, 0},
    {"LowerMatrix", nullptr, 0},
    {"TimeSpeedLimit", nullptr, 0},
    {"VoiceAlert", nullptr, 0},
    {"InfraredBoardTemplate", nullptr, 0},
    {"InfraredBoard", nullptr, 0},
    {"DeviceKeepAlive", nullptr, 0},
    {"VideoInExposure", nullptr, 0},
    {"AccessControlGeneral", ParseAccessControlGeneral, sizeof(AccessGeneralRecord)},
    {"AccessControl", nullptr, 0},
    {"Wireless", nullptr, 0},
    {"AlarmServer", nullptr, 0},
    {"CommGlobal", nullptr, 0},
    {"AnalogAlarm", nullptr, 0},
    {"AlarmOut", nullptr, 0},
    {"NTP", nullptr, 0},
    {"AlarmBell", nullptr, 0},
    {"Mobile", nullptr, 0},
    {"PhoneEventNotify", nullptr, 0},
    {"PSTNAlarmServer", nullptr, 0},
    {"AudioOutputVolume", nullptr, 0},
    {"AudioInputVolume", nullptr, 0},
    {"AudioMixVolume", nullptr, 0},
    {"AlarmKeyboard", nullptr, 0},
    {"FileManager.getCaps", nullptr, 0}, // parse only
    {"eventManager.getCaps", nullptr, 0}, // parse only
    {"PowerFault", nullptr, 0},
    {"ChassisIntrusion", nullptr, 0},
    {"ExAlarmBox", nullptr, 0},
    {"ExAlarmOut", nullptr, 0},
    {"ExAlarm", nullptr, 0},
    {"log.getCaps", nullptr, 0}, // parse only
    {"speak.getCaps", nullptr, 0}, // parse only
    {"accessControlManager.getCaps", nullptr, 0}, // parse only
    {"alarm.getExAlarmBoxCaps", nullptr, 0}, // parse only
    {"alarm.getExAlarmCaps", nullptr, 0}, // parse only
    {"AccessTimeSchedule", nullptr, 0},
    {"RecordFinder.getCaps", nullptr, 0}, // parse only
    {"Emergency", nullptr, 0},
    {"AnalogAlarm.getCaps", nullptr, 0}, // parse only
    {"SensorSampling", nullptr, 0},
    {"STP", nullptr, 0},
    {"AlarmSubSystem", nullptr, 0},
    {"BatteryLowPowerAlarm", nullptr, 0},
    {"SnapLinkage", nullptr, 0},
    {"AudioInput", nullptr, 0},
    {"Email", nullptr, 0},
    {"TrafficTransferOffline", nullptr, 0},
    {"CommSubscribe", nullptr, 0},
    {"ParkingSpaceLightState", nullptr, 0},
    {"AirCondition", nullptr, 0},
    {"CompressPlay", nullptr, 0},
    {"Building", nullptr, 0},
    {"BuildingExternal", nullptr, 0},
    {"DialRule", nullptr, 0},
    {"OilMassInfo", nullptr, 0},
    {"FishEye", nullptr, 0},
    {"VTNoAnswerForward", nullptr, 0},
    {"VTOCall", nullptr, 0},
    {"MacConflict", nullptr, 0},
    {"IdleMotion", nullptr, 0},
    {"MonitorWallCollectionTour", nullptr, 0},
    {"PSTNBreakLine", nullptr, 0},
    {"NetCollection", nullptr, 0},
    {"AlarmSlotBond", nullptr, 0},
    {"TrafficStrobe", nullptr, 0},
    {"TrafficVoiceBroadcast", nullptr, 0},
    {"StandingTime", nullptr, 0},
    {"EnclosureTimeSchedule", nullptr, 0},
    {"ECKConfig", nullptr, 0},
    {"ParkingCard", nullptr, 0},
    {"RCEmergencyCall", nullptr, 0},
    {"LanesStateReport", nullptr, 0},
    {"OpenDoorGroup", nullptr, 0},
    {"OpenDoorRoute", nullptr, 0},
    {"BurnPlan", nullptr, 0},
    {"SCADADev", nullptr, 0},
    {"VSP_GAYS", nullptr, 0},
    {"LowRateWPAN.getCaps", nullptr, 0}, // parse only
    {"AudioDetect", nullptr, 0},
    {"GuideScreen", nullptr, 0},
    {"VTSCallInfo", nullptr, 0},
    {"DevList", nullptr, 0},
    {"CalibrateMatrix", nullptr, 0},
    {"DefenceAreaDelay", nullptr, 0},
    {"Lighting", nullptr, 0},
    {"RainBrushMode", nullptr, 0},
    {"EmergencyRecordForPull", nullptr, 0},
    {"AlarmShieldRule", nullptr, 0},
    {"VideoInAnalyseRule", nullptr, 0},
    {"AccessWorkMode", nullptr, 0},
    {"VideoTalkPhoneGeneral", nullptr, 0},
    {"PtzTour", nullptr, 0},
    {"VTOInfo", nullptr, 0},
    {"UnFocusDetect", nullptr, 0},
    {"MovedDetect", nullptr, 0},
    {"Floodlight", nullptr, 0},
    {"AirFan", nullptr, 0},
    {"SmartEncode", ParseSmartEncode, sizeof(SmartEncodeConfig)},
    {"HighSpeed", nullptr, 0},
    {"LowSpeed", nullptr, 0},
    {"VideoInDefog", nullptr, 0},
    {"RTMP", nullptr, 0},
    {"AudioOutEqualizer", nullptr, 0},
    {"AudioOutSuppression", nullptr, 0},
    {"AudioInControl", nullptr, 0},
    // The table-driver names close the list (driver_names.h).
    KOVA_DRIVER_NAMES(KOVA_DRIVER_NAME_ENTRY)
};

#undef KOVA_DRIVER_NAME_ENTRY

const size_t kParseNameCount = sizeof(kParseNames) / sizeof(kParseNames[0]);

}  // namespace kova
