// "EncodePlan": planned encodings, one entry per element of "table".
//
// This configuration has always been read without looking at "result", and
// it never clears the caller's buffer. Pack writes an array even for one
// entry: the device reads nothing else.
#include <cstddef>
#include <cstdint>

#include "common/fields/field_table.h"
#include "config/media/encode_tables.h"
#include "drivers/response_frame.h"
#include "kova/records/media.h"
#include "kova/records/video_in.h"

namespace kova {

namespace {

using P = EncodePlanEntry;

constexpr Field kEntryFields[] = {
    KOVA_F(P, bitRate, "BitRate", kUInt),
    KOVA_F(P, expectTime, "ExpectTime", kUInt),
    KOVA_ENUM(P, resolution, "Resolution", kImageSizeNames),
};
constexpr FieldTable kEntry = KOVA_TABLE(kEntryFields);

// Intended: `enable` is the element itself; a null element only switches
// its entry off (the rest keeps its bytes) and packs back as null.
bool ParseEntry(const Json::Value& element, const StepContext& ctx, unsigned char* entry) {
  StoreInt(entry + offsetof(P, enable), sizeof(int32_t), element.isNull() ? 0 : 1);
  return element.isNull() || ParseTableStep<kEntry>(element, ctx, entry);
}

bool PackEntry(const unsigned char* entry, Json::Value& out) {
  if (LoadInt(entry + offsetof(P, enable), sizeof(int32_t), true) == 0) return true;
  out = Json::Value(Json::objectValue);
  return PackTableStep<kEntry>(entry, out);
}

}  // namespace

extern const ResponseFrame kEncodePlanFrame = ResponseFrame::For<P>(ParseEntry, PackEntry)
                                                  .IgnoreResult()
                                                  .Clear(Clearing::kNone)
                                                  .Walk(RecordWalk::kPerChannel)
                                                  .NonArray(NonArrayTable::kNoRecord)
                                                  .PackArrayAlways()
                                                  .Describe(WholeTable<P, kEntry>::kField);

}  // namespace kova
