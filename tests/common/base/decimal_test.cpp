#include "common/base/decimal.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace kova {
namespace {

// The text buffers of the clock writers are sized by these bounds: the
// longest numbers must fill them exactly, and read as printf writes them.
TEST(Decimal, LongestTextsFillTheirBoundsExactly) {
  char range[kClockRangeText];
  const char* end =
      PutClockRange(range, INT32_MIN, INT32_MIN, INT32_MIN, INT32_MIN, INT32_MIN, INT32_MIN);
  EXPECT_EQ(range + sizeof range, end);
  const std::string min = "-2147483648";
  EXPECT_EQ(min + ":" + min + ":" + min + "-" + min + ":" + min + ":" + min,
            std::string(static_cast<const char*>(range), end));

  char clock[kClockText];
  EXPECT_EQ(clock + sizeof clock, PutClock(clock, INT32_MIN, INT32_MIN, INT32_MIN));
  char number[kDecimalText];
  EXPECT_EQ(number + sizeof number, PutDecimal(number, INT32_MIN, 2));

  char small[kClockRangeText];
  EXPECT_EQ("07:05:00-23:59:59", std::string(small, PutClockRange(small, 7, 5, 0, 23, 59, 59)));
  EXPECT_EQ("-1:100", std::string(small, PutClock(small, -1, 100)));
}

}  // namespace
}  // namespace kova
