#include "app/DropToOpen.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace
{
// The path of the one adventure file that is dragged; empty when it is anything else.
QString draggedAdventure(const QDropEvent &event)
{
    const QList<QUrl> urls = event.mimeData()->urls();
    if (urls.size() != 1 || !urls.first().isLocalFile())
        return {};
    const QString path = urls.first().toLocalFile();
    return path.endsWith(QStringLiteral(".usm"), Qt::CaseInsensitive) ? path : QString();
}
} // namespace

DropToOpen::DropToOpen(QWidget &window) : QObject(&window), m_window(window)
{
    window.setAcceptDrops(true);
    QCoreApplication::instance()->installEventFilter(this);
}

// The editing box would take the file's name as a text, so that it must not see it.
bool DropToOpen::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop)
        return false;
    const auto *widget = qobject_cast<const QWidget *>(watched);
    if (widget == nullptr || widget->window() != &m_window ||
        QApplication::activeModalWidget() != nullptr)
        return false;
    auto &drag = *static_cast<QDropEvent *>(event);
    const QString path = draggedAdventure(drag);
    if (path.isEmpty())
        return false;
    drag.acceptProposedAction();
    // Whoever dragged it waits for the end of the drop.
    if (type == QEvent::Drop)
        QMetaObject::invokeMethod(
            this, [this, path] { Q_EMIT dropped(path); }, Qt::QueuedConnection);
    return true;
}
