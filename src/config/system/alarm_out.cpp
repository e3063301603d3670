// "AlarmOut": the alarm output ports (relays) of a device, one record each.
#include "common/fields/field_table.h"
#include "drivers/described_record.h"
#include "drivers/response_frame.h"
#include "kova/records/system.h"

namespace {

using kova::Field;

constexpr Field kAlarmOutFields[] = {
    KOVA_F(AlarmOutConfig, mode, "Mode", kInt),
    KOVA_F(AlarmOutConfig, name, "Name", kText),
    KOVA_F(AlarmOutConfig, outputType, "OutputType", kInt)
        .Flag(KOVA_AT(AlarmOutConfig, outputTypePresent)),
    KOVA_F(AlarmOutConfig, pulseDelay, "PulseDelay", kInt)
        .Flag(KOVA_AT(AlarmOutConfig, pulseDelayPresent)),
};

}  // namespace

namespace kova {
KOVA_DESCRIBE(AlarmOutConfig, kAlarmOutFields)

extern const ResponseFrame kAlarmOutFrame = DescribedObject<AlarmOutConfig>::kFrame;

}  // namespace kova
