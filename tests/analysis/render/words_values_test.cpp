// Every coded value with its word, and what is said of a value that has none.

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/family_support.h"
#include "analysis/render/lines.h"

namespace folioscope {
namespace {

using namespace test;

using Lines = std::vector<std::string>;

// What is shown of a value that isn't listed.
enum Others { Unknown, Nothing, Number, Last, Flag };

constexpr std::int64_t kElse = -1;  // any other value

struct WordCase {
    std::int64_t value;
    std::string_view word;
};

struct WordsCase {
    Key key;
    std::string_view label;
    Others others;
    std::vector<WordCase> words;
};

std::ostream& operator<<(std::ostream& out, const WordsCase& words) { return out << words.label; }

// clang-format off
const WordsCase kCases[] = {
    {Key::BackgroundMix, "Mixing of background colors", Last, {{5, "Leave alone (transparent)"}, {kElse, "Default"}}},
    {Key::CHSID, "Graphic character set ID", Number, {{0, "Default"}, {65535, "All"}}},
    {Key::CMRDevApp, "Device appearance", Unknown, {{0, "Device default"}, {1, "Monochrome"}}},
    {Key::CMRExReport, "Report CMR tag Exceptions", Unknown, {{1, "Yes"}, {2, "No"}}},
    {Key::CMRException, "CMR tag Exception continuation rule", Unknown, {{1, "terminate"}, {2, "Continue"}}},
    {Key::CMRProcMode, "Processing mode for the CMR", Unknown, {
        {1, "Process as audit CMR"}, {2, "Process as instruction CMR"}, {3, "Process as Devicelink CMR"}}},
    {Key::CMRScope, "Scope of the CMR", Unknown, {
        {1, "This data object"}, {2, "This page or overlay"}, {3, "This document"}, {4, "This file"},
        {5, "This page group"}}},
    {Key::CPISort, "Sort order of the following CPI elements", Flag, {
        {0, "Ascending character ID"}, {1, "Ascending code points"}}},
    {Key::CPType, "Code page type", Nothing, {
        {10, "Single-Byte"}, {11, "Double-Byte"}, {254, "Single-Byte incl. Unicode scalar values"},
        {255, "Double-Byte incl. Unicode scalar values"}}},
    {Key::CharDirection, "Character direction", Unknown, {
        {0, "Default"}, {1, "Left to right"}, {2, "Top to bottom"}, {3, "Right to left"}, {4, "Bottom to top"}}},
    {Key::CodeExtension, "Code Extension", Unknown, {{0, "Not specified"}, {7, "UTF-8"}}},
    {Key::Collection, "Collection", Unknown, {
        {0, "No sheet collection at medium map level"}, {1, "Begin medium map level sheet collection"},
        {2, "Continue medium map level sheet collection"}}},
    {Key::ColorCont, "Color exception rule", Last, {{1, "Stop"}, {kElse, "Continue"}}},
    {Key::ColorMixing, "Color mixing", Flag, {{0, "Additive"}, {1, "Subtractive"}}},
    {Key::ColorSpace, "Color Space", Unknown, {
        {1, "RGB Color"}, {2, "RGB Grayscale"}, {4, "CMYK"}, {6, "Highlight Color"}, {8, "CIELAB"},
        {64, "Standard OCA"}}},
    {Key::Comparison, "Comparison operation", Unknown, {
        {0, "At any change"}, {1, "If equal to"}, {2, "If less than"}, {3, "If equal to or less than"},
        {4, "If greater than"}, {5, "If equal to or greater than"}, {6, "If not equal"}, {7, "execute always"}}},
    {Key::CountControl, "Page count control", Unknown, {
        {0, "Stop"}, {1, "Resume"}, {2, "Increment (continue)"}, {3, "Reset"}}},
    {Key::DMAction, "Data Map Action", Unknown, {
        {0, "No action"}, {1, "Keep actual map"}, {2, "Invoke named map"}, {3, "Invoke first map"},
        {4, "Invoke next map"}}},
    {Key::EjectControl, "Print this partition on", Unknown, {
        {1, "New sheet (Single Partition on sheet)"}, {2, "Next partition in order (N-up)"},
        {3, "Next front partition (N-up)"}, {4, "Next back partition (N-up)"}}},
    {Key::EncodingBytes, "Character Set Type", Unknown, {
        {0, "Not specified"}, {1, "Fixed single-byte"}, {2, "Fixed double-byte"},
        {8, "UTF-n variable numbers of bytes"}}},
    {Key::EncodingEnv, "Encoding environment", Unknown, {{3, "Microsoft"}}},
    {Key::EncodingID, "Encoding ID", Unknown, {{1, "Unicode"}}},
    {Key::EncodingScheme, "Font Encoding Scheme", Unknown, {
        {0, "Not specified"}, {256, "Single-Byte"}, {512, "Double-Byte"}, {8448, "Single-Byte, ASCII"},
        {24832, "Single-Byte, EBCDIC"}, {25088, "Double-Byte, EBCDIC"}, {33280, "Double-Byte, Unicode"}}},
    {Key::EncodingStructure, "Encoding Structure", Unknown, {
        {0, "Not specified"}, {1, "EBCDIC"}, {2, "IBM PC-Data"}, {3, "IBM PC-Display"}, {6, "EBCDIC Presentation"},
        {7, "UTF-16"}, {8, "UCS Unicode"}}},
    {Key::EncodingStructureUserData, "Encoding Structure for User Data", Unknown, {
        {0, "Not specified"}, {1, "EBCDIC"}, {2, "IBM PC-Data"}, {3, "IBM PC-Display"}, {6, "EBCDIC Presentation"},
        {7, "UTF-16 inkl. surrogates"}, {8, "UTF-16, directly mappable"}}},
    {Key::EncrAlg, "Encryption algorithm", Unknown, {{1, "RC4 encryption (symmetric)"}}},
    {Key::EncrFormat, "Encryption record format", Unknown, {
        {0, "No encryption"}, {1, "PDF Standard Security Handler"}}},
    {Key::EncrMod, "Encryption algorithm modifiers", Unknown, {
        {1, "RC4 encryption: 40 bit key"}, {2, "RC4 encryption: 128 bit key"}}},
    {Key::Encrypted, "Encrypted", Flag, {{0, "No, Yes"}, {1, "Yes, No"}}},
    {Key::ExtGCGIDFormat, "Encoding for outline character IDs", Unknown, {{3, "ASCII"}, {5, "CMAP"}}},
    {Key::FQNFormat, "GID format", Unknown, {
        {1, "Character string"}, {2, "Character string / Global Resource Identifier (GRIC)"}, {3, "Undefined data"},
        {4, "ASN.1 Object Identifier (OID)"}, {5, "URL"}}},
    {Key::FieldAlign, "Field alignment", Flag, {{0, "Left"}, {1, "Right"}}},
    {Key::FinishContinuation, "Stop presentation at first text exception", Flag, {{0, "No"}, {1, "Yes"}}},
    {Key::FinishReporting, "Report finishing exception", Flag, {{0, "No"}, {1, "Yes"}}},
    {Key::FinishingCount, "Finishing operation count", Number, {}},
    {Key::FinishingOperation, "Finishing operation type", Unknown, {
        {1, "Corner staple"}, {2, "Saddle-stitch out"}, {3, "Edge Stitch"}, {4, "Fold in"}, {5, "Separation cut"},
        {6, "Perforation cut"}, {7, "Z-folding"}, {8, "Center fold in"},
        {9, "Trim after center fold or saddle stitch"}, {10, "Punch"}, {12, "Perfect bind"}, {13, "Ring bind"},
        {14, "C-fold in"}, {15, "Accordion fold in"}, {18, "Saddle-stitch in"}, {24, "Center fold out"},
        {30, "C-fold out"}, {31, "Accordion fold out"}, {32, "Double parallel fold in"}, {33, "Double gate fold in"},
        {34, "Single gate fold in"}, {48, "Double parallel fold out"}, {49, "Double gate fold out"},
        {50, "Single gate fold out"}}},
    {Key::FontArchitecture, "Font architecture", Unknown, {
        {1, "Bitmap"}, {2, "Outline"}, {3, "TrueType / OpenType"}}},
    {Key::FontLID, "Font", Number, {{255, "Default"}}},
    {Key::FontNotAvailable, "If font is not available", Last, {{1, "Stop"}, {kElse, "Continue"}}},
    {Key::FontWeightClass, "Font Weight Class", Unknown, {
        {0, "Not specified"}, {1, "Ultra-light"}, {2, "Extra-light"}, {3, "Light"}, {4, "Semi-light"},
        {5, "Medium (normal)"}, {6, "Semi-bold"}, {7, "Bold"}, {8, "Extra-bold"}, {9, "Ultra-bold"}}},
    {Key::FontWidthClass, "Font Width Class", Unknown, {
        {0, "Not specified"}, {1, "Ultra-condensed"}, {2, "Extra-condensed"}, {3, "Condensed"},
        {4, "Semi-condensed"}, {5, "Medium (normal)"}, {6, "Semi-expanded"}, {7, "Expanded"}, {8, "Extra-expanded"},
        {9, "Ultra-expanded"}}},
    {Key::ForegroundMix, "Mixing of foreground colors", Last, {{2, "Overpaint (opaque)"}, {kElse, "Default"}}},
    {Key::Frequency, "Frequency", Last, {{1, "Low"}, {kElse, "High"}}},
    {Key::GOCARI, "... for GOCA objects", Unknown, {
        {0, "perceptual"}, {1, "media-relative colorimetric"}, {2, "saturation"}, {3, "ICC-absolute colorimetric"},
        {255, "not specified"}}},
    {Key::GroupType, "Group Type", Unknown, {{1, "Additional Attributes"}, {2, "Source"}, {3, "Target"}}},
    {Key::HRIPos, "Position of HRI line", Unknown, {{0, "Default"}, {1, "Below"}, {2, "Above"}}},
    {Key::ISID, "Interchange Set Sub Type", Unknown, {
        {1, "MO:DCA AFP/Archive"}, {2304, "MO:DCA IS/1"}, {3072, "MO:DCA IS/2"}, {3328, "MO:DCA IS/3"},
        {3329, "MO:DCA AFP/Archive + IS/3"}}},
    {Key::ISType, "Interchange Set Data Type", Unknown, {
        {1, "Presentation Document"}, {3, "Resource Document"}, {5, "Archive/Presentation Document"}}},
    {Key::IndexData, "Intended for indexing", Flag, {{0, "No"}, {1, "Yes"}}},
    {Key::KeepGroup, "Keep group together", Unknown, {{1, "Yes"}}},
    {Key::LDFormat, "Line Data will be formatted with", Unknown, {{0, "LND"}, {1, "RCD"}, {2, "XML"}}},
    {Key::LNDFlagsCondition, "Use conditional processing", Flag, {{0, "No"}, {1, "Yes"}}},
    {Key::LNDFlagsFixedData, "Use fixed data information", Flag, {{0, "No"}, {1, "Yes"}}},
    {Key::LNDFlagsFont, "Use new font", Flag, {{0, "No"}, {1, "Yes"}}},
    {Key::LNDFlagsInline, "Set new writing position X axis", Flag, {{0, "No"}, {1, "Yes"}}},
    {Key::LNDFlagsReuse, "Use same data with other LND", Flag, {{0, "No"}, {1, "Yes"}}},
    {Key::LNDFlagsSkip, "New page at unexpected skipping channel code", Flag, {{0, "No"}, {1, "Yes"}}},
    {Key::LNDFlagsSpace, "New page at unexpected spacing channel code", Flag, {{0, "No"}, {1, "Yes"}}},
    {Key::LNDFlagsSupp, "Suppress data", Flag, {{0, "No"}, {1, "Yes"}}},
    {Key::LineEnd, "Line end type", Unknown, {{0, "Default"}, {1, "Flat"}, {2, "Square"}, {3, "Round"}}},
    {Key::LineJoin, "Line join type", Unknown, {{0, "Default"}, {1, "Bevel"}, {2, "Round"}, {3, "Miter"}}},
    {Key::LineType, "Line type", Unknown, {
        {0, "Default"}, {1, "Dotted line"}, {2, "Short dashed line"}, {3, "Dash-dot line"},
        {4, "Double dotted line"}, {5, "Long dashed line"}, {6, "Dash double-dot line"}, {7, "Solid line"},
        {8, "Invisible line"}}},
    {Key::LinkType, "Link Type", Unknown, {{1, "Navigation"}, {2, "Annotation"}, {3, "Appendix"}}},
    {Key::LocLangFlag, "ISO-639 Language code flag", Unknown, {
        {0, "Not used"}, {2, "2-Char code"}, {3, "3-Char code"}}},
    {Key::LocRegionFlag, "ISO-3166 Region code flag", Unknown, {
        {0, "Not used"}, {2, "2-Char code"}, {3, "3-Char code"}}},
    {Key::MMAction, "Medium Map Action", Unknown, {
        {0, "No action"}, {1, "Keep actual map"}, {2, "Invoke named map"}, {3, "Invoke first map"},
        {4, "Invoke next map"}}},
    {Key::MSID, "Bullet character set", Number, {{0, "Default"}}},
    {Key::MappingOption, "Position in target object", Unknown, {
        {0, "Upper left corner, no trim"}, {16, "Upper left corner, trim to fit"},
        {32, "Centered, scale symmetrically to fit target"}, {48, "Centered, trim to fit"},
        {65, "1:1 (1 Point = 1 Pel)"}, {66, "1:2 (1 Point = 2 Pel)"},
        {80, "Upper left corner, replicate object to fill target"},
        {96, "Centered, scale asymmetrically to fill target"}, {112, "UP3i Print Data mapping"}}},
    {Key::MarkerSymbol, "Bullet", Unknown, {
        {0, "Default"}, {1, "Cross"}, {2, "Plus sign"}, {3, "Empty diamond"}, {4, "Empty square"},
        {5, "6-point star"}, {6, "8-point star"}, {7, "Filled diamond"}, {8, "Filled square"}, {9, "Filled Circle"},
        {10, "Empty circle"}, {64, "Blank"}}},
    {Key::MediaException, "Media exception process", Unknown, {{1, "terminate"}, {2, "Continue"}}},
    {Key::MediumOrientation, "Medium orientation", Unknown, {
        {0, "Portrait"}, {1, "Landscape"}, {2, "Reverse Portrait"}, {3, "Reverse Landscape"}, {4, "Portrait, 90°"},
        {5, "Landscape, 90°"}}},
    {Key::MixFonF, "Foreground (new) on Foreground (existing)", Unknown, {
        {0, "Not specified"}, {1, "Replace"}, {2, "Keep"}, {3, "Mix"}, {255, "Default"}}},
    {Key::MustEmbedFont, "Font must be embedded in resource group", Flag, {{0, "No"}, {1, "Yes"}}},
    {Key::Notification, "Report error", Flag, {{0, "No"}, {1, "Yes"}}},
    {Key::OCAFunctionSet, "OCA Function Set", Unknown, {
        {8, "PTOCA PT1"}, {16384, "GOCA DR/2V0"}, {32768, "IOCA FS10"}}},
    {Key::OCAObjType, "Object Container Type", Unknown, {
        {2, "Text"}, {3, "Graphics (GOCA)"}, {5, "Bar Code (BCOCA)"}, {6, "Image (IOCA)"}}},
    {Key::OVLType, "Overlay type", Last, {{1, "Coded"}, {kElse, "Rastered"}}},
    {Key::ObjOrientation, "Object origin and rotation", Unknown, {
        {0, "Upper left edge, 0°"}, {1, "Lower left edge, 270°"}, {2, "Lower right edge, 180°"},
        {3, "Upper right edge, 90°"}}},
    {Key::ObjectBOC, "Object data is carried in a MO:DCA object container", Nothing, {
        {1, "Yes"}, {2, "No"}, {3, "Unknown"}}},
    {Key::ObjectClass, "Object Class", Unknown, {
        {1, "Fix data at run time"}, {16, "Variable data at run time"}, {32, "Executable Code"},
        {48, "Set-up information"}, {64, "Secondary Resource"}, {65, "Data-object font"}, {80, "Metadata Object"}}},
    {Key::ObjectOCD, "Object data is carried in OCD Structured Fields", Nothing, {
        {1, "Yes"}, {2, "No"}, {3, "Unknown"}}},
    {Key::ObjectOEG, "Object container contains OEG Structured Fields", Nothing, {
        {1, "Yes"}, {2, "No"}, {3, "Unknown"}}},
    {Key::ObjectType, "Object Type", Unknown, {
        {95, "Page Segment"}, {146, "Other Object Data"}, {155, "Presentation Text with OEG"}, {168, "Document"},
        {175, "Page"}, {187, "Graphics (GOCA)"}, {235, "Bar Code (BCOCA)"}, {223, "Overlay"}, {251, "Image (IOCA)"}}},
    {Key::OverlayType, "Overlay Type", Unknown, {
        {0, "Normal"}, {1, "Annotation"}, {2, "Redactional"}, {3, "Highlight"}}},
    {Key::Overprint, "Overprint actual page with following data", Flag, {{0, "No, Replace"}, {1, "Yes, Add"}}},
    {Key::PDFSize, "PDF presentation space size", Unknown, {
        {1, "MediaBox"}, {2, "CropBox"}, {3, "BleedBox"}, {4, "TrimBox"}, {5, "ArtBox"}}},
    {Key::PPOOrient0, "Preprocess and cache at 0°", Flag, {{0, "Do not process"}, {1, "process"}}},
    {Key::PPOOrient180, "Preprocess and cache at 180°", Flag, {{0, "Do not process"}, {1, "process"}}},
    {Key::PPOOrient270, "Preprocess and cache at 270°", Flag, {{0, "Do not process"}, {1, "process"}}},
    {Key::PPOOrient90, "Preprocess and cache at 90°", Flag, {{0, "Do not process"}, {1, "process"}}},
    {Key::PPOPreprocess, "All pages instead of only one page", Flag, {{0, "No"}, {1, "Yes"}}},
    {Key::ParmType, "Parameter type", Unknown, {
        {0, "Undefined data"}, {1, "unsigned binary number"}, {2, "signed binary number"}, {3, "BIT string"},
        {4, "Constant data"}, {5, "Character string"}, {6, "Name"}}},
    {Key::PatternSID, "Pattern set", Number, {{0, "Default"}}},
    {Key::PatternSymbol, "Pattern symbol", Unknown, {
        {0, "Default"}, {1, "Dotted pattern"}, {2, "Dotted pattern"}, {3, "Dotted pattern"}, {4, "Dotted pattern"},
        {5, "Dotted pattern"}, {6, "Dotted pattern"}, {7, "Dotted pattern"}, {8, "Dotted pattern"},
        {9, "Vertical lines"}, {10, "Horizontal lines"}, {11, "Diagonal lines (bottom-left to top-right)"},
        {12, "Diagonal lines (bottom-left to top-right)"}, {13, "Diagonal lines (top-left to bottom-right)"},
        {14, "Diagonal lines (top-left to bottom-right)"}, {15, "No fill"}, {16, "Solid fill"}, {64, "Blank"}}},
    {Key::PatternTech, "Font pattern technology", Unknown, {
        {1, "Laser Matrix n-bit wide (Vertical sections)"}, {5, "Laser Matrix n-bit wide (Raster)"},
        {30, "Composite Adobe Type 0 (Outline)"}, {31, "Type 1 Font Printer File Binary (PFB, Outline)"}}},
    {Key::PictureDimension, "Picture dimension", Flag, {
        {0, "Not absolute (not defined)"}, {1, "Absolute (defined)"}}},
    {Key::Precision, "Precision", Unknown, {
        {0, "Default"}, {1, "Inaccurate (String)"}, {2, "Accurate (Character)"}, {3, "Very accurate"}}},
    {Key::PrimitiveParms, "Triplet specifies parameter", Unknown, {{1, "All"}, {2, "Start"}, {3, "Stop"}}},
    {Key::PrimitiveType, "Graphics type", Unknown, {
        {1, "Horizontal line"}, {2, "Vertical line"}, {3, "Diagonal line"}, {4, "Full Arc"}, {5, "Box"}}},
    {Key::RCDDelSize, "Field delimiter size", Flag, {{0, "1"}, {1, "2"}}},
    {Key::RCDEndSpace, "Check for enough space at bottom", Flag, {{0, "No"}, {1, "Yes"}}},
    {Key::RCDGroup, "Record is part of a group", Flag, {{0, "No"}, {1, "Yes"}}},
    {Key::RCDNewPage, "Logical page eject first", Flag, {{0, "No"}, {1, "Yes"}}},
    {Key::RCDSubType, "Record sub type", Unknown, {{0, "Record RCD"}, {1, "Field RCD"}, {2, "Condition RCD"}}},
    {Key::RCDType, "Record type", Unknown, {
        {0, "Body"}, {1, "Page Header"}, {2, "Page Trailer"}, {3, "Group Header"}}},
    {Key::RecIDData, "Use record ID as data field", Flag, {{0, "No"}, {1, "Yes"}}},
    {Key::RefCSys, "Reference coordinate system", Unknown, {{0, "Text (from LND/RCD)"}, {1, "Page/Overlay"}}},
    {Key::ReferenceEdge, "Operation corner or edge", Unknown, {
        {0, "Bottom-right corner or bottom edge"}, {1, "Top-right corner or right edge"},
        {2, "Top-left corner or top edge"}, {3, "Bottom-left corner or left edge"}, {255, "Default"}}},
    {Key::ResObjType, "Object Type", Unknown, {
        {3, "Graphics (GOCA)"}, {5, "Bar Code (BCOCA)"}, {6, "Image (IOCA)"}, {64, "Character Set"},
        {65, "Code page"}, {66, "Font"}, {146, "Object Container"}, {155, "Presentation Text Object (PTOCA)"},
        {168, "Document"}, {251, "Page Segment"}, {252, "Overlay"}, {253, "Page Definition"}, {254, "Form Definition"}}},
    {Key::ResetFidelity, "Replace/Add following settings", Last, {{1, "Replace"}, {kElse, "Add"}}},
    {Key::ResourceType, "Resource Type", Unknown, {
        {0, "Default"}, {2, "Overlay"}, {5, "Font"}, {7, "Color Table"}, {16, "Image (IOCA)"}, {48, "IOB Reference"},
        {64, "Media Type Resource"}, {66, "Media destination resource"}}},
    {Key::Scope, "Scope", Unknown, {
        {1, "Whole File"}, {2, "All Documents"}, {3, "Single Document"}, {4, "Medium map"},
        {5, "Medium map sheet collection"}, {17, "Private, limited"}, {18, "Public, unlimited"}}},
    {Key::Subtype, "Subtype", Unknown, {
        {0, "Drawing attributes"}, {1, "Line attributes"}, {2, "Character attributes"}, {3, "Marker attributes"},
        {4, "Pattern attributes"}, {11, "Arc parameters"}, {16, "Process Color"}, {17, "Normal line width"}}},
    {Key::Symmetric, "Image symmetric", Unknown, {{0, "Symmetric"}, {1, "Non-symmetric, 120 x 144 ppi"}}},
    {Key::System, "System", Unknown, {{1, "MVS"}, {2, "VM"}, {3, "PC-DOS"}, {4, "VSE"}}},
    {Key::TSType, "Time Stamp Type", Unknown, {{0, "Creation"}, {1, "RMARK"}, {3, "Revision"}}},
    {Key::TextContinuation, "Stop presentation at first text exception", Flag, {{0, "No"}, {1, "Yes"}}},
    {Key::TextReporting, "Report text exception", Flag, {{0, "No"}, {1, "Yes"}}},
    {Key::TimingOfAction, "Timing of action", Unknown, {
        {0, "Default"}, {1, "before line"}, {2, "before subpage"}, {129, "after line"}, {130, "after subpage"}}},
    {Key::TonerSaver, "Toner saver mode", Unknown, {{0, "Deactivated"}, {1, "Activated"}, {255, "Default"}}},
    {Key::Type, "Type", Unknown, {
        {1, "Element list"}, {2, "Generator"}, {33, "Current defaults specification"},
        {246, "Drawing space specification"}, {247, "Drawing order subset"}}},
    {Key::UseGivenReference, "Use data to override object name", Flag, {{0, "No"}, {1, "Yes"}}},
    {Key::UseMMC, "Use MMC with ID", Number, {{0, "Default"}}},
    {Key::UsePMC, "Use PMC with ID", Number, {{255, "All"}}},
    {Key::ViewData, "Intended for viewing", Flag, {{0, "No"}, {1, "Yes"}}},
    {Key::XMLElementType, "Element type", Unknown, {
        {0, "Body"}, {1, "Page Header"}, {2, "Page Trailer"}, {3, "Group Header"}}},
};
// clang-format on

bool IsListed(const WordsCase& words, std::int64_t value)
{
    return std::ranges::any_of(words.words, [&](const WordCase& word) { return word.value == value; });
}

// The values around the listed ones, and the ends of the ranges that fields have.
std::set<std::int64_t> UnlistedValues(const WordsCase& words)
{
    std::set<std::int64_t> values;
    const auto enter = [&](std::int64_t value) {
        if (value >= 0 && !IsListed(words, value)) values.insert(value);
    };
    for (const WordCase& word : words.words) {
        if (word.value == kElse) continue;
        enter(word.value - 1);
        enter(word.value + 1);
    }
    for (const std::int64_t value : {0, 1, 127, 128, 254, 255, 256, 32'767, 32'768, 65'534, 65'535}) enter(value);
    return values;
}

std::string_view WordFor(const WordsCase& words, std::int64_t value)
{
    for (const auto& [listed, word] : words.words)
        if (listed == value) return word;
    return {};
}

std::string LineFor(const WordsCase& words, std::string_view word)
{
    return std::string(words.label) + ": " + std::string(word) + '\n';
}

class EachCodedValue : public testing::TestWithParam<WordsCase> {};

TEST_P(EachCodedValue, HasItsWord)
{
    LineBench bench;
    for (const auto& [value, word] : GetParam().words) {
        if (value == kElse) continue;
        EXPECT_EQ(bench.Text(GetParam().key, value), LineFor(GetParam(), word));
        EXPECT_EQ(bench.witness.heard, Lines{});
    }
}

TEST_P(EachCodedValue, IsToldOfWithoutAWordToo)
{
    for (const std::int64_t value : UnlistedValues(GetParam())) {
        const std::string number = std::to_string(value), label(GetParam().label);
        LineBench bench;
        const std::string text = bench.Text(GetParam().key, value);
        Lines heard;
        switch (GetParam().others) {
        case Unknown:
            EXPECT_EQ(text, LineFor(GetParam(), "<red>Unknown (" + number + ")</red>"));
            heard = {"Message " + label + ": Unknown (" + number + ")", "Invalid"};
            break;
        case Nothing: EXPECT_EQ(text, "") << value; break;
        case Number: EXPECT_EQ(text, LineFor(GetParam(), number)); break;
        case Last: EXPECT_EQ(text, LineFor(GetParam(), WordFor(GetParam(), kElse))) << value; break;
        case Flag: EXPECT_EQ(text, LineFor(GetParam(), WordFor(GetParam(), 1))) << value; break;
        }
        EXPECT_EQ(bench.witness.heard, heard);
    }
}

// A wording that the catalog has is translated, any other is the same in all languages.
std::string_view InGerman(std::string_view english)
{
    for (const CatalogKey& row : kAnalysisLabels)
        if (row.english == english) return TextOf(Label{row.row}, Language::German);
    return english;
}

TEST_P(EachCodedValue, IsTranslatedIfTheCatalogHasIt)
{
    LineBench bench(Language::German);
    for (const auto& [value, word] : GetParam().words) {
        if (word.find(", ") != std::string_view::npos && GetParam().others == Flag) continue;  // two words
        if (value == kElse || word.ends_with("(GRIC)")) continue;                              // and a tail
        EXPECT_EQ(bench.Text(GetParam().key, value),
                  std::string(InGerman(GetParam().label)) + ": " + std::string(InGerman(word)) + '\n');
    }
}

std::string NameOfCase(const testing::TestParamInfo<WordsCase>& info) { return std::string(NameOf(info.param.key)); }

INSTANTIATE_TEST_SUITE_P(Values, EachCodedValue, testing::ValuesIn(kCases), NameOfCase);

TEST(CodedValues, AreAllHere)
{
    std::set<Key> keys;
    for (const WordsCase& words : kCases) keys.insert(words.key);
    EXPECT_EQ(keys.size(), std::size(kCases));
    EXPECT_EQ(std::size(kCases), 126u);
}

TEST(CodedValues, OfTwoWordsAreTranslatedToo)
{
    LineBench bench(Language::German);
    EXPECT_EQ(bench.Text(Key::Encrypted, 1), std::string(InGerman("Encrypted")) + ": Ja, Nein\n");
    EXPECT_EQ(bench.Text(Key::Encrypted, 0), std::string(InGerman("Encrypted")) + ": Nein, Ja\n");
    EXPECT_EQ(bench.Text(Key::Overprint, 0), std::string(InGerman("Overprint actual page with following data")) +
                                                 ": Nein, " + std::string(InGerman("Replace")) + '\n');
    EXPECT_EQ(bench.Text(Key::FQNFormat, 2), std::string(InGerman("GID format")) + ": " +
                                                 std::string(InGerman("Character string")) +
                                                 " / Global Resource Identifier (GRIC)\n");
}

TEST(CodedValues, AreIndented)
{
    LineBench bench;
    bench.renderer.IndentText = "\t\t";
    EXPECT_EQ(bench.Text(Key::TonerSaver, 255), "→→Toner saver mode: Default\n");
    EXPECT_EQ(bench.Text(Key::TonerSaver, 2), "→→Toner saver mode: <red>Unknown (2)</red>\n");
    EXPECT_EQ(bench.Text(Key::Overprint, 1), "→→Overprint actual page with following data: Yes, Add\n");
}

}  // namespace
}  // namespace folioscope
