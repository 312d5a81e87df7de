// The reading of sources on which the checks of this folder stand.

#include "architecture/source_files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

namespace folioscope {
namespace {

using test::Code;
using test::CodeOf;
using test::Function;
using test::FunctionsOf;
using test::IncludesOf;

TEST(ProgramFiles, AreThoseOfTheProgram)
{
    const auto files = test::ProgramFiles();
    const auto has = [&](std::string_view path) {
        return std::ranges::any_of(files, [&](const auto& file) { return file.path == path && !file.text.empty(); });
    };
    EXPECT_TRUE(has("src/base/text.h"));
    EXPECT_TRUE(has("src/analysis/decode/dispatch.cpp"));
    EXPECT_TRUE(has("src/analysis/elements/element_keys.def"));
    EXPECT_TRUE(has("tools/fsv_dump.cpp"));
    EXPECT_FALSE(has("tests/architecture/source_files.h"));
}

TEST(CodeOf, LosesCommentsAndDirectives)
{
    EXPECT_EQ(CodeOf("a;  // b \"c\"\nd;").text, "a;          \nd;");
    EXPECT_EQ(CodeOf("a /* b\n c */ d").text, "a     \n      d");
    EXPECT_EQ(CodeOf("#define A \\\n  {\nb").text, "           \n   \nb");
    EXPECT_EQ(CodeOf("  #include \"a.h\"\nb").text, "                \nb");
    EXPECT_TRUE(CodeOf("#include \"a.h\"\n// \"b\"\n/* \"c\" */").literals.empty());
}

TEST(CodeOf, CollectsStringLiterals)
{
    const Code code = CodeOf("throw \"one {\";\nf(\"a\\\"b\", '\"', R\"x(raw \")x\");");
    ASSERT_EQ(code.literals.size(), 3u);
    EXPECT_EQ(code.literals[0].text, "one {");
    EXPECT_EQ(code.literals[0].before, "throw");
    EXPECT_EQ(code.literals[0].line, 1);
    EXPECT_EQ(code.literals[1].text, "a\\\"b");
    EXPECT_EQ(code.literals[1].before, "f");
    EXPECT_EQ(code.literals[1].line, 2);
    EXPECT_EQ(code.literals[2].text, "raw \"");
    EXPECT_EQ(code.text.find('{'), std::string::npos);
}

TEST(CodeOf, TellsCharactersFromPartedNumbers)
{
    EXPECT_EQ(CodeOf("0xA6'6B + '{' + 1'000'000 + '\\'' + u8'}'").text, "0xA6'6B + ' ' + 1'000'000 + '  ' + u8' '");
}

TEST(IncludesOf, TellsNamesAndLines)
{
    const auto includes = IncludesOf("#pragma once\n#include <map>\n  # include \"base/text.h\"  // why\n");
    ASSERT_EQ(includes.size(), 2u);
    EXPECT_EQ(includes[0].name, "map");
    EXPECT_FALSE(includes[0].quoted);
    EXPECT_EQ(includes[1].name, "base/text.h");
    EXPECT_TRUE(includes[1].quoted);
    EXPECT_EQ(includes[1].line, 3);
}

std::vector<std::pair<int, int>> Found(std::string_view text)
{
    std::vector<std::pair<int, int>> found;
    for (const Function& function : FunctionsOf(text)) found.emplace_back(function.line, function.lines);
    return found;
}

using Lines = std::vector<std::pair<int, int>>;

TEST(FunctionsOf, FindsFunctionsAndMethods)
{
    EXPECT_EQ(Found("namespace a {\n\nint f()\n{\n    if (x) {\n    }\n}\n\nvoid g() { h(); }\n}\n"),
              (Lines{{3, 5}, {9, 1}}));
    EXPECT_EQ(Found("struct A {\n    A() : a(1), b{2}\n    {\n    }\npublic:\n    int f() const\n    { return b; }\n   "
                    " int b;\n};\n"),
              (Lines{{2, 3}, {6, 2}}));
    EXPECT_EQ(Found("template <class F>\nvoid Each(F f)\n{\n    f([] {\n    });\n}\n"), (Lines{{1, 6}}));
}

TEST(FunctionsOf, TakesALambdaOfATableForOne)
{
    EXPECT_EQ(Found("constexpr auto kIndex = [] {\n    return 1;\n}();\nint f() { return 1; }\n"),
              (Lines{{1, 3}, {4, 1}}));
}

TEST(FunctionsOf, PassesTablesAndTypes)
{
    EXPECT_EQ(
        Found(
            "constexpr Row kRows[] = {\n    {1, f(2)},\n    {2, {3}},\n};\nenum class A : int { b, c };\nint d{4};\n"),
        Lines{});
    EXPECT_EQ(Found("std::vector<int> a = {1, 2};\nconst char* b = \"} int f() {\";  // {\n"), Lines{});
}

}  // namespace
}  // namespace folioscope
