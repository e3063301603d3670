// "Network" end to end: the interfaces taken from the table's members, the
// link mode and interface type tables, and the envelope rules.
#include "kova/records/network.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "config/alarm/alarm_test_util.h"
#include "kova/kova.h"

namespace {

using kova_test::Doc;
using kova_test::NewRecord;
using kova_test::Pack;
using kova_test::ParseAs;

const char kName[] = "Network";

std::unique_ptr<NetworkConfig> ParseTable(const std::string& table) {
  int rc = 0;
  uint32_t ret = 0;
  std::unique_ptr<NetworkConfig> r = ParseAs<NetworkConfig>(kName, Doc(table), &rc, &ret);
  EXPECT_EQ(1, rc) << table;
  EXPECT_EQ(sizeof(NetworkConfig), ret) << table;
  return r;
}

std::string Names(const NetworkConfig& r) {
  std::string out;
  for (int32_t i = 0; i < r.interfaceCount; ++i)
    out += std::string(i ? "," : "") + r.interfaces[i].name;
  return out;
}

TEST(Network, InterfacesAreTheMembersHoldingObjects) {
  std::string many;
  for (int i = 0; i < 40; ++i) {
    many += std::string(i ? "," : "") + "\"if" + (i < 10 ? "0" : "") + std::to_string(i) +
            "\":{\"MTU\":" + std::to_string(1000 + i) + "}";
  }
  std::string expected32;
  for (int i = 0; i < 32; ++i) {
    expected32 += std::string(i ? "," : "") + "if" + (i < 10 ? "0" : "") + std::to_string(i);
  }
  const std::string longName(200, 'n');
  struct Case {
    const char* what;
    std::string table;
    std::string names;
  } cases[] = {
      {"null, scalars, arrays and empty objects take no slot",
       R"({"Hostname":"h","a":null,"b":5,"c":{},"d":[{"MTU":1}],"e":{"MTU":1},"f":"x"})", "e"},
      {"names in byte order, capitals first",
       R"({"eth1":{"MTU":1},"Wlan":{"MTU":1},"eth0":{"MTU":1}})", "Wlan,eth0,eth1"},
      {"at most 32 interfaces", "{" + many + "}", expected32},
      {"a name is cut to 127 bytes", "{\"" + longName + "\":{\"MTU\":1}}", longName.substr(0, 127)},
      {"a table that is not an object has no interfaces", R"([{"eth0":{"MTU":1}}])", ""},
  };
  for (const Case& c : cases) {
    auto r = ParseTable(c.table);
    EXPECT_EQ(c.names, Names(*r)) << c.what;
  }
}

}  // namespace
