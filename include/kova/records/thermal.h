// Records of the thermal cameras' settings: "HeatImagingThermometry".
#ifndef KOVA_RECORDS_THERMAL_H_
#define KOVA_RECORDS_THERMAL_H_

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

// "Isotherm" of "HeatImagingThermometry": the band of temperatures the
// picture colours. Temperatures in the unit `temperatureUnit` names.
// Other members a camera sends in the block have no room and are dropped.
typedef struct HeatImagingIsotherm {
  int32_t enable;           // "Enable" (boolean), 0 or 1
  uint8_t colorBarDisplay;  // "ColorBarDisplay" (boolean), 0 or 1
  // 1 when the key was given (pack writes it only then): older cameras
  // leave these two out
  uint8_t colorBarDisplayPresent;  // "ColorBarDisplay"
  uint8_t saturationTempPresent;   // "SaturationTemp"
  uint8_t reserved;
  double maxLimitTemp;       // "MaxLimitTemp": upper end of the band
  double minLimitTemp;       // "MinLimitTemp": lower end of the band
  double mediumCenterValue;  // "MediumCenterValue": centre of the band
  double saturationTemp;     // "SaturationTemp": temperature shown saturated
} HeatImagingIsotherm;

// "HeatImagingThermometry": the measuring conditions of a thermal camera,
// one object for the device. A fixed 104-byte record served by the table
// drivers: the whole buffer is cleared, "table" is one object (never an
// array), the returned length is added to, pack writes one object. A key
// the camera leaves out reads 0; those with a flag are written back only
// when given.
typedef struct HeatImagingThermometryConfig {
  int32_t altitude;          // "Altitude": metres above sea level
  int32_t objectDistance;    // "ObjectDistance": whole metres to the object
  int32_t relativeHumidity;  // "RelativeHumidity": percent
  // "TemperatureUnit": 0 "Centigrade", 1 "Fahrenheit" (case ignored); any
  // other text reads -1, which pack leaves out
  int32_t temperatureUnit;
  double atmosphericTemperature;     // "AtmosphericTemperature", in the unit above
  double atmosphericTransmissivity;  // "AtmosphericTransmissivity": 0 to 1
  double objectEmissivity;           // "ObjectEmissivity": 0 to 1
  double reflectedTemperature;       // "ReflectedTemperature", in the unit above
  // "DistanceDecimalPart": the fraction of a metre the camera sends apart
  // from "ObjectDistance" (the distance is their sum)
  double distanceDecimalPart;
  HeatImagingIsotherm isotherm;  // "Isotherm"
  // 1 when the key was given (pack writes it only then): older cameras
  // send neither the split distance, the humidity nor the isotherm.
  uint8_t distanceDecimalPartPresent;
  uint8_t relativeHumidityPresent;
  uint8_t isothermPresent;
  uint8_t reserved[5];
} HeatImagingThermometryConfig;

#ifdef __cplusplus
}
static_assert(sizeof(HeatImagingIsotherm) == 40, "HeatImagingIsotherm layout");
static_assert(offsetof(HeatImagingIsotherm, maxLimitTemp) == 8, "HeatImagingIsotherm layout");
static_assert(offsetof(HeatImagingThermometryConfig, atmosphericTemperature) == 16,
              "HeatImagingThermometryConfig layout");
static_assert(offsetof(HeatImagingThermometryConfig, isotherm) == 56,
              "HeatImagingThermometryConfig layout");
static_assert(offsetof(HeatImagingThermometryConfig, distanceDecimalPartPresent) == 96,
              "HeatImagingThermometryConfig layout");
static_assert(sizeof(HeatImagingThermometryConfig) == 104, "HeatImagingThermometryConfig layout");
#endif

#endif  // KOVA_RECORDS_THERMAL_H_
