// Records of the picture, light and motion settings beside the video input
// records of video_in.h: the day/night profile selection ("VideoInMode"),
// smart motion detection ("SmartMotionDetect"), the illuminators
// ("Lighting_V2", "LightingScheme", "LightGlobal", "FloodLightMode"), white
// balance, backlight, sharpness, denoise, infrared exposure and sub-stream
// colour per profile, flip and mirror ("VideoImageControl"), and a few
// device-wide media settings ("VideoStandard", "MediaGlobal", "UPnP",
// "PictureHttpUpload", "DisableLinkage").
//
// The envelope is the one of video_in.h: one record per channel, an
// all-channel answer (an array, one element per channel) fills as many
// records as the caller's buffer holds, a one-channel answer fills record
// 0; the buffer is cleared first and the returned length is the bytes of
// the records filled. Pack writes one record as the bare value and several
// as an array. Settings answered as one object for the whole device fill
// record 0 the same way.
//
// Per-profile records (`XxxConfig` holding `profiles[]` and
// `profileCount`): a channel's JSON is the array of its profiles, profile i
// landing in slot i, up to KOVA_VIDEO_IN_PROFILES; each profile keeps its
// "Name" where the device gives one.
//
// Members: the members named in each record are kept; other members a
// device sends are left out. Members a device leaves out stay zero; members
// that not every firmware sends carry a presence flag (`xxxPresent`) and
// are written only when it is set. Texts hold the local code page, cut to
// their capacity less one byte; enumeration-like texts are kept as text, so
// that values no list foresaw survive a round trip.
#ifndef KOVA_RECORDS_PICTURE_H_
#define KOVA_RECORDS_PICTURE_H_

#include <stddef.h>
#include <stdint.h>

#include "kova/records/schedule.h"
#include "kova/records/video_in.h"

