#include "document_support.h"

#include <algorithm>
#include <unistd.h>

#include "analysis/decode/dispatch.h"
#include "base/numbers.h"

namespace folioscope::test {

namespace {

constexpr ::uid_t kNobody = 65'534;

std::int32_t BodyLength(const clsAFPFunctions& afp) { return afp.FieldEnd - afp.FieldPosition + 1; }

void DecodeAsText(clsAFPFunctions& afp)
{
    afp.AddElement(afp.ReadTextCP(Key::NOPContent, 37, afp.FieldPosition, BodyLength(afp)));
}

void DecodeAsUnit(clsAFPFunctions& afp)
{
    afp.AddElement(Element::Byte(Key::UnitBaseX, afp.ByteAt(afp.FieldPosition)));
}

void DecodeTwiceAsWideText(clsAFPFunctions& afp)
{
    for (int i = 0; i < 2; ++i)
        afp.AddElement(afp.ReadTextCP(Key::NOPContent, 1200, afp.FieldPosition, BodyLength(afp)));
}

}  // namespace

std::size_t TestHost::CountOf(std::string_view start) const
{
    return static_cast<std::size_t>(
        std::count_if(calls.begin(), calls.end(), [&](const std::string& call) { return call.starts_with(start); }));
}

std::vector<std::string> LinesOf(const MessageList& messages)
{
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < messages.Size(); ++i) {
        std::string line(NameOf(messages[i].source));
        line += ' ';
        line += NameOf(messages[i].severity);
        line += ": ";
        line += messages.Description(messages[i]);
        lines.push_back(line);
    }
    return lines;
}

TestDocument::TestDocument(std::string_view content, const Settings& settings, const DecodePorts& ports,
                           const NumberStyle& numbers)
    : path(folder.File("test.afp", content)), document(settings, numbers, messages, host, ports)
{
    messages.SetListener(&window);
}

std::uint32_t TestDocument::Find(std::string_view shortName) const
{
    for (std::uint32_t node = NodeStore::kRoot; node < Tree().Nodes().Size(); ++node)
        if (Tree().ShortName(node) == shortName) return node;
    return 0;
}

FileFailure TestDocument::Select(std::uint32_t node)
{
    if (const auto failure = document.RedirectOpenAFPFileRandom()) return failure;
    const auto failure = document.LookupMissingData(node);
    document.RedirectCloseAFPFile();
    return failure;
}

std::unique_ptr<TestDocument> Analyse(std::string_view content, const Settings& settings, const DecodePorts& ports,
                                      const NumberStyle& numbers)
{
    auto document = std::make_unique<TestDocument>(content, settings, ports, numbers);
    document->Run();
    return document;
}

std::string Outline(const StructureTree& tree)
{
    std::string outline;
    for (TreeWalk walk(tree.Nodes()); !walk.AtEnd(); walk.Next()) {
        outline.append(2 * walk.Depth(), ' ');
        outline += tree.NodeText(walk.Node());
        outline += '\n';
    }
    return outline;
}

Settings PlainFolders()
{
    Settings settings;
    settings.FolderBold = settings.FolderColored = 0;
    return settings;
}

std::string HeadLines(std::string_view SFName, std::int64_t start, std::int64_t length)
{
    std::string text = "Structured Field:\t°^°B~" + std::string(SFName) + "°^°N~\r\nStart byte:\t";
    AppendFormatted(text, start, Picture::Grouped, {});
    std::string hex;
    AppendHex(hex, static_cast<std::uint64_t>(start), 8);
    text += "   (x'" + hex.substr(0, 2) + ' ' + hex.substr(2, 2) + ' ' + hex.substr(4, 2) + ' ' + hex.substr(6, 2);
    text += "')\r\nLength:\t";
    AppendFormatted(text, length, Picture::Grouped, {});
    return text + " Bytes\r\n\r\n";
}

DecodePorts TestPorts()
{
    return {.Sequences = DecodeAsText, .Fields = DecodeAsUnit, .FontGroups = DecodeTwiceAsWideText};
}

AsOrdinaryUser::AsOrdinaryUser() : root_(::geteuid() == 0)
{
    if (root_) succeeded_ = ::setresuid(kNobody, kNobody, 0) == 0;
}

AsOrdinaryUser::~AsOrdinaryUser()
{
    if (root_ && succeeded_) succeeded_ = ::setresuid(0, 0, 0) == 0;
}

}  // namespace folioscope::test
