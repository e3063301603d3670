// Records of the recording and storage configurations: "Record", "NAS",
// "StorageGroup", "Raid" and "RecordMode".
//
// Text fields hold NUL-terminated text in the local code page, cut to their
// capacity less one byte on parse. On pack a text field is read up to its
// first NUL or its capacity, whichever comes first.
#ifndef KOVA_RECORDS_STORAGE_H_
#define KOVA_RECORDS_STORAGE_H_

#include <stddef.h>
#include <stdint.h>

#include "kova/records/schedule.h"

#ifdef __cplusplus
extern "C" {
#endif

// ---------------------------------------------------------------------------
// "Record": the recording plan of one channel.
//
// The leading number of every section ("TimeSection" text "6 00:00:00-24:00:00")
// is a mask of recording kinds whose bits are ordered differently in the
// record and on the device:
//
//   record bit 0 (1) <-> device bit 1 (2)
//   record bit 1 (2) <-> device bit 2 (4)
//   record bit 2 (4) <-> device bit 0 (1)
//   record bit 3 (8) <-> device bit 4 (16)
//
// Device bit 3 (8) and device bits above 4 are dropped on parse; record bits
// above 3 are dropped on pack. So a device's 6 reads as 3 and packs back as
// 6, and a device's 8 reads as 0.
//
// Parse clears the caller's whole buffer first. "channel" at the root of the
// response selects the mode: absent or not negative, "table" is one
// channel's object, read into record 0 with `channel` set to that number;
// negative, "table" must be an array (anything else fails), element i fills
// record i (as many as the buffer holds) with `channel` i. A null "table"
// succeeds with a returned length of 0; otherwise the returned length is the
// bytes of the records filled. "result" must be true.
//
// Pack: an input of exactly one record gives one object; any other length
// an array of inLen / sizeof(RecordConfig) objects (one record and a partial
// one give an array of one); an input shorter than one record gives null
// (the text "null" and a newline). The text is copied only when it is
// strictly shorter than the output buffer.
typedef struct RecordConfig {
  int32_t channel;  // 0-based channel: "channel" of the response, or the element index
  // "TimeSection" rows 0..6 (the device's days in its order), six
  // sections a day, masks in the record's bit order. A section whose text
  // is not a string stays zero; a malformed one keeps the numbers read
  // before the text stopped matching "%d %d:%d:%d-%d:%d:%d".
  TimeSectionRecord sections[7][6];
  int32_t preRecord;      // "PreRecord": seconds recorded before a trigger
  int32_t redundancy;     // "Redundancy": 0 or 1 (written as a boolean)
  int32_t stream;         // "Stream": stream recorded (0 main, 1.. extra); read unsigned, so
                          // -1 reads as 0; a negative value leaves "Stream" out on pack;
                          // absent leaves 0
  int32_t layoutVersion;  // set to 3 by every parse; not read by pack
  // 1 when "TimeSection" had at least 8 rows (row 7 is the holiday), else
  // 0. On pack, non-zero writes "HolidayEnable" and row 7.
  int32_t holidayValid;
  int32_t holidayEnable;                 // "HolidayEnable": 0 or 1; read only with holidayValid
  TimeSectionRecord holidaySections[6];  // "TimeSection" row 7
} RecordConfig;

// ---------------------------------------------------------------------------
// "NAS": network storage servers, in one of two forms.
//
// The server table ("table" an array of server objects) fills `servers` by
// position: slot i is element i, the first 16 elements are read, a null
// element leaves its slot zero and is not counted in `serverCount`.
// Enumeration texts compare exactly (letter case included); an unknown
// "Protocol" or "CharacterEncoding" leaves 0 ("FTP", "UTF-8"), an unknown
// "CloudProtocol" gives 0.
//
// A response whose root has a non-null "NAS" member is the older
// single-server form, read into `legacy` whatever else the response holds
// ("result" is not consulted for it).
//
// Parse needs a buffer of one NasConfig, clears it whole, and reports one
// NasConfig as the returned length. Pack writes the first NasConfig of the
// input (a shorter input is refused) in the form `useServerList` names:
//   - 0: { "NAS" : { ... } }, every key of LegacyNasConfig;
//   - otherwise: the array of servers up to the last slot that is not all
//     zero bytes, an all-zero slot as null (as a null element reads), every
//     other slot as an object of every key below, except "CloudProtocol"
//     (written only for a named cloud), "SubDirectory" (only when not empty)
//     and "UpdateTime" (only when not 0). `serverCount` is not read by pack.
// The text is copied only when it is strictly shorter than the output buffer.

// Enumerations of NasServer (and LegacyNasConfig "Protocol").
enum {
  KOVA_NAS_FTP = 0,           // "FTP"
  KOVA_NAS_SMB = 1,           // "SMB"
  KOVA_NAS_ISCSI = 2,         // "ISCSI"
  KOVA_NAS_NFS = 3,           // "NFS"
  KOVA_NAS_UTF8 = 0,          // "UTF-8"
  KOVA_NAS_GB2312 = 1,        // "GB2312"
  KOVA_NAS_NO_CLOUD = 0,      // "CloudProtocol" absent or unknown
  KOVA_NAS_BAIDU_CLOUD = 1,   // "BaiduCloud"
  KOVA_NAS_GOOGLE_DRIVE = 2,  // "GoogleDrive"
  KOVA_NAS_DROPBOX = 3,       // "Dropbox"
};

// One element of the server table. Absent keys leave 0 / empty text.
typedef struct NasServer {
  int32_t enable;             // "Enable": 0 or 1 (written as a boolean)
  char name[128];             // "Name"
  int32_t protocol;           // "Protocol": KOVA_NAS_FTP .. KOVA_NAS_NFS; another value packs as ""
  char address[256];          // "Address": host name or dotted address
  int32_t port;               // "Port"
  char userName[64];          // "UserName"
  char password[64];          // "Password"
  char directory[128];        // "Directory": remote directory
  int32_t characterEncoding;  // "CharacterEncoding": KOVA_NAS_UTF8 or KOVA_NAS_GB2312
  uint32_t timeOut;           // "TimeOut": read unsigned (a negative number reads as 0)
  uint32_t streamId;          // "StreamID": read unsigned
  // "UpdateTime": the packed date-time (year << 26 | month << 22 | day << 17 |
  // hour << 12 | minute << 6 | second; only the year's low six bits are
  // kept). Read from "2024-05-06 07:08:09" (a ".fraction" is ignored; text
  // that does not give all six numbers leaves 0); written as
  // "2024-05-06 07:08:09.0" with the year from 1984 to 2047 that has the
  // kept bits.
  uint32_t updateTime;
  int32_t cloudProtocol;   // "CloudProtocol": KOVA_NAS_NO_CLOUD .. KOVA_NAS_DROPBOX
  char subDirectory[256];  // "SubDirectory": directory on the cloud drive
} NasServer;

// The older single-server form: the root's "NAS" object. Every key is
// written back on pack; absent keys read as 0 / empty text.
//
// "ChnTime" is an object with, for channel c (0 to 255), the members
// "En<c>" and "Time<c>": each an array of 7 days (in the device's order), each day an
// array of 2 upload windows. "En<c>"[d][w] is a boolean, "Time<c>"[d][w] the
// text "08:00:00-18:00:00" (read as "%d:%d:%d-%d:%d:%d", each number cut to
// 8 bits; text that does not give all six numbers leaves the times 0).
typedef struct LegacyNasConfig {
  int32_t enable;       // "En": 0 or 1 (written as a boolean)
  int32_t version;      // "Version": protocol version of the server
  int32_t protocol;     // "Protocol": KOVA_NAS_FTP .. KOVA_NAS_NFS, exact texts as for NasServer
  char address[256];    // "Address"
  int32_t port;         // "Port"
  char userName[64];    // "UserName"
  char password[64];    // "Password"
  char directory[256];  // "Directory": remote directory
  int32_t fileLength;   // "FileLen": size of one uploaded file, in megabytes
  int32_t interval;     // "Interval": seconds between uploads
  // One more than the highest channel c for which "En<c>" or "Time<c>" was
  // present and not null (at most 256); pack writes channels 0 to
  // channelCount - 1.
  int32_t channelCount;
  // [channel][day][window]: `enable` from "En<c>", the six times from
  // "Time<c>"; other channels and windows read as zero.
  TimeSectionRecord uploadTimes[256][7][2];
} LegacyNasConfig;

typedef struct NasConfig {
  int32_t useServerList;   // 0: the response carried the legacy "NAS" object; 1: the server table
  LegacyNasConfig legacy;  // filled only in the legacy case
  int32_t serverCount;     // non-null elements read from the server table (at most 16)
  NasServer servers[16];   // slot i from element i of the server table
} NasConfig;

// ---------------------------------------------------------------------------
// Caller-sized records: "StorageGroup" and "Raid".
//
// Each record begins with its own size in bytes, a uint32 the caller sets
// (normally sizeof the record; a caller built with an older, shorter record
// gives its own size). The caller's buffer is a row of records at that
// stride, read from the first record. Parse refuses a size below 1 or above
// the buffer; it clears the buffer, writes the size into every slot, builds
// each entry in a full record and copies it out up to the caller's size.
// "table" is an array with one element per entry (a single object counts as
// one entry); a null "table" succeeds with a returned length of 0. The
// returned length is entries x the caller's size. "result" must be true.
// Pack steps through inLen / size records by the first record's size word
// (a record shorter than ours packs as if the rest were zero) and always
// writes an array. The text is copied only when it is strictly shorter than
// the output buffer.

// One element of "Channels".
typedef struct StorageGroupChannel {
  int32_t maxPictures;  // "MaxPictures"
  char path[32];        // "Path"
} StorageGroupChannel;

// "StorageGroup": one named storage group.
typedef struct StorageGroupRecord {
  uint32_t size;              // the record's size, set by the caller
  char name[64];              // "Name"
  char memo[128];             // "Memo"
  int32_t fileHoldTime;       // "FileHoldTime": days files are kept (0: no limit)
  int32_t overWrite;          // "OverWrite": 0 or 1 (written as a boolean)
  char recordPathRule[260];   // "RecordPathRule": path pattern of recorded files
  char picturePathRule[260];  // "PicturePathRule": path pattern of pictures
  // Elements of "Channels" read (at most 1024; more are ignored). Element i
  // fills channels[i]; an element that is not an object leaves it zero but
  // is counted. Pack writes the first channelCount entries.
  int32_t channelCount;
  StorageGroupChannel channels[1024];  // "Channels"
} StorageGroupRecord;

// "Raid": one disk array.
typedef struct RaidRecord {
  uint32_t size;  // the record's size, set by the caller
  char name[64];  // "Name": the array's device name
  int32_t level;  // "Level": RAID level (0, 1, 5, 6, 10, ...), signed
  // Elements of "Members" read (at most 32; more are ignored). An element
  // that is not a string leaves its name empty but is counted. Pack writes
  // the first memberCount names.
  int32_t memberCount;
  char members[32][260];  // "Members": the member disks' names
} RaidRecord;

// ---------------------------------------------------------------------------
// "RecordMode": the recording mode of one channel. "table" is an array with
// one element per channel (element i fills record i, as many as the buffer
// holds) or one channel's object (record 0). The buffer is cleared first; a
// null "table" succeeds with a returned length of 0; "result" must be true.
// Pack: exactly one record gives one object, more give an array (a trailing
// partial record is ignored); an input shorter than one record is refused.
typedef struct RecordModeConfig {
  int32_t mode;        // "Mode": 0 by schedule, 1 always, 2 off (as the device numbers them)
  int32_t modeExtra1;  // "ModeExtra1": the same for the first extra stream
} RecordModeConfig;

// Where one kind of recording of "RecordStoragePoint" is stored. Each key
// is read as a boolean (true/false, or 1/0 as some firmware sends) and
// written back as a boolean.
typedef struct StoragePointTargets {
  int32_t local;      // "Local": the device's own disks
  int32_t ftp;        // "FTP": the FTP server
  int32_t remote;     // "Remote": the network storage
  int32_t redundant;  // "Redundant": the redundant disk group
  // 1 when the key was given (pack writes it only then).
  uint8_t localPresent;
  uint8_t ftpPresent;
  uint8_t remotePresent;
  uint8_t redundantPresent;
} StoragePointTargets;

// "RecordStoragePoint": where each kind of recording and snapshot of one
// channel is stored. The device answers the whole table (an array: record
// i from channel i, as many as the buffer holds) or one channel's object
// (record 0); the buffer is cleared first. A kind the device leaves out
// keeps its flag 0 and is not written back.
typedef struct RecordStoragePointConfig {
  StoragePointTargets timingRecord;         // "TimingRecord"
  StoragePointTargets manualRecord;         // "ManualRecord"
  StoragePointTargets videoDetectRecord;    // "VideoDetectRecord"
  StoragePointTargets alarmRecord;          // "AlarmRecord"
  StoragePointTargets eventRecord;          // "EventRecord"
  StoragePointTargets timingSnapShot;       // "TimingSnapShot"
  StoragePointTargets manualSnapShot;       // "ManualSnapShot"
  StoragePointTargets videoDetectSnapShot;  // "VideoDetectSnapShot"
  StoragePointTargets alarmSnapShot;        // "AlarmSnapShot"
  StoragePointTargets eventSnapShot;        // "EventSnapShot"
  // present[i]: 1 when the i-th kind above was given (pack writes it only then)
  uint8_t present[10];
  uint8_t reserved[2];
} RecordStoragePointConfig;

#ifdef __cplusplus
}
static_assert(sizeof(RecordConfig) == 1372, "RecordConfig layout");
static_assert(offsetof(RecordConfig, sections) == 4, "RecordConfig layout");
static_assert(offsetof(RecordConfig, preRecord) == 1180, "RecordConfig layout");
static_assert(offsetof(RecordConfig, redundancy) == 1184, "RecordConfig layout");
static_assert(offsetof(RecordConfig, stream) == 1188, "RecordConfig layout");
static_assert(offsetof(RecordConfig, layoutVersion) == 1192, "RecordConfig layout");
static_assert(offsetof(RecordConfig, holidayValid) == 1196, "RecordConfig layout");
static_assert(offsetof(RecordConfig, holidayEnable) == 1200, "RecordConfig layout");
static_assert(offsetof(RecordConfig, holidaySections) == 1204, "RecordConfig layout");

