// The viewers in the window: the bytes and the pages follow the tree, the options reach all of the program.

#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTextEdit>
#include <QTimer>

#include <memory>

#include "base/settings_store.h"
#include "shell/fly_tree.h"
#include "shell/frmMainWindow.h"
#include "shell/frmMessages.h"
#include "shell/frmParserWindow.h"
#include "shell/icons.h"
#include "shell/property_pane.h"
#include "support/afp_builder.h"
#include "support/temporary_file.h"
#include "viewers/frmOptions.h"
#include "viewers/preview_pane.h"
#include "viewers/qt_text.h"
#include "viewers/ve_view.h"

namespace folioscope {
namespace {

using namespace test;

constexpr int kPages = 3;

// The page n, from 1, has its End record at node 4 * n + 3.
constexpr std::uint32_t PageEnd(int page) { return static_cast<std::uint32_t>(4 * page + 3); }

Bytes Brochure()
{
    AfpFile file;
    file.Add("BDT", Ebcdic8("BROCHURE") + Zeros(2));
    for (int page = 1; page <= kPages; ++page)
        file.Add("BPG", Ebcdic8("PAGE")).Add("PTX", Pieces("2BD3 10 DB 'Dear reader..' 02 F8")).Add("EPG", {});
    return file.Add("EDT", Ebcdic8("BROCHURE")).Content();
}

Bytes LongBrochure()
{
    AfpFile file;
    file.Add("BDT", Ebcdic8("LONG") + Zeros(2));
    file.Add("PTX", Pieces("2BD3 10 DB 'Dear reader..' 02 F8"));
    for (int i = 0; i < 20'000; ++i) file.Add("NOP", Ebcdic("one of many comments"));
    return file.Add("EDT", Ebcdic8("LONG")).Content();
}

// Does something to the dialog that is opened next.
template <class Dialog, class Action> void WhenOpen(Action action)
{
    auto* const timer = new QTimer(qApp);
    timer->callOnTimeout([timer, action] {
        auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr) return;
        timer->deleteLater();
        timer->stop();
        action(*dialog);
    });
    timer->start(5);
}

QString TextOfNextBox(const std::function<void()>& deed)
{
    QString text;
    WhenOpen<QMessageBox>([&](QMessageBox& box) {
        text = box.text();
        box.accept();
    });
    deed();
    return text;
}

}  // namespace

class ViewersInWindowTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { InitResources(); }
    void init();
    void cleanup() { window_.reset(), state_.reset(), folder_.reset(); }

    void asksForTheOptionsAtTheFirstStartOnly();
    void triesALanguageInTheWholeProgram();
    void keepsALanguageThatIsConfirmed();
    void showsOtherUnitsInTheNextText();
    void showsTheBytesOfTheSelectedRecord();
    void showsNoBytesIfNotWanted();
    void opensThePagesByThemselves();
    void opensThePagesOnRequest();
    void aFileWithoutPagesOffersNone();
    void aNodeTurnsToItsPage();
    void aPageSelectsItsEnd();
    void pagesLeaveTheTreeAloneWhileATermIsSet();
    void theEnginesMessagesAreListed_data();
    void theEnginesMessagesAreListed();
    void aRecordCanBeReadInARun();
    void tellsThatNoSecondProcessStarts();
    void tellsOfALinkThatOpensNowhere();

private:
    void Open(const Bytes& content) { window_->ProcessFile(QString::fromStdString(folder_->File("a.afp", content))); }
    template <class Part> Part& Find(const char* name) const { return *window_->findChild<Part*>(name); }
    FlyTree& Tree() const { return Find<FlyTree>("flyTreeStructure"); }
    QString Properties() const { return Find<QTextEdit>("txtProperties").toPlainText(); }
    QAction& Command(const char* name) const { return Find<QAction>(name); }
    QString FileMenu() const { return Find<QMenu>("mnuFile").title(); }

    std::unique_ptr<TemporaryFolder> folder_;
    std::unique_ptr<ShellState> state_;
    std::unique_ptr<frmMainWindow> window_;
};

