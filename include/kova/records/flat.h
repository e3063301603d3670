// Any answer as a flat list of paths and values.
//
// For answers no record is laid out for, and for the open-ended capability
// answers whose keys change from firmware to firmware ("devVideoInput.getCaps",
// "devVideoInput.getCapsEx", "eventManager.getCaps", "devVideoAnalyse.getCaps",
// "netApp.getCaps", "alarm.getAlarmCaps", "speak.getCaps",
// "devAudioAnalyse.getCaps", "accessControlManager.getCaps", "log.getCaps":
// their record is this document).
//
// Names: KOVA_ParseData("flat:" NAME, ...) with any NAME (the prefix compared
// without regard to case) reads the answer's payload into a FlatDocument;
// KOVA_PacketData("flat:" NAME, ...) writes a FlatDocument back as the
// payload, in the single-line form. A plain name without a record of its own
// never reads flat.
//
// Parse:
// - "result" must be true. The payload is "params"."table" when "params" has
//   a member "table" (null included), otherwise "params" itself, whatever it
//   is: a method answer's paths begin with its member ("caps", "status", ...).
// - The caller's buffer is the document: `values` runs on to the end of it,
//   (outLen - 8) / 408 values; at least one must fit or the parse fails. The
//   whole buffer is cleared first.
// - Every leaf of the payload (a scalar, an empty array, an empty object) is
//   one value, objects' members in the JSON library's order (ascending by the
//   bytes of the name), array elements in order.
// - `path`: member names joined by "." and array indices as "[i]", from the
//   payload's root: "[0].MainFormat[1].Video.Width",
//   "caps.PtzMotionRange.HorizontalAngle[0]", "" for a bare scalar payload.
//   A member name holding ".", "[", "]" or "\" has a "\" before each such
//   character. Names are the answer's UTF-8 bytes, not converted.
// - A value whose path, escapes included, does not fit in 127 bytes and a NUL
//   is not stored and takes no slot; nor is a member whose name is empty or
//   holds a NUL byte (its path could not be told apart).
// - `leafCount` counts every leaf, `count` those stored (fewer when the
//   buffer or a path ran out); an answer whose values are all skipped
//   succeeds with `count` 0. retLen is set to 8 + count * 408.
//
// Pack:
// - Reads at most `count` values, and no value past inLen; rebuilds the
//   objects and arrays from the paths, array elements missing before an
//   index written as null; the document's `leafCount` and each value's `cut`
//   are not read.
// - Refuses (0, the text buffer cleared) a path it cannot read: an index on
//   an object, a member name on an array, unbalanced brackets, an index that
//   is not a decimal number, an empty member name, a value below a scalar;
//   a `type` above 7; an index whose preceding nulls could not fit in the
//   output.
// - The text is copied only when it is strictly shorter than the output buffer.
#ifndef KOVA_RECORDS_FLAT_H_
#define KOVA_RECORDS_FLAT_H_

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#define KOVA_FLAT_PATH_SIZE 128
#define KOVA_FLAT_TEXT_SIZE 256

// What a FlatValue holds.
#define KOVA_FLAT_NULL 0          // null
#define KOVA_FLAT_BOOL 1          // true or false, 1 or 0 in `integer`
#define KOVA_FLAT_INT 2           // a signed 64-bit integer, in `integer`
#define KOVA_FLAT_UINT 3          // an unsigned integer above INT64_MAX, its bits in `integer`
#define KOVA_FLAT_REAL 4          // a real number, in `real`
#define KOVA_FLAT_TEXT 5          // a string, in `text`
#define KOVA_FLAT_EMPTY_ARRAY 6   // []
#define KOVA_FLAT_EMPTY_OBJECT 7  // {}

// One leaf of the payload.
typedef struct FlatValue {
  char path[KOVA_FLAT_PATH_SIZE];  // where the leaf sits (see above), NUL-terminated
  uint32_t type;                   // KOVA_FLAT_*
  uint32_t cut;                    // 1 when `text` was cut at its capacity
  int64_t integer;                 // BOOL, INT, UINT; 0 otherwise
  double real;                     // REAL; 0 otherwise
  // TEXT, in the local code page (converted from UTF-8), cut to 255 bytes
  // without splitting a character; empty otherwise.
  char text[KOVA_FLAT_TEXT_SIZE];
} FlatValue;

// The caller's buffer: this header, then as many values as fit.
typedef struct FlatDocument {
  uint32_t count;       // values stored in `values`
  uint32_t leafCount;   // leaves of the payload, stored or not
  FlatValue values[1];  // runs on to the end of the caller's buffer
} FlatDocument;

#ifdef __cplusplus
}
static_assert(sizeof(FlatValue) == 408, "FlatValue layout");
static_assert(offsetof(FlatValue, type) == 128, "FlatValue layout");
static_assert(offsetof(FlatValue, integer) == 136, "FlatValue layout");
static_assert(offsetof(FlatValue, real) == 144, "FlatValue layout");
static_assert(offsetof(FlatValue, text) == 152, "FlatValue layout");
static_assert(offsetof(FlatDocument, values) == 8, "FlatDocument layout");
static_assert(sizeof(FlatDocument) == 8 + 408, "FlatDocument layout");
#endif

#endif  // KOVA_RECORDS_FLAT_H_
