// Every translator the name lists bind, by family.
#ifndef KOVA_API_TRANSLATORS_H_
#define KOVA_API_TRANSLATORS_H_

#include "config/access/translators.h"
#include "config/alarm/translators.h"
#include "config/analyse/translators.h"
#include "config/audio/translators.h"
#include "config/media/translators.h"
#include "config/network/translators.h"
#include "config/ptz/translators.h"
#include "config/storage/translators.h"
#include "config/system/translators.h"
#include "config/traffic/translators.h"

#endif  // KOVA_API_TRANSLATORS_H_
