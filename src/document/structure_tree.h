#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "analysis/render/node_sink.h"
#include "base/labels.h"
#include "base/settings.h"
#include "document/messages.h"
#include "document/node_store.h"
#include "document/text_store.h"
#include "stream/record_reader.h"

namespace folioscope {

// Hears what the tree finds that concerns the whole document.
class TreeListener {
public:
    virtual ~TreeListener() = default;
    virtual void PageCounted(std::int32_t /*lngPageCount*/) {}
    virtual void PreviewOffered() {}
};

// The tree of a document: every record a leaf, every Begin and End pair a folder, the file itself the root. The tree
// is the stack of the pairing, so no names of open structures are kept.
class StructureTree final : public NodeSink {
public:
    StructureTree(const Settings& settings, Labels analysisLabels, Labels interfaceLabels, MessageList& messages,
                  TreeListener& listener);

    // Building ----------------------------------------------------------------------------------------------------

    void AddRoot(std::string_view fileName, std::string_view strContent);
    // The nodes of a record by its status: a leaf, for a Begin a folder and a leaf in it. False: none for this status.
    bool AddNodes(Status status, std::size_t field);
    // Keeps the text of the current leaf. `head`: the three head lines precede it.
    void StoreNodeRecord(std::string_view body, bool head, std::int32_t lngStart, std::int32_t lngLength);
    // The current leaf came to the same as another one before it.
    void StoreRepeated(const NodeRecord& like, std::int32_t lngStart);
    // A text that a record left for the second node of its folder, of whatever kind that is. It follows the body of
    // that node. One that has got 65,536 bytes in this way gets no more.
    void AppendDeferred(std::string_view text);
    // Behind an End: the folder that it closes is the current node, and its parent the folder for what follows.
    void CloseFolder(Status status);
    // The records that are rendered now belong to this node; `heard`: their faults are new.
    void Revisit(std::uint32_t node, bool heard);
    // Whom the next rendering concerns. Building goes on from where it was when this is set back behind a visit.
    struct Turn {
        std::uint32_t node = 0;
        Status status = kNothing;
        bool heard = true;
    };
    Turn CurrentTurn() const { return {nodCurrent_, status_, heard_}; }
    void GoBackTo(const Turn& turn);

    void SetNodeText(std::string_view shortName) override;
    void ShowResName(std::string_view name) override;
    void SetUnread() override;
    void MarkNodeInvalid() override;
    void AddContentMessage(std::string_view description) override;

    // Reading -----------------------------------------------------------------------------------------------------

    NodeStore& Nodes() { return nodes_; }
    const NodeStore& Nodes() const { return nodes_; }
    std::uint32_t Current() const { return nodCurrent_; }
    // The node's text with its tags: <b>, <color=...>.
    void AppendNodeText(std::string& out, std::uint32_t node) const;
    std::string NodeText(std::uint32_t node) const;
    // The body of the stored text, which may be a line made of the node's name: appended to `out`.
    void AppendBody(std::string& out, std::uint32_t node) const;
    // Label and value of that line, if the node's record says that it is one (nameLine).
    std::pair<std::string_view, std::string_view> NameLine(std::uint32_t node) const;
    // The short name of the leaf's field, empty for one that isn't known.
    std::string_view ShortName(std::uint32_t node) const;

    Status CurrentStatus() const { return status_; }
    std::uint64_t Faults() const { return faults_; }  // how often a fault was told or marked
    std::int32_t PageCount() const { return lngPageCount_; }
    const std::deque<std::uint32_t>& PageEnds() const { return lngPageEnds_; }  // the leaves of the EPG records

private:
    void OpenFolder(std::size_t field);
    void OfferPreview();
    void CheckPair(std::string_view shortName);
    void AppendName(std::uint32_t node, std::string_view name);
    void AppendOwnBody(std::string& out, std::uint32_t node) const;
    void Mark(std::uint32_t node);
    void AppendTags(std::string& out, bool red) const;

    const Settings& settings_;
    Labels analysisLabels_, interfaceLabels_;
    MessageList& messages_;
    TreeListener& listener_;
    NodeStore nodes_;
    TextStore texts_;
    std::string folderColorTag_;
    std::string line_;  // scratch
    std::uint32_t nodCurrent_ = 0, nodParent_ = 0;
    Status status_ = kNothing;
    bool heard_ = true;
    std::uint64_t faults_ = 0;
    bool bolInResourceGroup_ = false, bolPreviewEnabled_ = false;
    std::int32_t lngPageCount_ = 0;
    std::deque<std::uint32_t> lngPageEnds_;

    // Texts that records left for other nodes, in their order.
    struct DeferredTexts {
        std::vector<TextPlace> places;
        std::size_t bytes = 0;
    };
    std::unordered_map<std::uint32_t, DeferredTexts> deferredTexts_;
};

// The text as a window shows it: without its leading tags.
std::string_view WithoutTags(std::string_view nodeText);

}  // namespace folioscope
