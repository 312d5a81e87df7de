// The options: each setting on its way through the dialog into the store and back, and the ways to leave the dialog.

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QSignalSpy>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include "viewers/colour_button.h"
#include "viewers/frmCodepage.h"
#include "viewers/options_support.h"

namespace folioscope {

using namespace test;

namespace {

constexpr int kLightBlue = 0xFF8080, kOther = 0x102030;

struct Row {
    const char* value;
    const char* control;
    std::int32_t Settings::*member;
    int standard, other;
};

// clang-format off
constexpr Row kRows[] = {
    {"Codepage",           "cmdCodepage",           &Settings::Codepage,           37,         500},
    {"CodepageNOP",        "cmdCodepageNOP",        &Settings::CodepageNOP,        37,         850},
    {"CodepageTLE",        "cmdCodepageTLE",        &Settings::CodepageTLE,        37,         1200},
    {"Language",           "lstLanguage",           &Settings::Language,           1,          3},
    {"TechnicalEnglish",   "chkTechnicalEnglish",   &Settings::TechnicalEnglish,   0,          1},
    {"ShowNOP",            "chkShowNOP",            &Settings::ShowNOP,            1,          0},
    {"ShowBESF",           "chkShowBESF",           &Settings::ShowBESF,           1,          0},
    {"ShowIISF",           "chkShowIISF",           &Settings::ShowIISF,           1,          0},
    {"FolderBold",         "chkFolderBold",         &Settings::FolderBold,         1,          0},
    {"FolderColored",      "chkFolderColored",      &Settings::FolderColored,      1,          0},
    {"FolderColor",        "btnFolderColor",        &Settings::FolderColor,        kLightBlue, kOther},
    {"DefaultMeasurement", "cboDefMeasure",         &Settings::DefaultMeasurement, 0,          6},
    {"NormalLineWidth",    "cboDefNormalLineWidth", &Settings::NormalLineWidth,    1,          0},
    {"CodePageAutoDetect", "chkCPAutoDetect",       &Settings::CodePageAutoDetect, 1,          0},
    {"UsePreviewWindow",   "chkUsePreview",         &Settings::UsePreviewWindow,   1,          0},
    {"HexViewer",          "chkHexViewer",          &Settings::HexViewer,          1,          0},
    {"MessageWindow",      "chkMessageWindow",      &Settings::MessageWindow,      1,          0},
    {"UseAutoRotation",    "chkUseAutoRotation",    &Settings::UseAutoRotation,    1,          0},
};
// clang-format on

void Select(QListWidget& list, int data)
{
    for (int row = 0; row < list.count(); ++row)
        if (list.item(row)->data(Qt::UserRole).toInt() == data) list.setCurrentRow(row);
}

}  // namespace

class FrmOptionsTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { desk_ = std::make_unique<OptionsDesk>(); }
    void cleanup() { desk_.reset(); }

    void beginsWithTheDefaults();
    void keepsASetting_data();
    void keepsASetting();
    void keepsAllSettingsTogether();
    void writesNothingBeforeOK();
    void showsTheSettingsInForceWhenItOpens();
    void takesADefaultForAValueOutOfRange();
    void offersFixedChoices();
    void cancelForgetsTheControls_data();
    void cancelForgetsTheControls();
    void cancelKeepsTheCodepage();
    void aCancelledChooserLeavesThePage();
    void theChooserSpeaksAsTheDialogDoes();
    void namesThePagesBesideTheirNumbers();
    void aChangedColourColoursTheFolders();
    void anUnchangedColourChangesNothing_data();
    void anUnchangedColourChangesNothing();
    void theColourIsToldInWords();
    void enterIsOK();
    void theFirstStartCanOnlyBeConfirmed();
    void staysAtTheTabThatWasLast();
    void beginsAtTheTabsEachTime();

private:
    int Shown(const Row& row) const;
    void Set(const Row& row, int value);
    void ChooseCodepage(const char* button, int codepage);
    int Stored(const char* name) const;

