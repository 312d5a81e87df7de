// Bar codes: types, and what their modifiers mean.

#include "analysis/render/triplets.h"

namespace folioscope {

namespace {

struct TypeRow {
    std::uint8_t type;
    std::string_view name;
};

// One modifier, or all from `first` to `last`, of a type. The literal stands right behind the label, a word behind ":
// ".
struct ModifierRow {
    std::uint8_t type, first, last;
    std::string_view literal;
    Wording word = {};
};

// clang-format off
constexpr TypeRow kTypes[] = {
    {1,  "Code 39 (3-of-9 Code), AIM(TM) USS-39"},
    {2,  "MSI (modified Plessey code)"},
    {3,  "UPC/CGPC--Version A"},
    {5,  "UPC/CGPC--Version E"},
    {6,  "UPC--Two-digit Supplemental (Periodicals)"},
    {7,  "UPC--Five-digit Supplemental (Paperbacks)"},
    {8,  "EAN-8 (includes JAN-short)"},
    {9,  "EAN-13 (includes JAN-standard)"},
    {10, "Industrial 2-of-5"},
    {11, "Matrix 2-of-5"},
    {12, "Interleaved 2-of-5, AIM USS-I 2/5"},
    {13, "Codabar, 2-of-7, AIM USS-Codabar"},
    {17, "Code 128, AIM USS-128"},
    {22, "EAN Two-digit Supplemental"},
    {23, "EAN Five-digit Supplemental"},
    {24, "POSTNET"},
    {26, "RM4SCC"},
    {27, "Japan Postal Bar Code"},
    {28, "Data Matrix (2D bar code)"},
    {29, "MaxiCode (2D bar code)"},
    {30, "PDF417 (2D bar code)"},
    {31, "Australia Post Bar Code"},
    {32, "QR Code (2D bar code)"},
    {33, "Code 93"},
    {34, "USPS Intelligent Mail Barcode"},
    {35, "Royal Mail Red Tag"},
    {36, "GS1 DataBar"},
    {37, "Royal Mail Mailmark"},
};

// Types whose modifier 1 means that there is no check digit, and every other that there are two.
constexpr std::uint8_t kCheckDigitTypes[] = {1, 3, 5, 9, 10, 11, 12, 13, 28, 29, 35};

constexpr ModifierRow kModifiers[] = {
    {17, 2,  2,   ": original start character (1986)"},
    {17, 3,  3,   ": without parenthesis in the HRI"},
    {17, 4,  4,   ": with parenthesis in the HRI"},
    {17, 5,  5,   ": Intelligent Mail Container Barcode"},
    {24, 0,  0,   ": POSTNET Zip"},
    {24, 1,  1,   ": POSTNET Zip+4"},
    {24, 2,  2,   ": POSTNET Advanced Bar Code (ABC)"},
    {24, 3,  3,   ": POSTNET Variable Length"},
    {30, 0,  0,   ": PDF417 ", L("full")},
    {30, 1,  1,   ": PDF417 ", L("truncated")},
    {31, 1,  1,   ": ",        L("Default")},
    {31, 2,  2,   ": Customer Barcode 2 using table N"},
    {31, 3,  3,   ": Customer Barcode 2 using table C"},
    {31, 4,  4,   ": Customer Barcode 2 using proprietary encoding"},
    {31, 5,  5,   ": Customer Barcode 3 using table N"},
    {31, 6,  6,   ": Customer Barcode 3 using table C"},
    {31, 7,  7,   ": Customer Barcode 3 using proprietary encoding"},
    {31, 8,  8,   ": Replay Paid Barcode"},
    {32, 0,  255, ": Model 2 QR Code Barcode"},
    {33, 0,  255, ": Code 93 Barcode"},
    {34, 0,  0,   ": 20 number digits USPS Intelligent Mail Barcode with no Delivery Point ZIP Code"},
    {34, 1,  1,   ": 25 number digits USPS Intelligent Mail Barcode with 5-digit Delivery Point ZIP Code"},
    {34, 2,  2,   ": 29 number digits USPS Intelligent Mail Barcode with 9-digit Delivery Point ZIP Code"},
    {34, 3,  3,   ": 31 number digits USPS Intelligent Mail Barcode with 11-digit Delivery Point ZIP Code"},
    {36, 0,  0,   ": GS1 DataBar Omnidirectional"},
    {36, 1,  1,   ": GS1 DataBar Truncated"},
    {36, 2,  2,   ": GS1 DataBar Stacked"},
    {36, 3,  3,   ": GS1 DataBar Stacked Omnidirectional"},
    {36, 4,  4,   ": GS1 DataBar Limited"},
    {36, 17, 17,  ": GS1 DataBar Expanded"},
    {36, 18, 18,  ": GS1 DataBar Expanded Stacked, 2 Rows"},
    {36, 19, 19,  ": GS1 DataBar Expanded Stacked, 3 Rows"},
    {36, 20, 20,  ": GS1 DataBar Expanded Stacked, 4 Rows"},
    {36, 21, 21,  ": GS1 DataBar Expanded Stacked, 5 Rows"},
    {36, 22, 22,  ": GS1 DataBar Expanded Stacked, 6 Rows"},
    {36, 23, 23,  ": GS1 DataBar Expanded Stacked, 7 Rows"},
    {36, 24, 24,  ": GS1 DataBar Expanded Stacked, 8 Rows"},
    {36, 25, 25,  ": GS1 DataBar Expanded Stacked, 9 Rows"},
};
// clang-format on

constexpr Wording kSupplemental = L("Supplemental information");

void PutCheckDigits(Renderer& renderer, std::int64_t modifier)
{
    if (modifier == 1) return renderer.PutLine(kSupplemental, renderer.Say(L("Without check digit")));
    std::string& out = renderer.BeginLine(kSupplemental);
    out += renderer.Say(L("With two check digits"));
    out += " (";
    out += renderer.Say(L("modifier code x'"));
    AppendHex(out, static_cast<std::uint64_t>(modifier), 2);
    out += "')";
    renderer.EndLine();
}

void PutModifier(Renderer& renderer, const ModifierRow& row)
{
    std::string& out = renderer.text.Open();
    out += renderer.IndentText;
    out += renderer.Say(kSupplemental);
    out += row.literal;
    out += renderer.Say(row.word);
    renderer.EndLine();
}

}  // namespace

void RenderBCType(Renderer& renderer, const Element& element)
{
    renderer.record.barCodeType = element.number;
    std::string_view name;
    for (const auto& [type, text] : kTypes)
        if (type == element.number) name = text;
    renderer.PutLine(L("Bar code type"), name);
}

// Means something only together with the type before it. A type without modifiers has no line.
void RenderBCMod(Renderer& renderer, const Element& element)
{
    const std::int64_t type = renderer.record.barCodeType;
    for (const std::uint8_t known : kCheckDigitTypes)
        if (known == type) return PutCheckDigits(renderer, element.number);
    bool knownType = false;
    for (const ModifierRow& row : kModifiers) {
        if (row.type != type) continue;
        knownType = true;
        if (element.number >= row.first && element.number <= row.last) return PutModifier(renderer, row);
    }
    if (!knownType) return;
    std::string number;
    renderer.AppendValue(number, element);
    renderer.PutUnknown(kSupplemental, number);
}

// In thousandths of an inch.
void RenderBCModWidth(Renderer& renderer, const Element& element)
{
    constexpr std::int64_t kNotGiven = 255;
    constexpr Wording kLabel = L("Module (bar/space) width");
    if (element.number == kNotGiven) return renderer.PutLine(kLabel, renderer.Say(L("Default")));
    std::string& out = renderer.BeginLine(kLabel);
    AppendFormatted(out, static_cast<double>(element.number) / 1000, Picture::OneToFour, renderer.style);
    out += ' ';
    out += renderer.Say(L("Inch"));
    renderer.EndLine();
}

void RenderBCHeightMult(Renderer& renderer, const Element& element)
{
    std::string& out = renderer.BeginLine(L("Bar code height multiplier"));
    AppendFormatted(out, static_cast<double>(element.number) / 10, Picture::OneToThree, renderer.style);
    renderer.EndLine();
}

void RenderBCRatio(Renderer& renderer, const Element& element)
{
    constexpr double kNotGiven = 65'535.0 / 10 / 10 / 10 / 10;  // divided as the decoder divides it
    constexpr Wording kLabel = L("Wide to narrow ratio");
    if (element.real == kNotGiven) return renderer.PutLine(kLabel, renderer.Say(L("Default")));
    AppendFormatted(renderer.BeginLine(kLabel), element.real, Picture::OneToFour, renderer.style);
    renderer.EndLine();
}

}  // namespace folioscope
