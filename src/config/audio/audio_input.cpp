// "AudioInput": where the sound of each channel comes from.
#include "common/fields/field_table.h"
#include "drivers/described_record.h"
#include "drivers/response_frame.h"
#include "kova/records/audio.h"

namespace kova {

constexpr Field kAudioInputFields[] = {
    KOVA_F(AudioInputConfig, audioSource, "AudioSource", kText),
};
KOVA_DESCRIBE(AudioInputConfig, kAudioInputFields)

extern const ResponseFrame kAudioInputFrame = DescribedObject<AudioInputConfig>::kFrame;

}  // namespace kova
