#include "common/fields/field_view.h"

#include <json/writer.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "common/base/platform.h"
#include "common/json/json.h"

namespace kova {
namespace {

std::string Join(const std::string& prefix, const char* name) {
  if (name == nullptr || *name == '\0') return prefix;
  return prefix.empty() ? std::string(name) : prefix + "." + name;
}

std::string Indexed(const std::string& prefix, uint32_t i) {
  return prefix + "[" + std::to_string(i) + "]";
}

// The C type of one item of `f` (of a tuple item, of a list entry) with its
// array extents: {"char", "[64]"}.
void ItemType(const Field& f, std::string* base, std::string* dims) {
  *base = f.type != nullptr ? f.type : (f.shape == FieldShape::kNested ? "struct" : "?");
  dims->clear();
  if (f.shape == FieldShape::kTuple) *dims = "[" + std::to_string(f.capacity) + "]";
  if ((f.kind == FieldKind::kText || f.kind == FieldKind::kTextRaw) &&
      f.shape != FieldShape::kList) {
    *dims = "[" + std::to_string(f.size) + "]";
  }
}

std::string TypeOf(const Field& f) {
  std::string base;
  std::string dims;
  if (f.shape == FieldShape::kList && f.element != nullptr) {
    ItemType(*f.element, &base, &dims);
    if (f.allocated) return base + dims + "*";
    return base + "[" + std::to_string(f.capacity) + "]" + dims;
  }
  if (f.shape == FieldShape::kCustom) {
    return f.type != nullptr ? std::string(f.type) : "(" + std::to_string(f.size) + " bytes)";
  }
  ItemType(f, &base, &dims);
  return base + dims;
}

// Shortest text of `v` that reads back to the same value; plain decimals
// for everyday magnitudes.
std::string RealText(double v, int maxDigits) {
  const bool isFloat = maxDigits <= 9;
  auto same = [&](const char* text) {
    const double back = std::strtod(text, nullptr);
    return isFloat ? static_cast<float>(back) == static_cast<float>(v) : back == v;
  };
  char buf[400];  // room for any double in %f
  const bool plain = v == 0 || (std::fabs(v) >= 1e-4 && std::fabs(v) < 1e15);
  for (int digits = plain ? 0 : 1; digits <= maxDigits; ++digits) {
    std::snprintf(buf, sizeof buf, plain ? "%.*f" : "%.*g", digits, v);
    if (same(buf)) return buf;
  }
  std::snprintf(buf, sizeof buf, "%.*g", maxDigits, v);
  return buf;
}

// A text quoted for people: UTF-8 kept, quotes, backslashes and control
// bytes escaped.
std::string Quoted(const std::string& s) {
  std::string out = "\"";
  for (const unsigned char c : s) {
    if (c == '"' || c == '\\') {
      out += '\\';
      out += static_cast<char>(c);
    } else if (c < 0x20 || c == 0x7F) {
      char buf[8];
      std::snprintf(buf, sizeof buf, "\\x%02x", c);
      out += buf;
    } else {
      out += static_cast<char>(c);
    }
  }
  return out + "\"";
}

bool IsUnsigned(const Field& f) {
  return f.kind == FieldKind::kUInt || (f.type != nullptr && f.type[0] == 'u');
}

// One scalar item of kind `f.kind`, `f.size` bytes at `p`.
void ScalarValue(const Field& f, const unsigned char* p, std::string* text, Json::Value* value) {
  switch (f.kind) {
    case FieldKind::kReal: {
      double v = 0;
      if (f.size == sizeof(float)) {
        float x;
        std::memcpy(&x, p, sizeof x);
        v = x;
      } else if (f.size == sizeof(double)) {
        std::memcpy(&v, p, sizeof v);
      }
      *text = RealText(v, f.size == sizeof(float) ? 9 : 17);
      *value = v;
      return;
    }
    case FieldKind::kText:
    case FieldKind::kTextRaw: {
      const size_t n = strnlen(reinterpret_cast<const char*>(p), f.size);
      std::string s(reinterpret_cast<const char*>(p), n);
      if (f.kind == FieldKind::kText && n > 0) {
        std::string utf8(n * 4, '\0');
        const platform::Conversion c = platform::LocalToUtf8(s.data(), n, &utf8[0], utf8.size());
        utf8.resize(c.written);
        s = utf8;
      }
      *text = Quoted(s);
      *value = s;
      return;
    }
    default:
      break;
  }
  const bool isUnsigned = IsUnsigned(f);
  const int64_t v = LoadInt(p, f.size, !isUnsigned);
  if (isUnsigned && f.size == 8) {
    *text = std::to_string(static_cast<uint64_t>(v));
    *value = Json::UInt64(static_cast<uint64_t>(v));
  } else {
    *text = std::to_string(v);
    *value = Json::Int64(v);
  }
  if (f.kind == FieldKind::kEnum && f.names != nullptr) {
    const char* name = EnumName(*f.names, v);
    if (name != nullptr) *text += std::string(" (") + name + ")";
  }
}

class Walker {
 public:
  Walker(const unsigned char* record, uint32_t size) : record_(record), covered_(size, false) {}

