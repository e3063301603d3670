#include "common/json/json_writer.h"

#include <cinttypes>
#include <cstdio>
#include <cstring>

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

void WriteValue(const Json::Value& v, std::string* out) {
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
      const Json::ArrayIndex n = v.size();
      for (Json::ArrayIndex i = 0; i < n; ++i) {
        if (i != 0) out->append(", ");
        WriteValue(v[i], out);
      }
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
        WriteValue(*it, out);
      }
      out->append(" }");
      break;
    }
  }
}

}  // namespace

std::string WriteJson(const Json::Value& root) {
  std::string out;
  WriteValue(root, &out);
  out.push_back('\n');
  return out;
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
