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
  const int r = kova::PackWithFrame(f, in.data(), static_cast<uint32_t>(in.size()), out.data(),
                                    room);
  return {r, std::string(out.data(), out.size())};
}

TEST(PackText, WritesWhatTheValueTreeWrites) {
  int frames = 0;
  for (size_t k = 0; k < kova::kPackNameCount; ++k) {
    const kova::NameEntry& name = kova::kPackNames[k];
    if (name.frame == nullptr || name.frame->packText == nullptr) continue;
    ++frames;
    const ResponseFrame& text = *name.frame;
    ResponseFrame tree = text;
    tree.packText = nullptr;
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
      // Room for any text the record gives: a few bytes of text per byte.
      const uint32_t room = 16 * static_cast<uint32_t>(in.size()) + 4096;
      const Packed expected = PackThrough(tree, in, room);
      const Packed got = PackThrough(text, in, room);
      ASSERT_EQ(expected.result, 1);
      ASSERT_EQ(expected.text, got.text);
      if (run != 6) continue;
      const uint32_t length = static_cast<uint32_t>(strnlen(expected.text.data(), room));
      const Packed shortTree = PackThrough(tree, in, length - 1);
      const Packed shortText = PackThrough(text, in, length - 1);
      ASSERT_EQ(shortTree.result, shortText.result);
      ASSERT_EQ(shortTree.text, shortText.text);
    }
  }
  EXPECT_GT(frames, 40);
}

}  // namespace
