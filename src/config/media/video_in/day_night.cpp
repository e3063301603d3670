// "VideoInDayNight": how each of a channel's three profiles switches between
// colour and black-and-white. A fixed 48-byte record served by the table
// drivers; these are its per-record routines.
#include <cstring>

#include "common/fields/field_table.h"
#include "drivers/response_frame.h"
#include "kova/records/video_in.h"

namespace kova {

constexpr const char* kDayNightModeNames[] = {"Color", "Brightness", "BlackWhite", "Photoresistor",
                                              "Gain"};
constexpr const char* kDayNightTypeNames[] = {"Mechanism", "Electron"};
// No room for text in the record: an unknown name is -1, left out on pack.
constexpr EnumNames kDayNightModes = EnumNames::Of(kDayNightModeNames).UnknownAs(-1).OmitUnnamed();
constexpr EnumNames kDayNightTypes = EnumNames::Of(kDayNightTypeNames).UnknownAs(-1).OmitUnnamed();

constexpr Field kDayNightProfileFields[] = {
    KOVA_ENUM(VideoInDayNightProfile, mode, "Mode", kDayNightModes),
    KOVA_ENUM(VideoInDayNightProfile, type, "Type", kDayNightTypes),
    KOVA_F(VideoInDayNightProfile, sensitivity, "Sensitivity", kInt),
    KOVA_F(VideoInDayNightProfile, delay, "Delay", kInt),
};

KOVA_DESCRIBE(VideoInDayNightProfile, kova::kDayNightProfileFields)

namespace {

constexpr Field kProfile = KOVA_ITEM_NESTED(VideoInDayNightProfile);
// The record is the channel's array: profile i in slot i, always three.
constexpr Field kProfiles =
    KOVA_LIST(VideoInDayNightConfig, profiles, nullptr, kProfile).KeepSlots();

bool ParseDayNight(const Json::Value& element, const StepContext& /*ctx*/, unsigned char* record) {
  VideoInDayNightConfig r{};
  // A profile without "Mode" or "Type" reads as an unknown one (-1), so that
  // pack does not invent a value for it: intended.
  for (VideoInDayNightProfile& p : r.profiles) p.mode = p.type = -1;
  ParseValue(element, reinterpret_cast<unsigned char*>(&r), kProfiles);
  std::memcpy(record, &r, sizeof r);
  return true;
}

bool PackDayNight(const unsigned char* record, Json::Value& target) {
  VideoInDayNightConfig r;
  std::memcpy(&r, record, sizeof r);
  PackValue(reinterpret_cast<const unsigned char*>(&r), kProfiles, &target);
  return true;
}

bool PackDayNightText(const unsigned char* record, TextSink* out) {
  if (!WriteValueText(record, kProfiles, out)) out->Literal("null");
  return true;
}

}  // namespace

// A table of channels is an array of arrays of profiles.
extern const ResponseFrame kVideoInDayNightFrame =
    DriverFrame<VideoInDayNightConfig>(ParseDayNight, Packing(PackDayNight, PackDayNightText),
                                       {1, true, true, true})
        .Describe(kProfiles);

}  // namespace kova
