#include "shell/row_painter.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QStyleOption>
#include <QWidget>

#include <algorithm>

#include "shell/tagged_text.h"

namespace folioscope {

namespace {

constexpr int kMargin = 2;   // left of the first arrow, right of the longest text
constexpr int kGap = 5;      // between icon, mark and text
constexpr int kPadding = 2;  // above and below
constexpr int kMinIndent = 16;
constexpr std::uint32_t kDeepest = 1'000'000;  // rows below are indented no further
constexpr qsizetype kPiece = 256;              // characters
constexpr std::size_t kTextsKept = 1024;
constexpr double kHoverShare = 0.12, kPaleShare = 0.34, kArrowShare = 0.62;

QColor Blend(const QColor& from, const QColor& to, double share)
{
    const auto part = [share](int a, int b) { return a + static_cast<int>((b - a) * share); };
    return {part(from.red(), to.red()), part(from.green(), to.green()), part(from.blue(), to.blue())};
}

// Where a piece that begins at `from` may end: not within what is drawn as one character.
qsizetype PieceEnd(const QString& text, qsizetype from)
{
    qsizetype end = std::min(from + kPiece, text.size());
    while (end < text.size() && end < from + 2 * kPiece && (text[end].isLowSurrogate() || text[end].isMark())) ++end;
    return end;
}

}  // namespace

RowPainter::RowPainter(const QWidget& view) : view_(&view) { Adopt(view); }

void RowPainter::Adopt(const QWidget& view)
{
    font_ = boldFont_ = view.font();
    boldFont_.setBold(true);
    palette_ = view.palette();
    const QStyle* style = view.style();
    const QFontMetrics metrics(boldFont_);
    iconSize_ = style->pixelMetric(QStyle::PM_SmallIconSize, nullptr, &view);
    indent_ = std::max(kMinIndent, iconSize_);
    markSize_ = std::max(12, metrics.ascent() | 1);
    rowHeight_ = std::max(iconSize_, metrics.height()) + 2 * kPadding;
    texts_.clear();
}

void RowPainter::SetIcons(const NodeIcons& icons)
{
    for (int image = 0; image < kNodeImages; ++image)
        icons_[static_cast<std::size_t>(image)] = icons ? icons(image) : QIcon();
}

const RowText& RowPainter::TextOf(const StructureTree& tree, std::uint32_t node)
{
    std::string tagged = tree.NodeText(node);
    if (const auto found = texts_.find(node); found != texts_.end() && found->second.tagged == tagged)
        return found->second;
    if (texts_.size() >= kTextsKept) texts_.clear();
    RowText& row = texts_[node];
    row = {};
    const TaggedText parsed = ParseTaggedText(tagged);
    row.tagged = std::move(tagged);
    row.color = parsed.color;
    row.bold = parsed.bold;
    row.red = parsed.red;
    const QFontMetrics metrics(row.bold ? boldFont_ : font_);
    for (qsizetype from = 0; from < parsed.text.size();) {
        const qsizetype end = PieceEnd(parsed.text, from);
        QString piece = parsed.text.mid(from, end - from);
        const int width = metrics.horizontalAdvance(piece);
        row.pieces.push_back({std::move(piece), width});
        row.width += width;
        from = end;
    }
    return row;
}

int RowPainter::ArrowLeft(std::uint32_t depth) const
{
    return kMargin + static_cast<int>(std::min(depth, kDeepest)) * indent_;
}

int RowPainter::TextLeft(std::uint32_t depth, bool red) const
{
    return ArrowLeft(depth) + indent_ + iconSize_ + kGap + (red ? markSize_ + kGap : 0);
}

int RowPainter::RowRight(std::uint32_t depth, const RowText& text) const
{
    return TextLeft(depth, text.red) + text.width + kGap + kMargin;
}

// A selection without the keyboard is paler, and leaves the text its colours.
RowPainter::Colors RowPainter::ColorsOf(const RowLook& look, const RowText& text) const
{
    const QColor base = palette_.color(QPalette::Base),
                 highlight = palette_.color(QPalette::Active, QPalette::Highlight);
    if (look.selected && look.focused)
        return {highlight, palette_.color(QPalette::Active, QPalette::HighlightedText), true};
    const double share = look.selected ? kPaleShare : look.hovered ? kHoverShare : 0;
    const QColor ground = Blend(base, highlight, share);
    return {ground, ReadableOn(ground, text.color.isValid() ? text.color : palette_.color(QPalette::Text)), false};
}

void RowPainter::Paint(QPainter& painter, const QRect& row, int offset, const RowLook& look, const RowText& text) const
{
    const Colors colors = ColorsOf(look, text);
    if (look.selected || look.hovered) painter.fillRect(row, colors.ground);
    if (look.selected && look.focused) PaintFocus(painter, row, colors);
    int x = row.left() + ArrowLeft(look.depth) - offset;
    if (look.expandable) PaintArrow(painter, {x, row.top(), indent_, row.height()}, look, colors);
    x += indent_;
    PaintIcon(painter, {x, row.top() + (row.height() - iconSize_) / 2, iconSize_, iconSize_}, look, colors);
    x += iconSize_ + kGap;
    if (text.red) {
        PaintMark(painter, {x, row.top() + (row.height() - markSize_) / 2, markSize_, markSize_}, colors);
        x += markSize_ + kGap;
    }
    painter.setFont(text.bold ? boldFont_ : font_);
    painter.setPen(colors.text);
    for (const auto& [piece, width] : text.pieces) {
        if (x > row.right()) break;
        if (x + width >= row.left())
            painter.drawText(QRect(x, row.top(), width + kGap, row.height()),
                             Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip, piece);
        x += width;
    }
}

void RowPainter::PaintFocus(QPainter& painter, const QRect& row, const Colors& colors) const
{
    QStyleOptionFocusRect focus;
    focus.initFrom(view_);
    focus.rect = row;
    focus.backgroundColor = colors.ground;
    focus.state |= QStyle::State_KeyboardFocusChange | QStyle::State_Item;
    view_->style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, view_);
}

