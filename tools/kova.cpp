// kova: the command-line tool for people who debug device integrations.
//
//   kova names                                 every name, its directions, built or not,
//                                              which read a flat document, and (last,
//                                              marked "added") the names beyond the
//                                              protocol's lists
//
// Any NAME may be given as "flat:NAME": the answer's payload as a flat list
// of paths and values (kova/records/flat.h).
//   kova parse NAME FILE [-o RECORD.bin] [--size N] [--sized] [--channel N] [--rule-buffer N]
//   kova pack NAME RECORD.bin [--size N]
//   kova roundtrip NAME FILE [--size N] [--sized] [--channel N] [--rule-buffer N]
//   kova events FILE [--by-callback] [--show]  every event (or record) of a notification
//   kova show NAME FILE [--channel N] [--sized] [--rule-buffer N] [--json] [--all]
//                                              what the records parse filled, field by field
//   kova layout NAME [--json]                  the record's fields: offset, size, C type, key
//
// `--sized` is for the configurations whose records begin with their own
// size, set by the caller: the record size is written into every slot of
// the buffer before parsing.
//
// `--rule-buffer N` is for the analysis rule list ("VideoAnalyseRule",
// "AudioAnalyseRule"), whose record points at a caller's buffer of rule
// entries: the record is given a rule buffer of N bytes before parsing, and
// `-o` writes the entries filled instead of the record.
//
// `--channel N` sets the document's top-level "channel" before parsing, as
// the device's client does when it asks for one channel (-1: all channels).
// "Encode" and "Record" read one record or one per channel by it, so that an
// answer saved from the wire is read as the device meant it without editing
// the file. The rest of the document is kept as it was.
//
// `--log FILE`, before or after the command, opens the library's error log
// at FILE for the run: every report a translator makes (malformed data, a
// name not built yet) is appended there as one line.
#include "kova/kova.h"

#include <json/value.h>
#include <json/writer.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "api/dispatch.h"
#include "common/base/log.h"
#include "common/json/json.h"
#include "config/analyse/rule_types.h"
#include "events/event_code_dictionary.h"
#include "kova/records/analyse.h"
#include "kova/records/events.h"
#include "show.h"
#include "tool.h"

namespace {

constexpr uint32_t kDefaultSize = 8u << 20;

int Usage() {
  std::fprintf(
      stderr,
      "usage: kova names\n"
      "       (any NAME below may be given as flat:NAME: the payload as paths and values)\n"
      "       kova parse NAME FILE [-o RECORD.bin] [--size N] [--sized] [--channel N] "
      "[--rule-buffer N]\n"
      "       kova pack NAME RECORD.bin [--size N]\n"
      "       kova roundtrip NAME FILE [--size N] [--sized] [--channel N] [--rule-buffer N]\n"
      "       kova events FILE [--by-callback] [--show]\n"
      "       kova show NAME FILE [--channel N] [--sized] [--rule-buffer N] [--json] [--all]\n"
      "       kova layout NAME [--json]\n"
      "option: --log FILE  append the library's error reports to FILE\n");
  return 2;
}

bool ReadFile(const std::string& path, std::string* out) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return false;
  out->assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  return !in.bad();
}

bool WriteFile(const std::string& path, const void* data, size_t n) {
  std::ofstream out(path, std::ios::binary);
  out.write(static_cast<const char*>(data), static_cast<std::streamsize>(n));
  return static_cast<bool>(out);
}

struct Options {
  std::vector<std::string> args;
  std::string output;
  uint32_t size = kDefaultSize;
  bool sized = false;
  bool byCallback = false;
  ShowOptions show;
  bool showEvents = false;
  uint32_t ruleBuffer = 0;  // bytes of the rule buffer; 0: none
  bool hasChannel = false;
  int32_t channel = 0;
  bool ok = true;
};

// A positive 32-bit number option; false when it is not one.
bool ParseSize(const char* text, uint32_t* out) {
  char* end = nullptr;
  const unsigned long long n = std::strtoull(text, &end, 0);
  if (*end != '\0' || n == 0 || n > 0xFFFFFFFFull) return false;
  *out = static_cast<uint32_t>(n);
  return true;
}

