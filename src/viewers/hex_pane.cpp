#include "viewers/hex_pane.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFontInfo>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cstdlib>

#include "codepages/system_page.h"
#include "viewers/codepage_text.h"
#include "viewers/hex_text_pane.h"
#include "viewers/qt_text.h"

namespace folioscope {

namespace {

using Ink = HexTextPane::Ink;
using enum HexColumn;

constexpr std::int32_t kUnicodePage = 1200;  // not single-byte: nothing is converted from it
constexpr int kEdge = 2, kPositionGap = 8;   // in pixels
constexpr int kLowest = (kLowestTwips + kTwipsPerPixel - 1) / kTwipsPerPixel;

struct ColumnRow {
    HexColumn column;
    const char* name;
    Ink ink;
    Label label;
};

// clang-format off
constexpr ColumnRow kColumns[] = {
    {Position, "rtfHexPos",   Ink::Black, U("Position in the file")},
    {Byte,     "rtfHexHex",   Ink::Black, U("Bytes in hexadecimal")},
    {Text,     "rtfHexAscii", Ink::Green, U("Bytes as text")},
};
// clang-format on

// The system's font with characters of one width, in no smaller size than the other texts have.
QFont FixedFont(const QFont& other)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSizeF(std::max(QFontInfo(font).pointSizeF(), QFontInfo(other).pointSizeF()));
    font.setKerning(false);
    return font;
}

int Twips(int pixels) { return pixels * kTwipsPerPixel; }

}  // namespace

HexPane::HexPane(std::int32_t codepage, const Labels& texts, QWidget* parent)
    : QFrame(parent), fit_(FitFor(0)), cmbHexCodepage_(new QComboBox(this)), sheet_(new QFrame(this)),
      picHexArea_(new QWidget(sheet_)), panes_{}, across_(new QScrollBar(Qt::Horizontal, this)),
      sclHex_(new QScrollBar(Qt::Vertical, this))
{
    setObjectName(QStringLiteral("picHex"));
    cmbHexCodepage_->setObjectName(QStringLiteral("cmbHexCodepage"));
    picHexArea_->setObjectName(QStringLiteral("picHexArea"));
    sclHex_->setObjectName(QStringLiteral("sclHex"));
    sheet_->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    sheet_->setAutoFillBackground(true);
    sheet_->setBackgroundRole(QPalette::Base);
    for (const ColumnRow& row : kColumns) {
        auto* const pane = new HexTextPane(QLatin1String(row.name), row.ink, picHexArea_);
        panes_[static_cast<std::size_t>(row.column)] = pane;
        const HexColumn column = row.column;
        connect(pane, &HexTextPane::KeyPressed, this, [this, column](int key) { KeyInPane(column, key); });
        connect(pane, &HexTextPane::Clicked, this, [this, column](int position) { ClickInPane(column, position); });
        connect(pane, &HexTextPane::Entered, this, &HexPane::BringColumnToSight);
    }
    sclHex_->hide();
    FillCodePages(codepage);
    connect(sclHex_, &QScrollBar::valueChanged, this, &HexPane::sclHex_Change);
    connect(across_, &QScrollBar::valueChanged, this, &HexPane::PlaceColumns);
    connect(cmbHexCodepage_, &QComboBox::currentIndexChanged, this, &HexPane::cmbHexCodepage_Click);
    SetTexts(texts);
    TakeFont();
    EnableParts(false);
}

void HexPane::SetTexts(const Labels& texts)
{
    for (const ColumnRow& row : kColumns) PaneOf(row.column).setAccessibleName(ToQt(texts, row.label));
    sclHex_->setAccessibleName(ToQt(texts, U("Lines of the hex viewer")));
    cmbHexCodepage_->setAccessibleName(ToQt(texts, U("Code page")));
    cmbHexCodepage_->setToolTip(ToQt(texts, U("Code page")));
}

void HexPane::FillCodePages(std::int32_t codepage)
{
    const QScopedValueRollback updating(HexUpdating_, true);
    for (const std::int32_t number : clsCPConversions::AvailableCodepages())
        if (number != kUnicodePage) cmbHexCodepage_->addItem(TextOfCodepage(number), number);
    cmbHexCodepage_->setCurrentIndex(std::max(cmbHexCodepage_->findData(codepage), 0));
}

