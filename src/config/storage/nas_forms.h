// Pieces the two forms of "NAS" share: the server protocol names, and the
// older single-server form read from (and written to) the root's "NAS" object.
#ifndef KOVA_CONFIG_STORAGE_NAS_FORMS_H_
#define KOVA_CONFIG_STORAGE_NAS_FORMS_H_

#include <json/value.h>

#include "common/fields/field_table.h"

namespace kova {

inline constexpr const char* kNasProtocolNames[] = {"FTP", "SMB", "ISCSI", "NFS"};
inline constexpr EnumNames kNasProtocols = EnumNames::Of(kNasProtocolNames).Exact();

// Fills the LegacyNasConfig at `legacy` (cleared by the caller) from the
// "NAS" object; a value that is not an object reads nothing.
void ParseLegacyNas(const Json::Value& nas, unsigned char* legacy);
// Writes every key of the LegacyNasConfig at `legacy` into `nas`.
void PackLegacyNas(const unsigned char* legacy, Json::Value& nas);

}  // namespace kova

#endif  // KOVA_CONFIG_STORAGE_NAS_FORMS_H_
