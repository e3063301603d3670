// Records of the audio configurations: sound alarms ("AudioDetect") and
// channel volumes ("AudioOutputVolume", "AudioInputVolume").
//
// Parse reads "params"."table" of a response whose "result" is true, one
// record per channel ("table" an array with one element per channel, as
// many as the buffer holds; a single element fills one record), clears the
// records first, and returns the bytes of the records filled; a null
// "table" succeeds with 0 bytes. Pack writes one record as the bare value
// and several as an array, and copies the text only when it is strictly
// shorter than the output buffer.
#ifndef KOVA_RECORDS_AUDIO_H_
#define KOVA_RECORDS_AUDIO_H_

#include <stddef.h>
#include <stdint.h>

#include "kova/records/event_handler.h"
#include "kova/records/schedule.h"

#ifdef __cplusplus
extern "C" {
#endif

// "EventHandler"."LightingLink": the warning light flashed with a sound
// alarm (member names spelled as the devices spell them).
typedef struct AudioLightingLink {
  int32_t enable;              // "Enable", 0 or 1
  int32_t filckerIntevalTime;  // "FilckerIntevalTime": seconds between flashes
  char filckerLightType[32];   // "FilckerLightType", e.g. "WhiteLight" (kept as text)
  int32_t filckerTimes;        // "FilckerTimes": flashes per alarm
} AudioLightingLink;

// "AudioDetect": sound alarms of one channel.
typedef struct AudioDetectConfig {
  int32_t enable;            // "Enable", 0 or 1
  int32_t anomalyDetect;     // "AnomalyDetect", 0 or 1: unusual sound
  int32_t anomalySensitive;  // "AnomalySensitive": 1 to 100
  int32_t mutationDetect;    // "MutationDetect", 0 or 1: sudden change of intensity
  int32_t mutationThreold;   // "MutationThreold" (the device's spelling): the change that alarms
  int32_t intensityDetect;   // "IntensityDetect", 0 or 1: level above a gate
  int32_t intensityDecibelGate;  // "IntensityDecibelGate": dB
  int32_t minVolume;             // "MinVolume"
  int32_t maxVolume;             // "MaxVolume"
  // 1 when "EventHandler"."LightingLink" was given as an object; pack writes
  // it inside "EventHandler" only then.
  int32_t lightingLinkPresent;
  AudioLightingLink lightingLink;   // "EventHandler"."LightingLink"
  EventHandlerRecord eventHandler;  // "EventHandler" (its "LightingLink" member is kept above)
  WeekSchedule week;                // "EventHandler"."TimeSection", first 7 days x 6 sections;
                                    // on pack it is written over those sections
} AudioDetectConfig;

// "AudioOutputVolume", "AudioInputVolume": "table" is an array of plain
// integers, one volume per channel.
typedef struct AudioVolumeConfig {
  int32_t volume;  // 0 to 100
} AudioVolumeConfig;

// "AudioInput": where the sound of one channel comes from. The device
// answers the whole table (an array: record i from channel i, as many as
// the buffer holds) or one channel's object (record 0); the buffer is
// cleared first.
typedef struct AudioInputConfig {
  // "AudioSource": "Coaxial", "BNC", "HDCVI_BNC", "LineIn", "Mic",
  // "MicOut", ... kept as given (at most 31 bytes)
  char audioSource[32];
} AudioInputConfig;

#ifdef __cplusplus
}
static_assert(sizeof(AudioLightingLink) == 44, "AudioLightingLink layout");
static_assert(offsetof(AudioDetectConfig, lightingLink) == 40, "AudioDetectConfig layout");
static_assert(offsetof(AudioDetectConfig, eventHandler) % 4 == 0, "AudioDetectConfig layout");
static_assert(sizeof(AudioVolumeConfig) == 4, "AudioVolumeConfig layout");
static_assert(sizeof(AudioInputConfig) == 32, "AudioInputConfig layout");
#endif

#endif  // KOVA_RECORDS_AUDIO_H_
