// The flat form: any answer's payload as paths and values, and back.
#include "kova/records/flat.h"

#include <gtest/gtest.h>
#include <json/value.h>

#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "common/json/json.h"
#include "kova/kova.h"
#include "test_util.h"

namespace {

constexpr uint32_t kValue = sizeof(FlatValue);

struct Parsed {
  int rc = 0;
  uint32_t ret = 0;
  std::vector<uint64_t> storage;  // 8-byte aligned, like a caller's record buffer
  const FlatDocument& doc() const { return *reinterpret_cast<const FlatDocument*>(storage.data()); }
  uint32_t bytes() const { return static_cast<uint32_t>(storage.size() * 8); }
};

Parsed ParseFlat(const char* name, const std::string& json, uint32_t values = 64) {
  Parsed p;
  p.storage.assign((8 + values * kValue + 7) / 8, 0);
  p.ret = 77;
  p.rc = KOVA_ParseData(name, json.c_str(), p.storage.data(), 8 + values * kValue, &p.ret);
  return p;
}

// "path=type" for each value, in order.
std::vector<std::string> Listing(const FlatDocument& d) {
  std::vector<std::string> out;
  for (uint32_t i = 0; i < d.count; ++i) {
    out.push_back(std::string(d.values[i].path) + "=" + std::to_string(d.values[i].type));
  }
  return out;
}

std::string PackFlat(const void* doc, uint32_t len, uint32_t outLen = 4096, int* rc = nullptr) {
  std::vector<char> out(outLen, 'x');
  const int r = KOVA_PacketData("flat:any", doc, len, out.data(), outLen);
  if (rc != nullptr) *rc = r;
  return std::string(out.data(), strnlen(out.data(), out.size()));
}

TEST(Flat, PathsEscapesTypesAndOrder) {
  const Parsed p = ParseFlat(
      "flat:Encode", kova_test::Doc(R"([{"b": [1, [2.5, "x"]], "a.b[c]\\d": null, "E": {}, "F": [],
                          "u": 18446744073709551615, "n": -9223372036854775808, "t": true}])"));
  ASSERT_EQ(1, p.rc);
  EXPECT_EQ(
      (std::vector<std::string>{"[0].E=7", "[0].F=6", "[0].a\\.b\\[c\\]\\\\d=0", "[0].b[0]=2",
                                "[0].b[1][0]=4", "[0].b[1][1]=5", "[0].n=2", "[0].t=1", "[0].u=3"}),
      Listing(p.doc()));
  EXPECT_EQ(9u, p.doc().leafCount);
  EXPECT_EQ(8 + 9 * kValue, p.ret);          // set, not added to
  EXPECT_EQ(-1, p.doc().values[8].integer);  // the unsigned value's bits

  // Where the payload is: "table" when "params" has one (null too), else "params" itself.
  const Parsed scalar = ParseFlat("FLAT:VideoIn", kova_test::Doc("\"PAL\""));
  EXPECT_EQ((std::vector<std::string>{"=5"}), Listing(scalar.doc()));
  const Parsed null = ParseFlat("Flat:x", R"({"result": true, "params": {"table": null}})");
  EXPECT_EQ((std::vector<std::string>{"=0"}), Listing(null.doc()));
  const Parsed method = ParseFlat("flat:ptz.getCurrentProtocolCaps",
                                  R"({"result": true, "params": {"caps": {"PtzMotionRange":
                    {"HorizontalAngle": [0, 360]}}}})");
  EXPECT_EQ((std::vector<std::string>{"caps.PtzMotionRange.HorizontalAngle[0]=2",
                                      "caps.PtzMotionRange.HorizontalAngle[1]=2"}),
            Listing(method.doc()));
  EXPECT_EQ(0, ParseFlat("flat:x", R"({"result": false, "params": {"table": 1}})").rc);
}

TEST(Flat, CutTextsSkippedPathsAndCapacity) {
  const std::string longName(126, 'k');  // with "." and a one-letter parent: 128, too long
  const std::string json = kova_test::Doc(
      "{\"a\": \"" + std::string(300, 'a') + "\", \"b\": \"" + std::string(255, 'b') +
      "\", \"c\": \"" + std::string(254, 'c') + "\xC3\xA9\", \"d\": {\"" + longName + "\": 1, \"" +
      longName.substr(1) + "\": 2}, \"\": {\"x\": 3}}");
  const Parsed p = ParseFlat("flat:x", json);
  ASSERT_EQ(1, p.rc);
  EXPECT_EQ((std::vector<std::string>{"a=5", "b=5", "c=5", "d." + longName.substr(1) + "=2"}),
            Listing(p.doc()));
  EXPECT_EQ(6u, p.doc().leafCount);
  EXPECT_EQ(1u, p.doc().values[0].cut);
  EXPECT_EQ(255u, std::strlen(p.doc().values[0].text));
  EXPECT_EQ(1u, p.doc().values[2].cut);  // the two-byte character is not split
  EXPECT_EQ(254u, std::strlen(p.doc().values[2].text));

  // A buffer of exactly one value holds the first; one byte less holds none.
  const Parsed one = ParseFlat("flat:x", json, 1);
  EXPECT_EQ(1, one.rc);
  EXPECT_EQ(1u, one.doc().count);
  EXPECT_EQ(8 + kValue, one.ret);
  std::vector<uint64_t> small(kValue / 8 + 1, 0);
  EXPECT_EQ(0, KOVA_ParseData("flat:x", json.c_str(), small.data(), 8 + kValue - 1, nullptr));

  // Every value skipped: success with no value.
  const Parsed none = ParseFlat("flat:x", kova_test::Doc("{\"\": [1, 2]}"));
  EXPECT_EQ(1, none.rc);
  EXPECT_EQ(0u, none.doc().count);
  EXPECT_EQ(2u, none.doc().leafCount);
  EXPECT_EQ(8u, none.ret);
}

