// The older single-server form of "NAS": one server and a per-channel
// upload schedule of two windows a day, under the root's "NAS" member.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <string>

#include "common/base/decimal.h"
#include "common/fields/field_table.h"
#include "common/fields/text_forms.h"
#include "common/json/json.h"
#include "config/storage/nas_forms.h"
#include "kova/records/common.h"
#include "kova/records/storage.h"

namespace kova {

namespace {

constexpr int kChannels = 256;
constexpr int kDays = 7;
constexpr int kWindows = 2;

struct ChannelKeys {
  char enable[16];
  char time[16];
  explicit ChannelKeys(int channel) {
    std::snprintf(enable, sizeof enable, "En%d", channel);
    std::snprintf(time, sizeof time, "Time%d", channel);
  }
};

// "08:00:00-18:00:00" into the six times of `window`; text that does not
// give all six numbers leaves them as they were.
void ParseWindowTimes(const Json::Value& v, TimeSectionRecord* window) {
  const std::string text = ToText(v);
  TimeRange range = {};
  const int32_t len = static_cast<int32_t>(std::min<size_t>(text.size(), INT32_MAX));
  if (ParseTimeRange(text.c_str(), len, &range) != 0) return;
  window->beginHour = range.beginHour;
  window->beginMinute = range.beginMinute;
  window->beginSecond = range.beginSecond;
  window->endHour = range.endHour;
  window->endMinute = range.endMinute;
  window->endSecond = range.endSecond;
}

void PackWindowTimes(const TimeSectionRecord& w, Json::Value& out) {
  char text[kClockRangeText];
  out = Json::Value(text, PutClockRange(text, w.beginHour, w.beginMinute, w.beginSecond, w.endHour,
                                        w.endMinute, w.endSecond));
}

// "ChnTime" keys its channels by name ("En5", "Time5"), each an array of
// days of two windows; the record keeps them as a grid (intended).
void ParseChannelTimes(const Json::Value& nas, unsigned char* record, const Field& f) {
  const Json::Value& times = Member(nas, f.key);
  if (!times.isObject()) return;
  LegacyNasConfig* r = reinterpret_cast<LegacyNasConfig*>(record);
  for (int c = 0; c < kChannels; ++c) {
    const ChannelKeys keys(c);
    const Json::Value& enable = Member(times, keys.enable);
    const Json::Value& window = Member(times, keys.time);
    if (enable.isNull() && window.isNull()) continue;
    r->channelCount = c + 1;
    for (int d = 0; d < kDays; ++d) {
      for (int w = 0; w < kWindows; ++w) {
        TimeSectionRecord& s = r->uploadTimes[c][d][w];
        s.enable = ToBool(Element(Element(enable, d), w)) ? 1 : 0;
        ParseWindowTimes(Element(Element(window, d), w), &s);
      }
    }
  }
}

void PackChannelTimes(const unsigned char* record, Json::Value& nas, const Field& f) {
  const LegacyNasConfig* r = reinterpret_cast<const LegacyNasConfig*>(record);
  Json::Value& times = SetKeptMember(nas, f.key);
  times = Json::Value(Json::objectValue);
  const int channels = static_cast<int>(CutCount(r->channelCount, kChannels));
  for (int c = 0; c < channels; ++c) {
    const ChannelKeys keys(c);
    Json::Value& enable = SetMember(times, keys.enable);
    Json::Value& window = SetMember(times, keys.time);
    for (int d = 0; d < kDays; ++d) {
      for (int w = 0; w < kWindows; ++w) {
        const TimeSectionRecord& s = r->uploadTimes[c][d][w];
        SetElement(SetElement(enable, d), w) = s.enable != 0;
        PackWindowTimes(s, SetElement(SetElement(window, d), w));
      }
    }
  }
}

constexpr Field kLegacyFields[] = {
    KOVA_F(LegacyNasConfig, enable, "En", kBool),
    KOVA_F(LegacyNasConfig, version, "Version", kInt),
    KOVA_ENUM(LegacyNasConfig, protocol, "Protocol", kNasProtocols),
    KOVA_F(LegacyNasConfig, address, "Address", kText),
    KOVA_F(LegacyNasConfig, port, "Port", kInt),
    KOVA_F(LegacyNasConfig, userName, "UserName", kText),
    KOVA_F(LegacyNasConfig, password, "Password", kText),
    KOVA_F(LegacyNasConfig, directory, "Directory", kText),
    KOVA_F(LegacyNasConfig, fileLength, "FileLen", kInt),
    KOVA_F(LegacyNasConfig, interval, "Interval", kInt),
    KOVA_CUSTOM(LegacyNasConfig, uploadTimes, "ChnTime", ParseChannelTimes, PackChannelTimes),
};

}  // namespace

void ParseLegacyNas(const Json::Value& nas, unsigned char* legacy) {
  ParseFields(nas, legacy, kLegacyFields);
}

void PackLegacyNas(const unsigned char* legacy, Json::Value& nas) {
  nas = Json::Value(Json::objectValue);
  PackFields(legacy, nas, kLegacyFields);
}

}  // namespace kova
