// Runs a file in the main window, works with it there, and tells what a user would have to wait for:
//
//   window_bench PAIRS FILE SMALLER TEXTS
//
// FILE is run, in the window and without one in turn, so many pairs of times. SMALLER is dumped and searched. TEXTS
// holds records with texts as long as they can be. Each figure is a line of standard output: its name, the figure, its
// unit. Run it with QT_QPA_PLATFORM=offscreen.

#include <QApplication>
#include <QMessageBox>
#include <QPaintEvent>
#include <QTimer>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "shell/fly_tree.h"
#include "shell/frmMainWindow.h"
#include "shell/frmParserWindow.h"
#include "shell/icons.h"
#include "shell/property_pane.h"

namespace {

using namespace folioscope;
using Clock = std::chrono::steady_clock;

constexpr char kNowhere[] = "A TERM THAT STANDS NOWHERE IN THE FILE";
constexpr auto kKnockEvery = std::chrono::milliseconds(5);
constexpr int kSelections = 200;

double Since(Clock::time_point start) { return std::chrono::duration<double>(Clock::now() - start).count(); }

double At(std::vector<double> values, double share)
{
    if (values.empty()) return 0;
    std::sort(values.begin(), values.end());
    return values[std::min(values.size() - 1, static_cast<std::size_t>(share * static_cast<double>(values.size())))];
}

void Tell(const std::string& name, double figure, const char* unit)
{
    std::printf("%s %.6f %s\n", name.c_str(), figure, unit);
    std::fflush(stdout);
}

// ------------------------------------------------------------------------------------------------- what a user waits

// Another thread knocks every few milliseconds; how long each knock waits for an answer is what a key press would wait.
class Knocker final : public QObject {
public:
    Knocker() : thread_([this] { Knock(); }) {}
    ~Knocker() override
    {
        ends_ = true;
        thread_.join();
    }
    void Forget() { waits_.clear(), start_ = Clock::now(); }
    const std::vector<double>& Waits() const { return waits_; }  // seconds, of knocks since the last Forget

    bool event(QEvent* event) override
    {
        if (event->type() != kKnock) return QObject::event(event);
        const auto sent = static_cast<const Sent*>(event)->at;
        if (sent >= start_) waits_.push_back(Since(sent));
        return true;
    }

private:
    static constexpr auto kKnock = static_cast<QEvent::Type>(QEvent::User + 1);
    struct Sent final : QEvent {
        Sent() : QEvent(kKnock), at(Clock::now()) {}
        Clock::time_point at;
    };
    void Knock()
    {
        while (!ends_) {
            QCoreApplication::postEvent(this, new Sent);
            std::this_thread::sleep_for(kKnockEvery);
        }
    }

    Clock::time_point start_ = Clock::now();
    std::vector<double> waits_;
    std::atomic<bool> ends_ = false;
    std::thread thread_;
};

// Answers each message box as soon as it stands there, and keeps the moments at which things were painted.
class Watcher final : public QObject {
public:
    void Forget() { window = rows = {}; }
    Clock::time_point window, rows;  // the first painting of a document window, and of a tree that has rows

    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::Show)
            if (auto* const box = qobject_cast<QMessageBox*>(object); box != nullptr)
                QTimer::singleShot(0, box, &QDialog::accept);
        if (event->type() == QEvent::Paint) Painted(object);
        return false;
    }

private:
    void Painted(QObject* object)
    {
        if (window == Clock::time_point() && qobject_cast<frmParserWindow*>(object) != nullptr) window = Clock::now();
        const auto* const tree = qobject_cast<FlyTree*>(object->parent());
        if (rows == Clock::time_point() && tree != nullptr && tree->Rows().Rows() > 0) rows = Clock::now();
    }
};

// ------------------------------------------------------------------------------------------------------ measurements

struct Window {
    explicit Window(const std::string& path)
    {
        state.store = clsSillyFunctions(std::string());  // nothing is kept
        state.settings.MessageWindow = 0;
        frame = std::make_unique<frmMainWindow>(state);
        frame->resize(1200, 900);
        frame->show();
        QApplication::processEvents();
        const auto start = Clock::now();
        frame->ProcessFile(QString::fromStdString(path));
        seconds = Since(start);
    }
    frmParserWindow& Document() const { return *frame->ActiveDocument(); }
    FlyTree& Tree() const { return *frame->findChild<FlyTree*>("flyTreeStructure"); }

