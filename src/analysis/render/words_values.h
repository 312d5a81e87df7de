#pragma once

// The words of coded values that the field families share. Only lines.cpp includes this. A word in quotes alone is a
// technical name, which is the same in every language.

#include "analysis/render/renderer.h"
#include "analysis/render/values.h"
#include "analysis/render/words_graphics.h"

namespace folioscope {

// clang-format off
constexpr Word kCMRDevApp[] = {{0, L("Device default")}, {1, L("Monochrome")}};
constexpr Word kCMRExReport[] = {{1, L("Yes")}, {2, L("No")}};
constexpr Word kTerminateOrContinue[] = {{1, L("terminate")}, {2, L("Continue")}};
constexpr Word kCMRProcMode[] = {
    {1, L("Process as audit CMR")}, {2, L("Process as instruction CMR")}, {3, L("Process as Devicelink CMR")},
};
constexpr Word kCMRScope[] = {
    {1, L("This data object")}, {2, L("This page or overlay")}, {3, L("This document")}, {4, L("This file")},
    {5, L("This page group")},
};
constexpr Word kCPISort[] = {{0, L("Ascending character ID")}, {1, L("Ascending code points")}};
constexpr Word kCPType[] = {
    {10, "Single-Byte"}, {11, "Double-Byte"}, {254, "Single-Byte incl. Unicode scalar values"},
    {255, "Double-Byte incl. Unicode scalar values"},
};
constexpr Word kCodeExtension[] = {{0, L("Not specified")}, {7, "UTF-8"}};
constexpr Word kCollection[] = {
    {0, L("No sheet collection at medium map level")}, {1, L("Begin medium map level sheet collection")},
    {2, L("Continue medium map level sheet collection")},
};
constexpr Word kStopOrContinue[] = {{1, L("Stop")}, {-1, L("Continue")}};
constexpr Word kColorMixing[] = {{0, L("Additive")}, {1, L("Subtractive")}};
constexpr Word kColorSpace[] = {
    {1, "RGB Color"}, {2, "RGB Grayscale"}, {4, "CMYK"}, {6, "Highlight Color"}, {8, "CIELAB"}, {64, "Standard OCA"},
};
constexpr Word kComparison[] = {
    {0, L("At any change")}, {1, L("If equal to")}, {2, L("If less than")}, {3, L("If equal to or less than")},
    {4, L("If greater than")}, {5, L("If equal to or greater than")}, {6, L("If not equal")},
    {7, L("execute always")},
};
constexpr Word kCountControl[] = {{0, L("Stop")}, {1, L("Resume")}, {2, L("Increment (continue)")}, {3, L("Reset")}};
constexpr Word kMapAction[] = {
    {0, L("No action")}, {1, L("Keep actual map")}, {2, L("Invoke named map")}, {3, L("Invoke first map")},
    {4, L("Invoke next map")},
};
constexpr Word kEjectControl[] = {
    {1, L("New sheet (Single Partition on sheet)")}, {2, L("Next partition in order (N-up)")},
    {3, L("Next front partition (N-up)")}, {4, L("Next back partition (N-up)")},
};
constexpr Word kEncodingBytes[] = {
    {0, L("Not specified")}, {1, "Fixed single-byte"}, {2, "Fixed double-byte"},
    {8, "UTF-n variable numbers of bytes"},
};
constexpr Word kEncodingEnv[] = {{3, "Microsoft"}};
constexpr Word kEncodingID[] = {{1, "Unicode"}};
constexpr Word kEncodingScheme[] = {
    {0, L("Not specified")}, {256, "Single-Byte"}, {512, "Double-Byte"}, {8448, "Single-Byte, ASCII"},
    {24832, "Single-Byte, EBCDIC"}, {25088, "Double-Byte, EBCDIC"}, {33280, "Double-Byte, Unicode"},
};
constexpr Word kEncodingStructure[] = {
    {0, L("Not specified")}, {1, "EBCDIC"}, {2, "IBM PC-Data"}, {3, "IBM PC-Display"}, {6, "EBCDIC Presentation"},
    {7, "UTF-16"}, {8, "UCS Unicode"},
};
constexpr Word kEncodingStructureUserData[] = {
    {0, L("Not specified")}, {1, "EBCDIC"}, {2, "IBM PC-Data"}, {3, "IBM PC-Display"}, {6, "EBCDIC Presentation"},
    {7, "UTF-16 inkl. surrogates"}, {8, "UTF-16, directly mappable"},
};
constexpr Word kEncrAlg[] = {{1, "RC4 encryption (symmetric)"}};
constexpr Word kEncrFormat[] = {{0, L("No encryption")}, {1, L("PDF Standard Security Handler")}};
constexpr Word kEncrMod[] = {{1, "RC4 encryption: 40 bit key"}, {2, "RC4 encryption: 128 bit key"}};
constexpr Word kExtGCGIDFormat[] = {{3, "ASCII"}, {5, "CMAP"}};
constexpr Word kFQNFormat[] = {
    {1, L("Character string")}, {2, L("Character string"), " / Global Resource Identifier (GRIC)"},
    {3, L("Undefined data")}, {4, L("ASN.1 Object Identifier (OID)")}, {5, "URL"},
};
constexpr Word kFieldAlign[] = {{0, L("Left")}, {1, L("Right")}};
constexpr Word kFinishingOperation[] = {
    {1, L("Corner staple")}, {2, L("Saddle-stitch out")}, {3, L("Edge Stitch")}, {4, L("Fold in")},
    {5, L("Separation cut")}, {6, L("Perforation cut")}, {7, L("Z-folding")}, {8, L("Center fold in")},
    {9, L("Trim after center fold or saddle stitch")}, {10, L("Punch")}, {12, L("Perfect bind")},
    {13, L("Ring bind")}, {14, L("C-fold in")}, {15, L("Accordion fold in")}, {18, L("Saddle-stitch in")},
    {24, L("Center fold out")}, {30, L("C-fold out")}, {31, L("Accordion fold out")},
    {32, L("Double parallel fold in")}, {33, L("Double gate fold in")}, {34, L("Single gate fold in")},
    {48, L("Double parallel fold out")}, {49, L("Double gate fold out")}, {50, L("Single gate fold out")},
};
constexpr Word kFontArchitecture[] = {{1, "Bitmap"}, {2, "Outline"}, {3, "TrueType / OpenType"}};
constexpr Word kFontLID[] = {{255, L("Default")}};
constexpr Word kFontWeightClass[] = {
    {0, L("Not specified")}, {1, "Ultra-light"}, {2, "Extra-light"}, {3, "Light"}, {4, "Semi-light"},
    {5, "Medium (normal)"}, {6, "Semi-bold"}, {7, "Bold"}, {8, "Extra-bold"}, {9, "Ultra-bold"},
};
constexpr Word kFontWidthClass[] = {
    {0, L("Not specified")}, {1, "Ultra-condensed"}, {2, "Extra-condensed"}, {3, "Condensed"}, {4, "Semi-condensed"},
    {5, "Medium (normal)"}, {6, "Semi-expanded"}, {7, "Expanded"}, {8, "Extra-expanded"}, {9, "Ultra-expanded"},
};
constexpr Word kFrequency[] = {{1, L("Low")}, {-1, L("High")}};
constexpr Word kRenderingIntent[] = {
    {0, L("perceptual")}, {1, L("media-relative colorimetric")}, {2, L("saturation")},
    {3, L("ICC-absolute colorimetric")}, {255, L("not specified")},
};
constexpr Word kGroupType[] = {{1, L("Additional Attributes")}, {2, L("Source")}, {3, L("Target")}};
constexpr Word kHRIPos[] = {{0, L("Default")}, {1, L("Below")}, {2, L("Above")}};
constexpr Word kISID[] = {
    {1, "MO:DCA AFP/Archive"}, {2304, "MO:DCA IS/1"}, {3072, "MO:DCA IS/2"}, {3328, "MO:DCA IS/3"},
    {3329, "MO:DCA AFP/Archive + IS/3"},
};
constexpr Word kISType[] = {
    {1, "Presentation Document"}, {3, "Resource Document"}, {5, "Archive/Presentation Document"},
};
constexpr Word kKeepGroup[] = {{1, L("Yes")}};
constexpr Word kLDFormat[] = {{0, "LND"}, {1, "RCD"}, {2, "XML"}};
constexpr Word kLinkType[] = {{1, L("Navigation")}, {2, L("Annotation")}, {3, L("Appendix")}};
constexpr Word kCodeForm[] = {{0, L("Not used")}, {2, L("2-Char code")}, {3, L("3-Char code")}};
constexpr Word kMappingOption[] = {
    {0, L("Upper left corner, no trim")}, {16, L("Upper left corner, trim to fit")},
    {32, L("Centered, scale symmetrically to fit target")}, {48, L("Centered, trim to fit")},
    {65, "1:1 (1 Point = 1 Pel)"}, {66, "1:2 (1 Point = 2 Pel)"},
    {80, L("Upper left corner, replicate object to fill target")},
    {96, L("Centered, scale asymmetrically to fill target")}, {112, L("UP3i Print Data mapping")},
};
constexpr Word kMediumOrientation[] = {
    {0, L("Portrait")}, {1, L("Landscape")}, {2, L("Reverse Portrait")}, {3, L("Reverse Landscape")},
    {4, L("Portrait, 90°")}, {5, L("Landscape, 90°")},
};
constexpr Word kMixing[] = {
    {0, L("Not specified")}, {1, L("Replace")}, {2, L("Keep")}, {3, L("Mix")}, {255, L("Default")},
};
constexpr Word kOCAFunctionSet[] = {{8, "PTOCA PT1"}, {16384, "GOCA DR/2V0"}, {32768, "IOCA FS10"}};
constexpr Word kOCAObjType[] = {
    {2, L("Text")}, {3, L("Graphics (GOCA)")}, {5, L("Bar Code (BCOCA)")}, {6, L("Image (IOCA)")},
};
constexpr Word kOVLType[] = {{1, L("Coded")}, {-1, L("Rastered")}};
constexpr Word kObjOrientation[] = {
    {0, L("Upper left edge, 0°")}, {1, L("Lower left edge, 270°")}, {2, L("Lower right edge, 180°")},
    {3, L("Upper right edge, 90°")},
};
constexpr Word kYesNoUnknown[] = {{1, L("Yes")}, {2, L("No")}, {3, L("Unknown")}};
constexpr Word kObjectClass[] = {
    {1, L("Fix data at run time")}, {16, L("Variable data at run time")}, {32, L("Executable Code")},
    {48, L("Set-up information")}, {64, L("Secondary Resource")}, {65, L("Data-object font")},
    {80, "Metadata Object"},
};
constexpr Word kObjectType[] = {
    {95, L("Page Segment")}, {146, L("Other Object Data")}, {155, L("Presentation Text with OEG")},
    {168, L("Document")}, {175, L("Page")}, {187, L("Graphics (GOCA)")}, {235, L("Bar Code (BCOCA)")},
    {223, L("Overlay")}, {251, L("Image (IOCA)")},
};
constexpr Word kOverlayType[] = {{0, L("Normal")}, {1, L("Annotation")}, {2, L("Redactional")}, {3, L("Highlight")}};
constexpr Word kPDFSize[] = {{1, "MediaBox"}, {2, "CropBox"}, {3, "BleedBox"}, {4, "TrimBox"}, {5, "ArtBox"}};
constexpr Word kProcess[] = {{0, L("Do not process")}, {1, L("process")}};
constexpr Word kParmType[] = {
    {0, L("Undefined data")}, {1, L("unsigned binary number")}, {2, L("signed binary number")}, {3, L("BIT string")},
    {4, L("Constant data")}, {5, L("Character string")}, {6, L("Name")},
};
constexpr Word kPatternTech[] = {
    {1, "Laser Matrix n-bit wide (Vertical sections)"}, {5, "Laser Matrix n-bit wide (Raster)"},
    {30, "Composite Adobe Type 0 (Outline)"}, {31, "Type 1 Font Printer File Binary (PFB, Outline)"},
};
constexpr Word kPictureDimension[] = {{0, L("Not absolute (not defined)")}, {1, L("Absolute (defined)")}};
constexpr Word kPrimitiveParms[] = {{1, L("All")}, {2, "Start"}, {3, L("Stop")}};
constexpr Word kPrimitiveType[] = {
    {1, L("Horizontal line")}, {2, L("Vertical line")}, {3, L("Diagonal line")}, {4, L("Full Arc")}, {5, L("Box")},
};
constexpr Word kRCDDelSize[] = {{0, "1"}, {1, "2"}};
constexpr Word kRCDSubType[] = {{0, L("Record RCD")}, {1, L("Field RCD")}, {2, L("Condition RCD")}};
constexpr Word kRecordType[] = {
    {0, L("Body")}, {1, L("Page Header")}, {2, L("Page Trailer")}, {3, L("Group Header")},
};
constexpr Word kRefCSys[] = {{0, L("Text (from LND/RCD)")}, {1, L("Page/Overlay")}};
constexpr Word kReferenceEdge[] = {
    {0, L("Bottom-right corner or bottom edge")}, {1, L("Top-right corner or right edge")},
    {2, L("Top-left corner or top edge")}, {3, L("Bottom-left corner or left edge")}, {255, L("Default")},
};
constexpr Word kResObjType[] = {
    {3, L("Graphics (GOCA)")}, {5, L("Bar Code (BCOCA)")}, {6, L("Image (IOCA)")}, {64, L("Character Set")},
    {65, L("Code page")}, {66, L("Font")}, {146, L("Object Container")}, {155, "Presentation Text Object (PTOCA)"},
    {168, L("Document")}, {251, L("Page Segment")}, {252, L("Overlay")}, {253, L("Page Definition")},
    {254, L("Form Definition")},
};
constexpr Word kResetFidelity[] = {{1, L("Replace")}, {-1, L("Add")}};
constexpr Word kResourceType[] = {
    {0, L("Default")}, {2, L("Overlay")}, {5, L("Font")}, {7, L("Color Table")}, {16, L("Image (IOCA)")},
    {48, L("IOB Reference")}, {64, L("Media Type Resource")}, {66, L("Media destination resource")},
};
constexpr Word kScope[] = {
    {1, L("Whole File")}, {2, L("All Documents")}, {3, L("Single Document")}, {4, L("Medium map")},
    {5, L("Medium map sheet collection")}, {17, L("Private, limited")}, {18, L("Public, unlimited")},
};
constexpr Word kSubtype[] = {
    {0, L("Drawing attributes")}, {1, L("Line attributes")}, {2, L("Character attributes")},
    {3, L("Marker attributes")}, {4, L("Pattern attributes")}, {11, L("Arc parameters")}, {16, L("Process Color")},
    {17, L("Normal line width")},
};
constexpr Word kSymmetric[] = {{0, L("Symmetric")}, {1, L("Non-symmetric, 120 x 144 ppi")}};
constexpr Word kSystem[] = {{1, "MVS"}, {2, "VM"}, {3, "PC-DOS"}, {4, "VSE"}};
constexpr Word kTSType[] = {{0, L("Creation")}, {1, L("RMARK")}, {3, L("Revision")}};
constexpr Word kTimingOfAction[] = {
    {0, L("Default")}, {1, L("before line")}, {2, L("before subpage")}, {129, L("after line")},
    {130, L("after subpage")},
};
constexpr Word kTonerSaver[] = {{0, L("Deactivated")}, {1, L("Activated")}, {255, L("Default")}};
constexpr Word kType[] = {
    {1, L("Element list")}, {2, L("Generator")}, {33, L("Current defaults specification")},
    {246, L("Drawing space specification")}, {247, L("Drawing order subset")},
};
constexpr Word kUsePMC[] = {{255, L("All")}};

constexpr LineRow kValueLines[] = {
    {Key::CMRDevApp,          Line::Words, L("Device appearance"), kCMRDevApp, Other::Unknown},
    {Key::CMRExReport,        Line::Words, L("Report CMR tag Exceptions"), kCMRExReport, Other::Unknown},
    {Key::CMRException,       Line::Words, L("CMR tag Exception continuation rule"), kTerminateOrContinue, Other::Unknown},
    {Key::CMRProcMode,        Line::Words, L("Processing mode for the CMR"), kCMRProcMode, Other::Unknown},
    {Key::CMRScope,           Line::Words, L("Scope of the CMR"), kCMRScope, Other::Unknown},
    {Key::CPISort,            Line::Words, L("Sort order of the following CPI elements"), kCPISort, Other::Last},
    {Key::CPType,             Line::Words, L("Code page type"), kCPType, Other::Nothing},
    {Key::CodeExtension,      Line::Words, L("Code Extension"), kCodeExtension, Other::Unknown},
    {Key::Collection,         Line::Words, L("Collection"), kCollection, Other::Unknown},
    {Key::ColorCont,          Line::Words, L("Color exception rule"), kStopOrContinue, Other::Last},
    {Key::ColorMixing,        Line::Words, L("Color mixing"), kColorMixing, Other::Last},
    {Key::ColorSpace,         Line::Words, L("Color Space"), kColorSpace, Other::Unknown},
    {Key::Comparison,         Line::Words, L("Comparison operation"), kComparison, Other::Unknown},
    {Key::CountControl,       Line::Words, L("Page count control"), kCountControl, Other::Unknown},
    {Key::DMAction,           Line::Words, L("Data Map Action"), kMapAction, Other::Unknown},
    {Key::EjectControl,       Line::Words, L("Print this partition on"), kEjectControl, Other::Unknown},
    {Key::EncodingBytes,      Line::Words, L("Character Set Type"), kEncodingBytes, Other::Unknown},
    {Key::EncodingEnv,        Line::Words, L("Encoding environment"), kEncodingEnv, Other::Unknown},
    {Key::EncodingID,         Line::Words, L("Encoding ID"), kEncodingID, Other::Unknown},
    {Key::EncodingScheme,     Line::Words, L("Font Encoding Scheme"), kEncodingScheme, Other::Unknown},
    {Key::EncodingStructure,  Line::Words, L("Encoding Structure"), kEncodingStructure, Other::Unknown},
    {Key::EncodingStructureUserData, Line::Words, L("Encoding Structure for User Data"), kEncodingStructureUserData, Other::Unknown},
    {Key::EncrAlg,            Line::Words, L("Encryption algorithm"), kEncrAlg, Other::Unknown},
    {Key::EncrFormat,         Line::Words, L("Encryption record format"), kEncrFormat, Other::Unknown},
    {Key::EncrMod,            Line::Words, L("Encryption algorithm modifiers"), kEncrMod, Other::Unknown},
    {Key::ExtGCGIDFormat,     Line::Words, L("Encoding for outline character IDs"), kExtGCGIDFormat, Other::Unknown},
    {Key::FQNFormat,          Line::Words, L("GID format"), kFQNFormat, Other::Unknown},
    {Key::FieldAlign,         Line::Words, L("Field alignment"), kFieldAlign, Other::Last},
    Own(Key::FieldDel,          RenderTextOrNotSpecified, L("Field Delimiter")),
    {Key::FinishContinuation, Line::Flag,  L("Stop presentation at first text exception")},
    {Key::FinishReporting,    Line::Flag,  L("Report finishing exception")},
    {Key::FinishingOperation, Line::Words, L("Finishing operation type"), kFinishingOperation, Other::Unknown},
    {Key::FontArchitecture,   Line::Words, L("Font architecture"), kFontArchitecture, Other::Unknown},
    {Key::FontLID,            Line::Words, L("Font"), kFontLID, Other::Number},
    {Key::FontNotAvailable,   Line::Words, L("If font is not available"), kStopOrContinue, Other::Last},
    {Key::FontWeightClass,    Line::Words, L("Font Weight Class"), kFontWeightClass, Other::Unknown},
    {Key::FontWidthClass,     Line::Words, L("Font Width Class"), kFontWidthClass, Other::Unknown},
    {Key::Frequency,          Line::Words, L("Frequency"), kFrequency, Other::Last},
    {Key::GOCARI,             Line::Words, L("... for GOCA objects"), kRenderingIntent, Other::Unknown},
    {Key::GroupType,          Line::Words, L("Group Type"), kGroupType, Other::Unknown},
    {Key::HRIPos,             Line::Words, L("Position of HRI line"), kHRIPos, Other::Unknown},
    {Key::ISID,               Line::Words, L("Interchange Set Sub Type"), kISID, Other::Unknown},
    {Key::ISType,             Line::Words, L("Interchange Set Data Type"), kISType, Other::Unknown},
    {Key::IndexData,          Line::Flag,  L("Intended for indexing")},
    {Key::KeepGroup,          Line::Words, L("Keep group together"), kKeepGroup, Other::Unknown},
    {Key::LDFormat,           Line::Words, L("Line Data will be formatted with"), kLDFormat, Other::Unknown},
    {Key::LNDFlagsCondition,  Line::Flag,  L("Use conditional processing")},
    {Key::LNDFlagsFixedData,  Line::Flag,  L("Use fixed data information")},
    {Key::LNDFlagsFont,       Line::Flag,  L("Use new font")},
    {Key::LNDFlagsInline,     Line::Flag,  L("Set new writing position X axis")},
    {Key::LNDFlagsReuse,      Line::Flag,  L("Use same data with other LND")},
    {Key::LNDFlagsSkip,       Line::Flag,  L("New page at unexpected skipping channel code")},
    {Key::LNDFlagsSpace,      Line::Flag,  L("New page at unexpected spacing channel code")},
    {Key::LNDFlagsSupp,       Line::Flag,  L("Suppress data")},
    {Key::LinkType,           Line::Words, L("Link Type"), kLinkType, Other::Unknown},
    {Key::LocLangFlag,        Line::Words, L("ISO-639 Language code flag"), kCodeForm, Other::Unknown},
    {Key::LocRegionFlag,      Line::Words, L("ISO-3166 Region code flag"), kCodeForm, Other::Unknown},
    {Key::MMAction,           Line::Words, L("Medium Map Action"), kMapAction, Other::Unknown},
    {Key::MappingOption,      Line::Words, L("Position in target object"), kMappingOption, Other::Unknown},
    {Key::MediaException,     Line::Words, L("Media exception process"), kTerminateOrContinue, Other::Unknown},
    {Key::MediumOrientation,  Line::Words, L("Medium orientation"), kMediumOrientation, Other::Unknown},
    {Key::MixFonF,            Line::Words, L("Foreground (new) on Foreground (existing)"), kMixing, Other::Unknown},
    {Key::MustEmbedFont,      Line::Flag,  L("Font must be embedded in resource group")},
    {Key::Notification,       Line::Flag,  L("Report error")},
    {Key::OCAFunctionSet,     Line::Words, L("OCA Function Set"), kOCAFunctionSet, Other::Unknown},
    {Key::OCAObjType,         Line::Words, L("Object Container Type"), kOCAObjType, Other::Unknown},
    {Key::OVLType,            Line::Words, L("Overlay type"), kOVLType, Other::Last},
    {Key::ObjOrientation,     Line::Words, L("Object origin and rotation"), kObjOrientation, Other::Unknown},
    {Key::ObjectBOC,          Line::Words, L("Object data is carried in a MO:DCA object container"), kYesNoUnknown, Other::Nothing},
    {Key::ObjectClass,        Line::Words, L("Object Class"), kObjectClass, Other::Unknown},
    {Key::ObjectOCD,          Line::Words, L("Object data is carried in OCD Structured Fields"), kYesNoUnknown, Other::Nothing},
    {Key::ObjectOEG,          Line::Words, L("Object container contains OEG Structured Fields"), kYesNoUnknown, Other::Nothing},
    {Key::ObjectType,         Line::Words, L("Object Type"), kObjectType, Other::Unknown},
    {Key::OverlayType,        Line::Words, L("Overlay Type"), kOverlayType, Other::Unknown},
    {Key::PDFSize,            Line::Words, L("PDF presentation space size"), kPDFSize, Other::Unknown},
    {Key::PPOOrient0,         Line::Words, L("Preprocess and cache at 0°"), kProcess, Other::Last},
    {Key::PPOOrient180,       Line::Words, L("Preprocess and cache at 180°"), kProcess, Other::Last},
    {Key::PPOOrient270,       Line::Words, L("Preprocess and cache at 270°"), kProcess, Other::Last},
    {Key::PPOOrient90,        Line::Words, L("Preprocess and cache at 90°"), kProcess, Other::Last},
    {Key::PPOPreprocess,      Line::Flag,  L("All pages instead of only one page")},
    {Key::ParmType,           Line::Words, L("Parameter type"), kParmType, Other::Unknown},
    {Key::PatternSID,         Line::Words, L("Pattern set"), kDefaultOrNumber, Other::Number},
    {Key::PatternTech,        Line::Words, L("Font pattern technology"), kPatternTech, Other::Unknown},
    {Key::PictureDimension,   Line::Words, L("Picture dimension"), kPictureDimension, Other::Last},
    {Key::PrimitiveParms,     Line::Words, L("Triplet specifies parameter"), kPrimitiveParms, Other::Unknown},
    {Key::PrimitiveType,      Line::Words, L("Graphics type"), kPrimitiveType, Other::Unknown},
    {Key::RCDDelSize,         Line::Words, L("Field delimiter size"), kRCDDelSize, Other::Last},
    {Key::RCDEndSpace,        Line::Flag,  L("Check for enough space at bottom")},
    {Key::RCDGroup,           Line::Flag,  L("Record is part of a group")},
    {Key::RCDNewPage,         Line::Flag,  L("Logical page eject first")},
    {Key::RCDSubType,         Line::Words, L("Record sub type"), kRCDSubType, Other::Unknown},
    {Key::RCDType,            Line::Words, L("Record type"), kRecordType, Other::Unknown},
    {Key::RecIDData,          Line::Flag,  L("Use record ID as data field")},
    {Key::RefCSys,            Line::Words, L("Reference coordinate system"), kRefCSys, Other::Unknown},
    {Key::ReferenceEdge,      Line::Words, L("Operation corner or edge"), kReferenceEdge, Other::Unknown},
    {Key::ResObjType,         Line::Words, L("Object Type"), kResObjType, Other::Unknown},
    {Key::ResetFidelity,      Line::Words, L("Replace/Add following settings"), kResetFidelity, Other::Last},
    {Key::ResourceType,       Line::Words, L("Resource Type"), kResourceType, Other::Unknown},
    {Key::Scope,              Line::Words, L("Scope"), kScope, Other::Unknown},
    {Key::Subtype,            Line::Words, L("Subtype"), kSubtype, Other::Unknown},
    {Key::Symmetric,          Line::Words, L("Image symmetric"), kSymmetric, Other::Unknown},
    {Key::System,             Line::Words, L("System"), kSystem, Other::Unknown},
    {Key::TSType,             Line::Words, L("Time Stamp Type"), kTSType, Other::Unknown},
    {Key::TextContinuation,   Line::Flag,  L("Stop presentation at first text exception")},
    {Key::TextReporting,      Line::Flag,  L("Report text exception")},
    {Key::TimingOfAction,     Line::Words, L("Timing of action"), kTimingOfAction, Other::Unknown},
    {Key::TonerSaver,         Line::Words, L("Toner saver mode"), kTonerSaver, Other::Unknown},
    {Key::Type,               Line::Words, L("Type"), kType, Other::Unknown},
    {Key::UseGivenReference,  Line::Flag,  L("Use data to override object name")},
    {Key::UseMMC,             Line::Words, L("Use MMC with ID"), kDefaultOrNumber, Other::Number},
    {Key::UsePMC,             Line::Words, L("Use PMC with ID"), kUsePMC, Other::Number},
    {Key::ViewData,           Line::Flag,  L("Intended for viewing")},
    {Key::XMLElementType,     Line::Words, L("Element type"), kRecordType, Other::Unknown},
    Own(Key::Encrypted,         RenderTwoWords, L("Encrypted")),
    Own(Key::Overprint,         RenderTwoWords, L("Overprint actual page with following data")),
    {Key::FinishingCount,     Line::Plain, L("Finishing operation count")},
    Own(Key::Resolution,        RenderImageResolution, L("Resolution X/Y")),

    Own(Key::CHSID2,            RenderGlobalId, L("Graphic character set ID")),
    Own(Key::CDPID2,            RenderGlobalId, L("Graphic code page ID")),
    Own(Key::FONID2,            RenderGlobalId, L("Font Typeface ID")),
    Own(Key::FontHeight,        RenderPoints, L("Font height")),
    Own(Key::MaxFontHeight,     RenderPoints, L("Maximum recommended font height")),
    Own(Key::NomFontHeight,     RenderPoints, L("Nominal font height")),
    Own(Key::MinFontHeight,     RenderPoints, L("Minimum recommended font height")),
    Own(Key::FontWidth,         RenderPoints, L("Font width")),
    Own(Key::MaxFontWidth,      RenderPoints, L("Maximum recommended font width")),
    Own(Key::NomFontWidth,      RenderPoints, L("Nominal font width")),
    Own(Key::MinFontWidth,      RenderPoints, L("Minimum recommended font width")),
    Own(Key::NewRelInlinePos,   RenderMovement, L("Movement of writing position X axis")),
    Own(Key::NewRelBaselinePos, RenderMovement, L("Movement of writing position Y axis")),
    Own(Key::IAxis,             RenderDegrees, L("Rotation of the cursor to the document")),
    Own(Key::BAxis,             RenderDegrees, L("Rotation of the baseline to the document")),
    {Key::TimeStamp,          Line::Quoted, L("Time stamp")},
};
// clang-format on

}  // namespace folioscope
