#include "viewers/frmOptions.h"

namespace folioscope {

frmOptions::frmOptions(clsSillyFunctions&, Settings&, const QString&, QWidget* parent) : QDialog(parent) {}

void frmOptions::SetTexts(const Labels&) {}

void frmOptions::SetCancelEnabled(bool) {}

}  // namespace folioscope
