// What mouse and keyboard do in the tree.

#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

#include <algorithm>
#include <string>
#include <string_view>

#include "shell/fly_tree.h"
#include "shell/tagged_text.h"

namespace folioscope {

namespace {

constexpr qint64 kTypingPause = 1000;  // milliseconds, after which letters begin a new search

bool IsAscii(QChar character) { return character.unicode() < 0x80; }

}  // namespace

void FlyTree::mousePressEvent(QMouseEvent* event)
{
    const QPoint at = event->position().toPoint();
    const std::uint32_t node = NodeAt(at);
    if (node == 0) return;
    if (event->button() == Qt::LeftButton && ArrowRect(node).contains(at))
        Toggle(node);
    else if (event->button() == Qt::LeftButton || event->button() == Qt::RightButton)
        SelectByUser(node);
    Hover(at);
}

// A click ends here and not in the window behind.
void FlyTree::mouseReleaseEvent(QMouseEvent* event) { event->accept(); }

// The second click on an arrow is a click of its own.
void FlyTree::mouseDoubleClickEvent(QMouseEvent* event)
{
    const QPoint at = event->position().toPoint();
    if (const std::uint32_t node = NodeAt(at); node != 0 && event->button() == Qt::LeftButton) Toggle(node);
    Hover(at);
}

void FlyTree::mouseMoveEvent(QMouseEvent* event) { Hover(event->position().toPoint()); }

bool FlyTree::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::Leave) Hover({-1, -1});
    return QAbstractScrollArea::viewportEvent(event);
}

void FlyTree::Hover(const QPoint& position)
{
    const std::uint32_t node = NodeAt(position);
    const bool arrow = node != 0 && ArrowRect(node).contains(position);
    if (node == hovered_ && arrow == arrowHovered_) return;
    viewport()->update(RowRect(hovered_));
    viewport()->update(RowRect(node));
    hovered_ = node;
    arrowHovered_ = arrow;
}

void FlyTree::keyPressEvent(QKeyEvent* event)
{
    const auto modifiers = event->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier);
    if (rows_.Rows() > 0 && modifiers == Qt::NoModifier &&
        (TakeMove(event->key()) || TakeKey(event->key()) || TypeAhead(event->text()))) {
        event->accept();
        return;
    }
    // Scrolling alone is left to the area around the rows; what it has no use for, to the window.
    QAbstractScrollArea::keyPressEvent(event);
}

bool FlyTree::TakeMove(int key)
{
    const std::int64_t row = selected_ == 0 ? -1 : std::int64_t{rows_.RowOf(selected_)};
    const int page = std::max(1, verticalScrollBar()->pageStep() - 1);
    switch (key) {
    case Qt::Key_Up: SelectRow(row - 1); return true;
    case Qt::Key_Down: SelectRow(row + 1); return true;
    case Qt::Key_PageUp: SelectRow(row - page); return true;
    case Qt::Key_PageDown: SelectRow(row + page); return true;
    case Qt::Key_Home: SelectRow(0); return true;
    case Qt::Key_End: SelectRow(std::int64_t{rows_.Rows()} - 1); return true;
    default: return false;
    }
}

bool FlyTree::TakeKey(int key)
{
    if (selected_ == 0) return false;
    switch (key) {
    case Qt::Key_Left: StepLeft(); return true;
    case Qt::Key_Right: StepRight(); return true;
    case Qt::Key_Plus: Expand(selected_); return true;
    case Qt::Key_Minus: Collapse(selected_); return true;
    case Qt::Key_Asterisk: ExpandSubtree(selected_); return true;
    case Qt::Key_Return:
    case Qt::Key_Enter: Toggle(selected_); return true;
    default: return false;
    }
}

void FlyTree::SelectRow(std::int64_t row)
{
    row = std::clamp<std::int64_t>(row, 0, std::int64_t{rows_.Rows()} - 1);
    SelectByUser(rows_.NodeAt(static_cast<std::uint32_t>(row)));
}

void FlyTree::StepLeft()
{
    if (rows_.IsExpanded(selected_))
        Collapse(selected_);
    else
        SelectByUser(tree_->Nodes()[selected_].parent);
}

void FlyTree::StepRight()
{
    if (!rows_.HasChildren(selected_)) return;
    if (rows_.IsExpanded(selected_))
        SelectByUser(selected_ + 1);
    else
        Expand(selected_);
}

// Letters typed in a row make a longer beginning, for which the selected row may do; one letter over and over goes from
// one row to the next.
bool FlyTree::TypeAhead(const QString& typed)
{
    if (typed.isEmpty() || !typed[0].isPrint()) return false;
    const bool goesOn = !typed_.isEmpty() && sinceTyped_.isValid() && sinceTyped_.elapsed() < kTypingPause;
    if (!goesOn && typed[0].isSpace()) return false;
    sinceTyped_.start();
    if (!goesOn) typed_.clear();
    const bool repeated = !typed_.isEmpty() && typed_.count(typed) == typed_.size();
    if (!repeated) typed_ += typed;
    const bool stays = typed_.size() > 1 && selected_ != 0;
    std::uint32_t node = stays ? selected_ : rows_.NextRowNode(selected_);
    for (std::uint32_t row = 0; row < rows_.Rows(); ++row, node = rows_.NextRowNode(node)) {
        if (node == 0) node = NodeStore::kRoot;
        if (!BeginsWith(node, typed_)) continue;
        SelectByUser(node);
        break;
    }
    return true;
}

bool FlyTree::BeginsWith(std::uint32_t node, const QString& start) const
{
    const std::string tagged = tree_->NodeText(node);
    const std::string_view text = WithoutTags(tagged);
    // Most rows differ in their first letter, which tells without a conversion.
    if (text.empty()) return false;
    const QChar first = QLatin1Char(text.front());
    if (IsAscii(first) && IsAscii(start[0]) && first.toLower() != start[0].toLower()) return false;
    return PlainNodeText(tagged).startsWith(start, Qt::CaseInsensitive);
}

}  // namespace folioscope