void ViewersInWindowTest::init()
{
    folder_ = std::make_unique<TemporaryFolder>();
    state_ = std::make_unique<ShellState>();
    state_->store = clsSillyFunctions(*folder_ / "registry.ini");
    state_->settings.MessageWindow = 0;
    state_->settings.UsePreviewWindow = 0;
    window_ = std::make_unique<frmMainWindow>(*state_);
    window_->SetProcessStarter([](const QStringList&) { return false; });
    window_->resize(1000, 700);
    window_->show();
}

// ------------------------------------------------------------------------------------------------------------ options

void ViewersInWindowTest::asksForTheOptionsAtTheFirstStartOnly()
{
    QVERIFY(IsFirstStart(state_->store));
    bool asked = false;
    WhenOpen<frmOptions>([&](frmOptions& options) {
        asked = true;
        QVERIFY(!options.findChild<QPushButton*>("btnCancel")->isEnabled());
        options.reject();
        QVERIFY(options.isVisible());
        options.findChild<QPushButton*>("btnOK")->click();
    });
    window_->AskAtFirstStart();
    QVERIFY(asked);
    QVERIFY(!IsFirstStart(state_->store));
    QVERIFY(window_->Options().findChild<QPushButton*>("btnCancel")->isEnabled());

    window_->AskAtFirstStart();  // would not come back from a second dialog
    QVERIFY(window_->Options().isHidden());
}

void ViewersInWindowTest::triesALanguageInTheWholeProgram()
{
    Open(Brochure());
    QString menu, list, cancel;
    WhenOpen<frmOptions>([&](frmOptions& options) {
        options.findChild<QListWidget*>("lstLanguage")->setCurrentRow(1);
        menu = FileMenu();
        list = window_->Messages().windowTitle();
        cancel = Find<QPushButton>("cmdCancel").text();
        options.reject();
    });
    window_->mnuExtrasOptions();
    QCOMPARE(menu, "&Datei");
    QCOMPARE(list, "Meldungen");
    QCOMPARE(cancel, "Abbrechen");
    QCOMPARE(FileMenu(), "&File");
    QCOMPARE(Find<QPushButton>("cmdCancel").text(), "Cancel");
    QCOMPARE(state_->settings.Language, 1);
}

void ViewersInWindowTest::keepsALanguageThatIsConfirmed()
{
    Open(Brochure());
    WhenOpen<frmOptions>([&](frmOptions& options) {
        options.findChild<QListWidget*>("lstLanguage")->setCurrentRow(2);
        options.accept();
    });
    window_->mnuExtrasOptions();
    QCOMPARE(FileMenu(), "&Fichier");
    QCOMPARE(ReadSettings(state_->store).Language, 3);
    QString saved = ToQt(Labels(Language::French), U("Dump has been saved as %1!"));
    saved.replace("%1", window_->ActiveDocument()->Path() + ".txt");
    QCOMPARE(TextOfNextBox([&] { window_->mnuFileSaveDump(); }), saved);
}

