#include "api/dispatch.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "common/base/ascii.h"
#include "common/base/log.h"
#include "common/base/name_index.h"
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

// Names of the table by folded text (a lookup in a walk of up to 293 names
// would be a fifth of a short parse).
using ConfigNameIndex = NameIndex<1024>;
static_assert(sizeof kParseNames / sizeof kParseNames[0] <= 512 &&
                  sizeof kPackNames / sizeof kPackNames[0] <= 512,
              "the index stays at most half full");

}  // namespace

int FindParseName(const char* name) {
  static const ConfigNameIndex index(kParseNames, kParseNameCount);
  return index.Find(kParseNames, name);
}

int FindPackName(const char* name) {
  static const ConfigNameIndex index(kPackNames, kPackNameCount);
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
