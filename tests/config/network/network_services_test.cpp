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

}  // namespace
