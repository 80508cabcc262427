#include "store/Journal.h"

#include "platform/Errors.h"
#include "platform/PartFiles.h"
#include "platform/SafeFile.h"
#include "richtext/TextLimit.h"
#include "store/SummedLines.h"
#include "store/Variables.h"
#include "store/WorkingFiles.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <set>

namespace
{
constexpr auto FirstLine = "Usmira Journal 1";
// Far above the longest that 2000 paragraphs can give with the longest lists.
constexpr qint64 LargestJournal = 256 * 1024 * 1024;

// Bytes: no file name is longer than 255 of them.
constexpr qsizetype LongestPrefix = 246;

QByteArray flag(bool on)
{
    return on ? "1" : "0";
}

// Takes the lines of a journal up to the first that cannot stand there. Words are read as they
// come: what was not written like this is found out by writing it again.
class JournalReader
{
public:
    bool read(QByteArrayView bytes)
    {
        const auto take = [this](const QList<QByteArray> &words) { return readLine(words); };
        return readSummed(bytes, take) && isFileNamePart(m_journal.filePrefix) && !placesEmptied();
    }
    const Journal &journal() const { return m_journal; }

private:
    bool readLine(const QList<QByteArray> &words)
    {
        const QByteArray &kind = words.first();
        if (kind == "place")
            return place({words.value(1).toInt(), words.value(2).toInt(), words.value(3) == "1",
                          words.value(4), textOfWord(words.value(5))});
        if (kind == "empty")
            return empty({words.value(1).toInt(), words.value(2) == "1"});
        if (kind == "prefix")
            m_journal.filePrefix = textOfWord(words.value(1));
        return kind == "prefix" || kind == "Usmira";
    }

    bool place(const Journal::Placed &placed)
    {
        m_journal.placed.append(placed);
        return isNew(m_before, placed.before) && isNew(m_after, placed.after);
    }

    bool empty(const Journal::Emptied &emptied)
    {
        m_journal.emptied.append(emptied);
        return isNew(m_emptied, emptied.number);
    }

    static bool isNew(std::set<int> &numbers, int n)
    {
        return n >= 0 && n <= Variables::LastParagraph && numbers.insert(n).second;
    }

    // Anything else would have its files lie elsewhere.
    static bool isFileNamePart(const QString &prefix)
    {
        return prefix.endsWith(u'-') && prefix.toUtf8().size() <= LongestPrefix &&
               !prefix.contains(u'/') && !prefix.contains(QChar::Null) &&
               !prefix.contains(QDir::separator());
    }

    bool placesEmptied() const
    {
        return std::any_of(m_emptied.begin(), m_emptied.end(),
                           [this](int n) { return m_after.count(n) != 0; });
    }

    Journal m_journal;
    std::set<int> m_before;
    std::set<int> m_after;
    std::set<int> m_emptied;
};

// A folder or a link of that name is none of ours.
bool isPlainFile(const QString &path, qint64 limit)
{
    const QFileInfo info(path);
    return info.isFile() && !info.isSymLink() && info.size() <= limit;
}

// The program deletes nothing that it does not understand.
QString setAside(const WorkingFiles &files)
{
    const QString folder = files.newRecoveryFolder(QDateTime::currentDateTime());
    // The journal goes first: without it the rest counts for nothing.
    moveToFolder(QStringList(files.journal()) + files.allParked() + QStringList(files.nextState()),
                 folder);
    removeSessionFolder(files.folder());
    return folder;
}

// A link would lead elsewhere. Anything else that is no folder is in the way, and kept.
void clearSessionName(const WorkingFiles &files)
{
    const QFileInfo session(files.session());
    if (session.isSymLink()) {
        removeFile(files.session());
    } else if (session.exists() && !session.isDir()) {
        moveToFolder({files.session()}, files.newRecoveryFolder(QDateTime::currentDateTime()));
    }
}

bool hasJournal(const WorkingFiles &files)
{
    return !QFileInfo(files.session()).isSymLink() && isAnythingAt(files.journal());
}

std::optional<Journal> readJournal(const WorkingFiles &files)
{
    if (!hasJournal(files) || !isPlainFile(files.journal(), LargestJournal))
        return std::nullopt;
    return journalOf(readWholeFile(files.journal(), LargestJournal));
}

// Each text waits still, or is where it belongs.
bool areTextsThere(const QString &workingFolder, const Journal &journal)
{
    const WorkingFiles files(workingFolder, journal.filePrefix);
    const auto isThere = [&files](const Journal::Placed &placed) {
        const QString parked = files.parked(placed.before);
        const QString there = QFileInfo::exists(parked) ? parked : files.text(placed.after);
        return isPlainFile(there, LargestText) &&
               textSha256(readWholeFile(there, LargestText)) == placed.sha256;
    };
    return std::all_of(journal.placed.begin(), journal.placed.end(), isThere);
}
} // namespace

