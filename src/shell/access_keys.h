#pragma once

class QMenu;
class QWidget;

namespace folioscope {

// Gives each button of a window that has no access key, or one that another has already, a key of its own: the first
// letter of a word if it can be.
// The texts must stand; a later text takes the key away.
void GiveAccessKeys(QWidget& window);

// The same for the entries of a menu.
void GiveAccessKeys(QMenu& menu);

}  // namespace folioscope
