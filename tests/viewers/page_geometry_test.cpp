#include "viewers/page_geometry.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace folioscope {
namespace {

constexpr QSizeF kLetter(612, 792);
const Labels kEnglish(Language::English), kGerman(Language::German), kFrench(Language::French);

TEST(ShownSize, IsTheRealSizeAt100Percent)
{
    EXPECT_EQ(ShownSize(kLetter, 100, 1), QSizeF(816, 1056));
    EXPECT_EQ(ShownSize(kLetter, 50, 1), QSizeF(408, 528));
    EXPECT_EQ(ShownSize(kLetter, 3000, 1), QSizeF(24480, 31680));
}

TEST(ShownSize, IsWholeDotsOfTheScreen)
{
    EXPECT_EQ(ShownSize(QSizeF(100.5, 99.9), 100, 1), QSizeF(134, 133));      // 134 and 133.2
    EXPECT_EQ(ShownSize(QSizeF(100.5, 99.9), 100, 2), QSizeF(134, 133));      // 268 and 266.4 dots
    EXPECT_EQ(ShownSize(QSizeF(100.2, 99.5), 100, 2), QSizeF(133.5, 132.5));  // 267.2 and 265.33 dots
    for (const double dots : {1.0, 1.25, 1.5, 2.0, 3.0})
        for (const double percent : {1.0, 33.0, 67.0, 110.0, 3000.0}) {
            const QSizeF size = ShownSize(QSizeF(595.28, 841.89), percent, dots);
            EXPECT_NEAR(size.width() * dots, std::round(size.width() * dots), 1e-6);
            EXPECT_NEAR(size.height() * dots, std::round(size.height() * dots), 1e-6);
        }
}

TEST(ShownSize, IsNeverNothing)
{
    EXPECT_EQ(ShownSize(QSizeF(0.001, 500), 1, 1), QSizeF(1, 6));
    EXPECT_EQ(ShownSize(QSizeF(0.001, 0.001), 1, 2), QSizeF(0.5, 0.5));
}

TEST(FitPercent, ShowsTheWholePage)
{
    const QSize room(816 / 2 + 2 * kPageMargin, 2000);
    EXPECT_DOUBLE_EQ(FitPercent(kLetter, kFitWholePage, room, 15), 50);
    EXPECT_DOUBLE_EQ(FitPercent(kLetter, kFitWholePage, QSize(2000, 1056 / 4 + 2 * kPageMargin), 15), 25);
    EXPECT_DOUBLE_EQ(FitPercent(TurnedPage(kLetter, 1), kFitWholePage, QSize(1056 / 4 + 2 * kPageMargin, 2000), 15),
                     25);
}

TEST(FitPercent, ShowsThePagesWidth)
{
    // Beside the scroll bar that the height needs.
    EXPECT_DOUBLE_EQ(FitPercent(kLetter, kFitPageWidth, QSize(816 + 2 * kPageMargin + 15, 300), 15), 100);
    // And without one, where the height needs none.
    EXPECT_DOUBLE_EQ(FitPercent(kLetter, kFitPageWidth, QSize(816 + 2 * kPageMargin, 1056 + 2 * kPageMargin), 15), 100);
}

TEST(FitPercent, FillsTheRoomAndNoMore)
{
    for (const QSizeF page :
         {kLetter, TurnedPage(kLetter, 3), QSizeF(595.28, 841.89), QSizeF(100'000, 20), QSizeF(3, 900)})
        for (int width = 25; width < 900; width += 37)
            for (int height = 25; height < 900; height += 41)
                for (const double dots : {1.0, 1.5, 2.0}) {
                    const QSizeF inner(width - 2 * kPageMargin, height - 2 * kPageMargin);
                    const double percent = FitPercent(page, kFitWholePage, QSize(width, height), 15);
                    const QSizeF shown = ShownSize(page, percent, dots);
                    ASSERT_LE(shown.width(), inner.width());
                    ASSERT_LE(shown.height(), inner.height());
                    if (percent >= kLargestZoom) continue;
                    ASSERT_TRUE(inner.width() - shown.width() <= 1 || inner.height() - shown.height() <= 1);
                }
}

TEST(FitPercent, IsBounded)
{
    EXPECT_EQ(FitPercent(QSizeF(1, 1), kFitWholePage, QSize(5000, 5000), 15), kLargestZoom);
    for (const int mode : {kFitWholePage, kFitPageWidth}) {
        const double percent = FitPercent(kLetter, mode, QSize(0, 0), 15);
        EXPECT_GT(percent, 0);
        EXPECT_LT(percent, 1);
    }
}

TEST(ShowablePage, ReplacesWhatIsNoSize)
{
    const double nan = std::nan(""), infinite = std::numeric_limits<double>::infinity();
    for (const QSizeF size : {QSizeF(), QSizeF(0, 5), QSizeF(5, -1), QSizeF(nan, 5), QSizeF(5, infinite)})
        EXPECT_EQ(ShowablePage(size), kLetter);
    EXPECT_EQ(ShowablePage(QSizeF(1e12, 5)), QSizeF(100'000, 5));
    EXPECT_EQ(ShowablePage(QSizeF(7, 5)), QSizeF(7, 5));
    const QSizeF largest = ShownSize(ShowablePage(QSizeF(1e300, 1e300)), kLargestZoom, 3);
    EXPECT_LT(largest.width() * 3, std::numeric_limits<int>::max());
}

TEST(TurnedPage, LiesDownAtOddTurns)
{
    EXPECT_EQ(TurnedPage(kLetter, 0), kLetter);
    EXPECT_EQ(TurnedPage(kLetter, 1), QSizeF(792, 612));
    EXPECT_EQ(TurnedPage(kLetter, 2), kLetter);
    EXPECT_EQ(TurnedPage(kLetter, 3), QSizeF(792, 612));
}

TEST(PageLine, SaysThePageAndItsSize)
{
    const QLocale american(QLocale::English, QLocale::UnitedStates), german(QLocale::German, QLocale::Germany),
        french(QLocale::French, QLocale::France);
    EXPECT_EQ(PageLine(kEnglish, american, 3, 12, true, kLetter), "Page 3 of 12, 8.5 × 11 in");
    EXPECT_EQ(PageLine(kEnglish, american, 1234, 1234567, true, QSizeF(595.28, 841.89)),
              "Page 1,234 of 1,234,567, 8.27 × 11.69 in");
    EXPECT_EQ(PageLine(kGerman, german, 1234, 12345, false, QSizeF(595.28, 841.89)),
              "Seite 1.234 von 12.345+, 210 × 297 mm");
    EXPECT_EQ(PageLine(kFrench, french, 1, 1, true, QSizeF(72'000, 72)), "Page 1 sur 1, 25\u202F400 × 25 mm");
    EXPECT_EQ(PageLine(kEnglish, QLocale::c(), 1, 1000, true, QSizeF(595.28, 841.89)), "Page 1 of 1,000, 210 × 297 mm");
    EXPECT_EQ(PageLine(kFrench, american, 1, 2, true, kLetter), "Page 1 sur 2, 8.5 × 11 po");
    EXPECT_EQ(PageLine(kGerman, american, 1, 2, true, kLetter), "Seite 1 von 2, 8.5 × 11 Zoll");
}

}  // namespace
}  // namespace folioscope
