// One lamp group of an illuminator's light list, {"Angle", "Light"}: the
// near, middle and far beams of "Lighting" and "Lighting_V2".
#ifndef KOVA_CONFIG_MEDIA_VIDEO_IN_LAMP_GROUP_H_
#define KOVA_CONFIG_MEDIA_VIDEO_IN_LAMP_GROUP_H_

#include "common/fields/field_table.h"
#include "kova/records/video_in.h"

namespace kova {

inline constexpr Field kLightFields[] = {
    KOVA_F(LightingLight, angle, "Angle", kInt),
    KOVA_F(LightingLight, light, "Light", kInt),
};

KOVA_DESCRIBE(LightingLight, kova::kLightFields)

}  // namespace kova

#endif  // KOVA_CONFIG_MEDIA_VIDEO_IN_LAMP_GROUP_H_
