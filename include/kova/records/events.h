// Records handed to the callback of KOVA_ParseAnalyzerEventData and
// KOVA_ParseDataByCallback (see kova/kova.h for which record comes with
// which code).
//
// Rules common to every record here:
// - The library builds the record, hands it to the callback and frees it
//   when the callback returns: read it during the call, copy what you keep.
//   Lists are a pointer and a count, valid during the call only; the
//   pointer is null when the count is 0.
// - A member the device leaves out (or sends as null) reads as 0, "" or an
//   empty list. Enumerations read from text are 0 when the text is absent
//   or names nothing listed; the names are compared without regard to ASCII
//   letter case.
// - Text fields hold NUL-terminated text in the local code page (see
//   kova/kova.h), cut at the field's capacity less one.
// - Coordinates are the device's, in its 8192 x 8192 picture space.
//
// Every event record begins with an EventCommon: whatever the code, a
// callback may read the record as an EventCommon first.
#ifndef KOVA_RECORDS_EVENTS_H_
#define KOVA_RECORDS_EVENTS_H_

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

// ---------------------------------------------------------------------------
// Shared pieces.

#define KOVA_EVENT_MAX_POINTS 20      // points of a line or region
#define KOVA_EVENT_MAX_OBJECTS 128    // entries of "Objects", "Faces"
#define KOVA_EVENT_MAX_TRACK 512      // points of "Track"
#define KOVA_EVENT_MAX_CANDIDATES 64  // entries of "Candidates"
#define KOVA_EVENT_MAX_SEATS 8        // entries of "CommInfo"."Seat"

// A point, [x, y] on the device side.
typedef struct EventPoint {
  int32_t x;
  int32_t y;
} EventPoint;

// A line or region, [[x, y], ...] on the device side: at most
// KOVA_EVENT_MAX_POINTS points. An entry that is not an array of at least
// two numbers is skipped but keeps its slot (left 0, 0); `pointCount`
// counts the points taken.
typedef struct EventPolyline {
  uint32_t pointCount;
  EventPoint points[KOVA_EVENT_MAX_POINTS];
} EventPolyline;

// A box, [left, top, right, bottom] on the device side; a box of fewer
// than four numbers is left all 0.
typedef struct EventRect {
  int32_t left;
  int32_t top;
  int32_t right;
  int32_t bottom;
} EventRect;

// Where a picture of the object sits in the binary data the device sends
// after the notification.
typedef struct EventImage {
  uint32_t offset;  // "Offset", bytes from the start of that data
  uint32_t length;  // "Length", bytes
  uint32_t width;   // "Width", pixels
  uint32_t height;  // "Height", pixels
} EventImage;

// "Action" of a detected object.
enum {
  KOVA_OBJECT_APPEAR = 1,     // "Appear"
  KOVA_OBJECT_MOVE = 2,       // "Move"
  KOVA_OBJECT_STAY = 3,       // "Stay"
  KOVA_OBJECT_REMOVE = 4,     // "Remove"
  KOVA_OBJECT_DISAPPEAR = 5,  // "Disappear"
  KOVA_OBJECT_SPLIT = 6,      // "Split"
  KOVA_OBJECT_MERGE = 7,      // "Merge"
  KOVA_OBJECT_RENAME = 8,     // "Rename"
};

// A detected object: a person, a vehicle, a plate, a face, a left package.
// Read from "Object", from each entry of "Objects" and "Faces", from
// "Vehicle" of traffic events, and delivered alone by the "ObjectList"
// reader of KOVA_ParseDataByCallback.
typedef struct EventObject {
  int32_t objectId;        // "ObjectID"
  int32_t relativeId;      // "RelativeID": the object this one belongs to (a plate's vehicle)
  char objectType[32];     // "ObjectType": "Human", "Vehicle", "NonMotor", "Plate", "Face", ...
  int32_t confidence;      // "Confidence", 0-255
  int32_t action;          // "Action": KOVA_OBJECT_*
  EventRect boundingBox;   // "BoundingBox"
  EventPoint center;       // "Center": [x, y]
  int32_t speed;           // "Speed", km/h
  uint32_t frameSequence;  // "FrameSequence": the video frame the object was seen in
  int32_t age;             // "Age", years (faces and people)
  uint8_t mainColor[4];    // "MainColor": [r, g, b, a]; fewer than four numbers leave all 0
  char text[128];          // "Text": what is written on the object (a plate's number)
  char category[32];       // "Category": the kind within the type ("Normal", "Truck", ...)
  EventImage image;        // "Image"
} EventObject;

