#include "common/fields/field_view.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "api/dispatch.h"
#include "kova/records/storage.h"
#include "test_util.h"

namespace kova {
namespace {

// Every described record of every built name, in both directions: each
// member lies inside the record, members that are not the same member do
// not overlap, and described and undescribed bytes cover the record exactly
// once.
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

// The view of a Raid record (a text and a list of texts).
RecordView RaidView(const RaidRecord& r) {
  const ResponseFrame* frame = kParseNames[FindParseName("Raid")].frame;
  EXPECT_NE(nullptr, frame->description);
  return ViewOf(frame->description, reinterpret_cast<const unsigned char*>(&r), sizeof r);
}

// A list's entries beyond its count are unused, whatever bytes they hold
// (a caller's buffer reused): none when the count is 0, the rest after it.
TEST(FieldView, EntriesBeyondTheCountAreUnused) {
  RaidRecord r = {};
  std::strcpy(r.members[0], "sda");
  std::strcpy(r.members[1], "sdb");
  for (const int32_t count : {0, 1}) {
    r.memberCount = count;
    const RecordView v = RaidView(r);
    int used = 0;
    int unused = 0;
    for (const ViewRow& row : v.rows) {
      if (row.offset < offsetof(RaidRecord, members) || row.role != RowRole::kValue) continue;
      if (row.offset == offsetof(RaidRecord, members) && row.size == sizeof r.members) continue;
      (row.unused ? unused : used) += 1;
    }
    EXPECT_EQ(count, used) << count;
    EXPECT_EQ(32 - count, unused) << count;
  }
}

// A text is shown in UTF-8 whatever the local code page, quoted, with its
// quotes, backslashes and control bytes escaped.
TEST(FieldView, TextsShowInUtf8Escaped) {
  const kova_test::CodePage latin1("ISO-8859-1");
  RaidRecord r = {};
  std::strcpy(r.name, "\xe9\"a\\b\x01");  // 0xE9: an e with an acute accent in the local code page
  const RecordView v = RaidView(r);
  const ViewRow* name = nullptr;
  for (const ViewRow& row : v.rows) {
    if (row.key == "Name") name = &row;
  }
  ASSERT_NE(nullptr, name);
  EXPECT_EQ("\"\xc3\xa9\\\"a\\\\b\\x01\"", name->text);
  EXPECT_EQ("\xc3\xa9\"a\\b\x01", name->value.asString());
}

}  // namespace
}  // namespace kova
