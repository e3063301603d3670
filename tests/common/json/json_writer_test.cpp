// The single-line form devices expect, byte for byte.
#include "common/json/json_writer.h"

#include <gtest/gtest.h>

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

}  // namespace
