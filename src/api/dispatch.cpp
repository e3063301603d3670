#include "api/dispatch.h"

#include "common/log.h"

namespace kova {

namespace {

char FoldAscii(char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c; }

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

bool NameEquals(const char* a, const char* b) {
  for (;; ++a, ++b) {
    if (FoldAscii(*a) != FoldAscii(*b)) return false;
    if (*a == '\0') return true;
  }
}

int FindParseName(const char* name) {
  for (size_t i = 0; i < kParseNameCount; ++i) {
    if (NameEquals(name, kParseNames[i].name)) return static_cast<int>(i);
  }
  return -1;
}

int FindPackName(const char* name) {
  for (size_t i = 0; i < kPackNameCount; ++i) {
    if (NameEquals(name, kPackNames[i].name)) return static_cast<int>(i);
  }
  return -1;
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
