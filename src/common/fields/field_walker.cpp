// The field walker: a record's fields read from one JSON object and written
// into one, each by its shape (scalar, nested table, list, tuple, custom
// step) and its presence, pack and direction rules.
#include <cstring>
#include <utility>

#include "common/fields/field_table.h"
#include "common/fields/field_walk.h"
#include "common/fields/member_index.h"
#include "common/json/json.h"

namespace kova {

using namespace walk;  // NOLINT: the walker's own pieces

bool ParseValue(const Json::Value& value, unsigned char* member, const Field& f) {
  switch (f.shape) {
    case FieldShape::kScalar:
      return ParseScalar(value, member, f);
    case FieldShape::kNested:
      if (f.table == nullptr || (!value.isObject() && !ReadsAnyType(f))) return false;
      // Member() of anything but an object is null: every member reads as missing.
      ParseFields(value, member, *f.table);
      return true;
    case FieldShape::kTuple: {
      if (!value.isArray() || Count(value) < f.minItems) return false;
      ForEachElement(value, f.capacity, [&](uint32_t i, const Json::Value& item) {
        ParseScalar(item, member + i * f.size, f);
      });
      return true;
    }
    case FieldShape::kList:
      // A list entry that is itself a list: `member` is the list itself; its
      // offset and count sit in the entry's slot around it.
      return ParseList(value, member - f.offset, f);
    case FieldShape::kCustom:
      return false;
  }
  return false;
}

bool PackValue(const unsigned char* member, const Field& f, Json::Value* out) {
  switch (f.shape) {
    case FieldShape::kScalar:
      return PackScalar(member, f, out);
    case FieldShape::kNested:
      if (f.table == nullptr) return false;
      *out = Json::Value(Json::objectValue);
      PackFields(member, *out, f.table->fields, f.table->count);
      if (f.nullWhenEmpty && out->empty()) *out = Json::Value(Json::nullValue);
      return true;
    case FieldShape::kTuple: {
      *out = Json::Value(Json::arrayValue);
      for (uint32_t i = 0; i < f.capacity; ++i) {
        Json::Value item;
        if (!PackScalar(member + i * f.size, f, &item)) item = "";
        out->append(std::move(item));
      }
      return true;
    }
    case FieldShape::kList:
      if (f.element == nullptr) return false;
      PackList(member - f.offset, f, out);  // a list entry that is itself a list, as in ParseValue
      return true;
    case FieldShape::kCustom:
      return false;
  }
  return false;
}

namespace {

// One field of a parse walk, given the member's value (null when missing).
void ParseField(const Json::Value& obj, const Json::Value& v, unsigned char* base, const Field& f) {
  if (f.direction == Direction::kPackOnly) return;
  if (f.shape == FieldShape::kCustom) {
    if (f.parse != nullptr) f.parse(obj, base, f);
    return;
  }
  if (v.isNull()) {
    if (f.hasMissingValue) StoreInt(base + f.offset, f.size, f.missingValue);
    if (!f.alwaysRead) {
      if (f.clearsFlag) WriteFlag(base, f, 0);
      return;
    }
  }
  const bool read =
      f.shape == FieldShape::kList ? ParseList(v, base, f) : ParseValue(v, base + f.offset, f);
  // A scalar that is present counts as present even when its text names
  // nothing; a block or list of the wrong JSON type does not (unless it
  // reads any type).
  if (read || f.shape == FieldShape::kScalar || f.alwaysRead) {
    WriteFlag(base, f, 1);
  } else if (f.clearsFlag) {
    WriteFlag(base, f, 0);
  }
}

void ParseIndexed(const MemberIndex& members, unsigned char* base, const Field* fields,
                  size_t count) {
  const Json::Value& obj = members.object();
  for (size_t i = 0; i < count; ++i) {
    const Field& f = fields[i];
    if (f.key == nullptr && f.shape == FieldShape::kNested && f.table != nullptr &&
        f.direction != Direction::kPackOnly) {
      // A block whose members sit in this object: the same index serves it.
      if (!obj.isObject()) continue;
      ParseIndexed(members, base + f.offset, f.table->fields, f.table->count);
      WriteFlag(base, f, 1);
      continue;
    }
    if (f.shape == FieldShape::kCustom || f.key == nullptr) {
      ParseField(obj, f.shape == FieldShape::kCustom ? Null() : obj, base, f);
      continue;
    }
    const Json::Value* v = members.Find(f);
    // A missing member that leaves the record as it is: nothing to do.
    if (v == nullptr && !f.hasMissingValue && !f.alwaysRead && !f.clearsFlag) continue;
    ParseField(obj, v != nullptr ? *v : Null(), base, f);
  }
}

}  // namespace

void ParseFields(const Json::Value& obj, void* record, const Field* fields, size_t count) {
  unsigned char* base = static_cast<unsigned char*>(record);
  if (count == 1 && fields[0].key != nullptr) {
    // One member to look up: no index is worth building.
    ParseField(obj, Member(obj, fields[0].key), base, fields[0]);
    return;
  }
  ParseIndexed(MemberIndex(obj), base, fields, count);
}

void PackFields(const void* record, Json::Value& obj, const Field* fields, size_t count) {
  const unsigned char* base = static_cast<const unsigned char*>(record);
  for (size_t i = 0; i < count; ++i) {
    const Field& f = fields[i];
    if (f.direction == Direction::kParseOnly) continue;
    if (!Present(base, f)) continue;
    if (f.shape == FieldShape::kCustom) {
      if (f.pack != nullptr) f.pack(base, obj, f);
      continue;
    }
    if (f.allocated) continue;
    if (f.key == nullptr) {
      if (f.shape == FieldShape::kNested && f.table != nullptr) {
        PackFields(base + f.offset, obj, f.table->fields, f.table->count);
      }
      continue;
    }
    Json::Value v;
    bool written = true;
    if (f.shape == FieldShape::kList) {
      PackList(base, f, &v);  // the count member lives in the record, not in the list's slots
    } else {
      written = PackValue(base + f.offset, f, &v);
    }
    // Moved, not copied: a nested block or list is a whole tree.
    if (written) SetKeptMember(obj, f.key) = std::move(v);
  }
}

}  // namespace kova
