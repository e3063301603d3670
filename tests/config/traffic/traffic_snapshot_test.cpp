// "TrafficSnapshot" end to end.
#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "kova/records/traffic.h"
#include "test_util.h"

namespace kova_test {
namespace {

using Record = TrafficSnapshotConfig;

std::unique_ptr<Record> Parse(const std::string& json, int* rc, uint32_t* ret) {
  return ParseAs<Record>("TrafficSnapshot", json, rc, ret);
}

// The three sub-blocks are read first and in order; the first that is
// neither null nor its JSON type stops the reading, and the call still
// succeeds with the full size.
TEST(TrafficSnapshot, AFailingSubBlockLeavesEveryLaterKeyZero) {
  const std::string rest =
      R"("Detector":[{"RoadwayNumber":4}],"KeepAlive":30,"OSD":{"OSDAttrScheme":2},)"
      R"("EventHandler":{"RecordEnable":true})";
  struct Case {
    std::string blocks;
    bool snapTimes, radar, later;
  };
  const Case cases[] = {
      {R"("BreakingSnapTimes":{"Normal":2},"Radar":{"Level":3},)", true, true, true},
      {R"("BreakingSnapTimes":null,"Radar":{"Level":3},)", false, true, true},
      {R"("BreakingSnapTimes":{"Normal":2},"Radar":5,)", true, false, false},
      {R"("BreakingSnapTimes":{"Normal":2},"Radar":[{"Level":3}],)", true, false, false},
      {R"("BreakingSnapTimes":"all","Radar":{"Level":3},)", false, false, false},
  };
  for (const Case& c : cases) {
    int rc = 0;
    uint32_t ret = 0;
    std::unique_ptr<Record> r = Parse(Doc("{" + c.blocks + rest + "}"), &rc, &ret);
    ASSERT_EQ(1, rc) << c.blocks;
    EXPECT_EQ(sizeof(Record), ret) << c.blocks;
    EXPECT_EQ(c.snapTimes ? 2 : 0, r->breakingSnapTimes.normal) << c.blocks;
    EXPECT_EQ(c.snapTimes, r->breakingSnapTimesPresent == 1) << c.blocks;
    EXPECT_EQ(c.radar ? 3 : 0, r->radar.level) << c.blocks;
    EXPECT_EQ(c.later ? 4 : 0, r->detector.lanes[0].roadwayNumber) << c.blocks;
    EXPECT_EQ(c.later ? 30 : 0, r->keepAlive) << c.blocks;
    EXPECT_EQ(c.later ? 2 : 0, r->osd.attrScheme) << c.blocks;
    EXPECT_EQ(c.later ? 1 : 0, r->eventHandler.recordEnable) << c.blocks;
    // What was not read is not packed either.
    const std::string packed = Pack("TrafficSnapshot", *r);
    EXPECT_EQ(c.radar, packed.find("\"Radar\"") != std::string::npos) << c.blocks;
    EXPECT_EQ(c.later, packed.find("\"EventHandler\"") != std::string::npos) << c.blocks;
  }

  // "Detector" is an array of lanes: an object fails it; an entry that is
  // not an object is skipped.
  int rc = 0;
  uint32_t ret = 0;
  std::unique_ptr<Record> r =
      Parse(Doc(R"({"Detector":{"RoadwayNumber":4},"KeepAlive":30})"), &rc, &ret);
  ASSERT_EQ(1, rc);
  EXPECT_EQ(0, r->detectorPresent);
  EXPECT_EQ(0, r->keepAlive);
  r = Parse(Doc(R"({"Detector":[5,{"RoadwayNumber":4}],"KeepAlive":30})"), &rc, &ret);
  EXPECT_EQ(1, r->detector.laneCount);
  EXPECT_EQ(4, r->detector.lanes[0].roadwayNumber);
  EXPECT_EQ(30, r->keepAlive);
}

TEST(TrafficSnapshot, DeviceAddressIsCutBeforeConversion) {
  struct Case {
    std::string address;
    std::string kept;
  };
  const std::string a383(383, 'a');
  const Case cases[] = {
      {std::string(400, 'x'), std::string(384, 'x')},
      {a383 + "\xC3\xA9" + "b", a383},  // the accent would straddle byte 384
      {a383 + "b\xC3\xA9", a383 + "b"},
  };
  for (const Case& c : cases) {
    int rc = 0;
    uint32_t ret = 0;
    std::unique_ptr<Record> r = Parse(Doc(R"({"DeviceAddress":")" + c.address + "\"}"), &rc, &ret);
    ASSERT_EQ(1, rc);
    EXPECT_EQ(c.kept, r->deviceAddress);
  }
}

}  // namespace
}  // namespace kova_test
