// Records of video analysis: the building blocks of detection rules (points,
// lines and regions, trigger positions, the size filter), the line and
// region crossing rules, and the rule list of "VideoAnalyseRule" /
// "AudioAnalyseRule". The records of the other rule types are in
// kova/records/analyse_rules.h and kova/records/analyse_traffic_rules.h.
//
// Every rule record begins with the same head (RuleHead), then the type's
// own leading fields, then the common linkage part (RuleLinkage: the alarm
// linkage block, the 7 x 10 schedule and the PTZ preset), then the type's
// trailing fields. A rule's "Config" members are the type's own fields; the
// other members are the rule object's own.
//
// Adding a rule type (for the library's developers; the steps live in
// src/config/analyse/rule_config.h):
//   1. here or in the rule headers: the record, `RuleHead head;` first
//      (`AudioRuleHead head;` for an audio rule), `RuleLinkage linkage;`
//      after the leading fields, with static_asserts on its size (the body
//      size of its type code) and on the offsets of its fields;
//   2. a constexpr field table of its "Config" keys over the record, with
//      the shared blocks below (KOVA_POINT_LIST, KOVA_TRIGGER_POSITIONS,
//      KOVA_NAME_LIST, KOVA_SIZE_FILTER) and the enumeration tables of
//      src/common/blocks/analyse_blocks.h;
//   3. its description, `RuleTypeFor<TheRule>`, named in the row of its
//      code in the table of rule types (src/config/analyse/rule_types.cpp).
#ifndef KOVA_RECORDS_ANALYSE_H_
#define KOVA_RECORDS_ANALYSE_H_

#include <stddef.h>
#include <stdint.h>

#include "kova/records/event_handler.h"
#include "kova/records/schedule.h"

