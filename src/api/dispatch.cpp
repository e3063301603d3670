#include "api/dispatch.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "common/base/ascii.h"
#include "common/base/log.h"
#include "config/flat/flat.h"

namespace kova {

// Every frame the table names, declared from the table itself.
#define KOVA_BOTH(name, frame) extern const ResponseFrame frame;
#define KOVA_PARSE_ONLY(name, frame) extern const ResponseFrame frame;
#define KOVA_PACK_ONLY(name, frame) extern const ResponseFrame frame;
#define KOVA_ADDED(name, frame) extern const ResponseFrame frame;
#define KOVA_DRIVER_SLOT(name, size, depthMinusOne, arrayAllowed, zeroFill, packArray)
#include "api/name_table.inc"
#undef KOVA_BOTH
#undef KOVA_PARSE_ONLY
#undef KOVA_PACK_ONLY
#undef KOVA_ADDED

// A name listed but not built yet: a frame without a record.
extern const ResponseFrame kNotBuilt = ResponseFrame{};

// The parse list: every row but the pack-only ones.
#define KOVA_BOTH(name, frame) {name, &frame, 0, false},
#define KOVA_PARSE_ONLY(name, frame) {name, &frame, 0, false},
#define KOVA_PACK_ONLY(name, frame)
#define KOVA_ADDED(name, frame) {name, &frame, 0, true},
#undef KOVA_DRIVER_SLOT
#define KOVA_DRIVER_SLOT(name, size, depthMinusOne, arrayAllowed, zeroFill, packArray) \
  {name, nullptr, size, false},
const NameEntry kParseNames[] = {
#include "api/name_table.inc"
};
const size_t kParseNameCount = sizeof kParseNames / sizeof kParseNames[0];
#undef KOVA_PARSE_ONLY
#undef KOVA_PACK_ONLY

// The pack list: every row but the parse-only ones.
#define KOVA_PARSE_ONLY(name, frame)
#define KOVA_PACK_ONLY(name, frame) {name, &frame, 0, false},
const NameEntry kPackNames[] = {
#include "api/name_table.inc"
};
const size_t kPackNameCount = sizeof kPackNames / sizeof kPackNames[0];
#undef KOVA_BOTH
#undef KOVA_PARSE_ONLY
#undef KOVA_PACK_ONLY
#undef KOVA_ADDED
#undef KOVA_DRIVER_SLOT

namespace {

// A name whose translator is not built yet fails: never a silent success
// with an empty record. One line to the error log says which.
int NotBuilt(const char* name, const char* direction) {
  KOVA_REPORT(kErrBadParameter, "%s of [%s] is not built yet", direction, name);
  return 0;
}

const ResponseFrame* FrameOf(const NameEntry* list, size_t count, int i) {
  if (i < 0 || static_cast<size_t>(i) >= count) return nullptr;
  const ResponseFrame* f = list[i].frame;
  return f != nullptr && f->recordSize != 0 ? f : nullptr;
}

uint32_t RecordSizeOf(const NameEntry* list, size_t count, int i) {
  if (i < 0 || static_cast<size_t>(i) >= count) return 0;
  const ResponseFrame* f = FrameOf(list, count, i);
  return f != nullptr ? f->recordSize : list[i].slotRecordSize;
}

}  // namespace

bool NameEquals(const char* a, const char* b) { return AsciiEqualNoCase(a, b); }

namespace {

// A hash table of the list's names by folded text, made once, so that a
// lookup hashes the name once and compares it with one name, rather than
// walking or searching up to 293 names (a fifth of a short parse). Of
// names that fold alike only the first listed is entered: it wins.
class NameIndex {
 public:
  template <typename Entry>
  NameIndex(const Entry* list, size_t count) {
    for (size_t i = 0; i < count; ++i) {
      uint32_t h = Hash(list[i].name) & kMask;
      bool taken = false;
      for (; slots_[h] != 0; h = (h + 1) & kMask) {
        taken = taken || AsciiEqualNoCase(list[slots_[h] - 1].name, list[i].name);
      }
      if (!taken) slots_[h] = static_cast<uint16_t>(i + 1);
    }
  }