    std::unique_ptr<OptionsDesk> desk_;
};

int FrmOptionsTest::Shown(const Row& row) const
{
    auto* const control = &desk_->Find<QWidget>(row.control);
    if (auto* const check = qobject_cast<QCheckBox*>(control)) return check->isChecked() ? 1 : 0;
    if (auto* const list = qobject_cast<QComboBox*>(control)) return list->currentIndex();
    if (auto* const list = qobject_cast<QListWidget*>(control)) return list->currentItem()->data(Qt::UserRole).toInt();
    if (auto* const button = qobject_cast<ColourButton*>(control)) return button->Colour();
    return qobject_cast<QPushButton*>(control)->text().toInt();
}

// As a user does it.
void FrmOptionsTest::Set(const Row& row, int value)
{
    auto* const control = &desk_->Find<QWidget>(row.control);
    if (auto* const check = qobject_cast<QCheckBox*>(control)) return check->setChecked(value != 0);
    if (auto* const list = qobject_cast<QComboBox*>(control)) return list->setCurrentIndex(value);
    if (auto* const list = qobject_cast<QListWidget*>(control)) return Select(*list, value);
    if (qobject_cast<ColourButton*>(control) == nullptr) return ChooseCodepage(row.control, value);
    desk_->dialog->SetColourQuestion([value](const QColor&) { return ColourOf(value); });
    desk_->Click(row.control);
}

void FrmOptionsTest::ChooseCodepage(const char* button, int codepage)
{
    const Answer<frmCodepage> answer([codepage](frmCodepage& chooser) {
        Select(*chooser.findChild<QListWidget*>("lstCodepage"), codepage);
        chooser.findChild<QPushButton*>("btnOK")->click();
    });
    desk_->Click(button);
    QVERIFY(answer.answered);
}

int FrmOptionsTest::Stored(const char* name) const
{
    TaggedValue value;
    desk_->store.GetRegistryValue(kSettingsKey, name, value, EmptyValue());
    const auto* const number = std::get_if<std::int32_t>(&value);
    return number != nullptr ? *number : -1;
}

void FrmOptionsTest::beginsWithTheDefaults()
{
    desk_->dialog->show();
    for (const Row& row : kRows) QVERIFY2(Shown(row) == row.standard, row.control);
    desk_->Click("btnOK");
    for (const Row& row : kRows) QVERIFY2(Stored(row.value) == row.standard, row.value);
    QCOMPARE(Stored("InitResourcePaths"), 1);
}

void FrmOptionsTest::keepsASetting_data()
{
    QTest::addColumn<int>("place");
    for (std::size_t i = 0; i < std::size(kRows); ++i) QTest::newRow(kRows[i].value) << static_cast<int>(i);
}

void FrmOptionsTest::keepsASetting()
{
    QFETCH(const int, place);
    const Row& changed = kRows[place];
    QSignalSpy confirmed(desk_->dialog.get(), &frmOptions::Confirmed);
    desk_->dialog->show();
    Set(changed, changed.other);
    desk_->Click("btnOK");
    QCOMPARE(confirmed.size(), 1);
    QVERIFY(!desk_->dialog->isVisible());
    for (const Row& row : kRows) {
        const int expected = &row == &changed ? row.other : row.standard;
        QVERIFY2(Stored(row.value) == expected, row.value);
        QVERIFY2(desk_->settings.*row.member == expected, row.value);
    }
    QCOMPARE(Stored("InitResourcePaths"), 1);
    desk_->Start();
    for (const Row& row : kRows) QVERIFY2(Shown(row) == (&row == &changed ? row.other : row.standard), row.control);
}

