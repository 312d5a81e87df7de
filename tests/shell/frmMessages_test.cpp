#include "shell/frmMessages.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <QtTest/qtestspontaneevent.h>

#include "shell/marked_colours.h"
#include "support/window_checks.h"
#include "viewers/qt_text.h"

namespace folioscope {
namespace {

// A message window beside the window that the user works in.
struct Desk {
    explicit Desk(int show = 0, Language language = Language::English)
    {
        settings.MessageWindow = show;
        window = std::make_unique<frmMessages>(messages, settings, Labels(language));
        view = window->findChild<QTableView*>(QStringLiteral("lvwMessages"));
        menu = window->findChild<QMenu*>(QStringLiteral("mnuPopup"));
    }
    void Add(std::string_view text, bool highlight = false)
    {
        messages.addMessage(MessageSource::Content, MessageSeverity::Error, text, highlight);
    }
    QString At(int row, int column) const { return view->model()->index(row, column).data().toString(); }
    QVariant At(int row, int column, int role) const { return view->model()->index(row, column).data(role); }
    int Rows() const { return view->model()->rowCount(); }
    void Open()
    {
        window->ShowOnRequest();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
    }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(view, key, modifiers); }
    void Select(int row)
    {
        view->selectionModel()->setCurrentIndex(view->model()->index(row, 0),
                                                QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    std::vector<int> Selected() const
    {
        std::vector<int> rows;
        for (int row = 0; row < Rows(); ++row)
            if (view->selectionModel()->isRowSelected(row)) rows.push_back(row);
        return rows;
    }
    // As the user's close box does.
    bool CloseByBox()
    {
        QCloseEvent event;
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(window.get(), &event);
        return event.isAccepted();
    }

    MessageList messages;
    Settings settings;
    std::unique_ptr<frmMessages> window;
    QTableView* view = nullptr;
    QMenu* menu = nullptr;
};

QString Clipboard() { return QApplication::clipboard()->text(); }

}  // namespace

class MessagesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ShowsSourceSeverityAndDescription()
    {
        Desk desk;
        desk.messages.addMessage(MessageSource::General, MessageSeverity::Information, "a", false);
        desk.messages.addMessage(MessageSource::Viewer, MessageSeverity::Fatal, "b\r\nc", true);
        desk.Open();
        QCOMPARE(desk.Rows(), 3);
        QCOMPARE(desk.At(0, 0) + desk.At(0, 1) + desk.At(0, 2), QStringLiteral("GeneralIa"));
        QCOMPARE(desk.At(1, 0) + desk.At(1, 1) + desk.At(1, 2), QStringLiteral("ViewerFb"));
        QCOMPARE(desk.At(2, 0) + desk.At(2, 1) + desk.At(2, 2), QStringLiteral("ViewerFc"));
    }

    void ItsWordsFollowTheLanguage()
    {
        Desk desk(0, Language::German);
        const auto header = [&](int column) {
            return desk.view->model()->headerData(column, Qt::Horizontal).toString();
        };
        QCOMPARE(header(0) + header(1) + header(2), QStringLiteral("QuelleSchweregradBeschreibung"));
        QCOMPARE(desk.window->windowTitle(), QStringLiteral("Meldungen"));
        desk.window->SetTexts(Labels(Language::French));
        QCOMPARE(header(1), QString::fromUtf8("Gravité"));
        QCOMPARE(desk.view->accessibleName(), QStringLiteral("Messages"));
    }

    void HighlightedLinesAreRedAndBold()
    {
        Desk desk;
        desk.Add("calm");
        desk.Add("loud", true);
        desk.Open();
        for (int column = 0; column < 3; ++column) {
            QVERIFY(!desk.At(0, column, Qt::ForegroundRole).isValid());
            QVERIFY(!desk.At(0, column, Qt::FontRole).isValid());
            QCOMPARE(desk.At(1, column, Qt::ForegroundRole).value<QColor>(), QColor(255, 0, 0));
            QVERIFY(desk.At(1, column, Qt::FontRole).value<QFont>().bold());
        }
        desk.window->setPalette(test::DarkPalette());
        const auto red = desk.At(1, 0, Qt::ForegroundRole).value<QColor>();
        QVERIFY(test::Contrast(red, test::DarkPalette().color(QPalette::Base)) > 4.5);
    }