void HexPane::EnableParts(bool enabled)
{
    sheet_->setEnabled(enabled);
    for (HexTextPane* const pane : panes_) pane->setEnabled(enabled);
    sclHex_->setEnabled(enabled);
    cmbHexCodepage_->setEnabled(enabled);
}

void HexPane::SetFile(const QString& path)
{
    path_ = path;
    knownSize_ = kLongestFile;
    knownSize_ = FileSize();
}

std::int64_t HexPane::FileSize() const
{
    const QFileInfo file(path_);
    return file.isFile() ? file.size() : knownSize_;
}

// What can't be read stays 0, and nobody is told.
std::vector<std::uint8_t> HexPane::ReadWindow() const
{
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(window_.length));
    QFile file(path_);
    // A pipe of this name would be waited for.
    if (!QFileInfo(path_).isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) return bytes;
    if (file.seek(window_.start)) file.read(reinterpret_cast<char*>(bytes.data()), window_.length);
    return bytes;
}

void HexPane::ShowRecord(std::int32_t lngStart, std::int32_t lngLength)
{
    if (isHidden()) return;
    EnableParts(lngStart > 0);
    if (lngStart <= 0) return;
    window_ = WindowAround(lngStart - 1, lngLength, FileSize());
    HexBytes_ = ReadWindow();
    HexCaret_ = 0;
    isByteShown_ = false;
    {
        const QScopedValueRollback updating(HexUpdating_, true);
        Render();
        Place();
        sclHex_->setValue(0);
        across_->setValue(0);
    }
    RenderText();
    ShowStart();
    for (HexTextPane* const pane : panes_) pane->viewport()->repaint();
}

void HexPane::SetWindowWidth(int pixels)
{
    const HexFit& fit = FitFor(Twips(pixels));
    if (fit.bytesPerLine == fit_.bytesPerLine) return;
    fit_ = fit;
    Render();
    RenderText();
    Place();
    ShowAgain();
}

void HexPane::Render()
{
    const int bpl = fit_.bytesPerLine;
    PaneOf(Position).SetText(QString::fromStdString(LinesOfPositions(window_, bpl)), CharactersPerLine(Position, bpl),
                             0, {});
    PaneOf(Byte).SetText(QString::fromStdString(LinesOfBytes(HexBytes_, bpl)), CharactersPerLine(Byte, bpl),
                         LineCount(), RangeOfItem(Byte, window_, bpl));
}

void HexPane::RenderText()
{
    const std::int32_t page = cmbHexCodepage_->currentData().toInt();
    std::vector<std::uint8_t> target(HexBytes_.size());
    conversions_.ConvertCPArray(page, kSystemCodePage, HexBytes_, target);
    HideControls(target);
    const int bpl = fit_.bytesPerLine;
    PaneOf(Text).SetText(QString::fromStdU16String(LinesOfCharacters(target, bpl)), CharactersPerLine(Text, bpl),
                         LineCount(), RangeOfItem(Text, window_, bpl));
}

void HexPane::cmbHexCodepage_Click()
{
    if (HexUpdating_ || !PaneOf(Text).isEnabled()) return;
    RenderText();
    ShowAgain();
}

void HexPane::ShowStart()
{
    for (HexTextPane* const pane : panes_) pane->Select({});
    BringToSight(0);
    Announce();
}

// Where the user was, after the panes have got other text.
void HexPane::ShowAgain()
{
    if (isByteShown_)
        ShowCaret();
    else
        ShowStart();
}

void HexPane::MoveCaret(std::int64_t byte)
{
    HexCaret_ = ClampByte(byte, window_.length);
    ShowCaret();
}

void HexPane::ShowCaret()
{
    SelectByte();
    const QScopedValueRollback updating(HexUpdating_, true);
    sclHex_->setValue(HexCaret_ / fit_.bytesPerLine);
}

