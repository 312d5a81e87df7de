#include "analysis/decode/fields_begin_end.h"

#include <string>
#include <vector>

#include "analysis/decode/clsAFPFunctions.h"
#include "analysis/decode/dispatch.h"
#include "analysis/decode/groups.h"
#include "analysis/decode/resources.h"

namespace folioscope {

namespace {

constexpr std::int32_t kNameLength = 8;
constexpr std::int32_t kReserved = 2;
constexpr std::int32_t kShortestNamed = 9;  // bytes of a field that has anything behind its introducer

void ReadNameIfGiven(clsAFPFunctions& afp, std::int32_t pass = kNameLength)
{
    if (afp.FieldPosition > afp.FieldEnd) return;
    ReadName(afp);
    afp.FieldPosition += pass;
}

// A field with data but no room for a name shows the name of the named field before it.
void ShowResourceName(clsAFPFunctions& afp)
{
    if (afp.FieldLength >= kShortestNamed) ShowName(afp, afp.Resources.name);
}

void AddMap(clsAFPFunctions& afp, ResourceKind kind)
{
    const std::string& name = afp.Resources.name;
    AddInternalResource(afp, static_cast<int>(kind), afp.Resources.formMap + " (" + name + ")", name);
}

}  // namespace

void DecodeNamed(clsAFPFunctions& afp)
{
    DecodeNameAndTriplets(afp);
    ShowResourceName(afp);
}

void DecodeBeginData(clsAFPFunctions& afp)
{
    afp.CarryOverBytes = 0;
    DecodeNamed(afp);
}

void DecodeNamedReserved(clsAFPFunctions& afp)
{
    ReadNameIfGiven(afp, kNameLength + kReserved);
    AnalyzeTriplets(afp, afp.FieldEnd);
    ShowResourceName(afp);
}

void DecodeNameOnly(clsAFPFunctions& afp)
{
    ReadNameIfGiven(afp);
    ShowResourceName(afp);
}

void DecodeNameAndTriplets(clsAFPFunctions& afp)
{
    ReadNameIfGiven(afp);
    AnalyzeTriplets(afp, afp.FieldEnd);
}

void DecodeNameAlone(clsAFPFunctions& afp) { ReadNameIfGiven(afp); }

void DecodeEPS(clsAFPFunctions& afp)
{
    if (afp.FieldPosition < afp.FieldEnd) ReadNameIfGiven(afp);
    ShowResourceName(afp);
}

void DecodeBRG(clsAFPFunctions& afp)
{
    afp.Resources.inResourceGroup = true;
    DecodeNamed(afp);
}

void DecodeERG(clsAFPFunctions& afp)
{
    afp.Resources.inResourceGroup = false;
    DecodeNamed(afp);
}

// The resource goes by its name with all its blanks.
void DecodeBRS(clsAFPFunctions& afp)
{
    afp.Triplets.resourceType = 0;
    DecodeNamedReserved(afp);
    afp.Resources.formMap = afp.Resources.name;
    const Element* given = afp.List().Find(Key::Name);
    const std::string name(given != nullptr ? afp.List().TextOf(*given) : std::string_view(afp.Resources.name));
    const int type = afp.Triplets.resourceType;
    AddInternalResource(afp, type, name, type == 0 ? std::string_view(name) : WithoutKind(name));
}

void DecodeBNG(clsAFPFunctions& afp)
{
    DecodeNamed(afp);
    afp.Resources.groupName = afp.Resources.name;
    if (!afp.Resources.groupName.empty())
        AddExternalResource(afp, ResourceKind::MediumMapCall, afp.Resources.groupName, afp.Resources.name);
}

void DecodeBDM(clsAFPFunctions& afp)
{
    ReadNameIfGiven(afp);
    if (afp.FieldPosition <= afp.FieldEnd)
        afp.AddElement(Element::Byte(Key::LDFormat, afp.ByteAt(afp.FieldPosition++)));
    AnalyzeTriplets(afp, afp.FieldEnd);
    ShowResourceName(afp);
    AddMap(afp, ResourceKind::Map);
}

void DecodeBMM(clsAFPFunctions& afp)
{
    DecodeNamed(afp);
    AddMap(afp, ResourceKind::MediumMap);
}

// The container's data are gathered from its OCD fields if they are decoded further.
void DecodeBOC(clsAFPFunctions& afp)
{
    afp.Triplets.colorManagement = afp.Triplets.metadata = false;
    DecodeBeginData(afp);
    if (afp.Triplets.colorManagement || afp.Triplets.metadata) afp.ObjectBuffer.clear();
}

// The object is whole: it is decoded and not kept any longer.
void DecodeEOC(clsAFPFunctions& afp)
{
    DecodeNamed(afp);
    if (afp.Triplets.colorManagement) afp.DecodeThrough(Port::ColourResource);
    if (afp.Triplets.metadata) afp.DecodeThrough(Port::Metadata);
    std::vector<std::uint8_t>().swap(afp.ObjectBuffer);
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

// Tag Logical Element: its caption is the attribute's name and value.
void DecodeTLE(clsAFPFunctions& afp)
{
    TripletState& state = afp.Triplets;
    state.attributeName.clear();
    state.attributeValue.clear();
    state.hasValue = false;
    AnalyzeTriplets(afp, afp.FieldEnd);
    std::string& pool = afp.List().Pool();
    const auto from = pool.size();
    pool += state.attributeName;
    if (state.hasValue) pool += " -> ";
    pool += state.attributeValue;
    afp.AddElement(afp.List().PooledText(Key::ShowResName, from));
}

// Link Logical Element: groups of triplets for the attributes, the source and the target of the link.
void DecodeLLE(clsAFPFunctions& afp)
{
    constexpr std::int32_t kPassed = 2, kTripletsAt = 3;
    constexpr std::uint8_t kNavigation = 1, kTarget = 3;
    const std::uint8_t link = afp.ByteAt(afp.FieldPosition);
    afp.AddElement(Element::Byte(Key::LinkType, link));
    afp.FieldPosition += kPassed;
    afp.Triplets.linkTarget = link == kNavigation;
    AnalyzeTripletGroups(afp, [](clsAFPFunctions& inner, std::int32_t start, std::int32_t length) {
        const std::uint8_t group = inner.ByteAt(start + 2);
        inner.AddElement(Element::Byte(Key::GroupType, group));
        const bool navigates = inner.Triplets.linkTarget;
        inner.Triplets.linkTarget = navigates && group == kTarget;
        AnalyzeGroupTriplets(inner, start, kTripletsAt, length);
        inner.Triplets.linkTarget = navigates;
    });
    afp.Triplets.linkTarget = false;
}

}  // namespace folioscope
