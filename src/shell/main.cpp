// fsv: the desktop program.

#include <QApplication>

#include "base/version.h"
#include "shell/command_line.h"

#include <cstdio>

namespace {

constexpr char kHelp[] = "usage: fsv [FILE] [/search=TERM] [/reload=PATH] [/extract]\n"
                         "\n"
                         "  FILE           the AFP file to open\n"
                         "  /search=TERM   presets the search term\n"
                         "  /reload=PATH   selects this node, with ^ between its levels\n"
                         "  /extract       writes the text dump beside FILE and ends\n"
                         "  --help         tells this\n"
                         "  --version      tells the version\n";

}  // namespace

int main(int argc, char** argv)
{
    using namespace folioscope;
    const CommandLine line = ParseCommandLine(JoinArguments(argc, argv));
    if (line.help) return std::fputs(kHelp, stdout) < 0 ? 1 : 0;
    if (line.version) return std::printf("Folioscope %s\n", std::string(kVersion).c_str()) < 0 ? 1 : 0;
    QApplication application(argc, argv);
    return 0;
}