TEST(Flat, HostileAnswersStayInTheirBuffer) {
  // Nesting as deep as the reader takes: the path outgrows its field, the leaf is counted.
  const std::string deep = std::string(900, '[') + "1" + std::string(900, ']');
  const Parsed d = ParseFlat("flat:x", kova_test::Doc(deep), 1);
  EXPECT_EQ(1, d.rc);
  EXPECT_EQ(0u, d.doc().count);
  EXPECT_EQ(1u, d.doc().leafCount);
  std::string huge = "[0";
  for (int i = 1; i < 100000; ++i) huge += ",{\"k\":[]}";
  const Parsed h = ParseFlat("flat:x", kova_test::Doc(huge + "]"), 1);
  EXPECT_EQ(1, h.rc);
  EXPECT_EQ(1u, h.doc().count);
  EXPECT_EQ(100000u, h.doc().leafCount);
  EXPECT_EQ(0, ParseFlat("flat:x", "{\"result\": true, \"params\": [").rc);
}

FlatValue Value(const char* path, uint32_t type, int64_t integer = 0) {
  FlatValue v;
  std::memset(&v, 0, sizeof v);
  std::strncpy(v.path, path, sizeof v.path - 1);
  v.type = type;
  v.integer = integer;
  return v;
}

std::vector<unsigned char> Document(const std::vector<FlatValue>& values, uint32_t count) {
  std::vector<unsigned char> d(8 + values.size() * kValue, 0);
  std::memcpy(d.data(), &count, 4);
  for (size_t i = 0; i < values.size(); ++i) std::memcpy(&d[8 + i * kValue], &values[i], kValue);
  return d;
}

TEST(Flat, PackRebuildsAndRefusesUnreadablePaths) {
  const std::vector<FlatValue> good = {
      Value("a\\.b", KOVA_FLAT_INT, 1), Value("c[2].d", KOVA_FLAT_BOOL, 1),
      Value("e", KOVA_FLAT_EMPTY_OBJECT), Value("f", KOVA_FLAT_UINT, -1)};
  std::vector<unsigned char> doc = Document(good, 4);
  EXPECT_EQ(
      "{ \"a.b\" : 1, \"c\" : [ null, null, { \"d\" : true } ], \"e\" : {  }, "
      "\"f\" : 18446744073709551615 }\n",
      PackFlat(doc.data(), static_cast<uint32_t>(doc.size())));
  // At most `count` values, and none past inLen.
  EXPECT_EQ("{ \"a.b\" : 1 }\n", PackFlat(doc.data(), 8 + kValue + kValue - 1));
  doc = Document(good, 1);
  EXPECT_EQ("{ \"a.b\" : 1 }\n", PackFlat(doc.data(), static_cast<uint32_t>(doc.size())));

  const std::vector<std::pair<std::vector<FlatValue>, const char*>> bad = {
      {{Value("a[0", 2)}, "unbalanced"},
      {{Value("[x]", 2)}, "index not a number"},
      {{Value("a..b", 2)}, "empty name"},
      {{Value("a\\", 2)}, "dangling escape"},
      {{Value("[0]x", 2)}, "name glued to an index"},
      {{Value("a", 8)}, "type beyond 7"},
      {{Value("a", 2), Value("a[0]", 2)}, "index on a scalar"},
      {{Value("[0]", 2), Value("a", 2)}, "member on an array"},
      {{Value("a", 2), Value("a", 2)}, "a path given twice"},
      {{Value("[4000000000]", 0)}, "an index whose nulls cannot fit"},
  };
  for (const auto& c : bad) {
    const std::vector<unsigned char> d = Document(c.first, static_cast<uint32_t>(c.first.size()));
    int rc = 1;
    EXPECT_EQ("", PackFlat(d.data(), static_cast<uint32_t>(d.size()), 4096, &rc)) << c.second;
    EXPECT_EQ(0, rc) << c.second;
  }
  FlatValue unterminated = Value("a", 2);
  std::memset(unterminated.path, 'a', sizeof unterminated.path);
  const std::vector<unsigned char> u = Document({unterminated}, 1);
  EXPECT_EQ("", PackFlat(u.data(), static_cast<uint32_t>(u.size())));
}

}  // namespace
