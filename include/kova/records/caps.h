// Records of the capability and status answers: what a device can do, asked
// before it is configured, and the counters and lens state clients poll.
//
// "ptz.getCurrentProtocolCaps", "recordManager.getCaps", "encode.getCaps",
// "userManager.getActiveUserInfoAll", "videoStatServer.getSummary",
// "devVideoInput.getFocusStatus", "ptz.factory.instance". The open-ended
// capability answers ("devVideoInput.getCaps", "eventManager.getCaps", ...)
// read into a flat list of paths and values instead (kova/records/flat.h).
//
// Common rules:
// - These are method answers, read only: KOVA_PacketData refuses their names.
// - Parse needs a capacity of one record, clears it, requires "result" to be
//   true and reads the answer's payload: "params"."caps", "params"."status",
//   "params"."summary" or "params"."users" as each record says. A missing
//   payload reads as a record of zeros (a device without the feature answers
//   with two keys or none), reported as one record.
// - Every member is optional: each has a presence flag, 1 when the member was
//   present and not null. Absent members leave 0 (text empty). Written back
//   (the tool's round trip), a member is written only when its flag is set.
// - Text fields hold the local code page, cut to their capacity less the
//   terminator; lists are cut to their capacity.
#ifndef KOVA_RECORDS_CAPS_H_
#define KOVA_RECORDS_CAPS_H_

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#define KOVA_PTZ_CAPS_DIRECTIONS 8  // "UnSupportDirections" entries kept
#define KOVA_PTZ_CAPS_EXTRAS 32     // other boolean and integer members kept
#define KOVA_RECORD_CAPS_PACKET_TYPES 4
#define KOVA_ENCODE_CAPS_CHANNELS 64  // "VideoEncodeDevices" entries kept
#define KOVA_ENCODE_CAPS_STREAMS 4    // "SupportDynamicBitrate" entries kept per channel
#define KOVA_ACTIVE_USERS 64          // "users" entries kept

// A member of a PTZ protocol's caps that no field below names: a boolean or
// an integer (a Min/Max pair is two of these), kept as given. Members of any
// other type are not kept.
typedef struct PtzCapsExtra {
  char key[48];      // the member's name, bytes as sent; a longer name is not kept
  int64_t value;     // the integer, or 0/1 for a boolean
  int32_t isBool;    // 1: the member was a boolean
  int32_t reserved;  // never read or written
} PtzCapsExtra;

// "PtzMotionRange": the angles the head can reach, degrees.
typedef struct PtzMotionRange {
  int32_t horizontalAngle[2];      // "HorizontalAngle": [min, max]
  int32_t verticalAngle[2];        // "VerticalAngle": [min, max]; the minimum is below 0
  uint8_t horizontalAnglePresent;  // 1 when "HorizontalAngle" held two numbers
  uint8_t verticalAnglePresent;    // 1 when "VerticalAngle" held two numbers
  uint8_t reserved[2];             // never read or written
} PtzMotionRange;