  void Walk(const Field& f, uint32_t base, const std::string& member, const std::string& key,
            int depth, bool rows) {
    const uint32_t at = base + f.offset;
    // A member the description does not name is called after its key.
    const bool unnamed = f.member == nullptr && f.key != nullptr && f.shape != FieldShape::kNested;
    const std::string path =
        unnamed ? Join(member, Lowered(f.key).c_str()) : Join(member, f.member);
    const std::string keys = Join(key, f.key);
    if (f.presence == Presence::kFlag) Cover(base + f.flag.offset, f.flag.size);
    if (f.shape == FieldShape::kList) Cover(base + f.count.offset, f.count.size);

    ViewRow row;
    row.depth = depth;
    row.member = path;
    row.key = keys;
    row.type = TypeOf(f);
    row.offset = at;
    row.field = &f;
    if (f.presence == Presence::kFlag) {
      row.hasFlag = true;
      row.flagOffset = base + f.flag.offset;
      row.present = record_ == nullptr || !Inside(row.flagOffset, f.flag.size) ||
                    LoadInt(record_ + row.flagOffset, f.flag.size, false) != 0;
    }

    switch (f.shape) {
      case FieldShape::kNested: {
        row.role = RowRole::kBlock;
        row.size = f.size;
        const bool header = f.member != nullptr || f.key != nullptr;
        if (header) Emit(&row, rows);
        if (f.table == nullptr) return;
        for (size_t i = 0; i < f.table->count; ++i) {
          Walk(f.table->fields[i], at, path, keys, depth + (header ? 1 : 0), rows);
        }
        return;
      }
      case FieldShape::kList: {
        row.role = RowRole::kList;
        row.size = f.allocated ? static_cast<uint32_t>(sizeof(void*)) : f.size * f.capacity;
        if (record_ != nullptr && f.count.size != 0 &&
            Inside(base + f.count.offset, f.count.size)) {
          row.entries = LoadInt(record_ + base + f.count.offset, f.count.size, f.count.isSigned);
        }
        if (f.allocated) {
          Cover(at, row.size);
          row.note = "entries held elsewhere";
          Emit(&row, rows);
          return;
        }
        Emit(&row, rows);
        if (f.element == nullptr) return;
        for (uint32_t i = 0; i < f.capacity; ++i) {
          const bool unused = row.entries >= 0 && static_cast<int64_t>(i) >= row.entries;
          const bool entryRows = rows && (record_ != nullptr || i == 0);
          unusedDepth_ += unused ? 1 : 0;
          Walk(*f.element, at + i * f.size, Indexed(path, i), Indexed(keys, i), depth + 1,
               entryRows);
          unusedDepth_ -= unused ? 1 : 0;
        }
        return;
      }
      case FieldShape::kTuple: {
        row.size = f.size * f.capacity;
        Cover(at, row.size);
        if (record_ != nullptr && Inside(at, row.size)) {
          row.value = Json::Value(Json::arrayValue);
          row.text = "[";
          for (uint32_t i = 0; i < f.capacity; ++i) {
            std::string t;
            Json::Value v;
            ScalarValue(f, record_ + at + i * f.size, &t, &v);
            row.text += (i == 0 ? "" : ", ") + t;
            row.value.append(v);
          }
          row.text += "]";
        }
        Emit(&row, rows);
        return;
      }
      case FieldShape::kCustom: {
        row.size = f.size;
        row.note = "hand-written";
        Cover(at, f.size);
        if (record_ != nullptr && f.pack != nullptr && Inside(base, f.offset + f.size)) {
          Json::Value obj(Json::objectValue);
          f.pack(record_ + base, obj, f);
          row.value = f.key != nullptr ? Member(obj, f.key) : obj;
          row.text = ToSingleLine(row.value);
        }
        Emit(&row, rows);
        return;
      }
      case FieldShape::kScalar:
        row.size = f.size;
        Cover(at, f.size);
        if (record_ != nullptr && Inside(at, f.size))
          ScalarValue(f, record_ + at, &row.text, &row.value);
        Emit(&row, rows);
        return;
    }
  }

