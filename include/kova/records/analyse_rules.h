// Rule records of the analysis rule types other than the line and region
// crossings (kova/records/analyse.h) and the traffic rules
// (kova/records/analyse_traffic_rules.h): perimeter, crowd and behaviour,
// people counting, face and audio rules.
//
// Every record is the rule's body in the rule buffer of "VideoAnalyseRule"
// / "AudioAnalyseRule": `RuleHead head` (read from the rule object), the
// type's leading "Config" keys (its lines, regions and "Direction"), then
// `RuleLinkage linkage` (the rule object's "EventHandler", its 7 x 10
// "TimeSection" and "PtzPresetId"), then the trailing "Config" keys, in
// the order the type lists them, and `reserved` bytes that make the record
// exactly the body size of its type code. Several types share a record
// when they share their keys and their body size; the comment of each
// record names its types.
//
// Reading "Config" (pack writes the same keys back from the same fields):
// - a key that is missing or null leaves its field 0;
// - integers are read as int32, booleans as 0/1;
// - enumerations are names matched without regard to letter case; a name
//   that matches nothing leaves 0, and on pack a value without a name is
//   written as "";
// - a name list ("DetectType", "Areas", "TriggerMode" of LeaveRule) reads
//   entry i into slot i, at most as many entries as it has slots; the count
//   is of the non-null entries among those, a name that matches nothing is
//   counted and leaves its slot 0, a null entry keeps its slot unwritten.
//   On pack the first `count` slots are written by name;
// - lines and regions are PointList, directions drawn as arrows are
//   DirectionLine, both read by the point rule (kova/records/analyse.h);
// - "SizeFilter" sets `sizeFilterPresent` when it is an object and is
//   packed only when that is non-zero.
//
// Shapes of the keys whose form the devices do not name elsewhere:
//   "Direction" (other than the crossings)  DirectionLine, [[x0,y0],[x1,y1]]
//   "DetectMode" (FightRule)        one name: "ByVideo", "ByAudio", "Both"
//   "DetectType"                    name list of 4 slots, the type's names
//   "Period" (FlowStatRule)         number, minutes
//   "UpperLimit"                    number of people
//   "Type" (NumberStatRule)         one name: "Region", "Entrance"
//   "Region", "Entrance" (NumberStatRule)  numbers: the region's and the
//                                   entrance's own numbers on the device
//   "Areas" (FaceRecognitionRule)   name list of 5 slots
//   "TriggerMode" (LeaveRule)       name list of 4 slots
//   "PatrolTime" (PatrolRule)       number, seconds
//   "Region" (StandUpRule)          PointList: where standing up counts
//   "Max" (StandUpRule)             number of people
//   "Round" (ShootingScoreRule)     number: shots in one round
//   "Frequency" (AudioAbnormalRule) number, Hz
#ifndef KOVA_RECORDS_ANALYSE_RULES_H_
#define KOVA_RECORDS_ANALYSE_RULES_H_

#include <stddef.h>
#include <stdint.h>

#include "kova/records/analyse.h"

