// The frame of a method answer whose payload is a member of "params"
// ("caps", "status", "summary", "users") rather than "params"."table".
#ifndef KOVA_CONFIG_CAPS_METHOD_ANSWER_H_
#define KOVA_CONFIG_CAPS_METHOD_ANSWER_H_

#include <json/value.h>

#include "common/fields/field_table.h"
#include "drivers/response_frame.h"

namespace kova {

// Reads the record from "params" itself with a table whose top field names
// the payload's member (a group or a list keyed "caps", "users", ...): the
// frame's table, "params"."table", is not where these answers put it.
template <const FieldTable& kTable>
bool ParseFromParams(const Json::Value& /*table*/, const StepContext& ctx, unsigned char* record) {
  ParseFields(ctx.params, record, kTable);
  return true;
}

// "result" must be true; the record is cleared and read from "params" (a
// missing payload leaves it zero); one record is reported. Written back, the
// record is the "params" object it came from.
template <typename Rec, const FieldTable& kTable>
constexpr ResponseFrame MethodAnswerFrame() {
  return ResponseFrame::For<Rec>(ParseFromParams<kTable>, TablePack<kTable>())
      .OnNullTable(NullTable::kStep)
      .Returned(ReturnedLength::kSetRecord)
      .Describe(WholeTable<Rec, kTable>::kField);
}

}  // namespace kova

#endif  // KOVA_CONFIG_CAPS_METHOD_ANSWER_H_
