// Whole files against the dumps that were read and found right. `./dev samples` makes them anew.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "support/temporary_file.h"

namespace folioscope::test {

namespace {

const std::string kSource = FOLIOSCOPE_SOURCE_DIR;

std::vector<std::string> SampleNames()
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(kSource + "/samples"))
        if (entry.path().extension() == ".afp") names.push_back(entry.path().stem().string());
    std::sort(names.begin(), names.end());
    return names;
}

std::string OutputOf(const std::string& command)
{
    const TemporaryFolder folder;
    const std::string out = folder / "out";
    const int status = std::system((command + " >'" + out + "' 2>/dev/null").c_str());
    EXPECT_NE(status, -1);
    return ReadWhole(out);
}

std::string Dump(const std::string& options, const std::string& sample)
{
    return std::string(FOLIOSCOPE_DUMP) + " " + options + " '" + kSource + "/samples/" + sample + ".afp'";
}

class Golden : public testing::TestWithParam<std::string> {};

}  // namespace

TEST_P(Golden, DumpsAreAsRead)
{
    for (const std::string language : {"en", "de", "fr"}) {
        const std::string dump = OutputOf(Dump("--language " + language, GetParam()) + " | '" + kSource +
                                          "/tests/golden/without_version.sh'");
        EXPECT_EQ(dump, ReadWhole(kSource + "/tests/golden/" + GetParam() + "." + language + ".txt")) << language;
    }
}

TEST_P(Golden, TreeIsAsRead)
{
    EXPECT_EQ(OutputOf(Dump("--tree", GetParam())), ReadWhole(kSource + "/tests/golden/" + GetParam() + ".tree.txt"));
}

TEST_P(Golden, SampleIsWhatItsMakerMakes)
{
    const TemporaryFolder folder;
    ASSERT_EQ(std::system((std::string(FOLIOSCOPE_MAKE_SAMPLES) + " '" + folder.Path() + "'").c_str()), 0);
    EXPECT_EQ(ReadWhole(folder / (GetParam() + ".afp")), ReadWhole(kSource + "/samples/" + GetParam() + ".afp"));
}

INSTANTIATE_TEST_SUITE_P(Samples, Golden, testing::ValuesIn(SampleNames()), [](const auto& sample) {
    std::string name = sample.param;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
});

// The packaging decides where a record stands, not what it is: the dumps differ in the file's name alone.
TEST(Packagings, AllGiveTheSameDump)
{
    const auto body = [](const std::string& sample) {
        const std::string dump = OutputOf(Dump("", sample));
        return dump.substr(dump.find('\n'));
    };
    const std::string expected = body("statement");
    EXPECT_NE(expected.find("PAGE0002"), std::string::npos);
    for (const std::string packaging : {"bare", "rdw2", "rdw4", "cr", "lf", "crlf"})
        EXPECT_EQ(body("statement-" + packaging), expected) << packaging;
}

}  // namespace folioscope::test
