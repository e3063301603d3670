// "LossDetect" and "BlindDetect": video loss and camera masking of one
// channel.
#include "common/blocks/event_handler.h"
#include "common/fields/field_table.h"
#include "config/alarm/alarm_sources.h"
#include "config/alarm/translators.h"

namespace kova {

namespace {

constexpr Field kLossFields[] = {
    KOVA_F(LossDetectRecord, enable, "Enable", kBool),
    KOVA_EVENT_HANDLER_WITH_WEEK(LossDetectRecord),
};
constexpr FieldTable kLossTable = KOVA_TABLE(kLossFields);
constexpr ResponseFrame kLossFrame = AlarmSourceFrame<LossDetectRecord, kLossTable>();

constexpr Field kBlindFields[] = {
    KOVA_F(BlindDetectRecord, enable, "Enable", kBool),
    KOVA_F(BlindDetectRecord, level, "Level", kInt),
    KOVA_EVENT_HANDLER_WITH_WEEK(BlindDetectRecord),
};
constexpr FieldTable kBlindTable = KOVA_TABLE(kBlindFields);
constexpr ResponseFrame kBlindFrame = AlarmSourceFrame<BlindDetectRecord, kBlindTable>();

}  // namespace

int ParseLossDetect(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen) {
  return ParseWithFrame(kLossFrame, jsonText, outBuf, outLen, retLen);
}

int PackLossDetect(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen) {
  return PackWithFrame(kLossFrame, inBuf, inLen, outJson, outLen);
}

int ParseBlindDetect(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen) {
  return ParseWithFrame(kBlindFrame, jsonText, outBuf, outLen, retLen);
}

int PackBlindDetect(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen) {
  return PackWithFrame(kBlindFrame, inBuf, inLen, outJson, outLen);
}

}  // namespace kova
