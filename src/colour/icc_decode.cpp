#include "colour/icc_decode.h"

#include <string>

#include "base/numbers.h"
#include "colour/object_walk.h"

namespace folioscope {

namespace {

// sic, the fixed digits of the profile connection space, whatever the file has.
void AddIlluminant(ObjectWalk& object, Key key, std::int64_t)
{
    object.Add(Element::Literal(key, "X= 0.9642; Y = 1.0000; Z=0.8249"));
}

// A byte and two halves of a byte.
void AddVersion(ObjectWalk& object, Key key, std::int64_t at)
{
    const std::int64_t version = object.Unsigned(at, 2);
    std::string text;
    AppendNumber(text, version >> 8);
    text += '.';
    AppendNumber(text, version >> 4 & 0x0F);
    text += '.';
    AppendNumber(text, version & 0x0F);
    object.AddText(key, text);
}

// dateTimeNumber: six numbers of two bytes. All but the year show their last two digits.
void AddDateTime(ObjectWalk& object, Key key, std::int64_t at)
{
    constexpr std::string_view kBehind[] = {"/", " ", ":", ":", " UTC"};  // month, day, hour, minute, second
    std::string text;
    AppendNumber(text, std::int64_t{object.Unsigned(at, 2)});
    text += '/';
    for (const auto behind : kBehind) {
        std::string digits = "0";
        AppendNumber(digits, std::int64_t{object.Unsigned(at += 2, 2)});
        text += digits.substr(digits.size() - 2);
        text += behind;
    }
    object.AddText(key, text);
}

// Four pairs of opposites, numbered from 1.
void AddMediaAttributes(ObjectWalk& object, Key key, std::int64_t at)
{
    for (int bit = 0; bit < 4; ++bit) object.Add(Element::Int16(key, 2 * bit + (object.Bit(at, bit) ? 2 : 1)));
}

// clang-format off
constexpr ObjectRow kHeader[] = {                      // ICC.1, profile header
    {Key::ICCHProfileSize,  ObjectRead::Unsigned, 0,  4},
    {Key::ICCHPrefCMMType,  ObjectRead::Narrow,   4,  4},
    {Key::ICCHVersion,      ObjectRead::Own,      8,  2, AddVersion},
    {Key::ICCHDevClass,     ObjectRead::Narrow,   12, 4},
    {Key::ICCHCSD,          ObjectRead::Narrow,   16, 4},
    {Key::ICCHPCS,          ObjectRead::Narrow,   20, 4},
    {Key::ICCHDateTime,     ObjectRead::Own,      24, 12, AddDateTime},
    {Key::ICCHFileSig,      ObjectRead::Narrow,   36, 4},
    {Key::ICCHPlatform,     ObjectRead::Narrow,   40, 4},
    {Key::ICCHEmbedProfile, ObjectRead::Bit,      44, 0},   // sic, of the first of four bytes
    {Key::ICCHNoIndepUse,   ObjectRead::Bit,      44, 1},
    {Key::ICCHDevManu,      ObjectRead::Narrow,   48, 4},
    {Key::ICCHDevModel,     ObjectRead::Narrow,   52, 4},
    {Key::ICCHMediaAttr,    ObjectRead::Own,      56, 1, AddMediaAttributes},  // sic, of the first of eight bytes
    {Key::ICCHRendIntent,   ObjectRead::Unsigned, 64, 4},
    {Key::ICCHIlluField,    ObjectRead::Own,      68, 12, AddIlluminant},
    {Key::ICCHCreator,      ObjectRead::Narrow,   80, 4},
    {Key::ICCHMD5ID,        ObjectRead::Hex,      84, 16},
};
// clang-format on

constexpr std::int64_t kCountAt = 128, kTableAt = 132, kEntrySize = 12;

// Where the data of a tag stand in the object, and their size as the tag table has it, in bytes.
struct TagPlace {
    std::int64_t at, size;
};

// textDescriptionType and crdInfoType: a length, which counts the final zero, and the text.
void AddCountedText(ObjectWalk& object, TagPlace data)
{
    object.AddText(Key::CMRValueStr, kPage437, data.at + 12, std::int64_t{object.Unsigned(data.at + 8, 4)} - 1);
}

// dataType: a flag says whether the rest is text or bytes.
void AddData(ObjectWalk& object, TagPlace data)
{
    constexpr std::int64_t kHead = 12;
    const std::int32_t flag = object.Unsigned(data.at + 8, 4);
    if (flag == 0) object.AddText(Key::CMRValueStr, kPage437, data.at + kHead, data.size - kHead);
    if (flag == 1) object.AddHex(Key::CMRValueHex, data.at + kHead, data.size - kHead);
}

// textType and signatureType: the text to the final zero.
void AddPlainText(ObjectWalk& object, TagPlace data)
{
    object.AddText(Key::CMRValueStr, kPage437, data.at + 8, data.size - 9);
}

// multiLocalizedUnicodeType: the first of its texts, whose length and offset its record has.
void AddFirstLocalText(ObjectWalk& object, TagPlace data)
{
    const std::int64_t length = object.Unsigned(data.at + 20, 4), offset = object.Unsigned(data.at + 24, 4);
    object.AddText(Key::CMRValueStr, kUtf16BEPage, data.at + offset, length);
}

struct TypeRow {
    std::string_view signature;
    void (*add)(ObjectWalk&, TagPlace);
};

// clang-format off
constexpr TypeRow kTypes[] = {                         // ICC.1, tag types that hold texts
    {"crdi", AddCountedText},
    {"desc", AddCountedText},
    {"data", AddData},
    {"sig",  AddPlainText},
    {"text", AddPlainText},
    {"mluc", AddFirstLocalText},
};
// clang-format on

void AddTag(ObjectWalk& object, std::int64_t profile, std::int64_t entry)
{
    const TagPlace data = {profile + object.Unsigned(entry + 4, 4), object.Unsigned(entry + 8, 4)};
    object.AddCleaned(Key::ICCTagSig, kPage437, entry, 4);
    const Element type = object.Cleaned(Key::ICCTagType, kPage437, data.at, 4);
    object.Add(type);
    for (const auto& [signature, add] : kTypes)
        if (object.TextOf(type) == signature) return add(object, data);
}

}  // namespace

void AddIccProfile(ObjectWalk& object, std::int64_t profile)
{
    constexpr std::string_view kHeaderName = "(Header)";
    object.Add(Element::Literal(Key::BeginRepetition, kHeaderName));
    object.AddRows(kHeader, profile);
    object.Add(Element::Literal(Key::EndRepetition, kHeaderName));

    const std::int32_t count = object.Unsigned(profile + kCountAt, 4);
    std::int64_t entry = profile + kTableAt;
    for (std::int32_t n = 0; n < count && entry < object.Size() && !object.Full(); ++n, entry += kEntrySize) {
        std::string name = "ICC-Tag ";
        AppendNumber(name, std::int64_t{n} + 1);
        object.AddText(Key::BeginRepetition, name);
        AddTag(object, profile, entry);
        object.AddText(Key::EndRepetition, name);
    }
}

}  // namespace folioscope
