#include "viewers/frmOptions.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QShowEvent>
#include <QStyle>
#include <QTabBar>
#include <QTabWidget>

#include <algorithm>

#include "base/settings_store.h"
#include "viewers/access_keys.h"
#include "viewers/colour_button.h"
#include "viewers/frmCodepage.h"
#include "viewers/qt_text.h"
#include "viewers/resource_folders.h"
#include "viewers/resource_lists.h"

namespace folioscope {

namespace {

constexpr Label kNote = U("Note: Some AFP files don't contain code page information or provide false ones. Therefore "
                          "you should choose the target system's code page here!");

QString WithoutKey(QString text) { return text.remove(QLatin1Char('&')); }

// A row of its own below the rows that are there; what doesn't show its own text has it in front.
void AddTo(QGridLayout& grid, const OptionControl& part)
{
    const int row = grid.rowCount(), all = -1;
    if (part.label == nullptr) {
        const bool fills = part.option->kind == OptionKind::List;
        grid.addWidget(part.control, row, 0, 1, all, fills ? Qt::Alignment() : Qt::AlignLeft);
        return;
    }
    grid.addWidget(part.label, row, 0);
    grid.addWidget(part.control, row, 1);
    if (part.codepage != nullptr) grid.addWidget(part.codepage, row, 2);
    grid.setColumnStretch(2, 1);
}

}  // namespace

frmOptions::frmOptions(clsSillyFunctions& store, Settings& settings, const QString& programFolder, QWidget* parent)
    : QDialog(parent), store_(store), settings_(settings), programFolder_(programFolder), TabOptions_(new QTabWidget),
      lblNote_(new QLabel), fraResources_(new ResourceFolders), btnOK_(new QPushButton), btnCancel_(new QPushButton)
{
    setObjectName(QStringLiteral("frmOptions"));
    TabOptions_->setObjectName(QStringLiteral("TabOptions"));
    TabOptions_->setUsesScrollButtons(false);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(TabOptions_);
    MakePages();
    MakeControls();
    MakeButtons();
    OrderTabs();
    ConnectControls();
    SetTexts(Labels(settings_.InterfaceLanguage()));
    LoadControls();
}

// ---------------------------------------------------------------------------------------------------------- the parts

void frmOptions::MakePages()
{
    const auto pages = OptionsPages();
    for (std::size_t i = 0; i < pages.size(); ++i) {
        auto* const page = new QWidget;
        page->setObjectName(QStringLiteral("picTab") + QString::number(i));
        new QVBoxLayout(page);
        TabOptions_->addTab(page, QString());
        TabOptions_->tabBar()->setTabData(static_cast<int>(i), QLatin1String(pages[i].key));
        picTab_.push_back(page);
    }
    for (const OptionsFrame& row : OptionsFrames()) {
        auto* const frame = new QGroupBox;
        frame->setObjectName(QLatin1String(row.name));
        new QGridLayout(frame);
        picTab_[static_cast<std::size_t>(row.page)]->layout()->addWidget(frame);
        frames_.push_back(frame);
    }
    for (QWidget* const page : picTab_)
        if (page != picTab_.back()) static_cast<QVBoxLayout*>(page->layout())->addStretch();
    fraResources_->setObjectName(QStringLiteral("fraResources"));
    picTab_.back()->layout()->addWidget(fraResources_);
}

void frmOptions::MakeControls()
{
    lblNote_->setObjectName(QStringLiteral("lblNote"));
    lblNote_->setWordWrap(true);
    lblNote_->setContentsMargins(0, 0, 0, style()->pixelMetric(QStyle::PM_LayoutVerticalSpacing));
    static_cast<QGridLayout*>(Frame("fraCodepage")->layout())->addWidget(lblNote_, 0, 0, 1, -1);
    for (const Option& option : Options()) {
        controls_.push_back(MakeOptionControl(option));
        AddTo(static_cast<QGridLayout&>(*Frame(option.frame)->layout()), controls_.back());
    }
}

void frmOptions::MakeButtons()
{
    btnOK_->setObjectName(QStringLiteral("btnOK"));
    btnCancel_->setObjectName(QStringLiteral("btnCancel"));
    auto* const buttons = new QDialogButtonBox;
    buttons->addButton(btnOK_, QDialogButtonBox::AcceptRole);
    buttons->addButton(btnCancel_, QDialogButtonBox::RejectRole);
    layout()->addWidget(buttons);
    btnOK_->setDefault(true);  // which counts in the dialog only
    connect(buttons, &QDialogButtonBox::accepted, this, &frmOptions::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &frmOptions::reject);
}

void frmOptions::ConnectControls()
{
    for (const OptionControl& control : controls_) {
        if (control.option->kind == OptionKind::List)
            connect(static_cast<QListWidget*>(control.control), &QListWidget::currentRowChanged, this,
                    &frmOptions::ChooseLanguage);
        if (control.option->kind == OptionKind::Codepage)
            connect(static_cast<QPushButton*>(control.control), &QPushButton::clicked, this,
                    [this, control] { ChooseCodepage(control); });
        if (control.option->kind == OptionKind::Colour)
            connect(static_cast<QPushButton*>(control.control), &QPushButton::clicked, this, &frmOptions::ChooseColour);
    }
}

// From the tabs through the pages, as the eye goes, to the buttons below.
void frmOptions::OrderTabs()
{
    QList<QWidget*> order = {TabOptions_};
    for (const QGroupBox* const frame : frames_)
        for (const OptionControl& control : controls_)
            if (control.control->parentWidget() == frame) order += control.control;
    for (const char* const name : {"lstResources", "cmdResourcesAdd", "cmdResourcesRemove"})
        order += findChild<QWidget*>(QLatin1String(name));
    order += btnOK_;
    order += btnCancel_;
    for (qsizetype i = 1; i < order.size(); ++i) setTabOrder(order[i - 1], order[i]);
}

const OptionControl& frmOptions::ControlOf(std::int32_t Settings::*member) const
{
    return *std::ranges::find_if(controls_, [&](const auto& control) { return control.option->member == member; });
}

QGroupBox* frmOptions::Frame(const char* name) const { return findChild<QGroupBox*>(QLatin1String(name)); }

// ---------------------------------------------------------------------------------------------------------- the words

void frmOptions::SetTexts(const Labels& texts)
{
    shown_ = texts.InForce();
    setWindowTitle(ToQt(texts, U("Options")));
    TabOptions_->setAccessibleName(windowTitle());
    TabOptions_->tabBar()->setAccessibleName(windowTitle());
    for (std::size_t i = 0; i < picTab_.size(); ++i)
        TabOptions_->setTabText(static_cast<int>(i), ToQt(texts, OptionsPages()[i].caption));
    for (std::size_t i = 0; i < frames_.size(); ++i) frames_[i]->setTitle(ToQt(texts, OptionsFrames()[i].title));
    for (const OptionControl& control : controls_) SetOptionText(control, texts);
    lblNote_->setText(ToQt(texts, kNote));
    fraResources_->SetTexts(texts);
    btnOK_->setText(ToQt(texts, U("OK")));
    btnCancel_->setText(ToQt(texts, U("Cancel")));
    SetAccessKeys();
}

// The buttons below have theirs apart from the keys of all pages.
void frmOptions::SetAccessKeys()
{
    QSet<QChar> ofPages;
    for (const QWidget* const page : picTab_) ofPages += AccessKeysOf(PartsOf(*page));
    const QList<QWidget*> below = {btnOK_, btnCancel_};
    GiveAccessKeys(below, ofPages);
    for (const QWidget* const page : picTab_) GiveAccessKeys(PartsOf(*page), AccessKeysOf(below));
}

// What has a key by the catalog comes first.
QList<QWidget*> frmOptions::PartsOf(const QWidget& page) const
{
    QList<QWidget*> parts = page.findChildren<QWidget*>();
    std::stable_partition(parts.begin(), parts.end(), [](QWidget* part) { return !AccessKeysOf({part}).isEmpty(); });
    return parts;
}

void frmOptions::SetCancelEnabled(bool enabled) { btnCancel_->setEnabled(enabled); }

// ------------------------------------------------------------------------------------------------ opening and leaving

void frmOptions::LoadControls()
{
    for (const OptionControl& control : controls_) ShowOption(control, settings_.*control.option->member);
    ChooseLanguage();
    LoadResourceFolders();
}

void frmOptions::LoadResourceFolders()
{
    if (HasSetting(store_, "InitResourcePaths")) {
        fraResources_->SetPaths(ReadResourcePaths(store_.GetAllUsersAppDir()));
        return;
    }
    const QString first = programFolder_ + QLatin1String("/resources");
    QDir().mkdir(first);
    fraResources_->SetPaths({first.toStdString()});
}

void frmOptions::showEvent(QShowEvent* event)
{
    if (!event->spontaneous()) {
        LoadControls();
        TabOptions_->setFocus();
    }
    QDialog::showEvent(event);
}

void frmOptions::accept()
{
    for (const OptionControl& control : controls_) settings_.*control.option->member = ValueShown(control);
    WriteSettings(store_, settings_);
    WriteResourcePaths(store_.GetAllUsersAppDir(), fraResources_->Paths());
    QDialog::accept();
    Q_EMIT Confirmed();
}

void frmOptions::reject()
{
    if (!btnCancel_->isEnabled()) return;
    LoadControls();
    QDialog::reject();
}

// ----------------------------------------------------------------------------------------------------------- choosing

void frmOptions::ChooseLanguage()
{
    const auto language = static_cast<Language>(ValueShown(ControlOf(&Settings::Language)));
    Frame("fraLanguageOptions")->setEnabled(language != Language::English);
    if (language == shown_) return;
    SetTexts(Labels(language));
    Q_EMIT LanguageChosen(language);
}

void frmOptions::ChooseCodepage(const OptionControl& control)
{
    std::int32_t& setting = settings_.*control.option->member;
    frmCodepage chooser(this);
    chooser.SetCaptions(WithoutKey(control.label->text()), Frame("fraCodepage")->title(), btnOK_->text(),
                        btnCancel_->text());
    chooser.Init(setting);
    chooser.exec();
    if (chooser.Result() <= 0) return;
    setting = chooser.Result();
    ShowOption(control, setting);
}

void frmOptions::ChooseColour()
{
    auto& button = static_cast<ColourButton&>(*ControlOf(&Settings::FolderColor).control);
    const QColor inForce = ColourOf(button.Colour());
    const QColor chosen = askColour_ ? askColour_(inForce) : AskColour(inForce);
    if (!chosen.isValid() || NumberOf(chosen) == button.Colour()) return;
    button.SetColour(NumberOf(chosen));
    ShowOption(ControlOf(&Settings::FolderColored), 1);
}

QColor frmOptions::AskColour(const QColor& inForce)
{
    const QString title = ControlOf(&Settings::FolderColor).control->accessibleName();
    return QColorDialog::getColor(inForce, this, QString(title).remove(QLatin1String(" ...")));
}

}  // namespace folioscope
