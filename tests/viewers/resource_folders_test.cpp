// The folders of resources: how they are shown, added and removed, and how they come into the list files.

#include <QDir>
#include <QFile>
#include <QListWidget>
#include <QMessageBox>
#include <QTest>

#include "viewers/options_support.h"
#include "viewers/resource_folders.h"

namespace folioscope {

using namespace test;

namespace {

constexpr char kForeign[] = "<!-- kept -->\n<resourcelist>\n  <other/>\n</resourcelist>\nrest\n";

QString PathOf(int characters) { return QString("/0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJ").left(characters); }

}  // namespace

class ResourceFoldersTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { desk_.reset(); }

    void theFirstStartListsAFolderOfTheProgram();
    void theFolderIsListedThoughItCanNotBeMade();
    void okWritesBothLists();
    void cancelWritesNothing();
    void readsTheListsWhenItOpens();
    void keepsTheBytesOfAPath();
    void shortensALongPath_data();
    void shortensALongPath();
    void anEmptyAnswerAddsNothing();
    void removesTheSelectedFolder();
    void aFolderThatStandsTwiceIsRemovedOnce();
    void removesNothingAgainstTheAnswer();
    void theLastFolderTakesTheButtonAlong();
    void asksInTheLanguageInForce_data();
    void asksInTheLanguageInForce();

private:
    void Write(const QString& name, const QByteArray& content) const;
    QByteArray Read(const QString& name) const;
    void Confirm() const { WriteSettings(desk_->store, desk_->settings); }
    void Add(const QString& path);
    void Remove(bool yes);
    ResourceFolders& Folders() const { return desk_->Find<ResourceFolders>("fraResources"); }
    QListWidget& List() const { return desk_->Find<QListWidget>("lstResources"); }
    QStringList Shown() const;

    std::unique_ptr<OptionsDesk> desk_;
};

void ResourceFoldersTest::init()
{
    desk_ = std::make_unique<OptionsDesk>();
    QVERIFY(QDir(desk_->Folder()).mkpath("Marrowgate"));
    for (const char* const list : {"mffafp.pro", "mffpdf.pro"}) Write(list, kForeign);
}

