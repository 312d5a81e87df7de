#pragma once

#include <cstdint>
#include <string_view>

namespace folioscope {

class clsAFPFunctions;

// The kinds of resources that AddResource tells apart.
enum class ResourceKind : int {
    CodePage = 1,
    CharacterSet = 2,
    Font = 3,
    Object = 4,
    PageSegment = 5,
    Overlay = 6,
    Map = 7,        // a data map inside of the file
    MediumMap = 8,  // a medium map inside of it
    DataMapCall = 9,
    MediumMapCall = 10,  // and a page group
};

// Adds AddResource with "type/scope/key/name" for whoever wants to list the resources of a file.
void AddInternalResource(clsAFPFunctions& afp, int kind, std::string_view key, std::string_view name);
// One that lies outside of the file: added only outside of a resource group, and if it has a name.
void AddExternalResource(clsAFPFunctions& afp, ResourceKind kind, std::string_view name);
void AddExternalResource(clsAFPFunctions& afp, ResourceKind kind, std::string_view key, std::string_view name);

// Adds ShowResName with the name for the tree.
void ShowName(clsAFPFunctions& afp, std::string_view name);

// A resource's name from its third character on: the first two tell its kind.
std::string_view WithoutKind(std::string_view name);

// Adds Name, 8 bytes at FieldPosition, and keeps it trimmed as the resource name.
void ReadName(clsAFPFunctions& afp, std::int32_t lngCodepage = 500);

}  // namespace folioscope
