#include "store/Journal.h"

#include "platform/Errors.h"
#include "platform/SafeFile.h"
#include "richtext/TextLimit.h"
#include "store/ParagraphStore.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <algorithm>

namespace
{
constexpr auto FirstLine = "Usmira Journal 1";
// Far above the longest that 2000 paragraphs can give with the longest lists.
constexpr qint64 LargestJournal = 256 * 1024 * 1024;

QString sessionFolder(const QString &workingFolder)
{
    return workingFolder + QStringLiteral("Session");
}

QString journalPath(const QString &workingFolder)
{
    return sessionFolder(workingFolder) + QStringLiteral("/Journal.xyz");
}

QByteArray sha256(QByteArrayView bytes)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(bytes.toByteArray());
    return hash.result().toHex();
}

QByteArray flag(bool on)
{
    return on ? "1" : "0";
}

// The words of a line, read one after the other. Any word that is not as it should be spoils the
// whole journal.
class JournalLine
{
public:
    explicit JournalLine(const QByteArray &line) : m_words(line.split(' ')) {}

    bool begins(const char *word) { return m_words.value(0) == word && m_at++ == 0; }
    QByteArray word() { return m_words.value(m_at++); }
    int number()
    {
        bool ok = false;
        const int n = word().toInt(&ok);
        m_good = m_good && ok && n >= 0 && n <= Variables::LastParagraph;
        return n;
    }
    bool flag()
    {
        const QByteArray value = word();
        m_good = m_good && (value == "0" || value == "1");
        return value == "1";
    }
    // True when every word was right and there is none left.
    bool isGood() const { return m_good && m_at == m_words.size(); }

private:
    QList<QByteArray> m_words;
    qsizetype m_at = 0;
    bool m_good = true;
};

bool readLine(const QByteArray &bytes, Journal &journal)
{
    JournalLine line(bytes);
    if (line.begins("prefix")) {
        journal.filePrefix = QString::fromUtf8(QByteArray::fromPercentEncoding(line.word()));
        if (journal.filePrefix.contains(u'/'))
            return false; // no file name, so that its files would lie elsewhere
    } else if (line.begins("place")) {
        const int before = line.number();
        const int after = line.number();
        const bool fixed = line.flag();
        const QByteArray text = line.word();
        journal.placed.append({before, after, fixed, text, QString::fromUtf8(line.word())});
    } else if (line.begins("empty")) {
        const int number = line.number();
        journal.emptied.append({number, line.flag()});
    } else {
        return false;
    }
    return line.isGood();
}

QStringList parkedNames(const QString &workingFolder)
{
    return QDir(workingFolder)
        .entryList({QStringLiteral("[0-9][0-9][0-9][0-9].xyz")},
                   QDir::Files | QDir::Hidden | QDir::System);
}

// The program deletes nothing that it does not understand.
void setAside(const QString &workingFolder)
{
    const QString name = workingFolder + QStringLiteral("Récupération ") +
                         QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HHmm"));
    QString folder = name;
    for (int k = 2; QFileInfo::exists(folder); ++k)
        folder = name + QStringLiteral(" (%1)").arg(k);
    QDir().mkpath(folder);
    const QStringList names = parkedNames(workingFolder);
    for (const QString &parked : names)
        renameFile(workingFolder + parked, folder + u'/' + parked);
    renameFile(journalPath(workingFolder), folder + QStringLiteral("/Journal.xyz"));
    removeSessionFolder(workingFolder);
}

// The text waits still, or is where it belongs.
bool isTextThere(const QString &workingFolder, const Journal &journal,
                 const Journal::Placed &placed)
{
    const QString parked = parkingFilePath(workingFolder, placed.before);
    const QString there = QFileInfo::exists(parked)
                              ? parked
                              : workingFilePath(workingFolder, journal.filePrefix, placed.after);
    return QFileInfo::exists(there) &&
           textSha256(readWholeFile(there, LargestText)) == placed.sha256;
}
} // namespace

