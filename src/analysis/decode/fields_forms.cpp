#include "analysis/decode/fields_forms.h"

#include "analysis/decode/clsAFPFunctions.h"
#include "analysis/decode/groups.h"

namespace folioscope {

namespace {

// clang-format off
constexpr Row kMFC[] = {                               // Medium Finishing Control
    b(Key::Collection, 2),
    b(Key::Scope,      3),
};
constexpr Row kMCC[] = {                               // Medium Copy Count, a group
    u(Key::FirstCopy, 0, 2),
    u(Key::LastCopy,  2, 2),
    b(Key::UseMMC,    5),
};
constexpr Row kMMC[] = {                               // Medium Modification Control, a group
    b(Key::MMCKeyword, 0),
    b(Key::MMCValue,   1),
};
constexpr Row kPGP2[] = {                              // Page Position, newer format, a group
    s(Key::OriginX,   1, 3),
    s(Key::OriginY,   4, 3),
    u(Key::RotationX, 7, 2),
    inside(b(Key::PagePosition,          9)),
    inside(bit(Key::PresentVariableData, 10, 0)),
    inside(bit(Key::PresentPMCOverlays,  10, 1)),
    inside(bit(Key::PMCOrigin,           10, 2)),
    inside(bit(Key::ViewData,            10, 3)),
    inside(b(Key::UsePMC,                11)),
};
// clang-format on

}  // namespace

// The first bit says whether the field counts at all.
void DecodeMFC(clsAFPFunctions& afp)
{
    constexpr std::int32_t kFixed = 4;
    const std::int32_t start = afp.FieldPosition;
    if (!afp.ReadBit(start, 0)) return afp.AddElement(Element::Boolean(Key::NoOp, true));
    ReadRows(afp, kMFC, start, kFixed);
    afp.FieldPosition = start + kFixed;
    AnalyzeTriplets(afp, afp.FieldEnd);
}

void DecodeMCC(clsAFPFunctions& afp)
{
    constexpr std::int32_t kGroup = 6;
    AnalyzeGroups(afp, kGroup, [](clsAFPFunctions& inner, std::int32_t start, std::int32_t length) {
        ReadRows(inner, kMCC, start, length);
    });
}

void DecodeMMC(clsAFPFunctions& afp)
{
    constexpr std::int32_t kFixed = 2, kGroup = 2;
    afp.AddElement(Element::Int32(Key::ID, afp.ByteAt(afp.FieldPosition)));
    afp.FieldPosition += kFixed;
    AnalyzeGroups(afp, kGroup, [](clsAFPFunctions& inner, std::int32_t start, std::int32_t length) {
        ReadRows(inner, kMMC, start, length);
    });
}

// The first byte isn't the flag itself: it is the position in the record buffer of the byte whose first bit is it.
void DecodePFC(clsAFPFunctions& afp)
{
    constexpr std::int32_t kFixed = 4;
    const std::int32_t flagAt = afp.ByteAt(afp.FieldPosition);
    afp.AddElement(Element::Int16(Key::ResetFidelity, afp.ReadBit(flagAt, 0) ? 2 : 1));
    afp.FieldPosition += kFixed;
    AnalyzeTriplets(afp, afp.FieldEnd);
}

// A constant byte stands ahead of the groups.
void DecodePGP2(clsAFPFunctions& afp)
{
    ++afp.FieldPosition;
    AnalyzeByteLengthGroups(afp, [](clsAFPFunctions& inner, std::int32_t start, std::int32_t length) {
        ReadRows(inner, kPGP2, start, length);
    });
}

}  // namespace folioscope
