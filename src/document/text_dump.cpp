// The text dump: what the property pane shows of every node, in tree order, without its markup.

#include <algorithm>

#include "base/text.h"
#include "base/text_buffer.h"
#include "base/version.h"
#include "codepages/system_page.h"
#include "document/document.h"
#include "document/dump_file.h"

namespace folioscope {

namespace {

constexpr std::size_t kBufferSize = 256u << 10;
constexpr std::uint32_t kGiveWayEvery = 500;  // nodes
constexpr std::uint32_t kMostPrefixKept = 4096;
constexpr std::string_view kSeparator = "     ---------";
constexpr std::string_view kHeadEnd = "\r\n\r\n";

// Where the text behind the head paragraph starts. Without such a paragraph the count is as if it ended in front of
// the first character, so that the first three or five characters are passed over.
std::size_t DumpStart(std::string_view content)
{
    const auto head = content.find(kHeadEnd);
    std::size_t start = 0;
    if (head != std::string_view::npos)
        start = head + kHeadEnd.size();
    else
        for (int i = 0; i < 3 && start < content.size(); ++i) start += Utf8Step(content[start]);
    start = std::min(start, content.size());
    return start + (content.substr(start).starts_with(kCrLf) ? kCrLf.size() : 0);
}

}  // namespace

// Writes blocks into a buffer of fixed size, in the encoding that is asked for.
class DumpWriter {
public:
    DumpWriter(Document& document, DumpSink& sink, DumpEncoding encoding)
        : document_(document), tree_(*document.tree_), sink_(sink), system_(encoding == DumpEncoding::SystemPage),
          lineEnd_(system_ ? kCrLf : kCrLf.substr(1))
    {
        separator_ = std::string(kSeparator);
        separator_ += lineEnd_;
    }

    DumpResult Write()
    {
        std::uint32_t count = 0;
        for (TreeWalk walk(tree_.Nodes()); !walk.AtEnd() && result_.Whole(); walk.Next()) {
            if (walk.Node() == NodeStore::kRoot) {
                PutHeader();
                continue;
            }
            if (++count % kGiveWayEvery == 0) {
                document_.host_.Progress(walk.Node());
                document_.host_.GiveWay();
                result_.cancelled = document_.bolOperationInterupted_;
                if (result_.cancelled) break;
            }
            PutNode(walk.Node(), walk.Depth());
            if (buffer_.Size() >= kBufferSize) Flush();
        }
        Flush();
        if (opened_) document_.RedirectCloseAFPFile();
        return result_;
    }

private:
    void Put(std::string_view text)
    {
        if (!system_) {
            buffer_ += text;
            return;
        }
        converted_.clear();
        AppendInSystemPage(text, converted_);
        buffer_ += converted_;
    }

    // What stands in front of a block's node name. Neighbours mostly have the same depth.
    void PutBlockHead(std::uint32_t depth)
    {
        if (depth > kMostPrefixKept) {
            buffer_ += separator_;
            return PutPrefix(depth);
        }
        if (depth != headDepth_) {
            prefix_.assign(depth - 1, '>');
            prefix_ += '\t';
            head_ = separator_ + prefix_;
            headDepth_ = depth;
        }
        buffer_ += head_;
    }

    // A prefix can be far longer than the buffer is meant to be.
    void PutPrefix(std::uint32_t depth)
    {
        for (std::size_t left = depth - 1; left > 0;) {
            const std::size_t piece = std::min(left, kBufferSize);
            buffer_.Append(piece, '>');
            left -= piece;
            if (buffer_.Size() >= kBufferSize) Flush();
        }
        buffer_ += '\t';
    }

    void PutHeader()
    {
        const Labels interface(document_.settings_.InterfaceLanguage());
        Put(tree_.NodeText(NodeStore::kRoot));
        buffer_ += ':';
        buffer_ += lineEnd_;
        buffer_ += lineEnd_;
        buffer_ += "\tDump created by Folioscope Professional Version ";
        buffer_ += kVersion;
        buffer_ += lineEnd_;
        buffer_ += "\tFolioscope, (c) ";
        buffer_ += kReleaseDate.substr(kReleaseDate.size() - 4);
        buffer_ += lineEnd_;
        buffer_ += '\t';
        Put(interface[U("http://www.marrowgate.example/")]);
        buffer_ += lineEnd_;
        buffer_ += lineEnd_;
    }

    void PutNode(std::uint32_t node, std::uint32_t depth)
    {
        const NodeRecord& record = tree_.Nodes()[node];
        if (!record.head && record.content == kNoText && !record.described) return;
        body_.clear();
        if (record.nameLine && !record.described && PutNameBlock(node, depth)) return;
        if (!record.deferred)
            tree_.AppendBody(body_, node);
        else if (!ReadDeferred(node))
            return;
        const std::size_t start = record.head ? (body_.starts_with(kCrLf) ? kCrLf.size() : 0) : DumpStart(body_);
        PutBlock(node, depth, std::string_view(body_).substr(start));
    }

    // Most blocks are a name and nothing else. False: this one needs a closer look.
    bool PutNameBlock(std::uint32_t node, std::uint32_t depth)
    {
        const auto [label, name] = tree_.NameLine(node);
        if (name.find(kMarker.front()) != std::string_view::npos || name.find('\r') != std::string_view::npos)
            return false;
        PutBlockHead(depth);
        PutNodeName(node);
        buffer_ += '\t';
        Put(label);
        buffer_ += ":\t";
        Put(name);
        buffer_ += lineEnd_;
        return true;
    }

