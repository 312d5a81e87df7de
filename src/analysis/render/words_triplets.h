#pragma once

// The lines of the keys that triplets bring, and of the maps and includes that hold them. Only lines.cpp includes this.

#include "analysis/render/renderer.h"
#include "analysis/render/triplets.h"
#include "analysis/render/values.h"
#include "analysis/render/words_values.h"

namespace folioscope {

// clang-format off
constexpr Word kIndexOutside[]   = {{1, L("Indexed object is outside of the document")}};
constexpr Word kSizeType[]       = {{2, L("Object Area")}};
constexpr Word kColorSubst[]     = {{1, L("Any color")}};
constexpr Word kAxisDefault[]    = {{65535, L("Default")}};
constexpr Word kInside[]         = {{0, L("Alternate")}, {1, L("Nonzero Winding")}};
constexpr Word kUsedCoordinates[] = {{0, L("any")}, {1, L("page")}};

constexpr LineRow kTripletLines[] = {
    Own(Key::BeginTriplet,       RenderBeginTriplet),
    Own(Key::TripletName,        RenderTripletName,    L("Triplet")),
    Own(Key::TripletUnknown,     RenderTripletUnknown, L("Triplet")),
    Own(Key::TripletInvalid,     RenderTripletInvalid),
    Own(Key::InvalidBytes,       RenderLabelAlone,
        L("This structured field contains padding bytes. Currently padding is not allowed in any of the interchange sets, but shouldn't cause errors!")),
    Own(Key::EndTriplet,         RenderEndOfGroup),
    {Key::TripletStartbyte,   Line::Silent},
    {Key::TripletLength,      Line::Silent},
    {Key::ShowTripletContent, Line::Silent},
    {Key::AddResource,        Line::Silent},

    // Names
    {Key::FQNType,            Line::Plain, L("Name subtype")},
    {Key::Content,            Line::Bold,  L("Content")},
    Own(Key::OIDType,            RenderOIDType, L("Registered object type")),
    Own(Key::Hyperlink,          RenderHyperlink, L("Hyperlink")),
    {Key::ObjectID,           Line::Hex,   L("ASN.1 Object Identifier (OID)")},
    {Key::ObjectTypeName,     Line::Plain, L("Object Type")},
    {Key::ObjectVersion,      Line::Plain, L("Object Version")},
    {Key::ObjectCompany,      Line::Plain, L("Company")},
    {Key::CDPID,              Line::Plain, L("Graphic code page ID")},
    {Key::LocalID,            Line::Plain, L("Local Identifier")},
    {Key::SectionID,          Line::Plain, L("Doublebyte Section ID")},
    {Key::XMLName,            Line::Bold,  L("XML tag")},
    {Key::UseOBP,             Line::Plain, L("Use OBP with ID")},
    {Key::UsePGP,             Line::Plain, L("Use PGP repeating group with ID")},
    {Key::ID,                 Line::Plain, L("Identifier")},

    // Fonts
    {Key::FontItalic,         Line::Flag,  L("Font is an italic font")},
    {Key::FontUnderscored,    Line::Flag,  L("Font contains underscored characters")},
    {Key::FontHollow,         Line::Flag,  L("Font contains hollow characters")},
    {Key::FontOverstrucked,   Line::Flag,  L("Font contains overstrucked characters")},
    {Key::FontProportional,   Line::Flag,  L("Font is proportional font")},
    {Key::FontKerned,         Line::Flag,  L("Characters are pairwise kerned")},
    {Key::FontTypeFlags,      Line::Flag,  L("Font Type Flags")},
    {Key::FontTransformation, Line::Flag,  L("Font may be transformed")},
    {Key::MICRFont,           Line::Flag,  L("Font is used for Magnetic Ink Character Recognition (MICR)")},
    {Key::UniCharIncHorz,     Line::Count, L("Uniform character increment for horizontal writing")},
    {Key::UniCharIncVert,     Line::Count, L("Uniform character increment for vertical writing")},
    {Key::BaselineAdjustHorz, Line::Count, L("Baseline offset adjustment for horizontal writing")},
    {Key::BaselineAdjustVert, Line::Count, L("Baseline offset adjustment for vertical writing")},

    // Function sets
    {Key::ArchitectureLevel,  Line::Plain, L("Architecture Level")},
    {Key::DCAFunctionSet,     Line::Plain, L("MO:DCA Function Set")},
    {Key::Level,              Line::Plain, L("Level")},
    {Key::Instance,           Line::Plain, L("Instance")},

    // Offsets
    {Key::IndexedObjOffset,   Line::Count, L("Byte offset to the indexed object counted from BDT")},
    {Key::IndexedSFOffset,    Line::Count, L("Structured field offset to the indexed object counted from BDT")},
    {Key::IndexedObjOutside,  Line::Words, L("Index outside"), kIndexOutside},
    {Key::IndexedSFOutside,   Line::Words, L("Index outside"), kIndexOutside},
    {Key::ObjectBytes,        Line::Count, L("Object size in bytes")},
    {Key::ObjectSF,           Line::Count, L("Object size in structured fields")},
    {Key::ObjectOffset,       Line::Count, L("Object Offset")},
    {Key::SubordinateObjects, Line::Count, L("No. of subordinate objekts")},
    {Key::PageNumber,         Line::Count, L("Page No. in Sequence")},

    // Areas
    {Key::SizeType,           Line::Words, L("Values are valid for"), kSizeType, Other::Unknown},
    Own(Key::UnitBase,           RenderUnitBase, L("Unit Base")),
    {Key::MixBonB,            Line::Words, L("Background (new) on Background (existing)"), kMixing, Other::Unknown},
    {Key::MixBonF,            Line::Words, L("Background (new) on Foreground (existing)"), kMixing, Other::Unknown},
    {Key::MixFonB,            Line::Words, L("Foreground (new) on Background (existing)"), kMixing, Other::Unknown},
    Own(Key::IMMInsertation,     RenderLabelAlone,
        L("The IMM structured field was included at a later date by a filtering application.")),

    // Management
    {Key::Format,             Line::Plain, L("Format")},
    {Key::Checksum,           Line::Plain, L("Checksum")},
    {Key::SaveResource,       Line::Flag,  L("Save Resource")},
    {Key::APSRMARKEC,         Line::Hex,   L("APSRMARK Engineering change information")},
    {Key::SystemID,           Line::Quoted, L("Processor ID")},
    {Key::StorageID,          Line::Quoted, L("Storage Media ID")},
    {Key::DSID,               Line::Quoted, L("Data Set ID")},
    {Key::InitPageNum,        Line::Count, L("Initial page number")},
    {Key::CountMODCA,         Line::Flag,  L("Count MO:DCA pages")},
    {Key::CountConstant,      Line::Flag,  L("Count constant pages")},
    {Key::ColorSubst,         Line::Words, L("Substitute missing color with"), kColorSubst, Other::Unknown},
    {Key::SequenceNo,         Line::Plain, L("Sequence number")},
    {Key::UP3iFinishing,      Line::Hex,   L("Finishing options regarding UP3i-specification")},
    {Key::FinishingAxis,      Line::Words, L("Virtual operation axis offset (in mm)"), kAxisDefault, Other::Count},
    {Key::FinishingPosition,  Line::Count, L("Operation position on axis (in mm)")},
    {Key::EncrRecord,         Line::Hex,   L("Encryption record")},
    {Key::IOCARI,             Line::Words, L("... for IOCA objects"), kRenderingIntent, Other::Unknown},
    {Key::OCRI,               Line::Words, L("... for object containers"), kRenderingIntent, Other::Unknown},
    {Key::PTOCARI,            Line::Words, L("... for PTOCA objects"), kRenderingIntent, Other::Unknown},

    // Locale
    {Key::LocLangCode,        Line::Plain, L("ISO-639 Language code")},
    {Key::LocScriptFlag,      Line::Flag,  L("ISO-15924 Script code flag")},
    {Key::LocScriptCode,      Line::Plain, L("ISO-15924 Script code")},
    {Key::LocRegionCode,      Line::Plain, L("ISO-3166 Region code")},
    {Key::LocVariantCode,     Line::Plain, L("Language or region code extension")},

    // Bar codes
    {Key::UseBCSymbol,        Line::Plain, L("Use previous Bar Code Symbol Descriptor with ID")},
    {Key::BCSegOrder,         Line::Plain, L("Bar code segment order")},
    {Key::HRIPresent,         Line::Flag,  L("Human Readable Interpretation is present")},
    {Key::Asterisk,           Line::Flag,  L("Start/Stop symbols shown as asterisk in HRI")},
    {Key::SuppressSymbol,     Line::Flag,  L("Suppress symbol, present only HRI")},
    {Key::SuppressBlanks,     Line::Flag,  L("Suppress blanks and adjust bar code data")},
    Own(Key::BCType,             RenderBCType, L("Bar code type")),
    Own(Key::BCMod,              RenderBCMod, L("Supplemental information")),
    Own(Key::BCModWidth,         RenderBCModWidth, L("Module (bar/space) width")),
    {Key::BCElemHeight,       Line::Words, L("Single bar code height"), kAxisDefault, Other::Count},
    Own(Key::BCHeightMult,       RenderBCHeightMult, L("Bar code height multiplier")),
    Own(Key::BCRatio,            RenderBCRatio, L("Wide to narrow ratio")),

    // Graphics
    {Key::PrimitiveMatchID,   Line::Plain, L("Triplet match ID")},
    {Key::PrimIEnd,           Line::Plain, L("Graphics end point I axis")},
    {Key::PrimBEnd,           Line::Plain, L("Graphics end point B axis")},
    {Key::DescriptorID,       Line::Plain, L("Graphics descriptor ID")},
    {Key::Boundary,           Line::Flag,  L("Draw boundaries")},
    {Key::Inside,             Line::Words, L("Fill mode"), kInside},
    Own(Key::RadiusFullArc,      RenderRadius, L("Radius full arc")),

    // Maps, includes, descriptors
    {Key::PassCSP,            Line::Flag,  L("Pass medium orientation to cut-sheet printers")},
    {Key::UsedCoordinates,    Line::Words, L("Used coordinate system"), kUsedCoordinates, Other::Unknown},
    {Key::FONName,            Line::Bold,  L("External font name")},
    {Key::CDPName,            Line::Bold,  L("External code page name")},
    {Key::CHSName,            Line::Bold,  L("External character set name")},
    {Key::OffsetX,            Line::Count, L("Offset in X direction")},
    {Key::OffsetY,            Line::Count, L("Offset in Y direction")},
};
// clang-format on

}  // namespace folioscope
