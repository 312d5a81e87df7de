#pragma once

#include <QTextBrowser>

namespace folioscope {

// Shows the help. Its pictures of icons, qrc:/icons/NAME.svg, appear as the icons do in the windows: in the tones for
// the palette, and sharp at any scale.
class HelpBrowser final : public QTextBrowser {
public:
    explicit HelpBrowser(QWidget* parent = nullptr);

    QVariant loadResource(int type, const QUrl& name) override;

protected:
    void changeEvent(QEvent* event) override;
};

}  // namespace folioscope
