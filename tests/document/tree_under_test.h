#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "analysis/decode/dispatch.h"
#include "document/structure_tree.h"
#include "document_support.h"

namespace folioscope::test {

inline std::size_t FieldOf(std::string_view shortName)
{
    for (std::size_t i = 0; i < kFieldCount; ++i)
        if (Fields()[i].NodeText == shortName) return i;
    ADD_FAILURE() << "no such field: " << shortName;
    return kFieldCount;
}

// What the analysis says of a field that isn't segmented.
inline Status StatusOf(std::string_view shortName)
{
    const unsigned category = Fields()[FieldOf(shortName)].id >> 8;
    return category == kBeginCategory ? kBegin : category == kEndCategory ? kEnd : kRecord;
}

struct TestTreeListener final : TreeListener {
    void PageCounted(std::int32_t lngPageCount) override { pages.push_back(lngPageCount); }
    void PreviewOffered() override { ++offers; }
    std::vector<std::int32_t> pages;
    int offers = 0;
};

// A tree that gets its records by hand, in the order in which the run and the renderer tell of them.
struct TreeUnderTest {
    explicit TreeUnderTest(const Settings& userSettings = PlainFolders(), Language interface = Language::English)
        : settings(userSettings), tree(settings, Labels(Language::English), Labels(interface), messages, listener)
    {
        tree.AddRoot("test.afp", "root text");
    }

    // Adds a record without the end of its rendering, so that a test can go on with it.
    std::uint32_t Begin(std::string_view shortName, Status status, std::string_view name = {})
    {
        EXPECT_TRUE(tree.AddNodes(status, FieldOf(shortName)));
        tree.SetNodeText(shortName);
        if (!name.empty()) tree.ShowResName(name);
        return tree.Current();
    }
    std::uint32_t Add(std::string_view shortName, Status status, std::string_view name = {})
    {
        const std::uint32_t leaf = Begin(shortName, status, name);
        tree.CloseFolder(status);
        return leaf;
    }
    std::uint32_t Add(std::string_view shortName, std::string_view name = {})
    {
        return Add(shortName, StatusOf(shortName), name);
    }

    void AddMany(std::size_t count, std::string_view shortName, Status status)
    {
        const std::size_t field = FieldOf(shortName);
        for (std::size_t i = 0; i < count; ++i) {
            tree.AddNodes(status, field);
            tree.SetNodeText(shortName);
            tree.CloseFolder(status);
        }
    }

    std::string Text(std::uint32_t node) const { return tree.NodeText(node); }
    std::uint32_t Parent(std::uint32_t node) const { return tree.Nodes()[node].parent; }
    int Image(std::uint32_t node) const { return tree.Nodes()[node].image; }

    Settings settings;
    MessageList messages;
    TestTreeListener listener;
    StructureTree tree;
};

}  // namespace folioscope::test
