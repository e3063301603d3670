// Records of the encode configuration family: "Encode", "EncodePlan",
// "VideoEncodeROI", "DspEncodeCap", "EncodeAdapt" and "SmartEncode".
// Every parser of the family sets `retLen` (when not null) to the bytes of
// the records it filled.
//
// Enumerations are stored as indices into the family's tables:
//   video compression  0 "MPEG4", 1 "MS-MPEG4", 2 "MPEG2", 3 "MPEG1", 4 "H.263", 5 "MJPG",
//                      6 "FCC-MPEG4", 7 "H.264", 8 "H.265", 9 "SVAC"; an unknown text reads
//                      as 10, and any index outside 0..9 packs as "".
//   audio compression  0 "G.711A", 1 "PCM", 2 "G.711Mu", 3 "AMR", 4 "AAC"; unknown reads as 0,
//                      any other index packs as "G.711A".
//   bit-rate control   0 "CBR", 1 "VBR" (letter case ignored); unknown reads as 0, any other
//                      index packs as "CBR".
//   pack format        0 "ZRAV", 1 "PS"; only the exact text "PS" reads as 1, everything else
//                      as 0; any other index leaves the key out on pack.
//   profile            1 "Baseline", 2 "Main", 3 "Extended", 4 "High"; unknown reads as 1, any
//                      other index packs as "Baseline".
//   image size         0 "D1" ... 32 "2592x2048" (see EncodeImageSize below); letter case
//                      ignored, unknown or not a string reads as 33, and any index outside
//                      0..32 packs as "".
// Video and audio compression, pack format and profile texts compare exactly.
#ifndef KOVA_RECORDS_MEDIA_H_
#define KOVA_RECORDS_MEDIA_H_

#ifndef __cplusplus
#include <stdbool.h>
#endif
#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

// Image size indices ("Resolution" of "EncodePlan", "ImageSize" of
// "DspEncodeCap"). Where a row has two names both read as the index and pack
// writes the first: 2 "BCIF"/"2CIF", 19 "1_3M"/"1280x960", 20 "2_5M"/"1872x1408",
// 21 "5M"/"3744x1408", 22 "3M"/"2048x1536", 23 "5_0M"/"2432x2048",
// 24 "1_2M"/"1216x1024", 27 "5_1M"/"2560x1920".
typedef enum EncodeImageSize {
  KOVA_IMAGE_SIZE_D1 = 0,
  KOVA_IMAGE_SIZE_HD1 = 1,
  KOVA_IMAGE_SIZE_BCIF = 2,
  KOVA_IMAGE_SIZE_CIF = 3,
  KOVA_IMAGE_SIZE_QCIF = 4,
  KOVA_IMAGE_SIZE_VGA = 5,
  KOVA_IMAGE_SIZE_QVGA = 6,
  KOVA_IMAGE_SIZE_SVCD = 7,
  KOVA_IMAGE_SIZE_QQVGA = 8,
  KOVA_IMAGE_SIZE_SVGA = 9,
  KOVA_IMAGE_SIZE_XVGA = 10,
  KOVA_IMAGE_SIZE_WXGA = 11,
  KOVA_IMAGE_SIZE_SXGA = 12,
  KOVA_IMAGE_SIZE_WSXGA = 13,
  KOVA_IMAGE_SIZE_UXGA = 14,
  KOVA_IMAGE_SIZE_WUXGA = 15,
  KOVA_IMAGE_SIZE_ND1 = 16,
  KOVA_IMAGE_SIZE_720 = 17,
  KOVA_IMAGE_SIZE_1080 = 18,
  KOVA_IMAGE_SIZE_1_3M = 19,
  KOVA_IMAGE_SIZE_2_5M = 20,
  KOVA_IMAGE_SIZE_5M = 21,
  KOVA_IMAGE_SIZE_3M = 22,
  KOVA_IMAGE_SIZE_5_0M = 23,
  KOVA_IMAGE_SIZE_1_2M = 24,
  KOVA_IMAGE_SIZE_1408X1024 = 25,
  KOVA_IMAGE_SIZE_3296X2472 = 26,
  KOVA_IMAGE_SIZE_5_1M = 27,
  KOVA_IMAGE_SIZE_960H = 28,
  KOVA_IMAGE_SIZE_DV720P = 29,
  KOVA_IMAGE_SIZE_2560X1600 = 30,
  KOVA_IMAGE_SIZE_2336X1752 = 31,
  KOVA_IMAGE_SIZE_2592X2048 = 32,
  KOVA_IMAGE_SIZE_UNKNOWN = 33,
} EncodeImageSize;

