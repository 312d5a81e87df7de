// Every window of the program for those who use it without a mouse or without sight, in each language.

#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QToolBar>

#include <algorithm>
#include <memory>

#include "shell/frmFind.h"
#include "shell/frmInformation.h"
#include "shell/frmMainWindow.h"
#include "shell/frmMessages.h"
#include "shell/help_window.h"
#include "shell/icons.h"
#include "shell/main_commands.h"
#include "shell/property_pane.h"
#include "support/afp_builder.h"
#include "support/temporary_file.h"
#include "support/window_checks.h"
#include "viewers/qt_text.h"

namespace folioscope {
namespace {

using namespace test;

// The frame with a document and with recent files, one for each place.
struct Program {
    explicit Program(Language language)
    {
        state.store = clsSillyFunctions(folder / "registry.ini");
        state.settings.Language = static_cast<int>(language);
        state.settings.MessageWindow = 0;
        for (int i = 0; i < 8; ++i) state.recentFiles.Add("/elsewhere/" + std::to_string(i) + ".afp");
        frame = std::make_unique<frmMainWindow>(state);
        frame->resize(1000, 700);
        frame->show();
        AfpFile file;
        file.Add("BDT", Ebcdic8("LETTER") + Zeros(2)).Add("NOP", Ebcdic("made for Bern")).Add("EPG", Ebcdic8("PAGE"));
        frame->ProcessFile(QString::fromStdString(folder.File("a.afp", file.Content())));
    }
    TemporaryFolder folder;
    ShellState state;
    std::unique_ptr<frmMainWindow> frame;
};

QStringList EntriesInSight(const QList<QAction*>& actions)
{
    QStringList texts;
    for (const QAction* const action : actions)
        if (action->isVisible() && !action->isSeparator()) texts += action->text();
    return texts;
}

// Two entries of a menu under one key, or one that no key leads to.
QStringList KeyFaults(const QString& menu, const QStringList& texts)
{
    QStringList faults, keys;
    for (const QString& text : texts) {
        const QString key = AccessKeyOf(text);
        if (key.isEmpty() || keys.contains(key)) faults += menu + ": " + text;
        keys += key;
    }
    return faults;
}

}  // namespace

class AccessTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { InitResources(); }

    void EachMenuGivesEachEntryAKeyOfItsOwn()
    {
        for (const Language language : kLanguages) {
            const Program program(language);
            QCOMPARE(program.state.settings.InterfaceLanguage(), language);
            QStringList faults = KeyFaults("menu bar", EntriesInSight(program.frame->menuBar()->actions()));
            QList<QMenu*> menus = program.frame->menuBar()->findChildren<QMenu*>();
            menus += program.frame->Messages().findChildren<QMenu*>();
            QVERIFY(menus.size() >= 6);
            for (const QMenu* const menu : menus)
                faults += KeyFaults(menu->objectName(), EntriesInSight(menu->actions()));
            QCOMPARE(faults, QStringList());
        }
    }

    void SoDoesTheMenuOfTheProperties()
    {
        for (const Language language : kLanguages) {
            PropertyPane pane{Labels(language)};
            pane.show();
            QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5), pane.mapToGlobal(QPoint(5, 5)));
            QApplication::sendEvent(pane.viewport(), &event);
            const auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            QVERIFY(menu != nullptr);
            const QStringList texts = EntriesInSight(menu->actions());
            QVERIFY(!texts.isEmpty());
            QCOMPARE(KeyFaults("properties", texts), QStringList());
        }
    }

    // What stands in the frame, and each window that comes from it, says what it is.
    void EachPartThatTakesTheFocusHasAName()
    {
        for (const Language language : kLanguages) {
            const Program program(language);
            frmFind find(Labels(language), {});
            frmInformation about{Labels(language)};
            QWidget owner;
            ShowHelp(language, &owner);
            QList<QWidget*> windows = {program.frame.get(), &program.frame->Messages(), &find, &about};
            for (QWidget* const window : QApplication::topLevelWidgets())
                if (window->isVisible() && !windows.contains(window)) windows += window;
            QVERIFY(windows.size() >= 5);
            for (QWidget* const window : windows) {
                QVERIFY2(!window->windowTitle().isEmpty(), qPrintable(window->objectName()));
                QCOMPARE(Nameless(*window), QStringList());
            }
        }
    }

    void EachButtonOfTheToolbarSaysWhatItDoes()
    {
        for (const Language language : kLanguages) {
            const Program program(language);
            const auto* const bar = program.frame->findChild<QToolBar*>("tlbMenu");
            for (QAction* const action : bar->actions()) {
                if (action->isSeparator()) continue;
                QVERIFY2(!action->icon().isNull(), qPrintable(action->objectName()));
                const auto row = std::ranges::find_if(MainCommands(), [&](const MainCommand& command) {
                    return command.text != Label::None &&
                           action->objectName() == (command.item != nullptr ? command.item : command.button);
                });
                QVERIFY(row != MainCommands().end());
                QCOMPARE(action->toolTip(), ToQt(Labels(language), row->text));
                const QAccessibleInterface* const voice =
                    QAccessible::queryAccessibleInterface(bar->widgetForAction(action));
                QVERIFY(voice != nullptr);
                QVERIFY2(!voice->text(QAccessible::Name).isEmpty(), qPrintable(action->objectName()));
            }
        }
    }
};

}  // namespace folioscope

QTEST_MAIN(folioscope::AccessTest)
#include "access_test.moc"
