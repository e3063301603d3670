// Any answer as a flat list of paths and values (kova/records/flat.h): the
// "flat:" names, and the open-ended capability answers whose record is
// that list.
#ifndef KOVA_CONFIG_FLAT_FLAT_H_
#define KOVA_CONFIG_FLAT_FLAT_H_

#include <cstdint>

#include "drivers/response_frame.h"

namespace kova {

// Whether `name` begins with "flat:" (compared without regard to case).
bool HasFlatPrefix(const char* name);

// The payload of `jsonText` into the caller's FlatDocument of `outLen`
// bytes; retLen (when given) is set to the bytes of the values stored.
int ParseFlat(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen);
// A FlatDocument of `inLen` bytes back into the payload's single-line text.
int PackFlat(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen);

// The frame of the open-ended capability names: a one-value document. The
// dispatch hands these names the caller's whole buffer through ParseFlat.
extern const ResponseFrame kFlatCapsFrame;

}  // namespace kova

#endif  // KOVA_CONFIG_FLAT_FLAT_H_
