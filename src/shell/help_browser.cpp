#include "shell/help_browser.h"

#include <QEvent>
#include <QFileInfo>
#include <QIcon>
#include <QPixmap>
#include <QScrollBar>
#include <QTextDocument>
#include <QUrl>

#include "shell/icons.h"

namespace folioscope {

namespace {

constexpr int kIconSide = 16;
constexpr int kMargin = 16;

// Room between the lines; colours are the palette's.
constexpr char kStyle[] = "p, li, td { line-height: 125% }"
                          "table { margin-top: 6px; margin-bottom: 10px }"
                          "h2 { margin-top: 18px }";

}  // namespace

HelpBrowser::HelpBrowser(QWidget* parent) : QTextBrowser(parent)
{
    document()->setDocumentMargin(kMargin);
    document()->setDefaultStyleSheet(QString::fromLatin1(kStyle));
}

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
