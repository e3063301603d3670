// "AccessControl": the settings of each door of an access controller: its
// state, lock, unlock timing, opening schedule and the newer remote-check
// and first-entry blocks.
#include <cstdio>
#include <string>

#include "common/base/decimal.h"
#include "common/fields/field_table.h"
#include "common/json/json.h"
#include "drivers/described_record.h"
#include "drivers/response_frame.h"
#include "kova/records/access.h"

namespace {

using kova::Field;

// "HH:MM:SS-HH:MM:SS" or "HH:MM-HH:MM"; anything else leaves the range 0.
void ParseRange(const Json::Value& obj, unsigned char* record, const Field& f) {
  DoorTimeRange* r = reinterpret_cast<DoorTimeRange*>(record + f.offset);
  const std::string text = kova::ToText(kova::Member(obj, f.key));
  DoorTimeRange t = {};
  int32_t* fields[6] = {&t.beginHour, &t.beginMinute, &t.beginSecond,
                        &t.endHour,   &t.endMinute,   &t.endSecond};
  if (kova::ReadFixedClockRange(text.c_str(), fields) && text.size() == 17) {  // nothing after
    t.secondsPresent = 1;
    *r = t;
    return;
  }
  int32_t* const shortFields[4] = {&t.beginHour, &t.beginMinute, &t.endHour, &t.endMinute};
  if (kova::ReadFixedFields(text.c_str(), "dd:dd-dd:dd", shortFields) && text.size() == 11) {
    *r = t;
    return;
  }
  char rest = 0;
  if (std::sscanf(text.c_str(), "%d:%d:%d-%d:%d:%d%c", &t.beginHour, &t.beginMinute, &t.beginSecond,
                  &t.endHour, &t.endMinute, &t.endSecond, &rest) == 6) {
    t.secondsPresent = 1;
    *r = t;
    return;
  }
  t = DoorTimeRange{};
  if (std::sscanf(text.c_str(), "%d:%d-%d:%d%c", &t.beginHour, &t.beginMinute, &t.endHour,
                  &t.endMinute, &rest) == 4) {
    *r = t;
  }
}

void PackRange(const unsigned char* record, Json::Value& obj, const Field& f) {
  const DoorTimeRange* r = reinterpret_cast<const DoorTimeRange*>(record + f.offset);
  char text[kova::kClockRangeText];
  char* p = text;
  if (r->secondsPresent != 0) {
    p = kova::PutClockRange(p, r->beginHour, r->beginMinute, r->beginSecond, r->endHour,
                            r->endMinute, r->endSecond);
  } else {
    p = kova::PutClock(p, r->beginHour, r->beginMinute);
    *p++ = '-';
    p = kova::PutClock(p, r->endHour, r->endMinute);
  }
  kova::SetKeptMember(obj, f.key) = Json::Value(text, p);
}

// A range is one member of its entry object, read by the text rules above.
constexpr Field kRangeFields[] = {
    KOVA_CUSTOM(DoorTimeRange, beginHour, "TimeSection", ParseRange, PackRange),
};
constexpr Field kMethodSectionFields[] = {
    KOVA_F(DoorMethodSection, method, "Method", kInt),
    KOVA_CUSTOM(DoorMethodSection, range, "TimeSection", ParseRange, PackRange),
};
constexpr Field kAutoRemoteCheckFields[] = {
    KOVA_F(DoorAutoRemoteCheck, enable, "Enable", kBool),
    KOVA_F(DoorAutoRemoteCheck, time, "Time", kInt),
};
constexpr Field kFirstEnterFields[] = {
    KOVA_F(DoorFirstEnter, enable, "Enable", kBool),
    KOVA_F(DoorFirstEnter, status, "Status", kInt),
    KOVA_F(DoorFirstEnter, time, "Time", kInt),
};
constexpr Field kRemoteDetailFields[] = {
    KOVA_F(DoorRemoteDetail, timeOut, "TimeOut", kInt),
    KOVA_F(DoorRemoteDetail, timeOutDoorStatus, "TimeOutDoorStatus", kBool),
};

}  // namespace

namespace kova {
KOVA_DESCRIBE(DoorTimeRange, kRangeFields)
KOVA_DESCRIBE(DoorMethodSection, kMethodSectionFields)
KOVA_DESCRIBE(DoorAutoRemoteCheck, kAutoRemoteCheckFields)
KOVA_DESCRIBE(DoorFirstEnter, kFirstEnterFields)
KOVA_DESCRIBE(DoorRemoteDetail, kRemoteDetailFields)
}  // namespace kova

