// Reading a fuzzer's input: a few header bytes that choose the name, the
// sizes and the fills, then the payload (JSON text or record bytes).
//
// Names are chosen by their index in the dispatch lists, whose order never
// changes, and moved forward to the next built name: a seed keeps its
// meaning as more translators are bound, and no time goes to names that
// refuse at once.
#ifndef KOVA_FUZZ_FUZZ_INPUT_H_
#define KOVA_FUZZ_FUZZ_INPUT_H_

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "harness/catalog.h"

namespace kova_fuzz {

class FuzzInput {
 public:
  FuzzInput(const uint8_t* data, size_t size) : p_(data), end_(data + size) {}

  uint8_t Byte() { return p_ < end_ ? *p_++ : 0; }
  uint16_t Word() {
    const uint16_t lo = Byte();
    return static_cast<uint16_t>(lo | (Byte() << 8));
  }
  // Everything not read yet.
  std::string Rest() {
    std::string s(reinterpret_cast<const char*>(p_), static_cast<size_t>(end_ - p_));
    p_ = end_;
    return s;
  }

 private:
  const uint8_t* p_;
  const uint8_t* end_;
};

// The header written in front of a payload; the seed maker writes the same.
struct Header {
  uint16_t name = 0;   // list index
  uint8_t size = 0;    // size selector (see ChooseSize)
  uint8_t other = 0;   // second selector: pack output size, or fill
  uint8_t flags = 0;   // name letter case (bits 0-1), prefill choices (bits 2-3)
  uint16_t extra = 0;  // free number the selectors draw on
};
constexpr size_t kHeaderSize = 7;
// The event fuzzer's header: flags (bit 0: parse by callback; bit 1: the
// length argument is the next two bytes instead of the text's length).
constexpr size_t kEventHeaderSize = 3;

inline Header ReadHeader(FuzzInput* in) {
  Header h;
  h.name = in->Word();
  h.size = in->Byte();
  h.other = in->Byte();
  h.flags = in->Byte();
  h.extra = in->Word();
  return h;
}

inline std::string WriteHeader(const Header& h) {
  const char b[kHeaderSize] = {static_cast<char>(h.name & 0xFF), static_cast<char>(h.name >> 8),
                               static_cast<char>(h.size),        static_cast<char>(h.other),
                               static_cast<char>(h.flags),       static_cast<char>(h.extra & 0xFF),
                               static_cast<char>(h.extra >> 8)};
  return std::string(b, kHeaderSize);
}

// A buffer size around a record size: the record, one byte less or more,
// several records, one byte, arbitrary small sizes. 255 with an `extra`
// whose low four bits are clear asks for 16 MiB, rarely enough that the
// time of clearing such buffers does not eat the fuzzing.
inline uint32_t ChooseSize(uint8_t selector, uint32_t recordSize, uint16_t extra) {
  using kova_harness::kHugeBuffer;
  if (selector == 255 && (extra & 0xF) == 0) return kHugeBuffer;
  const uint64_t r = recordSize != 0 ? recordSize : kova_harness::kUnknownRecordSize;
  uint64_t n = r;
  switch (selector % 8) {
    case 0:
      n = r;
      break;
    case 1:
      n = r - 1;
      break;
    case 2:
      n = r + 1;
      break;
    case 3:
      n = r * (2 + extra % 6);
      break;
    case 4:
      n = 1;
      break;
    case 5:
      n = 1 + extra;
      break;
    case 6:
      n = r + extra % 64;
      break;
    case 7:
      n = 2 * r - 1;
      break;
  }
  if (n == 0) n = 1;
  return static_cast<uint32_t>(n < kHugeBuffer ? n : kHugeBuffer);
}

// `name` in the letter case the flags ask for: as listed, upper, lower,
// alternating.
inline std::string NameVariant(const char* name, uint8_t flags) {
  std::string s(name);
  for (size_t i = 0; i < s.size(); ++i) {
    char& c = s[i];
    const bool upper = (flags & 3) == 1 || ((flags & 3) == 3 && i % 2 == 0);
    const bool lower = (flags & 3) == 2 || ((flags & 3) == 3 && i % 2 == 1);
    if (upper && c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    if (lower && c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return s;
}

// Reports a broken rule and stops, so that libFuzzer keeps the input.
[[noreturn]] inline void Fail(const char* direction, const char* name, const std::string& what) {
  std::fprintf(stderr, "\n*** kova %s \"%s\": %s\n\n", direction, name, what.c_str());
  std::abort();
}

}  // namespace kova_fuzz

#endif  // KOVA_FUZZ_FUZZ_INPUT_H_
