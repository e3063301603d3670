// The four conversions and the non-throwing accessors every translator
// relies on.
#include "common/json/json.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

Json::Value Read(const char* text) {
  Json::Value v;
  EXPECT_TRUE(kova::ReadJson(text, &v)) << text;
  return v;
}

TEST(JsonConversions, SignedThirtyTwo) {
  EXPECT_EQ(0, kova::ToInt32(Json::Value()));
  EXPECT_EQ(2147483647, kova::ToInt32(Read("2147483647")));  // held as a signed integer
  EXPECT_EQ(INT32_MIN, kova::ToInt32(Read("-2147483648")));
  EXPECT_EQ(0, kova::ToInt32(Read("2147483648")));
  EXPECT_EQ(0, kova::ToInt32(Read("18446744073709551615")));  // held unsigned
  EXPECT_EQ(2147483646, kova::ToInt32(Json::Value(Json::UInt(2147483646))));
  EXPECT_EQ(0, kova::ToInt32(Json::Value(Json::UInt(2147483647))));  // the bound is exclusive
  EXPECT_EQ(3, kova::ToInt32(Read("3.99")));
  EXPECT_EQ(2147483647, kova::ToInt32(Read("2147483647.0")));
  EXPECT_EQ(0, kova::ToInt32(Read("2147483647.5")));
  EXPECT_EQ(0, kova::ToInt32(Read("-2147483648.5")));
  EXPECT_EQ(0, kova::ToInt32(Read("1e300")));
  EXPECT_EQ(0, kova::ToInt32(Json::Value(std::nan(""))));
  EXPECT_EQ(1, kova::ToInt32(Read("true")));
  EXPECT_EQ(0, kova::ToInt32(Read("\"12\"")));
  EXPECT_EQ(0, kova::ToInt32(Read("{\"a\":1}")));
}

TEST(JsonConversions, RealAndBoolean) {
  EXPECT_EQ(18446744073709551615.0, kova::ToDouble(Read("18446744073709551615")));
  EXPECT_EQ(2.5, kova::ToDouble(Read("2.5")));
  EXPECT_EQ(1.0, kova::ToDouble(Read("true")));
  EXPECT_EQ(0.0, kova::ToDouble(Read("\"2.5\"")));

  EXPECT_FALSE(kova::ToBool(Read("0")));
  EXPECT_FALSE(kova::ToBool(Read("0.0")));
  EXPECT_FALSE(kova::ToBool(Read("\"\"")));
  EXPECT_FALSE(kova::ToBool(Read("{}")));
  EXPECT_TRUE(kova::ToBool(Read("18446744073709551615")));
  EXPECT_TRUE(kova::ToBool(Read("0.001")));
  EXPECT_TRUE(kova::ToBool(Json::Value(std::nan(""))));
  EXPECT_TRUE(kova::ToBool(Read("\"false\"")));
  EXPECT_TRUE(kova::ToBool(Read("[0]")));
  EXPECT_EQ(0u, kova::ToUInt32(Read("false")));  // a boolean where a count is expected
  EXPECT_EQ(1u, kova::ToUInt32(Read("true")));
}

TEST(JsonAccess, NeverThrowsOnTheWrongType) {
  const Json::Value values[] = {Json::Value(), Read("1"),     Read("-1"),    Read("1.5"),
                                Read("true"),  Read("\"s\""), Read("[1,2]"), Read("{\"k\":3}")};
  for (const Json::Value& v : values) {
    EXPECT_NO_THROW({
      (void)kova::Member(v, "k");
      (void)kova::HasMember(v, "k");
      (void)kova::Element(v, 0);
      (void)kova::Element(v, 5);
      (void)kova::Count(v);
      (void)kova::ToText(v);
      Json::Value w = v;
      kova::SetMember(w, "x") = 1;
      Json::Value a = v;
      kova::SetElement(a, 2) = 1;
      kova::Append(a, Json::Value(3));
    });
  }
  EXPECT_EQ(3, kova::ToInt32(kova::Member(Read("{\"k\":3}"), "k")));
  EXPECT_TRUE(kova::Member(Read("[1]"), "k").isNull());
  EXPECT_TRUE(kova::HasMember(Read("{\"k\":null}"), "k"));
  EXPECT_FALSE(kova::HasMember(Read("[\"k\"]"), "k"));
  EXPECT_EQ(2, kova::ToInt32(kova::Element(Read("[1,2]"), 1)));
  EXPECT_TRUE(kova::Element(Read("{\"0\":1}"), 0).isNull());
  EXPECT_EQ(2u, kova::Count(Read("{\"a\":1,\"b\":2}")));
  Json::Value s = Read("\"x\"");
  kova::SetMember(s, "k") = 1;
  EXPECT_TRUE(s.isObject());
}

