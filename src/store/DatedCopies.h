#pragma once

#include "store/Variables.h"

#include <QDateTime>
#include <QList>
#include <QString>
#include <optional>

// Adventures as they were, kept in the folder "Copies" of the working folder:
//
//   Le Loup (2026-11-21 013759 0a1b2c3d).usm
//
// Date and time are those of the save that replaced it; what follows is made of the path of the
// adventure, so that two of one name in different folders have copies of their own. Private working
// folders keep theirs in that of the main one.
struct DatedCopy {
    QString path;
    QDateTime kept;
};

// Of each adventure.
inline constexpr int MostCopies = 10;

// Those of the open adventure, the newest first.
QList<DatedCopy> datedCopies(const Variables &variables);

// Number of paragraphs with a text; nothing when the copy cannot be read.
std::optional<int> paragraphsIn(const DatedCopy &copy);

// Size and number of paragraphs, for the author.
QString sizeText(const DatedCopy &copy);
QString paragraphsText(const DatedCopy &copy);

// A new file beside the open adventure with what the copy holds, "Le Loup (copie du 2026-11-21
// 0137).usm". Gives its path. Throws FileError, also when the copy cannot be opened.
QString restoreBeside(const Variables &variables, const DatedCopy &copy);

// Keeps the adventure as it was opened, just before a save replaces it; where another file was to
// be replaced by a new adventure, that one. It goes again with the object unless the save
// succeeded.
class KeptVersion
{
public:
    explicit KeptVersion(const Variables &variables);
    ~KeptVersion();
    KeptVersion(const KeptVersion &) = delete;
    KeptVersion &operator=(const KeptVersion &) = delete;

    // From now on it stays, and the oldest of too many goes.
    void isReplaced();

    // Why nothing could be kept, in a line for the author; else empty.
    const QString &failure() const { return m_failure; }

private:
    void keep();

    const Variables &m_variables;
    QString m_path; // while it may go again
    QString m_failure;
};
