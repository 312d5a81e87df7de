#pragma once

#include <QGroupBox>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "base/labels.h"

class QListWidget;
class QPushButton;

namespace folioscope {

// The list of folders in which the preview looks for resources. Long paths are shown shortened, and whole as tool tip.
class ResourceFolders final : public QGroupBox {
    Q_OBJECT

public:
    explicit ResourceFolders(QWidget* parent = nullptr);

    void SetTexts(const Labels& texts);
    void SetPaths(std::vector<std::string> paths);
    const std::vector<std::string>& Paths() const { return paths_; }

    // Ask the user in place of the dialogs of the system.
    void SetFolderQuestion(std::function<QString()> ask) { askFolder_ = std::move(ask); }
    void SetRemovalQuestion(std::function<bool()> ask) { askRemoval_ = std::move(ask); }

private:
    void Add();
    void Remove();
    void AddItem(const QString& text, const QString& path);
    QString AskFolder();
    bool AskRemoval();

    QListWidget* lstResources_;
    QPushButton *cmdResourcesAdd_, *cmdResourcesRemove_;
    std::vector<std::string> paths_;  // as they stand in the list files; a path's item has the same place
    Labels texts_{Language::English};
    std::function<QString()> askFolder_;
    std::function<bool()> askRemoval_;
};

}  // namespace folioscope
