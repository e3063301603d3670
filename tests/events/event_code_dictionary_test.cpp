// The event-code dictionary: exact names to codes and back.
#include "events/event_code_dictionary.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace kova {
namespace {

TEST(EventCodeDictionary, HoldsEveryNameAndKeepsTheFirstNameOfACode) {
  const EventCodeDictionary& d = EventCodeDictionary::Instance();
  const struct {
    const char* name;
    uint32_t code;
  } rows[] = {
      {"TrafficFlowInfo", 0x3009},
      {"GPSStatus", 0x2143},
      {"GPS", 0x2143},
      {"AudioAnomaly", 0x2178},
      {"AudioAbnormalDetection", 0x2178},
      {"FinaceScheme", 0x31a9},
      {"AroudWifiSearch", 0x31c7},
      {"DCSSwtich", 0x31d0},
      {"DrivingWithoutCard", 0x31e7},
      {"TemperStatisticsInfo", 0x3300},
      // Exact comparison: letter case counts, and nothing is trimmed.
      {"gps", 0},
      {"GPS ", 0},
      {"", 0},
      {"CrossLineDetection", 0x2188},
      {"crosslinedetection", 0},
  };
  for (const auto& r : rows) EXPECT_EQ(r.code, d.CodeOf(r.name)) << r.name;
  EXPECT_EQ(0u, d.CodeOf(nullptr));
  EXPECT_STREQ("GPSStatus", d.NameOf(0x2143));
  EXPECT_STREQ("AudioAnomaly", d.NameOf(0x2178));
  EXPECT_STREQ("DrivingWithoutCard", d.NameOf(0x31e7));
  EXPECT_EQ(nullptr, d.NameOf(0));
  EXPECT_EQ(nullptr, d.NameOf(0x9999));
}

}  // namespace
}  // namespace kova
