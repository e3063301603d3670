// The configurations served by the table drivers, with the settings each
// passes to them (see driver_names.h).
#include "api/dispatch.h"
#include "api/driver_names.h"
#include "api/translators.h"

namespace kova {

#define KOVA_DRIVER_BINDING(name, parse, pack, size, depthMinusOne, array, zeroFill, packArray) \
  {name, parse, pack, size, depthMinusOne, array, zeroFill, packArray},
const DriverBinding kDriverBindings[] = {KOVA_DRIVER_NAMES(KOVA_DRIVER_BINDING)};
#undef KOVA_DRIVER_BINDING

const size_t kDriverNameCount = sizeof(kDriverBindings) / sizeof(kDriverBindings[0]);

}  // namespace kova
