#include "viewers/options_controls.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>

#include "viewers/codepage_text.h"
#include "viewers/colour_button.h"
#include "viewers/qt_text.h"

namespace folioscope {

namespace {

// clang-format off
constexpr OptionsPage kPages[] = {
    {"Language",  U("Language")},
    {"Codepage",  U("Code page")},
    {"Tree",      U("Tree")},
    {"Advanced",  U("Advanced")},
    {"Resources", U("Resources")},
};

constexpr OptionsFrame kFrames[] = {
    {"fraLanguage",        0, U("Program Language")},
    {"fraLanguageOptions", 0, U("Language options")},
    {"fraCodepage",        1, U("Code page")},
    {"fraNodeOptions",     2, U("Node options")},
    {"fraFolders",         2, U("Folders")},
    {"fraMeasurement",     3, U("&Measurement Options")},
    {"fraPreview",         3, U("&Preview")},
    {"fraWindows",         3, Label::None},
};

constexpr Choice kLanguages[] = {{"English", 1}, {"Deutsch", 2}, {"Français", 3}};
constexpr Choice kLineWidths[] = {{"1/100 inch", 100}, {"1/120 inch", 120}};
constexpr Choice kMeasurements[] = {
    {"inch", 0}, {"cm", 1}, {"mm", 2}, {"points", 3}, {"pels (240 ppi)", 4}, {"pels (300 ppi)", 5}, {"pels (600 ppi)", 6},
};

using enum OptionKind;
using S = Settings;
constexpr Option kOptions[] = {
    {"cmdCodepage",           Codepage, "fraCodepage",        &S::Codepage,           U("&Default code page")},
    {"cmdCodepageNOP",        Codepage, "fraCodepage",        &S::CodepageNOP,        U("Code page for &NOP-SF's")},
    {"cmdCodepageTLE",        Codepage, "fraCodepage",        &S::CodepageTLE,        U("Code page for &TLE-SF's")},
    {"lstLanguage",           List,     "fraLanguage",        &S::Language,           U("Program Language"), kLanguages},
    {"chkTechnicalEnglish",   Check,    "fraLanguageOptions", &S::TechnicalEnglish,   U("Analysis in english")},
    {"chkShowNOP",            Check,    "fraNodeOptions",     &S::ShowNOP,            U("Show NOP and TLE contents")},
    {"chkShowBESF",           Check,    "fraNodeOptions",     &S::ShowBESF,           U("Show names in Begin-/End-SF's")},
    {"chkShowIISF",           Check,    "fraNodeOptions",     &S::ShowIISF,           U("Show names in Invoke-/Include-SF's")},
    {"chkFolderBold",         Check,    "fraFolders",         &S::FolderBold,         U("bold")},
    {"chkFolderColored",      Check,    "fraFolders",         &S::FolderColored,      U("colored")},
    {"btnFolderColor",        Colour,   "fraFolders",         &S::FolderColor,        U("Folder color ...")},
    {"cboDefMeasure",         DropDown, "fraMeasurement",     &S::DefaultMeasurement, U("&Default Measurement"), kMeasurements},
    {"cboDefNormalLineWidth", DropDown, "fraMeasurement",     &S::NormalLineWidth,    U("Normal line &width"), kLineWidths},
    {"chkCPAutoDetect",       Check,    "fraCodepage",        &S::CodePageAutoDetect, U("Auto-detect code page from triplet")},
    {"chkUsePreview",         Check,    "fraPreview",         &S::UsePreviewWindow,   U("&Show documents in preview window")},
    {"chkHexViewer",          Check,    "fraWindows",         &S::HexViewer,          U("Show &hex viewer")},
    {"chkMessageWindow",      Check,    "fraWindows",         &S::MessageWindow,      U("Show messages on analysis")},
    {"chkUseAutoRotation",    Check,    "fraPreview",         &S::UseAutoRotation,    U("Use auto &rotation on page basis")},
};
// clang-format on

QWidget* MakeList(const Option& option)
{
    auto* const list = new QListWidget;
    for (const Choice& choice : option.choices)
        (new QListWidgetItem(QString::fromUtf8(choice.text), list))->setData(Qt::UserRole, choice.data);
    list->setSizeAdjustPolicy(QAbstractItemView::AdjustToContents);
    list->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    return list;
}

QWidget* MakeDropDown(const Option& option)
{
    auto* const list = new QComboBox;
    for (const Choice& choice : option.choices) list->addItem(QString::fromUtf8(choice.text), choice.data);
    return list;
}

QWidget* MakeControl(const Option& option)
{
    switch (option.kind) {
    case List: return MakeList(option);
    case DropDown: return MakeDropDown(option);
    case Check: return new QCheckBox;
    case Codepage: return new QPushButton;
    case Colour: return new ColourButton;
    }
    return nullptr;
}

void SelectData(QListWidget& list, std::int32_t value, std::int32_t standard)
{
    const auto row = [&](std::int32_t data) {
        for (int i = 0; i < list.count(); ++i)
            if (list.item(i)->data(Qt::UserRole).toInt() == data) return i;
        return -1;
    };
    list.setCurrentRow(row(value) >= 0 ? row(value) : row(standard));
}

void ShowCodepage(const OptionControl& control, std::int32_t number)
{
    control.control->setProperty("text", QString::number(number));
    control.control->setAccessibleDescription(TextOfCodepage(number));
    control.codepage->setText(TextOfCodepage(number).section(QLatin1String(", "), 1));
}

}  // namespace

std::span<const OptionsPage> OptionsPages() { return kPages; }

std::span<const OptionsFrame> OptionsFrames() { return kFrames; }

std::span<const Option> Options() { return kOptions; }

OptionControl MakeOptionControl(const Option& option)
{
    OptionControl made = {&option, MakeControl(option)};
    const QString name = QLatin1String(option.name);
    made.control->setObjectName(name);
    if (option.kind == DropDown || option.kind == Codepage) {
        made.label = new QLabel;
        made.label->setObjectName(QLatin1String("lbl") + name.mid(3));
        made.label->setBuddy(made.control);
    }
    if (option.kind == Codepage) {
        made.codepage = new QLabel;
        made.codepage->setObjectName(made.label->objectName() + QLatin1String("Name"));
    }
    return made;
}

void SetOptionText(const OptionControl& control, const Labels& texts)
{
    const QString text = ToQt(texts, control.option->text);
    control.control->setAccessibleName(QString(text).remove(QLatin1Char('&')));
    if (control.label != nullptr)
        control.label->setText(text);
    else if (control.option->kind != List)
        control.control->setProperty("text", text);
}

void ShowOption(const OptionControl& control, std::int32_t value)
{
    const Option& option = *control.option;
    const std::int32_t standard = Settings().*option.member;
    switch (option.kind) {
    case List: return SelectData(static_cast<QListWidget&>(*control.control), value, standard);
    case DropDown: {
        const bool known = value >= 0 && value < static_cast<std::int32_t>(option.choices.size());
        return static_cast<QComboBox*>(control.control)->setCurrentIndex(known ? value : standard);
    }
    case Check: return static_cast<QCheckBox*>(control.control)->setChecked(value != 0);
    case Codepage: return ShowCodepage(control, value);
    case Colour: return static_cast<ColourButton*>(control.control)->SetColour(value);
    }
}

std::int32_t ValueShown(const OptionControl& control)
{
    const QWidget* const shown = control.control;
    switch (control.option->kind) {
    case List: return static_cast<const QListWidget*>(shown)->currentItem()->data(Qt::UserRole).toInt();
    case DropDown: return static_cast<const QComboBox*>(shown)->currentIndex();
    case Check: return static_cast<const QCheckBox*>(shown)->isChecked() ? 1 : 0;
    case Codepage: return static_cast<const QPushButton*>(shown)->text().toInt();
    case Colour: return static_cast<const ColourButton*>(shown)->Colour();
    }
    return 0;
}

}  // namespace folioscope
