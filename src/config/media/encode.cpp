// "Encode": the per-channel encoder configuration, up to three main-stream,
// three extra-stream and three snapshot formats per channel.
//
// The envelope is not the table drivers': the channel number comes from the
// response's root, and one channel's "table" is a bare object. Parse never
// clears the caller's buffer, so every has-flag is written both ways (false
// for an absent key) while a value is written only for a present key.
#include <cstddef>
#include <cstdint>

#include "common/fields/field_table.h"
#include "config/media/encode_tables.h"
#include "drivers/response_frame.h"
#include "kova/records/media.h"
#include "kova/records/video_in.h"

namespace kova {
namespace {

using V = VideoFormat;
using A = AudioFormat;
using E = EncodeFormat;

// `key` into `member`, its has-flag written both ways.
#define KOVA_HAS(Rec, member, key, KIND, flag) \
  KOVA_F(Rec, member, key, KIND).Flag(KOVA_AT(Rec, flag)).ClearsFlag()
#define KOVA_HAS_ENUM(Rec, member, key, names, flag) \
  KOVA_ENUM(Rec, member, key, names).Flag(KOVA_AT(Rec, flag)).ClearsFlag()

constexpr Field kVideoFields[] = {
    KOVA_HAS(V, bitRate, "BitRate", kInt, hasBitRate),
    KOVA_HAS_ENUM(V, bitRateControl, "BitRateControl", kBitRateControlNames, hasBitRateControl)
        .UnnamedAs(Unnamed::kFirstName),
    KOVA_HAS_ENUM(V, compression, "Compression", kVideoCompressionNames, hasCompression),
    KOVA_HAS(V, frameRate, "FPS", kReal, hasFrameRate),
    KOVA_HAS_ENUM(V, pack, "Pack", kPackFormatNames, hasPack),
    KOVA_HAS(V, height, "Height", kInt, hasHeight),
    KOVA_HAS(V, gop, "GOP", kInt, hasGop),
    KOVA_HAS(V, quality, "Quality", kInt, hasQuality),
    KOVA_HAS(V, width, "Width", kInt, hasWidth),
    KOVA_HAS_ENUM(V, profile, "Profile", kProfileNames, hasProfile).UnnamedAs(Unnamed::kFirstName),
};

constexpr Field kAudioFields[] = {
    KOVA_HAS_ENUM(A, compression, "Compression", kAudioCompressionNames, hasCompression)
        .UnnamedAs(Unnamed::kFirstName),
    KOVA_HAS(A, depth, "Depth", kInt, hasDepth),
    KOVA_HAS_ENUM(A, pack, "Pack", kPackFormatNames, hasPack),
    KOVA_HAS(A, frequency, "Frequency", kInt, hasFrequency),
    KOVA_HAS(A, mode, "Mode", kInt, hasMode),
    KOVA_HAS(A, packetPeriod, "PacketPeriod", kInt, hasPacketPeriod),
};

}  // namespace

KOVA_DESCRIBE(VideoFormat, kVideoFields)
KOVA_DESCRIBE(AudioFormat, kAudioFields)
namespace {

constexpr Field kFormatFields[] = {
    KOVA_HAS(E, audioEnable, "AudioEnable", kBool, hasAudioEnable),
    // Without "Audio" the audio block, has-flags included, keeps the caller's
    // bytes; "Audio" of any other type reads as an object without members.
    KOVA_NESTED(E, audio, "Audio").Flag(KOVA_AT(E, hasAudioFormat)).ClearsFlag().AnyType(),
    KOVA_HAS(E, videoEnable, "VideoEnable", kBool, hasVideoEnable),
    // Always read, so that a missing "Video" writes its ten has-flags false;
    // written when one of them is set.
    KOVA_NESTED(E, video, "Video")
        .AlwaysRead()
        .WhenAnySet(KOVA_FLAGS(E, video.hasCompression, video.hasProfile)),
    KOVA_HAS(E, snapEnable, "SnapEnable", kBool, hasSnapEnable),
};

#undef KOVA_HAS
#undef KOVA_HAS_ENUM

}  // namespace

KOVA_DESCRIBE(EncodeFormat, kFormatFields)
namespace {

using C = EncodeConfig;

constexpr int32_t kLayoutVersion = 3;

// A format array: its first three elements, element i into slot i (a slot
// without an element keeps its bytes, a fourth element is ignored); any
// element, null included, writes its slot's has-flags. A slot without a
// has-flag packs as null, and the three slots are always written.
constexpr Field kFormat = KOVA_ITEM_NESTED(EncodeFormat).AlwaysRead().NullWhenEmpty();
constexpr Field kChannelFields[] = {
    KOVA_LIST(C, mainFormat, "MainFormat", kFormat).KeepSlots(),
    KOVA_LIST(C, extraFormat, "ExtraFormat", kFormat).KeepSlots(),
    KOVA_LIST(C, snapFormat, "SnapFormat", kFormat).KeepSlots(),
};
constexpr FieldTable kChannel = KOVA_TABLE(kChannelFields);

bool ParseChannel(const Json::Value& table, const StepContext& ctx, unsigned char* record) {
  // Written by every parse; neither is packed.
  StoreInt(record + offsetof(C, layoutVersion), sizeof(int32_t), kLayoutVersion);
  StoreInt(record + offsetof(C, channel), sizeof(int32_t), ctx.channel);
  return ParseTableStep<kChannel>(table, ctx, record);
}

// Pack: exactly one record is an object, anything longer an array (one
// record and a partial one included), a shorter input "null"; the text may
// fill the buffer exactly, without a terminator.

}  // namespace

extern const ResponseFrame kEncodeFrame = ResponseFrame::For<C>(ParseChannel, TablePack<kChannel>())
                                              .Describe(WholeTable<C, kChannel>::kField)
                                              .Walk(RecordWalk::kPerChannel)
                                              .ChannelAtRoot()
                                              .Clear(Clearing::kNone)
                                              .Short(ShortInput::kNullUnlessEmpty)
                                              .ArrayUnlessExactlyOne()
                                              .Copy(CopyRule::kAtMost);

}  // namespace kova
