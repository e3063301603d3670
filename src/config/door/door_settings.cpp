// "AccessTimeSchedule" (the times a door may be opened) and
// "VideoTalkPhoneGeneral" (ringing, talk and recording of a door station).
#include "common/blocks/week_grid.h"
#include "common/fields/field_table.h"
#include "drivers/described_record.h"
#include "drivers/response_frame.h"
#include "kova/records/door.h"

namespace kova {

constexpr Field kAccessTimeScheduleFields[] = {
    KOVA_F(AccessTimeScheduleConfig, enable, "Enable", kBool),
    KOVA_F(AccessTimeScheduleConfig, name, "Name", kText),
    KOVA_WEEK_GRID(AccessTimeScheduleConfig, timeSchedule, "TimeSchedule", 7,
                   KOVA_ACCESS_SCHEDULE_SECTIONS)
        .Flag(KOVA_AT(AccessTimeScheduleConfig, timeSchedulePresent)),
};
KOVA_DESCRIBE(AccessTimeScheduleConfig, kAccessTimeScheduleFields)

// One record per schedule: the caller's buffer decides how many are kept.
extern const ResponseFrame kAccessTimeScheduleFrame =
    DescribedObject<AccessTimeScheduleConfig>::kFrame;

constexpr Field kVideoTalkPhoneGeneralFields[] = {
    KOVA_F(VideoTalkPhoneGeneralConfig, autoRecordEnable, "AutoRecordEnable", kBool),
    KOVA_F(VideoTalkPhoneGeneralConfig, autoRecordTime, "AutoRecordTime", kInt),
    KOVA_F(VideoTalkPhoneGeneralConfig, ringEnable, "RingEnable", kBool),
    KOVA_F(VideoTalkPhoneGeneralConfig, ringVolume, "RingVolume", kInt),
    KOVA_F(VideoTalkPhoneGeneralConfig, talkVolume, "TalkVolume", kInt),
    KOVA_F(VideoTalkPhoneGeneralConfig, ringFile, "RingFile", kText),
    KOVA_F(VideoTalkPhoneGeneralConfig, maxMonitorTime, "MaxMonitorTime", kInt)
        .Flag(KOVA_AT(VideoTalkPhoneGeneralConfig, maxMonitorTimePresent)),
    KOVA_F(VideoTalkPhoneGeneralConfig, maxTalkTime, "MaxTalkTime", kInt)
        .Flag(KOVA_AT(VideoTalkPhoneGeneralConfig, maxTalkTimePresent)),
};
KOVA_DESCRIBE(VideoTalkPhoneGeneralConfig, kVideoTalkPhoneGeneralFields)

extern const ResponseFrame kVideoTalkPhoneGeneralFrame =
    DescribedObject<VideoTalkPhoneGeneralConfig>::kFrame.Walk(RecordWalk::kOne);

}  // namespace kova
