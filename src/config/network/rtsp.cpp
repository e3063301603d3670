// "RTSP": the RTSP service, its RTP port range and RTSP over HTTP.
//
// This configuration has always been read without looking at "result", and
// the caller's buffer is written only once the text has parsed.
#include <iterator>

#include "common/fields/field_table.h"
#include "common/json/json.h"
#include "drivers/described_record.h"
#include "drivers/response_frame.h"
#include "kova/records/network.h"

namespace kova {

namespace {

constexpr Field kRtpFields[] = {
    KOVA_F(RtspConfig, rtpStartPort, "StartPort", kInt),
    KOVA_F(RtspConfig, rtpEndPort, "EndPort", kInt),
};
constexpr FieldTable kRtp = KOVA_TABLE(kRtpFields);

constexpr Field kTunnelFields[] = {
    KOVA_F(RtspConfig, httpTunnelEnable, "Enable", kBool),
    KOVA_F(RtspConfig, httpTunnelPort, "Port", kInt),
};
constexpr FieldTable kTunnel = KOVA_TABLE(kTunnelFields);

constexpr Field kRtspFields[] = {
    KOVA_F(RtspConfig, enable, "Enable", kBool),
    KOVA_F(RtspConfig, port, "Port", kInt),
    KOVA_GROUP(RtspConfig, "RTP", kRtp),
    KOVA_GROUP(RtspConfig, "RtspOverHttp", kTunnel),
};

}  // namespace

KOVA_DESCRIBE(RtspConfig, kRtspFields)
namespace {

// The record starts from zero with its own size, also for a missing table.
constexpr const Field& kWhole = DescribedObject<RtspConfig>::kWhole;

}  // namespace

extern const ResponseFrame kRtspFrame =
    KeptRecordFrame<RtspConfig>(ParseDescribedSized<RtspConfig, kWhole>, DescribedPack<kWhole>())
        .IgnoreResult()
        .Describe(kWhole);

}  // namespace kova
