#pragma once

#include <QDialog>

#include "base/labels.h"
#include "document/document.h"

class QCheckBox;
class QLineEdit;

namespace folioscope {

// Asks what to find. Whichever way it is cancelled, the term is empty then.
class frmFind final : public QDialog {
    Q_OBJECT

public:
    frmFind(const Labels& texts, const FindTerm& term, QWidget* parent = nullptr);

    FindTerm Term() const;  // in capitals

    void reject() override;

private:
    QLineEdit* TxtSearchText_;
    QCheckBox *chkNOPOnly_, *chkTLEOnly_;
};

}  // namespace folioscope
