// Pointer fields inside records, for the harness that fills records with
// arbitrary bytes (see RecordPointer in catalog.h). Add a line here, with
// offsetof() from the record's public header, when a record gains a pointer
// to a caller-owned buffer: until then the fuzzers and the bad-input suite
// hand the translator a wild pointer.
#include <cstddef>

#include "harness/catalog.h"
#include "kova/records/analyse.h"
#include "kova/records/analyse_setup.h"

namespace kova_harness {

const RecordPointer kRecordPointers[] = {
    // name, pointer offset, count offset, bytes per counted unit
    {"VideoAnalyseRule", offsetof(VideoAnalyseRuleList, ruleBuffer),
     offsetof(VideoAnalyseRuleList, ruleBufferLength), 1},
    {"AudioAnalyseRule", offsetof(VideoAnalyseRuleList, ruleBuffer),
     offsetof(VideoAnalyseRuleList, ruleBufferLength), 1},
    {"VideoAnalyseGlobal", offsetof(VideoAnalyseGlobalConfig, periods),
     offsetof(VideoAnalyseGlobalConfig, periodCount), sizeof(DayNightPeriod)},
    {nullptr, 0, 0, 0},
};

}  // namespace kova_harness
