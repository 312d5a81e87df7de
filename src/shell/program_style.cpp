#include "shell/program_style.h"

#include <QGuiApplication>
#include <QPainter>
#include <QStyleOptionGroupBox>
#include <QStyleOptionMenuItem>
#include <QWidget>

#include <algorithm>

#include "shell/icons.h"
#include "shell/shade.h"

namespace folioscope {

namespace {

// Frames that Qt's own style derives from the ground, darker than it.
struct OutlineRow {
    QStyle::PrimitiveElement part;
    int shade;  // percent
    double radius;
    bool showsFocus;
};

struct SignRow {
    QStyle::StandardPixmap picture;
    const char *ofDesktop, *own;
};

// clang-format off
constexpr OutlineRow kOutlines[] = {
    {QStyle::PE_IndicatorCheckBox, 60, 0, true},
    {QStyle::PE_FrameLineEdit,     40, 2, true},
    {QStyle::PE_PanelMenu,         30, 0, false},
    {QStyle::PE_Frame,             20, 0, false},
};

constexpr SignRow kSigns[] = {
    {QStyle::SP_MessageBoxCritical,    "dialog-error",       "sign_critical"},
    {QStyle::SP_MessageBoxInformation, "dialog-information", "sign_information"},
    {QStyle::SP_MessageBoxQuestion,    "dialog-question",    "sign_question"},
    {QStyle::SP_MessageBoxWarning,     "dialog-warning",     "sign_warning"},
};

constexpr QStyle::StandardPixmap kBlackSigns[] = {
    QStyle::SP_TitleBarMinButton,
    QStyle::SP_TitleBarNormalButton,
    QStyle::SP_TitleBarCloseButton,
    QStyle::SP_ToolBarHorizontalExtensionButton,
};
// clang-format on

constexpr int kFocusLight = 150;  // percent
constexpr OutlineRow kGroupBox = {QStyle::PE_FrameGroupBox, 25, 2, false};

void DrawOutline(const OutlineRow& row, const QStyleOption& option, const QRect& rect, QPainter& painter)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, row.radius > 0);
    painter.setBrush(Qt::NoBrush);
    const bool focused = row.showsFocus && (option.state & QStyle::State_HasFocus) != 0;
    painter.setPen(focused ? option.palette.color(QPalette::Highlight).lighter(kFocusLight)
                           : ShadeOf(option.palette, row.shade));
    const QRectF frame = QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.drawRoundedRect(frame, row.radius, row.radius);
    painter.restore();
}

// Items of menus are drawn as active ones, as are buttons under the pointer, but on the colour of a selection.
QStyleOptionMenuItem WithIconForSelection(QStyleOptionMenuItem item, qreal scale, int side)
{
    const QPixmap selected = item.icon.pixmap(QSize(side, side), scale, QIcon::Selected);
    item.icon = QIcon();
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Active}) item.icon.addPixmap(selected, mode);
    return item;
}

QPixmap InColour(QPixmap drawn, const QColor& colour)
{
    QPainter painter(&drawn);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(drawn.rect(), colour);
    return drawn;
}

QIcon InColourOfText(const QIcon& icon, const QPalette& palette)
{
    QIcon coloured;
    for (const QSize& size : icon.availableSizes())
        coloured.addPixmap(InColour(icon.pixmap(size, 1.0), palette.color(QPalette::WindowText)));
    return coloured.isNull() ? icon : coloured;
}

}  // namespace

// The style of Qt that is made for light grounds. Those of a desktop know theirs.
bool ProgramStyle::IsTooDark(const QPalette& palette) const
{
    return IsGroundDark(palette) && baseStyle()->name() == QLatin1String("fusion");
}

int ProgramStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* answer) const
{
    return hint == SH_DialogButtonBox_ButtonsHaveIcons ? 0 : QProxyStyle::styleHint(hint, option, widget, answer);
}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const auto* const row = std::ranges::find(kOutlines, element, &OutlineRow::part);
    if (row != std::end(kOutlines) && option != nullptr && IsTooDark(option->palette))
        DrawOutline(*row, *option, option->rect, *painter);
}

void ProgramStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                      const QWidget* widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    const auto* const box = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
    if (control != CC_GroupBox || box == nullptr || !IsTooDark(box->palette)) return;
    // The frame begins below its title.
    constexpr int kAbove = 3;
    const int title =
        box->text.isEmpty() ? 0 : std::max(pixelMetric(PM_IndicatorHeight, option), box->fontMetrics.height());
    const QRect frame = subControlRect(CC_GroupBox, option, SC_GroupBoxFrame, widget);
    DrawOutline(kGroupBox, *option, frame.adjusted(0, title + kAbove, 0, 0), *painter);
}

void ProgramStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const
{
    const auto* const item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    constexpr State kChosen = State_Selected | State_Enabled;
    if (element != CE_MenuItem || item == nullptr || item->icon.isNull() || (item->state & kChosen) != kChosen)
        return QProxyStyle::drawControl(element, option, painter, widget);
    const qreal scale = painter->device() != nullptr ? painter->device()->devicePixelRatio() : 1.0;
    const QStyleOptionMenuItem shown =
        WithIconForSelection(*item, scale, pixelMetric(PM_SmallIconSize, option, widget));
    QProxyStyle::drawControl(element, &shown, painter, widget);
}

QIcon ProgramStyle::standardIcon(StandardPixmap picture, const QStyleOption* option, const QWidget* widget) const
{
    const auto* const sign = std::ranges::find(kSigns, picture, &SignRow::picture);
    if (sign != std::end(kSigns) && !QIcon::hasThemeIcon(QLatin1String(sign->ofDesktop))) return ToolbarIcon(sign->own);
    const QIcon icon = QProxyStyle::standardIcon(picture, option, widget);
    const QPalette palette = widget != nullptr ? widget->palette() : QGuiApplication::palette();
    const bool isBlack = std::ranges::find(kBlackSigns, picture) != std::end(kBlackSigns);
    return isBlack && IsTooDark(palette) ? InColourOfText(icon, palette) : icon;
}

}  // namespace folioscope
