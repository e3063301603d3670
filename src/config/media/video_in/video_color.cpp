// "VideoColor": brightness, contrast, saturation, hue and the colour style
// of each of a channel's profiles, with the time of day a profile applies.
#include <cstddef>
#include <cstring>

#include "common/blocks/time_schedule.h"
#include "common/fields/field_table.h"
#include "common/json/json.h"
#include "config/media/video_in/profiles.h"
#include "drivers/response_frame.h"
#include "kova/records/media.h"
#include "kova/records/video_in.h"

namespace kova {

namespace {

// "TimeSection" is one section text, not the usual week of them: read into
// a section record; a malformed text leaves it zero and unflagged.
void ParseSection(const Json::Value& obj, unsigned char* record, const Field& f) {
  TimeSectionRecord section{};
  if (!ParseTimeSection(Member(obj, f.key), &section)) return;
  std::memcpy(record + f.offset, &section, sizeof section);
  StoreInt(record + f.flag.offset, f.flag.size, 1);
}

void PackSection(const unsigned char* record, Json::Value& obj, const Field& f) {
  TimeSectionRecord section;
  std::memcpy(&section, record + f.offset, sizeof section);
  PackTimeSection(SetKeptMember(obj, f.key), section);
}

}  // namespace

constexpr Field kVideoColorProfileFields[] = {
    KOVA_F(VideoColorProfile, brightness, "Brightness", kInt),
    KOVA_F(VideoColorProfile, contrast, "Contrast", kInt),
    KOVA_F(VideoColorProfile, saturation, "Saturation", kInt),
    KOVA_F(VideoColorProfile, hue, "Hue", kInt),
    KOVA_F(VideoColorProfile, gamma, "Gamma", kInt).Flag(KOVA_AT(VideoColorProfile, gammaPresent)),
    KOVA_F(VideoColorProfile, chromaSuppress, "ChromaSuppress", kInt)
        .Flag(KOVA_AT(VideoColorProfile, chromaSuppressPresent)),
    KOVA_F(VideoColorProfile, style, "Style", kText).Flag(KOVA_AT(VideoColorProfile, stylePresent)),
    KOVA_CUSTOM(VideoColorProfile, timeSection, "TimeSection", ParseSection, PackSection)
        .Flag(KOVA_AT(VideoColorProfile, timeSectionPresent)),
    KOVA_F(VideoColorProfile, name, "Name", kText).Flag(KOVA_AT(VideoColorProfile, namePresent)),
};

KOVA_DESCRIBE(VideoColorProfile, kova::kVideoColorProfileFields)

extern const ResponseFrame kVideoColorFrame = ProfileRecord<VideoColorConfig>::kFrame;

}  // namespace kova
