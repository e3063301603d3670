// "NTP" (clock synchronisation) and "Locales" (time format, daylight saving).
#include "common/fields/field_table.h"
#include "drivers/described_record.h"
#include "drivers/response_frame.h"
#include "kova/records/system.h"

namespace {

using kova::Field;

constexpr Field kNtpFields[] = {
    KOVA_F(NtpConfig, address, "Address", kText),
    KOVA_F(NtpConfig, enable, "Enable", kBool),
    KOVA_F(NtpConfig, port, "Port", kInt),
    KOVA_F(NtpConfig, timeZone, "TimeZone", kInt),
    KOVA_F(NtpConfig, timeZoneDesc, "TimeZoneDesc", kText),
    KOVA_F(NtpConfig, updatePeriod, "UpdatePeriod", kInt),
};

constexpr Field kDstPointFields[] = {
    KOVA_F(DstPoint, year, "Year", kInt), KOVA_F(DstPoint, month, "Month", kInt),
    KOVA_F(DstPoint, week, "Week", kInt), KOVA_F(DstPoint, day, "Day", kInt),
    KOVA_F(DstPoint, hour, "Hour", kInt), KOVA_F(DstPoint, minute, "Minute", kInt),
};

}  // namespace

namespace kova {
KOVA_DESCRIBE(NtpConfig, kNtpFields)
KOVA_DESCRIBE(DstPoint, kDstPointFields)
}  // namespace kova

namespace {

using kova::Field;

constexpr Field kLocalesFields[] = {
    KOVA_F(LocalesConfig, dstEnable, "DSTEnable", kBool),
    KOVA_NESTED(LocalesConfig, dstEnd, "DSTEnd"),
    KOVA_NESTED(LocalesConfig, dstStart, "DSTStart"),
    KOVA_F(LocalesConfig, timeFormat, "TimeFormat", kText),
};

}  // namespace

namespace kova {
KOVA_DESCRIBE(LocalesConfig, kLocalesFields)

extern const ResponseFrame kNtpFrame = DescribedObject<NtpConfig>::kFrame.Walk(RecordWalk::kOne);
extern const ResponseFrame kLocalesFrame =
    DescribedObject<LocalesConfig>::kFrame.Walk(RecordWalk::kOne);

}  // namespace kova
