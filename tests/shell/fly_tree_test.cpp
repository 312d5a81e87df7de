#include "shell/fly_tree.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <memory>
#include <random>
#include <string>
#include <vector>

#include "document/document_support.h"
#include "shell/grown_tree.h"

using namespace folioscope;
using test::GrownTree;

namespace {

constexpr std::uint32_t kRoot = NodeStore::kRoot;

// Two pages in a document; the numbers of its nodes.
struct Pages : GrownTree {
    std::uint32_t document = Open("BDT"), first = Open(), nop = Leaf("one"), firstEnd = Close(), second = Open(),
                  secondEnd = Close(), end = Close("EDT");
};

bool HasColor(const QImage& image, const QRect& where, const QColor& color)
{
    for (int y = std::max(0, where.top()); y <= where.bottom() && y < image.height(); ++y)
        for (int x = std::max(0, where.left()); x <= where.right() && x < image.width(); ++x)
            if (image.pixelColor(x, y).rgb() == color.rgb()) return true;
    return false;
}

// Pictures of one colour each: 16 a step of red.
QIcon ColoredIcon(int image)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(QColor(16 * image, 200, 100));
    return QIcon(pixmap);
}

QColor ColorOf(int image) { return {16 * image, 200, 100}; }

struct View : FlyTree {
    explicit View(const StructureTree& tree, QSize size = {400, 300})
    {
        SetTree(&tree);
        resize(size);
        show();
    }
    QImage Image() { return viewport()->grab().toImage(); }
    bool InSight(std::uint32_t node) const { return viewport()->rect().contains(RowRect(node).center()); }
};

}  // namespace

class FlyTreeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void isEmptyWithoutATree()
    {
        FlyTree view;
        view.show();
        view.Refresh();
        view.Select(1);
        view.Expand(1);
        view.Collapse(1);
        view.ExpandSubtree(1);
        view.FullCollapse();
        QVERIFY(view.ExpandAll());
        QCOMPARE(view.Selected(), 0u);
        QCOMPARE(view.NodeAt({5, 5}), 0u);
        QCOMPARE(view.FullPath(1), std::string());
        QCOMPARE(view.ExtractNode("x"), 0u);
        QVERIFY(view.PlainText(1).isEmpty() && view.Description(1).isEmpty());
        QVERIFY(!view.grab().isNull());
    }

    void beginsWithTheClosedRoot()
    {
        Pages tree;
        View view(tree.tree);
        QCOMPARE(view.Rows().Rows(), 1u);
        QCOMPARE(view.Selected(), 0u);
        QVERIFY(!view.IsExpanded(kRoot));
    }

    void opensWhatASelectedNodeLiesIn()
    {
        Pages tree;
        View view(tree.tree);
        QSignalSpy selected(&view, &FlyTree::OnSelChange), expanded(&view, &FlyTree::expanded);
        view.Select(tree.nop);
        QCOMPARE(view.Selected(), tree.nop);
        QVERIFY(view.IsExpanded(kRoot) && view.IsExpanded(tree.document) && view.IsExpanded(tree.first));
        QVERIFY(!view.IsExpanded(tree.second));
        QVERIFY(view.InSight(tree.nop));
        QCOMPARE(selected.size(), 0);
        QList<quint32> told;
        for (const auto& arguments : expanded) told << arguments[0].toUInt();
        QCOMPARE(told, (QList<quint32>{kRoot, tree.document, tree.first}));
        view.Select(tree.Nodes().Size());
        QCOMPARE(view.Selected(), tree.nop);
        view.Select(0);
        QCOMPARE(view.Selected(), 0u);
    }

    void tellsOfFoldersThatItOpensAndCloses()
    {
        Pages tree;
        View view(tree.tree);
        QSignalSpy expanded(&view, &FlyTree::expanded), collapsed(&view, &FlyTree::collapsed);
        view.Expand(kRoot);
        view.Expand(kRoot);
        view.Expand(tree.nop);
        QCOMPARE(expanded.size(), 1);
        QCOMPARE(expanded[0][0].toUInt(), kRoot);
        view.Collapse(kRoot);
        view.Collapse(kRoot);
        QCOMPARE(collapsed.size(), 1);
        view.ExpandSubtree(tree.document);
        QCOMPARE(expanded.size(), 2);
        QVERIFY(view.IsExpanded(tree.second));
        QVERIFY(!view.IsExpanded(kRoot));
    }

    void movesASelectionThatIsFoldedAway()
    {
        Pages tree;
        View view(tree.tree);
        view.Select(tree.nop);
        QSignalSpy selected(&view, &FlyTree::OnSelChange);
        view.Collapse(tree.second);
        QCOMPARE(selected.size(), 0);
        view.Collapse(tree.document);
        QCOMPARE(view.Selected(), tree.document);
        QCOMPARE(selected.size(), 1);
        QCOMPARE(selected[0][0].toUInt(), tree.document);
        view.FullCollapse();
        QCOMPARE(view.Selected(), kRoot);
        QCOMPARE(selected.back()[0].toUInt(), kRoot);
        QCOMPARE(view.Rows().Rows(), 1u);
        view.FullCollapse();
        QCOMPARE(selected.size(), 2);
    }

    void opensAllFolders()
    {
        std::mt19937 random(1);
        GrownTree tree;
        tree.AddAtRandom(random, 3000);
        View view(tree.tree);
        QSignalSpy expanded(&view, &FlyTree::expanded);
        QVERIFY(view.ExpandAll());
        QCOMPARE(view.Rows().Rows(), tree.Nodes().Size() - 1);
        QCOMPARE(expanded.size(), 0);
    }

    void stopsOpeningWhenItIsTold()
    {
        std::mt19937 random(1);
        GrownTree tree;
        tree.AddAtRandom(random, 100'000);
        View view(tree.tree);
        int calls = 0;
        QVERIFY(!view.ExpandAll([&] { return ++calls < 2; }));
        QCOMPARE(calls, 2);
        QVERIFY(view.Rows().Rows() > 1000);
        QVERIFY(view.Rows().Rows() < tree.Nodes().Size() - 1);
        view.Expand(kRoot);
        view.Select(tree.Nodes().Size() - 1);
        QVERIFY(view.InSight(tree.Nodes().Size() - 1));
        calls = 0;
        QVERIFY(view.ExpandAll([&] { return ++calls > 0; }));
        QVERIFY(calls >= 5);
        QCOMPARE(view.Rows().Rows(), tree.Nodes().Size() - 1);
    }

    void bearsAnythingWhileItOpensAllFolders()
    {
        std::mt19937 random(2);
        GrownTree tree, other;
        tree.AddAtRandom(random, 100'000);
        other.Leaf();
        auto view = std::make_unique<View>(tree.tree);
        QVERIFY(view->ExpandAll([&] {
            view->Collapse(kRoot);
            view->Expand(kRoot);
            view->verticalScrollBar()->setValue(view->verticalScrollBar()->maximum());
            QApplication::processEvents();
            return true;
        }));
        QVERIFY(!view->ExpandAll([&] {
            view->SetTree(&other.tree);
            return true;
        }));
        QCOMPARE(view->Rows().Rows(), 1u);
        view->SetTree(&tree.tree);
        QVERIFY(!view->ExpandAll([&] {
            view.reset();
            return true;
        }));
    }

    // What the user looks at stays where it is while rows come above it.
    void keepsTheFirstRowInSight()
    {
        GrownTree tree;
        for (int page = 0; page < 200; ++page) {
            tree.Open();
            tree.Leaf();
            tree.Close();
        }
        View view(tree.tree);
        view.Expand(kRoot);
        view.verticalScrollBar()->setValue(100);
        const std::uint32_t top = view.NodeAt({50, 1});
        QVERIFY(view.ExpandAll());
        QCOMPARE(view.NodeAt({50, 1}), top);
        view.Collapse(2);
        QCOMPARE(view.NodeAt({50, 1}), top);
    }

    void aSelectedRowWithTheKeyboardShowsItsIconForThat()
    {
        Pages tree;
        View view(tree.tree);
        const auto pixmap = [](const QColor& color) {
            QPixmap filled(16, 16);
            filled.fill(color);
            return filled;
        };
        view.SetIcons([&](int) {
            QIcon icon(pixmap(Qt::cyan));
            icon.addPixmap(pixmap(Qt::magenta), QIcon::Selected);
            return icon;
        });
        view.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&view));
        view.setFocus();
        view.Select(kRoot);
        QVERIFY(HasColor(view.Image(), view.RowRect(kRoot), Qt::magenta));
        view.clearFocus();
        QVERIFY(!HasColor(view.Image(), view.RowRect(kRoot), Qt::magenta));
        QVERIFY(HasColor(view.Image(), view.RowRect(kRoot), Qt::cyan));
    }

    void keepsTheSelectedRowInSight()
    {
        std::mt19937 random(9);
        GrownTree tree;
        tree.AddAtRandom(random, 60'000);
        View view(tree.tree);
        view.Expand(kRoot);
        std::uint32_t selected = view.NodeAt(view.RowRect(kRoot).center() + QPoint(0, view.viewport()->height() / 2));
        view.Select(selected);
        QVERIFY(view.ExpandAll());
        QVERIFY(view.InSight(selected));
        view.FullCollapse();
        view.Expand(kRoot);
        view.Select(selected);
        QVERIFY(view.ExpandAll([] { return true; }));
        QVERIFY(view.InSight(selected));
        // One that was out of sight stays there.
        view.verticalScrollBar()->setValue(view.verticalScrollBar()->maximum());
        const std::uint32_t top = view.NodeAt({1, 1});
        view.Collapse(kRoot + 1);
        QVERIFY(view.ExpandAll([] { return true; }));
        QCOMPARE(view.NodeAt({1, 1}), top);
    }

    void followsARun()
    {
        test::AfpFile file;
        file.Add("BDT", test::Ebcdic8("DOC"));
        for (int page = 0; page < 40; ++page) {
            file.Add("BPG", test::Ebcdic8("P"));
            for (int i = 0; i < 60; ++i) file.Add("NOP", test::Ebcdic(std::string(100, 'A')));
            file.Add("EPG", test::Ebcdic8("P"));
        }
        file.Add("EDT", test::Ebcdic8("DOC"));
        test::TestDocument document(file.Content());
        FlyTree view;
        view.resize(400, 300);
        view.show();
        std::vector<std::uint32_t> rows;
        document.host.onGiveWay = [&] {
            if (view.Tree() == nullptr) {
                view.SetTree(&document.Tree());
                view.ExpandAll();
                view.Select(kRoot + 1);
            } else {
                view.Refresh();
            }
            QCOMPARE(view.Rows().Known(), document.Tree().Nodes().Size());
            QVERIFY(!view.grab().isNull());
            rows.push_back(view.Rows().Rows());
        };
        QVERIFY(document.Run());
        view.Refresh();
        QVERIFY(rows.size() >= 3);
        for (std::size_t i = 1; i < rows.size(); ++i) QVERIFY(rows[i] > rows[i - 1]);
        // The document was open, so its pages came as rows; the pages themselves are closed but for those that were
        // opened.
        std::uint32_t expected = 0;
        for (std::uint32_t node = kRoot; node < view.Rows().Known(); ++node) {
            bool seen = true;
            for (std::uint32_t at = document.Tree().Nodes()[node].parent; at != 0;
                 at = document.Tree().Nodes()[at].parent)
                seen = seen && view.IsExpanded(at);
            expected += seen;
            QCOMPARE(view.Rows().IsVisible(node), seen);
        }
        QCOMPARE(view.Rows().Rows(), expected);
        view.Select(document.Tree().Nodes().Size() - 1);
        QVERIFY(view.viewport()->rect().contains(view.RowRect(view.Selected())));
    }

    void growsWhenItIsRefreshed()
    {
        GrownTree tree;
        tree.Open();
        View view(tree.tree);
        view.Expand(kRoot);
        QCOMPARE(view.Rows().Rows(), 2u);
        tree.Close();
        for (int i = 0; i < 100; ++i) tree.Leaf();
        QVERIFY(!view.grab().isNull());
        QCOMPARE(view.Rows().Rows(), 2u);
        view.Refresh();
        QCOMPARE(view.Rows().Rows(), 102u);
        QVERIFY(view.verticalScrollBar()->maximum() > 50);
        view.Select(tree.Nodes().Size() - 1);
        QVERIFY(view.InSight(tree.Nodes().Size() - 1));
    }

    void forgetsATreeForAnother()
    {
        Pages tree;
        GrownTree other;
        other.Leaf();
        View view(tree.tree);
        view.Select(tree.nop);
        QSignalSpy selected(&view, &FlyTree::OnSelChange);
        view.SetTree(&other.tree);
        QCOMPARE(view.Selected(), 0u);
        QCOMPARE(view.Rows().Rows(), 1u);
        view.Clear();
        QCOMPARE(view.Rows().Rows(), 0u);
        QCOMPARE(selected.size(), 0);
        QVERIFY(!view.grab().isNull());
    }

    void bringsAnyRowIntoView()
    {
        GrownTree tree;
        for (int i = 0; i < 1000; ++i) tree.Leaf();
        View view(tree.tree);
        std::mt19937 random(4);
        view.Expand(kRoot);
        for (int i = 0; i < 100; ++i) {
            const auto node = static_cast<std::uint32_t>(1 + random() % 1001);
            view.Select(node);
            QVERIFY(view.viewport()->rect().contains(view.RowRect(node)));
            QCOMPARE(view.NodeAt(view.RowRect(node).center()), node);
        }
        // A neighbour of what is seen moves the rows no further than it must.
        view.Select(500);
        const int top = view.verticalScrollBar()->value();
        view.Select(501);
        QCOMPARE(view.verticalScrollBar()->value(), top);
    }

    void bringsADeepRowIntoView()
    {
        GrownTree tree;
        std::uint32_t deepest = 0;
        for (int i = 0; i < 10'000; ++i) deepest = tree.Open();
        View view(tree.tree);
        view.Select(deepest);
        QVERIFY(view.InSight(deepest));
        const QRect arrow = view.ArrowRect(deepest);
        QVERIFY(arrow.left() >= 0 && arrow.right() < view.viewport()->width());
        QVERIFY(!view.Image().isNull());
        view.Select(kRoot);
        QCOMPARE(view.horizontalScrollBar()->value(), 0);
    }

    void bringsARowIntoViewThatWasSelectedBeforeItWasShown()
    {
        GrownTree tree;
        for (int i = 0; i < 1000; ++i) tree.Leaf();
        FlyTree view;
        view.SetTree(&tree.tree);
        view.Select(600);
        view.resize(300, 200);
        view.show();
        QVERIFY(view.viewport()->rect().contains(view.RowRect(600)));
    }

    void scrollsToTheEndOfALongText()
    {
        GrownTree tree;
        tree.Leaf(std::string(3000, 'M'));
        View view(tree.tree);
        QCOMPARE(view.horizontalScrollBar()->maximum(), 0);
        view.Expand(kRoot);
        QVERIFY(view.horizontalScrollBar()->maximum() > 3000);
        const QRect row = view.RowRect(2);
        view.horizontalScrollBar()->setValue(view.horizontalScrollBar()->maximum());
        const QImage image = view.Image();
        const QColor base = view.palette().color(QPalette::Base);
        bool drawn = false;
        for (int x = row.right() - 40; x <= row.right(); ++x)
            drawn = drawn || image.pixelColor(x, row.center().y()).rgb() != base.rgb();
        QVERIFY(drawn);
    }

    void doesNotMoveSidewaysForALongText()
    {
        GrownTree tree;
        const std::uint32_t leaf = tree.Leaf(std::string(3000, 'M'));
        View view(tree.tree);
        view.Select(leaf);
        QCOMPARE(view.horizontalScrollBar()->value(), 0);
    }

    void needsNoMoreRoomThanItsRowsOnceADeepFolderIsClosed()
    {
        GrownTree tree;
        std::uint32_t deepest = 0;
        for (int i = 0; i < 200; ++i) deepest = tree.Open();
        View view(tree.tree);
        view.Select(deepest);
        QVERIFY(view.horizontalScrollBar()->maximum() > 1000);
        view.Select(kRoot);
        view.Collapse(kRoot);
        QCOMPARE(view.horizontalScrollBar()->maximum(), 0);
    }

    void showsTheImagesOfOpenAndClosedFolders()
    {
        Pages tree;
        View view(tree.tree);
        view.SetIcons(ColoredIcon);
        QVERIFY(HasColor(view.Image(), view.RowRect(kRoot), ColorOf(0)));
        view.Expand(kRoot);
        QVERIFY(HasColor(view.Image(), view.RowRect(kRoot), ColorOf(1)));
        QVERIFY(!HasColor(view.Image(), view.RowRect(kRoot), ColorOf(0)));
        view.ExpandAll();
        const QImage image = view.Image();
        QVERIFY(HasColor(image, view.RowRect(tree.document), ColorOf(10)));
        QVERIFY(HasColor(image, view.RowRect(tree.first), ColorOf(11)));
        QVERIFY(HasColor(image, view.RowRect(tree.nop), ColorOf(2)));
        view.Select(tree.first);
        QVERIFY(HasColor(view.Image(), view.RowRect(tree.first), ColorOf(11)));
        view.Collapse(kRoot);
        QVERIFY(HasColor(view.Image(), view.RowRect(kRoot), ColorOf(0)));
    }

    void drawsAMarkBeforeTheTextOfARedNode()
    {
        Pages plain, faulty;
        faulty.tree.Revisit(faulty.nop, true);
        faulty.tree.MarkNodeInvalid();
        const QColor red(0xD0, 0, 0);
        View one(plain.tree), other(faulty.tree);
        one.ExpandAll();
        other.ExpandAll();
        QVERIFY(!HasColor(one.Image(), one.viewport()->rect(), red));
        const QImage image = other.Image();
        for (const std::uint32_t node : {kRoot, faulty.document, faulty.first, faulty.nop})
            QVERIFY(HasColor(image, other.RowRect(node), red));
        for (const std::uint32_t node : {faulty.second, faulty.end, faulty.nop + 1})
            QVERIFY(!HasColor(image, other.RowRect(node), red));
        QCOMPARE(other.PlainText(faulty.first), one.PlainText(plain.first));
        QVERIFY(other.Description(faulty.nop).contains(QStringLiteral("contains errors")));
        QVERIFY(!other.Description(faulty.second).contains(QStringLiteral("contains errors")));
    }

    void paintsTheSelectedRowInThePalettesColours()
    {
        Pages tree;
        View view(tree.tree);
        QPalette palette = view.palette();
        for (const auto group : {QPalette::Active, QPalette::Inactive}) {
            palette.setColor(group, QPalette::Base, Qt::black);
            palette.setColor(group, QPalette::Text, Qt::white);
            palette.setColor(group, QPalette::Highlight, QColor(0, 80, 0));
        }
        view.setPalette(palette);
        view.ExpandAll();
        view.Select(tree.first);
        const auto ground = [&view](std::uint32_t node) {
            return view.Image().pixelColor(view.RowRect(node).right() - 3, view.RowRect(node).center().y());
        };
        view.activateWindow();
        view.setFocus();
        QVERIFY(QTest::qWaitForWindowActive(&view));
        QVERIFY(std::abs(ground(tree.first).green() - 80) < 5);  // the frame of the focus lies over it
        QCOMPARE(ground(tree.nop), QColor(Qt::black));
        view.clearFocus();
        QVERIFY(ground(tree.first).green() > 0 && ground(tree.first).green() < 60);
    }

    void joinsPathsByItsSeparator()
    {
        Pages tree;
        View view(tree.tree);
        view.setProperty("ItemSeparator", QStringLiteral("^"));
        QCOMPARE(view.ItemSeparator(), QStringLiteral("^"));
        const std::string path = view.FullPath(tree.nop);
        QCOMPARE(path, tree.tree.NodeText(kRoot) + "^" + tree.tree.NodeText(tree.document) + "^" +
                           tree.tree.NodeText(tree.first) + "^NOP: one");
        QCOMPARE(view.ExtractNode(path), tree.nop);
        QCOMPARE(view.ExtractNode(path.substr(0, path.find(' '))), 0u);
    }

    void describesTheLevelInTheUsersLanguage()
    {
        Pages tree;
        View view(tree.tree);
        QCOMPARE(view.Description(kRoot), QStringLiteral("Level 1"));
        QCOMPARE(view.Description(tree.nop), QStringLiteral("Level 4"));
        view.SetLabels(Labels(Language::German));
        QCOMPARE(view.Description(tree.nop), QStringLiteral("Ebene 4"));
    }

    void laysItsRowsOutAnewForAnotherFont()
    {
        Pages tree;
        View view(tree.tree);
        view.ExpandAll();
        const int before = view.RowRect(kRoot).height();
        QFont font = view.font();
        font.setPointSize(3 * font.pointSize());
        view.setFont(font);
        QVERIFY(view.RowRect(kRoot).height() > before);
        QCOMPARE(view.RowRect(tree.document).top(), view.RowRect(kRoot).height());
    }
};

QTEST_MAIN(FlyTreeTest)
#include "fly_tree_test.moc"
