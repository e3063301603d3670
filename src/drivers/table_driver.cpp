#include "drivers/table_driver.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "common/json/json.h"
#include "common/json/json_writer.h"

namespace kova {

bool ResultIsTrue(const Json::Value& root) { return ToBool(Member(root, "result")); }

int64_t ArrayDepth(const Json::Value& v, int32_t shift) {
  if (shift < 0 || v.isNull()) return -1;
  if (!v.isArray()) return 0;
  const uint64_t n = v.size();
  const uint64_t step = (n >> shift) + 1;
  int64_t d = ArrayDepth(Element(v, 0), shift);
  if (step >= n) return d + 1;
  for (uint64_t i = step; i < n; i += step) {
    const int64_t e = ArrayDepth(Element(v, i), shift);
    if (e == 0) return 1;  // a sampled element that is neither array nor null
    d = std::min(d, e);
  }
  return d + 1;
}

int ParseTableDriver(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen,
                     RecordParser parser, uint64_t recordSize, int32_t depthMinusOne,
                     uint8_t arrayAllowed, uint8_t zeroFill) {
  if (recordSize == 0 || outLen < recordSize || outBuf == nullptr || parser == nullptr) return 0;
  if (zeroFill) std::memset(outBuf, 0, outLen);

  Json::Value root;
  if (!ReadJson(jsonText, &root)) return 0;
  if (!ResultIsTrue(root)) return 0;
  const Json::Value& table = Member(Member(root, "params"), "table");

  const bool arrayMode =
      arrayAllowed && ArrayDepth(table, 4) == static_cast<int64_t>(depthMinusOne) + 1;
  const uint64_t elements = arrayMode ? table.size() : 1;
  const uint64_t count = std::min<uint64_t>(elements, outLen / recordSize);

  unsigned char* out = static_cast<unsigned char*>(outBuf);
  for (uint64_t i = 0; i < count; ++i) {
    const Json::Value& element = arrayMode ? Element(table, i) : table;
    if (element.isNull()) continue;  // the slot keeps its index and contents
    parser(element, out + i * recordSize);
    if (retLen != nullptr) *retLen += static_cast<uint32_t>(recordSize);
  }
  return 1;
}

int PackTableDriver(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen,
                    RecordPacker packer, uint64_t recordSize, int32_t ignored,
                    uint8_t arrayAllowed) {
  if (outJson == nullptr || outLen == 0) return 0;
  std::memset(outJson, 0, outLen);
  if (inBuf == nullptr || packer == nullptr || recordSize == 0) return 0;
  // Without array mode one record is always packed: refuse an input that
  // does not hold it rather than read past it.
  if (!arrayAllowed && inLen < recordSize) return 0;

  Json::Value root;
  const uint64_t count = arrayAllowed ? inLen / recordSize : 1;
  const unsigned char* in = static_cast<const unsigned char*>(inBuf);
  TextBudget budget(outLen - 1);
  for (uint64_t i = 0; i < count; ++i) {
    Json::Value& target = count > 1 ? SetElement(root, static_cast<uint32_t>(i)) : root;
    packer(in + i * recordSize, target);
    if (count > 1 && !budget.Spend(root, static_cast<uint32_t>(i))) return 0;
  }
  std::string text;  // not written past what the buffer takes
  return WriteJsonWithin(root, outLen - 1, &text) && CopyTextStrict(text, outJson, outLen) ? 1 : 0;
}

}  // namespace kova
