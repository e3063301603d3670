// Records of the access-control configuration family.
#ifndef KOVA_RECORDS_ACCESS_H_
#define KOVA_RECORDS_ACCESS_H_

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

// One anti-passback door group: the doors that must be passed in turn.
typedef struct ABLockGroup {
  int32_t doorCount;  // number of doors in `doors`, at most 4
  int32_t doors[4];   // door numbers, as the device counts them
} ABLockGroup;

// "AccessControlGeneral": settings shared by all doors of an access
// controller.
//
// Parse does not clear the record first: a member the device leaves out
// leaves its field as the caller had it, except the three presence flags
// and `accessProperty`, which are always set. A response whose "table" is
// null succeeds without touching the record and reports 0 bytes; otherwise
// `retLen` is set to the record's size.
// Text fields are converted from the device's UTF-8 to the local code page
// and back; a field filled to its capacity without a terminator is read up
// to its capacity on pack.
typedef struct AccessGeneralRecord {
  char openDoorSound[256];         // "Sound"."OpenDoor": audio file played on unlock
  char closeDoorSound[256];        // "Sound"."CloseDoor"
  char inUsedSound[256];           // "Sound"."InUsed": card accepted
  char notInUsedSound[256];        // "Sound"."NotInUsed": card refused
  char notClosedSound[256];        // "Sound"."NotClosed": door left open
  char waitingSound[256];          // "Sound"."Waiting"
  int32_t unlockReloadInterval;    // "UnlockReloadInterval", ms before the next unlock is accepted
  int32_t unlockHoldInterval;      // "UnlockHoldInterval", ms the lock stays open
  uint8_t projectPasswordPresent;  // 1 when "ProjectPassword" was given; pack writes it only then
  uint8_t accessPropertyPresent;   // 1 when "AccessProperty" was given; pack writes it only then
  uint8_t abLockPresent;           // 1 when "ABLock" was given; pack writes it only then
  uint8_t spare;                   // reserved; never read or written
  char projectPassword[64];        // "ProjectPassword": the installer's password
  int32_t accessProperty;    // "AccessProperty": 1 "bidirect", 2 "unidirect", 0 unknown or absent
  int32_t abLockEnable;      // "ABLock"."Enable", 0 or 1
  int32_t abLockGroupCount;  // number of "ABLock"."Doors" groups, at most 8
  ABLockGroup abLockGroups[8];  // "ABLock"."Doors": up to 8 groups of up to 4 doors
} AccessGeneralRecord;

// ---------------------------------------------------------------------------
// "AccessControl": the settings of each door, one record per door
// ("table" is an array with one element per door; a single object fills one
// record). Parse clears the records first; a null "table" succeeds with 0
// bytes; the returned length is the bytes of the records filled. Pack writes
// one record as the bare object and several as an array, and copies the
// text only when it is strictly shorter than the output buffer.

// One opening period, "HH:MM-HH:MM" or "HH:MM:SS-HH:MM:SS" (no leading flag).
typedef struct DoorTimeRange {
  int32_t beginHour;
  int32_t beginMinute;
  int32_t beginSecond;
  int32_t endHour;
  int32_t endMinute;
  int32_t endSecond;
  // 1 when the device wrote seconds; pack writes them only then. A text
  // that is neither form leaves the whole range 0.
  int32_t secondsPresent;
} DoorTimeRange;

// One period of a newer door's day: how the door opens in it.
typedef struct DoorMethodSection {
  int32_t method;       // "Method": the device's unlock method index (card, password, ...)
  DoorTimeRange range;  // "TimeSection"
} DoorMethodSection;

// One day of a newer door's schedule.
typedef struct DoorDaySchedule {
  int32_t count;                  // periods taken, at most 4
  DoorMethodSection sections[4];  // the day's {"Method", "TimeSection"} objects
} DoorDaySchedule;

// Forms of "TimeSchedule".
enum {
  KOVA_DOOR_SCHEDULE_NONE = 0,    // absent, or neither form: nothing is written back
  KOVA_DOOR_SCHEDULE_LIST = 1,    // [{"TimeSection": "..."}, ...]: `rangeCount`/`ranges`
  KOVA_DOOR_SCHEDULE_BY_DAY = 2,  // [[{"Method", "TimeSection"}, ...], ...]: `dayCount`/`days`
};

