// The response frame: everything around a per-record step, described per
// configuration. Every translator is one frame; the table drivers are
// frames with the drivers' settings (ResponseFrame::Driver).
//
//   parse: argument checks -> clearing -> JSON text -> envelope ("result",
//          where the table sits) -> record walk (one record, per channel,
//          caller-sized) -> returned length
//   pack:  argument checks -> record walk -> single-line text -> copy rule
//
// A configuration states its frame once, in its own file, and its row in
// src/api/name_table.inc names that frame:
//
//   extern const ResponseFrame kNtpFrame =
//       ResponseFrame::For<NtpConfig>(ParseTableStep<kNtp>, TablePack<kNtp>())
//           .Walk(RecordWalk::kPerChannel)
//           .IgnoreResult();
//
// Steps work on the record in place: the caller's buffer is aligned for its
// records (the public contract) and, unless the frame says otherwise, was
// cleared before the step runs. A caller-sized slot shorter than the record,
// or not aligned for it, is worked in a copy.
#ifndef KOVA_DRIVERS_RESPONSE_FRAME_H_
#define KOVA_DRIVERS_RESPONSE_FRAME_H_

#include <json/value.h>

#include <cstdint>

#include "common/fields/field_table.h"
#include "common/fields/field_text.h"

namespace kova {

// What the step sees besides its own element.
struct StepContext {
  const Json::Value& root;    // the whole response
  const Json::Value& params;  // root "params" (null when missing)
  uint32_t index;             // record index in the walk
  uint32_t recordBytes;       // bytes of the record the step may touch
  const char* memberName;     // RecordWalk::kObjectMembers: the element's member name, else null
  // The record's channel: the root's "channel" for a one-record answer
  // read with ChannelAtRoot(), else `index`.
  int32_t channel;
};

// One record from one JSON element. false fails the whole parse.
using ParseStep = bool (*)(const Json::Value& element, const StepContext& ctx,
                           unsigned char* record);
// One record into one JSON value (null on entry). false fails the whole pack.
using PackStep = bool (*)(const unsigned char* record, Json::Value& out);
// The same record's text written straight, byte for byte what the value of
// its PackStep gives through the single-line writer, with no value built.
using PackTextStep = bool (*)(const unsigned char* record, TextSink* out);

// For a pack that puts each record into one object as members
// (PackWalk::kObjectMembers): adds the members the record's PackStep puts
// there, for writing straight as text.
using PackMembersStep = void (*)(const unsigned char* record, ObjectText* object);

// A frame's pack: the step, and its text step when it has one (a
// description's walk has; a hand-written step is given alone).
struct Packing {
  constexpr Packing(PackStep step) : tree(step) {}  // NOLINT: a step alone packs through its value
  constexpr Packing(PackStep step, PackTextStep textStep) : tree(step), text(textStep) {}
  constexpr Packing(PackStep step, PackMembersStep membersStep)
      : tree(step), members(membersStep) {}
  PackStep tree;
  PackTextStep text = nullptr;
  PackMembersStep members = nullptr;
};

// Whether "result" decides anything.
enum class ResultRule : uint8_t {
  kMustBeTrue,
  kIgnored,
  kFalseFails,  // only a "result" that is present, not null and false fails
};
// Where the records' JSON sits.
enum class TableAt : uint8_t { kParamsTable, kRoot };
// What a missing or null table does.
enum class NullTable : uint8_t {
  kSucceedEmpty,   // success, no record filled (returned length 0)
  kFail,           // failure
  kAllZeroRecord,  // success with one cleared record
  kStep,           // the step reads the null table like any other and fills record 0
};
// How the caller's buffer is cleared: wholly before the text is read, not
// at all, or each record just before its step runs (a record built zeroed
// and filled: nothing is written when the envelope is refused).
enum class Clearing : uint8_t { kWholeBuffer, kNone, kEachRecord };
enum class RecordWalk : uint8_t {
  kOne,          // the table fills record 0
  kPerChannel,   // an array fills record i from element i (as many as fit); anything else record 0
  kCallerSized,  // as kPerChannel, stepping by the size word the caller wrote into record 0
  // An object table: its members that are objects fill one record each, in
  // the JSON library's member order (sorted by name); other members take no
  // record. Anything but an object fills nothing.
  kObjectMembers,
};
// What a per-channel or caller-sized walk does with a table that is not an array.
enum class NonArrayTable : uint8_t {
  kOneRecord,   // it fills record 0, whatever it is
  kObjectOnly,  // an object fills record 0, anything else no record
  kNoRecord,    // no record (success, returned length 0)
};
// What `retLen` receives.
enum class ReturnedLength : uint8_t {
  kSetBytes,   // set to the bytes of the records filled
  kAddBytes,   // increased by them
  kSetRecord,  // set to one record's size whenever the parse succeeds
};
// When packed text is copied: its length at most, or strictly less than, the output size.
enum class CopyRule : uint8_t { kAtMost, kStrictlyLess };
// What pack writes for several records.
enum class PackWalk : uint8_t {
  kOne,          // exactly one record (an input shorter than it is refused)
  kPerChannel,   // inLen / size records: one as the bare value, several as an array
  kCallerSized,  // as kPerChannel, stepping by the size word of the first record
  // inLen / size records into one object: each step receives that object
  // and adds its own member to it.
  kObjectMembers,
};

// What pack does with an input shorter than one record.
enum class ShortInput : uint8_t {
  kRefuse,          // fails: nothing is read
  kNull,            // packs as null (the text "null" and a newline), an empty input too
  kNullUnlessEmpty  // packs as null, but an empty input fails
};

// The settings of the table drivers, as the dispatch of a driver-served
// configuration gives them.
struct DriverSettings {
  int32_t depthMinusOne;  // array mode: the depth "table" must have, less one
  bool arrayAllowed;      // parse: "table" may be an array of records
  bool zeroFill;          // parse: the whole buffer is cleared first
  bool packArray;         // pack: inLen / size records, else exactly one
};

struct ResponseFrame {
  uint32_t recordSize = 0;
  uint32_t recordAlign = 1;  // a caller's slot not aligned for the record is worked in a copy
  ParseStep parse = nullptr;
  PackStep pack = nullptr;
  PackTextStep packText = nullptr;        // when set, used instead of `pack` and the writer
  PackMembersStep packMembers = nullptr;  // the same for a pack of members
  ResultRule result = ResultRule::kMustBeTrue;
  TableAt tableAt = TableAt::kParamsTable;
  NullTable nullTable = NullTable::kSucceedEmpty;
  Clearing clearing = Clearing::kWholeBuffer;
  RecordWalk walk = RecordWalk::kOne;
  bool skipNullElements =
      false;  // per-channel: a null element leaves its record and is not counted
  // A record's own JSON is an array (a channel's profiles): a per-channel
  // table lists channels only when its first non-null element is an array;
  // otherwise the table is one record.
  bool arrayRecords = false;
  // With arrayRecords: a record's own JSON is an array of arrays (a
  // channel's profiles, each a list of lights), so the table lists channels
  // only when the first non-null element of its first non-null element is
  // an array (or that element holds nothing but nulls).
  bool nestedArrayRecords = false;
  // Per-channel: the table lists records only when its ArrayDepth (sampled
  // with shift 4) equals this; 0: whenever it is an array.
  int32_t arrayDepth = 0;
  ReturnedLength returned = ReturnedLength::kSetBytes;
  CopyRule copy = CopyRule::kStrictlyLess;
  PackWalk packWalk = PackWalk::kOne;
  bool packArrayAlways = false;  // several-record pack: an array even for one record
  // Per-element walks: the response's top-level "channel" decides the walk.
  // Absent or not negative: the table is one record (record 0) whatever its
  // type; negative: the table must be an array (anything else fails) and
  // element i fills record i.
  bool channelAtRoot = false;
  ShortInput shortInput = ShortInput::kRefuse;
  // Several-record pack: a bare value only when the input is exactly one
  // record; one record and a partial one are an array of one.
  bool arrayUnlessExactlyOne = false;
  // Pack: bytes of text every record needs at least; an input of more
  // records than the output could hold is refused before any is packed.
  uint32_t minTextPerRecord = 0;
  bool refuseEmptyText = false;  // an empty text fails before anything is cleared
  NonArrayTable nonArray = NonArrayTable::kOneRecord;
  // What describes the whole record (a Field at offset 0), for tools that
  // show records; null: nothing does, its bytes show as undescribed.
  const Field* description = nullptr;

