#include "common/json/json_writer.h"

#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <cstring>

#include "common/json/json.h"

namespace kova {

namespace {

void WriteString(const char* begin, const char* end, std::string* out) {
  out->push_back('"');
  for (const char* p = begin; p != end; ++p) {
    switch (*p) {
      case '\b':
        out->append("\\b");
        break;
      case '\t':
        out->append("\\t");
        break;
      case '\n':
        out->append("\\n");
        break;
      case '\f':
        out->append("\\f");
        break;
      case '\r':
        out->append("\\r");
        break;
      case '"':
        out->append("\\\"");
        break;
      case '/':
        out->append("\\/");
        break;
      case '\\':
        out->append("\\\\");
        break;
      default:
        out->push_back(*p);
        break;
    }
  }
  out->push_back('"');
}

// Writes `v` unless the text would pass `room` bytes: false as soon as it
// has (what `out` holds then is to be thrown away).
bool WriteValue(const Json::Value& v, uint64_t room, std::string* out) {
  char num[64];
  switch (v.type()) {
    case Json::nullValue:
      out->append("null");
      break;
    case Json::booleanValue:
      out->append(v.asBool() ? "true" : "false");
      break;
    case Json::intValue:
      std::snprintf(num, sizeof num, "%" PRId64, static_cast<int64_t>(v.asLargestInt()));
      out->append(num);
      break;
    case Json::uintValue:
      std::snprintf(num, sizeof num, "%" PRIu64, static_cast<uint64_t>(v.asLargestUInt()));
      out->append(num);
      break;
    case Json::realValue:
      std::snprintf(num, sizeof num, "%#.16g", v.asDouble());
      out->append(num);
      break;
    case Json::stringValue: {
      const char* begin = nullptr;
      const char* end = nullptr;
      if (v.getString(&begin, &end)) {
        WriteString(begin, end, out);
      } else {
        out->append("\"\"");
      }
      break;
    }
    case Json::arrayValue: {
      out->append("[ ");
      bool fits = true;
      ForEachElement(v, v.size(), [&](uint32_t i, const Json::Value& e) {
        if (i != 0) out->append(", ");
        fits = WriteValue(e, room, out);
        return fits;
      });
      if (!fits) return false;
      out->append(" ]");
      break;
    }
    case Json::objectValue: {
      out->append("{ ");
      bool first = true;
      for (auto it = v.begin(); it != v.end(); ++it) {
        if (!first) out->append(", ");
        first = false;
        const char* kb = nullptr;
        const char* ke = nullptr;
        kb = it.memberName(&ke);
        WriteString(kb, ke, out);
        out->append(" : ");
        if (!WriteValue(*it, room, out)) return false;
      }
      out->append(" }");
      break;
    }
  }
  return out->size() <= room;
}

uint64_t StringLength(const char* begin, const char* end) {
  uint64_t n = 2 + static_cast<uint64_t>(end - begin);
  for (const char* p = begin; p != end; ++p) {
    switch (*p) {
      case '\b':
      case '\t':
      case '\n':
      case '\f':
      case '\r':
      case '"':
      case '/':
      case '\\':
        ++n;
        break;
      default:
        break;
    }
  }
  return n;
}

uint64_t Digits(uint64_t x) {
  uint64_t n = 1;
  for (; x >= 10; x /= 10) ++n;
  return n;
}

}  // namespace

uint64_t TextLength(const Json::Value& v) {
  switch (v.type()) {
    case Json::nullValue:
      return 4;
    case Json::booleanValue:
      return v.asBool() ? 4 : 5;
    case Json::intValue: {
      const int64_t x = v.asLargestInt();
      // The magnitude in unsigned arithmetic: INT64_MIN has no positive twin.
      return x < 0 ? 1 + Digits(0 - static_cast<uint64_t>(x)) : Digits(static_cast<uint64_t>(x));
    }
    case Json::uintValue:
      return Digits(v.asLargestUInt());
    case Json::realValue: {
      char num[64];
      const int n = std::snprintf(num, sizeof num, "%#.16g", v.asDouble());
      return n > 0 ? std::min<uint64_t>(static_cast<uint64_t>(n), sizeof num - 1) : 0;
    }
    case Json::stringValue: {
      const char* begin = nullptr;
      const char* end = nullptr;
      return v.getString(&begin, &end) ? StringLength(begin, end) : 2;
    }
    case Json::arrayValue: {
      const Json::ArrayIndex n = v.size();
      uint64_t total = 4 + (n != 0 ? 2 * (static_cast<uint64_t>(n) - 1) : 0);  // "[ ", ", ", " ]"
      ForEachElement(v, n, [&total](uint32_t, const Json::Value& e) { total += TextLength(e); });
      return total;
    }
    case Json::objectValue: {
      const Json::ArrayIndex n = v.size();
      uint64_t total = 4 + (n != 0 ? 2 * (static_cast<uint64_t>(n) - 1) : 0);  // "{ ", ", ", " }"
      for (auto it = v.begin(); it != v.end(); ++it) {
        const char* ke = nullptr;
        const char* kb = it.memberName(&ke);
        total += StringLength(kb, ke) + 3 + TextLength(*it);  // key, " : ", value
      }
      return total;
    }
  }
  return 0;
}

namespace {

// The least text an object keeps whatever its values become: its keys, each
// with " : " and at least one byte of value, and the separators.
uint64_t KeptLength(const Json::Value& v) {
  if (!v.isObject()) return 0;
  const Json::ArrayIndex n = v.size();
  uint64_t total = 4 + (n != 0 ? 2 * (static_cast<uint64_t>(n) - 1) : 0);
  for (auto it = v.begin(); it != v.end(); ++it) {
    const char* ke = nullptr;
    const char* kb = it.memberName(&ke);
    total += StringLength(kb, ke) + 3 + 1;
  }
  return total;
}

}  // namespace

bool TextBudget::Spend(const Json::Value& root, uint32_t index) {
  if (root.isArray()) {
    // "[ " and " ]" and the newline come with the first element, ", " with each other.
    spent_ += (index == 0 ? 5 : 2) + TextLength(Element(root, index));
  } else if ((index & (index + 1)) == 0) {
    // A later record may replace a member's value with a shorter one (two
    // devices with one identifier), so only what the object keeps counts.
    spent_ = KeptLength(root) + 1;
  }
  return spent_ <= room_;
}

std::string WriteJson(const Json::Value& root) {
  std::string out;
  WriteValue(root, UINT64_MAX, &out);
  out.push_back('\n');
  return out;
}

bool WriteJsonWithin(const Json::Value& root, uint64_t room, std::string* text) {
  text->clear();
  if (room == 0 || !WriteValue(root, room - 1, text)) return false;
  text->push_back('\n');
  return true;
}

bool CopyTextStrict(const std::string& text, char* out, uint32_t outLen) {
  if (out == nullptr || outLen <= text.size()) return false;
  std::memcpy(out, text.c_str(), text.size() + 1);
  return true;
}

bool CopyTextAtMost(const std::string& text, char* out, uint32_t outLen) {
  if (out == nullptr || outLen < text.size()) return false;
  std::memcpy(out, text.data(), text.size());
  if (outLen > text.size()) out[text.size()] = '\0';
  return true;
}

}  // namespace kova
