// Records of the alarm configuration family.
#ifndef KOVA_RECORDS_ALARM_H_
#define KOVA_RECORDS_ALARM_H_

#include <stddef.h>
#include <stdint.h>

#include "kova/records/event_handler.h"
#include "kova/records/schedule.h"

#ifdef __cplusplus
extern "C" {
#endif

// "AlarmLamp" and "DefenceArmMode": parse clears the whole buffer first and
// adds 4 to `retLen` for the record (returned length added to).

// "AlarmLamp": the alarm lamp's working mode.
// "Mode" 0, 1 or 2 is stored as is; any other value, and a document without
// "Mode", stores -1. On pack a mode outside 0..2 writes no member at all, so
// the packed text is "null".
typedef struct AlarmLampRecord {
  int32_t mode;
} AlarmLampRecord;

// "DefenceArmMode": "EnableDefenceArm" as 0 or 1 (absent reads as 0); packed
// as a JSON boolean, true for any non-zero value.
typedef struct DefenceArmModeRecord {
  uint32_t enableDefenceArm;
} DefenceArmModeRecord;

// ---------------------------------------------------------------------------
// Alarm sources with a linkage block.
//
// Common to every parser below: the caller's buffer must hold at least one
// record; it is cleared (all of `outLen`) before the device's text is read,
// so a failed call leaves zeros; members the device leaves out (or sends as
// null) read as zero unless a field says otherwise. `retLen`, when not null,
// receives the record's size (it is set, not added to).
// Every packer needs `inLen` of at least one record, writes the bare
// "table" object, and copies the text when `outLen` is at least its length
// (the terminating NUL only when there is room for it).
//
// `eventHandler` is "EventHandler" (see kova/records/event_handler.h).
// Where a record also holds `week`, that grid is a second copy of the first
// 7 days x 6 sections of "EventHandler"."TimeSection"; on pack it is written
// over those sections of the linkage block's own schedule, so `week` is the
// copy that counts.
// ---------------------------------------------------------------------------

// "SensorType" of "Alarm" and "NetAlarm": only "NC" (any letter case) reads
// as normally closed; any other text reads as normally open. Packed as "NC"
// for 0 and "NO" for anything else.
enum {
  KOVA_SENSOR_NC = 0,  // normally closed
  KOVA_SENSOR_NO = 1,  // normally open
};

// "SenseMethod" of "Alarm": the detector wired to the input. Names are
// matched without regard to letter case; an unknown or missing name reads
// as KOVA_SENSE_UNKNOWN, which packs no "SenseMethod" at all.
enum {
  KOVA_SENSE_UNKNOWN = -1,
  KOVA_SENSE_DOOR_MAGNETISM = 0,  // "DoorMagnetism"
  KOVA_SENSE_PASSIVE_INFRARED,    // "PassiveInfrared"
  KOVA_SENSE_GAS,                 // "GasSensor"
  KOVA_SENSE_SMOKING,             // "SmokingSensor"
  KOVA_SENSE_WATER,               // "WaterSensor"
  KOVA_SENSE_ACTIVE_INFRARED,     // "ActiveInfrared"
  KOVA_SENSE_GLASS,               // "GlassSensor"
  KOVA_SENSE_EMERGENCY_SWITCH,    // "EmergencySwitch"
  KOVA_SENSE_SHOCK,               // "ShockSensor"
  KOVA_SENSE_DOUBLE_METHOD,       // "DoubleMethod"
  KOVA_SENSE_THREE_METHOD,        // "ThreeMethod"
  KOVA_SENSE_TEMPERATURE,         // "TempSensor"
  KOVA_SENSE_HUMIDITY,            // "HumiditySensor"
  KOVA_SENSE_WIND,                // "WindSensor"
  KOVA_SENSE_CALL_BUTTON,         // "CallButton"
  KOVA_SENSE_GAS_PRESSURE,        // "GasPressure"
  KOVA_SENSE_GAS_CONCENTRATION,   // "GasConcentration"
  KOVA_SENSE_GAS_FLOW,            // "GasFlow"
  KOVA_SENSE_OIL,                 // "Oil"
  KOVA_SENSE_MILEAGE,             // "MileageSensor"
  KOVA_SENSE_OTHER,               // "OtherSensor"
};

// "EnableControl" of "Alarm": how arming of the input is controlled. Names
// are matched without regard to letter case; an unknown name reads as 0.
// Values outside 0..3 pack no "EnableControl".
enum {
  KOVA_ENABLE_CONTROL_NORMAL = 0,          // "Normal"
  KOVA_ENABLE_CONTROL_ENABLE_ALWAYS = 1,   // "EnableAlways"
  KOVA_ENABLE_CONTROL_DISABLE_ONCE = 2,    // "DisableOnce"
  KOVA_ENABLE_CONTROL_DISABLE_ALWAYS = 3,  // "DisableAlways"
};

// "DefenceAreaType" of "Alarm": the zone type. The first six names must
// match exactly, the others without regard to letter case ("FulldaySlient"
// is the device's own spelling). An unknown or missing name reads as 0,
// and values outside 1..14 pack no "DefenceAreaType".
enum {
  KOVA_DEFENCE_AREA_UNKNOWN = 0,
  KOVA_DEFENCE_AREA_INTIME = 1,          // "Intime"
  KOVA_DEFENCE_AREA_DELAY = 2,           // "Delay"
  KOVA_DEFENCE_AREA_FULLDAY = 3,         // "Fullday"
  KOVA_DEFENCE_AREA_FOLLOW = 4,          // "Follow"
  KOVA_DEFENCE_AREA_MEDICAL = 5,         // "Medical"
  KOVA_DEFENCE_AREA_PANIC = 6,           // "Panic"
  KOVA_DEFENCE_AREA_FIRE = 7,            // "Fire"
  KOVA_DEFENCE_AREA_FULLDAY_SOUND = 8,   // "FulldaySound"
  KOVA_DEFENCE_AREA_FULLDAY_SILENT = 9,  // "FulldaySlient"
  KOVA_DEFENCE_AREA_ENTRANCE1 = 10,      // "Entrance1"
  KOVA_DEFENCE_AREA_ENTRANCE2 = 11,      // "Entrance2"
  KOVA_DEFENCE_AREA_INSIDE = 12,         // "Inside"
  KOVA_DEFENCE_AREA_OUTSIDE = 13,        // "Outside"
  KOVA_DEFENCE_AREA_PEOPLE_DETECT = 14,  // "PeopleDetect"
};

// "Alarm": one local alarm input.
typedef struct AlarmInRecord {
  int32_t channel;     // "params"."channel" of the response: the input's index (parse only)
  int32_t enable;      // "Enable", 0 or 1
  char name[64];       // "Name", local code page
  int32_t sensorType;  // "SensorType", KOVA_SENSOR_*
  EventHandlerRecord eventHandler;  // "EventHandler"
  WeekSchedule week;                // "EventHandler"."TimeSection", first 7 days x 6 sections
  int32_t idPresent;                // 1 when "ID" was given; pack writes "ID" only then
  char id[128];                     // "ID", local code page
  int32_t pole;                     // "Pole" (parse only)
  int32_t senseMethod;              // "SenseMethod", KOVA_SENSE_*
  int32_t enableControl;            // "EnableControl", KOVA_ENABLE_CONTROL_*
  int32_t disableDelay;             // "DisableDelay", seconds
  int32_t defenceAreaType;          // "DefenceAreaType", KOVA_DEFENCE_AREA_*
  int32_t enableDelay;              // "EnableDelay", seconds
  int32_t slot;                     // "Slot"; -1 when absent, and -1 packs no "Slot"
  int32_t level1;                   // "Level1"; -1 when absent, and -1 packs no "Level1"
  uint8_t level2Present;            // 1 when "Level2" was given; pack writes "Level2" only then
  int32_t level2;                   // "Level2"; -1 when absent
} AlarmInRecord;

// "NetAlarm": one network alarm input. A response whose "table" is null
// fails.
typedef struct NetAlarmRecord {
  int32_t channel;                  // not filled by the parser, not packed
  int32_t enable;                   // "Enable", 0 or 1
  char name[64];                    // "Name", local code page
  int32_t sensorType;               // "SensorType", KOVA_SENSOR_*
  EventHandlerRecord eventHandler;  // "EventHandler"
  WeekSchedule week;                // "EventHandler"."TimeSection", first 7 days x 6 sections
} NetAlarmRecord;

// Motion detection regions are grids of one byte per cell (0 or 1), row
// r, column c at region[r][c].
enum {
  KOVA_MOTION_MAX_ROWS = 32,
  KOVA_MOTION_COLS = 22,  // columns the device uses
  KOVA_MOTION_MAX_WINDOWS = 10,
};

// One "MotionDetectWindow" entry given with a "Window" rectangle.
typedef struct MotionWindow {
  int32_t threshold;  // "Threshold"
  int32_t sensitive;  // "Sensitive"
  int32_t rect[4];    // "Window": the four integers as the device sends them
} MotionWindow;

// One "MotionDetectWindow" entry given with a "Region" grid.
typedef struct MotionDetectWindow {
  int32_t id;         // "Id"
  char name[64];      // "Name", local code page
  int32_t threshold;  // "Threshold"
  int32_t sensitive;  // "Sensitive"
  int32_t rows;       // rows of "Region" read, at most 32
  int32_t cols;       // always 22
  // "Region": one integer per row; cell c of a row is bit 21 - c of the
  // integer (the most significant of its 22 bits comes first).
  uint8_t region[32][32];
} MotionDetectWindow;

// "MotionDetect": video motion detection of one channel. The response's
// "result" must be true; a null "table" succeeds with an all-zero record.
typedef struct MotionDetectRecord {
  int32_t channel;  // not filled by the parser, not packed
  int32_t enable;   // "Enable", 0 or 1
  int32_t level;    // "Level", the sensitivity
  int32_t rows;     // rows of "Region" (at most 32), or "Row" when given
  int32_t cols;     // 22 when "Region" was given, or "Col" when given
  // "Region": one integer per row; cell c of a row is bit c of the integer
  // (least significant first), 32 cells per row. Packed for `rows` rows
  // (at most 32) when `rows` is above 0; "Row" and "Col" are not packed.
  uint8_t region[32][32];
  EventHandlerRecord eventHandler;  // "EventHandler"
  WeekSchedule week;                // "EventHandler"."TimeSection", first 7 days x 6 sections
  int32_t parsed;                   // 1 once the parser read the device's text
  int32_t levelPresent;             // 1 when "Level" was given; pack writes it only then
  int32_t volumeRatioPresent;       // 1 when "VolumeRatio" was given; pack writes it only then
  int32_t volumeRatio;              // "VolumeRatio"
  int32_t subRatioPresent;          // 1 when "SubRatio" was given; pack writes it only then
  int32_t subRatio;                 // "SubRatio"
  // "MotionDetectWindow" (at most 10 entries). Entries given with "Window"
  // fill `windows`, entries given with "Region" fill `detectWindows`; each
  // count is the number of entries read, set once one entry has that form.
  // Pack writes max(windowCount, detectWindowCount) entries (each at most
  // 10, a count only when its flag is set) with the members of both forms.
  int32_t windowPresent;
  int32_t windowCount;
  MotionWindow windows[10];
  int32_t detectWindowPresent;
  int32_t detectWindowCount;
  MotionDetectWindow detectWindows[10];
} MotionDetectRecord;

// "LossDetect": video loss of one channel.
typedef struct LossDetectRecord {
  int32_t channel;                  // not filled by the parser, not packed
  int32_t enable;                   // "Enable", 0 or 1
  EventHandlerRecord eventHandler;  // "EventHandler"
  WeekSchedule week;                // "EventHandler"."TimeSection", first 7 days x 6 sections
} LossDetectRecord;

// "BlindDetect": camera masking (blind) detection of one channel.
typedef struct BlindDetectRecord {
  int32_t channel;                  // not filled by the parser, not packed
  int32_t enable;                   // "Enable", 0 or 1
  int32_t level;                    // "Level", the sensitivity
  EventHandlerRecord eventHandler;  // "EventHandler"
  WeekSchedule week;                // "EventHandler"."TimeSection", first 7 days x 6 sections
} BlindDetectRecord;

// "StorageNotExist", "StorageFailure", "NetAbort", "IPConflict": system
// events. The linkage block keeps its own schedule ("TimeSection" with the
// holiday); there is no separate week grid.
typedef struct SystemEventRecord {
  int32_t enable;                   // "Enable", 0 or 1
  EventHandlerRecord eventHandler;  // "EventHandler"
} SystemEventRecord;

// "StorageLowSpace": the disk space alarm.
typedef struct StorageLowSpaceRecord {
  int32_t enable;      // "Enable", 0 or 1
  int32_t lowerLimit;  // "LowerLimit": free space, in percent, below which the alarm fires
  EventHandlerRecord eventHandler;  // "EventHandler"
} StorageLowSpaceRecord;

// ---------------------------------------------------------------------------
// Caller-sized alarm lists: "TemperatureAlarm" and "FanSpeedAlarm".
//
// The device answers with "table" as an array, one entry per sensor (a
// single object is taken as a list of one). The caller sets `size` of the
// first record to the size of the record it was built with (normally
// sizeof the record); the buffer then holds `outLen` / size records of that
// stride. The parser fails when `size` is 0 or above `outLen`, requires
// "result" to be true, clears the buffer, writes `size` into every record's
// first word and fills one record per entry, each only as far as `size`
// reaches (a caller built with a larger record gets zeros beyond this
// layout). `retLen` receives `size` times the entries filled. A null
// "table" fills none.
// The packer reads `size` from the first record (failing when it is 0 or
// above `inLen`), takes `inLen` / size records, each only as far as `size`
// reaches (the rest reads as zero), and writes them as an array.
// ---------------------------------------------------------------------------

// "TemperatureAlarm": one temperature sensor.
typedef struct TemperatureAlarmRecord {
  uint32_t size;          // the record size the caller uses; set by the caller
  int32_t enable;         // "Enable", 0 or 1
  char name[64];          // "Name", local code page
  int32_t limitsPresent;  // 1 when "NormalTemperature" was given; pack writes it only then
  uint32_t reserved;      // never read or written
  double lowerLimit;      // "NormalTemperature"[0], degrees Celsius
  double upperLimit;      // "NormalTemperature"[1], degrees Celsius
  EventHandlerRecord eventHandler;  // "EventHandler"
  WeekSchedule week;                // "EventHandler"."TimeSection", first 7 days x 6 sections
} TemperatureAlarmRecord;

// "FanSpeedAlarm": one fan.
typedef struct FanSpeedAlarmRecord {
  uint32_t size;                    // the record size the caller uses; set by the caller
  int32_t enable;                   // "Enable", 0 or 1
  char name[64];                    // "Name", local code page
  int32_t limitsPresent;            // 1 when "NormalSpeed" was given; pack writes it only then
  int32_t lowerLimit;               // "NormalSpeed"[0], revolutions per minute
  int32_t upperLimit;               // "NormalSpeed"[1], revolutions per minute
  EventHandlerRecord eventHandler;  // "EventHandler"
  WeekSchedule week;                // "EventHandler"."TimeSection", first 7 days x 6 sections
} FanSpeedAlarmRecord;

// "MovedDetect" (the scene moved: the camera was turned away) and
// "UnFocusDetect" (the picture went out of focus): one channel per record.
// The device answers the whole table (an array: record i from channel i,
// as many as the buffer holds) or one channel's object (record 0); the
// buffer is cleared first and the returned length is the records filled.
typedef struct SceneChangeDetectRecord {
  int32_t enable;                   // "Enable", 0 or 1
  int32_t sensitivity;              // "Sensitivity": 1 (least) to 10 (most) on most cameras
  int32_t sensitivityPresent;       // 1 when "Sensitivity" was given; pack writes it only then
  EventHandlerRecord eventHandler;  // "EventHandler"
  WeekSchedule week;                // "EventHandler"."TimeSection", first 7 days x 6 sections
} SceneChangeDetectRecord;

#ifdef __cplusplus
}
static_assert(sizeof(AlarmLampRecord) == 4, "AlarmLampRecord layout");
static_assert(sizeof(DefenceArmModeRecord) == 4, "DefenceArmModeRecord layout");
static_assert(offsetof(AlarmInRecord, sensorType) == 72, "AlarmInRecord layout");
static_assert(offsetof(AlarmInRecord, eventHandler) == 76, "AlarmInRecord layout");
static_assert(offsetof(AlarmInRecord, week) == 76 + sizeof(EventHandlerRecord),
              "AlarmInRecord layout");
