// kova show and kova layout: what a record holds, field by field, read from
// the descriptions the library translates with.
#ifndef KOVA_TOOLS_SHOW_H_
#define KOVA_TOOLS_SHOW_H_

#include <cstdint>
#include <string>
#include <vector>

struct ShowOptions {
  bool json = false;  // one JSON document instead of text
  bool all = false;   // also fields at zero, absent members and list entries beyond the count
};

// Prints the records parse of `name` filled in `record` (`filled` bytes) and,
// for the rule list, the entries of `rules`. Returns the exit code.
int ShowRecords(const std::string& name, const std::vector<unsigned char>& record, uint32_t filled,
                const std::vector<unsigned char>& rules, const ShowOptions& o);

// Prints the layout of the record of `name`. Returns the exit code.
int ShowLayout(const std::string& name, const ShowOptions& o);

// Prints one record delivered with an event (`code` as the callback gives it).
void ShowEventRecord(uint32_t code, const void* info, uint32_t size, const ShowOptions& o);

#endif  // KOVA_TOOLS_SHOW_H_
