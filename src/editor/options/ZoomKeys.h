#pragma once

#include <QObject>

class ComfortKeeper;
class QWidget;
class RtfBox;

// Ctrl with the wheel, "+", "-" or "0" makes the text on the screen larger, smaller, or as it was.
class ZoomKeys : public QObject
{
    Q_OBJECT

public:
    // The keys work in all of the window.
    ZoomKeys(ComfortKeeper &keeper, RtfBox &box, QWidget &window);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void step(int steps);

    ComfortKeeper &m_keeper;
    int m_turned = 0; // of the wheel, in eighths of a degree, less than a step
};
