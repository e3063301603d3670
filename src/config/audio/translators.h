// Translators of the audio configurations, as bound in the name lists.
#ifndef KOVA_CONFIG_AUDIO_TRANSLATORS_H_
#define KOVA_CONFIG_AUDIO_TRANSLATORS_H_

#include <cstdint>

#include "kova/records/audio.h"

namespace kova {

// "AudioDetect": sound alarms per channel (AudioDetectConfig).
int ParseAudioDetect(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackAudioDetect(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);

// "AudioOutputVolume" and "AudioInputVolume": a volume per channel (AudioVolumeConfig).
int ParseAudioVolume(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
int PackAudioVolume(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);

}  // namespace kova

#endif  // KOVA_CONFIG_AUDIO_TRANSLATORS_H_
