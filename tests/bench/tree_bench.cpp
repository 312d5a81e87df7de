// Opens, closes, selects and paints in the tree of the document window, and tells what it took:
//
//   tree_bench [NODES]
//
// Three trees: pages of 40 records, one folder of an eighth as many records, and folders within one another 10,000
// deep. One line for each step goes to standard output: seconds, and the anonymous memory that it added.

#include <QApplication>
#include <QScrollBar>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <random>
#include <string>

#include "analysis/decode/dispatch.h"
#include "document/structure_tree.h"
#include "shell/fly_tree.h"

namespace {

using namespace folioscope;

long AnonymousBytes()
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("RssAnon:")) return std::stol(line.substr(8)) * 1024;
    return 0;
}

void Measure(const char* step, const std::function<void()>& work)
{
    const long before = AnonymousBytes();
    const auto start = std::chrono::steady_clock::now();
    work();
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    std::printf("  %-34s %9.4f s %8.1f MB\n", step, took.count(), static_cast<double>(AnonymousBytes() - before) / 1e6);
}

struct Tree {
    Tree() : tree(settings, Labels(Language::English), Labels(Language::English), messages, listener)
    {
        tree.AddRoot("bench.afp", "");
    }
    void Add(const char* name, Status status)
    {
        std::size_t field = 0;
        while (field < kFieldCount && Fields()[field].NodeText != name) ++field;
        tree.AddNodes(status, field);
        tree.SetNodeText(name);
        tree.CloseFolder(status);
    }
    void AddLeaves(std::uint32_t count)
    {
        std::size_t field = 0;
        while (field < kFieldCount && Fields()[field].NodeText != "PTX") ++field;
        for (std::uint32_t i = 0; i < count; ++i) tree.AddNodes(kRecord, field);
    }

    Settings settings;
    MessageList messages;
    TreeListener listener;
    StructureTree tree;
};

// The slowest of a hundred jumps to a node anywhere, each painted.
void SelectAndPaint(FlyTree& view, std::uint32_t nodes)
{
    std::mt19937 random(1);
    double slowest = 0;
    for (int i = 0; i < 100; ++i) {
        const auto start = std::chrono::steady_clock::now();
        view.Select(static_cast<std::uint32_t>(1 + random() % (nodes - 1)));
        view.repaint();
        const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
        slowest = std::max(slowest, took.count());
    }
    std::printf("  %-34s %9.4f s\n", "select and paint, slowest of 100", slowest);
}

void Bench(const char* what, const Tree& tree)
{
    const std::uint32_t nodes = tree.tree.Nodes().Size();
    std::printf("%s: %u nodes\n", what, nodes - 1);
    FlyTree view;
    view.resize(500, 900);
    view.show();
    QApplication::processEvents();
    const auto giveWay = [] {
        QApplication::processEvents();
        return true;
    };
    Measure("set the tree", [&] { view.SetTree(&tree.tree); });
    Measure("expand all", [&] { view.ExpandAll(); });
    std::printf("  rows %u\n", view.Rows().Rows());
    Measure("collapse all", [&] { view.FullCollapse(); });
    Measure("expand all, giving way", [&] { view.ExpandAll(giveWay); });
    SelectAndPaint(view, nodes);
    Measure("scroll to the end", [&] {
        view.verticalScrollBar()->setValue(view.verticalScrollBar()->maximum());
        view.repaint();
    });
    Measure("collapse the root", [&] { view.Collapse(1); });
    Measure("expand the root again", [&] { view.Expand(1); });
    Measure("refresh without news", [&] { view.Refresh(); });
    Measure("collapse all", [&] { view.FullCollapse(); });
    SelectAndPaint(view, nodes);
}

}  // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const std::uint32_t nodes = argc > 1 ? static_cast<std::uint32_t>(std::strtoul(argv[1], nullptr, 10)) : 8'000'000;
    {
        Tree pages;
        while (pages.tree.Nodes().Size() < nodes) {
            pages.Add("BPG", kBegin);
            pages.AddLeaves(37);
            pages.Add("EPG", kEnd);
        }
        Bench("pages", pages);
    }
    {
        Tree folder;
        folder.Add("BDT", kBegin);
        folder.AddLeaves(nodes / 8);
        folder.Add("EDT", kEnd);
        Bench("one folder", folder);
    }
    Tree deep;
    for (int i = 0; i < 10'000; ++i) deep.Add("BPT", kBegin);
    Bench("depth", deep);
    return 0;
}