static_assert(sizeof(NasServer) == 928, "NasServer layout");
static_assert(offsetof(NasServer, name) == 4, "NasServer layout");
static_assert(offsetof(NasServer, protocol) == 132, "NasServer layout");
static_assert(offsetof(NasServer, address) == 136, "NasServer layout");
static_assert(offsetof(NasServer, port) == 392, "NasServer layout");
static_assert(offsetof(NasServer, userName) == 396, "NasServer layout");
static_assert(offsetof(NasServer, password) == 460, "NasServer layout");
static_assert(offsetof(NasServer, directory) == 524, "NasServer layout");
static_assert(offsetof(NasServer, characterEncoding) == 652, "NasServer layout");
static_assert(offsetof(NasServer, timeOut) == 656, "NasServer layout");
static_assert(offsetof(NasServer, streamId) == 660, "NasServer layout");
static_assert(offsetof(NasServer, updateTime) == 664, "NasServer layout");
static_assert(offsetof(NasServer, cloudProtocol) == 668, "NasServer layout");
static_assert(offsetof(NasServer, subDirectory) == 672, "NasServer layout");

static_assert(sizeof(LegacyNasConfig) == 101020, "LegacyNasConfig layout");
static_assert(offsetof(LegacyNasConfig, address) == 12, "LegacyNasConfig layout");
static_assert(offsetof(LegacyNasConfig, port) == 268, "LegacyNasConfig layout");
static_assert(offsetof(LegacyNasConfig, directory) == 400, "LegacyNasConfig layout");
static_assert(offsetof(LegacyNasConfig, channelCount) == 664, "LegacyNasConfig layout");
static_assert(offsetof(LegacyNasConfig, uploadTimes) == 668, "LegacyNasConfig layout");

