// Records of the network configuration family.
#ifndef KOVA_RECORDS_NETWORK_H_
#define KOVA_RECORDS_NETWORK_H_

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

// "G3G4AutoChange": automatic switching between 3G and 4G mobile networks,
// served by the table drivers (parse clears the whole buffer first and adds
// 4 to `retLen`).
// "Enable" as 0 or 1 (absent reads as 0); packed as a JSON boolean, true for
// any non-zero value.
typedef struct G3G4AutoChangeRecord {
  uint32_t enable;
} G3G4AutoChangeRecord;

#ifdef __cplusplus
}
static_assert(sizeof(G3G4AutoChangeRecord) == 4, "G3G4AutoChangeRecord layout");
#endif

#endif  // KOVA_RECORDS_NETWORK_H_
