// Readers behind the two callback exports.
#ifndef KOVA_EVENTS_EVENT_STREAM_H_
#define KOVA_EVENTS_EVENT_STREAM_H_

#include <cstdint>

#include "kova/kova.h"

namespace kova {

// Reads an analyzer event document and calls `callback` once per event.
// Returns 1 whatever the document held. The event readers are not built
// yet: no event is delivered.
int ParseAnalyzerEvents(const char* buf, uint32_t len, KOVA_AnalyzerEventCallback callback,
                        void* user);

// Dispatches a device document on the member names at its root. Not built
// yet: no record is delivered.
int ParseDocumentByCallback(const char* buf, uint32_t len, KOVA_AnalyzerEventCallback callback,
                            void* user);

}  // namespace kova

#endif  // KOVA_EVENTS_EVENT_STREAM_H_
