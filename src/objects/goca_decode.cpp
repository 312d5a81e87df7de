#include "objects/goca_decode.h"

#include <cmath>

#include "analysis/decode/fields_graphics.h"

namespace folioscope {

namespace {

// One: the code alone. Two: the code and a value. Long: the code, a length, so many bytes.
enum class Form : std::uint8_t { One, Two, Long };

// A repeating part: points that a line, a curve or a row of markers goes through.
struct Points {
    Key opens;  // announces each group; NoKey: nothing does
    std::int32_t size;
    ItemRows rows;  // offsets count from the group's first byte
};

struct OrderRow {
    std::uint8_t code;
    std::string_view mnemonic;
    Form form;
    ItemRows rows = {};  // offsets count from the value, or from the byte behind the length
    ItemProcedure procedure = nullptr;
    const Points* points = nullptr;
    std::uint8_t pointsAt = 0;  // offset of the repeating part from the order's code
};

// clang-format off
constexpr Points kMarkers     = {Key::NoKey,      4, {s(Key::GPSPosX, 0, 2), s(Key::GPSPosY, 2, 2)}};
constexpr Points kLinePoints  = {Key::DrawLine,   4, {s(Key::EndPosX, 0, 2), s(Key::EndPosY, 2, 2)}};
constexpr Points kCurvePoints = {Key::DrawCurve,  4, {s(Key::EndPosX, 0, 2), s(Key::EndPosY, 2, 2)}};
constexpr Points kOffsets     = {Key::DrawLine,   2, {s(Key::RelEndPosX, 0, 1), s(Key::RelEndPosY, 1, 1)}};
constexpr Points kBezier      = {Key::DrawBezier, 12,
                                 {s(Key::Ctrl1PosX, 0, 2), s(Key::Ctrl1PosY, 2, 2), s(Key::Ctrl2PosX, 4, 2),
                                  s(Key::Ctrl2PosY, 6, 2), s(Key::EndPosX, 8, 2), s(Key::EndPosY, 10, 2)}};
// clang-format on

std::int32_t Parameters(const Item& item) { return item.at + 2; }

bool ReachesPast(const Item& item) { return item.at + item.length + 1 > item.end; }

// The bytes of an order that lie in the field.
std::int32_t UsableLength(const Item& item) { return ReachesPast(item) ? item.end - item.at - 1 : item.length; }

// A last group may read what lies behind the order.
void DecodePoints(clsAFPFunctions& afp, const Item& item, const Points& points, std::int32_t first)
{
    const std::int32_t last = UsableLength(item) + 1;
    for (std::int32_t i = first; i <= last; i += points.size) {
        if (points.opens != Key::NoKey) afp.AddSequenceElement(Element::Boolean(points.opens, true));
        ReadRows(afp, points.rows.All(), item.at + i, points.size, kToSequence);
    }
}

void DecodeGNOP1(clsAFPFunctions& afp, const Item&) { afp.AddSequenceElement(Element::Int16(Key::GPSNoOp, 1)); }

void DecodeNoOperation(clsAFPFunctions& afp, const Item& item)
{
    afp.AddSequenceElement(Element::Int32(Key::GPSNoOp, item.length + 2));
}

void DecodeGCOMT(clsAFPFunctions& afp, const Item& item)
{
    afp.AddSequenceElement(afp.ReadText(Key::Comment, Parameters(item), UsableLength(item)));
}

void DecodeStringHere(clsAFPFunctions& afp, const Item& item)
{
    afp.AddSequenceElement(afp.ReadText(Key::DrawString, Parameters(item), UsableLength(item)));
}

// A string that is cut reads four bytes too many: the position in front of it isn't taken off.
void DecodeStringAt(clsAFPFunctions& afp, const Item& item)
{
    constexpr std::int32_t kPosition = 4;
    const std::int32_t length = ReachesPast(item) ? UsableLength(item) : item.length - kPosition;
    afp.AddSequenceElement(afp.ReadText(Key::DrawString, Parameters(item) + kPosition, length));
}

void DecodeGSCOL(clsAFPFunctions& afp, const Item& item)
{
    constexpr std::int32_t kNamedColors = 0xFF00;
    afp.AddSequenceElement(Element::Int32(Key::Color, afp.ByteAt(item.at + 1) + kNamedColors));
}

// Dashes and moves: whole numbers and 256ths.
void DecodeGSCLT(clsAFPFunctions& afp, const Item& item)
{
    constexpr std::int32_t kGroup = 4;
    const auto number = [&](std::int32_t position) { return afp.ByteAt(position) + afp.ByteAt(position + 1) / 256.0; };
    for (std::int32_t i = 0; i < item.length; i += kGroup) {
        afp.AddSequenceElement(Element::Float64(Key::CustomLineDash, number(Parameters(item) + i)));
        afp.AddSequenceElement(Element::Float64(Key::CustomLineMove, number(Parameters(item) + i + 2)));
    }
}

void DecodeGSCC(clsAFPFunctions& afp, const Item& item)
{
    constexpr std::int32_t kWhole = 2;
    constexpr double kFraction = 65'536;
    const std::int32_t p = Parameters(item), width = afp.ReadSigned(p, 2), height = afp.ReadSigned(p + 2, 2);
    if (item.length == kWhole) {
        afp.AddSequenceElement(Element::Int32(Key::CellWidth, width));
        afp.AddSequenceElement(Element::Int32(Key::CellHeight, height));
        return;
    }
    afp.AddSequenceElement(Element::Float64(Key::CellWidth, width + afp.ReadSigned(p + 4, 2) / kFraction));
    afp.AddSequenceElement(Element::Float64(Key::CellHeight, height + afp.ReadSigned(p + 6, 2) / kFraction));
}

// Goes to the record, not to the sequence, so that it stands in front of all orders.
void DecodeGSCA(clsAFPFunctions& afp, const Item& item) { AddCharRotation(afp, Parameters(item)); }

void DecodeGSMC(clsAFPFunctions& afp, const Item& item)
{
    constexpr std::int32_t kDefault = 0xFFFFFF, kWithFlag = 8;
    const std::int32_t p = Parameters(item);
    const bool zeroIsDefault = afp.ReadBit(p + 4, 0) && item.length + 2 == kWithFlag;
    const auto add = [&](Key key, std::int32_t position) {
        const std::int32_t value = afp.ReadSigned(position, 2);
        afp.AddSequenceElement(Element::Int32(key, zeroIsDefault && value == 0 ? kDefault : value));
    };
    add(Key::MarkerCellWidth, p);
    add(Key::MarkerCellHeight, p + 2);
}

void DecodeBeginSegment(clsAFPFunctions& afp, const Item& item)
{
    constexpr std::uint8_t kAppend = 0x06;
    const std::int32_t flags = item.at + 7;
    afp.AddSequenceElement(Element::Boolean(Key::BeginSegment, true));
    afp.AddSequenceElement(Element::Boolean(Key::ChainedSegment, !afp.ReadBit(flags, 0)));
    afp.AddSequenceElement(Element::Boolean(Key::BeginProlog, afp.ReadBit(flags, 3)));
    afp.AddSequenceElement(Element::Int16(Key::SegmentOrder, (afp.ByteAt(flags) & kAppend) == kAppend ? 2 : 1));
    afp.AddSequenceElement(Element::Int32(Key::SegmentSize, afp.ReadUnsigned(flags + 1, 2)));
}

// The lengths of the rounded corners, `at` bytes behind the length; one alone counts for both.
template <std::int32_t at> void DecodeRoundedCorners(clsAFPFunctions& afp, const Item& item)
{
    if (item.length <= at) return;
    const std::int32_t p = Parameters(item) + at;
    afp.AddSequenceElement(Element::Int32(Key::BoxEdgeHAxis, afp.ReadUnsigned(p, 2)));
    afp.AddSequenceElement(Element::Int32(Key::BoxEdgeVAxis, afp.ReadUnsigned(item.length > at + 2 ? p + 2 : p, 2)));
}

void DecodeGIMD(clsAFPFunctions& afp, const Item& item)
{
    afp.AddSequenceElement(Element::Int32(Key::ImageData, item.length));
    afp.AddSequenceElement(afp.ReadHex(Key::HexCode, Parameters(item), item.length));
}

void DecodeGSPRP(clsAFPFunctions& afp, const Item& item)
{
    const std::int32_t p = Parameters(item);
    const bool standard = afp.ReadBit(p, 0);
    const auto add = [&](Key key, std::int32_t position) {
        afp.AddSequenceElement(standard ? Element::Int16(key, 0) : Element::Int32(key, afp.ReadSigned(position, 2)));
    };
    add(Key::PatternRefPointX, p + 2);
    add(Key::PatternRefPointY, p + 4);
}

void DecodeGDPT(clsAFPFunctions& afp, const Item& item)
{
    constexpr std::int32_t kWithSymbol = 4;
    if (item.length == kWithSymbol)
        afp.AddSequenceElement(Element::Byte(Key::CustomPatternSymbol, afp.ByteAt(Parameters(item) + 2)));
}

// Degrees of a partial arc within one turn, `at` bytes behind the length, in 65536ths.
template <std::int32_t at> void DecodeAngles(clsAFPFunctions& afp, const Item& item)
{
    const auto add = [&](Key key, std::int32_t position) {
        constexpr double kFraction = 65'536, kTurn = 360;
        const double turns = afp.ReadUnsigned(position, 4) / kFraction / kTurn;
        afp.AddSequenceElement(Element::Float64(key, (turns - std::trunc(turns)) * kTurn));
    };
    add(Key::StartAngle, Parameters(item) + at);
    add(Key::SweepAngle, Parameters(item) + at + 4);
}

constexpr Row mark(Key key) { return read(Read::True, key, 0); }

// clang-format off
constexpr Row kX = s(Key::GPSPosX, 0, 2), kY = s(Key::GPSPosY, 2, 2);   // where an order of its own position begins

constexpr OrderRow kOrders[] = {
    {0x00, "GNOP1",   Form::One,  {}, DecodeGNOP1},
    {0x01, "GCOMT",   Form::Long, {}, DecodeGCOMT},
    {0x04, "GSGCH",   Form::Long, {}, DecodeNoOperation},
    {0x08, "GSPS",    Form::Two,  {b(Key::PatternSID, 0)}},
    {0x0A, "GSCOL",   Form::Two,  {}, DecodeGSCOL},
    {0x0C, "GSMX",    Form::Two,  {b(Key::ForegroundMix, 0)}},
    {0x0D, "GSBMX",   Form::Two,  {b(Key::BackgroundMix, 0)}},
    {0x11, "GSFLW",   Form::Long, {u(Key::LineWidth, 0, 2)}},
    {0x18, "GSLT",    Form::Two,  {b(Key::LineType, 0)}},
    {0x19, "GSLW",    Form::Two,  {read(Read::In256, Key::LineWidth, 0)}},
    {0x1A, "GSLE",    Form::Two,  {b(Key::LineEnd, 0)}},
    {0x1B, "GSLJ",    Form::Two,  {b(Key::LineJoin, 0)}},
    {0x20, "GSCLT",   Form::Long, {}, DecodeGSCLT},
    {0x21, "GSCP",    Form::Long, {kX, kY}},
    {0x22, "GSAP",    Form::Long, {s(Key::MajorX, 0, 2), s(Key::MinorY, 2, 2), s(Key::MinorX, 4, 2), s(Key::MajorY, 6, 2)}},
    {0x25, "GSBCOL",  Form::Long},
    {0x26, "GSECOL",  Form::Long, {u(Key::Color, 0, 2)}},
    {0x28, "GSPT",    Form::Two,  {b(Key::PatternSymbol, 0)}},
    {0x29, "GSMT",    Form::Two,  {b(Key::MarkerSymbol, 0)}},
    {0x33, "GSCC",    Form::Long, {}, DecodeGSCC},
    {0x34, "GSCA",    Form::Long, {}, DecodeGSCA},
    {0x35, "GSCH",    Form::Long, {}, DecodeNoOperation},
    {0x37, "GSMC",    Form::Long, {}, DecodeGSMC},
    {0x38, "GSCS",    Form::Two,  {b(Key::CHSID, 0)}},
    {0x39, "GSCR",    Form::Two,  {b(Key::Precision, 0)}},
    {0x3A, "GSCD",    Form::Two,  {b(Key::CharDirection, 0)}},
    {0x3B, "GSMP",    Form::Two,  {b(Key::Precision, 0)}},
    {0x3C, "GSMS",    Form::Two,  {b(Key::MSID, 0)}},
    {0x3E, "GEPROL",  Form::Two,  {mark(Key::EndProlog)}},
    {0x43, "GSPICK",  Form::Long, {}, DecodeNoOperation},
    {0x5E, "GECP",    Form::Long, {mark(Key::EndPattern)}},
    {0x60, "GEAR",    Form::Long, {mark(Key::EndArea)}},
    {0x68, "GBAR",    Form::Two,  {mark(Key::BeginArea), bit(Key::Boundary, 0, 1), bit(Key::Inside, 0, 2)}},
    {0x70, "Begin Segment", Form::Long, {}, DecodeBeginSegment},
    {0x71, "End Segment",   Form::Two,  {mark(Key::EndSegment)}},
    {0x80, "GCBOX",   Form::Long, {s(Key::BoxSecondCornerXaxis, 2, 2), s(Key::BoxSecondCornerYaxis, 4, 2)},
                      DecodeRoundedCorners<6>},
    {0x81, "GCLINE",  Form::Long, {}, nullptr, &kLinePoints, 2},
    {0x82, "GCMARK",  Form::Long, {}, nullptr, &kMarkers, 2},
    {0x83, "GCCHST",  Form::Long, {}, DecodeStringHere},
    {0x85, "GCFLT",   Form::Long, {}, nullptr, &kCurvePoints, 2},
    {0x87, "GCFARC",  Form::Long, {u(Key::Multiplier, 0, 2)}},
    {0x91, "GCBIMG",  Form::Long, {u(Key::ImageWidth, 2, 2), u(Key::ImageHeight, 4, 2)}},
    {0x92, "GIMD",    Form::Long, {}, DecodeGIMD},
    {0x93, "GEIMG",   Form::Long, {mark(Key::EndImage)}},
    {0xA0, "GSPRP",   Form::Long, {}, DecodeGSPRP},
    {0xA1, "GCRLINE", Form::Long, {}, nullptr, &kOffsets, 2},
    {0xA3, "GCPARC",  Form::Long, {s(Key::CenterPosX, 0, 2), s(Key::CenterPosY, 2, 2), u(Key::Multiplier, 4, 2)},
                      DecodeAngles<6>},
    {0xA5, "GCCBEZ",  Form::Long, {}, nullptr, &kBezier, 2},
    {0xB2, "GSPCOL",  Form::Long, {}, DecodeItemColor},
    {0xC0, "GBOX",    Form::Long, {s(Key::BoxFirstCornerXaxis, 2, 2), s(Key::BoxFirstCornerYaxis, 4, 2),
                                   s(Key::BoxSecondCornerXaxis, 6, 2), s(Key::BoxSecondCornerYaxis, 8, 2)},
                      DecodeRoundedCorners<10>},
    {0xC1, "GLINE",   Form::Long, {kX, kY}, nullptr, &kLinePoints, 6},
    {0xC2, "GMRK",    Form::Long, {kX, kY}, nullptr, &kMarkers, 6},
    {0xC3, "GCHST",   Form::Long, {kX, kY}, DecodeStringAt},
    {0xC5, "GFLT",    Form::Long, {kX, kY}, nullptr, &kCurvePoints, 6},
    {0xC7, "GFARC",   Form::Long, {s(Key::CenterPosX, 0, 2), s(Key::CenterPosY, 2, 2), u(Key::Multiplier, 4, 2)}},
    {0xD1, "GBIMG",   Form::Long, {kX, kY, u(Key::ImageWidth, 6, 2), u(Key::ImageHeight, 8, 2)}},
    {0xDE, "GBCP",    Form::Long, {b(Key::CustomPatternSet, 1), b(Key::CustomPatternSymbol, 2),
                                   s(Key::CustomPatternWindowL, 4, 2), s(Key::CustomPatternWindowR, 6, 2),
                                   s(Key::CustomPatternWindowB, 8, 2), s(Key::CustomPatternWindowT, 10, 2)}},
    {0xDF, "GDPT",    Form::Long, {b(Key::CustomPatternSet, 1)}, DecodeGDPT},
    {0xE1, "GRLINE",  Form::Long, {kX, kY}, nullptr, &kOffsets, 6},
    {0xE3, "GPARC",   Form::Long, {kX, kY, s(Key::CenterPosX, 4, 2), s(Key::CenterPosY, 6, 2), u(Key::Multiplier, 8, 2)},
                      DecodeAngles<10>},
    {0xE5, "GCBEZ",   Form::Long, {kX, kY}, nullptr, &kBezier, 6},
};
// clang-format on

constexpr auto kOrderOf = IndexByCode(kOrders, [](const OrderRow& row) { return row.code; });

std::int32_t LengthOf(const OrderRow& order, const Item& item)
{
    return order.form == Form::One ? 1 : order.form == Form::Two ? 2 : item.length + 2;
}

void DecodeOrder(clsAFPFunctions& afp, const OrderRow& order, const Item& item)
{
    afp.AddSequenceElement(Element::Literal(Key::BeginOrder, order.mnemonic));
    ReadRows(afp, order.rows.All(), order.form == Form::Long ? Parameters(item) : item.at + 1, item.length,
             kToSequence);
    if (order.points != nullptr) DecodePoints(afp, item, *order.points, order.pointsAt);
    if (order.procedure != nullptr) order.procedure(afp, item);
}

}  // namespace

void AnalyzeOrders(clsAFPFunctions& afp)
{
    const std::int32_t end = afp.FieldEnd;
    std::int32_t orderLength = 0;
    BeginItems(afp);
    while (afp.FieldPosition < end) {
        const Item item = {afp.FieldPosition, afp.ByteAt(afp.FieldPosition + 1), end};
        const std::uint8_t code = afp.ByteAt(item.at), row = kOrderOf[code];
        if (row == 0) {
            // Nobody knows how long it is: the walk ends. What is carried over is the length of the order before it.
            AddCode(afp, Key::OrderUnknown, code);
            afp.FieldPosition = end + 1 + orderLength;
            break;
        }
        DecodeOrder(afp, kOrders[row - 1], item);
        orderLength = LengthOf(kOrders[row - 1], item);
        afp.FieldPosition += orderLength;
    }
    EndItems(afp, Key::OrderElementType, Key::OrderElementValue);
    if (RunsOver(afp, end)) CarryOver(afp, end);
}

}  // namespace folioscope
