#include "common/blocks/event_handler_lists.h"

#include <cstring>

#include "common/fields/field_table.h"
#include "common/fields/fields.h"
#include "common/json/json.h"

namespace kova {

namespace {

const char* const kPtzLinkTypeNames[] = {"None", "Preset", "Tour", "Pattern"};
const EnumNames kPtzLinkTypes = {kPtzLinkTypeNames, 4, false, 0, true, 0, true};

// The split-mode names belong to the video-output configuration, which has
// no table yet: every name is unknown (split left as it was) and no value
// has a name (nothing written).
const EnumNames kSplitModes = {nullptr, 0, false, 0, false, 0, true};

// Door operations, compared exactly (letter case matters to the device).
const char* const kDoorOperationNames[] = {"Auto", "Open", "Close", "OpenAlways", "CloseAlways"};
constexpr int32_t kDoorNone = 0;
constexpr int32_t kDoorLast = 5;

constexpr uint32_t kPtzLinkItems = 5;

// Reads an array of exactly `n` integers into `out`; any other value (an
// array of another length included) leaves `out` as it was.
void ReadIntArray(const Json::Value& v, uint32_t n, int32_t* out) {
  if (!v.isArray() || Count(v) != n) return;
  for (uint32_t i = 0; i < n; ++i) out[i] = ToInt32(Element(v, i));
}

Json::Value IntArray(const int32_t* values, uint32_t n) {
  Json::Value out(Json::arrayValue);
  for (uint32_t i = 0; i < n; ++i) out.append(Json::Value(values[i]));
  return out;
}

}  // namespace

uint32_t EntriesToRecordEnd(size_t offset, size_t entrySize) {
  return static_cast<uint32_t>((sizeof(EventHandlerRecord) - offset) / entrySize);
}

uint32_t CutCount(int32_t count, uint32_t capacity) {
  if (count <= 0) return 0;
  return static_cast<uint32_t>(count) < capacity ? static_cast<uint32_t>(count) : capacity;
}

void ParsePtzLinks(const Json::Value& links, EventHandlerRecord* r) {
  r->present[KOVA_EH_PTZ_LINK] = 1;
  const uint32_t n = CutCount(static_cast<int32_t>(Count(links)), KOVA_EH_MAX_PTZ_LINKS);
  r->ptzLinkCount = static_cast<int32_t>(n);
  for (uint32_t i = 0; i < n; ++i) {
    const Json::Value& item = Element(links, i);
    // An entry that is not exactly five items stays zero but still counts.
    if (!item.isArray() || Count(item) != kPtzLinkItems) continue;
    PtzLinkEntry& e = r->ptzLinks[i];
    int32_t type = KOVA_PTZ_LINK_NONE;
    if (!EnumValue(kPtzLinkTypes, Element(item, 0), &type)) type = KOVA_PTZ_LINK_NONE;
    e.type = type;
    for (uint32_t k = 0; k < 4; ++k) e.values[k] = ToInt32(Element(item, k + 1));
  }
}

void PackPtzLinks(const EventHandlerRecord& r, Json::Value& obj) {
  // The count is deliberately not cut to 256 when packing: entries beyond
  // the array are taken from the bytes that follow it, but never from
  // beyond the end of the record.
  const uint32_t n = CutCount(r.ptzLinkCount, EntriesToRecordEnd(offsetof(EventHandlerRecord, ptzLinks),
                                                                sizeof(PtzLinkEntry)));
  if (n == 0) return;
  Json::Value& links = SetMember(obj, "PtzLink");
  links = Json::Value(Json::arrayValue);
  const unsigned char* base = reinterpret_cast<const unsigned char*>(&r);
  for (uint32_t i = 0; i < n; ++i) {
    PtzLinkEntry e;
    std::memcpy(&e, base + offsetof(EventHandlerRecord, ptzLinks) + i * sizeof e, sizeof e);
    const char* name = EnumName(kPtzLinkTypes, e.type);
    if (name == nullptr) continue;  // an unknown type leaves null at its index
    Json::Value& item = SetElement(links, i);
    SetElement(item, 0) = name;
    for (uint32_t k = 0; k < 4; ++k) SetElement(item, k + 1) = e.values[k];
  }
}

void ParseTitles(const Json::Value& list, TitleOverlay* titles, int32_t* count) {
  const uint32_t n = CutCount(static_cast<int32_t>(Count(list)), KOVA_EH_MAX_TITLES);
  *count = static_cast<int32_t>(n);
  for (uint32_t i = 0; i < n; ++i) {
    const Json::Value& item = Element(list, i);
    TitleOverlay& t = titles[i];
    GetJsonString(Member(item, "Text"), t.text, sizeof t.text, 1);
    ReadIntArray(Member(item, "Point"), 2, t.point);
    int32_t size[2] = {0, 0};
    const Json::Value& sizeValue = Member(item, "Size");
    if (sizeValue.isArray() && Count(sizeValue) == 2) {
      ReadIntArray(sizeValue, 2, size);  // read as integers, kept as floats
      t.size[0] = static_cast<float>(size[0]);
      t.size[1] = static_cast<float>(size[1]);
    }
    ReadIntArray(Member(item, "FrontColor"), 4, t.frontColor);
    ReadIntArray(Member(item, "BackColor"), 4, t.backColor);
  }
}

Json::Value PackTitles(const TitleOverlay* titles, int32_t count) {
  Json::Value list(Json::arrayValue);
  const uint32_t n = CutCount(count, KOVA_EH_MAX_TITLES);
  for (uint32_t i = 0; i < n; ++i) {
    const TitleOverlay& t = titles[i];
    Json::Value item(Json::objectValue);
    SetJsonStringBounded(SetMember(item, "Text"), t.text, sizeof t.text, 1);
    SetMember(item, "Point") = IntArray(t.point, 2);
    Json::Value& size = SetMember(item, "Size");
    SetElement(size, 0) = static_cast<double>(t.size[0]);
    SetElement(size, 1) = static_cast<double>(t.size[1]);
    SetMember(item, "FrontColor") = IntArray(t.frontColor, 4);
    SetMember(item, "BackColor") = IntArray(t.backColor, 4);
    list.append(item);
  }
  return list;
}

void ParseMonitorTours(const Json::Value& tours, EventHandlerRecord* r) {
  r->present[KOVA_EH_MONITOR_TOUR] = 1;
  const uint32_t n = CutCount(static_cast<int32_t>(Count(tours)), KOVA_EH_MAX_MONITOR_TOURS);
  r->monitorTourCount = static_cast<int32_t>(n);
  for (uint32_t i = 0; i < n; ++i) {
    const Json::Value& item = Element(tours, i);
    MonitorTourEntry& t = r->monitorTours[i];
    t.enable = ToBool(Member(item, "Enable")) ? 1 : 0;
    int32_t split = 0;
    if (EnumValue(kSplitModes, Member(item, "Split"), &split)) t.split = split;
    const Json::Value& channels = Member(item, "Channels");
    const uint32_t k = channels.isArray() ? CutCount(static_cast<int32_t>(Count(channels)),
                                                     KOVA_EH_MAX_TOUR_CHANNELS)
                                          : 0;
    for (uint32_t c = 0; c < k; ++c) t.channels[c] = ToInt32(Element(channels, c));
    t.channelCount = static_cast<int32_t>(k);
  }
}

Json::Value PackMonitorTours(const EventHandlerRecord& r) {
  Json::Value list(Json::arrayValue);
  const uint32_t n = CutCount(r.monitorTourCount, KOVA_EH_MAX_MONITOR_TOURS);
  for (uint32_t i = 0; i < n; ++i) {
    const MonitorTourEntry& t = r.monitorTours[i];
    Json::Value item(Json::objectValue);
    SetMember(item, "Enable") = t.enable != 0;
    const char* split = EnumName(kSplitModes, t.split);
    if (split != nullptr) SetMember(item, "Split") = split;
    SetMember(item, "Channels") =
        IntArray(t.channels, CutCount(t.channelCount, KOVA_EH_MAX_TOUR_CHANNELS));
    list.append(item);
  }
  return list;
}

void ParseDb(const Json::Value& db, EventHandlerRecord* r) {
  r->present[KOVA_EH_DB] = 1;
  const uint32_t n = db.isArray() ? CutCount(static_cast<int32_t>(Count(db)), KOVA_EH_MAX_DB) : 0;
  r->dbCount = static_cast<int32_t>(n);
  for (uint32_t i = 0; i < n; ++i) GetJsonString(Element(db, i), r->db[i], KOVA_EH_DB_LENGTH, 1);
}

Json::Value PackDb(const EventHandlerRecord& r) {
  Json::Value list(Json::arrayValue);
  const uint32_t n = CutCount(r.dbCount, KOVA_EH_MAX_DB);
  for (uint32_t i = 0; i < n; ++i) {
    SetJsonStringBounded(SetElement(list, i), r.db[i], KOVA_EH_DB_LENGTH, 1);
  }
  return list;
}

void ParseAccessControls(const Json::Value& list, EventHandlerRecord* r) {
  r->accessControlsPresent = 1;
  const uint32_t n = CutCount(static_cast<int32_t>(Count(list)), KOVA_EH_MAX_ACCESS_CONTROLS);
  r->accessControlCount = static_cast<int32_t>(n);
  for (uint32_t i = 0; i < n; ++i) {
    const Json::Value& operation = Member(Element(list, i), "Operation");
    if (operation.isNull()) {
      r->accessControlOperations[i] = kDoorNone;
      continue;
    }
    char text[32];
    GetJsonString(operation, text, sizeof text, 1);
    for (int32_t k = 0; k < kDoorLast; ++k) {
      if (std::strcmp(text, kDoorOperationNames[k]) == 0) {
        r->accessControlOperations[i] = k + 1;
        break;
      }
    }
    // An unknown name leaves the operation as it was.
  }
}

Json::Value PackAccessControls(const EventHandlerRecord& r) {
  Json::Value list(Json::arrayValue);
  const uint32_t n = CutCount(r.accessControlCount, KOVA_EH_MAX_ACCESS_CONTROLS);
  for (uint32_t i = 0; i < n; ++i) {
    const int32_t op = r.accessControlOperations[i];
    if (op < kDoorNone || op > kDoorLast) continue;  // no name: nothing at this index
    Json::Value& operation = SetMember(SetElement(list, i), "Operation");
    if (op == kDoorNone) {
      operation = Json::Value(Json::nullValue);
    } else {
      operation = kDoorOperationNames[op - 1];
    }
  }
  return list;
}

}  // namespace kova
