// "EncodeAdapt": how each channel's encoder adapts to the network (the
// policy, and how quickly it follows the bandwidth).
#include <cstdint>

#include "common/fields/field_table.h"
#include "common/json/json.h"
#include "config/media/media_response.h"
#include "config/media/translators.h"
#include "kova/records/media.h"

namespace kova {

namespace {

constexpr uint32_t kRecordSize = sizeof(EncodeAdaptConfig);

const char* const kPolicy[] = {"None", "Quality", "Fluency"};
const char* const kFluencyMode[] = {"Fast", "Slow", "Sync", "Slowsync"};
// Exact comparison; an unknown text stores 0, which packs as "".
const EnumNames kPolicyNames = {kPolicy, 3, true, 1, true, 0, false};
const EnumNames kFluencyModeNames = {kFluencyMode, 4, true, 1, true, 0, false};

const Field kAdaptFields[] = {
    KOVA_ENUM(EncodeAdaptConfig, policy, "Policy", kPolicyNames),
    KOVA_ENUM(EncodeAdaptConfig, fluencyMode, "FluencyMode", kFluencyModeNames),
};

void ParseAdaptRecord(const Json::Value& channel, unsigned char* record) {
  ParseFields(channel, record, kAdaptFields);
}

int PackAdaptRecord(const void* record, Json::Value& target) {
  PackFields(record, target, kAdaptFields);
  return 1;
}

}  // namespace

int ParseEncodeAdapt(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen) {
  return ParseChannels(jsonText, outBuf, outLen, retLen, kRecordSize, true, ParseAdaptRecord);
}

int PackEncodeAdapt(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen) {
  return PackChannels(inBuf, inLen, outJson, outLen, kRecordSize, PackAdaptRecord);
}

}  // namespace kova
