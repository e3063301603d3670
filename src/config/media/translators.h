// Translators of the media configuration family, as bound in the name lists.
#ifndef KOVA_CONFIG_MEDIA_TRANSLATORS_H_
#define KOVA_CONFIG_MEDIA_TRANSLATORS_H_

#include <json/value.h>

#include <cstdint>

#include "kova/records/media.h"

namespace kova {

// "Encode": EncodeConfig records, one per channel.
int ParseEncode(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackEncode(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);

// "EncodePlan": EncodePlanEntry records, one per table element.
int ParseEncodePlan(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackEncodePlan(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);

// "VideoEncodeROI": one EncodeRoiConfig record.
int ParseVideoEncodeRoi(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackVideoEncodeRoi(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);

// "DspEncodeCap": one DspEncodeCapRecord record.
int ParseDspEncodeCap(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackDspEncodeCap(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);

// "EncodeAdapt": EncodeAdaptConfig records, one per channel.
int ParseEncodeAdapt(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackEncodeAdapt(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);

// "SmartEncode": SmartEncodeConfig records, one per channel.
int ParseSmartEncode(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackSmartEncode(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);

}  // namespace kova

#endif  // KOVA_CONFIG_MEDIA_TRANSLATORS_H_