Options ParseOptions(int argc, char** argv) {
  Options o;
  for (int i = 2; i < argc; ++i) {
    const std::string a = argv[i];
    if (a == "-o" && i + 1 < argc) {
      o.output = argv[++i];
    } else if (a == "--size" && i + 1 < argc) {
      if (!ParseSize(argv[++i], &o.size)) o.ok = false;
    } else if (a == "--rule-buffer" && i + 1 < argc) {
      if (!ParseSize(argv[++i], &o.ruleBuffer)) o.ok = false;
    } else if (a == "--sized") {
      o.sized = true;
    } else if (a == "--by-callback") {
      o.byCallback = true;
    } else if (a == "--json") {
      o.show.json = true;
    } else if (a == "--all") {
      o.show.all = true;
    } else if (a == "--show") {
      o.showEvents = true;
    } else if (a == "--channel" && i + 1 < argc) {
      char* end = nullptr;
      const long long n = std::strtoll(argv[++i], &end, 10);
      if (*end != '\0' || end == argv[i] || n < INT32_MIN || n > INT32_MAX) o.ok = false;
      o.hasChannel = true;
      o.channel = static_cast<int32_t>(n);
    } else if (!a.empty() && a[0] == '-') {
      o.ok = false;
    } else {
      o.args.push_back(a);
    }
  }
  return o;
}

int Names() {
  // The device protocol's names first, in the parse list's order, then the
  // pack-only ones; the names added beyond those lists last, marked.
  for (bool added : {false, true}) {
    for (size_t i = 0; i < kova::kParseNameCount; ++i) {
      if (kova::kParseNames[i].added != added) continue;
      const char* name = kova::kParseNames[i].name;
      const int k = kova::FindPackName(name);
      std::printf("%-45s parse %-9s pack %-9s%s%s\n", name,
                  kova::ParseBuilt(static_cast<int>(i)) ? "built" : "not-built",
                  k < 0 ? "-" : (kova::PackBuilt(k) ? "built" : "not-built"),
                  kova::ParseReadsFlat(static_cast<int>(i)) ? " reads flat" : "",
                  added ? " added" : "");
    }
    if (added) break;
    for (size_t k = 0; k < kova::kPackNameCount; ++k) {
      const char* name = kova::kPackNames[k].name;
      if (kova::FindParseName(name) >= 0) continue;
      std::printf("%-45s parse %-9s pack %s\n", name, "-",
                  kova::PackBuilt(static_cast<int>(k)) ? "built" : "not-built");
    }
  }
  return 0;
}

// With `bytes` > 0, aims a rule list record at the start of `record` at a
// new rule buffer `rules` of that many bytes.
void AttachRuleBuffer(uint32_t bytes, std::vector<unsigned char>* record,
                      std::vector<unsigned char>* rules) {
  if (bytes == 0 || record->size() < sizeof(VideoAnalyseRuleList)) return;
  rules->assign(bytes, 0);
  VideoAnalyseRuleList list = {0, rules->data(), bytes};
  std::memcpy(record->data(), &list, sizeof list);
}

// The bytes of the entries a parsed rule list holds.
size_t RuleEntryBytes(const std::vector<unsigned char>& record,
                      const std::vector<unsigned char>& rules) {
  VideoAnalyseRuleList list;
  std::memcpy(&list, record.data(), sizeof list);
  size_t at = 0;
  for (uint32_t i = 0; i < list.ruleCount && rules.size() - at >= sizeof(RuleEntryHeader); ++i) {
    RuleEntryHeader header;
    std::memcpy(&header, rules.data() + at, sizeof header);
    if (rules.size() - at - sizeof header < header.bodySize) break;
    at += sizeof header + header.bodySize;
  }
  return at;
}

// Sets the top-level "channel" of the document `json`. The rest is written
// back losslessly: real numbers with 17 digits, text bytes unchanged.
bool SetChannel(int32_t channel, std::string* json) {
  Json::Value root;
  if (!kova::ReadJson(json->c_str(), &root) || !root.isObject()) return false;
  kova::SetMember(root, "channel") = channel;
  Json::StreamWriterBuilder builder;
  builder["indentation"] = "";
  builder["precision"] = 17;
  builder["emitUTF8"] = true;
  *json = Json::writeString(builder, root);
  return true;
}

