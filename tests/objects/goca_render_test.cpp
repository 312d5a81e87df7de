// Lines of graphics: words, faults, what one order leaves for the next, and the languages.

#include "objects/goca_render.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "objects/items_support.h"

namespace folioscope {
namespace {

using namespace test;

using Lines = std::vector<std::string>;

// Words
// --------------------------------------------------------------------------------------------------------------------

struct WordCase {
    int code;
    std::string_view head;  // of the line
    struct {
        int value;
        std::string_view word;
    } words[20];  // up to one without a word
};

// clang-format off
constexpr WordCase kWords[] = {
    {0x18, "GSLT: Line type: ", {
        {0, "Default"}, {1, "Dotted line"}, {2, "Short dashed line"}, {3, "Dash-dot line"}, {4, "Double dotted line"},
        {5, "Long dashed line"}, {6, "Dash double-dot line"}, {7, "Solid line"}, {8, "Invisible line"}}},
    {0x1A, "GSLE: Line end type: ", {{0, "Default"}, {1, "Flat"}, {2, "Square"}, {3, "Round"}}},
    {0x1B, "GSLJ: Line join type: ", {{0, "Default"}, {1, "Bevel"}, {2, "Round"}, {3, "Miter"}}},
    {0x3A, "GSCD: Character direction: ", {
        {0, "Default"}, {1, "Left to right"}, {2, "Top to bottom"}, {3, "Right to left"}, {4, "Bottom to top"}}},
    {0x39, "GSCR: Precision: ", {
        {0, "Default"}, {1, "Inaccurate (String)"}, {2, "Accurate (Character)"}, {3, "Very accurate"}}},
    {0x3B, "GSMP: Precision: ", {
        {0, "Default"}, {1, "Inaccurate (String)"}, {2, "Accurate (Character)"}, {3, "Very accurate"}}},
    {0x29, "GSMT: Bullet: ", {
        {0, "Default"}, {1, "Cross"}, {2, "Plus sign"}, {3, "Empty diamond"}, {4, "Empty square"}, {5, "6-point star"},
        {6, "8-point star"}, {7, "Filled diamond"}, {8, "Filled square"}, {9, "Filled Circle"}, {10, "Empty circle"},
        {64, "Blank"}}},
    {0x28, "GSPT: Pattern symbol: ", {
        {0, "Default"}, {1, "Dotted pattern"}, {2, "Dotted pattern"}, {3, "Dotted pattern"}, {4, "Dotted pattern"},
        {5, "Dotted pattern"}, {6, "Dotted pattern"}, {7, "Dotted pattern"}, {8, "Dotted pattern"},
        {9, "Vertical lines"}, {10, "Horizontal lines"}, {11, "Diagonal lines (bottom-left to top-right)"},
        {12, "Diagonal lines (bottom-left to top-right)"}, {13, "Diagonal lines (top-left to bottom-right)"},
        {14, "Diagonal lines (top-left to bottom-right)"}, {15, "No fill"}, {16, "Solid fill"}, {64, "Blank"}}},
};
// clang-format on

std::string WordOf(const WordCase& order, int value)
{
    for (const auto& [known, word] : order.words)
        if (known == value && !word.empty()) return std::string(word);
    return {};
}

// An order of each value in a field of its own.
ItemWalk ValuesOfOrder(int code)
{
    AfpFile file;
    for (int value = 0; value < 256; ++value) file.Add("GAD", Raw({code, value}));
    return ItemWalk(file);
}

TEST(OrderWords, AreToldOrUnknown)
{
    for (const WordCase& order : kWords) {
        ItemWalk walk = ValuesOfOrder(order.code);
        for (int value = 0; value < 256; ++value) {
            const ShownItems shown = walk.Next();
            const std::string head(order.head), word = WordOf(order, value);
            if (!word.empty()) {
                EXPECT_EQ(shown.text, head + word + '\n');
                EXPECT_EQ(shown.heard, Lines{});
                continue;
            }
            const std::string fault = "Unknown (" + std::to_string(value) + ')';
            EXPECT_EQ(shown.text, head + "<red>" + fault + "</red>\n");
            EXPECT_EQ(shown.heard, (Lines{"Message GAD/GDD-" + head + fault, "Invalid"}));
        }
    }
}

TEST(OrderWords, OfMixingHaveADefaultForAllOtherValues)
{
    ItemWalk foreground = ValuesOfOrder(0x0C), background = ValuesOfOrder(0x0D);
    for (int value = 0; value < 256; ++value) {
        EXPECT_EQ(foreground.Next().text, std::string("GSMX: Mixing of foreground colors: ") +
                                              (value == 2 ? "Overpaint (opaque)" : "Default") + '\n');
        EXPECT_EQ(background.Next().text, std::string("GSBMX: Mixing of background colors: ") +
                                              (value == 5 ? "Leave alone (transparent)" : "Default") + '\n');
    }
}

TEST(OrderWords, OfSetsHaveADefaultOrANumber)
{
    const auto of = [](std::string_view pieces) { return ShowItems("GAD", Pieces(pieces)).text; };
    EXPECT_EQ(of("3C 00"), "GSMS: Bullet character set: Default\n");
    EXPECT_EQ(of("3C 01"), "GSMS: Bullet character set: 1\n");
    EXPECT_EQ(of("3C FF"), "GSMS: Bullet character set: 255\n");
    EXPECT_EQ(of("38 00"), "GSCS: Graphic character set ID: Default\n");
    EXPECT_EQ(of("38 FF"), "GSCS: Graphic character set ID: 255\n");
}

TEST(OrderWords, OfACharacterSetKnowAllOfThem)
{
    // An order has one byte for it; defaults have the same.
    ItemWalk walk(AfpFile().Add("GAD", Pieces("3E 00")));
    walk.Next();
    const std::vector<Element> items = {Element::Int32(Key::CHSID, 65'535), Element::Int32(Key::CHSID, 65'534)};
    walk.bench.renderer.text.Clear();
    RenderOrders(walk.bench.renderer, items);
    EXPECT_EQ(walk.bench.renderer.text.Text(),
              ": Graphic character set ID: All\r\n: Graphic character set ID: 65534\r\n");
}

TEST(PatternSet, IsCustomOrInvalid)
{
    ExpectItems("GAD", "08 FE", "Text BeginOrder GSPS\nByte PatternSID 254 | GSPS: Pattern set: Custom (254)");
    ExpectItems("GAD", "08 FF", "Text BeginOrder GSPS\nByte PatternSID 255 | GSPS: Pattern set: Custom (255)");
    for (const auto& [byte, value] : {std::pair{"01", "1"}, {"40", "64"}, {"FD", "253"}})
        ExpectFault("GAD", std::string("08 ") + byte, std::string("GAD/GDD-GSPS: Pattern set: Invalid (") + value + ')',
                    std::string("Text BeginOrder GSPS\nByte PatternSID ") + value +
                        " | GSPS: Pattern set: <red>Invalid (" + value + ")</red>");
}

TEST(CustomPatternSet, ThatIsInvalidIsTheWholeLine)
{
    ExpectFault("GAD", "DF 04 00 07 05 00", "GAD/GDD-GDPT: Custom pattern set: Invalid (7)",
                "Text BeginOrder GDPT\nByte CustomPatternSet 7\n"
                "Byte CustomPatternSymbol 5 | GDPT: Custom pattern set: <red>Invalid (7)</red>");
    ExpectFault("GAD", "DF 04 00 FD 00 00", "GAD/GDD-GDPT: Custom pattern set: Invalid (253)",
                "Text BeginOrder GDPT\nByte CustomPatternSet 253\n"
                "Byte CustomPatternSymbol 0 | GDPT: Custom pattern set: <red>Invalid (253)</red>");
}

TEST(OrderColorSpace, IsUnknownIfItHasNoWord)
{
    const auto of = [](int space) {
        return ShowItems("GAD", Raw({0xB2, 14, 0, space}) + Zeros(4) + Pieces("08*4 01 02 03 04"));
    };
    constexpr std::pair<int, std::string_view> kSpaces[] = {
        {1, "RGB"}, {4, "CMYK"}, {6, "Highlight Color"}, {8, "CIELAB"}, {64, "Standard OCA"}};
    for (const auto& [space, name] : kSpaces) {
        const ShownItems shown = of(space);
        EXPECT_TRUE(shown.text.starts_with("GSPCOL: Color Space: " + std::string(name) + '\n')) << shown.text;
        EXPECT_EQ(shown.heard, Lines{});
    }
    for (const int space : {0, 2, 3, 5, 7, 9, 18, 63, 65, 255}) {
        const std::string fault = "Unknown (" + std::to_string(space) + ')';
        const ShownItems shown = of(space);
        EXPECT_EQ(shown.text, "GSPCOL: Color Space: <red>" + fault + "</red>\n");
        EXPECT_EQ(shown.heard, (Lines{"Message GAD/GDD-GSPCOL: Color Space: " + fault, "Invalid"}));
    }
}

TEST(OrderColor, AboveTheWholeIsToldOfWithoutAPrefix)
{
    const ShownItems shown = ShowItems("GAD", Pieces("B2 0D 00 01 00*4 07 08 08 00 FF 00 00"));
    EXPECT_NE(shown.text.find("GSPCOL: Intensity of color Red: 255 (201% Saturation)\n"), std::string::npos);
    EXPECT_EQ(shown.heard, (Lines{"Message Saturation: Invalid (201%)", "Invalid"}));
}

TEST(UnknownOrder, HasTheNameOfTheOrderBefore)
{
    ExpectFault("GAD", "FF 00", "GAD/GDD: Order/Segment unknown",
                "Text OrderUnknown FF | : <red>Order/Segment unknown</red>");
    const ShownItems shown = ShowItems("GAD", Pieces("19 01 07 00"));
    EXPECT_EQ(shown.items.back(), "Text OrderUnknown 07");
    EXPECT_EQ(shown.text, "GSLW: Line width: 0.01 Inch\nGSLW: <red>Order/Segment unknown</red>\n"
                          "... to be continued ...\n");
    EXPECT_EQ(shown.heard, (Lines{"Message GAD/GDD: Order/Segment unknown", "Invalid"}));
}

TEST(Faults, AreToldOneByOne)
{
    const ShownItems shown = ShowItems("GAD", Pieces("18 09 18 09 1A 04"));
    EXPECT_EQ(shown.heard, (Lines{"Message GAD/GDD-GSLT: Line type: Unknown (9)", "Invalid",
                                  "Message GAD/GDD-GSLT: Line type: Unknown (9)", "Invalid",
                                  "Message GAD/GDD-GSLE: Line end type: Unknown (4)", "Invalid"}));
}

// What orders leave for each other
// --------------------------------------------------------------------------------------------

TEST(LineWidths, OutliveTheRecord)
{
    ItemWalk walk(
        AfpFile().Add("GAD", Pieces("19 03")).Add("GAD", Pieces("20 04 0100 0200")).Add("GAD", Pieces("19 00")));
    walk.Next();
    EXPECT_FLOAT_EQ(walk.bench.renderer.lines.CurrentLineWidth, 0.03f);
    EXPECT_EQ(walk.Next().text, "GSCLT: Individual dash length=0.03 Inch and Move=0.06 Inch\n");
    walk.Next();
    EXPECT_FLOAT_EQ(walk.bench.renderer.lines.CurrentLineWidth, 0.01f);
    EXPECT_FLOAT_EQ(walk.bench.renderer.lines.NormalLineWidth, 0.01f);
}

TEST(LineWidths, HaveAtMostFourDecimals)
{
    ItemWalk walk(AfpFile().Add("GAD", Pieces("19 01 19 03 19 FF")));
    walk.bench.renderer.lines = {1.0f / 120, 1.0f / 120};
    EXPECT_EQ(walk.Next().text, "GSLW: Line width: 0.0083 Inch\nGSLW: Line width: 0.025 Inch\n"
                                "GSLW: Line width: 2.125 Inch\n");
}

TEST(NormalLineWidth, OfOrdersHasNoFraction)
{
    ItemWalk walk(AfpFile().Add("GAD", Pieces("3E 00")));
    walk.Next();
    walk.bench.renderer.text.Clear();
    const std::vector<Element> items = {Element::Int32(Key::NormalLineWidth, 36), Element::Int16(Key::LineWidth, 512)};
    RenderOrders(walk.bench.renderer, items);
    EXPECT_EQ(walk.bench.renderer.text.Text(), ": Normal line width: 0.025 Inch\r\n: Line width: 0.05 Inch\r\n");
    EXPECT_FLOAT_EQ(walk.bench.renderer.lines.NormalLineWidth, 0.025f);
}

TEST(CurrentPosition, StartsAnewWithEachRecord)
{
    ItemWalk walk(AfpFile().Add("GAD", Pieces("21 04 0005 0006")).Add("GAD", Pieces("A1 02 01 02")));
    walk.Next();
    EXPECT_EQ(walk.Next().text, "GCRLINE: Line, Endpoint X=1, Y=2  (Offset X=1, Y=2)\n");
}

TEST(CurrentPosition, IsMovedByAllPointsAndCentres)
{
    const auto at = [](std::string_view orders) {
        const std::string text = ShowItems("GAD", Pieces(std::string(orders) + " 83 01 'a'")).text;
        return text.substr(text.rfind("GCCHST: ") + 8);
    };
    EXPECT_EQ(at("21 04 0001 0002"), "(X=1, Y=2) Text: \"a\"\n");
    EXPECT_EQ(at("81 04 0003 0004"), "(X=3, Y=4) Text: \"a\"\n");
    EXPECT_EQ(at("C7 06 0005 0006 0100"), "(X=5, Y=6) Text: \"a\"\n");
    EXPECT_EQ(at("A5 0C 0001 0002 0003 0004 0007 0008"), "(X=7, Y=8) Text: \"a\"\n");
    EXPECT_EQ(at("A1 02 FF FE"), "(X=-1, Y=-2) Text: \"a\"\n");
    EXPECT_EQ(at("21 04 7530 8AD0"), "(X=30000, Y=-30000) Text: \"a\"\n");
}

TEST(PatternWindow, SharesItsStorageWithTheArcParameters)
{
    const ShownItems shown = ShowItems(
        "GAD", Pieces("22 08 0001 0002 0003 0004 DE 0C 00 00 00 00 0005 0006 03E8 0008 DE 0C 00 00 00 00 0001*1 0002 "
                      "0003 0004"));
    EXPECT_EQ(shown.text, "GSAP: P = 1, Q = 2, R = 3, S = 4, Direction: CW\n"
                          "GBCP: Custom pattern set: Default, Symbol: Default\n"
                          "GBCP: Left edge = 5, Top edge = 2, Right edge = 6, Bottom edge = 1,000\n"
                          "GBCP: Custom pattern set: Default, Symbol: Default\n"
                          "GBCP: Left edge = 1, Top edge = 8, Right edge = 2, Bottom edge = 3\n");
}

TEST(StoredValues, WaitForTheLineOfTheirOwnOrder)
{
    // A width alone, without the height behind it, is part of the next line of its kind only.
    const ShownItems shown = ShowItems("GAD", Pieces("68 40 DF 02 00 FF DF 04 00 00 00 00"));
    EXPECT_EQ(shown.text, "GBAR: Begin filled area: Draw boundaries: Yes, Fill mode: Alternate\n"
                          "GDPT: Custom pattern set: Default, Symbol: Default\n");
}

TEST(KeysThatNoOrderWrites, HaveLines)
{
    ItemWalk walk(AfpFile().Add("GAD", Pieces("3E 00")));
    walk.Next();
    walk.bench.renderer.text.Clear();
    const std::vector<Element> items = {
        Element::Literal(Key::BeginOrder, "X"),     Element::Int32(Key::GPSPosX, 1),
        Element::Boolean(Key::DeletePattern, true), Element::Boolean(Key::DrawMarker, true),
        Element::Int16(Key::CharRotation, 90),      Element::Literal(Key::CharRotation, "Default"),
        Element::Boolean(Key::EndOrder, true),      Element::Literal(Key::OrderName, "Y"),
        Element::Literal(Key::HexCode, "FF")};
    RenderOrders(walk.bench.renderer, items);
    EXPECT_EQ(walk.bench.renderer.text.Text(), "X: Delete custom pattern\r\nX: (X=1, Y=0) \r\n"
                                               "X: Character Rotation: 90°\r\nX: Character Rotation: Default\r\n");
}

TEST(DescriptorsRotation, StandsInFrontOfTheOrders)
{
    const ShownItems shown = ShowItems("GAD", Pieces("3E 00 34 04 0000 0001 34 04 0001 0000"));
    EXPECT_EQ(shown.text, "Character Rotation: 90°\nCharacter Rotation: 0°\nGEPROL: End prolog\n");
}

// Languages and number styles
// -------------------------------------------------------------------------------------------------

TEST(OrderLines, AreTranslated)
{
    const auto of = [](Language language, std::string_view pieces) {
        return ItemWalk(AfpFile().Add("GAD", Pieces(pieces)), language, {".", ","}).Next();
    };
    constexpr auto kGerman = Language::German, kFrench = Language::French;
    EXPECT_EQ(of(kGerman, "19 02").text, "GSLW: Linienstärke: 0,02 Zoll\n");
    EXPECT_EQ(of(kFrench, "19 02").text, "GSLW: Épaisseur de ligne: 0,02 pouces\n");
    EXPECT_EQ(of(kGerman, "81 04 03E8 0001").text, "GCLINE: Linie, Endpunkt X=1.000, Y=1\n");
    EXPECT_EQ(of(kFrench, "81 04 03E8 0001").text, "GCLINE: Ligne, Point final X=1.000, Y=1\n");
    EXPECT_EQ(of(kGerman, "18 09").heard.at(0), "Message GAD/GDD-GSLT: Linientyp: Unbekannt (9)");
    EXPECT_EQ(of(kFrench, "08 09").heard.at(0), "Message GAD/GDD-GSPS: Jeu de motifs: Non valide (9)");
    EXPECT_EQ(of(kGerman, "FF 00").heard.at(0), "Message GAD/GDD: Order/Segment unbekannt");
    EXPECT_EQ(of(kFrench, "FF 00").text, ": <red>Ordre/segment inconnu</red>\n");
}

}  // namespace
}  // namespace folioscope
