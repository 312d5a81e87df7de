#pragma once

#include <QFrame>
#include <QString>

#include <array>
#include <cstdint>
#include <vector>

#include "base/labels.h"
#include "codepages/clsCPConversions.h"
#include "viewers/hex_layout.h"

class QComboBox;
class QScrollBar;

namespace folioscope {

class HexTextPane;

// The bytes of a record as they lie in the file, with a few in front and behind: positions, values, and the same bytes
// as text in a code page that the user picks. It shows and changes nothing.
class HexPane final : public QFrame {
    Q_OBJECT

public:
    // `codepage` is the one in force at first.
    HexPane(std::int32_t codepage, const Labels& texts, QWidget* parent);

    void SetTexts(const Labels& texts);
    void SetFile(const QString& path);
    // lngStart: position of the record's length field in the file, from 1; 0: the node has none, and the pane is
    // disabled with the text that it has. A hidden pane doesn't take part.
    void ShowRecord(std::int32_t lngStart, std::int32_t lngLength);
    // The document window's, in pixels: it decides how many bytes stand on a line.
    void SetWindowWidth(int pixels);

    // The part of the file that is on show.
    const HexWindow& Window() const { return window_; }
    // Index of the current byte, from the beginning of that part.
    std::int32_t HexCaret() const { return HexCaret_; }
    int HexBytesPerLine() const { return fit_.bytesPerLine; }

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void FillCodePages(std::int32_t codepage);
    void EnableParts(bool enabled);
    std::vector<std::uint8_t> ReadWindow() const;
    std::int64_t FileSize() const;

    void Render();
    void RenderText();
    void ShowStart();
    void ShowAgain();

    void MoveCaret(std::int64_t byte);
    void ShowCaret();
    void SelectByte();
    void BringToSight(int line);
    void BringColumnToSight();
    void Announce();
    void KeyInPane(HexColumn column, int key);
    void ClickInPane(HexColumn column, std::int32_t position);
    void sclHex_Change();
    void cmbHexCodepage_Click();

    void TakeFont();
    void Place();
    void PlaceColumns();
    HexScroll Scroll(int height) const;  // if the lines have so many pixels
    void PlaceScrollBar();
    int ColumnWidth(HexColumn column) const;
    int SheetWidth() const;
    int FrameWidth() const;
    int VisibleLines() const;
    int LineCount() const;
    HexTextPane& PaneOf(HexColumn column) const { return *panes_[static_cast<std::size_t>(column)]; }

    QString path_;
    std::int64_t knownSize_ = kLongestFile;  // in case that the file has gone
    HexWindow window_;
    HexFit fit_;
    std::vector<std::uint8_t> HexBytes_;
    std::int32_t HexCaret_ = 0;
    bool isByteShown_ = false;  // the panes have the current byte selected
    bool HexUpdating_ = false;
    int top_ = 0;  // the line at the top of the panes

    clsCPConversions conversions_;
    QComboBox* cmbHexCodepage_;
    QFrame* sheet_;        // the columns' frame
    QWidget* picHexArea_;  // what can be seen of them
    std::array<HexTextPane*, kHexColumns.size()> panes_;
    QScrollBar* across_;  // for a window that is too narrow for the columns
    QScrollBar* sclHex_;
};

}  // namespace folioscope
