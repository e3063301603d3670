// The device protocol's two name vocabularies, written out independently of
// the dispatch tables: a name missing, duplicated, misspelt or out of order
// in a table fails here.
#include <gtest/gtest.h>

#include <cstring>
#include <set>
#include <string>
#include <vector>

#include "api/dispatch.h"

namespace {

const std::vector<std::string> kParseVocabulary = {
    "Encode", "Record", "Alarm", "NetAlarm", "MotionDetect", "LossDetect", "BlindDetect",
    "StorageNotExist", "StorageFailure", "StorageLowSpace", "NetAbort", "IPConflict", "SnapInfo",
    "Ptz", "PtzAutoMovement", "WaterMark", "VideoAnalyseGlobal", "VideoAnalyseModule",
    "VideoAnalyseRule", "devVideoAnalyse.getCaps", "VideoAnalyseSource", "RainBrush",
    "TrafficSnapshot", "TrafficGlobal", "General", "FetchMoneyOverTime", "DeviceStatus",
    "HardDiskTank", "RaidGroup", "StoragePoolGroup", "StoragePositionGroup", "VideoInDevGroup",
    "DevRecordGroup", "IpsServer", "SnapSource", "netApp.getRemoteDeviceStatus",
    "intelli.getVideoAnalyseDeviceChannels", "devVideoAnalyse.factory.getCollect", "SplitTour",
    "SpotMatrix", "DspEncodeCap", "VideoEncodeROI", "VideoInMetering", "devVideoInput.getCaps",
    "TrafficFlowStat", "VideoInOptions", "RTSP", "Multicast", "userManager.getActiveUserInfoAll",
    "videoStatServer.getSummary", "TrafficSnapshotNew", "ChannelTitle", "RecordMode", "VideoOut",
    "RemoteDevice", "RemoteChannel", "MonitorTour", "MonitorCollection", "DisplaySource", "Raid",
    "RecordSource", "VideoColor", "VideoWidget", "StorageGroup", "Locales", "Language",
    "AccessFilter", "AutoMaintain", "RemoteEvent", "videoDiagnosisServer.getCaps",
    "VideoDiagnosisProfile", "VideoDiagnosisTask", "VideoDiagnosisTask.x", "VideoDiagnosisProject",
    "VideoDiagnosisGlobal", "videoDiagnosisServer.factory.getCollect",
    "videoDiagnosisServer.getState", "MonitorWall", "VideoOutputComposite", "RecordBackupRestore",
    "TemperatureAlarm", "FanSpeedAlarm", "WorkState", "StorageDevGroup", "RemoteStorageLimit",
    "RecordToGroup", "IVSFramRule", "Comm", "Network", "NAS", "RecordStoragePoint",
    "IntelliTrackScene", "MetaDataServer", "trafficSnap.getDeviceStatus", "system.listService",
    "capsManager.get&EventManagerEventHandler", "alarm.getAlarmCaps", "FlashLight",
    "AudioAnalyseRule", "devAudioAnalyse.getCaps", "Judicature", "CQDTSet", "VideoIn",
    "EncodePlan", "PicInPic", "masterSlaveTracker.factory.getCollect", "MasterSlaveTrackerGlobal",
    "capsManager.get&MasterSlaveTracker", "VideoAnalyseWhole", "AnalogMatrix",
    "MonitorWallCollection", "VideoInBoundary", "AnalogMatrixProtocol", "VideoOutputTitle",
    "netApp.getCaps", "BurnFull", "devVideoInput.getFocusStatus", "ptz.factory.instance",
    "DiskFluxAlarm", "NetFluxAlarm", "HolidaySchedule", "DVRIP", "ParkingSpaceScreen",
    "ParkingSpaceCellStatus", "ClientCustomData", "recordManager.getCaps", "BurnRecordFormat",
    "MultiBurn", "BurnManager.getCaps", "EncodeEncrypt", "VideoInZoom", "Snap",
    "ptz.getCurrentProtocolCaps", "encode.getCaps", "SpecialDirectoryDefine", "AutoStartupDelay",
    "devVideoInput.getCapsEx", "CANFilter", "VideoInFocus", "intelli.getCaps.AnalyseMode",
    "EncodeAdapt", "VideoAnalyseCalibrate", "PtzPreset", "AudioSpirit", "AudioMatrixConfig",
    "AudioMatrixSilence", "ComposeChannel", "ComposeLinkage", "LowerMatrix", "TimeSpeedLimit",
    "VoiceAlert", "InfraredBoardTemplate", "InfraredBoard", "DeviceKeepAlive", "VideoInExposure",
    "AccessControlGeneral", "AccessControl", "Wireless", "AlarmServer", "CommGlobal",
    "AnalogAlarm", "AlarmOut", "NTP", "AlarmBell", "Mobile", "PhoneEventNotify", "PSTNAlarmServer",
    "AudioOutputVolume", "AudioInputVolume", "AudioMixVolume", "AlarmKeyboard",
    "FileManager.getCaps", "eventManager.getCaps", "PowerFault", "ChassisIntrusion", "ExAlarmBox",
    "ExAlarmOut", "ExAlarm", "log.getCaps", "speak.getCaps", "accessControlManager.getCaps",
    "alarm.getExAlarmBoxCaps", "alarm.getExAlarmCaps", "AccessTimeSchedule",
    "RecordFinder.getCaps", "Emergency", "AnalogAlarm.getCaps", "SensorSampling", "STP",
    "AlarmSubSystem", "BatteryLowPowerAlarm", "SnapLinkage", "AudioInput", "Email",
    "TrafficTransferOffline", "CommSubscribe", "ParkingSpaceLightState", "AirCondition",
    "CompressPlay", "Building", "BuildingExternal", "DialRule", "OilMassInfo", "FishEye",
    "VTNoAnswerForward", "VTOCall", "MacConflict", "IdleMotion", "MonitorWallCollectionTour",
    "PSTNBreakLine", "NetCollection", "AlarmSlotBond", "TrafficStrobe", "TrafficVoiceBroadcast",
    "StandingTime", "EnclosureTimeSchedule", "ECKConfig", "ParkingCard", "RCEmergencyCall",
    "LanesStateReport", "OpenDoorGroup", "OpenDoorRoute", "BurnPlan", "SCADADev", "VSP_GAYS",
    "LowRateWPAN.getCaps", "AudioDetect", "GuideScreen", "VTSCallInfo", "DevList",
    "CalibrateMatrix", "DefenceAreaDelay", "Lighting", "RainBrushMode", "EmergencyRecordForPull",
    "AlarmShieldRule", "VideoInAnalyseRule", "AccessWorkMode", "VideoTalkPhoneGeneral", "PtzTour",
    "VTOInfo", "UnFocusDetect", "MovedDetect", "Floodlight", "AirFan", "SmartEncode", "HighSpeed",
    "LowSpeed", "VideoInDefog", "RTMP", "AudioOutEqualizer", "AudioOutSuppression",
    "AudioInControl", "ThermographyOptions", "ThermometryRule", "TemperatureStatistics",
    "HeatImagingThermometry", "TrafficSnapMosaic", "SceneSnapShotWithRule", "TSPoint",
    "VTHNumberInfo", "GPS", "VTOBasicInfo", "ShortcutCall", "GPSLocationVersion",
    "ParkingSpaceAccessFilter", "WorkTime", "ParkingSpaceLightGroup", "CustomAudio", "SheenRadar",
    "LightingSchedule", "AroudWifiSearch", "G3G4AutoChange", "CheckCode", "VSP_SCYDKD", "PowerUp",
    "VideoInDayNight", "AudioMixChannel", "AudioTouch", "VideoMosaic", "VTHRemoteIPCInfo", "WLan",
    "PSTNPersonServer", "ArmLink", "CabinLedTimeSchedule", "PSTNTestPlan", "DefenceArmMode",
    "SensorMode", "MasterSlaveGroup", "MasterSlaveGlobal", "AlarmLamp", "RadarSpeedMeasure",
    "LaserDistMeasure",
};

const std::vector<std::string> kParseOnly = {
    "devVideoAnalyse.getCaps", "DeviceStatus", "StoragePoolGroup", "StoragePositionGroup",
    "VideoInDevGroup", "DevRecordGroup", "IpsServer", "netApp.getRemoteDeviceStatus",
    "intelli.getVideoAnalyseDeviceChannels", "devVideoAnalyse.factory.getCollect",
    "devVideoInput.getCaps", "userManager.getActiveUserInfoAll", "videoStatServer.getSummary",
    "videoDiagnosisServer.factory.getCollect", "videoDiagnosisServer.getState", "IVSFramRule",
    "trafficSnap.getDeviceStatus", "system.listService",
    "capsManager.get&EventManagerEventHandler", "alarm.getAlarmCaps", "devAudioAnalyse.getCaps",
    "masterSlaveTracker.factory.getCollect", "capsManager.get&MasterSlaveTracker",
    "netApp.getCaps", "devVideoInput.getFocusStatus", "ptz.factory.instance",
    "recordManager.getCaps", "BurnManager.getCaps", "ptz.getCurrentProtocolCaps", "encode.getCaps",
    "devVideoInput.getCapsEx", "intelli.getCaps.AnalyseMode", "FileManager.getCaps",
    "eventManager.getCaps", "log.getCaps", "speak.getCaps", "accessControlManager.getCaps",
    "alarm.getExAlarmBoxCaps", "alarm.getExAlarmCaps", "RecordFinder.getCaps",
    "AnalogAlarm.getCaps", "LowRateWPAN.getCaps",
};

const std::vector<std::string> kPackVocabulary = {
    "Encode", "Record", "Alarm", "NetAlarm", "MotionDetect", "LossDetect", "BlindDetect",
    "StorageNotExist", "StorageFailure", "StorageLowSpace", "NetAbort", "IPConflict", "SnapInfo",
    "Ptz", "PtzAutoMovement", "WaterMark", "VideoAnalyseGlobal", "VideoAnalyseModule",
    "VideoAnalyseRule", "VideoAnalyseSource", "RainBrush", "TrafficSnapshot", "TrafficSnapshotNew",
    "TrafficGlobal", "General", "FetchMoneyOverTime", "SnapSource", "SplitTour", "SpotMatrix",
    "DspEncodeCap", "VideoEncodeROI", "VideoInMetering", "TrafficFlowStat", "HardDiskTank",
    "RaidGroup", "RTSP", "Multicast", "VideoInOptions", "ChannelTitle", "RecordMode", "VideoOut",
    "RemoteDevice", "RemoteChannel", "MonitorTour", "MonitorCollection", "DisplaySource", "Raid",
    "RecordSource", "VideoColor", "VideoWidget", "StorageGroup", "Locales", "Language",
    "AccessFilter", "AutoMaintain", "RemoteEvent", "VideoDiagnosisProfile", "VideoDiagnosisTask",
    "VideoDiagnosisTask.x", "VideoDiagnosisProject", "VideoDiagnosisGlobal",
    "videoDiagnosisServer.getCaps", "MonitorWall", "VideoOutputComposite", "RecordBackupRestore",
    "TemperatureAlarm", "FanSpeedAlarm", "WorkState", "StorageDevGroup", "RemoteStorageLimit",
    "RecordToGroup", "Comm", "Network", "NAS", "RecordStoragePoint", "IntelliTrackScene",
    "MetaDataServer", "FlashLight", "AudioAnalyseRule", "Judicature", "CQDTSet", "VideoIn",
    "EncodePlan", "PicInPic", "MasterSlaveTrackerGlobal", "VideoAnalyseWhole", "BurnFull",
    "AnalogMatrix", "MonitorWallCollection", "VideoInBoundary", "AnalogMatrixProtocol",
    "VideoOutputTitle", "DiskFluxAlarm", "NetFluxAlarm", "HolidaySchedule", "DVRIP",
    "ParkingSpaceScreen", "ParkingSpaceCellStatus", "ClientCustomData", "BurnRecordFormat",
    "MultiBurn", "EncodeEncrypt", "VideoInZoom", "Snap", "SpecialDirectoryDefine",
    "AutoStartupDelay", "VideoDiagnosisRealProject", "CANFilter", "VideoInFocus", "EncodeAdapt",
    "VideoAnalyseCalibrate", "PtzPreset", "AudioSpirit", "AudioMatrixConfig", "AudioMatrixSilence",
    "ComposeChannel", "ComposeLinkage", "LowerMatrix", "TimeSpeedLimit", "VoiceAlert",
    "InfraredBoardTemplate", "InfraredBoard", "DeviceKeepAlive", "VideoInExposure",
    "AccessControlGeneral", "AccessControl", "Wireless", "AlarmServer", "CommGlobal",
    "AnalogAlarm", "AlarmOut", "NTP", "AlarmBell", "Mobile", "PhoneEventNotify", "PSTNAlarmServer",
    "AudioOutputVolume", "AudioInputVolume", "AudioMixVolume", "AlarmKeyboard", "PowerFault",
    "ChassisIntrusion", "ExAlarmBox", "ExAlarmOut", "ExAlarm", "AccessTimeSchedule", "Emergency",
    "SensorSampling", "STP", "AlarmSubSystem", "BatteryLowPowerAlarm", "SnapLinkage", "AudioInput",
    "Email", "TrafficTransferOffline", "CommSubscribe", "ParkingSpaceLightState", "AirCondition",
    "CompressPlay", "Building", "BuildingExternal", "DialRule", "OilMassInfo", "FishEye",
    "VTNoAnswerForward", "VTOCall", "MacConflict", "IdleMotion", "MonitorWallCollectionTour",
    "PSTNBreakLine", "NetCollection", "AlarmSlotBond", "TrafficStrobe", "TrafficVoiceBroadcast",
    "StandingTime", "EnclosureTimeSchedule", "ECKConfig", "ParkingCard", "RCEmergencyCall",
    "LanesStateReport", "OpenDoorGroup", "OpenDoorRoute", "BurnPlan", "SCADADev", "VSP_GAYS",
    "AudioDetect", "GuideScreen", "VTSCallInfo", "DevList", "CalibrateMatrix", "DefenceAreaDelay",
    "Lighting", "RainBrushMode", "EmergencyRecordForPull", "AlarmShieldRule", "VideoInAnalyseRule",
    "AccessWorkMode", "VideoTalkPhoneGeneral", "PtzTour", "VTOInfo", "UnFocusDetect",
    "MovedDetect", "Floodlight", "AirFan", "SmartEncode", "HighSpeed", "LowSpeed", "VideoInDefog",
    "RTMP", "AudioOutEqualizer", "AudioOutSuppression", "AudioInControl", "ThermographyOptions",
    "ThermometryRule", "TemperatureStatistics", "HeatImagingThermometry", "TrafficSnapMosaic",
    "SceneSnapShotWithRule", "TSPoint", "VTHNumberInfo", "GPS", "VTOBasicInfo", "ShortcutCall",
    "GPSLocationVersion", "ParkingSpaceAccessFilter", "WorkTime", "ParkingSpaceLightGroup",
    "CustomAudio", "SheenRadar", "LightingSchedule", "AroudWifiSearch", "G3G4AutoChange",
    "CheckCode", "VSP_SCYDKD", "PowerUp", "VideoInDayNight", "AudioMixChannel", "AudioTouch",
    "VideoMosaic", "VTHRemoteIPCInfo", "WLan", "PSTNPersonServer", "ArmLink",
    "CabinLedTimeSchedule", "PSTNTestPlan", "DefenceArmMode", "SensorMode", "MasterSlaveGroup",
    "MasterSlaveGlobal", "AlarmLamp", "RadarSpeedMeasure", "LaserDistMeasure",
};

TEST(NameLists, ParseTableHoldsTheVocabularyInOrder) {
  ASSERT_EQ(293u, kParseVocabulary.size());
  ASSERT_EQ(kParseVocabulary.size(), kova::kParseNameCount);
  for (size_t i = 0; i < kova::kParseNameCount; ++i) {
    EXPECT_EQ(kParseVocabulary[i], kova::kParseNames[i].name) << "index " << i;
  }
}

TEST(NameLists, PackTableHoldsTheVocabularyInOrder) {
  ASSERT_EQ(252u, kPackVocabulary.size());
  ASSERT_EQ(kPackVocabulary.size(), kova::kPackNameCount);
  for (size_t i = 0; i < kova::kPackNameCount; ++i) {
    EXPECT_EQ(kPackVocabulary[i], kova::kPackNames[i].name) << "index " << i;
  }
}

TEST(NameLists, NamesAreDistinctEvenIgnoringCase) {
  for (const auto* list : {&kParseVocabulary, &kPackVocabulary}) {
    std::set<std::string> folded;
    for (std::string n : *list) {
      for (char& c : n) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
      EXPECT_TRUE(folded.insert(n).second) << n;
    }
  }
}

TEST(NameLists, DirectionsMatchTheVocabulary) {
  const std::set<std::string> parseOnly(kParseOnly.begin(), kParseOnly.end());
  EXPECT_EQ(42u, parseOnly.size());
  for (const std::string& n : kParseVocabulary) {
    EXPECT_EQ(parseOnly.count(n) == 0, kova::FindPackName(n.c_str()) >= 0) << n;
  }
  size_t packOnly = 0;
  for (const std::string& n : kPackVocabulary) {
    if (kova::FindParseName(n.c_str()) < 0) {
      ++packOnly;
      EXPECT_EQ("VideoDiagnosisRealProject", n);
    }
  }
  EXPECT_EQ(1u, packOnly);
}

TEST(NameLists, DriverNamesCloseBothListsInTheSameOrder) {
  ASSERT_EQ(40u, kova::kDriverNameCount);
  for (size_t d = 0; d < kova::kDriverNameCount; ++d) {
    const size_t pi = kova::kParseNameCount - kova::kDriverNameCount + d;
    const size_t ki = kova::kPackNameCount - kova::kDriverNameCount + d;
    EXPECT_STREQ(kova::kDriverBindings[d].name, kova::kParseNames[pi].name);
    EXPECT_STREQ(kova::kDriverBindings[d].name, kova::kPackNames[ki].name);
    EXPECT_EQ(kova::kParseNames[pi].parse, nullptr) << "driver names are bound by their settings";
    EXPECT_EQ(kova::kPackNames[ki].pack, nullptr);
  }
}

TEST(NameLists, SharedTranslatorsAreTheSameFunction) {
  const std::pair<const char*, const char*> parseShared[] = {
      {"VideoAnalyseRule", "AudioAnalyseRule"},
      {"ComposeChannel", "ComposeLinkage"},
      {"intelli.getVideoAnalyseDeviceChannels", "devVideoAnalyse.factory.getCollect"}};
  for (const auto& s : parseShared) {
    const int a = kova::FindParseName(s.first);
    const int b = kova::FindParseName(s.second);
    ASSERT_GE(a, 0);
    ASSERT_GE(b, 0);
    EXPECT_EQ(kova::kParseNames[a].parse, kova::kParseNames[b].parse) << s.first;
  }
  const std::pair<const char*, const char*> packShared[] = {
      {"VideoAnalyseRule", "AudioAnalyseRule"}, {"ComposeChannel", "ComposeLinkage"}};
  for (const auto& s : packShared) {
    EXPECT_EQ(kova::kPackNames[kova::FindPackName(s.first)].pack,
              kova::kPackNames[kova::FindPackName(s.second)].pack)
        << s.first;
  }
}

TEST(NameLists, MatchingFoldsOnlyAsciiLettersAndNeedsTheWholeName) {
  EXPECT_EQ(0, kova::FindParseName("Encode"));
  EXPECT_EQ(0, kova::FindParseName("encode"));
  EXPECT_EQ(0, kova::FindParseName("ENCODE"));
  EXPECT_EQ(0, kova::FindParseName("eNcOdE"));
  EXPECT_EQ(-1, kova::FindParseName("Encode "));
  EXPECT_EQ(-1, kova::FindParseName(" Encode"));
  EXPECT_EQ(-1, kova::FindParseName("Encod"));
  EXPECT_EQ(-1, kova::FindParseName("EncodeX"));
  EXPECT_EQ(-1, kova::FindParseName(""));
  EXPECT_GE(kova::FindParseName("DEVVIDEOANALYSE.GETCAPS"), 0);
  EXPECT_EQ(-1, kova::FindParseName("devVideoAnalyse"));
  EXPECT_GE(kova::FindParseName("capsManager.get&EventManagerEventHandler"), 0);
  // Only A-Z fold: '@' (0x40) and '`' (0x60) differ by the case bit but are
  // not letters, nor are bytes above 127.
  EXPECT_FALSE(kova::NameEquals("a@", "a`"));
  EXPECT_FALSE(kova::NameEquals("\xc3\x89", "\xc3\xa9"));
  EXPECT_FALSE(kova::NameEquals("VSP_GAYS", "VSP\x7fGAYS"));
  EXPECT_TRUE(kova::NameEquals("vsp_gays", "VSP_GAYS"));
}

}  // namespace
