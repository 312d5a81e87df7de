#include "shell/website.h"

#include <QDesktopServices>
#include <QProcess>
#include <QUrl>

namespace folioscope {

namespace {

constexpr std::string_view kBrowserKey = R"(HKEY_CLASSES_ROOT\http\shell\open\command)";

}  // namespace

bool OpenWebsite(const clsSillyFunctions& store, const QString& address)
{
    TaggedValue value;
    store.GetRegistryValue(kBrowserKey, "", value, std::string());
    const auto* const text = std::get_if<std::string>(&value);
    if (text == nullptr || text->empty()) return QDesktopServices::openUrl(QUrl(address));
    QString command = QString::fromStdString(*text);
    if (command.contains("%1"))
        command.replace("%1", address);
    else
        command += ' ' + address;
    QStringList words = QProcess::splitCommand(command);
    if (words.isEmpty()) return false;
    const QString program = words.takeFirst();
    return QProcess::startDetached(program, words);
}

}  // namespace folioscope
