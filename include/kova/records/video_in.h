// Records of the picture settings: video input ("VideoInExposure",
// "VideoInFocus", "VideoInZoom", "VideoInDefog", "VideoInDayNight",
// "VideoInOptions"), colour ("VideoColor"), illuminators ("Lighting") and
// titles ("ChannelTitle", "VideoWidget").
//
// One record per channel. A device's answer for all channels is an array
// (one element per channel) and fills one record per element, as many as
// the caller's buffer holds; a one-channel answer fills record 0. The caller's
// buffer is cleared first, and the returned length is the bytes of the
// records filled. Pack writes one record as the bare value and several as
// an array; an input shorter than one record is refused.
//
// Profile names: a channel's JSON is an array of profiles, in the device's
// order (the day, night and normal profiles, a fourth on some devices; 9 on
// newer cameras and recorders, 6 or more named scenes on scene-based
// cameras), so the all-channel answer is an array of arrays and a
// one-channel answer a single array of profiles. Their records hold up to
// KOVA_VIDEO_IN_PROFILES profiles and the count taken; profile i of the
// device lands in slot i, and profiles past the capacity are left out.
// Every profile carries the scene's "Name" where the device gives one.
//
// Members a device leaves out stay zero. Members that not every device
// sends carry a presence flag (`xxxPresent`, one byte): set when the key was
// given and not null, and on pack the key is written only when it is set.
// Members without a flag are always written. Text fields hold the local code
// page (see the README) and are cut to their capacity less one byte.
// Enumeration-like texts ("Style", "Mode" of defog and lighting,
// "WhiteBalance", ...) are kept as text, so that values no list foresaw
// survive a round trip.
#ifndef KOVA_RECORDS_VIDEO_IN_H_
#define KOVA_RECORDS_VIDEO_IN_H_

#include <stddef.h>
#include <stdint.h>

#include "kova/records/schedule.h"

