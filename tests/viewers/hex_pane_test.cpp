#include "viewers/hex_pane.h"

#include <QWheelEvent>

#include <sys/stat.h>

#include "support/window_checks.h"
#include "viewers/hex_pane_support.h"
#include "viewers/qt_text.h"

namespace folioscope {

using namespace test;

namespace {

QColor RedIn(const HexTextPane& pane)
{
    return pane.palette().color(QPalette::Base).lightness() < 128 ? QColor(255, 122, 122) : QColor(255, 0, 0);
}

}  // namespace

class HexPaneTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void StartsEmptyAndDisabled()
    {
        Shown s("abc");
        for (const HexTextPane* const column : s.Panes()) {
            QVERIFY(!column->isEnabled());
            QVERIFY(column->toPlainText().isEmpty());
        }
        QVERIFY(!s.Bar().isEnabled());
        QVERIFY(!s.Pages().isEnabled());
    }

    void ShowsPositionsBytesAndCharacters()
    {
        Shown s("0123456789abcdefghijk\x01");
        s.pane.ShowRecord(8, 3);
        QCOMPARE(s.pane.Window().start, 1);
        QCOMPARE(s.pane.Window().length, 21);
        QCOMPARE(s.Pos().toPlainText(), QStringLiteral("00000001\n00000011\n"));
        QCOMPARE(s.Hex().toPlainText(),
                 QStringLiteral("31 32 33 34 35 36 37 38 39 61 62 63 64 65 66 67 \n68 69 6A 6B 01"));
        QCOMPARE(s.Ascii().toPlainText(), QStringLiteral("123456789abcdefg\nhijk."));
        for (const HexTextPane* const column : s.Panes()) QVERIFY(column->isEnabled());
        QVERIFY(s.Pages().isEnabled());
        QVERIFY(s.ShowsNoByte());
    }

    void MarksTheBytesOfTheItem_data()
    {
        QTest::addColumn<int>("start");
        QTest::addColumn<int>("length");
        QTest::newRow("first in the file") << 0 << 9;
        QTest::newRow("three bytes behind its start") << 3 << 9;
        QTest::newRow("in its middle") << 1000 << 100;
        QTest::newRow("to the end of a line") << 1000 << 10;
        QTest::newRow("a whole line") << 1010 << 16;
        QTest::newRow("one byte") << 1000 << 1;
        QTest::newRow("last in the file") << 1950 << 50;
        QTest::newRow("over the file's end") << 1950 << 100;
        QTest::newRow("empty") << 1000 << 0;
    }
    void MarksTheBytesOfTheItem()
    {
        QFETCH(int, start);
        QFETCH(int, length);
        const QByteArray content = Counting(2000);
        for (const int width : kWindowWidths) {
            Shown s(content, width);
            s.pane.ShowRecord(start + 1, length);
            const QByteArray item = content.mid(start, length);
            QCOMPARE(MarkedIn(s.Hex(), Qt::red), DigitsOf(item).remove(QLatin1Char(' ')));
            QCOMPARE(MarkedIn(s.Pos(), Qt::red), QString());
            const QByteArray window = content.mid(s.pane.Window().start, s.pane.Window().length);
            QCOMPARE(s.Hex().toPlainText().simplified(), DigitsOf(window));
            QString text = s.Ascii().toPlainText().remove(QLatin1Char('\n'));
            QCOMPARE(text.size(), window.size());
            text = text.mid(start - s.pane.Window().start, length).remove(QLatin1Char(' ')).remove(QChar(0xA0));
            QCOMPARE(MarkedIn(s.Ascii(), Qt::red), text);
        }
    }

    void OtherBytesAreBlackAndOtherCharactersGreen()
    {
        Shown s(Counting(2000));
        s.pane.ShowRecord(1001, 9);
        QVERIFY(!LookAt(s.Hex(), 0).colour.isValid());
        QVERIFY(!LookAt(s.Pos(), 0).colour.isValid());
        QCOMPARE(LookAt(s.Ascii(), 0).colour, QColor(0, 0x9F, 0));
        QVERIFY(!LookAt(s.Ascii(), 0).bold);
    }

