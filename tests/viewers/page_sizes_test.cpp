#include "viewers/page_sizes.h"

#include <gtest/gtest.h>

#include <span>
#include <string_view>
#include <vector>

#include "support/afp_builder.h"

namespace folioscope {
namespace {

using test::Bytes;
using test::Field;
using test::Raw;
using test::Structured;
using test::U1;
using test::U2;
using test::U3;

std::span<const std::uint8_t> Span(const Bytes& bytes)
{
    return {reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()};
}

Bytes Descriptor(unsigned base, unsigned units, unsigned width, unsigned height)
{
    return U1(base) + U1(base) + U2(units) + U2(units) + U3(width) + U3(height);
}

constexpr double kTolerance = 0.001;  // points

void ExpectSize(QSizeF size, double width, double height)
{
    EXPECT_NEAR(size.width(), width, kTolerance);
    EXPECT_NEAR(size.height(), height, kTolerance);
}

struct Walked : PageSizes {
    Walked& Add(std::string_view name, const Bytes& data = {}, unsigned flags = 0)
    {
        Feed(Span(Structured(Field{name, data, flags})));
        return *this;
    }
    Walked& Page(const Bytes& descriptor) { return Add("BPG").Add("BAG").Add("PGD", descriptor).Add("EAG").Add("EPG"); }
};

const Bytes kLetter = Descriptor(0, 14400, 12240, 15840);
const Bytes kA4 = Descriptor(1, 10000, 21000, 29700);

TEST(SizeOfDescriptor, CountsUnitsOfTenInches)
{
    const auto size = SizeOfDescriptor(Span(Descriptor(0, 2400, 2040, 2640)));
    ASSERT_TRUE(size);
    ExpectSize(*size, 612, 792);
}

TEST(SizeOfDescriptor, CountsUnitsOfTenCentimetres)
{
    const auto size = SizeOfDescriptor(Span(kA4));
    ASSERT_TRUE(size);
    ExpectSize(*size, 595.2756, 841.8898);
}

TEST(SizeOfDescriptor, TakesEachAxisByItself)
{
    const auto size = SizeOfDescriptor(Span(U1(0) + U1(1) + U2(14400) + U2(1000) + U3(14400) + U3(1000)));
    ASSERT_TRUE(size);
    ExpectSize(*size, 720, 720 / 2.54);
}

TEST(SizeOfDescriptor, ReadsThreeBytesAndNoMoreThanTwelve)
{
    const auto size = SizeOfDescriptor(Span(Descriptor(0, 65535, 0x010000, 0x020001) + Raw({9, 9, 9})));
    ASSERT_TRUE(size);
    ExpectSize(*size, 720.0 * 0x010000 / 65535, 720.0 * 0x020001 / 65535);
    EXPECT_FALSE(SizeOfDescriptor(Span(Descriptor(0, 65535, 0x010000, 0x020001).substr(0, 11))));
    EXPECT_FALSE(SizeOfDescriptor({}));
}

TEST(SizeOfDescriptor, IsNoneWhereNoPaperHasIt)
{
    for (const Bytes& data : {Descriptor(0, 0, 100, 100), Descriptor(0, 14400, 0, 100), Descriptor(0, 14400, 100, 0),
                              Descriptor(2, 14400, 100, 100), Descriptor(255, 14400, 100, 100),
                              Descriptor(0, 1, 0xFFFFFF, 0xFFFFFF), Descriptor(0, 1000, 100'001, 500)})
        EXPECT_FALSE(SizeOfDescriptor(Span(data)));
    EXPECT_TRUE(SizeOfDescriptor(Span(Descriptor(0, 1000, 100'000, 500))));  // a roll of 1000 inches
}

TEST(PageSizes, AreThoseOfThePagesOwnDescriptors)
{
    Walked walked;
    walked.Page(kLetter).Page(kA4).Page(kA4).Page(kLetter);
    ASSERT_EQ(walked.Count(), 4);
    ExpectSize(walked.SizeOf(1), 612, 792);
    ExpectSize(walked.SizeOf(2), 595.2756, 841.8898);
    ExpectSize(walked.SizeOf(3), 595.2756, 841.8898);
    ExpectSize(walked.SizeOf(4), 612, 792);
}

TEST(PageSizes, FallBackToLetter)
{
    Walked walked;
    walked.Add("BPG").Add("EPG").Page(Descriptor(0, 0, 0, 0)).Page(Descriptor(0, 1, 0xFFFFFF, 1));
    ASSERT_EQ(walked.Count(), 3);
    for (const int page : {1, 2, 3}) ExpectSize(walked.SizeOf(page), 612, 792);
    for (const int page : {-1, 0}) ExpectSize(walked.SizeOf(page), 612, 792);
}

TEST(PageSizes, AreTheOnesNamedLastWherePagesHaveNone)
{
    Walked walked;
    walked.Add("BMM").Add("PGD", kA4).Add("EMM");
    walked.Add("BPG").Add("BAG").Add("EAG").Add("EPG");
    walked.Page(kLetter);
    walked.Add("BPG").Add("EPG");
    walked.Page(Descriptor(0, 0, 7, 7));
    ASSERT_EQ(walked.Count(), 4);
    ExpectSize(walked.SizeOf(1), 595.2756, 841.8898);
    for (const int page : {2, 3, 4}) ExpectSize(walked.SizeOf(page), 612, 792);
}

TEST(PageSizes, TakeTheFirstDescriptorOfAPage)
{
    Walked walked;
    walked.Add("BPG").Add("PGD", kA4).Add("PGD", kLetter).Add("EPG").Add("BPG").Add("EPG");
    ASSERT_EQ(walked.Count(), 2);
    for (const int page : {1, 2}) ExpectSize(walked.SizeOf(page), 595.2756, 841.8898);
}

TEST(PageSizes, PassOverOverlays)
{
    Walked walked;
    walked.Add("BMO").Add("BAG").Add("PGD", kA4).Add("EAG").Add("EMO").Add("BPG").Add("EPG");
    walked.Add("BMO").Page(kA4);  // an overlay without its end
    ASSERT_EQ(walked.Count(), 2);
    ExpectSize(walked.SizeOf(1), 612, 792);
    ExpectSize(walked.SizeOf(2), 595.2756, 841.8898);
}

TEST(PageSizes, CountAPageOnceItsSizeIsKnown)
{
    Walked walked;
    walked.Add("BPG");
    EXPECT_EQ(walked.Count(), 0);
    walked.Add("BAG").Add("PGD", kA4);
    EXPECT_EQ(walked.Count(), 1);
    walked.Add("EAG").Add("EPG");
    EXPECT_EQ(walked.Count(), 1);
    walked.Add("EPG");  // the end of nothing
    walked.FeedEnd();
    EXPECT_EQ(walked.Count(), 1);
}

TEST(PageSizes, CountPagesWithoutAnEnd)
{
    Walked walked;
    walked.Add("BPG").Add("BPG").Add("BPG");
    EXPECT_EQ(walked.Count(), 2);
    walked.FeedEnd();
    EXPECT_EQ(walked.Count(), 3);
    walked.FeedEnd();
    EXPECT_EQ(walked.Count(), 3);
}

TEST(PageSizes, ReadBehindAnExtension)
{
    Walked walked;
    walked.Add("BPG").Add("PGD", Raw({5, 1, 2, 3, 4}) + kA4, 0x80);
    ExpectSize(walked.SizeOf(1), 595.2756, 841.8898);
    walked.Add("BPG").Add("PGD", Raw({255, 1, 2}), 0x80).Add("BPG").Add("PGD", {}, 0x80);
    walked.FeedEnd();
    EXPECT_EQ(walked.Count(), 3);
}

TEST(PageSizes, PassOverCutRecords)
{
    Walked walked;
    const Bytes page = Structured({"BPG"});
    for (std::size_t length = 0; length < 8; ++length) walked.Feed(Span(page.substr(0, length)));
    walked.FeedEnd();
    EXPECT_EQ(walked.Count(), 0);
    walked.Feed(Span(page));
    walked.FeedEnd();
    EXPECT_EQ(walked.Count(), 1);
}

TEST(PageSizes, FindEachOfManyPages)
{
    Walked walked;
    for (unsigned page = 1; page <= 20'000; ++page) walked.Page(Descriptor(0, 14400, 1000 + page / 3, 2000));
    ASSERT_EQ(walked.Count(), 20'000);
    for (int page = 1; page <= 20'000; ++page) ExpectSize(walked.SizeOf(page), (1000 + page / 3) / 20.0, 100);
}

}  // namespace
}  // namespace folioscope
