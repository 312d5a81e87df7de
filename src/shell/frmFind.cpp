#include "shell/frmFind.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/text.h"
#include "viewers/access_keys.h"
#include "viewers/qt_text.h"

namespace folioscope {

namespace {

constexpr int kWidth = 420;  // at least

template <class Control> Control* Named(Control* control, const char* name)
{
    control->setObjectName(QLatin1String(name));
    return control;
}

}  // namespace

frmFind::frmFind(const Labels& texts, const FindTerm& term, QWidget* parent)
    : QDialog(parent), TxtSearchText_(Named(new QLineEdit, "TxtSearchText")),
      chkNOPOnly_(Named(new QCheckBox(ToQt(texts, U("Search NOPs only"))), "chkNOPOnly")),
      chkTLEOnly_(Named(new QCheckBox(ToQt(texts, U("Search TLEs only"))), "chkTLEOnly"))
{
    setObjectName(QStringLiteral("frmFind"));
    setWindowTitle(ToQt(texts, U("Find String")));
    setMinimumWidth(kWidth);
    const QString hint = ToQt(texts, U("Please enter your search criteria. The search starts at the beginning and is "
                                       "case insensitive."));
    auto* const lblHint = Named(new QLabel(hint), "lblHint");
    lblHint->setWordWrap(true);
    TxtSearchText_->setAccessibleName(windowTitle());
    TxtSearchText_->setAccessibleDescription(hint);
    TxtSearchText_->setText(ToQt(term.strSearch));
    TxtSearchText_->selectAll();
    chkNOPOnly_->setChecked(term.bolNOPOnly);
    chkTLEOnly_->setChecked(term.bolTLEOnly);

    auto* const cmdOK = Named(new QPushButton(ToQt(texts, U("OK"))), "cmdOK");
    auto* const cmdCancel = Named(new QPushButton(ToQt(texts, U("Cancel"))), "cmdCancel");
    auto* const buttons = new QDialogButtonBox;
    buttons->addButton(cmdOK, QDialogButtonBox::AcceptRole);
    buttons->addButton(cmdCancel, QDialogButtonBox::RejectRole);
    cmdOK->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* const layout = new QVBoxLayout(this);
    for (QWidget* const part : std::initializer_list<QWidget*>{lblHint, TxtSearchText_, chkNOPOnly_, chkTLEOnly_})
        layout->addWidget(part);
    layout->addStretch();
    layout->addWidget(buttons);
    GiveAccessKeys(*this);
    TxtSearchText_->setFocus();
}

void frmFind::reject()
{
    TxtSearchText_->clear();
    QDialog::reject();
}

FindTerm frmFind::Term() const
{
    FindTerm term{{}, chkNOPOnly_->isChecked(), chkTLEOnly_->isChecked()};
    AppendUpperCase(term.strSearch, TxtSearchText_->text().toStdString());
    return term;
}

}  // namespace folioscope
