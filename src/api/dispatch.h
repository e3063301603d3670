// The two name dispatch lists of the exported functions.
//
// Each list is one table in dispatch order; a name is found by an ASCII
// case-insensitive whole-name comparison, first match wins. An entry whose
// translator is not built yet has a null function. The last
// kDriverNameCount names of both lists are served by the table drivers, in
// the same order as kDriverBindings: all three are made from the one list
// in driver_names.h.
#ifndef KOVA_API_DISPATCH_H_
#define KOVA_API_DISPATCH_H_

#include <cstddef>
#include <cstdint>

#include "drivers/table_driver.h"

namespace kova {

using ParseFn = int (*)(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
using PackFn = int (*)(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);

struct ParseName {
  const char* name;
  ParseFn parse;        // null: not built yet (or served by a driver binding)
  uint32_t recordSize;  // bytes of one record; 0 when not built (drivers: see the binding)
};

struct PackName {
  const char* name;
  PackFn pack;          // null: not built yet (or served by a driver binding)
  uint32_t recordSize;  // bytes of one record; 0 when not built (drivers: see the binding)
  // An input of at least one byte but shorter than one record packs as
  // "null" rather than being refused (the packer's frame says so too).
  bool shortInputPacksNull = false;
};

// Settings of one configuration served by the table drivers. A null
// routine means the configuration's record is not laid out yet.
struct DriverBinding {
  const char* name;
  RecordParser parseRecord;
  RecordPacker packRecord;
  uint64_t recordSize;
  int32_t parseDepthMinusOne;
  uint8_t parseArray;
  uint8_t parseZeroFill;
  uint8_t packArray;
};

extern const ParseName kParseNames[];
extern const size_t kParseNameCount;
extern const PackName kPackNames[];
extern const size_t kPackNameCount;
extern const DriverBinding kDriverBindings[];
extern const size_t kDriverNameCount;

// ASCII case-insensitive whole-name equality (only A-Z are folded).
bool NameEquals(const char* a, const char* b);

// Index of `name` in a list, or -1.
int FindParseName(const char* name);
int FindPackName(const char* name);

// The driver binding behind list index `i`, or null for a name that has its
// own translator.
const DriverBinding* ParseBinding(int i);
const DriverBinding* PackBinding(int i);

// Size of one record of list index `i` (the binding's for driver names), 0
// when unknown.
uint32_t ParseRecordSize(int i);
uint32_t PackRecordSize(int i);

// Whether the translator behind list index `i` exists.
bool ParseBuilt(int i);
bool PackBuilt(int i);

// The translations themselves, after the argument checks of the exports.
int DispatchParse(const char* name, const char* jsonText, void* outBuf, uint32_t outLen,
                  uint32_t* retLen);
int DispatchPack(const char* name, const void* inBuf, uint32_t inLen, char* outJson,
                 uint32_t outLen);

}  // namespace kova

#endif  // KOVA_API_DISPATCH_H_
