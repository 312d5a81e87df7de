// Makes the label tables from the language catalog: catalogc CATALOG INDEX_OUT TEXTS_OUT
//
// The catalog has a header line and then the columns id, scope, English, German, French, parted by tabs.
// What would show as a fault to a user later is refused here: a missing text, a lost placeholder, two rows with
// one wording, an access key too many.

#include <algorithm>
#include <fstream>
#include <iostream>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

constexpr std::size_t kColumns = 5;

struct Row {
    std::string id, scope, text[3];
};

int faults = 0;

void Refuse(std::size_t line, const std::string& why)
{
    std::cerr << "catalog line " << line << ": " << why << "\n";
    ++faults;
}

std::vector<std::string> Split(const std::string& line)
{
    std::vector<std::string> fields;
    std::size_t from = 0;
    for (std::size_t tab; (tab = line.find('\t', from)) != std::string::npos; from = tab + 1)
        fields.push_back(line.substr(from, tab - from));
    fields.push_back(line.substr(from));
    return fields;
}

std::size_t CountOf(std::string_view text, std::string_view what)
{
    std::size_t count = 0;
    for (std::size_t at = 0; (at = text.find(what, at)) != std::string_view::npos; at += what.size()) ++count;
    return count;
}

void CheckRow(std::size_t line, const Row& row)
{
    if (row.scope != "analysis" && row.scope != "interface") Refuse(line, "unknown scope " + row.scope);
    for (const auto& text : row.text) {
        if (text.empty()) Refuse(line, "a language has no text");
        for (const char* mark : {"%1", "%2", "%3", " NEWLINE ", "\\r\\n", "&"})
            if (CountOf(text, mark) != CountOf(row.text[0], mark))
                Refuse(line, std::string("\"") + mark + "\" isn't in every language alike: " + text);
    }
}

std::vector<Row> Read(std::istream& in)
{
    std::vector<Row> rows;
    std::map<std::pair<std::string, std::string>, std::size_t> seen;
    std::string text;
    std::getline(in, text);
    for (std::size_t line = 2; std::getline(in, text); ++line) {
        auto fields = Split(text);
        if (fields.size() != kColumns) {
            Refuse(line, "not five columns");
            continue;
        }
        Row row{fields[0], fields[1], {fields[2], fields[3], fields[4]}};
        CheckRow(line, row);
        if (!seen.emplace(std::pair{row.scope, row.text[0]}, line).second)
            Refuse(line, "a second row for " + row.text[0]);
        rows.push_back(std::move(row));
    }
    return rows;
}

// The catalog writes a line break as \r\n, as a C++ literal does; only quotes and other backslashes need care.
std::string Quoted(std::string_view text)
{
    std::string quoted = "\"";
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto pair = text.substr(i, 2);
        if (text[i] == '"' || (text[i] == '\\' && pair != "\\r" && pair != "\\n")) quoted += '\\';
        quoted += text[i];
    }
    return quoted + "\"";
}

std::string WithLineBreaks(std::string_view text)
{
    constexpr std::string_view kWritten = "\\r\\n";
    std::string broken;
    for (std::size_t at; (at = text.find(kWritten)) != std::string_view::npos;
         text.remove_prefix(at + kWritten.size())) {
        broken += text.substr(0, at);
        broken += "\r\n";
    }
    return broken += text;
}

void WriteIndex(std::ostream& out, const std::vector<Row>& rows, const std::string& scope, const char* name)
{
    std::vector<std::pair<std::string, std::size_t>> keys;
    for (std::size_t i = 0; i < rows.size(); ++i)
        if (rows[i].scope == scope) keys.emplace_back(WithLineBreaks(rows[i].text[0]), i);
    std::sort(keys.begin(), keys.end());
    out << "inline constexpr CatalogKey " << name << "[] = {\n";
    for (const auto& [english, row] : keys) out << "    {" << Quoted(rows[row].text[0]) << ", " << row + 1 << "},\n";
    out << "};\n";
}

void WriteTexts(std::ostream& out, const std::vector<Row>& rows)
{
    out << "constexpr CatalogRow kCatalog[] = {\n    {},\n";
    for (const Row& row : rows)
        out << "    {{" << Quoted(row.text[0]) << ", " << Quoted(row.text[1]) << ", " << Quoted(row.text[2]) << "}},\n";
    out << "};\n";
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 4) {
        std::cerr << "usage: catalogc CATALOG INDEX_OUT TEXTS_OUT\n";
        return 2;
    }
    std::ifstream in(argv[1]);
    const auto rows = Read(in);
    if (!in.eof() || rows.empty()) Refuse(1, "the catalog can't be read");
    if (faults != 0) return 1;
    std::ofstream index(argv[2]), texts(argv[3]);
    index << "inline constexpr std::size_t kCatalogRows = " << rows.size() << ";\n";
    WriteIndex(index, rows, "analysis", "kAnalysisLabels");
    WriteIndex(index, rows, "interface", "kInterfaceLabels");
    WriteTexts(texts, rows);
    return index.flush() && texts.flush() ? 0 : 1;
}
