#include "common/blocks/event_handler.h"

#include <cstddef>
#include <cstring>

#include "common/blocks/channel_mask.h"
#include "common/blocks/event_handler_lists.h"
#include "common/fields/field_table.h"
#include "common/fields/fields.h"
#include "common/json/json.h"
#include "common/blocks/time_schedule.h"

namespace kova {

namespace {

using R = EventHandlerRecord;

// Which way a scalar member travels.
enum class Way : uint8_t {
  kBoth,
  kParseOnly,
  kPackOnly,
  // Always read (a missing member stores 0) and always flagged present.
  kAlwaysParsed,
};

struct ScalarField {
  Field field;
  Way way;
};

constexpr Field WithFlag(Field f, size_t flagOffset, uint32_t flagSize) {
  return f.Flag(Slot{static_cast<uint32_t>(flagOffset), flagSize});
}

// A member flagged in present[index].
#define EH_SCALAR(key, member, kind, index, way)                                                  \
  ScalarField {                                                                                   \
    WithFlag(KOVA_F(R, member, key, kind), offsetof(R, present) + (index), \
             1),                                                                                  \
        Way::way                                                                                  \
  }
// As EH_SCALAR, for a member that packs as true only when it holds 1.
#define EH_SCALAR_ONE(key, member, kind, index, way)                                         \
  ScalarField {                                                                              \
    WithFlag(KOVA_F(R, member, key, kind).PackBoolEqualsOne(), offsetof(R, present) + (index), 1), \
        Way::way                                                                             \
  }
// A member flagged in a presence field of its own.
#define EH_SCALAR_F(key, member, kind, flag) \
  ScalarField { KOVA_F(R, member, key, kind).Flag(KOVA_AT(R, flag)), Way::kBoth }
// A member without a presence flag.
#define EH_SCALAR_N(key, member, kind, way) \
  ScalarField { KOVA_F(R, member, key, kind), Way::way }

const char* const kTourSplitNames[] = {"Split1", "Split8"};
const EnumNames kTourSplits = {kTourSplitNames, 2, false, 0, false, 0, true};

const ScalarField kScalars[] = {
    EH_SCALAR("RecordEnable", recordEnable, kBool, KOVA_EH_RECORD_ENABLE, kAlwaysParsed),
    EH_SCALAR("AlarmOutEnable", alarmOutEnable, kBool, KOVA_EH_ALARM_OUT_ENABLE, kAlwaysParsed),
    EH_SCALAR("RecordLatch", recordLatch, kInt, KOVA_EH_RECORD_LATCH, kBoth),
    EH_SCALAR("AlarmOutLatch", alarmOutLatch, kInt, KOVA_EH_ALARM_OUT_LATCH, kBoth),
    EH_SCALAR("ExAlarmOutEnable", exAlarmOutEnable, kBool, KOVA_EH_EX_ALARM_OUT_ENABLE, kBoth),
    EH_SCALAR("PtzLinkEnable", ptzLinkEnable, kBool, KOVA_EH_PTZ_LINK_ENABLE, kBoth),
    // Read as a boolean, but only a stored 1 packs as true.
    EH_SCALAR_ONE("TourEnable", tourEnable, kBool, KOVA_EH_TOUR_ENABLE, kBoth),
    EH_SCALAR("SnapshotEnable", snapshotEnable, kBool, KOVA_EH_SNAPSHOT_ENABLE, kBoth),
    EH_SCALAR("SnapshotPeriod", snapshotPeriod, kInt, KOVA_EH_SNAPSHOT_PERIOD, kBoth),
    EH_SCALAR("SnapshotTimes", snapshotTimes, kInt, KOVA_EH_SNAPSHOT_TIMES, kBoth),
    EH_SCALAR("TipEnable", tipEnable, kBool, KOVA_EH_TIP_ENABLE, kBoth),
    EH_SCALAR("MailEnable", mailEnable, kBool, KOVA_EH_MAIL_ENABLE, kBoth),
    EH_SCALAR("MessageEnable", messageEnable, kBool, KOVA_EH_MESSAGE_ENABLE, kBoth),
    EH_SCALAR("BeepEnable", beepEnable, kBool, KOVA_EH_BEEP_ENABLE, kBoth),
    EH_SCALAR("VoiceEnable", voiceEnable, kBool, KOVA_EH_VOICE_ENABLE, kBoth),
    // Read as integers, packed as booleans true only for 1.
    EH_SCALAR_ONE("MatrixEnable", matrixEnable, kInt, KOVA_EH_MATRIX_ENABLE, kBoth),
    EH_SCALAR("Dejitter", dejitter, kInt, KOVA_EH_DEJITTER, kBoth),
    EH_SCALAR("LogEnable", logEnable, kBool, KOVA_EH_LOG_ENABLE, kBoth),
    EH_SCALAR("Delay", delay, kInt, KOVA_EH_DELAY, kBoth),
    // The device never reports it; callers set it to switch the overlay on.
    EH_SCALAR_ONE("OnVideoMessageEn", onVideoMessageEnable, kBool, KOVA_EH_ON_VIDEO_MESSAGE_EN,
              kPackOnly),
    EH_SCALAR("MMSEnable", mmsEnable, kBool, KOVA_EH_MMS_ENABLE, kBoth),
    EH_SCALAR_ONE("MessageToNetEnable", messageToNetEnable, kInt,
              KOVA_EH_MESSAGE_TO_NET_ENABLE, kBoth),
    EH_SCALAR("SnapshotTitleEnable", snapshotTitleEnable, kBool, KOVA_EH_SNAPSHOT_TITLE_ENABLE,
              kBoth),
    EH_SCALAR("VideoTitleEnable", videoTitleEnable, kBool, KOVA_EH_VIDEO_TITLE_ENABLE, kBoth),
    EH_SCALAR("JpegSummary", jpegSummary, kTextRaw, KOVA_EH_JPEG_SUMMARY, kBoth),
    EH_SCALAR_ONE("FlashEnable", flashEnable, kBool, KOVA_EH_FLASH_ENABLE, kBoth),
    EH_SCALAR("FlashLatch", flashLatch, kInt, KOVA_EH_FLASH_LATCH, kBoth),
    EH_SCALAR_F("AlarmBellEnable", alarmBellEnable, kBool, alarmBellEnablePresent),
    EH_SCALAR_F("AccessControlEnable", accessControlEnable, kBool, accessControlEnablePresent),
    EH_SCALAR_F("AlarmBellLatch", alarmBellLatch, kInt, alarmBellLatchPresent),
    // Channel hints the device reports but does not accept back.
    EH_SCALAR_N("SDK_RecordChannel", sdkRecordChannel, kInt, kParseOnly),
    EH_SCALAR_N("SDK_AlarmOutChannel", sdkAlarmOutChannel, kInt, kParseOnly),
    ScalarField{WithFlag(KOVA_ENUM(R, tourSplit, "TourSplit", kTourSplits),
                         offsetof(R, present) + KOVA_EH_TOUR_SPLIT, 1),
                Way::kParseOnly},
};

#undef EH_SCALAR
#undef EH_SCALAR_F
#undef EH_SCALAR_ONE
#undef EH_SCALAR_N

#define EH_CHANNELS(key, member, index, rule, empty)                                              \
  ChannelSetField {                                                                               \
    key, static_cast<uint32_t>(offsetof(R, member)),                                              \
        static_cast<uint32_t>(offsetof(R, present) + (index)), ChannelRule::rule, EmptySet::empty \
  }

// Empty output sets are written as null (the device then clears them);
// the other sets are left out when empty.
const ChannelSetField kChannelSets[] = {
    EH_CHANNELS("RecordChannels", recordChannels, KOVA_EH_RECORD_CHANNELS, kInRange, kOmit),
    EH_CHANNELS("AlarmOutChannels", alarmOutChannels, KOVA_EH_ALARM_OUT_CHANNELS, kInRange, kNull),
    EH_CHANNELS("ExAlarmOutChannels", exAlarmOutChannels, KOVA_EH_EX_ALARM_OUT_CHANNELS, kInRange,
                kNull),
    EH_CHANNELS("TourChannels", tourChannels, KOVA_EH_TOUR_CHANNELS, kWrapNegative, kOmit),
    EH_CHANNELS("SnapshotChannels", snapshotChannels, KOVA_EH_SNAPSHOT_CHANNELS, kInRange, kOmit),
    EH_CHANNELS("MatrixChannels", matrixChannels, KOVA_EH_MATRIX_CHANNELS, kWrapNegative, kOmit),
};

#undef EH_CHANNELS

// "MailDetail" members, read when present and always written with it; an
// attachment type without a name is left out.
const char* const kAttachmentNames[] = {"picture", "video"};
const EnumNames kAttachmentTypes = {kAttachmentNames, 2, false, 0, false, 0, true};
const Field kMailDetail[] = {
    KOVA_ENUM(R, mailAttachmentType, "AttachmentType", kAttachmentTypes),
    KOVA_F(R, mailMaxSize, "MaxSize", kInt),
    KOVA_F(R, mailMaxTimeLength, "MaxTimeLength", kInt),
};

void ParseScalars(const Json::Value& obj, R* r) {
  for (const ScalarField& s : kScalars) {
    if (s.way == Way::kPackOnly) continue;
    if (s.way == Way::kAlwaysParsed && Member(obj, s.field.key).isNull()) {
      // Always marked present, a missing member reading as false.
      unsigned char* base = reinterpret_cast<unsigned char*>(r);
      StoreInt(base + s.field.offset, s.field.size, 0);
      StoreInt(base + s.field.flag.offset, s.field.flag.size, 1);
      continue;
    }
    ParseFields(obj, r, &s.field, 1);
  }
}

void PackScalars(const R& r, Json::Value& obj) {
  for (const ScalarField& s : kScalars) {
    if (s.way == Way::kParseOnly) continue;
    PackFields(&r, obj, &s.field, 1);
  }
}

// Texts of "Talkback" that have one stored value each; any other text
// leaves the field as it was.
void ParseNamedZero(const Json::Value& v, const char* name, int32_t* field) {
  char text[16];
  GetJsonString(v, text, sizeof text, 1);
  if (std::strcmp(text, name) == 0) *field = 0;
}

void ParseTalkback(const Json::Value& talkback, R* r) {
  r->talkbackPresent = 1;
  r->callEnable = ToBool(Member(talkback, "CallEnable")) ? 1 : 0;
  ParseNamedZero(Member(talkback, "Caller"), "Device", &r->caller);
  ParseNamedZero(Member(talkback, "CallProtocol"), "Cellular", &r->callProtocol);
}

void PackTalkback(const R& r, Json::Value& obj) {
  Json::Value& talkback = SetMember(obj, "Talkback");
  SetMember(talkback, "CallEnable") = r.callEnable != 0;
  SetMember(talkback, "Caller") = r.caller == 0 ? Json::Value("Device") : Json::Value();
  SetMember(talkback, "CallProtocol") =
      r.callProtocol == 0 ? Json::Value("Cellular") : Json::Value();
}

void ParsePstnAlarmServer(const Json::Value& server, R* r) {
  r->pstnAlarmServerPresent = 1;
  r->needReport = ToBool(Member(server, "NeedReport")) ? 1 : 0;
  const Json::Value& destinations = Member(server, "Destination");
  if (!destinations.isArray()) return;
  const uint32_t n = CutCount(static_cast<int32_t>(Count(destinations)), KOVA_EH_MAX_DESTINATIONS);
  r->destinationCount = static_cast<int32_t>(n);
  for (uint32_t i = 0; i < n; ++i) {
    r->destinations[i] = static_cast<uint8_t>(ToUInt32(Element(destinations, i)));
  }
}

void PackPstnAlarmServer(const R& r, Json::Value& obj) {
  Json::Value& server = SetMember(obj, "PSTNAlarmServer");
  SetMember(server, "NeedReport") = r.needReport != 0;
  Json::Value& destinations = SetMember(server, "Destination");
  destinations = Json::Value(Json::arrayValue);
  // The count is deliberately not cut to 8 when packing: bytes beyond the
  // eight destinations are taken from what follows them, but never from
  // beyond the end of the record.
  const size_t at = offsetof(EventHandlerRecord, destinations);
  const uint32_t n = CutCount(r.destinationCount, EntriesToRecordEnd(at, 1));
  const unsigned char* base = reinterpret_cast<const unsigned char*>(&r);
  for (uint32_t i = 0; i < n; ++i) destinations.append(Json::Value(base[at + i]));
}

bool Given(const Json::Value& v) { return !v.isNull(); }

// Every member but "TimeSection".
void ParseMembers(const Json::Value& obj, EventHandlerRecord* r) {
  ParseScalars(obj, r);
  ParseChannelSets(obj, r, kChannelSets, sizeof kChannelSets / sizeof kChannelSets[0]);

  const Json::Value& ptzLink = Member(obj, "PtzLink");
  if (ptzLink.isArray()) ParsePtzLinks(ptzLink, r);

  const Json::Value& snapshotTitle = Member(obj, "SnapshotTitle");
  if (snapshotTitle.isArray()) {
    r->present[KOVA_EH_SNAPSHOT_TITLE] = 1;
    ParseTitles(snapshotTitle, r->snapshotTitles, &r->snapshotTitleCount);
  }
  const Json::Value& videoTitle = Member(obj, "VideoTitle");
  if (videoTitle.isArray()) {
    r->present[KOVA_EH_VIDEO_TITLE] = 1;
    ParseTitles(videoTitle, r->videoTitles, &r->videoTitleCount);
  }

  const Json::Value& mailDetail = Member(obj, "MailDetail");
  if (Given(mailDetail)) {
    r->present[KOVA_EH_MAIL_DETAIL] = 1;
    ParseFields(mailDetail, r, kMailDetail);
  }

  const Json::Value& monitorTour = Member(obj, "MonitorTour");
  if (monitorTour.isArray()) ParseMonitorTours(monitorTour, r);

  const Json::Value& db = Member(obj, "DB");
  if (Given(db)) ParseDb(db, r);

  const Json::Value& accessControls = Member(obj, "AccessControls");
  if (accessControls.isArray()) ParseAccessControls(accessControls, r);

  const Json::Value& audioFile = Member(Member(obj, "Voice"), "AudioFileName");
  if (Given(audioFile)) {
    r->voicePresent = 1;
    GetJsonString(audioFile, r->audioFileName, sizeof r->audioFileName, 1);
  }

  const Json::Value& talkback = Member(obj, "Talkback");
  if (Given(talkback)) ParseTalkback(talkback, r);

  const Json::Value& pstn = Member(obj, "PSTNAlarmServer");
  if (Given(pstn)) ParsePstnAlarmServer(pstn, r);
}

// An object (or any other non-array) "TimeSection" leaves the schedule as
// the caller left it; a null one clears it. A failed read is ignored.
bool ReadsSchedule(const Json::Value& timeSection) {
  return timeSection.isArray() || timeSection.isNull();
}

}  // namespace

bool ParseEventHandler(const Json::Value& obj, EventHandlerRecord* r) {
  if (r == nullptr) return false;
  const Json::Value& timeSection = Member(obj, "TimeSection");
  if (ReadsSchedule(timeSection)) ParseHolidaySchedule(timeSection, &r->schedule);
  ParseMembers(obj, r);
  return true;
}

bool ParseEventHandlerWithGrid(const Json::Value& obj, EventHandlerRecord* r,
                               const SectionGrid& grid) {
  if (r == nullptr) return false;
  // A "TimeSection" that is not an array reads nothing into the grid.
  const Json::Value& timeSection = Member(obj, "TimeSection");
  if (ReadsSchedule(timeSection)) ParseHolidayScheduleAndGrid(timeSection, &r->schedule, grid);
  ParseMembers(obj, r);
  return true;
}

bool ParseEventHandlerWithWeek(const Json::Value& obj, EventHandlerRecord* record,
                               WeekSchedule7x6* week) {
  if (record == nullptr || week == nullptr) return false;
  std::memset(week, 0, sizeof *week);
  std::memset(record, 0, sizeof *record);
  const Json::Value& timeSection = Member(obj, "TimeSection");
  if (!timeSection.isNull()) {
    for (uint32_t d = 0; d < KOVA_WEEK_DAYS; ++d) {
      const Json::Value& day = Element(timeSection, d);
      for (uint32_t s = 0; s < KOVA_SECTIONS_PER_DAY; ++s) {
        // A section that does not read keeps what converted; the rest of
        // the week is still read.
        ParseTimeSection(Element(day, s), &week->sections[d][s]);
      }
    }
  }
  return ParseEventHandler(obj, record);
}

void PackEventHandler(const EventHandlerRecord& r, Json::Value& obj) {
  if (!obj.isObject()) obj = Json::Value(Json::objectValue);
  PackHolidaySchedule(SetMember(obj, "TimeSection"), r.schedule);

  PackScalars(r, obj);
  PackChannelSets(&r, obj, kChannelSets, sizeof kChannelSets / sizeof kChannelSets[0]);

  if (r.present[KOVA_EH_PTZ_LINK]) PackPtzLinks(r, obj);
  if (r.present[KOVA_EH_SNAPSHOT_TITLE]) {
    SetMember(obj, "SnapshotTitle") = PackTitles(r.snapshotTitles, r.snapshotTitleCount);
  }
  if (r.present[KOVA_EH_VIDEO_TITLE]) {
    SetMember(obj, "VideoTitle") = PackTitles(r.videoTitles, r.videoTitleCount);
  }
  if (r.present[KOVA_EH_MAIL_DETAIL]) {
    Json::Value& mailDetail = SetMember(obj, "MailDetail");
    mailDetail = Json::Value(Json::objectValue);
    PackFields(&r, mailDetail, kMailDetail);
  }
  if (r.present[KOVA_EH_MONITOR_TOUR]) SetMember(obj, "MonitorTour") = PackMonitorTours(r);
  if (r.present[KOVA_EH_DB]) SetMember(obj, "DB") = PackDb(r);
  if (r.accessControlsPresent) SetMember(obj, "AccessControls") = PackAccessControls(r);
  if (r.voicePresent) {
    SetJsonStringBounded(SetMember(SetMember(obj, "Voice"), "AudioFileName"), r.audioFileName,
                         sizeof r.audioFileName, 1);
  }
  if (r.talkbackPresent) PackTalkback(r, obj);
  if (r.pstnAlarmServerPresent) PackPstnAlarmServer(r, obj);
}

}  // namespace kova
