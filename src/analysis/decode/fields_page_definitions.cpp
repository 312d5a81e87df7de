#include "analysis/decode/fields_page_definitions.h"

#include "analysis/decode/clsAFPFunctions.h"
#include "analysis/decode/groups.h"

namespace folioscope {

namespace {

// clang-format off

// Conditional Processing Control
constexpr Row kCCP[] = {
    u(Key::Condition,     0, 2),
    u(Key::NextCondition, 2, 2),
    bit(Key::CCPBeforeSP, 4, 0),
    bit(Key::CCPAfterSP,  4, 1),
    bit(Key::CCPSpacing,  4, 2),
    u(Key::RepeatCount,   6, 2),
    u(Key::RepeatLength,  8, 2),
    u(Key::CompLength,    10, 2),
};
constexpr Row kCCPGroup[] = {
    b(Key::TimingOfAction, 0),
    b(Key::MMAction,       1),
    text(Key::MMName,      2, 8),
    b(Key::DMAction,       10),
    text(Key::DMName,      11, 8),
    b(Key::Comparison,     19),
};

// Line Descriptor: the flags are the word at 0
constexpr Row kLNDPosition[] = {
    bit(Key::LNDFlagsSkip,        0, 0),
    u(Key::NextLNDSkip,           12, 2),
    bit(Key::LNDFlagsSpace,       0, 1),
    u(Key::NextLNDSpace,          14, 2),
    bit(Key::LNDFlagsReuse,       0, 6),
    u(Key::NextLNDReuse,          16, 2),
    bit(Key::LNDFlagsInline,      0, 2),
    bit(Key::LNDFlagsBaseline,    0, 3),
    bit(Key::LNDFlagsRelBaseline, 0, 13),
    u(Key::NewInlinePos,          2, 2),
};
constexpr Row kLNDFont[] = {
    bit(Key::LNDFlagsFont,        0, 4),
    bit(Key::LNDFlagsTextColor,   0, 10),
    bit(Key::LNDFlagsCompTRC,     0, 9),
    b(Key::FontLID,               10),
    u(Key::Color,                 33, 2),
    u(Key::RotationX,             6, 2),
    u(Key::RotationY,             8, 2),
    bit(Key::LNDFlagsFixedData,   0, 7),
};
constexpr Row kLNDRest[] = {
    bit(Key::LNDFlagsCondition,   0, 11),
    u(Key::CCPID,                 38, 2),
    u(Key::NextLNDCond,           35, 2),
    b(Key::ChannelCode,           11),
    b(Key::SubpageID,             37),
    bit(Key::LNDFlagsROI,         0, 12),
    bit(Key::LNDFlagsSupp,        0, 5),
    text(Key::SuppToken,          18, 8),
};

// Record Descriptor: the flags are the word at 11
constexpr Row kRCDType[] = {
    text(Key::Record,             0, 10),
    b(Key::RCDType,               10),
};
constexpr Row kRCDPosition[] = {
    bit(Key::LNDFlagsInline,      11, 2),
    bit(Key::LNDFlagsBaseline,    11, 3),
    bit(Key::LNDFlagsRelBaseline, 11, 13),
    u(Key::NewInlinePos,          15, 2),
};
constexpr Row kRCDFont[] = {
    bit(Key::LNDFlagsFont,        11, 4),
    b(Key::FontLID,               23),
    u(Key::RotationX,             19, 2),
    u(Key::RotationY,             21, 2),
    bit(Key::LNDFlagsFixedData,   11, 7),
};
constexpr Row kRCDPage[] = {
    bit(Key::LNDFlagsSupp,        11, 5),
    text(Key::SuppToken,          26, 8),
    bit(Key::LNDFlagsCondition,   11, 11),
    u(Key::CCPID,                 44, 2),
    u(Key::CondRCD,               41, 2),
    bit(Key::RCDNewPage,          11, 16),
    bit(Key::RCDPageNo,           11, 17),
    bit(Key::ResetPageNo,         11, 18),
    u(Key::NewPageNo,             46, 2),
    bit(Key::RCDGroup,            11, 19),
    bit(Key::RCDDelSize,          11, 20),
};
constexpr Row kRCDField[] = {
    b(Key::FieldAlign,            50),
    u(Key::FieldNo,               53, 2),
    bit(Key::RecIDData,           11, 21),
    u(Key::RCDEndSpace,           48, 2),
    u(Key::AdBIncrement,          55, 2),
};

// XML Descriptor: the flags are the word at 1
constexpr Row kXMD[] = {
    b(Key::XMLElementType,          0),
    bit(Key::XMLFlagGenInlinePos,   1, 2),
    bit(Key::XMLFlagGenBaselinePos, 1, 3),
    bit(Key::XMLFlagGenFontChange,  1, 4),
    bit(Key::XMLFlagGenSup,         1, 5),
    bit(Key::XMLFlagFieldXMD,       1, 6),
    bit(Key::XMLFlagUseFixedData,   1, 7),
    bit(Key::XMLFlagAttrXMD,        1, 10),
    bit(Key::XMLFlagCondXMD,        1, 11),
    bit(Key::XMLFlagRelInlinePos,   1, 12),
    bit(Key::XMLFlagRelBaselinePos, 1, 13),
    bit(Key::XMLFlagNewPage,        1, 16),
    bit(Key::XMLFlagPrintPageNo,    1, 17),
    bit(Key::XMLFlagResetPageNo,    1, 18),
    bit(Key::XMLFlagGroupInd,       1, 19),
    bit(Key::XMLFlagFieldDelimSize, 1, 20),
    bit(Key::XMLFlagUseStartTag,    1, 21),
    bit(Key::XMLFlagContinued,      1, 23),
    u(Key::RotationX,               9, 2),
    u(Key::RotationY,               11, 2),
    b(Key::FontLID,                 13),
    u(Key::FieldXMD,                14, 2),
    text(Key::SuppToken,            18, 8),
};
constexpr Row kXMDPage[] = {
    u(Key::CondXMD,                 14, 2),            // the same two bytes as FieldXMD
    b(Key::SubpageID,               35),
    u(Key::CCPID,                   36, 2),
    u(Key::NewPageNo,               38, 2),
    u(Key::RCDEndSpace,             40, 2),
    b(Key::FieldAlign,              42),
};
constexpr Row kXMDField[] = {
    u(Key::FieldNo,                 45, 2),
    u(Key::AdBIncrement,            47, 2),
};

// Which text is printed: of the fixed text fields, or of the record
constexpr Row kFixedText[] = {
    u(Key::FixedTextStart,  0, 4),
    u(Key::FixedTextLength, 4, 2),
};
constexpr Row kVariableData[] = {
    u(Key::DataStart,  0, 4),
    u(Key::DataLength, 4, 2),
};
// clang-format on

constexpr std::int32_t kTextSourceSize = 6;

// One descriptor: its rows, and the places whose meaning its flags decide.
struct Descriptor {
    explicit Descriptor(clsAFPFunctions& functions) : afp(functions), start(functions.FieldPosition) {}

