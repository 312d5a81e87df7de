// fsv-dump as a user sees it: dump, tree, messages, help and wrong use.

#include <gtest/gtest.h>

#include <algorithm>

#include "base/version.h"
#include "dump_program.h"
#include "support/temporary_file.h"

namespace folioscope::test {

namespace {

std::string Block(std::string_view line) { return "     ---------\n" + std::string(line) + "\n"; }

}  // namespace

TEST(FsvDump, PrintsTheDumpInUtf8)
{
    const TemporaryFolder folder;
    const Ended ended = Dump({folder.File("a.afp", Statement())});
    EXPECT_EQ(ended.out, StatementDump("a.afp"));
    EXPECT_EQ(ended.err, "");
    EXPECT_EQ(ended.status, 0);
}

TEST(FsvDump, SpeaksThreeLanguages)
{
    const TemporaryFolder folder;
    const std::string file = folder.File("a.afp", Statement());
    const auto nop = [&](const std::string& language) {
        const std::string out = Dump({"--language", language, file}).out;
        const auto at = out.find("\tNOP\t");
        return at == std::string::npos ? out : out.substr(at, out.find('\n', at) - at);
    };
    EXPECT_EQ(nop("en"), "\tNOP\tContent:\tGrüße");
    EXPECT_EQ(nop("de"), "\tNOP\tInhalt:\tGrüße");
    EXPECT_EQ(nop("fr"), "\tNOP\tContenu:\tGrüße");
}

TEST(FsvDump, ReadsNopContentsInTheirCodePage)
{
    const TemporaryFolder folder;
    // x'4A' is a cent sign on page 37, a bracket on page 500 and A umlaut on page 273.
    const std::string file = folder.File("a", AfpFile().Add("NOP", Raw({0x4A})).Content());
    const auto out = [&](std::vector<std::string> arguments) {
        arguments.push_back(file);
        return Dump(arguments).out;
    };
    const auto expected = [](const std::string& text) { return Header("a") + Block("\tNOP\tContent:\t" + text); };
    EXPECT_EQ(out({}), expected("¢"));
    EXPECT_EQ(out({"--code-page", "500"}), expected("["));
    EXPECT_EQ(out({"--code-page-nop", "273"}), expected("Ä"));
    EXPECT_EQ(out({"--code-page-nop=273", "--code-page=500"}), expected("Ä"));
    EXPECT_EQ(out({"--code-page-tle=273"}), expected("¢"));
}

TEST(FsvDump, TellsAFaultByItsStatus)
{
    const TemporaryFolder folder;
    const Ended ended = Dump({folder.File("bad", Damaged())});
    EXPECT_EQ(ended.out, Header("<color=clred>bad") + Block(">\tBDT\tName:\tDOC00001") +
                             Block(">\t<color=clred>EPG\tName:\tPAGE0001"));
    EXPECT_EQ(ended.err, "");
    EXPECT_EQ(ended.status, 1);
}

TEST(FsvDump, DumpsWhatHasNoFieldAndSaysSo)
{
    const TemporaryFolder folder;
    const std::string file = folder.File("letter.pdf", "%PDF-1.7 and no structured field");
    const Ended ended = Dump({file});
    EXPECT_EQ(ended.out, Header("letter.pdf"));
    EXPECT_EQ(ended.err, file + ": No structured field was found. Check that this is an AFP file.\n");
    EXPECT_EQ(ended.status, 1);
    EXPECT_EQ(Dump({"--language=de", file}).err,
              file + ": Es wurde kein Structured Field gefunden. Prüfen, ob das eine AFP-Datei ist.\n");
}

TEST(FsvDump, OutputDependsOnNothingButItsOptions)
{
    const TemporaryFolder home;
    const std::string file = home.File("a.afp", Statement() + Damaged());
    home.File(".folioscope", "Language=2\nCodepage=500\n");
    const Ended usual = Dump({"--messages", "--tree", file});
    using Environment = std::vector<std::string>;
    for (const Environment& environment :
         {Environment{}, Environment{"LANG=de_DE.UTF-8", "LANGUAGE=de", "HOME=" + home.Path()},
          Environment{"LC_ALL=C", "TZ=Asia/Tokyo", "COLUMNS=20", "TERM=dumb"},
          Environment{"LC_ALL=fr_FR.ISO-8859-1", "HOME=/nowhere", "XDG_CONFIG_HOME=" + home.Path(),
                      "TMPDIR=/nowhere"}}) {
        for (const char* kind : {"--tree", "--messages"}) {
            Call call = DumpCall({"--messages", kind, file});
            call.environment = environment;
            const Ended ended = RunToEnd(call);
            EXPECT_EQ(ended.out, Dump({"--messages", kind, file}).out);
            EXPECT_EQ(ended.err, usual.err);
            EXPECT_EQ(ended.status, 1);
        }
    }
    EXPECT_NE(usual.err, "");
}

// Tree --------------------------------------------------------------------------------------------------------------

TEST(FsvDumpTree, IsOneLineANode)
{
    const TemporaryFolder folder;
    const Ended ended = Dump({"--tree", folder.File("a.afp", Statement())});
    EXPECT_EQ(ended.out, "a.afp\t\t\n"
                         "  Document\t\t\n"
                         "    BDT: DOC00001\t1\t18\n"
                         "    Page 1: PAGE0001\t\t\n"
                         "      BPG: PAGE0001\t20\t16\n"
                         "      NOP: Grüße\t37\t13\n"
                         "      EPG: PAGE0001\t51\t16\n"
                         "    EDT: DOC00001\t68\t16\n");
    EXPECT_EQ(ended.err, "");
    EXPECT_EQ(ended.status, 0);
}

TEST(FsvDumpTree, MarksRedNodes)
{
    const TemporaryFolder folder;
    const Ended ended = Dump({"--tree", folder.File("bad", Damaged())});
    EXPECT_EQ(ended.out, "bad\t\t\t!\n"
                         "  Document\t\t\t!\n"
                         "    BDT: DOC00001\t1\t16\n"
                         "    EPG: PAGE0001\t18\t16\t!\n");
    EXPECT_EQ(ended.status, 1);
}

TEST(FsvDumpTree, KeepsControlCharactersOnTheLine)
{
    const TemporaryFolder folder;
    const Bytes text = Raw({'a', '\r', '\n', '\t', 0x1B, 0x7F, 'z'});
    const std::string file = folder.File("a\u0085\u009B", AfpFile().Add("NOP", text).Content());
    EXPECT_EQ(Dump({"--tree", "--code-page=819", file}).out, "a\uFFFD\uFFFD\t\t\n"
                                                             "  NOP: a␍␊␉␛␡z\t1\t15\n");
}

TEST(FsvDumpTree, GrowsWithTheNodesAndNotWithTheirDepth)
{
    constexpr std::size_t kLevels = 5'000;
    const TemporaryFolder folder;
    const Ended ended = Dump({"--tree", folder.File("deep", Nested(kLevels))});
    EXPECT_EQ(ended.status, 0);
    // The file, and three nodes a level.
    EXPECT_EQ(std::count(ended.out.begin(), ended.out.end(), '\n'), 1 + 3 * kLevels);
    EXPECT_LT(ended.out.size(), 3 * kLevels * 300);
    const std::string deepest = std::string(200, ' ') + "[5001] ENG\t45001\t8\n";
    EXPECT_NE(ended.out.find(deepest), std::string::npos);
    const std::string indented = "\n" + std::string(200, ' ');
    EXPECT_NE(ended.out.find(indented + "Named Group\t"), std::string::npos);
    EXPECT_NE(ended.out.find(indented + "[101] Named Group\t"), std::string::npos);
}

// Messages ----------------------------------------------------------------------------------------------------------

TEST(FsvDumpMessages, AreOneLineEachOnStandardError)
{
    const TemporaryFolder folder;
    const Ended ended = Dump({"--messages", folder.File("bad", Damaged() + AfpFile().Add("BPG").Content())});
    EXPECT_EQ(ended.err,
              std::string(kWrongEnd) + "Structure\tE\tThis file seems to be truncated! Processing was canceled!\n");
    EXPECT_EQ(ended.status, 1);
    EXPECT_EQ(ended.out, Dump({folder / "bad"}).out);
}

TEST(FsvDumpMessages, AreInTheChosenLanguage)
{
    const TemporaryFolder folder;
    const std::string file = folder.File("bad", Damaged());
    const std::string german = Dump({"--messages", "--language=de", file}).err;
    const std::string french = Dump({"--messages", "--language=fr", file}).err;
    for (const std::string& text : {german, french}) {
        EXPECT_EQ(text.substr(0, 12), "Structure\tE\t");
        EXPECT_NE(text.find("EPG"), std::string::npos);
        EXPECT_NE(text, kWrongEnd);
    }
    EXPECT_NE(german, french);
}

TEST(FsvDumpMessages, NameTheFileWhereThereAreSeveral)
{
    const TemporaryFolder folder;
    const std::string good = folder.File("good", Statement()), bad = folder.File("b\na\td", Damaged());
    const std::string line(kWrongEnd.substr(0, kWrongEnd.size() - 1));
    EXPECT_EQ(Dump({"--messages", good, bad}).err, line + "\t" + folder.Path() + "/b␊a␉d\n");
}

TEST(FsvDumpMessages, WithoutFaultsAreNone)
{
    const TemporaryFolder folder;
    EXPECT_EQ(Dump({"--messages", folder.File("a", Statement())}).err, "");
}

TEST(FsvDumpMessages, FollowTheDumpOfTheirFile)
{
    const TemporaryFolder folder;
    const std::string a = folder.File("a", Damaged()), b = folder.File("b", Damaged());
    Call call = DumpCall({"--messages", a, b});
    call.outputFile = call.errorFile = folder / "all";
    EXPECT_EQ(RunToEnd(call).status, 1);
    const std::string line(kWrongEnd.substr(0, kWrongEnd.size() - 1));
    EXPECT_EQ(ReadWhole(folder / "all"),
              Dump({a}).out + line + "\t" + a + "\n" + Dump({b}).out + line + "\t" + b + "\n");
}

// Several files -----------------------------------------------------------------------------------------------------

TEST(FsvDumpFiles, AreAllPrintedAndTheHighestStatusCounts)
{
    const TemporaryFolder folder;
    const std::string good = folder.File("good", Statement()), bad = folder.File("bad", Damaged());
    const std::string missing = folder / "missing";
    const std::string goodDump = StatementDump("good"), badDump = Dump({bad}).out;

    const Ended faulty = Dump({bad, good});
    EXPECT_EQ(faulty.out, badDump + goodDump);
    EXPECT_EQ(faulty.status, 1);

    const Ended unread = Dump({bad, missing, good});
    EXPECT_EQ(unread.out, badDump + goodDump);
    EXPECT_EQ(unread.err, missing + ": There is no such file. Check its name and path.\n");
    EXPECT_EQ(unread.status, 3);

    EXPECT_EQ(Dump({good, good}).status, 0);
}

// Help, version and wrong use ---------------------------------------------------------------------------------------

TEST(FsvDumpHelp, TellsAll)
{
    const Ended ended = Dump({"--help"});
    EXPECT_EQ(ended.out, R"(Usage: fsv-dump [OPTION]... FILE...

Prints the readable text of AFP files: each structured field with its place and its values.
FILE - is standard input, OUT - standard output. Options end at --.

  -o, --output OUT          Write the dump of one file to OUT, in code page 1252 with CR LF
      --save                Write each dump to FILE.txt, in code page 1252 with CR LF
      --tree                Print the tree in place of the dump: caption, start byte, length, ! for a fault
      --messages            Print the messages to standard error: source, severity, description
      --language en|de|fr   Language of the dump and of all messages
      --code-page N         Code page of texts for which the file names none (37)
      --code-page-nop N     Code page of NOP contents
      --code-page-tle N     Code page of TLE contents
      --no-auto-code-page   Do not follow the code pages that the file names
      --measurement 0..6    Unit of sizes: 0 inch, 1 cm, 2 mm, 3 points, 4 to 6 pels at 240, 300, 600 ppi
  -h, --help                Show this help and end
  -V, --version             Show the version and end

Exit status: 0 no faults, 1 faults were found, 2 wrong use, 3 input failed, 4 output failed.
)");
    EXPECT_EQ(ended.err, "");
    EXPECT_EQ(ended.status, 0);
    EXPECT_EQ(Dump({"-h"}).out, ended.out);
}

TEST(FsvDumpHelp, IsInTheChosenLanguage)
{
    const std::string german = Dump({"--help", "--language=de"}).out, french = Dump({"--language", "fr", "-h"}).out;
    EXPECT_TRUE(
        german.starts_with("Aufruf: fsv-dump [OPTION]... DATEI...\n\nGibt den lesbaren Text von AFP-Dateien aus"));
    EXPECT_NE(german.find("      --tree                Statt des Dumps den Baum ausgeben:"), std::string::npos);
    EXPECT_TRUE(german.ends_with("\nRückgabewert: 0 keine Fehler, 1 Fehler gefunden, 2 falscher Aufruf, "
                                 "3 Eingabe gescheitert, 4 Ausgabe gescheitert.\n"));
    EXPECT_TRUE(french.starts_with(
        "Utilisation\u00A0: fsv-dump [OPTION]... FICHIER...\n\nAffiche le texte lisible de fichiers AFP"));
    EXPECT_NE(french.find("      --tree                Afficher l'arborescence au lieu du dump\u00A0:"),
              std::string::npos);
    EXPECT_TRUE(french.ends_with("\nCode de retour\u00A0: 0 aucune erreur, 1 erreurs trouvées, 2 mauvais appel, "
                                 "3 échec en entrée, 4 échec en sortie.\n"));
}

TEST(FsvDumpHelp, VersionIsTheSameInEveryLanguage)
{
    for (const char* language : {"en", "de", "fr"}) {
        const Ended ended = Dump({"--version", "--language", language});
        EXPECT_EQ(ended.out, "fsv-dump " + std::string(kVersion) + "\n");
        EXPECT_EQ(ended.err, "");
        EXPECT_EQ(ended.status, 0);
    }
    EXPECT_EQ(Dump({"-V"}).out, Dump({"--version"}).out);
}

namespace {

struct WrongUse {
    std::vector<std::string> arguments;
    std::string text;
};

}  // namespace

TEST(FsvDumpWrongUse, IsToldAndNothingElseIsDone)
{
    const TemporaryFolder folder;
    const std::string file = folder.File("a.afp", Statement()), out = folder / "out";
    // clang-format off
    const WrongUse wrong[] = {
        {{}, "No file is given."},
        {{"--"}, "No file is given."},
        {{"--tree"}, "No file is given."},
        {{file, "--frobnicate"}, "There is no option --frobnicate."},
        {{file, "--frobnicate=1"}, "There is no option --frobnicate."},
        {{file, "-x"}, "There is no option -x."},
        {{file, "-hx"}, "There is no option -hx."},
        {{file, "--tre"}, "There is no option --tre."},
        {{file, "-tree"}, "There is no option -tree."},
        {{file, "-o"}, "-o needs a value."},
        {{file, "--output"}, "--output needs a value."},
        {{file, "--output="}, "--output needs a value."},
        {{file, "-o", ""}, "-o needs a value."},
        {{file, "--language"}, "--language needs a value."},
        {{file, "--language="}, "--language needs a value."},
        {{file, "--code-page"}, "--code-page needs a value."},
        {{file, "--code-page-nop"}, "--code-page-nop needs a value."},
        {{file, "--code-page-tle="}, "--code-page-tle needs a value."},
        {{file, "--measurement"}, "--measurement needs a value."},
        {{file, "--save=yes"}, "--save takes no value."},
        {{file, "--tree="}, "--tree takes no value."},
        {{file, "--messages=1"}, "--messages takes no value."},
        {{file, "--no-auto-code-page=0"}, "--no-auto-code-page takes no value."},
        {{file, "--help=de"}, "--help takes no value."},
        {{file, "--language=es"}, "The language is en, de or fr, not es."},
        {{file, "--language", "DE"}, "The language is en, de or fr, not DE."},
        {{file, "--code-page=0"}, "There is no code page 0."},
        {{file, "--code-page", "38"}, "There is no code page 38."},
        {{file, "--code-page", "37x"}, "There is no code page 37x."},
        {{file, "--code-page", "4294967333"}, "There is no code page 4294967333."},
        {{file, "--code-page-nop", "-1"}, "There is no code page -1."},
        {{file, "--code-page-tle", "0x25"}, "There is no code page 0x25."},
        {{file, "--measurement=7"}, "The measurement is a number from 0 to 6, not 7."},
        {{file, "--measurement", "-1"}, "The measurement is a number from 0 to 6, not -1."},
        {{file, "--measurement", "cm"}, "The measurement is a number from 0 to 6, not cm."},
        {{file, "-o", out, "-o", out}, "-o is given twice."},
        {{file, "-o", out, file}, "-o goes with one file, and neither with --save nor with --tree."},
        {{file, "-o", out, "--save"}, "-o goes with one file, and neither with --save nor with --tree."},
        {{file, "-o", out, "--tree"}, "-o goes with one file, and neither with --save nor with --tree."},
        {{file, "--save", "--tree"}, "--save and --tree do not go together."},
        {{file, "--save", "-"}, "--save needs the name of a file; use -o for standard input."},
    };
    // clang-format on
    for (const auto& [arguments, text] : wrong) {
        const Ended ended = Dump(arguments);
        EXPECT_EQ(ended.err, "fsv-dump: " + text + "\nTry fsv-dump --help.\n");
        EXPECT_EQ(ended.out, "") << text;
        EXPECT_EQ(ended.status, 2) << text;
    }
    EXPECT_EQ(FilesIn(folder.Path()), std::vector<std::string>{"a.afp"});
}

TEST(FsvDumpWrongUse, IsToldInTheChosenLanguage)
{
    EXPECT_EQ(Dump({"--language=de"}).err, "fsv-dump: Es ist keine Datei angegeben.\nSiehe fsv-dump --help.\n");
    EXPECT_EQ(Dump({"--measurement=9", "--language", "fr", "a"}).err,
              "fsv-dump: L'unité de mesure est un nombre de 0 à 6, pas 9.\nVoir fsv-dump --help.\n");
}

}  // namespace folioscope::test
