#pragma once

#include <QString>

namespace folioscope {

// The address behind collected link text. The prefix is left out only in front of the bare word "http": what begins
// with "http://" gets it a second time.
QString LinkAddress(const QString& link);

// Hands the address to the system's browser. False if there is none.
bool OpenInBrowser(const QString& text);

}  // namespace folioscope
