// Records of a PTZ head's movements: "PtzPreset", "PtzTour",
// "PtzAutoMovement", "IdleMotion" and "PowerUp".
//
// "PtzPreset", "PtzTour" and "PtzAutoMovement" hold one channel's list per
// record. The device answers either the whole table (an array with one list
// per channel: record i from channel i, as many records as the buffer
// holds) or one channel's list (record 0); a table of any other depth
// fills no entry. "IdleMotion" and "PowerUp" hold one channel's object per
// record, an array of them filling one record per channel. Parse clears the
// caller's buffer first, so a key the device leaves out reads 0 (or empty
// text). A list longer than its capacity is cut to it.
#ifndef KOVA_RECORDS_PTZ_MOTION_H_
#define KOVA_RECORDS_PTZ_MOTION_H_

#include <stddef.h>
#include <stdint.h>

#include "kova/records/schedule.h"

#ifdef __cplusplus
extern "C" {
#endif

enum {
  KOVA_PTZ_PRESETS = 512,        // presets per channel (the largest heads offer 300)
  KOVA_PTZ_TOURS = 64,           // tours per channel
  KOVA_PTZ_TOUR_PRESETS = 128,   // stops per tour
  KOVA_PTZ_AUTO_MOVEMENTS = 16,  // scheduled tasks per channel (heads offer 8)
  KOVA_PTZ_NAME_LEN = 64,
  KOVA_PTZ_FUNCTION_LEN = 32,
};

// One preset of "PtzPreset". Preset i of the device's array is entry i
// (its place is the preset's number less one), kept in place even when the
// element is not an object.
typedef struct PtzPresetEntry {
  int32_t enable;                // "Enable" (boolean), 0 or 1
  char name[KOVA_PTZ_NAME_LEN];  // "Name", at most 63 bytes kept
  int32_t position[3];           // "Position": [pan, tilt, zoom] in the head's own units;
                                 // an array of fewer than three leaves all three 0
  int32_t type;                  // "Type": the preset's kind as the head numbers it
  int32_t panAngleHD;            // "PanAngleHD": pan in hundredths of a degree
  int32_t tiltAngleHD;           // "TiltAngleHD": tilt in hundredths of a degree
  int32_t zoomMapValue;          // "ZoomMapValue": the zoom motor's position
  int32_t focusMapValue;         // "FocusMapValue": the focus motor's position
  // 1 when the key was given (pack writes it only then); the four
  // high-definition members are sent by some heads only.
  uint8_t typePresent;
  uint8_t panAngleHDPresent;
  uint8_t tiltAngleHDPresent;
  uint8_t zoomMapValuePresent;
  uint8_t focusMapValuePresent;
  uint8_t reserved[3];
} PtzPresetEntry;

// "PtzPreset": the presets of one channel.
typedef struct PtzPresetConfig {
  PtzPresetEntry presets[KOVA_PTZ_PRESETS];
  int32_t presetCount;  // elements looked at (cut to KOVA_PTZ_PRESETS); pack writes that many
} PtzPresetConfig;

// One stop of a tour: "Presets"[i] = [preset id, dwell seconds, speed];
// missing trailing items read 0, pack writes all three.
typedef struct PtzTourStop {
  int32_t presetId;
  int32_t dwellSeconds;
  int32_t speed;
} PtzTourStop;

// One tour of "PtzTour". Tour i of the device's array is entry i (its
// place is the tour's number less one).
typedef struct PtzTourEntry {
  int32_t enable;                // "Enable" (boolean), 0 or 1
  char name[KOVA_PTZ_NAME_LEN];  // "Name", at most 63 bytes kept
  int32_t stopCount;             // stops read from "Presets" (cut to KOVA_PTZ_TOUR_PRESETS)
  PtzTourStop stops[KOVA_PTZ_TOUR_PRESETS];  // "Presets", elements that are arrays, in order
} PtzTourEntry;

// "PtzTour": the tours of one channel.
typedef struct PtzTourConfig {
  PtzTourEntry tours[KOVA_PTZ_TOURS];
  int32_t tourCount;  // elements looked at (cut to KOVA_PTZ_TOURS); pack writes that many
} PtzTourConfig;

// "AutoHoming" of a scheduled task: return home after the head was moved
// by hand.
typedef struct PtzAutoHoming {
  int32_t enable;  // "Enable" (boolean), 0 or 1
  int32_t time;    // "Time": seconds without control before the task resumes
} PtzAutoHoming;

// One scheduled task of "PtzAutoMovement". Task i of the device's array is
// entry i.
typedef struct PtzAutoMovementEntry {
  int32_t enable;  // "Enable" (boolean), 0 or 1
  // "Function": "None", "Scan", "Preset", "Pattern", "Tour" or any other
  // text the head names, kept as given (at most 31 bytes)
  char function[KOVA_PTZ_FUNCTION_LEN];
  int32_t scanId;                       // "ScanId"
  int32_t presetId;                     // "PresetId"
  int32_t patternId;                    // "PatternId"
  int32_t tourId;                       // "TourId"
  PtzAutoHoming autoHoming;             // "AutoHoming"
  int32_t snapshotEnable;               // "SnapshotEnable" (boolean), 0 or 1
  int32_t snapshotDelayTime;            // "SnapshotDelayTime": seconds after arriving
  TimeSectionRecord timeSection[7][6];  // "TimeSection": 7 days x 6 sections
  // 1 when the key was given (pack writes it only then): older heads send
  // neither the homing block nor the snapshot keys.
  uint8_t autoHomingPresent;
  uint8_t snapshotEnablePresent;
  uint8_t snapshotDelayTimePresent;
  uint8_t timeSectionPresent;
} PtzAutoMovementEntry;

// "PtzAutoMovement": the scheduled tasks of one channel.
typedef struct PtzAutoMovementConfig {
  PtzAutoMovementEntry tasks[KOVA_PTZ_AUTO_MOVEMENTS];
  int32_t taskCount;  // elements looked at (cut to KOVA_PTZ_AUTO_MOVEMENTS); pack writes that many
} PtzAutoMovementConfig;

// "IdleMotion": what the head of one channel does after a time without
// control.
typedef struct IdleMotionConfig {
  int32_t enable;  // "Enable" (boolean), 0 or 1
  // "Function": "None", "Preset", "Tour", "ScanTour", "Scan", "Pattern" or
  // any other text the head names, kept as given (at most 31 bytes)
  char function[KOVA_PTZ_FUNCTION_LEN];
  int32_t presetId;    // "PresetId"
  int32_t tourId;      // "TourId"
  int32_t scanTourId;  // "ScanTourId"
  int32_t scanId;      // "ScanId"
  int32_t patternId;   // "PatternId"
  int32_t timer;       // "Timer": minutes without control
  int32_t
      scanTourIdPresent;  // 1 when "ScanTourId" was given (newer heads); pack writes it only then
} IdleMotionConfig;

// "PowerUp": what the head of one channel does when it powers up. A fixed
// 24-byte record served by the table drivers: "table" is one channel's
// object (record 0) or an array of them (one record each, a null element
// keeping its record zero); the returned length is added to. Pack writes
// one record bare, several as an array. "ScanTourId" has no room in the
// record: it is not read and not written.
typedef struct PowerUpConfig {
  int32_t enable;  // "Enable" (boolean), 0 or 1
  // "Function": 0 "Auto", 1 "Preset", 2 "Tour", 3 "ScanTour", 4 "Scan",
  // 5 "Pattern" (case ignored); any other text (or a missing key) reads -1,
  // which pack leaves out
  int32_t function;
  int32_t presetId;   // "PresetId"
  int32_t tourId;     // "TourId"
  int32_t scanId;     // "ScanId"
  int32_t patternId;  // "PatternId"
} PowerUpConfig;

#ifdef __cplusplus
}
static_assert(sizeof(PtzPresetEntry) == 108, "PtzPresetEntry layout");
static_assert(offsetof(PtzPresetEntry, typePresent) == 100, "PtzPresetEntry layout");
static_assert(offsetof(PtzPresetConfig, presetCount) == 512 * 108, "PtzPresetConfig layout");
static_assert(sizeof(PtzPresetConfig) == 4 + 512 * 108, "PtzPresetConfig layout");
static_assert(sizeof(PtzTourStop) == 12, "PtzTourStop layout");
static_assert(sizeof(PtzTourEntry) == 72 + 128 * 12, "PtzTourEntry layout");
static_assert(sizeof(PtzTourConfig) == 4 + 64 * sizeof(PtzTourEntry), "PtzTourConfig layout");
static_assert(offsetof(PtzAutoMovementEntry, timeSection) == 68, "PtzAutoMovementEntry layout");
static_assert(sizeof(PtzAutoMovementEntry) == 68 + 1176 + 4, "PtzAutoMovementEntry layout");
static_assert(sizeof(PtzAutoMovementConfig) == 4 + 16 * sizeof(PtzAutoMovementEntry),
              "PtzAutoMovementConfig layout");
static_assert(sizeof(IdleMotionConfig) == 64, "IdleMotionConfig layout");
static_assert(sizeof(PowerUpConfig) == 24, "PowerUpConfig layout");
#endif

#endif  // KOVA_RECORDS_PTZ_MOTION_H_
