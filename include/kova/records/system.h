// Records of the device-wide settings: identity ("General"), clock ("NTP",
// "Locales"), timed snapshots ("Snap"), remote devices attached to a
// recorder ("RemoteDevice"), alarm output ports ("AlarmOut"), mail
// ("Email"), automatic maintenance ("AutoMaintain") and the interface
// language ("Language").
//
// Common rules:
// - Parse reads "params"."table" of a response whose "result" is true, and
//   clears the caller's records first. A member the device leaves out stays
//   zero. A null "table" succeeds with 0 bytes.
// - Where a name is per channel (or per port), "table" is an array with one
//   element per channel filling one record each, as many as the buffer
//   holds; a single object fills one record. The returned length is the
//   bytes of the records filled. Pack writes one record as the bare object
//   and several as an array.
// - Members marked "(presence flag)" are sent by some devices only: the flag
//   is 1 when the member was present on parse, and pack writes the member
//   only when it is set. Every other member is always written.
// - Text fields hold the local code page (converted from and to UTF-8) and
//   are cut to their capacity less the terminator. Passwords are copied like
//   any text; the library never logs them.
// - Packed text is copied only when it is strictly shorter than the output
//   buffer.
#ifndef KOVA_RECORDS_SYSTEM_H_
#define KOVA_RECORDS_SYSTEM_H_

#include <stddef.h>
#include <stdint.h>

#include "kova/records/schedule.h"

