#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace folioscope::test {

// A file of the program, under its path from the project's folder: "src/base/text.h".
struct SourceFile {
    std::string path, text;
};

// All headers, sources and .def files of src/ and tools/.
std::vector<SourceFile> ProgramFiles();

// A string literal as it is written, and the name in front of it, such as `throw`. Those of directives don't count.
struct Literal {
    int line;
    std::string text, before;
};

// A text without its comments, directives and the insides of its literals. All lines stay where they are.
struct Code {
    std::string text;
    std::vector<Literal> literals;
};
Code CodeOf(std::string_view text);

// The included names with their quotes or brackets, and the lines on which they stand.
struct Include {
    int line;
    std::string name;
    bool quoted;
};
std::vector<Include> IncludesOf(std::string_view text);

// A function, or a lambda that initialises a table, with all its lines from the first of its heading on.
struct Function {
    int line, lines;
};
std::vector<Function> FunctionsOf(std::string_view text);

int LineCount(std::string_view text);
std::string Place(std::string_view path, int line);  // "src/base/text.h:12"

}  // namespace folioscope::test
