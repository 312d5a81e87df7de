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
    bool line;  // else an area
    QByteArrayView onLight, onDark;
};

// clang-format off
constexpr Tone kTones[] = {
    {true, "#4a5663", "#c3ccd6"},                                 // ink
    {true, "#2474b8", "#6cb4ef"}, {false, "#cfe3f5", "#24415c"},  // blue: what the icon is about, pages
    {true, "#9a6c10", "#e0b458"}, {false, "#f6dfa6", "#5c4a1e"},  // amber: folders
    {true, "#1b7f6f", "#58c4b0"}, {false, "#c9ebe3", "#1e4a42"},  // green: resources
    {true, "#c03a2b", "#f08072"}, {false, "#f8d8d3", "#5a2a26"},  // red: what ends something
};
// clang-format on

constexpr float kDisabledOpacity = 0.4F;
constexpr int kAreaShare = 20;  // of the text's colour in an area of a selected icon, percent

QByteArray InDarkTones(QByteArray svg)
{
    for (const Tone& tone : kTones) svg.replace(tone.onLight, tone.onDark);
    return svg;
}

QByteArray Mixed(const QColor& one, const QColor& other, int share)
{
    const auto mix = [share](int a, int b) { return (a * (100 - share) + b * share) / 100; };
    return QColor(mix(one.red(), other.red()), mix(one.green(), other.green()), mix(one.blue(), other.blue()))
        .name()
        .toLatin1();
}

// The colour of a selection goes with that of its text alone.
QByteArray InSelectedTones(QByteArray svg, const QPalette& palette)
{
    const QColor text = palette.color(QPalette::HighlightedText), ground = palette.color(QPalette::Highlight);
    for (const Tone& tone : kTones) svg.replace(tone.onLight, Mixed(ground, text, tone.line ? 100 : kAreaShare));
    return svg;
}

QByteArray InTonesFor(QIcon::Mode mode, const QByteArray& svg)
{
    const QPalette palette = QGuiApplication::palette();
    if (mode == QIcon::Selected) return InSelectedTones(svg, palette);
    return palette.color(QPalette::Window).lightness() < 128 ? InDarkTones(svg) : svg;
}

QByteArray ContentsOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QPixmap Draw(const QByteArray& svg, const QSize& size, bool faint)
{
    QPixmap drawn(size);
    drawn.fill(Qt::transparent);
    QSvgRenderer renderer(svg);
    const int side = std::min(size.width(), size.height());
    QPainter painter(&drawn);
    renderer.render(&painter, QRect((size.width() - side) / 2, (size.height() - side) / 2, side, side));
    if (faint) {  // the renderer sets the painter's opacity for itself
        painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
        painter.fillRect(drawn.rect(), QColor::fromRgbF(0, 0, 0, kDisabledOpacity));
    }
    return drawn;
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
        QPixmap result;
        const QString cacheKey = CacheKey(size, mode);
        if (QPixmapCache::find(cacheKey, &result)) return result;
        result = Draw(InTonesFor(mode, ContentsOf(path_)), size, mode == QIcon::Disabled);
        QPixmapCache::insert(cacheKey, result);
        return result;
    }

private:
    // A palette has a number of its own for as long as the program runs.
    QString CacheKey(const QSize& size, QIcon::Mode mode) const
    {
        return QStringLiteral("%1 %2 %3 %4x%5")
            .arg(path_)
            .arg(QGuiApplication::palette().cacheKey())
            .arg(mode)
            .arg(size.width())
            .arg(size.height());
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