    void TheColoursCanBeReadOnDarkGround()
    {
        Shown s(Counting(2000));
        s.pane.ShowRecord(1001, 9);
        s.pane.setPalette(DarkPalette());
        const QColor base = s.Hex().palette().color(QPalette::Base);
        for (const QColor& colour :
             {LookAt(s.Ascii(), 0).colour, LookAt(s.Ascii(), 6).colour, LookAt(s.Hex(), 18).colour})
            QVERIFY(Contrast(colour, base) >= 4.5);
        QCOMPARE(MarkedIn(s.Hex(), RedIn(s.Hex())).size(), 18);
        QVERIFY(LookAt(s.Ascii(), 0).colour != LookAt(s.Ascii(), 6).colour);
        s.pane.setPalette(QPalette());
        QCOMPARE(LookAt(s.Hex(), 18).colour, QColor(Qt::red));
    }

    void ANodeWithoutAPlaceDisablesAndLeavesTheText()
    {
        Shown s(Counting(2000));
        s.pane.ShowRecord(1001, 9);
        const QString hex = s.Hex().toPlainText(), ascii = s.Ascii().toPlainText(), pos = s.Pos().toPlainText();
        s.pane.ShowRecord(0, 0);
        for (const HexTextPane* const column : s.Panes()) QVERIFY(!column->isEnabled());
        QVERIFY(!s.Bar().isEnabled());
        QVERIFY(!s.Pages().isEnabled());
        s.Pages().setCurrentIndex(0);
        QCOMPARE(s.Hex().toPlainText(), hex);
        QCOMPARE(s.Ascii().toPlainText(), ascii);
        QCOMPARE(s.Pos().toPlainText(), pos);
        s.pane.ShowRecord(1, 9);
        QVERIFY(s.Hex().isEnabled() && s.Bar().isEnabled() && s.Pages().isEnabled());
        QVERIFY(s.Hex().toPlainText() != hex);
    }

    void ADisabledPaneFollowsTheWindowWithAllColumns()
    {
        Shown s(Counting(2000));
        s.pane.ShowRecord(1001, 9);
        s.pane.ShowRecord(0, 0);
        s.pane.SetWindowWidth(1100);
        QCOMPARE(s.Hex().document()->firstBlock().text().size(), 3 * 32);
        QCOMPARE(s.Ascii().document()->firstBlock().text().size(), 32);
    }

    void AHiddenPaneShowsNothing()
    {
        Shown s(Counting(2000));
        s.pane.hide();
        s.pane.ShowRecord(1001, 9);
        QVERIFY(s.Hex().toPlainText().isEmpty());
        QVERIFY(!s.Hex().isEnabled());
    }

    void AFileThatHasGoneGivesZeroBytesAtTheRightPlaces()
    {
        Shown s(Counting(2000));
        QVERIFY(QFile::remove(s.Path()));
        s.pane.ShowRecord(1001, 9);
        QCOMPARE(s.pane.Window().length, 8 * (1 + (9 + 24 + 16) / 8));
        QVERIFY(s.Pos().toPlainText().startsWith(QLatin1String("000003E2\n")));
        QCOMPARE(s.Hex().toPlainText().simplified(), DigitsOf(QByteArray(s.pane.Window().length, '\0')));
        QCOMPARE(s.Ascii().toPlainText().remove(QLatin1Char('\n')), QString(s.pane.Window().length, QLatin1Char('.')));
        s.pane.ShowRecord(1996, 5);
        QCOMPARE(s.pane.Window().length, 11);  // cut where the file ended
    }