// "ptz.getCurrentProtocolCaps": what the PTZ protocol of one channel
// supports, from "params"."caps". Booleans are 0 or 1; each member beside
// or after its presence flag.
typedef struct PtzProtocolCaps {
  char name[64];  // "Name": the protocol's name
  // Supported functions.
  uint8_t pan, panPresent;                        // "Pan"
  uint8_t tile, tilePresent;                      // "Tile": tilt, as the devices spell it
  uint8_t zoom, zoomPresent;                      // "Zoom"
  uint8_t focus, focusPresent;                    // "Focus"
  uint8_t iris, irisPresent;                      // "Iris"
  uint8_t preset, presetPresent;                  // "Preset"
  uint8_t tour, tourPresent;                      // "Tour"
  uint8_t pattern, patternPresent;                // "Pattern"
  uint8_t autoPan, autoPanPresent;                // "AutoPan"
  uint8_t autoScan, autoScanPresent;              // "AutoScan"
  uint8_t aux, auxPresent;                        // "Aux": auxiliary switches
  uint8_t light, lightPresent;                    // "Light"
  uint8_t wiper, wiperPresent;                    // "Wiper"
  uint8_t menu, menuPresent;                      // "Menu": the camera's on-screen menu
  uint8_t moveAbsolutely, moveAbsolutelyPresent;  // "MoveAbsolutely"
  uint8_t removePreset, removePresetPresent;      // "RemovePreset"
  uint8_t removeTour, removeTourPresent;          // "RemoveTour"
  uint8_t autoFocus, autoFocusPresent;            // "AutoFocus"
  // Ranges, each bound with its flag below.
  int32_t panSpeedMin, panSpeedMax;    // "PanSpeedMin", "PanSpeedMax": speed steps
  int32_t tileSpeedMin, tileSpeedMax;  // "TileSpeedMin", "TileSpeedMax"
  int32_t presetMin, presetMax;        // "PresetMin", "PresetMax": preset numbers
  int32_t tourMin, tourMax;            // "TourMin", "TourMax"
  int32_t patternMin, patternMax;      // "PatternMin", "PatternMax"
  int32_t autoScanMin, autoScanMax;    // "AutoScanMin", "AutoScanMax"
  int32_t auxMin, auxMax;              // "AuxMin", "AuxMax"
  int32_t camAddrMin, camAddrMax;      // "CamAddrMin", "CamAddrMax": camera addresses
  int32_t monAddrMin, monAddrMax;      // "MonAddrMin", "MonAddrMax": monitor addresses
  int32_t type;                        // "Type": the protocol's kind, as the device numbers it
  int32_t alarmLen;                    // "AlarmLen"
  int32_t internal;                    // "Internal": the command interval, ms (so spelled)
  uint32_t highAuxMask;                // "HighAuxMask"
  uint32_t lowAuxMask;                 // "LowAuxMask"
  uint32_t lowMask;                    // "lowMask" (lower-case l, its own key; above 2^31 occurs)
  uint8_t panSpeedMinPresent, panSpeedMaxPresent, tileSpeedMinPresent, tileSpeedMaxPresent;
  uint8_t presetMinPresent, presetMaxPresent, tourMinPresent, tourMaxPresent;
  uint8_t patternMinPresent, patternMaxPresent, autoScanMinPresent, autoScanMaxPresent;
  uint8_t auxMinPresent, auxMaxPresent, camAddrMinPresent, camAddrMaxPresent;
  uint8_t monAddrMinPresent, monAddrMaxPresent, typePresent, alarmLenPresent;
  uint8_t internalPresent, highAuxMaskPresent, lowAuxMaskPresent, lowMaskPresent;
  uint8_t namePresent;                     // "Name" given
  uint8_t motionRangePresent;              // "PtzMotionRange" given
  uint8_t intelliPtzPresetSupport;         // "IntelliPtzPreset"."Support"
  uint8_t intelliPtzPresetSupportPresent;  // its flag
  uint8_t bfFunctionSupport;               // "BFFunction"."Support"
  uint8_t bfFunctionSupportPresent;        // its flag
  uint8_t unSupportDirectionsPresent;      // "UnSupportDirections" given
  uint8_t reserved;                        // never read or written
  PtzMotionRange motionRange;              // "PtzMotionRange"
  // "UnSupportDirections": direction names the head cannot move in
  // ("LEFTUP", "RIGHTDOWN", ...), as many as the answer lists up to the
  // capacity.
  char unSupportDirections[KOVA_PTZ_CAPS_DIRECTIONS][16];
  uint32_t unSupportDirectionCount;
  uint32_t extraCount;                        // entries of `extras` filled
  PtzCapsExtra extras[KOVA_PTZ_CAPS_EXTRAS];  // other booleans and integers, in key order
} PtzProtocolCaps;

