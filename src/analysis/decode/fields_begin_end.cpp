#include "analysis/decode/fields_begin_end.h"

#include "analysis/decode/clsAFPFunctions.h"
#include "base/text.h"

namespace folioscope {

namespace {

constexpr std::int32_t kNamePage = 500;
constexpr std::int32_t kNameLength = 8;
constexpr std::int32_t kShortestNamed = 9;  // bytes of a field that has anything behind its introducer

void ReadName(clsAFPFunctions& afp)
{
    const Element name = afp.ReadTextCP(Key::Name, kNamePage, afp.FieldPosition, kNameLength);
    afp.AddElement(name);
    afp.ResourceName = TrimBlanks(afp.List().TextOf(name));
    afp.FieldPosition += kNameLength;
}

// A field with data but no room for a name shows the name of the named field before it.
void ShowResourceName(clsAFPFunctions& afp)
{
    if (afp.FieldLength < kShortestNamed) return;
    const auto from = afp.List().Pool().size();
    afp.List().Pool() += afp.ResourceName;
    afp.AddElement(afp.List().PooledText(Key::ShowResName, from));
}

}  // namespace

void DecodeNamed(clsAFPFunctions& afp)
{
    DecodeNameOnly(afp);
    ShowResourceName(afp);
}

void DecodeNameOnly(clsAFPFunctions& afp)
{
    if (afp.FieldPosition <= afp.FieldEnd) ReadName(afp);
}

void DecodeEPS(clsAFPFunctions& afp)
{
    if (afp.FieldPosition < afp.FieldEnd) ReadName(afp);
    ShowResourceName(afp);
}

void DecodeBRG(clsAFPFunctions& afp)
{
    afp.InResourceGroup = true;
    DecodeNamed(afp);
}

void DecodeERG(clsAFPFunctions& afp)
{
    afp.InResourceGroup = false;
    DecodeNamed(afp);
}

// No Operation: the content is text by custom, so it is shown as text and, in the hex pane, as bytes.
void DecodeNOP(clsAFPFunctions& afp)
{
    const std::int32_t length = afp.FieldEnd - afp.FieldPosition + 1;
    Element content = afp.ReadTextCP(Key::NOPContent, afp.Pages.lngInputCPNOP, afp.FieldPosition, length);
    afp.AddElement(content);
    content.key = Key::ShowResName;
    afp.AddElement(content);
    afp.AddElement(afp.ReadHex(Key::HexCode, afp.FieldPosition, length));
}

}  // namespace folioscope
