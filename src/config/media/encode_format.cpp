#include "config/media/encode_format.h"

#include <cstddef>

#include "common/fields/field_table.h"
#include "common/json/json.h"
#include "config/media/encode_tables.h"
#include "kova/records/media.h"

namespace kova {

namespace {

const Field kSwitchFields[] = {
    KOVA_FIELD_P("AudioEnable", EncodeFormat, audioEnable, FieldKind::kBool, hasAudioEnable),
    KOVA_FIELD_P("VideoEnable", EncodeFormat, videoEnable, FieldKind::kBool, hasVideoEnable),
    KOVA_FIELD_P("SnapEnable", EncodeFormat, snapEnable, FieldKind::kBool, hasSnapEnable),
};

const Field kVideoFields[] = {
    KOVA_FIELD_P("BitRate", VideoFormat, bitRate, FieldKind::kInt, hasBitRate),
    KOVA_ENUM_FIRST_P("BitRateControl", VideoFormat, bitRateControl, &kBitRateControlNames,
                      hasBitRateControl),
    KOVA_ENUM_P("Compression", VideoFormat, compression, &kVideoCompressionNames, hasCompression),
    KOVA_FIELD_P("FPS", VideoFormat, frameRate, FieldKind::kReal, hasFrameRate),
    KOVA_ENUM_P("Pack", VideoFormat, pack, &kPackFormatNames, hasPack),
    KOVA_FIELD_P("Height", VideoFormat, height, FieldKind::kInt, hasHeight),
    KOVA_FIELD_P("GOP", VideoFormat, gop, FieldKind::kInt, hasGop),
    KOVA_FIELD_P("Quality", VideoFormat, quality, FieldKind::kInt, hasQuality),
    KOVA_FIELD_P("Width", VideoFormat, width, FieldKind::kInt, hasWidth),
    KOVA_ENUM_FIRST_P("Profile", VideoFormat, profile, &kProfileNames, hasProfile),
};

const Field kAudioFields[] = {
    KOVA_ENUM_FIRST_P("Compression", AudioFormat, compression, &kAudioCompressionNames,
                      hasCompression),
    KOVA_FIELD_P("Depth", AudioFormat, depth, FieldKind::kInt, hasDepth),
    KOVA_ENUM_P("Pack", AudioFormat, pack, &kPackFormatNames, hasPack),
    KOVA_FIELD_P("Frequency", AudioFormat, frequency, FieldKind::kInt, hasFrequency),
    KOVA_FIELD_P("Mode", AudioFormat, mode, FieldKind::kInt, hasMode),
    KOVA_FIELD_P("PacketPeriod", AudioFormat, packetPeriod, FieldKind::kInt, hasPacketPeriod),
};

constexpr size_t kVideoOffset = offsetof(EncodeFormat, video);
constexpr size_t kAudioOffset = offsetof(EncodeFormat, audio);
constexpr size_t kHasAudioFormat = offsetof(EncodeFormat, hasAudioFormat);

// The walker only ever sets a has-flag; "Encode" also writes the false ones
// for absent keys, so the flags are cleared before the walk.
template <size_t N>
void ParseWithFlags(const Json::Value& obj, unsigned char* record, const Field (&fields)[N]) {
  for (const Field& f : fields) StoreInt(record + f.presence, f.presenceSize, 0);
  ParseFields(obj, record, fields);
}

template <size_t N>
bool AnyFlag(const unsigned char* record, const Field (&fields)[N]) {
  for (const Field& f : fields) {
    if (LoadInt(record + f.presence, f.presenceSize, false) != 0) return true;
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