void FrmOptionsTest::keepsAllSettingsTogether()
{
    desk_->dialog->show();
    for (const Row& row : kRows) Set(row, row.other);
    Set(kRows[9], kRows[9].other);  // the colour had checked it again
    desk_->Click("btnOK");
    desk_->Start();
    for (const Row& row : kRows) QVERIFY2(Shown(row) == row.other, row.control);
    QCOMPARE(desk_->settings.LineWidth(), 1 / 100.0F);
}

void FrmOptionsTest::writesNothingBeforeOK()
{
    desk_->dialog->show();
    for (const Row& row : kRows) Set(row, row.other);
    for (const Row& row : kRows) QVERIFY2(Stored(row.value) == -1, row.value);
    QCOMPARE(Stored("InitResourcePaths"), -1);
}

void FrmOptionsTest::showsTheSettingsInForceWhenItOpens()
{
    for (const Row& row : kRows) desk_->settings.*row.member = row.other;
    desk_->dialog->show();
    for (const Row& row : kRows) QVERIFY2(Shown(row) == row.other, row.control);
}

void FrmOptionsTest::takesADefaultForAValueOutOfRange()
{
    desk_->settings.Language = 7;
    desk_->settings.DefaultMeasurement = 99;
    desk_->settings.NormalLineWidth = -1;
    desk_->dialog->show();
    desk_->Click("btnOK");
    QCOMPARE(desk_->settings.Language, 1);
    QCOMPARE(desk_->settings.DefaultMeasurement, 0);
    QCOMPARE(desk_->settings.NormalLineWidth, 1);
}

void FrmOptionsTest::offersFixedChoices()
{
    const auto texts = [&](const char* name) {
        const auto& list = desk_->Find<QComboBox>(name);
        QStringList items;
        for (int i = 0; i < list.count(); ++i) items += list.itemText(i);
        return items;
    };
    for (const int language : {1, 2, 3}) {
        Set(kRows[3], language);
        QCOMPARE(texts("cboDefMeasure"),
                 QStringList({"inch", "cm", "mm", "points", "pels (240 ppi)", "pels (300 ppi)", "pels (600 ppi)"}));
        QCOMPARE(texts("cboDefNormalLineWidth"), QStringList({"1/100 inch", "1/120 inch"}));
    }
    const auto& widths = desk_->Find<QComboBox>("cboDefNormalLineWidth");
    QCOMPARE(widths.itemData(0).toInt(), 100);
    QCOMPARE(widths.itemData(1).toInt(), 120);
}

void FrmOptionsTest::cancelForgetsTheControls_data()
{
    QTest::addColumn<QString>("way");
    for (const char* const way : {"button", "escape", "close"}) QTest::newRow(way) << way;
}

void FrmOptionsTest::cancelForgetsTheControls()
{
    QFETCH(const QString, way);
    QSignalSpy confirmed(desk_->dialog.get(), &frmOptions::Confirmed);
    desk_->dialog->show();
    for (const Row& row : kRows)
        if (!QString(row.control).startsWith("cmd")) Set(row, row.other);
    if (way == "button") desk_->Click("btnCancel");
    if (way == "escape") QTest::keyClick(&desk_->Find<QCheckBox>("chkShowNOP"), Qt::Key_Escape);
    if (way == "close") desk_->dialog->close();
    QVERIFY(!desk_->dialog->isVisible());
    QCOMPARE(confirmed.size(), 0);
    for (const Row& row : kRows) QVERIFY2(desk_->settings.*row.member == row.standard, row.value);
    desk_->dialog->show();
    for (const Row& row : kRows) QVERIFY2(Shown(row) == row.standard, row.control);
}

void FrmOptionsTest::cancelKeepsTheCodepage()
{
    desk_->dialog->show();
    desk_->Click("btnOK");
    desk_->dialog->show();
    ChooseCodepage("cmdCodepageNOP", 850);
    QCOMPARE(desk_->settings.CodepageNOP, 850);
    desk_->Click("btnCancel");
    QCOMPARE(desk_->settings.CodepageNOP, 850);
    QCOMPARE(desk_->settings.Codepage, 37);
    QCOMPARE(Stored("CodepageNOP"), 37);
    desk_->dialog->show();
    QCOMPARE(desk_->Find<QPushButton>("cmdCodepageNOP").text(), QString("850"));
    desk_->Click("btnCancel");
    desk_->Start();
    QCOMPARE(desk_->Find<QPushButton>("cmdCodepageNOP").text(), QString("37"));
}

