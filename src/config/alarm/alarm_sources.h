// What the alarm sources with a linkage block share: the description of
// their response frame and the record-level linkage fields.
//
// Parse: the caller's buffer must hold one record and is cleared whole
// before the text is read; "result" is not looked at (the members say what
// a null "table" does); the record is filled in place; `retLen` is set to
// the record's size. Pack: one record, written as the bare "table" object,
// copied when the text is at most the output size.
#ifndef KOVA_CONFIG_ALARM_ALARM_SOURCES_H_
#define KOVA_CONFIG_ALARM_ALARM_SOURCES_H_

#include "common/blocks/event_handler.h"
#include "common/fields/field_table.h"
#include "drivers/response_frame.h"

namespace kova {

template <typename Rec>
constexpr ResponseFrame AlarmSourceFrame(ParseStep parse, Packing pack) {
  return ResponseFrame::For<Rec>(parse, pack)
      .IgnoreResult()
      .OnNullTable(NullTable::kStep)
      .Returned(ReturnedLength::kSetRecord)
      .Copy(CopyRule::kAtMost);
}

template <typename Rec, const FieldTable& kTable>
constexpr ResponseFrame AlarmSourceFrame() {
  return AlarmSourceFrame<Rec>(ParseTableStep<kTable>, TablePack<kTable>())
      .Describe(WholeTable<Rec, kTable>::kField);
}

}  // namespace kova

#endif  // KOVA_CONFIG_ALARM_ALARM_SOURCES_H_
