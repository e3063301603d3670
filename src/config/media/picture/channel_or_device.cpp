// "DisableLinkage" and "FloodLightMode": one object on some firmware and an
// array of one object per channel on other firmware. The record remembers
// which form came, and pack writes that form back.
#include <cstring>

#include "common/fields/field_table.h"
#include "common/json/json.h"
#include "drivers/response_frame.h"
#include "kova/records/picture.h"

namespace kova {

namespace {

// kChannels: the record's list of channel entries (at offset 0), counted
// into `channelCount`.
template <typename Config, const Field& kChannels>
bool ParseEitherForm(const Json::Value& table, const StepContext& /*ctx*/, unsigned char* record) {
  Config* r = reinterpret_cast<Config*>(record);
  if (table.isArray()) {
    ParseValue(table, record, kChannels);
    r->perChannel = 1;
  } else if (table.isObject()) {
    ParseValue(table, record, *kChannels.element);
    r->channelCount = 1;
  }
  return true;
}

template <typename Config, const Field& kChannels>
bool PackEitherForm(const unsigned char* record, Json::Value& out) {
  uint8_t perChannel = 0;
  std::memcpy(&perChannel, record + offsetof(Config, perChannel), sizeof perChannel);
  return perChannel != 0 ? PackValue(record, kChannels, &out)
                         : PackValue(record, *kChannels.element, &out);
}

template <typename Config, const Field& kChannels>
constexpr ResponseFrame EitherFormFrame() {
  return ResponseFrame::For<Config>(ParseEitherForm<Config, kChannels>,
                                    PackEitherForm<Config, kChannels>);
}

}  // namespace

constexpr Field kDisableLinkageChannelFields[] = {
    KOVA_F(DisableLinkageChannel, enable, "Enable", kBool),
};

KOVA_DESCRIBE(DisableLinkageChannel, kova::kDisableLinkageChannelFields)

constexpr Field kDisableLinkageChannel = KOVA_ITEM_NESTED(DisableLinkageChannel);
constexpr Field kDisableLinkageChannels =
    KOVA_LIST(DisableLinkageConfig, channels, nullptr, kDisableLinkageChannel)
        .KeepSlots()
        .Count(KOVA_AT(DisableLinkageConfig, channelCount), CountRule::kAll);

extern const ResponseFrame kDisableLinkageFrame =
    EitherFormFrame<DisableLinkageConfig, kDisableLinkageChannels>();

constexpr Field kFloodLightModeChannelFields[] = {
    KOVA_F(FloodLightModeChannel, mode, "Mode", kInt),
};

KOVA_DESCRIBE(FloodLightModeChannel, kova::kFloodLightModeChannelFields)

constexpr Field kFloodLightModeChannel = KOVA_ITEM_NESTED(FloodLightModeChannel);
constexpr Field kFloodLightModeChannels =
    KOVA_LIST(FloodLightModeConfig, channels, nullptr, kFloodLightModeChannel)
        .KeepSlots()
        .Count(KOVA_AT(FloodLightModeConfig, channelCount), CountRule::kAll);

extern const ResponseFrame kFloodLightModeFrame =
    EitherFormFrame<FloodLightModeConfig, kFloodLightModeChannels>();

}  // namespace kova
