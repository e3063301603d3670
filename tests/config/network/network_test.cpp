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
  auto r = ParseTable("{" + many + "}");
  EXPECT_EQ(1031, r->interfaces[31].mtu);
}

TEST(Network, LinkModeAndTypeCompareExactly) {
  struct Case {
    const char* json;  // members of one interface
    int32_t netMode;
    int32_t type;
  } cases[] = {
      {R"("NetMode":"adapt","Type":"")", 0, 0},
      {R"("NetMode":"half10M","Type":"Standard")", 1, 1},
      {R"("NetMode":"full10M","Type":"Manager")", 2, 2},
      {R"("NetMode":"half100M","Type":"Extend")", 3, 3},
      {R"("NetMode":"Full100M","Type":"standard")", 0, 0},
      {R"("NetMode":4,"Type":true)", 0, 0},
      {R"("NetMode":"full100M ","Type":"Extend")", 0, 3},
  };
  for (const Case& c : cases) {
    auto r = ParseTable(std::string(R"({"eth0":{)") + c.json + "}}");
    EXPECT_EQ(c.netMode, r->interfaces[0].netMode) << c.json;
    EXPECT_EQ(c.type, r->interfaces[0].type) << c.json;
  }
}

TEST(Network, DnsServersKeepTheirPlaces) {
  auto r = ParseTable(R"({"eth0":{"DnsServers":[null,"1.1.1.1","9.9.9.9"]}})");
  EXPECT_STREQ("", r->interfaces[0].dnsServers[0]);
  EXPECT_STREQ("1.1.1.1", r->interfaces[0].dnsServers[1]);
  r = ParseTable(R"({"eth0":{"DnsServers":"1.1.1.1","Enable":7,"EnableDhcpReservedIP":true}})");
  EXPECT_STREQ("", r->interfaces[0].dnsServers[0]);
  EXPECT_EQ(7, r->interfaces[0].enable);
  EXPECT_EQ(1, r->interfaces[0].enableDhcpReservedIp);
}

TEST(Network, PackWritesNamesFromTheTablesAndCutsTheCount) {
  auto r = NewRecord<NetworkConfig>();
  std::strcpy(r->interfaces[0].name, "eth0");
  std::strcpy(r->interfaces[1].name, "eth1");
  struct Case {
    int32_t netMode;
    int32_t type;
    const char* text;
  } cases[] = {
      {0, 0, R"("NetMode" : "", "PhysicalAddress" : "", "SubnetMask" : "", "Type" : "")"},
      {4, 3,
       R"("NetMode" : "full100M", "PhysicalAddress" : "", "SubnetMask" : "", "Type" : "Extend")"},
      {5, 4, R"("NetMode" : "", "PhysicalAddress" : "", "SubnetMask" : "", "Type" : "")"},
      {-1, -1, R"("NetMode" : "", "PhysicalAddress" : "", "SubnetMask" : "", "Type" : "")"},
  };
  r->interfaceCount = 1;
  for (const Case& c : cases) {
    r->interfaces[0].netMode = c.netMode;
    r->interfaces[0].type = c.type;
    EXPECT_NE(std::string::npos, Pack(kName, *r).find(c.text)) << c.netMode << " " << c.type;
  }
  const std::string one = Pack(kName, *r);
  EXPECT_EQ(0u,
            one.find(R"({ "DefaultInterface" : "", "Domain" : "", "Hostname" : "", "eth0" : { )"
                     R"("DefaultGateway" : "", "DhcpEnable" : false, "DnsAutoGet" : false, )"
                     R"("DnsServers" : [ "", "" ], "Enable" : 0, "EnableDhcpReservedIP" : 0, )"))
      << one;
  EXPECT_EQ(std::string::npos, one.find("eth1"));
  r->interfaceCount = 1000;  // a caller's count is cut to the 32 interfaces
  const std::string all = Pack(kName, *r);
  EXPECT_NE(std::string::npos, all.find(R"("eth1" : {)"));
  EXPECT_NE(std::string::npos, all.find(R"("" : {)"));  // the unnamed ones share one member
  r->interfaceCount = -5;
  EXPECT_EQ(R"({ "DefaultInterface" : "", "Domain" : "", "Hostname" : "" })"
            "\n",
            Pack(kName, *r));
}

}  // namespace
