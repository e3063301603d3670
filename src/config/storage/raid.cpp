// "Raid": the disk arrays, each with its level and member disks, in
// caller-sized records.
#include <type_traits>

#include "common/fields/field_table.h"
#include "drivers/described_record.h"
#include "drivers/response_frame.h"
#include "kova/records/storage.h"

namespace kova {
namespace {

constexpr Field kMemberItem = KOVA_ITEM(std::remove_extent_t<decltype(RaidRecord::members)>, kText);

constexpr Field kRaidFields[] = {
    KOVA_F(RaidRecord, name, "Name", kText),
    KOVA_F(RaidRecord, level, "Level", kInt),
    KOVA_LIST(RaidRecord, members, "Members", kMemberItem)
        .Count(KOVA_AT(RaidRecord, memberCount), CountRule::kAll)
        .KeepSlots(),
};

}  // namespace

KOVA_DESCRIBE(RaidRecord, kRaidFields)
namespace {

// An empty array packs as { "Level" : 0, "Members" : [  ], "Name" : "" }.
constexpr uint32_t kMinRaidText = 40;

constexpr ResponseFrame kFrame = DescribedObject<RaidRecord>::kFrame.Walk(RecordWalk::kCallerSized)
                                     .PackArrayAlways()
                                     .MinTextPerRecord(kMinRaidText);

}  // namespace

extern const ResponseFrame kRaidFrame = kFrame;

}  // namespace kova
