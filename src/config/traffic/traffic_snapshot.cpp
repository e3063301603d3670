// "TrafficSnapshot": a traffic enforcement camera's capture behaviour:
// pictures per violation type, the speed radar, the vehicle detector (lanes
// and induction coils), the text overlays and the linkage of a capture.
#include <cstddef>
#include <cstring>
#include <string>

#include "common/blocks/event_handler.h"
#include "common/fields/field_table.h"
#include "common/fields/fields.h"
#include "common/fields/text_forms.h"
#include "common/json/json.h"
#include "drivers/response_frame.h"
#include "kova/records/traffic.h"

// ---------------------------------------------------------------------------
// The blocks, innermost first (a block's description must exist before a
// table that nests it).

namespace kova {
namespace {

constexpr Field kSnapTimesFields[] = {
    KOVA_F(TrafficSnapTimes, normal, "Normal", kInt),
    KOVA_F(TrafficSnapTimes, runRedLight, "RunRedLight", kInt),
    KOVA_F(TrafficSnapTimes, overLine, "OverLine", kInt),
    KOVA_F(TrafficSnapTimes, overYellowLine, "OverYellowLine", kInt),
    KOVA_F(TrafficSnapTimes, retrograde, "Retrograde", kInt),
    KOVA_F(TrafficSnapTimes, underSpeed, "UnderSpeed", kInt),
    KOVA_F(TrafficSnapTimes, overSpeed, "OverSpeed", kInt),
    KOVA_F(TrafficSnapTimes, wrongRunningRoute, "WrongRunningRoute", kInt),
    KOVA_F(TrafficSnapTimes, yellowInRoute, "YellowInRoute", kInt),
    KOVA_F(TrafficSnapTimes, specialRetrograde, "SpecialRetrograde", kInt),
    KOVA_F(TrafficSnapTimes, turnLeft, "TurnLeft", kInt),
    KOVA_F(TrafficSnapTimes, turnRight, "TurnRight", kInt),
    KOVA_F(TrafficSnapTimes, crossLane, "CrossLane", kInt),
    KOVA_F(TrafficSnapTimes, uTurn, "U-Turn", kInt),
    KOVA_F(TrafficSnapTimes, parking, "Parking", kInt),
    KOVA_F(TrafficSnapTimes, waitingArea, "WaitingArea", kInt),
    KOVA_F(TrafficSnapTimes, wrongRoute, "WrongRoute", kInt),
    KOVA_F(TrafficSnapTimes, parkingSpaceParking, "ParkingSpaceParking", kInt),
    KOVA_F(TrafficSnapTimes, parkingSpaceNoParking, "ParkingSpaceNoParking", kInt),
    KOVA_F(TrafficSnapTimes, runYellowLight, "RunYellowLight", kInt),
    KOVA_F(TrafficSnapTimes, stay, "Stay", kInt),
    KOVA_F(TrafficSnapTimes, pedestrianPriority, "PedestrainPriority", kInt),
    KOVA_F(TrafficSnapTimes, vehicleInBusRoute, "VehicleInBusRoute", kInt),
    KOVA_F(TrafficSnapTimes, backing, "Backing", kInt),
    KOVA_F(TrafficSnapTimes, overStopLine, "OverStopLine", kInt),
    KOVA_F(TrafficSnapTimes, parkingOnYellowBox, "ParkingOnYellowBox", kInt),
    KOVA_F(TrafficSnapTimes, restrictedPlate, "RestrictedPlate", kInt),
    KOVA_F(TrafficSnapTimes, noPassing, "NoPassing", kInt),
    KOVA_F(TrafficSnapTimes, withoutSafeBelt, "WithoutSafeBelt", kInt),
    KOVA_F(TrafficSnapTimes, driverSmoking, "DriverSmoking", kInt),
    KOVA_F(TrafficSnapTimes, driverCalling, "DriverCalling", kInt),
    KOVA_F(TrafficSnapTimes, passNotInOrder, "PassNotInOrder", kInt),
    KOVA_F(TrafficSnapTimes, pedestrianRunRedLight, "PedestrianRunRedLight", kInt),
};

constexpr Field kRadarFields[] = {
    KOVA_F(TrafficRadar, angle, "Angle", kInt),
    KOVA_F(TrafficRadar, antiJammingValue, "AntiJammingValue", kInt),
    KOVA_F(TrafficRadar, comeInValue, "ComeInValue", kInt),
    KOVA_F(TrafficRadar, comeOutValue, "ComeOutValue", kInt),
    KOVA_F(TrafficRadar, delayTime, "DelayTime", kInt),
    KOVA_F(TrafficRadar, detectBreaking, "DetectBreaking", kUInt),
    KOVA_F(TrafficRadar, detectMode, "DetectMode", kInt),
    KOVA_F(TrafficRadar, installMode, "InstallMode", kInt),
    KOVA_F(TrafficRadar, level, "Level", kInt),
    KOVA_F(TrafficRadar, multiTargetFilter, "MultiTargetFilter", kInt),
    KOVA_F(TrafficRadar, wentEndValue, "WentEndValue", kInt),
    KOVA_F(TrafficRadar, wentInValue, "WentInValue", kInt),
    KOVA_F(TrafficRadar, wentOutValue, "WentOutValue", kInt),
};

constexpr Field kCoilFields[] = {
    KOVA_F(TrafficCoil, delayFlashId, "DelayFlashID", kInt),
    KOVA_F(TrafficCoil, flashSerialNum, "FlashSerialNum", kInt),
    KOVA_F(TrafficCoil, redDirection, "RedDirection", kInt),
    KOVA_F(TrafficCoil, flashSerialNum2, "FlashSerialNum2", kInt),
    KOVA_F(TrafficCoil, flashSerialNum3, "FlashSerialNum3", kInt),
};

constexpr Field kBlackRegionFields[] = {
    KOVA_F(TrafficBlackRegion, height, "Height", kInt),
    KOVA_F(TrafficBlackRegion, top, "TOP", kBool),
    KOVA_F(TrafficBlackRegion, bottom, "BOTTOM", kBool),
};

constexpr Field kOverlayPositionFields[] = {
    KOVA_TUPLE(TrafficOverlayPosition, whole, "Whole", int32_t, 2),
    KOVA_F(TrafficOverlayPosition, positionAsBlackRegion, "PositionAsBlackRegion", kBool),
};

constexpr Field kNewLineFields[] = {
    KOVA_F(TrafficNewLine, everyItem, "Every Item", kInt),
    KOVA_F(TrafficNewLine, last, "Last", kBool),
    KOVA_F(TrafficNewLine, all, "All", kBool),
};

constexpr Field kOverlayItemFields[] = {
    KOVA_F(TrafficOverlayItem, nameType, "NameType", kInt),
    KOVA_F(TrafficOverlayItem, separatorCount, "SeperaterCount", kInt),
    KOVA_F(TrafficOverlayItem, name, "Name", kText),
    KOVA_F(TrafficOverlayItem, prefix, "Prefix", kText),
    KOVA_F(TrafficOverlayItem, postfix, "Postfix", kText),
    KOVA_F(TrafficOverlayItem, separator, "Seperater", kText),
    KOVA_F(TrafficOverlayItem, order, "OSDOrder", kInt),
};

}  // namespace

KOVA_DESCRIBE(TrafficSnapTimes, kSnapTimesFields)
KOVA_DESCRIBE(TrafficRadar, kRadarFields)
KOVA_DESCRIBE(TrafficCoil, kCoilFields)
KOVA_DESCRIBE(TrafficBlackRegion, kBlackRegionFields)
KOVA_DESCRIBE(TrafficOverlayPosition, kOverlayPositionFields)
KOVA_DESCRIBE(TrafficNewLine, kNewLineFields)
KOVA_DESCRIBE(TrafficOverlayItem, kOverlayItemFields)
namespace {

constexpr Field kCoilEntry = KOVA_ITEM_NESTED(TrafficCoil);
constexpr Field kIntEntry = KOVA_ITEM(int32_t, kInt);
constexpr Field kDirectionText = KOVA_ITEM(char[32], kText);
constexpr Field kOverlayItemEntry = KOVA_ITEM_NESTED(TrafficOverlayItem);

constexpr Field kLaneFields[] = {
    KOVA_F(TrafficLane, triggerMode, "TriggerMode", kInt),
    KOVA_TUPLE(TrafficLane, yellowSpeedLimit, "YellowSpeedLimit", int32_t, 2),
    KOVA_F(TrafficLane, direction, "Direction", kInt),
    KOVA_LIST(TrafficLane, drivingDirection1, "DrivingDirection1", kDirectionText),
    KOVA_LIST(TrafficLane, coilsDistance, "CoilsDistance", kIntEntry)
        .Count(KOVA_AT(TrafficLane, coilsDistanceCount), CountRule::kTaken),
    KOVA_TUPLE(TrafficLane, smallCarSpeedLimit, "SmallCarSpeedLimit", int32_t, 2),
    KOVA_TUPLE(TrafficLane, bigCarSpeedLimit, "BigCarSpeedLimit", int32_t, 2),
    KOVA_F(TrafficLane, enable, "Enable", kBool),
    KOVA_F(TrafficLane, detectBreaking, "DetectBreaking", kUInt),
    KOVA_F(TrafficLane, maskRetrograde, "MaskRetrograde", kBool),
    KOVA_LIST(TrafficLane, coilConfig, "CoilConfig", kCoilEntry)
        .Count(KOVA_AT(TrafficLane, coilConfigCount), CountRule::kTaken),
    KOVA_F(TrafficLane, roadType, "RoadType", kInt),
    KOVA_F(TrafficLane, snapMode, "SnapMode", kInt),
    KOVA_F(TrafficLane, delayMode, "DelayMode", kInt),
    KOVA_F(TrafficLane, delayTime, "DelayTime", kInt),
    KOVA_F(TrafficLane, errorRange, "ErrorRange", kInt),
    KOVA_F(TrafficLane, speedCorrection, "SpeedCorrection", kReal),
    KOVA_F(TrafficLane, obverse, "Obverse", kBool),
    KOVA_F(TrafficLane, reverse, "Reverse", kBool),
    KOVA_F(TrafficLane, roadwayNumber, "RoadwayNumber", kInt),
    KOVA_F(TrafficLane, customParkNo, "CustomParkNo", kText),
    KOVA_LIST(TrafficLane, drivingDirection, "DrivingDirection", kDirectionText),
    KOVA_F(TrafficLane, roadwayDirection, "RoadwayDirection", kInt),
    KOVA_F(TrafficLane, redLightCardNum, "RedLightCardNum", kInt),
    KOVA_F(TrafficLane, coilsNumber, "CoilsNumber", kInt),
    KOVA_F(TrafficLane, operationType, "OperationType", kInt),
    KOVA_LIST(TrafficLane, coilsWidth, "CoilsWidth", kIntEntry)
        .Count(KOVA_AT(TrafficLane, coilsWidthCount), CountRule::kTaken),
    KOVA_F(TrafficLane, speedLimitForSize, "SpeedLimitForSize", kBool),
    KOVA_F(TrafficLane, overPercentage, "OverPercentage", kInt),
    KOVA_F(TrafficLane, carScheme, "CarScheme", kInt),
    KOVA_F(TrafficLane, sigScheme, "SigScheme", kInt),
    KOVA_F(TrafficLane, overSpeedMargin, "OverSpeedMargin", kInt),
    KOVA_F(TrafficLane, bigCarOverSpeedMargin, "BigCarOverSpeedMargin", kInt),
    KOVA_F(TrafficLane, underSpeedMargin, "UnderSpeedMargin", kInt),
    KOVA_F(TrafficLane, bigCarUnderSpeedMargin, "BigCarUnderSpeedMargin", kInt),
};

constexpr Field kOverlayLayoutFields[] = {
    KOVA_NESTED(TrafficOverlayLayout, newLine, "NewLine"),
    KOVA_F(TrafficOverlayLayout, loneVehicle, "LoneVehicle", kBool),
    KOVA_TUPLE(TrafficOverlayLayout, position, "Position", int32_t, 2),
    KOVA_F(TrafficOverlayLayout, mask, "Mask", kUInt),
    KOVA_F(TrafficOverlayLayout, customizeSort, "CustomizeSort", kBool),
};

constexpr Field kOverlayItemsFields[] = {
    KOVA_LIST(TrafficOverlayItems, elements, "Element", kOverlayItemEntry)
        .Count(KOVA_AT(TrafficOverlayItems, elementCount), CountRule::kTaken),
};

}  // namespace

KOVA_DESCRIBE(TrafficLane, kLaneFields)
KOVA_DESCRIBE(TrafficOverlayLayout, kOverlayLayoutFields)
KOVA_DESCRIBE(TrafficOverlayItems, kOverlayItemsFields)
namespace {

constexpr Field kOverlayFields[] = {
    KOVA_NESTED(TrafficOverlay, blackRegion, "OSDBlackRegion"),
    KOVA_NESTED(TrafficOverlay, position, "OSDPosition"),
    KOVA_NESTED(TrafficOverlay, custom, "OSDCustom"),
    KOVA_NESTED(TrafficOverlay, general, "General"),
    KOVA_F(TrafficOverlay, attrScheme, "OSDAttrScheme", kInt),
    KOVA_NESTED(TrafficOverlay, wholeAttr, "OSDWholeAttr"),
    KOVA_F(TrafficOverlay, contentScheme, "OSDContentScheme", kInt),
    KOVA_F(TrafficOverlay, redLightTimeDisplay, "RedLightTimeDisplay", kBool),
    KOVA_NESTED(TrafficOverlay, customizeSort, "OSDCustomizeSort"),
};

}  // namespace
KOVA_DESCRIBE(TrafficOverlay, kOverlayFields)
}  // namespace kova

