// Helpers shared by the alarm and access-control tests: device documents,
// the packed text of a record, and the text of a packed 7-day week.
#ifndef KOVA_TESTS_CONFIG_ALARM_ALARM_TEST_UTIL_H_
#define KOVA_TESTS_CONFIG_ALARM_ALARM_TEST_UTIL_H_

#include <cstdint>
#include <cstring>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "kova/kova.h"

namespace kova_test {

// A device response around `table`.
inline std::string Doc(const std::string& table, const std::string& params = "") {
  return R"({"id":7,"result":true,"params":{)" + params + R"("table":)" + table +
         R"(},"session":1830472615})";
}

inline std::string ReadFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}
inline std::string Sample(const std::string& name) {
  return ReadFile(KOVA_SAMPLES_DIR "/" + name + ".json");
}
inline std::string Fixture(const std::string& name) {
  return ReadFile(KOVA_FIXTURES_DIR "/" + name + ".json");
}
// The text a member's sample (or fixture) response packs back to.
inline std::string PackedText(const std::string& name) {
  return ReadFile(KOVA_FIXTURES_DIR "/" + name + ".packed.txt");
}

// A zeroed record of type Rec on the heap (alarm records hold a linkage
// block of some 330 KB).
template <typename Rec>
std::unique_ptr<Rec> NewRecord() {
  std::unique_ptr<Rec> r(new Rec);
  std::memset(r.get(), 0, sizeof(Rec));
  return r;
}

// Parses `json` as `name` into a new record; `rc` receives the result.
template <typename Rec>
std::unique_ptr<Rec> ParseAs(const char* name, const std::string& json, int* rc,
                             uint32_t* retLen = nullptr) {
  std::unique_ptr<Rec> r = NewRecord<Rec>();
  *rc = KOVA_ParseData(name, json.c_str(), r.get(), sizeof(Rec), retLen);
  return r;
}

// The packed text of `inLen` bytes at `in`, or "<failed>".
inline std::string PackBytes(const char* name, const void* in, uint32_t inLen,
                             uint32_t outLen = 1u << 20) {
  std::vector<char> out(outLen);
  if (!KOVA_PacketData(name, in, inLen, out.data(), outLen)) return "<failed>";
  return std::string(out.data(), strnlen(out.data(), out.size()));
}
template <typename Rec>
std::string Pack(const char* name, const Rec& r) {
  return PackBytes(name, &r, sizeof r);
}

// The packed "TimeSection" of a 7 x 6 grid whose only non-empty section is
// the first of day 0.
inline std::string WeekText(const std::string& first) {
  const std::string off = "\"0 00:00:00-00:00:00\"";
  std::string t = "[ ";
  for (int d = 0; d < 7; ++d) {
    t += d ? ", [ " : "[ ";
    for (int s = 0; s < 6; ++s) {
      if (s) t += ", ";
      t += (d == 0 && s == 0) ? "\"" + first + "\"" : off;
    }
    t += " ]";
  }
  return t + " ]";
}

// A small linkage block as the device sends it, and what it packs to.
inline const char* kHandlerJson =
    R"({"RecordChannels":[1],"RecordEnable":true,"TimeSection":[["1 00:00:00-24:00:00"]]})";
inline std::string HandlerText() {
  return R"("EventHandler" : { "AlarmOutEnable" : false, "RecordChannels" : [ 1 ], )"
         R"("RecordEnable" : true, "TimeSection" : )" +
         WeekText("1 00:00:00-24:00:00") + " }";
}

}  // namespace kova_test

#endif  // KOVA_TESTS_CONFIG_ALARM_ALARM_TEST_UTIL_H_
