#include "common/fields/json_text.h"

#include <cstring>
#include <string>

#include "common/json/json.h"
#include "common/json/json_writer.h"

namespace kova {

void ParseJsonText(const Json::Value& obj, unsigned char* record, const Field& f) {
  const Json::Value& v = Member(obj, f.key);
  if (v.isNull() || f.size == 0) return;
  std::string text = WriteJson(v);
  if (!text.empty() && text.back() == '\n') text.pop_back();
  if (text.size() >= f.size) return;
  std::memcpy(record + f.offset, text.c_str(), text.size() + 1);
  if (f.presence == Presence::kFlag) StoreInt(record + f.flag.offset, f.flag.size, 1);
}

void PackJsonText(const unsigned char* record, Json::Value& obj, const Field& f) {
  const char* p = reinterpret_cast<const char*>(record + f.offset);
  const std::string text(p, strnlen(p, f.size));
  Json::Value v;
  if (!ReadJson(text.c_str(), &v)) return;
  SetKeptMember(obj, f.key) = v;
}

}  // namespace kova
