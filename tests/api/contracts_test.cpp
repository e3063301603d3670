// A row for every built name: the envelope and buffer contract each
// translator keeps with its caller, probed through the exported functions.
// A name that is built but has no row, or a row's name that is not built,
// fails too.
//
// Columns (one letter each, so that a row reads at a glance):
//   result  "result": false refused  T  must be true   I  ignored
//                                    F  only a present false fails
//   null    a null table             E  success, nothing filled (retLen 0)
//                                    Z  success, one record left cleared
//                                    S  success, one record written
//                                    X  failure
//   clear   on text that is not JSON W  whole buffer cleared
//                                    R  its whole records cleared
//                                    N  left as it was
//           (w, r: an empty text is refused before anything is cleared)
//   retLen                           S  set   A  added to
//   copy    text exactly outLen long M  copied (at most)   L  refused (less)
//   short   input of one record - 1  R  refused   N  packs "null"
//           and of 0 bytes            (second letter)
//   many    two records packed       A  an array   O  one record only
//                                    M  members of one object
// Caller-sized lists ("Raid", ...) and the rule lists, whose records carry
// the caller's size or buffer, are probed with their size word or an empty
// rule buffer.
#include <gtest/gtest.h>

#include <cstring>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "api/dispatch.h"
#include "harness/catalog.h"
#include "kova/kova.h"
#include "kova/records/analyse.h"

