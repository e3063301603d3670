#include "config/alarm/alarm_frame.h"

#include "common/blocks/event_handler.h"
#include "common/json/json.h"
#include "common/json/json_writer.h"
#include "common/blocks/time_schedule.h"
#include "config/alarm/sized_alarm_list.h"
#include "drivers/table_driver.h"

namespace kova {

bool BeginAlarmParse(const char* jsonText, void* outBuf, uint32_t outLen, size_t recordSize,
                     Json::Value* root) {
  if (jsonText == nullptr || outBuf == nullptr || outLen < recordSize) return false;
  std::memset(outBuf, 0, outLen);
  return ReadJson(jsonText, root);
}

TableOutcome TakeAlarmTable(const Json::Value& root, TableRule rule, const Json::Value** table) {
  if (rule == TableRule::kResultZeroOnNull && !ResultIsTrue(root)) return TableOutcome::kFail;
  *table = &Member(Member(root, "params"), "table");
  if ((*table)->isNull()) {
    if (rule == TableRule::kFailOnNull) return TableOutcome::kFail;
    if (rule == TableRule::kResultZeroOnNull) return TableOutcome::kAllZero;
  }
  return TableOutcome::kRead;
}

void ParseLinkageWithWeek(const Json::Value& table, EventHandlerRecord* eh, WeekSchedule* week) {
  ParseEventHandlerWithWeek(Member(table, "EventHandler"), eh, week);
}

void PackLinkage(const EventHandlerRecord& eh, const WeekSchedule* week, Json::Value& table) {
  Json::Value& handler = SetMember(table, "EventHandler");
  PackEventHandler(eh, handler);
  if (week == nullptr) return;
  // The grid beside the linkage block is the copy callers edit: it wins
  // over the first seven days of the block's own schedule.
  Json::Value& sections = SetMember(handler, "TimeSection");
  for (uint32_t d = 0; d < KOVA_WEEK_DAYS; ++d) {
    Json::Value& day = SetElement(sections, d);
    for (uint32_t s = 0; s < KOVA_SECTIONS_PER_DAY; ++s) {
      PackTimeSection(SetElement(day, s), week->sections[d][s]);
    }
  }
}

int FinishAlarmPack(const Json::Value& payload, char* outJson, uint32_t outLen) {
  return CopyTextAtMost(WriteJson(payload), outJson, outLen) ? 1 : 0;
}

}  // namespace kova
