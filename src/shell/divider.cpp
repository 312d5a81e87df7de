#include "shell/divider.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

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
    constexpr int kDots = 3, kDot = 2, kGap = 4;
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(hasFocus() ? QPalette::Highlight : QPalette::Window));
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(hasFocus() ? QPalette::HighlightedText : QPalette::Mid));
    const QPoint step = direction_ == Qt::Horizontal ? QPoint(0, kDot + kGap) : QPoint(kDot + kGap, 0);
    QPoint at = rect().center() - step;
    for (int i = 0; i < kDots; ++i, at += step) painter.drawEllipse(at, kDot / 2, kDot / 2);
}

}  // namespace folioscope
