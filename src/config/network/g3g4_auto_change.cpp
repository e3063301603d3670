// "G3G4AutoChange": whether the device switches between 3G and 4G by
// itself; a one-field record with the table drivers' settings.
#include "common/fields/field_table.h"
#include "drivers/response_frame.h"
#include "kova/records/network.h"

namespace kova {

namespace {

// Absent reads as false.
constexpr Field kFields[] = {
    KOVA_F(G3G4AutoChangeRecord, enable, "Enable", kBool).AlwaysRead(),
};
constexpr FieldTable kTable = KOVA_TABLE(kFields);

}  // namespace

extern const ResponseFrame kG3G4AutoChangeFrame =
    DriverFrame<G3G4AutoChangeRecord>(ParseTableStep<kTable>, TablePack<kTable>(),
                                      {0, false, true, false})
        .Describe(WholeTable<G3G4AutoChangeRecord, kTable>::kField);

}  // namespace kova
