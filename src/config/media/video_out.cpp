// "VideoOut": margins, colour and mode of each video output.
#include "kova/records/video_out.h"

#include "common/fields/field_table.h"
#include "drivers/described_record.h"
#include "drivers/response_frame.h"

namespace kova {

constexpr Field kVideoOutColorFields[] = {
    KOVA_F(VideoOutColor, brightness, "Brightness", kInt),
    KOVA_F(VideoOutColor, contrast, "Contrast", kInt),
    KOVA_F(VideoOutColor, saturation, "Saturation", kInt),
    KOVA_F(VideoOutColor, hue, "Hue", kInt),
};
KOVA_DESCRIBE(VideoOutColor, kVideoOutColorFields)

constexpr Field kVideoOutModeFields[] = {
    KOVA_F(VideoOutMode, width, "Width", kInt),
    KOVA_F(VideoOutMode, height, "Height", kInt),
    KOVA_F(VideoOutMode, bpp, "BPP", kInt),
    KOVA_F(VideoOutMode, format, "Format", kText),
    KOVA_F(VideoOutMode, refreshRate, "RefreshRate", kInt),
};
KOVA_DESCRIBE(VideoOutMode, kVideoOutModeFields)

constexpr Field kVideoOutFields[] = {
    KOVA_TUPLE(VideoOutConfig, margin, "Margin", int32_t, 4)
        .Flag(KOVA_AT(VideoOutConfig, marginPresent)),
    KOVA_NESTED(VideoOutConfig, color, "Color").Flag(KOVA_AT(VideoOutConfig, colorPresent)),
    KOVA_NESTED(VideoOutConfig, mode, "Mode").Flag(KOVA_AT(VideoOutConfig, modePresent)),
};
KOVA_DESCRIBE(VideoOutConfig, kVideoOutFields)

extern const ResponseFrame kVideoOutFrame = DescribedObject<VideoOutConfig>::kFrame;

}  // namespace kova
