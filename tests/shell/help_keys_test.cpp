// The keys that the help tells and those of the commands are the same, in each language.

#include <QFile>
#include <QHash>
#include <QKeySequence>
#include <QList>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QXmlStreamReader>

#include <algorithm>
#include <string_view>

#include "base/labels.h"
#include "shell/main_commands.h"

namespace folioscope {
namespace {

struct HelpFile {
    Language language;
    const char* name;
    QHash<QString, QString> keyNames;  // as they stand on a keyboard of the country
};

QList<HelpFile> HelpFiles()
{
    return {{Language::English, "en", {}},
            {Language::German, "de", {{"Ctrl", "Strg"}, {"Shift", "Umschalt"}}},
            {Language::French, "fr", {{"Shift", "Maj"}, {"Esc", "Échap"}}}};
}

struct HelpRow {
    QString place;  // empty: that of the row above
    QStringList keys;
    QString text;
    bool quotes;  // the text is the name of a command
};

void TakeCell(HelpRow& row, int cell, QXmlStreamReader& reader)
{
    while (!(reader.readNext() == QXmlStreamReader::EndElement && reader.name() == QLatin1String("td")) &&
           !reader.atEnd()) {
        if (reader.isCharacters() && cell == 0) row.place += reader.text();
        if (reader.isCharacters() && cell == 2) row.text += reader.text();
        if (!reader.isStartElement()) continue;
        if (cell == 1 && reader.name() == QLatin1String("code")) row.keys += reader.readElementText();
        if (cell == 2 && reader.name() == QLatin1String("b")) {
            row.quotes = true;
            row.text += reader.readElementText();
        }
    }
}

// The rows of the table that follows the anchor "keys".
QList<HelpRow> KeyTable(const HelpFile& help)
{
    QFile file(QStringLiteral(FOLIOSCOPE_SOURCE_DIR "/docs/help/help.%1.html").arg(help.name));
    if (!file.open(QIODevice::ReadOnly)) return {};
    QXmlStreamReader reader(&file);
    QList<HelpRow> rows;
    bool there = false;
    for (int cell = 0; !reader.atEnd();) {
        reader.readNext();
        const auto name = reader.name();
        if (reader.isStartElement() && name == QLatin1String("a"))
            there = there || reader.attributes().value("name") == QLatin1String("keys");
        if (!there) continue;
        if (reader.isEndElement() && name == QLatin1String("table")) break;
        if (reader.isStartElement() && name == QLatin1String("tr")) {
            rows += HelpRow{{}, {}, {}, false};
            cell = 0;
        }
        if (reader.isStartElement() && name == QLatin1String("td")) TakeCell(rows.back(), cell++, reader);
    }
    return rows;
}

// Those that hold everywhere: they come first, behind the heads of the columns.
QList<HelpRow> KeysOfTheWindow(const HelpFile& help)
{
    const QList<HelpRow> rows = KeyTable(help);
    QList<HelpRow> found;
    for (qsizetype i = 1; i < rows.size() && (i == 1 || rows[i].place.isEmpty()); ++i) found += rows[i];
    return found;
}

QString KeyName(int key, const HelpFile& help)
{
    QStringList parts = QKeySequence(key).toString(QKeySequence::PortableText).split('+');
    for (QString& part : parts) part = help.keyNames.value(part, part);
    return parts.join('+');
}

QString CommandName(const MainCommand& command, const HelpFile& help)
{
    const std::string_view text = TextOf(command.text, help.language);
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).remove('&').simplified();
}

}  // namespace

class HelpKeysTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TellsTheKeyOfEachCommand()
    {
        for (const HelpFile& help : HelpFiles()) {
            const QList<HelpRow> rows = KeysOfTheWindow(help);
            QVERIFY(rows.size() > 5);
            for (const MainCommand& command : MainCommands()) {
                if (command.key == 0) continue;
                const QString key = KeyName(command.key, help), name = CommandName(command, help);
                const auto tells = [&](const HelpRow& row) {
                    return row.keys == QStringList(key) && (row.text.simplified() == name || !row.quotes);
                };
                QVERIFY2(std::count_if(rows.begin(), rows.end(), tells) == 1,
                         qPrintable(help.name + (": " + key + ' ' + name)));
            }
        }
    }

    void TellsNoKeyWithoutACommand()
    {
        for (const HelpFile& help : HelpFiles()) {
            QStringList known = {"Alt"};
            for (const MainCommand& command : MainCommands())
                if (command.key != 0) known += KeyName(command.key, help);
            for (const HelpRow& row : KeysOfTheWindow(help))
                for (const QString& key : row.keys)
                    QVERIFY2(known.contains(key), qPrintable(help.name + (": " + key + ' ' + row.text)));
        }
    }

    // A pane may have a key of its own only where no command has it, but for the one that ends what is under way.
    void GivesNoKeyTwice()
    {
        for (const HelpFile& help : HelpFiles()) {
            QStringList ofCommands;
            for (const MainCommand& command : MainCommands())
                if (command.key != 0 && command.when != When::Busy) ofCommands += KeyName(command.key, help);
            QVERIFY2(QStringList(ofCommands).removeDuplicates() == 0, qPrintable(ofCommands.join(' ')));
            const QList<HelpRow> rows = KeyTable(help);
            for (qsizetype i = KeysOfTheWindow(help).size() + 1; i < rows.size(); ++i)
                for (const QString& key : rows[i].keys)
                    QVERIFY2(!ofCommands.contains(key), qPrintable(help.name + (": " + key + ' ' + rows[i].text)));
        }
    }
};

}  // namespace folioscope

QTEST_GUILESS_MAIN(folioscope::HelpKeysTest)
#include "help_keys_test.moc"