QByteArray journalBytes(const Journal &journal)
{
    QByteArray bytes = QByteArray(FirstLine) + "\r\n";
    bytes += "prefix " + journal.filePrefix.toUtf8().toPercentEncoding() + "\r\n";
    for (const Journal::Placed &placed : journal.placed)
        bytes += "place " + fourDigits(placed.before).toLatin1() + ' ' +
                 fourDigits(placed.after).toLatin1() + ' ' + flag(placed.fixed) + ' ' +
                 placed.sha256 + ' ' + placed.references.toUtf8().toPercentEncoding("/") + "\r\n";
    for (const Journal::Emptied &emptied : journal.emptied)
        bytes +=
            "empty " + fourDigits(emptied.number).toLatin1() + ' ' + flag(emptied.fixed) + "\r\n";
    return bytes + "sum " + sha256(bytes) + "\r\n";
}

std::optional<Journal> journalOf(QByteArrayView bytes)
{
    const qsizetype sumAt = bytes.lastIndexOf("sum ");
    if (sumAt < 0 || bytes.sliced(sumAt) != "sum " + sha256(bytes.first(sumAt)) + "\r\n")
        return std::nullopt;
    QList<QByteArray> lines = bytes.first(sumAt).toByteArray().replace("\r\n", "\n").split('\n');
    if (lines.takeFirst() != FirstLine || !lines.takeLast().isEmpty())
        return std::nullopt;
    Journal journal;
    for (const QByteArray &line : std::as_const(lines))
        if (!readLine(line, journal))
            return std::nullopt;
    return journal;
}

QString parkingFilePath(const QString &workingFolder, int n)
{
    return workingFolder + fourDigits(n) + QStringLiteral(".xyz");
}

QByteArray textSha256(const QByteArray &rtf)
{
    return sha256(rtf);
}

void makeSessionFolder(const QString &workingFolder)
{
    QDir().mkpath(sessionFolder(workingFolder));
}

void removeSessionFolder(const QString &workingFolder)
{
    QDir().rmdir(sessionFolder(workingFolder));
}

void commitJournal(const QString &workingFolder, const Journal &journal)
{
    const QString path = journalPath(workingFolder);
    try {
        writeWholeFile(path, journalBytes(journal), Durability::Data, Links::Replace);
        syncFolder(sessionFolder(workingFolder)); // must not fail unseen
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
    for (const Journal::Placed &placed : journal.placed) {
        const QString parked = parkingFilePath(workingFolder, placed.before);
        if (QFileInfo::exists(parked))
            renameFile(parked, workingFilePath(workingFolder, journal.filePrefix, placed.after));
    }
    for (const Journal::Emptied &emptied : journal.emptied)
        removeFile(workingFilePath(workingFolder, journal.filePrefix, emptied.number));
    // The journal goes for certain before anything else happens: placed once more after later
    // edits, it would undo them.
    syncFolder(workingFolder);
    removeFile(journalPath(workingFolder));
    syncFolder(sessionFolder(workingFolder));
    removeSessionFolder(workingFolder);
}

void finishJournal(const QString &workingFolder)
{
    const QString path = journalPath(workingFolder);
    if (!QFileInfo::exists(path))
        return;
    const std::optional<Journal> journal = journalOf(readWholeFile(path, LargestJournal));
    const auto isThere = [&](const Journal::Placed &placed) {
        return isTextThere(workingFolder, *journal, placed);
    };
    if (journal && std::all_of(journal->placed.begin(), journal->placed.end(), isThere))
        placeJournal(workingFolder, *journal);
    else
        setAside(workingFolder);
}

void recoverJournal(const QString &workingFolder)
{
    finishJournal(workingFolder);
    const QStringList names = parkedNames(workingFolder);
    for (const QString &name : names)
        removeFile(workingFolder + name);
    const QDir session(sessionFolder(workingFolder));
    const QStringList halfWritten =
        session.entryList({QStringLiteral("Journal.xyz.*")}, QDir::Files | QDir::Hidden);
    for (const QString &name : halfWritten)
        removeFile(session.filePath(name));
    removeSessionFolder(workingFolder);
}
