#pragma once

#include <QList>
#include <QSet>

class QMenu;
class QWidget;

namespace folioscope {

// Gives each button of a window that has no access key, or one that another has already, a key of its own: the first
// letter of a word if it can be.
// The texts must stand; a later text takes the key away.
void GiveAccessKeys(QWidget& window);

// The same for the entries of a menu.
void GiveAccessKeys(QMenu& menu);

// The same for the buttons among some parts of a window. Labels of a control and titles of frames keep the key that
// they have, or get another if it is one of `taken` or a part before has it.
void GiveAccessKeys(const QList<QWidget*>& parts, QSet<QChar> taken);

// The keys that such parts have, in capitals.
QSet<QChar> AccessKeysOf(const QList<QWidget*>& parts);

}  // namespace folioscope
