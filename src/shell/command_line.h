#pragma once

#include <string>
#include <string_view>

namespace folioscope {

// What the program was started with.
struct CommandLine {
    std::string strSearch;      // /search=: a term, in capitals
    std::string strReloadNode;  // /reload=: the path of the node to select
    bool bolFromFSV = false;    // /fromFSV: another window of the program has started this one
    bool bolExtract = false;    // /extract: write the text dump and end
    std::string strStartFile;   // the last file named
    bool help = false, version = false;
};

// Blanks separate; a token in double quotes runs to the next one. Switches are known in any letter case; what begins
// with a slash and is none of them is a file.
CommandLine ParseCommandLine(std::string_view line);

// One line of a program's arguments: those with a blank that don't begin with a switch are put in quotes.
std::string JoinArguments(int argc, const char* const* argv);

}  // namespace folioscope
