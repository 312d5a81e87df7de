#include "shell/property_pane.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <QUrl>

#include "analysis/render/property_text.h"
#include "shell/marked_colours.h"
#include "shell/open_in_browser.h"
#include "support/window_checks.h"
#include "viewers/qt_text.h"

namespace folioscope {
namespace {

const Labels kEnglish(Language::English);

// Each piece of one look in brackets, behind the signs of its look.
QString LooksOf(const PropertyPane& pane)
{
    QString looks;
    for (QTextBlock block = pane.document()->begin(); block.isValid(); block = block.next()) {
        if (block != pane.document()->begin()) looks += QLatin1Char('/');
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextCharFormat format = it.fragment().charFormat();
            const QColor colour = format.foreground().style() == Qt::NoBrush ? QColor() : format.foreground().color();
            if (format.fontWeight() == QFont::Bold) looks += QLatin1Char('b');
            if (colour == RedOn(pane.palette())) looks += QLatin1Char('r');
            if (colour == BlueOn(pane.palette())) looks += QLatin1Char('l');
            if (format.fontUnderline()) looks += QLatin1Char('u');
            looks += QLatin1Char('[') + it.fragment().text() + QLatin1Char(']');
        }
    }
    return looks;
}

// The horizontal place of a character, from the left edge of the text.
int LeftOf(PropertyPane& pane, int position)
{
    QTextCursor cursor(pane.document());
    const int zero = pane.cursorRect(cursor).left();
    cursor.setPosition(position);
    return pane.cursorRect(cursor).left() - zero;
}

struct Browser {
    QStringList addresses;
    bool there = true;
    void Serve(PropertyPane& pane)
    {
        pane.SetOpener([this](const QString& address) {
            addresses += address;
            return there;
        });
    }
};

}  // namespace

class PropertyPaneTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TurnsMarkersIntoLooks_data()
    {
        QTest::addColumn<QString>("marked");
        QTest::addColumn<QString>("looks");
        const auto row = [](const char* name, const char* marked, const char* looks) {
            QTest::newRow(name) << QString::fromUtf8(marked) << QString::fromUtf8(looks);
        };
        row("plain", "Length:\t12 Bytes\r\n", "[Length:\t12 Bytes]/");
        row("bold", "Name:°^°B~\tX°^°N~\r\n", "[Name:]b[\tX]/");
        row("red", "ID: °^°R~Unknown (9)°^°S~\r\n", "[ID: ]r[Unknown (9)]/");
        row("link", "URL: °^°H~www.example.org°^°L~.\r\n", "[URL: ]lu[www.example.org][.]/");
        row("red ends a link's blue only", "°^°H~a°^°R~b°^°S~c°^°L~d\r\n", "lu[a]ru[b]u[c][d]/");
        row("bold stays through a link", "°^°B~a°^°H~b°^°L~c°^°N~d\r\n", "b[a]blu[b]b[c][d]/");
        row("over line ends", "°^°R~a\r\nb°^°S~c\r\n", "r[a]/r[b][c]/");
        row("unknown letter", "°^°R~a°^°X~b°^°S~\r\n", "r[a°^°X~b]/");
        row("small letter", "a°^°b~c\r\n", "[a°^°b~c]/");
        row("marker within a marker", "°^°^°B~c\r\n", "[°^°^°B~c]/");
        row("marker behind a wrong one", "°^°°^°B~c\r\n", "[°^°]b[c]/");
        row("cut at the end", "abc°^°B", "[abc°^°]");
        row("nothing behind the marker", "abc°^°", "[abc°^°]");
        row("last character is lost", "°^°B~ab°^°N~c", "b[ab]");
        row("last two are kept", "°^°B~ab°^°N~cd", "b[ab][cd]");
        row("one character in all", "a", "");
        row("nothing", "", "");
        row("beyond the basic plane", "°^°B~\U0001F600°^°N~é\r\n", "b[\U0001F600][é]/");
    }
    void TurnsMarkersIntoLooks()
    {
        QFETCH(QString, marked);
        QFETCH(QString, looks);
        PropertyPane pane(kEnglish);
        pane.ShowPropertyText(marked.toStdString());
        QCOMPARE(LooksOf(pane), looks);
    }

    void ShowsWhatTheMarkupLeaves()
    {
        const std::string marked =
            "Structured Field:\t°^°B~TLE°^°N~\r\n\r\nA: °^°R~Unknown (7)°^°S~\r\n°^°H~x°^°L~\r\n";
        PropertyPane pane(kEnglish);
        pane.ShowPropertyText(marked);
        QString plain = QString::fromStdString(StripMarkup(marked));
        plain.replace(QLatin1String("\r\n"), QLatin1String("\n"));
        QCOMPARE(pane.toPlainText(), plain);
    }

    void ANewTextReplacesTheOldOneAndStartsAtItsTop()
    {
        PropertyPane pane(kEnglish);
        pane.resize(300, 200);
        pane.show();
        std::string lines;
        for (int i = 0; i < 200; ++i) lines += "°^°B~line°^°N~\r\n";
        pane.ShowPropertyText(lines + "°^°H~a°^°L~\r\n");
        pane.moveCursor(QTextCursor::End);
        QVERIFY(pane.verticalScrollBar()->value() > 0);
        pane.ShowPropertyText(lines);
        QCOMPARE(pane.verticalScrollBar()->value(), 0);
        QCOMPARE(pane.textCursor().position(), 0);
        QVERIFY(!pane.textCursor().hasSelection());
        QCOMPARE(pane.LinkText(), QString());
        pane.ShowPropertyText("ab\r\n");
        QCOMPARE(LooksOf(pane), QStringLiteral("[ab]/"));
        QCOMPARE(pane.document()->parent()->findChildren<QTextDocument*>().size(), 1);
    }

    void TheLongestTextIsShownToItsEnd()
    {
        PropertyText text;
        while (text.Position() + 8 <= PropertyText::kCapacity) text.Append("A\tline\r\n");
        text.Append("Z");
        PropertyPane pane(kEnglish);
        pane.resize(400, 300);
        pane.show();
        pane.ShowPropertyText(text.Text());
        QCOMPARE(pane.document()->blockCount(), 8192);
        QCOMPARE(pane.document()->lastBlock().text(), QStringLiteral("Z"));
        QTRY_VERIFY(pane.verticalScrollBar()->maximum() > 8000 * pane.fontMetrics().height());
    }

    void TabsStandAt106And269AndLongValuesHangUnderTheFirst()
    {
        PropertyPane pane(kEnglish);
        pane.resize(500, 300);
        pane.show();
        pane.ShowPropertyText("a\tb\tc\r\n" + std::string("L:\t") + std::string(300, 'w') + "\r\n");
        QCOMPARE(LeftOf(pane, 2), 106);
        QCOMPARE(LeftOf(pane, 4), 269);
        const QTextBlock value = pane.document()->findBlockByNumber(1);
        QCOMPARE(LeftOf(pane, value.position()), 0);
        QVERIFY(value.layout()->lineCount() > 1);
        for (int line = 1; line < value.layout()->lineCount(); ++line)
            QCOMPARE(LeftOf(pane, value.position() + value.layout()->lineAt(line).textStart()), 106);
        QCOMPARE(pane.horizontalScrollBar()->maximum(), 0);
    }

    void ALongLineWithoutATabGoesOnNearItsBegin()
    {
        PropertyPane pane(kEnglish);
        pane.resize(300, 300);
        pane.show();
        pane.ShowPropertyText("a\tb\r\n" + std::string(100, 'w') + "\r\nc\td\r\n");
        const QTextBlock sentence = pane.document()->findBlockByNumber(1);
        QVERIFY(sentence.layout()->lineCount() > 1);
        QCOMPARE(LeftOf(pane, sentence.position()), 0);
        QCOMPARE(LeftOf(pane, sentence.position() + sentence.layout()->lineAt(1).textStart()), 16);
        for (const int line : {0, 2})
            QCOMPARE(LeftOf(pane, pane.document()->findBlockByNumber(line).position() + 2), 106);
    }

    void AWordThatIsTooLongForTheFirstTabMovesItForAllLines()
    {
        PropertyPane pane(kEnglish);
        pane.resize(500, 300);
        pane.show();
        pane.ShowPropertyText("a\tb\r\n" + std::string(30, 'w') + ":\tc\r\nd\te\r\n");
        const int first = LeftOf(pane, 2);
        QVERIFY(first > 106);
        QCOMPARE(LeftOf(pane, pane.document()->findBlockByNumber(1).position() + 32), first);
        QCOMPARE(LeftOf(pane, pane.document()->findBlockByNumber(2).position() + 2), first);
    }

    void TheColoursCanBeReadOnDarkAndLightGround()
    {
        const QPalette light, dark = test::DarkPalette();
        for (const QPalette& palette : {light, dark}) {
            QVERIFY(test::Contrast(RedOn(palette), palette.color(QPalette::Base)) >= 3.9);
            QVERIFY(test::Contrast(BlueOn(palette), palette.color(QPalette::Base)) >= 4.5);
        }
        QCOMPARE(RedOn(light), QColor(255, 0, 0));
        QCOMPARE(BlueOn(light), QColor(0, 0, 255));
    }

    void AChangeOfThePaletteKeepsTextSelectionAndPlace()
    {
        PropertyPane pane(kEnglish);
        pane.resize(300, 200);
        pane.show();
        std::string text = "°^°R~red°^°S~\r\n";
        for (int i = 0; i < 100; ++i) text += "line °^°H~u°^°L~\r\n";
        pane.ShowPropertyText(text);
        QTextCursor cursor = pane.textCursor();
        cursor.setPosition(600);
        cursor.setPosition(620, QTextCursor::KeepAnchor);
        pane.setTextCursor(cursor);
        const int top = pane.verticalScrollBar()->value();
        QVERIFY(top > 0);
        pane.setPalette(test::DarkPalette());
        QVERIFY(LooksOf(pane).startsWith(QLatin1String("r[red]/[line ]lu[u]/")));
        QCOMPARE(pane.textCursor().anchor(), 600);
        QCOMPARE(pane.textCursor().position(), 620);
        QCOMPARE(pane.verticalScrollBar()->value(), top);
        QCOMPARE(pane.LinkText(), QString(100, QLatin1Char('u')));
    }

    void LinkAddressesGetTheirPrefix_data()
    {
        QTest::addColumn<QString>("link");
        QTest::addColumn<QString>("address");
        QTest::newRow("host") << "www.example.org"
                              << "http://www.example.org";
        QTest::newRow("prefixed") << "http://example.org"
                                  << "http://http://example.org";
        QTest::newRow("secure") << "https://example.org"
                                << "http://https://example.org";
        QTest::newRow("four letters") << "HTTP"
                                      << "HTTP";
        QTest::newRow("file") << "file:///etc"
                              << "http://file:///etc";
    }
    void LinkAddressesGetTheirPrefix()
    {
        QFETCH(QString, link);
        QTEST(LinkAddress(link), "address");
    }

    void AClickAnywhereOpensAllLinksAsOneAddress()
    {
        PropertyPane pane(kEnglish);
        Browser browser;
        browser.Serve(pane);
        pane.resize(400, 300);
        pane.show();
        pane.ShowPropertyText("A: °^°H~www.°^°L~\r\nred °^°R~no°^°S~\r\nB: °^°H~example°^°R~x°^°H~.org°^°L~\r\n");
        QCOMPARE(pane.LinkText(), QStringLiteral("www.example.org"));
        QTest::mouseClick(pane.viewport(), Qt::LeftButton, {}, QPoint(350, 280));
        QCOMPARE(browser.addresses, QStringList{"http://www.example.org"});
        QTest::mouseClick(pane.viewport(), Qt::LeftButton, {}, QPoint(8, 8));
        QCOMPARE(browser.addresses.size(), 2);
    }

    void AClickCanStillBeReadOnDarkGround()
    {
        PropertyPane pane(kEnglish);
        Browser browser;
        browser.Serve(pane);
        pane.setPalette(test::DarkPalette());
        pane.show();
        pane.ShowPropertyText("A: °^°H~example.org°^°L~\r\n");
        QTest::mouseClick(pane.viewport(), Qt::LeftButton, {}, QPoint(8, 8));
        QCOMPARE(browser.addresses, QStringList{"http://example.org"});
    }

    void NothingIsOpenedWithoutALinkNorByOtherButtonsNorByMarkingText()
    {
        PropertyPane pane(kEnglish);
        Browser browser;
        browser.Serve(pane);
        pane.resize(400, 300);
        pane.show();
        pane.ShowPropertyText("no link, °^°R~only red°^°S~\r\n");
        QTest::mouseClick(pane.viewport(), Qt::LeftButton, {}, QPoint(20, 12));
        QTest::keyClick(&pane, Qt::Key_Return);
        pane.ShowPropertyText("a link: °^°H~example.org°^°L~ and more text behind it\r\n");
        QTest::mouseClick(pane.viewport(), Qt::RightButton, {}, QPoint(20, 12));
        QTest::mouseClick(pane.viewport(), Qt::MiddleButton, {}, QPoint(20, 12));
        QTest::mousePress(pane.viewport(), Qt::LeftButton, {}, QPoint(6, 12));
        QTest::mouseRelease(pane.viewport(), Qt::LeftButton, {}, QPoint(150, 12));
        QCOMPARE(browser.addresses, QStringList());
    }

    void ADoubleClickOpensOnce()
    {
        PropertyPane pane(kEnglish);
        Browser browser;
        browser.Serve(pane);
        pane.show();
        pane.ShowPropertyText("°^°H~example.org°^°L~\r\n");
        QTest::mouseClick(pane.viewport(), Qt::LeftButton, {}, QPoint(20, 12));
        QTest::mouseDClick(pane.viewport(), Qt::LeftButton, {}, QPoint(20, 12));
        QTest::mouseRelease(pane.viewport(), Qt::LeftButton, {}, QPoint(20, 12));
        QCOMPARE(browser.addresses.size(), 1);
    }

    void TheReturnKeyOpensWhatAClickOpens()
    {
        PropertyPane pane(kEnglish);
        Browser browser;
        browser.Serve(pane);
        pane.ShowPropertyText("°^°H~a°^°L~-°^°H~b°^°L~\r\n");
        QTest::keyClick(&pane, Qt::Key_Return);
        QTest::keyClick(&pane, Qt::Key_Enter);
        QCOMPARE(browser.addresses, QStringList({"http://ab", "http://ab"}));
    }

    void ALinkThatNobodyOpensIsReported()
    {
        PropertyPane pane(kEnglish);
        Browser browser{{}, false};
        browser.Serve(pane);
        QSignalSpy spy(&pane, &PropertyPane::LinkNotOpened);
        pane.ShowPropertyText("°^°H~example.org°^°L~\r\n");
        QTest::keyClick(&pane, Qt::Key_Return);
        QCOMPARE(spy.size(), 1);
        QCOMPARE(spy[0][0].toString(), QStringLiteral("http://example.org"));
    }

    void TheTextIsReadOnlyAndCanBeCopied()
    {
        PropertyPane pane(kEnglish);
        pane.show();
        pane.ShowPropertyText("a°^°B~b°^°N~\r\nc\u00a0d\r\n");
        QTest::keyClicks(&pane, QStringLiteral("xyz"));
        QTest::keyClick(&pane, Qt::Key_Delete);
        QTest::keyClick(&pane, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&pane, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), QString::fromUtf8("ab\nc\u00a0d\n"));
        QVERIFY(!QApplication::clipboard()->mimeData()->hasHtml());
    }

    void TheKeyboardMarksText()
    {
        PropertyPane pane(kEnglish);
        pane.show();
        pane.ShowPropertyText("abcd\r\n");
        QTest::keyClick(&pane, Qt::Key_Right);
        QTest::keyClick(&pane, Qt::Key_Right, Qt::ShiftModifier);
        QTest::keyClick(&pane, Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(pane.textCursor().selectedText(), QStringLiteral("bc"));
    }

    void ItsMenuCopiesAndSelectsInEveryLanguage()
    {
        for (const Language language : test::kLanguages) {
            PropertyPane pane(kEnglish);
            pane.SetTexts(Labels(language));
            pane.show();
            pane.ShowPropertyText("some text\r\n");
            QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), pane.mapToGlobal(QPoint(5, 5)));
            QApplication::sendEvent(pane.viewport(), &event);
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            QVERIFY(menu != nullptr);
            QCOMPARE(menu->actions().size(), 2);
            QStringList texts = test::EntryTexts(*menu);
            QCOMPARE(test::AccessKeysOf(texts).size(), 2);
            QCOMPARE(test::AccessKeysOf(texts).removeDuplicates(), 0);
            texts.replaceInStrings(QStringLiteral("&"), QString());
            const Labels labels(language);
            QCOMPARE(texts,
                     QStringList({ToQt(labels, U("Copy")) + "\tCtrl+C", ToQt(labels, U("Select all")) + "\tCtrl+A"}));
            QVERIFY(!menu->actions()[0]->isEnabled());
            menu->actions()[1]->trigger();
            QCOMPARE(pane.textCursor().selectedText().trimmed(), QStringLiteral("some text"));
            menu->close();
        }
    }

    void DroppedFilesAreToldInTheirOrder()
    {
        PropertyPane pane(kEnglish);
        pane.resize(200, 100);
        pane.show();
        pane.ShowPropertyText("text\r\n");
        QSignalSpy spy(&pane, &PropertyPane::FilesDropped);
        QMimeData files;
        files.setUrls(
            {QUrl::fromLocalFile("/z/b.afp"), QUrl("http://example.org/no"), QUrl::fromLocalFile("/a ü.afp")});
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(pane.viewport(), &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(pane.viewport(), &drop);
        QVERIFY(drop.isAccepted());
        QCOMPARE(spy.size(), 1);
        QCOMPARE(spy[0][0].toStringList(), QStringList({"/z/b.afp", QString::fromUtf8("/a ü.afp")}));
        QCOMPARE(pane.toPlainText(), QStringLiteral("text\n"));
    }

    void OtherThingsAreNotTaken()
    {
        PropertyPane pane(kEnglish);
        pane.show();
        QSignalSpy spy(&pane, &PropertyPane::FilesDropped);
        QMimeData other;
        other.setText(QStringLiteral("text"));
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &other, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(pane.viewport(), &enter);
        QVERIFY(!enter.isAccepted());
        QCOMPARE(spy.size(), 0);
    }

    void ItHasItsNamesAndLetsTheTabKeyThrough()
    {
        for (const Language language : test::kLanguages) {
            PropertyPane pane{Labels(language)};
            QCOMPARE(pane.objectName(), QStringLiteral("txtProperties"));
            QCOMPARE(test::Nameless(pane), QStringList());
            QVERIFY(pane.tabChangesFocus());
        }
    }
};

}  // namespace folioscope

QTEST_MAIN(folioscope::PropertyPaneTest)
#include "property_pane_test.moc"
