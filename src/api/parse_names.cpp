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
    {"Record", ParseRecord, sizeof(RecordConfig)},
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
    {"Ptz", ParsePtz, sizeof(PtzConfig)},
    {"PtzAutoMovement", nullptr, 0},
    {"WaterMark", nullptr, 0},
    {"VideoAnalyseGlobal", ParseVideoAnalyseGlobal, sizeof(VideoAnalyseGlobalConfig)},
    {"VideoAnalyseModule", ParseVideoAnalyseModule, sizeof(VideoAnalyseModuleConfig)},
    {"VideoAnalyseRule", ParseVideoAnalyseRule, sizeof(VideoAnalyseRuleList)},
    {"devVideoAnalyse.getCaps", nullptr, 0},  // parse only
    {"VideoAnalyseSource", nullptr, 0},
    {"RainBrush", nullptr, 0},
    {"TrafficSnapshot", ParseTrafficSnapshot, sizeof(TrafficSnapshotConfig)},
    {"TrafficGlobal", nullptr, 0},
    {"General", ParseGeneral, sizeof(GeneralConfig)},
    {"FetchMoneyOverTime", nullptr, 0},
    {"DeviceStatus", nullptr, 0},  // parse only
    {"HardDiskTank", nullptr, 0},
    {"RaidGroup", nullptr, 0},
    {"StoragePoolGroup", nullptr, 0},      // parse only
    {"StoragePositionGroup", nullptr, 0},  // parse only
    {"VideoInDevGroup", nullptr, 0},       // parse only
    {"DevRecordGroup", nullptr, 0},        // parse only
    {"IpsServer", nullptr, 0},             // parse only
    {"SnapSource", nullptr, 0},
    {"netApp.getRemoteDeviceStatus", nullptr, 0},           // parse only
    {"intelli.getVideoAnalyseDeviceChannels", nullptr, 0},  // parse only
    {"devVideoAnalyse.factory.getCollect", nullptr, 0},     // parse only
    {"SplitTour", nullptr, 0},
    {"SpotMatrix", nullptr, 0},
    {"DspEncodeCap", ParseDspEncodeCap, sizeof(DspEncodeCapRecord)},
    {"VideoEncodeROI", ParseVideoEncodeRoi, sizeof(EncodeRoiConfig)},
    {"VideoInMetering", nullptr, 0},
    {"devVideoInput.getCaps", nullptr, 0},  // parse only
    {"TrafficFlowStat", nullptr, 0},
    {"VideoInOptions", ParseVideoInOptions, sizeof(VideoInOptionsConfig)},
    {"RTSP", ParseRtsp, sizeof(RtspConfig)},
    {"Multicast", ParseMulticast, sizeof(MulticastConfig)},
    {"userManager.getActiveUserInfoAll", nullptr, 0},  // parse only
    {"videoStatServer.getSummary", nullptr, 0},        // parse only
    {"TrafficSnapshotNew", nullptr, 0},
    {"ChannelTitle", ParseChannelTitle, sizeof(ChannelTitleConfig)},
    {"RecordMode", ParseRecordMode, sizeof(RecordModeConfig)},
    {"VideoOut", nullptr, 0},
    {"RemoteDevice", ParseRemoteDevice, sizeof(RemoteDeviceConfig)},
    {"RemoteChannel", nullptr, 0},
    {"MonitorTour", nullptr, 0},
    {"MonitorCollection", nullptr, 0},
    {"DisplaySource", nullptr, 0},
    {"Raid", ParseRaid, sizeof(RaidRecord)},
    {"RecordSource", nullptr, 0},
    {"VideoColor", ParseVideoColor, sizeof(VideoColorConfig)},
    {"VideoWidget", ParseVideoWidget, sizeof(VideoWidgetConfig)},
    {"StorageGroup", ParseStorageGroup, sizeof(StorageGroupRecord)},
    {"Locales", ParseLocales, sizeof(LocalesConfig)},
    {"Language", ParseLanguage, sizeof(LanguageConfig)},
    {"AccessFilter", nullptr, 0},
    {"AutoMaintain", ParseAutoMaintain, sizeof(AutoMaintainConfig)},
    {"RemoteEvent", nullptr, 0},
    {"videoDiagnosisServer.getCaps", nullptr, 0},
    {"VideoDiagnosisProfile", nullptr, 0},
    {"VideoDiagnosisTask", nullptr, 0},
    {"VideoDiagnosisTask.x", nullptr, 0},
    {"VideoDiagnosisProject", nullptr, 0},
    {"VideoDiagnosisGlobal", nullptr, 0},
    {"videoDiagnosisServer.factory.getCollect", nullptr, 0},  // parse only
    {"videoDiagnosisServer.getState", nullptr, 0},            // parse only
    {"MonitorWall", nullptr, 0},
    {"VideoOutputComposite", nullptr, 0},
    {"RecordBackupRestore", nullptr, 0},
    {"TemperatureAlarm", ParseTemperatureAlarm, sizeof(TemperatureAlarmRecord)},
    {"FanSpeedAlarm", ParseFanSpeedAlarm, sizeof(FanSpeedAlarmRecord)},
    {"WorkState", nullptr, 0},
    {"StorageDevGroup", nullptr, 0},
    {"RemoteStorageLimit", nullptr, 0},
    {"RecordToGroup", nullptr, 0},
    {"IVSFramRule", nullptr, 0},  // parse only
    {"Comm", nullptr, 0},
    {"Network", ParseNetwork, sizeof(NetworkConfig)},
    {"NAS", ParseNas, sizeof(NasConfig)},
    {"RecordStoragePoint", nullptr, 0},
    {"IntelliTrackScene", nullptr, 0},
    {"MetaDataServer", nullptr, 0},
    {"trafficSnap.getDeviceStatus", nullptr, 0},               // parse only
    {"system.listService", nullptr, 0},                        // parse only
    {"capsManager.get&EventManagerEventHandler", nullptr, 0},  // parse only
    {"alarm.getAlarmCaps", nullptr, 0},                        // parse only
    {"FlashLight", nullptr, 0},
    {"AudioAnalyseRule", ParseVideoAnalyseRule, sizeof(VideoAnalyseRuleList)},
    {"devAudioAnalyse.getCaps", nullptr, 0},  // parse only
    {"Judicature", nullptr, 0},
    {"CQDTSet", nullptr, 0},
    {"VideoIn", nullptr, 0},
    {"EncodePlan", ParseEncodePlan, sizeof(EncodePlanEntry)},
    {"PicInPic", nullptr, 0},
    {"masterSlaveTracker.factory.getCollect", nullptr, 0},  // parse only
    {"MasterSlaveTrackerGlobal", nullptr, 0},
    {"capsManager.get&MasterSlaveTracker", nullptr, 0},  // parse only
    {"VideoAnalyseWhole", nullptr, 0},
    {"AnalogMatrix", nullptr, 0},
    {"MonitorWallCollection", nullptr, 0},
    {"VideoInBoundary", nullptr, 0},
    {"AnalogMatrixProtocol", nullptr, 0},
    {"VideoOutputTitle", nullptr, 0},
    {"netApp.getCaps", nullptr, 0},  // parse only
    {"BurnFull", nullptr, 0},
    {"devVideoInput.getFocusStatus", nullptr, 0},  // parse only
    {"ptz.factory.instance", nullptr, 0},          // parse only
    {"DiskFluxAlarm", nullptr, 0},
    {"NetFluxAlarm", nullptr, 0},
    {"HolidaySchedule", nullptr, 0},
    {"DVRIP", ParseDvrip, sizeof(DvripConfig)},
    {"ParkingSpaceScreen", nullptr, 0},
    {"ParkingSpaceCellStatus", nullptr, 0},
    {"ClientCustomData", nullptr, 0},
    {"recordManager.getCaps", nullptr, 0},  // parse only
    {"BurnRecordFormat", nullptr, 0},
    {"MultiBurn", nullptr, 0},
    {"BurnManager.getCaps", nullptr, 0},  // parse only
    {"EncodeEncrypt", nullptr, 0},
    {"VideoInZoom", ParseVideoInZoom, sizeof(VideoInZoomConfig)},
    {"Snap", ParseSnap, sizeof(SnapConfig)},
    {"ptz.getCurrentProtocolCaps", nullptr, 0},  // parse only
    {"encode.getCaps", nullptr, 0},              // parse only
    {"SpecialDirectoryDefine", nullptr, 0},
    {"AutoStartupDelay", nullptr, 0},
    {"devVideoInput.getCapsEx", nullptr, 0},  // parse only
    {"CANFilter", nullptr, 0},
    {"VideoInFocus", ParseVideoInFocus, sizeof(VideoInFocusConfig)},
    {"intelli.getCaps.AnalyseMode", nullptr, 0},  // parse only
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
    {"VideoInExposure", ParseVideoInExposure, sizeof(VideoInExposureConfig)},
    {"AccessControlGeneral", ParseAccessControlGeneral, sizeof(AccessGeneralRecord)},
    {"AccessControl", ParseAccessControl, sizeof(AccessControlConfig)},
    {"Wireless", nullptr, 0},
    {"AlarmServer", nullptr, 0},
    {"CommGlobal", nullptr, 0},
    {"AnalogAlarm", nullptr, 0},
    {"AlarmOut", ParseAlarmOut, sizeof(AlarmOutConfig)},
    {"NTP", ParseNtp, sizeof(NtpConfig)},
    {"AlarmBell", nullptr, 0},
    {"Mobile", nullptr, 0},
    {"PhoneEventNotify", nullptr, 0},
    {"PSTNAlarmServer", nullptr, 0},
    {"AudioOutputVolume", ParseAudioVolume, sizeof(AudioVolumeConfig)},
    {"AudioInputVolume", ParseAudioVolume, sizeof(AudioVolumeConfig)},
    {"AudioMixVolume", nullptr, 0},
    {"AlarmKeyboard", nullptr, 0},
    {"FileManager.getCaps", nullptr, 0},   // parse only
    {"eventManager.getCaps", nullptr, 0},  // parse only
    {"PowerFault", nullptr, 0},
    {"ChassisIntrusion", nullptr, 0},
    {"ExAlarmBox", nullptr, 0},
    {"ExAlarmOut", nullptr, 0},
    {"ExAlarm", nullptr, 0},
    {"log.getCaps", nullptr, 0},                   // parse only
    {"speak.getCaps", nullptr, 0},                 // parse only
    {"accessControlManager.getCaps", nullptr, 0},  // parse only
    {"alarm.getExAlarmBoxCaps", nullptr, 0},       // parse only
    {"alarm.getExAlarmCaps", nullptr, 0},          // parse only
    {"AccessTimeSchedule", nullptr, 0},
    {"RecordFinder.getCaps", nullptr, 0},  // parse only
    {"Emergency", nullptr, 0},
    {"AnalogAlarm.getCaps", nullptr, 0},  // parse only
    {"SensorSampling", nullptr, 0},
    {"STP", nullptr, 0},
    {"AlarmSubSystem", nullptr, 0},
    {"BatteryLowPowerAlarm", nullptr, 0},
    {"SnapLinkage", nullptr, 0},
    {"AudioInput", nullptr, 0},
    {"Email", ParseEmail, sizeof(EmailConfig)},
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
    {"LowRateWPAN.getCaps", nullptr, 0},  // parse only
    {"AudioDetect", ParseAudioDetect, sizeof(AudioDetectConfig)},
    {"GuideScreen", nullptr, 0},
    {"VTSCallInfo", nullptr, 0},
    {"DevList", nullptr, 0},
    {"CalibrateMatrix", nullptr, 0},
    {"DefenceAreaDelay", nullptr, 0},
    {"Lighting", ParseLighting, sizeof(LightingConfig)},
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
    {"VideoInDefog", ParseVideoInDefog, sizeof(VideoInDefogConfig)},
    {"RTMP", nullptr, 0},
    {"AudioOutEqualizer", nullptr, 0},
    {"AudioOutSuppression", nullptr, 0},
    {"AudioInControl", nullptr, 0},
    // The table-driver names close the list (driver_names.h).
    KOVA_DRIVER_NAMES(KOVA_DRIVER_NAME_ENTRY)};

#undef KOVA_DRIVER_NAME_ENTRY

const size_t kParseNameCount = sizeof(kParseNames) / sizeof(kParseNames[0]);

}  // namespace kova