  template <typename Rec>
  static constexpr ResponseFrame For(ParseStep p, Packing k) {
    ResponseFrame f;
    f.recordSize = static_cast<uint32_t>(sizeof(Rec));
    f.recordAlign = static_cast<uint32_t>(alignof(Rec));
    f.parse = p;
    f.pack = k.tree;
    f.packText = k.text;
    f.packMembers = k.members;
    return f;
  }
  // The one way an attribute is set: a copy with `member` set to `v`.
  template <typename M, typename V>
  constexpr ResponseFrame With(M ResponseFrame::*member, V v) const {
    ResponseFrame f = *this;
    f.*member = v;
    return f;
  }
  constexpr ResponseFrame Result(ResultRule r) const { return With(&ResponseFrame::result, r); }
  constexpr ResponseFrame IgnoreResult() const { return Result(ResultRule::kIgnored); }
  constexpr ResponseFrame Table(TableAt t) const { return With(&ResponseFrame::tableAt, t); }
  constexpr ResponseFrame OnNullTable(NullTable n) const {
    return With(&ResponseFrame::nullTable, n);
  }
  constexpr ResponseFrame Clear(Clearing c) const { return With(&ResponseFrame::clearing, c); }
  // The parse walk, and the pack walk that mirrors it.
  constexpr ResponseFrame Walk(RecordWalk w) const {
    return With(&ResponseFrame::walk, w)
        .With(&ResponseFrame::packWalk, w == RecordWalk::kOne           ? PackWalk::kOne
                                        : w == RecordWalk::kPerChannel  ? PackWalk::kPerChannel
                                        : w == RecordWalk::kCallerSized ? PackWalk::kCallerSized
                                                                        : PackWalk::kObjectMembers);
  }
  constexpr ResponseFrame ArrayRecords() const { return With(&ResponseFrame::arrayRecords, true); }
  constexpr ResponseFrame NestedArrayRecords() const {
    return ArrayRecords().With(&ResponseFrame::nestedArrayRecords, true);
  }
  constexpr ResponseFrame Returned(ReturnedLength r) const {
    return With(&ResponseFrame::returned, r);
  }
  constexpr ResponseFrame Copy(CopyRule c) const { return With(&ResponseFrame::copy, c); }
  constexpr ResponseFrame PackArrayAlways() const {
    return With(&ResponseFrame::packArrayAlways, true);
  }
  constexpr ResponseFrame ChannelAtRoot() const {
    return With(&ResponseFrame::channelAtRoot, true);
  }
  constexpr ResponseFrame Short(ShortInput s) const { return With(&ResponseFrame::shortInput, s); }
  constexpr ResponseFrame ArrayUnlessExactlyOne() const {
    return With(&ResponseFrame::arrayUnlessExactlyOne, true);
  }
  constexpr ResponseFrame MinTextPerRecord(uint32_t n) const {
    return With(&ResponseFrame::minTextPerRecord, n);
  }
  constexpr ResponseFrame RefuseEmptyText() const {
    return With(&ResponseFrame::refuseEmptyText, true);
  }
  constexpr ResponseFrame NonArray(NonArrayTable n) const {
    return With(&ResponseFrame::nonArray, n);
  }
  constexpr ResponseFrame Describe(const Field& whole) const {
    return With(&ResponseFrame::description, &whole);
  }
  // The table drivers' envelope and walk: "result" must be true; with array
  // mode a table of the expected depth fills one record per element (a null
  // element keeps its slot and is not counted), anything else is one
  // record; the returned length is added to; pack writes one record bare,
  // several as an array, and copies strictly less than the output size.
  constexpr ResponseFrame Driver(DriverSettings d) const {
    const ResponseFrame f =
        Clear(d.zeroFill ? Clearing::kWholeBuffer : Clearing::kNone)
            .Returned(ReturnedLength::kAddBytes)
            .With(&ResponseFrame::skipNullElements, true)
            .Short(d.packArray ? ShortInput::kNull : ShortInput::kRefuse)
            .With(&ResponseFrame::packWalk, d.packArray ? PackWalk::kPerChannel : PackWalk::kOne);
    return d.arrayAllowed ? f.With(&ResponseFrame::walk, RecordWalk::kPerChannel)
                                .With(&ResponseFrame::arrayDepth, d.depthMinusOne + 1)
                          : f;
  }
};

// Presets of the settings several configurations share.
//
// One object answered for the whole device: "result" true, the buffer
// cleared, an empty text refused, a missing table read as one cleared record
// and the returned length one record.
template <typename Rec>
constexpr ResponseFrame DeviceObjectFrame(ParseStep parse, Packing pack) {
  return ResponseFrame::For<Rec>(parse, pack)
      .RefuseEmptyText()
      .OnNullTable(NullTable::kAllZeroRecord)
      .Returned(ReturnedLength::kSetRecord);
}
// A record the caller keeps between calls (it carries the caller's own size
// or buffers): never cleared by the frame, a missing table read by the step
// like any other, the returned length one record.
template <typename Rec>
constexpr ResponseFrame KeptRecordFrame(ParseStep parse, Packing pack) {
  return ResponseFrame::For<Rec>(parse, pack)
      .Clear(Clearing::kNone)
      .OnNullTable(NullTable::kStep)
      .Returned(ReturnedLength::kSetRecord);
}
// A table-driver configuration: its record, its per-record steps (which
// never fail) and its driver settings.
template <typename Rec>
constexpr ResponseFrame DriverFrame(ParseStep parse, Packing pack, DriverSettings d) {
  return ResponseFrame::For<Rec>(parse, pack).Driver(d);
}

// How many array levels nest at the top of `v`, sampling long arrays: every
// element of arrays up to 15 elements, otherwise element 0 and every
// ((n >> shift) + 1)-th element. Null gives -1, any non-array 0; a negative
// shift gives -1.
int64_t ArrayDepth(const Json::Value& v, int32_t shift);

// The envelope's truth rule for "result" (the same as ToBool).
bool ResultIsTrue(const Json::Value& root);

// "result" and "params" of a response's root (the shared null for each one
// missing), found in one walk over its few members rather than a search each.
struct Envelope {
  const Json::Value* result;
  const Json::Value* params;
};
Envelope EnvelopeOf(const Json::Value& root);

// 1 on success, 0 on failure. Never writes past `outLen`; on failure the
// buffer is left as the clearing rule made it (a step's partial record is
// cleared again).
int ParseWithFrame(const ResponseFrame& frame, const char* jsonText, void* outBuf, uint32_t outLen,
                   uint32_t* retLen);
// 1 on success, 0 on failure. Never reads past `inLen`; an empty input is
// refused; `outJson` is cleared first and stays cleared on failure.
int PackWithFrame(const ResponseFrame& frame, const void* inBuf, uint32_t inLen, char* outJson,
                  uint32_t outLen);

// The whole-record description of a record that is one field table, for
// ResponseFrame::Describe: .Describe(WholeTable<Rec, kTable>::kField).
template <typename Rec, const FieldTable& kTable>
struct WholeTable {
  static constexpr Field kField = MakeGroup(nullptr, static_cast<uint32_t>(sizeof(Rec)), &kTable);
};

// Steps of a record that is one field table: the element's members through
// the walker, and back.
template <const FieldTable& kTable>
bool ParseTableStep(const Json::Value& element, const StepContext& /*ctx*/, unsigned char* record) {
  ParseFields(element, record, kTable);
  return true;
}
template <const FieldTable& kTable>
bool PackTableStep(const unsigned char* record, Json::Value& out) {
  PackFields(record, out, kTable);
  return true;
}
template <const FieldTable& kTable>
bool PackTableText(const unsigned char* record, TextSink* out) {
  WriteFieldsText(record, kTable, out);
  return true;
}
// The pack of a record that is one field table, for a frame.
template <const FieldTable& kTable>
constexpr Packing TablePack() {
  return Packing(PackTableStep<kTable>, PackTableText<kTable>);
}

// The frame of a record that is one field table, described by it.
template <typename Rec, const FieldTable& kTable>
constexpr ResponseFrame TableFrame() {
  return ResponseFrame::For<Rec>(ParseTableStep<kTable>, TablePack<kTable>())
      .Describe(WholeTable<Rec, kTable>::kField);
}

// The caller's record size from the first record's leading uint32: 0 when
// the buffer cannot hold the size word, or the size is 0 or above `len`.
uint32_t CallerRecordSize(const void* buf, uint32_t len);

// Starts a record that carries its own size, for a step of a frame that
// does not clear the buffer: clears its `size` bytes and writes `size` into
// its leading uint32.
void StartSizedRecord(unsigned char* record, uint32_t size);

// Writes `value` as single-line text into `outJson` under `rule`. 1 when copied.
int CopyPacked(const Json::Value& value, char* outJson, uint32_t outLen, CopyRule rule);

}  // namespace kova

#endif  // KOVA_DRIVERS_RESPONSE_FRAME_H_
