#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "analysis/record_walk.h"
#include "analysis/render/renderer.h"
#include "support/afp_builder.h"

namespace folioscope::test {

// Hears what a renderer tells the tree: "ResName PAGE0001", "Unread", "Invalid", "Message ...".
class Witness final : public NodeSink {
public:
    void SetNodeText(std::string_view) override {}
    void ShowResName(std::string_view name) override { Hear("ResName ", name); }
    void SetUnread() override { Hear("Unread", ""); }
    void MarkNodeInvalid() override { Hear("Invalid", ""); }
    void AddContentMessage(std::string_view description) override { Hear("Message ", description); }

    std::vector<std::string> heard;

private:
    void Hear(std::string what, std::string_view with) { heard.push_back(what += with); }
};

// What became of a record.
struct Shown {
    std::vector<std::string> elements;  // "RotationX 90", without the four that head each record
    std::vector<std::string> typed;     // the same with the kind of the value: "Int32 RotationX 90"
    std::string text;                   // readable, see Readable
    std::vector<std::string> heard;
};

// A property text with its signs written out: → for a tab, <b> and </b>, <red> and </red>, <link> and </link> for the
// markers, \n for a line end.
std::string Readable(std::string_view propertyText);

// Elements without a record, for a renderer of their own.
struct LineBench {
    explicit LineBench(Language language = Language::English, NumberStyle style = {})
        : renderer(Labels(language), settings, std::move(style), witness)
    {
    }
    LineBench& Add(const Element& element)
    {
        list.AddElement(element);
        return *this;
    }
    LineBench& Add(Key key, std::int64_t value) { return Add(Element::Int32(key, value)); }
    LineBench& AddText(Key key, std::string_view text);
    // The text of what was added, which is gone then.
    std::string Text();
    std::string Text(Key key, std::int64_t value) { return Add(key, value).Text(); }

    Settings settings;
    Witness witness;
    ElementList list;
    Renderer renderer;
};

// A file, decoded and rendered record by record.
class FamilyWalk {
public:
    explicit FamilyWalk(const AfpFile& file, const InputPages& pages = {}) : walk(file, pages) {}

    Shown Next();
    // The records to the last one, whose outcome is given.
    Shown Last(int records);

    RecordWalk walk;
    LineBench bench;
};

Shown ShowRecord(const Field& field, const InputPages& pages = {});
// In a record that holds nothing else.
Shown ShowTriplets(const Bytes& triplets, const InputPages& pages = {});

// Holds Elements and text against one line an Element: "RotationX 90 | Rotation X axis (clockwise): 90°". An Element
// without a line stands alone. In a line ¶ is a line end, and a ~ at its end keeps the line open.
void ExpectShown(const std::vector<std::string>& elements, const std::string& text, std::string_view expected);
// The first triplet: its name, then its keys as above, without the indentation and without what frames each triplet.
void ExpectTriplet(const Shown& shown, std::string_view name, std::string_view expected);

// The values of all Elements of a key.
std::vector<std::string> ValuesOf(const Shown& shown, std::string_view key);
bool Has(const Shown& shown, std::string_view key);
// The names of the triplet's keys, between its name and its end.
std::string KeysOf(const Shown& shown);

}  // namespace folioscope::test
