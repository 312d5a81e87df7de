#pragma once

#include <QAbstractScrollArea>
#include <QElapsedTimer>
#include <QPoint>
#include <QString>

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/labels.h"
#include "document/structure_tree.h"
#include "shell/node_icons.h"
#include "shell/row_painter.h"
#include "shell/visible_rows.h"

class QAccessibleEvent;

namespace folioscope {

// The view of a document's tree. It keeps two bits a node, so that a tree of millions of nodes opens and closes at
// once. Nodes are told by lngNodeCode; 0 is no node. What is added to the tree is seen from the next Refresh on.
class FlyTree : public QAbstractScrollArea {
    Q_OBJECT
    Q_PROPERTY(QString ItemSeparator READ ItemSeparator WRITE SetItemSeparator)

public:
    explicit FlyTree(QWidget* parent = nullptr);

    void SetIcons(NodeIcons icons);  // those without a picture get a neutral one
    void SetLabels(Labels interfaceLabels);

    // The tree must outlive its use here. Nothing is selected, all is closed.
    void SetTree(const StructureTree* tree);
    const StructureTree* Tree() const { return tree_; }
    void Clear() { SetTree(nullptr); }
    // Takes over what was added to the tree. Cheap: for each moment in which a run gives way.
    void Refresh();

    // Selects a node, opens what it lies in and brings it into view. OnSelChange is not sent: it tells of changes that
    // the view itself makes.
    void Select(std::uint32_t node);
    std::uint32_t Selected() const { return selected_; }

    void Expand(std::uint32_t node);
    void Collapse(std::uint32_t node);
    void ExpandSubtree(std::uint32_t node);
    bool IsExpanded(std::uint32_t node) const { return rows_.IsExpanded(node); }
    // Every some thousand nodes `giveWay` is called, in which anything may happen to the tree; false stops. Returns
    // whether all was opened. Neither this nor FullCollapse sends a signal for each folder.
    bool ExpandAll(const std::function<bool()>& giveWay = {});
    void FullCollapse();

    const QString& ItemSeparator() const { return separator_; }
    void SetItemSeparator(const QString& separator) { separator_ = separator; }
    std::string FullPath(std::uint32_t node) const;
    std::uint32_t ExtractNode(std::string_view path) const;  // 0: there is none

    // Rows as they stand in the view, counted from 0.
    const VisibleRows& Rows() const { return rows_; }
    std::uint32_t NodeAt(const QPoint& viewportPosition) const;  // 0: none
    QRect RowRect(std::uint32_t node) const;                     // in the viewport, whole width; may lie outside
    QRect ArrowRect(std::uint32_t node) const;                   // empty if the node has no children
    QString PlainText(std::uint32_t node) const;
    // What of a row isn't in its text: its level, and whether there are faults.
    QString Description(std::uint32_t node) const;
    // As by the user: tells of it.
    void SelectByUser(std::uint32_t node);
    void Toggle(std::uint32_t node);

    QSize sizeHint() const override;

Q_SIGNALS:
    void OnSelChange(quint32 node);
    void expanded(quint32 node);
    void collapsed(quint32 node);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    virtual void SendAccessible(QAccessibleEvent& event);  // to whoever reads the screen

private:
    struct Shown {
        std::uint32_t node, depth;
    };

    std::uint32_t Top() const;  // the node of the first row in sight
    std::vector<Shown> RowsInSight() const;
    void LayOut(std::uint32_t top);
    void TakeWidths();
    void BringIntoView(std::uint32_t node);
    void RowsChanged(std::uint32_t top);
    void Hover(const QPoint& position);
    void TellFocus();
    void TellState(std::uint32_t node);
    void TellFolder(std::uint32_t node, bool open);
    bool TakeKey(int key);
    bool TakeMove(int key);
    void StepLeft();
    void StepRight();
    bool TypeAhead(const QString& typed);
    bool BeginsWith(std::uint32_t node, const QString& start) const;
    void SelectRow(std::int64_t row);

    const StructureTree* tree_ = nullptr;
    VisibleRows rows_;
    RowPainter painter_;
    NodeIcons icons_;
    Labels labels_{Language::English};
    QString separator_ = QStringLiteral("\\");
    std::uint32_t selected_ = 0, hovered_ = 0;
    bool arrowHovered_ = false;
    std::uint32_t trees_ = 0;  // how many were set: tells that another one came
    int widest_ = 0;           // of the rows that were in sight
    QString typed_;
    QElapsedTimer sinceTyped_;
};

}  // namespace folioscope
