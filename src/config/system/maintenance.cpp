// "AutoMaintain" (automatic reboot and file clean-up) and "Email" (the
// account alarm mails are sent from).
#include "common/fields/field_table.h"
#include "drivers/described_record.h"
#include "drivers/response_frame.h"
#include "kova/records/system.h"

namespace {

using kova::Field;

constexpr Field kAutoMaintainFields[] = {
    KOVA_F(AutoMaintainConfig, autoDeleteFilesTime, "AutoDeleteFilesTime", kInt),
    KOVA_F(AutoMaintainConfig, autoRebootDay, "AutoRebootDay", kInt),
    KOVA_F(AutoMaintainConfig, autoRebootHour, "AutoRebootHour", kInt),
    KOVA_F(AutoMaintainConfig, autoRebootMinute, "AutoRebootMinute", kInt),
};

constexpr Field kReceiver = KOVA_ITEM(char[128], kText);

constexpr Field kHealthReportFields[] = {
    KOVA_F(EmailHealthReport, enable, "Enable", kBool),
    KOVA_F(EmailHealthReport, interval, "Interval", kInt),
};

}  // namespace

namespace kova {
KOVA_DESCRIBE(EmailHealthReport, kHealthReportFields)
}  // namespace kova

namespace {

using kova::Field;

constexpr Field kEmailFields[] = {
    KOVA_F(EmailConfig, address, "Address", kText),
    KOVA_F(EmailConfig, anonymous, "Anonymous", kBool),
    KOVA_F(EmailConfig, attachEnable, "AttachEnable", kBool),
    KOVA_F(EmailConfig, enable, "Enable", kBool),
    // Sent by newer devices only.
    KOVA_NESTED(EmailConfig, healthReport, "HealthReport")
        .Flag(KOVA_AT(EmailConfig, healthReportPresent)),
    KOVA_F(EmailConfig, password, "Password", kText),
    KOVA_F(EmailConfig, port, "Port", kInt),
    KOVA_LIST(EmailConfig, receivers, "Receivers", kReceiver)
        .Count(KOVA_AT(EmailConfig, receiverCount), kova::CountRule::kAll),
    KOVA_F(EmailConfig, sendAddress, "SendAddress", kText),
    KOVA_F(EmailConfig, sendInterv, "SendInterv", kInt),
    KOVA_F(EmailConfig, sslEnable, "SslEnable", kBool),
    KOVA_F(EmailConfig, title, "Title", kText),
    KOVA_F(EmailConfig, tlsEnable, "TlsEnable", kBool),
    KOVA_F(EmailConfig, userName, "UserName", kText),
};

}  // namespace

namespace kova {
KOVA_DESCRIBE(AutoMaintainConfig, kAutoMaintainFields)
KOVA_DESCRIBE(EmailConfig, kEmailFields)

extern const ResponseFrame kAutoMaintainFrame =
    DescribedObject<AutoMaintainConfig>::kFrame.Walk(RecordWalk::kOne);
extern const ResponseFrame kEmailFrame =
    DescribedObject<EmailConfig>::kFrame.Walk(RecordWalk::kOne);

}  // namespace kova
