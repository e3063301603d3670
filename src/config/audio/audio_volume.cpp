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

int ParseAudioVolume(const char* t, void* o, uint32_t n, uint32_t* r) { return ParseWithFrame(kVolumes, t, o, n, r); }
int PackAudioVolume(const void* i, uint32_t n, char* o, uint32_t m) { return PackWithFrame(kVolumes, i, n, o, m); }

}  // namespace kova