#ifdef __cplusplus
extern "C" {
#endif

// ---------------------------------------------------------------------------
// Perimeter: fences, objects left and taken, staying, climbing.

// "CrossFenceDetection" (287): a target climbs over a fence between two
// lines.
typedef struct CrossFenceRule {
  RuleHead head;
  PointList upstairsLine;    // "UpstairsLine"
  PointList downstairsLine;  // "DownstairsLine"
  int32_t direction;         // "Direction", KOVA_LINE_*
  RuleLinkage linkage;
  TriggerPositions triggerPositions;  // "TriggerPosition"
  int32_t trackDuration;              // "TrackDuration", seconds
  uint32_t sizeFilterPresent;         // 1 when "SizeFilter" was an object
  SizeFilterBlock sizeFilter;         // "SizeFilter"
  uint8_t reserved[8];
} CrossFenceRule;

// "LeftDetection" (5), "TakenAwayDetection" (277), "ParkingDetection"
// (278): an object appears in, or goes from, a region.
typedef struct LeftRule {
  RuleHead head;
  PointList detectRegion;  // "DetectRegion"
  RuleLinkage linkage;
  TriggerPositions triggerPositions;  // "TriggerPosition"
  int32_t minDuration;                // "MinDuration", seconds
  uint32_t sizeFilterPresent;         // 1 when "SizeFilter" was an object
  SizeFilterBlock sizeFilter;         // "SizeFilter"
  int32_t trackDuration;              // "TrackDuration", seconds
  uint8_t reserved[4];
} LeftRule;

// "StayDetection" (6), "WanderDetection" (7): targets stay or wander in a
// region.
typedef struct StayRule {
  RuleHead head;
  PointList detectRegion;  // "DetectRegion"
  RuleLinkage linkage;
  TriggerPositions triggerPositions;  // "TriggerPosition"
  int32_t minDuration;                // "MinDuration", seconds
  int32_t triggerTargetsNumber;       // "TriggerTargetsNumber"
  int32_t reportInterval;             // "ReportInterval", seconds
  uint32_t sizeFilterPresent;         // 1 when "SizeFilter" was an object
  SizeFilterBlock sizeFilter;         // "SizeFilter"
  int32_t trackDuration;              // "TrackDuration", seconds
  uint8_t reserved[4];
} StayRule;

// "Preservation" (8), "TailDetection" (10), "ElectroSparkDetection" (272).
typedef struct PreservationRule {
  RuleHead head;
  PointList detectRegion;  // "DetectRegion"
  RuleLinkage linkage;
  int32_t minDuration;  // "MinDuration", seconds
} PreservationRule;

// "ClimbDetection" (296): a target climbs over a line.
typedef struct ClimbRule {
  RuleHead head;
  PointList detectLine;  // "DetectLine"
  RuleLinkage linkage;
  uint32_t sizeFilterPresent;  // 1 when "SizeFilter" was an object
  SizeFilterBlock sizeFilter;  // "SizeFilter"
} ClimbRule;

// "RetrogradeDetection" (275): targets move against the allowed direction.
typedef struct RetrogradeRule {
  RuleHead head;
  PointList detectRegion;   // "DetectRegion"
  DirectionLine direction;  // "Direction": the allowed direction
  RuleLinkage linkage;
  TriggerPositions triggerPositions;  // "TriggerPosition"
  uint32_t sizeFilterPresent;         // 1 when "SizeFilter" was an object
  SizeFilterBlock sizeFilter;         // "SizeFilter"
  int32_t sensitivity;                // "Sensitivity"
  uint8_t reserved[140];
} RetrogradeRule;

// ---------------------------------------------------------------------------
// Crowd and behaviour.

// "FireDetection" (12), "SmokeDetection" (13), "PasteDetection" (4).
typedef struct FireRule {
  RuleHead head;
  PointList detectRegion;  // "DetectRegion"
  RuleLinkage linkage;
  int32_t minDuration;  // "MinDuration", seconds
  int32_t sensitivity;  // "Sensitivity"
} FireRule;

// "RioterDetection" (11): the keys of FireRule in a larger body.
typedef struct RioterRule {
  RuleHead head;
  PointList detectRegion;  // "DetectRegion"
  RuleLinkage linkage;
  int32_t minDuration;  // "MinDuration", seconds
  int32_t sensitivity;  // "Sensitivity"
  uint8_t reserved[20];
} RioterRule;

// "DetectMode" of a fight.
enum {
  KOVA_FIGHT_BY_VIDEO = 0,  // "ByVideo"
  KOVA_FIGHT_BY_AUDIO = 1,  // "ByAudio"
  KOVA_FIGHT_BOTH = 2,      // "Both"
};

// "FightDetection" (14).
typedef struct FightRule {
  RuleHead head;
  PointList detectRegion;  // "DetectRegion"
  RuleLinkage linkage;
  int32_t minDuration;  // "MinDuration", seconds
  int32_t sensitivity;  // "Sensitivity"
  int32_t detectMode;   // "DetectMode", KOVA_FIGHT_*
} FightRule;

// "DetectType" names of a fast move.
enum {
  KOVA_MOVE_FAST_MOVE = 0,        // "FastMove"
  KOVA_MOVE_ABRUPT_SPEEDUP = 1,   // "AbruptSpeedup"
  KOVA_MOVE_ABRUPT_SLOWDOWN = 2,  // "AbruptSlowdown"
};

// "MoveDetection" (9): targets move fast or change speed abruptly.
typedef struct MoveRule {
  RuleHead head;
  PointList detectRegion;  // "DetectRegion"
  RuleLinkage linkage;
  TriggerPositions triggerPositions;  // "TriggerPosition"
  uint32_t detectTypeCount;           // "DetectType" non-null entries among the first 4
  uint8_t detectTypes[4];             // "DetectType", KOVA_MOVE_*
  int32_t minDuration;                // "MinDuration", seconds
  int32_t triggerSpeed;               // "TriggerSpeed"
  int32_t sensitivity;                // "Sensitivity"
  uint32_t sizeFilterPresent;         // 1 when "SizeFilter" was an object
  SizeFilterBlock sizeFilter;         // "SizeFilter"
  int32_t trackDuration;              // "TrackDuration", seconds
  uint8_t reserved[4];
} MoveRule;

// "DetectType" names of running.
enum {
  KOVA_RUN_FAST_RUN = 0,         // "FastRun"
  KOVA_RUN_ABRUPT_SPEEDUP = 1,   // "AbruptSpeedup"
  KOVA_RUN_ABRUPT_SLOWDOWN = 2,  // "AbruptSlowdown"
};

// "RunDetection" (274).
typedef struct RunRule {
  RuleHead head;
  PointList detectRegion;  // "DetectRegion"
  RuleLinkage linkage;
  TriggerPositions triggerPositions;  // "TriggerPosition"
  uint32_t detectTypeCount;           // "DetectType" non-null entries among the first 4
  uint8_t detectTypes[4];             // "DetectType", KOVA_RUN_*
  int32_t triggerSpeed;               // "TriggerSpeed"
  int32_t minDuration;                // "MinDuration", seconds
  int32_t sensitivity;                // "Sensitivity"
  uint32_t sizeFilterPresent;         // 1 when "SizeFilter" was an object
  SizeFilterBlock sizeFilter;         // "SizeFilter"
} RunRule;

// "DetectType" names of an abnormal picture.
enum {
  KOVA_VIDEO_ABNORMAL_LOSS = 0,          // "Loss": no signal
  KOVA_VIDEO_ABNORMAL_COVER = 1,         // "Cover": the lens is covered
  KOVA_VIDEO_ABNORMAL_FROZEN = 2,        // "Frozen": the picture stands still
  KOVA_VIDEO_ABNORMAL_LIGHT = 3,         // "Light": too bright
  KOVA_VIDEO_ABNORMAL_DARK = 4,          // "Dark": too dark
  KOVA_VIDEO_ABNORMAL_SCENE_CHANGE = 5,  // "SceneChange": the camera was turned
};

// "VideoAbnormalDetection" (19).
typedef struct VideoAbnormalRule {
  RuleHead head;
  PointList detectRegion;  // "DetectRegion"
  RuleLinkage linkage;
  uint32_t detectTypeCount;  // "DetectType" non-null entries among the first 4
  uint8_t detectTypes[4];    // "DetectType", KOVA_VIDEO_ABNORMAL_*
  int32_t minDuration;       // "MinDuration", seconds
  int32_t sensitivity;       // "Sensitivity"
  uint8_t reserved[156];
} VideoAbnormalRule;

// "PrisonerRiseDetection" (286). Its body has no room for a whole
// SizeFilterBlock: "SizeFilter" is kept without its calibration box lists.
typedef struct PrisonerRiseRule {
  RuleHead head;
  PointList detectRegion;   // "DetectRegion"
  DirectionLine direction;  // "Direction": the direction of rising
  RuleLinkage linkage;
  int32_t minDuration;            // "MinDuration", seconds
  int32_t reportInterval;         // "ReportInterval", seconds
  uint32_t sizeFilterPresent;     // 1 when "SizeFilter" was an object
  SizeFilterSettings sizeFilter;  // "SizeFilter" without "CalibrateBoxs" and the like
  uint8_t reserved[312];
} PrisonerRiseRule;

// "Mode" of a leave-post rule.
enum {
  KOVA_LEAVE_BY_PATROL = 0,  // "ByPatrol"
  KOVA_LEAVE_BY_SENTRY = 1,  // "BySentry"
};

// "TriggerMode" names of a leave-post rule.
enum {
  KOVA_LEAVE_NO_PERSON = 0,  // "NoPerson": nobody at the post
  KOVA_LEAVE_LEAVE = 1,      // "Leave": the person on duty left
  KOVA_LEAVE_STATIC = 2,     // "Static": the person on duty does not move
};

// "LeaveDetection" (297): the person on duty leaves the post.
typedef struct LeaveRule {
  RuleHead head;
  PointList detectRegion;  // "DetectRegion"
  RuleLinkage linkage;
  uint32_t triggerModeCount;   // "TriggerMode" non-null entries among the first 4
  uint8_t triggerModes[4];     // "TriggerMode", KOVA_LEAVE_NO_PERSON...
  int32_t mode;                // "Mode", KOVA_LEAVE_BY_*
  int32_t minDuration;         // "MinDuration", seconds
  int32_t reportInterval;      // "ReportInterval", seconds
  uint32_t sizeFilterPresent;  // 1 when "SizeFilter" was an object
  SizeFilterBlock sizeFilter;  // "SizeFilter"
  uint8_t reserved[248];
} LeaveRule;

// "GetOutBedDetection" (341).
typedef struct GetOutBedRule {
  RuleHead head;
  PointList detectRegion;  // "DetectRegion"
  RuleLinkage linkage;
  int32_t minDuration;     // "MinDuration", seconds
  int32_t reportInterval;  // "ReportInterval", seconds
  uint8_t reserved[164];
} GetOutBedRule;

// "OnDutyDetection" (343): the keys of GetOutBedRule in a larger body.
typedef struct OnDutyRule {
  RuleHead head;
  PointList detectRegion;  // "DetectRegion"
  RuleLinkage linkage;
  int32_t minDuration;     // "MinDuration", seconds
  int32_t reportInterval;  // "ReportInterval", seconds
  uint8_t reserved[516];
} OnDutyRule;

// "PatrolDetection" (342): a guard's patrol round.
typedef struct PatrolRule {
  RuleHead head;
  PointList detectRegion;  // "DetectRegion"
  RuleLinkage linkage;
  int32_t minDuration;         // "MinDuration", seconds
  int32_t reportInterval;      // "ReportInterval", seconds
  int32_t patrolTime;          // "PatrolTime", seconds
  uint32_t sizeFilterPresent;  // 1 when "SizeFilter" was an object
  SizeFilterBlock sizeFilter;  // "SizeFilter"
} PatrolRule;

// "StandUpDetection" (359): people stand up in a room.
typedef struct StandUpRule {
  RuleHead head;
  PointList detectRegion;   // "DetectRegion"
  DirectionLine direction;  // "Direction": the direction of standing up
  PointList region;         // "Region"
  RuleLinkage linkage;
  int32_t max;  // "Max"
  uint8_t reserved[8];
} StandUpRule;

// "ShootingScoreRecognition" (362): hits on a shooting target.
typedef struct ShootingScoreRule {
  RuleHead head;
  PointList detectRegion;  // "DetectRegion"
  RuleLinkage linkage;
  int32_t round;        // "Round"
  int32_t sensitivity;  // "Sensitivity"
} ShootingScoreRule;

// ---------------------------------------------------------------------------
// People counting.

// "FlowStat" (15).
typedef struct FlowStatRule {
  RuleHead head;
  RuleLinkage linkage;
  int32_t period;      // "Period", minutes
  int32_t upperLimit;  // "UpperLimit"
  uint8_t reserved[164];
} FlowStatRule;

// "Type" of a number count.
enum {
  KOVA_NUMBER_STAT_REGION = 0,    // "Region": the people inside a region
  KOVA_NUMBER_STAT_ENTRANCE = 1,  // "Entrance": the people passing an entrance
};

// "NumberStat" (16).
typedef struct NumberStatRule {
  RuleHead head;
  PointList detectRegion;   // "DetectRegion"
  DirectionLine direction;  // "Direction": the way in
  RuleLinkage linkage;
  int32_t reportInterval;  // "ReportInterval", seconds
  int32_t upperLimit;      // "UpperLimit"
  int32_t type;            // "Type", KOVA_NUMBER_STAT_*
  int32_t region;          // "Region"
  int32_t entrance;        // "Entrance"
  uint8_t reserved[4];
} NumberStatRule;

// "HeatMap" (351), "VehicleAnalyse" (514).
typedef struct HeatMapRule {
  RuleHead head;
  PointList detectRegion;  // "DetectRegion"
  RuleLinkage linkage;
  uint32_t sizeFilterPresent;  // 1 when "SizeFilter" was an object
  SizeFilterBlock sizeFilter;  // "SizeFilter"
} HeatMapRule;

// "QueueDetection" (291): no "Config" keys of its own.
typedef struct QueueRule {
  RuleHead head;
  RuleLinkage linkage;
  uint8_t reserved[24];
} QueueRule;

// ---------------------------------------------------------------------------
// Faces.

// "FaceDetection" (26).
typedef struct FaceDetectionRule {
  RuleHead head;
  PointList detectRegion;  // "DetectRegion"
  RuleLinkage linkage;
  uint32_t sizeFilterPresent;  // 1 when "SizeFilter" was an object
  SizeFilterBlock sizeFilter;  // "SizeFilter"
  int32_t minDuration;         // "MinDuration", seconds
  int32_t sensitivity;         // "Sensitivity"
  int32_t reportInterval;      // "ReportInterval", seconds
  uint8_t reserved[1028];
} FaceDetectionRule;

// "Mode" of face recognition.
enum {
  KOVA_FACE_MODE_NORMAL = 0,  // "Normal"
  KOVA_FACE_MODE_AREA = 1,    // "Area"
  KOVA_FACE_MODE_AUTO = 2,    // "Auto"
};

// "Areas" names of face recognition: the parts of a face compared.
enum {
  KOVA_FACE_AREA_EYEBROW = 0,  // "Eyebrow " (the device's name ends in a blank)
  KOVA_FACE_AREA_EYE = 1,      // "Eye"
  KOVA_FACE_AREA_NOSE = 2,     // "Nose"
  KOVA_FACE_AREA_MOUTH = 3,    // "Mouth"
  KOVA_FACE_AREA_CHEEK = 4,    // "Cheek"
};

// "FaceRecognition" (279).
typedef struct FaceRecognitionRule {
  RuleHead head;
  RuleLinkage linkage;
  int32_t mode;        // "Mode", KOVA_FACE_MODE_*
  uint32_t areaCount;  // "Areas" non-null entries among the first 5
  uint8_t areas[5];    // "Areas", KOVA_FACE_AREA_*
  int32_t accuracy;    // "Accuracy"
} FaceRecognitionRule;

// ---------------------------------------------------------------------------
// Audio.

// "AudioAbnormalDetection" (294), a rule of "AudioAnalyseRule". Its body
// (339,228 bytes) has no room for the object types of RuleHead: it opens
// with AudioRuleHead, its own keys come before the linkage part, and
// "ObjectTypes" is neither read nor written.
typedef struct AudioAbnormalRule {
  AudioRuleHead head;
  int32_t frequency;    // "Frequency", Hz
  int32_t minDuration;  // "MinDuration", seconds
  RuleLinkage linkage;
} AudioAbnormalRule;

#ifdef __cplusplus
}

