// "AccessControlGeneral" end to end.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "config/alarm/alarm_test_util.h"
#include "kova/kova.h"
#include "kova/records/access.h"

namespace {

using kova_test::Doc;
using kova_test::Pack;

const char kName[] = "AccessControlGeneral";

int Parse(const std::string& json, AccessGeneralRecord* r, uint32_t* ret) {
  *ret = 0xFFFF;
  return KOVA_ParseData(kName, json.c_str(), r, sizeof *r, ret);
}

TEST(AccessControlGeneral, DirectionNames) {
  AccessGeneralRecord r{};
  uint32_t ret = 0;
  ASSERT_EQ(1, Parse(Doc(R"({"AccessProperty":"UNIDIRECT"})"), &r, &ret));
  EXPECT_EQ(2, r.accessProperty);
  EXPECT_NE(std::string::npos, Pack(kName, r).find(R"("AccessProperty" : "unidirect")"));
  ASSERT_EQ(1, Parse(Doc(R"({"AccessProperty":"sideways"})"), &r, &ret));
  EXPECT_EQ(0, r.accessProperty);
  EXPECT_EQ(std::string::npos, Pack(kName, r).find("AccessProperty"));
}

TEST(AccessControlGeneral, DoorGroupsAreCutAndMissingMembersKeepTheCallersValues) {
  std::string doors;
  for (int g = 0; g < 10; ++g) doors += std::string(g ? "," : "") + "[1,2,3,4,5,6]";
  AccessGeneralRecord r{};
  std::strcpy(r.waitingSound, "kept.wav");
  r.unlockHoldInterval = 77;
  r.abLockGroups[1].doorCount = 3;  // group 1 below is not an array
  uint32_t ret = 0;
  ASSERT_EQ(1, Parse(Doc(R"({"ABLock":{"Enable":1,"Doors":[[9],"x"]}})"), &r, &ret));
  EXPECT_STREQ("kept.wav", r.waitingSound);
  EXPECT_EQ(77, r.unlockHoldInterval);
  EXPECT_EQ(3, r.abLockGroups[1].doorCount);

  ASSERT_EQ(1, Parse(Doc(R"({"ABLock":{"Doors":[)" + doors + "]}}"), &r, &ret));
  EXPECT_EQ(8, r.abLockGroupCount);
  EXPECT_EQ(4, r.abLockGroups[7].doorCount);

  // Without "ABLock": no flag, nothing packed.
  ASSERT_EQ(1, Parse(Doc("{}"), &r, &ret));
  EXPECT_EQ(0, r.abLockPresent);
  EXPECT_EQ(std::string::npos, Pack(kName, r).find("ABLock"));
}

}  // namespace
