// Files and functions that can be read at one sitting.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "architecture/source_files.h"

namespace folioscope {
namespace {

using test::FunctionsOf;
using test::LineCount;
using test::Place;
using test::ProgramFiles;
using test::SourceFile;

using Faults = std::vector<std::string>;

constexpr int kFileLines = 500, kTableLines = 800;  // a file stays below
constexpr int kFunctionLines = 80;                  // a function may reach it

// A table is a file most of whose lines are aligned by hand.
bool IsTable(const SourceFile& file)
{
    if (file.path.ends_with(".def")) return true;
    int byHand = 0;
    std::string_view rest = file.text;
    while (true) {
        const auto off = rest.find("clang-format off");
        if (off == std::string_view::npos) break;
        rest.remove_prefix(off);
        const auto on = std::min(rest.find("clang-format on"), rest.size());
        byHand += LineCount(rest.substr(0, on));
        rest.remove_prefix(on);
    }
    return 2 * byHand > LineCount(file.text);
}

Faults FileFaults(const std::vector<SourceFile>& files)
{
    Faults faults;
    for (const SourceFile& file : files) {
        const int lines = LineCount(file.text);
        if (lines >= (IsTable(file) ? kTableLines : kFileLines))
            faults.push_back(file.path + " has " + std::to_string(lines) + " lines");
    }
    return faults;
}

Faults FunctionFaults(const std::vector<SourceFile>& files)
{
    Faults faults;
    for (const auto& [path, text] : files)
        for (const auto& [line, lines] : FunctionsOf(text))
            if (lines > kFunctionLines)
                faults.push_back(Place(path, line) + " has " + std::to_string(lines) + " lines");
    return faults;
}

TEST(Sizes, FilesAreShort) { EXPECT_EQ(FileFaults(ProgramFiles()), Faults{}); }

TEST(Sizes, FunctionsAreShort) { EXPECT_EQ(FunctionFaults(ProgramFiles()), Faults{}); }

TEST(Sizes, FunctionsAreFound)
{
    std::size_t functions = 0;
    for (const SourceFile& file : ProgramFiles()) functions += FunctionsOf(file.text).size();
    EXPECT_GT(functions, 300u);
}

std::string Lines(int count, std::string_view line)
{
    std::string text;
    for (int i = 0; i < count; ++i) (text += line) += '\n';
    return text;
}

TEST(FileCheck, FindsAFileOf500LinesAndATableOf800)
{
    EXPECT_EQ(FileFaults({{"src/base/a.cpp", Lines(499, "a;")}}), Faults{});
    EXPECT_EQ(FileFaults({{"src/base/a.cpp", Lines(500, "a;")}}), Faults{"src/base/a.cpp has 500 lines"});
    const std::string off = "// clang-format off\n", on = "// clang-format on\n";
    EXPECT_EQ(FileFaults({{"src/base/a.cpp", off + Lines(797, "a,") + on}}), Faults{});
    EXPECT_EQ(FileFaults({{"src/base/a.cpp", off + Lines(798, "a,") + on}}), Faults{"src/base/a.cpp has 800 lines"});
    EXPECT_EQ(FileFaults({{"src/base/a.cpp", off + Lines(100, "a,") + on + Lines(500, "a;")}}).size(), 1u);
    EXPECT_EQ(FileFaults({{"src/base/a.def", Lines(799, "KEY(a)")}}), Faults{});
}

TEST(FunctionCheck, FindsAFunctionOf81Lines)
{
    const auto sample = [](int lines) {
        return std::vector<SourceFile>{{"src/base/a.cpp", "\nvoid f()\n{\n" + Lines(lines - 3, "    g();") + "}\n"}};
    };
    EXPECT_EQ(FunctionFaults(sample(80)), Faults{});
    EXPECT_EQ(FunctionFaults(sample(81)), Faults{"src/base/a.cpp:2 has 81 lines"});
    EXPECT_EQ(FunctionFaults({{"src/base/a.cpp", "constexpr int kRows[] = {\n" + Lines(200, "    1,") + "};\n"}}),
              Faults{});
}

}  // namespace
}  // namespace folioscope