void HexPane::SelectByte()
{
    isByteShown_ = true;
    for (const HexColumn column : {Byte, Text, Position})
        PaneOf(column).Select(RangeOfByte(column, HexCaret_, window_.length, fit_.bytesPerLine));
    BringToSight(HexCaret_ / fit_.bytesPerLine);
    BringColumnToSight();
    Announce();
}

// As little as needed, and all panes alike.
void HexPane::BringToSight(int line)
{
    const int visible = VisibleLines();
    top_ = std::clamp(top_, std::max(line - visible + 1, 0), line);
    top_ = std::min(top_, std::max(LineCount() - visible, 0));
    for (HexTextPane* const pane : panes_) pane->ShowFrom(top_);
}

void HexPane::BringColumnToSight()
{
    if (across_->isHidden()) return;
    const auto focused = std::ranges::find_if(panes_, [](const HexTextPane* pane) { return pane->hasFocus(); });
    const HexTextPane& pane = focused != panes_.end() ? **focused : PaneOf(Byte);
    const int left = pane.SelectionRect().left() + pane.x() + across_->value();
    const int right = pane.SelectionRect().right() + pane.x() + across_->value();
    across_->setValue(std::clamp(across_->value(), right + kPositionGap - picHexArea_->width(),
                                 std::max(left - kPositionGap, right + kPositionGap - picHexArea_->width())));
}

// For those who don't see it: where the current byte stands in the file, and its value.
void HexPane::Announce()
{
    QString place;
    if (isByteShown_ && !HexBytes_.empty()) {
        const auto digits = [](std::int64_t value, int width) {
            return QStringLiteral("%1").arg(value, width, 16, QLatin1Char('0')).toUpper();
        };
        place = digits(std::int64_t{window_.start} + HexCaret_, 8) + QLatin1String(": ") +
                digits(HexBytes_[static_cast<std::size_t>(HexCaret_)], 2);
    }
    for (HexTextPane* const pane : panes_) pane->setAccessibleDescription(place);
}

void HexPane::KeyInPane(HexColumn column, int key)
{
    const int line = fit_.bytesPerLine;
    switch (key) {
    case Qt::Key_Left:
        if (column != Position) MoveCaret(HexCaret_ - 1);
        return;
    case Qt::Key_Right:
        if (column != Position) MoveCaret(HexCaret_ + 1);
        return;
    case Qt::Key_Up: return MoveCaret(HexCaret_ - line);
    case Qt::Key_Down: return MoveCaret(HexCaret_ + line);
    case Qt::Key_PageUp: return sclHex_->setValue(sclHex_->value() - sclHex_->pageStep());
    case Qt::Key_PageDown: return sclHex_->setValue(sclHex_->value() + sclHex_->pageStep());
    case Qt::Key_Home: return sclHex_->setValue(sclHex_->minimum());
    case Qt::Key_End: return sclHex_->setValue(sclHex_->maximum());
    default: return;
    }
}

void HexPane::ClickInPane(HexColumn column, std::int32_t position)
{
    MoveCaret(ByteUnder(column, position, window_.length, fit_.bytesPerLine));
}

void HexPane::sclHex_Change()
{
    if (HexUpdating_) return;
    HexCaret_ = ClampByte(std::int64_t{fit_.bytesPerLine} * sclHex_->value(), window_.length);
    SelectByte();
}

int HexPane::LineCount() const { return (window_.length + fit_.bytesPerLine - 1) / fit_.bytesPerLine; }

int HexPane::VisibleLines() const { return std::max(picHexArea_->height() / PaneOf(Byte).LineHeight(), 1); }

int HexPane::ColumnWidth(HexColumn column) const
{
    const int least = column == Byte ? fit_.byteWidth : column == Text ? fit_.textWidth : 0;
    // Without the line end, and, behind bytes, without the blank.
    const int characters = CharactersPerLine(column, fit_.bytesPerLine) - (column == Byte ? 3 : 2);
    return std::max(least / kTwipsPerPixel, PaneOf(column).WidthOf(characters));
}

int HexPane::SheetWidth() const
{
    return ColumnWidth(Position) + kPositionGap + ColumnWidth(Byte) + kColumnGapTwips / kTwipsPerPixel +
           ColumnWidth(Text);
}

