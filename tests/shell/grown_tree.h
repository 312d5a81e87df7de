#pragma once

#include <cstdint>
#include <random>
#include <string_view>
#include <vector>

#include "analysis/decode/dispatch.h"
#include "base/settings.h"
#include "document/messages.h"
#include "document/structure_tree.h"

namespace folioscope::test {

// A tree that gets its records by hand, for tests of what shows it.
struct GrownTree {
    explicit GrownTree(const Settings& userSettings = {})
        : settings(userSettings),
          tree(settings, Labels(Language::English), Labels(Language::English), messages, listener)
    {
        tree.AddRoot("test.afp", "");
    }

    std::uint32_t Add(std::string_view shortName, Status status, std::string_view name = {})
    {
        tree.AddNodes(status, FieldOf(shortName));
        tree.SetNodeText(shortName);
        if (!name.empty()) tree.ShowResName(name);
        const std::uint32_t leaf = tree.Current();
        tree.CloseFolder(status);
        return leaf;
    }
    std::uint32_t Leaf(std::string_view name = {}) { return Add("NOP", kRecord, name); }
    // A page or, where a folder without a picture of its own is wanted, an overlay's group.
    std::uint32_t Open(std::string_view begin = "BPG") { return Add(begin, kBegin) - 1; }
    std::uint32_t Close(std::string_view end = "EPG") { return Add(end, kEnd); }

    // Records at random: folders in folders, leaves, and ends also where no folder is open.
    void AddAtRandom(std::mt19937& random, int count)
    {
        for (int i = 0; i < count; ++i) {
            const unsigned dice = random() % 10;
            dice < 3 ? Open() : dice < 6 ? Close() : Leaf();
        }
    }

    static std::size_t FieldOf(std::string_view shortName)
    {
        for (std::size_t i = 0; i < kFieldCount; ++i)
            if (Fields()[i].NodeText == shortName) return i;
        return kFieldCount;
    }

    const NodeStore& Nodes() const { return tree.Nodes(); }

    Settings settings;
    MessageList messages;
    TreeListener listener;
    StructureTree tree;
};

}  // namespace folioscope::test
