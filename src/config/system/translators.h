// Translators of the device-wide settings, as bound in the name lists.
#ifndef KOVA_CONFIG_SYSTEM_TRANSLATORS_H_
#define KOVA_CONFIG_SYSTEM_TRANSLATORS_H_

#include <cstdint>

#include "kova/records/system.h"

namespace kova {

#define KOVA_SYSTEM_TRANSLATOR(Name)                                                      \
  int Parse##Name(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen); \
  int Pack##Name(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);

KOVA_SYSTEM_TRANSLATOR(General)
KOVA_SYSTEM_TRANSLATOR(Ntp)
KOVA_SYSTEM_TRANSLATOR(Locales)
KOVA_SYSTEM_TRANSLATOR(AutoMaintain)
KOVA_SYSTEM_TRANSLATOR(Language)
KOVA_SYSTEM_TRANSLATOR(Email)
KOVA_SYSTEM_TRANSLATOR(Snap)
KOVA_SYSTEM_TRANSLATOR(RemoteDevice)
KOVA_SYSTEM_TRANSLATOR(AlarmOut)

#undef KOVA_SYSTEM_TRANSLATOR

}  // namespace kova

#endif  // KOVA_CONFIG_SYSTEM_TRANSLATORS_H_
