// "LossDetect" and "BlindDetect": video loss and camera masking of one
// channel.
#include "common/fields/field_table.h"
#include "config/alarm/alarm_frame.h"
#include "config/alarm/translators.h"

namespace kova {

namespace {

const Field kLossFields[] = {
    KOVA_F(LossDetectRecord, enable, "Enable", kBool),
};

const Field kBlindFields[] = {
    KOVA_F(BlindDetectRecord, enable, "Enable", kBool),
    KOVA_F(BlindDetectRecord, level, "Level", kInt),
};

}  // namespace

int ParseLossDetect(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen) {
  return ParseAlarmRecord<LossDetectRecord>(jsonText, outBuf, outLen, retLen, TableRule::kReadNull,
                                            FillFieldsWithWeek<LossDetectRecord, 1, kLossFields>);
}

int PackLossDetect(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen) {
  return PackAlarmRecord<LossDetectRecord>(inBuf, inLen, outJson, outLen,
                                           WriteFieldsWithWeek<LossDetectRecord, 1, kLossFields>);
}

int ParseBlindDetect(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen) {
  return ParseAlarmRecord<BlindDetectRecord>(jsonText, outBuf, outLen, retLen, TableRule::kReadNull,
                                             FillFieldsWithWeek<BlindDetectRecord, 2, kBlindFields>);
}

int PackBlindDetect(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen) {
  return PackAlarmRecord<BlindDetectRecord>(inBuf, inLen, outJson, outLen,
                                            WriteFieldsWithWeek<BlindDetectRecord, 2, kBlindFields>);
}

}  // namespace kova
