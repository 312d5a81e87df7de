// What frames the keys of a triplet.

#include "analysis/render/triplets.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "analysis/family_support.h"

namespace folioscope {
namespace {

using namespace test;

using Lines = std::vector<std::string>;

LineBench& AddTriplet(LineBench& bench, std::string_view name)
{
    return bench.AddText(Key::BeginTriplet, name.substr(0, 5)).AddText(Key::TripletName, name);
}

LineBench& EndTriplet(LineBench& bench) { return bench.Add(Element::Boolean(Key::EndTriplet, true)); }

TEST(TripletFrame, IsAnEmptyLineAndABoldName)
{
    LineBench bench;
    AddTriplet(bench, "x'65' (Comment)").AddText(Key::Content, "A");
    EXPECT_EQ(EndTriplet(bench).AddText(Key::HexCode, "0F").Text(),
              "\nTriplet:<b>→x'65' (Comment)</b>\n→Content:→<b>A</b>\nHex-Codes: x'0F'\n");
    EXPECT_EQ(bench.renderer.IndentText, "");
}

TEST(TripletFrame, InAGroupTheEmptyLineHoldsItsTabs)
{
    LineBench bench;
    bench.Add(Key::BeginRepetitionTRP, 1);
    AddTriplet(bench, "x'65' (Comment)").AddText(Key::Content, "A");
    EndTriplet(bench).Add(Key::EndRepetitionTRP, 1);
    EXPECT_EQ(bench.Text(), "\nElement 1\n→\n→Triplet:<b>→x'65' (Comment)</b>\n→→Content:→<b>A</b>\n");
    EXPECT_EQ(bench.renderer.IndentText, "");
}

TEST(TripletFrame, OfAnUnknownTripletIsRed)
{
    LineBench bench;
    bench.renderer.IndentText = "\t";
    bench.AddText(Key::BeginTriplet, "x'9E'").Add(Element::Boolean(Key::TripletUnknown, true));
    EndTriplet(bench.AddText(Key::HexCode, "9E"));
    EXPECT_EQ(bench.Text(), "→Triplet\n: <red>Unknown</red>\n→→Hex-Codes: x'9E'\n");
    EXPECT_EQ(bench.witness.heard, (Lines{"Message Triplet: Unknown", "Invalid"}));
    EXPECT_EQ(bench.renderer.IndentText, "\t");
}

TEST(TripletFrame, OfPaddingIsATabAndNoFault)
{
    LineBench bench;
    bench.AddText(Key::BeginTriplet, "x'00'").Add(Element::Boolean(Key::TripletInvalid, true));
    EndTriplet(bench.Add(Element::Boolean(Key::InvalidBytes, true)));
    EXPECT_EQ(bench.Text(), "→This structured field contains padding bytes. Currently padding is not allowed in any of "
                            "the interchange sets, but shouldn't cause errors!\n");
    EXPECT_TRUE(bench.witness.heard.empty());
    EXPECT_EQ(bench.renderer.IndentText, "");
}

TEST(TripletFrame, IsTranslated)
{
    LineBench bench(Language::German);
    bench.AddText(Key::BeginTriplet, "x'9E'").Add(Element::Boolean(Key::TripletUnknown, true));
    EXPECT_EQ(EndTriplet(bench).Text(), "Triplet\n: <red>Unbekannt</red>\n");
    EXPECT_EQ(bench.witness.heard.at(0), "Message Triplet: Unbekannt");
}

TEST(TripletFrame, ManyEndsAreHarmless)
{
    LineBench bench;
    EndTriplet(EndTriplet(bench)).AddText(Key::HexCode, "0F");
    EXPECT_EQ(bench.Text(), "Hex-Codes: x'0F'\n");
}

}  // namespace
}  // namespace folioscope
