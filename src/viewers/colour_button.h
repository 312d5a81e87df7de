#pragma once

#include <QPushButton>

#include <cstdint>

namespace folioscope {

// Colours of the settings are numbers 0xBBGGRR.
inline QColor ColourOf(std::int32_t bgr) { return QColor(bgr & 0xFF, bgr >> 8 & 0xFF, bgr >> 16 & 0xFF); }
inline std::int32_t NumberOf(const QColor& colour) { return colour.blue() << 16 | colour.green() << 8 | colour.red(); }

// A button that shows a colour beside its words, and tells it to a screen reader as #RRGGBB.
class ColourButton final : public QPushButton {
    Q_OBJECT

public:
    using QPushButton::QPushButton;

    std::int32_t Colour() const { return colour_; }  // 0xBBGGRR
    void SetColour(std::int32_t bgr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void ShowColour();

    std::int32_t colour_ = 0;
};

}  // namespace folioscope
