// Font Name Map: the names of a font, a stream over all the fields that follow a Font Control.

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "analysis/decode/fields_fonts.h"
#include "analysis/family_support.h"

namespace folioscope {
namespace {

using namespace test;

using Lines = std::vector<std::string>;

// The font array of the record in hand.
Lines ArrayOf(const ElementList& list)
{
    Lines lines;
    const Element* const values = list.Find(Key::FontArrayValue);
    EXPECT_NE(values, nullptr);
    if (values == nullptr) return lines;
    EXPECT_EQ(list.Find(Key::FontArrayType)->size, values->size);
    for (const Element& element : list.SequenceOf(*values)) lines.push_back(DescriptionOf(list, element));
    return lines;
}

std::string Joined(const Lines& lines)
{
    std::string joined;
    for (const std::string& line : lines) joined += line + '\n';
    return joined;
}

// Font Control: an outline font whose FNN groups have a length and a number.
Bytes FontControl(unsigned nameLength, unsigned names)
{
    return Pieces("00 1E 00*33") + U1(nameLength) + Zeros(4) + U2(names);
}

TEST(FNN, MapsCharacterNamesToOutlineNames)
{
    const Bytes names = Pieces("02 03 'LA010000' 0000001A 'LB010000' 0000001C  02 61 05 <bcde>");
    FamilyWalk walk(AfpFile().Add("FNC", FontControl(12, 2)).Add("FNN", names));
    const Shown shown = walk.Last(2);
    ExpectShown(shown.typed, shown.text,
                "Byte IBMGCGIDFormat 2 | Encoding for IBM character IDs: EBCDIC\n"
                "Byte ExtGCGIDFormat 3 | Encoding for outline character IDs: ASCII\n"
                "Sequence FontArrayType 18\n"
                "Sequence FontArrayValue 18");
    EXPECT_EQ(Joined(ArrayOf(walk.walk.afp.List())),
              "Int16 BeginRepetition 1\nInt16 Length 12\nText IBMCharID LA010000\nInt32 ExtCharIDNext 26\n"
              "Int16 EndRepetition 1\n"
              "Int16 BeginRepetition 2\nInt16 Length 12\nText IBMCharID LB010000\nInt32 ExtCharIDNext 28\n"
              "Int16 EndRepetition 2\n"
              "Int16 BeginRepetition 3\nInt16 Length 2\nText ExtCharIDASCII a\nInt16 EndRepetition 3\n"
              "Int16 BeginRepetition 4\nInt16 Length 5\nText ExtCharIDASCII bcde\nInt16 EndRepetition 4\n");
}

TEST(FNN, OfCodePointsHasNoNamesBehindThem)
{
    const Bytes names = Pieces("02 05 'LA010000' 00000041 'LB010000' 80000042  02 61 05 <bcde>");
    RecordWalk walk(AfpFile().Add("FNC", FontControl(12, 2)).Add("FNN", names));
    walk.Next();
    walk.Next();
    EXPECT_EQ(Joined(ArrayOf(walk.afp.List())),
              "Int16 BeginRepetition 1\nInt16 Length 12\nText IBMCharID LA010000\nInt32 ExtCharIDCMAP 65\n"
              "Int16 EndRepetition 1\n"
              "Int16 BeginRepetition 2\nInt16 Length 12\nText IBMCharID LB010000\nInt32 ExtCharIDCMAP 66\n"
              "Int16 EndRepetition 2\n");
}

TEST(FNN, MarksUnknownFormats)
{
    const AfpFile file = AfpFile().Add("FNC", FontControl(12, 0)).Add("FNN", Pieces("01 04 03 6162"));
    FamilyWalk walk(file);
    const Shown shown = walk.Last(2);
    EXPECT_EQ(shown.text, "Encoding for IBM character IDs: <red>Unknown (1)</red>\n"
                          "Encoding for outline character IDs: <red>Unknown (4)</red>\n");
    EXPECT_EQ(shown.heard, (Lines{"Message Encoding for IBM character IDs: Unknown (1)", "Invalid",
                                  "Message Encoding for outline character IDs: Unknown (4)", "Invalid"}));
    EXPECT_EQ(ArrayOf(walk.walk.afp.List()),
              (Lines{"Int16 BeginRepetition 1", "Int16 Length 3", "Int16 EndRepetition 1"}));
}

TEST(FNN, GoesOnOverSeveralRecords)
{
    AfpFile file;
    file.Add("FNC", FontControl(12, 3));
    file.Add("FNN", Pieces("02 03 'LA010000' 00000001"));
    file.Add("FNN", Pieces("'LB010000' 00000002 'LC010000' 00000003 02 61"));
    file.Add("FNN", Pieces("03 <bc>"));
    RecordWalk walk(file);
    walk.Next();
    walk.Next();
    EXPECT_EQ(walk.Number(Key::IBMGCGIDFormat), 2);
    EXPECT_EQ(ArrayOf(walk.afp.List()).size(), 5u);
    EXPECT_EQ(walk.afp.Fonts.namesLeft, 2);
    walk.Next();
    EXPECT_FALSE(walk.Has(Key::IBMGCGIDFormat));
    EXPECT_FALSE(walk.Has(Key::ExtGCGIDFormat));
    EXPECT_EQ(Joined(ArrayOf(walk.afp.List())),
              "Int16 BeginRepetition 1\nInt16 Length 12\nText IBMCharID LB010000\nInt32 ExtCharIDNext 2\n"
              "Int16 EndRepetition 1\n"
              "Int16 BeginRepetition 2\nInt16 Length 12\nText IBMCharID LC010000\nInt32 ExtCharIDNext 3\n"
              "Int16 EndRepetition 2\n"
              "Int16 BeginRepetition 3\nInt16 Length 2\nText ExtCharIDASCII a\nInt16 EndRepetition 3\n");
    walk.Next();
    EXPECT_EQ(ArrayOf(walk.afp.List()),
              (Lines{"Int16 BeginRepetition 1", "Int16 Length 3", "Text ExtCharIDASCII bc", "Int16 EndRepetition 1"}));
}

TEST(FNN, BeginsAnewBehindAnotherControl)
{
    const Bytes control = FontControl(12, 1), names = Pieces("02 03 'LA010000' 00000001");
    RecordWalk walk(AfpFile().Add("FNC", control).Add("FNN", names).Add("FNC", control).Add("FNN", names));
    for (int record = 0; record < 4; ++record) walk.Next();
    EXPECT_TRUE(walk.Has(Key::IBMGCGIDFormat));
    EXPECT_EQ(ArrayOf(walk.afp.List()).size(), 5u);
}

TEST(FNN, WithoutAControlHasNoHeader)
{
    RecordWalk walk(AfpFile().Add("FNN", Pieces("02 61 03 6263 01 64")));
    walk.Next();
    EXPECT_FALSE(walk.Has(Key::IBMGCGIDFormat));
    EXPECT_EQ(ArrayOf(walk.afp.List()), (Lines{"Int16 BeginRepetition 1", "Int16 Length 2", "Int16 EndRepetition 1",
                                               "Int16 BeginRepetition 2", "Int16 Length 3", "Int16 EndRepetition 2"}));
}

TEST(FNN, EndsAtALengthBelowTwo)
{
    for (const std::string_view length : {"00", "01"}) {
        const Bytes names = Pieces("02 03 02 61 " + std::string(length) + " 02 62 02 63");
        RecordWalk walk(AfpFile().Add("FNC", FontControl(12, 0)).Add("FNN", names));
        walk.Next();
        walk.Next();
        EXPECT_EQ(ArrayOf(walk.afp.List()).size(), 4u) << length;
    }
}

TEST(FNN, MovesByTheLengthThatTheControlGives)
{
    const auto namesOf = [](unsigned length) {
        const Bytes names = Pieces("02 05 'LA010000' 00000001 'XX' 'LB010000' 00000002 'YY' 40*8");
        RecordWalk walk(AfpFile().Add("FNC", FontControl(length, 2)).Add("FNN", names));
        walk.Next();
        walk.Next();
        Lines lines;
        for (const std::string& line : ArrayOf(walk.afp.List()))
            if (line.starts_with("Text ") || line.starts_with("Int16 Length")) lines.push_back(line);
        return lines;
    };
    EXPECT_EQ(namesOf(14),
              (Lines{"Int16 Length 12", "Text IBMCharID LA010000", "Int16 Length 12", "Text IBMCharID LB010000"}));
    EXPECT_EQ(namesOf(12),
              (Lines{"Int16 Length 12", "Text IBMCharID LA010000", "Int16 Length 12", "Text IBMCharID XXLB0100"}));
    EXPECT_EQ(namesOf(0), namesOf(12));
}

TEST(FNN, ReadsOutlineNamesInPage437)
{
    RecordWalk walk(AfpFile().Add("FNC", FontControl(12, 0)).Add("FNN", Pieces("02 03 04 81 84 41")));
    walk.Next();
    walk.Next();
    EXPECT_EQ(ArrayOf(walk.afp.List())[2], "Text ExtCharIDASCII üäA");
}

TEST(FNN, CutShortReadsBehindTheField)
{
    RecordWalk walk(AfpFile().Add("FNC", FontControl(12, 5)).Add("FNN", Pieces("02 03 'LA010000' 00000001 'LB'")));
    walk.Next();
    walk.Next();
    EXPECT_EQ(ArrayOf(walk.afp.List()).size(), 10u);
    EXPECT_EQ(walk.afp.Fonts.namesLeft, 3);
}

TEST(FNN, ShowsTenThousandEntriesAndReadsToTheEnd)
{
    Bytes names = Pieces("02 03");
    for (unsigned i = 0; i < 2'100; ++i) names += Ebcdic8("LA010000") + U4(i);
    RecordWalk walk(AfpFile().Add("FNC", FontControl(12, 2'101)).Add("FNN", names).Add("FNN", names.substr(2)));
    walk.Next();
    walk.Next();
    EXPECT_EQ(ArrayOf(walk.afp.List()).size(), 10'000u);
    EXPECT_EQ(walk.afp.Fonts.namesLeft, 1);
}

}  // namespace
}  // namespace folioscope