// "recordManager.getCaps": recording limits, from "params"."caps".
typedef struct RecordManagerCaps {
  int32_t maxPreRecordTime;      // "MaxPreRecordTime": seconds recorded before an alarm
  int32_t packetLengthRange[2];  // "PacketLengthRange": [min, max] minutes of one file
  int32_t packetSizeRange[2];    // "PacketSizeRange": [min, max] KB of one file
  // "SupportPacketType": how files are cut, "Time", "Size"
  char supportPacketType[KOVA_RECORD_CAPS_PACKET_TYPES][16];
  uint32_t supportPacketTypeCount;
  uint8_t supportExtraRecordMode;  // "SupportExtraRecordMode"
  uint8_t supportHoliday;          // "SupportHoliday"
  uint8_t supportResumeTransmit;   // "SupportResumeTransmit"
  uint8_t maxPreRecordTimePresent;
  uint8_t packetLengthRangePresent;  // set when the range held two numbers
  uint8_t packetSizeRangePresent;    // set when the range held two numbers
  uint8_t supportPacketTypePresent;
  uint8_t supportExtraRecordModePresent;
  uint8_t supportHolidayPresent;
  uint8_t supportResumeTransmitPresent;
  uint8_t reserved[2];  // never read or written
} RecordManagerCaps;

// One entry of "SupportDynamicBitrate": a stream whose bit rate may change
// on the fly. Other members of the entry are not kept.
typedef struct DynamicBitrateStream {
  int32_t stream;  // "Stream": 0 main, 1 and up the extra streams
} DynamicBitrateStream;

// One channel of "VideoEncodeDevices".
typedef struct EncodeDeviceCaps {
  DynamicBitrateStream supportDynamicBitrate[KOVA_ENCODE_CAPS_STREAMS];  // "SupportDynamicBitrate"
  uint32_t supportDynamicBitrateCount;
  uint8_t supportIndividualResolution;  // "SupportIndividualResolution": streams sized apart
  uint8_t supportDynamicBitratePresent;
  uint8_t supportIndividualResolutionPresent;
  uint8_t reserved;  // never read or written
} EncodeDeviceCaps;

// "encode.getCaps": encoder abilities, from "params"."caps".
typedef struct EncodeCaps {
  int32_t maxExtraStream;  // "MaxExtraStream": extra streams per channel
  uint8_t maxExtraStreamPresent;
  uint8_t videoEncodeDevicesPresent;
  uint8_t reserved[2];              // never read or written
  uint32_t videoEncodeDeviceCount;  // elements looked at, cut to the capacity
  // "VideoEncodeDevices": entry i is channel i; a null element leaves its entry empty.
  EncodeDeviceCaps videoEncodeDevices[KOVA_ENCODE_CAPS_CHANNELS];
} EncodeCaps;

// One logged-in user of "userManager.getActiveUserInfoAll".
typedef struct ActiveUser {
  char clientAddress[64];  // "ClientAddress": an IP address, or a word for the local console
  char clientType[16];     // "ClientType": "GUI", "Local", "Web", ...
  char group[32];          // "Group": "admin", "user", ...
  char name[128];          // "Name": the account
  int32_t id;              // "Id": the session's number
  uint8_t clientAddressPresent;
  uint8_t clientTypePresent;
  uint8_t groupPresent;
  uint8_t namePresent;
  uint8_t idPresent;
  uint8_t reserved[3];  // never read or written
} ActiveUser;

// "userManager.getActiveUserInfoAll": who is logged in, from "params"."users".
typedef struct ActiveUserList {
  uint32_t count;                       // entries taken, at most KOVA_ACTIVE_USERS
  ActiveUser users[KOVA_ACTIVE_USERS];  // "users", in the answer's order
} ActiveUserList;

// People counted over periods: "EnteredSubtotal", "ExitedSubtotal".
typedef struct StatCounts {
  int32_t hour;                // "Hour": this hour
  int32_t today;               // "Today"
  int32_t total;               // "Total": since counting began
  int32_t totalInTimeSection;  // "TotalInTimeSection": within the rule's time sections
  uint8_t hourPresent;
  uint8_t todayPresent;
  uint8_t totalPresent;
  uint8_t totalInTimeSectionPresent;
} StatCounts;