// ---------------------------------------------------------------------------
// "Encode": per-channel encoder settings.
//
// Every has-flag (one byte) records whether its JSON key was present and not
// null on parse, and decides on pack whether the key is written. Parse never
// clears the caller's buffer: a value whose key is absent keeps the bytes the
// caller left in it, while its has-flag is written as false. The reserved
// members are neither written nor read.

// The "Video" object of one stream format.
typedef struct VideoFormat {
  bool hasCompression;
  bool hasWidth;
  bool hasHeight;
  bool hasBitRateControl;
  bool hasBitRate;
  bool hasFrameRate;
  bool hasGop;
  bool hasQuality;
  bool hasPack;
  bool hasProfile;
  int32_t compression;     // "Compression": video compression index (unknown text: 10)
  int32_t width;           // "Width": pixels
  int32_t height;          // "Height": pixels
  int32_t bitRateControl;  // "BitRateControl": 0 "CBR", 1 "VBR"
  int32_t bitRate;         // "BitRate": as the device gives it (kbit/s on most devices)
  float frameRate;         // "FPS": frames per second, fractional allowed
  int32_t gop;             // "GOP": group-of-pictures length in frames
  int32_t quality;         // "Quality": quality level
  int32_t pack;            // "Pack": 0 "ZRAV", 1 "PS"
  int32_t profile;         // "Profile": 1 "Baseline" .. 4 "High"
} VideoFormat;

// The "Audio" object of one stream format. When "Audio" is absent on parse,
// none of these bytes is written, has-flags included.
typedef struct AudioFormat {
  bool hasCompression;
  bool hasDepth;
  bool hasFrequency;
  bool hasMode;
  bool hasPack;
  bool hasPacketPeriod;
  int32_t compression;   // "Compression": audio compression index
  int32_t depth;         // "Depth": bits per sample
  int32_t frequency;     // "Frequency": samples per second
  int32_t mode;          // "Mode": device-defined audio mode number
  int32_t pack;          // "Pack": 0 "ZRAV", 1 "PS"
  int32_t packetPeriod;  // "PacketPeriod": milliseconds per packet
} AudioFormat;

// One stream format: an element of "MainFormat", "ExtraFormat" or
// "SnapFormat". A format whose has-flags are all clear packs as null.
typedef struct EncodeFormat {
  bool hasVideoEnable;  // "VideoEnable" present
  bool hasAudioEnable;  // "AudioEnable" present
  bool hasSnapEnable;   // "SnapEnable" present
  bool reservedFlag;
  bool hasAudioFormat;  // "Audio" present; gates the whole audio block on pack ("Audio" is then
                        // written, as an empty object when none of its has-flags is set)
  int32_t videoEnable;  // "VideoEnable": 0 or 1
  VideoFormat video;    // "Video": written on pack only when one of its has-flags is set
  int32_t audioEnable;  // "AudioEnable": 0 or 1
  int32_t snapEnable;   // "SnapEnable": 0 or 1
  int32_t reservedValue;
  AudioFormat audio;  // "Audio"
} EncodeFormat;

// One channel of "Encode". The caller's buffer holds an array of these; the
// record size is the step between channels both ways.
//
// Parse: "channel" at the root of the response selects the mode. Absent or
// not negative: "table" is one channel's object, filled into record 0 with
// `channel` set to that number. Negative: "table" must be an array, element
// i fills record i (as many as the buffer holds) with `channel` i. `retLen`
// is set to the bytes of the records filled; a null "table" succeeds with 0.
// Of each format array the first three elements are read; a slot without an
// element keeps its bytes.
//
// Pack: exactly one record gives one object, more give an array (a trailing
// partial record is ignored, but one record and a few bytes is an array of
// one). An input shorter than one record packs as "null" without being read;
// an empty input is refused. Each object
// holds three-element "MainFormat", "ExtraFormat" and "SnapFormat" arrays;
// `channel` and `layoutVersion` are not written. The text is copied when its
// length (without the terminating zero) does not exceed the output size; when
// it fills the buffer exactly there is no terminator.
typedef struct EncodeConfig {
  int32_t channel;  // channel number, 0-based; written by every parse
  uint8_t reserved1[64];
  EncodeFormat mainFormat[3];   // "MainFormat"
  EncodeFormat extraFormat[3];  // "ExtraFormat"
  EncodeFormat snapFormat[3];   // "SnapFormat"
  uint8_t reserved2[924];
  int32_t layoutVersion;  // set to 3 by every parse; not read by pack
} EncodeConfig;

