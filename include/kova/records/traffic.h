// Records of the traffic configuration family.
#ifndef KOVA_RECORDS_TRAFFIC_H_
#define KOVA_RECORDS_TRAFFIC_H_

#include <stddef.h>
#include <stdint.h>

#include "kova/records/event_handler.h"

#ifdef __cplusplus
extern "C" {
#endif

// Capacities. Longer device arrays are cut to these on parse.
enum {
  KOVA_TRAFFIC_MAX_LANES = 8,  // "Detector" lanes
  KOVA_TRAFFIC_MAX_COILS = 4,  // coils of one lane ("CoilConfig", "CoilsDistance", "CoilsWidth")
  KOVA_TRAFFIC_DIRECTION_TEXTS = 3,     // texts of "DrivingDirection" and "DrivingDirection1"
  KOVA_TRAFFIC_MAX_OVERLAY_ITEMS = 16,  // "Element" items of "OSDCustom" and "OSDCustomizeSort"
  KOVA_TRAFFIC_ADDRESS_TAKEN = 384,     // bytes of "DeviceAddress" taken before conversion
};

// "BreakingSnapTimes": how many pictures one capture of each violation type
// takes. Each field is its key's integer; a key the device leaves out reads 0.
typedef struct TrafficSnapTimes {
  int32_t normal;                 // "Normal": a vehicle passing without a violation
  int32_t runRedLight;            // "RunRedLight"
  int32_t overLine;               // "OverLine"
  int32_t overYellowLine;         // "OverYellowLine"
  int32_t retrograde;             // "Retrograde"
  int32_t underSpeed;             // "UnderSpeed"
  int32_t overSpeed;              // "OverSpeed"
  int32_t wrongRunningRoute;      // "WrongRunningRoute"
  int32_t yellowInRoute;          // "YellowInRoute"
  int32_t specialRetrograde;      // "SpecialRetrograde"
  int32_t turnLeft;               // "TurnLeft"
  int32_t turnRight;              // "TurnRight"
  int32_t crossLane;              // "CrossLane"
  int32_t uTurn;                  // "U-Turn"
  int32_t parking;                // "Parking"
  int32_t waitingArea;            // "WaitingArea"
  int32_t wrongRoute;             // "WrongRoute"
  int32_t parkingSpaceParking;    // "ParkingSpaceParking"
  int32_t parkingSpaceNoParking;  // "ParkingSpaceNoParking"
  int32_t runYellowLight;         // "RunYellowLight"
  int32_t stay;                   // "Stay"
  int32_t pedestrianPriority;     // "PedestrainPriority" (the device's spelling)
  int32_t vehicleInBusRoute;      // "VehicleInBusRoute"
  int32_t backing;                // "Backing"
  int32_t overStopLine;           // "OverStopLine"
  int32_t parkingOnYellowBox;     // "ParkingOnYellowBox"
  int32_t restrictedPlate;        // "RestrictedPlate"
  int32_t noPassing;              // "NoPassing"
  int32_t withoutSafeBelt;        // "WithoutSafeBelt"
  int32_t driverSmoking;          // "DriverSmoking"
  int32_t driverCalling;          // "DriverCalling"
  int32_t passNotInOrder;         // "PassNotInOrder"
  int32_t pedestrianRunRedLight;  // "PedestrianRunRedLight"
} TrafficSnapTimes;

// "Radar": the speed radar. Integers carried as the device gives them; a key
// left out reads 0.
typedef struct TrafficRadar {
  int32_t angle;              // "Angle": between the beam and the road, degrees
  int32_t antiJammingValue;   // "AntiJammingValue"
  int32_t comeInValue;        // "ComeInValue": trigger threshold of approaching vehicles
  int32_t comeOutValue;       // "ComeOutValue"
  int32_t delayTime;          // "DelayTime", ms
  uint32_t detectBreaking;    // "DetectBreaking": violation types the radar detects, a bit mask
  int32_t detectMode;         // "DetectMode"
  int32_t installMode;        // "InstallMode"
  int32_t level;              // "Level": sensitivity
  int32_t multiTargetFilter;  // "MultiTargetFilter"
  int32_t wentEndValue;       // "WentEndValue": thresholds of departing vehicles
  int32_t wentInValue;        // "WentInValue"
  int32_t wentOutValue;       // "WentOutValue"
} TrafficRadar;

// One entry of a lane's "CoilConfig": the flashes one induction coil fires.
typedef struct TrafficCoil {
  int32_t delayFlashId;     // "DelayFlashID"
  int32_t flashSerialNum;   // "FlashSerialNum"
  int32_t redDirection;     // "RedDirection": the signal direction the coil watches
  int32_t flashSerialNum2;  // "FlashSerialNum2"
  int32_t flashSerialNum3;  // "FlashSerialNum3"
} TrafficCoil;

// One lane of "Detector": its induction coils (configuration, distances,
// widths), speed limits and capture settings. Speed limits are [low, high]
// in km/h and are read only from an array of two. Lists count what they
// read; pack writes that many entries.
typedef struct TrafficLane {
  int32_t triggerMode;             // "TriggerMode"
  int32_t yellowSpeedLimit[2];     // "YellowSpeedLimit" [low, high]
  int32_t direction;               // "Direction"
  char drivingDirection1[3][32];   // "DrivingDirection1": [name, from, to], local code page
  int32_t coilsDistanceCount;      // "CoilsDistance" entries (at most 4)
  int32_t coilsDistance[4];        // "CoilsDistance": from each coil to the next, cm
  int32_t smallCarSpeedLimit[2];   // "SmallCarSpeedLimit" [low, high]
  int32_t bigCarSpeedLimit[2];     // "BigCarSpeedLimit" [low, high]
  int32_t enable;                  // "Enable", 0 or 1
  uint32_t detectBreaking;         // "DetectBreaking": violation types detected, a bit mask
  int32_t maskRetrograde;          // "MaskRetrograde", 0 or 1: retrograde driving not captured
  int32_t coilConfigCount;         // "CoilConfig" entries that were objects (at most 4)
  TrafficCoil coilConfig[4];       // "CoilConfig"; an entry that is not an object is skipped
  int32_t roadType;                // "RoadType"
  int32_t snapMode;                // "SnapMode"
  int32_t delayMode;               // "DelayMode"
  int32_t delayTime;               // "DelayTime", ms
  int32_t errorRange;              // "ErrorRange", km/h
  float speedCorrection;           // "SpeedCorrection": factor on measured speeds
  int32_t obverse;                 // "Obverse", 0 or 1: vehicles in the lane's direction
  int32_t reverse;                 // "Reverse", 0 or 1: vehicles against it
  int32_t roadwayNumber;           // "RoadwayNumber": the lane's number on the road
  char customParkNo[32];           // "CustomParkNo", local code page
  char drivingDirection[3][32];    // "DrivingDirection": [name, from, to], local code page
  int32_t roadwayDirection;        // "RoadwayDirection"
  int32_t redLightCardNum;         // "RedLightCardNum": the signal detector input
  int32_t coilsNumber;             // "CoilsNumber": coils the device has in the lane
  int32_t operationType;           // "OperationType"
  int32_t coilsWidthCount;         // "CoilsWidth" entries (at most 4)
  int32_t coilsWidth[4];           // "CoilsWidth": of each coil, cm
  int32_t speedLimitForSize;       // "SpeedLimitForSize", 0 or 1: limits by vehicle size
  int32_t overPercentage;          // "OverPercentage", %
  int32_t carScheme;               // "CarScheme"
  int32_t sigScheme;               // "SigScheme"
  int32_t overSpeedMargin;         // "OverSpeedMargin", km/h
  int32_t bigCarOverSpeedMargin;   // "BigCarOverSpeedMargin", km/h
  int32_t underSpeedMargin;        // "UnderSpeedMargin", km/h
  int32_t bigCarUnderSpeedMargin;  // "BigCarUnderSpeedMargin", km/h
} TrafficLane;

// "Detector": the vehicle detector, an array of lanes on the device.
typedef struct TrafficDetector {
  int32_t laneCount;     // lanes that were objects (at most 8)
  TrafficLane lanes[8];  // "Detector"; an entry that is not an object is skipped
} TrafficDetector;

// "OSDBlackRegion": the black band the overlay text can be printed on.
typedef struct TrafficBlackRegion {
  int32_t height;  // "Height", pixels
  int32_t top;     // "TOP", 0 or 1: a band above the picture
  int32_t bottom;  // "BOTTOM", 0 or 1: a band below the picture
} TrafficBlackRegion;

// "OSDPosition": where the overlay text goes.
typedef struct TrafficOverlayPosition {
  int32_t whole[2];  // "Whole" [x, y]: the whole text's origin; only from an array of 2
  int32_t positionAsBlackRegion;  // "PositionAsBlackRegion", 0 or 1: on the black band instead
} TrafficOverlayPosition;

// "NewLine": where the overlay text breaks its lines.
typedef struct TrafficNewLine {
  int32_t everyItem;  // "Every Item" (with its blank): a break after every this many items, 0 none
  int32_t last;       // "Last", 0 or 1: the last item on a line of its own
  int32_t all;        // "All", 0 or 1: every item on a line of its own
} TrafficNewLine;

// The layout of a text ("General" and "OSDWholeAttr").
typedef struct TrafficOverlayLayout {
  TrafficNewLine newLine;  // "NewLine"
  int32_t loneVehicle;     // "LoneVehicle", 0 or 1: a text per vehicle alone in the picture
  int32_t position[2];     // "Position" [x, y]; only from an array of 2
  uint32_t mask;           // "Mask": the items shown, a bit mask
  int32_t customizeSort;   // "CustomizeSort", 0 or 1: items in the order of "OSDCustomizeSort"
} TrafficOverlayLayout;

// One overlay text item ("Element" entry).
typedef struct TrafficOverlayItem {
  int32_t nameType;        // "NameType": what the item shows, the device's code
  int32_t separatorCount;  // "SeperaterCount" (the device's spelling): separators after the item
  char name[64];           // "Name", local code page
  char prefix[32];         // "Prefix", local code page
  char postfix[32];        // "Postfix", local code page
  char separator[16];      // "Seperater" (the device's spelling), local code page
  int32_t order;           // "OSDOrder": the item's place in the text
} TrafficOverlayItem;

// A list of overlay items ("OSDCustom" and "OSDCustomizeSort").
typedef struct TrafficOverlayItems {
  int32_t elementCount;             // "Element" entries that were objects (at most 16)
  TrafficOverlayItem elements[16];  // "Element"; an entry that is not an object is skipped
} TrafficOverlayItems;

// The overlay block, "OSD" and "MergeOSD" alike. A nested object the device
// leaves out (or sends as another type) reads as zeros; pack writes every
// member.
typedef struct TrafficOverlay {
  TrafficBlackRegion blackRegion;     // "OSDBlackRegion"
  TrafficOverlayPosition position;    // "OSDPosition"
  TrafficOverlayItems custom;         // "OSDCustom": items the user adds
  TrafficOverlayLayout general;       // "General"
  int32_t attrScheme;                 // "OSDAttrScheme"
  TrafficOverlayLayout wholeAttr;     // "OSDWholeAttr"
  int32_t contentScheme;              // "OSDContentScheme"
  int32_t redLightTimeDisplay;        // "RedLightTimeDisplay", 0 or 1
  TrafficOverlayItems customizeSort;  // "OSDCustomizeSort": items in the user's order
} TrafficOverlay;

// "TrafficSnapshot": a traffic enforcement camera's capture behaviour.
//
// Parse: the caller's buffer must hold at least one record; all `outLen`
// bytes are cleared before the text is read. "result" is not looked at. A
// response without "params"."table" (or with a null one) fails, leaving the
// buffer zero; otherwise the call succeeds and `retLen`, when not null, is
// set to the record's size. Keys the device leaves out, or sends as null,
// read as zero.
//
// The three blocks "BreakingSnapTimes", "Radar" and "Detector" are read
// first, in that order. A block reader fails when its key holds something
// that is neither null nor the block's JSON type (an object; for "Detector"
// an array); a missing or null block is left zero and reading goes on. When
// one fails, reading stops there: that block and every later key stay zero,
// and the call still succeeds with the full size.
//
// Pack writes every key the parser reads, the blocks only when their
// presence flag is set, and needs `inLen` of at least one record; the text
// is copied when its terminating NUL fits in `outLen`.
typedef struct TrafficSnapshotConfig {
  uint8_t
      breakingSnapTimesPresent;  // 1 when "BreakingSnapTimes" was read; pack writes it only then
  uint8_t radarPresent;          // 1 when "Radar" was read; pack writes it only then
  uint8_t detectorPresent;       // 1 when "Detector" was read; pack writes it only then
  uint8_t osdPresent;            // 1 when "OSD" was read; pack writes it only then
  uint8_t mergeOsdPresent;       // 1 when "MergeOSD" was read; pack writes it only then
  uint8_t eventHandlerPresent;   // 1 when "EventHandler" was read; pack writes it only then
  // "DeviceAddress": where the camera stands, local code page. At most 384
  // bytes of the device's text are taken (never part of a character) and
  // then converted.
  char deviceAddress[385];
  char roadwayCode[128];               // "RoadwayCode", local code page
  uint8_t spare;                       // reserved; never read or written
  TrafficSnapTimes breakingSnapTimes;  // "BreakingSnapTimes"
  TrafficRadar radar;                  // "Radar"
  TrafficDetector detector;            // "Detector"
  int32_t videoTitleMask;              // "VideoTitleMask"
  int32_t redLightMargin;              // "RedLightMargin"
  float longVehicleLengthLevel;        // "LongVehicleLengthLevel", m
  // Length levels [min, max] in m: each element is read when the array has
  // it, so [3.5] fills only the minimum.
  float largeVehicleLengthLevel[2];   // "LargeVehicleLengthLevel"
  float mediumVehicleLengthLevel[2];  // "MediumVehicleLengthLevel"
  float smallVehicleLengthLevel[2];   // "SmallVehicleLengthLevel"
  float motoVehicleLengthLevel;       // "MotoVehicleLengthLevel", m
  int32_t carScheme;                  // "CarScheme" at the top level
  int32_t sigScheme;                  // "SigScheme" at the top level
  int32_t carType;                    // "CarType"
  int32_t maxSpeed;                   // "MaxSpeed", km/h
  int32_t frameMode;                  // "FrameMode"
  int32_t adaptiveSpeed[2];           // "AdaptiveSpeed": each element read when the array has it
  int32_t videoTitleMask1;            // "VideoTitleMask1"
  int32_t mergeVideoTitleMask;        // "MergeVideoTitleMask"
  int32_t mergeVideoTitleMask1;       // "MergeVideoTitleMask1"
  int32_t triggerSource;              // "TriggerSource"
  int32_t snapMode;                   // "SnapMode"
  int32_t workMode;                   // "WorkMode"
  int32_t carThreshold;               // "CarThreShold" (the device's spelling)
  int32_t snapType;                   // "SnapType"
  // "CustomFrameInterval": elements 0..2, read only when the key holds an
  // array (a shorter array leaves the rest zero).
  int32_t customFrameInterval[3];
  int32_t keepAlive;  // "KeepAlive"
  // "ValidUntilTime", "YYYY-MM-DD hh:mm:ss" on the device: year (its lowest
  // six bits) << 26 | month << 22 | day << 17 | hour << 12 | minute << 6 |
  // second. Text that does not read as six numbers leaves 0; 0 is not
  // packed. Pack writes the year in 2000..2063 that has the stored bits.
  uint32_t validUntilTime;
  TrafficOverlay osd;               // "OSD"
  TrafficOverlay mergeOsd;          // "MergeOSD": the text of merged pictures
  EventHandlerRecord eventHandler;  // "EventHandler": the linkage when a capture happens
} TrafficSnapshotConfig;

#ifdef __cplusplus
}
static_assert(sizeof(TrafficSnapTimes) == 33 * 4, "TrafficSnapTimes layout");
static_assert(sizeof(TrafficRadar) == 13 * 4, "TrafficRadar layout");
static_assert(sizeof(TrafficCoil) == 20, "TrafficCoil layout");
static_assert(sizeof(TrafficLane) == 476, "TrafficLane layout");
static_assert(offsetof(TrafficLane, coilConfig) == 164, "TrafficLane layout");
static_assert(offsetof(TrafficLane, drivingDirection) == 312, "TrafficLane layout");
static_assert(sizeof(TrafficDetector) == 4 + 8 * 476, "TrafficDetector layout");
static_assert(sizeof(TrafficOverlayLayout) == 32, "TrafficOverlayLayout layout");
static_assert(sizeof(TrafficOverlayItem) == 156, "TrafficOverlayItem layout");
static_assert(sizeof(TrafficOverlayItems) == 4 + 16 * 156, "TrafficOverlayItems layout");
static_assert(offsetof(TrafficOverlay, custom) == 24, "TrafficOverlay layout");
static_assert(offsetof(TrafficOverlay, general) == 2524, "TrafficOverlay layout");
static_assert(offsetof(TrafficOverlay, customizeSort) == 2600, "TrafficOverlay layout");
static_assert(sizeof(TrafficOverlay) == 5100, "TrafficOverlay layout");
static_assert(offsetof(TrafficSnapshotConfig, deviceAddress) == 6, "TrafficSnapshotConfig layout");
static_assert(offsetof(TrafficSnapshotConfig, roadwayCode) == 391, "TrafficSnapshotConfig layout");
static_assert(offsetof(TrafficSnapshotConfig, breakingSnapTimes) == 520,
              "TrafficSnapshotConfig layout");
static_assert(offsetof(TrafficSnapshotConfig, radar) == 652, "TrafficSnapshotConfig layout");
static_assert(offsetof(TrafficSnapshotConfig, detector) == 704, "TrafficSnapshotConfig layout");
static_assert(offsetof(TrafficSnapshotConfig, videoTitleMask) == 4516,
              "TrafficSnapshotConfig layout");
static_assert(offsetof(TrafficSnapshotConfig, validUntilTime) == 4632,
              "TrafficSnapshotConfig layout");
static_assert(offsetof(TrafficSnapshotConfig, osd) == 4636, "TrafficSnapshotConfig layout");
static_assert(offsetof(TrafficSnapshotConfig, mergeOsd) == 9736, "TrafficSnapshotConfig layout");
static_assert(offsetof(TrafficSnapshotConfig, eventHandler) == 14836,
              "TrafficSnapshotConfig layout");
static_assert(sizeof(TrafficSnapshotConfig) == 14836 + 337124, "TrafficSnapshotConfig layout");
#endif

#endif  // KOVA_RECORDS_TRAFFIC_H_
