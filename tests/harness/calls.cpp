#include "harness/calls.h"

#include <cstring>
#include <functional>
#include <string_view>

#include "api/dispatch.h"
#include "common/fields/field_table.h"
#include "events/event_records.h"
#include "harness/catalog.h"
#include "harness/documents.h"
#include "harness/guarded_buffer.h"
#include "kova/kova.h"

namespace kova_harness {

namespace {

uint32_t RecordSizeOf(const char* name, bool parse) {
  const int i = parse ? kova::FindParseName(name) : kova::FindPackName(name);
  return parse ? ParseSize(i) : PackSize(i);
}

struct EventContext {
  EventResult* result;
  bool byCallback;
};

std::string FlatRecord(const unsigned char* record, size_t size, const kova::Field* element,
                       std::string* violation);

// Flattens the lists of `record` (described by `t`) into `copy` (the
// record's bytes) and `tail`: each allocated list's pointer becomes zeros
// and its entries, every byte of them, go to the tail.
void FlattenLists(const unsigned char* record, const kova::FieldTable& t, char* copy,
                  std::string* tail, std::string* violation) {
  for (size_t i = 0; i < t.count; ++i) {
    const kova::Field& f = t.fields[i];
    const kova::Field* e = f.element;
    if (f.shape == kova::FieldShape::kNested && f.table != nullptr) {
      FlattenLists(record + f.offset, *f.table, copy + f.offset, tail, violation);
    } else if (f.shape == kova::FieldShape::kList && f.allocated) {
      const unsigned char* entries;
      std::memcpy(&entries, record + f.offset, sizeof entries);
      std::memset(copy + f.offset, 0, sizeof entries);
      const uint32_t slots = entries != nullptr ? kova::AllocatedSlots(entries) : 0;
      if (kova::LoadInt(record + f.count.offset, f.count.size, false) > slots) {
        *violation = std::string("list \"") + f.key + "\" counts more entries than it holds";
      }
      for (uint32_t k = 0; k < slots; ++k) {
        tail->append(FlatRecord(entries + static_cast<size_t>(k) * f.size, f.size, e, violation));
      }
    } else if (f.shape == kova::FieldShape::kList && e->shape == kova::FieldShape::kNested) {
      for (uint32_t k = 0; k < f.capacity; ++k) {
        const size_t at = f.offset + static_cast<size_t>(k) * f.size + e->offset;
        FlattenLists(record + at, *e->table, copy + at, tail, violation);
      }
    }
  }
}

// A record's (or a list slot's) bytes, then the entries of its lists:
// equal content gives equal text wherever the lists were allocated. The
// record is laid out as `element` describes (nested: its table from the
// element's offset on; null or any other shape: no lists).
std::string FlatRecord(const unsigned char* record, size_t size, const kova::Field* element,
                       std::string* violation) {
  std::string copy(reinterpret_cast<const char*>(record), size);
  std::string tail;
  if (element != nullptr && element->shape == kova::FieldShape::kNested) {
    FlattenLists(record + element->offset, *element->table, &copy[element->offset], &tail,
                 violation);
  }
  return copy + tail;
}

int KOVA_CALL OnEvent(uint32_t code, const void* info, uint32_t infoSize, const void* reserved,
                      uint32_t reservedSize, void* user) {
  EventContext* c = static_cast<EventContext*>(user);
  EventResult& r = *c->result;
  ++r.calls;
  r.digest = Digest(&code, sizeof code, r.digest);
  r.digest = Digest(&infoSize, sizeof infoSize, r.digest);
  // Event records (the codes below the other readers' codes) hold lists.
  const bool event = code < KOVA_CALLBACK_PTZ_STATUS;
  const kova::EventRecordKind& kind = kova::EventRecordOf(code);
  if (info != nullptr) {
    std::string violation;
    kova::Field whole;  // the record as one nested value described by its code's table
    whole.shape = kova::FieldShape::kNested;
    whole.table = &kind.table;
    const std::string flat = FlatRecord(static_cast<const unsigned char*>(info), infoSize,
                                        event ? &whole : nullptr, &violation);
    r.digest = Digest(flat.data(), flat.size(), r.digest);
    if (r.violation.empty()) r.violation = violation;
  }
  if (!r.violation.empty()) return 0;
  if (event && info != nullptr && infoSize != kind.size) {
    r.violation = "an event record's size is not the size of its code's record";
    return 0;
  }
  if (c->byCallback) return 0;
  if ((info == nullptr) != (infoSize == 0)) {
    r.violation = "an event record is null but sized, or sized 0 but not null";
  } else if (reserved != nullptr || reservedSize != 0) {
    r.violation = "the reserved callback arguments are not null and 0";
  } else if (r.calls > 128) {
    r.violation = "more than 128 events from one notification";
  }
  return 0;
}

}  // namespace

uint64_t Digest(const void* p, size_t n, uint64_t h) {
  const size_t bytes =
      std::hash<std::string_view>()(std::string_view(static_cast<const char*>(p), n));
  return (h ^ bytes) * 1099511628211ull;
}

EventResult CallEventsInPlace(const char* text, uint32_t len, bool byCallback) {
  EventResult r;
  EventContext c{&r, byCallback};
  r.ret = byCallback ? KOVA_ParseDataByCallback(text, len, OnEvent, &c)
                     : KOVA_ParseAnalyzerEventData(text, len, OnEvent, &c);
  if (r.violation.empty() && !byCallback && r.ret != 1) r.violation = "did not return 1";
  return r;
}

EventResult CallEvents(const std::string& text, uint32_t len, bool byCallback) {
  GuardedBuffer buf(text.size() + 1);
  std::memcpy(buf.data(), text.c_str(), text.size() + 1);
  EventResult r = CallEventsInPlace(buf.chars(), len, byCallback);
  if (r.violation.empty() &&
      (!buf.GuardsIntact() || std::memcmp(buf.data(), text.c_str(), text.size() + 1) != 0)) {
    r.violation = "wrote into or around the event text";
  }
  return r;
}

ParseResult CallParse(const char* name, const char* text, uint32_t outLen, const ParseOptions& o) {
  GuardedBuffer out(outLen, o.prefill);
  const uint32_t recordSize = RecordSizeOf(name, true);
  if (o.sizeWord >= 0) {
    const uint32_t word = static_cast<uint32_t>(o.sizeWord);
    // Caller-sized records follow each other at the caller's size.
    const size_t stride = word >= sizeof word         ? word
                          : recordSize >= sizeof word ? recordSize
                                                      : out.size();
    for (size_t at = 0; at + sizeof word <= out.size() && at / stride < 64; at += stride) {
      std::memcpy(out.data() + at, &word, sizeof word);
    }
  }
  PointedBuffers pointed;
  pointed.Attach(name, out.data(), out.size(), recordSize, o.pointedCount, std::string());
  // A plain fill is checked in place after the call; anything else is
  // compared with a copy.
  const bool plain = o.sizeWord < 0 && pointed.empty();
  const std::string before = plain ? std::string() : std::string(out.chars(), out.size());
  // The text in a buffer of exactly its length, so that a read past its
  // NUL is caught too.
  const size_t textSize = std::strlen(text) + 1;
  GuardedBuffer json(textSize);
  std::memcpy(json.data(), text, textSize);

  ParseResult r;
  r.sizeWord = o.sizeWord;
  r.ret = KOVA_ParseData(name, json.chars(), out.data(), outLen, &r.retLen);
  r.guardsIntact = out.GuardsIntact() && pointed.GuardsIntact() && json.GuardsIntact() &&
                   std::memcmp(json.data(), text, textSize) == 0;
  r.untouched =
      plain ? out.AllEqual(o.prefill) : std::memcmp(before.data(), out.data(), out.size()) == 0;
  if (o.keepBytes) r.bytes = std::string(out.chars(), out.size()) + pointed.Contents();
  return r;
}

PackResult CallPack(const char* name, const std::string& record, uint32_t inLen, uint32_t outLen,
                    const std::string& pointed) {
  GuardedBuffer in(inLen);
  std::memcpy(in.data(), record.data(), std::min<size_t>(inLen, record.size()));
  PointedBuffers targets;
  targets.Attach(name, in.data(), in.size(), RecordSizeOf(name, false), -1, pointed);
  const std::string input(in.chars(), in.size());
  GuardedBuffer out(outLen, kUntouched);

  PackResult r;
  r.ret = KOVA_PacketData(name, in.data(), inLen, out.chars(), outLen);
  r.guardsIntact = out.GuardsIntact() && in.GuardsIntact() && targets.GuardsIntact() &&
                   std::memcmp(input.data(), in.data(), in.size()) == 0;
  r.clean = out.AllEqual(0) || out.AllEqual(kUntouched);
  const void* nul = std::memchr(out.data(), 0, out.size());
  r.terminated = nul != nullptr;
  r.text.assign(out.chars(),
                nul != nullptr ? static_cast<const char*>(nul) - out.chars() : out.size());
  return r;
}

std::string ParseViolation(int i, const std::string& text, uint32_t outLen, const ParseResult& r) {
  if (!r.guardsIntact) return "wrote outside the record buffer or a pointed buffer";
  if (r.retLen > outLen) return "reported more bytes than the buffer holds";
  if (!kova::ParseBuilt(i) && (r.ret != 0 || !r.untouched)) {
    return "a name without translator did not refuse with the buffer untouched";
  }
  const uint32_t recordSize = ParseSize(i);
  const bool callerSized = r.sizeWord >= 1 && r.sizeWord <= outLen;
  if (recordSize != 0 && outLen < recordSize && !callerSized && (r.ret != 0 || !r.untouched)) {
    return "did not refuse, untouched, a buffer smaller than one record";
  }
  if (r.ret != 0 && !Parses(text)) return "succeeded on text that does not parse";
  return std::string();
}

std::string PackViolation(int k, const std::string& record, uint32_t inLen, uint32_t outLen,
                          const PackResult& r, const std::string& pointed, bool probeCopyRule) {
  if (!r.guardsIntact) return "wrote outside the text buffer or into its input";
  if (!kova::PackBuilt(k)) {
    return r.ret == 0 && r.clean ? std::string()
                                 : "a name without translator did not refuse untouched";
  }
  const uint32_t recordSize = PackSize(k);
  uint32_t sizeWord = 0;
  if (inLen >= sizeof sizeWord && record.size() >= sizeof sizeWord) {
    std::memcpy(&sizeWord, record.data(), sizeof sizeWord);
  }
  const bool callerSized = sizeWord >= 1 && sizeWord <= inLen;
  if (recordSize != 0 && inLen < recordSize && !callerSized) {
    const bool packsNull = PackAcceptsShortInput(k, inLen);
    if (!packsNull && r.ret != 0) return "packed an input shorter than one record";
    if (packsNull && outLen > 5 && (r.ret == 0 || r.text != "null\n")) {
      return "an input shorter than one record did not pack as null";
    }
  }
  if (r.ret == 0) return r.clean ? std::string() : "failed but left text in the buffer";
  if (r.text.empty() || r.text.back() != '\n') return "packed text does not end in a newline";

  // The text is copied whole or not at all: one byte less than it needs is
  // refused (or, under the "at most" copy rule, filled without NUL), one
  // byte more holds it with its NUL.
  const char* name = kova::kPackNames[k].name;
  const uint32_t length = static_cast<uint32_t>(r.text.size());
  if (!r.terminated) {
    const PackResult more = CallPack(name, record, inLen, outLen + 1, pointed);
    if (more.ret == 0 || !more.terminated || more.text != r.text) {
      return "filled the buffer without NUL, yet one byte more does not hold the same text";
    }
    return std::string();
  }
  if (!probeCopyRule) return std::string();
  const PackResult exact = CallPack(name, record, inLen, length, pointed);
  if (!exact.guardsIntact) return "wrote outside a buffer of the text's exact length";
  if (exact.ret == 0 ? !exact.clean : (exact.terminated || exact.text != r.text)) {
    return "a buffer of the text's exact length got a partial or different text";
  }
  const PackResult spare = CallPack(name, record, inLen, length + 1, pointed);
  if (spare.ret == 0 || !spare.terminated || spare.text != r.text) {
    return "a buffer one byte longer than the text did not get the same text";
  }
  return std::string();
}

}  // namespace kova_harness
