#include "analysis/decode/groups.h"

#include "analysis/decode/clsAFPFunctions.h"

namespace folioscope {

namespace {

constexpr std::int32_t kLengthBytes = 2;

struct GroupKeys {
    Key begin, end;
};
constexpr GroupKeys kPlainGroup = {Key::BeginRepetition, Key::EndRepetition};
constexpr GroupKeys kTripletGroup = {Key::BeginRepetitionTRP, Key::EndRepetitionTRP};

void AnalyzeGroup(clsAFPFunctions& afp, GroupKeys keys, int number, std::int32_t length, GroupDecoder decode)
{
    const std::int32_t start = afp.FieldPosition;
    afp.AddElement(Element::Int16(keys.begin, number));
    afp.AddElement(Element::Int32(Key::Length, length));
    decode(afp, start, length);
    afp.AddElement(Element::Int16(keys.end, number));
    afp.FieldPosition = start + length;
}

void AnalyzeLengthGroups(clsAFPFunctions& afp, GroupKeys keys, GroupDecoder decode)
{
    for (int number = 1; afp.FieldPosition < afp.FieldEnd; ++number) {
        const std::int32_t length = afp.ReadUnsigned(afp.FieldPosition, kLengthBytes);
        AnalyzeGroup(afp, keys, number, length, decode);
        if (length < kLengthBytes) break;
    }
}

void DecodeTriplets(clsAFPFunctions& afp, std::int32_t start, std::int32_t length)
{
    AnalyzeGroupTriplets(afp, start, kLengthBytes, length);
}

}  // namespace

void AnalyzeGroups(clsAFPFunctions& afp, std::int32_t size, GroupDecoder decode)
{
    for (int number = 1; afp.FieldPosition < afp.FieldEnd; ++number) {
        AnalyzeGroup(afp, kPlainGroup, number, size, decode);
        if (size < 1) break;
    }
}

void AnalyzeByteLengthGroups(clsAFPFunctions& afp, GroupDecoder decode)
{
    for (int number = 1; afp.FieldPosition < afp.FieldEnd; ++number) {
        const std::int32_t length = afp.ByteAt(afp.FieldPosition);
        AnalyzeGroup(afp, kPlainGroup, number, length, decode);
        if (length < 1) break;
    }
}

void AnalyzeTypedGroups(clsAFPFunctions& afp, GroupDecoder decode)
{
    constexpr std::int32_t kTypeAndLength = 2;
    for (int number = 1; afp.FieldPosition < afp.FieldEnd; ++number)
        AnalyzeGroup(afp, kPlainGroup, number, afp.ByteAt(afp.FieldPosition + 1) + kTypeAndLength, decode);
}

void AnalyzeLengthGroups(clsAFPFunctions& afp, GroupDecoder decode) { AnalyzeLengthGroups(afp, kPlainGroup, decode); }

void AnalyzeTripletGroups(clsAFPFunctions& afp, GroupDecoder decode)
{
    AnalyzeLengthGroups(afp, kTripletGroup, decode);
}

void AnalyzeTripletGroups(clsAFPFunctions& afp) { AnalyzeTripletGroups(afp, DecodeTriplets); }

void AnalyzeSequenceGroup(clsAFPFunctions& afp, int number, std::int32_t length, GroupDecoder decode)
{
    afp.AddSequenceElement(Element::Int16(Key::BeginRepetition, number));
    afp.AddSequenceElement(Element::Int16(Key::Length, length));
    decode(afp, afp.FieldPosition, length);
    afp.AddSequenceElement(Element::Int16(Key::EndRepetition, number));
}

void AnalyzeGroupTriplets(clsAFPFunctions& afp, std::int32_t start, std::int32_t offset, std::int32_t length)
{
    afp.FieldPosition = start + offset;
    AnalyzeTriplets(afp, start + length - 1);
}

}  // namespace folioscope
