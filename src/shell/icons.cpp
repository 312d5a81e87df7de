#include "shell/icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPaintDevice>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>

// The macro declares a function of the global namespace.
static void InitFolioscopeResource() { Q_INIT_RESOURCE(folioscope); }

namespace folioscope {

namespace {

// The drawings are made in the tones for a light ground.
struct Tone {
    QByteArrayView onLight, onDark;
};

// clang-format off
constexpr Tone kTones[] = {
    {"#4a5663", "#c3ccd6"},  // ink
    {"#2474b8", "#6cb4ef"}, {"#cfe3f5", "#24415c"},  // blue: what the icon is about, pages
    {"#9a6c10", "#e0b458"}, {"#f6dfa6", "#5c4a1e"},  // amber: folders
    {"#1b7f6f", "#58c4b0"}, {"#c9ebe3", "#1e4a42"},  // green: resources
    {"#c03a2b", "#f08072"}, {"#f8d8d3", "#5a2a26"},  // red: what ends something
};
// clang-format on

constexpr float kDisabledOpacity = 0.4F;

bool IsDark(const QColor& ground) { return ground.lightness() < 128; }

QByteArray InDarkTones(QByteArray svg)
{
    for (const Tone& tone : kTones) svg.replace(tone.onLight, tone.onDark);
    return svg;
}

class IconEngine final : public QIconEngine {
public:
    explicit IconEngine(const QString& path) : path_(path) {}

    QIconEngine* clone() const override { return new IconEngine(path_); }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal scale = painter->device() != nullptr ? painter->device()->devicePixelRatio() : 1.0;
        const QSize size(static_cast<int>(std::lround(rect.width() * scale)),
                         static_cast<int>(std::lround(rect.height() * scale)));
        painter->drawPixmap(rect, pixmap(size, mode, state));
    }

    // `size` in pixels of the device.
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override
    {
        if (size.isEmpty()) return {};
        const bool dark = OnDark(mode), faint = mode == QIcon::Disabled;
        const QString cacheKey = QStringLiteral("%1 %2x%3 %4%5")
                                     .arg(path_)
                                     .arg(size.width())
                                     .arg(size.height())
                                     .arg(dark ? "dark" : "light", faint ? " faint" : "");
        QPixmap result;
        if (QPixmapCache::find(cacheKey, &result)) return result;
        result = Draw(size, dark, faint);
        QPixmapCache::insert(cacheKey, result);
        return result;
    }

private:
    static bool OnDark(QIcon::Mode mode)
    {
        return IsDark(
            QGuiApplication::palette().color(mode == QIcon::Selected ? QPalette::Highlight : QPalette::Window));
    }

    QPixmap Draw(const QSize& size, bool dark, bool faint) const
    {
        QPixmap drawn(size);
        drawn.fill(Qt::transparent);
        QFile file(path_);
        if (!file.open(QIODevice::ReadOnly)) return drawn;
        const QByteArray svg = file.readAll();
        QSvgRenderer renderer(dark ? InDarkTones(svg) : svg);
        const int side = std::min(size.width(), size.height());
        QPainter painter(&drawn);
        renderer.render(&painter, QRectF((size.width() - side) / 2, (size.height() - side) / 2, side, side));
        if (faint) {  // the renderer sets the painter's opacity for itself
            painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
            painter.fillRect(drawn.rect(), QColor::fromRgbF(0, 0, 0, kDisabledOpacity));
        }
        return drawn;
    }

    QString path_;
};

QIcon IconOf(QByteArrayView name)
{
    const QString path = QStringLiteral(":/icons/%1.svg").arg(QString::fromLatin1(name));
    return QFile::exists(path) ? QIcon(new IconEngine(path)) : QIcon();
}

}  // namespace

void InitResources() { InitFolioscopeResource(); }

QIcon ToolbarIcon(QByteArrayView name) { return IconOf(name); }

QIcon TreeIcon(int image) { return IconOf(QStringLiteral("tree_%1").arg(image, 2, 10, QLatin1Char('0')).toLatin1()); }

QIcon ProgramIcon() { return IconOf("folioscope"); }

}  // namespace folioscope
