// "MotionDetect": video motion detection of one channel, with its region
// grid, its detection windows and the linkage block.
//
// The device packs each grid row into one integer, but not the same way in
// both places: the top-level "Region" puts cell c at bit c (32 cells), the
// "Region" of a "MotionDetectWindow" entry puts cell c at bit 21 - c (22
// cells). Both orders are intended and kept, as custom steps.
#include <algorithm>

#include "common/blocks/event_handler.h"
#include "common/fields/field_table.h"
#include "common/json/json.h"
#include "config/alarm/alarm_sources.h"
#include "drivers/response_frame.h"
#include "kova/records/alarm.h"

namespace kova {

namespace {

using R = MotionDetectRecord;

constexpr uint32_t kMaxRows = KOVA_MOTION_MAX_ROWS;
constexpr uint32_t kWindowCells = KOVA_MOTION_COLS;
constexpr uint32_t kMaxWindows = KOVA_MOTION_MAX_WINDOWS;

constexpr Field kWindowFields[] = {
    KOVA_F(MotionWindow, threshold, "Threshold", kInt),
    KOVA_F(MotionWindow, sensitive, "Sensitive", kInt),
    KOVA_TUPLE(MotionWindow, rect, "Window", int32_t, 4).MinItems(0),
};

constexpr Field kDetectWindowFields[] = {
    KOVA_F(MotionDetectWindow, id, "Id", kInt),
    KOVA_F(MotionDetectWindow, name, "Name", kText),
    KOVA_F(MotionDetectWindow, threshold, "Threshold", kInt),
    KOVA_F(MotionDetectWindow, sensitive, "Sensitive", kInt),
};
constexpr FieldTable kWindow = KOVA_TABLE(kWindowFields);
constexpr FieldTable kDetectWindow = KOVA_TABLE(kDetectWindowFields);

uint32_t CutWindows(int32_t present, int32_t count) {
  return present ? CutCount(count, kMaxWindows) : 0;
}

// Top-level grid: cell c of a row is bit c, 32 cells.
uint32_t ReadChannelGrid(const Json::Value& rows, uint8_t (*region)[32]) {
  ForEachElement(rows, kMaxRows, [region](uint32_t y, const Json::Value& row) {
    const uint32_t bits = ToUInt32(row);
    for (uint32_t c = 0; c < 32; ++c) region[y][c] = static_cast<uint8_t>((bits >> c) & 1u);
  });
  return std::min(Count(rows), kMaxRows);
}

// The integer of one grid row of `cells` cells: cell c is bit c, or bit
// cells - 1 - c when the most significant bit comes first.
uint32_t RowBits(const uint8_t* row, uint32_t cells, bool mostSignificantFirst) {
  uint32_t bits = 0;
  for (uint32_t c = 0; c < cells; ++c) {
    if (row[c] != 0) bits |= 1u << (mostSignificantFirst ? cells - 1 - c : c);
  }
  return bits;
}

void WriteChannelGrid(const uint8_t (*region)[32], uint32_t n, Json::Value& rows) {
  rows = Json::Value(Json::arrayValue);
  for (uint32_t y = 0; y < n; ++y) SetElement(rows, y) = Json::UInt(RowBits(region[y], 32, false));
}

// Window grid: cell c of a row is bit 21 - c, 22 cells.
uint32_t ReadWindowGrid(const Json::Value& rows, uint8_t (*region)[32]) {
  ForEachElement(rows, kMaxRows, [region](uint32_t y, const Json::Value& row) {
    const uint32_t bits = ToUInt32(row);
    for (uint32_t c = 0; c < kWindowCells; ++c) {
      region[y][c] = static_cast<uint8_t>((bits >> (kWindowCells - 1 - c)) & 1u);
    }
  });
  return std::min(Count(rows), kMaxRows);
}

void WriteWindowGrid(const uint8_t (*region)[32], uint32_t n, Json::Value& rows) {
  rows = Json::Value(Json::arrayValue);
  for (uint32_t y = 0; y < n; ++y) {
    SetElement(rows, y) = Json::UInt(RowBits(region[y], kWindowCells, true));
  }
}

// "MotionDetectWindow": one device entry may fill a window ("Window"), a
// detection window ("Region"), or both; each count is the number of entries
// once one entry has that form. Intended: the two lists share one array.
void ParseWindows(const Json::Value& obj, unsigned char* record, const Field& f) {
  const Json::Value& entries = Member(obj, f.key);
  if (!entries.isArray()) return;
  R* r = reinterpret_cast<R*>(record);
  const int32_t n = static_cast<int32_t>(std::min(Count(entries), kMaxWindows));
  ForEachElement(entries, kMaxWindows, [r, n](uint32_t i, const Json::Value& e) {
    const Json::Value& region = Member(e, "Region");
    if (region.isArray()) {
      r->detectWindowPresent = 1;
      r->detectWindowCount = n;
      MotionDetectWindow& w = r->detectWindows[i];
      ParseFields(e, &w, kDetectWindow);
      w.rows = static_cast<int32_t>(ReadWindowGrid(region, w.region));
      w.cols = static_cast<int32_t>(kWindowCells);
    }
    if (!Member(e, "Window").isNull()) {
      r->windowPresent = 1;
      r->windowCount = n;
      ParseFields(e, &r->windows[i], kWindow);
    }
  });
}

void PackWindows(const unsigned char* record, Json::Value& obj, const Field& f) {
  const R& r = *reinterpret_cast<const R*>(record);
  if (!r.windowPresent && !r.detectWindowPresent) return;
  Json::Value& entries = SetKeptMember(obj, f.key);
  entries = Json::Value(Json::arrayValue);
  const uint32_t nw = CutWindows(r.windowPresent, r.windowCount);
  const uint32_t nd = CutWindows(r.detectWindowPresent, r.detectWindowCount);
  for (uint32_t i = 0; i < std::max(nw, nd); ++i) {
    Json::Value& e = SetElement(entries, i);
    e = Json::Value(Json::objectValue);
    if (i < nw) PackFields(&r.windows[i], e, kWindow);
    if (i < nd) {
      const MotionDetectWindow& w = r.detectWindows[i];
      PackFields(&w, e, kDetectWindow);
      WriteWindowGrid(w.region, CutCount(w.rows, kMaxRows), SetKeptMember(e, "Region"));
    }
  }
}

void ParseRegion(const Json::Value& obj, unsigned char* record, const Field& f) {
  const Json::Value& region = Member(obj, f.key);
  if (!region.isArray()) return;
  R* r = reinterpret_cast<R*>(record);
  r->rows = static_cast<int32_t>(ReadChannelGrid(region, r->region));
  r->cols = static_cast<int32_t>(kWindowCells);
}

void PackRegion(const unsigned char* record, Json::Value& obj, const Field& f) {
  const R& r = *reinterpret_cast<const R*>(record);
  const uint32_t rows = CutCount(r.rows, kMaxRows);
  if (rows > 0) WriteChannelGrid(r.region, rows, SetKeptMember(obj, f.key));
}

constexpr Field kFields[] = {
    KOVA_F(R, enable, "Enable", kBool),
    KOVA_F(R, level, "Level", kInt).Flag(KOVA_AT(R, levelPresent)),
    KOVA_F(R, volumeRatio, "VolumeRatio", kInt).Flag(KOVA_AT(R, volumeRatioPresent)),
    KOVA_F(R, subRatio, "SubRatio", kInt).Flag(KOVA_AT(R, subRatioPresent)),
    KOVA_CUSTOM(R, region, "Region", ParseRegion, PackRegion),
    // Read after "Region", they override the size it set; never packed.
    KOVA_F(R, rows, "Row", kInt).ParseOnly(),
    KOVA_F(R, cols, "Col", kInt).ParseOnly(),
    KOVA_CUSTOM(R, windows, "MotionDetectWindow", ParseWindows, PackWindows),
    KOVA_LINKAGE(R, eventHandler).Week(KOVA_SCHEDULE_AT(R, week)).AlwaysRead(),
};
constexpr FieldTable kTable = KOVA_TABLE(kFields);

bool ParseMotion(const Json::Value& table, const StepContext& ctx, unsigned char* record) {
  reinterpret_cast<R*>(record)->parsed = 1;  // the device's text was read
  return ParseTableStep<kTable>(table, ctx, record);
}

// Unlike the other alarm sources, "result" must be true, and a null table
// gives an all-zero record.

}  // namespace

extern const ResponseFrame kMotionDetectFrame =
    AlarmSourceFrame<R>(ParseMotion, TablePack<kTable>())
        .Describe(WholeTable<R, kTable>::kField)
        .Result(ResultRule::kMustBeTrue)
        .OnNullTable(NullTable::kAllZeroRecord);

}  // namespace kova
