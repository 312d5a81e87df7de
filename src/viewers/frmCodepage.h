#pragma once

#include <QDialog>

#include <cstdint>

namespace folioscope {

// Asks for a code page.
class frmCodepage final : public QDialog {
    Q_OBJECT

public:
    explicit frmCodepage(QWidget* parent = nullptr);

    void Init(std::int32_t codepage);
    // The number of the chosen page; 0: none was chosen.
    std::int32_t Result() const { return result_; }

private:
    std::int32_t result_ = 0;
};

}  // namespace folioscope
