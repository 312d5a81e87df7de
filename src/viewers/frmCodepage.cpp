#include "viewers/frmCodepage.h"

namespace folioscope {

frmCodepage::frmCodepage(QWidget* parent) : QDialog(parent) {}

void frmCodepage::Init(std::int32_t) {}

}  // namespace folioscope