static_assert(offsetof(AlarmInRecord, idPresent) ==
                  offsetof(AlarmInRecord, week) + sizeof(WeekSchedule),
              "AlarmInRecord layout");
static_assert(offsetof(AlarmInRecord, level2Present) == offsetof(AlarmInRecord, idPresent) + 164,
              "AlarmInRecord layout");
static_assert(offsetof(AlarmInRecord, level2) == offsetof(AlarmInRecord, idPresent) + 168,
              "AlarmInRecord layout");
static_assert(sizeof(AlarmInRecord) == 338548, "AlarmInRecord layout");
static_assert(offsetof(NetAlarmRecord, eventHandler) == 76, "NetAlarmRecord layout");
static_assert(sizeof(NetAlarmRecord) == 76 + 337124 + 1176, "NetAlarmRecord layout");
static_assert(sizeof(MotionWindow) == 24, "MotionWindow layout");
static_assert(offsetof(MotionDetectWindow, region) == 84, "MotionDetectWindow layout");
static_assert(sizeof(MotionDetectWindow) == 1108, "MotionDetectWindow layout");
static_assert(offsetof(MotionDetectRecord, region) == 20, "MotionDetectRecord layout");
static_assert(offsetof(MotionDetectRecord, eventHandler) == 1044, "MotionDetectRecord layout");
static_assert(offsetof(MotionDetectRecord, parsed) == 1044 + 337124 + 1176,
              "MotionDetectRecord layout");
