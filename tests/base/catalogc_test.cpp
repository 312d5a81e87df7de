// Runs the program that makes the label tables, on catalogs good and bad.

#include <gtest/gtest.h>

#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

#include "support/temporary_file.h"

namespace folioscope::test {
namespace {

constexpr std::string_view kHeader = "id\tscope\tEnglish\tGerman\tFrench\n";
constexpr std::string_view kGoodRow = "size\tanalysis\tSize\tGröße\tTaille\n";

struct Made {
    int exitCode = -1;
    std::string complaint, index, texts;  // standard error, and the two files
};

class Catalogc : public testing::Test {
protected:
    Made Run(const std::string& arguments)
    {
        const std::string command =
            "'" FOLIOSCOPE_CATALOGC "' " + arguments + " 2>'" + folder_ / "complaint" + "' >/dev/null";
        const int status = std::system(command.c_str());
        Made made;
        made.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        made.complaint = ReadWhole(folder_ / "complaint");
        made.index = ReadWhole(folder_ / "index.inc");
        made.texts = ReadWhole(folder_ / "texts.inc");
        return made;
    }

    Made Make(std::string_view rows)
    {
        const std::string catalog = folder_.File("catalog.tsv", std::string(kHeader) + std::string(rows));
        return Run("'" + catalog + "' '" + folder_ / "index.inc" + "' '" + folder_ / "texts.inc" + "'");
    }

    // The row stands behind a good one, so that the complaint has to name line 3.
    void ExpectRefused(std::string_view row, std::string_view reason)
    {
        const Made made = Make(std::string(kGoodRow) + std::string(row));
        EXPECT_EQ(made.exitCode, 1) << row;
        EXPECT_NE(made.complaint.find("catalog line 3: "), std::string::npos) << made.complaint;
        EXPECT_NE(made.complaint.find(reason), std::string::npos) << made.complaint;
        EXPECT_TRUE(made.index.empty() && made.texts.empty()) << "tables made of a bad catalog: " << row;
    }

