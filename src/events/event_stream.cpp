#include "events/event_stream.h"

namespace kova {

int ParseAnalyzerEvents(const char* buf, uint32_t len, KOVA_AnalyzerEventCallback callback,
                        void* user) {
  return 1;
}

int ParseDocumentByCallback(const char* buf, uint32_t len, KOVA_AnalyzerEventCallback callback,
                            void* user) {
  return 1;
}

}  // namespace kova
