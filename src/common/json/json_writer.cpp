#include "common/json/json_writer.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstring>

namespace kova {

bool TextSink::Grow(size_t n) {
  if (grown_ == nullptr || full_ || n > room_ - len_) {
    full_ = true;
    return false;
  }
  cap_ = std::min<uint64_t>(room_, std::max<uint64_t>(2 * cap_, std::max<uint64_t>(len_ + n, 256)));
  grown_->resize(cap_);
  base_ = &(*grown_)[0];
  return true;
}

void TextSink::Clear() {
  if (grown_ == nullptr && base_ != nullptr) std::memset(base_, 0, static_cast<size_t>(cap_));
  len_ = 0;
}

uint64_t TextSink::Done() {
  if (!full_) return len_;
  Clear();
  return 0;
}

namespace {

// The letter written after a backslash for each byte, 0 for a byte written
// as it is.
struct EscapeTable {
  char letter[256] = {};
  constexpr EscapeTable() {
    letter[static_cast<unsigned char>('\b')] = 'b';
    letter[static_cast<unsigned char>('\t')] = 't';
    letter[static_cast<unsigned char>('\n')] = 'n';
    letter[static_cast<unsigned char>('\f')] = 'f';
    letter[static_cast<unsigned char>('\r')] = 'r';
    letter[static_cast<unsigned char>('"')] = '"';
    letter[static_cast<unsigned char>('/')] = '/';
    letter[static_cast<unsigned char>('\\')] = '\\';
  }
};
constexpr EscapeTable kEscapes;

char EscapeOf(char c) { return kEscapes.letter[static_cast<unsigned char>(c)]; }

void WriteString(const char* begin, const char* end, TextSink* out) {
  out->Put('"');
  const char* run = begin;  // bytes written as they are, not yet put
  for (const char* p = begin; p != end; ++p) {
    const char letter = EscapeOf(*p);
    if (letter == 0) continue;
    out->Put(run, static_cast<size_t>(p - run));
    const char escaped[2] = {'\\', letter};
    out->Put(escaped, 2);
    run = p + 1;
  }
  out->Put(run, static_cast<size_t>(end - run));
  out->Put('"');
}

// A real as "%#.16g" writes it (sixteen significant digits, trailing zeros
// and the point kept, the exponent form below 1e-4 and from 1e16), laid out
// from the exactly rounded digits of the scientific form; a value that is
// not finite through printf itself. Returns the length written into `num`.
size_t FormatReal(double x, char (&num)[64]) {
  if (!std::isfinite(x)) {
    const int n = std::snprintf(num, sizeof num, "%#.16g", x);
    return n > 0 ? std::min<size_t>(static_cast<size_t>(n), sizeof num - 1) : 0;
  }
  char sci[40];  // "-d.ddddddddddddddde-308"
  const std::to_chars_result r =
      std::to_chars(sci, sci + sizeof sci, x, std::chars_format::scientific, 15);
  const char* p = sci;
  char* o = num;
  if (*p == '-') *o++ = *p++;
  char digits[16];
  digits[0] = p[0];
  std::memcpy(digits + 1, p + 2, 15);  // after "d."
  const char* e = p + 17;              // at "e"
  int exponent = 0;
  for (const char* q = e + 2; q < r.ptr; ++q) exponent = exponent * 10 + (*q - '0');
  if (e[1] == '-') exponent = -exponent;
  if (exponent < -4 || exponent >= 16) {
    std::memcpy(o, p, static_cast<size_t>(r.ptr - p));  // the scientific form as it is
    return static_cast<size_t>(o - num) + static_cast<size_t>(r.ptr - p);
  }
  if (exponent >= 0) {
    std::memcpy(o, digits, static_cast<size_t>(exponent) + 1);
    o += exponent + 1;
    *o++ = '.';
    std::memcpy(o, digits + exponent + 1, static_cast<size_t>(15 - exponent));
    o += 15 - exponent;
  } else {
    *o++ = '0';
    *o++ = '.';
    for (int z = -exponent - 1; z > 0; --z) *o++ = '0';
    std::memcpy(o, digits, sizeof digits);
    o += sizeof digits;
  }
  return static_cast<size_t>(o - num);
}

void WriteUnsigned(uint64_t x, bool negative, TextSink* out) {
  char digits[24];
  char* p = digits + sizeof digits;
  do {
    *--p = static_cast<char>('0' + x % 10);
    x /= 10;
  } while (x != 0);
  if (negative) *--p = '-';
  out->Put(p, static_cast<size_t>(digits + sizeof digits - p));
}

void WriteHole(Json::ArrayIndex index, TextSink* out) {
  if (index != 0) out->Literal(", ");
  out->Literal("null");
}

// Writes `v`; stops early once the sink is full (what it holds then is to be
// thrown away).
void WriteValue(const Json::Value& v, TextSink* out) {
  switch (v.type()) {
    case Json::nullValue:
      out->Literal("null");
      break;
    case Json::booleanValue:
      if (v.asBool()) {
        out->Literal("true");
      } else {
        out->Literal("false");
      }
      break;
    case Json::intValue:
      WriteJsonInt(v.asLargestInt(), out);
      break;
    case Json::uintValue:
      WriteUnsigned(v.asLargestUInt(), false, out);
      break;
    case Json::realValue:
      WriteJsonReal(v.asDouble(), out);
      break;
    case Json::stringValue: {
      const char* begin = nullptr;
      const char* end = nullptr;
      if (v.getString(&begin, &end)) {
        WriteString(begin, end, out);
      } else {
        out->Literal("\"\"");
      }
      break;
    }
    case Json::arrayValue: {
      out->Literal("[ ");
      // Entries in index order; an index with no entry reads as null.
      const Json::ArrayIndex size = v.size();
      Json::ArrayIndex next = 0;
      for (auto it = v.begin(), end = v.end(); it != end && !out->full(); ++it) {
        const Json::ArrayIndex index = it.index();
        for (; next < index && !out->full(); ++next) WriteHole(next, out);
        if (next != 0) out->Literal(", ");
        WriteValue(*it, out);
        next = index + 1;
      }
      for (; next < size && !out->full(); ++next) WriteHole(next, out);
      out->Literal(" ]");
      break;
    }
    case Json::objectValue: {
      out->Literal("{ ");
      bool first = true;
      for (auto it = v.begin(), end = v.end(); it != end && !out->full(); ++it) {
        if (!first) out->Literal(", ");
        first = false;
        const char* ke = nullptr;
        const char* kb = it.memberName(&ke);
        WriteString(kb, ke, out);
        out->Literal(" : ");
        WriteValue(*it, out);
      }
      out->Literal(" }");
      break;
    }
  }
}

uint64_t StringLength(const char* begin, const char* end) {
  uint64_t n = 2 + static_cast<uint64_t>(end - begin);
  for (const char* p = begin; p != end; ++p) n += EscapeOf(*p) != 0;
  return n;
}

// The least text an object keeps whatever its values become: its keys, each
// with " : " and at least one byte of value, and the separators.
uint64_t KeptLength(const Json::Value& v) {
  if (!v.isObject()) return 0;
  const Json::ArrayIndex n = v.size();
  uint64_t total = 4 + (n != 0 ? 2 * (static_cast<uint64_t>(n) - 1) : 0);
  for (auto it = v.begin(), end = v.end(); it != end; ++it) {
    const char* ke = nullptr;
    const char* kb = it.memberName(&ke);
    total += StringLength(kb, ke) + 3 + 1;
  }
  return total;
}

}  // namespace

void WriteJsonValue(const Json::Value& v, TextSink* out) { WriteValue(v, out); }

void WriteJsonString(const char* begin, const char* end, TextSink* out) {
  WriteString(begin, end, out);
}

void WriteJsonInt(int64_t x, TextSink* out) {
  // The magnitude in unsigned arithmetic: INT64_MIN has no positive twin.
  WriteUnsigned(x < 0 ? 0 - static_cast<uint64_t>(x) : static_cast<uint64_t>(x), x < 0, out);
}

void WriteJsonUInt(uint64_t x, TextSink* out) { WriteUnsigned(x, false, out); }

void WriteJsonReal(double x, TextSink* out) {
  char num[64];
  out->Put(num, FormatReal(x, num));
}

bool TextBudget::Spend(const Json::Value& root, uint32_t index) {
  // A later record may replace a member's value with a shorter one (two
  // devices with one identifier), so only what the object keeps counts.
  if ((index & (index + 1)) == 0) spent_ = KeptLength(root) + 1;
  return spent_ <= room_;
}

std::string WriteJson(const Json::Value& root) {
  std::string out;
  TextSink sink(&out, UINT64_MAX);
  WriteValue(root, &sink);
  sink.Put('\n');
  out.resize(sink.size());
  return out;
}

uint64_t WriteJsonInto(const Json::Value& root, char* out, uint64_t room) {
  TextSink sink(out, room);
  WriteValue(root, &sink);
  sink.Put('\n');
  return sink.Done();
}

void ArrayText::Separate() {
  if (count_++ == 0) {
    sink_.Literal("[ ");
  } else {
    sink_.Literal(", ");
  }
}

bool ArrayText::Add(const Json::Value& element) {
  return AddWritten([&element](TextSink* out) {
    WriteValue(element, out);
    return true;
  });
}

uint64_t ArrayText::Finish() {
  if (count_ == 0) sink_.Literal("[ ");
  sink_.Literal(" ]");
  sink_.Put('\n');
  return sink_.Done();
}

}  // namespace kova
