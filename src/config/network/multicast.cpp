// "Multicast": the multicast streams of a device, one list per transport.
#include "common/fields/field_table.h"
#include "common/json/json.h"
#include "drivers/described_record.h"
#include "drivers/response_frame.h"
#include "kova/records/network.h"

namespace kova {
namespace {

constexpr Field kStreamFields[] = {
    KOVA_F(MulticastStream, enable, "Enable", kBool),
    KOVA_F(MulticastStream, channel, "Channel", kInt),
    KOVA_F(MulticastStream, streamType, "StreamType", kText),
    KOVA_F(MulticastStream, multicastAddr, "MulticastAddr", kText),
    KOVA_F(MulticastStream, port, "Port", kInt),
    KOVA_F(MulticastStream, localAddr, "LocalAddr", kText),
};

}  // namespace

KOVA_DESCRIBE(MulticastStream, kStreamFields)
namespace {

constexpr Field kStream = KOVA_ITEM_NESTED(MulticastStream);

constexpr Field kMulticastFields[] = {
    KOVA_LIST(MulticastConfig, ts, "TS", kStream)
        .Count(KOVA_AT(MulticastConfig, tsCount), CountRule::kTaken),
    KOVA_LIST(MulticastConfig, rtp, "RTP", kStream)
        .Count(KOVA_AT(MulticastConfig, rtpCount), CountRule::kTaken),
};

}  // namespace

KOVA_DESCRIBE(MulticastConfig, kMulticastFields)
namespace {

// The record starts from zero with its own size, also for a missing table;
// the caller's buffer is written only once the answer is accepted.
constexpr const Field& kWhole = DescribedObject<MulticastConfig>::kWhole;

}  // namespace

extern const ResponseFrame kMulticastFrame =
    KeptRecordFrame<MulticastConfig>(ParseDescribedSized<MulticastConfig, kWhole>,
                                     DescribedPack<kWhole>())
        .Describe(kWhole);

}  // namespace kova
