// "RTSP", "DVRIP" and "Multicast" end to end: the device's service ports,
// registration and multicast streams.
#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "config/alarm/alarm_test_util.h"
#include "kova/kova.h"
#include "kova/records/network.h"

namespace {

using kova_test::Doc;
using kova_test::NewRecord;
using kova_test::Pack;
using kova_test::ParseAs;

// Every service answer parses to one record, packs back to the expected
// text, and that text parses to the same bytes.
template <typename Rec>
void ExpectRoundTrip(const char* name, std::unique_ptr<Rec>* parsed) {
  int rc = 0;
  uint32_t ret = 0;
  *parsed = ParseAs<Rec>(name, kova_test::Sample(name), &rc, &ret);
  ASSERT_EQ(1, rc) << name;
  EXPECT_EQ(sizeof(Rec), ret) << name;
  const std::string packed = Pack(name, **parsed);
  EXPECT_EQ(kova_test::PackedText(name), packed) << name;
  auto again = ParseAs<Rec>(name, Doc(packed), &rc, &ret);
  ASSERT_EQ(1, rc) << name;
  EXPECT_EQ(0, std::memcmp(parsed->get(), again.get(), sizeof(Rec))) << name;
}

TEST(Rtsp, KeysAreReadOnlyWhenPresentAndResultIsNotLookedAt) {
  struct Case {
    const char* text;
    RtspConfig expected;
  } cases[] = {
      {R"({"params":{"table":{"Enable":true,"Port":554}}})", {28, 1, 554, 0, 0, 0, 0}},
      {R"({"result":false,"params":{"table":{"RTP":{"StartPort":5000}}}})",
       {28, 0, 0, 5000, 0, 0, 0}},
      {R"({"result":true,"params":{"table":{"Port":null,"RTP":7,"RtspOverHttp":{"Port":80}}}})",
       {28, 0, 0, 0, 0, 0, 80}},
      {R"({"result":true,"params":{"table":null}})", {28, 0, 0, 0, 0, 0, 0}},
      {"[1,2]", {28, 0, 0, 0, 0, 0, 0}},
  };
  for (const Case& c : cases) {
    RtspConfig r;
    std::memset(&r, 0x5A, sizeof r);
    uint32_t ret = 0;
    ASSERT_EQ(1, KOVA_ParseData("RTSP", c.text, &r, sizeof r, &ret)) << c.text;
    EXPECT_EQ(sizeof r, ret);
    EXPECT_EQ(0, std::memcmp(&c.expected, &r, sizeof r)) << c.text;
  }
}

TEST(Dvrip, RegistrationGoesBackInTheFormItCame) {
  std::string servers;
  for (int i = 0; i < 10; ++i)
    servers += R"({"Address":"10.0.0.)" + std::to_string(i) + R"(","Port":7000},)";
  int rc = 0;
  auto r = ParseAs<DvripConfig>(
      "DVRIP",
      Doc(R"({"TCPPort":36000,"RegisterServerEx":{"Servers":[null,3,)" + servers + "{}]}}"), &rc);
  ASSERT_EQ(1, rc);
  EXPECT_EQ(0, r->registerServerPresent);
  EXPECT_EQ(1, r->registerServerExPresent);
  // Non-objects take no slot; the first 8 servers are kept.
  EXPECT_EQ(KOVA_DVRIP_MAX_SERVERS, r->registerServerEx.serverCount);
  EXPECT_STREQ("10.0.0.7", r->registerServerEx.servers[7].address);
  const std::string packed = Pack("DVRIP", *r);
  EXPECT_EQ(std::string::npos, packed.find("\"RegisterServer\""));
  EXPECT_NE(std::string::npos, packed.find(R"("Address" : "10.0.0.7", "Port" : 7000 } ] })"));

  // A "RegisterServer" that is not an object is not taken.
  r = ParseAs<DvripConfig>("DVRIP", Doc(R"({"RegisterServer":[1]})"), &rc);
  ASSERT_EQ(1, rc);
  EXPECT_EQ(0, r->registerServerPresent);
  // "result" must be true.
  r = ParseAs<DvripConfig>("DVRIP", R"({"params":{"table":{"TCPPort":1}}})", &rc);
  EXPECT_EQ(0, rc);
}

TEST(Multicast, ListsAreCutAndTheWholeRecordIsNeeded) {
  std::string streams;
  for (int i = 0; i < 130; ++i) streams += R"({"Channel":)" + std::to_string(i) + "},";
  int rc = 0;
  auto r = ParseAs<MulticastConfig>("Multicast", Doc(R"({"TS":[7,null,)" + streams + "{}]}"), &rc);
  ASSERT_EQ(1, rc);
  EXPECT_EQ(KOVA_MULTICAST_MAX_STREAMS, r->tsCount);
  EXPECT_EQ(127, r->ts[127].channel);
  EXPECT_EQ(0, r->rtpCount);
  r->tsCount = 1000;  // a caller's count is cut to the list
  EXPECT_NE(std::string::npos, Pack("Multicast", *r).find(R"("Channel" : 127,)"));
  r->tsCount = 1;
  EXPECT_EQ(R"({ "RTP" : [  ], "TS" : [ { "Channel" : 0, "Enable" : false, "LocalAddr" : "", )"
            R"("MulticastAddr" : "", "Port" : 0, "StreamType" : "" } ] })"
            "\n",
            Pack("Multicast", *r));

  std::vector<unsigned char> b(sizeof(MulticastConfig), 0x5A);
  uint32_t ret = 0;
  EXPECT_EQ(0, KOVA_ParseData("Multicast", Doc("{}").c_str(), b.data(), sizeof(MulticastConfig) - 1,
                              &ret));
  EXPECT_EQ(0, KOVA_ParseData("Multicast", R"({"result":0,"params":{"table":{}}})", b.data(),
                              static_cast<uint32_t>(b.size()), &ret));
  EXPECT_EQ(std::vector<unsigned char>(b.size(), 0x5A), b);
  // A missing table is one empty record that carries its size.
  ASSERT_EQ(1, KOVA_ParseData("Multicast", R"({"result":true})", b.data(),
                              static_cast<uint32_t>(b.size()), &ret));
  EXPECT_EQ(sizeof(MulticastConfig), ret);
  EXPECT_EQ(sizeof(MulticastConfig), reinterpret_cast<MulticastConfig*>(b.data())->size);
  EXPECT_EQ(0, b[sizeof(MulticastConfig) - 1]);
}

}  // namespace
