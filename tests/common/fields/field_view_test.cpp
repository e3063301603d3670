#include "common/fields/field_view.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <string>
#include <vector>

#include "api/dispatch.h"
#include "kova/kova.h"
#include "kova/records/media.h"
#include "kova/records/system.h"

namespace kova {
namespace {

// The size a C type text names: "int32_t", "char[64]", "uint8_t[3][16]";
// 0 for a struct or a type the test does not know.
size_t SizeOfType(const std::string& type) {
  const std::string base = type.substr(0, type.find('['));
  const struct {
    const char* name;
    size_t size;
  } kScalars[] = {{"int8_t", 1},  {"uint8_t", 1},  {"char", 1},     {"bool", 1},
                  {"int16_t", 2}, {"uint16_t", 2}, {"int32_t", 4},  {"uint32_t", 4},
                  {"float", 4},   {"int64_t", 8},  {"uint64_t", 8}, {"double", 8}};
  size_t size = 0;
  for (const auto& s : kScalars) size = base == s.name ? s.size : size;
  for (size_t at = type.find('['); size != 0 && at != std::string::npos;
       at = type.find('[', at + 1)) {
    size *= std::stoul(type.substr(at + 1));
  }
  return size;
}

// Every described record of every built name, in both directions: each
// member lies inside the record, its C type is as large as the member,
// members that are not the same member do not overlap, and described and
// undescribed bytes cover the record exactly once.
TEST(FieldView, EveryBuiltLayoutAccountsForEveryByte) {
  std::vector<const NameEntry*> names;
  for (size_t i = 0; i < kParseNameCount; ++i) names.push_back(&kParseNames[i]);
  for (size_t k = 0; k < kPackNameCount; ++k) names.push_back(&kPackNames[k]);
  size_t described = 0;
  for (const NameEntry* name : names) {
    const ResponseFrame* frame = name->frame;
    if (frame == nullptr || frame->description == nullptr) continue;
    SCOPED_TRACE(name->name);
    ++described;
    const uint32_t size = frame->recordSize;
    const RecordView v = LayoutOf(frame->description, size);
    std::vector<int> owner(size, -1);
    for (size_t r = 0; r < v.rows.size(); ++r) {
      const ViewRow& row = v.rows[r];
      SCOPED_TRACE(row.member);
      if (row.role == RowRole::kValue) {  // a group's header has no member of its own
        ASSERT_FALSE(row.member.empty());
      }
      ASSERT_LE(row.offset, size);
      ASSERT_LE(row.size, size - row.offset);
      const size_t typeSize = SizeOfType(row.type);
      if (typeSize != 0) {
        EXPECT_EQ(typeSize, row.size) << row.type;
      }
      if (row.role != RowRole::kValue) continue;
      for (uint32_t b = row.offset; b < row.offset + row.size; ++b) {
        const int other = owner[b];
        if (other >= 0) {  // the same member under two keys is one member
          EXPECT_EQ(v.rows[other].offset, row.offset) << "overlaps " << v.rows[other].member;
          EXPECT_EQ(v.rows[other].size, row.size) << "overlaps " << v.rows[other].member;
        }
        owner[b] = static_cast<int>(r);
      }
    }
    uint32_t next = 0;
    for (const ByteRange& b : v.undescribed) {
      EXPECT_LE(next, b.offset);
      ASSERT_LE(b.size, size - b.offset);
      for (uint32_t i = b.offset; i < b.offset + b.size; ++i) {
        EXPECT_EQ(owner[i], -1) << "byte " << i << " is both described and not";
      }
      next = b.offset + b.size;
    }
  }
  EXPECT_GT(described, 0u);
}

const ResponseFrame& FrameOf(const char* name) { return *kParseNames[FindParseName(name)].frame; }

const ViewRow* RowOf(const RecordView& v, const std::string& member) {
  for (const ViewRow& r : v.rows) {
    if (r.member == member) return &r;
  }
  return nullptr;
}

// The printed offsets are the public headers' own, nested members and list
// entries included.
TEST(FieldView, OffsetsAreThoseOfThePublicHeaders) {
  const RecordView encode = LayoutOf(FrameOf("Encode").description, sizeof(EncodeConfig));
  const ViewRow* width = RowOf(encode, "mainFormat[0].video.width");
  ASSERT_NE(width, nullptr);
  EXPECT_EQ(width->offset, offsetof(EncodeConfig, mainFormat[0].video.width));
  EXPECT_EQ(width->key, "MainFormat[0].Video.Width");
  EXPECT_EQ(width->type, "int32_t");

  const RecordView ntp = LayoutOf(FrameOf("NTP").description, sizeof(NtpConfig));
  const ViewRow* address = RowOf(ntp, "address");
  ASSERT_NE(address, nullptr);
  EXPECT_EQ(address->offset, offsetof(NtpConfig, address));
  EXPECT_EQ(address->type, "char[" + std::to_string(sizeof(NtpConfig::address)) + "]");
}

// Values over a parsed record: enumerations with their names, texts quoted
// in UTF-8, flags beside their member, cleared members at zero.
TEST(FieldView, ValuesOfAParsedRecord) {
  const char* json =
      "{\"id\":1,\"result\":true,\"params\":{\"table\":{\"Address\":\"time.\\u00e9x\","
      "\"Enable\":true,\"Port\":123}}}";
  std::vector<unsigned char> record(sizeof(NtpConfig));
  uint32_t retLen = 0;
  ASSERT_EQ(
      KOVA_ParseData("NTP", json, record.data(), static_cast<uint32_t>(record.size()), &retLen), 1);
  const RecordView v = ViewOf(FrameOf("NTP").description, record.data(), sizeof(NtpConfig));
  EXPECT_EQ(RowOf(v, "address")->text, "\"time.\xc3\xa9x\"");
  EXPECT_EQ(RowOf(v, "port")->value.asInt(), 123);
  EXPECT_TRUE(RowOf(v, "timeZone")->zero);

  const RecordView encode = LayoutOf(FrameOf("Encode").description, sizeof(EncodeConfig));
  EncodeConfig e;
  std::memset(&e, 0, sizeof e);
  e.mainFormat[1].video.compression = 7;
  const ViewRow* compression = RowOf(encode, "mainFormat[0].video.compression");
  ASSERT_NE(compression, nullptr);
  ASSERT_TRUE(compression->hasFlag);
  const RecordView shown =
      ViewOf(FrameOf("Encode").description, reinterpret_cast<const unsigned char*>(&e), sizeof e);
  const ViewRow* second = RowOf(shown, "mainFormat[1].video.compression");
  ASSERT_NE(second, nullptr);
  EXPECT_EQ(second->text, "7 (H.264)");
  EXPECT_FALSE(second->present);
}

}  // namespace
}  // namespace kova
