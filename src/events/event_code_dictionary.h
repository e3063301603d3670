// The device's event names and their numeric event codes, both ways.
//
// A process-wide lookup service, made on first use (safely from any
// thread) and never destroyed. Names are compared exactly, letter case
// included. Two pairs of names share a code ("GPSStatus" and "GPS",
// "AudioAnomaly" and "AudioAbnormalDetection"); a code gives back the first
// of its names.
//
// Used by the analyzer event stream: each delivered event record carries
// the dictionary code of its "Code" (EventCommon::dictionaryCode), which
// names alarm and device events that have no analysis type code; the
// command-line tool prints the name back.
#ifndef KOVA_EVENTS_EVENT_CODE_DICTIONARY_H_
#define KOVA_EVENTS_EVENT_CODE_DICTIONARY_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>

namespace kova {

class EventCodeDictionary {
 public:
  // The one dictionary, made on first use.
  static const EventCodeDictionary& Instance();

  // The code of `name` (exact comparison); 0 for an unknown name or null.
  uint32_t CodeOf(const char* name) const;
  // The first name inserted for `code`; null when no name has it.
  const char* NameOf(uint32_t code) const;

  size_t NameCount() const { return codeOfName_.size(); }
  size_t CodeCount() const { return nameOfCode_.size(); }

  EventCodeDictionary(const EventCodeDictionary&) = delete;
  EventCodeDictionary& operator=(const EventCodeDictionary&) = delete;

 private:
  EventCodeDictionary();

  std::unordered_map<std::string, uint32_t> codeOfName_;
  std::unordered_map<uint32_t, const char*> nameOfCode_;
};

}  // namespace kova

#endif  // KOVA_EVENTS_EVENT_CODE_DICTIONARY_H_