#ifdef __cplusplus
extern "C" {
#endif

enum {
  KOVA_ANALYSE_MAX_POINTS = 20,       // points of one line or region
  KOVA_RULE_NAME_LENGTH = 128,        // "Name" and each "ObjectTypes" entry
  KOVA_RULE_MAX_OBJECT_TYPES = 16,    // "ObjectTypes" entries kept
  KOVA_MAX_TRIGGER_POSITIONS = 8,     // "TriggerPosition" entries read
  KOVA_SIZE_FILTER_MAX_BOXES = 10,    // entries of each calibration box list
  KOVA_CROSS_REGION_MAX_ACTIONS = 4,  // "Action" entries read
  KOVA_DIRECTION_LINE_POINTS = 2,     // points of a DirectionLine
  KOVA_MAX_DETECT_TYPES = 4,          // entries of a "DetectType" list read
  KOVA_RULE_LIST_MAX_RULES = 32,      // rules read from one rule list
  KOVA_RULE_ENTRY_HEADER_SIZE = 12,   // bytes of RuleEntryHeader
};

// ---------------------------------------------------------------------------
// Building blocks shared by rules, modules and analyzer events.

// One point, [x, y] on the device (coordinates in the device's 0..8191
// grid, carried unchanged).
typedef struct Point {
  int32_t x;
  int32_t y;
} Point;

// A polyline ("DetectLine") or polygon ("DetectRegion"): at most 20 points,
// excess ignored. The point rule: an entry is taken only when it is a
// non-null array of at least 2 numbers; every entry still occupies its
// slot, but `pointCount` counts only the points taken. So [[1,2],[5],[3,4]]
// reads as points {1,2}, {0,0}, {3,4} with pointCount 2 (a zero hole, the
// count one short); this is the devices' own rule and is kept. On pack the
// first pointCount slots (cut to 20) are written.
typedef struct PointList {
  uint32_t pointCount;
  Point points[20];
} PointList;

// A direction drawn as an arrow, [[x0, y0], [x1, y1]]: travel from the
// first point towards the last. The "Direction" of the rules that do not
// name their directions (retrograde, people counting, rising and standing
// up, the traffic rules). At most 2 points are read, by the point rule of
// PointList; on pack the first pointCount slots (cut to 2) are written.
typedef struct DirectionLine {
  uint32_t pointCount;
  Point points[2];
} DirectionLine;

// Where on a target the trigger is judged: "TriggerPosition" entries.
enum {
  KOVA_TRIGGER_CENTER = 0,         // "Center"
  KOVA_TRIGGER_LEFT_CENTER = 1,    // "LeftCenter"
  KOVA_TRIGGER_TOP_CENTER = 2,     // "TopCenter"
  KOVA_TRIGGER_RIGHT_CENTER = 3,   // "RightCenter"
  KOVA_TRIGGER_BOTTOM_CENTER = 4,  // "BottomCenter"
};

// "TriggerPosition": at most 8 entries are looked at. Entry i goes to slot
// i; each non-null entry is counted, a name that is none of the five is
// counted and leaves its slot 0; a null entry is not counted but uses its
// slot all the same. Names are matched without regard to letter case. On
// pack the first `count` slots (cut to 8) are written by name.
typedef struct TriggerPositions {
  uint32_t count;
  uint8_t positions[8];  // KOVA_TRIGGER_*
} TriggerPositions;

// "MeasureMode" of the size filter.
enum {
  KOVA_MEASURE_PIXEL = 0,             // "Pixel"
  KOVA_MEASURE_METRIC = 1,            // "Metric"
  KOVA_MEASURE_CALIBRATED_PIXEL = 2,  // "CalibratedPixel"
};

// "Type" of the size filter.
enum {
  KOVA_SIZE_FILTER_BY_LENGTH = 0,  // "ByLength"
  KOVA_SIZE_FILTER_BY_AREA = 1,    // "ByArea"
  KOVA_SIZE_FILTER_BY_RATIO = 2,   // "ByRatio"
};

// One calibration box of the size filter: {"CenterPoint": [x, y],
// "Ratio": r}.
typedef struct CalibrateBox {
  Point centerPoint;  // "CenterPoint"; left zero unless an array of 2
  float ratio;        // "Ratio"
} CalibrateBox;

// "SizeFilter": which target sizes a rule or module reacts to. Every
// member has its own presence flag, set on parse when the key is present
// (for the pairs and box lists: when it has the right JSON type), and
// deciding on pack whether the key is written; a member left out keeps its
// field zero. Enumeration names are matched without regard to letter case;
// a name that matches nothing leaves the field 0 and still flags it.
// Pairs are [width, height]. 480 bytes, 8-byte aligned (it holds doubles).
typedef struct SizeFilterBlock {
  uint8_t measureModePresent;
  uint8_t typePresent;
  uint8_t minSizePresent;
  uint8_t maxSizePresent;
  uint8_t calibrateBoxsPresent;
  uint8_t areaCalibrateBoxsPresent;
  uint8_t ratioCalibrateBoxsPresent;
  uint8_t byAreaPresent;
  uint8_t minAreaPresent;
  uint8_t maxAreaPresent;
  uint8_t minAreaSizePresent;
  uint8_t maxAreaSizePresent;
  uint8_t byRatioPresent;
  uint8_t minRatioPresent;
  uint8_t maxRatioPresent;
  uint8_t minRatioSizePresent;
  uint8_t maxRatioSizePresent;
  uint8_t bySizePresent;
  uint8_t byArea;              // "ByArea" (0/1): filter by area
  uint8_t byRatio;             // "ByRatio" (0/1): filter by aspect ratio
  uint8_t bySize;              // "BySize" (0/1): filter by width and height
  int32_t measureMode;         // "MeasureMode", KOVA_MEASURE_*
  int32_t type;                // "Type", KOVA_SIZE_FILTER_*
  float minSize[2];            // "MinSize" [w, h]
  float maxSize[2];            // "MaxSize" [w, h]
  float minArea;               // "MinArea"
  float maxArea;               // "MaxArea"
  float minAreaSize[2];        // "MinAreaSize" [w, h]
  float maxAreaSize[2];        // "MaxAreaSize" [w, h]
  double minRatio;             // "MinRatio"
  double maxRatio;             // "MaxRatio"
  float minRatioSize[2];       // "MinRatioSize" [w, h]
  float maxRatioSize[2];       // "MaxRatioSize" [w, h]
  uint32_t calibrateBoxCount;  // "CalibrateBoxs" entries looked at (at most 10)
  CalibrateBox calibrateBoxs[10];
  uint32_t areaCalibrateBoxCount;  // "AreaCalibrateBoxs" entries looked at (at most 10)
  CalibrateBox areaCalibrateBoxs[10];
  uint32_t ratioCalibrateBoxCount;  // "RatioCalibrateBoxs" entries looked at (at most 10)
  CalibrateBox ratioCalibrateBoxs[10];
} SizeFilterBlock;

// The size filter without its calibration box lists: the same members, at
// the same places, as the start of SizeFilterBlock. Held by the one rule
// whose record has no room for the whole block (PrisonerRiseRule); the box
// lists of its "SizeFilter" are not read and not written. 104 bytes,
// 8-byte aligned.
typedef struct SizeFilterSettings {
  uint8_t measureModePresent;
  uint8_t typePresent;
  uint8_t minSizePresent;
  uint8_t maxSizePresent;
  uint8_t calibrateBoxsPresent;       // always 0: the box lists are not kept
  uint8_t areaCalibrateBoxsPresent;   // always 0
  uint8_t ratioCalibrateBoxsPresent;  // always 0
  uint8_t byAreaPresent;
  uint8_t minAreaPresent;
  uint8_t maxAreaPresent;
  uint8_t minAreaSizePresent;
  uint8_t maxAreaSizePresent;
  uint8_t byRatioPresent;
  uint8_t minRatioPresent;
  uint8_t maxRatioPresent;
  uint8_t minRatioSizePresent;
  uint8_t maxRatioSizePresent;
  uint8_t bySizePresent;
  uint8_t byArea;         // "ByArea" (0/1)
  uint8_t byRatio;        // "ByRatio" (0/1)
  uint8_t bySize;         // "BySize" (0/1)
  int32_t measureMode;    // "MeasureMode", KOVA_MEASURE_*
  int32_t type;           // "Type", KOVA_SIZE_FILTER_*
  float minSize[2];       // "MinSize" [w, h]
  float maxSize[2];       // "MaxSize" [w, h]
  float minArea;          // "MinArea"
  float maxArea;          // "MaxArea"
  float minAreaSize[2];   // "MinAreaSize" [w, h]
  float maxAreaSize[2];   // "MaxAreaSize" [w, h]
  double minRatio;        // "MinRatio"
  double maxRatio;        // "MaxRatio"
  float minRatioSize[2];  // "MinRatioSize" [w, h]
  float maxRatioSize[2];  // "MaxRatioSize" [w, h]
} SizeFilterSettings;

// ---------------------------------------------------------------------------
// Analysis rules.

// The head every rule record begins with, read from the rule object.
typedef struct RuleHead {
  char name[128];            // "Name", local code page
  uint8_t enable;            // "Enable" (0/1)
  uint8_t trackEnable;       // "TrackEnable" (0/1) of the rule object
  uint32_t objectTypeCount;  // "ObjectTypes" entries looked at (at most 16)
  // "ObjectTypes"[i], local code page; a non-string entry leaves its slot
  // empty but is counted.
  char objectTypes[16][128];
} RuleHead;

// The head of an audio rule ("AudioAbnormalDetection"): RuleHead without
// the object types, which an audio rule has none of.
typedef struct AudioRuleHead {
  char name[128];       // "Name", local code page
  uint8_t enable;       // "Enable" (0/1)
  uint8_t trackEnable;  // "TrackEnable" (0/1) of the rule object
} AudioRuleHead;

// The part every rule record holds after its own leading fields.
typedef struct RuleLinkage {
  // "EventHandler" (kova/records/event_handler.h); its own schedule
  // (`eventHandler.schedule`) is read as usual, but on pack "TimeSection" is
  // written from `timeSection` below.
  EventHandlerRecord eventHandler;
  // "EventHandler"."TimeSection": 7 days x 10 sections. A section text that
  // does not read stops the grid there (what converted is kept).
  WeekSchedule7x10 timeSection;
  int32_t ptzPresetId;  // "PtzPresetId" of the rule object
} RuleLinkage;

// Rule type codes of the two types laid out here (see the rule type table
// of the library for all codes).
enum {
  KOVA_RULE_CROSS_LINE = 2,    // "CrossLineDetection", CrossLineRule
  KOVA_RULE_CROSS_REGION = 3,  // "CrossRegionDetection", CrossRegionRule
};

// "Direction" of a line crossing.
enum {
  KOVA_LINE_LEFT_TO_RIGHT = 0,  // "LeftToRight"
  KOVA_LINE_RIGHT_TO_LEFT = 1,  // "RightToLeft"
  KOVA_LINE_BOTH = 2,           // "Both"
};

// "CrossLineDetection": a target crosses a line. "Config" keys: the ones
// named below. Enumeration names are matched without regard to letter
// case; a name that matches nothing leaves 0.
typedef struct CrossLineRule {
  RuleHead head;
  int32_t direction;     // "Direction", KOVA_LINE_*
  PointList detectLine;  // "DetectLine"
  RuleLinkage linkage;
  uint32_t sizeFilterPresent;         // 1 when "SizeFilter" was an object; packs it when non-zero
  SizeFilterBlock sizeFilter;         // "SizeFilter"
  TriggerPositions triggerPositions;  // "TriggerPosition"
  int32_t trackDuration;              // "TrackDuration", seconds
} CrossLineRule;

// "Direction" of a region crossing.
enum {
  KOVA_REGION_ENTER = 0,  // "Enter"
  KOVA_REGION_LEAVE = 1,  // "Leave"
  KOVA_REGION_BOTH = 2,   // "Both"
};

// "Action" entries of a region rule.
enum {
  KOVA_ACTION_APPEAR = 0,     // "Appear"
  KOVA_ACTION_DISAPPEAR = 1,  // "Disappear"
  KOVA_ACTION_INSIDE = 2,     // "Inside"
  KOVA_ACTION_CROSS = 3,      // "Cross"
};

// "CrossRegionDetection": a target enters, leaves, appears in or stays in a
// region.
typedef struct CrossRegionRule {
  RuleHead head;
  int32_t direction;       // "Direction", KOVA_REGION_*
  PointList detectRegion;  // "DetectRegion"
  RuleLinkage linkage;
  uint32_t sizeFilterPresent;  // 1 when "SizeFilter" was an object; packs it when non-zero
  SizeFilterBlock sizeFilter;  // "SizeFilter"
  // "Action": non-null entries among the first 4; entry i goes to slot i
  // (a null entry keeps its slot, an unknown name is counted and leaves 0).
  uint32_t actionCount;
  uint8_t actions[4];      // KOVA_ACTION_*
  int32_t minTargets;      // "MinTargets"
  int32_t maxTargets;      // "MaxTargets"
  int32_t minDuration;     // "MinDuration", seconds
  int32_t reportInterval;  // "ReportInterval", seconds
  int32_t trackDuration;   // "TrackDuration", seconds
} CrossRegionRule;

// ---------------------------------------------------------------------------
// The rule list: "VideoAnalyseRule" and "AudioAnalyseRule".

// Scene classes, the rule's "Class" (matched without regard to letter case).
// On pack, KOVA_SCENE_STAND_UP_DETECTION (like KOVA_SCENE_NONE and any
// value above it) writes an empty "Class": the devices' pack table stops
// one entry short, and that is kept.
enum {
  KOVA_SCENE_NONE = 0,  // "" or a name that matches nothing
  KOVA_SCENE_NORMAL = 1,
  KOVA_SCENE_TRAFFIC = 2,
  KOVA_SCENE_TRAFFIC_PATROL = 3,
  KOVA_SCENE_FACE_DETECTION = 4,
  KOVA_SCENE_ATM = 5,
  KOVA_SCENE_INDOOR = 6,
  KOVA_SCENE_FACE_RECOGNITION = 7,
  KOVA_SCENE_PRISON = 8,
  KOVA_SCENE_NUMBER_STAT = 9,
  KOVA_SCENE_HEAT_MAP = 10,
  KOVA_SCENE_VIDEO_DIAGNOSIS = 11,
  KOVA_SCENE_VEHICLE_ANALYSE = 12,
  KOVA_SCENE_COURSE_RECORD = 13,
  KOVA_SCENE_VEHICLE = 14,
  KOVA_SCENE_STAND_UP_DETECTION = 15,
};

// The header of one entry of the rule buffer; the body (`bodySize` bytes,
// the rule record of `ruleType`) follows it directly.
typedef struct RuleEntryHeader {
  uint32_t ruleType;    // rule type code (KOVA_RULE_*)
  uint32_t bodySize;    // sizeof the type's rule record
  uint32_t sceneClass;  // KOVA_SCENE_*
} RuleEntryHeader;

// The caller's record for "VideoAnalyseRule" and "AudioAnalyseRule", in
// both directions.
//
// The rule buffer holds entries back to back from its first byte: a
// RuleEntryHeader, then the body. A reader steps 12 + bodySize bytes per
// entry, ruleCount times. Bodies sit at 4-byte steps only: copy a body into
// a record of its type (memcpy) before reading fields wider than 4 bytes.
//
// Parse (KOVA_ParseData(name, json, &list, sizeof list, &retLen)):
// - needs outLen >= sizeof(VideoAnalyseRuleList); "result" is not looked at;
//   a missing "params" or "table" reads as no rules;
// - ruleCount is set to the number of rules in "table", at most 32 (excess
//   rules ignored), before anything else is decided;
// - every rule must name a type whose rules the list carries; a rule whose
//   "Type" is unknown or not carried ("All", "VideoMotion", ...) fails the
//   whole parse with the rule buffer untouched;
// - the entries need 12 + bodySize bytes each: when ruleBufferLength is
//   short of their sum the parse fails with the rule buffer untouched;
// - no rules: success, the rule buffer untouched (it may be null);
// - otherwise the whole rule buffer (all ruleBufferLength bytes) is cleared
//   and the entries are written. A rule without "Type" then fails the
//   parse: the entries before it stay written, the rest of the buffer
//   cleared;
// - "Class" gives sceneClass; an unknown class reads as KOVA_SCENE_NONE and
//   is reported to the error log, without failing;
// - on success *retLen = sizeof(VideoAnalyseRuleList); the pointer and the
//   length are never changed.
//
// Pack (KOVA_PacketData(name, &list, sizeof list, text, textLen)): walks
// ruleCount entries within ruleBufferLength and writes an array with one
// object per rule: "Name", "Enable", "TrackEnable", "PtzPresetId",
// "ObjectTypes" (not for an audio rule), "Type" (the type's first name),
// "Class", "EventHandler" (with "TimeSection" from the 7 x 10 grid) and
// "Config". It refuses (text cleared, 0) when the buffer is null with
// ruleCount > 0, when an entry's header or body would pass the end of the
// buffer, or when bodySize differs from the body size of its type (a type
// the list does not carry has none). The text is copied only when strictly
// shorter than textLen.
typedef struct VideoAnalyseRuleList {
  uint32_t ruleCount;         // out on parse, in on pack: entries in ruleBuffer
  uint8_t* ruleBuffer;        // caller's buffer of entries
  uint32_t ruleBufferLength;  // its size in bytes
} VideoAnalyseRuleList;

#ifdef __cplusplus
}

