// kova show / kova layout / kova events --show: the rows come from the
// library's own descriptions (common/fields/field_view.h), so a new
// configuration shows here without a line of tool code.
#include "show.h"

#include <json/value.h>
#include <json/writer.h>

#include <cstddef>
#include <cstdio>
#include <cstring>

#include "api/dispatch.h"
#include "common/base/ascii.h"
#include "common/fields/field_view.h"
#include "common/fields/fields.h"
#include "config/analyse/rule_config.h"
#include "config/analyse/rule_types.h"
#include "events/event_records.h"
#include "kova/records/analyse.h"
#include "kova/records/flat.h"

namespace kova {
extern const ResponseFrame kVideoAnalyseRuleFrame;
}  // namespace kova

namespace {

using kova::ByteRange;
using kova::RecordView;
using kova::RowRole;
using kova::ViewRow;

// Undescribed bytes printed in full up to this many; longer runs are cut
// unless --all.
constexpr uint32_t kHexShown = 32;

bool Folded(const ViewRow& r, const ShowOptions& o) {
  if (o.all) return false;
  return r.unused || !r.present || (r.role == RowRole::kValue && r.zero);
}

std::string RangeHex(const unsigned char* bytes, const ByteRange& b, const ShowOptions& o) {
  bool zero = true;
  for (uint32_t i = 0; i < b.size; ++i) zero = zero && bytes[b.offset + i] == 0;
  if (zero && b.size > 8) return "all zero";
  if (o.all || b.size <= kHexShown) return kova::HexBytes(bytes + b.offset, b.size);
  return kova::HexBytes(bytes + b.offset, kHexShown) + " ... (" +
         std::to_string(b.size - kHexShown) + " more)";
}

void PrintText(const RecordView& v, const unsigned char* bytes, const ShowOptions& o) {
  uint32_t folded = 0;
  for (const ViewRow& r : v.rows) {
    const bool allocated = r.role == RowRole::kList && r.field->allocated;
    if (r.role != RowRole::kValue && !allocated) continue;
    if (Folded(r, o)) {
      ++folded;
      continue;
    }
    std::string value = r.text;
    if (allocated) value = "(" + std::to_string(r.entries) + " entries held elsewhere)";
    if (r.hasFlag) value += r.present ? "  [present]" : "  [absent]";
    std::printf("  %6u  %-40s %-30s %s\n", r.offset, r.member.c_str(), value.c_str(),
                r.key.c_str());
  }
  for (const ByteRange& b : v.undescribed) {
    std::printf("  %6u  undescribed %u..%u (%u bytes): %s\n", b.offset, b.offset,
                b.offset + b.size - 1, b.size, RangeHex(bytes, b, o).c_str());
  }
  if (folded != 0) {
    std::printf("  (%u fields at zero, absent or beyond a list's count folded; --all shows them)\n",
                folded);
  }
}

Json::Value ToJson(const RecordView& v, const unsigned char* bytes, const ShowOptions& o) {
  Json::Value out(Json::objectValue);
  Json::Value& fields = out["fields"] = Json::Value(Json::objectValue);
  for (const ViewRow& r : v.rows) {
    if (r.role != RowRole::kValue || Folded(r, o)) continue;
    Json::Value& f = fields[r.member];
    f["value"] = r.value;
    if (r.field->kind == kova::FieldKind::kEnum && r.text.find(" (") != std::string::npos) {
      f["name"] = r.text.substr(r.text.find(" (") + 2, r.text.size() - r.text.find(" (") - 3);
    }
    f["key"] = r.key;
    f["offset"] = r.offset;
    f["size"] = r.size;
    if (r.hasFlag) f["present"] = r.present;
  }
  Json::Value& un = out["undescribed"] = Json::Value(Json::arrayValue);
  for (const ByteRange& b : v.undescribed) {
    Json::Value& u = un.append(Json::Value(Json::objectValue));
    u["offset"] = b.offset;
    u["size"] = b.size;
    u["hex"] = kova::HexBytes(bytes + b.offset, b.size);
  }
  return out;
}

void PrintJson(const Json::Value& v) {
  Json::StreamWriterBuilder builder;
  builder["indentation"] = "  ";
  builder["emitUTF8"] = true;
  std::printf("%s\n", Json::writeString(builder, v).c_str());
}

// The description of a rule body: its head, then its "Config" keys, both
// over the whole record.
struct RuleBodyDescription {
  kova::Field parts[2];
  kova::FieldTable table;
  kova::Field whole;