// ---------------------------------------------------------------------------
// The common leading part of every event record.

// The event's "Action", beside "Code" (not inside "Data").
enum {
  KOVA_EVENT_PULSE = 0,  // "Pulse", and an absent or unknown action
  KOVA_EVENT_START = 1,  // "Start"
  KOVA_EVENT_STOP = 2,   // "Stop"
};

// Read from the event itself ("Action", "Index") and from its "Data"
// (everything else). An event whose code is 0 (a "Code" no analysis type
// has) but that carries "Data" is delivered with this record alone.
typedef struct EventCommon {
  int32_t action;   // "Action" of the event: KOVA_EVENT_*
  int32_t channel;  // "Index" of the event: the video channel, from 0
  // The event's "Code" in the event-code dictionary (exact names: alarm
  // and device events such as "StorageLowSpace" 0x2145); 0 when the
  // dictionary has no such name.
  uint32_t dictionaryCode;
  char name[128];              // "Name": the rule that raised the event
  double pts;                  // "PTS": presentation time of the frame, ms
  uint32_t eventId;            // "EventID"
  uint32_t utc;                // "UTC": seconds since 1970 (a real number is truncated)
  uint32_t utcMs;              // "UTCMS": milliseconds within that second
  uint32_t initialUtc;         // "InitialUTC": when the event first began, seconds since 1970
  int32_t sourceIndex;         // "SourceIndex": the input the event came from
  char sourceDevice[64];       // "SourceDevice"
  int32_t count;               // "Count": pictures the event comes with
  uint32_t groupId;            // "GroupID": events of one incident share it
  int32_t countInGroup;        // "CountInGroup"
  int32_t indexInGroup;        // "IndexInGroup", from 1
  uint32_t ruleId;             // "RuleId" (or "RuleID", as some devices write it)
  uint32_t objectPresent;      // 1 when "Object" is an object
  EventObject object;          // "Object": the object the event is about
  const EventObject* objects;  // "Objects": every object involved, at most KOVA_EVENT_MAX_OBJECTS
  uint32_t objectCount;        //   entries that are objects (other entries are skipped)
} EventCommon;

// ---------------------------------------------------------------------------
// One record per family of event codes. Codes are the analysis type codes
// ("CrossLineDetection" 2, ...), listed per family.

// "Direction" of a crossing.
enum {
  KOVA_CROSS_LEFT_TO_RIGHT = 1,  // "LeftToRight"
  KOVA_CROSS_RIGHT_TO_LEFT = 2,  // "RightToLeft"
  KOVA_CROSS_ENTER = 3,          // "Enter"
  KOVA_CROSS_LEAVE = 4,          // "Leave"
};

// "Action" inside "Data" of a region event: what the object did.
enum {
  KOVA_REGION_APPEAR = 1,     // "Appear"
  KOVA_REGION_DISAPPEAR = 2,  // "Disappear"
  KOVA_REGION_INSIDE = 3,     // "Inside"
  KOVA_REGION_CROSS = 4,      // "Cross"
};

// Line and region crossing: "CrossLineDetection" 2, "CrossRegionDetection"
// 3, "RetrogradeDetection" 275, "InRegionDetection" 276, "CrossFenceDetection"
// 287, "ClimbDetection" 296.
typedef struct CrossingEventInfo {
  EventCommon common;
  int32_t direction;           // "Direction": KOVA_CROSS_*
  int32_t regionAction;        // "Action" inside "Data": KOVA_REGION_*
  EventPolyline detectLine;    // "DetectLine": the line crossed
  EventPolyline detectRegion;  // "DetectRegion": the region entered or left
  const EventPoint* track;     // "Track": the object's path, at most KOVA_EVENT_MAX_TRACK points
  uint32_t trackCount;         //   points taken (entries that are not [x, y] are skipped)
} CrossingEventInfo;

