// Records of the PTZ configuration family: "Ptz".
#ifndef KOVA_RECORDS_PTZ_H_
#define KOVA_RECORDS_PTZ_H_

#ifndef __cplusplus
#include <stdbool.h>
#endif
#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

// The serial line of a PTZ head, as four table indices. The device sends
// "Attribute" as [baud rate, data bits, parity, stop bits]; the record keeps
// the indices in its own order below. An "Attribute" that is not an array of
// at least four elements leaves all four 0, and an element not found in its
// table leaves its index 0. Pack writes the four values back in the
// device's order; an index beyond its table packs as the table's first entry.
typedef struct PtzSerialAttribute {
  uint8_t dataBitsIndex;  // element 1 among 5, 6, 7, 8
  uint8_t stopBitsIndex;  // element 3 among "1", "1.5", "2" (exact text)
  uint8_t parityIndex;    // element 2 among "None", "Odd", "Even", "Mark", "Space" (exact text)
  uint8_t baudRateIndex;  // element 0 among 300, 600, 1200, 2400, 4800, 9600, 19200, 38400,
                          // 57600, 115200
} PtzSerialAttribute;

// "Ptz": the pan-tilt-zoom head of one channel.
//
// Parse needs a capacity of one record, clears the whole buffer, fails on a
// "result" that is present and false (false, 0, 0.0, "", [], {}; an absent
// or null "result" passes) and on a missing or null table, and reports one
// record. Each key is read only when present and not null; an absent key
// leaves 0. Pack writes every key below, "NumberInMatrixs" and "PTZType"
// only when their has-flags are set.
typedef struct PtzConfig {
  bool hasNumberInMatrix;     // set when "NumberInMatrixs" was given; pack writes it only then
  bool reservedFlag1;         // always 0
  bool hasPtzType;            // set when "PTZType" was given; pack writes it only then
  bool reservedFlag2;         // always 0
  int32_t reservedValue;      // always 0
  int32_t enable;             // "Enable" (boolean), 0 or 1
  char protocolName[128];     // "ProtocolName": control protocol, at most 127 bytes kept
  int32_t address;            // "Address": the head's address on its control line
  PtzSerialAttribute serial;  // "Attribute"
  int32_t numberInMatrix;     // "NumberInMatrixs": position in the matrix
  int32_t ptzType;            // "PTZType": 1 when the device's number is above 0, else 0
  int32_t reserved2;          // always 0
  int32_t port;               // "Port": serial port the head is wired to
  int32_t homing[2];          // "Homing": elements 0 and 1 (a missing element reads 0);
                              // without "Homing" (or with null) homing[0] is -1, homing[1] 0.
                              // Pack writes both.
  int32_t controlMode;        // 1 coaxial, 0 RS485. Parse always leaves 0, whatever
                              // "ControlMode" says (deliberately); pack writes
                              // "ControlMode": "Coaxial" only for 1 and otherwise leaves
                              // the key out, so that a read-modify-write keeps the
                              // device's own control line
} PtzConfig;

#ifdef __cplusplus
}
static_assert(sizeof(PtzSerialAttribute) == 4, "PtzSerialAttribute layout");
static_assert(offsetof(PtzSerialAttribute, stopBitsIndex) == 1, "PtzSerialAttribute layout");
static_assert(offsetof(PtzSerialAttribute, parityIndex) == 2, "PtzSerialAttribute layout");
static_assert(offsetof(PtzSerialAttribute, baudRateIndex) == 3, "PtzSerialAttribute layout");
static_assert(offsetof(PtzConfig, reservedFlag1) == 1, "PtzConfig layout");
static_assert(offsetof(PtzConfig, hasPtzType) == 2, "PtzConfig layout");
static_assert(offsetof(PtzConfig, reservedFlag2) == 3, "PtzConfig layout");
static_assert(offsetof(PtzConfig, reservedValue) == 4, "PtzConfig layout");
static_assert(offsetof(PtzConfig, enable) == 8, "PtzConfig layout");
static_assert(offsetof(PtzConfig, protocolName) == 12, "PtzConfig layout");
static_assert(offsetof(PtzConfig, address) == 140, "PtzConfig layout");
static_assert(offsetof(PtzConfig, serial) == 144, "PtzConfig layout");
static_assert(offsetof(PtzConfig, numberInMatrix) == 148, "PtzConfig layout");
static_assert(offsetof(PtzConfig, ptzType) == 152, "PtzConfig layout");
static_assert(offsetof(PtzConfig, reserved2) == 156, "PtzConfig layout");
static_assert(offsetof(PtzConfig, port) == 160, "PtzConfig layout");
static_assert(offsetof(PtzConfig, homing) == 164, "PtzConfig layout");
static_assert(offsetof(PtzConfig, controlMode) == 172, "PtzConfig layout");
static_assert(sizeof(PtzConfig) == 176, "PtzConfig layout");
#endif

#endif  // KOVA_RECORDS_PTZ_H_
