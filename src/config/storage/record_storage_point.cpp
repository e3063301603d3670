// "RecordStoragePoint": where each kind of recording and snapshot of a
// channel is stored.
#include "common/fields/field_table.h"
#include "drivers/described_record.h"
#include "drivers/response_frame.h"
#include "kova/records/storage.h"

namespace kova {

constexpr Field kStoragePointTargetFields[] = {
    KOVA_F(StoragePointTargets, local, "Local", kBool)
        .Flag(KOVA_AT(StoragePointTargets, localPresent)),
    KOVA_F(StoragePointTargets, ftp, "FTP", kBool).Flag(KOVA_AT(StoragePointTargets, ftpPresent)),
    KOVA_F(StoragePointTargets, remote, "Remote", kBool)
        .Flag(KOVA_AT(StoragePointTargets, remotePresent)),
    KOVA_F(StoragePointTargets, redundant, "Redundant", kBool)
        .Flag(KOVA_AT(StoragePointTargets, redundantPresent)),
};
KOVA_DESCRIBE(StoragePointTargets, kStoragePointTargetFields)

#define KOVA_STORAGE_KIND(member, key, i)            \
  KOVA_NESTED(RecordStoragePointConfig, member, key) \
      .Flag(KOVA_AT_ITEM(RecordStoragePointConfig, present, i))

constexpr Field kRecordStoragePointFields[] = {
    KOVA_STORAGE_KIND(timingRecord, "TimingRecord", 0),
    KOVA_STORAGE_KIND(manualRecord, "ManualRecord", 1),
    KOVA_STORAGE_KIND(videoDetectRecord, "VideoDetectRecord", 2),
    KOVA_STORAGE_KIND(alarmRecord, "AlarmRecord", 3),
    KOVA_STORAGE_KIND(eventRecord, "EventRecord", 4),
    KOVA_STORAGE_KIND(timingSnapShot, "TimingSnapShot", 5),
    KOVA_STORAGE_KIND(manualSnapShot, "ManualSnapShot", 6),
    KOVA_STORAGE_KIND(videoDetectSnapShot, "VideoDetectSnapShot", 7),
    KOVA_STORAGE_KIND(alarmSnapShot, "AlarmSnapShot", 8),
    KOVA_STORAGE_KIND(eventSnapShot, "EventSnapShot", 9),
};
KOVA_DESCRIBE(RecordStoragePointConfig, kRecordStoragePointFields)

#undef KOVA_STORAGE_KIND

extern const ResponseFrame kRecordStoragePointFrame =
    DescribedObject<RecordStoragePointConfig>::kFrame;

}  // namespace kova
