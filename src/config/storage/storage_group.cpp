// "StorageGroup": named storage groups, each with its file rules and its
// channels, in caller-sized records.
#include "common/fields/field_table.h"
#include "drivers/described_record.h"
#include "drivers/response_frame.h"
#include "kova/records/storage.h"

namespace kova {
namespace {

constexpr Field kChannelFields[] = {
    KOVA_F(StorageGroupChannel, maxPictures, "MaxPictures", kInt),
    KOVA_F(StorageGroupChannel, path, "Path", kText),
};

}  // namespace

KOVA_DESCRIBE(StorageGroupChannel, kChannelFields)
namespace {

constexpr Field kChannelItem = KOVA_ITEM_NESTED(StorageGroupChannel);

constexpr Field kGroupFields[] = {
    KOVA_F(StorageGroupRecord, name, "Name", kText),
    KOVA_F(StorageGroupRecord, memo, "Memo", kText),
    KOVA_F(StorageGroupRecord, fileHoldTime, "FileHoldTime", kInt),
    KOVA_F(StorageGroupRecord, overWrite, "OverWrite", kBool),
    KOVA_F(StorageGroupRecord, recordPathRule, "RecordPathRule", kText),
    KOVA_F(StorageGroupRecord, picturePathRule, "PicturePathRule", kText),
    KOVA_LIST(StorageGroupRecord, channels, "Channels", kChannelItem)
        .Count(KOVA_AT(StorageGroupRecord, channelCount), CountRule::kAll)
        .KeepSlots(),
};

}  // namespace

KOVA_DESCRIBE(StorageGroupRecord, kGroupFields)
namespace {

// An empty group packs as { "Channels" : [  ], "FileHoldTime" : 0, ... }:
// well over this many bytes.
constexpr uint32_t kMinGroupText = 120;

constexpr ResponseFrame kFrame =
    DescribedObject<StorageGroupRecord>::kFrame.Walk(RecordWalk::kCallerSized)
        .PackArrayAlways()
        .MinTextPerRecord(kMinGroupText);

}  // namespace

extern const ResponseFrame kStorageGroupFrame = kFrame;

}  // namespace kova
