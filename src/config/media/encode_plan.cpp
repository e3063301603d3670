// "EncodePlan": planned encodings, one entry per element of "table".
//
// This configuration has always been read without looking at "result", and
// it never clears the caller's buffer.
#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "common/fields/field_table.h"
#include "common/json/json.h"
#include "common/json/json_writer.h"
#include "config/media/encode_tables.h"
#include "config/media/media_response.h"
#include "config/media/translators.h"
#include "kova/records/media.h"

namespace kova {

namespace {

constexpr uint32_t kEntrySize = sizeof(EncodePlanEntry);

const Field kEntryFields[] = {
    KOVA_F(EncodePlanEntry, bitRate, "BitRate", kUInt),
    KOVA_F(EncodePlanEntry, expectTime, "ExpectTime", kUInt),
};

constexpr size_t kEnable = offsetof(EncodePlanEntry, enable);
constexpr size_t kResolution = offsetof(EncodePlanEntry, resolution);

void ParseEntry(const Json::Value& element, unsigned char* entry) {
  // A null element only switches its entry off; the rest keeps its bytes.
  StoreInt(entry + kEnable, 4, element.isNull() ? 0 : 1);
  if (element.isNull()) return;
  ParseFields(element, entry, kEntryFields);
  // Image sizes have second names, so they go through the family's conversion.
  const Json::Value& resolution = Member(element, "Resolution");
  if (!resolution.isNull()) StoreInt(entry + kResolution, 4, ImageSizeIndex(resolution));
}

void PackEntry(const unsigned char* entry, Json::Value& target) {
  if (LoadInt(entry + kEnable, 4, true) == 0) return;  // stays null, as it was read
  target = Json::Value(Json::objectValue);
  PackFields(entry, target, kEntryFields);
  SetMember(target, "Resolution") =
      ImageSizeText(static_cast<int32_t>(LoadInt(entry + kResolution, 4, true)));
}

}  // namespace

int ParseEncodePlan(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen) {
  if (jsonText == nullptr || outBuf == nullptr || outLen < kEntrySize) return 0;
  Json::Value root;
  const Json::Value* table = nullptr;
  if (!ReadResponse(jsonText, false, &root, &table)) return 0;
  if (!table->isArray()) {
    SetReturnedLength(retLen, 0);
    return 1;
  }
  const uint32_t n =
      WalkChannels(*table, static_cast<unsigned char*>(outBuf), outLen, kEntrySize, ParseEntry);
  SetReturnedLength(retLen, static_cast<uint64_t>(n) * kEntrySize);
  return 1;
}

int PackEncodePlan(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen) {
  if (inBuf == nullptr || outJson == nullptr || outLen == 0 || inLen < kEntrySize) return 0;
  std::fill(outJson, outJson + outLen, '\0');
  const unsigned char* in = static_cast<const unsigned char*>(inBuf);
  // Always an array, even of one entry: the device reads nothing else.
  Json::Value root(Json::arrayValue);
  for (uint32_t i = 0; i < inLen / kEntrySize; ++i) {
    PackEntry(in + static_cast<uint64_t>(i) * kEntrySize, SetElement(root, i));
  }
  return CopyTextStrict(WriteJson(root), outJson, outLen) ? 1 : 0;
}

}  // namespace kova
