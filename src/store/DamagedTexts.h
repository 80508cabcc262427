#pragma once

#include "store/Variables.h"

#include <QList>
#include <optional>

class Prompts;

// Texts that cannot be read. Before anything takes their place, their bytes are kept beside the
// adventure as "Le Loup (illisible 0009).bin": what can be read of them, as far as the file goes.
// Where that is not all, the adventure file as a whole is kept under another name as well, so that
// no byte is lost that may be read one day. A working file that is there but cannot be copied is
// moved to a folder "Récupération ..." in the working folder, as it is.

// The numbers of all texts known to be damaged, ascending.
QList<int> damagedParagraphs(const Variables &variables);

// As textToShow(), and tells the author of damage that was not known yet.
QByteArray textToShow(Variables &variables, int n, Prompts &prompts);

// The text of a written paragraph; nothing, and its number noted, when it cannot be read.
std::optional<QByteArray> readableText(const Variables &variables, int n, QList<int> &unreadable);

// The same as plain text. A text whose RTF is malformed cannot be read either.
std::optional<QString> readablePlainText(const Variables &variables, int n, QList<int> &unreadable);

// Tells the author that these paragraphs are unreadable, if there are any.
void tellUnreadable(const QList<int> &paragraphs, Prompts &prompts);

// Keeps the bytes of these texts. Throws FileError when they cannot be written; then none is kept.
class KeptBytes
{
public:
    // Whether the adventure file on the disk has been kept under another name already.
    enum class WholeFile { NotKept, IsKept };

    KeptBytes(const Variables &variables, const QList<int> &paragraphs,
              WholeFile whole = WholeFile::NotKept);
    // They go again unless the damaged texts have been replaced.
    ~KeptBytes();
    KeptBytes(const KeptBytes &) = delete;
    KeptBytes &operator=(const KeptBytes &) = delete;

    void textsAreReplaced();

    // The folder that working files were moved to, empty when there is none.
    const QString &folder() const { return m_folder; }
    // Where all is kept, in sentences for the author that are put behind another.
    QString whereKept() const;

private:
    struct Moved {
        QString from;
        QString to;
    };

    void keep(const Variables &variables, const QList<int> &paragraphs);
    bool keepText(const Variables &variables, int n);
    bool moveAside(const Variables &variables, int n);
    void undo();

    QStringList m_paths; // made beside the adventure
    QList<Moved> m_moved;
    QString m_folder;
    bool m_beside = false;
};

// Asks whether the damaged text of paragraph n may be replaced, and keeps its bytes. Throws
// NotAllowed when the author says no, FileError when the bytes cannot be kept.
void askToReplaceDamaged(const Variables &variables, int n, Prompts &prompts);

// "Le Loup (note).usm" beside "Le Loup.usm", numbered when that is taken. Looks.
QString pathBeside(const QString &adventurePath, const QString &note);

// The same with the note "autre version".
QString otherVersionPath(const QString &adventurePath);
