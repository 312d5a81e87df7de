#include "analysis/decode/fields_object_data.h"

#include "analysis/decode/clsAFPFunctions.h"
#include "analysis/decode/colors.h"
#include "analysis/decode/groups.h"

namespace folioscope {

namespace {

std::int32_t DataLength(const clsAFPFunctions& afp) { return afp.FieldEnd - afp.FieldPosition + 1; }

void AddDataAsHex(clsAFPFunctions& afp)
{
    afp.AddElement(afp.ReadHex(Key::HexCode, afp.FieldPosition, DataLength(afp)));
}

void AddCountedData(clsAFPFunctions& afp, Key count)
{
    afp.AddElement(Element::Int32(count, DataLength(afp)));
    AddDataAsHex(afp);
}

// Color Attribute Table, a group that lists colours by their index.
void DecodeColorList(clsAFPFunctions& afp, std::int32_t start, std::int32_t length)
{
    constexpr std::int32_t kBitsAt = 8, kEntriesAt = 12;
    afp.AddElement(Element::Byte(Key::ColorSpace, afp.ByteAt(start + 4)));
    AddRGBBits(afp, start + kBitsAt);
    const std::int32_t indexSize = afp.ByteAt(start + 3) == 2 ? 2 : 3;
    for (std::int32_t at = start + kEntriesAt, number = 1; at < start + length; at += indexSize + 3, ++number) {
        afp.AddElement(Element::Int16(Key::BeginColor, number));
        afp.AddElement(Element::Int32(Key::ColorIndex, afp.ReadUnsigned(at, indexSize)));
        const bool whole = AddRGBValues(afp, start + kBitsAt, at + indexSize);
        afp.AddElement(Element::Int16(Key::EndColor, number));
        if (!whole) return;
    }
}

void DecodeColorGenerator(clsAFPFunctions& afp, std::int32_t start)
{
    constexpr std::int32_t kBitsAt = 10;
    afp.AddElement(Element::Boolean(Key::ColorMixing, afp.ReadBit(start + 2, 0)));
    afp.AddElement(Element::Byte(Key::ColorSpace, afp.ByteAt(start + 4)));
    afp.AddElement(Element::Int32(Key::ColorCount, afp.ReadUnsigned(start + 6, 2)));
    afp.AddElement(Element::Int32(Key::StartIndex, afp.ReadUnsigned(start + 8, 2)));
    AddRGBBits(afp, start + kBitsAt);
}

}  // namespace

// Object Container Data. What is decoded as one object is gathered; the rest shows in the hex pane only.
void DecodeOCD(clsAFPFunctions& afp)
{
    const std::int32_t length = DataLength(afp);
    afp.AddElement(Element::Int32(Key::ObjectData, length));
    if (!afp.Triplets.colorManagement && !afp.Triplets.metadata) return AddDataAsHex(afp);
    afp.GatherObject(afp.FieldPosition, length);
}

void DecodeIRD(clsAFPFunctions& afp) { AddCountedData(afp, Key::ImageData); }

void DecodeFNG(clsAFPFunctions& afp) { AddCountedData(afp, Key::FontData); }

// Fixed Data Text
void DecodeFDX(clsAFPFunctions& afp)
{
    afp.AddElement(afp.ReadText(Key::FixedDataText, afp.FieldPosition, DataLength(afp)));
    AddDataAsHex(afp);
}

// Color Attribute Table
void DecodeCAT(clsAFPFunctions& afp)
{
    constexpr std::int32_t kGroupsAt = 3;
    afp.AddElement(Element::Boolean(Key::ResetColorTable, afp.ReadBit(afp.FieldPosition, 1)));
    afp.AddElement(Element::Byte(Key::LCTID, afp.ByteAt(afp.FieldPosition + 2)));
    afp.FieldPosition += kGroupsAt;
    AnalyzeByteLengthGroups(afp, [](clsAFPFunctions& inner, std::int32_t start, std::int32_t length) {
        constexpr std::uint8_t kList = 1, kGenerator = 2;
        const std::uint8_t type = inner.ByteAt(start + 1);
        inner.AddElement(Element::Byte(Key::Type, type));
        if (type == kList) DecodeColorList(inner, start, length);
        if (type == kGenerator) DecodeColorGenerator(inner, start);
    });
}

}  // namespace folioscope
