// "Record": the weekly recording plan of each channel, with its pre-record
// time, redundancy, stream and holiday sections.
#include <cstdint>
#include <cstring>

#include "common/blocks/time_schedule.h"
#include "common/fields/field_table.h"
#include "common/json/json.h"
#include "common/json/json_writer.h"
#include "drivers/response_frame.h"
#include "kova/records/storage.h"

namespace kova {

namespace {

constexpr int32_t kLayoutVersion = 3;
constexpr int kWeekDays = 7;
constexpr int kHolidayRow = 7;
constexpr int kSectionsPerDay = 6;

// The bits of a section's mask of recording kinds sit in a different order
// in the record than on the device; the device's bit 3 has no record bit.
struct MaskBit {
  int record;
  int device;
};
constexpr MaskBit kMaskBits[] = {{0, 1}, {1, 2}, {2, 0}, {3, 4}};

int32_t MaskFromDevice(int32_t device) {
  int32_t record = 0;
  for (const MaskBit& b : kMaskBits) record |= ((device >> b.device) & 1) << b.record;
  return record;
}

int32_t MaskToDevice(int32_t record) {
  int32_t device = 0;
  for (const MaskBit& b : kMaskBits) device |= ((record >> b.record) & 1) << b.device;
  return device;
}

// "TimeSection" rows 0..6 are the week; a row 7 is the holiday and brings
// "HolidayEnable" with it, which is read only then (intended).
void ParseSchedule(const Json::Value& table, unsigned char* record, const Field&) {
  RecordConfig* r = reinterpret_cast<RecordConfig*>(record);
  const Json::Value& rows = Member(table, "TimeSection");
  for (int d = 0; d < kWeekDays; ++d) {
    ParseDaySections(Element(rows, d), r->sections[d], kSectionsPerDay);
  }
  r->holidayValid = rows.isArray() && Count(rows) > kHolidayRow ? 1 : 0;
  if (r->holidayValid) {
    ParseDaySections(Element(rows, kHolidayRow), r->holidaySections, kSectionsPerDay);
    r->holidayEnable = ToBool(Member(table, "HolidayEnable")) ? 1 : 0;
  }
  for (TimeSectionRecord& s : r->holidaySections) s.enable = MaskFromDevice(s.enable);
  for (auto& day : r->sections) {
    for (TimeSectionRecord& s : day) s.enable = MaskFromDevice(s.enable);
  }
}

// The rows written: the week, then the holiday row when it is valid, each
// section's mask in the device's bit order. Returns the row count.
int DeviceRows(const RecordConfig& r, TimeSectionRecord (&grid)[kWeekDays + 1][kSectionsPerDay]) {
  std::memcpy(grid, r.sections, sizeof r.sections);
  std::memcpy(grid[kHolidayRow], r.holidaySections, sizeof r.holidaySections);
  for (auto& day : grid) {
    for (TimeSectionRecord& s : day) s.enable = MaskToDevice(s.enable);
  }
  return r.holidayValid != 0 ? kWeekDays + 1 : kWeekDays;
}

void PackSchedule(const unsigned char* record, Json::Value& table, const Field&) {
  TimeSectionRecord grid[kWeekDays + 1][kSectionsPerDay];
  const int rows = DeviceRows(*reinterpret_cast<const RecordConfig*>(record), grid);
  PackTimeSectionGrid(SetKeptMember(table, "TimeSection"), &grid[0][0], rows, kSectionsPerDay);
}

void WriteSchedule(const void* record, const Field*, TextSink* out) {
  TimeSectionRecord grid[kWeekDays + 1][kSectionsPerDay];
  const int rows = DeviceRows(*static_cast<const RecordConfig*>(record), grid);
  WriteTimeSectionGridText(&grid[0][0], rows, kSectionsPerDay, out);
}

constexpr Field kRecordFields[] = {
    KOVA_F(RecordConfig, preRecord, "PreRecord", kInt),
    KOVA_F(RecordConfig, redundancy, "Redundancy", kBool),
    KOVA_CUSTOM(RecordConfig, sections, "TimeSection", ParseSchedule, PackSchedule)
        .PackText(WriteSchedule),
    // Written with a holiday row only; read by the schedule's step (intended).
    KOVA_F(RecordConfig, holidayEnable, "HolidayEnable", kBool)
        .Flag(KOVA_AT(RecordConfig, holidayValid))
        .PackOnly(),
    KOVA_F(RecordConfig, stream, "Stream", kUInt).NonNegative(),
};
constexpr FieldTable kRecordTable = KOVA_TABLE(kRecordFields);

bool ParseChannel(const Json::Value& element, const StepContext& ctx, unsigned char* record) {
  const int32_t asked = ToInt32(Member(ctx.root, "channel"));
  RecordConfig* r = reinterpret_cast<RecordConfig*>(record);
  r->channel = asked >= 0 ? asked : static_cast<int32_t>(ctx.index);
  r->layoutVersion = kLayoutVersion;
  ParseFields(element, record, kRecordFields);
  return true;
}

bool PackChannel(const unsigned char* record, Json::Value& out) {
  out = Json::Value(Json::objectValue);
  PackFields(record, out, kRecordFields);
  return true;
}

bool PackChannelText(const unsigned char* record, TextSink* out) {
  WriteMembersText(record, kRecordTable, out);
  return true;
}

}  // namespace

extern const ResponseFrame kRecordFrame =
    ResponseFrame::For<RecordConfig>(ParseChannel, Packing(PackChannel, PackChannelText))
        .Describe(WholeTable<RecordConfig, kRecordTable>::kField)
        .Walk(RecordWalk::kPerChannel)
        .ChannelAtRoot()
        .Short(ShortInput::kNull)
        .ArrayUnlessExactlyOne();

}  // namespace kova
