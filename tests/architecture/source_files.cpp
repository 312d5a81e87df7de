#include "architecture/source_files.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <utility>

#include "support/temporary_file.h"

namespace folioscope::test {

namespace {

bool IsNameCharacter(char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_'; }

// Goes through a text once. What isn't code is overwritten with blanks.
class Lexer {
public:
    explicit Lexer(std::string_view text) { code_.text = text; }

    Code Run()
    {
        while (at_ < code_.text.size()) Step();
        return std::move(code_);
    }

private:
    bool Sees(std::string_view what) const { return std::string_view(code_.text).substr(at_).starts_with(what); }
    std::size_t Find(std::string_view what, std::size_t from) const
    {
        return std::min(code_.text.find(what, from), code_.text.size());
    }
    void BlankTo(std::size_t end)
    {
        for (end = std::min(end, code_.text.size()); at_ < end; ++at_)
            if (code_.text[at_] != '\n') code_.text[at_] = ' ';
    }

    void Step()
    {
        if (Sees("//")) return BlankTo(Find("\n", at_));
        if (Sees("/*")) return BlankTo(Find("*/", at_ + 2) + 2);
        if (Sees("#") && StartsItsLine()) return BlankDirective();
        if (Sees("R\"")) return TakeRaw();
        if (Sees("\"")) return TakeQuoted('"');
        if (Sees("'")) return TakeQuoted('\'');
        if (IsNameCharacter(code_.text[at_])) return TakeName();
        ++at_;
    }

    bool StartsItsLine() const
    {
        const auto before = code_.text.find_last_not_of(" \t", at_ == 0 ? std::string::npos : at_ - 1);
        return at_ == 0 || before == std::string::npos || code_.text[before] == '\n';
    }

    void BlankDirective()
    {
        std::size_t end = Find("\n", at_);
        while (end < code_.text.size() && code_.text[end - 1] == '\\') end = Find("\n", end + 1);
        BlankTo(end);
    }

    // A number is taken with the quotes that part its digits.
    void TakeName()
    {
        const std::size_t from = at_;
        const bool number = std::isdigit(static_cast<unsigned char>(code_.text[at_])) != 0;
        const auto belongs = [&](char c) { return IsNameCharacter(c) || (number && c == '\''); };
        while (at_ < code_.text.size() && belongs(code_.text[at_])) ++at_;
        name_ = code_.text.substr(from, at_ - from);
    }

    void TakeQuoted(char quote)
    {
        const int line = LineHere();
        std::size_t end = at_ + 1;
        while (end < code_.text.size() && code_.text[end] != quote && code_.text[end] != '\n')
            end += code_.text[end] == '\\' ? 2 : 1;
        if (quote == '"') code_.literals.push_back({line, code_.text.substr(at_ + 1, end - at_ - 1), name_});
        ++at_;
        BlankTo(end);
        ++at_;
        name_.clear();
    }

    void TakeRaw()
    {
        const int line = LineHere();
        const std::size_t open = Find("(", at_), from = open + 1;
        const std::string close = ")" + code_.text.substr(at_ + 2, open - at_ - 2) + "\"";
        const std::size_t end = Find(close, from);
        code_.literals.push_back({line, code_.text.substr(std::min(from, end), end - std::min(from, end)), name_});
        BlankTo(end + close.size());
        name_.clear();
    }

    int LineHere() const { return LineCount(std::string_view(code_.text).substr(0, at_)) + 1; }

    Code code_;
    std::size_t at_ = 0;
    std::string name_;
};

bool HasWord(std::string_view heading, std::string_view word)
{
    for (std::size_t at = 0; (at = heading.find(word, at)) != std::string_view::npos; at += word.size()) {
        const std::size_t end = at + word.size();
        if ((at == 0 || !IsNameCharacter(heading[at - 1])) && (end == heading.size() || !IsNameCharacter(heading[end])))
            return true;
    }
    return false;
}

enum class Brace { Scope, Initialiser, Function };

// What a brace opens, by what stands in front of it since the last statement or block.
Brace KindOf(std::string_view heading, char before)
{
    if (IsNameCharacter(before) || before == '>') return Brace::Initialiser;  // name{...}
    const auto last = heading.find_last_not_of(" \t\n");
    if (last == std::string_view::npos) return Brace::Scope;
    if (heading.find('(') == std::string_view::npos)
        for (const std::string_view word : {"namespace", "class", "struct", "union", "enum", "extern"})
            if (HasWord(heading, word)) return Brace::Scope;
    return heading[last] == '=' || heading[last] == ',' ? Brace::Initialiser : Brace::Function;
}

std::size_t MatchingBrace(std::string_view code, std::size_t open)
{
    int depth = 0;
    for (std::size_t at = open; at < code.size(); ++at) {
        depth += code[at] == '{' ? 1 : code[at] == '}' ? -1 : 0;
        if (depth == 0) return at;
    }
    return code.size() - 1;
}

// Takes a word and the blanks around it off a line.
bool TakeWord(std::string_view& line, std::string_view word)
{
    const auto skipBlanks = [&] { line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size())); };
    skipBlanks();
    if (!line.starts_with(word)) return false;
    line.remove_prefix(word.size());
    skipBlanks();
    return true;
}

bool IsAccess(std::string_view heading)
{
    return heading.ends_with("public") || heading.ends_with("private") || heading.ends_with("protected");
}

}  // namespace

