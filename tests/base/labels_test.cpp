#include "base/labels.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace folioscope {
namespace {

constexpr std::array kLanguages = {Language::English, Language::German, Language::French};

std::array<std::string_view, 3> TextsOf(Label label)
{
    return {TextOf(label, Language::English), TextOf(label, Language::German), TextOf(label, Language::French)};
}

using Texts = std::array<std::string_view, 3>;

TEST(Labels, QuotedByTheirEnglishText)
{
    EXPECT_EQ(TextsOf(L("Filesize")), (Texts{"Filesize", "Dateigröße", "Taille du fichier"}));
    EXPECT_EQ(TextsOf(L("Structured Field")), (Texts{"Structured Field", "Structured Field", "Structured Field"}));
    EXPECT_EQ(TextsOf(L("Unstructured Line Data")),
              (Texts{"Unstructured Line Data", "Unstrukturierter Text", "Texte non structuré"}));
    EXPECT_EQ(TextsOf(L("Hex-Codes")), (Texts{"Hex-Codes", "Hex-Codes", "Code hexadécimal"}));
    EXPECT_EQ(TextsOf(L("Start byte")), (Texts{"Start byte", "Start-Byte", "Start byte (octet)"}));
    EXPECT_EQ(TextsOf(U("&File")), (Texts{"&File", "&Datei", "&Fichier"}));
}

TEST(Labels, MistakesInTheEnglishTextsAreKept)
{
    for (const Label label :
         {L("No. of subordinate objekts"), L("Back zu Baseline"), L("Font contains overstrucked characters"),
          U("Analysis in english"), U("The hex data of this record where changed. Save changes?"),
          U("File %1 could not be opened! Following error occured: NEWLINE %2, %3")})
        EXPECT_FALSE(TextOf(label, Language::English).empty());
}

TEST(Labels, LetterCaseMakesTwoTexts)
{
    EXPECT_NE(L("Overlay type"), L("Overlay Type"));
    EXPECT_NE(L("Glossy"), L("glossy"));
    EXPECT_EQ(TextOf(L("Glossy"), Language::German), "Glänzend");
    EXPECT_EQ(TextOf(L("glossy"), Language::German), "glänzend");
}

TEST(Labels, TheAnalysisAndTheInterfaceHaveLabelsOfTheirOwn)
{
    EXPECT_NE(L("Description"), U("Description"));
    EXPECT_NE(L("Code page"), U("Code page"));
    EXPECT_NE(L("Add"), U("Add"));
    EXPECT_NE(L("Source"), U("Source"));
    EXPECT_EQ(TextOf(L("Description"), Language::English), TextOf(U("Description"), Language::English));
}

// Counts the bytes of `text` that are `c`.
std::ptrdiff_t CountOf(std::string_view text, char c) { return std::count(text.begin(), text.end(), c); }

TEST(Labels, RowsOfSeveralLinesBreakWithCarriageReturnAndLineFeed)
{
    EXPECT_EQ(TextsOf(U("%1 already exists! \r\nDo you want to replace it?"))[0],
              "%1 already exists! \r\nDo you want to replace it?");
    for (const Language language : kLanguages) {
        const auto text =
            TextOf(U("An error occured while creating the export file:\r\nError: %1\r\nFile: %2"), language);
        EXPECT_EQ(CountOf(text, '\r'), 2) << text;
        EXPECT_EQ(CountOf(text, '\n'), 2) << text;
        EXPECT_EQ(CountOf(text, '\\'), 0) << text;
        EXPECT_LT(text.find("\r\n"), text.find("%1")) << text;
    }
}

template <std::size_t N> struct Quote {
    char text[N];
    constexpr Quote(const char (&quoted)[N]) { std::copy_n(quoted, N, text); }
    constexpr std::string_view View() const { return {text, N - 1}; }
};
template <Quote quote>
concept InAnalysis = requires
{
    typename std::integral_constant<Label, L(quote.View())>;
};
template <Quote quote>
concept InInterface = requires
{
    typename std::integral_constant<Label, U(quote.View())>;
};

static_assert(InAnalysis<"Filesize">);
static_assert(!InAnalysis<"filesize">, "a text that the catalog lacks must not compile");
static_assert(!InAnalysis<"Filesize ">);
static_assert(!InAnalysis<"">);
static_assert(!InAnalysis<"&File">, "a text of the interface is none of the analysis");
static_assert(InInterface<"&File">);
static_assert(!InInterface<"Filesize">);

TEST(Labels, NoLabelIsAnEmptyText)
{
    for (const Language language : kLanguages) EXPECT_EQ(TextOf(Label::None, language), "");
    EXPECT_NE(L("Filesize"), Label::None);
}

TEST(Labels, TwoLanguagesCanBeInForceAtOnce)
{
    const Labels analysis(Language::English), interface(Language::German);
    EXPECT_EQ(analysis.InForce(), Language::English);
    EXPECT_EQ(interface.InForce(), Language::German);
    EXPECT_EQ(analysis[L("Filesize")], "Filesize");
    EXPECT_EQ(interface[U("&File")], "&Datei");
    EXPECT_EQ(Labels(Language::French)[L("Filesize")], "Taille du fichier");
}

TEST(Labels, AWordingIsALabelOrALiteral)
{
    constexpr Wording none, label = L("Filesize"), literal = "MediaBox";
    static_assert(none.label == Label::None && none.literal.empty());
    static_assert(label.label == L("Filesize") && label.literal.empty());
    static_assert(literal.label == Label::None && literal.literal == "MediaBox");
}

template <std::size_t N> void ExpectSorted(const CatalogKey (&keys)[N])
{
    for (std::size_t i = 1; i < N; ++i) EXPECT_LT(keys[i - 1].english, keys[i].english);
}

TEST(Labels, TheKeysOfEachScopeAscendAndNameTheirRows)
{
    ExpectSorted(kAnalysisLabels);
    ExpectSorted(kInterfaceLabels);
    EXPECT_EQ(std::size(kAnalysisLabels) + std::size(kInterfaceLabels), kCatalogRows);
    std::vector<bool> seen(kCatalogRows + 1);
    const auto check = [&](const CatalogKey& key) {
        ASSERT_GE(key.row, 1);
        ASSERT_LE(key.row, kCatalogRows);
        EXPECT_FALSE(seen[key.row]) << key.english;
        seen[key.row] = true;
        EXPECT_EQ(TextOf(Label{key.row}, Language::English), key.english);
    };
    for (const auto& key : kAnalysisLabels) check(key);
    for (const auto& key : kInterfaceLabels) check(key);
}

// The catalog as it lies in the sources, with its line breaks made real.
std::vector<std::vector<std::string>> CatalogRows()
{
    std::ifstream in(FOLIOSCOPE_SOURCE_DIR "/src/base/catalog.tsv");
    std::vector<std::vector<std::string>> rows;
    for (std::string line; std::getline(in, line);) {
        for (std::size_t at; (at = line.find("\\r\\n")) != std::string::npos;) line.replace(at, 4, "\r\n");
        auto& fields = rows.emplace_back();
        for (std::size_t from = 0, tab = 0; tab != std::string::npos; from = tab + 1) {
            tab = line.find('\t', from);
            fields.push_back(line.substr(from, tab == std::string::npos ? tab : tab - from));
        }
    }
    return rows;
}

TEST(Labels, SayWhatTheCatalogSaysInEveryRow)
{
    const auto rows = CatalogRows();
    ASSERT_EQ(rows.size(), kCatalogRows + 1);
    for (std::size_t row = 1; row < rows.size(); ++row) {
        ASSERT_EQ(rows[row].size(), 5U) << "row " << row;
        const auto texts = TextsOf(Label(row));
        for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(texts[i], rows[row][i + 2]) << "row " << row;
    }
}

// Each placeholder is filled by a replacement of its first occurrence, so that a second one would stay.
TEST(Labels, APlaceholderStandsOnceInAText)
{
    for (std::size_t row = 1; row <= kCatalogRows; ++row)
        for (const auto text : TextsOf(Label(row)))
            for (const char* placeholder : {"%1", "%2", "%3", " NEWLINE "}) {
                const auto first = text.find(placeholder);
                if (first == std::string_view::npos) continue;
                EXPECT_EQ(text.find(placeholder, first + 1), std::string_view::npos) << text;
            }
}

TEST(Labels, IdentifiersOfRowsAreUnique)
{
    std::vector<std::string> identifiers;
    for (const auto& row : CatalogRows()) identifiers.push_back(row.front());
    std::sort(identifiers.begin(), identifiers.end());
    EXPECT_EQ(std::adjacent_find(identifiers.begin(), identifiers.end()), identifiers.end());
}

}  // namespace
}  // namespace folioscope
