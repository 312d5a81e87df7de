#include "shell/help_window.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QShortcut>
#include <QUrl>

#include "shell/help_browser.h"

namespace folioscope {

namespace {

// From the program's folder.
constexpr const char* kFolders[] = {"help", FOLIOSCOPE_INSTALLED_HELP};

const char* FileName(Language language)
{
    switch (language) {
    case Language::German: return "help.de.html";
    case Language::French: return "help.fr.html";
    default: return "help.en.html";
    }
}

}  // namespace

QString HelpFile(Language language) { return HelpFile(language, QCoreApplication::applicationDirPath()); }

QString HelpFile(Language language, const QString& programFolder)
{
    for (const char* const folder : kFolders) {
        const QFileInfo file(programFolder + '/' + folder + '/' + FileName(language));
        if (file.isFile()) return file.canonicalFilePath();
    }
    return {};
}

void ShowHelp(Language language, QWidget* parent)
{
    const QString file = HelpFile(language);
    if (file.isEmpty()) return;
    auto* const browser = new HelpBrowser(parent);
    browser->setWindowFlag(Qt::Window);
    browser->setAttribute(Qt::WA_DeleteOnClose);
    browser->setObjectName("helpWindow");
    browser->setOpenExternalLinks(true);
    browser->setSource(QUrl::fromLocalFile(file));
    browser->setWindowTitle(browser->documentTitle());
    browser->setAccessibleName(browser->documentTitle());
    browser->resize(760, 820);
    QObject::connect(new QShortcut(Qt::Key_Escape, browser), &QShortcut::activated, browser, &QWidget::close);
    browser->show();
}

}  // namespace folioscope
