// Texts for the user stand in the catalog. What a renderer writes as a literal is the same in every language, and
// stands here with its reason.

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

// clang-format off
constexpr std::string_view kUnits[] = {"cm", "mm", "pels", " Bytes", " DPI)", " ppi", " Pixel", " Pixel , "};
constexpr std::string_view kFixed[] = {
    "True", "False",   // how a Boolean without words is shown
    "Invalid ",        // head of the message on a rotation
    ": CCW", ": CW",   // directions of an arc
    " private tag",    // of an ICC profile, behind its maker
    "Minimum",         // the width of a rule that has none
    "Custom (",        // a pattern set of the document's own
    "  (Offset X=",    // behind the point that it leads to
    "Highlight Color", "Standard OCA",  // colour spaces
    "Base Level",      // of a text control
};
// Tables of technical names, which the trade says in English everywhere.
constexpr std::string_view kNameTables[] = {
    "src/analysis/render/barcode.cpp", "src/analysis/render/modifications.cpp", "src/analysis/render/words_values.h",
    "src/objects/goca_decode.cpp", "src/objects/ioca_decode.cpp", "src/objects/ptoca_decode.cpp",  // names of items
    "src/objects/ioca_render.cpp",                                 // compression algorithms, colour spaces
    "src/colour/cmr_tables.h", "src/colour/cmr_words.h", "src/colour/icc_tables.h", "src/colour/icc_words.h",
    "src/colour/icc_decode.cpp",  // signatures
};
// clang-format on

template <std::size_t N> bool IsOneOf(std::string_view text, const std::string_view (&list)[N])
{
    return std::find(std::begin(list), std::end(list), text) != std::end(list);
}

bool HasWord(std::string_view text)
{
    const auto letter = [](char c) { return std::isalpha(static_cast<unsigned char>(c)) != 0; };
    return std::adjacent_find(text.begin(), text.end(), [&](char a, char b) { return letter(a) && letter(b); }) !=
           text.end();
}

bool IsCapitals(std::string_view text)
{
    return std::none_of(text.begin(), text.end(), [](char c) { return c >= 'a' && c <= 'z'; });
}

bool Renders(std::string_view path)
{
    return path.starts_with("src/analysis/render/") || path.starts_with("src/objects/") ||
           path.starts_with("src/colour/");
}

TEST(Rendering, WritesNoWordOutsideTheCatalog)
{
    std::vector<std::string> faults;
    for (const auto& [path, text] : ProgramFiles()) {
        if (!Renders(path) || IsOneOf(path, kNameTables)) continue;
        for (const auto& [line, literal, before] : CodeOf(text).literals) {
            if (before == "L" || before == "throw" || !HasWord(literal)) continue;
            if (IsOneOf(literal, kUnits) || IsOneOf(literal, kFixed) || IsCapitals(literal)) continue;
            faults.push_back(Place(path, line) + " says \"" + literal + "\"");
        }
    }
    EXPECT_EQ(faults, std::vector<std::string>{});
}

}  // namespace
}  // namespace folioscope
