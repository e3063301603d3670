// Round trip, for names with both directions: a fuzzed document is parsed,
// the records are packed, and the packed text is parsed again into a second
// buffer. Every step is held to the same rules as the one-way fuzzers (the
// copy rule is left to the pack fuzzer); whether the two records are equal
// is for the unit tests to say.
#include <cstddef>
#include <cstdint>
#include <string>

#include "api/dispatch.h"
#include "fuzz_input.h"
#include "harness/calls.h"
#include "harness/catalog.h"
#include "harness/documents.h"
#include "json_mutator.h"

using namespace kova_fuzz;
using namespace kova_harness;

KOVA_JSON_MUTATOR(kHeaderSize)

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzInput in(data, size);
  const Header h = ReadHeader(&in);
  const std::string text = in.Rest();

  const NamePair pair = NextBuiltBothWays(h.name);
  if (pair.parse < 0) return 0;
  const char* listed = kova::kParseNames[pair.parse].name;
  const uint32_t records = 1 + h.size % 4;
  const uint32_t outLen = ParseSizeOrDefault(pair.parse) * records;

  ParseOptions keep;
  keep.keepBytes = true;
  const ParseResult parsed = CallParse(listed, text.c_str(), outLen, keep);
  std::string v = ParseViolation(pair.parse, text, outLen, parsed);
  if (!v.empty()) Fail("parse", listed, v);
  if (parsed.ret == 0) return 0;

  const std::string record = parsed.bytes.substr(0, outLen);
  const std::string pointed = parsed.bytes.substr(outLen);
  const uint32_t inLen = parsed.retLen != 0 ? parsed.retLen : outLen;
  // A text buffer of 64 KiB holds most packed texts; clearing a larger one
  // every time would eat the fuzzing, so it is only tried when needed.
  PackResult packed;
  for (uint32_t textLen : {64u << 10, 4u << 20}) {
    packed = CallPack(listed, record, inLen, textLen, pointed);
    v = PackViolation(pair.pack, record, inLen, textLen, packed, pointed, false);
    if (!v.empty()) Fail("pack", listed, v);
    if (packed.ret != 0) break;
  }
  if (packed.ret == 0) return 0;

  std::string table = packed.text;
  while (!table.empty() && table.back() == '\n') table.pop_back();
  const std::string again = Envelope(table);
  const ParseResult reparsed = CallParse(listed, again.c_str(), outLen);
  v = ParseViolation(pair.parse, again, outLen, reparsed);
  if (!v.empty()) Fail("parse of packed text", listed, v);
  return 0;
}
