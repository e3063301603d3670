// Helpers shared by the suites: device answers, the shipped samples and
// fixtures, and records parsed and packed through the exported functions.
#ifndef KOVA_TESTS_TEST_UTIL_H_
#define KOVA_TESTS_TEST_UTIL_H_

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "kova/kova.h"

namespace kova_test {

// A device response around `table`.
inline std::string Doc(const std::string& table) {
  return R"({"id":7,"result":true,"params":{"table":)" + table + R"(},"session":1830472615})";
}

inline std::string ReadFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}
inline std::string Sample(const std::string& name) {
  return ReadFile(KOVA_SAMPLES_DIR "/" + name + ".json");
}
inline std::string Fixture(const std::string& name) {
  return ReadFile(KOVA_FIXTURES_DIR "/" + name);
}

// A zeroed record on the heap (records holding a linkage block run to
// hundreds of KB).
template <typename Rec>
std::unique_ptr<Rec> NewRecord() {
  std::unique_ptr<Rec> r(new Rec);
  std::memset(r.get(), 0, sizeof(Rec));
  return r;
}

// Parses `json` as `name` into a new zeroed record; `rc` receives the result.
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

// Sets KOVA_CODEPAGE while it lives, then puts the previous value back.
class CodePage {
 public:
  explicit CodePage(const char* value) {
    const char* old = std::getenv("KOVA_CODEPAGE");
    if (old != nullptr) old_ = old;
    had_ = old != nullptr;
    setenv("KOVA_CODEPAGE", value, 1);
  }
  ~CodePage() { had_ ? setenv("KOVA_CODEPAGE", old_.c_str(), 1) : unsetenv("KOVA_CODEPAGE"); }

 private:
  bool had_ = false;
  std::string old_;
};

}  // namespace kova_test

#endif  // KOVA_TESTS_TEST_UTIL_H_
