// "VideoAnalyseGlobal": the scene set-up of a channel: day/night periods,
// the scene with its depth of field, calibration areas and the multi-scene
// list. Several members come numbered ("TimePeriod1", "CalibrateArea2",
// "Scene3"): one slot per number.
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string>

#include "common/base/decimal.h"
#include "common/blocks/analyse_blocks.h"
#include "common/fields/field_table.h"
#include "common/fields/json_text.h"
#include "common/json/json.h"
#include "drivers/response_frame.h"
#include "kova/records/analyse.h"
#include "kova/records/analyse_setup.h"

namespace kova {

namespace {

using G = VideoAnalyseGlobalConfig;

// "Day" / "Night": ["hh:mm:ss", "hh:mm:ss"]. A time that does not give all
// three numbers is left as it was.
void ParseClockRange(const Json::Value& obj, unsigned char* record, const Field& f) {
  const Json::Value& v = Member(obj, f.key);
  ClockTime times[2];
  std::memcpy(times, record + f.offset, sizeof times);
  for (uint32_t i = 0; i < 2; ++i) {
    const char* text = TextInPlace(Element(v, i));
    ClockTime t;
    int32_t* fields[3] = {&t.hour, &t.minute, &t.second};
    if (ReadFixedClock(text, fields) ||
        std::sscanf(text, "%d:%d:%d", &t.hour, &t.minute, &t.second) == 3) {
      times[i] = t;
    }
  }
  std::memcpy(record + f.offset, times, sizeof times);
}

void PackClockRange(const unsigned char* record, Json::Value& obj, const Field& f) {
  ClockTime times[2];
  std::memcpy(times, record + f.offset, sizeof times);
  Json::Value& v = SetKeptMember(obj, f.key);
  v = Json::Value(Json::arrayValue);
  for (const ClockTime& t : times) {
    char text[kClockText];
    v.append(Json::Value(text, PutClock(text, t.hour, t.minute, t.second)));
  }
}

// The clock texts need no escapes: digits, signs and ':'.
void WriteClockRange(const void* record, const Field* f, TextSink* out) {
  ClockTime times[2];
  std::memcpy(times, static_cast<const unsigned char*>(record) + f->offset, sizeof times);
  out->Literal("[ ");
  for (uint32_t i = 0; i < 2; ++i) {
    if (i != 0) out->Literal(", ");
    char text[kClockText + 2];
    text[0] = '"';
    char* end = PutClock(text + 1, times[i].hour, times[i].minute, times[i].second);
    *end++ = '"';
    out->Put(text, static_cast<size_t>(end - text));
  }
  out->Literal(" ]");
}

#define KOVA_CLOCK_RANGE(member, key)                                       \
  KOVA_CUSTOM(DayNightPeriod, member, key, ParseClockRange, PackClockRange) \
      .PackText(WriteClockRange)

inline constexpr const char* kSwitchModeNames[] = {"ByColor", "ByBrightness"};
inline constexpr EnumNames kSwitchModes =
    EnumNames::Of(kSwitchModeNames).FirstValue(1).OmitUnnamed();

inline constexpr Field kPeriodFields[] = {
    KOVA_CLOCK_RANGE(day, "Day"),
    KOVA_CLOCK_RANGE(night, "Night"),
    KOVA_ENUM(DayNightPeriod, switchMode, "SwitchMode", kSwitchModes),
};

#undef KOVA_CLOCK_RANGE

inline constexpr const char* kDepthNames[] = {"Normal", "Far", "Middle", "Near"};
inline constexpr EnumNames kDepths = EnumNames::Of(kDepthNames);
inline constexpr Field kSceneTypeItem = KOVA_ITEM(char[16], kText);

inline constexpr Field kSceneFields[] = {
    KOVA_F(AnalyseScene, type, "Type", kText),
    KOVA_LIST(AnalyseScene, typeList, "TypeList", kSceneTypeItem)
        .Count(KOVA_AT(AnalyseScene, typeListCount), CountRule::kAll)
        .KeepSlots(),
    KOVA_F(AnalyseScene, ptzPresetId, "PtzPresetId", kInt),
    KOVA_F(AnalyseScene, jitter, "Jitter", kInt).Flag(KOVA_AT(AnalyseScene, jitterPresent)),
    KOVA_F(AnalyseScene, dejitter, "Dejitter", kBool).Flag(KOVA_AT(AnalyseScene, dejitterPresent)),
    KOVA_ENUM(AnalyseScene, depth, "Depth", kDepths),
    KOVA_F(AnalyseScene, customData, "CustomData", kTextRaw)
        .Flag(KOVA_AT(AnalyseScene, customDataPresent)),
    KOVA_JSON_TEXT(AnalyseScene, detail, "Detail").Flag(KOVA_AT(AnalyseScene, detailPresent)),
};

inline constexpr Field kStaffFields[] = {
    KOVA_TUPLE(CalibrateStaff, start, "Start", int32_t, 2),
    KOVA_TUPLE(CalibrateStaff, end, "End", int32_t, 2),
    KOVA_F(CalibrateStaff, length, "Length", kReal),
};

}  // namespace

KOVA_DESCRIBE(DayNightPeriod, kova::kPeriodFields)
KOVA_DESCRIBE(AnalyseScene, kova::kSceneFields)
KOVA_DESCRIBE(CalibrateStaff, kova::kStaffFields)

namespace {

inline constexpr Field kStaffItem = KOVA_ITEM_NESTED(CalibrateStaff);

inline constexpr Field kCalibrateAreaFields[] = {
    KOVA_LIST(CalibrateArea, staffs, "Staffs", kStaffItem)
        .Count(KOVA_AT(CalibrateArea, staffCount), CountRule::kAll)
        .KeepSlots(),
};

constexpr Field kGlobalFields[] = {
    KOVA_NESTED(G, timePeriod, "TimePeriod").Flag(KOVA_AT(G, timePeriodPresent)),
    KOVA_NESTED(G, scene, "Scene").Flag(KOVA_AT(G, scenePresent)),
};
constexpr FieldTable kGlobalTable = KOVA_TABLE(kGlobalFields);

// Objects under numbered keys, one slot each: slot i is `base` followed by
// first + i, except that number 0 is the bare `base`.
struct NumberedSlots {
  const char* base;
  uint32_t first;
  uint32_t slots;
  size_t at;  // offset of slot 0 in the record
  size_t slotSize;
  size_t flagsAt;    // offset of the uint8 flag of slot 0
  FieldTable table;  // of one slot
};

// `base` with `number` after it (nothing for 0), into a key of its own room.
struct NumberedKey {
  NumberedKey(const char* base, uint32_t number) {
    const size_t n = strnlen(base, sizeof text - kDecimalText - 1);
    std::memcpy(text, base, n);
    char* end = text + n;
    if (number != 0) end = PutDecimal(end, static_cast<int32_t>(number));
    *end = '\0';
  }
  const char* c_str() const { return text; }
  operator std::string() const { return text; }  // NOLINT: a key kept by a text object

