#include "shell/divider.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

#include "shell/shade.h"

namespace folioscope {

Divider::Divider(Qt::Orientation direction, QWidget* parent) : QFrame(parent), direction_(direction)
{
    setCursor(direction == Qt::Horizontal ? Qt::SplitHCursor : Qt::SplitVCursor);
    setFocusPolicy(Qt::TabFocus);
}

void Divider::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) grabbed_ = Along(event->position().toPoint());
}

void Divider::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() & Qt::LeftButton) Q_EMIT Dragged(Along(pos() + event->position().toPoint()) - grabbed_);
}

void Divider::keyPressEvent(QKeyEvent* event)
{
    constexpr int kStep = 10;
    const bool across = direction_ == Qt::Horizontal;
    if (event->key() == (across ? Qt::Key_Left : Qt::Key_Up)) return Q_EMIT Dragged(Along(pos()) - kStep);
    if (event->key() == (across ? Qt::Key_Right : Qt::Key_Down)) return Q_EMIT Dragged(Along(pos()) + kStep);
    QFrame::keyPressEvent(event);
}

// Three dots in the middle, so that it shows where to take hold.
void Divider::paintEvent(QPaintEvent*)
{
    constexpr int kDots = 3, kDot = 3, kGap = 3, kShade = 50;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), palette().color(hasFocus() ? QPalette::Highlight : QPalette::Window));
    painter.setPen(Qt::NoPen);
    painter.setBrush(hasFocus() ? palette().color(QPalette::HighlightedText) : ShadeOf(palette(), kShade));
    const QPointF step = direction_ == Qt::Horizontal ? QPointF(0, kDot + kGap) : QPointF(kDot + kGap, 0);
    QPointF at = QRectF(rect()).center() - step;
    for (int i = 0; i < kDots; ++i, at += step) painter.drawEllipse(at, kDot / 2.0, kDot / 2.0);
}

}  // namespace folioscope
