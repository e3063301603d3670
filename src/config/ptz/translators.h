// Translators of the ptz configuration family, as bound in the name lists.
#ifndef KOVA_CONFIG_PTZ_TRANSLATORS_H_
#define KOVA_CONFIG_PTZ_TRANSLATORS_H_

#include <json/value.h>

#include <cstdint>

#include "kova/records/ptz.h"

namespace kova {

// "Ptz": one PtzConfig.
int ParsePtz(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackPtz(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);

}  // namespace kova

#endif  // KOVA_CONFIG_PTZ_TRANSLATORS_H_
