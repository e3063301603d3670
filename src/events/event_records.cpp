#include "events/event_records.h"

#include <cstddef>
#include <cstdlib>

#include "common/base/allocation.h"
#include "config/analyse/rule_types.h"
#include "kova/records/events.h"

namespace kova {

namespace {

// ---- Shared pieces ---------------------------------------------------------

constexpr Field kPointItem = KOVA_ITEM_TUPLE(EventPoint, int32_t, kInt, 2);

// A line or region: the point rule of the analysis rules (an entry that is
// not [x, y] keeps its slot, the count counts the points taken).
constexpr Field Polyline(const char* key, size_t offset) {
  return MakeList<decltype(EventPolyline::points)>(key, offset + offsetof(EventPolyline, points),
                                                   &kPointItem)
      .Count(Slot{static_cast<uint32_t>(offset + offsetof(EventPolyline, pointCount)),
                  sizeof(uint32_t)},
             CountRule::kTaken)
      .KeepSlots();
}
#define KOVA_POLYLINE(Rec, member, key) Polyline(key, offsetof(Rec, member))

// "Track": the points taken, without holes.
#define KOVA_TRACK(Rec)                                                      \
  KOVA_ALLOCATED_LIST(Rec, track, "Track", kPointItem, KOVA_EVENT_MAX_TRACK) \
      .Count(KOVA_AT(Rec, trackCount), CountRule::kTaken)

// ---- Blocks, innermost first: a table that nests a block needs its
// description (KOVA_DESCRIBE) before it.

constexpr Field kImageFields[] = {
    KOVA_F(EventImage, offset, "Offset", kUInt),
    KOVA_F(EventImage, length, "Length", kUInt),
    KOVA_F(EventImage, width, "Width", kUInt),
    KOVA_F(EventImage, height, "Height", kUInt),
};

constexpr const char* kSexNames[] = {"Man", "Woman"};
constexpr EnumNames kSexes = EnumNames::Of(kSexNames).FirstValue(1);

constexpr Field kFaceAttributeFields[] = {
    KOVA_ENUM(FaceAttributes, sex, "Sex", kSexes),
    KOVA_F(FaceAttributes, age, "Age", kInt),
    KOVA_F(FaceAttributes, glasses, "Glass", kText),
    KOVA_F(FaceAttributes, mask, "Mask", kText),
    KOVA_F(FaceAttributes, beard, "Beard", kText),
    KOVA_F(FaceAttributes, emotion, "Emotion", kText),
};

constexpr Field kFacePersonFields[] = {
    KOVA_F(FacePerson, uid, "UID", kText),
    KOVA_F(FacePerson, name, "Name", kText),
    KOVA_ENUM(FacePerson, sex, "Sex", kSexes),
    KOVA_F(FacePerson, birthday, "Birthday", kText),
    KOVA_F(FacePerson, certificateType, "CertificateType", kText),
    KOVA_F(FacePerson, id, "ID", kText),
    KOVA_F(FacePerson, groupId, "GroupID", kText),
    KOVA_F(FacePerson, groupName, "GroupName", kText),
};

constexpr Field kTrafficCarFields[] = {
    KOVA_F(TrafficCarInfo, plateNumber, "PlateNumber", kText),
    KOVA_F(TrafficCarInfo, plateType, "PlateType", kText),
    KOVA_F(TrafficCarInfo, plateColor, "PlateColor", kText),
    KOVA_F(TrafficCarInfo, vehicleColor, "VehicleColor", kText),
    KOVA_F(TrafficCarInfo, speed, "Speed", kInt),
    KOVA_F(TrafficCarInfo, lane, "Lane", kInt),
    KOVA_F(TrafficCarInfo, lowerSpeedLimit, "LowerSpeedLimit", kInt),
    KOVA_F(TrafficCarInfo, upperSpeedLimit, "UpperSpeedLimit", kInt),
    KOVA_F(TrafficCarInfo, overSpeedMargin, "OverSpeedMargin", kInt),
    KOVA_F(TrafficCarInfo, underSpeedMargin, "UnderSpeedMargin", kInt),
    KOVA_F(TrafficCarInfo, vehicleSize, "VehicleSize", kInt),
    KOVA_F(TrafficCarInfo, event, "Event", kText),
    KOVA_F(TrafficCarInfo, violationCode, "ViolationCode", kText),
    KOVA_F(TrafficCarInfo, violationDesc, "ViolationDesc", kText),
    KOVA_F(TrafficCarInfo, deviceAddress, "DeviceAddress", kText),
};

constexpr const char* kSeatTypeNames[] = {"Main", "Slave"};
constexpr EnumNames kSeatTypes = EnumNames::Of(kSeatTypeNames).FirstValue(1);
constexpr const char* kSafeBeltNames[] = {"WithSafeBelt", "WithoutSafeBelt"};
constexpr EnumNames kSafeBelts = EnumNames::Of(kSafeBeltNames).FirstValue(1);

constexpr Field kDriverSeatFields[] = {
    KOVA_ENUM(TrafficDriverSeat, type, "Type", kSeatTypes),
    KOVA_ENUM(TrafficDriverSeat, safeBelt, "SafeBelt", kSafeBelts),
    KOVA_F(TrafficDriverSeat, smoking, "Smoking", kBool),
    KOVA_F(TrafficDriverSeat, calling, "Calling", kBool),
    KOVA_F(TrafficDriverSeat, sunShade, "SunShade", kBool),
};

}  // namespace

KOVA_DESCRIBE(EventImage, kImageFields)
KOVA_DESCRIBE(FaceAttributes, kFaceAttributeFields)
KOVA_DESCRIBE(FacePerson, kFacePersonFields)
KOVA_DESCRIBE(TrafficCarInfo, kTrafficCarFields)
KOVA_DESCRIBE(TrafficDriverSeat, kDriverSeatFields)
namespace {

constexpr const char* kObjectActionNames[] = {"Appear",    "Move",  "Stay",  "Remove",
                                              "Disappear", "Split", "Merge", "Rename"};
constexpr EnumNames kObjectActions = EnumNames::Of(kObjectActionNames).FirstValue(1);

constexpr Field kObjectFields[] = {
    KOVA_F(EventObject, objectId, "ObjectID", kInt),
    KOVA_F(EventObject, relativeId, "RelativeID", kInt),
    KOVA_F(EventObject, objectType, "ObjectType", kText),
    KOVA_F(EventObject, confidence, "Confidence", kInt),
    KOVA_ENUM(EventObject, action, "Action", kObjectActions),
    KOVA_TUPLE(EventObject, boundingBox, "BoundingBox", int32_t, 4),
    KOVA_TUPLE(EventObject, center, "Center", int32_t, 2),
    KOVA_F(EventObject, speed, "Speed", kInt),
    KOVA_F(EventObject, frameSequence, "FrameSequence", kUInt),
    KOVA_F(EventObject, age, "Age", kInt),
    KOVA_TUPLE(EventObject, mainColor, "MainColor", uint8_t, 4),
    KOVA_F(EventObject, text, "Text", kText),
    KOVA_F(EventObject, category, "Category", kText),
    KOVA_NESTED(EventObject, image, "Image"),
};

constexpr Field kFaceCandidateFields[] = {
    KOVA_NESTED(FaceCandidate, person, "Person"),
    KOVA_F(FaceCandidate, similarity, "Similarity", kInt),
};

constexpr Field kSeatItem = KOVA_ITEM_NESTED(TrafficDriverSeat);

constexpr Field kCommInfoFields[] = {
    KOVA_ALLOCATED_LIST(TrafficCommInfo, seats, "Seat", kSeatItem, KOVA_EVENT_MAX_SEATS)
        .Count(KOVA_AT(TrafficCommInfo, seatCount), CountRule::kTaken)
        .NoMemoryReport("New pstDriversInfo Failed"),
};

}  // namespace

KOVA_DESCRIBE(EventObject, kObjectFields)
KOVA_DESCRIBE(FaceCandidate, kFaceCandidateFields)
KOVA_DESCRIBE(TrafficCommInfo, kCommInfoFields)
namespace {

constexpr Field kObjectItem = KOVA_ITEM_NESTED(EventObject);

// "Objects", "Faces": entries that are objects, without holes.
#define KOVA_OBJECTS(Rec, member, key, countMember)                          \
  KOVA_ALLOCATED_LIST(Rec, member, key, kObjectItem, KOVA_EVENT_MAX_OBJECTS) \
      .Count(KOVA_AT(Rec, countMember), CountRule::kTaken)                   \
      .NoMemoryReport("New pstObjectInfo Failed")

constexpr Field kCandidateItem = KOVA_ITEM_NESTED(FaceCandidate);

// ---- The common leading part -------------------------------------------------

constexpr const char* kEventActionNames[] = {"Pulse", "Start", "Stop"};
constexpr EnumNames kEventActions = EnumNames::Of(kEventActionNames);

// Members of the event itself, beside "Code" and "Data".
constexpr Field kEventHeadFields[] = {
    KOVA_ENUM(EventCommon, action, "Action", kEventActions),
    KOVA_F(EventCommon, channel, "Index", kInt),
};

// Members of "Data" every event may carry.
constexpr Field kCommonFields[] = {
    KOVA_F(EventCommon, name, "Name", kText),
    KOVA_F(EventCommon, pts, "PTS", kReal),
    KOVA_F(EventCommon, eventId, "EventID", kUInt),
    KOVA_F(EventCommon, utc, "UTC", kUInt),
    KOVA_F(EventCommon, utcMs, "UTCMS", kUInt),
    KOVA_F(EventCommon, initialUtc, "InitialUTC", kUInt),
    KOVA_F(EventCommon, sourceIndex, "SourceIndex", kInt),
    KOVA_F(EventCommon, sourceDevice, "SourceDevice", kText),
    KOVA_F(EventCommon, count, "Count", kInt),
    KOVA_F(EventCommon, groupId, "GroupID", kUInt),
    KOVA_F(EventCommon, countInGroup, "CountInGroup", kInt),
    KOVA_F(EventCommon, indexInGroup, "IndexInGroup", kInt),
    // Devices spell the rule id both ways; either fills the one member.
    KOVA_F(EventCommon, ruleId, "RuleId", kUInt),
    KOVA_F(EventCommon, ruleId, "RuleID", kUInt),
    KOVA_NESTED(EventCommon, object, "Object").Flag(KOVA_AT(EventCommon, objectPresent)),
    KOVA_OBJECTS(EventCommon, objects, "Objects", objectCount),
};

}  // namespace

KOVA_DESCRIBE(EventCommon, kCommonFields)
namespace {

// ---- Line and region crossing --------------------------------------------------

constexpr const char* kCrossDirectionNames[] = {"LeftToRight", "RightToLeft", "Enter", "Leave"};
constexpr EnumNames kCrossDirections = EnumNames::Of(kCrossDirectionNames).FirstValue(1);
constexpr const char* kRegionActionNames[] = {"Appear", "Disappear", "Inside", "Cross"};
constexpr EnumNames kRegionActions = EnumNames::Of(kRegionActionNames).FirstValue(1);

constexpr Field kCrossingFields[] = {
    KOVA_INLINE(CrossingEventInfo, common),
    KOVA_ENUM(CrossingEventInfo, direction, "Direction", kCrossDirections),
    KOVA_ENUM(CrossingEventInfo, regionAction, "Action", kRegionActions),
    KOVA_POLYLINE(CrossingEventInfo, detectLine, "DetectLine"),
    KOVA_POLYLINE(CrossingEventInfo, detectRegion, "DetectRegion"),
    KOVA_TRACK(CrossingEventInfo),
};

// ---- Presence and abandonment -----------------------------------------------------

constexpr Field kPresenceFields[] = {
    KOVA_INLINE(PresenceEventInfo, common),
    KOVA_POLYLINE(PresenceEventInfo, detectRegion, "DetectRegion"),
    KOVA_TRACK(PresenceEventInfo),
    KOVA_F(PresenceEventInfo, stayTime, "StayTime", kUInt),
};

// ---- Movement and crowds ------------------------------------------------------------

constexpr Field kCrowdFields[] = {
    KOVA_INLINE(CrowdEventInfo, common),
    KOVA_POLYLINE(CrowdEventInfo, detectRegion, "DetectRegion"),
    KOVA_TRACK(CrowdEventInfo),
    KOVA_F(CrowdEventInfo, speed, "Speed", kInt),
    KOVA_F(CrowdEventInfo, number, "Number", kInt),
    KOVA_F(CrowdEventInfo, upperLimit, "UpperLimit", kInt),
    KOVA_F(CrowdEventInfo, enteredNumber, "EnteredNumber", kInt),
    KOVA_F(CrowdEventInfo, exitedNumber, "ExitedNumber", kInt),
    KOVA_F(CrowdEventInfo, numberLeft, "NumberLeft", kInt),
    KOVA_F(CrowdEventInfo, numberRight, "NumberRight", kInt),
    KOVA_F(CrowdEventInfo, statType, "Type", kText),
};

// ---- Faces --------------------------------------------------------------------------------

constexpr Field kFaceFields[] = {
    KOVA_INLINE(FaceEventInfo, common),
    KOVA_NESTED(FaceEventInfo, face, "Face"),
    KOVA_OBJECTS(FaceEventInfo, faces, "Faces", faceCount),
    KOVA_ALLOCATED_LIST(FaceEventInfo, candidates, "Candidates", kCandidateItem,
                        KOVA_EVENT_MAX_CANDIDATES)
        .Count(KOVA_AT(FaceEventInfo, candidateCount), CountRule::kTaken)
        .NoMemoryReport("New pstObjectInfo Failed"),
    KOVA_POLYLINE(FaceEventInfo, detectRegion, "DetectRegion"),
};

// ---- Traffic --------------------------------------------------------------------------------

constexpr Field kTrafficFields[] = {
    KOVA_INLINE(TrafficEventInfo, common),
    KOVA_NESTED(TrafficEventInfo, vehicle, "Vehicle")
        .Flag(KOVA_AT(TrafficEventInfo, vehiclePresent)),
    KOVA_F(TrafficEventInfo, lane, "Lane", kInt),
    KOVA_F(TrafficEventInfo, speed, "Speed", kInt),
    KOVA_F(TrafficEventInfo, sequence, "Sequence", kUInt),
    KOVA_TUPLE(TrafficEventInfo, speedLimit, "SpeedLimit", int32_t, 2),
    KOVA_F(TrafficEventInfo, redLightUtc, "RedLightUTC", kReal),
    KOVA_F(TrafficEventInfo, jamLength, "JamLength", kInt),
    KOVA_F(TrafficEventInfo, parkingTime, "ParkingTime", kUInt),
    KOVA_NESTED(TrafficEventInfo, trafficCar, "TrafficCar"),
    KOVA_NESTED(TrafficEventInfo, commInfo, "CommInfo"),
    KOVA_POLYLINE(TrafficEventInfo, detectRegion, "DetectRegion"),
};

// ---- Audio and video abnormality ----------------------------------------------------

constexpr Field kAbnormalityFields[] = {
    KOVA_INLINE(AbnormalityEventInfo, common),
    KOVA_F(AbnormalityEventInfo, type, "Type", kText),
    KOVA_F(AbnormalityEventInfo, value, "Value", kInt),
    KOVA_F(AbnormalityEventInfo, decibel, "Decibel", kInt),
    KOVA_F(AbnormalityEventInfo, frequency, "Frequency", kInt),
};

// ---- The rest -------------------------------------------------------------------------------

constexpr Field kGeneralFields[] = {
    KOVA_INLINE(GeneralEventInfo, common),
    KOVA_POLYLINE(GeneralEventInfo, detectRegion, "DetectRegion"),
};

// ---- Codes to records -------------------------------------------------------------------

template <typename Record, size_t N>
constexpr EventRecordKind Kind(const Field (&fields)[N]) {
  return EventRecordKind{sizeof(Record), FieldTable{fields, N}};
}

// By EventFamily: the family of a code is in its row of the rule types.
constexpr EventRecordKind kFamilyKinds[] = {
    Kind<GeneralEventInfo>(kGeneralFields),
    Kind<CrossingEventInfo>(kCrossingFields),
    Kind<PresenceEventInfo>(kPresenceFields),
    Kind<CrowdEventInfo>(kCrowdFields),
    Kind<FaceEventInfo>(kFaceFields),
    Kind<TrafficEventInfo>(kTrafficFields),
    Kind<AbnormalityEventInfo>(kAbnormalityFields),
};
static_assert(sizeof kFamilyKinds / sizeof kFamilyKinds[0] == kAbnormalityEvents + 1,
              "one record per event family");

// An event whose "Code" names no rule type.
constexpr EventRecordKind kCommonOnlyKind = Kind<EventCommon>(kCommonFields);

}  // namespace

const FieldTable kEventObjectTable = Description<EventObject>::table;

const EventRecordKind& EventRecordOf(uint32_t code) {
  return code == 0 ? kCommonOnlyKind : kFamilyKinds[RuleEventFamily(code)];
}

void* BuildEventRecord(uint32_t code, uint32_t dictionaryCode, const Json::Value& event,
                       const Json::Value& data) {
  const EventRecordKind& kind = EventRecordOf(code);
  void* record = AllocateZeroed(kind.size);
  if (record == nullptr) return nullptr;
  try {
    ParseFields(event, record, kEventHeadFields);
    // The dictionary code comes from the event's "Code", looked up by the
    // event stream, not from a member of "Data".
    static_cast<EventCommon*>(record)->dictionaryCode = dictionaryCode;
    ParseFields(data, record, kind.table);
  } catch (...) {  // out of memory half-way: nothing of the record is kept
    ReleaseEventRecord(code, record);
    return nullptr;
  }
  return record;
}

void ReleaseEventRecord(uint32_t code, void* record) {
  if (record == nullptr) return;
  ReleaseFields(record, EventRecordOf(code).table);
  ReleaseBlock(record);
}

}  // namespace kova