// ---------------------------------------------------------------------------
// "EncodePlan": an array of planned encodings, one entry per element of
// "table" (which must be an array; anything else succeeds with length 0).
// "result" is not consulted and the buffer is never cleared: a null element
// sets `enable` 0 and leaves the rest; an object sets `enable` 1 and reads the
// keys it has, an absent key leaving its field. The returned length counts
// every element walked. Pack writes inLen / 16 entries as an array: an entry
// with `enable` 0 as null, any other as an object of the three keys.
typedef struct EncodePlanEntry {
  int32_t enable;       // 1 for an object element, 0 for a null one
  uint32_t expectTime;  // "ExpectTime" (a negative number reads as 0)
  int32_t resolution;   // "Resolution": image size index (EncodeImageSize)
  uint32_t bitRate;     // "BitRate" (a negative number reads as 0)
} EncodePlanEntry;

// ---------------------------------------------------------------------------
// "VideoEncodeROI": regions of interest encoded at a raised quality.
// Parse builds the record zeroed and copies it out whole; absent keys read as
// 0. Pack writes one record: the first min(regionCount, 8) regions and every
// other key.

// One region: the four numbers of one "Regions" element, in order.
typedef struct RoiRect {
  int32_t left;
  int32_t top;
  int32_t right;
  int32_t bottom;
} RoiRect;

typedef struct EncodeRoiConfig {
  int32_t regionCount;  // size of "Regions"; may exceed 8, only the first 8 are held
  RoiRect regions[8];   // "Regions"
  uint8_t quality;      // "Quality" (values above 255 wrap)
  bool main;            // "Main": applies to the main stream
  bool extra1;          // "Extra1"
  bool extra2;          // "Extra2"
  bool extra3;          // "Extra3"
  bool snapshot;        // "Snapshot"
} EncodeRoiConfig;

// ---------------------------------------------------------------------------
// "DspEncodeCap": what the device's signal processor can encode, read from
// table."DspEncodeCap" (a table without that member is taken as the
// capability object itself). One record; parse builds it zeroed and copies it
// out whole, so an absent key reads as 0 or an empty list. Pack writes every
// member under "DspEncodeCap", each list with as many elements as its count
// says (cut to the list's capacity). Masks are bit sets indexed like the
// tables above: bit i of an image size mask is image size i, bit i of
// `encodeModeMask` video compression i.

enum {
  KOVA_DSP_MASK_LIST_MAX = 32,   // one entry per image size a 32-bit mask can name
  KOVA_DSP_IMAGE_SIZE_MAX = 64,  // names in "ImageSize" / "ImageSize_Assi"
  KOVA_DSP_RESOLUTION_MAX = 64,  // entries in "Resolution" / "Resolution_1"
};

// One element of "Resolution": {"Width": w, "Height": h}.
typedef struct EncodeResolution {
  int32_t width;   // "Width": pixels
  int32_t height;  // "Height": pixels
} EncodeResolution;

typedef struct DspEncodeCapRecord {
  uint32_t maxEncodePower;     // "MaxEncodePower": pixels per second over all channels
  uint32_t maxSupportChannel;  // "MaxSupportChannel"
  uint32_t channelMaxSetSync;  // "ChannelMaxSetSync" (boolean, 0 or 1): every channel's maximum
                               // must be set alike
  uint32_t videoStandardMask;  // "VideoStandardMask": bit 0 PAL, bit 1 NTSC
  uint32_t encodeModeMask;     // "EncodeModeMask": bit i = video compression i
  uint32_t imageSizeMask;      // "ImageSizeMask": main-stream image sizes
  uint32_t encodeCap;          // "EncodeCap": device-defined encode capability level
  uint32_t streamCap;          // "StreamCap": bit 0 main, bits 1-3 extra 1-3, bit 4 snapshot
  uint32_t imageSizeMaskAssiCount;  // elements held in `imageSizeMaskAssi`
  // "ImageSizeMask_Assi": element i, the extra-stream sizes allowed with main size i
  uint32_t imageSizeMaskAssi[KOVA_DSP_MASK_LIST_MAX];
  uint32_t maxFrameOfImageSizeCount;  // elements held in `maxFrameOfImageSize`
  // "MaxFrameOfImageSize": element i, the highest frame rate at image size i
  uint32_t maxFrameOfImageSize[KOVA_DSP_MASK_LIST_MAX];
  uint32_t imageSizeCount;                     // names held in `imageSize`
  int32_t imageSize[KOVA_DSP_IMAGE_SIZE_MAX];  // "ImageSize": main-stream sizes by name
  uint32_t imageSizeAssiCount;                 // names held in `imageSizeAssi`
  // "ImageSize_Assi": extra-stream sizes by name
  int32_t imageSizeAssi[KOVA_DSP_IMAGE_SIZE_MAX];
  int32_t resolutionNum;     // "ResolutionNum", as the device gives it
  uint32_t resolutionCount;  // elements held in `resolution`
  // "Resolution": main-stream resolutions
  EncodeResolution resolution[KOVA_DSP_RESOLUTION_MAX];
  int32_t resolutionNum1;     // "ResolutionNum_1"
  uint32_t resolution1Count;  // elements held in `resolution1`
  // "Resolution_1": extra-stream resolutions
  EncodeResolution resolution1[KOVA_DSP_RESOLUTION_MAX];
} DspEncodeCapRecord;