static_assert(sizeof(Point) == 8, "Point layout");
static_assert(sizeof(PointList) == 164, "PointList layout");
static_assert(sizeof(TriggerPositions) == 12, "TriggerPositions layout");
static_assert(sizeof(DirectionLine) == 20, "DirectionLine layout");
static_assert(sizeof(CalibrateBox) == 12, "CalibrateBox layout");
static_assert(sizeof(SizeFilterBlock) == 480, "SizeFilterBlock layout");
static_assert(alignof(SizeFilterBlock) == 8, "SizeFilterBlock layout");
static_assert(offsetof(SizeFilterBlock, measureMode) == 24, "SizeFilterBlock layout");
static_assert(offsetof(SizeFilterBlock, minRatio) == 72, "SizeFilterBlock layout");
static_assert(offsetof(SizeFilterBlock, calibrateBoxCount) == 104, "SizeFilterBlock layout");
static_assert(offsetof(SizeFilterBlock, ratioCalibrateBoxs) == 356, "SizeFilterBlock layout");
static_assert(sizeof(SizeFilterSettings) == 104, "SizeFilterSettings layout");
static_assert(alignof(SizeFilterSettings) == 8, "SizeFilterSettings layout");
static_assert(offsetof(SizeFilterSettings, measureMode) == offsetof(SizeFilterBlock, measureMode),
              "SizeFilterSettings opens like SizeFilterBlock");
