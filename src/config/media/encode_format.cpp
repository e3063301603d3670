#include "config/media/encode_format.h"

#include <cstddef>

#include "common/fields/field_table.h"
#include "common/json/json.h"
#include "config/media/encode_tables.h"
#include "kova/records/media.h"

namespace kova {

namespace {

const Field kSwitchFields[] = {
    KOVA_F(EncodeFormat, audioEnable, "AudioEnable", kBool).Flag(KOVA_AT(EncodeFormat, hasAudioEnable)),
    KOVA_F(EncodeFormat, videoEnable, "VideoEnable", kBool).Flag(KOVA_AT(EncodeFormat, hasVideoEnable)),
    KOVA_F(EncodeFormat, snapEnable, "SnapEnable", kBool).Flag(KOVA_AT(EncodeFormat, hasSnapEnable)),
};

const Field kVideoFields[] = {
    KOVA_F(VideoFormat, bitRate, "BitRate", kInt).Flag(KOVA_AT(VideoFormat, hasBitRate)),
    KOVA_ENUM(VideoFormat, bitRateControl, "BitRateControl", kBitRateControlNames).UnnamedAs(::kova::Unnamed::kFirstName).Flag(KOVA_AT(VideoFormat, hasBitRateControl)),
    KOVA_ENUM(VideoFormat, compression, "Compression", kVideoCompressionNames).Flag(KOVA_AT(VideoFormat, hasCompression)),
    KOVA_F(VideoFormat, frameRate, "FPS", kReal).Flag(KOVA_AT(VideoFormat, hasFrameRate)),
    KOVA_ENUM(VideoFormat, pack, "Pack", kPackFormatNames).Flag(KOVA_AT(VideoFormat, hasPack)),
    KOVA_F(VideoFormat, height, "Height", kInt).Flag(KOVA_AT(VideoFormat, hasHeight)),
    KOVA_F(VideoFormat, gop, "GOP", kInt).Flag(KOVA_AT(VideoFormat, hasGop)),
    KOVA_F(VideoFormat, quality, "Quality", kInt).Flag(KOVA_AT(VideoFormat, hasQuality)),
    KOVA_F(VideoFormat, width, "Width", kInt).Flag(KOVA_AT(VideoFormat, hasWidth)),
    KOVA_ENUM(VideoFormat, profile, "Profile", kProfileNames).UnnamedAs(::kova::Unnamed::kFirstName).Flag(KOVA_AT(VideoFormat, hasProfile)),
};

const Field kAudioFields[] = {
    KOVA_ENUM(AudioFormat, compression, "Compression", kAudioCompressionNames).UnnamedAs(::kova::Unnamed::kFirstName).Flag(KOVA_AT(AudioFormat, hasCompression)),
    KOVA_F(AudioFormat, depth, "Depth", kInt).Flag(KOVA_AT(AudioFormat, hasDepth)),
    KOVA_ENUM(AudioFormat, pack, "Pack", kPackFormatNames).Flag(KOVA_AT(AudioFormat, hasPack)),
    KOVA_F(AudioFormat, frequency, "Frequency", kInt).Flag(KOVA_AT(AudioFormat, hasFrequency)),
    KOVA_F(AudioFormat, mode, "Mode", kInt).Flag(KOVA_AT(AudioFormat, hasMode)),
    KOVA_F(AudioFormat, packetPeriod, "PacketPeriod", kInt).Flag(KOVA_AT(AudioFormat, hasPacketPeriod)),
};

constexpr size_t kVideoOffset = offsetof(EncodeFormat, video);
constexpr size_t kAudioOffset = offsetof(EncodeFormat, audio);
constexpr size_t kHasAudioFormat = offsetof(EncodeFormat, hasAudioFormat);

// The walker only ever sets a has-flag; "Encode" also writes the false ones
// for absent keys, so the flags are cleared before the walk.
template <size_t N>
void ParseWithFlags(const Json::Value& obj, unsigned char* record, const Field (&fields)[N]) {
  for (const Field& f : fields) StoreInt(record + f.flag.offset, f.flag.size, 0);
  ParseFields(obj, record, fields);
}

template <size_t N>
bool AnyFlag(const unsigned char* record, const Field (&fields)[N]) {
  for (const Field& f : fields) {
    if (LoadInt(record + f.flag.offset, f.flag.size, false) != 0) return true;
  }
  return false;
}

}  // namespace

void ParseEncodeFormat(const Json::Value& element, unsigned char* format) {
  ParseWithFlags(element, format, kSwitchFields);
  const Json::Value& audio = Member(element, "Audio");
  StoreInt(format + kHasAudioFormat, 1, audio.isNull() ? 0 : 1);
  // Without "Audio" the audio block, has-flags included, keeps the caller's bytes.
  if (!audio.isNull()) ParseWithFlags(audio, format + kAudioOffset, kAudioFields);
  ParseWithFlags(Member(element, "Video"), format + kVideoOffset, kVideoFields);
}

void PackEncodeFormat(const unsigned char* format, Json::Value& target) {
  PackFields(format, target, kSwitchFields);
  if (LoadInt(format + kHasAudioFormat, 1, false) != 0) {
    Json::Value& audio = SetMember(target, "Audio");
    audio = Json::Value(Json::objectValue);
    PackFields(format + kAudioOffset, audio, kAudioFields);
  }
  if (AnyFlag(format + kVideoOffset, kVideoFields)) {
    Json::Value& video = SetMember(target, "Video");
    video = Json::Value(Json::objectValue);
    PackFields(format + kVideoOffset, video, kVideoFields);
  }
}

}  // namespace kova
