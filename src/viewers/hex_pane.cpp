#include "viewers/hex_pane.h"

namespace folioscope {

HexPane::HexPane(std::int32_t, const Labels&, QWidget* parent) : QFrame(parent) {}

void HexPane::SetTexts(const Labels&) {}

void HexPane::SetFile(const QString&) {}

void HexPane::ShowRecord(std::int32_t, std::int32_t) {}

void HexPane::SetWindowWidth(int) {}

}  // namespace folioscope
