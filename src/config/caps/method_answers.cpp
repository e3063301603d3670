// The smaller method answers: recording and encoder caps, the logged-in
// users, a counting rule's summary, the lens state and the PTZ object id.
#include <cstddef>
#include <cstdint>

#include "common/fields/field_table.h"
#include "config/caps/method_answer.h"
#include "kova/records/caps.h"

namespace kova {

namespace {

// A member with its presence flag `member`Present.
#define KOVA_OPT(Rec, member, key, KIND) \
  KOVA_F(Rec, member, key, KIND).Flag(KOVA_AT(Rec, member##Present))

// ---- "recordManager.getCaps" ----------------------------------------------

constexpr Field kPacketType = KOVA_ITEM(char[16], kText);
constexpr Field kRecordCapsFields[] = {
    KOVA_OPT(RecordManagerCaps, maxPreRecordTime, "MaxPreRecordTime", kInt),
    KOVA_TUPLE(RecordManagerCaps, packetLengthRange, "PacketLengthRange", int32_t, 2)
        .Flag(KOVA_AT(RecordManagerCaps, packetLengthRangePresent)),
    KOVA_TUPLE(RecordManagerCaps, packetSizeRange, "PacketSizeRange", int32_t, 2)
        .Flag(KOVA_AT(RecordManagerCaps, packetSizeRangePresent)),
    KOVA_LIST(RecordManagerCaps, supportPacketType, "SupportPacketType", kPacketType)
        .Count(KOVA_AT(RecordManagerCaps, supportPacketTypeCount), CountRule::kTaken)
        .Flag(KOVA_AT(RecordManagerCaps, supportPacketTypePresent)),
    KOVA_OPT(RecordManagerCaps, supportExtraRecordMode, "SupportExtraRecordMode", kBool),
    KOVA_OPT(RecordManagerCaps, supportHoliday, "SupportHoliday", kBool),
    KOVA_OPT(RecordManagerCaps, supportResumeTransmit, "SupportResumeTransmit", kBool),
};
constexpr FieldTable kRecordCaps = KOVA_TABLE(kRecordCapsFields);
constexpr Field kRecordAnswerFields[] = {KOVA_GROUP(RecordManagerCaps, "caps", kRecordCaps)};
constexpr FieldTable kRecordAnswer = KOVA_TABLE(kRecordAnswerFields);

// ---- "encode.getCaps" -----------------------------------------------------

constexpr Field kDynamicBitrateFields[] = {
    KOVA_F(DynamicBitrateStream, stream, "Stream", kInt),
};

}  // namespace

KOVA_DESCRIBE(DynamicBitrateStream, kDynamicBitrateFields)

namespace {

constexpr Field kDynamicBitrate = KOVA_ITEM_NESTED(DynamicBitrateStream);
constexpr Field kEncodeDeviceFields[] = {
    KOVA_LIST(EncodeDeviceCaps, supportDynamicBitrate, "SupportDynamicBitrate", kDynamicBitrate)
        .Count(KOVA_AT(EncodeDeviceCaps, supportDynamicBitrateCount), CountRule::kTaken)
        .Flag(KOVA_AT(EncodeDeviceCaps, supportDynamicBitratePresent)),
    KOVA_OPT(EncodeDeviceCaps, supportIndividualResolution, "SupportIndividualResolution", kBool),
};

}  // namespace

KOVA_DESCRIBE(EncodeDeviceCaps, kEncodeDeviceFields)

namespace {

constexpr Field kEncodeDevice = KOVA_ITEM_NESTED(EncodeDeviceCaps);
constexpr Field kEncodeCapsFields[] = {
    KOVA_OPT(EncodeCaps, maxExtraStream, "MaxExtraStream", kInt),
    // Entry i is channel i: a channel left null keeps its (empty) entry.
    KOVA_LIST(EncodeCaps, videoEncodeDevices, "VideoEncodeDevices", kEncodeDevice)
        .Count(KOVA_AT(EncodeCaps, videoEncodeDeviceCount), CountRule::kAll)
        .KeepSlots()
        .Flag(KOVA_AT(EncodeCaps, videoEncodeDevicesPresent)),
};
constexpr FieldTable kEncodeCaps = KOVA_TABLE(kEncodeCapsFields);
constexpr Field kEncodeAnswerFields[] = {KOVA_GROUP(EncodeCaps, "caps", kEncodeCaps)};
constexpr FieldTable kEncodeAnswer = KOVA_TABLE(kEncodeAnswerFields);

// ---- "userManager.getActiveUserInfoAll" -----------------------------------

constexpr Field kActiveUserFields[] = {
    KOVA_OPT(ActiveUser, clientAddress, "ClientAddress", kText),
    KOVA_OPT(ActiveUser, clientType, "ClientType", kText),
    KOVA_OPT(ActiveUser, group, "Group", kText),
    KOVA_OPT(ActiveUser, id, "Id", kInt),
    KOVA_OPT(ActiveUser, name, "Name", kText),
};

}  // namespace

KOVA_DESCRIBE(ActiveUser, kActiveUserFields)

namespace {

constexpr Field kActiveUser = KOVA_ITEM_NESTED(ActiveUser);
constexpr Field kUsersAnswerFields[] = {
    KOVA_LIST(ActiveUserList, users, "users", kActiveUser)
        .Count(KOVA_AT(ActiveUserList, count), CountRule::kTaken),
};
constexpr FieldTable kUsersAnswer = KOVA_TABLE(kUsersAnswerFields);

// ---- "videoStatServer.getSummary" -----------------------------------------

constexpr Field kStatCountsFields[] = {
    KOVA_OPT(StatCounts, hour, "Hour", kInt),
    KOVA_OPT(StatCounts, today, "Today", kInt),
    KOVA_OPT(StatCounts, total, "Total", kInt),
    KOVA_OPT(StatCounts, totalInTimeSection, "TotalInTimeSection", kInt),
};

}  // namespace

KOVA_DESCRIBE(StatCounts, kStatCountsFields)

namespace {

constexpr Field kInsideFields[] = {
    KOVA_OPT(VideoStatSummary, insideTotal, "Total", kInt),
};
constexpr FieldTable kInside = KOVA_TABLE(kInsideFields);
constexpr Field kSummaryFields[] = {
    KOVA_OPT(VideoStatSummary, channel, "Channel", kInt),
    KOVA_OPT(VideoStatSummary, ruleName, "RuleName", kText),
    KOVA_OPT(VideoStatSummary, utc, "UTC", kUInt),
    KOVA_NESTED(VideoStatSummary, entered, "EnteredSubtotal")
        .Flag(KOVA_AT(VideoStatSummary, enteredPresent)),
    KOVA_NESTED(VideoStatSummary, exited, "ExitedSubtotal")
        .Flag(KOVA_AT(VideoStatSummary, exitedPresent)),
    KOVA_GROUP(VideoStatSummary, "InsideSubtotal", kInside)
        .WhenAnySet(KOVA_AT(VideoStatSummary, insideTotalPresent)),
};
constexpr FieldTable kSummary = KOVA_TABLE(kSummaryFields);
constexpr Field kSummaryAnswerFields[] = {KOVA_GROUP(VideoStatSummary, "summary", kSummary)};
constexpr FieldTable kSummaryAnswer = KOVA_TABLE(kSummaryAnswerFields);

// ---- "devVideoInput.getFocusStatus" ---------------------------------------

constexpr Field kFocusFields[] = {
    KOVA_OPT(FocusStatus, focus, "Focus", kReal),
    KOVA_OPT(FocusStatus, focusMotorSteps, "FocusMotorSteps", kInt),
    KOVA_OPT(FocusStatus, lenAdjustStatus, "LenAdjustStatus", kInt),
    KOVA_OPT(FocusStatus, resetResult, "ResetResult", kText),
    KOVA_OPT(FocusStatus, status, "Status", kText),
    KOVA_OPT(FocusStatus, zoom, "Zoom", kReal),
    KOVA_OPT(FocusStatus, zoomMotorSteps, "ZoomMotorSteps", kInt),
};
constexpr FieldTable kFocus = KOVA_TABLE(kFocusFields);
constexpr Field kFocusAnswerFields[] = {KOVA_GROUP(FocusStatus, "status", kFocus)};
constexpr FieldTable kFocusAnswer = KOVA_TABLE(kFocusAnswerFields);

// ---- "ptz.factory.instance" -----------------------------------------------

// The answer's "result" is itself the payload: the object id.
constexpr Field kPtzInstanceFields[] = {
    KOVA_F(PtzInstance, objectId, "result", kUInt),
};
constexpr FieldTable kPtzInstance = KOVA_TABLE(kPtzInstanceFields);

#undef KOVA_OPT

}  // namespace

extern const ResponseFrame kRecordManagerCapsFrame =
    MethodAnswerFrame<RecordManagerCaps, kRecordAnswer>();
extern const ResponseFrame kEncodeCapsFrame = MethodAnswerFrame<EncodeCaps, kEncodeAnswer>();
extern const ResponseFrame kActiveUsersFrame = MethodAnswerFrame<ActiveUserList, kUsersAnswer>();
extern const ResponseFrame kVideoStatSummaryFrame =
    MethodAnswerFrame<VideoStatSummary, kSummaryAnswer>();
extern const ResponseFrame kFocusStatusFrame = MethodAnswerFrame<FocusStatus, kFocusAnswer>();
// "result" must be true (a refusal is false), and it is read from the answer's root.
extern const ResponseFrame kPtzInstanceFrame =
    ResponseFrame::For<PtzInstance>(ParseTableStep<kPtzInstance>, TablePack<kPtzInstance>())
        .Table(TableAt::kRoot)
        .Returned(ReturnedLength::kSetRecord);

}  // namespace kova
