// "Encode": the per-channel encoder configuration, up to three main-stream,
// three extra-stream and three snapshot formats per channel.
//
// The envelope is handled here rather than by the table drivers: the channel
// number comes from the response's root, and one channel's "table" is a bare
// object. Parse never clears the caller's buffer.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "common/fields/field_table.h"
#include "common/json/json.h"
#include "common/json/json_writer.h"
#include "config/media/encode_format.h"
#include "config/media/media_response.h"
#include "config/media/translators.h"
#include "kova/records/media.h"

namespace kova {

namespace {

constexpr uint32_t kRecordSize = sizeof(EncodeConfig);
constexpr uint32_t kFormatSlots = 3;
constexpr int32_t kLayoutVersion = 3;

struct FormatArray {
  const char* key;
  size_t offset;
};

const FormatArray kFormatArrays[] = {
    {"MainFormat", offsetof(EncodeConfig, mainFormat)},
    {"ExtraFormat", offsetof(EncodeConfig, extraFormat)},
    {"SnapFormat", offsetof(EncodeConfig, snapFormat)},
};

void ParseChannel(const Json::Value& table, int32_t channel, unsigned char* record) {
  StoreInt(record + offsetof(EncodeConfig, layoutVersion), 4, kLayoutVersion);
  StoreInt(record + offsetof(EncodeConfig, channel), 4, channel);
  for (const FormatArray& a : kFormatArrays) {
    const Json::Value& formats = Member(table, a.key);
    if (!formats.isArray()) continue;
    // Devices have been seen sending a fourth format; the record holds three.
    const uint32_t n = std::min(Count(formats), kFormatSlots);
    for (uint32_t i = 0; i < n; ++i) {
      ParseEncodeFormat(Element(formats, i), record + a.offset + i * sizeof(EncodeFormat));
    }
  }
}

void PackChannel(const unsigned char* record, Json::Value& target) {
  for (const FormatArray& a : kFormatArrays) {
    Json::Value& formats = SetMember(target, a.key);
    formats = Json::Value(Json::arrayValue);
    for (uint32_t i = 0; i < kFormatSlots; ++i) {
      PackEncodeFormat(record + a.offset + i * sizeof(EncodeFormat), SetElement(formats, i));
    }
  }
}

}  // namespace

int ParseEncode(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen) {
  if (jsonText == nullptr || outBuf == nullptr || outLen < kRecordSize) return 0;
  Json::Value root;
  const Json::Value* table = nullptr;
  if (!ReadResponse(jsonText, true, &root, &table)) return 0;
  const int32_t channel = ToInt32(Member(root, "channel"));
  if (table->isNull()) {
    SetReturnedLength(retLen, 0);
    return 1;
  }
  unsigned char* out = static_cast<unsigned char*>(outBuf);
  if (channel >= 0) {
    ParseChannel(*table, channel, out);
    SetReturnedLength(retLen, kRecordSize);
    return 1;
  }
  // A negative channel asks for every channel: one array element per record.
  if (!table->isArray()) return 0;
  const uint32_t n = std::min(Count(*table), outLen / kRecordSize);
  for (uint32_t i = 0; i < n; ++i) {
    ParseChannel(Element(*table, i), static_cast<int32_t>(i),
                 out + static_cast<uint64_t>(i) * kRecordSize);
  }
  SetReturnedLength(retLen, static_cast<uint64_t>(n) * kRecordSize);
  return 1;
}

int PackEncode(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen) {
  if (inBuf == nullptr || outJson == nullptr || inLen == 0 || outLen == 0) return 0;
  if (inLen < kRecordSize) return 0;
  std::memset(outJson, 0, outLen);
  const unsigned char* in = static_cast<const unsigned char*>(inBuf);
  Json::Value root;
  if (inLen == kRecordSize) {
    PackChannel(in, root);
  } else {
    // Anything beyond one record is an array, even one record and a partial one.
    root = Json::Value(Json::arrayValue);
    for (uint32_t i = 0; i < inLen / kRecordSize; ++i) {
      PackChannel(in + static_cast<uint64_t>(i) * kRecordSize, SetElement(root, i));
    }
  }
  // The text may fill the buffer exactly, without a terminator.
  return CopyTextAtMost(WriteJson(root), outJson, outLen) ? 1 : 0;
}

}  // namespace kova
