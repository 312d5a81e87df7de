#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <string>

#include "shell/fly_tree.h"
#include "shell/grown_tree.h"

using namespace folioscope;
using test::GrownTree;

namespace {

constexpr std::uint32_t kRoot = NodeStore::kRoot;

struct Pages : GrownTree {
    std::uint32_t document = Open("BDT"), first = Open(), nop = Leaf("one"), firstEnd = Close(), second = Open(),
                  secondEnd = Close(), end = Close("EDT");
};

}  // namespace

class FlyTreeInputTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        tree_ = std::make_unique<Pages>();
        view_ = std::make_unique<FlyTree>();
        view_->SetTree(&tree_->tree);
        view_->resize(400, 300);
        view_->show();
        view_->activateWindow();
        view_->setFocus();
    }
    void cleanup()
    {
        view_.reset();
        tree_.reset();
    }

    void selectsByAClickOnARow()
    {
        view_->ExpandAll();
        QSignalSpy selected(view_.get(), &FlyTree::OnSelChange);
        Click(Row(tree_->nop).center());
        QCOMPARE(view_->Selected(), tree_->nop);
        Click(Row(tree_->nop).center());
        QCOMPARE(selected.size(), 1);
        QCOMPARE(selected[0][0].toUInt(), tree_->nop);
        QTest::mouseClick(view_->viewport(), Qt::RightButton, {}, Row(tree_->second).center());
        QCOMPARE(view_->Selected(), tree_->second);
        QTest::mouseClick(view_->viewport(), Qt::MiddleButton, {}, Row(tree_->nop).center());
        Click({10, view_->viewport()->height() - 2});  // below the last row
        QCOMPARE(view_->Selected(), tree_->second);
        QCOMPARE(view_->Rows().Rows(), tree_->Nodes().Size() - 1);
    }

    void opensAndClosesByAClickOnTheArrow()
    {
        QSignalSpy selected(view_.get(), &FlyTree::OnSelChange);
        Click(view_->ArrowRect(kRoot).center());
        QVERIFY(view_->IsExpanded(kRoot));
        Click(view_->ArrowRect(tree_->document).center());
        QVERIFY(view_->IsExpanded(tree_->document));
        Click(view_->ArrowRect(kRoot).center());
        QVERIFY(!view_->IsExpanded(kRoot));
        QCOMPARE(selected.size(), 0);
        QVERIFY(view_->ArrowRect(tree_->nop).isEmpty());
    }

    void findsTheArrowOfARowThatIsScrolledAside()
    {
        GrownTree deep;
        std::uint32_t deepest = 0;
        for (int i = 0; i < 60; ++i) deepest = deep.Open();
        view_->SetTree(&deep.tree);
        view_->Select(deepest);
        QVERIFY(view_->horizontalScrollBar()->value() > 0);
        QVERIFY(view_->ArrowRect(deepest).left() >= 0);
        Click(view_->ArrowRect(deepest).center());
        QVERIFY(view_->IsExpanded(deepest));
    }

    void opensAndClosesByADoubleClick()
    {
        DoubleClick(Row(kRoot).center());
        QVERIFY(view_->IsExpanded(kRoot));
        QCOMPARE(view_->Selected(), kRoot);
        DoubleClick(Row(kRoot).center());
        QVERIFY(!view_->IsExpanded(kRoot));
        // Two quick clicks on the arrow are two clicks.
        DoubleClick(view_->ArrowRect(kRoot).center());
        QVERIFY(!view_->IsExpanded(kRoot));
    }

    void walksTheRowsByKeys()
    {
        view_->ExpandAll();
        Press(Qt::Key_Down);
        QCOMPARE(view_->Selected(), kRoot);
        Press(Qt::Key_Down);
        QCOMPARE(view_->Selected(), tree_->document);
        Press(Qt::Key_Up);
        Press(Qt::Key_Up);
        QCOMPARE(view_->Selected(), kRoot);
        Press(Qt::Key_End);
        QCOMPARE(view_->Selected(), tree_->end);
        Press(Qt::Key_Down);
        QCOMPARE(view_->Selected(), tree_->end);
        Press(Qt::Key_Home);
        QCOMPARE(view_->Selected(), kRoot);
    }

    void passesOverFoldersThatAreClosed()
    {
        view_->Expand(kRoot);
        view_->Expand(tree_->document);
        view_->Select(tree_->first);
        Press(Qt::Key_Down);
        QCOMPARE(view_->Selected(), tree_->second);
    }

    void turnsPages()
    {
        GrownTree many;
        for (int i = 0; i < 200; ++i) many.Leaf();
        view_->SetTree(&many.tree);
        view_->Expand(kRoot);
        view_->Select(kRoot);
        Press(Qt::Key_PageDown);
        const std::uint32_t page = view_->Selected() - kRoot;
        QVERIFY(page > 3 && page < 50);
        Press(Qt::Key_PageDown);
        QCOMPARE(view_->Selected(), kRoot + 2 * page);
        QVERIFY(view_->viewport()->rect().contains(Row(view_->Selected())));
        Press(Qt::Key_PageUp);
        QCOMPARE(view_->Selected(), kRoot + page);
        for (int i = 0; i < 100; ++i) Press(Qt::Key_PageDown);
        QCOMPARE(view_->Selected(), 201u);
        for (int i = 0; i < 100; ++i) Press(Qt::Key_PageUp);
        QCOMPARE(view_->Selected(), kRoot);
    }

    void goesInAndOutByRightAndLeft()
    {
        view_->Select(kRoot);
        Press(Qt::Key_Right);
        QVERIFY(view_->IsExpanded(kRoot));
        QCOMPARE(view_->Selected(), kRoot);
        Press(Qt::Key_Right);
        QCOMPARE(view_->Selected(), tree_->document);
        view_->Select(tree_->nop);
        Press(Qt::Key_Right);
        QCOMPARE(view_->Selected(), tree_->nop);
        Press(Qt::Key_Left);
        QCOMPARE(view_->Selected(), tree_->first);
        QVERIFY(view_->IsExpanded(tree_->first));
        Press(Qt::Key_Left);
        QVERIFY(!view_->IsExpanded(tree_->first));
        QCOMPARE(view_->Selected(), tree_->first);
        for (int i = 0; i < 8; ++i) Press(Qt::Key_Left);
        QCOMPARE(view_->Selected(), kRoot);
        QVERIFY(!view_->IsExpanded(kRoot));
    }

    void opensAndClosesByKeys()
    {
        view_->Select(kRoot);
        Press(Qt::Key_Plus);
        QVERIFY(view_->IsExpanded(kRoot));
        Press(Qt::Key_Plus);
        QVERIFY(view_->IsExpanded(kRoot));
        Press(Qt::Key_Minus);
        QVERIFY(!view_->IsExpanded(kRoot));
        Press(Qt::Key_Return);
        QVERIFY(view_->IsExpanded(kRoot));
        Press(Qt::Key_Enter);
        QVERIFY(!view_->IsExpanded(kRoot));
        Press(Qt::Key_Asterisk);
        QCOMPARE(view_->Rows().Rows(), tree_->Nodes().Size() - 1);
        view_->FullCollapse();
        view_->Expand(kRoot);
        view_->Expand(tree_->document);
        view_->Select(tree_->first);
        Press(Qt::Key_Asterisk);
        QVERIFY(view_->IsExpanded(tree_->first));
        QVERIFY(!view_->IsExpanded(tree_->second));
    }

    void findsWhatIsTyped()
    {
        view_->ExpandAll();
        view_->Select(kRoot);
        QTest::keyClicks(view_.get(), "page 2");
        QCOMPARE(view_->Selected(), tree_->second);
        view_->Select(kRoot);  // typed in time, but nothing begins so
        QTest::keyClicks(view_.get(), "x");
        QCOMPARE(view_->Selected(), kRoot);
    }

    void findsWhatIsTypedBehindTheSelectedRowFirst()
    {
        view_->ExpandAll();
        view_->Select(tree_->first);
        QSignalSpy selected(view_.get(), &FlyTree::OnSelChange);
        QTest::keyClicks(view_.get(), "e");
        QCOMPARE(view_->Selected(), tree_->firstEnd);
        QTest::keyClicks(view_.get(), "e");
        QCOMPARE(view_->Selected(), tree_->secondEnd);
        QTest::keyClicks(view_.get(), "e");
        QCOMPARE(view_->Selected(), tree_->end);
        QTest::keyClicks(view_.get(), "e");  // from the top again
        QCOMPARE(view_->Selected(), tree_->firstEnd);
        QCOMPARE(selected.size(), 4);
    }

    void findsOnlyWhatCanBeSeen()
    {
        view_->Expand(kRoot);
        view_->Select(kRoot);
        QTest::keyClicks(view_.get(), "n");
        QCOMPARE(view_->Selected(), kRoot);
        QTest::qWait(1100);  // a new search, not "nd"
        QTest::keyClicks(view_.get(), "d");
        QCOMPARE(view_->Selected(), tree_->document);
    }

    void leavesOtherKeysToTheWindow()
    {
        view_->ExpandAll();
        view_->Select(tree_->first);
        for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_F3, Qt::Key_Space}) {
            QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, key == Qt::Key_Space ? " " : "");
            QCoreApplication::sendEvent(view_.get(), &event);
            QVERIFY(!event.isAccepted());
        }
        QKeyEvent event(QEvent::KeyPress, Qt::Key_E, Qt::ControlModifier, "e");
        QCoreApplication::sendEvent(view_.get(), &event);
        QVERIFY(!event.isAccepted());
        QCOMPARE(view_->Selected(), tree_->first);
    }

    void showsWhichRowThePointerIsOn()
    {
        view_->ExpandAll();
        const QPointF at = Row(tree_->nop).center();
        QMouseEvent move(QEvent::MouseMove, at, view_->viewport()->mapToGlobal(at), Qt::NoButton, Qt::NoButton, {});
        QCoreApplication::sendEvent(view_->viewport(), &move);
        const QImage over = view_->viewport()->grab().toImage();
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(view_->viewport(), &leave);
        const QImage away = view_->viewport()->grab().toImage();
        const QPoint nop(Row(tree_->nop).right() - 4, Row(tree_->nop).center().y());
        const QPoint other(nop.x(), Row(tree_->second).center().y());
        QVERIFY(over.pixelColor(nop) != away.pixelColor(nop));
        QCOMPARE(over.pixelColor(other), away.pixelColor(other));
        QCOMPARE(away.pixelColor(nop), view_->palette().color(QPalette::Base));
    }

private:
    QRect Row(std::uint32_t node) const { return view_->RowRect(node); }
    void Click(const QPoint& at) { QTest::mouseClick(view_->viewport(), Qt::LeftButton, {}, at); }
    // As a mouse does it: the second press comes as a double click.
    void DoubleClick(const QPoint& at)
    {
        Click(at);
        QTest::mouseDClick(view_->viewport(), Qt::LeftButton, {}, at);
    }
    void Press(Qt::Key key) { QTest::keyClick(view_.get(), key); }

    std::unique_ptr<Pages> tree_;
    std::unique_ptr<FlyTree> view_;
};

QTEST_MAIN(FlyTreeInputTest)
#include "fly_tree_input_test.moc"
