// Colour palettes and the names of colorants.

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "colour/colour_support.h"
#include "document/ports.h"

namespace folioscope {
namespace {

using namespace test;

// Index 1, L* of half the range, a* and b* at its ends.
const Bytes kColor = U2(1) + U2(0x8000) + U2(0) + U2(65535);

constexpr std::string_view kColorLines = "Int32 CPGIndexedColorVal 1 | Indexed Color Value: 1\n"
                                         "Int32 CPGCIELabValL 32768 | CIELab L* component: 50.0\n"
                                         "Int32 CPGCIELabVala 0 | CIELab a* component: -128.0\n"
                                         "Int32 CPGCIELabValb 65535 | CIELab b* component: 127.0\n";

void ExpectPalette(unsigned id, std::string_view name, const Bytes& colorants, std::string_view lines)
{
    const Bytes entry = kColor + colorants;
    ExpectTag(Cmr().Behind(id, 5, static_cast<std::uint32_t>(entry.size()), entry),
              "Text CMRTag 50 " + std::string(name.substr(0, 2)) + " | CMR tag: " + std::string(name.substr(3)) + "\n" +
                  std::string(kColorLines) + std::string(lines));
}

TEST(CmrPalettes, HaveTheirColorants)
{
    ExpectPalette(0x5020, "20 Color Palette Gray", Raw({255}),
                  "Byte CPGComponentGray 255 | Intensity of gray: 255 (100.0 %)");
    ExpectPalette(0x5025, "25 Color Palette CMYK", Raw({0, 1, 51, 254}),
                  "Byte CPGComponentCyan 0 | Intensity of cyan: 0 (0.0 %)\n"
                  "Byte CPGComponentMagenta 1 | Intensity of magenta: 1 (0.39 %)\n"
                  "Byte CPGComponentYellow 51 | Intensity of yellow: 51 (20.0 %)\n"
                  "Byte CPGComponentBlack 254 | Intensity of black: 254 (99.61 %)");
    ExpectPalette(0x5030, "30 Color Palette RGB", Raw({128, 64, 102}),
                  "Byte CPGComponentRed 128 | Intensity of red: 128 (50.2 %)\n"
                  "Byte CPGComponentGreen 64 | Intensity of green: 64 (25.1 %)\n"
                  "Byte CPGComponentBlue 102 | Intensity of blue: 102 (40.0 %)");
    ExpectPalette(0x5035, "35 Color Palette CIELAB", Bytes(), "");
}

TEST(CmrPalettes, ScaleLabValues)
{
    const auto text = [](unsigned l, unsigned a, unsigned b) {
        const std::string shown = ShowTag(Cmr().Behind(0x5035, 5, 8, U2(60000) + U2(l) + U2(a) + U2(b))).text;
        return shown.substr(shown.find("Indexed"));
    };
    EXPECT_EQ(text(0, 32896, 32639), "Indexed Color Value: 60,000\nCIELab L* component: 0.0\n"
                                     "CIELab a* component: 0.0\nCIELab b* component: -1.0\n");
    EXPECT_EQ(text(65535, 1, 65534), "Indexed Color Value: 60,000\nCIELab L* component: 100.0\n"
                                     "CIELab a* component: -128.0\nCIELab b* component: 127.0\n");
    EXPECT_EQ(text(164, 33000, 1000), "Indexed Color Value: 60,000\nCIELab L* component: 0.3\n"
                                      "CIELab a* component: 0.4\nCIELab b* component: -124.1\n");
}

Lines Numbers(const Cmr& cmr)
{
    Lines numbers;
    for (const std::string& element : ShowColour(cmr).elements)
        if (element.starts_with("Float64 ")) numbers.push_back(element.substr(8));
    return numbers;
}

std::size_t Colors(const Cmr& cmr) { return ValuesIn(ShowColour(cmr).elements, "CPGIndexedColorVal").size(); }

TEST(CmrPalettes, OfOneEntryHaveNoBrackets)
{
    EXPECT_EQ(Numbers(Cmr().Behind(0x5025, 5, 12, kColor + Zeros(4))), Lines{});
    EXPECT_EQ(Colors(Cmr().Behind(0x5025, 5, 12, kColor + Zeros(4))), 1u);
    EXPECT_EQ(Colors(Cmr().Behind(0x5025, 5, 0, kColor)), 0u);
    EXPECT_EQ(Colors(Cmr().Inside(0x5025, 5, 1)), 1u) << "an entry that is cut reads on";
}

TEST(CmrPalettes, NumberTheirEntriesFromOne)
{
    const Cmr cmr =
        Cmr().Behind(0x5025, 5, 24, kColor + Raw({1, 2, 3, 4}) + U2(2) + kColor.substr(2) + Raw({5, 6, 7, 8}));
    EXPECT_EQ(Numbers(cmr), (Lines{"BeginRepetition 1.000000", "EndRepetition 1.000000", "BeginRepetition 2.000000",
                                   "EndRepetition 2.000000"}));
    const std::string text = ShowColour(cmr).text;
    EXPECT_NE(text.find("→CMR tag: Color Palette CMYK\n"
                        "\n<b>Element 1</b>\n"
                        "→→Indexed Color Value: 1\n"),
              std::string::npos)
        << text;
    EXPECT_NE(text.find("→→Intensity of black: 4 (1.57 %)\n"
                        "\n<b>Element 2</b>\n"
                        "→→Indexed Color Value: 2\n"),
              std::string::npos)
        << text;
    EXPECT_NE(text.find("→→Intensity of black: 8 (3.14 %)\n"
                        "\n<b>Element 2</b>\n"
                        "→CMR tag: End Data\n"),
              std::string::npos)
        << text;
}

// Brackets begin where the count less 1 is above the entry's size, entries one byte before.
TEST(CmrPalettes, OfAByteMoreThanOneEntryHaveTwoWithoutBrackets)
{
    for (const auto& [id, size] : {std::pair{0x5020u, 9u}, {0x5025u, 12u}, {0x5030u, 11u}, {0x5035u, 8u}}) {
        EXPECT_EQ(Colors(Cmr().Behind(id, 5, size + 1, kColor)), 2u) << size;
        EXPECT_EQ(Numbers(Cmr().Behind(id, 5, size + 1, kColor)), Lines{}) << size;
        EXPECT_EQ(Colors(Cmr().Behind(id, 5, size + 2, kColor)), 2u) << size;
        EXPECT_EQ(Numbers(Cmr().Behind(id, 5, size + 2, kColor)).size(), 4u) << size;
    }
}

// Named colorants
// --------------------------------------------------------------------------------------------------------------------

Cmr Named(unsigned colorants, const Bytes& palette)
{
    return Cmr()
        .Inside(0x5015, 1, 1, U1(colorants))
        .Behind(0x5040, 5, static_cast<std::uint32_t>(palette.size()), palette);
}

TEST(CmrNamedColorants, AreCountedByTheTagBefore)
{
    ExpectTag(Named(2, kColor + Raw({255, 0})), "Text CMRTag 50 15 | CMR tag: Number of Named Colorants\n"
                                                "Byte CMRValueNum 2 | Value: 2");
    ExpectTag(Named(2, kColor + Raw({255, 0})),
              "Text CMRTag 50 40 | CMR tag: Color Palette Named Colorants\n" + std::string(kColorLines) +
                  "Byte CPGComponent1 255 | Intensity of colorant 1: 255 (100.0 %)\n"
                  "Byte CPGComponent2 0 | Intensity of colorant 2: 0 (0.0 %)",
              2);
}

TEST(CmrNamedColorants, AreNoneWithoutThatTag)
{
    const Cmr cmr = Cmr().Behind(0x5040, 5, 16, kColor + U2(7) + Zeros(6));
    const Lines elements = ShowColour(cmr).elements;
    EXPECT_EQ(ValuesIn(elements, "CPGIndexedColorVal"), (Lines{"1", "7"})) << "entries of 8 bytes";
    EXPECT_EQ(ValuesIn(elements, "CPGComponent1"), Lines{});
    const Cmr late = Cmr().Behind(0x5040, 5, 16, kColor + U2(7) + Zeros(6)).Inside(0x5015, 1, 1, U1(3));
    EXPECT_EQ(ValuesIn(ShowColour(late).elements, "CPGComponent1"), Lines{});
}

TEST(CmrNamedColorants, AreForgottenBeforeTheNextObject)
{
    AfpFile file = InContainer(Named(1, kColor + U1(9)).Whole(), ObjectKind::ColourResource);
    file.Noise(InContainer(Cmr().Behind(0x5040, 5, 8, kColor).Whole(), ObjectKind::ColourResource).Content());
    RecordWalk walk(file);
    walk.afp.SetPorts(Decoders());
    Lines components;
    for (int ends = 0; ends < 2;) {
        if (walk.Next() != kEnd) continue;
        ++ends;
        components.push_back("object");
        for (const Element& element : walk.afp.List().SequenceOf(*walk.afp.List().Find(Key::CMRDataValue)))
            if (element.key == Key::CPGComponent1) components.push_back(std::to_string(element.number));
    }
    EXPECT_EQ(components, (Lines{"object", "9", "object"}));
}

TEST(CmrNamedColorants, AboveTwelveAreNotTold)
{
    Bytes values;
    for (unsigned i = 1; i <= 15; ++i) values += U1(i);
    for (const unsigned count : {12u, 13u, 15u, 255u}) {
        // Two entries: the second one stands behind all values of the first.
        const Bytes palette =
            kColor + (values + Zeros(240)).substr(0, count) + U2(7) + kColor.substr(2) + Bytes(count, '\x63');
        const Lines elements = ShowColour(Named(count, palette)).elements;
        EXPECT_EQ(ValuesIn(elements, "CPGIndexedColorVal"), (Lines{"1", "7"})) << count;
        for (unsigned i = 1; i <= 12; ++i)
            EXPECT_EQ(ValuesIn(elements, "CPGComponent" + std::to_string(i)), (Lines{std::to_string(i), "99"}))
                << count;
        EXPECT_EQ(ValuesIn(elements, "CPGComponent13"), Lines{});
    }
}

TEST(CmrNamedColorants, HaveALineEach)
{
    const std::string text = ShowColour(Named(12, kColor + Bytes(12, '\x33'))).text;
    for (int i = 1; i <= 12; ++i) {
        const std::string line = "→Intensity of colorant " + std::to_string(i) + ": 51 (20.0 %)\n";
        EXPECT_NE(text.find(line), std::string::npos) << line;
    }
}

// Names
// --------------------------------------------------------------------------------------------------------------------

Bytes ColorantName(std::string_view name) { return U1(static_cast<unsigned>(2 * name.size() + 1)) + Wide(name); }

TEST(CmrColorantNames, OfOneEntryHaveNoBrackets)
{
    ExpectTag(Cmr().Behind(0x5045, 5, 9, ColorantName("@Go@")),
              "Text CMRTag 50 45 | CMR tag: Colorant Identification List\n"
              "Text CMRValueStr Go | Value: \"Go\"");
}

TEST(CmrColorantNames, AreNumberedFromOne)
{
    const Bytes list = ColorantName("Red") + ColorantName("Silver");
    const Cmr cmr = Cmr().Behind(0x5045, 5, static_cast<std::uint32_t>(list.size()), list);
    const std::string text = ShowColour(cmr).text;
    EXPECT_NE(text.find("→CMR tag: Colorant Identification List\n"
                        "\n<b>Element 1</b>\n"
                        "→→Value: \"Red\"\n"
                        "\n<b>Element 2</b>\n"
                        "→→Value: \"Silver\"\n"
                        "\n<b>Element 2</b>\n"
                        "→CMR tag: End Data\n"),
              std::string::npos)
        << text;
    EXPECT_EQ(ValuesIn(ShowColour(cmr).elements, "CMRValueStr"), (Lines{"Red", "Silver"}));
}

TEST(CmrColorantNames, EndAtALengthOfOneOrNone)
{
    const auto names = [](const Bytes& list) {
        const Cmr cmr = Cmr().Behind(0x5045, 5, static_cast<std::uint32_t>(list.size()), list);
        return ValuesIn(ShowColour(cmr).elements, "CMRValueStr");
    };
    EXPECT_EQ(names(ColorantName("Red") + U1(0) + ColorantName("Lost")), (Lines{"Red", ""}));
    EXPECT_EQ(names(ColorantName("Red") + U1(1) + ColorantName("Lost")), (Lines{"Red", ""}));
    EXPECT_EQ(names(ColorantName("Red") + U1(2) + U1(0) + ColorantName("Found")), (Lines{"Red", "", "Found"}));
}

TEST(CmrColorantNames, ThatRunOverTheCountAreReadAllTheSame)
{
    EXPECT_EQ(ValuesIn(ShowColour(Cmr().Behind(0x5045, 5, 5, ColorantName("Magenta"))).elements, "CMRValueStr"),
              Lines{"Magenta"});
    EXPECT_EQ(ValuesIn(ShowColour(Cmr().Inside(0x5045, 5, 0)).elements, "CMRValueStr"), Lines{});
}

}  // namespace
}  // namespace folioscope
