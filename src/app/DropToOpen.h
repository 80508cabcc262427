#pragma once

#include <QObject>

class QDropEvent;
class QWidget;

// An adventure file that is dropped anywhere on a window is to be opened. Everything else that is
// dropped goes its usual way.
class DropToOpen : public QObject
{
    Q_OBJECT

public:
    explicit DropToOpen(QWidget &window);

Q_SIGNALS:
    void dropped(const QString &path);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget &m_window;
};
