// Each triplet with ordinary contents: its keys in their order, and the line of each.

#include <gtest/gtest.h>

#include <cctype>
#include <cstdio>
#include <ostream>
#include <set>
#include <string>
#include <string_view>

#include "analysis/family_support.h"
#include "analysis/render/lines.h"

namespace folioscope {
namespace {

using namespace test;

struct TripletCase {
    std::string_view bytes;  // from the id on
    std::string_view name;
    std::string_view expected;
    std::string_view field = "OBD";
    std::string_view before = "";  // what stands before it in the field's data
};

// clang-format off
constexpr TripletCase kCases[] = {
{"01 0697 01F4", "x'01' (Coded/Graphic Character Set Global ID)",
R"(CHSID 1687 | Graphic character set ID: 1687
CDPID 500 | Graphic code page ID: 500
ShowTripletContent Codepage: 500)"},

{"02 0B 00 'Account'", "x'02' (Fully Qualified Name)",
R"(FQNType x'0B' (Attribute GID) | Name subtype: x'0B' (Attribute GID)
FQNFormat 1 | GID format: Character string
Content Account | Content:→<b>Account</b>
ShowTripletContent FQN: Account)"},

{"04 20", "x'04' (Mapping Option)",
R"(MappingOption 32 | Position in target object: Centered, scale symmetrically to fit target
ShowTripletContent Mapping Option)"},

{"10 00 01 0000 90 00 06072B120004010117 00*7 'JPEG IMAGE OF THE CUSTOMER LOGO.' 'VERS 1.0'"
 "'AN INSURANCE COMPANY, NEW YORK..'", "x'10' (Object Classification)",
R"(ObjectClass 1 | Object Class: Fix data at run time
ObjectBOC 1 | Object data is carried in a MO:DCA object container: Yes
ObjectOEG 2 | Object container contains OEG Structured Fields: No
ObjectOCD 3 | Object data is carried in OCD Structured Fields: Unknown
ObjectID 06 07 2B 12 00 04 01 01 17 00 00 00 00 00 00 00 | ASN.1 Object Identifier (OID): x'06 07 2B 12 00 04 01 01 17 00 00 00 00 00 00 00'
OIDType , AFPC JPEG Subset | Registered object type: AFPC JPEG Subset
ObjectTypeName JPEG IMAGE OF THE CUSTOMER LOGO. | Object Type: JPEG IMAGE OF THE CUSTOMER LOGO.
ObjectVersion VERS 1.0 | Object Version: VERS 1.0
ObjectCompany AN INSURANCE COMPANY, NEW YORK.. | Company: AN INSURANCE COMPANY, NEW YORK..
ShowTripletContent Object Class)"},

{"18 01 0D00", "x'18' (MO:DCA Interchange Set)",
R"(ISType 1 | Interchange Set Data Type: Presentation Document
ISID 3328 | Interchange Set Sub Type: MO:DCA IS/3
ShowTripletContent MO:DCA IS/3)"},

{"1D 2D00 8700", "x'1D' (Text Orientation)",
R"(IAxis 90 | Rotation of the cursor to the document: 90°
BAxis 270 | Rotation of the baseline to the document: 270°
ShowTripletContent Text orientation: 90°)"},

{"1F 07 05 00F0 0090 AA 00*10 40", "x'1F' (Font Descriptor Specification)",
R"(FontWeightClass 7 | Font Weight Class: Bold
FontWidthClass 5 | Font Width Class: Medium (normal)
FontHeight 0.166666666666667 | Font height: 12.0 Point
FontWidth 0.1 | Font width: 7.2 Point
FontItalic True | Font is an italic font: Yes
FontUnderscored False | Font contains underscored characters: No
FontHollow False | Font contains hollow characters: No
FontOverstrucked True | Font contains overstrucked characters: Yes
FontProportional False | Font is proportional font: No
FontKerned True | Characters are pairwise kerned: Yes
FontTypeFlags False | Font Type Flags: No
FontArchitecture 2 | Font architecture: Outline
FontTransformation True | Font may be transformed: Yes
ShowTripletContent Font size: 12.0)"},

{"20 FFFF 047C", "x'20' (Font Coded Graphic Character Set Global Identifier)",
R"(CHSID 65535 | Graphic character set ID: All
CDPID 1148 | Graphic code page ID: 1148
ShowTripletContent CGCSGID)"},

{"21 FE", "x'21' (Resource Object Type)",
R"(ResObjType 254 | Object Type: Form Definition
ShowTripletContent Resource: Formdef)", "BRS", "'F1TEST  ' 0000"},

{"21 06 01 0C00 8000", "x'21' (Object Function Set Specification)",
R"(OCAObjType 6 | Object Container Type: Image (IOCA)
ArchitectureLevel 1 | Architecture Level: 1
DCAFunctionSet 3072 | MO:DCA Function Set: 3072
OCAFunctionSet 32768 | OCA Function Set: IOCA FS10
ShowTripletContent Resource type)"},

{"22 05 00001234", "x'22' (Extended Resource Local Identifier)",
R"(ResourceType 5 | Resource Type: Font
LocalID 4660 | Local Identifier: 4660
ShowTripletContent Ext. resource LID: 4660)"},

{"24 02 7F", "x'24' (Resource Local ID)",
R"(ResourceType 2 | Resource Type: Overlay
LocalID 127 | Local Identifier: 127
ShowTripletContent Resource LID: 127)"},

{"25 41", "x'25' (Resource Section Number)",
R"(SectionID 65 | Doublebyte Section ID: 65
ShowTripletContent Font Section: 65)"},

{"26 5A00", "x'26' (Character Rotation)",
R"(CharRotation 180 | Character Rotation: 180°
ShowTripletContent Char rotation: 180°)"},

{"27 01", "x'27' (Line Data Object Positioning Migration)",
R"(ObjOrientation 1 | Object origin and rotation: Lower left edge, 270°
ShowTripletContent Orientation: 270°)"},

{"2D 00012345", "x'2D' (Object Byte Offset)",
R"(IndexedObjOffset 74565 | Byte offset to the indexed object counted from BDT: 74,565
ShowTripletContent Object offset: 74,565)"},

{"36 0000 '4711'", "x'36' (Attribute Value)",
R"(Content 4711 | Content:→<b>4711</b>
ShowTripletContent Value: 4711)"},

{"43 01", "x'43' (Descriptor Position)",
R"(UseOBP 1 | Use OBP with ID: 1
ShowTripletContent Object area SF: 1)"},

{"45 00 02", "x'45' (Media Eject Control)",
R"(EjectControl 2 | Print this partition on: Next partition in order (N-up)
ShowTripletContent Media ejection)"},

{"46 01 03", "x'46' (Page Overlay Conditional Processing)",
R"(OverlayType 1 | Overlay Type: Annotation
Level 3 | Level: 3
ShowTripletContent Overlay usage)"},

{"47 FF", "x'47' (Resource Usage Attribute)",
R"(Frequency 255 | Frequency: High
ShowTripletContent Resource usage)"},

{"4B 00 01 3840 0960", "x'4B' (Object Area Measurement Units)",
R"(UnitBaseX 0 | Base unit X axis: 10 Inch
UnitBaseY 1 | Base unit Y axis: 10 Centimeter
ObjectBaseUnitsX 14400 | Units per unit base X axis: 14,400   (1,440 DPI)
ObjectBaseUnitsY 2400 | Units per unit base Y axis: 2,400   (240 DPI)
ShowTripletContent Measurement units)"},

{"4C 02 0005A0 0007D0", "x'4C' (Object Area Size)",
R"(SizeType 2 | Values are valid for: Object Area
ObjectSizeX 1440 | Size in X direction: 1,440   (1 Inch)
ObjectSizeY 2000 | Size in Y direction: 2,000   (1.3889 Inch)
ShowTripletContent Area size)"},

{"4D 00 0000F0 800000 000000 FFFFFF", "x'4D' (Area Definition)",
R"(OriginX 240 | Origin X axis: 240   (0.1667 Inch)
OriginY 8388608 | Origin Y axis: 8,388,608   (5,825.422 Inch)
ObjectSizeX 0 | Size in X direction: Not specified
ObjectSizeY 16777215 | Size in Y direction: Default
ShowTripletContent Area definition)"},

{"4E 00 01 00*4 08 08 08 00 FF 80 00", "x'4E' (Color Specification)",
R"(ColorSpace 1 | Color Space: RGB Color
RedBits 8
Steps 256 | No. of bits which represent the color Red: 8 (256 Steps)
GreenBits 8
Steps 256 | No. of bits which represent the color Green: 8 (256 Steps)
BlueBits 8
Steps 256 | No. of bits which represent the color Blue: 8 (256 Steps)
IntensityRed 255
Intensity 100 | Intensity of color Red: 255 (100% Saturation)
IntensityGreen 128
Intensity 50 | Intensity of color Green: 128 (50% Saturation)
IntensityBlue 0
Intensity 0 | Saturation: 0%)"},

{"50 61 00 78 07", "x'50' (Encoding Scheme ID)",
R"(EncodingStructure 6 | Encoding Structure: EBCDIC Presentation
EncodingBytes 1 | Character Set Type: Fixed single-byte
EncodingStructureUserData 7 | Encoding Structure for User Data: UTF-16 inkl. surrogates
EncodingBytes 8 | Character Set Type: UTF-n variable numbers of bytes
CodeExtension 7 | Code Extension: UTF-8)"},

{"56 00001000", "x'56' (Medium Map Page Number)",
R"(PageNumber 4096 | Page No. in Sequence: 4,096)"},

{"57 00001000", "x'57' (Object Byte Extent)",
R"(ObjectBytes 4096 | Object size in bytes: 4,096
ShowTripletContent Object size: 4096)"},

{"58 00001000", "x'58' (Object Structured Field Offset)",
R"(IndexedSFOffset 4096 | Structured field offset to the indexed object counted from BDT: 4,096
ShowTripletContent SF offset: 4096)"},

{"59 00001000", "x'59' (Object Structured Field Extent)",
R"(ObjectSF 4096 | Object size in structured fields: 4,096
ShowTripletContent Object extend: 4096)"},

{"5A AF 00 00001000", "x'5A' (Object Offset)",
R"(ObjectType 175 | Object Type: Page
ObjectOffset 4096 | Object Offset: 4,096)"},

{"5D 0168", "x'5D' (Font Horizontal Scale Factor)",
R"(FontWidth 0.25 | Font width: 18.0 Point)"},

{"5E FB 00 000003E9", "x'5E' (Object Count)",
R"(ObjectType 251 | Object Type: Image (IOCA)
SubordinateObjects 1001 | No. of subordinate objekts: 1,001)"},

{"62 00 ' 9936516352156'", "x'62' (Object Date and Time Stamp)",
R"(TSType 0 | Time Stamp Type: Creation
TimeStamp 1999/365 16:35:21.56 | Time stamp: "1999/365 16:35:21.56")"},

{"63 01 1234 C0", "x'63' Type 1 (Object Checksum/CRC Resource Management)",
R"(Format 1 | Format: 1
Checksum 4660 | Checksum: 4660
Scope 17 | Scope: Private, limited
SaveResource True | Save Resource: Yes)"},

{"63 02 C100FF12 '02436623595999'", "x'63' Type 2 (Font Resource Management)",
R"(Format 2 | Format: 2
APSRMARKEC C1 00 FF 12 | APSRMARK Engineering change information: x'C1 00 FF 12'
TimeStamp 2024/366 23:59:59.99 | Time stamp: "2024/366 23:59:59.99")"},

{"64 03 'SERIAL01' 'VOL001' 'FINANCE.PRINT.STATEMENTS.YEAR2024.MONTH12.X1'", "x'64' (Object Origin Identifier)",
R"(System 3 | System: PC-DOS
SystemID SERIAL01 | Processor ID: "SERIAL01"
StorageID VOL001 | Storage Media ID: "VOL001"
DSID FINANCE.PRINT.STATEMENTS.YEAR2024.MONTH12.X1 | Data Set ID: "FINANCE.PRINT.STATEMENTS.YEAR2024.MONTH12.X1")"},

{"65 'HELLO'", "x'65' (Comment)",
R"(Content HELLO | Content:→<b>HELLO</b>
HexCode C8 C5 D3 D3 D6 | Hex-Codes: x'C8 C5 D3 D3 D6')"},

{"68 04", "x'68' (Medium Orientation)",
R"(MediumOrientation 4 | Medium orientation: Portrait, 90°)"},

{"69 0005 B4 0000 11 02 FF FF07 14 03E8 0F 00E1", "x'69' (Bar Code Symbol Descriptor)",
R"(ID 5 | Identifier: 5
HRIPresent True | Human Readable Interpretation is present: Yes
HRIPos 2 | Position of HRI line: Above
Asterisk True | Start/Stop symbols shown as asterisk in HRI: Yes
SuppressSymbol True | Suppress symbol, present only HRI: Yes
SuppressBlanks False | Suppress blanks and adjust bar code data: No
BCType 17 | Bar code type: Code 128, AIM USS-128
BCMod 2 | Supplemental information: original start character (1986)
FontLID 255 | Font: Default
Color 65287 | Color: Device default (normally black)
BCModWidth 20 | Module (bar/space) width: 0.02 Inch
BCElemHeight 1000 | Single bar code height: 1,000
BCHeightMult 15 | Bar code height multiplier: 1.5
BCRatio 2.25 | Wide to narrow ratio: 2.25)"},

{"6C FB 'SEGMENT1' 00 00F0 FF FF10 2D00", "x'6C' (Resource Object Include)",
R"(ObjectType 251 | Object Type: Image (IOCA)
Name SEGMENT1 | Name:<b>→SEGMENT1</b>
OriginX 240 | Origin X axis: 240   (0.1667 Inch)
OriginY -240 | Origin Y axis: -240   (-0.1667 Inch)
RotationX 11520 | Rotation X axis (clockwise): 90°)"},

{"6D 0000", "x'6D' (Extension Font Base)",
R"(CHSID 0 | Graphic character set ID: Default)"},

{"70 80", "x'70' (Presentation Space Reset Mixing)",
R"(Overprint True | Overprint actual page with following data: Yes, Add)"},

{"71 70 01 73 03 72 FF 71 00", "x'71' (Presentation Space Mixing Rules)",
R"(MixBonB 1 | Background (new) on Background (existing): Replace
MixFonF 3 | Foreground (new) on Foreground (existing): Mix
MixFonB 255 | Foreground (new) on Background (existing): Default
MixBonF 0 | Background (new) on Foreground (existing): Not specified)"},

{"72 00 07CF 0C 1F 10 23 15 00 00 00", "x'72' (Universal Date and Time Stamp)",
R"(TimeStamp 1999/12/31 16:35:21 Z UTC | Time stamp: "1999/12/31 16:35:21 Z UTC")"},

{"73 0000", "x'73' (IMM Insertion)",
R"(IMMInsertation True | The IMM structured field was included at a later date by a filtering application.)"},

{"74 00 FF 00*2", "x'74' (Toner Saver)",
R"(TonerSaver 255 | Toner saver mode: Default)"},

{"75 01 00 01 00 01 00", "x'75' (Color Fidelity)",
R"(ColorCont 1 | Color exception rule: Stop
Notification True | Report error: Yes
ColorSubst 1 | Substitute missing color with: Any color)"},

{"78 02 00*3", "x'78' (Font Fidelity)",
R"(FontNotAvailable 2 | If font is not available: Continue)"},

{"79 00 3840 0960 0000 03E8 0010 07D0", "x'79' (Metric Adjustment)",
R"(UnitBase 0 | Unit Base: 10 Inch
ObjectBaseUnitsX 14400 | Units per unit base X axis: 14,400   (1,440 DPI)
ObjectBaseUnitsY 2400 | Units per unit base Y axis: 2,400   (240 DPI)
UniCharIncHorz 0 | Uniform character increment for horizontal writing: 0
UniCharIncVert 1000 | Uniform character increment for vertical writing: 1,000
BaselineAdjustHorz 16 | Baseline offset adjustment for horizontal writing: 16
BaselineAdjustVert 2000 | Baseline offset adjustment for vertical writing: 2,000)"},

{"7B 00 'ABC'", "x'7B' (Additional Bar Code Parameters)",
R"(Content ABC | Content:→<b>ABC</b>)"},

{"7C 0401 00 01 80", "x'7C' (Page Count control)",
R"(InitPageNum 1025 | Initial page number: 1,025
CountControl 1 | Page count control: Resume
CountMODCA True | Count MO:DCA pages: Yes
CountConstant False | Count constant pages: No)"},

{"7E 01 0007 05 00 80 0064 00C8 03E8 07D0 02 80 0009 02 00 00 0200 00 0A 0002 0003 0005 0007",
 "x'7E' (Graphics Descriptor)",
R"(PrimitiveParms 1 | Triplet specifies parameter: All
PrimitiveMatchID 7 | Triplet match ID: 7
PrimitiveType 1 | Graphics type: Horizontal line
Boundary True | Draw boundaries: Yes
Inside False | Fill mode: Alternate
PrimIEnd 100 | Graphics end point I axis: 100
PrimBEnd 200 | Graphics end point B axis: 200
BoxEdgeHAxis 1000
BoxEdgeVAxis 2000 | Rounded corner ellipse length X axis: 1,000, Rounded corner ellipse length Y axis: 2,000
RadiusFullArc 2.5 | Radius full arc: 2.5
DescriptorID 9 | Graphics descriptor ID: 9
ForegroundMix 2 | Mixing of foreground colors: Overpaint (opaque)
LineType 2 | Line type: Short dashed line
LineWidth 512 | Line width: 0.0167 Inch
PatternSID 0 | Pattern set: Default
PatternSymbol 10 | Pattern symbol: Horizontal lines
MajorX 2
MajorY 3 | P = 2, Q = 0, R = 0, S = 3, Direction: CW
MinorX 5
MinorY 7)"},

{"7F 0000 2D00 0090 0120 05A0 0000", "x'7F' (Margin Definition)",
R"(IAxis 0 | Rotation of the cursor to the document: 0°
BAxis 90 | Rotation of the baseline to the document: 90°
LeftMargin 144 | Left margin: 144   (0.1 Inch)
TopMargin 288 | Top margin: 288   (0.2 Inch)
RightMargin 1440 | Right margin: 1,440   (1 Inch)
BottomMargin 0 | Bottom margin: 0   (0 Inch))"},

{"80 00001234 00005678", "x'80' (Attribute Qualifier)",
R"(Instance 4660 | Instance: 4660
Level 22136 | Level: 22136)"},

{"81 02", "x'81' (Page Position Information)",
R"(UsePGP 2 | Use PGP repeating group with ID: 2)"},

{"82 00 05 'ABC'", "x'82' (Parameter Value)",
R"(ParmType 5 | Parameter type: Character string
Content ABC | Content:→<b>ABC</b>)"},

{"83 80", "x'83' (Presentation Control)",
R"(ViewData True | Intended for viewing: Yes
IndexData False | Intended for indexing: No)"},

{"84 02 01 0960", "x'84' (Font Resolution and Metric Technology)",
R"(UnitBaseX 1 | Base unit X axis: 10 Centimeter
ObjectBaseUnitsX 2400 | Units per unit base X axis: 2,400   (240 DPI))"},

{"85 01 0000 02 02 03E8 0010 07D0", "x'85' (Finishing Operation)",
R"(FinishingOperation 1 | Finishing operation type: Corner staple
ReferenceEdge 2 | Operation corner or edge: Top-left corner or top edge
FinishingCount 2 | Finishing operation count: 2
FinishingAxis 1000 | Virtual operation axis offset (in mm): 1,000
FinishingPosition 16 | Operation position on axis (in mm): 16
FinishingPosition 2000 | Operation position on axis (in mm): 2,000)"},

{"86 01 00 02 00", "x'86' (Text Fidelity)",
R"(TextContinuation True | Stop presentation at first text exception: Yes
TextReporting False | Report text exception: No)"},

{"87 02 00*3", "x'87' (Media Fidelity)",
R"(MediaException 2 | Media exception process: Continue)"},

{"88 02 00 01 00", "x'88' (Finishing Fidelity)",
R"(FinishContinuation False | Stop presentation at first text exception: No
FinishReporting True | Report finishing exception: Yes)"},

{"89 00 80", "x'89' (Object Reference Qualifier)",
R"(UseGivenReference True | Use data to override object name: Yes)"},

{"8A 0000 'invoice'", "x'8A' (XML Name)",
R"(XMLName invoice | XML tag:→<b>invoice</b>)"},

{"8B 80 20 00F0 0000 8700 0003 0001 0000", "x'8B' (Data-Object Font Descriptor)",
R"(MICRFont True | Font is used for Magnetic Ink Character Recognition (MICR): Yes
MustEmbedFont False | Font must be embedded in resource group: No
FontArchitecture 3 | Font architecture: TrueType / OpenType
FontHeight 0.166666666666667 | Font height: 12.0 Point
FontWidth 0 | Font width: Not specified
CharRotation 270 | Character Rotation: 270°
EncodingEnv 3 | Encoding environment: Microsoft
EncodingID 1 | Encoding ID: Unicode)"},

{"8C 00 2B <language> <script..> <region..> 00*8 <variant>", "x'8C' (Locale Selector)",
R"(LocLangFlag 2 | ISO-639 Language code flag: 2-Char code
LocLangCode language | ISO-639 Language code: language
LocScriptFlag True | ISO-15924 Script code flag: Yes
LocScriptCode script.. | ISO-15924 Script code: script..
LocRegionFlag 3 | ISO-3166 Region code flag: 3-Char code
LocRegionCode region.. | ISO-3166 Region code: region..
LocVariantCode variant | Language or region code extension: variant)"},

{"8E 05 00 DEADBEEF", "x'8E' (UP3i Finishing Operation)",
R"(SequenceNo 5 | Sequence number: 5
UP3iFinishing DE AD BE EF | Finishing options regarding UP3i-specification: x'DE AD BE EF')"},

{"8F 0000 0C00", "x'8F' (MO:DCA Function Set)",
R"(DCAFunctionSet 3072 | MO:DCA Function Set: 3072)"},

{"91 00 02 05 00*2", "x'91' (Color Management Resource Descriptor)",
R"(CMRProcMode 2 | Processing mode for the CMR: Process as instruction CMR
CMRScope 5 | Scope of the CMR: This page group)"},

{"93 00 0102 1234", "x'93' (Concatenate Bar Code Data)",
R"(UseBCSymbol 258 | Use previous Bar Code Symbol Descriptor with ID: 258
BCSegOrder 4660 | Bar code segment order: 4660)"},

{"94 80 00 01 02 00 01", "x'94' (Data Encryption)",
R"(Encrypted True | Encrypted: Yes, No
EncrAlg 1 | Encryption algorithm: RC4 encryption (symmetric)
EncrMod 2 | Encryption algorithm modifiers: RC4 encryption: 128 bit key
EncrFormat 1 | Encryption record format: PDF Standard Security Handler
EncrRecord 01 02 00 01 | Encryption record: x'01 02 00 01')"},

{"95 0000 00 01 02 FF 0000", "x'95' (Rendering Intent)",
R"(IOCARI 0 | ... for IOCA objects: perceptual
OCRI 1 | ... for object containers: media-relative colorimetric
PTOCARI 2 | ... for PTOCA objects: saturation
GOCARI 255 | ... for GOCA objects: not specified)"},

{"96 01 00 02 00", "x'96' (CMR Tag Fidelity)",
R"(CMRException 1 | CMR tag Exception continuation rule: terminate
CMRExReport 2 | Report CMR tag Exceptions: No)"},

{"97 00 0001 0000", "x'97' (Device Appearance)",
R"(CMRDevApp 1 | Device appearance: Monochrome)"},

{"9A 0000 00 01 0BB8 1770", "x'9A' (Image Resolution)",
R"(UnitBaseX 0 | Base unit X axis: 10 Inch
UnitBaseY 1 | Base unit Y axis: 10 Centimeter
ObjectBaseUnitsX 3000 | Units per unit base X axis: 3,000   (300 DPI)
ObjectBaseUnitsY 6000 | Units per unit base Y axis: 6,000   (600 DPI))"},

{"9C 0000 02 00 01 0BB8 1770 00012C 000258", "x'9C' (Object Container Presentation Space Size)",
R"(PDFSize 2 | PDF presentation space size: CropBox
UnitBaseX 0 | Base unit X axis: 10 Inch
UnitBaseY 1 | Base unit Y axis: 10 Centimeter
ObjectBaseUnitsX 3000 | Units per unit base X axis: 3,000   (300 DPI)
ObjectBaseUnitsY 6000 | Units per unit base Y axis: 6,000   (600 DPI)
ObjectSizeX 300 | Size in X direction: 300   (1 Inch)
ObjectSizeY 600 | Size in Y direction: 600   (1 Inch))"},

{"9D 0000 01", "x'9D' (Keep Group Together)",
R"(KeepGroup 1 | Keep group together: Yes)"},

{"FF 0000 01 C1", "x'FF' (Triplet Extender)",
R"(KeepGroup 1 | Keep group together: Yes
HexCode 01 C1 | Hex-Codes: x'01 C1'
ShowTripletContent Triplet Extender)"},
};
// clang-format on

Field FieldOf(const TripletCase& triplet) { return {triplet.field, Pieces(triplet.before) + TripletOf(triplet.bytes)}; }

// Names the case in the list of tests.
std::ostream& operator<<(std::ostream& out, const TripletCase& triplet) { return out << triplet.name; }

class EachTriplet : public testing::TestWithParam<TripletCase> {};

TEST_P(EachTriplet, HasItsKeysAndLines)
{
    const Shown shown = ShowRecord(FieldOf(GetParam()));
    ExpectTriplet(shown, GetParam().name, GetParam().expected);
    for (const std::string& heard : shown.heard) EXPECT_TRUE(heard.starts_with("ResName ")) << heard;
}

std::string NameOfCase(const testing::TestParamInfo<TripletCase>& info)
{
    std::string name = std::string(info.param.bytes.substr(0, 2)) + '_';
    for (const char c : info.param.name.substr(5))
        if (std::isalnum(static_cast<unsigned char>(c)) != 0) name += c;
    return name;
}

INSTANTIATE_TEST_SUITE_P(Triplets, EachTriplet, testing::ValuesIn(kCases), NameOfCase);

TEST(TripletTable, KnowsSeventySevenIds)
{
    std::set<std::string_view> covered;
    for (const TripletCase& triplet : kCases) covered.insert(triplet.bytes.substr(0, 2));
    AfpFile file;
    for (unsigned id = 1; id < 256; ++id) file.Add("OBD", U1(12) + U1(id) + Zeros(10));
    FamilyWalk walk(file);
    std::size_t known = 0;
    for (unsigned id = 1; id < 256; ++id) {
        const bool unknown = Has(walk.Next(), "TripletUnknown");
        char digits[3];
        std::snprintf(digits, sizeof digits, "%02X", id);
        EXPECT_EQ(!unknown, covered.contains(digits)) << digits;
        known += !unknown;
    }
    EXPECT_EQ(known, 77u);
    // x'63' has a row for each of its two types, x'21' a name for each of its two meanings.
    EXPECT_EQ(std::size(kCases), 79u);
}

// The Elements stand in the list for others; none of them is a line.
TEST(TripletTable, EachKeyHasALineOrIsKnownToHaveNone)
{
    std::set<std::string_view> silent;
    for (const TripletCase& triplet : kCases) {
        RecordWalk walk(AfpFile().Add(FieldOf(triplet)));
        walk.Next();
        for (const Element& element : walk.afp.List().Elements()) {
            const LineRow* row = LineOf(element.key);
            ASSERT_NE(row, nullptr) << NameOf(element.key);
            if (row->line == Line::Silent) silent.insert(NameOf(element.key));
        }
    }
    EXPECT_EQ(silent,
              (std::set<std::string_view>{"TripletStartbyte", "TripletLength", "ShowTripletContent", "AddResource"}));
}

}  // namespace
}  // namespace folioscope