  RuleBodyDescription(const RuleBodyDescription&) = delete;
  explicit RuleBodyDescription(const kova::RuleType& t)
      : parts{kova::MakeGroup(nullptr, t.recordSize, t.head),
              kova::MakeGroup("Config", t.recordSize, &t.config)},
        table{parts, 2},
        whole(kova::MakeGroup(nullptr, t.recordSize, &table)) {}
};

// The rule entries {RuleEntryHeader, rule record} in `rules`.
void ShowRules(const std::vector<unsigned char>& record, const std::vector<unsigned char>& rules,
               const ShowOptions& o, Json::Value* json) {
  VideoAnalyseRuleList list;
  std::memcpy(&list, record.data(), sizeof list);
  if (!o.json) std::printf("rule list: %u rules\n", list.ruleCount);
  size_t at = 0;
  for (uint32_t i = 0; i < list.ruleCount && rules.size() - at >= sizeof(RuleEntryHeader); ++i) {
    RuleEntryHeader header;
    std::memcpy(&header, rules.data() + at, sizeof header);
    at += sizeof header;
    if (rules.size() - at < header.bodySize) break;
    const char* typeName = kova::RuleTypeName(header.ruleType);
    const kova::RuleType* type = kova::FindRuleType(header.ruleType);
    Json::Value entry(Json::objectValue);
    entry["ruleType"] = header.ruleType;
    entry["type"] = typeName != nullptr ? typeName : "";
    entry["bodySize"] = header.bodySize;
    entry["sceneClass"] = header.sceneClass;
    if (!o.json) {
      std::printf("rule %u: ruleType %u (%s) bodySize %u sceneClass %u\n", i, header.ruleType,
                  typeName != nullptr ? typeName : "-", header.bodySize, header.sceneClass);
    }
    const unsigned char* body = rules.data() + at;
    const bool described = type != nullptr && type->recordSize == header.bodySize;
    // Both sides name a rule type that outlives the description, which
    // points into it (a temporary here would leave it pointing at nothing).
    static const kova::RuleType kUndescribed{};
    const RuleBodyDescription description(described ? *type : kUndescribed);
    const RecordView v =
        kova::ViewOf(described ? &description.whole : nullptr, body, header.bodySize);
    if (o.json) {
      entry["record"] = ToJson(v, body, o);
      json->append(entry);
    } else {
      PrintText(v, body, o);
      if (described) {
        std::printf("  (the linkage part at %u is written by hand: EventHandler, PtzPresetId)\n",
                    type->linkageOffset);
      }
    }
    at += header.bodySize;
  }
}

const kova::ResponseFrame* ParseFrameOf(const std::string& name) {
  const int i = kova::FindParseName(name.c_str());
  return i < 0 ? nullptr : kova::kParseNames[i].frame;
}

const kova::ResponseFrame* AnyFrameOf(const std::string& name, bool* known) {
  const int i = kova::FindParseName(name.c_str());
  const int k = kova::FindPackName(name.c_str());
  *known = i >= 0 || k >= 0;
  if (i >= 0 && kova::kParseNames[i].frame != nullptr) return kova::kParseNames[i].frame;
  if (k >= 0 && kova::kPackNames[k].frame != nullptr) return kova::kPackNames[k].frame;
  return nullptr;
}

const char* WalkName(kova::RecordWalk w) {
  switch (w) {
    case kova::RecordWalk::kOne:
      return "one record";
    case kova::RecordWalk::kPerChannel:
      return "one record per channel";
    case kova::RecordWalk::kCallerSized:
      return "one record per channel, sized by the caller";
    default:
      return "one record per object member";
  }
}

// The table drivers' settings, read back from the frame they made.
bool DriverSettingsOf(const kova::ResponseFrame& f, std::string* text) {
  if (f.returned != kova::ReturnedLength::kAddBytes || !f.skipNullElements) return false;
  const bool arrayAllowed = f.walk == kova::RecordWalk::kPerChannel;
  *text = "driver settings: depth " + std::to_string(arrayAllowed ? f.arrayDepth - 1 : 0) +
          ", parse array " + (arrayAllowed ? "allowed" : "refused") + ", zero-fill " +
          (f.clearing == kova::Clearing::kWholeBuffer ? "yes" : "no") + ", pack array " +
          (f.packWalk == kova::PackWalk::kPerChannel ? "allowed" : "refused");
  return true;
}

// Whether `name` reads into a flat document: "flat:" any name, or a name
// whose record is the flat list.
bool ReadsFlat(const std::string& name) {
  if (name.size() > 5 && kova::AsciiEqualNoCase(name.substr(0, 5), "flat:")) return true;
  return kova::ParseReadsFlat(kova::FindParseName(name.c_str()));
}

// A text of the local code page, in UTF-8 for the terminal.
std::string Utf8(const char* local) {
  const int32_t n = static_cast<int32_t>(std::strlen(local));
  if (n == 0) return std::string();
  std::string out(static_cast<size_t>(n) * 4 + 1, '\0');
  const int32_t written = kova::AnsiToUtf8(local, n, &out[0], static_cast<int32_t>(out.size()));
  out.resize(written > 0 ? static_cast<size_t>(written) : 0);
  return out;
}

// A flat document: its counts, then each stored leaf as path = value.
int ShowFlat(const std::vector<unsigned char>& record, const ShowOptions& o) {
  FlatDocument head;
  std::memcpy(&head, record.data(), offsetof(FlatDocument, values));
  const size_t capacity = (record.size() - offsetof(FlatDocument, values)) / sizeof(FlatValue);
  const uint32_t count = head.count < capacity ? head.count : static_cast<uint32_t>(capacity);
  Json::Value json(Json::objectValue);
  json["count"] = head.count;
  json["leafCount"] = head.leafCount;
  Json::Value& values = json["values"] = Json::Value(Json::arrayValue);
  if (!o.json) std::printf("flat document: %u values of %u leaves\n", head.count, head.leafCount);
  static const char* const kTypes[] = {"null", "bool", "int",         "uint",
                                       "real", "text", "empty array", "empty object"};
  for (uint32_t i = 0; i < count; ++i) {
    FlatValue v;
    std::memcpy(&v, record.data() + offsetof(FlatDocument, values) + i * sizeof(FlatValue),
                sizeof v);
    v.path[sizeof v.path - 1] = '\0';
    v.text[sizeof v.text - 1] = '\0';
    std::string value;
    switch (v.type) {
      case KOVA_FLAT_BOOL:
        value = v.integer != 0 ? "true" : "false";
        break;
      case KOVA_FLAT_INT:
        value = std::to_string(v.integer);
        break;
      case KOVA_FLAT_UINT:
        value = std::to_string(static_cast<uint64_t>(v.integer));
        break;
      case KOVA_FLAT_REAL:
        value = std::to_string(v.real);
        break;
      case KOVA_FLAT_TEXT:
        value = "\"" + Utf8(v.text) + "\"" + (v.cut != 0 ? " (cut)" : "");
        break;
      default:
        value = v.type < 8 ? kTypes[v.type] : "?";
        break;
    }
    if (o.json) {
      Json::Value& e = values.append(Json::Value(Json::objectValue));
      e["path"] = v.path;
      e["type"] = v.type < 8 ? kTypes[v.type] : "?";
      e["value"] = value;
    } else {
      std::printf("  %-60s %s\n", v.path[0] != '\0' ? v.path : "(the payload)", value.c_str());
    }
  }
  if (o.json) PrintJson(json);
  return 0;
}

}  // namespace

