#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "support/temporary_file.h"
#include "viewers/resource_lists.h"

namespace folioscope {
namespace {

using Paths = std::vector<std::string>;

std::string ContentOf(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream out;
    out << in.rdbuf();
    return out.str();
}

void Put(const std::string& path, const std::string& content) { std::ofstream(path, std::ios::binary) << content; }

class ResourceLists : public testing::Test {
protected:
    std::string Root() const { return folder_.Path(); }
    std::string At(const std::string& name) const { return folder_ / name; }

    test::TemporaryFolder folder_;
};

TEST_F(ResourceLists, AreMadeEmptyWhereTheyAreMissing)
{
    Put(At("mffpdf.pro"), "kept");
    CreateResourceLists(Root());
    EXPECT_EQ(ContentOf(At("mffafp.pro")), "<resourcelist>\n</resourcelist>\n");
    EXPECT_EQ(ContentOf(At("mffpdf.pro")), "kept");
    EXPECT_EQ(ReadResourcePaths(Root()), Paths{});
}

TEST_F(ResourceLists, GiveTheFoldersOfTheirEntries)
{
    Put(At("mffafp.pro"), "<resourcelist>\r\n   <FILES extension=\"*\" path=\"/one two\" />\r\n"
                          " <other path=\"/no\"/>\n<files name=\"none\"/>\n<files path=\"/open\n</resourcelist>\n"
                          "<files path=\"/behind\"/>");
    EXPECT_EQ(ReadResourcePaths(Root()), (Paths{"/one two", "/open", "/behind"}));
}

TEST_F(ResourceLists, WithoutAFileAreEmpty) { EXPECT_EQ(ReadResourcePaths(At("nowhere")), Paths{}); }

TEST_F(ResourceLists, KeepForeignLinesWhenTheyAreWritten)
{
    const std::string before =
        "<!-- mine -->\n<resourcelist>\n<files path=\"/old\"/>\n  <Other/>\n </ResourceList> \nrest\n"
        "<files path=\"/kept\"/>\n";
    for (const char* const list : {"mffafp.pro", "mffpdf.pro"}) Put(At(list), before);
    Put(At("mffafp.bak"), "older");
    WriteResourcePaths(Root(), {"/a", "/b c"});
    for (const char* const list : {"mffafp.pro", "mffpdf.pro"})
        EXPECT_EQ(ContentOf(At(list)), "<!-- mine -->\n<resourcelist>\n  <Other/>\n"
                                       "      <files path=\"/a\" extension=\"*\" />\n"
                                       "      <files path=\"/b c\" extension=\"*\" />\n"
                                       " </ResourceList> \nrest\n<files path=\"/kept\"/>\n")
            << list;
    for (const char* const list : {"mffafp.bak", "mffpdf.bak"}) EXPECT_EQ(ContentOf(At(list)), before) << list;
}

TEST_F(ResourceLists, WithoutAnEndHaveTheEntriesBehind)
{
    for (const char* const list : {"mffafp.pro", "mffpdf.pro"}) Put(At(list), "<resourcelist>\nline");
    WriteResourcePaths(Root(), {"/a"});
    EXPECT_EQ(ContentOf(At("mffpdf.pro")), "<resourcelist>\nline\n      <files path=\"/a\" extension=\"*\" />\n");
}

TEST_F(ResourceLists, AreNotWrittenWhereThereAreNone)
{
    Put(At("mffpdf.pro"), "</resourcelist>\n");
    WriteResourcePaths(Root(), {"/a"});
    EXPECT_FALSE(std::filesystem::exists(At("mffafp.pro")));
    EXPECT_EQ(ContentOf(At("mffpdf.pro")), "      <files path=\"/a\" extension=\"*\" />\n</resourcelist>\n");
}

TEST_F(ResourceLists, ComeBackAsTheyWereWritten)
{
    CreateResourceLists(Root());
    const Paths paths = {"/x", "/y z"};
    WriteResourcePaths(Root(), paths);
    EXPECT_EQ(ReadResourcePaths(Root()), paths);
}

}  // namespace
}  // namespace folioscope
