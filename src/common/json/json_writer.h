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
#include <cstring>
#include <string>

namespace kova {

// Where a text goes: a caller's buffer of fixed room, or a string that
// grows up to the room. Once a write does not fit, the sink is full and
// takes nothing more.
class TextSink {
 public:
  TextSink(char* buffer, uint64_t room) : base_(buffer), cap_(room), room_(room) {}
  TextSink(std::string* grown, uint64_t room) : grown_(grown), room_(room) {}

  bool full() const { return full_; }
  uint64_t size() const { return len_; }

  void Put(const char* s, size_t n) {
    if (n > cap_ - len_ && !Grow(n)) return;
    std::memcpy(base_ + len_, s, n);
    len_ += n;
  }
  void Put(char c) {
    if (len_ == cap_ && !Grow(1)) return;
    base_[len_++] = c;
  }
  template <size_t N>
  void Literal(const char (&s)[N]) {
    Put(s, N - 1);
  }
  // Forgets what was written; a caller's buffer is cleared over its room.
  void Clear();
  // The length written; 0 once the text did not fit, with the sink cleared.
  uint64_t Done();

 private:
  bool Grow(size_t n);

  char* base_ = nullptr;
  std::string* grown_ = nullptr;
  uint64_t len_ = 0;
  uint64_t cap_ = 0;
  uint64_t room_;
  bool full_ = false;
};

// An array written into a caller's buffer element by element, as each
// record is packed, so that no tree of the whole array is built: the same
// text WriteJsonInto gives for the array.
class ArrayText {
 public:
  ArrayText(char* out, uint64_t room) : sink_(out, room) {}
  // False once the text no longer fits, with the room cleared.
  bool Add(const Json::Value& element);
  // The same for an element `write(TextSink*)` writes itself; false when
  // it fails (nothing is cleared then) or the text no longer fits.
  template <typename Write>
  bool AddWritten(Write write) {
    Separate();
    if (!write(&sink_)) return false;
    return sink_.Done() != 0;
  }
  // The length written, newline included and no NUL after it; 0 when the
  // text does not fit, with the room cleared.
  uint64_t Finish();

 private:
  void Separate();

  TextSink sink_;
  uint32_t count_ = 0;
};

// The pieces of the text, for writers that walk something other than a
// value tree: each writes exactly what the tree's writer writes for a value
// of that kind.
void WriteJsonValue(const Json::Value& v, TextSink* out);
void WriteJsonString(const char* begin, const char* end, TextSink* out);
void WriteJsonInt(int64_t x, TextSink* out);
void WriteJsonUInt(uint64_t x, TextSink* out);
void WriteJsonReal(double x, TextSink* out);

// Returns the single-line text of `root`, newline included.
std::string WriteJson(const Json::Value& root);

// The same straight into `out`, which takes at most `room` bytes: the
// length written, newline included and no NUL after it; 0 when the text is
// longer, with the `room` bytes of `out` cleared.
uint64_t WriteJsonInto(const Json::Value& root, char* out, uint64_t room);

// The room of a caller's text buffer, spent while a pack puts its records
// one by one into one object (each adds or replaces members and removes
// none): a pack whose text cannot fit stops at the record that makes it too
// long, instead of building the whole tree first, so that what a pack takes
// is bounded by its buffers.
class TextBudget {
 public:
  // `room`: the longest text, newline included, the buffer takes.
  explicit TextBudget(uint64_t room) : room_(room) {}

  // After record `index` went into `root`: its keys are spent with one
  // byte of value each, counted after records 1, 2, 4, 8, ... so that
  // counting costs at most twice the keys. False once the text cannot fit.
  bool Spend(const Json::Value& root, uint32_t index);

 private:
  uint64_t room_;
  uint64_t spent_ = 0;
};

}  // namespace kova

#endif  // KOVA_COMMON_JSON_WRITER_H_
