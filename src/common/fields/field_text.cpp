// The walker's pack as text (see field_text.h).
#include "common/fields/field_text.h"

#include <json/value.h>

#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

#include "common/fields/field_walk.h"
#include "common/fields/fields.h"

namespace kova {

using namespace walk;  // NOLINT: the walker's own pieces

namespace {

using Entry = ObjectText::Entry;

bool KeyLess(const Entry& a, const Entry& b) {
  const int c = std::memcmp(a.key, b.key, std::min(a.length, b.length));
  return c != 0 ? c < 0 : a.length < b.length;
}

bool SameKey(const Entry& e, const char* key, size_t length) {
  return e.length == length && std::memcmp(e.key, key, length) == 0;
}

// Whether PackValue writes anything for the value at `member`.
bool ValueWrites(const unsigned char* member, const Field& f) {
  switch (f.shape) {
    case FieldShape::kScalar:
      return PackedScalarOf(member, f).is != PackedScalar::Is::kNothing;
    case FieldShape::kNested:
      return f.table != nullptr;
    case FieldShape::kList:
      return f.element != nullptr;
    case FieldShape::kTuple:
      return true;
    case FieldShape::kCustom:
      return false;
  }
  return false;
}

// Whether PackFields writes a member for field `f` of `base` (not a
// hand-written step nor an inline block): a list always, empty or not.
bool FieldWrites(const unsigned char* base, const Field& f) {
  return f.shape == FieldShape::kList || ValueWrites(base + f.offset, f);
}

void WriteText(const char* p, uint32_t cap, bool convert, TextSink* out) {
  const size_t n = strnlen(p, cap);
  if (!convert) {
    WriteJsonString(p, p + n, out);
    return;
  }
  const size_t size = Utf8Room(n);  // as SetJsonString gives it
  char local[512];
  std::vector<char> large;
  char* utf8 = local;
  if (size > sizeof local) {
    large.assign(size, '\0');
    utf8 = large.data();
  }
  const int32_t written = AnsiToUtf8(p, static_cast<int32_t>(n), utf8, static_cast<int32_t>(size));
  const size_t length = written > 0 ? strnlen(utf8, static_cast<size_t>(written)) : 0;
  WriteJsonString(utf8, utf8 + length, out);
}

// PackScalar's value as text; false, with nothing written, when it writes none.
bool WriteScalar(const unsigned char* p, const Field& f, TextSink* out) {
  const PackedScalar s = PackedScalarOf(p, f);
  switch (s.is) {
    case PackedScalar::Is::kNothing:
      return false;
    case PackedScalar::Is::kNull:
      out->Literal("null");
      break;
    case PackedScalar::Is::kBool:
      if (s.b) {
        out->Literal("true");
      } else {
        out->Literal("false");
      }
      break;
    case PackedScalar::Is::kInt:
      WriteJsonInt(s.i, out);
      break;
    case PackedScalar::Is::kUInt:
      WriteJsonUInt(s.u, out);
      break;
    case PackedScalar::Is::kReal:
      WriteJsonReal(s.real, out);
      break;
    case PackedScalar::Is::kField:
      WriteText(s.text, f.size, s.convert, out);
      break;
    case PackedScalar::Is::kName:
      WriteJsonString(s.text, s.text + std::strlen(s.text), out);
      break;
  }
  return true;
}

// The list `f` of `record` (its offset and count counted from `record`).
void WriteList(const unsigned char* record, const Field& f, TextSink* out) {
  const uint32_t n = LoadCount(record, f);
  out->Literal("[ ");
  bool first = true;
  for (uint32_t k = 0; k < n && f.element != nullptr && !out->full(); ++k) {
    const unsigned char* entry =
        record + f.offset + static_cast<size_t>(k) * f.size + f.element->offset;
    const Field& e = *f.element;
    // Whether the entry is written is known before its separator is.
    if (!ValueWrites(entry, e)) continue;
    if (!first) out->Literal(", ");
    first = false;
    WriteValueText(entry, e, out);
  }
  out->Literal(" ]");
}

// The members of `fields` of `base` as one object. `fromNull`: the tree
// starts as null (a table step's answer), and stays "null" when nothing
// is written; `nullWhenEmpty`: an object with no member is written "null".
void WriteObject(const unsigned char* base, const Field* fields, size_t count, bool fromNull,
                 bool nullWhenEmpty, TextSink* out) {
  ObjectText object;
  object.Fields(base, fields, count);
  if (object.ok() && ((fromNull && !object.made()) || (nullWhenEmpty && object.empty()))) {
    out->Literal("null");
    return;
  }
  object.WriteOrPack(out, [&](Json::Value& obj) {
    if (!fromNull) obj = Json::Value(Json::objectValue);
    PackFields(base, obj, fields, count);
    if (nullWhenEmpty && obj.empty()) obj = Json::Value();
  });
}

}  // namespace

void ObjectText::Add(const Entry& e) {
  if (n_ < kLocal) {
    local_[n_++] = e;
    return;
  }
  if (spill_.empty()) spill_.assign(local_, local_ + kLocal);
  spill_.push_back(e);
  ++n_;
}

bool ObjectText::Has(const char* key, size_t length) const {
  const Entry* e = data();
  for (size_t i = 0; i < n_; ++i) {
    if (SameKey(e[i], key, length)) return true;
  }
  return false;
}

void ObjectText::AddOwn(std::string key, Entry e) {
  keys_.push_front(std::move(key));
  e.key = keys_.front().c_str();
  e.length = keys_.front().size();
  Add(e);
}

void ObjectText::Member(const char* key, MemberText write, const void* record, const Field* field) {
  Add(Entry{key, std::strlen(key), field, record, nullptr, write, nullptr});
}

void ObjectText::Member(const char* key, const void* record, const FieldTable& table) {
  Add(Entry{key, std::strlen(key), nullptr, record, nullptr, nullptr, &table});
}

void ObjectText::OwnMember(std::string key, MemberText write, const void* record,
                           const Field* field) {
  AddOwn(std::move(key), Entry{nullptr, 0, field, record, nullptr, write, nullptr});
}

void ObjectText::OwnMember(std::string key, const void* record, const FieldTable& table) {
  AddOwn(std::move(key), Entry{nullptr, 0, nullptr, record, nullptr, nullptr, &table});
}

void ObjectText::Fields(const void* record, const Field* fields, size_t count) {
  const unsigned char* base = static_cast<const unsigned char*>(record);
  for (size_t i = 0; i < count && ok_; ++i) {
    const Field& f = fields[i];
    if (f.direction == Direction::kParseOnly) continue;
    if (!Present(base, f)) continue;
    if (f.shape == FieldShape::kCustom) {
      if (f.packValue != nullptr && f.key != nullptr) {
        Member(f.key, f.packValue, base, &f);
        continue;
      }
      if (f.packText != nullptr) {
        f.packText(base, f, this);
        continue;
      }
      if (f.pack == nullptr) continue;
      steps_.emplace_front();
      Json::Value& v = steps_.front();
      f.pack(base, v, f);
      if (v.isNull()) continue;
      if (!v.isObject()) {
        ok_ = false;
        return;
      }
      made_ = true;
      for (auto it = v.begin(), end = v.end(); it != end; ++it) {
        const char* ke = nullptr;
        const char* kb = it.memberName(&ke);
        const size_t length = static_cast<size_t>(ke - kb);
        if (Has(kb, length)) {  // it may have extended what was there
          ok_ = false;
          return;
        }
        Add(Entry{kb, length, nullptr, nullptr, &*it, nullptr, nullptr});
      }
      continue;
    }
    if (f.allocated) continue;
    if (f.key == nullptr) {
      if (f.shape == FieldShape::kNested && f.table != nullptr) {
        Fields(base + f.offset, f.table->fields, f.table->count);
      }
      continue;
    }
    if (FieldWrites(base, f)) {
      Add(Entry{f.key, f.keyLength, &f, base, nullptr, nullptr, nullptr});
    }
  }
}

bool ObjectText::Write(TextSink* out) {
  if (!ok_) return false;
  Entry* e = data();
  // Stable: of two members of one key, the later stays later.
  for (size_t i = 1; i < n_; ++i) {
    const Entry x = e[i];
    size_t j = i;
    for (; j > 0 && KeyLess(x, e[j - 1]); --j) e[j] = e[j - 1];
    e[j] = x;
  }
  out->Literal("{ ");
  bool first = true;
  for (size_t i = 0; i < n_ && !out->full(); ++i) {
    // Of two members under one key, the later one stands.
    if (i + 1 < n_ && SameKey(e[i], e[i + 1].key, e[i + 1].length)) continue;
    if (!first) out->Literal(", ");
    first = false;
    WriteJsonString(e[i].key, e[i].key + e[i].length, out);
    out->Literal(" : ");
    const unsigned char* record = static_cast<const unsigned char*>(e[i].record);
    if (e[i].tree != nullptr) {
      WriteJsonValue(*e[i].tree, out);
    } else if (e[i].write != nullptr) {
      e[i].write(e[i].record, e[i].field, out);
    } else if (e[i].table != nullptr) {
      WriteMembersText(e[i].record, *e[i].table, out);
    } else if (e[i].field->shape == FieldShape::kList) {
      WriteList(record, *e[i].field, out);  // the count member lives in the record
    } else {
      WriteValueText(record + e[i].field->offset, *e[i].field, out);
    }
  }
  out->Literal(" }");
  return true;
}

void WriteFieldsText(const void* record, const FieldTable& t, TextSink* out) {
  WriteObject(static_cast<const unsigned char*>(record), t.fields, t.count, true, false, out);
}

void WriteMembersText(const void* record, const FieldTable& t, TextSink* out) {
  WriteObject(static_cast<const unsigned char*>(record), t.fields, t.count, false, false, out);
}

bool WriteValueText(const unsigned char* member, const Field& f, TextSink* out) {
  switch (f.shape) {
    case FieldShape::kScalar:
      return WriteScalar(member, f, out);
    case FieldShape::kNested:
      if (f.table == nullptr) return false;
      WriteObject(member, f.table->fields, f.table->count, false, f.nullWhenEmpty, out);
      return true;
    case FieldShape::kTuple:
      out->Literal("[ ");
      for (uint32_t i = 0; i < f.capacity; ++i) {
        if (i != 0) out->Literal(", ");
        if (!WriteScalar(member + i * f.size, f, out)) out->Literal("\"\"");
      }
      out->Literal(" ]");
      return true;
    case FieldShape::kList:
      if (f.element == nullptr) return false;
      WriteList(member - f.offset, f, out);  // a list entry that is itself a list
      return true;
    case FieldShape::kCustom:
      return false;
  }
  return false;
}

}  // namespace kova
