#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "document/document.h"
#include "support/afp_builder.h"
#include "support/temporary_file.h"

namespace folioscope::test {

struct Box {
    BoxIcon icon;
    std::string title, text;
};

// Remembers all that a document tells whoever runs it.
class TestHost final : public RunHost {
public:
    void OperationStarts(std::int64_t lngMaximum) override { calls.push_back("starts " + std::to_string(lngMaximum)); }
    void Progress(std::int64_t lngValue) override
    {
        calls.push_back("progress " + std::to_string(lngValue));
        progress.push_back(lngValue);
    }
    void Counters(std::int32_t lngSFCount, std::int32_t lngPageCount) override
    {
        calls.push_back("counters " + std::to_string(lngSFCount) + " " + std::to_string(lngPageCount));
    }
    void GiveWay() override
    {
        calls.emplace_back("gives way");
        ++waysGiven;
        if (onGiveWay) onGiveWay();
    }
    void KeepAlive() override
    {
        if (onKeepAlive) onKeepAlive();
    }
    void OperationEnds() override { calls.emplace_back("ends"); }
    void RunFinished() override { calls.emplace_back("finished"); }
    void PreviewOffered() override { calls.emplace_back("preview"); }
    void MessageBox(BoxIcon icon, std::string_view title, std::string_view text) override
    {
        calls.emplace_back("box");
        boxes.push_back({icon, std::string(title), std::string(text)});
    }

    std::size_t CountOf(std::string_view start) const;  // calls that start so

    std::vector<std::string> calls;
    std::vector<std::int64_t> progress;
    std::vector<Box> boxes;
    int waysGiven = 0;
    std::function<void()> onGiveWay, onKeepAlive;
};

// Remembers what a message list wants its window to do.
struct TestListener final : MessageListener {
    void MessageAdded(std::size_t index) override { added.push_back(index); }
    void MessagesCleared() override { ++cleared; }
    void ShowMessages() override { ++shown; }
    void Beep() override { ++beeps; }

    std::vector<std::size_t> added;
    int cleared = 0, shown = 0, beeps = 0;
};

// "Structure E: text", one for each line of the list.
std::vector<std::string> LinesOf(const MessageList& messages);

// Whether this process has a file open.
bool IsHeldOpen(const std::string& path);

// A document over a file of its own, by the name of test.afp.
class TestDocument {
public:
    explicit TestDocument(std::string_view content, const Settings& settings = {}, const DecodePorts& ports = {},
                          const NumberStyle& numbers = {});

    bool Run() { return document.ProcessAFPFile(path); }

    const StructureTree& Tree() const { return document.Tree(); }
    std::string NodeText(std::uint32_t node) const { return Tree().NodeText(node); }
    std::string Content(std::uint32_t node) { return document.GetNodeContents_strContent(node); }
    bool IsRed(std::uint32_t node) const { return Tree().Nodes()[node].red; }
    // The first leaf of a field; 0 if there is none.
    std::uint32_t Find(std::string_view shortName) const;
    // Opens the file, reads the body of a deferred record, closes the file: what selecting a node does.
    FileFailure Select(std::uint32_t node);

    TemporaryFolder folder;
    std::string path;
    MessageList messages;
    TestListener window;
    TestHost host;
    Document document;
};

// The same, walked.
std::unique_ptr<TestDocument> Analyse(std::string_view content, const Settings& settings = {},
                                      const DecodePorts& ports = {}, const NumberStyle& numbers = {});

// The node texts in tree order, each behind two blanks for a level, the root at none.
std::string Outline(const StructureTree& tree);

// No bold and no colour, so that folder texts are bare.
Settings PlainFolders();

// The lines that head the text of a record. `start` counts from 0.
std::string HeadLines(std::string_view SFName, std::int64_t start, std::int64_t length);

// Decoders of deferred bodies. PTX: the body as text of page 37. IPD: an unknown base unit of the body's first byte.
// FNI, FNM: the body twice, as 16-bit characters.
DecodePorts TestPorts();

struct StringSink final : DumpSink {
    FileFailure Write(std::string_view bytes) override
    {
        text += bytes;
        sizes.push_back(bytes.size());
        return {};
    }
    std::string text;
    std::vector<std::size_t> sizes;
};

// Acts as a user without privileges as long as it lives, if the tests run as root. Whoever writes to a device needs it
// too: were the code wrong, root would replace the machine's own.
class AsOrdinaryUser {
public:
    AsOrdinaryUser();
    AsOrdinaryUser(const AsOrdinaryUser&) = delete;
    AsOrdinaryUser& operator=(const AsOrdinaryUser&) = delete;
    ~AsOrdinaryUser();
    bool Succeeded() const { return succeeded_; }

private:
    bool root_, succeeded_ = true;
};

}  // namespace folioscope::test
