#include "analysis/decode/triplets.h"

#include <array>

#include "analysis/decode/clsAFPFunctions.h"
#include "analysis/decode/triplet_procedures.h"
#include "base/numbers.h"

namespace folioscope {

namespace {

// clang-format off
constexpr Row kCodedGraphicCharacterSet[] = {u(Key::CHSID, 2, 2), u(Key::CDPID, 4, 2)};           // x'01', x'20'
constexpr Row kMappingOption[]       = {b(Key::MappingOption, 2)};                                 // x'04'
constexpr Row kInterchangeSet[]      = {b(Key::ISType, 2), u(Key::ISID, 3, 2)};                    // x'18'
constexpr Row kTextOrientation[]     = {angle(Key::IAxis, 2), angle(Key::BAxis, 4)};               // x'1D'
constexpr Row kFontDescriptor[] = {                                                                // x'1F'
    b(Key::FontWeightClass, 2),
    b(Key::FontWidthClass, 3),
    read(Read::Inches, Key::FontHeight, 4, 2),
    read(Read::Inches, Key::FontWidth, 6, 2),
    bit(Key::FontItalic, 8, 0),
    bit(Key::FontUnderscored, 8, 1),
    bit(Key::FontHollow, 8, 3),
    bit(Key::FontOverstrucked, 8, 4),
    bit(Key::FontProportional, 8, 5),
    bit(Key::FontKerned, 8, 6),
    bit(Key::FontTypeFlags, 8, 7),
    read(Read::TwoOrOne, Key::FontArchitecture, 19, 1),
    bit(Key::FontTransformation, 8, 2),                                                            // sic, of byte 8
};
constexpr Row kExtendedLocalId[]     = {b(Key::ResourceType, 2), u(Key::LocalID, 3, 4)};           // x'22'
constexpr Row kLocalId[]             = {b(Key::ResourceType, 2), b(Key::LocalID, 3)};              // x'24'
constexpr Row kSectionNumber[]       = {b(Key::SectionID, 2)};                                     // x'25'
constexpr Row kCharacterRotation[]   = {angle(Key::CharRotation, 2)};                              // x'26'
constexpr Row kObjectOrientation[]   = {b(Key::ObjOrientation, 2)};                                // x'27'
constexpr Row kDescriptorPosition[]  = {b(Key::UseOBP, 2)};                                        // x'43'
constexpr Row kMediaEject[]          = {b(Key::EjectControl, 3)};                                  // x'45'
constexpr Row kOverlayConditional[]  = {b(Key::OverlayType, 2), inside(b(Key::Level, 3))};         // x'46'
constexpr Row kResourceUsage[]       = {b(Key::Frequency, 2)};                                     // x'47'
constexpr Row kMeasurementUnits[] = {                                                              // x'4B'
    b(Key::UnitBaseX, 2),
    b(Key::UnitBaseY, 3),
    u(Key::ObjectBaseUnitsX, 4, 2),
    u(Key::ObjectBaseUnitsY, 6, 2),
};
constexpr Row kAreaSize[] = {b(Key::SizeType, 2), u(Key::ObjectSizeX, 3, 3), u(Key::ObjectSizeY, 6, 3)};     // x'4C'
constexpr Row kAreaDefinition[] = {                                                                // x'4D'
    u(Key::OriginX, 3, 3),                                                                         // sic, unsigned
    u(Key::OriginY, 6, 3),
    u(Key::ObjectSizeX, 9, 3),
    u(Key::ObjectSizeY, 12, 3),
};
constexpr Row kEncodingScheme[] = {                                                                // x'50'
    read(Read::HighHalf, Key::EncodingStructure, 2),
    read(Read::LowHalf, Key::EncodingBytes, 2),
    read(Read::HighHalf, Key::EncodingStructureUserData, 4),
    read(Read::LowHalf, Key::EncodingBytes, 4),
    b(Key::CodeExtension, 5),
};
constexpr Row kPageNumber[]          = {u(Key::PageNumber, 2, 4)};                                 // x'56'
constexpr Row kHorizontalScale[]     = {read(Read::Inches, Key::FontWidth, 2, 2)};                 // x'5D'
constexpr Row kOriginIdentifier[] = {                                                              // x'64'
    b(Key::System, 2),
    text(Key::SystemID, 3, 8),
    text(Key::StorageID, 11, 6),
    text(Key::DSID, 17, 44),
};
constexpr Row kComment[]             = {text(Key::Content, 2), hex(Key::HexCode, 2)};              // x'65'
constexpr Row kMediumOrientation[]   = {b(Key::MediumOrientation, 2)};                             // x'68'
constexpr Row kResourceInclude[] = {                                                               // x'6C'
    b(Key::ObjectType, 2),
    text(Key::Name, 3, 8),
    inside(s(Key::OriginX, 12, 2)),
    inside(s(Key::OriginY, 15, 2)),
    inside(u(Key::RotationX, 17, 2)),
};
constexpr Row kExtensionFontBase[]   = {u(Key::CHSID, 2, 2)};                                      // x'6D'
constexpr Row kResetMixing[]         = {bit(Key::Overprint, 2, 0)};                                // x'70'
constexpr Row kIMMInsertion[]        = {read(Read::True, Key::IMMInsertation, 2)};                 // x'73'
constexpr Row kTonerSaver[]          = {b(Key::TonerSaver, 3)};                                    // x'74'
constexpr Row kColorFidelity[] = {                                                                 // x'75'
    b(Key::ColorCont, 2),
    read(Read::IsOne, Key::Notification, 4),
    b(Key::ColorSubst, 6),
};
constexpr Row kFontFidelity[]        = {b(Key::FontNotAvailable, 2)};                              // x'78'
constexpr Row kMetricAdjustment[] = {                                                              // x'79'
    b(Key::UnitBase, 2),
    u(Key::ObjectBaseUnitsX, 3, 2),
    u(Key::ObjectBaseUnitsY, 5, 2),
    u(Key::UniCharIncHorz, 7, 2),
    u(Key::UniCharIncVert, 9, 2),
    u(Key::BaselineAdjustHorz, 11, 2),
    u(Key::BaselineAdjustVert, 13, 2),
};
constexpr Row kBarCodeParameters[]   = {text(Key::Content, 3)};                                    // x'7B'
constexpr Row kPageCountControl[] = {                                                              // x'7C'
    u(Key::InitPageNum, 2, 2),
    b(Key::CountControl, 5),
    bit(Key::CountMODCA, 6, 0),
    bit(Key::CountConstant, 6, 1),
};
constexpr Row kGraphicsDescriptor[] = {                                                            // x'7E'
    b(Key::PrimitiveParms, 2),
    u(Key::PrimitiveMatchID, 3, 2),
    b(Key::PrimitiveType, 2),                                                                      // sic, again at 2
    bit(Key::Boundary, 7, 0),
    bit(Key::Inside, 7, 1),
    u(Key::PrimIEnd, 8, 2),
    u(Key::PrimBEnd, 10, 2),
    u(Key::BoxEdgeHAxis, 12, 2),
    u(Key::BoxEdgeVAxis, 14, 2),
};
constexpr Row kMarginDefinition[] = {                                                              // x'7F'
    angle(Key::IAxis, 2),
    angle(Key::BAxis, 4),
    u(Key::LeftMargin, 6, 2),
    u(Key::TopMargin, 8, 2),
    u(Key::RightMargin, 10, 2),
    u(Key::BottomMargin, 12, 2),
};
constexpr Row kAttributeQualifier[]  = {u(Key::Instance, 2, 4), u(Key::Level, 6, 4)};              // x'80'
constexpr Row kPagePosition[]        = {b(Key::UsePGP, 2)};                                        // x'81'
constexpr Row kPresentationControl[] = {bit(Key::ViewData, 2, 0), bit(Key::IndexData, 2, 1)};      // x'83'
constexpr Row kFontResolution[]      = {b(Key::UnitBaseX, 3), u(Key::ObjectBaseUnitsX, 4, 2)};     // x'84'
constexpr Row kTextFidelity[] = {                                                                  // x'86'
    read(Read::IsOne, Key::TextContinuation, 2),
    read(Read::IsOne, Key::TextReporting, 4),
};
constexpr Row kMediaFidelity[]       = {b(Key::MediaException, 2)};                                // x'87'
constexpr Row kFinishingFidelity[] = {                                                             // x'88'
    read(Read::IsOne, Key::FinishContinuation, 2),
    read(Read::IsOne, Key::FinishReporting, 4),
};
constexpr Row kReferenceQualifier[]  = {bit(Key::UseGivenReference, 3, 0)};                        // x'89'
constexpr Row kXMLName[]             = {text(Key::XMLName, 4)};                                    // x'8A'
constexpr Row kUP3iFinishing[]       = {b(Key::SequenceNo, 2), hex(Key::UP3iFinishing, 4)};        // x'8E'
constexpr Row kFunctionSet[]         = {u(Key::DCAFunctionSet, 4, 2)};                             // x'8F'
constexpr Row kCMRDescriptor[]       = {b(Key::CMRProcMode, 3), b(Key::CMRScope, 4)};              // x'91'
constexpr Row kConcatenateBarCode[]  = {u(Key::UseBCSymbol, 3, 2), u(Key::BCSegOrder, 5, 2)};      // x'93'
constexpr Row kDataEncryption[] = {                                                                // x'94'
    bit(Key::Encrypted, 2, 0),
    inside(b(Key::EncrAlg, 4)),
    inside(b(Key::EncrMod, 5)),
    inside(b(Key::EncrFormat, 7)),
    inside(hex(Key::EncrRecord, 4)),
};
constexpr Row kRenderingIntent[] = {                                                               // x'95'
    b(Key::IOCARI, 4),
    b(Key::OCRI, 5),
    b(Key::PTOCARI, 6),
    b(Key::GOCARI, 7),
};
constexpr Row kCMRTagFidelity[]      = {b(Key::CMRException, 2), b(Key::CMRExReport, 4)};          // x'96'
constexpr Row kDeviceAppearance[]    = {u(Key::CMRDevApp, 3, 2)};                                  // x'97'
constexpr Row kImageResolution[] = {                                                               // x'9A'
    b(Key::UnitBaseX, 4),
    b(Key::UnitBaseY, 5),
    u(Key::ObjectBaseUnitsX, 6, 2),
    u(Key::ObjectBaseUnitsY, 8, 2),
};
constexpr Row kContainerSize[] = {                                                                 // x'9C'
    b(Key::PDFSize, 4),
    inside(b(Key::UnitBaseX, 5)),
    inside(b(Key::UnitBaseY, 6)),
    inside(u(Key::ObjectBaseUnitsX, 7, 2)),
    inside(u(Key::ObjectBaseUnitsY, 9, 2)),
    inside(u(Key::ObjectSizeX, 11, 3)),
    inside(u(Key::ObjectSizeY, 14, 3)),
};
constexpr Row kKeepGroup[]           = {b(Key::KeepGroup, 4)};                                     // x'9D'
constexpr Row kExtender[]            = {b(Key::KeepGroup, 4), hex(Key::HexCode, 4)};               // x'FF'

constexpr TripletRow kTriplets[] = {
    {0x01, "x'01' (Coded/Graphic Character Set Global ID)", kCodedGraphicCharacterSet, DecodeCodePageId},
    {0x02, "x'02' (Fully Qualified Name)", {}, DecodeQualifiedName},
    {0x04, "x'04' (Mapping Option)", kMappingOption, nullptr, Summary::Text, "Mapping Option"},
    {0x10, "x'10' (Object Classification)", {}, DecodeObjectClassification, Summary::Text, "Object Class"},
    {0x18, "x'18' (MO:DCA Interchange Set)", kInterchangeSet, SummarizeInterchangeSet},
    {0x1D, "x'1D' (Text Orientation)", kTextOrientation, nullptr, Summary::Degrees, "Text orientation: "},
    {0x1F, "x'1F' (Font Descriptor Specification)", kFontDescriptor, SummarizeFontSize},
    {0x20, "x'20' (Font Coded Graphic Character Set Global Identifier)", kCodedGraphicCharacterSet, nullptr,
           Summary::Text, "CGCSGID"},
    {0x21, "x'21' (Resource Object Type)", {}, DecodeObjectType},  // has two names, so the procedure adds it
    {0x22, "x'22' (Extended Resource Local Identifier)", kExtendedLocalId, nullptr,
           Summary::Number, "Ext. resource LID: "},
    {0x24, "x'24' (Resource Local ID)", kLocalId, nullptr, Summary::Number, "Resource LID: "},
    {0x25, "x'25' (Resource Section Number)", kSectionNumber, nullptr, Summary::Number, "Font Section: "},
    {0x26, "x'26' (Character Rotation)", kCharacterRotation, nullptr, Summary::Degrees, "Char rotation: "},
    {0x27, "x'27' (Line Data Object Positioning Migration)", kObjectOrientation, SummarizeOrientation},
    {0x2D, "x'2D' (Object Byte Offset)", {}, DecodeByteOffset, Summary::Count, "Object offset: "},
    {0x36, "x'36' (Attribute Value)", {}, DecodeAttributeValue},
    {0x43, "x'43' (Descriptor Position)", kDescriptorPosition, nullptr, Summary::Number, "Object area SF: "},
    {0x45, "x'45' (Media Eject Control)", kMediaEject, nullptr, Summary::Text, "Media ejection"},
    {0x46, "x'46' (Page Overlay Conditional Processing)", kOverlayConditional, nullptr, Summary::Text, "Overlay usage"},
    {0x47, "x'47' (Resource Usage Attribute)", kResourceUsage, nullptr, Summary::Text, "Resource usage"},
    {0x4B, "x'4B' (Object Area Measurement Units)", kMeasurementUnits, nullptr, Summary::Text, "Measurement units"},
    {0x4C, "x'4C' (Object Area Size)", kAreaSize, nullptr, Summary::Text, "Area size"},
    {0x4D, "x'4D' (Area Definition)", kAreaDefinition, nullptr, Summary::Text, "Area definition"},
    {0x4E, "x'4E' (Color Specification)", {}, DecodeColorSpecification},
    {0x50, "x'50' (Encoding Scheme ID)", kEncodingScheme},
    {0x56, "x'56' (Medium Map Page Number)", kPageNumber},
    {0x57, "x'57' (Object Byte Extent)", {}, DecodeByteExtent, Summary::Number, "Object size: "},
    {0x58, "x'58' (Object Structured Field Offset)", {}, DecodeFieldOffset, Summary::Number, "SF offset: "},
    {0x59, "x'59' (Object Structured Field Extent)", {}, DecodeFieldExtent, Summary::Number, "Object extend: "},
    {0x5A, "x'5A' (Object Offset)", {}, DecodeObjectOffset},
    {0x5D, "x'5D' (Font Horizontal Scale Factor)", kHorizontalScale},
    {0x5E, "x'5E' (Object Count)", {}, DecodeObjectCount},
    {0x62, "x'62' (Object Date and Time Stamp)", {}, DecodeDateAndTime},
    {0x63, "x'63' Type 1 (Object Checksum/CRC Resource Management)", {}, DecodeResourceManagement},  // has two names
    {0x64, "x'64' (Object Origin Identifier)", kOriginIdentifier},
    {0x65, "x'65' (Comment)", kComment},
    {0x68, "x'68' (Medium Orientation)", kMediumOrientation},
    {0x69, "x'69' (Bar Code Symbol Descriptor)", {}, DecodeBarCodeSymbol},
    {0x6C, "x'6C' (Resource Object Include)", kResourceInclude},
    {0x6D, "x'6D' (Extension Font Base)", kExtensionFontBase},
    {0x70, "x'70' (Presentation Space Reset Mixing)", kResetMixing},
    {0x71, "x'71' (Presentation Space Mixing Rules)", {}, DecodeMixingRules},
    {0x72, "x'72' (Universal Date and Time Stamp)", {}, DecodeUniversalTime},
    {0x73, "x'73' (IMM Insertion)", kIMMInsertion},
    {0x74, "x'74' (Toner Saver)", kTonerSaver},
    {0x75, "x'75' (Color Fidelity)", kColorFidelity},
    {0x78, "x'78' (Font Fidelity)", kFontFidelity},
    {0x79, "x'79' (Metric Adjustment)", kMetricAdjustment},
    {0x7B, "x'7B' (Additional Bar Code Parameters)", kBarCodeParameters},
    {0x7C, "x'7C' (Page Count control)", kPageCountControl},
    {0x7E, "x'7E' (Graphics Descriptor)", kGraphicsDescriptor, DecodeGraphicsDescriptor},
    {0x7F, "x'7F' (Margin Definition)", kMarginDefinition},
    {0x80, "x'80' (Attribute Qualifier)", kAttributeQualifier},
    {0x81, "x'81' (Page Position Information)", kPagePosition},
    {0x82, "x'82' (Parameter Value)", {}, DecodeParameterValue},
    {0x83, "x'83' (Presentation Control)", kPresentationControl},
    {0x84, "x'84' (Font Resolution and Metric Technology)", kFontResolution},
    {0x85, "x'85' (Finishing Operation)", {}, DecodeFinishingOperation},
    {0x86, "x'86' (Text Fidelity)", kTextFidelity},
    {0x87, "x'87' (Media Fidelity)", kMediaFidelity},
    {0x88, "x'88' (Finishing Fidelity)", kFinishingFidelity},
    {0x89, "x'89' (Object Reference Qualifier)", kReferenceQualifier},
    {0x8A, "x'8A' (XML Name)", kXMLName},
    {0x8B, "x'8B' (Data-Object Font Descriptor)", {}, DecodeFontDescriptor},
    {0x8C, "x'8C' (Locale Selector)", {}, DecodeLocaleSelector},
    {0x8E, "x'8E' (UP3i Finishing Operation)", kUP3iFinishing},
    {0x8F, "x'8F' (MO:DCA Function Set)", kFunctionSet},
    {0x91, "x'91' (Color Management Resource Descriptor)", kCMRDescriptor},
    {0x93, "x'93' (Concatenate Bar Code Data)", kConcatenateBarCode},
    {0x94, "x'94' (Data Encryption)", kDataEncryption},
    {0x95, "x'95' (Rendering Intent)", kRenderingIntent},
    {0x96, "x'96' (CMR Tag Fidelity)", kCMRTagFidelity},
    {0x97, "x'97' (Device Appearance)", kDeviceAppearance},
    {0x9A, "x'9A' (Image Resolution)", kImageResolution},
    {0x9C, "x'9C' (Object Container Presentation Space Size)", kContainerSize},
    {0x9D, "x'9D' (Keep Group Together)", kKeepGroup},
    {0xFF, "x'FF' (Triplet Extender)", kExtender, nullptr, Summary::Text, "Triplet Extender"},
};
// clang-format on

// By id: row + 1, 0 for an id that has none.
constexpr auto kTripletOf = [] {
    std::array<std::uint8_t, 256> index{};
    for (std::size_t i = 0; i < std::size(kTriplets); ++i) {
        if (index[kTriplets[i].id] != 0) throw "two rows for one triplet";
        index[kTriplets[i].id] = static_cast<std::uint8_t>(i + 1);
    }
    return index;
}();

constexpr std::size_t kIdText = 5;  // x'NN'

void AddSummary(clsAFPFunctions& afp, const TripletRow& row, std::size_t firstKey)
{
    if (row.summary == Summary::None) return;
    const auto keys = afp.List().Elements();
    if (row.summary == Summary::Text) return afp.AddElement(Element::Literal(Key::ShowTripletContent, row.summaryText));
    if (keys.size() == firstKey) return;
    const Element value = row.summary == Summary::Degrees ? keys[firstKey] : keys.back();
    std::string& pool = afp.List().Pool();
    const auto from = pool.size();
    pool += row.summaryText;
    const bool real = value.tag == Tag::Float64;
    if (row.summary == Summary::Count)
        AppendFormatted(pool, real ? value.real : static_cast<double>(value.number), Picture::Grouped, NumberStyle());
    else if (real)
        AppendNumber(pool, value.real, NumberStyle());
    else
        AppendNumber(pool, value.number);
    if (row.summary == Summary::Degrees) pool += "°";
    afp.AddElement(afp.List().PooledText(Key::ShowTripletContent, from));
}

void AnalyzeTriplet(clsAFPFunctions& afp, std::uint8_t id, TripletPlace place)
{
    if (kTripletOf[id] == 0) return AddUnknownTriplet(afp, id);
    const TripletRow& row = kTriplets[kTripletOf[id] - 1];
    if (IsShortObjectClassification(id, place)) return AddInvalidTriplet(afp);
    afp.AddElement(Element::Literal(Key::BeginTriplet, row.name.substr(0, kIdText)));
    if (!NamesItself(id)) afp.AddElement(Element::Literal(Key::TripletName, row.name));
    const std::size_t firstKey = afp.List().Elements().size();
    ReadRows(afp, row.rows, place.start, place.length);
    if (row.procedure != nullptr) row.procedure(afp, place);
    AddSummary(afp, row, firstKey);
}

}  // namespace

void AnalyzeTriplets(clsAFPFunctions& afp, std::int32_t lastPosition)
{
    while (afp.FieldPosition < lastPosition) {
        const TripletPlace place = {afp.FieldPosition, afp.ByteAt(afp.FieldPosition)};
        const std::uint8_t id = afp.ByteAt(place.start + 1);
        afp.FieldPosition += place.length;
        afp.AddElement(Element::Int32(Key::TripletStartbyte, afp.FilePosition(place.start)));
        afp.AddElement(Element::Int32(Key::TripletLength, place.length));
        if (id == 0)
            AddInvalidTriplet(afp);
        else
            AnalyzeTriplet(afp, id, place);
        afp.AddElement(Element::Boolean(Key::EndTriplet, true));
        // An id of 0 makes the rest of the field padding; a length of 0 would stand here for ever.
        if (id == 0 || place.length == 0) afp.FieldPosition = lastPosition + 1;
    }
}

}  // namespace folioscope
