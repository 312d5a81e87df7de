#include "shell/fly_tree.h"

#include <QCursor>
#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QScrollBar>

#include <algorithm>
#include <limits>
#include <utility>

#include "shell/accessible_fly_tree.h"
#include "shell/node_path.h"
#include "shell/tagged_text.h"

namespace folioscope {

namespace {

constexpr std::uint32_t kNodesAtOnce = 16'384;  // that ExpandAll opens before it gives way
constexpr int kBeginning = 200;                 // pixels of a row that are brought into view

}  // namespace

FlyTree::FlyTree(QWidget* parent) : QAbstractScrollArea(parent), painter_(*this)
{
    InstallAccessibleFlyTree();
    setFocusPolicy(Qt::StrongFocus);
    setLayoutDirection(Qt::LeftToRight);
    viewport()->setBackgroundRole(QPalette::Base);
    viewport()->setAutoFillBackground(true);
    viewport()->setMouseTracking(true);
}

void FlyTree::SetIcons(NodeIcons icons)
{
    icons_ = std::move(icons);
    painter_.SetIcons(icons_);
    viewport()->update();
}

void FlyTree::SetLabels(Labels interfaceLabels) { labels_ = interfaceLabels; }

void FlyTree::SetTree(const StructureTree* tree)
{
    tree_ = tree;
    ++trees_;
    selected_ = hovered_ = 0;
    arrowHovered_ = false;
    widest_ = 0;
    typed_.clear();
    painter_.Forget();
    rows_.Reset(tree == nullptr ? nullptr : &tree->Nodes());
    ForgetAccessibleRows(*this);
    horizontalScrollBar()->setValue(0);
    RowsChanged(0);
}

void FlyTree::Refresh()
{
    const std::uint32_t top = Top();
    rows_.TakeOver();
    RowsChanged(top);
}

// Rows ------------------------------------------------------------------------------------------------------------

std::uint32_t FlyTree::Top() const { return rows_.NodeAt(static_cast<std::uint32_t>(verticalScrollBar()->value())); }

std::uint32_t FlyTree::NodeAt(const QPoint& viewportPosition) const
{
    if (viewportPosition.y() < 0) return 0;
    const int row = verticalScrollBar()->value() + viewportPosition.y() / painter_.RowHeight();
    return rows_.NodeAt(static_cast<std::uint32_t>(row));
}

QRect FlyTree::RowRect(std::uint32_t node) const
{
    if (!rows_.IsVisible(node)) return {};
    constexpr std::int64_t kFar = std::numeric_limits<int>::max() / 4;
    const std::int64_t row = std::int64_t{rows_.RowOf(node)} - verticalScrollBar()->value();
    const auto top = std::clamp(row * painter_.RowHeight(), -kFar, kFar);
    return {0, static_cast<int>(top), viewport()->width(), painter_.RowHeight()};
}

QRect FlyTree::ArrowRect(std::uint32_t node) const
{
    const QRect row = RowRect(node);
    if (row.isNull() || !rows_.HasChildren(node)) return {};
    const int left = painter_.ArrowLeft(DepthOf(tree_->Nodes(), node)) - horizontalScrollBar()->value();
    return {left, row.top(), painter_.ArrowWidth(), row.height()};
}

// The depth of a row follows from that of the row above it, so that only the first one is looked for from the root.
std::vector<FlyTree::Shown> FlyTree::RowsInSight() const
{
    std::vector<Shown> shown;
    std::uint32_t node = Top();
    if (node == 0) return shown;
    const NodeStore& nodes = tree_->Nodes();
    const auto rows = static_cast<std::size_t>(viewport()->height() / painter_.RowHeight()) + 1;
    std::uint32_t depth = DepthOf(nodes, node);
    while (true) {
        shown.push_back({node, depth});
        const std::uint32_t next = rows_.NextRowNode(node);
        if (next == 0 || shown.size() >= rows) return shown;
        const std::uint32_t parent = nodes[next].parent;
        if (parent == node) {
            ++depth;
        } else {
            for (; nodes[node].parent != parent; node = nodes[node].parent) --depth;
        }
        node = next;
    }
}

void FlyTree::RowsChanged(std::uint32_t top)
{
    LayOut(top);
    viewport()->update();
}

// The scroll bar counts rows; `top` stays the first row in sight if it can.
void FlyTree::LayOut(std::uint32_t top)
{
    const int page = std::max(1, viewport()->height() / painter_.RowHeight());
    const auto rows = static_cast<std::int64_t>(rows_.Rows());
    QScrollBar* bar = verticalScrollBar();
    bar->setPageStep(page);
    bar->setRange(0, static_cast<int>(std::clamp<std::int64_t>(rows - page, 0, std::numeric_limits<int>::max())));
    if (top != 0) bar->setValue(static_cast<int>(rows_.RowOf(top)));
    TakeWidths();
}

// Texts are measured when they come into sight: to measure all would take longer than all else.
void FlyTree::TakeWidths()
{
    for (const auto& [node, depth] : RowsInSight())
        widest_ = std::max(widest_, painter_.RowRight(depth, painter_.TextOf(*tree_, node)));
    QScrollBar* bar = horizontalScrollBar();
    bar->setPageStep(viewport()->width());
    bar->setSingleStep(painter_.ArrowWidth());
    bar->setRange(0, std::max(0, widest_ - viewport()->width()));
}

void FlyTree::BringIntoView(std::uint32_t node)
{
    if (!rows_.IsVisible(node)) return;
    QScrollBar* rows = verticalScrollBar();
    const int page = rows->pageStep(), row = static_cast<int>(rows_.RowOf(node)), top = rows->value();
    if (row < top - page || row >= top + 2 * page)
        rows->setValue(row - page / 2);
    else
        rows->setValue(std::clamp(top, row - page + 1, row));

    const std::uint32_t depth = DepthOf(tree_->Nodes(), node);
    const int right = painter_.RowRight(depth, painter_.TextOf(*tree_, node)), left = painter_.ArrowLeft(depth);
    widest_ = std::max(widest_, right);
    TakeWidths();
    QScrollBar* columns = horizontalScrollBar();
    const int width = viewport()->width();
    // The beginning of the row must be seen; for the rest of a long text the view doesn't move under the pointer.
    const int most = std::max(0, left - painter_.ArrowWidth());
    const int least = std::min(most, std::min(right, left + kBeginning) - width);
    columns->setValue(std::clamp(columns->value(), least, most));
}

// Operations ------------------------------------------------------------------------------------------------------

void FlyTree::Select(std::uint32_t node)
{
    if (tree_ == nullptr || node >= rows_.Known()) return;
    std::vector<std::uint32_t> closed;
    for (std::uint32_t at = node == 0 ? 0 : tree_->Nodes()[node].parent; at != 0; at = tree_->Nodes()[at].parent)
        if (!rows_.IsExpanded(at)) closed.push_back(at);
    const std::uint32_t top = Top();
    // From the inside out, so that what comes into sight is walked once.
    for (const std::uint32_t folder : closed) rows_.Expand(folder);
    selected_ = node;
    if (!closed.empty()) RowsChanged(top);
    BringIntoView(node);
    viewport()->update();
    for (auto folder = closed.rbegin(); folder != closed.rend(); ++folder) TellFolder(*folder, true);
    TellFocus();
}

void FlyTree::SelectByUser(std::uint32_t node)
{
    if (node == 0 || node >= rows_.Known()) return;
    const bool changes = node != selected_;
    Select(node);
    if (changes) Q_EMIT OnSelChange(node);
}

void FlyTree::TellFolder(std::uint32_t node, bool open)
{
    TellState(node);
    if (open)
        Q_EMIT expanded(node);
    else
        Q_EMIT collapsed(node);
}

void FlyTree::Expand(std::uint32_t node)
{
    const std::uint32_t top = Top();
    if (!rows_.Expand(node)) return;
    RowsChanged(top);
    TellFolder(node, true);
}

void FlyTree::ExpandSubtree(std::uint32_t node)
{
    const std::uint32_t top = Top();
    const bool wasOpen = rows_.IsExpanded(node);
    rows_.ExpandRange(node, rows_.End(node));
    RowsChanged(top);
    if (!wasOpen && rows_.IsExpanded(node)) TellFolder(node, true);
}

void FlyTree::Collapse(std::uint32_t node)
{
    const std::uint32_t top = Top(), end = rows_.End(node);
    if (!rows_.Collapse(node)) return;
    widest_ = std::min(widest_, horizontalScrollBar()->value() + viewport()->width());
    RowsChanged(top > node && top < end ? node : top);
    TellFolder(node, false);
    if (selected_ > node && selected_ < end) SelectByUser(node);
}

void FlyTree::Toggle(std::uint32_t node)
{
    if (rows_.IsExpanded(node))
        Collapse(node);
    else
        Expand(node);
}

bool FlyTree::ExpandAll(const std::function<bool()>& giveWay)
{
    const QPointer<FlyTree> self(this);
    const std::uint32_t tree = trees_, step = giveWay ? kNodesAtOnce : rows_.Known();
    for (std::uint32_t node = NodeStore::kRoot; node < rows_.Known(); node += step) {
        const std::uint32_t top = Top();
        const bool seen = viewport()->rect().intersects(RowRect(selected_));
        rows_.ExpandRange(node, node + step);
        RowsChanged(top);
        if (seen) BringIntoView(selected_);
        if (rows_.Known() - node <= step) break;
        const bool goesOn = giveWay();
        if (!self || trees_ != tree || !goesOn) return false;
    }
    return true;
}

void FlyTree::FullCollapse()
{
    rows_.CollapseAll();
    widest_ = 0;
    RowsChanged(NodeStore::kRoot);
    if (selected_ > NodeStore::kRoot) SelectByUser(NodeStore::kRoot);
}

std::string FlyTree::FullPath(std::uint32_t node) const
{
    return tree_ == nullptr ? std::string() : folioscope::FullPath(*tree_, node, separator_.toStdString());
}

std::uint32_t FlyTree::ExtractNode(std::string_view path) const
{
    return tree_ == nullptr ? 0 : folioscope::ExtractNode(*tree_, path, separator_.toStdString());
}

QString FlyTree::PlainText(std::uint32_t node) const
{
    return tree_ == nullptr || node == 0 || node >= rows_.Known() ? QString() : PlainNodeText(tree_->NodeText(node));
}

QString FlyTree::Description(std::uint32_t node) const
{
    if (tree_ == nullptr || node == 0 || node >= rows_.Known()) return {};
    const auto text = [this](Label label) {
        return QString::fromUtf8(labels_[label].data(), static_cast<qsizetype>(labels_[label].size()));
    };
    QString description = text(U("Level %1")).arg(DepthOf(tree_->Nodes(), node) + 1);
    if (tree_->Nodes()[node].red) description += QStringLiteral(", ") + text(U("contains errors"));
    return description;
}

// Events ----------------------------------------------------------------------------------------------------------

QSize FlyTree::sizeHint() const { return {300, 20 * painter_.RowHeight()}; }

void FlyTree::paintEvent(QPaintEvent* event)
{
    QPainter painter(viewport());
    const int height = painter_.RowHeight(), offset = horizontalScrollBar()->value();
    QRect row(0, 0, viewport()->width(), height);
    for (const auto& [node, depth] : RowsInSight()) {
        if (row.intersects(event->rect())) {
            RowLook look;
            look.depth = depth;
            look.expandable = rows_.HasChildren(node);
            look.expanded = rows_.IsExpanded(node);
            look.image = ImageOf(tree_->Nodes()[node], look.expanded);
            look.selected = node == selected_;
            look.hovered = node == hovered_;
            look.arrowHovered = look.hovered && arrowHovered_;
            look.focused = hasFocus();
            painter_.Paint(painter, row, offset, look, painter_.TextOf(*tree_, node));
        }
        row.translate(0, height);
    }
}

void FlyTree::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    RowsChanged(Top());
}

void FlyTree::showEvent(QShowEvent* event)
{
    QAbstractScrollArea::showEvent(event);
    if (selected_ != 0) BringIntoView(selected_);
}

void FlyTree::changeEvent(QEvent* event)
{
    QAbstractScrollArea::changeEvent(event);
    const auto type = event->type();
    if (type != QEvent::FontChange && type != QEvent::StyleChange && type != QEvent::PaletteChange) return;
    painter_.Adopt(*this);
    painter_.SetIcons(icons_);
    widest_ = 0;
    RowsChanged(Top());
}

void FlyTree::focusInEvent(QFocusEvent* event)
{
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
    TellFocus();
}

void FlyTree::focusOutEvent(QFocusEvent* event)
{
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}

void FlyTree::scrollContentsBy(int /*dx*/, int dy)
{
    if (dy != 0) TakeWidths();
    viewport()->update();
    // The rows move, and the pointer doesn't.
    Hover(viewport()->underMouse() ? viewport()->mapFromGlobal(QCursor::pos()) : QPoint(-1, -1));
}

}  // namespace folioscope
