#include "viewers/hex_text_pane.h"

#include <QFontMetricsF>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPlainTextDocumentLayout>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>

#include <algorithm>

namespace folioscope {

// A character from a substitute font, or a bold one, may be higher than the others. The columns would drift apart.
class EvenLines final : public QPlainTextDocumentLayout {
public:
    explicit EvenLines(QTextDocument* document) : QPlainTextDocumentLayout(document) {}

    void SetHeight(int height) { height_ = height; }

    QRectF blockBoundingRect(const QTextBlock& block) const override
    {
        QRectF place = QPlainTextDocumentLayout::blockBoundingRect(block);
        if (place.isValid()) place.setHeight(height_);
        return place;
    }

private:
    int height_ = 0;
};

namespace {

constexpr int kSideSpace = 2;  // in pixels
constexpr int kCaretWidth = 1;

bool IsDark(const QPalette& palette) { return palette.color(QPalette::Base).lightness() < 128; }

QColor Red(const QPalette& palette) { return IsDark(palette) ? QColor(255, 122, 122) : QColor(255, 0, 0); }

QColor Green(const QPalette& palette) { return IsDark(palette) ? QColor(120, 220, 120) : QColor(0, 0x9F, 0); }

}  // namespace

HexTextPane::HexTextPane(const QString& name, Ink ink, QWidget* parent)
    : QPlainTextEdit(parent), ink_(ink), lines_(nullptr)
{
    setObjectName(name);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setViewportMargins(kSideSpace, 0, kSideSpace, 0);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setCenterOnScroll(true);  // any line may stand at the top, whatever the height
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setFocusPolicy(Qt::StrongFocus);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setAcceptDrops(false);
    viewport()->setAcceptDrops(false);
    setAttribute(Qt::WA_InputMethodEnabled, false);

    auto* const text = new QTextDocument(this);
    lines_ = new EvenLines(text);
    text->setDocumentLayout(lines_);
    text->setDocumentMargin(0);
    text->setUndoRedoEnabled(false);
    setDocument(text);
    TakeFont();
}

void HexTextPane::TakeFont()
{
    lineHeight_ = std::max(kLineTwips / kTwipsPerPixel, qRound(QFontMetricsF(font()).height()));
    lines_->SetHeight(lineHeight_);
    document()->setDefaultFont(font());
    Colour();
}

int HexTextPane::WidthOf(int characters) const
{
    return qCeil(QFontMetricsF(font()).horizontalAdvance(QLatin1Char('0')) * characters) + 2 * kSideSpace + kCaretWidth;
}

QTextCharFormat HexTextPane::TextFormat() const
{
    QTextCharFormat format;
    if (ink_ == Ink::Green && isEnabled()) format.setForeground(Green(palette()));
    return format;
}

QTextCharFormat HexTextPane::MarkFormat() const
{
    QTextCharFormat format = TextFormat();
    format.setFontWeight(QFont::Bold);
    if (isEnabled()) format.setForeground(Red(palette()));
    // Bold characters that are wider than the others would push what follows out of its column.
    QFont bold = font();
    bold.setBold(true);
    const QLatin1Char digit('0');
    const qreal wider = QFontMetricsF(bold).horizontalAdvance(digit) - QFontMetricsF(font()).horizontalAdvance(digit);
    if (!qFuzzyIsNull(wider)) {
        format.setFontLetterSpacingType(QFont::AbsoluteSpacing);
        format.setFontLetterSpacing(-wider);
    }
    return format;
}

void HexTextPane::SetText(const QString& text, int charactersPerLine, int lines, TextRange mark)
{
    charactersPerLine_ = charactersPerLine;
    mark_ = mark;
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    cursor.select(QTextCursor::Document);
    cursor.insertText(text, TextFormat());
    if (const int missing = lines - blockCount(); missing > 0)
        cursor.insertText(QString(missing, QLatin1Char('\n')), TextFormat());
    Mark(cursor);
    cursor.endEditBlock();
}

void HexTextPane::Mark(QTextCursor& cursor) const
{
    if (mark_.length <= 0) return;
    cursor.setPosition(InDocument(mark_.start));
    cursor.setPosition(InDocument(mark_.start + mark_.length), QTextCursor::KeepAnchor);
    cursor.setCharFormat(MarkFormat());
}

// Gives the text that is there its looks anew, for another palette, font or state.
void HexTextPane::Colour()
{
    if (document()->isEmpty()) return;
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    cursor.select(QTextCursor::Document);
    cursor.setCharFormat(TextFormat());
    Mark(cursor);
    cursor.endEditBlock();
}

int HexTextPane::InDocument(std::int32_t position) const
{
    const int line = std::clamp(position / charactersPerLine_, 0, blockCount() - 1);
    const QTextBlock block = document()->findBlockByNumber(line);
    return block.position() + std::clamp(position - line * charactersPerLine_, 0, block.length() - 1);
}

std::int32_t HexTextPane::FromDocument(int position) const
{
    return position + document()->findBlock(position).blockNumber();
}

void HexTextPane::Select(TextRange range)
{
    QTextCursor cursor(document());
    cursor.setPosition(InDocument(range.start));
    cursor.setPosition(InDocument(range.start + range.length), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    horizontalScrollBar()->setValue(0);
}

std::int32_t HexTextPane::SelStart() const { return FromDocument(textCursor().selectionStart()); }

void HexTextPane::ShowFrom(int line) { verticalScrollBar()->setValue(line); }

QRect HexTextPane::SelectionRect() const
{
    QTextCursor start = textCursor();
    start.setPosition(textCursor().selectionStart());
    const QRect first = cursorRect(start), last = cursorRect();
    return first.united(last).translated(viewport()->pos());
}

bool HexTextPane::event(QEvent* event)
{
    // Claimed here, the window's shortcuts for copying and the like would be lost.
    if (event->type() == QEvent::ShortcutOverride) {
        event->ignore();
        return false;
    }
    return QPlainTextEdit::event(event);
}

void HexTextPane::changeEvent(QEvent* event)
{
    QPlainTextEdit::changeEvent(event);
    if (lines_ == nullptr) return;
    if (event->type() == QEvent::FontChange) TakeFont();
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::EnabledChange) Colour();
}

void HexTextPane::focusInEvent(QFocusEvent* event)
{
    QPlainTextEdit::focusInEvent(event);
    Q_EMIT Entered();
}

// With Tab the user leaves the pane, or, with Ctrl, the window.
void HexTextPane::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab) return event->ignore();
    event->accept();
    Q_EMIT KeyPressed(event->key());
}

// The character under the pointer rather than the gap nearest to it.
void HexTextPane::Click(QMouseEvent& event)
{
    event.accept();
    if (event.button() != Qt::LeftButton) return;
    const QPoint place = event.position().toPoint();
    QTextCursor cursor = cursorForPosition(place);
    if (!cursor.atBlockStart() && cursorRect(cursor).left() > place.x()) cursor.movePosition(QTextCursor::Left);
    Q_EMIT Clicked(FromDocument(cursor.position()));
}

void HexTextPane::mousePressEvent(QMouseEvent* event) { Click(*event); }

void HexTextPane::mouseDoubleClickEvent(QMouseEvent* event) { Click(*event); }

void HexTextPane::mouseMoveEvent(QMouseEvent* event) { event->accept(); }

void HexTextPane::mouseReleaseEvent(QMouseEvent* event) { event->accept(); }

// Scrolled alone it would leave the other columns behind.
void HexTextPane::wheelEvent(QWheelEvent* event) { event->ignore(); }

}  // namespace folioscope
