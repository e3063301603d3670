// The alarm linkage block: what a device does when an alarm-type event
// fires ("EventHandler" inside every alarm configuration).
//
// The record remembers which members the device sent (the presence flags)
// so that packing writes back only those. Members missing from the device's
// object leave their fields zero (parsers start from a zeroed record).
#ifndef KOVA_RECORDS_EVENT_HANDLER_H_
#define KOVA_RECORDS_EVENT_HANDLER_H_

#include <stddef.h>
#include <stdint.h>

#include "kova/records/schedule.h"

#ifdef __cplusplus
extern "C" {
#endif

// Indices into EventHandlerRecord.present; each flag is 1 when its member
// was present and not null on parse, and decides on pack whether the member
// is written. 30 and 31 are not assigned.
enum {
  KOVA_EH_RECORD_CHANNELS = 0,
  KOVA_EH_RECORD_ENABLE = 1,  // always set by the parser
  KOVA_EH_RECORD_LATCH = 2,
  KOVA_EH_ALARM_OUT_CHANNELS = 3,
  KOVA_EH_ALARM_OUT_ENABLE = 4,  // always set by the parser
  KOVA_EH_ALARM_OUT_LATCH = 5,
  KOVA_EH_EX_ALARM_OUT_CHANNELS = 6,
  KOVA_EH_EX_ALARM_OUT_ENABLE = 7,
  KOVA_EH_PTZ_LINK_ENABLE = 8,
  KOVA_EH_TOUR_CHANNELS = 9,
  KOVA_EH_TOUR_ENABLE = 10,
  KOVA_EH_SNAPSHOT_CHANNELS = 11,
  KOVA_EH_SNAPSHOT_ENABLE = 12,
  KOVA_EH_SNAPSHOT_PERIOD = 13,
  KOVA_EH_SNAPSHOT_TIMES = 14,
  KOVA_EH_TIP_ENABLE = 15,
  KOVA_EH_MAIL_ENABLE = 16,
  KOVA_EH_MESSAGE_ENABLE = 17,
  KOVA_EH_BEEP_ENABLE = 18,
  KOVA_EH_VOICE_ENABLE = 19,
  KOVA_EH_MATRIX_CHANNELS = 20,
  KOVA_EH_MATRIX_ENABLE = 21,
  KOVA_EH_DEJITTER = 22,
  KOVA_EH_LOG_ENABLE = 23,
  KOVA_EH_DELAY = 24,
  KOVA_EH_ON_VIDEO_MESSAGE_EN = 25,  // never set by the parser; set it to pack the member
  KOVA_EH_MMS_ENABLE = 26,
  KOVA_EH_MESSAGE_TO_NET_ENABLE = 27,
  KOVA_EH_TOUR_SPLIT = 28,  // parse only
  KOVA_EH_SNAPSHOT_TITLE_ENABLE = 29,
  KOVA_EH_PTZ_LINK = 32,
  KOVA_EH_SNAPSHOT_TITLE = 33,
  KOVA_EH_MAIL_DETAIL = 34,
  KOVA_EH_VIDEO_TITLE_ENABLE = 35,
  KOVA_EH_VIDEO_TITLE = 36,
  KOVA_EH_MONITOR_TOUR = 37,
  KOVA_EH_DB = 38,
  KOVA_EH_JPEG_SUMMARY = 39,
  KOVA_EH_FLASH_ENABLE = 40,
  KOVA_EH_FLASH_LATCH = 41,
  KOVA_EH_PRESENT_COUNT = 42,
};

// Capacities. Longer device arrays are cut to these on parse.
enum {
  KOVA_EH_MAX_CHANNELS = 512,  // channels of one channel set
  KOVA_EH_MASK_WORDS = 16,     // 32-bit words of one channel set
  KOVA_EH_MAX_PTZ_LINKS = 256,
  KOVA_EH_MAX_TITLES = 256,  // "SnapshotTitle" and "VideoTitle" each
  KOVA_EH_MAX_MONITOR_TOURS = 256,
  KOVA_EH_MAX_TOUR_CHANNELS = 256,  // "Channels" of one monitor tour
  KOVA_EH_MAX_DB = 64,
  KOVA_EH_DB_LENGTH = 64,
  KOVA_EH_JPEG_SUMMARY_LENGTH = 1024,
  KOVA_EH_AUDIO_FILE_LENGTH = 260,
  KOVA_EH_MAX_ACCESS_CONTROLS = 8,
  KOVA_EH_MAX_DESTINATIONS = 8,
};

// PTZ action types of "PtzLink" entries.
enum {
  KOVA_PTZ_LINK_NONE = 0,
  KOVA_PTZ_LINK_PRESET = 1,
  KOVA_PTZ_LINK_TOUR = 2,
  KOVA_PTZ_LINK_PATTERN = 3,
};

// Door operations of "AccessControls"[i]."Operation".
enum {
  KOVA_DOOR_NONE = 0,  // written as null
  KOVA_DOOR_AUTO = 1,
  KOVA_DOOR_OPEN = 2,
  KOVA_DOOR_CLOSE = 3,
  KOVA_DOOR_OPEN_ALWAYS = 4,
  KOVA_DOOR_CLOSE_ALWAYS = 5,
};

// One "PtzLink" entry; on the device an array of exactly five items, the
// type name ("None", "Preset", "Tour", "Pattern") then four integers.
typedef struct PtzLinkEntry {
  int32_t type;       // KOVA_PTZ_LINK_*; a name matched without regard to case
  int32_t values[4];  // items 1..4: PTZ channel, preset/tour/pattern number, parameters
} PtzLinkEntry;

// One title text ("SnapshotTitle" / "VideoTitle" entry).
typedef struct TitleOverlay {
  char text[64];          // "Text", local code page, NUL-terminated
  int32_t point[2];       // "Point" [x, y]; left zero unless an array of 2
  float size[2];          // "Size" [w, h]; read as integers; left zero unless an array of 2
  int32_t frontColor[4];  // "FrontColor"; left zero unless an array of 4
  int32_t backColor[4];   // "BackColor"; left zero unless an array of 4
} TitleOverlay;

// One "MonitorTour" entry.
typedef struct MonitorTourEntry {
  int32_t enable;         // "Enable" (0/1)
  int32_t split;          // "Split", a split-mode value; unknown names leave it unchanged
  int32_t channels[256];  // "Channels"
  int32_t channelCount;   // items read into `channels` (at most 256)
} MonitorTourEntry;

// The linkage block read from "EventHandler". Integer fields hold the JSON
// integer; "enable" fields hold 0 or 1. A channel set is 512 bits in sixteen
// words, channel c being bit c % 32 of word c / 32; on the device it is an
// array of channel numbers.
typedef struct EventHandlerRecord {
  uint8_t present[42];              // presence flags, indices KOVA_EH_*
  int32_t sdkRecordChannel;         // "SDK_RecordChannel" (parse only)
  int32_t sdkAlarmOutChannel;       // "SDK_AlarmOutChannel" (parse only)
  uint32_t recordChannels[16];      // "RecordChannels"; empty is not written
  int32_t recordEnable;             // "RecordEnable"; always read and flagged (missing reads 0)
  int32_t recordLatch;              // "RecordLatch", seconds, unchecked
  uint32_t alarmOutChannels[16];    // "AlarmOutChannels"; empty is written as null
  int32_t alarmOutEnable;           // "AlarmOutEnable"; always read and flagged (missing reads 0)
  int32_t alarmOutLatch;            // "AlarmOutLatch", seconds
  uint32_t exAlarmOutChannels[16];  // "ExAlarmOutChannels"; empty is written as null
  int32_t exAlarmOutEnable;         // "ExAlarmOutEnable"
  int32_t reserved[512];            // never read or written
  int32_t ptzLinkEnable;            // "PtzLinkEnable"
  // "TourChannels": channels -31..-1 set bit 32 + c of the first word (the
  // device's own wrap, kept); empty is not written.
  uint32_t tourChannels[16];
  int32_t tourEnable;             // "TourEnable"; packed true only when 1
  uint32_t snapshotChannels[16];  // "SnapshotChannels"; empty is not written
  int32_t snapshotEnable;         // "SnapshotEnable"
  int32_t snapshotPeriod;         // "SnapshotPeriod"
  int32_t snapshotTimes;          // "SnapshotTimes"
  int32_t tipEnable;              // "TipEnable"
  int32_t mailEnable;             // "MailEnable"
  int32_t messageEnable;          // "MessageEnable"
  int32_t beepEnable;             // "BeepEnable"
  int32_t voiceEnable;            // "VoiceEnable"
  uint32_t matrixChannels[16];    // "MatrixChannels", as "TourChannels"
  int32_t matrixEnable;           // "MatrixEnable", read as an integer; packed true only when 1
  int32_t dejitter;               // "Dejitter", seconds
  int32_t logEnable;              // "LogEnable"
  int32_t delay;                  // "Delay", seconds
  int32_t onVideoMessageEnable;   // "OnVideoMessageEn" (pack only); packed true only when 1
  int32_t mmsEnable;              // "MMSEnable"
  int32_t messageToNetEnable;   // "MessageToNetEnable", read as an integer; packed true only when 1
  int32_t tourSplit;            // "TourSplit" (parse only): 0 = "Split1", 1 = "Split8"
  int32_t snapshotTitleEnable;  // "SnapshotTitleEnable"
  int32_t ptzLinkCount;         // "PtzLink" entries (at most 256 on parse)
  PtzLinkEntry ptzLinks[256];   // "PtzLink"; malformed entries stay zero
  int32_t snapshotTitleCount;   // "SnapshotTitle" entries (at most 256)
  TitleOverlay snapshotTitles[256];    // "SnapshotTitle"
  int32_t mailAttachmentType;          // "MailDetail"."AttachmentType": 0 "picture", 1 "video"
  int32_t mailMaxSize;                 // "MailDetail"."MaxSize"
  int32_t mailMaxTimeLength;           // "MailDetail"."MaxTimeLength"
  int32_t videoTitleEnable;            // "VideoTitleEnable"
  int32_t videoTitleCount;             // "VideoTitle" entries (at most 256)
  TitleOverlay videoTitles[256];       // "VideoTitle"
  int32_t monitorTourCount;            // "MonitorTour" entries (at most 256)
  MonitorTourEntry monitorTours[256];  // "MonitorTour"
  int32_t dbCount;                     // "DB" strings (at most 64)
  char db[64][64];                     // "DB", local code page
  char jpegSummary[1024];              // "JpegSummary", bytes unchanged (no code-page conversion)
  int32_t flashEnable;                 // "FlashEnable"; packed true only when 1
  int32_t flashLatch;                  // "FlashLatch"
  uint8_t voicePresent;                // "Voice"."AudioFileName" was given
  uint8_t alarmBellEnablePresent;      // "AlarmBellEnable" was given
  uint8_t accessControlEnablePresent;  // "AccessControlEnable" was given
  uint8_t accessControlsPresent;       // "AccessControls" was given
  char audioFileName[260];             // "Voice"."AudioFileName", local code page
  int32_t alarmBellEnable;             // "AlarmBellEnable"
  int32_t accessControlEnable;         // "AccessControlEnable"
  int32_t accessControlCount;          // "AccessControls" entries (at most 8)
  int32_t accessControlOperations[8];  // "AccessControls"[i]."Operation", KOVA_DOOR_*
  int32_t talkbackPresent;             // "Talkback" was given
  int32_t callEnable;                  // "Talkback"."CallEnable"
  int32_t caller;                      // "Talkback"."Caller": 0 = "Device"
  int32_t callProtocol;                // "Talkback"."CallProtocol": 0 = "Cellular"
  int32_t pstnAlarmServerPresent;      // "PSTNAlarmServer" was given
  int32_t needReport;                  // "PSTNAlarmServer"."NeedReport"
  int32_t destinationCount;       // "PSTNAlarmServer"."Destination" entries (at most 8 on parse)
  uint8_t destinations[8];        // "PSTNAlarmServer"."Destination", each cut to one byte
  HolidaySchedule schedule;       // "TimeSection", always written
  int32_t alarmBellLatchPresent;  // "AlarmBellLatch" was given
  int32_t alarmBellLatch;         // "AlarmBellLatch", seconds
} EventHandlerRecord;

#ifdef __cplusplus
}
static_assert(sizeof(PtzLinkEntry) == 20, "PtzLinkEntry layout");
static_assert(sizeof(TitleOverlay) == 112, "TitleOverlay layout");
static_assert(offsetof(TitleOverlay, size) == 72, "TitleOverlay layout");
static_assert(sizeof(MonitorTourEntry) == 1036, "MonitorTourEntry layout");
static_assert(offsetof(EventHandlerRecord, sdkRecordChannel) == 44, "EventHandlerRecord layout");
static_assert(offsetof(EventHandlerRecord, recordChannels) == 52, "EventHandlerRecord layout");
static_assert(offsetof(EventHandlerRecord, reserved) == 264, "EventHandlerRecord layout");
static_assert(offsetof(EventHandlerRecord, ptzLinkEnable) == 2312, "EventHandlerRecord layout");
static_assert(offsetof(EventHandlerRecord, ptzLinks) == 2584, "EventHandlerRecord layout");
static_assert(offsetof(EventHandlerRecord, snapshotTitles) == 7708, "EventHandlerRecord layout");
static_assert(offsetof(EventHandlerRecord, videoTitles) == 36400, "EventHandlerRecord layout");
static_assert(offsetof(EventHandlerRecord, monitorTours) == 65076, "EventHandlerRecord layout");
static_assert(offsetof(EventHandlerRecord, db) == 330296, "EventHandlerRecord layout");
static_assert(offsetof(EventHandlerRecord, jpegSummary) == 334392, "EventHandlerRecord layout");
static_assert(offsetof(EventHandlerRecord, voicePresent) == 335424, "EventHandlerRecord layout");
static_assert(offsetof(EventHandlerRecord, audioFileName) == 335428, "EventHandlerRecord layout");
static_assert(offsetof(EventHandlerRecord, accessControlOperations) == 335700,
              "EventHandlerRecord layout");
static_assert(offsetof(EventHandlerRecord, destinations) == 335760, "EventHandlerRecord layout");
static_assert(offsetof(EventHandlerRecord, schedule) == 335768, "EventHandlerRecord layout");
static_assert(offsetof(EventHandlerRecord, alarmBellLatch) == 337120, "EventHandlerRecord layout");
static_assert(sizeof(EventHandlerRecord) == 337124, "EventHandlerRecord layout");
#endif

#endif  // KOVA_RECORDS_EVENT_HANDLER_H_
