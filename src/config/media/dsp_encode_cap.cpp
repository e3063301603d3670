// "DspEncodeCap": what the device's signal processor can encode (streams,
// standards, compressions, image sizes, resolutions and the encode power
// shared by all channels).
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "common/fields/field_table.h"
#include "common/json/json.h"
#include "config/media/encode_tables.h"
#include "config/media/media_response.h"
#include "config/media/translators.h"
#include "drivers/table_driver.h"
#include "kova/records/media.h"

namespace kova {

namespace {

constexpr uint32_t kRecordSize = sizeof(DspEncodeCapRecord);

const Field kScalarFields[] = {
    KOVA_F(DspEncodeCapRecord, maxEncodePower, "MaxEncodePower", kUInt),
    KOVA_F(DspEncodeCapRecord, maxSupportChannel, "MaxSupportChannel", kUInt),
    KOVA_F(DspEncodeCapRecord, channelMaxSetSync, "ChannelMaxSetSync", kBool),
    KOVA_F(DspEncodeCapRecord, videoStandardMask, "VideoStandardMask", kUInt),
    KOVA_F(DspEncodeCapRecord, encodeModeMask, "EncodeModeMask", kUInt),
    KOVA_F(DspEncodeCapRecord, imageSizeMask, "ImageSizeMask", kUInt),
    KOVA_F(DspEncodeCapRecord, encodeCap, "EncodeCap", kUInt),
    KOVA_F(DspEncodeCapRecord, streamCap, "StreamCap", kUInt),
    KOVA_F(DspEncodeCapRecord, resolutionNum, "ResolutionNum", kInt),
    KOVA_F(DspEncodeCapRecord, resolutionNum1, "ResolutionNum_1", kInt),
};

// The list members: a count member and the array it counts.
enum class ListKind { kUInt, kImageSize, kResolution };

struct ListField {
  const char* key;
  ListKind kind;
  size_t countOffset;
  size_t offset;
  uint32_t capacity;
};

#define KOVA_DSP_LIST(key, kind, count, member)                                           \
  ListField {                                                                             \
    key, kind, offsetof(DspEncodeCapRecord, count), offsetof(DspEncodeCapRecord, member), \
        sizeof(DspEncodeCapRecord::member) / sizeof(DspEncodeCapRecord::member[0])        \
  }

const ListField kListFields[] = {
    KOVA_DSP_LIST("ImageSizeMask_Assi", ListKind::kUInt, imageSizeMaskAssiCount, imageSizeMaskAssi),
    KOVA_DSP_LIST("MaxFrameOfImageSize", ListKind::kUInt, maxFrameOfImageSizeCount,
                  maxFrameOfImageSize),
    KOVA_DSP_LIST("ImageSize", ListKind::kImageSize, imageSizeCount, imageSize),
    KOVA_DSP_LIST("ImageSize_Assi", ListKind::kImageSize, imageSizeAssiCount, imageSizeAssi),
    KOVA_DSP_LIST("Resolution", ListKind::kResolution, resolutionCount, resolution),
    KOVA_DSP_LIST("Resolution_1", ListKind::kResolution, resolution1Count, resolution1),
};

#undef KOVA_DSP_LIST

uint32_t ElementSize(ListKind kind) {
  return kind == ListKind::kResolution ? sizeof(EncodeResolution) : 4;
}

void ParseList(const Json::Value& cap, const ListField& l, unsigned char* record) {
  const Json::Value& list = Member(cap, l.key);
  const uint32_t n = list.isArray() ? std::min(Count(list), l.capacity) : 0;
  StoreInt(record + l.countOffset, 4, n);
  for (uint32_t i = 0; i < n; ++i) {
    const Json::Value& e = Element(list, i);
    unsigned char* p = record + l.offset + i * ElementSize(l.kind);
    switch (l.kind) {
      case ListKind::kUInt:
        StoreInt(p, 4, ToUInt32(e));
        break;
      case ListKind::kImageSize:
        StoreInt(p, 4, ImageSizeIndex(e));
        break;
      case ListKind::kResolution:
        StoreInt(p + offsetof(EncodeResolution, width), 4, ToInt32(Member(e, "Width")));
        StoreInt(p + offsetof(EncodeResolution, height), 4, ToInt32(Member(e, "Height")));
        break;
    }
  }
}

void PackList(const unsigned char* record, const ListField& l, Json::Value& cap) {
  Json::Value& list = SetMember(cap, l.key);
  list = Json::Value(Json::arrayValue);
  // The count comes from the caller: never past the list's capacity.
  const uint32_t n =
      std::min(static_cast<uint32_t>(LoadInt(record + l.countOffset, 4, false)), l.capacity);
  for (uint32_t i = 0; i < n; ++i) {
    const unsigned char* p = record + l.offset + i * ElementSize(l.kind);
    Json::Value& e = SetElement(list, i);
    switch (l.kind) {
      case ListKind::kUInt:
        e = static_cast<Json::UInt>(LoadInt(p, 4, false));
        break;
      case ListKind::kImageSize:
        e = ImageSizeText(static_cast<int32_t>(LoadInt(p, 4, true)));
        break;
      case ListKind::kResolution:
        SetMember(e, "Height") =
            static_cast<Json::Int>(LoadInt(p + offsetof(EncodeResolution, height), 4, true));
        SetMember(e, "Width") =
            static_cast<Json::Int>(LoadInt(p + offsetof(EncodeResolution, width), 4, true));
        break;
    }
  }
}

int PackCapRecord(const void* record, Json::Value& target) {
  const unsigned char* r = static_cast<const unsigned char*>(record);
  Json::Value& cap = SetMember(target, "DspEncodeCap");
  cap = Json::Value(Json::objectValue);
  PackFields(r, cap, kScalarFields);
  for (const ListField& l : kListFields) PackList(r, l, cap);
  return 1;
}

void FillCapRecord(const Json::Value& table, unsigned char* record) {
  // A table without the "DspEncodeCap" member is taken as the capability itself.
  const Json::Value& cap = HasMember(table, "DspEncodeCap") ? Member(table, "DspEncodeCap") : table;
  ParseFields(cap, record, kScalarFields);
  for (const ListField& l : kListFields) ParseList(cap, l, record);
}

}  // namespace

int ParseDspEncodeCap(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen) {
  return ParseOneRecord(jsonText, outBuf, outLen, retLen, kRecordSize, FillCapRecord);
}

int PackDspEncodeCap(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen) {
  return PackTableDriver(inBuf, inLen, outJson, outLen, PackCapRecord, kRecordSize, 0, 0);
}

}  // namespace kova
