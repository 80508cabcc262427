#include "renumber/RenumberDialog.h"

#include "platform/NumberBox.h"
#include "platform/Prompts.h"

#include <QKeyEvent>
#include <QPushButton>

RenumberDialog::RenumberDialog(Prompts &prompts, Enter inBox, QWidget *parent)
    : QDialog(parent), m_prompts(prompts), m_inBox(inBox)
{
}

void RenumberDialog::connectForm(const QPushButton &cancel, NumberBox &first)
{
    NumberBox::connectBeeps(*this, m_prompts);
    connect(&cancel, &QPushButton::clicked, this, &RenumberDialog::CancelButton_Click);
    first.setFocus();
}

void RenumberDialog::CancelButton_Click()
{
    reject();
}

// Where Enter beeps there is no default button, and Enter comes here from the buttons too.
void RenumberDialog::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter || m_inBox == Enter::Confirms)
        QDialog::keyPressEvent(event);
    else if (auto *button = qobject_cast<QPushButton *>(focusWidget()))
        button->click();
    else
        m_prompts.beep();
}

void fillRange(const Variables &variables, NumberBox &low, NumberBox &high)
{
    low.setText(QString::number(variables.LowestWritten));
    high.setText(QString::number(variables.HighestWritten));
}
