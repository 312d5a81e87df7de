#pragma once

#include <QDialog>

#include "base/labels.h"

namespace folioscope {

// Tells what program this is.
class frmInformation final : public QDialog {
    Q_OBJECT

public:
    explicit frmInformation(const Labels& texts, QWidget* parent = nullptr);
};

}  // namespace folioscope
