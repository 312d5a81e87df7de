#pragma once

#include <QStringList>

#include <cstdint>

#include "codepages/clsCPConversions.h"
#include "viewers/qt_text.h"

namespace folioscope {

// How lists show a code page: "037, EBCDIC, USA/Canada". Empty if there is no such page.
inline QString TextOfCodepage(std::int32_t number)
{
    std::string_view symbol, type, longName;
    clsCPConversions::GetSpecificCPInfo(number, symbol, type, longName);
    if (symbol.empty()) return {};
    return QStringList{ToQt(symbol), ToQt(type), ToQt(longName)}.join(QLatin1String(", "));
}

}  // namespace folioscope
