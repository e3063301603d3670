// The response frame the analysis translators share. The caller's record
// is never cleared by the frame: the rule list and the global settings
// carry the caller's own buffers in it, and a failed parse leaves the
// modules as they were. A missing table still reaches the step (it reads as
// no rules, no modules, no settings); *retLen is the record's size; packed
// text is copied only when strictly shorter than the output.
#ifndef KOVA_CONFIG_ANALYSE_ANALYSE_FRAME_H_
#define KOVA_CONFIG_ANALYSE_ANALYSE_FRAME_H_

#include "drivers/response_frame.h"

namespace kova {

template <typename Rec>
constexpr ResponseFrame AnalyseFrame(ParseStep parse, PackStep pack) {
  return ResponseFrame::For<Rec>(parse, pack)
      .Clear(Clearing::kNone)
      .OnNullTable(NullTable::kStep)
      .Returned(ReturnedLength::kSetRecord)
      .Copy(CopyRule::kStrictlyLess);
}

}  // namespace kova

#endif  // KOVA_CONFIG_ANALYSE_ANALYSE_FRAME_H_
