#include "api/dispatch.h"

#include <algorithm>
#include <vector>

#include "common/base/ascii.h"
#include "common/base/log.h"

namespace kova {

namespace {

// The driver-served names close both lists.
int DriverIndex(int i, size_t listCount) {
  const size_t first = listCount - kDriverNameCount;
  return (i >= 0 && static_cast<size_t>(i) >= first) ? static_cast<int>(i - first) : -1;
}

// A name whose translator is not built yet fails: never a silent success
// with an empty record. One line to the error log says which.
int NotBuilt(const char* name, const char* direction) {
  KOVA_REPORT(kErrBadParameter, "%s of [%s] is not built yet", direction, name);
  return 0;
}

}  // namespace

bool NameEquals(const char* a, const char* b) { return AsciiEqualNoCase(a, b); }

namespace {

// Orders names as NameEquals compares them: byte by byte after folding A-Z.
int FoldedCompare(const char* a, const char* b) { return AsciiCompareNoCase(a, b); }

// The list indices ordered by folded name, made once, so that a lookup is
// a binary search rather than a walk through up to 293 names (a fifth of a
// short parse). Equal folded names keep list order: the first one listed wins.
template <typename Entry>
std::vector<int> FoldedOrder(const Entry* list, size_t count) {
  std::vector<int> order(count);
  for (size_t i = 0; i < count; ++i) order[i] = static_cast<int>(i);
  std::stable_sort(order.begin(), order.end(),
                   [list](int a, int b) { return FoldedCompare(list[a].name, list[b].name) < 0; });
  return order;
}

template <typename Entry>
int FindIn(const Entry* list, const std::vector<int>& order, const char* name) {
  const auto it = std::lower_bound(order.begin(), order.end(), name, [list](int i, const char* n) {
    return FoldedCompare(list[i].name, n) < 0;
  });
  return it != order.end() && FoldedCompare(list[*it].name, name) == 0 ? *it : -1;
}

}  // namespace

int FindParseName(const char* name) {
  static const std::vector<int> order = FoldedOrder(kParseNames, kParseNameCount);
  return FindIn(kParseNames, order, name);
}

int FindPackName(const char* name) {
  static const std::vector<int> order = FoldedOrder(kPackNames, kPackNameCount);
  return FindIn(kPackNames, order, name);
}

const DriverBinding* ParseBinding(int i) {
  const int d = DriverIndex(i, kParseNameCount);
  return d < 0 ? nullptr : &kDriverBindings[d];
}

const DriverBinding* PackBinding(int i) {
  const int d = DriverIndex(i, kPackNameCount);
  return d < 0 ? nullptr : &kDriverBindings[d];
}

uint32_t ParseRecordSize(int i) {
  if (i < 0 || static_cast<size_t>(i) >= kParseNameCount) return 0;
  const DriverBinding* b = ParseBinding(i);
  return b != nullptr ? static_cast<uint32_t>(b->recordSize) : kParseNames[i].recordSize;
}

uint32_t PackRecordSize(int i) {
  if (i < 0 || static_cast<size_t>(i) >= kPackNameCount) return 0;
  const DriverBinding* b = PackBinding(i);
  return b != nullptr ? static_cast<uint32_t>(b->recordSize) : kPackNames[i].recordSize;
}

bool ParseBuilt(int i) {
  if (i < 0 || static_cast<size_t>(i) >= kParseNameCount) return false;
  const DriverBinding* b = ParseBinding(i);
  return b != nullptr ? b->parseRecord != nullptr : kParseNames[i].parse != nullptr;
}

bool PackBuilt(int i) {
  if (i < 0 || static_cast<size_t>(i) >= kPackNameCount) return false;
  const DriverBinding* b = PackBinding(i);
  return b != nullptr ? b->packRecord != nullptr : kPackNames[i].pack != nullptr;
}

int DispatchParse(const char* name, const char* jsonText, void* outBuf, uint32_t outLen,
                  uint32_t* retLen) {
  const int i = FindParseName(name);
  if (i < 0) return 0;
  if (!ParseBuilt(i)) return NotBuilt(kParseNames[i].name, "parse");
  if (const DriverBinding* b = ParseBinding(i)) {
    return ParseTableDriver(jsonText, outBuf, outLen, retLen, b->parseRecord, b->recordSize,
                            b->parseDepthMinusOne, b->parseArray, b->parseZeroFill);
  }
  return kParseNames[i].parse(jsonText, outBuf, outLen, retLen);
}

int DispatchPack(const char* name, const void* inBuf, uint32_t inLen, char* outJson,
                 uint32_t outLen) {
  const int i = FindPackName(name);
  if (i < 0) return 0;
  if (!PackBuilt(i)) return NotBuilt(kPackNames[i].name, "pack");
  if (const DriverBinding* b = PackBinding(i)) {
    return PackTableDriver(inBuf, inLen, outJson, outLen, b->packRecord, b->recordSize, 0,
                           b->packArray);
  }
  return kPackNames[i].pack(inBuf, inLen, outJson, outLen);
}

}  // namespace kova