namespace {

// Names sharing a row, separated by blanks.
struct Contract {
  const char* row;  // result null clear retLen copy short(2) many
  const char* names;
};

// clang-format off
const Contract kContracts[] = {
    {"TENSMNRA", "Encode"},
    {"TEWSLNNA", "Record"},
    {"ISWSMRRO", "Alarm LossDetect BlindDetect StorageNotExist StorageFailure StorageLowSpace "
                 "NetAbort IPConflict"},
    {"IXWSMRRO", "NetAlarm"},
    {"TZWSMRRO", "MotionDetect"},
    {"FXWSLRRO", "Ptz"},
    {"FZNSLRRO", "VideoAnalyseGlobal VideoAnalyseModule"},
    {"ISNSLRRO", "VideoAnalyseRule RTSP AudioAnalyseRule"},
    {"IXWSLRRO", "TrafficSnapshot"},
    {"TEWSLRRO", "General RemoteDevice Locales Language AutoMaintain NTP Email DisableLinkage "
                 "FloodLightMode AlarmServer CommGlobal VideoTalkPhoneGeneral"},
    {"TENSLRRO", "DspEncodeCap VideoEncodeROI AccessControlGeneral"},
    {"TEWSLRRA", "VideoInOptions ChannelTitle RecordMode Raid VideoColor VideoWidget "
                 "StorageGroup VideoInZoom Snap VideoInFocus VideoInExposure AccessControl "
                 "AlarmOut AudioOutputVolume AudioInputVolume AudioDetect Lighting VideoInDefog "
                 "VideoInMode SmartMotionDetect Lighting_V2 LightingScheme VideoInWhiteBalance "
                 "VideoInBacklight VideoInSharpness VideoInDenoise VideoInIRExposure "
                 "VideoSubColor VideoImageControl LightGlobal VideoStandard MediaGlobal UPnP "
                 "PictureHttpUpload PtzAutoMovement VideoOut RecordStoragePoint FlashLight "
                 "PtzPreset AccessTimeSchedule AudioInput IdleMotion PtzTour UnFocusDetect "
                 "MovedDetect"},
    {"TSNSLRRO", "Multicast"},
    {"TEWSMRRA", "TemperatureAlarm FanSpeedAlarm"},
    {"TZwSLRRO", "Network DVRIP"},
    {"TSWSLRRO", "NAS"},
    {"IENSLRRA", "EncodePlan"},
    {"TENSLRRA", "EncodeAdapt SmartEncode"},
    {"TEWALRRO", "G3G4AutoChange DefenceArmMode AlarmLamp HeatImagingThermometry WLan"},
    {"TEWALNNA", "VideoInDayNight PowerUp"},
    {"TSWS----", "devVideoAnalyse.getCaps devVideoInput.getCaps alarm.getAlarmCaps "
                 "devAudioAnalyse.getCaps netApp.getCaps ptz.factory.instance "
                 "devVideoInput.getCapsEx eventManager.getCaps log.getCaps speak.getCaps "
                 "accessControlManager.getCaps"},
    {"TZWS----", "userManager.getActiveUserInfoAll videoStatServer.getSummary "
                 "devVideoInput.getFocusStatus recordManager.getCaps ptz.getCurrentProtocolCaps "
                 "encode.getCaps"},
};
// clang-format on

constexpr unsigned char kFill = 0xAB;

bool IsRuleList(const std::string& name) {
  return name == "VideoAnalyseRule" || name == "AudioAnalyseRule";
}

// A buffer of `records` records of name `name` for parse, filled with
// `fill`, with the size word of caller-sized records and an empty rule
// buffer for the rule lists.
struct Buffer {
  std::vector<unsigned char> bytes;
  std::vector<unsigned char> rules;
};

Buffer MakeBuffer(const std::string& name, uint32_t size, size_t extra, unsigned char fill) {
  Buffer b;
  b.bytes.assign(size * 2 + extra, fill);
  if (kova_harness::CallerSized(name.c_str())) {
    for (size_t at = 0; at + size <= b.bytes.size(); at += size) {
      std::memcpy(b.bytes.data() + at, &size, sizeof size);
    }
  }
  if (IsRuleList(name)) {
    std::memset(b.bytes.data(), 0, b.bytes.size());
    b.rules.assign(4096, 0);
    VideoAnalyseRuleList list = {0, b.rules.data(), static_cast<uint32_t>(b.rules.size())};
    std::memcpy(b.bytes.data(), &list, sizeof list);
  }
  return b;
}

int Parse(const std::string& name, const std::string& json, Buffer* b, uint32_t* ret) {
  return KOVA_ParseData(name.c_str(), json.c_str(), b->bytes.data(),
                        static_cast<uint32_t>(b->bytes.size()), ret);
}

char ResultLetter(const std::string& name, uint32_t size) {
  Buffer b = MakeBuffer(name, size, 0, 0);
  uint32_t ret = 0;
  const bool falseOk = Parse(name, R"({"result":false,"params":{"table":{}}})", &b, &ret) == 1;
  b = MakeBuffer(name, size, 0, 0);
  const bool missingOk = Parse(name, R"({"params":{"table":{}}})", &b, &ret) == 1;
  return !falseOk ? (missingOk ? 'F' : 'T') : 'I';
}

char NullLetter(const std::string& name, uint32_t size) {
  Buffer b = MakeBuffer(name, size, 0, 0);
  uint32_t ret = 0;
  if (Parse(name, R"({"result":true,"params":{"table":null}})", &b, &ret) != 1) return 'X';
  if (ret == 0) return 'E';
  return b.bytes == MakeBuffer(name, size, 0, 0).bytes ? 'Z' : 'S';
}

char ClearLetter(const std::string& name, uint32_t size) {
  if (IsRuleList(name)) return 'N';  // the record holds the caller's buffer: never cleared
  Buffer b = MakeBuffer(name, size, 3, kFill);
  const Buffer before = b;
  uint32_t ret = 0;
  Parse(name, "this is not JSON", &b, &ret);
  if (b.bytes == before.bytes) return 'N';
  const bool tailKept = b.bytes[b.bytes.size() - 1] == kFill;
  Buffer empty = before;
  Parse(name, "", &empty, &ret);
  const bool emptyRefused = empty.bytes == before.bytes;
  return (tailKept ? 'R' : 'W') + (emptyRefused ? 'a' - 'A' : 0);
}

char RetLenLetter(const std::string& name, uint32_t size) {
  Buffer b = MakeBuffer(name, size, 0, 0);
  uint32_t ret = 0x40000000;
  Parse(name, R"({"result":true,"channel":0,"params":{"table":{}}})", &b, &ret);
  return ret >= 0x40000000 ? 'A' : 'S';
}

std::vector<unsigned char> PackInput(const std::string& name, uint32_t size, uint32_t records) {
  Buffer b = MakeBuffer(name, size, 0, 0);
  b.bytes.resize(static_cast<size_t>(size) * records);
  if (IsRuleList(name)) b.bytes.assign(b.bytes.size(), 0);
  return b.bytes;
}

std::string PackText(const std::string& name, const std::vector<unsigned char>& in, uint32_t inLen,
                     uint32_t outLen, int* rc) {
  std::vector<char> out(outLen + 1, 'x');
  *rc = KOVA_PacketData(name.c_str(), in.data(), inLen, out.data(), outLen);
  return *rc == 1 ? std::string(out.data(), strnlen(out.data(), outLen)) : std::string();
}

char CopyLetter(const std::string& name, uint32_t size) {
  const std::vector<unsigned char> in = PackInput(name, size, 1);
  int rc = 0;
  const std::string text = PackText(name, in, size, 1 << 20, &rc);
  if (rc != 1 || text.empty()) return '?';
  PackText(name, in, size, static_cast<uint32_t>(text.size()), &rc);
  return rc == 1 ? 'M' : 'L';
}

char ShortLetter(const std::string& name, uint32_t size, uint32_t inLen) {
  if (kova_harness::CallerSized(name.c_str())) inLen = inLen == 0 ? 0 : 3;  // no size word
  std::vector<unsigned char> in(size, 0xFF);
  int rc = 0;
  const std::string text = PackText(name, in, inLen, 1 << 20, &rc);
  return rc == 1 && text == "null\n" ? 'N' : 'R';
}

char ManyLetter(const std::string& name, uint32_t size) {
  int rc = 0;
  const std::string one = PackText(name, PackInput(name, size, 1), size, 1 << 22, &rc);
  const std::string two = PackText(name, PackInput(name, size, 2), 2 * size, 1 << 22, &rc);
  if (rc != 1) return '?';
  if (two == one) return 'O';
  return two[0] == '[' ? 'A' : 'M';
}

std::string Probe(const std::string& name) {
  const int i = kova::FindParseName(name.c_str());
  const int k = kova::FindPackName(name.c_str());
  const uint32_t size = i >= 0 ? kova::ParseRecordSize(i) : kova::PackRecordSize(k);
  std::string row;
  row += ResultLetter(name, size);
  row += NullLetter(name, size);
  row += ClearLetter(name, size);
  row += RetLenLetter(name, size);
  const bool packs = k >= 0 && kova::PackBuilt(k);
  row += packs ? CopyLetter(name, size) : '-';
  row += packs ? ShortLetter(name, size, size - 1) : '-';
  row += packs ? ShortLetter(name, size, 0) : '-';
  row += packs ? ManyLetter(name, size) : '-';
  return row;
}

TEST(Contracts, EveryBuiltNameKeepsItsRow) {
  std::set<std::string> rows;
  for (const Contract& c : kContracts) {
    std::istringstream names(c.names);
    for (std::string name; names >> name;) {
      rows.insert(name);
      const int i = kova::FindParseName(name.c_str());
      EXPECT_TRUE(i >= 0 && kova::ParseBuilt(i)) << name << " has a row but is not built";
      EXPECT_EQ(c.row, Probe(name)) << name;
    }
  }
  for (int i : kova_harness::BuiltParseNames()) {
    const char* name = kova::kParseNames[i].name;
    EXPECT_EQ(1u, rows.count(name))
        << "no contract row for " << name << " (probed: \"" << Probe(name) << "\")";
  }
}

}  // namespace
