#pragma once

#include <QColor>
#include <QPalette>

namespace folioscope {

// Red and blue as the markers mean them, or, on a dark ground, what can be read there.

inline bool IsDark(const QPalette& palette) { return palette.color(QPalette::Base).lightness() < 128; }

inline QColor RedOn(const QPalette& palette) { return IsDark(palette) ? QColor(255, 122, 122) : QColor(255, 0, 0); }

inline QColor BlueOn(const QPalette& palette) { return IsDark(palette) ? QColor(125, 180, 255) : QColor(0, 0, 255); }

}  // namespace folioscope
