#pragma once

#include <QString>

#include "base/labels.h"

class QWidget;

namespace folioscope {

// The file of the help in a language: beside the program, or where the program was installed or built from. Empty if
// there is none.
QString HelpFile(Language language);

// Shows it in a window of its own; does nothing without a file.
void ShowHelp(Language language, QWidget* parent);

}  // namespace folioscope