  char text[32];
};

const NumberedSlots kNumbered[] = {
    {"CalibrateArea", 0, KOVA_GLOBAL_MAX_CALIBRATE_AREAS, offsetof(G, calibrateAreas),
     sizeof(CalibrateArea), offsetof(G, calibrateAreaPresent),
     FieldTable{kCalibrateAreaFields,
                sizeof kCalibrateAreaFields / sizeof kCalibrateAreaFields[0]}},
    {"Scene", 1, KOVA_GLOBAL_MAX_SCENES, offsetof(G, scenes), sizeof(AnalyseScene),
     offsetof(G, scenesPresent), Description<AnalyseScene>::table},
};

// The slot of `n` a member's name is written under, or -1 ("Scene01" and
// "Scene0" name no slot).
int32_t SlotOf(const NumberedSlots& n, const char* name, size_t length) {
  const size_t baseLength = std::strlen(n.base);
  if (length < baseLength || std::memcmp(name, n.base, baseLength) != 0) return -1;
  uint32_t number = 0;
  for (size_t i = baseLength; i < length; ++i) {
    if (name[i] < '0' || name[i] > '9' || number > n.first + n.slots) return -1;
    number = number * 10 + static_cast<uint32_t>(name[i] - '0');
  }
  if (number < n.first || number - n.first >= n.slots) return -1;
  const NumberedKey key(n.base, number);
  if (std::strlen(key.c_str()) != length || std::memcmp(key.c_str(), name, length) != 0) return -1;
  return static_cast<int32_t>(number - n.first);
}

// One walk over the members: a table holds few of the many numbered keys.
void ParseNumbered(const Json::Value& table, unsigned char* record) {
  ForEachMemberInPlace(table, [record](const char* name, size_t length, const Json::Value& v) {
    if (!v.isObject()) return true;
    for (const NumberedSlots& n : kNumbered) {
      const int32_t i = SlotOf(n, name, length);
      if (i < 0) continue;
      record[n.flagsAt + i] = 1;
      ParseFields(v, record + n.at + i * n.slotSize, n.table);
    }
    return true;
  });
}

// "TimePeriod1", "TimePeriod2", ... into the caller's array, while the
// numbers run on and the array has room.
void ParsePeriods(const Json::Value& table, G* g) {
  const uint32_t room =
      g->periods == nullptr ? 0 : CutCount(g->periodCount, KOVA_GLOBAL_MAX_PERIODS);
  uint32_t found = 0;
  while (found < room) {
    const Json::Value& v = Member(table, NumberedKey("TimePeriod", found + 1).c_str());
    if (v.isNull()) break;  // the first missing number ends the list
    DayNightPeriod p;
    std::memset(&p, 0, sizeof p);
    ParseFields(v, &p, kPeriodFields);
    std::memcpy(reinterpret_cast<unsigned char*>(g->periods) + found * sizeof p, &p, sizeof p);
    ++found;
  }
  g->periodCount = found;
}

// The record is worked in place: the frame hands it over aligned.
bool ParseGlobal(const Json::Value& table, const StepContext& /*ctx*/, unsigned char* record) {
  G* g = reinterpret_cast<G*>(record);
  // The caller's announcement of room for numbered periods survives the clearing.
  DayNightPeriod* periods = g->periods;
  const uint32_t room = g->periodCount;
  std::memset(record, 0, sizeof(G));
  g->periods = periods;
  g->periodCount = room;
  ParseFields(table, record, kGlobalFields);
  ParseNumbered(table, record);
  ParsePeriods(table, g);
  return true;
}

constexpr FieldTable kPeriodTable = KOVA_TABLE(kPeriodFields);

// Every numbered block the record holds, then the numbered periods of the
// caller's array (as far as the count, cut to the most there can be), each
// as `add(key, block, table)`. The record is read in place: the frame hands
// it over aligned.
template <typename Add>
void ForEachNumbered(const unsigned char* record, Add add) {
  for (const NumberedSlots& n : kNumbered) {
    for (uint32_t i = 0; i < n.slots; ++i) {
      if (record[n.flagsAt + i] != 0)
        add(NumberedKey(n.base, n.first + i), record + n.at + i * n.slotSize, n.table);
    }
  }
  const G& g = *reinterpret_cast<const G*>(record);
  const uint32_t periods =
      g.periods == nullptr ? 0 : CutCount(g.periodCount, KOVA_GLOBAL_MAX_PERIODS);
  for (uint32_t i = 0; i < periods; ++i) {
    add(NumberedKey("TimePeriod", i + 1),
        reinterpret_cast<const unsigned char*>(g.periods) + i * sizeof(DayNightPeriod),
        kPeriodTable);
  }
}

bool PackGlobal(const unsigned char* record, Json::Value& out) {
  out = Json::Value(Json::objectValue);
  PackFields(record, out, kGlobalFields);
  ForEachNumbered(
      record, [&out](const NumberedKey& key, const unsigned char* block, const FieldTable& table) {
        Json::Value& v = SetMember(out, key.c_str());
        v = Json::Value(Json::objectValue);
        PackFields(block, v, table);
      });
  return true;
}

bool PackGlobalText(const unsigned char* record, TextSink* out) {
  ObjectText table;
  table.Fields(record, kGlobalFields);
  ForEachNumbered(
      record, [&table](const NumberedKey& key, const unsigned char* block,
                       const FieldTable& described) { table.OwnMember(key, block, described); });
  table.WriteOrPack(out, [record](Json::Value& tree) { PackGlobal(record, tree); });
  return true;
}

// Only a "result" given and false fails.

}  // namespace

extern const ResponseFrame kVideoAnalyseGlobalFrame =
    KeptRecordFrame<G>(ParseGlobal, Packing(PackGlobal, PackGlobalText))
        .Result(ResultRule::kFalseFails)
        .Describe(WholeTable<G, kGlobalTable>::kField);

}  // namespace kova
