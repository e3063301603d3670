// The capability and status answers: what is irregular about them (the
// payload's place, the PTZ caps' other members, the object id in "result",
// parse only).
#include "kova/records/caps.h"

#include <gtest/gtest.h>

#include "test_util.h"

namespace kova_test {
namespace {

TEST(CapsAnswers, PayloadPlacesExtrasAndRefusals) {
  int rc = 0;
  uint32_t ret = 0;
  auto caps = ParseAs<PtzProtocolCaps>("ptz.getCurrentProtocolCaps",
                                       Sample("ptz.getCurrentProtocolCaps"), &rc, &ret);
  ASSERT_EQ(1, rc);
  EXPECT_EQ(sizeof(PtzProtocolCaps), ret);
  // Booleans and integers no field names are kept by name, in key order.
  ASSERT_EQ(3u, caps->extraCount);
  EXPECT_STREQ("Flip", caps->extras[0].key);
  EXPECT_STREQ("ZoomMax", caps->extras[1].key);
  EXPECT_EQ(30, caps->extras[1].value);

  // A table is not where these answers put their payload; a missing one is a zero record.
  auto focus = ParseAs<FocusStatus>(
      "devVideoInput.getFocusStatus",
      R"({"result": true, "params": {"table": {"Focus": 0.5}, "status": {"Zoom": 0.25}}})", &rc,
      &ret);
  EXPECT_EQ(1, rc);
  EXPECT_EQ(0, focus->focusPresent);
  EXPECT_EQ(0.25, focus->zoom);
  auto none =
      ParseAs<VideoStatSummary>("videoStatServer.getSummary", R"({"result": true})", &rc, &ret);
  EXPECT_EQ(1, rc);
  EXPECT_EQ(sizeof(VideoStatSummary), ret);

  // The object id is "result" itself; false is the device's refusal.
  auto id = ParseAs<PtzInstance>("ptz.factory.instance", R"({"result": 21348976})", &rc, &ret);
  EXPECT_EQ(1, rc);
  EXPECT_EQ(21348976u, id->objectId);
  ParseAs<PtzInstance>("ptz.factory.instance", R"({"result": false, "id": 9})", &rc, &ret);
  EXPECT_EQ(0, rc);
}

}  // namespace
}  // namespace kova_test
