// "VideoEncodeROI": regions of the picture encoded at a raised quality, and
// the streams the setting applies to.
#include <cstdint>

#include "common/fields/field_table.h"
#include "drivers/response_frame.h"
#include "kova/records/media.h"
#include "kova/records/video_in.h"

namespace kova {

namespace {

using R = EncodeRoiConfig;

// One region: the four numbers of one "Regions" element, in order (a
// shorter element leaves the rest zero).
constexpr Field kRegion = KOVA_ITEM_TUPLE(RoiRect, int32_t, kInt, 4).MinItems(0);

constexpr Field kFields[] = {
    // The count reports every region the device sent; the record holds eight.
    KOVA_LIST(R, regions, "Regions", kRegion)
        .Count(KOVA_AT(R, regionCount), CountRule::kLength)
        .KeepSlots(),
    // One byte on purpose: a quality above 255 wraps.
    KOVA_F(R, quality, "Quality", kUInt),
    KOVA_F(R, main, "Main", kBool),
    KOVA_F(R, extra1, "Extra1", kBool),
    KOVA_F(R, extra2, "Extra2", kBool),
    KOVA_F(R, extra3, "Extra3", kBool),
    KOVA_F(R, snapshot, "Snapshot", kBool),
};
constexpr FieldTable kTable = KOVA_TABLE(kFields);

// One record, built zeroed and copied out whole.

}  // namespace

extern const ResponseFrame kVideoEncodeRoiFrame =
    TableFrame<R, kTable>().Clear(Clearing::kEachRecord);

}  // namespace kova
