// The triplets that name things: code pages, qualified names, objects, attributes.

#include <algorithm>
#include <string>

#include "analysis/decode/clsAFPFunctions.h"
#include "analysis/decode/object_ids.h"
#include "analysis/decode/triplet_procedures.h"
#include "base/numbers.h"
#include "base/text.h"

namespace folioscope {

namespace {

constexpr std::int32_t kPage437 = 437, kPage500 = 500, kUtf16BE = 1200;
constexpr std::uint32_t kBRS = 0xD3A8CE, kTLE = 0xD3A090;
constexpr std::uint8_t kAttributeName = 0x0B;

// The page in which a name is read.
enum class Page : std::uint8_t { Current, CurrentOrUnicode, TLE, P437, P500 };

// How a name is summed up: not at all, as it is, or as the tree shows it.
enum class NameSummary : std::uint8_t { None, AsRead, Shown };

// Names of this type and format x'00': how they are read, and what FQNFormat says of them.
struct NameRow {
    std::uint8_t type;
    Page page;
    std::uint8_t format;
    bool hexToo;
    NameSummary summary = NameSummary::Shown;
};

struct NameTypeRow {
    std::uint8_t type;
    std::string_view text;
};

struct ResourceTypeRow {
    std::uint8_t type;
    std::string_view summary;
};

// clang-format off
constexpr NameRow kNames[] = {
    {0x0B, Page::TLE,              1, false},
    {0x01, Page::CurrentOrUnicode, 1, false},
    {0xCA, Page::CurrentOrUnicode, 1, false},
    {0xDE, Page::CurrentOrUnicode, 1, false},
    {0xCE, Page::P500,             3, false, NameSummary::None},
    {0x41, Page::P437,             3, false, NameSummary::None},
    {0x85, Page::Current,          1, true},
    {0x86, Page::Current,          1, true},
    {0x8D, Page::Current,          1, true},
    {0x8E, Page::Current,          1, true},
    {0xBE, Page::Current,          1, true},
};
constexpr NameRow kOtherName = {0, Page::P500, 1, true, NameSummary::AsRead};

constexpr NameTypeRow kNameTypes[] = {
    {0x01, "x'01' (Replace First GID Name)"},
    {0x07, "x'07' (Font Family Name)"},
    {0x08, "x'08' (Font Typeface Name)"},
    {0x09, "x'09' (MO:DCA Resource Hierarchy Reference)"},
    {0x0A, "x'0A' (Begin Resource Group Reference)"},
    {0x0B, "x'0B' (Attribute GID)"},
    {0x0C, "x'0C' (Process Element GID)"},
    {0x0D, "x'0D' (Begin Page Group Reference)"},
    {0x11, "x'11' (Media Type Reference)"},
    {0x12, "x'12' (Media Destination Reference)"},
    {0x41, "x'41' (Color Management Resource Reference)"},
    {0x48, "x'48' (Metadata Object (MO) Reference)"},
    {0x6E, "x'6E' (Data Object Font Base Font Identifier)"},
    {0x7E, "x'7E' (Data Object Font Linked Font Identifier)"},
    {0x83, "x'83' (Begin Document Reference)"},
    {0x84, "x'84' (Resource Object Reference)"},
    {0x85, "x'85' (Code Page Name Reference)"},
    {0x86, "x'86' (Font Character Set Name Reference)"},
    {0x87, "x'87' (Begin Page Reference)"},
    {0x8D, "x'8D' (Begin Medium Map Reference)"},
    {0x8E, "x'8E' (Coded Font Name Reference)"},
    {0x98, "x'98' (Begin Document Index Reference)"},
    {0xB0, "x'B0' (Begin Overlay Reference)"},
    {0xBE, "x'BE' (Data Object Internal Resource Reference)"},
    {0xCA, "x'CA' (Index Element GID)"},
    {0xCE, "x'CE' (Other Object Data Reference)"},
    {0xDE, "x'DE' (Data Object External Resource Reference)"},
};

constexpr ResourceTypeRow kResourceTypes[] = {
    {0x03, "Resource: Graphics (GOCA) object"},
    {0x05, "Resource: Bar Code (BCOCA) object"},
    {0x06, "Resource: Image (IOCA) object"},
    {0x40, "Resource: Charset"},
    {0x41, "Resource: Codepage"},
    {0x42, "Resource: CodedFont"},
    {0x92, "Resource: Object"},
    {0x9B, "Resource: Presentation Text (PTOCA) object"},
    {0xFB, "Resource: Segment"},
    {0xFC, "Resource: Overlay"},
    {0xFD, "Resource: Pagedef"},
    {0xFE, "Resource: Formdef"},
};

constexpr Row kFunctionSet[] = {
    b(Key::OCAObjType, 2),
    b(Key::ArchitectureLevel, 3),
    u(Key::DCAFunctionSet, 4, 2),
    u(Key::OCAFunctionSet, 6, 2),
};

struct InterchangeSetRow {
    std::int32_t id;
    std::string_view summary;
};
constexpr InterchangeSetRow kInterchangeSets[] = {
    {0x0001, "MO:DCA AFP/A"},
    {0x0900, "MO:DCA IS/1"},
    {0x0C00, "MO:DCA IS/2"},
    {0x0D00, "MO:DCA IS/3"},
    {0x0980, "MO:DCA IS/1 + Function Set(s)"},
    {0x0D80, "MO:DCA IS/3 + Function Set(s)"},
    {0x0D01, "MO:DCA AFP/A + IS/3"},
};
// clang-format on

void AddText(clsAFPFunctions& afp, Key key, std::string_view one, std::string_view other = {})
{
    const auto from = afp.List().Pool().size();
    // The value can stand in the pool itself, which may move.
    const std::string value = std::string(one) + std::string(other);
    afp.List().Pool() += value;
    afp.AddElement(afp.List().PooledText(key, from));
}

// A name for a summary: "@" stands for a blank.
std::string ShownName(std::string_view text)
{
    std::string name(text);
    std::replace(name.begin(), name.end(), '@', ' ');
    return std::string(TrimBlanks(name));
}

std::int32_t PageOf(const clsAFPFunctions& afp, Page page)
{
    switch (page) {
    case Page::Current: break;
    case Page::CurrentOrUnicode:
        if (afp.Triplets.colorManagement || afp.Triplets.metadata) return kUtf16BE;
        break;
    case Page::TLE: return afp.Pages.lngInputCPTLE;
    case Page::P437: return kPage437;
    case Page::P500: return kPage500;
    }
    return afp.CurrentCodePage();
}

void KeepName(clsAFPFunctions& afp, std::uint8_t type, const std::string& name)
{
    switch (type) {
    case 0x0B: afp.Triplets.attributeName = name; break;
    case 0x85: afp.Triplets.codePage = name; break;
    case 0x86: afp.Triplets.characterSet = name; break;
    case 0x8D: afp.Triplets.resource = name; break;
    case 0x8E: afp.Triplets.codedFont = name; break;
    default: break;
    }
}

void AddCharacterName(clsAFPFunctions& afp, std::uint8_t type, std::int32_t at, std::int32_t length)
{
    const auto found =
        std::find_if(std::begin(kNames), std::end(kNames), [&](const NameRow& row) { return row.type == type; });
    const NameRow& row = found == std::end(kNames) ? kOtherName : *found;
    const std::int32_t page = PageOf(afp, row.page);
    afp.AddElement(Element::Int16(Key::FQNFormat, page == kUtf16BE ? 2 : row.format));
    const Element content = afp.ReadTextCP(Key::Content, page, at, length);
    afp.AddElement(content);
    if (row.hexToo) afp.AddElement(afp.ReadHex(Key::HexCode, at, length));
    const std::string name = ShownName(afp.List().TextOf(content));
    KeepName(afp, type, name);
    if (row.summary == NameSummary::None) return;
    AddText(afp, Key::ShowTripletContent,
            "FQN: ", row.summary == NameSummary::Shown ? std::string_view(name) : afp.List().TextOf(content));
}

void AddObjectIdName(clsAFPFunctions& afp, std::int32_t at, std::int32_t length)
{
    afp.AddElement(Element::Int16(Key::FQNFormat, 4));
    afp.AddElement(afp.ReadHex(Key::HexCode, at, length));
    const auto from = afp.List().Pool().size();
    LookupOID(afp, at);
    const Element type = afp.List().PooledText(Key::OIDType, from);
    afp.AddElement(type);
    AddText(afp, Key::ShowTripletContent, "OID: ", afp.List().TextOf(type).substr(2));
}

void AddUrlName(clsAFPFunctions& afp, std::int32_t at, std::int32_t length)
{
    afp.AddElement(Element::Int16(Key::FQNFormat, 5));
    const bool link = afp.Triplets.linkTarget;
    const Element url = afp.ReadTextCP(link ? Key::Hyperlink : Key::Content, kPage437, at, length);
    afp.AddElement(url);
    if (!link) afp.AddElement(afp.ReadHex(Key::HexCode, at, length));
    AddText(afp, Key::ShowTripletContent, "URL: ", afp.List().TextOf(url));
}

}  // namespace

void DecodeCodePageId(clsAFPFunctions& afp, TripletPlace place)
{
    const std::int32_t page = afp.ReadUnsigned(place.start + 4, 2);
    std::string number;
    AppendNumber(number, std::int64_t{page});
    AddText(afp, Key::ShowTripletContent, "Codepage: ", number);
    if (afp.Pages.CPAutoDetect) afp.FollowCodePage(page);
}

void DecodeQualifiedName(clsAFPFunctions& afp, TripletPlace place)
{
    const std::uint8_t type = afp.ByteAt(place.start + 2);
    for (const auto& [known, text] : kNameTypes)
        if (known == type) afp.AddElement(Element::Literal(Key::FQNType, text));
    const std::int32_t at = place.start + 4, length = place.length - 4;
    switch (afp.ByteAt(place.start + 3)) {
    case 0x00: return AddCharacterName(afp, type, at, length);
    case 0x10: return AddObjectIdName(afp, at, length);
    case 0x20: return AddUrlName(afp, at, length);
    default: return;
    }
}

bool IsShortObjectClassification(std::uint8_t id, TripletPlace place) { return id == 0x10 && place.length <= 3; }

void DecodeObjectClassification(clsAFPFunctions& afp, TripletPlace place)
{
    const std::int32_t start = place.start;
    afp.AddElement(Element::Byte(Key::ObjectClass, afp.ByteAt(start + 3)));
    int bit = 0;
    for (const Key key : {Key::ObjectBOC, Key::ObjectOEG, Key::ObjectOCD}) {
        const int code = afp.ReadBit(start + 6, bit) ? 1 : afp.ReadBit(start + 6, bit + 1) ? 2 : 3;
        afp.AddElement(Element::Int16(key, code));
        bit += 2;
    }
    afp.AddElement(afp.ReadHex(Key::ObjectID, start + 8, 16));
    const auto from = afp.List().Pool().size();
    LookupOID(afp, start + 8);
    const Element type = afp.List().PooledText(Key::OIDType, from);
    afp.AddElement(type);
    const std::string_view name = afp.List().TextOf(type);
    const bool colorManagement = afp.Triplets.colorManagement = name == kColorManagementName;
    afp.Triplets.metadata = name == kMetadataName;

    const std::int32_t page = afp.CurrentCodePage(), levelPage = colorManagement ? kPage437 : page;
    if (place.length > 24) afp.AddElement(afp.ReadTextCP(Key::ObjectTypeName, page, start + 24, 32));
    if (place.length > 56) afp.AddElement(afp.ReadTextCP(Key::ObjectVersion, levelPage, start + 56, 8));
    if (place.length > 64) afp.AddElement(afp.ReadTextCP(Key::ObjectCompany, levelPage, start + 64, 32));
}

void SummarizeInterchangeSet(clsAFPFunctions& afp, TripletPlace place)
{
    for (const auto& [id, summary] : kInterchangeSets)
        if (id == afp.ReadUnsigned(place.start + 3, 2))
            afp.AddElement(Element::Literal(Key::ShowTripletContent, summary));
}

void SummarizeFontSize(clsAFPFunctions& afp, TripletPlace place)
{
    constexpr double kPerPoint = 20;  // 1440ths of an inch
    std::string points;
    AppendFormatted(points, afp.ReadUnsigned(place.start + 4, 2) / kPerPoint, Picture::One, NumberStyle());
    AddText(afp, Key::ShowTripletContent, "Font size: ", points);
}

void DecodeObjectType(clsAFPFunctions& afp, TripletPlace place)
{
    if (afp.Identifier() != kBRS) {
        afp.AddElement(Element::Literal(Key::TripletName, "x'21' (Object Function Set Specification)"));
        ReadRows(afp, kFunctionSet, place.start, place.length);
        return afp.AddElement(Element::Literal(Key::ShowTripletContent, "Resource type"));
    }
    afp.AddElement(Element::Literal(Key::TripletName, "x'21' (Resource Object Type)"));
    const std::uint8_t type = afp.Triplets.resourceType = afp.ByteAt(place.start + 2);
    afp.AddElement(Element::Byte(Key::ResObjType, type));
    for (const auto& [known, summary] : kResourceTypes)
        if (known == type) afp.AddElement(Element::Literal(Key::ShowTripletContent, summary));
}

void SummarizeOrientation(clsAFPFunctions& afp, TripletPlace place)
{
    constexpr std::string_view kOrientations[] = {"Orientation: 0°", "Orientation: 270°", "Orientation: 180°",
                                                  "Orientation: 90°"};
    const std::uint8_t orientation = afp.ByteAt(place.start + 2);
    if (orientation < std::size(kOrientations))
        afp.AddElement(Element::Literal(Key::ShowTripletContent, kOrientations[orientation]));
}

void DecodeAttributeValue(clsAFPFunctions& afp, TripletPlace place)
{
    const Element content = afp.ReadTextCP(Key::Content, afp.Pages.lngInputCPTLE, place.start + 4, place.length - 4);
    afp.AddElement(content);
    AddText(afp, Key::ShowTripletContent, "Value: ", afp.List().TextOf(content));
    if (afp.Identifier() != kTLE) return;
    afp.Triplets.attributeValue = afp.List().TextOf(content);
    afp.Triplets.hasValue = true;
}

}  // namespace folioscope
