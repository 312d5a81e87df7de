#include "colour/cmr_decode.h"

#include <algorithm>
#include <string>

#include "base/numbers.h"
#include "colour/cmr_tables.h"
#include "colour/icc_decode.h"
#include "colour/object_walk.h"

namespace folioscope {

namespace {

constexpr std::int64_t kHeaderSize = 164, kEntrySize = 12;

// clang-format off
constexpr ObjectRow kHeader[] = {                      // CMOCA, CMR header
    {Key::CMRSize,        ObjectRead::Unsigned, 0,   4},
    {Key::CMRAlias,       ObjectRead::Wide,     10,  16},
    {Key::CMRType,        ObjectRead::Hex,      26,  4},
    {Key::CMRVersion,     ObjectRead::Wide,     30,  14},
    {Key::CMRManufac,     ObjectRead::Wide,     44,  10},
    {Key::CMRDevType,     ObjectRead::Wide,     54,  12},
    {Key::CMRDevModel,    ObjectRead::Wide,     66,  6},
    {Key::CMRMBrightness, ObjectRead::Wide,     72,  6},
    {Key::CMRMColor,      ObjectRead::Hex,      78,  6},
    {Key::CMRMFinish,     ObjectRead::Hex,      84,  4},
    {Key::CMRMWeight,     ObjectRead::Wide,     88,  6},
    {Key::CMRProp1,       ObjectRead::Wide,     94,  10},
    {Key::CMRProp2,       ObjectRead::Wide,     104, 12},
    {Key::CMRProp3,       ObjectRead::Wide,     116, 8},
    {Key::CMRProp4,       ObjectRead::Wide,     124, 8},
    {Key::CMRProp5,       ObjectRead::Wide,     132, 8},
};
constexpr ObjectRow kLut[] = {                         // CMOCA, link LUT tags; the table itself stays unread
    {Key::LUTNoCompICS,     ObjectRead::Byte, 0},
    {Key::LUTNoCompOCS,     ObjectRead::Byte, 1},
    {Key::LUTGridPoints,    ObjectRead::Hex,  2,  15},
    {Key::LUTPrecision,     ObjectRead::Byte, 17},
    {Key::LUTMediaRelative, ObjectRead::Bit,  18, 0},
    {Key::LUTSaturation,    ObjectRead::Bit,  18, 1},
    {Key::LUTICCAbsolute,   ObjectRead::Bit,  18, 2},
};
constexpr ObjectRow kColor[] = {                       // CMOCA, colour palettes, what all entries begin with
    {Key::CPGIndexedColorVal, ObjectRead::Unsigned, 0, 2},
    {Key::CPGCIELabValL,      ObjectRead::Unsigned, 2, 2},
    {Key::CPGCIELabVala,      ObjectRead::Unsigned, 4, 2},
    {Key::CPGCIELabValb,      ObjectRead::Unsigned, 6, 2},
};
// clang-format on

constexpr std::int64_t kLutHeadSize = 20, kColorSize = 8;

// One entry of the tag table.
struct TagEntry {
    std::uint16_t id;
    std::uint8_t fieldType;
    std::int32_t count;
    std::int64_t value;  // where its value stands in the object
};

class CmrWalk {
public:
    explicit CmrWalk(ObjectWalk& object) : object_(object) {}
    void AddTags();

private:
    TagEntry EntryAt(std::int64_t at);
    void AddTag(const TagEntry& tag, const CmrTag* row);
    void AddByFieldType(const TagEntry& tag);
    void AddNumbers(const TagEntry& tag, int size);
    void AddTimeStamp(std::int64_t at);
    void AddLut(const TagEntry& tag);
    void AddPalette(const TagEntry& tag);
    void AddColorantNames(const TagEntry& tag);

