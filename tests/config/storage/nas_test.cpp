// "NAS": the server table of up to 16 servers and the older single-server
// form, both ways.
#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>

#include "kova/records/storage.h"
#include "test_util.h"

namespace kova_test {
namespace {

std::unique_ptr<NasConfig> ParseNasOk(const std::string& json) {
  std::unique_ptr<NasConfig> r = NewRecord<NasConfig>();
  std::memset(r.get(), 0xEE, sizeof(NasConfig));
  EXPECT_EQ(1, KOVA_ParseData("NAS", json.c_str(), r.get(), sizeof(NasConfig), nullptr));
  return r;
}

// Packs `r`, parses the text back the way the device would answer with it,
// and expects the same record.
void ExpectRoundTrip(const NasConfig& r) {
  const std::string text = Pack("NAS", r);
  ASSERT_NE("<failed>", text);
  EXPECT_EQ(0, std::memcmp(&r, ParseNasOk(text).get(), sizeof r));
}

TEST(Nas, LegacyFormReadsTheRootsNasMemberAndPacksBackInItsOwnForm) {
  std::unique_ptr<NasConfig> r = ParseNasOk(Fixture("NAS_legacy.json"));
  EXPECT_EQ(0, r->useServerList);

  EXPECT_EQ(Fixture("NAS_legacy.packed.txt"), Pack("NAS", *r));
  ExpectRoundTrip(*r);

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
  const std::string text = Pack("NAS", *r);
  EXPECT_NE(std::string::npos, text.find(R"("En255" : [ [ true, true ], [ false, false ], )"));
  EXPECT_NE(std::string::npos,
            text.find(R"("Time255" : [ [ "01:02:03-04:05:06", "00:00:00-00:00:00" ], )"));
  ExpectRoundTrip(*r);
}

}  // namespace
}  // namespace kova_test
