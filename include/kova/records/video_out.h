// Records of the video outputs: "VideoOut".
#ifndef KOVA_RECORDS_VIDEO_OUT_H_
#define KOVA_RECORDS_VIDEO_OUT_H_

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

// "Color" of a video output: 0 to 100 each.
typedef struct VideoOutColor {
  int32_t brightness;  // "Brightness"
  int32_t contrast;    // "Contrast"
  int32_t saturation;  // "Saturation"
  int32_t hue;         // "Hue"
} VideoOutColor;

// "Mode" of a video output: the picture it sends.
typedef struct VideoOutMode {
  int32_t width;   // "Width": pixels
  int32_t height;  // "Height": pixels
  int32_t bpp;     // "BPP": bits per pixel
  // "Format": "Auto", "TV", "VGA", "DVI", "HDMI", "SPOT", "SDI",
  // "HDMI/VGA" or any other text the device names, kept as given (at most
  // 15 bytes)
  char format[16];
  int32_t refreshRate;  // "RefreshRate": Hz
} VideoOutMode;

// "VideoOut": one video output per record. The device answers the whole
// table (an array: record i from output i, as many as the buffer holds) or
// one output's object (record 0); the buffer is cleared first. A block
// the device leaves out keeps its flag 0 and is not written back.
typedef struct VideoOutConfig {
  int32_t margin[4];    // "Margin": [left, top, right, bottom] in pixels; an array of
                        // fewer than four leaves all four 0
  VideoOutColor color;  // "Color"
  VideoOutMode mode;    // "Mode"
  // 1 when the key was given (pack writes it only then).
  uint8_t marginPresent;
  uint8_t colorPresent;
  uint8_t modePresent;
  uint8_t reserved;
} VideoOutConfig;

#ifdef __cplusplus
}
static_assert(sizeof(VideoOutColor) == 16, "VideoOutColor layout");
static_assert(sizeof(VideoOutMode) == 32, "VideoOutMode layout");
static_assert(offsetof(VideoOutConfig, mode) == 32, "VideoOutConfig layout");
static_assert(sizeof(VideoOutConfig) == 68, "VideoOutConfig layout");
#endif

#endif  // KOVA_RECORDS_VIDEO_OUT_H_
