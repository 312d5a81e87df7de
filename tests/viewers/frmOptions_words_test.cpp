// The words of the options: three languages, shown at once when they are chosen, never cut off, each with its own
// access key, and all within reach of a screen reader and of the keyboard.

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QSignalSpy>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include "support/window_checks.h"
#include "viewers/options_support.h"
#include "viewers/resource_folders.h"

namespace folioscope {

using namespace test;

class FrmOptionsWordsTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { desk_ = std::make_unique<OptionsDesk>(); }
    void cleanup() { desk_.reset(); }

    void showsALanguageWhenItIsChosen();
    void namesTheLanguagesInTheirOwnWords();
    void cancelReturnsTheWords_data();
    void cancelReturnsTheWords();
    void okKeepsTheWords();
    void openingShowsTheLanguageInForce();
    void englishNeedsNoEnglishAnalysis();
    void takesTheWordsOfItsCaller();
    void saysAllInThreeLanguages_data() { Languages(); }
    void saysAllInThreeLanguages();
    void cutsNoTextOff_data() { Languages(); }
    void cutsNoTextOff();
    void growsWithTheLanguage();
    void growsWithTheFont();
    void accessKeysAreUniqueOnEachPage_data() { Languages(); }
    void accessKeysAreUniqueOnEachPage();
    void accessKeysOfTheCatalogStand();
    void accessKeysReachTheirControls();
    void eachControlHasAnAccessibleName_data() { Languages(); }
    void eachControlHasAnAccessibleName();
    void tabulatorFollowsTheEye();

private:
    static void Languages();
    void Choose(int language) { desk_->Find<QListWidget>("lstLanguage").setCurrentRow(language - 1); }
    QString TextOf(const char* name) const;
    QStringList AllTexts() const;
    QList<QWidget*> PartsOf(int page) const;
    QStringList KeysOf(int page) const;

    std::unique_ptr<OptionsDesk> desk_;
};

void FrmOptionsWordsTest::Languages()
{
    QTest::addColumn<int>("language");
    QTest::newRow("English") << 1;
    QTest::newRow("German") << 2;
    QTest::newRow("French") << 3;
}

QString FrmOptionsWordsTest::TextOf(const char* name) const
{
    const auto& part = desk_->Find<QWidget>(name);
    return part.property(qobject_cast<const QGroupBox*>(&part) != nullptr ? "title" : "text").toString().remove('&');
}

QStringList FrmOptionsWordsTest::AllTexts() const
{
    QStringList texts = {desk_->dialog->windowTitle()};
    const auto& tabs = desk_->Find<QTabWidget>("TabOptions");
    for (int i = 0; i < tabs.count(); ++i) texts += tabs.tabText(i);
    for (const char* const name :
         {"fraLanguage",     "fraLanguageOptions", "chkTechnicalEnglish", "fraCodepage",
          "lblNote",         "lblCodepage",        "lblCodepageNOP",      "lblCodepageTLE",
          "chkCPAutoDetect", "fraNodeOptions",     "chkShowNOP",          "chkShowBESF",
          "chkShowIISF",     "fraFolders",         "chkFolderBold",       "chkFolderColored",
          "btnFolderColor",  "fraMeasurement",     "lblDefMeasure",       "lblDefNormalLineWidth",
          "fraPreview",      "chkUsePreview",      "chkUseAutoRotation",  "chkMessageWindow",
          "chkHexViewer",    "fraResources",       "cmdResourcesAdd",     "cmdResourcesRemove",
          "btnOK",           "btnCancel"})
        texts += TextOf(name);
    return texts;
}

// What stands on a page and what stands below all pages.
QList<QWidget*> FrmOptionsWordsTest::PartsOf(int page) const
{
    QList<QWidget*> parts = desk_->Find<QTabWidget>("TabOptions").widget(page)->findChildren<QWidget*>();
    for (const char* const name : {"btnOK", "btnCancel"}) parts += &desk_->Find<QWidget>(name);
    return parts;
}

