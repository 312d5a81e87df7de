#include "colour/metadata_decode.h"

#include "colour/object_walk.h"

namespace folioscope {

namespace {

constexpr std::int32_t kPage1252 = 1252;

// clang-format off
constexpr ObjectRow kLengths[] = {                     // MOCA, metadata object header
    {Key::MOLen,       ObjectRead::Unsigned, 0, 4},
    {Key::MOHeaderLen, ObjectRead::Unsigned, 4, 2},
};
// clang-format on

}  // namespace

// The header's length counts from its own field on, so that the content begins 4 bytes behind it.
void DecodeMetadata(clsAFPFunctions& afp)
{
    constexpr std::int64_t kLengthSize = 4, kNameLengthAt = 48, kNameAt = 50;
    constexpr std::int32_t kLongestWithoutName = 46;
    ObjectWalk object(afp, AddTo::Record);
    object.AddRows(kLengths, 0);
    object.AddText(Key::MOType, kUtf16BEPage, 6, 6);
    object.AddCleaned(Key::MOFormat, kUtf16BEPage, 12, 8);
    const Element compression = object.Cleaned(Key::MOCompression, kUtf16BEPage, 20, 20);
    const bool plain = object.TextOf(compression) == "NONE";
    object.Add(compression);

    const std::int64_t length = object.Unsigned(0, 4), header = object.Unsigned(4, 2);
    if (header > kLongestWithoutName)
        object.AddText(Key::MOName, kUtf16BEPage, kNameAt, object.Unsigned(kNameLengthAt, 2));

    if (header + kLengthSize + 1 >= object.Size() - 1) return;  // no content
    const std::int64_t content = header + kLengthSize;
    if (plain)
        object.AddText(Key::MOData, kPage1252, content, length - content);
    else
        object.AddHex(Key::MOHexCode, content, length - content);
}

}  // namespace folioscope
