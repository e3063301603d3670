// "Ptz": the pan-tilt-zoom head of a channel: protocol, address, serial
// line, matrix position, homing positions and control line.
#include "kova/records/ptz.h"

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "common/fields/field_table.h"
#include "common/json/json.h"
#include "drivers/described_record.h"
#include "drivers/response_frame.h"

namespace kova {

namespace {

// The serial line tables, in the device's "Attribute" order: baud rate,
// data bits, parity, stop bits.
constexpr int32_t kBaudRates[] = {300, 600, 1200, 2400, 4800, 9600, 19200, 38400, 57600, 115200};
constexpr int32_t kDataBits[] = {5, 6, 7, 8};
constexpr const char* kParityNames[] = {"None", "Odd", "Even", "Mark", "Space"};
constexpr EnumNames kParity = EnumNames::Of(kParityNames).Exact();
constexpr const char* kStopBitsNames[] = {"1", "1.5", "2"};
constexpr EnumNames kStopBits = EnumNames::Of(kStopBitsNames).Exact();

// Only "Coaxial" is ever written: 0 (RS485) leaves the key out, so that a
// record read from the device (which always holds 0) keeps the device's line.
constexpr const char* kControlModeNames[] = {nullptr, "Coaxial"};
constexpr EnumNames kControlModes = EnumNames::Of(kControlModeNames).Exact().OmitUnnamed();

template <size_t N>
uint8_t NumberIndex(const int32_t (&table)[N], const Json::Value& v) {
  const int32_t n = ToInt32(v);
  for (size_t i = 0; i < N; ++i) {
    if (table[i] == n) return static_cast<uint8_t>(i);
  }
  return 0;
}

uint8_t NameIndex(const EnumNames& names, const Json::Value& v) {
  int32_t i = 0;
  return EnumValue(names, v, &i) ? static_cast<uint8_t>(i) : 0;
}

// An index beyond its table writes the table's first entry, as an unknown
// value reads as index 0.
template <size_t N, typename T>
const T& Entry(const T (&table)[N], uint8_t i) {
  return table[i < N ? i : 0];
}

// "Attribute" comes as [baud, data bits, parity, stop bits] and is kept in
// the record's own order; fewer than four elements leave all four indices 0.
void ParseAttribute(const Json::Value& table, unsigned char* record, const Field& f) {
  const Json::Value& a = Member(table, f.key);
  PtzSerialAttribute s = {0, 0, 0, 0};
  if (a.isArray() && Count(a) >= 4) {
    s.baudRateIndex = NumberIndex(kBaudRates, Element(a, 0));
    s.dataBitsIndex = NumberIndex(kDataBits, Element(a, 1));
    s.parityIndex = NameIndex(kParity, Element(a, 2));
    s.stopBitsIndex = NameIndex(kStopBits, Element(a, 3));
  }
  std::memcpy(record + f.offset, &s, sizeof s);
}

void PackAttribute(const unsigned char* record, Json::Value& table, const Field& f) {
  PtzSerialAttribute s;
  std::memcpy(&s, record + f.offset, sizeof s);
  Json::Value& a = SetKeptMember(table, f.key);
  a = Json::Value(Json::arrayValue);
  Append(a, Entry(kBaudRates, s.baudRateIndex));
  Append(a, Entry(kDataBits, s.dataBitsIndex));
  Append(a, Entry(kParityNames, s.parityIndex));
  Append(a, Entry(kStopBitsNames, s.stopBitsIndex));
}

// Without "Homing" (or with a null one) the first position is -1; a present
// "Homing" gives its elements 0 and 1 whatever their number.
void ParseHoming(const Json::Value& table, unsigned char* record, const Field& f) {
  const Json::Value& v = Member(table, f.key);
  int32_t homing[2] = {-1, 0};
  if (!v.isNull()) {
    homing[0] = ToInt32(Element(v, 0));
    homing[1] = ToInt32(Element(v, 1));
  }
  std::memcpy(record + f.offset, homing, sizeof homing);
}

void PackHoming(const unsigned char* record, Json::Value& table, const Field& f) {
  int32_t homing[2];
  std::memcpy(homing, record + f.offset, sizeof homing);
  Json::Value& v = SetKeptMember(table, f.key);
  v = Json::Value(Json::arrayValue);
  Append(v, homing[0]);
  Append(v, homing[1]);
}

constexpr Field kPtzFields[] = {
    KOVA_F(PtzConfig, enable, "Enable", kBool),
    KOVA_F(PtzConfig, port, "Port", kInt),
    KOVA_F(PtzConfig, protocolName, "ProtocolName", kText),
    KOVA_F(PtzConfig, address, "Address", kInt),
    KOVA_F(PtzConfig, numberInMatrix, "NumberInMatrixs", kInt)
        .Flag(KOVA_AT(PtzConfig, hasNumberInMatrix)),
    KOVA_F(PtzConfig, ptzType, "PTZType", kInt).Flag(KOVA_AT(PtzConfig, hasPtzType)),
    KOVA_CUSTOM(PtzConfig, serial, "Attribute", ParseAttribute, PackAttribute),
    KOVA_CUSTOM(PtzConfig, homing, "Homing", ParseHoming, PackHoming),
    // Parse leaves `controlMode` 0 whatever the device sends: intended.
    KOVA_ENUM(PtzConfig, controlMode, "ControlMode", kControlModes).PackOnly(),
};

}  // namespace

KOVA_DESCRIBE(PtzConfig, kPtzFields)
namespace {

constexpr const Field& kWhole = DescribedObject<PtzConfig>::kWhole;

bool ParsePtzTable(const Json::Value& table, const StepContext& ctx, unsigned char* record) {
  ParseDescribed<kWhole>(table, ctx, record);
  // The head type is only told apart as positive or not: intended.
  PtzConfig* r = reinterpret_cast<PtzConfig*>(record);
  r->ptzType = r->ptzType > 0 ? 1 : 0;
  return true;
}

}  // namespace

extern const ResponseFrame kPtzFrame =
    ResponseFrame::For<PtzConfig>(ParsePtzTable, DescribedPack<kWhole>())
        .Describe(kWhole)
        .Result(ResultRule::kFalseFails)
        .OnNullTable(NullTable::kFail)
        .Returned(ReturnedLength::kSetRecord);

}  // namespace kova
