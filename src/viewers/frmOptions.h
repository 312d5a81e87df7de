#pragma once

#include <QDialog>

#include <functional>
#include <utility>
#include <vector>

#include "base/clsSillyFunctions.h"
#include "base/labels.h"
#include "base/settings.h"
#include "viewers/options_controls.h"

class QGroupBox;
class QLabel;
class QPushButton;
class QTabWidget;

namespace folioscope {

class ResourceFolders;

// The options. The dialog lives as long as the program and edits the settings in force: OK writes them all, in the
// variables and in the store; the code page buttons change theirs at once.
class frmOptions final : public QDialog {
    Q_OBJECT

public:
    // Store and settings outlive the dialog. `programFolder` is where the program lies, without a slash at its end.
    frmOptions(clsSillyFunctions& store, Settings& settings, const QString& programFolder, QWidget* parent = nullptr);

    void SetTexts(const Labels& texts);
    // At the first start the options have to be confirmed: the dialog can't be left without OK.
    void SetCancelEnabled(bool enabled);

    // Asks for a colour in place of the dialog of the system; an invalid one changes nothing.
    void SetColourQuestion(std::function<QColor(const QColor& inForce)> ask) { askColour_ = std::move(ask); }

    void accept() override;
    void reject() override;

Q_SIGNALS:
    // The language of the list: the whole program should be shown in it now, though it is no setting yet.
    void LanguageChosen(Language language);
    // OK: the settings in force and the resource lists have changed.
    void Confirmed();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void MakePages();
    void MakeControls();
    void MakeButtons();
    void ConnectControls();
    void OrderTabs();
    void SetAccessKeys();
    QList<QWidget*> PartsOf(const QWidget& page) const;
    const OptionControl& ControlOf(std::int32_t Settings::*member) const;
    QGroupBox* Frame(const char* name) const;

    void LoadControls();
    void LoadResourceFolders();
    void ChooseLanguage();
    void ChooseCodepage(const OptionControl& control);
    void ChooseColour();
    QColor AskColour(const QColor& inForce);

    clsSillyFunctions& store_;
    Settings& settings_;
    QString programFolder_;
    QTabWidget* TabOptions_;
    QLabel* lblNote_;
    ResourceFolders* fraResources_;
    QPushButton *btnOK_, *btnCancel_;
    std::vector<QWidget*> picTab_;
    std::vector<QGroupBox*> frames_;       // as in OptionsFrames()
    std::vector<OptionControl> controls_;  // as in Options()
    Language shown_ = Language::English;
    std::function<QColor(const QColor&)> askColour_;
};

}  // namespace folioscope
