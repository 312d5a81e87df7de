#include "document/structure_tree.h"

#include <array>

#include "analysis/decode/dispatch.h"
#include "analysis/render/property_text.h"
#include "base/numbers.h"
#include "base/text.h"

namespace folioscope {

namespace {

constexpr std::string_view kRedTag = "<color=clred>";
constexpr std::string_view kBoldTag = "<b>";
constexpr std::string_view kPageTitle = "Page ";

enum class Place : std::uint8_t { Own, Parent };
enum class Preview : std::uint8_t { No, Always, OutsideResources };

struct FolderRow {
    std::string_view begin, title;
    std::uint8_t image = 0;
    Place place = Place::Own;
    Preview preview = Preview::No;
};

// Folders of the Begin fields. These titles are the same in every language.
// clang-format off
constexpr FolderRow kFolders[] = {
    {"BAG", "Active Env. Group"},
    {"BBC", "Bar Code Data"},
    {"BCA", "Color Table Data"},
    {"BCF", "Coded Font",                 7,  Place::Parent},
    {"BCP", "Code Page",                  7,  Place::Parent},
    {"BDG", "Document Env. Group"},
    {"BDI", "Document Index",             4},
    {"BDM", "Data Map"},
    {"BDX", "Data Map Transm. Subcase"},
    {"BDT", "Document",                   10},
    {"BFG", "Form Env. Group"},
    {"BFM", "Form Definition"},
    {"BFN", "Character Set",              7,  Place::Parent},
    {"BGR", "GOCA Graphics Data"},
    {"BII", "IM Image Data"},
    {"BIM", "IOCA Image Data"},
    {"BMM", "Medium Map"},
    {"BMO", "Overlay",                    8,  Place::Parent, Preview::OutsideResources},
    {"BNG", "Named Group",                11},
    {"BOC", "Object Container"},
    {"BOG", "Object Env. Group"},
    {"BPF", "Print File"},
    {"BPG", kPageTitle,                   11, Place::Own,    Preview::Always},
    {"BPM", "Page Definition"},
    {"BPS", "Page Segment",               9,  Place::Parent, Preview::OutsideResources},
    {"BPT", "Presentation Text"},
    {"BRS", "Resource",                   6},
    {"BRG", "Resource Group",             5},
    {"BSG", "Resource Environment Group"},
};

constexpr std::string_view kNamedFolders[] = {"BRS", "BMM", "BDM", "BPG", "BNG"};
constexpr std::string_view kInvokeInclude[] = {"IMM", "IOB", "IPG", "IPO", "IPS"};
constexpr std::string_view kContents[] = {"NOP", "TLE"};
// clang-format on

constexpr std::uint8_t kLeafImage = 2;

// What the tree needs to know of a field, so that no record is looked up by its name.
struct TreeField {
    const FolderRow* folder = nullptr;
    bool begin = false, end = false;
    bool page = false, pageEnd = false, document = false, resourceGroup = false;
    bool namesFolder = false, invokesOrIncludes = false, content = false;
};

template <std::size_t N> bool IsOneOf(std::string_view name, const std::string_view (&names)[N])
{
    for (const auto other : names)
        if (name == other) return true;
    return false;
}

// One row a field, and one of nothing for a field that isn't known.
const TreeField& FieldInTree(std::size_t field)
{
    static const auto table = [] {
        std::array<TreeField, kFieldCount + 1> rows;
        for (std::size_t i = 0; i < kFieldCount; ++i) {
            const std::string_view name = Fields()[i].NodeText;
            TreeField& row = rows[i];
            for (const FolderRow& folder : kFolders)
                if (folder.begin == name) row.folder = &folder;
            row.begin = Fields()[i].id >> 8 == kBeginCategory;
            row.end = Fields()[i].id >> 8 == kEndCategory;
            row.page = name == "BPG";
            row.pageEnd = name == "EPG";
            row.document = name == "BDT";
            row.resourceGroup = name == "BRG";
            row.namesFolder = IsOneOf(name, kNamedFolders);
            row.invokesOrIncludes = IsOneOf(name, kInvokeInclude);
            row.content = IsOneOf(name, kContents);
        }
        return rows;
    }();
    return table[field];
}

// 0xBBGGRR as RRGGBB.
std::string ColorTag(std::int32_t color)
{
    std::string tag = "<color=#";
    for (const int shift : {0, 8, 16}) AppendHex(tag, static_cast<std::uint32_t>(color) >> shift & 0xFF, 2);
    return tag += '>';
}

}  // namespace

std::string_view WithoutTags(std::string_view text)
{
    while (text.starts_with('<')) {
        const auto end = text.find('>');
        if (end == std::string_view::npos || !(text.starts_with(kBoldTag) || text.starts_with("<color="))) break;
        text.remove_prefix(end + 1);
    }
    return text;
}

StructureTree::StructureTree(const Settings& settings, Labels analysisLabels, Labels interfaceLabels,
                             MessageList& messages, TreeListener& listener)
    : settings_(settings), analysisLabels_(analysisLabels), interfaceLabels_(interfaceLabels), messages_(messages),
      listener_(listener), folderColorTag_(ColorTag(settings.FolderColor))
{
}

void StructureTree::AddRoot(std::string_view fileName, std::string_view strContent)
{
    nodCurrent_ = nodParent_ = nodes_.Add(0, true);
    NodeRecord& root = nodes_[nodCurrent_];
    root.ownCaption = true;
    root.caption = texts_.Keep(fileName);
    root.content = texts_.Keep(strContent);
}

bool StructureTree::AddNodes(Status status, std::size_t field)
{
    status_ = status;
    heard_ = true;
    const int kind = status & ~1;  // the low bit says segmented
    if (kind != kRecord && kind != kBegin && kind != kEnd) return false;
    if (kind == kBegin) nodParent_ = nodes_.Add(nodParent_, true);
    nodCurrent_ = nodes_.Add(nodParent_, false);
    nodes_[nodCurrent_].field = static_cast<std::uint8_t>(field);
    nodes_[nodCurrent_].image = kLeafImage;
    return true;
}

void StructureTree::StoreNodeRecord(std::string_view body, bool head, std::int32_t lngStart, std::int32_t lngLength)
{
    body = head ? body.substr(0, body.find_last_not_of(' ') + 1) : TrimBlanks(body);
    NodeRecord& node = nodes_[nodCurrent_];
    node.lngStart = lngStart;
    node.lngLength = static_cast<std::uint16_t>(lngLength);
    node.head = head;
    if (node.caption != kNoText && !node.ownCaption) {
        // A name stands in the caption already; its line is made of it.
        node.nameLine = true;
        line_.clear();
        AppendBody(line_, nodCurrent_);
        if (line_ == body) return;
        node.nameLine = false;
    }
    node.content = texts_.Keep(body);
}

void StructureTree::StoreRepeated(const NodeRecord& like, std::int32_t lngStart)
{
    NodeRecord& node = nodes_[nodCurrent_];
    const std::uint32_t parent = node.parent, end = node.end;
    node = like;
    node.parent = parent;
    node.end = end;
    node.lngStart = lngStart;
}

// Ends that close nothing can leave any number of texts for one node, so they are kept side by side and are limited.
void StructureTree::AppendDeferred(std::string_view text)
{
    text = TrimBlanks(text);
    const std::uint32_t first = nodParent_ + 1;
    if (text.empty() || first >= nodes_.Size()) return;
    const std::uint32_t second = nodes_.End(first);
    if (second >= nodes_.Size()) return;
    DeferredTexts& texts = deferredTexts_[second];
    if (texts.bytes >= PropertyText::kCapacity) return;
    nodes_[second].described = true;
    texts.places.push_back(texts_.Keep(text));
    texts.bytes += text.size();
}

void StructureTree::CloseFolder(Status status)
{
    if (status != kEnd || nodParent_ == NodeStore::kRoot) return;
    nodes_.Close(nodParent_);
    nodCurrent_ = nodParent_;
    nodParent_ = nodes_[nodParent_].parent;
}

void StructureTree::Revisit(std::uint32_t node, bool heard)
{
    nodCurrent_ = node;
    status_ = kRecord;
    heard_ = heard;
}

void StructureTree::GoBackTo(const Turn& turn)
{
    nodCurrent_ = turn.node;
    status_ = turn.status;
    heard_ = turn.heard;
}

void StructureTree::SetNodeText(std::string_view shortName)
{
    const std::size_t field = nodes_[nodCurrent_].field;
    const TreeField& row = FieldInTree(field);
    if (row.begin && status_ == kBegin) OpenFolder(field);
    if (!row.end) return;
    if (row.pageEnd && status_ == kEnd) lngPageEnds_.push_back(nodCurrent_);
    CheckPair(shortName);
}

void StructureTree::OpenFolder(std::size_t field)
{
    const TreeField& row = FieldInTree(field);
    NodeRecord& folder = nodes_[nodParent_];
    folder.titled = true;
    folder.field = static_cast<std::uint8_t>(field);
    const FolderRow& title = *row.folder;
    if (title.image != 0) (title.place == Place::Own ? folder : nodes_[folder.parent]).image = title.image;
    if (row.document) bolInResourceGroup_ = false;
    if (row.resourceGroup) bolInResourceGroup_ = true;
    if (row.page) folder.lngStart = ++lngPageCount_;
    if (title.preview == Preview::Always || (title.preview == Preview::OutsideResources && !bolInResourceGroup_))
        OfferPreview();
    if (row.page) listener_.PageCounted(lngPageCount_);
}

void StructureTree::OfferPreview()
{
    if (bolPreviewEnabled_) return;
    bolPreviewEnabled_ = true;
    listener_.PreviewOffered();
}

// An End belongs to the Begin that is the first child of its folder, whose text is compared behind its first letter.
void StructureTree::CheckPair(std::string_view shortName)
{
    const std::uint32_t first = nodes_[nodCurrent_].parent + 1;
    std::string own;
    std::string_view begin = ShortName(first);
    if (nodes_[first].folder || nodes_[first].ownCaption) {
        AppendNodeText(own, first);
        begin = own;
        if (begin.starts_with('<')) begin.remove_prefix(begin.find('>') + 1);
    }
    begin = begin.substr(0, shortName.size());
    if (begin.size() == shortName.size() && begin.substr(1) == shortName.substr(1)) return;
    std::string message(
        interfaceLabels_[U("Structured Field %1 does not match to a corresponding Begin Structured Field!")]);
    ChangeString(message, "%1", shortName);
    messages_.addMessage(MessageSource::Structure, MessageSeverity::Error, message, true);
    MarkNodeInvalid();
}

void StructureTree::ShowResName(std::string_view name)
{
    const TreeField& row = FieldInTree(nodes_[nodCurrent_].field);
    if ((row.begin || row.end) && settings_.ShowBESF == 1) {
        AppendName(nodCurrent_, TrimBlanks(name));
        if (row.namesFolder) AppendName(nodes_[nodCurrent_].parent, TrimBlanks(name));
    } else if (row.invokesOrIncludes && settings_.ShowIISF == 1) {
        AppendName(nodCurrent_, TrimBlanks(name));
    } else if (row.content && settings_.ShowNOP == 1) {
        AppendName(nodCurrent_, name);
    }
}

// A name that the marking in red could take for the end of a tag, and a second name, make the text the node's own.
void StructureTree::AppendName(std::uint32_t node, std::string_view name)
{
    NodeRecord& record = nodes_[node];
    if (record.caption == kNoText && !record.ownCaption && !name.empty() && name.find('>') == std::string_view::npos) {
        record.caption = texts_.Keep(name);
        return;
    }
    std::string text = NodeText(node);
    text += ": ";
    text += name;
    record.ownCaption = true;
    record.caption = texts_.Keep(text);
}

void StructureTree::SetUnread() { nodes_[nodCurrent_].bolUnread = nodes_[nodCurrent_].deferred = true; }

// Ancestors of a red node are red, so that a path is climbed once.
void StructureTree::MarkNodeInvalid()
{
    if (!heard_) return;
    ++faults_;
    for (std::uint32_t node = nodCurrent_; node != 0 && !nodes_[node].red; node = nodes_[node].parent) Mark(node);
}

void StructureTree::Mark(std::uint32_t node)
{
    NodeRecord& record = nodes_[node];
    record.red = true;
    if (!record.ownCaption) return;
    const std::string_view old = texts_.At(record.caption);
    std::string text(kRedTag);
    text += old.substr(old.find('>') + 1);
    record.caption = texts_.Keep(text);
}

void StructureTree::AddContentMessage(std::string_view description)
{
    if (heard_) messages_.addMessage(MessageSource::Content, MessageSeverity::Error, description, true);
}

// A red node's tag stands in the place of its first tag.
void StructureTree::AppendTags(std::string& out, bool red) const
{
    if (red) out += kRedTag;
    if (settings_.FolderColored == 1 && !red) out += folderColorTag_;
    if (settings_.FolderBold == 1 && (settings_.FolderColored == 1 || !red)) out += kBoldTag;
}

void StructureTree::AppendNodeText(std::string& out, std::uint32_t node) const
{
    const NodeRecord& record = nodes_[node];
    const std::string_view name = texts_.At(record.caption);
    if (record.ownCaption) {
        out += name;
        return;
    }
    if (record.folder && record.titled) {
        AppendTags(out, record.red);
        out += FieldInTree(record.field).folder->title;
        if (FieldInTree(record.field).page) AppendNumber(out, std::int64_t{record.lngStart});
    } else if (record.red) {
        out += kRedTag;
    }
    if (!record.folder) out += ShortName(node);
    if (name.empty()) return;
    out += ": ";
    out += name;
}

std::string StructureTree::NodeText(std::uint32_t node) const
{
    std::string text;
    AppendNodeText(text, node);
    return text;
}

std::string_view StructureTree::ShortName(std::uint32_t node) const
{
    const std::size_t field = nodes_[node].field;
    return nodes_[node].folder || field >= kFieldCount ? std::string_view() : Fields()[field].NodeText;
}

std::pair<std::string_view, std::string_view> StructureTree::NameLine(std::uint32_t node) const
{
    const NodeRecord& record = nodes_[node];
    return {analysisLabels_[FieldInTree(record.field).content ? L("Content") : L("Name")], texts_.At(record.caption)};
}

void StructureTree::AppendBody(std::string& out, std::uint32_t node) const
{
    AppendOwnBody(out, node);
    if (!nodes_[node].described) return;
    for (const TextPlace place : deferredTexts_.at(node).places) out += texts_.At(place);
}

void StructureTree::AppendOwnBody(std::string& out, std::uint32_t node) const
{
    const NodeRecord& record = nodes_[node];
    if (!record.nameLine) {
        out += texts_.At(record.content);
        return;
    }
    // The two lines differ in the place of the tab.
    const bool content = FieldInTree(record.field).content;
    const auto [label, name] = NameLine(node);
    out += label;
    out += content ? ":\t" : ":";
    out += kBold;
    if (!content) out += '\t';
    out += name;
    out += kNormal;
    out += kCrLf;
}

}  // namespace folioscope
