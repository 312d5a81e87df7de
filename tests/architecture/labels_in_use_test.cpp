// The texts of the catalog that no code quotes stand in a list, each with its reason. So a new text can't be forgotten,
// and one that comes into use leaves the list.

#include <gtest/gtest.h>

#include <cctype>
#include <fstream>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "architecture/source_files.h"

namespace folioscope {
namespace {

using test::ProgramFiles;

using Quotes = std::set<std::pair<std::string, std::string>>;  // scope, English

std::vector<std::string> FieldsOf(const std::string& line)
{
    std::vector<std::string> fields(1);
    for (const char c : line) {
        if (c == '\t')
            fields.emplace_back();
        else
            fields.back() += c;
    }
    return fields;
}

// A literal at `at`, and those that the compiler joins to it. Escapes stay as they are written.
std::string LiteralsAt(std::string_view code, std::size_t at)
{
    std::string text;
    while (true) {
        while (at < code.size() && std::isspace(static_cast<unsigned char>(code[at]))) ++at;
        if (at >= code.size() || code[at] != '"') return text;
        for (++at; at < code.size() && code[at] != '"'; ++at) {
            text += code[at];
            if (code[at] == '\\' && at + 1 < code.size()) text += code[++at];
        }
        ++at;
    }
}

void AddQuotes(Quotes& quotes, std::string_view code)
{
    for (std::size_t at = 1; at + 1 < code.size(); ++at) {
        const bool quotesLabel = (code[at] == 'L' || code[at] == 'U') && code[at + 1] == '(';
        if (!quotesLabel || std::isalnum(static_cast<unsigned char>(code[at - 1])) || code[at - 1] == '_') continue;
        const std::string text = LiteralsAt(code, at + 2);
        if (!text.empty()) quotes.emplace(code[at] == 'L' ? "analysis" : "interface", text);
    }
}

Quotes QuotedLabels()
{
    Quotes quotes;
    for (const auto& [path, text] : ProgramFiles()) AddQuotes(quotes, text);
    return quotes;
}

// The first two of the told columns of a table, and whether the last one is filled.
Quotes RowsOf(const std::string& path, std::size_t scope, std::size_t english, std::size_t filled)
{
    Quotes rows;
    std::ifstream in(std::string(FOLIOSCOPE_SOURCE_DIR) + path);
    std::string line;
    std::getline(in, line);
    while (std::getline(in, line)) {
        const auto fields = FieldsOf(line);
        EXPECT_GT(fields.size(), filled) << line;
        if (fields.size() <= filled) continue;
        EXPECT_FALSE(fields[filled].empty()) << line;
        EXPECT_TRUE(rows.emplace(fields[scope], fields[english]).second) << "twice: " << line;
    }
    return rows;
}

TEST(Labels, OfNoUseAreListedWithTheirReason)
{
    const Quotes quoted = QuotedLabels();
    const Quotes listed = RowsOf("/tests/architecture/labels_without_use.tsv", 0, 1, 2);
    const Quotes catalog = RowsOf("/src/base/catalog.tsv", 1, 2, 4);
    ASSERT_GT(catalog.size(), 1000u);
    for (const auto& label : catalog)
        EXPECT_NE(quoted.contains(label), listed.contains(label)) << label.first << ": " << label.second;
    for (const auto& label : listed) EXPECT_TRUE(catalog.contains(label)) << "not in the catalog: " << label.second;
}

TEST(LabelCheck, FindsQuotes)
{
    Quotes quotes;
    AddQuotes(quotes, R"x( L("One") U( "Two "
        "and more") XL("no") L(variable) {L("Say \"it\"")} )x");
    EXPECT_EQ(quotes, (Quotes{{"analysis", "One"}, {"analysis", "Say \\\"it\\\""}, {"interface", "Two and more"}}));
}

}  // namespace
}  // namespace folioscope
