// The table drivers with a test record: envelope truth, mode choice,
// clamping, null elements, retLen accumulation, and the pack copy rule.
#include "drivers/table_driver.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "common/json/json.h"

namespace {

struct Pair {
  int32_t a;
  int32_t b;
};

bool ParsePair(const Json::Value& v, const kova::StepContext&, unsigned char* rec) {
  Pair p{kova::ToInt32(kova::Member(v, "A")), kova::ToInt32(kova::Member(v, "B"))};
  // An inner array (depth-2 configurations) counts its elements into A.
  if (v.isArray()) p.a = static_cast<int32_t>(v.size()), p.b = -1;
  std::memcpy(rec, &p, sizeof p);
  return true;
}

std::string Envelope(const std::string& result, const std::string& table) {
  return R"({"id":3,"result":)" + result + R"(,"params":{"table":)" + table + "}}";
}

struct ParseRun {
  int rc;
  std::vector<Pair> recs;
  uint32_t ret;
};

ParseRun Parse(const std::string& json, size_t records, int32_t depthMinusOne = 0,
               uint8_t array = 1, uint8_t zero = 1, uint32_t extraBytes = 0) {
  ParseRun r;
  r.recs.assign(records + 1, Pair{-7, -7});
  r.ret = 0;
  r.rc = kova::ParseTableDriver(json.c_str(), r.recs.data(),
                                static_cast<uint32_t>(records * sizeof(Pair) + extraBytes), &r.ret,
                                ParsePair, sizeof(Pair), depthMinusOne, array, zero);
  return r;
}

TEST(ParseTableDriver, ArrayIsClampedToTheBufferAndNullsKeepTheirSlots) {
  ParseRun r = Parse(Envelope("true", R"([{"A":1},{"A":2},{"A":3}])"), 2);
  EXPECT_EQ(1, r.rc);
  EXPECT_EQ(-7, r.recs[2].a);
  EXPECT_EQ(16u, r.ret);
  // A partial record at the end of the buffer does not count.
  ParseRun p = Parse(Envelope("true", R"([{"A":1},{"A":2},{"A":3}])"), 2, 0, 1, 1, 7);
  EXPECT_EQ(16u, p.ret);
  EXPECT_EQ(0, p.recs[2].a);  // zero-filled as part of outLen, not parsed
  // A null element keeps its slot and is not counted.
  ParseRun n = Parse(Envelope("true", R"([{"A":1},null,{"A":3}])"), 3);
  EXPECT_EQ(0, n.recs[1].a);
  EXPECT_EQ(3, n.recs[2].a);
  EXPECT_EQ(16u, n.ret);
}

TEST(ParseTableDriver, ModeFollowsTheExpectedDepth) {
  // Depth 2 configuration: an array of arrays is walked element by element.
  ParseRun deep = Parse(Envelope("true", R"([[{},{}],[{}],[{},{},{}]])"), 4, 1);
  EXPECT_EQ(1, deep.rc);
  EXPECT_EQ(2, deep.recs[0].a);
  EXPECT_EQ(3, deep.recs[2].a);
  EXPECT_EQ(24u, deep.ret);
  // An empty inner array has depth 0, so the table is no longer of depth 2.
  ParseRun empty = Parse(Envelope("true", R"([[{}],[]])"), 4, 1);
  EXPECT_EQ(2, empty.recs[0].a);
  EXPECT_EQ(8u, empty.ret);
  // A plain array of objects has depth 1: one record that receives the whole array.
  ParseRun flat = Parse(Envelope("true", R"([{"A":1},{"A":2},{"A":3}])"), 4, 1);
  EXPECT_EQ(3, flat.recs[0].a);
  EXPECT_EQ(-1, flat.recs[0].b);
  EXPECT_EQ(8u, flat.ret);
  // Array mode off: the array is one record.
  ParseRun off = Parse(Envelope("true", R"([{"A":1},{"A":2}])"), 4, 0, 0);
  EXPECT_EQ(2, off.recs[0].a);
  EXPECT_EQ(8u, off.ret);
}

bool PackPair(const unsigned char* rec, Json::Value& out) {
  Pair p;
  std::memcpy(&p, rec, sizeof p);
  kova::SetMember(out, "A") = p.a;
  return true;
}

TEST(PackTableDriver, ArrayModeAndTheCopyRule) {
  const Pair recs[2] = {{1, 0}, {2, 0}};
  auto pack = [&recs](uint32_t inLen, uint8_t array, uint32_t outLen = 64) {
    std::string out(outLen, '#');
    const int rc =
        kova::PackTableDriver(recs, inLen, &out[0], outLen, PackPair, sizeof(Pair), 77, array);
    return std::to_string(rc) + " " + out;
  };
  const auto text = [](const std::string& s) { return s.substr(0, s.find('\0')); };
  EXPECT_EQ("1 [ { \"A\" : 1 }, { \"A\" : 2 } ]\n", text(pack(2 * sizeof(Pair), 1)));
  EXPECT_EQ("1 { \"A\" : 1 }\n", text(pack(sizeof(Pair) + 3, 1)));  // a partial record is not read
  EXPECT_EQ("1 null\n", text(pack(sizeof(Pair) - 1, 1)));
  // One record only, whatever inLen holds beyond it; below it nothing is
  // packed and the text stays all zero.
  EXPECT_EQ("1 { \"A\" : 1 }\n", text(pack(2 * sizeof(Pair), 0)));
  EXPECT_EQ("0 " + std::string(64, '\0'), pack(sizeof(Pair) - 1, 0));
  // The text is written only with room for its NUL after it.
  EXPECT_EQ(std::string("1 { \"A\" : 1 }\n\0", 15), pack(sizeof(Pair), 0, 13));
  EXPECT_EQ("0 " + std::string(12, '\0'), pack(sizeof(Pair), 0, 12));
}

TEST(ArrayDepth, CountsNestedArraysAtTheTop) {
  auto depth = [](const char* text) {
    Json::Value v;
    EXPECT_TRUE(kova::ReadJson(text, &v)) << text;
    return kova::ArrayDepth(v, 4);
  };
  EXPECT_EQ(-1, kova::ArrayDepth(Json::Value(), 4));
  EXPECT_EQ(0, depth("{}"));
  EXPECT_EQ(0, depth("[]"));
  EXPECT_EQ(2, depth("[[{}],[{}]]"));
  EXPECT_EQ(0, depth("[null]"));
  EXPECT_EQ(1, depth("[null,{}]"));     // a sampled non-array returns 1 at once
  EXPECT_EQ(1, depth("[{},[[1]]]"));    // element 0 decides the minimum
  EXPECT_EQ(1, depth("[[1],{}]"));      // early return for a later object
  EXPECT_EQ(2, depth("[[1],[[1]]]"));   // minimum of the samples
  EXPECT_EQ(0, depth("[{},null]"));     // a later null lowers the minimum below 1
  EXPECT_EQ(1, depth("[{},null,{}]"));  // ...unless a later object returns early
  EXPECT_EQ(-1, kova::ArrayDepth(Json::Value(Json::arrayValue), -1));
}

}  // namespace
