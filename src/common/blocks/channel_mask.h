// Channel sets: 512 channels held as sixteen 32-bit words (channel c is bit
// c % 32 of word c / 32), written on the device as an array of channel
// numbers.
#ifndef KOVA_COMMON_CHANNEL_MASK_H_
#define KOVA_COMMON_CHANNEL_MASK_H_

#include <json/value.h>

#include <cstddef>
#include <cstdint>

namespace kova {

constexpr uint32_t kMaskChannels = 512;
constexpr uint32_t kMaskWords = 16;

// How the device's channel numbers are read.
enum class ChannelRule : uint8_t {
  // Only 0..511 set a bit; anything else is skipped.
  kInRange,
  // The device's own reading of tour and matrix channels: -31..-1 also set
  // bit 32 + c of the first word (a signed remainder masked to 5 bits).
  // Lower numbers would address words before the set and are skipped.
  kWrapNegative,
};

// What a flagged but empty set packs as.
enum class EmptySet : uint8_t {
  kOmit,  // the member is not written
  kNull,  // the member is written as null
};

// One channel set of a record: its key, the offset of its uint32[16] words,
// and the offset of its one-byte presence flag.
struct ChannelSetField {
  const char* key;
  uint32_t offset;
  uint32_t presence;
  ChannelRule rule;
  EmptySet empty;
};

// Reads at most 512 items of `channels` (an array; anything else sets
// nothing) into `words`, OR-ing bits in.
void ParseChannelMask(const Json::Value& channels, ChannelRule rule, uint32_t words[16]);
// The set channel numbers, ascending, as an array of unsigned integers.
Json::Value PackChannelMask(const uint32_t words[16]);

// Parse: a set given as an array (for kWrapNegative: given at all, not
// null) is marked present and read. Pack: each flagged set is written, an
// empty one as its `empty` rule says.
void ParseChannelSets(const Json::Value& obj, void* record, const ChannelSetField* sets,
                      size_t count);
void PackChannelSets(const void* record, Json::Value& obj, const ChannelSetField* sets,
                     size_t count);

}  // namespace kova

#endif  // KOVA_COMMON_CHANNEL_MASK_H_
