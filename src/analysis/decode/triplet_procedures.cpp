// The triplets with values that are put together, chosen between, or counted.

#include "analysis/decode/triplet_procedures.h"

#include <string>

#include "analysis/decode/clsAFPFunctions.h"
#include "analysis/decode/colors.h"
#include "analysis/decode/fields_barcode.h"
#include "base/numbers.h"
#include "base/text.h"

namespace folioscope {

namespace {

constexpr std::int32_t kPage500 = 500;

// clang-format off
constexpr Row kChecksum[] = {                      // x'63' Type 1
    b(Key::Format, 2),
    u(Key::Checksum, 3, 2),
};
constexpr Row kFontManagement[] = {                // x'63' Type 2
    b(Key::Format, 2),
    hex(Key::APSRMARKEC, 3, 4),
};
constexpr Row kBarCodeSymbol[] = {                 // x'69', up to the flags
    u(Key::ID, 2, 2),
    bit(Key::HRIPresent, 4, 0),
};
constexpr Row kBarCodeSymbolRest[] = {             // behind HRIPos
    bit(Key::Asterisk, 4, 3),
    bit(Key::SuppressSymbol, 4, 5),
    bit(Key::SuppressBlanks, 4, 6),
    b(Key::BCType, 7),
    b(Key::BCMod, 8),
    b(Key::FontLID, 9),
    u(Key::Color, 10, 2),
    b(Key::BCModWidth, 12),
    u(Key::BCElemHeight, 13, 2),
    b(Key::BCHeightMult, 15),
};
constexpr Row kGraphicsDescriptorRest[] = {        // x'7E', all or none
    b(Key::ForegroundMix, 20),
    b(Key::LineType, 20),                          // sic, again at 20
    u(Key::LineWidth, 23, 2),
    b(Key::PatternSID, 25),
    b(Key::PatternSymbol, 26),
    u(Key::MajorX, 27, 2),
    u(Key::MajorY, 29, 2),
    u(Key::MinorX, 31, 2),
    u(Key::MinorY, 33, 2),
};
constexpr Row kFinishing[] = {                     // x'85'
    b(Key::FinishingOperation, 2),
    b(Key::ReferenceEdge, 5),
    b(Key::FinishingCount, 6),
    u(Key::FinishingAxis, 7, 2),
};
constexpr Row kFontFlags[] = {                     // x'8B'
    bit(Key::MICRFont, 2, 0),
    bit(Key::MustEmbedFont, 2, 1),
};
constexpr Row kFontSizes[] = {
    read(Read::Inches, Key::FontHeight, 4, 2),
    read(Read::Inches, Key::FontWidth, 6, 2),
    angle(Key::CharRotation, 8),
    u(Key::EncodingEnv, 10, 2),
    u(Key::EncodingID, 12, 2),
};
constexpr Row kLocaleCodes[] = {                   // x'8C'
    inside(read(Read::Text1252, Key::LocLangCode, 4, 8)),
    inside(bit(Key::LocScriptFlag, 3, 4)),
    inside(read(Read::Text1252, Key::LocScriptCode, 12, 8)),
};
constexpr Row kLocaleRegion[] = {
    inside(read(Read::Text1252, Key::LocRegionCode, 20, 8)),
    inside(read(Read::Text1252, Key::LocVariantCode, 36, 0)),
};
// clang-format on

constexpr Key kMixing[] = {Key::MixBonB, Key::MixBonF, Key::MixFonB, Key::MixFonF};  // of x'70' and on

// The four low-order bytes of an offset or a count. The long form has four high-order bytes behind them, which are not
// shown, and in it all 32 bits count.
struct OffsetLayout {
    std::int32_t at, shortest;
};
constexpr OffsetLayout kAlone = {2, 6}, kBehindType = {4, 8};

// In the short form all bits set can mean that the object is outside of the document; `outside` says so.
void AddOffset(clsAFPFunctions& afp, TripletPlace place, OffsetLayout layout, Key key, Key outside = Key::NoKey)
{
    const std::int32_t p = place.start + layout.at;
    if (place.length > layout.shortest)
        return afp.AddElement(Element::Float64(key, 65536.0 * afp.ReadUnsigned(p, 2) + afp.ReadUnsigned(p + 2, 2)));
    if (outside != Key::NoKey && afp.ReadSigned(p, 4) == -1) return afp.AddElement(Element::Boolean(outside, true));
    afp.AddElement(Element::Int32(key, afp.ReadUnsigned(p, 4)));
}

void AddTyped(clsAFPFunctions& afp, TripletPlace place, Key key)
{
    afp.AddElement(Element::Byte(Key::ObjectType, afp.ByteAt(place.start + 2)));
    AddOffset(afp, place, kBehindType, key);
}

// "1999/365 16:35:21.56" of 14 EBCDIC characters: century, year, day, hour, minute, second, hundredths.
void AddTimeStamp(clsAFPFunctions& afp, std::int32_t at)
{
    struct Piece {
        std::int32_t offset, length;
        std::string_view before;
    };
    constexpr Piece kPieces[] = {{1, 2, ""}, {3, 3, "/"}, {6, 2, " "}, {8, 2, ":"}, {10, 2, ":"}, {12, 2, "."}};
    std::string stamp;
    const auto digits = [&](std::int32_t offset, std::int32_t length) {
        return std::string(afp.List().TextOf(afp.ReadTextCP(Key::TimeStamp, kPage500, at + offset, length)));
    };
    const std::string century = digits(0, 1);
    stamp = century == " " ? "19" : "2" + century;
    for (const auto& [offset, length, before] : kPieces) {
        stamp += before;
        stamp += digits(offset, length);
    }
    const auto from = afp.List().Pool().size();
    afp.List().Pool() += stamp;
    afp.AddElement(afp.List().PooledText(Key::TimeStamp, from));
}

void AppendTwoDigits(std::string& out, std::int32_t value)
{
    if (value < 10) out += '0';
    AppendNumber(out, std::int64_t{value});
}

}  // namespace

void AddUnknownTriplet(clsAFPFunctions& afp, std::uint8_t id)
{
    std::string& pool = afp.List().Pool();
    const auto from = pool.size();
    pool += "x'";
    AppendHex(pool, id, 2);
    pool += '\'';
    Element text = afp.List().PooledText(Key::BeginTriplet, from);
    afp.AddElement(text);
    afp.AddElement(Element::Boolean(Key::TripletUnknown, true));
    const auto digits = pool.size();
    AppendHex(pool, id, 2);
    afp.AddElement(afp.List().PooledText(Key::HexCode, digits));
}

void AddInvalidTriplet(clsAFPFunctions& afp)
{
    afp.AddElement(Element::Literal(Key::BeginTriplet, "x'00'"));
    afp.AddElement(Element::Boolean(Key::TripletInvalid, true));
    afp.AddElement(Element::Boolean(Key::InvalidBytes, true));
}

bool NamesItself(std::uint8_t id) { return id == 0x21 || id == 0x63; }

void DecodeByteOffset(clsAFPFunctions& afp, TripletPlace place)
{
    AddOffset(afp, place, kAlone, Key::IndexedObjOffset, Key::IndexedObjOutside);
}

void DecodeFieldOffset(clsAFPFunctions& afp, TripletPlace place)
{
    AddOffset(afp, place, kAlone, Key::IndexedSFOffset, Key::IndexedSFOutside);
}

void DecodeByteExtent(clsAFPFunctions& afp, TripletPlace place) { AddOffset(afp, place, kAlone, Key::ObjectBytes); }

void DecodeFieldExtent(clsAFPFunctions& afp, TripletPlace place) { AddOffset(afp, place, kAlone, Key::ObjectSF); }

void DecodeObjectOffset(clsAFPFunctions& afp, TripletPlace place) { AddTyped(afp, place, Key::ObjectOffset); }

void DecodeObjectCount(clsAFPFunctions& afp, TripletPlace place) { AddTyped(afp, place, Key::SubordinateObjects); }

void DecodeColorSpecification(clsAFPFunctions& afp, TripletPlace place)
{
    // Offsets of the triplet: 3 the colour space, 8 to 11 the bit counts, 12 and on the values, each one byte.
    DecodeColor(afp, {place.start + 3, place.start + 8, place.start + 12, ColorSource::Triplet}, AddTo::Record);
}

void DecodeDateAndTime(clsAFPFunctions& afp, TripletPlace place)
{
    afp.AddElement(Element::Byte(Key::TSType, afp.ByteAt(place.start + 2)));
    AddTimeStamp(afp, place.start + 3);
}

void DecodeResourceManagement(clsAFPFunctions& afp, TripletPlace place)
{
    constexpr std::int64_t kPrivate = 17, kPublic = 18;
    const std::uint8_t format = afp.ByteAt(place.start + 2);
    afp.AddElement(Element::Literal(Key::TripletName, format == 2
                                                          ? "x'63' Type 2 (Font Resource Management)"
                                                          : "x'63' Type 1 (Object Checksum/CRC Resource Management)"));
    if (format == 1) {
        ReadRows(afp, kChecksum, place.start, place.length);
        afp.AddElement(Element::Int16(Key::Scope, afp.ReadBit(place.start + 5, 0) ? kPrivate : kPublic));
        afp.AddElement(Element::Boolean(Key::SaveResource, afp.ReadBit(place.start + 5, 1)));
    } else if (format == 2) {
        ReadRows(afp, kFontManagement, place.start, place.length);
        AddTimeStamp(afp, place.start + 7);
    } else {
        afp.AddElement(Element::Byte(Key::Format, format));
    }
}

void DecodeBarCodeSymbol(clsAFPFunctions& afp, TripletPlace place)
{
    constexpr std::int32_t kWithDescriptor = 18;
    if (place.length < kWithDescriptor)
        return afp.AddElement(Element::Int32(Key::UseBCSymbol, afp.ReadUnsigned(place.start + 2, 2)));
    ReadRows(afp, kBarCodeSymbol, place.start, place.length);
    AddHRIPosition(afp, place.start + 4);
    ReadRows(afp, kBarCodeSymbolRest, place.start, place.length);
    AddWideToNarrow(afp, place.start + 16);
}

void DecodeMixingRules(clsAFPFunctions& afp, TripletPlace place)
{
    constexpr std::uint8_t kFirst = 0x70;
    for (std::int32_t at = 2; at < place.length; at += 2) {
        const std::size_t keyword = static_cast<std::size_t>(afp.ByteAt(place.start + at)) - kFirst;
        if (keyword < std::size(kMixing))
            afp.AddElement(Element::Byte(kMixing[keyword], afp.ByteAt(place.start + at + 1)));
    }
}

// "1999/12/31 16:35:21 Z UTC", or " +01:00" and " -01:00" in its end.
void DecodeUniversalTime(clsAFPFunctions& afp, TripletPlace place)
{
    const auto byteAt = [&](std::int32_t offset) { return std::int32_t{afp.ByteAt(place.start + offset)}; };
    std::string& pool = afp.List().Pool();
    const auto from = pool.size();
    AppendNumber(pool, std::int64_t{afp.ReadUnsigned(place.start + 3, 2)});
    std::int32_t offset = 5;
    for (const char before : {'/', '/', ' ', ':', ':'}) {
        pool += before;
        AppendTwoDigits(pool, byteAt(offset++));
    }
    if (const std::int32_t zone = byteAt(10); zone == 0) {
        pool += " Z UTC";
    } else {
        pool += zone == 1 ? " +" : " -";
        AppendTwoDigits(pool, byteAt(11));
        pool += ':';
        AppendTwoDigits(pool, byteAt(12));
    }
    afp.AddElement(afp.List().PooledText(Key::TimeStamp, from));
}

void DecodeGraphicsDescriptor(clsAFPFunctions& afp, TripletPlace place)
{
    constexpr std::int32_t kWithAttributes = 35;
    afp.AddElement(
        Element::Float64(Key::RadiusFullArc, afp.ByteAt(place.start + 16) + afp.ByteAt(place.start + 17) / 256.0));
    afp.AddElement(Element::Int32(Key::DescriptorID, afp.ReadUnsigned(place.start + 18, 2)));
    if (place.length >= kWithAttributes) ReadRows(afp, kGraphicsDescriptorRest, place.start, place.length);
}

void DecodeParameterValue(clsAFPFunctions& afp, TripletPlace place)
{
    const std::uint8_t type = afp.ByteAt(place.start + 3);
    afp.AddElement(Element::Byte(Key::ParmType, type));
    const std::int32_t at = place.start + 4, length = place.length - 4;
    if (length < 1) return;
    switch (type) {
    case 1: return afp.AddElement(Element::Int32(Key::Content, afp.ReadUnsigned(at, length)));
    case 2: return afp.AddElement(Element::Int32(Key::Content, afp.ReadSigned(at, length)));
    case 5:
    case 6: return afp.AddElement(afp.ReadText(Key::Content, at, length));
    default: return afp.AddElement(afp.ReadHex(Key::HexCode, at, length));
    }
}

// As many positions as are counted, and only those inside of the triplet.
void DecodeFinishingOperation(clsAFPFunctions& afp, TripletPlace place)
{
    ReadRows(afp, kFinishing, place.start, place.length);
    const std::int32_t count = afp.ByteAt(place.start + 6);
    for (std::int32_t n = 1; n <= count && 8 + 2 * n < place.length; ++n)
        afp.AddElement(Element::Int32(Key::FinishingPosition, afp.ReadUnsigned(place.start + 7 + 2 * n, 2)));
}

void DecodeFontDescriptor(clsAFPFunctions& afp, TripletPlace place)
{
    constexpr std::uint8_t kTrueType = 0x20;
    constexpr std::uint8_t kTrueTypeWord = 3;
    ReadRows(afp, kFontFlags, place.start, place.length);
    const std::uint8_t technology = afp.ByteAt(place.start + 3);
    afp.AddElement(Element::Byte(Key::FontArchitecture, technology == kTrueType ? kTrueTypeWord : technology));
    ReadRows(afp, kFontSizes, place.start, place.length);
}

void DecodeLocaleSelector(clsAFPFunctions& afp, TripletPlace place)
{
    const std::uint8_t flags = afp.ByteAt(place.start + 3);
    afp.AddElement(Element::Byte(Key::LocLangFlag, static_cast<std::uint8_t>((flags & 0x70) / 16)));
    ReadRows(afp, kLocaleCodes, place.start, place.length);
    if (place.length > 3) afp.AddElement(Element::Byte(Key::LocRegionFlag, flags & 0x07));
    ReadRows(afp, kLocaleRegion, place.start, place.length);
}

}  // namespace folioscope
