// The single-line form devices expect, byte for byte.
#include "common/json/json_writer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>

#include "common/json/json.h"

namespace {

TEST(JsonWriter, NestingSeparatorsAndKeyOrder) {
  Json::Value root;
  kova::SetMember(root, "b") = 1;
  kova::SetMember(root, "B") = 2;
  kova::SetMember(root, "a") = Json::Value(Json::arrayValue);
  kova::Append(kova::SetMember(root, "a"), Json::Value(1));
  kova::Append(kova::SetMember(root, "a"), Json::Value("x"));
  kova::Append(kova::SetMember(root, "a"), Json::Value(Json::objectValue));
  kova::SetMember(root, "ab") = Json::Value();
  kova::SetMember(root, "\xe4\xb8\xad") = true;  // bytes above 127 sort after ASCII
  EXPECT_EQ(
      "{ \"B\" : 2, \"a\" : [ 1, \"x\", {  } ], \"ab\" : null, \"b\" : 1, \"\xe4\xb8\xad\" : true "
      "}\n",
      kova::WriteJson(root));
}

TEST(JsonWriter, ExactlyEightEscapes) {
  const std::string raw("\b\t\n\f\r\"/\\\x01\x1f\x7f\xc3\xa9' ", 15);
  EXPECT_EQ(std::string("\"\\b\\t\\n\\f\\r\\\"\\/\\\\\x01\x1f\x7f\xc3\xa9' \"\n"),
            kova::WriteJson(Json::Value(raw)));
  EXPECT_EQ("\"a\\/b\"\n", kova::WriteJson(Json::Value("a/b")));
  // An embedded NUL is written as the byte it is.
  EXPECT_EQ(std::string("\"a\0b\"\n", 6), kova::WriteJson(Json::Value(std::string("a\0b", 3))));
  // Keys are escaped like strings.
  Json::Value o;
  kova::SetMember(o, "k/\"") = 0;
  EXPECT_EQ("{ \"k\\/\\\"\" : 0 }\n", kova::WriteJson(o));
}

// Reals as printf's "%#.16g" writes them, around each change of form.
TEST(JsonWriter, RealsAsPrintfWritesThem) {
  for (double x : {0.0, -0.0, 0.25, -250.75, 1e15, 9999999999999998.0, 1e16, 0.1, 1e-4, 9.99e-5,
                   0.00012345678901234567, 5e-324, -1e300, 1.0 / 3, HUGE_VAL, -std::nan("")}) {
    char expected[64];
    std::snprintf(expected, sizeof expected, "%#.16g\n", x);
    EXPECT_EQ(expected, kova::WriteJson(Json::Value(x))) << expected;
  }
}

// The bounded writer agrees with the text to the byte: a text that fits its
// room exactly is written, one byte less is refused with the room cleared.
TEST(JsonWriter, BoundedWriteAgreesWithTheText) {
  Json::Value root;
  kova::SetMember(root, "n") = Json::Value(Json::Int64(INT64_MIN));
  kova::SetMember(root, "u") = Json::Value(Json::UInt64(UINT64_MAX));
  kova::SetMember(root, "r") = Json::Value(-1e-300);
  kova::SetMember(root, "s") = Json::Value(std::string("\b\t\n\f\r\"/\\\x01\0\xc3\xa9", 12));
  kova::SetMember(root, "k/\"") = Json::Value(Json::objectValue);
  kova::SetElement(kova::SetMember(root, "sparse"), 3) = false;  // elements 0-2 read as null
  Json::Value& list = kova::SetMember(root, "a");
  for (int i = -2; i < 12; ++i) kova::Append(list, Json::Value(i * 7));
  kova::Append(list, Json::Value(Json::arrayValue));
  kova::Append(list, kova::Member(root, "s"));
  for (const Json::Value& v : {Json::Value(), Json::Value(true), Json::Value(0), list, root}) {
    const std::string text = kova::WriteJson(v);
    std::string bounded(text.size() + 1, '@');
    EXPECT_EQ(text.size(), kova::WriteJsonInto(v, &bounded[0], text.size()));
    EXPECT_EQ(text + "@", bounded);
    EXPECT_EQ(0u, kova::WriteJsonInto(v, &bounded[0], text.size() - 1)) << text;
    EXPECT_EQ(std::string(text.size() - 1, '\0') + "\n@", bounded);  // cleared over its room
  }
}

// Records written one by one as elements of an array give the text of the
// whole array, and are refused exactly when it passes the room (the room
// then cleared); an object every record adds to is budgeted by its keys.
TEST(JsonWriter, ArrayWrittenPerRecordAndObjectBudget) {
  Json::Value array(Json::arrayValue);
  for (uint32_t i = 0; i < 3; ++i) kova::SetElement(array, i) = Json::Value("ab");
  const std::string whole = kova::WriteJson(array);  // [ "ab", "ab", "ab" ]\n
  std::string out(whole.size(), '@');
  kova::ArrayText fits(&out[0], whole.size());
  for (uint32_t i = 0; i < 3; ++i) EXPECT_TRUE(fits.Add(kova::Element(array, i)));
  EXPECT_EQ(whole.size(), fits.Finish());
  EXPECT_EQ(whole, out);
  kova::ArrayText tight(&out[0], whole.size() - 1);
  for (uint32_t i = 0; i < 3; ++i) tight.Add(kova::Element(array, i));
  EXPECT_EQ(0u, tight.Finish());
  EXPECT_EQ(std::string(whole.size() - 1, '\0') + "\n", out);
  kova::ArrayText empty(&out[0], 5);
  EXPECT_EQ(5u, empty.Finish());
  EXPECT_EQ("[  ]\n", out.substr(0, 5));
  // An object every record adds to counts its keys: a value may yet be
  // replaced by a shorter one.
  Json::Value object;
  kova::TextBudget members(12);
  kova::SetMember(object, "a") = "a long value";  // { "a" : 1 }\n in the end, 12 bytes
  EXPECT_TRUE(members.Spend(object, 0));
  kova::SetMember(object, "a") = 1;
  EXPECT_TRUE(members.Spend(object, 1));
  kova::SetMember(object, "b") = 2;
  EXPECT_TRUE(members.Spend(object, 2));  // not counted after the third record
  EXPECT_FALSE(members.Spend(object, 3));
}

}  // namespace
