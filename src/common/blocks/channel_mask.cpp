#include "common/blocks/channel_mask.h"

#include <cstring>

#include "common/json/json.h"

namespace kova {

void ParseChannelMask(const Json::Value& channels, ChannelRule rule, uint32_t words[16]) {
  if (!channels.isArray()) return;
  uint32_t n = Count(channels);
  if (n > kMaskChannels) n = kMaskChannels;
  for (uint32_t i = 0; i < n; ++i) {
    const int32_t c = ToInt32(Element(channels, i));
    if (rule == ChannelRule::kInRange) {
      if (c < 0 || c >= static_cast<int32_t>(kMaskChannels)) continue;
      words[c / 32] |= 1u << (c % 32);
    } else {
      // Truncating division sends -31..-1 to word 0 and the masked signed
      // remainder to bits 1..31: the device reads these sets that way.
      if (c <= -32 || c / 32 >= static_cast<int32_t>(kMaskWords)) continue;
      words[c / 32] |= 1u << ((c % 32) & 31);
    }
  }
}

Json::Value PackChannelMask(const uint32_t words[16]) {
  Json::Value out(Json::arrayValue);
  for (uint32_t c = 0; c < kMaskChannels; ++c) {
    if ((words[c / 32] >> (c % 32)) & 1u) out.append(Json::Value(static_cast<Json::UInt>(c)));
  }
  return out;
}

void ParseChannelSets(const Json::Value& obj, void* record, const ChannelSetField* sets,
                      size_t count) {
  unsigned char* base = static_cast<unsigned char*>(record);
  for (size_t i = 0; i < count; ++i) {
    const ChannelSetField& f = sets[i];
    const Json::Value& v = Member(obj, f.key);
    if (v.isNull()) continue;
    // In-range sets count only when given as an array; the wrapping sets are
    // marked present whatever they hold (the two rules differ on purpose).
    if (f.rule == ChannelRule::kInRange && !v.isArray()) continue;
    base[f.presence] = 1;
    uint32_t words[kMaskWords];
    std::memcpy(words, base + f.offset, sizeof words);
    ParseChannelMask(v, f.rule, words);
    std::memcpy(base + f.offset, words, sizeof words);
  }
}

void PackChannelSets(const void* record, Json::Value& obj, const ChannelSetField* sets,
                     size_t count) {
  const unsigned char* base = static_cast<const unsigned char*>(record);
  for (size_t i = 0; i < count; ++i) {
    const ChannelSetField& f = sets[i];
    if (base[f.presence] == 0) continue;
    uint32_t words[kMaskWords];
    std::memcpy(words, base + f.offset, sizeof words);
    Json::Value channels = PackChannelMask(words);
    if (Count(channels) != 0) {
      SetMember(obj, f.key) = channels;
    } else if (f.empty == EmptySet::kNull) {
      SetMember(obj, f.key) = Json::Value(Json::nullValue);
    }
  }
}

}  // namespace kova
