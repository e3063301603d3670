// "VideoInFocus" and "VideoInZoom": the lens settings of each of a
// channel's profiles.
#include "common/fields/field_table.h"
#include "config/media/video_in/profiles.h"
#include "drivers/response_frame.h"
#include "kova/records/media.h"
#include "kova/records/video_in.h"

namespace kova {

constexpr Field kFocusProfileFields[] = {
    KOVA_F(VideoInFocusProfile, mode, "Mode", kInt),
    KOVA_F(VideoInFocusProfile, autoFocusTrace, "AutoFocusTrace", kInt)
        .Flag(KOVA_AT(VideoInFocusProfile, autoFocusTracePresent)),
    KOVA_F(VideoInFocusProfile, focusLimit, "FocusLimit", kInt)
        .Flag(KOVA_AT(VideoInFocusProfile, focusLimitPresent)),
    KOVA_F(VideoInFocusProfile, irCorrection, "IRCorrection", kInt),
    KOVA_F(VideoInFocusProfile, sensitivity, "Sensitivity", kInt),
    KOVA_F(VideoInFocusProfile, focusLimitSelectMode, "FocusLimitSelectMode", kText)
        .Flag(KOVA_AT(VideoInFocusProfile, focusLimitSelectModePresent)),
    KOVA_F(VideoInFocusProfile, name, "Name", kText)
        .Flag(KOVA_AT(VideoInFocusProfile, namePresent)),
};

constexpr Field kZoomProfileFields[] = {
    KOVA_F(VideoInZoomProfile, digitalZoom, "DigitalZoom", kBool),
    KOVA_F(VideoInZoomProfile, speed, "Speed", kInt),
    KOVA_F(VideoInZoomProfile, zoomLimit, "ZoomLimit", kInt),
    KOVA_F(VideoInZoomProfile, name, "Name", kText).Flag(KOVA_AT(VideoInZoomProfile, namePresent)),
};

KOVA_DESCRIBE(VideoInFocusProfile, kova::kFocusProfileFields)
KOVA_DESCRIBE(VideoInZoomProfile, kova::kZoomProfileFields)

extern const ResponseFrame kVideoInFocusFrame = ProfileRecord<VideoInFocusConfig>::kFrame;

extern const ResponseFrame kVideoInZoomFrame = ProfileRecord<VideoInZoomConfig>::kFrame;

}  // namespace kova
