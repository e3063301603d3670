// "Network": the interfaces are the table's members that hold objects.
#include "kova/records/network.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace kova_test
