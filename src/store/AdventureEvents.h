#pragma once

#include "store/ParagraphArray.h"

#include <QList>
#include <QObject>

// Announces what has changed in the open adventure, once it has. Whoever shows some of it listens;
// what listens must not throw and must not change the adventure.
class AdventureEvents : public QObject
{
    Q_OBJECT

Q_SIGNALS:
    // The current paragraph, n, was saved from the editing box.
    void paragraphSaved(int n);

    // Paragraphs have other numbers: at each number 0..2000 the one that its text has from now on.
    // The texts at all numbers concerned are announced by textsChanged as well, afterwards.
    void numbersChanged(const ParagraphArray<qint16, 2001> &newNumbers);

    // Other texts stand at these numbers, or none any more, by a command and not by typing.
    void textsChanged(const QList<int> &numbers);

    // Paragraphs were fixed or freed.
    void marksChanged();

    // Other commands can be taken back, or done once more.
    void historyChanged();

    // References are recognised by another phrase, and the index is another one.
    void targetPhraseChanged();

    // What belongs to the adventure beside its paragraphs is something else.
    void extrasChanged();

    // Another adventure has become the open one, and everything is new.
    void adventureReplaced();

    // There are unsaved changes now, or there are none any more. See hasUnsavedChanges().
    void modifiedChanged(bool unsaved);
};
