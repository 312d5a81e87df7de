#pragma once

#include <QByteArrayView>
#include <QIcon>

namespace folioscope {

// Makes the icons of this library known to the program. Before the first of the calls below.
void InitResources();

// Icons follow the palette: each is painted in the tones for the ground that it stands on at that moment, sharp at any
// scale, and faint where its action is disabled. A name or number without an icon gives a null one.

QIcon ToolbarIcon(QByteArrayView name);  // "open", "find_next"
QIcon TreeIcon(int image);               // an image of the structure tree, 0 to 11
QIcon ProgramIcon();                     // of the windows and the task bar

}  // namespace folioscope
