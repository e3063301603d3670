// "HeatImagingThermometry": the measuring conditions of a thermal camera.
// A fixed 104-byte record served by the table drivers.
#include "common/fields/field_table.h"
#include "drivers/described_record.h"
#include "drivers/response_frame.h"
#include "kova/records/thermal.h"

namespace kova {

constexpr Field kIsothermFields[] = {
    KOVA_F(HeatImagingIsotherm, enable, "Enable", kBool),
    KOVA_F(HeatImagingIsotherm, maxLimitTemp, "MaxLimitTemp", kReal),
    KOVA_F(HeatImagingIsotherm, minLimitTemp, "MinLimitTemp", kReal),
    KOVA_F(HeatImagingIsotherm, mediumCenterValue, "MediumCenterValue", kReal),
    KOVA_F(HeatImagingIsotherm, saturationTemp, "SaturationTemp", kReal)
        .Flag(KOVA_AT(HeatImagingIsotherm, saturationTempPresent)),
    KOVA_F(HeatImagingIsotherm, colorBarDisplay, "ColorBarDisplay", kBool)
        .Flag(KOVA_AT(HeatImagingIsotherm, colorBarDisplayPresent)),
};
KOVA_DESCRIBE(HeatImagingIsotherm, kIsothermFields)

namespace {

constexpr const char* kTemperatureUnitNames[] = {"Centigrade", "Fahrenheit"};
// No room for text in the record: an unknown name is -1, left out on pack.
constexpr EnumNames kTemperatureUnits =
    EnumNames::Of(kTemperatureUnitNames).UnknownAs(-1).OmitUnnamed();

using Rec = HeatImagingThermometryConfig;

constexpr Field kThermometryFields[] = {
    KOVA_F(Rec, altitude, "Altitude", kInt),
    KOVA_F(Rec, atmosphericTemperature, "AtmosphericTemperature", kReal),
    KOVA_F(Rec, atmosphericTransmissivity, "AtmosphericTransmissivity", kReal),
    KOVA_F(Rec, objectEmissivity, "ObjectEmissivity", kReal),
    KOVA_F(Rec, reflectedTemperature, "ReflectedTemperature", kReal),
    KOVA_F(Rec, objectDistance, "ObjectDistance", kInt),
    KOVA_F(Rec, distanceDecimalPart, "DistanceDecimalPart", kReal)
        .Flag(KOVA_AT(Rec, distanceDecimalPartPresent)),
    KOVA_F(Rec, relativeHumidity, "RelativeHumidity", kInt)
        .Flag(KOVA_AT(Rec, relativeHumidityPresent)),
    KOVA_ENUM(Rec, temperatureUnit, "TemperatureUnit", kTemperatureUnits).AlwaysRead(),
    KOVA_NESTED(Rec, isotherm, "Isotherm").Flag(KOVA_AT(Rec, isothermPresent)),
};
constexpr FieldTable kThermometry = KOVA_TABLE(kThermometryFields);

}  // namespace

extern const ResponseFrame kHeatImagingThermometryFrame =
    DriverFrame<HeatImagingThermometryConfig>(ParseTableStep<kThermometry>,
                                              TablePack<kThermometry>(), {0, false, true, false})
        .Describe(WholeTable<HeatImagingThermometryConfig, kThermometry>::kField);

}  // namespace kova
