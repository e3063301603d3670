// The event stream and parse-by-callback: fuzzed event documents, in a
// buffer of exactly their length, with a length argument that may lie. The
// callback reads every byte of every record it is given and holds the
// callback contract of the analyzer events.
#include <cstddef>
#include <cstdint>
#include <string>

#include "fuzz_input.h"
#include "harness/calls.h"
#include "json_mutator.h"

using namespace kova_fuzz;
using namespace kova_harness;

KOVA_JSON_MUTATOR(kEventHeaderSize)

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzInput in(data, size);
  const uint8_t flags = in.Byte();
  const uint16_t len = in.Word();
  const std::string text = in.Rest();

  const bool byCallback = (flags & 1) != 0;
  const uint32_t length = (flags & 2) != 0 ? len : static_cast<uint32_t>(text.size());
  const EventResult r = CallEvents(text, length, byCallback);
  if (!r.violation.empty()) Fail(byCallback ? "by-callback" : "events", "", r.violation);
  return 0;
}
