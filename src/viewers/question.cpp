#include "viewers/question.h"

#include <QMessageBox>
#include <QPushButton>

#include "viewers/access_keys.h"
#include "viewers/qt_text.h"

namespace folioscope {

bool AskUser(QWidget* parent, const Labels& texts, const QString& question)
{
    QMessageBox box(QMessageBox::Question, ToQt(texts, U("Question")), question, QMessageBox::Yes | QMessageBox::No,
                    parent);
    box.setTextFormat(Qt::PlainText);
    box.button(QMessageBox::Yes)->setText(ToQt(texts, L("Yes")));
    box.button(QMessageBox::No)->setText(ToQt(texts, L("No")));
    GiveAccessKeys({box.button(QMessageBox::Yes), box.button(QMessageBox::No)}, {});
    return box.exec() == QMessageBox::Yes;
}

}  // namespace folioscope
