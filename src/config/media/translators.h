// Translators of the media configuration family, as bound in the name lists.
#ifndef KOVA_CONFIG_MEDIA_TRANSLATORS_H_
#define KOVA_CONFIG_MEDIA_TRANSLATORS_H_

#include <json/value.h>

#include <cstdint>

namespace kova {

}  // namespace kova

#endif  // KOVA_CONFIG_MEDIA_TRANSLATORS_H_
