#include <QClipboard>
#include <QWheelEvent>

#include <utility>

#include "viewers/hex_pane_support.h"

namespace folioscope {

using namespace test;

// What the user does with the hex pane.
class HexPaneInputTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TheArrowsMoveTheByte_data()
    {
        QTest::addColumn<int>("width");
        for (const int width : kWindowWidths) QTest::newRow(qPrintable(QString::number(width))) << width;
    }
    void TheArrowsMoveTheByte()
    {
        QFETCH(int, width);
        Shown s(Counting(2000), width);
        for (HexTextPane* const column : {&s.Hex(), &s.Ascii()}) {
            s.pane.ShowRecord(1001, 100);
            const int bpl = s.pane.HexBytesPerLine(), last = s.pane.Window().length - 1;
            s.Key(*column, Qt::Key_Left);
            QVERIFY(s.ShowsByte(0));
            s.Key(*column, Qt::Key_Right);
            QVERIFY(s.ShowsByte(1));
            s.Key(*column, Qt::Key_Down);
            QVERIFY(s.ShowsByte(1 + bpl));
            s.Key(*column, Qt::Key_Up);
            s.Key(*column, Qt::Key_Up);
            QVERIFY(s.ShowsByte(0));
            for (int i = 1; i <= last; ++i) {
                s.Key(*column, Qt::Key_Right);
                QVERIFY2(s.ShowsByte(i), qPrintable(QString::number(i)));
            }
            QCOMPARE(s.Bar().value(), last / bpl);
            s.Key(*column, Qt::Key_Right);
            QVERIFY(s.ShowsByte(last));
            s.Key(*column, Qt::Key_Down);
            QVERIFY(s.ShowsByte(last));
        }
    }

    void InTheColumnOfPositionsTheArrowsGoByLines()
    {
        Shown s(Counting(2000));
        s.pane.ShowRecord(1001, 100);
        s.Key(s.Pos(), Qt::Key_Right);
        QVERIFY(s.ShowsNoByte());
        s.Key(s.Pos(), Qt::Key_Down);
        QVERIFY(s.ShowsByte(16));
        s.Key(s.Pos(), Qt::Key_Left);
        QVERIFY(s.ShowsByte(16));
        s.Key(s.Pos(), Qt::Key_Up);
        QVERIFY(s.ShowsByte(0));
    }

