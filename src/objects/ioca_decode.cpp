#include "objects/ioca_decode.h"

#include "analysis/decode/colors.h"

namespace folioscope {

namespace {

struct FieldRowOfImage {
    std::uint8_t id;  // of an extended field: its second byte
    std::string_view name;
    ItemRows rows = {};  // offsets count from the byte behind the length
    ItemProcedure procedure = nullptr;
};

constexpr std::uint8_t kExtended = 0xFE;
constexpr std::int32_t kShortHead = 2, kExtendedHead = 4;  // bytes of identifier and length

std::int32_t Parameters(const Item& item) { return item.at + kShortHead; }
std::int32_t ExtendedParameters(const Item& item) { return item.at + kExtendedHead; }

void AddByte(clsAFPFunctions& afp, Key key, std::int32_t position)
{
    afp.AddSequenceElement(Element::Byte(key, afp.ByteAt(position)));
}

void AddUnsigned(clsAFPFunctions& afp, Key key, std::int32_t position)
{
    afp.AddSequenceElement(Element::Int32(key, afp.ReadUnsigned(position, 4)));
}

void DecodeBeginSegment(clsAFPFunctions& afp, const Item& item)
{
    if (item.length > 0)
        AddUnsigned(afp, Key::BeginSegment, Parameters(item));
    else
        afp.AddSequenceElement(Element::Int16(Key::BeginSegment, 0));
}

void DecodeEncoding(clsAFPFunctions& afp, const Item& item)
{
    constexpr std::int32_t kWithBitorder = 3;
    if (item.length == kWithBitorder) AddByte(afp, Key::Bitorder, Parameters(item) + 2);
}

void DecodeBands(clsAFPFunctions& afp, const Item& item)
{
    const std::int32_t bands = afp.ByteAt(Parameters(item));
    for (std::int32_t i = 1; i <= bands; ++i) {
        afp.AddSequenceElement(Element::Int32(Key::BandNo, i));
        AddByte(afp, Key::BitCount, Parameters(item) + i);
    }
}

// Bit counts of the components, in the order in which they stand.
struct SpaceBits {
    std::uint8_t space;
    Key bits[4];
    bool skips;  // a length that ends in front of the third still tells the fourth
};
// clang-format off
constexpr SpaceBits kSpaces[] = {
    {0x01, {Key::RedBits,     Key::GreenBits,   Key::BlueBits},                      false},
    {0x02, {Key::IntenseBits, Key::ChromCrBits, Key::ChromCbBits},                   false},
    {0x04, {Key::CyanBits,    Key::MagentaBits, Key::YellowBits, Key::BlackBits},    true},
    {0x12, {Key::IntenseBits, Key::ChromCbBits, Key::ChromCrBits},                   false},
};
// clang-format on

void DecodeStructure(clsAFPFunctions& afp, const Item& item)
{
    constexpr std::int32_t kBitsAt = 5;
    const std::uint8_t space = afp.ByteAt(Parameters(item) + 1);
    for (const SpaceBits& row : kSpaces) {
        if (row.space != space) continue;
        for (std::int32_t at = kBitsAt; const Key bits : row.bits) {
            const bool given = at == kBitsAt || item.length > at;
            if (bits == Key::NoKey || (!given && !row.skips)) return;
            if (given) AddBits(afp, bits, Parameters(item) + at, kToSequence);
            ++at;
        }
    }
}

// Offsets and sizes of tiles are there as far as the length goes.
void DecodeTiling(clsAFPFunctions& afp, const Item& item)
{
    struct Optional {
        Key key;
        std::int32_t at;
    };
    constexpr Optional kOptional[] = {
        {Key::OffsetX, 9}, {Key::OffsetY, 13}, {Key::ImageWidth, 17}, {Key::ImageHeight, 21}};
    for (const auto& [key, at] : kOptional)
        if (item.length > at) AddUnsigned(afp, key, Parameters(item) + at);
}

void DecodeAlgorithm(clsAFPFunctions& afp, const Item& item)
{
    constexpr std::uint8_t kRecording = 0x00, kCompression = 0x10;
    const std::int32_t p = Parameters(item);
    const std::uint8_t type = afp.ByteAt(p);
    afp.AddSequenceElement(Element::Byte(Key::AlgorithmType, type));
    if (type == kRecording) AddByte(afp, Key::IDEOrder, p + 2);
    if (type == kCompression) AddByte(afp, Key::Compression, p + 6);
}

void DecodeTileSize(clsAFPFunctions& afp, const Item& item)
{
    constexpr std::int32_t kResolutionAt = 8;
    if (item.length > kResolutionAt) AddByte(afp, Key::RelRes, Parameters(item) + kResolutionAt);
}

void DecodeTileColor(clsAFPFunctions& afp, const Item& item)
{
    const std::int32_t p = Parameters(item);
    DecodeColor(afp, {p, p + 4, p + 8, ColorSource::Tile}, kToSequence);
}

void DecodeImageData(clsAFPFunctions& afp, const Item& item)
{
    afp.AddSequenceElement(Element::Int32(Key::ImageData, item.length));
    afp.AddSequenceElement(afp.ReadHex(Key::HexCode, ExtendedParameters(item), item.length));
}

void DecodeBandData(clsAFPFunctions& afp, const Item& item)
{
    constexpr std::int32_t kBandHead = 3;
    const std::int32_t length = item.length - kBandHead;
    afp.AddSequenceElement(Element::Int32(Key::BandImageData, length));
    afp.AddSequenceElement(afp.ReadHex(Key::HexCode, ExtendedParameters(item) + kBandHead, length));
}

// The table of tiles. The position of a tile's data is read behind its entry, so that each shows its successor's.
void DecodeTileTable(clsAFPFunctions& afp, const Item& item)
{
    constexpr std::int32_t kEntry = 26, kFirstAt = 6;
    std::int32_t number = 0;
    for (std::int32_t q = item.at + kFirstAt; q <= item.at + item.length;) {
        afp.AddSequenceElement(Element::Int32(Key::TileNo, ++number));
        AddUnsigned(afp, Key::OffsetX, q);
        AddUnsigned(afp, Key::OffsetY, q + 4);
        AddUnsigned(afp, Key::CellSizeX, q + 8);
        AddUnsigned(afp, Key::CellSizeY, q + 12);
        AddByte(afp, Key::RelRes, q + 16);
        AddByte(afp, Key::Compression, q + 17);
        q += kEntry;
        afp.AddSequenceElement(afp.ReadHex(Key::DataPos, q + 18, 8));  // sic
    }
    if (number == 0) afp.AddSequenceElement(Element::Int32(Key::TileNo, 0));
}

constexpr Row mark(Key key) { return read(Read::True, key, 0); }

// clang-format off
constexpr FieldRowOfImage kShort[] = {
    {0x70, "Begin Segment",           {}, DecodeBeginSegment},
    {0x71, "End Segment",             {mark(Key::EndSegment)}},
    {0x8C, "Begin Tile",              {mark(Key::BeginTile)}},
    {0x8D, "End Tile",                {mark(Key::EndTile)}},
    {0x8E, "Begin Transparency Mask", {mark(Key::BeginTransparency)}},
    {0x8F, "End Transparency Mask",   {mark(Key::EndTransparency)}},
    {0x91, "Begin Image Content",     {mark(Key::BeginImgContent)}},
    {0x93, "End Image Content",       {mark(Key::EndImgContent)}},
    {0x94, "Image Size Parameter",    {b(Key::UnitBase, 0), u(Key::BasePixelX, 1, 2), u(Key::BasePixelY, 3, 2),
                                       u(Key::ObjectSizeX, 5, 2), u(Key::ObjectSizeY, 7, 2)}},
    {0x95, "Image Encoding Parameter", {b(Key::Compression, 0), b(Key::Recording, 1)}, DecodeEncoding},
    {0x96, "IDE Size Parameter",      {b(Key::IDEBits, 0)}},
    {0x97, "Image LUT-ID Parameter",  {b(Key::LUTID, 0)}},
    {0x98, "Band Image Parameter",    {}, DecodeBands},
    {0x9B, "IDE Structure Parameter", {bit(Key::ASFlag, 0, 0), bit(Key::GrayCoding, 0, 1), b(Key::ColorSpace, 1)},
                                      DecodeStructure},
    {0x9D, "Tiling Method Parameter", {u(Key::CellSizeX, 0, 2), u(Key::CellSizeY, 2, 2), u(Key::TileCountX, 4, 2),
                                       u(Key::TileCountX, 6, 2),       // sic, so that no line tells the counts
                                       bit(Key::TileOrder, 8, 0)}, DecodeTiling},
    {0x9F, "External Algorithm Specification Parameter", {}, DecodeAlgorithm},
    {0xB5, "Tile Position",           {u(Key::OffsetX, 0, 4), u(Key::OffsetY, 4, 4)}},
    {0xB6, "Tile Size",               {u(Key::CellSizeX, 0, 4), u(Key::CellSizeY, 4, 4)}, DecodeTileSize},
    {0xB7, "Tile Set Color",          {}, DecodeTileColor},
    {0xF4, "Set Extended Bilevel Image Color", {}, DecodeItemColor},
    {0xF6, "Set Bilevel Image Color", {u(Key::ForegroundColor, 2, 2)}},
    {0xF7, "IOCA Function Set Identification", {b(Key::FunctionSet, 1)}},
};
constexpr FieldRowOfImage kExtendedFields[] = {        // behind x'FE'
    {0x92, "Image Data",              {}, DecodeImageData},
    {0x9C, "Band Image Data",         {b(Key::BandNo, 0)}, DecodeBandData},
    {0xB8, "Include Tile",            {u(Key::TileID, 0, 4)}},
    {0xBB, "Tile TOC",                {}, DecodeTileTable},
    {0xCE, "Image Subsampling Parameter"},
};
// clang-format on

constexpr auto kShortOf = IndexByCode(kShort, [](const FieldRowOfImage& row) { return row.id; });
constexpr auto kExtendedOf = IndexByCode(kExtendedFields, [](const FieldRowOfImage& row) { return row.id; });

void DecodeField(clsAFPFunctions& afp, const FieldRowOfImage& field, const Item& item, std::int32_t head)
{
    afp.AddSequenceElement(Element::Literal(Key::BeginSDF, field.name));
    ReadRows(afp, field.rows.All(), item.at + head, item.length, kToSequence);
    if (field.procedure != nullptr) field.procedure(afp, item);
}

void AnalyzeShort(clsAFPFunctions& afp, std::int32_t at, std::int32_t end)
{
    const Item item = {at, afp.ByteAt(at + 1), end};
    const std::uint8_t id = afp.ByteAt(at), row = kShortOf[id];
    afp.FieldPosition = at + kShortHead + item.length;
    if (row != 0) return DecodeField(afp, kShort[row - 1], item, kShortHead);
    AddCode(afp, Key::SDFUnknown, id);
    afp.FieldPosition = end + 1;  // nobody knows where the next one begins
}

void AnalyzeExtended(clsAFPFunctions& afp, std::int32_t at, std::int32_t end)
{
    const Item item = {at, afp.ReadUnsigned(at + 2, 2), end};
    const std::uint8_t row = kExtendedOf[afp.ByteAt(at + 1)];
    afp.FieldPosition = at + kExtendedHead + item.length;
    if (row != 0) DecodeField(afp, kExtendedFields[row - 1], item, kExtendedHead);
}

}  // namespace

void AnalyzeFields(clsAFPFunctions& afp)
{
    const std::int32_t end = afp.FieldEnd;
    BeginItems(afp);
    while (afp.FieldPosition < end) {
        const std::int32_t at = afp.FieldPosition;
        if (afp.ByteAt(at) == kExtended)
            AnalyzeExtended(afp, at, end);
        else
            AnalyzeShort(afp, at, end);
    }
    EndItems(afp, Key::SDFElementType, Key::SDFElementValue);
    if (RunsOver(afp, end)) CarryOver(afp, end);
}

}  // namespace folioscope
