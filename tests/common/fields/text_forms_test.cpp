#include "common/fields/text_forms.h"

#include <gtest/gtest.h>

#include <cstring>

namespace kova {
namespace {

TEST(DateTimePacked, FieldsAndTheUnmaskedYear) {
  uint32_t packed = 0;
  ASSERT_EQ(0, ParseDateTimePacked("2024-5-6 7:8:9", 14, &packed));
  const uint32_t expected =
      ((2024u % 64) << 26) | (5u << 22) | (6u << 17) | (7u << 12) | (8u << 6) | 9u;
  EXPECT_EQ(expected, packed);
  // Month 17 keeps its low four bits; it must not spill into the year.
  ASSERT_EQ(0, ParseDateTimePacked("0-17-0 0:0:0", 12, &packed));
  EXPECT_EQ(1u << 22, packed);
  EXPECT_EQ(-1, ParseDateTimePacked("2024-5-6 7:8", 12, &packed));
  EXPECT_EQ(-1, ParseDateTimePacked("2024-5-6 7:8:9", 0, &packed));
  // The length bounds the reading: the seconds lie past it here.
  EXPECT_EQ(-1, ParseDateTimePacked("2024-5-6 7:8:9", 12, &packed));
}

TEST(TimeRange, SixFieldsCutToBytesLeadUntouched) {
  TimeRange r;
  std::memset(&r, 0xEE, sizeof r);
  ASSERT_EQ(0, ParseTimeRange("8:30:0-17:45:300", 16, &r));
  EXPECT_EQ(0xEE, r.lead);
  EXPECT_EQ(45, r.endMinute);
  EXPECT_EQ(300 & 0xFF, r.endSecond);
  EXPECT_EQ(-1, ParseTimeRange("8:30-17:45", 10, &r));
}

}  // namespace
}  // namespace kova