#ifdef __cplusplus
extern "C" {
#endif

enum {
  KOVA_VIDEO_IN_MODE_CONFIGS = 4,    // profile indices of a "VideoInMode" "Config"
  KOVA_LIGHTING_V2_LIGHTS = 4,       // lights of one "Lighting_V2" profile
  KOVA_LIGHT_FILTER_TYPES = 4,       // texts of "AIMixLightObjFilterTypes"
  KOVA_SCHEME_SECTIONS_PER_DAY = 6,  // sections of one day of "TimeSectionByWeek"
  KOVA_PICTURE_CHANNELS = 64,        // channels of "DisableLinkage" and "FloodLightMode"
  KOVA_UPNP_MAPS = 16,               // entries of "UPnP" "MapTable"
  KOVA_UPLOAD_SERVERS = 8,           // entries of "UploadServerList"
  KOVA_UPLOAD_EVENT_TYPES = 16,      // texts of an upload server's "EventType"
  KOVA_PICTURE_ADDRESS_TEXT = 64,    // capacity of addresses, user names and passwords
  KOVA_PICTURE_PATH_TEXT = 128,      // capacity of paths and service names
};

// ---------------------------------------------------------------------------
// "VideoInMode": which day/night profile a channel uses, per channel.
typedef struct VideoInModeConfig {
  int32_t mode;  // "Mode": 0 one profile, 1 by schedule, 2 by brightness, 4 manual
  // "Config": the profile indices in use (0 day, 1 night, 2 normal), one
  // or two; pack writes `configCount` of them.
  int32_t config[KOVA_VIDEO_IN_MODE_CONFIGS];
  int32_t configCount;
  char configEx[KOVA_VIDEO_IN_TEXT];  // "ConfigEx": "Day", "Night", "Normal" (some firmware)
  // "TimeSection": when each profile applies with `mode` 1, seven days of
  // six section texts such as "1 00:00:00-24:00:00" (a whole day may end at
  // 24:00:00 or 23:59:59, kept as given). A text that does not give all
  // seven numbers leaves the whole grid zero and unflagged.
  WeekSchedule7x6 timeSection;
  uint8_t configExPresent;     // "ConfigEx" given; written only then
  uint8_t timeSectionPresent;  // "TimeSection" given and well formed; written only then
} VideoInModeConfig;

// ---------------------------------------------------------------------------
// "SmartMotionDetect": motion detection filtered by object type, per channel.
typedef struct SmartMotionDetectConfig {
  int32_t enable;                        // "Enable": 0 or 1 (a JSON boolean)
  int32_t human;                         // "ObjectTypes"."Human": 0 or 1 (a JSON boolean)
  int32_t vehicle;                       // "ObjectTypes"."Vehicle": 0 or 1 (a JSON boolean)
  char sensitivity[KOVA_VIDEO_IN_TEXT];  // "Sensitivity": "Low", "Middle", "High"
} SmartMotionDetectConfig;

// ---------------------------------------------------------------------------
// "Lighting_V2": the lights of each profile, per channel. A camera answers
// [channel][profile][light]; a recorder answering for one channel sends
// [profile][light]: both fill record 0 for that channel.

// One light of a profile.
typedef struct LightingV2Light {
  char lightType[KOVA_VIDEO_IN_TEXT];  // "LightType": "InfraredLight", "WhiteLight", "AIMixLight",
                                       // ...
  char mode[KOVA_VIDEO_IN_TEXT];       // "Mode": "Manual", "Auto", "Off", "ZoomPrio", "ForceOn",
                                       // "Timing", "SmartLight", ...
  char state[KOVA_VIDEO_IN_TEXT];      // "State": the light's state text
  int32_t correction;                  // "Correction": brightness correction
  int32_t sensitive;                   // "Sensitive": switching sensitivity
  int32_t percentOfMaxBrightness;      // "PercentOfMaxBrightness": 0-100
  int32_t light;                       // "Light": brightness, 0-100
  int32_t lightSwitchDelay;            // "LightSwitchDelay": seconds
  int32_t aiMixLightSwitchDelay;       // "AIMixLightSwitchDelay": seconds
  // "AIMixLightObjFilterTypes": the objects that switch the mixed light
  // ("Human", "Vehicle", ...), up to 4; pack writes `aiMixLightObjFilterTypeCount`.
  char aiMixLightObjFilterTypes[KOVA_LIGHT_FILTER_TYPES][KOVA_VIDEO_IN_TEXT];
  int32_t aiMixLightObjFilterTypeCount;
  // The lamp groups, each {"Angle", "Light"}: the entries that are objects,
  // in order, up to 4; the counts are the entries kept.
  LightingLight nearLight[KOVA_LIGHTING_LIGHTS];    // "NearLight"
  LightingLight middleLight[KOVA_LIGHTING_LIGHTS];  // "MiddleLight"
  LightingLight farLight[KOVA_LIGHTING_LIGHTS];     // "FarLight"
  int32_t nearLightCount;
  int32_t middleLightCount;
  int32_t farLightCount;
  // Flags: the key was given (the lists: as an array); written only then.
  uint8_t lightTypePresent;
  uint8_t modePresent;
  uint8_t statePresent;
  uint8_t correctionPresent;
  uint8_t sensitivePresent;
  uint8_t percentOfMaxBrightnessPresent;
  uint8_t lightPresent;
  uint8_t lightSwitchDelayPresent;
  uint8_t aiMixLightSwitchDelayPresent;
  uint8_t aiMixLightObjFilterTypesPresent;
  uint8_t nearLightPresent;
  uint8_t middleLightPresent;
  uint8_t farLightPresent;
} LightingV2Light;

// One profile: the array of its lights, the entries that are objects, in
// order, up to 4; pack writes `lightCount`.
typedef struct LightingV2Profile {
  LightingV2Light lights[KOVA_LIGHTING_V2_LIGHTS];
  int32_t lightCount;
} LightingV2Profile;

typedef struct LightingV2Config {
  LightingV2Profile profiles[KOVA_VIDEO_IN_PROFILES];
  int32_t profileCount;  // profiles given, at most 16
} LightingV2Config;

// ---------------------------------------------------------------------------
// "LightingScheme": which light mode each profile uses and when, per
// channel (a recorder answering for one channel sends the profile list).

// One scheme section: "00:00:00-23:59:59 AIMode", the time range first, then
// the light mode's name (no leading flag).
typedef struct LightingSchemeSection {
  int32_t beginHour;
  int32_t beginMinute;
  int32_t beginSecond;
  int32_t endHour;
  int32_t endMinute;
  int32_t endSecond;
  char mode[KOVA_VIDEO_IN_TEXT];  // the mode's name, as "LightingMode" names it
} LightingSchemeSection;

typedef struct LightingSchemeProfile {
  char lightingMode[KOVA_VIDEO_IN_TEXT];  // "LightingMode": "MixMode", "WhiteMode", "NormalMode",
                                          // "InfraredMode", "AIMode", "Off"
  int32_t scheduleEnable;                 // "SchemeSchedule"."Enable": 0 or 1 (a JSON boolean)
  // "SchemeSchedule"."TimeSectionByWeek": 7 days of up to 6 sections. A day
  // keeps its well-formed texts in order (a text that is not a range and a
  // name is left out); `sectionCount[d]` is the sections kept and pack
  // writes that many; `dayCount` the days given, at most 7.
  LightingSchemeSection sections[KOVA_WEEK_DAYS][KOVA_SCHEME_SECTIONS_PER_DAY];
  int32_t sectionCount[KOVA_WEEK_DAYS];
  int32_t dayCount;
  char name[KOVA_VIDEO_IN_TEXT];  // "Name": the scene's name, on scene-based cameras
  uint8_t schemeSchedulePresent;  // "SchemeSchedule" given as an object; written only then
  uint8_t namePresent;            // "Name" given; written only then
} LightingSchemeProfile;

typedef struct LightingSchemeConfig {
  LightingSchemeProfile profiles[KOVA_VIDEO_IN_PROFILES];
  int32_t profileCount;  // profiles given, at most 16
} LightingSchemeConfig;

// ---------------------------------------------------------------------------
// "VideoInWhiteBalance": white balance per profile.
typedef struct VideoInWhiteBalanceProfile {
  char mode[KOVA_VIDEO_IN_TEXT];  // "Mode": "Auto", "Indoor", "Outdoor", "ATW", "Manual",
                                  // "Sodium", "Natural", "StreetLamp", "ManualDatum", ...
  int32_t colorTemperatureLevel;  // "ColorTemperatureLevel"
  int32_t gainRed;                // "GainRed", 0-100
  int32_t gainGreen;              // "GainGreen", 0-100
  int32_t gainBlue;               // "GainBlue", 0-100
  int32_t manualDatumRect[4];     // "ManualDatumRect": [left, top, right, bottom] on a 0-8191 grid
  char name[KOVA_VIDEO_IN_TEXT];  // "Name": the scene's name, on scene-based cameras
  uint8_t colorTemperatureLevelPresent;  // "ColorTemperatureLevel" given; written only then
  uint8_t manualDatumRectPresent;        // "ManualDatumRect" given as 4 numbers; written only then
  uint8_t namePresent;                   // "Name" given; written only then
} VideoInWhiteBalanceProfile;

typedef struct VideoInWhiteBalanceConfig {
  VideoInWhiteBalanceProfile profiles[KOVA_VIDEO_IN_PROFILES];
  int32_t profileCount;  // profiles given, at most 16
} VideoInWhiteBalanceConfig;

// ---------------------------------------------------------------------------
// "VideoInBacklight": backlight compensation and wide dynamic range per profile.
typedef struct VideoInBacklightProfile {
  char mode[KOVA_VIDEO_IN_TEXT];  // "Mode": "Off", "Backlight", "GlareInhibition", "WideDynamic",
                                  // "SSA"
  char backlightMode[KOVA_VIDEO_IN_TEXT];  // "BacklightMode": "Default", "Region", ...
  char intensityMode[KOVA_VIDEO_IN_TEXT];  // "IntensityMode": "Auto", "Manual", ...
  int32_t backlightRegion[4];      // "BacklightRegion": [left, top, right, bottom] on a 0-8191 grid
  int32_t glareInhibition;         // "GlareInhibition": level
  int32_t intensity;               // "Intensity": strength of the scene adaptation
  int32_t wideDynamicRange;        // "WideDynamicRange": level
  char name[KOVA_VIDEO_IN_TEXT];   // "Name": the scene's name, on firmware with named scenes
  uint8_t backlightModePresent;    // "BacklightMode" given; written only then
  uint8_t intensityModePresent;    // "IntensityMode" given; written only then
  uint8_t backlightRegionPresent;  // "BacklightRegion" given as 4 numbers; written only then
  uint8_t intensityPresent;        // "Intensity" given; written only then
  uint8_t namePresent;             // "Name" given; written only then
} VideoInBacklightProfile;

typedef struct VideoInBacklightConfig {
  VideoInBacklightProfile profiles[KOVA_VIDEO_IN_PROFILES];
  int32_t profileCount;  // profiles given, at most 16
} VideoInBacklightConfig;

// ---------------------------------------------------------------------------
// "VideoInSharpness": sharpness per profile.
typedef struct VideoInSharpnessProfile {
  int32_t level;                  // "Level": sharpness suppression level
  int32_t mode;                   // "Mode": an integer here (0 automatic, 1 manual)
  int32_t sharpness;              // "Sharpness", 0-100
  char name[KOVA_VIDEO_IN_TEXT];  // "Name": the scene's name, on scene-based cameras
  uint8_t namePresent;            // "Name" given; written only then
} VideoInSharpnessProfile;

typedef struct VideoInSharpnessConfig {
  VideoInSharpnessProfile profiles[KOVA_VIDEO_IN_PROFILES];
  int32_t profileCount;  // profiles given, at most 16
} VideoInSharpnessConfig;

// ---------------------------------------------------------------------------
// "VideoInDenoise": spatial (2D) and temporal (3D) noise reduction per
// profile. The keys beginning with a digit are the devices' own.
typedef struct VideoInDenoiseProfile {
  int32_t enable2D;                 // "2DEnable": 0 or 1 (a JSON boolean)
  int32_t level2D;                  // "2DLevel", 0-100
  char type3D[KOVA_VIDEO_IN_TEXT];  // "3DType": "Auto", "Manual", "Off"
  int32_t autoLevel3D;              // "3DAutoType"."AutoLevel"
  int32_t snfLevel3D;               // "3DManulType"."SnfLevel" (so spelled): spatial level
  int32_t tnfLevel3D;               // "3DManulType"."TnfLevel": temporal level
  int32_t algorithm1SnfLevel;       // "DenoiseAlgorithm1"."SnfLevel"
  int32_t algorithm1TnfLevel;       // "DenoiseAlgorithm1"."TnfLevel"
  int32_t algorithm1Type;           // "DenoiseAlgorithm1"."Type"
  char name[KOVA_VIDEO_IN_TEXT];    // "Name": the scene's name, on scene-based cameras
  uint8_t autoType3DPresent;        // "3DAutoType" given as an object; written only then
  uint8_t manulType3DPresent;       // "3DManulType" given as an object; written only then
  uint8_t algorithm1Present;        // "DenoiseAlgorithm1" given as an object; written only then
  uint8_t namePresent;              // "Name" given; written only then
} VideoInDenoiseProfile;

typedef struct VideoInDenoiseConfig {
  VideoInDenoiseProfile profiles[KOVA_VIDEO_IN_PROFILES];
  int32_t profileCount;  // profiles given, at most 16
} VideoInDenoiseConfig;

// ---------------------------------------------------------------------------
// "VideoInIRExposure": infrared exposure per profile.
typedef struct VideoInIRExposureProfile {
  int32_t smartIRExposure;        // "SmartIRExposure": 0 or 1 (a JSON boolean)
  char name[KOVA_VIDEO_IN_TEXT];  // "Name": the scene's name, on scene-based cameras
  uint8_t namePresent;            // "Name" given; written only then
} VideoInIRExposureProfile;

typedef struct VideoInIRExposureConfig {
  VideoInIRExposureProfile profiles[KOVA_VIDEO_IN_PROFILES];
  int32_t profileCount;  // profiles given, at most 16
} VideoInIRExposureConfig;

// ---------------------------------------------------------------------------
// "VideoSubColor": colour of the sub stream per profile.
typedef struct VideoSubColorProfile {
  char adapt[KOVA_VIDEO_IN_TEXT];  // "Adapt": whether the sub stream follows the main one's
                                   // colour ("Auto", "Manual", ...)
  char name[KOVA_VIDEO_IN_TEXT];   // "Name": the scene's name, on scene-based cameras
  uint8_t namePresent;             // "Name" given; written only then
} VideoSubColorProfile;

typedef struct VideoSubColorConfig {
  VideoSubColorProfile profiles[KOVA_VIDEO_IN_PROFILES];
  int32_t profileCount;  // profiles given, at most 16
} VideoSubColorConfig;

// ---------------------------------------------------------------------------
// "VideoImageControl": flip, mirror, rotation and stabilisation, per
// channel (no profile level).
typedef struct VideoImageControlConfig {
  int32_t flip;                       // "Flip": 0 or 1 (a JSON boolean)
  int32_t mirror;                     // "Mirror": 0 or 1 (a JSON boolean)
  int32_t freeze;                     // "Freeze": 0 or 1 (a JSON boolean)
  int32_t rotate90;                   // "Rotate90": 0 none, 1 clockwise, 2 anticlockwise
  int32_t stable;                     // "Stable": picture stabilisation, 0 off
  int32_t horizontalFlip;             // "HorizontalFlip": 0 or 1 (a JSON boolean)
  int32_t verticalFlip;               // "VerticalFlip": 0 or 1 (a JSON boolean)
  char flipMode[KOVA_VIDEO_IN_TEXT];  // "FlipMode": the firmware's flip mode text
  uint8_t freezePresent;              // "Freeze" given; written only then
  uint8_t stablePresent;              // "Stable" given; written only then
  uint8_t horizontalFlipPresent;      // "HorizontalFlip" given; written only then
  uint8_t verticalFlipPresent;        // "VerticalFlip" given; written only then
  uint8_t flipModePresent;            // "FlipMode" given; written only then
} VideoImageControlConfig;

// ---------------------------------------------------------------------------
// "LightGlobal": the illuminators' master switch, per channel.
typedef struct LightGlobalConfig {
  int32_t enable;      // "Enable": 0 or 1 (a JSON boolean)
  int32_t brightness;  // "Brightness", 0-100
} LightGlobalConfig;

// ---------------------------------------------------------------------------
// "DisableLinkage" and "FloodLightMode": one small object that some
// firmware answers for the whole device and other firmware as an array per
// channel. One record holds either form: `perChannel` says which the answer
// was, and pack writes the same form back (the object of entry 0, or an
// array of `channelCount` entries; a channel element that was not an
// object packs with its members zero). A table that is neither reads as a
// cleared record.
typedef struct DisableLinkageChannel {
  int32_t enable;  // "Enable": 0 or 1, the channel's alarm linkage is off (a JSON boolean)
} DisableLinkageChannel;

typedef struct DisableLinkageConfig {
  DisableLinkageChannel channels[KOVA_PICTURE_CHANNELS];  // the object, or the array's elements
  int32_t channelCount;  // elements looked at (at most 64) of an array answer; 1 for an object
  uint8_t perChannel;    // 1: the answer was an array per channel
} DisableLinkageConfig;

typedef struct FloodLightModeChannel {
  int32_t mode;  // "Mode": 1 motion, 2 manual, 3 schedule, 4 infrared sensor
} FloodLightModeChannel;

typedef struct FloodLightModeConfig {
  FloodLightModeChannel channels[KOVA_PICTURE_CHANNELS];  // the object, or the array's elements
  int32_t channelCount;  // elements looked at (at most 64) of an array answer; 1 for an object
  uint8_t perChannel;    // 1: the answer was an array per channel
} FloodLightModeConfig;

// ---------------------------------------------------------------------------
// "VideoStandard": the table is a bare text, not an object.
typedef struct VideoStandardConfig {
  char standard[KOVA_VIDEO_IN_TEXT];  // the table: "PAL", "NTSC"; written back as a bare text
} VideoStandardConfig;

// ---------------------------------------------------------------------------
// "MediaGlobal": recording and snapshot settings of the whole device.
typedef struct MediaGlobalConfig {
  int32_t overWrite;     // "OverWrite": 0 or 1, overwrite the oldest recordings (a JSON boolean)
  int32_t logRecord;     // "LogRecord": 0 or 1 (a JSON boolean)
  int32_t logEncode;     // "LogEncode": 0 or 1 (a JSON boolean)
  int32_t packetType;    // "PacketType": 0 by time, 1 by size
  int32_t packetLength;  // "PacketLength": minutes of one recording file
  int32_t packetSize;    // "PacketSize": kilobytes of one recording file
  char snapFormatAs[KOVA_VIDEO_IN_TEXT];  // "SnapFormatAs": "MainFormat", "ExtraFormat"
  uint8_t logRecordPresent;               // "LogRecord" given; written only then
  uint8_t logEncodePresent;               // "LogEncode" given; written only then
  uint8_t packetSizePresent;              // "PacketSize" given; written only then
  uint8_t snapFormatAsPresent;            // "SnapFormatAs" given; written only then
} MediaGlobalConfig;

// ---------------------------------------------------------------------------
// "UPnP": port mapping on the router.
typedef struct UPnPMap {
  int32_t enable;                               // "Enable": 0 or 1 (a JSON boolean)
  int32_t innerPort;                            // "InnerPort"
  int32_t outerPort;                            // "OuterPort"
  char protocol[KOVA_VIDEO_IN_TEXT];            // "Protocol": "TCP", "UDP"
  char serviceName[KOVA_PICTURE_ADDRESS_TEXT];  // "ServiceName": "HTTP", "RTSP", ...
} UPnPMap;

typedef struct UPnPConfig {
  int32_t enable;  // "Enable": 0 or 1 (a JSON boolean)
  // "MapTable": the entries that are objects, in order, up to 16; pack writes `mapCount`.
  UPnPMap maps[KOVA_UPNP_MAPS];
  int32_t mapCount;
} UPnPConfig;

// ---------------------------------------------------------------------------
// "PictureHttpUpload": pictures sent to HTTP servers.
typedef struct PictureHttpUploadServer {
  char address[KOVA_PICTURE_ADDRESS_TEXT];   // "Address": host name or IP address
  int32_t port;                              // "Port"
  char userName[KOVA_PICTURE_ADDRESS_TEXT];  // "UserName"
  char password[KOVA_PICTURE_ADDRESS_TEXT];  // "Password"
  char uploadPath[KOVA_PICTURE_PATH_TEXT];   // "Uploadpath" (so spelled)
  int32_t httpsEnable;                       // "HttpsEnable": 0 or 1 (a JSON boolean)
  // "EventType": the events whose pictures go to this server, up to 16;
  // pack writes `eventTypeCount`.
  char eventTypes[KOVA_UPLOAD_EVENT_TYPES][KOVA_VIDEO_IN_TEXT];
  int32_t eventTypeCount;
  uint8_t httpsEnablePresent;  // "HttpsEnable" given; written only then
  uint8_t eventTypePresent;    // "EventType" given as an array; written only then
} PictureHttpUploadServer;

typedef struct PictureHttpUploadConfig {
  int32_t enable;  // "Enable": 0 or 1 (a JSON boolean)
  // "UploadServerList": the entries that are objects, in order, up to 8;
  // pack writes `serverCount`.
  PictureHttpUploadServer servers[KOVA_UPLOAD_SERVERS];
  int32_t serverCount;
} PictureHttpUploadConfig;

#ifdef __cplusplus
}
static_assert(sizeof(VideoInModeConfig) == 1236, "VideoInModeConfig layout");
static_assert(offsetof(VideoInModeConfig, timeSection) == 56, "VideoInModeConfig layout");
static_assert(sizeof(SmartMotionDetectConfig) == 44, "SmartMotionDetectConfig layout");
static_assert(sizeof(LightingV2Light) == 376, "LightingV2Light layout");
static_assert(sizeof(LightingV2Profile) == 1508, "LightingV2Profile layout");
static_assert(sizeof(LightingV2Config) == 24132, "LightingV2Config layout");
static_assert(offsetof(LightingV2Config, profileCount) == 24128, "LightingV2Config layout");
static_assert(sizeof(LightingSchemeSection) == 56, "LightingSchemeSection layout");
static_assert(sizeof(LightingSchemeProfile) == 2456, "LightingSchemeProfile layout");
static_assert(sizeof(LightingSchemeConfig) == 39300, "LightingSchemeConfig layout");
static_assert(sizeof(VideoInWhiteBalanceProfile) == 100, "VideoInWhiteBalanceProfile layout");
static_assert(sizeof(VideoInWhiteBalanceConfig) == 1604, "VideoInWhiteBalanceConfig layout");
static_assert(sizeof(VideoInBacklightProfile) == 164, "VideoInBacklightProfile layout");
static_assert(sizeof(VideoInBacklightConfig) == 2628, "VideoInBacklightConfig layout");
static_assert(sizeof(VideoInSharpnessProfile) == 48, "VideoInSharpnessProfile layout");
static_assert(sizeof(VideoInSharpnessConfig) == 772, "VideoInSharpnessConfig layout");
static_assert(sizeof(VideoInDenoiseProfile) == 100, "VideoInDenoiseProfile layout");
static_assert(sizeof(VideoInDenoiseConfig) == 1604, "VideoInDenoiseConfig layout");
static_assert(sizeof(VideoInIRExposureProfile) == 40, "VideoInIRExposureProfile layout");
static_assert(sizeof(VideoInIRExposureConfig) == 644, "VideoInIRExposureConfig layout");
static_assert(sizeof(VideoSubColorProfile) == 65, "VideoSubColorProfile layout");
static_assert(sizeof(VideoSubColorConfig) == 1044, "VideoSubColorConfig layout");
static_assert(sizeof(VideoImageControlConfig) == 68, "VideoImageControlConfig layout");
static_assert(sizeof(DisableLinkageConfig) == 264, "DisableLinkageConfig layout");
static_assert(offsetof(DisableLinkageConfig, perChannel) == 260, "DisableLinkageConfig layout");
static_assert(sizeof(FloodLightModeConfig) == 264, "FloodLightModeConfig layout");
static_assert(offsetof(FloodLightModeConfig, perChannel) == 260, "FloodLightModeConfig layout");
static_assert(sizeof(LightGlobalConfig) == 8, "LightGlobalConfig layout");
static_assert(sizeof(VideoStandardConfig) == 32, "VideoStandardConfig layout");
static_assert(sizeof(MediaGlobalConfig) == 60, "MediaGlobalConfig layout");
static_assert(sizeof(UPnPMap) == 108, "UPnPMap layout");
static_assert(sizeof(UPnPConfig) == 1736, "UPnPConfig layout");
static_assert(sizeof(PictureHttpUploadServer) == 848, "PictureHttpUploadServer layout");
static_assert(sizeof(PictureHttpUploadConfig) == 6792, "PictureHttpUploadConfig layout");
#endif

#endif  // KOVA_RECORDS_PICTURE_H_
