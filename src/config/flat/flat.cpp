// Reading any answer's payload as a flat list of paths and values.
#include "config/flat/flat.h"

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "common/base/decimal.h"
#include "common/fields/fields.h"
#include "common/json/json.h"
#include "kova/records/flat.h"

namespace kova {

namespace {

constexpr uint32_t kHeaderBytes = offsetof(FlatDocument, values);
constexpr size_t kPathRoom = KOVA_FLAT_PATH_SIZE - 1;

// Walks the payload depth first. The depth is bounded by the JSON reader's
// nesting limit; a path that outgrows its field is no longer written, but
// the leaves below it are still counted.
struct Flattener {
  unsigned char* values;  // the caller's value slots (not necessarily aligned)
  uint32_t capacity;
  uint32_t count = 0;
  uint32_t leafCount = 0;
  char path[KOVA_FLAT_PATH_SIZE] = {};

  void Leaf(const Json::Value& v, bool fits);
  void Walk(const Json::Value& v, size_t len, bool fits);
};

// "[i]" into `index`; its length.
size_t IndexText(uint32_t i, char (&index)[16]) {
  index[0] = '[';
  char* end = PutUnsigned(index + 1, i);
  *end++ = ']';
  return static_cast<size_t>(end - index);
}

bool NeedsEscape(char c) { return c == '.' || c == '[' || c == ']' || c == '\\'; }

// The leaf's value into its cleared slot (not necessarily aligned): its
// type and number, and its text in place.
void StoreScalar(const Json::Value& v, unsigned char* slot) {
  struct Head {
    uint32_t type;
    uint32_t cut;
    int64_t integer;
    double real;
  } head = {};
  static_assert(sizeof(Head) == offsetof(FlatValue, text) - offsetof(FlatValue, type),
                "the members between the path and the text");
  switch (v.type()) {
    case Json::nullValue:
      head.type = KOVA_FLAT_NULL;
      break;
    case Json::booleanValue:
      head.type = KOVA_FLAT_BOOL;
      head.integer = ToBool(v) ? 1 : 0;
      break;
    case Json::intValue:
      head.type = KOVA_FLAT_INT;
      head.integer = v.asInt64();
      break;
    case Json::uintValue: {
      const uint64_t u = v.asUInt64();
      head.type = u > static_cast<uint64_t>(INT64_MAX) ? KOVA_FLAT_UINT : KOVA_FLAT_INT;
      std::memcpy(&head.integer, &u, sizeof u);
      break;
    }
    case Json::realValue:
      head.type = KOVA_FLAT_REAL;
      head.real = ToDouble(v);
      break;
    case Json::stringValue: {
      head.type = KOVA_FLAT_TEXT;
      char* text = reinterpret_cast<char*>(slot + offsetof(FlatValue, text));
      GetJsonString(v, text, KOVA_FLAT_TEXT_SIZE, 1);
      // Only a text that filled (nearly) all its room can have been cut: it
      // was when its whole conversion holds more than 255 bytes. Four bytes
      // beyond the room take the longest character of any local code page.
      if (strnlen(text, KOVA_FLAT_TEXT_SIZE) + 4 >= KOVA_FLAT_TEXT_SIZE) {
        char scratch[KOVA_FLAT_TEXT_SIZE + 4];
        const int32_t n = Utf8ToAnsi(TextInPlace(v), 1, scratch, sizeof scratch);
        head.cut = n >= KOVA_FLAT_TEXT_SIZE ? 1 : 0;
      }
      break;
    }
    case Json::arrayValue:
      head.type = KOVA_FLAT_EMPTY_ARRAY;
      break;
    case Json::objectValue:
      head.type = KOVA_FLAT_EMPTY_OBJECT;
      break;
  }
  std::memcpy(slot + offsetof(FlatValue, type), &head, sizeof head);
}

void Flattener::Leaf(const Json::Value& v, bool fits) {
  if (leafCount < UINT32_MAX) ++leafCount;
  if (!fits || count >= capacity) return;
  // The slot was cleared with the document; the whole path buffer goes in,
  // as it stands.
  unsigned char* slot = values + static_cast<size_t>(count) * sizeof(FlatValue);
  std::memcpy(slot + offsetof(FlatValue, path), path, sizeof path);
  StoreScalar(v, slot);
  ++count;
}

void Flattener::Walk(const Json::Value& v, size_t len, bool fits) {
  if (fits) path[len] = '\0';
  if (v.isArray() && v.size() > 0) {
    ForEachElement(v, [&](uint32_t i, const Json::Value& e) {
      char index[16];
      const size_t n = IndexText(i, index);
      const bool childFits = fits && len + n <= kPathRoom;
      if (childFits) std::memcpy(path + len, index, n);
      Walk(e, childFits ? len + n : len, childFits);
      return true;
    });
    return;
  }
  if (v.isObject() && v.size() > 0) {
    ForEachMemberInPlace(v, [&](const char* name, size_t nameLen, const Json::Value& e) {
      // An empty name, or one holding a NUL, could not be told apart from
      // another path: its leaves are counted, not stored.
      bool childFits = fits && nameLen > 0 && std::memchr(name, '\0', nameLen) == nullptr;
      size_t at = len;
      if (childFits && len > 0) path[at++] = '.';
      for (size_t k = 0; childFits && k < nameLen; ++k) {
        if (at + (NeedsEscape(name[k]) ? 2 : 1) > kPathRoom) childFits = false;
        if (childFits && NeedsEscape(name[k])) path[at++] = '\\';
        if (childFits) path[at++] = name[k];
      }
      Walk(e, childFits ? at : len, childFits);
      return true;
    });
    return;
  }
  Leaf(v, fits);
}

// The payload: "params"."table" when "params" has a member "table" (null
// included), otherwise "params" itself.
const Json::Value& PayloadOf(const Json::Value& params) {
  static const char kTable[] = "table";
  const Json::Value* table = FindMember(params, kTable, sizeof kTable - 1);
  return table != nullptr ? *table : params;
}

// Fills a cleared document of `len` bytes (at least one value) from `payload`.
uint32_t FlattenInto(const Json::Value& payload, unsigned char* out, uint32_t len) {
  Flattener f;
  f.values = out + kHeaderBytes;
  f.capacity = (len - kHeaderBytes) / sizeof(FlatValue);
  f.Walk(payload, 0, true);
  std::memcpy(out + offsetof(FlatDocument, count), &f.count, sizeof f.count);
  std::memcpy(out + offsetof(FlatDocument, leafCount), &f.leafCount, sizeof f.leafCount);
  return f.count;
}

// The frame's own step: a document of one record's room.
bool ParseFlatStep(const Json::Value& /*table*/, const StepContext& ctx, unsigned char* record) {
  FlattenInto(PayloadOf(ctx.params), record, ctx.recordBytes);
  return true;
}

}  // namespace

bool HasFlatPrefix(const char* name) {
  static const char kPrefix[] = "flat:";
  for (size_t i = 0; i + 1 < sizeof kPrefix; ++i) {
    const char c = name[i];
    const char folded = (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
    if (folded != kPrefix[i]) return false;
  }
  return true;
}

int ParseFlat(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen) {
  try {
    if (jsonText == nullptr || outBuf == nullptr || outLen < sizeof(FlatDocument)) return 0;
    unsigned char* out = static_cast<unsigned char*>(outBuf);
    std::memset(out, 0, outLen);
    Json::Value root;
    if (!ReadJson(jsonText, &root)) return 0;
    const Envelope envelope = EnvelopeOf(root);
    if (!ToBool(*envelope.result)) return 0;
    const uint32_t count = FlattenInto(PayloadOf(*envelope.params), out, outLen);
    if (retLen != nullptr)
      *retLen = kHeaderBytes + count * static_cast<uint32_t>(sizeof(FlatValue));
    return 1;
  } catch (...) {
    std::memset(outBuf, 0, outLen);
    return 0;
  }
}

extern const ResponseFrame kFlatCapsFrame =
    ResponseFrame::For<FlatDocument>(ParseFlatStep, nullptr).OnNullTable(NullTable::kStep);

}  // namespace kova
