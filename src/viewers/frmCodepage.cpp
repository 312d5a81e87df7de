#include "viewers/frmCodepage.h"

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include "viewers/codepage_text.h"

namespace folioscope {

namespace {

constexpr int kRows = 16;  // of the list, at first

}  // namespace

frmCodepage::frmCodepage(QWidget* parent)
    : QDialog(parent), fraCodepage_(new QGroupBox), lstCodepage_(new QListWidget), btnOK_(new QPushButton),
      btnCancel_(new QPushButton)
{
    setObjectName(QStringLiteral("frmCodepage"));
    fraCodepage_->setObjectName(QStringLiteral("fraCodepage"));
    lstCodepage_->setObjectName(QStringLiteral("lstCodepage"));
    btnOK_->setObjectName(QStringLiteral("btnOK"));
    btnCancel_->setObjectName(QStringLiteral("btnCancel"));

    auto* const inFrame = new QVBoxLayout(fraCodepage_);
    inFrame->addWidget(lstCodepage_);
    auto* const buttons = new QDialogButtonBox;
    buttons->addButton(btnOK_, QDialogButtonBox::AcceptRole);
    buttons->addButton(btnCancel_, QDialogButtonBox::RejectRole);
    btnOK_->setEnabled(false);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(fraCodepage_);
    layout->addWidget(buttons);
    btnOK_->setDefault(true);
    lstCodepage_->setFocus();

    connect(buttons, &QDialogButtonBox::accepted, this, &frmCodepage::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &frmCodepage::reject);
    connect(lstCodepage_, &QListWidget::itemDoubleClicked, this, &frmCodepage::accept);
    connect(lstCodepage_, &QListWidget::itemSelectionChanged, this,
            [this] { btnOK_->setEnabled(!lstCodepage_->selectedItems().isEmpty()); });
}

void frmCodepage::SetCaptions(const QString& window, const QString& frame, const QString& ok, const QString& cancel)
{
    setWindowTitle(window);
    fraCodepage_->setTitle(frame);
    lstCodepage_->setAccessibleName(QString(frame).remove(QLatin1Char('&')));
    btnOK_->setText(ok);
    btnCancel_->setText(cancel);
}

void frmCodepage::Init(std::int32_t codepage)
{
    result_ = 0;
    lstCodepage_->clear();
    QListWidgetItem* chosen = nullptr;
    for (const std::int32_t number : clsCPConversions::AvailableCodepages()) {
        auto* const item = new QListWidgetItem(TextOfCodepage(number), lstCodepage_);
        item->setData(Qt::UserRole, number);
        if (number == codepage && chosen == nullptr) chosen = item;
    }
    lstCodepage_->setCurrentItem(chosen);
    const int frame = 2 * lstCodepage_->frameWidth();
    lstCodepage_->setMinimumWidth(lstCodepage_->sizeHintForColumn(0) + frame +
                                  lstCodepage_->verticalScrollBar()->sizeHint().width());
    lstCodepage_->setMinimumHeight(lstCodepage_->sizeHintForRow(0) * kRows / 2 + frame);
    adjustSize();
    resize(width(), height() + lstCodepage_->sizeHintForRow(0) * kRows / 2);
}

void frmCodepage::accept()
{
    const auto chosen = lstCodepage_->selectedItems();
    if (chosen.isEmpty()) return;
    result_ = chosen.constFirst()->data(Qt::UserRole).toInt();
    QDialog::accept();
}

void frmCodepage::reject()
{
    result_ = 0;
    QDialog::reject();
}

void frmCodepage::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (lstCodepage_->currentItem() != nullptr)
        lstCodepage_->scrollToItem(lstCodepage_->currentItem(), QAbstractItemView::PositionAtCenter);
}

}  // namespace folioscope
