#pragma once

#include <QColor>
#include <QFont>
#include <QFontMetrics>
#include <QIcon>
#include <QPalette>
#include <QRect>
#include <QString>

#include <array>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "document/structure_tree.h"
#include "shell/node_icons.h"

class QPainter;
class QWidget;

namespace folioscope {

// A node's text, measured. A long one is cut in pieces, of which only those in sight are drawn.
struct RowText {
    struct Piece {
        QString text;
        int width = 0;  // in device independent pixels, as all lengths here
    };
    std::string tagged;
    std::vector<Piece> pieces;
    int width = 0;
    QColor color;
    bool bold = false, red = false;
};

// What a row looks like, apart from its text.
struct RowLook {
    std::uint32_t depth = 0;
    int image = 0;
    bool expandable = false, expanded = false;
    bool selected = false, hovered = false, arrowHovered = false;
    bool focused = false;  // the view has the keyboard
};

// Measures and draws the rows of a tree.
class RowPainter {
public:
    explicit RowPainter(const QWidget& view);

    // After a change of font, style or palette.
    void Adopt(const QWidget& view);
    void SetIcons(const NodeIcons& icons);

    const RowText& TextOf(const StructureTree& tree, std::uint32_t node);
    void Forget() { texts_.clear(); }

    // From the left edge of the whole tree.
    int RowHeight() const { return rowHeight_; }
    int ArrowLeft(std::uint32_t depth) const;
    int ArrowWidth() const { return indent_; }
    int RowRight(std::uint32_t depth, const RowText& text) const;

    // `row`: the row's part of the viewport; `offset`: how far the tree is scrolled to the right.
    void Paint(QPainter& painter, const QRect& row, int offset, const RowLook& look, const RowText& text) const;

private:
    struct Colors {
        QColor ground, text;
        bool onHighlight;
    };

    int TextLeft(std::uint32_t depth, bool red) const;
    Colors ColorsOf(const RowLook& look, const RowText& text) const;
    void PaintFocus(QPainter& painter, const QRect& row, const Colors& colors) const;
    void PaintArrow(QPainter& painter, const QRect& cell, const RowLook& look, const Colors& colors) const;
    void PaintIcon(QPainter& painter, const QRect& cell, const RowLook& look, const Colors& colors) const;
    void PaintMark(QPainter& painter, const QRect& cell, const Colors& colors) const;

    const QWidget* view_;
    std::array<QIcon, kNodeImages> icons_;
    QFont font_, boldFont_;
    QPalette palette_;
    int indent_ = 0, iconSize_ = 0, markSize_ = 0, rowHeight_ = 0;
    std::unordered_map<std::uint32_t, RowText> texts_;  // of rows that were seen lately
};

}  // namespace folioscope