    bool Flag(std::int32_t flags, int number) const { return afp.ReadBit(start + flags, number); }
    void Rows(std::span<const Row> rows) const { ReadRows(afp, rows, start, afp.FieldEnd - start + 1); }
    void Baseline(bool relative, std::int32_t at) const
    {
        afp.AddElement(relative ? Element::Int32(Key::NewRelBaselinePos, afp.ReadSigned(start + at, 2))
                                : Element::Int32(Key::NewBaselinePos, afp.ReadUnsigned(start + at, 2)));
    }
    void TextSource(bool fixed, std::int32_t at) const
    {
        const std::span<const Row> rows = fixed ? kFixedText : kVariableData;
        ReadRows(afp, rows, start + at, kTextSourceSize);
    }
    // A delimiter of one byte stands where the second of two would.
    void Delimiter(bool twoBytes, std::int32_t at) const
    {
        afp.AddElement(afp.ReadText(Key::FieldDel, twoBytes ? start + at : start + at + 1, twoBytes ? 2 : 1));
    }
    void Triplets(std::int32_t at) const
    {
        afp.FieldPosition = start + at;
        AnalyzeTriplets(afp, afp.FieldEnd);
    }

    clsAFPFunctions& afp;
    const std::int32_t start;
};

// The strings of a record all have one length. When this much text was read, no further one can be shown: they repeat
// one that was too long already, so that overlapping groups can't fill the memory.
constexpr std::size_t kMostText = std::size_t{4} << 20;

void AddComparisonString(clsAFPFunctions& afp, std::int32_t at, std::int32_t length)
{
    const auto elements = afp.List().Elements();
    if (afp.List().Pool().size() > kMostText) {
        for (std::size_t i = elements.size(); i-- > 0;)
            if (elements[i].key == Key::CompString && elements[i].size > 2) return afp.AddElement(Element(elements[i]));
    }
    afp.AddElement(afp.ReadText(Key::CompString, at, length));
}

}  // namespace

void DecodeCCP(clsAFPFunctions& afp)
{
    constexpr std::int32_t kFixed = 12, kLengthAt = 8;
    const std::int32_t start = afp.FieldPosition;
    ReadRows(afp, kCCP, start, kFixed);
    afp.FieldPosition = start + kFixed;
    const std::int32_t size = afp.ReadUnsigned(start + kLengthAt, 2);
    AnalyzeGroups(afp, size, [](clsAFPFunctions& inner, std::int32_t group, std::int32_t length) {
        ReadRows(inner, kCCPGroup, group, length);
        const auto compared = static_cast<std::int32_t>(inner.List().Find(Key::CompLength)->number);
        AddComparisonString(inner, group + 20, compared);
    });
}

void DecodeLND(clsAFPFunctions& afp)
{
    const Descriptor line(afp);
    line.Rows(kLNDPosition);
    line.Baseline(line.Flag(0, 13), 4);
    line.Rows(kLNDFont);
    line.TextSource(line.Flag(0, 7), 27);
    line.Rows(kLNDRest);
    line.Triplets(40);
}

void DecodeRCD(clsAFPFunctions& afp)
{
    const Descriptor record(afp);
    const bool field = record.Flag(11, 6), conditional = record.Flag(11, 11);
    record.Rows(kRCDType);
    afp.AddElement(Element::Int16(Key::RCDSubType, conditional ? 2 : field ? 1 : 0));
    record.Rows(kRCDPosition);
    record.Baseline(record.Flag(11, 13), 17);
    record.Rows(kRCDFont);
    record.TextSource(record.Flag(11, 7), 35);
    record.Rows(kRCDPage);
    record.Delimiter(record.Flag(11, 20), 51);
    record.Rows(kRCDField);
    record.Triplets(70);
}

void DecodeXMD(clsAFPFunctions& afp)
{
    const Descriptor element(afp);
    element.Rows(kXMD);
    element.TextSource(element.Flag(1, 7), 27);
    element.Rows(kXMDPage);
    element.Delimiter(element.Flag(1, 20), 43);
    element.Rows(kXMDField);
    element.Triplets(62);
}

}  // namespace folioscope
