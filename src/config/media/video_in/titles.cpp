// "ChannelTitle" and "VideoWidget": a channel's name and the overlays drawn
// on its picture (channel and time titles, custom titles, privacy masks).
#include "common/fields/field_table.h"
#include "drivers/described_record.h"
#include "drivers/response_frame.h"
#include "kova/records/media.h"
#include "kova/records/video_in.h"

namespace kova {

constexpr Field kChannelTitleFields[] = {
    KOVA_F(ChannelTitleConfig, name, "Name", kText),
};

// One block serves every overlay; "ShowWeek" (the time title) and "Text"
// (the listed titles) are written only where they were given.
constexpr Field kWidgetBlockFields[] = {
    KOVA_F(VideoWidgetBlock, encodeBlend, "EncodeBlend", kBool),
    KOVA_F(VideoWidgetBlock, previewBlend, "PreviewBlend", kBool),
    KOVA_TUPLE(VideoWidgetBlock, frontColor, "FrontColor", int32_t, 4),
    KOVA_TUPLE(VideoWidgetBlock, backColor, "BackColor", int32_t, 4),
    KOVA_TUPLE(VideoWidgetBlock, rect, "Rect", int32_t, 4),
    KOVA_F(VideoWidgetBlock, showWeek, "ShowWeek", kBool)
        .Flag(KOVA_AT(VideoWidgetBlock, showWeekPresent)),
    KOVA_F(VideoWidgetBlock, text, "Text", kText).Flag(KOVA_AT(VideoWidgetBlock, textPresent)),
};

KOVA_DESCRIBE(ChannelTitleConfig, kova::kChannelTitleFields)
KOVA_DESCRIBE(VideoWidgetBlock, kova::kWidgetBlockFields)

constexpr Field kWidgetBlock = KOVA_ITEM_NESTED(VideoWidgetBlock);

constexpr Field kWidgetFields[] = {
    KOVA_NESTED(VideoWidgetConfig, channelTitle, "ChannelTitle"),
    KOVA_NESTED(VideoWidgetConfig, timeTitle, "TimeTitle"),
    KOVA_LIST(VideoWidgetConfig, covers, "Covers", kWidgetBlock)
        .Count(KOVA_AT(VideoWidgetConfig, coverCount), CountRule::kTaken),
    KOVA_LIST(VideoWidgetConfig, customTitles, "CustomTitle", kWidgetBlock)
        .Count(KOVA_AT(VideoWidgetConfig, customTitleCount), CountRule::kTaken)
        .Flag(KOVA_AT(VideoWidgetConfig, customTitlePresent)),
    KOVA_LIST(VideoWidgetConfig, userDefinedTitles, "UserDefinedTitle", kWidgetBlock)
        .Count(KOVA_AT(VideoWidgetConfig, userDefinedTitleCount), CountRule::kTaken)
        .Flag(KOVA_AT(VideoWidgetConfig, userDefinedTitlePresent)),
};

KOVA_DESCRIBE(VideoWidgetConfig, kova::kWidgetFields)

extern const ResponseFrame kChannelTitleFrame = DescribedObject<ChannelTitleConfig>::kFrame;

extern const ResponseFrame kVideoWidgetFrame = DescribedObject<VideoWidgetConfig>::kFrame;

}  // namespace kova
