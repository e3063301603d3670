// A member kept as the device's own JSON text: for members whose inner
// layout the record does not lay out, so that whatever the device sends
// travels back unchanged.
//
//   KOVA_JSON_TEXT(Module, objectFilter, "ObjectFilter")
//       .Flag(KOVA_AT(Module, objectFilterPresent))
//
// Parse: a member that is present and not null is written as single-line
// JSON (UTF-8, no code-page conversion, no trailing newline) into the
// character array, and its flag set; a text that would not fit with its
// terminator is not kept (field empty, flag clear), since a cut text would
// no longer be JSON. Pack: a flagged text that reads as JSON is written
// back as the member's value; one that does not is left out.
#ifndef KOVA_COMMON_JSON_TEXT_H_
#define KOVA_COMMON_JSON_TEXT_H_

#include <json/value.h>

#include "common/fields/field_table.h"

namespace kova {

void ParseJsonText(const Json::Value& obj, unsigned char* record, const Field& f);
void PackJsonText(const unsigned char* record, Json::Value& obj, const Field& f);

}  // namespace kova

#define KOVA_JSON_TEXT(Rec, member, key)                                        \
  ::kova::MakeCustom(key, offsetof(Rec, member), KOVA_MEMBER_SIZE(Rec, member), \
                     ::kova::ParseJsonText, ::kova::PackJsonText)               \
      .Member(#member)

#endif  // KOVA_COMMON_JSON_TEXT_H_
