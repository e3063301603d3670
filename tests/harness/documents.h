// Device documents for the reliability harness: the shipped samples and test
// fixtures, realistic documents made by packing typical records, and
// hostile variants of them (values of the wrong type or range).
#ifndef KOVA_TESTS_HARNESS_DOCUMENTS_H_
#define KOVA_TESTS_HARNESS_DOCUMENTS_H_

#include <cstddef>
#include <string>
#include <vector>

namespace kova_harness {

struct SampleDocument {
  std::string name;  // configuration name as the lists spell it; "" when the file names none
  std::string path;
  std::string text;
};

// Every *.json file under the given directories (recursively; a missing
// directory is skipped), sorted by path.
std::vector<SampleDocument> LoadSampleDocuments(const std::vector<std::string>& dirs);

// The configuration name a sample file is for: its file name less ".json",
// then less any suffix after a last '.', '_' or '-' (repeatedly), matched
// against both name lists without regard to letter case; failing that, the
// name of the directory holding it. "" when nothing matches.
std::string NameOfSampleFile(const std::string& path);

// {"result":true,"params":{"table":TABLE}}
std::string Envelope(const std::string& table);

// Packed texts (newline removed) of typical records of pack name `k`: a
// record full of 0x7F bytes (every presence flag set, every count at its
// cap), then an all-zero one. Empty when the name has no packer or packing
// fails.
std::vector<std::string> PackedShapes(int k);

// Documents up to this size are cheap enough to vary in many ways; the
// packed shape of a large record (a linkage block of every channel) can be
// a megabyte of text.
constexpr size_t kSmallDocument = 64u << 10;

// Realistic documents for parse name `i`: its samples, then envelopes of
// the packed shapes of the same name, shorter first (one record, and for
// short ones an array of two). Never empty: an envelope with an empty table
// stands in when nothing else is known.
std::vector<std::string> RealisticDocuments(int i, const std::vector<SampleDocument>& samples);

// JSON texts of values of every type and of awkward ranges: huge, negative,
// overflowing and denormal numbers, long and malformed strings, nested
// containers.
const std::vector<std::string>& HostileValues();

// `doc` with every scalar of its table (or of the whole document when it
// has no "params"."table") replaced by the JSON text `value`; for a long
// value, evenly spaced scalars, so that the document stays within a few
// hundred KiB. "result" is kept. Returns "" when `doc` does not parse.
std::string ReplaceScalars(const std::string& doc, const std::string& value);
// `doc` with every object and array inside its table's records replaced by
// `value`: every member keeps its key but gets the wrong type.
std::string ReplaceContainers(const std::string& doc, const std::string& value);

// Texts that are not JSON the reader accepts: empty, blanks, cut short,
// unbalanced, nested deeper than the reader allows.
std::vector<std::string> MalformedTexts(const std::string& realistic);

// Analyzer event documents: the samples under an "events" directory or
// whose text names an "Event", "EventList" or "eventList" member, and made
// ones with every kind of event (with and
// without "Data", unknown codes, more than the 128 events one notification
// may carry).
std::vector<std::string> EventDocuments(const std::vector<SampleDocument>& samples);

// The JSON reader's verdict, as every translator sees it.
bool Parses(const std::string& text);

}  // namespace kova_harness

#endif  // KOVA_TESTS_HARNESS_DOCUMENTS_H_
