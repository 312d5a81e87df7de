#include "analysis/decode/fields_fonts.h"

#include <cmath>
#include <string>

#include "analysis/decode/clsAFPFunctions.h"
#include "analysis/decode/groups.h"

namespace folioscope {

namespace {

// clang-format off
constexpr Row kCFI[] = {                               // Coded Font Index, a group
    name(Key::CHSName,                  0),
    name(Key::CDPName,                  8),
    read(Read::Inches, Key::FontHeight, 16, 2),
    read(Read::Inches, Key::FontWidth,  18, 2),
    b(Key::SectionID,                   24),
};

// Code Page Control
constexpr Row kCPC[] = {
    name(Key::DefaultCharID,  0),
    bit(Key::CharInvalid,     8, 0),
    bit(Key::Charnopres,      8, 1),
    bit(Key::Charnoincrem,    8, 2),
};
constexpr Row kCPCDoubleByte[] = {
    b(Key::SpaceSection, 10),
};
constexpr Row kCPCSpace[] = {
    hex(Key::SpaceCode, 11, 1),
    bit(Key::CPISort,   12, 0),
};

constexpr Row kCPI[] = {                               // Code Page Index, a group
    name(Key::CharID,         0),
    bit(Key::CharInvalid,     8, 0),
    bit(Key::Charnopres,      8, 1),
    bit(Key::Charnoincrem,    8, 2),
};

// Font Descriptor
constexpr Row kFND[] = {
    read(Read::Text500, Key::Description,   0, 32),
    b(Key::FontWeightClass,                 32),
    b(Key::FontWidthClass,                  33),
    read(Read::Inches, Key::MaxFontHeight,  34, 2),
    read(Read::Inches, Key::NomFontHeight,  36, 2),
    read(Read::Inches, Key::MinFontHeight,  38, 2),
    read(Read::Inches, Key::MaxFontWidth,   40, 2),
    read(Read::Inches, Key::NomFontWidth,   42, 2),
    read(Read::Inches, Key::MinFontWidth,   44, 2),
};
constexpr Row kFNDStyle[] = {
    bit(Key::FontItalic,       64, 0),
    bit(Key::FontUnderscored,  64, 1),
    bit(Key::FontHollow,       64, 3),
    bit(Key::FontOverstrucked, 64, 4),
    u(Key::CHSID2,             76, 2),
    u(Key::FONID2,             78, 2),
};

// Font Control
constexpr Row kFNC[] = {
    b(Key::PatternTech,      1),
    bit(Key::MICRFont,       3, 0),
    bit(Key::FontExtension,  3, 1),
    bit(Key::MonoSpaced,     3, 6),
    b(Key::UnitBaseX,        4),
    b(Key::UnitBaseY,        5),
    u(Key::PageBaseUnitsX,   6, 2),
    u(Key::PageBaseUnitsY,   8, 2),
    u(Key::CharBoxWidth,     10, 2),
    u(Key::CharBoxHeight,    12, 2),
    b(Key::FNOElementLength, 14),
};
constexpr Row kFNCRaster[] = {
    u(Key::RasterDataCount,  17, 3),
    b(Key::FNPElementLength, 20),
    b(Key::FNMElementLength, 21),
};
constexpr Row kFNCOutline[] = {                        // each only if the field reaches so far
    b(Key::ShapeUnitBaseX,   22),
    b(Key::ShapeUnitBaseY,   23),
    u(Key::ShapeUnitsX,      24, 2),
    u(Key::ShapeUnitsY,      26, 2),
    u(Key::OutlineDataCount, 28, 4),
    b(Key::FNNElementLength, 35),
    u(Key::FNNDataCount,     36, 4),
    u(Key::FNNIBMName,       40, 2),
};

constexpr Row kFNO[] = {                               // Font Orientation, a group
    angle(Key::CharRotation,   2),
    u(Key::SpaceIncrement,     8, 2),
    u(Key::MaxBaselineExtend,  10, 2),
};
constexpr Row kFNOSpaces[] = {
    bit(Key::FontKerned,       12, 4),
    u(Key::EmSpaceInc,         14, 2),
    u(Key::FigureSpace,        18, 2),
    u(Key::NomCharIncrement,   20, 2),
    u(Key::DefaultBaselineInc, 22, 2),
};

constexpr Row kFNP[] = {                               // Font Position, a group
    s(Key::LowerX,        2, 2),
    s(Key::CapitalM,      4, 2),
    s(Key::MaxAscender,   6, 2),
    s(Key::MaxDescender,  8, 2),
};
constexpr Row kFNPUnderscore[] = {
    s(Key::UnderscorePos, 20, 2),
};

// Font Name Map: a character name, and where its outline name is
constexpr Row kFNNOffset[] = {
    name(Key::IBMCharID,      0),
    u(Key::ExtCharIDNext,     8, 4),
};
constexpr Row kFNNCodePoint[] = {
    name(Key::IBMCharID,      0),
    u(Key::ExtCharIDCMAP,     8, 4),
};
// clang-format on

constexpr std::uint8_t kAscii = 3, kCmap = 5;  // formats of outline names
constexpr std::int32_t kNameGroup = 12;        // bytes

// "4.2.1": general class, subclass and specific group of the ISO design classification.
void AddDesignClass(clsAFPFunctions& afp, std::int32_t at)
{
    std::string& pool = afp.List().Pool();
    const auto from = pool.size();
    pool += std::to_string(afp.ByteAt(at)) + '.' + std::to_string(afp.ByteAt(at + 1)) + '.' +
            std::to_string(afp.ByteAt(at + 2));
    afp.AddElement(afp.List().PooledText(Key::FontDesignClass, from));
}

std::int32_t NumberOf(const clsAFPFunctions& afp, Key key)
{
    const Element* element = afp.List().Find(key);
    return element == nullptr ? 0 : static_cast<std::int32_t>(element->number);
}

}  // namespace

// The number of CFI elements is a length over the length of one: a fraction shows that the field is damaged.
void DecodeCFC(clsAFPFunctions& afp)
{
    constexpr std::int32_t kFixed = 2;
    constexpr double kElement = 25;
    afp.AddElement(Element::Float64(Key::CFIElementCount, afp.ByteAt(afp.FieldPosition) / kElement));
    afp.FieldPosition += kFixed;
    AnalyzeTriplets(afp, afp.FieldEnd);
}

void DecodeCFI(clsAFPFunctions& afp)
{
    constexpr std::int32_t kGroup = 25;
    AnalyzeGroups(afp, kGroup, [](clsAFPFunctions& inner, std::int32_t start, std::int32_t length) {
        ReadRows(inner, kCFI, start, length);
    });
}

void DecodeCPC(clsAFPFunctions& afp)
{
    constexpr std::int16_t kDoubleByte = 11, kDoubleByteUnicode = 255;
    const std::int32_t start = afp.FieldPosition, length = afp.FieldEnd - start + 1;
    const std::int16_t type = afp.ByteAt(start + 9);
    afp.Fonts.CPType = type;
    ReadRows(afp, kCPC, start, length);
    afp.AddElement(Element::Int16(Key::CPType, type));
    if (type == kDoubleByte || type == kDoubleByteUnicode) ReadRows(afp, kCPCDoubleByte, start, length);
    ReadRows(afp, kCPCSpace, start, length);
}

// The type of the code page says how long a code point is, and whether Unicode values follow it.
void DecodeCPI(clsAFPFunctions& afp)
{
    constexpr std::int32_t kFixed = 9, kUnicodeSize = 4;
    constexpr std::int16_t kUnicodeAbove = 240;
    const std::int16_t type = afp.Fonts.CPType;
    const std::int32_t codeSize = type % 2 == 0 ? 1 : 2;
    for (int number = 1; afp.FieldPosition < afp.FieldEnd; ++number) {
        afp.AddElement(Element::Int16(Key::BeginRepetition, number));
        afp.AddElement(Element::Int32(Key::Length, type));
        ReadRows(afp, kCPI, afp.FieldPosition, kFixed);
        afp.AddElement(afp.ReadHex(Key::CharCode, afp.FieldPosition + kFixed, codeSize));
        afp.FieldPosition += kFixed + codeSize;
        if (type > kUnicodeAbove) {
            const int count = afp.ByteAt(afp.FieldPosition++);
            for (int i = 0; i < count; ++i, afp.FieldPosition += kUnicodeSize)
                afp.AddElement(afp.ReadHex(Key::UnicodeCharCode, afp.FieldPosition, kUnicodeSize));
        }
        afp.AddElement(Element::Int16(Key::EndRepetition, number));
    }
}

void DecodeFND(clsAFPFunctions& afp)
{
    constexpr std::int32_t kFixed = 80;
    const std::int32_t start = afp.FieldPosition;
    ReadRows(afp, kFND, start, kFixed);
    AddDesignClass(afp, start + 46);
    ReadRows(afp, kFNDStyle, start, kFixed);
    afp.FieldPosition = start + kFixed;
    AnalyzeTriplets(afp, afp.FieldEnd);
}

void DecodeFNC(clsAFPFunctions& afp)
{
    constexpr std::int32_t kFixed = 42;
    const std::int32_t start = afp.FieldPosition;
    const std::uint8_t groupLength = afp.ByteAt(start + 15);
    ReadRows(afp, kFNC, start, kFixed);
    afp.AddElement(Element::Int16(Key::FNIElementLength, groupLength));
    afp.AddElement(Element::Float64(Key::RasterDataAlign, std::ldexp(1.0, afp.ByteAt(start + 16))));
    ReadRows(afp, kFNCRaster, start, kFixed);
    for (const Row& row : kFNCOutline)
        if (start + row.at <= afp.FieldEnd) ReadRows(afp, {&row, 1}, start, kFixed);

    FontState font;
    font.FontPatternTech = afp.ByteAt(start + 1);
    font.FNIGroupLength = groupLength;
    font.nameGroupLength = NumberOf(afp, Key::FNNElementLength);
    font.namesLeft = NumberOf(afp, Key::FNNIBMName);
    font.nameHeaderPending = true;
    font.CPType = afp.Fonts.CPType;
    afp.Fonts = font;

    afp.FieldPosition = start + kFixed;
    AnalyzeTriplets(afp, afp.FieldEnd);
}

void DecodeFNO(clsAFPFunctions& afp)
{
    constexpr std::int32_t kGroup = 26;
    AnalyzeGroups(afp, kGroup, [](clsAFPFunctions& inner, std::int32_t start, std::int32_t length) {
        ReadRows(inner, kFNO, start, length);
        inner.AddElement(Element::Float64(Key::FNIIndex, inner.ByteAt(start + 12) >> 5));
        ReadRows(inner, kFNOSpaces, start, length);
    });
}

// The underscore's width has two bytes of whole units and one of 256ths.
void DecodeFNP(clsAFPFunctions& afp)
{
    constexpr std::int32_t kGroup = 22;
    AnalyzeGroups(afp, kGroup, [](clsAFPFunctions& inner, std::int32_t start, std::int32_t length) {
        constexpr double kFractions = 256;
        ReadRows(inner, kFNP, start, length);
        inner.AddElement(Element::Float64(Key::UnderscoreWidth, inner.ReadUnsigned(start + 17, 3) / kFractions));
        ReadRows(inner, kFNPUnderscore, start, length);
    });
}

namespace {

// The formats of both kinds of names head the first of the fields.
void TakeNameHeader(clsAFPFunctions& afp)
{
    constexpr std::int32_t kHeader = 2;
    afp.Fonts.nameHeaderPending = false;
    afp.Fonts.outlineNameFormat = afp.ByteAt(afp.FieldPosition + 1);
    afp.AddElement(Element::Byte(Key::IBMGCGIDFormat, afp.ByteAt(afp.FieldPosition)));
    afp.AddElement(Element::Byte(Key::ExtGCGIDFormat, afp.Fonts.outlineNameFormat));
    afp.FieldPosition += kHeader;
}

void DecodeName(clsAFPFunctions& afp, std::int32_t start, std::int32_t length)
{
    const bool codePoint = afp.Fonts.outlineNameFormat == kCmap;
    const std::span<const Row> rows = codePoint ? std::span<const Row>(kFNNCodePoint) : kFNNOffset;
    ReadRows(afp, rows, start, length, AddTo::Sequence);
}

// Behind its length byte, which counts itself.
void DecodeOutlineName(clsAFPFunctions& afp, std::int32_t start, std::int32_t length)
{
    constexpr std::int32_t kPage437 = 437;
    if (afp.Fonts.outlineNameFormat == kAscii)
        afp.AddSequenceElement(afp.ReadTextCP(Key::ExtCharIDASCII, kPage437, start + 1, length - 1));
}

}  // namespace

// The FNN fields of a font are one stream: all character names, then the outline names that they point to.
void DecodeFNN(clsAFPFunctions& afp)
{
    constexpr std::int32_t kShortestName = 2;
    FontState& font = afp.Fonts;
    if (font.nameHeaderPending) TakeNameHeader(afp);
    afp.List().ClearSequenceElements();
    int number = 0;
    for (; font.namesLeft > 0 && afp.FieldPosition < afp.FieldEnd; --font.namesLeft) {
        AnalyzeSequenceGroup(afp, ++number, kNameGroup, DecodeName);
        afp.FieldPosition += font.nameGroupLength != 0 ? font.nameGroupLength : kNameGroup;
    }
    while (font.outlineNameFormat != kCmap && afp.FieldPosition < afp.FieldEnd) {
        const std::int32_t length = afp.ByteAt(afp.FieldPosition);
        if (length < kShortestName) break;
        AnalyzeSequenceGroup(afp, ++number, length, DecodeOutlineName);
        afp.FieldPosition += length;
    }
    afp.List().PublishSequence(Key::FontArrayType, Key::FontArrayValue);
}

}  // namespace folioscope
