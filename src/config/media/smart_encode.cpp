// "SmartEncode": the per-channel switch of smart (scene-adaptive) encoding.
#include <cstddef>
#include <cstdint>

#include "common/fields/field_table.h"
#include "common/json/json.h"
#include "config/media/media_response.h"
#include "config/media/translators.h"
#include "kova/records/media.h"

namespace kova {

namespace {

constexpr uint32_t kRecordSize = sizeof(SmartEncodeConfig);

// "Enable" is always written, an absent one as 0; the reserved bytes never are.
void ParseSmartRecord(const Json::Value& channel, unsigned char* record) {
  StoreInt(record + offsetof(SmartEncodeConfig, enable), 4,
           ToBool(Member(channel, "Enable")) ? 1 : 0);
}

int PackSmartRecord(const void* record, Json::Value& target) {
  const unsigned char* r = static_cast<const unsigned char*>(record);
  SetMember(target, "Enable") = LoadInt(r + offsetof(SmartEncodeConfig, enable), 4, true) != 0;
  return 1;
}

}  // namespace

int ParseSmartEncode(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen) {
  return ParseChannels(jsonText, outBuf, outLen, retLen, kRecordSize, true, ParseSmartRecord);
}

int PackSmartEncode(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen) {
  return PackChannels(inBuf, inLen, outJson, outLen, kRecordSize, PackSmartRecord);
}

}  // namespace kova
