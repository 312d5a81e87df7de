#include "analysis/render/property_text.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace folioscope {
namespace {

// A text whose next character comes at this position.
PropertyText FilledTo(std::size_t position)
{
    PropertyText text;
    text.Append(std::string(position - 1, 'x'));
    EXPECT_EQ(text.Position(), position);
    return text;
}

std::string Tail(const PropertyText& text, std::size_t filledTo)
{
    return std::string(text.Text().substr(filledTo - 1));
}

TEST(PropertyText, GrowsFromPositionOne)
{
    PropertyText text;
    EXPECT_EQ(text.Position(), 1u);
    EXPECT_EQ(text.Text(), "");
    text.Append("Name: ");
    text.Append("A\r\n");
    EXPECT_EQ(text.Text(), "Name: A\r\n");
    EXPECT_EQ(text.Position(), 10u);
}

TEST(PropertyText, ClearStartsAnew)
{
    PropertyText text = FilledTo(65'536);
    text.Clear();
    EXPECT_EQ(text.Position(), 1u);
    EXPECT_EQ(text.Text(), "");
    text.Append("A");
    EXPECT_EQ(text.Text(), "A");
}

TEST(PropertyText, TakesOneCharacterLessThanItsCapacity)
{
    PropertyText text;
    text.Append(std::string(65'535, 'x'));
    EXPECT_EQ(text.Text().size(), 65'535u);
    text.Append("y");
    EXPECT_EQ(text.Text().size(), 65'535u);
    PropertyText tooLong;
    tooLong.Append(std::string(65'536, 'x'));
    EXPECT_EQ(tooLong.Text(), "...");
    EXPECT_EQ(tooLong.Position(), 4u);
}

// What fits is taken, else three dots if these fit, else nothing.
TEST(PropertyText, HoldsItsLimitAtEveryBorder)
{
    for (std::size_t position = 65'520; position <= 65'536; ++position) {
        for (std::size_t length = 0; length <= 20; ++length) {
            PropertyText text = FilledTo(position);
            text.Append(std::string(length, 'y'));
            const std::string expected = position + length <= 65'536 ? std::string(length, 'y')
                                         : position + 3 <= 65'536    ? "..."
                                                                     : "";
            EXPECT_EQ(Tail(text, position), expected) << position << ' ' << length;
            EXPECT_EQ(text.Position(), position + expected.size()) << position << ' ' << length;
        }
    }
}

TEST(PropertyText, AtPosition65534OneFitsAndFourLeaveNothing)
{
    PropertyText one = FilledTo(65'534);
    one.Append("1");
    EXPECT_EQ(Tail(one, 65'534), "1");
    PropertyText four = FilledTo(65'534);
    four.Append("1234");
    EXPECT_EQ(Tail(four, 65'534), "");
    EXPECT_EQ(four.Position(), 65'534u);
}

TEST(PropertyText, EachAppendPastTheLimitAddsDots)
{
    PropertyText text = FilledTo(65'526);
    for (int i = 0; i < 5; ++i) text.Append(std::string(100, 'y'));
    EXPECT_EQ(Tail(text, 65'526), ".........");
    EXPECT_EQ(text.Position(), 65'535u);
}

TEST(PropertyText, AShorterLineMayFitBehindTheDots)
{
    PropertyText text = FilledTo(65'500);
    text.Append(std::string(100, 'y'));
    text.Append("short\r\n");
    EXPECT_EQ(Tail(text, 65'500), "...short\r\n");
}

TEST(PropertyText, CountsCharactersAndNotBytes)
{
    PropertyText text;
    text.Append("ä€");
    EXPECT_EQ(text.Position(), 3u);
    text.Append("😀");  // two in UTF-16
    EXPECT_EQ(text.Position(), 5u);
    for (const std::string_view character : {"ä", "€"}) {
        PropertyText full;
        std::string many;
        for (int i = 0; i < 65'535; ++i) many += character;
        full.Append(many);
        EXPECT_EQ(full.Text().size(), 65'535 * character.size());
    }
    PropertyText two = FilledTo(65'535);
    two.Append("😀");
    EXPECT_EQ(Tail(two, 65'535), "");
    two.Append("ä");
    EXPECT_EQ(Tail(two, 65'535), "ä");
}

TEST(PropertyText, MarkersCount)
{
    PropertyText text;
    text.Append(kBold);
    EXPECT_EQ(text.Position(), 6u);
}

TEST(PropertyText, WhatIsPassedCountsWithoutBeingKept)
{
    PropertyText text;
    text.Pass(65'500);
    EXPECT_EQ(text.Position(), 65'501u);
    EXPECT_EQ(text.Text(), "");
    text.Append(std::string(35, 'y'));
    EXPECT_EQ(text.Text().size(), 35u);
    text.Append("z");
    EXPECT_EQ(text.Text().size(), 35u);
}

TEST(PropertyText, PiecesBetweenOpenAndCloseAreOneAppend)
{
    PropertyText text = FilledTo(65'530);
    std::string& out = text.Open();
    out += "12345";
    text.Opened() += "67";
    text.Close();
    EXPECT_EQ(Tail(text, 65'530), "...");  // not "12345", which would have fitted
    std::string& fits = text.Open();
    fits += '8';
    fits += "9";
    text.Close();
    EXPECT_EQ(Tail(text, 65'530), "...89");
    EXPECT_EQ(text.Position(), 65'535u);
}

// Markers ----------------------------------------------------------------------------------------------------------

std::string WithoutMarkup(std::string_view line)
{
    std::string out;
    AppendWithoutMarkup(out, line);
    return out;
}

TEST(Markup, HasSixMarkers)
{
    EXPECT_EQ(kMarker, "°^°");
    EXPECT_EQ(kBold, "°^°B~");
    EXPECT_EQ(kNormal, "°^°N~");
    EXPECT_EQ(kRed, "°^°R~");
    EXPECT_EQ(kBlack, "°^°S~");
    EXPECT_EQ(kLink, "°^°H~");
    EXPECT_EQ(kLinkEnd, "°^°L~");
}

struct Marked {
    std::string_view text, plain;
};
constexpr Marked kMarked[] = {
    {"", ""},
    {"no marker", "no marker"},
    {"°^°B~bold°^°N~ rest", "bold rest"},
    {"Name:°^°B~\tPAGE0001°^°N~\r\n", "Name:\tPAGE0001\r\n"},
    {"a°^°R~b°^°S~c°^°H~d°^°L~ef", "abcdef"},
    {"at the end°^°B~", "at the end"},
    {"°^°B~", ""},
    {"°^°B~°^°N~", ""},
    {"unknown °^°Q!letter", "unknown letter"},
    {"unknown °^°  blanks", "unknown blanks"},
    {"cut behind the letter°^°B", "cut behind the letter"},
    {"cut behind the marker°^°", "cut behind the marker"},
    {"half a marker °^ and °", "half a marker °^ and °"},
    {"behind °^°äöit", "behind it"},
    {"behind °^°€€it", "behind it"},
    {"behind °^°ä", "behind "},
    {"behind °^°😀it", "behind it"},
    {"°^°°^°B~xy", "°B~xy"},  // the pair behind the first marker is "°^"
    {"°^°^°B~xy", "B~xy"},
    {"Rotation: 90°\r\n", "Rotation: 90°\r\n"},
};

TEST(StripMarkup, TakesEachMarkerAndTheTwoCharactersBehindIt)
{
    for (const auto& [text, plain] : kMarked) EXPECT_EQ(StripMarkup(text), plain) << text;
}

TEST(StripMarkup, LosesASingleCharacterAtTheEnd)
{
    EXPECT_EQ(StripMarkup("a°^°B~b"), "a");
    EXPECT_EQ(StripMarkup("a°^°B~ä"), "a");
    EXPECT_EQ(StripMarkup("a°^°B~\n"), "a");
    EXPECT_EQ(StripMarkup("a°^°B~bc"), "abc");
    EXPECT_EQ(StripMarkup("a°^°B~😀"), "a😀");  // two characters
    EXPECT_EQ(StripMarkup("b"), "");
    EXPECT_EQ(StripMarkup("€"), "");
    EXPECT_EQ(StripMarkup("bc"), "bc");
    EXPECT_EQ(StripMarkup("a°^°B~b°^°N~"), "ab");  // here it stands between markers
}

TEST(AppendWithoutMarkup, TakesTheSameMarkers)
{
    for (const auto& [text, plain] : kMarked) EXPECT_EQ(WithoutMarkup(text), plain) << text;
}

TEST(AppendWithoutMarkup, KeepsASingleCharacterAtTheEnd)
{
    EXPECT_EQ(WithoutMarkup("a°^°B~b"), "ab");
    EXPECT_EQ(WithoutMarkup("a°^°B~ä"), "aä");
    EXPECT_EQ(WithoutMarkup("b"), "b");
    EXPECT_EQ(WithoutMarkup("€"), "€");
}

TEST(AppendWithoutMarkup, KeepsWhatIsThere)
{
    std::string out = ">>\t";
    AppendWithoutMarkup(out, "Name:°^°B~\tA°^°N~");
    EXPECT_EQ(out, ">>\tName:\tA");
}

}  // namespace
}  // namespace folioscope
