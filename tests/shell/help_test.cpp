// The help in its three languages: whole, alike, and in the words of the menus.

#include <QFile>
#include <QGuiApplication>
#include <QHash>
#include <QImage>
#include <QList>
#include <QPalette>
#include <QPixmap>
#include <QScrollBar>
#include <QSet>
#include <QString>
#include <QTest>
#include <QTextDocument>
#include <QUrl>
#include <QXmlStreamReader>

#include <string_view>

#include "base/labels.h"
#include "shell/help_browser.h"
#include "shell/icons.h"

namespace folioscope {
namespace {

struct HelpFile {
    Language language;
    const char* name;
};

constexpr HelpFile kHelpFiles[] = {{Language::English, "en"}, {Language::German, "de"}, {Language::French, "fr"}};

// What a user finds in the menus, the toolbar and the dialogs and looks for in the help.
// clang-format off
constexpr Label kCommands[] = {
    U("&File"), U("&Open ..."), U("&Close"), U("&Reload"), U("&Save text dump"), U("&Save text dump as ..."), U("E&xit"),
    U("&Edit"), U("&Find ..."), U("Find &next"), U("&Expand Tree"), U("&Collapse Tree"),
    U("E&xtras"), U("&Options ..."),
    U("&Windows"), U("&Messages ..."), U("&Cascade"), U("Tile &vertical"), U("Tile &horizontal"), U("&Close all"),
    U("&Help"), U("&Website ..."), U("&About ..."),
    U("&Extract resource ..."), U("&Preview"), U("Cancel"), U("Rotate left"), U("Rotate right"),
    U("Zoom to page width"), U("Zoom to whole page"), U("Zoom out"), U("Zoom 100%"), U("Zoom in"), U("Print this page"),
    U("Search NOPs only"), U("Search TLEs only"), U("Source"), U("Severity"), U("Description"),
    U("Language"), U("Analysis in english"), U("Code page"), U("&Default code page"), U("Code page for &NOP-SF's"),
    U("Code page for &TLE-SF's"), U("Auto-detect code page from triplet"), U("Tree"), U("Show NOP and TLE contents"),
    U("Show names in Begin-/End-SF's"), U("Show names in Invoke-/Include-SF's"), U("bold"), U("colored"),
    U("Folder color ..."), U("Advanced"), U("&Default Measurement"), U("Normal line &width"),
    U("&Show documents in preview window"), U("Use auto &rotation on page basis"), U("Show messages on analysis"),
    U("Show &hex viewer"), U("Resources"), U("Add"), U("Remove"), U("OK"),
};
// clang-format on

QString PathOf(const HelpFile& help)
{
    return QStringLiteral(FOLIOSCOPE_SOURCE_DIR "/docs/help/help.%1.html").arg(help.name);
}

// As it is read in a menu: without the mark of the access key, and with plain blanks.
QString Word(Label label, Language language)
{
    const std::string_view text = TextOf(label, language);
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).remove('&').simplified();
}

struct Contents {
    QString language, title, fault;
    QStringList quoted;           // words of menus and buttons
    QStringList anchors, links;   // in their order
    QStringList pictures;         // their sources
    QStringList unnamedPictures;  // without a text in their place
    QSet<QString> attributes;
    QHash<QString, int> elements;
};

void Take(Contents& contents, QXmlStreamReader& reader)
{
    const QString element = reader.name().toString();
    ++contents.elements[element];
    const QXmlStreamAttributes attributes = reader.attributes();
    for (const QXmlStreamAttribute& attribute : attributes) contents.attributes.insert(attribute.name().toString());
    if (element == "html") contents.language = attributes.value("lang").toString();
    if (attributes.hasAttribute("name")) contents.anchors.append(attributes.value("name").toString());
    if (attributes.hasAttribute("href")) contents.links.append(attributes.value("href").toString());
    if (element == "img") {
        contents.pictures.append(attributes.value("src").toString());
        if (attributes.value("alt").isEmpty()) contents.unnamedPictures.append(contents.pictures.last());
    }
    if (element == "title") contents.title = reader.readElementText();
    if (element == "b") contents.quoted.append(reader.readElementText().simplified());
}

Contents Read(const HelpFile& help)
{
    Contents contents;
    QFile file(PathOf(help));
    if (!file.open(QIODevice::ReadOnly)) {
        contents.fault = "no such file";
        return contents;
    }
    QXmlStreamReader reader(&file);
    while (!reader.atEnd())
        if (reader.readNext() == QXmlStreamReader::StartElement) Take(contents, reader);
    if (reader.hasError()) contents.fault = QStringLiteral("line %1: ").arg(reader.lineNumber()) + reader.errorString();
    return contents;
}

void SetGround(const QColor& window, const QColor& text)
{
    QPalette palette;
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::Base, window);
    palette.setColor(QPalette::Text, text);
    QGuiApplication::setPalette(palette);
    QCoreApplication::processEvents();
}

}  // namespace

class HelpTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { InitResources(); }

    void IsWellFormed()
    {
        for (const HelpFile& help : kHelpFiles) {
            const Contents contents = Read(help);
            QVERIFY2(contents.fault.isEmpty(), qPrintable(help.name + (": " + contents.fault)));
            QCOMPARE(contents.language, QString(help.name));
            QVERIFY(!contents.title.isEmpty());
        }
    }

    void QuotesTheCatalog()
    {
        for (const HelpFile& help : kHelpFiles) {
            QSet<QString> words;
            for (const CatalogKey& key : kInterfaceLabels) words.insert(Word(Label{key.row}, help.language));
            const Contents contents = Read(help);
            QVERIFY(!contents.quoted.isEmpty());
            for (const QString& quoted : contents.quoted)
                QVERIFY2(words.contains(quoted), qPrintable(help.name + (": " + quoted)));
        }
    }

    void TellsOfEachCommandAndSetting()
    {
        for (const HelpFile& help : kHelpFiles) {
            const Contents contents = Read(help);
            for (const Label label : kCommands) {
                const QString word = Word(label, help.language);
                QVERIFY2(contents.quoted.contains(word), qPrintable(help.name + (": " + word)));
            }
        }
    }

    void LeadsToItsOwnChapters()
    {
        for (const HelpFile& help : kHelpFiles) {
            const Contents contents = Read(help);
            const QSet<QString> anchors(contents.anchors.begin(), contents.anchors.end());
            QCOMPARE(anchors.size(), contents.anchors.size());
            for (const QString& link : contents.links)
                QVERIFY2(link.startsWith('#') && anchors.contains(link.mid(1)), qPrintable(link));
            for (const QString& anchor : contents.anchors)
                QVERIFY2(contents.links.contains('#' + anchor), qPrintable(anchor));
        }
    }

    void SaysTheSameInEachLanguage()
    {
        const Contents english = Read(kHelpFiles[0]);
        for (const HelpFile& help : kHelpFiles) {
            const Contents contents = Read(help);
            QCOMPARE(contents.anchors, english.anchors);
            QCOMPARE(contents.links, english.links);
            QCOMPARE(contents.pictures, english.pictures);
            for (const char* const element : {"p", "li", "tr", "td", "b", "code"})
                QVERIFY2(contents.elements[element] == english.elements[element],
                         qPrintable(QStringLiteral("%1: %2 <%3>, in English %4")
                                        .arg(help.name)
                                        .arg(contents.elements[element])
                                        .arg(element)
                                        .arg(english.elements[element])));
        }
    }

    void ShowsTheImagesOfTheTree()
    {
        const Contents contents = Read(kHelpFiles[0]);
        for (int image = 0; image < 12; ++image) {
            if (image == 3) continue;  // no node has it
            const QString source = QStringLiteral("qrc:/icons/tree_%1.svg").arg(image, 2, 10, QLatin1Char('0'));
            QCOMPARE(contents.pictures.count(source), 1);
        }
        for (const HelpFile& help : kHelpFiles) QCOMPARE(Read(help).unnamedPictures, QStringList{});
    }

    void LeavesColoursToThePalette()
    {
        for (const HelpFile& help : kHelpFiles) {
            const Contents contents = Read(help);
            for (const char* const name : {"style", "color", "bgcolor", "class"})
                QVERIFY2(!contents.attributes.contains(name), name);
            QCOMPARE(contents.elements["font"] + contents.elements["style"], 0);
        }
    }

    void IsShownWithIconsInTheTonesOfThePalette()
    {
        SetGround(Qt::white, Qt::black);
        HelpBrowser browser;
        browser.setSource(QUrl::fromLocalFile(PathOf(kHelpFiles[0])));
        QCOMPARE(browser.documentTitle(), QString("Folioscope Help"));
        const QUrl folder("qrc:/icons/tree_00.svg");
        const auto shown = [&] {
            return browser.document()->resource(QTextDocument::ImageResource, folder).value<QPixmap>().toImage();
        };
        const auto icon = [&] { return TreeIcon(0).pixmap(QSize(16, 16), browser.devicePixelRatioF()).toImage(); };
        const QImage onLight = shown();
        QVERIFY(!onLight.isNull());
        QCOMPARE(onLight, icon());

        SetGround(Qt::black, Qt::white);
        QCOMPARE(shown(), icon());
        QVERIFY(shown() != onLight);
    }

    void KeepsItsPlaceWhenThePaletteChanges()
    {
        SetGround(Qt::white, Qt::black);
        HelpBrowser browser;
        browser.resize(500, 300);
        browser.setSource(QUrl::fromLocalFile(PathOf(kHelpFiles[0])));
        browser.show();
        QCoreApplication::processEvents();
        browser.verticalScrollBar()->setValue(400);
        SetGround(Qt::black, Qt::white);
        QCOMPARE(browser.verticalScrollBar()->value(), 400);
    }

    void PassesPicturesThatAreNoIcons()
    {
        HelpBrowser browser;
        QVERIFY(
            browser.loadResource(QTextDocument::ImageResource, QUrl("qrc:/icons/none.svg")).toByteArray().isEmpty());
        QVERIFY(!browser.loadResource(QTextDocument::HtmlResource, QUrl::fromLocalFile(PathOf(kHelpFiles[1])))
                     .toByteArray()
                     .isEmpty());
    }
};

}  // namespace folioscope

QTEST_MAIN(folioscope::HelpTest)
#include "help_test.moc"
