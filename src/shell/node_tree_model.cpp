#include "shell/node_tree_model.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "shell/tagged_text.h"

namespace folioscope {

namespace {

constexpr std::size_t kSlice = 4096;  // children that are handed on at a time
constexpr std::uint32_t kRoot = NodeStore::kRoot;

}  // namespace

NodeTreeModel::NodeTreeModel(NodeIcons icons, QObject* parent) : QAbstractItemModel(parent), icons_(std::move(icons)) {}

void NodeTreeModel::SetTree(const StructureTree* tree)
{
    beginResetModel();
    tree_ = tree;
    hasRoot_ = tree != nullptr && tree->Nodes().Size() > kRoot;
    children_.clear();
    growing_.clear();
    endResetModel();
}

void NodeTreeModel::Refresh()
{
    if (tree_ == nullptr) return;
    if (!hasRoot_ && tree_->Nodes().Size() > kRoot) {
        beginInsertRows({}, 0, 0);
        hasRoot_ = true;
        endInsertRows();
    }
    const auto growing = std::exchange(growing_, {});
    for (const std::uint32_t folder : growing) {
        const QModelIndex index = ListedIndex(folder);
        Q_EMIT dataChanged(index, index);
        if (const Children* listed = Listed(folder); listed != nullptr && !listed->empty()) {
            const QModelIndex last = ListedIndex(listed->back());
            Q_EMIT dataChanged(last, last);
        }
        List(folder, std::numeric_limits<std::uint32_t>::max(), kSlice);
    }
}

const NodeTreeModel::Children* NodeTreeModel::Listed(std::uint32_t folder) const
{
    const auto found = children_.find(folder);
    return found == children_.end() ? nullptr : &found->second;
}

// The first child that isn't listed, or the folder's end.
std::uint32_t NodeTreeModel::FirstUnlisted(std::uint32_t folder) const
{
    const Children* listed = Listed(folder);
    return listed == nullptr || listed->empty() ? folder + 1 : tree_->Nodes().End(listed->back());
}

// Lists children up to the one that holds `upTo`, but no more than `atMost`.
void NodeTreeModel::List(std::uint32_t folder, std::uint32_t upTo, std::size_t atMost)
{
    const NodeStore& nodes = tree_->Nodes();
    const std::uint32_t end = nodes.End(folder);
    Children more;
    std::uint32_t child = FirstUnlisted(folder);
    for (; child < end && child <= upTo && more.size() < atMost; child = nodes.End(child)) more.push_back(child);
    if (nodes[folder].end == 0 && child >= end && std::find(growing_.begin(), growing_.end(), folder) == growing_.end())
        growing_.push_back(folder);
    if (more.empty()) return;
    const std::size_t before = children_[folder].size();
    beginInsertRows(ListedIndex(folder), static_cast<int>(before), static_cast<int>(before + more.size()) - 1);
    Children& listed = children_[folder];
    listed.insert(listed.end(), more.begin(), more.end());
    endInsertRows();
}

QModelIndex NodeTreeModel::ListedIndex(std::uint32_t node) const
{
    if (tree_ == nullptr || node < kRoot) return {};
    if (node == kRoot) return hasRoot_ ? createIndex(0, 0, quintptr{kRoot}) : QModelIndex();
    const Children* listed = Listed(tree_->Nodes()[node].parent);
    if (listed == nullptr) return {};
    const auto at = std::lower_bound(listed->begin(), listed->end(), node);
    if (at == listed->end() || *at != node) return {};
    return createIndex(static_cast<int>(at - listed->begin()), 0, quintptr{node});
}

QModelIndex NodeTreeModel::IndexOf(std::uint32_t node)
{
    if (!hasRoot_ || node < kRoot || node >= tree_->Nodes().Size()) return {};
    std::vector<std::uint32_t> way;
    for (std::uint32_t at = node; at != kRoot; at = tree_->Nodes()[at].parent) way.push_back(at);
    for (; !way.empty(); way.pop_back())
        List(tree_->Nodes()[way.back()].parent, way.back(), std::numeric_limits<std::size_t>::max());
    return ListedIndex(node);
}

QModelIndex NodeTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent)) return {};
    if (!parent.isValid()) return createIndex(0, 0, quintptr{kRoot});
    return createIndex(row, 0, quintptr{(*Listed(NodeOf(parent)))[static_cast<std::size_t>(row)]});
}

QModelIndex NodeTreeModel::parent(const QModelIndex& child) const
{
    return child.isValid() ? ListedIndex(tree_->Nodes()[NodeOf(child)].parent) : QModelIndex();
}

int NodeTreeModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid()) return hasRoot_ ? 1 : 0;
    const Children* listed = Listed(NodeOf(parent));
    return listed == nullptr ? 0 : static_cast<int>(listed->size());
}

int NodeTreeModel::columnCount(const QModelIndex& /*parent*/) const { return 1; }

bool NodeTreeModel::hasChildren(const QModelIndex& parent) const
{
    return parent.isValid() ? tree_->Nodes().HasChildren(NodeOf(parent)) : hasRoot_;
}

bool NodeTreeModel::canFetchMore(const QModelIndex& parent) const
{
    return parent.isValid() && FirstUnlisted(NodeOf(parent)) < tree_->Nodes().End(NodeOf(parent));
}

void NodeTreeModel::fetchMore(const QModelIndex& parent)
{
    if (parent.isValid()) List(NodeOf(parent), std::numeric_limits<std::uint32_t>::max(), kSlice);
}

QVariant NodeTreeModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) return {};
    const std::uint32_t node = NodeOf(index);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole: return PlainNodeText(tree_->NodeText(node));
    case Qt::DecorationRole: return icons_ ? icons_(ImageOf(tree_->Nodes()[node], false)) : QIcon();
    case kNodeNumber: return node;
    case kTaggedText: return QString::fromStdString(tree_->NodeText(node));
    case kRed: return static_cast<bool>(tree_->Nodes()[node].red);
    default: return {};
    }
}

Qt::ItemFlags NodeTreeModel::flags(const QModelIndex& index) const
{
    if (!index.isValid()) return Qt::NoItemFlags;
    const Qt::ItemFlags bare = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    return tree_->Nodes()[NodeOf(index)].folder ? bare : bare | Qt::ItemNeverHasChildren;
}

QHash<int, QByteArray> NodeTreeModel::roleNames() const
{
    auto names = QAbstractItemModel::roleNames();
    names.insert({{kNodeNumber, "nodeNumber"}, {kTaggedText, "taggedText"}, {kRed, "red"}});
    return names;
}

}  // namespace folioscope
