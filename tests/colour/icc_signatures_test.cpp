// The words for the signatures of ICC profiles: tags, makers' own tags and tag types.

#include <gtest/gtest.h>

#include <iterator>
#include <sstream>
#include <string>

#include "colour/colour_support.h"

namespace folioscope {
namespace {

using namespace test;

struct Named {
    std::string_view signature, name;
};
struct Maker {
    std::string_view name, tags;  // an underscore stands for a blank, a hyphen between the ends of a range
};

// clang-format off
constexpr Named kTags[] = {                            // ICC.1, tag listing
    {"A2B0", "AToB0Tag"},
    {"A2B1", "AToB1Tag"},
    {"A2B2", "AToB2TAG"},
    {"bXYZ", "blueMatrixColumnTag"},
    {"bTRC", "blueTRCTag"},
    {"B2A0", "BToA0Tag"},
    {"B2A1", "BToA1Tag"},
    {"B2A2", "BToA2Tag"},
    {"calt", "calibrationDateTimeTag"},
    {"targ", "charTargetTag"},
    {"chad", "chromaticAdaptationTag"},
    {"chrm", "chromaticityTag"},
    {"clro", "colorantOrderTag"},
    {"clrt", "colorantTableTag"},
    {"clot", "colorantTableOutTag"},
    {"cprt", "copyrightTag"},
    {"dmnd", "deviceMfgDescTag"},
    {"dmdd", "deviceModelDescTag"},
    {"gamt", "gamutTag"},
    {"kTRC", "grayTRCTag"},
    {"gXYZ", "greenMatrixColumnTag"},
    {"gTRC", "greenTRCTag"},
    {"lumi", "luminanceTag"},
    {"meas", "measurementTag"},
    {"bkpt", "mediaBlackPointTag"},
    {"wtpt", "mediaWhitePointTag"},
    {"ncl2", "namedColor2Tag"},
    {"resp", "outputResponseTag"},
    {"pre0", "preview0Tag"},
    {"pre1", "preview1Tag"},
    {"pre2", "preview2Tag"},
    {"desc", "profileDescriptionTag"},
    {"pseq", "profileSequenceDescTag"},
    {"rXYZ", "redMatrixColumnTag"},
    {"rTRC", "redTRCTag"},
    {"tech", "technologyTag"},
    {"vued", "viewingCondDescTag"},
    {"view", "viewingConditionsTag"},
};
constexpr Named kTypes[] = {                           // ICC.1, tag type definitions
    {"chrm", "chromaticityType"},
    {"clro", "colorantOrderType"},
    {"clrt", "colorantTypeType"},
    {"crdi", "crdInfoType"},
    {"curv", "curveType"},
    {"data", "dataType"},
    {"dtim", "dateTimeType"},
    {"devs", "deviceSettingsType"},
    {"mft2", "lut16Type"},
    {"mft1", "lut8Type"},
    {"mAB",  "lutAToBType"},
    {"mBA",  "lutBToAType"},
    {"meas", "measurementType"},
    {"mluc", "multiLocalizedUnicodeType"},
    {"mpet", "multiProcessElementsType"},
    {"ncol", "namedColorType"},
    {"ncl2", "namedColor2Type"},
    {"para", "parametricCurveType"},
    {"pseq", "profileSequenceDescType"},
    {"psid", "profileSequenceIdentifierType"},
    {"rcs2", "responseCurveSet16Type"},
    {"sf32", "s15Fixed16ArrayType"},
    {"scrn", "screeningType"},
    {"sig",  "signatureType"},
    {"desc", "textDescriptionType"},
    {"text", "textType"},
    {"uf32", "u16Fixed16ArrayType"},
    {"bfd",  "ucrbgType"},
    {"ui16", "uInt16ArrayType"},
    {"ui32", "uInt32ArrayType"},
    {"ui64", "uInt64ArrayType"},
    {"ui08", "uInt8ArrayType"},
    {"vcgt", "Video Card Gamma Table"},
    {"view", "viewingConditionsType"},
    {"XYZ",  "XYZType"},
};
constexpr Maker kMakers[] = {                          // the registry of private tags
    {"Adobe Systems", "ADBE AS00-AS99"},
    {"AGFA", "AGPT"},
    {"Amiable Technologies", "AM00-AM99"},
    {"Apple Computer",
     "appl AA00-AA99 aarg aagg aabg cust dscm mmod name ncpi ndin psvm trc_ vcgt vpta vptb vptg "
     "vptp vptw"},
    {"BARCO", "BDS_ BKAL"},
    {"Canon ColorGear", "CCMS"},
    {"Canon ColorGear Lite", "UCCM"},
    {"Canon", "ucG0-ucG3 ucmD ucmF ucmI ucmM ucmP ucmT ucmV"},
    {"Color Solutions", "EULA MOST MOGT"},
    {"CreoScitex", "SC00-SC99 SCIT"},
    {"Creo", "ccpd ccps ccpx"},
    {"Dainippon", "SP00-SP99"},
    {"Dry Creek Photo", "DCPd"},
    {"Electronics for Imaging", "efia-efiz efi0-efi9"},
    {"Esko Graphics", "EGBD"},
    {"Fuji Film", "FF__ FEI0-FEI9 FEIA-FEIZ FEIa-FEIz oprf"},
    {"Fuji Xerox", "FX00-FX99 fx00-fx99"},
    {"Global Graphics Harlequin", "HCMM"},
    {"Argyll", "argl"},
    {"GretagMacbeth LogoSync", "LgoS"},
    {"GretagMacbeth", "CIED DevD Pmtr gmps"},
    {"Heidelberger Druckmaschinen",
     "HDM_ HD00-HD99 hd00-hd99 blge clrd hald half mecn medd medt meop plmd plmt prsd prst tact"},
    {"Hewlett Packard", "lcms HP00-HP99"},
    {"IMATION", "imn0-imn9 imnA-imnZ imna-imnz"},
    {"Kodak", "KCMS K000-K199 KCFX KCGX KCRX KCSX Klvp cvd_ dimd fprn icsp illd lmvd tnam tprt"},
    {"Konica Minolta", "MCML iTRC kc01-kc10 km01-km10"},
    {"Left Dacota", "LDST LNCP LSET LSRC"},
    {"Monaco Systems", "DEVD DEVS"},
    {"Mutoh", "SIGN"},
    {"Onyx Graphics", "ONX0-ONX9 ONXA-ONXZ ONXa-ONXz"},
    {"Phase One", "P1MX P1PT"},
    {"Polaroid", "POL0-POL9 POLA-POLZ POLa-POLz"},
    {"Multitools", "RGMS"},
    {"Sample ICC", "SICC"},
    {"Seiko Epson", "EP00-EP09"},
    {"Sharp", "SH00-SH99"},
    {"Studion Soft Industries", "Kmod SAMd SAMi SAMo"},
    {"Sun Microsystems", "ichd iche lias ltag ntag play sf64 si08 si16 si32"},
    {"The imaging factory", "32BT TF00-TF99"},
    {"Typemaker", "tmkr"},
    {"YxyMaster", "cbr8"},
    {"Zoran", "zc00 ZC00-ZC99"},
};
// clang-format on

std::string LineOf(Key key, std::string_view value) { return ShowValue(key, value).text; }

std::string TagLine(std::string_view name, std::string_view signature)
{
    return "Tag signature: " + std::string(name) + " (" + std::string(signature) + ")\n";
}

TEST(IccTags, HaveTheirNames)
{
    EXPECT_EQ(std::size(kTags), 38u);
    for (const auto& [signature, name] : kTags) {
        const ColourShown shown = ShowValue(Key::ICCTagSig, signature);
        EXPECT_EQ(shown.text, TagLine(name, signature));
        EXPECT_EQ(shown.heard, Lines{});
    }
}

void ExpectUnknown(std::string_view signature)
{
    const ColourShown shown = ShowValue(Key::ICCTagSig, signature);
    const std::string value = "Unknown (" + std::string(signature) + ")";
    EXPECT_EQ(shown.text, "Tag signature: <red>" + value + "</red>\n");
    EXPECT_EQ(shown.heard, (Lines{"Message CMR: Tag signature: " + value, "Invalid"}));
}

std::vector<std::string> TagsOf(const Maker& maker)
{
    std::istringstream in{std::string(maker.tags)};
    std::vector<std::string> tags;
    for (std::string tag; in >> tag;) {
        for (char& c : tag)
            if (c == '_') c = ' ';
        tags.push_back(tag);
    }
    return tags;
}

TEST(IccTags, OfAMakerBearItsName)
{
    EXPECT_EQ(std::size(kMakers), 42u);
    for (const Maker& maker : kMakers) {
        const std::string name = std::string(maker.name) + " private tag";
        for (const std::string& tag : TagsOf(maker)) {
            if (tag.ends_with(' ')) continue;
            const std::string first = tag.substr(0, 4), last = tag.substr(tag.size() - 4);
            EXPECT_EQ(LineOf(Key::ICCTagSig, first), TagLine(name, first));
            EXPECT_EQ(LineOf(Key::ICCTagSig, last), TagLine(name, last));
        }
    }
}

TEST(IccTags, OfARangeAreAllBetweenItsEndsInTheOrderOfTheirLetters)
{
    const auto adobe = [](std::string_view signature) { return TagLine("Adobe Systems private tag", signature); };
    for (const std::string_view inside : {"AS00", "AS01", "AS50", "AS99", "AS5z", "AS1"})
        EXPECT_EQ(LineOf(Key::ICCTagSig, inside), adobe(inside));
    for (const std::string_view outside : {"AS0", "AS", "AS9a", "ASa0", "AS:0", "as00", "AR99", "AT00", "K200", "EP10"})
        ExpectUnknown(outside);
}

// A value comes without its blanks, so a signature that ends in one is never met.
TEST(IccTags, ThatEndInABlankAreUnknown)
{
    int blank = 0;
    for (const Maker& maker : kMakers)
        for (const std::string& tag : TagsOf(maker)) {
            if (!tag.ends_with(' ')) continue;
            ++blank;
            const Bytes data = Bytes("text") + Zeros(5);
            const ColourShown shown = ShowColour(Cmr().Behind(0x3015, 5, 200, IccProfile().Tag(tag, data).Whole()));
            const std::string trimmed = tag.substr(0, tag.find(' '));
            EXPECT_EQ(ValuesIn(shown.elements, "ICCTagSig"), Lines{trimmed});
            EXPECT_NE(shown.text.find("Tag signature: <red>Unknown (" + trimmed + ")</red>\n"), std::string::npos)
                << tag;
        }
    EXPECT_EQ(blank, 5);
}

TEST(IccTags, ThatNobodyRegisteredAreUnknown)
{
    for (const std::string_view signature : {"", "zzzz", "a2b0", "A2B3", "Desc", "0000"}) ExpectUnknown(signature);
}

TEST(IccTypes, HaveTheirNames)
{
    EXPECT_EQ(std::size(kTypes), 35u);
    for (const auto& [type, name] : kTypes) {
        const ColourShown shown = ShowValue(Key::ICCTagType, type);
        EXPECT_EQ(shown.text, "Tag type: " + std::string(name) + " (" + std::string(type) + ")\n");
        EXPECT_EQ(shown.heard, Lines{});
    }
}

// The message of an unknown type speaks of the signature.
TEST(IccTypes, ThatAreUnknownAreToldByTheOtherLabel)
{
    for (const std::string type : {"", "ZZZZ", "xyz", "dict", "mAB "}) {
        const ColourShown shown = ShowValue(Key::ICCTagType, type);
        EXPECT_EQ(shown.text, "Tag type: <red>Unknown (" + type + ")</red>\n");
        EXPECT_EQ(shown.heard, (Lines{"Message CMR: Tag signature: Unknown (" + type + ")", "Invalid"}));
    }
}

}  // namespace
}  // namespace folioscope
