#include "common/blocks/event_handler.h"

#include <cstddef>
#include <cstring>

#include "common/blocks/channel_mask.h"
#include "common/blocks/event_handler_lists.h"
#include "common/blocks/time_schedule.h"
#include "common/fields/field_table.h"
#include "common/fields/field_text.h"
#include "common/json/json.h"

namespace kova {

namespace {

using R = EventHandlerRecord;

// present[i], the one-byte flag of most members.
#define EH_AT(index) KOVA_AT_ITEM(R, present, index)

constexpr const char* kTourSplitNames[] = {"Split1", "Split8"};
constexpr EnumNames kTourSplits = EnumNames::Of(kTourSplitNames).OmitUnnamed();

// "MailDetail": read when given (whatever it holds), its members always
// written with it; an attachment type without a name is left out.
constexpr const char* kAttachmentNames[] = {"picture", "video"};
constexpr EnumNames kAttachmentTypes = EnumNames::Of(kAttachmentNames).OmitUnnamed();
constexpr Field kMailDetailFields[] = {
    KOVA_ENUM(R, mailAttachmentType, "AttachmentType", kAttachmentTypes),
    KOVA_F(R, mailMaxSize, "MaxSize", kInt),
    KOVA_F(R, mailMaxTimeLength, "MaxTimeLength", kInt),
};
constexpr FieldTable kMailDetail = KOVA_TABLE(kMailDetailFields);

// "Voice": only its "AudioFileName" is flagged.
constexpr Field kVoiceFields[] = {
    KOVA_F(R, audioFileName, "AudioFileName", kText).Flag(KOVA_AT(R, voicePresent)),
};
constexpr FieldTable kVoice = KOVA_TABLE(kVoiceFields);

// "Talkback": "Caller" and "CallProtocol" each have one name, for 0; any
// other text leaves the field as it was, and any other value packs as null.
constexpr const char* kCallerNames[] = {"Device"};
constexpr EnumNames kCallers = EnumNames::Of(kCallerNames).Exact();
constexpr const char* kCallProtocolNames[] = {"Cellular"};
constexpr EnumNames kCallProtocols = EnumNames::Of(kCallProtocolNames).Exact();
constexpr Field kTalkbackFields[] = {
    KOVA_F(R, callEnable, "CallEnable", kBool).AlwaysRead(),
    KOVA_ENUM(R, caller, "Caller", kCallers).UnnamedAs(Unnamed::kNull),
    KOVA_ENUM(R, callProtocol, "CallProtocol", kCallProtocols).UnnamedAs(Unnamed::kNull),
};
constexpr FieldTable kTalkback = KOVA_TABLE(kTalkbackFields);

// "PSTNAlarmServer": eight destinations read, each cut to one byte.
constexpr Field kDestination = KOVA_ITEM(uint8_t, kUInt);
constexpr Field kPstnFields[] = {
    KOVA_F(R, needReport, "NeedReport", kBool).AlwaysRead(),
    KOVA_LIST(R, destinations, "Destination", kDestination)
        .Count(KOVA_AT(R, destinationCount), CountRule::kAll)
        .KeepSlots()
        .ParseOnly(),
    // Packed from an uncut count: intended (see PackDestinations).
    KOVA_CUSTOM(R, destinations, "Destination", nullptr, PackDestinations),
};
constexpr FieldTable kPstn = KOVA_TABLE(kPstnFields);

constexpr Field kTourChannel = KOVA_ITEM(int32_t, kInt);
constexpr Field kDbString = KOVA_ITEM(char[KOVA_EH_DB_LENGTH], kText);

// "MonitorTour" entries. The split-mode names belong to the video-output
// configuration, which has no table yet: every name is unknown (split left
// as it was) and no value has a name (nothing written).
constexpr EnumNames kSplitModes = EnumNames{}.OmitUnnamed();
constexpr Field kMonitorTourFields[] = {
    KOVA_F(MonitorTourEntry, enable, "Enable", kBool),
    KOVA_ENUM(MonitorTourEntry, split, "Split", kSplitModes),
    KOVA_LIST(MonitorTourEntry, channels, "Channels", kTourChannel)
        .Count(KOVA_AT(MonitorTourEntry, channelCount), CountRule::kAll)
        .KeepSlots(),
};

}  // namespace

KOVA_DESCRIBE(MonitorTourEntry, kMonitorTourFields)

namespace {

constexpr Field kMonitorTour = KOVA_ITEM_NESTED(MonitorTourEntry);

// The block but its schedule. Each member travels with its presence flag.
constexpr Field kEventHandlerFields[] = {
    // Always read (missing reads as false) and always marked present.
    KOVA_F(R, recordEnable, "RecordEnable", kBool).Flag(EH_AT(KOVA_EH_RECORD_ENABLE)).AlwaysRead(),
    KOVA_F(R, alarmOutEnable, "AlarmOutEnable", kBool)
        .Flag(EH_AT(KOVA_EH_ALARM_OUT_ENABLE))
        .AlwaysRead(),
    KOVA_F(R, recordLatch, "RecordLatch", kInt).Flag(EH_AT(KOVA_EH_RECORD_LATCH)),
    KOVA_F(R, alarmOutLatch, "AlarmOutLatch", kInt).Flag(EH_AT(KOVA_EH_ALARM_OUT_LATCH)),
    KOVA_F(R, exAlarmOutEnable, "ExAlarmOutEnable", kBool).Flag(EH_AT(KOVA_EH_EX_ALARM_OUT_ENABLE)),
    KOVA_F(R, ptzLinkEnable, "PtzLinkEnable", kBool).Flag(EH_AT(KOVA_EH_PTZ_LINK_ENABLE)),
    // Read as a boolean, but only a stored 1 packs as true.
    KOVA_F(R, tourEnable, "TourEnable", kBool).Flag(EH_AT(KOVA_EH_TOUR_ENABLE)).PackBoolEqualsOne(),
    KOVA_F(R, snapshotEnable, "SnapshotEnable", kBool).Flag(EH_AT(KOVA_EH_SNAPSHOT_ENABLE)),
    KOVA_F(R, snapshotPeriod, "SnapshotPeriod", kInt).Flag(EH_AT(KOVA_EH_SNAPSHOT_PERIOD)),
    KOVA_F(R, snapshotTimes, "SnapshotTimes", kInt).Flag(EH_AT(KOVA_EH_SNAPSHOT_TIMES)),
    KOVA_F(R, tipEnable, "TipEnable", kBool).Flag(EH_AT(KOVA_EH_TIP_ENABLE)),
    KOVA_F(R, mailEnable, "MailEnable", kBool).Flag(EH_AT(KOVA_EH_MAIL_ENABLE)),
    KOVA_F(R, messageEnable, "MessageEnable", kBool).Flag(EH_AT(KOVA_EH_MESSAGE_ENABLE)),
    KOVA_F(R, beepEnable, "BeepEnable", kBool).Flag(EH_AT(KOVA_EH_BEEP_ENABLE)),
    KOVA_F(R, voiceEnable, "VoiceEnable", kBool).Flag(EH_AT(KOVA_EH_VOICE_ENABLE)),
    // Read as integers, packed as booleans true only for 1.
    KOVA_F(R, matrixEnable, "MatrixEnable", kInt)
        .Flag(EH_AT(KOVA_EH_MATRIX_ENABLE))
        .PackBoolEqualsOne(),
    KOVA_F(R, dejitter, "Dejitter", kInt).Flag(EH_AT(KOVA_EH_DEJITTER)),
    KOVA_F(R, logEnable, "LogEnable", kBool).Flag(EH_AT(KOVA_EH_LOG_ENABLE)),
    KOVA_F(R, delay, "Delay", kInt).Flag(EH_AT(KOVA_EH_DELAY)),
    // The device never reports it; callers set it to switch the overlay on.
    KOVA_F(R, onVideoMessageEnable, "OnVideoMessageEn", kBool)
        .Flag(EH_AT(KOVA_EH_ON_VIDEO_MESSAGE_EN))
        .PackBoolEqualsOne()
        .PackOnly(),
    KOVA_F(R, mmsEnable, "MMSEnable", kBool).Flag(EH_AT(KOVA_EH_MMS_ENABLE)),
    KOVA_F(R, messageToNetEnable, "MessageToNetEnable", kInt)
        .Flag(EH_AT(KOVA_EH_MESSAGE_TO_NET_ENABLE))
        .PackBoolEqualsOne(),
    KOVA_F(R, snapshotTitleEnable, "SnapshotTitleEnable", kBool)
        .Flag(EH_AT(KOVA_EH_SNAPSHOT_TITLE_ENABLE)),
    KOVA_F(R, videoTitleEnable, "VideoTitleEnable", kBool).Flag(EH_AT(KOVA_EH_VIDEO_TITLE_ENABLE)),
    KOVA_F(R, jpegSummary, "JpegSummary", kTextRaw).Flag(EH_AT(KOVA_EH_JPEG_SUMMARY)),
    KOVA_F(R, flashEnable, "FlashEnable", kBool)
        .Flag(EH_AT(KOVA_EH_FLASH_ENABLE))
        .PackBoolEqualsOne(),
    KOVA_F(R, flashLatch, "FlashLatch", kInt).Flag(EH_AT(KOVA_EH_FLASH_LATCH)),
    KOVA_F(R, alarmBellEnable, "AlarmBellEnable", kBool).Flag(KOVA_AT(R, alarmBellEnablePresent)),
    KOVA_F(R, accessControlEnable, "AccessControlEnable", kBool)
        .Flag(KOVA_AT(R, accessControlEnablePresent)),
    KOVA_F(R, alarmBellLatch, "AlarmBellLatch", kInt).Flag(KOVA_AT(R, alarmBellLatchPresent)),
    // Channel hints the device reports but does not accept back.
    KOVA_F(R, sdkRecordChannel, "SDK_RecordChannel", kInt).ParseOnly(),
    KOVA_F(R, sdkAlarmOutChannel, "SDK_AlarmOutChannel", kInt).ParseOnly(),
    KOVA_ENUM(R, tourSplit, "TourSplit", kTourSplits).Flag(EH_AT(KOVA_EH_TOUR_SPLIT)).ParseOnly(),

    // Empty output sets are written as null (the device then clears them);
    // the other sets are left out when empty.
    KOVA_CHANNEL_SET(R, recordChannels, "RecordChannels", kInRange, kOmit)
        .Flag(EH_AT(KOVA_EH_RECORD_CHANNELS)),
    KOVA_CHANNEL_SET(R, alarmOutChannels, "AlarmOutChannels", kInRange, kNull)
        .Flag(EH_AT(KOVA_EH_ALARM_OUT_CHANNELS)),
    KOVA_CHANNEL_SET(R, exAlarmOutChannels, "ExAlarmOutChannels", kInRange, kNull)
        .Flag(EH_AT(KOVA_EH_EX_ALARM_OUT_CHANNELS)),
    KOVA_CHANNEL_SET(R, tourChannels, "TourChannels", kWrapNegative, kOmit)
        .Flag(EH_AT(KOVA_EH_TOUR_CHANNELS)),
    KOVA_CHANNEL_SET(R, snapshotChannels, "SnapshotChannels", kInRange, kOmit)
        .Flag(EH_AT(KOVA_EH_SNAPSHOT_CHANNELS)),
    KOVA_CHANNEL_SET(R, matrixChannels, "MatrixChannels", kWrapNegative, kOmit)
        .Flag(EH_AT(KOVA_EH_MATRIX_CHANNELS)),

    KOVA_CUSTOM(R, ptzLinks, "PtzLink", ParsePtzLinks, PackPtzLinks).Flag(EH_AT(KOVA_EH_PTZ_LINK)),
    KOVA_CUSTOM(R, snapshotTitles, "SnapshotTitle", ParseTitles, PackTitles)
        .Flag(EH_AT(KOVA_EH_SNAPSHOT_TITLE))
        .Count(KOVA_AT(R, snapshotTitleCount), CountRule::kAll),
    KOVA_CUSTOM(R, videoTitles, "VideoTitle", ParseTitles, PackTitles)
        .Flag(EH_AT(KOVA_EH_VIDEO_TITLE))
        .Count(KOVA_AT(R, videoTitleCount), CountRule::kAll),
    KOVA_GROUP(R, "MailDetail", kMailDetail).Flag(EH_AT(KOVA_EH_MAIL_DETAIL)).AnyType(),
    KOVA_LIST(R, monitorTours, "MonitorTour", kMonitorTour)
        .Flag(EH_AT(KOVA_EH_MONITOR_TOUR))
        .Count(KOVA_AT(R, monitorTourCount), CountRule::kAll)
        .KeepSlots(),
    // A "DB" given with another type is flagged, with no strings.
    KOVA_LIST(R, db, "DB", kDbString)
        .Flag(EH_AT(KOVA_EH_DB))
        .Count(KOVA_AT(R, dbCount), CountRule::kAll)
        .KeepSlots()
        .AnyType(),
    KOVA_CUSTOM(R, accessControlOperations, "AccessControls", ParseAccessControls,
                PackAccessControls)
        .Flag(KOVA_AT(R, accessControlsPresent)),
    KOVA_GROUP(R, "Voice", kVoice).WhenAnySet(KOVA_AT(R, voicePresent)),
    KOVA_GROUP(R, "Talkback", kTalkback).Flag(KOVA_AT(R, talkbackPresent)).AnyType(),
    KOVA_GROUP(R, "PSTNAlarmServer", kPstn).Flag(KOVA_AT(R, pstnAlarmServerPresent)).AnyType(),
};
constexpr FieldTable kEventHandler = KOVA_TABLE(kEventHandlerFields);

#undef EH_AT

// "TimeSection", the holiday schedule, with its own rules (intended): an
// object (or any other non-array) leaves the schedule and what is kept
// beside it as the caller left them, a null one clears the schedule, a
// failed read is ignored; pack always writes it.
void ParseBlock(const Json::Value& obj, EventHandlerRecord* r, const SchedulesBeside& beside) {
  const Json::Value& timeSection = Member(obj, "TimeSection");
  if (timeSection.isArray() || timeSection.isNull()) {
    ParseHolidaySchedule(timeSection, &r->schedule, beside);
  }
  ParseFields(obj, r, kEventHandler);
}

constexpr SchedulesBeside kNothingBeside = {{nullptr, 0, 0, nullptr}, nullptr};

// What a linkage field keeps beside its block, told apart by size.
SchedulesBeside BesideOf(unsigned char* record, const Field& f) {
  SchedulesBeside b = kNothingBeside;
  unsigned char* at = record + f.beside.offset;
  if (f.beside.size == sizeof(WeekSchedule7x6)) {
    b.week = reinterpret_cast<WeekSchedule7x6*>(at);
  } else if (f.beside.size == sizeof(WeekSchedule7x10)) {
    // A rule's grid: no count of days is kept.
    b.grid = {&reinterpret_cast<WeekSchedule7x10*>(at)->sections[0][0], KOVA_WEEK_DAYS,
              KOVA_ANALYSE_SECTIONS_PER_DAY, nullptr};
  }
  return b;
}

void PackBeside(const unsigned char* record, const Field& f, Json::Value& handler) {
  if (f.beside.size == 0) return;
  const bool ruleGrid = f.beside.size == sizeof(WeekSchedule7x10);
  Json::Value& timeSection = SetKeptMember(handler, "TimeSection");
  // A rule's grid replaces the block's own schedule; an alarm's week is
  // written over its first seven days, the holiday left as it was.
  if (ruleGrid) timeSection = Json::Value(Json::arrayValue);
  const int32_t sectionsPerDay = ruleGrid ? KOVA_ANALYSE_SECTIONS_PER_DAY : KOVA_SECTIONS_PER_DAY;
  PackTimeSectionGrid(timeSection,
                      reinterpret_cast<const TimeSectionRecord*>(record + f.beside.offset),
                      KOVA_WEEK_DAYS, sectionsPerDay);
}

}  // namespace

bool ParseEventHandler(const Json::Value& obj, EventHandlerRecord* r) {
  if (r == nullptr) return false;
  ParseBlock(obj, r, kNothingBeside);
  return true;
}

bool ParseEventHandlerWithWeek(const Json::Value& obj, EventHandlerRecord* record,
                               WeekSchedule7x6* week) {
  if (record == nullptr || week == nullptr) return false;
  std::memset(week, 0, sizeof *week);
  std::memset(record, 0, sizeof *record);
  ParseBlock(obj, record, SchedulesBeside{kNothingBeside.grid, week});
  return true;
}

void PackEventHandler(const EventHandlerRecord& r, Json::Value& obj) {
  PackHolidaySchedule(SetKeptMember(obj, "TimeSection"), r.schedule);
  PackFields(&r, obj, kEventHandler);
}

void ParseLinkageStep(const Json::Value& obj, unsigned char* record, const Field& f) {
  const Json::Value& handler = Member(obj, f.key);
  if (handler.isNull() && !f.alwaysRead) return;
  // The record was cleared before the walk: no second clearing of its
  // 338 KB here (ParseEventHandlerWithWeek would clear again).
  ParseBlock(handler, reinterpret_cast<EventHandlerRecord*>(record + f.offset),
             BesideOf(record, f));
  MarkPresent(record, f);
  if (f.table != nullptr) ParseFields(handler, record, *f.table);
}

void PackLinkageStep(const unsigned char* record, Json::Value& obj, const Field& f) {
  Json::Value& handler = SetKeptMember(obj, f.key);
  PackEventHandler(*reinterpret_cast<const EventHandlerRecord*>(record + f.offset), handler);
  PackBeside(record, f, handler);
  if (f.table != nullptr) PackFields(record, handler, *f.table);
}

namespace {

// "TimeSection" as PackEventHandler and PackBeside leave it: the block's
// own 7 or 8 days, the alarm week over their first seven days, or the
// rule's grid in their place.
void WriteLinkageSchedule(const void* block, const Field* field, TextSink* out) {
  const unsigned char* record = static_cast<const unsigned char*>(block);
  const Field& f = *field;
  const unsigned char* beside = record + f.beside.offset;
  if (f.beside.size == sizeof(WeekSchedule7x10)) {
    WriteTimeSectionGridText(reinterpret_cast<const TimeSectionRecord*>(beside), KOVA_WEEK_DAYS,
                             KOVA_ANALYSE_SECTIONS_PER_DAY, out);
    return;
  }
  const HolidaySchedule& schedule =
      reinterpret_cast<const EventHandlerRecord*>(record + f.offset)->schedule;
  constexpr int32_t kDays = sizeof schedule.sections / sizeof schedule.sections[0];
  const TimeSectionRecord* rows[kDays];
  for (int32_t d = 0; d < kDays; ++d) rows[d] = schedule.sections[d];
  if (f.beside.size == sizeof(WeekSchedule7x6)) {
    const WeekSchedule7x6* week = reinterpret_cast<const WeekSchedule7x6*>(beside);
    for (int32_t d = 0; d < KOVA_WEEK_DAYS; ++d) rows[d] = week->sections[d];
  }
  static_assert(sizeof schedule.sections[0] == sizeof(TimeSectionRecord) * KOVA_SECTIONS_PER_DAY,
                "the alarm week's days are the block's days");
  WriteSectionRowsText(rows, schedule.holidayEnabled != 0 ? kDays : KOVA_WEEK_DAYS,
                       KOVA_SECTIONS_PER_DAY, out);
}

}  // namespace

void WriteLinkageText(const void* block, const Field* field, TextSink* out) {
  const unsigned char* record = static_cast<const unsigned char*>(block);
  const Field& f = *field;
  ObjectText handler;
  handler.Member("TimeSection", WriteLinkageSchedule, record, &f);
  handler.Fields(record + f.offset, kEventHandler);
  if (f.table != nullptr) handler.Fields(record, *f.table);
  handler.WriteOrPack(out, [&](Json::Value& handlerTree) {
    Json::Value obj;
    PackLinkageStep(record, obj, f);
    handlerTree = Member(obj, f.key);
  });
}

}  // namespace kova
