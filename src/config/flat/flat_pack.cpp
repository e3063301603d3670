// Writing a flat list of paths and values back as the payload it came from.
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

#include "common/fields/fields.h"
#include "common/json/json.h"
#include "config/flat/flat.h"
#include "kova/records/flat.h"

namespace kova {

namespace {

constexpr uint32_t kHeaderBytes = offsetof(FlatDocument, values);

// Rebuilds the tree value by value. Array elements cost text: every element
// takes at least three bytes ("x, "), so an output of `outLen` bytes holds
// fewer than outLen / 3 of them; a document asking for more (an index far
// beyond its neighbours) is refused before its nulls are made.
class Rebuilder {
 public:
  explicit Rebuilder(uint32_t outLen) : elementBudget_(outLen / 3) {}

  bool Add(const FlatValue& v) {
    if (v.type > KOVA_FLAT_EMPTY_OBJECT) return false;
    const size_t len = strnlen(v.path, sizeof v.path);
    if (len == sizeof v.path) return false;  // no terminator within the field
    Json::Value* node = &root_;
    size_t at = 0;
    while (at < len) {
      const char c = v.path[at];
      if (c == '[') {
        node = Index(node, v.path, len, &at);
      } else if (c == '.' && at > 0) {
        node = Member(node, v.path, len, &++at);
      } else if (at == 0) {
        node = Member(node, v.path, len, &at);
      } else {
        node = nullptr;  // "]" or a name glued to an index
      }
      if (node == nullptr) return false;
    }
    if (!node->isNull()) return false;  // a path given twice, or below a container's leaf
    Store(v, node);
    return true;
  }

  const Json::Value& Root() const { return root_; }

 private:
  // "[digits]" at `*at`: the element, the array made or grown.
  Json::Value* Index(Json::Value* node, const char* path, size_t len, size_t* at) {
    size_t k = *at + 1;
    uint64_t index = 0;
    const size_t digits = k;
    while (k < len && path[k] >= '0' && path[k] <= '9' && k - digits < 10) {
      index = index * 10 + static_cast<uint64_t>(path[k] - '0');
      ++k;
    }
    if (k == digits || k >= len || path[k] != ']') return nullptr;
    *at = k + 1;
    if (node->isNull()) *node = Json::Value(Json::arrayValue);
    if (!node->isArray()) return nullptr;
    const uint64_t size = node->size();
    if (index >= size) {
      if (index + 1 - size > elementBudget_) return nullptr;
      elementBudget_ -= index + 1 - size;
    }
    return &SetElement(*node, static_cast<uint32_t>(index));
  }

  // A member name at `*at`, up to an unescaped "." or "[": the member, the
  // object made. An escape stands before ".", "[", "]" or "\"; an unescaped
  // "]" or an empty name is refused.
  static Json::Value* Member(Json::Value* node, const char* path, size_t len, size_t* at) {
    std::string name;
    size_t k = *at;
    while (k < len && path[k] != '.' && path[k] != '[') {
      if (path[k] == ']') return nullptr;
      if (path[k] == '\\') {
        if (++k >= len) return nullptr;
      }
      name.push_back(path[k++]);
    }
    if (name.empty()) return nullptr;
    *at = k;
    if (node->isNull()) *node = Json::Value(Json::objectValue);
    if (!node->isObject()) return nullptr;
    return &(*node)[name];
  }

  static void Store(const FlatValue& v, Json::Value* node) {
    switch (v.type) {
      case KOVA_FLAT_BOOL:
        *node = v.integer != 0;
        break;
      case KOVA_FLAT_INT:
        *node = static_cast<Json::Int64>(v.integer);
        break;
      case KOVA_FLAT_UINT: {
        uint64_t u = 0;
        std::memcpy(&u, &v.integer, sizeof u);
        *node = static_cast<Json::UInt64>(u);
        break;
      }
      case KOVA_FLAT_REAL:
        *node = v.real;
        break;
      case KOVA_FLAT_TEXT:
        SetJsonStringBounded(*node, v.text, sizeof v.text, 1);
        break;
      case KOVA_FLAT_EMPTY_ARRAY:
        *node = Json::Value(Json::arrayValue);
        break;
      case KOVA_FLAT_EMPTY_OBJECT:
        *node = Json::Value(Json::objectValue);
        break;
      default:
        break;  // null
    }
  }

  Json::Value root_;
  uint64_t elementBudget_;
};

}  // namespace

int PackFlat(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen) {
  try {
    if (outJson == nullptr || outLen == 0) return 0;
    std::memset(outJson, 0, outLen);
    if (inBuf == nullptr || inLen < kHeaderBytes) return 0;
    const unsigned char* in = static_cast<const unsigned char*>(inBuf);
    uint32_t count = 0;
    std::memcpy(&count, in + offsetof(FlatDocument, count), sizeof count);
    const uint32_t room = (inLen - kHeaderBytes) / static_cast<uint32_t>(sizeof(FlatValue));
    const uint32_t n = count < room ? count : room;
    Rebuilder tree(outLen);
    for (uint32_t i = 0; i < n; ++i) {
      FlatValue v;
      std::memcpy(&v, in + kHeaderBytes + static_cast<size_t>(i) * sizeof v, sizeof v);
      if (!tree.Add(v)) return 0;
    }
    return CopyPacked(tree.Root(), outJson, outLen, CopyRule::kStrictlyLess);
  } catch (...) {
    std::memset(outJson, 0, outLen);
    return 0;
  }
}

}  // namespace kova
