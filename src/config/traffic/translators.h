// Translators of the traffic configuration family, as bound in the name lists.
#ifndef KOVA_CONFIG_TRAFFIC_TRANSLATORS_H_
#define KOVA_CONFIG_TRAFFIC_TRANSLATORS_H_

#include <json/value.h>

#include <cstdint>

#include "kova/records/traffic.h"

namespace kova {

// "TrafficSnapshot": capture counts, radar, detector, overlays and linkage
// of a traffic enforcement camera (TrafficSnapshotConfig).
int ParseTrafficSnapshot(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackTrafficSnapshot(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);

}  // namespace kova

#endif  // KOVA_CONFIG_TRAFFIC_TRANSLATORS_H_
