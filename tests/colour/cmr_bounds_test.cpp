// Colour resources whose counts and offsets say more than the object holds, and what bounds the work on them.

#include <gtest/gtest.h>

#include <string>

#include "analysis/elements/element_list.h"
#include "colour/colour_support.h"
#include "document/ports.h"

namespace folioscope {
namespace {

using namespace test;

constexpr std::uint32_t kHighest = 0xFFFFFFFF;
constexpr std::size_t kFull = ElementList::kLongestSequence;

TEST(CmrBounds, CountsOfNothingAddNothing)
{
    for (const unsigned type : {1u, 2u, 4u, 9u})
        EXPECT_EQ(ShowTag(Cmr().Inside(0xF001, type, 0, U4(kHighest))).elements, Lines{"Text CMRTag F0 01"}) << type;
    for (const unsigned id : {0x1065u, 0x1070u, 0x2011u, 0x5020u, 0x5040u, 0x5045u})
        EXPECT_EQ(ShowTag(Cmr().Inside(id, 8, 0, U4(kHighest))).elements.size(), 1u) << id;
}

TEST(CmrBounds, ListsOfTheHighestCountFillTheSequence)
{
    for (const unsigned type : {1u, 2u, 4u, 9u})
        EXPECT_EQ(ShowColour(Cmr().Pointing(0xF001, type, kHighest, 0)).elements.size(), kFull) << type;
    for (const unsigned id : {0x1065u, 0x1070u, 0x2011u, 0x5020u, 0x5025u, 0x5030u, 0x5035u, 0x5040u})
        EXPECT_EQ(ShowColour(Cmr().Pointing(id, 8, kHighest, 0)).elements.size(), kFull) << id;
}

TEST(CmrBounds, ValuesOfTheHighestCountEndWithTheObject)
{
    const auto value = [](unsigned id, unsigned type, const Bytes& bytes) {
        return ShowTag(Cmr().Behind(id, type, kHighest, bytes)).elements.back();
    };
    EXPECT_EQ(value(0x0004, 6, "text"), "Text CMRValueStr text");
    EXPECT_EQ(value(0x0004, 7, Wide("text")), "Text CMRValueStr text");
    EXPECT_EQ(value(0x1045, 1, Zeros(9)), "Int32 CMRCount 2147483647");
    EXPECT_EQ(value(0x4040, 5, Zeros(20)), "Int32 LUTData 2147483627");
    const Cmr names = Cmr().Behind(0x5045, 5, kHighest, Raw({5, 0, 'O', 0, 'K'}));
    EXPECT_EQ(ValuesIn(ShowColour(names).elements, "CMRValueStr"), (Lines{"OK", ""}))
        << "the zero behind it ends the list";
    const std::string hex = value(0x4015, 5, Raw({1, 2, 3}));
    EXPECT_TRUE(hex.starts_with("Text CMRValueHex 01 02 03 00 00 00 00 00 \t\t00"));
    EXPECT_TRUE(hex.ends_with("00 \t\t\r\n\t    ...")) << "2,048 bytes";
}

TEST(CmrBounds, TablesWithoutAnEndTagEndWithTheObject)
{
    const Lines elements =
        ShowColour(Cmr().Inside(0x0011, 1, 1, U1(3)).Inside(0x0011, 1, 1, U1(4)).WithoutEnd()).elements;
    EXPECT_EQ(ValuesIn(elements, "CMRValueNum"), (Lines{"3", "4"}));
    EXPECT_EQ(elements.back(), "Int16 EndRepetition 2");
    const Bytes cut = Cmr().Inside(0x0011, 1, 1, U1(3)).WithoutEnd().Whole() + Raw({0x10});
    EXPECT_EQ(ValuesIn(ShowColour(cut).elements, "CMRTag"), (Lines{"00 11", "10 00"}))
        << "an entry's first byte counts";
}

TEST(CmrBounds, TablesOfManyTagsFillTheSequence)
{
    Cmr cmr;
    for (int i = 0; i < 5000; ++i) cmr.Inside(0x0011, 1, 1, U1(3));
    const ColourShown shown = ShowColour(cmr);
    EXPECT_EQ(shown.elements.size(), kFull);
    EXPECT_EQ(shown.elements[16 + 4 * 2495], "Int16 BeginRepetition 2496");
    EXPECT_EQ(shown.elements.back(), "Int16 EndRepetition 2496");
}

// A list that fills the sequence leaves groups open: the next object begins at the margin all the same.
TEST(CmrBounds, AFullSequenceLeavesNoIndentationBehind)
{
    const Bytes full = Cmr().Pointing(0xF001, 1, kHighest, 0).Whole(), small = Cmr().Header(26, Wide("HT")).Whole();
    AfpFile file = InContainer(full, ObjectKind::ColourResource);
    file.Noise(InContainer(small, ObjectKind::ColourResource).Content());
    RecordWalk walk(file);
    walk.afp.SetPorts(Decoders());
    LineBench bench;
    bench.renderer.ports = Renderers();
    for (int ends = 0; ends < 2;) {
        if (walk.Next() != kEnd) continue;
        bench.renderer.deferredText.Clear();
        bench.renderer.RenderStructuredField(walk.afp.List());
        EXPECT_TRUE(bench.renderer.deferredText.Text().starts_with("CMR size: "));
        EXPECT_EQ(bench.renderer.IndentText, "");
        ++ends;
    }
}

TEST(CmrBounds, TextsLongerThanAnyDescriptionAreThreeDots)
{
    const auto text = [](std::size_t length) {
        const Bytes bytes(length, 'x');
        return ShowTag(Cmr().Header(26, Wide("HT")).Behind(0x0004, 6, static_cast<std::uint32_t>(length), bytes)).text;
    };
    EXPECT_EQ(text(60'000).size(), std::string("CMR tag: Comment\nValue: \"\"\n").size() + 60'000);
    // The dots take the place of the whole line, with its end.
    EXPECT_EQ(text(65'536), "CMR tag: Comment\n...\n");
    EXPECT_EQ(text(200'000), "CMR tag: Comment\n...\n");
}

TEST(CmrBounds, LongTextsAreCleanedToo)
{
    const Bytes bytes = Bytes(70'000, '@') + "x";
    EXPECT_EQ(ValuesIn(ShowTag(Cmr().Behind(0x0004, 6, kHighest, bytes.substr(10'000))).elements, "CMRValueStr"),
              Lines{"x"});
}

// The memory of one object's texts is bounded, however many of its tags point to the same long text.
TEST(CmrBounds, ManyTagsShareOneLongText)
{
    Cmr cmr;
    for (int i = 0; i < 3000; ++i) cmr.Pointing(0x0004, 6, 100'000, 0);
    RecordWalk walk(InContainer(cmr.Whole() + Bytes(100'000, 'x'), ObjectKind::ColourResource));
    walk.afp.SetPorts(Decoders());
    while (walk.Next() != kEnd) continue;
    EXPECT_EQ(walk.afp.List().SequenceOf(*walk.afp.List().Find(Key::CMRDataValue)).size(), kFull);
    EXPECT_LT(walk.afp.List().Pool().size(), 32u << 20);
}

}  // namespace
}  // namespace folioscope
