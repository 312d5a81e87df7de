#pragma once

#include <QDialog>

#include "base/clsSillyFunctions.h"
#include "base/labels.h"
#include "base/settings.h"

namespace folioscope {

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

Q_SIGNALS:
    // The language of the list: the whole program should be shown in it now, though it is no setting yet.
    void LanguageChosen(Language language);
    // OK: the settings in force and the resource lists have changed.
    void Confirmed();
};

}  // namespace folioscope
