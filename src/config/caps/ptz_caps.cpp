// "ptz.getCurrentProtocolCaps": what a channel's PTZ protocol supports.
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <string_view>

#include "common/base/name_index.h"
#include "common/fields/field_table.h"
#include "common/json/json.h"
#include "config/caps/method_answer.h"
#include "kova/records/caps.h"

namespace kova {

namespace {

void ParseExtras(const Json::Value& caps, unsigned char* record, const Field& field);
void PackExtras(const unsigned char* record, Json::Value& caps, const Field& field);

#define KOVA_CAPS_BOOL(member, key) \
  KOVA_F(PtzProtocolCaps, member, key, kBool).Flag(KOVA_AT(PtzProtocolCaps, member##Present))
#define KOVA_CAPS_INT(member, key, KIND) \
  KOVA_F(PtzProtocolCaps, member, key, KIND).Flag(KOVA_AT(PtzProtocolCaps, member##Present))

constexpr Field kMotionRangeFields[] = {
    KOVA_TUPLE(PtzMotionRange, horizontalAngle, "HorizontalAngle", int32_t, 2)
        .Flag(KOVA_AT(PtzMotionRange, horizontalAnglePresent)),
    KOVA_TUPLE(PtzMotionRange, verticalAngle, "VerticalAngle", int32_t, 2)
        .Flag(KOVA_AT(PtzMotionRange, verticalAnglePresent)),
};

constexpr Field kIntelliPtzPresetFields[] = {
    KOVA_CAPS_INT(intelliPtzPresetSupport, "Support", kBool),
};
constexpr FieldTable kIntelliPtzPreset = KOVA_TABLE(kIntelliPtzPresetFields);
constexpr Field kBFFunctionFields[] = {
    KOVA_CAPS_INT(bfFunctionSupport, "Support", kBool),
};
constexpr FieldTable kBFFunction = KOVA_TABLE(kBFFunctionFields);

constexpr Field kDirection = KOVA_ITEM(char[16], kText);

}  // namespace

KOVA_DESCRIBE(PtzMotionRange, kMotionRangeFields)

namespace {

constexpr Field kCapsFields[] = {
    KOVA_CAPS_INT(name, "Name", kText),
    KOVA_CAPS_BOOL(pan, "Pan"),
    KOVA_CAPS_BOOL(tile, "Tile"),
    KOVA_CAPS_BOOL(zoom, "Zoom"),
    KOVA_CAPS_BOOL(focus, "Focus"),
    KOVA_CAPS_BOOL(iris, "Iris"),
    KOVA_CAPS_BOOL(preset, "Preset"),
    KOVA_CAPS_BOOL(tour, "Tour"),
    KOVA_CAPS_BOOL(pattern, "Pattern"),
    KOVA_CAPS_BOOL(autoPan, "AutoPan"),
    KOVA_CAPS_BOOL(autoScan, "AutoScan"),
    KOVA_CAPS_BOOL(aux, "Aux"),
    KOVA_CAPS_BOOL(light, "Light"),
    KOVA_CAPS_BOOL(wiper, "Wiper"),
    KOVA_CAPS_BOOL(menu, "Menu"),
    KOVA_CAPS_BOOL(moveAbsolutely, "MoveAbsolutely"),
    KOVA_CAPS_BOOL(removePreset, "RemovePreset"),
    KOVA_CAPS_BOOL(removeTour, "RemoveTour"),
    KOVA_CAPS_BOOL(autoFocus, "AutoFocus"),
    KOVA_CAPS_INT(panSpeedMin, "PanSpeedMin", kInt),
    KOVA_CAPS_INT(panSpeedMax, "PanSpeedMax", kInt),
    KOVA_CAPS_INT(tileSpeedMin, "TileSpeedMin", kInt),
    KOVA_CAPS_INT(tileSpeedMax, "TileSpeedMax", kInt),
    KOVA_CAPS_INT(presetMin, "PresetMin", kInt),
    KOVA_CAPS_INT(presetMax, "PresetMax", kInt),
    KOVA_CAPS_INT(tourMin, "TourMin", kInt),
    KOVA_CAPS_INT(tourMax, "TourMax", kInt),
    KOVA_CAPS_INT(patternMin, "PatternMin", kInt),
    KOVA_CAPS_INT(patternMax, "PatternMax", kInt),
    KOVA_CAPS_INT(autoScanMin, "AutoScanMin", kInt),
    KOVA_CAPS_INT(autoScanMax, "AutoScanMax", kInt),
    KOVA_CAPS_INT(auxMin, "AuxMin", kInt),
    KOVA_CAPS_INT(auxMax, "AuxMax", kInt),
    KOVA_CAPS_INT(camAddrMin, "CamAddrMin", kInt),
    KOVA_CAPS_INT(camAddrMax, "CamAddrMax", kInt),
    KOVA_CAPS_INT(monAddrMin, "MonAddrMin", kInt),
    KOVA_CAPS_INT(monAddrMax, "MonAddrMax", kInt),
    KOVA_CAPS_INT(type, "Type", kInt),
    KOVA_CAPS_INT(alarmLen, "AlarmLen", kInt),
    KOVA_CAPS_INT(internal, "Internal", kInt),
    KOVA_CAPS_INT(highAuxMask, "HighAuxMask", kUInt),
    KOVA_CAPS_INT(lowAuxMask, "LowAuxMask", kUInt),
    KOVA_CAPS_INT(lowMask, "lowMask", kUInt),
    KOVA_NESTED(PtzProtocolCaps, motionRange, "PtzMotionRange")
        .Flag(KOVA_AT(PtzProtocolCaps, motionRangePresent)),
    KOVA_GROUP(PtzProtocolCaps, "IntelliPtzPreset", kIntelliPtzPreset)
        .WhenAnySet(KOVA_AT(PtzProtocolCaps, intelliPtzPresetSupportPresent)),
    KOVA_GROUP(PtzProtocolCaps, "BFFunction", kBFFunction)
        .WhenAnySet(KOVA_AT(PtzProtocolCaps, bfFunctionSupportPresent)),
    KOVA_LIST(PtzProtocolCaps, unSupportDirections, "UnSupportDirections", kDirection)
        .Count(KOVA_AT(PtzProtocolCaps, unSupportDirectionCount), CountRule::kTaken)
        .Flag(KOVA_AT(PtzProtocolCaps, unSupportDirectionsPresent)),
    // Whatever else the protocol reports as a boolean or an integer is kept
    // by name: the caps grow with every firmware.
    KOVA_CUSTOM(PtzProtocolCaps, extras, nullptr, ParseExtras, PackExtras),
};
constexpr FieldTable kCaps = KOVA_TABLE(kCapsFields);

#undef KOVA_CAPS_BOOL
#undef KOVA_CAPS_INT

constexpr Field kAnswerFields[] = {KOVA_GROUP(PtzProtocolCaps, "caps", kCaps)};
constexpr FieldTable kAnswer = KOVA_TABLE(kAnswerFields);

// Whether `name` is a key the table above reads itself: its keys in a
// small hash table made once (a caps answer has many members to look up).
bool NamedInTable(const char* name, size_t len) {
  const auto keyOf = [](const Field& f) { return f.key; };
  static_assert(std::size(kCapsFields) <= 128, "the index stays at most half full");
  static const NameIndex<256, false> keys(kCapsFields, std::size(kCapsFields), keyOf);
  return keys.Find(kCapsFields, std::string_view(name, len), keyOf) >= 0;
}

bool IsKeptValue(const Json::Value& v) {
  return v.isBool() || v.isInt64();  // an integer in the signed 64-bit range
}

void ParseExtras(const Json::Value& caps, unsigned char* record, const Field& /*field*/) {
  PtzProtocolCaps& r = *reinterpret_cast<PtzProtocolCaps*>(record);
  r.extraCount = 0;
  ForEachMemberInPlace(caps, [&r](const char* name, size_t len, const Json::Value& v) {
    if (r.extraCount >= KOVA_PTZ_CAPS_EXTRAS) return false;
    if (len == 0 || len >= sizeof r.extras[0].key || std::memchr(name, '\0', len) != nullptr ||
        NamedInTable(name, len) || !IsKeptValue(v)) {
      return true;
    }
    PtzCapsExtra& e = r.extras[r.extraCount++];
    std::memset(&e, 0, sizeof e);
    std::memcpy(e.key, name, len);
    e.isBool = v.isBool() ? 1 : 0;
    e.value = v.isBool() ? (ToBool(v) ? 1 : 0) : v.asInt64();
    return true;
  });
}

void PackExtras(const unsigned char* record, Json::Value& caps, const Field& /*field*/) {
  const PtzProtocolCaps& r = *reinterpret_cast<const PtzProtocolCaps*>(record);
  const uint32_t n = CutCount(r.extraCount, KOVA_PTZ_CAPS_EXTRAS);
  for (uint32_t i = 0; i < n; ++i) {
    const PtzCapsExtra& e = r.extras[i];
    const size_t len = strnlen(e.key, sizeof e.key);
    if (len == 0 || len == sizeof e.key || NamedInTable(e.key, len) || HasMember(caps, e.key)) {
      continue;
    }
    Json::Value& out = SetMember(caps, e.key);
    if (e.isBool) {
      out = e.value != 0;
    } else {
      out = static_cast<Json::Int64>(e.value);
    }
  }
}

}  // namespace

extern const ResponseFrame kPtzProtocolCapsFrame = MethodAnswerFrame<PtzProtocolCaps, kAnswer>();

}  // namespace kova