static_assert(offsetof(SizeFilterSettings, minRatio) == offsetof(SizeFilterBlock, minRatio),
              "SizeFilterSettings opens like SizeFilterBlock");
static_assert(offsetof(SizeFilterSettings, maxRatioSize) == offsetof(SizeFilterBlock, maxRatioSize),
              "SizeFilterSettings opens like SizeFilterBlock");

static_assert(sizeof(RuleHead) == 2184, "RuleHead layout");
static_assert(offsetof(RuleHead, enable) == 128, "RuleHead layout");
static_assert(offsetof(RuleHead, trackEnable) == 129, "RuleHead layout");
static_assert(offsetof(RuleHead, objectTypeCount) == 132, "RuleHead layout");
static_assert(offsetof(RuleHead, objectTypes) == 136, "RuleHead layout");
static_assert(sizeof(AudioRuleHead) == 130, "AudioRuleHead layout");
static_assert(sizeof(RuleLinkage) == 339088, "RuleLinkage layout");
static_assert(offsetof(RuleLinkage, timeSection) == 337124, "RuleLinkage layout");
static_assert(offsetof(RuleLinkage, ptzPresetId) == 339084, "RuleLinkage layout");

// A rule record is the body size of its type codes, and its linkage part
// sits where its leading keys end.
#define KOVA_RULE_LAYOUT(Rec, bodySize, linkageAt)                                 \
  static_assert(sizeof(Rec) == (bodySize), #Rec " is the body size of its types"); \
  static_assert(offsetof(Rec, linkage) == (linkageAt), #Rec " layout")

static_assert(sizeof(CrossLineRule) == 341944, "CrossLineRule layout");
static_assert(offsetof(CrossLineRule, direction) == 2184, "CrossLineRule layout");
static_assert(offsetof(CrossLineRule, detectLine) == 2188, "CrossLineRule layout");
static_assert(offsetof(CrossLineRule, linkage.eventHandler) == 2352, "CrossLineRule layout");
static_assert(offsetof(CrossLineRule, linkage.timeSection) == 339476, "CrossLineRule layout");
static_assert(offsetof(CrossLineRule, linkage.ptzPresetId) == 341436, "CrossLineRule layout");
static_assert(offsetof(CrossLineRule, sizeFilterPresent) == 341440, "CrossLineRule layout");
static_assert(offsetof(CrossLineRule, sizeFilter) == 341448, "CrossLineRule layout");
static_assert(offsetof(CrossLineRule, triggerPositions) == 341928, "CrossLineRule layout");
static_assert(offsetof(CrossLineRule, trackDuration) == 341940, "CrossLineRule layout");

static_assert(sizeof(CrossRegionRule) == 341960, "CrossRegionRule layout");
static_assert(offsetof(CrossRegionRule, direction) == 2184, "CrossRegionRule layout");
static_assert(offsetof(CrossRegionRule, detectRegion) == 2188, "CrossRegionRule layout");
static_assert(offsetof(CrossRegionRule, linkage.eventHandler) == 2352, "CrossRegionRule layout");
static_assert(offsetof(CrossRegionRule, linkage.timeSection) == 339476, "CrossRegionRule layout");
static_assert(offsetof(CrossRegionRule, linkage.ptzPresetId) == 341436, "CrossRegionRule layout");
static_assert(offsetof(CrossRegionRule, sizeFilterPresent) == 341440, "CrossRegionRule layout");
static_assert(offsetof(CrossRegionRule, sizeFilter) == 341448, "CrossRegionRule layout");
static_assert(offsetof(CrossRegionRule, actionCount) == 341928, "CrossRegionRule layout");
static_assert(offsetof(CrossRegionRule, actions) == 341932, "CrossRegionRule layout");
static_assert(offsetof(CrossRegionRule, minTargets) == 341936, "CrossRegionRule layout");
static_assert(offsetof(CrossRegionRule, maxTargets) == 341940, "CrossRegionRule layout");
static_assert(offsetof(CrossRegionRule, minDuration) == 341944, "CrossRegionRule layout");
static_assert(offsetof(CrossRegionRule, reportInterval) == 341948, "CrossRegionRule layout");
static_assert(offsetof(CrossRegionRule, trackDuration) == 341952, "CrossRegionRule layout");

static_assert(sizeof(RuleEntryHeader) == KOVA_RULE_ENTRY_HEADER_SIZE, "RuleEntryHeader layout");
static_assert(sizeof(void*) != 8 || sizeof(VideoAnalyseRuleList) == 24,
              "VideoAnalyseRuleList layout");
#endif

#endif  // KOVA_RECORDS_ANALYSE_H_
