#include "shell/accessible_fly_tree.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>

#include <unordered_map>

#include "shell/fly_tree.h"

namespace folioscope {

namespace {

constexpr std::size_t kRowsKept = 4096;  // rows that a reader has asked for

class AccessibleRow final : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    AccessibleRow(FlyTree* tree, std::uint32_t node) : tree_(tree), node_(node) {}

    bool isValid() const override { return tree_ && tree_->Rows().IsVisible(node_); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return tree_ ? tree_->window()->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(tree_); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::TreeItem; }
    void setText(QAccessible::Text, const QString&) override {}

    QString text(QAccessible::Text kind) const override
    {
        if (!isValid()) return {};
        if (kind == QAccessible::Name) return tree_->PlainText(node_);
        return kind == QAccessible::Description ? tree_->Description(node_) : QString();
    }

    QRect rect() const override
    {
        if (!isValid()) return {};
        const QRect row = tree_->RowRect(node_);
        return {tree_->viewport()->mapToGlobal(row.topLeft()), row.size()};
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        state.selectable = state.focusable = true;
        state.selected = state.active = tree_->Selected() == node_;
        state.focused = tree_->Selected() == node_ && tree_->hasFocus();
        state.expandable = tree_->Rows().HasChildren(node_);
        state.expanded = tree_->IsExpanded(node_);
        state.collapsed = state.expandable && !state.expanded;
        state.offscreen = !tree_->viewport()->rect().intersects(tree_->RowRect(node_));
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
    }

    QStringList actionNames() const override
    {
        if (!isValid()) return {};
        QStringList names{setFocusAction()};
        if (tree_->Rows().HasChildren(node_)) names << toggleAction();
        return names;
    }
    void doAction(const QString& name) override
    {
        if (!isValid()) return;
        if (name == toggleAction()) tree_->Toggle(node_);
        if (name == setFocusAction()) tree_->SelectByUser(node_);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

    std::uint32_t Node() const { return node_; }

private:
    QPointer<FlyTree> tree_;
    std::uint32_t node_;
};

class AccessibleFlyTree final : public QAccessibleWidget {
public:
    explicit AccessibleFlyTree(FlyTree* tree) : QAccessibleWidget(tree, QAccessible::Tree) {}
    ~AccessibleFlyTree() override { Forget(); }

    int childCount() const override { return static_cast<int>(Tree().Rows().Rows()); }
    QAccessibleInterface* child(int index) const override
    {
        return index < 0 ? nullptr : Row(Tree().Rows().NodeAt(static_cast<std::uint32_t>(index)));
    }
    QAccessibleInterface* childAt(int x, int y) const override
    {
        return Row(Tree().NodeAt(Tree().viewport()->mapFromGlobal(QPoint(x, y))));
    }
    QAccessibleInterface* focusChild() const override { return Tree().hasFocus() ? Row(Tree().Selected()) : nullptr; }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        const auto* row = dynamic_cast<const AccessibleRow*>(child);
        return row == nullptr || !row->isValid() ? -1 : static_cast<int>(Tree().Rows().RowOf(row->Node()));
    }

    void Forget() const
    {
        for (const auto& [node, id] : rows_) QAccessible::deleteAccessibleInterface(id);
        rows_.clear();
    }

private:
    const FlyTree& Tree() const { return static_cast<const FlyTree&>(*widget()); }

    QAccessibleInterface* Row(std::uint32_t node) const
    {
        if (!Tree().Rows().IsVisible(node)) return nullptr;
        if (const auto found = rows_.find(node); found != rows_.end())
            return QAccessible::accessibleInterface(found->second);
        if (rows_.size() >= kRowsKept) Forget();
        auto* row = new AccessibleRow(static_cast<FlyTree*>(widget()), node);  // the registry deletes it
        rows_[node] = QAccessible::registerAccessibleInterface(row);
        return row;
    }

    mutable std::unordered_map<std::uint32_t, QAccessible::Id> rows_;
};

QAccessibleInterface* MakeAccessible(const QString& /*className*/, QObject* object)
{
    auto* tree = qobject_cast<FlyTree*>(object);
    return tree == nullptr ? nullptr : new AccessibleFlyTree(tree);
}

}  // namespace

void InstallAccessibleFlyTree()
{
    [[maybe_unused]] static const bool once = (QAccessible::installFactory(MakeAccessible), true);
}

void ForgetAccessibleRows(FlyTree& tree)
{
    if (auto* known = dynamic_cast<AccessibleFlyTree*>(QAccessible::queryAccessibleInterface(&tree))) known->Forget();
}

void FlyTree::TellFocus()
{
    if (!hasFocus() || !rows_.IsVisible(selected_)) return;
    QAccessibleEvent event(this, QAccessible::Focus);
    event.setChild(static_cast<int>(rows_.RowOf(selected_)));
    SendAccessible(event);
}

void FlyTree::TellState(std::uint32_t node)
{
    if (!rows_.IsVisible(node)) return;
    QAccessible::State changed;
    changed.expanded = changed.collapsed = true;
    QAccessibleStateChangeEvent event(this, changed);
    event.setChild(static_cast<int>(rows_.RowOf(node)));
    SendAccessible(event);
}

void FlyTree::SendAccessible(QAccessibleEvent& event) { QAccessible::updateAccessibility(&event); }

}  // namespace folioscope
