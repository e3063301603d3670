// "SmartEncode": the per-channel switch of smart (scene-adaptive) encoding.
#include <cstdint>

#include "common/fields/field_table.h"
#include "drivers/response_frame.h"
#include "kova/records/media.h"
#include "kova/records/video_in.h"

namespace kova {

namespace {

// "Enable" is always written, an absent one as 0; the reserved bytes never are.
constexpr Field kFields[] = {
    KOVA_F(SmartEncodeConfig, enable, "Enable", kBool).AlwaysRead(),
};
constexpr FieldTable kTable = KOVA_TABLE(kFields);

// "table" is one channel's object or an array of channels; the buffer is not cleared.

}  // namespace

extern const ResponseFrame kSmartEncodeFrame =
    TableFrame<SmartEncodeConfig, kTable>().Walk(RecordWalk::kPerChannel).Clear(Clearing::kNone);

}  // namespace kova
