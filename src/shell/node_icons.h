#pragma once

#include <QIcon>

#include <cstdint>
#include <functional>

#include "document/node_store.h"

namespace folioscope {

// The picture of an image index of the tree: 0 a closed folder, 1 an open one, 2 a leaf, 4 to 11 folders of a kind.
using NodeIcons = std::function<QIcon(int)>;

constexpr int kNodeImages = 12;

// Of the folders only the plain ones look different when they are open.
inline int ImageOf(const NodeRecord& node, bool expanded) { return node.image == 0 && expanded ? 1 : node.image; }

}  // namespace folioscope
