#include "app/Application.h"

#include <exception>
#include <utility>

bool Application::notify(QObject *receiver, QEvent *event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception &) {
        report();
        return true;
    }
}

void Application::report()
{
    if (std::exchange(m_reporting, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            Q_EMIT failed();
            m_reporting = false;
        },
        Qt::QueuedConnection);
}
