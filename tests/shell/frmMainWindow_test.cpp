// The frame with real files: what can be chosen when, and what becomes of files, drops, dumps and second documents.

#include <QAction>
#include <QDir>
#include <QDropEvent>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTextEdit>
#include <QTimer>
#include <QToolBar>

#include <memory>

#include "shell/command_line.h"
#include "shell/divider.h"
#include "shell/fly_tree.h"
#include "shell/frmMainWindow.h"
#include "shell/frmParserWindow.h"
#include "shell/icons.h"
#include "shell/main_commands.h"
#include "support/afp_builder.h"
#include "support/temporary_file.h"
#include "support/window_checks.h"

namespace folioscope {
namespace {

using namespace test;

constexpr char kNoDocument[] = "mnuFileOpen mnuFileExit mnuExtrasOptions mnuHelpHelp mnuHelpWebsite mnuHelpAbout";

Bytes Letter()
{
    AfpFile file;
    file.Add("BDT", Ebcdic8("LETTER") + Zeros(2)).Add("BPG", Ebcdic8("PAGE0001"));
    file.Add("NOP", Ebcdic("made for Bern"));
    file.Add("PTX", Pieces("2BD3 10 DB 'Dear reader..' 02 F8"));
    return file.Add("EPG", Ebcdic8("PAGE0001")).Add("EDT", Ebcdic8("LETTER")).Content();
}

Bytes LongFile()
{
    constexpr int kRecords = 20'000;
    AfpFile file;
    file.Add("BDT", Ebcdic8("LONG") + Zeros(2));
    for (int i = 0; i < kRecords; ++i) file.Add("NOP", Ebcdic("one of many comments"));
    return file.Add("EDT", Ebcdic8("LONG")).Content();
}

// The next message box: remembers its text and answers it.
class Answer {
public:
    explicit Answer(QMessageBox::StandardButton button = QMessageBox::Ok)
    {
        timer_.callOnTimeout([this, button] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr) return;
            texts << box->text();
            box->button(button)->click();
        });
        timer_.start(5);
    }
    QStringList texts;

private:
    QTimer timer_;
};

}  // namespace

class FrmMainWindowTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { InitResources(); }
    void init();
    void cleanup() { window_.reset(), state_.reset(), folder_.reset(); }

    void withoutADocumentOffersLittle();
    void withADocumentOffersItsCommands();
    void showsTheDocumentThatItOpens();
    void keepsRecentFiles();
    void opensASecondDocumentInAnotherProcess();
    void reloadsInAnotherProcess();
    void theOtherProcessFindsAPathWithoutBlanks_data();
    void theOtherProcessFindsAPathWithoutBlanks();
    void aDropOpensEachFile();
    void closingADocumentEndsItsCommands();
    void aRunCanBeCancelled();
    void closingDuringARunStopsIt();
    void findsOneHitAfterAnother();
    void savesTheDumpBesideTheFile();
    void asksBeforeItReplacesADump();
    void expandsAndCollapsesTheTree();
    void aWindowThatIsNotMaximisedShowsItsPanes();
    void theStatusBarKeepsItsHeight();
    void dividersStayInTheirBounds();
    void tellsOfAFileThatIsNotThere();
    void extractsADumpWhenItWasStartedForThat();
    void tellsThatADumpCouldNotBeExtracted();
    void menusHaveNoTwoEqualAccessKeys_data();
    void menusHaveNoTwoEqualAccessKeys();
    void eachControlHasAnAccessibleName();

private:
    QString Enabled() const;
    QString File(std::string_view name, const Bytes& content) const;
    QAction* Command(const char* name) const { return window_->findChild<QAction*>(name); }
    FlyTree& Tree() const { return *window_->findChild<FlyTree*>("flyTreeStructure"); }
    QString Properties() const { return window_->findChild<QTextEdit*>("txtProperties")->toPlainText(); }
    void Show();

    std::unique_ptr<TemporaryFolder> folder_;
    std::unique_ptr<ShellState> state_;
    std::unique_ptr<frmMainWindow> window_;
    QList<QStringList> started_;
};