// ---------------------------------------------------------------------------
// The record.

namespace kova {
namespace {

using R = TrafficSnapshotConfig;
constexpr Field kLaneEntry = KOVA_ITEM_NESTED(TrafficLane);

// The end of the longest prefix of `text` of at most `limit` bytes that does
// not split a UTF-8 character.
size_t Utf8Prefix(const std::string& text, size_t limit) {
  if (text.size() <= limit) return text.size();
  size_t n = limit;
  while (n > 0 && (static_cast<unsigned char>(text[n]) & 0xC0) == 0x80) --n;
  return n;
}

// "DeviceAddress" is cut to its first 384 bytes before conversion, whatever
// the field could hold (intended: the device's own limit on the address).
void ParseDeviceAddress(const Json::Value& table, unsigned char* record, const Field& f) {
  const Json::Value& v = Member(table, f.key);
  if (!v.isString()) return;
  std::string text = ToText(v);
  text.resize(Utf8Prefix(text, KOVA_TRAFFIC_ADDRESS_TAKEN));
  GetJsonString(Json::Value(text), reinterpret_cast<char*>(record + f.offset), f.size, 1);
}

void PackDeviceAddress(const unsigned char* record, Json::Value& table, const Field& f) {
  SetJsonStringBounded(SetKeptMember(table, f.key),
                       reinterpret_cast<const char*>(record + f.offset), f.size, 1);
}

// "ValidUntilTime": the date-time text into its packed form; text that does
// not read leaves 0.
void ParseValidUntil(const Json::Value& table, unsigned char* record, const Field& f) {
  const std::string text = ToText(Member(table, f.key));
  uint32_t packed = 0;
  if (ParseDateTimePacked(text.c_str(), static_cast<int32_t>(text.size()), &packed) == 0) {
    StoreInt(record + f.offset, f.size, packed);
  }
}

void PackValidUntil(const unsigned char* record, Json::Value& table, const Field& f) {
  char text[20];
  SetKeptMember(table, f.key) =
      FormatDateTimePacked(static_cast<uint32_t>(LoadInt(record + f.offset, f.size, false)), text);
}

// Every key, in the order the device's keys are read. The first three are
// the sub-blocks that FillSnapshot reads apart.
constexpr Field kSnapshotFields[] = {
    KOVA_NESTED(R, breakingSnapTimes, "BreakingSnapTimes")
        .Flag(KOVA_AT(R, breakingSnapTimesPresent)),
    KOVA_NESTED(R, radar, "Radar").Flag(KOVA_AT(R, radarPresent)),
    KOVA_LIST(R, detector.lanes, "Detector", kLaneEntry)
        .Count(KOVA_AT(R, detector.laneCount), CountRule::kTaken)
        .Flag(KOVA_AT(R, detectorPresent)),
    KOVA_CUSTOM(R, deviceAddress, "DeviceAddress", ParseDeviceAddress, PackDeviceAddress),
    KOVA_F(R, videoTitleMask, "VideoTitleMask", kInt),
    KOVA_F(R, redLightMargin, "RedLightMargin", kInt),
    KOVA_F(R, longVehicleLengthLevel, "LongVehicleLengthLevel", kReal),
    // [min, max] pairs read element by element: [3.5] fills only the minimum (intended).
    KOVA_TUPLE_OF(R, largeVehicleLengthLevel, "LargeVehicleLengthLevel", float, kReal, 2)
        .MinItems(0),
    KOVA_TUPLE_OF(R, mediumVehicleLengthLevel, "MediumVehicleLengthLevel", float, kReal, 2)
        .MinItems(0),
    KOVA_TUPLE_OF(R, smallVehicleLengthLevel, "SmallVehicleLengthLevel", float, kReal, 2)
        .MinItems(0),
    KOVA_F(R, motoVehicleLengthLevel, "MotoVehicleLengthLevel", kReal),
    KOVA_F(R, carScheme, "CarScheme", kInt),
    KOVA_F(R, sigScheme, "SigScheme", kInt),
    KOVA_F(R, carType, "CarType", kInt),
    KOVA_F(R, maxSpeed, "MaxSpeed", kInt),
    KOVA_F(R, frameMode, "FrameMode", kInt),
    // Element by element as well.
    KOVA_TUPLE(R, adaptiveSpeed, "AdaptiveSpeed", int32_t, 2).MinItems(0),
    KOVA_F(R, videoTitleMask1, "VideoTitleMask1", kInt),
    KOVA_F(R, mergeVideoTitleMask, "MergeVideoTitleMask", kInt),
    KOVA_F(R, mergeVideoTitleMask1, "MergeVideoTitleMask1", kInt),
    KOVA_F(R, triggerSource, "TriggerSource", kInt),
    KOVA_F(R, snapMode, "SnapMode", kInt),
    KOVA_F(R, workMode, "WorkMode", kInt),
    KOVA_F(R, carThreshold, "CarThreShold", kInt),
    KOVA_F(R, snapType, "SnapType", kInt),
    // Any array, elements 0..2 as far as it has them; anything else is not read.
    KOVA_TUPLE(R, customFrameInterval, "CustomFrameInterval", int32_t, 3).MinItems(0),
    KOVA_F(R, keepAlive, "KeepAlive", kInt),
    KOVA_CUSTOM(R, validUntilTime, "ValidUntilTime", ParseValidUntil, PackValidUntil).Sentinel(0),
    KOVA_NESTED(R, osd, "OSD").Flag(KOVA_AT(R, osdPresent)),
    KOVA_NESTED(R, mergeOsd, "MergeOSD").Flag(KOVA_AT(R, mergeOsdPresent)),
    KOVA_F(R, roadwayCode, "RoadwayCode", kText),
    // The shared linkage block, read only when given.
    KOVA_LINKAGE(R, eventHandler).Flag(KOVA_AT(R, eventHandlerPresent)),
};
constexpr size_t kSubBlocks = 3;
constexpr size_t kFieldCount = sizeof kSnapshotFields / sizeof kSnapshotFields[0];
constexpr FieldTable kSnapshotTable = KOVA_TABLE(kSnapshotFields);

// One sub-block reader. A missing or null block is left zero and counts as
// read; a block that is neither null nor its JSON type (an object, or an
// array for a list) fails.
bool ReadSubBlock(const Json::Value& table, unsigned char* record, const Field& block) {
  const Json::Value& v = Member(table, block.key);
  if (v.isNull()) return true;
  if (block.shape == FieldShape::kList ? !v.isArray() : !v.isObject()) return false;
  ParseFields(table, record, &block, 1);
  return true;
}

bool FillSnapshot(const Json::Value& table, const StepContext& /*ctx*/, unsigned char* record) {
  // The sub-blocks come first and in order; the first that fails ends the
  // filling and leaves every later key zero, yet the call succeeds (intended).
  for (size_t i = 0; i < kSubBlocks; ++i) {
    if (!ReadSubBlock(table, record, kSnapshotFields[i])) return true;
  }
  ParseFields(table, record, kSnapshotFields + kSubBlocks, kFieldCount - kSubBlocks);
  return true;
}

bool WriteSnapshot(const unsigned char* record, Json::Value& out) {
  out = Json::Value(Json::objectValue);
  PackFields(record, out, kSnapshotFields);
  return true;
}

bool WriteSnapshotText(const unsigned char* record, TextSink* out) {
  WriteMembersText(record, kSnapshotTable, out);
  return true;
}

// All of `outLen` is cleared, not only the record; "result" is not looked
// at; a null table fails; `retLen` gets the record's size whatever the
// filling met (all intended).

}  // namespace

extern const ResponseFrame kTrafficSnapshotFrame =
    ResponseFrame::For<R>(FillSnapshot, Packing(WriteSnapshot, WriteSnapshotText))
        .Clear(Clearing::kWholeBuffer)
        .IgnoreResult()
        .OnNullTable(NullTable::kFail)
        .Returned(ReturnedLength::kSetRecord)
        .Describe(WholeTable<R, kSnapshotTable>::kField);

}  // namespace kova
