// Translators of the access configuration family, as bound in the name lists.
#ifndef KOVA_CONFIG_ACCESS_TRANSLATORS_H_
#define KOVA_CONFIG_ACCESS_TRANSLATORS_H_

#include <json/value.h>

#include <cstdint>

#include "kova/records/access.h"

namespace kova {

// "AccessControlGeneral": the settings shared by all doors (AccessGeneralRecord).
int ParseAccessControlGeneral(const char* jsonText, void* outBuf, uint32_t outLen,
                              uint32_t* retLen);
int PackAccessControlGeneral(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);

// "AccessControl": the settings of each door (AccessControlConfig per door).
int ParseAccessControl(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackAccessControl(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);

}  // namespace kova

#endif  // KOVA_CONFIG_ACCESS_TRANSLATORS_H_
