#pragma once

#include "check/CheckBook.h"

#include <QObject>
#include <QTimer>
#include <memory>
#include <set>

// The check of the open adventure, done anew by itself a while after something has changed: in
// slices, so that nobody who writes has to wait for it. Only texts that have changed are read
// again, and what was found in the others stays where it may.
class LiveCheck : public QObject
{
    Q_OBJECT

public:
    // The adventure must outlive it.
    explicit LiveCheck(const Variables &variables);
    ~LiveCheck() override;

    // As it was found last; nothing for an adventure that is still to be checked.
    const CheckedBook &book() const { return m_book; }
    const PlainTexts &texts() const { return m_texts; }

    // Whether that is about the adventure that is open now. Changes may still be missing.
    bool isChecked() const { return m_checked; }

    // Checks now what has changed, however long it takes. The current paragraph must have been
    // saved.
    void bringUpToDate();

Q_SIGNALS:
    // There is another result, or none any more.
    void changed();

private:
    struct Pass;
    void begin();
    void changedAt(const QList<int> &numbers);
    bool workFor(qint64 milliseconds);
    void beginPass();
    void finish();

    const Variables &m_variables;
    PlainTexts m_texts;
    ParagraphArray<QList<Finding>, 2001> m_found; // in each text
    CheckedBook m_book;
    std::set<int> m_unread;    // texts that have changed since they were read
    std::set<int> m_unchecked; // read, and not yet looked into
    QString m_phrase;          // for which and among which written ones the others were
    ParagraphArray<quint8, 2002> m_written;
    std::unique_ptr<Pass> m_pass; // while nothing has changed since it began
    bool m_checked = false;
    QTimer m_timer; // runs while something is still to be done
};
