// "VideoAnalyseModule": the detection modules of a channel (object type,
// detect and exclude regions, size filter, sensitivity and the rest).
#include <cstring>

#include "common/blocks/analyse_blocks.h"
#include "common/fields/field_table.h"
#include "common/fields/json_text.h"
#include "common/json/json.h"
#include "drivers/response_frame.h"
#include "kova/records/analyse.h"
#include "kova/records/analyse_setup.h"

namespace kova {

namespace {

using M = AnalyseModule;

inline constexpr Field kSpecialRegionFields[] = {
    KOVA_POINT_LIST(SpecialDetectRegion, region, "SpecialRegion"),
    KOVA_JSON_TEXT(SpecialDetectRegion, property, "Property"),
};

}  // namespace

KOVA_DESCRIBE(SpecialDetectRegion, kova::kSpecialRegionFields)

namespace {

// One "ExcludeRegion" entry: a PointList in its slot.
inline constexpr Field kRegionItem = PointListField<PointList>(nullptr, 0);
inline constexpr Field kSpecialRegionItem = KOVA_ITEM_NESTED(SpecialDetectRegion);

// A member flagged in its own xxxPresent field.
#define KOVA_MODULE_F(member, key, KIND) \
  KOVA_F(M, member, key, KIND).Flag(KOVA_AT(M, member##Present))

constexpr Field kModuleFields[] = {
    KOVA_F(M, objectType, "ObjectType", kText),
    KOVA_F(M, snapShot, "SnapShot", kBool),
    KOVA_F(M, sensitivity, "Sensitivity", kInt),
    KOVA_POINT_LIST(M, detectRegion, "DetectRegion"),
    KOVA_LIST(M, excludeRegions, "ExcludeRegion", kRegionItem)
        .Count(KOVA_AT(M, excludeRegionCount), CountRule::kAll)
        .KeepSlots(),
    KOVA_POINT_LIST(M, trackRegion, "TrackRegion").Flag(KOVA_AT(M, trackRegionPresent)),
    KOVA_JSON_TEXT(M, backgroud, "Backgroud").Flag(KOVA_AT(M, backgroudPresent)),
    KOVA_NESTED(M, sizeFilter, "SizeFilter").Flag(KOVA_AT(M, sizeFilterPresent)),
    KOVA_JSON_TEXT(M, objectFilter, "ObjectFilter").Flag(KOVA_AT(M, objectFilterPresent)),
    KOVA_JSON_TEXT(M, objectImageSize, "ObjectImageSize").Flag(KOVA_AT(M, objectImageSizePresent)),
    KOVA_LIST(M, specialDetectRegions, "SpecialDetectRegion", kSpecialRegionItem)
        .Count(KOVA_AT(M, specialDetectRegionCount), CountRule::kAll)
        .KeepSlots()
        .Flag(KOVA_AT(M, specialDetectRegionPresent)),
    KOVA_MODULE_F(antiDisturbance, "AntiDisturbance", kBool),
    KOVA_MODULE_F(backlight, "Backlight", kBool),
    KOVA_MODULE_F(shadow, "Shadow", kBool),
    KOVA_MODULE_F(contourAssistantTrack, "ContourAssistantTrack", kBool),
    KOVA_MODULE_F(ptzPresetId, "PtzPresetId", kInt),
    KOVA_MODULE_F(accuracy, "Accuracy", kInt),
    KOVA_MODULE_F(movingStep, "MovingStep", kInt),
    KOVA_MODULE_F(scalingFactor, "ScalingFactor", kReal),
    KOVA_MODULE_F(detectBalance, "DetectBalance", kInt),
    KOVA_MODULE_F(type, "Type", kText),
};

#undef KOVA_MODULE_F

}  // namespace

KOVA_DESCRIBE(AnalyseModule, kova::kModuleFields)

namespace {

inline constexpr Field kModuleItem = KOVA_ITEM_NESTED(AnalyseModule);

// The modules are the table itself: described as the member "table" of
// "params" so that one list field reads and writes them.
constexpr Field kModuleTable[] = {
    KOVA_LIST(VideoAnalyseModuleConfig, modules, "table", kModuleItem)
        .Count(KOVA_AT(VideoAnalyseModuleConfig, moduleCount), CountRule::kAll)
        .KeepSlots(),
};

bool ParseModules(const Json::Value& /*table*/, const StepContext& ctx, unsigned char* record) {
  // Cleared here rather than by the frame: a failed parse leaves the record as it was.
  std::memset(record, 0, sizeof(VideoAnalyseModuleConfig));
  ParseFields(ctx.params, record, kModuleTable);
  return true;
}

bool PackModules(const unsigned char* record, Json::Value& out) {
  Json::Value params(Json::objectValue);
  PackFields(record, params, kModuleTable);
  out.swap(SetKeptMember(params, "table"));
  return true;
}

// The list is always written: it is the whole text.
bool PackModulesText(const unsigned char* record, TextSink* out) {
  return WriteValueText(record + kModuleTable[0].offset, kModuleTable[0], out);
}

// Only a "result" given and false fails.

}  // namespace

extern const ResponseFrame kVideoAnalyseModuleFrame =
    KeptRecordFrame<VideoAnalyseModuleConfig>(ParseModules, Packing(PackModules, PackModulesText))
        .Result(ResultRule::kFalseFails)
        .Describe(kModuleTable[0]);

}  // namespace kova
