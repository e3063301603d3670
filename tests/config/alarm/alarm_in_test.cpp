// "Alarm": the week grid beside the linkage block is the one packed.
#include <gtest/gtest.h>

#include <string>

#include "kova/records/alarm.h"
#include "test_util.h"

namespace kova_test {
namespace {

TEST(Alarm, WeekGridWinsOverTheLinkageSchedule) {
  auto r = NewRecord<AlarmInRecord>();
  r->eventHandler.schedule.holidayEnabled = 1;
  r->eventHandler.schedule.sections[0][0] = {1, 1, 0, 0, 2, 0, 0};
  r->eventHandler.schedule.sections[7][0] = {1, 3, 0, 0, 4, 0, 0};
  r->week.sections[0][0] = {1, 8, 30, 0, 17, 45, 0};
  const std::string packed = Pack("Alarm", *r);
  EXPECT_NE(std::string::npos, packed.find(R"("1 08:30:00-17:45:00")"));
  EXPECT_EQ(std::string::npos, packed.find(R"("1 01:00:00-02:00:00")"));
  // The holiday stays the linkage block's own.
  EXPECT_NE(std::string::npos, packed.find(R"("1 03:00:00-04:00:00")"));
}

}  // namespace
}  // namespace kova_test
