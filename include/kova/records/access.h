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
#endif

#endif  // KOVA_RECORDS_ACCESS_H_
