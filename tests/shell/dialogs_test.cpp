#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "base/version.h"
#include "shell/frmFind.h"
#include "shell/frmInformation.h"
#include "support/window_checks.h"
#include "viewers/qt_text.h"

namespace folioscope {
namespace {

const Labels kEnglish(Language::English);

struct FindParts {
    explicit FindParts(frmFind& dialog)
        : term(dialog.findChild<QLineEdit*>("TxtSearchText")), nop(dialog.findChild<QCheckBox*>("chkNOPOnly")),
          tle(dialog.findChild<QCheckBox*>("chkTLEOnly")), hint(dialog.findChild<QLabel*>("lblHint")),
          ok(dialog.findChild<QPushButton*>("cmdOK")), cancel(dialog.findChild<QPushButton*>("cmdCancel"))
    {
    }
    QLineEdit* term;
    QCheckBox *nop, *tle;
    QLabel* hint;
    QPushButton *ok, *cancel;
};

QString Plain(QString text) { return text.remove(QLatin1Char('&')); }

}  // namespace

class DialogsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void FindBeginsWithWhatWasSearchedLast()
    {
        frmFind dialog(kEnglish, {"TERM", true, false});
        const FindParts parts(dialog);
        QCOMPARE(parts.term->text(), QStringLiteral("TERM"));
        QCOMPARE(parts.term->selectedText(), QStringLiteral("TERM"));
        QVERIFY(parts.nop->isChecked());
        QVERIFY(!parts.tle->isChecked());
        QVERIFY(frmFind(kEnglish, {"", false, true}).Term().bolTLEOnly);
    }

    void FindSaysItsTexts()
    {
        frmFind dialog(kEnglish, {});
        const FindParts parts(dialog);
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Find String"));
        QCOMPARE(parts.hint->text(), QStringLiteral("Please enter your search criteria. The search starts at the "
                                                    "beginning and is case insensitive."));
        QCOMPARE(Plain(parts.nop->text()), QStringLiteral("Search NOPs only"));
        QCOMPARE(Plain(parts.tle->text()), QStringLiteral("Search TLEs only"));
        QCOMPARE(Plain(parts.ok->text()), QStringLiteral("OK"));
        QCOMPARE(Plain(parts.cancel->text()), QStringLiteral("Cancel"));
    }

    void FindGivesTheTermInCapitalsAndTheFlags()
    {
        frmFind dialog(kEnglish, {});
        const FindParts parts(dialog);
        dialog.show();
        parts.term->setText(QString::fromUtf8("tle: größe "));
        QTest::keyClicks(parts.term, QStringLiteral("x"));
        parts.tle->setChecked(true);
        QTest::keyClick(parts.term, Qt::Key_Return);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.Term().strSearch, std::string("TLE: GRÖßE X"));
        QVERIFY(!dialog.Term().bolNOPOnly);
        QVERIFY(dialog.Term().bolTLEOnly);
    }

    void CancellingEmptiesTheTerm()
    {
        for (int way = 0; way < 3; ++way) {
            frmFind dialog(kEnglish, {"TERM", true, true});
            const FindParts parts(dialog);
            dialog.show();
            if (way == 0) parts.cancel->click();
            if (way == 1) QTest::keyClick(parts.term, Qt::Key_Escape);
            if (way == 2) dialog.close();
            QVERIFY(!dialog.isVisible());
            QCOMPARE(dialog.Term().strSearch, std::string());
            QVERIFY(dialog.Term().bolNOPOnly);
        }
    }

    void TheTabKeyGoesThroughFindInReadingOrder()
    {
        frmFind dialog(kEnglish, {});
        const FindParts parts(dialog);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QVERIFY(parts.term->hasFocus());
        for (QWidget* const next : std::initializer_list<QWidget*>{parts.nop, parts.tle}) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QVERIFY(next->hasFocus());
        }
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QVERIFY(parts.ok->hasFocus() || parts.cancel->hasFocus());
        QVERIFY(parts.ok->isDefault());
    }

    void InformationNamesProductVersionAndLastChange()
    {
        frmInformation dialog(kEnglish);
        const auto text = [&](const char* name) { return dialog.findChild<QLabel*>(name)->text(); };
        QCOMPARE(text("lblProduct"), QStringLiteral("Folioscope Professional"));
        QCOMPARE(text("lblVersion"), QStringLiteral("Version ") + ToQt(kVersion));
        QCOMPARE(text("lblLastChange"), QStringLiteral("Last change: ") + ToQt(kReleaseDate));
        dialog.show();
        dialog.findChild<QPushButton*>("cmdOK")->click();
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }

    void WindowsAreSoundInEveryLanguage()
    {
        for (const Language language : test::kLanguages) {
            frmFind find{Labels(language), {}};
            frmInformation information{Labels(language)};
            for (QWidget* const window : std::initializer_list<QWidget*>{&find, &information}) {
                window->show();
                QCOMPARE(test::Nameless(*window), QStringList());
                QCOMPARE(test::Clipped(*window), QStringList());
                QStringList keys = test::AccessKeysOf(test::ButtonTexts(*window));
                QCOMPARE(keys.size(), test::ButtonTexts(*window).size());
                QCOMPARE(keys.removeDuplicates(), 0);
            }
        }
    }
};

}  // namespace folioscope

QTEST_MAIN(folioscope::DialogsTest)
#include "dialogs_test.moc"
