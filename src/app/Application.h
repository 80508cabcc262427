#pragma once

#include <QApplication>

// The program's one QApplication, and its last net: an exception that nothing else caught ends the
// event in which it was thrown, and not the program.
class Application : public QApplication
{
    Q_OBJECT

public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override;

Q_SIGNALS:
    // Something failed. Comes when the event is over; once, however often it fails until it has
    // been dealt with, as what shows the failure may fail in the same way.
    void failed();

private:
    void report();

    bool m_reporting = false;
};
