#include "harness/catalog.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "api/dispatch.h"

namespace kova_harness {

using kova::kPackNameCount;
using kova::kPackNames;
using kova::kParseNameCount;
using kova::kParseNames;

uint32_t ParseSize(int i) { return kova::ParseRecordSize(i); }
uint32_t PackSize(int k) { return kova::PackRecordSize(k); }

uint32_t ParseSizeOrDefault(int i) {
  const uint32_t n = ParseSize(i);
  return n != 0 ? n : kUnknownRecordSize;
}

uint32_t PackSizeOrDefault(int k) {
  const uint32_t n = PackSize(k);
  return n != 0 ? n : kUnknownRecordSize;
}

namespace {

// Configurations whose records begin with their caller-set size. One line per name.
const char* const kCallerSizedNames[] = {
    "TemperatureAlarm",
    "FanSpeedAlarm",
    "StorageGroup",
    "Raid",
};

template <size_t N>
bool Listed(const char* const (&names)[N], const char* name) {
  for (const char* n : names) {
    if (kova::NameEquals(n, name)) return true;
  }
  return false;
}

}  // namespace

bool PackAcceptsShortInput(int k, uint32_t inLen) { return kova::PackTakesShortInput(k, inLen); }

bool CallerSized(const char* name) { return Listed(kCallerSizedNames, name); }

std::vector<int> BuiltParseNames() {
  std::vector<int> out;
  for (size_t i = 0; i < kParseNameCount; ++i) {
    if (kova::ParseBuilt(static_cast<int>(i))) out.push_back(static_cast<int>(i));
  }
  return out;
}

std::vector<int> BuiltPackNames() {
  std::vector<int> out;
  for (size_t k = 0; k < kPackNameCount; ++k) {
    if (kova::PackBuilt(static_cast<int>(k))) out.push_back(static_cast<int>(k));
  }
  return out;
}

std::vector<NamePair> BuiltBothWays() {
  std::vector<NamePair> out;
  for (int i : BuiltParseNames()) {
    const int k = kova::FindPackName(kParseNames[i].name);
    if (k >= 0 && kova::PackBuilt(k)) out.push_back({i, k});
  }
  return out;
}

namespace {

template <typename Built>
int NextBuilt(uint32_t any, size_t count, Built built) {
  const int start = static_cast<int>(any % count);
  for (size_t step = 0; step < count; ++step) {
    const int i = static_cast<int>((start + step) % count);
    if (built(i)) return i;
  }
  return start;
}

}  // namespace

int NextBuiltParse(uint32_t any) { return NextBuilt(any, kParseNameCount, kova::ParseBuilt); }
int NextBuiltPack(uint32_t any) { return NextBuilt(any, kPackNameCount, kova::PackBuilt); }

NamePair NextBuiltBothWays(uint32_t any) {
  static const std::vector<NamePair> pairs = BuiltBothWays();  // the tables never change
  if (pairs.empty()) return {-1, -1};
  const int wanted = static_cast<int>(any % kParseNameCount);
  for (const NamePair& p : pairs) {
    if (p.parse >= wanted) return p;
  }
  return pairs.front();
}

std::string TestLabel(const char* name) {
  std::string out;
  for (const char* p = name; *p != '\0'; ++p) {
    const char c = *p;
    const bool plain = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
    out.push_back(plain ? c : '_');
  }
  return out;
}

void FillRecord(uint8_t* p, size_t n, Fill fill, uint32_t seed) {
  switch (fill) {
    case Fill::kZero:
      std::memset(p, 0, n);
      break;
    case Fill::kAllFF:
      std::memset(p, 0xFF, n);
      break;
    case Fill::kAll7F:
      std::memset(p, 0x7F, n);
      break;
    case Fill::kMaxCounts: {
      const uint8_t word[4] = {0xFF, 0xFF, 0xFF, 0x7F};  // 0x7FFFFFFF, little-endian
      for (size_t i = 0; i < n; ++i) p[i] = word[i % 4];
      break;
    }
    case Fill::kRandom:
    case Fill::kCount: {
      uint32_t x = seed * 2654435761u + 0x9E3779B9u;
      for (size_t i = 0; i < n; ++i) {
        x ^= x << 13;
        x ^= x >> 17;
        x ^= x << 5;
        p[i] = static_cast<uint8_t>(x >> 24);
      }
      break;
    }
  }
}

namespace {

// `content` repeated over [p, p + n), doubling what is already laid.
void FillRepeated(uint8_t* p, size_t n, const std::string& content) {
  if (content.empty() || n == 0) return;
  size_t done = std::min(n, content.size());
  std::memcpy(p, content.data(), done);
  while (done < n) {
    const size_t step = std::min(done, n - done);
    std::memcpy(p + done, p, step);
    done += step;
  }
}

}  // namespace

void PointedBuffers::Attach(const char* name, uint8_t* records, size_t length, uint32_t recordSize,
                            int64_t count, const std::string& content) {
  if (recordSize == 0) return;
  for (const RecordPointer* rp = kRecordPointers; rp->name != nullptr; ++rp) {
    if (!kova::NameEquals(name, rp->name)) continue;
    if (rp->pointerOffset + sizeof(void*) > recordSize ||
        rp->countOffset + sizeof(uint32_t) > recordSize || rp->unitSize == 0) {
      continue;
    }
    for (size_t at = 0; at + recordSize <= length; at += recordSize) {
      uint8_t* record = records + at;
      uint32_t n = 0;
      if (count >= 0) {
        n = static_cast<uint32_t>(std::min<int64_t>(count, UINT32_MAX));
      } else {
        std::memcpy(&n, record + rp->countOffset, sizeof n);
      }
      const size_t left = buffers_.size() < kMaxBuffers ? kMaxTotalBytes - totalBytes_ : 0;
      n = std::min<uint32_t>(
          n, static_cast<uint32_t>(std::min<size_t>(kMaxBytes, left)) / rp->unitSize);
      std::memcpy(record + rp->countOffset, &n, sizeof n);
      GuardedBuffer* b = empty_;
      if (n != 0) {
        buffers_.push_back(std::make_unique<GuardedBuffer>(static_cast<size_t>(n) * rp->unitSize));
        b = buffers_.back().get();
        totalBytes_ += b->size();
        FillRepeated(b->data(), b->size(), content);
      } else if (b == nullptr) {
        buffers_.push_back(std::make_unique<GuardedBuffer>(0));
        b = empty_ = buffers_.back().get();
      }
      void* target = b->data();
      std::memcpy(record + rp->pointerOffset, &target, sizeof target);
    }
  }
}

void ClearPointerFields(const char* name, uint8_t* records, size_t length, uint32_t recordSize) {
  if (recordSize == 0) return;
  for (const RecordPointer* rp = kRecordPointers; rp->name != nullptr; ++rp) {
    if (!kova::NameEquals(name, rp->name) || rp->pointerOffset + sizeof(void*) > recordSize) {
      continue;
    }
    for (size_t at = 0; at + recordSize <= length; at += recordSize) {
      std::memset(records + at + rp->pointerOffset, 0, sizeof(void*));
    }
  }
}

bool PointedBuffers::GuardsIntact() const {
  for (const auto& b : buffers_) {
    if (!b->GuardsIntact()) return false;
  }
  return true;
}

std::string PointedBuffers::Contents() const {
  std::string out;
  for (const auto& b : buffers_) out.append(reinterpret_cast<const char*>(b->data()), b->size());
  return out;
}

}  // namespace kova_harness
