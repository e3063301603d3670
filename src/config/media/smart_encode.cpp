// "SmartEncode": the per-channel switch of smart (scene-adaptive) encoding.
#include <cstdint>

#include "common/fields/field_table.h"
#include "config/media/translators.h"
#include "drivers/response_frame.h"
#include "kova/records/media.h"

namespace kova {

namespace {

// "Enable" is always written, an absent one as 0; the reserved bytes never are.
constexpr Field kFields[] = {
    KOVA_F(SmartEncodeConfig, enable, "Enable", kBool).AlwaysRead(),
};
constexpr FieldTable kTable = KOVA_TABLE(kFields);

// "table" is one channel's object or an array of channels; the buffer is not cleared.
constexpr ResponseFrame kFrame =
    ResponseFrame::For<SmartEncodeConfig>(ParseTableStep<kTable>, PackTableStep<kTable>)
        .Walk(RecordWalk::kPerChannel)
        .Clear(Clearing::kNone);

}  // namespace

KOVA_FRAME_TRANSLATORS(SmartEncode, kFrame)

}  // namespace kova
