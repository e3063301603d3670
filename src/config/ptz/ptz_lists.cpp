// "PtzPreset", "PtzTour" and "PtzAutoMovement": a channel's presets, tours
// and scheduled tasks, each a list per channel. Entry i of the device's
// list is slot i of the record (its number less one), so that a list with
// a gap packs back with every entry in its place.
#include "common/blocks/week_grid.h"
#include "common/fields/field_table.h"
#include "drivers/described_record.h"
#include "drivers/response_frame.h"
#include "kova/records/ptz_motion.h"

namespace kova {

constexpr Field kPtzPresetFields[] = {
    KOVA_F(PtzPresetEntry, enable, "Enable", kBool),
    KOVA_F(PtzPresetEntry, name, "Name", kText),
    KOVA_TUPLE(PtzPresetEntry, position, "Position", int32_t, 3),
    KOVA_F(PtzPresetEntry, type, "Type", kInt).Flag(KOVA_AT(PtzPresetEntry, typePresent)),
    KOVA_F(PtzPresetEntry, panAngleHD, "PanAngleHD", kInt)
        .Flag(KOVA_AT(PtzPresetEntry, panAngleHDPresent)),
    KOVA_F(PtzPresetEntry, tiltAngleHD, "TiltAngleHD", kInt)
        .Flag(KOVA_AT(PtzPresetEntry, tiltAngleHDPresent)),
    KOVA_F(PtzPresetEntry, zoomMapValue, "ZoomMapValue", kInt)
        .Flag(KOVA_AT(PtzPresetEntry, zoomMapValuePresent)),
    KOVA_F(PtzPresetEntry, focusMapValue, "FocusMapValue", kInt)
        .Flag(KOVA_AT(PtzPresetEntry, focusMapValuePresent)),
};
KOVA_DESCRIBE(PtzPresetEntry, kPtzPresetFields)

// A stop with fewer than three items keeps the ones given (the rest 0).
constexpr Field kPtzTourStop = KOVA_ITEM_TUPLE(PtzTourStop, int32_t, kInt, 3).MinItems(1);

constexpr Field kPtzTourFields[] = {
    KOVA_F(PtzTourEntry, enable, "Enable", kBool),
    KOVA_F(PtzTourEntry, name, "Name", kText),
    KOVA_LIST(PtzTourEntry, stops, "Presets", kPtzTourStop)
        .Count(KOVA_AT(PtzTourEntry, stopCount), CountRule::kTaken),
};
KOVA_DESCRIBE(PtzTourEntry, kPtzTourFields)

constexpr Field kPtzAutoHomingFields[] = {
    KOVA_F(PtzAutoHoming, enable, "Enable", kBool),
    KOVA_F(PtzAutoHoming, time, "Time", kInt),
};
KOVA_DESCRIBE(PtzAutoHoming, kPtzAutoHomingFields)

constexpr Field kPtzAutoMovementFields[] = {
    KOVA_F(PtzAutoMovementEntry, enable, "Enable", kBool),
    KOVA_F(PtzAutoMovementEntry, function, "Function", kText),
    KOVA_F(PtzAutoMovementEntry, scanId, "ScanId", kInt),
    KOVA_F(PtzAutoMovementEntry, presetId, "PresetId", kInt),
    KOVA_F(PtzAutoMovementEntry, patternId, "PatternId", kInt),
    KOVA_F(PtzAutoMovementEntry, tourId, "TourId", kInt),
    KOVA_NESTED(PtzAutoMovementEntry, autoHoming, "AutoHoming")
        .Flag(KOVA_AT(PtzAutoMovementEntry, autoHomingPresent)),
    KOVA_F(PtzAutoMovementEntry, snapshotEnable, "SnapshotEnable", kBool)
        .Flag(KOVA_AT(PtzAutoMovementEntry, snapshotEnablePresent)),
    KOVA_F(PtzAutoMovementEntry, snapshotDelayTime, "SnapshotDelayTime", kInt)
        .Flag(KOVA_AT(PtzAutoMovementEntry, snapshotDelayTimePresent)),
    KOVA_WEEK_GRID(PtzAutoMovementEntry, timeSection, "TimeSection", 7, 6)
        .Flag(KOVA_AT(PtzAutoMovementEntry, timeSectionPresent)),
};
KOVA_DESCRIBE(PtzAutoMovementEntry, kPtzAutoMovementFields)

namespace {

constexpr Field kPreset = KOVA_ITEM_NESTED(PtzPresetEntry);
constexpr Field kPresets = KOVA_LIST(PtzPresetConfig, presets, nullptr, kPreset)
                               .KeepSlots()
                               .Count(KOVA_AT(PtzPresetConfig, presetCount), CountRule::kAll);

constexpr Field kTour = KOVA_ITEM_NESTED(PtzTourEntry);
constexpr Field kTours = KOVA_LIST(PtzTourConfig, tours, nullptr, kTour)
                             .KeepSlots()
                             .Count(KOVA_AT(PtzTourConfig, tourCount), CountRule::kAll);

constexpr Field kTask = KOVA_ITEM_NESTED(PtzAutoMovementEntry);
constexpr Field kTasks = KOVA_LIST(PtzAutoMovementConfig, tasks, nullptr, kTask)
                             .KeepSlots()
                             .Count(KOVA_AT(PtzAutoMovementConfig, taskCount), CountRule::kAll);

// A channel's list holds objects: one whose elements are arrays belongs to
// a table of another depth and reads as empty rather than as entries
// (intended).
template <const Field& kList>
bool ParseChannelList(const Json::Value& element, const StepContext& ctx, unsigned char* record) {
  if (ArrayDepth(element, 4) > 1) return true;
  return ParseDescribed<kList>(element, ctx, record);
}

// A table whose elements are arrays lists channels; a table of objects is
// the one channel a client asked for.
template <typename Rec, const Field& kList>
constexpr ResponseFrame ChannelListFrame() {
  return DescribedFrame<Rec, kList>().With(&ResponseFrame::parse,
                                           ParseStep{ParseChannelList<kList>});
}

}  // namespace

extern const ResponseFrame kPtzPresetFrame = ChannelListFrame<PtzPresetConfig, kPresets>();
extern const ResponseFrame kPtzTourFrame = ChannelListFrame<PtzTourConfig, kTours>();
extern const ResponseFrame kPtzAutoMovementFrame =
    ChannelListFrame<PtzAutoMovementConfig, kTasks>();

}  // namespace kova
