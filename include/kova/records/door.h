// Records of the access controllers' and door stations' settings:
// "AccessTimeSchedule" and "VideoTalkPhoneGeneral".
#ifndef KOVA_RECORDS_DOOR_H_
#define KOVA_RECORDS_DOOR_H_

#include <stddef.h>
#include <stdint.h>

#include "kova/records/schedule.h"

#ifdef __cplusplus
extern "C" {
#endif

enum { KOVA_ACCESS_SCHEDULE_SECTIONS = 4 };  // sections per day of an access schedule

// "AccessTimeSchedule": one schedule of the times a door may be opened.
// One record per schedule: an array table (an access controller answers
// 128 of them, most disabled) fills record i from schedule i, as many as
// the buffer holds (the rest are cut); one schedule's object (a client
// asked for one) fills record 0. The buffer is cleared first; pack writes
// one record bare and several as an array.
typedef struct AccessTimeScheduleConfig {
  int32_t enable;  // "Enable" (boolean), 0 or 1
  char name[64];   // "Name", at most 63 bytes kept
  // "TimeSchedule": 7 days x 4 section texts in the usual form; days and
  // sections beyond are cut, those missing read 0
  TimeSectionRecord timeSchedule[7][KOVA_ACCESS_SCHEDULE_SECTIONS];
  int32_t timeSchedulePresent;  // 1 when "TimeSchedule" was given; pack writes it only then
} AccessTimeScheduleConfig;

// "VideoTalkPhoneGeneral": ringing, talk and recording of a door station,
// one object for the device. The buffer is cleared first; a key left out
// reads 0 (or empty text) and, where flagged, is not written back.
typedef struct VideoTalkPhoneGeneralConfig {
  int32_t autoRecordEnable;  // "AutoRecordEnable" (boolean): record each call
  int32_t autoRecordTime;    // "AutoRecordTime": seconds recorded
  int32_t ringEnable;        // "RingEnable" (boolean), 0 or 1
  int32_t ringVolume;        // "RingVolume": 0 to 100
  int32_t talkVolume;        // "TalkVolume": 0 to 100
  char ringFile[128];        // "RingFile": path of the ring tone, at most 127 bytes kept
  int32_t maxMonitorTime;    // "MaxMonitorTime": seconds a monitoring session lasts
  int32_t maxTalkTime;       // "MaxTalkTime": seconds a call lasts
  // 1 when the key was given (pack writes it only then): not every
  // station sends the two limits.
  uint8_t maxMonitorTimePresent;
  uint8_t maxTalkTimePresent;
  uint8_t reserved[2];
} VideoTalkPhoneGeneralConfig;

#ifdef __cplusplus
}
static_assert(offsetof(AccessTimeScheduleConfig, timeSchedule) == 68,
              "AccessTimeScheduleConfig layout");
static_assert(sizeof(AccessTimeScheduleConfig) == 68 + 7 * 4 * 28 + 4,
              "AccessTimeScheduleConfig layout");
static_assert(offsetof(VideoTalkPhoneGeneralConfig, ringFile) == 20,
              "VideoTalkPhoneGeneralConfig layout");
static_assert(sizeof(VideoTalkPhoneGeneralConfig) == 160, "VideoTalkPhoneGeneralConfig layout");
#endif

#endif  // KOVA_RECORDS_DOOR_H_
