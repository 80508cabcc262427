#include "app/CloseGuard.h"

#include <QEvent>
#include <QWidget>
#include <QWindow>

CloseGuard::CloseGuard(const QWidget &window)
{
    if (QWindow *handle = window.windowHandle())
        handle->installEventFilter(this);
}

bool CloseGuard::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Close)
        return QObject::eventFilter(watched, event);
    event->ignore();
    return true;
}
