// The four exported functions: argument checks, then dispatch. Nothing
// thrown inside the library (the JSON library throws on some misuse,
// allocation can fail) leaves through them.
#include "api/dispatch.h"
#include "events/document_readers.h"
#include "events/event_stream.h"
#include "kova/kova.h"

extern "C" {

KOVA_EXPORT int KOVA_CALL KOVA_ParseData(const char* name, const char* jsonText, void* outBuf,
                                         uint32_t outLen, uint32_t* retLen) {
  if (name == nullptr || jsonText == nullptr || outBuf == nullptr || outLen == 0) return 0;
  try {
    return kova::DispatchParse(name, jsonText, outBuf, outLen, retLen);
  } catch (...) {
    return 0;
  }
}

KOVA_EXPORT int KOVA_CALL KOVA_PacketData(const char* name, const void* inBuf, uint32_t inLen,
                                          char* outJson, uint32_t outLen) {
  if (name == nullptr || inBuf == nullptr || outJson == nullptr || outLen == 0) return 0;
  try {
    return kova::DispatchPack(name, inBuf, inLen, outJson, outLen);
  } catch (...) {
    return 0;
  }
}

KOVA_EXPORT int KOVA_CALL KOVA_ParseAnalyzerEventData(const char* buf, uint32_t len,
                                                      KOVA_AnalyzerEventCallback callback,
                                                      void* user) {
  if (buf == nullptr || callback == nullptr) return 0;
  try {
    return kova::ParseAnalyzerEvents(buf, len, callback, user);
  } catch (...) {
    return 0;
  }
}

KOVA_EXPORT int KOVA_CALL KOVA_ParseDataByCallback(const char* buf, uint32_t len,
                                                   KOVA_AnalyzerEventCallback callback,
                                                   void* user) {
  if (buf == nullptr || callback == nullptr) return 0;
  try {
    return kova::ParseDocumentByCallback(buf, len, callback, user);
  } catch (...) {
    return 0;
  }
}

}  // extern "C"
