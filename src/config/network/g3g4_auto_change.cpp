// "G3G4AutoChange": a one-field record served by the table drivers.
#include "common/fields/field_table.h"
#include "config/network/translators.h"
#include "drivers/table_driver.h"
#include "kova/records/network.h"

namespace kova {

namespace {

// Absent reads as false.
constexpr Field kFields[] = {
    KOVA_F(G3G4AutoChangeRecord, enable, "Enable", kBool).AlwaysRead(),
};
constexpr FieldTable kTable = KOVA_TABLE(kFields);

}  // namespace

int ParseG3G4AutoChangeRecord(const Json::Value& element, void* record) {
  return ParseTableRecord<kTable>(element, record);
}

int PackG3G4AutoChangeRecord(const void* record, Json::Value& target) {
  return PackTableRecord<kTable>(record, target);
}

}  // namespace kova
