// Writing a parsed record back for the tool's round trip.
#include "api/dispatch.h"
#include "config/flat/flat.h"

namespace kova {

bool ParseReadsFlat(int i) {
  return i >= 0 && static_cast<size_t>(i) < kParseNameCount &&
         kParseNames[i].frame == &kFlatCapsFrame;
}

int WriteBackParsed(const char* name, const void* inBuf, uint32_t inLen, char* outJson,
                    uint32_t outLen) {
  if (name == nullptr) return 0;
  if (HasFlatPrefix(name) || FindPackName(name) >= 0) {
    return DispatchPack(name, inBuf, inLen, outJson, outLen);
  }
  const int i = FindParseName(name);
  if (!ParseBuilt(i)) return 0;
  if (ParseReadsFlat(i)) return PackFlat(inBuf, inLen, outJson, outLen);
  const ResponseFrame& frame = *kParseNames[i].frame;
  return frame.pack != nullptr ? PackWithFrame(frame, inBuf, inLen, outJson, outLen) : 0;
}

}  // namespace kova
