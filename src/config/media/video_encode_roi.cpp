// "VideoEncodeROI": regions of the picture encoded at a raised quality, and
// the streams the setting applies to.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "common/fields/field_table.h"
#include "common/json/json.h"
#include "config/media/media_response.h"
#include "config/media/translators.h"
#include "drivers/table_driver.h"
#include "kova/records/media.h"

namespace kova {

namespace {

constexpr uint32_t kRecordSize = sizeof(EncodeRoiConfig);
constexpr uint32_t kMaxRegions = 8;
constexpr uint32_t kRegionNumbers = 4;

const Field kRoiFields[] = {
    // One byte on purpose: a quality above 255 wraps.
    KOVA_F(EncodeRoiConfig, quality, "Quality", kUInt),
    KOVA_F(EncodeRoiConfig, main, "Main", kBool),
    KOVA_F(EncodeRoiConfig, extra1, "Extra1", kBool),
    KOVA_F(EncodeRoiConfig, extra2, "Extra2", kBool),
    KOVA_F(EncodeRoiConfig, extra3, "Extra3", kBool),
    KOVA_F(EncodeRoiConfig, snapshot, "Snapshot", kBool),
};

constexpr size_t RegionOffset(uint32_t i) {
  return offsetof(EncodeRoiConfig, regions) + i * sizeof(RoiRect);
}

int PackRoiRecord(const void* record, Json::Value& target) {
  const unsigned char* r = static_cast<const unsigned char*>(record);
  target = Json::Value(Json::objectValue);
  PackFields(r, target, kRoiFields);
  const int64_t count = LoadInt(r + offsetof(EncodeRoiConfig, regionCount), 4, true);
  const uint32_t n = static_cast<uint32_t>(std::clamp<int64_t>(count, 0, kMaxRegions));
  Json::Value& regions = SetMember(target, "Regions");
  regions = Json::Value(Json::arrayValue);
  for (uint32_t i = 0; i < n; ++i) {
    Json::Value& region = SetElement(regions, i);
    region = Json::Value(Json::arrayValue);
    const unsigned char* rect = r + RegionOffset(i);
    for (uint32_t k = 0; k < kRegionNumbers; ++k) {
      SetElement(region, k) = static_cast<Json::Int>(LoadInt(rect + k * 4, 4, true));
    }
  }
  return 1;
}

void FillRoiRecord(const Json::Value& table, unsigned char* record) {
  ParseFields(table, record, kRoiFields);
  const Json::Value& regions = Member(table, "Regions");
  // The count reports every region the device sent; the record holds eight.
  const uint32_t count = regions.isArray() ? Count(regions) : 0;
  StoreInt(record + offsetof(EncodeRoiConfig, regionCount), 4, count);
  const uint32_t n = std::min(count, kMaxRegions);
  for (uint32_t i = 0; i < n; ++i) {
    const Json::Value& region = Element(regions, i);
    for (uint32_t k = 0; k < kRegionNumbers; ++k) {
      StoreInt(record + RegionOffset(i) + k * 4, 4, ToInt32(Element(region, k)));
    }
  }
}

}  // namespace

int ParseVideoEncodeRoi(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen) {
  return ParseOneRecord(jsonText, outBuf, outLen, retLen, kRecordSize, FillRoiRecord);
}

int PackVideoEncodeRoi(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen) {
  return PackTableDriver(inBuf, inLen, outJson, outLen, PackRoiRecord, kRecordSize, 0, 0);
}

}  // namespace kova
