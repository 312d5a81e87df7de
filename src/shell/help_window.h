#pragma once

#include <QString>

#include "base/labels.h"

class QWidget;

namespace folioscope {

// The file of the help in a language: in the folder `help` beside the program, or where the program's own installation
// has it. Empty if there is none.
QString HelpFile(Language language);

// The same for a program that stands in this folder.
QString HelpFile(Language language, const QString& programFolder);

// Shows it in a window of its own; does nothing without a file.
void ShowHelp(Language language, QWidget* parent);

}  // namespace folioscope
