#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <optional>

// A change of many paragraphs that has been decided. Its new texts lie in parking files; a complete
// journal beside them commits the change, and placing it moves the texts to their working files.
// The file "Session/Journal.xyz" of the working folder, lines of UTF-8 that end in CR LF:
//
//   Usmira Journal 1
//   prefix LTdI-                              percent-encoded
//   place 0012 0340 1 SHA256 0026/0031/       was 12, is now 340, fixed, its text, its references
//   empty 0012 0                              12 has no text any more, and is not fixed
//   sum SHA256                                of every line above
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
// Nothing when the bytes are no complete journal.
std::optional<Journal> journalOf(QByteArrayView bytes);

// Where the new text of paragraph n, by the number that it has now, waits: "0012.xyz".
QString parkingFilePath(const QString &workingFolder, int n);
QByteArray textSha256(const QByteArray &rtf);

// The folder of the journal inside the working folder, made if need be.
void makeSessionFolder(const QString &workingFolder);
// Goes again when nothing is left in it.
void removeSessionFolder(const QString &workingFolder);

// Puts the journal on the disk: from now on the change counts. On failure throws FileError, and
// there is no journal.
void commitJournal(const QString &workingFolder, const Journal &journal);

// Moves the parked texts to their working files, removes those of the emptied paragraphs, and then
// the journal. Throws FileError at the first failure; may be called again, and goes on from there.
void placeJournal(const QString &workingFolder, const Journal &journal);

// Places the journal that lies in the working folder, if there is one. A damaged journal, or one
// whose texts are not all there as they were, is set aside with the parked texts in a folder
// "Récupération ...". Throws FileError.
void finishJournal(const QString &workingFolder);

// At the start of the program: finishes a journal and removes parked texts without one, left by a
// change that was never committed.
void recoverJournal(const QString &workingFolder);