// Parses FILE as NAME into `record`; prints the outcome. Returns the exit code.
int ParseInto(const std::string& name, const std::string& file, const Options& o,
              std::vector<unsigned char>* record, uint32_t* retLen, bool quiet = false) {
  std::string json;
  if (!ReadFile(file, &json)) {
    std::fprintf(stderr, "kova: cannot read %s\n", file.c_str());
    return 1;
  }
  if (o.hasChannel && !SetChannel(o.channel, &json)) {
    std::fprintf(stderr, "kova: %s is not a JSON object; --channel needs one\n", file.c_str());
    return 1;
  }
  if (o.sized) {
    const uint32_t stride = kova::ParseRecordSize(kova::FindParseName(name.c_str()));
    if (stride < sizeof(uint32_t)) {
      std::fprintf(stderr, "kova: no record size known for %s\n", name.c_str());
      return 1;
    }
    for (size_t at = 0; at + stride <= record->size(); at += stride) {
      std::memcpy(record->data() + at, &stride, sizeof stride);
    }
  }
  *retLen = 0;
  const int rc = KOVA_ParseData(name.c_str(), json.c_str(), record->data(),
                                static_cast<uint32_t>(record->size()), retLen);
  if (!quiet) std::printf("parse %s: return %d, retLen %u\n", name.c_str(), rc, *retLen);
  if (rc == 0) {
    std::fprintf(stderr, "kova: parse of %s failed\n", name.c_str());
    return 1;
  }
  return 0;
}

// Packs a record as KOVA_PacketData does; `writeBack` (the round trip) also
// writes the records of parse-only names back through their description.
int Pack(const std::string& name, const void* in, uint32_t inLen, uint32_t outLen, bool writeBack) {
  std::vector<char> text(outLen);
  const int rc = writeBack ? kova::WriteBackParsed(name.c_str(), in, inLen, text.data(), outLen)
                           : KOVA_PacketData(name.c_str(), in, inLen, text.data(), outLen);
  if (rc == 0) {
    std::fprintf(stderr, "kova: pack of %s failed (input %u bytes)\n", name.c_str(), inLen);
    return 1;
  }
  std::fwrite(text.data(), 1, strnlen(text.data(), text.size()), stdout);
  return 0;
}

// ---- kova events ----------------------------------------------------------

struct EventTally {
  const ShowOptions* show = nullptr;  // --show: each record field by field
  uint32_t delivered = 0;
  uint32_t withRecord = 0;
  uint32_t withoutRecord = 0;
  uint32_t otherRecords = 0;
};

const char* ActionName(int32_t action) {
  switch (action) {
    case KOVA_EVENT_START:
      return "Start";
    case KOVA_EVENT_STOP:
      return "Stop";
    default:
      return "Pulse";
  }
}

void PrintEvent(uint32_t code, const void* info) {
  const char* name = kova::RuleTypeName(code);
  std::printf("event %3u %-24s", code, name != nullptr ? name : "-");
  if (info == nullptr) {
    std::printf(" (no data)\n");
    return;
  }
  const EventCommon& c = *static_cast<const EventCommon*>(info);
  const char* alarm = kova::EventCodeDictionary::Instance().NameOf(c.dictionaryCode);
  std::printf(" %-5s channel %d", ActionName(c.action), c.channel);
  if (alarm != nullptr) std::printf(" alarm 0x%x %s", c.dictionaryCode, alarm);
  std::printf(" name \"%s\" rule %u event %u utc %u.%03u pts %.0f", c.name, c.ruleId, c.eventId,
              c.utc, c.utcMs, c.pts);
  if (c.groupId != 0) std::printf(" group %u %d/%d", c.groupId, c.indexInGroup, c.countInGroup);
  std::printf(" objects %u", c.objectCount);
  if (c.objectPresent) std::printf(" object %s#%d", c.object.objectType, c.object.objectId);
  std::printf("\n");
}

