#include "common/json/json.h"

#include <json/reader.h>

#include <cmath>
#include <cstring>
#include <memory>

namespace kova {

namespace {

// One reader per thread, made on first use: setting a reader up costs more
// than reading a short device response. The reader starts afresh at every
// parse, also after one that threw (nesting beyond its limit).
Json::CharReader& ThreadReader() {
  thread_local const std::unique_ptr<Json::CharReader> reader = [] {
    Json::CharReaderBuilder builder;
    builder["collectComments"] = false;
    return std::unique_ptr<Json::CharReader>(builder.newCharReader());
  }();
  return *reader;
}

}  // namespace

const Json::Value& Null() {
  static const Json::Value kNull;
  return kNull;
}

bool ReadJson(const char* text, Json::Value* root) {
  if (text == nullptr || root == nullptr) return false;
  try {
    return ThreadReader().parse(text, text + std::strlen(text), root, nullptr);
  } catch (...) {
    return false;
  }
}

const Json::Value& Member(const Json::Value& v, const char* key) {
  const Json::Value* found = FindMember(v, key, std::strlen(key));
  return found != nullptr ? *found : Null();
}

const Json::Value* FindMember(const Json::Value& v, const char* key, size_t length) {
  return v.isObject() ? v.find(key, key + length) : nullptr;
}

bool HasMember(const Json::Value& v, const char* key) {
  return FindMember(v, key, std::strlen(key)) != nullptr;
}

const Json::Value& Element(const Json::Value& v, uint64_t i) {
  if (!v.isArray() || i >= v.size()) return Null();
  return v[static_cast<Json::ArrayIndex>(i)];
}

uint32_t Count(const Json::Value& v) { return (v.isArray() || v.isObject()) ? v.size() : 0; }

int32_t ToInt32(const Json::Value& v) {
  switch (v.type()) {
    case Json::intValue: {
      const Json::LargestInt n = v.asLargestInt();
      return (n >= INT32_MIN && n <= INT32_MAX) ? static_cast<int32_t>(n) : 0;
    }
    case Json::uintValue: {
      // Only values beyond the signed 64-bit range are held unsigned; the
      // bound is exclusive on purpose (2147483647 itself gives 0).
      const Json::LargestUInt n = v.asLargestUInt();
      return n < 2147483647u ? static_cast<int32_t>(n) : 0;
    }
    case Json::realValue: {
      const double d = v.asDouble();
      return (d >= -2147483648.0 && d <= 2147483647.0) ? static_cast<int32_t>(d) : 0;
    }
    case Json::booleanValue:
      return v.asBool() ? 1 : 0;
    default:
      return 0;
  }
}

uint32_t ToUInt32(const Json::Value& v) {
  switch (v.type()) {
    case Json::intValue: {
      const Json::LargestInt n = v.asLargestInt();
      return (n >= 0 && n <= static_cast<Json::LargestInt>(UINT32_MAX)) ? static_cast<uint32_t>(n)
                                                                        : 0;
    }
    case Json::uintValue: {
      const Json::LargestUInt n = v.asLargestUInt();
      return n <= UINT32_MAX ? static_cast<uint32_t>(n) : 0;
    }
    case Json::realValue: {
      const double d = v.asDouble();
      return (d >= 0.0 && d <= 4294967295.0) ? static_cast<uint32_t>(d) : 0;
    }
    case Json::booleanValue:
      return v.asBool() ? 1 : 0;
    default:
      return 0;
  }
}

double ToDouble(const Json::Value& v) {
  switch (v.type()) {
    case Json::intValue:
      return static_cast<double>(v.asLargestInt());
    case Json::uintValue:
      return static_cast<double>(v.asLargestUInt());
    case Json::realValue:
      return v.asDouble();
    case Json::booleanValue:
      return v.asBool() ? 1.0 : 0.0;
    default:
      return 0.0;
  }
}

bool ToBool(const Json::Value& v) {
  switch (v.type()) {
    case Json::intValue:
      return v.asLargestInt() != 0;
    case Json::uintValue:
      return v.asLargestUInt() != 0;
    case Json::realValue:
      return v.asDouble() != 0.0;  // NaN compares unequal, so it is true
    case Json::booleanValue:
      return v.asBool();
    case Json::stringValue: {
      const char* begin = nullptr;
      const char* end = nullptr;
      return v.getString(&begin, &end) && end != begin;
    }
    case Json::arrayValue:
    case Json::objectValue:
      return v.size() != 0;
    default:
      return false;
  }
}

std::string ToText(const Json::Value& v) { return std::string(TextView(v)); }

std::string_view TextView(const Json::Value& v) {
  const char* begin = nullptr;
  const char* end = nullptr;
  if (!v.isString() || !v.getString(&begin, &end)) return std::string_view("", 0);
  return std::string_view(begin, static_cast<size_t>(end - begin));
}

const char* TextInPlace(const Json::Value& v) {
  if (!v.isString()) return "";
  const char* text = v.asCString();  // a string value is stored NUL-terminated
  return text != nullptr ? text : "";
}

Json::Value& SetMember(Json::Value& obj, const char* key) {
  if (!obj.isObject()) obj = Json::Value(Json::objectValue);
  return obj[key];
}

Json::Value& SetKeptMember(Json::Value& obj, const char* key) {
  if (!obj.isObject()) obj = Json::Value(Json::objectValue);
  return obj[Json::StaticString(key)];
}

Json::Value& SetElement(Json::Value& arr, uint32_t i) {
  if (!arr.isArray()) arr = Json::Value(Json::arrayValue);
  return arr[static_cast<Json::ArrayIndex>(i)];
}

Json::Value& Append(Json::Value& arr, const Json::Value& v) {
  if (!arr.isArray()) arr = Json::Value(Json::arrayValue);
  return arr.append(v);
}

}  // namespace kova
