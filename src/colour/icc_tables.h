#pragma once

// The signatures of ICC profiles: the tags of the profile format (ICC.1, tag listing), the private tags that its
// signature registry keeps for makers, and the tag types (ICC.1, tag type definitions).

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string_view>

namespace folioscope {

struct IccName {
    std::string_view signature, name;
};

// clang-format off
inline constexpr IccName kIccTags[] = {
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
inline constexpr IccName kIccTypes[] = {               // without the blanks that fill them
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
// clang-format on

// A maker's tags: one signature, or all from the first to the last in the order of their letters.
struct IccPrivateTags {
    std::string_view maker, first, last;
    constexpr IccPrivateTags(std::string_view name, std::string_view only) : maker(name), first(only), last(only) {}
    constexpr IccPrivateTags(std::string_view name, std::string_view from, std::string_view to)
        : maker(name), first(from), last(to)
    {
    }
};

// Those that end in a blank are here as registered, though no signature without its blanks is one of them.
// clang-format off
inline constexpr IccPrivateTags kIccPrivateTags[] = {
    {"Adobe Systems",                "ADBE"},
    {"Adobe Systems",                "AS00", "AS99"},
    {"AGFA",                         "AGPT"},
    {"Amiable Technologies",         "AM00", "AM99"},
    {"Apple Computer",               "appl"},
    {"Apple Computer",               "AA00", "AA99"},
    {"Apple Computer",               "aarg"},
    {"Apple Computer",               "aagg"},
    {"Apple Computer",               "aabg"},
    {"Apple Computer",               "cust"},
    {"Apple Computer",               "dscm"},
    {"Apple Computer",               "mmod"},
    {"Apple Computer",               "name"},
    {"Apple Computer",               "ncpi"},
    {"Apple Computer",               "ndin"},
    {"Apple Computer",               "psvm"},
    {"Apple Computer",               "trc "},
    {"Apple Computer",               "vcgt"},
    {"Apple Computer",               "vpta"},
    {"Apple Computer",               "vptb"},
    {"Apple Computer",               "vptg"},
    {"Apple Computer",               "vptp"},
    {"Apple Computer",               "vptw"},
    {"BARCO",                        "BDS "},
    {"BARCO",                        "BKAL"},
    {"Canon ColorGear",              "CCMS"},
    {"Canon ColorGear Lite",         "UCCM"},
    {"Canon",                        "ucG0", "ucG3"},
    {"Canon",                        "ucmD"},
    {"Canon",                        "ucmF"},
    {"Canon",                        "ucmI"},
    {"Canon",                        "ucmM"},
    {"Canon",                        "ucmP"},
    {"Canon",                        "ucmT"},
    {"Canon",                        "ucmV"},
    {"Color Solutions",              "EULA"},
    {"Color Solutions",              "MOST"},
    {"Color Solutions",              "MOGT"},
    {"CreoScitex",                   "SC00", "SC99"},
    {"CreoScitex",                   "SCIT"},
    {"Creo",                         "ccpd"},
    {"Creo",                         "ccps"},
    {"Creo",                         "ccpx"},
    {"Dainippon",                    "SP00", "SP99"},
    {"Dry Creek Photo",              "DCPd"},
    {"Electronics for Imaging",      "efia", "efiz"},
    {"Electronics for Imaging",      "efi0", "efi9"},
    {"Esko Graphics",                "EGBD"},
    {"Fuji Film",                    "FF  "},
    {"Fuji Film",                    "FEI0", "FEI9"},
    {"Fuji Film",                    "FEIA", "FEIZ"},
    {"Fuji Film",                    "FEIa", "FEIz"},
    {"Fuji Film",                    "oprf"},
    {"Fuji Xerox",                   "FX00", "FX99"},
    {"Fuji Xerox",                   "fx00", "fx99"},
    {"Global Graphics Harlequin",    "HCMM"},
    {"Argyll",                       "argl"},
    {"GretagMacbeth LogoSync",       "LgoS"},
    {"GretagMacbeth",                "CIED"},
    {"GretagMacbeth",                "DevD"},
    {"GretagMacbeth",                "Pmtr"},
    {"GretagMacbeth",                "gmps"},
    {"Heidelberger Druckmaschinen",  "HDM "},
    {"Heidelberger Druckmaschinen",  "HD00", "HD99"},
    {"Heidelberger Druckmaschinen",  "hd00", "hd99"},
    {"Heidelberger Druckmaschinen",  "blge"},
    {"Heidelberger Druckmaschinen",  "clrd"},
    {"Heidelberger Druckmaschinen",  "hald"},
    {"Heidelberger Druckmaschinen",  "half"},
    {"Heidelberger Druckmaschinen",  "mecn"},
    {"Heidelberger Druckmaschinen",  "medd"},
    {"Heidelberger Druckmaschinen",  "medt"},
    {"Heidelberger Druckmaschinen",  "meop"},
    {"Heidelberger Druckmaschinen",  "plmd"},
    {"Heidelberger Druckmaschinen",  "plmt"},
    {"Heidelberger Druckmaschinen",  "prsd"},
    {"Heidelberger Druckmaschinen",  "prst"},
    {"Heidelberger Druckmaschinen",  "tact"},
    {"Hewlett Packard",              "lcms"},
    {"Hewlett Packard",              "HP00", "HP99"},
    {"IMATION",                      "imn0", "imn9"},
    {"IMATION",                      "imnA", "imnZ"},
    {"IMATION",                      "imna", "imnz"},
    {"Kodak",                        "KCMS"},
    {"Kodak",                        "K000", "K199"},
    {"Kodak",                        "KCFX"},
    {"Kodak",                        "KCGX"},
    {"Kodak",                        "KCRX"},
    {"Kodak",                        "KCSX"},
    {"Kodak",                        "Klvp"},
    {"Kodak",                        "cvd "},
    {"Kodak",                        "dimd"},
    {"Kodak",                        "fprn"},
    {"Kodak",                        "icsp"},
    {"Kodak",                        "illd"},
    {"Kodak",                        "lmvd"},
    {"Kodak",                        "tnam"},
    {"Kodak",                        "tprt"},
    {"Konica Minolta",               "MCML"},
    {"Konica Minolta",               "iTRC"},
    {"Konica Minolta",               "kc01", "kc10"},
    {"Konica Minolta",               "km01", "km10"},
    {"Left Dacota",                  "LDST"},
    {"Left Dacota",                  "LNCP"},
    {"Left Dacota",                  "LSET"},
    {"Left Dacota",                  "LSRC"},
    {"Monaco Systems",               "DEVD"},
    {"Monaco Systems",               "DEVS"},
    {"Mutoh",                        "SIGN"},
    {"Onyx Graphics",                "ONX0", "ONX9"},
    {"Onyx Graphics",                "ONXA", "ONXZ"},
    {"Onyx Graphics",                "ONXa", "ONXz"},
    {"Phase One",                    "P1MX"},
    {"Phase One",                    "P1PT"},
    {"Polaroid",                     "POL0", "POL9"},
    {"Polaroid",                     "POLA", "POLZ"},
    {"Polaroid",                     "POLa", "POLz"},
    {"Multitools",                   "RGMS"},
    {"Sample ICC",                   "SICC"},
    {"Seiko Epson",                  "EP00", "EP09"},
    {"Sharp",                        "SH00", "SH99"},
    {"Studion Soft Industries",      "Kmod"},
    {"Studion Soft Industries",      "SAMd"},
    {"Studion Soft Industries",      "SAMi"},
    {"Studion Soft Industries",      "SAMo"},
    {"Sun Microsystems",             "ichd"},
    {"Sun Microsystems",             "iche"},
    {"Sun Microsystems",             "lias"},
    {"Sun Microsystems",             "ltag"},
    {"Sun Microsystems",             "ntag"},
    {"Sun Microsystems",             "play"},
    {"Sun Microsystems",             "sf64"},
    {"Sun Microsystems",             "si08"},
    {"Sun Microsystems",             "si16"},
    {"Sun Microsystems",             "si32"},
    {"The imaging factory",          "32BT"},
    {"The imaging factory",          "TF00", "TF99"},
    {"Typemaker",                    "tmkr"},
    {"YxyMaster",                    "cbr8"},
    {"Zoran",                        "zc00"},
    {"Zoran",                        "ZC00", "ZC99"},
};
// clang-format on

// Rows of one maker stand together.
constexpr std::size_t IccMakers()
{
    std::size_t makers = 0;
    std::string_view last;
    for (const auto& row : kIccPrivateTags) {
        makers += row.maker != last ? 1 : 0;
        last = row.maker;
    }
    return makers;
}

template <class Row, std::size_t N, class Signature> constexpr bool EachOnce(const Row (&rows)[N], Signature signature)
{
    for (std::size_t i = 0; i < N; ++i)
        for (std::size_t j = i + 1; j < N; ++j)
            if (rows[i].*signature == rows[j].*signature) return false;
    return true;
}

static_assert(std::size(kIccTags) == 38 && EachOnce(kIccTags, &IccName::signature));
static_assert(std::size(kIccTypes) == 35 && EachOnce(kIccTypes, &IccName::signature));
static_assert(IccMakers() == 42 && EachOnce(kIccPrivateTags, &IccPrivateTags::first));
static_assert(std::ranges::all_of(kIccPrivateTags, [](const IccPrivateTags& row) { return row.first <= row.last; }));

}  // namespace folioscope