    void ADescriptionTakesOneLine()
    {
        Desk desk;
        desk.Add("a\tb\nc");
        desk.Open();
        QCOMPARE(desk.At(0, 2), QString::fromUtf8("a␉b␊c"));
        desk.Key(Qt::Key_A, Qt::ControlModifier);
        desk.Key(Qt::Key_Insert);
        QCOMPARE(Clipboard(), QStringLiteral("Content\tE\ta\tb\nc\r\n"));
    }

    void NewLinesComeIntoSight()
    {
        Desk desk;
        const QAbstractItemModelTester tester(desk.view->model());
        desk.Open();
        for (int i = 0; i < 500; ++i) desk.Add("line " + std::to_string(i));
        QTRY_COMPARE(desk.Rows(), 500);
        const auto visible = [&](int row) {
            return desk.view->viewport()->rect().contains(desk.view->visualRect(desk.view->model()->index(row, 0)));
        };
        QVERIFY(visible(499));
        desk.view->scrollToTop();
        QVERIFY(!visible(499));
        desk.Add("one more");
        QTRY_VERIFY(visible(500));
        desk.messages.Clear();
        QCOMPARE(desk.Rows(), 0);
        desk.Add("first again");
        QTRY_COMPARE(desk.Rows(), 1);
    }

    void AMillionLinesGoIntoTheListAndOutOfIt()
    {
        Desk desk;
        desk.Open();
        constexpr int kLines = 1'000'000;
        for (int i = 0; i < kLines; ++i) {
            desk.Add(i % 2 == 0 ? "Orientation: Unknown (7)" : "Color: Invalid (9)");
            if (i % 50'000 == 0) QApplication::processEvents();
        }
        QTRY_COMPARE(desk.Rows(), kLines);
        desk.Key(Qt::Key_A, Qt::ControlModifier);
        desk.Key(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(Clipboard().count(QLatin1Char('\r')), kLines);
        desk.messages.Clear();
        QCOMPARE(desk.Rows(), 0);
    }

    void KeysSelectCopyAndHide()
    {
        Desk desk;
        for (const char* text : {"one", "two", "three"}) desk.Add(text);
        desk.Open();
        desk.Key(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(desk.Selected(), (std::vector{0, 1, 2}));
        desk.Key(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(Clipboard(), QStringLiteral("Content\tE\tone\r\nContent\tE\ttwo\r\nContent\tE\tthree\r\n"));
        desk.Select(1);
        desk.Key(Qt::Key_Insert);
        QCOMPARE(Clipboard(), QStringLiteral("Content\tE\ttwo\r\n"));
        desk.Key(Qt::Key_Escape);
        QVERIFY(!desk.window->isVisible());
        QVERIFY(desk.messages.hasMessages());  // only the close box tells that they have been seen
    }

    void CopyGoesInListOrderAndKeepsTheClipboardWithoutASelection()
    {
        Desk desk;
        for (const char* text : {"one", "two", "three"}) desk.Add(text);
        desk.Open();
        QItemSelectionModel& selection = *desk.view->selectionModel();
        for (const int row : {2, 0})
            selection.select(desk.view->model()->index(row, 0),
                             QItemSelectionModel::Select | QItemSelectionModel::Rows);
        desk.Key(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(Clipboard(), QStringLiteral("Content\tE\tone\r\nContent\tE\tthree\r\n"));
        selection.clear();
        desk.Key(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(Clipboard(), QStringLiteral("Content\tE\tone\r\nContent\tE\tthree\r\n"));
    }

    void TheRightButtonSelectsItsLineAndOpensTheMenu()
    {
        Desk desk;
        for (const char* text : {"one", "two", "three"}) desk.Add(text);
        desk.Open();
        desk.Select(0);
        QWidget* const lines = desk.view->viewport();
        const QPoint second = desk.view->visualRect(desk.view->model()->index(1, 2)).center();
        QTest::mousePress(lines, Qt::RightButton, {}, second);
        QContextMenuEvent event(QContextMenuEvent::Mouse, second, lines->mapToGlobal(second));
        QApplication::sendEvent(lines, &event);
        QVERIFY(desk.menu->isVisible());
        QCOMPARE(desk.Selected(), std::vector{1});
        desk.menu->close();
        const QPoint nowhere(5, lines->height() - 2);
        QContextMenuEvent below(QContextMenuEvent::Mouse, nowhere, lines->mapToGlobal(nowhere));
        QApplication::sendEvent(lines, &below);
        QVERIFY(!desk.menu->isVisible());
    }

    void TheMenuKeyOpensTheMenuAtTheCurrentLine()
    {
        Desk desk;
        for (const char* text : {"one", "two"}) desk.Add(text);
        desk.Open();
        desk.Select(1);
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
        QApplication::sendEvent(desk.view, &event);
        QVERIFY(desk.menu->isVisible());
        desk.menu->findChild<QAction*>(QStringLiteral("mnuPopCopy"))->trigger();
        QCOMPARE(Clipboard(), QStringLiteral("Content\tE\ttwo\r\n"));
        desk.menu->findChild<QAction*>(QStringLiteral("mnuPopSelectAll"))->trigger();
        QCOMPARE(desk.Selected(), (std::vector{0, 1}));
        desk.menu->close();
    }

    void TheCloseBoxHidesTheWindowAndKeepsTheLines()
    {
        Desk desk;
        desk.Add("one");
        desk.Open();
        QVERIFY(desk.messages.hasMessages());
        QVERIFY(!desk.CloseByBox());
        QVERIFY(!desk.window->isVisible());
        QVERIFY(!desk.messages.hasMessages());
        QCOMPARE(desk.messages.Size(), 1u);
        desk.messages.ShowWithBeep();
        QVERIFY(!desk.window->isVisible());
        desk.Add("two");
        QVERIFY(desk.messages.hasMessages());
        desk.messages.ShowWithBeep();
        QVERIFY(desk.window->isVisible());
        QCOMPARE(desk.Rows(), 2);
    }

    void WhoeverElseClosesTheWindowMay()
    {
        Desk desk;
        desk.Add("one");
        desk.Open();
        QVERIFY(desk.window->close());
        QVERIFY(desk.messages.hasMessages());
        QVERIFY(!desk.window->testAttribute(Qt::WA_QuitOnClose));
    }

    void TheOptionTellsWhetherNewLinesBringItUp()
    {
        Desk desk(0);
        QSignalSpy arrived(desk.window.get(), &frmMessages::MessagesArrived);
        desk.Add("one");
        QVERIFY(!desk.window->isVisible());
        QCOMPARE(arrived.size(), 1);
        desk.settings.MessageWindow = 1;
        desk.Add("two");
        QVERIFY(desk.window->isVisible());
        QVERIFY(!desk.window->isModal());
        QCOMPARE(arrived.size(), 2);
        QCOMPARE(desk.Rows(), 2);
    }

    void ItComesUpWithoutTakingTheKeyboard()
    {
        QWidget work;
        work.show();
        work.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&work));
        Desk desk(1);
        desk.Add("one");
        QVERIFY(desk.window->isVisible());
        QTest::qWait(20);
        QCOMPARE(QApplication::activeWindow(), &work);
        desk.window->hide();
        desk.messages.ShowWithBeep();
        QVERIFY(desk.window->isVisible());
        QTest::qWait(20);
        QCOMPARE(QApplication::activeWindow(), &work);
        desk.window->ShowOnRequest();
        QTRY_COMPARE(QApplication::activeWindow(), desk.window.get());
        QVERIFY(desk.view->hasFocus());
    }

    void TheListFillsItsWindow()
    {
        Desk desk;
        desk.Open();
        desk.window->resize(900, 400);
        QTRY_COMPARE(desk.view->geometry(), desk.window->rect());
        QCOMPARE(desk.view->horizontalHeader()->length(), desk.view->viewport()->width());
    }

    void TheListOutlivesItsWindow()
    {
        Desk desk;
        desk.window.reset();
        desk.Add("one");
        desk.messages.ShowWithBeep();
        desk.messages.Clear();
        QCOMPARE(desk.messages.Size(), 0u);
    }

    void ItsPartsHaveNamesAndItsMenuKeysOfItsOwn()
    {
        for (const Language language : test::kLanguages) {
            Desk desk(0, language);
            QCOMPARE(test::Nameless(*desk.window), QStringList());
            QStringList keys = test::AccessKeysOf(test::EntryTexts(*desk.menu));
            QCOMPARE(keys.size(), 2);
            QCOMPARE(keys.removeDuplicates(), 0);
        }
    }
};

}  // namespace folioscope

QTEST_MAIN(folioscope::MessagesTest)
#include "frmMessages_test.moc"