void FrmMainWindowTest::init()
{
    folder_ = std::make_unique<TemporaryFolder>();
    state_ = std::make_unique<ShellState>();
    state_->store = clsSillyFunctions(*folder_ / "registry.ini");
    state_->settings.MessageWindow = 0;
    Show();
}

void FrmMainWindowTest::Show()
{
    started_.clear();
    window_ = std::make_unique<frmMainWindow>(*state_);
    window_->SetProcessStarter([this](const QStringList& arguments) {
        started_ << arguments;
        return true;
    });
    window_->resize(1000, 700);
    window_->show();
}

QString FrmMainWindowTest::File(std::string_view name, const Bytes& content) const
{
    return QString::fromStdString(folder_->File(name, content));
}

QString FrmMainWindowTest::Enabled() const
{
    QStringList names;
    for (const MainCommand& row : MainCommands()) {
        const char* const name = row.item != nullptr ? row.item : row.button;
        if (name != nullptr && Command(name)->isEnabled()) names << name;
    }
    return names.join(' ');
}

void FrmMainWindowTest::withoutADocumentOffersLittle() { QCOMPARE(Enabled(), QString(kNoDocument)); }

void FrmMainWindowTest::withADocumentOffersItsCommands()
{
    window_->ProcessFile(File("a.afp", Letter()));
    for (const char* const name :
         {"mnuFileClose", "mnuFileReload", "mnuFileSaveDump", "mnuFileSaveDumpAs", "mnuEditFind", "mnuEditFindNext",
          "mnuEditTreeExpand", "mnuEditTreeCollapse", "mnuWindowsCascade", "mnuWindowsTileVertical",
          "mnuWindowsTileHorizontal", "mnuWindowsCloseAll", "mnuExtrasOptions", "tlbPreview", "tlbExtractResource"})
        QVERIFY2(Command(name)->isEnabled(), name);
    for (const char* const name : {"mnuWindowsMessages", "tlbCancel"}) QVERIFY2(!Command(name)->isEnabled(), name);
}

void FrmMainWindowTest::showsTheDocumentThatItOpens()
{
    window_->ProcessFile(File("a.afp", Letter()));
    QVERIFY(window_->ActiveDocument() != nullptr);
    QCOMPARE(Tree().Selected(), NodeStore::kRoot);
    QVERIFY(Tree().IsExpanded(NodeStore::kRoot));
    QVERIFY(Properties().startsWith("Filename & -path: "));
    QVERIFY(!window_->findChild<QProgressBar*>("pgbProgress")->isVisible());
    // A text is read when it is looked at.
    QVERIFY(Tree().FullPath(7).ends_with("PTX"));
    Tree().Select(7);
    Tree().SelectByUser(6);
    QVERIFY(Properties().contains("made for Bern"));
    Tree().SelectByUser(7);
    QVERIFY2(Properties().contains("Dear reader.."), qPrintable(Properties()));
}

void FrmMainWindowTest::keepsRecentFiles()
{
    const QString path = File("a.afp", Letter());
    QVERIFY(!Command("mnuFileListFile1")->isVisible() && !Command("mnuDivider10")->isVisible());
    window_->ProcessFile(path);
    QVERIFY(Command("mnuFileListFile1")->isVisible() && Command("mnuDivider10")->isVisible());
    QVERIFY(!Command("mnuFileListFile2")->isVisible());
    QCOMPARE(state_->recentFiles[0], path.toStdString());
    window_->close();
    Show();
    QVERIFY(Command("mnuFileListFile1")->isVisible());
    Command("mnuFileListFile1")->trigger();
    QVERIFY(window_->ActiveDocument() != nullptr);
    QCOMPARE(window_->ActiveDocument()->Path(), path);
}

void FrmMainWindowTest::opensASecondDocumentInAnotherProcess()
{
    window_->ProcessFile(File("a.afp", Letter()));
    state_->find.strSearch = "TWO WORDS";
    window_->ProcessFile("/some where/b.afp");
    QCOMPARE(started_, QList<QStringList>({{"/fromFSV", "/search=TWO", "/some where/b.afp"}}));
    QVERIFY(window_->ActiveDocument()->Path().endsWith("a.afp"));
}

