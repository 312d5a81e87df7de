#pragma once

#include <QLocale>
#include <QSizeF>
#include <QString>

#include "base/labels.h"

namespace folioscope {

// How the page follows the view's size. The numbers are those of the view's operation.
enum FitMode { kFitNone = 0, kFitWholePage = -1, kFitPageWidth = -3 };

inline constexpr int kPageMargin = 12;        // around the page, in device-independent pixels
inline constexpr double kLargestZoom = 3000;  // percent

// A size that can be shown, whatever an engine tells. In points.
QSizeF ShowablePage(QSizeF points);
QSizeF TurnedPage(QSizeF points, int quarterTurns);

// The zoom in percent at which a page, as turned, fits into the view. `room` is what the view has without scroll bars,
// `bar` the width that a scroll bar takes from it. 100 percent is the page's own size.
double FitPercent(QSizeF points, int fitMode, QSize room, int bar);

// The page in device-independent pixels, whole dots of the screen and at least one. `dots` is how many a pixel has.
QSizeF ShownSize(QSizeF points, double percent, double dots);

// "Page 3 of 1,200, 210 × 297 mm". A plus behind the count tells that pages are still being found.
QString PageLine(const Labels& texts, const QLocale& locale, int page, int count, bool knowsAll, QSizeF points);

}  // namespace folioscope
