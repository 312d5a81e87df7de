#include "document/messages.h"

#include <gtest/gtest.h>

#include <string>

#include "document_support.h"

namespace folioscope {
namespace {

using test::LinesOf;
using test::TestListener;
using Lines = std::vector<std::string>;

struct HeardList {
    HeardList() { list.SetListener(&window); }
    void Add(std::string_view text) { list.addMessage(MessageSource::Content, MessageSeverity::Error, text, true); }
    MessageList list;
    TestListener window;
};

TEST(MessageList, NamesSourcesAndSeverities)
{
    EXPECT_EQ(NameOf(MessageSource::General), "General");
    EXPECT_EQ(NameOf(MessageSource::Structure), "Structure");
    EXPECT_EQ(NameOf(MessageSource::Content), "Content");
    EXPECT_EQ(NameOf(MessageSource::Viewer), "Viewer");
    EXPECT_EQ(NameOf(MessageSeverity::Information), "I");
    EXPECT_EQ(NameOf(MessageSeverity::Warning), "W");
    EXPECT_EQ(NameOf(MessageSeverity::Error), "E");
    EXPECT_EQ(NameOf(MessageSeverity::Fatal), "F");
}

TEST(MessageList, KeepsMessagesInTheOrderOfTheirFinding)
{
    HeardList heard;
    heard.list.addMessage(MessageSource::Viewer, MessageSeverity::Warning, "first", false);
    heard.list.addMessage(MessageSource::Structure, MessageSeverity::Error, "second", true);
    heard.list.addMessage(MessageSource::Viewer, MessageSeverity::Warning, "first", false);
    EXPECT_EQ(LinesOf(heard.list), (Lines{"Viewer W: first", "Structure E: second", "Viewer W: first"}));
    EXPECT_FALSE(heard.list[0].bolHighlight);
    EXPECT_TRUE(heard.list[1].bolHighlight);
    EXPECT_EQ(heard.window.added, (std::vector<std::size_t>{0, 1, 2}));
}

TEST(MessageList, MakesALineOfEachPartBetweenLineEnds)
{
    HeardList heard;
    heard.Add("one\r\ntwo\r\nthree");
    EXPECT_EQ(LinesOf(heard.list), (Lines{"Content E: one", "Content E: two", "Content E: three"}));
    EXPECT_TRUE(heard.list[0].bolHighlight && heard.list[1].bolHighlight && heard.list[2].bolHighlight);
    EXPECT_EQ(heard.window.added.size(), 3u);
}

TEST(MessageList, StopsAtAnEmptyPart)
{
    HeardList heard;
    heard.Add("one\r\n\r\nlost");
    heard.Add("\r\nlost");
    heard.Add("last\r\n");
    EXPECT_EQ(LinesOf(heard.list), (Lines{"Content E: one", "Content E: last"}));
}

TEST(MessageList, SplitsAtCarriageReturnAndLineFeedTogetherOnly)
{
    HeardList heard;
    heard.Add("a\rb\nc\n\rd");
    EXPECT_EQ(LinesOf(heard.list), (Lines{"Content E: a\rb\nc\n\rd"}));
}

TEST(MessageList, AnEmptyDescriptionAddsNothing)
{
    HeardList heard;
    heard.Add("");
    heard.Add("\r\n");
    EXPECT_EQ(heard.list.Size(), 0u);
    EXPECT_FALSE(heard.list.hasMessages());
    EXPECT_FALSE(heard.list.HasFaults());
    EXPECT_TRUE(heard.window.added.empty());
}

TEST(MessageList, HasMessagesUntilTheUserClosesTheWindow)
{
    HeardList heard;
    EXPECT_FALSE(heard.list.hasMessages());
    heard.Add("one");
    EXPECT_TRUE(heard.list.hasMessages());
    heard.list.Dismiss();
    EXPECT_FALSE(heard.list.hasMessages());
    EXPECT_EQ(heard.list.Size(), 1u);
    heard.Add("two");
    EXPECT_TRUE(heard.list.hasMessages());
    EXPECT_EQ(LinesOf(heard.list), (Lines{"Content E: one", "Content E: two"}));
}

TEST(MessageList, ShowsTheWindowForSomethingNewOnly)
{
    HeardList heard;
    heard.list.ShowWithBeep();
    EXPECT_EQ(heard.window.shown, 0);
    heard.Add("one");
    heard.list.ShowWithBeep();
    EXPECT_EQ(heard.window.shown, 1);
    heard.list.Dismiss();
    heard.list.ShowWithBeep();
    EXPECT_EQ(heard.window.shown, 1);
}

TEST(MessageList, BeepsOnceUntilItIsClosedOrCleared)
{
    HeardList heard;
    heard.Add("one");
    heard.list.ShowWithBeep();
    heard.Add("two");
    heard.list.ShowWithBeep();
    EXPECT_EQ(heard.window.shown, 2);
    EXPECT_EQ(heard.window.beeps, 1);
    heard.list.Dismiss();
    heard.Add("three");
    heard.list.ShowWithBeep();
    EXPECT_EQ(heard.window.beeps, 2);
    heard.list.Clear();
    heard.Add("four");
    heard.list.ShowWithBeep();
    EXPECT_EQ(heard.window.beeps, 3);
}

TEST(MessageList, ClearingEmptiesTheListAndItsFlags)
{
    HeardList heard;
    heard.Add("one");
    heard.list.Clear();
    EXPECT_EQ(heard.list.Size(), 0u);
    EXPECT_FALSE(heard.list.hasMessages());
    EXPECT_FALSE(heard.list.HasFaults());
    EXPECT_EQ(heard.window.cleared, 1);
    heard.Add("two");
    EXPECT_EQ(LinesOf(heard.list), (Lines{"Content E: two"}));
}

TEST(MessageList, FaultsAreErrorsAndFatalOnes)
{
    constexpr std::pair<MessageSeverity, bool> kCases[] = {{MessageSeverity::Information, false},
                                                           {MessageSeverity::Warning, false},
                                                           {MessageSeverity::Error, true},
                                                           {MessageSeverity::Fatal, true}};
    for (const auto& [severity, fault] : kCases) {
        MessageList list;
        list.addMessage(MessageSource::General, severity, "text", false);
        EXPECT_EQ(list.HasFaults(), fault) << NameOf(severity);
        list.addMessage(MessageSource::General, MessageSeverity::Information, "note", false);
        EXPECT_EQ(list.HasFaults(), fault) << NameOf(severity);
    }
}

TEST(MessageList, NeedsNoListener)
{
    MessageList list;
    list.addMessage(MessageSource::General, MessageSeverity::Information, "text", false);
    list.ShowWithBeep();
    list.Dismiss();
    list.Clear();
    EXPECT_EQ(list.Size(), 0u);
}

TEST(MessageList, HoldsAMillionMessages)
{
    constexpr std::size_t kCount = 1'000'000;
    MessageList list;
    for (std::size_t i = 0; i < kCount; ++i)
        list.addMessage(MessageSource::Structure, MessageSeverity::Error, i % 2 == 0 ? "even" : "odd", true);
    ASSERT_EQ(list.Size(), kCount);
    EXPECT_EQ(list.Description(list[0]), "even");
    EXPECT_EQ(list.Description(list[kCount - 1]), "odd");
}

}  // namespace
}  // namespace folioscope