int ShowRecords(const std::string& name, const std::vector<unsigned char>& record, uint32_t filled,
                const std::vector<unsigned char>& rules, const ShowOptions& o) {
  if (ReadsFlat(name) && record.size() >= sizeof(FlatDocument)) return ShowFlat(record, o);
  const kova::ResponseFrame* frame = ParseFrameOf(name);
  if (frame == nullptr) {
    std::fprintf(stderr, "kova: %s is not built for parse\n", name.c_str());
    return 1;
  }
  Json::Value json(Json::objectValue);
  json["name"] = name;
  if (frame == &kova::kVideoAnalyseRuleFrame && !rules.empty()) {
    Json::Value& list = json["rules"] = Json::Value(Json::arrayValue);
    ShowRules(record, rules, o, &list);
    if (o.json) PrintJson(json);
    return 0;
  }
  const uint32_t size = frame->recordSize;
  uint32_t count = size == 0 ? 0 : filled / size;
  if (count == 0 && filled > 0) count = 1;
  Json::Value& records = json["records"] = Json::Value(Json::arrayValue);
  for (uint32_t i = 0; i < count && (i + 1) * static_cast<size_t>(size) <= record.size(); ++i) {
    const unsigned char* bytes = record.data() + static_cast<size_t>(i) * size;
    const RecordView v = kova::ViewOf(frame->description, bytes, size);
    if (o.json) {
      records.append(ToJson(v, bytes, o));
    } else {
      std::printf("record %u (%u bytes)\n", i, size);
      PrintText(v, bytes, o);
    }
  }
  if (o.json) PrintJson(json);
  return 0;
}