    ObjectWalk& object_;
    std::int64_t valueSize_ = 0;  // bytes; a field type that isn't known leaves that of the tag before
    std::uint8_t colorants_ = 0;  // of a palette of named colorants
};

const CmrTag* FindTag(std::uint16_t id)
{
    const auto* row = std::ranges::lower_bound(kCmrTags, id, {}, &CmrTag::id);
    return row != std::end(kCmrTags) && row->id == id ? row : nullptr;
}

TagEntry CmrWalk::EntryAt(std::int64_t at)
{
    constexpr std::int64_t kInEntry = 4;  // bytes of a value that the entry holds itself
    TagEntry tag;
    tag.id = static_cast<std::uint16_t>(object_.Unsigned(at, 2));
    tag.fieldType = object_.ByteAt(at + 3);
    tag.count = object_.Unsigned(at + 4, 4);
    for (const auto& [type, bits, name] : kCmrFieldTypes)
        if (type == tag.fieldType) valueSize_ = (std::int64_t{tag.count} * bits + 7) / 8;
    tag.value = valueSize_ > kInEntry ? kHeaderSize + object_.Unsigned(at + 8, 4) : at + 8;
    return tag;
}

void CmrWalk::AddTags()
{
    std::int16_t number = 0;
    for (std::int64_t at = kHeaderSize; at < object_.Size() && !object_.Full(); at += kEntrySize) {
        const TagEntry tag = EntryAt(at);
        const CmrTag* const row = FindTag(tag.id);
        object_.Add(Element::Int16(Key::BeginRepetition, ++number));
        object_.AddHex(Key::CMRTag, at, 2);
        AddTag(tag, row);
        object_.Add(Element::Int16(Key::EndRepetition, number));
        if (row != nullptr && row->data == TagData::End) return;
    }
}

void CmrWalk::AddTag(const TagEntry& tag, const CmrTag* row)
{
    const Key key = row != nullptr ? row->key : Key::NoKey;
    switch (row != nullptr ? row->data : TagData::ByFieldType) {
    case TagData::ByFieldType: return AddByFieldType(tag);
    case TagData::One: return object_.Add(Element::Byte(key, object_.ByteAt(tag.value)));
    case TagData::Each:
        for (std::int64_t i = 0; i < tag.count && !object_.Full(); ++i)
            object_.Add(Element::Byte(key, object_.ByteAt(tag.value + i)));
        return;
    case TagData::Bulk:
        object_.Add(Element::Byte(Key::CMRFieldType, tag.fieldType));
        return object_.Add(Element::Int32(Key::CMRCount, tag.count));
    case TagData::TimeStamp: return AddTimeStamp(tag.value);
    case TagData::Profile: return AddIccProfile(object_, tag.value);
    case TagData::Lut: return AddLut(tag);
    case TagData::ColorantCount:
        colorants_ = object_.ByteAt(tag.value);
        return object_.Add(Element::Byte(Key::CMRValueNum, colorants_));
    case TagData::Palette: return AddPalette(tag);
    case TagData::ColorantNames: return AddColorantNames(tag);
    case TagData::End: return;
    }
}

void CmrWalk::AddByFieldType(const TagEntry& tag)
{
    switch (tag.fieldType) {
    case 1: return AddNumbers(tag, 1);
    case 2: return AddNumbers(tag, 2);
    case 4: return AddNumbers(tag, 4);
    case 5:
    case 8: return object_.AddHex(Key::CMRValueHex, tag.value, tag.count);
    case 6: return object_.AddCleaned(Key::CMRValueStr, kPage437, tag.value, tag.count);
    case 7: return object_.AddCleaned(Key::CMRValueStr, kUtf16BEPage, tag.value, tag.count);  // sic, count bytes
    case 9:
        for (std::int32_t bit = 0; bit < tag.count && !object_.Full(); ++bit)
            object_.Add(Element::Boolean(Key::CMRValueNum, object_.Bit(tag.value, bit)));
        return;
    default: return;
    }
}

// sic, the count is taken for a number of bytes.
void CmrWalk::AddNumbers(const TagEntry& tag, int size)
{
    for (std::int64_t i = 0; i < tag.count && !object_.Full(); i += size)
        object_.Add(Element::Int32(Key::CMRValueNum, object_.Unsigned(tag.value + i, size)));
}

// The first two characters of a 0 and the number: 5 is 05, and 12 is 01, sic.
void AppendTwoDigits(std::string& out, std::uint8_t value)
{
    std::string digits = "0";
    AppendNumber(digits, std::int64_t{value});
    out += digits.substr(0, 2);
}

// CMOCA, date and time stamp: year, then a byte for each part.
void CmrWalk::AddTimeStamp(std::int64_t at)
{
    constexpr std::string_view kBehind[] = {"/", " ", ":", ":", ""};  // month, day, hour, minute, second
    constexpr std::uint8_t kUtc = 0, kEast = 1;
    std::string text;
    AppendNumber(text, std::int64_t{object_.Unsigned(at, 2)});
    text += '/';
    std::int64_t next = at + 2;
    for (const auto behind : kBehind) {
        AppendTwoDigits(text, object_.ByteAt(next++));
        text += behind;
    }
    const std::uint8_t zone = object_.ByteAt(next++);
    if (zone == kUtc) {
        text += " Z UTC";
    } else {
        text += zone == kEast ? " +" : " -";
        AppendTwoDigits(text, object_.ByteAt(next++));
        text += ':';
        AppendTwoDigits(text, object_.ByteAt(next));
    }
    object_.AddText(Key::TimeStamp, text);
}

void CmrWalk::AddLut(const TagEntry& tag)
{
    object_.AddRows(kLut, tag.value);
    object_.Add(Element::Int32(Key::LUTData, tag.count - kLutHeadSize));
}

void CmrWalk::AddPalette(const TagEntry& tag)
{
    const CmrPalette& palette = *std::ranges::find(kCmrPalettes, tag.id, &CmrPalette::tag);
    const auto named = std::ranges::find(palette.colorants, Key::NoKey) - palette.colorants.begin();
    const std::int64_t colorants = palette.counted ? colorants_ : named, size = kColorSize + colorants;
    const bool several = tag.count - 1 > size;
    for (std::int64_t offset = 0; offset < tag.count && !object_.Full(); offset += size) {
        const std::int64_t entry = offset / size;
        const auto number = static_cast<double>(entry + 1);
        if (several) object_.Add(Element::Float64(Key::BeginRepetition, number));
        object_.AddRows(kColor, tag.value + offset);
        for (std::int64_t i = 0; i < std::min<std::int64_t>(colorants, named); ++i)
            object_.Add(Element::Byte(palette.colorants[static_cast<std::size_t>(i)],
                                      object_.ByteAt(tag.value + offset + kColorSize + i)));
        if (several) object_.Add(Element::Float64(Key::EndRepetition, number));
    }
}

// Names behind a byte each that gives the length and counts itself.
void CmrWalk::AddColorantNames(const TagEntry& tag)
{
    std::int16_t number = 0;
    for (std::int64_t offset = 0; offset < tag.count && !object_.Full();) {
        const std::int64_t at = tag.value + offset;
        const std::uint8_t length = object_.ByteAt(at);
        const bool several = tag.count - 1 > length;
        ++number;
        if (several) object_.Add(Element::Int16(Key::BeginRepetition, number));
        object_.AddCleaned(Key::CMRValueStr, kUtf16BEPage, at + 1, length - 1);
        if (several) object_.Add(Element::Int16(Key::EndRepetition, number));
        if (length < 2) return;
        offset += length;
    }
}

}  // namespace

void DecodeColorResource(clsAFPFunctions& afp)
{
    afp.List().ClearSequenceElements();
    ObjectWalk object(afp, AddTo::Sequence);
    object.AddRows(kHeader, 0);
    CmrWalk(object).AddTags();
    afp.List().PublishSequence(Key::CMRDataType, Key::CMRDataValue);
}

}  // namespace folioscope