static_assert(offsetof(MotionDetectRecord, windows) == offsetof(MotionDetectRecord, parsed) + 32,
              "MotionDetectRecord layout");
static_assert(offsetof(MotionDetectRecord, detectWindows) ==
                  offsetof(MotionDetectRecord, windows) + 248,
              "MotionDetectRecord layout");
static_assert(sizeof(MotionDetectRecord) == 350704, "MotionDetectRecord layout");
static_assert(offsetof(LossDetectRecord, eventHandler) == 8, "LossDetectRecord layout");
static_assert(sizeof(LossDetectRecord) == 8 + 337124 + 1176, "LossDetectRecord layout");
static_assert(offsetof(BlindDetectRecord, eventHandler) == 12, "BlindDetectRecord layout");
static_assert(sizeof(BlindDetectRecord) == 12 + 337124 + 1176, "BlindDetectRecord layout");
static_assert(offsetof(SceneChangeDetectRecord, eventHandler) == 12,
              "SceneChangeDetectRecord layout");
static_assert(sizeof(SceneChangeDetectRecord) == 12 + 337124 + 1176,
              "SceneChangeDetectRecord layout");
static_assert(offsetof(SystemEventRecord, eventHandler) == 4, "SystemEventRecord layout");
static_assert(sizeof(SystemEventRecord) == 4 + 337124, "SystemEventRecord layout");
static_assert(offsetof(StorageLowSpaceRecord, eventHandler) == 8, "StorageLowSpaceRecord layout");
static_assert(sizeof(StorageLowSpaceRecord) == 8 + 337124, "StorageLowSpaceRecord layout");
static_assert(offsetof(TemperatureAlarmRecord, lowerLimit) == 80, "TemperatureAlarmRecord layout");
static_assert(offsetof(TemperatureAlarmRecord, eventHandler) == 96,
              "TemperatureAlarmRecord layout");
static_assert(sizeof(TemperatureAlarmRecord) == 338400, "TemperatureAlarmRecord layout");
static_assert(offsetof(FanSpeedAlarmRecord, eventHandler) == 84, "FanSpeedAlarmRecord layout");
static_assert(sizeof(FanSpeedAlarmRecord) == 84 + 337124 + 1176, "FanSpeedAlarmRecord layout");
#endif

#endif  // KOVA_RECORDS_ALARM_H_