QStringList FrmOptionsWordsTest::KeysOf(int page) const
{
    QStringList texts;
    for (const QWidget* const part : PartsOf(page)) {
        if (const auto* const frame = qobject_cast<const QGroupBox*>(part)) texts += frame->title();
        if (const auto* const button = qobject_cast<const QAbstractButton*>(part)) texts += button->text();
        if (const auto* const label = qobject_cast<const QLabel*>(part); label != nullptr && label->buddy() != nullptr)
            texts += label->text();
    }
    return AccessKeysOf(texts);
}

void FrmOptionsWordsTest::showsALanguageWhenItIsChosen()
{
    QSignalSpy chosen(desk_->dialog.get(), &frmOptions::LanguageChosen);
    desk_->dialog->show();
    QCOMPARE(chosen.size(), 0);
    auto& list = desk_->Find<QListWidget>("lstLanguage");
    const auto click = [&](int row) {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(row)).center());
    };
    click(1);
    QCOMPARE(chosen.takeFirst().at(0).value<Language>(), Language::German);
    QCOMPARE(desk_->dialog->windowTitle(), QString("Optionen"));
    QCOMPARE(TextOf("chkShowNOP"), QString("NOP- und TLE-Inhalte anzeigen"));
    click(1);
    QCOMPARE(chosen.size(), 0);
    QTest::keyClick(&list, Qt::Key_Down);
    QCOMPARE(chosen.takeFirst().at(0).value<Language>(), Language::French);
    QCOMPARE(TextOf("btnCancel"), QString("Annuler"));
    click(0);
    QCOMPARE(chosen.takeFirst().at(0).value<Language>(), Language::English);
    QCOMPARE(TextOf("btnCancel"), QString("Cancel"));
    QCOMPARE(desk_->settings.Language, 1);
}

void FrmOptionsWordsTest::namesTheLanguagesInTheirOwnWords()
{
    const auto& list = desk_->Find<QListWidget>("lstLanguage");
    for (const int language : {1, 2, 3}) {
        Choose(language);
        QCOMPARE(list.count(), 3);
        QCOMPARE(list.item(0)->text(), QString("English"));
        QCOMPARE(list.item(1)->text(), QString("Deutsch"));
        QCOMPARE(list.item(2)->text(), QString("Français"));
        QCOMPARE(list.currentItem()->data(Qt::UserRole).toInt(), language);
    }
}

void FrmOptionsWordsTest::cancelReturnsTheWords_data()
{
    QTest::addColumn<QString>("way");
    for (const char* const way : {"button", "escape", "close"}) QTest::newRow(way) << way;
}

void FrmOptionsWordsTest::cancelReturnsTheWords()
{
    QFETCH(const QString, way);
    desk_->settings.Language = 2;
    desk_->dialog->show();
    const QStringList before = AllTexts();
    Choose(3);
    QVERIFY(AllTexts() != before);
    QSignalSpy chosen(desk_->dialog.get(), &frmOptions::LanguageChosen);
    if (way == "button") desk_->Click("btnCancel");
    if (way == "escape") QTest::keyClick(&desk_->Find<QListWidget>("lstLanguage"), Qt::Key_Escape);
    if (way == "close") desk_->dialog->close();
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(chosen.at(0).at(0).value<Language>(), Language::German);
    QCOMPARE(AllTexts(), before);
    QCOMPARE(desk_->settings.Language, 2);
}

void FrmOptionsWordsTest::okKeepsTheWords()
{
    desk_->dialog->show();
    Choose(3);
    QSignalSpy chosen(desk_->dialog.get(), &frmOptions::LanguageChosen);
    desk_->Click("btnOK");
    QCOMPARE(desk_->settings.Language, 3);
    desk_->dialog->show();
    QCOMPARE(TextOf("btnCancel"), QString("Annuler"));
    QCOMPARE(chosen.size(), 0);
}

