// ICC profiles inside of colour management resources.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "analysis/elements/element_list.h"
#include "colour/colour_support.h"

namespace folioscope {
namespace {

using namespace test;

Cmr WithProfile(const Bytes& profile)
{
    return Cmr().Header(26, Wide("CC")).Behind(0x3015, 5, static_cast<std::uint32_t>(profile.size()), profile);
}

ColourShown ShowProfile(const IccProfile& profile) { return ShowColour(WithProfile(profile.Whole())); }

// textDescriptionType
Bytes Described(std::string_view text)
{
    return "desc" + Zeros(4) + U4(static_cast<std::uint32_t>(text.size()) + 1) + Bytes(text) + Zeros(79);
}

// XYZType
Bytes Xyz(std::uint32_t x, std::uint32_t y, std::uint32_t z) { return "XYZ " + Zeros(4) + U4(x) + U4(y) + U4(z); }

// The smallest profile of a display: matrix and curves, as ICC.1 demands.
IccProfile Display()
{
    const Bytes gamma = "curv" + Zeros(4) + U4(1) + U2(0x0233);
    return IccProfile()
        .Header(4, "TEST")
        .Header(8, Raw({4, 0x20, 0, 0}))
        .Header(12, "mntrRGB XYZ ")
        .Header(24, U2(2007) + U2(3) + U2(14) + U2(9) + U2(5) + U2(59))
        .Header(36, "acspMSFT")
        .Header(44, U4(0x80000000))
        .Header(48, "ACMEM100")
        .Header(56, U4(0x50000000) + U4(0))
        .Header(64, U4(1))
        .Header(68, U4(0xF6D6) + U4(0x10000) + U4(0xD32D))
        .Header(80, "MAKE")
        .Header(84, Raw({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 255}))
        .Tag("desc", Described("Plain display"))
        .Tag("cprt", "text" + Zeros(4) + "No rights reserved" + Zeros(1))
        .Tag("wtpt", Xyz(0xF351, 0x10000, 0x116CC))
        .Tag("rXYZ", Xyz(0x6FA2, 0x38F5, 0x390))
        .Tag("gXYZ", Xyz(0x6299, 0xB785, 0x18DA))
        .Tag("bXYZ", Xyz(0x24A0, 0xF84, 0xB6CF))
        .Tag("rTRC", gamma)
        .Tag("gTRC", gamma)
        .Tag("bTRC", gamma);
}

constexpr std::string_view kDisplayText =
    "\n<b>Element 1</b>\n"
    "→CMR tag: ICC Profile Data\n"
    "\n<b>Element (Header)</b>\n"
    "→→ICC profile size: 500\n"
    "→→Preferred CMM Type: \"TEST\"\n"
    "→→Profile version number: 4.2.0\n"
    "→→Profile/Device class: Display device profile\n"
    "→→Color space of data: \"RGB\"\n"
    "→→Profile connection space (PCS): \"XYZ\"\n"
    "→→Creation date and time this profile was created: 2007/03/14 09:05:59 UTC\n"
    "→→File signature: \"acsp\"\n"
    "→→Primary platform: Microsoft Corporation\n"
    "→→Embedded Profile: true\n"
    "→→Profile cannot be used independently: false\n"
    "→→Device manufacturer: \"ACME\"\n"
    "→→Device model: \"M100\"\n"
    "→→Device media attributes: Reflective\n"
    "→→Device media attributes: Matte\n"
    "→→Device media attributes: Media polarity positive\n"
    "→→Device media attributes: Black & White\n"
    "→→Rendering Intent: Media-Relative Colorimetric\n"
    "→→PCS illuminant: X= 0.9642; Y = 1.0000; Z=0.8249\n"
    "→→Creator: \"MAKE\"\n"
    "→→Profile-ID (MD5): x'00 01 02 03 04 05 06 07 →→08 09 0A 0B 0C 0D 0E FF →→'\n"
    "\n<b>Element ICC-Tag 1</b>\n"
    "→→Tag signature: profileDescriptionTag (desc)\n"
    "→→Tag type: textDescriptionType (desc)\n"
    "→→Value: \"Plain display\"\n"
    "\n<b>Element ICC-Tag 2</b>\n"
    "→→Tag signature: copyrightTag (cprt)\n"
    "→→Tag type: textType (text)\n"
    "→→Value: \"No rights reserved\"\n"
    "\n<b>Element ICC-Tag 3</b>\n"
    "→→Tag signature: mediaWhitePointTag (wtpt)\n"
    "→→Tag type: XYZType (XYZ)\n"
    "\n<b>Element ICC-Tag 4</b>\n"
    "→→Tag signature: redMatrixColumnTag (rXYZ)\n"
    "→→Tag type: XYZType (XYZ)\n"
    "\n<b>Element ICC-Tag 5</b>\n"
    "→→Tag signature: greenMatrixColumnTag (gXYZ)\n"
    "→→Tag type: XYZType (XYZ)\n"
    "\n<b>Element ICC-Tag 6</b>\n"
    "→→Tag signature: blueMatrixColumnTag (bXYZ)\n"
    "→→Tag type: XYZType (XYZ)\n"
    "\n<b>Element ICC-Tag 7</b>\n"
    "→→Tag signature: redTRCTag (rTRC)\n"
    "→→Tag type: curveType (curv)\n"
    "\n<b>Element ICC-Tag 8</b>\n"
    "→→Tag signature: greenTRCTag (gTRC)\n"
    "→→Tag type: curveType (curv)\n"
    "\n<b>Element ICC-Tag 9</b>\n"
    "→→Tag signature: blueTRCTag (bTRC)\n"
    "→→Tag type: curveType (curv)\n"
    "\n<b>Element 2</b>\n"
    "→CMR tag: ICC Profile Filename\n"
    "→Value: \"display.icc\"\n"
    "\n<b>Element 3</b>\n"
    "→CMR tag: End Data\n";

TEST(IccProfiles, AreShownWhole)
{
    const ColourShown shown = ShowColour(WithProfile(Display().Whole()).Behind(0x3025, 6, 11, "display.icc"));
    EXPECT_EQ(shown.text.substr(shown.text.find("\n\n") + 1), kDisplayText);
    EXPECT_EQ(shown.heard, Lines{});
}

TEST(IccProfiles, AreElementsOfTheSameSequence)
{
    const Lines elements = ShowProfile(IccProfile().Header(12, "prtr").Tag("desc", Described("a"))).elements;
    EXPECT_EQ(Lines(elements.begin() + 16, elements.end()),
              (Lines{"Int16 BeginRepetition 1",
                     "Text CMRTag 30 15",
                     "Text BeginRepetition (Header)",
                     "Int32 ICCHProfileSize 236",
                     "Text ICCHPrefCMMType ",
                     "Text ICCHVersion 0.0.0",
                     "Text ICCHDevClass prtr",
                     "Text ICCHCSD ",
                     "Text ICCHPCS ",
                     "Text ICCHDateTime 0/00/00 00:00:00 UTC",
                     "Text ICCHFileSig ",
                     "Text ICCHPlatform ",
                     "Boolean ICCHEmbedProfile 0",
                     "Boolean ICCHNoIndepUse 0",
                     "Text ICCHDevManu ",
                     "Text ICCHDevModel ",
                     "Int16 ICCHMediaAttr 1",
                     "Int16 ICCHMediaAttr 3",
                     "Int16 ICCHMediaAttr 5",
                     "Int16 ICCHMediaAttr 7",
                     "Int32 ICCHRendIntent 0",
                     "Text ICCHIlluField X= 0.9642; Y = 1.0000; Z=0.8249",
                     "Text ICCHCreator ",
                     "Text ICCHMD5ID 00 00 00 00 00 00 00 00 \t\t00 00 00 00 00 00 00 00 \t\t",
                     "Text EndRepetition (Header)",
                     "Text BeginRepetition ICC-Tag 1",
                     "Text ICCTagSig desc",
                     "Text ICCTagType desc",
                     "Text CMRValueStr a",
                     "Text EndRepetition ICC-Tag 1",
                     "Int16 EndRepetition 1",
                     "Int16 BeginRepetition 2",
                     "Text CMRTag FF FF",
                     "Int16 EndRepetition 2"}));
}

TEST(IccProfiles, OfNoTagsAreTheHeaderAlone)
{
    const Lines elements = ShowProfile(IccProfile().Count(0)).elements;
    EXPECT_EQ(ValuesIn(elements, "BeginRepetition"), (Lines{"1", "(Header)", "2"}));
}

TEST(IccProfiles, OfFourBytesStandInTheEntry)
{
    const Lines elements = ShowColour(Cmr().Inside(0x3015, 5, 4, U4(0x1234))).elements;
    EXPECT_EQ(ValuesIn(elements, "ICCHProfileSize"), Lines{"4660"});
}

// The header
// --------------------------------------------------------------------------------------------------------------------

std::string HeaderValue(std::size_t at, const Bytes& bytes, std::string_view key)
{
    const Lines values = ValuesIn(ShowProfile(IccProfile().Header(at, bytes)).elements, key);
    return values.empty() ? "none" : values[0];
}

TEST(IccHeader, ReadsTheVersionAsAByteAndTwoHalves)
{
    const auto version = [](int major, int rest) {
        return HeaderValue(8, Raw({major, rest, 0x99, 0x99}), "ICCHVersion");
    };
    EXPECT_EQ(version(0x04, 0x20), "4.2.0");
    EXPECT_EQ(version(0x02, 0x40), "2.4.0");
    EXPECT_EQ(version(0xFF, 0xFF), "255.15.15");
    EXPECT_EQ(version(0x00, 0x01), "0.0.1");
}

TEST(IccHeader, ShowsTheLastTwoDigitsOfDateAndTime)
{
    const auto date = [](const Bytes& bytes) { return HeaderValue(24, bytes, "ICCHDateTime"); };
    EXPECT_EQ(date(U2(1999) + U2(12) + U2(5) + U2(0) + U2(59) + U2(10)), "1999/12/05 00:59:10 UTC");
    EXPECT_EQ(date(U2(5) + U2(123) + U2(65535) + U2(7) + U2(100) + U2(99)), "5/23/35 07:00:99 UTC");
}

TEST(IccHeader, ReadsFlagsFromTheFirstByteOfTheirField)
{
    EXPECT_EQ(HeaderValue(44, Raw({0x80, 0, 0, 0}), "ICCHEmbedProfile"), "1");
    EXPECT_EQ(HeaderValue(44, Raw({0x80, 0, 0, 0}), "ICCHNoIndepUse"), "0");
    EXPECT_EQ(HeaderValue(44, Raw({0x40, 0, 0, 0}), "ICCHEmbedProfile"), "0");
    EXPECT_EQ(HeaderValue(44, Raw({0x40, 0, 0, 0}), "ICCHNoIndepUse"), "1");
    EXPECT_EQ(HeaderValue(44, Raw({0x3F, 0xFF, 0xFF, 0xFF}), "ICCHEmbedProfile"), "0");
    EXPECT_EQ(HeaderValue(44, Raw({0x3F, 0xFF, 0xFF, 0xFF}), "ICCHNoIndepUse"), "0");
}

TEST(IccHeader, ReadsFourMediaAttributesFromTheFirstByteOfTheirField)
{
    const auto attributes = [](int byte) {
        return ValuesIn(ShowProfile(IccProfile().Header(56, Raw({byte, 0, 0, 0, 0, 0, 0, 0xFF}))).elements,
                        "ICCHMediaAttr");
    };
    EXPECT_EQ(attributes(0x0F), (Lines{"1", "3", "5", "7"}));
    EXPECT_EQ(attributes(0xF0), (Lines{"2", "4", "6", "8"}));
    EXPECT_EQ(attributes(0x80), (Lines{"2", "3", "5", "7"}));
    EXPECT_EQ(attributes(0x40), (Lines{"1", "4", "5", "7"}));
    EXPECT_EQ(attributes(0x20), (Lines{"1", "3", "6", "7"}));
    EXPECT_EQ(attributes(0x10), (Lines{"1", "3", "5", "8"}));
}

TEST(IccHeader, CleansItsTexts)
{
    for (const auto& [at, key] : {std::pair{4u, "ICCHPrefCMMType"},
                                  {12u, "ICCHDevClass"},
                                  {16u, "ICCHCSD"},
                                  {20u, "ICCHPCS"},
                                  {36u, "ICCHFileSig"},
                                  {40u, "ICCHPlatform"},
                                  {48u, "ICCHDevManu"},
                                  {52u, "ICCHDevModel"},
                                  {80u, "ICCHCreator"}}) {
        EXPECT_EQ(HeaderValue(at, "@a@ ", key), "a");
        EXPECT_EQ(HeaderValue(at, Bytes("ab") + Zeros(2), key), "ab");
        EXPECT_EQ(HeaderValue(at, Raw({0x81, 'x', 0xE1, 'y'}), key), "üxßy");
    }
}

TEST(IccHeader, TellsUnknownWordsWithMessages)
{
    const ColourShown shown =
        ShowProfile(IccProfile().Header(12, "test").Header(40, "SGI ").Header(64, U4(0xFFFFFFFF)).Count(0));
    EXPECT_NE(shown.text.find("→→Profile/Device class: <red>Unknown (test)</red>\n"), std::string::npos);
    EXPECT_NE(shown.text.find("→→Primary platform: <red>Unknown (SGI)</red>\n"), std::string::npos);
    EXPECT_NE(shown.text.find("→→Rendering Intent: <red>Unknown (2147483647)</red>\n"), std::string::npos);
    EXPECT_EQ(shown.heard, (Lines{"Message CMR: Profile/Device class: Unknown (test)", "Invalid",
                                  "Message CMR: Primary platform: Unknown (SGI)", "Invalid",
                                  "Message CMR: Rendering Intent: Unknown (2147483647)", "Invalid"}));
}

TEST(IccHeader, KnowsTheIlluminantByHeart)
{
    EXPECT_EQ(HeaderValue(68, Bytes(12, '\x11'), "ICCHIlluField"), "X= 0.9642; Y = 1.0000; Z=0.8249");
}

// The tags' data
// --------------------------------------------------------------------------------------------------------------------

// The elements behind signature and type.
Lines DataOf(const Bytes& data)
{
    const Lines elements = ShowProfile(IccProfile().Tag("targ", data)).elements;
    const auto type =
        std::ranges::find_if(elements, [](const auto& line) { return line.starts_with("Text ICCTagType"); });
    Lines values;
    for (auto at = type + 1; *at != "Text EndRepetition ICC-Tag 1"; ++at) values.push_back(*at);
    return values;
}

TEST(IccData, OfCountedTypesAreTextWithoutItsZero)
{
    for (const Bytes& type : {Bytes("desc"), Bytes("crdi")}) {
        EXPECT_EQ(DataOf(type + Zeros(4) + U4(6) + "hello" + Zeros(1)), Lines{"Text CMRValueStr hello"});
        EXPECT_EQ(DataOf(type + Zeros(4) + U4(1) + "hello"), Lines{"Text CMRValueStr "});
        EXPECT_EQ(DataOf(type + Zeros(4) + U4(0) + "hello"), Lines{"Text CMRValueStr "}) << "a length of -1";
        EXPECT_EQ(DataOf(type + Zeros(4) + U4(9) + "@@ a @@ @"), Lines{"Text CMRValueStr @@ a @@ "}) << "not cleaned";
    }
}

TEST(IccData, OfTheDataTypeGoByTheirFlag)
{
    EXPECT_EQ(DataOf("data" + Zeros(4) + U4(0) + "ascii@"), Lines{"Text CMRValueStr ascii@"});
    EXPECT_EQ(DataOf("data" + Zeros(4) + U4(1) + "ABC"), Lines{"Text CMRValueHex 41 42 43"});
    EXPECT_EQ(DataOf("data" + Zeros(4) + U4(2) + "ABC"), Lines{});
    EXPECT_EQ(DataOf("data" + Zeros(4) + U4(0)), Lines{"Text CMRValueStr "});
    EXPECT_EQ(DataOf("data" + Zeros(4) + U4(1)), Lines{"Text CMRValueHex "});
}

TEST(IccData, OfPlainTypesAreTheRestWithoutItsLastByte)
{
    EXPECT_EQ(DataOf("text" + Zeros(4) + "hello" + Zeros(1)), Lines{"Text CMRValueStr hello"});
    EXPECT_EQ(DataOf("sig " + Zeros(4) + "fscn"), Lines{"Text CMRValueStr fsc"});
    EXPECT_EQ(DataOf("text" + Zeros(4)), Lines{"Text CMRValueStr "});
    EXPECT_EQ(DataOf(Bytes("text")), Lines{"Text CMRValueStr "});
}

TEST(IccData, OfLocalizedTextsAreTheFirstOne)
{
    const Bytes record = "enUS" + U4(10) + U4(40), second = "deDE" + U4(8) + U4(50);
    EXPECT_EQ(DataOf("mluc" + Zeros(4) + U4(2) + U4(12) + record + second + Wide("Hello") + Wide("Hallo")),
              Lines{"Text CMRValueStr Hello"});
    EXPECT_EQ(DataOf("mluc" + Zeros(4) + U4(1) + U4(12) + "enUS" + U4(0) + U4(28)), Lines{"Text CMRValueStr "});
    EXPECT_EQ(DataOf("mluc" + Zeros(4) + U4(1) + U4(12) + "enUS" + U4(5) + U4(28) + Wide("abc")),
              Lines{"Text CMRValueStr ab"})
        << "an odd byte is dropped";
}

TEST(IccData, OfOtherTypesStayUnread)
{
    for (const Bytes type : {"curv", "XYZ ", "mft2", "mAB ", "para", "zzzz"})
        EXPECT_EQ(DataOf(type + Zeros(4) + U4(1) + "values"), Lines{}) << type;
}

// Bounds
// --------------------------------------------------------------------------------------------------------------------

TEST(IccBounds, OffsetsPastTheObjectReadZeros)
{
    const ColourShown shown = ShowProfile(IccProfile()
                                              .Entry("desc", 100'000, 20)
                                              .Entry("cprt", 0xFFFFFFFF, 0xFFFFFFFF)
                                              .Tag("dmnd", Described("still read")));
    EXPECT_EQ(ValuesIn(shown.elements, "ICCTagType"), (Lines{"", "", "desc"}));
    EXPECT_EQ(ValuesIn(shown.elements, "CMRValueStr"), Lines{"still read"});
    EXPECT_EQ(shown.heard,
              (Lines{"Message CMR: Profile/Device class: Unknown ()", "Invalid",
                     "Message CMR: Primary platform: Unknown ()", "Invalid", "Message CMR: Tag signature: Unknown ()",
                     "Invalid", "Message CMR: Tag signature: Unknown ()", "Invalid"}));
}

TEST(IccBounds, SizesPastTheObjectEndWithIt)
{
    // The data stand at the profile's own first bytes.
    const Bytes object =
        WithProfile(IccProfile().Header(0, "text").Header(8, "abc").Entry("cprt", 0, 0xFFFFFFFF).Whole()).Whole();
    const Lines values = ValuesIn(ShowColour(object).elements, "CMRValueStr");
    ASSERT_EQ(values.size(), 1u);
    EXPECT_TRUE(values[0].starts_with("abc"));
    EXPECT_LE(values[0].size(), object.size());
}

TEST(IccBounds, ACountTooHighEndsWithTheObject)
{
    for (const std::uint32_t count : {2u, 1000u, 0x7FFFFFFFu, 0xFFFFFFFFu}) {
        const Bytes profile = IccProfile().Tag("desc", Described("only one")).Count(count).Whole();
        const Lines elements = ShowColour(WithProfile(profile).Behind(0x0004, 6, 5, "after")).elements;
        const Lines numbers = ValuesIn(elements, "BeginRepetition");
        EXPECT_EQ(numbers[2], "ICC-Tag 1");
        EXPECT_EQ(numbers[3], "ICC-Tag 2") << "the bytes behind the table";
        EXPECT_LE(numbers.size(), 3 + (profile.size() - 132) / 12 + 4) << count;
        EXPECT_EQ(elements.back(), "Int16 EndRepetition 3");
        EXPECT_EQ(ValuesIn(elements, "CMRValueStr").back(), "after");
    }
}

TEST(IccBounds, ManyTagsFillTheSequence)
{
    IccProfile profile;
    for (int i = 0; i < 4000; ++i) profile.Entry("wtpt", 20, 20);
    const Lines elements = ShowProfile(profile).elements;
    EXPECT_EQ(elements.size(), ElementList::kLongestSequence);
}

TEST(IccBounds, AProfileOfNoBytesReadsWhatFollows)
{
    const Lines elements = ShowColour(Cmr().Pointing(0x3015, 5, 5, 5'000'000)).elements;
    EXPECT_EQ(ValuesIn(elements, "ICCHProfileSize"), Lines{"0"});
    EXPECT_EQ(ValuesIn(elements, "ICCHVersion"), Lines{"0.0.0"});
    EXPECT_EQ(ValuesIn(elements, "BeginRepetition"), (Lines{"1", "(Header)", "2"}));
}

}  // namespace
}  // namespace folioscope
