#include "viewers/resource_folders.h"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>

#include "viewers/qt_text.h"
#include "viewers/question.h"

namespace folioscope {

namespace {

constexpr int kLongest = 40;  // characters of a path that is shown whole

QString Shortened(const QString& path, int head, int tail)
{
    if (path.size() <= kLongest) return path;
    return path.left(head) + QLatin1String("...") + path.right(tail);
}

}  // namespace

ResourceFolders::ResourceFolders(QWidget* parent)
    : QGroupBox(parent), lstResources_(new QListWidget), cmdResourcesAdd_(new QPushButton),
      cmdResourcesRemove_(new QPushButton)
{
    lstResources_->setObjectName(QStringLiteral("lstResources"));
    lstResources_->setMinimumWidth(lstResources_->fontMetrics().averageCharWidth() * kLongest);
    cmdResourcesAdd_->setObjectName(QStringLiteral("cmdResourcesAdd"));
    cmdResourcesRemove_->setObjectName(QStringLiteral("cmdResourcesRemove"));

    auto* const buttons = new QVBoxLayout;
    buttons->addWidget(cmdResourcesAdd_);
    buttons->addWidget(cmdResourcesRemove_);
    buttons->addStretch();
    auto* const layout = new QHBoxLayout(this);
    layout->addWidget(lstResources_, 1);
    layout->addLayout(buttons);
    connect(cmdResourcesAdd_, &QPushButton::clicked, this, &ResourceFolders::Add);
    connect(cmdResourcesRemove_, &QPushButton::clicked, this, &ResourceFolders::Remove);
}

void ResourceFolders::SetTexts(const Labels& texts)
{
    texts_ = texts;
    setTitle(ToQt(texts, U("Resource libraries (all types)")));
    lstResources_->setAccessibleName(title());
    cmdResourcesAdd_->setText(ToQt(texts, U("Add")));
    cmdResourcesRemove_->setText(ToQt(texts, U("Remove")));
}

void ResourceFolders::SetPaths(std::vector<std::string> paths)
{
    paths_ = std::move(paths);
    lstResources_->clear();
    for (const std::string& path : paths_) AddItem(Shortened(ToQt(path), 10, 30), ToQt(path));
    lstResources_->setCurrentRow(0);
    cmdResourcesRemove_->setEnabled(!paths_.empty());
}

void ResourceFolders::AddItem(const QString& text, const QString& path)
{
    auto* const item = new QListWidgetItem(text, lstResources_);
    item->setToolTip(path);
    item->setData(Qt::AccessibleTextRole, path);
}

void ResourceFolders::Add()
{
    const QString path = askFolder_ ? askFolder_() : AskFolder();
    if (path.isEmpty()) return;
    paths_.push_back(path.toStdString());
    AddItem(Shortened(path, 20, 20), path);
    lstResources_->setCurrentRow(lstResources_->count() - 1);
    cmdResourcesRemove_->setEnabled(true);
}

void ResourceFolders::Remove()
{
    const int row = lstResources_->currentRow();
    if (row < 0) return;
    if (!(askRemoval_ ? askRemoval_() : AskRemoval())) return;
    paths_.erase(paths_.begin() + row);
    delete lstResources_->takeItem(row);
    cmdResourcesRemove_->setEnabled(!paths_.empty());
}

QString ResourceFolders::AskFolder() { return QFileDialog::getExistingDirectory(this, title()); }

bool ResourceFolders::AskRemoval() { return AskUser(this, texts_, ToQt(texts_, U("Really delete this entry?"))); }

}  // namespace folioscope
