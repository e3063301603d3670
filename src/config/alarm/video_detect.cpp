// "LossDetect" and "BlindDetect": video loss and camera masking of one
// channel.
#include "common/field_table.h"
#include "config/alarm/alarm_frame.h"
#include "config/alarm/translators.h"

namespace kova {

namespace {

const Field kLossFields[] = {
    KOVA_FIELD("Enable", LossDetectRecord, enable, FieldKind::kBool),
};

const Field kBlindFields[] = {
    KOVA_FIELD("Enable", BlindDetectRecord, enable, FieldKind::kBool),
    KOVA_FIELD("Level", BlindDetectRecord, level, FieldKind::kInt),
};

// The record types differ only in their scalar fields.
template <typename Rec, size_t N, const Field (&kFields)[N]>
void Fill(const Json::Value& /*params*/, const Json::Value& table, Rec* r) {
  ParseFields(table, r, kFields);
  ParseLinkageWithWeek(table, &r->eventHandler, &r->week);
}

template <typename Rec, size_t N, const Field (&kFields)[N]>
void Write(const Rec& r, Json::Value& table) {
  PackFields(&r, table, kFields);
  PackLinkage(r.eventHandler, &r.week, table);
}

}  // namespace

int ParseLossDetect(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen) {
  return ParseAlarmRecord<LossDetectRecord>(jsonText, outBuf, outLen, retLen, TableRule::kReadNull,
                                            Fill<LossDetectRecord, 1, kLossFields>);
}

int PackLossDetect(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen) {
  return PackAlarmRecord<LossDetectRecord>(inBuf, inLen, outJson, outLen,
                                           Write<LossDetectRecord, 1, kLossFields>);
}

int ParseBlindDetect(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen) {
  return ParseAlarmRecord<BlindDetectRecord>(jsonText, outBuf, outLen, retLen, TableRule::kReadNull,
                                             Fill<BlindDetectRecord, 2, kBlindFields>);
}

int PackBlindDetect(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen) {
  return PackAlarmRecord<BlindDetectRecord>(inBuf, inLen, outJson, outLen,
                                            Write<BlindDetectRecord, 2, kBlindFields>);
}

}  // namespace kova