void PrintOtherRecord(uint32_t code, const void* info, uint32_t size) {
  if ((code & KOVA_CALLBACK_ANALYSE_RULE) != 0) {
    const RuleHead& r = *static_cast<const RuleHead*>(info);
    const uint32_t type = code & ~KOVA_CALLBACK_ANALYSE_RULE;
    const char* name = kova::RuleTypeName(type);
    std::printf("rule  %3u %-24s name \"%s\" enable %u object types %u\n", type,
                name != nullptr ? name : "-", r.name, r.enable, r.objectTypeCount);
    return;
  }
  switch (code) {
    case KOVA_CALLBACK_PTZ_STATUS: {
      const PtzStatusRecord& r = *static_cast<const PtzStatusRecord*>(info);
      std::printf("ptz status channel %d position %d %d %d preset %d %s\n", r.channel,
                  r.position[0], r.position[1], r.position[2], r.presetId, r.moveStatus);
      return;
    }
    case KOVA_CALLBACK_FOCUS_STATUS: {
      const FocusStatusRecord& r = *static_cast<const FocusStatusRecord*>(info);
      std::printf("focus status channel %d focus %.4f zoom %.4f %s\n", r.channel, r.focus, r.zoom,
                  r.status);
      return;
    }
    case KOVA_CALLBACK_VIDEO_STAT_SUMMARY: {
      const VideoStatSummaryRecord& r = *static_cast<const VideoStatSummaryRecord*>(info);
      std::printf("stat summary channel %d \"%s\" inside %d entered %d exited %d\n", r.channel,
                  r.ruleName, r.insideNumber, r.entered.total, r.exited.total);
      return;
    }
    case KOVA_CALLBACK_OBJECT: {
      const EventObject& r = *static_cast<const EventObject*>(info);
      std::printf("object %s#%d box %d %d %d %d\n", r.objectType, r.objectId, r.boundingBox.left,
                  r.boundingBox.top, r.boundingBox.right, r.boundingBox.bottom);
      return;
    }
    case KOVA_CALLBACK_TRAFFIC_FLOW_STAT: {
      const TrafficFlowStatRecord& r = *static_cast<const TrafficFlowStatRecord*>(info);
      std::printf("traffic flow lane %d vehicles %d average speed %.2f state %d\n", r.lane,
                  r.vehicles, r.averageSpeed, r.state);
      return;
    }
    default:
      std::printf("record code 0x%x, %u bytes\n", code, size);
  }
}

int KOVA_CALL OnEvent(uint32_t code, const void* info, uint32_t size, const void*, uint32_t,
                      void* user) {
  EventTally& tally = *static_cast<EventTally*>(user);
  ++tally.delivered;
  if (code >= KOVA_CALLBACK_PTZ_STATUS) {
    ++tally.otherRecords;
    PrintOtherRecord(code, info, size);
    if (tally.show != nullptr) ShowEventRecord(code, info, size, *tally.show);
    return 0;
  }
  ++(info != nullptr ? tally.withRecord : tally.withoutRecord);
  PrintEvent(code, info);
  if (tally.show != nullptr) ShowEventRecord(code, info, size, *tally.show);
  return 0;
}

int Events(const std::string& file, bool byCallback, const ShowOptions* show) {
  std::string text;
  if (!ReadFile(file, &text)) {
    std::fprintf(stderr, "kova: cannot read %s\n", file.c_str());
    return 1;
  }
  EventTally tally;
  tally.show = show;
  const uint32_t len = static_cast<uint32_t>(text.size());
  const int rc = byCallback ? KOVA_ParseDataByCallback(text.c_str(), len, OnEvent, &tally)
                            : KOVA_ParseAnalyzerEventData(text.c_str(), len, OnEvent, &tally);
  std::printf("%u delivered: %u events with a record, %u without, %u other records (return %d)\n",
              tally.delivered, tally.withRecord, tally.withoutRecord, tally.otherRecords, rc);
  return rc != 0 ? 0 : 1;
}

