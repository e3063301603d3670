// Translators of the analyse configuration family, as bound in the name lists.
#ifndef KOVA_CONFIG_ANALYSE_TRANSLATORS_H_
#define KOVA_CONFIG_ANALYSE_TRANSLATORS_H_

#include <json/value.h>

#include <cstdint>

namespace kova {

}  // namespace kova

#endif  // KOVA_CONFIG_ANALYSE_TRANSLATORS_H_