// "AutoRemoteCheck": a remote confirmation before the door opens.
typedef struct DoorAutoRemoteCheck {
  int32_t enable;  // "Enable", 0 or 1
  int32_t time;    // "Time": index of the schedule it applies in
} DoorAutoRemoteCheck;

// "FirstEnter": the door's behaviour after the first person entered.
typedef struct DoorFirstEnter {
  int32_t enable;  // "Enable", 0 or 1
  int32_t status;  // "Status": the door state it switches to
  int32_t time;    // "Time": index of the schedule it applies in
} DoorFirstEnter;

// "RemoteDetail": how long a remote check is waited for.
typedef struct DoorRemoteDetail {
  int32_t timeOut;            // "TimeOut": seconds
  int32_t timeOutDoorStatus;  // "TimeOutDoorStatus", 0 or 1: open when the wait runs out
} DoorRemoteDetail;

typedef struct AccessControlConfig {
  char state[32];           // "State": "Normal", "CloseAlways", "OpenAlways", ... (kept as text)
  char accessProtocol[32];  // "AccessProtocol": how the lock is driven, e.g. "Local" (kept as text)
  int32_t entranceLockChannel;   // "EntranceLockChannel"
  int32_t openAlwaysTime;        // "OpenAlwaysTime": index of the schedule keeping the door open
  int32_t closeAlwaysTime;       // "CloseAlwaysTime": index of the schedule keeping it closed
  int32_t unlockHoldInterval;    // "UnlockHoldInterval": ms the lock stays open
  int32_t unlockReloadInterval;  // "UnlockReloadInterval": ms before the next unlock is accepted
  int32_t timeScheduleForm;      // KOVA_DOOR_SCHEDULE_*: the form "TimeSchedule" came in
  int32_t rangeCount;            // entries taken from the list form, at most 16
  DoorTimeRange ranges[16];      // "TimeSchedule"[i]."TimeSection" (list form)
  int32_t dayCount;              // days taken from the by-day form, at most 8
  DoorDaySchedule days[8];       // "TimeSchedule"[d] (by-day form: 7 weekdays and the holiday)
  DoorAutoRemoteCheck autoRemoteCheck;  // "AutoRemoteCheck" (newer doors)
  DoorFirstEnter firstEnter;            // "FirstEnter" (newer doors)
  DoorRemoteDetail remoteDetail;        // "RemoteDetail" (newer doors)
  // 1 when the block was given as an object; pack writes it only then.
  uint8_t autoRemoteCheckPresent;
  uint8_t firstEnterPresent;
  uint8_t remoteDetailPresent;
  uint8_t reserved;  // never read or written
} AccessControlConfig;

#ifdef __cplusplus
}
static_assert(sizeof(ABLockGroup) == 20, "ABLockGroup layout");
static_assert(offsetof(AccessGeneralRecord, unlockReloadInterval) == 1536,
              "AccessGeneralRecord layout");
static_assert(offsetof(AccessGeneralRecord, projectPasswordPresent) == 1544,
              "AccessGeneralRecord layout");
static_assert(offsetof(AccessGeneralRecord, projectPassword) == 1548, "AccessGeneralRecord layout");
static_assert(offsetof(AccessGeneralRecord, accessProperty) == 1612, "AccessGeneralRecord layout");
static_assert(offsetof(AccessGeneralRecord, abLockGroups) == 1624, "AccessGeneralRecord layout");
static_assert(sizeof(AccessGeneralRecord) == 1784, "AccessGeneralRecord layout");
static_assert(sizeof(DoorTimeRange) == 28, "DoorTimeRange layout");
static_assert(sizeof(DoorDaySchedule) == 4 + 4 * 32, "DoorDaySchedule layout");
static_assert(offsetof(AccessControlConfig, ranges) == 92, "AccessControlConfig layout");
static_assert(offsetof(AccessControlConfig, days) == 544, "AccessControlConfig layout");
static_assert(sizeof(AccessControlConfig) == 1632, "AccessControlConfig layout");
#endif

#endif  // KOVA_RECORDS_ACCESS_H_
