#include "viewers/colour_button.h"

#include <QEvent>
#include <QPainter>

namespace folioscope {

void ColourButton::SetColour(std::int32_t bgr)
{
    colour_ = bgr & 0xFFFFFF;
    ShowColour();
}

void ColourButton::ShowColour()
{
    constexpr double kEdge = 2.5;  // around the square
    const QColor colour = ColourOf(colour_);
    const qreal ratio = devicePixelRatioF();
    QPixmap swatch(iconSize() * ratio);
    swatch.setDevicePixelRatio(ratio);
    swatch.fill(Qt::transparent);
    QPainter painter(&swatch);
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.setBrush(colour);
    painter.drawRect(QRectF(QPointF(), iconSize()).adjusted(kEdge, kEdge, -kEdge, -kEdge));
    painter.end();
    setIcon(swatch);
    setAccessibleDescription(colour.name().toUpper());
    setToolTip(colour.name().toUpper());
}

void ColourButton::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange) ShowColour();
    QPushButton::changeEvent(event);
}

}  // namespace folioscope
