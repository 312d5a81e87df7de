// An object container's data are gathered from its fields and decoded at its end.

#include <gtest/gtest.h>

#include <string>

#include "colour/colour_support.h"
#include "document/ports.h"

namespace folioscope {
namespace {

using namespace test;

Bytes Comment(const std::string& text)
{
    return Cmr().Header(26, Wide("HT")).Behind(0x0004, 6, static_cast<std::uint32_t>(text.size()), text).Whole();
}

// What the walk's object holds after so many records.
std::vector<std::uint8_t> GatheredAfter(const AfpFile& file, int records)
{
    RecordWalk walk(file);
    for (int i = 0; i < records; ++i) walk.Next();
    return walk.afp.ObjectBuffer;
}

TEST(Gathering, PutsTheFirstDataByteFirst)
{
    for (const ObjectKind kind : {ObjectKind::ColourResource, ObjectKind::Metadata}) {
        const AfpFile file = InContainer("abcdefg", kind, 3);
        EXPECT_EQ(GatheredAfter(file, 1), std::vector<std::uint8_t>{});
        EXPECT_EQ(GatheredAfter(file, 2), (std::vector<std::uint8_t>{'a', 'b', 'c'}));
        EXPECT_EQ(GatheredAfter(file, 4), (std::vector<std::uint8_t>{'a', 'b', 'c', 'd', 'e', 'f', 'g'}));
    }
}

TEST(Gathering, PassesWhatIsNotDecoded)
{
    EXPECT_EQ(GatheredAfter(InContainer("abcdefg", ObjectKind::Other), 2), std::vector<std::uint8_t>{});
    const Shown shown = FamilyWalk(InContainer("ab", ObjectKind::Other)).Last(2);
    EXPECT_EQ(shown.elements, (Lines{"ObjectData 2", "HexCode 61 62"}));
}

TEST(Gathering, TellsTheCountWithoutTheBytes)
{
    const Shown shown = FamilyWalk(InContainer("ab", ObjectKind::ColourResource)).Last(2);
    EXPECT_EQ(shown.elements, Lines{"ObjectData 2"});
    EXPECT_EQ(shown.text, "No. of bytes with object data: 2\n");
}

TEST(Gathering, LeavesPaddingAndExtensionOut)
{
    AfpFile file = InContainer("", ObjectKind::ColourResource);
    file = AfpFile().Noise(file.Content().substr(0, file.Content().size() - 17));  // without its End
    file.Add(Field{"OCD", U1(3) + "xx" + "abc", 0x80}).Add(Field{"OCD", "def" + Zeros(2) + U1(3), 0x08});
    file.Add(Field{"OCD", U1(3), 0x08}).Add("OCD", "g");
    EXPECT_EQ(GatheredAfter(file, 5), (std::vector<std::uint8_t>{'a', 'b', 'c', 'd', 'e', 'f', 'g'}));
}

TEST(Gathering, OfAFieldThatCountsMoreThanTheFileHoldsAddsZeros)
{
    AfpFile file = InContainer("abc", ObjectKind::ColourResource);
    const Bytes begin = file.Content().substr(0, file.Content().size() - 17 - 12);
    const Bytes cut = begin + U1(0x5A) + Structured({"OCD", "abc", 0, 8 + 6});
    RecordWalk walk(cut);
    walk.Next();
    walk.Next();
    const auto& object = walk.afp.ObjectBuffer;
    EXPECT_EQ(std::vector<std::uint8_t>(object.begin(), object.begin() + 3),
              (std::vector<std::uint8_t>{'a', 'b', 'c'}));
    EXPECT_EQ(std::vector<std::uint8_t>(object.begin() + 3, object.end()), std::vector<std::uint8_t>(3, 0));
}

TEST(Gathering, BeginsAnewWithEachContainer)
{
    const Bytes first = InContainer("first", ObjectKind::ColourResource).Content();
    AfpFile file = AfpFile().Noise(first.substr(0, first.size() - 17));
    file.Noise(InContainer("second", ObjectKind::Metadata).Content());
    EXPECT_EQ(GatheredAfter(file, 2).size(), 5u);
    EXPECT_EQ(GatheredAfter(file, 3).size(), 0u);
    EXPECT_EQ(GatheredAfter(file, 4).size(), 6u);
}

TEST(Gathering, GivesTheMemoryBackAtTheEnd)
{
    RecordWalk walk(InContainer(Bytes(100'000, 'x'), ObjectKind::ColourResource));
    while (walk.Next() != kEnd) continue;
    EXPECT_EQ(walk.afp.ObjectBuffer.capacity(), 0u);
}

TEST(Gathering, CutsDoNotMatter)
{
    const Bytes object = Comment("A comment that is cut wherever a field ends");
    const ColourShown whole = ShowColour(object);
    for (const std::size_t step : {1u, 2u, 3u, 7u, 12u, 163u, 164u, 165u}) {
        const ColourShown shown = ShowColour(InContainer(object, ObjectKind::ColourResource, step));
        EXPECT_EQ(shown.elements, whole.elements) << step;
        EXPECT_EQ(shown.text, whole.text) << step;
    }
}

// Two thousand fields, 16 MB: each is appended in one piece. A file of 100 MB takes the same road.
TEST(Gathering, OfManyLongFieldsIsOneObject)
{
    const Bytes filler(16u << 20, '\x5A');
    const Bytes object = Comment("in front") + filler;
    RecordWalk walk(InContainer(object, ObjectKind::ColourResource, 8000));
    walk.afp.SetPorts(Decoders());
    std::size_t gathered = 0;
    while (walk.Next() != kEnd) {
        EXPECT_GE(walk.afp.ObjectBuffer.size(), gathered);
        gathered = walk.afp.ObjectBuffer.size();
        ASSERT_LE(walk.afp.ObjectBuffer.capacity(), 2 * object.size() + 8000);
    }
    EXPECT_EQ(gathered, object.size());
    const auto sequence = walk.afp.List().SequenceOf(*walk.afp.List().Find(Key::CMRDataValue));
    ASSERT_EQ(sequence.size(), 23u);
    EXPECT_EQ(walk.afp.List().TextOf(sequence[18]), "in front");
}

// The flags
// --------------------------------------------------------------------------------------------------------------------

TEST(EndOfContainer, OfAnotherObjectDecodesNothing)
{
    RecordWalk walk(InContainer("abc", ObjectKind::Other));
    walk.afp.SetPorts(Decoders());
    while (walk.Next() != kEnd) continue;
    EXPECT_EQ(walk.Body(), (Lines{"Text Name OBJECT  ", "Text ShowResName OBJECT"}));
}

TEST(EndOfContainer, DecodesByTheKindOfTheObject)
{
    for (const auto& [kind, key] :
         {std::pair{ObjectKind::ColourResource, Key::CMRDataType}, {ObjectKind::Metadata, Key::MOLen}}) {
        RecordWalk walk(InContainer("abc", kind));
        walk.afp.SetPorts(Decoders());
        while (walk.Next() != kEnd) continue;
        for (const Key other : {Key::CMRDataType, Key::CMRDataValue, Key::MOLen, Key::MOType})
            EXPECT_EQ(walk.Has(other),
                      (other == Key::CMRDataType || other == Key::CMRDataValue) == (key == Key::CMRDataType));
        EXPECT_EQ(walk.Body()[0], "Text Name OBJECT  ");
        EXPECT_EQ(walk.Body()[1], "Text ShowResName OBJECT");
    }
}

TEST(EndOfContainer, WithoutADecoderIsAnOrdinaryEnd)
{
    RecordWalk walk(InContainer("abc", ObjectKind::ColourResource));
    while (walk.Next() != kEnd) continue;
    EXPECT_EQ(walk.Body(), (Lines{"Text Name OBJECT  ", "Text ShowResName OBJECT"}));
}

TEST(EndOfContainer, OfNoDataShowsAHeaderOfZeros)
{
    const ColourShown shown = ShowColour(Bytes());
    EXPECT_EQ(shown.elements.size(), 16u);
    EXPECT_TRUE(shown.text.starts_with("CMR size: 0\n")) << shown.text;
}

}  // namespace
}  // namespace folioscope
