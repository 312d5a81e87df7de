#pragma once

#include <QString>

#include "base/labels.h"

class QWidget;

namespace folioscope {

// Asks the user, who can say yes or no. True: yes.
bool AskUser(QWidget* parent, const Labels& texts, const QString& question);

}  // namespace folioscope