int ShowLayout(const std::string& name, const ShowOptions& o) {
  if (ReadsFlat(name)) {
    // The flat document runs on to the end of the caller's buffer.
    std::printf("%s: a flat document, 8 + count x %zu bytes (as many values as the buffer holds)\n",
                name.c_str(), sizeof(FlatValue));
    std::printf("  %6zu %6zu  uint32_t  count\n", offsetof(FlatDocument, count), sizeof(uint32_t));
    std::printf("  %6zu %6zu  uint32_t  leafCount\n", offsetof(FlatDocument, leafCount),
                sizeof(uint32_t));
    std::printf(
        "  %6zu %6zu  FlatValue values[i]: path[%d] %zu, type %zu, cut %zu, integer %zu, "
        "real %zu, text[%d] %zu\n",
        offsetof(FlatDocument, values), sizeof(FlatValue), KOVA_FLAT_PATH_SIZE,
        offsetof(FlatValue, path), offsetof(FlatValue, type), offsetof(FlatValue, cut),
        offsetof(FlatValue, integer), offsetof(FlatValue, real), KOVA_FLAT_TEXT_SIZE,
        offsetof(FlatValue, text));
    return 0;
  }
  bool known = false;
  const kova::ResponseFrame* frame = AnyFrameOf(name, &known);
  if (frame == nullptr) {
    std::fprintf(stderr, "kova: %s %s\n", name.c_str(),
                 known ? "is not built yet" : "is not a configuration name");
    return 1;
  }
  const RecordView v = kova::LayoutOf(frame->description, frame->recordSize);
  std::string driver;
  const bool isDriver = DriverSettingsOf(*frame, &driver);
  if (o.json) {
    Json::Value json(Json::objectValue);
    json["name"] = name;
    json["size"] = frame->recordSize;
    json["alignment"] = frame->recordAlign;
    if (isDriver) json["driver"] = driver;
    Json::Value& fields = json["fields"] = Json::Value(Json::arrayValue);
    for (const ViewRow& r : v.rows) {
      Json::Value& f = fields.append(Json::Value(Json::objectValue));
      f["member"] = r.member;
      f["key"] = r.key;
      f["offset"] = r.offset;
      f["size"] = r.size;
      f["type"] = r.type;
      if (r.hasFlag) f["flagOffset"] = r.flagOffset;
    }
    Json::Value& un = json["undescribed"] = Json::Value(Json::arrayValue);
    for (const ByteRange& b : v.undescribed) {
      Json::Value& u = un.append(Json::Value(Json::objectValue));
      u["offset"] = b.offset;
      u["size"] = b.size;
    }
    PrintJson(json);
    return 0;
  }
  std::printf("%s: record %u bytes, alignment %u, %s\n", name.c_str(), frame->recordSize,
              frame->recordAlign, WalkName(frame->walk));
  if (isDriver) std::printf("%s\n", driver.c_str());
  std::printf("  %6s %6s  %-28s %-40s %s\n", "offset", "size", "type", "member", "key");
  for (const ViewRow& r : v.rows) {
    const std::string member = std::string(2 * static_cast<size_t>(r.depth), ' ') + r.member;
    const std::string flag =
        r.hasFlag ? "  (presence flag at " + std::to_string(r.flagOffset) + ")" : "";
    std::printf("  %6u %6u  %-28s %-40s %s%s\n", r.offset, r.size, r.type.c_str(), member.c_str(),
                r.key.c_str(), flag.c_str());
  }
  for (const ByteRange& b : v.undescribed) {
    std::printf("  %6u %6u  undescribed\n", b.offset, b.size);
  }
  if (frame == &kova::kVideoAnalyseRuleFrame) {
    std::printf(
        "each rule entry: RuleEntryHeader (%zu bytes: ruleType, bodySize, sceneClass), "
        "then the type's record:\n",
        sizeof(RuleEntryHeader));
    for (uint32_t i = 0; i < kova::kRuleTypeRowCount; ++i) {
      const kova::RuleTypeRow& row = kova::kRuleTypeRows[i];
      // Each code once, under its first name: the names that share it share its record.
      if (row.record == nullptr || kova::FindRuleType(row.code) != row.record ||
          std::strcmp(kova::RuleTypeName(row.code), row.name) != 0) {
        continue;
      }
      std::printf("rule type %u %s: %u bytes\n", row.code, row.name, row.record->recordSize);
      const RuleBodyDescription description(*row.record);
      const RecordView body = kova::LayoutOf(&description.whole, row.record->recordSize);
      for (const ViewRow& r : body.rows) {
        const std::string member = std::string(2 * static_cast<size_t>(r.depth), ' ') + r.member;
        std::printf("  %6u %6u  %-28s %-40s %s\n", r.offset, r.size, r.type.c_str(), member.c_str(),
                    r.key.c_str());
      }
      for (const ByteRange& b : body.undescribed) {
        std::printf("  %6u %6u  undescribed\n", b.offset, b.size);
      }
    }
  }
  return 0;
}

void ShowEventRecord(uint32_t code, const void* info, uint32_t size, const ShowOptions& o) {
  if (info == nullptr) return;
  const kova::EventRecordKind& kind = kova::EventRecordOf(code);
  const bool described = kind.table.count != 0 && kind.size == size;
  const kova::Field whole = kova::MakeGroup(nullptr, kind.size, &kind.table);
  const RecordView v =
      kova::ViewOf(described ? &whole : nullptr, static_cast<const unsigned char*>(info), size);
  if (o.json) {
    PrintJson(ToJson(v, static_cast<const unsigned char*>(info), o));
  } else {
    PrintText(v, static_cast<const unsigned char*>(info), o);
  }
}
