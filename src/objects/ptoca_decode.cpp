#include "objects/ptoca_decode.h"

#include <algorithm>
#include <cmath>

#include "base/numbers.h"
#include "base/text.h"

namespace folioscope {

namespace {

struct SequenceRow {
    std::uint8_t selector;  // the function byte without its chaining bit
    std::string_view mnemonic;
    ItemRows rows = {};  // offsets count from the first parameter
    ItemProcedure procedure = nullptr;
};

constexpr std::uint8_t kChainingBit = 0x01;
constexpr std::int32_t kPrefix = 0x2BD3;
constexpr std::uint8_t kPrefixByte = 0x2B;

std::int32_t Parameters(const Item& item) { return item.at + 2; }

// The length of a text that begins `offset` bytes behind the length byte and ends with the sequence, or with the field
// if that comes first.
std::int32_t TextLength(const Item& item, std::int32_t offset)
{
    return std::min(item.length - 1, item.end - item.at) - offset + 1;
}

void DecodeUCT(clsAFPFunctions& afp, const Item& item)
{
    constexpr std::int32_t kUtf16 = 1200, kTextAt = 16;
    afp.AddSequenceElement(afp.ReadTextCP(Key::Content, kUtf16, item.at + kTextAt, TextLength(item, kTextAt)));
}

void DecodeGLC(clsAFPFunctions& afp, const Item& item)
{
    const std::int32_t p = Parameters(item), oid = afp.ByteAt(p + 2), name = afp.ByteAt(p + 3);
    afp.AddSequenceElement(Element::Literal(Key::SequenceName, "GLC (Glyph Layout Control)"));
    afp.AddSequenceElement(Element::Int32(Key::GLCAdvance, afp.ReadUnsigned(p, 2)));
    if (oid > 0) afp.AddSequenceElement(afp.ReadHex(Key::GLCFontOID, item.at + 12, oid - 2));
    if (name > 0) afp.AddSequenceElement(afp.ReadText(Key::GLCFontname, item.at + oid + 10, name));
}

// 0 for none, 1 for text and blanks, 2 for text alone.
std::int64_t StateOf(std::uint8_t flags) { return (flags & 0x0F) == 0 ? 0 : (flags & 0x01) != 0 ? 1 : 2; }

void DecodeOVS(clsAFPFunctions& afp, const Item& item)
{
    const std::int32_t p = Parameters(item);
    const std::int64_t state = StateOf(afp.ByteAt(p));
    afp.AddSequenceElement(Element::Int16(Key::Overstrike, state));
    afp.AddSequenceElement(state == 0 ? Element::Literal(Key::OverstrikeChar, "")
                                      : afp.ReadCharacter(Key::OverstrikeChar, p + 2));
}

void DecodeSTC(clsAFPFunctions& afp, const Item& item)
{
    constexpr std::int64_t kStandardOCA = 0x40;
    afp.AddSequenceElement(Element::Int16(Key::ColorSpace, kStandardOCA));
    afp.AddSequenceElement(Element::Int32(Key::Color, afp.ReadUnsigned(Parameters(item), 2)));
}

void DecodeUSC(clsAFPFunctions& afp, const Item& item)
{
    afp.AddSequenceElement(Element::Int16(Key::Underscore, StateOf(afp.ByteAt(Parameters(item)))));
}

void DecodeTBM(clsAFPFunctions& afp, const Item& item)
{
    constexpr std::int32_t kShortest = 4, kDefaultIncrement = 65'535;
    if (item.length < kShortest) return;
    const std::int32_t increment =
        item.length == kShortest ? kDefaultIncrement : afp.ReadUnsigned(Parameters(item) + 2, 2);
    afp.AddSequenceElement(Element::Int32(Key::TBMIncrement, increment));
}

// Glyphs: how many, as the length has it, which can be a half too much; then as many as that rounds to.
void DecodeGIR(clsAFPFunctions& afp, const Item& item)
{
    const std::int32_t size = afp.ReadBit(Parameters(item), 7) ? 4 : 2;
    const double count = static_cast<double>(item.length - (size == 2 ? 4 : 6)) / size;
    afp.AddSequenceElement(Element::Int16(Key::GLIDLength, size));
    afp.AddSequenceElement(Element::Float64(Key::GLIDCount, count));
    for (std::int32_t i = 0; i < RoundHalfToEven(count); ++i)
        afp.AddSequenceElement(afp.ReadHex(Key::GLID, item.at + 4 + i * size, size));
}

template <Key count, Key value> void DecodeDistances(clsAFPFunctions& afp, const Item& item)
{
    const double pairs = (item.length - 4) / 2.0;
    afp.AddSequenceElement(Element::Float64(count, pairs));
    for (std::int32_t i = 0; i < RoundHalfToEven(pairs); ++i)
        afp.AddSequenceElement(Element::Int32(value, afp.ReadSigned(Parameters(item) + 2 + 2 * i, 2)));
}

// Positive only if the direction byte is missing or 0.
void DecodeSIA(clsAFPFunctions& afp, const Item& item)
{
    const std::int32_t p = Parameters(item), adjustment = afp.ReadUnsigned(p, 2);
    const bool positive = item.length == 4 || (item.length == 5 && afp.ByteAt(p + 2) == 0);
    afp.AddSequenceElement(Element::Int32(Key::InterCharAdjust, positive ? adjustment : -adjustment));
}

template <int along> void DecodeRule(clsAFPFunctions& afp, const Item& item)  // DIR, DBR
{
    constexpr std::int32_t kWithWidth = 7;
    const std::int32_t p = Parameters(item), length = afp.ReadSigned(p, 2);
    afp.AddSequenceElement(Element::Float32(Key::RuleLength, std::abs(length)));
    if (item.length == kWithWidth) {
        const double width = afp.ReadSigned(p + 2, 2) + afp.ByteAt(p + 4) / 2.0;  // sic, halved
        afp.AddSequenceElement(Element::Float32(Key::RuleWidth, std::fabs(width)));
    }
    afp.AddSequenceElement(Element::Int16(Key::RuleDirection, length >= 0 ? along : along + 2));
}

void DecodeTRN(clsAFPFunctions& afp, const Item& item)
{
    constexpr std::int32_t kTextAt = 2;
    afp.AddSequenceElement(afp.ReadText(Key::TransparentData, item.at + kTextAt, TextLength(item, kTextAt)));
}

void DecodeRPS(clsAFPFunctions& afp, const Item& item)
{
    constexpr std::int32_t kTextAt = 4;
    afp.AddSequenceElement(afp.ReadText(Key::RepeatString, item.at + kTextAt, TextLength(item, kTextAt)));
}

// Its text isn't cut at the field's end.
void DecodeNOPSequence(clsAFPFunctions& afp, const Item& item)
{
    afp.AddSequenceElement(afp.ReadText(Key::NOPSequence, Parameters(item), item.length - 2));
}

void DecodeSTO(clsAFPFunctions& afp, const Item& item)
{
    const auto degrees = [&](std::int32_t position) { return (afp.ReadUnsigned(position, 2) & 0xFF80) / 128; };
    const std::int32_t p = Parameters(item);
    afp.AddSequenceElement(Element::Float64(Key::BaselineOrientation, degrees(p + 2)));
    afp.AddSequenceElement(Element::Float64(Key::InlineOrientation, degrees(p)));
}

// clang-format off
constexpr SequenceRow kSequences[] = {
    {0x6A, "UCT",  {b(Key::UCTVersion, 0), bit(Key::UCTNormalization, 4, 0), bit(Key::UCTAltIPosValid, 4, 1),
                    bit(Key::UCTAltIPosCoord, 4, 2), bit(Key::UCTCurrentIPos, 4, 3), bit(Key::UCTResetDir, 4, 4),
                    b(Key::UCTBiDi, 6), b(Key::UCTGlyph, 7), s(Key::UCTAltIPos, 12, 2), u(Key::Length, 2, 2)},
                   DecodeUCT},
    {0x6C, "GLC",  {}, DecodeGLC},
    {0x72, "OVS",  {}, DecodeOVS},
    {0x74, "STC",  {}, DecodeSTC},
    {0x76, "USC",  {}, DecodeUSC},
    {0x78, "TBM",  {b(Key::TBMDirection, 0)}, DecodeTBM},
    {0x80, "SEC",  {}, DecodeItemColor},
    {0x8A, "GIR",  {}, DecodeGIR},
    {0x8C, "GAR",  {}, DecodeDistances<Key::GLAdCount, Key::GLAdvance>},
    {0x8E, "GOR",  {}, DecodeDistances<Key::GLOfCount, Key::GLOffset>},
    {0xC0, "SIM",  {s(Key::InlineMargin, 0, 2)}},
    {0xC2, "SIA",  {}, DecodeSIA},
    {0xC4, "SVI",  {u(Key::VariableSpace, 0, 2)}},
    {0xC6, "AMI",  {u(Key::AbsoluteInline, 0, 2)}},
    {0xC8, "RMI",  {s(Key::RelativeInline, 0, 2)}},
    {0xD0, "SBI",  {u(Key::BaselineIncrement, 0, 2)}},
    {0xD2, "AMB",  {u(Key::AbsoluteBaseline, 0, 2)}},
    {0xD4, "RMB",  {s(Key::RelativeBaseline, 0, 2)}},
    {0xD8, "BLN",  {read(Read::True, Key::NewLine, 0)}},
    {0xDA, "TRN",  {}, DecodeTRN},
    {0xE4, "DIR",  {}, DecodeRule<1>},
    {0xE6, "DBR",  {}, DecodeRule<2>},
    {0xEE, "RPS",  {u(Key::RepeatCount, 0, 2)}, DecodeRPS},
    {0xF0, "SCFL", {b(Key::FontLID, 0)}},
    {0xF2, "BSU",  {b(Key::BeginSuppression, 0)}},
    {0xF4, "ESU",  {b(Key::BeginSuppression, 0)}},     // sic, told as a begin
    {0xF6, "STO",  {}, DecodeSTO},
    {0xF8, "NOP",  {}, DecodeNOPSequence},
};
// clang-format on

constexpr auto kSequenceOf = IndexByCode(kSequences, [](const SequenceRow& row) { return row.selector; });

void AnalyzeOneSequence(clsAFPFunctions& afp, const Item& item)
{
    if (afp.List().SequenceIsFull()) return;  // nothing more could be told
    const std::uint8_t function = afp.ByteAt(item.at + 1);
    const std::uint8_t row = kSequenceOf[function & ~kChainingBit & 0xFF];
    if (row == 0) {
        afp.AddSequenceElement(Element::Boolean(Key::SequenceUnknown, true));
        AddCode(afp, Key::HexCode, function);
        return;
    }
    const SequenceRow& sequence = kSequences[row - 1];
    afp.AddSequenceElement(Element::Literal(Key::BeginSequence, sequence.mnemonic));
    ReadRows(afp, sequence.rows.All(), Parameters(item), item.length - 2, kToSequence);
    if (sequence.procedure != nullptr) sequence.procedure(afp, item);
}

// Text without a prefix: up to the next byte that could begin one. The field's last byte is never part of it.
void AnalyzeFreeText(clsAFPFunctions& afp, std::int32_t end)
{
    const std::int32_t start = afp.FieldPosition;
    std::int32_t length = 1;
    while (start + length < end && afp.ByteAt(start + length) != kPrefixByte) ++length;
    afp.AddSequenceElement(Element::Literal(Key::BeginSequence, "Free Text"));
    afp.AddSequenceElement(afp.ReadText(Key::TransparentData, start, length));
    afp.FieldPosition = start + length;
}

}  // namespace

void AnalyzeSequences(clsAFPFunctions& afp)
{
    const std::int32_t end = afp.FieldEnd;
    bool chained = false;
    BeginItems(afp);
    while (afp.FieldPosition < end) {
        const std::int32_t before = afp.FieldPosition;
        if (!chained && afp.ReadUnsigned(before, 2) != kPrefix) {
            AnalyzeFreeText(afp, end);
            continue;
        }
        const Item item = {chained ? before : before + 2, afp.ByteAt(chained ? before : before + 2), end};
        afp.FieldPosition = item.at + item.length;
        chained = (afp.ByteAt(item.at + 1) & kChainingBit) != 0;
        AnalyzeOneSequence(afp, item);
        if (afp.FieldPosition == before) break;  // a chained sequence of length 0 would come for ever
    }
    EndItems(afp, Key::ArrayElementType, Key::ArrayElementValue);
    if (RunsOver(afp, end))
        CarryOver(afp, end);
    else if (chained)
        afp.AddElement(Element::Boolean(Key::ChainingActiveAtEnd, true));
}

}  // namespace folioscope
