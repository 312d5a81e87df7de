#pragma once

#include <QString>

#include <string_view>

#include "base/labels.h"

namespace folioscope {

inline QString ToQt(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

inline QString ToQt(const Labels& texts, Label label) { return ToQt(texts[label]); }

}  // namespace folioscope
