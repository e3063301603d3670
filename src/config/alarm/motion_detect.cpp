// "MotionDetect": video motion detection of one channel, with its region
// grid, its detection windows and the linkage block.
//
// The device packs each grid row into one integer, but not the same way in
// both places: the top-level "Region" puts cell c at bit c (32 cells), the
// "Region" of a "MotionDetectWindow" entry puts cell c at bit 21 - c (22
// cells). Both orders are intended and kept.
#include <algorithm>

#include "common/fields/field_table.h"
#include "common/json/json.h"
#include "config/alarm/alarm_frame.h"
#include "config/alarm/translators.h"

namespace kova {

namespace {

constexpr uint32_t kMaxRows = KOVA_MOTION_MAX_ROWS;
constexpr uint32_t kWindowCells = KOVA_MOTION_COLS;
constexpr uint32_t kMaxWindows = KOVA_MOTION_MAX_WINDOWS;

const Field kFields[] = {
    KOVA_F(MotionDetectRecord, enable, "Enable", kBool),
    KOVA_F(MotionDetectRecord, level, "Level", kInt).Flag(KOVA_AT(MotionDetectRecord, levelPresent)),
    KOVA_F(MotionDetectRecord, volumeRatio, "VolumeRatio", kInt).Flag(KOVA_AT(MotionDetectRecord, volumeRatioPresent)),
    KOVA_F(MotionDetectRecord, subRatio, "SubRatio", kInt).Flag(KOVA_AT(MotionDetectRecord, subRatioPresent)),
};

const Field kWindowFields[] = {
    KOVA_F(MotionWindow, threshold, "Threshold", kInt),
    KOVA_F(MotionWindow, sensitive, "Sensitive", kInt),
};

const Field kDetectWindowFields[] = {
    KOVA_F(MotionDetectWindow, id, "Id", kInt),
    KOVA_F(MotionDetectWindow, name, "Name", kText),
    KOVA_F(MotionDetectWindow, threshold, "Threshold", kInt),
    KOVA_F(MotionDetectWindow, sensitive, "Sensitive", kInt),
};

// A row count from the caller's record, cut to the grid.
uint32_t CutRows(int32_t rows) {
  return rows < 0 ? 0 : std::min<uint32_t>(static_cast<uint32_t>(rows), kMaxRows);
}

uint32_t CutWindows(int32_t present, int32_t count) {
  if (!present || count < 0) return 0;
  return std::min<uint32_t>(static_cast<uint32_t>(count), kMaxWindows);
}

// Top-level grid: cell c of a row is bit c, 32 cells.
uint32_t ReadChannelGrid(const Json::Value& rows, uint8_t (*region)[32]) {
  const uint32_t n = std::min(Count(rows), kMaxRows);
  for (uint32_t y = 0; y < n; ++y) {
    const uint32_t bits = ToUInt32(Element(rows, y));
    for (uint32_t c = 0; c < 32; ++c) region[y][c] = static_cast<uint8_t>((bits >> c) & 1u);
  }
  return n;
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
  const uint32_t n = std::min(Count(rows), kMaxRows);
  for (uint32_t y = 0; y < n; ++y) {
    const uint32_t bits = ToUInt32(Element(rows, y));
    for (uint32_t c = 0; c < kWindowCells; ++c) {
      region[y][c] = static_cast<uint8_t>((bits >> (kWindowCells - 1 - c)) & 1u);
    }
  }
  return n;
}

void WriteWindowGrid(const uint8_t (*region)[32], uint32_t n, Json::Value& rows) {
  rows = Json::Value(Json::arrayValue);
  for (uint32_t y = 0; y < n; ++y) {
    SetElement(rows, y) = Json::UInt(RowBits(region[y], kWindowCells, true));
  }
}

void ReadWindows(const Json::Value& entries, MotionDetectRecord* r) {
  if (!entries.isArray()) return;
  const int32_t n = static_cast<int32_t>(std::min(Count(entries), kMaxWindows));
  for (int32_t i = 0; i < n; ++i) {
    const Json::Value& e = Element(entries, static_cast<uint64_t>(i));
    const Json::Value& region = Member(e, "Region");
    if (region.isArray()) {
      r->detectWindowPresent = 1;
      r->detectWindowCount = n;
      MotionDetectWindow& w = r->detectWindows[i];
      ParseFields(e, &w, kDetectWindowFields);
      w.rows = static_cast<int32_t>(ReadWindowGrid(region, w.region));
      w.cols = static_cast<int32_t>(kWindowCells);
    }
    const Json::Value& rect = Member(e, "Window");
    if (!rect.isNull()) {
      r->windowPresent = 1;
      r->windowCount = n;
      MotionWindow& w = r->windows[i];
      ParseFields(e, &w, kWindowFields);
      for (uint32_t k = 0; k < 4; ++k) w.rect[k] = ToInt32(Element(rect, k));
    }
  }
}

void WriteWindows(const MotionDetectRecord& r, Json::Value& entries) {
  entries = Json::Value(Json::arrayValue);
  const uint32_t nw = CutWindows(r.windowPresent, r.windowCount);
  const uint32_t nd = CutWindows(r.detectWindowPresent, r.detectWindowCount);
  for (uint32_t i = 0; i < std::max(nw, nd); ++i) {
    Json::Value& e = SetElement(entries, i);
    e = Json::Value(Json::objectValue);
    if (i < nw) {
      const MotionWindow& w = r.windows[i];
      PackFields(&w, e, kWindowFields);
      Json::Value& rect = SetMember(e, "Window");
      for (uint32_t k = 0; k < 4; ++k) SetElement(rect, k) = w.rect[k];
    }
    if (i < nd) {
      const MotionDetectWindow& w = r.detectWindows[i];
      PackFields(&w, e, kDetectWindowFields);
      WriteWindowGrid(w.region, CutRows(w.rows), SetMember(e, "Region"));
    }
  }
}

void Fill(const Json::Value& /*params*/, const Json::Value& table, MotionDetectRecord* r) {
  r->parsed = 1;
  ParseFields(table, r, kFields);
  const Json::Value& region = Member(table, "Region");
  if (region.isArray()) {
    r->rows = static_cast<int32_t>(ReadChannelGrid(region, r->region));
    r->cols = static_cast<int32_t>(kWindowCells);
  }
  const Json::Value& row = Member(table, "Row");
  if (!row.isNull()) r->rows = ToInt32(row);
  const Json::Value& col = Member(table, "Col");
  if (!col.isNull()) r->cols = ToInt32(col);
  ReadWindows(Member(table, "MotionDetectWindow"), r);
  ParseLinkageWithWeek(table, &r->eventHandler, &r->week);
}

void Write(const MotionDetectRecord& r, Json::Value& table) {
  PackFields(&r, table, kFields);
  const uint32_t rows = CutRows(r.rows);
  if (rows > 0) WriteChannelGrid(r.region, rows, SetMember(table, "Region"));
  if (r.windowPresent || r.detectWindowPresent) {
    WriteWindows(r, SetMember(table, "MotionDetectWindow"));
  }
  PackLinkage(r.eventHandler, &r.week, table);
}

}  // namespace

int ParseMotionDetect(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen) {
  return ParseAlarmRecord<MotionDetectRecord>(jsonText, outBuf, outLen, retLen,
                                              TableRule::kResultZeroOnNull, Fill);
}

int PackMotionDetect(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen) {
  return PackAlarmRecord<MotionDetectRecord>(inBuf, inLen, outJson, outLen, Write);
}

}  // namespace kova
