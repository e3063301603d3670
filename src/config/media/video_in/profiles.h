// The frame of a profile record: a channel's JSON is the array of its
// profiles (day, night, normal, ...), and its record holds them in slots by
// position with the count taken.
#ifndef KOVA_CONFIG_MEDIA_VIDEO_IN_PROFILES_H_
#define KOVA_CONFIG_MEDIA_VIDEO_IN_PROFILES_H_

#include <cstddef>
#include <type_traits>

#include "common/fields/field_table.h"
#include "drivers/described_record.h"
#include "drivers/response_frame.h"

namespace kova {

// Config has `profiles` (an array of a described profile type) at offset 0
// and `profileCount`. Profile i of the device lands in slot i, a profile that
// is not an object leaves its slot zero, and the count is the profiles
// looked at (cut to the slots); pack writes that many.
template <typename Config>
struct ProfileRecord {
  using Profile = std::remove_extent_t<decltype(Config::profiles)>;
  static constexpr Field kProfile = KOVA_ITEM_NESTED(Profile);
  static constexpr Field kWhole = KOVA_LIST(Config, profiles, nullptr, kProfile)
                                      .KeepSlots()
                                      .Count(KOVA_AT(Config, profileCount), CountRule::kAll);
  static constexpr ResponseFrame kFrame = DescribedFrame<Config, kWhole>();
};

}  // namespace kova

#endif  // KOVA_CONFIG_MEDIA_VIDEO_IN_PROFILES_H_
