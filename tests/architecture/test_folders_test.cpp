// tests/ repeats the folders of the program.

#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "architecture/source_files.h"

namespace folioscope {
namespace {

using test::ProgramFiles;
using test::SourceFile;

namespace fs = std::filesystem;

using Faults = std::vector<std::string>;

// "tests/base" for "src/base/text.h".
std::string TestFolderOf(const std::string& path)
{
    const std::string folder = fs::path(path).parent_path().generic_string();
    return "tests/" + (folder.starts_with("src/") ? folder.substr(4) : folder);
}

Faults FoldersWithoutTests(const std::vector<SourceFile>& program, const std::vector<std::string>& tests)
{
    std::set<std::string> tested;
    for (const std::string& test : tests)
        if (test.find("_test.") != std::string::npos) tested.insert(fs::path(test).parent_path().generic_string());
    std::set<std::string> missing;
    for (const SourceFile& file : program)
        if (const std::string folder = TestFolderOf(file.path); !tested.contains(folder)) missing.insert(folder);
    return {missing.begin(), missing.end()};
}

std::vector<std::string> TestFiles()
{
    const fs::path project = FOLIOSCOPE_SOURCE_DIR;
    std::vector<std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator(project / "tests"))
        if (entry.is_regular_file()) files.push_back(fs::relative(entry.path(), project).generic_string());
    return files;
}

TEST(TestFolders, EachFolderHasItsTests) { EXPECT_EQ(FoldersWithoutTests(ProgramFiles(), TestFiles()), Faults{}); }

TEST(TestFoldersCheck, FindsAFolderWithoutTests)
{
    const std::vector<SourceFile> kProgram = {
        {"src/base/text.h", ""}, {"src/analysis/decode/a.cpp", ""}, {"tools/a.cpp", ""}};
    EXPECT_EQ(FoldersWithoutTests(kProgram,
                                  {"tests/base/text_test.cpp", "tests/tools/a_test.sh", "tests/analysis/a_test.cpp"}),
              Faults{"tests/analysis/decode"});
    EXPECT_EQ(FoldersWithoutTests(kProgram, {"tests/base/text.cpp"}),
              (Faults{"tests/analysis/decode", "tests/base", "tests/tools"}));
}

}  // namespace
}  // namespace folioscope
