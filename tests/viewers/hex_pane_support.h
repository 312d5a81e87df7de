#pragma once

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>

#include <array>

#include "viewers/hex_pane.h"
#include "viewers/hex_text_pane.h"

namespace folioscope::test {

inline const Labels kEnglish(Language::English);
inline constexpr int kWindowWidths[] = {600, 807,
                                        1040};  // in pixels: the narrowest of each number of bytes but the first
inline constexpr int kWide = 1200, kHigh = 200;
inline constexpr int kLatin = 1252, kInternational = 500;

inline QByteArray Counting(int count)
{
    QByteArray bytes;
    for (int i = 0; i < count; ++i) bytes += static_cast<char>(i * 7 + i / 256);
    return bytes;
}

inline QString DigitsOf(const QByteArray& bytes) { return QString::fromLatin1(bytes.toHex(' ').toUpper()); }

struct Look {
    bool bold;
    QColor colour;  // invalid: that of the palette
};

inline Look LookAt(const QPlainTextEdit& pane, int position)
{
    QTextCursor cursor(pane.document());
    cursor.setPosition(position + 1);
    const QTextCharFormat format = cursor.charFormat();
    const bool coloured = format.foreground().style() != Qt::NoBrush;
    return {format.fontWeight() == QFont::Bold, coloured ? format.foreground().color() : QColor()};
}

// The characters that are bold, without line ends and blanks; each must be red, and no other may be.
inline QString MarkedIn(const QPlainTextEdit& pane, const QColor& red)
{
    QString marked;
    const QString text = pane.toPlainText();
    for (int i = 0; i < text.size(); ++i) {
        if (text[i].isSpace()) continue;
        const Look look = LookAt(pane, i);
        if (look.bold != (look.colour == red)) return QStringLiteral("red and bold differ at %1").arg(i);
        if (look.bold) marked += text[i];
    }
    return marked;
}

// A hex pane that shows a file of its own.
class Shown {
public:
    explicit Shown(const QByteArray& content, int windowWidth = 600, int codepage = kLatin)
        : pane(codepage, kEnglish, nullptr)
    {
        Write(content);
        pane.SetFile(Path());
        pane.SetWindowWidth(windowWidth);
        pane.resize(kWide, kHigh);
        pane.show();
    }

    QString Path() const { return folder_.filePath(QStringLiteral("a.afp")); }
    void Write(const QByteArray& content) const
    {
        QFile file(Path());
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }

    template <class Part> Part& Find(const char* name) { return *pane.findChild<Part*>(QLatin1String(name)); }
    HexTextPane& Pos() { return Find<HexTextPane>("rtfHexPos"); }
    HexTextPane& Hex() { return Find<HexTextPane>("rtfHexHex"); }
    HexTextPane& Ascii() { return Find<HexTextPane>("rtfHexAscii"); }
    std::array<HexTextPane*, 3> Panes() { return {&Pos(), &Hex(), &Ascii()}; }
    QScrollBar& Bar() { return Find<QScrollBar>("sclHex"); }
    QComboBox& Pages() { return Find<QComboBox>("cmbHexCodepage"); }
    QWidget& Area() { return Find<QWidget>("picHexArea"); }

    void Key(HexTextPane& column, Qt::Key key) { QTest::keyClick(&column, key); }

    // The pane's byte is selected in the three columns, and can be seen in them at the same height.
    bool ShowsByte(std::int32_t byte)
    {
        const int bpl = pane.HexBytesPerLine(), line = byte / bpl, column = byte % bpl;
        const auto selects = [&](const HexTextPane& of, int at, int length) {
            const QTextCursor cursor = of.textCursor();
            return cursor.selectionStart() == of.document()->findBlockByNumber(line).position() + at &&
                   cursor.selectionEnd() - cursor.selectionStart() == length;
        };
        return pane.HexCaret() == byte && selects(Pos(), 0, 0) && selects(Hex(), 3 * column, 2) &&
               selects(Ascii(), column, 1) && IsInSight(line);
    }
    bool ShowsNoByte()
    {
        for (const HexTextPane* const column : Panes())
            if (column->textCursor().position() != 0 || column->textCursor().hasSelection()) return false;
        return pane.HexCaret() == 0 && IsInSight(0);
    }
    int TopOf(HexTextPane& column, int line)
    {
        const QTextCursor cursor(column.document()->findBlockByNumber(line));
        return column.viewport()->mapTo(&pane, column.cursorRect(cursor).topLeft()).y();
    }
    bool IsInSight(int line)
    {
        const int top = TopOf(Hex(), line), area = Area().mapTo(&pane, QPoint(0, 0)).y();
        return top == TopOf(Pos(), line) && top == TopOf(Ascii(), line) && top >= area &&
               top + Hex().LineHeight() <= std::max(area + Area().height(), area + Hex().LineHeight());
    }
    void Click(HexTextPane& column, int position, qreal within)
    {
        QTextCursor cursor(column.document());
        cursor.setPosition(position);
        const qreal width = QFontMetricsF(column.font()).horizontalAdvance(QLatin1Char('0'));
        const QRect place = column.cursorRect(cursor);
        QTest::mouseClick(column.viewport(), Qt::LeftButton, {},
                          QPoint(qRound(place.left() + within * width), place.center().y()));
    }

    HexPane pane;

private:
    QTemporaryDir folder_;
};

}  // namespace folioscope::test
