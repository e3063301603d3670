// Calling the two callback exports from tests: each delivery is handed to a
// function while its record (and the lists it points at) is still valid.
#ifndef KOVA_TESTS_EVENTS_EVENT_TEST_UTIL_H_
#define KOVA_TESTS_EVENTS_EVENT_TEST_UTIL_H_

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "kova/kova.h"

namespace kova_test {

using Visit = std::function<void(uint32_t code, const void* info, uint32_t size)>;

struct Delivery {
  uint32_t code;
  uint32_t size;
  bool hasRecord;
};

inline int KOVA_CALL CallVisit(uint32_t code, const void* info, uint32_t size, const void*,
                               uint32_t, void* user) {
  (*static_cast<const Visit*>(user))(code, info, size);
  return 0;
}

inline int ReadEvents(const std::string& doc, const Visit& visit, bool byCallback = false) {
  const uint32_t len = static_cast<uint32_t>(doc.size());
  void* user = const_cast<Visit*>(&visit);
  return byCallback ? KOVA_ParseDataByCallback(doc.c_str(), len, CallVisit, user)
                    : KOVA_ParseAnalyzerEventData(doc.c_str(), len, CallVisit, user);
}

// Every delivery of `doc`, in order.
inline std::vector<Delivery> Deliveries(const std::string& doc, bool byCallback = false,
                                        int* ret = nullptr) {
  std::vector<Delivery> out;
  const int r = ReadEvents(
      doc,
      [&](uint32_t code, const void* info, uint32_t size) {
        out.push_back({code, size, info != nullptr});
      },
      byCallback);
  if (ret != nullptr) *ret = r;
  return out;
}

// The codes of Deliveries(doc).
inline std::vector<uint32_t> Codes(const std::string& doc, bool byCallback = false,
                                   int* ret = nullptr) {
  std::vector<uint32_t> codes;
  for (const Delivery& d : Deliveries(doc, byCallback, ret)) codes.push_back(d.code);
  return codes;
}

// A device notification carrying `events` (a JSON array's inside).
inline std::string Notification(const std::string& events) {
  return R"({"method":"client.notifyEventStream","params":{"SID":513,"eventList":[)" + events +
         "]}}";
}

}  // namespace kova_test

#endif  // KOVA_TESTS_EVENTS_EVENT_TEST_UTIL_H_