void FrmOptionsWordsTest::openingShowsTheLanguageInForce()
{
    QSignalSpy chosen(desk_->dialog.get(), &frmOptions::LanguageChosen);
    desk_->settings.Language = 2;
    desk_->dialog->show();
    QCOMPARE(TextOf("btnCancel"), QString("Abbrechen"));
    QCOMPARE(chosen.size(), 1);
}

void FrmOptionsWordsTest::englishNeedsNoEnglishAnalysis()
{
    desk_->settings.TechnicalEnglish = 1;
    desk_->dialog->show();
    const auto& check = desk_->Find<QCheckBox>("chkTechnicalEnglish");
    const auto& frame = desk_->Find<QGroupBox>("fraLanguageOptions");
    for (const int language : {1, 2, 1, 3}) {
        Choose(language);
        QCOMPARE(check.isEnabled(), language != 1);
        QCOMPARE(frame.isEnabled(), language != 1);
        QVERIFY(check.isChecked());
    }
    desk_->Click("btnCancel");
    QVERIFY(!check.isEnabled());
}

void FrmOptionsWordsTest::takesTheWordsOfItsCaller()
{
    QSignalSpy chosen(desk_->dialog.get(), &frmOptions::LanguageChosen);
    desk_->dialog->SetTexts(Labels(Language::French));
    QCOMPARE(TextOf("btnCancel"), QString("Annuler"));
    QCOMPARE(chosen.size(), 0);
}

void FrmOptionsWordsTest::saysAllInThreeLanguages()
{
    QFETCH(const int, language);
    const QStringList english = AllTexts();
    Choose(language);
    const QStringList texts = AllTexts();
    QCOMPARE(texts.size(), english.size());
    for (const QString& text : texts) QVERIFY(!text.isEmpty());
    if (language == 1) return;
    const QStringList kEqual = {"OK", "Options"};
    for (qsizetype i = 0; i < texts.size(); ++i)
        QVERIFY2(texts[i] != english[i] || kEqual.contains(texts[i]), qPrintable(texts[i]));
}

void FrmOptionsWordsTest::cutsNoTextOff()
{
    QFETCH(const int, language);
    desk_->settings.Language = language;
    desk_->dialog->show();
    auto& tabs = desk_->Find<QTabWidget>("TabOptions");
    for (int page = 0; page < tabs.count(); ++page) {
        tabs.setCurrentIndex(page);
        QApplication::processEvents();
        QCOMPARE(Clipped(*tabs.widget(page)), QStringList());
    }
    QCOMPARE(Clipped(*desk_->Find<QWidget>("btnOK").parentWidget()), QStringList());
    const QTabBar& bar = *tabs.tabBar();
    QVERIFY(bar.rect().contains(bar.tabRect(bar.count() - 1)));
}

void FrmOptionsWordsTest::growsWithTheLanguage()
{
    desk_->dialog->show();
    auto& tabs = desk_->Find<QTabWidget>("TabOptions");
    for (const int language : {2, 3}) {
        Choose(language);
        QApplication::processEvents();
        for (int page = 0; page < tabs.count(); ++page) {
            tabs.setCurrentIndex(page);
            QApplication::processEvents();
            QCOMPARE(Clipped(*tabs.widget(page)), QStringList());
        }
        QVERIFY(tabs.tabBar()->rect().contains(tabs.tabBar()->tabRect(4)));
    }
}

void FrmOptionsWordsTest::growsWithTheFont()
{
    desk_->settings.Language = 3;
    QFont large = desk_->dialog->font();
    large.setPointSizeF(large.pointSizeF() * 2);
    desk_->dialog->setFont(large);
    desk_->dialog->show();
    auto& tabs = desk_->Find<QTabWidget>("TabOptions");
    for (int page = 0; page < tabs.count(); ++page) {
        tabs.setCurrentIndex(page);
        QApplication::processEvents();
        QCOMPARE(Clipped(*tabs.widget(page)), QStringList());
    }
}