// Presence and abandonment: "PasteDetection" 4, "LeftDetection" 5,
// "StayDetection" 6, "WanderDetection" 7, "Preservation" 8,
// "TakenAwayDetection" 277, "ParkingDetection" 278, "PrisonerRiseDetection"
// 286, "LeaveDetection" 297, "GetOutBedDetection" 341, "PatrolDetection"
// 342, "OnDutyDetection" 343, "StandUpDetection" 359.
typedef struct PresenceEventInfo {
  EventCommon common;
  EventPolyline detectRegion;  // "DetectRegion"
  const EventPoint* track;     // "Track", as in CrossingEventInfo
  uint32_t trackCount;
  uint32_t stayTime;  // "StayTime": seconds the object stayed (stay, wander, parking)
} PresenceEventInfo;

// Movement and crowds: "MoveDetection" 9, "TailDetection" 10,
// "RioterDetection" 11, "FightDetection" 14, "FlowStat" 15, "NumberStat" 16,
// "RunDetection" 274, "QueueDetection" 291.
typedef struct CrowdEventInfo {
  EventCommon common;
  EventPolyline detectRegion;  // "DetectRegion"
  const EventPoint* track;     // "Track", as in CrossingEventInfo
  uint32_t trackCount;
  int32_t speed;          // "Speed": of the moving object, km/h
  int32_t number;         // "Number": people counted now (number statistics)
  int32_t upperLimit;     // "UpperLimit": the count that raises the event
  int32_t enteredNumber;  // "EnteredNumber": people who came in
  int32_t exitedNumber;   // "ExitedNumber": people who went out
  int32_t numberLeft;     // "NumberLeft": people who passed leftward (flow statistics)
  int32_t numberRight;    // "NumberRight": people who passed rightward
  char statType[32];      // "Type": which limit was passed ("EnterOver", "ExitOver", "InsideOver")
} CrowdEventInfo;

// "Sex" of a face or person.
enum {
  KOVA_SEX_MAN = 1,    // "Man"
  KOVA_SEX_WOMAN = 2,  // "Woman"
};

// What the device saw of a face: "Face" of a face event.
typedef struct FaceAttributes {
  int32_t sex;       // "Sex": KOVA_SEX_*
  int32_t age;       // "Age", years
  char glasses[16];  // "Glass": "Normal", "Sun", "No", ...
  char mask[16];     // "Mask": "Wearing", "NoMask", ...
  char beard[16];    // "Beard"
  char emotion[16];  // "Emotion": "Smile", "Calm", ...
} FaceAttributes;

// A person of a face database, "Person" of a candidate.
typedef struct FacePerson {
  char uid[32];              // "UID": the person's id in the database
  char name[64];             // "Name"
  int32_t sex;               // "Sex": KOVA_SEX_*
  char birthday[16];         // "Birthday": "YYYY-MM-DD"
  char certificateType[16];  // "CertificateType": "IC", "Passport", ...
  char id[32];               // "ID": the certificate's number
  char groupId[64];          // "GroupID": the face database
  char groupName[64];        // "GroupName"
} FacePerson;

// A database match of a recognised face, an entry of "Candidates".
typedef struct FaceCandidate {
  FacePerson person;   // "Person"
  int32_t similarity;  // "Similarity", percent
} FaceCandidate;

// Face detection and recognition: "FaceDetection" 26, "FaceRecognition" 279.
// `common.object` is the face.
typedef struct FaceEventInfo {
  EventCommon common;
  FaceAttributes face;       // "Face"
  const EventObject* faces;  // "Faces": every face in the picture, at most KOVA_EVENT_MAX_OBJECTS
  uint32_t faceCount;
  const FaceCandidate*
      candidates;  // "Candidates": best match first, at most KOVA_EVENT_MAX_CANDIDATES
  uint32_t candidateCount;
  EventPolyline detectRegion;  // "DetectRegion"
} FaceEventInfo;

