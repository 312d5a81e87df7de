// help_of_program: prints where a program in this one's place finds its help.

#include <QCoreApplication>

#include <cstdio>

#include "shell/help_window.h"

int main(int argc, char** argv)
{
    using folioscope::Language;

    QCoreApplication application(argc, argv);
    for (const Language language : {Language::English, Language::German, Language::French})
        std::puts(qPrintable(folioscope::HelpFile(language)));
    return 0;
}
