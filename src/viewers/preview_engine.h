#pragma once

#include <QSizeF>
#include <QString>

#include <memory>

class QPainter;

namespace folioscope {

// What the program asks of an engine that paints pages. An engine reads the file by itself, apart from the analysis.
// All calls come on the interface's thread, and none may keep it for long.

// What the engine has to say.
class IVEDisplayMachineCallback {
public:
    virtual ~IVEDisplayMachineCallback() = default;
    // severity: 2 warning, 3 error, 4 fatal.
    virtual void IVEDisplayMachineCallback_LogMessage(const QString& origin, int number, int severity,
                                                      const QString& message) = 0;
};

}  // namespace folioscope
