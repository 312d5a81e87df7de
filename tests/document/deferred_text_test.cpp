// The description of a colour management resource stands with its data, not with the record that ends them.

#include <gtest/gtest.h>

#include <string>

#include "document_support.h"
#include "tree_under_test.h"

namespace folioscope {
namespace {

using namespace test;

Bytes BeginContainer(std::string_view entry)
{
    return Ebcdic8("OBJECT") + TripletOf("10 00 01 0000 90 00 06072B1200040101" + std::string(entry) + " 00*7");
}
const Bytes kColourResource = BeginContainer("39"), kMetadata = BeginContainer("43"), kOther = BeginContainer("17");

// A header that names a version and a type, and nothing else.
Bytes SmallResource(std::string_view version = "1.0")
{
    Bytes object(164, '\0');
    object[3] = '\xA4';
    object[27] = 'H', object[29] = 'T';
    for (std::size_t i = 0; i < version.size(); ++i) object[31 + 2 * i] = version[i];
    return object;
}

constexpr std::string_view kShown = "CMR size: 164\r\n";

std::unique_ptr<TestDocument> AnalyseAll(const AfpFile& file)
{
    return Analyse(file.Content(), PlainFolders(), Decoders());
}

std::string BodyOf(TestDocument& document, std::uint32_t node)
{
    const std::string content = document.Content(node);
    const auto head = content.find("\r\n\r\n");
    return head == std::string::npos ? content : content.substr(head + 4);
}

AfpFile Container(const Bytes& begin, const Bytes& object)
{
    return AfpFile().Add("BOC", begin).Add("OCD", object).Add("EOC", Ebcdic8("OBJECT"));
}

constexpr std::uint32_t kFolder = 2, kBegin1 = 3, kData = 4, kEnd1 = 5;  // nodes of a container under the root

TEST(DeferredText, StandsWithTheObjectsData)
{
    const auto document = AnalyseAll(Container(kColourResource, SmallResource()));
    EXPECT_EQ(document->NodeText(kData), "OCD");
    EXPECT_TRUE(BodyOf(*document, kData).starts_with("No. of bytes with object data: 164\r\n" + std::string(kShown)));
    EXPECT_TRUE(document->Content(kData).starts_with(HeadLines("OCD (Object Container Data, x'D3 EE 92')", 42, 172)));
    EXPECT_EQ(BodyOf(*document, kEnd1), "Name:°^°B~\tOBJECT°^°N~\r\n");
    EXPECT_EQ(BodyOf(*document, kBegin1).find(kShown), std::string::npos);
    EXPECT_EQ(document->Content(kFolder), "");
}

TEST(DeferredText, StandsOnceWithTheFirstOfManyDataFields)
{
    const Bytes object = SmallResource();
    const auto document = AnalyseAll(AfpFile()
                                         .Add("BOC", kColourResource)
                                         .Add("OCD", object.substr(0, 100))
                                         .Add("OCD", object.substr(100, 60))
                                         .Add("OCD", object.substr(160))
                                         .Add("EOC", Ebcdic8("OBJECT")));
    EXPECT_TRUE(BodyOf(*document, kData).starts_with("No. of bytes with object data: 100\r\n" + std::string(kShown)));
    EXPECT_EQ(BodyOf(*document, kData + 1), "No. of bytes with object data: 60\r\n");
    EXPECT_EQ(BodyOf(*document, kData + 2), "No. of bytes with object data: 4\r\n");
}

TEST(DeferredText, GoesToTheSecondNodeWhateverItIs)
{
    const auto document = AnalyseAll(AfpFile()
                                         .Add("BOC", kColourResource)
                                         .Add("NOP", Ebcdic("A remark"))
                                         .Add("OCD", SmallResource())
                                         .Add("EOC", Ebcdic8("OBJECT")));
    // The remark's line was a formula of its caption; now it is a text of its own.
    EXPECT_TRUE(BodyOf(*document, kData).starts_with("Content:\t°^°B~A remark°^°N~\r\n" + std::string(kShown)));
    EXPECT_EQ(document->NodeText(kData), "NOP: A remark");
    EXPECT_EQ(BodyOf(*document, kData + 1), "No. of bytes with object data: 164\r\n");
}

TEST(DeferredText, GoesToAFolderToo)
{
    const auto document = AnalyseAll(AfpFile()
                                         .Add("BOC", kColourResource)
                                         .Add("BOG")
                                         .Add("EOG")
                                         .Add("OCD", SmallResource())
                                         .Add("EOC", Ebcdic8("OBJECT")));
    EXPECT_EQ(document->NodeText(kData), "Object Env. Group");
    EXPECT_TRUE(document->Content(kData).starts_with(kShown));
    EXPECT_EQ(document->document.GetNodeContents_lngStart(kData), 0);
    EXPECT_EQ(document->Content(kData + 1).find(kShown), std::string::npos);
}

TEST(DeferredText, GoesToTheEndItselfIfThereAreNoData)
{
    const auto document =
        AnalyseAll(AfpFile().Add("BOC", kColourResource).Add("EOC", Ebcdic8("OBJECT")).Add("NOP", Ebcdic("x")));
    EXPECT_TRUE(BodyOf(*document, 4).starts_with("Name:°^°B~\tOBJECT°^°N~\r\nCMR size: 0\r\n"));
}

TEST(DeferredText, OfAnEndWithoutAnythingBesideItIsLost)
{
    const auto document = AnalyseAll(AfpFile().Add("EOC", kColourResource));
    EXPECT_EQ(document->Content(2).find("CMR size"), std::string::npos);
    const auto beside = AnalyseAll(AfpFile().Add("EOC", Ebcdic8("FIRST")).Add("EOC", kColourResource));
    EXPECT_NE(beside->Content(3).find("CMR size: 0\r\n"), std::string::npos);
}

TEST(DeferredText, IsTrimmedOfBlanks)
{
    TreeUnderTest bench;
    bench.Add("BOC");
    const std::uint32_t data = bench.Begin("OCD", kRecord);
    bench.tree.StoreNodeRecord("data\r\n", true, 1, 8);
    bench.Begin("EOC", kEnd);
    bench.tree.AppendDeferred("   \t text \r\n  ");
    std::string body;
    bench.tree.AppendBody(body, data);
    EXPECT_EQ(body, "data\r\n\t text \r\n");
    bench.tree.AppendDeferred("    ");
    body.clear();
    bench.tree.AppendBody(body, data);
    EXPECT_EQ(body, "data\r\n\t text \r\n");
}

TEST(DeferredText, LeavesNodesThatShowTheSameAsTheyAre)
{
    const AfpFile one = Container(kColourResource, SmallResource("1.0"));
    const AfpFile two = Container(kColourResource, SmallResource("2.0")), other = Container(kOther, SmallResource());
    const auto document = AnalyseAll(AfpFile().Noise(other.Content()).Noise(one.Content()).Noise(two.Content()));
    EXPECT_EQ(BodyOf(*document, kData), "No. of bytes with object data: 164\r\n");
    EXPECT_NE(BodyOf(*document, kData + 4).find("CMR version: 1.0"), std::string::npos);
    EXPECT_NE(BodyOf(*document, kData + 8).find("CMR version: 2.0"), std::string::npos);
    EXPECT_EQ(BodyOf(*document, kData + 8).find("CMR version: 1.0"), std::string::npos);
}

// Records that are told from memory share their text with the ones before.
TEST(DeferredText, LeavesWhatIsRememberedAsItIs)
{
    AfpFile file;
    const Bytes tag = TripletOf("02 0B 00 'Colour'") + TripletOf("36 0000 'red'");
    file.Add("TLE", tag).Add("BOC", kColourResource).Add("TLE", tag).Add("OCD", SmallResource());
    file.Add("EOC", Ebcdic8("OBJECT")).Add("TLE", tag);
    const auto document = AnalyseAll(file);
    const std::uint32_t first = 2, second = 5, last = 8;
    for (const std::uint32_t node : {first, second, last}) EXPECT_EQ(document->NodeText(node), "TLE: Colour -> red");
    EXPECT_EQ(BodyOf(*document, first), BodyOf(*document, last));
    EXPECT_TRUE(BodyOf(*document, second).starts_with(BodyOf(*document, first) + std::string(kShown)));
}

TEST(DeferredText, OfMetadataIsNone)
{
    const auto document = AnalyseAll(Container(kMetadata, Bytes(100, '\0')));
    EXPECT_EQ(BodyOf(*document, kData), "No. of bytes with object data: 100\r\n");
    EXPECT_NE(BodyOf(*document, kEnd1).find("Header length: 0\r\n"), std::string::npos);
}

TEST(DeferredText, OfOneObjectIsGoneBeforeTheNext)
{
    const AfpFile one = Container(kColourResource, SmallResource()), other = Container(kMetadata, Bytes(100, '\0'));
    const auto document = AnalyseAll(AfpFile().Noise(one.Content()).Noise(other.Content()));
    EXPECT_EQ(BodyOf(*document, kData + 4), "No. of bytes with object data: 100\r\n");
    EXPECT_EQ(BodyOf(*document, kEnd1 + 4).find("CMR"), std::string::npos);
}

// Ends that close nothing all speak to the same node, which takes so much and no more.
TEST(DeferredText, OfManyEndsInOneFolderIsLimited)
{
    AfpFile file = AfpFile().Add("BOC", kColourResource).Add("OCD", SmallResource());
    for (int i = 0; i < 5000; ++i) file.Add(Field{"EOC", Ebcdic8("OBJECT"), 0x20});
    const auto document = AnalyseAll(file);
    const std::string body = BodyOf(*document, kData);
    EXPECT_GE(body.size(), PropertyText::kCapacity);
    EXPECT_LT(body.size(), PropertyText::kCapacity + 2000);
    EXPECT_TRUE(body.starts_with("No. of bytes with object data: 164\r\n" + std::string(kShown)));
    EXPECT_NE(body.find("CMR size: 0\r\n"), std::string::npos) << "the object of the first End is gone";
}

TEST(DeferredText, OfSeveralEndsStandsInTheirOrder)
{
    const auto document = AnalyseAll(AfpFile()
                                         .Add("BOC", kColourResource)
                                         .Add("OCD", SmallResource("1.0"))
                                         .Add(Field{"EOC", Ebcdic8("OBJECT"), 0x20})
                                         .Add("OCD", SmallResource("2.0"))
                                         .Add("EOC", Ebcdic8("OBJECT")));
    const std::string body = BodyOf(*document, kData);
    const auto one = body.find("CMR version: 1.0"), two = body.find("CMR version: 2.0");
    ASSERT_NE(one, std::string::npos);
    ASSERT_NE(two, std::string::npos);
    EXPECT_LT(one, two);
}

// The two texts of a node don't share their room.
TEST(DeferredText, HasARoomOfItsOwn)
{
    Bytes object = SmallResource() + Raw({0x00, 0x04, 0, 6}) + U4(60'000) + U4(24) + Raw({0xFF, 0xFF, 0, 5}) + Zeros(8);
    object += Bytes(60'000, 'x');
    AfpFile file = AfpFile().Add("BOC", kColourResource).Add("NOP", Bytes(30'000, '\xC1'));
    for (std::size_t at = 0; at < object.size(); at += 30'000) file.Add("OCD", object.substr(at, 30'000));
    const auto document = AnalyseAll(file.Add("EOC", Ebcdic8("OBJECT")));
    EXPECT_NE(document->Content(kData).find(std::string(60'000, 'x')), std::string::npos);
    EXPECT_NE(document->Content(kData).find(std::string(30'000, 'A')), std::string::npos);
}

TEST(DeferredText, FaultsBelongToTheRecordThatTellsThem)
{
    Bytes object = SmallResource();
    object[27] = 'Z';
    const auto document = AnalyseAll(Container(kColourResource, object));
    EXPECT_EQ(LinesOf(document->messages), std::vector<std::string>{"Content E: CMR: CMR type: Unknown (00 5A 00 54)"});
    EXPECT_TRUE(document->IsRed(kEnd1));
    EXPECT_TRUE(document->IsRed(kFolder));
    EXPECT_FALSE(document->IsRed(kData));
    EXPECT_NE(BodyOf(*document, kData).find("CMR type: °^°R~Unknown (00 5A 00 54)°^°S~\r\n"), std::string::npos);
}

// The dump
// --------------------------------------------------------------------------------------------------------------------

std::string DumpOf(TestDocument& document)
{
    StringSink sink;
    document.document.WriteDump(sink, DumpEncoding::Utf8);
    return sink.text;
}

TEST(DeferredText, IsDumpedWithItsNode)
{
    const auto document = AnalyseAll(Container(kColourResource, SmallResource()));
    const std::string dump = DumpOf(*document);
    EXPECT_NE(dump.find("     ---------\n"
                        ">\tOCD\tNo. of bytes with object data: 164\n"
                        ">\t\tCMR size: 164\n"
                        ">\t\tCMR alias name: \"\"\n"
                        ">\t\tCMR type: Halftone\n"),
              std::string::npos)
        << dump;
    EXPECT_NE(dump.find("     ---------\n>\tEOC\tName:\tOBJECT\n"), std::string::npos) << dump;
}

// A folder's text has no head to pass over: the dump takes what stands behind its first empty line.
TEST(DeferredText, OfAFolderIsDumpedUnderItsTitle)
{
    const Bytes object =
        SmallResource() + Raw({0, 0x11, 0, 1}) + U4(1) + U1(7) + Zeros(3) + Raw({0xFF, 0xFF, 0, 5}) + Zeros(8);
    const auto document = AnalyseAll(
        AfpFile().Add("BOC", kColourResource).Add("BOG").Add("EOG").Add("OCD", object).Add("EOC", Ebcdic8("OBJECT")));
    const std::string dump = DumpOf(*document);
    EXPECT_NE(dump.find("     ---------\n"
                        ">\tObject Env. Group\tElement 1\n"
                        ">\t\t\tCMR tag: Number of Components\n"
                        ">\t\t\tValue: 7\n"
                        ">\t\t\n"
                        ">\t\tElement 2\n"
                        ">\t\t\tCMR tag: End Data\n"),
              std::string::npos)
        << dump;
}

TEST(DeferredText, OfAFolderWithoutAnEmptyLineLosesItsBeginning)
{
    const auto document = AnalyseAll(AfpFile()
                                         .Add("BOC", kColourResource)
                                         .Add("BOG")
                                         .Add("EOG")
                                         .Add("OCD", SmallResource())
                                         .Add("EOC", Ebcdic8("OBJECT")));
    EXPECT_NE(DumpOf(*document).find(">\tObject Env. Group\t size: 164\n"), std::string::npos);
}

TEST(DeferredText, IsTheSameWithoutTheMemoryOfRecords)
{
    const AfpFile one = Container(kColourResource, SmallResource("1.0"));
    const Bytes file = one.Content() + one.Content() + one.Content();
    const auto remembered = Analyse(file, PlainFolders(), Decoders());
    TestDocument plain(file, PlainFolders(), Decoders());
    plain.document.TellRepeatedFromMemory(false);
    plain.Run();
    EXPECT_EQ(DumpOf(*remembered), DumpOf(plain));
}

TEST(DeferredText, OfObjectsWithoutABeginDoesNotGrowForEver)
{
    AfpFile file = Container(kColourResource, SmallResource());
    constexpr int kStray = 2000;
    for (int i = 0; i < kStray; ++i) file.Add("EOC", Ebcdic8("OBJECT"));
    const auto document = AnalyseAll(file);
    constexpr std::uint32_t kFirstStray = kEnd1 + 1;
    const std::size_t length = document->Content(kFirstStray).size();
    EXPECT_GT(length, 65'536u);
    EXPECT_LT(length, 70'000u);
}

}  // namespace
}  // namespace folioscope
