// Translators of the media configuration family, as bound in the name lists.
#ifndef KOVA_CONFIG_MEDIA_TRANSLATORS_H_
#define KOVA_CONFIG_MEDIA_TRANSLATORS_H_

#include <json/value.h>

#include <cstdint>

#include "kova/records/media.h"
#include "kova/records/video_in.h"

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

// The picture settings, one record per channel (kova/records/video_in.h).
// "VideoColor", "VideoInExposure", "VideoInFocus", "VideoInZoom",
// "VideoInDefog" and "Lighting": a channel's array of profiles.
int ParseVideoColor(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackVideoColor(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);
int ParseVideoInExposure(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackVideoInExposure(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);
int ParseVideoInFocus(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackVideoInFocus(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);
int ParseVideoInZoom(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackVideoInZoom(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);
int ParseVideoInDefog(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackVideoInDefog(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);
int ParseLighting(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackLighting(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);
// "VideoInOptions", "ChannelTitle", "VideoWidget": a channel's object.
int ParseVideoInOptions(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackVideoInOptions(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);
int ParseChannelTitle(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackChannelTitle(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);
int ParseVideoWidget(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackVideoWidget(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);

// Table-driver routines of "VideoInDayNight" (one VideoInDayNightConfig).
int ParseVideoInDayNightRecord(const Json::Value& element, void* record);
int PackVideoInDayNightRecord(const void* record, Json::Value& target);

}  // namespace kova

#endif  // KOVA_CONFIG_MEDIA_TRANSLATORS_H_
