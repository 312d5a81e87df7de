#pragma once

#include <cstdint>

namespace folioscope {

class FlyTree;

// What a screen reader gets to know of a FlyTree: a tree whose children are the rows in view order.
void InstallAccessibleFlyTree();

void ForgetAccessibleRows(const FlyTree& tree);
void TellAccessibleFocus(FlyTree& tree);  // on the selected row
void TellAccessibleState(FlyTree& tree, std::uint32_t node);

}  // namespace folioscope