  // Rows in record order; a block's header stays before its members.
  RecordView Finish() {
    std::stable_sort(view_.rows.begin(), view_.rows.end(),
                     [](const ViewRow& a, const ViewRow& b) { return a.offset < b.offset; });
    for (uint32_t i = 0; i < covered_.size();) {
      if (covered_[i]) {
        ++i;
        continue;
      }
      uint32_t end = i;
      while (end < covered_.size() && !covered_[end]) ++end;
      view_.undescribed.push_back(ByteRange{i, end - i});
      i = end;
    }
    return std::move(view_);
  }

 private:
  static std::string Lowered(const char* key) {
    std::string s = key;
    if (!s.empty() && s[0] >= 'A' && s[0] <= 'Z') s[0] = static_cast<char>(s[0] - 'A' + 'a');
    return s;
  }
  static std::string ToSingleLine(const Json::Value& v) {
    Json::StreamWriterBuilder builder;
    builder["indentation"] = "";
    builder["emitUTF8"] = true;
    return Json::writeString(builder, v);
  }
  bool Inside(uint32_t at, uint32_t n) const {
    return at <= covered_.size() && n <= covered_.size() - at;
  }
  void Cover(uint32_t at, uint32_t n) {
    for (uint32_t i = 0; i < n && at + i < covered_.size(); ++i) covered_[at + i] = true;
  }
  void Emit(ViewRow* row, bool rows) {
    if (!rows) return;
    row->unused = unusedDepth_ > 0;
    if (record_ != nullptr) {
      bool zero = true;
      for (uint32_t i = 0; i < row->size && row->offset + i < covered_.size(); ++i) {
        zero = zero && record_[row->offset + i] == 0;
      }
      row->zero = zero;
    }
    view_.rows.push_back(std::move(*row));
  }

  const unsigned char* record_;
  std::vector<bool> covered_;
  RecordView view_;
  int unusedDepth_ = 0;
};

RecordView Run(const Field* whole, const unsigned char* record, uint32_t recordSize) {
  Walker w(record, recordSize);
  if (whole != nullptr) w.Walk(*whole, 0, std::string(), std::string(), 0, true);
  return w.Finish();
}

}  // namespace

RecordView LayoutOf(const Field* whole, uint32_t recordSize) {
  return Run(whole, nullptr, recordSize);
}

RecordView ViewOf(const Field* whole, const unsigned char* record, uint32_t recordSize) {
  return Run(whole, record, recordSize);
}

std::string HexBytes(const unsigned char* bytes, uint32_t n) {
  std::string out;
  char buf[4];
  for (uint32_t i = 0; i < n; ++i) {
    std::snprintf(buf, sizeof buf, "%02x", bytes[i]);
    if (i > 0) out += ' ';
    out += buf;
  }
  return out;
}

}  // namespace kova
