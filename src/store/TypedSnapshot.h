#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class RichTextBox;
class UsmiraError;
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

    // Keeps at once what is not kept yet. After a failure it is tried again, as long as the text is
    // not saved.
    void take();

Q_SIGNALS:
    // The first failure, and the first after one that was over. Nothing is lost by it as long as
    // the program runs.
    void failed(const UsmiraError &error);

private:
    void tellOnce(const UsmiraError &error);

    const Variables &m_variables;
    const RichTextBox &m_box;
    QTimer m_timer;
    QElapsedTimer m_sinceFirst; // valid while something is not kept
    qint64 m_longest;           // milliseconds of unbroken typing
    bool m_told = false;        // of the failure that is not over
};
