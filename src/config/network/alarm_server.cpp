// "AlarmServer": the alarm centre the device reports its alarms to.
#include "common/fields/field_table.h"
#include "drivers/described_record.h"
#include "drivers/response_frame.h"
#include "kova/records/network.h"

namespace kova {

constexpr Field kAlarmServerFields[] = {
    KOVA_F(AlarmServerConfig, enable, "Enable", kBool),
    KOVA_F(AlarmServerConfig, address, "Address", kText),
    KOVA_F(AlarmServerConfig, port, "Port", kInt),
    KOVA_F(AlarmServerConfig, protocol, "Protocol", kText),
};
KOVA_DESCRIBE(AlarmServerConfig, kAlarmServerFields)

extern const ResponseFrame kAlarmServerFrame =
    DescribedObject<AlarmServerConfig>::kFrame.Walk(RecordWalk::kOne);

}  // namespace kova
