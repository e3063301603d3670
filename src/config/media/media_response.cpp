#include "config/media/media_response.h"

#include <algorithm>
#include <cstring>
#include <vector>

#include "common/json/json.h"

namespace kova {

bool ReadResponse(const char* jsonText, bool checkResult, Json::Value* root,
                  const Json::Value** table) {
  if (!ReadJson(jsonText, root)) return false;
  if (checkResult && !ResultIsTrue(*root)) return false;
  *table = &Member(Member(*root, "params"), "table");
  return true;
}

uint32_t WalkChannels(const Json::Value& table, unsigned char* out, uint32_t outLen, uint32_t size,
                      ChannelFill fill) {
  if (size == 0 || outLen < size) return 0;
  if (!table.isArray()) {
    fill(table, out);
    return 1;
  }
  const uint32_t n = std::min<uint32_t>(Count(table), outLen / size);
  for (uint32_t i = 0; i < n; ++i) fill(Element(table, i), out + static_cast<uint64_t>(i) * size);
  return n;
}

int ParseChannels(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen,
                  uint32_t size, bool checkResult, ChannelFill fill) {
  if (jsonText == nullptr || outBuf == nullptr || size == 0 || outLen < size) return 0;
  Json::Value root;
  const Json::Value* table = nullptr;
  if (!ReadResponse(jsonText, checkResult, &root, &table)) return 0;
  if (table->isNull()) {
    SetReturnedLength(retLen, 0);
    return 1;
  }
  const uint32_t n = WalkChannels(*table, static_cast<unsigned char*>(outBuf), outLen, size, fill);
  SetReturnedLength(retLen, static_cast<uint64_t>(n) * size);
  return 1;
}

int ParseOneRecord(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen,
                   uint32_t size, ChannelFill fill) {
  if (jsonText == nullptr || outBuf == nullptr || size == 0 || outLen < size) return 0;
  Json::Value root;
  const Json::Value* table = nullptr;
  if (!ReadResponse(jsonText, true, &root, &table)) return 0;
  if (table->isNull()) {
    SetReturnedLength(retLen, 0);
    return 1;
  }
  std::vector<unsigned char> record(size, 0);
  fill(*table, record.data());
  std::memcpy(outBuf, record.data(), size);
  SetReturnedLength(retLen, size);
  return 1;
}

void SetReturnedLength(uint32_t* retLen, uint64_t bytes) {
  if (retLen != nullptr) *retLen = static_cast<uint32_t>(bytes);
}

int PackChannels(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen, uint32_t size,
                 RecordPacker packer) {
  if (inBuf == nullptr || outJson == nullptr || outLen == 0 || inLen < size) return 0;
  return PackTableDriver(inBuf, inLen, outJson, outLen, packer, size, 0, 1);
}

}  // namespace kova
