#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class RichTextBox;
struct Variables;

// Keeps what is being typed, see keepBox(): three seconds after the last key, and in typing without
// such a pause every two seconds, or as seldom as every thirty where keeping the text takes so long
// that it would be felt. Both must outlive it.
class TypedSnapshot : public QObject
{
    Q_OBJECT

public:
    TypedSnapshot(const Variables &variables, const RichTextBox &box);

    // The text in the box has changed, or is another one.
    void follow();

    // Keeps at once what is not kept yet. A failure is told to nobody: nothing is lost by it as
    // long as the program runs, and the next key tries again.
    void take();

private:
    const Variables &m_variables;
    const RichTextBox &m_box;
    QTimer m_timer;
    QElapsedTimer m_sinceFirst; // valid while something is not kept
    qint64 m_longest;           // milliseconds of unbroken typing
};