// The vehicle and violation as the traffic application sums them up,
// "TrafficCar" of a traffic event.
typedef struct TrafficCarInfo {
  char plateNumber[32];      // "PlateNumber"
  char plateType[32];        // "PlateType": "Normal", "Yellow", ...
  char plateColor[32];       // "PlateColor"
  char vehicleColor[32];     // "VehicleColor"
  int32_t speed;             // "Speed", km/h
  int32_t lane;              // "Lane"
  int32_t lowerSpeedLimit;   // "LowerSpeedLimit", km/h
  int32_t upperSpeedLimit;   // "UpperSpeedLimit", km/h
  int32_t overSpeedMargin;   // "OverSpeedMargin", km/h
  int32_t underSpeedMargin;  // "UnderSpeedMargin", km/h
  int32_t vehicleSize;       // "VehicleSize": size class bits as the device sends them
  char event[64];            // "Event": the violation's code name
  char violationCode[16];    // "ViolationCode": the traffic authority's code
  char violationDesc[128];   // "ViolationDesc"
  char deviceAddress[256];   // "DeviceAddress": where the camera stands
} TrafficCarInfo;

// "Type" of a seat.
enum {
  KOVA_SEAT_MAIN = 1,   // "Main": the driver
  KOVA_SEAT_SLAVE = 2,  // "Slave": the front passenger
};

// "SafeBelt" of a seat.
enum {
  KOVA_BELT_FASTENED = 1,    // "WithSafeBelt"
  KOVA_BELT_UNFASTENED = 2,  // "WithoutSafeBelt"
};

// One seat of the vehicle's cab, an entry of "CommInfo"."Seat".
typedef struct TrafficDriverSeat {
  int32_t type;       // "Type": KOVA_SEAT_*
  int32_t safeBelt;   // "SafeBelt": KOVA_BELT_*
  uint32_t smoking;   // "Smoking": 1 when the occupant smokes
  uint32_t calling;   // "Calling": 1 when the occupant is on the phone
  uint32_t sunShade;  // "SunShade": 1 when the sun shade is down
} TrafficDriverSeat;

// "CommInfo" of a traffic event: what was seen inside the cab.
typedef struct TrafficCommInfo {
  const TrafficDriverSeat* seats;  // "Seat", at most KOVA_EVENT_MAX_SEATS
  uint32_t seatCount;              //   entries that are objects
} TrafficCommInfo;

// Every traffic code: "TrafficControl" 21, "TrafficAccident" 22,
// "TrafficJunction" 23, "TrafficGate" 24, "TrafficSnapshot" 25, "TrafficJam"
// 27, every "Traffic..." code from 256 to 316, "TrafficJamForbidInto" 355,
// "QSYTrafficCarWeight" 360, "TrafficComparePlate" 361,
// "TrafficVideoAnalysePreSnap" 368 and "VehicleAnalyse" 514.
// `common.object` is the plate.
typedef struct TrafficEventInfo {
  EventCommon common;
  uint32_t vehiclePresent;     // 1 when "Vehicle" is an object
  EventObject vehicle;         // "Vehicle"
  int32_t lane;                // "Lane": from 1, counted from the left
  int32_t speed;               // "Speed", km/h
  uint32_t sequence;           // "Sequence": which picture of the violation this is
  int32_t speedLimit[2];       // "SpeedLimit": [lower, upper], km/h
  double redLightUtc;          // "RedLightUTC": when the light turned red, seconds since 1970
  int32_t jamLength;           // "JamLength": queue length of a jam, metres
  uint32_t parkingTime;        // "ParkingTime": seconds parked
  TrafficCarInfo trafficCar;   // "TrafficCar"
  TrafficCommInfo commInfo;    // "CommInfo"
  EventPolyline detectRegion;  // "DetectRegion"
} TrafficEventInfo;

// Audio and video abnormality: "VideoAbnormalDetection" 19,
// "CameraCoverdDetection" 17, "CameraMovedDetection" 18, "VideoBadDetection"
// 20, "VideoDiagnosieResult" 290, "AudioAbnormalDetection" 294, "VideoBlind"
// 339, "VideoLoss" 340, "VideoStatic" 349. ("VideoBlind" without "Data" is
// delivered with no record at all.)
typedef struct AbnormalityEventInfo {
  EventCommon common;
  char type[32];    // "Type": what is wrong ("VideoLoss", "VideoCover", "Frozen", "Mutation", ...)
  int32_t value;    // "Value": how far off, as the detector measures it
  int32_t decibel;  // "Decibel": sound intensity, dB
  int32_t frequency;  // "Frequency": sound frequency, Hz
} AbnormalityEventInfo;

