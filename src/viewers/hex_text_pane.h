#pragma once

#include <QPlainTextEdit>
#include <QString>

#include "viewers/hex_layout.h"

namespace folioscope {

class EvenLines;

// A column of the hex pane: lines of text that are all equally high, a selection that the code sets, and a mark in red
// and bold. It hands on keys and clicks and does nothing of its own with them.
// Positions of characters count a line end as two, as hex_layout.h does; in the document it is one.
class HexTextPane final : public QPlainTextEdit {
    Q_OBJECT

public:
    enum class Ink : std::uint8_t { Black, Green };

    HexTextPane(const QString& name, Ink ink, QWidget* parent);

    // Lines end in CR LF. Empty ones are added until there are `lines`, so that all columns can show the same ones.
    void SetText(const QString& text, int charactersPerLine, int lines, TextRange mark);
    void Select(TextRange range);
    std::int32_t SelStart() const;
    // The line that stands at the top.
    void ShowFrom(int line);

    // In pixels: as the scroll bar reckons with, or more for a bigger font.
    int LineHeight() const { return lineHeight_; }
    // What a line of so many characters needs, with the space at its sides.
    int WidthOf(int characters) const;
    // Where the selection stands.
    QRect SelectionRect() const;

Q_SIGNALS:
    void KeyPressed(int key);
    void Clicked(std::int32_t position);
    void Entered();  // it has the focus now

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void TakeFont();
    void Colour();
    void Mark(QTextCursor& cursor) const;
    QTextCharFormat TextFormat() const;
    QTextCharFormat MarkFormat() const;
    void Click(QMouseEvent& event);
    int InDocument(std::int32_t position) const;
    std::int32_t FromDocument(int position) const;

    Ink ink_;
    EvenLines* lines_;
    int lineHeight_ = 0;
    int charactersPerLine_ = 1;
    TextRange mark_;
};

}  // namespace folioscope
