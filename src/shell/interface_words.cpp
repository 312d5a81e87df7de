#include "shell/interface_words.h"

#include <QCoreApplication>
#include <QLibraryInfo>

namespace folioscope {

namespace {

QString NameOf(Language language)
{
    switch (language) {
    case Language::German: return QStringLiteral("qtbase_de");
    case Language::French: return QStringLiteral("qtbase_fr");
    default: return {};
    }
}

}  // namespace

void InterfaceWords::Take(Language language)
{
    if (inForce_ == language) return;
    inForce_ = language;
    QCoreApplication::removeTranslator(&translator_);
    const QString name = NameOf(language);
    if (!name.isEmpty() && translator_.load(name, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&translator_);
}

}  // namespace folioscope
