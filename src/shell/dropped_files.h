#pragma once

#include <QStringList>

class QMimeData;

namespace folioscope {

// The paths of the local files among what is dragged, in its order.
QStringList LocalFilesOf(const QMimeData& data);

}  // namespace folioscope
