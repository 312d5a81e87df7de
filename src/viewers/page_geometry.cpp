#include "viewers/page_geometry.h"

#include <algorithm>
#include <cmath>

#include "viewers/page_sizes.h"
#include "viewers/qt_text.h"

namespace folioscope {

namespace {

constexpr double kPixelsPerPoint = 20.0 / 15;  // 20 twips and 15
constexpr double kLongestSide = 100'000;       // points; at the largest zoom the pixels still fit into an int
constexpr double kNothing = 1e-6;              // what calculating loses
constexpr double kPointsPerInch = 72, kPointsPerMillimetre = 72 / 25.4;

QString SizeText(const Labels& texts, const QLocale& locale, QSizeF points)
{
    const bool metric = locale.measurementSystem() == QLocale::MetricSystem;
    const auto side = [&](double length) {
        const double value =
            metric ? std::round(length / kPointsPerMillimetre) : std::round(length / kPointsPerInch * 100) / 100;
        return locale.toString(value, 'g', 12);
    };
    const Label unit = metric ? U("%1 × %2 mm") : U("%1 × %2 in");
    return ToQt(texts, unit).arg(side(points.width()), side(points.height()));
}

}  // namespace

QSizeF ShowablePage(QSizeF points)
{
    const auto sound = [](double side) { return std::isfinite(side) && side > 0; };
    if (!sound(points.width()) || !sound(points.height())) return kDefaultPageSize;
    return points.boundedTo(QSizeF(kLongestSide, kLongestSide));
}

QSizeF TurnedPage(QSizeF points, int quarterTurns) { return quarterTurns % 2 == 0 ? points : points.transposed(); }

double FitPercent(QSizeF points, int fitMode, QSize room, int bar)
{
    const QSizeF pixels = points * kPixelsPerPoint;
    const double width = std::max(room.width() - 2 * kPageMargin, 1);
    const double height = std::max(room.height() - 2 * kPageMargin, 1);
    double factor = width / pixels.width();
    if (fitMode == kFitWholePage)
        factor = std::min(factor, height / pixels.height());
    else if (pixels.height() * factor > height)
        factor = std::max(width - bar, 1.0) / pixels.width();
    return std::min(factor * 100, kLargestZoom);
}

QSizeF ShownSize(QSizeF points, double percent, double dots)
{
    // Never more than the exact size, so that what fits exactly needs no scroll bar.
    const auto side = [&](double length) {
        return std::max(std::floor(length * kPixelsPerPoint * percent / 100 * dots + kNothing), 1.0) / dots;
    };
    return {side(points.width()), side(points.height())};
}

QString PageLine(const Labels& texts, const QLocale& locale, int page, int count, bool knowsAll, QSizeF points)
{
    QLocale grouped = locale;
    grouped.setNumberOptions(QLocale::DefaultNumberOptions);
    const QString of = grouped.toString(count) + (knowsAll ? QString() : QStringLiteral("+"));
    return ToQt(texts, U("Page %1 of %2")).arg(grouped.toString(page), of) + QStringLiteral(", ") +
           SizeText(texts, grouped, points);
}

}  // namespace folioscope
