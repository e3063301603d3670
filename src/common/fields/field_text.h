// The walker's pack written straight as text: the same bytes the value
// tree of PackFields / PackValue gives through the single-line writer, with
// no tree built for what the description says itself. Members go out in
// the JSON library's key order (bytes compared, then the shorter first), a
// later member of the same key replacing an earlier one. A hand-written
// step with a text writer (Field::PackText) writes its member straight; any
// other packs into a value of its own, whose members join the others, and
// when it writes a member already written (it may have extended it) or
// anything but members, that object is packed through the tree instead.
#ifndef KOVA_COMMON_FIELDS_FIELD_TEXT_H_
#define KOVA_COMMON_FIELDS_FIELD_TEXT_H_

#include <json/value.h>

#include <cstddef>
#include <forward_list>
#include <string>
#include <vector>

#include "common/fields/field_table.h"
#include "common/json/json_writer.h"

namespace kova {

// The text of PackFields(record, obj, t) into a null `obj`: an object, or
// "null" when nothing is written.
void WriteFieldsText(const void* record, const FieldTable& t, TextSink* out);

// The text of PackFields(record, obj, t) into an empty object: always an
// object.
void WriteMembersText(const void* record, const FieldTable& t, TextSink* out);

// The text of PackValue(member, f, &v): false, with nothing written, when
// PackValue writes nothing.
bool WriteValueText(const unsigned char* member, const Field& f, TextSink* out);

// One object whose members come from several places (field tables over
// records, hand-written members), written as PackFields over each of them
// in turn would leave a tree, without the tree.
class ObjectText {
 public:
  // The members PackFields(record, obj, fields, count) writes.
  void Fields(const void* record, const Field* fields, size_t count);
  void Fields(const void* record, const FieldTable& t) { Fields(record, t.fields, t.count); }
  template <size_t N>
  void Fields(const void* record, const Field (&fields)[N]) {
    Fields(record, fields, N);
  }
  // A member `key` (a literal) whose value `write(record, field, out)`
  // writes; what `record` points at is kept until the object is written.
  void Member(const char* key, MemberText write, const void* record, const Field* field = nullptr);
  // A member `key` holding the object of `table` over `record`, as
  // PackFields into an empty object makes it.
  void Member(const char* key, const void* record, const FieldTable& table);
  // The same two for a key made at run time, kept by the object.
  void OwnMember(std::string key, MemberText write, const void* record,
                 const Field* field = nullptr);
  void OwnMember(std::string key, const void* record, const FieldTable& table);
  // The table is kept by pointer: a temporary one would be gone by then.
  void Member(const char*, const void*, const FieldTable&&) = delete;
  void OwnMember(std::string, const void*, const FieldTable&&) = delete;
  // False when a hand-written step wrote what only its tree can follow.
  bool ok() const { return ok_; }
  // Whether any member or step made the object (a null tree stays null).
  bool made() const { return made_ || n_ != 0; }
  bool empty() const { return n_ == 0; }
  // The members, "{ ... }", in key order. False, with nothing written, when
  // a hand-written step wrote what only its tree can follow: the object is
  // then to be packed through the tree.
  bool Write(TextSink* out);
  // Write(out), or when it cannot, the value `pack(tree)` makes of a null
  // tree, through the single-line writer.
  template <typename Pack>
  void WriteOrPack(TextSink* out, Pack pack) {
    if (Write(out)) return;
    Json::Value tree;
    pack(tree);
    WriteJsonValue(tree, out);
  }

  struct Entry {
    const char* key;
    size_t length;
    const Field* field;       // a field of `record` (or what `write` is given)
    const void* record;       // where the field's offset counts from (or `write`'s record)
    const Json::Value* tree;  // a step's member, or null
    MemberText write;         // a hand-written member, or null
    const FieldTable* table;  // a described object over `record`, or null
  };

 private:
  void Add(const Entry& e);
  // `e` under `key`, kept by the object.
  void AddOwn(std::string key, Entry e);
  bool Has(const char* key, size_t length) const;
  Entry* data() { return n_ <= kLocal ? local_ : spill_.data(); }
  const Entry* data() const { return n_ <= kLocal ? local_ : spill_.data(); }

  static constexpr size_t kLocal = 48;
  Entry local_[kLocal];
  std::vector<Entry> spill_;  // once more members than the local slots
  size_t n_ = 0;
  std::forward_list<Json::Value> steps_;  // what the steps packed, kept until written
  std::forward_list<std::string> keys_;   // keys made at run time
  bool ok_ = true;
  bool made_ = false;
};

}  // namespace kova

#endif  // KOVA_COMMON_FIELDS_FIELD_TEXT_H_
