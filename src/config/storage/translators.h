// Translators of the storage configuration family, as bound in the name lists.
#ifndef KOVA_CONFIG_STORAGE_TRANSLATORS_H_
#define KOVA_CONFIG_STORAGE_TRANSLATORS_H_

#include <json/value.h>

#include <cstdint>

#include "kova/records/storage.h"

namespace kova {

// "Record": RecordConfig records, one per channel.
int ParseRecord(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackRecord(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);

// "NAS": one NasConfig (server table or the legacy single-server form).
int ParseNas(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackNas(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);

// "StorageGroup": caller-sized StorageGroupRecord records, one per group.
int ParseStorageGroup(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackStorageGroup(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);

// "Raid": caller-sized RaidRecord records, one per disk array.
int ParseRaid(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackRaid(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);

// "RecordMode": RecordModeConfig records, one per channel.
int ParseRecordMode(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackRecordMode(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);

}  // namespace kova

#endif  // KOVA_CONFIG_STORAGE_TRANSLATORS_H_
