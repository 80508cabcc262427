#include "editor/NumberList.h"

#include "store/LenientNumbers.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QToolTip>

NumberList::NumberList(QWidget *parent) : QListWidget(parent)
{
    connect(this, &QListWidget::itemClicked, this, &NumberList::chosen);
}

void NumberList::setFirstWords(std::function<QString(int)> firstWords)
{
    m_firstWords = std::move(firstWords);
}

int NumberList::numberOf(int row) const
{
    return roundHalfEven(lenientNumber(item(row)->text()));
}

bool NumberList::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && showToolTip(*static_cast<QHelpEvent *>(event)))
        return true;
    return QListWidget::viewportEvent(event);
}

bool NumberList::showToolTip(const QHelpEvent &event)
{
    const QListWidgetItem *pointed = itemAt(event.pos());
    if (pointed == nullptr || !m_firstWords)
        return false;
    const QString words = m_firstWords(numberOf(row(pointed)));
    if (words.isEmpty())
        return false;
    // The words are the author's and may look like markup.
    QToolTip::showText(event.globalPos(), QStringLiteral("<qt>") + words.toHtmlEscaped(), this,
                       visualItemRect(pointed));
    return true;
}

void NumberList::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && currentRow() >= 0)
        Q_EMIT chosen();
    else
        QListWidget::keyPressEvent(event);
}
