// Every icon is there, shows something at the smallest size, and is told apart from its neighbours.

#include "shell/icons.h"

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSet>
#include <QSize>
#include <QTest>

namespace folioscope {
namespace {

constexpr const char* kToolbar[] = {"open",     "close",     "reload",    "textdump",      "extract_resource",
                                    "find",     "find_next", "options",   "expand",        "collapse",
                                    "preview",  "messages",  "cascade",   "tile_vertical", "tile_horizontal",
                                    "help",     "cancel",    "turn_left", "turn_right",    "fit_width",
                                    "fit_page", "zoom_out",  "zoom_100",  "zoom_in",       "print"};
constexpr const char* kSigns[] = {"sign_critical", "sign_information", "sign_question", "sign_warning"};
constexpr int kTreeImages = 12;
constexpr QColor kLight(0xEF, 0xEF, 0xEF), kDark(0x2B, 0x2D, 0x30);

struct NamedIcon {
    QString name;
    QIcon icon;
};

QList<NamedIcon> AllIcons()
{
    QList<NamedIcon> icons;
    for (const char* const name : kToolbar) icons.append({name, ToolbarIcon(name)});
    for (const char* const name : kSigns) icons.append({name, ToolbarIcon(name)});
    for (int image = 0; image < kTreeImages; ++image)
        icons.append({QStringLiteral("tree %1").arg(image), TreeIcon(image)});
    icons.append({"program", ProgramIcon()});
    return icons;
}

void SetGround(const QColor& ground)
{
    QPalette palette;
    palette.setColor(QPalette::Window, ground);
    QGuiApplication::setPalette(palette);
}

QImage ImageOf(const QIcon& icon, int side, QIcon::Mode mode = QIcon::Normal)
{
    return icon.pixmap(QSize(side, side), 1.0, mode).toImage().convertToFormat(QImage::Format_ARGB32);
}

// Pixels that stand off the ground clearly enough to be seen.
int SeenOn(const QImage& image, const QColor& ground)
{
    int seen = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            const int shown = (qGray(color.rgb()) * color.alpha() + qGray(ground.rgb()) * (255 - color.alpha())) / 255;
            if (qAbs(shown - qGray(ground.rgb())) > 60) ++seen;
        }
    return seen;
}

int Difference(const QImage& a, const QImage& b)
{
    int different = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            if (a.pixel(x, y) != b.pixel(x, y)) ++different;
    return different;
}

}  // namespace

class IconsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { InitResources(); }

    void AreSeenOnBothGrounds()
    {
        for (const QColor& ground : {kLight, kDark}) {
            SetGround(ground);
            for (const auto& [name, icon] : AllIcons()) {
                QVERIFY2(!icon.isNull(), qPrintable(name));
                const QImage image = ImageOf(icon, 16);
                QCOMPARE(image.size(), QSize(16, 16));
                QVERIFY2(SeenOn(image, ground) >= 20, qPrintable(name + " is hardly seen on " + ground.name()));
            }
        }
    }

    void DifferFromEachOther()
    {
        for (const QColor& ground : {kLight, kDark}) {
            SetGround(ground);
            const QList<NamedIcon> icons = AllIcons();
            for (qsizetype a = 0; a < icons.size(); ++a)
                for (qsizetype b = 0; b < a; ++b)
                    QVERIFY2(Difference(ImageOf(icons[a].icon, 16), ImageOf(icons[b].icon, 16)) >= 8,
                             qPrintable(icons[a].name + " looks like " + icons[b].name));
        }
    }

    void LeaveNoDrawingUnused()
    {
        QSet<QString> drawn, named{"folioscope.svg"};
        for (const QString& file : QDir(":/icons").entryList()) drawn.insert(file);
        for (const char* const name : kToolbar) named.insert(QStringLiteral("%1.svg").arg(name));
        for (const char* const name : kSigns) named.insert(QStringLiteral("%1.svg").arg(name));
        for (int image = 0; image < kTreeImages; ++image)
            named.insert(QStringLiteral("tree_%1.svg").arg(image, 2, 10, QLatin1Char('0')));
        QCOMPARE(drawn, named);
    }

    void OfUnknownNamesAreNull()
    {
        QVERIFY(ToolbarIcon("").isNull());
        QVERIFY(ToolbarIcon("Open").isNull());
        for (const int image : {-1, kTreeImages, 100}) QVERIFY(TreeIcon(image).isNull());
    }

    void FollowAChangeOfThePalette()
    {
        const QIcon icon = ToolbarIcon("open");
        SetGround(kLight);
        const QImage onLight = ImageOf(icon, 24);
        SetGround(kDark);
        QVERIFY(ImageOf(icon, 24) != onLight);
        SetGround(kLight);
        QCOMPARE(ImageOf(icon, 24), onLight);
    }

    void TakeTheColourOfTheTextWhenSelected()
    {
        QPalette palette;
        palette.setColor(QPalette::Window, kLight);
        palette.setColor(QPalette::Highlight, QColor(0x30, 0x8C, 0xC6));
        palette.setColor(QPalette::HighlightedText, QColor(0xFF, 0xFE, 0xFD));
        QGuiApplication::setPalette(palette);
        for (int image = 0; image < kTreeImages; ++image) {
            const QImage selected = ImageOf(TreeIcon(image), 32, QIcon::Selected);
            int ofText = 0;
            for (int y = 0; y < selected.height(); ++y)
                for (int x = 0; x < selected.width(); ++x)
                    if (selected.pixelColor(x, y) == palette.color(QPalette::HighlightedText)) ++ofText;
            QVERIFY2(ofText >= 20, qPrintable(QStringLiteral("tree %1").arg(image)));
            QVERIFY(SeenOn(selected, palette.color(QPalette::Highlight)) >= 40);
        }
    }

    void AreFaintWhenDisabled()
    {
        SetGround(kLight);
        for (const auto& [name, icon] : AllIcons()) {
            const QImage normal = ImageOf(icon, 24), faint = ImageOf(icon, 24, QIcon::Disabled);
            int strongest = 0;
            for (int y = 0; y < faint.height(); ++y)
                for (int x = 0; x < faint.width(); ++x) strongest = qMax(strongest, faint.pixelColor(x, y).alpha());
            QVERIFY2(strongest > 60 && strongest < 140, qPrintable(name));
            QVERIFY2(SeenOn(faint, kLight) < SeenOn(normal, kLight), qPrintable(name));
        }
    }

    void AreDrawnForTheScaleOfTheirScreen()
    {
        SetGround(kLight);
        const QIcon icon = TreeIcon(6);
        const QPixmap doubled = icon.pixmap(QSize(16, 16), 2.0);
        QCOMPARE(doubled.size(), QSize(32, 32));
        QCOMPARE(doubled.devicePixelRatio(), 2.0);
        QCOMPARE(Difference(doubled.toImage().convertToFormat(QImage::Format_ARGB32), ImageOf(icon, 32)), 0);
    }

    void PaintThemselvesAtTheScaleOfTheirDevice()
    {
        SetGround(kLight);
        const QIcon icon = TreeIcon(6);
        QImage device(QSize(32, 32), QImage::Format_ARGB32_Premultiplied);
        device.setDevicePixelRatio(2.0);
        device.fill(Qt::transparent);
        {
            QPainter painter(&device);
            icon.paint(&painter, QRect(0, 0, 16, 16));
        }
        QCOMPARE(Difference(device.convertToFormat(QImage::Format_ARGB32), ImageOf(icon, 32)), 0);
    }

    void KeepTheirShapeInAnOblongPlace()
    {
        SetGround(kLight);
        const QImage wide = TreeIcon(6).pixmap(QSize(48, 16), 1.0).toImage().convertToFormat(QImage::Format_ARGB32);
        QCOMPARE(wide.size(), QSize(48, 16));
        QCOMPARE(Difference(wide.copy(16, 0, 16, 16), ImageOf(TreeIcon(6), 16)), 0);
    }
};

}  // namespace folioscope

QTEST_MAIN(folioscope::IconsTest)
#include "icons_test.moc"
