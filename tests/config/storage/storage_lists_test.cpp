// "StorageGroup" and "Raid": caller-sized records, both ways.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string>
#include <vector>

#include "kova/records/storage.h"
#include "test_util.h"

namespace kova_test {
namespace {

// `count` records of `stride` bytes, each with its size word, the rest 0xEE.
// (The vector's storage is aligned for the records.)
std::vector<unsigned char> Slots(uint32_t stride, uint32_t count) {
  std::vector<unsigned char> b(static_cast<size_t>(stride) * count, 0xEE);
  for (uint32_t i = 0; i < count; ++i) {
    std::memcpy(&b[static_cast<size_t>(i) * stride], &stride, std::min<uint32_t>(stride, 4));
  }
  return b;
}

int Parse(const char* name, const std::string& json, std::vector<unsigned char>* b, uint32_t* ret) {
  return KOVA_ParseData(name, json.c_str(), b->data(), static_cast<uint32_t>(b->size()), ret);
}

std::string Packed(const char* name, const std::vector<unsigned char>& b, size_t bytes) {
  return PackBytes(name, b.data(), static_cast<uint32_t>(bytes));
}

TEST(CallerSizedRecords, TheCallersSizeStepsBothWays) {
  // A caller built with the record up to the channel count: each group is
  // built whole and copied out as far as that size reaches.
  const uint32_t shortStride = offsetof(StorageGroupRecord, channelCount);
  std::vector<unsigned char> b = Slots(shortStride, 3);
  uint32_t ret = 0;
  ASSERT_EQ(1, Parse("StorageGroup", Sample("StorageGroup"), &b, &ret));
  EXPECT_EQ(2 * shortStride, ret);
  EXPECT_EQ('G', b[shortStride + offsetof(StorageGroupRecord, name)]);
  EXPECT_EQ('E', b[shortStride + offsetof(StorageGroupRecord, memo)]);
  EXPECT_EQ(0, b[2 * shortStride + offsetof(StorageGroupRecord, name)]);
  // What lies past the caller's size packs as zero: no channels.
  const std::string text = Packed("StorageGroup", b, 2 * shortStride);
  EXPECT_EQ(0u,
            text.find(R"([ { "Channels" : [  ], "FileHoldTime" : 0, "Memo" : "All cameras", )"));
  EXPECT_NE(std::string::npos, text.find(R"(}, { "Channels" : [  ], "FileHoldTime" : 30, )"));

  // An odd stride (records after the first are not aligned) and a larger
  // one (a newer caller's record): only our record's bytes are written.
  for (uint32_t stride : {static_cast<uint32_t>(sizeof(RaidRecord)) + 3,
                          static_cast<uint32_t>(sizeof(RaidRecord)) + 64}) {
    std::vector<unsigned char> raid = Slots(stride, 2);
    ASSERT_EQ(1, Parse("Raid", Sample("Raid"), &raid, &ret));
    EXPECT_EQ(2 * stride, ret);
    EXPECT_EQ('1', raid[stride + offsetof(RaidRecord, name) + 2]);
    EXPECT_EQ(0, raid[stride - 1]);  // cleared, not written
    EXPECT_EQ(Fixture("Raid.packed.txt"), Packed("Raid", raid, 2 * stride));
  }

  // Refused: no size word, a size of 0, a size beyond the buffer, below one record.
  struct Refusal {
    uint32_t word;
    uint32_t length;
  };
  const Refusal kRefused[] = {{0, 64}, {65, 64}, {8, 3}};
  for (const Refusal& c : kRefused) {
    std::vector<unsigned char> buf(c.length + 4, 0xEE);
    std::memcpy(buf.data(), &c.word, 4);
    const std::vector<unsigned char> before = buf;
    for (const char* name : {"StorageGroup", "Raid"}) {
      EXPECT_EQ(0, KOVA_ParseData(name, Sample(name).c_str(), buf.data(), c.length, &ret))
          << name << " " << c.word;
      EXPECT_EQ(before, buf);
      EXPECT_EQ("<failed>", PackBytes(name, buf.data(), c.length)) << name << " " << c.word;
    }
  }
  // One-byte records across a whole record's bytes: more groups than the text could hold.
  std::vector<unsigned char> tiny = Slots(1, sizeof(StorageGroupRecord));
  EXPECT_EQ("<failed>",
            PackBytes("StorageGroup", tiny.data(), sizeof(StorageGroupRecord), 1u << 16));
}

}  // namespace
}  // namespace kova_test
