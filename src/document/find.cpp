// Find: a term in the texts of the nodes, from one node on.

#include "base/text.h"
#include "document/document.h"

namespace folioscope {

namespace {

// Bytes of text from one moment for the window to the next, which is some milliseconds.
constexpr std::size_t kKeepAliveEvery = 512u << 10;
constexpr std::size_t kNodeCounts = 64;  // a node counts as so many bytes besides its text

// The test is on the text with its tags: a node that is marked red begins with one.
bool Accepts(const FindTerm& term, std::string_view nodeText)
{
    if (!term.bolNOPOnly && !term.bolTLEOnly) return true;
    return (term.bolNOPOnly && nodeText.starts_with("NOP")) || (term.bolTLEOnly && nodeText.starts_with("TLE"));
}

}  // namespace

FindResult Document::FindNext(std::uint32_t selected, const FindTerm& term)
{
    FindResult result;
    bolOperationInterupted_ = false;
    result.failure = RedirectOpenAFPFileRandom();
    if (result.failure) {
        result.outcome = FindOutcome::ReadFailed;
        return result;
    }
    host_.OperationStarts(tree_->Nodes().Size());
    result = Search(selected, term);
    RedirectCloseAFPFile();
    host_.OperationEnds();
    if (bolOperationInterupted_ && result.outcome != FindOutcome::ReadFailed) result.outcome = FindOutcome::Cancelled;
    bolOperationInterupted_ = false;
    return result;
}

FindResult Document::Search(std::uint32_t selected, const FindTerm& term)
{
    std::string wanted, text, searched;
    AppendUpperCase(wanted, term.strSearch);
    std::size_t passed = 0;
    FindResult result;
    for (result.node = selected + 1; result.node < tree_->Nodes().Size(); ++result.node) {
        if (bolOperationInterupted_) return result;
        if (passed >= kKeepAliveEvery) {
            passed = 0;
            host_.Progress(result.node);
            host_.KeepAlive();
        }
        if (GetNodeContents_lngLength(result.node) >= 1 && GetNodeContents_bolUnread(result.node)) {
            // Whoever reads a node while the search gives way closes the file behind it.
            if (!clsAFP_.Reader().IsOpen()) result.failure = RedirectOpenAFPFileRandom();
            if (!result.failure) result.failure = LookupMissingData(result.node);
            if (result.failure) {
                result.outcome = FindOutcome::ReadFailed;
                return result;
            }
            host_.Progress(result.node);
            host_.GiveWay();
        }
        text.clear();
        tree_->AppendNodeText(text, result.node);
        passed += text.size() + kNodeCounts;
        if (!Accepts(term, text)) continue;
        text += '/';
        AppendContent(text, result.node);
        searched.clear();
        AppendUpperCase(searched, text);
        passed += searched.size();
        if (searched.find(wanted) == std::string::npos) continue;
        result.outcome = FindOutcome::Found;
        return result;
    }
    result.node = 0;
    return result;
}

}  // namespace folioscope
