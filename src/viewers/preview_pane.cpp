#include "viewers/preview_pane.h"

namespace folioscope {

PreviewPane::PreviewPane(QWidget* parent) : QFrame(parent) {}

void PreviewPane::SetTexts(const Labels&) {}

}  // namespace folioscope
