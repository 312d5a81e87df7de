#include "analysis/decode/fields_descriptors.h"

#include "analysis/decode/clsAFPFunctions.h"
#include "analysis/decode/groups.h"
#include "analysis/decode/resources.h"
#include "base/text.h"

namespace folioscope {

namespace {

// clang-format off
constexpr Row kUnits[] = {                             // MDD, CDD
    b(Key::UnitBaseX,      0),
    b(Key::UnitBaseY,      1),
    u(Key::PageBaseUnitsX, 2, 2),
    u(Key::PageBaseUnitsY, 4, 2),
};
constexpr Row kSizes[] = {
    u(Key::PageSizeX, 6, 3),
    u(Key::PageSizeY, 9, 3),
};
constexpr Row kOBP[] = {                               // Object Area Position, a group
    s(Key::OriginX,        1, 3),
    s(Key::OriginY,        4, 3),
    u(Key::RotationX,      7, 2),
    u(Key::RotationY,      9, 2),
    s(Key::ContentOriginX, 12, 3),
    s(Key::ContentOriginY, 15, 3),
};
constexpr Row kIOB[] = {                               // Include Object, behind its name
    b(Key::ObjectType,     9),
    s(Key::OriginX,        10, 3),
    s(Key::OriginY,        13, 3),
    u(Key::RotationX,      16, 2),
    u(Key::RotationY,      18, 2),
    s(Key::ContentOriginX, 20, 3),
    s(Key::ContentOriginY, 23, 3),
    b(Key::RefCSys,        26),
};
constexpr Row kIPO[] = {                               // Include Page Overlay
    s(Key::OriginX, 8, 3),
    s(Key::OriginY, 11, 3),
    inside(u(Key::RotationX, 14, 2)),
};
constexpr Row kIPS[] = {                               // Include Page Segment
    s(Key::OriginX, 8, 3),
    s(Key::OriginY, 11, 3),
};
constexpr Row kMCF1[] = {                              // Map Coded Font, older format, a group
    u(Key::ID, 0, 1),
    b(Key::SectionID, 2),
    name(Key::FONName, 4),
    name(Key::CDPName, 12),
    name(Key::CHSName, 20),
};
constexpr Row kMSU[] = {                               // Map Suppression, a group
    name(Key::Name, 0),
    u(Key::ID, 9, 1),
};
constexpr Row kPPO[] = {                               // Preprocess Presentation Object, a group
    b(Key::ObjectType, 2),
    bit(Key::PPOOrient0, 5, 0),
    bit(Key::PPOOrient90, 5, 1),
    bit(Key::PPOOrient180, 5, 2),
    bit(Key::PPOOrient270, 5, 3),
    bit(Key::PPOPreprocess, 5, 4),
};
// clang-format on

constexpr std::int32_t kDescribed = 12;  // bytes of units and sizes

// An included or invoked resource: name, rows, triplets from `tripletsAt` on, the name in the tree.
void DecodeIncluded(clsAFPFunctions& afp, ResourceKind kind, std::span<const Row> rows, std::int32_t tripletsAt)
{
    const std::int32_t start = afp.FieldPosition;
    ReadName(afp);
    ReadRows(afp, rows, start, afp.FieldEnd - start + 1);
    afp.FieldPosition = start + tripletsAt;
    AnalyzeTriplets(afp, afp.FieldEnd);
    AddExternalResource(afp, kind, afp.Resources.name);
    ShowName(afp, afp.Resources.name);
}

void AddOffset(clsAFPFunctions& afp, Key key, std::int32_t at)
{
    constexpr std::int32_t kNotGiven = 0xFFFFFF;
    const std::int32_t offset = afp.ReadUnsigned(at, 3);
    afp.AddElement(offset == kNotGiven ? Element::Literal(key, "Default") : Element::Int32(key, offset));
}

void ClearNames(TripletState& state)
{
    state.resource.clear();
    state.codedFont.clear();
    state.characterSet.clear();
    state.codePage.clear();
}

// A mapped name counts from its third character on: the first two tell its kind.
void AddMapped(clsAFPFunctions& afp, ResourceKind kind, const std::string& mapped)
{
    AddExternalResource(afp, kind, WithoutKind(mapped));
}

}  // namespace

void DecodeMDD(clsAFPFunctions& afp)
{
    const std::int32_t start = afp.FieldPosition;
    ReadRows(afp, kUnits, start, kDescribed);
    if (start + 6 < afp.FieldEnd) {
        ReadRows(afp, kSizes, start, kDescribed);
        afp.AddElement(Element::Boolean(Key::PassCSP, afp.ReadBit(start + kDescribed, 0)));
    }
    afp.FieldPosition = start + kDescribed + 1;
    AnalyzeTriplets(afp, afp.FieldEnd);
}

void DecodeCDD(clsAFPFunctions& afp)
{
    const std::int32_t start = afp.FieldPosition;
    if (start + kDescribed - 1 <= afp.FieldEnd) {
        ReadRows(afp, kUnits, start, kDescribed);
        ReadRows(afp, kSizes, start, kDescribed);
    }
    afp.FieldPosition = start + kDescribed;
    AnalyzeTriplets(afp, afp.FieldEnd);
}

// Object Area Position: the group begins at its own length byte, which is one more than the size that counts.
void DecodeOBP(clsAFPFunctions& afp)
{
    constexpr std::int32_t kGroup = 22;
    afp.AddElement(Element::Int32(Key::ID, afp.ByteAt(afp.FieldPosition++)));
    AnalyzeGroups(afp, kGroup, [](clsAFPFunctions& inner, std::int32_t start, std::int32_t length) {
        constexpr std::uint8_t kTurned = 0x2D;
        ReadRows(inner, kOBP, start, length);
        inner.AddElement(Element::Int32(Key::ContentRotationY, inner.ByteAt(start + 20) == kTurned ? 65'535 : 0));
        inner.AddElement(Element::Byte(Key::UsedCoordinates, inner.ByteAt(start + 22)));
    });
}

void DecodeIOB(clsAFPFunctions& afp) { DecodeIncluded(afp, ResourceKind::Object, kIOB, 27); }

void DecodeIPO(clsAFPFunctions& afp) { DecodeIncluded(afp, ResourceKind::Overlay, kIPO, 16); }

void DecodeIPS(clsAFPFunctions& afp) { DecodeIncluded(afp, ResourceKind::PageSegment, kIPS, 14); }

// Include Page names a page of the file, which is no resource.
void DecodeIPG(clsAFPFunctions& afp)
{
    ReadName(afp);
    afp.FieldPosition += 17;
    AnalyzeTriplets(afp, afp.FieldEnd);
    ShowName(afp, afp.Resources.name);
}

void DecodeIMM(clsAFPFunctions& afp) { DecodeIncluded(afp, ResourceKind::MediumMapCall, {}, 8); }

// The only field whose name is in the page in force.
void DecodeIDM(clsAFPFunctions& afp)
{
    ReadName(afp, afp.CurrentCodePage());
    AddExternalResource(afp, ResourceKind::DataMapCall, afp.Resources.name);
    ShowName(afp, afp.Resources.name);
}

void DecodeMCF1(clsAFPFunctions& afp)
{
    constexpr std::int32_t kPassed = 4;
    const std::int32_t size = afp.ByteAt(afp.FieldPosition);
    afp.FieldPosition += kPassed;
    AnalyzeGroups(afp, size, [](clsAFPFunctions& inner, std::int32_t start, std::int32_t length) {
        constexpr std::int32_t kWithRotation = 30;
        const std::size_t first = inner.List().Elements().size();
        ReadRows(inner, kMCF1, start, length);
        if (length >= kWithRotation) {
            const Row rotation[] = {angle(Key::CharRotation, 28)};
            ReadRows(inner, rotation, start, length);
        }
        for (std::size_t i = first + 2; i < first + std::size(kMCF1); ++i) {
            const std::string mapped(TrimBlanks(inner.List().TextOf(inner.List().Elements()[i])));
            AddExternalResource(inner, ResourceKind::Font, mapped);
        }
    });
}

void DecodeMSU(clsAFPFunctions& afp)
{
    constexpr std::int32_t kGroup = 10;
    AnalyzeGroups(afp, kGroup, [](clsAFPFunctions& inner, std::int32_t start, std::int32_t length) {
        ReadRows(inner, kMSU, start, length);
    });
}

namespace {

constexpr std::int32_t kMapPassed = 4, kMapGroup = 12;  // MMO, MPS

void AddMappedName(clsAFPFunctions& afp, ResourceKind kind, std::int32_t start)
{
    afp.FieldPosition = start + 4;
    ReadName(afp);
    AddExternalResource(afp, kind, afp.Resources.name);
}

}  // namespace

void DecodeMMO(clsAFPFunctions& afp)
{
    afp.FieldPosition += kMapPassed;
    AnalyzeGroups(afp, kMapGroup, [](clsAFPFunctions& inner, std::int32_t start, std::int32_t) {
        inner.AddElement(Element::Int32(Key::ID, inner.ByteAt(start)));
        inner.AddElement(Element::Int16(Key::OVLType, inner.ReadBit(start + 1, 0) ? 1 : 2));
        AddMappedName(inner, ResourceKind::Overlay, start);
    });
}

void DecodeMPS(clsAFPFunctions& afp)
{
    afp.FieldPosition += kMapPassed;
    AnalyzeGroups(afp, kMapGroup, [](clsAFPFunctions& inner, std::int32_t start, std::int32_t) {
        AddMappedName(inner, ResourceKind::PageSegment, start);
    });
}

void DecodePPO(clsAFPFunctions& afp)
{
    AnalyzeLengthGroups(afp, [](clsAFPFunctions& inner, std::int32_t start, std::int32_t length) {
        ReadRows(inner, kPPO, start, length);
        AddOffset(inner, Key::OffsetX, start + 6);
        AddOffset(inner, Key::OffsetY, start + 9);
        AnalyzeGroupTriplets(inner, start, 12, length);
    });
}

void DecodeMPO(clsAFPFunctions& afp)
{
    AnalyzeTripletGroups(afp, [](clsAFPFunctions& inner, std::int32_t start, std::int32_t length) {
        ClearNames(inner.Triplets);
        AnalyzeGroupTriplets(inner, start, 2, length);
        AddExternalResource(inner, ResourceKind::Overlay, inner.Triplets.resource);
    });
}

void DecodeMapGroups(clsAFPFunctions& afp)
{
    AnalyzeTripletGroups(afp, [](clsAFPFunctions& inner, std::int32_t start, std::int32_t length) {
        ClearNames(inner.Triplets);
        AnalyzeGroupTriplets(inner, start, 2, length);
        AddExternalResource(inner, ResourceKind::Object, inner.Triplets.resource);
        AddMapped(inner, ResourceKind::Font, inner.Triplets.codedFont);
        AddMapped(inner, ResourceKind::CharacterSet, inner.Triplets.characterSet);
        AddMapped(inner, ResourceKind::CodePage, inner.Triplets.codePage);
    });
}

}  // namespace folioscope
