#include "common/fields/text_forms.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "common/base/log.h"

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
  // The two-digit form, a third digit of seconds read on, or cut by the length.
  const uint32_t day = ((2024u % 64) << 26) | (1u << 22) | (5u << 17) | (12u << 12) | (34u << 6);
  ASSERT_EQ(0, ParseDateTimePacked("2024-01-05 12:34:56", 19, &packed));
  EXPECT_EQ(day | 56u, packed);
  ASSERT_EQ(0, ParseDateTimePacked("2024-01-05 12:34:567", 20, &packed));
  EXPECT_EQ(day | (567u & 0x3F), packed);
  ASSERT_EQ(0, ParseDateTimePacked("2024-01-05 12:34:567", 19, &packed));
  EXPECT_EQ(day | 56u, packed);
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

TEST(IpText, DottedFormLowestByteFirst) {
  char text[16];
  EXPECT_STREQ("192.168.0.1", IpToText(0x0100A8C0u, text));
  EXPECT_EQ(0x0100A8C0u, TextToIp("192.168.0.1"));
  EXPECT_EQ(0x04030205u, TextToIp("1.2.3.4.5"));  // a fifth part ORs into the lowest byte
  EXPECT_EQ(0x00000200u, TextToIp("x.2"));        // junk skipped, never an error
}

TEST(IntList, PiecesLimitsAndCount) {
  uint32_t v[100];
  uint32_t count = 99;
  ASSERT_EQ(0, ParseIntList("1,2,,4", 6, v, &count));
  EXPECT_EQ(4u, count);
  EXPECT_EQ(0u, v[2]);
  EXPECT_EQ(4u, v[3]);
  count = 99;
  EXPECT_EQ(0, ParseIntList(nullptr, 0, nullptr, &count));  // empty: nothing written
  EXPECT_EQ(99u, count);
  EXPECT_EQ(-1, ParseIntList("1", -1, v, &count));
  EXPECT_EQ(-1, ParseIntList("12345678,5", 10, v, nullptr));  // a piece of 8 characters
  EXPECT_EQ(0, ParseIntList("7,8,9", 3, v, &count));          // only the first `len` bytes
  EXPECT_EQ(2u, count);
  std::string hundred = "0";
  for (int i = 1; i < 100; ++i) hundred += "," + std::to_string(i);
  ASSERT_EQ(0, ParseIntList(hundred.c_str(), static_cast<int32_t>(hundred.size()), v, &count));
  EXPECT_EQ(99u, v[99]);
  hundred += ",";  // the hundredth comma
  EXPECT_EQ(-1, ParseIntList(hundred.c_str(), static_cast<int32_t>(hundred.size()), v, &count));
}

TEST(RightItem, IdNameMemoAndTheirLimits) {
  RightItem item = {};
  EXPECT_EQ(kErrBadParameter, ParseRightItem("1:a:b", 5, nullptr));
  EXPECT_EQ(kErrMalformedData, ParseRightItem("12:admin", 8, &item));
  EXPECT_EQ(kErrMalformedData, ParseRightItem("1:a:b:c", 7, &item));
  const std::string id31 = std::string(30, '0') + "7:a:b";
  EXPECT_EQ(0u, ParseRightItem(id31.c_str(), static_cast<int32_t>(id31.size()), &item));
  EXPECT_EQ(7u, item.id);
  // A name and a memo of 32 characters fill their fields, without a NUL.
  const std::string full = "1:" + std::string(32, 'n') + ":" + std::string(32, 'm');
  ASSERT_EQ(0u, ParseRightItem(full.c_str(), static_cast<int32_t>(full.size()), &item));
  EXPECT_EQ(std::string(32, 'n'), std::string(item.name, sizeof item.name));
  EXPECT_EQ(std::string(32, 'm'), std::string(item.memo, sizeof item.memo));
  for (const std::string& bad : {std::string(32, '1') + ":a:b", "1:" + std::string(33, 'n') + ":b",
                                 "1:a:" + std::string(33, 'm')}) {
    EXPECT_EQ(kErrMalformedData,
              ParseRightItem(bad.c_str(), static_cast<int32_t>(bad.size()), &item));
  }
}

}  // namespace
}  // namespace kova
