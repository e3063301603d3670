// "NAS": the server table of up to 16 servers and the older single-server
// form, both ways.
#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>

#include "config/alarm/alarm_test_util.h"
#include "kova/kova.h"
#include "kova/records/storage.h"

namespace {

using kova_test::Doc;

std::unique_ptr<NasConfig> ParseNas(const std::string& json, int* rc, uint32_t* ret = nullptr) {
  std::unique_ptr<NasConfig> r = kova_test::NewRecord<NasConfig>();
  std::memset(r.get(), 0xEE, sizeof(NasConfig));
  *rc = KOVA_ParseData("NAS", json.c_str(), r.get(), sizeof(NasConfig), ret);
  return r;
}

std::unique_ptr<NasConfig> ParseNasOk(const std::string& json) {
  int rc = 0;
  std::unique_ptr<NasConfig> r = ParseNas(json, &rc);
  EXPECT_EQ(1, rc) << json.substr(0, 120);
  return r;
}

// Packs `r`, parses the text back the way the device would answer with it,
// and expects the same record.
void ExpectRoundTrip(const NasConfig& r, const std::string& wrap) {
  const std::string text = kova_test::Pack("NAS", r);
  ASSERT_NE("<failed>", text);
  std::unique_ptr<NasConfig> again = ParseNasOk(wrap.empty() ? text : Doc(text));
  EXPECT_EQ(0, std::memcmp(&r, again.get(), sizeof r));
}

TEST(Nas, LegacyFormReadsTheRootsNasMemberAndPacksBackInItsOwnForm) {
  std::unique_ptr<NasConfig> r = ParseNasOk(kova_test::Fixture("NAS_legacy"));
  EXPECT_EQ(0, r->useServerList);

  EXPECT_EQ(kova_test::PackedText("NAS_legacy"), kova_test::Pack("NAS", *r));
  ExpectRoundTrip(*r, "");

  // The legacy member wins over a server table beside it, and "result" is
  // not consulted for it.
  r = ParseNasOk(R"({"result":false,"NAS":{"Port":2121},"params":{"table":[{"Port":21}]}})");
  EXPECT_EQ(0, r->useServerList);
  EXPECT_EQ(2121, r->legacy.port);
  // A non-null member that is not an object is still the legacy form, with nothing in it.
  r = ParseNasOk(R"({"NAS":7,"result":true,"params":{"table":[{"Port":21}]}})");
  EXPECT_EQ(0, r->useServerList);
  EXPECT_EQ(0, r->legacy.port);
  EXPECT_EQ(0, r->servers[0].port);
  // A null member is not: the server table is read.
  r = ParseNasOk(R"({"NAS":null,"result":true,"params":{"table":[{"Port":21}]}})");
  EXPECT_EQ(1, r->useServerList);
  EXPECT_EQ(21, r->servers[0].port);
}

TEST(Nas, LegacyChannelScheduleKeysChannelsByName) {
  std::unique_ptr<NasConfig> r =
      ParseNasOk(R"({"NAS":{"ChnTime":{"En255":[[true,true]],"Time255":[["1:2:3-4:5:6","bad"]],)"
                 R"("En256":[[true]],"Time9":[[],["07:00:00-08:00:00"]]}}})");
  const LegacyNasConfig& l = r->legacy;
  EXPECT_EQ(256, l.channelCount);  // En256 is beyond the 256 channels
  EXPECT_EQ(1, l.uploadTimes[255][0][1].enable);
  EXPECT_EQ(6, l.uploadTimes[255][0][0].endSecond);
  EXPECT_EQ(0, l.uploadTimes[255][0][1].beginHour);  // malformed: times stay 0
  EXPECT_EQ(0, l.uploadTimes[9][1][0].enable);       // no "En9": off
  EXPECT_EQ(7, l.uploadTimes[9][1][0].beginHour);
  const std::string text = kova_test::Pack("NAS", *r);
  EXPECT_NE(std::string::npos, text.find(R"("En255" : [ [ true, true ], [ false, false ], )"));
  EXPECT_NE(std::string::npos,
            text.find(R"("Time255" : [ [ "01:02:03-04:05:06", "00:00:00-00:00:00" ], )"));
  ExpectRoundTrip(*r, "");
}

}  // namespace