KOVA_RULE_LAYOUT(CrossFenceRule, 342112, 2516);
static_assert(offsetof(CrossFenceRule, triggerPositions) == 341604, "CrossFenceRule layout");
static_assert(offsetof(CrossFenceRule, sizeFilter) == 341624, "CrossFenceRule layout");
KOVA_RULE_LAYOUT(LeftRule, 341944, 2348);
static_assert(offsetof(LeftRule, sizeFilter) == 341456, "LeftRule layout");
static_assert(offsetof(LeftRule, trackDuration) == 341936, "LeftRule layout");
KOVA_RULE_LAYOUT(StayRule, 341952, 2348);
static_assert(offsetof(StayRule, sizeFilter) == 341464, "StayRule layout");
static_assert(offsetof(StayRule, trackDuration) == 341944, "StayRule layout");
KOVA_RULE_LAYOUT(PreservationRule, 341440, 2348);
KOVA_RULE_LAYOUT(ClimbRule, 341920, 2348);
static_assert(offsetof(ClimbRule, sizeFilter) == 341440, "ClimbRule layout");
KOVA_RULE_LAYOUT(RetrogradeRule, 342096, 2368);
static_assert(offsetof(RetrogradeRule, sizeFilter) == 341472, "RetrogradeRule layout");
static_assert(offsetof(RetrogradeRule, sensitivity) == 341952, "RetrogradeRule layout");
KOVA_RULE_LAYOUT(FireRule, 341444, 2348);
static_assert(offsetof(FireRule, sensitivity) == 341440, "FireRule layout");
KOVA_RULE_LAYOUT(RioterRule, 341464, 2348);
KOVA_RULE_LAYOUT(FightRule, 341448, 2348);
static_assert(offsetof(FightRule, detectMode) == 341444, "FightRule layout");
KOVA_RULE_LAYOUT(MoveRule, 341960, 2348);
static_assert(offsetof(MoveRule, detectTypes) == 341452, "MoveRule layout");
static_assert(offsetof(MoveRule, sizeFilter) == 341472, "MoveRule layout");
static_assert(offsetof(MoveRule, trackDuration) == 341952, "MoveRule layout");
KOVA_RULE_LAYOUT(RunRule, 341952, 2348);
static_assert(offsetof(RunRule, sizeFilter) == 341472, "RunRule layout");
KOVA_RULE_LAYOUT(VideoAbnormalRule, 341608, 2348);
static_assert(offsetof(VideoAbnormalRule, sensitivity) == 341448, "VideoAbnormalRule layout");
KOVA_RULE_LAYOUT(PrisonerRiseRule, 341888, 2368);
static_assert(offsetof(PrisonerRiseRule, sizeFilter) == 341472, "PrisonerRiseRule layout");
KOVA_RULE_LAYOUT(LeaveRule, 342192, 2348);
static_assert(offsetof(LeaveRule, sizeFilter) == 341464, "LeaveRule layout");
KOVA_RULE_LAYOUT(GetOutBedRule, 341608, 2348);
KOVA_RULE_LAYOUT(OnDutyRule, 341960, 2348);
KOVA_RULE_LAYOUT(PatrolRule, 341936, 2348);
static_assert(offsetof(PatrolRule, sizeFilter) == 341456, "PatrolRule layout");
KOVA_RULE_LAYOUT(StandUpRule, 341632, 2532);
static_assert(offsetof(StandUpRule, max) == 341620, "StandUpRule layout");
KOVA_RULE_LAYOUT(ShootingScoreRule, 341444, 2348);
KOVA_RULE_LAYOUT(FlowStatRule, 341444, 2184);
KOVA_RULE_LAYOUT(NumberStatRule, 341480, 2368);
static_assert(offsetof(NumberStatRule, entrance) == 341472, "NumberStatRule layout");
KOVA_RULE_LAYOUT(HeatMapRule, 341920, 2348);
KOVA_RULE_LAYOUT(QueueRule, 341296, 2184);
KOVA_RULE_LAYOUT(FaceDetectionRule, 342960, 2348);
static_assert(offsetof(FaceDetectionRule, reportInterval) == 341928, "FaceDetectionRule layout");
KOVA_RULE_LAYOUT(FaceRecognitionRule, 341292, 2184);
static_assert(offsetof(FaceRecognitionRule, areas) == 341280, "FaceRecognitionRule layout");
static_assert(offsetof(FaceRecognitionRule, accuracy) == 341288, "FaceRecognitionRule layout");
KOVA_RULE_LAYOUT(AudioAbnormalRule, 339228, 140);
static_assert(offsetof(AudioAbnormalRule, frequency) == 132, "AudioAbnormalRule layout");
#endif

#endif  // KOVA_RECORDS_ANALYSE_RULES_H_
