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

// Copies `text` with its terminating NUL into `out` when it fits, that is
// when `outLen` is strictly greater than the text's length. Returns false
// (nothing copied) otherwise.
bool CopyTextStrict(const std::string& text, char* out, uint32_t outLen);

// Copies `text` into `out` when its length is at most `outLen`; the NUL is
// written only when there is room for it. Returns false (nothing copied)
// otherwise.
bool CopyTextAtMost(const std::string& text, char* out, uint32_t outLen);

}  // namespace kova

#endif  // KOVA_COMMON_JSON_WRITER_H_
