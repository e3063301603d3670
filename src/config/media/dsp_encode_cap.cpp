// "DspEncodeCap": what the device's signal processor can encode (streams,
// standards, compressions, image sizes, resolutions and the encode power
// shared by all channels).
#include <cstdint>

#include "common/fields/field_table.h"
#include "common/json/json.h"
#include "config/media/encode_tables.h"
#include "drivers/response_frame.h"
#include "kova/records/media.h"
#include "kova/records/video_in.h"

namespace kova {
namespace {

constexpr Field kResolutionFields[] = {
    KOVA_F(EncodeResolution, width, "Width", kInt),
    KOVA_F(EncodeResolution, height, "Height", kInt),
};

}  // namespace

KOVA_DESCRIBE(EncodeResolution, kResolutionFields)
namespace {

using D = DspEncodeCapRecord;

// List entries: every element counts (a list is cut to its capacity), and
// an element that is null or of another type reads as 0, image size 33, or
// a resolution of zeros.
constexpr Field kMask = KOVA_ITEM(uint32_t, kUInt);
constexpr Field kImageSize = KOVA_ITEM(int32_t, kEnum).Names(kImageSizeNames).AlwaysRead();
constexpr Field kResolution = KOVA_ITEM_NESTED(EncodeResolution);

#define KOVA_DSP_LIST(member, key, entry, count) \
  KOVA_LIST(D, member, key, entry).Count(KOVA_AT(D, count), CountRule::kAll).KeepSlots()

constexpr Field kCapFields[] = {
    KOVA_F(D, maxEncodePower, "MaxEncodePower", kUInt),
    KOVA_F(D, maxSupportChannel, "MaxSupportChannel", kUInt),
    KOVA_F(D, channelMaxSetSync, "ChannelMaxSetSync", kBool),
    KOVA_F(D, videoStandardMask, "VideoStandardMask", kUInt),
    KOVA_F(D, encodeModeMask, "EncodeModeMask", kUInt),
    KOVA_F(D, imageSizeMask, "ImageSizeMask", kUInt),
    KOVA_F(D, encodeCap, "EncodeCap", kUInt),
    KOVA_F(D, streamCap, "StreamCap", kUInt),
    KOVA_F(D, resolutionNum, "ResolutionNum", kInt),
    KOVA_F(D, resolutionNum1, "ResolutionNum_1", kInt),
    KOVA_DSP_LIST(imageSizeMaskAssi, "ImageSizeMask_Assi", kMask, imageSizeMaskAssiCount),
    KOVA_DSP_LIST(maxFrameOfImageSize, "MaxFrameOfImageSize", kMask, maxFrameOfImageSizeCount),
    KOVA_DSP_LIST(imageSize, "ImageSize", kImageSize, imageSizeCount),
    KOVA_DSP_LIST(imageSizeAssi, "ImageSize_Assi", kImageSize, imageSizeAssiCount),
    KOVA_DSP_LIST(resolution, "Resolution", kResolution, resolutionCount),
    KOVA_DSP_LIST(resolution1, "Resolution_1", kResolution, resolution1Count),
};
constexpr FieldTable kCap = KOVA_TABLE(kCapFields);

#undef KOVA_DSP_LIST

// The capability lives under "DspEncodeCap".
constexpr Field kTableFields[] = {KOVA_GROUP(D, "DspEncodeCap", kCap)};
constexpr FieldTable kTable = KOVA_TABLE(kTableFields);

bool ParseCap(const Json::Value& table, const StepContext& ctx, unsigned char* record) {
  // Intended: a table without the "DspEncodeCap" member is taken as the
  // capability itself (a member that holds null reads nothing).
  if (HasMember(table, "DspEncodeCap")) return ParseTableStep<kTable>(table, ctx, record);
  return ParseTableStep<kCap>(table, ctx, record);
}

// One record, built zeroed and copied out whole.

}  // namespace

extern const ResponseFrame kDspEncodeCapFrame = ResponseFrame::For<D>(ParseCap, TablePack<kTable>())
                                                    .Clear(Clearing::kEachRecord)
                                                    .Describe(WholeTable<D, kTable>::kField);

}  // namespace kova