  template <typename Entry>
  int Find(const Entry* list, const char* name) const {
    const std::string_view text(name);
    for (uint32_t h = Hash(text) & kMask; slots_[h] != 0; h = (h + 1) & kMask) {
      const int i = slots_[h] - 1;
      if (AsciiEqualNoCase(list[i].name, text)) return i;
    }
    return -1;
  }

 private:
  static constexpr uint32_t kSlots = 1024;
  static constexpr uint32_t kMask = kSlots - 1;
  static_assert(sizeof kParseNames / sizeof kParseNames[0] <= kSlots / 2 &&
                    sizeof kPackNames / sizeof kPackNames[0] <= kSlots / 2,
                "the index stays at most half full");

  // Eight bytes at a time, each with bit 5 set: names that fold alike hash
  // alike (other bytes may collide too, which the comparison settles).
  static uint32_t Hash(std::string_view name) {
    uint64_t h = name.size();
    for (size_t at = 0; at < name.size(); at += 8) {
      uint64_t chunk = 0;
      std::memcpy(&chunk, name.data() + at, std::min<size_t>(8, name.size() - at));
      h = (h ^ (chunk | 0x2020202020202020u)) * 0x9E3779B97F4A7C15u;
    }
    return static_cast<uint32_t>(h >> 32);
  }

  uint16_t slots_[kSlots] = {};
};

}  // namespace

int FindParseName(const char* name) {
  static const NameIndex index(kParseNames, kParseNameCount);
  return index.Find(kParseNames, name);
}

int FindPackName(const char* name) {
  static const NameIndex index(kPackNames, kPackNameCount);
  return index.Find(kPackNames, name);
}

uint32_t ParseRecordSize(int i) { return RecordSizeOf(kParseNames, kParseNameCount, i); }
uint32_t PackRecordSize(int i) { return RecordSizeOf(kPackNames, kPackNameCount, i); }

bool ParseBuilt(int i) {
  const ResponseFrame* f = FrameOf(kParseNames, kParseNameCount, i);
  return f != nullptr && f->parse != nullptr;
}

bool PackBuilt(int i) {
  const ResponseFrame* f = FrameOf(kPackNames, kPackNameCount, i);
  return f != nullptr && f->pack != nullptr;
}

bool PackTakesShortInput(int k, uint32_t inLen) {
  const ResponseFrame* f = FrameOf(kPackNames, kPackNameCount, k);
  if (f == nullptr || f->packWalk == PackWalk::kCallerSized) return false;
  return f->shortInput == ShortInput::kNull ||
         (f->shortInput == ShortInput::kNullUnlessEmpty && inLen > 0);
}

int DispatchParse(const char* name, const char* jsonText, void* outBuf, uint32_t outLen,
                  uint32_t* retLen) {
  if (HasFlatPrefix(name)) return ParseFlat(jsonText, outBuf, outLen, retLen);
  const int i = FindParseName(name);
  if (i < 0) return 0;
  if (!ParseBuilt(i)) return NotBuilt(kParseNames[i].name, "parse");
  // A name whose record is the flat list: the caller's whole buffer is the document.
  if (kParseNames[i].frame == &kFlatCapsFrame) return ParseFlat(jsonText, outBuf, outLen, retLen);
  return ParseWithFrame(*kParseNames[i].frame, jsonText, outBuf, outLen, retLen);
}

int DispatchPack(const char* name, const void* inBuf, uint32_t inLen, char* outJson,
                 uint32_t outLen) {
  if (HasFlatPrefix(name)) return PackFlat(inBuf, inLen, outJson, outLen);
  const int i = FindPackName(name);
  if (i < 0) return 0;
  if (!PackBuilt(i)) return NotBuilt(kPackNames[i].name, "pack");
  return PackWithFrame(*kPackNames[i].frame, inBuf, inLen, outJson, outLen);
}

}  // namespace kova
