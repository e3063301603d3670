// A mutator that knows a little JSON: besides libFuzzer's byte-level
// mutations it swaps whole values, keys and array elements of the document
// for the device's own keys and enumeration texts (from kova.dict) and for
// values of awkward types and ranges. Byte mutations alone rarely turn
// "Mode":2 into "Mode":"Stop"; translators branch on exactly such changes.
#ifndef KOVA_FUZZ_JSON_MUTATOR_H_
#define KOVA_FUZZ_JSON_MUTATOR_H_

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <random>
#include <string>
#include <vector>

extern "C" size_t LLVMFuzzerMutate(uint8_t* data, size_t size, size_t maxSize);

namespace kova_fuzz {

// The quoted texts of the dictionary file (libFuzzer's format), unescaped.
inline std::vector<std::string> LoadQuotedTexts(const char* path) {
  std::vector<std::string> out;
  std::ifstream in(path);
  for (std::string line; std::getline(in, line);) {
    const size_t open = line.find('"');
    if (line.empty() || line[0] == '#' || open == std::string::npos) continue;
    std::string text;
    for (size_t i = open + 1; i + 1 < line.size(); ++i) {
      if (line[i] == '\\' && i + 1 < line.size() - 1) {
        ++i;
        if (line[i] == 'x' && i + 2 < line.size()) {
          text.push_back(static_cast<char>(std::stoi(line.substr(i + 1, 2), nullptr, 16)));
          i += 2;
        } else {
          text.push_back(line[i]);
        }
      } else {
        text.push_back(line[i]);
      }
    }
    if (text.size() >= 2 && text.front() == '"' && text.back() == '"') out.push_back(text);
  }
  return out;
}

class JsonMutator {
 public:
  explicit JsonMutator(const char* dictPath) : texts_(LoadQuotedTexts(dictPath)) {}

  // Mutates the JSON text that follows `header` bytes of `data`.
  size_t Mutate(uint8_t* data, size_t size, size_t maxSize, unsigned seed, size_t header) {
    std::minstd_rand rng(seed);
    if (size <= header || texts_.empty() || rng() % 3 == 0) {
      return LLVMFuzzerMutate(data, size, maxSize);
    }
    std::string s(reinterpret_cast<const char*>(data) + header, size - header);
    switch (rng() % 4) {
      case 0:
        ReplaceAfter(&s, ":[,", Token(rng), rng);
        break;
      case 1:
        ReplaceKey(&s, rng);
        break;
      case 2:
        InsertAfter(&s, '{', Pick(rng) + ":" + Token(rng) + ",", rng);
        break;
      default:
        InsertAfter(&s, '[', Token(rng) + ",", rng);
        break;
    }
    if (header + s.size() > maxSize) return LLVMFuzzerMutate(data, size, maxSize);
    std::copy(s.begin(), s.end(), data + header);
    return header + s.size();
  }

 private:
  const std::string& Pick(std::minstd_rand& rng) { return texts_[rng() % texts_.size()]; }

  std::string Token(std::minstd_rand& rng) {
    static const char* const kValues[] = {"null",
                                          "true",
                                          "false",
                                          "0",
                                          "1",
                                          "2",
                                          "3",
                                          "-1",
                                          "7",
                                          "16",
                                          "32",
                                          "128",
                                          "255",
                                          "256",
                                          "1024",
                                          "65535",
                                          "2147483647",
                                          "2147483648",
                                          "-2147483648",
                                          "4294967295",
                                          "4294967296",
                                          "18446744073709551615",
                                          "1e400",
                                          "-1e400",
                                          "0.5",
                                          "-0.0",
                                          "1e-400",
                                          "[]",
                                          "{}",
                                          "[1,2]",
                                          "[[0,0],[8191,8191]]",
                                          "\"\"",
                                          "\"1 00:00:00-23:59:59\"",
                                          "[\"a\",\"b\"]",
                                          "{\"a\":[]}"};
    const size_t n = sizeof kValues / sizeof kValues[0];
    if (rng() % 2 == 0) return Pick(rng);
    if (rng() % 8 == 0) return std::to_string(static_cast<int32_t>(rng()));
    return kValues[rng() % n];
  }

  // Index of the end of the value that starts at `b`.
  static size_t ValueEnd(const std::string& s, size_t b) {
    if (b >= s.size()) return b;
    if (s[b] == '"') {
      for (size_t i = b + 1; i < s.size(); ++i) {
        if (s[i] == '\\')
          ++i;
        else if (s[i] == '"')
          return i + 1;
      }
      return s.size();
    }
    if (s[b] == '{' || s[b] == '[') {
      int depth = 0;
      for (size_t i = b; i < s.size(); ++i) {
        if (s[i] == '"') {
          i = ValueEnd(s, i) - 1;
        } else if (s[i] == '{' || s[i] == '[') {
          ++depth;
        } else if ((s[i] == '}' || s[i] == ']') && --depth == 0) {
          return i + 1;
        }
      }
      return s.size();
    }
    size_t e = b;
    while (e < s.size() && std::string(",}] \t\r\n").find(s[e]) == std::string::npos) ++e;
    return e;
  }

  // A random occurrence of `c` (or of one of `cs`), npos when none.
  static size_t RandomPosition(const std::string& s, const std::string& cs, std::minstd_rand& rng) {
    std::vector<size_t> at;
    for (size_t i = 0; i < s.size(); ++i) {
      if (cs.find(s[i]) != std::string::npos) at.push_back(i);
    }
    return at.empty() ? std::string::npos : at[rng() % at.size()];
  }

  static void ReplaceAfter(std::string* s, const std::string& cs, const std::string& token,
                           std::minstd_rand& rng) {
    const size_t p = RandomPosition(*s, cs, rng);
    if (p == std::string::npos) return;
    size_t b = p + 1;
    while (b < s->size() && std::string(" \t\r\n").find((*s)[b]) != std::string::npos) ++b;
    s->replace(b, ValueEnd(*s, b) - b, token);
  }

  void ReplaceKey(std::string* s, std::minstd_rand& rng) {
    const size_t colon = RandomPosition(*s, ":", rng);
    if (colon == std::string::npos) return;
    const size_t close = s->rfind('"', colon);
    const size_t open =
        close == std::string::npos || close == 0 ? std::string::npos : s->rfind('"', close - 1);
    if (open == std::string::npos) return;
    s->replace(open, close + 1 - open, Pick(rng));
  }

  static void InsertAfter(std::string* s, char c, const std::string& text, std::minstd_rand& rng) {
    const size_t p = RandomPosition(*s, std::string(1, c), rng);
    if (p != std::string::npos) s->insert(p + 1, text);
  }

  std::vector<std::string> texts_;
};

}  // namespace kova_fuzz

// Defines libFuzzer's custom mutator for a fuzzer whose JSON text follows
// `header` bytes of each input.
#define KOVA_JSON_MUTATOR(header)                                                       \
  extern "C" size_t LLVMFuzzerCustomMutator(uint8_t* data, size_t size, size_t maxSize, \
                                            unsigned int seed) {                        \
    static kova_fuzz::JsonMutator mutator(KOVA_FUZZ_DICT);                              \
    return mutator.Mutate(data, size, maxSize, seed, (header));                         \
  }

#endif  // KOVA_FUZZ_JSON_MUTATOR_H_