namespace {

using kova::CountRule;
using kova::Field;

constexpr Field kRangeEntry = KOVA_ITEM_NESTED(DoorTimeRange);
constexpr Field kMethodEntry = KOVA_ITEM_NESTED(DoorMethodSection);
// A day of the by-day form is itself an array of method sections.
constexpr Field kDay = KOVA_LIST(DoorDaySchedule, sections, nullptr, kMethodEntry)
                           .Count(KOVA_AT(DoorDaySchedule, count), CountRule::kTaken);
constexpr Field kListForm = KOVA_LIST(AccessControlConfig, ranges, "TimeSchedule", kRangeEntry)
                                .Count(KOVA_AT(AccessControlConfig, rangeCount), CountRule::kTaken);
constexpr Field kByDayForm = KOVA_LIST(AccessControlConfig, days, "TimeSchedule", kDay)
                                 .Count(KOVA_AT(AccessControlConfig, dayCount), CountRule::kTaken);

// Older doors send a list of {"TimeSection"} objects, newer ones a list of
// days, each a list of {"Method", "TimeSection"}: the first non-null entry
// tells which, and the record remembers it for pack.
void ParseSchedule(const Json::Value& obj, unsigned char* record, const Field&) {
  AccessControlConfig* r = reinterpret_cast<AccessControlConfig*>(record);
  const Json::Value& schedule = kova::Member(obj, "TimeSchedule");
  if (!schedule.isArray()) return;
  for (uint32_t i = 0; i < kova::Count(schedule); ++i) {
    const Json::Value& first = kova::Element(schedule, i);
    if (first.isNull()) continue;
    const bool byDay = first.isArray();
    r->timeScheduleForm = byDay ? KOVA_DOOR_SCHEDULE_BY_DAY : KOVA_DOOR_SCHEDULE_LIST;
    kova::ParseFields(obj, record, byDay ? &kByDayForm : &kListForm, 1);
    return;
  }
}

void PackSchedule(const unsigned char* record, Json::Value& obj, const Field&) {
  const AccessControlConfig* r = reinterpret_cast<const AccessControlConfig*>(record);
  if (r->timeScheduleForm == KOVA_DOOR_SCHEDULE_LIST) kova::PackFields(record, obj, &kListForm, 1);
  if (r->timeScheduleForm == KOVA_DOOR_SCHEDULE_BY_DAY)
    kova::PackFields(record, obj, &kByDayForm, 1);
}

constexpr Field kDoorFields[] = {
    KOVA_F(AccessControlConfig, state, "State", kText),
    KOVA_F(AccessControlConfig, accessProtocol, "AccessProtocol", kText),
    KOVA_F(AccessControlConfig, entranceLockChannel, "EntranceLockChannel", kInt),
    KOVA_F(AccessControlConfig, openAlwaysTime, "OpenAlwaysTime", kInt),
    KOVA_F(AccessControlConfig, closeAlwaysTime, "CloseAlwaysTime", kInt),
    KOVA_F(AccessControlConfig, unlockHoldInterval, "UnlockHoldInterval", kInt),
    KOVA_F(AccessControlConfig, unlockReloadInterval, "UnlockReloadInterval", kInt),
    KOVA_CUSTOM(AccessControlConfig, timeScheduleForm, "TimeSchedule", ParseSchedule, PackSchedule),
    KOVA_NESTED(AccessControlConfig, autoRemoteCheck, "AutoRemoteCheck")
        .Flag(KOVA_AT(AccessControlConfig, autoRemoteCheckPresent)),
    KOVA_NESTED(AccessControlConfig, firstEnter, "FirstEnter")
        .Flag(KOVA_AT(AccessControlConfig, firstEnterPresent)),
    KOVA_NESTED(AccessControlConfig, remoteDetail, "RemoteDetail")
        .Flag(KOVA_AT(AccessControlConfig, remoteDetailPresent)),
};

}  // namespace

namespace kova {
KOVA_DESCRIBE(AccessControlConfig, kDoorFields)

extern const ResponseFrame kAccessControlFrame = DescribedObject<AccessControlConfig>::kFrame;

}  // namespace kova
