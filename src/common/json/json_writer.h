// The single-line JSON writer every packer uses.
//
// Devices expect exactly this form, so a stock compact writer does not
// serve: "{ " / " : " / ", " / " }", "[ " / " ]", reals as "%#.16g", eight
// escaped bytes (\b \t \n \f \r \" \/ \\) with every other byte written as
// it is, members in the JSON library's key order, one trailing newline.
#ifndef KOVA_COMMON_JSON_WRITER_H_
#define KOVA_COMMON_JSON_WRITER_H_

#include <json/value.h>

#include <cstdint>
#include <string>

namespace kova {

// Returns the single-line text of `root`, newline included.
std::string WriteJson(const Json::Value& root);

// The same straight into `out`, which takes at most `room` bytes: the
// length written, newline included and no NUL after it; 0 when the text is
// longer, with the `room` bytes of `out` cleared.
uint64_t WriteJsonInto(const Json::Value& root, char* out, uint64_t room);

// Length of the single-line text of `v`, newline not included, counted
// without writing it.
uint64_t TextLength(const Json::Value& v);

// The room of a caller's text buffer, spent while a pack puts its records
// into the tree one by one: a pack whose text cannot fit stops at the
// record that makes it too long, instead of building the whole tree and its
// text first, so that what a pack takes is bounded by its buffers.
class TextBudget {
 public:
  // `room`: the longest text, newline included, the buffer takes.
  explicit TextBudget(uint64_t room) : room_(room) {}

  // After record `index` went into `root`: an array root spends its element
  // `index` (written once, not looked at again). An object root, to which
  // every record adds or replaces members and removes none, spends its keys
  // with one byte of value each, counted after records 1, 2, 4, 8, ... so
  // that counting costs at most twice the keys. False once the text cannot
  // fit.
  bool Spend(const Json::Value& root, uint32_t index);

 private:
  uint64_t room_;
  uint64_t spent_ = 0;
};

}  // namespace kova

#endif  // KOVA_COMMON_JSON_WRITER_H_
