// "EncodeAdapt": how each channel's encoder adapts to the network (the
// policy, and how quickly it follows the bandwidth).
#include <cstdint>

#include "common/fields/field_table.h"
#include "drivers/response_frame.h"
#include "kova/records/media.h"
#include "kova/records/video_in.h"

namespace kova {

namespace {

constexpr const char* kPolicy[] = {"None", "Quality", "Fluency"};
constexpr const char* kFluencyMode[] = {"Fast", "Slow", "Sync", "Slowsync"};
// Exact comparison; an unknown text stores 0, which packs as "".
constexpr EnumNames kPolicyNames = EnumNames::Of(kPolicy).Exact().FirstValue(1).UnknownAs(0);
constexpr EnumNames kFluencyModeNames =
    EnumNames::Of(kFluencyMode).Exact().FirstValue(1).UnknownAs(0);

// A key that is absent or null leaves its field.
constexpr Field kFields[] = {
    KOVA_ENUM(EncodeAdaptConfig, policy, "Policy", kPolicyNames),
    KOVA_ENUM(EncodeAdaptConfig, fluencyMode, "FluencyMode", kFluencyModeNames),
};
constexpr FieldTable kTable = KOVA_TABLE(kFields);

// "table" is one channel's object or an array of channels; the buffer is not cleared.

}  // namespace

extern const ResponseFrame kEncodeAdaptFrame =
    TableFrame<EncodeAdaptConfig, kTable>().Walk(RecordWalk::kPerChannel).Clear(Clearing::kNone);

}  // namespace kova
