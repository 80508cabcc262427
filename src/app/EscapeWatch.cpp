#include "app/EscapeWatch.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace
{
bool isFromAuthor(const QEvent &event)
{
    switch (event.type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::Drop:
    case QEvent::Close:
        return true;
    default:
        return false;
    }
}
} // namespace

EscapeWatch::EscapeWatch()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool EscapeWatch::look()
{
    QCoreApplication::processEvents();
    return m_pressed;
}

bool EscapeWatch::eventFilter(QObject * /*watched*/, QEvent *event)
{
    if (!isFromAuthor(*event))
        return false;
    if (event->type() == QEvent::KeyPress)
        m_pressed |= static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape;
    event->ignore(); // a window is not to close
    return true;
}