    void AFileThatHasShrunkEndsTheWindow()
    {
        Shown s(Counting(2000));
        s.Write(Counting(1003));
        s.pane.ShowRecord(1001, 9);
        QCOMPARE(s.pane.Window().length, 9);
        QCOMPARE(MarkedIn(s.Hex(), Qt::red).size(), 2 * 3);
        s.Write(Counting(10));
        s.pane.ShowRecord(1001, 9);
        QCOMPARE(s.pane.Window().length, 0);
        QVERIFY(s.Hex().toPlainText().isEmpty());
        for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_End, Qt::Key_Left}) s.Key(s.Hex(), key);
        QCOMPARE(s.pane.HexCaret(), 0);
    }

    void ReachesTheEndOfTheLargestFile()
    {
        Shown s("x");
        QFile file(s.Path());
        QVERIFY(file.open(QIODevice::ReadWrite));
        if (!file.resize(2'147'483'647)) QSKIP("no room for a large file with holes");
        QVERIFY(file.seek(2'147'483'645) && file.write("ab") == 2);
        file.close();
        s.pane.ShowRecord(2'147'483'646, 30'000);
        QCOMPARE(s.Pos().toPlainText(), QStringLiteral("7FFFFFF7\n"));
        QCOMPARE(s.Hex().toPlainText(), QStringLiteral("00 00 00 00 00 00 61 62"));
        QCOMPARE(MarkedIn(s.Hex(), Qt::red), QStringLiteral("6162"));
        s.Key(s.Hex(), Qt::Key_Right);
        QVERIFY(s.Hex().accessibleDescription() == QLatin1String("7FFFFFF8: 00"));
    }

    void TheScrollBarGoesWhenAllLinesFit()
    {
        Shown s(Counting(17));
        s.pane.ShowRecord(1, 17);
        QCOMPARE(s.pane.Window().length, 17);
        QVERIFY(!s.Bar().isVisible());
        QWheelEvent turn({5, 50}, {5, 50}, {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&s.pane, &turn);
        QVERIFY(s.ShowsNoByte());
        s.Key(s.Hex(), Qt::Key_End);
        QVERIFY(s.ShowsByte(16));
        s.Key(s.Hex(), Qt::Key_Home);
        QVERIFY(s.ShowsByte(0));
    }

    void ThePageIsTheAreasHeightInLinesOf16Pixels()
    {
        Shown s(Counting(20'000));
        s.pane.ShowRecord(1001, 5000);
        QCOMPARE(s.Hex().LineHeight(), 16);
        QCOMPARE(s.Bar().pageStep(), s.Area().height() / 16);
        s.pane.resize(kWide, 2 * kHigh);
        QCOMPARE(s.Bar().pageStep(), s.Area().height() / 16);
    }

    void AnotherHeightKeepsTheByteInSight()
    {
        Shown s(Counting(20'000));
        s.pane.ShowRecord(1001, 5000);
        s.Key(s.Hex(), Qt::Key_End);
        s.Key(s.Hex(), Qt::Key_Right);
        const int byte = s.pane.HexCaret();
        for (const int height : {70, 400, 62, 150}) {
            s.pane.resize(kWide, height);
            QVERIFY2(s.ShowsByte(byte), qPrintable(QString::number(height)));
        }
        s.pane.resize(kWide, 10);
        QVERIFY(s.pane.height() * 15 >= 925);
    }

    void AWiderWindowShowsMoreBytesALineAndKeepsTheByte()
    {
        Shown s(Counting(20'000), 806);
        s.pane.ShowRecord(1001, 5000);
        QCOMPARE(s.pane.HexBytesPerLine(), 16);
        s.Bar().setValue(200);
        s.Key(s.Hex(), Qt::Key_Right);
        for (const auto& [width, bytes] :
             std::initializer_list<std::pair<int, int>>{{807, 24}, {1039, 24}, {1040, 32}, {5000, 32}, {100, 16}}) {
            s.pane.SetWindowWidth(width);
            QCOMPARE(s.pane.HexBytesPerLine(), bytes);
            QVERIFY(s.ShowsByte(3201));
            QCOMPARE(s.Bar().value(), 3201 / bytes);
            QCOMPARE(s.Bar().maximum(), (s.pane.Window().length - 1) / bytes);
            QCOMPARE(MarkedIn(s.Hex(), Qt::red), DigitsOf(Counting(20'000).mid(1000, 5000)).remove(QLatin1Char(' ')));
        }
    }

    void ANewRecordStartsAtItsWindowsStart()
    {
        Shown s(Counting(20'000));
        s.pane.ShowRecord(1001, 5000);
        s.Bar().setValue(200);
        s.pane.ShowRecord(1, 5000);
        QVERIFY(s.ShowsNoByte());
        QCOMPARE(s.Bar().value(), 0);
        s.Key(s.Hex(), Qt::Key_Right);
        QVERIFY(s.ShowsByte(1));
        s.pane.ShowRecord(1001, 100);
        s.Key(s.Hex(), Qt::Key_Right);
        QVERIFY(s.ShowsByte(1));
    }

    void OffersAllSingleBytePages()
    {
        Shown s("abc");
        QCOMPARE(s.Pages().count(), 80);
        QCOMPARE(s.Pages().itemText(0), QStringLiteral("037, EBCDIC, USA/Canada"));
        QCOMPARE(s.Pages().itemData(0).toInt(), 37);
        QCOMPARE(s.Pages().findData(1200), -1);
        QCOMPARE(s.Pages().itemText(79), QStringLiteral("1275, ASCII, Apple Latin-1"));
        QCOMPARE(s.Pages().currentData().toInt(), kLatin);
        for (int i = 1; i < 80; ++i) QVERIFY(s.Pages().itemData(i - 1).toInt() < s.Pages().itemData(i).toInt());
        QCOMPARE(Shown("abc", 600, 1200).Pages().currentIndex(), 0);
        QCOMPARE(Shown("abc", 600, kInternational).Pages().currentData().toInt(), kInternational);
    }

    void AnotherCodePageShowsTheSameBytesAnew()
    {
        Shown s(QByteArray("\xC8\x85\x93\x93\x96\x5A\x00\x9F", 8), 600, kInternational);
        s.pane.ShowRecord(1, 5);
        QCOMPARE(s.Ascii().toPlainText(), QStringLiteral("Hello].\u00A4"));
        s.Key(s.Hex(), Qt::Key_Right);
        s.Pages().setCurrentIndex(s.Pages().findData(kLatin));
        QCOMPARE(s.Ascii().toPlainText(), QStringLiteral("\u00C8.\u201C\u201C\u2013Z.\u0178"));
        QCOMPARE(MarkedIn(s.Ascii(), Qt::red), QStringLiteral("\u00C8.\u201C\u201C\u2013"));
        QCOMPARE(s.Hex().toPlainText(), QStringLiteral("C8 85 93 93 96 5A 00 9F"));
        QVERIFY(s.ShowsByte(1));
        s.pane.ShowRecord(1, 2);
        QCOMPARE(s.Pages().currentData().toInt(), kLatin);
    }

    void TheLinesOfTheColumnsStandBesideEachOther_data()
    {
        QTest::addColumn<qreal>("points");
        QTest::addColumn<int>("width");
        for (const qreal points : {6.0, 9.0, 11.5, 14.0, 27.0})
            for (const int width : kWindowWidths)
                QTest::addRow("%g points, %d pixels", points, width) << points << width;
    }
    void TheLinesOfTheColumnsStandBesideEachOther()
    {
        QFETCH(qreal, points);
        QFETCH(int, width);
        Shown s(Counting(3000), width, kInternational);
        QFont font = s.pane.font();
        font.setPointSizeF(points);
        s.pane.setFont(font);
        s.pane.ShowRecord(1001, 500);
        const int lines = (s.pane.Window().length + s.pane.HexBytesPerLine() - 1) / s.pane.HexBytesPerLine();
        for (const int top : {0, 3, lines - 1}) {
            s.Bar().setValue(top);
            QVERIFY(s.IsInSight(top));
            const int from = s.Hex().verticalScrollBar()->value(), first = s.TopOf(s.Hex(), from);
            QCOMPARE(first, s.Area().mapTo(&s.pane, QPoint(0, 0)).y());
            // Only what can be seen has a place; a line that is cut at the lower edge is seen as well.
            for (int line = from; line < lines && line <= from + s.Area().height() / s.Hex().LineHeight(); ++line)
                for (HexTextPane* const column : s.Panes())
                    QCOMPARE(s.TopOf(*column, line), first + (line - from) * s.Hex().LineHeight());
        }
    }

    void ALineIsNeverCutAtTheRight_data() { TheLinesOfTheColumnsStandBesideEachOther_data(); }
    void ALineIsNeverCutAtTheRight()
    {
        QFETCH(qreal, points);
        QFETCH(int, width);
        Shown s(Counting(3000), width);
        QFont font = s.pane.font();
        font.setPointSizeF(points);
        s.pane.setFont(font);
        s.pane.ShowRecord(1001, 500);
        for (HexTextPane* const column : s.Panes()) {
            QTextCursor end(column->document()->findBlockByNumber(1));
            end.movePosition(QTextCursor::EndOfBlock);
            if (column == &s.Hex()) end.movePosition(QTextCursor::Left);  // the blank behind the last byte
            QVERIFY(column->viewport()->rect().contains(column->cursorRect(end)));
        }
        QVERIFY(s.Hex().width() * 15 >= FitFor(width * 15).byteWidth - 15);
        QVERIFY(s.Ascii().width() * 15 >= FitFor(width * 15).textWidth - 15);
        QCOMPARE(s.Ascii().x(), s.Hex().x() + s.Hex().width() + 16);
        const int right = s.Ascii().mapTo(&s.pane, QPoint(s.Ascii().width(), 0)).x();
        const int sight = s.Area().mapTo(&s.pane, QPoint(s.Area().width(), 0)).x();
        QCOMPARE(s.Pages().geometry().right() + 1, std::min(right, sight));
    }

    void TheColumnsFitIntoAWindowThatShowsSoManyBytes()
    {
        for (const int width : kWindowWidths) {
            Shown s(Counting(3000), width);
            QFont font = s.pane.font();
            font.setPointSizeF(9);  // what the widths are made for
            s.pane.setFont(font);
            s.pane.resize(width, kHigh);
            s.pane.ShowRecord(1001, 500);
            if (QFontMetricsF(s.Hex().font()).horizontalAdvance(QLatin1Char('0')) > 7.2) QSKIP("the font is wider");
            QVERIFY(s.Area().width() >= s.Ascii().x() + s.Ascii().width());
        }
    }

    void MarkedCharactersStandInTheirColumns()
    {
        Shown s(Counting(3000));
        s.pane.ShowRecord(1004, 40);  // the mark begins within a line
        for (HexTextPane* const column : {&s.Hex(), &s.Ascii()})
            for (int place = 0; place < 16; ++place) {
                QTextCursor first(column->document()->findBlockByNumber(0)), plain(column->document()->lastBlock());
                first.setPosition(first.position() + place);
                plain.movePosition(QTextCursor::PreviousBlock);
                plain.setPosition(plain.block().position() + place);
                QVERIFY(std::abs(column->cursorRect(first).left() - column->cursorRect(plain).left()) <= 1);
            }
    }

    void InANarrowWindowTheByteStaysInSight()
    {
        Shown s(Counting(3000));
        s.pane.resize(300, kHigh);
        s.pane.ShowRecord(1001, 500);
        s.pane.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&s.pane));
        const auto seen = [&](HexTextPane& column) {
            const QPoint at = column.mapTo(&s.Area(), column.SelectionRect().center());
            return s.Area().rect().contains(at);
        };
        s.Hex().setFocus();
        s.Key(s.Hex(), Qt::Key_Left);
        QVERIFY(seen(s.Hex()));
        for (int i = 0; i < 40; ++i) {
            s.Key(s.Hex(), Qt::Key_Right);
            QVERIFY2(seen(s.Hex()), qPrintable(QString::number(i)));
        }
        s.Ascii().setFocus();
        QVERIFY(seen(s.Ascii()));
        s.Pos().setFocus();
        QVERIFY(seen(s.Pos()));
        QVERIFY(s.Bar().geometry().right() <= s.pane.width());
    }

    void TheLongestRecordIsCutInStep()
    {
        Shown s(Counting(100'000));
        s.pane.ShowRecord(1001, 65'535);
        const int last = s.pane.Window().length - 1;
        QVERIFY(last > 65'535);
        QCOMPARE(s.Bar().maximum(), last / 16);
        s.Key(s.Pos(), Qt::Key_End);
        QCOMPARE(s.pane.HexCaret(), last / 16 * 16);
        for (const int line : {2047, 2048, 2222, 2223, last / 16}) {
            s.Bar().setValue(line);
            QVERIFY2(s.IsInSight(line), qPrintable(QString::number(line)));
        }
        s.Key(s.Hex(), Qt::Key_Home);
        QVERIFY(s.ShowsByte(0));
    }

    void EachPartHasAName()
    {
        Shown s(Counting(3000));
        s.pane.ShowRecord(1001, 500);
        for (const Language language : kLanguages) {
            const Labels texts(language);
            s.pane.SetTexts(texts);
            QCOMPARE(Nameless(s.pane), QStringList());
            QCOMPARE(s.Hex().accessibleName(), ToQt(texts, U("Bytes in hexadecimal")));
            QCOMPARE(s.Bar().accessibleName(), ToQt(texts, U("Lines of the hex viewer")));
        }
    }

    void TellsTheBytesPlaceAndValue()
    {
        Shown s(Counting(3000));
        s.pane.ShowRecord(1001, 500);
        QCOMPARE(s.Hex().accessibleDescription(), QString());
        s.Key(s.Hex(), Qt::Key_Down);
        const QString byte = DigitsOf(Counting(3000).mid(994 + 16, 1));
        for (const HexTextPane* const column : s.Panes())
            QCOMPARE(column->accessibleDescription(), QLatin1String("000003F2: ") + byte);
    }

    void WaitsForNoPipe()
    {
        Shown s("abc");
        QVERIFY(QFile::remove(s.Path()));
        QCOMPARE(mkfifo(QFile::encodeName(s.Path()).constData(), 0600), 0);
        s.pane.ShowRecord(1, 3);
        QCOMPARE(s.Hex().toPlainText(), QStringLiteral("00 00 00"));
    }
};

}  // namespace folioscope

QTEST_MAIN(folioscope::HexPaneTest)
#include "hex_pane_test.moc"