// Element by element as Element() gives them: an index a built tree left
// without an entry reads as null, the limit and an early stop end the walk.
TEST(JsonAccess, ElementsInIndexOrder) {
  Json::Value holes(Json::arrayValue);
  holes[1] = 10;
  holes[4] = 40;
  std::string seen;
  kova::ForEachElement(holes, 9, [&seen](uint32_t i, const Json::Value& e) {
    seen += std::to_string(i) + "=" + std::to_string(kova::ToInt32(e)) + (e.isNull() ? "n " : " ");
  });
  EXPECT_EQ("0=0n 1=10 2=0n 3=0n 4=40 ", seen);
  seen.clear();
  kova::ForEachElement(Read("[1,2,3]"), 2, [&seen](uint32_t, const Json::Value& e) {
    seen += std::to_string(kova::ToInt32(e));
  });
  kova::ForEachElement(Read("[4,5,6]"), 9, [&seen](uint32_t i, const Json::Value& e) {
    seen += std::to_string(kova::ToInt32(e));
    return i == 0;
  });
  kova::ForEachElement(Read("{\"0\":7}"), 9,
                       [&seen](uint32_t, const Json::Value&) { seen += "x"; });
  EXPECT_EQ("1245", seen);
}

TEST(JsonRead, DefaultModeToleranceAndFailures) {
  Json::Value v;
  EXPECT_TRUE(kova::ReadJson("{\"a\":1 /* comment */}", &v));
  EXPECT_TRUE(kova::ReadJson("// lead\n[1]", &v));
  EXPECT_FALSE(kova::ReadJson("", &v));
  EXPECT_FALSE(kova::ReadJson("{\"a\":", &v));
  EXPECT_FALSE(kova::ReadJson(nullptr, &v));
  EXPECT_FALSE(kova::ReadJson((std::string(2000, '[') + std::string(2000, ']')).c_str(), &v));
  // The text ends at its NUL.
  const char embedded[] = "{\"a\":1}\0garbage";
  EXPECT_TRUE(kova::ReadJson(embedded, &v));
  // Non-negative integers stay signed while they fit.
  ASSERT_TRUE(kova::ReadJson("[9223372036854775807, 9223372036854775808]", &v));
  EXPECT_EQ(Json::intValue, v[0].type());
  EXPECT_EQ(Json::uintValue, v[1].type());
}

// The reader is kept from call to call: a parse that failed half-way, or
// threw on nesting beyond the limit, must leave nothing behind for the next.
TEST(JsonRead, EachCallStartsAfresh) {
  const std::string deep = std::string(5000, '[') + std::string(5000, ']');
  for (int round = 0; round < 3; ++round) {
    Json::Value v;
    EXPECT_FALSE(kova::ReadJson(deep.c_str(), &v));
    Json::Value a;
    ASSERT_TRUE(kova::ReadJson("{\"a\":[1,{\"b\":2}]}", &a));
    EXPECT_EQ(2, a["a"][1]["b"].asInt());
    Json::Value cut;
    EXPECT_FALSE(kova::ReadJson("{\"a\":[1,{\"b\":", &cut));
    Json::Value n;
    ASSERT_TRUE(kova::ReadJson("7", &n));
    EXPECT_EQ(7, n.asInt());
  }
}

}  // namespace
