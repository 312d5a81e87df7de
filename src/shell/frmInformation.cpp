#include "shell/frmInformation.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "base/version.h"
#include "viewers/access_keys.h"
#include "viewers/qt_text.h"

namespace folioscope {

namespace {

constexpr char kProduct[] = "Folioscope Professional";
constexpr int kIconSize = 64, kSpace = 16;

QLabel* LineOf(const QString& text, const char* name)
{
    auto* const line = new QLabel(text);
    line->setObjectName(QLatin1String(name));
    line->setTextFormat(Qt::PlainText);
    line->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return line;
}

QLabel* Title()
{
    QLabel* const title = LineOf(QLatin1String(kProduct), "lblProduct");
    QFont font = title->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.5);
    title->setFont(font);
    return title;
}

}  // namespace

frmInformation::frmInformation(const Labels& texts, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmInformation"));
    setWindowTitle(QLatin1String(kProduct));
    auto* const cmdOK = new QPushButton(ToQt(texts, U("OK")));
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    auto* const buttons = new QDialogButtonBox;
    buttons->addButton(cmdOK, QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);

    auto* const layout = new QGridLayout(this);
    const QIcon icon = windowIcon();
    const int column = icon.isNull() ? 0 : 1;  // of the texts
    if (!icon.isNull()) {
        auto* const picture = new QLabel;
        picture->setPixmap(icon.pixmap(kIconSize));
        layout->addWidget(picture, 0, 0, 3, 1, Qt::AlignTop);
    }
    layout->addWidget(Title(), 0, column);
    layout->addWidget(LineOf(ToQt(texts, U("Version")) + QLatin1Char(' ') + ToQt(kVersion), "lblVersion"), 1, column);
    const QString date = ToQt(texts, U("Last change")) + QLatin1String(": ") + ToQt(kReleaseDate);
    layout->addWidget(LineOf(date, "lblLastChange"), 2, column);
    layout->setRowMinimumHeight(3, kSpace);
    layout->setRowStretch(3, 1);
    layout->addWidget(buttons, 4, 0, 1, column + 1);
    layout->setHorizontalSpacing(kSpace);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    GiveAccessKeys(*this);
}

}  // namespace folioscope
