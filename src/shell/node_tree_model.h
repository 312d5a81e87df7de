#pragma once

#include <QAbstractItemModel>

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "document/structure_tree.h"
#include "shell/node_icons.h"

namespace folioscope {

// A tree of a document for the views of the toolkit. The internal id of an index is the node's number. The children of
// a folder are listed when they are first asked for, in slices, so that memory grows with what was looked at.
class NodeTreeModel final : public QAbstractItemModel {
    Q_OBJECT

public:
    enum Roles { kNodeNumber = Qt::UserRole, kTaggedText, kRed };

    explicit NodeTreeModel(NodeIcons icons = {}, QObject* parent = nullptr);

    // The tree must outlive its use here; none: an empty model.
    void SetTree(const StructureTree* tree);
    // After nodes were added: what was listed to its end grows, and texts that may have turned red are read again.
    void Refresh();

    std::uint32_t NodeOf(const QModelIndex& index) const { return static_cast<std::uint32_t>(index.internalId()); }
    // Lists what leads to the node. Not valid for a node that there isn't.
    QModelIndex IndexOf(std::uint32_t node);

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    using Children = std::vector<std::uint32_t>;

    const Children* Listed(std::uint32_t folder) const;
    std::uint32_t FirstUnlisted(std::uint32_t folder) const;
    void List(std::uint32_t folder, std::uint32_t upTo, std::size_t atMost);
    QModelIndex ListedIndex(std::uint32_t node) const;

    const StructureTree* tree_ = nullptr;
    NodeIcons icons_;
    bool hasRoot_ = false;
    std::unordered_map<std::uint32_t, Children> children_;  // by folder, ascending
    std::vector<std::uint32_t> growing_;  // folders that were listed to their end while the run was in them
};

}  // namespace folioscope
