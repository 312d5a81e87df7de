// The icons that are installed.

#include <QImage>
#include <QTest>

namespace folioscope {
namespace {

constexpr int kSides[] = {16, 22, 24, 32, 48, 64, 128, 256};
constexpr const char* kNames[] = {"folioscope", "application-vnd.afpc.modca"};

QImage IconOf(const char* name, int side)
{
    return QImage(QStringLiteral(FOLIOSCOPE_ICONS "/%1/%2.png").arg(side).arg(name));
}

}  // namespace

class PackageIconsTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void HaveTheirSizes()
    {
        for (const char* const name : kNames)
            for (const int side : kSides) QCOMPARE(IconOf(name, side).size(), QSize(side, side));
    }

    void StandOnAClearGround()
    {
        for (const char* const name : kNames)
            for (const int side : kSides) {
                const QImage icon = IconOf(name, side);
                QCOMPARE(qAlpha(icon.pixel(0, 0)), 0);
                QCOMPARE(qAlpha(icon.pixel(side - 1, 0)), 0);
            }
    }

    // Of both drawings: its foot and its left edge.
    void ShowASheetOfPaper()
    {
        for (const char* const name : kNames)
            for (const int side : kSides) {
                const QImage icon = IconOf(name, side);
                QVERIFY2(qAlpha(icon.pixel(side * 7 / 24, side * 22 / 24)) > 100, name);
                QVERIFY2(qAlpha(icon.pixel(side * 4 / 24, side * 12 / 24)) > 100, name);
            }
    }
};

}  // namespace folioscope

QTEST_GUILESS_MAIN(folioscope::PackageIconsTest)
#include "icons_test.moc"
