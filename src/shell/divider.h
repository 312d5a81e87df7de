#pragma once

#include <QFrame>

namespace folioscope {

// A bar between two panes that can be dragged, and moved with the arrow keys. The panes follow whoever listens.
class Divider final : public QFrame {
    Q_OBJECT

public:
    static constexpr int kThickness = 5;

    Divider(Qt::Orientation direction, QWidget* parent);  // Horizontal: it is dragged left and right

Q_SIGNALS:
    // Where the divider wants to stand, along its direction in the parent.
    void Dragged(int position);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    int Along(const QPoint& point) const { return direction_ == Qt::Horizontal ? point.x() : point.y(); }

    Qt::Orientation direction_;
    int grabbed_ = 0;  // where in the divider the button went down
};

}  // namespace folioscope
