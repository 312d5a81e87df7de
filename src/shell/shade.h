#pragma once

#include <QColor>
#include <QPalette>

namespace folioscope {

// A colour between that of a window's ground and that of its text.
inline QColor ShadeOf(const QPalette& palette, int percentOfText)
{
    const QColor ground = palette.color(QPalette::Window), text = palette.color(QPalette::WindowText);
    const auto mix = [percentOfText](int a, int b) { return (a * (100 - percentOfText) + b * percentOfText) / 100; };
    return QColor(mix(ground.red(), text.red()), mix(ground.green(), text.green()), mix(ground.blue(), text.blue()));
}

inline bool IsGroundDark(const QPalette& palette) { return palette.color(QPalette::Window).lightness() < 128; }

}  // namespace folioscope
