// Channel sets: 512 channels held as sixteen 32-bit words (channel c is bit
// c % 32 of word c / 32), written on the device as an array of channel
// numbers.
#ifndef KOVA_COMMON_CHANNEL_MASK_H_
#define KOVA_COMMON_CHANNEL_MASK_H_

#include <json/value.h>

#include <cstdint>

#include "common/fields/field_table.h"

namespace kova {

constexpr uint32_t kMaskChannels = 512;
constexpr uint32_t kMaskWords = 16;

// How the device's channel numbers are read.
enum class ChannelRule : uint8_t {
  // Only 0..511 set a bit; anything else is skipped. The set counts as
  // given only when it is an array.
  kInRange,
  // The device's own reading of tour and matrix channels: -31..-1 also set
  // bit 32 + c of the first word (a signed remainder masked to 5 bits).
  // Lower numbers would address words before the set and are skipped. The
  // set counts as given whatever it holds (not null).
  kWrapNegative,
};

// What a flagged but empty set packs as.
enum class EmptySet : uint8_t {
  kOmit,  // the member is not written
  kNull,  // the member is written as null
};

// Reads at most 512 items of `channels` (an array; anything else sets
// nothing) into `words`, OR-ing bits in.
void ParseChannelMask(const Json::Value& channels, ChannelRule rule, uint32_t words[16]);
// The set channel numbers, ascending, as an array of unsigned integers.
Json::Value PackChannelMask(const uint32_t words[16]);

// Custom steps of a channel-set member (uint32_t[16]) in a field table; the
// field's flag is its presence flag. Use KOVA_CHANNEL_SET.
template <ChannelRule kRule>
void ParseChannelSet(const Json::Value& obj, unsigned char* record, const Field& f);
template <EmptySet kEmpty>
void PackChannelSet(const unsigned char* record, Json::Value& obj, const Field& f);

extern template void ParseChannelSet<ChannelRule::kInRange>(const Json::Value&, unsigned char*,
                                                            const Field&);
extern template void ParseChannelSet<ChannelRule::kWrapNegative>(const Json::Value&, unsigned char*,
                                                                 const Field&);
extern template void PackChannelSet<EmptySet::kOmit>(const unsigned char*, Json::Value&,
                                                     const Field&);
extern template void PackChannelSet<EmptySet::kNull>(const unsigned char*, Json::Value&,
                                                     const Field&);

}  // namespace kova

// A channel set in a field table:
//   KOVA_CHANNEL_SET(Rec, recordChannels, "RecordChannels", kInRange, kOmit).Flag(...)
#define KOVA_CHANNEL_SET(Rec, member, key, RULE, EMPTY)                             \
  KOVA_CUSTOM(Rec, member, key, ::kova::ParseChannelSet<::kova::ChannelRule::RULE>, \
              ::kova::PackChannelSet<::kova::EmptySet::EMPTY>)

#endif  // KOVA_COMMON_CHANNEL_MASK_H_