void RowPainter::PaintArrow(QPainter& painter, const QRect& cell, const RowLook& look, const Colors& colors) const
{
    const QColor text = colors.onHighlight ? colors.text : palette_.color(QPalette::Text);
    const double reach = iconSize_ / 5.0;
    const QPointF middle = QRectF(cell).center();
    QPainterPath path;
    if (look.expanded) {
        path.moveTo(middle + QPointF(-reach, -reach / 2));
        path.lineTo(middle + QPointF(0, reach / 2));
        path.lineTo(middle + QPointF(reach, -reach / 2));
    } else {
        path.moveTo(middle + QPointF(-reach / 2, -reach));
        path.lineTo(middle + QPointF(reach / 2, 0));
        path.lineTo(middle + QPointF(-reach / 2, reach));
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    const QColor color = look.arrowHovered ? text : Blend(colors.ground, text, colors.onHighlight ? 1 : kArrowShare);
    painter.setPen(QPen(color, look.arrowHovered ? 2.0 : 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(path);
    painter.restore();
}

void RowPainter::PaintIcon(QPainter& painter, const QRect& cell, const RowLook& look, const Colors& colors) const
{
    const QIcon* icon = look.image < kNodeImages ? &icons_[static_cast<std::size_t>(look.image)] : nullptr;
    if (icon != nullptr && !icon->isNull()) {
        icon->paint(&painter, cell, Qt::AlignCenter, colors.onHighlight ? QIcon::Selected : QIcon::Normal,
                    look.expanded ? QIcon::On : QIcon::Off);
        return;
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(
        QPen(colors.onHighlight ? colors.text : Blend(colors.ground, palette_.color(QPalette::Text), 0.5), 1));
    painter.drawRoundedRect(QRectF(cell).adjusted(3.5, 2.5, -3.5, -2.5), 1.5, 1.5);
    painter.restore();
}

// A fault is told by shape as well as by colour.
void RowPainter::PaintMark(QPainter& painter, const QRect& cell, const Colors& colors) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors.text);
    painter.drawEllipse(cell);
    const QPointF middle = QRectF(cell).center();
    const double size = cell.height(), stroke = std::max(1.5, size / 8);
    painter.setPen(QPen(colors.ground, stroke, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(middle + QPointF(0, -size * 0.26), middle + QPointF(0, size * 0.06));
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors.ground);
    painter.drawEllipse(middle + QPointF(0, size * 0.27), stroke * 0.6, stroke * 0.6);
    painter.restore();
}

}  // namespace folioscope
