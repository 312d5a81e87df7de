#pragma once

#include <QAbstractScrollArea>

#include <functional>

namespace folioscope {

// A page on a dark ground, which can be scrolled where it is larger than the area; or a line of text in its place.
class PageArea final : public QAbstractScrollArea {
    Q_OBJECT

public:
    explicit PageArea(QWidget* parent);

    // Paints into a painter with the page's upper left corner at 0, 0 and the clip set.
    std::function<void(QPainter& painter)> paintPage;

    // In device-independent pixels. What is under `fixed`, a point of the viewport, stays there as far as it can; a
    // null point stands for the middle, or for the top of a page that was seen whole.
    void ShowPage(QSizeF size, QPointF fixed);
    void ShowNotice(const QString& notice);
    void SetEdges(bool shown);  // the line and the shadow around the page
    void ScrollTo(Qt::Edge edge);

    QString Notice() const { return notice_; }
    QRectF PageRect() const;  // in the viewport
    QSize Room() const { return maximumViewportSize(); }
    int BarExtent() const;

Q_SIGNALS:
    void Resized();
    void TurnWanted(int pages, Qt::Edge edge);  // by so many; the edge of the page to be seen first
    void EndWanted(Qt::Edge edge);              // of the document: its first or last page
    void ZoomWanted(int steps, QPointF fixed);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void SetBars();
    void PaintGround(QPainter& painter, const QRect& dirty);
    void PaintNotice(QPainter& painter);
    int Notches(int delta);

    QSizeF size_;
    QString notice_;
    bool edges_ = true;
    int turned_ = 0;  // of the wheel, in eighths of a degree, that haven't made a notch
};

}  // namespace folioscope