    void PageKeysHomeAndEndMoveTheScrollBar()
    {
        Shown s(Counting(20'000));
        for (HexTextPane* const column : s.Panes()) {
            s.pane.ShowRecord(1001, 5000);
            const int page = s.Bar().pageStep(), last = s.Bar().maximum();
            QCOMPARE(last, (s.pane.Window().length - 1) / 16);
            QVERIFY(page > 1);
            s.Key(*column, Qt::Key_PageDown);
            QVERIFY(s.ShowsByte(16 * page));
            s.Key(*column, Qt::Key_PageDown);
            QVERIFY(s.ShowsByte(32 * page));
            s.Key(*column, Qt::Key_PageUp);
            QVERIFY(s.ShowsByte(16 * page));
            s.Key(*column, Qt::Key_End);
            QVERIFY(s.ShowsByte(16 * last));
            s.Key(*column, Qt::Key_PageDown);
            QVERIFY(s.ShowsByte(16 * last));
            s.Key(*column, Qt::Key_Home);
            QVERIFY(s.ShowsByte(0));
            s.Key(*column, Qt::Key_PageUp);
            QVERIFY(s.ShowsByte(0));
        }
    }

    void EveryOtherKeyIsConsumedAndDoesNothing()
    {
        Shown s(Counting(2000));
        s.pane.ShowRecord(1001, 100);
        s.Key(s.Hex(), Qt::Key_Right);
        QApplication::clipboard()->setText(QStringLiteral("kept"));
        const QString hex = s.Hex().toPlainText(), ascii = s.Ascii().toPlainText();
        for (HexTextPane* const column : s.Panes())
            for (const auto& [key, modifiers] :
                 std::initializer_list<std::pair<int, Qt::KeyboardModifiers>>{{Qt::Key_A, {}},
                                                                              {Qt::Key_A, Qt::ControlModifier},
                                                                              {Qt::Key_C, Qt::ControlModifier},
                                                                              {Qt::Key_Insert, Qt::ControlModifier},
                                                                              {Qt::Key_V, Qt::ControlModifier},
                                                                              {Qt::Key_Delete, {}},
                                                                              {Qt::Key_Backspace, {}},
                                                                              {Qt::Key_Return, {}},
                                                                              {Qt::Key_Space, {}},
                                                                              {Qt::Key_F9, {}}}) {
                QKeyEvent press(QEvent::KeyPress, key, modifiers, QStringLiteral("x"));
                QApplication::sendEvent(column, &press);
                QVERIFY(press.isAccepted());
                QVERIFY(s.ShowsByte(1));
            }
        QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("kept"));
        QCOMPARE(s.Hex().toPlainText(), hex);
        QCOMPARE(s.Ascii().toPlainText(), ascii);
    }

    void TabLeavesAColumn()
    {
        Shown s(Counting(2000));
        s.pane.ShowRecord(1001, 100);
        s.pane.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&s.pane));
        s.Pages().setFocus();
        QStringList reached;
        for (int i = 0; i < 4; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            reached += QApplication::focusWidget()->objectName();
        }
        QCOMPARE(reached, (QStringList{"rtfHexPos", "rtfHexHex", "rtfHexAscii", "cmbHexCodepage"}));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget(), &s.Ascii());
    }

    void LeavesShortcutsToTheWindow()
    {
        Shown s(Counting(2000));
        s.pane.ShowRecord(1001, 100);
        QKeyEvent copy(QEvent::ShortcutOverride, Qt::Key_C, Qt::ControlModifier);
        QApplication::sendEvent(&s.Hex(), &copy);
        QVERIFY(!copy.isAccepted());
        QKeyEvent next(QEvent::KeyPress, Qt::Key_Tab, Qt::ControlModifier);
        QApplication::sendEvent(&s.Hex(), &next);
        QVERIFY(!next.isAccepted());
    }

    void AClickSelectsTheByteUnderIt()
    {
        Shown s(Counting(2000));
        s.pane.ShowRecord(1001, 100);
        for (const int byte : {0, 5, 15, 16, 33, 63}) {
            const int line = byte / 16, column = byte % 16;
            const int hex = s.Hex().document()->findBlockByNumber(line).position() + 3 * column;
            for (const qreal within : {0.2, 0.8, 1.2, 1.8, 2.4}) {
                s.Key(s.Hex(), Qt::Key_Home);
                s.Click(s.Hex(), hex, within);
                QVERIFY2(s.ShowsByte(byte), qPrintable(QString::number(byte)));
            }
            const int text = s.Ascii().document()->findBlockByNumber(line).position() + column;
            for (const qreal within : {0.2, 0.8}) {
                s.Key(s.Hex(), Qt::Key_Home);
                s.Click(s.Ascii(), text, within);
                QVERIFY2(s.ShowsByte(byte), qPrintable(QString::number(byte)));
            }
            s.Click(s.Pos(), 9 * line + 3, 0.5);
            QVERIFY(s.ShowsByte(16 * line));
        }
    }

    void AClickBesideTheTextSelectsTheNearestByteOfItsLine()
    {
        Shown s(Counting(2000));
        s.pane.ShowRecord(1001, 2);
        const int last = s.pane.Window().length - 1, right = s.Hex().viewport()->width() - 1;
        const int second = s.Hex().cursorRect(QTextCursor(s.Hex().document()->findBlockByNumber(1))).center().y();
        QTest::mouseClick(s.Hex().viewport(), Qt::LeftButton, {}, QPoint(right, second));
        QVERIFY(s.ShowsByte(31));
        QTest::mouseClick(s.Ascii().viewport(), Qt::LeftButton, {}, QPoint(s.Ascii().viewport()->width() - 1, second));
        QVERIFY(s.ShowsByte(31));
        QTest::mouseClick(s.Ascii().viewport(), Qt::LeftButton, {}, QPoint(right, s.Ascii().viewport()->height() - 1));
        QVERIFY(s.ShowsByte(last));
    }

    void ADoubleClickDoesTheSameAndOtherButtonsNothing()
    {
        Shown s(Counting(2000));
        s.pane.ShowRecord(1001, 100);
        const QRect place = s.Hex().cursorRect(QTextCursor(s.Hex().document()->findBlockByNumber(2)));
        const QPoint at = place.center() + QPoint(3, 0);
        QTest::mouseDClick(s.Hex().viewport(), Qt::LeftButton, {}, at);
        QVERIFY(s.ShowsByte(32));
        QTest::mouseClick(s.Hex().viewport(), Qt::RightButton, {}, place.topLeft() - QPoint(0, 20));
        QVERIFY(s.ShowsByte(32));
        QTest::mousePress(s.Hex().viewport(), Qt::LeftButton, {}, at);
        QTest::mouseMove(s.Hex().viewport(), at + QPoint(100, 20));
        QTest::mouseRelease(s.Hex().viewport(), Qt::LeftButton, {}, at + QPoint(100, 20));
        QVERIFY(s.ShowsByte(32));
        QCOMPARE(s.Hex().contextMenuPolicy(), Qt::PreventContextMenu);
    }

    void TheScrollBarMovesTheByteToTheStartOfALine()
    {
        Shown s(Counting(20'000));
        s.pane.ShowRecord(1001, 5000);
        QVERIFY(s.Bar().isVisible());
        QCOMPARE(s.Bar().minimum(), 0);
        QCOMPARE(s.Bar().singleStep(), 1);
        for (const int line : {1, 2, 100, s.Bar().maximum(), 7, 0}) {
            s.Bar().setValue(line);
            QVERIFY2(s.ShowsByte(16 * line), qPrintable(QString::number(line)));
        }
    }

    void TheScrollBarFollowsTheByte()
    {
        Shown s(Counting(20'000));
        s.pane.ShowRecord(1001, 5000);
        for (int i = 0; i < 40; ++i) s.Key(s.Hex(), Qt::Key_Down);
        s.Key(s.Hex(), Qt::Key_Right);
        QCOMPARE(s.Bar().value(), 40);
        QVERIFY(s.ShowsByte(641));
    }

    void TheWheelScrollsAllColumns()
    {
        Shown s(Counting(20'000));
        s.pane.ShowRecord(1001, 5000);
        for (HexTextPane* const column : s.Panes()) {
            s.Bar().setValue(0);
            for (int i = 0; i < 10; ++i) {
                QWheelEvent turn(QPointF(5, 5), column->viewport()->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120),
                                 Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
                QSpontaneKeyEvent::setSpontaneous(&turn);  // others aren't handed from a part to what it stands in
                qApp->notify(column->viewport(), &turn);
            }
            QCOMPARE(s.Bar().value(), 10 * QApplication::wheelScrollLines());
            QVERIFY(s.ShowsByte(16 * s.Bar().value()));
        }
    }
};

}  // namespace folioscope

QTEST_MAIN(folioscope::HexPaneInputTest)
#include "hex_pane_input_test.moc"
