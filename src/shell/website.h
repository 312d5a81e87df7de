#pragma once

#include <QString>

#include "base/clsSillyFunctions.h"

namespace folioscope {

// Opens an address with the browser that the store names, else with the system's. False if neither takes it.
bool OpenWebsite(const clsSillyFunctions& store, const QString& address);

}  // namespace folioscope
