// Lines of values that are computed, put together or shown in their own way.

#include "analysis/render/values.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "analysis/family_support.h"

namespace folioscope {
namespace {

using namespace test;

using Lines = std::vector<std::string>;

struct LabelCase {
    Key key;
    std::string_view label;
};

TEST(GlobalIds, AreGroupedNumbers)
{
    constexpr LabelCase kIds[] = {{Key::CHSID2, "Graphic character set ID"},
                                  {Key::CDPID2, "Graphic code page ID"},
                                  {Key::FONID2, "Font Typeface ID"}};
    LineBench bench;
    for (const auto& [key, label] : kIds) {
        const std::string head = std::string(label) + ": ";
        EXPECT_EQ(bench.Text(key, 0), head + "Not specified\n");
        EXPECT_EQ(bench.Text(key, 65'535), head + "Not specified\n");
        EXPECT_EQ(bench.Text(key, 1), head + "1\n");
        EXPECT_EQ(bench.Text(key, 65'534), head + "65,534\n");
    }
}

TEST(FontSizes, AreShownInPoints)
{
    constexpr LabelCase kSizes[] = {{Key::FontHeight, "Font height"},
                                    {Key::MaxFontHeight, "Maximum recommended font height"},
                                    {Key::NomFontHeight, "Nominal font height"},
                                    {Key::MinFontHeight, "Minimum recommended font height"},
                                    {Key::FontWidth, "Font width"},
                                    {Key::MaxFontWidth, "Maximum recommended font width"},
                                    {Key::NomFontWidth, "Nominal font width"},
                                    {Key::MinFontWidth, "Minimum recommended font width"}};
    LineBench bench;
    for (const auto& [key, label] : kSizes) {
        const std::string head = std::string(label) + ": ";
        const auto of = [&](double units) { return bench.Add(Element::Float64(key, units / 1440)).Text(); };
        EXPECT_EQ(of(0), head + "Not specified\n");
        EXPECT_EQ(of(240), head + "12.0 Point\n");
        EXPECT_EQ(of(1), head + "0.05 Point\n");
        EXPECT_EQ(of(207), head + "10.35 Point\n");
        EXPECT_EQ(of(65'535), head + "3276.75 Point\n");
    }
}

TEST(FontSizes, HaveAtMostFourDecimals)
{
    LineBench bench;
    EXPECT_EQ(bench.Add(Element::Float64(Key::FontHeight, 0.16)).Text(), "Font height: 11.52 Point\n");
    EXPECT_EQ(bench.Add(Element::Float64(Key::FontHeight, 1.0 / 7)).Text(), "Font height: 10.2857 Point\n");
}

TEST(Movements, HaveASign)
{
    constexpr LabelCase kMovements[] = {{Key::NewRelInlinePos, "Movement of writing position X axis"},
                                        {Key::NewRelBaselinePos, "Movement of writing position Y axis"}};
    LineBench bench;
    for (const auto& [key, label] : kMovements) {
        const std::string head = std::string(label) + ": ";
        EXPECT_EQ(bench.Text(key, 1'234), head + "+1,234\n");
        EXPECT_EQ(bench.Text(key, -1'234), head + "-1,234\n");
        EXPECT_EQ(bench.Text(key, 0), head + "0\n");
    }
}

TEST(Axes, AreShownInDegrees)
{
    LineBench bench;
    EXPECT_EQ(bench.Text(Key::IAxis, 90), "Rotation of the cursor to the document: 90°\n");
    EXPECT_EQ(bench.Text(Key::BAxis, 0), "Rotation of the baseline to the document: 0°\n");
    EXPECT_EQ(bench.Text(Key::CharRotation, 270), "Character Rotation: 270°\n");
    EXPECT_EQ(bench.AddText(Key::CharRotation, "custom").Text(), "Character Rotation: custom\n");
}

TEST(ColorLine, HasTheNameOfTheColour)
{
    LineBench bench;
    EXPECT_EQ(bench.Text(Key::Color, 0), "Color: Drawing default\n");
    EXPECT_EQ(bench.Text(Key::Color, 16), "Color: Brown\n");
    EXPECT_EQ(bench.Text(Key::Color, 17), "Color: \n");
    EXPECT_EQ(bench.Text(Key::Color, 0xFF00), "Color: Drawing default\n");
    EXPECT_EQ(bench.Text(Key::Color, 0xFF08), "Color: Color of paper\n");
    EXPECT_EQ(bench.Text(Key::Color, 0xFF09), "Color: \n");
    EXPECT_EQ(bench.Text(Key::Color, 0xFFFF), "Color: Default\n");
    EXPECT_TRUE(bench.witness.heard.empty());
}

TEST(ImageResolution, IsTheSameInBothDirections)
{
    LineBench bench;
    EXPECT_EQ(bench.Text(Key::Resolution, 0), "Resolution X/Y: Not specified\n");
    EXPECT_EQ(bench.Text(Key::Resolution, 9), "Resolution X/Y: 9 x 9 ppi\n");
    EXPECT_EQ(bench.Text(Key::Resolution, 10), "Resolution X/Y: 1 x 1 ppi\n");
    EXPECT_EQ(bench.Text(Key::Resolution, 3'000), "Resolution X/Y: 300 x 300 ppi\n");
    EXPECT_EQ(bench.Text(Key::Resolution, 14'405), "Resolution X/Y: 1,440 x 1,440 ppi\n");
    EXPECT_EQ(bench.Text(Key::Resolution, 14'415), "Resolution X/Y: 1,442 x 1,442 ppi\n");
}

TEST(FieldDelimiter, IsATextOrNotSpecified)
{
    LineBench bench;
    EXPECT_EQ(bench.AddText(Key::FieldDel, ";").Text(), "Field Delimiter: ;\n");
    EXPECT_EQ(bench.AddText(Key::FieldDel, "").Text(), "Field Delimiter: Not specified\n");
}

TEST(OIDTypeLine, LeavesOutTheCommaAndTheBlank)
{
    LineBench bench;
    EXPECT_EQ(bench.AddText(Key::OIDType, ", TIFF, Single-Page").Text(), "Registered object type: TIFF, Single-Page\n");
    EXPECT_EQ(bench.AddText(Key::OIDType, ", ").Text(), "Registered object type: \n");
}

TEST(HyperlinkLine, LooksLikeALink)
{
    LineBench bench;
    EXPECT_EQ(bench.AddText(Key::Hyperlink, "http://a.b").Text(), "Hyperlink: <link>http://a.b</link>\n");
}

TEST(TimeStampLine, IsAsStored)
{
    LineBench bench;
    EXPECT_EQ(bench.AddText(Key::TimeStamp, "1999/365 16:35:21.56").Text(), "Time stamp: \"1999/365 16:35:21.56\"\n");
}

TEST(LabelAlone, HasNoValue)
{
    LineBench bench;
    bench.renderer.IndentText = "\t";
    EXPECT_EQ(bench.Text(Key::IMMInsertation, 1),
              "→The IMM structured field was included at a later date by a filtering application.\n");
}

TEST(IndexOutside, IsToldInWords)
{
    LineBench bench;
    for (const Key key : {Key::IndexedObjOutside, Key::IndexedSFOutside})
        EXPECT_EQ(bench.Add(Element::Boolean(key, true)).Text(),
                  "Index outside: Indexed object is outside of the document\n");
}

// Graphics
// -----------------------------------------------------------------------------------------------------------------

TEST(RoundedCorners, HaveBothLengthsInOneLine)
{
    LineBench bench;
    EXPECT_EQ(bench.Text(Key::BoxEdgeHAxis, 1'000), "");
    bench.Add(Key::BoxEdgeHAxis, 1'000).Add(Key::BoxEdgeVAxis, 2'000);
    EXPECT_EQ(bench.Text(), "Rounded corner ellipse length X axis: 1,000, "
                            "Rounded corner ellipse length Y axis: 2,000\n");
}

TEST(Radius, HasUpToThreeDecimals)
{
    LineBench bench;
    EXPECT_EQ(bench.Add(Element::Float64(Key::RadiusFullArc, 0)).Text(), "Radius full arc: 0.0\n");
    EXPECT_EQ(bench.Add(Element::Float64(Key::RadiusFullArc, 255 + 255 / 256.0)).Text(), "Radius full arc: 255.996\n");
}

TEST(LineWidthLine, CountsNormalWidths)
{
    LineBench bench;
    EXPECT_EQ(bench.Text(Key::LineWidth, 256), "Line width: 0.0083 Inch\n");  // 1/120
    EXPECT_EQ(bench.Text(Key::LineWidth, 120 * 256), "Line width: 1.00 Inch\n");
    EXPECT_EQ(bench.Text(Key::LineWidth, 128), "Line width: 0.0042 Inch\n");
    bench.renderer.lines.NormalLineWidth = 0.01f;
    EXPECT_EQ(bench.Text(Key::LineWidth, 512), "Line width: 0.02 Inch\n");
    EXPECT_FLOAT_EQ(bench.renderer.lines.CurrentLineWidth, 0.02f);
    EXPECT_EQ(bench.Text(Key::LineWidth, 0), "Line width: Drawing default\n");
    EXPECT_FLOAT_EQ(bench.renderer.lines.CurrentLineWidth, 0.01f);
}

TEST(ArcParameters, AreOneLineWhenTheFourthComes)
{
    LineBench bench;
    bench.Add(Key::MajorX, 1'000).Add(Key::MinorY, 2).Add(Key::MinorX, 3).Add(Key::MajorY, 4);
    EXPECT_EQ(bench.Text(), "P = 1,000, Q = 2, R = 3, S = 4, Direction: CCW\n");
    bench.Add(Key::MajorX, 1).Add(Key::MinorY, 2).Add(Key::MinorX, 3).Add(Key::MajorY, -4);
    EXPECT_EQ(bench.Text(), "P = 1, Q = 2, R = 3, S = -4, Direction: CCW\n");
    bench.Add(Key::MajorX, 2).Add(Key::MinorY, 6).Add(Key::MinorX, 3).Add(Key::MajorY, 4);
    EXPECT_EQ(bench.Text(), "P = 2, Q = 6, R = 3, S = 4, Direction: CW\n");  // 0 isn't above 0
}

TEST(ArcParameters, AreForgottenWithTheRecord)
{
    LineBench bench;
    bench.Add(Key::MajorX, 1).Add(Key::MinorY, 2).Add(Key::MinorX, 3).Text();
    EXPECT_EQ(bench.Text(Key::MajorY, 4), "P = 0, Q = 0, R = 0, S = 4, Direction: CW\n");
}

TEST(ComputedLines, HaveTheSeparatorsInForce)
{
    LineBench bench(Language::German, {".", ","});
    EXPECT_EQ(bench.Text(Key::CDPID2, 1'148).substr(bench.Text(Key::CDPID2, 1'148).find(':')), ": 1.148\n");
    const std::string height = bench.Add(Element::Float64(Key::FontHeight, 207 / 1440.0)).Text();
    EXPECT_NE(height.find(": 10,35 "), std::string::npos) << height;
}

}  // namespace
}  // namespace folioscope
