#include "shell/dropped_files.h"

#include <QMimeData>
#include <QUrl>

namespace folioscope {

QStringList LocalFilesOf(const QMimeData& data)
{
    QStringList paths;
    const QList<QUrl> urls = data.urls();
    for (const QUrl& url : urls)
        if (url.isLocalFile()) paths.append(url.toLocalFile());
    return paths;
}

}  // namespace folioscope
