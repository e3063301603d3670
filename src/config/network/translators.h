// Translators of the network configuration family, as bound in the name lists.
#ifndef KOVA_CONFIG_NETWORK_TRANSLATORS_H_
#define KOVA_CONFIG_NETWORK_TRANSLATORS_H_

#include <json/value.h>

#include <cstdint>

#include "kova/records/network.h"

namespace kova {

// Table-driver routines of "G3G4AutoChange".
int ParseG3G4AutoChangeRecord(const Json::Value& element, void* record);
int PackG3G4AutoChangeRecord(const void* record, Json::Value& target);

// "Network": one NetworkConfig.
int ParseNetwork(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackNetwork(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);

// "RTSP": one RtspConfig.
int ParseRtsp(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackRtsp(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);

// "DVRIP": one DvripConfig.
int ParseDvrip(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackDvrip(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);

// "Multicast": one MulticastConfig.
int ParseMulticast(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackMulticast(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);

}  // namespace kova

#endif  // KOVA_CONFIG_NETWORK_TRANSLATORS_H_