void HexPane::TakeFont()
{
    for (HexTextPane* const pane : panes_) pane->setFont(FixedFont(font()));
    const int frame = 2 * FrameWidth(), combo = cmbHexCodepage_->sizeHint().height();
    setMinimumHeight(std::max(kLowest, combo + 3 * kEdge + frame + PaneOf(Byte).LineHeight()));
    Place();
}

// At some scales the lower line of the frame is painted a little further in.
int HexPane::FrameWidth() const { return sheet_->frameWidth() + 1; }

// The combo box above, the sheet with the columns below it, and at its side, where there are more lines than fit, its
// scroll bar. Whether the columns find room is decided as if that were there, so that they stay where they are.
void HexPane::Place()
{
    const int bar = sclHex_->sizeHint().width(), frame = FrameWidth();
    const int top = cmbHexCodepage_->sizeHint().height() + 2 * kEdge;
    const int high = std::max(height() - top - kEdge, 0);
    const auto inside = [&](int beside) { return std::max(width() - beside - 2 * (kEdge + frame), 0); };
    const bool narrow = inside(bar) < SheetWidth();
    const int below = narrow ? across_->sizeHint().height() : 0;
    const int lines = std::max(high - 2 * frame - below, 0);
    const int wide = inside(Scroll(lines).needed ? bar : 0);

    sheet_->setGeometry(kEdge, top, wide + 2 * frame, high);
    sclHex_->setGeometry(width() - kEdge - bar, top, bar, high);
    picHexArea_->setGeometry(frame, frame, wide, lines);
    across_->setGeometry(kEdge + frame, top + high - frame - below, wide, below);
    across_->setVisible(narrow);
    across_->setRange(0, narrow ? std::max(SheetWidth() - wide, 0) : 0);
    across_->setPageStep(std::max(wide, 1));
    across_->setSingleStep(3 * PaneOf(Byte).fontMetrics().horizontalAdvance(QLatin1Char('0')));
    PlaceColumns();
    PlaceScrollBar();
    BringToSight(isByteShown_ ? HexCaret_ / fit_.bytesPerLine : 0);
}

void HexPane::PlaceColumns()
{
    const int high = picHexArea_->height();
    int left = -across_->value();
    const auto place = [&](HexColumn column, int gap) {
        PaneOf(column).setGeometry(left, 0, ColumnWidth(column), high);
        left += ColumnWidth(column) + gap;
    };
    place(Position, kPositionGap);
    place(Byte, kColumnGapTwips / kTwipsPerPixel);
    place(Text, 0);

    const int edge = sheet_->x() + FrameWidth();
    const int right = edge + std::min(left, picHexArea_->width());
    const int wide = std::min(cmbHexCodepage_->sizeHint().width(), std::max(right - edge, 0));
    cmbHexCodepage_->setGeometry(right - wide, kEdge, wide, cmbHexCodepage_->sizeHint().height());
}

HexScroll HexPane::Scroll(int height) const
{
    return ScrollFor(window_.length, fit_.bytesPerLine, Twips(height), Twips(PaneOf(Byte).LineHeight()));
}

// The byte that is the current one stays it.
void HexPane::PlaceScrollBar()
{
    const QScopedValueRollback updating(HexUpdating_, true);
    const HexScroll scroll = Scroll(picHexArea_->height());
    sclHex_->setVisible(scroll.needed);
    sclHex_->setRange(0, scroll.last);
    sclHex_->setSingleStep(1);
    sclHex_->setPageStep(scroll.page);
    sclHex_->setValue(isByteShown_ ? HexCaret_ / fit_.bytesPerLine : 0);
}

void HexPane::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) TakeFont();
}

void HexPane::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    Place();
}

void HexPane::wheelEvent(QWheelEvent* event)
{
    const QPoint turned = event->angleDelta();
    const bool sideways = std::abs(turned.x()) > std::abs(turned.y());
    QScrollBar* const bar = sideways ? across_ : sclHex_;
    if (!bar->isHidden()) QCoreApplication::sendEvent(bar, event);
    event->accept();
}

}  // namespace folioscope
