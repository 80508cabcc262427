#include "platform/NumberBox.h"

#include "platform/Prompts.h"

#include <QFocusEvent>
#include <QRegularExpressionValidator>

NumberBox::NumberBox(QWidget *parent) : QLineEdit(parent)
{
    setFiltering(true);
}

void NumberBox::setFiltering(bool on)
{
    delete validator();
    static const QRegularExpression number(QStringLiteral("[0-9.]*"));
    setValidator(on ? new QRegularExpressionValidator(number, this) : nullptr);
}

void NumberBox::connectBeeps(QWidget &window, Prompts &prompts)
{
    const QList<NumberBox *> boxes = window.findChildren<NumberBox *>();
    for (NumberBox *box : boxes)
        connect(box, &QLineEdit::inputRejected, box, [&prompts] { prompts.beep(); });
}

void NumberBox::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    selectAll();
    m_selectOnRelease = event->reason() == Qt::MouseFocusReason;
}

// The click that brings the focus places the caret after the focus has come.
void NumberBox::mouseReleaseEvent(QMouseEvent *event)
{
    QLineEdit::mouseReleaseEvent(event);
    if (m_selectOnRelease && !hasSelectedText())
        selectAll();
    m_selectOnRelease = false;
}