void FrmOptionsTest::aCancelledChooserLeavesThePage()
{
    const Answer<frmCodepage> answer([](frmCodepage& chooser) {
        Select(*chooser.findChild<QListWidget*>("lstCodepage"), 500);
        chooser.findChild<QPushButton*>("btnCancel")->click();
    });
    desk_->Click("cmdCodepage");
    QVERIFY(answer.answered);
    QCOMPARE(desk_->settings.Codepage, 37);
    QCOMPARE(desk_->Find<QPushButton>("cmdCodepage").text(), QString("37"));
}

void FrmOptionsTest::theChooserSpeaksAsTheDialogDoes()
{
    desk_->settings.CodepageTLE = 273;
    desk_->settings.Language = 2;
    desk_->dialog->show();
    QStringList words;
    int selected = 0;
    const Answer<frmCodepage> answer([&](frmCodepage& chooser) {
        words << chooser.windowTitle() << chooser.findChild<QGroupBox*>("fraCodepage")->title();
        words << chooser.findChild<QPushButton*>("btnOK")->text().remove('&');
        words << chooser.findChild<QPushButton*>("btnCancel")->text().remove('&');
        selected = chooser.findChild<QListWidget*>("lstCodepage")->currentItem()->data(Qt::UserRole).toInt();
        chooser.reject();
    });
    desk_->Click("cmdCodepageTLE");
    QCOMPARE(words, QStringList({"Codepage für TLE-SFs", "Codepage", "OK", "Abbrechen"}));
    QCOMPARE(selected, 273);
}

void FrmOptionsTest::namesThePagesBesideTheirNumbers()
{
    ChooseCodepage("cmdCodepage", 500);
    QCOMPARE(desk_->Find<QLabel>("lblCodepageName").text(), QString("EBCDIC, International"));
    QCOMPARE(desk_->Find<QPushButton>("cmdCodepage").accessibleDescription(), QString("500, EBCDIC, International"));
    QCOMPARE(desk_->Find<QLabel>("lblCodepageNOPName").text(), QString("EBCDIC, USA/Canada"));
}

void FrmOptionsTest::aChangedColourColoursTheFolders()
{
    desk_->settings.FolderColored = 0;
    desk_->dialog->show();
    QColor asked;
    desk_->dialog->SetColourQuestion([&](const QColor& inForce) {
        asked = inForce;
        return QColor(0x01, 0x02, 0x03);
    });
    desk_->Click("btnFolderColor");
    QCOMPARE(asked, QColor(0x80, 0x80, 0xFF));
    QVERIFY(desk_->Find<QCheckBox>("chkFolderColored").isChecked());
    QCOMPARE(desk_->settings.FolderColor, kLightBlue);
    desk_->Click("btnOK");
    QCOMPARE(desk_->settings.FolderColor, 0x030201);
    QCOMPARE(desk_->settings.FolderColored, 1);
}

void FrmOptionsTest::anUnchangedColourChangesNothing_data()
{
    QTest::addColumn<QColor>("chosen");
    QTest::newRow("cancelled") << QColor();
    QTest::newRow("the same") << QColor(0x80, 0x80, 0xFF);
}

void FrmOptionsTest::anUnchangedColourChangesNothing()
{
    QFETCH(const QColor, chosen);
    desk_->settings.FolderColored = 0;
    desk_->dialog->show();
    desk_->dialog->SetColourQuestion([&](const QColor&) { return chosen; });
    desk_->Click("btnFolderColor");
    QVERIFY(!desk_->Find<QCheckBox>("chkFolderColored").isChecked());
    QCOMPARE(desk_->Find<ColourButton>("btnFolderColor").Colour(), kLightBlue);
}

