#include "widgets/NumberDialog.h"

#include "platform/Prompts.h"
#include "widgets/NumberBox.h"

#include <QKeyEvent>
#include <QLayout>
#include <QPushButton>
#include <QScreen>

NumberDialog::NumberDialog(Prompts &prompts, Enter inBox, QWidget *parent)
    : QDialog(parent), m_prompts(prompts), m_inBox(inBox)
{
}

void NumberDialog::connectForm(const QPushButton &cancel, NumberBox &first)
{
    NumberBox::connectBeeps(*this, m_prompts);
    connect(&cancel, &QPushButton::clicked, this, &NumberDialog::CancelButton_Click);
    first.setFocus();
}

void NumberDialog::CancelButton_Click()
{
    reject();
}

// Where Enter beeps there is no default button, and Enter comes here from the buttons too.
void NumberDialog::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter || m_inBox == Enter::Confirms)
        QDialog::keyPressEvent(event);
    else if (auto *button = qobject_cast<QPushButton *>(focusWidget()))
        button->click();
    else
        m_prompts.beep();
}

// The smallest height that a layout asks for by itself takes no account of captions that wrap.
void NumberDialog::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    if (layout()->hasHeightForWidth())
        setMinimumHeight(layout()->totalMinimumHeightForWidth(width()));
}

// Frames and the title are not known before the window is there; 48 pixels hold all common ones.
void NumberDialog::showEvent(QShowEvent *event)
{
    constexpr int title = 48;
    const QSize room = screen()->availableSize() - QSize(0, title);
    resize(size().boundedTo(room));
    QDialog::showEvent(event);
}

void fillRange(NumberBox &low, NumberBox &high, int lowest, int highest)
{
    low.setText(QString::number(lowest));
    high.setText(QString::number(highest));
}
