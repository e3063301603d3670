#include "config/media/encode_tables.h"

namespace kova {

namespace {

constexpr const char* kVideoCompression[] = {"MPEG4", "MS-MPEG4",  "MPEG2", "MPEG1", "H.263",
                                             "MJPG",  "FCC-MPEG4", "H.264", "H.265", "SVAC"};
constexpr const char* kAudioCompression[] = {"G.711A", "PCM", "G.711Mu", "AMR", "AAC"};
constexpr const char* kBitRateControl[] = {"CBR", "VBR"};
constexpr const char* kPackFormat[] = {"ZRAV", "PS"};
constexpr const char* kProfile[] = {"Baseline", "Main", "Extended", "High"};

// clang-format off
constexpr const char* kImageSize[kImageSizeCount] = {
    "D1",   "HD1",    "BCIF",      "CIF",       "QCIF",      "VGA",       "QVGA",         //  0- 6
    "SVCD", "QQVGA",  "SVGA",      "XVGA",      "WXGA",      "SXGA",      "WSXGA",        //  7-13
    "UXGA", "WUXGA",  "ND1",       "720",       "1080",      "1_3M",      "2_5M",         // 14-20
    "5M",   "3M",     "5_0M",      "1_2M",      "1408x1024", "3296x2472", "5_1M",         // 21-27
    "960H", "DV720P", "2560x1600", "2336x1752", "2592x2048"};                             // 28-32
// The second name of a row reads as the same index; pack never writes it.
constexpr const char* kImageSizeAlias[kImageSizeCount] = {
    nullptr,     nullptr,     "2CIF",      nullptr,     nullptr,     nullptr, nullptr,     //  0- 6
    nullptr,     nullptr,     nullptr,     nullptr,     nullptr,     nullptr, nullptr,     //  7-13
    nullptr,     nullptr,     nullptr,     nullptr,     nullptr,     "1280x960",          // 14-19
    "1872x1408", "3744x1408", "2048x1536", "2432x2048", "1216x1024", nullptr, nullptr,     // 20-26
    "2560x1920", nullptr,     nullptr,     nullptr,     nullptr,     nullptr};            // 27-32
// clang-format on

int32_t IndexOf(const EnumNames& e, const Json::Value& text) {
  int32_t value = e.unknownValue;
  EnumValue(e, text, &value);
  return value;
}

const char* TextOrFirst(const EnumNames& e, int32_t index) {
  const char* name = EnumName(e, index);
  return name != nullptr ? name : e.names[0];
}

const char* TextOrEmpty(const EnumNames& e, int32_t index) {
  const char* name = EnumName(e, index);
  return name != nullptr ? name : "";
}

}  // namespace

const EnumNames kVideoCompressionNames =
    EnumNames::Of(kVideoCompression).Exact().UnknownAs(kVideoCompressionUnknown);
const EnumNames kAudioCompressionNames = EnumNames::Of(kAudioCompression).Exact().UnknownAs(0);
const EnumNames kBitRateControlNames = EnumNames::Of(kBitRateControl).UnknownAs(0);
const EnumNames kPackFormatNames = EnumNames::Of(kPackFormat).Exact().UnknownAs(0).OmitUnnamed();
const EnumNames kProfileNames = EnumNames::Of(kProfile).Exact().FirstValue(1).UnknownAs(1);
const EnumNames kImageSizeNames =
    EnumNames::Of(kImageSize).Aliases(kImageSizeAlias).UnknownAs(kImageSizeCount);
static_assert(sizeof kVideoCompression / sizeof kVideoCompression[0] == kVideoCompressionUnknown,
              "an unknown video compression reads as the table's length");

int32_t VideoCompressionIndex(const Json::Value& text) {
  return IndexOf(kVideoCompressionNames, text);
}
const char* VideoCompressionText(int32_t index) {
  return TextOrEmpty(kVideoCompressionNames, index);
}

int32_t AudioCompressionIndex(const Json::Value& text) {
  return IndexOf(kAudioCompressionNames, text);
}
const char* AudioCompressionText(int32_t index) {
  return TextOrFirst(kAudioCompressionNames, index);
}

int32_t BitRateControlIndex(const Json::Value& text) { return IndexOf(kBitRateControlNames, text); }
const char* BitRateControlText(int32_t index) { return TextOrFirst(kBitRateControlNames, index); }

int32_t PackFormatIndex(const Json::Value& text) { return IndexOf(kPackFormatNames, text); }
const char* PackFormatText(int32_t index) { return EnumName(kPackFormatNames, index); }

int32_t ProfileIndex(const Json::Value& text) { return IndexOf(kProfileNames, text); }
const char* ProfileText(int32_t index) { return TextOrFirst(kProfileNames, index); }

int32_t ImageSizeIndex(const Json::Value& text) { return IndexOf(kImageSizeNames, text); }
const char* ImageSizeText(int32_t index) { return TextOrEmpty(kImageSizeNames, index); }

}  // namespace kova