void ViewersInWindowTest::showsOtherUnitsInTheNextText()
{
    AfpFile file;
    for (int i = 0; i < 5'000; ++i) file.Add("PGD", Pieces("00 00 0960 0960 0000F0 0000F0 00*3"));
    WhenOpen<frmOptions>([](frmOptions& options) {
        options.findChild<QComboBox*>("cboDefMeasure")->setCurrentIndex(2);
        options.accept();
    });
    QTimer::singleShot(0, window_.get(), [this] { window_->mnuExtrasOptions(); });  // in the run
    Open(file.Content());
    Tree().SelectByUser(2);
    QVERIFY2(Properties().contains("(1 Inch)"), qPrintable(Properties()));
    Tree().SelectByUser(5'001);
    QVERIFY2(Properties().contains("(25.4 mm)"), qPrintable(Properties()));
}

// -------------------------------------------------------------------------------------------------------------- bytes

void ViewersInWindowTest::showsTheBytesOfTheSelectedRecord()
{
    Open(Brochure());
    QVERIFY(Find<QWidget>("picHex").isVisible());
    const auto& bytes = Find<QPlainTextEdit>("rtfHexHex");
    QVERIFY(!bytes.isEnabled());  // the file itself is selected
    Tree().SelectByUser(6);
    QVERIFY(bytes.isEnabled());
    QVERIFY2(bytes.toPlainText().contains("D3 EE 9B"), qPrintable(bytes.toPlainText()));
    const QString text = bytes.toPlainText();
    Tree().SelectByUser(4);  // a folder
    QVERIFY(!bytes.isEnabled());
    QCOMPARE(bytes.toPlainText(), text);
}

void ViewersInWindowTest::showsNoBytesIfNotWanted()
{
    state_->settings.HexViewer = 0;
    Open(Brochure());
    QVERIFY(!Find<QWidget>("picHex").isVisible());
    QVERIFY(!Find<QWidget>("imgDivider3").isVisible());
}

// -------------------------------------------------------------------------------------------------------------- pages

void ViewersInWindowTest::opensThePagesByThemselves()
{
    state_->settings.UsePreviewWindow = 1;
    Open(Brochure());
    QVERIFY(Find<QWidget>("picViewFrame").isVisible());
    QVERIFY(Find<QWidget>("imgDivider2").isVisible());
    for (const char* const name : {"tlbTurnLeft", "tlbTurnRight", "tlbFitToWidth", "tlbFitToSize", "tlbZoomOut",
                                   "tlbZoom100", "tlbZoomIn", "tlbPrint", "tlbSeparator8", "tlbSeparator11"})
        QVERIFY2(Command(name).isVisible(), name);
    window_->mnuFileClose();
    QTRY_VERIFY(!Command("tlbPrint").isVisible());
}

void ViewersInWindowTest::opensThePagesOnRequest()
{
    Open(Brochure());
    QVERIFY(Command("tlbPreview").isEnabled());
    QVERIFY(!Find<QWidget>("picViewFrame").isVisible() && !Command("tlbPrint").isVisible());
    Command("tlbPreview").trigger();
    QVERIFY(Find<QWidget>("picViewFrame").isVisible() && Command("tlbPrint").isVisible());
    const int width = Find<QWidget>("picViewFrame").width(), inner = window_->ActiveDocument()->width();
    QCOMPARE(width, inner * 30 / 100);
    Command("tlbZoomIn").trigger();
    QCOMPARE(window_->ActiveDocument()->Pages().PreviewZoom(), 110);
    Command("tlbTurnLeft").trigger();
    QCOMPARE(window_->ActiveDocument()->Pages().View().Rotation(), 3);
    Command("tlbPreview").trigger();
    QVERIFY(!Find<QWidget>("picViewFrame").isVisible() && !Command("tlbPrint").isVisible());
}

void ViewersInWindowTest::aFileWithoutPagesOffersNone()
{
    state_->settings.UsePreviewWindow = 1;
    Open(LongBrochure());
    QVERIFY(!Command("tlbPreview").isEnabled());
    QVERIFY(!Find<QWidget>("picViewFrame").isVisible());
}

void ViewersInWindowTest::aNodeTurnsToItsPage()
{
    Open(Brochure());
    Command("tlbPreview").trigger();
    VEView& view = window_->ActiveDocument()->Pages().View();
    QTRY_VERIFY(view.Line().contains("of 3"));
    Tree().SelectByUser(PageEnd(2) - 1);
    QCOMPARE(view.CurrentPage(), 2);
    Tree().SelectByUser(PageEnd(3));
    QCOMPARE(view.CurrentPage(), 3);
    Tree().SelectByUser(PageEnd(3) + 1);  // behind the last page: nothing moves
    QCOMPARE(view.CurrentPage(), 3);
}

void ViewersInWindowTest::aPageSelectsItsEnd()
{
    Open(Brochure());
    Command("tlbPreview").trigger();
    VEView& view = window_->ActiveDocument()->Pages().View();
    QTRY_VERIFY(view.Line().contains("of 3"));
    view.GoToPage(2);
    QTRY_COMPARE_WITH_TIMEOUT(Tree().Selected(), PageEnd(2), 5000);
    QVERIFY(Properties().contains("EPG"));
    QCOMPARE(view.CurrentPage(), 2);
}

void ViewersInWindowTest::pagesLeaveTheTreeAloneWhileATermIsSet()
{
    Open(Brochure());
    Command("tlbPreview").trigger();
    VEView& view = window_->ActiveDocument()->Pages().View();
    QTRY_VERIFY(view.Line().contains("of 3"));
    state_->find.strSearch = "READER";
    view.GoToPage(2);
    QVERIFY(!Find<QTimer>("ViewTimer").isActive());
    state_->find.strSearch.clear();
    view.GoToPage(3);
    QVERIFY(Find<QTimer>("ViewTimer").isActive());
}

void ViewersInWindowTest::theEnginesMessagesAreListed_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("severity");
    QTest::addColumn<int>("listed");  // 0: not, 1: plain, 2: highlighted
    QTest::newRow("information") << 7 << 1 << 0;
    QTest::newRow("warning") << 7 << 2 << 1;
    QTest::newRow("error") << 7 << 3 << 2;
    QTest::newRow("fatal") << 7 << 4 << 2;
    QTest::newRow("unknown severity") << 7 << 5 << 0;
    for (const int known : {1038, 2014, 3015, 3204}) QTest::addRow("%d is dropped", known) << known << 4 << 0;
}

void ViewersInWindowTest::theEnginesMessagesAreListed()
{
    QFETCH(int, number);
    QFETCH(int, severity);
    QFETCH(int, listed);
    static_cast<IVEDisplayMachineCallback&>(*window_).IVEDisplayMachineCallback_LogMessage("engine", number, severity,
                                                                                           "no ink");
    QCOMPARE(state_->messages.Size(), listed == 0 ? 0u : 1u);
    if (listed == 0) return;
    const Message& message = state_->messages[0];
    QCOMPARE(NameOf(message.source), "Viewer");
    QCOMPARE(NameOf(message.severity), severity == 2 ? "W" : severity == 3 ? "E" : "F");
    QCOMPARE(message.bolHighlight, listed == 2);
    QCOMPARE(state_->messages.Description(message), "no ink");
}

// ------------------------------------------------------------------------------------------------------------- others

void ViewersInWindowTest::aRecordCanBeReadInARun()
{
    QString properties;
    bool busy = false, firstRowsInTheRun = false;
    QTimer::singleShot(0, window_.get(), [&] {
        busy = window_->ActiveDocument()->IsBusy();
        QTest::qWait(60);  // longer than the tree stays as it is
        QTimer::singleShot(0, window_.get(), [&] { firstRowsInTheRun = Tree().IsExpanded(NodeStore::kRoot); });
        Tree().Refresh();
        Tree().SelectByUser(4);
        properties = Properties();
    });
    Open(LongBrochure());
    QVERIFY(busy);
    QVERIFY(firstRowsInTheRun);
    QVERIFY2(properties.contains("Dear reader.."), qPrintable(properties));
    QVERIFY(Tree().Tree()->Nodes().Size() > 20'000);
}

void ViewersInWindowTest::tellsThatNoSecondProcessStarts()
{
    Open(Brochure());
    const QString text = TextOfNextBox([&] { window_->ProcessFile("/some where/b.afp"); });
    QVERIFY2(text.contains("/some where/b.afp") && text.contains("close this document first"), qPrintable(text));
}

void ViewersInWindowTest::tellsOfALinkThatOpensNowhere()
{
    Open(Brochure());
    auto& pane = Find<PropertyPane>("txtProperties");
    const QString text = TextOfNextBox([&] { Q_EMIT pane.LinkNotOpened("http://print.example/"); });
    QVERIFY2(text.startsWith("No internet browser") && text.contains("http://print.example/"), qPrintable(text));
}

}  // namespace folioscope

QTEST_MAIN(folioscope::ViewersInWindowTest)
#include "viewers_in_window_test.moc"
