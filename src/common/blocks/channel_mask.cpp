#include "common/blocks/channel_mask.h"

#include <cstring>
#include <utility>

#include "common/json/json.h"

namespace kova {

void ParseChannelMask(const Json::Value& channels, ChannelRule rule, uint32_t words[16]) {
  ForEachElement(channels, kMaskChannels, [rule, words](uint32_t, const Json::Value& item) {
    const int32_t c = ToInt32(item);
    if (rule == ChannelRule::kInRange) {
      if (c < 0 || c >= static_cast<int32_t>(kMaskChannels)) return;
      words[c / 32] |= 1u << (c % 32);
    } else {
      // Truncating division sends -31..-1 to word 0 and the masked signed
      // remainder to bits 1..31: the device reads these sets that way.
      if (c <= -32 || c / 32 >= static_cast<int32_t>(kMaskWords)) return;
      words[c / 32] |= 1u << ((c % 32) & 31);
    }
  });
}

Json::Value PackChannelMask(const uint32_t words[16]) {
  Json::Value out(Json::arrayValue);
  for (uint32_t c = 0; c < kMaskChannels; ++c) {
    if ((words[c / 32] >> (c % 32)) & 1u) out.append(Json::Value(static_cast<Json::UInt>(c)));
  }
  return out;
}

template <ChannelRule kRule>
void ParseChannelSet(const Json::Value& obj, unsigned char* record, const Field& f) {
  const Json::Value& v = Member(obj, f.key);
  if (v.isNull()) return;
  // In-range sets count only when given as an array; the wrapping sets are
  // marked present whatever they hold (the two rules differ on purpose).
  if (kRule == ChannelRule::kInRange && !v.isArray()) return;
  MarkPresent(record, f);
  uint32_t words[kMaskWords];
  std::memcpy(words, record + f.offset, sizeof words);
  ParseChannelMask(v, kRule, words);
  std::memcpy(record + f.offset, words, sizeof words);
}

template <EmptySet kEmpty>
void PackChannelSet(const unsigned char* record, Json::Value& obj, const Field& f) {
  uint32_t words[kMaskWords];
  std::memcpy(words, record + f.offset, sizeof words);
  Json::Value channels = PackChannelMask(words);
  if (Count(channels) != 0) {
    SetKeptMember(obj, f.key) = std::move(channels);
  } else if (kEmpty == EmptySet::kNull) {
    SetKeptMember(obj, f.key) = Json::Value(Json::nullValue);
  }
}

template void ParseChannelSet<ChannelRule::kInRange>(const Json::Value&, unsigned char*,
                                                     const Field&);
template void ParseChannelSet<ChannelRule::kWrapNegative>(const Json::Value&, unsigned char*,
                                                          const Field&);
template void PackChannelSet<EmptySet::kOmit>(const unsigned char*, Json::Value&, const Field&);
template void PackChannelSet<EmptySet::kNull>(const unsigned char*, Json::Value&, const Field&);

}  // namespace kova
