// Translators of the network configuration family, as bound in the name lists.
#ifndef KOVA_CONFIG_NETWORK_TRANSLATORS_H_
#define KOVA_CONFIG_NETWORK_TRANSLATORS_H_

#include <json/value.h>

#include <cstdint>

namespace kova {

// Table-driver routines of "G3G4AutoChange".
int ParseG3G4AutoChangeRecord(const Json::Value& element, void* record);
int PackG3G4AutoChangeRecord(const void* record, Json::Value& target);

}  // namespace kova

#endif  // KOVA_CONFIG_NETWORK_TRANSLATORS_H_
