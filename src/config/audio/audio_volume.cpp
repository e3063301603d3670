// "AudioOutputVolume" and "AudioInputVolume": "table" is an array of plain
// integers, one volume per channel, not objects.
#include "common/fields/field_table.h"
#include "drivers/described_record.h"
#include "drivers/response_frame.h"
#include "kova/records/audio.h"

namespace kova {

namespace {
constexpr Field kVolume = KOVA_F(AudioVolumeConfig, volume, nullptr, kInt);
}  // namespace

extern const ResponseFrame kAudioVolumeFrame =
    ResponseFrame::For<AudioVolumeConfig>(ParseDescribed<kVolume>, DescribedPack<kVolume>())
        .Walk(RecordWalk::kPerChannel)
        .Describe(kVolume);

}  // namespace kova
