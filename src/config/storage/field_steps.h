// Per-record steps for the response frame whose record is exactly one field
// table: the step reads (or writes) the table's members and nothing else.
#ifndef KOVA_CONFIG_STORAGE_FIELD_STEPS_H_
#define KOVA_CONFIG_STORAGE_FIELD_STEPS_H_

#include <json/value.h>

#include "common/fields/field_table.h"
#include "drivers/response_frame.h"

namespace kova {

template <const auto& kFields>
bool ParseFieldsStep(const Json::Value& element, const StepContext&, unsigned char* record) {
  ParseFields(element, record, kFields);
  return true;
}

template <const auto& kFields>
bool PackFieldsStep(const unsigned char* record, Json::Value& out) {
  out = Json::Value(Json::objectValue);
  PackFields(record, out, kFields);
  return true;
}

}  // namespace kova

#endif  // KOVA_CONFIG_STORAGE_FIELD_STEPS_H_
