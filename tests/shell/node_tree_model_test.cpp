#include "shell/node_tree_model.h"

#include <QAbstractItemModelTester>
#include <QPixmap>
#include <QSignalSpy>
#include <QTest>

#include <functional>
#include <memory>
#include <random>

#include "document/document_support.h"
#include "shell/grown_tree.h"

using namespace folioscope;
using test::AfpFile;
using test::Analyse;
using test::Ebcdic8;
using test::GrownTree;

namespace {

constexpr std::uint32_t kRoot = NodeStore::kRoot;
// A tester lists children from within a reset, so it is made when the tree is set.
constexpr auto kReport = QAbstractItemModelTester::FailureReportingMode::QtTest;

test::Bytes TwoPages()
{
    return AfpFile()
        .Add("BDT", Ebcdic8("DOC"))
        .Add("BPG", Ebcdic8("P1"))
        .Add("NOP", test::Ebcdic("HELLO"))
        .Add("EPG", Ebcdic8("P1"))
        .Add("BPG", Ebcdic8("P2"))
        .Add("EPG", Ebcdic8("P2"))
        .Add("EDT", Ebcdic8("DOC"))
        .Content();
}

void FetchAll(NodeTreeModel& model, const QModelIndex& parent)
{
    while (model.canFetchMore(parent)) model.fetchMore(parent);
    for (int row = 0; row < model.rowCount(parent); ++row) FetchAll(model, model.index(row, 0, parent));
}

// All that the model says of a subtree that was listed whole, against the tree's own.
void Compare(const NodeTreeModel& model, const StructureTree& tree, const QModelIndex& index)
{
    const std::uint32_t node = model.NodeOf(index);
    const NodeStore& nodes = tree.Nodes();
    QCOMPARE(index.data().toString().toStdString(), std::string(WithoutTags(tree.NodeText(node))));
    QCOMPARE(index.data(Qt::AccessibleTextRole).toString(), index.data().toString());
    QCOMPARE(index.data(NodeTreeModel::kTaggedText).toString().toStdString(), tree.NodeText(node));
    QCOMPARE(index.data(NodeTreeModel::kNodeNumber).toUInt(), node);
    QCOMPARE(index.data(NodeTreeModel::kRed).toBool(), bool(nodes[node].red));
    QCOMPARE(model.hasChildren(index), nodes.HasChildren(node));
    int row = 0;
    nodes.ForEachChild(node, [&](std::uint32_t child) {
        const QModelIndex at = model.index(row, 0, index);
        QCOMPARE(model.NodeOf(at), child);
        QCOMPARE(model.parent(at), index);
        QCOMPARE(at.row(), row);
        ++row;
        Compare(model, tree, at);
    });
    QCOMPARE(model.rowCount(index), row);
}

}  // namespace

class NodeTreeModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void isEmptyWithoutATree()
    {
        NodeTreeModel model;
        const QAbstractItemModelTester tester(&model, kReport);
        QCOMPARE(model.rowCount(), 0);
        QVERIFY(!model.IndexOf(1).isValid());
        model.Refresh();
        model.SetTree(nullptr);
        QCOMPARE(model.rowCount(), 0);
    }

    void isTheTreeOfADocument_data()
    {
        QTest::addColumn<QByteArray>("content");
        const auto row = [](const char* name, const test::Bytes& bytes) {
            QTest::newRow(name) << QByteArray::fromStdString(bytes);
        };
        row("empty", {});
        row("pages", TwoPages());
        row("no folders", AfpFile().Add("NOP").Add("NOP").Content());
        row("cut", AfpFile().Add("BDT").Add("BPG").Add("NOP").Content());
        row("red", AfpFile().Add("BDT").Add("EPG").Add("NOP").Content());
        row("end alone", AfpFile().Add("EDT").Add("EDT").Content());
    }
    void isTheTreeOfADocument()
    {
        QFETCH(QByteArray, content);
        const auto document = Analyse(content.toStdString());
        NodeTreeModel model;
        model.SetTree(&document->Tree());
        const QAbstractItemModelTester tester(&model, kReport);
        QCOMPARE(model.rowCount(), 1);
        FetchAll(model, model.index(0, 0));
        Compare(model, document->Tree(), model.index(0, 0));
    }

    void listsNothingBeforeItIsAsked()
    {
        const auto document = Analyse(TwoPages());
        NodeTreeModel model;
        model.SetTree(&document->Tree());
        const QModelIndex root = model.index(0, 0);
        QCOMPARE(model.rowCount(root), 0);
        QVERIFY(model.hasChildren(root) && model.canFetchMore(root));
        model.fetchMore(root);
        QCOMPARE(model.rowCount(root), 1);
        QVERIFY(!model.canFetchMore(root));
        QCOMPARE(model.rowCount(model.index(0, 0, root)), 0);
    }

    void handsOnManyChildrenInSlices()
    {
        GrownTree tree;
        constexpr int kLeaves = 10'000;
        for (int i = 0; i < kLeaves; ++i) tree.Leaf();
        NodeTreeModel model;
        model.SetTree(&tree.tree);
        const QModelIndex root = model.index(0, 0);
        QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
        model.fetchMore(root);
        QVERIFY(model.rowCount(root) > 0);
        QVERIFY(model.rowCount(root) < kLeaves);
        QVERIFY(model.canFetchMore(root));
        FetchAll(model, root);
        QCOMPARE(model.rowCount(root), kLeaves);
        QVERIFY(inserted.size() > 1);
        QCOMPARE(inserted.back()[2].toInt(), kLeaves - 1);
    }

    void leadsToANodeThatWasNotListed()
    {
        const auto document = Analyse(TwoPages());
        NodeTreeModel model;
        model.SetTree(&document->Tree());
        const QAbstractItemModelTester tester(&model, kReport);
        const std::uint32_t nop = document->Find("NOP");
        const QModelIndex index = model.IndexOf(nop);
        QVERIFY(index.isValid());
        QCOMPARE(model.NodeOf(index), nop);
        QCOMPARE(index.data().toString(), QStringLiteral("NOP: HELLO"));
        QCOMPARE(model.NodeOf(index.parent()), document->Tree().Nodes()[nop].parent);
        QVERIFY(!model.IndexOf(0).isValid());
        QVERIFY(!model.IndexOf(document->Tree().Nodes().Size()).isValid());
        QCOMPARE(model.IndexOf(kRoot), model.index(0, 0));
    }

    void decoratesByTheImage()
    {
        std::vector<int> asked;
        const auto document = Analyse(TwoPages());
        NodeTreeModel model([&](int image) {
            asked.push_back(image);
            QPixmap pixmap(16, 16);
            pixmap.fill(Qt::black);
            return QIcon(pixmap);
        });
        model.SetTree(&document->Tree());
        QVERIFY(!model.index(0, 0).data(Qt::DecorationRole).value<QIcon>().isNull());
        model.IndexOf(document->Find("BPG")).data(Qt::DecorationRole);
        model.IndexOf(document->Find("BPG")).parent().data(Qt::DecorationRole);
        model.IndexOf(document->Find("BDT")).parent().data(Qt::DecorationRole);
        QCOMPARE(asked, (std::vector<int>{0, 2, 11, 10}));
    }

    // The run gives way now and then; all that was listed to its end grows along.
    void growsWithTheRun()
    {
        std::mt19937 random(5);
        GrownTree tree;
        tree.Leaf();
        NodeTreeModel model;
        model.SetTree(&tree.tree);
        const QAbstractItemModelTester tester(&model, kReport);
        FetchAll(model, model.index(0, 0));
        for (int step = 0; step < 40; ++step) {
            tree.AddAtRandom(random, 20);
            if (step % 3 == 0) tree.tree.MarkNodeInvalid();
            model.Refresh();
            if (step % 2 == 0) FetchAll(model, model.index(0, 0));
        }
        model.Refresh();
        FetchAll(model, model.index(0, 0));
        Compare(model, tree.tree, model.index(0, 0));
    }

    void growsBehindTheLastChildWithoutBeingAsked()
    {
        GrownTree tree;
        tree.Leaf();
        NodeTreeModel model;
        model.SetTree(&tree.tree);
        const QModelIndex root = model.index(0, 0);
        model.fetchMore(root);
        const std::uint32_t page = tree.Open();
        model.Refresh();
        QCOMPARE(model.rowCount(root), 2);
        QCOMPARE(model.NodeOf(model.index(1, 0, root)), page);
        tree.Close();
        const std::uint32_t leaf = tree.Leaf();
        model.Refresh();
        QCOMPARE(model.rowCount(root), 3);
        QCOMPARE(model.NodeOf(model.index(2, 0, root)), leaf);
    }

    void tellsOfANodeThatTurnedRed()
    {
        GrownTree tree;
        tree.Leaf();
        NodeTreeModel model;
        model.SetTree(&tree.tree);
        const QModelIndex root = model.index(0, 0);
        model.fetchMore(root);
        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        tree.tree.MarkNodeInvalid();
        model.Refresh();
        QList<quint32> told;
        for (const auto& arguments : changed) told << model.NodeOf(arguments[0].toModelIndex());
        QCOMPARE(told, (QList<quint32>{kRoot, 2}));
        QVERIFY(root.data(NodeTreeModel::kRed).toBool());
    }

    void getsItsRootWhenTheRunDoes()
    {
        Settings settings;
        MessageList messages;
        TreeListener listener;
        StructureTree tree(settings, Labels(Language::English), Labels(Language::English), messages, listener);
        NodeTreeModel model;
        const QAbstractItemModelTester tester(&model, kReport);
        model.SetTree(&tree);
        QCOMPARE(model.rowCount(), 0);
        tree.AddRoot("late.afp", "");
        model.Refresh();
        QCOMPARE(model.rowCount(), 1);
        QCOMPARE(model.index(0, 0).data().toString(), QStringLiteral("late.afp"));
    }

    void showsANewTreeFromItsRoot()
    {
        const auto one = Analyse(TwoPages()), other = Analyse(AfpFile().Add("NOP").Content());
        NodeTreeModel model;
        model.SetTree(&one->Tree());
        FetchAll(model, model.index(0, 0));
        model.SetTree(&other->Tree());
        QCOMPARE(model.rowCount(model.index(0, 0)), 0);
        const QAbstractItemModelTester tester(&model, kReport);
        FetchAll(model, model.index(0, 0));
        Compare(model, other->Tree(), model.index(0, 0));
    }
};

QTEST_MAIN(NodeTreeModelTest)
#include "node_tree_model_test.moc"
