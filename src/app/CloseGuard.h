#pragma once

#include <QObject>

class QWidget;

// While it lives, a window that asks something before it closes is not closed by being closed once
// more. Qt would take the second for an answered question, and end the program with all that is
// unsaved.
class CloseGuard : public QObject
{
    Q_OBJECT

public:
    explicit CloseGuard(const QWidget &window);

    bool eventFilter(QObject *watched, QEvent *event) override;
};
