#include "shell/tagged_text.h"

#include <gtest/gtest.h>

#include <string>

namespace folioscope {
namespace {

TEST(TaggedText, TakesLeadingTagsAsProperties)
{
    const TaggedText bare = ParseTaggedText("NOP");
    EXPECT_EQ(bare.text, "NOP");
    EXPECT_FALSE(bare.bold || bare.red || bare.color.isValid());

    const TaggedText folder = ParseTaggedText("<color=#8040FF><b>Page 1");
    EXPECT_EQ(folder.text, "Page 1");
    EXPECT_TRUE(folder.bold);
    EXPECT_FALSE(folder.red);
    EXPECT_EQ(folder.color, QColor(0x80, 0x40, 0xFF));

    EXPECT_TRUE(ParseTaggedText("<b>Page 1").bold);
    EXPECT_FALSE(ParseTaggedText("<b>Page 1").color.isValid());
}

TEST(TaggedText, KnowsTheRedOfFaults)
{
    const TaggedText red = ParseTaggedText("<color=clred><b>Document");
    EXPECT_TRUE(red.red && red.bold);
    EXPECT_EQ(red.text, "Document");
    EXPECT_GT(red.color.red(), 150);
    EXPECT_LT(red.color.green(), 60);
}

TEST(TaggedText, LeavesTagsInNamesAsTheyAre)
{
    EXPECT_EQ(ParseTaggedText("NOP: <b>x").text, "NOP: <b>x");
    EXPECT_FALSE(ParseTaggedText("NOP: <b>x").bold);
    EXPECT_EQ(ParseTaggedText("<i>x").text, "<i>x");
    EXPECT_EQ(ParseTaggedText("<b").text, "<b");
    EXPECT_EQ(ParseTaggedText("<color=x").text, "<color=x");
    EXPECT_EQ(ParseTaggedText("").text, "");
}

TEST(TaggedText, GivesNoColourForOneThatItDoesNotKnow)
{
    for (const std::string tag : {"<color=>", "<color=#12>", "<color=nosuchcolour>"}) {
        const TaggedText text = ParseTaggedText(tag + "A");
        EXPECT_FALSE(text.color.isValid()) << tag;
        EXPECT_EQ(text.text, "A");
    }
}

TEST(TaggedText, ShowsControlCharactersAsBlanks)
{
    EXPECT_EQ(PlainNodeText("<b>NOP: a\r\nb\tc\x7F"), "NOP: a  b c ");
    EXPECT_EQ(ParseTaggedText("\xC3\x84\x01").text, QString::fromUtf8("Ä "));
}

TEST(Contrast, IsThatOfTheGuidelines)
{
    EXPECT_NEAR(ContrastOf(Qt::black, Qt::white), 21.0, 0.01);
    EXPECT_NEAR(ContrastOf(Qt::white, Qt::black), 21.0, 0.01);
    EXPECT_NEAR(ContrastOf(Qt::red, Qt::red), 1.0, 0.001);
    EXPECT_NEAR(ContrastOf(QColor(0x76, 0x76, 0x76), Qt::white), 4.54, 0.01);
}

TEST(Contrast, IsEnoughOnEveryGround)
{
    const QColor grounds[] = {
        Qt::white, Qt::black, QColor(0x23, 0x26, 0x29), QColor(0x30, 0x8C, 0xC6), Qt::gray, QColor(0x80, 0x80, 0xFF)};
    const QColor colors[] = {QColor(0xD0, 0, 0), QColor(0x80, 0x80, 0xFF), Qt::white, Qt::black, Qt::yellow, Qt::blue};
    for (const QColor& ground : grounds)
        for (const QColor& color : colors)
            EXPECT_GE(ContrastOf(ground, ReadableOn(ground, color)), 4.5)
                << ground.name().toStdString() << ' ' << color.name().toStdString();
}

TEST(Contrast, LeavesAColourThatCanBeRead)
{
    EXPECT_EQ(ReadableOn(Qt::white, QColor(0xD0, 0, 0)).rgb(), QColor(0xD0, 0, 0).rgb());
    const QColor darker = ReadableOn(Qt::white, QColor(0x80, 0x80, 0xFF));
    EXPECT_GT(darker.blue(), darker.red());  // still of its hue
    EXPECT_LT(darker.red(), 0x80);
    EXPECT_GT(ReadableOn(Qt::black, QColor(0xD0, 0, 0)).red(), 0xD0 - 1);
}

}  // namespace
}  // namespace folioscope
