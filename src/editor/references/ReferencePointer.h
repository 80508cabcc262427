#pragma once

#include <QObject>

class QHelpEvent;
class QPoint;
class ReferenceUnderlines;
class RtfBox;
struct Variables;

// The mouse over a reference in the box: a tip says how the paragraph begins that it leads to, or
// what is doubtful, and with Ctrl held the pointer is the hand that follows it.
class ReferencePointer : public QObject
{
    Q_OBJECT

public:
    // All three must outlive it.
    ReferencePointer(const Variables &variables, RtfBox &box,
                     const ReferenceUnderlines &underlines);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool showTip(const QHelpEvent &event) const;
    void showHand(const QPoint &point, bool ctrl);
    void handleKey(QEvent &event);

    const Variables &m_variables;
    RtfBox &m_box;
    QWidget &m_viewport; // events still come while the box is being destroyed
    const ReferenceUnderlines &m_underlines;
    bool m_hand = false;
};