void FrmMainWindowTest::reloadsInAnotherProcess()
{
    const QString path = File("a.afp", Letter());
    window_->ProcessFile(path);
    Tree().Select(6);
    window_->mnuFileReload();
    QCOMPARE(started_.size(), 1);
    QCOMPARE(started_[0].size(), 3);
    QVERIFY2(started_[0][1].startsWith("/reload=a.afp^<color="), qPrintable(started_[0][1]));
    QVERIFY(started_[0][1].endsWith("^NOP: made for Bern"));
    QCOMPARE(started_[0][2], path);
    QTRY_VERIFY(window_->ActiveDocument() == nullptr);

    // What the other process does with it: the path is found again.
    const std::string node = started_[0][1].mid(8).toStdString();
    state_->strReloadNode = node;
    window_->ProcessFile(path);
    QCOMPARE(Tree().Selected(), 6u);
    QCOMPARE(state_->strReloadNode, "");
}

void FrmMainWindowTest::theOtherProcessFindsAPathWithoutBlanks_data()
{
    QTest::addColumn<uint>("node");
    QTest::addColumn<uint>("found");
    QTest::newRow("Document^BDT") << 3u << 3u;
    QTest::newRow("Document^Page 1^PTX, cut at its blank") << 7u << NodeStore::kRoot;
}

void FrmMainWindowTest::theOtherProcessFindsAPathWithoutBlanks()
{
    QFETCH(uint, node);
    QFETCH(uint, found);
    state_->settings.ShowBESF = 0;  // its names follow a blank
    const QString path = File("a.afp", Letter());
    window_->ProcessFile(path);
    Tree().Select(node);
    window_->mnuFileReload();
    QTRY_VERIFY(window_->findChild<FlyTree*>() == nullptr);

    std::vector<std::string> arguments = {"fsv"};
    for (const QString& argument : started_.at(0)) arguments.push_back(argument.toStdString());
    std::vector<const char*> argv;
    for (const std::string& argument : arguments) argv.push_back(argument.c_str());
    const CommandLine line = ParseCommandLine(JoinArguments(static_cast<int>(argv.size()), argv.data()));
    QVERIFY(line.bolFromFSV);
    QCOMPARE(QString::fromStdString(line.strStartFile), path);
    state_->strReloadNode = line.strReloadNode;
    window_->ProcessFile(path);
    QCOMPARE(Tree().Selected(), found);
}

void FrmMainWindowTest::aDropOpensEachFile()
{
    QMimeData data;
    const QString first = File("a.afp", Letter());
    data.setUrls({QUrl::fromLocalFile(first), QUrl::fromLocalFile("/b.afp"), QUrl::fromLocalFile("/c.afp")});
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window_.get(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window_.get(), &drop);
    QCOMPARE(window_->ActiveDocument()->Path(), first);
    QCOMPARE(started_, QList<QStringList>({{"/fromFSV", "/b.afp"}, {"/fromFSV", "/c.afp"}}));
}

void FrmMainWindowTest::closingADocumentEndsItsCommands()
{
    window_->ProcessFile(File("a.afp", Letter()));
    window_->mnuFileClose();
    QTRY_COMPARE(Enabled(), QString(kNoDocument));
}

