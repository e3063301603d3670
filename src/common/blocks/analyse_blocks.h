// Field descriptions of the building blocks of video analysis
// (kova/records/analyse.h): points, lines and regions, trigger positions,
// calibration boxes and the size filter, with the enumerations the rule
// types share. Rules, modules and analyzer events all describe their
// members with these, in their own field tables:
//
//   constexpr Field kFenceConfig[] = {
//       KOVA_ENUM(FenceRule, direction, "Direction", kLineDirections),
//       KOVA_POINT_LIST(FenceRule, upstairsLine, "UpstairsLine"),
//       KOVA_TRIGGER_POSITIONS(FenceRule, triggerPositions, "TriggerPosition"),
//       KOVA_NESTED(FenceRule, sizeFilter, "SizeFilter")
//           .Flag(KOVA_AT(FenceRule, sizeFilterPresent)),
//   };
#ifndef KOVA_COMMON_ANALYSE_BLOCKS_H_
#define KOVA_COMMON_ANALYSE_BLOCKS_H_

#include <cstddef>
#include <type_traits>

#include "common/fields/field_table.h"
#include "kova/records/analyse.h"

namespace kova {

// One [x, y] entry: taken only when it is an array of at least two items.
inline constexpr Field kPointItem = KOVA_ITEM_TUPLE(Point, int32_t, kInt, 2);

// A block of a count followed by its array, read as one list under `key`:
// entry i goes to slot i whether or not it is taken; the count by `rule`.
template <typename Array>
constexpr Field CountedArrayField(const char* key, size_t arrayAt, size_t countAt,
                                  const Field* element, CountRule rule) {
  return MakeList<Array>(key, arrayAt, element)
      .Count(Slot{static_cast<uint32_t>(countAt), static_cast<uint32_t>(sizeof(uint32_t))}, rule)
      .KeepSlots();
}

// A PointList (or DirectionLine) member under `key`: pointCount counts the
// points taken (the point rule).
template <typename T>
constexpr Field PointListField(const char* key, size_t offset) {
  static_assert(std::is_same<T, PointList>::value || std::is_same<T, DirectionLine>::value,
                "KOVA_POINT_LIST needs a PointList or DirectionLine member");
  return CountedArrayField<decltype(T::points)>(key, offset + offsetof(T, points),
                                                offset + offsetof(T, pointCount), &kPointItem,
                                                CountRule::kTaken);
}
#define KOVA_POINT_LIST(Rec, member, key)                                        \
  ::kova::PointListField<KOVA_MEMBER_T(Rec, member)>(key, offsetof(Rec, member)) \
      .Member(#member ".points")

inline constexpr const char* kTriggerPositionNames[] = {"Center", "LeftCenter", "TopCenter",
                                                        "RightCenter", "BottomCenter"};
inline constexpr EnumNames kTriggerPositionTable = EnumNames::Of(kTriggerPositionNames);
inline constexpr Field kTriggerPositionItem =
    KOVA_ITEM(uint8_t, kEnum).Names(kTriggerPositionTable);

// A TriggerPositions member under `key`: the count of non-null entries
// among the first 8.
template <typename T>
constexpr Field TriggerPositionsField(const char* key, size_t offset) {
  static_assert(std::is_same<T, TriggerPositions>::value,
                "KOVA_TRIGGER_POSITIONS needs a TriggerPositions member");
  return CountedArrayField<decltype(TriggerPositions::positions)>(
      key, offset + offsetof(TriggerPositions, positions),
      offset + offsetof(TriggerPositions, count), &kTriggerPositionItem, CountRule::kNonNull);
}
#define KOVA_TRIGGER_POSITIONS(Rec, member, key)                                        \
  ::kova::TriggerPositionsField<KOVA_MEMBER_T(Rec, member)>(key, offsetof(Rec, member)) \
      .Member(#member ".positions")

// A list of names into `uint8_t member[N]` with its count in `count`:
// entry i to slot i, the count of non-null entries among the first N, a
// name that matches nothing counted and left 0 ("DetectType", "Action").
#define KOVA_NAME_LIST(Rec, member, count, key, itemField)     \
  KOVA_LIST(Rec, member, key, itemField)                       \
      .Count(KOVA_AT(Rec, count), ::kova::CountRule::kNonNull) \
      .KeepSlots()

// "Direction" of line rules and of region rules.
inline constexpr const char* kLineDirectionNames[] = {"LeftToRight", "RightToLeft", "Both"};
inline constexpr EnumNames kLineDirections = EnumNames::Of(kLineDirectionNames);
inline constexpr const char* kRegionDirectionNames[] = {"Enter", "Leave", "Both"};
inline constexpr EnumNames kRegionDirections = EnumNames::Of(kRegionDirectionNames);

inline constexpr Field kCalibrateBoxFields[] = {
    KOVA_TUPLE(CalibrateBox, centerPoint, "CenterPoint", int32_t, 2),
    KOVA_F(CalibrateBox, ratio, "Ratio", kReal),
};

inline constexpr const char* kMeasureModeNames[] = {"Pixel", "Metric", "CalibratedPixel"};
inline constexpr EnumNames kMeasureModes = EnumNames::Of(kMeasureModeNames);
inline constexpr const char* kSizeFilterTypeNames[] = {"ByLength", "ByArea", "ByRatio"};
inline constexpr EnumNames kSizeFilterTypes = EnumNames::Of(kSizeFilterTypeNames);

KOVA_DESCRIBE(CalibrateBox, kova::kCalibrateBoxFields)

inline constexpr Field kCalibrateBoxItem = KOVA_ITEM_NESTED(CalibrateBox);

// A calibration box list: entry i to slot i, the count of entries looked at.
#define KOVA_SIZE_FILTER_BOXES(member, count, key)             \
  KOVA_LIST(SizeFilterBlock, member, key, kCalibrateBoxItem)   \
      .Count(KOVA_AT(SizeFilterBlock, count), CountRule::kAll) \
      .KeepSlots()                                             \
      .Flag(KOVA_AT(SizeFilterBlock, member##Present))

// A size filter member flagged in its own xxxPresent field.
#define KOVA_SIZE_FILTER_F(member, key, KIND) \
  KOVA_F(SizeFilterBlock, member, key, KIND).Flag(KOVA_AT(SizeFilterBlock, member##Present))
#define KOVA_SIZE_FILTER_PAIR(member, key)                     \
  KOVA_TUPLE_OF(SizeFilterBlock, member, key, float, kReal, 2) \
      .Flag(KOVA_AT(SizeFilterBlock, member##Present))

inline constexpr Field kSizeFilterFields[] = {
    KOVA_ENUM(SizeFilterBlock, measureMode, "MeasureMode", kMeasureModes)
        .Flag(KOVA_AT(SizeFilterBlock, measureModePresent)),
    KOVA_ENUM(SizeFilterBlock, type, "Type", kSizeFilterTypes)
        .Flag(KOVA_AT(SizeFilterBlock, typePresent)),
    KOVA_SIZE_FILTER_PAIR(minSize, "MinSize"),
    KOVA_SIZE_FILTER_PAIR(maxSize, "MaxSize"),
    KOVA_SIZE_FILTER_F(byArea, "ByArea", kBool),
    KOVA_SIZE_FILTER_F(minArea, "MinArea", kReal),
    KOVA_SIZE_FILTER_F(maxArea, "MaxArea", kReal),
    KOVA_SIZE_FILTER_PAIR(minAreaSize, "MinAreaSize"),
    KOVA_SIZE_FILTER_PAIR(maxAreaSize, "MaxAreaSize"),
    KOVA_SIZE_FILTER_F(byRatio, "ByRatio", kBool),
    KOVA_SIZE_FILTER_F(minRatio, "MinRatio", kReal),
    KOVA_SIZE_FILTER_F(maxRatio, "MaxRatio", kReal),
    KOVA_SIZE_FILTER_PAIR(minRatioSize, "MinRatioSize"),
    KOVA_SIZE_FILTER_PAIR(maxRatioSize, "MaxRatioSize"),
    KOVA_SIZE_FILTER_F(bySize, "BySize", kBool),
    // The box lists come last: the entries above also describe
    // SizeFilterSettings, which opens like SizeFilterBlock.
    KOVA_SIZE_FILTER_BOXES(calibrateBoxs, calibrateBoxCount, "CalibrateBoxs"),
    KOVA_SIZE_FILTER_BOXES(areaCalibrateBoxs, areaCalibrateBoxCount, "AreaCalibrateBoxs"),
    KOVA_SIZE_FILTER_BOXES(ratioCalibrateBoxs, ratioCalibrateBoxCount, "RatioCalibrateBoxs"),
};
inline constexpr size_t kSizeFilterSettingsFieldCount =
    sizeof kSizeFilterFields / sizeof kSizeFilterFields[0] - 3;

// True when the first `n` entries of `fields` lie within `size` bytes.
constexpr bool FieldsWithin(const Field* fields, size_t n, size_t size) {
  for (size_t i = 0; i < n; ++i) {
    const Field& f = fields[i];
    const size_t items = f.shape == FieldShape::kTuple ? f.capacity : 1;
    if (f.offset + f.size * items > size || f.flag.offset + f.flag.size > size) return false;
  }
  return true;
}
static_assert(FieldsWithin(kSizeFilterFields, kSizeFilterSettingsFieldCount,
                           sizeof(SizeFilterSettings)),
              "the size filter's settings lie before its box lists");

#undef KOVA_SIZE_FILTER_BOXES
#undef KOVA_SIZE_FILTER_F
#undef KOVA_SIZE_FILTER_PAIR

}  // namespace kova

// "SizeFilter" is read with KOVA_NESTED(Rec, sizeFilter, "SizeFilter"), or
// with KOVA_SIZE_FILTER(Rec) for a record's `sizeFilter` flagged in its
// `sizeFilterPresent`.
#define KOVA_SIZE_FILTER(Rec) \
  KOVA_NESTED(Rec, sizeFilter, "SizeFilter").Flag(KOVA_AT(Rec, sizeFilterPresent))
namespace kova {
KOVA_DESCRIBE(SizeFilterBlock, kova::kSizeFilterFields)
// The size filter without its box lists: the leading entries of the
// block's table, whose offsets are the same in both records.
template <>
struct Description<SizeFilterSettings> {
  static constexpr FieldTable table{kSizeFilterFields, kSizeFilterSettingsFieldCount};
  static constexpr const char* name = "SizeFilterSettings";
};
}  // namespace kova

#endif  // KOVA_COMMON_ANALYSE_BLOCKS_H_
