#include "harness/documents.h"

#include <json/reader.h>
#include <json/writer.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <sstream>

#include "api/dispatch.h"
#include "common/json/json.h"
#include "harness/catalog.h"
#include "harness/guarded_buffer.h"
#include "kova/kova.h"

namespace kova_harness {

namespace fs = std::filesystem;

namespace {

const char kMarker[] = "\x01kova-harness-hostile\x01";

// The configuration name `candidate` stands for, in the lists' spelling.
std::string ListedName(const std::string& candidate) {
  const int i = kova::FindParseName(candidate.c_str());
  if (i >= 0) return kova::kParseNames[i].name;
  const int k = kova::FindPackName(candidate.c_str());
  if (k >= 0) return kova::kPackNames[k].name;
  return std::string();
}

bool ParseTree(const std::string& text, Json::Value* root) {
  Json::CharReaderBuilder builder;
  builder["collectComments"] = false;
  std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
  std::string errors;
  return reader->parse(text.data(), text.data() + text.size(), root, &errors);
}

// Writes `root` compactly, then puts the raw text `value` wherever the
// marker string stands.
std::string WriteWithValue(const Json::Value& root, const std::string& value) {
  Json::StreamWriterBuilder builder;
  builder["indentation"] = "";
  builder["emitUTF8"] = true;
  const std::string text = Json::writeString(builder, root);
  const std::string quoted = Json::writeString(builder, Json::Value(kMarker));
  std::string out;
  size_t from = 0;
  for (size_t at = text.find(quoted); at != std::string::npos; at = text.find(quoted, from)) {
    out.append(text, from, at - from).append(value);
    from = at + quoted.size();
  }
  return out.append(text, from, std::string::npos);
}

// Marks every `stride`-th scalar (counting in `seen`), or only counts them
// when `stride` is 0.
void MarkScalars(Json::Value& v, size_t stride, size_t* seen) {
  if (v.isObject()) {
    for (const std::string& key : v.getMemberNames()) MarkScalars(v[key], stride, seen);
  } else if (v.isArray()) {
    for (Json::ArrayIndex i = 0; i < v.size(); ++i) MarkScalars(v[i], stride, seen);
  } else if (stride != 0 && (*seen)++ % stride == 0) {
    v = kMarker;
  } else if (stride == 0) {
    ++*seen;
  }
}

// Marks the scalars of `v` for `value`: all of them, unless copies of a
// long value would make the document larger than a few hundred KiB (a
// document of megabytes only slows the suite down); then evenly spaced ones.
void MarkScalarsFor(Json::Value& v, const std::string& value) {
  const size_t kBudget = 256u << 10;
  size_t count = 0;
  MarkScalars(v, 0, &count);
  const size_t stride = std::max<size_t>(1, count * value.size() / kBudget + 1);
  size_t seen = 0;
  MarkScalars(v, stride, &seen);
}

void MarkChildContainers(Json::Value& v) {
  if (v.isObject()) {
    for (const std::string& key : v.getMemberNames()) {
      if (v[key].isObject() || v[key].isArray()) v[key] = kMarker;
    }
  } else if (v.isArray()) {
    for (Json::ArrayIndex i = 0; i < v.size(); ++i) {
      if (v[i].isObject() || v[i].isArray()) v[i] = kMarker;
    }
  }
}

// The table of a response envelope, or null when the document has none.
Json::Value* TableOf(Json::Value& root) {
  if (!root.isObject() || !root["params"].isObject() || !root["params"].isMember("table")) {
    return nullptr;
  }
  return &root["params"]["table"];
}

std::string Repeat(const std::string& s, size_t n) {
  std::string out;
  out.reserve(s.size() * n);
  for (size_t i = 0; i < n; ++i) out += s;
  return out;
}

}  // namespace

std::string NameOfSampleFile(const std::string& path) {
  const fs::path p(path);
  std::string stem = p.filename().string();
  if (stem.size() > 5 && stem.compare(stem.size() - 5, 5, ".json") == 0) {
    stem.resize(stem.size() - 5);
  }
  while (!stem.empty()) {
    const std::string name = ListedName(stem);
    if (!name.empty()) return name;
    const size_t cut = stem.find_last_of("._-");
    if (cut == std::string::npos) break;
    stem.resize(cut);
  }
  return ListedName(p.parent_path().filename().string());
}

std::vector<SampleDocument> LoadSampleDocuments(const std::vector<std::string>& dirs) {
  std::vector<SampleDocument> out;
  for (const std::string& dir : dirs) {
    std::error_code ec;
    if (!fs::is_directory(dir, ec)) continue;
    for (fs::recursive_directory_iterator it(dir, ec), end; !ec && it != end; it.increment(ec)) {
      if (!it->is_regular_file() || it->path().extension() != ".json") continue;
      std::ifstream in(it->path(), std::ios::binary);
      SampleDocument d;
      d.path = it->path().string();
      d.name = NameOfSampleFile(d.path);
      d.text.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
      out.push_back(std::move(d));
    }
  }
  std::sort(out.begin(), out.end(),
            [](const SampleDocument& a, const SampleDocument& b) { return a.path < b.path; });
  return out;
}

std::string Envelope(const std::string& table) {
  return "{\"result\":true,\"params\":{\"table\":" + table + "}}";
}

std::vector<std::string> PackedShapes(int k) {
  std::vector<std::string> out;
  if (!kova::PackBuilt(k)) return out;
  const char* name = kova::kPackNames[k].name;
  const uint32_t size = PackSizeOrDefault(k);
  for (Fill fill : {Fill::kAll7F, Fill::kZero}) {
    GuardedBuffer record(size);
    FillRecord(record.data(), record.size(), fill, 0);
    if (CallerSized(name) && size >= sizeof size) std::memcpy(record.data(), &size, sizeof size);
    PointedBuffers pointed;
    pointed.Attach(name, record.data(), record.size(), size, -1, std::string());
    for (uint32_t textSize : {1u << 20, kHugeBuffer}) {
      std::vector<char> text(textSize);
      if (KOVA_PacketData(name, record.data(), size, text.data(), textSize) == 0) continue;
      std::string packed(text.data(), strnlen(text.data(), text.size()));
      while (!packed.empty() && packed.back() == '\n') packed.pop_back();
      out.push_back(packed);
      break;
    }
  }
  return out;
}

std::vector<std::string> RealisticDocuments(int i, const std::vector<SampleDocument>& samples) {
  std::vector<std::string> out;
  const char* name = kova::kParseNames[i].name;
  for (const SampleDocument& d : samples) {
    if (kova::NameEquals(d.name.c_str(), name)) out.push_back(d.text);
  }
  const int k = kova::FindPackName(name);
  std::vector<std::string> shapes = k >= 0 ? PackedShapes(k) : std::vector<std::string>();
  std::sort(shapes.begin(), shapes.end(),
            [](const std::string& a, const std::string& b) { return a.size() < b.size(); });
  for (const std::string& shape : shapes) {
    out.push_back(Envelope(shape));
    if (shape.size() <= kSmallDocument / 2) {
      out.push_back(Envelope("[" + shape + "," + shape + "]"));
    }
  }
  if (out.empty()) out.push_back(Envelope("{}"));
  return out;
}

const std::vector<std::string>& HostileValues() {
  static const std::vector<std::string> kValues = {
      "null",
      "true",
      "false",
      "0",
      "-1",
      "2147483647",
      "2147483648",
      "-2147483648",
      "-2147483649",
      "4294967295",
      "4294967296",
      "9223372036854775807",
      "-9223372036854775808",
      "18446744073709551615",
      "18446744073709551616",
      "1" + std::string(400, '0'),
      "1e400",
      "-1e400",
      "1e-400",
      "4.9e-324",
      "1.7976931348623157e308",
      "-0.0",
      "-0.5",
      "NaN",
      "-Infinity",
      "-2147483648.5",
      "4294967295.9",
      "\"\"",
      "\"x\"",
      "\"12\"",
      "\"" + std::string(70000, 'A') + "\"",
      "\"\xff\xfe\xc3\x28\xe2\x82\x28\xed\xa0\x80\"",
      "\"a\\u0000b\"",
      "\"\\ud83d\\ude00\"",
      "\"%s%n%x%d%p\"",
      "\"a/b\\\\c\\\"d\\n\\t\"",
      "[]",
      "[1,2,3]",
      "[[[[[1]]]]]",
      "[null,null]",
      "{}",
      "{\"a\":1}",
      "[" + Repeat("2147483647,", 300) + "0]",
      "[" + Repeat("{},", 300) + "{}]",
      "[" + Repeat("\"" + std::string(300, 'z') + "\",", 100) + "\"\"]"};
  return kValues;
}

std::string ReplaceScalars(const std::string& doc, const std::string& value) {
  Json::Value root;
  if (!ParseTree(doc, &root)) return std::string();
  if (Json::Value* table = TableOf(root)) {
    MarkScalarsFor(*table, value);
  } else if (root.isObject()) {
    for (const std::string& key : root.getMemberNames()) {
      if (key != "result") MarkScalarsFor(root[key], value);
    }
  } else {
    MarkScalarsFor(root, value);
  }
  return WriteWithValue(root, value);
}

std::string ReplaceContainers(const std::string& doc, const std::string& value) {
  Json::Value root;
  if (!ParseTree(doc, &root)) return std::string();
  Json::Value* table = TableOf(root);
  if (table == nullptr) return std::string();
  if (table->isArray()) {
    for (Json::ArrayIndex i = 0; i < table->size(); ++i) MarkChildContainers((*table)[i]);
  } else {
    MarkChildContainers(*table);
  }
  return WriteWithValue(root, value);
}

std::vector<std::string> MalformedTexts(const std::string& realistic) {
  static const std::vector<std::string> kFixed = [] {
    const size_t deep = 100000;
    std::vector<std::string> v = {"",
                                  " \t\r\n ",
                                  "{",
                                  "}",
                                  "[",
                                  "nul",
                                  "tru",
                                  "\"unterminated",
                                  "\xff\xfe\xfd",
                                  "{\"result\":true,\"params\":{\"table\":",
                                  "{\"result\" true}",
                                  "{'result':true}",
                                  "{\"result\":true,\"params\":{\"table\":{\"a\":}}}",
                                  "{\"result\":true,\"params\":{\"table\":[1,2}}}",
                                  "{\"result\":\"\\ud800\"}",
                                  "{\"result\":tru}",
                                  "{\"result\":1e}",
                                  "{\"result\":true,\"params\":{\"table\":\"\\x41\"}}",
                                  std::string(deep, '[') + std::string(deep, ']'),
                                  Repeat("{\"a\":", deep) + "1" + std::string(deep, '}'),
                                  Envelope(std::string(deep, '[') + std::string(deep, ']'))};
    return v;
  }();
  std::vector<std::string> out = kFixed;
  const size_t last = realistic.find_last_of("}]");
  if (last != std::string::npos && last > 0) {
    for (size_t cut : {size_t{1}, last / 3, last / 2, last - 1, last}) {
      if (cut < last) out.push_back(realistic.substr(0, cut));
    }
  }
  return out;
}

std::vector<std::string> EventDocuments(const std::vector<SampleDocument>& samples) {
  std::vector<std::string> out;
  for (const SampleDocument& d : samples) {
    if (d.path.find("/events/") != std::string::npos ||
        d.text.find("\"Event\"") != std::string::npos ||
        d.text.find("\"EventList\"") != std::string::npos ||
        d.text.find("\"eventList\"") != std::string::npos) {
      out.push_back(d.text);
    }
  }
  const std::string kData =
      "\"Data\":{\"Name\":\"rule-1\",\"PTS\":43200000,\"UTC\":1600000000,\"UTCMS\":250,"
      "\"EventID\":7,\"Object\":{\"ObjectID\":12,\"ObjectType\":\"Human\","
      "\"BoundingBox\":[10,20,300,400]},\"Objects\":[{\"ObjectID\":1},{\"ObjectID\":2}]}";
  const std::vector<std::string> kEvents = {
      "{\"Code\":\"CrossLineDetection\",\"Action\":\"Start\"," + kData + "}",
      "{\"Code\":\"VideoBlind\",\"Action\":\"Pulse\"}",
      "{\"Code\":\"SnapByTime\"}",
      "{\"Code\":\"CrossRegionDetection\",\"Action\":\"Stop\"," + kData + "}",
      "{\"Code\":\"LeftDetection\",\"Action\":\"Pulse\"," + kData + "}",
      "{\"Code\":\"CrossLineDetection\"}",
      "{\"Code\":\"NoSuchEvent\"," + kData + "}",
      "{\"Code\":\"" + std::string(300, 'C') + "\"," + kData + "}",
      "{\"Action\":\"Start\"," + kData + "}",
      "{\"Code\":17,\"Action\":[],\"Data\":\"x\"}",
      "null"};
  std::string many;
  for (size_t i = 0; i < 130; ++i) many += (i == 0 ? "" : ",") + kEvents[i % kEvents.size()];
  out.push_back("{\"Event\":[" + many + "]}");
  out.push_back("{\"EventList\":[" + kEvents[0] + "," + kEvents[1] + "]}");
  out.push_back("{\"Event\":null,\"EventList\":[" + kEvents[3] + "]}");
  out.push_back("{\"Event\":[" + kEvents[4] + "],\"EventList\":[" + kEvents[0] + "]}");
  out.push_back("{\"Event\":[]}");
  out.push_back("{\"Event\":{\"Code\":\"VideoBlind\"}}");
  out.push_back("{\"Event\":[" + kEvents[0]);
  return out;
}

bool Parses(const std::string& text) {
  Json::Value root;
  return kova::ReadJson(text.c_str(), &root);
}

}  // namespace kova_harness
