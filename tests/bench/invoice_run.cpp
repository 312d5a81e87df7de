#include "invoice_run.h"

#include <algorithm>
#include <cstdio>
#include <string>

namespace folioscope::bench {
namespace {

constexpr std::size_t kUnits = 14400;                           // per ten inches
constexpr std::size_t kPageWidth = 11906, kPageHeight = 16838;  // A4
constexpr std::string_view kFonts[] = {"X0INVC01", "X0INVC02", "X0INVC03", "X0INVC04"};
constexpr std::string_view kCodePage = "T1INVC01", kFormMap = "F1INVC01", kOverlay = "O1INVC01", kSegment = "S1INVC01";

// clang-format off
constexpr std::string_view kSurnames[] = {
    "Åkesson", "Brandt", "Çelik", "Díaz", "Ekström", "Flöge", "Grün",
    "Holm", "Ibáñez", "Jürgens", "Kéri", "Larsen", "Meißner",
};
constexpr std::string_view kTowns[] = {
    "Aachen", "Århus", "Besançon", "Bregenz", "Genève", "Göteborg", "Lübeck",
    "Málaga", "Odense", "Örebro", "Trieste", "Utrecht", "Zürich",
};
constexpr std::string_view kServices[] = {
    "local network", "long distance", "mobile network", "roaming zone one", "roaming zone two", "directory service",
    "data volume", "text message", "voice mail", "service number", "conference call", "call forwarding",
};
// clang-format on

template <class... Arguments> std::string Print(const char* pattern, Arguments... arguments)
{
    char text[64];
    std::snprintf(text, sizeof text, pattern, arguments...);
    return text;
}

unsigned Below(Dice& dice, std::size_t limit) { return static_cast<unsigned>(dice.Below(limit)); }

// ------------------------------------------------------------------------------------------ presentation text

// PTOCA functions without their chaining bit.
enum Function : std::uint8_t {
    STC = 0x74,
    USC = 0x76,
    SEC = 0x80,
    SIM = 0xC0,
    SVI = 0xC4,
    AMI = 0xC6,
    RMI = 0xC8,
    AMB = 0xD2,
    RMB = 0xD4,
    TRN = 0xDA,
    DIR = 0xE4,
    DBR = 0xE6,
    SCFL = 0xF0,
    STO = 0xF6,
    EndOfChain = 0xF8
};

// A piece of text that stays in one record.
class Piece : public Body {
public:
    Piece& At(std::size_t x, std::size_t y)
    {
        Sequence(AMB, Body().U2(y));
        return Across(x);
    }
    Piece& Across(std::size_t x) { return Say(AMI, Body().U2(x)); }
    Piece& Words(std::string_view text) { return Say(TRN, Body().Text(text)); }
    Piece& Font(std::uint8_t id) { return Say(SCFL, Body{id}); }
    Piece& Say(Function function, const Body& parameters)
    {
        Sequence(function, parameters);
        return *this;
    }
};

// Collects pieces and cuts them into PTX records of at most about `limit` bytes, each a chain of its own.
class TextObject {
public:
    TextObject(RecordBuilder& out, std::size_t limit) : out_(out), limit_(limit) {}
    void Add(const Piece& piece)
    {
        if (chain_.Size() > 0 && chain_.Size() + piece.Size() > limit_) Cut();
        chain_.Add(piece);
    }
    void Cut()
    {
        out_.Put("PTX", Body{0x2B, 0xD3}.Add(chain_).U1(2).U1(EndOfChain));
        chain_ = {};
    }

private:
    RecordBuilder& out_;
    std::size_t limit_;
    Body chain_;
};

void AddHeading(TextObject& text, Dice& dice, unsigned sheet)
{
    const auto line = [&](std::size_t y, const std::string& words) { text.Add(Piece().At(1100, y).Words(words)); };
    Piece start;
    start.Say(STO, {0, 0, 0x2D, 0}).Say(SIM, {0, 0}).Font(1).Say(STC, {0, 8});
    text.Add(start);
    line(1000, std::string(dice.Pick(kSurnames)) + " & Co.");
    const unsigned postalCode = 1000 + Below(dice, 98000);
    line(1230, Print("%05u ", postalCode) + std::string(dice.Pick(kTowns)));
    text.Add(Piece()
                 .Font(2)
                 .At(7400, 1500)
                 .Words("Customer ")
                 .Words(kAccountSlot)
                 .Say(RMI, Body().U2(180))
                 .Words(Print("Sheet %u", sheet)));
    text.Add(Piece().Say(DIR, Body().U2(9700).U2(20).U1(0)));
}

Piece CallLine(Dice& dice, std::size_t y, unsigned minute)
{
    // One draw a statement: the order in which arguments are worked out is the compiler's own.
    const unsigned cents = Below(dice, 3000), area = 100 + Below(dice, 900), number = 10000 + Below(dice, 9990000);
    const std::string amount = Print("%u.%02u", cents / 100, cents % 100);
    Piece line;
    line.At(900, y).Words(Print("%02u.%02u.", 1 + minute / 1440 % 28, 1 + minute / 40320 % 12));
    line.Across(1900).Words(Print("%02u:%02u", minute / 60 % 24, minute % 60));
    line.Across(2900).Say(SVI, Body().U2(72));
    line.Words(Print("0%u %u ", area, number) + std::string(dice.Pick(kServices)));
    line.Across(9600 - 110 * amount.size()).Words(amount);
    return line;
}

void AddCalls(TextObject& text, Dice& dice, std::size_t lines)
{
    unsigned minute = Below(dice, 40000);
    std::size_t y = 2100;
    for (std::size_t i = 0; i < lines; ++i, y += 250) {
        minute += Below(dice, 700);
        if (i % 12 == 0) {
            const auto shade = [&] { return dice.Below(256); };
            Body colour{0, 1, 0, 0, 0, 0, 8, 8, 8, 0};
            text.Add(Piece().Font(2 + i / 12 % 2).Say(SEC, colour.U1(shade()).U1(shade()).U1(shade())));
        }
        text.Add(CallLine(dice, y, minute));
        if (i % 5 == 4) text.Add(Piece().Across(900).Say(DBR, Body().U2(250).U2(10).U1(0)).Say(RMB, Body().U2(40)));
    }
    text.Add(Piece().At(900, y + 280).Words("Amount due ").Say(USC, {1}).Words(kAmountSlot).Say(USC, {0}));
}

void PutText(RecordBuilder& out, Dice& dice, bool lineMode, std::size_t lines, unsigned sheet)
{
    static constexpr std::size_t kLineLimit = 150, kPageLimits[] = {3000, 8000};
    const Body name = Body().Name(Print("TEXT%04u", sheet));
    out.Put("BPT", name);
    TextObject text(out, lineMode ? kLineLimit : dice.Pick(kPageLimits));
    AddHeading(text, dice, sheet);
    AddCalls(text, dice, lines);
    text.Cut();
    out.Put("EPT", name);
}

// ----------------------------------------------------------------------------------------- environment groups

Body Descriptor(std::size_t width, std::size_t height) { return Body{0, 0}.U2(kUnits).U2(kUnits).U3(width).U3(height); }

void PutFontMap(RecordBuilder& out)
{
    Body map;
    for (std::size_t i = 0; i < std::size(kFonts); ++i) {
        Body group;
        group.Add(FullName(0x8E, kFonts[i])).Triplet(0x24, Body{5}.U1(i + 1)).Triplet(0x25, {0});
        group.Triplet(0x26, {0, 0}).Triplet(0x1F, Body{5, 5}.U2(200).Zeros(14));
        map.Group(group);
    }
    out.Put("MCF-2", map);
}

void PutPageEnvironment(RecordBuilder& out, std::string_view name, bool overlay)
{
    out.Put("BAG", Body().Name(name));
    PutFontMap(out);
    if (overlay) out.Put("MPO", Body().Group(FullName(0x84, kOverlay).Triplet(0x24, {2, 1})));
    out.Put("PGD", Descriptor(kPageWidth, kPageHeight).Zeros(3));
    out.Put("PTD-2", Descriptor(kPageWidth, kPageHeight).Zeros(2));
    out.Put("EAG", Body().Name(name));
}

struct Area {
    std::size_t x, y, width, height;
};

void PutObjectEnvironment(RecordBuilder& out, const Body& name, const Area& area, FieldName mapping, FieldName field,
                          const Body& descriptor)
{
    out.Put("BOG", name);
    out.Put("OBD", Body()
                       .Triplet(0x43, {1})
                       .Triplet(0x4B, Body{0, 0}.U2(kUnits).U2(kUnits))
                       .Triplet(0x4C, Body{2}.U3(area.width).U3(area.height)));
    out.Put("OBP", Body{1, 23}.U3(area.x).U3(area.y).Add(Body{0, 0, 0x2D, 0, 0}).Zeros(6).Add(Body{0, 0, 0x2D, 0, 1}));
    out.Put(mapping, Body().Group(Body().Triplet(0x04, {0x20})));
    out.Put(field, descriptor);
    out.Put("EOG", name);
}

// ----------------------------------------------------------------------------------------------- data objects

// A bilevel image that isn't compressed: each row is the one above, worn a little.
Bytes Raster(Dice& dice, std::size_t rowBytes, std::size_t rows)
{
    static constexpr std::uint8_t kShades[] = {0x00, 0x00, 0xFF, 0x81, 0x7E, 0x18};
    Bytes row(rowBytes), raster;
    for (std::uint8_t& byte : row) byte = dice.Pick(kShades);
    for (std::size_t i = 0; i < rows; ++i) {
        for (int worn = 0; worn < 3; ++worn) row[dice.Below(rowBytes)] = static_cast<std::uint8_t>(dice.Below(256));
        raster.insert(raster.end(), row.begin(), row.end());
    }
    return raster;
}

void PutImage(RecordBuilder& out, Dice& dice, std::string_view label, std::size_t width, std::size_t height)
{
    static constexpr std::size_t kPieceBytes = 8000;
    const Body name = Body().Name(label), size = Body{0}.U2(3000).U2(3000).U2(width).U2(height);
    out.Put("BIM", name);
    PutObjectEnvironment(out, name, {6200, 500, 2880, 960}, "MIO", "IDD",
                         Body().Add(size).Add(Body{0xF6, 4, 0, 0, 0, 8}));
    const Bytes raster = Raster(dice, width / 8, height);
    for (std::size_t at = 0; at < raster.size(); at += kPieceBytes) {
        const auto piece = std::span(raster).subspan(at, std::min(kPieceBytes, raster.size() - at));
        Body body;
        if (at == 0) {
            body.Add(Body{0x70, 0, 0x91, 1, 0xFF, 0x94}).U1(size.Size()).Add(size);
            body.Add(Body{0x95, 2, 3, 1, 0x96, 1, 1});
        }
        body.Add(Body{0xFE, 0x92}).U2(piece.size()).Add(piece);
        if (at + piece.size() == raster.size()) body.Add(Body{0x93, 0, 0x71, 0});
        out.Put("IPD", body);
    }
    out.Put("EIM", name);
}

// A curve of points with a label at every second one, above filled columns.
Body ChartOrders(Dice& dice)
{
    Body orders, curve;
    const std::size_t months = dice.Between(9, 14);
    for (std::size_t i = 0; i < months; ++i) {
        const std::size_t x = 300 + 600 * i, y = dice.Between(300, 3500);
        curve.U2(x).U2(y);
        orders.Add(Body{0x0A}).U1(1 + dice.Below(7)).Add(Body{0x28}).U1(1 + dice.Below(16)).Add(Body{0x68, 0x80});
        orders.Add(Body{0xC1, 16}).U2(x).U2(0).U2(x).U2(y / 2).U2(x + 400).U2(y / 2).U2(x + 400).U2(0);
        orders.Add(Body{0x60, 0});
        const Body label = Body().U2(x).U2(y + 80).Text(Print("%zu.%02u", y / 10, Below(dice, 100)));
        if (i % 2 == 0) orders.Add(Body{0xC3}).U1(label.Size()).Add(label);
    }
    return orders.Add(Body{0x18, 7, 0x19, 2, 0xC1}).U1(curve.Size()).Add(curve);
}

void PutChart(RecordBuilder& out, Dice& dice, std::string_view label)
{
    const Body name = Body().Name(label);
    out.Put("BGR", name);
    const Body window = Body().U2(0).U2(9000).U2(0).U2(4000);
    PutObjectEnvironment(
        out, name, {1100, 9500, 9000, 4000}, "MGO", "GDD",
        Body{0xF7, 7, 0xB0, 0, 0, 2, 0, 1, 0, 0xF6, 18, 0x40, 0, 0, 0}.U2(kUnits).U2(kUnits).Zeros(2).Add(window));
    const Body orders = ChartOrders(dice);
    out.Put("GAD", Body{0x70, 12}.Text("USED").Zeros(2).U2(orders.Size()).Zeros(4).Add(orders));
    out.Put("EGR", name);
}

void PutBarCode(RecordBuilder& out, Dice& dice, std::string_view label)
{
    const Body name = Body().Name(label);
    out.Put("BBC", name);
    PutObjectEnvironment(
        out, name, {6900, 15300, 4000, 900}, "MBC", "BDD",
        Body{0, 0}.U2(kUnits).U2(kUnits).U2(4000).U2(900).U2(0).Add(Body{12, 1, 0xFF, 0, 8, 13}).U2(500).U1(1).U2(250));
    out.Put("BDA", Body{0}.U2(120).U2(80).Text(kAccountSlot).Text(Print("%06u", Below(dice, 1000000))));
    out.Put("EBC", name);
}

// -------------------------------------------------------------------------------------------------- resources

template <class Contents> void PutResource(RecordBuilder& out, std::string_view name, std::uint8_t type, Contents put)
{
    out.Put("BRS", Body().Name(name).Zeros(2).Triplet(0x21, Body{type}.Zeros(7)));
    put();
    out.Put("ERS", Body().Name(name));
}

void PutFormMap(RecordBuilder& out)
{
    struct MediumMap {
        std::string_view name;
        std::uint8_t duplex;
    };
    const Body formMap = Body().Name(kFormMap), group = Body().Name("FORMENV");
    out.Put("BFM", formMap);
    out.Put("BDG", group);
    out.Put("EDG", group);
    for (const auto [label, duplex] : {MediumMap{"FIRST", 1}, MediumMap{"FOLLOW", 2}}) {
        const Body name = Body().Name(label);
        out.Put("BMM", name);
        out.Put("MMC", Body{1, 0xFF, 0xE1, 2, 0xF4, duplex, 0xFC, 1});
        out.Put("PGP-2", Body{1, 10}.Zeros(9));
        out.Put("MDD", Descriptor(kPageWidth, kPageHeight).Zeros(1));
        out.Put("MCC", {0, 1, 0, 1, 0, 1});
        out.Put("EMM", name);
    }
    out.Put("EFM", formMap);
}

void PutOverlay(RecordBuilder& out, Dice& dice)
{
    out.Put("BMO", Body().Name(kOverlay));
    PutPageEnvironment(out, "OVLENV", false);
    PutText(out, dice, false, 4, 0);
    PutChart(out, dice, "OVLCHART");
    PutImage(out, dice, "OVLLOGO", 720, 200);
    out.Put("EMO", Body().Name(kOverlay));
}

void PutCodePage(RecordBuilder& out)
{
    const Body name = Body().Name(kCodePage);
    Body index;
    for (unsigned code = 0x41; code < 0xFF; ++code) index.Text(Print("CP%02u0000", code % 100)).U1(0).U1(code);
    out.Put("BCP", name);
    out.Put("CPD",
            Body().Text("INVOICE CHARACTERS              ").U2(8).Number(0xFF - 0x41, 4).U2(697).U2(273).U2(0x6100));
    out.Put("CPC", Body().Text("SP010000").Add(Body{0, 10, 0x40, 0x40, 0}));
    out.Put("CPI", index);
    out.Put("ECP", name);
}

void PutCodedFont(RecordBuilder& out, std::string_view font)
{
    const Body name = Body().Name(font);
    out.Put("BCF", name);
    out.Put("CFC", {25, 1});
    out.Put("CFI", Body().Name("C0INVC01").Name(kCodePage).U2(200).U2(200).Zeros(5));
    out.Put("ECF", name);
}

// ------------------------------------------------------------------------------------------------------ pages

void PutPage(RecordBuilder& out, Dice& dice, std::size_t serial, unsigned sheet, bool faults)
{
    const Body name = Body().Name(Print("PG%06zu", serial % 1000000));
    if (sheet == 1) out.Put("IMM", Body().Name(serial % 2 ? "FIRST" : "FOLLOW"));
    out.Put("BPG", name);
    PutPageEnvironment(out, "PAGEENV", true);
    if (faults) PutFault(out);
    PutTag(out, "Sheet", Print("%u", sheet));
    PutTag(out, "Tray", Print("%u", 1 + sheet % 2));
    out.Put("NOP", Body().Text(Print("formatted in step %u of job %06u", sheet, Below(dice, 1000000))));
    out.Put("IPO", Body().Name(kOverlay).Zeros(8));
    if (serial % 8 == 6) out.Put("IPS", Body().Name(kSegment).U3(800).U3(400));
    PutText(out, dice, serial % 3 == 1, dice.Between(12, 51), sheet);
    if (serial % 4 == 2) PutBarCode(out, dice, "BARCODE");
    if (serial % 8 == 5) PutChart(out, dice, "CHART");
    if (serial % 24 == 7) PutImage(out, dice, "PICTURE", 800, 160 + 80 * dice.Below(3));
    out.Put("EPG", name);
}

}  // namespace

void PutResourceGroup(RecordBuilder& out, Dice& dice)
{
    const Body name = Body().Name("RESOURCE");
    out.Put("BRG", name);
    PutResource(out, kFormMap, 0xFE, [&] { PutFormMap(out); });
    PutResource(out, kOverlay, 0xFC, [&] { PutOverlay(out, dice); });
    PutResource(out, kSegment, 0xFB, [&] {
        out.Put("BPS", Body().Name(kSegment));
        PutImage(out, dice, "SEGLOGO", 640, 180);
        out.Put("EPS", Body().Name(kSegment));
    });
    PutResource(out, kCodePage, 0x41, [&] { PutCodePage(out); });
    for (const std::string_view font : kFonts) PutResource(out, font, 0x42, [&] { PutCodedFont(out, font); });
    out.Put("ERG", name);
}

unsigned PutInvoice(RecordBuilder& out, Dice& dice, std::size_t index, bool faults)
{
    static constexpr unsigned kPages[] = {1, 2, 2, 3, 3, 4};
    static constexpr std::string_view kPlans[] = {"Basic", "Comfort", "Business", "Data only"};
    out.Put("BNG", Body().Text(kGroupSlot));
    PutTag(out, "Customer", kAccountSlot);
    PutTag(out, "Surname", dice.Pick(kSurnames));
    PutTag(out, "Town", dice.Pick(kTowns));
    PutTag(out, "Postal code", Print("%05u", Below(dice, 100000)));
    PutTag(out, "Invoice month", Print("2025-%02u", 1 + Below(dice, 12)));
    PutTag(out, "Amount due", kAmountSlot);
    PutTag(out, "Plan", dice.Pick(kPlans));
    PutTag(out, "Exchange", Print("%03u", Below(dice, 1000)));
    const unsigned pages = dice.Pick(kPages);
    for (unsigned page = 0; page < pages; ++page) PutPage(out, dice, index * 5 + page, page + 1, faults);
    out.Put("ENG", Body().Text(kGroupSlot));
    return pages;
}

void PutTag(RecordBuilder& out, std::string_view name, std::string_view value)
{
    out.Put("TLE", FullName(0x0B, name).Triplet(0x36, Body{0, 0}.Text(value)));
}

void PutFault(RecordBuilder& out)
{
    out.Put("PGD", Body{9, 9}.U2(kUnits).U2(kUnits).U3(kPageWidth).U3(kPageHeight).Zeros(3));
}

}  // namespace folioscope::bench
