#pragma once

#include <QDialog>

#include <cstdint>

class QGroupBox;
class QListWidget;
class QPushButton;

namespace folioscope {

// Asks for a code page.
class frmCodepage final : public QDialog {
    Q_OBJECT

public:
    explicit frmCodepage(QWidget* parent = nullptr);

    // The words are those of the window that asks. `frame` stands over the list.
    void SetCaptions(const QString& window, const QString& frame, const QString& ok, const QString& cancel);

    // Fills the list and selects the page.
    void Init(std::int32_t codepage);
    // The number of the chosen page; 0: none was chosen.
    std::int32_t Result() const { return result_; }

    void accept() override;
    void reject() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    QGroupBox* fraCodepage_;
    QListWidget* lstCodepage_;
    QPushButton *btnOK_, *btnCancel_;
    std::int32_t result_ = 0;
};

}  // namespace folioscope
