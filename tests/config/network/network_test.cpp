// "Network": the interfaces are the table's members that hold objects;
// "RTSP": a record that carries its own size.
#include "kova/records/network.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "test_util.h"

namespace kova_test {
namespace {

TEST(Network, InterfacesAreTheMembersHoldingObjects) {
  std::string many, first32;
  for (int i = 10; i < 50; ++i) {
    many += std::string(i > 10 ? "," : "") + "\"if" + std::to_string(i) + "\":{\"MTU\":1}";
    if (i < 42) first32 += std::string(i > 10 ? "," : "") + "if" + std::to_string(i);
  }
  const std::string longName(200, 'n');
  const struct {
    const char* what;
    std::string table;
    std::string names;
  } cases[] = {
      {"null, scalars, arrays and empty objects take no slot",
       R"({"Hostname":"h","a":null,"b":5,"c":{},"d":[{"MTU":1}],"e":{"MTU":1},"f":"x"})", "e"},
      {"names in byte order, capitals first",
       R"({"eth1":{"MTU":1},"Wlan":{"MTU":1},"eth0":{"MTU":1}})", "Wlan,eth0,eth1"},
      {"at most 32 interfaces", "{" + many + "}", first32},
      {"a name is cut to 127 bytes", "{\"" + longName + "\":{\"MTU\":1}}", longName.substr(0, 127)},
      {"a table that is not an object has no interfaces", R"([{"eth0":{"MTU":1}}])", ""},
  };
  for (const auto& c : cases) {
    int rc = 0;
    uint32_t ret = 0;
    auto r = ParseAs<NetworkConfig>("Network", Doc(c.table), &rc, &ret);
    EXPECT_EQ(1, rc) << c.what;
    EXPECT_EQ(sizeof(NetworkConfig), ret) << c.what;
    std::string names;
    for (int32_t i = 0; i < r->interfaceCount; ++i) {
      names += std::string(i ? "," : "") + r->interfaces[i].name;
    }
    EXPECT_EQ(c.names, names) << c.what;
  }
}

// The caller's buffer is not cleared, but the record is, with its size
// written, before the answer (a null one too) is read into it.
TEST(Rtsp, TheRecordIsClearedAndSizedBeforeItIsRead) {
  for (const char* table : {R"({"Port":554})", "null"}) {
    RtspConfig r;
    std::memset(&r, 0xAB, sizeof r);
    ASSERT_EQ(1, KOVA_ParseData("RTSP", Doc(table).c_str(), &r, sizeof r, nullptr)) << table;
    EXPECT_EQ(sizeof r, r.size) << table;
    EXPECT_EQ(table[0] == '{' ? 554 : 0, r.port) << table;
    EXPECT_EQ(0, r.httpTunnelPort) << table;
  }
}

}  // namespace
}  // namespace kova_test
