#pragma once

namespace folioscope {

class FlyTree;

// What a screen reader gets to know of a FlyTree: a tree whose children are the rows in view order.
void InstallAccessibleFlyTree();

void ForgetAccessibleRows(FlyTree& tree);

}  // namespace folioscope
