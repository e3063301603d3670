#include "drivers/response_frame.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

#include "common/base/platform.h"
#include "common/json/json.h"
#include "common/json/json_writer.h"

namespace kova {

namespace {

void ReportLength(const ResponseFrame& f, uint32_t* retLen, uint64_t bytes) {
  if (retLen == nullptr) return;
  switch (f.returned) {
    case ReturnedLength::kSetBytes:
      *retLen = static_cast<uint32_t>(bytes);
      break;
    case ReturnedLength::kAddBytes:
      *retLen += static_cast<uint32_t>(bytes);
      break;
    case ReturnedLength::kSetRecord:
      *retLen = f.recordSize;
      break;
  }
}

const Json::Value& TableOf(const ResponseFrame& f, const Json::Value& root,
                           const Json::Value& params) {
  switch (f.tableAt) {
    case TableAt::kParamsTable:
      return Member(params, "table");
    case TableAt::kRoot:
      return root;
  }
  return root;
}

// Clears what the clearing rule covers; caller-sized slots keep their size word.
void ClearOutput(const ResponseFrame& f, unsigned char* out, uint32_t outLen, uint32_t stride) {
  switch (f.clearing) {
    case Clearing::kNone:
    case Clearing::kEachRecord:
      return;
    case Clearing::kWholeBuffer:
      std::memset(out, 0, outLen);
      break;
  }
  if (f.walk == RecordWalk::kCallerSized) {
    const uint32_t word = std::min<uint32_t>(stride, sizeof stride);
    for (uint32_t i = 0; i < outLen / stride; ++i) {
      std::memcpy(out + static_cast<size_t>(i) * stride, &stride, word);
    }
  }
}

int ParseObjectMembers(const ResponseFrame& f, const Json::Value& root, const Json::Value& params,
                       const Json::Value& table, unsigned char* out, uint32_t slots,
                       uint32_t* retLen) {
  uint32_t filled = 0;
  bool failed = false;
  ForEachMemberInPlace(table, [&](const char* key, size_t length, const Json::Value& value) {
    if (filled >= slots) return false;
    const std::string name(key, length);
    // A name with a NUL in it is looked up as far as its NUL, as a C
    // string names a member.
    const Json::Value& element =
        name.find('\0') == std::string::npos ? value : Member(table, name.c_str());
    if (!element.isObject()) return true;
    const StepContext ctx{root,         params,       filled,
                          f.recordSize, name.c_str(), static_cast<int32_t>(filled)};
    unsigned char* record = out + static_cast<size_t>(filled) * f.recordSize;
    if (!f.parse(element, ctx, record)) {
      failed = true;
      return false;
    }
    ++filled;
    return true;
  });
  if (failed) {
    if (f.clearing != Clearing::kNone)
      std::memset(out, 0, static_cast<size_t>(slots) * f.recordSize);
    return 0;
  }
  ReportLength(f, retLen, static_cast<uint64_t>(filled) * f.recordSize);
  return 1;
}

// The first element of `v` that is not null (null when there is none).
const Json::Value& FirstNonNull(const Json::Value& v) {
  const Json::Value* found = &Null();
  ForEachElement(v, [&](uint32_t, const Json::Value& e) {
    if (e.isNull()) return true;
    found = &e;
    return false;
  });
  return *found;
}

// Whether an array table holds one element per record. For records that
// are arrays themselves, the first element that is not null decides (a
// channel left empty, [], must not turn the answer into one record).
bool ListsChannels(const ResponseFrame& f, const Json::Value& table) {
  if (f.arrayDepth > 0) return ArrayDepth(table, 4) == f.arrayDepth;
  if (!table.isArray()) return false;
  if (!f.arrayRecords) return true;
  const Json::Value& first = FirstNonNull(table);
  if (!first.isArray() || !f.nestedArrayRecords) return first.isArray();
  const Json::Value& inner = FirstNonNull(first);
  return inner.isNull() || inner.isArray();
}

}  // namespace

bool ResultIsTrue(const Json::Value& root) { return ToBool(*EnvelopeOf(root).result); }

Envelope EnvelopeOf(const Json::Value& root) {
  Envelope e{&Null(), &Null()};
  // A root that holds its table among its members is searched instead.
  constexpr uint32_t kWalkedMembers = 8;
  if (Count(root) > kWalkedMembers) {
    e.result = &Member(root, "result");
    e.params = &Member(root, "params");
    return e;
  }
  ForEachMemberInPlace(root, [&e](const char* name, size_t length, const Json::Value& v) {
    const std::string_view key(name, length);
    if (key == "result") e.result = &v;
    if (key == "params") e.params = &v;
    return true;
  });
  return e;
}

int64_t ArrayDepth(const Json::Value& v, int32_t shift) {
  if (shift < 0 || v.isNull()) return -1;
  if (!v.isArray()) return 0;
  const uint64_t n = v.size();
  const uint64_t step = (n >> shift) + 1;
  int64_t d = ArrayDepth(Element(v, 0), shift);
  if (step >= n) return d + 1;
  for (uint64_t i = step; i < n; i += step) {
    const int64_t e = ArrayDepth(Element(v, i), shift);
    if (e == 0) return 1;  // a sampled element that is neither array nor null
    d = std::min(d, e);
  }
  return d + 1;
}

uint32_t CallerRecordSize(const void* buf, uint32_t len) {
  uint32_t size = 0;
  if (buf == nullptr || len < sizeof size) return 0;
  std::memcpy(&size, buf, sizeof size);
  return (size < 1 || size > len) ? 0 : size;
}

void StartSizedRecord(unsigned char* record, uint32_t size) {
  std::memset(record, 0, size);
  if (size >= sizeof size) std::memcpy(record, &size, sizeof size);
}

namespace {

// The bytes a text may take in the caller's buffer: all of them when it is
// copied "at most", all but the NUL's otherwise.
uint32_t TextRoom(CopyRule rule, uint32_t outLen) {
  return rule == CopyRule::kAtMost ? outLen : outLen - 1;
}

// A text written into the caller's buffer: the NUL after it when there is
// room for one.
int EndPacked(uint64_t length, char* outJson, uint32_t outLen) {
  if (length == 0) return 0;
  if (length < outLen) outJson[length] = '\0';
  return 1;
}

}  // namespace

int CopyPacked(const Json::Value& value, char* outJson, uint32_t outLen, CopyRule rule) {
  if (outJson == nullptr || outLen == 0) return 0;
  return EndPacked(WriteJsonInto(value, outJson, TextRoom(rule, outLen)), outJson, outLen);
}

namespace {

// Whether record i is worked in a copy: a slot shorter than the record, or
// not aligned for it (caller-sized strides are arbitrary).
bool NeedsCopy(const ResponseFrame& f, const unsigned char* slot, uint32_t stride) {
  return stride < f.recordSize || reinterpret_cast<uintptr_t>(slot) % f.recordAlign != 0;
}

}  // namespace

int ParseWithFrame(const ResponseFrame& f, const char* jsonText, void* outBuf, uint32_t outLen,
                   uint32_t* retLen) {
  const platform::CodePagePin pin;  // one code page for every text of the document
  try {
    if (jsonText == nullptr || outBuf == nullptr || f.parse == nullptr || f.recordSize == 0) {
      return 0;
    }
    if (f.refuseEmptyText && *jsonText == '\0') return 0;
    unsigned char* out = static_cast<unsigned char*>(outBuf);
    uint32_t stride = f.recordSize;
    if (f.walk == RecordWalk::kCallerSized) {
      stride = CallerRecordSize(outBuf, outLen);
      if (stride == 0) return 0;
    } else if (outLen < f.recordSize) {
      return 0;
    }
    ClearOutput(f, out, outLen, stride);

    Json::Value root;
    if (!ReadJson(jsonText, &root)) return 0;
    // Each member of the root looked up once.
    const Envelope envelope = EnvelopeOf(root);
    const Json::Value& result = *envelope.result;
    if (f.result == ResultRule::kMustBeTrue && !ToBool(result)) return 0;
    if (f.result == ResultRule::kFalseFails && !result.isNull() && !ToBool(result)) return 0;
    const Json::Value& params = *envelope.params;
    const Json::Value& table = TableOf(f, root, params);
    const int32_t rootChannel = f.channelAtRoot ? ToInt32(Member(root, "channel")) : 0;
    if (table.isNull() && f.nullTable != NullTable::kStep) {
      switch (f.nullTable) {
        case NullTable::kFail:
          return 0;
        case NullTable::kSucceedEmpty:
          ReportLength(f, retLen, 0);
          return 1;
        case NullTable::kAllZeroRecord:
          if (f.clearing == Clearing::kNone || f.clearing == Clearing::kEachRecord) {
            std::memset(out, 0, std::min(stride, outLen));
          }
          ReportLength(f, retLen, stride);
          return 1;
        case NullTable::kStep:
          break;
      }
    }

    const uint32_t slots = outLen / stride;
    if (f.walk == RecordWalk::kObjectMembers) {
      return ParseObjectMembers(f, root, params, table, out, slots, retLen);
    }
    bool perElement = f.walk != RecordWalk::kOne && ListsChannels(f, table);
    if (f.walk != RecordWalk::kOne && f.channelAtRoot) {
      perElement = rootChannel < 0;
      if (perElement && !table.isArray()) return 0;
    }
    uint32_t n = perElement ? std::min(Count(table), slots) : 1;
    if (!perElement && f.walk != RecordWalk::kOne && !f.channelAtRoot && !table.isArray()) {
      // What a per-channel walk makes of a table that is not an array.
      if (f.nonArray == NonArrayTable::kNoRecord) n = 0;
      if (f.nonArray == NonArrayTable::kObjectOnly && !table.isObject()) n = 0;
    }
    std::vector<unsigned char> copy;  // only for caller-sized slots that need one
    uint32_t filled = 0;
    bool failed = false;
    const auto fill = [&](uint32_t i, const Json::Value& element) {
      if (f.skipNullElements && element.isNull()) return true;
      unsigned char* slot = out + static_cast<size_t>(i) * stride;
      if (f.clearing == Clearing::kEachRecord) std::memset(slot, 0, stride);
      unsigned char* record = slot;
      if (NeedsCopy(f, slot, stride)) {
        copy.assign(f.recordSize, 0);
        std::memcpy(copy.data(), slot, std::min(stride, f.recordSize));
        record = copy.data();
      }
      const int32_t channel = perElement ? static_cast<int32_t>(i) : rootChannel;
      const StepContext ctx{root,    params,
                            i,       f.recordSize,
                            nullptr, f.channelAtRoot ? channel : static_cast<int32_t>(i)};
      if (!f.parse(element, ctx, record)) {
        failed = true;
        return false;
      }
      if (record != slot) std::memcpy(slot, record, std::min(stride, f.recordSize));
      ++filled;
      return true;
    };
    if (perElement) {
      ForEachElement(table, n, fill);
    } else if (n > 0) {
      fill(0, table);
    }
    if (failed) {
      if (f.clearing != Clearing::kNone) ClearOutput(f, out, outLen, stride);
      return 0;
    }
    ReportLength(f, retLen, static_cast<uint64_t>(filled) * stride);
    return 1;
  } catch (...) {
    return 0;
  }
}

int PackWithFrame(const ResponseFrame& f, const void* inBuf, uint32_t inLen, char* outJson,
                  uint32_t outLen) {
  const platform::CodePagePin pin;  // one code page for every text of the records
  try {
    if (outJson == nullptr || outLen == 0) return 0;
    std::memset(outJson, 0, outLen);
    if (inBuf == nullptr || f.pack == nullptr || f.recordSize == 0) return 0;
    const unsigned char* in = static_cast<const unsigned char*>(inBuf);
    uint32_t stride = f.recordSize;
    if (f.packWalk == PackWalk::kCallerSized) {
      stride = CallerRecordSize(inBuf, inLen);
      if (stride == 0) return 0;
    } else if (inLen < f.recordSize) {
      const bool asNull = f.shortInput == ShortInput::kNull ||
                          (f.shortInput == ShortInput::kNullUnlessEmpty && inLen > 0);
      return asNull ? CopyPacked(Json::Value(), outJson, outLen, f.copy) : 0;
    }
    const uint32_t n = f.packWalk == PackWalk::kOne ? 1 : inLen / stride;
    if (static_cast<uint64_t>(n) * f.minTextPerRecord > outLen) return 0;
    std::vector<unsigned char> copy;  // only for caller-sized slots that need one
    const auto recordAt = [&](uint32_t i) {
      const unsigned char* record = in + static_cast<size_t>(i) * stride;
      if (!NeedsCopy(f, record, stride)) return record;
      copy.assign(f.recordSize, 0);
      std::memcpy(copy.data(), record, std::min(stride, f.recordSize));
      return static_cast<const unsigned char*>(copy.data());
    };
    const uint32_t room = TextRoom(f.copy, outLen);
    const bool members = f.packWalk == PackWalk::kObjectMembers;
    const bool array =
        !members && (n > 1 || f.packArrayAlways ||
                     (f.arrayUnlessExactlyOne && f.packWalk != PackWalk::kOne && inLen != stride));
    // One record's text: its text step, or its step's value through the writer.
    const auto write = [&f](const unsigned char* record, TextSink* out) {
      if (f.packText != nullptr) return f.packText(record, out);
      Json::Value value;
      if (!f.pack(record, value)) return false;
      WriteJsonValue(value, out);
      return true;
    };
    if (array) {
      // Each record's element is written as soon as it is packed: the text
      // stops at the record that makes it too long, and no tree of the
      // whole array is kept.
      ArrayText text(outJson, room);
      for (uint32_t i = 0; i < n; ++i) {
        if (!text.AddWritten([&](TextSink* out) { return write(recordAt(i), out); })) {
          std::memset(outJson, 0, outLen);  // a failed step, or a text too long
          return 0;
        }
      }
      return EndPacked(text.Finish(), outJson, outLen);
    }
    if (!members) {
      TextSink sink(outJson, room);
      if (!write(recordAt(0), &sink)) {
        std::memset(outJson, 0, outLen);
        return 0;
      }
      sink.Put('\n');
      return EndPacked(sink.Done(), outJson, outLen);
    }
    if (f.packMembers != nullptr && !NeedsCopy(f, in, stride) && stride % f.recordAlign == 0) {
      // The members are written after the last record is read: the records
      // are read in place, never through a copy.
      ObjectText object;
      for (uint32_t i = 0; i < n; ++i) f.packMembers(in + static_cast<size_t>(i) * stride, &object);
      TextSink sink(outJson, room);
      object.Write(&sink);
      sink.Put('\n');
      return EndPacked(sink.Done(), outJson, outLen);
    }
    Json::Value root(Json::objectValue);
    TextBudget budget(room);
    for (uint32_t i = 0; i < n; ++i) {
      if (!f.pack(recordAt(i), root)) return 0;  // nothing written yet
      if (n > 1 && !budget.Spend(root, i)) return 0;
    }
    return CopyPacked(root, outJson, outLen, f.copy);
  } catch (...) {
    std::memset(outJson, 0, outLen);
    return 0;
  }
}

}  // namespace kova