void FrmMainWindowTest::aRunCanBeCancelled()
{
    QString during;
    QTimer::singleShot(0, window_.get(), [&] {
        during = Enabled();
        window_->tlbCancel();
    });
    window_->ProcessFile(File("long.afp", LongFile()));
    QVERIFY2(during.contains("tlbCancel") && !during.contains("mnuFileReload") && !during.contains("mnuEditFind"),
             qPrintable(during));
    QVERIFY(Tree().Tree()->Nodes().Size() < 20'000);
    QVERIFY(!Command("tlbCancel")->isEnabled());
    QVERIFY(Command("mnuEditFind")->isEnabled());
}

void FrmMainWindowTest::closingDuringARunStopsIt()
{
    bool refused = false;
    QTimer::singleShot(0, window_.get(), [&] { refused = !window_->close(); });
    window_->ProcessFile(File("long.afp", LongFile()));
    QVERIFY(refused);
    QVERIFY(window_->isVisible());
    QVERIFY(Tree().Tree()->Nodes().Size() < 20'000);
    QVERIFY(window_->close());
}

void FrmMainWindowTest::findsOneHitAfterAnother()
{
    window_->ProcessFile(File("a.afp", Letter()));
    state_->find.strSearch = "LETTER";
    window_->mnuEditFindNext();
    const auto first = Tree().Selected();
    window_->mnuEditFindNext();
    QVERIFY(Tree().Selected() > first);
    state_->find.strSearch = "DEAR READER";
    Tree().Select(NodeStore::kRoot);
    window_->mnuEditFindNext();
    QCOMPARE(Tree().Selected(), 7u);
    QVERIFY(Properties().contains("Dear reader.."));
    Answer answer;
    window_->mnuEditFindNext();
    QCOMPARE(answer.texts, QStringList("No (more) items found!"));
    QCOMPARE(Tree().Selected(), 7u);
}

void FrmMainWindowTest::savesTheDumpBesideTheFile()
{
    const QString path = File("a.afp", Letter());
    window_->ProcessFile(path);
    Answer answer;
    window_->mnuFileSaveDump();
    QCOMPARE(answer.texts, QStringList("Dump has been saved as " + path + ".txt!"));
    QVERIFY(ReadWhole(path.toStdString() + ".txt").find("Dear reader..") != std::string::npos);
}

void FrmMainWindowTest::asksBeforeItReplacesADump()
{
    const QString path = File("a.afp", Letter());
    folder_->File("a.afp.txt", "kept");
    window_->ProcessFile(path);
    {
        Answer answer(QMessageBox::No);
        window_->mnuFileSaveDump();
        QCOMPARE(answer.texts.size(), 1);
        QVERIFY(answer.texts[0].contains("already exists!"));
    }
    QCOMPARE(ReadWhole(path.toStdString() + ".txt"), "kept");
}

void FrmMainWindowTest::expandsAndCollapsesTheTree()
{
    window_->ProcessFile(File("a.afp", Letter()));
    window_->mnuEditTreeExpand();
    QVERIFY(Tree().IsExpanded(2) && Tree().IsExpanded(4));
    window_->mnuEditTreeCollapse();
    QVERIFY(!Tree().IsExpanded(2) && !Tree().IsExpanded(NodeStore::kRoot));
}

void FrmMainWindowTest::aWindowThatIsNotMaximisedShowsItsPanes()
{
    window_->ProcessFile(File("a.afp", Letter()));
    const auto* const document = window_->ActiveDocument();
    const auto isRoomy = [&] { return Tree().height() > 200 && document->width() > 600 && document->width() < 1000; };
    document->parentWidget()->showNormal();
    QVERIFY(isRoomy());
    document->parentWidget()->showMaximized();
    QCOMPARE(document->width(), 1000);
    window_->mnuWindowsCascade();
    QVERIFY(isRoomy());
    window_->mnuWindowsTileVertical();
    QVERIFY(Tree().height() > 300);
}

void FrmMainWindowTest::theStatusBarKeepsItsHeight()
{
    window_->ProcessFile(File("a.afp", Letter()));
    auto* const bar = window_->findChild<QWidget*>("picStatusBar");
    auto* const cancel = window_->findChild<QPushButton*>("cmdCancel");
    const int idle = bar->sizeHint().height();
    QVERIFY(cancel->isHidden());
    QCOMPARE(bar->height(), idle);
    cancel->show();
    QCOMPARE(bar->sizeHint().height(), idle);
}

void FrmMainWindowTest::dividersStayInTheirBounds()
{
    window_->ProcessFile(File("a.afp", Letter()));
    auto* const document = window_->ActiveDocument();
    auto* const divider = window_->findChild<Divider*>("imgDivider");
    const auto drag = [&](float percent) {
        Q_EMIT divider->Dragged(static_cast<int>(percent * static_cast<float>(document->width()) / 100));
    };
    drag(50);
    QVERIFY(std::abs(state_->panes.TreeWidthPercentual - 50) < 0.2f);
    QVERIFY(std::abs(divider->x() - document->width() / 2) < 3);
    for (const float refused : {10.0f, 5.0f, 0.0f, 60.5f, 95.0f}) {
        drag(refused);
        QVERIFY(std::abs(state_->panes.TreeWidthPercentual - 50) < 0.2f);
    }
    drag(59);
    QVERIFY(state_->panes.TreeWidthPercentual > 58);
    window_->close();
    ShellState again;
    again.store = state_->store;
    ReadWindowState(again);
    QCOMPARE(again.panes.TreeWidthPercentual, 59.0f);
}

void FrmMainWindowTest::tellsOfAFileThatIsNotThere()
{
    Answer answer;
    window_->ProcessFile(QString::fromStdString(*folder_ / "none.afp"));
    QCOMPARE(answer.texts.size(), 1);
    QVERIFY(answer.texts[0].contains("File does not exist"));
    QTRY_VERIFY(window_->ActiveDocument() == nullptr);
}

void FrmMainWindowTest::extractsADumpWhenItWasStartedForThat()
{
    state_->bolExtract = true;
    const QString path = File("a.afp", Letter());
    Answer answer;
    window_->ProcessFile(path);
    QVERIFY(ReadWhole(path.toStdString() + ".txt").find("Dear reader..") != std::string::npos);
    QVERIFY(answer.texts.isEmpty());  // nobody is there to answer
    QVERIFY(!state_->extractFailed);
}

void FrmMainWindowTest::tellsThatADumpCouldNotBeExtracted()
{
    state_->bolExtract = true;
    const QString path = File("a.afp", Letter());
    QVERIFY(QDir().mkdir(path + ".txt"));
    Answer answer;
    window_->ProcessFile(path);
    QCOMPARE(answer.texts.size(), 1);
    QVERIFY(state_->extractFailed);
}

void FrmMainWindowTest::menusHaveNoTwoEqualAccessKeys_data()
{
    QTest::addColumn<int>("language");
    for (int language = 1; language <= 3; ++language) QTest::addRow("%d", language) << language;
}

void FrmMainWindowTest::menusHaveNoTwoEqualAccessKeys()
{
    QFETCH(int, language);
    state_->settings.Language = language;
    Show();
    const auto keys = [](const QList<QAction*>& actions) {
        QStringList found;
        for (const QAction* action : actions) {
            const auto at = action->text().indexOf('&');
            if (action->isVisible() && at >= 0) found << action->text().mid(at + 1, 1).toUpper();
        }
        return found;
    };
    const auto check = [&](const QList<QAction*>& actions) {
        QStringList found = keys(actions);
        const auto count = found.size();
        QVERIFY2(found.removeDuplicates() == 0, qPrintable(found.join(' ') + QString::number(count)));
    };
    check(window_->menuBar()->actions());
    for (const QAction* top : window_->menuBar()->actions()) check(top->menu()->actions());
}

void FrmMainWindowTest::eachControlHasAnAccessibleName()
{
    window_->ProcessFile(File("a.afp", Letter()));
    for (const QWidget* const widget : window_->findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus || !widget->isVisible()) continue;
        if (qobject_cast<const QMenuBar*>(widget) != nullptr) continue;
        const bool named = !widget->accessibleName().isEmpty() || !widget->windowTitle().isEmpty() ||
                           !widget->property("text").toString().isEmpty();
        QVERIFY2(named, qPrintable(QString(widget->metaObject()->className()) + ' ' + widget->objectName()));
    }
}

}  // namespace folioscope

QTEST_MAIN(folioscope::FrmMainWindowTest)
#include "frmMainWindow_test.moc"
