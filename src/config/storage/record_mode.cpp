// "RecordMode": the recording mode of each channel, for the main and the
// first extra stream.
#include "common/fields/field_table.h"
#include "drivers/described_record.h"
#include "drivers/response_frame.h"
#include "kova/records/storage.h"

namespace kova {
namespace {

constexpr Field kModeFields[] = {
    KOVA_F(RecordModeConfig, mode, "Mode", kInt),
    KOVA_F(RecordModeConfig, modeExtra1, "ModeExtra1", kInt),
};

}  // namespace

KOVA_DESCRIBE(RecordModeConfig, kModeFields)
namespace {

constexpr ResponseFrame kFrame = DescribedObject<RecordModeConfig>::kFrame;

}  // namespace

extern const ResponseFrame kRecordModeFrame = kFrame;

}  // namespace kova