void FrmOptionsWordsTest::accessKeysAreUniqueOnEachPage()
{
    QFETCH(const int, language);
    Choose(language);
    for (int page = 0; page < 5; ++page) {
        QStringList keys = KeysOf(page);
        QVERIFY2(keys.size() >= 3, qPrintable(keys.join(' ')));
        QCOMPARE(keys.removeDuplicates(), 0);
    }
}

void FrmOptionsWordsTest::accessKeysOfTheCatalogStand()
{
    QCOMPARE(desk_->Find<QLabel>("lblCodepage").text(), QString("&Default code page"));
    QCOMPARE(desk_->Find<QLabel>("lblDefNormalLineWidth").text(), QString("Normal line &width"));
    QCOMPARE(desk_->Find<QCheckBox>("chkUsePreview").text(), QString("&Show documents in preview window"));
    QCOMPARE(desk_->Find<QGroupBox>("fraMeasurement").title(), QString("&Measurement Options"));
}

void FrmOptionsWordsTest::accessKeysReachTheirControls()
{
    for (const auto& [label, control] : {std::pair{"lblCodepage", "cmdCodepage"},
                                         {"lblCodepageNOP", "cmdCodepageNOP"},
                                         {"lblCodepageTLE", "cmdCodepageTLE"},
                                         {"lblDefMeasure", "cboDefMeasure"},
                                         {"lblDefNormalLineWidth", "cboDefNormalLineWidth"}})
        QCOMPARE(desk_->Find<QLabel>(label).buddy(), &desk_->Find<QWidget>(control));
}

void FrmOptionsWordsTest::eachControlHasAnAccessibleName()
{
    QFETCH(const int, language);
    Choose(language);
    QCOMPARE(Nameless(*desk_->dialog), QStringList());
    const Labels texts(static_cast<Language>(language));
    const auto nameOf = [&](const char* name) { return desk_->Find<QWidget>(name).accessibleName(); };
    QCOMPARE(nameOf("lstLanguage"), ToQt(texts, U("Program Language")));
    QCOMPARE(nameOf("cmdCodepageNOP"), ToQt(texts, U("Code page for &NOP-SF's")).remove('&'));
    QCOMPARE(nameOf("cboDefMeasure"), ToQt(texts, U("&Default Measurement")).remove('&'));
    QCOMPARE(nameOf("lstResources"), ToQt(texts, U("Resource libraries (all types)")));
}

void FrmOptionsWordsTest::tabulatorFollowsTheEye()
{
    desk_->settings.Language = 2;
    desk_->dialog->show();
    auto& tabs = desk_->Find<QTabWidget>("TabOptions");
    const QList<QStringList> kOrder = {
        {"lstLanguage", "chkTechnicalEnglish"},
        {"cmdCodepage", "cmdCodepageNOP", "cmdCodepageTLE", "chkCPAutoDetect"},
        {"chkShowNOP", "chkShowBESF", "chkShowIISF", "chkFolderBold", "chkFolderColored", "btnFolderColor"},
        {"cboDefMeasure", "cboDefNormalLineWidth", "chkUsePreview", "chkUseAutoRotation", "chkHexViewer",
         "chkMessageWindow"},
        {"lstResources", "cmdResourcesAdd", "cmdResourcesRemove"},
    };
    for (int page = 0; page < kOrder.size(); ++page) {
        tabs.setCurrentIndex(page);
        tabs.tabBar()->setFocus();
        QStringList order;
        QWidget* at = tabs.tabBar();
        for (int i = 0; i < kOrder[page].size() + 2; ++i) {
            QTest::keyClick(at, Qt::Key_Tab);
            at = desk_->dialog->focusWidget();
            order += at->objectName();
        }
        QCOMPARE(order, kOrder[page] + QStringList({"btnOK", "btnCancel"}));
    }
}

}  // namespace folioscope

QTEST_MAIN(folioscope::FrmOptionsWordsTest)
#include "frmOptions_words_test.moc"