#ifdef __cplusplus
extern "C" {
#endif

enum {
  KOVA_VIDEO_IN_PROFILES = 16,   // profile slots of a profile record
  KOVA_DAY_NIGHT_PROFILES = 3,   // profiles of a "VideoInDayNight" record
  KOVA_LIGHTING_LIGHTS = 4,      // entries of each light list of a lighting profile
  KOVA_VIDEO_WIDGET_COVERS = 8,  // privacy masks of a "VideoWidget" record
  KOVA_VIDEO_WIDGET_TITLES = 8,  // entries of each title list of a "VideoWidget" record
  KOVA_VIDEO_IN_TEXT = 32,       // capacity of the enumeration-like texts
  KOVA_TITLE_TEXT = 128,         // capacity of title texts
};

// ---------------------------------------------------------------------------
// "VideoColor": picture colour per profile.
typedef struct VideoColorProfile {
  int32_t brightness;              // "Brightness", 0-100
  int32_t contrast;                // "Contrast", 0-100
  int32_t saturation;              // "Saturation", 0-100
  int32_t hue;                     // "Hue", 0-100
  int32_t gamma;                   // "Gamma"
  int32_t chromaSuppress;          // "ChromaSuppress": chroma suppression level
  char style[KOVA_VIDEO_IN_TEXT];  // "Style": "Standard", "Gentle", "Flamboyant", ...
  // "TimeSection": when the profile applies, one section text such as
  // "1 00:00:00-24:00:00" (each time field at most two digits). A text that
  // does not give all seven numbers leaves the section zero and unflagged.
  TimeSectionRecord timeSection;
  uint8_t gammaPresent;           // "Gamma" given; written only then
  uint8_t chromaSuppressPresent;  // "ChromaSuppress" given; written only then
  uint8_t stylePresent;           // "Style" given; written only then
  uint8_t timeSectionPresent;     // "TimeSection" given and well formed; written only then
  char name[KOVA_VIDEO_IN_TEXT];  // "Name": the scene's name, on scene-based cameras
  uint8_t namePresent;            // "Name" given; written only then
} VideoColorProfile;

typedef struct VideoColorConfig {
  VideoColorProfile profiles[KOVA_VIDEO_IN_PROFILES];  // the channel's array
  int32_t profileCount;  // profiles given, at most 16; pack writes this many (cut to 16)
} VideoColorConfig;

// ---------------------------------------------------------------------------
// "VideoInExposure": exposure per profile.
typedef struct VideoInExposureProfile {
  int32_t mode;                     // "Mode": 0 automatic, 1 gain priority, 2 shutter priority, ...
  int32_t antiFlicker;              // "AntiFlicker": 0 outdoor, 1 50 Hz, 2 60 Hz
  int32_t compensation;             // "Compensation": exposure compensation level
  int32_t doubleExposure;           // "DoubleExposure"
  int32_t gain;                     // "Gain", 0-100
  int32_t gainMin;                  // "GainMin"
  int32_t gainMax;                  // "GainMax"
  int32_t iris;                     // "Iris": iris opening, 0-100
  int32_t irisMin;                  // "IrisMin"
  int32_t irisMax;                  // "IrisMax"
  int32_t recoveryTime;             // "RecoveryTime": seconds before automatic exposure resumes
  int32_t slowAutoExposure;         // "SlowAutoExposure"
  int32_t slowSpeed;                // "SlowSpeed"
  int32_t speed;                    // "Speed": shutter speed level
  int32_t irisAuto;                 // "IrisAuto": 0 or 1 (a JSON boolean)
  int32_t slowShutter;              // "SlowShutter": 0 or 1 (a JSON boolean)
  double value1;                    // "Value1": shortest shutter, milliseconds (0.1, 33.33, ...)
  double value2;                    // "Value2": longest shutter, milliseconds
  uint8_t doubleExposurePresent;    // "DoubleExposure" given; written only then
  uint8_t gainMinPresent;           // "GainMin" given; written only then
  uint8_t gainMaxPresent;           // "GainMax" given; written only then
  uint8_t irisMinPresent;           // "IrisMin" given; written only then
  uint8_t irisMaxPresent;           // "IrisMax" given; written only then
  uint8_t recoveryTimePresent;      // "RecoveryTime" given; written only then
  uint8_t slowAutoExposurePresent;  // "SlowAutoExposure" given; written only then
  uint8_t slowShutterPresent;       // "SlowShutter" given; written only then
  uint8_t slowSpeedPresent;         // "SlowSpeed" given; written only then
  uint8_t speedPresent;             // "Speed" given; written only then
  char name[KOVA_VIDEO_IN_TEXT];    // "Name": the scene's name, on scene-based cameras
  uint8_t namePresent;              // "Name" given; written only then
} VideoInExposureProfile;

typedef struct VideoInExposureConfig {
  VideoInExposureProfile profiles[KOVA_VIDEO_IN_PROFILES];
  int32_t profileCount;  // profiles given, at most 16
} VideoInExposureConfig;

// ---------------------------------------------------------------------------
// "VideoInFocus": focus per profile.
typedef struct VideoInFocusProfile {
  int32_t mode;            // "Mode": 0 off, 1 assisted, 2 automatic, 3 semi-automatic, 4 manual
  int32_t autoFocusTrace;  // "AutoFocusTrace": refocus while zooming
  int32_t focusLimit;      // "FocusLimit": nearest focus distance, millimetres
  int32_t irCorrection;    // "IRCorrection": infrared focus correction
  int32_t sensitivity;     // "Sensitivity": 0 high, 1 default, 2 low
  char focusLimitSelectMode[KOVA_VIDEO_IN_TEXT];  // "FocusLimitSelectMode": "Auto", "Manual", ...
  uint8_t autoFocusTracePresent;                  // "AutoFocusTrace" given; written only then
  uint8_t focusLimitPresent;                      // "FocusLimit" given; written only then
  uint8_t focusLimitSelectModePresent;            // "FocusLimitSelectMode" given; written only then
  char name[KOVA_VIDEO_IN_TEXT];  // "Name": the scene's name, on scene-based cameras
  uint8_t namePresent;            // "Name" given; written only then
} VideoInFocusProfile;

typedef struct VideoInFocusConfig {
  VideoInFocusProfile profiles[KOVA_VIDEO_IN_PROFILES];
  int32_t profileCount;  // profiles given, at most 16
} VideoInFocusConfig;

// ---------------------------------------------------------------------------
// "VideoInZoom": zoom per profile.
typedef struct VideoInZoomProfile {
  int32_t digitalZoom;            // "DigitalZoom": 0 or 1 (a JSON boolean)
  int32_t speed;                  // "Speed": zoom speed level
  int32_t zoomLimit;              // "ZoomLimit": highest zoom factor allowed
  char name[KOVA_VIDEO_IN_TEXT];  // "Name": the scene's name, on scene-based cameras
  uint8_t namePresent;            // "Name" given; written only then
} VideoInZoomProfile;

typedef struct VideoInZoomConfig {
  VideoInZoomProfile profiles[KOVA_VIDEO_IN_PROFILES];
  int32_t profileCount;  // profiles given, at most 16
} VideoInZoomConfig;

// ---------------------------------------------------------------------------
// "VideoInDefog": optical and electronic defog per profile.
typedef struct VideoInDefogProfile {
  int32_t camDefogEnable;                       // "CamDefogEnable": 0 or 1 (a JSON boolean)
  int32_t intensity;                            // "Intensity": defog strength
  int32_t lightIntensityLevel;                  // "LightIntensityLevel": atmospheric light level
  char mode[KOVA_VIDEO_IN_TEXT];                // "Mode": "Off", "Auto", "Manual", ...
  char lightIntensityMode[KOVA_VIDEO_IN_TEXT];  // "LightIntensityMode": "Auto", "Manual", ...
  uint8_t camDefogEnablePresent;                // "CamDefogEnable" given; written only then
  uint8_t lightIntensityLevelPresent;           // "LightIntensityLevel" given; written only then
  uint8_t lightIntensityModePresent;            // "LightIntensityMode" given; written only then
  char name[KOVA_VIDEO_IN_TEXT];                // "Name": the scene's name, on scene-based cameras
  uint8_t namePresent;                          // "Name" given; written only then
} VideoInDefogProfile;

typedef struct VideoInDefogConfig {
  VideoInDefogProfile profiles[KOVA_VIDEO_IN_PROFILES];
  int32_t profileCount;  // profiles given, at most 16
} VideoInDefogConfig;

// ---------------------------------------------------------------------------
// "Lighting": infrared and white-light illuminators per profile (devices
// send 4 profiles, newer ones 9).

// One lamp group of a light list: {"Angle", "Light"}.
typedef struct LightingLight {
  int32_t angle;  // "Angle": beam angle, 0-100
  int32_t light;  // "Light": brightness, 0-100
} LightingLight;

typedef struct LightingProfile {
  char mode[KOVA_VIDEO_IN_TEXT];  // "Mode": "Auto", "Manual", "ZoomPrio", "Off", ...
  int32_t correction;             // "Correction": brightness correction
  int32_t sensitive;              // "Sensitive": switching sensitivity
  // Each list keeps the entries that are objects, in order, up to 4;
  // the count is the entries kept, and pack writes that many.
  LightingLight nearLight[KOVA_LIGHTING_LIGHTS];    // "NearLight"
  LightingLight middleLight[KOVA_LIGHTING_LIGHTS];  // "MiddleLight"
  LightingLight farLight[KOVA_LIGHTING_LIGHTS];     // "FarLight"
  int32_t nearLightCount;
  int32_t middleLightCount;
  int32_t farLightCount;
  uint8_t nearLightPresent;       // "NearLight" given as an array; written only then
  uint8_t farLightPresent;        // "FarLight" given as an array; written only then
  char name[KOVA_VIDEO_IN_TEXT];  // "Name": the scene's name, on scene-based cameras
  uint8_t namePresent;            // "Name" given; written only then
} LightingProfile;

typedef struct LightingConfig {
  LightingProfile profiles[KOVA_VIDEO_IN_PROFILES];
  int32_t profileCount;  // profiles given, at most 16
} LightingConfig;

// ---------------------------------------------------------------------------
// "VideoInDayNight": day/night switching, a record of fixed size (48 bytes):
// a table of channels is an array of arrays of profiles, the buffer is
// cleared first, and the returned length is added to (never reset), 48 per
// record;
// pack writes inLen / 48 records. Every record holds exactly three
// profiles, and pack writes all three.
typedef struct VideoInDayNightProfile {
  // "Mode": 0 "Color", 1 "Brightness", 2 "BlackWhite", 3 "Photoresistor",
  // 4 "Gain", letter case ignored. An unknown text, a value that is not a
  // text, or no "Mode" at all reads as -1; a value without a name is left
  // out on pack.
  int32_t mode;
  // "Type": 0 "Mechanism", 1 "Electron" (the switching part: the filter or
  // the sensor), letter case ignored; otherwise as `mode`.
  int32_t type;
  int32_t sensitivity;  // "Sensitivity": switching sensitivity level
  int32_t delay;        // "Delay": seconds before switching
} VideoInDayNightProfile;

typedef struct VideoInDayNightConfig {
  // The channel's array, in order; profiles the device does not send keep
  // mode and type -1 and the numbers 0.
  VideoInDayNightProfile profiles[KOVA_DAY_NIGHT_PROFILES];
} VideoInDayNightConfig;

// ---------------------------------------------------------------------------
// "VideoInOptions": per channel one object of front-end settings, with the
// nested "NightOptions", "NormalOptions" and "DuskOptions" objects that carry
// a subset of the same members for one period of the day. Devices send
// very different subsets, so every member of the option set has a presence
// flag.

// "Snapshot" of an option set: exposure, gain and white balance used for
// snapshots instead of the live picture's. Each member has a flag: the key
// was given; pack writes it only then.
typedef struct VideoInSnapshotOptions {
  double exposureValue1;                  // "ExposureValue1": shortest shutter, milliseconds
  double exposureValue2;                  // "ExposureValue2": longest shutter, milliseconds
  int32_t exposureSpeed;                  // "ExposureSpeed": shutter level, 0 automatic
  int32_t gain;                           // "Gain", 0-100
  int32_t gainAuto;                       // "GainAuto": 0 or 1 (a JSON boolean)
  int32_t gainRed;                        // "GainRed"
  int32_t gainGreen;                      // "GainGreen"
  int32_t gainBlue;                       // "GainBlue"
  int32_t colorTemperatureLevel;          // "ColorTemperatureLevel"
  char whiteBalance[KOVA_VIDEO_IN_TEXT];  // "WhiteBalance": "Auto", "Custom", ...
  uint8_t exposureValue1Present;
  uint8_t exposureValue2Present;
  uint8_t exposureSpeedPresent;
  uint8_t gainPresent;
  uint8_t gainAutoPresent;
  uint8_t gainRedPresent;
  uint8_t gainGreenPresent;
  uint8_t gainBluePresent;
  uint8_t colorTemperatureLevelPresent;
  uint8_t whiteBalancePresent;
} VideoInSnapshotOptions;

// "TemporaryConfigs" of an option set: exposure settings a device applies
// for a while (while an alarm lasts) before returning to the set's own.
// Each member has a flag: the key was given; pack writes it only then.
typedef struct VideoInTemporaryOptions {
  double exposureValue1;  // "ExposureValue1": shortest shutter, milliseconds
  double exposureValue2;  // "ExposureValue2": longest shutter, milliseconds
  int32_t antiFlicker;    // "AntiFlicker": 0 outdoor, 1 50 Hz, 2 60 Hz
  int32_t exposureMode;   // "ExposureMode"
  int32_t gainMin;        // "GainMin"
  int32_t gainMax;        // "GainMax"
  uint8_t exposureValue1Present;
  uint8_t exposureValue2Present;
  uint8_t antiFlickerPresent;
  uint8_t exposureModePresent;
  uint8_t gainMinPresent;
  uint8_t gainMaxPresent;
} VideoInTemporaryOptions;

// The option members, read from the channel's object or from a nested block.
typedef struct VideoInOptionSet {
  int32_t brightness;            // "Brightness", 0-100
  int32_t contrast;              // "Contrast", 0-100
  int32_t saturation;            // "Saturation", 0-100
  int32_t hue;                   // "Hue", 0-100
  int32_t gamma;                 // "Gamma"
  int32_t exposureMode;          // "ExposureMode": 0 automatic, 1 low noise, 2 anti-smear, ...
  int32_t exposureSpeed;         // "ExposureSpeed": shutter level, 0 automatic
  int32_t exposureCompensation;  // "ExposureCompensation"
  double exposureValue1;         // "ExposureValue1": shortest shutter, milliseconds
  double exposureValue2;         // "ExposureValue2": longest shutter, milliseconds
  int32_t exposureIris;          // "ExposureIris": iris opening, 0-100
  int32_t gain;                  // "Gain", 0-100
  int32_t gainAuto;              // "GainAuto": 0 or 1 (a JSON boolean)
  int32_t gainMin;               // "GainMin"
  int32_t gainMax;               // "GainMax"
  int32_t gainRed;               // "GainRed": white balance red gain
  int32_t gainGreen;             // "GainGreen": white balance green gain
  int32_t gainBlue;              // "GainBlue": white balance blue gain
  int32_t irisAuto;              // "IrisAuto": 0 or 1 (a JSON boolean)
  int32_t irisAutoSensitivity;   // "IrisAutoSensitivity"
  char whiteBalance[KOVA_VIDEO_IN_TEXT];  // "WhiteBalance": "Auto", "Disable", "Custom", "Sunny",
                                          // ...
  int32_t whiteBalanceDatumRect[4];       // "WhiteBalanceDatumRect": [left, top, right, bottom]
  int32_t colorTemperatureLevel;          // "ColorTemperatureLevel"
  int32_t dayNightColor;  // "DayNightColor": 0 always colour, 1 automatic, 2 always black-white
  int32_t dayNightSensitivity;     // "DayNightSensitivity"
  int32_t dayNightSwitchDelay;     // "DayNightSwitchDelay": seconds
  int32_t alarmDayNightColorMode;  // "AlarmDayNightColorMode": colour mode while an alarm lasts
  int32_t switchMode;          // "SwitchMode": how day and night alternate (by light, by time, ...)
  int32_t sunriseHour;         // "SunriseHour"
  int32_t sunriseMinute;       // "SunriseMinute"
  int32_t sunriseSecond;       // "SunriseSecond"
  int32_t sunsetHour;          // "SunsetHour"
  int32_t sunsetMinute;        // "SunsetMinute"
  int32_t sunsetSecond;        // "SunsetSecond"
  int32_t backlight;           // "Backlight": 0 off, 1 on, 2 by region, ...
  int32_t backlightRegion[4];  // "BacklightRegion": [left, top, right, bottom]
  int32_t wideDynamicRange;    // "WideDynamicRange": level
  int32_t wideDynamicRangeMode;           // "WideDynamicRangeMode": 0 off, 1 manual, 2 automatic
  int32_t glareInhibition;                // "GlareInhibition": level, 0 off
  int32_t antiFlicker;                    // "AntiFlicker": 0 outdoor, 1 50 Hz, 2 60 Hz
  int32_t doubleExposure;                 // "DoubleExposure"
  int32_t mirror;                         // "Mirror": 0 or 1 (a JSON boolean)
  int32_t flip;                           // "Flip": 0 or 1 (a JSON boolean)
  int32_t rotate90;                       // "Rotate90": 0 none, 1 clockwise, 2 anticlockwise
  int32_t infraRed;                       // "InfraRed": 0 or 1 (a JSON boolean)
  int32_t infraRedLevel;                  // "InfraRedLevel"
  int32_t focusMode;                      // "FocusMode": 0 off, 1 assisted, 2 automatic, ...
  int32_t focusRect[4];                   // "FocusRect": [left, top, right, bottom]
  char signalFormat[KOVA_VIDEO_IN_TEXT];  // "SignalFormat": "Inside", "BT656", "720p", ...
  int32_t referenceLevel;                 // "ReferenceLevel"
  int32_t referenceLevelEnable;           // "ReferenceLevelEnable": 0 or 1 (a JSON boolean)
  int32_t externalSync;                   // "ExternalSync"
  int32_t externalSyncPhase;              // "ExternalSyncPhase"
  // One flag per member above, in the same order: the key was given (a
  // rectangle: as an array of at least 4 numbers); pack writes it only then.
  uint8_t brightnessPresent;
  uint8_t contrastPresent;
  uint8_t saturationPresent;
  uint8_t huePresent;
  uint8_t gammaPresent;
  uint8_t exposureModePresent;
  uint8_t exposureSpeedPresent;
  uint8_t exposureCompensationPresent;
  uint8_t exposureValue1Present;
  uint8_t exposureValue2Present;
  uint8_t exposureIrisPresent;
  uint8_t gainPresent;
  uint8_t gainAutoPresent;
  uint8_t gainMinPresent;
  uint8_t gainMaxPresent;
  uint8_t gainRedPresent;
  uint8_t gainGreenPresent;
  uint8_t gainBluePresent;
  uint8_t irisAutoPresent;
  uint8_t irisAutoSensitivityPresent;
  uint8_t whiteBalancePresent;
  uint8_t whiteBalanceDatumRectPresent;
  uint8_t colorTemperatureLevelPresent;
  uint8_t dayNightColorPresent;
  uint8_t dayNightSensitivityPresent;
  uint8_t dayNightSwitchDelayPresent;
  uint8_t alarmDayNightColorModePresent;
  uint8_t switchModePresent;
  uint8_t sunriseHourPresent;
  uint8_t sunriseMinutePresent;
  uint8_t sunriseSecondPresent;
  uint8_t sunsetHourPresent;
  uint8_t sunsetMinutePresent;
  uint8_t sunsetSecondPresent;
  uint8_t backlightPresent;
  uint8_t backlightRegionPresent;
  uint8_t wideDynamicRangePresent;
  uint8_t wideDynamicRangeModePresent;
  uint8_t glareInhibitionPresent;
  uint8_t antiFlickerPresent;
  uint8_t doubleExposurePresent;
  uint8_t mirrorPresent;
  uint8_t flipPresent;
  uint8_t rotate90Present;
  uint8_t infraRedPresent;
  uint8_t infraRedLevelPresent;
  uint8_t focusModePresent;
  uint8_t focusRectPresent;
  uint8_t signalFormatPresent;
  uint8_t referenceLevelPresent;
  uint8_t referenceLevelEnablePresent;
  uint8_t externalSyncPresent;
  uint8_t externalSyncPhasePresent;
  int32_t profile;  // "Profile": the profile the set belongs to, as the device numbers it
  int32_t brightnessThreshold;      // "BrightnessThreshold": light level that switches the set
  VideoInSnapshotOptions snapshot;  // "Snapshot"
  VideoInTemporaryOptions temporaryConfigs;  // "TemporaryConfigs"
  // The key was given (a block: as an object); pack writes it only then.
  uint8_t profilePresent;
  uint8_t brightnessThresholdPresent;
  uint8_t snapshotPresent;
  uint8_t temporaryConfigsPresent;
} VideoInOptionSet;

// "FlashControl": the flash lamp of a snapshot camera.
typedef struct VideoInFlashControl {
  int32_t mode;      // "Mode": 0 never, 1 always, 2 automatic
  int32_t pole;      // "Pole": trigger polarity
  int32_t preValue;  // "PreValue": brightness threshold that arms the flash
  int32_t value;     // "Value": flash level
} VideoInFlashControl;

typedef struct VideoInOptionsConfig {
  VideoInOptionSet options;          // the members at the top of the channel's object
  VideoInOptionSet nightOptions;     // "NightOptions"
  VideoInOptionSet normalOptions;    // "NormalOptions"
  VideoInOptionSet duskOptions;      // "DuskOptions"
  VideoInFlashControl flashControl;  // "FlashControl"
  uint8_t nightOptionsPresent;       // "NightOptions" given as an object; written only then
  uint8_t normalOptionsPresent;      // "NormalOptions" given as an object; written only then
  uint8_t duskOptionsPresent;        // "DuskOptions" given as an object; written only then
  uint8_t flashControlPresent;       // "FlashControl" given as an object; written only then
  uint8_t autoSyncPhasePresent;      // "AutoSyncPhase" given; written only then
  int32_t autoSyncPhase;             // "AutoSyncPhase": 0 or 1 (a JSON boolean), the phase of
                                     // the external sync found by the device
} VideoInOptionsConfig;

#ifdef __cplusplus
static_assert(sizeof(VideoInSnapshotOptions) == 88, "VideoInSnapshotOptions layout");
static_assert(offsetof(VideoInSnapshotOptions, exposureValue1Present) == 76,
              "VideoInSnapshotOptions layout");
static_assert(sizeof(VideoInTemporaryOptions) == 40, "VideoInTemporaryOptions layout");
static_assert(offsetof(VideoInOptionSet, profile) == 368, "VideoInOptionSet layout");
static_assert(offsetof(VideoInOptionSet, snapshot) == 376, "VideoInOptionSet layout");
static_assert(sizeof(VideoInOptionSet) == 512, "VideoInOptionSet layout");
static_assert(offsetof(VideoInOptionsConfig, autoSyncPhase) == 2072, "VideoInOptionsConfig layout");
static_assert(sizeof(VideoInOptionsConfig) == 2080, "VideoInOptionsConfig layout");
#endif

// ---------------------------------------------------------------------------
// "ChannelTitle": the channel's name.
typedef struct ChannelTitleConfig {
  // "Name": a "|" separates the lines the device displays and is kept as it is.
  char name[KOVA_TITLE_TEXT];
} ChannelTitleConfig;

// ---------------------------------------------------------------------------
// "VideoWidget": the overlays drawn on a channel's picture.

// One overlay: the channel title, the time title, a custom or user-defined
// title, or a privacy mask.
typedef struct VideoWidgetBlock {
  int32_t encodeBlend;    // "EncodeBlend": 0 or 1, drawn into the encoded stream (a JSON boolean)
  int32_t previewBlend;   // "PreviewBlend": 0 or 1, drawn on the local preview (a JSON boolean)
  int32_t frontColor[4];  // "FrontColor": [red, green, blue, alpha], 0-255 each
  int32_t backColor[4];   // "BackColor": [red, green, blue, alpha], 0-255 each
  int32_t rect[4];        // "Rect": [left, top, right, bottom] on a 0-8191 grid
  int32_t showWeek;       // "ShowWeek": 0 or 1, the time title shows the weekday (a JSON boolean)
  char text[KOVA_TITLE_TEXT];  // "Text": a title's text, "|" separating its lines
  uint8_t showWeekPresent;     // "ShowWeek" given (the time title); written only then
  uint8_t textPresent;         // "Text" given (the titles of the lists); written only then
} VideoWidgetBlock;

typedef struct VideoWidgetConfig {
  VideoWidgetBlock channelTitle;  // "ChannelTitle"
  VideoWidgetBlock timeTitle;     // "TimeTitle"
  // Each list keeps the entries that are objects, in order, up to its
  // capacity; the count is the entries kept, and pack writes that many.
  VideoWidgetBlock covers[KOVA_VIDEO_WIDGET_COVERS];             // "Covers": privacy masks
  VideoWidgetBlock customTitles[KOVA_VIDEO_WIDGET_TITLES];       // "CustomTitle"
  VideoWidgetBlock userDefinedTitles[KOVA_VIDEO_WIDGET_TITLES];  // "UserDefinedTitle"
  int32_t coverCount;
  int32_t customTitleCount;
  int32_t userDefinedTitleCount;
  uint8_t customTitlePresent;       // "CustomTitle" given as an array; written only then
  uint8_t userDefinedTitlePresent;  // "UserDefinedTitle" given as an array; written only then
} VideoWidgetConfig;

#ifdef __cplusplus
}
static_assert(sizeof(VideoInDayNightProfile) == 16, "VideoInDayNightProfile layout");
static_assert(sizeof(VideoInDayNightConfig) == 48, "VideoInDayNightConfig layout");
// The profile records: 16 profiles, then the count.
static_assert(sizeof(VideoColorProfile) == 124, "VideoColorProfile layout");
static_assert(sizeof(VideoColorConfig) == 1988, "VideoColorConfig layout");
static_assert(offsetof(VideoColorConfig, profileCount) == 1984, "VideoColorConfig layout");
static_assert(sizeof(VideoInExposureProfile) == 128, "VideoInExposureProfile layout");
static_assert(sizeof(VideoInExposureConfig) == 2056, "VideoInExposureConfig layout");
static_assert(offsetof(VideoInExposureConfig, profileCount) == 2048,
              "VideoInExposureConfig layout");
static_assert(sizeof(VideoInFocusProfile) == 88, "VideoInFocusProfile layout");
static_assert(sizeof(VideoInFocusConfig) == 1412, "VideoInFocusConfig layout");
static_assert(sizeof(VideoInZoomProfile) == 48, "VideoInZoomProfile layout");
static_assert(sizeof(VideoInZoomConfig) == 772, "VideoInZoomConfig layout");
static_assert(sizeof(VideoInDefogProfile) == 112, "VideoInDefogProfile layout");
static_assert(sizeof(VideoInDefogConfig) == 1796, "VideoInDefogConfig layout");
static_assert(sizeof(LightingProfile) == 184, "LightingProfile layout");
static_assert(sizeof(LightingConfig) == 2948, "LightingConfig layout");
static_assert(offsetof(LightingConfig, profileCount) == 2944, "LightingConfig layout");
#endif

#endif  // KOVA_RECORDS_VIDEO_IN_H_
