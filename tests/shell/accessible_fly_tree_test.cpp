#include <QAccessible>
#include <QTest>

#include <memory>
#include <vector>

#include "shell/fly_tree.h"
#include "shell/grown_tree.h"

using namespace folioscope;
using test::GrownTree;

namespace {

constexpr std::uint32_t kRoot = NodeStore::kRoot;

struct Told {
    QAccessible::Event type;
    int child;
    bool operator==(const Told&) const = default;
};

// What is sent goes nowhere as long as nobody reads the screen, so it is caught on its way.
struct View : FlyTree {
    void SendAccessible(QAccessibleEvent& event) override { told.push_back({event.type(), event.child()}); }
    std::vector<Told> told;
};

}  // namespace

class AccessibleFlyTreeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        tree_ = std::make_unique<GrownTree>();
        page_ = tree_->Open();
        leaf_ = tree_->Leaf("one");
        tree_->Close();
        view_ = std::make_unique<View>();
        view_->SetTree(&tree_->tree);
        view_->resize(300, 200);
        view_->show();
        view_->activateWindow();
        view_->setFocus();
        QVERIFY(QTest::qWaitForWindowActive(view_.get()));
        view_->told.clear();
    }
    void cleanup()
    {
        view_.reset();
        tree_.reset();
    }

    void isATreeOfTheRowsInView()
    {
        QCOMPARE(Tree()->role(), QAccessible::Tree);
        QCOMPARE(Tree()->childCount(), 1);
        view_->ExpandAll();
        QCOMPARE(Tree()->childCount(), 5);
        for (int i = 0; i < 5; ++i) {
            QAccessibleInterface* row = Tree()->child(i);
            QVERIFY(row != nullptr && row->isValid());
            QCOMPARE(row->role(), QAccessible::TreeItem);
            QCOMPARE(row->parent(), Tree());
            QCOMPARE(Tree()->indexOfChild(row), i);
            QCOMPARE(row->childCount(), 0);
            const QPoint middle = row->rect().center();
            QCOMPARE(Tree()->childAt(middle.x(), middle.y()), row);
        }
        QVERIFY(Tree()->child(5) == nullptr);
        QVERIFY(Tree()->child(-1) == nullptr);
    }

    void readsTextLevelAndState()
    {
        view_->Expand(kRoot);
        view_->Select(leaf_);
        QAccessibleInterface* page = Tree()->child(1);
        QCOMPARE(page->text(QAccessible::Name), QStringLiteral("Page 1"));
        QCOMPARE(page->text(QAccessible::Description), QStringLiteral("Level 2"));
        QVERIFY(page->state().expandable && page->state().expanded && !page->state().collapsed);
        QVERIFY(!page->state().selected);
        QAccessibleInterface* leaf = Tree()->child(3);
        QCOMPARE(leaf->text(QAccessible::Name), QStringLiteral("NOP: one"));
        QVERIFY(leaf->state().selected && leaf->state().focused && !leaf->state().expandable);
        QCOMPARE(Tree()->focusChild(), leaf);
        view_->Collapse(page_);
        QVERIFY(page->state().collapsed && page->state().selected);
        QVERIFY(!leaf->isValid() && leaf->state().invalid);
        QCOMPARE(leaf->text(QAccessible::Name), QString());
    }

    void saysWhichRowsAreOutOfSight()
    {
        for (int i = 0; i < 100; ++i) tree_->Leaf();
        view_->Refresh();
        view_->Expand(kRoot);
        QVERIFY(!Tree()->child(0)->state().offscreen);
        QVERIFY(Tree()->child(90)->state().offscreen);
    }

    void tellsWhereTheFocusGoes()
    {
        view_->ExpandAll();
        view_->Select(page_);
        QCOMPARE(view_->told.back(), (Told{QAccessible::Focus, 1}));
        QTest::keyClick(view_.get(), Qt::Key_Down);
        QTest::keyClick(view_.get(), Qt::Key_Down);
        QCOMPARE(view_->Selected(), leaf_);
        QCOMPARE(view_->told.back(), (Told{QAccessible::Focus, 3}));
    }

    void tellsOfFoldersThatOpen()
    {
        view_->Expand(kRoot);
        QCOMPARE(view_->told.back(), (Told{QAccessible::StateChanged, 0}));
        view_->Expand(page_);
        QCOMPARE(view_->told.back(), (Told{QAccessible::StateChanged, 1}));
    }

    void actsOnRows()
    {
        view_->Expand(kRoot);
        QAccessibleInterface* page = Tree()->child(1);
        QAccessibleActionInterface* actions = page->actionInterface();
        QVERIFY(actions != nullptr);
        QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::toggleAction()));
        actions->doAction(QAccessibleActionInterface::toggleAction());
        QVERIFY(view_->IsExpanded(page_));
        actions->doAction(QAccessibleActionInterface::setFocusAction());
        QCOMPARE(view_->Selected(), page_);
        QAccessibleActionInterface* leaf = Tree()->child(3)->actionInterface();
        QVERIFY(!leaf->actionNames().contains(QAccessibleActionInterface::toggleAction()));
    }

    void isReadFromOneEndToTheOther()
    {
        for (int i = 0; i < 10'000; ++i) tree_->Leaf(std::to_string(i));
        view_->Refresh();
        view_->ExpandAll();
        for (int i = 0; i < Tree()->childCount(); ++i) {
            QAccessibleInterface* row = Tree()->child(i);
            QVERIFY(row != nullptr);
            QCOMPARE(row->text(QAccessible::Name), view_->PlainText(static_cast<std::uint32_t>(i) + 1));
        }
    }

    void forgetsTheRowsOfATreeThatWent()
    {
        QAccessibleInterface* row = Tree()->child(0);
        const QAccessible::Id id = QAccessible::uniqueId(row);
        view_->Clear();
        QCOMPARE(Tree()->childCount(), 0);
        QVERIFY(QAccessible::accessibleInterface(id) == nullptr);
    }

private:
    QAccessibleInterface* Tree() { return QAccessible::queryAccessibleInterface(view_.get()); }

    std::unique_ptr<GrownTree> tree_;
    std::unique_ptr<View> view_;
    std::uint32_t page_ = 0, leaf_ = 0;
};

QTEST_MAIN(AccessibleFlyTreeTest)
#include "accessible_fly_tree_test.moc"
