// The enumeration tables the encode family shares, and the conversions over
// them. Every conversion is a pure function: text to index reads a JSON value
// (anything that is not a string is an unknown text), index to text never
// fails. The EnumNames tables are the same ones the field tables of the
// family's translators use, so the functions and the walker cannot disagree.
#ifndef KOVA_CONFIG_MEDIA_ENCODE_TABLES_H_
#define KOVA_CONFIG_MEDIA_ENCODE_TABLES_H_

#include <json/value.h>

#include <cstdint>

#include "common/fields/field_table.h"

namespace kova {

// Video compression, compared exactly. Unknown: 10. Pack: "" outside 0..9.
extern const EnumNames kVideoCompressionNames;
constexpr int32_t kVideoCompressionUnknown = 10;
int32_t VideoCompressionIndex(const Json::Value& text);
const char* VideoCompressionText(int32_t index);

// Audio compression, compared exactly; "G.711A" is deliberately first.
// Unknown: 0. Pack: "G.711A" outside 1..4 (a field: Unnamed::kFirstName).
extern const EnumNames kAudioCompressionNames;
int32_t AudioCompressionIndex(const Json::Value& text);
const char* AudioCompressionText(int32_t index);

// Bit-rate control, "CBR" 0 and "VBR" 1, letter case ignored. Unknown: 0.
// Pack: "CBR" for anything but 1 (a field: Unnamed::kFirstName).
extern const EnumNames kBitRateControlNames;
int32_t BitRateControlIndex(const Json::Value& text);
const char* BitRateControlText(int32_t index);

// Pack format: exactly "PS" reads as 1, every other text (and "ZRAV") as 0.
// Pack: "ZRAV" for 0, "PS" for 1, null (the key is left out) otherwise.
extern const EnumNames kPackFormatNames;
int32_t PackFormatIndex(const Json::Value& text);
const char* PackFormatText(int32_t index);

// Profile, "Baseline" 1 .. "High" 4, compared exactly. Unknown: 1. Pack:
// "Baseline" outside 2..4 (a field: Unnamed::kFirstName).
extern const EnumNames kProfileNames;
int32_t ProfileIndex(const Json::Value& text);
const char* ProfileText(int32_t index);

// Image size names, letter case ignored; eight rows carry a second name that
// reads as the same index. Unknown text or not a string: 33. Pack: the first
// name, "" outside 0..32.
constexpr int32_t kImageSizeCount = 33;
extern const EnumNames kImageSizeNames;
int32_t ImageSizeIndex(const Json::Value& text);
const char* ImageSizeText(int32_t index);

}  // namespace kova

#endif  // KOVA_CONFIG_MEDIA_ENCODE_TABLES_H_