#ifdef __cplusplus
extern "C" {
#endif

// "General": the device's identity and login policy. One object.
typedef struct GeneralConfig {
  char machineName[256];          // "MachineName": the device name shown to users
  int32_t localNo;                // "LocalNo": the number of the device for a remote control
  int32_t lockLoginEnable;        // "LockLoginEnable", 0 or 1: lock an account after failed logins
  int32_t lockLoginTimes;         // "LockLoginTimes": failed logins before the lock
  int32_t loginFailLockTime;      // "LoginFailLockTime": seconds an account stays locked
  int32_t maxOnlineTime;          // "MaxOnlineTime": seconds a session may stay logged in
  char machineID[64];             // "MachineID" (presence flag)
  char activationTime[32];        // "ActivationTime", "YYYY-MM-DD hh:mm:ss" as sent (presence flag)
  int32_t checkDuration;          // "CheckDuration" (presence flag)
  uint8_t machineIDPresent;       // 1 when "MachineID" was given
  uint8_t activationTimePresent;  // 1 when "ActivationTime" was given
  uint8_t checkDurationPresent;   // 1 when "CheckDuration" was given
  uint8_t reserved;               // never read or written
} GeneralConfig;

// "NTP": clock synchronisation. One object.
typedef struct NtpConfig {
  char address[256];       // "Address": the time server's host name or IP address
  int32_t enable;          // "Enable", 0 or 1
  int32_t port;            // "Port"
  int32_t timeZone;        // "TimeZone": the device's index of the time zone
  int32_t updatePeriod;    // "UpdatePeriod": minutes between synchronisations
  char timeZoneDesc[128];  // "TimeZoneDesc": the zone as text, e.g. "Beijing"
} NtpConfig;

// One daylight-saving switch point of "Locales".
typedef struct DstPoint {
  int32_t year;   // "Year"
  int32_t month;  // "Month", 1 to 12
  int32_t
      week;     // "Week": 0 = `day` is a day of the month; 1 to 5 (or -1, last) = week of the month
  int32_t day;  // "Day": day of the month, or weekday 0 (Sunday) to 6 when `week` is not 0
  int32_t hour;    // "Hour"
  int32_t minute;  // "Minute"
} DstPoint;

// "Locales": time format and daylight saving. One object.
typedef struct LocalesConfig {
  char timeFormat[32];  // "TimeFormat", e.g. "yyyy-MM-dd HH:mm:ss"
  int32_t dstEnable;    // "DSTEnable", 0 or 1
  DstPoint dstStart;    // "DSTStart"
  DstPoint dstEnd;      // "DSTEnd"
} LocalesConfig;

// "Snap": the timed snapshot schedule of one channel.
typedef struct SnapConfig {
  int32_t holidayEnable;  // "HolidayEnable", 0 or 1
  // Days of "TimeSection" the device sent (7 or 8); pack writes this many
  // days, or 8 when it is 0 or above 8.
  int32_t dayCount;
  // "TimeSection": 7 weekdays (Sunday first) and the holiday, 6 sections
  // each. The leading number of a section is a bit mask of snapshot kinds
  // (bit 0 timed, bit 1 motion, bit 2 alarm, ...), carried unchanged.
  TimeSectionRecord sections[8][6];
} SnapConfig;

// Capacities of "RemoteDevice".
enum {
  KOVA_REMOTE_MAX_VIDEO_INPUTS = 16,
};

// One entry of "VideoInputs" of a remote device.
typedef struct RemoteVideoInput {
  char name[64];             // "Name"
  char serviceType[32];      // "ServiceType": the streaming protocol, e.g. "TCP", "AUTO"
  char mainStreamUrl[256];   // "MainStreamUrl"
  char extraStreamUrl[256];  // "ExtraStreamUrl"
} RemoteVideoInput;

// "RemoteDevice": one camera or encoder attached to a recorder. "table" is
// an object whose member names identify the devices
// ("uuid:System_CONFIG_NETCAMERA_INFO_0", ...); one record per member, in the
// JSON library's member order (sorted by name), as many as the buffer
// holds. Pack writes the object back keyed by `id`; a record whose `id` is
// empty is written under "" .
typedef struct RemoteDeviceConfig {
  char id[128];                // the member name identifying the device
  int32_t enable;              // "Enable", 0 or 1
  char address[64];            // "Address": IP address or host name
  int32_t port;                // "Port": the private protocol port
  int32_t httpPort;            // "HttpPort"
  int32_t httpsPort;           // "HttpsPort"
  int32_t rtspPort;            // "RtspPort"
  char name[128];              // "Name"
  char deviceType[64];         // "DeviceType", e.g. "NC-200"
  char serialNo[64];           // "SerialNo"
  char mac[32];                // "Mac", e.g. "02:00:5e:10:00:01"
  char userName[64];           // "UserName"
  char password[64];           // "Password"
  char protocolType[32];       // "ProtocolType", e.g. "Private", "Onvif" (kept as text)
  char vendor[32];             // "Vendor" (kept as text)
  char version[64];            // "Version": firmware version
  int32_t encryption;          // "Encryption"
  int32_t videoInputChannels;  // "VideoInputChannels"
  int32_t audioInputChannels;  // "AudioInputChannels"
  int32_t alarmInChannels;     // "AlarmInChannels"
  int32_t videoInputCount;     // entries of `videoInputs` taken from "VideoInputs", at most 16
  RemoteVideoInput videoInputs[16];  // "VideoInputs"
} RemoteDeviceConfig;

// "AlarmOut": one alarm output port.
typedef struct AlarmOutConfig {
  int32_t mode;               // "Mode": 0 automatic (driven by alarms), 1 forced on, 2 off
  char name[128];             // "Name"
  int32_t outputType;         // "OutputType": 0 switch (relay), 1 level output (presence flag)
  int32_t pulseDelay;         // "PulseDelay": seconds a pulse output stays on (presence flag)
  uint8_t outputTypePresent;  // 1 when "OutputType" was given
  uint8_t pulseDelayPresent;  // 1 when "PulseDelay" was given
  uint8_t reserved[2];        // never read or written
} AlarmOutConfig;

// Capacities of "Email".
enum {
  KOVA_EMAIL_MAX_RECEIVERS = 8,
};

// "HealthReport" of "Email": a periodic mail on the device's health.
typedef struct EmailHealthReport {
  int32_t enable;    // "Enable", 0 or 1
  int32_t interval;  // "Interval": minutes between two reports
} EmailHealthReport;

// "Email": the mail account alarms are sent from. One object.
typedef struct EmailConfig {
  int32_t enable;                  // "Enable", 0 or 1
  char address[128];               // "Address": the SMTP server
  int32_t port;                    // "Port"
  char userName[64];               // "UserName"
  char password[64];               // "Password"
  int32_t anonymous;               // "Anonymous", 0 or 1
  int32_t sslEnable;               // "SslEnable", 0 or 1
  int32_t tlsEnable;               // "TlsEnable", 0 or 1
  char sendAddress[128];           // "SendAddress": the sender's address
  int32_t receiverCount;           // entries of `receivers` taken from "Receivers", at most 8
  char receivers[8][128];          // "Receivers": the recipients' addresses
  char title[256];                 // "Title": the subject line
  int32_t attachEnable;            // "AttachEnable", 0 or 1: attach snapshots
  int32_t sendInterv;              // "SendInterv": seconds between two mails
  EmailHealthReport healthReport;  // "HealthReport" (presence flag)
  int32_t healthReportPresent;     // 1 when "HealthReport" was given as an object
} EmailConfig;

// "AutoMaintain": automatic reboot and file clean-up. One object.
typedef struct AutoMaintainConfig {
  int32_t autoRebootDay;     // "AutoRebootDay": -1 never, 0 every day, 1 to 7 a weekday
  int32_t autoRebootHour;    // "AutoRebootHour"
  int32_t autoRebootMinute;  // "AutoRebootMinute"
  int32_t
      autoDeleteFilesTime;  // "AutoDeleteFilesTime": days after which files are deleted, 0 never
} AutoMaintainConfig;

// "Language": the interface language; "table" is the text itself.
typedef struct LanguageConfig {
  char language[64];  // e.g. "English", "SimpChinese" (kept as text)
} LanguageConfig;

// "CommGlobal": the alarm hub's global settings, one object for the
// device. The buffer is cleared first; a key left out reads 0 or empty.
typedef struct CommGlobalConfig {
  int32_t alarmEnable;           // "AlarmEnable" (boolean): alarms reported at all
  char currentProfile[32];       // "CurrentProfile": the scene in force ("AtHome", "Outdoor", ...),
                                 // kept as given (at most 31 bytes)
  int32_t profileEnable;         // "ProfileEnable" (boolean): scenes switch the alarm inputs
  int32_t profileEnablePresent;  // 1 when "ProfileEnable" was given; pack writes it only then
} CommGlobalConfig;

// "FlashLight": the flash (fill) light of a channel. The device answers
// one object (record 0) or an array of them (one record per channel); the
// buffer is cleared first.
typedef struct FlashLightConfig {
  int32_t enable;                       // "Enable" (boolean), 0 or 1
  int32_t brightness;                   // "Brightness": 0 to 100
  TimeSectionRecord timeSection[7][6];  // "TimeSection": 7 days x 6 sections
  int32_t timeSectionPresent;           // 1 when "TimeSection" was given; pack writes it only then
} FlashLightConfig;

#ifdef __cplusplus
}
static_assert(sizeof(GeneralConfig) == 256 + 5 * 4 + 64 + 32 + 4 + 4, "GeneralConfig layout");
static_assert(sizeof(NtpConfig) == 256 + 4 * 4 + 128, "NtpConfig layout");
static_assert(sizeof(DstPoint) == 24, "DstPoint layout");
static_assert(sizeof(LocalesConfig) == 32 + 4 + 2 * 24, "LocalesConfig layout");
static_assert(sizeof(SnapConfig) == 8 + 8 * 6 * 28, "SnapConfig layout");
static_assert(sizeof(RemoteVideoInput) == 608, "RemoteVideoInput layout");
static_assert(offsetof(RemoteDeviceConfig, videoInputs) == 776, "RemoteDeviceConfig layout");
static_assert(sizeof(RemoteDeviceConfig) == 776 + 16 * 608, "RemoteDeviceConfig layout");
static_assert(sizeof(AlarmOutConfig) == 4 + 128 + 4 + 4 + 4, "AlarmOutConfig layout");
static_assert(offsetof(EmailConfig, receivers) == 408, "EmailConfig layout");
static_assert(sizeof(EmailConfig) == 408 + 8 * 128 + 256 + 5 * 4, "EmailConfig layout");
static_assert(sizeof(AutoMaintainConfig) == 16, "AutoMaintainConfig layout");
static_assert(sizeof(LanguageConfig) == 64, "LanguageConfig layout");
static_assert(sizeof(CommGlobalConfig) == 44, "CommGlobalConfig layout");
static_assert(offsetof(FlashLightConfig, timeSection) == 8, "FlashLightConfig layout");
static_assert(sizeof(FlashLightConfig) == 8 + 1176 + 4, "FlashLightConfig layout");
#endif

#endif  // KOVA_RECORDS_SYSTEM_H_
