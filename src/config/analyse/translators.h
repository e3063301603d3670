// Translators of the analyse configuration family, as bound in the name lists.
#ifndef KOVA_CONFIG_ANALYSE_TRANSLATORS_H_
#define KOVA_CONFIG_ANALYSE_TRANSLATORS_H_

#include <json/value.h>

#include <cstdint>

#include "kova/records/analyse.h"
#include "kova/records/analyse_setup.h"

namespace kova {

// "VideoAnalyseRule" and "AudioAnalyseRule": VideoAnalyseRuleList both ways.
int ParseVideoAnalyseRule(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackVideoAnalyseRule(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);

// "VideoAnalyseModule": VideoAnalyseModuleConfig both ways.
int ParseVideoAnalyseModule(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackVideoAnalyseModule(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);

// "VideoAnalyseGlobal": VideoAnalyseGlobalConfig both ways.
int ParseVideoAnalyseGlobal(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackVideoAnalyseGlobal(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);

}  // namespace kova

#endif  // KOVA_CONFIG_ANALYSE_TRANSLATORS_H_