// "videoStatServer.getSummary": a counting rule's summary, from "params"."summary".
typedef struct VideoStatSummary {
  int32_t channel;      // "Channel", from 0
  char ruleName[128];   // "RuleName"
  uint32_t utc;         // "UTC": seconds since 1970
  int32_t insideTotal;  // "InsideSubtotal"."Total": people inside now
  StatCounts entered;   // "EnteredSubtotal"
  StatCounts exited;    // "ExitedSubtotal"
  uint8_t channelPresent;
  uint8_t ruleNamePresent;
  uint8_t utcPresent;
  uint8_t insideTotalPresent;
  uint8_t enteredPresent;
  uint8_t exitedPresent;
  uint8_t reserved[2];  // never read or written
} VideoStatSummary;

// "devVideoInput.getFocusStatus": the lens of one channel, from "params"."status".
typedef struct FocusStatus {
  double focus;             // "Focus": focus position, 0 to 1
  double zoom;              // "Zoom": zoom position, 0 to 1
  int32_t focusMotorSteps;  // "FocusMotorSteps": the focus motor's whole travel
  int32_t zoomMotorSteps;   // "ZoomMotorSteps": the zoom motor's whole travel
  int32_t lenAdjustStatus;  // "LenAdjustStatus": the lens calibration's state, as numbered
  char resetResult[32];     // "ResetResult": "Success", "Failed", ...
  char status[32];          // "Status": "Normal", "AutoFocus", ...
  uint8_t focusPresent;
  uint8_t zoomPresent;
  uint8_t focusMotorStepsPresent;
  uint8_t zoomMotorStepsPresent;
  uint8_t lenAdjustStatusPresent;
  uint8_t resetResultPresent;
  uint8_t statusPresent;
  uint8_t reserved;  // never read or written
} FocusStatus;

// "ptz.factory.instance": the PTZ object a client passes in its later calls.
// The answer's "result" is the object's id; a "result" of false (or 0, or
// missing) is the device's refusal and fails the parse.
typedef struct PtzInstance {
  uint32_t objectId;  // "result"
} PtzInstance;

#ifdef __cplusplus
}
static_assert(sizeof(PtzCapsExtra) == 64, "PtzCapsExtra layout");
static_assert(sizeof(PtzMotionRange) == 20, "PtzMotionRange layout");
static_assert(offsetof(PtzProtocolCaps, panSpeedMin) == 100, "PtzProtocolCaps layout");
static_assert(offsetof(PtzProtocolCaps, motionRange) == 228, "PtzProtocolCaps layout");
static_assert(offsetof(PtzProtocolCaps, extras) == 384, "PtzProtocolCaps layout");
static_assert(sizeof(PtzProtocolCaps) == 384 + 32 * 64, "PtzProtocolCaps layout");
static_assert(sizeof(RecordManagerCaps) == 4 + 8 + 8 + 64 + 4 + 12, "RecordManagerCaps layout");
static_assert(sizeof(EncodeDeviceCaps) == 16 + 4 + 4, "EncodeDeviceCaps layout");
static_assert(sizeof(EncodeCaps) == 12 + 64 * 24, "EncodeCaps layout");
static_assert(sizeof(ActiveUser) == 64 + 16 + 32 + 128 + 4 + 8, "ActiveUser layout");
static_assert(sizeof(ActiveUserList) == 4 + 64 * 252, "ActiveUserList layout");
static_assert(sizeof(StatCounts) == 20, "StatCounts layout");
static_assert(sizeof(VideoStatSummary) == 4 + 128 + 4 + 4 + 20 + 20 + 8, "VideoStatSummary layout");
static_assert(offsetof(FocusStatus, resetResult) == 28, "FocusStatus layout");
static_assert(sizeof(FocusStatus) == 28 + 64 + 8 + 4, "FocusStatus layout");
static_assert(sizeof(PtzInstance) == 4, "PtzInstance layout");
#endif

#endif  // KOVA_RECORDS_CAPS_H_
