// Records of the analysis set-up of a channel: the detection modules
// ("VideoAnalyseModule") and the global scene settings
// ("VideoAnalyseGlobal").
//
// Members whose inner layout varies with the device are kept as the
// device's own JSON text (UTF-8, one line, no code-page conversion): such a
// field is filled only when the text fits with its terminator, and packs
// back as the same JSON value.
#ifndef KOVA_RECORDS_ANALYSE_SETUP_H_
#define KOVA_RECORDS_ANALYSE_SETUP_H_

#include <stddef.h>
#include <stdint.h>

#include "kova/records/analyse.h"

#ifdef __cplusplus
extern "C" {
#endif

enum {
  KOVA_ANALYSE_MAX_MODULES = 16,
  KOVA_MODULE_MAX_EXCLUDE_REGIONS = 10,
  KOVA_MODULE_MAX_SPECIAL_REGIONS = 8,
  KOVA_GLOBAL_MAX_PERIODS = 32,          // "TimePeriod1" .. "TimePeriod32"
  KOVA_GLOBAL_MAX_CALIBRATE_AREAS = 32,  // "CalibrateArea", "CalibrateArea1" .. "CalibrateArea31"
  KOVA_GLOBAL_MAX_SCENES = 8,            // "Scene1" .. "Scene8"
  KOVA_SCENE_MAX_TYPES = 8,              // "TypeList" entries
  KOVA_CALIBRATE_MAX_STAFFS = 8,         // "Staffs" entries of one area
};

// ---------------------------------------------------------------------------
// "VideoAnalyseModule"

// One "SpecialDetectRegion" entry: a region with special properties.
typedef struct SpecialDetectRegion {
  PointList region;    // "SpecialRegion"
  char property[256];  // "Property" ("Attributes", "Category", ...), as JSON text
} SpecialDetectRegion;

// One detection module. The members up to `excludeRegions` are always
// written on pack; each later member has a presence flag (set on parse when
// the key is present; on pack, the member is written only when it is set).
typedef struct AnalyseModule {
  char objectType[128];    // "ObjectType", local code page
  uint8_t snapShot;        // "SnapShot" (0/1)
  uint8_t sensitivity;     // "Sensitivity", cut to 8 bits
  PointList detectRegion;  // "DetectRegion" (the point rule of PointList)
  // "ExcludeRegion": regions looked at (at most 10); entry i goes to slot i
  // (a null or malformed entry keeps its slot empty).
  uint32_t excludeRegionCount;
  PointList excludeRegions[10];
  PointList trackRegion;       // "TrackRegion"
  char backgroud[256];         // "Backgroud" (so spelled by the devices), as JSON text
  SizeFilterBlock sizeFilter;  // "SizeFilter"
  char objectFilter[256];      // "ObjectFilter", as JSON text
  char objectImageSize[128];   // "ObjectImageSize", as JSON text
  // "SpecialDetectRegion": entries looked at (at most 8), entry i to slot i.
  uint32_t specialDetectRegionCount;
  SpecialDetectRegion specialDetectRegions[8];
  uint8_t antiDisturbance;        // "AntiDisturbance" (0/1)
  uint8_t backlight;              // "Backlight" (0/1)
  uint8_t shadow;                 // "Shadow" (0/1)
  uint8_t contourAssistantTrack;  // "ContourAssistantTrack" (0/1)
  int32_t ptzPresetId;            // "PtzPresetId"
  int32_t accuracy;               // "Accuracy"
  int32_t movingStep;             // "MovingStep"
  double scalingFactor;           // "ScalingFactor"
  int32_t detectBalance;          // "DetectBalance"
  char type[16];                  // "Type", local code page
  uint8_t trackRegionPresent;
  uint8_t backgroudPresent;
  uint8_t sizeFilterPresent;
  uint8_t objectFilterPresent;
  uint8_t objectImageSizePresent;
  uint8_t specialDetectRegionPresent;
  uint8_t antiDisturbancePresent;
  uint8_t backlightPresent;
  uint8_t shadowPresent;
  uint8_t contourAssistantTrackPresent;
  uint8_t ptzPresetIdPresent;
  uint8_t accuracyPresent;
  uint8_t movingStepPresent;
  uint8_t scalingFactorPresent;
  uint8_t detectBalancePresent;
  uint8_t typePresent;
} AnalyseModule;

// "VideoAnalyseModule": the detection modules of one channel, "table" being
// an array of module objects.
//
// Parse: outLen must hold the record; the record is written whole (cleared
// first) only when the parse succeeds. A "result" that is present and false
// fails (record untouched); so does text that is not JSON. A missing or
// non-array table reads as no modules. *retLen = sizeof the record.
// Pack: needs inLen of one record; writes an array of moduleCount (at most
// 16) module objects; the text is copied only when strictly shorter than
// outLen.
typedef struct VideoAnalyseModuleConfig {
  // Modules looked at (at most 16); a null entry keeps its slot zero and is
  // counted.
  uint32_t moduleCount;
  AnalyseModule modules[16];
} VideoAnalyseModuleConfig;

// ---------------------------------------------------------------------------
// "VideoAnalyseGlobal"

// A time of day, "hh:mm:ss" on the device (read as "%d:%d:%d", all three
// numbers required; written with two digits each).
typedef struct ClockTime {
  int32_t hour;
  int32_t minute;
  int32_t second;
} ClockTime;

// [start, end] of a period; an item that does not read leaves its time zero.
typedef struct ClockRange {
  ClockTime start;
  ClockTime end;
} ClockRange;

// "SwitchMode": how the device tells day from night.
enum {
  KOVA_SWITCH_BY_COLOR = 1,       // "ByColor"
  KOVA_SWITCH_BY_BRIGHTNESS = 2,  // "ByBrightness"
};

// A day/night period: "TimePeriod" and each "TimePeriod%d".
typedef struct DayNightPeriod {
  ClockRange day;    // "Day" [start, end]
  ClockRange night;  // "Night" [start, end]
  // "SwitchMode", KOVA_SWITCH_*; another name leaves it unchanged; a value
  // without a name is not written.
  int32_t switchMode;
} DayNightPeriod;

// "Depth" of field of a scene.
enum {
  KOVA_DEPTH_NORMAL = 0,  // "Normal" (also when absent or unknown)
  KOVA_DEPTH_FAR = 1,     // "Far"
  KOVA_DEPTH_MIDDLE = 2,  // "Middle"
  KOVA_DEPTH_NEAR = 3,    // "Near"
};

// One scene: "Scene" and each "Scene%d". "Type", "TypeList",
// "PtzPresetId" and "Depth" are always written on pack; the others when
// their flags are set.
typedef struct AnalyseScene {
  char type[128];          // "Type", local code page
  uint32_t typeListCount;  // "TypeList" entries looked at (at most 8)
  char typeList[8][16];    // "TypeList"[i], local code page
  int32_t ptzPresetId;     // "PtzPresetId"
  int32_t jitter;          // "Jitter"
  int32_t depth;           // "Depth", KOVA_DEPTH_*
  uint8_t jitterPresent;
  uint8_t dejitter;  // "Dejitter" (0/1)
  uint8_t dejitterPresent;
  uint8_t customDataPresent;
  uint8_t detailPresent;
  char customData[1024];  // "CustomData": the string's bytes, unchanged
  char detail[1024];      // "Detail" (laid out per scene type), as JSON text
} AnalyseScene;

// One staff (a calibration line of known real length).
typedef struct CalibrateStaff {
  Point start;    // "Start" [x, y]
  Point end;      // "End" [x, y]
  double length;  // "Length"
} CalibrateStaff;

// One calibration area: "CalibrateArea" and each "CalibrateArea%d".
typedef struct CalibrateArea {
  uint32_t staffCount;  // "Staffs" entries looked at (at most 8), entry i to slot i
  CalibrateStaff staffs[8];
} CalibrateArea;

// "VideoAnalyseGlobal": the scene set-up of one channel ("table" is one
// object). Slots of numbered members are flagged one by one.
//
// Numbered periods live in the caller's buffer: set `periods` to an array
// of DayNightPeriod and `periodCount` to its entries before parsing. Parse
// reads "TimePeriod1", "TimePeriod2", ... into it, at most periodCount (and
// at most 32) entries, stopping at the first number missing, and writes
// back the number read; a null `periods` reads none and writes back 0. The
// pointer is kept. Pack writes "TimePeriod1" .. "TimePeriodN", N =
// periodCount cut to 32 (none when `periods` is null).
//
// Parse: outLen must hold the record; the record is cleared (all but
// `periods` and `periodCount`) and filled only when the parse succeeds; a
// "result" present and false fails, leaving it untouched. *retLen = sizeof
// the record. Pack: needs inLen of one record; writes the one table
// object; the text is copied only when strictly shorter than outLen.
typedef struct VideoAnalyseGlobalConfig {
  uint8_t timePeriodPresent;         // "TimePeriod" was an object
  uint8_t scenePresent;              // "Scene" was an object
  uint8_t calibrateAreaPresent[32];  // slot 0 "CalibrateArea", slot i "CalibrateArea%d"
  uint8_t scenesPresent[8];          // slot i "Scene%d" with %d = i + 1
  DayNightPeriod timePeriod;         // "TimePeriod"
  uint32_t periodCount;              // in: entries at `periods`; out: entries read
  DayNightPeriod* periods;           // caller's buffer for "TimePeriod%d"
  AnalyseScene scene;                // "Scene"
  CalibrateArea calibrateAreas[32];
  AnalyseScene scenes[8];  // the multi-scene list
} VideoAnalyseGlobalConfig;

#ifdef __cplusplus
}

