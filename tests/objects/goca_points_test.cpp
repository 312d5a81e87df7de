// Drawing orders that have positions: lines, curves, arcs, boxes, markers; and the table of all orders.

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "objects/items_support.h"

namespace folioscope {
namespace {

using namespace test;

using Lines = std::vector<std::string>;

struct Case {
    std::string_view pieces, expected;
};

void ExpectEach(std::initializer_list<Case> cases)
{
    for (const auto& [pieces, expected] : cases) ExpectItems("GAD", pieces, expected);
}

TEST(GSCP, MovesTo)
{
    ExpectEach({
        {"21 04 03E8 8000", "Text BeginOrder GSCP\nInt32 GPSPosX 1000\n"
                            "Int32 GPSPosY -32768 | GSCP: Cursor position X=1,000, Y=-32,768"},
        {"21 04 0000 0000", "Text BeginOrder GSCP\nInt32 GPSPosX 0\nInt32 GPSPosY 0 | GSCP: Cursor position X=0, Y=0"},
    });
}

TEST(Lines, GoThroughPoints)
{
    ExpectEach({
        {"C1 08 0001 0002 0003 FFFC",
         "Text BeginOrder GLINE\nInt32 GPSPosX 1\nInt32 GPSPosY 2 | GLINE: Cursor position X=1, Y=2\n"
         "Boolean DrawLine 1 | GLINE: Line~\nInt32 EndPosX 3\nInt32 EndPosY -4 | , Endpoint X=3, Y=-4"},
        {"81 08 0001 0002 03E8 0004",
         "Text BeginOrder GCLINE\n"
         "Boolean DrawLine 1 | GCLINE: Line~\nInt32 EndPosX 1\nInt32 EndPosY 2 | , Endpoint X=1, Y=2\n"
         "Boolean DrawLine 1 | GCLINE: Line~\nInt32 EndPosX 1000\nInt32 EndPosY 4 | , Endpoint X=1,000, Y=4"},
        {"85 04 0001 0002",
         "Text BeginOrder GCFLT\n"
         "Boolean DrawCurve 1 | GCFLT: Curve~\nInt32 EndPosX 1\nInt32 EndPosY 2 | , Endpoint X=1, Y=2"},
        {"C5 08 0001 0002 0003 0004",
         "Text BeginOrder GFLT\nInt32 GPSPosX 1\nInt32 GPSPosY 2 | GFLT: Cursor position X=1, Y=2\n"
         "Boolean DrawCurve 1 | GFLT: Curve~\nInt32 EndPosX 3\nInt32 EndPosY 4 | , Endpoint X=3, Y=4"},
        {"82 08 0001 0002 0003 0004",
         "Text BeginOrder GCMARK\nInt32 GPSPosX 1\nInt32 GPSPosY 2 | GCMARK: Cursor position X=1, Y=2\n"
         "Int32 GPSPosX 3\nInt32 GPSPosY 4 | GCMARK: Cursor position X=3, Y=4"},
        {"C2 08 0001 0002 0003 0004",
         "Text BeginOrder GMRK\nInt32 GPSPosX 1\nInt32 GPSPosY 2 | GMRK: Cursor position X=1, Y=2\n"
         "Int32 GPSPosX 3\nInt32 GPSPosY 4 | GMRK: Cursor position X=3, Y=4"},
    });
}

TEST(RelativeLines, AddUp)
{
    ExpectEach({
        {"E1 08 0064 0064 05 FB 80 7F",
         "Text BeginOrder GRLINE\nInt32 GPSPosX 100\nInt32 GPSPosY 100 | GRLINE: Cursor position X=100, Y=100\n"
         "Boolean DrawLine 1 | GRLINE: Line~\nInt32 RelEndPosX 5\n"
         "Int32 RelEndPosY -5 | , Endpoint X=105, Y=95  (Offset X=5, Y=-5)\n"
         "Boolean DrawLine 1 | GRLINE: Line~\nInt32 RelEndPosX -128\n"
         "Int32 RelEndPosY 127 | , Endpoint X=-23, Y=222  (Offset X=-128, Y=127)"},
        // The position goes on from order to order of a record.
        {"21 04 2710 0000 A1 02 01 01 A1 02 01 01",
         "Text BeginOrder GSCP\nInt32 GPSPosX 10000\nInt32 GPSPosY 0 | GSCP: Cursor position X=10,000, Y=0\n"
         "Text BeginOrder GCRLINE\nBoolean DrawLine 1 | GCRLINE: Line~\nInt32 RelEndPosX 1\n"
         "Int32 RelEndPosY 1 | , Endpoint X=10,001, Y=1  (Offset X=1, Y=1)\n"
         "Text BeginOrder GCRLINE\nBoolean DrawLine 1 | GCRLINE: Line~\nInt32 RelEndPosX 1\n"
         "Int32 RelEndPosY 1 | , Endpoint X=10,002, Y=2  (Offset X=1, Y=1)"},
    });
}

TEST(BezierCurves, AreOneLineEach)
{
    constexpr std::string_view kCurve = "Boolean DrawBezier 1 | GCCBEZ: Bezier curve~\n"
                                        "Int32 Ctrl1PosX 1\nInt32 Ctrl1PosY 2 | , Control point 1 X=1, Y=2~\n"
                                        "Int32 Ctrl2PosX 1000\nInt32 Ctrl2PosY -4 | , Control point 2 X=1,000, Y=-4~\n"
                                        "Int32 EndPosX 5\nInt32 EndPosY 6 | , Endpoint X=5, Y=6";
    const std::string curve(kCurve);
    ExpectItems("GAD", "A5 0C 0001 0002 03E8 FFFC 0005 0006", "Text BeginOrder GCCBEZ\n" + curve);
    ExpectItems("GAD", "A5 18 0001 0002 03E8 FFFC 0005 0006 0001 0002 03E8 FFFC 0005 0006",
                "Text BeginOrder GCCBEZ\n" + curve + '\n' + curve);
    ExpectItems("GAD", "E5 10 0007 0008 0001 0002 0003 0004 0005 0006 A1 02 01 01",
                "Text BeginOrder GCBEZ\nInt32 GPSPosX 7\nInt32 GPSPosY 8 | GCBEZ: Cursor position X=7, Y=8\n"
                "Boolean DrawBezier 1 | GCBEZ: Bezier curve~\n"
                "Int32 Ctrl1PosX 1\nInt32 Ctrl1PosY 2 | , Control point 1 X=1, Y=2~\n"
                "Int32 Ctrl2PosX 3\nInt32 Ctrl2PosY 4 | , Control point 2 X=3, Y=4~\n"
                "Int32 EndPosX 5\nInt32 EndPosY 6 | , Endpoint X=5, Y=6\n"
                "Text BeginOrder GCRLINE\nBoolean DrawLine 1 | GCRLINE: Line~\nInt32 RelEndPosX 1\n"
                "Int32 RelEndPosY 1 | , Endpoint X=6, Y=7  (Offset X=1, Y=1)");
}

struct PointCase {
    std::string_view code;
    std::size_t first, step;  // bytes in front of the points, bytes a point
    std::string_view key;     // one Element a point
};
constexpr PointCase kPoints[] = {
    {"81", 0, 4, "EndPosY"},     {"82", 0, 4, "GPSPosY"},     {"85", 0, 4, "EndPosY"}, {"A1", 0, 2, "RelEndPosY"},
    {"A5", 0, 12, "DrawBezier"}, {"C1", 4, 4, "EndPosY"},     {"C2", 4, 4, "GPSPosY"}, {"C5", 4, 4, "EndPosY"},
    {"E1", 4, 2, "RelEndPosY"},  {"E5", 4, 12, "DrawBezier"},
};

TEST(Points, AreAsManyAsBeginInTheOrder)
{
    for (const auto& [code, first, step, key] : kPoints)
        for (std::size_t length = first; length <= 30; ++length) {
            const std::size_t own = key == "GPSPosY" ? first / 4 : 0;
            const ShownItems shown =
                ShowItems("GAD", Pieces(code) + U1(static_cast<unsigned>(length)) + Zeros(length) + Pieces("3E 00"));
            EXPECT_EQ(ValuesOf(shown, key).size(), own + (length - first + step - 1) / step) << code << ' ' << length;
            EXPECT_EQ(shown.items.back(), "Boolean EndProlog 1");
        }
}

TEST(Points, OfALineThatEndsHalfwayReadWhatFollows)
{
    const ShownItems shown = ShowItems("GAD", Pieces("C1 06 0001 0002 0003 3E 07"));
    EXPECT_EQ(ValuesOf(shown, "EndPosX"), Lines{"3"});
    EXPECT_EQ(ValuesOf(shown, "EndPosY"), Lines{"15879"});
    EXPECT_EQ(shown.items.back(), "Boolean EndProlog 1");
}

TEST(Points, AreNoneWithoutALength)
{
    for (const auto& [code, first, step, key] : kPoints) {
        if (first != 0) continue;
        const ShownItems shown = ShowItems("GAD", Pieces(std::string(code) + " 00 3E 00"));
        EXPECT_EQ(ValuesOf(shown, key), Lines{}) << code;
    }
}

TEST(Points, StopAtTheEndOfTheField)
{
    // Eight bytes of the order's twenty lie in the field: two points.
    const auto file = AfpFile().Add("GAD", Pieces("81 14 0001 0001 0002 0002")).Add("GAD", Zeros(20));
    ItemWalk walk(file);
    const ShownItems shown = walk.Next();
    EXPECT_EQ(ValuesOf(shown, "EndPosX"), (Lines{"1", "2"}));
    EXPECT_EQ(shown.record, Lines{"Boolean ContInNextSF 1"});
    // N is one less than what lies in the field: a point that begins with the last byte counts.
    EXPECT_EQ(ValuesOf(ShowItems("GAD", Pieces("81 14 0001 0001 00")), "EndPosX").size(), 2u);
    EXPECT_EQ(ValuesOf(ShowItems("GAD", Pieces("81 14")), "EndPosX").size(), 0u);
}

TEST(Arcs, HaveACentreAndAMultiplier)
{
    ExpectEach({
        {"87 02 0180", "Text BeginOrder GCFARC\nInt32 Multiplier 384 | GCFARC: Ellipse: Multiplier: 1.50"},
        {"87 02 FFFF", "Text BeginOrder GCFARC\nInt32 Multiplier 65535 | GCFARC: Ellipse: Multiplier: 255.9961"},
        {"C7 06 0001 FFFE 0100",
         "Text BeginOrder GFARC\nInt32 CenterPosX 1\nInt32 CenterPosY -2 | GFARC: Center of the arc X=1, Y=-2\n"
         "Int32 Multiplier 256 | GFARC: Ellipse: Multiplier: 1.00"},
        {"A3 0E 0001 0002 0080 005A0000 010E0000",
         "Text BeginOrder GCPARC\nInt32 CenterPosX 1\nInt32 CenterPosY 2 | GCPARC: Center of the arc X=1, Y=2\n"
         "Int32 Multiplier 128 | GCPARC: Ellipse: Multiplier: 0.50\n"
         "Float64 StartAngle 90\n"
         "Float64 SweepAngle 270 | GCPARC: Start angle: 90.0° , Sweep angle: 270.0°"},
        {"E3 12 0009 0008 03E8 0002 0100 00000000 00B40000",
         "Text BeginOrder GPARC\nInt32 GPSPosX 9\nInt32 GPSPosY 8 | GPARC: Cursor position X=9, Y=8\n"
         "Int32 CenterPosX 1000\nInt32 CenterPosY 2 | GPARC: Center of the arc X=1,000, Y=2\n"
         "Int32 Multiplier 256 | GPARC: Ellipse: Multiplier: 1.00\n"
         "Float64 StartAngle 0\n"
         "Float64 SweepAngle 180 | GPARC: Start angle: 0.0° , Sweep angle: 180.0°"},
    });
}

TEST(Arcs, HaveAnglesWithinOneTurn)
{
    const auto start = [](std::string_view bytes) {
        const ShownItems shown = ShowItems("GAD", Pieces("A3 0E 00*6 " + std::string(bytes) + " 00*4"));
        return std::stod(ValuesOf(shown, "StartAngle").at(0));
    };
    EXPECT_DOUBLE_EQ(start("01680000"), 0);   // 360
    EXPECT_NEAR(start("01690000"), 1, 1e-9);  // 361
    EXPECT_NEAR(start("0168FFFF"), 65535.0 / 65536, 1e-9);
    // The highest bit is lost: 2147483647 / 65536 is 32767.99998, that is 91 turns and 7.99998.
    EXPECT_NEAR(start("FFFFFFFF"), 7.99998474, 1e-6);
    EXPECT_NEAR(start("7FFFFFFF"), 7.99998474, 1e-6);
    EXPECT_DOUBLE_EQ(start("80000000"), 0);
}

TEST(Boxes, HaveTwoCorners)
{
    ExpectEach({
        {"C0 0A 00 00 0001 0002 03E8 0004",
         "Text BeginOrder GBOX\nInt32 BoxFirstCornerXaxis 1\n"
         "Int32 BoxFirstCornerYaxis 2 | GBOX: First corner X axis: 1, First corner Y axis: 2\n"
         "Int32 BoxSecondCornerXaxis 1000\n"
         "Int32 BoxSecondCornerYaxis 4 | GBOX: Second corner X axis: 1,000, Second corner Y axis: 4, Direction: CCW"},
        {"80 06 00 00 0003 FFFC",
         "Text BeginOrder GCBOX\nInt32 BoxSecondCornerXaxis 3\n"
         "Int32 BoxSecondCornerYaxis -4 | GCBOX: Second corner X axis: 3, Second corner Y axis: -4, Direction: CW"},
        {"80 08 00 00 FFFF FFFC 0400",
         "Text BeginOrder GCBOX\nInt32 BoxSecondCornerXaxis -1\n"
         "Int32 BoxSecondCornerYaxis -4 | GCBOX: Second corner X axis: -1, Second corner Y axis: -4, Direction: CCW\n"
         "Int32 BoxEdgeHAxis 1024\nInt32 BoxEdgeVAxis 1024 | GCBOX: Rounded corner ellipse length X axis: 1,024, "
         "Rounded corner ellipse length Y axis: 1,024"},
        {"80 0A 00 00 0001 0001 0005 FFFF",
         "Text BeginOrder GCBOX\nInt32 BoxSecondCornerXaxis 1\n"
         "Int32 BoxSecondCornerYaxis 1 | GCBOX: Second corner X axis: 1, Second corner Y axis: 1, Direction: CCW\n"
         "Int32 BoxEdgeHAxis 5\nInt32 BoxEdgeVAxis 65535 | GCBOX: Rounded corner ellipse length X axis: 5, "
         "Rounded corner ellipse length Y axis: 65,535"},
    });
}

TEST(Boxes, HaveRoundedCornersByTheirLength)
{
    const auto edges = [](std::string_view code, std::size_t length) {
        const Bytes data = Pieces("00 00 0001 0002 0005 0006 0007 0008");
        const ShownItems shown = ShowItems("GAD", Pieces(code) + U1(static_cast<unsigned>(length)) + data + Zeros(8));
        Lines values = ValuesOf(shown, "BoxEdgeHAxis");
        for (const std::string& value : ValuesOf(shown, "BoxEdgeVAxis")) values.push_back(value);
        return values;
    };
    EXPECT_EQ(edges("80", 6), Lines{});
    EXPECT_EQ(edges("80", 7), (Lines{"5", "5"}));
    EXPECT_EQ(edges("80", 8), (Lines{"5", "5"}));
    EXPECT_EQ(edges("80", 9), (Lines{"5", "6"}));
    EXPECT_EQ(edges("C0", 10), Lines{});
    EXPECT_EQ(edges("C0", 11), (Lines{"7", "7"}));
    EXPECT_EQ(edges("C0", 12), (Lines{"7", "7"}));
    EXPECT_EQ(edges("C0", 13), (Lines{"7", "8"}));
}

TEST(Boxes, WithoutHeightHaveNoSecondLine)
{
    ExpectItems("GAD", "C0 0C 00 00 0001 0002 0003 0002 0004",
                "Text BeginOrder GBOX\nInt32 BoxFirstCornerXaxis 1\n"
                "Int32 BoxFirstCornerYaxis 2 | GBOX: First corner X axis: 1, First corner Y axis: 2\n"
                "Int32 BoxSecondCornerXaxis 3\nInt32 BoxSecondCornerYaxis 2\n"
                "Int32 BoxEdgeHAxis 4\nInt32 BoxEdgeVAxis 4 | GBOX: Rounded corner ellipse length X axis: 4, "
                "Rounded corner ellipse length Y axis: 4");
    // A box without width has a direction: zero isn't above zero.
    const ShownItems shown = ShowItems("GAD", Pieces("C0 0A 00 00 0001 0002 0001 0005"));
    EXPECT_TRUE(shown.text.ends_with("Direction: CW\n")) << shown.text;
}

TEST(Boxes, TakeTheFirstCornerOfTheBoxBefore)
{
    const ShownItems shown = ShowItems("GAD", Pieces("C0 0A 00 00 0005 0005 0006 0006 80 06 00 00 0004 0006"));
    EXPECT_TRUE(shown.text.ends_with("GCBOX: Second corner X axis: 4, Second corner Y axis: 6, Direction: CW\n"));
}

// All of them
// ---------------------------------------------------------------------------------------------------------------

constexpr struct {
    int code;
    std::string_view mnemonic;
    int length;  // of the order if its second byte is 16
} kOrders[] = {
    {0x00, "GNOP1", 1},   {0x01, "GCOMT", 18},         {0x04, "GSGCH", 18},      {0x08, "GSPS", 2},
    {0x0A, "GSCOL", 2},   {0x0C, "GSMX", 2},           {0x0D, "GSBMX", 2},       {0x11, "GSFLW", 18},
    {0x18, "GSLT", 2},    {0x19, "GSLW", 2},           {0x1A, "GSLE", 2},        {0x1B, "GSLJ", 2},
    {0x20, "GSCLT", 18},  {0x21, "GSCP", 18},          {0x22, "GSAP", 18},       {0x25, "GSBCOL", 18},
    {0x26, "GSECOL", 18}, {0x28, "GSPT", 2},           {0x29, "GSMT", 2},        {0x33, "GSCC", 18},
    {0x34, "GSCA", 18},   {0x35, "GSCH", 18},          {0x37, "GSMC", 18},       {0x38, "GSCS", 2},
    {0x39, "GSCR", 2},    {0x3A, "GSCD", 2},           {0x3B, "GSMP", 2},        {0x3C, "GSMS", 2},
    {0x3E, "GEPROL", 2},  {0x43, "GSPICK", 18},        {0x5E, "GECP", 18},       {0x60, "GEAR", 18},
    {0x68, "GBAR", 2},    {0x70, "Begin Segment", 18}, {0x71, "End Segment", 2}, {0x80, "GCBOX", 18},
    {0x81, "GCLINE", 18}, {0x82, "GCMARK", 18},        {0x83, "GCCHST", 18},     {0x85, "GCFLT", 18},
    {0x87, "GCFARC", 18}, {0x91, "GCBIMG", 18},        {0x92, "GIMD", 18},       {0x93, "GEIMG", 18},
    {0xA0, "GSPRP", 18},  {0xA1, "GCRLINE", 18},       {0xA3, "GCPARC", 18},     {0xA5, "GCCBEZ", 18},
    {0xB2, "GSPCOL", 18}, {0xC0, "GBOX", 18},          {0xC1, "GLINE", 18},      {0xC2, "GMRK", 18},
    {0xC3, "GCHST", 18},  {0xC5, "GFLT", 18},          {0xC7, "GFARC", 18},      {0xD1, "GBIMG", 18},
    {0xDE, "GBCP", 18},   {0xDF, "GDPT", 18},          {0xE1, "GRLINE", 18},     {0xE3, "GPARC", 18},
    {0xE5, "GCBEZ", 18},
};

TEST(AllOrders, HaveAFormOfTheirOwn)
{
    for (const auto& [code, mnemonic, length] : kOrders) {
        const Bytes order = (Raw({code, 0x10}) + Zeros(16)).substr(0, static_cast<std::size_t>(length));
        const ShownItems shown = ShowItems("GAD", order + Pieces("3E 00"));
        ASSERT_GE(shown.items.size(), 3u);
        EXPECT_EQ(shown.items.front(), "Text BeginOrder " + std::string(mnemonic));
        EXPECT_EQ(shown.items.back(), "Boolean EndProlog 1") << mnemonic;
        EXPECT_EQ(shown.items[shown.items.size() - 2], "Text BeginOrder GEPROL") << mnemonic;
    }
}

TEST(AllOrders, OfOtherCodesAreUnknown)
{
    std::vector<bool> known(256);
    for (const auto& order : kOrders) known[static_cast<std::size_t>(order.code)] = true;
    for (int code = 0; code < 256; ++code) {
        if (known[static_cast<std::size_t>(code)]) continue;
        const ShownItems shown = ShowItems("GAD", Raw({code}) + Pieces("00 3E 00"));
        char text[3];
        std::snprintf(text, sizeof text, "%02X", static_cast<unsigned>(code));
        EXPECT_EQ(shown.items, Lines{std::string("Text OrderUnknown ") + text});
        EXPECT_EQ(shown.record, Lines{});
    }
}

}  // namespace
}  // namespace folioscope