    bool ReadDeferred(std::uint32_t node)
    {
        if (!record(node).bolUnread) {
            const auto kept = document_.bodies_.find(node);
            if (kept != document_.bodies_.end()) {
                body_ = kept->second;
                return true;
            }
        }
        // Whoever reads a node while the dump gives way closes the file behind it.
        if (!document_.clsAFP_.Reader().IsOpen()) {
            result_.input = document_.RedirectOpenAFPFileRandom();
            if (result_.input) return false;
            opened_ = true;
        }
        result_.input = document_.ReadBody(node, body_);
        return !result_.input;
    }

    void PutBlock(std::uint32_t node, std::uint32_t depth, std::string_view text)
    {
        auto end = text.find(kCrLf);
        PutBlockHead(depth);
        if (end == std::string_view::npos)
            PutWholeText(node);
        else
            PutNodeName(node);
        // Most lines have no marker: where the next one stands is looked up once, not line by line.
        auto marker = std::min(text.find(kMarker.front()), text.size());
        for (bool first = true; end != std::string_view::npos; first = false, end = text.find(kCrLf)) {
            if (!first) PutPrefixAgain(depth);
            buffer_ += '\t';
            PutLine(text.substr(0, end), marker < end);
            buffer_ += lineEnd_;
            const std::size_t passed = end + kCrLf.size();
            text.remove_prefix(passed);
            marker = marker >= passed ? marker - passed : std::min(text.find(kMarker.front()), text.size());
        }
    }

    // In front of all lines of a block but the first.
    void PutPrefixAgain(std::uint32_t depth)
    {
        if (depth == headDepth_)
            buffer_ += prefix_;
        else
            PutPrefix(depth);
    }

    void PutWholeText(std::uint32_t node)
    {
        if (const NodeRecord& leaf = record(node); !leaf.folder && !leaf.red && leaf.caption == kNoText) {
            Put(tree_.ShortName(node));
            buffer_ += lineEnd_;
            return;
        }
        name_.clear();
        tree_.AppendNodeText(name_, node);
        Put(name_);
        buffer_ += lineEnd_;
    }

    // The node's text in front of its first colon, which in the text of most leaves is the short name.
    void PutNodeName(std::uint32_t node)
    {
        const NodeRecord& leaf = record(node);
        if (!leaf.folder && !leaf.ownCaption && !leaf.red) return Put(tree_.ShortName(node));
        name_.clear();
        tree_.AppendNodeText(name_, node);
        const auto colon = name_.find(':');
        Put(std::string_view(name_).substr(0, colon == 0 ? std::string::npos : colon));
    }

    void PutLine(std::string_view line, bool marked)
    {
        if (!marked) return Put(line);
        line_.clear();
        AppendWithoutMarkup(line_, line);
        Put(line_);
    }

    void Flush()
    {
        if (!result_.output) result_.output = sink_.Write(buffer_.Text());
        result_.bytes += buffer_.Size();
        buffer_.Clear();
        document_.host_.KeepAlive();
    }

    const NodeRecord& record(std::uint32_t node) const { return tree_.Nodes()[node]; }

    Document& document_;
    const StructureTree& tree_;
    DumpSink& sink_;
    bool system_;
    std::string_view lineEnd_;
    TextBuffer buffer_{2 * kBufferSize};
    std::string separator_, head_, prefix_, body_, name_, line_, converted_;
    std::uint32_t headDepth_ = 0;  // the depth that head_ is made for
    DumpResult result_;
    bool opened_ = false;
};

DumpResult Document::WriteDump(DumpSink& sink, DumpEncoding encoding)
{
    host_.OperationStarts(tree_->Nodes().Size());
    const DumpResult result = DumpWriter(*this, sink, encoding).Write();
    host_.OperationEnds();
    return result;
}

void Document::SaveDump(const std::string& strSaveName)
{
    const Labels interface(settings_.InterfaceLanguage());
    DumpFile file;
    DumpResult result;
    result.output = file.Create(strSaveName);
    if (!result.output) result = WriteDump(file, DumpEncoding::SystemPage);
    // What was written up to here stays, also of a dump that was stopped or has failed.
    if (const auto failure = file.Commit(); !result.output) result.output = failure;
    if (result.output || result.input) {
        const FileFailure& failure = result.output ? result.output : result.input;
        std::string number,
            text(interface[U("An error occured while creating the export file:\r\nError: %1\r\nFile: %2")]);
        AppendNumber(number, std::int64_t{failure.number});
        number += ", ";
        number += failure.description;
        ChangeString(text, "%1", number);
        ChangeString(text, "%2", result.output ? strSaveName : clsAFP_.Reader().File());
        bolOperationInterupted_ = true;
        host_.MessageBox(BoxIcon::Stop, "Stop", text);
    } else if (!result.cancelled) {
        std::string text(interface[U("Dump has been saved as %1!")]);
        ChangeString(text, "%1", strSaveName);
        host_.MessageBox(BoxIcon::Information, "Information", text);
    }
}

}  // namespace folioscope
