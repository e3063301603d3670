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

TEST(AccessControlGeneral, DeviceResponseReadsAndPacksBack) {
  AccessGeneralRecord r{};
  uint32_t ret = 0;
  ASSERT_EQ(1, Parse(kova_test::Sample(kName), &r, &ret));
  EXPECT_EQ(sizeof r, ret);
  EXPECT_EQ(1, r.accessProperty);
  EXPECT_EQ(3, r.abLockGroups[1].doors[1]);
  const std::string packed = Pack(kName, r);
  EXPECT_EQ(kova_test::PackedText(kName), packed);
  AccessGeneralRecord again{};
  ASSERT_EQ(1, Parse(Doc(packed), &again, &ret));
  EXPECT_EQ(0, std::memcmp(&r, &again, sizeof r));
}

TEST(AccessControlGeneral, DirectionNames) {
  AccessGeneralRecord r{};
  uint32_t ret = 0;
  ASSERT_EQ(1, Parse(Doc(R"({"AccessProperty":"UNIDIRECT"})"), &r, &ret));
  EXPECT_EQ(2, r.accessProperty);
  EXPECT_NE(std::string::npos, Pack(kName, r).find(R"("AccessProperty" : "unidirect")"));
  ASSERT_EQ(1, Parse(Doc(R"({"AccessProperty":"sideways"})"), &r, &ret));
  EXPECT_EQ(1, r.accessPropertyPresent);
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
  EXPECT_EQ(2, r.abLockGroupCount);
  EXPECT_EQ(3, r.abLockGroups[1].doorCount);

  ASSERT_EQ(1, Parse(Doc(R"({"ABLock":{"Doors":[)" + doors + "]}}"), &r, &ret));
  EXPECT_EQ(8, r.abLockGroupCount);
  EXPECT_EQ(4, r.abLockGroups[7].doorCount);

  // Without "ABLock": no flag, nothing packed.
  ASSERT_EQ(1, Parse(Doc("{}"), &r, &ret));
  EXPECT_EQ(0, r.abLockPresent);
  EXPECT_EQ(std::string::npos, Pack(kName, r).find("ABLock"));
}

TEST(AccessControlGeneral, EnvelopeAndBufferRules) {
  AccessGeneralRecord r;
  std::memset(&r, 0x5A, sizeof r);
  uint32_t ret = 0;
  // A null table succeeds with nothing read and a length of 0.
  ASSERT_EQ(1, Parse(R"({"result":true,"params":{"table":null}})", &r, &ret));
  EXPECT_EQ(0u, ret);
  EXPECT_EQ(0x5A, r.spare);
  EXPECT_EQ(0, Parse(R"({"result":false,"params":{"table":{}}})", &r, &ret));
  EXPECT_EQ(0, KOVA_ParseData(kName, Doc("{}").c_str(), &r, sizeof r - 1, &ret));

  // The packed text is copied only when its NUL fits too.
  AccessGeneralRecord z{};
  const std::string text = Pack(kName, z);
  std::vector<char> out(text.size() + 1);
  EXPECT_EQ(0,
            KOVA_PacketData(kName, &z, sizeof z, out.data(), static_cast<uint32_t>(text.size())));
  EXPECT_EQ(
      1, KOVA_PacketData(kName, &z, sizeof z, out.data(), static_cast<uint32_t>(text.size() + 1)));
  EXPECT_EQ(text, out.data());
}

}  // namespace
