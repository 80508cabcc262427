#include "store/DatedCopies.h"

#include "platform/Failures.h"
#include "platform/OpenedFile.h"
#include "platform/SafeFile.h"
#include "platform/SameFile.h"
#include "platform/Translations.h"
#include "store/AdventureFile.h"
#include "store/DamagedTexts.h"
#include "store/WorkingFiles.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <algorithm>

namespace
{
// What the names of all copies of one adventure have in common.
struct CopyNames {
    QString stem;
    QString key;
    QString suffix; // with its dot

    QString at(const QDateTime &kept) const
    {
        return QStringLiteral("%1 (%2 %3)%4").arg(stem, kept.toString(Format), key, suffix);
    }
    QRegularExpression pattern() const
    {
        return QRegularExpression(
            QStringLiteral("^%1 \\(([-0-9]{10} [0-9]{6}) %2\\)%3$")
                .arg(QRegularExpression::escape(stem), key, QRegularExpression::escape(suffix)));
    }

    static inline const QString Format = QStringLiteral("yyyy-MM-dd HHmmss");
};

// A name of the greatest length has no room for a date; the key tells such ones apart all the same.
CopyNames namesFor(const QString &adventurePath)
{
    constexpr qsizetype longest = 160; // bytes
    const QFileInfo info(finalPath(adventurePath));
    const QByteArray hash =
        QCryptographicHash::hash(info.filePath().toUtf8(), QCryptographicHash::Sha256);
    QString stem = info.completeBaseName();
    while (stem.toUtf8().size() > longest)
        stem.chop(1);
    const QString suffix = info.suffix();
    return {stem, QString::fromLatin1(hash.toHex().first(8)),
            suffix.isEmpty() ? QString() : u'.' + suffix};
}

QString copiesFolder(const Variables &variables)
{
    return WorkingFiles::shared(variables).copies();
}

// Later than all others, also after a second save within a second, and when the clock was put back:
// the oldest go first.
QString freePath(const Variables &variables)
{
    QDateTime now = QDateTime::currentDateTime();
    const QList<DatedCopy> copies = datedCopies(variables);
    if (!copies.isEmpty() && copies.first().kept.addSecs(1) > now)
        now = copies.first().kept.addSecs(1);
    return QDir(copiesFolder(variables)).filePath(namesFor(variables.AdventurePath).at(now));
}

// Whoever has put another file in its place, or written over some of it: only the bytes that were
// opened are taken.
void copyOpened(OpenedFile &file, const QString &path)
{
    constexpr qint64 piece = 1024 * 1024;
    SafeFile to(path, Durability::Full, Links::Replace);
    for (qint64 at = 0; at < file.size(); at += piece)
        to.write(file.read(at, std::min(piece, file.size() - at)));
    to.commit();
}

// What only reserves the name of a new adventure is shorter than any adventure.
bool isWorthKeeping(const QString &path)
{
    constexpr qint64 shortest = 12;
    const QFileInfo info(path);
    return info.isFile() && info.size() >= shortest;
}
} // namespace

QList<DatedCopy> datedCopies(const Variables &variables)
{
    const QRegularExpression pattern = namesFor(variables.AdventurePath).pattern();
    QList<DatedCopy> copies;
    const QFileInfoList found =
        QDir(copiesFolder(variables)).entryInfoList(QDir::Files, QDir::Name | QDir::Reversed);
    for (const QFileInfo &info : found) {
        const QRegularExpressionMatch match = pattern.match(info.fileName());
        const QDateTime kept = QDateTime::fromString(match.captured(1), CopyNames::Format);
        if (match.hasMatch() && kept.isValid())
            copies.append({info.filePath(), kept});
    }
    return copies;
}

std::optional<int> paragraphsIn(const DatedCopy &copy)
{
    try {
        const AdventureContents contents = readAdventure(copy.path);
        int paragraphs = 0;
        for (int n = 1; n <= Variables::LastParagraph; ++n)
            paragraphs += contents.written.at(n);
        return paragraphs;
    } catch (const UsmiraError &) {
        return std::nullopt;
    }
}

QString sizeText(const DatedCopy &copy)
{
    return localeOfTexts().formattedDataSize(QFileInfo(copy.path).size(), 1,
                                             QLocale::DataSizeTraditionalFormat);
}

QString paragraphsText(const DatedCopy &copy)
{
    const std::optional<int> paragraphs = paragraphsIn(copy);
    return paragraphs ? QString::number(*paragraphs)
                      : QCoreApplication::translate("DatedCopies", "illisible");
}

QString restoreBeside(const Variables &variables, const DatedCopy &copy)
{
    static_cast<void>(readAdventure(copy.path)); // or there is nothing to open
    const QString note =
        QStringLiteral("copie du %1").arg(copy.kept.toString(QStringLiteral("yyyy-MM-dd HHmm")));
    const QString path = pathBeside(variables.AdventurePath, note);
    copyFile(copy.path, path);
    return path;
}

KeptVersion::KeptVersion(const Variables &variables) : m_variables(variables)
{
    try {
        keep();
    } catch (const UsmiraError &error) {
        m_failure = failureLine(
            QCoreApplication::translate("DatedCopies",
                                        "L'aventure d'avant n'a pas pu être gardée dans Copies."),
            error);
    }
}

void KeptVersion::keep()
{
    const QString &adventure = m_variables.AdventurePath;
    const std::shared_ptr<OpenedFile> &opened = m_variables.AdventureFile;
    if (!opened && !isWorthKeeping(adventure))
        return;
    QDir().mkpath(copiesFolder(m_variables));
    const QString path = freePath(m_variables);
    if (opened && !opened->isStillAt(adventure))
        copyOpened(*opened, path);
    else
        keepAs(adventure, path);
    m_path = path;
}

KeptVersion::~KeptVersion()
{
    if (!m_path.isEmpty())
        tryRemoveFile(m_path);
}

void KeptVersion::isReplaced()
{
    if (m_path.isEmpty())
        return;
    m_path.clear();
    try {
        const QList<DatedCopy> copies = datedCopies(m_variables);
        for (const DatedCopy &copy : copies.mid(MostCopies))
            tryRemoveFile(copy.path);
    } catch (const FileError &) {
        return; // the adventure is saved, and one copy too many is harmless
    }
}