QByteArray journalBytes(const Journal &journal)
{
    QByteArray bytes = QByteArray(FirstLine) + "\r\n";
    bytes += "prefix " + wordOf(journal.filePrefix) + "\r\n";
    for (const Journal::Placed &placed : journal.placed)
        bytes += "place " + fourDigits(placed.before).toLatin1() + ' ' +
                 fourDigits(placed.after).toLatin1() + ' ' + flag(placed.fixed) + ' ' +
                 placed.sha256 + ' ' + wordOf(placed.references, "/") + "\r\n";
    for (const Journal::Emptied &emptied : journal.emptied)
        bytes +=
            "empty " + fourDigits(emptied.number).toLatin1() + ' ' + flag(emptied.fixed) + "\r\n";
    return summed(bytes);
}

std::optional<Journal> journalOf(QByteArrayView bytes)
{
    JournalReader reader;
    if (!reader.read(bytes) || journalBytes(reader.journal()) != bytes)
        return std::nullopt;
    return reader.journal();
}

QByteArray textSha256(const QByteArray &rtf)
{
    return sha256(rtf);
}

void makeSessionFolder(const QString &workingFolder)
{
    const WorkingFiles files(workingFolder);
    clearSessionName(files);
    QDir().mkpath(files.session());
}

void removeSessionFolder(const QString &workingFolder)
{
    QDir().rmdir(WorkingFiles(workingFolder).session());
}

void commitJournal(const QString &workingFolder, const Journal &journal)
{
    const QString path = WorkingFiles(workingFolder).journal();
    const QByteArray bytes = journalBytes(journal);
    if (bytes.size() > LargestJournal)
        throw LimitError(QStringLiteral("bytes of a journal"), LargestJournal);
    try {
        writeWholeFile(path, bytes, Durability::Data, Links::Replace);
        syncFolder(WorkingFiles(workingFolder).session()); // must not fail unseen
    } catch (const FileError &) {
        // The journal may be in place already and only the last sync have failed. One that cannot
        // be taken back counts.
        QFile::remove(path);
        if (!QFileInfo::exists(path))
            throw;
    }
}

void placeJournal(const QString &workingFolder, const Journal &journal)
{
    const WorkingFiles files(workingFolder, journal.filePrefix);
    makeSessionFolder(workingFolder);
    for (const Journal::Placed &placed : journal.placed) {
        const QString parked = files.parked(placed.before);
        if (!QFileInfo::exists(parked))
            continue;
        renameFile(parked, files.text(placed.after));
    }
    for (const Journal::Emptied &emptied : journal.emptied)
        removeFile(files.text(emptied.number));
    if (isAnythingAt(files.nextState()))
        renameFile(files.nextState(), files.state());
    // The journal goes for certain before anything else happens: placed once more after later
    // edits, it would undo them.
    syncFolder(workingFolder);
    removeFile(files.journal());
    if (QFileInfo::exists(files.session()))
        syncFolder(files.session());
    removeSessionFolder(workingFolder);
}

void finishLeftJournal(Variables &variables)
{
    if (!variables.JournalLeft)
        return;
    placeJournal(variables.WorkingFolder, *variables.JournalLeft);
    variables.JournalLeft.reset();
}

void tryFinishLeftJournal(Variables &variables)
{
    try {
        finishLeftJournal(variables);
    } catch (const FileError &) {
        // It is tried again, at the latest before the next working file is written.
    }
}

std::optional<QString> waitingText(const Journal &journal, const QString &workingFolder, int n)
{
    const auto placed =
        std::find_if(journal.placed.begin(), journal.placed.end(),
                     [n](const Journal::Placed &candidate) { return candidate.after == n; });
    if (placed == journal.placed.end())
        return std::nullopt;
    const QString parked = WorkingFiles(workingFolder).parked(placed->before);
    return QFileInfo::exists(parked) ? std::optional(parked) : std::nullopt;
}

QString setJournalAside(const QString &workingFolder)
{
    const WorkingFiles files(workingFolder);
    return hasJournal(files) ? setAside(files) : QString();
}

QString recoverJournal(const QString &workingFolder)
{
    const WorkingFiles files(workingFolder);
    clearSessionName(files);
    const std::optional<Journal> journal = readJournal(files);
    QString aside;
    if (journal && areTextsThere(workingFolder, *journal))
        placeJournal(workingFolder, *journal);
    else
        aside = setJournalAside(workingFolder);
    const QStringList left = files.allParked() + QStringList(files.nextState());
    for (const QString &path : left)
        removeFile(path);
    removeLeftParts(workingFolder, PartsIn::OwnFolder);
    removeLeftParts(files.session(), PartsIn::OwnFolder);
    removeLeftParts(files.copies(), PartsIn::AnyFolder); // other windows keep copies there too
    removeSessionFolder(workingFolder);
    return aside;
}
