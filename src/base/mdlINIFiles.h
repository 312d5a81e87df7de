#pragma once

#include <string>
#include <string_view>
#include <vector>

// INI files: [section] and key=value, a line each; a line that begins with ; is a remark. Names match in any
// letter case. Blanks around names and values don't count, nor do quotes around a value. Of sections or keys
// of one name the first one holds.
namespace folioscope::mdlINIFiles {

// The keys of a section in their order: what of them fits in 4,096 characters, an ending NUL each and one
// for all. A key without a name ends the list.
std::vector<std::string> GetKeyList(std::string_view strFilename, std::string_view strSection);

// What of the value fits in 2,048 characters with its ending NUL; the default if the key isn't there.
std::string GetPrivateProfile(std::string_view strINIFile, std::string_view strSection, std::string_view strKey,
                              std::string_view strDefault);

// Sets the value and leaves all other lines as they are; makes the file, but not its folder. False if it
// can't be written, or if the names or the value couldn't be read back as one line each.
bool WritePrivateProfile(std::string_view strINIFile, std::string_view strSection, std::string_view strKey,
                         std::string_view strValue);

}  // namespace folioscope::mdlINIFiles
