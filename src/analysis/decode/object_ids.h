#pragma once

#include <cstdint>
#include <string_view>

namespace folioscope {

class clsAFPFunctions;

// How the name of a registered object starts, so that a walk knows what follows in the object.
inline constexpr std::string_view kColorManagementName = ", Color Management Resource (CMR)";
inline constexpr std::string_view kMetadataName = ", Metadata Object (MO)";

// Appends ", " and the name of the ASN.1 object identifier at a buffer index, as the registry of MO:DCA object types
// and media types has it. ", " alone for a class that isn't known.
void LookupOID(clsAFPFunctions& afp, std::int32_t position);

}  // namespace folioscope
