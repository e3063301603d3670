// "NAS": the network storage servers (FTP, SMB, ISCSI, NFS and cloud
// drives) as a table of up to 16 servers, or the older single-server form.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>

#include "common/fields/field_table.h"
#include "common/fields/fields.h"
#include "common/fields/text_forms.h"
#include "common/json/json.h"
#include "common/json/json_writer.h"
#include "config/storage/nas_forms.h"
#include "drivers/response_frame.h"
#include "drivers/table_driver.h"
#include "kova/records/storage.h"

namespace kova {

namespace {

constexpr uint32_t kServerSlots = 16;
// The packed date-time keeps the year's low six bits; 1984 is a multiple
// of 64, so 1984 + those bits is the one year from 1984 to 2047 that has them.
constexpr uint32_t kFirstYear = 1984;

constexpr const char* kEncodingNames[] = {"UTF-8", "GB2312"};
constexpr EnumNames kEncodings = EnumNames::Of(kEncodingNames).Exact();
constexpr const char* kCloudNames[] = {"BaiduCloud", "GoogleDrive", "Dropbox"};
// No cloud (0) has no name: it is not written back.
constexpr EnumNames kClouds =
    EnumNames::Of(kCloudNames).Exact().FirstValue(1).UnknownAs(0).OmitUnnamed();

// "UpdateTime" is text on the device and the packed date-time in the record.
void ParseUpdateTime(const Json::Value& server, unsigned char* record, const Field& f) {
  const Json::Value& v = Member(server, f.key);
  if (!v.isString()) return;
  const std::string text = ToText(v);
  uint32_t packed = 0;
  const int32_t len = static_cast<int32_t>(std::min<size_t>(text.size(), INT32_MAX));
  if (ParseDateTimePacked(text.c_str(), len, &packed) == 0)
    StoreInt(record + f.offset, f.size, packed);
}

void PackUpdateTime(const unsigned char* record, Json::Value& server, const Field& f) {
  const uint32_t t = static_cast<uint32_t>(LoadInt(record + f.offset, f.size, false));
  char text[64];
  std::snprintf(text, sizeof text, "%04u-%02u-%02u %02u:%02u:%02u.%d", kFirstYear + (t >> 26),
                (t >> 22) & 0xFu, (t >> 17) & 0x1Fu, (t >> 12) & 0x1Fu, (t >> 6) & 0x3Fu, t & 0x3Fu,
                0);
  SetKeptMember(server, f.key) = text;
}

// "SubDirectory" belongs to cloud drives: it goes back only when it holds
// text, so a device that never sent it does not get it (intended).
void ParseSubDirectory(const Json::Value& server, unsigned char* record, const Field& f) {
  const Json::Value& v = Member(server, f.key);
  if (!v.isNull()) GetJsonString(v, reinterpret_cast<char*>(record + f.offset), f.size, 1);
}

void PackSubDirectory(const unsigned char* record, Json::Value& server, const Field& f) {
  const char* text = reinterpret_cast<const char*>(record + f.offset);
  if (text[0] != '\0') SetJsonStringBounded(SetKeptMember(server, f.key), text, f.size, 1);
}

constexpr Field kServerFields[] = {
    KOVA_F(NasServer, enable, "Enable", kBool),
    KOVA_F(NasServer, name, "Name", kText),
    KOVA_ENUM(NasServer, protocol, "Protocol", kNasProtocols),
    KOVA_F(NasServer, address, "Address", kText),
    KOVA_F(NasServer, port, "Port", kInt),
    KOVA_F(NasServer, userName, "UserName", kText),
    KOVA_F(NasServer, password, "Password", kText),
    KOVA_F(NasServer, directory, "Directory", kText),
    KOVA_ENUM(NasServer, characterEncoding, "CharacterEncoding", kEncodings),
    KOVA_F(NasServer, timeOut, "TimeOut", kUInt),
    KOVA_F(NasServer, streamId, "StreamID", kUInt),
    KOVA_CUSTOM(NasServer, updateTime, "UpdateTime", ParseUpdateTime, PackUpdateTime).Sentinel(0),
    KOVA_ENUM(NasServer, cloudProtocol, "CloudProtocol", kClouds),
    KOVA_CUSTOM(NasServer, subDirectory, "SubDirectory", ParseSubDirectory, PackSubDirectory),
};

unsigned char* ServerSlot(unsigned char* record, uint32_t i) {
  return record + offsetof(NasConfig, servers) + static_cast<size_t>(i) * sizeof(NasServer);
}
const unsigned char* ServerSlot(const unsigned char* record, uint32_t i) {
  return record + offsetof(NasConfig, servers) + static_cast<size_t>(i) * sizeof(NasServer);
}

bool AllZero(const unsigned char* p, size_t n) {
  return std::all_of(p, p + n, [](unsigned char b) { return b == 0; });
}

// The frame reads the whole root: the legacy form is recognised by its
// "NAS" member and carries no "result", so only the server table is judged
// by the envelope (intended).
bool ParseNasRoot(const Json::Value& root, const StepContext&, unsigned char* record) {
  const Json::Value& legacy = Member(root, "NAS");
  if (!legacy.isNull()) {
    StoreInt(record + offsetof(NasConfig, useServerList), 4, 0);
    ParseLegacyNas(legacy, record + offsetof(NasConfig, legacy));
    return true;
  }
  if (!ResultIsTrue(root)) return false;
  StoreInt(record + offsetof(NasConfig, useServerList), 4, 1);
  const Json::Value& table = Member(Member(root, "params"), "table");
  // Slot i is element i: a null element keeps its zero slot and is not counted.
  const uint32_t n = std::min(Count(table), kServerSlots);
  int32_t servers = 0;
  for (uint32_t i = 0; table.isArray() && i < n; ++i) {
    const Json::Value& element = Element(table, i);
    if (element.isNull()) continue;
    ParseFields(element, ServerSlot(record, i), kServerFields);
    ++servers;
  }
  StoreInt(record + offsetof(NasConfig, serverCount), 4, servers);
  return true;
}

bool LegacyForm(const unsigned char* record) {
  return LoadInt(record + offsetof(NasConfig, useServerList), 4, true) == 0;
}

// Up to the last slot in use; a zero slot goes back as the null it was read from.
uint32_t ServersWritten(const unsigned char* record) {
  uint32_t n = kServerSlots;
  while (n > 0 && AllZero(ServerSlot(record, n - 1), sizeof(NasServer))) --n;
  return n;
}

bool PackNasRoot(const unsigned char* record, Json::Value& out) {
  if (LegacyForm(record)) {
    PackLegacyNas(record + offsetof(NasConfig, legacy), SetKeptMember(out, "NAS"));
    return true;
  }
  const uint32_t n = ServersWritten(record);
  out = Json::Value(Json::arrayValue);
  for (uint32_t i = 0; i < n; ++i) {
    Json::Value& server = SetElement(out, i);
    if (AllZero(ServerSlot(record, i), sizeof(NasServer))) continue;
    server = Json::Value(Json::objectValue);
    PackFields(ServerSlot(record, i), server, kServerFields);
  }
  return true;
}

bool PackNasRootText(const unsigned char* record, TextSink* out) {
  if (LegacyForm(record)) {
    Json::Value legacy;
    PackNasRoot(record, legacy);
    WriteJsonValue(legacy, out);
    return true;
  }
  const uint32_t n = ServersWritten(record);
  out->Literal("[ ");
  for (uint32_t i = 0; i < n; ++i) {
    if (i != 0) out->Literal(", ");
    if (AllZero(ServerSlot(record, i), sizeof(NasServer))) {
      out->Literal("null");
    } else {
      WriteMembersText(ServerSlot(record, i), KOVA_TABLE(kServerFields), out);
    }
  }
  out->Literal(" ]");
  return true;
}

}  // namespace

extern const ResponseFrame kNasFrame =
    ResponseFrame::For<NasConfig>(ParseNasRoot, Packing(PackNasRoot, PackNasRootText))
        .IgnoreResult()
        .Table(TableAt::kRoot)
        .OnNullTable(NullTable::kFail)
        .Returned(ReturnedLength::kSetRecord);

}  // namespace kova
