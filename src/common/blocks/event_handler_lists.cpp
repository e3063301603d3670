#include "common/blocks/event_handler_lists.h"

#include <cstring>
#include <utility>

#include "common/fields/fields.h"
#include "common/json/json.h"

namespace kova {

namespace {

using R = EventHandlerRecord;

constexpr const char* kPtzLinkTypeNames[] = {"None", "Preset", "Tour", "Pattern"};
constexpr EnumNames kPtzLinkTypes = EnumNames::Of(kPtzLinkTypeNames).UnknownAs(KOVA_PTZ_LINK_NONE);

// Door operations, compared exactly (letter case matters to the device).
constexpr const char* kDoorOperationNames[] = {"Auto", "Open", "Close", "OpenAlways",
                                               "CloseAlways"};
constexpr EnumNames kDoorOperations = EnumNames::Of(kDoorOperationNames).Exact().FirstValue(1);

constexpr uint32_t kPtzLinkItems = 5;

R* Linkage(unsigned char* record) { return reinterpret_cast<R*>(record); }
const R* Linkage(const unsigned char* record) { return reinterpret_cast<const R*>(record); }

// Reads an array of exactly `n` integers into `out`; any other value (an
// array of another length included) leaves `out` as it was.
void ReadIntArray(const Json::Value& v, uint32_t n, int32_t* out) {
  if (!v.isArray() || Count(v) != n) return;
  ForEachElement(v, n, [out](uint32_t i, const Json::Value& e) { out[i] = ToInt32(e); });
}

Json::Value IntArray(const int32_t* values, uint32_t n) {
  Json::Value out(Json::arrayValue);
  for (uint32_t i = 0; i < n; ++i) out.append(Json::Value(values[i]));
  return out;
}

// The device's array under the field's key, or null when it is not an array.
const Json::Value* GivenArray(const Json::Value& obj, const Field& f) {
  const Json::Value& v = Member(obj, f.key);
  return v.isArray() ? &v : nullptr;
}

}  // namespace

uint32_t EntriesToRecordEnd(size_t offset, size_t entrySize) {
  return static_cast<uint32_t>((sizeof(EventHandlerRecord) - offset) / entrySize);
}

// Intended: an entry is a five-item array, type name first, not an object.
void ParsePtzLinks(const Json::Value& obj, unsigned char* record, const Field& f) {
  const Json::Value* links = GivenArray(obj, f);
  if (links == nullptr) return;
  MarkPresent(record, f);
  R* r = Linkage(record);
  const uint32_t n = CutCount(Count(*links), KOVA_EH_MAX_PTZ_LINKS);
  r->ptzLinkCount = static_cast<int32_t>(n);
  ForEachElement(*links, n, [r](uint32_t i, const Json::Value& item) {
    // An entry that is not exactly five items stays zero but still counts.
    if (!item.isArray() || Count(item) != kPtzLinkItems) return;
    PtzLinkEntry& e = r->ptzLinks[i];
    ForEachElement(item, kPtzLinkItems, [&e](uint32_t k, const Json::Value& value) {
      if (k > 0) {
        e.values[k - 1] = ToInt32(value);
      } else if (!EnumValue(kPtzLinkTypes, value, &e.type)) {
        e.type = KOVA_PTZ_LINK_NONE;
      }
    });
  });
}

void PackPtzLinks(const unsigned char* record, Json::Value& obj, const Field& f) {
  // The count is deliberately not cut to 256 when packing: entries beyond
  // the array are taken from the bytes that follow it, but never from
  // beyond the end of the record.
  const uint32_t n = CutCount(Linkage(record)->ptzLinkCount,
                              EntriesToRecordEnd(offsetof(R, ptzLinks), sizeof(PtzLinkEntry)));
  if (n == 0) return;
  Json::Value& links = SetKeptMember(obj, f.key);
  links = Json::Value(Json::arrayValue);
  for (uint32_t i = 0; i < n; ++i) {
    PtzLinkEntry e;
    std::memcpy(&e, record + offsetof(R, ptzLinks) + i * sizeof e, sizeof e);
    const char* name = EnumName(kPtzLinkTypes, e.type);
    if (name == nullptr) continue;  // an unknown type leaves null at its index
    Json::Value& item = SetElement(links, i);
    SetElement(item, 0) = name;
    for (uint32_t k = 0; k < 4; ++k) SetElement(item, k + 1) = e.values[k];
  }
}

// Intended: pairs and colours of exactly their length, sizes read as integers into floats.
void ParseTitles(const Json::Value& obj, unsigned char* record, const Field& f) {
  const Json::Value* list = GivenArray(obj, f);
  if (list == nullptr) return;
  MarkPresent(record, f);
  TitleOverlay* titles = reinterpret_cast<TitleOverlay*>(record + f.offset);
  const uint32_t n = CutCount(Count(*list), KOVA_EH_MAX_TITLES);
  StoreInt(record + f.count.offset, f.count.size, n);
  ForEachElement(*list, n, [titles](uint32_t i, const Json::Value& item) {
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
  });
}

void PackTitles(const unsigned char* record, Json::Value& obj, const Field& f) {
  const TitleOverlay* titles = reinterpret_cast<const TitleOverlay*>(record + f.offset);
  Json::Value& list = SetKeptMember(obj, f.key);
  list = Json::Value(Json::arrayValue);
  const uint32_t n =
      CutCount(LoadInt(record + f.count.offset, f.count.size, true), KOVA_EH_MAX_TITLES);
  for (uint32_t i = 0; i < n; ++i) {
    const TitleOverlay& t = titles[i];
    Json::Value item(Json::objectValue);
    SetJsonStringBounded(SetKeptMember(item, "Text"), t.text, sizeof t.text, 1);
    SetKeptMember(item, "Point") = IntArray(t.point, 2);
    Json::Value& size = SetKeptMember(item, "Size");
    SetElement(size, 0) = static_cast<double>(t.size[0]);
    SetElement(size, 1) = static_cast<double>(t.size[1]);
    SetKeptMember(item, "FrontColor") = IntArray(t.frontColor, 4);
    SetKeptMember(item, "BackColor") = IntArray(t.backColor, 4);
    list.append(std::move(item));
  }
}

// Intended: a null operation is 0, an unknown name leaves the value, and a
// value without a name packs as nothing at its index.
void ParseAccessControls(const Json::Value& obj, unsigned char* record, const Field& f) {
  const Json::Value* list = GivenArray(obj, f);
  if (list == nullptr) return;
  MarkPresent(record, f);
  R* r = Linkage(record);
  const uint32_t n = CutCount(Count(*list), KOVA_EH_MAX_ACCESS_CONTROLS);
  r->accessControlCount = static_cast<int32_t>(n);
  ForEachElement(*list, n, [r](uint32_t i, const Json::Value& item) {
    const Json::Value& operation = Member(item, "Operation");
    if (operation.isNull()) {
      r->accessControlOperations[i] = KOVA_DOOR_NONE;
      return;
    }
    // The device's name is read into a 32-byte field before the lookup; an
    // unknown name leaves the operation as it was.
    char text[32];
    GetJsonString(operation, text, sizeof text, 1);
    EnumValue(kDoorOperations, Json::Value(text), &r->accessControlOperations[i]);
  });
}

void PackAccessControls(const unsigned char* record, Json::Value& obj, const Field& f) {
  const R* r = Linkage(record);
  Json::Value& list = SetKeptMember(obj, f.key);
  list = Json::Value(Json::arrayValue);
  const uint32_t n = CutCount(r->accessControlCount, KOVA_EH_MAX_ACCESS_CONTROLS);
  for (uint32_t i = 0; i < n; ++i) {
    const int32_t op = r->accessControlOperations[i];
    const char* name = EnumName(kDoorOperations, op);
    if (op != KOVA_DOOR_NONE && name == nullptr) continue;  // no name: nothing at this index
    Json::Value& operation = SetMember(SetElement(list, i), "Operation");
    operation = name != nullptr ? Json::Value(name) : Json::Value(Json::nullValue);
  }
}

void PackDestinations(const unsigned char* record, Json::Value& obj, const Field& f) {
  Json::Value& destinations = SetKeptMember(obj, f.key);
  destinations = Json::Value(Json::arrayValue);
  // The count is deliberately not cut to 8 when packing: bytes beyond the
  // eight destinations are taken from what follows them, but never from
  // beyond the end of the record.
  const uint32_t n =
      CutCount(Linkage(record)->destinationCount, EntriesToRecordEnd(offsetof(R, destinations), 1));
  for (uint32_t i = 0; i < n; ++i) {
    destinations.append(Json::Value(record[offsetof(R, destinations) + i]));
  }
}

}  // namespace kova
