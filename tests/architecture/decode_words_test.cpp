// Decoding never writes a word of the user's: words are the renderers', who know the language.

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "architecture/source_files.h"

namespace folioscope {
namespace {

using test::CodeOf;
using test::Place;
using test::ProgramFiles;
using test::SourceFile;

using Faults = std::vector<std::string>;

bool IsHexDigit(char c) { return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F'); }

// Escapes become blanks: "\t" and "\x5F".
std::string WithoutEscapes(std::string literal)
{
    for (std::size_t at = 0; at + 1 < literal.size(); ++at) {
        if (literal[at] != '\\') continue;
        std::size_t length = 2;
        if (literal[at + 1] == 'x')
            while (at + length < literal.size() && std::isxdigit(static_cast<unsigned char>(literal[at + length])))
                ++length;
        literal.replace(at, length, length, ' ');
    }
    return literal;
}

// Two letters or more in a row, one of them small. Short names of the format are in capitals.
bool HasWord(std::string_view text)
{
    int letters = 0;
    bool small = false;
    for (const char c : text) {
        const bool letter = std::isalpha(static_cast<unsigned char>(c)) != 0;
        letters = letter ? letters + 1 : 0;
        small = letter && (small || c >= 'a');
        if (letters >= 2 && small) return true;
    }
    return false;
}

// The long names of the format's structures hold their code, x'D3 A8 AF', and are the same in all languages.
bool IsNameOfTheFormat(std::string_view text)
{
    for (std::size_t at = 0; (at = text.find('\'', at)) != std::string_view::npos; ++at)
        if (at + 2 < text.size() && IsHexDigit(text[at + 1]) && IsHexDigit(text[at + 2])) return true;
    return false;
}

// Files whose words are no line of the user's, and why.
constexpr std::string_view kNoLines[] = {
    "src/analysis/decode/object_ids.h",       // names of the public registry, the same in every language
    "src/analysis/decode/object_ids.cpp",     // the same
    "src/analysis/decode/triplets.cpp",       // summaries, which no renderer shows
    "src/analysis/decode/triplet_names.cpp",  // the same
};
// What a field says in place of a number.
constexpr std::string_view kInPlaceOfANumber = "Default";
constexpr std::string_view kFieldsThatSayIt[] = {"src/analysis/decode/fields_descriptors.cpp",
                                                 "src/analysis/decode/fields_graphics.cpp"};

bool IsExempt(std::string_view path, std::string_view literal)
{
    return std::find(std::begin(kNoLines), std::end(kNoLines), path) != std::end(kNoLines) ||
           (literal == kInPlaceOfANumber &&
            std::find(std::begin(kFieldsThatSayIt), std::end(kFieldsThatSayIt), path) != std::end(kFieldsThatSayIt));
}

Faults WordFaults(const std::vector<SourceFile>& files)
{
    Faults faults;
    for (const auto& [path, text] : files) {
        if (!path.starts_with("src/analysis/decode/")) continue;
        for (const auto& [line, literal, before] : CodeOf(text).literals) {
            const std::string plain = WithoutEscapes(literal);
            if (before == "throw" || IsNameOfTheFormat(plain) || !HasWord(plain)) continue;  // throw: for the compiler
            if (IsExempt(path, plain)) continue;
            faults.push_back(Place(path, line) + " says \"" + literal + "\"");
        }
    }
    return faults;
}

TEST(Decoding, WritesNoWord) { EXPECT_EQ(WordFaults(ProgramFiles()), Faults{}); }

Faults FaultsOf(const std::string& code) { return WordFaults({{"src/analysis/decode/a.cpp", code}}); }

TEST(WordCheck, FindsAWord)
{
    EXPECT_EQ(FaultsOf("\nAdd(\"Default\");"), Faults{"src/analysis/decode/a.cpp:2 says \"Default\""});
    for (const char* const literal : {"\"Inch\"", "\" pels\"", "\"\\tYes\"", "\"Länge\"", "R\"(no image cell)\""})
        EXPECT_EQ(FaultsOf("Add(" + std::string(literal) + ");").size(), 1u) << literal;
}

TEST(WordCheck, PassesWhatIsNone)
{
    for (const char* const literal :
         {"\"\"", "\"...\"", "\"90°\"", "\"BPG\"", "\"BDD/BSD\"", "\"PTD-1\"", "\"0123456789ABCDEF\"",
          "\"\\r\\n\\t    \"", "\"\\x5F\\xab\\x77\"", "\"x\"", "\"IDD (Image Data Descriptor, 'D3 A6 FB')\"",
          "\"LND (Line Descriptor, x'D3 A6 E7)\""})
        EXPECT_EQ(FaultsOf("Add(" + std::string(literal) + ");"), Faults{}) << literal;
    EXPECT_EQ(FaultsOf("#include \"base/text.h\"\n// says \"Default\"\nthrow \"two rows\";"), Faults{});
    EXPECT_EQ(WordFaults({{"src/analysis/render/a.cpp", "Add(\"Default\");"}}), Faults{});
}

}  // namespace
}  // namespace folioscope
