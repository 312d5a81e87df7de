// Records that come again with the same bytes: told from memory, they say what they would say decoded.

#include <gtest/gtest.h>

#include <string>

#include "document/document.h"
#include "document/ports.h"
#include "document_support.h"

namespace folioscope {
namespace {

using test::AfpFile;
using test::Analyse;
using test::Bytes;
using test::LinesOf;
using test::Outline;
using test::Pieces;
using test::PlainFolders;
using test::TestDocument;

// A line of twice the normal width, and a dash of half of that.
const Bytes kDrawing = Pieces("19 02 20 04 00 80 00 40");
const Bytes kImage = Pieces("00 0960 0960 0140 00F0 F7 02 01 0B");
const Bytes kBarCode = Pieces("00 00 3840 3840 0640 0320 FFFF 11 02 FF FFFF 0D 00F0 01 012C");

void ExpectTheSameWithoutMemory(const Bytes& content)
{
    const auto remembered = Analyse(content, PlainFolders(), Decoders());
    TestDocument decoded(content, PlainFolders(), Decoders());
    decoded.document.TellRepeatedFromMemory(false);
    decoded.Run();
    EXPECT_EQ(Outline(remembered->Tree()), Outline(decoded.Tree()));
    EXPECT_EQ(LinesOf(remembered->messages), LinesOf(decoded.messages));
    for (std::uint32_t node = NodeStore::kRoot + 1; node < decoded.Tree().Nodes().Size(); ++node)
        ASSERT_EQ(remembered->Content(node), decoded.Content(node)) << node;
}

int drawingsDecoded = 0;

TEST(RecordMemo, HasADrawingDecodedOnceThatComesAgain)
{
    drawingsDecoded = 0;
    AfpFile file;
    file.Add("GAD", kDrawing);
    for (int i = 0; i < 4; ++i) file.Add("BGR").Add("GAD", kDrawing).Add("EGR");
    const auto document =
        Analyse(file.Content(), PlainFolders(), {.Orders = [](clsAFPFunctions&) { ++drawingsDecoded; }});
    EXPECT_EQ(drawingsDecoded, 1);
}

TEST(RecordMemo, KnowsADrawingByTheLineWidthsThatItFinds)
{
    const Bytes thick = Pieces("21 06 11 8000 80 0018"), thin = Pieces("21 06 11 8000 80 000C");
    AfpFile file;
    for (int i = 0; i < 9; ++i) {
        file.Add("GDD", i % 3 == 0 ? thick : thin);
        file.Add("GAD", kDrawing).Add("GAD", kDrawing);
    }
    const auto document = Analyse(file.Content(), PlainFolders(), Decoders());
    EXPECT_NE(document->Content(3).find("0.0333 Inch"), std::string::npos) << document->Content(3);
    EXPECT_NE(document->Content(6).find("0.0167 Inch"), std::string::npos) << document->Content(6);
    EXPECT_NE(document->Content(9).find("0.0167 Inch"), std::string::npos) << document->Content(9);
    EXPECT_NE(document->Content(12).find("0.0333 Inch"), std::string::npos) << document->Content(12);
    ExpectTheSameWithoutMemory(file.Content());
}

TEST(RecordMemo, KnowsADrawingByWhatTheOneBeforeHasLeftOver)
{
    AfpFile file;
    for (int i = 0; i < 3; ++i) {
        file.Add("GAD", kDrawing).Add("GAD", Pieces("21 06 0001 0002"));
        file.Add("GAD", kDrawing).Add("GAD", kDrawing);
    }
    const auto document = Analyse(file.Content(), PlainFolders(), Decoders());
    for (const std::uint32_t node : {4u, 8u, 12u}) {
        EXPECT_NE(document->Content(node).find("preceding element"), std::string::npos) << node;
        EXPECT_EQ(document->Content(node + 1).find("preceding element"), std::string::npos) << node;
    }
    ExpectTheSameWithoutMemory(file.Content());
}

TEST(RecordMemo, KnowsImagesAndBarCodesByTheUnitsThatTheyFind)
{
    AfpFile file;
    for (int i = 0; i < 6; ++i) {
        file.Add("PGD",
                 Pieces(i % 2 == 0 ? "00 00 3840 3840 000960 000960 00*3" : "00 00 0960 0960 000960 000960 00*3"));
        file.Add("IDD", kImage).Add("BDD/BSD", kBarCode).Add("IDD", kImage);
        file.Add("OBD", Pieces("03 43 01 08 4B 00 00 3840 3840 09 4C 02 000640 0004B0"));
        file.Add("OBP", Pieces("01 17 000010 000020 0000 2D00 00 000000 000000 0000 2D00 00"));
    }
    ExpectTheSameWithoutMemory(file.Content());
}

}  // namespace
}  // namespace folioscope
