// One stream format of "Encode" (an EncodeFormat record) both ways.
//
// Both functions work on the raw bytes of a record in the caller's buffer:
// parse writes only the has-flags and the values of present keys, pack reads
// the one-byte has-flags as bytes (any non-zero byte counts as set).
#ifndef KOVA_CONFIG_MEDIA_ENCODE_FORMAT_H_
#define KOVA_CONFIG_MEDIA_ENCODE_FORMAT_H_

#include <json/value.h>

namespace kova {

// Fills the EncodeFormat at `format` from one element of a format array. The
// has-flags of "AudioEnable", "VideoEnable", "SnapEnable", "Audio" and the
// ten of "Video" are always written; the six audio has-flags only when
// "Audio" is present.
void ParseEncodeFormat(const Json::Value& element, unsigned char* format);

// Writes the EncodeFormat at `format` into `target`, which stays null when
// no has-flag is set.
void PackEncodeFormat(const unsigned char* format, Json::Value& target);

}  // namespace kova

#endif  // KOVA_CONFIG_MEDIA_ENCODE_FORMAT_H_
