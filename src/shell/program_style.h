#pragma once

#include <QProxyStyle>

namespace folioscope {

// The desktop's style, with the buttons of all dialogs alike: words without pictures.
class ProgramStyle final : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override
    {
        return hint == SH_DialogButtonBox_ButtonsHaveIcons ? 0 : QProxyStyle::styleHint(hint, option, widget, answer);
    }
};

}  // namespace folioscope