    TemporaryFolder folder_;
};

bool Holds(const std::string& text, std::string_view part) { return text.find(part) != std::string::npos; }

TEST_F(Catalogc, MakesTablesOfAGoodCatalog)
{
    const Made made = Make("zoom\tinterface\tZoom\tGröße\tZoom\n"
                           "b\tanalysis\tb\tB\tBé\n"
                           "a\tanalysis\ta\tA\tAé\n");
    ASSERT_EQ(made.exitCode, 0) << made.complaint;
    EXPECT_EQ(made.complaint, "");
    EXPECT_TRUE(Holds(made.index, "kCatalogRows = 3;")) << made.index;
    EXPECT_TRUE(Holds(made.index, "kAnalysisLabels[] = {\n    {\"a\", 3},\n    {\"b\", 2},\n};")) << made.index;
    EXPECT_TRUE(Holds(made.index, "kInterfaceLabels[] = {\n    {\"Zoom\", 1},\n};")) << made.index;
    EXPECT_TRUE(Holds(made.texts, "{},\n    {{\"Zoom\", \"Größe\", \"Zoom\"}},\n    {{\"b\", \"B\", \"Bé\"}},\n"))
        << made.texts;
}

TEST_F(Catalogc, KeepsLineBreaksAndQuotes)
{
    const Made made = Make("lines\tinterface\tone\\r\\ntwo\teins\\r\\nzwei\tun\\r\\ndeux\n"
                           "quote\tanalysis\tthe \"%1\"\tdas „%1“\tle «%1»\n");
    ASSERT_EQ(made.exitCode, 0) << made.complaint;
    EXPECT_TRUE(Holds(made.texts, R"({{"one\r\ntwo", "eins\r\nzwei", "un\r\ndeux"}})")) << made.texts;
    EXPECT_TRUE(Holds(made.texts, R"({{"the \"%1\"", "das „%1“", "le «%1»"}})")) << made.texts;
}

TEST_F(Catalogc, KeepsOtherBackslashes)
{
    const Made made = Make("path\tinterface\tC:\\temp\\\tC:\\temp\\\tC:\\temp\\\n");
    ASSERT_EQ(made.exitCode, 0) << made.complaint;
    EXPECT_TRUE(Holds(made.texts, R"({{"C:\\temp\\", )")) << made.texts;
}

// A line break sorts by its own characters, which come before all letters.
TEST_F(Catalogc, SortsLineBreaksAsTheyWillBeLookedUp)
{
    const Made made = Make("x\tinterface\ta\\r\\nb\ta\\r\\nb\ta\\r\\nb\n"
                           "y\tinterface\taZ\taZ\taZ\n");
    ASSERT_EQ(made.exitCode, 0) << made.complaint;
    EXPECT_TRUE(Holds(made.index, "{\"a\\r\\nb\", 1},\n    {\"aZ\", 2},")) << made.index;
}

TEST_F(Catalogc, TakesOneTextInBothScopes)
{
    const Made made = Make("add\tanalysis\tAdd\tHinzufügen\tAjouter\n"
                           "ui_add\tinterface\tAdd\tHinzufügen\tAjouter\n");
    EXPECT_EQ(made.exitCode, 0) << made.complaint;
}

TEST_F(Catalogc, TakesTextsThatDifferInLetterCase)
{
    const Made made = Make("a\tanalysis\tGlossy\tGlänzend\tBrillant\nb\tanalysis\tglossy\tglänzend\tbrillant\n");
    EXPECT_EQ(made.exitCode, 0) << made.complaint;
}

TEST_F(Catalogc, RefusesAMissingColumn)
{
    ExpectRefused("name\tanalysis\tName\tName\n", "five columns");
    ExpectRefused("name\n", "five columns");
    ExpectRefused("\n", "five columns");
    ExpectRefused("name\tanalysis\tName\tName\tNom\tNombre\n", "five columns");
}

TEST_F(Catalogc, RefusesAnEmptyText)
{
    ExpectRefused("name\tanalysis\t\tName\tNom\n", "no text");
    ExpectRefused("name\tanalysis\tName\t\tNom\n", "no text");
    ExpectRefused("name\tanalysis\tName\tName\t\n", "no text");
}

TEST_F(Catalogc, RefusesALostPlaceholder)
{
    ExpectRefused("page\tanalysis\tPage %1\tSeite\tPage %1\n", "%1");
    ExpectRefused("page\tanalysis\tPage %1 of %2\tSeite %1 von %2\tPage %1\n", "%2");
    ExpectRefused("page\tanalysis\t%1 %2 %3\t%3 %2 %1\t%1 %2 %2\n", "%3");
    ExpectRefused("page\tanalysis\tPage\tSeite %1\tPage\n", "%1");
    ExpectRefused("page\tanalysis\tPage %1\tSeite %1 %1\tPage %1\n", "%1");
}

TEST_F(Catalogc, TakesPlaceholdersInAnotherOrder)
{
    EXPECT_EQ(Make("page\tanalysis\t%1 of %2\t%2 hat %1\t%2 : %1\n").exitCode, 0);
}

TEST_F(Catalogc, RefusesALostLineBreak)
{
    ExpectRefused("text\tinterface\tone NEWLINE two\teins NEWLINE zwei\tun deux\n", "NEWLINE");
    ExpectRefused("text\tinterface\tone\\r\\ntwo\teins zwei\tun\\r\\ndeux\n", "\\r\\n");
}

TEST_F(Catalogc, RefusesALostAccessKey)
{
    ExpectRefused("open\tinterface\t&Open\tÖffnen\t&Ouvrir\n", "&");
    ExpectRefused("open\tinterface\t&Open\t&Öffnen\tO&uvri&r\n", "&");
}

TEST_F(Catalogc, RefusesASecondRowOfOneText)
{
    ExpectRefused("size_again\tanalysis\tSize\tUmfang\tTaille\n", "second row");
}

TEST_F(Catalogc, RefusesAnUnknownScope)
{
    ExpectRefused("name\tAnalysis\tName\tName\tNom\n", "scope");
    ExpectRefused("name\t\tName\tName\tNom\n", "scope");
    ExpectRefused("name\tboth\tName\tName\tNom\n", "scope");
}

TEST_F(Catalogc, TellsEveryFaultOfACatalog)
{
    const Made made = Make("a\tanalysis\tA\t\tA\nb\tnowhere\tB\tB\tB\nc\tanalysis\tC\n");
    EXPECT_EQ(made.exitCode, 1);
    for (const char* line : {"line 2: ", "line 3: ", "line 4: "}) EXPECT_TRUE(Holds(made.complaint, line)) << line;
}

TEST_F(Catalogc, RefusesACatalogWithoutRows) { EXPECT_EQ(Make("").exitCode, 1); }

TEST_F(Catalogc, RefusesACatalogThatIsNotThere)
{
    EXPECT_EQ(
        Run("'" + folder_ / "none.tsv" + "' '" + folder_ / "index.inc" + "' '" + folder_ / "texts.inc" + "'").exitCode,
        1);
    EXPECT_FALSE(std::filesystem::exists(folder_ / "index.inc"));
}

TEST_F(Catalogc, FailsWhenATableCanNotBeWritten)
{
    const std::string catalog = folder_.File("catalog.tsv", std::string(kHeader) + std::string(kGoodRow));
    EXPECT_EQ(Run("'" + catalog + "' '" + folder_ / "none/index.inc" + "' '" + folder_ / "texts.inc" + "'").exitCode,
              1);
    EXPECT_EQ(Run("'" + catalog + "' '" + folder_ / "index.inc" + "' '" + folder_ / "none/texts.inc" + "'").exitCode,
              1);
}

TEST_F(Catalogc, TellsItsUse)
{
    const Made made = Run("");
    EXPECT_EQ(made.exitCode, 2);
    EXPECT_TRUE(Holds(made.complaint, "usage:")) << made.complaint;
    EXPECT_EQ(Run("a b").exitCode, 2);
    EXPECT_EQ(Run("a b c d").exitCode, 2);
}

}  // namespace
}  // namespace folioscope::test