    ShellState state;
    std::unique_ptr<frmMainWindow> frame;
    double seconds = 0;
};

double HeadlessRun(const std::string& path)
{
    MessageList messages;
    RunHost host;
    const auto start = Clock::now();
    Document document(Settings(), NumberStyle(), messages, host);
    if (!document.ProcessAFPFile(path)) std::exit(3);
    return Since(start);
}

void MeasureRuns(const std::string& path, int pairs)
{
    std::vector<double> window, headless, ratios;
    for (int i = 0; i < pairs; ++i) {
        headless.push_back(HeadlessRun(path));
        window.push_back(Window(path).seconds);
        ratios.push_back(window.back() / headless.back());
    }
    Tell("run-headless", At(headless, 0.5), "s");
    Tell("run-window", At(window, 0.5), "s");
    Tell("run-ratio", At(ratios, 0.5), "times");
}

void MeasureWait(Knocker& knocker, const std::string& name, const std::function<void()>& work)
{
    QApplication::processEvents();
    knocker.Forget();
    const auto start = Clock::now();
    work();
    const double took = Since(start);
    QApplication::processEvents();
    Tell(name + "-took", took, "s");
    Tell(name + "-wait-99", At(knocker.Waits(), 0.99), "s");
    Tell(name + "-wait", At(knocker.Waits(), 1), "s");
}

void MeasureRunAndExpansion(const std::string& path, Watcher& watcher)
{
    Knocker knocker;
    std::unique_ptr<Window> window;
    watcher.Forget();
    MeasureWait(knocker, "run", [&] { window = std::make_unique<Window>(path); });
    Tell("first-rows", std::chrono::duration<double>(watcher.rows - watcher.window).count(), "s");
    MeasureWait(knocker, "expand", [&] { window->Document().ExpandAll(); });
}

// The first search reads what the run left for later; the next one finds it read.
void MeasureSearchesAndDump(const std::string& path)
{
    Knocker knocker;
    Window window(path);
    window.state.find.strSearch = kNowhere;
    MeasureWait(knocker, "find-unread", [&] { window.Document().FindNext(); });
    MeasureWait(knocker, "find-read", [&] { window.Document().FindNext(); });
    MeasureWait(knocker, "dump", [&] { window.Document().SaveDump("/dev/null"); });
}

// From the key press to the painted panes, for records of the first pages.
void MeasureSelections(const std::string& name, const std::string& path)
{
    const Window window(path);
    FlyTree& tree = window.Tree();
    auto* const pane = window.frame->findChild<PropertyPane*>("txtProperties");
    tree.ExpandAll();
    QApplication::processEvents();
    std::vector<double> times;
    int longest = 0;
    for (std::uint32_t node = 2; node < tree.Tree()->Nodes().Size() && times.size() < kSelections; ++node) {
        if (tree.Tree()->Nodes()[node].folder) continue;
        const auto start = Clock::now();
        tree.SelectByUser(node);
        tree.viewport()->repaint();
        pane->viewport()->repaint();
        times.push_back(Since(start));
        longest = std::max(longest, pane->document()->characterCount());
    }
    Tell("select-" + name + "-characters", longest, "characters");
    Tell("select-" + name, At(times, 0.5), "s");
    Tell("select-" + name + "-worst", At(times, 1), "s");
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 5) {
        std::fprintf(stderr, "usage: window_bench PAIRS FILE SMALLER TEXTS\n");
        return 2;
    }
    QApplication application(argc, argv);
    InitResources();
    Watcher watcher;
    application.installEventFilter(&watcher);
    MeasureRunAndExpansion(argv[2], watcher);
    MeasureSearchesAndDump(argv[3]);
    application.removeEventFilter(&watcher);
    MeasureRuns(argv[2], std::atoi(argv[1]));
    MeasureSelections("usual", argv[3]);
    MeasureSelections("longest", argv[4]);
    return 0;
}
