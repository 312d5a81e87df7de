#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/render/renderer.h"

namespace folioscope::test {

// Writes down what a renderer tells the tree: "NodeText BPG", "ResName PAGE0001", "Unread", "Invalid", "Message ...".
class RecordingSink : public NodeSink {
public:
    void SetNodeText(std::string_view shortName) override { Tell("NodeText ", shortName); }
    void ShowResName(std::string_view name) override { Tell("ResName ", name); }
    void SetUnread() override { Tell("Unread", ""); }
    void MarkNodeInvalid() override { Tell("Invalid", ""); }
    void AddContentMessage(std::string_view description) override { Tell("Message ", description); }

    std::vector<std::string> told;

private:
    void Tell(std::string what, std::string_view with) { told.push_back(what += with); }
};

// A renderer and the list that it is fed from.
struct RenderBench {
    explicit RenderBench(Language language = Language::English, NumberStyle style = {})
        : renderer(Labels(language), settings, std::move(style), sink)
    {
    }

    RenderBench& Add(const Element& element)
    {
        list.AddElement(element);
        return *this;
    }
    RenderBench& Add(Key key, std::int64_t value) { return Add(Element::Int32(key, value)); }
    RenderBench& AddText(Key key, std::string_view text)
    {
        const auto from = list.Pool().size();
        list.Pool() += text;
        return Add(list.PooledText(key, from));
    }
    // The text of all Elements that were added, which are gone then.
    std::string Render()
    {
        renderer.text.Clear();
        renderer.RenderStructuredField(list);
        list.ClearCollections();
        return std::string(renderer.text.Text());
    }
    std::string Line(Key key, std::int64_t value) { return Add(key, value).Render(); }
    std::string TextLine(Key key, std::string_view text) { return AddText(key, text).Render(); }

    Settings settings;
    RecordingSink sink;
    ElementList list;
    Renderer renderer;
};

}  // namespace folioscope::test