void FrmOptionsTest::theColourIsToldInWords()
{
    const auto& button = desk_->Find<ColourButton>("btnFolderColor");
    QCOMPARE(button.accessibleDescription(), QString("#8080FF"));
    Set(kRows[10], kOther);
    QCOMPARE(button.accessibleDescription(), QString("#302010"));
    const QSize size = button.iconSize();
    const QImage swatch = button.icon().pixmap(size).toImage();
    QCOMPARE(swatch.pixelColor(swatch.width() / 2, swatch.height() / 2), QColor(0x30, 0x20, 0x10));
}

void FrmOptionsTest::enterIsOK()
{
    QSignalSpy confirmed(desk_->dialog.get(), &frmOptions::Confirmed);
    for (const char* const name : {"lstLanguage", "chkShowNOP", "cboDefMeasure", "lstResources"}) {
        desk_->dialog->show();
        confirmed.clear();
        QTest::keyClick(&desk_->Find<QWidget>(name), Qt::Key_Return);
        QVERIFY2(confirmed.size() == 1, name);
        QVERIFY(!desk_->dialog->isVisible());
    }
}

void FrmOptionsTest::theFirstStartCanOnlyBeConfirmed()
{
    QVERIFY(IsFirstStart(desk_->store));
    desk_->dialog->SetCancelEnabled(false);
    desk_->dialog->show();
    QVERIFY(!desk_->Find<QPushButton>("btnCancel").isEnabled());
    Set(kRows[5], 0);
    QTest::keyClick(&desk_->Find<QCheckBox>("chkShowNOP"), Qt::Key_Escape);
    QVERIFY(desk_->dialog->isVisible());
    QVERIFY(!desk_->dialog->close());
    QVERIFY(desk_->dialog->isVisible());
    QCOMPARE(Shown(kRows[5]), 0);  // nothing was taken back
    desk_->Click("btnOK");
    QVERIFY(!desk_->dialog->isVisible());
    QVERIFY(!IsFirstStart(desk_->store));

    desk_->dialog->SetCancelEnabled(true);
    desk_->dialog->show();
    QTest::keyClick(desk_->dialog.get(), Qt::Key_Escape);
    QVERIFY(!desk_->dialog->isVisible());
}

void FrmOptionsTest::beginsAtTheTabsEachTime()
{
    for (int time = 0; time < 2; ++time) {
        desk_->dialog->show();
        QCOMPARE(desk_->dialog->focusWidget(), desk_->Find<QTabWidget>("TabOptions").tabBar());
        desk_->Find<QPushButton>("btnOK").setFocus();
        desk_->Click("btnCancel");
    }
}

void FrmOptionsTest::staysAtTheTabThatWasLast()
{
    auto& tabs = desk_->Find<QTabWidget>("TabOptions");
    QStringList keys, pages;
    for (int i = 0; i < tabs.count(); ++i) {
        keys += tabs.tabBar()->tabData(i).toString();
        pages += tabs.widget(i)->objectName();
    }
    QCOMPARE(keys, QStringList({"Language", "Codepage", "Tree", "Advanced", "Resources"}));
    QCOMPARE(pages, QStringList({"picTab0", "picTab1", "picTab2", "picTab3", "picTab4"}));
    desk_->dialog->show();
    QCOMPARE(tabs.currentIndex(), 0);
    tabs.setCurrentIndex(3);
    desk_->Click("btnCancel");
    desk_->dialog->show();
    QCOMPARE(tabs.currentIndex(), 3);
    QVERIFY(desk_->Find<QWidget>("picTab3").isVisible());
    QVERIFY(!desk_->Find<QWidget>("picTab0").isVisible());
}

}  // namespace folioscope

QTEST_MAIN(folioscope::FrmOptionsTest)
#include "frmOptions_test.moc"
