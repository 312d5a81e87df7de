#pragma once

#include <QTranslator>

#include <optional>

#include "base/labels.h"

namespace folioscope {

// The words inside of the user interface library's own dialogs, such as the one for files, in the program's language.
// Where the library's translations aren't installed, they stay English.
class InterfaceWords {
public:
    void Take(Language language);

private:
    QTranslator translator_;
    std::optional<Language> inForce_;
};

}  // namespace folioscope