// ---------------------------------------------------------------------------
// "EncodeAdapt": per-channel adaptation of the encoder to the network.
// "table" is one channel's object or an array of channels (as many as the
// buffer holds). The buffer is not cleared: a key that is absent or null
// leaves its field; an unknown text stores 0. Pack writes inLen / 8 records
// (one object, or an array when there are several); 0 packs as "".
typedef struct EncodeAdaptConfig {
  int32_t policy;       // "Policy": 1 "None", 2 "Quality", 3 "Fluency", other 0
  int32_t fluencyMode;  // "FluencyMode": 1 "Fast", 2 "Slow", 3 "Sync", 4 "Slowsync", other 0
} EncodeAdaptConfig;

// ---------------------------------------------------------------------------
// "SmartEncode": per-channel smart encoding switch. "table" is one channel's
// object or an array of channels (as many as the buffer holds). `enable` is
// always written (an absent "Enable" reads as 0); `reserved` never is. Pack
// writes only "Enable", for inLen / 260 records.
typedef struct SmartEncodeConfig {
  int32_t enable;  // "Enable": 0 or 1
  uint8_t reserved[256];
} SmartEncodeConfig;

#ifdef __cplusplus
}  // extern "C"

static_assert(sizeof(VideoFormat) == 52, "VideoFormat layout");
static_assert(offsetof(VideoFormat, compression) == 12, "VideoFormat layout");
static_assert(offsetof(VideoFormat, frameRate) == 32, "VideoFormat layout");
static_assert(offsetof(VideoFormat, profile) == 48, "VideoFormat layout");
static_assert(sizeof(AudioFormat) == 32, "AudioFormat layout");
static_assert(offsetof(AudioFormat, compression) == 8, "AudioFormat layout");
static_assert(offsetof(AudioFormat, packetPeriod) == 28, "AudioFormat layout");
static_assert(sizeof(EncodeFormat) == 108, "EncodeFormat layout");
static_assert(offsetof(EncodeFormat, hasAudioFormat) == 4, "EncodeFormat layout");
static_assert(offsetof(EncodeFormat, videoEnable) == 8, "EncodeFormat layout");
static_assert(offsetof(EncodeFormat, video) == 12, "EncodeFormat layout");
static_assert(offsetof(EncodeFormat, audioEnable) == 64, "EncodeFormat layout");
static_assert(offsetof(EncodeFormat, reservedValue) == 72, "EncodeFormat layout");
static_assert(offsetof(EncodeFormat, audio) == 76, "EncodeFormat layout");
static_assert(sizeof(EncodeConfig) == 1968, "EncodeConfig layout");
static_assert(offsetof(EncodeConfig, mainFormat) == 68, "EncodeConfig layout");
static_assert(offsetof(EncodeConfig, extraFormat) == 392, "EncodeConfig layout");
static_assert(offsetof(EncodeConfig, snapFormat) == 716, "EncodeConfig layout");
static_assert(offsetof(EncodeConfig, reserved2) == 1040, "EncodeConfig layout");
static_assert(offsetof(EncodeConfig, layoutVersion) == 1964, "EncodeConfig layout");
static_assert(sizeof(EncodePlanEntry) == 16, "EncodePlanEntry layout");
static_assert(sizeof(RoiRect) == 16, "RoiRect layout");
static_assert(sizeof(EncodeRoiConfig) == 140, "EncodeRoiConfig layout");
static_assert(offsetof(EncodeRoiConfig, quality) == 132, "EncodeRoiConfig layout");
static_assert(offsetof(EncodeRoiConfig, snapshot) == 137, "EncodeRoiConfig layout");
static_assert(sizeof(EncodeResolution) == 8, "EncodeResolution layout");
static_assert(sizeof(DspEncodeCapRecord) == 1856, "DspEncodeCapRecord layout");
static_assert(sizeof(EncodeAdaptConfig) == 8, "EncodeAdaptConfig layout");
static_assert(sizeof(SmartEncodeConfig) == 260, "SmartEncodeConfig layout");
#endif

#endif  // KOVA_RECORDS_MEDIA_H_
