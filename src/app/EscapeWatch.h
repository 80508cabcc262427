#pragma once

#include <QObject>

// While it lives, nothing that the author does reaches a window; Escape is taken note of.
class EscapeWatch : public QObject
{
    Q_OBJECT

public:
    EscapeWatch();

    // Lets in what waits. Whether Escape has been pressed so far.
    bool look();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool m_pressed = false;
};