void ResourceFoldersTest::Write(const QString& name, const QByteArray& content) const
{
    QFile file(desk_->Folder() + "/Marrowgate/" + name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

QByteArray ResourceFoldersTest::Read(const QString& name) const
{
    QFile file(desk_->Folder() + "/Marrowgate/" + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

void ResourceFoldersTest::Add(const QString& path)
{
    Folders().SetFolderQuestion([path] { return path; });
    desk_->Click("cmdResourcesAdd");
}

void ResourceFoldersTest::Remove(bool yes)
{
    Folders().SetRemovalQuestion([yes] { return yes; });
    desk_->Click("cmdResourcesRemove");
}

QStringList ResourceFoldersTest::Shown() const
{
    QStringList texts;
    for (int row = 0; row < List().count(); ++row) texts += List().item(row)->text();
    return texts;
}

void ResourceFoldersTest::theFirstStartListsAFolderOfTheProgram()
{
    const QString folder = desk_->Folder() + "/resources";
    QVERIFY(QDir(folder).exists());
    desk_->dialog->show();
    QCOMPARE(Folders().Paths(), std::vector<std::string>{folder.toStdString()});
    QVERIFY(desk_->Find<QPushButton>("cmdResourcesRemove").isEnabled());
    desk_->Click("btnOK");
    QVERIFY(Read("mffafp.pro").contains("      <files path=\"" + folder.toUtf8() + "\" extension=\"*\" />\n"));
    desk_->Start();
    QCOMPARE(Folders().Paths(), std::vector<std::string>{folder.toStdString()});
}

void ResourceFoldersTest::theFolderIsListedThoughItCanNotBeMade()
{
    const frmOptions dialog(desk_->store, desk_->settings, "/nowhere/at/all");
    QCOMPARE(dialog.findChild<ResourceFolders*>()->Paths(), std::vector<std::string>{"/nowhere/at/all/resources"});
    QVERIFY(!QDir("/nowhere").exists());
}

void ResourceFoldersTest::okWritesBothLists()
{
    Confirm();
    desk_->dialog->show();
    Add("/first");
    Add("/second one");
    desk_->Click("btnOK");
    for (const char* const list : {"mffafp.pro", "mffpdf.pro"})
        QCOMPARE(Read(list), QByteArray("<!-- kept -->\n<resourcelist>\n  <other/>\n"
                                        "      <files path=\"/first\" extension=\"*\" />\n"
                                        "      <files path=\"/second one\" extension=\"*\" />\n"
                                        "</resourcelist>\nrest\n"));
    for (const char* const list : {"mffafp.bak", "mffpdf.bak"}) QCOMPARE(Read(list), QByteArray(kForeign));
    desk_->Start();
    QCOMPARE(Shown(), QStringList({"/first", "/second one"}));
}

void ResourceFoldersTest::cancelWritesNothing()
{
    Confirm();
    desk_->dialog->show();
    Add("/first");
    desk_->Click("btnCancel");
    QCOMPARE(Read("mffafp.pro"), QByteArray(kForeign));
    desk_->dialog->show();
    QCOMPARE(Shown(), QStringList());
    QVERIFY(!desk_->Find<QPushButton>("cmdResourcesRemove").isEnabled());
}

void ResourceFoldersTest::readsTheListsWhenItOpens()
{
    Confirm();
    Write("mffafp.pro", "<files path=\"/new\" extension=\"*\" />\n");
    desk_->dialog->show();
    QCOMPARE(Shown(), QStringList("/new"));
    QVERIFY(desk_->Find<QPushButton>("cmdResourcesRemove").isEnabled());
}

// A path need not be well-formed text.
void ResourceFoldersTest::keepsTheBytesOfAPath()
{
    Confirm();
    Write("mffafp.pro", "<resourcelist>\n      <files path=\"/b\xFCro\" extension=\"*\" />\n</resourcelist>\n");
    const QByteArray before = Read("mffafp.pro");
    desk_->dialog->show();
    desk_->Click("btnOK");
    QCOMPARE(Read("mffafp.pro"), before);
}

void ResourceFoldersTest::shortensALongPath_data()
{
    QTest::addColumn<int>("characters");
    QTest::addColumn<QString>("read");
    QTest::addColumn<QString>("added");
    QTest::newRow("40") << 40 << PathOf(40) << PathOf(40);
    QTest::newRow("41") << 41 << "/012345678...abcdefghijklmnopqrstuvwxyzABCD"
                        << "/0123456789abcdefghi...klmnopqrstuvwxyzABCD";
    QTest::newRow("47") << 47 << "/012345678...ghijklmnopqrstuvwxyzABCDEFGHIJ"
                        << "/0123456789abcdefghi...qrstuvwxyzABCDEFGHIJ";
}

void ResourceFoldersTest::shortensALongPath()
{
    QFETCH(const int, characters);
    QFETCH(const QString, read);
    QFETCH(const QString, added);
    Confirm();
    const QString path = PathOf(characters);
    QCOMPARE(path.size(), characters);
    desk_->dialog->show();
    Add(path);
    QCOMPARE(Shown(), QStringList(added));
    QCOMPARE(List().item(0)->toolTip(), path);
    desk_->Click("btnOK");
    desk_->dialog->show();
    QCOMPARE(Shown(), QStringList(read));
    QCOMPARE(List().item(0)->toolTip(), path);
    QCOMPARE(Folders().Paths(), std::vector<std::string>{path.toStdString()});
}

void ResourceFoldersTest::anEmptyAnswerAddsNothing()
{
    Confirm();
    desk_->dialog->show();
    Add(QString());
    QCOMPARE(Shown(), QStringList());
    QVERIFY(Folders().Paths().empty());
    QVERIFY(!desk_->Find<QPushButton>("cmdResourcesRemove").isEnabled());
}

void ResourceFoldersTest::removesTheSelectedFolder()
{
    Folders().SetPaths({"/a", "/b", "/c"});
    List().setCurrentRow(1);
    Remove(true);
    QCOMPARE(Shown(), QStringList({"/a", "/c"}));
    QCOMPARE(Folders().Paths(), (std::vector<std::string>{"/a", "/c"}));
}

void ResourceFoldersTest::aFolderThatStandsTwiceIsRemovedOnce()
{
    Folders().SetPaths({"/a", "/b", "/a"});
    List().setCurrentRow(2);
    Remove(true);
    QCOMPARE(Folders().Paths(), (std::vector<std::string>{"/a", "/b"}));
}

void ResourceFoldersTest::removesNothingAgainstTheAnswer()
{
    Folders().SetPaths({"/a"});
    Remove(false);
    QCOMPARE(Shown(), QStringList("/a"));
    QCOMPARE(Folders().Paths(), std::vector<std::string>{"/a"});
}

void ResourceFoldersTest::theLastFolderTakesTheButtonAlong()
{
    const auto& button = desk_->Find<QPushButton>("cmdResourcesRemove");
    Folders().SetPaths({"/a", "/b"});
    Remove(true);
    QVERIFY(button.isEnabled());
    Remove(true);
    QVERIFY(!button.isEnabled());
    QVERIFY(Folders().Paths().empty());
    Add("/c");
    QVERIFY(button.isEnabled());
    Remove(true);
    QCOMPARE(Shown(), QStringList());
}

void ResourceFoldersTest::asksInTheLanguageInForce_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<bool>("yes");
    QTest::newRow("English") << 1 << QStringList({"Question", "Really delete this entry?", "&Yes", "&No"}) << true;
    QTest::newRow("German") << 2 << QStringList({"Frage", "Diesen Eintrag wirklich löschen?", "&Ja", "&Nein"}) << false;
    QTest::newRow("French") << 3
                            << QStringList(
                                   {"Question", "Voulez-vous vraiment supprimer cette entrée\u00A0?", "&Oui", "&Non"})
                            << true;
}

void ResourceFoldersTest::asksInTheLanguageInForce()
{
    QFETCH(const int, language);
    QFETCH(const QStringList, words);
    QFETCH(const bool, yes);
    desk_->Find<QListWidget>("lstLanguage").setCurrentRow(language - 1);
    Folders().SetPaths({"/a"});
    QStringList shown;
    const Answer<QMessageBox> answer([&](QMessageBox& box) {
        shown << box.windowTitle() << box.text();
        for (const auto button : {QMessageBox::Yes, QMessageBox::No}) shown += box.button(button)->text();
        box.button(yes ? QMessageBox::Yes : QMessageBox::No)->click();
    });
    desk_->Click("cmdResourcesRemove");
    QVERIFY(answer.answered);
    QCOMPARE(shown, words);
    QCOMPARE(Folders().Paths().empty(), yes);
}

}  // namespace folioscope

QTEST_MAIN(folioscope::ResourceFoldersTest)
#include "resource_folders_test.moc"