static_assert(sizeof(SpecialDetectRegion) == 420, "SpecialDetectRegion layout");
static_assert(alignof(AnalyseModule) == 8, "AnalyseModule layout");
static_assert(offsetof(AnalyseModule, detectRegion) == 132, "AnalyseModule layout");
static_assert(offsetof(AnalyseModule, sizeFilter) == 2360, "AnalyseModule layout");
static_assert(sizeof(AnalyseModule) == 6656, "AnalyseModule layout");
static_assert(offsetof(VideoAnalyseModuleConfig, modules) == 8, "VideoAnalyseModuleConfig layout");
static_assert(sizeof(VideoAnalyseModuleConfig) == 8 + 16 * 6656, "VideoAnalyseModuleConfig layout");
static_assert(sizeof(DayNightPeriod) == 52, "DayNightPeriod layout");
static_assert(sizeof(AnalyseScene) == 2328, "AnalyseScene layout");
static_assert(sizeof(CalibrateStaff) == 24, "CalibrateStaff layout");
static_assert(sizeof(CalibrateArea) == 200, "CalibrateArea layout");
static_assert(offsetof(VideoAnalyseGlobalConfig, timePeriod) == 44,
              "VideoAnalyseGlobalConfig layout");
static_assert(offsetof(VideoAnalyseGlobalConfig, periodCount) == 96,
              "VideoAnalyseGlobalConfig layout");
static_assert(sizeof(void*) != 8 || offsetof(VideoAnalyseGlobalConfig, periods) == 104,
              "VideoAnalyseGlobalConfig layout");
#endif

#endif  // KOVA_RECORDS_ANALYSE_SETUP_H_
