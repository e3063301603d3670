// A description's pack writes its text straight, without the value tree its
// walk builds: the two must give the same bytes for whatever a record
// holds, for every frame that has both.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "api/dispatch.h"
#include "drivers/response_frame.h"
#include "harness/catalog.h"
#include "kova/kova.h"
#include "kova/records/analyse.h"
#include "test_util.h"

namespace {

using kova::ResponseFrame;
using kova_harness::Fill;

// Small values in every byte: enumeration names, flags both ways, short
// texts of control bytes.
void FillSmall(uint8_t* p, size_t n, uint32_t seed) {
  kova_harness::FillRecord(p, n, Fill::kRandom, seed);
  for (size_t i = 0; i < n; ++i) p[i] &= 3;
}

struct Packed {
  int result;
  std::string text;
};

Packed PackThrough(const ResponseFrame& f, const std::vector<uint8_t>& in, uint32_t room) {
  std::vector<char> out(room, 'x');
  const int r =
      kova::PackWithFrame(f, in.data(), static_cast<uint32_t>(in.size()), out.data(), room);
  return {r, std::string(out.data(), out.size())};
}

bool HoldsPointer(const char* name) {
  for (const kova_harness::RecordPointer* p = kova_harness::kRecordPointers; p->name != nullptr;
       ++p) {
    if (std::strcmp(p->name, name) == 0) return true;
  }
  return false;
}

// The frame packing through its steps' value trees alone.
ResponseFrame ThroughTree(const ResponseFrame& text) {
  ResponseFrame tree = text;
  tree.packText = nullptr;
  tree.packMembers = nullptr;
  return tree;
}

// Both ways into `room` bytes: the same result and the same buffer (all
// cleared when refused).
void ExpectSameText(const ResponseFrame& text, const std::vector<uint8_t>& in, uint32_t room,
                    int result) {
  const Packed expected = PackThrough(ThroughTree(text), in, room);
  const Packed got = PackThrough(text, in, room);
  ASSERT_EQ(expected.result, result);
  ASSERT_EQ(got.result, result);
  ASSERT_EQ(expected.text, got.text);
  if (result == 0) {
    ASSERT_EQ(got.text, std::string(room, '\0'));
  }
}

TEST(PackText, WritesWhatTheValueTreeWrites) {
  int frames = 0;
  for (size_t k = 0; k < kova::kPackNameCount; ++k) {
    const kova::NameEntry& name = kova::kPackNames[k];
    const ResponseFrame* rules = kova::kPackNames[kova::FindPackName("VideoAnalyseRule")].frame;
    if (name.frame == nullptr || name.frame == rules ||
        (name.frame->packText == nullptr && name.frame->packMembers == nullptr)) {
      continue;
    }
    ++frames;
    const ResponseFrame& text = *name.frame;
    const uint32_t size = text.recordSize;
    // Every way of filling one record; two records (an array) and a buffer
    // one byte short of the text with the last.
    const Fill fills[] = {Fill::kZero, Fill::kAllFF, Fill::kMaxCounts, Fill::kRandom};
    for (int run = 0; run < 7; ++run) {
      const uint32_t records = run == 6 ? 2 : 1;
      SCOPED_TRACE(std::string(name.name) + " run " + std::to_string(run));
      std::vector<uint8_t> in(static_cast<size_t>(size) * records);
      if (run < 4) {
        kova_harness::FillRecord(in.data(), in.size(), fills[run], 7);
      } else {
        FillSmall(in.data(), in.size(), static_cast<uint32_t>(run));
      }
      if (text.packWalk == kova::PackWalk::kCallerSized) {
        for (uint32_t i = 0; i < records; ++i) std::memcpy(&in[size_t{i} * size], &size, 4);
      }
      // A pointer in the record aimed at a buffer of what it announces.
      kova_harness::PointedBuffers pointed;
      if (HoldsPointer(name.name)) {
        std::string content(64, '\0');
        FillSmall(reinterpret_cast<uint8_t*>(&content[0]), content.size(), run);
        pointed.Attach(name.name, in.data(), in.size(), size, -1, content);
      }
      // Room for any text the record gives: a few bytes of text per byte.
      const uint32_t room = 16 * static_cast<uint32_t>(in.size()) + 4096;
      ExpectSameText(text, in, room, 1);
      if (run != 6) continue;
      // One byte short of the text: refused both ways, the buffer cleared.
      const uint32_t length =
          static_cast<uint32_t>(strnlen(PackThrough(text, in, room).text.data(), room));
      ExpectSameText(text, in, length - 1, 0);
    }
  }
  EXPECT_GT(frames, 40);
}

// The rule lists of the samples, as the device sent them and with every
// rule's record filled with small values behind its entry header.
TEST(PackText, RuleListsWriteWhatTheValueTreeWrites) {
  const ResponseFrame& frame = *kova::kPackNames[kova::FindPackName("VideoAnalyseRule")].frame;
  ASSERT_NE(frame.packText, nullptr);
  const char* samples[] = {"AudioAnalyseRule",
                           "VideoAnalyseRule",
                           "VideoAnalyseRule.behaviour",
                           "VideoAnalyseRule.counting",
                           "VideoAnalyseRule.face",
                           "VideoAnalyseRule.perimeter",
                           "VideoAnalyseRule.traffic_junction",
                           "VideoAnalyseRule.traffic_road"};
  for (const char* sample : samples) {
    SCOPED_TRACE(sample);
    const std::string name(sample, strcspn(sample, "."));
    std::vector<uint8_t> rules(12u << 20);
    VideoAnalyseRuleList list = {0, rules.data(), static_cast<uint32_t>(rules.size())};
    const std::string doc = kova_test::Sample(sample);
    ASSERT_EQ(KOVA_ParseData(name.c_str(), doc.c_str(), &list, sizeof list, nullptr), 1);
    std::vector<uint8_t> in(sizeof list);
    std::memcpy(in.data(), &list, sizeof list);
    ExpectSameText(frame, in, 64u << 20, 1);
    size_t at = 0;
    for (uint32_t i = 0; i < list.ruleCount; ++i) {
      RuleEntryHeader header;
      std::memcpy(&header, rules.data() + at, sizeof header);
      FillSmall(rules.data() + at + sizeof header, header.bodySize, i);
      at += sizeof header + header.bodySize;
    }
    ExpectSameText(frame, in, 64u << 20, 1);
  }
}

}  // namespace