static_assert(offsetof(NasConfig, legacy) == 4, "NasConfig layout");
static_assert(offsetof(NasConfig, serverCount) == 4 + 101020, "NasConfig layout");
static_assert(offsetof(NasConfig, servers) == 4 + 101020 + 4, "NasConfig layout");
static_assert(sizeof(NasConfig) == 4 + 101020 + 4 + 16 * 928, "NasConfig layout");

static_assert(sizeof(StorageGroupChannel) == 36, "StorageGroupChannel layout");
static_assert(sizeof(StorageGroupRecord) == 728 + 1024 * 36, "StorageGroupRecord layout");
static_assert(offsetof(StorageGroupRecord, name) == 4, "StorageGroupRecord layout");
static_assert(offsetof(StorageGroupRecord, fileHoldTime) == 196, "StorageGroupRecord layout");
static_assert(offsetof(StorageGroupRecord, recordPathRule) == 204, "StorageGroupRecord layout");
static_assert(offsetof(StorageGroupRecord, channelCount) == 724, "StorageGroupRecord layout");
static_assert(offsetof(StorageGroupRecord, channels) == 728, "StorageGroupRecord layout");

static_assert(sizeof(RaidRecord) == 76 + 32 * 260, "RaidRecord layout");
static_assert(offsetof(RaidRecord, level) == 68, "RaidRecord layout");
static_assert(offsetof(RaidRecord, memberCount) == 72, "RaidRecord layout");
static_assert(offsetof(RaidRecord, members) == 76, "RaidRecord layout");

static_assert(sizeof(RecordModeConfig) == 8, "RecordModeConfig layout");
static_assert(sizeof(StoragePointTargets) == 20, "StoragePointTargets layout");
static_assert(offsetof(RecordStoragePointConfig, eventSnapShot) == 180,
              "RecordStoragePointConfig layout");
static_assert(sizeof(RecordStoragePointConfig) == 212, "RecordStoragePointConfig layout");
#endif

#endif  // KOVA_RECORDS_STORAGE_H_
