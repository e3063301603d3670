// The two name dispatch lists of the exported functions, both derived from
// the one table of configuration names (name_table.inc).
//
// A name is found by an ASCII case-insensitive whole-name comparison, first
// match wins. A name without a translator yet fails with a report to the
// error log.
#ifndef KOVA_API_DISPATCH_H_
#define KOVA_API_DISPATCH_H_

#include <cstddef>
#include <cstdint>

#include "drivers/response_frame.h"

namespace kova {

// One name of a dispatch list.
struct NameEntry {
  const char* name;
  const ResponseFrame* frame;  // null: not built yet
  uint32_t slotRecordSize;     // a driver slot's record size (its record not laid out yet)
  bool added;                  // a name beyond the device protocol's two lists
};

extern const NameEntry kParseNames[];
extern const size_t kParseNameCount;
extern const NameEntry kPackNames[];
extern const size_t kPackNameCount;

// ASCII case-insensitive whole-name equality (only A-Z are folded).
bool NameEquals(const char* a, const char* b);

// Index of `name` in a list, or -1.
int FindParseName(const char* name);
int FindPackName(const char* name);

// Size of one record of list index `i`, 0 when unknown.
uint32_t ParseRecordSize(int i);
uint32_t PackRecordSize(int i);

// Whether the translator behind list index `i` exists.
bool ParseBuilt(int i);
bool PackBuilt(int i);

// Whether pack of list index `k` takes an input of `inLen` bytes, shorter
// than one record, as null rather than refusing it.
bool PackTakesShortInput(int k, uint32_t inLen);

// The translations themselves, after the argument checks of the exports.
int DispatchParse(const char* name, const char* jsonText, void* outBuf, uint32_t outLen,
                  uint32_t* retLen);
int DispatchPack(const char* name, const void* inBuf, uint32_t inLen, char* outJson,
                 uint32_t outLen);

// For the tool's round trip, not exported: writes a parsed record back
// through its name's frame, the parse-only names included (KOVA_PacketData
// refuses those), and a flat document for the names that read one.
int WriteBackParsed(const char* name, const void* inBuf, uint32_t inLen, char* outJson,
                    uint32_t outLen);
// Whether parse list index `i` reads into a flat document (kova/records/flat.h).
bool ParseReadsFlat(int i);

}  // namespace kova

#endif  // KOVA_API_DISPATCH_H_
