// "AudioOutputVolume" and "AudioInputVolume": "table" is an array of plain
// integers, one volume per channel, not objects.
#include "common/fields/field_table.h"
#include "config/audio/translators.h"
#include "drivers/described_record.h"
#include "kova/records/audio.h"

namespace kova {

namespace {
constexpr Field kVolume = KOVA_F(AudioVolumeConfig, volume, nullptr, kInt);
constexpr ResponseFrame kVolumes =
    ResponseFrame::For<AudioVolumeConfig>(ParseDescribed<kVolume>, PackDescribed<kVolume>)
        .Walk(RecordWalk::kPerChannel);
}  // namespace

KOVA_FRAME_TRANSLATORS(AudioVolume, kVolumes)

}  // namespace kova
