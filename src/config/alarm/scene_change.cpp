// "MovedDetect" and "UnFocusDetect": the scene of a channel moved, or its
// picture went out of focus. One record per channel.
#include "common/blocks/event_handler.h"
#include "common/fields/field_table.h"
#include "drivers/response_frame.h"
#include "kova/records/alarm.h"

namespace kova {

namespace {

constexpr Field kSceneChangeFields[] = {
    KOVA_F(SceneChangeDetectRecord, enable, "Enable", kBool),
    KOVA_F(SceneChangeDetectRecord, sensitivity, "Sensitivity", kInt)
        .Flag(KOVA_AT(SceneChangeDetectRecord, sensitivityPresent)),
    KOVA_LINKAGE(SceneChangeDetectRecord, eventHandler)
        .Week(KOVA_SCHEDULE_AT(SceneChangeDetectRecord, week))
        .AlwaysRead(),
};
constexpr FieldTable kSceneChange = KOVA_TABLE(kSceneChangeFields);

// An array table lists channels; an object is the channel a client asked
// for; an element that is not an object reads as an empty record.
constexpr ResponseFrame kSceneChangeFrame =
    ResponseFrame::For<SceneChangeDetectRecord>(ParseTableStep<kSceneChange>,
                                                TablePack<kSceneChange>())
        .Walk(RecordWalk::kPerChannel)
        .Describe(WholeTable<SceneChangeDetectRecord, kSceneChange>::kField);

}  // namespace

extern const ResponseFrame kMovedDetectFrame = kSceneChangeFrame;
extern const ResponseFrame kUnFocusDetectFrame = kSceneChangeFrame;

}  // namespace kova
