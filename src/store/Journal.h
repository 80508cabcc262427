#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <optional>

struct Variables;

// A change of many paragraphs that has been decided. Its new texts lie in parking files; a complete
// journal beside them commits the change, and placing it moves the texts to their working files.
// The file "Session/Journal.xyz" of the working folder, lines of UTF-8 that end in CR LF:
//
//   Usmira Journal 1
//   prefix LTdI-                              percent-encoded
//   place 0012 0340 1 SHA256 0026/0031/       was 12, is now 340, fixed, its text, its references
//   empty 0012 0                              12 has no text any more, and is not fixed
//   sum SHA256                                of every line above
//
// No number is placed twice, none is the place of two texts, and none that is emptied is a place.
struct Journal {
    struct Placed {
        int before; // 0..2000, also the number of the parking file
        int after;  // 0..2000
        bool fixed;
        QByteArray sha256; // of the text, in hexadecimal
        QString references;
        bool operator==(const Placed &) const = default;
    };
    struct Emptied {
        int number; // 0..2000
        bool fixed;
        bool operator==(const Emptied &) const = default;
    };
    bool operator==(const Journal &) const = default;

    QString filePrefix;
    QList<Placed> placed;
    QList<Emptied> emptied;
};

QByteArray journalBytes(const Journal &journal);
// Nothing unless the bytes are what journalBytes() gives for a journal that this program can have
// decided on: a file of that name may come from anywhere.
std::optional<Journal> journalOf(QByteArrayView bytes);

QByteArray textSha256(const QByteArray &rtf);

// The folder of the journal inside the working folder, made if need be. What has its name and is
// none goes: a link is removed, anything else moved to a folder "Récupération ...". Throws
// FileError.
void makeSessionFolder(const QString &workingFolder);
// Goes again when nothing is left in it.
void removeSessionFolder(const QString &workingFolder);

// Puts the journal on the disk: from now on the change counts. On failure throws FileError, or
// LimitError when the journal is too long to be read again, and there is no journal.
void commitJournal(const QString &workingFolder, const Journal &journal);

// Moves the parked texts to their working files, the session state that goes with them into its
// place, removes the working files of the emptied paragraphs and then the journal. Throws FileError
// at the first failure; may be called again, and goes on from there.
void placeJournal(const QString &workingFolder, const Journal &journal);

// Places the journal that the open adventure still waits for, if any. Throws FileError, and may be
// called again.
void finishLeftJournal(Variables &variables);

// The same where a failure stops nothing.
void tryFinishLeftJournal(Variables &variables);

// Where the text of paragraph n lies while the journal is not placed whole; nothing when it leaves
// the paragraph alone, or has placed it.
std::optional<QString> waitingText(const Journal &journal, const QString &workingFolder, int n);

// Moves a journal that the start of the program could not finish, and its parked texts, to a folder
// "Récupération ...": placed now, it would overwrite what was edited since. Gives the folder, empty
// when there was no journal. Throws FileError.
QString setJournalAside(const QString &workingFolder);

// At the start of the program: places a journal, and removes parked texts without one, left by a
// change that was never committed. A damaged journal, or one whose texts are not all there as they
// were, is set aside; gives the folder then. Throws FileError.
QString recoverJournal(const QString &workingFolder);
