#include "viewers/page_area.h"

#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QWheelEvent>

#include <cmath>

#include "viewers/page_geometry.h"

namespace folioscope {

namespace {

constexpr int kNotch = 120;     // of a wheel, in eighths of a degree
constexpr int kShadow = 3;      // pixels
constexpr int kArrowStep = 40;  // pixels that an arrow key scrolls
constexpr int kFocusLine = 2;   // pixels

double OnDots(double position, double dots) { return std::round(position * dots) / dots; }

}  // namespace

PageArea::PageArea(QWidget* parent) : QAbstractScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    for (QScrollBar* const bar : {horizontalScrollBar(), verticalScrollBar()}) bar->setSingleStep(kArrowStep);
    const auto repaint = [this] { viewport()->update(); };
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, repaint);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, repaint);
}

int PageArea::BarExtent() const
{
    return style()->styleHint(QStyle::SH_ScrollBar_Transient, nullptr, verticalScrollBar()) != 0
               ? 0
               : verticalScrollBar()->sizeHint().width();
}

QRectF PageArea::PageRect() const
{
    const double dots = viewport()->devicePixelRatioF();
    const auto start = [&](double page, int room, const QScrollBar* bar) {
        return OnDots(bar->maximum() > 0 ? kPageMargin - bar->value() : (room - page) / 2, dots);
    };
    return {QPointF(start(size_.width(), viewport()->width(), horizontalScrollBar()),
                    start(size_.height(), viewport()->height(), verticalScrollBar())),
            size_};
}

// The bars come and go with the ranges, and with them the viewport's size: the event of that comes back here.
void PageArea::SetBars()
{
    const QSize room = Room(), seen = viewport()->size();
    const int bar = BarExtent();
    const auto whole = [](double side) { return static_cast<int>(std::ceil(side - 0.001)) + 2 * kPageMargin; };
    const int width = whole(size_.width()), height = whole(size_.height());
    bool wide = width > room.width();
    const bool tall = height > room.height() - (wide ? bar : 0);
    wide = width > room.width() - (tall ? bar : 0);
    horizontalScrollBar()->setRange(0, wide ? std::max(width - seen.width(), 1) : 0);
    verticalScrollBar()->setRange(0, tall ? std::max(height - seen.height(), 1) : 0);
    horizontalScrollBar()->setPageStep(seen.width());
    verticalScrollBar()->setPageStep(seen.height());
}

void PageArea::ShowPage(QSizeF size, QPointF fixed)
{
    const QRectF before = PageRect();
    const bool sameSize = notice_.isEmpty() && size == size_;
    if (fixed.isNull()) {
        fixed = QRectF(viewport()->rect()).center();
        // A page that was seen whole is read from its top when it grows.
        if (verticalScrollBar()->maximum() == 0) fixed.setY(before.top());
    }
    notice_.clear();
    size_ = size;
    SetBars();
    if (!sameSize && !before.isEmpty()) {
        const QPointF share = fixed - before.topLeft();
        horizontalScrollBar()->setValue(qRound(share.x() / before.width() * size.width() + kPageMargin - fixed.x()));
        verticalScrollBar()->setValue(qRound(share.y() / before.height() * size.height() + kPageMargin - fixed.y()));
    }
    viewport()->update();
}

void PageArea::ShowNotice(const QString& notice)
{
    notice_ = notice;
    size_ = {};
    SetBars();
    viewport()->update();
}

void PageArea::SetEdges(bool shown)
{
    edges_ = shown;
    viewport()->update();
}

void PageArea::ScrollTo(Qt::Edge edge)
{
    verticalScrollBar()->setValue(edge == Qt::TopEdge ? 0 : verticalScrollBar()->maximum());
}

void PageArea::paintEvent(QPaintEvent* event)
{
    QPainter painter(viewport());
    if (!notice_.isEmpty())
        PaintNotice(painter);
    else
        PaintGround(painter, event->rect());
    if (hasFocus()) {
        painter.setPen(QPen(palette().highlight(), kFocusLine));
        painter.drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
    }
    if (notice_.isEmpty() && paintPage) {
        const QRectF page = PageRect();
        const int line = hasFocus() ? kFocusLine : 0;
        painter.setClipRect(page & QRectF(viewport()->rect().adjusted(line, line, -line, -line) & event->rect()));
        painter.fillRect(page, Qt::white);
        painter.setPen(Qt::black);
        painter.translate(page.topLeft());
        paintPage(painter);
    }
}

void PageArea::PaintGround(QPainter& painter, const QRect& dirty)
{
    painter.fillRect(dirty, palette().dark());
    if (!edges_) return;
    const QRectF page = PageRect();
    for (int step = kShadow; step > 0; --step) painter.fillRect(page.translated(step, step), QColor(0, 0, 0, 40));
    const double line = 1 / viewport()->devicePixelRatioF();
    painter.fillRect(page.adjusted(-line, -line, line, line), palette().shadow());
}

void PageArea::PaintNotice(QPainter& painter)
{
    painter.fillRect(viewport()->rect(), palette().window());
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(viewport()->rect().adjusted(kPageMargin, kPageMargin, -kPageMargin, -kPageMargin),
                     Qt::AlignCenter | Qt::TextWordWrap, notice_);
}

void PageArea::resizeEvent(QResizeEvent*)
{
    SetBars();
    Q_EMIT Resized();
}

int PageArea::Notches(int delta)
{
    if ((delta > 0) != (turned_ > 0)) turned_ = 0;
    turned_ += delta;
    const int notches = turned_ / kNotch;
    turned_ -= notches * kNotch;
    return notches;
}

// At the page's edge the wheel turns over to the next page.
void PageArea::wheelEvent(QWheelEvent* event)
{
    const int delta = event->angleDelta().y();
    const QScrollBar* const bar = verticalScrollBar();
    if ((event->modifiers() & Qt::ControlModifier) != 0) {
        if (const int steps = Notches(delta); steps != 0) Q_EMIT ZoomWanted(steps, event->position());
    } else if (delta > 0 && bar->value() == bar->minimum()) {
        if (Notches(delta) != 0) Q_EMIT TurnWanted(-1, Qt::BottomEdge);
    } else if (delta < 0 && bar->value() == bar->maximum()) {
        if (Notches(delta) != 0) Q_EMIT TurnWanted(1, Qt::TopEdge);
    } else {
        turned_ = 0;
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    event->accept();
}

void PageArea::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_PageUp: Q_EMIT TurnWanted(-1, Qt::TopEdge); break;
    case Qt::Key_PageDown: Q_EMIT TurnWanted(1, Qt::TopEdge); break;
    case Qt::Key_Home: Q_EMIT EndWanted(Qt::TopEdge); break;
    case Qt::Key_End: Q_EMIT EndWanted(Qt::BottomEdge); break;
    default: QAbstractScrollArea::keyPressEvent(event); return;
    }
    event->accept();
}

void PageArea::focusInEvent(QFocusEvent* event)
{
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}

void PageArea::focusOutEvent(QFocusEvent* event)
{
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}

void PageArea::changeEvent(QEvent* event)
{
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::StyleChange) Q_EMIT Resized();
}

}  // namespace folioscope
