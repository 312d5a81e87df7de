// What a node shows: the text that the run kept, and bodies that are read from the file when somebody asks.

#include "analysis/decode/dispatch.h"
#include "document/document.h"

namespace folioscope {

namespace {

constexpr std::size_t kMostBodyBytes = 16u << 20;

}  // namespace

// In a run the reader is on its way through the file, so that another one reads bodies, which costs no more memory than
// it reads. The run's own one does when the run is over.
clsAFPFunctions& Document::BodyReader()
{
    if (!bolProcessing_) return clsAFP_;
    if (!bodyReader_) {
        bodyReader_ = std::make_unique<clsAFPFunctions>();
        bodyReader_->CarryOverBytes = clsAFP_.CarryOverBytes;
    }
    bodyReader_->FollowWalk(clsAFP_);
    return *bodyReader_;
}

// Bodies that were read in the run were made with the units and the fonts of that moment. From now on those count that
// the run ended with, whenever somebody looked, but a body passes what the one read before it has left over.
void Document::ForgetBodiesOfRun()
{
    if (!bodyReader_) return;
    clsAFP_.CarryOverBytes = bodyReader_->CarryOverBytes;
    bodyReader_.reset();
    bodies_.clear();
    bodyOrder_.clear();
    bodyBytes_ = 0;
}

FileFailure Document::RedirectOpenAFPFileRandom() { return BodyReader().OpenAFPFileRandom(); }

void Document::RedirectCloseAFPFile() { BodyReader().CloseAFPFile(); }

std::int32_t Document::GetNodeContents_lngStart(std::uint32_t lngNodeCode) const
{
    const NodeRecord& node = tree_->Nodes()[lngNodeCode];
    return node.folder ? 0 : node.lngStart;
}

std::int32_t Document::GetNodeContents_lngLength(std::uint32_t lngNodeCode) const
{
    return tree_->Nodes()[lngNodeCode].lngLength;
}

bool Document::GetNodeContents_bolUnread(std::uint32_t lngNodeCode) const
{
    return tree_->Nodes()[lngNodeCode].bolUnread;
}

// A body that is made again begins where it began at first, and leaves what is carried over as it is.
void Document::AnalyzeBody(clsAFPFunctions& afp, std::uint32_t node)
{
    std::int32_t& carried = afp.CarryOverBytes;
    if (tree_->Nodes()[node].bolUnread) {
        if (carried != 0) carriedInto_.emplace(node, carried);
        return afp.AnalyzeSpecificRecord();
    }
    const std::int32_t now = carried;
    const auto found = carriedInto_.find(node);
    carried = found != carriedInto_.end() ? found->second : 0;
    afp.AnalyzeSpecificRecord();
    carried = now;
}

// Reads the record again and makes its text, behind what the run kept of it. Its faults count the first time only. A
// run that goes on finds everything as it was.
FileFailure Document::ReadBody(std::uint32_t node, std::string& body)
{
    const NodeRecord& record = tree_->Nodes()[node];
    clsAFPFunctions& afp = BodyReader();
    afp.List().ClearCollections();
    if (const auto failure = afp.SetNextRecord(record.lngStart)) return failure;
    const UnitState units = renderer_->units;
    const LineState lines = renderer_->lines;
    const OrientationMapping orientation = renderer_->orientation;
    const StructureTree::Turn turn = tree_->CurrentTurn();
    AnalyzeBody(afp, node);
    tree_->Revisit(node, record.bolUnread);
    tree_->Nodes()[node].bolUnread = false;
    RenderBody(afp.List(), node, body);
    if (!bolProcessing_) return {};
    renderer_->units = units;
    renderer_->lines = lines;
    renderer_->orientation = orientation;
    tree_->GoBackTo(turn);
    return {};
}

void Document::RenderBody(const ElementList& elements, std::uint32_t node, std::string& body)
{
    const NodeRecord& record = tree_->Nodes()[node];
    body.clear();
    tree_->AppendBody(body, node);
    if (elements.Elements().empty()) return;
    PropertyText& text = renderer_->text;
    renderer_->IndentText.clear();
    renderer_->nodeText = Fields()[record.field].NodeText;
    text.Clear();
    text.Pass(renderer_->HeadLinesLength(Fields()[record.field].SFName, record.lngStart, record.lngLength));
    text.Append(body);
    renderer_->RenderStructuredField(elements);
    body = text.Text().substr(0, text.Text().find_last_not_of(' ') + 1);
}

void Document::KeepBody(std::uint32_t node, const std::string& body)
{
    if (!bodies_.emplace(node, body).second) return;
    bodyOrder_.push_back(node);
    bodyBytes_ += body.size();
    while (bodyBytes_ > kMostBodyBytes && bodyOrder_.size() > 1) {
        const auto oldest = bodies_.find(bodyOrder_.front());
        bodyBytes_ -= oldest->second.size();
        bodies_.erase(oldest);
        bodyOrder_.pop_front();
    }
}

FileFailure Document::LookupMissingData(std::uint32_t lngNodeCode)
{
    std::string body;
    if (const auto failure = ReadBody(lngNodeCode, body)) return failure;
    KeepBody(lngNodeCode, body);
    return {};
}

std::string Document::GetNodeContents_strContent(std::uint32_t lngNodeCode)
{
    std::string content;
    AppendContent(content, lngNodeCode);
    return content;
}

void Document::AppendContent(std::string& out, std::uint32_t lngNodeCode)
{
    const NodeRecord& node = tree_->Nodes()[lngNodeCode];
    if (node.head) renderer_->AppendHeadLines(out, Fields()[node.field].SFName, node.lngStart, node.lngLength);
    if (!node.deferred || node.bolUnread) return tree_->AppendBody(out, lngNodeCode);
    if (const auto kept = bodies_.find(lngNodeCode); kept != bodies_.end()) {
        out += kept->second;
        return;
    }
    std::string body;
    const bool opened = !BodyReader().Reader().IsOpen();
    if (opened && RedirectOpenAFPFileRandom()) return;
    if (!ReadBody(lngNodeCode, body)) KeepBody(lngNodeCode, body);
    if (opened) RedirectCloseAFPFile();
    out += body;
}

}  // namespace folioscope
