#include "shell/property_pane.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextOption>

#include <algorithm>

#include "shell/dropped_files.h"
#include "shell/marked_colours.h"
#include "shell/open_in_browser.h"
#include "viewers/access_keys.h"
#include "viewers/qt_text.h"

namespace folioscope {

namespace {

// In device independent pixels. Behind the last tab stop they follow each other at the usual distance.
constexpr qreal kFirstTab = 106, kSecondTab = 269, kUsualTab = 48, kTabGap = 4, kContinued = 16;
constexpr int kHeadLines = 3;

// Long values wrap under their own start, which is the first tab stop.
QTextBlockFormat LineFormat(qreal firstTab)
{
    QTextBlockFormat format;
    format.setLeftMargin(firstTab);
    format.setTextIndent(-firstTab);
    format.setTabPositions({QTextOption::Tab(firstTab, QTextOption::LeftTab),
                            QTextOption::Tab(std::max(kSecondTab, firstTab + kUsualTab), QTextOption::LeftTab)});
    return format;
}

// A line without a value beside it goes on nearly where it begins.
void IndentPlainLines(QTextDocument& document, QTextBlockFormat format)
{
    format.setLeftMargin(kContinued);
    format.setTextIndent(-kContinued);
    for (QTextBlock line = document.begin(); line.isValid(); line = line.next())
        if (!line.text().contains(QLatin1Char('\t'))) QTextCursor(line).setBlockFormat(format);
}

// The tab stop stands further right where the words of the head lines are too long for it, as in French or in a large
// font: their values stand below each other all the same.
qreal FirstTabFor(QStringView marked, const QFont& font)
{
    qreal widest = kFirstTab;
    for (int line = 0; line < kHeadLines && !marked.isEmpty(); ++line) {
        const qsizetype end = marked.indexOf(QLatin1Char('\n')), tab = marked.indexOf(QLatin1Char('\t'));
        if (tab >= 0 && (end < 0 || tab < end))
            widest = std::max(widest, QFontMetricsF(font).horizontalAdvance(marked.first(tab).toString()) + kTabGap);
        marked = end < 0 ? QStringView() : marked.sliced(end + 1);
    }
    return widest;
}

// A menu entry that names the key it has in the pane.
QString WithKey(const QString& text, QKeySequence::StandardKey key)
{
    return text + QLatin1Char('\t') + QKeySequence(key).toString(QKeySequence::NativeText);
}

}  // namespace

PropertyPane::PropertyPane(const Labels& texts, QWidget* parent)
    : QTextEdit(parent), texts_(texts), opener_(OpenInBrowser)
{
    setObjectName(QStringLiteral("txtProperties"));
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setUndoRedoEnabled(false);
    setTabChangesFocus(true);
    setTabStopDistance(kUsualTab);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    viewport()->setMouseTracking(true);
    SetTexts(texts);
}

void PropertyPane::SetTexts(const Labels& texts)
{
    texts_ = texts;
    setAccessibleName(ToQt(texts_, U("Properties")));
}

void PropertyPane::ShowPropertyText(std::string_view marked)
{
    marked_ = ToQt(marked);
    Fill();
    viewport()->repaint();
}

// A document that is new as a whole is laid out only as far as it is in sight; what follows comes while the user looks.
void PropertyPane::Fill()
{
    setUpdatesEnabled(false);
    link_.clear();
    auto* const next = new QTextDocument(document()->parent());  // which deletes the one before
    next->setUndoRedoEnabled(false);
    next->setDefaultFont(font());
    next->setDefaultTextOption(document()->defaultTextOption());
    QTextCursor cursor(next);
    cursor.beginEditBlock();
    const QTextBlockFormat format = LineFormat(FirstTabFor(marked_, font()));
    cursor.setBlockFormat(format);
    ForEachPiece(marked_, [&](QStringView piece, const TextLook& look) {
        if (look.colour == TextColour::Blue) link_ += piece;
        cursor.insertText(piece.toString(), FormatOf(look));
    });
    IndentPlainLines(*next, format);
    cursor.endEditBlock();
    setDocument(next);
    verticalScrollBar()->setValue(0);
    setUpdatesEnabled(true);
}

QTextCharFormat PropertyPane::FormatOf(const TextLook& look) const
{
    QTextCharFormat format;
    if (look.bold) format.setFontWeight(QFont::Bold);
    if (look.underlined) format.setFontUnderline(true);
    if (look.colour == TextColour::Red) format.setForeground(RedOn(palette()));
    if (look.colour == TextColour::Blue) format.setForeground(BlueOn(palette()));
    return format;
}

void PropertyPane::changeEvent(QEvent* event)
{
    QTextEdit::changeEvent(event);
    if (event->type() != QEvent::PaletteChange || marked_.isEmpty()) return;
    const int anchor = textCursor().anchor(), position = textCursor().position(), top = verticalScrollBar()->value();
    Fill();
    QTextCursor cursor = textCursor();
    cursor.setPosition(anchor);
    cursor.setPosition(position, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    document()->documentLayout()->documentSize();  // lays out all of it, so that every place can be scrolled to
    verticalScrollBar()->setValue(top);
}

void PropertyPane::OpenLinks()
{
    if (link_.isEmpty()) return;
    const QString address = LinkAddress(link_);
    if (!opener_(address)) Q_EMIT LinkNotOpened(address);
}

void PropertyPane::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        OpenLinks();
    else
        QTextEdit::keyPressEvent(event);
}

void PropertyPane::mousePressEvent(QMouseEvent* event)
{
    QTextEdit::mousePressEvent(event);
    pressed_.reset();
    if (event->button() == Qt::LeftButton) pressed_ = event->pos();
}

void PropertyPane::mouseMoveEvent(QMouseEvent* event)
{
    QTextEdit::mouseMoveEvent(event);
    viewport()->setCursor(IsLinkAt(event->pos()) ? Qt::PointingHandCursor : Qt::IBeamCursor);
}

// Marking text by drawing over it is no click.
void PropertyPane::mouseReleaseEvent(QMouseEvent* event)
{
    QTextEdit::mouseReleaseEvent(event);
    if (event->button() != Qt::LeftButton || !pressed_) return;
    const bool clicked = (event->pos() - *pressed_).manhattanLength() < QApplication::startDragDistance();
    pressed_.reset();
    if (clicked) OpenLinks();
}

bool PropertyPane::IsLinkAt(const QPoint& place) const
{
    const QPointF scrolled = place + QPointF(horizontalScrollBar()->value(), verticalScrollBar()->value());
    const int position = document()->documentLayout()->hitTest(scrolled, Qt::ExactHit);
    if (position < 0) return false;
    QTextCursor cursor(document());
    cursor.setPosition(std::min(position + 1, document()->characterCount() - 1));
    return cursor.charFormat().fontUnderline();
}

void PropertyPane::contextMenuEvent(QContextMenuEvent* event)
{
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction* const copying =
        menu->addAction(WithKey(ToQt(texts_, U("Copy")), QKeySequence::Copy), this, &QTextEdit::copy);
    copying->setEnabled(textCursor().hasSelection());
    menu->addAction(WithKey(ToQt(texts_, U("Select all")), QKeySequence::SelectAll), this, &QTextEdit::selectAll)
        ->setEnabled(!document()->isEmpty());
    GiveAccessKeys(*menu);
    menu->popup(event->globalPos());
}

// Plain text only, and all of its characters: a format would bring the colours of this palette along.
QMimeData* PropertyPane::createMimeDataFromSelection() const
{
    QString text = textCursor().selectedText();
    text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    auto* const copied = new QMimeData;
    copied->setText(text);
    return copied;
}

void PropertyPane::dragEnterEvent(QDragEnterEvent* event)
{
    if (LocalFilesOf(*event->mimeData()).isEmpty())
        event->ignore();
    else
        event->acceptProposedAction();
}

void PropertyPane::dragMoveEvent(QDragMoveEvent* event) { event->acceptProposedAction(); }

void PropertyPane::dropEvent(QDropEvent* event)
{
    const QStringList paths = LocalFilesOf(*event->mimeData());
    if (paths.isEmpty()) return event->ignore();
    event->acceptProposedAction();
    Q_EMIT FilesDropped(paths);
}

}  // namespace folioscope
