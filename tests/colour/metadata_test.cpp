// Metadata objects.

#include <gtest/gtest.h>

#include <string>

#include "colour/colour_support.h"
#include "document/ports.h"

namespace folioscope {
namespace {

using namespace test;

// A header of so many bytes (which don't count its first four), then the content.
Bytes Metadata(unsigned headerLength, std::string_view compression, const Bytes& content, std::string_view name = {})
{
    Bytes object = U2(headerLength) + Wide("XMP") + Filled("XML", 8) + Filled(compression, 20) + Bytes(8, '\x77');
    if (headerLength > 46 || !name.empty()) object += U2(static_cast<unsigned>(2 * name.size())) + Wide(name);
    object.resize(headerLength);
    object += content;
    return U4(static_cast<std::uint32_t>(object.size()) + 4) + object;
}

Shown ShowMetadata(const Bytes& object, std::size_t step = 8000)
{
    FamilyWalk walk(InContainer(object, ObjectKind::Metadata, step));
    walk.walk.afp.SetPorts(Decoders());
    walk.bench.renderer.ports = Renderers();
    const std::size_t fields = (object.size() + step - 1) / step;
    Shown shown = walk.Last(static_cast<int>(fields) + 2);
    EXPECT_EQ(walk.bench.renderer.deferredText.Text(), "");
    return shown;
}

constexpr std::string_view kEnd = "Name OBJECT   | Name:<b>→OBJECT</b>\n"
                                  "ShowResName OBJECT\n";

TEST(Metadata, IsShownInTheTextOfItsEnd)
{
    const Shown shown = ShowMetadata(Metadata(58, "NONE", "<a>Text</a>", "Note"));
    ExpectShown(shown.elements, shown.text,
                std::string(kEnd) + "MOLen 73 | Length: 73\n"
                                    "MOHeaderLen 58 | Header length: 58\n"
                                    "MOType XMP | Type: XMP\n"
                                    "MOFormat XML | Format: XML\n"
                                    "MOCompression NONE | Compression: NONE\n"
                                    "MOName Note | Name: Note\n"
                                    "MOData <a>Text</a> | Data:→<b><a>Text</a></b>");
    EXPECT_EQ(shown.heard, Lines{"ResName OBJECT"});
}

TEST(Metadata, ThatIsCompressedIsShownInHex)
{
    const Shown shown = ShowMetadata(Metadata(46, "GZIP", Raw({0x1F, 0x8B, 8})));
    ExpectShown(shown.elements, shown.text,
                std::string(kEnd) + "MOLen 53 | Length: 53\n"
                                    "MOHeaderLen 46 | Header length: 46\n"
                                    "MOType XMP | Type: XMP\n"
                                    "MOFormat XML | Format: XML\n"
                                    "MOCompression GZIP | Compression: GZIP\n"
                                    "MOHexCode 1F 8B 08 | Hex-Codes: x'1F 8B 08'");
}

TEST(Metadata, GroupsItsLengths)
{
    const Shown shown = ShowMetadata(Metadata(5000, "NONE", Bytes(4000, 'x')));
    EXPECT_NE(shown.text.find("Length: 9,004\nHeader length: 5,000\n"), std::string::npos);
}

TEST(Metadata, HasANameInHeadersAbove46Bytes)
{
    EXPECT_EQ(ValuesOf(ShowMetadata(Metadata(46, "NONE", "0123456789")), "MOName"), Lines{});
    EXPECT_EQ(ValuesOf(ShowMetadata(Metadata(48, "NONE", "0123456789")), "MOName"), Lines{""});
    EXPECT_EQ(ValuesOf(ShowMetadata(Metadata(54, "NONE", "0123456789", "abc")), "MOName"), Lines{"abc"});
    EXPECT_EQ(ValuesOf(ShowMetadata(Metadata(47, "NONE", "0123456789")), "MOName").size(), 1u);
}

TEST(Metadata, KeepsTheNamesFilling)
{
    EXPECT_EQ(ValuesOf(ShowMetadata(Metadata(58, "NONE", "0123456789", "@a@ ")), "MOName"), Lines{"@a@ "});
    Bytes object = Metadata(46, "NONE", "0123456789");
    object.replace(6, 6, Wide("@@ "));
    EXPECT_EQ(ValuesOf(ShowMetadata(object), "MOType"), Lines{"@@ "});
}

TEST(Metadata, CleansFormatAndCompression)
{
    Bytes object = Metadata(46, "@NONE@@@ @", "0123456789");
    object.replace(12, 8, Wide("@X@@"));
    const Shown shown = ShowMetadata(object);
    EXPECT_EQ(ValuesOf(shown, "MOFormat"), Lines{"X"});
    EXPECT_EQ(ValuesOf(shown, "MOCompression"), Lines{"NONE"});
    EXPECT_EQ(ValuesOf(shown, "MOData"), Lines{"0123456789"});
}

TEST(Metadata, TakesNoOtherWordForNone)
{
    for (const std::string_view word : {"none", "NONE1", "NON", "", "N ONE"}) {
        const Shown shown = ShowMetadata(Metadata(46, word, "0123456789"));
        EXPECT_FALSE(Has(shown, "MOData")) << word;
        EXPECT_EQ(ValuesOf(shown, "MOHexCode"), Lines{"30 31 32 33 34 35 36 37 \t\t38 39"}) << word;
        EXPECT_EQ(shown.heard, Lines{"ResName OBJECT"}) << "no fault";
    }
}

// The content must begin three bytes before the end.
TEST(Metadata, HasNoContentBehindItsLastBytes)
{
    for (const std::string_view compression : {"NONE", "GZIP"}) {
        const auto has = [&](const Bytes& content) {
            const Shown shown = ShowMetadata(Metadata(46, compression, content));
            return Has(shown, "MOData") || Has(shown, "MOHexCode");
        };
        EXPECT_FALSE(has(""));
        EXPECT_FALSE(has("1"));
        EXPECT_FALSE(has("12"));
        EXPECT_TRUE(has("123"));
    }
}

TEST(Metadata, IsTextOfPage1252WhateverTheRunsPage)
{
    const Bytes object = Metadata(46, "NONE", Raw({'a', 0x80, 0xE4, 0, 'b', '@'}));
    FamilyWalk walk(InContainer(object, ObjectKind::Metadata), {500, 500, 500, 1252, true});
    walk.walk.afp.SetPorts(Decoders());
    EXPECT_EQ(ValuesOf(walk.Last(3), "MOData"), Lines{"a€ä b@"});
}

TEST(Metadata, GoesByTheLengthThatItSays)
{
    const auto data = [](std::uint32_t length, std::string_view compression) {
        Bytes object = Metadata(46, compression, "0123456789");
        object.replace(0, 4, U4(length));
        return ShowMetadata(object);
    };
    EXPECT_EQ(ValuesOf(data(54, "NONE"), "MOData"), Lines{"0123"});
    EXPECT_EQ(ValuesOf(data(50, "NONE"), "MOData"), Lines{""});
    EXPECT_EQ(ValuesOf(data(0, "NONE"), "MOData"), Lines{""}) << "below zero";
    EXPECT_EQ(ValuesOf(data(62, "NONE"), "MOData"), Lines{"0123456789  "}) << "zeros behind the object";
    EXPECT_EQ(ValuesOf(data(0xFFFFFFFF, "NONE"), "MOData"), Lines{"0123456789"});
    EXPECT_EQ(ValuesOf(data(0xFFFFFFFF, "NONE"), "MOLen"), Lines{"2147483647"});
    EXPECT_EQ(ValuesOf(data(54, "GZIP"), "MOHexCode"), Lines{"30 31 32 33"});
    const std::string hex = ValuesOf(data(0xFFFFFFFF, "GZIP"), "MOHexCode").at(0);
    EXPECT_TRUE(hex.starts_with("30 31 32 33 34 35 36 37 \t\t38 39 00"));
    EXPECT_TRUE(hex.ends_with("..."));
}

TEST(Metadata, OfALongTextIsThreeDots)
{
    const Shown shown = ShowMetadata(Metadata(46, "NONE", Bytes(100'000, 'x')));
    EXPECT_TRUE(shown.text.ends_with("Compression: NONE\n...")) << shown.text.substr(0, 500);
    const Shown fits = ShowMetadata(Metadata(46, "NONE", Bytes(60'000, 'x')));
    EXPECT_TRUE(fits.text.ends_with("xxx</b>\n"));
}

TEST(Metadata, OfFewBytesReadsZeros)
{
    for (const Bytes& object : {Bytes(), U4(4), U4(9) + U2(0), U4(9) + U2(0xFFFF)}) {
        const Shown shown = ShowMetadata(object);
        EXPECT_EQ(ValuesOf(shown, "MOHeaderLen"), Lines{object.ends_with('\xFF') ? "65535" : "0"});
        EXPECT_EQ(ValuesOf(shown, "MOType"), Lines{std::string(3, '\0')});
        EXPECT_FALSE(Has(shown, "MOData"));
        EXPECT_FALSE(Has(shown, "MOHexCode"));
    }
}

TEST(Metadata, IsGatheredFromItsFields)
{
    const Bytes object = Metadata(58, "NONE", "<a>Text</a>", "Note");
    const Shown whole = ShowMetadata(object);
    for (const std::size_t step : {1u, 5u, 40u}) EXPECT_EQ(ShowMetadata(object, step).elements, whole.elements) << step;
}

}  // namespace
}  // namespace folioscope
