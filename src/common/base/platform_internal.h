// What the parts of the platform module share: the UTF-8 codec that both
// directions of code-page conversion go through, and the system side of the
// conversion, which each operating system's part provides
// (platform_posix.cpp: iconv; platform_windows.cpp: MultiByteToWideChar and
// WideCharToMultiByte). Used only inside the platform module.
#ifndef KOVA_COMMON_PLATFORM_INTERNAL_H_
#define KOVA_COMMON_PLATFORM_INTERNAL_H_

#include <cstddef>
#include <string>
#include <vector>

namespace kova {
namespace platform {
namespace internal {

constexpr char32_t kReplacement = 0xFFFD;

// ---- UTF-8 (platform.cpp) --------------------------------------------------
//
// Both directions go through code points, the way a conversion through a
// wide-character form does: UTF-8 is decoded here, so that an invalid
// sequence is replaced the same way whatever the local code page and system.

// Decodes UTF-8 into code points. Each maximal ill-formed subpart (a lone
// continuation byte, a truncated sequence, an overlong form, a surrogate, a
// value beyond U+10FFFF) becomes one U+FFFD and decoding goes on.
std::vector<char32_t> DecodeUtf8(const unsigned char* s, size_t n);

// Encodes code points as UTF-8 into at most `cap` bytes; stops before the
// first character that does not fit whole.
size_t EncodeUtf8(const std::vector<char32_t>& cps, char* dst, size_t cap);

// A code-page name with ASCII letters upper-cased and '-', '_' dropped, so
// that "utf-8", "UTF_8" and "UTF8" compare equal.
std::string FoldName(const std::string& name);

// ---- The system side (one per operating system) ---------------------------

// The local code page as the calling thread's converter sees it.
struct CodePage {
  std::string name;      // the name asked for (KOVA_CODEPAGE, or the system's)
  bool viaUtf8 = true;   // converted by the codec above, no system converter
  bool unknown = false;  // the system does not know `name`: UTF-8 used instead
};

// Brings the calling thread's converter up to date with the local code page
// (KOVA_CODEPAGE, else the system's), reopening it only when the code page
// changed since the thread's last call, and tells which it is.
const CodePage& FollowCodePage();

// Through the converter FollowCodePage() readied, when `viaUtf8` is false:
// code points into at most `cap` bytes of the local code page, a code point
// it cannot hold written as "?", stopping before the first character that
// does not fit whole...
size_t CodePointsToLocal(std::vector<char32_t>& cps, char* dst, size_t cap);
// ...and `n` bytes of the local code page into code points, an invalid byte
// becoming one U+FFFD (conversion goes on after it), a truncated sequence at
// the end one U+FFFD.
std::vector<char32_t> LocalToCodePoints(const char* src, size_t n);

// The name of the local code page now, without touching any converter.
std::string ResolveCodePage();

}  // namespace internal
}  // namespace platform
}  // namespace kova

#endif  // KOVA_COMMON_PLATFORM_INTERNAL_H_
