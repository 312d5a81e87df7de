// What the program's style draws differently from that of the desktop.

#include "shell/program_style.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QTest>

#include "shell/icons.h"

namespace folioscope {
namespace {

constexpr QColor kLight(0xEF, 0xEF, 0xEF), kDark(0x2D, 0x2D, 0x2D);

void SetGround(const QColor& ground)
{
    const bool dark = ground.lightness() < 128;
    QPalette palette;
    palette.setColor(QPalette::Window, ground);
    palette.setColor(QPalette::Base, dark ? ground.darker(140) : Qt::white);
    palette.setColor(QPalette::WindowText, dark ? QColor(230, 230, 230) : QColor(Qt::black));
    palette.setColor(QPalette::Text, palette.color(QPalette::WindowText));
    palette.setColor(QPalette::Highlight, QColor(40, 100, 160));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    QApplication::setPalette(palette);
}

// The greatest difference of lightness between the ground and what is drawn in a line across the picture.
int Contrast(const QImage& picture, int y, int from, int to)
{
    int most = 0;
    for (int x = from; x < to; ++x)
        most =
            qMax(most, qAbs(qGray(picture.pixel(x, y)) - qGray(QApplication::palette().color(QPalette::Window).rgb())));
    return most;
}

int Pixels(const QImage& picture, const QRect& part, const QColor& colour)
{
    int found = 0;
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x) found += picture.pixelColor(x, y) == colour ? 1 : 0;
    return found;
}

}  // namespace

class ProgramStyleTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        InitResources();
        QApplication::setStyle(new ProgramStyle);
    }

    void CheckBoxesAndLinesStandOffTheGround()
    {
        for (const QColor& ground : {kLight, kDark}) {
            SetGround(ground);
            QCheckBox box("Box");
            box.resize(box.sizeHint());
            const QImage drawn = box.grab().toImage();
            QVERIFY2(Contrast(drawn, drawn.height() / 2, 0, 20) > 40, qPrintable(ground.name()));
            box.show();
            box.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&box));
            box.setFocus(Qt::MouseFocusReason);
            QVERIFY2(Contrast(box.grab().toImage(), drawn.height() / 2, 0, 20) > 40, qPrintable(ground.name()));
            QLineEdit line;
            line.setEnabled(false);
            line.resize(line.sizeHint());
            const QImage edge = line.grab().toImage();
            QVERIFY2(Contrast(edge, 0, 10, 30) > 40, qPrintable(ground.name()));
        }
    }

    void AFrameStandsOffTheGroundBelowItsTitle()
    {
        for (const QString& title : {QStringLiteral("Title"), QString()}) {
            SetGround(kDark);
            QGroupBox box(title);
            box.resize(200, 100);
            const QImage drawn = box.grab().toImage();
            QVERIFY(Contrast(drawn, 60, 0, 3) > 25);  // its left side
            const QColor side = drawn.pixelColor(0, 60);
            int top = 0;
            while (top < 60 && drawn.pixelColor(150, top) != side) ++top;
            const int above = title.isEmpty() ? 0 : box.fontMetrics().height();
            QVERIFY2(top >= above && top < above + 12, qPrintable(QString::number(top)));
        }
    }

    void TheIconOfAChosenItemTakesTheColourOfItsText()
    {
        SetGround(kLight);
        QMenu menu;
        QAction* const item = menu.addAction(ToolbarIcon("reload"), QString());
        menu.addAction(ToolbarIcon("open"), QString());
        menu.resize(menu.sizeHint());
        const QRect place = menu.actionGeometry(item);
        const QImage before = menu.grab().toImage();
        menu.setActiveAction(item);
        const QImage chosen = menu.grab().toImage();
        const QColor text = QApplication::palette().color(QPalette::HighlightedText), ink("#2474b8");
        QVERIFY(Pixels(before, place, ink) >= 5);
        QCOMPARE(Pixels(chosen, place, ink), 0);
        QVERIFY(Pixels(chosen, place, text) >= 5);
    }

    void FrameButtonsAndArrowsCanBeSeenOnADarkGround()
    {
        SetGround(kDark);
        for (const auto picture : {QStyle::SP_TitleBarMinButton, QStyle::SP_TitleBarNormalButton,
                                   QStyle::SP_TitleBarCloseButton, QStyle::SP_ToolBarHorizontalExtensionButton}) {
            const QIcon icon = QApplication::style()->standardIcon(picture);
            QVERIFY(!icon.isNull());
            QImage drawn(10, 10, QImage::Format_RGB32);
            drawn.fill(kDark);
            QPainter painter(&drawn);
            icon.paint(&painter, drawn.rect());
            painter.end();
            int seen = 0;
            for (int y = 0; y < drawn.height(); ++y) seen += Contrast(drawn, y, 0, drawn.width()) > 60 ? 1 : 0;
            QVERIFY2(seen >= 3, qPrintable(QString::number(picture)));
        }
    }

    void BoxesHaveASignEach()
    {
        SetGround(kLight);
        QSet<QString> different;
        for (const auto picture : {QStyle::SP_MessageBoxCritical, QStyle::SP_MessageBoxInformation,
                                   QStyle::SP_MessageBoxQuestion, QStyle::SP_MessageBoxWarning}) {
            const QImage drawn = QApplication::style()->standardIcon(picture).pixmap(QSize(32, 32), 1.0).toImage();
            QCOMPARE(drawn.size(), QSize(32, 32));
            QByteArray bytes(reinterpret_cast<const char*>(drawn.constBits()), drawn.sizeInBytes());
            different.insert(QString::fromLatin1(bytes.toHex()));
        }
        QCOMPARE(different.size(), 4);
    }

    void ButtonsOfDialogsHaveNoPictures()
    {
        QDialogButtonBox buttons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
        for (const auto which : {QDialogButtonBox::Ok, QDialogButtonBox::Cancel})
            QVERIFY(buttons.button(which)->icon().isNull());
    }
};

}  // namespace folioscope

QTEST_MAIN(folioscope::ProgramStyleTest)
#include "program_style_test.moc"
