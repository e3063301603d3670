// Translators of the alarm configuration family, as bound in the name lists.
#ifndef KOVA_CONFIG_ALARM_TRANSLATORS_H_
#define KOVA_CONFIG_ALARM_TRANSLATORS_H_

#include <json/value.h>

#include <cstdint>

#include "kova/records/alarm.h"

namespace kova {

// Table-driver routines of "AlarmLamp" and "DefenceArmMode".
int ParseAlarmLampRecord(const Json::Value& element, void* record);
int PackAlarmLampRecord(const void* record, Json::Value& target);
int ParseDefenceArmModeRecord(const Json::Value& element, void* record);
int PackDefenceArmModeRecord(const void* record, Json::Value& target);

// The alarm sources with a linkage block. Parsers take the device's
// response and fill one record; packers write one record as the bare
// "table" object.
int ParseAlarm(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackAlarm(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);
int ParseNetAlarm(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackNetAlarm(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);
int ParseMotionDetect(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackMotionDetect(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);
int ParseLossDetect(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackLossDetect(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);
int ParseBlindDetect(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackBlindDetect(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);
// "StorageNotExist", "StorageFailure", "NetAbort" and "IPConflict".
int ParseSystemEvent(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackSystemEvent(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);
int ParseStorageLowSpace(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackStorageLowSpace(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);

// Caller-sized lists: the stride is the size in the first record's
// leading uint32.
int ParseTemperatureAlarm(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackTemperatureAlarm(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);
int ParseFanSpeedAlarm(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackFanSpeedAlarm(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);

}  // namespace kova

#endif  // KOVA_CONFIG_ALARM_TRANSLATORS_H_
