// What text, graphics and images have in common: how items follow each other, in one field and over several.

#include "objects/items.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "objects/items_support.h"

namespace folioscope {
namespace {

using namespace test;

using Lines = std::vector<std::string>;

const Lines kContinued = {"Boolean ContInNextSF 1"}, kPreceded = {"Boolean ContFromLastSF 1"};

// Chaining and free text
// ---------------------------------------------------------------------------------------------------

TEST(Chain, NeedsNoPrefix)
{
    const ShownItems shown = ShowItems("PTX", Pieces("2BD3 02 D9 04 C6 0010"));
    EXPECT_EQ(shown.items, (Lines{"Text BeginSequence BLN", "Boolean NewLine 1", "Text BeginSequence AMI",
                                  "Int32 AbsoluteInline 16"}));
    EXPECT_EQ(shown.record, Lines{});
    EXPECT_EQ(shown.keys, "ArrayElementType ArrayElementValue");
    EXPECT_EQ(shown.text, "BLN: New Line\nAMI: Set cursor to X position: 016\n");
}

TEST(Chain, ThatIsOpenAtTheEndIsToldOf)
{
    const ShownItems shown = ShowItems("PTX", Pieces("2BD3 02 D9 04 C7 0010"));
    EXPECT_EQ(shown.record, Lines{"Boolean ChainingActiveAtEnd 1"});
    EXPECT_EQ(shown.text, "BLN: New Line\nAMI: Set cursor to X position: 016\n"
                          "<red>Unfinished chaining flag on last control sequence!</red>\n");
    EXPECT_EQ(shown.heard, (Lines{"Message Unfinished chaining flag on last control sequence!", "Invalid"}));
}

TEST(Chain, DoesNotCrossIntoTheNextField)
{
    ItemWalk walk(AfpFile().Add("PTX", Pieces("2BD3 02 D9")).Add("PTX", Pieces("04 C6 0010")));
    EXPECT_EQ(walk.Next().record, Lines{"Boolean ChainingActiveAtEnd 1"});
    const ShownItems shown = walk.Next();
    ASSERT_FALSE(shown.items.empty());
    EXPECT_EQ(shown.items.front(), "Text BeginSequence Free Text");
    EXPECT_EQ(shown.record, Lines{});
}

TEST(Chain, OfAnUnknownSequenceGoesOn)
{
    const ShownItems shown = ShowItems("PTX", Pieces("2BD3 03 37 00 02 D8"));
    EXPECT_EQ(shown.items,
              (Lines{"Boolean SequenceUnknown 1", "Text HexCode 37", "Text BeginSequence BLN", "Boolean NewLine 1"}));
}

TEST(Chain, ThatStandsStillEndsTheWalk)
{
    // Length 0 with the chaining bit: what is read as its function is the byte behind it.
    const ShownItems shown = ShowItems("PTX", Pieces("2BD3 02 D9 00 D9 2BD3 02 D8"));
    EXPECT_EQ(shown.items,
              (Lines{"Text BeginSequence BLN", "Boolean NewLine 1", "Text BeginSequence BLN", "Boolean NewLine 1"}));
    EXPECT_EQ(shown.record, Lines{"Boolean ChainingActiveAtEnd 1"});
    const ShownItems unchained = ShowItems("PTX", Pieces("2BD3 02 D9 00 D8 2BD3 02 D8"));
    EXPECT_EQ(unchained.items.size(), 4u);
    EXPECT_EQ(unchained.record, Lines{});
}

TEST(Chain, OfLengthsBelowTwoGoesForward)
{
    // Behind a prefix even a length of 0 moves on by the prefix.
    const ShownItems zero = ShowItems("PTX", Pieces("2BD3 00 D9 2BD3 02 D8"));
    EXPECT_EQ(zero.items.front(), "Text BeginSequence BLN");
    const ShownItems one = ShowItems("PTX", Pieces("2BD3 02 D9 01 03 D8 00"));
    EXPECT_EQ(one.items, (Lines{"Text BeginSequence BLN", "Boolean NewLine 1", "Boolean SequenceUnknown 1",
                                "Text HexCode 03", "Text BeginSequence BLN", "Boolean NewLine 1"}));
}

TEST(FreeText, EndsOneByteBeforeTheField)
{
    const ShownItems shown = ShowItems("PTX", Pieces("'Hello'"));
    EXPECT_EQ(shown.items, (Lines{"Text BeginSequence Free Text", "Text TransparentData Hell"}));
    EXPECT_EQ(shown.record, Lines{});
    EXPECT_EQ(shown.text, "Free Text: →→<b>Hell</b>\n");
    EXPECT_EQ(shown.heard, Lines{});
}

TEST(FreeText, EndsAtTheNextSequence)
{
    const ShownItems shown = ShowItems("PTX", Pieces("'Hey' 2BD3 02 D8 'You.'"));
    EXPECT_EQ(shown.items, (Lines{"Text BeginSequence Free Text", "Text TransparentData Hey", "Text BeginSequence BLN",
                                  "Boolean NewLine 1", "Text BeginSequence Free Text", "Text TransparentData You"}));
}

TEST(FreeText, IsSplitByTheFirstByteOfAPrefix)
{
    const auto texts = [](std::string_view pieces) {
        const ShownItems shown = ShowItems("PTX", Pieces(pieces));
        Lines values = ValuesOf(shown, "TransparentData");
        EXPECT_EQ(shown.items.size(), 2 * values.size());
        EXPECT_EQ(shown.record, Lines{});
        return values;
    };
    const std::string prefixByte = texts("2B 'a'").at(0);  // as a character
    EXPECT_EQ(texts("'ab' 2B 'cd' 2B 2B 'ef'"), (Lines{"ab", prefixByte + "cd", prefixByte, prefixByte + "e"}));
    EXPECT_EQ(texts("2B 'abc'"), Lines{prefixByte + "ab"});  // the first byte is never the end
    EXPECT_EQ(texts("'ab' D3 'cd'"), (Lines{"abLc"}));
}

TEST(EmptyFields, HaveNoItems)
{
    for (const std::string_view field : {"PTX", "GAD", "IPD"}) {
        const ShownItems none = ShowItems(field, {});
        EXPECT_EQ(none.keys, "") << field;
        EXPECT_EQ(none.record, Lines{}) << field;
        // Of one byte too: the field's last byte begins nothing.
        EXPECT_EQ(ShowItems(field, Pieces("70")).keys, "") << field;
    }
}

TEST(Bodies, OfTextsAndImagesAreLeftForLater)
{
    for (const std::string_view field : {"PTX", "IPD"}) {
        RecordWalk walk(AfpFile().Add(field, Pieces("2BD3 02 D8")));
        walk.Next();
        EXPECT_EQ(walk.Body(), Lines{"Int16 Unread 1"}) << field;
    }
    RecordWalk drawing(AfpFile().Add("GAD", Pieces("3E 00")));
    drawing.Next();
    EXPECT_EQ(drawing.Body(), Lines{});  // without a decoder
}

TEST(Bodies, BehindDescriptorsAreReadAtOnce)
{
    ItemWalk text(AfpFile().Add("PTD-2", Zeros(14) + Pieces("2BD3 02 D8")));
    const ShownItems shown = text.Next();
    EXPECT_EQ(shown.items, (Lines{"Text BeginSequence BLN", "Boolean NewLine 1"}));
    EXPECT_EQ(shown.keys, "ArrayElementType ArrayElementValue");
    EXPECT_TRUE(shown.text.ends_with("BLN: New Line\n"));

    const ShownItems image = ShowItems("IDD", Pieces("00 0960 0960 0400 0300 F7 02 01 0B"));
    EXPECT_EQ(image.keys, "SDFElementType SDFElementValue");
    EXPECT_EQ(image.items, (Lines{"Text BeginSDF IOCA Function Set Identification", "Byte FunctionSet 11"}));
    EXPECT_TRUE(image.text.ends_with("IOCA Function Set Identification: Function set: 11\n"));
    EXPECT_EQ(ShowItems("IDD", Pieces("00 0960 0960 0400 0300")).keys, "");
    EXPECT_EQ(ShowItems("IDD", Pieces("00 0960 0960 0400 0300 F7")).keys, "");
    EXPECT_EQ(ShowItems("GAD", Pieces("3E 00")).keys, "OrderElementType OrderElementValue");
}

// Over several fields
// ------------------------------------------------------------------------------------------------------

TEST(CutText, GoesOnInTheNextField)
{
    // Six of the ten bytes lie in the field, two of them length and function.
    ItemWalk walk(AfpFile().Add("PTX", Pieces("2BD3 0A DA 'abcd'")).Add("PTX", Pieces("'efgh' 2BD3 02 D8")));
    const ShownItems first = walk.Next();
    EXPECT_EQ(first.items, (Lines{"Text BeginSequence TRN", "Text TransparentData abcd"}));
    EXPECT_EQ(first.record, kContinued);
    EXPECT_EQ(first.text, "TRN: →→<b>abcd</b>\n... to be continued ...\n");
    EXPECT_EQ(walk.walk.afp.CarryOverBytes, 4);
    const ShownItems second = walk.Next();
    EXPECT_EQ(second.items, (Lines{"Text BeginSequence BLN", "Boolean NewLine 1"}));
    EXPECT_EQ(second.record, kPreceded);
    EXPECT_EQ(second.text, "... preceding element exists ...\nBLN: New Line\n");
    EXPECT_EQ(walk.walk.afp.CarryOverBytes, 0);
}

TEST(CutText, OfTheOtherSequencesStopsAtTheFieldToo)
{
    const ShownItems uct = ShowItems("PTX", Pieces("2BD3 18 6A 01 00 0004 A8 00 05 01 00*4 FFFB 0041 0042"));
    EXPECT_EQ(uct.items.back(), "Text Content AB");
    EXPECT_EQ(uct.record, kContinued);
    const ShownItems rps = ShowItems("PTX", Pieces("2BD3 0A EE 0002 'ab'"));
    EXPECT_EQ(rps.items.back(), "Text RepeatString ab");
    EXPECT_EQ(rps.record, kContinued);
    // A comment is read past the end.
    ItemWalk nop(AfpFile(Packaging::Bare).Add("PTX", Pieces("2BD3 06 F8 'ab'")).Noise(Ebcdic("cdef")).Add("EPG"));
    EXPECT_EQ(nop.Next().items.back(), "Text NOPSequence abcd");
}

TEST(CutText, ThatEndsWithTheFieldIsWhole)
{
    const ShownItems shown = ShowItems("PTX", Pieces("2BD3 06 DA 'abcd'"));
    EXPECT_EQ(shown.record, Lines{});
    const ShownItems cut = ShowItems("PTX", Pieces("2BD3 07 DA 'abcd'"));
    EXPECT_EQ(cut.items.back(), "Text TransparentData abcd");
    EXPECT_EQ(cut.record, kContinued);
}

TEST(CutChain, GoesOnAsFreeText)
{
    ItemWalk walk(AfpFile().Add("PTX", Pieces("2BD3 06 DB 'ab'")).Add("PTX", Pieces("'cd' 04 C6 0010")));
    EXPECT_EQ(walk.Next().record, kContinued);  // and nothing about the chain
    const ShownItems second = walk.Next();
    EXPECT_EQ(second.items.front(), "Text BeginSequence Free Text");
    EXPECT_EQ(second.record, kPreceded);
}

TEST(CutOrder, IsSkippedInTheNextField)
{
    ItemWalk walk(AfpFile().Add("GAD", Pieces("01 06 'abc'")).Add("GAD", Pieces("'def' 3E 00")));
    const ShownItems first = walk.Next();
    EXPECT_EQ(first.items, (Lines{"Text BeginOrder GCOMT", "Text Comment abc"}));
    EXPECT_EQ(first.record, kContinued);
    EXPECT_EQ(first.text, "GCOMT: Comment: \"abc\"\n... to be continued ...\n");
    const ShownItems second = walk.Next();
    EXPECT_EQ(second.items, (Lines{"Text BeginOrder GEPROL", "Boolean EndProlog 1"}));
    EXPECT_EQ(second.record, kPreceded);
}

TEST(CutOrder, OfAStringReadsFourBytesTooManyBehindAPosition)
{
    const auto cut = [](std::string_view order) {
        ItemWalk walk(AfpFile(Packaging::Bare).Add("GAD", Pieces(order)).Noise(Ebcdic("cdefghij")).Add("EPG"));
        return walk.Next();
    };
    EXPECT_EQ(cut("83 08 'ab'").items.back(), "Text DrawString ab");
    EXPECT_EQ(cut("C3 0C 0001 0002 'ab'").items.back(), "Text DrawString abcdef");
    // A string that isn't cut has its own length.
    EXPECT_EQ(cut("C3 06 0001 0002 'ab'").items.back(), "Text DrawString ab");
}

TEST(UnknownOrder, CarriesTheLengthOfTheOrderBefore)
{
    ItemWalk walk(AfpFile().Add("GAD", Pieces("21 04 0001 0002 FF 3E 00")).Add("GAD", Pieces("FF*6 3E 00")));
    const ShownItems first = walk.Next();
    EXPECT_EQ(first.items.back(), "Text OrderUnknown FF");
    EXPECT_EQ(first.record, kContinued);
    EXPECT_EQ(walk.walk.afp.CarryOverBytes, 6);
    const ShownItems second = walk.Next();
    EXPECT_EQ(second.items, (Lines{"Text BeginOrder GEPROL", "Boolean EndProlog 1"}));
    EXPECT_EQ(second.record, kPreceded);
}

TEST(UnknownOrder, ThatComesFirstCarriesNothing)
{
    ItemWalk walk(AfpFile().Add("GAD", Pieces("FF 3E 00")).Add("GAD", Pieces("3E 00")));
    EXPECT_EQ(walk.Next().record, Lines{});
    EXPECT_EQ(walk.walk.afp.CarryOverBytes, 0);
    EXPECT_EQ(walk.Next().record, Lines{});
}

TEST(CutImage, IsSkippedInTheNextFields)
{
    const Bytes large = Pieces("FE92 C350") + Bytes(5000, 'x');
    ItemWalk walk(
        AfpFile().Add("IPD", large).Add("IPD", Bytes(30'000, 'x')).Add("IPD", Bytes(15'000, 'x') + Pieces("71 00")));
    const ShownItems first = walk.Next();
    EXPECT_EQ(ValuesOf(first, "ImageData"), Lines{"50000"});
    EXPECT_EQ(first.record, kContinued);
    EXPECT_EQ(walk.walk.afp.CarryOverBytes, 45'000);  // more than a signed short number holds
    const ShownItems second = walk.Next();
    EXPECT_EQ(second.items, Lines{});
    EXPECT_EQ(second.record, (Lines{"Boolean ContFromLastSF 1", "Boolean ContInNextSF 1"}));
    EXPECT_EQ(second.text, "... preceding element exists ...\n... to be continued ...\n");
    EXPECT_EQ(walk.walk.afp.CarryOverBytes, 15'000);
    const ShownItems third = walk.Next();
    EXPECT_EQ(third.items, (Lines{"Text BeginSDF End Segment", "Boolean EndSegment 1"}));
    EXPECT_EQ(third.record, kPreceded);
}

TEST(CutImage, CarriesTheLow16Bits)
{
    ItemWalk walk(AfpFile().Add("IPD", Pieces("FE92 FFFF 00 00")));
    walk.Next();
    EXPECT_EQ(walk.walk.afp.CarryOverBytes, 65'533);
    ItemWalk longest(AfpFile().Add("IPD", Pieces("FE92 FFFF")));
    longest.Next();
    EXPECT_EQ(longest.walk.afp.CarryOverBytes, 65'535);
}

TEST(UnknownImageField, CarriesNothing)
{
    ItemWalk walk(AfpFile().Add("IPD", Pieces("71 00 55 FF 00")).Add("IPD", Pieces("71 00")));
    EXPECT_EQ(walk.Next().record, Lines{});
    EXPECT_EQ(walk.Next().record, Lines{});
}

TEST(CarryOver, IsSharedByAllObjects)
{
    ItemWalk walk(AfpFile()
                      .Add("PTX", Pieces("2BD3 06 DA 'ab'"))
                      .Add("IPD", Pieces("00 00 71 00"))
                      .Add("PTX", Pieces("2BD3 06 DA 'abc'"))
                      .Add("GAD", Pieces("00 3E 00"))
                      .Add("GAD", Pieces("01 04 'abc'"))
                      .Add("IDD", Pieces("00 0960 0960 0400 0300 00 71 00"))
                      .Add("IPD", Pieces("FE92 0002 00"))
                      .Add("PTD-2", Zeros(15) + Pieces("2BD3 02 D8")));
    walk.Next();
    ShownItems shown = walk.Next();
    EXPECT_EQ(shown.record, kPreceded);
    EXPECT_EQ(shown.items, (Lines{"Text BeginSDF End Segment", "Boolean EndSegment 1"}));
    walk.Next();
    shown = walk.Next();
    EXPECT_EQ(shown.record, kPreceded);
    EXPECT_EQ(shown.items, (Lines{"Text BeginOrder GEPROL", "Boolean EndProlog 1"}));
    walk.Next();
    shown = walk.Next();
    EXPECT_EQ(shown.record.back(), kPreceded.front());
    EXPECT_EQ(shown.items, (Lines{"Text BeginSDF End Segment", "Boolean EndSegment 1"}));
    walk.Next();
    shown = walk.Next();
    EXPECT_EQ(shown.record.back(), kPreceded.front());
    EXPECT_EQ(shown.items, (Lines{"Text BeginSequence BLN", "Boolean NewLine 1"}));
}

TEST(CarryOver, PassesOtherFieldsAndEmptyOnes)
{
    ItemWalk walk(
        AfpFile().Add("PTX", Pieces("2BD3 06 DA 'ab'")).Add("NOP", Zeros(5)).Add("PTX").Add("EPT").Add("BPT"));
    for (int i = 0; i < 4; ++i) walk.Next();
    EXPECT_EQ(walk.walk.afp.CarryOverBytes, 2);
    walk.Next();
    EXPECT_EQ(walk.walk.afp.CarryOverBytes, 0);
}

TEST(CarryOver, IsForgottenWhereAnObjectBegins)
{
    for (const std::string_view field : {"BPT", "BGR", "BOC", "BPS", "BCA"}) {
        ItemWalk walk(AfpFile().Add("PTX", Pieces("2BD3 06 DA 'ab'")).Add(field, Ebcdic8("NAME")));
        walk.Next();
        EXPECT_EQ(walk.walk.afp.CarryOverBytes, 2);
        walk.Next();
        EXPECT_EQ(walk.walk.afp.CarryOverBytes, 0) << field;
    }
    for (const std::string_view field : {"BIM", "BPG", "BDT", "BBC", "EPT", "EGR", "BAG"}) {
        ItemWalk walk(AfpFile().Add("PTX", Pieces("2BD3 06 DA 'ab'")).Add(field, Ebcdic8("NAME")));
        walk.Next();
        walk.Next();
        EXPECT_EQ(walk.walk.afp.CarryOverBytes, 2) << field;
    }
}

TEST(CutItems, ReadTheirFixedPartsFromBehindTheField)
{
    const auto behind = [](std::string_view field, std::string_view pieces) {
        ItemWalk walk(AfpFile(Packaging::Bare).Add(field, Pieces(pieces)).Noise(Pieces("12345678")).Add("EPG"));
        return walk.Next();
    };
    const ShownItems text = behind("PTX", "2BD3 04 C6");
    EXPECT_EQ(text.items.back(), "Int32 AbsoluteInline 4660");
    EXPECT_EQ(text.record, kContinued);
    const ShownItems drawing = behind("GAD", "26 02");
    EXPECT_EQ(drawing.items.back(), "Int32 Color 4660");
    EXPECT_EQ(drawing.record, kContinued);
    const ShownItems image = behind("IPD", "F6 04 00 00");
    EXPECT_EQ(image.items.back(), "Int32 ForegroundColor 4660");
    EXPECT_EQ(image.record, kContinued);
}

// Large fields
// ----------------------------------------------------------------------------------------------------------------

TEST(LargestField, OfTwoByteItemsKeepsTenThousandElements)
{
    constexpr std::size_t kMost = 10'000, kItems = 32'763;  // two bytes each, in a field of 65,534 bytes
    Bytes sequences = Pieces("2BD3"), orders, fields;
    for (std::size_t i = 0; i < kItems; ++i) {
        sequences += Raw({0x02, 0xD9});
        orders += Raw({0x3E, 0x00});
        fields += Raw({0x71, 0x00});
    }
    sequences.resize(kItems * 2);
    for (const auto& [field, bytes, last] : {std::tuple{"PTX", sequences, "Boolean NewLine 1"},
                                             {"GAD", orders, "Boolean EndProlog 1"},
                                             {"IPD", fields, "Boolean EndSegment 1"}}) {
        ItemWalk walk(AfpFile().Add(field, bytes).Add("PTX", Pieces("2BD3 02 D8")));
        const ShownItems shown = walk.Next();
        EXPECT_EQ(shown.items.size(), kMost) << field;
        EXPECT_EQ(shown.items.back(), last) << field;
        EXPECT_EQ(shown.heard.size(), field == std::string_view("PTX") ? 2u : 0u) << field;
        EXPECT_EQ(walk.Next().items.size(), 2u);
    }
}

TEST(LargestField, OfOneByteOrdersKeepsTenThousandElements)
{
    const ShownItems shown = ShowItems("GAD", Zeros(65'527));
    EXPECT_EQ(shown.items.size(), 10'000u);
    EXPECT_EQ(shown.record, Lines{});
}

TEST(LongTexts, AreCutByDots)
{
    Bytes text;
    for (int i = 0; i < 250; ++i) text += Raw({0x2B, 0xD3, 0xFF, 0xDA}) + Bytes(253, '\xC1');
    ItemWalk walk(AfpFile().Add("PTX", text));
    const ShownItems shown = walk.Next();
    EXPECT_EQ(ValuesOf(shown, "TransparentData"), Lines(250, std::string(253, 'A')));
    EXPECT_EQ(shown.record, Lines{});
    EXPECT_NE(shown.text.find("</b>\n..."), std::string::npos);
    EXPECT_TRUE(shown.text.ends_with("..."));
    EXPECT_LE(walk.bench.renderer.text.Position(), PropertyText::kCapacity);
}

}  // namespace
}  // namespace folioscope
