// The parse-by-callback reader: a device document dispatched on the member
// names at its root, each known member to the reader of its kind (see
// KOVA_ParseDataByCallback in kova/kova.h for the members, codes and
// records).
#ifndef KOVA_EVENTS_DOCUMENT_READERS_H_
#define KOVA_EVENTS_DOCUMENT_READERS_H_

#include <cstdint>

#include "kova/kova.h"

namespace kova {

// KOVA_ParseDataByCallback behind its argument checks: 1 when the text is
// a JSON object, 0 otherwise.
int ParseDocumentByCallback(const char* buf, uint32_t len, KOVA_AnalyzerEventCallback callback,
                            void* user);

}  // namespace kova

#endif  // KOVA_EVENTS_DOCUMENT_READERS_H_
