#include "widgets/NumberBox.h"

#include "platform/Ascii.h"
#include "platform/Prompts.h"

#include <QFocusEvent>
#include <QRegularExpressionValidator>
#include <QStyle>
#include <QStyleOptionFrame>
#include <algorithm>

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

void NumberBox::keepNumber()
{
    const auto keep = [this] {
        const bool isNumber = std::any_of(text().cbegin(), text().cend(), isAsciiDigit);
        m_kept = isNumber ? text() : m_kept;
        setText(m_kept);
    };
    connect(this, &QLineEdit::editingFinished, this, keep);
    keep();
}

void NumberBox::connectBeeps(QWidget &window, Prompts &prompts)
{
    const QList<NumberBox *> boxes = window.findChildren<NumberBox *>();
    for (NumberBox *box : boxes)
        connect(box, &QLineEdit::inputRejected, box, [&prompts] { prompts.beep(); });
}

QSize NumberBox::sizeHint() const
{
    const int height = QLineEdit::sizeHint().height();
    const QSize number(fontMetrics().horizontalAdvance(QStringLiteral("000000")), height);
    QStyleOptionFrame option;
    initStyleOption(&option);
    return {style()->sizeFromContents(QStyle::CT_LineEdit, &option, number, this).width(), height};
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
