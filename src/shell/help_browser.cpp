#include "shell/help_browser.h"

#include <QEvent>
#include <QFileInfo>
#include <QIcon>
#include <QPixmap>
#include <QScrollBar>
#include <QUrl>

#include "shell/icons.h"

namespace folioscope {

namespace {

constexpr int kIconSide = 16;

}  // namespace

QVariant HelpBrowser::loadResource(int type, const QUrl& name)
{
    if (type == QTextDocument::ImageResource && name.scheme() == QLatin1String("qrc")) {
        const QIcon icon = ToolbarIcon(QFileInfo(name.path()).baseName().toLatin1());
        if (!icon.isNull()) return icon.pixmap(QSize(kIconSide, kIconSide), devicePixelRatioF());
    }
    return QTextBrowser::loadResource(type, name);
}

void HelpBrowser::changeEvent(QEvent* event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() != QEvent::PaletteChange || source().isEmpty()) return;
    const int place = verticalScrollBar()->value();
    reload();
    verticalScrollBar()->setValue(place);
}

}  // namespace folioscope
