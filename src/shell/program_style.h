#pragma once

#include <QProxyStyle>

namespace folioscope {

// The desktop's style, with the buttons of all dialogs alike: words without pictures. What it draws too dark for a dark
// ground, and without a picture of the desktop's own, is drawn here.
class ProgramStyle final : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap picture, const QStyleOption* option, const QWidget* widget) const override;

private:
    bool IsTooDark(const QPalette& palette) const;
};

}  // namespace folioscope
