// "AccessControlGeneral": the settings shared by all doors of an access
// controller (prompt sounds, unlock intervals, project password, door
// direction and the anti-passback door groups).
#include <algorithm>
#include <cstddef>
#include <cstring>

#include "common/fields/field_table.h"
#include "common/json/json.h"
#include "common/json/json_writer.h"
#include "config/access/translators.h"
#include "drivers/table_driver.h"
#include "kova/records/access.h"

namespace kova {

namespace {

constexpr uint32_t kMaxGroups = 8;
constexpr uint32_t kMaxDoors = 4;

const char* const kAccessPropertyNames[] = {"bidirect", "unidirect"};
// An unknown direction reads as 0 and is then left out on pack.
const EnumNames kAccessProperty = {kAccessPropertyNames, 2, false, 1, true, 0, true};

// The members directly under "table".
const Field kTableFields[] = {
    KOVA_F(AccessGeneralRecord, unlockReloadInterval, "UnlockReloadInterval", kInt),
    KOVA_F(AccessGeneralRecord, unlockHoldInterval, "UnlockHoldInterval", kInt),
    KOVA_F(AccessGeneralRecord, projectPassword, "ProjectPassword", kText).Flag(KOVA_AT(AccessGeneralRecord, projectPasswordPresent)),
    KOVA_ENUM(AccessGeneralRecord, accessProperty, "AccessProperty", kAccessProperty).Flag(KOVA_AT(AccessGeneralRecord, accessPropertyPresent)),
};

// The members of "Sound".
const Field kSoundFields[] = {
    KOVA_F(AccessGeneralRecord, openDoorSound, "OpenDoor", kText),
    KOVA_F(AccessGeneralRecord, closeDoorSound, "CloseDoor", kText),
    KOVA_F(AccessGeneralRecord, inUsedSound, "InUsed", kText),
    KOVA_F(AccessGeneralRecord, notInUsedSound, "NotInUsed", kText),
    KOVA_F(AccessGeneralRecord, notClosedSound, "NotClosed", kText),
    KOVA_F(AccessGeneralRecord, waitingSound, "Waiting", kText),
};

// A count from the caller's record, cut to the array it counts.
int32_t CutCount(int32_t n, uint32_t cap) {
  return n < 0 ? 0 : (static_cast<uint32_t>(n) > cap ? static_cast<int32_t>(cap) : n);
}

void ParseABLock(const Json::Value& abLock, AccessGeneralRecord* r) {
  const Json::Value& enable = Member(abLock, "Enable");
  if (!enable.isNull()) r->abLockEnable = ToBool(enable) ? 1 : 0;
  const Json::Value& doors = Member(abLock, "Doors");
  if (doors.isArray()) {
    r->abLockGroupCount = static_cast<int32_t>(std::min<uint32_t>(Count(doors), kMaxGroups));
    for (int32_t g = 0; g < r->abLockGroupCount; ++g) {
      const Json::Value& group = Element(doors, static_cast<uint64_t>(g));
      // A group that is not an array keeps what the record held.
      if (!group.isArray()) continue;
      ABLockGroup& out = r->abLockGroups[g];
      out.doorCount = static_cast<int32_t>(std::min<uint32_t>(Count(group), kMaxDoors));
      for (int32_t d = 0; d < out.doorCount; ++d) {
        out.doors[d] = ToInt32(Element(group, static_cast<uint64_t>(d)));
      }
    }
  }
  r->abLockPresent = 1;
}

void PackABLock(const AccessGeneralRecord& r, Json::Value& abLock) {
  SetMember(abLock, "Enable") = r.abLockEnable != 0;
  Json::Value& doors = SetMember(abLock, "Doors");
  doors = Json::Value(Json::arrayValue);
  const int32_t groups = CutCount(r.abLockGroupCount, kMaxGroups);
  for (int32_t g = 0; g < groups; ++g) {
    Json::Value& group = SetElement(doors, static_cast<uint32_t>(g));
    group = Json::Value(Json::arrayValue);
    const ABLockGroup& in = r.abLockGroups[g];
    const int32_t n = CutCount(in.doorCount, kMaxDoors);
    for (int32_t d = 0; d < n; ++d) SetElement(group, static_cast<uint32_t>(d)) = in.doors[d];
  }
}

}  // namespace

int ParseAccessControlGeneral(const char* jsonText, void* outBuf, uint32_t outLen,
                              uint32_t* retLen) {
  if (jsonText == nullptr || outBuf == nullptr || outLen < sizeof(AccessGeneralRecord)) return 0;
  Json::Value root;
  if (!ReadJson(jsonText, &root) || !ResultIsTrue(root)) return 0;
  const Json::Value& table = Member(Member(root, "params"), "table");
  if (table.isNull()) {
    if (retLen != nullptr) *retLen = 0;
    return 1;
  }

  // The caller's record is not cleared: members the device leaves out keep
  // the caller's values, except the presence flags and the direction.
  AccessGeneralRecord r;
  std::memcpy(&r, outBuf, sizeof r);
  r.accessPropertyPresent = 0;
  r.accessProperty = 0;
  r.projectPasswordPresent = 0;
  ParseFields(table, &r, kTableFields);
  ParseFields(Member(table, "Sound"), &r, kSoundFields);

  const Json::Value& abLock = Member(table, "ABLock");
  if (abLock.isNull()) {
    r.abLockPresent = 0;
  } else {
    ParseABLock(abLock, &r);
  }
  std::memcpy(outBuf, &r, sizeof r);
  if (retLen != nullptr) *retLen = sizeof r;
  return 1;
}

int PackAccessControlGeneral(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen) {
  if (inBuf == nullptr || outJson == nullptr || outLen == 0) return 0;
  if (inLen < sizeof(AccessGeneralRecord)) return 0;
  AccessGeneralRecord r;
  std::memcpy(&r, inBuf, sizeof r);

  Json::Value table(Json::objectValue);
  PackFields(&r, SetMember(table, "Sound"), kSoundFields);
  PackFields(&r, table, kTableFields);
  if (r.abLockPresent) PackABLock(r, SetMember(table, "ABLock"));
  return CopyTextStrict(WriteJson(table), outJson, outLen) ? 1 : 0;
}

}  // namespace kova
