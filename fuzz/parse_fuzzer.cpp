// Parse: the input chooses a name (in any letter case), the size of the
// caller's buffer (around the record size, down to one byte, up to 16 MiB)
// and how the buffer is prefilled, and supplies the device's JSON text. The
// buffer sits between poisoned guard zones; the call must keep within it,
// report no more bytes than it holds, refuse a buffer below one record and
// text that does not parse. One flag bit asks for the name's flat form
// ("flat:NAME") instead.
#include <cstddef>
#include <cstdint>
#include <string>

#include "api/dispatch.h"
#include "fuzz_input.h"
#include "harness/calls.h"
#include "harness/catalog.h"
#include "json_mutator.h"

using namespace kova_fuzz;
using namespace kova_harness;

KOVA_JSON_MUTATOR(kHeaderSize)

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzInput in(data, size);
  const Header h = ReadHeader(&in);
  const std::string text = in.Rest();

  const int i = NextBuiltParse(h.name);
  const char* listed = kova::kParseNames[i].name;
  const std::string name = NameVariant(listed, h.flags);
  const uint32_t recordSize = ParseSize(i);
  const uint32_t outLen = ChooseSize(h.size, recordSize, h.extra);
  ParseOptions o;
  o.prefill = (h.flags & 4) != 0 ? kUntouched : 0;
  o.pointedCount = int64_t{h.extra} * 16;
  if ((h.flags & 8) != 0) o.sizeWord = (h.other & 1) != 0 ? ParseSizeOrDefault(i) : h.extra;

  if ((h.flags & 16) != 0) {
    // The flat form of the same name: a document that runs on to the end of
    // the buffer, whatever the name's own record.
    const ParseResult r = CallParse(("flat:" + name).c_str(), text.c_str(), outLen, o);
    if (!r.guardsIntact) Fail("parse", listed, "flat form: wrote outside its buffer");
    if (r.ret == 1 && r.retLen > outLen) Fail("parse", listed, "flat form: retLen past outLen");
    return 0;
  }
  const ParseResult r = CallParse(name.c_str(), text.c_str(), outLen, o);
  const std::string v = ParseViolation(i, text, outLen, r);
  if (!v.empty()) Fail("parse", listed, v);
  return 0;
}
