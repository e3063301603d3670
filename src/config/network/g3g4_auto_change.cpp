// "G3G4AutoChange": a one-field record served by the table drivers.
#include <cstring>

#include "common/json/json.h"
#include "config/network/translators.h"
#include "kova/records/network.h"

namespace kova {

int ParseG3G4AutoChangeRecord(const Json::Value& element, void* record) {
  const uint32_t enable = ToBool(Member(element, "Enable")) ? 1 : 0;
  std::memcpy(record, &enable, sizeof enable);
  return 1;
}

int PackG3G4AutoChangeRecord(const void* record, Json::Value& target) {
  G3G4AutoChangeRecord r;
  std::memcpy(&r, record, sizeof r);
  SetMember(target, "Enable") = r.enable != 0;
  return 1;
}

}  // namespace kova
