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

TEST(Nas, ServerTableReadsByPositionAndPacksBackToTheDevicesText) {
  int rc = 0;
  uint32_t ret = 0;
  std::unique_ptr<NasConfig> r = ParseNas(kova_test::Sample("NAS"), &rc, &ret);
  ASSERT_EQ(1, rc);
  EXPECT_EQ(sizeof(NasConfig), ret);
  EXPECT_EQ(1, r->useServerList);
  EXPECT_EQ(4, r->serverCount);
  EXPECT_EQ(0, r->legacy.enable);
  const NasServer& ftp = r->servers[0];
  EXPECT_EQ(1, ftp.enable);
  EXPECT_STREQ("FTP1", ftp.name);
  EXPECT_EQ(KOVA_NAS_FTP, ftp.protocol);
  EXPECT_STREQ("192.168.1.108", ftp.address);
  EXPECT_EQ(21, ftp.port);
  EXPECT_STREQ("/share/nvr", ftp.directory);
  EXPECT_EQ(2u, ftp.timeOut);
  // 2024-03-18 09:15:42: 2024 keeps its low six bits (40).
  EXPECT_EQ((40u << 26) | (3u << 22) | (18u << 17) | (9u << 12) | (15u << 6) | 42u, ftp.updateTime);
  EXPECT_EQ(KOVA_NAS_SMB, r->servers[1].protocol);
  EXPECT_EQ(KOVA_NAS_GB2312, r->servers[1].characterEncoding);
  EXPECT_EQ(1u, r->servers[1].streamId);
  EXPECT_EQ(KOVA_NAS_NFS, r->servers[2].protocol);
  EXPECT_EQ(KOVA_NAS_DROPBOX, r->servers[3].cloudProtocol);
  EXPECT_STREQ("/Apps/recorder", r->servers[3].subDirectory);
  EXPECT_EQ(0, r->servers[4].enable);  // cleared

  EXPECT_EQ(kova_test::PackedText("NAS"), kova_test::Pack("NAS", *r));
  ExpectRoundTrip(*r, "table");
}

TEST(Nas, LegacyFormReadsTheRootsNasMemberAndPacksBackInItsOwnForm) {
  std::unique_ptr<NasConfig> r = ParseNasOk(kova_test::Fixture("NAS_legacy"));
  EXPECT_EQ(0, r->useServerList);
  EXPECT_EQ(0, r->serverCount);
  const LegacyNasConfig& l = r->legacy;
  EXPECT_EQ(1, l.enable);
  EXPECT_EQ(1, l.version);
  EXPECT_EQ(KOVA_NAS_FTP, l.protocol);
  EXPECT_STREQ("192.168.1.108", l.address);
  EXPECT_STREQ("recorder", l.userName);
  EXPECT_STREQ("/upload", l.directory);
  EXPECT_EQ(128, l.fileLength);
  EXPECT_EQ(30, l.interval);
  EXPECT_EQ(4, l.channelCount);
  EXPECT_EQ(1, l.uploadTimes[0][0][0].enable);
  EXPECT_EQ(24, l.uploadTimes[0][0][0].endHour);
  EXPECT_EQ(0, l.uploadTimes[1][0][0].enable);
  EXPECT_EQ(1, l.uploadTimes[1][1][1].enable);
  EXPECT_EQ(13, l.uploadTimes[1][1][1].beginHour);
  EXPECT_EQ(30, l.uploadTimes[1][1][1].beginMinute);

  const std::string text = kova_test::Pack("NAS", *r);
  EXPECT_EQ(kova_test::PackedText("NAS_legacy"), text);
  ExpectRoundTrip(*r, "");

  // The legacy member wins over a server table beside it, and "result" is
  // not consulted for it.
  r = ParseNasOk(R"({"result":false,"NAS":{"Port":2121},"params":{"table":[{"Port":21}]}})");
  EXPECT_EQ(0, r->useServerList);
  EXPECT_EQ(2121, r->legacy.port);
  EXPECT_EQ(0, r->servers[0].port);
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

TEST(Nas, EnumerationsCompareExactlyAndUpdateTimeKeepsItsEra) {
  struct Case {
    const char* server;
    int32_t protocol;
    int32_t encoding;
    int32_t cloud;
    const char* packedTime;  // null: "UpdateTime" left out
  };
  const Case kCases[] = {
      {R"({"Protocol":"nfs","CharacterEncoding":"utf-8","CloudProtocol":"dropbox"})", 0, 0, 0,
       nullptr},
      {R"({"Protocol":"ISCSI","CharacterEncoding":"GB2312","CloudProtocol":"GoogleDrive"})", 2, 1,
       2, nullptr},
      {R"({"Protocol":3,"CloudProtocol":"BaiduCloud","UpdateTime":"1990-01-02 03:04:05"})", 0, 0, 1,
       "1990-01-02 03:04:05.0"},
      {R"({"UpdateTime":"2047-12-31 23:59:59.999"})", 0, 0, 0, "2047-12-31 23:59:59.0"},
      // Only six bits of the year are kept: 2050 comes back as 1986.
      {R"({"UpdateTime":"2050-06-01 00:00:00.0"})", 0, 0, 0, "1986-06-01 00:00:00.0"},
      {R"({"UpdateTime":"2024-03-18"})", 0, 0, 0, nullptr},
      {R"({"UpdateTime":20240318})", 0, 0, 0, nullptr},
  };
  for (const Case& c : kCases) {
    std::unique_ptr<NasConfig> r = ParseNasOk(Doc(std::string("[") + c.server + "]"));
    const NasServer& s = r->servers[0];
    EXPECT_EQ(c.protocol, s.protocol) << c.server;
    EXPECT_EQ(c.encoding, s.characterEncoding) << c.server;
    EXPECT_EQ(c.cloud, s.cloudProtocol) << c.server;
    const std::string text = kova_test::Pack("NAS", *r);
    if (c.packedTime == nullptr) {
      EXPECT_EQ(std::string::npos, text.find("UpdateTime")) << c.server;
    } else {
      EXPECT_NE(std::string::npos, text.find(std::string("\"UpdateTime\" : \"") + c.packedTime))
          << c.server;
    }
    EXPECT_EQ(c.cloud != 0, text.find("CloudProtocol") != std::string::npos) << c.server;
  }

  // Values without a name, and unsigned readings.
  std::unique_ptr<NasConfig> r =
      ParseNasOk(Doc(R"([{"TimeOut":-5,"StreamID":4294967295,"SubDirectory":null}])"));
  EXPECT_EQ(0u, r->servers[0].timeOut);
  EXPECT_EQ(4294967295u, r->servers[0].streamId);
  r->servers[0].protocol = 9;
  r->servers[0].characterEncoding = -1;
  const std::string text = kova_test::Pack("NAS", *r);
  EXPECT_NE(std::string::npos, text.find(R"("CharacterEncoding" : "", )"));
  EXPECT_NE(std::string::npos, text.find(R"("Protocol" : "", )"));
  EXPECT_EQ(std::string::npos, text.find("SubDirectory"));
}

}  // namespace
