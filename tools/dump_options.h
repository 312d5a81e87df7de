#pragma once

#include <string>
#include <vector>

#include "base/labels.h"
#include "base/settings.h"

namespace folioscope {

// What fsv-dump was told on its command line.
struct DumpOptions {
    std::vector<std::string> files;
    std::string output;  // -o
    bool save = false, tree = false, messages = false, help = false, version = false;
    Settings settings;
    std::string fault;  // wrong use, in the user's language; empty: none
};

DumpOptions ParseOptions(int argc, char** argv);

std::string HelpText(Labels labels);

}  // namespace folioscope
