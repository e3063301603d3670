// Device-wide media settings: the analog video standard ("VideoStandard", a
// bare text), recording and snapshot defaults ("MediaGlobal"), the router's
// port mapping ("UPnP") and picture upload to HTTP servers
// ("PictureHttpUpload").
#include "common/fields/field_table.h"
#include "drivers/described_record.h"
#include "drivers/response_frame.h"
#include "kova/records/picture.h"

namespace kova {

// The table is the text itself, not an object holding it.
constexpr Field kVideoStandardWhole = KOVA_F(VideoStandardConfig, standard, nullptr, kText);

extern const ResponseFrame kVideoStandardFrame =
    DescribedFrame<VideoStandardConfig, kVideoStandardWhole>();

constexpr Field kMediaGlobalFields[] = {
    KOVA_F(MediaGlobalConfig, overWrite, "OverWrite", kBool),
    KOVA_F(MediaGlobalConfig, logRecord, "LogRecord", kBool)
        .Flag(KOVA_AT(MediaGlobalConfig, logRecordPresent)),
    KOVA_F(MediaGlobalConfig, logEncode, "LogEncode", kBool)
        .Flag(KOVA_AT(MediaGlobalConfig, logEncodePresent)),
    KOVA_F(MediaGlobalConfig, packetType, "PacketType", kInt),
    KOVA_F(MediaGlobalConfig, packetLength, "PacketLength", kInt),
    KOVA_F(MediaGlobalConfig, packetSize, "PacketSize", kInt)
        .Flag(KOVA_AT(MediaGlobalConfig, packetSizePresent)),
    KOVA_F(MediaGlobalConfig, snapFormatAs, "SnapFormatAs", kText)
        .Flag(KOVA_AT(MediaGlobalConfig, snapFormatAsPresent)),
};

KOVA_DESCRIBE(MediaGlobalConfig, kova::kMediaGlobalFields)

extern const ResponseFrame kMediaGlobalFrame = DescribedObject<MediaGlobalConfig>::kFrame;

constexpr Field kUPnPMapFields[] = {
    KOVA_F(UPnPMap, enable, "Enable", kBool),
    KOVA_F(UPnPMap, innerPort, "InnerPort", kInt),
    KOVA_F(UPnPMap, outerPort, "OuterPort", kInt),
    KOVA_F(UPnPMap, protocol, "Protocol", kText),
    KOVA_F(UPnPMap, serviceName, "ServiceName", kText),
};

KOVA_DESCRIBE(UPnPMap, kova::kUPnPMapFields)

constexpr Field kUPnPMap = KOVA_ITEM_NESTED(UPnPMap);

constexpr Field kUPnPFields[] = {
    KOVA_F(UPnPConfig, enable, "Enable", kBool),
    KOVA_LIST(UPnPConfig, maps, "MapTable", kUPnPMap)
        .Count(KOVA_AT(UPnPConfig, mapCount), CountRule::kTaken),
};

KOVA_DESCRIBE(UPnPConfig, kova::kUPnPFields)

extern const ResponseFrame kUPnPFrame = DescribedObject<UPnPConfig>::kFrame;

constexpr Field kUploadEventType = KOVA_ITEM(char[KOVA_VIDEO_IN_TEXT], kText);

constexpr Field kUploadServerFields[] = {
    KOVA_F(PictureHttpUploadServer, address, "Address", kText),
    KOVA_F(PictureHttpUploadServer, port, "Port", kInt),
    KOVA_F(PictureHttpUploadServer, userName, "UserName", kText),
    KOVA_F(PictureHttpUploadServer, password, "Password", kText),
    KOVA_F(PictureHttpUploadServer, uploadPath, "Uploadpath", kText),
    KOVA_F(PictureHttpUploadServer, httpsEnable, "HttpsEnable", kBool)
        .Flag(KOVA_AT(PictureHttpUploadServer, httpsEnablePresent)),
    KOVA_LIST(PictureHttpUploadServer, eventTypes, "EventType", kUploadEventType)
        .Count(KOVA_AT(PictureHttpUploadServer, eventTypeCount), CountRule::kTaken)
        .Flag(KOVA_AT(PictureHttpUploadServer, eventTypePresent)),
};

KOVA_DESCRIBE(PictureHttpUploadServer, kova::kUploadServerFields)

constexpr Field kUploadServer = KOVA_ITEM_NESTED(PictureHttpUploadServer);

constexpr Field kPictureHttpUploadFields[] = {
    KOVA_F(PictureHttpUploadConfig, enable, "Enable", kBool),
    KOVA_LIST(PictureHttpUploadConfig, servers, "UploadServerList", kUploadServer)
        .Count(KOVA_AT(PictureHttpUploadConfig, serverCount), CountRule::kTaken),
};

KOVA_DESCRIBE(PictureHttpUploadConfig, kova::kPictureHttpUploadFields)

extern const ResponseFrame kPictureHttpUploadFrame =
    DescribedObject<PictureHttpUploadConfig>::kFrame;

}  // namespace kova