// Takes every "--log FILE" out of the arguments; the last one names the log.
// Returns false when "--log" has no FILE after it.
bool TakeLogOption(std::vector<char*>* args, std::string* logPath) {
  for (size_t i = 1; i < args->size();) {
    if (std::strcmp((*args)[i], "--log") != 0) {
      ++i;
      continue;
    }
    if (i + 1 >= args->size()) return false;
    *logPath = (*args)[i + 1];
    args->erase(args->begin() + static_cast<std::ptrdiff_t>(i),
                args->begin() + static_cast<std::ptrdiff_t>(i + 2));
  }
  return true;
}

int Run(int argc, char** argv) {
  if (argc < 2) return Usage();
  const std::string cmd = argv[1];
  const Options o = ParseOptions(argc, argv);
  if (!o.ok) return Usage();
  if (cmd == "names" && o.args.empty() && !o.hasChannel) return Names();
  if (cmd == "events" && o.args.size() == 1 && !o.hasChannel)
    return Events(o.args[0], o.byCallback, o.showEvents ? &o.show : nullptr);
  if (cmd == "layout" && o.args.size() == 1 && !o.hasChannel) return ShowLayout(o.args[0], o.show);

  if (cmd == "show" && o.args.size() == 2) {
    std::vector<unsigned char> record(o.size);
    std::vector<unsigned char> rules;
    AttachRuleBuffer(o.ruleBuffer, &record, &rules);
    uint32_t retLen = 0;
    const int rc = ParseInto(o.args[0], o.args[1], o, &record, &retLen, o.show.json);
    if (rc != 0) return rc;
    return ShowRecords(o.args[0], record, retLen, rules, o.show);
  }

  if (cmd == "parse" && o.args.size() == 2) {
    std::vector<unsigned char> record(o.size);
    std::vector<unsigned char> rules;
    AttachRuleBuffer(o.ruleBuffer, &record, &rules);
    uint32_t retLen = 0;
    const int rc = ParseInto(o.args[0], o.args[1], o, &record, &retLen);
    if (rc != 0) return rc;
    size_t n = retLen <= record.size() ? retLen : record.size();
    const unsigned char* bytes = record.data();
    if (!rules.empty()) {
      n = RuleEntryBytes(record, rules);
      bytes = rules.data();
    }
    if (!o.output.empty()) {
      if (!WriteFile(o.output, bytes, n)) {
        std::fprintf(stderr, "kova: cannot write %s\n", o.output.c_str());
        return 1;
      }
      std::printf("record: %zu bytes written to %s\n", n, o.output.c_str());
    } else {
      std::printf("record: %zu bytes (use -o FILE to keep them)\n", n);
    }
    return 0;
  }

  if (cmd == "pack" && o.args.size() == 2 && !o.hasChannel) {
    std::string record;
    if (!ReadFile(o.args[1], &record)) {
      std::fprintf(stderr, "kova: cannot read %s\n", o.args[1].c_str());
      return 1;
    }
    return Pack(o.args[0], record.data(), static_cast<uint32_t>(record.size()), o.size, false);
  }

  if (cmd == "roundtrip" && o.args.size() == 2) {
    std::vector<unsigned char> record(o.size);
    std::vector<unsigned char> rules;
    AttachRuleBuffer(o.ruleBuffer, &record, &rules);
    uint32_t retLen = 0;
    const int rc = ParseInto(o.args[0], o.args[1], o, &record, &retLen);
    if (rc != 0) return rc;
    return Pack(o.args[0], record.data(), retLen, o.size, true);
  }
  return Usage();
}

}  // namespace

int KovaMain(int argc, char** argv) {
  std::vector<char*> args(argv, argv + argc);
  std::string logPath;
  if (!TakeLogOption(&args, &logPath)) return Usage();
  if (!logPath.empty()) {
    LogSettings settings = {};
    std::snprintf(settings.path, sizeof(settings.path), "%s", logPath.c_str());
    if (logPath.size() >= sizeof(settings.path) || !kova::OpenLogger(&settings)) {
      kova::CloseLogger();
      std::fprintf(stderr, "kova: cannot open log file %s\n", logPath.c_str());
      return 1;
    }
  }
  int rc = 1;
  try {
    rc = Run(static_cast<int>(args.size()), args.data());
  } catch (const std::exception& e) {
    std::fprintf(stderr, "kova: %s\n", e.what());
  }
  kova::CloseLogger();
  return rc;
}
