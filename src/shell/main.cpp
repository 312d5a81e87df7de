// fsv: the desktop program.

#include <QApplication>
#include <QFileInfo>
#include <QLocale>

#include <cstdio>

#include "base/mdlOther.h"
#include "base/settings_store.h"
#include "base/version.h"
#include "shell/command_line.h"
#include "shell/frmMainWindow.h"
#include "shell/icons.h"
#include "shell/program_style.h"
#include "viewers/resource_lists.h"

namespace {

using namespace folioscope;

constexpr char kHelp[] = "usage: fsv [FILE] [/search=TERM] [/reload=PATH] [/extract]\n"
                         "\n"
                         "  FILE           the AFP file to open\n"
                         "  /search=TERM   presets the search term\n"
                         "  /reload=PATH   selects this node, with ^ between its levels\n"
                         "  /extract       writes the text dump beside FILE and ends\n"
                         "  --help         tells this\n"
                         "  --version      tells the version\n";

NumberStyle NumbersOfTheLocale()
{
    const QLocale locale = QLocale::system();
    NumberStyle style;
    if (locale.language() == QLocale::C) return style;
    style.thousands = locale.groupSeparator().toStdString();
    style.decimal = locale.decimalPoint().toStdString();
    return style;
}

void TakeCommandLine(ShellState& state, const CommandLine& line)
{
    state.find.strSearch = line.strSearch;
    state.strReloadNode = line.strReloadNode;
    state.bolFromFSV = line.bolFromFSV;
    state.bolExtract = line.bolExtract;
}

}  // namespace

int main(int argc, char** argv)
{
    const CommandLine line = ParseCommandLine(JoinArguments(argc, argv));
    if (line.help) return std::fputs(kHelp, stdout) < 0 ? 1 : 0;
    if (line.version) return std::printf("Folioscope %s\n", std::string(kVersion).c_str()) < 0 ? 1 : 0;
    QApplication application(argc, argv);
    QApplication::setApplicationName("Folioscope");
    QApplication::setDesktopFileName("example.marrowgate.folioscope");
    QApplication::setStyle(new ProgramStyle);
    InitResources();
    QApplication::setWindowIcon(ProgramIcon());

    // The current folder doesn't stay what it is: making the folders of the lists changes it.
    const QString file =
        line.strStartFile.empty() ? QString() : QFileInfo(QString::fromStdString(line.strStartFile)).absoluteFilePath();
    ShellState state;
    state.numbers = NumbersOfTheLocale();
    state.settings = ReadSettings(state.store);
    ReadWindowState(state);
    TakeCommandLine(state, line);
    CreateResourceLists(state.store.GetAllUsersAppDir());

    frmMainWindow window(state);
    window.PlaceWindow();
    window.show();
    window.AskAtFirstStart();
    if (!file.isEmpty()) window.ProcessFile(file);
    if (state.bolExtract) {
        window.close();
        return state.extractFailed ? 1 : 0;
    }
    return QApplication::exec();
}