int LineCount(std::string_view text) { return static_cast<int>(std::count(text.begin(), text.end(), '\n')); }

std::string Place(std::string_view path, int line) { return std::string(path) + ":" + std::to_string(line); }

std::vector<SourceFile> ProgramFiles()
{
    namespace fs = std::filesystem;
    const fs::path project = FOLIOSCOPE_SOURCE_DIR;
    std::vector<SourceFile> files;
    for (const char* const folder : {"src", "tools"}) {
        for (const auto& entry : fs::recursive_directory_iterator(project / folder)) {
            const std::string kind = entry.path().extension().string();
            if (!entry.is_regular_file() || (kind != ".h" && kind != ".cpp" && kind != ".def")) continue;
            files.push_back({fs::relative(entry.path(), project).generic_string(), ReadWhole(entry.path().string())});
        }
    }
    std::ranges::sort(files, {}, &SourceFile::path);
    return files;
}

Code CodeOf(std::string_view text) { return Lexer(text).Run(); }

std::vector<Include> IncludesOf(std::string_view text)
{
    std::vector<Include> includes;
    for (int line = 1; !text.empty(); ++line) {
        const auto end = std::min(text.find('\n'), text.size());
        std::string_view row = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (!TakeWord(row, "#") || !TakeWord(row, "include") || row.empty() || (row[0] != '"' && row[0] != '<'))
            continue;
        const bool quoted = row[0] == '"';
        includes.push_back({line, std::string(row.substr(1, row.find(quoted ? '"' : '>', 1) - 1)), quoted});
    }
    return includes;
}

std::vector<Function> FunctionsOf(std::string_view text)
{
    const std::string code = CodeOf(text).text;
    const std::string_view view = code;
    std::vector<Function> functions;
    std::size_t heading = 0;
    for (std::size_t at = 0; at < view.size(); ++at) {
        const char c = view[at];
        const std::string_view before = view.substr(heading, at - heading);
        if (c == ';' || c == '}' || (c == ':' && IsAccess(before))) heading = at + 1;
        if (c != '{') continue;
        const Brace kind = KindOf(before, at == 0 ? ' ' : view[at - 1]);
        const std::size_t end = kind == Brace::Scope ? at : MatchingBrace(view, at);
        if (kind == Brace::Function) {
            const std::size_t first = view.find_first_not_of(" \t\n", heading);
            functions.push_back({LineCount(view.substr(0, first)) + 1, LineCount(view.substr(first, end - first)) + 1});
        }
        at = end;
        if (kind != Brace::Initialiser) heading = at + 1;
    }
    return functions;
}

}  // namespace folioscope::test