// Every other code that is not 0: fire, smoke, alarms, storage, vehicle
// state and the rest.
typedef struct GeneralEventInfo {
  EventCommon common;
  EventPolyline detectRegion;  // "DetectRegion"
} GeneralEventInfo;

// ---------------------------------------------------------------------------
// Records of the other readers of KOVA_ParseDataByCallback (codes in
// kova/kova.h).

// The PTZ head's state, from "Ptz".
typedef struct PtzStatusRecord {
  int32_t channel;      // "Channel", from 0
  int32_t position[3];  // "Position": [pan, tilt, zoom]; fewer than three numbers leave all 0
  int32_t presetId;     // "PresetID": the preset reached last
  char moveStatus[16];  // "MoveStatus": "Idle", "Moving"
  char zoomStatus[16];  // "ZoomStatus": "Idle", "Zooming"
  uint32_t utc;         // "UTC", seconds since 1970
} PtzStatusRecord;

// The lens's state, from "FocusStatus".
typedef struct FocusStatusRecord {
  int32_t channel;  // "Channel", from 0
  double focus;     // "Focus": focus position, 0 to 1
  double zoom;      // "Zoom": zoom position, 0 to 1
  char status[16];  // "Status": "Normal", "AutoFocusing", ...
} FocusStatusRecord;

// People counted over a period, "EnteredSubtotal" and "ExitedSubtotal".
typedef struct StatSubtotal {
  int32_t total;  // "Total": since counting began
  int32_t today;  // "Today"
  int32_t hour;   // "Hour": this hour
} StatSubtotal;

// The number-statistics summary of a rule, from "VideoStatSummary".
typedef struct VideoStatSummaryRecord {
  int32_t channel;       // "Channel", from 0
  char ruleName[128];    // "RuleName"
  uint32_t utc;          // "UTC", seconds since 1970
  int32_t insideNumber;  // "InsideSubtotal": people inside now
  StatSubtotal entered;  // "EnteredSubtotal"
  StatSubtotal exited;   // "ExitedSubtotal"
} VideoStatSummaryRecord;

// Traffic flow of one lane over one period, from "TrafficFlowStat" and
// "TrafficFlowStatInfo".
typedef struct TrafficFlowStatRecord {
  int32_t lane;             // "Lane": from 1
  uint32_t utc;             // "UTC": end of the period, seconds since 1970
  int32_t period;           // "Period": minutes
  int32_t vehicles;         // "Vehicles": vehicles that passed
  double averageSpeed;      // "AverageSpeed", km/h
  double timeOccupyRatio;   // "TimeOccupyRatio": share of the time the lane was occupied, 0 to 1
  double spaceOccupyRatio;  // "SpaceOccupyRatio": share of the lane's length occupied, 0 to 1
  double timeHeadway;       // "TimeHeadway": seconds between vehicles
  double spaceHeadway;      // "SpaceHeadway": metres between vehicles
  int32_t state;            // "State": 1 free flow, 2 slow, 3 congested, as the device counts
} TrafficFlowStatRecord;

#ifdef __cplusplus
}
static_assert(offsetof(CrossingEventInfo, common) == 0, "event records begin with EventCommon");
static_assert(offsetof(PresenceEventInfo, common) == 0, "event records begin with EventCommon");
static_assert(offsetof(CrowdEventInfo, common) == 0, "event records begin with EventCommon");
static_assert(offsetof(FaceEventInfo, common) == 0, "event records begin with EventCommon");
static_assert(offsetof(TrafficEventInfo, common) == 0, "event records begin with EventCommon");
static_assert(offsetof(AbnormalityEventInfo, common) == 0, "event records begin with EventCommon");
static_assert(offsetof(GeneralEventInfo, common) == 0, "event records begin with EventCommon");
#endif

#endif  // KOVA_RECORDS_EVENTS_H_
